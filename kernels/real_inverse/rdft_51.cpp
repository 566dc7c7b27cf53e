// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 51.
// Inverse DFT to 51 real points, prime-factor 3, 17.
// 224 additions, 224 subtractions, 245 multiplications (296 with `scale`); 23 constants; 54 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<51> {
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.5;  // -cos 2 pi 1/3
    static constexpr double c2 = 1.7320508075688772;  // sin 2 pi 1/3 times 2
    static constexpr double c3 = 0.8660254037844386;  // sin 2 pi 1/3
    static constexpr double c4 = 0.7071067811865476;  // cos 2 pi 1/8
    static constexpr double c5 = 0.3826834323650898;  // sin 2 pi 1/16
    static constexpr double c6 = 0.9238795325112867;  // cos 2 pi 1/16
    static constexpr double c7 = 0.0625;  // 1/16
    static constexpr double c8 = 0.4314031601143256;  // P[1] of 17
    static constexpr double c9 = 0.281986371024157;  // -Q[1] of 17
    static constexpr double c10 = 0.51483037864984;  // -Q[2] of 17
    static constexpr double c11 = 0.023972509657154296;  // P[2] of 17
    static constexpr double c12 = 0.4407489637509731;  // P[3] of 17
    static constexpr double c13 = 0.26714294104925057;  // -Q[3] of 17
    static constexpr double c14 = 0.31717619283272513;  // -Q[4] of 17
    static constexpr double c15 = 0.40623178445333147;  // P[4] of 17
    static constexpr double c16 = 0.508427430394848;  // -P[5] of 17
    static constexpr double c17 = 0.08441888427414843;  // -Q[5] of 17
    static constexpr double c18 = 0.39103912897466114;  // -Q[6] of 17
    static constexpr double c19 = 0.33572816326715627;  // P[6] of 17
    static constexpr double c20 = 0.4440524091413236;  // P[7] of 17
    static constexpr double c21 = 0.2616150950075063;  // -Q[7] of 17
    static constexpr double c22 = 0.2576941016011038;  // -beta of 17

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = c0 * x1r;
        const V x1i = io.im(1);
        const V t1 = c0 * x1i;
        const V x2r = io.re(2);
        const V t2 = c0 * x2r;
        const V x2i = io.im(2);
        const V t3 = c0 * x2i;
        const V x3r = io.re(3);
        const V t4 = c0 * x3r;
        const V x3i = io.im(3);
        const V t5 = c0 * x3i;
        const V x4r = io.re(4);
        const V t6 = c0 * x4r;
        const V x4i = io.im(4);
        const V t7 = c0 * x4i;
        const V x5r = io.re(5);
        const V t8 = c0 * x5r;
        const V x5i = io.im(5);
        const V t9 = c0 * x5i;
        const V x6r = io.re(6);
        const V t10 = c0 * x6r;
        const V x6i = io.im(6);
        const V t11 = c0 * x6i;
        const V x7r = io.re(7);
        const V t12 = c0 * x7r;
        const V x7i = io.im(7);
        const V t13 = c0 * x7i;
        const V x8r = io.re(8);
        const V t14 = c0 * x8r;
        const V x8i = io.im(8);
        const V t15 = c0 * x8i;
        const V x9r = io.re(9);
        const V t16 = c0 * x9r;
        const V x9i = io.im(9);
        const V t17 = c0 * x9i;
        const V x10r = io.re(10);
        const V t18 = c0 * x10r;
        const V x10i = io.im(10);
        const V t19 = c0 * x10i;
        const V x11r = io.re(11);
        const V t20 = c0 * x11r;
        const V x11i = io.im(11);
        const V t21 = c0 * x11i;
        const V x12r = io.re(12);
        const V t22 = c0 * x12r;
        const V x12i = io.im(12);
        const V t23 = c0 * x12i;
        const V x13r = io.re(13);
        const V t24 = c0 * x13r;
        const V x13i = io.im(13);
        const V t25 = c0 * x13i;
        const V x14r = io.re(14);
        const V t26 = c0 * x14r;
        const V x14i = io.im(14);
        const V t27 = c0 * x14i;
        const V x15r = io.re(15);
        const V t28 = c0 * x15r;
        const V x15i = io.im(15);
        const V t29 = c0 * x15i;
        const V x16r = io.re(16);
        const V t30 = c0 * x16r;
        const V x16i = io.im(16);
        const V t31 = c0 * x16i;
        const V x17r = io.re(17);
        const V t32 = c0 * x17r;
        const V x18r = io.re(18);
        const V t33 = c0 * x18r;
        const V x18i = io.im(18);
        const V t34 = c0 * x18i;
        const V x19r = io.re(19);
        const V t35 = c0 * x19r;
        const V x19i = io.im(19);
        const V t36 = c0 * x19i;
        const V x20r = io.re(20);
        const V t37 = c0 * x20r;
        const V x20i = io.im(20);
        const V t38 = c0 * x20i;
        const V x21r = io.re(21);
        const V t39 = c0 * x21r;
        const V x21i = io.im(21);
        const V t40 = c0 * x21i;
        const V x22r = io.re(22);
        const V t41 = c0 * x22r;
        const V x22i = io.im(22);
        const V t42 = c0 * x22i;
        const V x23r = io.re(23);
        const V t43 = c0 * x23r;
        const V x23i = io.im(23);
        const V t44 = c0 * x23i;
        const V x24r = io.re(24);
        const V t45 = c0 * x24r;
        const V x24i = io.im(24);
        const V t46 = c0 * x24i;
        const V x25r = io.re(25);
        const V t47 = c0 * x25r;
        const V x25i = io.im(25);
        const V t48 = c0 * x25i;
        // spectrum block of 3, multiplier 2
        const V x0r = io.re(0);
        const V t49 = t32 + x0r;
        const V t50 = c1 * t32;
        const V t51 = x0r - t50;
        const V x17i = io.im(17);
        const V t52 = c2 * x17i;
        const V t53 = t51 - t52;
        const V t54 = t51 + t52;
        // complex block of 3, multiplier 2
        const V t55 = t38 - t27;
        const V t56 = t37 + t26;
        const V t57 = t38 + t27;
        const V t58 = t37 - t26;
        const V t59 = t55 + t5;
        const V t60 = t56 + t4;
        const V t61 = c1 * t55;
        const V t62 = t5 - t61;
        const V t63 = c1 * t56;
        const V t64 = t4 - t63;
        const V t65 = c3 * t57;
        const V t66 = c3 * t58;
        const V t67 = t62 + t66;
        const V t68 = t64 - t65;
        const V t69 = t62 - t66;
        const V t70 = t64 + t65;
        // complex block of 3, multiplier 2
        const V t71 = t44 - t21;
        const V t72 = t43 + t20;
        const V t73 = t44 + t21;
        const V t74 = t43 - t20;
        const V t75 = t71 + t11;
        const V t76 = t72 + t10;
        const V t77 = c1 * t71;
        const V t78 = t11 - t77;
        const V t79 = c1 * t72;
        const V t80 = t10 - t79;
        const V t81 = c3 * t73;
        const V t82 = c3 * t74;
        const V t83 = t78 + t82;
        const V t84 = t80 - t81;
        const V t85 = t78 - t82;
        const V t86 = t80 + t81;
        // complex block of 3, multiplier 2
        const V t87 = t48 + t15;
        const V t88 = t47 + t14;
        const V t89 = t15 - t48;
        const V t90 = t47 - t14;
        const V t91 = t17 - t87;
        const V t92 = t88 + t16;
        const V t93 = c1 * t87;
        const V t94 = t93 + t17;
        const V t95 = c1 * t88;
        const V t96 = t16 - t95;
        const V t97 = c3 * t89;
        const V t98 = c3 * t90;
        const V t99 = t94 + t98;
        const V t100 = t96 - t97;
        const V t101 = t94 - t98;
        const V t102 = t96 + t97;
        // complex block of 3, multiplier 2
        const V t103 = t42 + t9;
        const V t104 = t41 + t8;
        const V t105 = t9 - t42;
        const V t106 = t41 - t8;
        const V t107 = t23 - t103;
        const V t108 = t104 + t22;
        const V t109 = c1 * t103;
        const V t110 = t109 + t23;
        const V t111 = c1 * t104;
        const V t112 = t22 - t111;
        const V t113 = c3 * t105;
        const V t114 = c3 * t106;
        const V t115 = t110 + t114;
        const V t116 = t112 - t113;
        const V t117 = t110 - t114;
        const V t118 = t112 + t113;
        // complex block of 3, multiplier 2
        const V t119 = t36 + t3;
        const V t120 = t35 + t2;
        const V t121 = t3 - t36;
        const V t122 = t35 - t2;
        const V t123 = t29 - t119;
        const V t124 = t120 + t28;
        const V t125 = c1 * t119;
        const V t126 = t125 + t29;
        const V t127 = c1 * t120;
        const V t128 = t28 - t127;
        const V t129 = c3 * t121;
        const V t130 = c3 * t122;
        const V t131 = t126 + t130;
        const V t132 = t128 - t129;
        const V t133 = t126 - t130;
        const V t134 = t128 + t129;
        // complex block of 3, multiplier 2
        const V t135 = t1 - t31;
        const V t136 = t30 + t0;
        const V t137 = t31 + t1;
        const V t138 = t30 - t0;
        const V t139 = t135 + t34;
        const V t140 = t136 + t33;
        const V t141 = c1 * t135;
        const V t142 = t34 - t141;
        const V t143 = c1 * t136;
        const V t144 = t33 - t143;
        const V t145 = c3 * t137;
        const V t146 = c3 * t138;
        const V t147 = t142 + t146;
        const V t148 = t144 + t145;
        const V t149 = t142 - t146;
        const V t150 = t144 - t145;
        // complex block of 3, multiplier 2
        const V t151 = t7 - t25;
        const V t152 = t24 + t6;
        const V t153 = t25 + t7;
        const V t154 = t24 - t6;
        const V t155 = t151 + t40;
        const V t156 = t152 + t39;
        const V t157 = c1 * t151;
        const V t158 = t40 - t157;
        const V t159 = c1 * t152;
        const V t160 = t39 - t159;
        const V t161 = c3 * t153;
        const V t162 = c3 * t154;
        const V t163 = t158 + t162;
        const V t164 = t160 + t161;
        const V t165 = t158 - t162;
        const V t166 = t160 - t161;
        // complex block of 3, multiplier 2
        const V t167 = t13 - t19;
        const V t168 = t18 + t12;
        const V t169 = t19 + t13;
        const V t170 = t18 - t12;
        const V t171 = t167 + t46;
        const V t172 = t168 + t45;
        const V t173 = c1 * t167;
        const V t174 = t46 - t173;
        const V t175 = c1 * t168;
        const V t176 = t45 - t175;
        const V t177 = c3 * t169;
        const V t178 = c3 * t170;
        const V t179 = t174 + t178;
        const V t180 = t176 + t177;
        const V t181 = t174 - t178;
        const V t182 = t176 - t177;
        // real block of 2
        const V t183 = t60 + t108;
        const V t184 = t60 - t108;
        // real block of 2
        const V t185 = t92 + t124;
        const V t186 = t92 - t124;
        // real block of 2
        const V t187 = t172 + t76;
        const V t188 = t172 - t76;
        // real block of 2
        const V t189 = t156 + t140;
        const V t190 = t156 - t140;
        // real block of 2
        const V t191 = t183 + t187;
        const V t192 = t183 - t187;
        // real block of 2
        const V t193 = t185 + t189;
        const V t194 = t185 - t189;
        // real block of 2
        const V t195 = t191 + t193;
        const V t196 = t191 - t193;
        // skew block of 4
        const V t197 = t186 - t190;
        const V t198 = c4 * t197;
        const V t199 = t186 + t190;
        const V t200 = c4 * t199;
        const V t201 = t200 - t188;
        const V t202 = t184 + t198;
        const V t203 = t188 + t200;
        const V t204 = t184 - t198;
        // skew block of 8
        const V t205 = c5 * t123;
        const V t206 = c6 * t91;
        const V t207 = t206 - t205;
        const V t208 = c5 * t91;
        const V t209 = c6 * t123;
        const V t210 = t209 + t208;
        const V t211 = c4 * t171;
        const V t212 = c4 * t75;
        const V t213 = t212 - t211;
        const V t214 = t212 + t211;
        const V t215 = c6 * t139;
        const V t216 = c5 * t155;
        const V t217 = t215 - t216;
        const V t218 = c6 * t155;
        const V t219 = c5 * t139;
        const V t220 = t219 + t218;
        // complex block of 2
        const V t221 = t59 + t213;
        const V t222 = t107 + t214;
        const V t223 = t59 - t213;
        const V t224 = t107 - t214;
        // complex block of 2
        const V t225 = t207 + t217;
        const V t226 = t220 - t210;
        const V t227 = t207 - t217;
        const V t228 = t210 + t220;
        // complex block of 2
        const V t229 = t221 + t225;
        const V t230 = t222 + t226;
        const V t231 = t221 - t225;
        const V t232 = t222 - t226;
        // complex block of 2
        const V t233 = t223 - t228;
        const V t234 = t224 - t227;
        const V t235 = t223 + t228;
        const V t236 = t224 + t227;
        // spectrum block of 17, multiplier 3
        const V t237 = c7 * t195;
        const V t238 = t49 - t237;
        const V t239 = c8 * t230;
        const V t240 = c9 * t229;
        const V t241 = t240 + t239;
        const V t242 = c8 * t229;
        const V t243 = c9 * t230;
        const V t244 = t242 - t243;
        const V t245 = c10 * t203;
        const V t246 = c11 * t202;
        const V t247 = t246 - t245;
        const V t248 = c10 * t202;
        const V t249 = c11 * t203;
        const V t250 = t249 + t248;
        const V t251 = c12 * t236;
        const V t252 = c13 * t235;
        const V t253 = t251 - t252;
        const V t254 = c12 * t235;
        const V t255 = c13 * t236;
        const V t256 = t255 + t254;
        const V t257 = c14 * t194;
        const V t258 = c15 * t192;
        const V t259 = t258 - t257;
        const V t260 = c14 * t192;
        const V t261 = c15 * t194;
        const V t262 = t261 + t260;
        const V t263 = c16 * t234;
        const V t264 = c17 * t233;
        const V t265 = t263 - t264;
        const V t266 = c16 * t233;
        const V t267 = c17 * t234;
        const V t268 = t267 + t266;
        const V t269 = c18 * t201;
        const V t270 = c19 * t204;
        const V t271 = t270 - t269;
        const V t272 = c18 * t204;
        const V t273 = c19 * t201;
        const V t274 = t273 + t272;
        const V t275 = c20 * t232;
        const V t276 = c21 * t231;
        const V t277 = t275 - t276;
        const V t278 = c20 * t231;
        const V t279 = c21 * t232;
        const V t280 = t279 + t278;
        const V t281 = c22 * t196;
        // spectrum block of 2
        const V t282 = t238 - t281;
        const V t283 = t238 + t281;
        // spectrum block of 2
        const V t284 = t282 + t259;
        const V t285 = t282 - t259;
        // spectrum block of 2
        const V t286 = t283 + t262;
        const V t287 = t283 - t262;
        // complex block of 2
        const V t288 = t244 - t280;
        const V t289 = t277 - t241;
        const V t290 = t244 + t280;
        const V t291 = t241 + t277;
        // complex block of 2
        const V t292 = t268 + t256;
        const V t293 = t265 + t253;
        const V t294 = t256 - t268;
        const V t295 = t265 - t253;
        // complex block of 2
        const V t296 = t288 - t292;
        const V t297 = t289 + t293;
        const V t298 = t288 + t292;
        const V t299 = t289 - t293;
        // complex block of 2
        const V t300 = t290 + t295;
        const V t301 = t291 + t294;
        const V t302 = t290 - t295;
        const V t303 = t294 - t291;
        // spectrum block of 16
        const V t304 = c5 * t300;
        const V t305 = c6 * t301;
        const V t306 = t305 + t304;
        const V t307 = c5 * t301;
        const V t308 = c6 * t300;
        const V t309 = t308 - t307;
        const V t310 = c4 * t299;
        const V t311 = c4 * t298;
        const V t312 = t310 + t311;
        const V t313 = t311 - t310;
        const V t314 = c6 * t302;
        const V t315 = c5 * t303;
        const V t316 = t315 - t314;
        const V t317 = c6 * t303;
        const V t318 = c5 * t302;
        const V t319 = t318 + t317;
        // mirrored skew block of 4
        const V t320 = t247 - t271;
        const V t321 = c4 * t320;
        const V t322 = t250 + t274;
        const V t323 = c4 * t322;
        const V t324 = t247 + t271;
        const V t325 = t321 + t323;
        const V t326 = t274 - t250;
        const V t327 = t321 - t323;
        // spectrum block of 2
        const V t328 = t284 + t324;
        const V t329 = t284 - t324;
        // spectrum block of 2
        const V t330 = t328 + t297;
        io.out(3, t330);
        const V t331 = t328 - t297;
        io.out(48, t331);
        // spectrum block of 2
        const V t332 = t329 - t296;
        io.out(12, t332);
        const V t333 = t329 + t296;
        io.out(39, t333);
        // spectrum block of 2
        const V t334 = t286 + t325;
        const V t335 = t286 - t325;
        // spectrum block of 2
        const V t336 = t334 - t306;
        io.out(18, t336);
        const V t337 = t334 + t306;
        io.out(33, t337);
        // spectrum block of 2
        const V t338 = t335 - t309;
        io.out(21, t338);
        const V t339 = t335 + t309;
        io.out(30, t339);
        // spectrum block of 2
        const V t340 = t285 - t326;
        const V t341 = t285 + t326;
        // spectrum block of 2
        const V t342 = t340 - t313;
        io.out(6, t342);
        const V t343 = t340 + t313;
        io.out(45, t343);
        // spectrum block of 2
        const V t344 = t341 - t312;
        io.out(24, t344);
        const V t345 = t341 + t312;
        io.out(27, t345);
        // spectrum block of 2
        const V t346 = t287 - t327;
        const V t347 = t287 + t327;
        // spectrum block of 2
        const V t348 = t346 + t316;
        io.out(36, t348);
        const V t349 = t346 - t316;
        io.out(15, t349);
        // spectrum block of 2
        const V t350 = t347 - t319;
        io.out(42, t350);
        const V t351 = t347 + t319;
        io.out(9, t351);
        // spectrum block of 17, multiplier 3
        const V t352 = t49 + t195;
        io.out(0, t352);
        // real block of 2
        const V t353 = t70 + t118;
        const V t354 = t70 - t118;
        // real block of 2
        const V t355 = t102 + t134;
        const V t356 = t102 - t134;
        // real block of 2
        const V t357 = t182 + t86;
        const V t358 = t182 - t86;
        // real block of 2
        const V t359 = t166 + t150;
        const V t360 = t166 - t150;
        // real block of 2
        const V t361 = t353 + t357;
        const V t362 = t353 - t357;
        // real block of 2
        const V t363 = t355 + t359;
        const V t364 = t355 - t359;
        // real block of 2
        const V t365 = t361 + t363;
        const V t366 = t361 - t363;
        // skew block of 4
        const V t367 = t356 - t360;
        const V t368 = c4 * t367;
        const V t369 = t356 + t360;
        const V t370 = c4 * t369;
        const V t371 = t370 - t358;
        const V t372 = t354 + t368;
        const V t373 = t358 + t370;
        const V t374 = t354 - t368;
        // skew block of 8
        const V t375 = c5 * t133;
        const V t376 = c6 * t101;
        const V t377 = t376 - t375;
        const V t378 = c5 * t101;
        const V t379 = c6 * t133;
        const V t380 = t379 + t378;
        const V t381 = c4 * t181;
        const V t382 = c4 * t85;
        const V t383 = t382 - t381;
        const V t384 = t382 + t381;
        const V t385 = c6 * t149;
        const V t386 = c5 * t165;
        const V t387 = t385 - t386;
        const V t388 = c6 * t165;
        const V t389 = c5 * t149;
        const V t390 = t389 + t388;
        // complex block of 2
        const V t391 = t69 + t383;
        const V t392 = t117 + t384;
        const V t393 = t69 - t383;
        const V t394 = t117 - t384;
        // complex block of 2
        const V t395 = t377 + t387;
        const V t396 = t390 - t380;
        const V t397 = t377 - t387;
        const V t398 = t380 + t390;
        // complex block of 2
        const V t399 = t391 + t395;
        const V t400 = t392 + t396;
        const V t401 = t391 - t395;
        const V t402 = t392 - t396;
        // complex block of 2
        const V t403 = t393 - t398;
        const V t404 = t394 - t397;
        const V t405 = t393 + t398;
        const V t406 = t394 + t397;
        // spectrum block of 17, multiplier 3
        const V t407 = c7 * t365;
        const V t408 = t54 - t407;
        const V t409 = c8 * t400;
        const V t410 = c9 * t399;
        const V t411 = t410 + t409;
        const V t412 = c8 * t399;
        const V t413 = c9 * t400;
        const V t414 = t412 - t413;
        const V t415 = c10 * t373;
        const V t416 = c11 * t372;
        const V t417 = t416 - t415;
        const V t418 = c10 * t372;
        const V t419 = c11 * t373;
        const V t420 = t419 + t418;
        const V t421 = c12 * t406;
        const V t422 = c13 * t405;
        const V t423 = t421 - t422;
        const V t424 = c12 * t405;
        const V t425 = c13 * t406;
        const V t426 = t425 + t424;
        const V t427 = c14 * t364;
        const V t428 = c15 * t362;
        const V t429 = t428 - t427;
        const V t430 = c14 * t362;
        const V t431 = c15 * t364;
        const V t432 = t431 + t430;
        const V t433 = c16 * t404;
        const V t434 = c17 * t403;
        const V t435 = t433 - t434;
        const V t436 = c16 * t403;
        const V t437 = c17 * t404;
        const V t438 = t437 + t436;
        const V t439 = c18 * t371;
        const V t440 = c19 * t374;
        const V t441 = t440 - t439;
        const V t442 = c18 * t374;
        const V t443 = c19 * t371;
        const V t444 = t443 + t442;
        const V t445 = c20 * t402;
        const V t446 = c21 * t401;
        const V t447 = t445 - t446;
        const V t448 = c20 * t401;
        const V t449 = c21 * t402;
        const V t450 = t449 + t448;
        const V t451 = c22 * t366;
        // spectrum block of 2
        const V t452 = t408 - t451;
        const V t453 = t408 + t451;
        // spectrum block of 2
        const V t454 = t452 + t429;
        const V t455 = t452 - t429;
        // spectrum block of 2
        const V t456 = t453 + t432;
        const V t457 = t453 - t432;
        // complex block of 2
        const V t458 = t414 - t450;
        const V t459 = t447 - t411;
        const V t460 = t414 + t450;
        const V t461 = t411 + t447;
        // complex block of 2
        const V t462 = t438 + t426;
        const V t463 = t435 + t423;
        const V t464 = t426 - t438;
        const V t465 = t435 - t423;
        // complex block of 2
        const V t466 = t458 - t462;
        const V t467 = t459 + t463;
        const V t468 = t458 + t462;
        const V t469 = t459 - t463;
        // complex block of 2
        const V t470 = t460 + t465;
        const V t471 = t461 + t464;
        const V t472 = t460 - t465;
        const V t473 = t464 - t461;
        // spectrum block of 16
        const V t474 = c5 * t470;
        const V t475 = c6 * t471;
        const V t476 = t475 + t474;
        const V t477 = c5 * t471;
        const V t478 = c6 * t470;
        const V t479 = t478 - t477;
        const V t480 = c4 * t469;
        const V t481 = c4 * t468;
        const V t482 = t480 + t481;
        const V t483 = t481 - t480;
        const V t484 = c6 * t472;
        const V t485 = c5 * t473;
        const V t486 = t485 - t484;
        const V t487 = c6 * t473;
        const V t488 = c5 * t472;
        const V t489 = t488 + t487;
        // mirrored skew block of 4
        const V t490 = t417 - t441;
        const V t491 = c4 * t490;
        const V t492 = t420 + t444;
        const V t493 = c4 * t492;
        const V t494 = t417 + t441;
        const V t495 = t491 + t493;
        const V t496 = t444 - t420;
        const V t497 = t491 - t493;
        // spectrum block of 2
        const V t498 = t454 + t494;
        const V t499 = t454 - t494;
        // spectrum block of 2
        const V t500 = t498 + t467;
        io.out(20, t500);
        const V t501 = t498 - t467;
        io.out(14, t501);
        // spectrum block of 2
        const V t502 = t499 - t466;
        io.out(29, t502);
        const V t503 = t499 + t466;
        io.out(5, t503);
        // spectrum block of 2
        const V t504 = t456 + t495;
        const V t505 = t456 - t495;
        // spectrum block of 2
        const V t506 = t504 - t476;
        io.out(35, t506);
        const V t507 = t504 + t476;
        io.out(50, t507);
        // spectrum block of 2
        const V t508 = t505 - t479;
        io.out(38, t508);
        const V t509 = t505 + t479;
        io.out(47, t509);
        // spectrum block of 2
        const V t510 = t455 - t496;
        const V t511 = t455 + t496;
        // spectrum block of 2
        const V t512 = t510 - t483;
        io.out(23, t512);
        const V t513 = t510 + t483;
        io.out(11, t513);
        // spectrum block of 2
        const V t514 = t511 - t482;
        io.out(41, t514);
        const V t515 = t511 + t482;
        io.out(44, t515);
        // spectrum block of 2
        const V t516 = t457 - t497;
        const V t517 = t457 + t497;
        // spectrum block of 2
        const V t518 = t516 + t486;
        io.out(2, t518);
        const V t519 = t516 - t486;
        io.out(32, t519);
        // spectrum block of 2
        const V t520 = t517 - t489;
        io.out(8, t520);
        const V t521 = t517 + t489;
        io.out(26, t521);
        // spectrum block of 17, multiplier 3
        const V t522 = t54 + t365;
        io.out(17, t522);
        // real block of 2
        const V t523 = t68 + t116;
        const V t524 = t68 - t116;
        // real block of 2
        const V t525 = t100 + t132;
        const V t526 = t100 - t132;
        // real block of 2
        const V t527 = t180 + t84;
        const V t528 = t180 - t84;
        // real block of 2
        const V t529 = t164 + t148;
        const V t530 = t164 - t148;
        // real block of 2
        const V t531 = t523 + t527;
        const V t532 = t523 - t527;
        // real block of 2
        const V t533 = t525 + t529;
        const V t534 = t525 - t529;
        // real block of 2
        const V t535 = t531 + t533;
        const V t536 = t531 - t533;
        // skew block of 4
        const V t537 = t526 - t530;
        const V t538 = c4 * t537;
        const V t539 = t526 + t530;
        const V t540 = c4 * t539;
        const V t541 = t540 - t528;
        const V t542 = t524 + t538;
        const V t543 = t528 + t540;
        const V t544 = t524 - t538;
        // skew block of 8
        const V t545 = c5 * t131;
        const V t546 = c6 * t99;
        const V t547 = t546 - t545;
        const V t548 = c5 * t99;
        const V t549 = c6 * t131;
        const V t550 = t549 + t548;
        const V t551 = c4 * t179;
        const V t552 = c4 * t83;
        const V t553 = t552 - t551;
        const V t554 = t552 + t551;
        const V t555 = c6 * t147;
        const V t556 = c5 * t163;
        const V t557 = t555 - t556;
        const V t558 = c6 * t163;
        const V t559 = c5 * t147;
        const V t560 = t559 + t558;
        // complex block of 2
        const V t561 = t67 + t553;
        const V t562 = t115 + t554;
        const V t563 = t67 - t553;
        const V t564 = t115 - t554;
        // complex block of 2
        const V t565 = t547 + t557;
        const V t566 = t560 - t550;
        const V t567 = t547 - t557;
        const V t568 = t550 + t560;
        // complex block of 2
        const V t569 = t561 + t565;
        const V t570 = t562 + t566;
        const V t571 = t561 - t565;
        const V t572 = t562 - t566;
        // complex block of 2
        const V t573 = t563 - t568;
        const V t574 = t564 - t567;
        const V t575 = t563 + t568;
        const V t576 = t564 + t567;
        // spectrum block of 17, multiplier 3
        const V t577 = c7 * t535;
        const V t578 = t53 - t577;
        const V t579 = c8 * t570;
        const V t580 = c9 * t569;
        const V t581 = t580 + t579;
        const V t582 = c8 * t569;
        const V t583 = c9 * t570;
        const V t584 = t582 - t583;
        const V t585 = c10 * t543;
        const V t586 = c11 * t542;
        const V t587 = t586 - t585;
        const V t588 = c10 * t542;
        const V t589 = c11 * t543;
        const V t590 = t589 + t588;
        const V t591 = c12 * t576;
        const V t592 = c13 * t575;
        const V t593 = t591 - t592;
        const V t594 = c12 * t575;
        const V t595 = c13 * t576;
        const V t596 = t595 + t594;
        const V t597 = c14 * t534;
        const V t598 = c15 * t532;
        const V t599 = t598 - t597;
        const V t600 = c14 * t532;
        const V t601 = c15 * t534;
        const V t602 = t601 + t600;
        const V t603 = c16 * t574;
        const V t604 = c17 * t573;
        const V t605 = t603 - t604;
        const V t606 = c16 * t573;
        const V t607 = c17 * t574;
        const V t608 = t607 + t606;
        const V t609 = c18 * t541;
        const V t610 = c19 * t544;
        const V t611 = t610 - t609;
        const V t612 = c18 * t544;
        const V t613 = c19 * t541;
        const V t614 = t613 + t612;
        const V t615 = c20 * t572;
        const V t616 = c21 * t571;
        const V t617 = t615 - t616;
        const V t618 = c20 * t571;
        const V t619 = c21 * t572;
        const V t620 = t619 + t618;
        const V t621 = c22 * t536;
        // spectrum block of 2
        const V t622 = t578 - t621;
        const V t623 = t578 + t621;
        // spectrum block of 2
        const V t624 = t622 + t599;
        const V t625 = t622 - t599;
        // spectrum block of 2
        const V t626 = t623 + t602;
        const V t627 = t623 - t602;
        // complex block of 2
        const V t628 = t584 - t620;
        const V t629 = t617 - t581;
        const V t630 = t584 + t620;
        const V t631 = t581 + t617;
        // complex block of 2
        const V t632 = t608 + t596;
        const V t633 = t605 + t593;
        const V t634 = t596 - t608;
        const V t635 = t605 - t593;
        // complex block of 2
        const V t636 = t628 - t632;
        const V t637 = t629 + t633;
        const V t638 = t628 + t632;
        const V t639 = t629 - t633;
        // complex block of 2
        const V t640 = t630 + t635;
        const V t641 = t631 + t634;
        const V t642 = t630 - t635;
        const V t643 = t634 - t631;
        // spectrum block of 16
        const V t644 = c5 * t640;
        const V t645 = c6 * t641;
        const V t646 = t645 + t644;
        const V t647 = c5 * t641;
        const V t648 = c6 * t640;
        const V t649 = t648 - t647;
        const V t650 = c4 * t639;
        const V t651 = c4 * t638;
        const V t652 = t650 + t651;
        const V t653 = t651 - t650;
        const V t654 = c6 * t642;
        const V t655 = c5 * t643;
        const V t656 = t655 - t654;
        const V t657 = c6 * t643;
        const V t658 = c5 * t642;
        const V t659 = t658 + t657;
        // mirrored skew block of 4
        const V t660 = t587 - t611;
        const V t661 = c4 * t660;
        const V t662 = t590 + t614;
        const V t663 = c4 * t662;
        const V t664 = t587 + t611;
        const V t665 = t661 + t663;
        const V t666 = t614 - t590;
        const V t667 = t661 - t663;
        // spectrum block of 2
        const V t668 = t624 + t664;
        const V t669 = t624 - t664;
        // spectrum block of 2
        const V t670 = t668 + t637;
        io.out(37, t670);
        const V t671 = t668 - t637;
        io.out(31, t671);
        // spectrum block of 2
        const V t672 = t669 - t636;
        io.out(46, t672);
        const V t673 = t669 + t636;
        io.out(22, t673);
        // spectrum block of 2
        const V t674 = t626 + t665;
        const V t675 = t626 - t665;
        // spectrum block of 2
        const V t676 = t674 - t646;
        io.out(1, t676);
        const V t677 = t674 + t646;
        io.out(16, t677);
        // spectrum block of 2
        const V t678 = t675 - t649;
        io.out(4, t678);
        const V t679 = t675 + t649;
        io.out(13, t679);
        // spectrum block of 2
        const V t680 = t625 - t666;
        const V t681 = t625 + t666;
        // spectrum block of 2
        const V t682 = t680 - t653;
        io.out(40, t682);
        const V t683 = t680 + t653;
        io.out(28, t683);
        // spectrum block of 2
        const V t684 = t681 - t652;
        io.out(7, t684);
        const V t685 = t681 + t652;
        io.out(10, t685);
        // spectrum block of 2
        const V t686 = t627 - t667;
        const V t687 = t627 + t667;
        // spectrum block of 2
        const V t688 = t686 + t656;
        io.out(19, t688);
        const V t689 = t686 - t656;
        io.out(49, t689);
        // spectrum block of 2
        const V t690 = t687 - t659;
        io.out(25, t690);
        const V t691 = t687 + t659;
        io.out(43, t691);
        // spectrum block of 17, multiplier 3
        const V t692 = t53 + t535;
        io.out(34, t692);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 51, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 51, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 51, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 51, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 51, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 51, double>(const double*, double*, std::int32_t);

}  // namespace zulg
