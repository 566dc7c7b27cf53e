// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 34.
// Inverse DFT to 34 real points, prime-factor 17, 2.
// 133 additions, 133 subtractions, 136 multiplications (170 with `scale`); 21 constants; 37 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<34> {
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.7071067811865476;  // cos 2 pi 1/8
    static constexpr double c2 = 0.3826834323650898;  // sin 2 pi 1/16
    static constexpr double c3 = 0.9238795325112867;  // cos 2 pi 1/16
    static constexpr double c4 = 1.4142135623730951;  // cos 2 pi 1/8 times 2
    static constexpr double c5 = 0.0625;  // 1/16
    static constexpr double c6 = 0.09543059459065593;  // -P[1] of 17
    static constexpr double c7 = 0.506476062234015;  // -Q[1] of 17
    static constexpr double c8 = 0.3809911760447736;  // Q[2] of 17
    static constexpr double c9 = 0.347088927763506;  // P[2] of 17
    static constexpr double c10 = 0.3049677689722511;  // -P[3] of 17
    static constexpr double c11 = 0.4154752217498508;  // Q[3] of 17
    static constexpr double c12 = 0.40623178445333147;  // -Q[4] of 17
    static constexpr double c13 = 0.31717619283272513;  // -P[4] of 17
    static constexpr double c14 = 0.4374199883186445;  // -P[5] of 17
    static constexpr double c15 = 0.27255963351038787;  // -Q[5] of 17
    static constexpr double c16 = 0.039110758925753275;  // -Q[6] of 17
    static constexpr double c17 = 0.5139020806887744;  // P[6] of 17
    static constexpr double c18 = 0.4116323317536197;  // -P[7] of 17
    static constexpr double c19 = 0.3101351696520051;  // -Q[7] of 17
    static constexpr double c20 = 0.2576941016011038;  // beta of 17

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = c0 * x1r;
        const V x2r = io.re(2);
        const V t1 = c0 * x2r;
        const V x2i = io.im(2);
        const V t2 = c0 * x2i;
        const V x3r = io.re(3);
        const V t3 = c0 * x3r;
        const V x3i = io.im(3);
        const V t4 = c0 * x3i;
        const V x4r = io.re(4);
        const V t5 = c0 * x4r;
        const V x5r = io.re(5);
        const V t6 = c0 * x5r;
        const V x5i = io.im(5);
        const V t7 = c0 * x5i;
        const V x6r = io.re(6);
        const V t8 = c0 * x6r;
        const V x6i = io.im(6);
        const V t9 = c0 * x6i;
        const V x7r = io.re(7);
        const V t10 = c0 * x7r;
        const V x7i = io.im(7);
        const V t11 = c0 * x7i;
        const V x8r = io.re(8);
        const V t12 = c0 * x8r;
        const V x8i = io.im(8);
        const V t13 = c0 * x8i;
        const V x9r = io.re(9);
        const V t14 = c0 * x9r;
        const V x9i = io.im(9);
        const V t15 = c0 * x9i;
        const V x10r = io.re(10);
        const V t16 = c0 * x10r;
        const V x10i = io.im(10);
        const V t17 = c0 * x10i;
        const V x11r = io.re(11);
        const V t18 = c0 * x11r;
        const V x11i = io.im(11);
        const V t19 = c0 * x11i;
        const V x12r = io.re(12);
        const V t20 = c0 * x12r;
        const V x12i = io.im(12);
        const V t21 = c0 * x12i;
        const V x13r = io.re(13);
        const V t22 = c0 * x13r;
        const V x14r = io.re(14);
        const V t23 = c0 * x14r;
        const V x14i = io.im(14);
        const V t24 = c0 * x14i;
        const V x15r = io.re(15);
        const V t25 = c0 * x15r;
        const V x15i = io.im(15);
        const V t26 = c0 * x15i;
        const V x16r = io.re(16);
        const V t27 = c0 * x16r;
        // real block of 2
        const V t28 = t1 + t12;
        const V t29 = t1 - t12;
        // real block of 2
        const V t30 = t8 + t16;
        const V t31 = t8 - t16;
        // real block of 2
        const V t32 = t27 + t5;
        const V t33 = t27 - t5;
        // real block of 2
        const V t34 = t23 + t20;
        const V t35 = t23 - t20;
        // real block of 2
        const V t36 = t28 + t32;
        const V t37 = t28 - t32;
        // real block of 2
        const V t38 = t30 + t34;
        const V t39 = t30 - t34;
        // real block of 2
        const V t40 = t36 + t38;
        const V t41 = t36 - t38;
        // skew block of 4
        const V t42 = t31 - t35;
        const V t43 = c1 * t42;
        const V t44 = t31 + t35;
        const V t45 = c1 * t44;
        const V t46 = t45 - t33;
        const V t47 = t29 + t43;
        const V t48 = t33 + t45;
        const V t49 = t29 - t43;
        // skew block of 8
        const V t50 = c2 * t17;
        const V t51 = c3 * t9;
        const V t52 = t51 - t50;
        const V t53 = c2 * t9;
        const V t54 = c3 * t17;
        const V t55 = t54 + t53;
        const V x16i = io.im(16);
        const V t56 = c4 * x16i;
        const V x4i = io.im(4);
        const V t57 = c4 * x4i;
        const V t58 = t57 - t56;
        const V t59 = t57 + t56;
        const V t60 = c3 * t21;
        const V t61 = c2 * t24;
        const V t62 = t60 - t61;
        const V t63 = c3 * t24;
        const V t64 = c2 * t21;
        const V t65 = t64 + t63;
        // complex block of 2
        const V t66 = t2 + t58;
        const V t67 = t13 + t59;
        const V t68 = t2 - t58;
        const V t69 = t13 - t59;
        // complex block of 2
        const V t70 = t52 + t62;
        const V t71 = t65 - t55;
        const V t72 = t52 - t62;
        const V t73 = t55 + t65;
        // complex block of 2
        const V t74 = t66 + t70;
        const V t75 = t67 + t71;
        const V t76 = t66 - t70;
        const V t77 = t67 - t71;
        // complex block of 2
        const V t78 = t68 - t73;
        const V t79 = t69 - t72;
        const V t80 = t68 + t73;
        const V t81 = t69 + t72;
        // spectrum block of 17, multiplier 2
        const V t82 = c5 * t40;
        const V x0r = io.re(0);
        const V t83 = x0r - t82;
        const V t84 = c6 * t75;
        const V t85 = c7 * t74;
        const V t86 = t84 - t85;
        const V t87 = c6 * t74;
        const V t88 = c7 * t75;
        const V t89 = t88 + t87;
        const V t90 = c8 * t48;
        const V t91 = c9 * t47;
        const V t92 = t91 + t90;
        const V t93 = c8 * t47;
        const V t94 = c9 * t48;
        const V t95 = t93 - t94;
        const V t96 = c10 * t81;
        const V t97 = c11 * t80;
        const V t98 = t97 - t96;
        const V t99 = c10 * t80;
        const V t100 = c11 * t81;
        const V t101 = t100 + t99;
        const V t102 = c12 * t39;
        const V t103 = c13 * t37;
        const V t104 = t103 + t102;
        const V t105 = c12 * t37;
        const V t106 = c13 * t39;
        const V t107 = t106 - t105;
        const V t108 = c14 * t79;
        const V t109 = c15 * t78;
        const V t110 = t108 - t109;
        const V t111 = c14 * t78;
        const V t112 = c15 * t79;
        const V t113 = t112 + t111;
        const V t114 = c16 * t46;
        const V t115 = c17 * t49;
        const V t116 = t115 - t114;
        const V t117 = c16 * t49;
        const V t118 = c17 * t46;
        const V t119 = t118 + t117;
        const V t120 = c18 * t77;
        const V t121 = c19 * t76;
        const V t122 = t121 + t120;
        const V t123 = c18 * t76;
        const V t124 = c19 * t77;
        const V t125 = t124 - t123;
        const V t126 = c20 * t41;
        // spectrum block of 2
        const V t127 = t83 + t126;
        const V t128 = t83 - t126;
        // spectrum block of 2
        const V t129 = t127 - t104;
        const V t130 = t127 + t104;
        // spectrum block of 2
        const V t131 = t128 - t107;
        const V t132 = t128 + t107;
        // complex block of 2
        const V t133 = t89 + t125;
        const V t134 = t86 - t122;
        const V t135 = t125 - t89;
        const V t136 = t86 + t122;
        // complex block of 2
        const V t137 = t101 - t113;
        const V t138 = t110 + t98;
        const V t139 = t113 + t101;
        const V t140 = t110 - t98;
        // complex block of 2
        const V t141 = t137 - t133;
        const V t142 = t134 + t138;
        const V t143 = t133 + t137;
        const V t144 = t134 - t138;
        // complex block of 2
        const V t145 = t135 + t140;
        const V t146 = t136 + t139;
        const V t147 = t135 - t140;
        const V t148 = t136 - t139;
        // spectrum block of 16
        const V t149 = c2 * t145;
        const V t150 = c3 * t146;
        const V t151 = t150 - t149;
        const V t152 = c2 * t146;
        const V t153 = c3 * t145;
        const V t154 = t153 + t152;
        const V t155 = c1 * t144;
        const V t156 = c1 * t143;
        const V t157 = t155 - t156;
        const V t158 = t156 + t155;
        const V t159 = c3 * t147;
        const V t160 = c2 * t148;
        const V t161 = t160 - t159;
        const V t162 = c3 * t148;
        const V t163 = c2 * t147;
        const V t164 = t163 + t162;
        // mirrored skew block of 4
        const V t165 = t92 - t116;
        const V t166 = c1 * t165;
        const V t167 = t95 - t119;
        const V t168 = c1 * t167;
        const V t169 = t92 + t116;
        const V t170 = t166 - t168;
        const V t171 = t95 + t119;
        const V t172 = t166 + t168;
        // spectrum block of 2
        const V t173 = t129 + t169;
        const V t174 = t129 - t169;
        // spectrum block of 2
        const V t175 = t173 + t142;
        const V t176 = t173 - t142;
        // spectrum block of 2
        const V t177 = t174 - t141;
        const V t178 = t174 + t141;
        // spectrum block of 2
        const V t179 = t131 + t170;
        const V t180 = t131 - t170;
        // spectrum block of 2
        const V t181 = t179 + t151;
        const V t182 = t179 - t151;
        // spectrum block of 2
        const V t183 = t180 - t154;
        const V t184 = t180 + t154;
        // spectrum block of 2
        const V t185 = t130 - t171;
        const V t186 = t130 + t171;
        // spectrum block of 2
        const V t187 = t185 + t158;
        const V t188 = t185 - t158;
        // spectrum block of 2
        const V t189 = t186 - t157;
        const V t190 = t186 + t157;
        // spectrum block of 2
        const V t191 = t132 - t172;
        const V t192 = t132 + t172;
        // spectrum block of 2
        const V t193 = t191 + t161;
        const V t194 = t191 - t161;
        // spectrum block of 2
        const V t195 = t192 - t164;
        const V t196 = t192 + t164;
        // spectrum block of 17, multiplier 2
        const V t197 = x0r + t40;
        // real block of 2
        const V t198 = t25 + t14;
        const V t199 = t25 - t14;
        // real block of 2
        const V t200 = t18 + t10;
        const V t201 = t18 - t10;
        // real block of 2
        const V t202 = t0 + t22;
        const V t203 = t0 - t22;
        // real block of 2
        const V t204 = t3 + t6;
        const V t205 = t3 - t6;
        // real block of 2
        const V t206 = t198 + t202;
        const V t207 = t198 - t202;
        // real block of 2
        const V t208 = t200 + t204;
        const V t209 = t200 - t204;
        // real block of 2
        const V t210 = t206 + t208;
        const V t211 = t206 - t208;
        // skew block of 4
        const V t212 = t201 - t205;
        const V t213 = c1 * t212;
        const V t214 = t201 + t205;
        const V t215 = c1 * t214;
        const V t216 = t215 - t203;
        const V t217 = t199 + t213;
        const V t218 = t203 + t215;
        const V t219 = t199 - t213;
        // skew block of 8
        const V t220 = c2 * t11;
        const V t221 = c3 * t19;
        const V t222 = t220 - t221;
        const V t223 = c2 * t19;
        const V t224 = c3 * t11;
        const V t225 = t224 + t223;
        const V x1i = io.im(1);
        const V t226 = c4 * x1i;
        const V x13i = io.im(13);
        const V t227 = c4 * x13i;
        const V t228 = t226 - t227;
        const V t229 = t227 + t226;
        const V t230 = c3 * t7;
        const V t231 = c2 * t4;
        const V t232 = t231 - t230;
        const V t233 = c3 * t4;
        const V t234 = c2 * t7;
        const V t235 = t234 + t233;
        // complex block of 2
        const V t236 = t228 - t26;
        const V t237 = t15 + t229;
        const V t238 = t26 + t228;
        const V t239 = t229 - t15;
        // complex block of 2
        const V t240 = t222 + t232;
        const V t241 = t225 - t235;
        const V t242 = t222 - t232;
        const V t243 = t225 + t235;
        // complex block of 2
        const V t244 = t236 + t240;
        const V t245 = t241 - t237;
        const V t246 = t236 - t240;
        const V t247 = t237 + t241;
        // complex block of 2
        const V t248 = t243 - t238;
        const V t249 = t239 - t242;
        const V t250 = t238 + t243;
        const V t251 = t239 + t242;
        // spectrum block of 17, multiplier 2
        const V t252 = c5 * t210;
        const V x17r = io.re(17);
        const V t253 = x17r - t252;
        const V t254 = c6 * t245;
        const V t255 = c7 * t244;
        const V t256 = t254 - t255;
        const V t257 = c6 * t244;
        const V t258 = c7 * t245;
        const V t259 = t258 + t257;
        const V t260 = c8 * t218;
        const V t261 = c9 * t217;
        const V t262 = t261 + t260;
        const V t263 = c8 * t217;
        const V t264 = c9 * t218;
        const V t265 = t263 - t264;
        const V t266 = c10 * t251;
        const V t267 = c11 * t250;
        const V t268 = t267 + t266;
        const V t269 = c10 * t250;
        const V t270 = c11 * t251;
        const V t271 = t269 - t270;
        const V t272 = c12 * t209;
        const V t273 = c13 * t207;
        const V t274 = t273 + t272;
        const V t275 = c12 * t207;
        const V t276 = c13 * t209;
        const V t277 = t276 - t275;
        const V t278 = c14 * t249;
        const V t279 = c15 * t248;
        const V t280 = t278 - t279;
        const V t281 = c14 * t248;
        const V t282 = c15 * t249;
        const V t283 = t282 + t281;
        const V t284 = c16 * t216;
        const V t285 = c17 * t219;
        const V t286 = t285 - t284;
        const V t287 = c16 * t219;
        const V t288 = c17 * t216;
        const V t289 = t288 + t287;
        const V t290 = c18 * t247;
        const V t291 = c19 * t246;
        const V t292 = t290 - t291;
        const V t293 = c18 * t246;
        const V t294 = c19 * t247;
        const V t295 = t294 + t293;
        const V t296 = c20 * t211;
        // spectrum block of 2
        const V t297 = t253 + t296;
        const V t298 = t253 - t296;
        // spectrum block of 2
        const V t299 = t297 - t274;
        const V t300 = t297 + t274;
        // spectrum block of 2
        const V t301 = t298 - t277;
        const V t302 = t298 + t277;
        // complex block of 2
        const V t303 = t295 - t259;
        const V t304 = t256 + t292;
        const V t305 = t259 + t295;
        const V t306 = t256 - t292;
        // complex block of 2
        const V t307 = t283 + t271;
        const V t308 = t280 - t268;
        const V t309 = t271 - t283;
        const V t310 = t280 + t268;
        // complex block of 2
        const V t311 = t303 - t307;
        const V t312 = t304 + t308;
        const V t313 = t303 + t307;
        const V t314 = t304 - t308;
        // complex block of 2
        const V t315 = t310 - t305;
        const V t316 = t306 - t309;
        const V t317 = t305 + t310;
        const V t318 = t306 + t309;
        // spectrum block of 16
        const V t319 = c2 * t315;
        const V t320 = c3 * t316;
        const V t321 = t320 - t319;
        const V t322 = c2 * t316;
        const V t323 = c3 * t315;
        const V t324 = t323 + t322;
        const V t325 = c1 * t314;
        const V t326 = c1 * t313;
        const V t327 = t325 + t326;
        const V t328 = t326 - t325;
        const V t329 = c3 * t317;
        const V t330 = c2 * t318;
        const V t331 = t330 + t329;
        const V t332 = c3 * t318;
        const V t333 = c2 * t317;
        const V t334 = t332 - t333;
        // mirrored skew block of 4
        const V t335 = t262 - t286;
        const V t336 = c1 * t335;
        const V t337 = t265 - t289;
        const V t338 = c1 * t337;
        const V t339 = t262 + t286;
        const V t340 = t336 - t338;
        const V t341 = t265 + t289;
        const V t342 = t336 + t338;
        // spectrum block of 2
        const V t343 = t299 + t339;
        const V t344 = t299 - t339;
        // spectrum block of 2
        const V t345 = t343 + t312;
        const V t346 = t343 - t312;
        // spectrum block of 2
        const V t347 = t344 - t311;
        const V t348 = t344 + t311;
        // spectrum block of 2
        const V t349 = t301 + t340;
        const V t350 = t301 - t340;
        // spectrum block of 2
        const V t351 = t349 + t321;
        const V t352 = t349 - t321;
        // spectrum block of 2
        const V t353 = t350 - t324;
        const V t354 = t350 + t324;
        // spectrum block of 2
        const V t355 = t300 - t341;
        const V t356 = t300 + t341;
        // spectrum block of 2
        const V t357 = t355 - t328;
        const V t358 = t355 + t328;
        // spectrum block of 2
        const V t359 = t356 - t327;
        const V t360 = t356 + t327;
        // spectrum block of 2
        const V t361 = t302 - t342;
        const V t362 = t302 + t342;
        // spectrum block of 2
        const V t363 = t361 + t331;
        const V t364 = t361 - t331;
        // spectrum block of 2
        const V t365 = t362 - t334;
        const V t366 = t362 + t334;
        // spectrum block of 17, multiplier 2
        const V t367 = x17r + t210;
        // spectrum block of 2
        const V t368 = t197 + t367;
        io.out(0, t368);
        const V t369 = t197 - t367;
        io.out(17, t369);
        // spectrum block of 2
        const V t370 = t175 + t345;
        io.out(2, t370);
        const V t371 = t175 - t345;
        io.out(19, t371);
        // spectrum block of 2
        const V t372 = t187 + t357;
        io.out(4, t372);
        const V t373 = t187 - t357;
        io.out(21, t373);
        // spectrum block of 2
        const V t374 = t196 + t366;
        io.out(6, t374);
        const V t375 = t196 - t366;
        io.out(23, t375);
        // spectrum block of 2
        const V t376 = t177 + t347;
        io.out(8, t376);
        const V t377 = t177 - t347;
        io.out(25, t377);
        // spectrum block of 2
        const V t378 = t194 + t364;
        io.out(10, t378);
        const V t379 = t194 - t364;
        io.out(27, t379);
        // spectrum block of 2
        const V t380 = t181 + t351;
        io.out(12, t380);
        const V t381 = t181 - t351;
        io.out(29, t381);
        // spectrum block of 2
        const V t382 = t183 + t353;
        io.out(14, t382);
        const V t383 = t183 - t353;
        io.out(31, t383);
        // spectrum block of 2
        const V t384 = t189 + t359;
        io.out(16, t384);
        const V t385 = t189 - t359;
        io.out(33, t385);
        // spectrum block of 2
        const V t386 = t190 + t360;
        io.out(18, t386);
        const V t387 = t190 - t360;
        io.out(1, t387);
        // spectrum block of 2
        const V t388 = t184 + t354;
        io.out(20, t388);
        const V t389 = t184 - t354;
        io.out(3, t389);
        // spectrum block of 2
        const V t390 = t182 + t352;
        io.out(22, t390);
        const V t391 = t182 - t352;
        io.out(5, t391);
        // spectrum block of 2
        const V t392 = t193 + t363;
        io.out(24, t392);
        const V t393 = t193 - t363;
        io.out(7, t393);
        // spectrum block of 2
        const V t394 = t178 + t348;
        io.out(26, t394);
        const V t395 = t178 - t348;
        io.out(9, t395);
        // spectrum block of 2
        const V t396 = t195 + t365;
        io.out(28, t396);
        const V t397 = t195 - t365;
        io.out(11, t397);
        // spectrum block of 2
        const V t398 = t188 + t358;
        io.out(30, t398);
        const V t399 = t188 - t358;
        io.out(13, t399);
        // spectrum block of 2
        const V t400 = t176 + t346;
        io.out(32, t400);
        const V t401 = t176 - t346;
        io.out(15, t401);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 34, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 34, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 34, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 34, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 34, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 34, double>(const double*, double*, std::int32_t);

}  // namespace zulg
