// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 62.
// Complex DFT of 62 points, prime-factor, order 31, 2.
// 796 additions, 712 subtractions, 768 multiplications (892 with `scale`); 40 constants; 130 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<62> {
    static constexpr int steps = 2400;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.15196895108646355,  // c[6]: -P[1] of 31
        0.3386491040641593,  // c[7]: Q[1] of 31
        0.21884316352804659,  // c[8]: Q[2] of 31
        0.29980901846811486,  // c[9]: -P[2] of 31
        0.37067181273221134,  // c[10]: -P[3] of 31
        0.019498333867134416,  // c[11]: Q[3] of 31
        0.05839901633481273,  // c[12]: Q[4] of 31
        0.3665614991633792,  // c[13]: P[4] of 31
        0.2226025627892778,  // c[14]: Q[6] of 31
        0.2970284107916672,  // c[15]: P[6] of 31
        0.24280988331200667,  // c[16]: -P[7] of 31
        0.28075102554360776,  // c[17]: Q[7] of 31
        0.1073724670043011,  // c[18]: -Q[8] of 31
        0.35531525594489755,  // c[19]: P[8] of 31
        0.37108682864596165,  // c[20]: P[9] of 31
        0.008505491359144196,  // c[21]: Q[9] of 31
        0.06530829340975558,  // c[22]: P[11] of 31
        0.36539376648991023,  // c[23]: -Q[11] of 31
        0.10130252550848418,  // c[24]: Q[12] of 31
        0.35709323166839874,  // c[25]: -P[12] of 31
        0.1674782402040115,  // c[26]: -P[13] of 31
        0.3312534027537607,  // c[27]: -Q[13] of 31
        0.27566627690567064,  // c[28]: Q[14] of 31
        0.2485676599132395,  // c[29]: P[14] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.26685240283098827,  // c[31]: P[5] of 31
        0.2580069240952765,  // c[32]: Q[5] of 31
        0.1449304326594425,  // c[33]: Q[10] of 31
        0.3417205692768941,  // c[34]: P[10] of 31
        0.1855921454276674,  // c[35]: beta of 31
        0.1255134364645471,  // c[36]: sin 2 pi 1/3 times Q[10] of 31
        0.2959386939894704,  // c[37]: sin 2 pi 1/3 times P[10] of 31
        0.23110095991255428,  // c[38]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[39]: sin 2 pi 1/3 times Q[5] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 5
        const V x32r = io.re(32);
        const V x4r = io.re(4);
        const V t0 = x32r + x4r;
        const V t1 = x32r - x4r;
        const V x8r = io.re(8);
        const V x16r = io.re(16);
        const V t2 = x8r + x16r;
        const V t3 = x8r - x16r;
        const V t4 = t0 + t2;
        const V x2r = io.re(2);
        const V t5 = t4 + x2r;
        const V t6 = c[0] * t0;
        const V t7 = c[1] * t2;
        const V t8 = t6 - t7;
        const V t9 = t8 + x2r;
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t11 - t10;
        const V t13 = c[1] * t0;
        const V t14 = x2r - t13;
        const V t15 = c[0] * t2;
        const V t16 = t14 + t15;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t3;
        const V t19 = t17 + t18;
        // real block of 5
        const V x26r = io.re(26);
        const V x42r = io.re(42);
        const V t20 = x26r + x42r;
        const V t21 = x26r - x42r;
        const V x22r = io.re(22);
        const V x44r = io.re(44);
        const V t22 = x22r + x44r;
        const V t23 = x22r - x44r;
        const V t24 = t20 + t22;
        const V x52r = io.re(52);
        const V t25 = t24 + x52r;
        const V t26 = c[0] * t20;
        const V t27 = c[1] * t22;
        const V t28 = t26 - t27;
        const V t29 = t28 + x52r;
        const V t30 = c[2] * t21;
        const V t31 = c[3] * t23;
        const V t32 = t31 - t30;
        const V t33 = c[1] * t20;
        const V t34 = x52r - t33;
        const V t35 = c[0] * t22;
        const V t36 = t34 + t35;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t23;
        const V t39 = t37 + t38;
        // real block of 5
        const V x56r = io.re(56);
        const V x38r = io.re(38);
        const V t40 = x56r + x38r;
        const V t41 = x56r - x38r;
        const V x14r = io.re(14);
        const V x28r = io.re(28);
        const V t42 = x14r + x28r;
        const V t43 = x14r - x28r;
        const V t44 = t40 + t42;
        const V x50r = io.re(50);
        const V t45 = t44 + x50r;
        const V t46 = c[0] * t40;
        const V t47 = c[1] * t42;
        const V t48 = t46 - t47;
        const V t49 = t48 + x50r;
        const V t50 = c[2] * t41;
        const V t51 = c[3] * t43;
        const V t52 = t51 - t50;
        const V t53 = c[1] * t40;
        const V t54 = x50r - t53;
        const V t55 = c[0] * t42;
        const V t56 = t54 + t55;
        const V t57 = c[3] * t41;
        const V t58 = c[2] * t43;
        const V t59 = t57 + t58;
        // real block of 5
        const V x30r = io.re(30);
        const V x58r = io.re(58);
        const V t60 = x30r + x58r;
        const V t61 = x30r - x58r;
        const V x54r = io.re(54);
        const V x46r = io.re(46);
        const V t62 = x54r + x46r;
        const V t63 = x54r - x46r;
        const V t64 = t60 + t62;
        const V x60r = io.re(60);
        const V t65 = t64 + x60r;
        const V t66 = c[0] * t60;
        const V t67 = c[1] * t62;
        const V t68 = t66 - t67;
        const V t69 = t68 + x60r;
        const V t70 = c[2] * t61;
        const V t71 = c[3] * t63;
        const V t72 = t71 - t70;
        const V t73 = c[1] * t60;
        const V t74 = x60r - t73;
        const V t75 = c[0] * t62;
        const V t76 = t74 + t75;
        const V t77 = c[3] * t61;
        const V t78 = c[2] * t63;
        const V t79 = t77 + t78;
        // real block of 5
        const V x36r = io.re(36);
        const V x20r = io.re(20);
        const V t80 = x36r + x20r;
        const V t81 = x36r - x20r;
        const V x40r = io.re(40);
        const V x18r = io.re(18);
        const V t82 = x40r + x18r;
        const V t83 = x40r - x18r;
        const V t84 = t80 + t82;
        const V x10r = io.re(10);
        const V t85 = t84 + x10r;
        const V t86 = c[0] * t80;
        const V t87 = c[1] * t82;
        const V t88 = t86 - t87;
        const V t89 = t88 + x10r;
        const V t90 = c[2] * t81;
        const V t91 = c[3] * t83;
        const V t92 = t91 - t90;
        const V t93 = c[1] * t80;
        const V t94 = x10r - t93;
        const V t95 = c[0] * t82;
        const V t96 = t94 + t95;
        const V t97 = c[3] * t81;
        const V t98 = c[2] * t83;
        const V t99 = t97 + t98;
        // real block of 5
        const V x6r = io.re(6);
        const V x24r = io.re(24);
        const V t100 = x6r + x24r;
        const V t101 = x6r - x24r;
        const V x48r = io.re(48);
        const V x34r = io.re(34);
        const V t102 = x48r + x34r;
        const V t103 = x48r - x34r;
        const V t104 = t100 + t102;
        const V x12r = io.re(12);
        const V t105 = t104 + x12r;
        const V t106 = c[0] * t100;
        const V t107 = c[1] * t102;
        const V t108 = t106 - t107;
        const V t109 = t108 + x12r;
        const V t110 = c[2] * t101;
        const V t111 = c[3] * t103;
        const V t112 = t111 - t110;
        const V t113 = c[1] * t100;
        const V t114 = x12r - t113;
        const V t115 = c[0] * t102;
        const V t116 = t114 + t115;
        const V t117 = c[3] * t101;
        const V t118 = c[2] * t103;
        const V t119 = t117 + t118;
        // real block of 3
        const V t120 = t45 + t85;
        const V t121 = t45 - t85;
        const V t122 = t120 + t5;
        const V t123 = c[4] * t120;
        const V t124 = t5 - t123;
        const V t125 = c[5] * t121;
        // real block of 3
        const V t126 = t105 + t25;
        const V t127 = t105 - t25;
        const V t128 = t126 + t65;
        const V t129 = c[4] * t126;
        const V t130 = t65 - t129;
        const V t131 = c[5] * t127;
        // real block of 2
        const V t132 = t122 + t128;
        const V t133 = t122 - t128;
        // complex block of 2
        const V t134 = t124 + t130;
        const V t135 = t125 + t131;
        const V t136 = t124 - t130;
        const V t137 = t131 - t125;
        // complex block of 3
        const V t138 = t49 + t89;
        const V t139 = t52 + t92;
        const V t140 = t49 - t89;
        const V t141 = t52 - t92;
        const V t142 = t138 + t9;
        const V t143 = t139 + t12;
        const V t144 = c[4] * t138;
        const V t145 = t9 - t144;
        const V t146 = c[4] * t139;
        const V t147 = t12 - t146;
        const V t148 = c[5] * t140;
        const V t149 = c[5] * t141;
        const V t150 = t145 + t149;
        const V t151 = t147 - t148;
        const V t152 = t145 - t149;
        const V t153 = t147 + t148;
        // complex block of 3
        const V t154 = t109 + t29;
        const V t155 = t112 + t32;
        const V t156 = t109 - t29;
        const V t157 = t112 - t32;
        const V t158 = t154 + t69;
        const V t159 = t155 + t72;
        const V t160 = c[4] * t154;
        const V t161 = t69 - t160;
        const V t162 = c[4] * t155;
        const V t163 = t72 - t162;
        const V t164 = c[5] * t156;
        const V t165 = c[5] * t157;
        const V t166 = t161 + t165;
        const V t167 = t163 - t164;
        const V t168 = t161 - t165;
        const V t169 = t163 + t164;
        // complex block of 2
        const V t170 = t142 + t158;
        const V t171 = t143 + t159;
        const V t172 = t142 - t158;
        const V t173 = t143 - t159;
        // complex block of 2
        const V t174 = t150 + t166;
        const V t175 = t151 + t167;
        const V t176 = t150 - t166;
        const V t177 = t151 - t167;
        // complex block of 2
        const V t178 = t152 + t168;
        const V t179 = t153 + t169;
        const V t180 = t152 - t168;
        const V t181 = t153 - t169;
        // complex block of 3
        const V t182 = t56 + t96;
        const V t183 = t59 + t99;
        const V t184 = t56 - t96;
        const V t185 = t99 - t59;
        const V t186 = t182 + t16;
        const V t187 = t183 + t19;
        const V t188 = c[4] * t182;
        const V t189 = t16 - t188;
        const V t190 = c[4] * t183;
        const V t191 = t190 - t19;
        const V t192 = c[5] * t184;
        const V t193 = c[5] * t185;
        const V t194 = t189 + t193;
        const V t195 = t191 - t192;
        const V t196 = t189 - t193;
        const V t197 = t191 + t192;
        // complex block of 3
        const V t198 = t116 + t36;
        const V t199 = t119 + t39;
        const V t200 = t116 - t36;
        const V t201 = t39 - t119;
        const V t202 = t198 + t76;
        const V t203 = t199 + t79;
        const V t204 = c[4] * t198;
        const V t205 = t76 - t204;
        const V t206 = c[4] * t199;
        const V t207 = t206 - t79;
        const V t208 = c[5] * t200;
        const V t209 = c[5] * t201;
        const V t210 = t205 + t209;
        const V t211 = t207 - t208;
        const V t212 = t205 - t209;
        const V t213 = t207 + t208;
        // complex block of 2
        const V t214 = t186 + t202;
        const V t215 = t187 + t203;
        const V t216 = t186 - t202;
        const V t217 = t203 - t187;
        // complex block of 2
        const V t218 = t194 + t210;
        const V t219 = t195 + t211;
        const V t220 = t194 - t210;
        const V t221 = t195 - t211;
        // complex block of 2
        const V t222 = t196 + t212;
        const V t223 = t197 + t213;
        const V t224 = t196 - t212;
        const V t225 = t197 - t213;
        // real block of 5
        const V x32i = io.im(32);
        const V x4i = io.im(4);
        const V t226 = x32i + x4i;
        const V t227 = x32i - x4i;
        const V x8i = io.im(8);
        const V x16i = io.im(16);
        const V t228 = x8i + x16i;
        const V t229 = x8i - x16i;
        const V t230 = t226 + t228;
        const V x2i = io.im(2);
        const V t231 = t230 + x2i;
        const V t232 = c[0] * t226;
        const V t233 = c[1] * t228;
        const V t234 = t232 - t233;
        const V t235 = t234 + x2i;
        const V t236 = c[2] * t227;
        const V t237 = c[3] * t229;
        const V t238 = t237 - t236;
        const V t239 = c[1] * t226;
        const V t240 = x2i - t239;
        const V t241 = c[0] * t228;
        const V t242 = t240 + t241;
        const V t243 = c[3] * t227;
        const V t244 = c[2] * t229;
        const V t245 = t243 + t244;
        // real block of 5
        const V x26i = io.im(26);
        const V x42i = io.im(42);
        const V t246 = x26i + x42i;
        const V t247 = x26i - x42i;
        const V x22i = io.im(22);
        const V x44i = io.im(44);
        const V t248 = x22i + x44i;
        const V t249 = x22i - x44i;
        const V t250 = t246 + t248;
        const V x52i = io.im(52);
        const V t251 = t250 + x52i;
        const V t252 = c[0] * t246;
        const V t253 = c[1] * t248;
        const V t254 = t252 - t253;
        const V t255 = t254 + x52i;
        const V t256 = c[2] * t247;
        const V t257 = c[3] * t249;
        const V t258 = t257 - t256;
        const V t259 = c[1] * t246;
        const V t260 = x52i - t259;
        const V t261 = c[0] * t248;
        const V t262 = t260 + t261;
        const V t263 = c[3] * t247;
        const V t264 = c[2] * t249;
        const V t265 = t263 + t264;
        // real block of 5
        const V x56i = io.im(56);
        const V x38i = io.im(38);
        const V t266 = x56i + x38i;
        const V t267 = x56i - x38i;
        const V x14i = io.im(14);
        const V x28i = io.im(28);
        const V t268 = x14i + x28i;
        const V t269 = x14i - x28i;
        const V t270 = t266 + t268;
        const V x50i = io.im(50);
        const V t271 = t270 + x50i;
        const V t272 = c[0] * t266;
        const V t273 = c[1] * t268;
        const V t274 = t272 - t273;
        const V t275 = t274 + x50i;
        const V t276 = c[2] * t267;
        const V t277 = c[3] * t269;
        const V t278 = t277 - t276;
        const V t279 = c[1] * t266;
        const V t280 = x50i - t279;
        const V t281 = c[0] * t268;
        const V t282 = t280 + t281;
        const V t283 = c[3] * t267;
        const V t284 = c[2] * t269;
        const V t285 = t283 + t284;
        // real block of 5
        const V x30i = io.im(30);
        const V x58i = io.im(58);
        const V t286 = x30i + x58i;
        const V t287 = x30i - x58i;
        const V x54i = io.im(54);
        const V x46i = io.im(46);
        const V t288 = x54i + x46i;
        const V t289 = x54i - x46i;
        const V t290 = t286 + t288;
        const V x60i = io.im(60);
        const V t291 = t290 + x60i;
        const V t292 = c[0] * t286;
        const V t293 = c[1] * t288;
        const V t294 = t292 - t293;
        const V t295 = t294 + x60i;
        const V t296 = c[2] * t287;
        const V t297 = c[3] * t289;
        const V t298 = t297 - t296;
        const V t299 = c[1] * t286;
        const V t300 = x60i - t299;
        const V t301 = c[0] * t288;
        const V t302 = t300 + t301;
        const V t303 = c[3] * t287;
        const V t304 = c[2] * t289;
        const V t305 = t303 + t304;
        // real block of 5
        const V x36i = io.im(36);
        const V x20i = io.im(20);
        const V t306 = x36i + x20i;
        const V t307 = x36i - x20i;
        const V x40i = io.im(40);
        const V x18i = io.im(18);
        const V t308 = x40i + x18i;
        const V t309 = x40i - x18i;
        const V t310 = t306 + t308;
        const V x10i = io.im(10);
        const V t311 = t310 + x10i;
        const V t312 = c[0] * t306;
        const V t313 = c[1] * t308;
        const V t314 = t312 - t313;
        const V t315 = t314 + x10i;
        const V t316 = c[2] * t307;
        const V t317 = c[3] * t309;
        const V t318 = t317 - t316;
        const V t319 = c[1] * t306;
        const V t320 = x10i - t319;
        const V t321 = c[0] * t308;
        const V t322 = t320 + t321;
        const V t323 = c[3] * t307;
        const V t324 = c[2] * t309;
        const V t325 = t323 + t324;
        // real block of 5
        const V x6i = io.im(6);
        const V x24i = io.im(24);
        const V t326 = x6i + x24i;
        const V t327 = x6i - x24i;
        const V x48i = io.im(48);
        const V x34i = io.im(34);
        const V t328 = x48i + x34i;
        const V t329 = x48i - x34i;
        const V t330 = t326 + t328;
        const V x12i = io.im(12);
        const V t331 = t330 + x12i;
        const V t332 = c[0] * t326;
        const V t333 = c[1] * t328;
        const V t334 = t332 - t333;
        const V t335 = t334 + x12i;
        const V t336 = c[2] * t327;
        const V t337 = c[3] * t329;
        const V t338 = t337 - t336;
        const V t339 = c[1] * t326;
        const V t340 = x12i - t339;
        const V t341 = c[0] * t328;
        const V t342 = t340 + t341;
        const V t343 = c[3] * t327;
        const V t344 = c[2] * t329;
        const V t345 = t343 + t344;
        // real block of 3
        const V t346 = t271 + t311;
        const V t347 = t271 - t311;
        const V t348 = t346 + t231;
        const V t349 = c[4] * t346;
        const V t350 = t231 - t349;
        const V t351 = c[5] * t347;
        // real block of 3
        const V t352 = t331 + t251;
        const V t353 = t331 - t251;
        const V t354 = t352 + t291;
        const V t355 = c[4] * t352;
        const V t356 = t291 - t355;
        const V t357 = c[5] * t353;
        // real block of 2
        const V t358 = t348 + t354;
        const V t359 = t348 - t354;
        // complex block of 2
        const V t360 = t350 + t356;
        const V t361 = t351 + t357;
        const V t362 = t350 - t356;
        const V t363 = t357 - t351;
        // complex block of 3
        const V t364 = t275 + t315;
        const V t365 = t278 + t318;
        const V t366 = t275 - t315;
        const V t367 = t278 - t318;
        const V t368 = t364 + t235;
        const V t369 = t365 + t238;
        const V t370 = c[4] * t364;
        const V t371 = t235 - t370;
        const V t372 = c[4] * t365;
        const V t373 = t238 - t372;
        const V t374 = c[5] * t366;
        const V t375 = c[5] * t367;
        const V t376 = t371 + t375;
        const V t377 = t373 - t374;
        const V t378 = t371 - t375;
        const V t379 = t373 + t374;
        // complex block of 3
        const V t380 = t335 + t255;
        const V t381 = t338 + t258;
        const V t382 = t335 - t255;
        const V t383 = t338 - t258;
        const V t384 = t380 + t295;
        const V t385 = t381 + t298;
        const V t386 = c[4] * t380;
        const V t387 = t295 - t386;
        const V t388 = c[4] * t381;
        const V t389 = t298 - t388;
        const V t390 = c[5] * t382;
        const V t391 = c[5] * t383;
        const V t392 = t387 + t391;
        const V t393 = t389 - t390;
        const V t394 = t387 - t391;
        const V t395 = t389 + t390;
        // complex block of 2
        const V t396 = t368 + t384;
        const V t397 = t369 + t385;
        const V t398 = t368 - t384;
        const V t399 = t369 - t385;
        // complex block of 2
        const V t400 = t376 + t392;
        const V t401 = t377 + t393;
        const V t402 = t376 - t392;
        const V t403 = t377 - t393;
        // complex block of 2
        const V t404 = t378 + t394;
        const V t405 = t379 + t395;
        const V t406 = t378 - t394;
        const V t407 = t379 - t395;
        // complex block of 3
        const V t408 = t282 + t322;
        const V t409 = t285 + t325;
        const V t410 = t282 - t322;
        const V t411 = t325 - t285;
        const V t412 = t408 + t242;
        const V t413 = t409 + t245;
        const V t414 = c[4] * t408;
        const V t415 = t242 - t414;
        const V t416 = c[4] * t409;
        const V t417 = t416 - t245;
        const V t418 = c[5] * t410;
        const V t419 = c[5] * t411;
        const V t420 = t415 + t419;
        const V t421 = t417 - t418;
        const V t422 = t415 - t419;
        const V t423 = t417 + t418;
        // complex block of 3
        const V t424 = t342 + t262;
        const V t425 = t345 + t265;
        const V t426 = t342 - t262;
        const V t427 = t265 - t345;
        const V t428 = t424 + t302;
        const V t429 = t425 + t305;
        const V t430 = c[4] * t424;
        const V t431 = t302 - t430;
        const V t432 = c[4] * t425;
        const V t433 = t432 - t305;
        const V t434 = c[5] * t426;
        const V t435 = c[5] * t427;
        const V t436 = t431 + t435;
        const V t437 = t433 - t434;
        const V t438 = t431 - t435;
        const V t439 = t433 + t434;
        // complex block of 2
        const V t440 = t412 + t428;
        const V t441 = t413 + t429;
        const V t442 = t412 - t428;
        const V t443 = t429 - t413;
        // complex block of 2
        const V t444 = t420 + t436;
        const V t445 = t421 + t437;
        const V t446 = t420 - t436;
        const V t447 = t421 - t437;
        // complex block of 2
        const V t448 = t422 + t438;
        const V t449 = t423 + t439;
        const V t450 = t422 - t438;
        const V t451 = t423 - t439;
        // complex block of 31, multiplier 2
        const V x0r = io.re(0);
        const V t452 = x0r + t132;
        const V x0i = io.im(0);
        const V t453 = x0i + t358;
        const V t454 = c[30] * t132;
        const V t455 = x0r - t454;
        const V t456 = c[30] * t358;
        const V t457 = x0i - t456;
        const V t458 = c[6] * t403;
        const V t459 = c[7] * t402;
        const V t460 = t459 + t458;
        const V t461 = c[6] * t402;
        const V t462 = c[7] * t403;
        const V t463 = t462 - t461;
        const V t464 = c[6] * t177;
        const V t465 = c[7] * t176;
        const V t466 = t465 + t464;
        const V t467 = c[6] * t176;
        const V t468 = c[7] * t177;
        const V t469 = t467 - t468;
        const V t470 = c[8] * t223;
        const V t471 = c[9] * t222;
        const V t472 = t471 + t470;
        const V t473 = c[8] * t222;
        const V t474 = c[9] * t223;
        const V t475 = t473 - t474;
        const V t476 = c[8] * t449;
        const V t477 = c[9] * t448;
        const V t478 = t477 + t476;
        const V t479 = c[8] * t448;
        const V t480 = c[9] * t449;
        const V t481 = t479 - t480;
        const V t482 = c[10] * t443;
        const V t483 = c[11] * t442;
        const V t484 = t483 - t482;
        const V t485 = c[10] * t442;
        const V t486 = c[11] * t443;
        const V t487 = t486 + t485;
        const V t488 = c[10] * t217;
        const V t489 = c[11] * t216;
        const V t490 = t488 - t489;
        const V t491 = c[10] * t216;
        const V t492 = c[11] * t217;
        const V t493 = t492 + t491;
        const V t494 = c[12] * t179;
        const V t495 = c[13] * t178;
        const V t496 = t495 + t494;
        const V t497 = c[12] * t178;
        const V t498 = c[13] * t179;
        const V t499 = t497 - t498;
        const V t500 = c[12] * t405;
        const V t501 = c[13] * t404;
        const V t502 = t501 + t500;
        const V t503 = c[12] * t404;
        const V t504 = c[13] * t405;
        const V t505 = t503 - t504;
        const V t506 = c[31] * t363;
        const V t507 = c[32] * t362;
        const V t508 = t507 + t506;
        const V t509 = c[31] * t137;
        const V t510 = c[32] * t136;
        const V t511 = t510 + t509;
        const V t512 = c[14] * t171;
        const V t513 = c[15] * t170;
        const V t514 = t513 - t512;
        const V t515 = c[14] * t170;
        const V t516 = c[15] * t171;
        const V t517 = t516 + t515;
        const V t518 = c[14] * t397;
        const V t519 = c[15] * t396;
        const V t520 = t519 - t518;
        const V t521 = c[14] * t396;
        const V t522 = c[15] * t397;
        const V t523 = t522 + t521;
        const V t524 = c[16] * t447;
        const V t525 = c[17] * t446;
        const V t526 = t525 + t524;
        const V t527 = c[16] * t446;
        const V t528 = c[17] * t447;
        const V t529 = t528 - t527;
        const V t530 = c[16] * t221;
        const V t531 = c[17] * t220;
        const V t532 = t531 + t530;
        const V t533 = c[16] * t220;
        const V t534 = c[17] * t221;
        const V t535 = t533 - t534;
        const V t536 = c[18] * t219;
        const V t537 = c[19] * t218;
        const V t538 = t537 - t536;
        const V t539 = c[18] * t218;
        const V t540 = c[19] * t219;
        const V t541 = t540 + t539;
        const V t542 = c[18] * t445;
        const V t543 = c[19] * t444;
        const V t544 = t543 - t542;
        const V t545 = c[18] * t444;
        const V t546 = c[19] * t445;
        const V t547 = t546 + t545;
        const V t548 = c[20] * t399;
        const V t549 = c[21] * t398;
        const V t550 = t549 + t548;
        const V t551 = c[20] * t398;
        const V t552 = c[21] * t399;
        const V t553 = t551 - t552;
        const V t554 = c[20] * t173;
        const V t555 = c[21] * t172;
        const V t556 = t555 + t554;
        const V t557 = c[20] * t172;
        const V t558 = c[21] * t173;
        const V t559 = t558 - t557;
        const V t560 = c[33] * t135;
        const V t561 = c[34] * t134;
        const V t562 = t561 + t560;
        const V t563 = c[33] * t361;
        const V t564 = c[34] * t360;
        const V t565 = t564 + t563;
        const V t566 = c[22] * t407;
        const V t567 = c[23] * t406;
        const V t568 = t567 + t566;
        const V t569 = c[22] * t406;
        const V t570 = c[23] * t407;
        const V t571 = t569 - t570;
        const V t572 = c[22] * t181;
        const V t573 = c[23] * t180;
        const V t574 = t573 + t572;
        const V t575 = c[22] * t180;
        const V t576 = c[23] * t181;
        const V t577 = t576 - t575;
        const V t578 = c[24] * t215;
        const V t579 = c[25] * t214;
        const V t580 = t578 - t579;
        const V t581 = c[24] * t214;
        const V t582 = c[25] * t215;
        const V t583 = t582 + t581;
        const V t584 = c[24] * t441;
        const V t585 = c[25] * t440;
        const V t586 = t584 - t585;
        const V t587 = c[24] * t440;
        const V t588 = c[25] * t441;
        const V t589 = t588 + t587;
        const V t590 = c[26] * t451;
        const V t591 = c[27] * t450;
        const V t592 = t591 + t590;
        const V t593 = c[26] * t450;
        const V t594 = c[27] * t451;
        const V t595 = t594 - t593;
        const V t596 = c[26] * t225;
        const V t597 = c[27] * t224;
        const V t598 = t597 + t596;
        const V t599 = c[26] * t224;
        const V t600 = c[27] * t225;
        const V t601 = t599 - t600;
        const V t602 = c[28] * t175;
        const V t603 = c[29] * t174;
        const V t604 = t603 + t602;
        const V t605 = c[28] * t174;
        const V t606 = c[29] * t175;
        const V t607 = t605 - t606;
        const V t608 = c[28] * t401;
        const V t609 = c[29] * t400;
        const V t610 = t609 + t608;
        const V t611 = c[28] * t400;
        const V t612 = c[29] * t401;
        const V t613 = t611 - t612;
        const V t614 = c[35] * t359;
        const V t615 = c[35] * t133;
        // spectrum block of 3
        const V t616 = t562 + t455;
        const V t617 = c[4] * t562;
        const V t618 = t455 - t617;
        const V t619 = c[36] * t134;
        const V t620 = c[37] * t135;
        const V t621 = t619 - t620;
        const V t622 = t618 - t621;
        const V t623 = t618 + t621;
        // complex block of 3
        const V t624 = t595 - t529;
        const V t625 = t526 - t592;
        const V t626 = t595 + t529;
        const V t627 = t592 + t526;
        const V t628 = t624 - t487;
        const V t629 = t625 + t484;
        const V t630 = c[4] * t624;
        const V t631 = t487 + t630;
        const V t632 = c[4] * t625;
        const V t633 = t484 - t632;
        const V t634 = c[5] * t626;
        const V t635 = c[5] * t627;
        const V t636 = t631 + t635;
        const V t637 = t633 - t634;
        const V t638 = t635 - t631;
        const V t639 = t633 + t634;
        // complex block of 3
        const V t640 = t607 + t499;
        const V t641 = t604 + t496;
        const V t642 = t499 - t607;
        const V t643 = t604 - t496;
        const V t644 = t517 - t640;
        const V t645 = t641 + t514;
        const V t646 = c[4] * t640;
        const V t647 = t646 + t517;
        const V t648 = c[4] * t641;
        const V t649 = t514 - t648;
        const V t650 = c[5] * t642;
        const V t651 = c[5] * t643;
        const V t652 = t647 + t651;
        const V t653 = t649 - t650;
        const V t654 = t647 - t651;
        const V t655 = t649 + t650;
        // complex block of 3
        const V t656 = t571 + t463;
        const V t657 = t460 - t568;
        const V t658 = t463 - t571;
        const V t659 = t568 + t460;
        const V t660 = t553 - t656;
        const V t661 = t657 + t550;
        const V t662 = c[4] * t656;
        const V t663 = t662 + t553;
        const V t664 = c[4] * t657;
        const V t665 = t550 - t664;
        const V t666 = c[5] * t658;
        const V t667 = c[5] * t659;
        const V t668 = t663 - t667;
        const V t669 = t665 - t666;
        const V t670 = t663 + t667;
        const V t671 = t665 + t666;
        // complex block of 3
        const V t672 = t541 + t475;
        const V t673 = t538 - t472;
        const V t674 = t541 - t475;
        const V t675 = t538 + t472;
        const V t676 = t672 + t583;
        const V t677 = t673 + t580;
        const V t678 = c[4] * t672;
        const V t679 = t583 - t678;
        const V t680 = c[4] * t673;
        const V t681 = t580 - t680;
        const V t682 = c[5] * t674;
        const V t683 = c[5] * t675;
        const V t684 = t679 + t683;
        const V t685 = t681 - t682;
        const V t686 = t679 - t683;
        const V t687 = t681 + t682;
        // spectrum block of 3
        const V t688 = t508 + t614;
        const V t689 = c[4] * t508;
        const V t690 = t614 - t689;
        const V t691 = c[38] * t362;
        const V t692 = c[39] * t363;
        const V t693 = t691 - t692;
        const V t694 = t690 + t693;
        const V t695 = t690 - t693;
        // spectrum block of 5
        const V t696 = t645 + t677;
        const V t697 = t696 + t616;
        const V t698 = c[0] * t645;
        const V t699 = c[1] * t677;
        const V t700 = t698 - t699;
        const V t701 = t700 + t616;
        const V t702 = c[2] * t644;
        const V t703 = c[3] * t676;
        const V t704 = t702 + t703;
        const V t705 = t701 - t704;
        const V t706 = t701 + t704;
        const V t707 = c[1] * t645;
        const V t708 = t616 - t707;
        const V t709 = c[0] * t677;
        const V t710 = t708 + t709;
        const V t711 = c[3] * t644;
        const V t712 = c[2] * t676;
        const V t713 = t711 - t712;
        const V t714 = t710 - t713;
        const V t715 = t710 + t713;
        // spectrum block of 5
        const V t716 = t661 + t629;
        const V t717 = t716 + t688;
        const V t718 = c[0] * t661;
        const V t719 = c[1] * t629;
        const V t720 = t718 - t719;
        const V t721 = t720 + t688;
        const V t722 = c[2] * t660;
        const V t723 = c[3] * t628;
        const V t724 = t722 + t723;
        const V t725 = t721 + t724;
        const V t726 = t721 - t724;
        const V t727 = c[1] * t661;
        const V t728 = t688 - t727;
        const V t729 = c[0] * t629;
        const V t730 = t728 + t729;
        const V t731 = c[3] * t660;
        const V t732 = c[2] * t628;
        const V t733 = t732 - t731;
        const V t734 = t730 - t733;
        const V t735 = t730 + t733;
        // spectrum block of 2
        const V t736 = t697 + t717;
        const V t737 = t697 - t717;
        // spectrum block of 2
        const V t738 = t705 + t725;
        const V t739 = t705 - t725;
        // spectrum block of 2
        const V t740 = t714 + t734;
        const V t741 = t714 - t734;
        // spectrum block of 2
        const V t742 = t715 + t735;
        const V t743 = t715 - t735;
        // spectrum block of 2
        const V t744 = t706 + t726;
        const V t745 = t706 - t726;
        // spectrum block of 5
        const V t746 = t653 + t685;
        const V t747 = t746 + t622;
        const V t748 = c[0] * t653;
        const V t749 = c[1] * t685;
        const V t750 = t748 - t749;
        const V t751 = t750 + t622;
        const V t752 = c[2] * t652;
        const V t753 = c[3] * t684;
        const V t754 = t752 + t753;
        const V t755 = t751 - t754;
        const V t756 = t751 + t754;
        const V t757 = c[1] * t653;
        const V t758 = t622 - t757;
        const V t759 = c[0] * t685;
        const V t760 = t758 + t759;
        const V t761 = c[3] * t652;
        const V t762 = c[2] * t684;
        const V t763 = t761 - t762;
        const V t764 = t760 - t763;
        const V t765 = t760 + t763;
        // spectrum block of 5
        const V t766 = t669 + t637;
        const V t767 = t766 + t694;
        const V t768 = c[0] * t669;
        const V t769 = c[1] * t637;
        const V t770 = t768 - t769;
        const V t771 = t770 + t694;
        const V t772 = c[2] * t668;
        const V t773 = c[3] * t636;
        const V t774 = t773 - t772;
        const V t775 = t771 - t774;
        const V t776 = t771 + t774;
        const V t777 = c[1] * t669;
        const V t778 = t694 - t777;
        const V t779 = c[0] * t637;
        const V t780 = t778 + t779;
        const V t781 = c[3] * t668;
        const V t782 = c[2] * t636;
        const V t783 = t781 + t782;
        const V t784 = t780 + t783;
        const V t785 = t780 - t783;
        // spectrum block of 2
        const V t786 = t747 + t767;
        const V t787 = t747 - t767;
        // spectrum block of 2
        const V t788 = t755 + t775;
        const V t789 = t755 - t775;
        // spectrum block of 2
        const V t790 = t764 + t784;
        const V t791 = t764 - t784;
        // spectrum block of 2
        const V t792 = t765 + t785;
        const V t793 = t765 - t785;
        // spectrum block of 2
        const V t794 = t756 + t776;
        const V t795 = t756 - t776;
        // spectrum block of 5
        const V t796 = t655 + t687;
        const V t797 = t796 + t623;
        const V t798 = c[0] * t655;
        const V t799 = c[1] * t687;
        const V t800 = t798 - t799;
        const V t801 = t800 + t623;
        const V t802 = c[2] * t654;
        const V t803 = c[3] * t686;
        const V t804 = t802 + t803;
        const V t805 = t801 - t804;
        const V t806 = t801 + t804;
        const V t807 = c[1] * t655;
        const V t808 = t623 - t807;
        const V t809 = c[0] * t687;
        const V t810 = t808 + t809;
        const V t811 = c[3] * t654;
        const V t812 = c[2] * t686;
        const V t813 = t811 - t812;
        const V t814 = t810 - t813;
        const V t815 = t810 + t813;
        // spectrum block of 5
        const V t816 = t671 + t639;
        const V t817 = t816 + t695;
        const V t818 = c[0] * t671;
        const V t819 = c[1] * t639;
        const V t820 = t818 - t819;
        const V t821 = t820 + t695;
        const V t822 = c[2] * t670;
        const V t823 = c[3] * t638;
        const V t824 = t822 + t823;
        const V t825 = t821 + t824;
        const V t826 = t821 - t824;
        const V t827 = c[1] * t671;
        const V t828 = t695 - t827;
        const V t829 = c[0] * t639;
        const V t830 = t828 + t829;
        const V t831 = c[3] * t670;
        const V t832 = c[2] * t638;
        const V t833 = t832 - t831;
        const V t834 = t830 - t833;
        const V t835 = t830 + t833;
        // spectrum block of 2
        const V t836 = t797 + t817;
        const V t837 = t797 - t817;
        // spectrum block of 2
        const V t838 = t805 + t825;
        const V t839 = t805 - t825;
        // spectrum block of 2
        const V t840 = t814 + t834;
        const V t841 = t814 - t834;
        // spectrum block of 2
        const V t842 = t815 + t835;
        const V t843 = t815 - t835;
        // spectrum block of 2
        const V t844 = t806 + t826;
        const V t845 = t806 - t826;
        // spectrum block of 3
        const V t846 = t565 + t457;
        const V t847 = c[4] * t565;
        const V t848 = t457 - t847;
        const V t849 = c[36] * t360;
        const V t850 = c[37] * t361;
        const V t851 = t849 - t850;
        const V t852 = t848 - t851;
        const V t853 = t848 + t851;
        // complex block of 3
        const V t854 = t601 - t535;
        const V t855 = t598 - t532;
        const V t856 = t601 + t535;
        const V t857 = t598 + t532;
        const V t858 = t854 + t493;
        const V t859 = t855 + t490;
        const V t860 = c[4] * t854;
        const V t861 = t493 - t860;
        const V t862 = c[4] * t855;
        const V t863 = t490 - t862;
        const V t864 = c[5] * t856;
        const V t865 = c[5] * t857;
        const V t866 = t861 + t865;
        const V t867 = t863 - t864;
        const V t868 = t861 - t865;
        const V t869 = t863 + t864;
        // complex block of 3
        const V t870 = t613 + t505;
        const V t871 = t610 + t502;
        const V t872 = t505 - t613;
        const V t873 = t610 - t502;
        const V t874 = t523 - t870;
        const V t875 = t871 + t520;
        const V t876 = c[4] * t870;
        const V t877 = t876 + t523;
        const V t878 = c[4] * t871;
        const V t879 = t520 - t878;
        const V t880 = c[5] * t872;
        const V t881 = c[5] * t873;
        const V t882 = t877 + t881;
        const V t883 = t879 - t880;
        const V t884 = t877 - t881;
        const V t885 = t879 + t880;
        // complex block of 3
        const V t886 = t577 + t469;
        const V t887 = t574 - t466;
        const V t888 = t469 - t577;
        const V t889 = t574 + t466;
        const V t890 = t559 - t886;
        const V t891 = t887 - t556;
        const V t892 = c[4] * t886;
        const V t893 = t892 + t559;
        const V t894 = c[4] * t887;
        const V t895 = t556 + t894;
        const V t896 = c[5] * t888;
        const V t897 = c[5] * t889;
        const V t898 = t893 + t897;
        const V t899 = t895 + t896;
        const V t900 = t893 - t897;
        const V t901 = t896 - t895;
        // complex block of 3
        const V t902 = t547 + t481;
        const V t903 = t544 - t478;
        const V t904 = t547 - t481;
        const V t905 = t544 + t478;
        const V t906 = t902 + t589;
        const V t907 = t903 + t586;
        const V t908 = c[4] * t902;
        const V t909 = t589 - t908;
        const V t910 = c[4] * t903;
        const V t911 = t586 - t910;
        const V t912 = c[5] * t904;
        const V t913 = c[5] * t905;
        const V t914 = t909 + t913;
        const V t915 = t911 - t912;
        const V t916 = t909 - t913;
        const V t917 = t911 + t912;
        // spectrum block of 3
        const V t918 = t511 + t615;
        const V t919 = c[4] * t511;
        const V t920 = t919 - t615;
        const V t921 = c[39] * t137;
        const V t922 = c[38] * t136;
        const V t923 = t921 - t922;
        const V t924 = t920 + t923;
        const V t925 = t920 - t923;
        // spectrum block of 5
        const V t926 = t875 + t907;
        const V t927 = t926 + t846;
        const V t928 = c[0] * t875;
        const V t929 = c[1] * t907;
        const V t930 = t928 - t929;
        const V t931 = t930 + t846;
        const V t932 = c[2] * t874;
        const V t933 = c[3] * t906;
        const V t934 = t932 + t933;
        const V t935 = t931 - t934;
        const V t936 = t931 + t934;
        const V t937 = c[1] * t875;
        const V t938 = t846 - t937;
        const V t939 = c[0] * t907;
        const V t940 = t938 + t939;
        const V t941 = c[3] * t874;
        const V t942 = c[2] * t906;
        const V t943 = t941 - t942;
        const V t944 = t940 - t943;
        const V t945 = t940 + t943;
        // spectrum block of 5
        const V t946 = t891 + t859;
        const V t947 = t946 - t918;
        const V t948 = c[0] * t891;
        const V t949 = c[1] * t859;
        const V t950 = t948 - t949;
        const V t951 = t950 - t918;
        const V t952 = c[2] * t890;
        const V t953 = c[3] * t858;
        const V t954 = t952 + t953;
        const V t955 = t951 + t954;
        const V t956 = t951 - t954;
        const V t957 = c[1] * t891;
        const V t958 = t918 + t957;
        const V t959 = c[0] * t859;
        const V t960 = t959 - t958;
        const V t961 = c[3] * t890;
        const V t962 = c[2] * t858;
        const V t963 = t962 - t961;
        const V t964 = t960 - t963;
        const V t965 = t960 + t963;
        // spectrum block of 2
        const V t966 = t927 + t947;
        const V t967 = t927 - t947;
        // spectrum block of 2
        const V t968 = t935 + t955;
        const V t969 = t935 - t955;
        // spectrum block of 2
        const V t970 = t944 + t964;
        const V t971 = t944 - t964;
        // spectrum block of 2
        const V t972 = t945 + t965;
        const V t973 = t945 - t965;
        // spectrum block of 2
        const V t974 = t936 + t956;
        const V t975 = t936 - t956;
        // spectrum block of 5
        const V t976 = t883 + t915;
        const V t977 = t976 + t852;
        const V t978 = c[0] * t883;
        const V t979 = c[1] * t915;
        const V t980 = t978 - t979;
        const V t981 = t980 + t852;
        const V t982 = c[2] * t882;
        const V t983 = c[3] * t914;
        const V t984 = t982 + t983;
        const V t985 = t981 - t984;
        const V t986 = t981 + t984;
        const V t987 = c[1] * t883;
        const V t988 = t852 - t987;
        const V t989 = c[0] * t915;
        const V t990 = t988 + t989;
        const V t991 = c[3] * t882;
        const V t992 = c[2] * t914;
        const V t993 = t991 - t992;
        const V t994 = t990 - t993;
        const V t995 = t990 + t993;
        // spectrum block of 5
        const V t996 = t867 - t899;
        const V t997 = t996 + t924;
        const V t998 = c[0] * t899;
        const V t999 = t924 - t998;
        const V t1000 = c[1] * t867;
        const V t1001 = t999 - t1000;
        const V t1002 = c[2] * t898;
        const V t1003 = c[3] * t866;
        const V t1004 = t1002 + t1003;
        const V t1005 = t1001 + t1004;
        const V t1006 = t1001 - t1004;
        const V t1007 = c[1] * t899;
        const V t1008 = c[0] * t867;
        const V t1009 = t1007 + t1008;
        const V t1010 = t1009 + t924;
        const V t1011 = c[3] * t898;
        const V t1012 = c[2] * t866;
        const V t1013 = t1012 - t1011;
        const V t1014 = t1010 - t1013;
        const V t1015 = t1010 + t1013;
        // spectrum block of 2
        const V t1016 = t977 + t997;
        const V t1017 = t977 - t997;
        // spectrum block of 2
        const V t1018 = t985 + t1005;
        const V t1019 = t985 - t1005;
        // spectrum block of 2
        const V t1020 = t994 + t1014;
        const V t1021 = t994 - t1014;
        // spectrum block of 2
        const V t1022 = t995 + t1015;
        const V t1023 = t995 - t1015;
        // spectrum block of 2
        const V t1024 = t986 + t1006;
        const V t1025 = t986 - t1006;
        // spectrum block of 5
        const V t1026 = t885 + t917;
        const V t1027 = t1026 + t853;
        const V t1028 = c[0] * t885;
        const V t1029 = c[1] * t917;
        const V t1030 = t1028 - t1029;
        const V t1031 = t1030 + t853;
        const V t1032 = c[2] * t884;
        const V t1033 = c[3] * t916;
        const V t1034 = t1032 + t1033;
        const V t1035 = t1031 - t1034;
        const V t1036 = t1031 + t1034;
        const V t1037 = c[1] * t885;
        const V t1038 = t853 - t1037;
        const V t1039 = c[0] * t917;
        const V t1040 = t1038 + t1039;
        const V t1041 = c[3] * t884;
        const V t1042 = c[2] * t916;
        const V t1043 = t1041 - t1042;
        const V t1044 = t1040 - t1043;
        const V t1045 = t1040 + t1043;
        // spectrum block of 5
        const V t1046 = t901 + t869;
        const V t1047 = t1046 + t925;
        const V t1048 = c[0] * t901;
        const V t1049 = c[1] * t869;
        const V t1050 = t1048 - t1049;
        const V t1051 = t1050 + t925;
        const V t1052 = c[2] * t900;
        const V t1053 = c[3] * t868;
        const V t1054 = t1052 + t1053;
        const V t1055 = t1051 + t1054;
        const V t1056 = t1051 - t1054;
        const V t1057 = c[1] * t901;
        const V t1058 = t925 - t1057;
        const V t1059 = c[0] * t869;
        const V t1060 = t1058 + t1059;
        const V t1061 = c[3] * t900;
        const V t1062 = c[2] * t868;
        const V t1063 = t1062 - t1061;
        const V t1064 = t1060 - t1063;
        const V t1065 = t1060 + t1063;
        // spectrum block of 2
        const V t1066 = t1027 + t1047;
        const V t1067 = t1027 - t1047;
        // spectrum block of 2
        const V t1068 = t1035 + t1055;
        const V t1069 = t1035 - t1055;
        // spectrum block of 2
        const V t1070 = t1044 + t1064;
        const V t1071 = t1044 - t1064;
        // spectrum block of 2
        const V t1072 = t1045 + t1065;
        const V t1073 = t1045 - t1065;
        // spectrum block of 2
        const V t1074 = t1036 + t1056;
        const V t1075 = t1036 - t1056;
        // real block of 5
        const V x1r = io.re(1);
        const V x35r = io.re(35);
        const V t1076 = x1r + x35r;
        const V t1077 = x1r - x35r;
        const V x39r = io.re(39);
        const V x47r = io.re(47);
        const V t1078 = x39r + x47r;
        const V t1079 = x39r - x47r;
        const V t1080 = t1076 + t1078;
        const V x33r = io.re(33);
        const V t1081 = t1080 + x33r;
        const V t1082 = c[0] * t1076;
        const V t1083 = c[1] * t1078;
        const V t1084 = t1082 - t1083;
        const V t1085 = t1084 + x33r;
        const V t1086 = c[2] * t1077;
        const V t1087 = c[3] * t1079;
        const V t1088 = t1087 - t1086;
        const V t1089 = c[1] * t1076;
        const V t1090 = x33r - t1089;
        const V t1091 = c[0] * t1078;
        const V t1092 = t1090 + t1091;
        const V t1093 = c[3] * t1077;
        const V t1094 = c[2] * t1079;
        const V t1095 = t1093 + t1094;
        // real block of 5
        const V x57r = io.re(57);
        const V x11r = io.re(11);
        const V t1096 = x57r + x11r;
        const V t1097 = x57r - x11r;
        const V x53r = io.re(53);
        const V x13r = io.re(13);
        const V t1098 = x53r + x13r;
        const V t1099 = x53r - x13r;
        const V t1100 = t1096 + t1098;
        const V x21r = io.re(21);
        const V t1101 = t1100 + x21r;
        const V t1102 = c[0] * t1096;
        const V t1103 = c[1] * t1098;
        const V t1104 = t1102 - t1103;
        const V t1105 = t1104 + x21r;
        const V t1106 = c[2] * t1097;
        const V t1107 = c[3] * t1099;
        const V t1108 = t1107 - t1106;
        const V t1109 = c[1] * t1096;
        const V t1110 = x21r - t1109;
        const V t1111 = c[0] * t1098;
        const V t1112 = t1110 + t1111;
        const V t1113 = c[3] * t1097;
        const V t1114 = c[2] * t1099;
        const V t1115 = t1113 + t1114;
        // real block of 5
        const V x25r = io.re(25);
        const V x7r = io.re(7);
        const V t1116 = x25r + x7r;
        const V t1117 = x25r - x7r;
        const V x45r = io.re(45);
        const V x59r = io.re(59);
        const V t1118 = x45r + x59r;
        const V t1119 = x45r - x59r;
        const V t1120 = t1116 + t1118;
        const V x19r = io.re(19);
        const V t1121 = t1120 + x19r;
        const V t1122 = c[0] * t1116;
        const V t1123 = c[1] * t1118;
        const V t1124 = t1122 - t1123;
        const V t1125 = t1124 + x19r;
        const V t1126 = c[2] * t1117;
        const V t1127 = c[3] * t1119;
        const V t1128 = t1127 - t1126;
        const V t1129 = c[1] * t1116;
        const V t1130 = x19r - t1129;
        const V t1131 = c[0] * t1118;
        const V t1132 = t1130 + t1131;
        const V t1133 = c[3] * t1117;
        const V t1134 = c[2] * t1119;
        const V t1135 = t1133 + t1134;
        // real block of 5
        const V x61r = io.re(61);
        const V x27r = io.re(27);
        const V t1136 = x61r + x27r;
        const V t1137 = x61r - x27r;
        const V x23r = io.re(23);
        const V x15r = io.re(15);
        const V t1138 = x23r + x15r;
        const V t1139 = x23r - x15r;
        const V t1140 = t1136 + t1138;
        const V x29r = io.re(29);
        const V t1141 = t1140 + x29r;
        const V t1142 = c[0] * t1136;
        const V t1143 = c[1] * t1138;
        const V t1144 = t1142 - t1143;
        const V t1145 = t1144 + x29r;
        const V t1146 = c[2] * t1137;
        const V t1147 = c[3] * t1139;
        const V t1148 = t1147 - t1146;
        const V t1149 = c[1] * t1136;
        const V t1150 = x29r - t1149;
        const V t1151 = c[0] * t1138;
        const V t1152 = t1150 + t1151;
        const V t1153 = c[3] * t1137;
        const V t1154 = c[2] * t1139;
        const V t1155 = t1153 + t1154;
        // real block of 5
        const V x5r = io.re(5);
        const V x51r = io.re(51);
        const V t1156 = x5r + x51r;
        const V t1157 = x5r - x51r;
        const V x9r = io.re(9);
        const V x49r = io.re(49);
        const V t1158 = x9r + x49r;
        const V t1159 = x9r - x49r;
        const V t1160 = t1156 + t1158;
        const V x41r = io.re(41);
        const V t1161 = t1160 + x41r;
        const V t1162 = c[0] * t1156;
        const V t1163 = c[1] * t1158;
        const V t1164 = t1162 - t1163;
        const V t1165 = t1164 + x41r;
        const V t1166 = c[2] * t1157;
        const V t1167 = c[3] * t1159;
        const V t1168 = t1167 - t1166;
        const V t1169 = c[1] * t1156;
        const V t1170 = x41r - t1169;
        const V t1171 = c[0] * t1158;
        const V t1172 = t1170 + t1171;
        const V t1173 = c[3] * t1157;
        const V t1174 = c[2] * t1159;
        const V t1175 = t1173 + t1174;
        // real block of 5
        const V x37r = io.re(37);
        const V x55r = io.re(55);
        const V t1176 = x37r + x55r;
        const V t1177 = x37r - x55r;
        const V x17r = io.re(17);
        const V x3r = io.re(3);
        const V t1178 = x17r + x3r;
        const V t1179 = x17r - x3r;
        const V t1180 = t1176 + t1178;
        const V x43r = io.re(43);
        const V t1181 = t1180 + x43r;
        const V t1182 = c[0] * t1176;
        const V t1183 = c[1] * t1178;
        const V t1184 = t1182 - t1183;
        const V t1185 = t1184 + x43r;
        const V t1186 = c[2] * t1177;
        const V t1187 = c[3] * t1179;
        const V t1188 = t1187 - t1186;
        const V t1189 = c[1] * t1176;
        const V t1190 = x43r - t1189;
        const V t1191 = c[0] * t1178;
        const V t1192 = t1190 + t1191;
        const V t1193 = c[3] * t1177;
        const V t1194 = c[2] * t1179;
        const V t1195 = t1193 + t1194;
        // real block of 3
        const V t1196 = t1121 + t1161;
        const V t1197 = t1121 - t1161;
        const V t1198 = t1196 + t1081;
        const V t1199 = c[4] * t1196;
        const V t1200 = t1081 - t1199;
        const V t1201 = c[5] * t1197;
        // real block of 3
        const V t1202 = t1181 + t1101;
        const V t1203 = t1181 - t1101;
        const V t1204 = t1202 + t1141;
        const V t1205 = c[4] * t1202;
        const V t1206 = t1141 - t1205;
        const V t1207 = c[5] * t1203;
        // real block of 2
        const V t1208 = t1198 + t1204;
        const V t1209 = t1198 - t1204;
        // complex block of 2
        const V t1210 = t1200 + t1206;
        const V t1211 = t1201 + t1207;
        const V t1212 = t1200 - t1206;
        const V t1213 = t1207 - t1201;
        // complex block of 3
        const V t1214 = t1125 + t1165;
        const V t1215 = t1128 + t1168;
        const V t1216 = t1125 - t1165;
        const V t1217 = t1128 - t1168;
        const V t1218 = t1214 + t1085;
        const V t1219 = t1215 + t1088;
        const V t1220 = c[4] * t1214;
        const V t1221 = t1085 - t1220;
        const V t1222 = c[4] * t1215;
        const V t1223 = t1088 - t1222;
        const V t1224 = c[5] * t1216;
        const V t1225 = c[5] * t1217;
        const V t1226 = t1221 + t1225;
        const V t1227 = t1223 - t1224;
        const V t1228 = t1221 - t1225;
        const V t1229 = t1223 + t1224;
        // complex block of 3
        const V t1230 = t1185 + t1105;
        const V t1231 = t1188 + t1108;
        const V t1232 = t1185 - t1105;
        const V t1233 = t1188 - t1108;
        const V t1234 = t1230 + t1145;
        const V t1235 = t1231 + t1148;
        const V t1236 = c[4] * t1230;
        const V t1237 = t1145 - t1236;
        const V t1238 = c[4] * t1231;
        const V t1239 = t1148 - t1238;
        const V t1240 = c[5] * t1232;
        const V t1241 = c[5] * t1233;
        const V t1242 = t1237 + t1241;
        const V t1243 = t1239 - t1240;
        const V t1244 = t1237 - t1241;
        const V t1245 = t1239 + t1240;
        // complex block of 2
        const V t1246 = t1218 + t1234;
        const V t1247 = t1219 + t1235;
        const V t1248 = t1218 - t1234;
        const V t1249 = t1219 - t1235;
        // complex block of 2
        const V t1250 = t1226 + t1242;
        const V t1251 = t1227 + t1243;
        const V t1252 = t1226 - t1242;
        const V t1253 = t1227 - t1243;
        // complex block of 2
        const V t1254 = t1228 + t1244;
        const V t1255 = t1229 + t1245;
        const V t1256 = t1228 - t1244;
        const V t1257 = t1229 - t1245;
        // complex block of 3
        const V t1258 = t1132 + t1172;
        const V t1259 = t1135 + t1175;
        const V t1260 = t1132 - t1172;
        const V t1261 = t1175 - t1135;
        const V t1262 = t1258 + t1092;
        const V t1263 = t1259 + t1095;
        const V t1264 = c[4] * t1258;
        const V t1265 = t1092 - t1264;
        const V t1266 = c[4] * t1259;
        const V t1267 = t1266 - t1095;
        const V t1268 = c[5] * t1260;
        const V t1269 = c[5] * t1261;
        const V t1270 = t1265 + t1269;
        const V t1271 = t1267 - t1268;
        const V t1272 = t1265 - t1269;
        const V t1273 = t1267 + t1268;
        // complex block of 3
        const V t1274 = t1192 + t1112;
        const V t1275 = t1195 + t1115;
        const V t1276 = t1192 - t1112;
        const V t1277 = t1115 - t1195;
        const V t1278 = t1274 + t1152;
        const V t1279 = t1275 + t1155;
        const V t1280 = c[4] * t1274;
        const V t1281 = t1152 - t1280;
        const V t1282 = c[4] * t1275;
        const V t1283 = t1282 - t1155;
        const V t1284 = c[5] * t1276;
        const V t1285 = c[5] * t1277;
        const V t1286 = t1281 + t1285;
        const V t1287 = t1283 - t1284;
        const V t1288 = t1281 - t1285;
        const V t1289 = t1283 + t1284;
        // complex block of 2
        const V t1290 = t1262 + t1278;
        const V t1291 = t1263 + t1279;
        const V t1292 = t1262 - t1278;
        const V t1293 = t1279 - t1263;
        // complex block of 2
        const V t1294 = t1270 + t1286;
        const V t1295 = t1271 + t1287;
        const V t1296 = t1270 - t1286;
        const V t1297 = t1271 - t1287;
        // complex block of 2
        const V t1298 = t1272 + t1288;
        const V t1299 = t1273 + t1289;
        const V t1300 = t1272 - t1288;
        const V t1301 = t1273 - t1289;
        // real block of 5
        const V x1i = io.im(1);
        const V x35i = io.im(35);
        const V t1302 = x1i + x35i;
        const V t1303 = x1i - x35i;
        const V x39i = io.im(39);
        const V x47i = io.im(47);
        const V t1304 = x39i + x47i;
        const V t1305 = x39i - x47i;
        const V t1306 = t1302 + t1304;
        const V x33i = io.im(33);
        const V t1307 = t1306 + x33i;
        const V t1308 = c[0] * t1302;
        const V t1309 = c[1] * t1304;
        const V t1310 = t1308 - t1309;
        const V t1311 = t1310 + x33i;
        const V t1312 = c[2] * t1303;
        const V t1313 = c[3] * t1305;
        const V t1314 = t1313 - t1312;
        const V t1315 = c[1] * t1302;
        const V t1316 = x33i - t1315;
        const V t1317 = c[0] * t1304;
        const V t1318 = t1316 + t1317;
        const V t1319 = c[3] * t1303;
        const V t1320 = c[2] * t1305;
        const V t1321 = t1319 + t1320;
        // real block of 5
        const V x57i = io.im(57);
        const V x11i = io.im(11);
        const V t1322 = x57i + x11i;
        const V t1323 = x57i - x11i;
        const V x53i = io.im(53);
        const V x13i = io.im(13);
        const V t1324 = x53i + x13i;
        const V t1325 = x53i - x13i;
        const V t1326 = t1322 + t1324;
        const V x21i = io.im(21);
        const V t1327 = t1326 + x21i;
        const V t1328 = c[0] * t1322;
        const V t1329 = c[1] * t1324;
        const V t1330 = t1328 - t1329;
        const V t1331 = t1330 + x21i;
        const V t1332 = c[2] * t1323;
        const V t1333 = c[3] * t1325;
        const V t1334 = t1333 - t1332;
        const V t1335 = c[1] * t1322;
        const V t1336 = x21i - t1335;
        const V t1337 = c[0] * t1324;
        const V t1338 = t1336 + t1337;
        const V t1339 = c[3] * t1323;
        const V t1340 = c[2] * t1325;
        const V t1341 = t1339 + t1340;
        // real block of 5
        const V x25i = io.im(25);
        const V x7i = io.im(7);
        const V t1342 = x25i + x7i;
        const V t1343 = x25i - x7i;
        const V x45i = io.im(45);
        const V x59i = io.im(59);
        const V t1344 = x45i + x59i;
        const V t1345 = x45i - x59i;
        const V t1346 = t1342 + t1344;
        const V x19i = io.im(19);
        const V t1347 = t1346 + x19i;
        const V t1348 = c[0] * t1342;
        const V t1349 = c[1] * t1344;
        const V t1350 = t1348 - t1349;
        const V t1351 = t1350 + x19i;
        const V t1352 = c[2] * t1343;
        const V t1353 = c[3] * t1345;
        const V t1354 = t1353 - t1352;
        const V t1355 = c[1] * t1342;
        const V t1356 = x19i - t1355;
        const V t1357 = c[0] * t1344;
        const V t1358 = t1356 + t1357;
        const V t1359 = c[3] * t1343;
        const V t1360 = c[2] * t1345;
        const V t1361 = t1359 + t1360;
        // real block of 5
        const V x61i = io.im(61);
        const V x27i = io.im(27);
        const V t1362 = x61i + x27i;
        const V t1363 = x61i - x27i;
        const V x23i = io.im(23);
        const V x15i = io.im(15);
        const V t1364 = x23i + x15i;
        const V t1365 = x23i - x15i;
        const V t1366 = t1362 + t1364;
        const V x29i = io.im(29);
        const V t1367 = t1366 + x29i;
        const V t1368 = c[0] * t1362;
        const V t1369 = c[1] * t1364;
        const V t1370 = t1368 - t1369;
        const V t1371 = t1370 + x29i;
        const V t1372 = c[2] * t1363;
        const V t1373 = c[3] * t1365;
        const V t1374 = t1373 - t1372;
        const V t1375 = c[1] * t1362;
        const V t1376 = x29i - t1375;
        const V t1377 = c[0] * t1364;
        const V t1378 = t1376 + t1377;
        const V t1379 = c[3] * t1363;
        const V t1380 = c[2] * t1365;
        const V t1381 = t1379 + t1380;
        // real block of 5
        const V x5i = io.im(5);
        const V x51i = io.im(51);
        const V t1382 = x5i + x51i;
        const V t1383 = x5i - x51i;
        const V x9i = io.im(9);
        const V x49i = io.im(49);
        const V t1384 = x9i + x49i;
        const V t1385 = x9i - x49i;
        const V t1386 = t1382 + t1384;
        const V x41i = io.im(41);
        const V t1387 = t1386 + x41i;
        const V t1388 = c[0] * t1382;
        const V t1389 = c[1] * t1384;
        const V t1390 = t1388 - t1389;
        const V t1391 = t1390 + x41i;
        const V t1392 = c[2] * t1383;
        const V t1393 = c[3] * t1385;
        const V t1394 = t1393 - t1392;
        const V t1395 = c[1] * t1382;
        const V t1396 = x41i - t1395;
        const V t1397 = c[0] * t1384;
        const V t1398 = t1396 + t1397;
        const V t1399 = c[3] * t1383;
        const V t1400 = c[2] * t1385;
        const V t1401 = t1399 + t1400;
        // real block of 5
        const V x37i = io.im(37);
        const V x55i = io.im(55);
        const V t1402 = x37i + x55i;
        const V t1403 = x37i - x55i;
        const V x17i = io.im(17);
        const V x3i = io.im(3);
        const V t1404 = x17i + x3i;
        const V t1405 = x17i - x3i;
        const V t1406 = t1402 + t1404;
        const V x43i = io.im(43);
        const V t1407 = t1406 + x43i;
        const V t1408 = c[0] * t1402;
        const V t1409 = c[1] * t1404;
        const V t1410 = t1408 - t1409;
        const V t1411 = t1410 + x43i;
        const V t1412 = c[2] * t1403;
        const V t1413 = c[3] * t1405;
        const V t1414 = t1413 - t1412;
        const V t1415 = c[1] * t1402;
        const V t1416 = x43i - t1415;
        const V t1417 = c[0] * t1404;
        const V t1418 = t1416 + t1417;
        const V t1419 = c[3] * t1403;
        const V t1420 = c[2] * t1405;
        const V t1421 = t1419 + t1420;
        // real block of 3
        const V t1422 = t1347 + t1387;
        const V t1423 = t1347 - t1387;
        const V t1424 = t1422 + t1307;
        const V t1425 = c[4] * t1422;
        const V t1426 = t1307 - t1425;
        const V t1427 = c[5] * t1423;
        // real block of 3
        const V t1428 = t1407 + t1327;
        const V t1429 = t1407 - t1327;
        const V t1430 = t1428 + t1367;
        const V t1431 = c[4] * t1428;
        const V t1432 = t1367 - t1431;
        const V t1433 = c[5] * t1429;
        // real block of 2
        const V t1434 = t1424 + t1430;
        const V t1435 = t1424 - t1430;
        // complex block of 2
        const V t1436 = t1426 + t1432;
        const V t1437 = t1427 + t1433;
        const V t1438 = t1426 - t1432;
        const V t1439 = t1433 - t1427;
        // complex block of 3
        const V t1440 = t1351 + t1391;
        const V t1441 = t1354 + t1394;
        const V t1442 = t1351 - t1391;
        const V t1443 = t1354 - t1394;
        const V t1444 = t1440 + t1311;
        const V t1445 = t1441 + t1314;
        const V t1446 = c[4] * t1440;
        const V t1447 = t1311 - t1446;
        const V t1448 = c[4] * t1441;
        const V t1449 = t1314 - t1448;
        const V t1450 = c[5] * t1442;
        const V t1451 = c[5] * t1443;
        const V t1452 = t1447 + t1451;
        const V t1453 = t1449 - t1450;
        const V t1454 = t1447 - t1451;
        const V t1455 = t1449 + t1450;
        // complex block of 3
        const V t1456 = t1411 + t1331;
        const V t1457 = t1414 + t1334;
        const V t1458 = t1411 - t1331;
        const V t1459 = t1414 - t1334;
        const V t1460 = t1456 + t1371;
        const V t1461 = t1457 + t1374;
        const V t1462 = c[4] * t1456;
        const V t1463 = t1371 - t1462;
        const V t1464 = c[4] * t1457;
        const V t1465 = t1374 - t1464;
        const V t1466 = c[5] * t1458;
        const V t1467 = c[5] * t1459;
        const V t1468 = t1463 + t1467;
        const V t1469 = t1465 - t1466;
        const V t1470 = t1463 - t1467;
        const V t1471 = t1465 + t1466;
        // complex block of 2
        const V t1472 = t1444 + t1460;
        const V t1473 = t1445 + t1461;
        const V t1474 = t1444 - t1460;
        const V t1475 = t1445 - t1461;
        // complex block of 2
        const V t1476 = t1452 + t1468;
        const V t1477 = t1453 + t1469;
        const V t1478 = t1452 - t1468;
        const V t1479 = t1453 - t1469;
        // complex block of 2
        const V t1480 = t1454 + t1470;
        const V t1481 = t1455 + t1471;
        const V t1482 = t1454 - t1470;
        const V t1483 = t1455 - t1471;
        // complex block of 3
        const V t1484 = t1358 + t1398;
        const V t1485 = t1361 + t1401;
        const V t1486 = t1358 - t1398;
        const V t1487 = t1401 - t1361;
        const V t1488 = t1484 + t1318;
        const V t1489 = t1485 + t1321;
        const V t1490 = c[4] * t1484;
        const V t1491 = t1318 - t1490;
        const V t1492 = c[4] * t1485;
        const V t1493 = t1492 - t1321;
        const V t1494 = c[5] * t1486;
        const V t1495 = c[5] * t1487;
        const V t1496 = t1491 + t1495;
        const V t1497 = t1493 - t1494;
        const V t1498 = t1491 - t1495;
        const V t1499 = t1493 + t1494;
        // complex block of 3
        const V t1500 = t1418 + t1338;
        const V t1501 = t1421 + t1341;
        const V t1502 = t1418 - t1338;
        const V t1503 = t1341 - t1421;
        const V t1504 = t1500 + t1378;
        const V t1505 = t1501 + t1381;
        const V t1506 = c[4] * t1500;
        const V t1507 = t1378 - t1506;
        const V t1508 = c[4] * t1501;
        const V t1509 = t1508 - t1381;
        const V t1510 = c[5] * t1502;
        const V t1511 = c[5] * t1503;
        const V t1512 = t1507 + t1511;
        const V t1513 = t1509 - t1510;
        const V t1514 = t1507 - t1511;
        const V t1515 = t1509 + t1510;
        // complex block of 2
        const V t1516 = t1488 + t1504;
        const V t1517 = t1489 + t1505;
        const V t1518 = t1488 - t1504;
        const V t1519 = t1505 - t1489;
        // complex block of 2
        const V t1520 = t1496 + t1512;
        const V t1521 = t1497 + t1513;
        const V t1522 = t1496 - t1512;
        const V t1523 = t1497 - t1513;
        // complex block of 2
        const V t1524 = t1498 + t1514;
        const V t1525 = t1499 + t1515;
        const V t1526 = t1498 - t1514;
        const V t1527 = t1499 - t1515;
        // complex block of 31, multiplier 2
        const V x31r = io.re(31);
        const V t1528 = x31r + t1208;
        const V x31i = io.im(31);
        const V t1529 = x31i + t1434;
        const V t1530 = c[30] * t1208;
        const V t1531 = x31r - t1530;
        const V t1532 = c[30] * t1434;
        const V t1533 = x31i - t1532;
        const V t1534 = c[6] * t1479;
        const V t1535 = c[7] * t1478;
        const V t1536 = t1535 + t1534;
        const V t1537 = c[6] * t1478;
        const V t1538 = c[7] * t1479;
        const V t1539 = t1538 - t1537;
        const V t1540 = c[6] * t1253;
        const V t1541 = c[7] * t1252;
        const V t1542 = t1541 + t1540;
        const V t1543 = c[6] * t1252;
        const V t1544 = c[7] * t1253;
        const V t1545 = t1543 - t1544;
        const V t1546 = c[8] * t1299;
        const V t1547 = c[9] * t1298;
        const V t1548 = t1547 + t1546;
        const V t1549 = c[8] * t1298;
        const V t1550 = c[9] * t1299;
        const V t1551 = t1549 - t1550;
        const V t1552 = c[8] * t1525;
        const V t1553 = c[9] * t1524;
        const V t1554 = t1553 + t1552;
        const V t1555 = c[8] * t1524;
        const V t1556 = c[9] * t1525;
        const V t1557 = t1555 - t1556;
        const V t1558 = c[10] * t1519;
        const V t1559 = c[11] * t1518;
        const V t1560 = t1559 - t1558;
        const V t1561 = c[10] * t1518;
        const V t1562 = c[11] * t1519;
        const V t1563 = t1562 + t1561;
        const V t1564 = c[10] * t1293;
        const V t1565 = c[11] * t1292;
        const V t1566 = t1564 - t1565;
        const V t1567 = c[10] * t1292;
        const V t1568 = c[11] * t1293;
        const V t1569 = t1568 + t1567;
        const V t1570 = c[12] * t1255;
        const V t1571 = c[13] * t1254;
        const V t1572 = t1571 + t1570;
        const V t1573 = c[12] * t1254;
        const V t1574 = c[13] * t1255;
        const V t1575 = t1573 - t1574;
        const V t1576 = c[12] * t1481;
        const V t1577 = c[13] * t1480;
        const V t1578 = t1577 + t1576;
        const V t1579 = c[12] * t1480;
        const V t1580 = c[13] * t1481;
        const V t1581 = t1579 - t1580;
        const V t1582 = c[31] * t1439;
        const V t1583 = c[32] * t1438;
        const V t1584 = t1583 + t1582;
        const V t1585 = c[31] * t1213;
        const V t1586 = c[32] * t1212;
        const V t1587 = t1586 + t1585;
        const V t1588 = c[14] * t1247;
        const V t1589 = c[15] * t1246;
        const V t1590 = t1589 - t1588;
        const V t1591 = c[14] * t1246;
        const V t1592 = c[15] * t1247;
        const V t1593 = t1592 + t1591;
        const V t1594 = c[14] * t1473;
        const V t1595 = c[15] * t1472;
        const V t1596 = t1595 - t1594;
        const V t1597 = c[14] * t1472;
        const V t1598 = c[15] * t1473;
        const V t1599 = t1598 + t1597;
        const V t1600 = c[16] * t1523;
        const V t1601 = c[17] * t1522;
        const V t1602 = t1601 + t1600;
        const V t1603 = c[16] * t1522;
        const V t1604 = c[17] * t1523;
        const V t1605 = t1604 - t1603;
        const V t1606 = c[16] * t1297;
        const V t1607 = c[17] * t1296;
        const V t1608 = t1607 + t1606;
        const V t1609 = c[16] * t1296;
        const V t1610 = c[17] * t1297;
        const V t1611 = t1609 - t1610;
        const V t1612 = c[18] * t1295;
        const V t1613 = c[19] * t1294;
        const V t1614 = t1613 - t1612;
        const V t1615 = c[18] * t1294;
        const V t1616 = c[19] * t1295;
        const V t1617 = t1616 + t1615;
        const V t1618 = c[18] * t1521;
        const V t1619 = c[19] * t1520;
        const V t1620 = t1619 - t1618;
        const V t1621 = c[18] * t1520;
        const V t1622 = c[19] * t1521;
        const V t1623 = t1622 + t1621;
        const V t1624 = c[20] * t1475;
        const V t1625 = c[21] * t1474;
        const V t1626 = t1625 + t1624;
        const V t1627 = c[20] * t1474;
        const V t1628 = c[21] * t1475;
        const V t1629 = t1627 - t1628;
        const V t1630 = c[20] * t1249;
        const V t1631 = c[21] * t1248;
        const V t1632 = t1631 + t1630;
        const V t1633 = c[20] * t1248;
        const V t1634 = c[21] * t1249;
        const V t1635 = t1634 - t1633;
        const V t1636 = c[33] * t1211;
        const V t1637 = c[34] * t1210;
        const V t1638 = t1637 + t1636;
        const V t1639 = c[33] * t1437;
        const V t1640 = c[34] * t1436;
        const V t1641 = t1640 + t1639;
        const V t1642 = c[22] * t1483;
        const V t1643 = c[23] * t1482;
        const V t1644 = t1643 + t1642;
        const V t1645 = c[22] * t1482;
        const V t1646 = c[23] * t1483;
        const V t1647 = t1645 - t1646;
        const V t1648 = c[22] * t1257;
        const V t1649 = c[23] * t1256;
        const V t1650 = t1649 + t1648;
        const V t1651 = c[22] * t1256;
        const V t1652 = c[23] * t1257;
        const V t1653 = t1652 - t1651;
        const V t1654 = c[24] * t1291;
        const V t1655 = c[25] * t1290;
        const V t1656 = t1654 - t1655;
        const V t1657 = c[24] * t1290;
        const V t1658 = c[25] * t1291;
        const V t1659 = t1658 + t1657;
        const V t1660 = c[24] * t1517;
        const V t1661 = c[25] * t1516;
        const V t1662 = t1660 - t1661;
        const V t1663 = c[24] * t1516;
        const V t1664 = c[25] * t1517;
        const V t1665 = t1664 + t1663;
        const V t1666 = c[26] * t1527;
        const V t1667 = c[27] * t1526;
        const V t1668 = t1667 + t1666;
        const V t1669 = c[26] * t1526;
        const V t1670 = c[27] * t1527;
        const V t1671 = t1670 - t1669;
        const V t1672 = c[26] * t1301;
        const V t1673 = c[27] * t1300;
        const V t1674 = t1673 + t1672;
        const V t1675 = c[26] * t1300;
        const V t1676 = c[27] * t1301;
        const V t1677 = t1675 - t1676;
        const V t1678 = c[28] * t1251;
        const V t1679 = c[29] * t1250;
        const V t1680 = t1679 + t1678;
        const V t1681 = c[28] * t1250;
        const V t1682 = c[29] * t1251;
        const V t1683 = t1681 - t1682;
        const V t1684 = c[28] * t1477;
        const V t1685 = c[29] * t1476;
        const V t1686 = t1685 + t1684;
        const V t1687 = c[28] * t1476;
        const V t1688 = c[29] * t1477;
        const V t1689 = t1687 - t1688;
        const V t1690 = c[35] * t1435;
        const V t1691 = c[35] * t1209;
        // spectrum block of 3
        const V t1692 = t1638 + t1531;
        const V t1693 = c[4] * t1638;
        const V t1694 = t1531 - t1693;
        const V t1695 = c[36] * t1210;
        const V t1696 = c[37] * t1211;
        const V t1697 = t1695 - t1696;
        const V t1698 = t1694 - t1697;
        const V t1699 = t1694 + t1697;
        // complex block of 3
        const V t1700 = t1671 - t1605;
        const V t1701 = t1602 - t1668;
        const V t1702 = t1671 + t1605;
        const V t1703 = t1668 + t1602;
        const V t1704 = t1700 - t1563;
        const V t1705 = t1701 + t1560;
        const V t1706 = c[4] * t1700;
        const V t1707 = t1563 + t1706;
        const V t1708 = c[4] * t1701;
        const V t1709 = t1560 - t1708;
        const V t1710 = c[5] * t1702;
        const V t1711 = c[5] * t1703;
        const V t1712 = t1707 + t1711;
        const V t1713 = t1709 - t1710;
        const V t1714 = t1711 - t1707;
        const V t1715 = t1709 + t1710;
        // complex block of 3
        const V t1716 = t1683 + t1575;
        const V t1717 = t1680 + t1572;
        const V t1718 = t1575 - t1683;
        const V t1719 = t1680 - t1572;
        const V t1720 = t1593 - t1716;
        const V t1721 = t1717 + t1590;
        const V t1722 = c[4] * t1716;
        const V t1723 = t1722 + t1593;
        const V t1724 = c[4] * t1717;
        const V t1725 = t1590 - t1724;
        const V t1726 = c[5] * t1718;
        const V t1727 = c[5] * t1719;
        const V t1728 = t1723 + t1727;
        const V t1729 = t1725 - t1726;
        const V t1730 = t1723 - t1727;
        const V t1731 = t1725 + t1726;
        // complex block of 3
        const V t1732 = t1647 + t1539;
        const V t1733 = t1536 - t1644;
        const V t1734 = t1539 - t1647;
        const V t1735 = t1644 + t1536;
        const V t1736 = t1629 - t1732;
        const V t1737 = t1733 + t1626;
        const V t1738 = c[4] * t1732;
        const V t1739 = t1738 + t1629;
        const V t1740 = c[4] * t1733;
        const V t1741 = t1626 - t1740;
        const V t1742 = c[5] * t1734;
        const V t1743 = c[5] * t1735;
        const V t1744 = t1739 - t1743;
        const V t1745 = t1741 - t1742;
        const V t1746 = t1739 + t1743;
        const V t1747 = t1741 + t1742;
        // complex block of 3
        const V t1748 = t1617 + t1551;
        const V t1749 = t1614 - t1548;
        const V t1750 = t1617 - t1551;
        const V t1751 = t1614 + t1548;
        const V t1752 = t1748 + t1659;
        const V t1753 = t1749 + t1656;
        const V t1754 = c[4] * t1748;
        const V t1755 = t1659 - t1754;
        const V t1756 = c[4] * t1749;
        const V t1757 = t1656 - t1756;
        const V t1758 = c[5] * t1750;
        const V t1759 = c[5] * t1751;
        const V t1760 = t1755 + t1759;
        const V t1761 = t1757 - t1758;
        const V t1762 = t1755 - t1759;
        const V t1763 = t1757 + t1758;
        // spectrum block of 3
        const V t1764 = t1584 + t1690;
        const V t1765 = c[4] * t1584;
        const V t1766 = t1690 - t1765;
        const V t1767 = c[38] * t1438;
        const V t1768 = c[39] * t1439;
        const V t1769 = t1767 - t1768;
        const V t1770 = t1766 + t1769;
        const V t1771 = t1766 - t1769;
        // spectrum block of 5
        const V t1772 = t1721 + t1753;
        const V t1773 = t1772 + t1692;
        const V t1774 = c[0] * t1721;
        const V t1775 = c[1] * t1753;
        const V t1776 = t1774 - t1775;
        const V t1777 = t1776 + t1692;
        const V t1778 = c[2] * t1720;
        const V t1779 = c[3] * t1752;
        const V t1780 = t1778 + t1779;
        const V t1781 = t1777 - t1780;
        const V t1782 = t1777 + t1780;
        const V t1783 = c[1] * t1721;
        const V t1784 = t1692 - t1783;
        const V t1785 = c[0] * t1753;
        const V t1786 = t1784 + t1785;
        const V t1787 = c[3] * t1720;
        const V t1788 = c[2] * t1752;
        const V t1789 = t1787 - t1788;
        const V t1790 = t1786 - t1789;
        const V t1791 = t1786 + t1789;
        // spectrum block of 5
        const V t1792 = t1737 + t1705;
        const V t1793 = t1792 + t1764;
        const V t1794 = c[0] * t1737;
        const V t1795 = c[1] * t1705;
        const V t1796 = t1794 - t1795;
        const V t1797 = t1796 + t1764;
        const V t1798 = c[2] * t1736;
        const V t1799 = c[3] * t1704;
        const V t1800 = t1798 + t1799;
        const V t1801 = t1797 + t1800;
        const V t1802 = t1797 - t1800;
        const V t1803 = c[1] * t1737;
        const V t1804 = t1764 - t1803;
        const V t1805 = c[0] * t1705;
        const V t1806 = t1804 + t1805;
        const V t1807 = c[3] * t1736;
        const V t1808 = c[2] * t1704;
        const V t1809 = t1808 - t1807;
        const V t1810 = t1806 - t1809;
        const V t1811 = t1806 + t1809;
        // spectrum block of 2
        const V t1812 = t1773 + t1793;
        const V t1813 = t1773 - t1793;
        // spectrum block of 2
        const V t1814 = t1781 + t1801;
        const V t1815 = t1781 - t1801;
        // spectrum block of 2
        const V t1816 = t1790 + t1810;
        const V t1817 = t1790 - t1810;
        // spectrum block of 2
        const V t1818 = t1791 + t1811;
        const V t1819 = t1791 - t1811;
        // spectrum block of 2
        const V t1820 = t1782 + t1802;
        const V t1821 = t1782 - t1802;
        // spectrum block of 5
        const V t1822 = t1729 + t1761;
        const V t1823 = t1822 + t1698;
        const V t1824 = c[0] * t1729;
        const V t1825 = c[1] * t1761;
        const V t1826 = t1824 - t1825;
        const V t1827 = t1826 + t1698;
        const V t1828 = c[2] * t1728;
        const V t1829 = c[3] * t1760;
        const V t1830 = t1828 + t1829;
        const V t1831 = t1827 - t1830;
        const V t1832 = t1827 + t1830;
        const V t1833 = c[1] * t1729;
        const V t1834 = t1698 - t1833;
        const V t1835 = c[0] * t1761;
        const V t1836 = t1834 + t1835;
        const V t1837 = c[3] * t1728;
        const V t1838 = c[2] * t1760;
        const V t1839 = t1837 - t1838;
        const V t1840 = t1836 - t1839;
        const V t1841 = t1836 + t1839;
        // spectrum block of 5
        const V t1842 = t1745 + t1713;
        const V t1843 = t1842 + t1770;
        const V t1844 = c[0] * t1745;
        const V t1845 = c[1] * t1713;
        const V t1846 = t1844 - t1845;
        const V t1847 = t1846 + t1770;
        const V t1848 = c[2] * t1744;
        const V t1849 = c[3] * t1712;
        const V t1850 = t1849 - t1848;
        const V t1851 = t1847 - t1850;
        const V t1852 = t1847 + t1850;
        const V t1853 = c[1] * t1745;
        const V t1854 = t1770 - t1853;
        const V t1855 = c[0] * t1713;
        const V t1856 = t1854 + t1855;
        const V t1857 = c[3] * t1744;
        const V t1858 = c[2] * t1712;
        const V t1859 = t1857 + t1858;
        const V t1860 = t1856 + t1859;
        const V t1861 = t1856 - t1859;
        // spectrum block of 2
        const V t1862 = t1823 + t1843;
        const V t1863 = t1823 - t1843;
        // spectrum block of 2
        const V t1864 = t1831 + t1851;
        const V t1865 = t1831 - t1851;
        // spectrum block of 2
        const V t1866 = t1840 + t1860;
        const V t1867 = t1840 - t1860;
        // spectrum block of 2
        const V t1868 = t1841 + t1861;
        const V t1869 = t1841 - t1861;
        // spectrum block of 2
        const V t1870 = t1832 + t1852;
        const V t1871 = t1832 - t1852;
        // spectrum block of 5
        const V t1872 = t1731 + t1763;
        const V t1873 = t1872 + t1699;
        const V t1874 = c[0] * t1731;
        const V t1875 = c[1] * t1763;
        const V t1876 = t1874 - t1875;
        const V t1877 = t1876 + t1699;
        const V t1878 = c[2] * t1730;
        const V t1879 = c[3] * t1762;
        const V t1880 = t1878 + t1879;
        const V t1881 = t1877 - t1880;
        const V t1882 = t1877 + t1880;
        const V t1883 = c[1] * t1731;
        const V t1884 = t1699 - t1883;
        const V t1885 = c[0] * t1763;
        const V t1886 = t1884 + t1885;
        const V t1887 = c[3] * t1730;
        const V t1888 = c[2] * t1762;
        const V t1889 = t1887 - t1888;
        const V t1890 = t1886 - t1889;
        const V t1891 = t1886 + t1889;
        // spectrum block of 5
        const V t1892 = t1747 + t1715;
        const V t1893 = t1892 + t1771;
        const V t1894 = c[0] * t1747;
        const V t1895 = c[1] * t1715;
        const V t1896 = t1894 - t1895;
        const V t1897 = t1896 + t1771;
        const V t1898 = c[2] * t1746;
        const V t1899 = c[3] * t1714;
        const V t1900 = t1898 + t1899;
        const V t1901 = t1897 + t1900;
        const V t1902 = t1897 - t1900;
        const V t1903 = c[1] * t1747;
        const V t1904 = t1771 - t1903;
        const V t1905 = c[0] * t1715;
        const V t1906 = t1904 + t1905;
        const V t1907 = c[3] * t1746;
        const V t1908 = c[2] * t1714;
        const V t1909 = t1908 - t1907;
        const V t1910 = t1906 - t1909;
        const V t1911 = t1906 + t1909;
        // spectrum block of 2
        const V t1912 = t1873 + t1893;
        const V t1913 = t1873 - t1893;
        // spectrum block of 2
        const V t1914 = t1881 + t1901;
        const V t1915 = t1881 - t1901;
        // spectrum block of 2
        const V t1916 = t1890 + t1910;
        const V t1917 = t1890 - t1910;
        // spectrum block of 2
        const V t1918 = t1891 + t1911;
        const V t1919 = t1891 - t1911;
        // spectrum block of 2
        const V t1920 = t1882 + t1902;
        const V t1921 = t1882 - t1902;
        // spectrum block of 3
        const V t1922 = t1641 + t1533;
        const V t1923 = c[4] * t1641;
        const V t1924 = t1533 - t1923;
        const V t1925 = c[36] * t1436;
        const V t1926 = c[37] * t1437;
        const V t1927 = t1925 - t1926;
        const V t1928 = t1924 - t1927;
        const V t1929 = t1924 + t1927;
        // complex block of 3
        const V t1930 = t1677 - t1611;
        const V t1931 = t1674 - t1608;
        const V t1932 = t1677 + t1611;
        const V t1933 = t1674 + t1608;
        const V t1934 = t1930 + t1569;
        const V t1935 = t1931 + t1566;
        const V t1936 = c[4] * t1930;
        const V t1937 = t1569 - t1936;
        const V t1938 = c[4] * t1931;
        const V t1939 = t1566 - t1938;
        const V t1940 = c[5] * t1932;
        const V t1941 = c[5] * t1933;
        const V t1942 = t1937 + t1941;
        const V t1943 = t1939 - t1940;
        const V t1944 = t1937 - t1941;
        const V t1945 = t1939 + t1940;
        // complex block of 3
        const V t1946 = t1689 + t1581;
        const V t1947 = t1686 + t1578;
        const V t1948 = t1581 - t1689;
        const V t1949 = t1686 - t1578;
        const V t1950 = t1599 - t1946;
        const V t1951 = t1947 + t1596;
        const V t1952 = c[4] * t1946;
        const V t1953 = t1952 + t1599;
        const V t1954 = c[4] * t1947;
        const V t1955 = t1596 - t1954;
        const V t1956 = c[5] * t1948;
        const V t1957 = c[5] * t1949;
        const V t1958 = t1953 + t1957;
        const V t1959 = t1955 - t1956;
        const V t1960 = t1953 - t1957;
        const V t1961 = t1955 + t1956;
        // complex block of 3
        const V t1962 = t1653 + t1545;
        const V t1963 = t1650 - t1542;
        const V t1964 = t1545 - t1653;
        const V t1965 = t1650 + t1542;
        const V t1966 = t1635 - t1962;
        const V t1967 = t1963 - t1632;
        const V t1968 = c[4] * t1962;
        const V t1969 = t1968 + t1635;
        const V t1970 = c[4] * t1963;
        const V t1971 = t1632 + t1970;
        const V t1972 = c[5] * t1964;
        const V t1973 = c[5] * t1965;
        const V t1974 = t1969 + t1973;
        const V t1975 = t1971 + t1972;
        const V t1976 = t1969 - t1973;
        const V t1977 = t1972 - t1971;
        // complex block of 3
        const V t1978 = t1623 + t1557;
        const V t1979 = t1620 - t1554;
        const V t1980 = t1623 - t1557;
        const V t1981 = t1620 + t1554;
        const V t1982 = t1978 + t1665;
        const V t1983 = t1979 + t1662;
        const V t1984 = c[4] * t1978;
        const V t1985 = t1665 - t1984;
        const V t1986 = c[4] * t1979;
        const V t1987 = t1662 - t1986;
        const V t1988 = c[5] * t1980;
        const V t1989 = c[5] * t1981;
        const V t1990 = t1985 + t1989;
        const V t1991 = t1987 - t1988;
        const V t1992 = t1985 - t1989;
        const V t1993 = t1987 + t1988;
        // spectrum block of 3
        const V t1994 = t1587 + t1691;
        const V t1995 = c[4] * t1587;
        const V t1996 = t1995 - t1691;
        const V t1997 = c[39] * t1213;
        const V t1998 = c[38] * t1212;
        const V t1999 = t1997 - t1998;
        const V t2000 = t1996 + t1999;
        const V t2001 = t1996 - t1999;
        // spectrum block of 5
        const V t2002 = t1951 + t1983;
        const V t2003 = t2002 + t1922;
        const V t2004 = c[0] * t1951;
        const V t2005 = c[1] * t1983;
        const V t2006 = t2004 - t2005;
        const V t2007 = t2006 + t1922;
        const V t2008 = c[2] * t1950;
        const V t2009 = c[3] * t1982;
        const V t2010 = t2008 + t2009;
        const V t2011 = t2007 - t2010;
        const V t2012 = t2007 + t2010;
        const V t2013 = c[1] * t1951;
        const V t2014 = t1922 - t2013;
        const V t2015 = c[0] * t1983;
        const V t2016 = t2014 + t2015;
        const V t2017 = c[3] * t1950;
        const V t2018 = c[2] * t1982;
        const V t2019 = t2017 - t2018;
        const V t2020 = t2016 - t2019;
        const V t2021 = t2016 + t2019;
        // spectrum block of 5
        const V t2022 = t1967 + t1935;
        const V t2023 = t2022 - t1994;
        const V t2024 = c[0] * t1967;
        const V t2025 = c[1] * t1935;
        const V t2026 = t2024 - t2025;
        const V t2027 = t2026 - t1994;
        const V t2028 = c[2] * t1966;
        const V t2029 = c[3] * t1934;
        const V t2030 = t2028 + t2029;
        const V t2031 = t2027 + t2030;
        const V t2032 = t2027 - t2030;
        const V t2033 = c[1] * t1967;
        const V t2034 = t1994 + t2033;
        const V t2035 = c[0] * t1935;
        const V t2036 = t2035 - t2034;
        const V t2037 = c[3] * t1966;
        const V t2038 = c[2] * t1934;
        const V t2039 = t2038 - t2037;
        const V t2040 = t2036 - t2039;
        const V t2041 = t2036 + t2039;
        // spectrum block of 2
        const V t2042 = t2003 + t2023;
        const V t2043 = t2003 - t2023;
        // spectrum block of 2
        const V t2044 = t2011 + t2031;
        const V t2045 = t2011 - t2031;
        // spectrum block of 2
        const V t2046 = t2020 + t2040;
        const V t2047 = t2020 - t2040;
        // spectrum block of 2
        const V t2048 = t2021 + t2041;
        const V t2049 = t2021 - t2041;
        // spectrum block of 2
        const V t2050 = t2012 + t2032;
        const V t2051 = t2012 - t2032;
        // spectrum block of 5
        const V t2052 = t1959 + t1991;
        const V t2053 = t2052 + t1928;
        const V t2054 = c[0] * t1959;
        const V t2055 = c[1] * t1991;
        const V t2056 = t2054 - t2055;
        const V t2057 = t2056 + t1928;
        const V t2058 = c[2] * t1958;
        const V t2059 = c[3] * t1990;
        const V t2060 = t2058 + t2059;
        const V t2061 = t2057 - t2060;
        const V t2062 = t2057 + t2060;
        const V t2063 = c[1] * t1959;
        const V t2064 = t1928 - t2063;
        const V t2065 = c[0] * t1991;
        const V t2066 = t2064 + t2065;
        const V t2067 = c[3] * t1958;
        const V t2068 = c[2] * t1990;
        const V t2069 = t2067 - t2068;
        const V t2070 = t2066 - t2069;
        const V t2071 = t2066 + t2069;
        // spectrum block of 5
        const V t2072 = t1943 - t1975;
        const V t2073 = t2072 + t2000;
        const V t2074 = c[0] * t1975;
        const V t2075 = t2000 - t2074;
        const V t2076 = c[1] * t1943;
        const V t2077 = t2075 - t2076;
        const V t2078 = c[2] * t1974;
        const V t2079 = c[3] * t1942;
        const V t2080 = t2078 + t2079;
        const V t2081 = t2077 + t2080;
        const V t2082 = t2077 - t2080;
        const V t2083 = c[1] * t1975;
        const V t2084 = c[0] * t1943;
        const V t2085 = t2083 + t2084;
        const V t2086 = t2085 + t2000;
        const V t2087 = c[3] * t1974;
        const V t2088 = c[2] * t1942;
        const V t2089 = t2088 - t2087;
        const V t2090 = t2086 - t2089;
        const V t2091 = t2086 + t2089;
        // spectrum block of 2
        const V t2092 = t2053 + t2073;
        const V t2093 = t2053 - t2073;
        // spectrum block of 2
        const V t2094 = t2061 + t2081;
        const V t2095 = t2061 - t2081;
        // spectrum block of 2
        const V t2096 = t2070 + t2090;
        const V t2097 = t2070 - t2090;
        // spectrum block of 2
        const V t2098 = t2071 + t2091;
        const V t2099 = t2071 - t2091;
        // spectrum block of 2
        const V t2100 = t2062 + t2082;
        const V t2101 = t2062 - t2082;
        // spectrum block of 5
        const V t2102 = t1961 + t1993;
        const V t2103 = t2102 + t1929;
        const V t2104 = c[0] * t1961;
        const V t2105 = c[1] * t1993;
        const V t2106 = t2104 - t2105;
        const V t2107 = t2106 + t1929;
        const V t2108 = c[2] * t1960;
        const V t2109 = c[3] * t1992;
        const V t2110 = t2108 + t2109;
        const V t2111 = t2107 - t2110;
        const V t2112 = t2107 + t2110;
        const V t2113 = c[1] * t1961;
        const V t2114 = t1929 - t2113;
        const V t2115 = c[0] * t1993;
        const V t2116 = t2114 + t2115;
        const V t2117 = c[3] * t1960;
        const V t2118 = c[2] * t1992;
        const V t2119 = t2117 - t2118;
        const V t2120 = t2116 - t2119;
        const V t2121 = t2116 + t2119;
        // spectrum block of 5
        const V t2122 = t1977 + t1945;
        const V t2123 = t2122 + t2001;
        const V t2124 = c[0] * t1977;
        const V t2125 = c[1] * t1945;
        const V t2126 = t2124 - t2125;
        const V t2127 = t2126 + t2001;
        const V t2128 = c[2] * t1976;
        const V t2129 = c[3] * t1944;
        const V t2130 = t2128 + t2129;
        const V t2131 = t2127 + t2130;
        const V t2132 = t2127 - t2130;
        const V t2133 = c[1] * t1977;
        const V t2134 = t2001 - t2133;
        const V t2135 = c[0] * t1945;
        const V t2136 = t2134 + t2135;
        const V t2137 = c[3] * t1976;
        const V t2138 = c[2] * t1944;
        const V t2139 = t2138 - t2137;
        const V t2140 = t2136 - t2139;
        const V t2141 = t2136 + t2139;
        // spectrum block of 2
        const V t2142 = t2103 + t2123;
        const V t2143 = t2103 - t2123;
        // spectrum block of 2
        const V t2144 = t2111 + t2131;
        const V t2145 = t2111 - t2131;
        // spectrum block of 2
        const V t2146 = t2120 + t2140;
        const V t2147 = t2120 - t2140;
        // spectrum block of 2
        const V t2148 = t2121 + t2141;
        const V t2149 = t2121 - t2141;
        // spectrum block of 2
        const V t2150 = t2112 + t2132;
        const V t2151 = t2112 - t2132;
        // complex block of 2
        const V t2152 = t452 + t1528;
        io.re(0, t2152);
        const V t2153 = t453 + t1529;
        io.im(0, t2153);
        const V t2154 = t452 - t1528;
        io.re(31, t2154);
        const V t2155 = t453 - t1529;
        io.im(31, t2155);
        // complex block of 2
        const V t2156 = t736 + t1812;
        io.re(2, t2156);
        const V t2157 = t966 + t2042;
        io.im(2, t2157);
        const V t2158 = t736 - t1812;
        io.re(33, t2158);
        const V t2159 = t966 - t2042;
        io.im(33, t2159);
        // complex block of 2
        const V t2160 = t738 + t1814;
        io.re(4, t2160);
        const V t2161 = t968 + t2044;
        io.im(4, t2161);
        const V t2162 = t738 - t1814;
        io.re(35, t2162);
        const V t2163 = t968 - t2044;
        io.im(35, t2163);
        // complex block of 2
        const V t2164 = t845 + t1921;
        io.re(6, t2164);
        const V t2165 = t1075 + t2151;
        io.im(6, t2165);
        const V t2166 = t845 - t1921;
        io.re(37, t2166);
        const V t2167 = t1075 - t2151;
        io.im(37, t2167);
        // complex block of 2
        const V t2168 = t740 + t1816;
        io.re(8, t2168);
        const V t2169 = t970 + t2046;
        io.im(8, t2169);
        const V t2170 = t740 - t1816;
        io.re(39, t2170);
        const V t2171 = t970 - t2046;
        io.im(39, t2171);
        // complex block of 2
        const V t2172 = t786 + t1862;
        io.re(10, t2172);
        const V t2173 = t1016 + t2092;
        io.im(10, t2173);
        const V t2174 = t786 - t1862;
        io.re(41, t2174);
        const V t2175 = t1016 - t2092;
        io.im(41, t2175);
        // complex block of 2
        const V t2176 = t837 + t1913;
        io.re(12, t2176);
        const V t2177 = t1067 + t2143;
        io.im(12, t2177);
        const V t2178 = t837 - t1913;
        io.re(43, t2178);
        const V t2179 = t1067 - t2143;
        io.im(43, t2179);
        // complex block of 2
        const V t2180 = t840 + t1916;
        io.re(14, t2180);
        const V t2181 = t1070 + t2146;
        io.im(14, t2181);
        const V t2182 = t840 - t1916;
        io.re(45, t2182);
        const V t2183 = t1070 - t2146;
        io.im(45, t2183);
        // complex block of 2
        const V t2184 = t742 + t1818;
        io.re(16, t2184);
        const V t2185 = t972 + t2048;
        io.im(16, t2185);
        const V t2186 = t742 - t1818;
        io.re(47, t2186);
        const V t2187 = t972 - t2048;
        io.im(47, t2187);
        // complex block of 2
        const V t2188 = t792 + t1868;
        io.re(18, t2188);
        const V t2189 = t1022 + t2098;
        io.im(18, t2189);
        const V t2190 = t792 - t1868;
        io.re(49, t2190);
        const V t2191 = t1022 - t2098;
        io.im(49, t2191);
        // complex block of 2
        const V t2192 = t788 + t1864;
        io.re(20, t2192);
        const V t2193 = t1018 + t2094;
        io.im(20, t2193);
        const V t2194 = t788 - t1864;
        io.re(51, t2194);
        const V t2195 = t1018 - t2094;
        io.im(51, t2195);
        // complex block of 2
        const V t2196 = t791 + t1867;
        io.re(22, t2196);
        const V t2197 = t1021 + t2097;
        io.im(22, t2197);
        const V t2198 = t791 - t1867;
        io.re(53, t2198);
        const V t2199 = t1021 - t2097;
        io.im(53, t2199);
        // complex block of 2
        const V t2200 = t839 + t1915;
        io.re(24, t2200);
        const V t2201 = t1069 + t2145;
        io.im(24, t2201);
        const V t2202 = t839 - t1915;
        io.re(55, t2202);
        const V t2203 = t1069 - t2145;
        io.im(55, t2203);
        // complex block of 2
        const V t2204 = t795 + t1871;
        io.re(26, t2204);
        const V t2205 = t1025 + t2101;
        io.im(26, t2205);
        const V t2206 = t795 - t1871;
        io.re(57, t2206);
        const V t2207 = t1025 - t2101;
        io.im(57, t2207);
        // complex block of 2
        const V t2208 = t842 + t1918;
        io.re(28, t2208);
        const V t2209 = t1072 + t2148;
        io.im(28, t2209);
        const V t2210 = t842 - t1918;
        io.re(59, t2210);
        const V t2211 = t1072 - t2148;
        io.im(59, t2211);
        // complex block of 2
        const V t2212 = t745 + t1821;
        io.re(30, t2212);
        const V t2213 = t975 + t2051;
        io.im(30, t2213);
        const V t2214 = t745 - t1821;
        io.re(61, t2214);
        const V t2215 = t975 - t2051;
        io.im(61, t2215);
        // complex block of 2
        const V t2216 = t744 + t1820;
        io.re(32, t2216);
        const V t2217 = t974 + t2050;
        io.im(32, t2217);
        const V t2218 = t744 - t1820;
        io.re(1, t2218);
        const V t2219 = t974 - t2050;
        io.im(1, t2219);
        // complex block of 2
        const V t2220 = t843 + t1919;
        io.re(34, t2220);
        const V t2221 = t1073 + t2149;
        io.im(34, t2221);
        const V t2222 = t843 - t1919;
        io.re(3, t2222);
        const V t2223 = t1073 - t2149;
        io.im(3, t2223);
        // complex block of 2
        const V t2224 = t794 + t1870;
        io.re(36, t2224);
        const V t2225 = t1024 + t2100;
        io.im(36, t2225);
        const V t2226 = t794 - t1870;
        io.re(5, t2226);
        const V t2227 = t1024 - t2100;
        io.im(5, t2227);
        // complex block of 2
        const V t2228 = t838 + t1914;
        io.re(38, t2228);
        const V t2229 = t1068 + t2144;
        io.im(38, t2229);
        const V t2230 = t838 - t1914;
        io.re(7, t2230);
        const V t2231 = t1068 - t2144;
        io.im(7, t2231);
        // complex block of 2
        const V t2232 = t790 + t1866;
        io.re(40, t2232);
        const V t2233 = t1020 + t2096;
        io.im(40, t2233);
        const V t2234 = t790 - t1866;
        io.re(9, t2234);
        const V t2235 = t1020 - t2096;
        io.im(9, t2235);
        // complex block of 2
        const V t2236 = t789 + t1865;
        io.re(42, t2236);
        const V t2237 = t1019 + t2095;
        io.im(42, t2237);
        const V t2238 = t789 - t1865;
        io.re(11, t2238);
        const V t2239 = t1019 - t2095;
        io.im(11, t2239);
        // complex block of 2
        const V t2240 = t793 + t1869;
        io.re(44, t2240);
        const V t2241 = t1023 + t2099;
        io.im(44, t2241);
        const V t2242 = t793 - t1869;
        io.re(13, t2242);
        const V t2243 = t1023 - t2099;
        io.im(13, t2243);
        // complex block of 2
        const V t2244 = t743 + t1819;
        io.re(46, t2244);
        const V t2245 = t973 + t2049;
        io.im(46, t2245);
        const V t2246 = t743 - t1819;
        io.re(15, t2246);
        const V t2247 = t973 - t2049;
        io.im(15, t2247);
        // complex block of 2
        const V t2248 = t841 + t1917;
        io.re(48, t2248);
        const V t2249 = t1071 + t2147;
        io.im(48, t2249);
        const V t2250 = t841 - t1917;
        io.re(17, t2250);
        const V t2251 = t1071 - t2147;
        io.im(17, t2251);
        // complex block of 2
        const V t2252 = t836 + t1912;
        io.re(50, t2252);
        const V t2253 = t1066 + t2142;
        io.im(50, t2253);
        const V t2254 = t836 - t1912;
        io.re(19, t2254);
        const V t2255 = t1066 - t2142;
        io.im(19, t2255);
        // complex block of 2
        const V t2256 = t787 + t1863;
        io.re(52, t2256);
        const V t2257 = t1017 + t2093;
        io.im(52, t2257);
        const V t2258 = t787 - t1863;
        io.re(21, t2258);
        const V t2259 = t1017 - t2093;
        io.im(21, t2259);
        // complex block of 2
        const V t2260 = t741 + t1817;
        io.re(54, t2260);
        const V t2261 = t971 + t2047;
        io.im(54, t2261);
        const V t2262 = t741 - t1817;
        io.re(23, t2262);
        const V t2263 = t971 - t2047;
        io.im(23, t2263);
        // complex block of 2
        const V t2264 = t844 + t1920;
        io.re(56, t2264);
        const V t2265 = t1074 + t2150;
        io.im(56, t2265);
        const V t2266 = t844 - t1920;
        io.re(25, t2266);
        const V t2267 = t1074 - t2150;
        io.im(25, t2267);
        // complex block of 2
        const V t2268 = t739 + t1815;
        io.re(58, t2268);
        const V t2269 = t969 + t2045;
        io.im(58, t2269);
        const V t2270 = t739 - t1815;
        io.re(27, t2270);
        const V t2271 = t969 - t2045;
        io.im(27, t2271);
        // complex block of 2
        const V t2272 = t737 + t1813;
        io.re(60, t2272);
        const V t2273 = t967 + t2043;
        io.im(60, t2273);
        const V t2274 = t737 - t1813;
        io.re(29, t2274);
        const V t2275 = t967 - t2043;
        io.im(29, t2275);
    }
};

}  // namespace zulg
