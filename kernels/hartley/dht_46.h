// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 46.
// Hartley transform of 46 points, form I.
// 326 additions, 332 subtractions, 484 multiplications (530 with `scale`); 32 constants; 119 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<46> {
    static constexpr int steps = 1188;  // with `scale`
    static constexpr double inverseRoot = 0.14744195615489714;  // 1/sqrt(46), for `scale`
    static constexpr double constants[] = {
        0.14231483827328514,  // c[0]: -cos 2 pi 3/11
        0.9594929736144974,  // c[1]: -cos 2 pi 6/11
        0.41541501300188644,  // c[2]: cos 2 pi 9/11
        0.8412535328311812,  // c[3]: cos 2 pi 1/11
        0.6548607339452851,  // c[4]: -cos 2 pi 4/11
        0.5406408174555976,  // c[5]: sin 2 pi 1/11
        0.9096319953545183,  // c[6]: -sin 2 pi 9/11
        0.28173255684142967,  // c[7]: -sin 2 pi 6/11
        0.9898214418809327,  // c[8]: sin 2 pi 3/11
        0.7557495743542583,  // c[9]: sin 2 pi 4/11
        0.4130101145562366,  // c[10]: P[2] of 23
        0.1396613400420585,  // c[11]: Q[2] of 23
        0.07284077652875139,  // c[12]: -P[4] of 23
        0.42985679697172136,  // c[13]: -Q[4] of 23
        0.2732012886111602,  // c[14]: -P[6] of 23
        0.3397700700904962,  // c[15]: -Q[6] of 23
        0.05696081894716527,  // c[16]: Q[8] of 23
        0.15475065017493012,  // c[17]: Q[9] of 23
        0.4075964682115579,  // c[18]: P[9] of 23
        0.3941449686576057,  // c[19]: Q[7] of 23
        0.1863662746045921,  // c[20]: -P[7] of 23
        0.12855275355334153,  // c[21]: -Q[5] of 23
        0.4166015292602189,  // c[22]: P[5] of 23
        0.2936565344532715,  // c[23]: -P[3] of 23
        0.4322477411542684,  // c[24]: P[8] of 23
        0.17418154463549565,  // c[25]: P[1] of 23
        0.39967916400094217,  // c[26]: -Q[1] of 23
        0.3222553093449257,  // c[27]: -Q[3] of 23
        0.1719176660785936,  // c[28]: Q[10] of 23
        0.4006581594304406,  // c[29]: P[10] of 23
        0.045454545454545456,  // c[30]: 1/22
        0.21799234196875997,  // c[31]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x45 = io.in(45);
        const V t0 = x1 + x45;
        const V t1 = x1 - x45;
        const V x19 = io.in(19);
        const V x27 = io.in(27);
        const V t2 = x19 + x27;
        const V t3 = x19 - x27;
        // real block of 11
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 11
        const V t6 = t1 - t3;
        const V t7 = t1 + t3;
        // input stage
        const V x3 = io.in(3);
        const V x43 = io.in(43);
        const V t8 = x3 + x43;
        const V t9 = x3 - x43;
        const V x9 = io.in(9);
        const V x37 = io.in(37);
        const V t10 = x9 + x37;
        const V t11 = x9 - x37;
        // real block of 11
        const V t12 = t8 - t10;
        // real block of 11
        const V t13 = t9 - t11;
        // input stage
        const V x5 = io.in(5);
        const V x41 = io.in(41);
        const V t14 = x5 + x41;
        const V t15 = x5 - x41;
        const V x13 = io.in(13);
        const V x33 = io.in(33);
        const V t16 = x13 + x33;
        const V t17 = x13 - x33;
        // real block of 11
        const V t18 = t16 + t14;
        const V t19 = t16 - t14;
        // real block of 11
        const V t20 = t17 - t15;
        const V t21 = t17 + t15;
        // input stage
        const V x7 = io.in(7);
        const V x39 = io.in(39);
        const V t22 = x7 + x39;
        const V t23 = x7 - x39;
        const V x17 = io.in(17);
        const V x29 = io.in(29);
        const V t24 = x17 + x29;
        const V t25 = x17 - x29;
        // real block of 11
        const V t26 = t22 - t24;
        // real block of 11
        const V t27 = t25 - t23;
        // input stage
        const V x21 = io.in(21);
        const V x25 = io.in(25);
        const V t28 = x21 + x25;
        const V t29 = x21 - x25;
        // real block of 11
        const V t30 = t8 + t10;
        const V t31 = t18 + t4;
        const V t32 = t31 + t30;
        const V t33 = c[0] * t30;
        const V t34 = c[1] * t30;
        const V t35 = c[2] * t30;
        const V t36 = c[3] * t30;
        const V t37 = c[4] * t30;
        const V t38 = t22 + t24;
        const V t39 = c[1] * t38;
        const V t40 = c[3] * t38;
        const V t41 = c[3] * t18;
        const V t42 = c[2] * t4;
        const V t43 = t41 + t42;
        const V t44 = c[5] * t19;
        const V t45 = c[6] * t5;
        const V t46 = c[7] * t26;
        const V t47 = t45 + t46;
        const V t48 = c[8] * t12;
        const V t49 = c[2] * t18;
        const V t50 = c[4] * t4;
        const V t51 = t49 - t50;
        const V t52 = c[6] * t19;
        const V t53 = c[9] * t5;
        const V t54 = c[7] * t12;
        const V t55 = t53 + t54;
        const V t56 = c[0] * t18;
        const V t57 = t28 - t56;
        const V t58 = c[1] * t4;
        const V t59 = c[8] * t19;
        const V t60 = c[7] * t5;
        const V t61 = c[6] * t12;
        const V t62 = c[9] * t26;
        const V t63 = t61 + t62;
        const V t64 = c[4] * t18;
        const V t65 = t28 - t64;
        const V t66 = c[0] * t4;
        const V t67 = c[9] * t19;
        const V t68 = c[8] * t5;
        const V t69 = t67 + t68;
        const V t70 = c[5] * t12;
        const V t71 = c[1] * t18;
        const V t72 = t28 - t71;
        const V t73 = c[3] * t4;
        const V t74 = c[7] * t19;
        const V t75 = c[8] * t26;
        // real block of 11
        const V t76 = t9 + t11;
        const V t77 = t20 + t6;
        const V t78 = t77 + t76;
        const V t79 = c[0] * t76;
        const V t80 = c[1] * t76;
        const V t81 = c[2] * t76;
        const V t82 = c[3] * t76;
        const V t83 = c[4] * t76;
        const V t84 = t23 + t25;
        const V t85 = c[1] * t84;
        const V t86 = c[3] * t84;
        const V t87 = c[3] * t20;
        const V t88 = c[2] * t6;
        const V t89 = t87 + t88;
        const V t90 = c[5] * t21;
        const V t91 = c[6] * t7;
        const V t92 = c[7] * t27;
        const V t93 = t91 + t92;
        const V t94 = c[8] * t13;
        const V t95 = c[2] * t20;
        const V t96 = c[4] * t6;
        const V t97 = t95 - t96;
        const V t98 = c[6] * t21;
        const V t99 = c[9] * t7;
        const V t100 = c[7] * t13;
        const V t101 = t99 + t100;
        const V t102 = c[0] * t20;
        const V t103 = t29 + t102;
        const V t104 = c[1] * t6;
        const V t105 = c[8] * t21;
        const V t106 = c[7] * t7;
        const V t107 = c[6] * t13;
        const V t108 = c[9] * t27;
        const V t109 = t107 + t108;
        const V t110 = c[4] * t20;
        const V t111 = t29 + t110;
        const V t112 = c[0] * t6;
        const V t113 = c[9] * t21;
        const V t114 = c[8] * t7;
        const V t115 = t113 + t114;
        const V t116 = c[5] * t13;
        const V t117 = c[1] * t20;
        const V t118 = t29 + t117;
        const V t119 = c[3] * t6;
        const V t120 = c[7] * t21;
        const V t121 = c[8] * t27;
        // input stage
        const V x11 = io.in(11);
        const V x35 = io.in(35);
        const V t122 = x11 + x35;
        const V t123 = x11 - x35;
        const V x15 = io.in(15);
        const V x31 = io.in(31);
        const V t124 = x15 + x31;
        const V t125 = x15 - x31;
        // real block of 11
        const V t126 = t124 + t122;
        const V t127 = c[4] * t126;
        const V t128 = c[0] * t126;
        const V t129 = c[3] * t126;
        const V t130 = t124 - t122;
        const V t131 = c[8] * t130;
        const V t132 = c[7] * t130;
        const V t133 = c[6] * t130;
        // real block of 11
        const V t134 = t125 + t123;
        const V t135 = c[4] * t134;
        const V t136 = c[0] * t134;
        const V t137 = c[3] * t134;
        const V t138 = t123 - t125;
        const V t139 = c[8] * t138;
        const V t140 = c[7] * t138;
        const V t141 = c[6] * t138;
        // real block of 11
        const V t142 = t32 + t126;
        const V t143 = t142 + t38;
        const V t144 = t143 + t28;
        // spectrum block of 23, multiplier 2
        const V t145 = c[30] * t144;
        // real block of 11
        const V t146 = t43 - t33;
        const V t147 = t146 - t127;
        const V t148 = t147 - t39;
        const V t149 = t148 + t28;
        // spectrum block of 23, multiplier 2
        const V t150 = c[10] * t149;
        const V t151 = c[11] * t149;
        // real block of 11
        const V t152 = c[9] * t130;
        const V t153 = t47 - t44;
        const V t154 = t153 - t48;
        const V t155 = t154 - t152;
        // spectrum block of 23, multiplier 2
        const V t156 = c[11] * t155;
        const V t157 = c[10] * t155;
        // real block of 11
        const V t158 = t51 - t34;
        const V t159 = t158 - t128;
        const V t160 = t159 + t40;
        const V t161 = t160 + t28;
        // spectrum block of 23, multiplier 2
        const V t162 = c[12] * t161;
        const V t163 = c[13] * t161;
        // real block of 11
        const V t164 = c[5] * t26;
        const V t165 = t55 + t131;
        const V t166 = t165 - t52;
        const V t167 = t166 - t164;
        // spectrum block of 23, multiplier 2
        const V t168 = c[13] * t167;
        const V t169 = c[12] * t167;
        // real block of 11
        const V t170 = t57 - t58;
        const V t171 = t170 + t35;
        const V t172 = t171 + t129;
        const V t173 = c[4] * t38;
        const V t174 = t172 - t173;
        // spectrum block of 23, multiplier 2
        const V t175 = c[14] * t174;
        // real block of 11
        const V t176 = c[5] * t130;
        const V t177 = t63 - t59;
        const V t178 = t177 - t60;
        const V t179 = t178 - t176;
        // spectrum block of 23, multiplier 2
        const V t180 = c[15] * t179;
        const V t181 = c[14] * t179;
        // real block of 11
        const V t182 = t65 - t66;
        const V t183 = t182 + t36;
        const V t184 = c[1] * t126;
        const V t185 = c[2] * t38;
        const V t186 = t183 - t184;
        const V t187 = t186 + t185;
        const V t188 = c[6] * t26;
        const V t189 = t69 + t70;
        const V t190 = t189 + t132;
        const V t191 = t190 + t188;
        // spectrum block of 23, multiplier 2
        const V t192 = c[16] * t191;
        // real block of 11
        const V t193 = t72 + t73;
        const V t194 = t193 - t37;
        const V t195 = c[2] * t126;
        const V t196 = c[0] * t38;
        const V t197 = t194 + t195;
        const V t198 = t197 - t196;
        const V t199 = c[5] * t5;
        const V t200 = c[9] * t12;
        const V t201 = t133 + t75;
        const V t202 = t201 - t74;
        const V t203 = t202 - t199;
        const V t204 = t203 - t200;
        // real block of 11
        const V t205 = t78 - t134;
        const V t206 = t205 - t84;
        const V t207 = t206 - t29;
        // spectrum block of 23, multiplier 2
        const V t208 = c[31] * t207;
        // real block of 11
        const V t209 = t89 - t79;
        const V t210 = t209 + t135;
        const V t211 = t210 + t85;
        const V t212 = t211 - t29;
        // spectrum block of 23, multiplier 2
        const V t213 = c[17] * t212;
        const V t214 = c[18] * t212;
        // real block of 11
        const V t215 = c[9] * t138;
        const V t216 = t93 - t90;
        const V t217 = t216 - t94;
        const V t218 = t217 - t215;
        // spectrum block of 23, multiplier 2
        const V t219 = c[18] * t218;
        const V t220 = c[17] * t218;
        // real block of 11
        const V t221 = t97 - t80;
        const V t222 = t221 + t136;
        const V t223 = t222 - t86;
        const V t224 = t223 - t29;
        // spectrum block of 23, multiplier 2
        const V t225 = c[19] * t224;
        const V t226 = c[20] * t224;
        // real block of 11
        const V t227 = c[5] * t27;
        const V t228 = t101 + t139;
        const V t229 = t228 - t98;
        const V t230 = t229 - t227;
        // spectrum block of 23, multiplier 2
        const V t231 = c[20] * t230;
        const V t232 = c[19] * t230;
        // real block of 11
        const V t233 = t103 + t104;
        const V t234 = t81 - t233;
        const V t235 = t234 - t137;
        const V t236 = c[4] * t84;
        const V t237 = t235 + t236;
        // spectrum block of 23, multiplier 2
        const V t238 = c[21] * t237;
        // real block of 11
        const V t239 = c[5] * t138;
        const V t240 = t109 - t105;
        const V t241 = t240 - t106;
        const V t242 = t241 - t239;
        // spectrum block of 23, multiplier 2
        const V t243 = c[22] * t242;
        const V t244 = c[21] * t242;
        // real block of 11
        const V t245 = t111 + t112;
        const V t246 = t82 - t245;
        const V t247 = c[1] * t134;
        const V t248 = c[2] * t84;
        const V t249 = t246 + t247;
        const V t250 = t249 - t248;
        const V t251 = c[6] * t27;
        const V t252 = t115 + t116;
        const V t253 = t252 + t140;
        const V t254 = t253 + t251;
        // spectrum block of 23, multiplier 2
        const V t255 = c[23] * t254;
        // real block of 11
        const V t256 = t119 - t118;
        const V t257 = t256 - t83;
        const V t258 = c[2] * t134;
        const V t259 = c[0] * t84;
        const V t260 = t257 - t258;
        const V t261 = t260 + t259;
        const V t262 = c[5] * t7;
        const V t263 = c[9] * t13;
        const V t264 = t141 + t121;
        const V t265 = t264 - t120;
        const V t266 = t265 - t262;
        const V t267 = t266 - t263;
        // input stage
        const V x2 = io.in(2);
        const V x44 = io.in(44);
        const V t268 = x2 + x44;
        const V t269 = x2 - x44;
        const V x4 = io.in(4);
        const V x42 = io.in(42);
        const V t270 = x4 + x42;
        const V t271 = x4 - x42;
        const V x22 = io.in(22);
        const V x24 = io.in(24);
        const V t272 = x22 + x24;
        const V t273 = x22 - x24;
        // real block of 11
        const V t274 = t272 + t270;
        const V t275 = t272 - t270;
        // real block of 11
        const V t276 = t271 - t273;
        const V t277 = t273 + t271;
        // input stage
        const V x6 = io.in(6);
        const V x40 = io.in(40);
        const V t278 = x6 + x40;
        const V t279 = x6 - x40;
        const V x16 = io.in(16);
        const V x30 = io.in(30);
        const V t280 = x16 + x30;
        const V t281 = x16 - x30;
        // real block of 11
        const V t282 = t280 - t278;
        // real block of 11
        const V t283 = t281 - t279;
        // input stage
        const V x10 = io.in(10);
        const V x36 = io.in(36);
        const V t284 = x10 + x36;
        const V t285 = x10 - x36;
        const V x18 = io.in(18);
        const V x28 = io.in(28);
        const V t286 = x18 + x28;
        const V t287 = x18 - x28;
        // real block of 11
        const V t288 = t284 + t286;
        const V t289 = t284 - t286;
        // real block of 11
        const V t290 = t287 - t285;
        const V t291 = t285 + t287;
        // input stage
        const V x14 = io.in(14);
        const V x32 = io.in(32);
        const V t292 = x14 + x32;
        const V t293 = x14 - x32;
        const V x20 = io.in(20);
        const V x26 = io.in(26);
        const V t294 = x20 + x26;
        const V t295 = x20 - x26;
        // real block of 11
        const V t296 = t294 - t292;
        // real block of 11
        const V t297 = t293 - t295;
        // real block of 11
        const V t298 = t294 + t292;
        const V t299 = t288 + t274;
        const V t300 = t299 + t298;
        const V t301 = c[0] * t298;
        const V t302 = c[1] * t298;
        const V t303 = c[2] * t298;
        const V t304 = c[3] * t298;
        const V t305 = c[4] * t298;
        const V t306 = t280 + t278;
        const V t307 = c[1] * t306;
        const V t308 = c[3] * t306;
        const V t309 = c[3] * t288;
        const V t310 = c[2] * t274;
        const V t311 = t309 + t310;
        const V t312 = c[5] * t289;
        const V t313 = c[6] * t275;
        const V t314 = c[7] * t282;
        const V t315 = t313 + t314;
        const V t316 = c[8] * t296;
        const V t317 = c[2] * t288;
        const V t318 = c[4] * t274;
        const V t319 = t317 - t318;
        const V t320 = c[6] * t289;
        const V t321 = c[9] * t275;
        const V t322 = c[7] * t296;
        const V t323 = t321 + t322;
        const V t324 = c[0] * t288;
        const V t325 = t268 - t324;
        const V t326 = c[1] * t274;
        const V t327 = c[8] * t289;
        const V t328 = c[7] * t275;
        const V t329 = c[6] * t296;
        const V t330 = c[9] * t282;
        const V t331 = t329 + t330;
        const V t332 = c[4] * t288;
        const V t333 = t268 - t332;
        const V t334 = c[0] * t274;
        const V t335 = c[9] * t289;
        const V t336 = c[8] * t275;
        const V t337 = t335 + t336;
        const V t338 = c[5] * t296;
        const V t339 = c[1] * t288;
        const V t340 = t268 - t339;
        const V t341 = c[3] * t274;
        const V t342 = c[7] * t289;
        const V t343 = c[8] * t282;
        // real block of 11
        const V t344 = t295 + t293;
        const V t345 = t290 + t276;
        const V t346 = t345 - t344;
        const V t347 = c[0] * t344;
        const V t348 = c[1] * t344;
        const V t349 = c[2] * t344;
        const V t350 = c[3] * t344;
        const V t351 = c[4] * t344;
        const V t352 = t281 + t279;
        const V t353 = c[1] * t352;
        const V t354 = c[3] * t352;
        const V t355 = c[3] * t290;
        const V t356 = c[2] * t276;
        const V t357 = t355 + t356;
        const V t358 = c[5] * t291;
        const V t359 = c[7] * t283;
        const V t360 = t358 + t359;
        const V t361 = c[6] * t277;
        const V t362 = c[8] * t297;
        const V t363 = c[2] * t290;
        const V t364 = c[4] * t276;
        const V t365 = t363 - t364;
        const V t366 = c[6] * t291;
        const V t367 = c[7] * t297;
        const V t368 = t366 + t367;
        const V t369 = c[9] * t277;
        const V t370 = c[0] * t290;
        const V t371 = t269 - t370;
        const V t372 = c[1] * t276;
        const V t373 = c[8] * t291;
        const V t374 = c[7] * t277;
        const V t375 = t373 + t374;
        const V t376 = c[6] * t297;
        const V t377 = c[9] * t283;
        const V t378 = c[4] * t290;
        const V t379 = t269 - t378;
        const V t380 = c[0] * t276;
        const V t381 = c[9] * t291;
        const V t382 = c[8] * t277;
        const V t383 = t381 + t382;
        const V t384 = c[5] * t297;
        const V t385 = c[1] * t290;
        const V t386 = t269 - t385;
        const V t387 = c[3] * t276;
        const V t388 = c[7] * t291;
        const V t389 = c[5] * t277;
        // input stage
        const V x8 = io.in(8);
        const V x38 = io.in(38);
        const V t390 = x8 + x38;
        const V t391 = x8 - x38;
        const V x12 = io.in(12);
        const V x34 = io.in(34);
        const V t392 = x12 + x34;
        const V t393 = x12 - x34;
        // real block of 11
        const V t394 = t390 + t392;
        const V t395 = c[4] * t394;
        const V t396 = c[0] * t394;
        const V t397 = c[3] * t394;
        const V t398 = t390 - t392;
        const V t399 = c[8] * t398;
        const V t400 = c[7] * t398;
        const V t401 = c[6] * t398;
        // real block of 11
        const V t402 = t391 + t393;
        const V t403 = c[4] * t402;
        const V t404 = c[0] * t402;
        const V t405 = c[3] * t402;
        const V t406 = t391 - t393;
        const V t407 = c[8] * t406;
        const V t408 = c[7] * t406;
        const V t409 = c[6] * t406;
        // real block of 11
        const V t410 = t300 + t394;
        const V t411 = t410 + t306;
        const V t412 = t411 + t268;
        // spectrum block of 23, multiplier 2
        const V t413 = c[30] * t412;
        // real block of 11
        const V t414 = t311 - t301;
        const V t415 = t414 - t395;
        const V t416 = t415 - t307;
        const V t417 = t416 + t268;
        // spectrum block of 23, multiplier 2
        const V t418 = c[10] * t417;
        const V t419 = c[11] * t417;
        // real block of 11
        const V t420 = c[9] * t398;
        const V t421 = t315 - t312;
        const V t422 = t421 - t316;
        const V t423 = t422 - t420;
        // spectrum block of 23, multiplier 2
        const V t424 = c[11] * t423;
        const V t425 = c[10] * t423;
        // real block of 11
        const V t426 = t319 - t302;
        const V t427 = t426 - t396;
        const V t428 = t427 + t308;
        const V t429 = t428 + t268;
        // spectrum block of 23, multiplier 2
        const V t430 = c[12] * t429;
        const V t431 = c[13] * t429;
        // real block of 11
        const V t432 = c[5] * t282;
        const V t433 = t323 + t399;
        const V t434 = t433 - t320;
        const V t435 = t434 - t432;
        // spectrum block of 23, multiplier 2
        const V t436 = c[13] * t435;
        const V t437 = c[12] * t435;
        // real block of 11
        const V t438 = t325 - t326;
        const V t439 = t438 + t303;
        const V t440 = t439 + t397;
        const V t441 = c[4] * t306;
        const V t442 = t440 - t441;
        // spectrum block of 23, multiplier 2
        const V t443 = c[14] * t442;
        // real block of 11
        const V t444 = c[5] * t398;
        const V t445 = t331 - t327;
        const V t446 = t445 - t328;
        const V t447 = t446 - t444;
        // spectrum block of 23, multiplier 2
        const V t448 = c[15] * t447;
        const V t449 = c[14] * t447;
        // real block of 11
        const V t450 = t333 - t334;
        const V t451 = t450 + t304;
        const V t452 = c[1] * t394;
        const V t453 = c[2] * t306;
        const V t454 = t451 - t452;
        const V t455 = t454 + t453;
        const V t456 = c[6] * t282;
        const V t457 = t337 + t338;
        const V t458 = t457 + t400;
        const V t459 = t458 + t456;
        // spectrum block of 23, multiplier 2
        const V t460 = c[16] * t459;
        // real block of 11
        const V t461 = t340 + t341;
        const V t462 = t461 - t305;
        const V t463 = c[2] * t394;
        const V t464 = c[0] * t306;
        const V t465 = t462 + t463;
        const V t466 = t465 - t464;
        const V t467 = c[5] * t275;
        const V t468 = c[9] * t296;
        const V t469 = t401 + t343;
        const V t470 = t469 - t342;
        const V t471 = t470 - t467;
        const V t472 = t471 - t468;
        // real block of 11
        const V t473 = t346 + t402;
        const V t474 = t473 + t352;
        const V t475 = t474 + t269;
        // spectrum block of 23, multiplier 2
        const V t476 = c[31] * t475;
        // real block of 11
        const V t477 = t357 + t347;
        const V t478 = t477 - t403;
        const V t479 = t478 - t353;
        const V t480 = t479 + t269;
        // spectrum block of 23, multiplier 2
        const V t481 = c[17] * t480;
        const V t482 = c[18] * t480;
        // real block of 11
        const V t483 = c[9] * t406;
        const V t484 = t360 - t361;
        const V t485 = t484 - t362;
        const V t486 = t485 - t483;
        // spectrum block of 23, multiplier 2
        const V t487 = c[18] * t486;
        const V t488 = c[17] * t486;
        // real block of 11
        const V t489 = t365 + t348;
        const V t490 = t489 - t404;
        const V t491 = t490 + t354;
        const V t492 = t491 + t269;
        // spectrum block of 23, multiplier 2
        const V t493 = c[19] * t492;
        const V t494 = c[20] * t492;
        // real block of 11
        const V t495 = c[5] * t283;
        const V t496 = t368 + t407;
        const V t497 = t496 - t369;
        const V t498 = t497 - t495;
        // spectrum block of 23, multiplier 2
        const V t499 = c[20] * t498;
        const V t500 = c[19] * t498;
        // real block of 11
        const V t501 = t371 - t372;
        const V t502 = t501 - t349;
        const V t503 = t502 + t405;
        const V t504 = c[4] * t352;
        const V t505 = t503 - t504;
        // spectrum block of 23, multiplier 2
        const V t506 = c[21] * t505;
        // real block of 11
        const V t507 = c[5] * t406;
        const V t508 = t375 + t376;
        const V t509 = t508 + t377;
        const V t510 = t509 - t507;
        // spectrum block of 23, multiplier 2
        const V t511 = c[22] * t510;
        const V t512 = c[21] * t510;
        // real block of 11
        const V t513 = t379 - t380;
        const V t514 = t513 - t350;
        const V t515 = c[1] * t402;
        const V t516 = c[2] * t352;
        const V t517 = t514 - t515;
        const V t518 = t517 + t516;
        const V t519 = c[6] * t283;
        const V t520 = t383 - t384;
        const V t521 = t520 - t408;
        const V t522 = t521 - t519;
        // spectrum block of 23, multiplier 2
        const V t523 = c[23] * t522;
        // real block of 11
        const V t524 = t386 + t387;
        const V t525 = t524 + t351;
        const V t526 = c[2] * t402;
        const V t527 = c[0] * t352;
        const V t528 = t525 + t526;
        const V t529 = t528 - t527;
        const V t530 = c[9] * t297;
        const V t531 = c[8] * t283;
        const V t532 = t388 + t389;
        const V t533 = t532 + t409;
        const V t534 = t533 + t531;
        const V t535 = t534 - t530;
        // spectrum block of 23, multiplier 2
        const V x0 = io.in(0);
        const V t536 = x0 - t413;
        const V t537 = t418 - t424;
        // spectrum block of 11, multiplier 2
        const V t538 = c[3] * t537;
        const V t539 = c[2] * t537;
        const V t540 = c[0] * t537;
        const V t541 = c[4] * t537;
        const V t542 = c[1] * t537;
        // spectrum block of 23, multiplier 2
        const V t543 = t436 - t430;
        // spectrum block of 11, multiplier 2
        const V t544 = c[2] * t543;
        const V t545 = c[4] * t543;
        const V t546 = t537 + t543;
        const V t547 = t538 + t544;
        const V t548 = t539 - t545;
        const V t549 = t536 - t540;
        const V t550 = c[1] * t543;
        const V t551 = t536 - t541;
        const V t552 = c[0] * t543;
        const V t553 = t536 - t542;
        const V t554 = c[3] * t543;
        // spectrum block of 23, multiplier 2
        const V t555 = t448 - t443;
        // spectrum block of 11, multiplier 2
        const V t556 = c[0] * t555;
        const V t557 = c[1] * t555;
        const V t558 = c[2] * t555;
        const V t559 = c[3] * t555;
        const V t560 = c[4] * t555;
        // spectrum block of 23, multiplier 2
        const V t561 = c[24] * t455;
        const V t562 = t561 + t460;
        // spectrum block of 11, multiplier 2
        const V t563 = t546 + t555;
        const V t564 = t563 + t562;
        const V t565 = t547 - t556;
        const V t566 = c[4] * t562;
        const V t567 = t565 - t566;
        const V t568 = t548 - t557;
        const V t569 = c[0] * t562;
        const V t570 = t568 - t569;
        const V t571 = t549 - t550;
        const V t572 = t571 + t558;
        const V t573 = c[3] * t562;
        const V t574 = t551 - t552;
        const V t575 = t574 + t559;
        const V t576 = c[1] * t562;
        const V t577 = t553 + t554;
        const V t578 = t577 - t560;
        const V t579 = c[2] * t562;
        // spectrum block of 23, multiplier 2
        const V t580 = c[25] * t535;
        const V t581 = c[26] * t529;
        const V t582 = t580 - t581;
        // spectrum block of 11, multiplier 2
        const V t583 = c[1] * t582;
        const V t584 = c[3] * t582;
        const V t585 = c[4] * t582;
        const V t586 = c[2] * t582;
        const V t587 = c[0] * t582;
        // spectrum block of 23, multiplier 2
        const V t588 = c[25] * t529;
        const V t589 = c[26] * t535;
        const V t590 = t589 + t588;
        // spectrum block of 11, multiplier 2
        const V t591 = c[7] * t590;
        const V t592 = c[5] * t590;
        const V t593 = c[9] * t590;
        const V t594 = c[6] * t590;
        const V t595 = c[8] * t590;
        // spectrum block of 23, multiplier 2
        const V t596 = t425 + t419;
        // spectrum block of 11, multiplier 2
        const V t597 = c[5] * t596;
        const V t598 = c[6] * t596;
        const V t599 = c[8] * t596;
        const V t600 = c[9] * t596;
        const V t601 = c[7] * t596;
        // spectrum block of 23, multiplier 2
        const V t602 = t437 + t431;
        // spectrum block of 11, multiplier 2
        const V t603 = c[6] * t602;
        const V t604 = c[9] * t602;
        const V t605 = c[7] * t602;
        const V t606 = c[8] * t602;
        const V t607 = c[5] * t602;
        const V t608 = t597 - t603;
        const V t609 = t598 - t604;
        const V t610 = t599 + t605;
        const V t611 = t600 + t606;
        const V t612 = t601 + t607;
        // spectrum block of 23, multiplier 2
        const V t613 = c[15] * t442;
        const V t614 = t449 + t613;
        // spectrum block of 11, multiplier 2
        const V t615 = c[8] * t614;
        const V t616 = c[7] * t614;
        const V t617 = c[6] * t614;
        const V t618 = c[5] * t614;
        const V t619 = c[9] * t614;
        // spectrum block of 23, multiplier 2
        const V t620 = c[16] * t455;
        const V t621 = c[24] * t459;
        const V t622 = t620 - t621;
        // spectrum block of 11, multiplier 2
        const V t623 = t608 - t615;
        const V t624 = c[9] * t622;
        const V t625 = t623 + t624;
        const V t626 = t609 + t616;
        const V t627 = c[8] * t622;
        const V t628 = t626 - t627;
        const V t629 = t610 + t617;
        const V t630 = c[5] * t622;
        const V t631 = t629 + t630;
        const V t632 = t611 - t618;
        const V t633 = c[7] * t622;
        const V t634 = t632 + t633;
        const V t635 = t612 - t619;
        const V t636 = c[6] * t622;
        const V t637 = t635 - t636;
        // spectrum block of 23, multiplier 2
        const V t638 = c[27] * t518;
        const V t639 = t638 + t523;
        const V t640 = t511 - t506;
        // spectrum block of 11, multiplier 2
        const V t641 = c[0] * t640;
        const V t642 = c[1] * t640;
        const V t643 = c[2] * t640;
        const V t644 = c[3] * t640;
        const V t645 = c[4] * t640;
        // spectrum block of 23, multiplier 2
        const V t646 = t493 - t499;
        // spectrum block of 11, multiplier 2
        const V t647 = c[2] * t646;
        const V t648 = c[4] * t646;
        // spectrum block of 23, multiplier 2
        const V t649 = t481 + t487;
        // spectrum block of 11, multiplier 2
        const V t650 = c[3] * t649;
        const V t651 = c[2] * t649;
        const V t652 = c[0] * t649;
        const V t653 = c[4] * t649;
        const V t654 = c[1] * t649;
        const V t655 = t649 + t646;
        const V t656 = t650 + t647;
        const V t657 = t651 - t648;
        const V t658 = t476 + t652;
        const V t659 = c[1] * t646;
        const V t660 = t476 + t653;
        const V t661 = c[0] * t646;
        const V t662 = t476 + t654;
        const V t663 = c[3] * t646;
        const V t664 = t655 + t640;
        const V t665 = t664 - t639;
        const V t666 = t656 - t641;
        const V t667 = c[4] * t639;
        const V t668 = t666 + t667;
        const V t669 = t657 - t642;
        const V t670 = c[0] * t639;
        const V t671 = t669 + t670;
        const V t672 = t658 + t659;
        const V t673 = t643 - t672;
        const V t674 = c[3] * t639;
        const V t675 = t660 + t661;
        const V t676 = t644 - t675;
        const V t677 = c[1] * t639;
        const V t678 = t663 - t662;
        const V t679 = t678 - t645;
        const V t680 = c[2] * t639;
        // spectrum block of 23, multiplier 2
        const V t681 = c[23] * t518;
        const V t682 = c[27] * t522;
        const V t683 = t682 - t681;
        const V t684 = c[22] * t505;
        const V t685 = t512 + t684;
        // spectrum block of 11, multiplier 2
        const V t686 = c[8] * t685;
        const V t687 = c[7] * t685;
        const V t688 = c[6] * t685;
        const V t689 = c[5] * t685;
        const V t690 = c[9] * t685;
        // spectrum block of 23, multiplier 2
        const V t691 = t500 + t494;
        // spectrum block of 11, multiplier 2
        const V t692 = c[6] * t691;
        const V t693 = c[9] * t691;
        const V t694 = c[7] * t691;
        const V t695 = c[8] * t691;
        const V t696 = c[5] * t691;
        // spectrum block of 23, multiplier 2
        const V t697 = t482 - t488;
        // spectrum block of 11, multiplier 2
        const V t698 = c[5] * t697;
        const V t699 = c[6] * t697;
        const V t700 = c[8] * t697;
        const V t701 = c[9] * t697;
        const V t702 = c[7] * t697;
        const V t703 = t692 - t698;
        const V t704 = t693 - t699;
        const V t705 = t700 + t694;
        const V t706 = t701 + t695;
        const V t707 = t702 + t696;
        const V t708 = t703 - t686;
        const V t709 = c[9] * t683;
        const V t710 = t708 - t709;
        const V t711 = t704 + t687;
        const V t712 = c[8] * t683;
        const V t713 = t711 + t712;
        const V t714 = t688 - t705;
        const V t715 = c[5] * t683;
        const V t716 = t714 - t715;
        const V t717 = t706 + t689;
        const V t718 = c[7] * t683;
        const V t719 = t717 + t718;
        const V t720 = t707 + t690;
        const V t721 = c[6] * t683;
        const V t722 = t721 - t720;
        // spectrum block of 23, multiplier 2
        const V t723 = c[28] * t472;
        const V t724 = c[29] * t466;
        const V t725 = t724 - t723;
        // spectrum block of 11, multiplier 2
        const V t726 = c[1] * t725;
        const V t727 = c[3] * t725;
        const V t728 = c[4] * t725;
        const V t729 = c[2] * t725;
        const V t730 = c[0] * t725;
        // spectrum block of 23, multiplier 2
        const V t731 = c[28] * t466;
        const V t732 = c[29] * t472;
        const V t733 = t732 + t731;
        // spectrum block of 11, multiplier 2
        const V t734 = c[7] * t733;
        const V t735 = c[5] * t733;
        const V t736 = c[9] * t733;
        const V t737 = c[6] * t733;
        const V t738 = c[8] * t733;
        // spectrum block of 23, multiplier 2
        const V x23 = io.in(23);
        const V t739 = x23 - t145;
        const V t740 = t150 - t156;
        // spectrum block of 11, multiplier 2
        const V t741 = c[3] * t740;
        const V t742 = c[2] * t740;
        const V t743 = c[0] * t740;
        const V t744 = c[4] * t740;
        const V t745 = c[1] * t740;
        // spectrum block of 23, multiplier 2
        const V t746 = t168 - t162;
        // spectrum block of 11, multiplier 2
        const V t747 = c[2] * t746;
        const V t748 = c[4] * t746;
        const V t749 = t740 + t746;
        const V t750 = t741 + t747;
        const V t751 = t742 - t748;
        const V t752 = t739 - t743;
        const V t753 = c[1] * t746;
        const V t754 = t739 - t744;
        const V t755 = c[0] * t746;
        const V t756 = t739 - t745;
        const V t757 = c[3] * t746;
        // spectrum block of 23, multiplier 2
        const V t758 = t180 - t175;
        // spectrum block of 11, multiplier 2
        const V t759 = c[0] * t758;
        const V t760 = c[1] * t758;
        const V t761 = c[2] * t758;
        const V t762 = c[3] * t758;
        const V t763 = c[4] * t758;
        // spectrum block of 23, multiplier 2
        const V t764 = c[24] * t187;
        const V t765 = t764 + t192;
        // spectrum block of 11, multiplier 2
        const V t766 = t749 + t758;
        const V t767 = t766 + t765;
        const V t768 = t750 - t759;
        const V t769 = c[4] * t765;
        const V t770 = t768 - t769;
        const V t771 = t751 - t760;
        const V t772 = c[0] * t765;
        const V t773 = t771 - t772;
        const V t774 = t752 - t753;
        const V t775 = t774 + t761;
        const V t776 = c[3] * t765;
        const V t777 = t754 - t755;
        const V t778 = t777 + t762;
        const V t779 = c[1] * t765;
        const V t780 = t756 + t757;
        const V t781 = t780 - t763;
        const V t782 = c[2] * t765;
        // spectrum block of 23, multiplier 2
        const V t783 = c[25] * t267;
        const V t784 = c[26] * t261;
        const V t785 = t783 - t784;
        // spectrum block of 11, multiplier 2
        const V t786 = c[1] * t785;
        const V t787 = c[3] * t785;
        const V t788 = c[4] * t785;
        const V t789 = c[2] * t785;
        const V t790 = c[0] * t785;
        // spectrum block of 23, multiplier 2
        const V t791 = c[25] * t261;
        const V t792 = c[26] * t267;
        const V t793 = t792 + t791;
        // spectrum block of 11, multiplier 2
        const V t794 = c[7] * t793;
        const V t795 = c[5] * t793;
        const V t796 = c[9] * t793;
        const V t797 = c[6] * t793;
        const V t798 = c[8] * t793;
        // spectrum block of 23, multiplier 2
        const V t799 = t157 + t151;
        // spectrum block of 11, multiplier 2
        const V t800 = c[5] * t799;
        const V t801 = c[6] * t799;
        const V t802 = c[8] * t799;
        const V t803 = c[9] * t799;
        const V t804 = c[7] * t799;
        // spectrum block of 23, multiplier 2
        const V t805 = t169 + t163;
        // spectrum block of 11, multiplier 2
        const V t806 = c[6] * t805;
        const V t807 = c[9] * t805;
        const V t808 = c[7] * t805;
        const V t809 = c[8] * t805;
        const V t810 = c[5] * t805;
        const V t811 = t800 - t806;
        const V t812 = t801 - t807;
        const V t813 = t802 + t808;
        const V t814 = t803 + t809;
        const V t815 = t804 + t810;
        // spectrum block of 23, multiplier 2
        const V t816 = c[15] * t174;
        const V t817 = t181 + t816;
        // spectrum block of 11, multiplier 2
        const V t818 = c[8] * t817;
        const V t819 = c[7] * t817;
        const V t820 = c[6] * t817;
        const V t821 = c[5] * t817;
        const V t822 = c[9] * t817;
        // spectrum block of 23, multiplier 2
        const V t823 = c[16] * t187;
        const V t824 = c[24] * t191;
        const V t825 = t823 - t824;
        // spectrum block of 11, multiplier 2
        const V t826 = t811 - t818;
        const V t827 = c[9] * t825;
        const V t828 = t826 + t827;
        const V t829 = t812 + t819;
        const V t830 = c[8] * t825;
        const V t831 = t829 - t830;
        const V t832 = t813 + t820;
        const V t833 = c[5] * t825;
        const V t834 = t832 + t833;
        const V t835 = t814 - t821;
        const V t836 = c[7] * t825;
        const V t837 = t835 + t836;
        const V t838 = t815 - t822;
        const V t839 = c[6] * t825;
        const V t840 = t838 - t839;
        // spectrum block of 23, multiplier 2
        const V t841 = c[27] * t250;
        const V t842 = t255 - t841;
        const V t843 = t243 - t238;
        // spectrum block of 11, multiplier 2
        const V t844 = c[0] * t843;
        const V t845 = c[1] * t843;
        const V t846 = c[2] * t843;
        const V t847 = c[3] * t843;
        const V t848 = c[4] * t843;
        // spectrum block of 23, multiplier 2
        const V t849 = t225 - t231;
        // spectrum block of 11, multiplier 2
        const V t850 = c[2] * t849;
        const V t851 = c[4] * t849;
        // spectrum block of 23, multiplier 2
        const V t852 = t213 + t219;
        // spectrum block of 11, multiplier 2
        const V t853 = c[3] * t852;
        const V t854 = c[2] * t852;
        const V t855 = c[0] * t852;
        const V t856 = c[4] * t852;
        const V t857 = c[1] * t852;
        const V t858 = t852 + t849;
        const V t859 = t853 + t850;
        const V t860 = t854 - t851;
        const V t861 = t208 + t855;
        const V t862 = c[1] * t849;
        const V t863 = t208 + t856;
        const V t864 = c[0] * t849;
        const V t865 = t208 + t857;
        const V t866 = c[3] * t849;
        const V t867 = t858 + t843;
        const V t868 = t867 + t842;
        const V t869 = t859 - t844;
        const V t870 = c[4] * t842;
        const V t871 = t869 - t870;
        const V t872 = t860 - t845;
        const V t873 = c[0] * t842;
        const V t874 = t872 - t873;
        const V t875 = t861 + t862;
        const V t876 = t846 - t875;
        const V t877 = c[3] * t842;
        const V t878 = t863 + t864;
        const V t879 = t847 - t878;
        const V t880 = c[1] * t842;
        const V t881 = t866 - t865;
        const V t882 = t881 - t848;
        const V t883 = c[2] * t842;
        // spectrum block of 23, multiplier 2
        const V t884 = c[23] * t250;
        const V t885 = c[27] * t254;
        const V t886 = t885 + t884;
        const V t887 = c[22] * t237;
        const V t888 = t244 + t887;
        // spectrum block of 11, multiplier 2
        const V t889 = c[8] * t888;
        const V t890 = c[7] * t888;
        const V t891 = c[6] * t888;
        const V t892 = c[5] * t888;
        const V t893 = c[9] * t888;
        // spectrum block of 23, multiplier 2
        const V t894 = t232 + t226;
        // spectrum block of 11, multiplier 2
        const V t895 = c[6] * t894;
        const V t896 = c[9] * t894;
        const V t897 = c[7] * t894;
        const V t898 = c[8] * t894;
        const V t899 = c[5] * t894;
        // spectrum block of 23, multiplier 2
        const V t900 = t214 - t220;
        // spectrum block of 11, multiplier 2
        const V t901 = c[5] * t900;
        const V t902 = c[6] * t900;
        const V t903 = c[8] * t900;
        const V t904 = c[9] * t900;
        const V t905 = c[7] * t900;
        const V t906 = t895 - t901;
        const V t907 = t896 - t902;
        const V t908 = t903 + t897;
        const V t909 = t904 + t898;
        const V t910 = t905 + t899;
        const V t911 = t906 - t889;
        const V t912 = c[9] * t886;
        const V t913 = t911 + t912;
        const V t914 = t907 + t890;
        const V t915 = c[8] * t886;
        const V t916 = t914 - t915;
        const V t917 = t891 - t908;
        const V t918 = c[5] * t886;
        const V t919 = t917 + t918;
        const V t920 = t909 + t892;
        const V t921 = c[7] * t886;
        const V t922 = t921 - t920;
        const V t923 = t910 + t893;
        const V t924 = c[6] * t886;
        const V t925 = t923 + t924;
        // spectrum block of 23, multiplier 2
        const V t926 = c[28] * t204;
        const V t927 = c[29] * t198;
        const V t928 = t927 - t926;
        // spectrum block of 11, multiplier 2
        const V t929 = c[1] * t928;
        const V t930 = c[3] * t928;
        const V t931 = c[4] * t928;
        const V t932 = c[2] * t928;
        const V t933 = c[0] * t928;
        // spectrum block of 23, multiplier 2
        const V t934 = c[28] * t198;
        const V t935 = c[29] * t204;
        const V t936 = t935 + t934;
        // spectrum block of 11, multiplier 2
        const V t937 = c[7] * t936;
        const V t938 = c[5] * t936;
        const V t939 = c[9] * t936;
        const V t940 = c[6] * t936;
        const V t941 = c[8] * t936;
        // spectrum block of 11, multiplier 2
        const V t942 = t564 + t725;
        const V t943 = t942 + t536;
        // spectrum block of 11, multiplier 2
        const V t944 = t665 + t582;
        const V t945 = t944 - t476;
        // spectrum block of 11, multiplier 2
        const V t946 = t767 + t928;
        const V t947 = t946 + t739;
        // spectrum block of 11, multiplier 2
        const V t948 = t868 + t785;
        const V t949 = t948 - t208;
        // spectrum block of 2
        const V t950 = t943 + t945;
        // spectrum block of 2
        const V t951 = t947 + t949;
        // spectrum block of 2
        const V t952 = t950 + t951;
        io.out(44, t952);
        const V t953 = t950 - t951;
        io.out(21, t953);
        // spectrum block of 2
        const V t954 = t943 - t945;
        // spectrum block of 2
        const V t955 = t947 - t949;
        // spectrum block of 2
        const V t956 = t954 + t955;
        io.out(2, t956);
        const V t957 = t954 - t955;
        io.out(25, t957);
        // spectrum block of 11, multiplier 2
        const V t958 = t567 - t726;
        const V t959 = t958 + t536;
        const V t960 = t625 + t734;
        const V t961 = t959 - t960;
        const V t962 = t959 + t960;
        // spectrum block of 11, multiplier 2
        const V t963 = t668 - t583;
        const V t964 = t963 - t476;
        const V t965 = t710 - t591;
        const V t966 = t964 - t965;
        const V t967 = t964 + t965;
        // spectrum block of 11, multiplier 2
        const V t968 = t770 - t929;
        const V t969 = t968 + t739;
        const V t970 = t828 + t937;
        const V t971 = t969 - t970;
        const V t972 = t969 + t970;
        // spectrum block of 11, multiplier 2
        const V t973 = t871 - t786;
        const V t974 = t973 - t208;
        const V t975 = t913 - t794;
        const V t976 = t974 - t975;
        const V t977 = t974 + t975;
        // spectrum block of 2
        const V t978 = t962 + t967;
        // spectrum block of 2
        const V t979 = t972 + t977;
        // spectrum block of 2
        const V t980 = t978 + t979;
        io.out(10, t980);
        const V t981 = t978 - t979;
        io.out(33, t981);
        // spectrum block of 2
        const V t982 = t962 - t967;
        // spectrum block of 2
        const V t983 = t972 - t977;
        // spectrum block of 2
        const V t984 = t982 + t983;
        io.out(36, t984);
        const V t985 = t982 - t983;
        io.out(13, t985);
        // spectrum block of 2
        const V t986 = t961 + t966;
        // spectrum block of 2
        const V t987 = t971 + t976;
        // spectrum block of 2
        const V t988 = t986 + t987;
        io.out(28, t988);
        const V t989 = t986 - t987;
        io.out(5, t989);
        // spectrum block of 2
        const V t990 = t961 - t966;
        // spectrum block of 2
        const V t991 = t971 - t976;
        // spectrum block of 2
        const V t992 = t990 + t991;
        io.out(18, t992);
        const V t993 = t990 - t991;
        io.out(41, t993);
        // spectrum block of 11, multiplier 2
        const V t994 = t570 + t727;
        const V t995 = t994 + t536;
        const V t996 = t628 - t735;
        const V t997 = t995 - t996;
        const V t998 = t995 + t996;
        // spectrum block of 11, multiplier 2
        const V t999 = t671 + t584;
        const V t1000 = t999 - t476;
        const V t1001 = t713 + t592;
        const V t1002 = t1000 - t1001;
        const V t1003 = t1000 + t1001;
        // spectrum block of 11, multiplier 2
        const V t1004 = t773 + t930;
        const V t1005 = t1004 + t739;
        const V t1006 = t831 - t938;
        const V t1007 = t1005 - t1006;
        const V t1008 = t1005 + t1006;
        // spectrum block of 11, multiplier 2
        const V t1009 = t874 + t787;
        const V t1010 = t1009 - t208;
        const V t1011 = t916 + t795;
        const V t1012 = t1010 - t1011;
        const V t1013 = t1010 + t1011;
        // spectrum block of 2
        const V t1014 = t997 + t1002;
        // spectrum block of 2
        const V t1015 = t1007 + t1012;
        // spectrum block of 2
        const V t1016 = t1014 + t1015;
        io.out(22, t1016);
        const V t1017 = t1014 - t1015;
        io.out(45, t1017);
        // spectrum block of 2
        const V t1018 = t997 - t1002;
        // spectrum block of 2
        const V t1019 = t1007 - t1012;
        // spectrum block of 2
        const V t1020 = t1018 + t1019;
        io.out(24, t1020);
        const V t1021 = t1018 - t1019;
        io.out(1, t1021);
        // spectrum block of 2
        const V t1022 = t998 + t1003;
        // spectrum block of 2
        const V t1023 = t1008 + t1013;
        // spectrum block of 2
        const V t1024 = t1022 + t1023;
        io.out(42, t1024);
        const V t1025 = t1022 - t1023;
        io.out(19, t1025);
        // spectrum block of 2
        const V t1026 = t998 - t1003;
        // spectrum block of 2
        const V t1027 = t1008 - t1013;
        // spectrum block of 2
        const V t1028 = t1026 + t1027;
        io.out(4, t1028);
        const V t1029 = t1026 - t1027;
        io.out(27, t1029);
        // spectrum block of 11, multiplier 2
        const V t1030 = t572 + t573;
        const V t1031 = t1030 - t728;
        const V t1032 = t631 + t736;
        const V t1033 = t1031 - t1032;
        const V t1034 = t1031 + t1032;
        // spectrum block of 11, multiplier 2
        const V t1035 = t673 - t674;
        const V t1036 = t1035 - t585;
        const V t1037 = t716 - t593;
        const V t1038 = t1036 - t1037;
        const V t1039 = t1036 + t1037;
        // spectrum block of 11, multiplier 2
        const V t1040 = t775 + t776;
        const V t1041 = t1040 - t931;
        const V t1042 = t834 + t939;
        const V t1043 = t1041 - t1042;
        const V t1044 = t1041 + t1042;
        // spectrum block of 11, multiplier 2
        const V t1045 = t876 + t877;
        const V t1046 = t1045 - t788;
        const V t1047 = t919 - t796;
        const V t1048 = t1046 - t1047;
        const V t1049 = t1046 + t1047;
        // spectrum block of 2
        const V t1050 = t1034 + t1039;
        // spectrum block of 2
        const V t1051 = t1044 + t1049;
        // spectrum block of 2
        const V t1052 = t1050 + t1051;
        io.out(20, t1052);
        const V t1053 = t1050 - t1051;
        io.out(43, t1053);
        // spectrum block of 2
        const V t1054 = t1034 - t1039;
        // spectrum block of 2
        const V t1055 = t1044 - t1049;
        // spectrum block of 2
        const V t1056 = t1054 + t1055;
        io.out(26, t1056);
        const V t1057 = t1054 - t1055;
        io.out(3, t1057);
        // spectrum block of 2
        const V t1058 = t1033 + t1038;
        // spectrum block of 2
        const V t1059 = t1043 + t1048;
        // spectrum block of 2
        const V t1060 = t1058 + t1059;
        io.out(14, t1060);
        const V t1061 = t1058 - t1059;
        io.out(37, t1061);
        // spectrum block of 2
        const V t1062 = t1033 - t1038;
        // spectrum block of 2
        const V t1063 = t1043 - t1048;
        // spectrum block of 2
        const V t1064 = t1062 + t1063;
        io.out(32, t1064);
        const V t1065 = t1062 - t1063;
        io.out(9, t1065);
        // spectrum block of 11, multiplier 2
        const V t1066 = t575 - t576;
        const V t1067 = t1066 + t729;
        const V t1068 = t634 - t737;
        const V t1069 = t1067 - t1068;
        const V t1070 = t1067 + t1068;
        // spectrum block of 11, multiplier 2
        const V t1071 = t676 + t677;
        const V t1072 = t1071 + t586;
        const V t1073 = t594 - t719;
        const V t1074 = t1072 - t1073;
        const V t1075 = t1072 + t1073;
        // spectrum block of 11, multiplier 2
        const V t1076 = t778 - t779;
        const V t1077 = t1076 + t932;
        const V t1078 = t837 - t940;
        const V t1079 = t1077 - t1078;
        const V t1080 = t1077 + t1078;
        // spectrum block of 11, multiplier 2
        const V t1081 = t879 - t880;
        const V t1082 = t1081 + t789;
        const V t1083 = t922 + t797;
        const V t1084 = t1082 - t1083;
        const V t1085 = t1082 + t1083;
        // spectrum block of 2
        const V t1086 = t1069 + t1074;
        // spectrum block of 2
        const V t1087 = t1079 + t1084;
        // spectrum block of 2
        const V t1088 = t1086 + t1087;
        io.out(34, t1088);
        const V t1089 = t1086 - t1087;
        io.out(11, t1089);
        // spectrum block of 2
        const V t1090 = t1069 - t1074;
        // spectrum block of 2
        const V t1091 = t1079 - t1084;
        // spectrum block of 2
        const V t1092 = t1090 + t1091;
        io.out(12, t1092);
        const V t1093 = t1090 - t1091;
        io.out(35, t1093);
        // spectrum block of 2
        const V t1094 = t1070 + t1075;
        // spectrum block of 2
        const V t1095 = t1080 + t1085;
        // spectrum block of 2
        const V t1096 = t1094 + t1095;
        io.out(38, t1096);
        const V t1097 = t1094 - t1095;
        io.out(15, t1097);
        // spectrum block of 2
        const V t1098 = t1070 - t1075;
        // spectrum block of 2
        const V t1099 = t1080 - t1085;
        // spectrum block of 2
        const V t1100 = t1098 + t1099;
        io.out(8, t1100);
        const V t1101 = t1098 - t1099;
        io.out(31, t1101);
        // spectrum block of 11, multiplier 2
        const V t1102 = t578 + t579;
        const V t1103 = t1102 - t730;
        const V t1104 = t637 + t738;
        const V t1105 = t1103 - t1104;
        const V t1106 = t1103 + t1104;
        // spectrum block of 11, multiplier 2
        const V t1107 = t679 - t680;
        const V t1108 = t1107 - t587;
        const V t1109 = t722 - t595;
        const V t1110 = t1108 - t1109;
        const V t1111 = t1108 + t1109;
        // spectrum block of 11, multiplier 2
        const V t1112 = t781 + t782;
        const V t1113 = t1112 - t933;
        const V t1114 = t840 + t941;
        const V t1115 = t1113 - t1114;
        const V t1116 = t1113 + t1114;
        // spectrum block of 11, multiplier 2
        const V t1117 = t882 + t883;
        const V t1118 = t1117 - t790;
        const V t1119 = t925 + t798;
        const V t1120 = t1118 + t1119;
        const V t1121 = t1118 - t1119;
        // spectrum block of 2
        const V t1122 = t1106 + t1111;
        // spectrum block of 2
        const V t1123 = t1116 + t1121;
        // spectrum block of 2
        const V t1124 = t1122 + t1123;
        io.out(40, t1124);
        const V t1125 = t1122 - t1123;
        io.out(17, t1125);
        // spectrum block of 2
        const V t1126 = t1106 - t1111;
        // spectrum block of 2
        const V t1127 = t1116 - t1121;
        // spectrum block of 2
        const V t1128 = t1126 + t1127;
        io.out(6, t1128);
        const V t1129 = t1126 - t1127;
        io.out(29, t1129);
        // spectrum block of 2
        const V t1130 = t1105 + t1110;
        // spectrum block of 2
        const V t1131 = t1115 + t1120;
        // spectrum block of 2
        const V t1132 = t1130 + t1131;
        io.out(30, t1132);
        const V t1133 = t1130 - t1131;
        io.out(7, t1133);
        // spectrum block of 2
        const V t1134 = t1105 - t1110;
        // spectrum block of 2
        const V t1135 = t1115 - t1120;
        // spectrum block of 2
        const V t1136 = t1134 + t1135;
        io.out(16, t1136);
        const V t1137 = t1134 - t1135;
        io.out(39, t1137);
        // spectrum block of 23, multiplier 2
        const V t1138 = x0 + t412;
        // spectrum block of 23, multiplier 2
        const V t1139 = x23 + t144;
        // spectrum block of 2
        const V t1140 = t1138 + t1139;
        io.out(0, t1140);
        const V t1141 = t1138 - t1139;
        io.out(23, t1141);
    }
};

}  // namespace zulg
