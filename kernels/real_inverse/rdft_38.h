// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 38.
// Inverse DFT to 38 real points, prime-factor 2, 19.
// 183 additions, 183 subtractions, 256 multiplications (294 with `scale`); 31 constants; 53 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<38> {
    static constexpr int steps = 660;  // with `scale`
    static constexpr double inverseRoot = 0.16222142113076254;  // 1/sqrt(38), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.6427876096865394,  // c[4]: sin 2 pi 1/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.10231284930367265,  // c[6]: -Q[6] of 19
        0.28199561460730244,  // c[7]: -P[3] of 19
        0.25181241707905544,  // c[8]: P[1] of 19
        0.4137129534343489,  // c[9]: -Q[1] of 19
        0.007654694426448971,  // c[10]: -Q[8] of 19
        0.4842616099669739,  // c[11]: -P[8] of 19
        0.06545376435166843,  // c[12]: Q[2] of 19
        0.4798788450919296,  // c[13]: P[2] of 19
        0.3056588037374879,  // c[14]: -Q[4] of 19
        0.37568683358927524,  // c[15]: P[4] of 19
        0.4195932163702218,  // c[16]: -P[5] of 19
        0.24188723407956064,  // c[17]: Q[5] of 19
        0.3873109834397322,  // c[18]: P[7] of 19
        0.2907887606863707,  // c[19]: -Q[7] of 19
        0.3937592850674352,  // c[20]: -Q[3] of 19
        0.47339199623771827,  // c[21]: P[6] of 19
        0.3420201433256687,  // c[22]: -sin 2 pi 5/9
        0.9396926207859084,  // c[23]: -cos 2 pi 5/9
        0.29619813272602386,  // c[24]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[25]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.1503837331804353,  // c[26]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[27]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.05555555555555555,  // c[28]: 1/18
        0.2421610524189263,  // c[29]: beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x19r = io.re(19);
        const V t0 = x0r + x19r;
        const V t1 = x0r - x19r;
        // doubled bins
        const V x1r = io.re(1);
        const V t2 = two * x1r;
        const V x18r = io.re(18);
        const V t3 = two * x18r;
        // complex block of 2
        const V t4 = t3 + t2;
        const V t5 = t3 - t2;
        // doubled bins
        const V x7r = io.re(7);
        const V t6 = two * x7r;
        const V x12r = io.re(12);
        const V t7 = two * x12r;
        // complex block of 2
        const V t8 = t7 + t6;
        const V t9 = t7 - t6;
        // doubled bins
        const V x8r = io.re(8);
        const V t10 = two * x8r;
        const V x11r = io.re(11);
        const V t11 = two * x11r;
        // complex block of 2
        const V t12 = t10 + t11;
        // real block of 3
        const V t13 = t8 + t4;
        const V t14 = c[0] * t13;
        const V t15 = t12 - t14;
        // complex block of 2
        const V t16 = t10 - t11;
        // real block of 3
        const V t17 = t9 + t5;
        const V t18 = c[0] * t17;
        const V t19 = t16 - t18;
        // real block of 3
        const V t20 = t8 - t4;
        const V t21 = c[1] * t20;
        // real block of 9
        const V t22 = c[2] * t21;
        const V t23 = c[3] * t21;
        // real block of 3
        const V t24 = t9 - t5;
        const V t25 = c[1] * t24;
        // real block of 9
        const V t26 = c[2] * t25;
        const V t27 = c[3] * t25;
        // doubled bins
        const V x2r = io.re(2);
        const V t28 = two * x2r;
        const V x17r = io.re(17);
        const V t29 = two * x17r;
        // complex block of 2
        const V t30 = t28 + t29;
        const V t31 = t28 - t29;
        // doubled bins
        const V x3r = io.re(3);
        const V t32 = two * x3r;
        const V x5r = io.re(5);
        const V t33 = two * x5r;
        const V x14r = io.re(14);
        const V t34 = two * x14r;
        const V x16r = io.re(16);
        const V t35 = two * x16r;
        // complex block of 2
        const V t36 = t34 + t33;
        // complex block of 2
        const V t37 = t35 + t32;
        // real block of 3
        const V t38 = t37 + t36;
        const V t39 = t37 - t36;
        // complex block of 2
        const V t40 = t34 - t33;
        // complex block of 2
        const V t41 = t35 - t32;
        // real block of 3
        const V t42 = t41 + t40;
        const V t43 = t41 - t40;
        // doubled bins
        const V x4r = io.re(4);
        const V t44 = two * x4r;
        const V x6r = io.re(6);
        const V t45 = two * x6r;
        const V x13r = io.re(13);
        const V t46 = two * x13r;
        // complex block of 2
        const V t47 = t45 + t46;
        const V t48 = t45 - t46;
        // doubled bins
        const V x9r = io.re(9);
        const V t49 = two * x9r;
        const V x10r = io.re(10);
        const V t50 = two * x10r;
        // complex block of 2
        const V t51 = t50 + t49;
        const V t52 = t50 - t49;
        // doubled bins
        const V x15r = io.re(15);
        const V t53 = two * x15r;
        // complex block of 2
        const V t54 = t44 + t53;
        // real block of 3
        const V t55 = t47 + t51;
        const V t56 = c[0] * t55;
        const V t57 = t54 - t56;
        // complex block of 2
        const V t58 = t44 - t53;
        // real block of 3
        const V t59 = t48 + t52;
        const V t60 = c[0] * t59;
        const V t61 = t58 - t60;
        // real block of 3
        const V t62 = t47 - t51;
        const V t63 = c[1] * t62;
        // real block of 9
        const V t64 = c[4] * t63;
        const V t65 = c[5] * t63;
        // real block of 3
        const V t66 = t48 - t52;
        const V t67 = c[1] * t66;
        // real block of 9
        const V t68 = c[4] * t67;
        const V t69 = c[5] * t67;
        // real block of 3
        const V t70 = t38 + t30;
        // real block of 3
        const V t71 = t55 + t54;
        // real block of 3
        const V t72 = t13 + t12;
        // real block of 3
        const V t73 = t71 + t72;
        const V t74 = t71 - t72;
        const V t75 = t73 + t70;
        const V t76 = c[0] * t73;
        const V t77 = t70 - t76;
        const V t78 = c[1] * t74;
        // spectrum block of 19, multiplier 2
        const V t79 = c[6] * t78;
        // real block of 3
        const V t80 = c[0] * t38;
        const V t81 = t30 - t80;
        const V t82 = c[1] * t39;
        // real block of 9
        const V t83 = c[5] * t57;
        const V t84 = t83 - t64;
        const V t85 = c[3] * t15;
        const V t86 = t85 - t22;
        // complex block of 3
        const V t87 = t84 + t86;
        const V t88 = t84 - t86;
        // real block of 9
        const V t89 = c[4] * t57;
        const V t90 = t65 + t89;
        const V t91 = c[2] * t15;
        const V t92 = t23 + t91;
        // complex block of 3
        const V t93 = t90 + t92;
        const V t94 = t92 - t90;
        const V t95 = t87 + t81;
        const V t96 = t93 + t82;
        const V t97 = c[0] * t87;
        const V t98 = t81 - t97;
        const V t99 = c[1] * t94;
        const V t100 = t98 + t99;
        const V t101 = t98 - t99;
        const V t102 = c[0] * t93;
        const V t103 = t102 - t82;
        const V t104 = c[1] * t88;
        const V t105 = t103 - t104;
        const V t106 = t103 + t104;
        // real block of 3
        const V t107 = t42 + t31;
        // real block of 3
        const V t108 = t59 + t58;
        // real block of 3
        const V t109 = t17 + t16;
        // real block of 3
        const V t110 = t108 + t109;
        const V t111 = t108 - t109;
        const V t112 = t110 + t107;
        const V t113 = c[0] * t110;
        const V t114 = t107 - t113;
        const V t115 = c[1] * t111;
        // spectrum block of 19, multiplier 2
        const V t116 = c[6] * t115;
        // real block of 3
        const V t117 = c[0] * t42;
        const V t118 = t31 - t117;
        const V t119 = c[1] * t43;
        // real block of 9
        const V t120 = c[5] * t61;
        const V t121 = t120 - t68;
        const V t122 = c[3] * t19;
        const V t123 = t122 - t26;
        // complex block of 3
        const V t124 = t121 + t123;
        const V t125 = t121 - t123;
        // real block of 9
        const V t126 = c[4] * t61;
        const V t127 = t69 + t126;
        const V t128 = c[2] * t19;
        const V t129 = t27 + t128;
        // complex block of 3
        const V t130 = t127 + t129;
        const V t131 = t129 - t127;
        const V t132 = t124 + t118;
        const V t133 = t130 + t119;
        const V t134 = c[0] * t124;
        const V t135 = t118 - t134;
        const V t136 = c[1] * t131;
        const V t137 = t135 + t136;
        const V t138 = t135 - t136;
        const V t139 = c[0] * t130;
        const V t140 = t139 - t119;
        const V t141 = c[1] * t125;
        const V t142 = t140 - t141;
        const V t143 = t140 + t141;
        // doubled bins
        const V x1i = io.im(1);
        const V t144 = two * x1i;
        const V x18i = io.im(18);
        const V t145 = two * x18i;
        // complex block of 2
        const V t146 = t145 - t144;
        const V t147 = t145 + t144;
        // doubled bins
        const V x7i = io.im(7);
        const V t148 = two * x7i;
        const V x12i = io.im(12);
        const V t149 = two * x12i;
        // complex block of 2
        const V t150 = t149 - t148;
        const V t151 = t149 + t148;
        // doubled bins
        const V x8i = io.im(8);
        const V t152 = two * x8i;
        const V x11i = io.im(11);
        const V t153 = two * x11i;
        // complex block of 2
        const V t154 = t152 - t153;
        // real block of 3
        const V t155 = t150 + t146;
        const V t156 = c[0] * t155;
        const V t157 = t154 - t156;
        // complex block of 2
        const V t158 = t152 + t153;
        // real block of 3
        const V t159 = t151 + t147;
        const V t160 = c[0] * t159;
        const V t161 = t158 - t160;
        // real block of 3
        const V t162 = t150 - t146;
        const V t163 = c[1] * t162;
        // real block of 9
        const V t164 = c[2] * t163;
        const V t165 = c[3] * t163;
        // real block of 3
        const V t166 = t151 - t147;
        const V t167 = c[1] * t166;
        // real block of 9
        const V t168 = c[2] * t167;
        const V t169 = c[3] * t167;
        // doubled bins
        const V x2i = io.im(2);
        const V t170 = two * x2i;
        const V x17i = io.im(17);
        const V t171 = two * x17i;
        // complex block of 2
        const V t172 = t170 - t171;
        const V t173 = t170 + t171;
        // doubled bins
        const V x3i = io.im(3);
        const V t174 = two * x3i;
        const V x5i = io.im(5);
        const V t175 = two * x5i;
        const V x14i = io.im(14);
        const V t176 = two * x14i;
        const V x16i = io.im(16);
        const V t177 = two * x16i;
        // complex block of 2
        const V t178 = t176 - t175;
        // complex block of 2
        const V t179 = t177 - t174;
        // real block of 3
        const V t180 = t178 - t179;
        const V t181 = t179 + t178;
        // complex block of 2
        const V t182 = t176 + t175;
        // complex block of 2
        const V t183 = t177 + t174;
        // real block of 3
        const V t184 = t182 - t183;
        const V t185 = t183 + t182;
        // doubled bins
        const V x4i = io.im(4);
        const V t186 = two * x4i;
        const V x6i = io.im(6);
        const V t187 = two * x6i;
        const V x13i = io.im(13);
        const V t188 = two * x13i;
        // complex block of 2
        const V t189 = t187 - t188;
        const V t190 = t187 + t188;
        // doubled bins
        const V x9i = io.im(9);
        const V t191 = two * x9i;
        const V x10i = io.im(10);
        const V t192 = two * x10i;
        // complex block of 2
        const V t193 = t192 - t191;
        const V t194 = t192 + t191;
        // doubled bins
        const V x15i = io.im(15);
        const V t195 = two * x15i;
        // complex block of 2
        const V t196 = t186 - t195;
        // real block of 3
        const V t197 = t193 - t189;
        const V t198 = c[0] * t197;
        const V t199 = t196 + t198;
        // complex block of 2
        const V t200 = t186 + t195;
        // real block of 3
        const V t201 = t194 - t190;
        const V t202 = c[0] * t201;
        const V t203 = t200 + t202;
        // real block of 3
        const V t204 = t189 + t193;
        const V t205 = c[1] * t204;
        // real block of 9
        const V t206 = c[4] * t205;
        const V t207 = c[5] * t205;
        // real block of 3
        const V t208 = t190 + t194;
        const V t209 = c[1] * t208;
        // real block of 9
        const V t210 = c[4] * t209;
        const V t211 = c[5] * t209;
        // real block of 3
        const V t212 = t180 + t172;
        // real block of 3
        const V t213 = t197 - t196;
        // real block of 3
        const V t214 = t155 + t154;
        // real block of 3
        const V t215 = t213 + t214;
        const V t216 = t213 - t214;
        const V t217 = t215 + t212;
        const V t218 = c[0] * t215;
        const V t219 = t212 - t218;
        const V t220 = c[1] * t216;
        // spectrum block of 19, multiplier 2
        const V t221 = c[7] * t220;
        // real block of 3
        const V t222 = c[0] * t180;
        const V t223 = t172 - t222;
        const V t224 = c[1] * t181;
        // real block of 9
        const V t225 = c[5] * t199;
        const V t226 = t206 - t225;
        const V t227 = c[3] * t157;
        const V t228 = t227 - t164;
        // complex block of 3
        const V t229 = t226 + t228;
        const V t230 = t226 - t228;
        // real block of 9
        const V t231 = c[4] * t199;
        const V t232 = t207 + t231;
        const V t233 = c[2] * t157;
        const V t234 = t165 + t233;
        // complex block of 3
        const V t235 = t232 - t234;
        const V t236 = t232 + t234;
        const V t237 = t229 + t223;
        const V t238 = t235 + t224;
        const V t239 = c[0] * t229;
        const V t240 = t223 - t239;
        const V t241 = c[1] * t236;
        const V t242 = t240 + t241;
        const V t243 = t240 - t241;
        const V t244 = c[0] * t235;
        const V t245 = t224 - t244;
        const V t246 = c[1] * t230;
        const V t247 = t245 - t246;
        const V t248 = t245 + t246;
        // real block of 3
        const V t249 = t184 + t173;
        // real block of 3
        const V t250 = t201 - t200;
        // real block of 3
        const V t251 = t159 + t158;
        // real block of 3
        const V t252 = t250 + t251;
        const V t253 = t250 - t251;
        const V t254 = t252 + t249;
        const V t255 = c[0] * t252;
        const V t256 = t249 - t255;
        const V t257 = c[1] * t253;
        // spectrum block of 19, multiplier 2
        const V t258 = c[7] * t257;
        // real block of 3
        const V t259 = c[0] * t184;
        const V t260 = t173 - t259;
        const V t261 = c[1] * t185;
        // real block of 9
        const V t262 = c[5] * t203;
        const V t263 = t210 - t262;
        const V t264 = c[3] * t161;
        const V t265 = t264 - t168;
        // complex block of 3
        const V t266 = t263 + t265;
        const V t267 = t263 - t265;
        // real block of 9
        const V t268 = c[4] * t203;
        const V t269 = t211 + t268;
        const V t270 = c[2] * t161;
        const V t271 = t169 + t270;
        // complex block of 3
        const V t272 = t269 - t271;
        const V t273 = t269 + t271;
        const V t274 = t266 + t260;
        const V t275 = t272 + t261;
        const V t276 = c[0] * t266;
        const V t277 = t260 - t276;
        const V t278 = c[1] * t273;
        const V t279 = t277 + t278;
        const V t280 = t277 - t278;
        const V t281 = c[0] * t272;
        const V t282 = t261 - t281;
        const V t283 = c[1] * t267;
        const V t284 = t282 - t283;
        const V t285 = t282 + t283;
        // spectrum block of 19, multiplier 2
        const V t286 = c[28] * t75;
        const V t287 = t0 - t286;
        const V t288 = c[29] * t217;
        // spectrum block of 2
        const V t289 = t287 + t288;
        const V t290 = t287 - t288;
        // spectrum block of 19, multiplier 2
        const V t291 = c[8] * t247;
        const V t292 = c[9] * t242;
        const V t293 = t291 - t292;
        const V t294 = c[10] * t105;
        const V t295 = c[11] * t100;
        const V t296 = t294 - t295;
        // complex block of 2
        const V t297 = t296 + t293;
        const V t298 = t296 - t293;
        // spectrum block of 19, multiplier 2
        const V t299 = c[12] * t96;
        const V t300 = c[13] * t95;
        const V t301 = t300 + t299;
        const V t302 = c[14] * t106;
        const V t303 = c[15] * t101;
        const V t304 = t303 - t302;
        const V t305 = c[16] * t248;
        const V t306 = c[17] * t243;
        const V t307 = t306 + t305;
        // complex block of 2
        const V t308 = t304 + t307;
        const V t309 = t304 - t307;
        // spectrum block of 19, multiplier 2
        const V t310 = c[18] * t238;
        const V t311 = c[19] * t237;
        const V t312 = t310 - t311;
        // complex block of 2
        const V t313 = t301 + t312;
        // complex block of 3, multiplier 2
        const V t314 = t297 + t308;
        const V t315 = c[0] * t314;
        const V t316 = t313 - t315;
        // complex block of 2
        const V t317 = t301 - t312;
        // complex block of 3, multiplier 2
        const V t318 = t298 + t309;
        const V t319 = c[0] * t318;
        const V t320 = t317 - t319;
        // complex block of 3, multiplier 2
        const V t321 = t297 - t308;
        const V t322 = c[1] * t321;
        // complex block of 3, multiplier 2
        const V t323 = t298 - t309;
        const V t324 = c[1] * t323;
        // spectrum block of 19, multiplier 2
        const V t325 = c[8] * t242;
        const V t326 = c[9] * t247;
        const V t327 = t326 + t325;
        const V t328 = c[10] * t100;
        const V t329 = c[11] * t105;
        const V t330 = t329 + t328;
        // complex block of 2
        const V t331 = t330 + t327;
        const V t332 = t327 - t330;
        // spectrum block of 19, multiplier 2
        const V t333 = c[12] * t95;
        const V t334 = c[13] * t96;
        const V t335 = t333 - t334;
        const V t336 = c[14] * t101;
        const V t337 = c[15] * t106;
        const V t338 = t337 + t336;
        const V t339 = c[16] * t243;
        const V t340 = c[17] * t248;
        const V t341 = t340 - t339;
        // complex block of 2
        const V t342 = t338 + t341;
        const V t343 = t341 - t338;
        // spectrum block of 19, multiplier 2
        const V t344 = c[18] * t237;
        const V t345 = c[19] * t238;
        const V t346 = t345 + t344;
        // complex block of 2
        const V t347 = t335 - t346;
        // complex block of 3, multiplier 2
        const V t348 = t342 - t331;
        const V t349 = c[0] * t348;
        const V t350 = t347 - t349;
        // complex block of 2
        const V t351 = t335 + t346;
        // complex block of 3, multiplier 2
        const V t352 = t332 - t343;
        const V t353 = c[0] * t352;
        const V t354 = t351 - t353;
        // complex block of 3, multiplier 2
        const V t355 = t331 + t342;
        const V t356 = c[1] * t355;
        // complex block of 3, multiplier 2
        const V t357 = t332 + t343;
        const V t358 = c[1] * t357;
        // spectrum block of 19, multiplier 2
        const V t359 = c[20] * t219;
        const V t360 = t221 - t359;
        const V t361 = c[21] * t77;
        const V t362 = t361 - t79;
        // complex block of 2
        const V t363 = t362 + t360;
        // spectrum block of 3, multiplier 2
        const V t364 = c[0] * t363;
        // complex block of 2
        const V t365 = t362 - t360;
        // spectrum block of 3, multiplier 2
        const V t366 = c[0] * t365;
        // spectrum block of 19, multiplier 2
        const V t367 = c[7] * t219;
        const V t368 = c[20] * t220;
        const V t369 = t368 + t367;
        const V t370 = c[6] * t77;
        const V t371 = c[21] * t78;
        const V t372 = t371 + t370;
        // complex block of 2
        const V t373 = t369 - t372;
        // spectrum block of 3, multiplier 2
        const V t374 = c[1] * t373;
        // complex block of 2
        const V t375 = t372 + t369;
        // spectrum block of 3, multiplier 2
        const V t376 = c[1] * t375;
        // spectrum block of 3, multiplier 2
        const V t377 = t363 + t289;
        // complex block of 3, multiplier 2
        const V t378 = t348 + t347;
        // spectrum block of 3, multiplier 2
        const V t379 = c[1] * t378;
        // complex block of 3, multiplier 2
        const V t380 = t314 + t313;
        // spectrum block of 3, multiplier 2
        const V t381 = c[0] * t380;
        const V t382 = t380 + t377;
        io.out(2, t382);
        const V t383 = t377 - t381;
        const V t384 = t383 - t379;
        io.out(14, t384);
        const V t385 = t383 + t379;
        io.out(22, t385);
        // spectrum block of 3, multiplier 2
        const V t386 = t289 - t364;
        const V t387 = t386 - t374;
        const V t388 = t386 + t374;
        // complex block of 3, multiplier 2
        const V t389 = t350 + t322;
        // spectrum block of 9, multiplier 2
        const V t390 = c[22] * t389;
        // complex block of 3, multiplier 2
        const V t391 = t316 + t356;
        // spectrum block of 9, multiplier 2
        const V t392 = c[23] * t391;
        const V t393 = t392 + t390;
        // spectrum block of 3, multiplier 2
        const V t394 = c[24] * t391;
        const V t395 = c[25] * t389;
        // complex block of 3, multiplier 2
        const V t396 = t350 - t322;
        // spectrum block of 9, multiplier 2
        const V t397 = c[2] * t396;
        // complex block of 3, multiplier 2
        const V t398 = t316 - t356;
        // spectrum block of 9, multiplier 2
        const V t399 = c[3] * t398;
        const V t400 = t399 - t397;
        // spectrum block of 3, multiplier 2
        const V t401 = c[26] * t396;
        const V t402 = c[27] * t398;
        const V t403 = t400 + t388;
        io.out(10, t403);
        const V t404 = c[0] * t400;
        const V t405 = t388 - t404;
        const V t406 = t401 + t402;
        const V t407 = t405 - t406;
        io.out(32, t407);
        const V t408 = t405 + t406;
        io.out(34, t408);
        // spectrum block of 3, multiplier 2
        const V t409 = t387 - t393;
        io.out(12, t409);
        const V t410 = c[0] * t393;
        const V t411 = t410 + t387;
        const V t412 = t394 - t395;
        const V t413 = t411 - t412;
        io.out(8, t413);
        const V t414 = t411 + t412;
        io.out(18, t414);
        // spectrum block of 3, multiplier 2
        const V t415 = t365 + t290;
        // complex block of 3, multiplier 2
        const V t416 = t352 + t351;
        // spectrum block of 3, multiplier 2
        const V t417 = c[1] * t416;
        // complex block of 3, multiplier 2
        const V t418 = t318 + t317;
        // spectrum block of 3, multiplier 2
        const V t419 = c[0] * t418;
        const V t420 = t418 + t415;
        io.out(36, t420);
        const V t421 = t415 - t419;
        const V t422 = t421 - t417;
        io.out(24, t422);
        const V t423 = t421 + t417;
        io.out(16, t423);
        // spectrum block of 3, multiplier 2
        const V t424 = t290 - t366;
        const V t425 = t424 + t376;
        const V t426 = t424 - t376;
        // complex block of 3, multiplier 2
        const V t427 = t354 + t324;
        // spectrum block of 9, multiplier 2
        const V t428 = c[22] * t427;
        // complex block of 3, multiplier 2
        const V t429 = t320 - t358;
        // spectrum block of 9, multiplier 2
        const V t430 = c[23] * t429;
        const V t431 = t430 + t428;
        // spectrum block of 3, multiplier 2
        const V t432 = c[24] * t429;
        const V t433 = c[25] * t427;
        // complex block of 3, multiplier 2
        const V t434 = t354 - t324;
        // spectrum block of 9, multiplier 2
        const V t435 = c[2] * t434;
        // complex block of 3, multiplier 2
        const V t436 = t320 + t358;
        // spectrum block of 9, multiplier 2
        const V t437 = c[3] * t436;
        const V t438 = t437 - t435;
        // spectrum block of 3, multiplier 2
        const V t439 = c[26] * t434;
        const V t440 = c[27] * t436;
        const V t441 = t438 + t426;
        io.out(28, t441);
        const V t442 = c[0] * t438;
        const V t443 = t426 - t442;
        const V t444 = t439 + t440;
        const V t445 = t443 - t444;
        io.out(6, t445);
        const V t446 = t443 + t444;
        io.out(4, t446);
        // spectrum block of 3, multiplier 2
        const V t447 = t425 - t431;
        io.out(26, t447);
        const V t448 = c[0] * t431;
        const V t449 = t448 + t425;
        const V t450 = t432 - t433;
        const V t451 = t449 - t450;
        io.out(30, t451);
        const V t452 = t449 + t450;
        io.out(20, t452);
        // spectrum block of 19, multiplier 2
        const V t453 = t0 + t75;
        io.out(0, t453);
        // spectrum block of 19, multiplier 2
        const V t454 = c[28] * t112;
        const V t455 = t1 - t454;
        const V t456 = c[29] * t254;
        // spectrum block of 2
        const V t457 = t455 + t456;
        const V t458 = t455 - t456;
        // spectrum block of 19, multiplier 2
        const V t459 = c[8] * t284;
        const V t460 = c[9] * t279;
        const V t461 = t459 - t460;
        const V t462 = c[10] * t142;
        const V t463 = c[11] * t137;
        const V t464 = t462 - t463;
        // complex block of 2
        const V t465 = t464 + t461;
        const V t466 = t464 - t461;
        // spectrum block of 19, multiplier 2
        const V t467 = c[12] * t133;
        const V t468 = c[13] * t132;
        const V t469 = t468 + t467;
        const V t470 = c[14] * t143;
        const V t471 = c[15] * t138;
        const V t472 = t471 - t470;
        const V t473 = c[16] * t285;
        const V t474 = c[17] * t280;
        const V t475 = t474 + t473;
        // complex block of 2
        const V t476 = t472 + t475;
        const V t477 = t472 - t475;
        // spectrum block of 19, multiplier 2
        const V t478 = c[18] * t275;
        const V t479 = c[19] * t274;
        const V t480 = t478 - t479;
        // complex block of 2
        const V t481 = t469 + t480;
        // complex block of 3, multiplier 2
        const V t482 = t465 + t476;
        const V t483 = c[0] * t482;
        const V t484 = t481 - t483;
        // complex block of 2
        const V t485 = t469 - t480;
        // complex block of 3, multiplier 2
        const V t486 = t466 + t477;
        const V t487 = c[0] * t486;
        const V t488 = t485 - t487;
        // complex block of 3, multiplier 2
        const V t489 = t465 - t476;
        const V t490 = c[1] * t489;
        // complex block of 3, multiplier 2
        const V t491 = t466 - t477;
        const V t492 = c[1] * t491;
        // spectrum block of 19, multiplier 2
        const V t493 = c[8] * t279;
        const V t494 = c[9] * t284;
        const V t495 = t494 + t493;
        const V t496 = c[10] * t137;
        const V t497 = c[11] * t142;
        const V t498 = t497 + t496;
        // complex block of 2
        const V t499 = t498 + t495;
        const V t500 = t495 - t498;
        // spectrum block of 19, multiplier 2
        const V t501 = c[12] * t132;
        const V t502 = c[13] * t133;
        const V t503 = t501 - t502;
        const V t504 = c[14] * t138;
        const V t505 = c[15] * t143;
        const V t506 = t505 + t504;
        const V t507 = c[16] * t280;
        const V t508 = c[17] * t285;
        const V t509 = t508 - t507;
        // complex block of 2
        const V t510 = t506 + t509;
        const V t511 = t509 - t506;
        // spectrum block of 19, multiplier 2
        const V t512 = c[18] * t274;
        const V t513 = c[19] * t275;
        const V t514 = t513 + t512;
        // complex block of 2
        const V t515 = t503 - t514;
        // complex block of 3, multiplier 2
        const V t516 = t510 - t499;
        const V t517 = c[0] * t516;
        const V t518 = t515 - t517;
        // complex block of 2
        const V t519 = t503 + t514;
        // complex block of 3, multiplier 2
        const V t520 = t500 - t511;
        const V t521 = c[0] * t520;
        const V t522 = t519 - t521;
        // complex block of 3, multiplier 2
        const V t523 = t499 + t510;
        const V t524 = c[1] * t523;
        // complex block of 3, multiplier 2
        const V t525 = t500 + t511;
        const V t526 = c[1] * t525;
        // spectrum block of 19, multiplier 2
        const V t527 = c[20] * t256;
        const V t528 = t258 - t527;
        const V t529 = c[21] * t114;
        const V t530 = t529 - t116;
        // complex block of 2
        const V t531 = t530 + t528;
        // spectrum block of 3, multiplier 2
        const V t532 = c[0] * t531;
        // complex block of 2
        const V t533 = t530 - t528;
        // spectrum block of 3, multiplier 2
        const V t534 = c[0] * t533;
        // spectrum block of 19, multiplier 2
        const V t535 = c[7] * t256;
        const V t536 = c[20] * t257;
        const V t537 = t536 + t535;
        const V t538 = c[6] * t114;
        const V t539 = c[21] * t115;
        const V t540 = t539 + t538;
        // complex block of 2
        const V t541 = t537 - t540;
        // spectrum block of 3, multiplier 2
        const V t542 = c[1] * t541;
        // complex block of 2
        const V t543 = t540 + t537;
        // spectrum block of 3, multiplier 2
        const V t544 = c[1] * t543;
        // spectrum block of 3, multiplier 2
        const V t545 = t531 + t457;
        // complex block of 3, multiplier 2
        const V t546 = t516 + t515;
        // spectrum block of 3, multiplier 2
        const V t547 = c[1] * t546;
        // complex block of 3, multiplier 2
        const V t548 = t482 + t481;
        // spectrum block of 3, multiplier 2
        const V t549 = c[0] * t548;
        const V t550 = t548 + t545;
        io.out(21, t550);
        const V t551 = t545 - t549;
        const V t552 = t551 - t547;
        io.out(33, t552);
        const V t553 = t551 + t547;
        io.out(3, t553);
        // spectrum block of 3, multiplier 2
        const V t554 = t457 - t532;
        const V t555 = t554 - t542;
        const V t556 = t554 + t542;
        // complex block of 3, multiplier 2
        const V t557 = t518 + t490;
        // spectrum block of 9, multiplier 2
        const V t558 = c[22] * t557;
        // complex block of 3, multiplier 2
        const V t559 = t484 + t524;
        // spectrum block of 9, multiplier 2
        const V t560 = c[23] * t559;
        const V t561 = t560 + t558;
        // spectrum block of 3, multiplier 2
        const V t562 = c[24] * t559;
        const V t563 = c[25] * t557;
        // complex block of 3, multiplier 2
        const V t564 = t518 - t490;
        // spectrum block of 9, multiplier 2
        const V t565 = c[2] * t564;
        // complex block of 3, multiplier 2
        const V t566 = t484 - t524;
        // spectrum block of 9, multiplier 2
        const V t567 = c[3] * t566;
        const V t568 = t567 - t565;
        // spectrum block of 3, multiplier 2
        const V t569 = c[26] * t564;
        const V t570 = c[27] * t566;
        const V t571 = t568 + t556;
        io.out(29, t571);
        const V t572 = c[0] * t568;
        const V t573 = t556 - t572;
        const V t574 = t569 + t570;
        const V t575 = t573 - t574;
        io.out(13, t575);
        const V t576 = t573 + t574;
        io.out(15, t576);
        // spectrum block of 3, multiplier 2
        const V t577 = t555 - t561;
        io.out(31, t577);
        const V t578 = c[0] * t561;
        const V t579 = t578 + t555;
        const V t580 = t562 - t563;
        const V t581 = t579 - t580;
        io.out(27, t581);
        const V t582 = t579 + t580;
        io.out(37, t582);
        // spectrum block of 3, multiplier 2
        const V t583 = t533 + t458;
        // complex block of 3, multiplier 2
        const V t584 = t520 + t519;
        // spectrum block of 3, multiplier 2
        const V t585 = c[1] * t584;
        // complex block of 3, multiplier 2
        const V t586 = t486 + t485;
        // spectrum block of 3, multiplier 2
        const V t587 = c[0] * t586;
        const V t588 = t586 + t583;
        io.out(17, t588);
        const V t589 = t583 - t587;
        const V t590 = t589 - t585;
        io.out(5, t590);
        const V t591 = t589 + t585;
        io.out(35, t591);
        // spectrum block of 3, multiplier 2
        const V t592 = t458 - t534;
        const V t593 = t592 + t544;
        const V t594 = t592 - t544;
        // complex block of 3, multiplier 2
        const V t595 = t522 + t492;
        // spectrum block of 9, multiplier 2
        const V t596 = c[22] * t595;
        // complex block of 3, multiplier 2
        const V t597 = t488 - t526;
        // spectrum block of 9, multiplier 2
        const V t598 = c[23] * t597;
        const V t599 = t598 + t596;
        // spectrum block of 3, multiplier 2
        const V t600 = c[24] * t597;
        const V t601 = c[25] * t595;
        // complex block of 3, multiplier 2
        const V t602 = t522 - t492;
        // spectrum block of 9, multiplier 2
        const V t603 = c[2] * t602;
        // complex block of 3, multiplier 2
        const V t604 = t488 + t526;
        // spectrum block of 9, multiplier 2
        const V t605 = c[3] * t604;
        const V t606 = t605 - t603;
        // spectrum block of 3, multiplier 2
        const V t607 = c[26] * t602;
        const V t608 = c[27] * t604;
        const V t609 = t606 + t594;
        io.out(9, t609);
        const V t610 = c[0] * t606;
        const V t611 = t594 - t610;
        const V t612 = t607 + t608;
        const V t613 = t611 - t612;
        io.out(25, t613);
        const V t614 = t611 + t612;
        io.out(23, t614);
        // spectrum block of 3, multiplier 2
        const V t615 = t593 - t599;
        io.out(7, t615);
        const V t616 = c[0] * t599;
        const V t617 = t616 + t593;
        const V t618 = t600 - t601;
        const V t619 = t617 - t618;
        io.out(11, t619);
        const V t620 = t617 + t618;
        io.out(1, t620);
        // spectrum block of 19, multiplier 2
        const V t621 = t1 + t112;
        io.out(19, t621);
    }
};

}  // namespace zulg
