// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 40.
// Complex DFT of 40 points, prime-factor, order 5, 8; one complex number to a register.
// 142 sums, 116 differences, 74 products of registers, which do the 744 steps of the graph, those with
// `scale` included; 46 shuffles, 46 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<40> {
    static constexpr int steps = 744;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x8 = io.pair(8);
        const P x32 = io.pair(32);
        // complex block of 5, multiplier 3
        const P t0 = x8 + x32;
        const P t1 = x8 - x32;
        const P x24 = io.pair(24);
        const P x16 = io.pair(16);
        const P t2 = x24 + x16;
        const P t3 = x24 - x16;
        const P t4 = t0 + t2;
        const P x0 = io.pair(0);
        const P t5 = t4 + x0;
        const P t6 = c[0] * t0;
        const P t7 = c[1] * t2;
        const P t8 = t6 - t7;
        const P t9 = t8 + x0;
        const P t10 = c[2] * t1;
        const P t11 = c[3] * t3;
        const P t12 = t10 - t11;
        const P t13 = shuffled<1, 0>(t12);
        const P t14 = flipped<0, 1>(t13);
        const P t15 = t9 + t14;
        const P t16 = t9 - t14;
        const P t17 = c[1] * t0;
        const P t18 = x0 - t17;
        const P t19 = c[0] * t2;
        const P t20 = t18 + t19;
        const P t21 = c[3] * t1;
        const P t22 = c[2] * t3;
        const P t23 = t21 + t22;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = flipped<0, 1>(t24);
        const P t26 = t20 + t25;
        const P t27 = t20 - t25;
        const P x13 = io.pair(13);
        const P x37 = io.pair(37);
        // complex block of 5, multiplier 3
        const P t28 = x13 + x37;
        const P t29 = x13 - x37;
        const P x29 = io.pair(29);
        const P x21 = io.pair(21);
        const P t30 = x29 + x21;
        const P t31 = x29 - x21;
        const P t32 = t28 + t30;
        const P x5 = io.pair(5);
        const P t33 = t32 + x5;
        const P t34 = c[0] * t28;
        const P t35 = c[1] * t30;
        const P t36 = t34 - t35;
        const P t37 = t36 + x5;
        const P t38 = c[2] * t29;
        const P t39 = c[3] * t31;
        const P t40 = t38 - t39;
        const P t41 = shuffled<1, 0>(t40);
        const P t42 = flipped<0, 1>(t41);
        const P t43 = t37 + t42;
        const P t44 = t37 - t42;
        const P t45 = c[1] * t28;
        const P t46 = x5 - t45;
        const P t47 = c[0] * t30;
        const P t48 = t46 + t47;
        const P t49 = c[3] * t29;
        const P t50 = c[2] * t31;
        const P t51 = t49 + t50;
        const P t52 = shuffled<1, 0>(t51);
        const P t53 = flipped<0, 1>(t52);
        const P t54 = t48 + t53;
        const P t55 = t48 - t53;
        const P x18 = io.pair(18);
        const P x2 = io.pair(2);
        // complex block of 5, multiplier 3
        const P t56 = x18 + x2;
        const P t57 = x18 - x2;
        const P x34 = io.pair(34);
        const P x26 = io.pair(26);
        const P t58 = x34 + x26;
        const P t59 = x34 - x26;
        const P t60 = t56 + t58;
        const P x10 = io.pair(10);
        const P t61 = t60 + x10;
        const P t62 = c[0] * t56;
        const P t63 = c[1] * t58;
        const P t64 = t62 - t63;
        const P t65 = t64 + x10;
        const P t66 = c[2] * t57;
        const P t67 = c[3] * t59;
        const P t68 = t66 - t67;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = flipped<0, 1>(t69);
        const P t71 = t65 + t70;
        const P t72 = t65 - t70;
        const P t73 = c[1] * t56;
        const P t74 = x10 - t73;
        const P t75 = c[0] * t58;
        const P t76 = t74 + t75;
        const P t77 = c[3] * t57;
        const P t78 = c[2] * t59;
        const P t79 = t77 + t78;
        const P t80 = shuffled<1, 0>(t79);
        const P t81 = flipped<0, 1>(t80);
        const P t82 = t76 + t81;
        const P t83 = t76 - t81;
        const P x23 = io.pair(23);
        const P x7 = io.pair(7);
        // complex block of 5, multiplier 3
        const P t84 = x23 + x7;
        const P t85 = x23 - x7;
        const P x39 = io.pair(39);
        const P x31 = io.pair(31);
        const P t86 = x39 + x31;
        const P t87 = x39 - x31;
        const P t88 = t84 + t86;
        const P x15 = io.pair(15);
        const P t89 = t88 + x15;
        const P t90 = c[0] * t84;
        const P t91 = c[1] * t86;
        const P t92 = t90 - t91;
        const P t93 = t92 + x15;
        const P t94 = c[2] * t85;
        const P t95 = c[3] * t87;
        const P t96 = t94 - t95;
        const P t97 = shuffled<1, 0>(t96);
        const P t98 = flipped<0, 1>(t97);
        const P t99 = t93 + t98;
        const P t100 = t93 - t98;
        const P t101 = c[1] * t84;
        const P t102 = x15 - t101;
        const P t103 = c[0] * t86;
        const P t104 = t102 + t103;
        const P t105 = c[3] * t85;
        const P t106 = c[2] * t87;
        const P t107 = t105 + t106;
        const P t108 = shuffled<1, 0>(t107);
        const P t109 = flipped<0, 1>(t108);
        const P t110 = t104 + t109;
        const P t111 = t104 - t109;
        const P x28 = io.pair(28);
        const P x12 = io.pair(12);
        // complex block of 5, multiplier 3
        const P t112 = x28 + x12;
        const P t113 = x28 - x12;
        const P x4 = io.pair(4);
        const P x36 = io.pair(36);
        const P t114 = x4 + x36;
        const P t115 = x4 - x36;
        const P t116 = t112 + t114;
        const P x20 = io.pair(20);
        const P t117 = t116 + x20;
        const P t118 = c[0] * t112;
        const P t119 = c[1] * t114;
        const P t120 = t118 - t119;
        const P t121 = t120 + x20;
        const P t122 = c[2] * t113;
        const P t123 = c[3] * t115;
        const P t124 = t122 - t123;
        const P t125 = shuffled<1, 0>(t124);
        const P t126 = flipped<0, 1>(t125);
        const P t127 = t121 + t126;
        const P t128 = t121 - t126;
        const P t129 = c[1] * t112;
        const P t130 = x20 - t129;
        const P t131 = c[0] * t114;
        const P t132 = t130 + t131;
        const P t133 = c[3] * t113;
        const P t134 = c[2] * t115;
        const P t135 = t133 + t134;
        const P t136 = shuffled<1, 0>(t135);
        const P t137 = flipped<0, 1>(t136);
        const P t138 = t132 + t137;
        const P t139 = t132 - t137;
        const P x33 = io.pair(33);
        const P x17 = io.pair(17);
        // complex block of 5, multiplier 3
        const P t140 = x33 + x17;
        const P t141 = x33 - x17;
        const P x9 = io.pair(9);
        const P x1 = io.pair(1);
        const P t142 = x9 + x1;
        const P t143 = x9 - x1;
        const P t144 = t140 + t142;
        const P x25 = io.pair(25);
        const P t145 = t144 + x25;
        const P t146 = c[0] * t140;
        const P t147 = c[1] * t142;
        const P t148 = t146 - t147;
        const P t149 = t148 + x25;
        const P t150 = c[2] * t141;
        const P t151 = c[3] * t143;
        const P t152 = t150 - t151;
        const P t153 = shuffled<1, 0>(t152);
        const P t154 = flipped<0, 1>(t153);
        const P t155 = t149 + t154;
        const P t156 = t149 - t154;
        const P t157 = c[1] * t140;
        const P t158 = x25 - t157;
        const P t159 = c[0] * t142;
        const P t160 = t158 + t159;
        const P t161 = c[3] * t141;
        const P t162 = c[2] * t143;
        const P t163 = t161 + t162;
        const P t164 = shuffled<1, 0>(t163);
        const P t165 = flipped<0, 1>(t164);
        const P t166 = t160 + t165;
        const P t167 = t160 - t165;
        const P x38 = io.pair(38);
        const P x22 = io.pair(22);
        // complex block of 5, multiplier 3
        const P t168 = x38 + x22;
        const P t169 = x38 - x22;
        const P x14 = io.pair(14);
        const P x6 = io.pair(6);
        const P t170 = x14 + x6;
        const P t171 = x14 - x6;
        const P t172 = t168 + t170;
        const P x30 = io.pair(30);
        const P t173 = t172 + x30;
        const P t174 = c[0] * t168;
        const P t175 = c[1] * t170;
        const P t176 = t174 - t175;
        const P t177 = t176 + x30;
        const P t178 = c[2] * t169;
        const P t179 = c[3] * t171;
        const P t180 = t178 - t179;
        const P t181 = shuffled<1, 0>(t180);
        const P t182 = flipped<0, 1>(t181);
        const P t183 = t177 + t182;
        const P t184 = t177 - t182;
        const P t185 = c[1] * t168;
        const P t186 = x30 - t185;
        const P t187 = c[0] * t170;
        const P t188 = t186 + t187;
        const P t189 = c[3] * t169;
        const P t190 = c[2] * t171;
        const P t191 = t189 + t190;
        const P t192 = shuffled<1, 0>(t191);
        const P t193 = flipped<0, 1>(t192);
        const P t194 = t188 + t193;
        const P t195 = t188 - t193;
        const P x3 = io.pair(3);
        const P x27 = io.pair(27);
        // complex block of 5, multiplier 3
        const P t196 = x3 + x27;
        const P t197 = x3 - x27;
        const P x19 = io.pair(19);
        const P x11 = io.pair(11);
        const P t198 = x19 + x11;
        const P t199 = x19 - x11;
        const P t200 = t196 + t198;
        const P x35 = io.pair(35);
        const P t201 = t200 + x35;
        const P t202 = c[0] * t196;
        const P t203 = c[1] * t198;
        const P t204 = t202 - t203;
        const P t205 = t204 + x35;
        const P t206 = c[2] * t197;
        const P t207 = c[3] * t199;
        const P t208 = t206 - t207;
        const P t209 = shuffled<1, 0>(t208);
        const P t210 = flipped<0, 1>(t209);
        const P t211 = t205 + t210;
        const P t212 = t205 - t210;
        const P t213 = c[1] * t196;
        const P t214 = x35 - t213;
        const P t215 = c[0] * t198;
        const P t216 = t214 + t215;
        const P t217 = c[3] * t197;
        const P t218 = c[2] * t199;
        const P t219 = t217 + t218;
        const P t220 = shuffled<1, 0>(t219);
        const P t221 = flipped<0, 1>(t220);
        const P t222 = t216 + t221;
        const P t223 = t216 - t221;
        // complex block of 2
        const P t224 = t5 + t117;
        const P t225 = t5 - t117;
        // complex block of 2
        const P t226 = t33 + t145;
        const P t227 = t33 - t145;
        // complex block of 2
        const P t228 = t61 + t173;
        const P t229 = t61 - t173;
        // complex block of 2
        const P t230 = t89 + t201;
        const P t231 = t89 - t201;
        // complex block of 2
        const P t232 = t224 + t228;
        const P t233 = t224 - t228;
        // complex block of 2
        const P t234 = t226 + t230;
        const P t235 = t226 - t230;
        // complex block of 2
        const P t236 = t232 + t234;
        io.pair(0, t236);
        const P t237 = t232 - t234;
        io.pair(20, t237);
        const P t238 = shuffled<1, 0>(t235);
        const P t239 = flipped<0, 1>(t238);
        // complex block of 2
        const P t240 = t233 + t239;
        io.pair(10, t240);
        const P t241 = t233 - t239;
        io.pair(30, t241);
        // complex block of 8, multiplier 5
        const P t242 = c[4] * t227;
        const P t243 = shuffled<1, 0>(t242);
        const P t244 = flipped<0, 1>(t243);
        const P t245 = t242 + t244;
        const P t246 = c[4] * t231;
        const P t247 = shuffled<1, 0>(t246);
        const P t248 = flipped<0, 1>(t247);
        const P t249 = t246 + t248;
        const P t250 = shuffled<1, 0>(t229);
        const P t251 = flipped<0, 1>(t250);
        // complex block of 2
        const P t252 = t225 + t251;
        const P t253 = t225 - t251;
        const P t254 = shuffled<1, 0>(t249);
        const P t255 = flipped<0, 1>(t245);
        // complex block of 2
        const P t256 = t254 + t255;
        const P t257 = t254 - t255;
        const P t258 = flipped<1, 0>(t256);
        // complex block of 2
        const P t259 = t252 + t258;
        io.pair(5, t259);
        const P t260 = t252 - t258;
        io.pair(25, t260);
        const P t261 = shuffled<1, 0>(t257);
        // complex block of 2
        const P t262 = t253 - t261;
        io.pair(15, t262);
        const P t263 = t253 + t261;
        io.pair(35, t263);
        // complex block of 2
        const P t264 = t27 + t139;
        const P t265 = t27 - t139;
        // complex block of 2
        const P t266 = t55 + t167;
        const P t267 = t55 - t167;
        // complex block of 2
        const P t268 = t83 + t195;
        const P t269 = t83 - t195;
        // complex block of 2
        const P t270 = t111 + t223;
        const P t271 = t111 - t223;
        // complex block of 2
        const P t272 = t264 + t268;
        const P t273 = t264 - t268;
        // complex block of 2
        const P t274 = t266 + t270;
        const P t275 = t266 - t270;
        // complex block of 2
        const P t276 = t272 + t274;
        io.pair(8, t276);
        const P t277 = t272 - t274;
        io.pair(28, t277);
        const P t278 = shuffled<1, 0>(t275);
        const P t279 = flipped<0, 1>(t278);
        // complex block of 2
        const P t280 = t273 + t279;
        io.pair(18, t280);
        const P t281 = t273 - t279;
        io.pair(38, t281);
        // complex block of 8, multiplier 5
        const P t282 = c[4] * t267;
        const P t283 = shuffled<1, 0>(t282);
        const P t284 = flipped<0, 1>(t283);
        const P t285 = t282 + t284;
        const P t286 = c[4] * t271;
        const P t287 = shuffled<1, 0>(t286);
        const P t288 = flipped<0, 1>(t287);
        const P t289 = t286 + t288;
        const P t290 = shuffled<1, 0>(t269);
        const P t291 = flipped<0, 1>(t290);
        // complex block of 2
        const P t292 = t265 + t291;
        const P t293 = t265 - t291;
        const P t294 = shuffled<1, 0>(t289);
        const P t295 = flipped<0, 1>(t285);
        // complex block of 2
        const P t296 = t294 + t295;
        const P t297 = t294 - t295;
        const P t298 = flipped<1, 0>(t296);
        // complex block of 2
        const P t299 = t292 + t298;
        io.pair(13, t299);
        const P t300 = t292 - t298;
        io.pair(33, t300);
        const P t301 = shuffled<1, 0>(t297);
        // complex block of 2
        const P t302 = t293 - t301;
        io.pair(23, t302);
        const P t303 = t293 + t301;
        io.pair(3, t303);
        // complex block of 2
        const P t304 = t15 + t127;
        const P t305 = t15 - t127;
        // complex block of 2
        const P t306 = t43 + t155;
        const P t307 = t43 - t155;
        // complex block of 2
        const P t308 = t71 + t183;
        const P t309 = t71 - t183;
        // complex block of 2
        const P t310 = t99 + t211;
        const P t311 = t99 - t211;
        // complex block of 2
        const P t312 = t304 + t308;
        const P t313 = t304 - t308;
        // complex block of 2
        const P t314 = t306 + t310;
        const P t315 = t306 - t310;
        // complex block of 2
        const P t316 = t312 + t314;
        io.pair(16, t316);
        const P t317 = t312 - t314;
        io.pair(36, t317);
        const P t318 = shuffled<1, 0>(t315);
        const P t319 = flipped<0, 1>(t318);
        // complex block of 2
        const P t320 = t313 + t319;
        io.pair(26, t320);
        const P t321 = t313 - t319;
        io.pair(6, t321);
        // complex block of 8, multiplier 5
        const P t322 = c[4] * t307;
        const P t323 = shuffled<1, 0>(t322);
        const P t324 = flipped<0, 1>(t323);
        const P t325 = t322 + t324;
        const P t326 = c[4] * t311;
        const P t327 = shuffled<1, 0>(t326);
        const P t328 = flipped<0, 1>(t327);
        const P t329 = t326 + t328;
        const P t330 = shuffled<1, 0>(t309);
        const P t331 = flipped<0, 1>(t330);
        // complex block of 2
        const P t332 = t305 + t331;
        const P t333 = t305 - t331;
        const P t334 = shuffled<1, 0>(t329);
        const P t335 = flipped<0, 1>(t325);
        // complex block of 2
        const P t336 = t334 + t335;
        const P t337 = t334 - t335;
        const P t338 = flipped<1, 0>(t336);
        // complex block of 2
        const P t339 = t332 + t338;
        io.pair(21, t339);
        const P t340 = t332 - t338;
        io.pair(1, t340);
        const P t341 = shuffled<1, 0>(t337);
        // complex block of 2
        const P t342 = t333 - t341;
        io.pair(31, t342);
        const P t343 = t333 + t341;
        io.pair(11, t343);
        // complex block of 2
        const P t344 = t16 + t128;
        const P t345 = t16 - t128;
        // complex block of 2
        const P t346 = t44 + t156;
        const P t347 = t44 - t156;
        // complex block of 2
        const P t348 = t72 + t184;
        const P t349 = t72 - t184;
        // complex block of 2
        const P t350 = t100 + t212;
        const P t351 = t100 - t212;
        // complex block of 2
        const P t352 = t344 + t348;
        const P t353 = t344 - t348;
        // complex block of 2
        const P t354 = t346 + t350;
        const P t355 = t346 - t350;
        // complex block of 2
        const P t356 = t352 + t354;
        io.pair(24, t356);
        const P t357 = t352 - t354;
        io.pair(4, t357);
        const P t358 = shuffled<1, 0>(t355);
        const P t359 = flipped<0, 1>(t358);
        // complex block of 2
        const P t360 = t353 + t359;
        io.pair(34, t360);
        const P t361 = t353 - t359;
        io.pair(14, t361);
        // complex block of 8, multiplier 5
        const P t362 = c[4] * t347;
        const P t363 = shuffled<1, 0>(t362);
        const P t364 = flipped<0, 1>(t363);
        const P t365 = t362 + t364;
        const P t366 = c[4] * t351;
        const P t367 = shuffled<1, 0>(t366);
        const P t368 = flipped<0, 1>(t367);
        const P t369 = t366 + t368;
        const P t370 = shuffled<1, 0>(t349);
        const P t371 = flipped<0, 1>(t370);
        // complex block of 2
        const P t372 = t345 + t371;
        const P t373 = t345 - t371;
        const P t374 = shuffled<1, 0>(t369);
        const P t375 = flipped<0, 1>(t365);
        // complex block of 2
        const P t376 = t374 + t375;
        const P t377 = t374 - t375;
        const P t378 = flipped<1, 0>(t376);
        // complex block of 2
        const P t379 = t372 + t378;
        io.pair(29, t379);
        const P t380 = t372 - t378;
        io.pair(9, t380);
        const P t381 = shuffled<1, 0>(t377);
        // complex block of 2
        const P t382 = t373 - t381;
        io.pair(39, t382);
        const P t383 = t373 + t381;
        io.pair(19, t383);
        // complex block of 2
        const P t384 = t26 + t138;
        const P t385 = t26 - t138;
        // complex block of 2
        const P t386 = t54 + t166;
        const P t387 = t54 - t166;
        // complex block of 2
        const P t388 = t82 + t194;
        const P t389 = t82 - t194;
        // complex block of 2
        const P t390 = t110 + t222;
        const P t391 = t110 - t222;
        // complex block of 2
        const P t392 = t384 + t388;
        const P t393 = t384 - t388;
        // complex block of 2
        const P t394 = t386 + t390;
        const P t395 = t386 - t390;
        // complex block of 2
        const P t396 = t392 + t394;
        io.pair(32, t396);
        const P t397 = t392 - t394;
        io.pair(12, t397);
        const P t398 = shuffled<1, 0>(t395);
        const P t399 = flipped<0, 1>(t398);
        // complex block of 2
        const P t400 = t393 + t399;
        io.pair(2, t400);
        const P t401 = t393 - t399;
        io.pair(22, t401);
        // complex block of 8, multiplier 5
        const P t402 = c[4] * t387;
        const P t403 = shuffled<1, 0>(t402);
        const P t404 = flipped<0, 1>(t403);
        const P t405 = t402 + t404;
        const P t406 = c[4] * t391;
        const P t407 = shuffled<1, 0>(t406);
        const P t408 = flipped<0, 1>(t407);
        const P t409 = t406 + t408;
        const P t410 = shuffled<1, 0>(t389);
        const P t411 = flipped<0, 1>(t410);
        // complex block of 2
        const P t412 = t385 + t411;
        const P t413 = t385 - t411;
        const P t414 = shuffled<1, 0>(t409);
        const P t415 = flipped<0, 1>(t405);
        // complex block of 2
        const P t416 = t414 + t415;
        const P t417 = t414 - t415;
        const P t418 = flipped<1, 0>(t416);
        // complex block of 2
        const P t419 = t412 + t418;
        io.pair(37, t419);
        const P t420 = t412 - t418;
        io.pair(17, t420);
        const P t421 = shuffled<1, 0>(t417);
        // complex block of 2
        const P t422 = t413 - t421;
        io.pair(7, t422);
        const P t423 = t413 + t421;
        io.pair(27, t423);
    }
};

}  // namespace zulg
