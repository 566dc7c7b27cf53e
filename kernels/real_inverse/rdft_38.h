// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 38.
// Inverse DFT to 38 real points, prime-factor 2, 19.
// 183 additions, 183 subtractions, 256 multiplications (294 with `scale`); 31 constants; 42 values alive at most.
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
        0.25181241707905544,  // c[6]: P[1] of 19
        0.4137129534343489,  // c[7]: -Q[1] of 19
        0.06545376435166843,  // c[8]: Q[2] of 19
        0.4798788450919296,  // c[9]: P[2] of 19
        0.28199561460730244,  // c[10]: -P[3] of 19
        0.3937592850674352,  // c[11]: -Q[3] of 19
        0.3056588037374879,  // c[12]: -Q[4] of 19
        0.37568683358927524,  // c[13]: P[4] of 19
        0.4195932163702218,  // c[14]: -P[5] of 19
        0.24188723407956064,  // c[15]: Q[5] of 19
        0.10231284930367265,  // c[16]: -Q[6] of 19
        0.47339199623771827,  // c[17]: P[6] of 19
        0.3873109834397322,  // c[18]: P[7] of 19
        0.2907887606863707,  // c[19]: -Q[7] of 19
        0.007654694426448971,  // c[20]: -Q[8] of 19
        0.4842616099669739,  // c[21]: -P[8] of 19
        0.3420201433256687,  // c[22]: -sin 2 pi 5/9
        0.9396926207859084,  // c[23]: -cos 2 pi 5/9
        0.1503837331804353,  // c[24]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[25]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[26]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[27]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.05555555555555555,  // c[28]: 1/18
        0.2421610524189263,  // c[29]: beta of 19
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
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x19r = io.re(19);
        const V t36 = x0r + x19r;
        const V t37 = x0r - x19r;
        // complex block of 2
        const V t38 = t3 - t33;
        const V t39 = t2 + t32;
        const V t40 = t3 + t33;
        const V t41 = t2 - t32;
        // complex block of 2
        const V t42 = t7 - t29;
        const V t43 = t6 + t28;
        const V t44 = t7 + t29;
        const V t45 = t6 - t28;
        // complex block of 2
        const V t46 = t11 - t25;
        const V t47 = t10 + t24;
        const V t48 = t11 + t25;
        const V t49 = t10 - t24;
        // complex block of 2
        const V t50 = t15 - t21;
        const V t51 = t14 + t20;
        const V t52 = t15 + t21;
        const V t53 = t14 - t20;
        // complex block of 2
        const V t54 = t19 - t17;
        const V t55 = t18 + t16;
        const V t56 = t19 + t17;
        const V t57 = t18 - t16;
        // complex block of 2
        const V t58 = t23 - t13;
        const V t59 = t22 + t12;
        const V t60 = t23 + t13;
        const V t61 = t22 - t12;
        // complex block of 2
        const V t62 = t27 - t9;
        const V t63 = t26 + t8;
        const V t64 = t27 + t9;
        const V t65 = t26 - t8;
        // complex block of 2
        const V t66 = t31 - t5;
        const V t67 = t30 + t4;
        const V t68 = t31 + t5;
        const V t69 = t30 - t4;
        // complex block of 2
        const V t70 = t35 - t1;
        const V t71 = t34 + t0;
        const V t72 = t35 + t1;
        const V t73 = t34 - t0;
        // real block of 3
        const V t74 = t67 + t63;
        const V t75 = t67 - t63;
        const V t76 = t74 + t39;
        const V t77 = c[0] * t74;
        const V t78 = t39 - t77;
        const V t79 = c[1] * t75;
        // real block of 3
        const V t80 = t47 + t55;
        const V t81 = t47 - t55;
        const V t82 = t80 + t43;
        const V t83 = c[0] * t80;
        const V t84 = t43 - t83;
        const V t85 = c[1] * t81;
        // real block of 3
        const V t86 = t59 + t71;
        const V t87 = t59 - t71;
        const V t88 = t86 + t51;
        const V t89 = c[0] * t86;
        const V t90 = t51 - t89;
        const V t91 = c[1] * t87;
        // real block of 3
        const V t92 = t82 + t88;
        const V t93 = t82 - t88;
        const V t94 = t92 + t76;
        const V t95 = c[0] * t92;
        const V t96 = t76 - t95;
        const V t97 = c[1] * t93;
        // real block of 9
        const V t98 = c[4] * t85;
        const V t99 = c[5] * t84;
        const V t100 = t99 - t98;
        const V t101 = c[4] * t84;
        const V t102 = c[5] * t85;
        const V t103 = t102 + t101;
        const V t104 = c[2] * t91;
        const V t105 = c[3] * t90;
        const V t106 = t105 - t104;
        const V t107 = c[2] * t90;
        const V t108 = c[3] * t91;
        const V t109 = t108 + t107;
        // complex block of 3
        const V t110 = t100 + t106;
        const V t111 = t103 + t109;
        const V t112 = t100 - t106;
        const V t113 = t109 - t103;
        const V t114 = t110 + t78;
        const V t115 = t111 + t79;
        const V t116 = c[0] * t110;
        const V t117 = t78 - t116;
        const V t118 = c[0] * t111;
        const V t119 = t118 - t79;
        const V t120 = c[1] * t112;
        const V t121 = c[1] * t113;
        const V t122 = t117 + t121;
        const V t123 = t119 - t120;
        const V t124 = t117 - t121;
        const V t125 = t119 + t120;
        // real block of 3
        const V t126 = t62 - t66;
        const V t127 = t66 + t62;
        const V t128 = t126 + t38;
        const V t129 = c[0] * t126;
        const V t130 = t38 - t129;
        const V t131 = c[1] * t127;
        // real block of 3
        const V t132 = t54 - t46;
        const V t133 = t46 + t54;
        const V t134 = t132 - t42;
        const V t135 = c[0] * t132;
        const V t136 = t42 + t135;
        const V t137 = c[1] * t133;
        // real block of 3
        const V t138 = t58 + t70;
        const V t139 = t58 - t70;
        const V t140 = t138 + t50;
        const V t141 = c[0] * t138;
        const V t142 = t50 - t141;
        const V t143 = c[1] * t139;
        // real block of 3
        const V t144 = t134 + t140;
        const V t145 = t134 - t140;
        const V t146 = t144 + t128;
        const V t147 = c[0] * t144;
        const V t148 = t128 - t147;
        const V t149 = c[1] * t145;
        // real block of 9
        const V t150 = c[4] * t137;
        const V t151 = c[5] * t136;
        const V t152 = t150 - t151;
        const V t153 = c[4] * t136;
        const V t154 = c[5] * t137;
        const V t155 = t154 + t153;
        const V t156 = c[2] * t143;
        const V t157 = c[3] * t142;
        const V t158 = t157 - t156;
        const V t159 = c[2] * t142;
        const V t160 = c[3] * t143;
        const V t161 = t160 + t159;
        // complex block of 3
        const V t162 = t152 + t158;
        const V t163 = t155 - t161;
        const V t164 = t152 - t158;
        const V t165 = t155 + t161;
        const V t166 = t162 + t130;
        const V t167 = t163 + t131;
        const V t168 = c[0] * t162;
        const V t169 = t130 - t168;
        const V t170 = c[0] * t163;
        const V t171 = t131 - t170;
        const V t172 = c[1] * t164;
        const V t173 = c[1] * t165;
        const V t174 = t169 + t173;
        const V t175 = t171 - t172;
        const V t176 = t169 - t173;
        const V t177 = t171 + t172;
        // spectrum block of 19, multiplier 2
        const V t178 = c[28] * t94;
        const V t179 = t36 - t178;
        const V t180 = c[6] * t175;
        const V t181 = c[7] * t174;
        const V t182 = t180 - t181;
        const V t183 = c[6] * t174;
        const V t184 = c[7] * t175;
        const V t185 = t184 + t183;
        const V t186 = c[8] * t115;
        const V t187 = c[9] * t114;
        const V t188 = t187 + t186;
        const V t189 = c[8] * t114;
        const V t190 = c[9] * t115;
        const V t191 = t189 - t190;
        const V t192 = c[10] * t149;
        const V t193 = c[11] * t148;
        const V t194 = t192 - t193;
        const V t195 = c[10] * t148;
        const V t196 = c[11] * t149;
        const V t197 = t196 + t195;
        const V t198 = c[12] * t125;
        const V t199 = c[13] * t124;
        const V t200 = t199 - t198;
        const V t201 = c[12] * t124;
        const V t202 = c[13] * t125;
        const V t203 = t202 + t201;
        const V t204 = c[14] * t177;
        const V t205 = c[15] * t176;
        const V t206 = t205 + t204;
        const V t207 = c[14] * t176;
        const V t208 = c[15] * t177;
        const V t209 = t208 - t207;
        const V t210 = c[16] * t97;
        const V t211 = c[17] * t96;
        const V t212 = t211 - t210;
        const V t213 = c[16] * t96;
        const V t214 = c[17] * t97;
        const V t215 = t214 + t213;
        const V t216 = c[18] * t167;
        const V t217 = c[19] * t166;
        const V t218 = t216 - t217;
        const V t219 = c[18] * t166;
        const V t220 = c[19] * t167;
        const V t221 = t220 + t219;
        const V t222 = c[20] * t123;
        const V t223 = c[21] * t122;
        const V t224 = t222 - t223;
        const V t225 = c[20] * t122;
        const V t226 = c[21] * t123;
        const V t227 = t226 + t225;
        const V t228 = c[29] * t146;
        // spectrum block of 2
        const V t229 = t179 + t228;
        const V t230 = t179 - t228;
        // complex block of 2
        const V t231 = t191 - t221;
        const V t232 = t188 + t218;
        const V t233 = t191 + t221;
        const V t234 = t188 - t218;
        // complex block of 2
        const V t235 = t203 + t209;
        const V t236 = t200 + t206;
        const V t237 = t209 - t203;
        const V t238 = t200 - t206;
        // complex block of 2
        const V t239 = t197 - t215;
        const V t240 = t212 + t194;
        const V t241 = t215 + t197;
        const V t242 = t212 - t194;
        // complex block of 2
        const V t243 = t227 + t185;
        const V t244 = t224 + t182;
        const V t245 = t185 - t227;
        const V t246 = t224 - t182;
        // spectrum block of 3, multiplier 2
        const V t247 = t240 + t229;
        const V t248 = c[0] * t240;
        const V t249 = t229 - t248;
        const V t250 = c[1] * t239;
        const V t251 = t249 - t250;
        const V t252 = t249 + t250;
        // complex block of 3, multiplier 2
        const V t253 = t235 - t243;
        const V t254 = t244 + t236;
        const V t255 = t243 + t235;
        const V t256 = t244 - t236;
        const V t257 = t253 + t231;
        const V t258 = t254 + t232;
        const V t259 = c[0] * t253;
        const V t260 = t231 - t259;
        const V t261 = c[0] * t254;
        const V t262 = t232 - t261;
        const V t263 = c[1] * t255;
        const V t264 = c[1] * t256;
        const V t265 = t260 + t264;
        const V t266 = t262 + t263;
        const V t267 = t260 - t264;
        const V t268 = t262 - t263;
        // spectrum block of 9, multiplier 2
        const V t269 = c[2] * t267;
        const V t270 = c[3] * t268;
        const V t271 = t270 - t269;
        const V t272 = c[22] * t265;
        const V t273 = c[23] * t266;
        const V t274 = t273 + t272;
        // spectrum block of 3, multiplier 2
        const V t275 = t258 + t247;
        io.out(2, t275);
        const V t276 = c[0] * t258;
        const V t277 = t247 - t276;
        const V t278 = c[1] * t257;
        const V t279 = t277 - t278;
        io.out(14, t279);
        const V t280 = t277 + t278;
        io.out(22, t280);
        // spectrum block of 3, multiplier 2
        const V t281 = t271 + t252;
        io.out(10, t281);
        const V t282 = c[0] * t271;
        const V t283 = t252 - t282;
        const V t284 = c[24] * t267;
        const V t285 = c[25] * t268;
        const V t286 = t284 + t285;
        const V t287 = t283 - t286;
        io.out(32, t287);
        const V t288 = t283 + t286;
        io.out(34, t288);
        // spectrum block of 3, multiplier 2
        const V t289 = t251 - t274;
        io.out(12, t289);
        const V t290 = c[0] * t274;
        const V t291 = t290 + t251;
        const V t292 = c[26] * t266;
        const V t293 = c[27] * t265;
        const V t294 = t292 - t293;
        const V t295 = t291 - t294;
        io.out(8, t295);
        const V t296 = t291 + t294;
        io.out(18, t296);
        // spectrum block of 3, multiplier 2
        const V t297 = t242 + t230;
        const V t298 = c[0] * t242;
        const V t299 = t230 - t298;
        const V t300 = c[1] * t241;
        const V t301 = t299 + t300;
        const V t302 = t299 - t300;
        // complex block of 3, multiplier 2
        const V t303 = t245 - t237;
        const V t304 = t246 + t238;
        const V t305 = t245 + t237;
        const V t306 = t246 - t238;
        const V t307 = t303 + t233;
        const V t308 = t304 + t234;
        const V t309 = c[0] * t303;
        const V t310 = t233 - t309;
        const V t311 = c[0] * t304;
        const V t312 = t234 - t311;
        const V t313 = c[1] * t305;
        const V t314 = c[1] * t306;
        const V t315 = t310 + t314;
        const V t316 = t312 - t313;
        const V t317 = t310 - t314;
        const V t318 = t312 + t313;
        // spectrum block of 9, multiplier 2
        const V t319 = c[2] * t317;
        const V t320 = c[3] * t318;
        const V t321 = t320 - t319;
        const V t322 = c[22] * t315;
        const V t323 = c[23] * t316;
        const V t324 = t323 + t322;
        // spectrum block of 3, multiplier 2
        const V t325 = t308 + t297;
        io.out(36, t325);
        const V t326 = c[0] * t308;
        const V t327 = t297 - t326;
        const V t328 = c[1] * t307;
        const V t329 = t327 - t328;
        io.out(24, t329);
        const V t330 = t327 + t328;
        io.out(16, t330);
        // spectrum block of 3, multiplier 2
        const V t331 = t321 + t302;
        io.out(28, t331);
        const V t332 = c[0] * t321;
        const V t333 = t302 - t332;
        const V t334 = c[24] * t317;
        const V t335 = c[25] * t318;
        const V t336 = t334 + t335;
        const V t337 = t333 - t336;
        io.out(6, t337);
        const V t338 = t333 + t336;
        io.out(4, t338);
        // spectrum block of 3, multiplier 2
        const V t339 = t301 - t324;
        io.out(26, t339);
        const V t340 = c[0] * t324;
        const V t341 = t340 + t301;
        const V t342 = c[26] * t316;
        const V t343 = c[27] * t315;
        const V t344 = t342 - t343;
        const V t345 = t341 - t344;
        io.out(30, t345);
        const V t346 = t341 + t344;
        io.out(20, t346);
        // spectrum block of 19, multiplier 2
        const V t347 = t36 + t94;
        io.out(0, t347);
        // real block of 3
        const V t348 = t69 + t65;
        const V t349 = t69 - t65;
        const V t350 = t348 + t41;
        const V t351 = c[0] * t348;
        const V t352 = t41 - t351;
        const V t353 = c[1] * t349;
        // real block of 3
        const V t354 = t49 + t57;
        const V t355 = t49 - t57;
        const V t356 = t354 + t45;
        const V t357 = c[0] * t354;
        const V t358 = t45 - t357;
        const V t359 = c[1] * t355;
        // real block of 3
        const V t360 = t61 + t73;
        const V t361 = t61 - t73;
        const V t362 = t360 + t53;
        const V t363 = c[0] * t360;
        const V t364 = t53 - t363;
        const V t365 = c[1] * t361;
        // real block of 3
        const V t366 = t356 + t362;
        const V t367 = t356 - t362;
        const V t368 = t366 + t350;
        const V t369 = c[0] * t366;
        const V t370 = t350 - t369;
        const V t371 = c[1] * t367;
        // real block of 9
        const V t372 = c[4] * t359;
        const V t373 = c[5] * t358;
        const V t374 = t373 - t372;
        const V t375 = c[4] * t358;
        const V t376 = c[5] * t359;
        const V t377 = t376 + t375;
        const V t378 = c[2] * t365;
        const V t379 = c[3] * t364;
        const V t380 = t379 - t378;
        const V t381 = c[2] * t364;
        const V t382 = c[3] * t365;
        const V t383 = t382 + t381;
        // complex block of 3
        const V t384 = t374 + t380;
        const V t385 = t377 + t383;
        const V t386 = t374 - t380;
        const V t387 = t383 - t377;
        const V t388 = t384 + t352;
        const V t389 = t385 + t353;
        const V t390 = c[0] * t384;
        const V t391 = t352 - t390;
        const V t392 = c[0] * t385;
        const V t393 = t392 - t353;
        const V t394 = c[1] * t386;
        const V t395 = c[1] * t387;
        const V t396 = t391 + t395;
        const V t397 = t393 - t394;
        const V t398 = t391 - t395;
        const V t399 = t393 + t394;
        // real block of 3
        const V t400 = t64 - t68;
        const V t401 = t68 + t64;
        const V t402 = t400 + t40;
        const V t403 = c[0] * t400;
        const V t404 = t40 - t403;
        const V t405 = c[1] * t401;
        // real block of 3
        const V t406 = t56 - t48;
        const V t407 = t48 + t56;
        const V t408 = t406 - t44;
        const V t409 = c[0] * t406;
        const V t410 = t44 + t409;
        const V t411 = c[1] * t407;
        // real block of 3
        const V t412 = t60 + t72;
        const V t413 = t60 - t72;
        const V t414 = t412 + t52;
        const V t415 = c[0] * t412;
        const V t416 = t52 - t415;
        const V t417 = c[1] * t413;
        // real block of 3
        const V t418 = t408 + t414;
        const V t419 = t408 - t414;
        const V t420 = t418 + t402;
        const V t421 = c[0] * t418;
        const V t422 = t402 - t421;
        const V t423 = c[1] * t419;
        // real block of 9
        const V t424 = c[4] * t411;
        const V t425 = c[5] * t410;
        const V t426 = t424 - t425;
        const V t427 = c[4] * t410;
        const V t428 = c[5] * t411;
        const V t429 = t428 + t427;
        const V t430 = c[2] * t417;
        const V t431 = c[3] * t416;
        const V t432 = t431 - t430;
        const V t433 = c[2] * t416;
        const V t434 = c[3] * t417;
        const V t435 = t434 + t433;
        // complex block of 3
        const V t436 = t426 + t432;
        const V t437 = t429 - t435;
        const V t438 = t426 - t432;
        const V t439 = t429 + t435;
        const V t440 = t436 + t404;
        const V t441 = t437 + t405;
        const V t442 = c[0] * t436;
        const V t443 = t404 - t442;
        const V t444 = c[0] * t437;
        const V t445 = t405 - t444;
        const V t446 = c[1] * t438;
        const V t447 = c[1] * t439;
        const V t448 = t443 + t447;
        const V t449 = t445 - t446;
        const V t450 = t443 - t447;
        const V t451 = t445 + t446;
        // spectrum block of 19, multiplier 2
        const V t452 = c[28] * t368;
        const V t453 = t37 - t452;
        const V t454 = c[6] * t449;
        const V t455 = c[7] * t448;
        const V t456 = t454 - t455;
        const V t457 = c[6] * t448;
        const V t458 = c[7] * t449;
        const V t459 = t458 + t457;
        const V t460 = c[8] * t389;
        const V t461 = c[9] * t388;
        const V t462 = t461 + t460;
        const V t463 = c[8] * t388;
        const V t464 = c[9] * t389;
        const V t465 = t463 - t464;
        const V t466 = c[10] * t423;
        const V t467 = c[11] * t422;
        const V t468 = t466 - t467;
        const V t469 = c[10] * t422;
        const V t470 = c[11] * t423;
        const V t471 = t470 + t469;
        const V t472 = c[12] * t399;
        const V t473 = c[13] * t398;
        const V t474 = t473 - t472;
        const V t475 = c[12] * t398;
        const V t476 = c[13] * t399;
        const V t477 = t476 + t475;
        const V t478 = c[14] * t451;
        const V t479 = c[15] * t450;
        const V t480 = t479 + t478;
        const V t481 = c[14] * t450;
        const V t482 = c[15] * t451;
        const V t483 = t482 - t481;
        const V t484 = c[16] * t371;
        const V t485 = c[17] * t370;
        const V t486 = t485 - t484;
        const V t487 = c[16] * t370;
        const V t488 = c[17] * t371;
        const V t489 = t488 + t487;
        const V t490 = c[18] * t441;
        const V t491 = c[19] * t440;
        const V t492 = t490 - t491;
        const V t493 = c[18] * t440;
        const V t494 = c[19] * t441;
        const V t495 = t494 + t493;
        const V t496 = c[20] * t397;
        const V t497 = c[21] * t396;
        const V t498 = t496 - t497;
        const V t499 = c[20] * t396;
        const V t500 = c[21] * t397;
        const V t501 = t500 + t499;
        const V t502 = c[29] * t420;
        // spectrum block of 2
        const V t503 = t453 + t502;
        const V t504 = t453 - t502;
        // complex block of 2
        const V t505 = t465 - t495;
        const V t506 = t462 + t492;
        const V t507 = t465 + t495;
        const V t508 = t462 - t492;
        // complex block of 2
        const V t509 = t477 + t483;
        const V t510 = t474 + t480;
        const V t511 = t483 - t477;
        const V t512 = t474 - t480;
        // complex block of 2
        const V t513 = t471 - t489;
        const V t514 = t486 + t468;
        const V t515 = t489 + t471;
        const V t516 = t486 - t468;
        // complex block of 2
        const V t517 = t501 + t459;
        const V t518 = t498 + t456;
        const V t519 = t459 - t501;
        const V t520 = t498 - t456;
        // spectrum block of 3, multiplier 2
        const V t521 = t514 + t503;
        const V t522 = c[0] * t514;
        const V t523 = t503 - t522;
        const V t524 = c[1] * t513;
        const V t525 = t523 - t524;
        const V t526 = t523 + t524;
        // complex block of 3, multiplier 2
        const V t527 = t509 - t517;
        const V t528 = t518 + t510;
        const V t529 = t517 + t509;
        const V t530 = t518 - t510;
        const V t531 = t527 + t505;
        const V t532 = t528 + t506;
        const V t533 = c[0] * t527;
        const V t534 = t505 - t533;
        const V t535 = c[0] * t528;
        const V t536 = t506 - t535;
        const V t537 = c[1] * t529;
        const V t538 = c[1] * t530;
        const V t539 = t534 + t538;
        const V t540 = t536 + t537;
        const V t541 = t534 - t538;
        const V t542 = t536 - t537;
        // spectrum block of 9, multiplier 2
        const V t543 = c[2] * t541;
        const V t544 = c[3] * t542;
        const V t545 = t544 - t543;
        const V t546 = c[22] * t539;
        const V t547 = c[23] * t540;
        const V t548 = t547 + t546;
        // spectrum block of 3, multiplier 2
        const V t549 = t532 + t521;
        io.out(21, t549);
        const V t550 = c[0] * t532;
        const V t551 = t521 - t550;
        const V t552 = c[1] * t531;
        const V t553 = t551 - t552;
        io.out(33, t553);
        const V t554 = t551 + t552;
        io.out(3, t554);
        // spectrum block of 3, multiplier 2
        const V t555 = t545 + t526;
        io.out(29, t555);
        const V t556 = c[0] * t545;
        const V t557 = t526 - t556;
        const V t558 = c[24] * t541;
        const V t559 = c[25] * t542;
        const V t560 = t558 + t559;
        const V t561 = t557 - t560;
        io.out(13, t561);
        const V t562 = t557 + t560;
        io.out(15, t562);
        // spectrum block of 3, multiplier 2
        const V t563 = t525 - t548;
        io.out(31, t563);
        const V t564 = c[0] * t548;
        const V t565 = t564 + t525;
        const V t566 = c[26] * t540;
        const V t567 = c[27] * t539;
        const V t568 = t566 - t567;
        const V t569 = t565 - t568;
        io.out(27, t569);
        const V t570 = t565 + t568;
        io.out(37, t570);
        // spectrum block of 3, multiplier 2
        const V t571 = t516 + t504;
        const V t572 = c[0] * t516;
        const V t573 = t504 - t572;
        const V t574 = c[1] * t515;
        const V t575 = t573 + t574;
        const V t576 = t573 - t574;
        // complex block of 3, multiplier 2
        const V t577 = t519 - t511;
        const V t578 = t520 + t512;
        const V t579 = t519 + t511;
        const V t580 = t520 - t512;
        const V t581 = t577 + t507;
        const V t582 = t578 + t508;
        const V t583 = c[0] * t577;
        const V t584 = t507 - t583;
        const V t585 = c[0] * t578;
        const V t586 = t508 - t585;
        const V t587 = c[1] * t579;
        const V t588 = c[1] * t580;
        const V t589 = t584 + t588;
        const V t590 = t586 - t587;
        const V t591 = t584 - t588;
        const V t592 = t586 + t587;
        // spectrum block of 9, multiplier 2
        const V t593 = c[2] * t591;
        const V t594 = c[3] * t592;
        const V t595 = t594 - t593;
        const V t596 = c[22] * t589;
        const V t597 = c[23] * t590;
        const V t598 = t597 + t596;
        // spectrum block of 3, multiplier 2
        const V t599 = t582 + t571;
        io.out(17, t599);
        const V t600 = c[0] * t582;
        const V t601 = t571 - t600;
        const V t602 = c[1] * t581;
        const V t603 = t601 - t602;
        io.out(5, t603);
        const V t604 = t601 + t602;
        io.out(35, t604);
        // spectrum block of 3, multiplier 2
        const V t605 = t595 + t576;
        io.out(9, t605);
        const V t606 = c[0] * t595;
        const V t607 = t576 - t606;
        const V t608 = c[24] * t591;
        const V t609 = c[25] * t592;
        const V t610 = t608 + t609;
        const V t611 = t607 - t610;
        io.out(25, t611);
        const V t612 = t607 + t610;
        io.out(23, t612);
        // spectrum block of 3, multiplier 2
        const V t613 = t575 - t598;
        io.out(7, t613);
        const V t614 = c[0] * t598;
        const V t615 = t614 + t575;
        const V t616 = c[26] * t590;
        const V t617 = c[27] * t589;
        const V t618 = t616 - t617;
        const V t619 = t615 - t618;
        io.out(11, t619);
        const V t620 = t615 + t618;
        io.out(1, t620);
        // spectrum block of 19, multiplier 2
        const V t621 = t37 + t368;
        io.out(19, t621);
    }
};

}  // namespace zulg
