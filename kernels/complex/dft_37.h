// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 37.
// Complex DFT of 37 points, Rader block.
// 432 additions, 432 subtractions, 444 multiplications (518 with `scale`); 46 constants; 75 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<37> {
    static constexpr int steps = 1382;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.3420201433256687,  // c[2]: sin 2 pi 4/9
        0.9396926207859084,  // c[3]: -cos 2 pi 4/9
        0.6427876096865394,  // c[4]: -sin 2 pi 8/9
        0.766044443118978,  // c[5]: cos 2 pi 8/9
        0.29619813272602386,  // c[6]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[7]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.6634139481689384,  // c[8]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.29019472587628237,  // c[10]: -P[1] of 37
        0.1731604803001738,  // c[11]: Q[1] of 37
        0.27801178968802176,  // c[12]: Q[2] of 37
        0.19211188317920547,  // c[13]: P[2] of 37
        0.3200973041246296,  // c[14]: P[3] of 37
        0.10832934393017396,  // c[15]: Q[3] of 37
        0.13371391769319224,  // c[16]: Q[4] of 37
        0.3103516055691282,  // c[17]: P[4] of 37
        0.24288635390370164,  // c[18]: P[5] of 37
        0.2349547827807796,  // c[19]: -Q[5] of 37
        0.3290788923998385,  // c[20]: Q[6] of 37
        0.07684148255397624,  // c[21]: -P[6] of 37
        0.25364370716273305,  // c[22]: P[7] of 37
        0.22329890434335598,  // c[23]: -Q[7] of 37
        0.2338246809597342,  // c[24]: Q[8] of 37
        0.24397448521981976,  // c[25]: P[8] of 37
        0.21843027770589768,  // c[26]: -P[9] of 37
        0.2578482977363278,  // c[27]: Q[9] of 37
        0.25216731301218065,  // c[28]: Q[10] of 37
        0.22496483527968195,  // c[29]: -P[10] of 37
        0.1782451073659696,  // c[30]: P[11] of 37
        0.2870996561549517,  // c[31]: Q[11] of 37
        0.3142620078134601,  // c[32]: -Q[12] of 37
        0.12424540759822993,  // c[33]: P[12] of 37
        0.3301590368394409,  // c[34]: -P[13] of 37
        0.07205928987611672,  // c[35]: Q[13] of 37
        0.2912479292396942,  // c[36]: Q[14] of 37
        0.17138312220807392,  // c[37]: P[14] of 37
        0.15947907926271018,  // c[38]: -P[15] of 37
        0.2979328013860101,  // c[39]: -Q[15] of 37
        0.32147563578344845,  // c[40]: Q[16] of 37
        0.10416787634306994,  // c[41]: P[16] of 37
        0.3368755881752301,  // c[42]: P[17] of 37
        0.026690240834250763,  // c[43]: Q[17] of 37
        0.027777777777777776,  // c[44]: 1/36
        0.1689656258416172,  // c[45]: beta of 37
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 3
        const V x26r = io.re(26);
        const V x10r = io.re(10);
        const V t0 = x26r + x10r;
        const V t1 = x26r - x10r;
        const V x1r = io.re(1);
        const V t2 = t0 + x1r;
        const V t3 = c[0] * t0;
        const V t4 = x1r - t3;
        const V t5 = c[1] * t1;
        // real block of 3
        const V x9r = io.re(9);
        const V x12r = io.re(12);
        const V t6 = x9r + x12r;
        const V t7 = x9r - x12r;
        const V x16r = io.re(16);
        const V t8 = t6 + x16r;
        const V t9 = c[0] * t6;
        const V t10 = x16r - t9;
        const V t11 = c[1] * t7;
        // real block of 3
        const V x33r = io.re(33);
        const V x7r = io.re(7);
        const V t12 = x33r + x7r;
        const V t13 = x33r - x7r;
        const V x34r = io.re(34);
        const V t14 = t12 + x34r;
        const V t15 = c[0] * t12;
        const V t16 = x34r - t15;
        const V t17 = c[1] * t13;
        // real block of 3
        const V t18 = t8 + t14;
        const V t19 = t8 - t14;
        const V t20 = t18 + t2;
        const V t21 = c[0] * t18;
        const V t22 = t2 - t21;
        const V t23 = c[1] * t19;
        // real block of 9, multiplier 4
        const V t24 = c[2] * t11;
        const V t25 = c[3] * t10;
        const V t26 = t25 + t24;
        const V t27 = c[2] * t10;
        const V t28 = c[3] * t11;
        const V t29 = t28 - t27;
        const V t30 = c[4] * t17;
        const V t31 = c[5] * t16;
        const V t32 = t31 + t30;
        const V t33 = c[4] * t16;
        const V t34 = c[5] * t17;
        const V t35 = t33 - t34;
        // complex block of 3
        const V t36 = t32 - t26;
        const V t37 = t29 + t35;
        const V t38 = t26 + t32;
        const V t39 = t29 - t35;
        const V t40 = t36 + t4;
        const V t41 = t37 - t5;
        const V t42 = c[0] * t36;
        const V t43 = t4 - t42;
        const V t44 = c[0] * t37;
        const V t45 = t5 + t44;
        const V t46 = c[1] * t38;
        const V t47 = c[1] * t39;
        const V t48 = t43 + t47;
        const V t49 = t46 - t45;
        const V t50 = t43 - t47;
        const V t51 = t45 + t46;
        // real block of 3
        const V x29r = io.re(29);
        const V x14r = io.re(14);
        const V t52 = x29r + x14r;
        const V t53 = x29r - x14r;
        const V x31r = io.re(31);
        const V t54 = t52 + x31r;
        const V t55 = c[0] * t52;
        const V t56 = x31r - t55;
        const V t57 = c[1] * t53;
        // real block of 3
        const V x20r = io.re(20);
        const V x2r = io.re(2);
        const V t58 = x20r + x2r;
        const V t59 = x20r - x2r;
        const V x15r = io.re(15);
        const V t60 = t58 + x15r;
        const V t61 = c[0] * t58;
        const V t62 = x15r - t61;
        const V t63 = c[1] * t59;
        // real block of 3
        const V x24r = io.re(24);
        const V x32r = io.re(32);
        const V t64 = x24r + x32r;
        const V t65 = x24r - x32r;
        const V x18r = io.re(18);
        const V t66 = t64 + x18r;
        const V t67 = c[0] * t64;
        const V t68 = x18r - t67;
        const V t69 = c[1] * t65;
        // real block of 3
        const V t70 = t60 + t66;
        const V t71 = t60 - t66;
        const V t72 = t70 + t54;
        const V t73 = c[0] * t70;
        const V t74 = t54 - t73;
        const V t75 = c[1] * t71;
        // real block of 9, multiplier 4
        const V t76 = c[2] * t63;
        const V t77 = c[3] * t62;
        const V t78 = t77 + t76;
        const V t79 = c[2] * t62;
        const V t80 = c[3] * t63;
        const V t81 = t80 - t79;
        const V t82 = c[4] * t69;
        const V t83 = c[5] * t68;
        const V t84 = t83 + t82;
        const V t85 = c[4] * t68;
        const V t86 = c[5] * t69;
        const V t87 = t85 - t86;
        // complex block of 3
        const V t88 = t84 - t78;
        const V t89 = t81 + t87;
        const V t90 = t78 + t84;
        const V t91 = t81 - t87;
        const V t92 = t88 + t56;
        const V t93 = t89 - t57;
        const V t94 = c[0] * t88;
        const V t95 = t56 - t94;
        const V t96 = c[0] * t89;
        const V t97 = t57 + t96;
        const V t98 = c[1] * t90;
        const V t99 = c[1] * t91;
        const V t100 = t95 + t99;
        const V t101 = t98 - t97;
        const V t102 = t95 - t99;
        const V t103 = t97 + t98;
        // real block of 3
        const V x11r = io.re(11);
        const V x27r = io.re(27);
        const V t104 = x11r + x27r;
        const V t105 = x11r - x27r;
        const V x36r = io.re(36);
        const V t106 = t104 + x36r;
        const V t107 = c[0] * t104;
        const V t108 = x36r - t107;
        const V t109 = c[1] * t105;
        // real block of 3
        const V x28r = io.re(28);
        const V x25r = io.re(25);
        const V t110 = x28r + x25r;
        const V t111 = x28r - x25r;
        const V x21r = io.re(21);
        const V t112 = t110 + x21r;
        const V t113 = c[0] * t110;
        const V t114 = x21r - t113;
        const V t115 = c[1] * t111;
        // real block of 3
        const V x4r = io.re(4);
        const V x30r = io.re(30);
        const V t116 = x4r + x30r;
        const V t117 = x4r - x30r;
        const V x3r = io.re(3);
        const V t118 = t116 + x3r;
        const V t119 = c[0] * t116;
        const V t120 = x3r - t119;
        const V t121 = c[1] * t117;
        // real block of 3
        const V t122 = t112 + t118;
        const V t123 = t112 - t118;
        const V t124 = t122 + t106;
        const V t125 = c[0] * t122;
        const V t126 = t106 - t125;
        const V t127 = c[1] * t123;
        // real block of 9, multiplier 4
        const V t128 = c[2] * t115;
        const V t129 = c[3] * t114;
        const V t130 = t129 + t128;
        const V t131 = c[2] * t114;
        const V t132 = c[3] * t115;
        const V t133 = t132 - t131;
        const V t134 = c[4] * t121;
        const V t135 = c[5] * t120;
        const V t136 = t135 + t134;
        const V t137 = c[4] * t120;
        const V t138 = c[5] * t121;
        const V t139 = t137 - t138;
        // complex block of 3
        const V t140 = t136 - t130;
        const V t141 = t133 + t139;
        const V t142 = t130 + t136;
        const V t143 = t133 - t139;
        const V t144 = t140 + t108;
        const V t145 = t141 - t109;
        const V t146 = c[0] * t140;
        const V t147 = t108 - t146;
        const V t148 = c[0] * t141;
        const V t149 = t109 + t148;
        const V t150 = c[1] * t142;
        const V t151 = c[1] * t143;
        const V t152 = t147 + t151;
        const V t153 = t150 - t149;
        const V t154 = t147 - t151;
        const V t155 = t149 + t150;
        // real block of 3
        const V x8r = io.re(8);
        const V x23r = io.re(23);
        const V t156 = x8r + x23r;
        const V t157 = x8r - x23r;
        const V x6r = io.re(6);
        const V t158 = t156 + x6r;
        const V t159 = c[0] * t156;
        const V t160 = x6r - t159;
        const V t161 = c[1] * t157;
        // real block of 3
        const V x17r = io.re(17);
        const V x35r = io.re(35);
        const V t162 = x17r + x35r;
        const V t163 = x17r - x35r;
        const V x22r = io.re(22);
        const V t164 = t162 + x22r;
        const V t165 = c[0] * t162;
        const V t166 = x22r - t165;
        const V t167 = c[1] * t163;
        // real block of 3
        const V x13r = io.re(13);
        const V x5r = io.re(5);
        const V t168 = x13r + x5r;
        const V t169 = x13r - x5r;
        const V x19r = io.re(19);
        const V t170 = t168 + x19r;
        const V t171 = c[0] * t168;
        const V t172 = x19r - t171;
        const V t173 = c[1] * t169;
        // real block of 3
        const V t174 = t164 + t170;
        const V t175 = t164 - t170;
        const V t176 = t174 + t158;
        const V t177 = c[0] * t174;
        const V t178 = t158 - t177;
        const V t179 = c[1] * t175;
        // real block of 9, multiplier 4
        const V t180 = c[2] * t167;
        const V t181 = c[3] * t166;
        const V t182 = t181 + t180;
        const V t183 = c[2] * t166;
        const V t184 = c[3] * t167;
        const V t185 = t184 - t183;
        const V t186 = c[4] * t173;
        const V t187 = c[5] * t172;
        const V t188 = t187 + t186;
        const V t189 = c[4] * t172;
        const V t190 = c[5] * t173;
        const V t191 = t189 - t190;
        // complex block of 3
        const V t192 = t188 - t182;
        const V t193 = t185 + t191;
        const V t194 = t182 + t188;
        const V t195 = t185 - t191;
        const V t196 = t192 + t160;
        const V t197 = t193 - t161;
        const V t198 = c[0] * t192;
        const V t199 = t160 - t198;
        const V t200 = c[0] * t193;
        const V t201 = t161 + t200;
        const V t202 = c[1] * t194;
        const V t203 = c[1] * t195;
        const V t204 = t199 + t203;
        const V t205 = t202 - t201;
        const V t206 = t199 - t203;
        const V t207 = t201 + t202;
        // real block of 2
        const V t208 = t20 + t124;
        const V t209 = t20 - t124;
        // real block of 2
        const V t210 = t72 + t176;
        const V t211 = t72 - t176;
        // real block of 2
        const V t212 = t208 + t210;
        const V t213 = t208 - t210;
        // complex block of 2
        const V t214 = t40 + t144;
        const V t215 = t41 + t145;
        const V t216 = t40 - t144;
        const V t217 = t41 - t145;
        // complex block of 2
        const V t218 = t92 + t196;
        const V t219 = t93 + t197;
        const V t220 = t92 - t196;
        const V t221 = t93 - t197;
        // complex block of 2
        const V t222 = t214 + t218;
        const V t223 = t215 + t219;
        const V t224 = t214 - t218;
        const V t225 = t215 - t219;
        // complex block of 2
        const V t226 = t216 + t221;
        const V t227 = t217 - t220;
        const V t228 = t216 - t221;
        const V t229 = t217 + t220;
        // complex block of 2
        const V t230 = t50 + t154;
        const V t231 = t51 + t155;
        const V t232 = t50 - t154;
        const V t233 = t51 - t155;
        // complex block of 2
        const V t234 = t102 + t206;
        const V t235 = t103 + t207;
        const V t236 = t102 - t206;
        const V t237 = t103 - t207;
        // complex block of 2
        const V t238 = t230 + t234;
        const V t239 = t231 + t235;
        const V t240 = t230 - t234;
        const V t241 = t231 - t235;
        // complex block of 2
        const V t242 = t232 + t237;
        const V t243 = t233 - t236;
        const V t244 = t232 - t237;
        const V t245 = t233 + t236;
        // complex block of 2
        const V t246 = t22 + t126;
        const V t247 = t23 + t127;
        const V t248 = t22 - t126;
        const V t249 = t127 - t23;
        // complex block of 2
        const V t250 = t74 + t178;
        const V t251 = t75 + t179;
        const V t252 = t74 - t178;
        const V t253 = t179 - t75;
        // complex block of 2
        const V t254 = t246 + t250;
        const V t255 = t247 + t251;
        const V t256 = t246 - t250;
        const V t257 = t251 - t247;
        // complex block of 2
        const V t258 = t248 + t253;
        const V t259 = t249 - t252;
        const V t260 = t248 - t253;
        const V t261 = t249 + t252;
        // complex block of 2
        const V t262 = t48 + t152;
        const V t263 = t49 + t153;
        const V t264 = t48 - t152;
        const V t265 = t49 - t153;
        // complex block of 2
        const V t266 = t100 + t204;
        const V t267 = t101 + t205;
        const V t268 = t100 - t204;
        const V t269 = t101 - t205;
        // complex block of 2
        const V t270 = t262 + t266;
        const V t271 = t263 + t267;
        const V t272 = t262 - t266;
        const V t273 = t263 - t267;
        // complex block of 2
        const V t274 = t264 + t269;
        const V t275 = t265 - t268;
        const V t276 = t264 - t269;
        const V t277 = t265 + t268;
        // real block of 3
        const V x26i = io.im(26);
        const V x10i = io.im(10);
        const V t278 = x26i + x10i;
        const V t279 = x26i - x10i;
        const V x1i = io.im(1);
        const V t280 = t278 + x1i;
        const V t281 = c[0] * t278;
        const V t282 = x1i - t281;
        const V t283 = c[1] * t279;
        // real block of 3
        const V x9i = io.im(9);
        const V x12i = io.im(12);
        const V t284 = x9i + x12i;
        const V t285 = x9i - x12i;
        const V x16i = io.im(16);
        const V t286 = t284 + x16i;
        const V t287 = c[0] * t284;
        const V t288 = x16i - t287;
        const V t289 = c[1] * t285;
        // real block of 3
        const V x33i = io.im(33);
        const V x7i = io.im(7);
        const V t290 = x33i + x7i;
        const V t291 = x33i - x7i;
        const V x34i = io.im(34);
        const V t292 = t290 + x34i;
        const V t293 = c[0] * t290;
        const V t294 = x34i - t293;
        const V t295 = c[1] * t291;
        // real block of 3
        const V t296 = t286 + t292;
        const V t297 = t286 - t292;
        const V t298 = t296 + t280;
        const V t299 = c[0] * t296;
        const V t300 = t280 - t299;
        const V t301 = c[1] * t297;
        // real block of 9, multiplier 4
        const V t302 = c[2] * t289;
        const V t303 = c[3] * t288;
        const V t304 = t303 + t302;
        const V t305 = c[2] * t288;
        const V t306 = c[3] * t289;
        const V t307 = t306 - t305;
        const V t308 = c[4] * t295;
        const V t309 = c[5] * t294;
        const V t310 = t309 + t308;
        const V t311 = c[4] * t294;
        const V t312 = c[5] * t295;
        const V t313 = t311 - t312;
        // complex block of 3
        const V t314 = t310 - t304;
        const V t315 = t307 + t313;
        const V t316 = t304 + t310;
        const V t317 = t307 - t313;
        const V t318 = t314 + t282;
        const V t319 = t315 - t283;
        const V t320 = c[0] * t314;
        const V t321 = t282 - t320;
        const V t322 = c[0] * t315;
        const V t323 = t283 + t322;
        const V t324 = c[1] * t316;
        const V t325 = c[1] * t317;
        const V t326 = t321 + t325;
        const V t327 = t324 - t323;
        const V t328 = t321 - t325;
        const V t329 = t323 + t324;
        // real block of 3
        const V x29i = io.im(29);
        const V x14i = io.im(14);
        const V t330 = x29i + x14i;
        const V t331 = x29i - x14i;
        const V x31i = io.im(31);
        const V t332 = t330 + x31i;
        const V t333 = c[0] * t330;
        const V t334 = x31i - t333;
        const V t335 = c[1] * t331;
        // real block of 3
        const V x20i = io.im(20);
        const V x2i = io.im(2);
        const V t336 = x20i + x2i;
        const V t337 = x20i - x2i;
        const V x15i = io.im(15);
        const V t338 = t336 + x15i;
        const V t339 = c[0] * t336;
        const V t340 = x15i - t339;
        const V t341 = c[1] * t337;
        // real block of 3
        const V x24i = io.im(24);
        const V x32i = io.im(32);
        const V t342 = x24i + x32i;
        const V t343 = x24i - x32i;
        const V x18i = io.im(18);
        const V t344 = t342 + x18i;
        const V t345 = c[0] * t342;
        const V t346 = x18i - t345;
        const V t347 = c[1] * t343;
        // real block of 3
        const V t348 = t338 + t344;
        const V t349 = t338 - t344;
        const V t350 = t348 + t332;
        const V t351 = c[0] * t348;
        const V t352 = t332 - t351;
        const V t353 = c[1] * t349;
        // real block of 9, multiplier 4
        const V t354 = c[2] * t341;
        const V t355 = c[3] * t340;
        const V t356 = t355 + t354;
        const V t357 = c[2] * t340;
        const V t358 = c[3] * t341;
        const V t359 = t358 - t357;
        const V t360 = c[4] * t347;
        const V t361 = c[5] * t346;
        const V t362 = t361 + t360;
        const V t363 = c[4] * t346;
        const V t364 = c[5] * t347;
        const V t365 = t363 - t364;
        // complex block of 3
        const V t366 = t362 - t356;
        const V t367 = t359 + t365;
        const V t368 = t356 + t362;
        const V t369 = t359 - t365;
        const V t370 = t366 + t334;
        const V t371 = t367 - t335;
        const V t372 = c[0] * t366;
        const V t373 = t334 - t372;
        const V t374 = c[0] * t367;
        const V t375 = t335 + t374;
        const V t376 = c[1] * t368;
        const V t377 = c[1] * t369;
        const V t378 = t373 + t377;
        const V t379 = t376 - t375;
        const V t380 = t373 - t377;
        const V t381 = t375 + t376;
        // real block of 3
        const V x11i = io.im(11);
        const V x27i = io.im(27);
        const V t382 = x11i + x27i;
        const V t383 = x11i - x27i;
        const V x36i = io.im(36);
        const V t384 = t382 + x36i;
        const V t385 = c[0] * t382;
        const V t386 = x36i - t385;
        const V t387 = c[1] * t383;
        // real block of 3
        const V x28i = io.im(28);
        const V x25i = io.im(25);
        const V t388 = x28i + x25i;
        const V t389 = x28i - x25i;
        const V x21i = io.im(21);
        const V t390 = t388 + x21i;
        const V t391 = c[0] * t388;
        const V t392 = x21i - t391;
        const V t393 = c[1] * t389;
        // real block of 3
        const V x4i = io.im(4);
        const V x30i = io.im(30);
        const V t394 = x4i + x30i;
        const V t395 = x4i - x30i;
        const V x3i = io.im(3);
        const V t396 = t394 + x3i;
        const V t397 = c[0] * t394;
        const V t398 = x3i - t397;
        const V t399 = c[1] * t395;
        // real block of 3
        const V t400 = t390 + t396;
        const V t401 = t390 - t396;
        const V t402 = t400 + t384;
        const V t403 = c[0] * t400;
        const V t404 = t384 - t403;
        const V t405 = c[1] * t401;
        // real block of 9, multiplier 4
        const V t406 = c[2] * t393;
        const V t407 = c[3] * t392;
        const V t408 = t407 + t406;
        const V t409 = c[2] * t392;
        const V t410 = c[3] * t393;
        const V t411 = t410 - t409;
        const V t412 = c[4] * t399;
        const V t413 = c[5] * t398;
        const V t414 = t413 + t412;
        const V t415 = c[4] * t398;
        const V t416 = c[5] * t399;
        const V t417 = t415 - t416;
        // complex block of 3
        const V t418 = t414 - t408;
        const V t419 = t411 + t417;
        const V t420 = t408 + t414;
        const V t421 = t411 - t417;
        const V t422 = t418 + t386;
        const V t423 = t419 - t387;
        const V t424 = c[0] * t418;
        const V t425 = t386 - t424;
        const V t426 = c[0] * t419;
        const V t427 = t387 + t426;
        const V t428 = c[1] * t420;
        const V t429 = c[1] * t421;
        const V t430 = t425 + t429;
        const V t431 = t428 - t427;
        const V t432 = t425 - t429;
        const V t433 = t427 + t428;
        // real block of 3
        const V x8i = io.im(8);
        const V x23i = io.im(23);
        const V t434 = x8i + x23i;
        const V t435 = x8i - x23i;
        const V x6i = io.im(6);
        const V t436 = t434 + x6i;
        const V t437 = c[0] * t434;
        const V t438 = x6i - t437;
        const V t439 = c[1] * t435;
        // real block of 3
        const V x17i = io.im(17);
        const V x35i = io.im(35);
        const V t440 = x17i + x35i;
        const V t441 = x17i - x35i;
        const V x22i = io.im(22);
        const V t442 = t440 + x22i;
        const V t443 = c[0] * t440;
        const V t444 = x22i - t443;
        const V t445 = c[1] * t441;
        // real block of 3
        const V x13i = io.im(13);
        const V x5i = io.im(5);
        const V t446 = x13i + x5i;
        const V t447 = x13i - x5i;
        const V x19i = io.im(19);
        const V t448 = t446 + x19i;
        const V t449 = c[0] * t446;
        const V t450 = x19i - t449;
        const V t451 = c[1] * t447;
        // real block of 3
        const V t452 = t442 + t448;
        const V t453 = t442 - t448;
        const V t454 = t452 + t436;
        const V t455 = c[0] * t452;
        const V t456 = t436 - t455;
        const V t457 = c[1] * t453;
        // real block of 9, multiplier 4
        const V t458 = c[2] * t445;
        const V t459 = c[3] * t444;
        const V t460 = t459 + t458;
        const V t461 = c[2] * t444;
        const V t462 = c[3] * t445;
        const V t463 = t462 - t461;
        const V t464 = c[4] * t451;
        const V t465 = c[5] * t450;
        const V t466 = t465 + t464;
        const V t467 = c[4] * t450;
        const V t468 = c[5] * t451;
        const V t469 = t467 - t468;
        // complex block of 3
        const V t470 = t466 - t460;
        const V t471 = t463 + t469;
        const V t472 = t460 + t466;
        const V t473 = t463 - t469;
        const V t474 = t470 + t438;
        const V t475 = t471 - t439;
        const V t476 = c[0] * t470;
        const V t477 = t438 - t476;
        const V t478 = c[0] * t471;
        const V t479 = t439 + t478;
        const V t480 = c[1] * t472;
        const V t481 = c[1] * t473;
        const V t482 = t477 + t481;
        const V t483 = t480 - t479;
        const V t484 = t477 - t481;
        const V t485 = t479 + t480;
        // real block of 2
        const V t486 = t298 + t402;
        const V t487 = t298 - t402;
        // real block of 2
        const V t488 = t350 + t454;
        const V t489 = t350 - t454;
        // real block of 2
        const V t490 = t486 + t488;
        const V t491 = t486 - t488;
        // complex block of 2
        const V t492 = t318 + t422;
        const V t493 = t319 + t423;
        const V t494 = t318 - t422;
        const V t495 = t319 - t423;
        // complex block of 2
        const V t496 = t370 + t474;
        const V t497 = t371 + t475;
        const V t498 = t370 - t474;
        const V t499 = t371 - t475;
        // complex block of 2
        const V t500 = t492 + t496;
        const V t501 = t493 + t497;
        const V t502 = t492 - t496;
        const V t503 = t493 - t497;
        // complex block of 2
        const V t504 = t494 + t499;
        const V t505 = t495 - t498;
        const V t506 = t494 - t499;
        const V t507 = t495 + t498;
        // complex block of 2
        const V t508 = t328 + t432;
        const V t509 = t329 + t433;
        const V t510 = t328 - t432;
        const V t511 = t329 - t433;
        // complex block of 2
        const V t512 = t380 + t484;
        const V t513 = t381 + t485;
        const V t514 = t380 - t484;
        const V t515 = t381 - t485;
        // complex block of 2
        const V t516 = t508 + t512;
        const V t517 = t509 + t513;
        const V t518 = t508 - t512;
        const V t519 = t509 - t513;
        // complex block of 2
        const V t520 = t510 + t515;
        const V t521 = t511 - t514;
        const V t522 = t510 - t515;
        const V t523 = t511 + t514;
        // complex block of 2
        const V t524 = t300 + t404;
        const V t525 = t301 + t405;
        const V t526 = t300 - t404;
        const V t527 = t405 - t301;
        // complex block of 2
        const V t528 = t352 + t456;
        const V t529 = t353 + t457;
        const V t530 = t352 - t456;
        const V t531 = t457 - t353;
        // complex block of 2
        const V t532 = t524 + t528;
        const V t533 = t525 + t529;
        const V t534 = t524 - t528;
        const V t535 = t529 - t525;
        // complex block of 2
        const V t536 = t526 + t531;
        const V t537 = t527 - t530;
        const V t538 = t526 - t531;
        const V t539 = t527 + t530;
        // complex block of 2
        const V t540 = t326 + t430;
        const V t541 = t327 + t431;
        const V t542 = t326 - t430;
        const V t543 = t327 - t431;
        // complex block of 2
        const V t544 = t378 + t482;
        const V t545 = t379 + t483;
        const V t546 = t378 - t482;
        const V t547 = t379 - t483;
        // complex block of 2
        const V t548 = t540 + t544;
        const V t549 = t541 + t545;
        const V t550 = t540 - t544;
        const V t551 = t541 - t545;
        // complex block of 2
        const V t552 = t542 + t547;
        const V t553 = t543 - t546;
        const V t554 = t542 - t547;
        const V t555 = t543 + t546;
        // complex block of 37
        const V x0r = io.re(0);
        const V t556 = x0r + t212;
        const V x0i = io.im(0);
        io.re(0, t556);
        const V t557 = x0i + t490;
        io.im(0, t557);
        const V t558 = c[44] * t212;
        const V t559 = x0r - t558;
        const V t560 = c[44] * t490;
        const V t561 = x0i - t560;
        const V t562 = c[10] * t523;
        const V t563 = c[11] * t522;
        const V t564 = t563 - t562;
        const V t565 = c[10] * t522;
        const V t566 = c[11] * t523;
        const V t567 = t566 + t565;
        const V t568 = c[10] * t245;
        const V t569 = c[11] * t244;
        const V t570 = t568 - t569;
        const V t571 = c[10] * t244;
        const V t572 = c[11] * t245;
        const V t573 = t572 + t571;
        const V t574 = c[12] * t273;
        const V t575 = c[13] * t272;
        const V t576 = t575 + t574;
        const V t577 = c[12] * t272;
        const V t578 = c[13] * t273;
        const V t579 = t577 - t578;
        const V t580 = c[12] * t551;
        const V t581 = c[13] * t550;
        const V t582 = t581 + t580;
        const V t583 = c[12] * t550;
        const V t584 = c[13] * t551;
        const V t585 = t583 - t584;
        const V t586 = c[14] * t539;
        const V t587 = c[15] * t538;
        const V t588 = t587 - t586;
        const V t589 = c[14] * t538;
        const V t590 = c[15] * t539;
        const V t591 = t590 + t589;
        const V t592 = c[14] * t261;
        const V t593 = c[15] * t260;
        const V t594 = t592 - t593;
        const V t595 = c[14] * t260;
        const V t596 = c[15] * t261;
        const V t597 = t596 + t595;
        const V t598 = c[16] * t223;
        const V t599 = c[17] * t222;
        const V t600 = t599 - t598;
        const V t601 = c[16] * t222;
        const V t602 = c[17] * t223;
        const V t603 = t602 + t601;
        const V t604 = c[16] * t501;
        const V t605 = c[17] * t500;
        const V t606 = t605 - t604;
        const V t607 = c[16] * t500;
        const V t608 = c[17] * t501;
        const V t609 = t608 + t607;
        const V t610 = c[18] * t507;
        const V t611 = c[19] * t506;
        const V t612 = t610 - t611;
        const V t613 = c[18] * t506;
        const V t614 = c[19] * t507;
        const V t615 = t614 + t613;
        const V t616 = c[18] * t229;
        const V t617 = c[19] * t228;
        const V t618 = t617 - t616;
        const V t619 = c[18] * t228;
        const V t620 = c[19] * t229;
        const V t621 = t620 + t619;
        const V t622 = c[20] * t257;
        const V t623 = c[21] * t256;
        const V t624 = t622 - t623;
        const V t625 = c[20] * t256;
        const V t626 = c[21] * t257;
        const V t627 = t626 + t625;
        const V t628 = c[20] * t535;
        const V t629 = c[21] * t534;
        const V t630 = t628 - t629;
        const V t631 = c[20] * t534;
        const V t632 = c[21] * t535;
        const V t633 = t632 + t631;
        const V t634 = c[22] * t555;
        const V t635 = c[23] * t554;
        const V t636 = t635 + t634;
        const V t637 = c[22] * t554;
        const V t638 = c[23] * t555;
        const V t639 = t637 - t638;
        const V t640 = c[22] * t277;
        const V t641 = c[23] * t276;
        const V t642 = t641 + t640;
        const V t643 = c[22] * t276;
        const V t644 = c[23] * t277;
        const V t645 = t644 - t643;
        const V t646 = c[24] * t239;
        const V t647 = c[25] * t238;
        const V t648 = t647 - t646;
        const V t649 = c[24] * t238;
        const V t650 = c[25] * t239;
        const V t651 = t650 + t649;
        const V t652 = c[24] * t517;
        const V t653 = c[25] * t516;
        const V t654 = t653 - t652;
        const V t655 = c[24] * t516;
        const V t656 = c[25] * t517;
        const V t657 = t656 + t655;
        const V t658 = c[26] * t489;
        const V t659 = c[27] * t487;
        const V t660 = t659 - t658;
        const V t661 = c[26] * t487;
        const V t662 = c[27] * t489;
        const V t663 = t662 + t661;
        const V t664 = c[26] * t211;
        const V t665 = c[27] * t209;
        const V t666 = t664 - t665;
        const V t667 = c[26] * t209;
        const V t668 = c[27] * t211;
        const V t669 = t668 + t667;
        const V t670 = c[28] * t241;
        const V t671 = c[29] * t240;
        const V t672 = t670 - t671;
        const V t673 = c[28] * t240;
        const V t674 = c[29] * t241;
        const V t675 = t674 + t673;
        const V t676 = c[28] * t519;
        const V t677 = c[29] * t518;
        const V t678 = t676 - t677;
        const V t679 = c[28] * t518;
        const V t680 = c[29] * t519;
        const V t681 = t680 + t679;
        const V t682 = c[30] * t553;
        const V t683 = c[31] * t552;
        const V t684 = t683 + t682;
        const V t685 = c[30] * t552;
        const V t686 = c[31] * t553;
        const V t687 = t685 - t686;
        const V t688 = c[30] * t275;
        const V t689 = c[31] * t274;
        const V t690 = t689 + t688;
        const V t691 = c[30] * t274;
        const V t692 = c[31] * t275;
        const V t693 = t692 - t691;
        const V t694 = c[32] * t255;
        const V t695 = c[33] * t254;
        const V t696 = t695 - t694;
        const V t697 = c[32] * t254;
        const V t698 = c[33] * t255;
        const V t699 = t698 + t697;
        const V t700 = c[32] * t533;
        const V t701 = c[33] * t532;
        const V t702 = t701 - t700;
        const V t703 = c[32] * t532;
        const V t704 = c[33] * t533;
        const V t705 = t704 + t703;
        const V t706 = c[34] * t505;
        const V t707 = c[35] * t504;
        const V t708 = t707 + t706;
        const V t709 = c[34] * t504;
        const V t710 = c[35] * t505;
        const V t711 = t710 - t709;
        const V t712 = c[34] * t227;
        const V t713 = c[35] * t226;
        const V t714 = t713 + t712;
        const V t715 = c[34] * t226;
        const V t716 = c[35] * t227;
        const V t717 = t715 - t716;
        const V t718 = c[36] * t225;
        const V t719 = c[37] * t224;
        const V t720 = t719 + t718;
        const V t721 = c[36] * t224;
        const V t722 = c[37] * t225;
        const V t723 = t721 - t722;
        const V t724 = c[36] * t503;
        const V t725 = c[37] * t502;
        const V t726 = t725 + t724;
        const V t727 = c[36] * t502;
        const V t728 = c[37] * t503;
        const V t729 = t727 - t728;
        const V t730 = c[38] * t537;
        const V t731 = c[39] * t536;
        const V t732 = t731 + t730;
        const V t733 = c[38] * t536;
        const V t734 = c[39] * t537;
        const V t735 = t734 - t733;
        const V t736 = c[38] * t259;
        const V t737 = c[39] * t258;
        const V t738 = t737 + t736;
        const V t739 = c[38] * t258;
        const V t740 = c[39] * t259;
        const V t741 = t739 - t740;
        const V t742 = c[40] * t271;
        const V t743 = c[41] * t270;
        const V t744 = t743 - t742;
        const V t745 = c[40] * t270;
        const V t746 = c[41] * t271;
        const V t747 = t746 + t745;
        const V t748 = c[40] * t549;
        const V t749 = c[41] * t548;
        const V t750 = t749 - t748;
        const V t751 = c[40] * t548;
        const V t752 = c[41] * t549;
        const V t753 = t752 + t751;
        const V t754 = c[42] * t521;
        const V t755 = c[43] * t520;
        const V t756 = t755 - t754;
        const V t757 = c[42] * t520;
        const V t758 = c[43] * t521;
        const V t759 = t758 + t757;
        const V t760 = c[42] * t243;
        const V t761 = c[43] * t242;
        const V t762 = t760 - t761;
        const V t763 = c[42] * t242;
        const V t764 = c[43] * t243;
        const V t765 = t764 + t763;
        const V t766 = c[45] * t213;
        const V t767 = c[45] * t491;
        // spectrum block of 2
        const V t768 = t559 + t766;
        const V t769 = t559 - t766;
        // spectrum block of 2
        const V t770 = t768 + t660;
        const V t771 = t768 - t660;
        // spectrum block of 2
        const V t772 = t769 + t663;
        const V t773 = t769 - t663;
        // complex block of 2
        const V t774 = t603 - t723;
        const V t775 = t600 + t720;
        const V t776 = t603 + t723;
        const V t777 = t600 - t720;
        // complex block of 2
        const V t778 = t711 - t615;
        const V t779 = t708 + t612;
        const V t780 = t711 + t615;
        const V t781 = t708 - t612;
        // complex block of 2
        const V t782 = t774 + t778;
        const V t783 = t775 + t779;
        const V t784 = t774 - t778;
        const V t785 = t775 - t779;
        // complex block of 2
        const V t786 = t776 + t781;
        const V t787 = t777 - t780;
        const V t788 = t776 - t781;
        const V t789 = t777 + t780;
        // complex block of 2
        const V t790 = t651 - t675;
        const V t791 = t648 + t672;
        const V t792 = t651 + t675;
        const V t793 = t648 - t672;
        // complex block of 2
        const V t794 = t759 + t567;
        const V t795 = t756 + t564;
        const V t796 = t759 - t567;
        const V t797 = t756 - t564;
        // complex block of 2
        const V t798 = t790 + t794;
        const V t799 = t791 + t795;
        const V t800 = t790 - t794;
        const V t801 = t791 - t795;
        // complex block of 2
        const V t802 = t792 + t797;
        const V t803 = t793 - t796;
        const V t804 = t792 - t797;
        const V t805 = t793 + t796;
        // complex block of 2
        const V t806 = t699 + t627;
        const V t807 = t696 + t624;
        const V t808 = t627 - t699;
        const V t809 = t696 - t624;
        // complex block of 2
        const V t810 = t591 - t735;
        const V t811 = t588 - t732;
        const V t812 = t735 + t591;
        const V t813 = t732 + t588;
        // complex block of 2
        const V t814 = t810 - t806;
        const V t815 = t807 + t811;
        const V t816 = t806 + t810;
        const V t817 = t807 - t811;
        // complex block of 2
        const V t818 = t808 - t813;
        const V t819 = t809 + t812;
        const V t820 = t808 + t813;
        const V t821 = t809 - t812;
        // complex block of 2
        const V t822 = t747 - t579;
        const V t823 = t744 + t576;
        const V t824 = t747 + t579;
        const V t825 = t744 - t576;
        // complex block of 2
        const V t826 = t639 - t687;
        const V t827 = t684 - t636;
        const V t828 = t687 + t639;
        const V t829 = t684 + t636;
        // complex block of 2
        const V t830 = t822 + t826;
        const V t831 = t823 + t827;
        const V t832 = t822 - t826;
        const V t833 = t823 - t827;
        // complex block of 2
        const V t834 = t824 + t829;
        const V t835 = t825 + t828;
        const V t836 = t824 - t829;
        const V t837 = t825 - t828;
        // spectrum block of 3
        const V t838 = t815 + t770;
        const V t839 = c[0] * t815;
        const V t840 = t770 - t839;
        const V t841 = c[1] * t814;
        const V t842 = t840 - t841;
        const V t843 = t840 + t841;
        // complex block of 3
        const V t844 = t830 - t798;
        const V t845 = t831 + t799;
        const V t846 = t830 + t798;
        const V t847 = t831 - t799;
        const V t848 = t844 + t782;
        const V t849 = t845 + t783;
        const V t850 = c[0] * t844;
        const V t851 = t782 - t850;
        const V t852 = c[0] * t845;
        const V t853 = t783 - t852;
        const V t854 = c[1] * t846;
        const V t855 = c[1] * t847;
        const V t856 = t851 + t855;
        const V t857 = t853 - t854;
        const V t858 = t851 - t855;
        const V t859 = t853 + t854;
        // spectrum block of 9, multiplier 4
        const V t860 = c[2] * t856;
        const V t861 = c[3] * t857;
        const V t862 = t861 + t860;
        const V t863 = c[4] * t858;
        const V t864 = c[5] * t859;
        const V t865 = t864 + t863;
        // spectrum block of 3
        const V t866 = t849 + t838;
        io.re(1, t866);
        const V t867 = c[0] * t849;
        const V t868 = t838 - t867;
        const V t869 = c[1] * t848;
        const V t870 = t868 - t869;
        io.re(10, t870);
        const V t871 = t868 + t869;
        io.re(26, t871);
        // spectrum block of 3
        const V t872 = t842 - t862;
        io.re(7, t872);
        const V t873 = c[0] * t862;
        const V t874 = t873 + t842;
        const V t875 = c[6] * t857;
        const V t876 = c[7] * t856;
        const V t877 = t875 - t876;
        const V t878 = t874 - t877;
        io.re(33, t878);
        const V t879 = t874 + t877;
        io.re(34, t879);
        // spectrum block of 3
        const V t880 = t865 + t843;
        io.re(12, t880);
        const V t881 = c[0] * t865;
        const V t882 = t843 - t881;
        const V t883 = c[8] * t858;
        const V t884 = c[9] * t859;
        const V t885 = t883 - t884;
        const V t886 = t882 - t885;
        io.re(9, t886);
        const V t887 = t882 + t885;
        io.re(16, t887);
        // spectrum block of 3
        const V t888 = t819 + t772;
        const V t889 = c[0] * t819;
        const V t890 = t772 - t889;
        const V t891 = c[1] * t818;
        const V t892 = t890 - t891;
        const V t893 = t890 + t891;
        // complex block of 3
        const V t894 = t834 - t802;
        const V t895 = t835 + t803;
        const V t896 = t834 + t802;
        const V t897 = t835 - t803;
        const V t898 = t894 + t786;
        const V t899 = t895 + t787;
        const V t900 = c[0] * t894;
        const V t901 = t786 - t900;
        const V t902 = c[0] * t895;
        const V t903 = t787 - t902;
        const V t904 = c[1] * t896;
        const V t905 = c[1] * t897;
        const V t906 = t901 + t905;
        const V t907 = t903 - t904;
        const V t908 = t901 - t905;
        const V t909 = t903 + t904;
        // spectrum block of 9, multiplier 4
        const V t910 = c[2] * t906;
        const V t911 = c[3] * t907;
        const V t912 = t911 + t910;
        const V t913 = c[4] * t908;
        const V t914 = c[5] * t909;
        const V t915 = t914 + t913;
        // spectrum block of 3
        const V t916 = t899 + t888;
        io.re(6, t916);
        const V t917 = c[0] * t899;
        const V t918 = t888 - t917;
        const V t919 = c[1] * t898;
        const V t920 = t918 - t919;
        io.re(23, t920);
        const V t921 = t918 + t919;
        io.re(8, t921);
        // spectrum block of 3
        const V t922 = t892 - t912;
        io.re(5, t922);
        const V t923 = c[0] * t912;
        const V t924 = t923 + t892;
        const V t925 = c[6] * t907;
        const V t926 = c[7] * t906;
        const V t927 = t925 - t926;
        const V t928 = t924 - t927;
        io.re(13, t928);
        const V t929 = t924 + t927;
        io.re(19, t929);
        // spectrum block of 3
        const V t930 = t915 + t893;
        io.re(35, t930);
        const V t931 = c[0] * t915;
        const V t932 = t893 - t931;
        const V t933 = c[8] * t908;
        const V t934 = c[9] * t909;
        const V t935 = t933 - t934;
        const V t936 = t932 - t935;
        io.re(17, t936);
        const V t937 = t932 + t935;
        io.re(22, t937);
        // spectrum block of 3
        const V t938 = t817 + t771;
        const V t939 = c[0] * t817;
        const V t940 = t771 - t939;
        const V t941 = c[1] * t816;
        const V t942 = t940 + t941;
        const V t943 = t940 - t941;
        // complex block of 3
        const V t944 = t832 - t800;
        const V t945 = t833 + t801;
        const V t946 = t832 + t800;
        const V t947 = t833 - t801;
        const V t948 = t944 + t784;
        const V t949 = t945 + t785;
        const V t950 = c[0] * t944;
        const V t951 = t784 - t950;
        const V t952 = c[0] * t945;
        const V t953 = t785 - t952;
        const V t954 = c[1] * t946;
        const V t955 = c[1] * t947;
        const V t956 = t951 + t955;
        const V t957 = t953 - t954;
        const V t958 = t951 - t955;
        const V t959 = t953 + t954;
        // spectrum block of 9, multiplier 4
        const V t960 = c[2] * t956;
        const V t961 = c[3] * t957;
        const V t962 = t961 + t960;
        const V t963 = c[4] * t958;
        const V t964 = c[5] * t959;
        const V t965 = t964 + t963;
        // spectrum block of 3
        const V t966 = t949 + t938;
        io.re(36, t966);
        const V t967 = c[0] * t949;
        const V t968 = t938 - t967;
        const V t969 = c[1] * t948;
        const V t970 = t968 - t969;
        io.re(27, t970);
        const V t971 = t968 + t969;
        io.re(11, t971);
        // spectrum block of 3
        const V t972 = t942 - t962;
        io.re(30, t972);
        const V t973 = c[0] * t962;
        const V t974 = t973 + t942;
        const V t975 = c[6] * t957;
        const V t976 = c[7] * t956;
        const V t977 = t975 - t976;
        const V t978 = t974 - t977;
        io.re(4, t978);
        const V t979 = t974 + t977;
        io.re(3, t979);
        // spectrum block of 3
        const V t980 = t965 + t943;
        io.re(25, t980);
        const V t981 = c[0] * t965;
        const V t982 = t943 - t981;
        const V t983 = c[8] * t958;
        const V t984 = c[9] * t959;
        const V t985 = t983 - t984;
        const V t986 = t982 - t985;
        io.re(28, t986);
        const V t987 = t982 + t985;
        io.re(21, t987);
        // spectrum block of 3
        const V t988 = t821 + t773;
        const V t989 = c[0] * t821;
        const V t990 = t773 - t989;
        const V t991 = c[1] * t820;
        const V t992 = t990 - t991;
        const V t993 = t990 + t991;
        // complex block of 3
        const V t994 = t836 - t804;
        const V t995 = t837 + t805;
        const V t996 = t836 + t804;
        const V t997 = t837 - t805;
        const V t998 = t994 + t788;
        const V t999 = t995 + t789;
        const V t1000 = c[0] * t994;
        const V t1001 = t788 - t1000;
        const V t1002 = c[0] * t995;
        const V t1003 = t789 - t1002;
        const V t1004 = c[1] * t996;
        const V t1005 = c[1] * t997;
        const V t1006 = t1001 + t1005;
        const V t1007 = t1003 - t1004;
        const V t1008 = t1001 - t1005;
        const V t1009 = t1003 + t1004;
        // spectrum block of 9, multiplier 4
        const V t1010 = c[2] * t1006;
        const V t1011 = c[3] * t1007;
        const V t1012 = t1011 + t1010;
        const V t1013 = c[4] * t1008;
        const V t1014 = c[5] * t1009;
        const V t1015 = t1014 + t1013;
        // spectrum block of 3
        const V t1016 = t999 + t988;
        io.re(31, t1016);
        const V t1017 = c[0] * t999;
        const V t1018 = t988 - t1017;
        const V t1019 = c[1] * t998;
        const V t1020 = t1018 - t1019;
        io.re(14, t1020);
        const V t1021 = t1018 + t1019;
        io.re(29, t1021);
        // spectrum block of 3
        const V t1022 = t992 - t1012;
        io.re(32, t1022);
        const V t1023 = c[0] * t1012;
        const V t1024 = t1023 + t992;
        const V t1025 = c[6] * t1007;
        const V t1026 = c[7] * t1006;
        const V t1027 = t1025 - t1026;
        const V t1028 = t1024 - t1027;
        io.re(24, t1028);
        const V t1029 = t1024 + t1027;
        io.re(18, t1029);
        // spectrum block of 3
        const V t1030 = t1015 + t993;
        io.re(2, t1030);
        const V t1031 = c[0] * t1015;
        const V t1032 = t993 - t1031;
        const V t1033 = c[8] * t1008;
        const V t1034 = c[9] * t1009;
        const V t1035 = t1033 - t1034;
        const V t1036 = t1032 - t1035;
        io.re(20, t1036);
        const V t1037 = t1032 + t1035;
        io.re(15, t1037);
        // spectrum block of 2
        const V t1038 = t561 + t767;
        const V t1039 = t561 - t767;
        // spectrum block of 2
        const V t1040 = t1038 + t666;
        const V t1041 = t1038 - t666;
        // spectrum block of 2
        const V t1042 = t1039 - t669;
        const V t1043 = t1039 + t669;
        // complex block of 2
        const V t1044 = t609 - t729;
        const V t1045 = t606 + t726;
        const V t1046 = t609 + t729;
        const V t1047 = t606 - t726;
        // complex block of 2
        const V t1048 = t717 + t621;
        const V t1049 = t618 - t714;
        const V t1050 = t717 - t621;
        const V t1051 = t714 + t618;
        // complex block of 2
        const V t1052 = t1044 + t1048;
        const V t1053 = t1045 + t1049;
        const V t1054 = t1044 - t1048;
        const V t1055 = t1045 - t1049;
        // complex block of 2
        const V t1056 = t1046 - t1051;
        const V t1057 = t1047 - t1050;
        const V t1058 = t1046 + t1051;
        const V t1059 = t1047 + t1050;
        // complex block of 2
        const V t1060 = t657 - t681;
        const V t1061 = t654 + t678;
        const V t1062 = t657 + t681;
        const V t1063 = t654 - t678;
        // complex block of 2
        const V t1064 = t765 + t573;
        const V t1065 = t762 + t570;
        const V t1066 = t573 - t765;
        const V t1067 = t762 - t570;
        // complex block of 2
        const V t1068 = t1060 - t1064;
        const V t1069 = t1061 + t1065;
        const V t1070 = t1060 + t1064;
        const V t1071 = t1061 - t1065;
        // complex block of 2
        const V t1072 = t1062 + t1067;
        const V t1073 = t1063 - t1066;
        const V t1074 = t1062 - t1067;
        const V t1075 = t1063 + t1066;
        // complex block of 2
        const V t1076 = t705 + t633;
        const V t1077 = t702 + t630;
        const V t1078 = t633 - t705;
        const V t1079 = t702 - t630;
        // complex block of 2
        const V t1080 = t741 + t597;
        const V t1081 = t738 + t594;
        const V t1082 = t597 - t741;
        const V t1083 = t738 - t594;
        // complex block of 2
        const V t1084 = t1076 + t1080;
        const V t1085 = t1077 + t1081;
        const V t1086 = t1080 - t1076;
        const V t1087 = t1077 - t1081;
        // complex block of 2
        const V t1088 = t1078 + t1083;
        const V t1089 = t1079 - t1082;
        const V t1090 = t1078 - t1083;
        const V t1091 = t1079 + t1082;
        // complex block of 2
        const V t1092 = t753 - t585;
        const V t1093 = t750 + t582;
        const V t1094 = t753 + t585;
        const V t1095 = t750 - t582;
        // complex block of 2
        const V t1096 = t645 - t693;
        const V t1097 = t642 - t690;
        const V t1098 = t693 + t645;
        const V t1099 = t690 + t642;
        // complex block of 2
        const V t1100 = t1092 + t1096;
        const V t1101 = t1093 + t1097;
        const V t1102 = t1092 - t1096;
        const V t1103 = t1093 - t1097;
        // complex block of 2
        const V t1104 = t1094 - t1099;
        const V t1105 = t1095 + t1098;
        const V t1106 = t1094 + t1099;
        const V t1107 = t1095 - t1098;
        // spectrum block of 3
        const V t1108 = t1085 + t1040;
        const V t1109 = c[0] * t1085;
        const V t1110 = t1040 - t1109;
        const V t1111 = c[1] * t1084;
        const V t1112 = t1110 + t1111;
        const V t1113 = t1110 - t1111;
        // complex block of 3
        const V t1114 = t1100 - t1068;
        const V t1115 = t1101 + t1069;
        const V t1116 = t1100 + t1068;
        const V t1117 = t1101 - t1069;
        const V t1118 = t1114 + t1052;
        const V t1119 = t1115 + t1053;
        const V t1120 = c[0] * t1114;
        const V t1121 = t1052 - t1120;
        const V t1122 = c[0] * t1115;
        const V t1123 = t1053 - t1122;
        const V t1124 = c[1] * t1116;
        const V t1125 = c[1] * t1117;
        const V t1126 = t1121 + t1125;
        const V t1127 = t1123 - t1124;
        const V t1128 = t1121 - t1125;
        const V t1129 = t1123 + t1124;
        // spectrum block of 9, multiplier 4
        const V t1130 = c[2] * t1126;
        const V t1131 = c[3] * t1127;
        const V t1132 = t1131 + t1130;
        const V t1133 = c[4] * t1128;
        const V t1134 = c[5] * t1129;
        const V t1135 = t1134 + t1133;
        // spectrum block of 3
        const V t1136 = t1119 + t1108;
        io.im(1, t1136);
        const V t1137 = c[0] * t1119;
        const V t1138 = t1108 - t1137;
        const V t1139 = c[1] * t1118;
        const V t1140 = t1138 - t1139;
        io.im(10, t1140);
        const V t1141 = t1138 + t1139;
        io.im(26, t1141);
        // spectrum block of 3
        const V t1142 = t1112 - t1132;
        io.im(7, t1142);
        const V t1143 = c[0] * t1132;
        const V t1144 = t1143 + t1112;
        const V t1145 = c[6] * t1127;
        const V t1146 = c[7] * t1126;
        const V t1147 = t1145 - t1146;
        const V t1148 = t1144 - t1147;
        io.im(33, t1148);
        const V t1149 = t1144 + t1147;
        io.im(34, t1149);
        // spectrum block of 3
        const V t1150 = t1135 + t1113;
        io.im(12, t1150);
        const V t1151 = c[0] * t1135;
        const V t1152 = t1113 - t1151;
        const V t1153 = c[8] * t1128;
        const V t1154 = c[9] * t1129;
        const V t1155 = t1153 - t1154;
        const V t1156 = t1152 - t1155;
        io.im(9, t1156);
        const V t1157 = t1152 + t1155;
        io.im(16, t1157);
        // spectrum block of 3
        const V t1158 = t1089 + t1042;
        const V t1159 = c[0] * t1089;
        const V t1160 = t1042 - t1159;
        const V t1161 = c[1] * t1088;
        const V t1162 = t1160 - t1161;
        const V t1163 = t1160 + t1161;
        // complex block of 3
        const V t1164 = t1104 - t1072;
        const V t1165 = t1105 + t1073;
        const V t1166 = t1104 + t1072;
        const V t1167 = t1105 - t1073;
        const V t1168 = t1164 + t1056;
        const V t1169 = t1165 + t1057;
        const V t1170 = c[0] * t1164;
        const V t1171 = t1056 - t1170;
        const V t1172 = c[0] * t1165;
        const V t1173 = t1057 - t1172;
        const V t1174 = c[1] * t1166;
        const V t1175 = c[1] * t1167;
        const V t1176 = t1171 + t1175;
        const V t1177 = t1173 - t1174;
        const V t1178 = t1171 - t1175;
        const V t1179 = t1173 + t1174;
        // spectrum block of 9, multiplier 4
        const V t1180 = c[2] * t1176;
        const V t1181 = c[3] * t1177;
        const V t1182 = t1181 + t1180;
        const V t1183 = c[4] * t1178;
        const V t1184 = c[5] * t1179;
        const V t1185 = t1184 + t1183;
        // spectrum block of 3
        const V t1186 = t1169 + t1158;
        io.im(6, t1186);
        const V t1187 = c[0] * t1169;
        const V t1188 = t1158 - t1187;
        const V t1189 = c[1] * t1168;
        const V t1190 = t1188 - t1189;
        io.im(23, t1190);
        const V t1191 = t1188 + t1189;
        io.im(8, t1191);
        // spectrum block of 3
        const V t1192 = t1162 - t1182;
        io.im(5, t1192);
        const V t1193 = c[0] * t1182;
        const V t1194 = t1193 + t1162;
        const V t1195 = c[6] * t1177;
        const V t1196 = c[7] * t1176;
        const V t1197 = t1195 - t1196;
        const V t1198 = t1194 - t1197;
        io.im(13, t1198);
        const V t1199 = t1194 + t1197;
        io.im(19, t1199);
        // spectrum block of 3
        const V t1200 = t1185 + t1163;
        io.im(35, t1200);
        const V t1201 = c[0] * t1185;
        const V t1202 = t1163 - t1201;
        const V t1203 = c[8] * t1178;
        const V t1204 = c[9] * t1179;
        const V t1205 = t1203 - t1204;
        const V t1206 = t1202 - t1205;
        io.im(17, t1206);
        const V t1207 = t1202 + t1205;
        io.im(22, t1207);
        // spectrum block of 3
        const V t1208 = t1087 + t1041;
        const V t1209 = c[0] * t1087;
        const V t1210 = t1041 - t1209;
        const V t1211 = c[1] * t1086;
        const V t1212 = t1210 - t1211;
        const V t1213 = t1210 + t1211;
        // complex block of 3
        const V t1214 = t1102 - t1070;
        const V t1215 = t1103 + t1071;
        const V t1216 = t1102 + t1070;
        const V t1217 = t1103 - t1071;
        const V t1218 = t1214 + t1054;
        const V t1219 = t1215 + t1055;
        const V t1220 = c[0] * t1214;
        const V t1221 = t1054 - t1220;
        const V t1222 = c[0] * t1215;
        const V t1223 = t1055 - t1222;
        const V t1224 = c[1] * t1216;
        const V t1225 = c[1] * t1217;
        const V t1226 = t1221 + t1225;
        const V t1227 = t1223 - t1224;
        const V t1228 = t1221 - t1225;
        const V t1229 = t1223 + t1224;
        // spectrum block of 9, multiplier 4
        const V t1230 = c[2] * t1226;
        const V t1231 = c[3] * t1227;
        const V t1232 = t1231 + t1230;
        const V t1233 = c[4] * t1228;
        const V t1234 = c[5] * t1229;
        const V t1235 = t1234 + t1233;
        // spectrum block of 3
        const V t1236 = t1219 + t1208;
        io.im(36, t1236);
        const V t1237 = c[0] * t1219;
        const V t1238 = t1208 - t1237;
        const V t1239 = c[1] * t1218;
        const V t1240 = t1238 - t1239;
        io.im(27, t1240);
        const V t1241 = t1238 + t1239;
        io.im(11, t1241);
        // spectrum block of 3
        const V t1242 = t1212 - t1232;
        io.im(30, t1242);
        const V t1243 = c[0] * t1232;
        const V t1244 = t1243 + t1212;
        const V t1245 = c[6] * t1227;
        const V t1246 = c[7] * t1226;
        const V t1247 = t1245 - t1246;
        const V t1248 = t1244 - t1247;
        io.im(4, t1248);
        const V t1249 = t1244 + t1247;
        io.im(3, t1249);
        // spectrum block of 3
        const V t1250 = t1235 + t1213;
        io.im(25, t1250);
        const V t1251 = c[0] * t1235;
        const V t1252 = t1213 - t1251;
        const V t1253 = c[8] * t1228;
        const V t1254 = c[9] * t1229;
        const V t1255 = t1253 - t1254;
        const V t1256 = t1252 - t1255;
        io.im(28, t1256);
        const V t1257 = t1252 + t1255;
        io.im(21, t1257);
        // spectrum block of 3
        const V t1258 = t1091 + t1043;
        const V t1259 = c[0] * t1091;
        const V t1260 = t1043 - t1259;
        const V t1261 = c[1] * t1090;
        const V t1262 = t1260 - t1261;
        const V t1263 = t1260 + t1261;
        // complex block of 3
        const V t1264 = t1106 - t1074;
        const V t1265 = t1107 + t1075;
        const V t1266 = t1106 + t1074;
        const V t1267 = t1107 - t1075;
        const V t1268 = t1264 + t1058;
        const V t1269 = t1265 + t1059;
        const V t1270 = c[0] * t1264;
        const V t1271 = t1058 - t1270;
        const V t1272 = c[0] * t1265;
        const V t1273 = t1059 - t1272;
        const V t1274 = c[1] * t1266;
        const V t1275 = c[1] * t1267;
        const V t1276 = t1271 + t1275;
        const V t1277 = t1273 - t1274;
        const V t1278 = t1271 - t1275;
        const V t1279 = t1273 + t1274;
        // spectrum block of 9, multiplier 4
        const V t1280 = c[2] * t1276;
        const V t1281 = c[3] * t1277;
        const V t1282 = t1281 + t1280;
        const V t1283 = c[4] * t1278;
        const V t1284 = c[5] * t1279;
        const V t1285 = t1284 + t1283;
        // spectrum block of 3
        const V t1286 = t1269 + t1258;
        io.im(31, t1286);
        const V t1287 = c[0] * t1269;
        const V t1288 = t1258 - t1287;
        const V t1289 = c[1] * t1268;
        const V t1290 = t1288 - t1289;
        io.im(14, t1290);
        const V t1291 = t1288 + t1289;
        io.im(29, t1291);
        // spectrum block of 3
        const V t1292 = t1262 - t1282;
        io.im(32, t1292);
        const V t1293 = c[0] * t1282;
        const V t1294 = t1293 + t1262;
        const V t1295 = c[6] * t1277;
        const V t1296 = c[7] * t1276;
        const V t1297 = t1295 - t1296;
        const V t1298 = t1294 - t1297;
        io.im(24, t1298);
        const V t1299 = t1294 + t1297;
        io.im(18, t1299);
        // spectrum block of 3
        const V t1300 = t1285 + t1263;
        io.im(2, t1300);
        const V t1301 = c[0] * t1285;
        const V t1302 = t1263 - t1301;
        const V t1303 = c[8] * t1278;
        const V t1304 = c[9] * t1279;
        const V t1305 = t1303 - t1304;
        const V t1306 = t1302 - t1305;
        io.im(20, t1306);
        const V t1307 = t1302 + t1305;
        io.im(15, t1307);
    }
};

}  // namespace zulg
