// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 32.
// Complex DFT of 32 points, twiddled, inner 8, outer 4.
// 188 additions, 188 subtractions, 88 multiplications (152 with `scale`); 7 constants; 66 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<32> {
    static constexpr int steps = 528;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 2/32
        0.9238795325112867,  // c[2]: cos 2 pi 2/32
        0.19509032201612828,  // c[3]: sin 2 pi 1/32
        0.9807852804032304,  // c[4]: cos 2 pi 1/32
        0.5555702330196022,  // c[5]: sin 2 pi 3/32
        0.8314696123025452,  // c[6]: cos 2 pi 3/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x16r = io.re(16);
        const V t0 = x0r + x16r;
        const V x0i = io.im(0);
        const V x16i = io.im(16);
        const V t1 = x0i + x16i;
        const V t2 = x0r - x16r;
        const V t3 = x0i - x16i;
        // complex block of 2
        const V x4r = io.re(4);
        const V x20r = io.re(20);
        const V t4 = x4r + x20r;
        const V x4i = io.im(4);
        const V x20i = io.im(20);
        const V t5 = x4i + x20i;
        const V t6 = x4r - x20r;
        const V t7 = x4i - x20i;
        // complex block of 2
        const V x8r = io.re(8);
        const V x24r = io.re(24);
        const V t8 = x8r + x24r;
        const V x8i = io.im(8);
        const V x24i = io.im(24);
        const V t9 = x8i + x24i;
        const V t10 = x8r - x24r;
        const V t11 = x8i - x24i;
        // complex block of 2
        const V x12r = io.re(12);
        const V x28r = io.re(28);
        const V t12 = x12r + x28r;
        const V x12i = io.im(12);
        const V x28i = io.im(28);
        const V t13 = x12i + x28i;
        const V t14 = x12r - x28r;
        const V t15 = x12i - x28i;
        // complex block of 2
        const V t16 = t0 + t8;
        const V t17 = t1 + t9;
        const V t18 = t0 - t8;
        const V t19 = t1 - t9;
        // complex block of 2
        const V t20 = t4 + t12;
        const V t21 = t5 + t13;
        const V t22 = t4 - t12;
        const V t23 = t5 - t13;
        // complex block of 2
        const V t24 = t16 + t20;
        const V t25 = t17 + t21;
        const V t26 = t16 - t20;
        const V t27 = t17 - t21;
        // complex block of 2
        const V t28 = t18 + t23;
        const V t29 = t19 - t22;
        const V t30 = t18 - t23;
        const V t31 = t19 + t22;
        // complex block of 8
        const V t32 = c[0] * t6;
        const V t33 = c[0] * t7;
        const V t34 = t32 + t33;
        const V t35 = t33 - t32;
        const V t36 = c[0] * t14;
        const V t37 = c[0] * t15;
        const V t38 = t36 + t37;
        const V t39 = t37 - t36;
        // complex block of 2
        const V t40 = t2 + t11;
        const V t41 = t3 - t10;
        const V t42 = t2 - t11;
        const V t43 = t3 + t10;
        // complex block of 2
        const V t44 = t34 + t39;
        const V t45 = t35 - t38;
        const V t46 = t34 - t39;
        const V t47 = t35 + t38;
        // complex block of 2
        const V t48 = t40 + t44;
        const V t49 = t41 + t45;
        const V t50 = t40 - t44;
        const V t51 = t41 - t45;
        // complex block of 2
        const V t52 = t42 + t47;
        const V t53 = t43 - t46;
        const V t54 = t42 - t47;
        const V t55 = t43 + t46;
        // complex block of 2
        const V x1r = io.re(1);
        const V x17r = io.re(17);
        const V t56 = x1r + x17r;
        const V x1i = io.im(1);
        const V x17i = io.im(17);
        const V t57 = x1i + x17i;
        const V t58 = x1r - x17r;
        const V t59 = x1i - x17i;
        // complex block of 2
        const V x5r = io.re(5);
        const V x21r = io.re(21);
        const V t60 = x5r + x21r;
        const V x5i = io.im(5);
        const V x21i = io.im(21);
        const V t61 = x5i + x21i;
        const V t62 = x5r - x21r;
        const V t63 = x5i - x21i;
        // complex block of 2
        const V x9r = io.re(9);
        const V x25r = io.re(25);
        const V t64 = x9r + x25r;
        const V x9i = io.im(9);
        const V x25i = io.im(25);
        const V t65 = x9i + x25i;
        const V t66 = x9r - x25r;
        const V t67 = x9i - x25i;
        // complex block of 2
        const V x13r = io.re(13);
        const V x29r = io.re(29);
        const V t68 = x13r + x29r;
        const V x13i = io.im(13);
        const V x29i = io.im(29);
        const V t69 = x13i + x29i;
        const V t70 = x13r - x29r;
        const V t71 = x13i - x29i;
        // complex block of 2
        const V t72 = t56 + t64;
        const V t73 = t57 + t65;
        const V t74 = t56 - t64;
        const V t75 = t57 - t65;
        // complex block of 2
        const V t76 = t60 + t68;
        const V t77 = t61 + t69;
        const V t78 = t60 - t68;
        const V t79 = t61 - t69;
        // complex block of 2
        const V t80 = t72 + t76;
        const V t81 = t73 + t77;
        const V t82 = t72 - t76;
        const V t83 = t73 - t77;
        // complex block of 2
        const V t84 = t74 + t79;
        const V t85 = t75 - t78;
        const V t86 = t74 - t79;
        const V t87 = t75 + t78;
        // complex block of 8
        const V t88 = c[0] * t62;
        const V t89 = c[0] * t63;
        const V t90 = t88 + t89;
        const V t91 = t89 - t88;
        const V t92 = c[0] * t70;
        const V t93 = c[0] * t71;
        const V t94 = t92 + t93;
        const V t95 = t93 - t92;
        // complex block of 2
        const V t96 = t58 + t67;
        const V t97 = t59 - t66;
        const V t98 = t58 - t67;
        const V t99 = t59 + t66;
        // complex block of 2
        const V t100 = t90 + t95;
        const V t101 = t91 - t94;
        const V t102 = t90 - t95;
        const V t103 = t91 + t94;
        // complex block of 2
        const V t104 = t96 + t100;
        const V t105 = t97 + t101;
        const V t106 = t96 - t100;
        const V t107 = t97 - t101;
        // complex block of 2
        const V t108 = t98 + t103;
        const V t109 = t99 - t102;
        const V t110 = t98 - t103;
        const V t111 = t99 + t102;
        // complex block of 2
        const V x2r = io.re(2);
        const V x18r = io.re(18);
        const V t112 = x2r + x18r;
        const V x2i = io.im(2);
        const V x18i = io.im(18);
        const V t113 = x2i + x18i;
        const V t114 = x2r - x18r;
        const V t115 = x2i - x18i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x22r = io.re(22);
        const V t116 = x6r + x22r;
        const V x6i = io.im(6);
        const V x22i = io.im(22);
        const V t117 = x6i + x22i;
        const V t118 = x6r - x22r;
        const V t119 = x6i - x22i;
        // complex block of 2
        const V x10r = io.re(10);
        const V x26r = io.re(26);
        const V t120 = x10r + x26r;
        const V x10i = io.im(10);
        const V x26i = io.im(26);
        const V t121 = x10i + x26i;
        const V t122 = x10r - x26r;
        const V t123 = x10i - x26i;
        // complex block of 2
        const V x14r = io.re(14);
        const V x30r = io.re(30);
        const V t124 = x14r + x30r;
        const V x14i = io.im(14);
        const V x30i = io.im(30);
        const V t125 = x14i + x30i;
        const V t126 = x14r - x30r;
        const V t127 = x14i - x30i;
        // complex block of 2
        const V t128 = t112 + t120;
        const V t129 = t113 + t121;
        const V t130 = t112 - t120;
        const V t131 = t113 - t121;
        // complex block of 2
        const V t132 = t116 + t124;
        const V t133 = t117 + t125;
        const V t134 = t116 - t124;
        const V t135 = t117 - t125;
        // complex block of 2
        const V t136 = t128 + t132;
        const V t137 = t129 + t133;
        const V t138 = t128 - t132;
        const V t139 = t129 - t133;
        // complex block of 2
        const V t140 = t130 + t135;
        const V t141 = t131 - t134;
        const V t142 = t130 - t135;
        const V t143 = t131 + t134;
        // complex block of 8
        const V t144 = c[0] * t118;
        const V t145 = c[0] * t119;
        const V t146 = t144 + t145;
        const V t147 = t145 - t144;
        const V t148 = c[0] * t126;
        const V t149 = c[0] * t127;
        const V t150 = t148 + t149;
        const V t151 = t149 - t148;
        // complex block of 2
        const V t152 = t114 + t123;
        const V t153 = t115 - t122;
        const V t154 = t114 - t123;
        const V t155 = t115 + t122;
        // complex block of 2
        const V t156 = t146 + t151;
        const V t157 = t147 - t150;
        const V t158 = t146 - t151;
        const V t159 = t147 + t150;
        // complex block of 2
        const V t160 = t152 + t156;
        const V t161 = t153 + t157;
        const V t162 = t152 - t156;
        const V t163 = t153 - t157;
        // complex block of 2
        const V t164 = t154 + t159;
        const V t165 = t155 - t158;
        const V t166 = t154 - t159;
        const V t167 = t155 + t158;
        // complex block of 2
        const V x3r = io.re(3);
        const V x19r = io.re(19);
        const V t168 = x3r + x19r;
        const V x3i = io.im(3);
        const V x19i = io.im(19);
        const V t169 = x3i + x19i;
        const V t170 = x3r - x19r;
        const V t171 = x3i - x19i;
        // complex block of 2
        const V x7r = io.re(7);
        const V x23r = io.re(23);
        const V t172 = x7r + x23r;
        const V x7i = io.im(7);
        const V x23i = io.im(23);
        const V t173 = x7i + x23i;
        const V t174 = x7r - x23r;
        const V t175 = x7i - x23i;
        // complex block of 2
        const V x11r = io.re(11);
        const V x27r = io.re(27);
        const V t176 = x11r + x27r;
        const V x11i = io.im(11);
        const V x27i = io.im(27);
        const V t177 = x11i + x27i;
        const V t178 = x11r - x27r;
        const V t179 = x11i - x27i;
        // complex block of 2
        const V x15r = io.re(15);
        const V x31r = io.re(31);
        const V t180 = x15r + x31r;
        const V x15i = io.im(15);
        const V x31i = io.im(31);
        const V t181 = x15i + x31i;
        const V t182 = x15r - x31r;
        const V t183 = x15i - x31i;
        // complex block of 2
        const V t184 = t168 + t176;
        const V t185 = t169 + t177;
        const V t186 = t168 - t176;
        const V t187 = t169 - t177;
        // complex block of 2
        const V t188 = t172 + t180;
        const V t189 = t173 + t181;
        const V t190 = t172 - t180;
        const V t191 = t173 - t181;
        // complex block of 2
        const V t192 = t184 + t188;
        const V t193 = t185 + t189;
        const V t194 = t184 - t188;
        const V t195 = t185 - t189;
        // complex block of 2
        const V t196 = t186 + t191;
        const V t197 = t187 - t190;
        const V t198 = t186 - t191;
        const V t199 = t187 + t190;
        // complex block of 8
        const V t200 = c[0] * t174;
        const V t201 = c[0] * t175;
        const V t202 = t200 + t201;
        const V t203 = t201 - t200;
        const V t204 = c[0] * t182;
        const V t205 = c[0] * t183;
        const V t206 = t204 + t205;
        const V t207 = t205 - t204;
        // complex block of 2
        const V t208 = t170 + t179;
        const V t209 = t171 - t178;
        const V t210 = t170 - t179;
        const V t211 = t171 + t178;
        // complex block of 2
        const V t212 = t202 + t207;
        const V t213 = t203 - t206;
        const V t214 = t202 - t207;
        const V t215 = t203 + t206;
        // complex block of 2
        const V t216 = t208 + t212;
        const V t217 = t209 + t213;
        const V t218 = t208 - t212;
        const V t219 = t209 - t213;
        // complex block of 2
        const V t220 = t210 + t215;
        const V t221 = t211 - t214;
        const V t222 = t210 - t215;
        const V t223 = t211 + t214;
        // complex block of 2
        const V t224 = t24 + t136;
        const V t225 = t25 + t137;
        const V t226 = t24 - t136;
        const V t227 = t25 - t137;
        // complex block of 2
        const V t228 = t80 + t192;
        const V t229 = t81 + t193;
        const V t230 = t80 - t192;
        const V t231 = t81 - t193;
        // complex block of 2
        const V t232 = t224 + t228;
        io.re(0, t232);
        const V t233 = t225 + t229;
        io.im(0, t233);
        const V t234 = t224 - t228;
        io.re(16, t234);
        const V t235 = t225 - t229;
        io.im(16, t235);
        // complex block of 2
        const V t236 = t226 + t231;
        io.re(8, t236);
        const V t237 = t227 - t230;
        io.im(8, t237);
        const V t238 = t226 - t231;
        io.re(24, t238);
        const V t239 = t227 + t230;
        io.im(24, t239);
        // complex block of 32
        const V t240 = c[3] * t105;
        const V t241 = c[4] * t104;
        const V t242 = t241 + t240;
        const V t243 = c[3] * t104;
        const V t244 = c[4] * t105;
        const V t245 = t244 - t243;
        const V t246 = c[1] * t161;
        const V t247 = c[2] * t160;
        const V t248 = t247 + t246;
        const V t249 = c[1] * t160;
        const V t250 = c[2] * t161;
        const V t251 = t250 - t249;
        const V t252 = c[5] * t217;
        const V t253 = c[6] * t216;
        const V t254 = t253 + t252;
        const V t255 = c[5] * t216;
        const V t256 = c[6] * t217;
        const V t257 = t256 - t255;
        // complex block of 2
        const V t258 = t48 + t248;
        const V t259 = t49 + t251;
        const V t260 = t48 - t248;
        const V t261 = t49 - t251;
        // complex block of 2
        const V t262 = t242 + t254;
        const V t263 = t245 + t257;
        const V t264 = t242 - t254;
        const V t265 = t245 - t257;
        // complex block of 2
        const V t266 = t258 + t262;
        io.re(1, t266);
        const V t267 = t259 + t263;
        io.im(1, t267);
        const V t268 = t258 - t262;
        io.re(17, t268);
        const V t269 = t259 - t263;
        io.im(17, t269);
        // complex block of 2
        const V t270 = t260 + t265;
        io.re(9, t270);
        const V t271 = t261 - t264;
        io.im(9, t271);
        const V t272 = t260 - t265;
        io.re(25, t272);
        const V t273 = t261 + t264;
        io.im(25, t273);
        // complex block of 32
        const V t274 = c[1] * t85;
        const V t275 = c[2] * t84;
        const V t276 = t275 + t274;
        const V t277 = c[1] * t84;
        const V t278 = c[2] * t85;
        const V t279 = t278 - t277;
        const V t280 = c[0] * t140;
        const V t281 = c[0] * t141;
        const V t282 = t280 + t281;
        const V t283 = t281 - t280;
        const V t284 = c[2] * t197;
        const V t285 = c[1] * t196;
        const V t286 = t285 + t284;
        const V t287 = c[2] * t196;
        const V t288 = c[1] * t197;
        const V t289 = t288 - t287;
        // complex block of 2
        const V t290 = t28 + t282;
        const V t291 = t29 + t283;
        const V t292 = t28 - t282;
        const V t293 = t29 - t283;
        // complex block of 2
        const V t294 = t276 + t286;
        const V t295 = t279 + t289;
        const V t296 = t276 - t286;
        const V t297 = t279 - t289;
        // complex block of 2
        const V t298 = t290 + t294;
        io.re(2, t298);
        const V t299 = t291 + t295;
        io.im(2, t299);
        const V t300 = t290 - t294;
        io.re(18, t300);
        const V t301 = t291 - t295;
        io.im(18, t301);
        // complex block of 2
        const V t302 = t292 + t297;
        io.re(10, t302);
        const V t303 = t293 - t296;
        io.im(10, t303);
        const V t304 = t292 - t297;
        io.re(26, t304);
        const V t305 = t293 + t296;
        io.im(26, t305);
        // complex block of 32
        const V t306 = c[5] * t109;
        const V t307 = c[6] * t108;
        const V t308 = t307 + t306;
        const V t309 = c[5] * t108;
        const V t310 = c[6] * t109;
        const V t311 = t310 - t309;
        const V t312 = c[2] * t165;
        const V t313 = c[1] * t164;
        const V t314 = t313 + t312;
        const V t315 = c[2] * t164;
        const V t316 = c[1] * t165;
        const V t317 = t316 - t315;
        const V t318 = c[4] * t221;
        const V t319 = c[3] * t220;
        const V t320 = t318 - t319;
        const V t321 = c[4] * t220;
        const V t322 = c[3] * t221;
        const V t323 = t322 + t321;
        // complex block of 2
        const V t324 = t52 + t314;
        const V t325 = t53 + t317;
        const V t326 = t52 - t314;
        const V t327 = t53 - t317;
        // complex block of 2
        const V t328 = t308 + t320;
        const V t329 = t311 - t323;
        const V t330 = t308 - t320;
        const V t331 = t311 + t323;
        // complex block of 2
        const V t332 = t324 + t328;
        io.re(3, t332);
        const V t333 = t325 + t329;
        io.im(3, t333);
        const V t334 = t324 - t328;
        io.re(19, t334);
        const V t335 = t325 - t329;
        io.im(19, t335);
        // complex block of 2
        const V t336 = t326 + t331;
        io.re(11, t336);
        const V t337 = t327 - t330;
        io.im(11, t337);
        const V t338 = t326 - t331;
        io.re(27, t338);
        const V t339 = t327 + t330;
        io.im(27, t339);
        // complex block of 32
        const V t340 = c[0] * t82;
        const V t341 = c[0] * t83;
        const V t342 = t340 + t341;
        const V t343 = t341 - t340;
        const V t344 = c[0] * t194;
        const V t345 = c[0] * t195;
        const V t346 = t344 + t345;
        const V t347 = t345 - t344;
        // complex block of 2
        const V t348 = t26 + t139;
        const V t349 = t27 - t138;
        const V t350 = t26 - t139;
        const V t351 = t27 + t138;
        // complex block of 2
        const V t352 = t342 + t347;
        const V t353 = t343 - t346;
        const V t354 = t342 - t347;
        const V t355 = t343 + t346;
        // complex block of 2
        const V t356 = t348 + t352;
        io.re(4, t356);
        const V t357 = t349 + t353;
        io.im(4, t357);
        const V t358 = t348 - t352;
        io.re(20, t358);
        const V t359 = t349 - t353;
        io.im(20, t359);
        // complex block of 2
        const V t360 = t350 + t355;
        io.re(12, t360);
        const V t361 = t351 - t354;
        io.im(12, t361);
        const V t362 = t350 - t355;
        io.re(28, t362);
        const V t363 = t351 + t354;
        io.im(28, t363);
        // complex block of 32
        const V t364 = c[6] * t107;
        const V t365 = c[5] * t106;
        const V t366 = t365 + t364;
        const V t367 = c[6] * t106;
        const V t368 = c[5] * t107;
        const V t369 = t368 - t367;
        const V t370 = c[2] * t163;
        const V t371 = c[1] * t162;
        const V t372 = t370 - t371;
        const V t373 = c[2] * t162;
        const V t374 = c[1] * t163;
        const V t375 = t374 + t373;
        const V t376 = c[3] * t219;
        const V t377 = c[4] * t218;
        const V t378 = t376 - t377;
        const V t379 = c[3] * t218;
        const V t380 = c[4] * t219;
        const V t381 = t380 + t379;
        // complex block of 2
        const V t382 = t50 + t372;
        const V t383 = t51 - t375;
        const V t384 = t50 - t372;
        const V t385 = t51 + t375;
        // complex block of 2
        const V t386 = t366 + t378;
        const V t387 = t369 - t381;
        const V t388 = t366 - t378;
        const V t389 = t369 + t381;
        // complex block of 2
        const V t390 = t382 + t386;
        io.re(5, t390);
        const V t391 = t383 + t387;
        io.im(5, t391);
        const V t392 = t382 - t386;
        io.re(21, t392);
        const V t393 = t383 - t387;
        io.im(21, t393);
        // complex block of 2
        const V t394 = t384 + t389;
        io.re(13, t394);
        const V t395 = t385 - t388;
        io.im(13, t395);
        const V t396 = t384 - t389;
        io.re(29, t396);
        const V t397 = t385 + t388;
        io.im(29, t397);
        // complex block of 32
        const V t398 = c[2] * t87;
        const V t399 = c[1] * t86;
        const V t400 = t399 + t398;
        const V t401 = c[2] * t86;
        const V t402 = c[1] * t87;
        const V t403 = t402 - t401;
        const V t404 = c[0] * t142;
        const V t405 = c[0] * t143;
        const V t406 = t404 + t405;
        const V t407 = t405 - t404;
        const V t408 = c[1] * t199;
        const V t409 = c[2] * t198;
        const V t410 = t409 + t408;
        const V t411 = c[1] * t198;
        const V t412 = c[2] * t199;
        const V t413 = t411 - t412;
        // complex block of 2
        const V t414 = t30 + t407;
        const V t415 = t31 - t406;
        const V t416 = t30 - t407;
        const V t417 = t31 + t406;
        // complex block of 2
        const V t418 = t400 - t410;
        const V t419 = t403 + t413;
        const V t420 = t400 + t410;
        const V t421 = t403 - t413;
        // complex block of 2
        const V t422 = t414 + t418;
        io.re(6, t422);
        const V t423 = t415 + t419;
        io.im(6, t423);
        const V t424 = t414 - t418;
        io.re(22, t424);
        const V t425 = t415 - t419;
        io.im(22, t425);
        // complex block of 2
        const V t426 = t416 + t421;
        io.re(14, t426);
        const V t427 = t417 - t420;
        io.im(14, t427);
        const V t428 = t416 - t421;
        io.re(30, t428);
        const V t429 = t417 + t420;
        io.im(30, t429);
        // complex block of 32
        const V t430 = c[4] * t111;
        const V t431 = c[3] * t110;
        const V t432 = t431 + t430;
        const V t433 = c[4] * t110;
        const V t434 = c[3] * t111;
        const V t435 = t434 - t433;
        const V t436 = c[1] * t167;
        const V t437 = c[2] * t166;
        const V t438 = t436 - t437;
        const V t439 = c[1] * t166;
        const V t440 = c[2] * t167;
        const V t441 = t440 + t439;
        const V t442 = c[6] * t223;
        const V t443 = c[5] * t222;
        const V t444 = t443 + t442;
        const V t445 = c[6] * t222;
        const V t446 = c[5] * t223;
        const V t447 = t445 - t446;
        // complex block of 2
        const V t448 = t54 + t438;
        const V t449 = t55 - t441;
        const V t450 = t54 - t438;
        const V t451 = t55 + t441;
        // complex block of 2
        const V t452 = t432 - t444;
        const V t453 = t435 + t447;
        const V t454 = t432 + t444;
        const V t455 = t435 - t447;
        // complex block of 2
        const V t456 = t448 + t452;
        io.re(7, t456);
        const V t457 = t449 + t453;
        io.im(7, t457);
        const V t458 = t448 - t452;
        io.re(23, t458);
        const V t459 = t449 - t453;
        io.im(23, t459);
        // complex block of 2
        const V t460 = t450 + t455;
        io.re(15, t460);
        const V t461 = t451 - t454;
        io.im(15, t461);
        const V t462 = t450 - t455;
        io.re(31, t462);
        const V t463 = t451 + t454;
        io.im(31, t463);
    }
};

}  // namespace zulg
