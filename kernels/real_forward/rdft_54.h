// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 54.
// Forward DFT of 54 real points, prime-factor 2, 27.
// 191 additions, 191 subtractions, 220 multiplications (274 with `scale`); 13 outputs negated; 14 constants; 56 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<54> {
    static constexpr int steps = 656;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.8021231927550437,  // c[6]: sin 2 pi 4/27
        0.5971585917027862,  // c[7]: cos 2 pi 4/27
        0.9579895123154889,  // c[8]: sin 2 pi 8/27
        0.28680323271109026,  // c[9]: -cos 2 pi 8/27
        0.44879918020046217,  // c[10]: sin 2 pi 2/27
        0.8936326403234123,  // c[11]: cos 2 pi 2/27
        0.549508978070806,  // c[12]: -sin 2 pi 16/27
        0.8354878114129364,  // c[13]: -cos 2 pi 16/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x27 = io.in(27);
        const V t0 = x0 + x27;
        const V t1 = x0 - x27;
        // real block of 2
        const V x2 = io.in(2);
        const V x29 = io.in(29);
        const V t2 = x2 + x29;
        const V t3 = x2 - x29;
        // real block of 2
        const V x4 = io.in(4);
        const V x31 = io.in(31);
        const V t4 = x4 + x31;
        const V t5 = x4 - x31;
        // real block of 2
        const V x6 = io.in(6);
        const V x33 = io.in(33);
        const V t6 = x6 + x33;
        const V t7 = x6 - x33;
        // real block of 2
        const V x8 = io.in(8);
        const V x35 = io.in(35);
        const V t8 = x8 + x35;
        const V t9 = x8 - x35;
        // real block of 2
        const V x10 = io.in(10);
        const V x37 = io.in(37);
        const V t10 = x10 + x37;
        const V t11 = x10 - x37;
        // real block of 2
        const V x12 = io.in(12);
        const V x39 = io.in(39);
        const V t12 = x12 + x39;
        const V t13 = x12 - x39;
        // real block of 2
        const V x14 = io.in(14);
        const V x41 = io.in(41);
        const V t14 = x14 + x41;
        const V t15 = x14 - x41;
        // real block of 2
        const V x16 = io.in(16);
        const V x43 = io.in(43);
        const V t16 = x16 + x43;
        const V t17 = x16 - x43;
        // real block of 2
        const V x18 = io.in(18);
        const V x45 = io.in(45);
        const V t18 = x18 + x45;
        const V t19 = x18 - x45;
        // real block of 2
        const V x20 = io.in(20);
        const V x47 = io.in(47);
        const V t20 = x20 + x47;
        const V t21 = x20 - x47;
        // real block of 2
        const V x22 = io.in(22);
        const V x49 = io.in(49);
        const V t22 = x22 + x49;
        const V t23 = x22 - x49;
        // real block of 2
        const V x24 = io.in(24);
        const V x51 = io.in(51);
        const V t24 = x24 + x51;
        const V t25 = x24 - x51;
        // real block of 2
        const V x26 = io.in(26);
        const V x53 = io.in(53);
        const V t26 = x26 + x53;
        const V t27 = x26 - x53;
        // real block of 2
        const V x28 = io.in(28);
        const V x1 = io.in(1);
        const V t28 = x28 + x1;
        const V t29 = x28 - x1;
        // real block of 2
        const V x30 = io.in(30);
        const V x3 = io.in(3);
        const V t30 = x30 + x3;
        const V t31 = x30 - x3;
        // real block of 2
        const V x32 = io.in(32);
        const V x5 = io.in(5);
        const V t32 = x32 + x5;
        const V t33 = x32 - x5;
        // real block of 2
        const V x34 = io.in(34);
        const V x7 = io.in(7);
        const V t34 = x34 + x7;
        const V t35 = x34 - x7;
        // real block of 2
        const V x36 = io.in(36);
        const V x9 = io.in(9);
        const V t36 = x36 + x9;
        const V t37 = x36 - x9;
        // real block of 2
        const V x38 = io.in(38);
        const V x11 = io.in(11);
        const V t38 = x38 + x11;
        const V t39 = x38 - x11;
        // real block of 2
        const V x40 = io.in(40);
        const V x13 = io.in(13);
        const V t40 = x40 + x13;
        const V t41 = x40 - x13;
        // real block of 2
        const V x42 = io.in(42);
        const V x15 = io.in(15);
        const V t42 = x42 + x15;
        const V t43 = x42 - x15;
        // real block of 2
        const V x44 = io.in(44);
        const V x17 = io.in(17);
        const V t44 = x44 + x17;
        const V t45 = x44 - x17;
        // real block of 2
        const V x46 = io.in(46);
        const V x19 = io.in(19);
        const V t46 = x46 + x19;
        const V t47 = x46 - x19;
        // real block of 2
        const V x48 = io.in(48);
        const V x21 = io.in(21);
        const V t48 = x48 + x21;
        const V t49 = x48 - x21;
        // real block of 2
        const V x50 = io.in(50);
        const V x23 = io.in(23);
        const V t50 = x50 + x23;
        const V t51 = x50 - x23;
        // real block of 2
        const V x52 = io.in(52);
        const V x25 = io.in(25);
        const V t52 = x52 + x25;
        const V t53 = x52 - x25;
        // real block of 3, multiplier 2
        const V t54 = t18 + t36;
        const V t55 = t18 - t36;
        const V t56 = t54 + t0;
        const V t57 = c[0] * t54;
        const V t58 = t0 - t57;
        const V t59 = c[1] * t55;
        // real block of 3, multiplier 2
        const V t60 = t24 + t42;
        const V t61 = t24 - t42;
        const V t62 = t60 + t6;
        const V t63 = c[0] * t60;
        const V t64 = t6 - t63;
        const V t65 = c[1] * t61;
        // real block of 3, multiplier 2
        const V t66 = t30 + t48;
        const V t67 = t30 - t48;
        const V t68 = t66 + t12;
        const V t69 = c[0] * t66;
        const V t70 = t12 - t69;
        const V t71 = c[1] * t67;
        // real block of 3, multiplier 2
        const V t72 = t62 + t68;
        const V t73 = t62 - t68;
        const V t74 = t72 + t56;
        const V t75 = c[0] * t72;
        const V t76 = t56 - t75;
        const V t77 = c[1] * t73;
        // real block of 9, multiplier 2
        const V t78 = c[2] * t65;
        const V t79 = c[3] * t64;
        const V t80 = t79 + t78;
        const V t81 = c[2] * t64;
        const V t82 = c[3] * t65;
        const V t83 = t82 - t81;
        const V t84 = c[4] * t71;
        const V t85 = c[5] * t70;
        const V t86 = t84 - t85;
        const V t87 = c[4] * t70;
        const V t88 = c[5] * t71;
        const V t89 = t88 + t87;
        // complex block of 3, multiplier 2
        const V t90 = t80 + t86;
        const V t91 = t83 - t89;
        const V t92 = t80 - t86;
        const V t93 = t83 + t89;
        const V t94 = t90 + t58;
        const V t95 = t91 + t59;
        const V t96 = c[0] * t90;
        const V t97 = t58 - t96;
        const V t98 = c[0] * t91;
        const V t99 = t59 - t98;
        const V t100 = c[1] * t92;
        const V t101 = c[1] * t93;
        const V t102 = t97 + t101;
        const V t103 = t99 - t100;
        const V t104 = t97 - t101;
        const V t105 = t99 + t100;
        // real block of 3, multiplier 2
        const V t106 = t20 + t38;
        const V t107 = t20 - t38;
        const V t108 = t106 + t2;
        const V t109 = c[0] * t106;
        const V t110 = t2 - t109;
        const V t111 = c[1] * t107;
        // real block of 3, multiplier 2
        const V t112 = t26 + t44;
        const V t113 = t26 - t44;
        const V t114 = t112 + t8;
        const V t115 = c[0] * t112;
        const V t116 = t8 - t115;
        const V t117 = c[1] * t113;
        // real block of 3, multiplier 2
        const V t118 = t32 + t50;
        const V t119 = t32 - t50;
        const V t120 = t118 + t14;
        const V t121 = c[0] * t118;
        const V t122 = t14 - t121;
        const V t123 = c[1] * t119;
        // real block of 3, multiplier 2
        const V t124 = t114 + t120;
        const V t125 = t114 - t120;
        const V t126 = t124 + t108;
        const V t127 = c[0] * t124;
        const V t128 = t108 - t127;
        const V t129 = c[1] * t125;
        // real block of 9, multiplier 2
        const V t130 = c[2] * t117;
        const V t131 = c[3] * t116;
        const V t132 = t131 + t130;
        const V t133 = c[2] * t116;
        const V t134 = c[3] * t117;
        const V t135 = t134 - t133;
        const V t136 = c[4] * t123;
        const V t137 = c[5] * t122;
        const V t138 = t136 - t137;
        const V t139 = c[4] * t122;
        const V t140 = c[5] * t123;
        const V t141 = t140 + t139;
        // complex block of 3, multiplier 2
        const V t142 = t132 + t138;
        const V t143 = t135 - t141;
        const V t144 = t132 - t138;
        const V t145 = t135 + t141;
        const V t146 = t142 + t110;
        const V t147 = t143 + t111;
        const V t148 = c[0] * t142;
        const V t149 = t110 - t148;
        const V t150 = c[0] * t143;
        const V t151 = t111 - t150;
        const V t152 = c[1] * t144;
        const V t153 = c[1] * t145;
        const V t154 = t149 + t153;
        const V t155 = t151 - t152;
        const V t156 = t149 - t153;
        const V t157 = t151 + t152;
        // real block of 3, multiplier 2
        const V t158 = t22 + t40;
        const V t159 = t22 - t40;
        const V t160 = t158 + t4;
        const V t161 = c[0] * t158;
        const V t162 = t4 - t161;
        const V t163 = c[1] * t159;
        // real block of 3, multiplier 2
        const V t164 = t28 + t46;
        const V t165 = t28 - t46;
        const V t166 = t164 + t10;
        const V t167 = c[0] * t164;
        const V t168 = t10 - t167;
        const V t169 = c[1] * t165;
        // real block of 3, multiplier 2
        const V t170 = t34 + t52;
        const V t171 = t34 - t52;
        const V t172 = t170 + t16;
        const V t173 = c[0] * t170;
        const V t174 = t16 - t173;
        const V t175 = c[1] * t171;
        // real block of 3, multiplier 2
        const V t176 = t166 + t172;
        const V t177 = t166 - t172;
        const V t178 = t176 + t160;
        const V t179 = c[0] * t176;
        const V t180 = t160 - t179;
        const V t181 = c[1] * t177;
        // real block of 9, multiplier 2
        const V t182 = c[2] * t169;
        const V t183 = c[3] * t168;
        const V t184 = t183 + t182;
        const V t185 = c[2] * t168;
        const V t186 = c[3] * t169;
        const V t187 = t186 - t185;
        const V t188 = c[4] * t175;
        const V t189 = c[5] * t174;
        const V t190 = t188 - t189;
        const V t191 = c[4] * t174;
        const V t192 = c[5] * t175;
        const V t193 = t192 + t191;
        // complex block of 3, multiplier 2
        const V t194 = t184 + t190;
        const V t195 = t187 - t193;
        const V t196 = t184 - t190;
        const V t197 = t187 + t193;
        const V t198 = t194 + t162;
        const V t199 = t195 + t163;
        const V t200 = c[0] * t194;
        const V t201 = t162 - t200;
        const V t202 = c[0] * t195;
        const V t203 = t163 - t202;
        const V t204 = c[1] * t196;
        const V t205 = c[1] * t197;
        const V t206 = t201 + t205;
        const V t207 = t203 - t204;
        const V t208 = t201 - t205;
        const V t209 = t203 + t204;
        // real block of 3, multiplier 2
        const V t210 = t126 + t178;
        const V t211 = t126 - t178;
        const V t212 = t210 + t74;
        io.re(0, t212);
        const V t213 = c[0] * t210;
        const V t214 = t74 - t213;
        io.re(18, t214);
        const V t215 = c[1] * t211;
        io.im(18, t215);
        // real block of 27, multiplier 2
        const V t216 = c[10] * t147;
        const V t217 = c[11] * t146;
        const V t218 = t217 + t216;
        const V t219 = c[10] * t146;
        const V t220 = c[11] * t147;
        const V t221 = t220 - t219;
        const V t222 = c[6] * t199;
        const V t223 = c[7] * t198;
        const V t224 = t223 + t222;
        const V t225 = c[6] * t198;
        const V t226 = c[7] * t199;
        const V t227 = t226 - t225;
        // complex block of 3, multiplier 2
        const V t228 = t218 + t224;
        const V t229 = t221 + t227;
        const V t230 = t218 - t224;
        const V t231 = t221 - t227;
        const V t232 = t228 + t94;
        io.re(2, t232);
        const V t233 = t229 + t95;
        io.im(2, t233);
        const V t234 = c[0] * t228;
        const V t235 = t94 - t234;
        const V t236 = c[0] * t229;
        const V t237 = t95 - t236;
        const V t238 = c[1] * t230;
        const V t239 = c[1] * t231;
        const V t240 = t235 + t239;
        io.re(16, t240);
        const V t241 = t237 - t238;
        io.minusIm(16, t241);
        const V t242 = t235 - t239;
        io.re(20, t242);
        const V t243 = t237 + t238;
        io.im(20, t243);
        // real block of 27, multiplier 2
        const V t244 = c[6] * t155;
        const V t245 = c[7] * t154;
        const V t246 = t245 - t244;
        const V t247 = c[6] * t154;
        const V t248 = c[7] * t155;
        const V t249 = t248 + t247;
        const V t250 = c[8] * t207;
        const V t251 = c[9] * t206;
        const V t252 = t251 + t250;
        const V t253 = c[8] * t206;
        const V t254 = c[9] * t207;
        const V t255 = t254 - t253;
        // complex block of 3, multiplier 2
        const V t256 = t246 - t252;
        const V t257 = t255 - t249;
        const V t258 = t246 + t252;
        const V t259 = t249 + t255;
        const V t260 = t256 + t102;
        io.re(4, t260);
        const V t261 = t257 - t103;
        io.im(4, t261);
        const V t262 = c[0] * t256;
        const V t263 = t102 - t262;
        const V t264 = c[0] * t257;
        const V t265 = t103 + t264;
        const V t266 = c[1] * t258;
        const V t267 = c[1] * t259;
        const V t268 = t263 - t267;
        io.re(14, t268);
        const V t269 = t265 + t266;
        io.im(14, t269);
        const V t270 = t263 + t267;
        io.re(22, t270);
        const V t271 = t266 - t265;
        io.im(22, t271);
        // real block of 27, multiplier 2
        const V t272 = c[2] * t129;
        const V t273 = c[3] * t128;
        const V t274 = t273 + t272;
        const V t275 = c[2] * t128;
        const V t276 = c[3] * t129;
        const V t277 = t276 - t275;
        const V t278 = c[4] * t181;
        const V t279 = c[5] * t180;
        const V t280 = t278 - t279;
        const V t281 = c[4] * t180;
        const V t282 = c[5] * t181;
        const V t283 = t282 + t281;
        // complex block of 3, multiplier 2
        const V t284 = t274 + t280;
        const V t285 = t277 - t283;
        const V t286 = t274 - t280;
        const V t287 = t277 + t283;
        const V t288 = t284 + t76;
        io.re(6, t288);
        const V t289 = t285 + t77;
        io.im(6, t289);
        const V t290 = c[0] * t284;
        const V t291 = t76 - t290;
        const V t292 = c[0] * t285;
        const V t293 = t77 - t292;
        const V t294 = c[1] * t286;
        const V t295 = c[1] * t287;
        const V t296 = t291 + t295;
        io.re(12, t296);
        const V t297 = t293 - t294;
        io.minusIm(12, t297);
        const V t298 = t291 - t295;
        io.re(24, t298);
        const V t299 = t293 + t294;
        io.im(24, t299);
        // real block of 27, multiplier 2
        const V t300 = c[8] * t157;
        const V t301 = c[9] * t156;
        const V t302 = t300 - t301;
        const V t303 = c[8] * t156;
        const V t304 = c[9] * t157;
        const V t305 = t304 + t303;
        const V t306 = c[12] * t209;
        const V t307 = c[13] * t208;
        const V t308 = t307 + t306;
        const V t309 = c[12] * t208;
        const V t310 = c[13] * t209;
        const V t311 = t309 - t310;
        // complex block of 3, multiplier 2
        const V t312 = t302 - t308;
        const V t313 = t311 - t305;
        const V t314 = t302 + t308;
        const V t315 = t305 + t311;
        const V t316 = t312 + t104;
        io.re(8, t316);
        const V t317 = t313 + t105;
        io.im(8, t317);
        const V t318 = c[0] * t312;
        const V t319 = t104 - t318;
        const V t320 = c[0] * t313;
        const V t321 = t105 - t320;
        const V t322 = c[1] * t314;
        const V t323 = c[1] * t315;
        const V t324 = t319 - t323;
        io.re(10, t324);
        const V t325 = t321 - t322;
        io.minusIm(10, t325);
        const V t326 = t319 + t323;
        io.re(26, t326);
        const V t327 = t321 + t322;
        io.im(26, t327);
        // real block of 3, multiplier 2
        const V t328 = t19 + t37;
        const V t329 = t19 - t37;
        const V t330 = t328 + t1;
        const V t331 = c[0] * t328;
        const V t332 = t1 - t331;
        const V t333 = c[1] * t329;
        // real block of 3, multiplier 2
        const V t334 = t25 + t43;
        const V t335 = t25 - t43;
        const V t336 = t334 + t7;
        const V t337 = c[0] * t334;
        const V t338 = t7 - t337;
        const V t339 = c[1] * t335;
        // real block of 3, multiplier 2
        const V t340 = t31 + t49;
        const V t341 = t31 - t49;
        const V t342 = t340 + t13;
        const V t343 = c[0] * t340;
        const V t344 = t13 - t343;
        const V t345 = c[1] * t341;
        // real block of 3, multiplier 2
        const V t346 = t336 + t342;
        const V t347 = t336 - t342;
        const V t348 = t346 + t330;
        const V t349 = c[0] * t346;
        const V t350 = t330 - t349;
        const V t351 = c[1] * t347;
        // real block of 9, multiplier 2
        const V t352 = c[2] * t339;
        const V t353 = c[3] * t338;
        const V t354 = t353 + t352;
        const V t355 = c[2] * t338;
        const V t356 = c[3] * t339;
        const V t357 = t356 - t355;
        const V t358 = c[4] * t345;
        const V t359 = c[5] * t344;
        const V t360 = t358 - t359;
        const V t361 = c[4] * t344;
        const V t362 = c[5] * t345;
        const V t363 = t362 + t361;
        // complex block of 3, multiplier 2
        const V t364 = t354 + t360;
        const V t365 = t357 - t363;
        const V t366 = t354 - t360;
        const V t367 = t357 + t363;
        const V t368 = t364 + t332;
        const V t369 = t365 + t333;
        const V t370 = c[0] * t364;
        const V t371 = t332 - t370;
        const V t372 = c[0] * t365;
        const V t373 = t333 - t372;
        const V t374 = c[1] * t366;
        const V t375 = c[1] * t367;
        const V t376 = t371 + t375;
        const V t377 = t373 - t374;
        const V t378 = t371 - t375;
        const V t379 = t373 + t374;
        // real block of 3, multiplier 2
        const V t380 = t21 + t39;
        const V t381 = t21 - t39;
        const V t382 = t380 + t3;
        const V t383 = c[0] * t380;
        const V t384 = t3 - t383;
        const V t385 = c[1] * t381;
        // real block of 3, multiplier 2
        const V t386 = t27 + t45;
        const V t387 = t27 - t45;
        const V t388 = t386 + t9;
        const V t389 = c[0] * t386;
        const V t390 = t9 - t389;
        const V t391 = c[1] * t387;
        // real block of 3, multiplier 2
        const V t392 = t33 + t51;
        const V t393 = t33 - t51;
        const V t394 = t392 + t15;
        const V t395 = c[0] * t392;
        const V t396 = t15 - t395;
        const V t397 = c[1] * t393;
        // real block of 3, multiplier 2
        const V t398 = t388 + t394;
        const V t399 = t388 - t394;
        const V t400 = t398 + t382;
        const V t401 = c[0] * t398;
        const V t402 = t382 - t401;
        const V t403 = c[1] * t399;
        // real block of 9, multiplier 2
        const V t404 = c[2] * t391;
        const V t405 = c[3] * t390;
        const V t406 = t405 + t404;
        const V t407 = c[2] * t390;
        const V t408 = c[3] * t391;
        const V t409 = t408 - t407;
        const V t410 = c[4] * t397;
        const V t411 = c[5] * t396;
        const V t412 = t410 - t411;
        const V t413 = c[4] * t396;
        const V t414 = c[5] * t397;
        const V t415 = t414 + t413;
        // complex block of 3, multiplier 2
        const V t416 = t406 + t412;
        const V t417 = t409 - t415;
        const V t418 = t406 - t412;
        const V t419 = t409 + t415;
        const V t420 = t416 + t384;
        const V t421 = t417 + t385;
        const V t422 = c[0] * t416;
        const V t423 = t384 - t422;
        const V t424 = c[0] * t417;
        const V t425 = t385 - t424;
        const V t426 = c[1] * t418;
        const V t427 = c[1] * t419;
        const V t428 = t423 + t427;
        const V t429 = t425 - t426;
        const V t430 = t423 - t427;
        const V t431 = t425 + t426;
        // real block of 3, multiplier 2
        const V t432 = t23 + t41;
        const V t433 = t23 - t41;
        const V t434 = t432 + t5;
        const V t435 = c[0] * t432;
        const V t436 = t5 - t435;
        const V t437 = c[1] * t433;
        // real block of 3, multiplier 2
        const V t438 = t29 + t47;
        const V t439 = t29 - t47;
        const V t440 = t438 + t11;
        const V t441 = c[0] * t438;
        const V t442 = t11 - t441;
        const V t443 = c[1] * t439;
        // real block of 3, multiplier 2
        const V t444 = t35 + t53;
        const V t445 = t35 - t53;
        const V t446 = t444 + t17;
        const V t447 = c[0] * t444;
        const V t448 = t17 - t447;
        const V t449 = c[1] * t445;
        // real block of 3, multiplier 2
        const V t450 = t440 + t446;
        const V t451 = t440 - t446;
        const V t452 = t450 + t434;
        const V t453 = c[0] * t450;
        const V t454 = t434 - t453;
        const V t455 = c[1] * t451;
        // real block of 9, multiplier 2
        const V t456 = c[2] * t443;
        const V t457 = c[3] * t442;
        const V t458 = t457 + t456;
        const V t459 = c[2] * t442;
        const V t460 = c[3] * t443;
        const V t461 = t460 - t459;
        const V t462 = c[4] * t449;
        const V t463 = c[5] * t448;
        const V t464 = t462 - t463;
        const V t465 = c[4] * t448;
        const V t466 = c[5] * t449;
        const V t467 = t466 + t465;
        // complex block of 3, multiplier 2
        const V t468 = t458 + t464;
        const V t469 = t461 - t467;
        const V t470 = t458 - t464;
        const V t471 = t461 + t467;
        const V t472 = t468 + t436;
        const V t473 = t469 + t437;
        const V t474 = c[0] * t468;
        const V t475 = t436 - t474;
        const V t476 = c[0] * t469;
        const V t477 = t437 - t476;
        const V t478 = c[1] * t470;
        const V t479 = c[1] * t471;
        const V t480 = t475 + t479;
        const V t481 = t477 - t478;
        const V t482 = t475 - t479;
        const V t483 = t477 + t478;
        // real block of 3, multiplier 2
        const V t484 = t400 + t452;
        const V t485 = t400 - t452;
        const V t486 = t484 + t348;
        io.re(27, t486);
        const V t487 = c[0] * t484;
        const V t488 = t348 - t487;
        io.re(9, t488);
        const V t489 = c[1] * t485;
        io.minusIm(9, t489);
        // real block of 27, multiplier 2
        const V t490 = c[10] * t421;
        const V t491 = c[11] * t420;
        const V t492 = t491 + t490;
        const V t493 = c[10] * t420;
        const V t494 = c[11] * t421;
        const V t495 = t494 - t493;
        const V t496 = c[6] * t473;
        const V t497 = c[7] * t472;
        const V t498 = t497 + t496;
        const V t499 = c[6] * t472;
        const V t500 = c[7] * t473;
        const V t501 = t500 - t499;
        // complex block of 3, multiplier 2
        const V t502 = t492 + t498;
        const V t503 = t495 + t501;
        const V t504 = t492 - t498;
        const V t505 = t495 - t501;
        const V t506 = t502 + t368;
        io.re(25, t506);
        const V t507 = t503 + t369;
        io.minusIm(25, t507);
        const V t508 = c[0] * t502;
        const V t509 = t368 - t508;
        const V t510 = c[0] * t503;
        const V t511 = t369 - t510;
        const V t512 = c[1] * t504;
        const V t513 = c[1] * t505;
        const V t514 = t509 + t513;
        io.re(11, t514);
        const V t515 = t511 - t512;
        io.im(11, t515);
        const V t516 = t509 - t513;
        io.re(7, t516);
        const V t517 = t511 + t512;
        io.minusIm(7, t517);
        // real block of 27, multiplier 2
        const V t518 = c[6] * t429;
        const V t519 = c[7] * t428;
        const V t520 = t519 - t518;
        const V t521 = c[6] * t428;
        const V t522 = c[7] * t429;
        const V t523 = t522 + t521;
        const V t524 = c[8] * t481;
        const V t525 = c[9] * t480;
        const V t526 = t525 + t524;
        const V t527 = c[8] * t480;
        const V t528 = c[9] * t481;
        const V t529 = t528 - t527;
        // complex block of 3, multiplier 2
        const V t530 = t520 - t526;
        const V t531 = t529 - t523;
        const V t532 = t520 + t526;
        const V t533 = t523 + t529;
        const V t534 = t530 + t376;
        io.re(23, t534);
        const V t535 = t531 - t377;
        io.minusIm(23, t535);
        const V t536 = c[0] * t530;
        const V t537 = t376 - t536;
        const V t538 = c[0] * t531;
        const V t539 = t377 + t538;
        const V t540 = c[1] * t532;
        const V t541 = c[1] * t533;
        const V t542 = t537 - t541;
        io.re(13, t542);
        const V t543 = t539 + t540;
        io.minusIm(13, t543);
        const V t544 = t537 + t541;
        io.re(5, t544);
        const V t545 = t540 - t539;
        io.minusIm(5, t545);
        // real block of 27, multiplier 2
        const V t546 = c[2] * t403;
        const V t547 = c[3] * t402;
        const V t548 = t547 + t546;
        const V t549 = c[2] * t402;
        const V t550 = c[3] * t403;
        const V t551 = t550 - t549;
        const V t552 = c[4] * t455;
        const V t553 = c[5] * t454;
        const V t554 = t552 - t553;
        const V t555 = c[4] * t454;
        const V t556 = c[5] * t455;
        const V t557 = t556 + t555;
        // complex block of 3, multiplier 2
        const V t558 = t548 + t554;
        const V t559 = t551 - t557;
        const V t560 = t548 - t554;
        const V t561 = t551 + t557;
        const V t562 = t558 + t350;
        io.re(21, t562);
        const V t563 = t559 + t351;
        io.minusIm(21, t563);
        const V t564 = c[0] * t558;
        const V t565 = t350 - t564;
        const V t566 = c[0] * t559;
        const V t567 = t351 - t566;
        const V t568 = c[1] * t560;
        const V t569 = c[1] * t561;
        const V t570 = t565 + t569;
        io.re(15, t570);
        const V t571 = t567 - t568;
        io.im(15, t571);
        const V t572 = t565 - t569;
        io.re(3, t572);
        const V t573 = t567 + t568;
        io.minusIm(3, t573);
        // real block of 27, multiplier 2
        const V t574 = c[8] * t431;
        const V t575 = c[9] * t430;
        const V t576 = t574 - t575;
        const V t577 = c[8] * t430;
        const V t578 = c[9] * t431;
        const V t579 = t578 + t577;
        const V t580 = c[12] * t483;
        const V t581 = c[13] * t482;
        const V t582 = t581 + t580;
        const V t583 = c[12] * t482;
        const V t584 = c[13] * t483;
        const V t585 = t583 - t584;
        // complex block of 3, multiplier 2
        const V t586 = t576 - t582;
        const V t587 = t585 - t579;
        const V t588 = t576 + t582;
        const V t589 = t579 + t585;
        const V t590 = t586 + t378;
        io.re(19, t590);
        const V t591 = t587 + t379;
        io.minusIm(19, t591);
        const V t592 = c[0] * t586;
        const V t593 = t378 - t592;
        const V t594 = c[0] * t587;
        const V t595 = t379 - t594;
        const V t596 = c[1] * t588;
        const V t597 = c[1] * t589;
        const V t598 = t593 - t597;
        io.re(17, t598);
        const V t599 = t595 - t596;
        io.im(17, t599);
        const V t600 = t593 + t597;
        io.re(1, t600);
        const V t601 = t595 + t596;
        io.minusIm(1, t601);
    }
};

}  // namespace zulg
