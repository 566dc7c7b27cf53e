// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 33.
// Hartley transform of 33 points, form I.
// 162 additions, 138 subtractions, 172 multiplications (205 with `scale`); 16 constants; 37 values alive at most.
#include "kernel/kernel_body.h"

namespace zulg {

template <>
struct HartleyGraph<33> {
    static constexpr double inverseRoot = 0.17407765595569785;  // 1/sqrt(33), for `scale`
    static constexpr double c0 = 0.5;  // -cos 2 pi 1/3
    static constexpr double c1 = 0.8660254037844386;  // sin 2 pi 1/3
    static constexpr double c2 = 0.30901699437494745;  // cos 2 pi 1/5
    static constexpr double c3 = 0.8090169943749475;  // -cos 2 pi 3/5
    static constexpr double c4 = 0.9510565162951535;  // sin 2 pi 1/5
    static constexpr double c5 = 0.5877852522924731;  // -sin 2 pi 3/5
    static constexpr double c6 = 0.1;  // 1/10
    static constexpr double c7 = 0.6631646485033863;  // -P[1] of 11
    static constexpr double c8 = 0.014582488655234533;  // -Q[1] of 11
    static constexpr double c9 = 0.01576834991891041;  // -Q[2] of 11
    static constexpr double c10 = 0.6631375114867465;  // -P[2] of 11
    static constexpr double c11 = 0.16065279913205563;  // P[3] of 11
    static constexpr double c12 = 0.6435764741901582;  // -Q[3] of 11
    static constexpr double c13 = 0.23362193480940913;  // -Q[4] of 11
    static constexpr double c14 = 0.6208226732134613;  // P[4] of 11
    static constexpr double c15 = 0.33166247903553997;  // -beta of 11

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // input stage
        const V x1 = io.in(1);
        const V x32 = io.in(32);
        const V t0 = x1 + x32;
        const V t1 = x1 - x32;
        const V x2 = io.in(2);
        const V x31 = io.in(31);
        const V t2 = x2 + x31;
        const V t3 = x2 - x31;
        const V x3 = io.in(3);
        const V x30 = io.in(30);
        const V t4 = x3 + x30;
        const V t5 = x3 - x30;
        const V x4 = io.in(4);
        const V x29 = io.in(29);
        const V t6 = x4 + x29;
        const V t7 = x4 - x29;
        const V x5 = io.in(5);
        const V x28 = io.in(28);
        const V t8 = x5 + x28;
        const V t9 = x5 - x28;
        const V x6 = io.in(6);
        const V x27 = io.in(27);
        const V t10 = x6 + x27;
        const V t11 = x6 - x27;
        const V x7 = io.in(7);
        const V x26 = io.in(26);
        const V t12 = x7 + x26;
        const V t13 = x7 - x26;
        const V x8 = io.in(8);
        const V x25 = io.in(25);
        const V t14 = x8 + x25;
        const V t15 = x8 - x25;
        const V x9 = io.in(9);
        const V x24 = io.in(24);
        const V t16 = x9 + x24;
        const V t17 = x9 - x24;
        const V x10 = io.in(10);
        const V x23 = io.in(23);
        const V t18 = x10 + x23;
        const V t19 = x10 - x23;
        const V x11 = io.in(11);
        const V x22 = io.in(22);
        const V t20 = x11 + x22;
        const V t21 = x11 - x22;
        const V x12 = io.in(12);
        const V x21 = io.in(21);
        const V t22 = x12 + x21;
        const V t23 = x12 - x21;
        const V x13 = io.in(13);
        const V x20 = io.in(20);
        const V t24 = x13 + x20;
        const V t25 = x13 - x20;
        const V x14 = io.in(14);
        const V x19 = io.in(19);
        const V t26 = x14 + x19;
        const V t27 = x14 - x19;
        const V x15 = io.in(15);
        const V x18 = io.in(18);
        const V t28 = x15 + x18;
        const V t29 = x15 - x18;
        const V x16 = io.in(16);
        const V x17 = io.in(17);
        const V t30 = x16 + x17;
        const V t31 = x16 - x17;
        // spectrum block of 3, multiplier 2
        const V x0 = io.in(0);
        const V t32 = t20 + x0;
        const V t33 = c0 * t20;
        const V t34 = x0 - t33;
        const V t35 = c1 * t21;
        const V t36 = t34 - t35;
        const V t37 = t34 + t35;
        // complex block of 3, multiplier 2
        const V t38 = t27 - t15;
        const V t39 = t26 + t14;
        const V t40 = t27 + t15;
        const V t41 = t26 - t14;
        const V t42 = t38 + t5;
        const V t43 = t39 + t4;
        const V t44 = c0 * t38;
        const V t45 = t5 - t44;
        const V t46 = c0 * t39;
        const V t47 = t4 - t46;
        const V t48 = c1 * t40;
        const V t49 = c1 * t41;
        const V t50 = t45 + t49;
        const V t51 = t47 - t48;
        const V t52 = t45 - t49;
        const V t53 = t47 + t48;
        // complex block of 3, multiplier 2
        const V t54 = t31 + t9;
        const V t55 = t30 + t8;
        const V t56 = t9 - t31;
        const V t57 = t30 - t8;
        const V t58 = t11 - t54;
        const V t59 = t55 + t10;
        const V t60 = c0 * t54;
        const V t61 = t60 + t11;
        const V t62 = c0 * t55;
        const V t63 = t10 - t62;
        const V t64 = c1 * t56;
        const V t65 = c1 * t57;
        const V t66 = t61 + t65;
        const V t67 = t63 - t64;
        const V t68 = t61 - t65;
        const V t69 = t63 + t64;
        // complex block of 3, multiplier 2
        const V t70 = t25 + t3;
        const V t71 = t24 + t2;
        const V t72 = t3 - t25;
        const V t73 = t24 - t2;
        const V t74 = t17 - t70;
        const V t75 = t71 + t16;
        const V t76 = c0 * t70;
        const V t77 = t76 + t17;
        const V t78 = c0 * t71;
        const V t79 = t16 - t78;
        const V t80 = c1 * t72;
        const V t81 = c1 * t73;
        const V t82 = t77 + t81;
        const V t83 = t79 - t80;
        const V t84 = t77 - t81;
        const V t85 = t79 + t80;
        // complex block of 3, multiplier 2
        const V t86 = t1 - t19;
        const V t87 = t18 + t0;
        const V t88 = t19 + t1;
        const V t89 = t18 - t0;
        const V t90 = t86 + t23;
        const V t91 = t87 + t22;
        const V t92 = c0 * t86;
        const V t93 = t23 - t92;
        const V t94 = c0 * t87;
        const V t95 = t22 - t94;
        const V t96 = c1 * t88;
        const V t97 = c1 * t89;
        const V t98 = t93 + t97;
        const V t99 = t95 + t96;
        const V t100 = t93 - t97;
        const V t101 = t95 - t96;
        // complex block of 3, multiplier 2
        const V t102 = t7 - t13;
        const V t103 = t12 + t6;
        const V t104 = t13 + t7;
        const V t105 = t12 - t6;
        const V t106 = t102 + t29;
        const V t107 = t103 + t28;
        const V t108 = c0 * t102;
        const V t109 = t29 - t108;
        const V t110 = c0 * t103;
        const V t111 = t28 - t110;
        const V t112 = c1 * t104;
        const V t113 = c1 * t105;
        const V t114 = t109 + t113;
        const V t115 = t111 + t112;
        const V t116 = t109 - t113;
        const V t117 = t111 - t112;
        // real block of 5
        const V t118 = t59 + t107;
        const V t119 = t59 - t107;
        const V t120 = t75 + t91;
        const V t121 = t75 - t91;
        const V t122 = t118 + t120;
        const V t123 = t122 + t43;
        const V t124 = c2 * t118;
        const V t125 = c3 * t120;
        const V t126 = t124 - t125;
        const V t127 = t126 + t43;
        const V t128 = c4 * t119;
        const V t129 = c5 * t121;
        const V t130 = t129 - t128;
        const V t131 = c3 * t118;
        const V t132 = t43 - t131;
        const V t133 = c2 * t120;
        const V t134 = t132 + t133;
        const V t135 = c5 * t119;
        const V t136 = c4 * t121;
        const V t137 = t135 + t136;
        // real block of 5
        const V t138 = t106 - t58;
        const V t139 = t58 + t106;
        const V t140 = t74 + t90;
        const V t141 = t74 - t90;
        const V t142 = t138 + t140;
        const V t143 = t142 + t42;
        const V t144 = c2 * t138;
        const V t145 = c3 * t140;
        const V t146 = t144 - t145;
        const V t147 = t146 + t42;
        const V t148 = c4 * t139;
        const V t149 = c5 * t141;
        const V t150 = t148 + t149;
        const V t151 = c3 * t138;
        const V t152 = t42 - t151;
        const V t153 = c2 * t140;
        const V t154 = t152 + t153;
        const V t155 = c5 * t139;
        const V t156 = c4 * t141;
        const V t157 = t155 - t156;
        // spectrum block of 11, multiplier 3
        const V t158 = c6 * t123;
        const V t159 = t32 - t158;
        const V t160 = c7 * t157;
        const V t161 = c8 * t154;
        const V t162 = t161 + t160;
        const V t163 = c7 * t154;
        const V t164 = c8 * t157;
        const V t165 = t164 - t163;
        const V t166 = c9 * t130;
        const V t167 = c10 * t127;
        const V t168 = t166 - t167;
        const V t169 = c9 * t127;
        const V t170 = c10 * t130;
        const V t171 = t170 + t169;
        const V t172 = c11 * t150;
        const V t173 = c12 * t147;
        const V t174 = t172 - t173;
        const V t175 = c11 * t147;
        const V t176 = c12 * t150;
        const V t177 = t176 + t175;
        const V t178 = c13 * t137;
        const V t179 = c14 * t134;
        const V t180 = t179 - t178;
        const V t181 = c13 * t134;
        const V t182 = c14 * t137;
        const V t183 = t182 + t181;
        const V t184 = c15 * t143;
        // spectrum block of 2
        const V t185 = t159 - t184;
        const V t186 = t159 + t184;
        // complex block of 2
        const V t187 = t171 + t177;
        const V t188 = t168 + t174;
        const V t189 = t177 - t171;
        const V t190 = t168 - t174;
        // complex block of 2
        const V t191 = t183 + t165;
        const V t192 = t180 - t162;
        const V t193 = t165 - t183;
        const V t194 = t180 + t162;
        // spectrum block of 5, multiplier 2
        const V t195 = t188 + t192;
        const V t196 = t195 + t185;
        io.out(30, t196);
        const V t197 = c2 * t188;
        const V t198 = c3 * t192;
        const V t199 = t197 - t198;
        const V t200 = t199 + t185;
        const V t201 = c4 * t187;
        const V t202 = c5 * t191;
        const V t203 = t201 + t202;
        const V t204 = t200 + t203;
        io.out(18, t204);
        const V t205 = t200 - t203;
        io.out(6, t205);
        const V t206 = c3 * t188;
        const V t207 = t185 - t206;
        const V t208 = c2 * t192;
        const V t209 = t207 + t208;
        const V t210 = c5 * t187;
        const V t211 = c4 * t191;
        const V t212 = t211 - t210;
        const V t213 = t209 - t212;
        io.out(24, t213);
        const V t214 = t209 + t212;
        io.out(21, t214);
        // spectrum block of 5, multiplier 2
        const V t215 = t190 + t194;
        const V t216 = t215 + t186;
        io.out(3, t216);
        const V t217 = c2 * t190;
        const V t218 = c3 * t194;
        const V t219 = t217 - t218;
        const V t220 = t219 + t186;
        const V t221 = c4 * t189;
        const V t222 = c5 * t193;
        const V t223 = t221 + t222;
        const V t224 = t220 - t223;
        io.out(15, t224);
        const V t225 = t220 + t223;
        io.out(27, t225);
        const V t226 = c3 * t190;
        const V t227 = t186 - t226;
        const V t228 = c2 * t194;
        const V t229 = t227 + t228;
        const V t230 = c5 * t189;
        const V t231 = c4 * t193;
        const V t232 = t230 - t231;
        const V t233 = t229 - t232;
        io.out(9, t233);
        const V t234 = t229 + t232;
        io.out(12, t234);
        // spectrum block of 11, multiplier 3
        const V t235 = t32 + t123;
        io.out(0, t235);
        // real block of 5
        const V t236 = t69 + t117;
        const V t237 = t69 - t117;
        const V t238 = t85 + t101;
        const V t239 = t85 - t101;
        const V t240 = t236 + t238;
        const V t241 = t240 + t53;
        const V t242 = c2 * t236;
        const V t243 = c3 * t238;
        const V t244 = t242 - t243;
        const V t245 = t244 + t53;
        const V t246 = c4 * t237;
        const V t247 = c5 * t239;
        const V t248 = t247 - t246;
        const V t249 = c3 * t236;
        const V t250 = t53 - t249;
        const V t251 = c2 * t238;
        const V t252 = t250 + t251;
        const V t253 = c5 * t237;
        const V t254 = c4 * t239;
        const V t255 = t253 + t254;
        // real block of 5
        const V t256 = t116 - t68;
        const V t257 = t68 + t116;
        const V t258 = t84 + t100;
        const V t259 = t84 - t100;
        const V t260 = t256 + t258;
        const V t261 = t260 + t52;
        const V t262 = c2 * t256;
        const V t263 = c3 * t258;
        const V t264 = t262 - t263;
        const V t265 = t264 + t52;
        const V t266 = c4 * t257;
        const V t267 = c5 * t259;
        const V t268 = t266 + t267;
        const V t269 = c3 * t256;
        const V t270 = t52 - t269;
        const V t271 = c2 * t258;
        const V t272 = t270 + t271;
        const V t273 = c5 * t257;
        const V t274 = c4 * t259;
        const V t275 = t273 - t274;
        // spectrum block of 11, multiplier 3
        const V t276 = c6 * t241;
        const V t277 = t37 - t276;
        const V t278 = c7 * t275;
        const V t279 = c8 * t272;
        const V t280 = t279 + t278;
        const V t281 = c7 * t272;
        const V t282 = c8 * t275;
        const V t283 = t282 - t281;
        const V t284 = c9 * t248;
        const V t285 = c10 * t245;
        const V t286 = t284 - t285;
        const V t287 = c9 * t245;
        const V t288 = c10 * t248;
        const V t289 = t288 + t287;
        const V t290 = c11 * t268;
        const V t291 = c12 * t265;
        const V t292 = t290 - t291;
        const V t293 = c11 * t265;
        const V t294 = c12 * t268;
        const V t295 = t294 + t293;
        const V t296 = c13 * t255;
        const V t297 = c14 * t252;
        const V t298 = t297 - t296;
        const V t299 = c13 * t252;
        const V t300 = c14 * t255;
        const V t301 = t300 + t299;
        const V t302 = c15 * t261;
        // spectrum block of 2
        const V t303 = t277 - t302;
        const V t304 = t277 + t302;
        // complex block of 2
        const V t305 = t289 + t295;
        const V t306 = t286 + t292;
        const V t307 = t295 - t289;
        const V t308 = t286 - t292;
        // complex block of 2
        const V t309 = t301 + t283;
        const V t310 = t298 - t280;
        const V t311 = t283 - t301;
        const V t312 = t298 + t280;
        // spectrum block of 5, multiplier 2
        const V t313 = t306 + t310;
        const V t314 = t313 + t303;
        io.out(19, t314);
        const V t315 = c2 * t306;
        const V t316 = c3 * t310;
        const V t317 = t315 - t316;
        const V t318 = t317 + t303;
        const V t319 = c4 * t305;
        const V t320 = c5 * t309;
        const V t321 = t319 + t320;
        const V t322 = t318 + t321;
        io.out(7, t322);
        const V t323 = t318 - t321;
        io.out(28, t323);
        const V t324 = c3 * t306;
        const V t325 = t303 - t324;
        const V t326 = c2 * t310;
        const V t327 = t325 + t326;
        const V t328 = c5 * t305;
        const V t329 = c4 * t309;
        const V t330 = t329 - t328;
        const V t331 = t327 - t330;
        io.out(13, t331);
        const V t332 = t327 + t330;
        io.out(10, t332);
        // spectrum block of 5, multiplier 2
        const V t333 = t308 + t312;
        const V t334 = t333 + t304;
        io.out(25, t334);
        const V t335 = c2 * t308;
        const V t336 = c3 * t312;
        const V t337 = t335 - t336;
        const V t338 = t337 + t304;
        const V t339 = c4 * t307;
        const V t340 = c5 * t311;
        const V t341 = t339 + t340;
        const V t342 = t338 - t341;
        io.out(4, t342);
        const V t343 = t338 + t341;
        io.out(16, t343);
        const V t344 = c3 * t308;
        const V t345 = t304 - t344;
        const V t346 = c2 * t312;
        const V t347 = t345 + t346;
        const V t348 = c5 * t307;
        const V t349 = c4 * t311;
        const V t350 = t348 - t349;
        const V t351 = t347 - t350;
        io.out(31, t351);
        const V t352 = t347 + t350;
        io.out(1, t352);
        // spectrum block of 11, multiplier 3
        const V t353 = t37 + t241;
        io.out(22, t353);
        // real block of 5
        const V t354 = t67 + t115;
        const V t355 = t67 - t115;
        const V t356 = t83 + t99;
        const V t357 = t83 - t99;
        const V t358 = t354 + t356;
        const V t359 = t358 + t51;
        const V t360 = c2 * t354;
        const V t361 = c3 * t356;
        const V t362 = t360 - t361;
        const V t363 = t362 + t51;
        const V t364 = c4 * t355;
        const V t365 = c5 * t357;
        const V t366 = t365 - t364;
        const V t367 = c3 * t354;
        const V t368 = t51 - t367;
        const V t369 = c2 * t356;
        const V t370 = t368 + t369;
        const V t371 = c5 * t355;
        const V t372 = c4 * t357;
        const V t373 = t371 + t372;
        // real block of 5
        const V t374 = t114 - t66;
        const V t375 = t66 + t114;
        const V t376 = t82 + t98;
        const V t377 = t82 - t98;
        const V t378 = t374 + t376;
        const V t379 = t378 + t50;
        const V t380 = c2 * t374;
        const V t381 = c3 * t376;
        const V t382 = t380 - t381;
        const V t383 = t382 + t50;
        const V t384 = c4 * t375;
        const V t385 = c5 * t377;
        const V t386 = t384 + t385;
        const V t387 = c3 * t374;
        const V t388 = t50 - t387;
        const V t389 = c2 * t376;
        const V t390 = t388 + t389;
        const V t391 = c5 * t375;
        const V t392 = c4 * t377;
        const V t393 = t391 - t392;
        // spectrum block of 11, multiplier 3
        const V t394 = c6 * t359;
        const V t395 = t36 - t394;
        const V t396 = c7 * t393;
        const V t397 = c8 * t390;
        const V t398 = t397 + t396;
        const V t399 = c7 * t390;
        const V t400 = c8 * t393;
        const V t401 = t400 - t399;
        const V t402 = c9 * t366;
        const V t403 = c10 * t363;
        const V t404 = t402 - t403;
        const V t405 = c9 * t363;
        const V t406 = c10 * t366;
        const V t407 = t406 + t405;
        const V t408 = c11 * t386;
        const V t409 = c12 * t383;
        const V t410 = t408 - t409;
        const V t411 = c11 * t383;
        const V t412 = c12 * t386;
        const V t413 = t412 + t411;
        const V t414 = c13 * t373;
        const V t415 = c14 * t370;
        const V t416 = t415 - t414;
        const V t417 = c13 * t370;
        const V t418 = c14 * t373;
        const V t419 = t418 + t417;
        const V t420 = c15 * t379;
        // spectrum block of 2
        const V t421 = t395 - t420;
        const V t422 = t395 + t420;
        // complex block of 2
        const V t423 = t407 + t413;
        const V t424 = t404 + t410;
        const V t425 = t413 - t407;
        const V t426 = t404 - t410;
        // complex block of 2
        const V t427 = t419 + t401;
        const V t428 = t416 - t398;
        const V t429 = t401 - t419;
        const V t430 = t416 + t398;
        // spectrum block of 5, multiplier 2
        const V t431 = t424 + t428;
        const V t432 = t431 + t421;
        io.out(8, t432);
        const V t433 = c2 * t424;
        const V t434 = c3 * t428;
        const V t435 = t433 - t434;
        const V t436 = t435 + t421;
        const V t437 = c4 * t423;
        const V t438 = c5 * t427;
        const V t439 = t437 + t438;
        const V t440 = t436 + t439;
        io.out(29, t440);
        const V t441 = t436 - t439;
        io.out(17, t441);
        const V t442 = c3 * t424;
        const V t443 = t421 - t442;
        const V t444 = c2 * t428;
        const V t445 = t443 + t444;
        const V t446 = c5 * t423;
        const V t447 = c4 * t427;
        const V t448 = t447 - t446;
        const V t449 = t445 - t448;
        io.out(2, t449);
        const V t450 = t445 + t448;
        io.out(32, t450);
        // spectrum block of 5, multiplier 2
        const V t451 = t426 + t430;
        const V t452 = t451 + t422;
        io.out(14, t452);
        const V t453 = c2 * t426;
        const V t454 = c3 * t430;
        const V t455 = t453 - t454;
        const V t456 = t455 + t422;
        const V t457 = c4 * t425;
        const V t458 = c5 * t429;
        const V t459 = t457 + t458;
        const V t460 = t456 - t459;
        io.out(26, t460);
        const V t461 = t456 + t459;
        io.out(5, t461);
        const V t462 = c3 * t426;
        const V t463 = t422 - t462;
        const V t464 = c2 * t430;
        const V t465 = t463 + t464;
        const V t466 = c5 * t425;
        const V t467 = c4 * t429;
        const V t468 = t466 - t467;
        const V t469 = t465 - t468;
        io.out(20, t469);
        const V t470 = t465 + t468;
        io.out(23, t470);
        // spectrum block of 11, multiplier 3
        const V t471 = t36 + t359;
        io.out(11, t471);
    }
};

template Status ZULG_CALL kernel<Family::Hartley, 33, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::Hartley, 33, double>(const double*, double*, std::int32_t);

}  // namespace zulg
