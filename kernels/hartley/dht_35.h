// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 35.
// Hartley transform of 35 points, form I.
// 136 additions, 126 subtractions, 146 multiplications (181 with `scale`); 10 constants; 57 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<35> {
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
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x7 = io.in(7);
        const V x28 = io.in(28);
        const V t0 = x7 + x28;
        const V t1 = x7 - x28;
        // spectrum block of 5, multiplier 2
        const V t2 = c[6] * t0;
        const V t3 = c[7] * t0;
        // input stage
        const V x14 = io.in(14);
        const V x21 = io.in(21);
        const V t4 = x14 + x21;
        const V t5 = x14 - x21;
        // spectrum block of 5, multiplier 2
        const V t6 = c[7] * t4;
        const V t7 = t0 + t4;
        const V x0 = io.in(0);
        const V t8 = t7 + x0;
        const V t9 = t2 - t6;
        const V t10 = t9 + x0;
        const V t11 = c[8] * t1;
        const V t12 = c[9] * t5;
        const V t13 = t11 + t12;
        const V t14 = x0 - t3;
        const V t15 = c[6] * t4;
        const V t16 = t14 + t15;
        const V t17 = c[9] * t1;
        const V t18 = c[8] * t5;
        const V t19 = t17 - t18;
        // input stage
        const V x1 = io.in(1);
        const V x34 = io.in(34);
        const V t20 = x1 + x34;
        const V t21 = x1 - x34;
        const V x6 = io.in(6);
        const V x29 = io.in(29);
        const V t22 = x6 + x29;
        const V t23 = x6 - x29;
        // complex block of 5, multiplier 2
        const V t24 = t21 - t23;
        const V t25 = t20 + t22;
        const V t26 = t21 + t23;
        const V t27 = t20 - t22;
        // input stage
        const V x8 = io.in(8);
        const V x27 = io.in(27);
        const V t28 = x8 + x27;
        const V t29 = x8 - x27;
        const V x13 = io.in(13);
        const V x22 = io.in(22);
        const V t30 = x13 + x22;
        const V t31 = x13 - x22;
        // complex block of 5, multiplier 2
        const V t32 = t29 - t31;
        const V t33 = t30 + t28;
        const V t34 = t31 + t29;
        const V t35 = t30 - t28;
        // input stage
        const V x15 = io.in(15);
        const V x20 = io.in(20);
        const V t36 = x15 + x20;
        const V t37 = x15 - x20;
        // complex block of 5, multiplier 2
        const V t38 = t32 + t24;
        const V t39 = t33 + t25;
        const V t40 = t39 + t36;
        const V t41 = c[6] * t32;
        const V t42 = c[7] * t24;
        const V t43 = t41 - t42;
        const V t44 = c[6] * t33;
        const V t45 = c[7] * t25;
        const V t46 = t44 - t45;
        const V t47 = t46 + t36;
        const V t48 = c[8] * t34;
        const V t49 = c[9] * t26;
        const V t50 = t48 + t49;
        const V t51 = c[8] * t35;
        const V t52 = c[9] * t27;
        const V t53 = t51 - t52;
        const V t54 = c[7] * t32;
        const V t55 = t37 - t54;
        const V t56 = c[6] * t24;
        const V t57 = c[7] * t33;
        const V t58 = t36 - t57;
        const V t59 = c[6] * t25;
        const V t60 = t58 + t59;
        const V t61 = c[9] * t34;
        const V t62 = c[8] * t26;
        const V t63 = t62 - t61;
        const V t64 = c[9] * t35;
        const V t65 = c[8] * t27;
        const V t66 = t64 + t65;
        // input stage
        const V x2 = io.in(2);
        const V x33 = io.in(33);
        const V t67 = x2 + x33;
        const V t68 = x2 - x33;
        const V x12 = io.in(12);
        const V x23 = io.in(23);
        const V t69 = x12 + x23;
        const V t70 = x12 - x23;
        // complex block of 5, multiplier 2
        const V t71 = t70 - t68;
        const V t72 = t69 + t67;
        const V t73 = t70 + t68;
        const V t74 = t69 - t67;
        // input stage
        const V x5 = io.in(5);
        const V x30 = io.in(30);
        const V t75 = x5 + x30;
        const V t76 = x5 - x30;
        const V x9 = io.in(9);
        const V x26 = io.in(26);
        const V t77 = x9 + x26;
        const V t78 = x9 - x26;
        const V x16 = io.in(16);
        const V x19 = io.in(19);
        const V t79 = x16 + x19;
        const V t80 = x16 - x19;
        // complex block of 5, multiplier 2
        const V t81 = t78 + t80;
        const V t82 = t77 + t79;
        const V t83 = t80 - t78;
        const V t84 = t77 - t79;
        const V t85 = t71 - t81;
        const V t86 = t85 + t76;
        const V t87 = t72 + t82;
        const V t88 = t87 + t75;
        const V t89 = c[6] * t71;
        const V t90 = c[7] * t81;
        const V t91 = t89 + t90;
        const V t92 = t91 + t76;
        const V t93 = c[6] * t72;
        const V t94 = c[7] * t82;
        const V t95 = t93 - t94;
        const V t96 = t95 + t75;
        const V t97 = c[8] * t73;
        const V t98 = c[9] * t83;
        const V t99 = t97 - t98;
        const V t100 = c[8] * t74;
        const V t101 = c[9] * t84;
        const V t102 = t100 - t101;
        const V t103 = c[7] * t71;
        const V t104 = t76 - t103;
        const V t105 = c[6] * t81;
        const V t106 = t104 - t105;
        const V t107 = c[7] * t72;
        const V t108 = t75 - t107;
        const V t109 = c[6] * t82;
        const V t110 = t108 + t109;
        const V t111 = c[9] * t73;
        const V t112 = c[8] * t83;
        const V t113 = t111 + t112;
        const V t114 = c[9] * t74;
        const V t115 = c[8] * t84;
        const V t116 = t114 + t115;
        // input stage
        const V x3 = io.in(3);
        const V x32 = io.in(32);
        const V t117 = x3 + x32;
        const V t118 = x3 - x32;
        const V x17 = io.in(17);
        const V x18 = io.in(18);
        const V t119 = x17 + x18;
        const V t120 = x17 - x18;
        // complex block of 5, multiplier 2
        const V t121 = t120 + t118;
        const V t122 = t119 + t117;
        const V t123 = t120 - t118;
        const V t124 = t119 - t117;
        // input stage
        const V x4 = io.in(4);
        const V x31 = io.in(31);
        const V t125 = x4 + x31;
        const V t126 = x4 - x31;
        const V x11 = io.in(11);
        const V x24 = io.in(24);
        const V t127 = x11 + x24;
        const V t128 = x11 - x24;
        // complex block of 5, multiplier 2
        const V t129 = t126 + t128;
        const V t130 = t125 + t127;
        const V t131 = t128 - t126;
        const V t132 = t125 - t127;
        // input stage
        const V x10 = io.in(10);
        const V x25 = io.in(25);
        const V t133 = x10 + x25;
        const V t134 = x10 - x25;
        // complex block of 5, multiplier 2
        const V t135 = t121 - t129;
        const V t136 = t135 + t134;
        const V t137 = t122 + t130;
        const V t138 = t137 + t133;
        const V t139 = c[6] * t121;
        const V t140 = c[7] * t129;
        const V t141 = t139 + t140;
        const V t142 = t141 + t134;
        const V t143 = c[6] * t122;
        const V t144 = c[7] * t130;
        const V t145 = t143 - t144;
        const V t146 = t145 + t133;
        const V t147 = c[8] * t123;
        const V t148 = c[9] * t131;
        const V t149 = t147 - t148;
        const V t150 = c[8] * t124;
        const V t151 = c[9] * t132;
        const V t152 = t150 - t151;
        const V t153 = c[7] * t121;
        const V t154 = t134 - t153;
        const V t155 = c[6] * t129;
        const V t156 = t154 - t155;
        const V t157 = c[7] * t122;
        const V t158 = t133 - t157;
        const V t159 = c[6] * t130;
        const V t160 = t158 + t159;
        const V t161 = c[9] * t123;
        const V t162 = c[8] * t131;
        const V t163 = t161 + t162;
        const V t164 = c[9] * t124;
        const V t165 = c[8] * t132;
        const V t166 = t164 + t165;
        // spectrum block of 5, multiplier 2
        const V t167 = t10 - t13;
        // complex block of 5, multiplier 2
        const V t168 = t96 - t99;
        // spectrum block of 7, multiplier 5
        const V t169 = c[0] * t168;
        const V t170 = c[1] * t168;
        const V t171 = c[2] * t168;
        // complex block of 5, multiplier 2
        const V t172 = t146 - t149;
        // spectrum block of 7, multiplier 5
        const V t173 = c[1] * t172;
        const V t174 = t168 + t172;
        const V t175 = t169 - t173;
        const V t176 = t167 - t170;
        const V t177 = c[2] * t172;
        const V t178 = t167 - t171;
        const V t179 = c[0] * t172;
        // spectrum block of 5, multiplier 2
        const V t180 = t10 + t13;
        // complex block of 5, multiplier 2
        const V t181 = t96 + t99;
        // spectrum block of 7, multiplier 5
        const V t182 = c[0] * t181;
        const V t183 = c[1] * t181;
        const V t184 = c[2] * t181;
        // complex block of 5, multiplier 2
        const V t185 = t146 + t149;
        // spectrum block of 7, multiplier 5
        const V t186 = c[1] * t185;
        const V t187 = t181 + t185;
        const V t188 = t182 - t186;
        const V t189 = t180 - t183;
        const V t190 = c[2] * t185;
        const V t191 = t180 - t184;
        const V t192 = c[0] * t185;
        // complex block of 5, multiplier 2
        const V t193 = t92 + t102;
        // spectrum block of 7, multiplier 5
        const V t194 = c[3] * t193;
        const V t195 = c[4] * t193;
        const V t196 = c[5] * t193;
        // complex block of 5, multiplier 2
        const V t197 = t142 + t152;
        // spectrum block of 7, multiplier 5
        const V t198 = c[4] * t197;
        const V t199 = c[5] * t197;
        const V t200 = c[3] * t197;
        const V t201 = t194 + t198;
        const V t202 = t195 - t199;
        const V t203 = t196 - t200;
        // complex block of 5, multiplier 2
        const V t204 = t92 - t102;
        // spectrum block of 7, multiplier 5
        const V t205 = c[3] * t204;
        const V t206 = c[4] * t204;
        const V t207 = c[5] * t204;
        // complex block of 5, multiplier 2
        const V t208 = t142 - t152;
        // spectrum block of 7, multiplier 5
        const V t209 = c[4] * t208;
        const V t210 = c[5] * t208;
        const V t211 = c[3] * t208;
        const V t212 = t205 + t209;
        const V t213 = t206 - t210;
        const V t214 = t207 - t211;
        // complex block of 5, multiplier 2
        const V t215 = t43 + t37;
        const V t216 = t215 + t53;
        const V t217 = t215 - t53;
        // spectrum block of 7, multiplier 5
        const V t218 = c[5] * t217;
        const V t219 = c[3] * t217;
        const V t220 = c[4] * t217;
        // spectrum block of 7, multiplier 5
        const V t221 = c[5] * t216;
        const V t222 = c[3] * t216;
        const V t223 = c[4] * t216;
        // complex block of 5, multiplier 2
        const V t224 = t47 + t50;
        // spectrum block of 7, multiplier 5
        const V t225 = c[2] * t224;
        const V t226 = c[0] * t224;
        const V t227 = c[1] * t224;
        // complex block of 5, multiplier 2
        const V t228 = t47 - t50;
        // spectrum block of 7, multiplier 5
        const V t229 = c[2] * t228;
        const V t230 = c[0] * t228;
        const V t231 = c[1] * t228;
        const V t232 = t187 + t228;
        const V t233 = t232 + t180;
        io.out(21, t233);
        const V t234 = t188 - t229;
        const V t235 = t234 + t180;
        const V t236 = t212 + t218;
        const V t237 = t235 - t236;
        io.out(6, t237);
        const V t238 = t235 + t236;
        io.out(1, t238);
        const V t239 = t189 - t190;
        const V t240 = t239 + t230;
        const V t241 = t213 - t219;
        const V t242 = t240 - t241;
        io.out(26, t242);
        const V t243 = t240 + t241;
        io.out(16, t243);
        const V t244 = t191 + t192;
        const V t245 = t244 - t231;
        const V t246 = t214 + t220;
        const V t247 = t245 - t246;
        io.out(11, t247);
        const V t248 = t245 + t246;
        io.out(31, t248);
        // spectrum block of 7, multiplier 5
        const V t249 = t174 + t224;
        const V t250 = t249 + t167;
        io.out(14, t250);
        const V t251 = t175 - t225;
        const V t252 = t251 + t167;
        const V t253 = t201 + t221;
        const V t254 = t252 - t253;
        io.out(34, t254);
        const V t255 = t252 + t253;
        io.out(29, t255);
        const V t256 = t176 - t177;
        const V t257 = t256 + t226;
        const V t258 = t202 - t222;
        const V t259 = t257 - t258;
        io.out(19, t259);
        const V t260 = t257 + t258;
        io.out(9, t260);
        const V t261 = t178 + t179;
        const V t262 = t261 - t227;
        const V t263 = t203 + t223;
        const V t264 = t262 - t263;
        io.out(4, t264);
        const V t265 = t262 + t263;
        io.out(24, t265);
        // spectrum block of 5, multiplier 2
        const V t266 = t16 - t19;
        // complex block of 5, multiplier 2
        const V t267 = t110 - t113;
        // spectrum block of 7, multiplier 5
        const V t268 = c[0] * t267;
        const V t269 = c[1] * t267;
        const V t270 = c[2] * t267;
        // complex block of 5, multiplier 2
        const V t271 = t160 - t163;
        // spectrum block of 7, multiplier 5
        const V t272 = c[1] * t271;
        const V t273 = t267 + t271;
        const V t274 = t268 - t272;
        const V t275 = t266 - t269;
        const V t276 = c[2] * t271;
        const V t277 = t266 - t270;
        const V t278 = c[0] * t271;
        // spectrum block of 5, multiplier 2
        const V t279 = t16 + t19;
        // complex block of 5, multiplier 2
        const V t280 = t110 + t113;
        // spectrum block of 7, multiplier 5
        const V t281 = c[0] * t280;
        const V t282 = c[1] * t280;
        const V t283 = c[2] * t280;
        // complex block of 5, multiplier 2
        const V t284 = t160 + t163;
        // spectrum block of 7, multiplier 5
        const V t285 = c[1] * t284;
        const V t286 = t280 + t284;
        const V t287 = t281 - t285;
        const V t288 = t279 - t282;
        const V t289 = c[2] * t284;
        const V t290 = t279 - t283;
        const V t291 = c[0] * t284;
        // complex block of 5, multiplier 2
        const V t292 = t106 + t116;
        // spectrum block of 7, multiplier 5
        const V t293 = c[3] * t292;
        const V t294 = c[4] * t292;
        const V t295 = c[5] * t292;
        // complex block of 5, multiplier 2
        const V t296 = t156 + t166;
        // spectrum block of 7, multiplier 5
        const V t297 = c[4] * t296;
        const V t298 = c[5] * t296;
        const V t299 = c[3] * t296;
        const V t300 = t293 + t297;
        const V t301 = t294 - t298;
        const V t302 = t295 - t299;
        // complex block of 5, multiplier 2
        const V t303 = t106 - t116;
        // spectrum block of 7, multiplier 5
        const V t304 = c[3] * t303;
        const V t305 = c[4] * t303;
        const V t306 = c[5] * t303;
        // complex block of 5, multiplier 2
        const V t307 = t156 - t166;
        // spectrum block of 7, multiplier 5
        const V t308 = c[4] * t307;
        const V t309 = c[5] * t307;
        const V t310 = c[3] * t307;
        const V t311 = t304 + t308;
        const V t312 = t305 - t309;
        const V t313 = t306 - t310;
        // complex block of 5, multiplier 2
        const V t314 = t55 + t56;
        const V t315 = t314 + t66;
        const V t316 = t314 - t66;
        // spectrum block of 7, multiplier 5
        const V t317 = c[5] * t315;
        const V t318 = c[3] * t315;
        const V t319 = c[4] * t315;
        // spectrum block of 7, multiplier 5
        const V t320 = c[5] * t316;
        const V t321 = c[3] * t316;
        const V t322 = c[4] * t316;
        // complex block of 5, multiplier 2
        const V t323 = t60 - t63;
        // spectrum block of 7, multiplier 5
        const V t324 = c[2] * t323;
        const V t325 = c[0] * t323;
        const V t326 = c[1] * t323;
        // complex block of 5, multiplier 2
        const V t327 = t60 + t63;
        // spectrum block of 7, multiplier 5
        const V t328 = c[2] * t327;
        const V t329 = c[0] * t327;
        const V t330 = c[1] * t327;
        // spectrum block of 7, multiplier 5
        const V t331 = t273 + t323;
        const V t332 = t331 + t266;
        io.out(28, t332);
        const V t333 = t274 - t324;
        const V t334 = t333 + t266;
        const V t335 = t300 + t317;
        const V t336 = t334 - t335;
        io.out(13, t336);
        const V t337 = t334 + t335;
        io.out(8, t337);
        const V t338 = t275 - t276;
        const V t339 = t338 + t325;
        const V t340 = t301 - t318;
        const V t341 = t339 - t340;
        io.out(33, t341);
        const V t342 = t339 + t340;
        io.out(23, t342);
        const V t343 = t277 + t278;
        const V t344 = t343 - t326;
        const V t345 = t302 + t319;
        const V t346 = t344 - t345;
        io.out(18, t346);
        const V t347 = t344 + t345;
        io.out(3, t347);
        // spectrum block of 7, multiplier 5
        const V t348 = t286 + t327;
        const V t349 = t348 + t279;
        io.out(7, t349);
        const V t350 = t287 - t328;
        const V t351 = t350 + t279;
        const V t352 = t311 + t320;
        const V t353 = t351 - t352;
        io.out(27, t353);
        const V t354 = t351 + t352;
        io.out(22, t354);
        const V t355 = t288 - t289;
        const V t356 = t355 + t329;
        const V t357 = t312 - t321;
        const V t358 = t356 - t357;
        io.out(12, t358);
        const V t359 = t356 + t357;
        io.out(2, t359);
        const V t360 = t290 + t291;
        const V t361 = t360 - t330;
        const V t362 = t313 + t322;
        const V t363 = t361 - t362;
        io.out(32, t363);
        const V t364 = t361 + t362;
        io.out(17, t364);
        // complex block of 5, multiplier 2
        const V t365 = t38 + t37;
        // spectrum block of 7, multiplier 5
        const V t366 = c[5] * t365;
        const V t367 = c[3] * t365;
        const V t368 = c[4] * t365;
        const V t369 = c[0] * t88;
        const V t370 = c[1] * t138;
        const V t371 = t369 - t370;
        const V t372 = c[2] * t40;
        const V t373 = t371 - t372;
        const V t374 = c[3] * t86;
        const V t375 = c[4] * t136;
        const V t376 = t374 + t375;
        const V t377 = c[1] * t88;
        const V t378 = t8 - t377;
        const V t379 = c[2] * t138;
        const V t380 = t378 - t379;
        const V t381 = c[0] * t40;
        const V t382 = c[4] * t86;
        const V t383 = c[5] * t136;
        const V t384 = t382 - t383;
        const V t385 = c[2] * t88;
        const V t386 = t8 - t385;
        const V t387 = c[0] * t138;
        const V t388 = t386 + t387;
        const V t389 = c[1] * t40;
        const V t390 = c[5] * t86;
        const V t391 = c[3] * t136;
        const V t392 = t390 - t391;
        const V t393 = t373 + t8;
        const V t394 = t376 + t366;
        const V t395 = t393 - t394;
        io.out(20, t395);
        const V t396 = t393 + t394;
        io.out(15, t396);
        const V t397 = t380 + t381;
        const V t398 = t384 - t367;
        const V t399 = t397 - t398;
        io.out(5, t399);
        const V t400 = t397 + t398;
        io.out(30, t400);
        const V t401 = t388 - t389;
        const V t402 = t392 + t368;
        const V t403 = t401 - t402;
        io.out(25, t403);
        const V t404 = t401 + t402;
        io.out(10, t404);
        const V t405 = t88 + t138;
        const V t406 = t405 + t40;
        const V t407 = t406 + t8;
        io.out(0, t407);
    }
};

}  // namespace zulg
