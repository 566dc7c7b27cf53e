// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 52.
// Complex DFT of 52 points, prime-factor, order 4, 13; one complex number to a register.
// 244 sums, 212 differences, 144 products of registers, which do the 1304 steps of the graph, those with
// `scale` included; 53 shuffles, 25 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<52> {
    static constexpr int steps = 1304;  // with `scale`
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.015496188988565054,  // c[2]: -P[1] of 13
        0.6007253775544544,  // c[3]: Q[1] of 13
        0.1741386011521359,  // c[4]: -Q[3] of 13
        0.5751407294740031,  // c[5]: -P[3] of 13
        0.3203288761978803,  // c[6]: -P[5] of 13
        0.5084294662830964,  // c[7]: Q[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.007705858903092426,  // c[9]: P[2] of 13
        0.6008758031820526,  // c[10]: -Q[2] of 13
        0.5794400189009605,  // c[11]: -P[4] of 13
        0.15924941320823024,  // c[12]: -Q[4] of 13
        0.5018097763375671,  // c[13]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[14]: sin 2 pi 1/3 times -Q[4] of 13
        0.3004626062886658,  // c[15]: beta of 13
        0.00667346956805653,  // c[16]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[17]: sin 2 pi 1/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x26 = io.pair(26);
        // complex block of 2
        const P t0 = x0 + x26;
        const P t1 = x0 - x26;
        const P x13 = io.pair(13);
        const P x39 = io.pair(39);
        // complex block of 2
        const P t2 = x13 + x39;
        const P t3 = x13 - x39;
        // complex block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P t6 = shuffled<1, 0>(t3);
        const P t7 = flipped<0, 1>(t6);
        // complex block of 2
        const P t8 = t1 + t7;
        const P t9 = t1 - t7;
        const P x4 = io.pair(4);
        const P x30 = io.pair(30);
        // complex block of 2
        const P t10 = x4 + x30;
        const P t11 = x4 - x30;
        const P x17 = io.pair(17);
        const P x43 = io.pair(43);
        // complex block of 2
        const P t12 = x17 + x43;
        const P t13 = x17 - x43;
        // complex block of 2
        const P t14 = t10 + t12;
        const P t15 = t10 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<0, 1>(t16);
        // complex block of 2
        const P t18 = t11 + t17;
        const P t19 = t11 - t17;
        const P x8 = io.pair(8);
        const P x34 = io.pair(34);
        // complex block of 2
        const P t20 = x8 + x34;
        const P t21 = x8 - x34;
        const P x21 = io.pair(21);
        const P x47 = io.pair(47);
        // complex block of 2
        const P t22 = x21 + x47;
        const P t23 = x21 - x47;
        // complex block of 2
        const P t24 = t20 + t22;
        const P t25 = t20 - t22;
        const P t26 = shuffled<1, 0>(t23);
        const P t27 = flipped<0, 1>(t26);
        // complex block of 2
        const P t28 = t21 + t27;
        const P t29 = t21 - t27;
        const P x12 = io.pair(12);
        const P x38 = io.pair(38);
        // complex block of 2
        const P t30 = x12 + x38;
        const P t31 = x12 - x38;
        const P x25 = io.pair(25);
        const P x51 = io.pair(51);
        // complex block of 2
        const P t32 = x25 + x51;
        const P t33 = x25 - x51;
        // complex block of 2
        const P t34 = t30 + t32;
        const P t35 = t30 - t32;
        const P t36 = shuffled<1, 0>(t33);
        const P t37 = flipped<0, 1>(t36);
        // complex block of 2
        const P t38 = t31 + t37;
        const P t39 = t31 - t37;
        const P x16 = io.pair(16);
        const P x42 = io.pair(42);
        // complex block of 2
        const P t40 = x16 + x42;
        const P t41 = x16 - x42;
        const P x29 = io.pair(29);
        const P x3 = io.pair(3);
        // complex block of 2
        const P t42 = x29 + x3;
        const P t43 = x29 - x3;
        // complex block of 2
        const P t44 = t40 + t42;
        const P t45 = t40 - t42;
        const P t46 = shuffled<1, 0>(t43);
        const P t47 = flipped<0, 1>(t46);
        // complex block of 2
        const P t48 = t41 + t47;
        const P t49 = t41 - t47;
        const P x20 = io.pair(20);
        const P x46 = io.pair(46);
        // complex block of 2
        const P t50 = x20 + x46;
        const P t51 = x20 - x46;
        const P x33 = io.pair(33);
        const P x7 = io.pair(7);
        // complex block of 2
        const P t52 = x33 + x7;
        const P t53 = x33 - x7;
        // complex block of 2
        const P t54 = t50 + t52;
        const P t55 = t50 - t52;
        const P t56 = shuffled<1, 0>(t53);
        const P t57 = flipped<0, 1>(t56);
        // complex block of 2
        const P t58 = t51 + t57;
        const P t59 = t51 - t57;
        const P x24 = io.pair(24);
        const P x50 = io.pair(50);
        // complex block of 2
        const P t60 = x24 + x50;
        const P t61 = x24 - x50;
        const P x37 = io.pair(37);
        const P x11 = io.pair(11);
        // complex block of 2
        const P t62 = x37 + x11;
        const P t63 = x37 - x11;
        // complex block of 2
        const P t64 = t60 + t62;
        const P t65 = t60 - t62;
        const P t66 = shuffled<1, 0>(t63);
        const P t67 = flipped<0, 1>(t66);
        // complex block of 2
        const P t68 = t61 + t67;
        const P t69 = t61 - t67;
        const P x28 = io.pair(28);
        const P x2 = io.pair(2);
        // complex block of 2
        const P t70 = x28 + x2;
        const P t71 = x28 - x2;
        const P x41 = io.pair(41);
        const P x15 = io.pair(15);
        // complex block of 2
        const P t72 = x41 + x15;
        const P t73 = x41 - x15;
        // complex block of 2
        const P t74 = t70 + t72;
        const P t75 = t70 - t72;
        const P t76 = shuffled<1, 0>(t73);
        const P t77 = flipped<0, 1>(t76);
        // complex block of 2
        const P t78 = t71 + t77;
        const P t79 = t71 - t77;
        const P x32 = io.pair(32);
        const P x6 = io.pair(6);
        // complex block of 2
        const P t80 = x32 + x6;
        const P t81 = x32 - x6;
        const P x45 = io.pair(45);
        const P x19 = io.pair(19);
        // complex block of 2
        const P t82 = x45 + x19;
        const P t83 = x45 - x19;
        // complex block of 2
        const P t84 = t80 + t82;
        const P t85 = t80 - t82;
        const P t86 = shuffled<1, 0>(t83);
        const P t87 = flipped<0, 1>(t86);
        // complex block of 2
        const P t88 = t81 + t87;
        const P t89 = t81 - t87;
        const P x36 = io.pair(36);
        const P x10 = io.pair(10);
        // complex block of 2
        const P t90 = x36 + x10;
        const P t91 = x36 - x10;
        const P x49 = io.pair(49);
        const P x23 = io.pair(23);
        // complex block of 2
        const P t92 = x49 + x23;
        const P t93 = x49 - x23;
        // complex block of 2
        const P t94 = t90 + t92;
        const P t95 = t90 - t92;
        const P t96 = shuffled<1, 0>(t93);
        const P t97 = flipped<0, 1>(t96);
        // complex block of 2
        const P t98 = t91 + t97;
        const P t99 = t91 - t97;
        const P x40 = io.pair(40);
        const P x14 = io.pair(14);
        // complex block of 2
        const P t100 = x40 + x14;
        const P t101 = x40 - x14;
        const P x1 = io.pair(1);
        const P x27 = io.pair(27);
        // complex block of 2
        const P t102 = x1 + x27;
        const P t103 = x1 - x27;
        // complex block of 2
        const P t104 = t100 + t102;
        const P t105 = t100 - t102;
        const P t106 = shuffled<1, 0>(t103);
        const P t107 = flipped<0, 1>(t106);
        // complex block of 2
        const P t108 = t101 + t107;
        const P t109 = t101 - t107;
        const P x44 = io.pair(44);
        const P x18 = io.pair(18);
        // complex block of 2
        const P t110 = x44 + x18;
        const P t111 = x44 - x18;
        const P x5 = io.pair(5);
        const P x31 = io.pair(31);
        // complex block of 2
        const P t112 = x5 + x31;
        const P t113 = x5 - x31;
        // complex block of 2
        const P t114 = t110 + t112;
        const P t115 = t110 - t112;
        const P t116 = shuffled<1, 0>(t113);
        const P t117 = flipped<0, 1>(t116);
        // complex block of 2
        const P t118 = t111 + t117;
        const P t119 = t111 - t117;
        const P x48 = io.pair(48);
        const P x22 = io.pair(22);
        // complex block of 2
        const P t120 = x48 + x22;
        const P t121 = x48 - x22;
        const P x9 = io.pair(9);
        const P x35 = io.pair(35);
        // complex block of 2
        const P t122 = x9 + x35;
        const P t123 = x9 - x35;
        // complex block of 2
        const P t124 = t120 + t122;
        const P t125 = t120 - t122;
        const P t126 = shuffled<1, 0>(t123);
        const P t127 = flipped<0, 1>(t126);
        // complex block of 2
        const P t128 = t121 + t127;
        const P t129 = t121 - t127;
        // real block of 2
        const P t130 = t14 + t124;
        const P t131 = t14 - t124;
        // real block of 2
        const P t132 = t84 + t54;
        const P t133 = t84 - t54;
        // real block of 2
        const P t134 = t130 + t132;
        const P t135 = t130 - t132;
        // real block of 2
        const P t136 = t34 + t104;
        const P t137 = t34 - t104;
        // real block of 2
        const P t138 = t114 + t24;
        const P t139 = t114 - t24;
        // real block of 2
        const P t140 = t136 + t138;
        const P t141 = t136 - t138;
        // real block of 2
        const P t142 = t94 + t44;
        const P t143 = t94 - t44;
        // real block of 2
        const P t144 = t74 + t64;
        const P t145 = t74 - t64;
        // real block of 2
        const P t146 = t142 + t144;
        const P t147 = t142 - t144;
        // real block of 3
        const P t148 = t140 + t146;
        const P t149 = t140 - t146;
        const P t150 = t148 + t134;
        const P t151 = c[0] * t148;
        const P t152 = t134 - t151;
        // complex block of 3
        const P t153 = t137 + t143;
        const P t154 = t139 + t145;
        const P t155 = t137 - t143;
        const P t156 = t139 - t145;
        const P t157 = t153 + t131;
        const P t158 = t154 + t133;
        const P t159 = c[0] * t153;
        const P t160 = t131 - t159;
        const P t161 = c[0] * t154;
        const P t162 = t133 - t161;
        const P t163 = c[1] * t156;
        const P t164 = t160 + t163;
        const P t165 = c[1] * t155;
        const P t166 = t162 - t165;
        const P t167 = t160 - t163;
        const P t168 = t162 + t165;
        // real block of 3
        const P t169 = t141 + t147;
        const P t170 = t141 - t147;
        const P t171 = t169 + t135;
        const P t172 = c[0] * t169;
        const P t173 = t135 - t172;
        // complex block of 13, multiplier 4
        const P t174 = t4 + t150;
        io.pair(0, t174);
        const P t175 = c[8] * t150;
        const P t176 = t4 - t175;
        const P t177 = shuffled<1, 0>(t168);
        const P t178 = P(-c[2], c[2]) * t177;
        const P t179 = shuffled<1, 0>(t167);
        const P t180 = P(c[3], -c[3]) * t179;
        const P t181 = t178 + t180;
        const P t182 = c[3] * t177;
        const P t183 = c[2] * t179;
        const P t184 = t182 + t183;
        const P t185 = c[9] * t173;
        // real block of 3
        const P t186 = c[1] * t170;
        // complex block of 13, multiplier 4
        const P t187 = c[10] * t186;
        const P t188 = t185 + t187;
        const P t189 = shuffled<1, 0>(t157);
        const P t190 = P(-c[4], c[4]) * t189;
        const P t191 = shuffled<1, 0>(t158);
        const P t192 = P(c[5], -c[5]) * t191;
        const P t193 = t190 + t192;
        const P t194 = c[4] * t191;
        const P t195 = c[5] * t189;
        const P t196 = t194 + t195;
        const P t197 = c[11] * t152;
        // real block of 3
        const P t198 = c[1] * t149;
        // complex block of 13, multiplier 4
        const P t199 = c[12] * t198;
        const P t200 = t197 + t199;
        const P t201 = shuffled<1, 0>(t166);
        const P t202 = P(-c[6], c[6]) * t201;
        const P t203 = shuffled<1, 0>(t164);
        const P t204 = P(c[7], -c[7]) * t203;
        const P t205 = t202 + t204;
        const P t206 = c[7] * t201;
        const P t207 = c[6] * t203;
        const P t208 = t206 + t207;
        // spectrum block of 3
        const P t209 = t176 - t200;
        const P t210 = c[0] * t200;
        const P t211 = t210 + t176;
        const P t212 = c[13] * t198;
        const P t213 = c[14] * t152;
        const P t214 = t212 - t213;
        const P t215 = t211 - t214;
        const P t216 = t211 + t214;
        // complex block of 3
        const P t217 = t208 + t184;
        const P t218 = t205 + t181;
        const P t219 = shuffled<0, 3>(t208, t184);
        const P t220 = shuffled<0, 3>(t184, t208);
        const P t221 = t219 - t220;
        const P t222 = t205 - t181;
        const P t223 = shuffled<0, 3>(t217, t196);
        const P t224 = shuffled<0, 3>(t196, t217);
        const P t225 = t223 - t224;
        const P t226 = t218 + t193;
        const P t227 = c[0] * t217;
        const P t228 = t227 + t196;
        const P t229 = c[0] * t218;
        const P t230 = t193 - t229;
        const P t231 = flipped<1, 0>(t228);
        const P t232 = c[1] * t222;
        const P t233 = t231 + t232;
        const P t234 = c[1] * t221;
        const P t235 = t230 - t234;
        const P t236 = flipped<0, 1>(t232);
        const P t237 = t228 + t236;
        const P t238 = t230 + t234;
        // complex block of 13, multiplier 4
        const P t239 = c[15] * t171;
        // spectrum block of 3
        const P t240 = t188 + t239;
        const P t241 = c[0] * t188;
        const P t242 = t239 - t241;
        const P t243 = c[16] * t186;
        const P t244 = c[17] * t173;
        const P t245 = t243 - t244;
        const P t246 = t242 + t245;
        const P t247 = t242 - t245;
        // spectrum block of 2
        const P t248 = t209 + t240;
        const P t249 = t209 - t240;
        // spectrum block of 2
        const P t250 = t248 + t226;
        io.pair(4, t250);
        const P t251 = t248 - t226;
        io.pair(48, t251);
        // spectrum block of 2
        const P t252 = t249 + t225;
        io.pair(20, t252);
        const P t253 = t249 - t225;
        io.pair(32, t253);
        // spectrum block of 2
        const P t254 = t215 + t246;
        const P t255 = t215 - t246;
        // spectrum block of 2
        const P t256 = t254 + t235;
        io.pair(36, t256);
        const P t257 = t254 - t235;
        io.pair(16, t257);
        // spectrum block of 2
        const P t258 = t255 + t233;
        io.pair(24, t258);
        const P t259 = t255 - t233;
        io.pair(28, t259);
        // spectrum block of 2
        const P t260 = t216 + t247;
        const P t261 = t216 - t247;
        // spectrum block of 2
        const P t262 = t260 + t238;
        io.pair(12, t262);
        const P t263 = t260 - t238;
        io.pair(40, t263);
        const P t264 = flipped<1, 0>(t237);
        // spectrum block of 2
        const P t265 = t261 + t264;
        io.pair(8, t265);
        const P t266 = t261 - t264;
        io.pair(44, t266);
        // real block of 2
        const P t267 = t18 + t128;
        const P t268 = t18 - t128;
        // real block of 2
        const P t269 = t88 + t58;
        const P t270 = t88 - t58;
        // real block of 2
        const P t271 = t267 + t269;
        const P t272 = t267 - t269;
        // real block of 2
        const P t273 = t38 + t108;
        const P t274 = t38 - t108;
        // real block of 2
        const P t275 = t118 + t28;
        const P t276 = t118 - t28;
        // real block of 2
        const P t277 = t273 + t275;
        const P t278 = t273 - t275;
        // real block of 2
        const P t279 = t98 + t48;
        const P t280 = t98 - t48;
        // real block of 2
        const P t281 = t78 + t68;
        const P t282 = t78 - t68;
        // real block of 2
        const P t283 = t279 + t281;
        const P t284 = t279 - t281;
        // real block of 3
        const P t285 = t277 + t283;
        const P t286 = t277 - t283;
        const P t287 = t285 + t271;
        const P t288 = c[0] * t285;
        const P t289 = t271 - t288;
        // complex block of 3
        const P t290 = t274 + t280;
        const P t291 = t276 + t282;
        const P t292 = t274 - t280;
        const P t293 = t276 - t282;
        const P t294 = t290 + t268;
        const P t295 = t291 + t270;
        const P t296 = c[0] * t290;
        const P t297 = t268 - t296;
        const P t298 = c[0] * t291;
        const P t299 = t270 - t298;
        const P t300 = c[1] * t293;
        const P t301 = t297 + t300;
        const P t302 = c[1] * t292;
        const P t303 = t299 - t302;
        const P t304 = t297 - t300;
        const P t305 = t299 + t302;
        // real block of 3
        const P t306 = t278 + t284;
        const P t307 = t278 - t284;
        const P t308 = t306 + t272;
        const P t309 = c[0] * t306;
        const P t310 = t272 - t309;
        // complex block of 13, multiplier 4
        const P t311 = t8 + t287;
        io.pair(13, t311);
        const P t312 = c[8] * t287;
        const P t313 = t8 - t312;
        const P t314 = shuffled<1, 0>(t305);
        const P t315 = P(-c[2], c[2]) * t314;
        const P t316 = shuffled<1, 0>(t304);
        const P t317 = P(c[3], -c[3]) * t316;
        const P t318 = t315 + t317;
        const P t319 = c[3] * t314;
        const P t320 = c[2] * t316;
        const P t321 = t319 + t320;
        const P t322 = c[9] * t310;
        // real block of 3
        const P t323 = c[1] * t307;
        // complex block of 13, multiplier 4
        const P t324 = c[10] * t323;
        const P t325 = t322 + t324;
        const P t326 = shuffled<1, 0>(t294);
        const P t327 = P(-c[4], c[4]) * t326;
        const P t328 = shuffled<1, 0>(t295);
        const P t329 = P(c[5], -c[5]) * t328;
        const P t330 = t327 + t329;
        const P t331 = c[4] * t328;
        const P t332 = c[5] * t326;
        const P t333 = t331 + t332;
        const P t334 = c[11] * t289;
        // real block of 3
        const P t335 = c[1] * t286;
        // complex block of 13, multiplier 4
        const P t336 = c[12] * t335;
        const P t337 = t334 + t336;
        const P t338 = shuffled<1, 0>(t303);
        const P t339 = P(-c[6], c[6]) * t338;
        const P t340 = shuffled<1, 0>(t301);
        const P t341 = P(c[7], -c[7]) * t340;
        const P t342 = t339 + t341;
        const P t343 = c[7] * t338;
        const P t344 = c[6] * t340;
        const P t345 = t343 + t344;
        // spectrum block of 3
        const P t346 = t313 - t337;
        const P t347 = c[0] * t337;
        const P t348 = t347 + t313;
        const P t349 = c[13] * t335;
        const P t350 = c[14] * t289;
        const P t351 = t349 - t350;
        const P t352 = t348 - t351;
        const P t353 = t348 + t351;
        // complex block of 3
        const P t354 = t345 + t321;
        const P t355 = t342 + t318;
        const P t356 = shuffled<0, 3>(t345, t321);
        const P t357 = shuffled<0, 3>(t321, t345);
        const P t358 = t356 - t357;
        const P t359 = t342 - t318;
        const P t360 = shuffled<0, 3>(t354, t333);
        const P t361 = shuffled<0, 3>(t333, t354);
        const P t362 = t360 - t361;
        const P t363 = t355 + t330;
        const P t364 = c[0] * t354;
        const P t365 = t364 + t333;
        const P t366 = c[0] * t355;
        const P t367 = t330 - t366;
        const P t368 = flipped<1, 0>(t365);
        const P t369 = c[1] * t359;
        const P t370 = t368 + t369;
        const P t371 = c[1] * t358;
        const P t372 = t367 - t371;
        const P t373 = flipped<0, 1>(t369);
        const P t374 = t365 + t373;
        const P t375 = t367 + t371;
        // complex block of 13, multiplier 4
        const P t376 = c[15] * t308;
        // spectrum block of 3
        const P t377 = t325 + t376;
        const P t378 = c[0] * t325;
        const P t379 = t376 - t378;
        const P t380 = c[16] * t323;
        const P t381 = c[17] * t310;
        const P t382 = t380 - t381;
        const P t383 = t379 + t382;
        const P t384 = t379 - t382;
        // spectrum block of 2
        const P t385 = t346 + t377;
        const P t386 = t346 - t377;
        // spectrum block of 2
        const P t387 = t385 + t363;
        io.pair(17, t387);
        const P t388 = t385 - t363;
        io.pair(9, t388);
        // spectrum block of 2
        const P t389 = t386 + t362;
        io.pair(33, t389);
        const P t390 = t386 - t362;
        io.pair(45, t390);
        // spectrum block of 2
        const P t391 = t352 + t383;
        const P t392 = t352 - t383;
        // spectrum block of 2
        const P t393 = t391 + t372;
        io.pair(49, t393);
        const P t394 = t391 - t372;
        io.pair(29, t394);
        // spectrum block of 2
        const P t395 = t392 + t370;
        io.pair(37, t395);
        const P t396 = t392 - t370;
        io.pair(41, t396);
        // spectrum block of 2
        const P t397 = t353 + t384;
        const P t398 = t353 - t384;
        // spectrum block of 2
        const P t399 = t397 + t375;
        io.pair(25, t399);
        const P t400 = t397 - t375;
        io.pair(1, t400);
        const P t401 = flipped<1, 0>(t374);
        // spectrum block of 2
        const P t402 = t398 + t401;
        io.pair(21, t402);
        const P t403 = t398 - t401;
        io.pair(5, t403);
        // real block of 2
        const P t404 = t15 + t125;
        const P t405 = t15 - t125;
        // real block of 2
        const P t406 = t85 + t55;
        const P t407 = t85 - t55;
        // real block of 2
        const P t408 = t404 + t406;
        const P t409 = t404 - t406;
        // real block of 2
        const P t410 = t35 + t105;
        const P t411 = t35 - t105;
        // real block of 2
        const P t412 = t115 + t25;
        const P t413 = t115 - t25;
        // real block of 2
        const P t414 = t410 + t412;
        const P t415 = t410 - t412;
        // real block of 2
        const P t416 = t95 + t45;
        const P t417 = t95 - t45;
        // real block of 2
        const P t418 = t75 + t65;
        const P t419 = t75 - t65;
        // real block of 2
        const P t420 = t416 + t418;
        const P t421 = t416 - t418;
        // real block of 3
        const P t422 = t414 + t420;
        const P t423 = t414 - t420;
        const P t424 = t422 + t408;
        const P t425 = c[0] * t422;
        const P t426 = t408 - t425;
        // complex block of 3
        const P t427 = t411 + t417;
        const P t428 = t413 + t419;
        const P t429 = t411 - t417;
        const P t430 = t413 - t419;
        const P t431 = t427 + t405;
        const P t432 = t428 + t407;
        const P t433 = c[0] * t427;
        const P t434 = t405 - t433;
        const P t435 = c[0] * t428;
        const P t436 = t407 - t435;
        const P t437 = c[1] * t430;
        const P t438 = t434 + t437;
        const P t439 = c[1] * t429;
        const P t440 = t436 - t439;
        const P t441 = t434 - t437;
        const P t442 = t436 + t439;
        // real block of 3
        const P t443 = t415 + t421;
        const P t444 = t415 - t421;
        const P t445 = t443 + t409;
        const P t446 = c[0] * t443;
        const P t447 = t409 - t446;
        // complex block of 13, multiplier 4
        const P t448 = t5 + t424;
        io.pair(26, t448);
        const P t449 = c[8] * t424;
        const P t450 = t5 - t449;
        const P t451 = shuffled<1, 0>(t442);
        const P t452 = P(-c[2], c[2]) * t451;
        const P t453 = shuffled<1, 0>(t441);
        const P t454 = P(c[3], -c[3]) * t453;
        const P t455 = t452 + t454;
        const P t456 = c[3] * t451;
        const P t457 = c[2] * t453;
        const P t458 = t456 + t457;
        const P t459 = c[9] * t447;
        // real block of 3
        const P t460 = c[1] * t444;
        // complex block of 13, multiplier 4
        const P t461 = c[10] * t460;
        const P t462 = t459 + t461;
        const P t463 = shuffled<1, 0>(t431);
        const P t464 = P(-c[4], c[4]) * t463;
        const P t465 = shuffled<1, 0>(t432);
        const P t466 = P(c[5], -c[5]) * t465;
        const P t467 = t464 + t466;
        const P t468 = c[4] * t465;
        const P t469 = c[5] * t463;
        const P t470 = t468 + t469;
        const P t471 = c[11] * t426;
        // real block of 3
        const P t472 = c[1] * t423;
        // complex block of 13, multiplier 4
        const P t473 = c[12] * t472;
        const P t474 = t471 + t473;
        const P t475 = shuffled<1, 0>(t440);
        const P t476 = P(-c[6], c[6]) * t475;
        const P t477 = shuffled<1, 0>(t438);
        const P t478 = P(c[7], -c[7]) * t477;
        const P t479 = t476 + t478;
        const P t480 = c[7] * t475;
        const P t481 = c[6] * t477;
        const P t482 = t480 + t481;
        // spectrum block of 3
        const P t483 = t450 - t474;
        const P t484 = c[0] * t474;
        const P t485 = t484 + t450;
        const P t486 = c[13] * t472;
        const P t487 = c[14] * t426;
        const P t488 = t486 - t487;
        const P t489 = t485 - t488;
        const P t490 = t485 + t488;
        // complex block of 3
        const P t491 = t482 + t458;
        const P t492 = t479 + t455;
        const P t493 = shuffled<0, 3>(t482, t458);
        const P t494 = shuffled<0, 3>(t458, t482);
        const P t495 = t493 - t494;
        const P t496 = t479 - t455;
        const P t497 = shuffled<0, 3>(t491, t470);
        const P t498 = shuffled<0, 3>(t470, t491);
        const P t499 = t497 - t498;
        const P t500 = t492 + t467;
        const P t501 = c[0] * t491;
        const P t502 = t501 + t470;
        const P t503 = c[0] * t492;
        const P t504 = t467 - t503;
        const P t505 = flipped<1, 0>(t502);
        const P t506 = c[1] * t496;
        const P t507 = t505 + t506;
        const P t508 = c[1] * t495;
        const P t509 = t504 - t508;
        const P t510 = flipped<0, 1>(t506);
        const P t511 = t502 + t510;
        const P t512 = t504 + t508;
        // complex block of 13, multiplier 4
        const P t513 = c[15] * t445;
        // spectrum block of 3
        const P t514 = t462 + t513;
        const P t515 = c[0] * t462;
        const P t516 = t513 - t515;
        const P t517 = c[16] * t460;
        const P t518 = c[17] * t447;
        const P t519 = t517 - t518;
        const P t520 = t516 + t519;
        const P t521 = t516 - t519;
        // spectrum block of 2
        const P t522 = t483 + t514;
        const P t523 = t483 - t514;
        // spectrum block of 2
        const P t524 = t522 + t500;
        io.pair(30, t524);
        const P t525 = t522 - t500;
        io.pair(22, t525);
        // spectrum block of 2
        const P t526 = t523 + t499;
        io.pair(46, t526);
        const P t527 = t523 - t499;
        io.pair(6, t527);
        // spectrum block of 2
        const P t528 = t489 + t520;
        const P t529 = t489 - t520;
        // spectrum block of 2
        const P t530 = t528 + t509;
        io.pair(10, t530);
        const P t531 = t528 - t509;
        io.pair(42, t531);
        // spectrum block of 2
        const P t532 = t529 + t507;
        io.pair(50, t532);
        const P t533 = t529 - t507;
        io.pair(2, t533);
        // spectrum block of 2
        const P t534 = t490 + t521;
        const P t535 = t490 - t521;
        // spectrum block of 2
        const P t536 = t534 + t512;
        io.pair(38, t536);
        const P t537 = t534 - t512;
        io.pair(14, t537);
        const P t538 = flipped<1, 0>(t511);
        // spectrum block of 2
        const P t539 = t535 + t538;
        io.pair(34, t539);
        const P t540 = t535 - t538;
        io.pair(18, t540);
        // real block of 2
        const P t541 = t19 + t129;
        const P t542 = t19 - t129;
        // real block of 2
        const P t543 = t89 + t59;
        const P t544 = t89 - t59;
        // real block of 2
        const P t545 = t541 + t543;
        const P t546 = t541 - t543;
        // real block of 2
        const P t547 = t39 + t109;
        const P t548 = t39 - t109;
        // real block of 2
        const P t549 = t119 + t29;
        const P t550 = t119 - t29;
        // real block of 2
        const P t551 = t547 + t549;
        const P t552 = t547 - t549;
        // real block of 2
        const P t553 = t99 + t49;
        const P t554 = t99 - t49;
        // real block of 2
        const P t555 = t79 + t69;
        const P t556 = t79 - t69;
        // real block of 2
        const P t557 = t553 + t555;
        const P t558 = t553 - t555;
        // real block of 3
        const P t559 = t551 + t557;
        const P t560 = t551 - t557;
        const P t561 = t559 + t545;
        const P t562 = c[0] * t559;
        const P t563 = t545 - t562;
        // complex block of 3
        const P t564 = t548 + t554;
        const P t565 = t550 + t556;
        const P t566 = t548 - t554;
        const P t567 = t550 - t556;
        const P t568 = t564 + t542;
        const P t569 = t565 + t544;
        const P t570 = c[0] * t564;
        const P t571 = t542 - t570;
        const P t572 = c[0] * t565;
        const P t573 = t544 - t572;
        const P t574 = c[1] * t567;
        const P t575 = t571 + t574;
        const P t576 = c[1] * t566;
        const P t577 = t573 - t576;
        const P t578 = t571 - t574;
        const P t579 = t573 + t576;
        // real block of 3
        const P t580 = t552 + t558;
        const P t581 = t552 - t558;
        const P t582 = t580 + t546;
        const P t583 = c[0] * t580;
        const P t584 = t546 - t583;
        // complex block of 13, multiplier 4
        const P t585 = t9 + t561;
        io.pair(39, t585);
        const P t586 = c[8] * t561;
        const P t587 = t9 - t586;
        const P t588 = shuffled<1, 0>(t579);
        const P t589 = P(-c[2], c[2]) * t588;
        const P t590 = shuffled<1, 0>(t578);
        const P t591 = P(c[3], -c[3]) * t590;
        const P t592 = t589 + t591;
        const P t593 = c[3] * t588;
        const P t594 = c[2] * t590;
        const P t595 = t593 + t594;
        const P t596 = c[9] * t584;
        // real block of 3
        const P t597 = c[1] * t581;
        // complex block of 13, multiplier 4
        const P t598 = c[10] * t597;
        const P t599 = t596 + t598;
        const P t600 = shuffled<1, 0>(t568);
        const P t601 = P(-c[4], c[4]) * t600;
        const P t602 = shuffled<1, 0>(t569);
        const P t603 = P(c[5], -c[5]) * t602;
        const P t604 = t601 + t603;
        const P t605 = c[4] * t602;
        const P t606 = c[5] * t600;
        const P t607 = t605 + t606;
        const P t608 = c[11] * t563;
        // real block of 3
        const P t609 = c[1] * t560;
        // complex block of 13, multiplier 4
        const P t610 = c[12] * t609;
        const P t611 = t608 + t610;
        const P t612 = shuffled<1, 0>(t577);
        const P t613 = P(-c[6], c[6]) * t612;
        const P t614 = shuffled<1, 0>(t575);
        const P t615 = P(c[7], -c[7]) * t614;
        const P t616 = t613 + t615;
        const P t617 = c[7] * t612;
        const P t618 = c[6] * t614;
        const P t619 = t617 + t618;
        // spectrum block of 3
        const P t620 = t587 - t611;
        const P t621 = c[0] * t611;
        const P t622 = t621 + t587;
        const P t623 = c[13] * t609;
        const P t624 = c[14] * t563;
        const P t625 = t623 - t624;
        const P t626 = t622 - t625;
        const P t627 = t622 + t625;
        // complex block of 3
        const P t628 = t619 + t595;
        const P t629 = t616 + t592;
        const P t630 = shuffled<0, 3>(t619, t595);
        const P t631 = shuffled<0, 3>(t595, t619);
        const P t632 = t630 - t631;
        const P t633 = t616 - t592;
        const P t634 = shuffled<0, 3>(t628, t607);
        const P t635 = shuffled<0, 3>(t607, t628);
        const P t636 = t634 - t635;
        const P t637 = t629 + t604;
        const P t638 = c[0] * t628;
        const P t639 = t638 + t607;
        const P t640 = c[0] * t629;
        const P t641 = t604 - t640;
        const P t642 = flipped<1, 0>(t639);
        const P t643 = c[1] * t633;
        const P t644 = t642 + t643;
        const P t645 = c[1] * t632;
        const P t646 = t641 - t645;
        const P t647 = flipped<0, 1>(t643);
        const P t648 = t639 + t647;
        const P t649 = t641 + t645;
        // complex block of 13, multiplier 4
        const P t650 = c[15] * t582;
        // spectrum block of 3
        const P t651 = t599 + t650;
        const P t652 = c[0] * t599;
        const P t653 = t650 - t652;
        const P t654 = c[16] * t597;
        const P t655 = c[17] * t584;
        const P t656 = t654 - t655;
        const P t657 = t653 + t656;
        const P t658 = t653 - t656;
        // spectrum block of 2
        const P t659 = t620 + t651;
        const P t660 = t620 - t651;
        // spectrum block of 2
        const P t661 = t659 + t637;
        io.pair(43, t661);
        const P t662 = t659 - t637;
        io.pair(35, t662);
        // spectrum block of 2
        const P t663 = t660 + t636;
        io.pair(7, t663);
        const P t664 = t660 - t636;
        io.pair(19, t664);
        // spectrum block of 2
        const P t665 = t626 + t657;
        const P t666 = t626 - t657;
        // spectrum block of 2
        const P t667 = t665 + t646;
        io.pair(23, t667);
        const P t668 = t665 - t646;
        io.pair(3, t668);
        // spectrum block of 2
        const P t669 = t666 + t644;
        io.pair(11, t669);
        const P t670 = t666 - t644;
        io.pair(15, t670);
        // spectrum block of 2
        const P t671 = t627 + t658;
        const P t672 = t627 - t658;
        // spectrum block of 2
        const P t673 = t671 + t649;
        io.pair(51, t673);
        const P t674 = t671 - t649;
        io.pair(27, t674);
        const P t675 = flipped<1, 0>(t648);
        // spectrum block of 2
        const P t676 = t672 + t675;
        io.pair(47, t676);
        const P t677 = t672 - t675;
        io.pair(31, t677);
    }
};

}  // namespace zulg
