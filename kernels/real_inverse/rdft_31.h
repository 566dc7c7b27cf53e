// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 31.
// Inverse DFT to 31 real points, Rader 2, 3, 5.
// 170 additions, 146 subtractions, 224 multiplications (255 with `scale`); 37 constants; 38 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<31> {
    static constexpr int steps = 571;  // with `scale`
    static constexpr double inverseRoot = 0.1796053020267749;  // 1/sqrt(31), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.3690354256607867,  // c[6]: P[1] of 31
        0.03988273291964531,  // c[7]: Q[1] of 31
        0.0008245188371257438,  // c[8]: -Q[2] of 31
        0.3711833750943932,  // c[9]: P[2] of 31
        0.31134062892750347,  // c[10]: -P[3] of 31
        0.20210094150400285,  // c[11]: -Q[3] of 31
        0.36666699090448956,  // c[12]: Q[4] of 31
        0.057732967694591485,  // c[13]: P[4] of 31
        0.26685240283098827,  // c[14]: -P[5] of 31
        0.2580069240952765,  // c[15]: -Q[5] of 31
        0.21370283071490567,  // c[16]: -Q[6] of 31
        0.30349444463155195,  // c[17]: P[6] of 31
        0.031416009621091305,  // c[18]: -P[7] of 31
        0.36985241937462743,  // c[19]: Q[7] of 31
        0.2957152178933792,  // c[20]: Q[8] of 31
        0.22434412781271781,  // c[21]: -P[8] of 31
        0.12276133942171241,  // c[22]: -P[9] of 31
        0.35029620511956006,  // c[23]: Q[9] of 31
        0.1449304326594425,  // c[24]: Q[10] of 31
        0.3417205692768941,  // c[25]: P[10] of 31
        0.3676914951710987,  // c[26]: -P[11] of 31
        0.05080100546858957,  // c[27]: Q[11] of 31
        0.127938670558679,  // c[28]: Q[12] of 31
        0.3484386235098738,  // c[29]: P[12] of 31
        0.0592131223973046,  // c[30]: P[13] of 31
        0.36643087194413576,  // c[31]: -Q[13] of 31
        0.3215874570406464,  // c[32]: Q[14] of 31
        0.1853625778087589,  // c[33]: -P[14] of 31
        0.03333333333333333,  // c[34]: 1/30
        0.1855921454276674,  // c[35]: -beta of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x1i = io.im(1);
        const V t1 = two * x1i;
        const V x2r = io.re(2);
        const V t2 = two * x2r;
        const V x2i = io.im(2);
        const V t3 = two * x2i;
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x3i = io.im(3);
        const V t5 = two * x3i;
        const V x4r = io.re(4);
        const V t6 = two * x4r;
        const V x4i = io.im(4);
        const V t7 = two * x4i;
        const V x5r = io.re(5);
        const V t8 = two * x5r;
        const V x5i = io.im(5);
        const V t9 = two * x5i;
        const V x6r = io.re(6);
        const V t10 = two * x6r;
        const V x6i = io.im(6);
        const V t11 = two * x6i;
        const V x7r = io.re(7);
        const V t12 = two * x7r;
        const V x7i = io.im(7);
        const V t13 = two * x7i;
        const V x8r = io.re(8);
        const V t14 = two * x8r;
        const V x8i = io.im(8);
        const V t15 = two * x8i;
        const V x9r = io.re(9);
        const V t16 = two * x9r;
        const V x9i = io.im(9);
        const V t17 = two * x9i;
        const V x10r = io.re(10);
        const V t18 = two * x10r;
        const V x10i = io.im(10);
        const V t19 = two * x10i;
        const V x11r = io.re(11);
        const V t20 = two * x11r;
        const V x11i = io.im(11);
        const V t21 = two * x11i;
        const V x12r = io.re(12);
        const V t22 = two * x12r;
        const V x12i = io.im(12);
        const V t23 = two * x12i;
        const V x13r = io.re(13);
        const V t24 = two * x13r;
        const V x13i = io.im(13);
        const V t25 = two * x13i;
        const V x14r = io.re(14);
        const V t26 = two * x14r;
        const V x14i = io.im(14);
        const V t27 = two * x14i;
        const V x15r = io.re(15);
        const V t28 = two * x15r;
        const V x15i = io.im(15);
        const V t29 = two * x15i;
        // real block of 3, multiplier 2
        const V t30 = t8 + t10;
        const V t31 = t8 - t10;
        const V t32 = t30 + t0;
        const V t33 = c[4] * t30;
        const V t34 = t0 - t33;
        const V t35 = c[5] * t31;
        // real block of 3, multiplier 2
        const V t36 = t20 + t12;
        const V t37 = t20 - t12;
        const V t38 = t36 + t6;
        const V t39 = c[4] * t36;
        const V t40 = t6 - t39;
        const V t41 = c[5] * t37;
        // real block of 3, multiplier 2
        const V t42 = t24 + t4;
        const V t43 = t24 - t4;
        const V t44 = t42 + t28;
        const V t45 = c[4] * t42;
        const V t46 = t28 - t45;
        const V t47 = c[5] * t43;
        // real block of 3, multiplier 2
        const V t48 = t18 + t22;
        const V t49 = t18 - t22;
        const V t50 = t48 + t2;
        const V t51 = c[4] * t48;
        const V t52 = t2 - t51;
        const V t53 = c[5] * t49;
        // real block of 3, multiplier 2
        const V t54 = t16 + t26;
        const V t55 = t16 - t26;
        const V t56 = t54 + t14;
        const V t57 = c[4] * t54;
        const V t58 = t14 - t57;
        const V t59 = c[5] * t55;
        // real block of 5, multiplier 3
        const V t60 = t38 + t56;
        const V t61 = t38 - t56;
        const V t62 = t50 + t44;
        const V t63 = t50 - t44;
        const V t64 = t60 + t62;
        const V t65 = t64 + t32;
        const V t66 = c[0] * t60;
        const V t67 = t32 - t66;
        const V t68 = c[1] * t62;
        const V t69 = t67 + t68;
        const V t70 = c[2] * t61;
        const V t71 = c[3] * t63;
        const V t72 = t70 + t71;
        const V t73 = c[1] * t60;
        const V t74 = c[0] * t62;
        const V t75 = t73 - t74;
        const V t76 = t75 + t32;
        const V t77 = c[3] * t61;
        const V t78 = c[2] * t63;
        const V t79 = t78 - t77;
        // complex block of 5, multiplier 3
        const V t80 = t40 + t58;
        const V t81 = t41 + t59;
        const V t82 = t40 - t58;
        const V t83 = t41 - t59;
        const V t84 = t52 + t46;
        const V t85 = t53 + t47;
        const V t86 = t52 - t46;
        const V t87 = t53 - t47;
        const V t88 = t80 + t84;
        const V t89 = t81 + t85;
        const V t90 = t88 + t34;
        const V t91 = t89 + t35;
        const V t92 = c[1] * t80;
        const V t93 = c[0] * t84;
        const V t94 = t92 - t93;
        const V t95 = t94 + t34;
        const V t96 = c[1] * t81;
        const V t97 = c[0] * t85;
        const V t98 = t96 - t97;
        const V t99 = t98 + t35;
        const V t100 = c[3] * t82;
        const V t101 = c[2] * t86;
        const V t102 = t100 - t101;
        const V t103 = c[3] * t83;
        const V t104 = c[2] * t87;
        const V t105 = t103 - t104;
        const V t106 = t95 + t105;
        const V t107 = t99 - t102;
        const V t108 = t95 - t105;
        const V t109 = t99 + t102;
        const V t110 = c[0] * t80;
        const V t111 = t34 - t110;
        const V t112 = c[1] * t84;
        const V t113 = t111 + t112;
        const V t114 = c[0] * t81;
        const V t115 = t35 - t114;
        const V t116 = c[1] * t85;
        const V t117 = t115 + t116;
        const V t118 = c[2] * t82;
        const V t119 = c[3] * t86;
        const V t120 = t118 + t119;
        const V t121 = c[2] * t83;
        const V t122 = c[3] * t87;
        const V t123 = t121 + t122;
        const V t124 = t113 + t123;
        const V t125 = t117 - t120;
        const V t126 = t113 - t123;
        const V t127 = t117 + t120;
        // real block of 3, multiplier 2
        const V t128 = t9 - t11;
        const V t129 = t9 + t11;
        const V t130 = t128 + t1;
        const V t131 = c[4] * t128;
        const V t132 = t1 - t131;
        const V t133 = c[5] * t129;
        // real block of 3, multiplier 2
        const V t134 = t13 - t21;
        const V t135 = t21 + t13;
        const V t136 = t134 + t7;
        const V t137 = c[4] * t134;
        const V t138 = t7 - t137;
        const V t139 = c[5] * t135;
        // real block of 3, multiplier 2
        const V t140 = t25 + t5;
        const V t141 = t5 - t25;
        const V t142 = t140 + t29;
        const V t143 = c[4] * t140;
        const V t144 = t143 - t29;
        const V t145 = c[5] * t141;
        // real block of 3, multiplier 2
        const V t146 = t19 - t23;
        const V t147 = t19 + t23;
        const V t148 = t146 + t3;
        const V t149 = c[4] * t146;
        const V t150 = t3 - t149;
        const V t151 = c[5] * t147;
        // real block of 3, multiplier 2
        const V t152 = t17 + t27;
        const V t153 = t17 - t27;
        const V t154 = t152 + t15;
        const V t155 = c[4] * t152;
        const V t156 = t15 - t155;
        const V t157 = c[5] * t153;
        // real block of 5, multiplier 3
        const V t158 = t136 + t154;
        const V t159 = t136 - t154;
        const V t160 = t148 - t142;
        const V t161 = t148 + t142;
        const V t162 = t158 + t160;
        const V t163 = t162 + t130;
        const V t164 = c[0] * t158;
        const V t165 = t130 - t164;
        const V t166 = c[1] * t160;
        const V t167 = t165 + t166;
        const V t168 = c[2] * t159;
        const V t169 = c[3] * t161;
        const V t170 = t168 + t169;
        const V t171 = c[1] * t158;
        const V t172 = c[0] * t160;
        const V t173 = t171 - t172;
        const V t174 = t173 + t130;
        const V t175 = c[3] * t159;
        const V t176 = c[2] * t161;
        const V t177 = t176 - t175;
        // complex block of 5, multiplier 3
        const V t178 = t138 + t156;
        const V t179 = t157 - t139;
        const V t180 = t138 - t156;
        const V t181 = t139 + t157;
        const V t182 = t150 + t144;
        const V t183 = t151 + t145;
        const V t184 = t150 - t144;
        const V t185 = t151 - t145;
        const V t186 = t178 + t182;
        const V t187 = t179 + t183;
        const V t188 = t186 + t132;
        const V t189 = t187 + t133;
        const V t190 = c[1] * t178;
        const V t191 = c[0] * t182;
        const V t192 = t190 - t191;
        const V t193 = t192 + t132;
        const V t194 = c[1] * t179;
        const V t195 = c[0] * t183;
        const V t196 = t194 - t195;
        const V t197 = t196 + t133;
        const V t198 = c[3] * t180;
        const V t199 = c[2] * t184;
        const V t200 = t198 - t199;
        const V t201 = c[3] * t181;
        const V t202 = c[2] * t185;
        const V t203 = t201 + t202;
        const V t204 = t193 - t203;
        const V t205 = t197 - t200;
        const V t206 = t193 + t203;
        const V t207 = t197 + t200;
        const V t208 = c[0] * t178;
        const V t209 = t132 - t208;
        const V t210 = c[1] * t182;
        const V t211 = t209 + t210;
        const V t212 = c[0] * t179;
        const V t213 = t133 - t212;
        const V t214 = c[1] * t183;
        const V t215 = t213 + t214;
        const V t216 = c[2] * t180;
        const V t217 = c[3] * t184;
        const V t218 = t216 + t217;
        const V t219 = c[2] * t181;
        const V t220 = c[3] * t185;
        const V t221 = t220 - t219;
        const V t222 = t211 + t221;
        const V t223 = t215 - t218;
        const V t224 = t211 - t221;
        const V t225 = t215 + t218;
        // spectrum block of 31
        const V t226 = c[34] * t65;
        const V x0r = io.re(0);
        const V t227 = x0r - t226;
        const V t228 = c[6] * t225;
        const V t229 = c[7] * t224;
        const V t230 = t229 - t228;
        const V t231 = c[6] * t224;
        const V t232 = c[7] * t225;
        const V t233 = t232 + t231;
        const V t234 = c[8] * t109;
        const V t235 = c[9] * t108;
        const V t236 = t235 - t234;
        const V t237 = c[8] * t108;
        const V t238 = c[9] * t109;
        const V t239 = t238 + t237;
        const V t240 = c[10] * t177;
        const V t241 = c[11] * t174;
        const V t242 = t241 + t240;
        const V t243 = c[10] * t174;
        const V t244 = c[11] * t177;
        const V t245 = t244 - t243;
        const V t246 = c[12] * t125;
        const V t247 = c[13] * t124;
        const V t248 = t247 - t246;
        const V t249 = c[12] * t124;
        const V t250 = c[13] * t125;
        const V t251 = t250 + t249;
        const V t252 = c[14] * t189;
        const V t253 = c[15] * t188;
        const V t254 = t253 + t252;
        const V t255 = c[14] * t188;
        const V t256 = c[15] * t189;
        const V t257 = t256 - t255;
        const V t258 = c[16] * t72;
        const V t259 = c[17] * t69;
        const V t260 = t259 + t258;
        const V t261 = c[16] * t69;
        const V t262 = c[17] * t72;
        const V t263 = t262 - t261;
        const V t264 = c[18] * t205;
        const V t265 = c[19] * t204;
        const V t266 = t265 + t264;
        const V t267 = c[18] * t204;
        const V t268 = c[19] * t205;
        const V t269 = t268 - t267;
        const V t270 = c[20] * t107;
        const V t271 = c[21] * t106;
        const V t272 = t270 - t271;
        const V t273 = c[20] * t106;
        const V t274 = c[21] * t107;
        const V t275 = t274 + t273;
        const V t276 = c[22] * t170;
        const V t277 = c[23] * t167;
        const V t278 = t277 - t276;
        const V t279 = c[22] * t167;
        const V t280 = c[23] * t170;
        const V t281 = t280 + t279;
        const V t282 = c[24] * t91;
        const V t283 = c[25] * t90;
        const V t284 = t283 - t282;
        const V t285 = c[24] * t90;
        const V t286 = c[25] * t91;
        const V t287 = t286 + t285;
        const V t288 = c[26] * t223;
        const V t289 = c[27] * t222;
        const V t290 = t289 - t288;
        const V t291 = c[26] * t222;
        const V t292 = c[27] * t223;
        const V t293 = t292 + t291;
        const V t294 = c[28] * t79;
        const V t295 = c[29] * t76;
        const V t296 = t295 - t294;
        const V t297 = c[28] * t76;
        const V t298 = c[29] * t79;
        const V t299 = t298 + t297;
        const V t300 = c[30] * t207;
        const V t301 = c[31] * t206;
        const V t302 = t301 + t300;
        const V t303 = c[30] * t206;
        const V t304 = c[31] * t207;
        const V t305 = t303 - t304;
        const V t306 = c[32] * t127;
        const V t307 = c[33] * t126;
        const V t308 = t306 - t307;
        const V t309 = c[32] * t126;
        const V t310 = c[33] * t127;
        const V t311 = t310 + t309;
        const V t312 = c[35] * t163;
        // spectrum block of 2
        const V t313 = t227 - t312;
        const V t314 = t227 + t312;
        // complex block of 2
        const V t315 = t239 + t305;
        const V t316 = t236 - t302;
        const V t317 = t305 - t239;
        const V t318 = t236 + t302;
        // complex block of 2
        const V t319 = t251 + t293;
        const V t320 = t248 + t290;
        const V t321 = t251 - t293;
        const V t322 = t248 - t290;
        // complex block of 2
        const V t323 = t263 + t281;
        const V t324 = t260 + t278;
        const V t325 = t263 - t281;
        const V t326 = t260 - t278;
        // complex block of 2
        const V t327 = t275 - t269;
        const V t328 = t272 + t266;
        const V t329 = t275 + t269;
        const V t330 = t272 - t266;
        // complex block of 2
        const V t331 = t287 - t257;
        const V t332 = t284 - t254;
        const V t333 = t287 + t257;
        const V t334 = t284 + t254;
        // complex block of 2
        const V t335 = t299 - t245;
        const V t336 = t296 - t242;
        const V t337 = t299 + t245;
        const V t338 = t296 + t242;
        // complex block of 2
        const V t339 = t311 - t233;
        const V t340 = t308 + t230;
        const V t341 = t311 + t233;
        const V t342 = t308 - t230;
        // spectrum block of 3
        const V t343 = t332 + t313;
        const V t344 = c[4] * t332;
        const V t345 = t313 - t344;
        const V t346 = c[5] * t331;
        const V t347 = t345 - t346;
        const V t348 = t345 + t346;
        // complex block of 3
        const V t349 = t339 + t319;
        const V t350 = t340 + t320;
        const V t351 = t319 - t339;
        const V t352 = t340 - t320;
        const V t353 = t323 - t349;
        const V t354 = t350 + t324;
        const V t355 = c[4] * t349;
        const V t356 = t355 + t323;
        const V t357 = c[4] * t350;
        const V t358 = t324 - t357;
        const V t359 = c[5] * t351;
        const V t360 = c[5] * t352;
        const V t361 = t356 + t360;
        const V t362 = t358 - t359;
        const V t363 = t356 - t360;
        const V t364 = t358 + t359;
        // complex block of 3
        const V t365 = t327 + t315;
        const V t366 = t328 + t316;
        const V t367 = t315 - t327;
        const V t368 = t328 - t316;
        const V t369 = t335 - t365;
        const V t370 = t366 + t336;
        const V t371 = c[4] * t365;
        const V t372 = t371 + t335;
        const V t373 = c[4] * t366;
        const V t374 = t336 - t373;
        const V t375 = c[5] * t367;
        const V t376 = c[5] * t368;
        const V t377 = t372 + t376;
        const V t378 = t374 - t375;
        const V t379 = t372 - t376;
        const V t380 = t374 + t375;
        // spectrum block of 5
        const V t381 = t354 + t370;
        const V t382 = t381 + t343;
        io.out(1, t382);
        const V t383 = c[1] * t354;
        const V t384 = c[0] * t370;
        const V t385 = t383 - t384;
        const V t386 = t385 + t343;
        const V t387 = c[3] * t353;
        const V t388 = c[2] * t369;
        const V t389 = t387 + t388;
        const V t390 = t386 - t389;
        io.out(2, t390);
        const V t391 = t386 + t389;
        io.out(16, t391);
        const V t392 = c[0] * t354;
        const V t393 = t343 - t392;
        const V t394 = c[1] * t370;
        const V t395 = t393 + t394;
        const V t396 = c[2] * t353;
        const V t397 = c[3] * t369;
        const V t398 = t396 - t397;
        const V t399 = t395 - t398;
        io.out(4, t399);
        const V t400 = t395 + t398;
        io.out(8, t400);
        // spectrum block of 5
        const V t401 = t362 + t378;
        const V t402 = t401 + t347;
        io.out(5, t402);
        const V t403 = c[1] * t362;
        const V t404 = c[0] * t378;
        const V t405 = t403 - t404;
        const V t406 = t405 + t347;
        const V t407 = c[3] * t361;
        const V t408 = c[2] * t377;
        const V t409 = t407 + t408;
        const V t410 = t406 - t409;
        io.out(10, t410);
        const V t411 = t406 + t409;
        io.out(18, t411);
        const V t412 = c[0] * t362;
        const V t413 = t347 - t412;
        const V t414 = c[1] * t378;
        const V t415 = t413 + t414;
        const V t416 = c[2] * t361;
        const V t417 = c[3] * t377;
        const V t418 = t416 - t417;
        const V t419 = t415 - t418;
        io.out(20, t419);
        const V t420 = t415 + t418;
        io.out(9, t420);
        // spectrum block of 5
        const V t421 = t364 + t380;
        const V t422 = t421 + t348;
        io.out(25, t422);
        const V t423 = c[1] * t364;
        const V t424 = c[0] * t380;
        const V t425 = t423 - t424;
        const V t426 = t425 + t348;
        const V t427 = c[3] * t363;
        const V t428 = c[2] * t379;
        const V t429 = t427 + t428;
        const V t430 = t426 - t429;
        io.out(19, t430);
        const V t431 = t426 + t429;
        io.out(28, t431);
        const V t432 = c[0] * t364;
        const V t433 = t348 - t432;
        const V t434 = c[1] * t380;
        const V t435 = t433 + t434;
        const V t436 = c[2] * t363;
        const V t437 = c[3] * t379;
        const V t438 = t436 - t437;
        const V t439 = t435 - t438;
        io.out(7, t439);
        const V t440 = t435 + t438;
        io.out(14, t440);
        // spectrum block of 3
        const V t441 = t334 + t314;
        const V t442 = c[4] * t334;
        const V t443 = t314 - t442;
        const V t444 = c[5] * t333;
        const V t445 = t443 - t444;
        const V t446 = t443 + t444;
        // complex block of 3
        const V t447 = t341 + t321;
        const V t448 = t342 + t322;
        const V t449 = t321 - t341;
        const V t450 = t342 - t322;
        const V t451 = t325 - t447;
        const V t452 = t448 + t326;
        const V t453 = c[4] * t447;
        const V t454 = t453 + t325;
        const V t455 = c[4] * t448;
        const V t456 = t326 - t455;
        const V t457 = c[5] * t449;
        const V t458 = c[5] * t450;
        const V t459 = t454 + t458;
        const V t460 = t456 - t457;
        const V t461 = t454 - t458;
        const V t462 = t456 + t457;
        // complex block of 3
        const V t463 = t317 - t329;
        const V t464 = t330 + t318;
        const V t465 = t329 + t317;
        const V t466 = t330 - t318;
        const V t467 = t463 + t337;
        const V t468 = t464 + t338;
        const V t469 = c[4] * t463;
        const V t470 = t337 - t469;
        const V t471 = c[4] * t464;
        const V t472 = t338 - t471;
        const V t473 = c[5] * t465;
        const V t474 = c[5] * t466;
        const V t475 = t470 + t474;
        const V t476 = t472 + t473;
        const V t477 = t470 - t474;
        const V t478 = t472 - t473;
        // spectrum block of 5
        const V t479 = t452 + t468;
        const V t480 = t479 + t441;
        io.out(30, t480);
        const V t481 = c[1] * t452;
        const V t482 = c[0] * t468;
        const V t483 = t481 - t482;
        const V t484 = t483 + t441;
        const V t485 = c[3] * t451;
        const V t486 = c[2] * t467;
        const V t487 = t485 + t486;
        const V t488 = t484 - t487;
        io.out(29, t488);
        const V t489 = t484 + t487;
        io.out(15, t489);
        const V t490 = c[0] * t452;
        const V t491 = t441 - t490;
        const V t492 = c[1] * t468;
        const V t493 = t491 + t492;
        const V t494 = c[2] * t451;
        const V t495 = c[3] * t467;
        const V t496 = t494 - t495;
        const V t497 = t493 - t496;
        io.out(27, t497);
        const V t498 = t493 + t496;
        io.out(23, t498);
        // spectrum block of 5
        const V t499 = t460 + t476;
        const V t500 = t499 + t445;
        io.out(26, t500);
        const V t501 = c[1] * t460;
        const V t502 = c[0] * t476;
        const V t503 = t501 - t502;
        const V t504 = t503 + t445;
        const V t505 = c[3] * t459;
        const V t506 = c[2] * t475;
        const V t507 = t505 + t506;
        const V t508 = t504 - t507;
        io.out(21, t508);
        const V t509 = t504 + t507;
        io.out(13, t509);
        const V t510 = c[0] * t460;
        const V t511 = t445 - t510;
        const V t512 = c[1] * t476;
        const V t513 = t511 + t512;
        const V t514 = c[2] * t459;
        const V t515 = c[3] * t475;
        const V t516 = t514 - t515;
        const V t517 = t513 - t516;
        io.out(11, t517);
        const V t518 = t513 + t516;
        io.out(22, t518);
        // spectrum block of 5
        const V t519 = t462 + t478;
        const V t520 = t519 + t446;
        io.out(6, t520);
        const V t521 = c[1] * t462;
        const V t522 = c[0] * t478;
        const V t523 = t521 - t522;
        const V t524 = t523 + t446;
        const V t525 = c[3] * t461;
        const V t526 = c[2] * t477;
        const V t527 = t525 + t526;
        const V t528 = t524 - t527;
        io.out(12, t528);
        const V t529 = t524 + t527;
        io.out(3, t529);
        const V t530 = c[0] * t462;
        const V t531 = t446 - t530;
        const V t532 = c[1] * t478;
        const V t533 = t531 + t532;
        const V t534 = c[2] * t461;
        const V t535 = c[3] * t477;
        const V t536 = t534 - t535;
        const V t537 = t533 - t536;
        io.out(24, t537);
        const V t538 = t533 + t536;
        io.out(17, t538);
        // spectrum block of 31
        const V t539 = x0r + t65;
        io.out(0, t539);
    }
};

}  // namespace zulg
