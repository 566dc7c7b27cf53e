// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 64.
// Complex DFT of 64 points, twiddled, inner 8, outer 8; one complex number to a register.
// 273 sums, 191 differences, 124 products of registers, which do the 1304 steps of the graph, those with
// `scale` included; 149 shuffles, 116 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<64> {
    static constexpr int steps = 1304;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 4/64
        0.3826834323650898,  // c[2]: sin 2 pi 4/64
        0.9807852804032304,  // c[3]: cos 2 pi 2/64
        0.19509032201612828,  // c[4]: sin 2 pi 2/64
        0.8314696123025452,  // c[5]: cos 2 pi 6/64
        0.5555702330196022,  // c[6]: sin 2 pi 6/64
        0.9951847266721969,  // c[7]: cos 2 pi 1/64
        0.0980171403295606,  // c[8]: sin 2 pi 1/64
        0.9569403357322088,  // c[9]: cos 2 pi 3/64
        0.2902846772544624,  // c[10]: sin 2 pi 3/64
        0.881921264348355,  // c[11]: cos 2 pi 5/64
        0.47139673682599764,  // c[12]: sin 2 pi 5/64
        0.773010453362737,  // c[13]: cos 2 pi 7/64
        0.6343932841636455,  // c[14]: sin 2 pi 7/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x32 = io.pair(32);
        // complex block of 2
        const P t0 = x0 + x32;
        const P t1 = x0 - x32;
        const P x8 = io.pair(8);
        const P x40 = io.pair(40);
        // complex block of 2
        const P t2 = x8 + x40;
        const P t3 = x8 - x40;
        const P x16 = io.pair(16);
        const P x48 = io.pair(48);
        // complex block of 2
        const P t4 = x16 + x48;
        const P t5 = x16 - x48;
        const P x24 = io.pair(24);
        const P x56 = io.pair(56);
        // complex block of 2
        const P t6 = x24 + x56;
        const P t7 = x24 - x56;
        // complex block of 2
        const P t8 = t0 + t4;
        const P t9 = t0 - t4;
        // complex block of 2
        const P t10 = t2 + t6;
        const P t11 = t2 - t6;
        // complex block of 2
        const P t12 = t8 + t10;
        const P t13 = t8 - t10;
        const P t14 = shuffled<1, 0>(t11);
        const P t15 = flipped<0, 1>(t14);
        // complex block of 2
        const P t16 = t9 + t15;
        const P t17 = t9 - t15;
        // complex block of 8
        const P t18 = c[0] * t3;
        const P t19 = shuffled<1, 0>(t18);
        const P t20 = flipped<0, 1>(t19);
        const P t21 = t18 + t20;
        const P t22 = c[0] * t7;
        const P t23 = shuffled<1, 0>(t22);
        const P t24 = flipped<0, 1>(t23);
        const P t25 = t22 + t24;
        const P t26 = shuffled<1, 0>(t5);
        const P t27 = flipped<0, 1>(t26);
        // complex block of 2
        const P t28 = t1 + t27;
        const P t29 = t1 - t27;
        const P t30 = shuffled<1, 0>(t25);
        const P t31 = flipped<0, 1>(t30);
        // complex block of 2
        const P t32 = t21 + t31;
        const P t33 = t21 - t31;
        // complex block of 2
        const P t34 = t28 + t32;
        const P t35 = t28 - t32;
        const P t36 = shuffled<1, 0>(t33);
        const P t37 = flipped<0, 1>(t36);
        // complex block of 2
        const P t38 = t29 + t37;
        const P t39 = t29 - t37;
        const P x1 = io.pair(1);
        const P x33 = io.pair(33);
        // complex block of 2
        const P t40 = x1 + x33;
        const P t41 = x1 - x33;
        const P x9 = io.pair(9);
        const P x41 = io.pair(41);
        // complex block of 2
        const P t42 = x9 + x41;
        const P t43 = x9 - x41;
        const P x17 = io.pair(17);
        const P x49 = io.pair(49);
        // complex block of 2
        const P t44 = x17 + x49;
        const P t45 = x17 - x49;
        const P x25 = io.pair(25);
        const P x57 = io.pair(57);
        // complex block of 2
        const P t46 = x25 + x57;
        const P t47 = x25 - x57;
        // complex block of 2
        const P t48 = t40 + t44;
        const P t49 = t40 - t44;
        // complex block of 2
        const P t50 = t42 + t46;
        const P t51 = t42 - t46;
        // complex block of 2
        const P t52 = t48 + t50;
        const P t53 = t48 - t50;
        const P t54 = shuffled<1, 0>(t51);
        const P t55 = flipped<0, 1>(t54);
        // complex block of 2
        const P t56 = t49 + t55;
        const P t57 = t49 - t55;
        // complex block of 8
        const P t58 = c[0] * t43;
        const P t59 = shuffled<1, 0>(t58);
        const P t60 = flipped<0, 1>(t59);
        const P t61 = t58 + t60;
        const P t62 = c[0] * t47;
        const P t63 = shuffled<1, 0>(t62);
        const P t64 = flipped<0, 1>(t63);
        const P t65 = t62 + t64;
        const P t66 = shuffled<1, 0>(t45);
        const P t67 = flipped<0, 1>(t66);
        // complex block of 2
        const P t68 = t41 + t67;
        const P t69 = t41 - t67;
        const P t70 = shuffled<1, 0>(t65);
        const P t71 = flipped<0, 1>(t70);
        // complex block of 2
        const P t72 = t61 + t71;
        const P t73 = t61 - t71;
        // complex block of 2
        const P t74 = t68 + t72;
        const P t75 = t68 - t72;
        const P t76 = shuffled<1, 0>(t73);
        const P t77 = flipped<0, 1>(t76);
        // complex block of 2
        const P t78 = t69 + t77;
        const P t79 = t69 - t77;
        const P x2 = io.pair(2);
        const P x34 = io.pair(34);
        // complex block of 2
        const P t80 = x2 + x34;
        const P t81 = x2 - x34;
        const P x10 = io.pair(10);
        const P x42 = io.pair(42);
        // complex block of 2
        const P t82 = x10 + x42;
        const P t83 = x10 - x42;
        const P x18 = io.pair(18);
        const P x50 = io.pair(50);
        // complex block of 2
        const P t84 = x18 + x50;
        const P t85 = x18 - x50;
        const P x26 = io.pair(26);
        const P x58 = io.pair(58);
        // complex block of 2
        const P t86 = x26 + x58;
        const P t87 = x26 - x58;
        // complex block of 2
        const P t88 = t80 + t84;
        const P t89 = t80 - t84;
        // complex block of 2
        const P t90 = t82 + t86;
        const P t91 = t82 - t86;
        // complex block of 2
        const P t92 = t88 + t90;
        const P t93 = t88 - t90;
        const P t94 = shuffled<1, 0>(t91);
        const P t95 = flipped<0, 1>(t94);
        // complex block of 2
        const P t96 = t89 + t95;
        const P t97 = t89 - t95;
        // complex block of 8
        const P t98 = c[0] * t83;
        const P t99 = shuffled<1, 0>(t98);
        const P t100 = flipped<0, 1>(t99);
        const P t101 = t98 + t100;
        const P t102 = c[0] * t87;
        const P t103 = shuffled<1, 0>(t102);
        const P t104 = flipped<0, 1>(t103);
        const P t105 = t102 + t104;
        const P t106 = shuffled<1, 0>(t85);
        const P t107 = flipped<0, 1>(t106);
        // complex block of 2
        const P t108 = t81 + t107;
        const P t109 = t81 - t107;
        const P t110 = shuffled<1, 0>(t105);
        const P t111 = flipped<0, 1>(t110);
        // complex block of 2
        const P t112 = t101 + t111;
        const P t113 = t101 - t111;
        // complex block of 2
        const P t114 = t108 + t112;
        const P t115 = t108 - t112;
        const P t116 = shuffled<1, 0>(t113);
        const P t117 = flipped<0, 1>(t116);
        // complex block of 2
        const P t118 = t109 + t117;
        const P t119 = t109 - t117;
        const P x3 = io.pair(3);
        const P x35 = io.pair(35);
        // complex block of 2
        const P t120 = x3 + x35;
        const P t121 = x3 - x35;
        const P x11 = io.pair(11);
        const P x43 = io.pair(43);
        // complex block of 2
        const P t122 = x11 + x43;
        const P t123 = x11 - x43;
        const P x19 = io.pair(19);
        const P x51 = io.pair(51);
        // complex block of 2
        const P t124 = x19 + x51;
        const P t125 = x19 - x51;
        const P x27 = io.pair(27);
        const P x59 = io.pair(59);
        // complex block of 2
        const P t126 = x27 + x59;
        const P t127 = x27 - x59;
        // complex block of 2
        const P t128 = t120 + t124;
        const P t129 = t120 - t124;
        // complex block of 2
        const P t130 = t122 + t126;
        const P t131 = t122 - t126;
        // complex block of 2
        const P t132 = t128 + t130;
        const P t133 = t128 - t130;
        const P t134 = shuffled<1, 0>(t131);
        const P t135 = flipped<0, 1>(t134);
        // complex block of 2
        const P t136 = t129 + t135;
        const P t137 = t129 - t135;
        // complex block of 8
        const P t138 = c[0] * t123;
        const P t139 = shuffled<1, 0>(t138);
        const P t140 = flipped<0, 1>(t139);
        const P t141 = t138 + t140;
        const P t142 = c[0] * t127;
        const P t143 = shuffled<1, 0>(t142);
        const P t144 = flipped<0, 1>(t143);
        const P t145 = t142 + t144;
        const P t146 = shuffled<1, 0>(t125);
        const P t147 = flipped<0, 1>(t146);
        // complex block of 2
        const P t148 = t121 + t147;
        const P t149 = t121 - t147;
        const P t150 = shuffled<1, 0>(t145);
        const P t151 = flipped<0, 1>(t150);
        // complex block of 2
        const P t152 = t141 + t151;
        const P t153 = t141 - t151;
        // complex block of 2
        const P t154 = t148 + t152;
        const P t155 = t148 - t152;
        const P t156 = shuffled<1, 0>(t153);
        const P t157 = flipped<0, 1>(t156);
        // complex block of 2
        const P t158 = t149 + t157;
        const P t159 = t149 - t157;
        const P x4 = io.pair(4);
        const P x36 = io.pair(36);
        // complex block of 2
        const P t160 = x4 + x36;
        const P t161 = x4 - x36;
        const P x12 = io.pair(12);
        const P x44 = io.pair(44);
        // complex block of 2
        const P t162 = x12 + x44;
        const P t163 = x12 - x44;
        const P x20 = io.pair(20);
        const P x52 = io.pair(52);
        // complex block of 2
        const P t164 = x20 + x52;
        const P t165 = x20 - x52;
        const P x28 = io.pair(28);
        const P x60 = io.pair(60);
        // complex block of 2
        const P t166 = x28 + x60;
        const P t167 = x28 - x60;
        // complex block of 2
        const P t168 = t160 + t164;
        const P t169 = t160 - t164;
        // complex block of 2
        const P t170 = t162 + t166;
        const P t171 = t162 - t166;
        // complex block of 2
        const P t172 = t168 + t170;
        const P t173 = t168 - t170;
        const P t174 = shuffled<1, 0>(t171);
        const P t175 = flipped<0, 1>(t174);
        // complex block of 2
        const P t176 = t169 + t175;
        const P t177 = t169 - t175;
        // complex block of 8
        const P t178 = c[0] * t163;
        const P t179 = shuffled<1, 0>(t178);
        const P t180 = flipped<0, 1>(t179);
        const P t181 = t178 + t180;
        const P t182 = c[0] * t167;
        const P t183 = shuffled<1, 0>(t182);
        const P t184 = flipped<0, 1>(t183);
        const P t185 = t182 + t184;
        const P t186 = shuffled<1, 0>(t165);
        const P t187 = flipped<0, 1>(t186);
        // complex block of 2
        const P t188 = t161 + t187;
        const P t189 = t161 - t187;
        const P t190 = shuffled<1, 0>(t185);
        const P t191 = flipped<0, 1>(t190);
        // complex block of 2
        const P t192 = t181 + t191;
        const P t193 = t181 - t191;
        // complex block of 2
        const P t194 = t188 + t192;
        const P t195 = t188 - t192;
        const P t196 = shuffled<1, 0>(t193);
        const P t197 = flipped<0, 1>(t196);
        // complex block of 2
        const P t198 = t189 + t197;
        const P t199 = t189 - t197;
        const P x5 = io.pair(5);
        const P x37 = io.pair(37);
        // complex block of 2
        const P t200 = x5 + x37;
        const P t201 = x5 - x37;
        const P x13 = io.pair(13);
        const P x45 = io.pair(45);
        // complex block of 2
        const P t202 = x13 + x45;
        const P t203 = x13 - x45;
        const P x21 = io.pair(21);
        const P x53 = io.pair(53);
        // complex block of 2
        const P t204 = x21 + x53;
        const P t205 = x21 - x53;
        const P x29 = io.pair(29);
        const P x61 = io.pair(61);
        // complex block of 2
        const P t206 = x29 + x61;
        const P t207 = x29 - x61;
        // complex block of 2
        const P t208 = t200 + t204;
        const P t209 = t200 - t204;
        // complex block of 2
        const P t210 = t202 + t206;
        const P t211 = t202 - t206;
        // complex block of 2
        const P t212 = t208 + t210;
        const P t213 = t208 - t210;
        const P t214 = shuffled<1, 0>(t211);
        const P t215 = flipped<0, 1>(t214);
        // complex block of 2
        const P t216 = t209 + t215;
        const P t217 = t209 - t215;
        // complex block of 8
        const P t218 = c[0] * t203;
        const P t219 = shuffled<1, 0>(t218);
        const P t220 = flipped<0, 1>(t219);
        const P t221 = t218 + t220;
        const P t222 = c[0] * t207;
        const P t223 = shuffled<1, 0>(t222);
        const P t224 = flipped<0, 1>(t223);
        const P t225 = t222 + t224;
        const P t226 = shuffled<1, 0>(t205);
        const P t227 = flipped<0, 1>(t226);
        // complex block of 2
        const P t228 = t201 + t227;
        const P t229 = t201 - t227;
        const P t230 = shuffled<1, 0>(t225);
        const P t231 = flipped<0, 1>(t230);
        // complex block of 2
        const P t232 = t221 + t231;
        const P t233 = t221 - t231;
        // complex block of 2
        const P t234 = t228 + t232;
        const P t235 = t228 - t232;
        const P t236 = shuffled<1, 0>(t233);
        const P t237 = flipped<0, 1>(t236);
        // complex block of 2
        const P t238 = t229 + t237;
        const P t239 = t229 - t237;
        const P x6 = io.pair(6);
        const P x38 = io.pair(38);
        // complex block of 2
        const P t240 = x6 + x38;
        const P t241 = x6 - x38;
        const P x14 = io.pair(14);
        const P x46 = io.pair(46);
        // complex block of 2
        const P t242 = x14 + x46;
        const P t243 = x14 - x46;
        const P x22 = io.pair(22);
        const P x54 = io.pair(54);
        // complex block of 2
        const P t244 = x22 + x54;
        const P t245 = x22 - x54;
        const P x30 = io.pair(30);
        const P x62 = io.pair(62);
        // complex block of 2
        const P t246 = x30 + x62;
        const P t247 = x30 - x62;
        // complex block of 2
        const P t248 = t240 + t244;
        const P t249 = t240 - t244;
        // complex block of 2
        const P t250 = t242 + t246;
        const P t251 = t242 - t246;
        // complex block of 2
        const P t252 = t248 + t250;
        const P t253 = t248 - t250;
        const P t254 = shuffled<1, 0>(t251);
        const P t255 = flipped<0, 1>(t254);
        // complex block of 2
        const P t256 = t249 + t255;
        const P t257 = t249 - t255;
        // complex block of 8
        const P t258 = c[0] * t243;
        const P t259 = shuffled<1, 0>(t258);
        const P t260 = flipped<0, 1>(t259);
        const P t261 = t258 + t260;
        const P t262 = c[0] * t247;
        const P t263 = shuffled<1, 0>(t262);
        const P t264 = flipped<0, 1>(t263);
        const P t265 = t262 + t264;
        const P t266 = shuffled<1, 0>(t245);
        const P t267 = flipped<0, 1>(t266);
        // complex block of 2
        const P t268 = t241 + t267;
        const P t269 = t241 - t267;
        const P t270 = shuffled<1, 0>(t265);
        const P t271 = flipped<0, 1>(t270);
        // complex block of 2
        const P t272 = t261 + t271;
        const P t273 = t261 - t271;
        // complex block of 2
        const P t274 = t268 + t272;
        const P t275 = t268 - t272;
        const P t276 = shuffled<1, 0>(t273);
        const P t277 = flipped<0, 1>(t276);
        // complex block of 2
        const P t278 = t269 + t277;
        const P t279 = t269 - t277;
        const P x7 = io.pair(7);
        const P x39 = io.pair(39);
        // complex block of 2
        const P t280 = x7 + x39;
        const P t281 = x7 - x39;
        const P x15 = io.pair(15);
        const P x47 = io.pair(47);
        // complex block of 2
        const P t282 = x15 + x47;
        const P t283 = x15 - x47;
        const P x23 = io.pair(23);
        const P x55 = io.pair(55);
        // complex block of 2
        const P t284 = x23 + x55;
        const P t285 = x23 - x55;
        const P x31 = io.pair(31);
        const P x63 = io.pair(63);
        // complex block of 2
        const P t286 = x31 + x63;
        const P t287 = x31 - x63;
        // complex block of 2
        const P t288 = t280 + t284;
        const P t289 = t280 - t284;
        // complex block of 2
        const P t290 = t282 + t286;
        const P t291 = t282 - t286;
        // complex block of 2
        const P t292 = t288 + t290;
        const P t293 = t288 - t290;
        const P t294 = shuffled<1, 0>(t291);
        const P t295 = flipped<0, 1>(t294);
        // complex block of 2
        const P t296 = t289 + t295;
        const P t297 = t289 - t295;
        // complex block of 8
        const P t298 = c[0] * t283;
        const P t299 = shuffled<1, 0>(t298);
        const P t300 = flipped<0, 1>(t299);
        const P t301 = t298 + t300;
        const P t302 = c[0] * t287;
        const P t303 = shuffled<1, 0>(t302);
        const P t304 = flipped<0, 1>(t303);
        const P t305 = t302 + t304;
        const P t306 = shuffled<1, 0>(t285);
        const P t307 = flipped<0, 1>(t306);
        // complex block of 2
        const P t308 = t281 + t307;
        const P t309 = t281 - t307;
        const P t310 = shuffled<1, 0>(t305);
        const P t311 = flipped<0, 1>(t310);
        // complex block of 2
        const P t312 = t301 + t311;
        const P t313 = t301 - t311;
        // complex block of 2
        const P t314 = t308 + t312;
        const P t315 = t308 - t312;
        const P t316 = shuffled<1, 0>(t313);
        const P t317 = flipped<0, 1>(t316);
        // complex block of 2
        const P t318 = t309 + t317;
        const P t319 = t309 - t317;
        // complex block of 2
        const P t320 = t12 + t172;
        const P t321 = t12 - t172;
        // complex block of 2
        const P t322 = t52 + t212;
        const P t323 = t52 - t212;
        // complex block of 2
        const P t324 = t92 + t252;
        const P t325 = t92 - t252;
        // complex block of 2
        const P t326 = t132 + t292;
        const P t327 = t132 - t292;
        // complex block of 2
        const P t328 = t320 + t324;
        const P t329 = t320 - t324;
        // complex block of 2
        const P t330 = t322 + t326;
        const P t331 = t322 - t326;
        // complex block of 2
        const P t332 = t328 + t330;
        io.pair(0, t332);
        const P t333 = t328 - t330;
        io.pair(32, t333);
        const P t334 = shuffled<1, 0>(t331);
        const P t335 = flipped<0, 1>(t334);
        // complex block of 2
        const P t336 = t329 + t335;
        io.pair(16, t336);
        const P t337 = t329 - t335;
        io.pair(48, t337);
        // complex block of 8
        const P t338 = c[0] * t323;
        const P t339 = shuffled<1, 0>(t338);
        const P t340 = flipped<0, 1>(t339);
        const P t341 = t338 + t340;
        const P t342 = c[0] * t327;
        const P t343 = shuffled<1, 0>(t342);
        const P t344 = flipped<0, 1>(t343);
        const P t345 = t342 + t344;
        const P t346 = shuffled<1, 0>(t325);
        const P t347 = flipped<0, 1>(t346);
        // complex block of 2
        const P t348 = t321 + t347;
        const P t349 = t321 - t347;
        const P t350 = shuffled<1, 0>(t345);
        const P t351 = flipped<0, 1>(t350);
        // complex block of 2
        const P t352 = t341 + t351;
        const P t353 = t341 - t351;
        // complex block of 2
        const P t354 = t348 + t352;
        io.pair(8, t354);
        const P t355 = t348 - t352;
        io.pair(40, t355);
        const P t356 = shuffled<1, 0>(t353);
        const P t357 = flipped<0, 1>(t356);
        // complex block of 2
        const P t358 = t349 + t357;
        io.pair(24, t358);
        const P t359 = t349 - t357;
        io.pair(56, t359);
        // complex block of 64
        const P t360 = c[7] * t74;
        const P t361 = shuffled<1, 0>(t74);
        const P t362 = P(c[8], -c[8]) * t361;
        const P t363 = t360 + t362;
        const P t364 = c[3] * t114;
        const P t365 = shuffled<1, 0>(t114);
        const P t366 = P(c[4], -c[4]) * t365;
        const P t367 = t364 + t366;
        const P t368 = c[9] * t154;
        const P t369 = shuffled<1, 0>(t154);
        const P t370 = P(c[10], -c[10]) * t369;
        const P t371 = t368 + t370;
        const P t372 = c[1] * t194;
        const P t373 = shuffled<1, 0>(t194);
        const P t374 = P(c[2], -c[2]) * t373;
        const P t375 = t372 + t374;
        const P t376 = c[11] * t234;
        const P t377 = shuffled<1, 0>(t234);
        const P t378 = P(c[12], -c[12]) * t377;
        const P t379 = t376 + t378;
        const P t380 = c[5] * t274;
        const P t381 = shuffled<1, 0>(t274);
        const P t382 = P(c[6], -c[6]) * t381;
        const P t383 = t380 + t382;
        const P t384 = c[13] * t314;
        const P t385 = shuffled<1, 0>(t314);
        const P t386 = P(c[14], -c[14]) * t385;
        const P t387 = t384 + t386;
        // complex block of 2
        const P t388 = t34 + t375;
        const P t389 = t34 - t375;
        // complex block of 2
        const P t390 = t363 + t379;
        const P t391 = t363 - t379;
        // complex block of 2
        const P t392 = t367 + t383;
        const P t393 = t367 - t383;
        // complex block of 2
        const P t394 = t371 + t387;
        const P t395 = t371 - t387;
        // complex block of 2
        const P t396 = t388 + t392;
        const P t397 = t388 - t392;
        // complex block of 2
        const P t398 = t390 + t394;
        const P t399 = t390 - t394;
        // complex block of 2
        const P t400 = t396 + t398;
        io.pair(1, t400);
        const P t401 = t396 - t398;
        io.pair(33, t401);
        const P t402 = shuffled<1, 0>(t399);
        const P t403 = flipped<0, 1>(t402);
        // complex block of 2
        const P t404 = t397 + t403;
        io.pair(17, t404);
        const P t405 = t397 - t403;
        io.pair(49, t405);
        // complex block of 8
        const P t406 = c[0] * t391;
        const P t407 = shuffled<1, 0>(t406);
        const P t408 = flipped<0, 1>(t407);
        const P t409 = t406 + t408;
        const P t410 = c[0] * t395;
        const P t411 = shuffled<1, 0>(t410);
        const P t412 = flipped<0, 1>(t411);
        const P t413 = t410 + t412;
        const P t414 = shuffled<1, 0>(t393);
        const P t415 = flipped<0, 1>(t414);
        // complex block of 2
        const P t416 = t389 + t415;
        const P t417 = t389 - t415;
        const P t418 = shuffled<1, 0>(t413);
        const P t419 = flipped<0, 1>(t418);
        // complex block of 2
        const P t420 = t409 + t419;
        const P t421 = t409 - t419;
        // complex block of 2
        const P t422 = t416 + t420;
        io.pair(9, t422);
        const P t423 = t416 - t420;
        io.pair(41, t423);
        const P t424 = shuffled<1, 0>(t421);
        const P t425 = flipped<0, 1>(t424);
        // complex block of 2
        const P t426 = t417 + t425;
        io.pair(25, t426);
        const P t427 = t417 - t425;
        io.pair(57, t427);
        // complex block of 64
        const P t428 = c[3] * t56;
        const P t429 = shuffled<1, 0>(t56);
        const P t430 = P(c[4], -c[4]) * t429;
        const P t431 = t428 + t430;
        const P t432 = c[1] * t96;
        const P t433 = shuffled<1, 0>(t96);
        const P t434 = P(c[2], -c[2]) * t433;
        const P t435 = t432 + t434;
        const P t436 = c[5] * t136;
        const P t437 = shuffled<1, 0>(t136);
        const P t438 = P(c[6], -c[6]) * t437;
        const P t439 = t436 + t438;
        const P t440 = c[0] * t176;
        const P t441 = shuffled<1, 0>(t440);
        const P t442 = flipped<0, 1>(t441);
        const P t443 = t440 + t442;
        const P t444 = c[6] * t216;
        const P t445 = shuffled<1, 0>(t216);
        const P t446 = P(c[5], -c[5]) * t445;
        const P t447 = t444 + t446;
        const P t448 = c[2] * t256;
        const P t449 = shuffled<1, 0>(t256);
        const P t450 = P(c[1], -c[1]) * t449;
        const P t451 = t448 + t450;
        const P t452 = c[4] * t296;
        const P t453 = shuffled<1, 0>(t296);
        const P t454 = P(c[3], -c[3]) * t453;
        const P t455 = t452 + t454;
        // complex block of 2
        const P t456 = t16 + t443;
        const P t457 = t16 - t443;
        // complex block of 2
        const P t458 = t431 + t447;
        const P t459 = t431 - t447;
        // complex block of 2
        const P t460 = t435 + t451;
        const P t461 = t435 - t451;
        // complex block of 2
        const P t462 = t439 + t455;
        const P t463 = t439 - t455;
        // complex block of 2
        const P t464 = t456 + t460;
        const P t465 = t456 - t460;
        // complex block of 2
        const P t466 = t458 + t462;
        const P t467 = t458 - t462;
        // complex block of 2
        const P t468 = t464 + t466;
        io.pair(2, t468);
        const P t469 = t464 - t466;
        io.pair(34, t469);
        const P t470 = shuffled<1, 0>(t467);
        const P t471 = flipped<0, 1>(t470);
        // complex block of 2
        const P t472 = t465 + t471;
        io.pair(18, t472);
        const P t473 = t465 - t471;
        io.pair(50, t473);
        // complex block of 8
        const P t474 = c[0] * t459;
        const P t475 = shuffled<1, 0>(t474);
        const P t476 = flipped<0, 1>(t475);
        const P t477 = t474 + t476;
        const P t478 = c[0] * t463;
        const P t479 = shuffled<1, 0>(t478);
        const P t480 = flipped<0, 1>(t479);
        const P t481 = t478 + t480;
        const P t482 = shuffled<1, 0>(t461);
        const P t483 = flipped<0, 1>(t482);
        // complex block of 2
        const P t484 = t457 + t483;
        const P t485 = t457 - t483;
        const P t486 = shuffled<1, 0>(t481);
        const P t487 = flipped<0, 1>(t486);
        // complex block of 2
        const P t488 = t477 + t487;
        const P t489 = t477 - t487;
        // complex block of 2
        const P t490 = t484 + t488;
        io.pair(10, t490);
        const P t491 = t484 - t488;
        io.pair(42, t491);
        const P t492 = shuffled<1, 0>(t489);
        const P t493 = flipped<0, 1>(t492);
        // complex block of 2
        const P t494 = t485 + t493;
        io.pair(26, t494);
        const P t495 = t485 - t493;
        io.pair(58, t495);
        // complex block of 64
        const P t496 = c[9] * t78;
        const P t497 = shuffled<1, 0>(t78);
        const P t498 = P(c[10], -c[10]) * t497;
        const P t499 = t496 + t498;
        const P t500 = c[5] * t118;
        const P t501 = shuffled<1, 0>(t118);
        const P t502 = P(c[6], -c[6]) * t501;
        const P t503 = t500 + t502;
        const P t504 = c[14] * t158;
        const P t505 = shuffled<1, 0>(t158);
        const P t506 = P(c[13], -c[13]) * t505;
        const P t507 = t504 + t506;
        const P t508 = c[2] * t198;
        const P t509 = shuffled<1, 0>(t198);
        const P t510 = P(c[1], -c[1]) * t509;
        const P t511 = t508 + t510;
        const P t512 = c[8] * t238;
        const P t513 = shuffled<1, 0>(t238);
        const P t514 = P(c[7], -c[7]) * t513;
        const P t515 = t512 + t514;
        const P t516 = P(-c[4], c[4]) * t278;
        const P t517 = shuffled<1, 0>(t278);
        const P t518 = c[3] * t517;
        const P t519 = t516 + t518;
        const P t520 = P(-c[12], c[12]) * t318;
        const P t521 = shuffled<1, 0>(t318);
        const P t522 = c[11] * t521;
        const P t523 = t520 + t522;
        // complex block of 2
        const P t524 = t38 + t511;
        const P t525 = t38 - t511;
        // complex block of 2
        const P t526 = t499 + t515;
        const P t527 = t499 - t515;
        const P t528 = flipped<0, 1>(t519);
        // complex block of 2
        const P t529 = t503 + t528;
        const P t530 = t503 - t528;
        const P t531 = flipped<0, 1>(t523);
        // complex block of 2
        const P t532 = t507 + t531;
        const P t533 = t507 - t531;
        // complex block of 2
        const P t534 = t524 + t529;
        const P t535 = t524 - t529;
        // complex block of 2
        const P t536 = t526 + t532;
        const P t537 = t526 - t532;
        // complex block of 2
        const P t538 = t534 + t536;
        io.pair(3, t538);
        const P t539 = t534 - t536;
        io.pair(35, t539);
        const P t540 = shuffled<1, 0>(t537);
        const P t541 = flipped<0, 1>(t540);
        // complex block of 2
        const P t542 = t535 + t541;
        io.pair(19, t542);
        const P t543 = t535 - t541;
        io.pair(51, t543);
        // complex block of 8
        const P t544 = c[0] * t527;
        const P t545 = shuffled<1, 0>(t544);
        const P t546 = flipped<0, 1>(t545);
        const P t547 = t544 + t546;
        const P t548 = c[0] * t533;
        const P t549 = shuffled<1, 0>(t548);
        const P t550 = flipped<0, 1>(t549);
        const P t551 = t548 + t550;
        const P t552 = shuffled<1, 0>(t530);
        const P t553 = flipped<0, 1>(t552);
        // complex block of 2
        const P t554 = t525 + t553;
        const P t555 = t525 - t553;
        const P t556 = shuffled<1, 0>(t551);
        const P t557 = flipped<0, 1>(t556);
        // complex block of 2
        const P t558 = t547 + t557;
        const P t559 = t547 - t557;
        // complex block of 2
        const P t560 = t554 + t558;
        io.pair(11, t560);
        const P t561 = t554 - t558;
        io.pair(43, t561);
        const P t562 = shuffled<1, 0>(t559);
        const P t563 = flipped<0, 1>(t562);
        // complex block of 2
        const P t564 = t555 + t563;
        io.pair(27, t564);
        const P t565 = t555 - t563;
        io.pair(59, t565);
        // complex block of 64
        const P t566 = c[1] * t53;
        const P t567 = shuffled<1, 0>(t53);
        const P t568 = P(c[2], -c[2]) * t567;
        const P t569 = t566 + t568;
        const P t570 = c[0] * t93;
        const P t571 = shuffled<1, 0>(t570);
        const P t572 = flipped<0, 1>(t571);
        const P t573 = t570 + t572;
        const P t574 = c[2] * t133;
        const P t575 = shuffled<1, 0>(t133);
        const P t576 = P(c[1], -c[1]) * t575;
        const P t577 = t574 + t576;
        const P t578 = P(-c[2], c[2]) * t213;
        const P t579 = shuffled<1, 0>(t213);
        const P t580 = c[1] * t579;
        const P t581 = t578 + t580;
        const P t582 = c[0] * t253;
        const P t583 = shuffled<1, 0>(t582);
        const P t584 = flipped<0, 1>(t583);
        const P t585 = t582 + t584;
        const P t586 = P(-c[1], c[1]) * t293;
        const P t587 = shuffled<1, 0>(t293);
        const P t588 = c[2] * t587;
        const P t589 = t586 + t588;
        const P t590 = shuffled<1, 0>(t173);
        const P t591 = flipped<0, 1>(t590);
        // complex block of 2
        const P t592 = t13 + t591;
        const P t593 = t13 - t591;
        const P t594 = flipped<0, 1>(t581);
        // complex block of 2
        const P t595 = t569 + t594;
        const P t596 = t569 - t594;
        const P t597 = shuffled<1, 0>(t585);
        const P t598 = flipped<0, 1>(t597);
        // complex block of 2
        const P t599 = t573 + t598;
        const P t600 = t573 - t598;
        const P t601 = flipped<0, 1>(t589);
        // complex block of 2
        const P t602 = t577 + t601;
        const P t603 = t577 - t601;
        // complex block of 2
        const P t604 = t592 + t599;
        const P t605 = t592 - t599;
        // complex block of 2
        const P t606 = t595 + t602;
        const P t607 = t595 - t602;
        // complex block of 2
        const P t608 = t604 + t606;
        io.pair(4, t608);
        const P t609 = t604 - t606;
        io.pair(36, t609);
        const P t610 = shuffled<1, 0>(t607);
        const P t611 = flipped<0, 1>(t610);
        // complex block of 2
        const P t612 = t605 + t611;
        io.pair(20, t612);
        const P t613 = t605 - t611;
        io.pair(52, t613);
        // complex block of 8
        const P t614 = c[0] * t596;
        const P t615 = shuffled<1, 0>(t614);
        const P t616 = flipped<0, 1>(t615);
        const P t617 = t614 + t616;
        const P t618 = c[0] * t603;
        const P t619 = shuffled<1, 0>(t618);
        const P t620 = flipped<0, 1>(t619);
        const P t621 = t618 + t620;
        const P t622 = shuffled<1, 0>(t600);
        const P t623 = flipped<0, 1>(t622);
        // complex block of 2
        const P t624 = t593 + t623;
        const P t625 = t593 - t623;
        const P t626 = shuffled<1, 0>(t621);
        const P t627 = flipped<0, 1>(t626);
        // complex block of 2
        const P t628 = t617 + t627;
        const P t629 = t617 - t627;
        // complex block of 2
        const P t630 = t624 + t628;
        io.pair(12, t630);
        const P t631 = t624 - t628;
        io.pair(44, t631);
        const P t632 = shuffled<1, 0>(t629);
        const P t633 = flipped<0, 1>(t632);
        // complex block of 2
        const P t634 = t625 + t633;
        io.pair(28, t634);
        const P t635 = t625 - t633;
        io.pair(60, t635);
        // complex block of 64
        const P t636 = c[11] * t75;
        const P t637 = shuffled<1, 0>(t75);
        const P t638 = P(c[12], -c[12]) * t637;
        const P t639 = t636 + t638;
        const P t640 = c[6] * t115;
        const P t641 = shuffled<1, 0>(t115);
        const P t642 = P(c[5], -c[5]) * t641;
        const P t643 = t640 + t642;
        const P t644 = c[8] * t155;
        const P t645 = shuffled<1, 0>(t155);
        const P t646 = P(c[7], -c[7]) * t645;
        const P t647 = t644 + t646;
        const P t648 = P(-c[2], c[2]) * t195;
        const P t649 = shuffled<1, 0>(t195);
        const P t650 = c[1] * t649;
        const P t651 = t648 + t650;
        const P t652 = P(-c[13], c[13]) * t235;
        const P t653 = shuffled<1, 0>(t235);
        const P t654 = c[14] * t653;
        const P t655 = t652 + t654;
        const P t656 = P(-c[3], c[3]) * t275;
        const P t657 = shuffled<1, 0>(t275);
        const P t658 = c[4] * t657;
        const P t659 = t656 + t658;
        const P t660 = shuffled<1, 0>(t315);
        const P t661 = c[10] * t660;
        const P t662 = P(c[9], -c[9]) * t315;
        const P t663 = t661 + t662;
        const P t664 = flipped<0, 1>(t651);
        // complex block of 2
        const P t665 = t35 + t664;
        const P t666 = t35 - t664;
        const P t667 = flipped<0, 1>(t655);
        // complex block of 2
        const P t668 = t639 + t667;
        const P t669 = t639 - t667;
        const P t670 = flipped<0, 1>(t659);
        // complex block of 2
        const P t671 = t643 + t670;
        const P t672 = t643 - t670;
        const P t673 = flipped<1, 0>(t663);
        // complex block of 2
        const P t674 = t647 + t673;
        const P t675 = t647 - t673;
        // complex block of 2
        const P t676 = t665 + t671;
        const P t677 = t665 - t671;
        // complex block of 2
        const P t678 = t668 + t674;
        const P t679 = t668 - t674;
        // complex block of 2
        const P t680 = t676 + t678;
        io.pair(5, t680);
        const P t681 = t676 - t678;
        io.pair(37, t681);
        const P t682 = shuffled<1, 0>(t679);
        const P t683 = flipped<0, 1>(t682);
        // complex block of 2
        const P t684 = t677 + t683;
        io.pair(21, t684);
        const P t685 = t677 - t683;
        io.pair(53, t685);
        // complex block of 8
        const P t686 = c[0] * t669;
        const P t687 = shuffled<1, 0>(t686);
        const P t688 = flipped<0, 1>(t687);
        const P t689 = t686 + t688;
        const P t690 = c[0] * t675;
        const P t691 = shuffled<1, 0>(t690);
        const P t692 = flipped<0, 1>(t691);
        const P t693 = t690 + t692;
        const P t694 = shuffled<1, 0>(t672);
        const P t695 = flipped<0, 1>(t694);
        // complex block of 2
        const P t696 = t666 + t695;
        const P t697 = t666 - t695;
        const P t698 = shuffled<1, 0>(t693);
        const P t699 = flipped<0, 1>(t698);
        // complex block of 2
        const P t700 = t689 + t699;
        const P t701 = t689 - t699;
        // complex block of 2
        const P t702 = t696 + t700;
        io.pair(13, t702);
        const P t703 = t696 - t700;
        io.pair(45, t703);
        const P t704 = shuffled<1, 0>(t701);
        const P t705 = flipped<0, 1>(t704);
        // complex block of 2
        const P t706 = t697 + t705;
        io.pair(29, t706);
        const P t707 = t697 - t705;
        io.pair(61, t707);
        // complex block of 64
        const P t708 = c[5] * t57;
        const P t709 = shuffled<1, 0>(t57);
        const P t710 = P(c[6], -c[6]) * t709;
        const P t711 = t708 + t710;
        const P t712 = c[2] * t97;
        const P t713 = shuffled<1, 0>(t97);
        const P t714 = P(c[1], -c[1]) * t713;
        const P t715 = t712 + t714;
        const P t716 = P(-c[4], c[4]) * t137;
        const P t717 = shuffled<1, 0>(t137);
        const P t718 = c[3] * t717;
        const P t719 = t716 + t718;
        const P t720 = c[0] * t177;
        const P t721 = shuffled<1, 0>(t720);
        const P t722 = flipped<0, 1>(t721);
        const P t723 = t720 + t722;
        const P t724 = P(-c[3], c[3]) * t217;
        const P t725 = shuffled<1, 0>(t217);
        const P t726 = c[4] * t725;
        const P t727 = t724 + t726;
        const P t728 = shuffled<1, 0>(t257);
        const P t729 = c[2] * t728;
        const P t730 = P(c[1], -c[1]) * t257;
        const P t731 = t729 + t730;
        const P t732 = shuffled<1, 0>(t297);
        const P t733 = c[5] * t732;
        const P t734 = P(c[6], -c[6]) * t297;
        const P t735 = t733 + t734;
        const P t736 = shuffled<1, 0>(t723);
        const P t737 = flipped<0, 1>(t736);
        // complex block of 2
        const P t738 = t17 + t737;
        const P t739 = t17 - t737;
        const P t740 = flipped<0, 1>(t727);
        // complex block of 2
        const P t741 = t711 + t740;
        const P t742 = t711 - t740;
        const P t743 = flipped<1, 0>(t731);
        // complex block of 2
        const P t744 = t715 + t743;
        const P t745 = t715 - t743;
        const P t746 = shuffled<0, 3>(t719, t735);
        const P t747 = shuffled<0, 3>(t735, t719);
        // complex block of 2
        const P t748 = t746 - t747;
        const P t749 = t719 + t735;
        // complex block of 2
        const P t750 = t738 + t744;
        const P t751 = t738 - t744;
        // complex block of 2
        const P t752 = t741 + t748;
        const P t753 = t741 - t748;
        // complex block of 2
        const P t754 = t750 + t752;
        io.pair(6, t754);
        const P t755 = t750 - t752;
        io.pair(38, t755);
        const P t756 = shuffled<1, 0>(t753);
        const P t757 = flipped<0, 1>(t756);
        // complex block of 2
        const P t758 = t751 + t757;
        io.pair(22, t758);
        const P t759 = t751 - t757;
        io.pair(54, t759);
        // complex block of 8
        const P t760 = c[0] * t742;
        const P t761 = shuffled<1, 0>(t760);
        const P t762 = flipped<0, 1>(t761);
        const P t763 = t760 + t762;
        const P t764 = c[0] * t749;
        const P t765 = shuffled<1, 0>(t764);
        const P t766 = flipped<1, 0>(t765);
        const P t767 = t764 + t766;
        const P t768 = shuffled<1, 0>(t745);
        const P t769 = flipped<0, 1>(t768);
        // complex block of 2
        const P t770 = t739 + t769;
        const P t771 = t739 - t769;
        const P t772 = shuffled<1, 0>(t767);
        // complex block of 2
        const P t773 = t763 - t772;
        const P t774 = t763 + t772;
        // complex block of 2
        const P t775 = t770 + t773;
        io.pair(14, t775);
        const P t776 = t770 - t773;
        io.pair(46, t776);
        const P t777 = shuffled<1, 0>(t774);
        const P t778 = flipped<0, 1>(t777);
        // complex block of 2
        const P t779 = t771 + t778;
        io.pair(30, t779);
        const P t780 = t771 - t778;
        io.pair(62, t780);
        // complex block of 64
        const P t781 = c[13] * t79;
        const P t782 = shuffled<1, 0>(t79);
        const P t783 = P(c[14], -c[14]) * t782;
        const P t784 = t781 + t783;
        const P t785 = c[4] * t119;
        const P t786 = shuffled<1, 0>(t119);
        const P t787 = P(c[3], -c[3]) * t786;
        const P t788 = t785 + t787;
        const P t789 = P(-c[12], c[12]) * t159;
        const P t790 = shuffled<1, 0>(t159);
        const P t791 = c[11] * t790;
        const P t792 = t789 + t791;
        const P t793 = P(-c[1], c[1]) * t199;
        const P t794 = shuffled<1, 0>(t199);
        const P t795 = c[2] * t794;
        const P t796 = t793 + t795;
        const P t797 = shuffled<1, 0>(t239);
        const P t798 = c[10] * t797;
        const P t799 = P(c[9], -c[9]) * t239;
        const P t800 = t798 + t799;
        const P t801 = shuffled<1, 0>(t279);
        const P t802 = c[5] * t801;
        const P t803 = P(c[6], -c[6]) * t279;
        const P t804 = t802 + t803;
        const P t805 = c[8] * t319;
        const P t806 = shuffled<1, 0>(t319);
        const P t807 = P(-c[7], c[7]) * t806;
        const P t808 = t805 + t807;
        const P t809 = flipped<0, 1>(t796);
        // complex block of 2
        const P t810 = t39 + t809;
        const P t811 = t39 - t809;
        const P t812 = flipped<1, 0>(t800);
        // complex block of 2
        const P t813 = t784 + t812;
        const P t814 = t784 - t812;
        const P t815 = flipped<1, 0>(t804);
        // complex block of 2
        const P t816 = t788 + t815;
        const P t817 = t788 - t815;
        const P t818 = flipped<0, 1>(t792);
        // complex block of 2
        const P t819 = t808 + t818;
        const P t820 = flipped<1, 0>(t808);
        const P t821 = t792 + t820;
        // complex block of 2
        const P t822 = t810 + t816;
        const P t823 = t810 - t816;
        // complex block of 2
        const P t824 = t813 + t819;
        const P t825 = t813 - t819;
        // complex block of 2
        const P t826 = t822 + t824;
        io.pair(7, t826);
        const P t827 = t822 - t824;
        io.pair(39, t827);
        const P t828 = shuffled<1, 0>(t825);
        const P t829 = flipped<0, 1>(t828);
        // complex block of 2
        const P t830 = t823 + t829;
        io.pair(23, t830);
        const P t831 = t823 - t829;
        io.pair(55, t831);
        // complex block of 8
        const P t832 = c[0] * t814;
        const P t833 = shuffled<1, 0>(t832);
        const P t834 = flipped<0, 1>(t833);
        const P t835 = t832 + t834;
        const P t836 = c[0] * t821;
        const P t837 = shuffled<1, 0>(t836);
        const P t838 = flipped<1, 0>(t837);
        const P t839 = t836 + t838;
        const P t840 = shuffled<1, 0>(t817);
        const P t841 = flipped<0, 1>(t840);
        // complex block of 2
        const P t842 = t811 + t841;
        const P t843 = t811 - t841;
        const P t844 = shuffled<1, 0>(t839);
        // complex block of 2
        const P t845 = t835 - t844;
        const P t846 = t835 + t844;
        // complex block of 2
        const P t847 = t842 + t845;
        io.pair(15, t847);
        const P t848 = t842 - t845;
        io.pair(47, t848);
        const P t849 = shuffled<1, 0>(t846);
        const P t850 = flipped<0, 1>(t849);
        // complex block of 2
        const P t851 = t843 + t850;
        io.pair(31, t851);
        const P t852 = t843 - t850;
        io.pair(63, t852);
    }
};

}  // namespace zulg
