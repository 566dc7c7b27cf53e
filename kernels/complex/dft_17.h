// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 17.
// Complex DFT of 17 points, Rader block.
// 132 additions, 132 subtractions, 108 multiplications (142 with `scale`); 19 constants; 35 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<17> {
    static constexpr int steps = 406;  // with `scale`
    static constexpr double inverseRoot = 0.24253562503633297;  // 1/sqrt(17), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.2906530375466148,  // c[3]: -P[1] of 17
        0.425612278682049,  // c[4]: Q[1] of 17
        0.347088927763506,  // c[5]: -Q[2] of 17
        0.3809911760447736,  // c[6]: P[2] of 17
        0.07814056923069293,  // c[7]: P[3] of 17
        0.5094301241979152,  // c[8]: Q[3] of 17
        0.40623178445333147,  // c[9]: Q[4] of 17
        0.31717619283272513,  // c[10]: P[4] of 17
        0.1165738748337385,  // c[11]: -P[5] of 17
        0.5020314050995693,  // c[12]: -Q[5] of 17
        0.5139020806887744,  // c[13]: Q[6] of 17
        0.039110758925753275,  // c[14]: P[6] of 17
        0.5103666946839882,  // c[15]: P[7] of 17
        0.07176933159324189,  // c[16]: -Q[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x16r = io.re(16);
        const V t0 = x1r + x16r;
        const V t1 = x1r - x16r;
        // real block of 2
        const V x13r = io.re(13);
        const V x4r = io.re(4);
        const V t2 = x13r + x4r;
        const V t3 = x13r - x4r;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x3r = io.re(3);
        const V x14r = io.re(14);
        const V t6 = x3r + x14r;
        const V t7 = x3r - x14r;
        // real block of 2
        const V x5r = io.re(5);
        const V x12r = io.re(12);
        const V t8 = x5r + x12r;
        const V t9 = x5r - x12r;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x9r = io.re(9);
        const V x8r = io.re(8);
        const V t12 = x9r + x8r;
        const V t13 = x9r - x8r;
        // real block of 2
        const V x15r = io.re(15);
        const V x2r = io.re(2);
        const V t14 = x15r + x2r;
        const V t15 = x15r - x2r;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x10r = io.re(10);
        const V x7r = io.re(7);
        const V t18 = x10r + x7r;
        const V t19 = x10r - x7r;
        // real block of 2
        const V x11r = io.re(11);
        const V x6r = io.re(6);
        const V t20 = x11r + x6r;
        const V t21 = x11r - x6r;
        // real block of 2
        const V t22 = t18 + t20;
        const V t23 = t18 - t20;
        // real block of 2
        const V t24 = t4 + t16;
        const V t25 = t4 - t16;
        // real block of 2
        const V t26 = t10 + t22;
        const V t27 = t10 - t22;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // real block of 16
        const V t30 = c[0] * t9;
        const V t31 = c[1] * t7;
        const V t32 = t31 - t30;
        const V t33 = c[0] * t7;
        const V t34 = c[1] * t9;
        const V t35 = t34 + t33;
        const V t36 = t13 - t15;
        const V t37 = t15 + t13;
        const V t38 = c[2] * t36;
        const V t39 = c[2] * t37;
        const V t40 = c[1] * t21;
        const V t41 = c[0] * t19;
        const V t42 = t41 - t40;
        const V t43 = c[1] * t19;
        const V t44 = c[0] * t21;
        const V t45 = t44 + t43;
        // complex block of 2
        const V t46 = t1 + t38;
        const V t47 = t3 + t39;
        const V t48 = t1 - t38;
        const V t49 = t39 - t3;
        // complex block of 2
        const V t50 = t32 + t42;
        const V t51 = t35 + t45;
        const V t52 = t32 - t42;
        const V t53 = t45 - t35;
        // complex block of 2
        const V t54 = t46 + t50;
        const V t55 = t47 + t51;
        const V t56 = t46 - t50;
        const V t57 = t51 - t47;
        // complex block of 2
        const V t58 = t48 + t53;
        const V t59 = t49 - t52;
        const V t60 = t48 - t53;
        const V t61 = t49 + t52;
        // skew block of 4
        const V t62 = t11 - t23;
        const V t63 = c[2] * t62;
        const V t64 = t11 + t23;
        const V t65 = c[2] * t64;
        const V t66 = t65 - t17;
        const V t67 = t5 + t63;
        const V t68 = t17 + t65;
        const V t69 = t5 - t63;
        // real block of 2
        const V x1i = io.im(1);
        const V x16i = io.im(16);
        const V t70 = x1i + x16i;
        const V t71 = x1i - x16i;
        // real block of 2
        const V x13i = io.im(13);
        const V x4i = io.im(4);
        const V t72 = x13i + x4i;
        const V t73 = x13i - x4i;
        // real block of 2
        const V t74 = t70 + t72;
        const V t75 = t70 - t72;
        // real block of 2
        const V x3i = io.im(3);
        const V x14i = io.im(14);
        const V t76 = x3i + x14i;
        const V t77 = x3i - x14i;
        // real block of 2
        const V x5i = io.im(5);
        const V x12i = io.im(12);
        const V t78 = x5i + x12i;
        const V t79 = x5i - x12i;
        // real block of 2
        const V t80 = t76 + t78;
        const V t81 = t76 - t78;
        // real block of 2
        const V x9i = io.im(9);
        const V x8i = io.im(8);
        const V t82 = x9i + x8i;
        const V t83 = x9i - x8i;
        // real block of 2
        const V x15i = io.im(15);
        const V x2i = io.im(2);
        const V t84 = x15i + x2i;
        const V t85 = x15i - x2i;
        // real block of 2
        const V t86 = t82 + t84;
        const V t87 = t82 - t84;
        // real block of 2
        const V x10i = io.im(10);
        const V x7i = io.im(7);
        const V t88 = x10i + x7i;
        const V t89 = x10i - x7i;
        // real block of 2
        const V x11i = io.im(11);
        const V x6i = io.im(6);
        const V t90 = x11i + x6i;
        const V t91 = x11i - x6i;
        // real block of 2
        const V t92 = t88 + t90;
        const V t93 = t88 - t90;
        // real block of 2
        const V t94 = t74 + t86;
        const V t95 = t74 - t86;
        // real block of 2
        const V t96 = t80 + t92;
        const V t97 = t80 - t92;
        // real block of 2
        const V t98 = t94 + t96;
        const V t99 = t94 - t96;
        // real block of 16
        const V t100 = c[0] * t79;
        const V t101 = c[1] * t77;
        const V t102 = t101 - t100;
        const V t103 = c[0] * t77;
        const V t104 = c[1] * t79;
        const V t105 = t104 + t103;
        const V t106 = t83 - t85;
        const V t107 = t85 + t83;
        const V t108 = c[2] * t106;
        const V t109 = c[2] * t107;
        const V t110 = c[1] * t91;
        const V t111 = c[0] * t89;
        const V t112 = t111 - t110;
        const V t113 = c[1] * t89;
        const V t114 = c[0] * t91;
        const V t115 = t114 + t113;
        // complex block of 2
        const V t116 = t71 + t108;
        const V t117 = t73 + t109;
        const V t118 = t71 - t108;
        const V t119 = t109 - t73;
        // complex block of 2
        const V t120 = t102 + t112;
        const V t121 = t105 + t115;
        const V t122 = t102 - t112;
        const V t123 = t115 - t105;
        // complex block of 2
        const V t124 = t116 + t120;
        const V t125 = t117 + t121;
        const V t126 = t116 - t120;
        const V t127 = t121 - t117;
        // complex block of 2
        const V t128 = t118 + t123;
        const V t129 = t119 - t122;
        const V t130 = t118 - t123;
        const V t131 = t119 + t122;
        // skew block of 4
        const V t132 = t81 - t93;
        const V t133 = c[2] * t132;
        const V t134 = t81 + t93;
        const V t135 = c[2] * t134;
        const V t136 = t135 - t87;
        const V t137 = t75 + t133;
        const V t138 = t87 + t135;
        const V t139 = t75 - t133;
        // complex block of 17
        const V x0r = io.re(0);
        const V t140 = x0r + t28;
        const V x0i = io.im(0);
        io.re(0, t140);
        const V t141 = x0i + t98;
        io.im(0, t141);
        const V t142 = c[17] * t28;
        const V t143 = x0r - t142;
        const V t144 = c[17] * t98;
        const V t145 = x0i - t144;
        const V t146 = c[3] * t125;
        const V t147 = c[4] * t124;
        const V t148 = t147 - t146;
        const V t149 = c[3] * t124;
        const V t150 = c[4] * t125;
        const V t151 = t150 + t149;
        const V t152 = c[3] * t55;
        const V t153 = c[4] * t54;
        const V t154 = t152 - t153;
        const V t155 = c[3] * t54;
        const V t156 = c[4] * t55;
        const V t157 = t156 + t155;
        const V t158 = c[5] * t68;
        const V t159 = c[6] * t67;
        const V t160 = t159 - t158;
        const V t161 = c[5] * t67;
        const V t162 = c[6] * t68;
        const V t163 = t162 + t161;
        const V t164 = c[5] * t138;
        const V t165 = c[6] * t137;
        const V t166 = t165 - t164;
        const V t167 = c[5] * t137;
        const V t168 = c[6] * t138;
        const V t169 = t168 + t167;
        const V t170 = c[7] * t131;
        const V t171 = c[8] * t130;
        const V t172 = t171 + t170;
        const V t173 = c[7] * t130;
        const V t174 = c[8] * t131;
        const V t175 = t173 - t174;
        const V t176 = c[7] * t61;
        const V t177 = c[8] * t60;
        const V t178 = t177 + t176;
        const V t179 = c[7] * t60;
        const V t180 = c[8] * t61;
        const V t181 = t180 - t179;
        const V t182 = c[9] * t27;
        const V t183 = c[10] * t25;
        const V t184 = t183 + t182;
        const V t185 = c[9] * t25;
        const V t186 = c[10] * t27;
        const V t187 = t185 - t186;
        const V t188 = c[9] * t97;
        const V t189 = c[10] * t95;
        const V t190 = t189 + t188;
        const V t191 = c[9] * t95;
        const V t192 = c[10] * t97;
        const V t193 = t191 - t192;
        const V t194 = c[11] * t129;
        const V t195 = c[12] * t128;
        const V t196 = t194 - t195;
        const V t197 = c[11] * t128;
        const V t198 = c[12] * t129;
        const V t199 = t198 + t197;
        const V t200 = c[11] * t59;
        const V t201 = c[12] * t58;
        const V t202 = t201 - t200;
        const V t203 = c[11] * t58;
        const V t204 = c[12] * t59;
        const V t205 = t204 + t203;
        const V t206 = c[13] * t66;
        const V t207 = c[14] * t69;
        const V t208 = t207 + t206;
        const V t209 = c[13] * t69;
        const V t210 = c[14] * t66;
        const V t211 = t209 - t210;
        const V t212 = c[13] * t136;
        const V t213 = c[14] * t139;
        const V t214 = t213 + t212;
        const V t215 = c[13] * t139;
        const V t216 = c[14] * t136;
        const V t217 = t215 - t216;
        const V t218 = c[15] * t127;
        const V t219 = c[16] * t126;
        const V t220 = t218 - t219;
        const V t221 = c[15] * t126;
        const V t222 = c[16] * t127;
        const V t223 = t222 + t221;
        const V t224 = c[15] * t57;
        const V t225 = c[16] * t56;
        const V t226 = t225 - t224;
        const V t227 = c[15] * t56;
        const V t228 = c[16] * t57;
        const V t229 = t228 + t227;
        const V t230 = c[18] * t29;
        const V t231 = c[18] * t99;
        // spectrum block of 2
        const V t232 = t143 + t230;
        const V t233 = t143 - t230;
        // spectrum block of 2
        const V t234 = t232 + t184;
        const V t235 = t232 - t184;
        // spectrum block of 2
        const V t236 = t233 - t187;
        const V t237 = t233 + t187;
        // complex block of 2
        const V t238 = t151 + t223;
        const V t239 = t148 + t220;
        const V t240 = t223 - t151;
        const V t241 = t148 - t220;
        // complex block of 2
        const V t242 = t199 + t175;
        const V t243 = t196 + t172;
        const V t244 = t175 - t199;
        const V t245 = t196 - t172;
        // complex block of 2
        const V t246 = t238 + t242;
        const V t247 = t239 + t243;
        const V t248 = t242 - t238;
        const V t249 = t239 - t243;
        // complex block of 2
        const V t250 = t240 + t245;
        const V t251 = t241 - t244;
        const V t252 = t240 - t245;
        const V t253 = t241 + t244;
        // spectrum block of 16
        const V t254 = c[0] * t250;
        const V t255 = c[1] * t251;
        const V t256 = t255 - t254;
        const V t257 = c[0] * t251;
        const V t258 = c[1] * t250;
        const V t259 = t258 + t257;
        const V t260 = t249 + t248;
        const V t261 = t248 - t249;
        const V t262 = c[2] * t260;
        const V t263 = c[2] * t261;
        const V t264 = c[1] * t252;
        const V t265 = c[0] * t253;
        const V t266 = t265 - t264;
        const V t267 = c[1] * t253;
        const V t268 = c[0] * t252;
        const V t269 = t268 + t267;
        // mirrored skew block of 4
        const V t270 = t160 - t208;
        const V t271 = c[2] * t270;
        const V t272 = t211 - t163;
        const V t273 = c[2] * t272;
        const V t274 = t160 + t208;
        const V t275 = t271 - t273;
        const V t276 = t163 + t211;
        const V t277 = t271 + t273;
        // spectrum block of 2
        const V t278 = t234 + t274;
        const V t279 = t234 - t274;
        // spectrum block of 2
        const V t280 = t278 + t247;
        io.re(1, t280);
        const V t281 = t278 - t247;
        io.re(16, t281);
        // spectrum block of 2
        const V t282 = t279 + t246;
        io.re(4, t282);
        const V t283 = t279 - t246;
        io.re(13, t283);
        // spectrum block of 2
        const V t284 = t236 + t275;
        const V t285 = t236 - t275;
        // spectrum block of 2
        const V t286 = t284 + t256;
        io.re(6, t286);
        const V t287 = t284 - t256;
        io.re(11, t287);
        // spectrum block of 2
        const V t288 = t285 - t259;
        io.re(7, t288);
        const V t289 = t285 + t259;
        io.re(10, t289);
        // spectrum block of 2
        const V t290 = t235 + t276;
        const V t291 = t235 - t276;
        // spectrum block of 2
        const V t292 = t290 - t263;
        io.re(2, t292);
        const V t293 = t290 + t263;
        io.re(15, t293);
        // spectrum block of 2
        const V t294 = t291 - t262;
        io.re(8, t294);
        const V t295 = t291 + t262;
        io.re(9, t295);
        // spectrum block of 2
        const V t296 = t237 - t277;
        const V t297 = t237 + t277;
        // spectrum block of 2
        const V t298 = t296 + t266;
        io.re(12, t298);
        const V t299 = t296 - t266;
        io.re(5, t299);
        // spectrum block of 2
        const V t300 = t297 - t269;
        io.re(14, t300);
        const V t301 = t297 + t269;
        io.re(3, t301);
        // spectrum block of 2
        const V t302 = t145 + t231;
        const V t303 = t145 - t231;
        // spectrum block of 2
        const V t304 = t302 + t190;
        const V t305 = t302 - t190;
        // spectrum block of 2
        const V t306 = t303 - t193;
        const V t307 = t303 + t193;
        // complex block of 2
        const V t308 = t157 + t229;
        const V t309 = t154 + t226;
        const V t310 = t157 - t229;
        const V t311 = t154 - t226;
        // complex block of 2
        const V t312 = t205 - t181;
        const V t313 = t202 - t178;
        const V t314 = t205 + t181;
        const V t315 = t202 + t178;
        // complex block of 2
        const V t316 = t308 + t312;
        const V t317 = t309 + t313;
        const V t318 = t308 - t312;
        const V t319 = t309 - t313;
        // complex block of 2
        const V t320 = t310 + t315;
        const V t321 = t311 - t314;
        const V t322 = t310 - t315;
        const V t323 = t311 + t314;
        // spectrum block of 16
        const V t324 = c[0] * t320;
        const V t325 = c[1] * t321;
        const V t326 = t325 - t324;
        const V t327 = c[0] * t321;
        const V t328 = c[1] * t320;
        const V t329 = t328 + t327;
        const V t330 = t319 + t318;
        const V t331 = t318 - t319;
        const V t332 = c[2] * t330;
        const V t333 = c[2] * t331;
        const V t334 = c[1] * t322;
        const V t335 = c[0] * t323;
        const V t336 = t335 - t334;
        const V t337 = c[1] * t323;
        const V t338 = c[0] * t322;
        const V t339 = t338 + t337;
        // mirrored skew block of 4
        const V t340 = t166 - t214;
        const V t341 = c[2] * t340;
        const V t342 = t217 - t169;
        const V t343 = c[2] * t342;
        const V t344 = t166 + t214;
        const V t345 = t341 - t343;
        const V t346 = t169 + t217;
        const V t347 = t341 + t343;
        // spectrum block of 2
        const V t348 = t304 + t344;
        const V t349 = t304 - t344;
        // spectrum block of 2
        const V t350 = t348 + t317;
        io.im(1, t350);
        const V t351 = t348 - t317;
        io.im(16, t351);
        // spectrum block of 2
        const V t352 = t349 - t316;
        io.im(4, t352);
        const V t353 = t349 + t316;
        io.im(13, t353);
        // spectrum block of 2
        const V t354 = t306 + t345;
        const V t355 = t306 - t345;
        // spectrum block of 2
        const V t356 = t354 + t326;
        io.im(6, t356);
        const V t357 = t354 - t326;
        io.im(11, t357);
        // spectrum block of 2
        const V t358 = t355 - t329;
        io.im(7, t358);
        const V t359 = t355 + t329;
        io.im(10, t359);
        // spectrum block of 2
        const V t360 = t305 + t346;
        const V t361 = t305 - t346;
        // spectrum block of 2
        const V t362 = t360 - t333;
        io.im(2, t362);
        const V t363 = t360 + t333;
        io.im(15, t363);
        // spectrum block of 2
        const V t364 = t361 - t332;
        io.im(8, t364);
        const V t365 = t361 + t332;
        io.im(9, t365);
        // spectrum block of 2
        const V t366 = t307 - t347;
        const V t367 = t307 + t347;
        // spectrum block of 2
        const V t368 = t366 + t336;
        io.im(12, t368);
        const V t369 = t366 - t336;
        io.im(5, t369);
        // spectrum block of 2
        const V t370 = t367 - t339;
        io.im(14, t370);
        const V t371 = t367 + t339;
        io.im(3, t371);
    }
};

}  // namespace zulg
