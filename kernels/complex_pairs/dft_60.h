// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 60.
// Complex DFT of 60 points, prime-factor, order 3, 5, 4; one complex number to a register.
// 228 sums, 204 differences, 136 products of registers, which do the 1256 steps of the graph, those with
// `scale` included; 59 shuffles, 39 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<60> {
    static constexpr int steps = 1256;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x20 = io.pair(20);
        const P x40 = io.pair(40);
        // complex block of 3, multiplier 2
        const P t0 = x20 + x40;
        const P t1 = x20 - x40;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[4] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[5], c[5]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x35 = io.pair(35);
        const P x55 = io.pair(55);
        // complex block of 3, multiplier 2
        const P t9 = x35 + x55;
        const P t10 = x35 - x55;
        const P x15 = io.pair(15);
        const P t11 = t9 + x15;
        const P t12 = c[4] * t9;
        const P t13 = x15 - t12;
        const P t14 = P(-c[5], c[5]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x50 = io.pair(50);
        const P x10 = io.pair(10);
        // complex block of 3, multiplier 2
        const P t18 = x50 + x10;
        const P t19 = x50 - x10;
        const P x30 = io.pair(30);
        const P t20 = t18 + x30;
        const P t21 = c[4] * t18;
        const P t22 = x30 - t21;
        const P t23 = P(-c[5], c[5]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P x5 = io.pair(5);
        const P x25 = io.pair(25);
        // complex block of 3, multiplier 2
        const P t27 = x5 + x25;
        const P t28 = x5 - x25;
        const P x45 = io.pair(45);
        const P t29 = t27 + x45;
        const P t30 = c[4] * t27;
        const P t31 = x45 - t30;
        const P t32 = P(-c[5], c[5]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P x32 = io.pair(32);
        const P x52 = io.pair(52);
        // complex block of 3, multiplier 2
        const P t36 = x32 + x52;
        const P t37 = x32 - x52;
        const P x12 = io.pair(12);
        const P t38 = t36 + x12;
        const P t39 = c[4] * t36;
        const P t40 = x12 - t39;
        const P t41 = P(-c[5], c[5]) * t37;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        const P x47 = io.pair(47);
        const P x7 = io.pair(7);
        // complex block of 3, multiplier 2
        const P t45 = x47 + x7;
        const P t46 = x47 - x7;
        const P x27 = io.pair(27);
        const P t47 = t45 + x27;
        const P t48 = c[4] * t45;
        const P t49 = x27 - t48;
        const P t50 = P(-c[5], c[5]) * t46;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        const P x2 = io.pair(2);
        const P x22 = io.pair(22);
        // complex block of 3, multiplier 2
        const P t54 = x2 + x22;
        const P t55 = x2 - x22;
        const P x42 = io.pair(42);
        const P t56 = t54 + x42;
        const P t57 = c[4] * t54;
        const P t58 = x42 - t57;
        const P t59 = P(-c[5], c[5]) * t55;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        const P x17 = io.pair(17);
        const P x37 = io.pair(37);
        // complex block of 3, multiplier 2
        const P t63 = x17 + x37;
        const P t64 = x17 - x37;
        const P x57 = io.pair(57);
        const P t65 = t63 + x57;
        const P t66 = c[4] * t63;
        const P t67 = x57 - t66;
        const P t68 = P(-c[5], c[5]) * t64;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = t67 + t69;
        const P t71 = t67 - t69;
        const P x44 = io.pair(44);
        const P x4 = io.pair(4);
        // complex block of 3, multiplier 2
        const P t72 = x44 + x4;
        const P t73 = x44 - x4;
        const P x24 = io.pair(24);
        const P t74 = t72 + x24;
        const P t75 = c[4] * t72;
        const P t76 = x24 - t75;
        const P t77 = P(-c[5], c[5]) * t73;
        const P t78 = shuffled<1, 0>(t77);
        const P t79 = t76 + t78;
        const P t80 = t76 - t78;
        const P x59 = io.pair(59);
        const P x19 = io.pair(19);
        // complex block of 3, multiplier 2
        const P t81 = x59 + x19;
        const P t82 = x59 - x19;
        const P x39 = io.pair(39);
        const P t83 = t81 + x39;
        const P t84 = c[4] * t81;
        const P t85 = x39 - t84;
        const P t86 = P(-c[5], c[5]) * t82;
        const P t87 = shuffled<1, 0>(t86);
        const P t88 = t85 + t87;
        const P t89 = t85 - t87;
        const P x14 = io.pair(14);
        const P x34 = io.pair(34);
        // complex block of 3, multiplier 2
        const P t90 = x14 + x34;
        const P t91 = x14 - x34;
        const P x54 = io.pair(54);
        const P t92 = t90 + x54;
        const P t93 = c[4] * t90;
        const P t94 = x54 - t93;
        const P t95 = P(-c[5], c[5]) * t91;
        const P t96 = shuffled<1, 0>(t95);
        const P t97 = t94 + t96;
        const P t98 = t94 - t96;
        const P x29 = io.pair(29);
        const P x49 = io.pair(49);
        // complex block of 3, multiplier 2
        const P t99 = x29 + x49;
        const P t100 = x29 - x49;
        const P x9 = io.pair(9);
        const P t101 = t99 + x9;
        const P t102 = c[4] * t99;
        const P t103 = x9 - t102;
        const P t104 = P(-c[5], c[5]) * t100;
        const P t105 = shuffled<1, 0>(t104);
        const P t106 = t103 + t105;
        const P t107 = t103 - t105;
        const P x56 = io.pair(56);
        const P x16 = io.pair(16);
        // complex block of 3, multiplier 2
        const P t108 = x56 + x16;
        const P t109 = x56 - x16;
        const P x36 = io.pair(36);
        const P t110 = t108 + x36;
        const P t111 = c[4] * t108;
        const P t112 = x36 - t111;
        const P t113 = P(-c[5], c[5]) * t109;
        const P t114 = shuffled<1, 0>(t113);
        const P t115 = t112 + t114;
        const P t116 = t112 - t114;
        const P x11 = io.pair(11);
        const P x31 = io.pair(31);
        // complex block of 3, multiplier 2
        const P t117 = x11 + x31;
        const P t118 = x11 - x31;
        const P x51 = io.pair(51);
        const P t119 = t117 + x51;
        const P t120 = c[4] * t117;
        const P t121 = x51 - t120;
        const P t122 = P(-c[5], c[5]) * t118;
        const P t123 = shuffled<1, 0>(t122);
        const P t124 = t121 + t123;
        const P t125 = t121 - t123;
        const P x26 = io.pair(26);
        const P x46 = io.pair(46);
        // complex block of 3, multiplier 2
        const P t126 = x26 + x46;
        const P t127 = x26 - x46;
        const P x6 = io.pair(6);
        const P t128 = t126 + x6;
        const P t129 = c[4] * t126;
        const P t130 = x6 - t129;
        const P t131 = P(-c[5], c[5]) * t127;
        const P t132 = shuffled<1, 0>(t131);
        const P t133 = t130 + t132;
        const P t134 = t130 - t132;
        const P x41 = io.pair(41);
        const P x1 = io.pair(1);
        // complex block of 3, multiplier 2
        const P t135 = x41 + x1;
        const P t136 = x41 - x1;
        const P x21 = io.pair(21);
        const P t137 = t135 + x21;
        const P t138 = c[4] * t135;
        const P t139 = x21 - t138;
        const P t140 = P(-c[5], c[5]) * t136;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = t139 + t141;
        const P t143 = t139 - t141;
        const P x8 = io.pair(8);
        const P x28 = io.pair(28);
        // complex block of 3, multiplier 2
        const P t144 = x8 + x28;
        const P t145 = x8 - x28;
        const P x48 = io.pair(48);
        const P t146 = t144 + x48;
        const P t147 = c[4] * t144;
        const P t148 = x48 - t147;
        const P t149 = P(-c[5], c[5]) * t145;
        const P t150 = shuffled<1, 0>(t149);
        const P t151 = t148 + t150;
        const P t152 = t148 - t150;
        const P x23 = io.pair(23);
        const P x43 = io.pair(43);
        // complex block of 3, multiplier 2
        const P t153 = x23 + x43;
        const P t154 = x23 - x43;
        const P x3 = io.pair(3);
        const P t155 = t153 + x3;
        const P t156 = c[4] * t153;
        const P t157 = x3 - t156;
        const P t158 = P(-c[5], c[5]) * t154;
        const P t159 = shuffled<1, 0>(t158);
        const P t160 = t157 + t159;
        const P t161 = t157 - t159;
        const P x38 = io.pair(38);
        const P x58 = io.pair(58);
        // complex block of 3, multiplier 2
        const P t162 = x38 + x58;
        const P t163 = x38 - x58;
        const P x18 = io.pair(18);
        const P t164 = t162 + x18;
        const P t165 = c[4] * t162;
        const P t166 = x18 - t165;
        const P t167 = P(-c[5], c[5]) * t163;
        const P t168 = shuffled<1, 0>(t167);
        const P t169 = t166 + t168;
        const P t170 = t166 - t168;
        const P x53 = io.pair(53);
        const P x13 = io.pair(13);
        // complex block of 3, multiplier 2
        const P t171 = x53 + x13;
        const P t172 = x53 - x13;
        const P x33 = io.pair(33);
        const P t173 = t171 + x33;
        const P t174 = c[4] * t171;
        const P t175 = x33 - t174;
        const P t176 = P(-c[5], c[5]) * t172;
        const P t177 = shuffled<1, 0>(t176);
        const P t178 = t175 + t177;
        const P t179 = t175 - t177;
        // complex block of 5, multiplier 2
        const P t180 = t38 + t146;
        const P t181 = t38 - t146;
        const P t182 = t110 + t74;
        const P t183 = t110 - t74;
        const P t184 = t180 + t182;
        const P t185 = t184 + t2;
        const P t186 = c[0] * t180;
        const P t187 = c[1] * t182;
        const P t188 = t186 - t187;
        const P t189 = t188 + t2;
        const P t190 = c[2] * t181;
        const P t191 = c[3] * t183;
        const P t192 = t190 - t191;
        const P t193 = shuffled<1, 0>(t192);
        const P t194 = flipped<0, 1>(t193);
        const P t195 = t189 + t194;
        const P t196 = t189 - t194;
        const P t197 = c[1] * t180;
        const P t198 = t2 - t197;
        const P t199 = c[0] * t182;
        const P t200 = t198 + t199;
        const P t201 = c[3] * t181;
        const P t202 = c[2] * t183;
        const P t203 = t201 + t202;
        const P t204 = shuffled<1, 0>(t203);
        const P t205 = flipped<0, 1>(t204);
        const P t206 = t200 + t205;
        const P t207 = t200 - t205;
        // complex block of 5, multiplier 2
        const P t208 = t47 + t155;
        const P t209 = t47 - t155;
        const P t210 = t119 + t83;
        const P t211 = t119 - t83;
        const P t212 = t208 + t210;
        const P t213 = t212 + t11;
        const P t214 = c[0] * t208;
        const P t215 = c[1] * t210;
        const P t216 = t214 - t215;
        const P t217 = t216 + t11;
        const P t218 = c[2] * t209;
        const P t219 = c[3] * t211;
        const P t220 = t218 - t219;
        const P t221 = shuffled<1, 0>(t220);
        const P t222 = flipped<0, 1>(t221);
        const P t223 = t217 + t222;
        const P t224 = t217 - t222;
        const P t225 = c[1] * t208;
        const P t226 = t11 - t225;
        const P t227 = c[0] * t210;
        const P t228 = t226 + t227;
        const P t229 = c[3] * t209;
        const P t230 = c[2] * t211;
        const P t231 = t229 + t230;
        const P t232 = shuffled<1, 0>(t231);
        const P t233 = flipped<0, 1>(t232);
        const P t234 = t228 + t233;
        const P t235 = t228 - t233;
        // complex block of 5, multiplier 2
        const P t236 = t56 + t164;
        const P t237 = t56 - t164;
        const P t238 = t128 + t92;
        const P t239 = t128 - t92;
        const P t240 = t236 + t238;
        const P t241 = t240 + t20;
        const P t242 = c[0] * t236;
        const P t243 = c[1] * t238;
        const P t244 = t242 - t243;
        const P t245 = t244 + t20;
        const P t246 = c[2] * t237;
        const P t247 = c[3] * t239;
        const P t248 = t246 - t247;
        const P t249 = shuffled<1, 0>(t248);
        const P t250 = flipped<0, 1>(t249);
        const P t251 = t245 + t250;
        const P t252 = t245 - t250;
        const P t253 = c[1] * t236;
        const P t254 = t20 - t253;
        const P t255 = c[0] * t238;
        const P t256 = t254 + t255;
        const P t257 = c[3] * t237;
        const P t258 = c[2] * t239;
        const P t259 = t257 + t258;
        const P t260 = shuffled<1, 0>(t259);
        const P t261 = flipped<0, 1>(t260);
        const P t262 = t256 + t261;
        const P t263 = t256 - t261;
        // complex block of 5, multiplier 2
        const P t264 = t65 + t173;
        const P t265 = t65 - t173;
        const P t266 = t137 + t101;
        const P t267 = t137 - t101;
        const P t268 = t264 + t266;
        const P t269 = t268 + t29;
        const P t270 = c[0] * t264;
        const P t271 = c[1] * t266;
        const P t272 = t270 - t271;
        const P t273 = t272 + t29;
        const P t274 = c[2] * t265;
        const P t275 = c[3] * t267;
        const P t276 = t274 - t275;
        const P t277 = shuffled<1, 0>(t276);
        const P t278 = flipped<0, 1>(t277);
        const P t279 = t273 + t278;
        const P t280 = t273 - t278;
        const P t281 = c[1] * t264;
        const P t282 = t29 - t281;
        const P t283 = c[0] * t266;
        const P t284 = t282 + t283;
        const P t285 = c[3] * t265;
        const P t286 = c[2] * t267;
        const P t287 = t285 + t286;
        const P t288 = shuffled<1, 0>(t287);
        const P t289 = flipped<0, 1>(t288);
        const P t290 = t284 + t289;
        const P t291 = t284 - t289;
        // complex block of 5, multiplier 2
        const P t292 = t44 + t152;
        const P t293 = t44 - t152;
        const P t294 = t116 + t80;
        const P t295 = t116 - t80;
        const P t296 = t292 + t294;
        const P t297 = t296 + t8;
        const P t298 = c[0] * t292;
        const P t299 = c[1] * t294;
        const P t300 = t298 - t299;
        const P t301 = t300 + t8;
        const P t302 = c[2] * t293;
        const P t303 = c[3] * t295;
        const P t304 = t302 - t303;
        const P t305 = shuffled<1, 0>(t304);
        const P t306 = flipped<0, 1>(t305);
        const P t307 = t301 + t306;
        const P t308 = t301 - t306;
        const P t309 = c[1] * t292;
        const P t310 = t8 - t309;
        const P t311 = c[0] * t294;
        const P t312 = t310 + t311;
        const P t313 = c[3] * t293;
        const P t314 = c[2] * t295;
        const P t315 = t313 + t314;
        const P t316 = shuffled<1, 0>(t315);
        const P t317 = flipped<0, 1>(t316);
        const P t318 = t312 + t317;
        const P t319 = t312 - t317;
        // complex block of 5, multiplier 2
        const P t320 = t53 + t161;
        const P t321 = t53 - t161;
        const P t322 = t125 + t89;
        const P t323 = t125 - t89;
        const P t324 = t320 + t322;
        const P t325 = t324 + t17;
        const P t326 = c[0] * t320;
        const P t327 = c[1] * t322;
        const P t328 = t326 - t327;
        const P t329 = t328 + t17;
        const P t330 = c[2] * t321;
        const P t331 = c[3] * t323;
        const P t332 = t330 - t331;
        const P t333 = shuffled<1, 0>(t332);
        const P t334 = flipped<0, 1>(t333);
        const P t335 = t329 + t334;
        const P t336 = t329 - t334;
        const P t337 = c[1] * t320;
        const P t338 = t17 - t337;
        const P t339 = c[0] * t322;
        const P t340 = t338 + t339;
        const P t341 = c[3] * t321;
        const P t342 = c[2] * t323;
        const P t343 = t341 + t342;
        const P t344 = shuffled<1, 0>(t343);
        const P t345 = flipped<0, 1>(t344);
        const P t346 = t340 + t345;
        const P t347 = t340 - t345;
        // complex block of 5, multiplier 2
        const P t348 = t62 + t170;
        const P t349 = t62 - t170;
        const P t350 = t134 + t98;
        const P t351 = t134 - t98;
        const P t352 = t348 + t350;
        const P t353 = t352 + t26;
        const P t354 = c[0] * t348;
        const P t355 = c[1] * t350;
        const P t356 = t354 - t355;
        const P t357 = t356 + t26;
        const P t358 = c[2] * t349;
        const P t359 = c[3] * t351;
        const P t360 = t358 - t359;
        const P t361 = shuffled<1, 0>(t360);
        const P t362 = flipped<0, 1>(t361);
        const P t363 = t357 + t362;
        const P t364 = t357 - t362;
        const P t365 = c[1] * t348;
        const P t366 = t26 - t365;
        const P t367 = c[0] * t350;
        const P t368 = t366 + t367;
        const P t369 = c[3] * t349;
        const P t370 = c[2] * t351;
        const P t371 = t369 + t370;
        const P t372 = shuffled<1, 0>(t371);
        const P t373 = flipped<0, 1>(t372);
        const P t374 = t368 + t373;
        const P t375 = t368 - t373;
        // complex block of 5, multiplier 2
        const P t376 = t71 + t179;
        const P t377 = t71 - t179;
        const P t378 = t143 + t107;
        const P t379 = t143 - t107;
        const P t380 = t376 + t378;
        const P t381 = t380 + t35;
        const P t382 = c[0] * t376;
        const P t383 = c[1] * t378;
        const P t384 = t382 - t383;
        const P t385 = t384 + t35;
        const P t386 = c[2] * t377;
        const P t387 = c[3] * t379;
        const P t388 = t386 - t387;
        const P t389 = shuffled<1, 0>(t388);
        const P t390 = flipped<0, 1>(t389);
        const P t391 = t385 + t390;
        const P t392 = t385 - t390;
        const P t393 = c[1] * t376;
        const P t394 = t35 - t393;
        const P t395 = c[0] * t378;
        const P t396 = t394 + t395;
        const P t397 = c[3] * t377;
        const P t398 = c[2] * t379;
        const P t399 = t397 + t398;
        const P t400 = shuffled<1, 0>(t399);
        const P t401 = flipped<0, 1>(t400);
        const P t402 = t396 + t401;
        const P t403 = t396 - t401;
        // complex block of 5, multiplier 2
        const P t404 = t43 + t151;
        const P t405 = t43 - t151;
        const P t406 = t115 + t79;
        const P t407 = t115 - t79;
        const P t408 = t404 + t406;
        const P t409 = t408 + t7;
        const P t410 = c[0] * t404;
        const P t411 = c[1] * t406;
        const P t412 = t410 - t411;
        const P t413 = t412 + t7;
        const P t414 = c[2] * t405;
        const P t415 = c[3] * t407;
        const P t416 = t414 - t415;
        const P t417 = shuffled<1, 0>(t416);
        const P t418 = flipped<0, 1>(t417);
        const P t419 = t413 + t418;
        const P t420 = t413 - t418;
        const P t421 = c[1] * t404;
        const P t422 = t7 - t421;
        const P t423 = c[0] * t406;
        const P t424 = t422 + t423;
        const P t425 = c[3] * t405;
        const P t426 = c[2] * t407;
        const P t427 = t425 + t426;
        const P t428 = shuffled<1, 0>(t427);
        const P t429 = flipped<0, 1>(t428);
        const P t430 = t424 + t429;
        const P t431 = t424 - t429;
        // complex block of 5, multiplier 2
        const P t432 = t52 + t160;
        const P t433 = t52 - t160;
        const P t434 = t124 + t88;
        const P t435 = t124 - t88;
        const P t436 = t432 + t434;
        const P t437 = t436 + t16;
        const P t438 = c[0] * t432;
        const P t439 = c[1] * t434;
        const P t440 = t438 - t439;
        const P t441 = t440 + t16;
        const P t442 = c[2] * t433;
        const P t443 = c[3] * t435;
        const P t444 = t442 - t443;
        const P t445 = shuffled<1, 0>(t444);
        const P t446 = flipped<0, 1>(t445);
        const P t447 = t441 + t446;
        const P t448 = t441 - t446;
        const P t449 = c[1] * t432;
        const P t450 = t16 - t449;
        const P t451 = c[0] * t434;
        const P t452 = t450 + t451;
        const P t453 = c[3] * t433;
        const P t454 = c[2] * t435;
        const P t455 = t453 + t454;
        const P t456 = shuffled<1, 0>(t455);
        const P t457 = flipped<0, 1>(t456);
        const P t458 = t452 + t457;
        const P t459 = t452 - t457;
        // complex block of 5, multiplier 2
        const P t460 = t61 + t169;
        const P t461 = t61 - t169;
        const P t462 = t133 + t97;
        const P t463 = t133 - t97;
        const P t464 = t460 + t462;
        const P t465 = t464 + t25;
        const P t466 = c[0] * t460;
        const P t467 = c[1] * t462;
        const P t468 = t466 - t467;
        const P t469 = t468 + t25;
        const P t470 = c[2] * t461;
        const P t471 = c[3] * t463;
        const P t472 = t470 - t471;
        const P t473 = shuffled<1, 0>(t472);
        const P t474 = flipped<0, 1>(t473);
        const P t475 = t469 + t474;
        const P t476 = t469 - t474;
        const P t477 = c[1] * t460;
        const P t478 = t25 - t477;
        const P t479 = c[0] * t462;
        const P t480 = t478 + t479;
        const P t481 = c[3] * t461;
        const P t482 = c[2] * t463;
        const P t483 = t481 + t482;
        const P t484 = shuffled<1, 0>(t483);
        const P t485 = flipped<0, 1>(t484);
        const P t486 = t480 + t485;
        const P t487 = t480 - t485;
        // complex block of 5, multiplier 2
        const P t488 = t70 + t178;
        const P t489 = t70 - t178;
        const P t490 = t142 + t106;
        const P t491 = t142 - t106;
        const P t492 = t488 + t490;
        const P t493 = t492 + t34;
        const P t494 = c[0] * t488;
        const P t495 = c[1] * t490;
        const P t496 = t494 - t495;
        const P t497 = t496 + t34;
        const P t498 = c[2] * t489;
        const P t499 = c[3] * t491;
        const P t500 = t498 - t499;
        const P t501 = shuffled<1, 0>(t500);
        const P t502 = flipped<0, 1>(t501);
        const P t503 = t497 + t502;
        const P t504 = t497 - t502;
        const P t505 = c[1] * t488;
        const P t506 = t34 - t505;
        const P t507 = c[0] * t490;
        const P t508 = t506 + t507;
        const P t509 = c[3] * t489;
        const P t510 = c[2] * t491;
        const P t511 = t509 + t510;
        const P t512 = shuffled<1, 0>(t511);
        const P t513 = flipped<0, 1>(t512);
        const P t514 = t508 + t513;
        const P t515 = t508 - t513;
        // complex block of 2
        const P t516 = t185 + t241;
        const P t517 = t185 - t241;
        // complex block of 2
        const P t518 = t213 + t269;
        const P t519 = t213 - t269;
        // complex block of 2
        const P t520 = t516 + t518;
        io.pair(0, t520);
        const P t521 = t516 - t518;
        io.pair(30, t521);
        const P t522 = shuffled<1, 0>(t519);
        const P t523 = flipped<1, 0>(t522);
        // complex block of 2
        const P t524 = t517 + t523;
        io.pair(15, t524);
        const P t525 = t517 - t523;
        io.pair(45, t525);
        // complex block of 2
        const P t526 = t206 + t262;
        const P t527 = t206 - t262;
        // complex block of 2
        const P t528 = t234 + t290;
        const P t529 = t234 - t290;
        // complex block of 2
        const P t530 = t526 + t528;
        io.pair(12, t530);
        const P t531 = t526 - t528;
        io.pair(42, t531);
        const P t532 = shuffled<1, 0>(t529);
        const P t533 = flipped<1, 0>(t532);
        // complex block of 2
        const P t534 = t527 + t533;
        io.pair(27, t534);
        const P t535 = t527 - t533;
        io.pair(57, t535);
        // complex block of 2
        const P t536 = t196 + t252;
        const P t537 = t196 - t252;
        // complex block of 2
        const P t538 = t224 + t280;
        const P t539 = t224 - t280;
        // complex block of 2
        const P t540 = t536 + t538;
        io.pair(24, t540);
        const P t541 = t536 - t538;
        io.pair(54, t541);
        const P t542 = shuffled<1, 0>(t539);
        const P t543 = flipped<1, 0>(t542);
        // complex block of 2
        const P t544 = t537 + t543;
        io.pair(39, t544);
        const P t545 = t537 - t543;
        io.pair(9, t545);
        // complex block of 2
        const P t546 = t195 + t251;
        const P t547 = t195 - t251;
        // complex block of 2
        const P t548 = t223 + t279;
        const P t549 = t223 - t279;
        // complex block of 2
        const P t550 = t546 + t548;
        io.pair(36, t550);
        const P t551 = t546 - t548;
        io.pair(6, t551);
        const P t552 = shuffled<1, 0>(t549);
        const P t553 = flipped<1, 0>(t552);
        // complex block of 2
        const P t554 = t547 + t553;
        io.pair(51, t554);
        const P t555 = t547 - t553;
        io.pair(21, t555);
        // complex block of 2
        const P t556 = t207 + t263;
        const P t557 = t207 - t263;
        // complex block of 2
        const P t558 = t235 + t291;
        const P t559 = t235 - t291;
        // complex block of 2
        const P t560 = t556 + t558;
        io.pair(48, t560);
        const P t561 = t556 - t558;
        io.pair(18, t561);
        const P t562 = shuffled<1, 0>(t559);
        const P t563 = flipped<1, 0>(t562);
        // complex block of 2
        const P t564 = t557 + t563;
        io.pair(3, t564);
        const P t565 = t557 - t563;
        io.pair(33, t565);
        // complex block of 2
        const P t566 = t297 + t353;
        const P t567 = t297 - t353;
        // complex block of 2
        const P t568 = t325 + t381;
        const P t569 = t325 - t381;
        // complex block of 2
        const P t570 = t566 + t568;
        io.pair(20, t570);
        const P t571 = t566 - t568;
        io.pair(50, t571);
        const P t572 = shuffled<1, 0>(t569);
        const P t573 = flipped<1, 0>(t572);
        // complex block of 2
        const P t574 = t567 + t573;
        io.pair(35, t574);
        const P t575 = t567 - t573;
        io.pair(5, t575);
        // complex block of 2
        const P t576 = t318 + t374;
        const P t577 = t318 - t374;
        // complex block of 2
        const P t578 = t346 + t402;
        const P t579 = t346 - t402;
        // complex block of 2
        const P t580 = t576 + t578;
        io.pair(32, t580);
        const P t581 = t576 - t578;
        io.pair(2, t581);
        const P t582 = shuffled<1, 0>(t579);
        const P t583 = flipped<1, 0>(t582);
        // complex block of 2
        const P t584 = t577 + t583;
        io.pair(47, t584);
        const P t585 = t577 - t583;
        io.pair(17, t585);
        // complex block of 2
        const P t586 = t308 + t364;
        const P t587 = t308 - t364;
        // complex block of 2
        const P t588 = t336 + t392;
        const P t589 = t336 - t392;
        // complex block of 2
        const P t590 = t586 + t588;
        io.pair(44, t590);
        const P t591 = t586 - t588;
        io.pair(14, t591);
        const P t592 = shuffled<1, 0>(t589);
        const P t593 = flipped<1, 0>(t592);
        // complex block of 2
        const P t594 = t587 + t593;
        io.pair(59, t594);
        const P t595 = t587 - t593;
        io.pair(29, t595);
        // complex block of 2
        const P t596 = t307 + t363;
        const P t597 = t307 - t363;
        // complex block of 2
        const P t598 = t335 + t391;
        const P t599 = t335 - t391;
        // complex block of 2
        const P t600 = t596 + t598;
        io.pair(56, t600);
        const P t601 = t596 - t598;
        io.pair(26, t601);
        const P t602 = shuffled<1, 0>(t599);
        const P t603 = flipped<1, 0>(t602);
        // complex block of 2
        const P t604 = t597 + t603;
        io.pair(11, t604);
        const P t605 = t597 - t603;
        io.pair(41, t605);
        // complex block of 2
        const P t606 = t319 + t375;
        const P t607 = t319 - t375;
        // complex block of 2
        const P t608 = t347 + t403;
        const P t609 = t347 - t403;
        // complex block of 2
        const P t610 = t606 + t608;
        io.pair(8, t610);
        const P t611 = t606 - t608;
        io.pair(38, t611);
        const P t612 = shuffled<1, 0>(t609);
        const P t613 = flipped<1, 0>(t612);
        // complex block of 2
        const P t614 = t607 + t613;
        io.pair(23, t614);
        const P t615 = t607 - t613;
        io.pair(53, t615);
        // complex block of 2
        const P t616 = t409 + t465;
        const P t617 = t409 - t465;
        // complex block of 2
        const P t618 = t437 + t493;
        const P t619 = t437 - t493;
        // complex block of 2
        const P t620 = t616 + t618;
        io.pair(40, t620);
        const P t621 = t616 - t618;
        io.pair(10, t621);
        const P t622 = shuffled<1, 0>(t619);
        const P t623 = flipped<1, 0>(t622);
        // complex block of 2
        const P t624 = t617 + t623;
        io.pair(55, t624);
        const P t625 = t617 - t623;
        io.pair(25, t625);
        // complex block of 2
        const P t626 = t430 + t486;
        const P t627 = t430 - t486;
        // complex block of 2
        const P t628 = t458 + t514;
        const P t629 = t458 - t514;
        // complex block of 2
        const P t630 = t626 + t628;
        io.pair(52, t630);
        const P t631 = t626 - t628;
        io.pair(22, t631);
        const P t632 = shuffled<1, 0>(t629);
        const P t633 = flipped<1, 0>(t632);
        // complex block of 2
        const P t634 = t627 + t633;
        io.pair(7, t634);
        const P t635 = t627 - t633;
        io.pair(37, t635);
        // complex block of 2
        const P t636 = t420 + t476;
        const P t637 = t420 - t476;
        // complex block of 2
        const P t638 = t448 + t504;
        const P t639 = t448 - t504;
        // complex block of 2
        const P t640 = t636 + t638;
        io.pair(4, t640);
        const P t641 = t636 - t638;
        io.pair(34, t641);
        const P t642 = shuffled<1, 0>(t639);
        const P t643 = flipped<1, 0>(t642);
        // complex block of 2
        const P t644 = t637 + t643;
        io.pair(19, t644);
        const P t645 = t637 - t643;
        io.pair(49, t645);
        // complex block of 2
        const P t646 = t419 + t475;
        const P t647 = t419 - t475;
        // complex block of 2
        const P t648 = t447 + t503;
        const P t649 = t447 - t503;
        // complex block of 2
        const P t650 = t646 + t648;
        io.pair(16, t650);
        const P t651 = t646 - t648;
        io.pair(46, t651);
        const P t652 = shuffled<1, 0>(t649);
        const P t653 = flipped<1, 0>(t652);
        // complex block of 2
        const P t654 = t647 + t653;
        io.pair(31, t654);
        const P t655 = t647 - t653;
        io.pair(1, t655);
        // complex block of 2
        const P t656 = t431 + t487;
        const P t657 = t431 - t487;
        // complex block of 2
        const P t658 = t459 + t515;
        const P t659 = t459 - t515;
        // complex block of 2
        const P t660 = t656 + t658;
        io.pair(28, t660);
        const P t661 = t656 - t658;
        io.pair(58, t661);
        const P t662 = shuffled<1, 0>(t659);
        const P t663 = flipped<1, 0>(t662);
        // complex block of 2
        const P t664 = t657 + t663;
        io.pair(43, t664);
        const P t665 = t657 - t663;
        io.pair(13, t665);
    }
};

}  // namespace zulg
