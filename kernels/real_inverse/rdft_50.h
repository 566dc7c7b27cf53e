// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 50.
// Inverse DFT to 50 real points, prime-factor 25, 2.
// 187 additions, 167 subtractions, 272 multiplications (322 with `scale`); 17 constants; 61 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<50> {
    static constexpr int steps = 676;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.8443279255020151,  // c[4]: -sin 2 pi 21/25
        0.5358267949789967,  // c[5]: cos 2 pi 21/25
        0.9048270524660196,  // c[6]: -sin 2 pi 17/25
        0.42577929156507266,  // c[7]: -cos 2 pi 17/25
        0.9980267284282716,  // c[8]: -sin 2 pi 19/25
        0.06279051952931337,  // c[9]: cos 2 pi 19/25
        0.12533323356430426,  // c[10]: -sin 2 pi 13/25
        0.9921147013144779,  // c[11]: -cos 2 pi 13/25
        0.48175367410171527,  // c[12]: -sin 2 pi 23/25
        0.8763066800438636,  // c[13]: cos 2 pi 23/25
        0.7705132427757893,  // c[14]: sin 2 pi 9/25
        0.6374239897486897,  // c[15]: -cos 2 pi 9/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x10r = io.re(10);
        const V t0 = two * x10r;
        // spectrum block of 5, multiplier 2
        const V t1 = c[0] * t0;
        const V t2 = c[1] * t0;
        // doubled bins
        const V x20r = io.re(20);
        const V t3 = two * x20r;
        // spectrum block of 5, multiplier 2
        const V t4 = c[1] * t3;
        const V t5 = t0 + t3;
        const V x0r = io.re(0);
        const V t6 = t5 + x0r;
        const V t7 = t1 - t4;
        const V t8 = t7 + x0r;
        const V t9 = x0r - t2;
        const V t10 = c[0] * t3;
        const V t11 = t9 + t10;
        // doubled bins
        const V x1r = io.re(1);
        const V t12 = two * x1r;
        const V x9r = io.re(9);
        const V t13 = two * x9r;
        // complex block of 5, multiplier 2
        const V t14 = t13 + t12;
        const V t15 = c[1] * t14;
        const V t16 = t13 - t12;
        // doubled bins
        const V x1i = io.im(1);
        const V t17 = two * x1i;
        const V x9i = io.im(9);
        const V t18 = two * x9i;
        // complex block of 5, multiplier 2
        const V t19 = t18 - t17;
        const V t20 = c[1] * t19;
        const V t21 = t18 + t17;
        // doubled bins
        const V x11r = io.re(11);
        const V t22 = two * x11r;
        const V x19r = io.re(19);
        const V t23 = two * x19r;
        // complex block of 5, multiplier 2
        const V t24 = t22 + t23;
        const V t25 = c[0] * t24;
        const V t26 = c[1] * t24;
        const V t27 = t22 - t23;
        // doubled bins
        const V x11i = io.im(11);
        const V t28 = two * x11i;
        const V x19i = io.im(19);
        const V t29 = two * x19i;
        // complex block of 5, multiplier 2
        const V t30 = t29 - t28;
        const V t31 = c[0] * t30;
        const V t32 = c[1] * t30;
        const V t33 = t28 + t29;
        // doubled bins
        const V x21r = io.re(21);
        const V t34 = two * x21r;
        const V x21i = io.im(21);
        const V t35 = two * x21i;
        // complex block of 5, multiplier 2
        const V t36 = t30 + t19;
        const V t37 = t36 - t35;
        const V t38 = t24 + t14;
        const V t39 = t38 + t34;
        const V t40 = t31 - t20;
        const V t41 = t40 - t35;
        const V t42 = c[2] * t27;
        const V t43 = c[3] * t16;
        const V t44 = t42 - t43;
        const V t45 = t41 + t44;
        const V t46 = t41 - t44;
        const V t47 = t25 - t15;
        const V t48 = t47 + t34;
        const V t49 = c[2] * t33;
        const V t50 = c[3] * t21;
        const V t51 = t49 + t50;
        const V t52 = t48 + t51;
        const V t53 = t48 - t51;
        const V t54 = t35 + t32;
        const V t55 = c[0] * t19;
        const V t56 = t55 - t54;
        const V t57 = c[3] * t27;
        const V t58 = c[2] * t16;
        const V t59 = t57 + t58;
        const V t60 = t56 + t59;
        const V t61 = t56 - t59;
        const V t62 = t34 - t26;
        const V t63 = c[0] * t14;
        const V t64 = t62 + t63;
        const V t65 = c[3] * t33;
        const V t66 = c[2] * t21;
        const V t67 = t66 - t65;
        const V t68 = t64 - t67;
        const V t69 = t64 + t67;
        // doubled bins
        const V x2r = io.re(2);
        const V t70 = two * x2r;
        const V x2i = io.im(2);
        const V t71 = two * x2i;
        const V x8r = io.re(8);
        const V t72 = two * x8r;
        const V x12r = io.re(12);
        const V t73 = two * x12r;
        // complex block of 5, multiplier 2
        const V t74 = t73 + t72;
        const V t75 = c[0] * t74;
        const V t76 = c[1] * t74;
        const V t77 = t73 - t72;
        // doubled bins
        const V x8i = io.im(8);
        const V t78 = two * x8i;
        const V x12i = io.im(12);
        const V t79 = two * x12i;
        // complex block of 5, multiplier 2
        const V t80 = t79 - t78;
        const V t81 = c[0] * t80;
        const V t82 = c[1] * t80;
        const V t83 = t79 + t78;
        // doubled bins
        const V x18r = io.re(18);
        const V t84 = two * x18r;
        const V x22r = io.re(22);
        const V t85 = two * x22r;
        // complex block of 5, multiplier 2
        const V t86 = t84 + t85;
        const V t87 = c[1] * t86;
        const V t88 = t84 - t85;
        // doubled bins
        const V x18i = io.im(18);
        const V t89 = two * x18i;
        const V x22i = io.im(22);
        const V t90 = two * x22i;
        // complex block of 5, multiplier 2
        const V t91 = t90 - t89;
        const V t92 = c[1] * t91;
        const V t93 = t89 + t90;
        const V t94 = t80 + t91;
        const V t95 = t94 + t71;
        const V t96 = t74 + t86;
        const V t97 = t96 + t70;
        const V t98 = t81 - t92;
        const V t99 = t98 + t71;
        const V t100 = c[2] * t77;
        const V t101 = c[3] * t88;
        const V t102 = t100 - t101;
        const V t103 = t99 + t102;
        const V t104 = t99 - t102;
        const V t105 = t75 - t87;
        const V t106 = t105 + t70;
        const V t107 = c[2] * t83;
        const V t108 = c[3] * t93;
        const V t109 = t107 + t108;
        const V t110 = t106 - t109;
        const V t111 = t106 + t109;
        const V t112 = t71 - t82;
        const V t113 = c[0] * t91;
        const V t114 = t112 + t113;
        const V t115 = c[3] * t77;
        const V t116 = c[2] * t88;
        const V t117 = t115 + t116;
        const V t118 = t114 + t117;
        const V t119 = t114 - t117;
        const V t120 = t70 - t76;
        const V t121 = c[0] * t86;
        const V t122 = t120 + t121;
        const V t123 = c[3] * t83;
        const V t124 = c[2] * t93;
        const V t125 = t123 - t124;
        const V t126 = t122 - t125;
        const V t127 = t122 + t125;
        // doubled bins
        const V x3r = io.re(3);
        const V t128 = two * x3r;
        const V x7r = io.re(7);
        const V t129 = two * x7r;
        // complex block of 5, multiplier 2
        const V t130 = t129 + t128;
        const V t131 = c[1] * t130;
        const V t132 = t129 - t128;
        // doubled bins
        const V x3i = io.im(3);
        const V t133 = two * x3i;
        const V x7i = io.im(7);
        const V t134 = two * x7i;
        // complex block of 5, multiplier 2
        const V t135 = t134 - t133;
        const V t136 = c[1] * t135;
        const V t137 = t134 + t133;
        // doubled bins
        const V x13r = io.re(13);
        const V t138 = two * x13r;
        const V x17r = io.re(17);
        const V t139 = two * x17r;
        // complex block of 5, multiplier 2
        const V t140 = t138 + t139;
        const V t141 = c[0] * t140;
        const V t142 = c[1] * t140;
        const V t143 = t138 - t139;
        // doubled bins
        const V x13i = io.im(13);
        const V t144 = two * x13i;
        const V x17i = io.im(17);
        const V t145 = two * x17i;
        // complex block of 5, multiplier 2
        const V t146 = t145 - t144;
        const V t147 = c[0] * t146;
        const V t148 = c[1] * t146;
        const V t149 = t144 + t145;
        // doubled bins
        const V x23r = io.re(23);
        const V t150 = two * x23r;
        const V x23i = io.im(23);
        const V t151 = two * x23i;
        // complex block of 5, multiplier 2
        const V t152 = t146 + t135;
        const V t153 = t152 - t151;
        const V t154 = t140 + t130;
        const V t155 = t154 + t150;
        const V t156 = t147 - t136;
        const V t157 = t156 - t151;
        const V t158 = c[2] * t143;
        const V t159 = c[3] * t132;
        const V t160 = t158 - t159;
        const V t161 = t157 + t160;
        const V t162 = t157 - t160;
        const V t163 = t141 - t131;
        const V t164 = t163 + t150;
        const V t165 = c[2] * t149;
        const V t166 = c[3] * t137;
        const V t167 = t165 + t166;
        const V t168 = t164 + t167;
        const V t169 = t164 - t167;
        const V t170 = t151 + t148;
        const V t171 = c[0] * t135;
        const V t172 = t171 - t170;
        const V t173 = c[3] * t143;
        const V t174 = c[2] * t132;
        const V t175 = t173 + t174;
        const V t176 = t172 + t175;
        const V t177 = t172 - t175;
        const V t178 = t150 - t142;
        const V t179 = c[0] * t130;
        const V t180 = t178 + t179;
        const V t181 = c[3] * t149;
        const V t182 = c[2] * t137;
        const V t183 = t182 - t181;
        const V t184 = t180 - t183;
        const V t185 = t180 + t183;
        // doubled bins
        const V x4r = io.re(4);
        const V t186 = two * x4r;
        const V x4i = io.im(4);
        const V t187 = two * x4i;
        const V x6r = io.re(6);
        const V t188 = two * x6r;
        const V x14r = io.re(14);
        const V t189 = two * x14r;
        // complex block of 5, multiplier 2
        const V t190 = t189 + t188;
        const V t191 = c[0] * t190;
        const V t192 = c[1] * t190;
        const V t193 = t189 - t188;
        // doubled bins
        const V x6i = io.im(6);
        const V t194 = two * x6i;
        const V x14i = io.im(14);
        const V t195 = two * x14i;
        // complex block of 5, multiplier 2
        const V t196 = t195 - t194;
        const V t197 = c[0] * t196;
        const V t198 = c[1] * t196;
        const V t199 = t195 + t194;
        // doubled bins
        const V x16r = io.re(16);
        const V t200 = two * x16r;
        const V x24r = io.re(24);
        const V t201 = two * x24r;
        // complex block of 5, multiplier 2
        const V t202 = t200 + t201;
        const V t203 = c[1] * t202;
        const V t204 = t200 - t201;
        // doubled bins
        const V x16i = io.im(16);
        const V t205 = two * x16i;
        const V x24i = io.im(24);
        const V t206 = two * x24i;
        // complex block of 5, multiplier 2
        const V t207 = t206 - t205;
        const V t208 = c[1] * t207;
        const V t209 = t205 + t206;
        const V t210 = t196 + t207;
        const V t211 = t210 + t187;
        const V t212 = t190 + t202;
        const V t213 = t212 + t186;
        const V t214 = t197 - t208;
        const V t215 = t214 + t187;
        const V t216 = c[2] * t193;
        const V t217 = c[3] * t204;
        const V t218 = t216 - t217;
        const V t219 = t215 + t218;
        const V t220 = t215 - t218;
        const V t221 = t191 - t203;
        const V t222 = t221 + t186;
        const V t223 = c[2] * t199;
        const V t224 = c[3] * t209;
        const V t225 = t223 + t224;
        const V t226 = t222 - t225;
        const V t227 = t222 + t225;
        const V t228 = t187 - t198;
        const V t229 = c[0] * t207;
        const V t230 = t228 + t229;
        const V t231 = c[3] * t193;
        const V t232 = c[2] * t204;
        const V t233 = t231 + t232;
        const V t234 = t230 + t233;
        const V t235 = t230 - t233;
        const V t236 = t186 - t192;
        const V t237 = c[0] * t202;
        const V t238 = t236 + t237;
        const V t239 = c[3] * t199;
        const V t240 = c[2] * t209;
        const V t241 = t239 - t240;
        const V t242 = t238 - t241;
        const V t243 = t238 + t241;
        // doubled bins
        const V x5r = io.re(5);
        const V t244 = two * x5r;
        // spectrum block of 5, multiplier 2
        const V t245 = c[1] * t244;
        // doubled bins
        const V x15r = io.re(15);
        const V t246 = two * x15r;
        // spectrum block of 5, multiplier 2
        const V t247 = c[0] * t246;
        const V t248 = c[1] * t246;
        const V t249 = t246 + t244;
        const V x25r = io.re(25);
        const V t250 = t249 + x25r;
        const V t251 = t247 - t245;
        const V t252 = t251 + x25r;
        const V t253 = x25r - t248;
        const V t254 = c[0] * t244;
        const V t255 = t253 + t254;
        // doubled bins
        const V x5i = io.im(5);
        const V t256 = two * x5i;
        const V x15i = io.im(15);
        const V t257 = two * x15i;
        // spectrum block of 5, multiplier 2
        const V t258 = c[2] * t257;
        const V t259 = c[3] * t256;
        const V t260 = t258 + t259;
        const V t261 = c[3] * t257;
        const V t262 = c[2] * t256;
        const V t263 = t262 - t261;
        // doubled bins
        const V x10i = io.im(10);
        const V t264 = two * x10i;
        const V x20i = io.im(20);
        const V t265 = two * x20i;
        // spectrum block of 5, multiplier 2
        const V t266 = c[2] * t264;
        const V t267 = c[3] * t265;
        const V t268 = t266 + t267;
        const V t269 = c[3] * t264;
        const V t270 = c[2] * t265;
        const V t271 = t269 - t270;
        const V t272 = t8 - t268;
        // spectrum block of 25, multiplier 2
        const V t273 = c[8] * t103;
        const V t274 = c[9] * t110;
        const V t275 = t274 - t273;
        const V t276 = c[10] * t219;
        const V t277 = c[11] * t226;
        const V t278 = t277 + t276;
        // spectrum block of 5, multiplier 2
        const V t279 = t275 - t278;
        const V t280 = c[0] * t275;
        const V t281 = c[1] * t278;
        const V t282 = t280 + t281;
        const V t283 = c[1] * t275;
        const V t284 = t272 - t283;
        const V t285 = c[0] * t278;
        // spectrum block of 25, multiplier 2
        const V t286 = c[8] * t110;
        const V t287 = c[9] * t103;
        const V t288 = t287 + t286;
        // spectrum block of 5, multiplier 2
        const V t289 = c[2] * t288;
        const V t290 = c[3] * t288;
        // spectrum block of 25, multiplier 2
        const V t291 = c[10] * t226;
        const V t292 = c[11] * t219;
        const V t293 = t291 - t292;
        // spectrum block of 5, multiplier 2
        const V t294 = c[3] * t293;
        const V t295 = c[2] * t293;
        // spectrum block of 5, multiplier 2
        const V t296 = t252 + t260;
        // spectrum block of 25, multiplier 2
        const V t297 = c[8] * t161;
        const V t298 = c[9] * t168;
        const V t299 = t298 - t297;
        const V t300 = c[10] * t45;
        const V t301 = c[11] * t52;
        const V t302 = t301 + t300;
        // spectrum block of 5, multiplier 2
        const V t303 = t299 - t302;
        const V t304 = c[0] * t299;
        const V t305 = c[1] * t302;
        const V t306 = t304 + t305;
        const V t307 = c[1] * t299;
        const V t308 = t296 - t307;
        const V t309 = c[0] * t302;
        // spectrum block of 25, multiplier 2
        const V t310 = c[8] * t168;
        const V t311 = c[9] * t161;
        const V t312 = t311 + t310;
        // spectrum block of 5, multiplier 2
        const V t313 = c[2] * t312;
        const V t314 = c[3] * t312;
        // spectrum block of 25, multiplier 2
        const V t315 = c[10] * t52;
        const V t316 = c[11] * t45;
        const V t317 = t315 - t316;
        // spectrum block of 5, multiplier 2
        const V t318 = c[3] * t317;
        const V t319 = c[2] * t317;
        // spectrum block of 5, multiplier 2
        const V t320 = t279 + t272;
        // spectrum block of 5, multiplier 2
        const V t321 = t303 + t296;
        // spectrum block of 2
        const V t322 = t320 + t321;
        io.out(6, t322);
        const V t323 = t320 - t321;
        io.out(31, t323);
        // spectrum block of 5, multiplier 2
        const V t324 = t282 + t272;
        const V t325 = t289 + t294;
        const V t326 = t324 - t325;
        const V t327 = t324 + t325;
        // spectrum block of 5, multiplier 2
        const V t328 = t306 + t296;
        const V t329 = t313 + t318;
        const V t330 = t328 - t329;
        const V t331 = t328 + t329;
        // spectrum block of 2
        const V t332 = t327 + t331;
        io.out(26, t332);
        const V t333 = t327 - t331;
        io.out(1, t333);
        // spectrum block of 2
        const V t334 = t326 + t330;
        io.out(36, t334);
        const V t335 = t326 - t330;
        io.out(11, t335);
        // spectrum block of 5, multiplier 2
        const V t336 = t284 - t285;
        const V t337 = t290 - t295;
        const V t338 = t336 - t337;
        const V t339 = t336 + t337;
        // spectrum block of 5, multiplier 2
        const V t340 = t308 - t309;
        const V t341 = t314 - t319;
        const V t342 = t340 - t341;
        const V t343 = t340 + t341;
        // spectrum block of 2
        const V t344 = t338 + t342;
        io.out(16, t344);
        const V t345 = t338 - t342;
        io.out(41, t345);
        // spectrum block of 2
        const V t346 = t339 + t343;
        io.out(46, t346);
        const V t347 = t339 - t343;
        io.out(21, t347);
        // spectrum block of 5, multiplier 2
        const V t348 = t8 + t268;
        // spectrum block of 25, multiplier 2
        const V t349 = c[4] * t104;
        const V t350 = c[5] * t111;
        const V t351 = t350 - t349;
        const V t352 = c[6] * t220;
        const V t353 = c[7] * t227;
        const V t354 = t353 + t352;
        // spectrum block of 5, multiplier 2
        const V t355 = t351 - t354;
        const V t356 = c[0] * t351;
        const V t357 = c[1] * t354;
        const V t358 = t356 + t357;
        const V t359 = c[1] * t351;
        const V t360 = t348 - t359;
        const V t361 = c[0] * t354;
        // spectrum block of 25, multiplier 2
        const V t362 = c[4] * t111;
        const V t363 = c[5] * t104;
        const V t364 = t363 + t362;
        // spectrum block of 5, multiplier 2
        const V t365 = c[2] * t364;
        const V t366 = c[3] * t364;
        // spectrum block of 25, multiplier 2
        const V t367 = c[6] * t227;
        const V t368 = c[7] * t220;
        const V t369 = t367 - t368;
        // spectrum block of 5, multiplier 2
        const V t370 = c[3] * t369;
        const V t371 = c[2] * t369;
        // spectrum block of 5, multiplier 2
        const V t372 = t252 - t260;
        // spectrum block of 25, multiplier 2
        const V t373 = c[4] * t162;
        const V t374 = c[5] * t169;
        const V t375 = t374 - t373;
        const V t376 = c[6] * t46;
        const V t377 = c[7] * t53;
        const V t378 = t377 + t376;
        // spectrum block of 5, multiplier 2
        const V t379 = t375 - t378;
        const V t380 = c[0] * t375;
        const V t381 = c[1] * t378;
        const V t382 = t380 + t381;
        const V t383 = c[1] * t375;
        const V t384 = t372 - t383;
        const V t385 = c[0] * t378;
        // spectrum block of 25, multiplier 2
        const V t386 = c[4] * t169;
        const V t387 = c[5] * t162;
        const V t388 = t387 + t386;
        // spectrum block of 5, multiplier 2
        const V t389 = c[2] * t388;
        const V t390 = c[3] * t388;
        // spectrum block of 25, multiplier 2
        const V t391 = c[6] * t53;
        const V t392 = c[7] * t46;
        const V t393 = t391 - t392;
        // spectrum block of 5, multiplier 2
        const V t394 = c[3] * t393;
        const V t395 = c[2] * t393;
        // spectrum block of 5, multiplier 2
        const V t396 = t355 + t348;
        // spectrum block of 5, multiplier 2
        const V t397 = t379 + t372;
        // spectrum block of 2
        const V t398 = t396 + t397;
        io.out(4, t398);
        const V t399 = t396 - t397;
        io.out(29, t399);
        // spectrum block of 5, multiplier 2
        const V t400 = t358 + t348;
        const V t401 = t365 + t370;
        const V t402 = t400 - t401;
        const V t403 = t400 + t401;
        // spectrum block of 5, multiplier 2
        const V t404 = t382 + t372;
        const V t405 = t389 + t394;
        const V t406 = t404 - t405;
        const V t407 = t404 + t405;
        // spectrum block of 2
        const V t408 = t403 + t407;
        io.out(24, t408);
        const V t409 = t403 - t407;
        io.out(49, t409);
        // spectrum block of 2
        const V t410 = t402 + t406;
        io.out(34, t410);
        const V t411 = t402 - t406;
        io.out(9, t411);
        // spectrum block of 5, multiplier 2
        const V t412 = t360 - t361;
        const V t413 = t366 - t371;
        const V t414 = t412 - t413;
        const V t415 = t412 + t413;
        // spectrum block of 5, multiplier 2
        const V t416 = t384 - t385;
        const V t417 = t390 - t395;
        const V t418 = t416 - t417;
        const V t419 = t416 + t417;
        // spectrum block of 2
        const V t420 = t414 + t418;
        io.out(14, t420);
        const V t421 = t414 - t418;
        io.out(39, t421);
        // spectrum block of 2
        const V t422 = t415 + t419;
        io.out(44, t422);
        const V t423 = t415 - t419;
        io.out(19, t423);
        // spectrum block of 5, multiplier 2
        const V t424 = t11 - t271;
        // spectrum block of 25, multiplier 2
        const V t425 = c[12] * t118;
        const V t426 = c[13] * t126;
        const V t427 = t426 - t425;
        const V t428 = c[4] * t234;
        const V t429 = c[5] * t242;
        const V t430 = t429 - t428;
        // spectrum block of 5, multiplier 2
        const V t431 = t427 + t430;
        const V t432 = c[0] * t427;
        const V t433 = c[1] * t430;
        const V t434 = t432 - t433;
        const V t435 = c[1] * t427;
        const V t436 = t424 - t435;
        const V t437 = c[0] * t430;
        // spectrum block of 25, multiplier 2
        const V t438 = c[12] * t126;
        const V t439 = c[13] * t118;
        const V t440 = t439 + t438;
        // spectrum block of 5, multiplier 2
        const V t441 = c[2] * t440;
        const V t442 = c[3] * t440;
        // spectrum block of 25, multiplier 2
        const V t443 = c[4] * t242;
        const V t444 = c[5] * t234;
        const V t445 = t444 + t443;
        // spectrum block of 5, multiplier 2
        const V t446 = c[3] * t445;
        const V t447 = c[2] * t445;
        // spectrum block of 5, multiplier 2
        const V t448 = t255 - t263;
        // spectrum block of 25, multiplier 2
        const V t449 = c[12] * t176;
        const V t450 = c[13] * t184;
        const V t451 = t450 - t449;
        const V t452 = c[4] * t60;
        const V t453 = c[5] * t68;
        const V t454 = t453 - t452;
        // spectrum block of 5, multiplier 2
        const V t455 = t451 + t454;
        const V t456 = c[0] * t451;
        const V t457 = c[1] * t454;
        const V t458 = t456 - t457;
        const V t459 = c[1] * t451;
        const V t460 = t448 - t459;
        const V t461 = c[0] * t454;
        // spectrum block of 25, multiplier 2
        const V t462 = c[12] * t184;
        const V t463 = c[13] * t176;
        const V t464 = t463 + t462;
        // spectrum block of 5, multiplier 2
        const V t465 = c[2] * t464;
        const V t466 = c[3] * t464;
        // spectrum block of 25, multiplier 2
        const V t467 = c[4] * t68;
        const V t468 = c[5] * t60;
        const V t469 = t468 + t467;
        // spectrum block of 5, multiplier 2
        const V t470 = c[3] * t469;
        const V t471 = c[2] * t469;
        // spectrum block of 5, multiplier 2
        const V t472 = t431 + t424;
        // spectrum block of 5, multiplier 2
        const V t473 = t455 + t448;
        // spectrum block of 2
        const V t474 = t472 + t473;
        io.out(2, t474);
        const V t475 = t472 - t473;
        io.out(27, t475);
        // spectrum block of 5, multiplier 2
        const V t476 = t434 + t424;
        const V t477 = t441 + t446;
        const V t478 = t476 - t477;
        const V t479 = t476 + t477;
        // spectrum block of 5, multiplier 2
        const V t480 = t458 + t448;
        const V t481 = t465 + t470;
        const V t482 = t480 - t481;
        const V t483 = t480 + t481;
        // spectrum block of 2
        const V t484 = t479 + t483;
        io.out(22, t484);
        const V t485 = t479 - t483;
        io.out(47, t485);
        // spectrum block of 2
        const V t486 = t478 + t482;
        io.out(32, t486);
        const V t487 = t478 - t482;
        io.out(7, t487);
        // spectrum block of 5, multiplier 2
        const V t488 = t436 + t437;
        const V t489 = t442 - t447;
        const V t490 = t488 - t489;
        const V t491 = t488 + t489;
        // spectrum block of 5, multiplier 2
        const V t492 = t460 + t461;
        const V t493 = t466 - t471;
        const V t494 = t492 - t493;
        const V t495 = t492 + t493;
        // spectrum block of 2
        const V t496 = t490 + t494;
        io.out(12, t496);
        const V t497 = t490 - t494;
        io.out(37, t497);
        // spectrum block of 2
        const V t498 = t491 + t495;
        io.out(42, t498);
        const V t499 = t491 - t495;
        io.out(17, t499);
        // spectrum block of 5, multiplier 2
        const V t500 = t11 + t271;
        // spectrum block of 25, multiplier 2
        const V t501 = c[6] * t119;
        const V t502 = c[7] * t127;
        const V t503 = t502 + t501;
        const V t504 = c[14] * t235;
        const V t505 = c[15] * t243;
        const V t506 = t504 - t505;
        // spectrum block of 5, multiplier 2
        const V t507 = t506 - t503;
        const V t508 = c[0] * t503;
        const V t509 = t500 - t508;
        const V t510 = c[1] * t506;
        const V t511 = c[1] * t503;
        const V t512 = c[0] * t506;
        const V t513 = t511 + t512;
        // spectrum block of 25, multiplier 2
        const V t514 = c[6] * t127;
        const V t515 = c[7] * t119;
        const V t516 = t514 - t515;
        // spectrum block of 5, multiplier 2
        const V t517 = c[2] * t516;
        const V t518 = c[3] * t516;
        // spectrum block of 25, multiplier 2
        const V t519 = c[14] * t243;
        const V t520 = c[15] * t235;
        const V t521 = t520 + t519;
        // spectrum block of 5, multiplier 2
        const V t522 = c[3] * t521;
        const V t523 = c[2] * t521;
        // spectrum block of 5, multiplier 2
        const V t524 = t255 + t263;
        // spectrum block of 25, multiplier 2
        const V t525 = c[6] * t177;
        const V t526 = c[7] * t185;
        const V t527 = t526 + t525;
        const V t528 = c[14] * t61;
        const V t529 = c[15] * t69;
        const V t530 = t528 - t529;
        // spectrum block of 5, multiplier 2
        const V t531 = t530 - t527;
        const V t532 = c[0] * t527;
        const V t533 = t524 - t532;
        const V t534 = c[1] * t530;
        const V t535 = c[1] * t527;
        const V t536 = c[0] * t530;
        const V t537 = t535 + t536;
        // spectrum block of 25, multiplier 2
        const V t538 = c[6] * t185;
        const V t539 = c[7] * t177;
        const V t540 = t538 - t539;
        // spectrum block of 5, multiplier 2
        const V t541 = c[2] * t540;
        const V t542 = c[3] * t540;
        // spectrum block of 25, multiplier 2
        const V t543 = c[14] * t69;
        const V t544 = c[15] * t61;
        const V t545 = t544 + t543;
        // spectrum block of 5, multiplier 2
        const V t546 = c[3] * t545;
        const V t547 = c[2] * t545;
        // spectrum block of 5, multiplier 2
        const V t548 = t507 + t500;
        // spectrum block of 5, multiplier 2
        const V t549 = t531 + t524;
        // spectrum block of 2
        const V t550 = t548 + t549;
        io.out(8, t550);
        const V t551 = t548 - t549;
        io.out(33, t551);
        // spectrum block of 5, multiplier 2
        const V t552 = t509 - t510;
        const V t553 = t517 - t522;
        const V t554 = t552 - t553;
        const V t555 = t552 + t553;
        // spectrum block of 5, multiplier 2
        const V t556 = t533 - t534;
        const V t557 = t541 - t546;
        const V t558 = t556 - t557;
        const V t559 = t556 + t557;
        // spectrum block of 2
        const V t560 = t555 + t559;
        io.out(28, t560);
        const V t561 = t555 - t559;
        io.out(3, t561);
        // spectrum block of 2
        const V t562 = t554 + t558;
        io.out(38, t562);
        const V t563 = t554 - t558;
        io.out(13, t563);
        // spectrum block of 5, multiplier 2
        const V t564 = t513 + t500;
        const V t565 = t518 + t523;
        const V t566 = t564 - t565;
        const V t567 = t564 + t565;
        // spectrum block of 5, multiplier 2
        const V t568 = t537 + t524;
        const V t569 = t542 + t547;
        const V t570 = t568 - t569;
        const V t571 = t568 + t569;
        // spectrum block of 2
        const V t572 = t566 + t570;
        io.out(18, t572);
        const V t573 = t566 - t570;
        io.out(43, t573);
        // spectrum block of 2
        const V t574 = t567 + t571;
        io.out(48, t574);
        const V t575 = t567 - t571;
        io.out(23, t575);
        // spectrum block of 5, multiplier 2
        const V t576 = t97 + t213;
        const V t577 = t576 + t6;
        // spectrum block of 5, multiplier 2
        const V t578 = t155 + t39;
        const V t579 = t578 + t250;
        // spectrum block of 2
        const V t580 = t577 + t579;
        io.out(0, t580);
        const V t581 = t577 - t579;
        io.out(25, t581);
        // spectrum block of 5, multiplier 2
        const V t582 = c[0] * t97;
        const V t583 = c[1] * t213;
        const V t584 = t582 - t583;
        const V t585 = t584 + t6;
        const V t586 = c[2] * t95;
        const V t587 = c[3] * t211;
        const V t588 = t586 + t587;
        // spectrum block of 5, multiplier 2
        const V t589 = c[0] * t155;
        const V t590 = c[1] * t39;
        const V t591 = t589 - t590;
        const V t592 = t591 + t250;
        const V t593 = c[2] * t153;
        const V t594 = c[3] * t37;
        const V t595 = t593 + t594;
        // spectrum block of 5, multiplier 2
        const V t596 = t585 - t588;
        // spectrum block of 5, multiplier 2
        const V t597 = t592 - t595;
        // spectrum block of 2
        const V t598 = t596 + t597;
        io.out(30, t598);
        const V t599 = t596 - t597;
        io.out(5, t599);
        // spectrum block of 5, multiplier 2
        const V t600 = t585 + t588;
        // spectrum block of 5, multiplier 2
        const V t601 = t592 + t595;
        // spectrum block of 2
        const V t602 = t600 + t601;
        io.out(20, t602);
        const V t603 = t600 - t601;
        io.out(45, t603);
        // spectrum block of 5, multiplier 2
        const V t604 = c[1] * t97;
        const V t605 = t6 - t604;
        const V t606 = c[0] * t213;
        const V t607 = t605 + t606;
        const V t608 = c[3] * t95;
        const V t609 = c[2] * t211;
        const V t610 = t608 - t609;
        // spectrum block of 5, multiplier 2
        const V t611 = c[1] * t155;
        const V t612 = t250 - t611;
        const V t613 = c[0] * t39;
        const V t614 = t612 + t613;
        const V t615 = c[3] * t153;
        const V t616 = c[2] * t37;
        const V t617 = t615 - t616;
        // spectrum block of 5, multiplier 2
        const V t618 = t607 - t610;
        // spectrum block of 5, multiplier 2
        const V t619 = t614 - t617;
        // spectrum block of 2
        const V t620 = t618 + t619;
        io.out(10, t620);
        const V t621 = t618 - t619;
        io.out(35, t621);
        // spectrum block of 5, multiplier 2
        const V t622 = t607 + t610;
        // spectrum block of 5, multiplier 2
        const V t623 = t614 + t617;
        // spectrum block of 2
        const V t624 = t622 + t623;
        io.out(40, t624);
        const V t625 = t622 - t623;
        io.out(15, t625);
    }
};

}  // namespace zulg
