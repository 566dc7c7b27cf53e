// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 31.
// Complex DFT of 31 points, Rader block.
// 367 additions, 325 subtractions, 384 multiplications (446 with `scale`); 40 constants; 66 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<31> {
    static constexpr int steps = 1138;  // with `scale`
    static constexpr double inverseRoot = 0.1796053020267749;  // 1/sqrt(31), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.3690354256607867,  // c[6]: -P[1] of 31
        0.03988273291964531,  // c[7]: -Q[1] of 31
        0.0008245188371257438,  // c[8]: -Q[2] of 31
        0.3711833750943932,  // c[9]: P[2] of 31
        0.31134062892750347,  // c[10]: P[3] of 31
        0.20210094150400285,  // c[11]: Q[3] of 31
        0.36666699090448956,  // c[12]: Q[4] of 31
        0.057732967694591485,  // c[13]: P[4] of 31
        0.21370283071490567,  // c[14]: -Q[6] of 31
        0.30349444463155195,  // c[15]: P[6] of 31
        0.031416009621091305,  // c[16]: P[7] of 31
        0.36985241937462743,  // c[17]: -Q[7] of 31
        0.2957152178933792,  // c[18]: Q[8] of 31
        0.22434412781271781,  // c[19]: -P[8] of 31
        0.12276133942171241,  // c[20]: P[9] of 31
        0.35029620511956006,  // c[21]: -Q[9] of 31
        0.3676914951710987,  // c[22]: P[11] of 31
        0.05080100546858957,  // c[23]: -Q[11] of 31
        0.127938670558679,  // c[24]: Q[12] of 31
        0.3484386235098738,  // c[25]: P[12] of 31
        0.0592131223973046,  // c[26]: -P[13] of 31
        0.36643087194413576,  // c[27]: Q[13] of 31
        0.3215874570406464,  // c[28]: Q[14] of 31
        0.1853625778087589,  // c[29]: -P[14] of 31
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
        const V x16r = io.re(16);
        const V x2r = io.re(2);
        const V t0 = x16r + x2r;
        const V t1 = x16r - x2r;
        const V x4r = io.re(4);
        const V x8r = io.re(8);
        const V t2 = x4r + x8r;
        const V t3 = x4r - x8r;
        const V t4 = t0 + t2;
        const V x1r = io.re(1);
        const V t5 = t4 + x1r;
        const V t6 = c[0] * t0;
        const V t7 = c[1] * t2;
        const V t8 = t6 - t7;
        const V t9 = t8 + x1r;
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t11 - t10;
        const V t13 = c[1] * t0;
        const V t14 = x1r - t13;
        const V t15 = c[0] * t2;
        const V t16 = t14 + t15;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t3;
        const V t19 = t17 + t18;
        // real block of 5
        const V x13r = io.re(13);
        const V x21r = io.re(21);
        const V t20 = x13r + x21r;
        const V t21 = x13r - x21r;
        const V x11r = io.re(11);
        const V x22r = io.re(22);
        const V t22 = x11r + x22r;
        const V t23 = x11r - x22r;
        const V t24 = t20 + t22;
        const V x26r = io.re(26);
        const V t25 = t24 + x26r;
        const V t26 = c[0] * t20;
        const V t27 = c[1] * t22;
        const V t28 = t26 - t27;
        const V t29 = t28 + x26r;
        const V t30 = c[2] * t21;
        const V t31 = c[3] * t23;
        const V t32 = t31 - t30;
        const V t33 = c[1] * t20;
        const V t34 = x26r - t33;
        const V t35 = c[0] * t22;
        const V t36 = t34 + t35;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t23;
        const V t39 = t37 + t38;
        // real block of 5
        const V x28r = io.re(28);
        const V x19r = io.re(19);
        const V t40 = x28r + x19r;
        const V t41 = x28r - x19r;
        const V x7r = io.re(7);
        const V x14r = io.re(14);
        const V t42 = x7r + x14r;
        const V t43 = x7r - x14r;
        const V t44 = t40 + t42;
        const V x25r = io.re(25);
        const V t45 = t44 + x25r;
        const V t46 = c[0] * t40;
        const V t47 = c[1] * t42;
        const V t48 = t46 - t47;
        const V t49 = t48 + x25r;
        const V t50 = c[2] * t41;
        const V t51 = c[3] * t43;
        const V t52 = t51 - t50;
        const V t53 = c[1] * t40;
        const V t54 = x25r - t53;
        const V t55 = c[0] * t42;
        const V t56 = t54 + t55;
        const V t57 = c[3] * t41;
        const V t58 = c[2] * t43;
        const V t59 = t57 + t58;
        // real block of 5
        const V x15r = io.re(15);
        const V x29r = io.re(29);
        const V t60 = x15r + x29r;
        const V t61 = x15r - x29r;
        const V x27r = io.re(27);
        const V x23r = io.re(23);
        const V t62 = x27r + x23r;
        const V t63 = x27r - x23r;
        const V t64 = t60 + t62;
        const V x30r = io.re(30);
        const V t65 = t64 + x30r;
        const V t66 = c[0] * t60;
        const V t67 = c[1] * t62;
        const V t68 = t66 - t67;
        const V t69 = t68 + x30r;
        const V t70 = c[2] * t61;
        const V t71 = c[3] * t63;
        const V t72 = t71 - t70;
        const V t73 = c[1] * t60;
        const V t74 = x30r - t73;
        const V t75 = c[0] * t62;
        const V t76 = t74 + t75;
        const V t77 = c[3] * t61;
        const V t78 = c[2] * t63;
        const V t79 = t77 + t78;
        // real block of 5
        const V x18r = io.re(18);
        const V x10r = io.re(10);
        const V t80 = x18r + x10r;
        const V t81 = x18r - x10r;
        const V x20r = io.re(20);
        const V x9r = io.re(9);
        const V t82 = x20r + x9r;
        const V t83 = x20r - x9r;
        const V t84 = t80 + t82;
        const V x5r = io.re(5);
        const V t85 = t84 + x5r;
        const V t86 = c[0] * t80;
        const V t87 = c[1] * t82;
        const V t88 = t86 - t87;
        const V t89 = t88 + x5r;
        const V t90 = c[2] * t81;
        const V t91 = c[3] * t83;
        const V t92 = t91 - t90;
        const V t93 = c[1] * t80;
        const V t94 = x5r - t93;
        const V t95 = c[0] * t82;
        const V t96 = t94 + t95;
        const V t97 = c[3] * t81;
        const V t98 = c[2] * t83;
        const V t99 = t97 + t98;
        // real block of 5
        const V x3r = io.re(3);
        const V x12r = io.re(12);
        const V t100 = x3r + x12r;
        const V t101 = x3r - x12r;
        const V x24r = io.re(24);
        const V x17r = io.re(17);
        const V t102 = x24r + x17r;
        const V t103 = x24r - x17r;
        const V t104 = t100 + t102;
        const V x6r = io.re(6);
        const V t105 = t104 + x6r;
        const V t106 = c[0] * t100;
        const V t107 = c[1] * t102;
        const V t108 = t106 - t107;
        const V t109 = t108 + x6r;
        const V t110 = c[2] * t101;
        const V t111 = c[3] * t103;
        const V t112 = t111 - t110;
        const V t113 = c[1] * t100;
        const V t114 = x6r - t113;
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
        const V x16i = io.im(16);
        const V x2i = io.im(2);
        const V t226 = x16i + x2i;
        const V t227 = x16i - x2i;
        const V x4i = io.im(4);
        const V x8i = io.im(8);
        const V t228 = x4i + x8i;
        const V t229 = x4i - x8i;
        const V t230 = t226 + t228;
        const V x1i = io.im(1);
        const V t231 = t230 + x1i;
        const V t232 = c[0] * t226;
        const V t233 = c[1] * t228;
        const V t234 = t232 - t233;
        const V t235 = t234 + x1i;
        const V t236 = c[2] * t227;
        const V t237 = c[3] * t229;
        const V t238 = t237 - t236;
        const V t239 = c[1] * t226;
        const V t240 = x1i - t239;
        const V t241 = c[0] * t228;
        const V t242 = t240 + t241;
        const V t243 = c[3] * t227;
        const V t244 = c[2] * t229;
        const V t245 = t243 + t244;
        // real block of 5
        const V x13i = io.im(13);
        const V x21i = io.im(21);
        const V t246 = x13i + x21i;
        const V t247 = x13i - x21i;
        const V x11i = io.im(11);
        const V x22i = io.im(22);
        const V t248 = x11i + x22i;
        const V t249 = x11i - x22i;
        const V t250 = t246 + t248;
        const V x26i = io.im(26);
        const V t251 = t250 + x26i;
        const V t252 = c[0] * t246;
        const V t253 = c[1] * t248;
        const V t254 = t252 - t253;
        const V t255 = t254 + x26i;
        const V t256 = c[2] * t247;
        const V t257 = c[3] * t249;
        const V t258 = t257 - t256;
        const V t259 = c[1] * t246;
        const V t260 = x26i - t259;
        const V t261 = c[0] * t248;
        const V t262 = t260 + t261;
        const V t263 = c[3] * t247;
        const V t264 = c[2] * t249;
        const V t265 = t263 + t264;
        // real block of 5
        const V x28i = io.im(28);
        const V x19i = io.im(19);
        const V t266 = x28i + x19i;
        const V t267 = x28i - x19i;
        const V x7i = io.im(7);
        const V x14i = io.im(14);
        const V t268 = x7i + x14i;
        const V t269 = x7i - x14i;
        const V t270 = t266 + t268;
        const V x25i = io.im(25);
        const V t271 = t270 + x25i;
        const V t272 = c[0] * t266;
        const V t273 = c[1] * t268;
        const V t274 = t272 - t273;
        const V t275 = t274 + x25i;
        const V t276 = c[2] * t267;
        const V t277 = c[3] * t269;
        const V t278 = t277 - t276;
        const V t279 = c[1] * t266;
        const V t280 = x25i - t279;
        const V t281 = c[0] * t268;
        const V t282 = t280 + t281;
        const V t283 = c[3] * t267;
        const V t284 = c[2] * t269;
        const V t285 = t283 + t284;
        // real block of 5
        const V x15i = io.im(15);
        const V x29i = io.im(29);
        const V t286 = x15i + x29i;
        const V t287 = x15i - x29i;
        const V x27i = io.im(27);
        const V x23i = io.im(23);
        const V t288 = x27i + x23i;
        const V t289 = x27i - x23i;
        const V t290 = t286 + t288;
        const V x30i = io.im(30);
        const V t291 = t290 + x30i;
        const V t292 = c[0] * t286;
        const V t293 = c[1] * t288;
        const V t294 = t292 - t293;
        const V t295 = t294 + x30i;
        const V t296 = c[2] * t287;
        const V t297 = c[3] * t289;
        const V t298 = t297 - t296;
        const V t299 = c[1] * t286;
        const V t300 = x30i - t299;
        const V t301 = c[0] * t288;
        const V t302 = t300 + t301;
        const V t303 = c[3] * t287;
        const V t304 = c[2] * t289;
        const V t305 = t303 + t304;
        // real block of 5
        const V x18i = io.im(18);
        const V x10i = io.im(10);
        const V t306 = x18i + x10i;
        const V t307 = x18i - x10i;
        const V x20i = io.im(20);
        const V x9i = io.im(9);
        const V t308 = x20i + x9i;
        const V t309 = x20i - x9i;
        const V t310 = t306 + t308;
        const V x5i = io.im(5);
        const V t311 = t310 + x5i;
        const V t312 = c[0] * t306;
        const V t313 = c[1] * t308;
        const V t314 = t312 - t313;
        const V t315 = t314 + x5i;
        const V t316 = c[2] * t307;
        const V t317 = c[3] * t309;
        const V t318 = t317 - t316;
        const V t319 = c[1] * t306;
        const V t320 = x5i - t319;
        const V t321 = c[0] * t308;
        const V t322 = t320 + t321;
        const V t323 = c[3] * t307;
        const V t324 = c[2] * t309;
        const V t325 = t323 + t324;
        // real block of 5
        const V x3i = io.im(3);
        const V x12i = io.im(12);
        const V t326 = x3i + x12i;
        const V t327 = x3i - x12i;
        const V x24i = io.im(24);
        const V x17i = io.im(17);
        const V t328 = x24i + x17i;
        const V t329 = x24i - x17i;
        const V t330 = t326 + t328;
        const V x6i = io.im(6);
        const V t331 = t330 + x6i;
        const V t332 = c[0] * t326;
        const V t333 = c[1] * t328;
        const V t334 = t332 - t333;
        const V t335 = t334 + x6i;
        const V t336 = c[2] * t327;
        const V t337 = c[3] * t329;
        const V t338 = t337 - t336;
        const V t339 = c[1] * t326;
        const V t340 = x6i - t339;
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
        // complex block of 31
        const V x0r = io.re(0);
        const V t452 = x0r + t132;
        const V x0i = io.im(0);
        io.re(0, t452);
        const V t453 = x0i + t358;
        io.im(0, t453);
        const V t454 = c[30] * t132;
        const V t455 = x0r - t454;
        const V t456 = c[30] * t358;
        const V t457 = x0i - t456;
        const V t458 = c[6] * t403;
        const V t459 = c[7] * t402;
        const V t460 = t458 - t459;
        const V t461 = c[6] * t402;
        const V t462 = c[7] * t403;
        const V t463 = t462 + t461;
        const V t464 = c[6] * t177;
        const V t465 = c[7] * t176;
        const V t466 = t465 - t464;
        const V t467 = c[6] * t176;
        const V t468 = c[7] * t177;
        const V t469 = t468 + t467;
        const V t470 = c[8] * t223;
        const V t471 = c[9] * t222;
        const V t472 = t471 + t470;
        const V t473 = c[8] * t222;
        const V t474 = c[9] * t223;
        const V t475 = t474 - t473;
        const V t476 = c[8] * t449;
        const V t477 = c[9] * t448;
        const V t478 = t477 + t476;
        const V t479 = c[8] * t448;
        const V t480 = c[9] * t449;
        const V t481 = t480 - t479;
        const V t482 = c[10] * t443;
        const V t483 = c[11] * t442;
        const V t484 = t483 + t482;
        const V t485 = c[10] * t442;
        const V t486 = c[11] * t443;
        const V t487 = t485 - t486;
        const V t488 = c[10] * t217;
        const V t489 = c[11] * t216;
        const V t490 = t489 + t488;
        const V t491 = c[10] * t216;
        const V t492 = c[11] * t217;
        const V t493 = t492 - t491;
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
        const V t514 = t513 + t512;
        const V t515 = c[14] * t170;
        const V t516 = c[15] * t171;
        const V t517 = t516 - t515;
        const V t518 = c[14] * t397;
        const V t519 = c[15] * t396;
        const V t520 = t519 + t518;
        const V t521 = c[14] * t396;
        const V t522 = c[15] * t397;
        const V t523 = t522 - t521;
        const V t524 = c[16] * t447;
        const V t525 = c[17] * t446;
        const V t526 = t525 + t524;
        const V t527 = c[16] * t446;
        const V t528 = c[17] * t447;
        const V t529 = t527 - t528;
        const V t530 = c[16] * t221;
        const V t531 = c[17] * t220;
        const V t532 = t531 + t530;
        const V t533 = c[16] * t220;
        const V t534 = c[17] * t221;
        const V t535 = t534 - t533;
        const V t536 = c[18] * t219;
        const V t537 = c[19] * t218;
        const V t538 = t536 - t537;
        const V t539 = c[18] * t218;
        const V t540 = c[19] * t219;
        const V t541 = t540 + t539;
        const V t542 = c[18] * t445;
        const V t543 = c[19] * t444;
        const V t544 = t542 - t543;
        const V t545 = c[18] * t444;
        const V t546 = c[19] * t445;
        const V t547 = t546 + t545;
        const V t548 = c[20] * t399;
        const V t549 = c[21] * t398;
        const V t550 = t548 - t549;
        const V t551 = c[20] * t398;
        const V t552 = c[21] * t399;
        const V t553 = t552 + t551;
        const V t554 = c[20] * t173;
        const V t555 = c[21] * t172;
        const V t556 = t555 - t554;
        const V t557 = c[20] * t172;
        const V t558 = c[21] * t173;
        const V t559 = t558 + t557;
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
        const V t580 = t579 + t578;
        const V t581 = c[24] * t214;
        const V t582 = c[25] * t215;
        const V t583 = t581 - t582;
        const V t584 = c[24] * t441;
        const V t585 = c[25] * t440;
        const V t586 = t585 + t584;
        const V t587 = c[24] * t440;
        const V t588 = c[25] * t441;
        const V t589 = t587 - t588;
        const V t590 = c[26] * t451;
        const V t591 = c[27] * t450;
        const V t592 = t591 - t590;
        const V t593 = c[26] * t450;
        const V t594 = c[27] * t451;
        const V t595 = t594 + t593;
        const V t596 = c[26] * t225;
        const V t597 = c[27] * t224;
        const V t598 = t596 - t597;
        const V t599 = c[26] * t224;
        const V t600 = c[27] * t225;
        const V t601 = t600 + t599;
        const V t602 = c[28] * t175;
        const V t603 = c[29] * t174;
        const V t604 = t602 - t603;
        const V t605 = c[28] * t174;
        const V t606 = c[29] * t175;
        const V t607 = t606 + t605;
        const V t608 = c[28] * t401;
        const V t609 = c[29] * t400;
        const V t610 = t608 - t609;
        const V t611 = c[28] * t400;
        const V t612 = c[29] * t401;
        const V t613 = t612 + t611;
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
        const V t624 = t595 + t529;
        const V t625 = t592 - t526;
        const V t626 = t529 - t595;
        const V t627 = t592 + t526;
        const V t628 = t487 - t624;
        const V t629 = t625 + t484;
        const V t630 = c[4] * t624;
        const V t631 = t630 + t487;
        const V t632 = c[4] * t625;
        const V t633 = t484 - t632;
        const V t634 = c[5] * t626;
        const V t635 = c[5] * t627;
        const V t636 = t631 + t635;
        const V t637 = t633 - t634;
        const V t638 = t631 - t635;
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
        const V t656 = t463 - t571;
        const V t657 = t460 - t568;
        const V t658 = t571 + t463;
        const V t659 = t568 + t460;
        const V t660 = t656 + t553;
        const V t661 = t657 + t550;
        const V t662 = c[4] * t656;
        const V t663 = t553 - t662;
        const V t664 = c[4] * t657;
        const V t665 = t550 - t664;
        const V t666 = c[5] * t658;
        const V t667 = c[5] * t659;
        const V t668 = t663 - t667;
        const V t669 = t665 + t666;
        const V t670 = t663 + t667;
        const V t671 = t665 - t666;
        // complex block of 3
        const V t672 = t475 - t541;
        const V t673 = t538 + t472;
        const V t674 = t541 + t475;
        const V t675 = t538 - t472;
        const V t676 = t672 + t583;
        const V t677 = t673 + t580;
        const V t678 = c[4] * t672;
        const V t679 = t583 - t678;
        const V t680 = c[4] * t673;
        const V t681 = t580 - t680;
        const V t682 = c[5] * t674;
        const V t683 = c[5] * t675;
        const V t684 = t679 + t683;
        const V t685 = t681 + t682;
        const V t686 = t679 - t683;
        const V t687 = t681 - t682;
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
        io.re(1, t736);
        const V t737 = t697 - t717;
        io.re(30, t737);
        // spectrum block of 2
        const V t738 = t705 + t725;
        io.re(2, t738);
        const V t739 = t705 - t725;
        io.re(29, t739);
        // spectrum block of 2
        const V t740 = t714 + t734;
        io.re(4, t740);
        const V t741 = t714 - t734;
        io.re(27, t741);
        // spectrum block of 2
        const V t742 = t715 + t735;
        io.re(8, t742);
        const V t743 = t715 - t735;
        io.re(23, t743);
        // spectrum block of 2
        const V t744 = t706 + t726;
        io.re(16, t744);
        const V t745 = t706 - t726;
        io.re(15, t745);
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
        const V t774 = t772 + t773;
        const V t775 = t771 + t774;
        const V t776 = t771 - t774;
        const V t777 = c[1] * t669;
        const V t778 = t694 - t777;
        const V t779 = c[0] * t637;
        const V t780 = t778 + t779;
        const V t781 = c[3] * t668;
        const V t782 = c[2] * t636;
        const V t783 = t782 - t781;
        const V t784 = t780 - t783;
        const V t785 = t780 + t783;
        // spectrum block of 2
        const V t786 = t747 + t767;
        io.re(5, t786);
        const V t787 = t747 - t767;
        io.re(26, t787);
        // spectrum block of 2
        const V t788 = t755 + t775;
        io.re(10, t788);
        const V t789 = t755 - t775;
        io.re(21, t789);
        // spectrum block of 2
        const V t790 = t764 + t784;
        io.re(20, t790);
        const V t791 = t764 - t784;
        io.re(11, t791);
        // spectrum block of 2
        const V t792 = t765 + t785;
        io.re(9, t792);
        const V t793 = t765 - t785;
        io.re(22, t793);
        // spectrum block of 2
        const V t794 = t756 + t776;
        io.re(18, t794);
        const V t795 = t756 - t776;
        io.re(13, t795);
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
        io.re(25, t836);
        const V t837 = t797 - t817;
        io.re(6, t837);
        // spectrum block of 2
        const V t838 = t805 + t825;
        io.re(19, t838);
        const V t839 = t805 - t825;
        io.re(12, t839);
        // spectrum block of 2
        const V t840 = t814 + t834;
        io.re(7, t840);
        const V t841 = t814 - t834;
        io.re(24, t841);
        // spectrum block of 2
        const V t842 = t815 + t835;
        io.re(14, t842);
        const V t843 = t815 - t835;
        io.re(17, t843);
        // spectrum block of 2
        const V t844 = t806 + t826;
        io.re(28, t844);
        const V t845 = t806 - t826;
        io.re(3, t845);
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
        const V t855 = t598 + t532;
        const V t856 = t601 + t535;
        const V t857 = t598 - t532;
        const V t858 = t854 + t493;
        const V t859 = t855 - t490;
        const V t860 = c[4] * t854;
        const V t861 = t493 - t860;
        const V t862 = c[4] * t855;
        const V t863 = t490 + t862;
        const V t864 = c[5] * t856;
        const V t865 = c[5] * t857;
        const V t866 = t861 + t865;
        const V t867 = t863 + t864;
        const V t868 = t861 - t865;
        const V t869 = t864 - t863;
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
        const V t887 = t574 + t466;
        const V t888 = t469 - t577;
        const V t889 = t574 - t466;
        const V t890 = t886 + t559;
        const V t891 = t887 + t556;
        const V t892 = c[4] * t886;
        const V t893 = t892 - t559;
        const V t894 = c[4] * t887;
        const V t895 = t556 - t894;
        const V t896 = c[5] * t888;
        const V t897 = c[5] * t889;
        const V t898 = t893 + t897;
        const V t899 = t895 - t896;
        const V t900 = t893 - t897;
        const V t901 = t895 + t896;
        // complex block of 3
        const V t902 = t481 - t547;
        const V t903 = t544 + t478;
        const V t904 = t547 + t481;
        const V t905 = t544 - t478;
        const V t906 = t902 + t589;
        const V t907 = t903 + t586;
        const V t908 = c[4] * t902;
        const V t909 = t589 - t908;
        const V t910 = c[4] * t903;
        const V t911 = t586 - t910;
        const V t912 = c[5] * t904;
        const V t913 = c[5] * t905;
        const V t914 = t909 + t913;
        const V t915 = t911 + t912;
        const V t916 = t909 - t913;
        const V t917 = t911 - t912;
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
        const V t954 = t952 - t953;
        const V t955 = t951 - t954;
        const V t956 = t951 + t954;
        const V t957 = c[1] * t891;
        const V t958 = t918 + t957;
        const V t959 = c[0] * t859;
        const V t960 = t959 - t958;
        const V t961 = c[3] * t890;
        const V t962 = c[2] * t858;
        const V t963 = t961 + t962;
        const V t964 = t960 - t963;
        const V t965 = t960 + t963;
        // spectrum block of 2
        const V t966 = t927 + t947;
        io.im(1, t966);
        const V t967 = t927 - t947;
        io.im(30, t967);
        // spectrum block of 2
        const V t968 = t935 + t955;
        io.im(2, t968);
        const V t969 = t935 - t955;
        io.im(29, t969);
        // spectrum block of 2
        const V t970 = t944 + t964;
        io.im(4, t970);
        const V t971 = t944 - t964;
        io.im(27, t971);
        // spectrum block of 2
        const V t972 = t945 + t965;
        io.im(8, t972);
        const V t973 = t945 - t965;
        io.im(23, t973);
        // spectrum block of 2
        const V t974 = t936 + t956;
        io.im(16, t974);
        const V t975 = t936 - t956;
        io.im(15, t975);
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
        const V t996 = t899 - t867;
        const V t997 = t996 + t924;
        const V t998 = c[0] * t899;
        const V t999 = c[1] * t867;
        const V t1000 = t998 + t999;
        const V t1001 = t1000 + t924;
        const V t1002 = c[2] * t898;
        const V t1003 = c[3] * t866;
        const V t1004 = t1002 + t1003;
        const V t1005 = t1001 + t1004;
        const V t1006 = t1001 - t1004;
        const V t1007 = c[1] * t899;
        const V t1008 = t924 - t1007;
        const V t1009 = c[0] * t867;
        const V t1010 = t1008 - t1009;
        const V t1011 = c[3] * t898;
        const V t1012 = c[2] * t866;
        const V t1013 = t1012 - t1011;
        const V t1014 = t1010 - t1013;
        const V t1015 = t1010 + t1013;
        // spectrum block of 2
        const V t1016 = t977 + t997;
        io.im(5, t1016);
        const V t1017 = t977 - t997;
        io.im(26, t1017);
        // spectrum block of 2
        const V t1018 = t985 + t1005;
        io.im(10, t1018);
        const V t1019 = t985 - t1005;
        io.im(21, t1019);
        // spectrum block of 2
        const V t1020 = t994 + t1014;
        io.im(20, t1020);
        const V t1021 = t994 - t1014;
        io.im(11, t1021);
        // spectrum block of 2
        const V t1022 = t995 + t1015;
        io.im(9, t1022);
        const V t1023 = t995 - t1015;
        io.im(22, t1023);
        // spectrum block of 2
        const V t1024 = t986 + t1006;
        io.im(18, t1024);
        const V t1025 = t986 - t1006;
        io.im(13, t1025);
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
        io.im(25, t1066);
        const V t1067 = t1027 - t1047;
        io.im(6, t1067);
        // spectrum block of 2
        const V t1068 = t1035 + t1055;
        io.im(19, t1068);
        const V t1069 = t1035 - t1055;
        io.im(12, t1069);
        // spectrum block of 2
        const V t1070 = t1044 + t1064;
        io.im(7, t1070);
        const V t1071 = t1044 - t1064;
        io.im(24, t1071);
        // spectrum block of 2
        const V t1072 = t1045 + t1065;
        io.im(14, t1072);
        const V t1073 = t1045 - t1065;
        io.im(17, t1073);
        // spectrum block of 2
        const V t1074 = t1036 + t1056;
        io.im(28, t1074);
        const V t1075 = t1036 - t1056;
        io.im(3, t1075);
    }
};

}  // namespace zulg
