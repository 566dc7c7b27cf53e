// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 35.
// Inverse DFT to 35 real points, prime-factor 5, 7.
// 119 additions, 109 subtractions, 180 multiplications (215 with `scale`); 11 constants; 57 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<35> {
    static constexpr int steps = 443;  // with `scale`
    static constexpr double inverseRoot = 0.1690308509457033;  // 1/sqrt(35), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.30901699437494745,  // c[6]: cos 2 pi 1/5
        0.8090169943749475,  // c[7]: -cos 2 pi 2/5
        0.9510565162951535,  // c[8]: sin 2 pi 1/5
        0.5877852522924731,  // c[9]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x7r = io.re(7);
        const V t0 = two * x7r;
        // spectrum block of 5, multiplier 2
        const V t1 = c[6] * t0;
        const V t2 = c[7] * t0;
        // doubled bins
        const V x14r = io.re(14);
        const V t3 = two * x14r;
        // spectrum block of 5, multiplier 2
        const V t4 = c[7] * t3;
        const V t5 = t0 + t3;
        const V x0r = io.re(0);
        const V t6 = t5 + x0r;
        const V t7 = t1 - t4;
        const V t8 = t7 + x0r;
        const V t9 = x0r - t2;
        const V t10 = c[6] * t3;
        const V t11 = t9 + t10;
        // doubled bins
        const V x1r = io.re(1);
        const V t12 = two * x1r;
        const V x6r = io.re(6);
        const V t13 = two * x6r;
        // complex block of 5, multiplier 2
        const V t14 = t12 + t13;
        const V t15 = t12 - t13;
        // doubled bins
        const V x8r = io.re(8);
        const V t16 = two * x8r;
        const V x13r = io.re(13);
        const V t17 = two * x13r;
        // complex block of 5, multiplier 2
        const V t18 = t17 + t16;
        const V t19 = t17 - t16;
        // doubled bins
        const V x15r = io.re(15);
        const V t20 = two * x15r;
        // complex block of 5, multiplier 2
        const V t21 = t18 + t14;
        const V t22 = t21 + t20;
        const V t23 = c[6] * t18;
        const V t24 = c[7] * t14;
        const V t25 = t23 - t24;
        const V t26 = t25 + t20;
        const V t27 = c[8] * t19;
        const V t28 = c[9] * t15;
        const V t29 = t27 - t28;
        const V t30 = c[7] * t18;
        const V t31 = t20 - t30;
        const V t32 = c[6] * t14;
        const V t33 = t31 + t32;
        const V t34 = c[9] * t19;
        const V t35 = c[8] * t15;
        const V t36 = t34 + t35;
        // doubled bins
        const V x1i = io.im(1);
        const V t37 = two * x1i;
        const V x6i = io.im(6);
        const V t38 = two * x6i;
        // complex block of 5, multiplier 2
        const V t39 = t37 - t38;
        const V t40 = t37 + t38;
        // doubled bins
        const V x8i = io.im(8);
        const V t41 = two * x8i;
        const V x13i = io.im(13);
        const V t42 = two * x13i;
        // complex block of 5, multiplier 2
        const V t43 = t41 - t42;
        const V t44 = t42 + t41;
        // doubled bins
        const V x15i = io.im(15);
        const V t45 = two * x15i;
        // complex block of 5, multiplier 2
        const V t46 = t43 + t39;
        const V t47 = c[6] * t43;
        const V t48 = c[7] * t39;
        const V t49 = t47 - t48;
        const V t50 = c[8] * t44;
        const V t51 = c[9] * t40;
        const V t52 = t50 + t51;
        const V t53 = c[7] * t43;
        const V t54 = t45 - t53;
        const V t55 = c[6] * t39;
        const V t56 = c[9] * t44;
        const V t57 = c[8] * t40;
        const V t58 = t57 - t56;
        // doubled bins
        const V x2r = io.re(2);
        const V t59 = two * x2r;
        const V x12r = io.re(12);
        const V t60 = two * x12r;
        // complex block of 5, multiplier 2
        const V t61 = t60 + t59;
        const V t62 = t60 - t59;
        // doubled bins
        const V x5r = io.re(5);
        const V t63 = two * x5r;
        const V x9r = io.re(9);
        const V t64 = two * x9r;
        const V x16r = io.re(16);
        const V t65 = two * x16r;
        // complex block of 5, multiplier 2
        const V t66 = t64 + t65;
        const V t67 = t64 - t65;
        const V t68 = t61 + t66;
        const V t69 = t68 + t63;
        const V t70 = c[6] * t61;
        const V t71 = c[7] * t66;
        const V t72 = t70 - t71;
        const V t73 = t72 + t63;
        const V t74 = c[8] * t62;
        const V t75 = c[9] * t67;
        const V t76 = t74 - t75;
        const V t77 = c[7] * t61;
        const V t78 = t63 - t77;
        const V t79 = c[6] * t66;
        const V t80 = t78 + t79;
        const V t81 = c[9] * t62;
        const V t82 = c[8] * t67;
        const V t83 = t81 + t82;
        // doubled bins
        const V x2i = io.im(2);
        const V t84 = two * x2i;
        const V x12i = io.im(12);
        const V t85 = two * x12i;
        // complex block of 5, multiplier 2
        const V t86 = t85 - t84;
        const V t87 = t85 + t84;
        // doubled bins
        const V x5i = io.im(5);
        const V t88 = two * x5i;
        const V x9i = io.im(9);
        const V t89 = two * x9i;
        const V x16i = io.im(16);
        const V t90 = two * x16i;
        // complex block of 5, multiplier 2
        const V t91 = t89 + t90;
        const V t92 = t90 - t89;
        const V t93 = t86 - t91;
        const V t94 = t93 + t88;
        const V t95 = c[6] * t86;
        const V t96 = c[7] * t91;
        const V t97 = t95 + t96;
        const V t98 = t97 + t88;
        const V t99 = c[8] * t87;
        const V t100 = c[9] * t92;
        const V t101 = t99 - t100;
        const V t102 = c[7] * t86;
        const V t103 = t88 - t102;
        const V t104 = c[6] * t91;
        const V t105 = t103 - t104;
        const V t106 = c[9] * t87;
        const V t107 = c[8] * t92;
        const V t108 = t106 + t107;
        // doubled bins
        const V x3r = io.re(3);
        const V t109 = two * x3r;
        const V x17r = io.re(17);
        const V t110 = two * x17r;
        // complex block of 5, multiplier 2
        const V t111 = t110 + t109;
        const V t112 = t110 - t109;
        // doubled bins
        const V x4r = io.re(4);
        const V t113 = two * x4r;
        const V x11r = io.re(11);
        const V t114 = two * x11r;
        // complex block of 5, multiplier 2
        const V t115 = t113 + t114;
        const V t116 = t113 - t114;
        // doubled bins
        const V x10r = io.re(10);
        const V t117 = two * x10r;
        // complex block of 5, multiplier 2
        const V t118 = t111 + t115;
        const V t119 = t118 + t117;
        const V t120 = c[6] * t111;
        const V t121 = c[7] * t115;
        const V t122 = t120 - t121;
        const V t123 = t122 + t117;
        const V t124 = c[8] * t112;
        const V t125 = c[9] * t116;
        const V t126 = t124 - t125;
        const V t127 = c[7] * t111;
        const V t128 = t117 - t127;
        const V t129 = c[6] * t115;
        const V t130 = t128 + t129;
        const V t131 = c[9] * t112;
        const V t132 = c[8] * t116;
        const V t133 = t131 + t132;
        // doubled bins
        const V x3i = io.im(3);
        const V t134 = two * x3i;
        const V x17i = io.im(17);
        const V t135 = two * x17i;
        // complex block of 5, multiplier 2
        const V t136 = t135 + t134;
        const V t137 = t135 - t134;
        // doubled bins
        const V x4i = io.im(4);
        const V t138 = two * x4i;
        const V x11i = io.im(11);
        const V t139 = two * x11i;
        // complex block of 5, multiplier 2
        const V t140 = t138 + t139;
        const V t141 = t139 - t138;
        // doubled bins
        const V x10i = io.im(10);
        const V t142 = two * x10i;
        // complex block of 5, multiplier 2
        const V t143 = t136 - t140;
        const V t144 = t143 + t142;
        const V t145 = c[6] * t136;
        const V t146 = c[7] * t140;
        const V t147 = t145 + t146;
        const V t148 = t147 + t142;
        const V t149 = c[8] * t137;
        const V t150 = c[9] * t141;
        const V t151 = t149 - t150;
        const V t152 = c[7] * t136;
        const V t153 = t142 - t152;
        const V t154 = c[6] * t140;
        const V t155 = t153 - t154;
        const V t156 = c[9] * t137;
        const V t157 = c[8] * t141;
        const V t158 = t156 + t157;
        // doubled bins
        const V x7i = io.im(7);
        const V t159 = two * x7i;
        const V x14i = io.im(14);
        const V t160 = two * x14i;
        // spectrum block of 5, multiplier 2
        const V t161 = c[8] * t159;
        const V t162 = c[9] * t160;
        const V t163 = t161 + t162;
        const V t164 = c[9] * t159;
        const V t165 = c[8] * t160;
        const V t166 = t164 - t165;
        const V t167 = t8 - t163;
        // complex block of 5, multiplier 2
        const V t168 = t73 - t101;
        // spectrum block of 7, multiplier 5
        const V t169 = c[0] * t168;
        const V t170 = c[1] * t168;
        const V t171 = c[2] * t168;
        // complex block of 5, multiplier 2
        const V t172 = t123 - t151;
        // spectrum block of 7, multiplier 5
        const V t173 = c[1] * t172;
        const V t174 = t168 + t172;
        const V t175 = t169 - t173;
        const V t176 = t167 - t170;
        const V t177 = c[2] * t172;
        const V t178 = t167 - t171;
        const V t179 = c[0] * t172;
        // spectrum block of 5, multiplier 2
        const V t180 = t8 + t163;
        // complex block of 5, multiplier 2
        const V t181 = t73 + t101;
        // spectrum block of 7, multiplier 5
        const V t182 = c[0] * t181;
        const V t183 = c[1] * t181;
        const V t184 = c[2] * t181;
        // complex block of 5, multiplier 2
        const V t185 = t123 + t151;
        // spectrum block of 7, multiplier 5
        const V t186 = c[1] * t185;
        const V t187 = t181 + t185;
        const V t188 = t182 - t186;
        const V t189 = t180 - t183;
        const V t190 = c[2] * t185;
        const V t191 = t180 - t184;
        const V t192 = c[0] * t185;
        // complex block of 5, multiplier 2
        const V t193 = t98 + t76;
        // spectrum block of 7, multiplier 5
        const V t194 = c[3] * t193;
        const V t195 = c[4] * t193;
        const V t196 = c[5] * t193;
        // complex block of 5, multiplier 2
        const V t197 = t148 + t126;
        // spectrum block of 7, multiplier 5
        const V t198 = c[4] * t197;
        const V t199 = c[5] * t197;
        const V t200 = c[3] * t197;
        const V t201 = t194 + t198;
        const V t202 = t195 - t199;
        const V t203 = t196 - t200;
        // complex block of 5, multiplier 2
        const V t204 = t98 - t76;
        // spectrum block of 7, multiplier 5
        const V t205 = c[3] * t204;
        const V t206 = c[4] * t204;
        const V t207 = c[5] * t204;
        // complex block of 5, multiplier 2
        const V t208 = t148 - t126;
        // spectrum block of 7, multiplier 5
        const V t209 = c[4] * t208;
        const V t210 = c[5] * t208;
        const V t211 = c[3] * t208;
        const V t212 = t205 + t209;
        const V t213 = t206 - t210;
        const V t214 = t207 - t211;
        // complex block of 5, multiplier 2
        const V t215 = t49 + t45;
        const V t216 = t215 + t29;
        const V t217 = t215 - t29;
        // spectrum block of 7, multiplier 5
        const V t218 = c[5] * t217;
        const V t219 = c[3] * t217;
        const V t220 = c[4] * t217;
        // spectrum block of 7, multiplier 5
        const V t221 = c[5] * t216;
        const V t222 = c[3] * t216;
        const V t223 = c[4] * t216;
        // complex block of 5, multiplier 2
        const V t224 = t26 + t52;
        // spectrum block of 7, multiplier 5
        const V t225 = c[2] * t224;
        const V t226 = c[0] * t224;
        const V t227 = c[1] * t224;
        // complex block of 5, multiplier 2
        const V t228 = t26 - t52;
        // spectrum block of 7, multiplier 5
        const V t229 = c[2] * t228;
        const V t230 = c[0] * t228;
        const V t231 = c[1] * t228;
        const V t232 = t187 + t228;
        const V t233 = t232 + t180;
        io.out(14, t233);
        const V t234 = t188 - t229;
        const V t235 = t234 + t180;
        const V t236 = t212 + t218;
        const V t237 = t235 - t236;
        io.out(29, t237);
        const V t238 = t235 + t236;
        io.out(34, t238);
        const V t239 = t189 - t190;
        const V t240 = t239 + t230;
        const V t241 = t213 - t219;
        const V t242 = t240 - t241;
        io.out(9, t242);
        const V t243 = t240 + t241;
        io.out(19, t243);
        const V t244 = t191 + t192;
        const V t245 = t244 - t231;
        const V t246 = t214 + t220;
        const V t247 = t245 - t246;
        io.out(24, t247);
        const V t248 = t245 + t246;
        io.out(4, t248);
        // spectrum block of 7, multiplier 5
        const V t249 = t174 + t224;
        const V t250 = t249 + t167;
        io.out(21, t250);
        const V t251 = t175 - t225;
        const V t252 = t251 + t167;
        const V t253 = t201 + t221;
        const V t254 = t252 - t253;
        io.out(1, t254);
        const V t255 = t252 + t253;
        io.out(6, t255);
        const V t256 = t176 - t177;
        const V t257 = t256 + t226;
        const V t258 = t202 - t222;
        const V t259 = t257 - t258;
        io.out(16, t259);
        const V t260 = t257 + t258;
        io.out(26, t260);
        const V t261 = t178 + t179;
        const V t262 = t261 - t227;
        const V t263 = t203 + t223;
        const V t264 = t262 - t263;
        io.out(31, t264);
        const V t265 = t262 + t263;
        io.out(11, t265);
        // spectrum block of 5, multiplier 2
        const V t266 = t11 - t166;
        // complex block of 5, multiplier 2
        const V t267 = t80 - t108;
        // spectrum block of 7, multiplier 5
        const V t268 = c[0] * t267;
        const V t269 = c[1] * t267;
        const V t270 = c[2] * t267;
        // complex block of 5, multiplier 2
        const V t271 = t130 - t158;
        // spectrum block of 7, multiplier 5
        const V t272 = c[1] * t271;
        const V t273 = t267 + t271;
        const V t274 = t268 - t272;
        const V t275 = t266 - t269;
        const V t276 = c[2] * t271;
        const V t277 = t266 - t270;
        const V t278 = c[0] * t271;
        // spectrum block of 5, multiplier 2
        const V t279 = t11 + t166;
        // complex block of 5, multiplier 2
        const V t280 = t80 + t108;
        // spectrum block of 7, multiplier 5
        const V t281 = c[0] * t280;
        const V t282 = c[1] * t280;
        const V t283 = c[2] * t280;
        // complex block of 5, multiplier 2
        const V t284 = t130 + t158;
        // spectrum block of 7, multiplier 5
        const V t285 = c[1] * t284;
        const V t286 = t280 + t284;
        const V t287 = t281 - t285;
        const V t288 = t279 - t282;
        const V t289 = c[2] * t284;
        const V t290 = t279 - t283;
        const V t291 = c[0] * t284;
        // complex block of 5, multiplier 2
        const V t292 = t105 + t83;
        // spectrum block of 7, multiplier 5
        const V t293 = c[3] * t292;
        const V t294 = c[4] * t292;
        const V t295 = c[5] * t292;
        // complex block of 5, multiplier 2
        const V t296 = t155 + t133;
        // spectrum block of 7, multiplier 5
        const V t297 = c[4] * t296;
        const V t298 = c[5] * t296;
        const V t299 = c[3] * t296;
        const V t300 = t293 + t297;
        const V t301 = t294 - t298;
        const V t302 = t295 - t299;
        // complex block of 5, multiplier 2
        const V t303 = t105 - t83;
        // spectrum block of 7, multiplier 5
        const V t304 = c[3] * t303;
        const V t305 = c[4] * t303;
        const V t306 = c[5] * t303;
        // complex block of 5, multiplier 2
        const V t307 = t155 - t133;
        // spectrum block of 7, multiplier 5
        const V t308 = c[4] * t307;
        const V t309 = c[5] * t307;
        const V t310 = c[3] * t307;
        const V t311 = t304 + t308;
        const V t312 = t305 - t309;
        const V t313 = t306 - t310;
        // complex block of 5, multiplier 2
        const V t314 = t54 + t55;
        const V t315 = t314 + t36;
        const V t316 = t314 - t36;
        // spectrum block of 7, multiplier 5
        const V t317 = c[5] * t315;
        const V t318 = c[3] * t315;
        const V t319 = c[4] * t315;
        // spectrum block of 7, multiplier 5
        const V t320 = c[5] * t316;
        const V t321 = c[3] * t316;
        const V t322 = c[4] * t316;
        // complex block of 5, multiplier 2
        const V t323 = t33 - t58;
        // spectrum block of 7, multiplier 5
        const V t324 = c[2] * t323;
        const V t325 = c[0] * t323;
        const V t326 = c[1] * t323;
        // complex block of 5, multiplier 2
        const V t327 = t33 + t58;
        // spectrum block of 7, multiplier 5
        const V t328 = c[2] * t327;
        const V t329 = c[0] * t327;
        const V t330 = c[1] * t327;
        // spectrum block of 7, multiplier 5
        const V t331 = t273 + t323;
        const V t332 = t331 + t266;
        io.out(7, t332);
        const V t333 = t274 - t324;
        const V t334 = t333 + t266;
        const V t335 = t300 + t317;
        const V t336 = t334 - t335;
        io.out(22, t336);
        const V t337 = t334 + t335;
        io.out(27, t337);
        const V t338 = t275 - t276;
        const V t339 = t338 + t325;
        const V t340 = t301 - t318;
        const V t341 = t339 - t340;
        io.out(2, t341);
        const V t342 = t339 + t340;
        io.out(12, t342);
        const V t343 = t277 + t278;
        const V t344 = t343 - t326;
        const V t345 = t302 + t319;
        const V t346 = t344 - t345;
        io.out(17, t346);
        const V t347 = t344 + t345;
        io.out(32, t347);
        // spectrum block of 7, multiplier 5
        const V t348 = t286 + t327;
        const V t349 = t348 + t279;
        io.out(28, t349);
        const V t350 = t287 - t328;
        const V t351 = t350 + t279;
        const V t352 = t311 + t320;
        const V t353 = t351 - t352;
        io.out(8, t353);
        const V t354 = t351 + t352;
        io.out(13, t354);
        const V t355 = t288 - t289;
        const V t356 = t355 + t329;
        const V t357 = t312 - t321;
        const V t358 = t356 - t357;
        io.out(23, t358);
        const V t359 = t356 + t357;
        io.out(33, t359);
        const V t360 = t290 + t291;
        const V t361 = t360 - t330;
        const V t362 = t313 + t322;
        const V t363 = t361 - t362;
        io.out(3, t363);
        const V t364 = t361 + t362;
        io.out(18, t364);
        // complex block of 5, multiplier 2
        const V t365 = t46 + t45;
        // spectrum block of 7, multiplier 5
        const V t366 = c[5] * t365;
        const V t367 = c[3] * t365;
        const V t368 = c[4] * t365;
        const V t369 = c[0] * t69;
        const V t370 = c[1] * t119;
        const V t371 = t369 - t370;
        const V t372 = c[2] * t22;
        const V t373 = t371 - t372;
        const V t374 = c[3] * t94;
        const V t375 = c[4] * t144;
        const V t376 = t374 + t375;
        const V t377 = c[1] * t69;
        const V t378 = t6 - t377;
        const V t379 = c[2] * t119;
        const V t380 = t378 - t379;
        const V t381 = c[0] * t22;
        const V t382 = c[4] * t94;
        const V t383 = c[5] * t144;
        const V t384 = t382 - t383;
        const V t385 = c[2] * t69;
        const V t386 = t6 - t385;
        const V t387 = c[0] * t119;
        const V t388 = t386 + t387;
        const V t389 = c[1] * t22;
        const V t390 = c[5] * t94;
        const V t391 = c[3] * t144;
        const V t392 = t390 - t391;
        const V t393 = t373 + t6;
        const V t394 = t376 + t366;
        const V t395 = t393 - t394;
        io.out(15, t395);
        const V t396 = t393 + t394;
        io.out(20, t396);
        const V t397 = t380 + t381;
        const V t398 = t384 - t367;
        const V t399 = t397 - t398;
        io.out(30, t399);
        const V t400 = t397 + t398;
        io.out(5, t400);
        const V t401 = t388 - t389;
        const V t402 = t392 + t368;
        const V t403 = t401 - t402;
        io.out(10, t403);
        const V t404 = t401 + t402;
        io.out(25, t404);
        const V t405 = t69 + t119;
        const V t406 = t405 + t22;
        const V t407 = t406 + t6;
        io.out(0, t407);
    }
};

}  // namespace zulg
