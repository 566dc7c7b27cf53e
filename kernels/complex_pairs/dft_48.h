// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 48.
// Complex DFT of 48 points, prime-factor, order 3, 16; one complex number to a register.
// 183 sums, 135 differences, 74 products of registers, which do the 880 steps of the graph, those with
// `scale` included; 82 shuffles, 48 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<48> {
    static constexpr int steps = 880;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.3826834323650898,  // c[3]: cos 2 pi 3/16
        0.9238795325112867,  // c[4]: sin 2 pi 3/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x16 = io.pair(16);
        const P x32 = io.pair(32);
        // complex block of 3
        const P t0 = x16 + x32;
        const P t1 = x16 - x32;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[1] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[2], c[2]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x19 = io.pair(19);
        const P x35 = io.pair(35);
        // complex block of 3
        const P t9 = x19 + x35;
        const P t10 = x19 - x35;
        const P x3 = io.pair(3);
        const P t11 = t9 + x3;
        const P t12 = c[1] * t9;
        const P t13 = x3 - t12;
        const P t14 = P(-c[2], c[2]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x22 = io.pair(22);
        const P x38 = io.pair(38);
        // complex block of 3
        const P t18 = x22 + x38;
        const P t19 = x22 - x38;
        const P x6 = io.pair(6);
        const P t20 = t18 + x6;
        const P t21 = c[1] * t18;
        const P t22 = x6 - t21;
        const P t23 = P(-c[2], c[2]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P x25 = io.pair(25);
        const P x41 = io.pair(41);
        // complex block of 3
        const P t27 = x25 + x41;
        const P t28 = x25 - x41;
        const P x9 = io.pair(9);
        const P t29 = t27 + x9;
        const P t30 = c[1] * t27;
        const P t31 = x9 - t30;
        const P t32 = P(-c[2], c[2]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P x28 = io.pair(28);
        const P x44 = io.pair(44);
        // complex block of 3
        const P t36 = x28 + x44;
        const P t37 = x28 - x44;
        const P x12 = io.pair(12);
        const P t38 = t36 + x12;
        const P t39 = c[1] * t36;
        const P t40 = x12 - t39;
        const P t41 = P(-c[2], c[2]) * t37;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        const P x31 = io.pair(31);
        const P x47 = io.pair(47);
        // complex block of 3
        const P t45 = x31 + x47;
        const P t46 = x31 - x47;
        const P x15 = io.pair(15);
        const P t47 = t45 + x15;
        const P t48 = c[1] * t45;
        const P t49 = x15 - t48;
        const P t50 = P(-c[2], c[2]) * t46;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        const P x34 = io.pair(34);
        const P x2 = io.pair(2);
        // complex block of 3
        const P t54 = x34 + x2;
        const P t55 = x34 - x2;
        const P x18 = io.pair(18);
        const P t56 = t54 + x18;
        const P t57 = c[1] * t54;
        const P t58 = x18 - t57;
        const P t59 = P(-c[2], c[2]) * t55;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        const P x37 = io.pair(37);
        const P x5 = io.pair(5);
        // complex block of 3
        const P t63 = x37 + x5;
        const P t64 = x37 - x5;
        const P x21 = io.pair(21);
        const P t65 = t63 + x21;
        const P t66 = c[1] * t63;
        const P t67 = x21 - t66;
        const P t68 = P(-c[2], c[2]) * t64;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = t67 + t69;
        const P t71 = t67 - t69;
        const P x40 = io.pair(40);
        const P x8 = io.pair(8);
        // complex block of 3
        const P t72 = x40 + x8;
        const P t73 = x40 - x8;
        const P x24 = io.pair(24);
        const P t74 = t72 + x24;
        const P t75 = c[1] * t72;
        const P t76 = x24 - t75;
        const P t77 = P(-c[2], c[2]) * t73;
        const P t78 = shuffled<1, 0>(t77);
        const P t79 = t76 + t78;
        const P t80 = t76 - t78;
        const P x43 = io.pair(43);
        const P x11 = io.pair(11);
        // complex block of 3
        const P t81 = x43 + x11;
        const P t82 = x43 - x11;
        const P x27 = io.pair(27);
        const P t83 = t81 + x27;
        const P t84 = c[1] * t81;
        const P t85 = x27 - t84;
        const P t86 = P(-c[2], c[2]) * t82;
        const P t87 = shuffled<1, 0>(t86);
        const P t88 = t85 + t87;
        const P t89 = t85 - t87;
        const P x46 = io.pair(46);
        const P x14 = io.pair(14);
        // complex block of 3
        const P t90 = x46 + x14;
        const P t91 = x46 - x14;
        const P x30 = io.pair(30);
        const P t92 = t90 + x30;
        const P t93 = c[1] * t90;
        const P t94 = x30 - t93;
        const P t95 = P(-c[2], c[2]) * t91;
        const P t96 = shuffled<1, 0>(t95);
        const P t97 = t94 + t96;
        const P t98 = t94 - t96;
        const P x1 = io.pair(1);
        const P x17 = io.pair(17);
        // complex block of 3
        const P t99 = x1 + x17;
        const P t100 = x1 - x17;
        const P x33 = io.pair(33);
        const P t101 = t99 + x33;
        const P t102 = c[1] * t99;
        const P t103 = x33 - t102;
        const P t104 = P(-c[2], c[2]) * t100;
        const P t105 = shuffled<1, 0>(t104);
        const P t106 = t103 + t105;
        const P t107 = t103 - t105;
        const P x4 = io.pair(4);
        const P x20 = io.pair(20);
        // complex block of 3
        const P t108 = x4 + x20;
        const P t109 = x4 - x20;
        const P x36 = io.pair(36);
        const P t110 = t108 + x36;
        const P t111 = c[1] * t108;
        const P t112 = x36 - t111;
        const P t113 = P(-c[2], c[2]) * t109;
        const P t114 = shuffled<1, 0>(t113);
        const P t115 = t112 + t114;
        const P t116 = t112 - t114;
        const P x7 = io.pair(7);
        const P x23 = io.pair(23);
        // complex block of 3
        const P t117 = x7 + x23;
        const P t118 = x7 - x23;
        const P x39 = io.pair(39);
        const P t119 = t117 + x39;
        const P t120 = c[1] * t117;
        const P t121 = x39 - t120;
        const P t122 = P(-c[2], c[2]) * t118;
        const P t123 = shuffled<1, 0>(t122);
        const P t124 = t121 + t123;
        const P t125 = t121 - t123;
        const P x10 = io.pair(10);
        const P x26 = io.pair(26);
        // complex block of 3
        const P t126 = x10 + x26;
        const P t127 = x10 - x26;
        const P x42 = io.pair(42);
        const P t128 = t126 + x42;
        const P t129 = c[1] * t126;
        const P t130 = x42 - t129;
        const P t131 = P(-c[2], c[2]) * t127;
        const P t132 = shuffled<1, 0>(t131);
        const P t133 = t130 + t132;
        const P t134 = t130 - t132;
        const P x13 = io.pair(13);
        const P x29 = io.pair(29);
        // complex block of 3
        const P t135 = x13 + x29;
        const P t136 = x13 - x29;
        const P x45 = io.pair(45);
        const P t137 = t135 + x45;
        const P t138 = c[1] * t135;
        const P t139 = x45 - t138;
        const P t140 = P(-c[2], c[2]) * t136;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = t139 + t141;
        const P t143 = t139 - t141;
        // complex block of 2
        const P t144 = t2 + t74;
        const P t145 = t2 - t74;
        // complex block of 2
        const P t146 = t11 + t83;
        const P t147 = t11 - t83;
        // complex block of 2
        const P t148 = t20 + t92;
        const P t149 = t20 - t92;
        // complex block of 2
        const P t150 = t29 + t101;
        const P t151 = t29 - t101;
        // complex block of 2
        const P t152 = t38 + t110;
        const P t153 = t38 - t110;
        // complex block of 2
        const P t154 = t47 + t119;
        const P t155 = t47 - t119;
        // complex block of 2
        const P t156 = t56 + t128;
        const P t157 = t56 - t128;
        // complex block of 2
        const P t158 = t65 + t137;
        const P t159 = t65 - t137;
        // complex block of 2
        const P t160 = t144 + t152;
        const P t161 = t144 - t152;
        // complex block of 2
        const P t162 = t146 + t154;
        const P t163 = t146 - t154;
        // complex block of 2
        const P t164 = t148 + t156;
        const P t165 = t148 - t156;
        // complex block of 2
        const P t166 = t150 + t158;
        const P t167 = t150 - t158;
        // complex block of 2
        const P t168 = t160 + t164;
        const P t169 = t160 - t164;
        // complex block of 2
        const P t170 = t162 + t166;
        const P t171 = t162 - t166;
        // complex block of 2
        const P t172 = t168 + t170;
        io.pair(0, t172);
        const P t173 = t168 - t170;
        io.pair(24, t173);
        const P t174 = shuffled<1, 0>(t171);
        const P t175 = flipped<1, 0>(t174);
        // complex block of 2
        const P t176 = t169 + t175;
        io.pair(12, t176);
        const P t177 = t169 - t175;
        io.pair(36, t177);
        // complex block of 8, multiplier 3
        const P t178 = c[0] * t163;
        const P t179 = shuffled<1, 0>(t178);
        const P t180 = flipped<0, 1>(t179);
        const P t181 = t178 + t180;
        const P t182 = c[0] * t167;
        const P t183 = shuffled<1, 0>(t182);
        const P t184 = flipped<0, 1>(t183);
        const P t185 = t182 + t184;
        const P t186 = shuffled<1, 0>(t165);
        const P t187 = flipped<1, 0>(t186);
        // complex block of 2
        const P t188 = t161 + t187;
        const P t189 = t161 - t187;
        const P t190 = shuffled<1, 0>(t181);
        const P t191 = flipped<0, 1>(t190);
        // complex block of 2
        const P t192 = t185 + t191;
        const P t193 = flipped<1, 0>(t185);
        const P t194 = t190 + t193;
        // complex block of 2
        const P t195 = t188 + t192;
        io.pair(6, t195);
        const P t196 = t188 - t192;
        io.pair(30, t196);
        const P t197 = shuffled<1, 0>(t194);
        // complex block of 2
        const P t198 = t189 + t197;
        io.pair(18, t198);
        const P t199 = t189 - t197;
        io.pair(42, t199);
        // complex block of 16, multiplier 3
        const P t200 = c[3] * t147;
        const P t201 = shuffled<1, 0>(t147);
        const P t202 = P(c[4], -c[4]) * t201;
        const P t203 = t200 + t202;
        const P t204 = c[0] * t149;
        const P t205 = shuffled<1, 0>(t204);
        const P t206 = flipped<0, 1>(t205);
        const P t207 = t204 + t206;
        const P t208 = shuffled<1, 0>(t151);
        const P t209 = c[3] * t208;
        const P t210 = P(c[4], -c[4]) * t151;
        const P t211 = t209 + t210;
        const P t212 = c[4] * t155;
        const P t213 = shuffled<1, 0>(t155);
        const P t214 = P(-c[3], c[3]) * t213;
        const P t215 = t212 + t214;
        const P t216 = c[0] * t157;
        const P t217 = shuffled<1, 0>(t216);
        const P t218 = flipped<0, 1>(t217);
        const P t219 = t216 + t218;
        const P t220 = P(-c[3], c[3]) * t159;
        const P t221 = shuffled<1, 0>(t159);
        const P t222 = c[4] * t221;
        const P t223 = t220 + t222;
        const P t224 = shuffled<1, 0>(t153);
        const P t225 = flipped<1, 0>(t224);
        // complex block of 2
        const P t226 = t145 + t225;
        const P t227 = t145 - t225;
        // complex block of 2
        const P t228 = t203 + t215;
        const P t229 = t203 - t215;
        const P t230 = shuffled<1, 0>(t207);
        const P t231 = flipped<0, 1>(t230);
        // complex block of 2
        const P t232 = t219 + t231;
        const P t233 = flipped<1, 0>(t219);
        const P t234 = t230 + t233;
        const P t235 = shuffled<0, 3>(t223, t211);
        const P t236 = shuffled<0, 3>(t211, t223);
        // complex block of 2
        const P t237 = t235 - t236;
        const P t238 = t211 + t223;
        // complex block of 2
        const P t239 = t226 + t232;
        const P t240 = t226 - t232;
        // complex block of 2
        const P t241 = t228 + t237;
        const P t242 = t228 - t237;
        // complex block of 2
        const P t243 = t239 + t241;
        io.pair(3, t243);
        const P t244 = t239 - t241;
        io.pair(27, t244);
        const P t245 = shuffled<1, 0>(t242);
        const P t246 = flipped<1, 0>(t245);
        // complex block of 2
        const P t247 = t240 + t246;
        io.pair(15, t247);
        const P t248 = t240 - t246;
        io.pair(39, t248);
        // complex block of 8, multiplier 3
        const P t249 = c[0] * t229;
        const P t250 = shuffled<1, 0>(t249);
        const P t251 = flipped<0, 1>(t250);
        const P t252 = t249 + t251;
        const P t253 = P(-c[0], c[0]) * t238;
        const P t254 = shuffled<1, 0>(t253);
        const P t255 = flipped<0, 1>(t254);
        const P t256 = t253 + t255;
        const P t257 = shuffled<1, 0>(t234);
        // complex block of 2
        const P t258 = t227 + t257;
        const P t259 = t227 - t257;
        const P t260 = shuffled<1, 0>(t252);
        const P t261 = flipped<0, 1>(t260);
        // complex block of 2
        const P t262 = t256 + t261;
        const P t263 = flipped<1, 0>(t256);
        const P t264 = t260 + t263;
        // complex block of 2
        const P t265 = t258 + t262;
        io.pair(9, t265);
        const P t266 = t258 - t262;
        io.pair(33, t266);
        const P t267 = shuffled<1, 0>(t264);
        // complex block of 2
        const P t268 = t259 + t267;
        io.pair(21, t268);
        const P t269 = t259 - t267;
        io.pair(45, t269);
        // complex block of 2
        const P t270 = t7 + t79;
        const P t271 = t7 - t79;
        // complex block of 2
        const P t272 = t16 + t88;
        const P t273 = t16 - t88;
        // complex block of 2
        const P t274 = t25 + t97;
        const P t275 = t25 - t97;
        // complex block of 2
        const P t276 = t34 + t106;
        const P t277 = t34 - t106;
        // complex block of 2
        const P t278 = t43 + t115;
        const P t279 = t43 - t115;
        // complex block of 2
        const P t280 = t52 + t124;
        const P t281 = t52 - t124;
        // complex block of 2
        const P t282 = t61 + t133;
        const P t283 = t61 - t133;
        // complex block of 2
        const P t284 = t70 + t142;
        const P t285 = t70 - t142;
        // complex block of 2
        const P t286 = t270 + t278;
        const P t287 = t270 - t278;
        // complex block of 2
        const P t288 = t272 + t280;
        const P t289 = t272 - t280;
        // complex block of 2
        const P t290 = t274 + t282;
        const P t291 = t274 - t282;
        // complex block of 2
        const P t292 = t276 + t284;
        const P t293 = t276 - t284;
        // complex block of 2
        const P t294 = t286 + t290;
        const P t295 = t286 - t290;
        // complex block of 2
        const P t296 = t288 + t292;
        const P t297 = t288 - t292;
        // complex block of 2
        const P t298 = t294 + t296;
        io.pair(16, t298);
        const P t299 = t294 - t296;
        io.pair(40, t299);
        const P t300 = shuffled<1, 0>(t297);
        const P t301 = flipped<1, 0>(t300);
        // complex block of 2
        const P t302 = t295 + t301;
        io.pair(28, t302);
        const P t303 = t295 - t301;
        io.pair(4, t303);
        // complex block of 8, multiplier 3
        const P t304 = c[0] * t289;
        const P t305 = shuffled<1, 0>(t304);
        const P t306 = flipped<0, 1>(t305);
        const P t307 = t304 + t306;
        const P t308 = c[0] * t293;
        const P t309 = shuffled<1, 0>(t308);
        const P t310 = flipped<0, 1>(t309);
        const P t311 = t308 + t310;
        const P t312 = shuffled<1, 0>(t291);
        const P t313 = flipped<1, 0>(t312);
        // complex block of 2
        const P t314 = t287 + t313;
        const P t315 = t287 - t313;
        const P t316 = shuffled<1, 0>(t307);
        const P t317 = flipped<0, 1>(t316);
        // complex block of 2
        const P t318 = t311 + t317;
        const P t319 = flipped<1, 0>(t311);
        const P t320 = t316 + t319;
        // complex block of 2
        const P t321 = t314 + t318;
        io.pair(22, t321);
        const P t322 = t314 - t318;
        io.pair(46, t322);
        const P t323 = shuffled<1, 0>(t320);
        // complex block of 2
        const P t324 = t315 + t323;
        io.pair(34, t324);
        const P t325 = t315 - t323;
        io.pair(10, t325);
        // complex block of 16, multiplier 3
        const P t326 = c[3] * t273;
        const P t327 = shuffled<1, 0>(t273);
        const P t328 = P(c[4], -c[4]) * t327;
        const P t329 = t326 + t328;
        const P t330 = c[0] * t275;
        const P t331 = shuffled<1, 0>(t330);
        const P t332 = flipped<0, 1>(t331);
        const P t333 = t330 + t332;
        const P t334 = shuffled<1, 0>(t277);
        const P t335 = c[3] * t334;
        const P t336 = P(c[4], -c[4]) * t277;
        const P t337 = t335 + t336;
        const P t338 = c[4] * t281;
        const P t339 = shuffled<1, 0>(t281);
        const P t340 = P(-c[3], c[3]) * t339;
        const P t341 = t338 + t340;
        const P t342 = c[0] * t283;
        const P t343 = shuffled<1, 0>(t342);
        const P t344 = flipped<0, 1>(t343);
        const P t345 = t342 + t344;
        const P t346 = P(-c[3], c[3]) * t285;
        const P t347 = shuffled<1, 0>(t285);
        const P t348 = c[4] * t347;
        const P t349 = t346 + t348;
        const P t350 = shuffled<1, 0>(t279);
        const P t351 = flipped<1, 0>(t350);
        // complex block of 2
        const P t352 = t271 + t351;
        const P t353 = t271 - t351;
        // complex block of 2
        const P t354 = t329 + t341;
        const P t355 = t329 - t341;
        const P t356 = shuffled<1, 0>(t333);
        const P t357 = flipped<0, 1>(t356);
        // complex block of 2
        const P t358 = t345 + t357;
        const P t359 = flipped<1, 0>(t345);
        const P t360 = t356 + t359;
        const P t361 = shuffled<0, 3>(t349, t337);
        const P t362 = shuffled<0, 3>(t337, t349);
        // complex block of 2
        const P t363 = t361 - t362;
        const P t364 = t337 + t349;
        // complex block of 2
        const P t365 = t352 + t358;
        const P t366 = t352 - t358;
        // complex block of 2
        const P t367 = t354 + t363;
        const P t368 = t354 - t363;
        // complex block of 2
        const P t369 = t365 + t367;
        io.pair(19, t369);
        const P t370 = t365 - t367;
        io.pair(43, t370);
        const P t371 = shuffled<1, 0>(t368);
        const P t372 = flipped<1, 0>(t371);
        // complex block of 2
        const P t373 = t366 + t372;
        io.pair(31, t373);
        const P t374 = t366 - t372;
        io.pair(7, t374);
        // complex block of 8, multiplier 3
        const P t375 = c[0] * t355;
        const P t376 = shuffled<1, 0>(t375);
        const P t377 = flipped<0, 1>(t376);
        const P t378 = t375 + t377;
        const P t379 = P(-c[0], c[0]) * t364;
        const P t380 = shuffled<1, 0>(t379);
        const P t381 = flipped<0, 1>(t380);
        const P t382 = t379 + t381;
        const P t383 = shuffled<1, 0>(t360);
        // complex block of 2
        const P t384 = t353 + t383;
        const P t385 = t353 - t383;
        const P t386 = shuffled<1, 0>(t378);
        const P t387 = flipped<0, 1>(t386);
        // complex block of 2
        const P t388 = t382 + t387;
        const P t389 = flipped<1, 0>(t382);
        const P t390 = t386 + t389;
        // complex block of 2
        const P t391 = t384 + t388;
        io.pair(25, t391);
        const P t392 = t384 - t388;
        io.pair(1, t392);
        const P t393 = shuffled<1, 0>(t390);
        // complex block of 2
        const P t394 = t385 + t393;
        io.pair(37, t394);
        const P t395 = t385 - t393;
        io.pair(13, t395);
        // complex block of 2
        const P t396 = t8 + t80;
        const P t397 = t8 - t80;
        // complex block of 2
        const P t398 = t17 + t89;
        const P t399 = t17 - t89;
        // complex block of 2
        const P t400 = t26 + t98;
        const P t401 = t26 - t98;
        // complex block of 2
        const P t402 = t35 + t107;
        const P t403 = t35 - t107;
        // complex block of 2
        const P t404 = t44 + t116;
        const P t405 = t44 - t116;
        // complex block of 2
        const P t406 = t53 + t125;
        const P t407 = t53 - t125;
        // complex block of 2
        const P t408 = t62 + t134;
        const P t409 = t62 - t134;
        // complex block of 2
        const P t410 = t71 + t143;
        const P t411 = t71 - t143;
        // complex block of 2
        const P t412 = t396 + t404;
        const P t413 = t396 - t404;
        // complex block of 2
        const P t414 = t398 + t406;
        const P t415 = t398 - t406;
        // complex block of 2
        const P t416 = t400 + t408;
        const P t417 = t400 - t408;
        // complex block of 2
        const P t418 = t402 + t410;
        const P t419 = t402 - t410;
        // complex block of 2
        const P t420 = t412 + t416;
        const P t421 = t412 - t416;
        // complex block of 2
        const P t422 = t414 + t418;
        const P t423 = t414 - t418;
        // complex block of 2
        const P t424 = t420 + t422;
        io.pair(32, t424);
        const P t425 = t420 - t422;
        io.pair(8, t425);
        const P t426 = shuffled<1, 0>(t423);
        const P t427 = flipped<1, 0>(t426);
        // complex block of 2
        const P t428 = t421 + t427;
        io.pair(44, t428);
        const P t429 = t421 - t427;
        io.pair(20, t429);
        // complex block of 8, multiplier 3
        const P t430 = c[0] * t415;
        const P t431 = shuffled<1, 0>(t430);
        const P t432 = flipped<0, 1>(t431);
        const P t433 = t430 + t432;
        const P t434 = c[0] * t419;
        const P t435 = shuffled<1, 0>(t434);
        const P t436 = flipped<0, 1>(t435);
        const P t437 = t434 + t436;
        const P t438 = shuffled<1, 0>(t417);
        const P t439 = flipped<1, 0>(t438);
        // complex block of 2
        const P t440 = t413 + t439;
        const P t441 = t413 - t439;
        const P t442 = shuffled<1, 0>(t433);
        const P t443 = flipped<0, 1>(t442);
        // complex block of 2
        const P t444 = t437 + t443;
        const P t445 = flipped<1, 0>(t437);
        const P t446 = t442 + t445;
        // complex block of 2
        const P t447 = t440 + t444;
        io.pair(38, t447);
        const P t448 = t440 - t444;
        io.pair(14, t448);
        const P t449 = shuffled<1, 0>(t446);
        // complex block of 2
        const P t450 = t441 + t449;
        io.pair(2, t450);
        const P t451 = t441 - t449;
        io.pair(26, t451);
        // complex block of 16, multiplier 3
        const P t452 = c[3] * t399;
        const P t453 = shuffled<1, 0>(t399);
        const P t454 = P(c[4], -c[4]) * t453;
        const P t455 = t452 + t454;
        const P t456 = c[0] * t401;
        const P t457 = shuffled<1, 0>(t456);
        const P t458 = flipped<0, 1>(t457);
        const P t459 = t456 + t458;
        const P t460 = shuffled<1, 0>(t403);
        const P t461 = c[3] * t460;
        const P t462 = P(c[4], -c[4]) * t403;
        const P t463 = t461 + t462;
        const P t464 = c[4] * t407;
        const P t465 = shuffled<1, 0>(t407);
        const P t466 = P(-c[3], c[3]) * t465;
        const P t467 = t464 + t466;
        const P t468 = c[0] * t409;
        const P t469 = shuffled<1, 0>(t468);
        const P t470 = flipped<0, 1>(t469);
        const P t471 = t468 + t470;
        const P t472 = P(-c[3], c[3]) * t411;
        const P t473 = shuffled<1, 0>(t411);
        const P t474 = c[4] * t473;
        const P t475 = t472 + t474;
        const P t476 = shuffled<1, 0>(t405);
        const P t477 = flipped<1, 0>(t476);
        // complex block of 2
        const P t478 = t397 + t477;
        const P t479 = t397 - t477;
        // complex block of 2
        const P t480 = t455 + t467;
        const P t481 = t455 - t467;
        const P t482 = shuffled<1, 0>(t459);
        const P t483 = flipped<0, 1>(t482);
        // complex block of 2
        const P t484 = t471 + t483;
        const P t485 = flipped<1, 0>(t471);
        const P t486 = t482 + t485;
        const P t487 = shuffled<0, 3>(t475, t463);
        const P t488 = shuffled<0, 3>(t463, t475);
        // complex block of 2
        const P t489 = t487 - t488;
        const P t490 = t463 + t475;
        // complex block of 2
        const P t491 = t478 + t484;
        const P t492 = t478 - t484;
        // complex block of 2
        const P t493 = t480 + t489;
        const P t494 = t480 - t489;
        // complex block of 2
        const P t495 = t491 + t493;
        io.pair(35, t495);
        const P t496 = t491 - t493;
        io.pair(11, t496);
        const P t497 = shuffled<1, 0>(t494);
        const P t498 = flipped<1, 0>(t497);
        // complex block of 2
        const P t499 = t492 + t498;
        io.pair(47, t499);
        const P t500 = t492 - t498;
        io.pair(23, t500);
        // complex block of 8, multiplier 3
        const P t501 = c[0] * t481;
        const P t502 = shuffled<1, 0>(t501);
        const P t503 = flipped<0, 1>(t502);
        const P t504 = t501 + t503;
        const P t505 = P(-c[0], c[0]) * t490;
        const P t506 = shuffled<1, 0>(t505);
        const P t507 = flipped<0, 1>(t506);
        const P t508 = t505 + t507;
        const P t509 = shuffled<1, 0>(t486);
        // complex block of 2
        const P t510 = t479 + t509;
        const P t511 = t479 - t509;
        const P t512 = shuffled<1, 0>(t504);
        const P t513 = flipped<0, 1>(t512);
        // complex block of 2
        const P t514 = t508 + t513;
        const P t515 = flipped<1, 0>(t508);
        const P t516 = t512 + t515;
        // complex block of 2
        const P t517 = t510 + t514;
        io.pair(41, t517);
        const P t518 = t510 - t514;
        io.pair(17, t518);
        const P t519 = shuffled<1, 0>(t516);
        // complex block of 2
        const P t520 = t511 + t519;
        io.pair(5, t520);
        const P t521 = t511 - t519;
        io.pair(29, t521);
    }
};

}  // namespace zulg
