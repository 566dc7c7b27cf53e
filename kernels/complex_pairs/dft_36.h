// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 36.
// Complex DFT of 36 points, prime-factor, order 9, 4; one complex number to a register.
// 128 sums, 104 differences, 80 products of registers, which do the 696 steps of the graph, those with
// `scale` included; 49 shuffles, 17 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<36> {
    static constexpr int steps = 696;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.766044443118978,  // c[2]: cos 2 pi 8/9
        0.6427876096865394,  // c[3]: -sin 2 pi 8/9
        0.9396926207859084,  // c[4]: -cos 2 pi 4/9
        0.3420201433256687,  // c[5]: sin 2 pi 4/9
        0.17364817766693036,  // c[6]: cos 2 pi 7/9
        0.984807753012208,  // c[7]: -sin 2 pi 7/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x12 = io.pair(12);
        const P x24 = io.pair(24);
        // complex block of 3
        const P t0 = x12 + x24;
        const P t1 = x12 - x24;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[0] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[1], c[1]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x16 = io.pair(16);
        const P x28 = io.pair(28);
        // complex block of 3
        const P t9 = x16 + x28;
        const P t10 = x16 - x28;
        const P x4 = io.pair(4);
        const P t11 = t9 + x4;
        const P t12 = c[0] * t9;
        const P t13 = x4 - t12;
        const P t14 = P(-c[1], c[1]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x20 = io.pair(20);
        const P x32 = io.pair(32);
        // complex block of 3
        const P t18 = x20 + x32;
        const P t19 = x20 - x32;
        const P x8 = io.pair(8);
        const P t20 = t18 + x8;
        const P t21 = c[0] * t18;
        const P t22 = x8 - t21;
        const P t23 = P(-c[1], c[1]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        // complex block of 3
        const P t27 = t11 + t20;
        const P t28 = t11 - t20;
        const P t29 = t27 + t2;
        const P t30 = c[0] * t27;
        const P t31 = t2 - t30;
        const P t32 = P(-c[1], c[1]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        // complex block of 9, multiplier 4
        const P t36 = P(-c[4], c[4]) * t16;
        const P t37 = shuffled<1, 0>(t16);
        const P t38 = c[5] * t37;
        const P t39 = t36 + t38;
        const P t40 = c[2] * t25;
        const P t41 = shuffled<1, 0>(t25);
        const P t42 = P(-c[3], c[3]) * t41;
        const P t43 = t40 + t42;
        const P t44 = flipped<0, 1>(t39);
        // complex block of 3
        const P t45 = t43 + t44;
        const P t46 = flipped<1, 0>(t43);
        const P t47 = t39 + t46;
        const P t48 = t45 + t7;
        const P t49 = c[0] * t45;
        const P t50 = t7 - t49;
        const P t51 = c[1] * t47;
        const P t52 = shuffled<1, 0>(t51);
        const P t53 = t50 - t52;
        const P t54 = t50 + t52;
        // complex block of 9, multiplier 4
        const P t55 = c[2] * t17;
        const P t56 = shuffled<1, 0>(t17);
        const P t57 = P(-c[3], c[3]) * t56;
        const P t58 = t55 + t57;
        const P t59 = c[6] * t26;
        const P t60 = shuffled<1, 0>(t26);
        const P t61 = P(-c[7], c[7]) * t60;
        const P t62 = t59 + t61;
        // complex block of 3
        const P t63 = t58 + t62;
        const P t64 = t58 - t62;
        const P t65 = t63 + t8;
        const P t66 = c[0] * t63;
        const P t67 = t8 - t66;
        const P t68 = P(-c[1], c[1]) * t64;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = t67 + t69;
        const P t71 = t67 - t69;
        const P x21 = io.pair(21);
        const P x33 = io.pair(33);
        // complex block of 3
        const P t72 = x21 + x33;
        const P t73 = x21 - x33;
        const P x9 = io.pair(9);
        const P t74 = t72 + x9;
        const P t75 = c[0] * t72;
        const P t76 = x9 - t75;
        const P t77 = P(-c[1], c[1]) * t73;
        const P t78 = shuffled<1, 0>(t77);
        const P t79 = t76 + t78;
        const P t80 = t76 - t78;
        const P x25 = io.pair(25);
        const P x1 = io.pair(1);
        // complex block of 3
        const P t81 = x25 + x1;
        const P t82 = x25 - x1;
        const P x13 = io.pair(13);
        const P t83 = t81 + x13;
        const P t84 = c[0] * t81;
        const P t85 = x13 - t84;
        const P t86 = P(-c[1], c[1]) * t82;
        const P t87 = shuffled<1, 0>(t86);
        const P t88 = t85 + t87;
        const P t89 = t85 - t87;
        const P x29 = io.pair(29);
        const P x5 = io.pair(5);
        // complex block of 3
        const P t90 = x29 + x5;
        const P t91 = x29 - x5;
        const P x17 = io.pair(17);
        const P t92 = t90 + x17;
        const P t93 = c[0] * t90;
        const P t94 = x17 - t93;
        const P t95 = P(-c[1], c[1]) * t91;
        const P t96 = shuffled<1, 0>(t95);
        const P t97 = t94 + t96;
        const P t98 = t94 - t96;
        // complex block of 3
        const P t99 = t83 + t92;
        const P t100 = t83 - t92;
        const P t101 = t99 + t74;
        const P t102 = c[0] * t99;
        const P t103 = t74 - t102;
        const P t104 = P(-c[1], c[1]) * t100;
        const P t105 = shuffled<1, 0>(t104);
        const P t106 = t103 + t105;
        const P t107 = t103 - t105;
        // complex block of 9, multiplier 4
        const P t108 = P(-c[4], c[4]) * t88;
        const P t109 = shuffled<1, 0>(t88);
        const P t110 = c[5] * t109;
        const P t111 = t108 + t110;
        const P t112 = c[2] * t97;
        const P t113 = shuffled<1, 0>(t97);
        const P t114 = P(-c[3], c[3]) * t113;
        const P t115 = t112 + t114;
        const P t116 = flipped<0, 1>(t111);
        // complex block of 3
        const P t117 = t115 + t116;
        const P t118 = flipped<1, 0>(t115);
        const P t119 = t111 + t118;
        const P t120 = t117 + t79;
        const P t121 = c[0] * t117;
        const P t122 = t79 - t121;
        const P t123 = c[1] * t119;
        const P t124 = shuffled<1, 0>(t123);
        const P t125 = t122 - t124;
        const P t126 = t122 + t124;
        // complex block of 9, multiplier 4
        const P t127 = c[2] * t89;
        const P t128 = shuffled<1, 0>(t89);
        const P t129 = P(-c[3], c[3]) * t128;
        const P t130 = t127 + t129;
        const P t131 = c[6] * t98;
        const P t132 = shuffled<1, 0>(t98);
        const P t133 = P(-c[7], c[7]) * t132;
        const P t134 = t131 + t133;
        // complex block of 3
        const P t135 = t130 + t134;
        const P t136 = t130 - t134;
        const P t137 = t135 + t80;
        const P t138 = c[0] * t135;
        const P t139 = t80 - t138;
        const P t140 = P(-c[1], c[1]) * t136;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = t139 + t141;
        const P t143 = t139 - t141;
        const P x30 = io.pair(30);
        const P x6 = io.pair(6);
        // complex block of 3
        const P t144 = x30 + x6;
        const P t145 = x30 - x6;
        const P x18 = io.pair(18);
        const P t146 = t144 + x18;
        const P t147 = c[0] * t144;
        const P t148 = x18 - t147;
        const P t149 = P(-c[1], c[1]) * t145;
        const P t150 = shuffled<1, 0>(t149);
        const P t151 = t148 + t150;
        const P t152 = t148 - t150;
        const P x34 = io.pair(34);
        const P x10 = io.pair(10);
        // complex block of 3
        const P t153 = x34 + x10;
        const P t154 = x34 - x10;
        const P x22 = io.pair(22);
        const P t155 = t153 + x22;
        const P t156 = c[0] * t153;
        const P t157 = x22 - t156;
        const P t158 = P(-c[1], c[1]) * t154;
        const P t159 = shuffled<1, 0>(t158);
        const P t160 = t157 + t159;
        const P t161 = t157 - t159;
        const P x2 = io.pair(2);
        const P x14 = io.pair(14);
        // complex block of 3
        const P t162 = x2 + x14;
        const P t163 = x2 - x14;
        const P x26 = io.pair(26);
        const P t164 = t162 + x26;
        const P t165 = c[0] * t162;
        const P t166 = x26 - t165;
        const P t167 = P(-c[1], c[1]) * t163;
        const P t168 = shuffled<1, 0>(t167);
        const P t169 = t166 + t168;
        const P t170 = t166 - t168;
        // complex block of 3
        const P t171 = t155 + t164;
        const P t172 = t155 - t164;
        const P t173 = t171 + t146;
        const P t174 = c[0] * t171;
        const P t175 = t146 - t174;
        const P t176 = P(-c[1], c[1]) * t172;
        const P t177 = shuffled<1, 0>(t176);
        const P t178 = t175 + t177;
        const P t179 = t175 - t177;
        // complex block of 9, multiplier 4
        const P t180 = P(-c[4], c[4]) * t160;
        const P t181 = shuffled<1, 0>(t160);
        const P t182 = c[5] * t181;
        const P t183 = t180 + t182;
        const P t184 = c[2] * t169;
        const P t185 = shuffled<1, 0>(t169);
        const P t186 = P(-c[3], c[3]) * t185;
        const P t187 = t184 + t186;
        const P t188 = flipped<0, 1>(t183);
        // complex block of 3
        const P t189 = t187 + t188;
        const P t190 = flipped<1, 0>(t187);
        const P t191 = t183 + t190;
        const P t192 = t189 + t151;
        const P t193 = c[0] * t189;
        const P t194 = t151 - t193;
        const P t195 = c[1] * t191;
        const P t196 = shuffled<1, 0>(t195);
        const P t197 = t194 - t196;
        const P t198 = t194 + t196;
        // complex block of 9, multiplier 4
        const P t199 = c[2] * t161;
        const P t200 = shuffled<1, 0>(t161);
        const P t201 = P(-c[3], c[3]) * t200;
        const P t202 = t199 + t201;
        const P t203 = c[6] * t170;
        const P t204 = shuffled<1, 0>(t170);
        const P t205 = P(-c[7], c[7]) * t204;
        const P t206 = t203 + t205;
        // complex block of 3
        const P t207 = t202 + t206;
        const P t208 = t202 - t206;
        const P t209 = t207 + t152;
        const P t210 = c[0] * t207;
        const P t211 = t152 - t210;
        const P t212 = P(-c[1], c[1]) * t208;
        const P t213 = shuffled<1, 0>(t212);
        const P t214 = t211 + t213;
        const P t215 = t211 - t213;
        const P x3 = io.pair(3);
        const P x15 = io.pair(15);
        // complex block of 3
        const P t216 = x3 + x15;
        const P t217 = x3 - x15;
        const P x27 = io.pair(27);
        const P t218 = t216 + x27;
        const P t219 = c[0] * t216;
        const P t220 = x27 - t219;
        const P t221 = P(-c[1], c[1]) * t217;
        const P t222 = shuffled<1, 0>(t221);
        const P t223 = t220 + t222;
        const P t224 = t220 - t222;
        const P x7 = io.pair(7);
        const P x19 = io.pair(19);
        // complex block of 3
        const P t225 = x7 + x19;
        const P t226 = x7 - x19;
        const P x31 = io.pair(31);
        const P t227 = t225 + x31;
        const P t228 = c[0] * t225;
        const P t229 = x31 - t228;
        const P t230 = P(-c[1], c[1]) * t226;
        const P t231 = shuffled<1, 0>(t230);
        const P t232 = t229 + t231;
        const P t233 = t229 - t231;
        const P x11 = io.pair(11);
        const P x23 = io.pair(23);
        // complex block of 3
        const P t234 = x11 + x23;
        const P t235 = x11 - x23;
        const P x35 = io.pair(35);
        const P t236 = t234 + x35;
        const P t237 = c[0] * t234;
        const P t238 = x35 - t237;
        const P t239 = P(-c[1], c[1]) * t235;
        const P t240 = shuffled<1, 0>(t239);
        const P t241 = t238 + t240;
        const P t242 = t238 - t240;
        // complex block of 3
        const P t243 = t227 + t236;
        const P t244 = t227 - t236;
        const P t245 = t243 + t218;
        const P t246 = c[0] * t243;
        const P t247 = t218 - t246;
        const P t248 = P(-c[1], c[1]) * t244;
        const P t249 = shuffled<1, 0>(t248);
        const P t250 = t247 + t249;
        const P t251 = t247 - t249;
        // complex block of 9, multiplier 4
        const P t252 = P(-c[4], c[4]) * t232;
        const P t253 = shuffled<1, 0>(t232);
        const P t254 = c[5] * t253;
        const P t255 = t252 + t254;
        const P t256 = c[2] * t241;
        const P t257 = shuffled<1, 0>(t241);
        const P t258 = P(-c[3], c[3]) * t257;
        const P t259 = t256 + t258;
        const P t260 = flipped<0, 1>(t255);
        // complex block of 3
        const P t261 = t259 + t260;
        const P t262 = flipped<1, 0>(t259);
        const P t263 = t255 + t262;
        const P t264 = t261 + t223;
        const P t265 = c[0] * t261;
        const P t266 = t223 - t265;
        const P t267 = c[1] * t263;
        const P t268 = shuffled<1, 0>(t267);
        const P t269 = t266 - t268;
        const P t270 = t266 + t268;
        // complex block of 9, multiplier 4
        const P t271 = c[2] * t233;
        const P t272 = shuffled<1, 0>(t233);
        const P t273 = P(-c[3], c[3]) * t272;
        const P t274 = t271 + t273;
        const P t275 = c[6] * t242;
        const P t276 = shuffled<1, 0>(t242);
        const P t277 = P(-c[7], c[7]) * t276;
        const P t278 = t275 + t277;
        // complex block of 3
        const P t279 = t274 + t278;
        const P t280 = t274 - t278;
        const P t281 = t279 + t224;
        const P t282 = c[0] * t279;
        const P t283 = t224 - t282;
        const P t284 = P(-c[1], c[1]) * t280;
        const P t285 = shuffled<1, 0>(t284);
        const P t286 = t283 + t285;
        const P t287 = t283 - t285;
        // complex block of 2
        const P t288 = t29 + t173;
        const P t289 = t29 - t173;
        // complex block of 2
        const P t290 = t101 + t245;
        const P t291 = t101 - t245;
        // complex block of 2
        const P t292 = t288 + t290;
        io.pair(0, t292);
        const P t293 = t288 - t290;
        io.pair(18, t293);
        const P t294 = shuffled<1, 0>(t291);
        const P t295 = flipped<0, 1>(t294);
        // complex block of 2
        const P t296 = t289 + t295;
        io.pair(9, t296);
        const P t297 = t289 - t295;
        io.pair(27, t297);
        // complex block of 2
        const P t298 = t48 + t192;
        const P t299 = t48 - t192;
        // complex block of 2
        const P t300 = t120 + t264;
        const P t301 = t120 - t264;
        // complex block of 2
        const P t302 = t298 + t300;
        io.pair(4, t302);
        const P t303 = t298 - t300;
        io.pair(22, t303);
        const P t304 = shuffled<1, 0>(t301);
        const P t305 = flipped<0, 1>(t304);
        // complex block of 2
        const P t306 = t299 + t305;
        io.pair(13, t306);
        const P t307 = t299 - t305;
        io.pair(31, t307);
        // complex block of 2
        const P t308 = t65 + t209;
        const P t309 = t65 - t209;
        // complex block of 2
        const P t310 = t137 + t281;
        const P t311 = t137 - t281;
        // complex block of 2
        const P t312 = t308 + t310;
        io.pair(8, t312);
        const P t313 = t308 - t310;
        io.pair(26, t313);
        const P t314 = shuffled<1, 0>(t311);
        const P t315 = flipped<0, 1>(t314);
        // complex block of 2
        const P t316 = t309 + t315;
        io.pair(17, t316);
        const P t317 = t309 - t315;
        io.pair(35, t317);
        // complex block of 2
        const P t318 = t34 + t178;
        const P t319 = t34 - t178;
        // complex block of 2
        const P t320 = t106 + t250;
        const P t321 = t106 - t250;
        // complex block of 2
        const P t322 = t318 + t320;
        io.pair(12, t322);
        const P t323 = t318 - t320;
        io.pair(30, t323);
        const P t324 = shuffled<1, 0>(t321);
        const P t325 = flipped<0, 1>(t324);
        // complex block of 2
        const P t326 = t319 + t325;
        io.pair(21, t326);
        const P t327 = t319 - t325;
        io.pair(3, t327);
        // complex block of 2
        const P t328 = t53 + t197;
        const P t329 = t53 - t197;
        // complex block of 2
        const P t330 = t125 + t269;
        const P t331 = t125 - t269;
        // complex block of 2
        const P t332 = t328 + t330;
        io.pair(16, t332);
        const P t333 = t328 - t330;
        io.pair(34, t333);
        const P t334 = shuffled<1, 0>(t331);
        const P t335 = flipped<0, 1>(t334);
        // complex block of 2
        const P t336 = t329 + t335;
        io.pair(25, t336);
        const P t337 = t329 - t335;
        io.pair(7, t337);
        // complex block of 2
        const P t338 = t70 + t214;
        const P t339 = t70 - t214;
        // complex block of 2
        const P t340 = t142 + t286;
        const P t341 = t142 - t286;
        // complex block of 2
        const P t342 = t338 + t340;
        io.pair(20, t342);
        const P t343 = t338 - t340;
        io.pair(2, t343);
        const P t344 = shuffled<1, 0>(t341);
        const P t345 = flipped<0, 1>(t344);
        // complex block of 2
        const P t346 = t339 + t345;
        io.pair(29, t346);
        const P t347 = t339 - t345;
        io.pair(11, t347);
        // complex block of 2
        const P t348 = t35 + t179;
        const P t349 = t35 - t179;
        // complex block of 2
        const P t350 = t107 + t251;
        const P t351 = t107 - t251;
        // complex block of 2
        const P t352 = t348 + t350;
        io.pair(24, t352);
        const P t353 = t348 - t350;
        io.pair(6, t353);
        const P t354 = shuffled<1, 0>(t351);
        const P t355 = flipped<0, 1>(t354);
        // complex block of 2
        const P t356 = t349 + t355;
        io.pair(33, t356);
        const P t357 = t349 - t355;
        io.pair(15, t357);
        // complex block of 2
        const P t358 = t54 + t198;
        const P t359 = t54 - t198;
        // complex block of 2
        const P t360 = t126 + t270;
        const P t361 = t126 - t270;
        // complex block of 2
        const P t362 = t358 + t360;
        io.pair(28, t362);
        const P t363 = t358 - t360;
        io.pair(10, t363);
        const P t364 = shuffled<1, 0>(t361);
        const P t365 = flipped<0, 1>(t364);
        // complex block of 2
        const P t366 = t359 + t365;
        io.pair(1, t366);
        const P t367 = t359 - t365;
        io.pair(19, t367);
        // complex block of 2
        const P t368 = t71 + t215;
        const P t369 = t71 - t215;
        // complex block of 2
        const P t370 = t143 + t287;
        const P t371 = t143 - t287;
        // complex block of 2
        const P t372 = t368 + t370;
        io.pair(32, t372);
        const P t373 = t368 - t370;
        io.pair(14, t373);
        const P t374 = shuffled<1, 0>(t371);
        const P t375 = flipped<0, 1>(t374);
        // complex block of 2
        const P t376 = t369 + t375;
        io.pair(5, t376);
        const P t377 = t369 - t375;
        io.pair(23, t377);
    }
};

}  // namespace zulg
