// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 23.
// Complex DFT of 23 points, Rader block.
// 336 additions, 308 subtractions, 484 multiplications (530 with `scale`); 46 constants; 57 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<23> {
    static constexpr int steps = 1174;  // with `scale`
    static constexpr double inverseRoot = 0.20851441405707477;  // 1/sqrt(23), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.41541501300188644,  // c[4]: cos 2 pi 2/11
        0.6548607339452851,  // c[5]: -cos 2 pi 18/11
        0.9594929736144974,  // c[6]: -cos 2 pi 6/11
        0.14231483827328514,  // c[7]: -cos 2 pi 8/11
        0.8412535328311812,  // c[8]: cos 2 pi 12/11
        0.9096319953545183,  // c[9]: sin 2 pi 2/11
        0.7557495743542583,  // c[10]: -sin 2 pi 18/11
        0.28173255684142967,  // c[11]: -sin 2 pi 6/11
        0.9898214418809327,  // c[12]: -sin 2 pi 8/11
        0.5406408174555976,  // c[13]: sin 2 pi 12/11
        0.21879791731559586,  // c[14]: P[1] of 11
        0.6262008235209833,  // c[15]: -Q[1] of 11
        0.3770255864361907,  // c[16]: -Q[2] of 11
        0.5457579199356125,  // c[17]: P[2] of 11
        0.24831391555962465,  // c[18]: -P[3] of 11
        0.6150936508690751,  // c[19]: -Q[3] of 11
        0.6626305969383026,  // c[20]: -Q[4] of 11
        0.030342906933726127,  // c[21]: -P[4] of 11
        0.06955203016683642,  // c[22]: P[1] of 23
        0.4304011613922187,  // c[23]: Q[1] of 23
        0.43370463199482034,  // c[24]: Q[2] of 23
        0.04453017869194607,  // c[25]: P[2] of 23
        0.27718353274096963,  // c[26]: P[3] of 23
        0.33652924658242556,  // c[27]: -Q[3] of 23
        0.22644695169903334,  // c[28]: Q[4] of 23
        0.37256465572342584,  // c[29]: P[4] of 23
        0.43594373606982356,  // c[30]: P[5] of 23
        0.005975249750696167,  // c[31]: -Q[5] of 23
        0.4029766924691319,  // c[32]: Q[6] of 23
        0.16641042622004737,  // c[33]: P[6] of 23
        0.17583093692664623,  // c[34]: P[7] of 23
        0.3989562961623703,  // c[35]: Q[7] of 23
        0.43595445213547385,  // c[36]: -Q[8] of 23
        0.005134227435360646,  // c[37]: -P[8] of 23
        0.028555549440596593,  // c[38]: -P[9] of 23
        0.43504853203320293,  // c[39]: -Q[9] of 23
        0.07198581089002037,  // c[40]: -Q[10] of 23
        0.4300007996022861,  // c[41]: P[10] of 23
        0.1,  // c[42]: 1/10
        0.33166247903553997,  // c[43]: beta of 11
        0.045454545454545456,  // c[44]: 1/22
        0.21799234196875997,  // c[45]: beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x22r = io.re(22);
        const V t0 = x1r + x22r;
        const V t1 = x1r - x22r;
        // real block of 2
        const V x2r = io.re(2);
        const V x21r = io.re(21);
        const V t2 = x2r + x21r;
        const V t3 = x2r - x21r;
        // real block of 2
        const V x4r = io.re(4);
        const V x19r = io.re(19);
        const V t4 = x4r + x19r;
        const V t5 = x4r - x19r;
        // real block of 2
        const V x8r = io.re(8);
        const V x15r = io.re(15);
        const V t6 = x8r + x15r;
        const V t7 = x8r - x15r;
        // real block of 2
        const V x16r = io.re(16);
        const V x7r = io.re(7);
        const V t8 = x16r + x7r;
        const V t9 = x16r - x7r;
        // real block of 2
        const V x9r = io.re(9);
        const V x14r = io.re(14);
        const V t10 = x9r + x14r;
        const V t11 = x9r - x14r;
        // real block of 2
        const V x18r = io.re(18);
        const V x5r = io.re(5);
        const V t12 = x18r + x5r;
        const V t13 = x18r - x5r;
        // real block of 2
        const V x13r = io.re(13);
        const V x10r = io.re(10);
        const V t14 = x13r + x10r;
        const V t15 = x13r - x10r;
        // real block of 2
        const V x3r = io.re(3);
        const V x20r = io.re(20);
        const V t16 = x3r + x20r;
        const V t17 = x3r - x20r;
        // real block of 2
        const V x6r = io.re(6);
        const V x17r = io.re(17);
        const V t18 = x6r + x17r;
        const V t19 = x6r - x17r;
        // real block of 2
        const V x12r = io.re(12);
        const V x11r = io.re(11);
        const V t20 = x12r + x11r;
        const V t21 = x12r - x11r;
        // real block of 11, multiplier 2
        const V t22 = t2 + t20;
        const V t23 = t2 - t20;
        const V t24 = t18 + t4;
        const V t25 = t18 - t4;
        const V t26 = t6 + t16;
        const V t27 = t6 - t16;
        const V t28 = t8 + t14;
        const V t29 = t8 - t14;
        const V t30 = t12 + t10;
        const V t31 = t12 - t10;
        const V t32 = t22 + t24;
        const V t33 = t32 + t26;
        const V t34 = t33 + t28;
        const V t35 = t34 + t30;
        const V t36 = t35 + t0;
        const V t37 = c[4] * t22;
        const V t38 = c[5] * t24;
        const V t39 = t37 - t38;
        const V t40 = c[6] * t26;
        const V t41 = t39 - t40;
        const V t42 = c[7] * t28;
        const V t43 = t41 - t42;
        const V t44 = c[8] * t30;
        const V t45 = t43 + t44;
        const V t46 = t45 + t0;
        const V t47 = c[9] * t23;
        const V t48 = c[10] * t25;
        const V t49 = c[11] * t27;
        const V t50 = c[12] * t29;
        const V t51 = c[13] * t31;
        const V t52 = t48 + t49;
        const V t53 = t52 + t50;
        const V t54 = t53 - t47;
        const V t55 = t54 - t51;
        const V t56 = c[5] * t22;
        const V t57 = t0 - t56;
        const V t58 = c[7] * t24;
        const V t59 = t57 - t58;
        const V t60 = c[8] * t26;
        const V t61 = t59 + t60;
        const V t62 = c[6] * t28;
        const V t63 = t61 - t62;
        const V t64 = c[4] * t30;
        const V t65 = t63 + t64;
        const V t66 = c[10] * t23;
        const V t67 = c[12] * t25;
        const V t68 = c[13] * t27;
        const V t69 = c[11] * t29;
        const V t70 = c[9] * t31;
        const V t71 = t66 + t67;
        const V t72 = t71 + t68;
        const V t73 = t72 + t69;
        const V t74 = t73 + t70;
        const V t75 = c[6] * t22;
        const V t76 = t0 - t75;
        const V t77 = c[8] * t24;
        const V t78 = t76 + t77;
        const V t79 = c[5] * t26;
        const V t80 = t78 - t79;
        const V t81 = c[4] * t28;
        const V t82 = t80 + t81;
        const V t83 = c[7] * t30;
        const V t84 = t82 - t83;
        const V t85 = c[11] * t23;
        const V t86 = c[13] * t25;
        const V t87 = c[10] * t27;
        const V t88 = c[9] * t29;
        const V t89 = c[12] * t31;
        const V t90 = t85 + t86;
        const V t91 = t90 + t87;
        const V t92 = t91 - t88;
        const V t93 = t92 - t89;
        const V t94 = c[7] * t22;
        const V t95 = t0 - t94;
        const V t96 = c[6] * t24;
        const V t97 = t95 - t96;
        const V t98 = c[4] * t26;
        const V t99 = t97 + t98;
        const V t100 = c[8] * t28;
        const V t101 = t99 + t100;
        const V t102 = c[5] * t30;
        const V t103 = t101 - t102;
        const V t104 = c[12] * t23;
        const V t105 = c[11] * t25;
        const V t106 = c[9] * t27;
        const V t107 = c[13] * t29;
        const V t108 = c[10] * t31;
        const V t109 = t104 + t105;
        const V t110 = t109 + t107;
        const V t111 = t110 - t106;
        const V t112 = t111 - t108;
        const V t113 = c[8] * t22;
        const V t114 = c[4] * t24;
        const V t115 = t113 + t114;
        const V t116 = c[7] * t26;
        const V t117 = t115 - t116;
        const V t118 = c[5] * t28;
        const V t119 = t117 - t118;
        const V t120 = c[6] * t30;
        const V t121 = t119 - t120;
        const V t122 = t121 + t0;
        const V t123 = c[13] * t23;
        const V t124 = c[9] * t25;
        const V t125 = c[12] * t27;
        const V t126 = c[10] * t29;
        const V t127 = c[11] * t31;
        const V t128 = t123 + t125;
        const V t129 = t128 + t126;
        const V t130 = t129 - t124;
        const V t131 = t130 - t127;
        // real block of 11, multiplier 2
        const V t132 = t3 + t21;
        const V t133 = t3 - t21;
        const V t134 = t19 + t5;
        const V t135 = t19 - t5;
        const V t136 = t7 + t17;
        const V t137 = t7 - t17;
        const V t138 = t9 + t15;
        const V t139 = t9 - t15;
        const V t140 = t13 + t11;
        const V t141 = t13 - t11;
        const V t142 = t132 + t134;
        const V t143 = t142 + t136;
        const V t144 = t143 + t138;
        const V t145 = t144 + t140;
        const V t146 = t145 + t1;
        const V t147 = c[4] * t132;
        const V t148 = c[5] * t134;
        const V t149 = t147 - t148;
        const V t150 = c[6] * t136;
        const V t151 = t149 - t150;
        const V t152 = c[7] * t138;
        const V t153 = t151 - t152;
        const V t154 = c[8] * t140;
        const V t155 = t153 + t154;
        const V t156 = t155 + t1;
        const V t157 = c[9] * t133;
        const V t158 = c[10] * t135;
        const V t159 = c[11] * t137;
        const V t160 = c[12] * t139;
        const V t161 = c[13] * t141;
        const V t162 = t158 + t159;
        const V t163 = t162 + t160;
        const V t164 = t163 - t157;
        const V t165 = t164 - t161;
        const V t166 = c[5] * t132;
        const V t167 = t1 - t166;
        const V t168 = c[7] * t134;
        const V t169 = t167 - t168;
        const V t170 = c[8] * t136;
        const V t171 = t169 + t170;
        const V t172 = c[6] * t138;
        const V t173 = t171 - t172;
        const V t174 = c[4] * t140;
        const V t175 = t173 + t174;
        const V t176 = c[10] * t133;
        const V t177 = c[12] * t135;
        const V t178 = c[13] * t137;
        const V t179 = c[11] * t139;
        const V t180 = c[9] * t141;
        const V t181 = t176 + t177;
        const V t182 = t181 + t178;
        const V t183 = t182 + t179;
        const V t184 = t183 + t180;
        const V t185 = c[6] * t132;
        const V t186 = t1 - t185;
        const V t187 = c[8] * t134;
        const V t188 = t186 + t187;
        const V t189 = c[5] * t136;
        const V t190 = t188 - t189;
        const V t191 = c[4] * t138;
        const V t192 = t190 + t191;
        const V t193 = c[7] * t140;
        const V t194 = t192 - t193;
        const V t195 = c[11] * t133;
        const V t196 = c[13] * t135;
        const V t197 = c[10] * t137;
        const V t198 = c[9] * t139;
        const V t199 = c[12] * t141;
        const V t200 = t195 + t196;
        const V t201 = t200 + t197;
        const V t202 = t201 - t198;
        const V t203 = t202 - t199;
        const V t204 = c[7] * t132;
        const V t205 = t1 - t204;
        const V t206 = c[6] * t134;
        const V t207 = t205 - t206;
        const V t208 = c[4] * t136;
        const V t209 = t207 + t208;
        const V t210 = c[8] * t138;
        const V t211 = t209 + t210;
        const V t212 = c[5] * t140;
        const V t213 = t211 - t212;
        const V t214 = c[12] * t133;
        const V t215 = c[11] * t135;
        const V t216 = c[9] * t137;
        const V t217 = c[13] * t139;
        const V t218 = c[10] * t141;
        const V t219 = t214 + t215;
        const V t220 = t219 + t217;
        const V t221 = t220 - t216;
        const V t222 = t221 - t218;
        const V t223 = c[8] * t132;
        const V t224 = c[4] * t134;
        const V t225 = t223 + t224;
        const V t226 = c[7] * t136;
        const V t227 = t225 - t226;
        const V t228 = c[5] * t138;
        const V t229 = t227 - t228;
        const V t230 = c[6] * t140;
        const V t231 = t229 - t230;
        const V t232 = t231 + t1;
        const V t233 = c[13] * t133;
        const V t234 = c[9] * t135;
        const V t235 = c[12] * t137;
        const V t236 = c[10] * t139;
        const V t237 = c[11] * t141;
        const V t238 = t233 + t235;
        const V t239 = t238 + t236;
        const V t240 = t239 - t234;
        const V t241 = t240 - t237;
        // real block of 2
        const V x1i = io.im(1);
        const V x22i = io.im(22);
        const V t242 = x1i + x22i;
        const V t243 = x1i - x22i;
        // real block of 2
        const V x2i = io.im(2);
        const V x21i = io.im(21);
        const V t244 = x2i + x21i;
        const V t245 = x2i - x21i;
        // real block of 2
        const V x4i = io.im(4);
        const V x19i = io.im(19);
        const V t246 = x4i + x19i;
        const V t247 = x4i - x19i;
        // real block of 2
        const V x8i = io.im(8);
        const V x15i = io.im(15);
        const V t248 = x8i + x15i;
        const V t249 = x8i - x15i;
        // real block of 2
        const V x16i = io.im(16);
        const V x7i = io.im(7);
        const V t250 = x16i + x7i;
        const V t251 = x16i - x7i;
        // real block of 2
        const V x9i = io.im(9);
        const V x14i = io.im(14);
        const V t252 = x9i + x14i;
        const V t253 = x9i - x14i;
        // real block of 2
        const V x18i = io.im(18);
        const V x5i = io.im(5);
        const V t254 = x18i + x5i;
        const V t255 = x18i - x5i;
        // real block of 2
        const V x13i = io.im(13);
        const V x10i = io.im(10);
        const V t256 = x13i + x10i;
        const V t257 = x13i - x10i;
        // real block of 2
        const V x3i = io.im(3);
        const V x20i = io.im(20);
        const V t258 = x3i + x20i;
        const V t259 = x3i - x20i;
        // real block of 2
        const V x6i = io.im(6);
        const V x17i = io.im(17);
        const V t260 = x6i + x17i;
        const V t261 = x6i - x17i;
        // real block of 2
        const V x12i = io.im(12);
        const V x11i = io.im(11);
        const V t262 = x12i + x11i;
        const V t263 = x12i - x11i;
        // real block of 11, multiplier 2
        const V t264 = t244 + t262;
        const V t265 = t244 - t262;
        const V t266 = t260 + t246;
        const V t267 = t260 - t246;
        const V t268 = t248 + t258;
        const V t269 = t248 - t258;
        const V t270 = t250 + t256;
        const V t271 = t250 - t256;
        const V t272 = t254 + t252;
        const V t273 = t254 - t252;
        const V t274 = t264 + t266;
        const V t275 = t274 + t268;
        const V t276 = t275 + t270;
        const V t277 = t276 + t272;
        const V t278 = t277 + t242;
        const V t279 = c[4] * t264;
        const V t280 = c[5] * t266;
        const V t281 = t279 - t280;
        const V t282 = c[6] * t268;
        const V t283 = t281 - t282;
        const V t284 = c[7] * t270;
        const V t285 = t283 - t284;
        const V t286 = c[8] * t272;
        const V t287 = t285 + t286;
        const V t288 = t287 + t242;
        const V t289 = c[9] * t265;
        const V t290 = c[10] * t267;
        const V t291 = c[11] * t269;
        const V t292 = c[12] * t271;
        const V t293 = c[13] * t273;
        const V t294 = t290 + t291;
        const V t295 = t294 + t292;
        const V t296 = t295 - t289;
        const V t297 = t296 - t293;
        const V t298 = c[5] * t264;
        const V t299 = t242 - t298;
        const V t300 = c[7] * t266;
        const V t301 = t299 - t300;
        const V t302 = c[8] * t268;
        const V t303 = t301 + t302;
        const V t304 = c[6] * t270;
        const V t305 = t303 - t304;
        const V t306 = c[4] * t272;
        const V t307 = t305 + t306;
        const V t308 = c[10] * t265;
        const V t309 = c[12] * t267;
        const V t310 = c[13] * t269;
        const V t311 = c[11] * t271;
        const V t312 = c[9] * t273;
        const V t313 = t308 + t309;
        const V t314 = t313 + t310;
        const V t315 = t314 + t311;
        const V t316 = t315 + t312;
        const V t317 = c[6] * t264;
        const V t318 = t242 - t317;
        const V t319 = c[8] * t266;
        const V t320 = t318 + t319;
        const V t321 = c[5] * t268;
        const V t322 = t320 - t321;
        const V t323 = c[4] * t270;
        const V t324 = t322 + t323;
        const V t325 = c[7] * t272;
        const V t326 = t324 - t325;
        const V t327 = c[11] * t265;
        const V t328 = c[13] * t267;
        const V t329 = c[10] * t269;
        const V t330 = c[9] * t271;
        const V t331 = c[12] * t273;
        const V t332 = t327 + t328;
        const V t333 = t332 + t329;
        const V t334 = t333 - t330;
        const V t335 = t334 - t331;
        const V t336 = c[7] * t264;
        const V t337 = t242 - t336;
        const V t338 = c[6] * t266;
        const V t339 = t337 - t338;
        const V t340 = c[4] * t268;
        const V t341 = t339 + t340;
        const V t342 = c[8] * t270;
        const V t343 = t341 + t342;
        const V t344 = c[5] * t272;
        const V t345 = t343 - t344;
        const V t346 = c[12] * t265;
        const V t347 = c[11] * t267;
        const V t348 = c[9] * t269;
        const V t349 = c[13] * t271;
        const V t350 = c[10] * t273;
        const V t351 = t346 + t347;
        const V t352 = t351 + t349;
        const V t353 = t352 - t348;
        const V t354 = t353 - t350;
        const V t355 = c[8] * t264;
        const V t356 = c[4] * t266;
        const V t357 = t355 + t356;
        const V t358 = c[7] * t268;
        const V t359 = t357 - t358;
        const V t360 = c[5] * t270;
        const V t361 = t359 - t360;
        const V t362 = c[6] * t272;
        const V t363 = t361 - t362;
        const V t364 = t363 + t242;
        const V t365 = c[13] * t265;
        const V t366 = c[9] * t267;
        const V t367 = c[12] * t269;
        const V t368 = c[10] * t271;
        const V t369 = c[11] * t273;
        const V t370 = t365 + t367;
        const V t371 = t370 + t368;
        const V t372 = t371 - t366;
        const V t373 = t372 - t369;
        // real block of 11, multiplier 2
        const V t374 = t245 + t263;
        const V t375 = t245 - t263;
        const V t376 = t261 + t247;
        const V t377 = t261 - t247;
        const V t378 = t249 + t259;
        const V t379 = t249 - t259;
        const V t380 = t251 + t257;
        const V t381 = t251 - t257;
        const V t382 = t255 + t253;
        const V t383 = t255 - t253;
        const V t384 = t374 + t376;
        const V t385 = t384 + t378;
        const V t386 = t385 + t380;
        const V t387 = t386 + t382;
        const V t388 = t387 + t243;
        const V t389 = c[4] * t374;
        const V t390 = c[5] * t376;
        const V t391 = t389 - t390;
        const V t392 = c[6] * t378;
        const V t393 = t391 - t392;
        const V t394 = c[7] * t380;
        const V t395 = t393 - t394;
        const V t396 = c[8] * t382;
        const V t397 = t395 + t396;
        const V t398 = t397 + t243;
        const V t399 = c[9] * t375;
        const V t400 = c[10] * t377;
        const V t401 = c[11] * t379;
        const V t402 = c[12] * t381;
        const V t403 = c[13] * t383;
        const V t404 = t400 + t401;
        const V t405 = t404 + t402;
        const V t406 = t405 - t399;
        const V t407 = t406 - t403;
        const V t408 = c[5] * t374;
        const V t409 = t243 - t408;
        const V t410 = c[7] * t376;
        const V t411 = t409 - t410;
        const V t412 = c[8] * t378;
        const V t413 = t411 + t412;
        const V t414 = c[6] * t380;
        const V t415 = t413 - t414;
        const V t416 = c[4] * t382;
        const V t417 = t415 + t416;
        const V t418 = c[10] * t375;
        const V t419 = c[12] * t377;
        const V t420 = c[13] * t379;
        const V t421 = c[11] * t381;
        const V t422 = c[9] * t383;
        const V t423 = t418 + t419;
        const V t424 = t423 + t420;
        const V t425 = t424 + t421;
        const V t426 = t425 + t422;
        const V t427 = c[6] * t374;
        const V t428 = t243 - t427;
        const V t429 = c[8] * t376;
        const V t430 = t428 + t429;
        const V t431 = c[5] * t378;
        const V t432 = t430 - t431;
        const V t433 = c[4] * t380;
        const V t434 = t432 + t433;
        const V t435 = c[7] * t382;
        const V t436 = t434 - t435;
        const V t437 = c[11] * t375;
        const V t438 = c[13] * t377;
        const V t439 = c[10] * t379;
        const V t440 = c[9] * t381;
        const V t441 = c[12] * t383;
        const V t442 = t437 + t438;
        const V t443 = t442 + t439;
        const V t444 = t443 - t440;
        const V t445 = t444 - t441;
        const V t446 = c[7] * t374;
        const V t447 = t243 - t446;
        const V t448 = c[6] * t376;
        const V t449 = t447 - t448;
        const V t450 = c[4] * t378;
        const V t451 = t449 + t450;
        const V t452 = c[8] * t380;
        const V t453 = t451 + t452;
        const V t454 = c[5] * t382;
        const V t455 = t453 - t454;
        const V t456 = c[12] * t375;
        const V t457 = c[11] * t377;
        const V t458 = c[9] * t379;
        const V t459 = c[13] * t381;
        const V t460 = c[10] * t383;
        const V t461 = t456 + t457;
        const V t462 = t461 + t459;
        const V t463 = t462 - t458;
        const V t464 = t463 - t460;
        const V t465 = c[8] * t374;
        const V t466 = c[4] * t376;
        const V t467 = t465 + t466;
        const V t468 = c[7] * t378;
        const V t469 = t467 - t468;
        const V t470 = c[5] * t380;
        const V t471 = t469 - t470;
        const V t472 = c[6] * t382;
        const V t473 = t471 - t472;
        const V t474 = t473 + t243;
        const V t475 = c[13] * t375;
        const V t476 = c[9] * t377;
        const V t477 = c[12] * t379;
        const V t478 = c[10] * t381;
        const V t479 = c[11] * t383;
        const V t480 = t475 + t477;
        const V t481 = t480 + t478;
        const V t482 = t481 - t476;
        const V t483 = t482 - t479;
        // complex block of 23
        const V x0r = io.re(0);
        const V t484 = x0r + t36;
        const V x0i = io.im(0);
        io.re(0, t484);
        const V t485 = x0i + t278;
        io.im(0, t485);
        const V t486 = c[44] * t36;
        const V t487 = x0r - t486;
        const V t488 = c[44] * t278;
        const V t489 = x0i - t488;
        const V t490 = c[22] * t483;
        const V t491 = c[23] * t474;
        const V t492 = t491 + t490;
        const V t493 = c[22] * t474;
        const V t494 = c[23] * t483;
        const V t495 = t493 - t494;
        const V t496 = c[22] * t241;
        const V t497 = c[23] * t232;
        const V t498 = t497 + t496;
        const V t499 = c[22] * t232;
        const V t500 = c[23] * t241;
        const V t501 = t500 - t499;
        const V t502 = c[24] * t55;
        const V t503 = c[25] * t46;
        const V t504 = t503 - t502;
        const V t505 = c[24] * t46;
        const V t506 = c[25] * t55;
        const V t507 = t506 + t505;
        const V t508 = c[24] * t297;
        const V t509 = c[25] * t288;
        const V t510 = t509 - t508;
        const V t511 = c[24] * t288;
        const V t512 = c[25] * t297;
        const V t513 = t512 + t511;
        const V t514 = c[26] * t464;
        const V t515 = c[27] * t455;
        const V t516 = t514 - t515;
        const V t517 = c[26] * t455;
        const V t518 = c[27] * t464;
        const V t519 = t518 + t517;
        const V t520 = c[26] * t222;
        const V t521 = c[27] * t213;
        const V t522 = t521 - t520;
        const V t523 = c[26] * t213;
        const V t524 = c[27] * t222;
        const V t525 = t524 + t523;
        const V t526 = c[28] * t74;
        const V t527 = c[29] * t65;
        const V t528 = t527 + t526;
        const V t529 = c[28] * t65;
        const V t530 = c[29] * t74;
        const V t531 = t529 - t530;
        const V t532 = c[28] * t316;
        const V t533 = c[29] * t307;
        const V t534 = t533 + t532;
        const V t535 = c[28] * t307;
        const V t536 = c[29] * t316;
        const V t537 = t535 - t536;
        const V t538 = c[30] * t445;
        const V t539 = c[31] * t436;
        const V t540 = t538 - t539;
        const V t541 = c[30] * t436;
        const V t542 = c[31] * t445;
        const V t543 = t542 + t541;
        const V t544 = c[30] * t203;
        const V t545 = c[31] * t194;
        const V t546 = t545 - t544;
        const V t547 = c[30] * t194;
        const V t548 = c[31] * t203;
        const V t549 = t548 + t547;
        const V t550 = c[32] * t93;
        const V t551 = c[33] * t84;
        const V t552 = t551 - t550;
        const V t553 = c[32] * t84;
        const V t554 = c[33] * t93;
        const V t555 = t554 + t553;
        const V t556 = c[32] * t335;
        const V t557 = c[33] * t326;
        const V t558 = t557 - t556;
        const V t559 = c[32] * t326;
        const V t560 = c[33] * t335;
        const V t561 = t560 + t559;
        const V t562 = c[34] * t426;
        const V t563 = c[35] * t417;
        const V t564 = t563 - t562;
        const V t565 = c[34] * t417;
        const V t566 = c[35] * t426;
        const V t567 = t566 + t565;
        const V t568 = c[34] * t184;
        const V t569 = c[35] * t175;
        const V t570 = t568 - t569;
        const V t571 = c[34] * t175;
        const V t572 = c[35] * t184;
        const V t573 = t572 + t571;
        const V t574 = c[36] * t112;
        const V t575 = c[37] * t103;
        const V t576 = t574 - t575;
        const V t577 = c[36] * t103;
        const V t578 = c[37] * t112;
        const V t579 = t578 + t577;
        const V t580 = c[36] * t354;
        const V t581 = c[37] * t345;
        const V t582 = t580 - t581;
        const V t583 = c[36] * t345;
        const V t584 = c[37] * t354;
        const V t585 = t584 + t583;
        const V t586 = c[38] * t407;
        const V t587 = c[39] * t398;
        const V t588 = t587 + t586;
        const V t589 = c[38] * t398;
        const V t590 = c[39] * t407;
        const V t591 = t590 - t589;
        const V t592 = c[38] * t165;
        const V t593 = c[39] * t156;
        const V t594 = t593 + t592;
        const V t595 = c[38] * t156;
        const V t596 = c[39] * t165;
        const V t597 = t595 - t596;
        const V t598 = c[40] * t131;
        const V t599 = c[41] * t122;
        const V t600 = t599 + t598;
        const V t601 = c[40] * t122;
        const V t602 = c[41] * t131;
        const V t603 = t602 - t601;
        const V t604 = c[40] * t373;
        const V t605 = c[41] * t364;
        const V t606 = t605 + t604;
        const V t607 = c[40] * t364;
        const V t608 = c[41] * t373;
        const V t609 = t608 - t607;
        const V t610 = c[45] * t388;
        const V t611 = c[45] * t146;
        // real block of 5
        const V t612 = t528 + t600;
        const V t613 = t528 - t600;
        const V t614 = t552 + t576;
        const V t615 = t552 - t576;
        const V t616 = t612 + t614;
        const V t617 = t616 + t504;
        const V t618 = c[0] * t612;
        const V t619 = c[1] * t614;
        const V t620 = t618 - t619;
        const V t621 = t620 + t504;
        const V t622 = c[2] * t613;
        const V t623 = c[3] * t615;
        const V t624 = t623 - t622;
        const V t625 = c[1] * t612;
        const V t626 = t504 - t625;
        const V t627 = c[0] * t614;
        const V t628 = t626 + t627;
        const V t629 = c[3] * t613;
        const V t630 = c[2] * t615;
        const V t631 = t629 + t630;
        // real block of 5
        const V t632 = t603 - t531;
        const V t633 = t531 + t603;
        const V t634 = t555 - t579;
        const V t635 = t555 + t579;
        const V t636 = t632 + t634;
        const V t637 = t636 + t507;
        const V t638 = c[0] * t632;
        const V t639 = c[1] * t634;
        const V t640 = t638 - t639;
        const V t641 = t640 + t507;
        const V t642 = c[2] * t633;
        const V t643 = c[3] * t635;
        const V t644 = t642 + t643;
        const V t645 = c[1] * t632;
        const V t646 = t507 - t645;
        const V t647 = c[0] * t634;
        const V t648 = t646 + t647;
        const V t649 = c[3] * t633;
        const V t650 = c[2] * t635;
        const V t651 = t649 - t650;
        // spectrum block of 11, multiplier 2
        const V t652 = c[42] * t617;
        const V t653 = t487 - t652;
        const V t654 = c[14] * t651;
        const V t655 = c[15] * t648;
        const V t656 = t654 - t655;
        const V t657 = c[14] * t648;
        const V t658 = c[15] * t651;
        const V t659 = t658 + t657;
        const V t660 = c[16] * t624;
        const V t661 = c[17] * t621;
        const V t662 = t661 + t660;
        const V t663 = c[16] * t621;
        const V t664 = c[17] * t624;
        const V t665 = t664 - t663;
        const V t666 = c[18] * t644;
        const V t667 = c[19] * t641;
        const V t668 = t667 + t666;
        const V t669 = c[18] * t641;
        const V t670 = c[19] * t644;
        const V t671 = t670 - t669;
        const V t672 = c[20] * t631;
        const V t673 = c[21] * t628;
        const V t674 = t673 + t672;
        const V t675 = c[20] * t628;
        const V t676 = c[21] * t631;
        const V t677 = t676 - t675;
        const V t678 = c[43] * t637;
        // spectrum block of 2
        const V t679 = t653 + t678;
        const V t680 = t653 - t678;
        // complex block of 2
        const V t681 = t665 - t671;
        const V t682 = t662 - t668;
        const V t683 = t665 + t671;
        const V t684 = t662 + t668;
        // complex block of 2
        const V t685 = t677 - t659;
        const V t686 = t656 - t674;
        const V t687 = t677 + t659;
        const V t688 = t674 + t656;
        // spectrum block of 5, multiplier 2
        const V t689 = t682 + t686;
        const V t690 = t689 + t679;
        const V t691 = c[0] * t682;
        const V t692 = c[1] * t686;
        const V t693 = t691 - t692;
        const V t694 = t693 + t679;
        const V t695 = c[2] * t681;
        const V t696 = c[3] * t685;
        const V t697 = t695 + t696;
        const V t698 = t694 - t697;
        const V t699 = t694 + t697;
        const V t700 = c[1] * t682;
        const V t701 = t679 - t700;
        const V t702 = c[0] * t686;
        const V t703 = t701 + t702;
        const V t704 = c[3] * t681;
        const V t705 = c[2] * t685;
        const V t706 = t704 - t705;
        const V t707 = t703 - t706;
        const V t708 = t703 + t706;
        // spectrum block of 5, multiplier 2
        const V t709 = t684 - t688;
        const V t710 = t709 + t680;
        const V t711 = c[0] * t684;
        const V t712 = c[1] * t688;
        const V t713 = t711 + t712;
        const V t714 = t713 + t680;
        const V t715 = c[2] * t683;
        const V t716 = c[3] * t687;
        const V t717 = t715 + t716;
        const V t718 = t714 - t717;
        const V t719 = t714 + t717;
        const V t720 = c[1] * t684;
        const V t721 = t680 - t720;
        const V t722 = c[0] * t688;
        const V t723 = t721 - t722;
        const V t724 = c[3] * t683;
        const V t725 = c[2] * t687;
        const V t726 = t724 - t725;
        const V t727 = t723 - t726;
        const V t728 = t723 + t726;
        // spectrum block of 11, multiplier 2
        const V t729 = t487 + t617;
        // real block of 5
        const V t730 = t564 + t492;
        const V t731 = t564 - t492;
        const V t732 = t540 + t516;
        const V t733 = t540 - t516;
        const V t734 = t730 + t732;
        const V t735 = t734 - t588;
        const V t736 = c[0] * t730;
        const V t737 = c[1] * t732;
        const V t738 = t736 - t737;
        const V t739 = t738 - t588;
        const V t740 = c[2] * t731;
        const V t741 = c[3] * t733;
        const V t742 = t741 - t740;
        const V t743 = c[1] * t730;
        const V t744 = t588 + t743;
        const V t745 = c[0] * t732;
        const V t746 = t745 - t744;
        const V t747 = c[3] * t731;
        const V t748 = c[2] * t733;
        const V t749 = t747 + t748;
        // real block of 5
        const V t750 = t567 - t495;
        const V t751 = t567 + t495;
        const V t752 = t543 + t519;
        const V t753 = t519 - t543;
        const V t754 = t750 - t752;
        const V t755 = t754 - t591;
        const V t756 = c[0] * t750;
        const V t757 = c[1] * t752;
        const V t758 = t756 + t757;
        const V t759 = t758 - t591;
        const V t760 = c[2] * t751;
        const V t761 = c[3] * t753;
        const V t762 = t761 - t760;
        const V t763 = c[1] * t750;
        const V t764 = t591 + t763;
        const V t765 = c[0] * t752;
        const V t766 = t764 + t765;
        const V t767 = c[3] * t751;
        const V t768 = c[2] * t753;
        const V t769 = t767 + t768;
        // spectrum block of 11, multiplier 2
        const V t770 = c[42] * t735;
        const V t771 = t610 - t770;
        const V t772 = c[14] * t769;
        const V t773 = c[15] * t766;
        const V t774 = t773 - t772;
        const V t775 = c[14] * t766;
        const V t776 = c[15] * t769;
        const V t777 = t776 + t775;
        const V t778 = c[16] * t742;
        const V t779 = c[17] * t739;
        const V t780 = t779 + t778;
        const V t781 = c[16] * t739;
        const V t782 = c[17] * t742;
        const V t783 = t782 - t781;
        const V t784 = c[18] * t762;
        const V t785 = c[19] * t759;
        const V t786 = t785 + t784;
        const V t787 = c[18] * t759;
        const V t788 = c[19] * t762;
        const V t789 = t788 - t787;
        const V t790 = c[20] * t749;
        const V t791 = c[21] * t746;
        const V t792 = t791 + t790;
        const V t793 = c[20] * t746;
        const V t794 = c[21] * t749;
        const V t795 = t794 - t793;
        const V t796 = c[43] * t755;
        // spectrum block of 2
        const V t797 = t771 + t796;
        const V t798 = t771 - t796;
        // complex block of 2
        const V t799 = t783 - t789;
        const V t800 = t780 - t786;
        const V t801 = t783 + t789;
        const V t802 = t780 + t786;
        // complex block of 2
        const V t803 = t795 + t777;
        const V t804 = t774 - t792;
        const V t805 = t795 - t777;
        const V t806 = t792 + t774;
        // spectrum block of 5, multiplier 2
        const V t807 = t800 + t804;
        const V t808 = t807 + t797;
        const V t809 = c[0] * t800;
        const V t810 = c[1] * t804;
        const V t811 = t809 - t810;
        const V t812 = t811 + t797;
        const V t813 = c[2] * t799;
        const V t814 = c[3] * t803;
        const V t815 = t813 + t814;
        const V t816 = t812 - t815;
        const V t817 = t812 + t815;
        const V t818 = c[1] * t800;
        const V t819 = t797 - t818;
        const V t820 = c[0] * t804;
        const V t821 = t819 + t820;
        const V t822 = c[3] * t799;
        const V t823 = c[2] * t803;
        const V t824 = t822 - t823;
        const V t825 = t821 - t824;
        const V t826 = t821 + t824;
        // spectrum block of 5, multiplier 2
        const V t827 = t802 - t806;
        const V t828 = t827 + t798;
        const V t829 = c[0] * t802;
        const V t830 = c[1] * t806;
        const V t831 = t829 + t830;
        const V t832 = t831 + t798;
        const V t833 = c[2] * t801;
        const V t834 = c[3] * t805;
        const V t835 = t833 + t834;
        const V t836 = t832 - t835;
        const V t837 = t832 + t835;
        const V t838 = c[1] * t802;
        const V t839 = t798 - t838;
        const V t840 = c[0] * t806;
        const V t841 = t839 - t840;
        const V t842 = c[3] * t801;
        const V t843 = c[2] * t805;
        const V t844 = t842 - t843;
        const V t845 = t841 - t844;
        const V t846 = t841 + t844;
        // spectrum block of 11, multiplier 2
        const V t847 = t610 + t735;
        // spectrum block of 2
        const V t848 = t729 + t847;
        io.re(1, t848);
        const V t849 = t729 - t847;
        io.re(22, t849);
        // spectrum block of 2
        const V t850 = t690 + t808;
        io.re(12, t850);
        const V t851 = t690 - t808;
        io.re(11, t851);
        // spectrum block of 2
        const V t852 = t719 + t837;
        io.re(6, t852);
        const V t853 = t719 - t837;
        io.re(17, t853);
        // spectrum block of 2
        const V t854 = t707 + t825;
        io.re(3, t854);
        const V t855 = t707 - t825;
        io.re(20, t855);
        // spectrum block of 2
        const V t856 = t708 + t826;
        io.re(13, t856);
        const V t857 = t708 - t826;
        io.re(10, t857);
        // spectrum block of 2
        const V t858 = t698 + t816;
        io.re(18, t858);
        const V t859 = t698 - t816;
        io.re(5, t859);
        // spectrum block of 2
        const V t860 = t718 + t836;
        io.re(9, t860);
        const V t861 = t718 - t836;
        io.re(14, t861);
        // spectrum block of 2
        const V t862 = t728 + t846;
        io.re(16, t862);
        const V t863 = t728 - t846;
        io.re(7, t863);
        // spectrum block of 2
        const V t864 = t727 + t845;
        io.re(8, t864);
        const V t865 = t727 - t845;
        io.re(15, t865);
        // spectrum block of 2
        const V t866 = t699 + t817;
        io.re(4, t866);
        const V t867 = t699 - t817;
        io.re(19, t867);
        // spectrum block of 2
        const V t868 = t710 + t828;
        io.re(2, t868);
        const V t869 = t710 - t828;
        io.re(21, t869);
        // real block of 5
        const V t870 = t534 + t606;
        const V t871 = t534 - t606;
        const V t872 = t558 + t582;
        const V t873 = t558 - t582;
        const V t874 = t870 + t872;
        const V t875 = t874 + t510;
        const V t876 = c[0] * t870;
        const V t877 = c[1] * t872;
        const V t878 = t876 - t877;
        const V t879 = t878 + t510;
        const V t880 = c[2] * t871;
        const V t881 = c[3] * t873;
        const V t882 = t881 - t880;
        const V t883 = c[1] * t870;
        const V t884 = t510 - t883;
        const V t885 = c[0] * t872;
        const V t886 = t884 + t885;
        const V t887 = c[3] * t871;
        const V t888 = c[2] * t873;
        const V t889 = t887 + t888;
        // real block of 5
        const V t890 = t609 - t537;
        const V t891 = t537 + t609;
        const V t892 = t561 - t585;
        const V t893 = t561 + t585;
        const V t894 = t890 + t892;
        const V t895 = t894 + t513;
        const V t896 = c[0] * t890;
        const V t897 = c[1] * t892;
        const V t898 = t896 - t897;
        const V t899 = t898 + t513;
        const V t900 = c[2] * t891;
        const V t901 = c[3] * t893;
        const V t902 = t900 + t901;
        const V t903 = c[1] * t890;
        const V t904 = t513 - t903;
        const V t905 = c[0] * t892;
        const V t906 = t904 + t905;
        const V t907 = c[3] * t891;
        const V t908 = c[2] * t893;
        const V t909 = t907 - t908;
        // spectrum block of 11, multiplier 2
        const V t910 = c[42] * t875;
        const V t911 = t489 - t910;
        const V t912 = c[14] * t909;
        const V t913 = c[15] * t906;
        const V t914 = t912 - t913;
        const V t915 = c[14] * t906;
        const V t916 = c[15] * t909;
        const V t917 = t916 + t915;
        const V t918 = c[16] * t882;
        const V t919 = c[17] * t879;
        const V t920 = t919 + t918;
        const V t921 = c[16] * t879;
        const V t922 = c[17] * t882;
        const V t923 = t922 - t921;
        const V t924 = c[18] * t902;
        const V t925 = c[19] * t899;
        const V t926 = t925 + t924;
        const V t927 = c[18] * t899;
        const V t928 = c[19] * t902;
        const V t929 = t928 - t927;
        const V t930 = c[20] * t889;
        const V t931 = c[21] * t886;
        const V t932 = t931 + t930;
        const V t933 = c[20] * t886;
        const V t934 = c[21] * t889;
        const V t935 = t934 - t933;
        const V t936 = c[43] * t895;
        // spectrum block of 2
        const V t937 = t911 + t936;
        const V t938 = t911 - t936;
        // complex block of 2
        const V t939 = t923 - t929;
        const V t940 = t920 - t926;
        const V t941 = t923 + t929;
        const V t942 = t920 + t926;
        // complex block of 2
        const V t943 = t935 - t917;
        const V t944 = t914 - t932;
        const V t945 = t935 + t917;
        const V t946 = t932 + t914;
        // spectrum block of 5, multiplier 2
        const V t947 = t940 + t944;
        const V t948 = t947 + t937;
        const V t949 = c[0] * t940;
        const V t950 = c[1] * t944;
        const V t951 = t949 - t950;
        const V t952 = t951 + t937;
        const V t953 = c[2] * t939;
        const V t954 = c[3] * t943;
        const V t955 = t953 + t954;
        const V t956 = t952 - t955;
        const V t957 = t952 + t955;
        const V t958 = c[1] * t940;
        const V t959 = t937 - t958;
        const V t960 = c[0] * t944;
        const V t961 = t959 + t960;
        const V t962 = c[3] * t939;
        const V t963 = c[2] * t943;
        const V t964 = t962 - t963;
        const V t965 = t961 - t964;
        const V t966 = t961 + t964;
        // spectrum block of 5, multiplier 2
        const V t967 = t942 - t946;
        const V t968 = t967 + t938;
        const V t969 = c[0] * t942;
        const V t970 = c[1] * t946;
        const V t971 = t969 + t970;
        const V t972 = t971 + t938;
        const V t973 = c[2] * t941;
        const V t974 = c[3] * t945;
        const V t975 = t973 + t974;
        const V t976 = t972 - t975;
        const V t977 = t972 + t975;
        const V t978 = c[1] * t942;
        const V t979 = t938 - t978;
        const V t980 = c[0] * t946;
        const V t981 = t979 - t980;
        const V t982 = c[3] * t941;
        const V t983 = c[2] * t945;
        const V t984 = t982 - t983;
        const V t985 = t981 - t984;
        const V t986 = t981 + t984;
        // spectrum block of 11, multiplier 2
        const V t987 = t489 + t875;
        // real block of 5
        const V t988 = t570 - t498;
        const V t989 = t570 + t498;
        const V t990 = t546 + t522;
        const V t991 = t546 - t522;
        const V t992 = t988 + t990;
        const V t993 = t992 + t594;
        const V t994 = c[0] * t988;
        const V t995 = c[1] * t990;
        const V t996 = t994 - t995;
        const V t997 = t996 + t594;
        const V t998 = c[2] * t989;
        const V t999 = c[3] * t991;
        const V t1000 = t999 - t998;
        const V t1001 = c[1] * t988;
        const V t1002 = t594 - t1001;
        const V t1003 = c[0] * t990;
        const V t1004 = t1002 + t1003;
        const V t1005 = c[3] * t989;
        const V t1006 = c[2] * t991;
        const V t1007 = t1005 + t1006;
        // real block of 5
        const V t1008 = t573 + t501;
        const V t1009 = t501 - t573;
        const V t1010 = t549 + t525;
        const V t1011 = t549 - t525;
        const V t1012 = t1010 - t1008;
        const V t1013 = t1012 - t597;
        const V t1014 = c[0] * t1008;
        const V t1015 = t597 + t1014;
        const V t1016 = c[1] * t1010;
        const V t1017 = t1015 + t1016;
        const V t1018 = c[2] * t1009;
        const V t1019 = c[3] * t1011;
        const V t1020 = t1019 - t1018;
        const V t1021 = c[1] * t1008;
        const V t1022 = c[0] * t1010;
        const V t1023 = t1021 + t1022;
        const V t1024 = t1023 - t597;
        const V t1025 = c[3] * t1009;
        const V t1026 = c[2] * t1011;
        const V t1027 = t1025 + t1026;
        // spectrum block of 11, multiplier 2
        const V t1028 = c[42] * t993;
        const V t1029 = t611 + t1028;
        const V t1030 = c[14] * t1027;
        const V t1031 = c[15] * t1024;
        const V t1032 = t1031 + t1030;
        const V t1033 = c[14] * t1024;
        const V t1034 = c[15] * t1027;
        const V t1035 = t1033 - t1034;
        const V t1036 = c[16] * t1000;
        const V t1037 = c[17] * t997;
        const V t1038 = t1037 + t1036;
        const V t1039 = c[16] * t997;
        const V t1040 = c[17] * t1000;
        const V t1041 = t1040 - t1039;
        const V t1042 = c[18] * t1020;
        const V t1043 = c[19] * t1017;
        const V t1044 = t1043 - t1042;
        const V t1045 = c[18] * t1017;
        const V t1046 = c[19] * t1020;
        const V t1047 = t1046 + t1045;
        const V t1048 = c[20] * t1007;
        const V t1049 = c[21] * t1004;
        const V t1050 = t1049 + t1048;
        const V t1051 = c[20] * t1004;
        const V t1052 = c[21] * t1007;
        const V t1053 = t1052 - t1051;
        const V t1054 = c[43] * t1013;
        // spectrum block of 2
        const V t1055 = t1054 - t1029;
        const V t1056 = t1029 + t1054;
        // complex block of 2
        const V t1057 = t1041 - t1047;
        const V t1058 = t1038 + t1044;
        const V t1059 = t1041 + t1047;
        const V t1060 = t1038 - t1044;
        // complex block of 2
        const V t1061 = t1053 - t1035;
        const V t1062 = t1050 + t1032;
        const V t1063 = t1053 + t1035;
        const V t1064 = t1032 - t1050;
        // spectrum block of 5, multiplier 2
        const V t1065 = t1058 - t1062;
        const V t1066 = t1065 + t1055;
        const V t1067 = c[0] * t1058;
        const V t1068 = c[1] * t1062;
        const V t1069 = t1067 + t1068;
        const V t1070 = t1069 + t1055;
        const V t1071 = c[2] * t1057;
        const V t1072 = c[3] * t1061;
        const V t1073 = t1071 + t1072;
        const V t1074 = t1070 - t1073;
        const V t1075 = t1070 + t1073;
        const V t1076 = c[1] * t1058;
        const V t1077 = t1055 - t1076;
        const V t1078 = c[0] * t1062;
        const V t1079 = t1077 - t1078;
        const V t1080 = c[3] * t1057;
        const V t1081 = c[2] * t1061;
        const V t1082 = t1080 - t1081;
        const V t1083 = t1079 - t1082;
        const V t1084 = t1079 + t1082;
        // spectrum block of 5, multiplier 2
        const V t1085 = t1060 + t1064;
        const V t1086 = t1085 - t1056;
        const V t1087 = c[0] * t1060;
        const V t1088 = c[1] * t1064;
        const V t1089 = t1087 - t1088;
        const V t1090 = t1089 - t1056;
        const V t1091 = c[2] * t1059;
        const V t1092 = c[3] * t1063;
        const V t1093 = t1091 + t1092;
        const V t1094 = t1090 - t1093;
        const V t1095 = t1090 + t1093;
        const V t1096 = c[1] * t1060;
        const V t1097 = t1056 + t1096;
        const V t1098 = c[0] * t1064;
        const V t1099 = t1098 - t1097;
        const V t1100 = c[3] * t1059;
        const V t1101 = c[2] * t1063;
        const V t1102 = t1100 - t1101;
        const V t1103 = t1099 - t1102;
        const V t1104 = t1099 + t1102;
        // spectrum block of 11, multiplier 2
        const V t1105 = t993 - t611;
        // spectrum block of 2
        const V t1106 = t987 + t1105;
        io.im(1, t1106);
        const V t1107 = t987 - t1105;
        io.im(22, t1107);
        // spectrum block of 2
        const V t1108 = t948 + t1066;
        io.im(12, t1108);
        const V t1109 = t948 - t1066;
        io.im(11, t1109);
        // spectrum block of 2
        const V t1110 = t977 + t1095;
        io.im(6, t1110);
        const V t1111 = t977 - t1095;
        io.im(17, t1111);
        // spectrum block of 2
        const V t1112 = t965 + t1083;
        io.im(3, t1112);
        const V t1113 = t965 - t1083;
        io.im(20, t1113);
        // spectrum block of 2
        const V t1114 = t966 + t1084;
        io.im(13, t1114);
        const V t1115 = t966 - t1084;
        io.im(10, t1115);
        // spectrum block of 2
        const V t1116 = t956 + t1074;
        io.im(18, t1116);
        const V t1117 = t956 - t1074;
        io.im(5, t1117);
        // spectrum block of 2
        const V t1118 = t976 + t1094;
        io.im(9, t1118);
        const V t1119 = t976 - t1094;
        io.im(14, t1119);
        // spectrum block of 2
        const V t1120 = t986 + t1104;
        io.im(16, t1120);
        const V t1121 = t986 - t1104;
        io.im(7, t1121);
        // spectrum block of 2
        const V t1122 = t985 + t1103;
        io.im(8, t1122);
        const V t1123 = t985 - t1103;
        io.im(15, t1123);
        // spectrum block of 2
        const V t1124 = t957 + t1075;
        io.im(4, t1124);
        const V t1125 = t957 - t1075;
        io.im(19, t1125);
        // spectrum block of 2
        const V t1126 = t968 + t1086;
        io.im(2, t1126);
        const V t1127 = t968 - t1086;
        io.im(21, t1127);
    }
};

}  // namespace zulg
