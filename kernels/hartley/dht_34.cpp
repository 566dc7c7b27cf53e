// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 34.
// Hartley transform of 34 points, form I.
// 149 additions, 149 subtractions, 108 multiplications (142 with `scale`); 19 constants; 37 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct HartleyGraph<34> {
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double c0 = 0.7071067811865476;  // cos 2 pi 1/8
    static constexpr double c1 = 0.3826834323650898;  // sin 2 pi 1/16
    static constexpr double c2 = 0.9238795325112867;  // cos 2 pi 1/16
    static constexpr double c3 = 0.0625;  // 1/16
    static constexpr double c4 = 0.09543059459065593;  // -P[1] of 17
    static constexpr double c5 = 0.506476062234015;  // -Q[1] of 17
    static constexpr double c6 = 0.3809911760447736;  // Q[2] of 17
    static constexpr double c7 = 0.347088927763506;  // P[2] of 17
    static constexpr double c8 = 0.3049677689722511;  // -P[3] of 17
    static constexpr double c9 = 0.4154752217498508;  // Q[3] of 17
    static constexpr double c10 = 0.40623178445333147;  // -Q[4] of 17
    static constexpr double c11 = 0.31717619283272513;  // -P[4] of 17
    static constexpr double c12 = 0.4374199883186445;  // -P[5] of 17
    static constexpr double c13 = 0.27255963351038787;  // -Q[5] of 17
    static constexpr double c14 = 0.039110758925753275;  // -Q[6] of 17
    static constexpr double c15 = 0.5139020806887744;  // P[6] of 17
    static constexpr double c16 = 0.4116323317536197;  // -P[7] of 17
    static constexpr double c17 = 0.3101351696520051;  // -Q[7] of 17
    static constexpr double c18 = 0.2576941016011038;  // beta of 17

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // input stage
        const V x1 = io.in(1);
        const V x33 = io.in(33);
        const V t0 = x1 + x33;
        const V t1 = x1 - x33;
        const V x2 = io.in(2);
        const V x32 = io.in(32);
        const V t2 = x2 + x32;
        const V t3 = x2 - x32;
        const V x3 = io.in(3);
        const V x31 = io.in(31);
        const V t4 = x3 + x31;
        const V t5 = x3 - x31;
        const V x4 = io.in(4);
        const V x30 = io.in(30);
        const V t6 = x4 + x30;
        const V t7 = x4 - x30;
        const V x5 = io.in(5);
        const V x29 = io.in(29);
        const V t8 = x5 + x29;
        const V t9 = x5 - x29;
        const V x6 = io.in(6);
        const V x28 = io.in(28);
        const V t10 = x6 + x28;
        const V t11 = x6 - x28;
        const V x7 = io.in(7);
        const V x27 = io.in(27);
        const V t12 = x7 + x27;
        const V t13 = x7 - x27;
        const V x8 = io.in(8);
        const V x26 = io.in(26);
        const V t14 = x8 + x26;
        const V t15 = x8 - x26;
        const V x9 = io.in(9);
        const V x25 = io.in(25);
        const V t16 = x9 + x25;
        const V t17 = x9 - x25;
        const V x10 = io.in(10);
        const V x24 = io.in(24);
        const V t18 = x10 + x24;
        const V t19 = x10 - x24;
        const V x11 = io.in(11);
        const V x23 = io.in(23);
        const V t20 = x11 + x23;
        const V t21 = x11 - x23;
        const V x12 = io.in(12);
        const V x22 = io.in(22);
        const V t22 = x12 + x22;
        const V t23 = x12 - x22;
        const V x13 = io.in(13);
        const V x21 = io.in(21);
        const V t24 = x13 + x21;
        const V t25 = x13 - x21;
        const V x14 = io.in(14);
        const V x20 = io.in(20);
        const V t26 = x14 + x20;
        const V t27 = x14 - x20;
        const V x15 = io.in(15);
        const V x19 = io.in(19);
        const V t28 = x15 + x19;
        const V t29 = x15 - x19;
        const V x16 = io.in(16);
        const V x18 = io.in(18);
        const V t30 = x16 + x18;
        const V t31 = x16 - x18;
        // real block of 2
        const V t32 = t2 + t14;
        const V t33 = t2 - t14;
        // real block of 2
        const V t34 = t10 + t18;
        const V t35 = t10 - t18;
        // real block of 2
        const V t36 = t30 + t6;
        const V t37 = t30 - t6;
        // real block of 2
        const V t38 = t26 + t22;
        const V t39 = t26 - t22;
        // real block of 2
        const V t40 = t32 + t36;
        const V t41 = t32 - t36;
        // real block of 2
        const V t42 = t34 + t38;
        const V t43 = t34 - t38;
        // real block of 2
        const V t44 = t40 + t42;
        const V t45 = t40 - t42;
        // skew block of 4
        const V t46 = t35 - t39;
        const V t47 = c0 * t46;
        const V t48 = t35 + t39;
        const V t49 = c0 * t48;
        const V t50 = t49 - t37;
        const V t51 = t33 + t47;
        const V t52 = t37 + t49;
        const V t53 = t33 - t47;
        // skew block of 8
        const V t54 = c1 * t19;
        const V t55 = c2 * t11;
        const V t56 = t55 - t54;
        const V t57 = c1 * t11;
        const V t58 = c2 * t19;
        const V t59 = t58 + t57;
        const V t60 = c0 * t31;
        const V t61 = c0 * t7;
        const V t62 = t61 - t60;
        const V t63 = t61 + t60;
        const V t64 = c2 * t23;
        const V t65 = c1 * t27;
        const V t66 = t64 - t65;
        const V t67 = c2 * t27;
        const V t68 = c1 * t23;
        const V t69 = t68 + t67;
        // complex block of 2
        const V t70 = t3 + t62;
        const V t71 = t15 + t63;
        const V t72 = t3 - t62;
        const V t73 = t15 - t63;
        // complex block of 2
        const V t74 = t56 + t66;
        const V t75 = t69 - t59;
        const V t76 = t56 - t66;
        const V t77 = t59 + t69;
        // complex block of 2
        const V t78 = t70 + t74;
        const V t79 = t71 + t75;
        const V t80 = t70 - t74;
        const V t81 = t71 - t75;
        // complex block of 2
        const V t82 = t72 - t77;
        const V t83 = t73 - t76;
        const V t84 = t72 + t77;
        const V t85 = t73 + t76;
        // spectrum block of 17, multiplier 2
        const V t86 = c3 * t44;
        const V x0 = io.in(0);
        const V t87 = x0 - t86;
        const V t88 = c4 * t79;
        const V t89 = c5 * t78;
        const V t90 = t88 - t89;
        const V t91 = c4 * t78;
        const V t92 = c5 * t79;
        const V t93 = t92 + t91;
        const V t94 = c6 * t52;
        const V t95 = c7 * t51;
        const V t96 = t95 + t94;
        const V t97 = c6 * t51;
        const V t98 = c7 * t52;
        const V t99 = t97 - t98;
        const V t100 = c8 * t85;
        const V t101 = c9 * t84;
        const V t102 = t101 - t100;
        const V t103 = c8 * t84;
        const V t104 = c9 * t85;
        const V t105 = t104 + t103;
        const V t106 = c10 * t43;
        const V t107 = c11 * t41;
        const V t108 = t107 + t106;
        const V t109 = c10 * t41;
        const V t110 = c11 * t43;
        const V t111 = t110 - t109;
        const V t112 = c12 * t83;
        const V t113 = c13 * t82;
        const V t114 = t112 - t113;
        const V t115 = c12 * t82;
        const V t116 = c13 * t83;
        const V t117 = t116 + t115;
        const V t118 = c14 * t50;
        const V t119 = c15 * t53;
        const V t120 = t119 - t118;
        const V t121 = c14 * t53;
        const V t122 = c15 * t50;
        const V t123 = t122 + t121;
        const V t124 = c16 * t81;
        const V t125 = c17 * t80;
        const V t126 = t125 + t124;
        const V t127 = c16 * t80;
        const V t128 = c17 * t81;
        const V t129 = t128 - t127;
        const V t130 = c18 * t45;
        // spectrum block of 2
        const V t131 = t87 + t130;
        const V t132 = t87 - t130;
        // spectrum block of 2
        const V t133 = t131 - t108;
        const V t134 = t131 + t108;
        // spectrum block of 2
        const V t135 = t132 - t111;
        const V t136 = t132 + t111;
        // complex block of 2
        const V t137 = t93 + t129;
        const V t138 = t90 - t126;
        const V t139 = t129 - t93;
        const V t140 = t90 + t126;
        // complex block of 2
        const V t141 = t105 - t117;
        const V t142 = t114 + t102;
        const V t143 = t117 + t105;
        const V t144 = t114 - t102;
        // complex block of 2
        const V t145 = t141 - t137;
        const V t146 = t138 + t142;
        const V t147 = t137 + t141;
        const V t148 = t138 - t142;
        // complex block of 2
        const V t149 = t139 + t144;
        const V t150 = t140 + t143;
        const V t151 = t139 - t144;
        const V t152 = t140 - t143;
        // spectrum block of 16
        const V t153 = c1 * t149;
        const V t154 = c2 * t150;
        const V t155 = t154 - t153;
        const V t156 = c1 * t150;
        const V t157 = c2 * t149;
        const V t158 = t157 + t156;
        const V t159 = c0 * t148;
        const V t160 = c0 * t147;
        const V t161 = t159 - t160;
        const V t162 = t160 + t159;
        const V t163 = c2 * t151;
        const V t164 = c1 * t152;
        const V t165 = t164 - t163;
        const V t166 = c2 * t152;
        const V t167 = c1 * t151;
        const V t168 = t167 + t166;
        // mirrored skew block of 4
        const V t169 = t96 - t120;
        const V t170 = c0 * t169;
        const V t171 = t99 - t123;
        const V t172 = c0 * t171;
        const V t173 = t96 + t120;
        const V t174 = t170 - t172;
        const V t175 = t99 + t123;
        const V t176 = t170 + t172;
        // spectrum block of 2
        const V t177 = t133 + t173;
        const V t178 = t133 - t173;
        // spectrum block of 2
        const V t179 = t177 + t146;
        const V t180 = t177 - t146;
        // spectrum block of 2
        const V t181 = t178 - t145;
        const V t182 = t178 + t145;
        // spectrum block of 2
        const V t183 = t135 + t174;
        const V t184 = t135 - t174;
        // spectrum block of 2
        const V t185 = t183 + t155;
        const V t186 = t183 - t155;
        // spectrum block of 2
        const V t187 = t184 - t158;
        const V t188 = t184 + t158;
        // spectrum block of 2
        const V t189 = t134 - t175;
        const V t190 = t134 + t175;
        // spectrum block of 2
        const V t191 = t189 + t162;
        const V t192 = t189 - t162;
        // spectrum block of 2
        const V t193 = t190 - t161;
        const V t194 = t190 + t161;
        // spectrum block of 2
        const V t195 = t136 - t176;
        const V t196 = t136 + t176;
        // spectrum block of 2
        const V t197 = t195 + t165;
        const V t198 = t195 - t165;
        // spectrum block of 2
        const V t199 = t196 - t168;
        const V t200 = t196 + t168;
        // spectrum block of 17, multiplier 2
        const V t201 = x0 + t44;
        // real block of 2
        const V t202 = t28 + t16;
        const V t203 = t28 - t16;
        // real block of 2
        const V t204 = t20 + t12;
        const V t205 = t20 - t12;
        // real block of 2
        const V t206 = t0 + t24;
        const V t207 = t0 - t24;
        // real block of 2
        const V t208 = t4 + t8;
        const V t209 = t4 - t8;
        // real block of 2
        const V t210 = t202 + t206;
        const V t211 = t202 - t206;
        // real block of 2
        const V t212 = t204 + t208;
        const V t213 = t204 - t208;
        // real block of 2
        const V t214 = t210 + t212;
        const V t215 = t210 - t212;
        // skew block of 4
        const V t216 = t205 - t209;
        const V t217 = c0 * t216;
        const V t218 = t205 + t209;
        const V t219 = c0 * t218;
        const V t220 = t219 - t207;
        const V t221 = t203 + t217;
        const V t222 = t207 + t219;
        const V t223 = t203 - t217;
        // skew block of 8
        const V t224 = c1 * t13;
        const V t225 = c2 * t21;
        const V t226 = t224 - t225;
        const V t227 = c1 * t21;
        const V t228 = c2 * t13;
        const V t229 = t228 + t227;
        const V t230 = c0 * t1;
        const V t231 = c0 * t25;
        const V t232 = t230 - t231;
        const V t233 = t231 + t230;
        const V t234 = c2 * t9;
        const V t235 = c1 * t5;
        const V t236 = t235 - t234;
        const V t237 = c2 * t5;
        const V t238 = c1 * t9;
        const V t239 = t238 + t237;
        // complex block of 2
        const V t240 = t232 - t29;
        const V t241 = t17 + t233;
        const V t242 = t29 + t232;
        const V t243 = t233 - t17;
        // complex block of 2
        const V t244 = t226 + t236;
        const V t245 = t229 - t239;
        const V t246 = t226 - t236;
        const V t247 = t229 + t239;
        // complex block of 2
        const V t248 = t240 + t244;
        const V t249 = t245 - t241;
        const V t250 = t240 - t244;
        const V t251 = t241 + t245;
        // complex block of 2
        const V t252 = t247 - t242;
        const V t253 = t243 - t246;
        const V t254 = t242 + t247;
        const V t255 = t243 + t246;
        // spectrum block of 17, multiplier 2
        const V t256 = c3 * t214;
        const V x17 = io.in(17);
        const V t257 = x17 - t256;
        const V t258 = c4 * t249;
        const V t259 = c5 * t248;
        const V t260 = t258 - t259;
        const V t261 = c4 * t248;
        const V t262 = c5 * t249;
        const V t263 = t262 + t261;
        const V t264 = c6 * t222;
        const V t265 = c7 * t221;
        const V t266 = t265 + t264;
        const V t267 = c6 * t221;
        const V t268 = c7 * t222;
        const V t269 = t267 - t268;
        const V t270 = c8 * t255;
        const V t271 = c9 * t254;
        const V t272 = t271 + t270;
        const V t273 = c8 * t254;
        const V t274 = c9 * t255;
        const V t275 = t273 - t274;
        const V t276 = c10 * t213;
        const V t277 = c11 * t211;
        const V t278 = t277 + t276;
        const V t279 = c10 * t211;
        const V t280 = c11 * t213;
        const V t281 = t280 - t279;
        const V t282 = c12 * t253;
        const V t283 = c13 * t252;
        const V t284 = t282 - t283;
        const V t285 = c12 * t252;
        const V t286 = c13 * t253;
        const V t287 = t286 + t285;
        const V t288 = c14 * t220;
        const V t289 = c15 * t223;
        const V t290 = t289 - t288;
        const V t291 = c14 * t223;
        const V t292 = c15 * t220;
        const V t293 = t292 + t291;
        const V t294 = c16 * t251;
        const V t295 = c17 * t250;
        const V t296 = t294 - t295;
        const V t297 = c16 * t250;
        const V t298 = c17 * t251;
        const V t299 = t298 + t297;
        const V t300 = c18 * t215;
        // spectrum block of 2
        const V t301 = t257 + t300;
        const V t302 = t257 - t300;
        // spectrum block of 2
        const V t303 = t301 - t278;
        const V t304 = t301 + t278;
        // spectrum block of 2
        const V t305 = t302 - t281;
        const V t306 = t302 + t281;
        // complex block of 2
        const V t307 = t299 - t263;
        const V t308 = t260 + t296;
        const V t309 = t263 + t299;
        const V t310 = t260 - t296;
        // complex block of 2
        const V t311 = t287 + t275;
        const V t312 = t284 - t272;
        const V t313 = t275 - t287;
        const V t314 = t284 + t272;
        // complex block of 2
        const V t315 = t307 - t311;
        const V t316 = t308 + t312;
        const V t317 = t307 + t311;
        const V t318 = t308 - t312;
        // complex block of 2
        const V t319 = t314 - t309;
        const V t320 = t310 - t313;
        const V t321 = t309 + t314;
        const V t322 = t310 + t313;
        // spectrum block of 16
        const V t323 = c1 * t319;
        const V t324 = c2 * t320;
        const V t325 = t324 - t323;
        const V t326 = c1 * t320;
        const V t327 = c2 * t319;
        const V t328 = t327 + t326;
        const V t329 = c0 * t318;
        const V t330 = c0 * t317;
        const V t331 = t329 + t330;
        const V t332 = t330 - t329;
        const V t333 = c2 * t321;
        const V t334 = c1 * t322;
        const V t335 = t334 + t333;
        const V t336 = c2 * t322;
        const V t337 = c1 * t321;
        const V t338 = t336 - t337;
        // mirrored skew block of 4
        const V t339 = t266 - t290;
        const V t340 = c0 * t339;
        const V t341 = t269 - t293;
        const V t342 = c0 * t341;
        const V t343 = t266 + t290;
        const V t344 = t340 - t342;
        const V t345 = t269 + t293;
        const V t346 = t340 + t342;
        // spectrum block of 2
        const V t347 = t303 + t343;
        const V t348 = t303 - t343;
        // spectrum block of 2
        const V t349 = t347 + t316;
        const V t350 = t347 - t316;
        // spectrum block of 2
        const V t351 = t348 - t315;
        const V t352 = t348 + t315;
        // spectrum block of 2
        const V t353 = t305 + t344;
        const V t354 = t305 - t344;
        // spectrum block of 2
        const V t355 = t353 + t325;
        const V t356 = t353 - t325;
        // spectrum block of 2
        const V t357 = t354 - t328;
        const V t358 = t354 + t328;
        // spectrum block of 2
        const V t359 = t304 - t345;
        const V t360 = t304 + t345;
        // spectrum block of 2
        const V t361 = t359 - t332;
        const V t362 = t359 + t332;
        // spectrum block of 2
        const V t363 = t360 - t331;
        const V t364 = t360 + t331;
        // spectrum block of 2
        const V t365 = t306 - t346;
        const V t366 = t306 + t346;
        // spectrum block of 2
        const V t367 = t365 + t335;
        const V t368 = t365 - t335;
        // spectrum block of 2
        const V t369 = t366 - t338;
        const V t370 = t366 + t338;
        // spectrum block of 17, multiplier 2
        const V t371 = x17 + t214;
        // spectrum block of 2
        const V t372 = t201 + t371;
        io.out(0, t372);
        const V t373 = t201 - t371;
        io.out(17, t373);
        // spectrum block of 2
        const V t374 = t179 + t349;
        io.out(32, t374);
        const V t375 = t179 - t349;
        io.out(15, t375);
        // spectrum block of 2
        const V t376 = t191 + t361;
        io.out(30, t376);
        const V t377 = t191 - t361;
        io.out(13, t377);
        // spectrum block of 2
        const V t378 = t200 + t370;
        io.out(28, t378);
        const V t379 = t200 - t370;
        io.out(11, t379);
        // spectrum block of 2
        const V t380 = t181 + t351;
        io.out(26, t380);
        const V t381 = t181 - t351;
        io.out(9, t381);
        // spectrum block of 2
        const V t382 = t198 + t368;
        io.out(24, t382);
        const V t383 = t198 - t368;
        io.out(7, t383);
        // spectrum block of 2
        const V t384 = t185 + t355;
        io.out(22, t384);
        const V t385 = t185 - t355;
        io.out(5, t385);
        // spectrum block of 2
        const V t386 = t187 + t357;
        io.out(20, t386);
        const V t387 = t187 - t357;
        io.out(3, t387);
        // spectrum block of 2
        const V t388 = t193 + t363;
        io.out(18, t388);
        const V t389 = t193 - t363;
        io.out(1, t389);
        // spectrum block of 2
        const V t390 = t194 + t364;
        io.out(16, t390);
        const V t391 = t194 - t364;
        io.out(33, t391);
        // spectrum block of 2
        const V t392 = t188 + t358;
        io.out(14, t392);
        const V t393 = t188 - t358;
        io.out(31, t393);
        // spectrum block of 2
        const V t394 = t186 + t356;
        io.out(12, t394);
        const V t395 = t186 - t356;
        io.out(29, t395);
        // spectrum block of 2
        const V t396 = t197 + t367;
        io.out(10, t396);
        const V t397 = t197 - t367;
        io.out(27, t397);
        // spectrum block of 2
        const V t398 = t182 + t352;
        io.out(8, t398);
        const V t399 = t182 - t352;
        io.out(25, t399);
        // spectrum block of 2
        const V t400 = t199 + t369;
        io.out(6, t400);
        const V t401 = t199 - t369;
        io.out(23, t401);
        // spectrum block of 2
        const V t402 = t192 + t362;
        io.out(4, t402);
        const V t403 = t192 - t362;
        io.out(21, t403);
        // spectrum block of 2
        const V t404 = t180 + t350;
        io.out(2, t404);
        const V t405 = t180 - t350;
        io.out(19, t405);
    }
};

template Status ZULG_CALL kernel<Family::Hartley, 34, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::Hartley, 34, double>(const double*, double*, std::int32_t);

}  // namespace zulg
