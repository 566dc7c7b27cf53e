// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 64.
// Forward DFT of 64 real points, twiddled 16, 4.
// 199 additions, 199 subtractions, 132 multiplications (196 with `scale`); 19 outputs negated; 15 constants; 66 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<64> {
    static constexpr int steps = 594;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.19509032201612828,  // c[3]: sin 2 pi 2/64
        0.9807852804032304,  // c[4]: cos 2 pi 2/64
        0.5555702330196022,  // c[5]: sin 2 pi 6/64
        0.8314696123025452,  // c[6]: cos 2 pi 6/64
        0.0980171403295606,  // c[7]: sin 2 pi 1/64
        0.9951847266721969,  // c[8]: cos 2 pi 1/64
        0.2902846772544624,  // c[9]: sin 2 pi 3/64
        0.9569403357322088,  // c[10]: cos 2 pi 3/64
        0.773010453362737,  // c[11]: sin 2 pi 9/64
        0.6343932841636455,  // c[12]: cos 2 pi 9/64
        0.47139673682599764,  // c[13]: sin 2 pi 5/64
        0.881921264348355,  // c[14]: cos 2 pi 5/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x32 = io.in(32);
        const V t0 = x0 + x32;
        const V t1 = x0 - x32;
        // real block of 2
        const V x16 = io.in(16);
        const V x48 = io.in(48);
        const V t2 = x16 + x48;
        const V t3 = x16 - x48;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x4 = io.in(4);
        const V x36 = io.in(36);
        const V t6 = x4 + x36;
        const V t7 = x4 - x36;
        // real block of 2
        const V x20 = io.in(20);
        const V x52 = io.in(52);
        const V t8 = x20 + x52;
        const V t9 = x20 - x52;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x8 = io.in(8);
        const V x40 = io.in(40);
        const V t12 = x8 + x40;
        const V t13 = x8 - x40;
        // real block of 2
        const V x24 = io.in(24);
        const V x56 = io.in(56);
        const V t14 = x24 + x56;
        const V t15 = x24 - x56;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x12 = io.in(12);
        const V x44 = io.in(44);
        const V t18 = x12 + x44;
        const V t19 = x12 - x44;
        // real block of 2
        const V x28 = io.in(28);
        const V x60 = io.in(60);
        const V t20 = x28 + x60;
        const V t21 = x28 - x60;
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
        const V x1 = io.in(1);
        const V x33 = io.in(33);
        const V t70 = x1 + x33;
        const V t71 = x1 - x33;
        // real block of 2
        const V x17 = io.in(17);
        const V x49 = io.in(49);
        const V t72 = x17 + x49;
        const V t73 = x17 - x49;
        // real block of 2
        const V t74 = t70 + t72;
        const V t75 = t70 - t72;
        // real block of 2
        const V x5 = io.in(5);
        const V x37 = io.in(37);
        const V t76 = x5 + x37;
        const V t77 = x5 - x37;
        // real block of 2
        const V x21 = io.in(21);
        const V x53 = io.in(53);
        const V t78 = x21 + x53;
        const V t79 = x21 - x53;
        // real block of 2
        const V t80 = t76 + t78;
        const V t81 = t76 - t78;
        // real block of 2
        const V x9 = io.in(9);
        const V x41 = io.in(41);
        const V t82 = x9 + x41;
        const V t83 = x9 - x41;
        // real block of 2
        const V x25 = io.in(25);
        const V x57 = io.in(57);
        const V t84 = x25 + x57;
        const V t85 = x25 - x57;
        // real block of 2
        const V t86 = t82 + t84;
        const V t87 = t82 - t84;
        // real block of 2
        const V x13 = io.in(13);
        const V x45 = io.in(45);
        const V t88 = x13 + x45;
        const V t89 = x13 - x45;
        // real block of 2
        const V x29 = io.in(29);
        const V x61 = io.in(61);
        const V t90 = x29 + x61;
        const V t91 = x29 - x61;
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
        // real block of 2
        const V x2 = io.in(2);
        const V x34 = io.in(34);
        const V t140 = x2 + x34;
        const V t141 = x2 - x34;
        // real block of 2
        const V x18 = io.in(18);
        const V x50 = io.in(50);
        const V t142 = x18 + x50;
        const V t143 = x18 - x50;
        // real block of 2
        const V t144 = t140 + t142;
        const V t145 = t140 - t142;
        // real block of 2
        const V x6 = io.in(6);
        const V x38 = io.in(38);
        const V t146 = x6 + x38;
        const V t147 = x6 - x38;
        // real block of 2
        const V x22 = io.in(22);
        const V x54 = io.in(54);
        const V t148 = x22 + x54;
        const V t149 = x22 - x54;
        // real block of 2
        const V t150 = t146 + t148;
        const V t151 = t146 - t148;
        // real block of 2
        const V x10 = io.in(10);
        const V x42 = io.in(42);
        const V t152 = x10 + x42;
        const V t153 = x10 - x42;
        // real block of 2
        const V x26 = io.in(26);
        const V x58 = io.in(58);
        const V t154 = x26 + x58;
        const V t155 = x26 - x58;
        // real block of 2
        const V t156 = t152 + t154;
        const V t157 = t152 - t154;
        // real block of 2
        const V x14 = io.in(14);
        const V x46 = io.in(46);
        const V t158 = x14 + x46;
        const V t159 = x14 - x46;
        // real block of 2
        const V x30 = io.in(30);
        const V x62 = io.in(62);
        const V t160 = x30 + x62;
        const V t161 = x30 - x62;
        // real block of 2
        const V t162 = t158 + t160;
        const V t163 = t158 - t160;
        // real block of 2
        const V t164 = t144 + t156;
        const V t165 = t144 - t156;
        // real block of 2
        const V t166 = t150 + t162;
        const V t167 = t150 - t162;
        // real block of 2
        const V t168 = t164 + t166;
        const V t169 = t164 - t166;
        // real block of 16
        const V t170 = c[0] * t149;
        const V t171 = c[1] * t147;
        const V t172 = t171 - t170;
        const V t173 = c[0] * t147;
        const V t174 = c[1] * t149;
        const V t175 = t174 + t173;
        const V t176 = t153 - t155;
        const V t177 = t155 + t153;
        const V t178 = c[2] * t176;
        const V t179 = c[2] * t177;
        const V t180 = c[1] * t161;
        const V t181 = c[0] * t159;
        const V t182 = t181 - t180;
        const V t183 = c[1] * t159;
        const V t184 = c[0] * t161;
        const V t185 = t184 + t183;
        // complex block of 2
        const V t186 = t141 + t178;
        const V t187 = t143 + t179;
        const V t188 = t141 - t178;
        const V t189 = t179 - t143;
        // complex block of 2
        const V t190 = t172 + t182;
        const V t191 = t175 + t185;
        const V t192 = t172 - t182;
        const V t193 = t185 - t175;
        // complex block of 2
        const V t194 = t186 + t190;
        const V t195 = t187 + t191;
        const V t196 = t186 - t190;
        const V t197 = t191 - t187;
        // complex block of 2
        const V t198 = t188 + t193;
        const V t199 = t189 - t192;
        const V t200 = t188 - t193;
        const V t201 = t189 + t192;
        // skew block of 4
        const V t202 = t151 - t163;
        const V t203 = c[2] * t202;
        const V t204 = t151 + t163;
        const V t205 = c[2] * t204;
        const V t206 = t205 - t157;
        const V t207 = t145 + t203;
        const V t208 = t157 + t205;
        const V t209 = t145 - t203;
        // real block of 2
        const V x3 = io.in(3);
        const V x35 = io.in(35);
        const V t210 = x3 + x35;
        const V t211 = x3 - x35;
        // real block of 2
        const V x19 = io.in(19);
        const V x51 = io.in(51);
        const V t212 = x19 + x51;
        const V t213 = x19 - x51;
        // real block of 2
        const V t214 = t210 + t212;
        const V t215 = t210 - t212;
        // real block of 2
        const V x7 = io.in(7);
        const V x39 = io.in(39);
        const V t216 = x7 + x39;
        const V t217 = x7 - x39;
        // real block of 2
        const V x23 = io.in(23);
        const V x55 = io.in(55);
        const V t218 = x23 + x55;
        const V t219 = x23 - x55;
        // real block of 2
        const V t220 = t216 + t218;
        const V t221 = t216 - t218;
        // real block of 2
        const V x11 = io.in(11);
        const V x43 = io.in(43);
        const V t222 = x11 + x43;
        const V t223 = x11 - x43;
        // real block of 2
        const V x27 = io.in(27);
        const V x59 = io.in(59);
        const V t224 = x27 + x59;
        const V t225 = x27 - x59;
        // real block of 2
        const V t226 = t222 + t224;
        const V t227 = t222 - t224;
        // real block of 2
        const V x15 = io.in(15);
        const V x47 = io.in(47);
        const V t228 = x15 + x47;
        const V t229 = x15 - x47;
        // real block of 2
        const V x31 = io.in(31);
        const V x63 = io.in(63);
        const V t230 = x31 + x63;
        const V t231 = x31 - x63;
        // real block of 2
        const V t232 = t228 + t230;
        const V t233 = t228 - t230;
        // real block of 2
        const V t234 = t214 + t226;
        const V t235 = t214 - t226;
        // real block of 2
        const V t236 = t220 + t232;
        const V t237 = t220 - t232;
        // real block of 2
        const V t238 = t234 + t236;
        const V t239 = t234 - t236;
        // real block of 16
        const V t240 = c[0] * t219;
        const V t241 = c[1] * t217;
        const V t242 = t241 - t240;
        const V t243 = c[0] * t217;
        const V t244 = c[1] * t219;
        const V t245 = t244 + t243;
        const V t246 = t223 - t225;
        const V t247 = t225 + t223;
        const V t248 = c[2] * t246;
        const V t249 = c[2] * t247;
        const V t250 = c[1] * t231;
        const V t251 = c[0] * t229;
        const V t252 = t251 - t250;
        const V t253 = c[1] * t229;
        const V t254 = c[0] * t231;
        const V t255 = t254 + t253;
        // complex block of 2
        const V t256 = t211 + t248;
        const V t257 = t213 + t249;
        const V t258 = t211 - t248;
        const V t259 = t249 - t213;
        // complex block of 2
        const V t260 = t242 + t252;
        const V t261 = t245 + t255;
        const V t262 = t242 - t252;
        const V t263 = t255 - t245;
        // complex block of 2
        const V t264 = t256 + t260;
        const V t265 = t257 + t261;
        const V t266 = t256 - t260;
        const V t267 = t261 - t257;
        // complex block of 2
        const V t268 = t258 + t263;
        const V t269 = t259 - t262;
        const V t270 = t258 - t263;
        const V t271 = t259 + t262;
        // skew block of 4
        const V t272 = t221 - t233;
        const V t273 = c[2] * t272;
        const V t274 = t221 + t233;
        const V t275 = c[2] * t274;
        const V t276 = t275 - t227;
        const V t277 = t215 + t273;
        const V t278 = t227 + t275;
        const V t279 = t215 - t273;
        // real block of 2
        const V t280 = t28 + t168;
        const V t281 = t28 - t168;
        io.re(16, t281);
        // real block of 2
        const V t282 = t98 + t238;
        const V t283 = t98 - t238;
        io.minusIm(16, t283);
        // real block of 2
        const V t284 = t280 + t282;
        io.re(0, t284);
        const V t285 = t280 - t282;
        io.re(32, t285);
        // real block of 64
        const V t286 = c[7] * t125;
        const V t287 = c[8] * t124;
        const V t288 = t287 - t286;
        const V t289 = c[7] * t124;
        const V t290 = c[8] * t125;
        const V t291 = t290 + t289;
        const V t292 = c[3] * t195;
        const V t293 = c[4] * t194;
        const V t294 = t293 - t292;
        const V t295 = c[3] * t194;
        const V t296 = c[4] * t195;
        const V t297 = t296 + t295;
        const V t298 = c[9] * t265;
        const V t299 = c[10] * t264;
        const V t300 = t299 - t298;
        const V t301 = c[9] * t264;
        const V t302 = c[10] * t265;
        const V t303 = t302 + t301;
        // complex block of 2
        const V t304 = t54 + t294;
        const V t305 = t55 + t297;
        const V t306 = t54 - t294;
        const V t307 = t297 - t55;
        // complex block of 2
        const V t308 = t288 + t300;
        const V t309 = t291 + t303;
        const V t310 = t288 - t300;
        const V t311 = t303 - t291;
        // complex block of 2
        const V t312 = t304 + t308;
        io.re(1, t312);
        const V t313 = t305 + t309;
        io.minusIm(1, t313);
        const V t314 = t304 - t308;
        io.re(31, t314);
        const V t315 = t309 - t305;
        io.minusIm(31, t315);
        // complex block of 2
        const V t316 = t306 + t311;
        io.re(17, t316);
        const V t317 = t307 - t310;
        io.im(17, t317);
        const V t318 = t306 - t311;
        io.re(15, t318);
        const V t319 = t307 + t310;
        io.minusIm(15, t319);
        // real block of 64
        const V t320 = c[3] * t138;
        const V t321 = c[4] * t137;
        const V t322 = t321 - t320;
        const V t323 = c[3] * t137;
        const V t324 = c[4] * t138;
        const V t325 = t324 + t323;
        const V t326 = c[0] * t208;
        const V t327 = c[1] * t207;
        const V t328 = t327 - t326;
        const V t329 = c[0] * t207;
        const V t330 = c[1] * t208;
        const V t331 = t330 + t329;
        const V t332 = c[5] * t278;
        const V t333 = c[6] * t277;
        const V t334 = t333 - t332;
        const V t335 = c[5] * t277;
        const V t336 = c[6] * t278;
        const V t337 = t336 + t335;
        // complex block of 2
        const V t338 = t67 + t328;
        const V t339 = t68 + t331;
        const V t340 = t67 - t328;
        const V t341 = t331 - t68;
        // complex block of 2
        const V t342 = t322 + t334;
        const V t343 = t325 + t337;
        const V t344 = t322 - t334;
        const V t345 = t337 - t325;
        // complex block of 2
        const V t346 = t338 + t342;
        io.re(2, t346);
        const V t347 = t339 + t343;
        io.minusIm(2, t347);
        const V t348 = t338 - t342;
        io.re(30, t348);
        const V t349 = t343 - t339;
        io.minusIm(30, t349);
        // complex block of 2
        const V t350 = t340 + t345;
        io.re(18, t350);
        const V t351 = t341 - t344;
        io.im(18, t351);
        const V t352 = t340 - t345;
        io.re(14, t352);
        const V t353 = t341 + t344;
        io.minusIm(14, t353);
        // real block of 64
        const V t354 = c[9] * t131;
        const V t355 = c[10] * t130;
        const V t356 = t355 - t354;
        const V t357 = c[9] * t130;
        const V t358 = c[10] * t131;
        const V t359 = t358 + t357;
        const V t360 = c[5] * t201;
        const V t361 = c[6] * t200;
        const V t362 = t361 - t360;
        const V t363 = c[5] * t200;
        const V t364 = c[6] * t201;
        const V t365 = t364 + t363;
        const V t366 = c[11] * t271;
        const V t367 = c[12] * t270;
        const V t368 = t367 - t366;
        const V t369 = c[11] * t270;
        const V t370 = c[12] * t271;
        const V t371 = t370 + t369;
        // complex block of 2
        const V t372 = t60 + t362;
        const V t373 = t61 + t365;
        const V t374 = t60 - t362;
        const V t375 = t365 - t61;
        // complex block of 2
        const V t376 = t356 + t368;
        const V t377 = t359 + t371;
        const V t378 = t356 - t368;
        const V t379 = t371 - t359;
        // complex block of 2
        const V t380 = t372 + t376;
        io.re(3, t380);
        const V t381 = t373 + t377;
        io.minusIm(3, t381);
        const V t382 = t372 - t376;
        io.re(29, t382);
        const V t383 = t377 - t373;
        io.minusIm(29, t383);
        // complex block of 2
        const V t384 = t374 + t379;
        io.re(19, t384);
        const V t385 = t375 - t378;
        io.im(19, t385);
        const V t386 = t374 - t379;
        io.re(13, t386);
        const V t387 = t375 + t378;
        io.minusIm(13, t387);
        // real block of 64
        const V t388 = c[0] * t97;
        const V t389 = c[1] * t95;
        const V t390 = t389 - t388;
        const V t391 = c[0] * t95;
        const V t392 = c[1] * t97;
        const V t393 = t392 + t391;
        const V t394 = t165 - t167;
        const V t395 = t167 + t165;
        const V t396 = c[2] * t394;
        const V t397 = c[2] * t395;
        const V t398 = c[1] * t237;
        const V t399 = c[0] * t235;
        const V t400 = t399 - t398;
        const V t401 = c[1] * t235;
        const V t402 = c[0] * t237;
        const V t403 = t402 + t401;
        // complex block of 2
        const V t404 = t25 + t396;
        const V t405 = t27 + t397;
        const V t406 = t25 - t396;
        const V t407 = t397 - t27;
        // complex block of 2
        const V t408 = t390 + t400;
        const V t409 = t393 + t403;
        const V t410 = t390 - t400;
        const V t411 = t403 - t393;
        // complex block of 2
        const V t412 = t404 + t408;
        io.re(4, t412);
        const V t413 = t405 + t409;
        io.minusIm(4, t413);
        const V t414 = t404 - t408;
        io.re(28, t414);
        const V t415 = t409 - t405;
        io.minusIm(28, t415);
        // complex block of 2
        const V t416 = t406 + t411;
        io.re(20, t416);
        const V t417 = t407 - t410;
        io.im(20, t417);
        const V t418 = t406 - t411;
        io.re(12, t418);
        const V t419 = t407 + t410;
        io.minusIm(12, t419);
        // real block of 64
        const V t420 = c[13] * t129;
        const V t421 = c[14] * t128;
        const V t422 = t421 + t420;
        const V t423 = c[13] * t128;
        const V t424 = c[14] * t129;
        const V t425 = t424 - t423;
        const V t426 = c[6] * t199;
        const V t427 = c[5] * t198;
        const V t428 = t427 + t426;
        const V t429 = c[6] * t198;
        const V t430 = c[5] * t199;
        const V t431 = t430 - t429;
        const V t432 = c[8] * t269;
        const V t433 = c[7] * t268;
        const V t434 = t433 + t432;
        const V t435 = c[8] * t268;
        const V t436 = c[7] * t269;
        const V t437 = t436 - t435;
        // complex block of 2
        const V t438 = t58 + t428;
        const V t439 = t59 + t431;
        const V t440 = t58 - t428;
        const V t441 = t59 - t431;
        // complex block of 2
        const V t442 = t422 + t434;
        const V t443 = t425 + t437;
        const V t444 = t422 - t434;
        const V t445 = t425 - t437;
        // complex block of 2
        const V t446 = t438 + t442;
        io.re(5, t446);
        const V t447 = t439 + t443;
        io.im(5, t447);
        const V t448 = t438 - t442;
        io.re(27, t448);
        const V t449 = t439 - t443;
        io.minusIm(27, t449);
        // complex block of 2
        const V t450 = t440 + t445;
        io.re(21, t450);
        const V t451 = t441 - t444;
        io.im(21, t451);
        const V t452 = t440 - t445;
        io.re(11, t452);
        const V t453 = t441 + t444;
        io.minusIm(11, t453);
        // real block of 64
        const V t454 = c[5] * t136;
        const V t455 = c[6] * t139;
        const V t456 = t455 - t454;
        const V t457 = c[5] * t139;
        const V t458 = c[6] * t136;
        const V t459 = t458 + t457;
        const V t460 = c[1] * t206;
        const V t461 = c[0] * t209;
        const V t462 = t461 - t460;
        const V t463 = c[1] * t209;
        const V t464 = c[0] * t206;
        const V t465 = t464 + t463;
        const V t466 = c[4] * t276;
        const V t467 = c[3] * t279;
        const V t468 = t467 + t466;
        const V t469 = c[4] * t279;
        const V t470 = c[3] * t276;
        const V t471 = t470 - t469;
        // complex block of 2
        const V t472 = t69 + t462;
        const V t473 = t66 + t465;
        const V t474 = t69 - t462;
        const V t475 = t465 - t66;
        // complex block of 2
        const V t476 = t456 - t468;
        const V t477 = t471 - t459;
        const V t478 = t456 + t468;
        const V t479 = t459 + t471;
        // complex block of 2
        const V t480 = t472 + t476;
        io.re(6, t480);
        const V t481 = t477 - t473;
        io.im(6, t481);
        const V t482 = t472 - t476;
        io.re(26, t482);
        const V t483 = t473 + t477;
        io.im(26, t483);
        // complex block of 2
        const V t484 = t474 - t479;
        io.re(22, t484);
        const V t485 = t475 - t478;
        io.im(22, t485);
        const V t486 = t474 + t479;
        io.re(10, t486);
        const V t487 = t475 + t478;
        io.minusIm(10, t487);
        // real block of 64
        const V t488 = c[12] * t127;
        const V t489 = c[11] * t126;
        const V t490 = t489 - t488;
        const V t491 = c[12] * t126;
        const V t492 = c[11] * t127;
        const V t493 = t492 + t491;
        const V t494 = c[4] * t197;
        const V t495 = c[3] * t196;
        const V t496 = t495 - t494;
        const V t497 = c[4] * t196;
        const V t498 = c[3] * t197;
        const V t499 = t498 + t497;
        const V t500 = c[14] * t267;
        const V t501 = c[13] * t266;
        const V t502 = t501 + t500;
        const V t503 = c[14] * t266;
        const V t504 = c[13] * t267;
        const V t505 = t504 - t503;
        // complex block of 2
        const V t506 = t56 + t496;
        const V t507 = t57 + t499;
        const V t508 = t56 - t496;
        const V t509 = t499 - t57;
        // complex block of 2
        const V t510 = t490 - t502;
        const V t511 = t505 - t493;
        const V t512 = t490 + t502;
        const V t513 = t493 + t505;
        // complex block of 2
        const V t514 = t506 + t510;
        io.re(7, t514);
        const V t515 = t511 - t507;
        io.im(7, t515);
        const V t516 = t506 - t510;
        io.re(25, t516);
        const V t517 = t507 + t511;
        io.im(25, t517);
        // complex block of 2
        const V t518 = t508 - t513;
        io.re(23, t518);
        const V t519 = t509 - t512;
        io.im(23, t519);
        const V t520 = t508 + t513;
        io.re(9, t520);
        const V t521 = t509 + t512;
        io.minusIm(9, t521);
        // skew block of 4
        const V t522 = t99 - t239;
        const V t523 = c[2] * t522;
        const V t524 = t99 + t239;
        const V t525 = c[2] * t524;
        const V t526 = t525 - t169;
        io.minusIm(24, t526);
        const V t527 = t29 + t523;
        io.re(8, t527);
        const V t528 = t169 + t525;
        io.minusIm(8, t528);
        const V t529 = t29 - t523;
        io.re(24, t529);
    }
};

}  // namespace zulg
