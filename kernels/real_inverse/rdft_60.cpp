// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 60.
// Inverse DFT to 60 real points, prime-factor 4, 3, 5.
// 199 additions, 175 subtractions, 194 multiplications (254 with `scale`); 7 constants; 63 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<60> {
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.5;  // -cos 2 pi 1/3
    static constexpr double c2 = 0.8660254037844386;  // sin 2 pi 1/3
    static constexpr double c3 = 0.30901699437494745;  // cos 2 pi 1/5
    static constexpr double c4 = 0.8090169943749475;  // -cos 2 pi 2/5
    static constexpr double c5 = 0.9510565162951535;  // sin 2 pi 1/5
    static constexpr double c6 = 0.5877852522924731;  // sin 2 pi 2/5

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
        const V x17i = io.im(17);
        const V t33 = c0 * x17i;
        const V x18r = io.re(18);
        const V t34 = c0 * x18r;
        const V x18i = io.im(18);
        const V t35 = c0 * x18i;
        const V x19r = io.re(19);
        const V t36 = c0 * x19r;
        const V x19i = io.im(19);
        const V t37 = c0 * x19i;
        const V x20r = io.re(20);
        const V t38 = c0 * x20r;
        const V x20i = io.im(20);
        const V t39 = c0 * x20i;
        const V x21r = io.re(21);
        const V t40 = c0 * x21r;
        const V x21i = io.im(21);
        const V t41 = c0 * x21i;
        const V x22r = io.re(22);
        const V t42 = c0 * x22r;
        const V x22i = io.im(22);
        const V t43 = c0 * x22i;
        const V x23r = io.re(23);
        const V t44 = c0 * x23r;
        const V x23i = io.im(23);
        const V t45 = c0 * x23i;
        const V x24r = io.re(24);
        const V t46 = c0 * x24r;
        const V x24i = io.im(24);
        const V t47 = c0 * x24i;
        const V x25r = io.re(25);
        const V t48 = c0 * x25r;
        const V x25i = io.im(25);
        const V t49 = c0 * x25i;
        const V x26r = io.re(26);
        const V t50 = c0 * x26r;
        const V x26i = io.im(26);
        const V t51 = c0 * x26i;
        const V x27r = io.re(27);
        const V t52 = c0 * x27r;
        const V x27i = io.im(27);
        const V t53 = c0 * x27i;
        const V x28r = io.re(28);
        const V t54 = c0 * x28r;
        const V x28i = io.im(28);
        const V t55 = c0 * x28i;
        const V x29r = io.re(29);
        const V t56 = c0 * x29r;
        const V x29i = io.im(29);
        const V t57 = c0 * x29i;
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x30r = io.re(30);
        const V t58 = x0r + x30r;
        const V t59 = x0r - x30r;
        // spectrum block of 2
        const V t60 = t58 + t28;
        const V t61 = t58 - t28;
        // spectrum block of 2
        const V t62 = t59 + t29;
        const V t63 = t59 - t29;
        // complex block of 2
        const V t64 = t7 - t51;
        const V t65 = t6 + t50;
        const V t66 = t7 + t51;
        const V t67 = t6 - t50;
        // complex block of 2
        const V t68 = t37 - t21;
        const V t69 = t36 + t20;
        const V t70 = t37 + t21;
        const V t71 = t36 - t20;
        // complex block of 2
        const V t72 = t64 + t68;
        const V t73 = t65 + t69;
        const V t74 = t64 - t68;
        const V t75 = t65 - t69;
        // complex block of 2
        const V t76 = t66 - t71;
        const V t77 = t67 + t70;
        const V t78 = t66 + t71;
        const V t79 = t67 - t70;
        // complex block of 2
        const V t80 = t15 - t43;
        const V t81 = t14 + t42;
        const V t82 = t15 + t43;
        const V t83 = t14 - t42;
        // complex block of 2
        const V t84 = t45 - t13;
        const V t85 = t44 + t12;
        const V t86 = t45 + t13;
        const V t87 = t44 - t12;
        // complex block of 2
        const V t88 = t80 + t84;
        const V t89 = t81 + t85;
        const V t90 = t80 - t84;
        const V t91 = t81 - t85;
        // complex block of 2
        const V t92 = t82 - t87;
        const V t93 = t83 + t86;
        const V t94 = t82 + t87;
        const V t95 = t83 - t86;
        // complex block of 2
        const V t96 = t23 - t35;
        const V t97 = t22 + t34;
        const V t98 = t23 + t35;
        const V t99 = t22 - t34;
        // complex block of 2
        const V t100 = t53 - t5;
        const V t101 = t52 + t4;
        const V t102 = t53 + t5;
        const V t103 = t52 - t4;
        // complex block of 2
        const V t104 = t96 + t100;
        const V t105 = t97 + t101;
        const V t106 = t96 - t100;
        const V t107 = t97 - t101;
        // complex block of 2
        const V t108 = t98 - t103;
        const V t109 = t99 + t102;
        const V t110 = t98 + t103;
        const V t111 = t99 - t102;
        // complex block of 2
        const V t112 = t31 - t27;
        const V t113 = t30 + t26;
        const V t114 = t31 + t27;
        const V t115 = t30 - t26;
        // complex block of 2
        const V t116 = t1 - t57;
        const V t117 = t56 + t0;
        const V t118 = t57 + t1;
        const V t119 = t56 - t0;
        // complex block of 2
        const V t120 = t112 + t116;
        const V t121 = t113 + t117;
        const V t122 = t112 - t116;
        const V t123 = t113 - t117;
        // complex block of 2
        const V t124 = t114 - t119;
        const V t125 = t115 - t118;
        const V t126 = t114 + t119;
        const V t127 = t115 + t118;
        // complex block of 2
        const V t128 = t39 - t19;
        const V t129 = t38 + t18;
        const V t130 = t39 + t19;
        const V t131 = t38 - t18;
        // complex block of 2
        const V t132 = t9 - t49;
        const V t133 = t48 + t8;
        const V t134 = t49 + t9;
        const V t135 = t48 - t8;
        // complex block of 2
        const V t136 = t128 + t132;
        const V t137 = t129 + t133;
        const V t138 = t128 - t132;
        const V t139 = t129 - t133;
        // complex block of 2
        const V t140 = t130 - t135;
        const V t141 = t131 - t134;
        const V t142 = t130 + t135;
        const V t143 = t131 + t134;
        // complex block of 2
        const V t144 = t47 - t11;
        const V t145 = t46 + t10;
        const V t146 = t47 + t11;
        const V t147 = t46 - t10;
        // complex block of 2
        const V t148 = t17 - t41;
        const V t149 = t40 + t16;
        const V t150 = t41 + t17;
        const V t151 = t40 - t16;
        // complex block of 2
        const V t152 = t144 + t148;
        const V t153 = t145 + t149;
        const V t154 = t144 - t148;
        const V t155 = t145 - t149;
        // complex block of 2
        const V t156 = t146 - t151;
        const V t157 = t147 - t150;
        const V t158 = t146 + t151;
        const V t159 = t147 + t150;
        // complex block of 2
        const V t160 = t55 - t3;
        const V t161 = t54 + t2;
        const V t162 = t55 + t3;
        const V t163 = t54 - t2;
        // complex block of 2
        const V t164 = t25 - t33;
        const V t165 = t32 + t24;
        const V t166 = t33 + t25;
        const V t167 = t32 - t24;
        // complex block of 2
        const V t168 = t160 + t164;
        const V t169 = t161 + t165;
        const V t170 = t160 - t164;
        const V t171 = t161 - t165;
        // complex block of 2
        const V t172 = t162 - t167;
        const V t173 = t163 - t166;
        const V t174 = t162 + t167;
        const V t175 = t163 + t166;
        // spectrum block of 3, multiplier 2
        const V t176 = t137 + t60;
        const V t177 = c1 * t137;
        const V t178 = t60 - t177;
        const V t179 = c2 * t136;
        const V t180 = t178 - t179;
        const V t181 = t178 + t179;
        // complex block of 3, multiplier 2
        const V t182 = t168 + t88;
        const V t183 = t169 + t89;
        const V t184 = t88 - t168;
        const V t185 = t169 - t89;
        const V t186 = t104 - t182;
        const V t187 = t183 + t105;
        const V t188 = c1 * t182;
        const V t189 = t188 + t104;
        const V t190 = c1 * t183;
        const V t191 = t105 - t190;
        const V t192 = c2 * t184;
        const V t193 = c2 * t185;
        const V t194 = t189 + t193;
        const V t195 = t191 - t192;
        const V t196 = t189 - t193;
        const V t197 = t191 + t192;
        // complex block of 3, multiplier 2
        const V t198 = t72 - t120;
        const V t199 = t121 + t73;
        const V t200 = t120 + t72;
        const V t201 = t121 - t73;
        const V t202 = t198 + t152;
        const V t203 = t199 + t153;
        const V t204 = c1 * t198;
        const V t205 = t152 - t204;
        const V t206 = c1 * t199;
        const V t207 = t153 - t206;
        const V t208 = c2 * t200;
        const V t209 = c2 * t201;
        const V t210 = t205 + t209;
        const V t211 = t207 + t208;
        const V t212 = t205 - t209;
        const V t213 = t207 - t208;
        // spectrum block of 5, multiplier 2
        const V t214 = t187 + t203;
        const V t215 = t214 + t176;
        io.out(0, t215);
        const V t216 = c3 * t187;
        const V t217 = c4 * t203;
        const V t218 = t216 - t217;
        const V t219 = t218 + t176;
        const V t220 = c5 * t186;
        const V t221 = c6 * t202;
        const V t222 = t220 + t221;
        const V t223 = t219 - t222;
        io.out(36, t223);
        const V t224 = t219 + t222;
        io.out(24, t224);
        const V t225 = c4 * t187;
        const V t226 = t176 - t225;
        const V t227 = c3 * t203;
        const V t228 = t226 + t227;
        const V t229 = c6 * t186;
        const V t230 = c5 * t202;
        const V t231 = t229 - t230;
        const V t232 = t228 - t231;
        io.out(12, t232);
        const V t233 = t228 + t231;
        io.out(48, t233);
        // spectrum block of 5, multiplier 2
        const V t234 = t197 + t213;
        const V t235 = t234 + t181;
        io.out(20, t235);
        const V t236 = c3 * t197;
        const V t237 = c4 * t213;
        const V t238 = t236 - t237;
        const V t239 = t238 + t181;
        const V t240 = c5 * t196;
        const V t241 = c6 * t212;
        const V t242 = t240 + t241;
        const V t243 = t239 - t242;
        io.out(56, t243);
        const V t244 = t239 + t242;
        io.out(44, t244);
        const V t245 = c4 * t197;
        const V t246 = t181 - t245;
        const V t247 = c3 * t213;
        const V t248 = t246 + t247;
        const V t249 = c6 * t196;
        const V t250 = c5 * t212;
        const V t251 = t249 - t250;
        const V t252 = t248 - t251;
        io.out(32, t252);
        const V t253 = t248 + t251;
        io.out(8, t253);
        // spectrum block of 5, multiplier 2
        const V t254 = t195 + t211;
        const V t255 = t254 + t180;
        io.out(40, t255);
        const V t256 = c3 * t195;
        const V t257 = c4 * t211;
        const V t258 = t256 - t257;
        const V t259 = t258 + t180;
        const V t260 = c5 * t194;
        const V t261 = c6 * t210;
        const V t262 = t260 + t261;
        const V t263 = t259 - t262;
        io.out(16, t263);
        const V t264 = t259 + t262;
        io.out(4, t264);
        const V t265 = c4 * t195;
        const V t266 = t180 - t265;
        const V t267 = c3 * t211;
        const V t268 = t266 + t267;
        const V t269 = c6 * t194;
        const V t270 = c5 * t210;
        const V t271 = t269 - t270;
        const V t272 = t268 - t271;
        io.out(52, t272);
        const V t273 = t268 + t271;
        io.out(28, t273);
        // spectrum block of 3, multiplier 2
        const V t274 = t141 + t62;
        const V t275 = c1 * t141;
        const V t276 = t62 - t275;
        const V t277 = c2 * t140;
        const V t278 = t276 - t277;
        const V t279 = t276 + t277;
        // complex block of 3, multiplier 2
        const V t280 = t172 + t92;
        const V t281 = t173 + t93;
        const V t282 = t92 - t172;
        const V t283 = t173 - t93;
        const V t284 = t108 - t280;
        const V t285 = t281 + t109;
        const V t286 = c1 * t280;
        const V t287 = t286 + t108;
        const V t288 = c1 * t281;
        const V t289 = t109 - t288;
        const V t290 = c2 * t282;
        const V t291 = c2 * t283;
        const V t292 = t287 + t291;
        const V t293 = t289 - t290;
        const V t294 = t287 - t291;
        const V t295 = t289 + t290;
        // complex block of 3, multiplier 2
        const V t296 = t76 - t124;
        const V t297 = t125 + t77;
        const V t298 = t124 + t76;
        const V t299 = t125 - t77;
        const V t300 = t296 + t156;
        const V t301 = t297 + t157;
        const V t302 = c1 * t296;
        const V t303 = t156 - t302;
        const V t304 = c1 * t297;
        const V t305 = t157 - t304;
        const V t306 = c2 * t298;
        const V t307 = c2 * t299;
        const V t308 = t303 + t307;
        const V t309 = t305 + t306;
        const V t310 = t303 - t307;
        const V t311 = t305 - t306;
        // spectrum block of 5, multiplier 2
        const V t312 = t285 + t301;
        const V t313 = t312 + t274;
        io.out(15, t313);
        const V t314 = c3 * t285;
        const V t315 = c4 * t301;
        const V t316 = t314 - t315;
        const V t317 = t316 + t274;
        const V t318 = c5 * t284;
        const V t319 = c6 * t300;
        const V t320 = t318 + t319;
        const V t321 = t317 - t320;
        io.out(51, t321);
        const V t322 = t317 + t320;
        io.out(39, t322);
        const V t323 = c4 * t285;
        const V t324 = t274 - t323;
        const V t325 = c3 * t301;
        const V t326 = t324 + t325;
        const V t327 = c6 * t284;
        const V t328 = c5 * t300;
        const V t329 = t327 - t328;
        const V t330 = t326 - t329;
        io.out(27, t330);
        const V t331 = t326 + t329;
        io.out(3, t331);
        // spectrum block of 5, multiplier 2
        const V t332 = t295 + t311;
        const V t333 = t332 + t279;
        io.out(35, t333);
        const V t334 = c3 * t295;
        const V t335 = c4 * t311;
        const V t336 = t334 - t335;
        const V t337 = t336 + t279;
        const V t338 = c5 * t294;
        const V t339 = c6 * t310;
        const V t340 = t338 + t339;
        const V t341 = t337 - t340;
        io.out(11, t341);
        const V t342 = t337 + t340;
        io.out(59, t342);
        const V t343 = c4 * t295;
        const V t344 = t279 - t343;
        const V t345 = c3 * t311;
        const V t346 = t344 + t345;
        const V t347 = c6 * t294;
        const V t348 = c5 * t310;
        const V t349 = t347 - t348;
        const V t350 = t346 - t349;
        io.out(47, t350);
        const V t351 = t346 + t349;
        io.out(23, t351);
        // spectrum block of 5, multiplier 2
        const V t352 = t293 + t309;
        const V t353 = t352 + t278;
        io.out(55, t353);
        const V t354 = c3 * t293;
        const V t355 = c4 * t309;
        const V t356 = t354 - t355;
        const V t357 = t356 + t278;
        const V t358 = c5 * t292;
        const V t359 = c6 * t308;
        const V t360 = t358 + t359;
        const V t361 = t357 - t360;
        io.out(31, t361);
        const V t362 = t357 + t360;
        io.out(19, t362);
        const V t363 = c4 * t293;
        const V t364 = t278 - t363;
        const V t365 = c3 * t309;
        const V t366 = t364 + t365;
        const V t367 = c6 * t292;
        const V t368 = c5 * t308;
        const V t369 = t367 - t368;
        const V t370 = t366 - t369;
        io.out(7, t370);
        const V t371 = t366 + t369;
        io.out(43, t371);
        // spectrum block of 3, multiplier 2
        const V t372 = t139 + t61;
        const V t373 = c1 * t139;
        const V t374 = t61 - t373;
        const V t375 = c2 * t138;
        const V t376 = t374 - t375;
        const V t377 = t374 + t375;
        // complex block of 3, multiplier 2
        const V t378 = t170 + t90;
        const V t379 = t171 + t91;
        const V t380 = t90 - t170;
        const V t381 = t171 - t91;
        const V t382 = t106 - t378;
        const V t383 = t379 + t107;
        const V t384 = c1 * t378;
        const V t385 = t384 + t106;
        const V t386 = c1 * t379;
        const V t387 = t107 - t386;
        const V t388 = c2 * t380;
        const V t389 = c2 * t381;
        const V t390 = t385 + t389;
        const V t391 = t387 - t388;
        const V t392 = t385 - t389;
        const V t393 = t387 + t388;
        // complex block of 3, multiplier 2
        const V t394 = t74 - t122;
        const V t395 = t123 + t75;
        const V t396 = t122 + t74;
        const V t397 = t123 - t75;
        const V t398 = t394 + t154;
        const V t399 = t395 + t155;
        const V t400 = c1 * t394;
        const V t401 = t154 - t400;
        const V t402 = c1 * t395;
        const V t403 = t155 - t402;
        const V t404 = c2 * t396;
        const V t405 = c2 * t397;
        const V t406 = t401 + t405;
        const V t407 = t403 + t404;
        const V t408 = t401 - t405;
        const V t409 = t403 - t404;
        // spectrum block of 5, multiplier 2
        const V t410 = t383 + t399;
        const V t411 = t410 + t372;
        io.out(30, t411);
        const V t412 = c3 * t383;
        const V t413 = c4 * t399;
        const V t414 = t412 - t413;
        const V t415 = t414 + t372;
        const V t416 = c5 * t382;
        const V t417 = c6 * t398;
        const V t418 = t416 + t417;
        const V t419 = t415 - t418;
        io.out(6, t419);
        const V t420 = t415 + t418;
        io.out(54, t420);
        const V t421 = c4 * t383;
        const V t422 = t372 - t421;
        const V t423 = c3 * t399;
        const V t424 = t422 + t423;
        const V t425 = c6 * t382;
        const V t426 = c5 * t398;
        const V t427 = t425 - t426;
        const V t428 = t424 - t427;
        io.out(42, t428);
        const V t429 = t424 + t427;
        io.out(18, t429);
        // spectrum block of 5, multiplier 2
        const V t430 = t393 + t409;
        const V t431 = t430 + t377;
        io.out(50, t431);
        const V t432 = c3 * t393;
        const V t433 = c4 * t409;
        const V t434 = t432 - t433;
        const V t435 = t434 + t377;
        const V t436 = c5 * t392;
        const V t437 = c6 * t408;
        const V t438 = t436 + t437;
        const V t439 = t435 - t438;
        io.out(26, t439);
        const V t440 = t435 + t438;
        io.out(14, t440);
        const V t441 = c4 * t393;
        const V t442 = t377 - t441;
        const V t443 = c3 * t409;
        const V t444 = t442 + t443;
        const V t445 = c6 * t392;
        const V t446 = c5 * t408;
        const V t447 = t445 - t446;
        const V t448 = t444 - t447;
        io.out(2, t448);
        const V t449 = t444 + t447;
        io.out(38, t449);
        // spectrum block of 5, multiplier 2
        const V t450 = t391 + t407;
        const V t451 = t450 + t376;
        io.out(10, t451);
        const V t452 = c3 * t391;
        const V t453 = c4 * t407;
        const V t454 = t452 - t453;
        const V t455 = t454 + t376;
        const V t456 = c5 * t390;
        const V t457 = c6 * t406;
        const V t458 = t456 + t457;
        const V t459 = t455 - t458;
        io.out(46, t459);
        const V t460 = t455 + t458;
        io.out(34, t460);
        const V t461 = c4 * t391;
        const V t462 = t376 - t461;
        const V t463 = c3 * t407;
        const V t464 = t462 + t463;
        const V t465 = c6 * t390;
        const V t466 = c5 * t406;
        const V t467 = t465 - t466;
        const V t468 = t464 - t467;
        io.out(22, t468);
        const V t469 = t464 + t467;
        io.out(58, t469);
        // spectrum block of 3, multiplier 2
        const V t470 = t143 + t63;
        const V t471 = c1 * t143;
        const V t472 = t63 - t471;
        const V t473 = c2 * t142;
        const V t474 = t472 - t473;
        const V t475 = t472 + t473;
        // complex block of 3, multiplier 2
        const V t476 = t174 + t94;
        const V t477 = t175 + t95;
        const V t478 = t94 - t174;
        const V t479 = t175 - t95;
        const V t480 = t110 - t476;
        const V t481 = t477 + t111;
        const V t482 = c1 * t476;
        const V t483 = t482 + t110;
        const V t484 = c1 * t477;
        const V t485 = t111 - t484;
        const V t486 = c2 * t478;
        const V t487 = c2 * t479;
        const V t488 = t483 + t487;
        const V t489 = t485 - t486;
        const V t490 = t483 - t487;
        const V t491 = t485 + t486;
        // complex block of 3, multiplier 2
        const V t492 = t78 - t126;
        const V t493 = t127 + t79;
        const V t494 = t126 + t78;
        const V t495 = t127 - t79;
        const V t496 = t492 + t158;
        const V t497 = t493 + t159;
        const V t498 = c1 * t492;
        const V t499 = t158 - t498;
        const V t500 = c1 * t493;
        const V t501 = t159 - t500;
        const V t502 = c2 * t494;
        const V t503 = c2 * t495;
        const V t504 = t499 + t503;
        const V t505 = t501 + t502;
        const V t506 = t499 - t503;
        const V t507 = t501 - t502;
        // spectrum block of 5, multiplier 2
        const V t508 = t481 + t497;
        const V t509 = t508 + t470;
        io.out(45, t509);
        const V t510 = c3 * t481;
        const V t511 = c4 * t497;
        const V t512 = t510 - t511;
        const V t513 = t512 + t470;
        const V t514 = c5 * t480;
        const V t515 = c6 * t496;
        const V t516 = t514 + t515;
        const V t517 = t513 - t516;
        io.out(21, t517);
        const V t518 = t513 + t516;
        io.out(9, t518);
        const V t519 = c4 * t481;
        const V t520 = t470 - t519;
        const V t521 = c3 * t497;
        const V t522 = t520 + t521;
        const V t523 = c6 * t480;
        const V t524 = c5 * t496;
        const V t525 = t523 - t524;
        const V t526 = t522 - t525;
        io.out(57, t526);
        const V t527 = t522 + t525;
        io.out(33, t527);
        // spectrum block of 5, multiplier 2
        const V t528 = t491 + t507;
        const V t529 = t528 + t475;
        io.out(5, t529);
        const V t530 = c3 * t491;
        const V t531 = c4 * t507;
        const V t532 = t530 - t531;
        const V t533 = t532 + t475;
        const V t534 = c5 * t490;
        const V t535 = c6 * t506;
        const V t536 = t534 + t535;
        const V t537 = t533 - t536;
        io.out(41, t537);
        const V t538 = t533 + t536;
        io.out(29, t538);
        const V t539 = c4 * t491;
        const V t540 = t475 - t539;
        const V t541 = c3 * t507;
        const V t542 = t540 + t541;
        const V t543 = c6 * t490;
        const V t544 = c5 * t506;
        const V t545 = t543 - t544;
        const V t546 = t542 - t545;
        io.out(17, t546);
        const V t547 = t542 + t545;
        io.out(53, t547);
        // spectrum block of 5, multiplier 2
        const V t548 = t489 + t505;
        const V t549 = t548 + t474;
        io.out(25, t549);
        const V t550 = c3 * t489;
        const V t551 = c4 * t505;
        const V t552 = t550 - t551;
        const V t553 = t552 + t474;
        const V t554 = c5 * t488;
        const V t555 = c6 * t504;
        const V t556 = t554 + t555;
        const V t557 = t553 - t556;
        io.out(1, t557);
        const V t558 = t553 + t556;
        io.out(49, t558);
        const V t559 = c4 * t489;
        const V t560 = t474 - t559;
        const V t561 = c3 * t505;
        const V t562 = t560 + t561;
        const V t563 = c6 * t488;
        const V t564 = c5 * t504;
        const V t565 = t563 - t564;
        const V t566 = t562 - t565;
        io.out(37, t566);
        const V t567 = t562 + t565;
        io.out(13, t567);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 60, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 60, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 60, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 60, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 60, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 60, double>(const double*, double*, std::int32_t);

}  // namespace zulg
