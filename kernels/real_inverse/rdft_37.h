// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 37.
// Inverse DFT to 37 real points, Rader 9, 4.
// 201 additions, 201 subtractions, 272 multiplications (309 with `scale`); 53 constants; 42 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<37> {
    static constexpr int steps = 711;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.3420201433256687,  // c[2]: sin 2 pi 4/9
        0.9396926207859084,  // c[3]: -cos 2 pi 4/9
        0.6427876096865394,  // c[4]: sin 2 pi 4/36
        0.766044443118978,  // c[5]: cos 2 pi 4/36
        0.984807753012208,  // c[6]: sin 2 pi 2/9
        0.17364817766693036,  // c[7]: cos 2 pi 2/9
        0.29019472587628237,  // c[8]: P[1] of 37
        0.1731604803001738,  // c[9]: -Q[1] of 37
        0.27801178968802176,  // c[10]: Q[2] of 37
        0.19211188317920547,  // c[11]: P[2] of 37
        0.3200973041246296,  // c[12]: -P[3] of 37
        0.10832934393017396,  // c[13]: -Q[3] of 37
        0.13371391769319224,  // c[14]: Q[4] of 37
        0.3103516055691282,  // c[15]: P[4] of 37
        0.24288635390370164,  // c[16]: -P[5] of 37
        0.2349547827807796,  // c[17]: Q[5] of 37
        0.25364370716273305,  // c[18]: -P[7] of 37
        0.22329890434335598,  // c[19]: Q[7] of 37
        0.2338246809597342,  // c[20]: Q[8] of 37
        0.24397448521981976,  // c[21]: P[8] of 37
        0.21843027770589768,  // c[22]: P[9] of 37
        0.2578482977363278,  // c[23]: -Q[9] of 37
        0.25216731301218065,  // c[24]: Q[10] of 37
        0.22496483527968195,  // c[25]: -P[10] of 37
        0.1782451073659696,  // c[26]: -P[11] of 37
        0.2870996561549517,  // c[27]: -Q[11] of 37
        0.3301590368394409,  // c[28]: P[13] of 37
        0.07205928987611672,  // c[29]: -Q[13] of 37
        0.2912479292396942,  // c[30]: Q[14] of 37
        0.17138312220807392,  // c[31]: P[14] of 37
        0.15947907926271018,  // c[32]: P[15] of 37
        0.2979328013860101,  // c[33]: Q[15] of 37
        0.32147563578344845,  // c[34]: Q[16] of 37
        0.10416787634306994,  // c[35]: P[16] of 37
        0.3368755881752301,  // c[36]: -P[17] of 37
        0.026690240834250763,  // c[37]: -Q[17] of 37
        0.29619813272602386,  // c[38]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[39]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.6634139481689384,  // c[40]: -sin 2 pi 2/3 times cos 2 pi 4/36
        0.5566703992264194,  // c[41]: -sin 2 pi 2/3 times sin 2 pi 4/36
        0.027777777777777776,  // c[42]: 1/36
        0.3290788923998385,  // c[43]: Q[6] of 37
        0.07684148255397624,  // c[44]: -P[6] of 37
        0.3142620078134601,  // c[45]: -Q[12] of 37
        0.12424540759822993,  // c[46]: P[12] of 37
        0.1689656258416172,  // c[47]: beta of 37
        0.10759967928361923,  // c[48]: -sin 2 pi 2/3 times P[12] of 37
        0.2721588822107602,  // c[49]: -sin 2 pi 2/3 times -Q[12] of 37
        0.06654667595620217,  // c[50]: -sin 2 pi 2/3 times -P[6] of 37
        0.284990680667506,  // c[51]: -sin 2 pi 2/3 times Q[6] of 37
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
        const V x16r = io.re(16);
        const V t30 = two * x16r;
        const V x16i = io.im(16);
        const V t31 = two * x16i;
        const V x17r = io.re(17);
        const V t32 = two * x17r;
        const V x17i = io.im(17);
        const V t33 = two * x17i;
        const V x18r = io.re(18);
        const V t34 = two * x18r;
        const V x18i = io.im(18);
        const V t35 = two * x18i;
        // real block of 2
        const V t36 = t0 + t10;
        const V t37 = t0 - t10;
        // real block of 2
        const V t38 = t6 + t24;
        const V t39 = t6 - t24;
        // real block of 2
        const V t40 = t30 + t28;
        const V t41 = t30 - t28;
        // real block of 2
        const V t42 = t18 + t26;
        const V t43 = t18 - t26;
        // real block of 2
        const V t44 = t4 + t34;
        const V t45 = t4 - t34;
        // real block of 2
        const V t46 = t22 + t2;
        const V t47 = t22 - t2;
        // real block of 2
        const V t48 = t20 + t14;
        const V t49 = t20 - t14;
        // real block of 2
        const V t50 = t12 + t8;
        const V t51 = t12 - t8;
        // real block of 2
        const V t52 = t16 + t32;
        const V t53 = t16 - t32;
        // real block of 3, multiplier 2
        const V t54 = t42 + t48;
        const V t55 = t42 - t48;
        const V t56 = t54 + t36;
        const V t57 = c[0] * t54;
        const V t58 = t36 - t57;
        const V t59 = c[1] * t55;
        // real block of 3, multiplier 2
        const V t60 = t44 + t50;
        const V t61 = t44 - t50;
        const V t62 = t60 + t38;
        const V t63 = c[0] * t60;
        const V t64 = t38 - t63;
        const V t65 = c[1] * t61;
        // real block of 3, multiplier 2
        const V t66 = t46 + t52;
        const V t67 = t46 - t52;
        const V t68 = t66 + t40;
        const V t69 = c[0] * t66;
        const V t70 = t40 - t69;
        const V t71 = c[1] * t67;
        // real block of 3, multiplier 2
        const V t72 = t62 + t68;
        const V t73 = t62 - t68;
        const V t74 = t72 + t56;
        const V t75 = c[0] * t72;
        const V t76 = t56 - t75;
        const V t77 = c[1] * t73;
        // real block of 9, multiplier 2
        const V t78 = c[6] * t65;
        const V t79 = c[7] * t64;
        const V t80 = t79 + t78;
        const V t81 = c[6] * t64;
        const V t82 = c[7] * t65;
        const V t83 = t82 - t81;
        const V t84 = c[2] * t71;
        const V t85 = c[3] * t70;
        const V t86 = t84 - t85;
        const V t87 = c[2] * t70;
        const V t88 = c[3] * t71;
        const V t89 = t88 + t87;
        // complex block of 3, multiplier 2
        const V t90 = t80 + t86;
        const V t91 = t83 - t89;
        const V t92 = t80 - t86;
        const V t93 = t83 + t89;
        const V t94 = t90 + t58;
        const V t95 = t91 + t59;
        const V t96 = c[0] * t90;
        const V t97 = t58 - t96;
        const V t98 = c[0] * t91;
        const V t99 = t59 - t98;
        const V t100 = c[1] * t92;
        const V t101 = c[1] * t93;
        const V t102 = t97 + t101;
        const V t103 = t99 - t100;
        const V t104 = t97 - t101;
        const V t105 = t99 + t100;
        // real block of 3, multiplier 2
        const V t106 = t43 + t49;
        const V t107 = t43 - t49;
        const V t108 = t106 + t37;
        const V t109 = c[0] * t106;
        const V t110 = t37 - t109;
        const V t111 = c[1] * t107;
        // real block of 3, multiplier 2
        const V t112 = t45 + t51;
        const V t113 = t45 - t51;
        const V t114 = t112 + t39;
        const V t115 = c[0] * t112;
        const V t116 = t39 - t115;
        const V t117 = c[1] * t113;
        // real block of 3, multiplier 2
        const V t118 = t47 + t53;
        const V t119 = t47 - t53;
        const V t120 = t118 + t41;
        const V t121 = c[0] * t118;
        const V t122 = t41 - t121;
        const V t123 = c[1] * t119;
        // real block of 3, multiplier 2
        const V t124 = t114 + t120;
        const V t125 = t114 - t120;
        const V t126 = t124 + t108;
        const V t127 = c[0] * t124;
        const V t128 = t108 - t127;
        const V t129 = c[1] * t125;
        // real block of 9, multiplier 2
        const V t130 = c[6] * t117;
        const V t131 = c[7] * t116;
        const V t132 = t131 + t130;
        const V t133 = c[6] * t116;
        const V t134 = c[7] * t117;
        const V t135 = t134 - t133;
        const V t136 = c[2] * t123;
        const V t137 = c[3] * t122;
        const V t138 = t136 - t137;
        const V t139 = c[2] * t122;
        const V t140 = c[3] * t123;
        const V t141 = t140 + t139;
        // complex block of 3, multiplier 2
        const V t142 = t132 + t138;
        const V t143 = t135 - t141;
        const V t144 = t132 - t138;
        const V t145 = t135 + t141;
        const V t146 = t142 + t110;
        const V t147 = t143 + t111;
        const V t148 = c[0] * t142;
        const V t149 = t110 - t148;
        const V t150 = c[0] * t143;
        const V t151 = t111 - t150;
        const V t152 = c[1] * t144;
        const V t153 = c[1] * t145;
        const V t154 = t149 + t153;
        const V t155 = t151 - t152;
        const V t156 = t149 - t153;
        const V t157 = t151 + t152;
        // real block of 3
        const V t158 = t19 - t21;
        const V t159 = t19 + t21;
        const V t160 = t158 + t1;
        const V t161 = c[0] * t158;
        const V t162 = t1 - t161;
        const V t163 = c[1] * t159;
        // real block of 3
        const V t164 = t29 - t33;
        const V t165 = t33 + t29;
        const V t166 = t164 + t3;
        const V t167 = c[0] * t164;
        const V t168 = t3 - t167;
        const V t169 = c[1] * t165;
        // real block of 3
        const V t170 = t5 - t13;
        const V t171 = t5 + t13;
        const V t172 = t170 + t7;
        const V t173 = c[0] * t170;
        const V t174 = t7 - t173;
        const V t175 = c[1] * t171;
        // real block of 3
        const V t176 = t11 - t27;
        const V t177 = t11 + t27;
        const V t178 = t176 + t15;
        const V t179 = c[0] * t176;
        const V t180 = t15 - t179;
        const V t181 = c[1] * t177;
        // real block of 3
        const V t182 = t23 + t17;
        const V t183 = t23 - t17;
        const V t184 = t182 + t31;
        const V t185 = c[0] * t182;
        const V t186 = t31 - t185;
        const V t187 = c[1] * t183;
        // real block of 3
        const V t188 = t35 - t25;
        const V t189 = t25 + t35;
        const V t190 = t188 - t9;
        const V t191 = c[0] * t188;
        const V t192 = t9 + t191;
        const V t193 = c[1] * t189;
        // skew block of 18
        const V t194 = c[7] * t169;
        const V t195 = c[6] * t168;
        const V t196 = t195 - t194;
        const V t197 = c[7] * t168;
        const V t198 = c[6] * t169;
        const V t199 = t198 + t197;
        const V t200 = c[2] * t175;
        const V t201 = c[3] * t174;
        const V t202 = t201 + t200;
        const V t203 = c[2] * t174;
        const V t204 = c[3] * t175;
        const V t205 = t204 - t203;
        const V t206 = c[0] * t181;
        const V t207 = c[1] * t180;
        const V t208 = t207 + t206;
        const V t209 = c[0] * t180;
        const V t210 = c[1] * t181;
        const V t211 = t210 - t209;
        const V t212 = c[4] * t187;
        const V t213 = c[5] * t186;
        const V t214 = t213 + t212;
        const V t215 = c[4] * t186;
        const V t216 = c[5] * t187;
        const V t217 = t216 - t215;
        const V t218 = c[5] * t193;
        const V t219 = c[4] * t192;
        const V t220 = t219 + t218;
        const V t221 = c[5] * t192;
        const V t222 = c[4] * t193;
        const V t223 = t221 - t222;
        // complex block of 3, multiplier 2
        const V t224 = t202 + t214;
        const V t225 = t205 + t217;
        const V t226 = t202 - t214;
        const V t227 = t205 - t217;
        const V t228 = t224 + t162;
        const V t229 = t225 + t163;
        const V t230 = c[0] * t224;
        const V t231 = t162 - t230;
        const V t232 = c[0] * t225;
        const V t233 = t163 - t232;
        const V t234 = c[1] * t226;
        const V t235 = c[1] * t227;
        const V t236 = t231 + t235;
        const V t237 = t233 - t234;
        const V t238 = t231 - t235;
        const V t239 = t233 + t234;
        // complex block of 3, multiplier 2
        const V t240 = t196 - t220;
        const V t241 = t223 - t199;
        const V t242 = t220 + t196;
        const V t243 = t223 + t199;
        const V t244 = t240 + t208;
        const V t245 = t241 + t211;
        const V t246 = c[0] * t240;
        const V t247 = t208 - t246;
        const V t248 = c[0] * t241;
        const V t249 = t211 - t248;
        const V t250 = c[1] * t242;
        const V t251 = c[1] * t243;
        const V t252 = t247 + t251;
        const V t253 = t249 + t250;
        const V t254 = t247 - t251;
        const V t255 = t249 - t250;
        // complex block of 2
        const V t256 = t228 + t244;
        const V t257 = t229 + t245;
        const V t258 = t228 - t244;
        const V t259 = t229 - t245;
        // complex block of 2
        const V t260 = t238 + t254;
        const V t261 = t239 + t255;
        const V t262 = t238 - t254;
        const V t263 = t239 - t255;
        // complex block of 2
        const V t264 = t236 + t252;
        const V t265 = t237 + t253;
        const V t266 = t236 - t252;
        const V t267 = t237 - t253;
        // skew block of 6
        const V t268 = c[0] * t184;
        const V t269 = c[1] * t166;
        const V t270 = t269 - t268;
        const V t271 = c[0] * t166;
        const V t272 = c[1] * t184;
        const V t273 = t272 + t271;
        const V t274 = c[1] * t190;
        const V t275 = c[0] * t172;
        const V t276 = t275 - t274;
        const V t277 = c[1] * t172;
        const V t278 = c[0] * t190;
        const V t279 = t278 + t277;
        // complex block of 3
        const V t280 = t270 + t276;
        const V t281 = t273 + t279;
        const V t282 = t270 - t276;
        const V t283 = t279 - t273;
        const V t284 = t280 + t160;
        const V t285 = t281 + t178;
        const V t286 = c[0] * t280;
        const V t287 = t160 - t286;
        const V t288 = c[0] * t281;
        const V t289 = t288 - t178;
        const V t290 = c[1] * t282;
        const V t291 = c[1] * t283;
        const V t292 = t287 + t291;
        const V t293 = t289 - t290;
        const V t294 = t287 - t291;
        const V t295 = t289 + t290;
        // spectrum block of 37
        const V t296 = c[42] * t74;
        const V x0r = io.re(0);
        const V t297 = x0r - t296;
        const V t298 = c[8] * t257;
        const V t299 = c[9] * t256;
        const V t300 = t299 + t298;
        const V t301 = c[8] * t256;
        const V t302 = c[9] * t257;
        const V t303 = t301 - t302;
        const V t304 = c[10] * t157;
        const V t305 = c[11] * t156;
        const V t306 = t305 + t304;
        const V t307 = c[10] * t156;
        const V t308 = c[11] * t157;
        const V t309 = t307 - t308;
        const V t310 = c[12] * t285;
        const V t311 = c[13] * t284;
        const V t312 = t311 + t310;
        const V t313 = c[12] * t284;
        const V t314 = c[13] * t285;
        const V t315 = t314 - t313;
        const V t316 = c[14] * t95;
        const V t317 = c[15] * t94;
        const V t318 = t317 - t316;
        const V t319 = c[14] * t94;
        const V t320 = c[15] * t95;
        const V t321 = t320 + t319;
        const V t322 = c[16] * t263;
        const V t323 = c[17] * t262;
        const V t324 = t323 - t322;
        const V t325 = c[16] * t262;
        const V t326 = c[17] * t263;
        const V t327 = t326 + t325;
        const V t328 = c[43] * t129;
        const V t329 = c[44] * t128;
        const V t330 = t328 - t329;
        const V t331 = c[18] * t267;
        const V t332 = c[19] * t266;
        const V t333 = t332 + t331;
        const V t334 = c[18] * t266;
        const V t335 = c[19] * t267;
        const V t336 = t335 - t334;
        const V t337 = c[20] * t103;
        const V t338 = c[21] * t102;
        const V t339 = t338 + t337;
        const V t340 = c[20] * t102;
        const V t341 = c[21] * t103;
        const V t342 = t340 - t341;
        const V t343 = c[22] * t295;
        const V t344 = c[23] * t294;
        const V t345 = t343 - t344;
        const V t346 = c[22] * t294;
        const V t347 = c[23] * t295;
        const V t348 = t347 + t346;
        const V t349 = c[24] * t155;
        const V t350 = c[25] * t154;
        const V t351 = t350 + t349;
        const V t352 = c[24] * t154;
        const V t353 = c[25] * t155;
        const V t354 = t352 - t353;
        const V t355 = c[26] * t265;
        const V t356 = c[27] * t264;
        const V t357 = t356 + t355;
        const V t358 = c[26] * t264;
        const V t359 = c[27] * t265;
        const V t360 = t359 - t358;
        const V t361 = c[45] * t77;
        const V t362 = c[46] * t76;
        const V t363 = t362 + t361;
        const V t364 = c[28] * t261;
        const V t365 = c[29] * t260;
        const V t366 = t365 + t364;
        const V t367 = c[28] * t260;
        const V t368 = c[29] * t261;
        const V t369 = t367 - t368;
        const V t370 = c[30] * t147;
        const V t371 = c[31] * t146;
        const V t372 = t371 + t370;
        const V t373 = c[30] * t146;
        const V t374 = c[31] * t147;
        const V t375 = t373 - t374;
        const V t376 = c[32] * t293;
        const V t377 = c[33] * t292;
        const V t378 = t377 - t376;
        const V t379 = c[32] * t292;
        const V t380 = c[33] * t293;
        const V t381 = t380 + t379;
        const V t382 = c[34] * t105;
        const V t383 = c[35] * t104;
        const V t384 = t383 - t382;
        const V t385 = c[34] * t104;
        const V t386 = c[35] * t105;
        const V t387 = t386 + t385;
        const V t388 = c[36] * t259;
        const V t389 = c[37] * t258;
        const V t390 = t389 + t388;
        const V t391 = c[36] * t258;
        const V t392 = c[37] * t259;
        const V t393 = t392 - t391;
        const V t394 = c[47] * t126;
        // spectrum block of 3
        const V t395 = t363 + t297;
        const V t396 = c[0] * t363;
        const V t397 = t297 - t396;
        const V t398 = c[48] * t77;
        const V t399 = c[49] * t76;
        const V t400 = t398 - t399;
        const V t401 = t397 - t400;
        const V t402 = t397 + t400;
        // complex block of 3
        const V t403 = t387 - t342;
        const V t404 = t384 + t339;
        const V t405 = t387 + t342;
        const V t406 = t384 - t339;
        const V t407 = t403 + t321;
        const V t408 = t404 + t318;
        const V t409 = c[0] * t403;
        const V t410 = t321 - t409;
        const V t411 = c[0] * t404;
        const V t412 = t318 - t411;
        const V t413 = c[1] * t405;
        const V t414 = c[1] * t406;
        const V t415 = t410 + t414;
        const V t416 = t412 - t413;
        const V t417 = t410 - t414;
        const V t418 = t412 + t413;
        // spectrum block of 9, multiplier 4
        const V t419 = c[2] * t415;
        const V t420 = c[3] * t416;
        const V t421 = t420 + t419;
        const V t422 = c[4] * t417;
        const V t423 = c[5] * t418;
        const V t424 = t423 + t422;
        // spectrum block of 3
        const V t425 = t408 + t395;
        const V t426 = c[0] * t408;
        const V t427 = t395 - t426;
        const V t428 = c[1] * t407;
        const V t429 = t427 - t428;
        const V t430 = t427 + t428;
        // spectrum block of 3
        const V t431 = t401 - t421;
        const V t432 = c[0] * t421;
        const V t433 = t432 + t401;
        const V t434 = c[38] * t416;
        const V t435 = c[39] * t415;
        const V t436 = t434 - t435;
        const V t437 = t433 - t436;
        const V t438 = t433 + t436;
        // spectrum block of 3
        const V t439 = t424 + t402;
        const V t440 = c[0] * t424;
        const V t441 = t402 - t440;
        const V t442 = c[40] * t417;
        const V t443 = c[41] * t418;
        const V t444 = t442 - t443;
        const V t445 = t441 - t444;
        const V t446 = t441 + t444;
        // complex block of 3
        const V t447 = t381 + t315;
        const V t448 = t378 - t312;
        const V t449 = t315 - t381;
        const V t450 = t378 + t312;
        const V t451 = t348 - t447;
        const V t452 = t448 + t345;
        const V t453 = c[0] * t447;
        const V t454 = t453 + t348;
        const V t455 = c[0] * t448;
        const V t456 = t345 - t455;
        const V t457 = c[1] * t449;
        const V t458 = c[1] * t450;
        const V t459 = t454 + t458;
        const V t460 = t456 - t457;
        const V t461 = t454 - t458;
        const V t462 = t456 + t457;
        // complex block of 3
        const V t463 = t303 - t360;
        const V t464 = t357 + t300;
        const V t465 = t360 + t303;
        const V t466 = t300 - t357;
        const V t467 = t463 + t369;
        const V t468 = t464 + t366;
        const V t469 = c[0] * t463;
        const V t470 = t369 - t469;
        const V t471 = c[0] * t464;
        const V t472 = t471 - t366;
        const V t473 = c[1] * t465;
        const V t474 = c[1] * t466;
        const V t475 = t470 + t474;
        const V t476 = t472 + t473;
        const V t477 = t470 - t474;
        const V t478 = t472 - t473;
        // complex block of 3
        const V t479 = t336 + t327;
        const V t480 = t333 + t324;
        const V t481 = t327 - t336;
        const V t482 = t333 - t324;
        const V t483 = t393 - t479;
        const V t484 = t480 - t390;
        const V t485 = c[0] * t479;
        const V t486 = t485 + t393;
        const V t487 = c[0] * t480;
        const V t488 = t390 + t487;
        const V t489 = c[1] * t481;
        const V t490 = c[1] * t482;
        const V t491 = t486 + t490;
        const V t492 = t488 + t489;
        const V t493 = t486 - t490;
        const V t494 = t489 - t488;
        // complex block of 3
        const V t495 = t467 + t483;
        const V t496 = t484 - t468;
        const V t497 = t467 - t483;
        const V t498 = t468 + t484;
        const V t499 = t495 + t451;
        const V t500 = t496 + t452;
        const V t501 = c[0] * t495;
        const V t502 = t451 - t501;
        const V t503 = c[0] * t496;
        const V t504 = t452 - t503;
        const V t505 = c[1] * t497;
        const V t506 = c[1] * t498;
        const V t507 = t502 - t506;
        const V t508 = t504 - t505;
        const V t509 = t502 + t506;
        const V t510 = t504 + t505;
        // complex block of 9, multiplier 4
        const V t511 = c[2] * t476;
        const V t512 = c[3] * t475;
        const V t513 = t511 - t512;
        const V t514 = c[2] * t475;
        const V t515 = c[3] * t476;
        const V t516 = t515 + t514;
        const V t517 = c[4] * t492;
        const V t518 = c[5] * t491;
        const V t519 = t518 + t517;
        const V t520 = c[4] * t491;
        const V t521 = c[5] * t492;
        const V t522 = t520 - t521;
        // complex block of 3
        const V t523 = t513 + t519;
        const V t524 = t522 - t516;
        const V t525 = t513 - t519;
        const V t526 = t516 + t522;
        const V t527 = t523 + t459;
        const V t528 = t524 + t460;
        const V t529 = c[0] * t523;
        const V t530 = t459 - t529;
        const V t531 = c[0] * t524;
        const V t532 = t460 - t531;
        const V t533 = c[1] * t525;
        const V t534 = c[1] * t526;
        const V t535 = t530 - t534;
        const V t536 = t532 - t533;
        const V t537 = t530 + t534;
        const V t538 = t532 + t533;
        // complex block of 9, multiplier 4
        const V t539 = c[4] * t478;
        const V t540 = c[5] * t477;
        const V t541 = t540 - t539;
        const V t542 = c[4] * t477;
        const V t543 = c[5] * t478;
        const V t544 = t543 + t542;
        const V t545 = c[6] * t494;
        const V t546 = c[7] * t493;
        const V t547 = t546 - t545;
        const V t548 = c[6] * t493;
        const V t549 = c[7] * t494;
        const V t550 = t549 + t548;
        // complex block of 3
        const V t551 = t541 + t547;
        const V t552 = t544 + t550;
        const V t553 = t541 - t547;
        const V t554 = t544 - t550;
        const V t555 = t551 + t461;
        const V t556 = t552 + t462;
        const V t557 = c[0] * t551;
        const V t558 = t461 - t557;
        const V t559 = c[0] * t552;
        const V t560 = t462 - t559;
        const V t561 = c[1] * t553;
        const V t562 = c[1] * t554;
        const V t563 = t558 + t562;
        const V t564 = t560 - t561;
        const V t565 = t558 - t562;
        const V t566 = t560 + t561;
        // spectrum block of 3
        const V t567 = t330 + t394;
        const V t568 = c[0] * t330;
        const V t569 = t394 - t568;
        const V t570 = c[50] * t129;
        const V t571 = c[51] * t128;
        const V t572 = t570 + t571;
        const V t573 = t569 + t572;
        const V t574 = t569 - t572;
        // complex block of 3
        const V t575 = t354 - t309;
        const V t576 = t306 - t351;
        const V t577 = t309 + t354;
        const V t578 = t306 + t351;
        const V t579 = t575 - t375;
        const V t580 = t576 + t372;
        const V t581 = c[0] * t575;
        const V t582 = t375 + t581;
        const V t583 = c[0] * t576;
        const V t584 = t372 - t583;
        const V t585 = c[1] * t577;
        const V t586 = c[1] * t578;
        const V t587 = t586 - t582;
        const V t588 = t584 + t585;
        const V t589 = t582 + t586;
        const V t590 = t584 - t585;
        // spectrum block of 9, multiplier 4
        const V t591 = c[2] * t587;
        const V t592 = c[3] * t588;
        const V t593 = t592 + t591;
        const V t594 = c[4] * t589;
        const V t595 = c[5] * t590;
        const V t596 = t595 - t594;
        // spectrum block of 3
        const V t597 = t580 + t567;
        const V t598 = c[0] * t580;
        const V t599 = t567 - t598;
        const V t600 = c[1] * t579;
        const V t601 = t599 - t600;
        const V t602 = t599 + t600;
        // spectrum block of 3
        const V t603 = t573 - t593;
        const V t604 = c[0] * t593;
        const V t605 = t604 + t573;
        const V t606 = c[38] * t588;
        const V t607 = c[39] * t587;
        const V t608 = t606 - t607;
        const V t609 = t605 - t608;
        const V t610 = t605 + t608;
        // spectrum block of 3
        const V t611 = t596 + t574;
        const V t612 = c[0] * t596;
        const V t613 = t574 - t612;
        const V t614 = c[40] * t589;
        const V t615 = c[41] * t590;
        const V t616 = t614 + t615;
        const V t617 = t613 + t616;
        const V t618 = t613 - t616;
        // spectrum block of 2
        const V t619 = t425 + t597;
        const V t620 = t425 - t597;
        // spectrum block of 2
        const V t621 = t619 + t500;
        io.out(1, t621);
        const V t622 = t619 - t500;
        io.out(36, t622);
        // spectrum block of 2
        const V t623 = t620 - t499;
        io.out(6, t623);
        const V t624 = t620 + t499;
        io.out(31, t624);
        // spectrum block of 2
        const V t625 = t431 + t603;
        const V t626 = t431 - t603;
        // spectrum block of 2
        const V t627 = t625 + t528;
        io.out(7, t627);
        const V t628 = t625 - t528;
        io.out(30, t628);
        // spectrum block of 2
        const V t629 = t626 - t527;
        io.out(5, t629);
        const V t630 = t626 + t527;
        io.out(32, t630);
        // spectrum block of 2
        const V t631 = t439 + t611;
        const V t632 = t439 - t611;
        // spectrum block of 2
        const V t633 = t631 + t556;
        io.out(12, t633);
        const V t634 = t631 - t556;
        io.out(25, t634);
        // spectrum block of 2
        const V t635 = t632 - t555;
        io.out(35, t635);
        const V t636 = t632 + t555;
        io.out(2, t636);
        // spectrum block of 2
        const V t637 = t429 + t601;
        const V t638 = t429 - t601;
        // spectrum block of 2
        const V t639 = t637 + t508;
        io.out(10, t639);
        const V t640 = t637 - t508;
        io.out(27, t640);
        // spectrum block of 2
        const V t641 = t638 - t507;
        io.out(23, t641);
        const V t642 = t638 + t507;
        io.out(14, t642);
        // spectrum block of 2
        const V t643 = t437 + t609;
        const V t644 = t437 - t609;
        // spectrum block of 2
        const V t645 = t643 + t536;
        io.out(33, t645);
        const V t646 = t643 - t536;
        io.out(4, t646);
        // spectrum block of 2
        const V t647 = t644 - t535;
        io.out(13, t647);
        const V t648 = t644 + t535;
        io.out(24, t648);
        // spectrum block of 2
        const V t649 = t445 + t617;
        const V t650 = t445 - t617;
        // spectrum block of 2
        const V t651 = t649 + t564;
        io.out(9, t651);
        const V t652 = t649 - t564;
        io.out(28, t652);
        // spectrum block of 2
        const V t653 = t650 - t563;
        io.out(17, t653);
        const V t654 = t650 + t563;
        io.out(20, t654);
        // spectrum block of 2
        const V t655 = t430 + t602;
        const V t656 = t430 - t602;
        // spectrum block of 2
        const V t657 = t655 + t510;
        io.out(26, t657);
        const V t658 = t655 - t510;
        io.out(11, t658);
        // spectrum block of 2
        const V t659 = t656 - t509;
        io.out(8, t659);
        const V t660 = t656 + t509;
        io.out(29, t660);
        // spectrum block of 2
        const V t661 = t438 + t610;
        const V t662 = t438 - t610;
        // spectrum block of 2
        const V t663 = t661 + t538;
        io.out(34, t663);
        const V t664 = t661 - t538;
        io.out(3, t664);
        // spectrum block of 2
        const V t665 = t662 - t537;
        io.out(19, t665);
        const V t666 = t662 + t537;
        io.out(18, t666);
        // spectrum block of 2
        const V t667 = t446 + t618;
        const V t668 = t446 - t618;
        // spectrum block of 2
        const V t669 = t667 + t566;
        io.out(16, t669);
        const V t670 = t667 - t566;
        io.out(21, t670);
        // spectrum block of 2
        const V t671 = t668 - t565;
        io.out(22, t671);
        const V t672 = t668 + t565;
        io.out(15, t672);
        // spectrum block of 37
        const V t673 = x0r + t74;
        io.out(0, t673);
    }
};

}  // namespace zulg
