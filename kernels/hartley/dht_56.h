// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 56.
// Hartley transform of 56 points, form I.
// 211 additions, 211 subtractions, 158 multiplications (214 with `scale`); 7 constants; 59 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<56> {
    static constexpr int steps = 636;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.7071067811865476,  // c[6]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x55 = io.in(55);
        const V t0 = x1 + x55;
        const V t1 = x1 - x55;
        const V x2 = io.in(2);
        const V x54 = io.in(54);
        const V t2 = x2 + x54;
        const V t3 = x2 - x54;
        const V x3 = io.in(3);
        const V x53 = io.in(53);
        const V t4 = x3 + x53;
        const V t5 = x3 - x53;
        const V x4 = io.in(4);
        const V x52 = io.in(52);
        const V t6 = x4 + x52;
        const V t7 = x4 - x52;
        const V x5 = io.in(5);
        const V x51 = io.in(51);
        const V t8 = x5 + x51;
        const V t9 = x5 - x51;
        const V x6 = io.in(6);
        const V x50 = io.in(50);
        const V t10 = x6 + x50;
        const V t11 = x6 - x50;
        const V x7 = io.in(7);
        const V x49 = io.in(49);
        const V t12 = x7 + x49;
        const V t13 = x7 - x49;
        const V x8 = io.in(8);
        const V x48 = io.in(48);
        const V t14 = x8 + x48;
        const V t15 = x8 - x48;
        const V x9 = io.in(9);
        const V x47 = io.in(47);
        const V t16 = x9 + x47;
        const V t17 = x9 - x47;
        const V x10 = io.in(10);
        const V x46 = io.in(46);
        const V t18 = x10 + x46;
        const V t19 = x10 - x46;
        const V x11 = io.in(11);
        const V x45 = io.in(45);
        const V t20 = x11 + x45;
        const V t21 = x11 - x45;
        const V x12 = io.in(12);
        const V x44 = io.in(44);
        const V t22 = x12 + x44;
        const V t23 = x12 - x44;
        const V x13 = io.in(13);
        const V x43 = io.in(43);
        const V t24 = x13 + x43;
        const V t25 = x13 - x43;
        const V x14 = io.in(14);
        const V x42 = io.in(42);
        const V t26 = x14 + x42;
        const V t27 = x14 - x42;
        const V x15 = io.in(15);
        const V x41 = io.in(41);
        const V t28 = x15 + x41;
        const V t29 = x15 - x41;
        const V x16 = io.in(16);
        const V x40 = io.in(40);
        const V t30 = x16 + x40;
        const V t31 = x16 - x40;
        const V x17 = io.in(17);
        const V x39 = io.in(39);
        const V t32 = x17 + x39;
        const V t33 = x17 - x39;
        const V x18 = io.in(18);
        const V x38 = io.in(38);
        const V t34 = x18 + x38;
        const V t35 = x18 - x38;
        const V x19 = io.in(19);
        const V x37 = io.in(37);
        const V t36 = x19 + x37;
        const V t37 = x19 - x37;
        const V x20 = io.in(20);
        const V x36 = io.in(36);
        const V t38 = x20 + x36;
        const V t39 = x20 - x36;
        const V x21 = io.in(21);
        const V x35 = io.in(35);
        const V t40 = x21 + x35;
        const V t41 = x21 - x35;
        const V x22 = io.in(22);
        const V x34 = io.in(34);
        const V t42 = x22 + x34;
        const V t43 = x22 - x34;
        const V x23 = io.in(23);
        const V x33 = io.in(33);
        const V t44 = x23 + x33;
        const V t45 = x23 - x33;
        const V x24 = io.in(24);
        const V x32 = io.in(32);
        const V t46 = x24 + x32;
        const V t47 = x24 - x32;
        const V x25 = io.in(25);
        const V x31 = io.in(31);
        const V t48 = x25 + x31;
        const V t49 = x25 - x31;
        const V x26 = io.in(26);
        const V x30 = io.in(30);
        const V t50 = x26 + x30;
        const V t51 = x26 - x30;
        const V x27 = io.in(27);
        const V x29 = io.in(29);
        const V t52 = x27 + x29;
        const V t53 = x27 - x29;
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x28 = io.in(28);
        const V t54 = x0 + x28;
        const V t55 = x0 - x28;
        // spectrum block of 2
        const V t56 = t54 + t26;
        const V t57 = t54 - t26;
        // spectrum block of 2
        const V t58 = t55 + t27;
        const V t59 = t55 - t27;
        // mirrored skew block of 4, multiplier 7
        const V t60 = t12 - t40;
        const V t61 = c[6] * t60;
        const V t62 = t13 + t41;
        const V t63 = c[6] * t62;
        const V t64 = t12 + t40;
        const V t65 = t61 + t63;
        const V t66 = t41 - t13;
        const V t67 = t61 - t63;
        // spectrum block of 2
        const V t68 = t56 + t64;
        const V t69 = t56 - t64;
        // spectrum block of 2
        const V t70 = t58 + t65;
        const V t71 = t58 - t65;
        // spectrum block of 2
        const V t72 = t57 - t66;
        const V t73 = t57 + t66;
        // spectrum block of 2
        const V t74 = t59 - t67;
        const V t75 = t59 + t67;
        // complex block of 2
        const V t76 = t15 - t39;
        const V t77 = t14 + t38;
        const V t78 = t15 + t39;
        const V t79 = t14 - t38;
        // complex block of 2
        const V t80 = t29 - t25;
        const V t81 = t28 + t24;
        const V t82 = t29 + t25;
        const V t83 = t28 - t24;
        // complex block of 2
        const V t84 = t43 - t11;
        const V t85 = t42 + t10;
        const V t86 = t43 + t11;
        const V t87 = t42 - t10;
        // complex block of 2
        const V t88 = t1 - t53;
        const V t89 = t52 + t0;
        const V t90 = t53 + t1;
        const V t91 = t52 - t0;
        // complex block of 2
        const V t92 = t76 + t84;
        const V t93 = t77 + t85;
        const V t94 = t76 - t84;
        const V t95 = t77 - t85;
        // complex block of 2
        const V t96 = t80 + t88;
        const V t97 = t81 + t89;
        const V t98 = t80 - t88;
        const V t99 = t81 - t89;
        // complex block of 2
        const V t100 = t92 + t96;
        const V t101 = t93 + t97;
        const V t102 = t92 - t96;
        const V t103 = t93 - t97;
        // complex block of 2
        const V t104 = t94 - t99;
        const V t105 = t95 + t98;
        const V t106 = t94 + t99;
        const V t107 = t95 - t98;
        // complex block of 8, multiplier 7
        const V t108 = c[6] * t82;
        const V t109 = c[6] * t83;
        const V t110 = t108 + t109;
        const V t111 = t109 - t108;
        const V t112 = c[6] * t90;
        const V t113 = c[6] * t91;
        const V t114 = t113 - t112;
        const V t115 = t113 + t112;
        // complex block of 2
        const V t116 = t78 - t87;
        const V t117 = t79 + t86;
        const V t118 = t78 + t87;
        const V t119 = t79 - t86;
        // complex block of 2
        const V t120 = t111 + t114;
        const V t121 = t110 - t115;
        const V t122 = t114 - t111;
        const V t123 = t110 + t115;
        // complex block of 2
        const V t124 = t116 - t120;
        const V t125 = t117 + t121;
        const V t126 = t116 + t120;
        const V t127 = t117 - t121;
        // complex block of 2
        const V t128 = t118 - t123;
        const V t129 = t119 + t122;
        const V t130 = t118 + t123;
        const V t131 = t119 - t122;
        // complex block of 2
        const V t132 = t31 - t23;
        const V t133 = t30 + t22;
        const V t134 = t31 + t23;
        const V t135 = t30 - t22;
        // complex block of 2
        const V t136 = t45 - t9;
        const V t137 = t44 + t8;
        const V t138 = t45 + t9;
        const V t139 = t44 - t8;
        // complex block of 2
        const V t140 = t3 - t51;
        const V t141 = t50 + t2;
        const V t142 = t51 + t3;
        const V t143 = t50 - t2;
        // complex block of 2
        const V t144 = t17 - t37;
        const V t145 = t36 + t16;
        const V t146 = t37 + t17;
        const V t147 = t36 - t16;
        // complex block of 2
        const V t148 = t132 + t140;
        const V t149 = t133 + t141;
        const V t150 = t132 - t140;
        const V t151 = t133 - t141;
        // complex block of 2
        const V t152 = t136 + t144;
        const V t153 = t137 + t145;
        const V t154 = t136 - t144;
        const V t155 = t137 - t145;
        // complex block of 2
        const V t156 = t148 + t152;
        const V t157 = t149 + t153;
        const V t158 = t148 - t152;
        const V t159 = t149 - t153;
        // complex block of 2
        const V t160 = t150 - t155;
        const V t161 = t151 + t154;
        const V t162 = t150 + t155;
        const V t163 = t151 - t154;
        // complex block of 8, multiplier 7
        const V t164 = c[6] * t138;
        const V t165 = c[6] * t139;
        const V t166 = t164 + t165;
        const V t167 = t165 - t164;
        const V t168 = c[6] * t146;
        const V t169 = c[6] * t147;
        const V t170 = t169 - t168;
        const V t171 = t169 + t168;
        // complex block of 2
        const V t172 = t134 - t143;
        const V t173 = t135 - t142;
        const V t174 = t134 + t143;
        const V t175 = t135 + t142;
        // complex block of 2
        const V t176 = t167 + t170;
        const V t177 = t166 - t171;
        const V t178 = t170 - t167;
        const V t179 = t166 + t171;
        // complex block of 2
        const V t180 = t172 - t176;
        const V t181 = t173 + t177;
        const V t182 = t172 + t176;
        const V t183 = t173 - t177;
        // complex block of 2
        const V t184 = t174 - t179;
        const V t185 = t175 + t178;
        const V t186 = t174 + t179;
        const V t187 = t175 - t178;
        // complex block of 2
        const V t188 = t47 - t7;
        const V t189 = t46 + t6;
        const V t190 = t47 + t7;
        const V t191 = t46 - t6;
        // complex block of 2
        const V t192 = t5 - t49;
        const V t193 = t48 + t4;
        const V t194 = t49 + t5;
        const V t195 = t48 - t4;
        // complex block of 2
        const V t196 = t19 - t35;
        const V t197 = t34 + t18;
        const V t198 = t35 + t19;
        const V t199 = t34 - t18;
        // complex block of 2
        const V t200 = t33 - t21;
        const V t201 = t20 + t32;
        const V t202 = t21 + t33;
        const V t203 = t20 - t32;
        // complex block of 2
        const V t204 = t188 + t196;
        const V t205 = t189 + t197;
        const V t206 = t188 - t196;
        const V t207 = t189 - t197;
        // complex block of 2
        const V t208 = t192 + t200;
        const V t209 = t193 + t201;
        const V t210 = t192 - t200;
        const V t211 = t193 - t201;
        // complex block of 2
        const V t212 = t204 + t208;
        const V t213 = t205 + t209;
        const V t214 = t204 - t208;
        const V t215 = t205 - t209;
        // complex block of 2
        const V t216 = t206 - t211;
        const V t217 = t207 + t210;
        const V t218 = t206 + t211;
        const V t219 = t207 - t210;
        // complex block of 8, multiplier 7
        const V t220 = c[6] * t194;
        const V t221 = c[6] * t195;
        const V t222 = t221 - t220;
        const V t223 = t221 + t220;
        const V t224 = c[6] * t202;
        const V t225 = c[6] * t203;
        const V t226 = t225 - t224;
        const V t227 = t225 + t224;
        // complex block of 2
        const V t228 = t190 - t199;
        const V t229 = t191 - t198;
        const V t230 = t190 + t199;
        const V t231 = t191 + t198;
        // complex block of 2
        const V t232 = t223 + t226;
        const V t233 = t222 - t227;
        const V t234 = t226 - t223;
        const V t235 = t222 + t227;
        // complex block of 2
        const V t236 = t228 - t232;
        const V t237 = t229 + t233;
        const V t238 = t228 + t232;
        const V t239 = t229 - t233;
        // complex block of 2
        const V t240 = t230 - t235;
        const V t241 = t231 + t234;
        const V t242 = t230 + t235;
        const V t243 = t231 - t234;
        // spectrum block of 7
        const V t244 = t101 + t157;
        const V t245 = t244 + t213;
        const V t246 = t245 + t68;
        io.out(0, t246);
        const V t247 = c[0] * t101;
        const V t248 = c[1] * t157;
        const V t249 = t247 - t248;
        const V t250 = c[2] * t213;
        const V t251 = t249 - t250;
        const V t252 = t251 + t68;
        const V t253 = c[3] * t100;
        const V t254 = c[4] * t156;
        const V t255 = t253 + t254;
        const V t256 = c[5] * t212;
        const V t257 = t255 + t256;
        const V t258 = t252 - t257;
        io.out(48, t258);
        const V t259 = t252 + t257;
        io.out(8, t259);
        const V t260 = c[1] * t101;
        const V t261 = t68 - t260;
        const V t262 = c[2] * t157;
        const V t263 = t261 - t262;
        const V t264 = c[0] * t213;
        const V t265 = t263 + t264;
        const V t266 = c[4] * t100;
        const V t267 = c[5] * t156;
        const V t268 = t266 - t267;
        const V t269 = c[3] * t212;
        const V t270 = t268 - t269;
        const V t271 = t265 - t270;
        io.out(40, t271);
        const V t272 = t265 + t270;
        io.out(16, t272);
        const V t273 = c[2] * t101;
        const V t274 = t68 - t273;
        const V t275 = c[0] * t157;
        const V t276 = t274 + t275;
        const V t277 = c[1] * t213;
        const V t278 = t276 - t277;
        const V t279 = c[5] * t100;
        const V t280 = c[3] * t156;
        const V t281 = t279 - t280;
        const V t282 = c[4] * t212;
        const V t283 = t281 + t282;
        const V t284 = t278 - t283;
        io.out(32, t284);
        const V t285 = t278 + t283;
        io.out(24, t285);
        // spectrum block of 7
        const V t286 = t125 + t181;
        const V t287 = t286 + t237;
        const V t288 = t287 + t70;
        io.out(49, t288);
        const V t289 = c[0] * t125;
        const V t290 = c[1] * t181;
        const V t291 = t289 - t290;
        const V t292 = c[2] * t237;
        const V t293 = t291 - t292;
        const V t294 = t293 + t70;
        const V t295 = c[3] * t124;
        const V t296 = c[4] * t180;
        const V t297 = t295 + t296;
        const V t298 = c[5] * t236;
        const V t299 = t297 + t298;
        const V t300 = t294 - t299;
        io.out(41, t300);
        const V t301 = t294 + t299;
        io.out(1, t301);
        const V t302 = c[1] * t125;
        const V t303 = t70 - t302;
        const V t304 = c[2] * t181;
        const V t305 = t303 - t304;
        const V t306 = c[0] * t237;
        const V t307 = t305 + t306;
        const V t308 = c[4] * t124;
        const V t309 = c[5] * t180;
        const V t310 = t308 - t309;
        const V t311 = c[3] * t236;
        const V t312 = t310 - t311;
        const V t313 = t307 - t312;
        io.out(33, t313);
        const V t314 = t307 + t312;
        io.out(9, t314);
        const V t315 = c[2] * t125;
        const V t316 = t70 - t315;
        const V t317 = c[0] * t181;
        const V t318 = t316 + t317;
        const V t319 = c[1] * t237;
        const V t320 = t318 - t319;
        const V t321 = c[5] * t124;
        const V t322 = c[3] * t180;
        const V t323 = t321 - t322;
        const V t324 = c[4] * t236;
        const V t325 = t323 + t324;
        const V t326 = t320 - t325;
        io.out(25, t326);
        const V t327 = t320 + t325;
        io.out(17, t327);
        // spectrum block of 7
        const V t328 = t105 + t161;
        const V t329 = t328 + t217;
        const V t330 = t329 + t72;
        io.out(42, t330);
        const V t331 = c[0] * t105;
        const V t332 = c[1] * t161;
        const V t333 = t331 - t332;
        const V t334 = c[2] * t217;
        const V t335 = t333 - t334;
        const V t336 = t335 + t72;
        const V t337 = c[3] * t104;
        const V t338 = c[4] * t160;
        const V t339 = t337 + t338;
        const V t340 = c[5] * t216;
        const V t341 = t339 + t340;
        const V t342 = t336 - t341;
        io.out(34, t342);
        const V t343 = t336 + t341;
        io.out(50, t343);
        const V t344 = c[1] * t105;
        const V t345 = t72 - t344;
        const V t346 = c[2] * t161;
        const V t347 = t345 - t346;
        const V t348 = c[0] * t217;
        const V t349 = t347 + t348;
        const V t350 = c[4] * t104;
        const V t351 = c[5] * t160;
        const V t352 = t350 - t351;
        const V t353 = c[3] * t216;
        const V t354 = t352 - t353;
        const V t355 = t349 - t354;
        io.out(26, t355);
        const V t356 = t349 + t354;
        io.out(2, t356);
        const V t357 = c[2] * t105;
        const V t358 = t72 - t357;
        const V t359 = c[0] * t161;
        const V t360 = t358 + t359;
        const V t361 = c[1] * t217;
        const V t362 = t360 - t361;
        const V t363 = c[5] * t104;
        const V t364 = c[3] * t160;
        const V t365 = t363 - t364;
        const V t366 = c[4] * t216;
        const V t367 = t365 + t366;
        const V t368 = t362 - t367;
        io.out(18, t368);
        const V t369 = t362 + t367;
        io.out(10, t369);
        // spectrum block of 7
        const V t370 = t129 + t185;
        const V t371 = t370 + t241;
        const V t372 = t371 + t74;
        io.out(35, t372);
        const V t373 = c[0] * t129;
        const V t374 = c[1] * t185;
        const V t375 = t373 - t374;
        const V t376 = c[2] * t241;
        const V t377 = t375 - t376;
        const V t378 = t377 + t74;
        const V t379 = c[3] * t128;
        const V t380 = c[4] * t184;
        const V t381 = t379 + t380;
        const V t382 = c[5] * t240;
        const V t383 = t381 + t382;
        const V t384 = t378 - t383;
        io.out(27, t384);
        const V t385 = t378 + t383;
        io.out(43, t385);
        const V t386 = c[1] * t129;
        const V t387 = t74 - t386;
        const V t388 = c[2] * t185;
        const V t389 = t387 - t388;
        const V t390 = c[0] * t241;
        const V t391 = t389 + t390;
        const V t392 = c[4] * t128;
        const V t393 = c[5] * t184;
        const V t394 = t392 - t393;
        const V t395 = c[3] * t240;
        const V t396 = t394 - t395;
        const V t397 = t391 - t396;
        io.out(19, t397);
        const V t398 = t391 + t396;
        io.out(51, t398);
        const V t399 = c[2] * t129;
        const V t400 = t74 - t399;
        const V t401 = c[0] * t185;
        const V t402 = t400 + t401;
        const V t403 = c[1] * t241;
        const V t404 = t402 - t403;
        const V t405 = c[5] * t128;
        const V t406 = c[3] * t184;
        const V t407 = t405 - t406;
        const V t408 = c[4] * t240;
        const V t409 = t407 + t408;
        const V t410 = t404 - t409;
        io.out(11, t410);
        const V t411 = t404 + t409;
        io.out(3, t411);
        // spectrum block of 7
        const V t412 = t103 + t159;
        const V t413 = t412 + t215;
        const V t414 = t413 + t69;
        io.out(28, t414);
        const V t415 = c[0] * t103;
        const V t416 = c[1] * t159;
        const V t417 = t415 - t416;
        const V t418 = c[2] * t215;
        const V t419 = t417 - t418;
        const V t420 = t419 + t69;
        const V t421 = c[3] * t102;
        const V t422 = c[4] * t158;
        const V t423 = t421 + t422;
        const V t424 = c[5] * t214;
        const V t425 = t423 + t424;
        const V t426 = t420 - t425;
        io.out(20, t426);
        const V t427 = t420 + t425;
        io.out(36, t427);
        const V t428 = c[1] * t103;
        const V t429 = t69 - t428;
        const V t430 = c[2] * t159;
        const V t431 = t429 - t430;
        const V t432 = c[0] * t215;
        const V t433 = t431 + t432;
        const V t434 = c[4] * t102;
        const V t435 = c[5] * t158;
        const V t436 = t434 - t435;
        const V t437 = c[3] * t214;
        const V t438 = t436 - t437;
        const V t439 = t433 - t438;
        io.out(12, t439);
        const V t440 = t433 + t438;
        io.out(44, t440);
        const V t441 = c[2] * t103;
        const V t442 = t69 - t441;
        const V t443 = c[0] * t159;
        const V t444 = t442 + t443;
        const V t445 = c[1] * t215;
        const V t446 = t444 - t445;
        const V t447 = c[5] * t102;
        const V t448 = c[3] * t158;
        const V t449 = t447 - t448;
        const V t450 = c[4] * t214;
        const V t451 = t449 + t450;
        const V t452 = t446 - t451;
        io.out(4, t452);
        const V t453 = t446 + t451;
        io.out(52, t453);
        // spectrum block of 7
        const V t454 = t127 + t183;
        const V t455 = t454 + t239;
        const V t456 = t455 + t71;
        io.out(21, t456);
        const V t457 = c[0] * t127;
        const V t458 = c[1] * t183;
        const V t459 = t457 - t458;
        const V t460 = c[2] * t239;
        const V t461 = t459 - t460;
        const V t462 = t461 + t71;
        const V t463 = c[3] * t126;
        const V t464 = c[4] * t182;
        const V t465 = t463 + t464;
        const V t466 = c[5] * t238;
        const V t467 = t465 + t466;
        const V t468 = t462 - t467;
        io.out(13, t468);
        const V t469 = t462 + t467;
        io.out(29, t469);
        const V t470 = c[1] * t127;
        const V t471 = t71 - t470;
        const V t472 = c[2] * t183;
        const V t473 = t471 - t472;
        const V t474 = c[0] * t239;
        const V t475 = t473 + t474;
        const V t476 = c[4] * t126;
        const V t477 = c[5] * t182;
        const V t478 = t476 - t477;
        const V t479 = c[3] * t238;
        const V t480 = t478 - t479;
        const V t481 = t475 - t480;
        io.out(5, t481);
        const V t482 = t475 + t480;
        io.out(37, t482);
        const V t483 = c[2] * t127;
        const V t484 = t71 - t483;
        const V t485 = c[0] * t183;
        const V t486 = t484 + t485;
        const V t487 = c[1] * t239;
        const V t488 = t486 - t487;
        const V t489 = c[5] * t126;
        const V t490 = c[3] * t182;
        const V t491 = t489 - t490;
        const V t492 = c[4] * t238;
        const V t493 = t491 + t492;
        const V t494 = t488 - t493;
        io.out(53, t494);
        const V t495 = t488 + t493;
        io.out(45, t495);
        // spectrum block of 7
        const V t496 = t107 + t163;
        const V t497 = t496 + t219;
        const V t498 = t497 + t73;
        io.out(14, t498);
        const V t499 = c[0] * t107;
        const V t500 = c[1] * t163;
        const V t501 = t499 - t500;
        const V t502 = c[2] * t219;
        const V t503 = t501 - t502;
        const V t504 = t503 + t73;
        const V t505 = c[3] * t106;
        const V t506 = c[4] * t162;
        const V t507 = t505 + t506;
        const V t508 = c[5] * t218;
        const V t509 = t507 + t508;
        const V t510 = t504 - t509;
        io.out(6, t510);
        const V t511 = t504 + t509;
        io.out(22, t511);
        const V t512 = c[1] * t107;
        const V t513 = t73 - t512;
        const V t514 = c[2] * t163;
        const V t515 = t513 - t514;
        const V t516 = c[0] * t219;
        const V t517 = t515 + t516;
        const V t518 = c[4] * t106;
        const V t519 = c[5] * t162;
        const V t520 = t518 - t519;
        const V t521 = c[3] * t218;
        const V t522 = t520 - t521;
        const V t523 = t517 - t522;
        io.out(54, t523);
        const V t524 = t517 + t522;
        io.out(30, t524);
        const V t525 = c[2] * t107;
        const V t526 = t73 - t525;
        const V t527 = c[0] * t163;
        const V t528 = t526 + t527;
        const V t529 = c[1] * t219;
        const V t530 = t528 - t529;
        const V t531 = c[5] * t106;
        const V t532 = c[3] * t162;
        const V t533 = t531 - t532;
        const V t534 = c[4] * t218;
        const V t535 = t533 + t534;
        const V t536 = t530 - t535;
        io.out(46, t536);
        const V t537 = t530 + t535;
        io.out(38, t537);
        // spectrum block of 7
        const V t538 = t131 + t187;
        const V t539 = t538 + t243;
        const V t540 = t539 + t75;
        io.out(7, t540);
        const V t541 = c[0] * t131;
        const V t542 = c[1] * t187;
        const V t543 = t541 - t542;
        const V t544 = c[2] * t243;
        const V t545 = t543 - t544;
        const V t546 = t545 + t75;
        const V t547 = c[3] * t130;
        const V t548 = c[4] * t186;
        const V t549 = t547 + t548;
        const V t550 = c[5] * t242;
        const V t551 = t549 + t550;
        const V t552 = t546 - t551;
        io.out(55, t552);
        const V t553 = t546 + t551;
        io.out(15, t553);
        const V t554 = c[1] * t131;
        const V t555 = t75 - t554;
        const V t556 = c[2] * t187;
        const V t557 = t555 - t556;
        const V t558 = c[0] * t243;
        const V t559 = t557 + t558;
        const V t560 = c[4] * t130;
        const V t561 = c[5] * t186;
        const V t562 = t560 - t561;
        const V t563 = c[3] * t242;
        const V t564 = t562 - t563;
        const V t565 = t559 - t564;
        io.out(47, t565);
        const V t566 = t559 + t564;
        io.out(23, t566);
        const V t567 = c[2] * t131;
        const V t568 = t75 - t567;
        const V t569 = c[0] * t187;
        const V t570 = t568 + t569;
        const V t571 = c[1] * t243;
        const V t572 = t570 - t571;
        const V t573 = c[5] * t130;
        const V t574 = c[3] * t186;
        const V t575 = t573 - t574;
        const V t576 = c[4] * t242;
        const V t577 = t575 + t576;
        const V t578 = t572 - t577;
        io.out(39, t578);
        const V t579 = t572 + t577;
        io.out(31, t579);
    }
};

}  // namespace zulg
