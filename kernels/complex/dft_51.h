// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 51.
// Complex DFT of 51 points, prime-factor, order 3, 17.
// 498 additions, 498 subtractions, 392 multiplications (494 with `scale`); 21 constants; 104 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<51> {
    static constexpr int steps = 1490;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.5,  // c[3]: -cos 2 pi 1/3
        0.8660254037844386,  // c[4]: sin 2 pi 1/3
        0.4314031601143256,  // c[5]: -P[1] of 17
        0.281986371024157,  // c[6]: Q[1] of 17
        0.51483037864984,  // c[7]: -Q[2] of 17
        0.023972509657154296,  // c[8]: P[2] of 17
        0.4407489637509731,  // c[9]: -P[3] of 17
        0.26714294104925057,  // c[10]: Q[3] of 17
        0.31717619283272513,  // c[11]: -Q[4] of 17
        0.40623178445333147,  // c[12]: P[4] of 17
        0.508427430394848,  // c[13]: P[5] of 17
        0.08441888427414843,  // c[14]: Q[5] of 17
        0.39103912897466114,  // c[15]: -Q[6] of 17
        0.33572816326715627,  // c[16]: P[6] of 17
        0.4440524091413236,  // c[17]: -P[7] of 17
        0.2616150950075063,  // c[18]: Q[7] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: -beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3, multiplier 2
        const V x17r = io.re(17);
        const V x34r = io.re(34);
        const V t0 = x17r + x34r;
        const V x17i = io.im(17);
        const V x34i = io.im(34);
        const V t1 = x17i + x34i;
        const V t2 = x17r - x34r;
        const V t3 = x17i - x34i;
        const V x0r = io.re(0);
        const V t4 = t0 + x0r;
        const V x0i = io.im(0);
        const V t5 = t1 + x0i;
        const V t6 = c[3] * t0;
        const V t7 = x0r - t6;
        const V t8 = c[3] * t1;
        const V t9 = x0i - t8;
        const V t10 = c[4] * t2;
        const V t11 = c[4] * t3;
        const V t12 = t7 + t11;
        const V t13 = t9 - t10;
        const V t14 = t7 - t11;
        const V t15 = t9 + t10;
        // complex block of 3, multiplier 2
        const V x20r = io.re(20);
        const V x37r = io.re(37);
        const V t16 = x20r + x37r;
        const V x20i = io.im(20);
        const V x37i = io.im(37);
        const V t17 = x20i + x37i;
        const V t18 = x20r - x37r;
        const V t19 = x20i - x37i;
        const V x3r = io.re(3);
        const V t20 = t16 + x3r;
        const V x3i = io.im(3);
        const V t21 = t17 + x3i;
        const V t22 = c[3] * t16;
        const V t23 = x3r - t22;
        const V t24 = c[3] * t17;
        const V t25 = x3i - t24;
        const V t26 = c[4] * t18;
        const V t27 = c[4] * t19;
        const V t28 = t23 + t27;
        const V t29 = t25 - t26;
        const V t30 = t23 - t27;
        const V t31 = t25 + t26;
        // complex block of 3, multiplier 2
        const V x23r = io.re(23);
        const V x40r = io.re(40);
        const V t32 = x23r + x40r;
        const V x23i = io.im(23);
        const V x40i = io.im(40);
        const V t33 = x23i + x40i;
        const V t34 = x23r - x40r;
        const V t35 = x23i - x40i;
        const V x6r = io.re(6);
        const V t36 = t32 + x6r;
        const V x6i = io.im(6);
        const V t37 = t33 + x6i;
        const V t38 = c[3] * t32;
        const V t39 = x6r - t38;
        const V t40 = c[3] * t33;
        const V t41 = x6i - t40;
        const V t42 = c[4] * t34;
        const V t43 = c[4] * t35;
        const V t44 = t39 + t43;
        const V t45 = t41 - t42;
        const V t46 = t39 - t43;
        const V t47 = t41 + t42;
        // complex block of 3, multiplier 2
        const V x26r = io.re(26);
        const V x43r = io.re(43);
        const V t48 = x26r + x43r;
        const V x26i = io.im(26);
        const V x43i = io.im(43);
        const V t49 = x26i + x43i;
        const V t50 = x26r - x43r;
        const V t51 = x26i - x43i;
        const V x9r = io.re(9);
        const V t52 = t48 + x9r;
        const V x9i = io.im(9);
        const V t53 = t49 + x9i;
        const V t54 = c[3] * t48;
        const V t55 = x9r - t54;
        const V t56 = c[3] * t49;
        const V t57 = x9i - t56;
        const V t58 = c[4] * t50;
        const V t59 = c[4] * t51;
        const V t60 = t55 + t59;
        const V t61 = t57 - t58;
        const V t62 = t55 - t59;
        const V t63 = t57 + t58;
        // complex block of 3, multiplier 2
        const V x29r = io.re(29);
        const V x46r = io.re(46);
        const V t64 = x29r + x46r;
        const V x29i = io.im(29);
        const V x46i = io.im(46);
        const V t65 = x29i + x46i;
        const V t66 = x29r - x46r;
        const V t67 = x29i - x46i;
        const V x12r = io.re(12);
        const V t68 = t64 + x12r;
        const V x12i = io.im(12);
        const V t69 = t65 + x12i;
        const V t70 = c[3] * t64;
        const V t71 = x12r - t70;
        const V t72 = c[3] * t65;
        const V t73 = x12i - t72;
        const V t74 = c[4] * t66;
        const V t75 = c[4] * t67;
        const V t76 = t71 + t75;
        const V t77 = t73 - t74;
        const V t78 = t71 - t75;
        const V t79 = t73 + t74;
        // complex block of 3, multiplier 2
        const V x32r = io.re(32);
        const V x49r = io.re(49);
        const V t80 = x32r + x49r;
        const V x32i = io.im(32);
        const V x49i = io.im(49);
        const V t81 = x32i + x49i;
        const V t82 = x32r - x49r;
        const V t83 = x32i - x49i;
        const V x15r = io.re(15);
        const V t84 = t80 + x15r;
        const V x15i = io.im(15);
        const V t85 = t81 + x15i;
        const V t86 = c[3] * t80;
        const V t87 = x15r - t86;
        const V t88 = c[3] * t81;
        const V t89 = x15i - t88;
        const V t90 = c[4] * t82;
        const V t91 = c[4] * t83;
        const V t92 = t87 + t91;
        const V t93 = t89 - t90;
        const V t94 = t87 - t91;
        const V t95 = t89 + t90;
        // complex block of 3, multiplier 2
        const V x35r = io.re(35);
        const V x1r = io.re(1);
        const V t96 = x35r + x1r;
        const V x35i = io.im(35);
        const V x1i = io.im(1);
        const V t97 = x35i + x1i;
        const V t98 = x35r - x1r;
        const V t99 = x35i - x1i;
        const V x18r = io.re(18);
        const V t100 = t96 + x18r;
        const V x18i = io.im(18);
        const V t101 = t97 + x18i;
        const V t102 = c[3] * t96;
        const V t103 = x18r - t102;
        const V t104 = c[3] * t97;
        const V t105 = x18i - t104;
        const V t106 = c[4] * t98;
        const V t107 = c[4] * t99;
        const V t108 = t103 + t107;
        const V t109 = t105 - t106;
        const V t110 = t103 - t107;
        const V t111 = t105 + t106;
        // complex block of 3, multiplier 2
        const V x38r = io.re(38);
        const V x4r = io.re(4);
        const V t112 = x38r + x4r;
        const V x38i = io.im(38);
        const V x4i = io.im(4);
        const V t113 = x38i + x4i;
        const V t114 = x38r - x4r;
        const V t115 = x38i - x4i;
        const V x21r = io.re(21);
        const V t116 = t112 + x21r;
        const V x21i = io.im(21);
        const V t117 = t113 + x21i;
        const V t118 = c[3] * t112;
        const V t119 = x21r - t118;
        const V t120 = c[3] * t113;
        const V t121 = x21i - t120;
        const V t122 = c[4] * t114;
        const V t123 = c[4] * t115;
        const V t124 = t119 + t123;
        const V t125 = t121 - t122;
        const V t126 = t119 - t123;
        const V t127 = t121 + t122;
        // complex block of 3, multiplier 2
        const V x41r = io.re(41);
        const V x7r = io.re(7);
        const V t128 = x41r + x7r;
        const V x41i = io.im(41);
        const V x7i = io.im(7);
        const V t129 = x41i + x7i;
        const V t130 = x41r - x7r;
        const V t131 = x41i - x7i;
        const V x24r = io.re(24);
        const V t132 = t128 + x24r;
        const V x24i = io.im(24);
        const V t133 = t129 + x24i;
        const V t134 = c[3] * t128;
        const V t135 = x24r - t134;
        const V t136 = c[3] * t129;
        const V t137 = x24i - t136;
        const V t138 = c[4] * t130;
        const V t139 = c[4] * t131;
        const V t140 = t135 + t139;
        const V t141 = t137 - t138;
        const V t142 = t135 - t139;
        const V t143 = t137 + t138;
        // complex block of 3, multiplier 2
        const V x44r = io.re(44);
        const V x10r = io.re(10);
        const V t144 = x44r + x10r;
        const V x44i = io.im(44);
        const V x10i = io.im(10);
        const V t145 = x44i + x10i;
        const V t146 = x44r - x10r;
        const V t147 = x44i - x10i;
        const V x27r = io.re(27);
        const V t148 = t144 + x27r;
        const V x27i = io.im(27);
        const V t149 = t145 + x27i;
        const V t150 = c[3] * t144;
        const V t151 = x27r - t150;
        const V t152 = c[3] * t145;
        const V t153 = x27i - t152;
        const V t154 = c[4] * t146;
        const V t155 = c[4] * t147;
        const V t156 = t151 + t155;
        const V t157 = t153 - t154;
        const V t158 = t151 - t155;
        const V t159 = t153 + t154;
        // complex block of 3, multiplier 2
        const V x47r = io.re(47);
        const V x13r = io.re(13);
        const V t160 = x47r + x13r;
        const V x47i = io.im(47);
        const V x13i = io.im(13);
        const V t161 = x47i + x13i;
        const V t162 = x47r - x13r;
        const V t163 = x47i - x13i;
        const V x30r = io.re(30);
        const V t164 = t160 + x30r;
        const V x30i = io.im(30);
        const V t165 = t161 + x30i;
        const V t166 = c[3] * t160;
        const V t167 = x30r - t166;
        const V t168 = c[3] * t161;
        const V t169 = x30i - t168;
        const V t170 = c[4] * t162;
        const V t171 = c[4] * t163;
        const V t172 = t167 + t171;
        const V t173 = t169 - t170;
        const V t174 = t167 - t171;
        const V t175 = t169 + t170;
        // complex block of 3, multiplier 2
        const V x50r = io.re(50);
        const V x16r = io.re(16);
        const V t176 = x50r + x16r;
        const V x50i = io.im(50);
        const V x16i = io.im(16);
        const V t177 = x50i + x16i;
        const V t178 = x50r - x16r;
        const V t179 = x50i - x16i;
        const V x33r = io.re(33);
        const V t180 = t176 + x33r;
        const V x33i = io.im(33);
        const V t181 = t177 + x33i;
        const V t182 = c[3] * t176;
        const V t183 = x33r - t182;
        const V t184 = c[3] * t177;
        const V t185 = x33i - t184;
        const V t186 = c[4] * t178;
        const V t187 = c[4] * t179;
        const V t188 = t183 + t187;
        const V t189 = t185 - t186;
        const V t190 = t183 - t187;
        const V t191 = t185 + t186;
        // complex block of 3, multiplier 2
        const V x2r = io.re(2);
        const V x19r = io.re(19);
        const V t192 = x2r + x19r;
        const V x2i = io.im(2);
        const V x19i = io.im(19);
        const V t193 = x2i + x19i;
        const V t194 = x2r - x19r;
        const V t195 = x2i - x19i;
        const V x36r = io.re(36);
        const V t196 = t192 + x36r;
        const V x36i = io.im(36);
        const V t197 = t193 + x36i;
        const V t198 = c[3] * t192;
        const V t199 = x36r - t198;
        const V t200 = c[3] * t193;
        const V t201 = x36i - t200;
        const V t202 = c[4] * t194;
        const V t203 = c[4] * t195;
        const V t204 = t199 + t203;
        const V t205 = t201 - t202;
        const V t206 = t199 - t203;
        const V t207 = t201 + t202;
        // complex block of 3, multiplier 2
        const V x5r = io.re(5);
        const V x22r = io.re(22);
        const V t208 = x5r + x22r;
        const V x5i = io.im(5);
        const V x22i = io.im(22);
        const V t209 = x5i + x22i;
        const V t210 = x5r - x22r;
        const V t211 = x5i - x22i;
        const V x39r = io.re(39);
        const V t212 = t208 + x39r;
        const V x39i = io.im(39);
        const V t213 = t209 + x39i;
        const V t214 = c[3] * t208;
        const V t215 = x39r - t214;
        const V t216 = c[3] * t209;
        const V t217 = x39i - t216;
        const V t218 = c[4] * t210;
        const V t219 = c[4] * t211;
        const V t220 = t215 + t219;
        const V t221 = t217 - t218;
        const V t222 = t215 - t219;
        const V t223 = t217 + t218;
        // complex block of 3, multiplier 2
        const V x8r = io.re(8);
        const V x25r = io.re(25);
        const V t224 = x8r + x25r;
        const V x8i = io.im(8);
        const V x25i = io.im(25);
        const V t225 = x8i + x25i;
        const V t226 = x8r - x25r;
        const V t227 = x8i - x25i;
        const V x42r = io.re(42);
        const V t228 = t224 + x42r;
        const V x42i = io.im(42);
        const V t229 = t225 + x42i;
        const V t230 = c[3] * t224;
        const V t231 = x42r - t230;
        const V t232 = c[3] * t225;
        const V t233 = x42i - t232;
        const V t234 = c[4] * t226;
        const V t235 = c[4] * t227;
        const V t236 = t231 + t235;
        const V t237 = t233 - t234;
        const V t238 = t231 - t235;
        const V t239 = t233 + t234;
        // complex block of 3, multiplier 2
        const V x11r = io.re(11);
        const V x28r = io.re(28);
        const V t240 = x11r + x28r;
        const V x11i = io.im(11);
        const V x28i = io.im(28);
        const V t241 = x11i + x28i;
        const V t242 = x11r - x28r;
        const V t243 = x11i - x28i;
        const V x45r = io.re(45);
        const V t244 = t240 + x45r;
        const V x45i = io.im(45);
        const V t245 = t241 + x45i;
        const V t246 = c[3] * t240;
        const V t247 = x45r - t246;
        const V t248 = c[3] * t241;
        const V t249 = x45i - t248;
        const V t250 = c[4] * t242;
        const V t251 = c[4] * t243;
        const V t252 = t247 + t251;
        const V t253 = t249 - t250;
        const V t254 = t247 - t251;
        const V t255 = t249 + t250;
        // complex block of 3, multiplier 2
        const V x14r = io.re(14);
        const V x31r = io.re(31);
        const V t256 = x14r + x31r;
        const V x14i = io.im(14);
        const V x31i = io.im(31);
        const V t257 = x14i + x31i;
        const V t258 = x14r - x31r;
        const V t259 = x14i - x31i;
        const V x48r = io.re(48);
        const V t260 = t256 + x48r;
        const V x48i = io.im(48);
        const V t261 = t257 + x48i;
        const V t262 = c[3] * t256;
        const V t263 = x48r - t262;
        const V t264 = c[3] * t257;
        const V t265 = x48i - t264;
        const V t266 = c[4] * t258;
        const V t267 = c[4] * t259;
        const V t268 = t263 + t267;
        const V t269 = t265 - t266;
        const V t270 = t263 - t267;
        const V t271 = t265 + t266;
        // real block of 2
        const V t272 = t20 + t260;
        const V t273 = t20 - t260;
        // real block of 2
        const V t274 = t212 + t68;
        const V t275 = t212 - t68;
        // real block of 2
        const V t276 = t272 + t274;
        const V t277 = t272 - t274;
        // real block of 2
        const V t278 = t52 + t228;
        const V t279 = t52 - t228;
        // real block of 2
        const V t280 = t84 + t196;
        const V t281 = t84 - t196;
        // real block of 2
        const V t282 = t278 + t280;
        const V t283 = t278 - t280;
        // real block of 2
        const V t284 = t148 + t132;
        const V t285 = t148 - t132;
        // real block of 2
        const V t286 = t244 + t36;
        const V t287 = t244 - t36;
        // real block of 2
        const V t288 = t284 + t286;
        const V t289 = t284 - t286;
        // real block of 2
        const V t290 = t164 + t116;
        const V t291 = t164 - t116;
        // real block of 2
        const V t292 = t180 + t100;
        const V t293 = t180 - t100;
        // real block of 2
        const V t294 = t290 + t292;
        const V t295 = t290 - t292;
        // real block of 2
        const V t296 = t276 + t288;
        const V t297 = t276 - t288;
        // real block of 2
        const V t298 = t282 + t294;
        const V t299 = t282 - t294;
        // real block of 2
        const V t300 = t296 + t298;
        const V t301 = t296 - t298;
        // real block of 16
        const V t302 = c[0] * t281;
        const V t303 = c[1] * t279;
        const V t304 = t303 - t302;
        const V t305 = c[0] * t279;
        const V t306 = c[1] * t281;
        const V t307 = t306 + t305;
        const V t308 = t285 - t287;
        const V t309 = t287 + t285;
        const V t310 = c[2] * t308;
        const V t311 = c[2] * t309;
        const V t312 = c[1] * t293;
        const V t313 = c[0] * t291;
        const V t314 = t313 - t312;
        const V t315 = c[1] * t291;
        const V t316 = c[0] * t293;
        const V t317 = t316 + t315;
        // complex block of 2
        const V t318 = t273 + t310;
        const V t319 = t275 + t311;
        const V t320 = t273 - t310;
        const V t321 = t311 - t275;
        // complex block of 2
        const V t322 = t304 + t314;
        const V t323 = t307 + t317;
        const V t324 = t304 - t314;
        const V t325 = t317 - t307;
        // complex block of 2
        const V t326 = t318 + t322;
        const V t327 = t319 + t323;
        const V t328 = t318 - t322;
        const V t329 = t323 - t319;
        // complex block of 2
        const V t330 = t320 + t325;
        const V t331 = t321 - t324;
        const V t332 = t320 - t325;
        const V t333 = t321 + t324;
        // skew block of 4
        const V t334 = t283 - t295;
        const V t335 = c[2] * t334;
        const V t336 = t283 + t295;
        const V t337 = c[2] * t336;
        const V t338 = t337 - t289;
        const V t339 = t277 + t335;
        const V t340 = t289 + t337;
        const V t341 = t277 - t335;
        // real block of 2
        const V t342 = t21 + t261;
        const V t343 = t21 - t261;
        // real block of 2
        const V t344 = t213 + t69;
        const V t345 = t213 - t69;
        // real block of 2
        const V t346 = t342 + t344;
        const V t347 = t342 - t344;
        // real block of 2
        const V t348 = t53 + t229;
        const V t349 = t53 - t229;
        // real block of 2
        const V t350 = t85 + t197;
        const V t351 = t85 - t197;
        // real block of 2
        const V t352 = t348 + t350;
        const V t353 = t348 - t350;
        // real block of 2
        const V t354 = t149 + t133;
        const V t355 = t149 - t133;
        // real block of 2
        const V t356 = t245 + t37;
        const V t357 = t245 - t37;
        // real block of 2
        const V t358 = t354 + t356;
        const V t359 = t354 - t356;
        // real block of 2
        const V t360 = t165 + t117;
        const V t361 = t165 - t117;
        // real block of 2
        const V t362 = t181 + t101;
        const V t363 = t181 - t101;
        // real block of 2
        const V t364 = t360 + t362;
        const V t365 = t360 - t362;
        // real block of 2
        const V t366 = t346 + t358;
        const V t367 = t346 - t358;
        // real block of 2
        const V t368 = t352 + t364;
        const V t369 = t352 - t364;
        // real block of 2
        const V t370 = t366 + t368;
        const V t371 = t366 - t368;
        // real block of 16
        const V t372 = c[0] * t351;
        const V t373 = c[1] * t349;
        const V t374 = t373 - t372;
        const V t375 = c[0] * t349;
        const V t376 = c[1] * t351;
        const V t377 = t376 + t375;
        const V t378 = t355 - t357;
        const V t379 = t357 + t355;
        const V t380 = c[2] * t378;
        const V t381 = c[2] * t379;
        const V t382 = c[1] * t363;
        const V t383 = c[0] * t361;
        const V t384 = t383 - t382;
        const V t385 = c[1] * t361;
        const V t386 = c[0] * t363;
        const V t387 = t386 + t385;
        // complex block of 2
        const V t388 = t343 + t380;
        const V t389 = t345 + t381;
        const V t390 = t343 - t380;
        const V t391 = t381 - t345;
        // complex block of 2
        const V t392 = t374 + t384;
        const V t393 = t377 + t387;
        const V t394 = t374 - t384;
        const V t395 = t387 - t377;
        // complex block of 2
        const V t396 = t388 + t392;
        const V t397 = t389 + t393;
        const V t398 = t388 - t392;
        const V t399 = t393 - t389;
        // complex block of 2
        const V t400 = t390 + t395;
        const V t401 = t391 - t394;
        const V t402 = t390 - t395;
        const V t403 = t391 + t394;
        // skew block of 4
        const V t404 = t353 - t365;
        const V t405 = c[2] * t404;
        const V t406 = t353 + t365;
        const V t407 = c[2] * t406;
        const V t408 = t407 - t359;
        const V t409 = t347 + t405;
        const V t410 = t359 + t407;
        const V t411 = t347 - t405;
        // complex block of 17, multiplier 3
        const V t412 = t4 + t300;
        io.re(0, t412);
        const V t413 = t5 + t370;
        io.im(0, t413);
        const V t414 = c[19] * t300;
        const V t415 = t4 - t414;
        const V t416 = c[19] * t370;
        const V t417 = t5 - t416;
        const V t418 = c[5] * t397;
        const V t419 = c[6] * t396;
        const V t420 = t419 - t418;
        const V t421 = c[5] * t396;
        const V t422 = c[6] * t397;
        const V t423 = t422 + t421;
        const V t424 = c[5] * t327;
        const V t425 = c[6] * t326;
        const V t426 = t424 - t425;
        const V t427 = c[5] * t326;
        const V t428 = c[6] * t327;
        const V t429 = t428 + t427;
        const V t430 = c[7] * t340;
        const V t431 = c[8] * t339;
        const V t432 = t431 - t430;
        const V t433 = c[7] * t339;
        const V t434 = c[8] * t340;
        const V t435 = t434 + t433;
        const V t436 = c[7] * t410;
        const V t437 = c[8] * t409;
        const V t438 = t437 - t436;
        const V t439 = c[7] * t409;
        const V t440 = c[8] * t410;
        const V t441 = t440 + t439;
        const V t442 = c[9] * t403;
        const V t443 = c[10] * t402;
        const V t444 = t443 - t442;
        const V t445 = c[9] * t402;
        const V t446 = c[10] * t403;
        const V t447 = t446 + t445;
        const V t448 = c[9] * t333;
        const V t449 = c[10] * t332;
        const V t450 = t448 - t449;
        const V t451 = c[9] * t332;
        const V t452 = c[10] * t333;
        const V t453 = t452 + t451;
        const V t454 = c[11] * t299;
        const V t455 = c[12] * t297;
        const V t456 = t455 - t454;
        const V t457 = c[11] * t297;
        const V t458 = c[12] * t299;
        const V t459 = t458 + t457;
        const V t460 = c[11] * t369;
        const V t461 = c[12] * t367;
        const V t462 = t461 - t460;
        const V t463 = c[11] * t367;
        const V t464 = c[12] * t369;
        const V t465 = t464 + t463;
        const V t466 = c[13] * t401;
        const V t467 = c[14] * t400;
        const V t468 = t467 - t466;
        const V t469 = c[13] * t400;
        const V t470 = c[14] * t401;
        const V t471 = t470 + t469;
        const V t472 = c[13] * t331;
        const V t473 = c[14] * t330;
        const V t474 = t472 - t473;
        const V t475 = c[13] * t330;
        const V t476 = c[14] * t331;
        const V t477 = t476 + t475;
        const V t478 = c[15] * t338;
        const V t479 = c[16] * t341;
        const V t480 = t479 - t478;
        const V t481 = c[15] * t341;
        const V t482 = c[16] * t338;
        const V t483 = t482 + t481;
        const V t484 = c[15] * t408;
        const V t485 = c[16] * t411;
        const V t486 = t485 - t484;
        const V t487 = c[15] * t411;
        const V t488 = c[16] * t408;
        const V t489 = t488 + t487;
        const V t490 = c[17] * t399;
        const V t491 = c[18] * t398;
        const V t492 = t491 - t490;
        const V t493 = c[17] * t398;
        const V t494 = c[18] * t399;
        const V t495 = t494 + t493;
        const V t496 = c[17] * t329;
        const V t497 = c[18] * t328;
        const V t498 = t496 - t497;
        const V t499 = c[17] * t328;
        const V t500 = c[18] * t329;
        const V t501 = t500 + t499;
        const V t502 = c[20] * t301;
        const V t503 = c[20] * t371;
        // spectrum block of 2
        const V t504 = t415 - t502;
        const V t505 = t415 + t502;
        // spectrum block of 2
        const V t506 = t504 + t456;
        const V t507 = t504 - t456;
        // spectrum block of 2
        const V t508 = t505 + t459;
        const V t509 = t505 - t459;
        // complex block of 2
        const V t510 = t495 - t423;
        const V t511 = t420 + t492;
        const V t512 = t423 + t495;
        const V t513 = t420 - t492;
        // complex block of 2
        const V t514 = t471 + t447;
        const V t515 = t468 + t444;
        const V t516 = t471 - t447;
        const V t517 = t468 - t444;
        // complex block of 2
        const V t518 = t510 + t514;
        const V t519 = t511 + t515;
        const V t520 = t510 - t514;
        const V t521 = t511 - t515;
        // complex block of 2
        const V t522 = t517 - t512;
        const V t523 = t513 - t516;
        const V t524 = t512 + t517;
        const V t525 = t513 + t516;
        // spectrum block of 16
        const V t526 = c[0] * t522;
        const V t527 = c[1] * t523;
        const V t528 = t527 - t526;
        const V t529 = c[0] * t523;
        const V t530 = c[1] * t522;
        const V t531 = t530 + t529;
        const V t532 = t521 + t520;
        const V t533 = t520 - t521;
        const V t534 = c[2] * t532;
        const V t535 = c[2] * t533;
        const V t536 = c[1] * t524;
        const V t537 = c[0] * t525;
        const V t538 = t537 + t536;
        const V t539 = c[1] * t525;
        const V t540 = c[0] * t524;
        const V t541 = t539 - t540;
        // mirrored skew block of 4
        const V t542 = t432 - t480;
        const V t543 = c[2] * t542;
        const V t544 = t435 + t483;
        const V t545 = c[2] * t544;
        const V t546 = t432 + t480;
        const V t547 = t543 + t545;
        const V t548 = t483 - t435;
        const V t549 = t543 - t545;
        // spectrum block of 2
        const V t550 = t506 + t546;
        const V t551 = t506 - t546;
        // spectrum block of 2
        const V t552 = t550 + t519;
        io.re(3, t552);
        const V t553 = t550 - t519;
        io.re(48, t553);
        // spectrum block of 2
        const V t554 = t551 - t518;
        io.re(12, t554);
        const V t555 = t551 + t518;
        io.re(39, t555);
        // spectrum block of 2
        const V t556 = t508 + t547;
        const V t557 = t508 - t547;
        // spectrum block of 2
        const V t558 = t556 + t528;
        io.re(18, t558);
        const V t559 = t556 - t528;
        io.re(33, t559);
        // spectrum block of 2
        const V t560 = t557 - t531;
        io.re(21, t560);
        const V t561 = t557 + t531;
        io.re(30, t561);
        // spectrum block of 2
        const V t562 = t507 - t548;
        const V t563 = t507 + t548;
        // spectrum block of 2
        const V t564 = t562 - t535;
        io.re(6, t564);
        const V t565 = t562 + t535;
        io.re(45, t565);
        // spectrum block of 2
        const V t566 = t563 - t534;
        io.re(24, t566);
        const V t567 = t563 + t534;
        io.re(27, t567);
        // spectrum block of 2
        const V t568 = t509 - t549;
        const V t569 = t509 + t549;
        // spectrum block of 2
        const V t570 = t568 + t538;
        io.re(36, t570);
        const V t571 = t568 - t538;
        io.re(15, t571);
        // spectrum block of 2
        const V t572 = t569 - t541;
        io.re(42, t572);
        const V t573 = t569 + t541;
        io.re(9, t573);
        // spectrum block of 2
        const V t574 = t417 - t503;
        const V t575 = t417 + t503;
        // spectrum block of 2
        const V t576 = t574 + t462;
        const V t577 = t574 - t462;
        // spectrum block of 2
        const V t578 = t575 + t465;
        const V t579 = t575 - t465;
        // complex block of 2
        const V t580 = t429 - t501;
        const V t581 = t426 + t498;
        const V t582 = t429 + t501;
        const V t583 = t426 - t498;
        // complex block of 2
        const V t584 = t477 + t453;
        const V t585 = t474 + t450;
        const V t586 = t453 - t477;
        const V t587 = t474 - t450;
        // complex block of 2
        const V t588 = t580 - t584;
        const V t589 = t581 + t585;
        const V t590 = t580 + t584;
        const V t591 = t581 - t585;
        // complex block of 2
        const V t592 = t582 + t587;
        const V t593 = t583 - t586;
        const V t594 = t582 - t587;
        const V t595 = t583 + t586;
        // spectrum block of 16
        const V t596 = c[0] * t592;
        const V t597 = c[1] * t593;
        const V t598 = t597 - t596;
        const V t599 = c[0] * t593;
        const V t600 = c[1] * t592;
        const V t601 = t600 + t599;
        const V t602 = t591 + t590;
        const V t603 = t590 - t591;
        const V t604 = c[2] * t602;
        const V t605 = c[2] * t603;
        const V t606 = c[1] * t594;
        const V t607 = c[0] * t595;
        const V t608 = t607 - t606;
        const V t609 = c[1] * t595;
        const V t610 = c[0] * t594;
        const V t611 = t610 + t609;
        // mirrored skew block of 4
        const V t612 = t438 - t486;
        const V t613 = c[2] * t612;
        const V t614 = t441 + t489;
        const V t615 = c[2] * t614;
        const V t616 = t438 + t486;
        const V t617 = t613 + t615;
        const V t618 = t489 - t441;
        const V t619 = t613 - t615;
        // spectrum block of 2
        const V t620 = t576 + t616;
        const V t621 = t576 - t616;
        // spectrum block of 2
        const V t622 = t620 + t589;
        io.im(3, t622);
        const V t623 = t620 - t589;
        io.im(48, t623);
        // spectrum block of 2
        const V t624 = t621 - t588;
        io.im(12, t624);
        const V t625 = t621 + t588;
        io.im(39, t625);
        // spectrum block of 2
        const V t626 = t578 + t617;
        const V t627 = t578 - t617;
        // spectrum block of 2
        const V t628 = t626 + t598;
        io.im(18, t628);
        const V t629 = t626 - t598;
        io.im(33, t629);
        // spectrum block of 2
        const V t630 = t627 - t601;
        io.im(21, t630);
        const V t631 = t627 + t601;
        io.im(30, t631);
        // spectrum block of 2
        const V t632 = t577 - t618;
        const V t633 = t577 + t618;
        // spectrum block of 2
        const V t634 = t632 - t605;
        io.im(6, t634);
        const V t635 = t632 + t605;
        io.im(45, t635);
        // spectrum block of 2
        const V t636 = t633 - t604;
        io.im(24, t636);
        const V t637 = t633 + t604;
        io.im(27, t637);
        // spectrum block of 2
        const V t638 = t579 - t619;
        const V t639 = t579 + t619;
        // spectrum block of 2
        const V t640 = t638 + t608;
        io.im(36, t640);
        const V t641 = t638 - t608;
        io.im(15, t641);
        // spectrum block of 2
        const V t642 = t639 - t611;
        io.im(42, t642);
        const V t643 = t639 + t611;
        io.im(9, t643);
        // real block of 2
        const V t644 = t30 + t270;
        const V t645 = t30 - t270;
        // real block of 2
        const V t646 = t222 + t78;
        const V t647 = t222 - t78;
        // real block of 2
        const V t648 = t644 + t646;
        const V t649 = t644 - t646;
        // real block of 2
        const V t650 = t62 + t238;
        const V t651 = t62 - t238;
        // real block of 2
        const V t652 = t94 + t206;
        const V t653 = t94 - t206;
        // real block of 2
        const V t654 = t650 + t652;
        const V t655 = t650 - t652;
        // real block of 2
        const V t656 = t158 + t142;
        const V t657 = t158 - t142;
        // real block of 2
        const V t658 = t254 + t46;
        const V t659 = t254 - t46;
        // real block of 2
        const V t660 = t656 + t658;
        const V t661 = t656 - t658;
        // real block of 2
        const V t662 = t174 + t126;
        const V t663 = t174 - t126;
        // real block of 2
        const V t664 = t190 + t110;
        const V t665 = t190 - t110;
        // real block of 2
        const V t666 = t662 + t664;
        const V t667 = t662 - t664;
        // real block of 2
        const V t668 = t648 + t660;
        const V t669 = t648 - t660;
        // real block of 2
        const V t670 = t654 + t666;
        const V t671 = t654 - t666;
        // real block of 2
        const V t672 = t668 + t670;
        const V t673 = t668 - t670;
        // real block of 16
        const V t674 = c[0] * t653;
        const V t675 = c[1] * t651;
        const V t676 = t675 - t674;
        const V t677 = c[0] * t651;
        const V t678 = c[1] * t653;
        const V t679 = t678 + t677;
        const V t680 = t657 - t659;
        const V t681 = t659 + t657;
        const V t682 = c[2] * t680;
        const V t683 = c[2] * t681;
        const V t684 = c[1] * t665;
        const V t685 = c[0] * t663;
        const V t686 = t685 - t684;
        const V t687 = c[1] * t663;
        const V t688 = c[0] * t665;
        const V t689 = t688 + t687;
        // complex block of 2
        const V t690 = t645 + t682;
        const V t691 = t647 + t683;
        const V t692 = t645 - t682;
        const V t693 = t683 - t647;
        // complex block of 2
        const V t694 = t676 + t686;
        const V t695 = t679 + t689;
        const V t696 = t676 - t686;
        const V t697 = t689 - t679;
        // complex block of 2
        const V t698 = t690 + t694;
        const V t699 = t691 + t695;
        const V t700 = t690 - t694;
        const V t701 = t695 - t691;
        // complex block of 2
        const V t702 = t692 + t697;
        const V t703 = t693 - t696;
        const V t704 = t692 - t697;
        const V t705 = t693 + t696;
        // skew block of 4
        const V t706 = t655 - t667;
        const V t707 = c[2] * t706;
        const V t708 = t655 + t667;
        const V t709 = c[2] * t708;
        const V t710 = t709 - t661;
        const V t711 = t649 + t707;
        const V t712 = t661 + t709;
        const V t713 = t649 - t707;
        // real block of 2
        const V t714 = t31 + t271;
        const V t715 = t31 - t271;
        // real block of 2
        const V t716 = t223 + t79;
        const V t717 = t223 - t79;
        // real block of 2
        const V t718 = t714 + t716;
        const V t719 = t714 - t716;
        // real block of 2
        const V t720 = t63 + t239;
        const V t721 = t63 - t239;
        // real block of 2
        const V t722 = t95 + t207;
        const V t723 = t95 - t207;
        // real block of 2
        const V t724 = t720 + t722;
        const V t725 = t720 - t722;
        // real block of 2
        const V t726 = t159 + t143;
        const V t727 = t159 - t143;
        // real block of 2
        const V t728 = t255 + t47;
        const V t729 = t255 - t47;
        // real block of 2
        const V t730 = t726 + t728;
        const V t731 = t726 - t728;
        // real block of 2
        const V t732 = t175 + t127;
        const V t733 = t175 - t127;
        // real block of 2
        const V t734 = t191 + t111;
        const V t735 = t191 - t111;
        // real block of 2
        const V t736 = t732 + t734;
        const V t737 = t732 - t734;
        // real block of 2
        const V t738 = t718 + t730;
        const V t739 = t718 - t730;
        // real block of 2
        const V t740 = t724 + t736;
        const V t741 = t724 - t736;
        // real block of 2
        const V t742 = t738 + t740;
        const V t743 = t738 - t740;
        // real block of 16
        const V t744 = c[0] * t723;
        const V t745 = c[1] * t721;
        const V t746 = t745 - t744;
        const V t747 = c[0] * t721;
        const V t748 = c[1] * t723;
        const V t749 = t748 + t747;
        const V t750 = t727 - t729;
        const V t751 = t729 + t727;
        const V t752 = c[2] * t750;
        const V t753 = c[2] * t751;
        const V t754 = c[1] * t735;
        const V t755 = c[0] * t733;
        const V t756 = t755 - t754;
        const V t757 = c[1] * t733;
        const V t758 = c[0] * t735;
        const V t759 = t758 + t757;
        // complex block of 2
        const V t760 = t715 + t752;
        const V t761 = t717 + t753;
        const V t762 = t715 - t752;
        const V t763 = t753 - t717;
        // complex block of 2
        const V t764 = t746 + t756;
        const V t765 = t749 + t759;
        const V t766 = t746 - t756;
        const V t767 = t759 - t749;
        // complex block of 2
        const V t768 = t760 + t764;
        const V t769 = t761 + t765;
        const V t770 = t760 - t764;
        const V t771 = t765 - t761;
        // complex block of 2
        const V t772 = t762 + t767;
        const V t773 = t763 - t766;
        const V t774 = t762 - t767;
        const V t775 = t763 + t766;
        // skew block of 4
        const V t776 = t725 - t737;
        const V t777 = c[2] * t776;
        const V t778 = t725 + t737;
        const V t779 = c[2] * t778;
        const V t780 = t779 - t731;
        const V t781 = t719 + t777;
        const V t782 = t731 + t779;
        const V t783 = t719 - t777;
        // complex block of 17, multiplier 3
        const V t784 = t14 + t672;
        io.re(17, t784);
        const V t785 = t15 + t742;
        io.im(17, t785);
        const V t786 = c[19] * t672;
        const V t787 = t14 - t786;
        const V t788 = c[19] * t742;
        const V t789 = t15 - t788;
        const V t790 = c[5] * t769;
        const V t791 = c[6] * t768;
        const V t792 = t791 - t790;
        const V t793 = c[5] * t768;
        const V t794 = c[6] * t769;
        const V t795 = t794 + t793;
        const V t796 = c[5] * t699;
        const V t797 = c[6] * t698;
        const V t798 = t796 - t797;
        const V t799 = c[5] * t698;
        const V t800 = c[6] * t699;
        const V t801 = t800 + t799;
        const V t802 = c[7] * t712;
        const V t803 = c[8] * t711;
        const V t804 = t803 - t802;
        const V t805 = c[7] * t711;
        const V t806 = c[8] * t712;
        const V t807 = t806 + t805;
        const V t808 = c[7] * t782;
        const V t809 = c[8] * t781;
        const V t810 = t809 - t808;
        const V t811 = c[7] * t781;
        const V t812 = c[8] * t782;
        const V t813 = t812 + t811;
        const V t814 = c[9] * t775;
        const V t815 = c[10] * t774;
        const V t816 = t815 - t814;
        const V t817 = c[9] * t774;
        const V t818 = c[10] * t775;
        const V t819 = t818 + t817;
        const V t820 = c[9] * t705;
        const V t821 = c[10] * t704;
        const V t822 = t820 - t821;
        const V t823 = c[9] * t704;
        const V t824 = c[10] * t705;
        const V t825 = t824 + t823;
        const V t826 = c[11] * t671;
        const V t827 = c[12] * t669;
        const V t828 = t827 - t826;
        const V t829 = c[11] * t669;
        const V t830 = c[12] * t671;
        const V t831 = t830 + t829;
        const V t832 = c[11] * t741;
        const V t833 = c[12] * t739;
        const V t834 = t833 - t832;
        const V t835 = c[11] * t739;
        const V t836 = c[12] * t741;
        const V t837 = t836 + t835;
        const V t838 = c[13] * t773;
        const V t839 = c[14] * t772;
        const V t840 = t839 - t838;
        const V t841 = c[13] * t772;
        const V t842 = c[14] * t773;
        const V t843 = t842 + t841;
        const V t844 = c[13] * t703;
        const V t845 = c[14] * t702;
        const V t846 = t844 - t845;
        const V t847 = c[13] * t702;
        const V t848 = c[14] * t703;
        const V t849 = t848 + t847;
        const V t850 = c[15] * t710;
        const V t851 = c[16] * t713;
        const V t852 = t851 - t850;
        const V t853 = c[15] * t713;
        const V t854 = c[16] * t710;
        const V t855 = t854 + t853;
        const V t856 = c[15] * t780;
        const V t857 = c[16] * t783;
        const V t858 = t857 - t856;
        const V t859 = c[15] * t783;
        const V t860 = c[16] * t780;
        const V t861 = t860 + t859;
        const V t862 = c[17] * t771;
        const V t863 = c[18] * t770;
        const V t864 = t863 - t862;
        const V t865 = c[17] * t770;
        const V t866 = c[18] * t771;
        const V t867 = t866 + t865;
        const V t868 = c[17] * t701;
        const V t869 = c[18] * t700;
        const V t870 = t868 - t869;
        const V t871 = c[17] * t700;
        const V t872 = c[18] * t701;
        const V t873 = t872 + t871;
        const V t874 = c[20] * t673;
        const V t875 = c[20] * t743;
        // spectrum block of 2
        const V t876 = t787 - t874;
        const V t877 = t787 + t874;
        // spectrum block of 2
        const V t878 = t876 + t828;
        const V t879 = t876 - t828;
        // spectrum block of 2
        const V t880 = t877 + t831;
        const V t881 = t877 - t831;
        // complex block of 2
        const V t882 = t867 - t795;
        const V t883 = t792 + t864;
        const V t884 = t795 + t867;
        const V t885 = t792 - t864;
        // complex block of 2
        const V t886 = t843 + t819;
        const V t887 = t840 + t816;
        const V t888 = t843 - t819;
        const V t889 = t840 - t816;
        // complex block of 2
        const V t890 = t882 + t886;
        const V t891 = t883 + t887;
        const V t892 = t882 - t886;
        const V t893 = t883 - t887;
        // complex block of 2
        const V t894 = t889 - t884;
        const V t895 = t885 - t888;
        const V t896 = t884 + t889;
        const V t897 = t885 + t888;
        // spectrum block of 16
        const V t898 = c[0] * t894;
        const V t899 = c[1] * t895;
        const V t900 = t899 - t898;
        const V t901 = c[0] * t895;
        const V t902 = c[1] * t894;
        const V t903 = t902 + t901;
        const V t904 = t893 + t892;
        const V t905 = t892 - t893;
        const V t906 = c[2] * t904;
        const V t907 = c[2] * t905;
        const V t908 = c[1] * t896;
        const V t909 = c[0] * t897;
        const V t910 = t909 + t908;
        const V t911 = c[1] * t897;
        const V t912 = c[0] * t896;
        const V t913 = t911 - t912;
        // mirrored skew block of 4
        const V t914 = t804 - t852;
        const V t915 = c[2] * t914;
        const V t916 = t807 + t855;
        const V t917 = c[2] * t916;
        const V t918 = t804 + t852;
        const V t919 = t915 + t917;
        const V t920 = t855 - t807;
        const V t921 = t915 - t917;
        // spectrum block of 2
        const V t922 = t878 + t918;
        const V t923 = t878 - t918;
        // spectrum block of 2
        const V t924 = t922 + t891;
        io.re(20, t924);
        const V t925 = t922 - t891;
        io.re(14, t925);
        // spectrum block of 2
        const V t926 = t923 - t890;
        io.re(29, t926);
        const V t927 = t923 + t890;
        io.re(5, t927);
        // spectrum block of 2
        const V t928 = t880 + t919;
        const V t929 = t880 - t919;
        // spectrum block of 2
        const V t930 = t928 + t900;
        io.re(35, t930);
        const V t931 = t928 - t900;
        io.re(50, t931);
        // spectrum block of 2
        const V t932 = t929 - t903;
        io.re(38, t932);
        const V t933 = t929 + t903;
        io.re(47, t933);
        // spectrum block of 2
        const V t934 = t879 - t920;
        const V t935 = t879 + t920;
        // spectrum block of 2
        const V t936 = t934 - t907;
        io.re(23, t936);
        const V t937 = t934 + t907;
        io.re(11, t937);
        // spectrum block of 2
        const V t938 = t935 - t906;
        io.re(41, t938);
        const V t939 = t935 + t906;
        io.re(44, t939);
        // spectrum block of 2
        const V t940 = t881 - t921;
        const V t941 = t881 + t921;
        // spectrum block of 2
        const V t942 = t940 + t910;
        io.re(2, t942);
        const V t943 = t940 - t910;
        io.re(32, t943);
        // spectrum block of 2
        const V t944 = t941 - t913;
        io.re(8, t944);
        const V t945 = t941 + t913;
        io.re(26, t945);
        // spectrum block of 2
        const V t946 = t789 - t875;
        const V t947 = t789 + t875;
        // spectrum block of 2
        const V t948 = t946 + t834;
        const V t949 = t946 - t834;
        // spectrum block of 2
        const V t950 = t947 + t837;
        const V t951 = t947 - t837;
        // complex block of 2
        const V t952 = t801 - t873;
        const V t953 = t798 + t870;
        const V t954 = t801 + t873;
        const V t955 = t798 - t870;
        // complex block of 2
        const V t956 = t849 + t825;
        const V t957 = t846 + t822;
        const V t958 = t825 - t849;
        const V t959 = t846 - t822;
        // complex block of 2
        const V t960 = t952 - t956;
        const V t961 = t953 + t957;
        const V t962 = t952 + t956;
        const V t963 = t953 - t957;
        // complex block of 2
        const V t964 = t954 + t959;
        const V t965 = t955 - t958;
        const V t966 = t954 - t959;
        const V t967 = t955 + t958;
        // spectrum block of 16
        const V t968 = c[0] * t964;
        const V t969 = c[1] * t965;
        const V t970 = t969 - t968;
        const V t971 = c[0] * t965;
        const V t972 = c[1] * t964;
        const V t973 = t972 + t971;
        const V t974 = t963 + t962;
        const V t975 = t962 - t963;
        const V t976 = c[2] * t974;
        const V t977 = c[2] * t975;
        const V t978 = c[1] * t966;
        const V t979 = c[0] * t967;
        const V t980 = t979 - t978;
        const V t981 = c[1] * t967;
        const V t982 = c[0] * t966;
        const V t983 = t982 + t981;
        // mirrored skew block of 4
        const V t984 = t810 - t858;
        const V t985 = c[2] * t984;
        const V t986 = t813 + t861;
        const V t987 = c[2] * t986;
        const V t988 = t810 + t858;
        const V t989 = t985 + t987;
        const V t990 = t861 - t813;
        const V t991 = t985 - t987;
        // spectrum block of 2
        const V t992 = t948 + t988;
        const V t993 = t948 - t988;
        // spectrum block of 2
        const V t994 = t992 + t961;
        io.im(20, t994);
        const V t995 = t992 - t961;
        io.im(14, t995);
        // spectrum block of 2
        const V t996 = t993 - t960;
        io.im(29, t996);
        const V t997 = t993 + t960;
        io.im(5, t997);
        // spectrum block of 2
        const V t998 = t950 + t989;
        const V t999 = t950 - t989;
        // spectrum block of 2
        const V t1000 = t998 + t970;
        io.im(35, t1000);
        const V t1001 = t998 - t970;
        io.im(50, t1001);
        // spectrum block of 2
        const V t1002 = t999 - t973;
        io.im(38, t1002);
        const V t1003 = t999 + t973;
        io.im(47, t1003);
        // spectrum block of 2
        const V t1004 = t949 - t990;
        const V t1005 = t949 + t990;
        // spectrum block of 2
        const V t1006 = t1004 - t977;
        io.im(23, t1006);
        const V t1007 = t1004 + t977;
        io.im(11, t1007);
        // spectrum block of 2
        const V t1008 = t1005 - t976;
        io.im(41, t1008);
        const V t1009 = t1005 + t976;
        io.im(44, t1009);
        // spectrum block of 2
        const V t1010 = t951 - t991;
        const V t1011 = t951 + t991;
        // spectrum block of 2
        const V t1012 = t1010 + t980;
        io.im(2, t1012);
        const V t1013 = t1010 - t980;
        io.im(32, t1013);
        // spectrum block of 2
        const V t1014 = t1011 - t983;
        io.im(8, t1014);
        const V t1015 = t1011 + t983;
        io.im(26, t1015);
        // real block of 2
        const V t1016 = t28 + t268;
        const V t1017 = t28 - t268;
        // real block of 2
        const V t1018 = t220 + t76;
        const V t1019 = t220 - t76;
        // real block of 2
        const V t1020 = t1016 + t1018;
        const V t1021 = t1016 - t1018;
        // real block of 2
        const V t1022 = t60 + t236;
        const V t1023 = t60 - t236;
        // real block of 2
        const V t1024 = t92 + t204;
        const V t1025 = t92 - t204;
        // real block of 2
        const V t1026 = t1022 + t1024;
        const V t1027 = t1022 - t1024;
        // real block of 2
        const V t1028 = t156 + t140;
        const V t1029 = t156 - t140;
        // real block of 2
        const V t1030 = t252 + t44;
        const V t1031 = t252 - t44;
        // real block of 2
        const V t1032 = t1028 + t1030;
        const V t1033 = t1028 - t1030;
        // real block of 2
        const V t1034 = t172 + t124;
        const V t1035 = t172 - t124;
        // real block of 2
        const V t1036 = t188 + t108;
        const V t1037 = t188 - t108;
        // real block of 2
        const V t1038 = t1034 + t1036;
        const V t1039 = t1034 - t1036;
        // real block of 2
        const V t1040 = t1020 + t1032;
        const V t1041 = t1020 - t1032;
        // real block of 2
        const V t1042 = t1026 + t1038;
        const V t1043 = t1026 - t1038;
        // real block of 2
        const V t1044 = t1040 + t1042;
        const V t1045 = t1040 - t1042;
        // real block of 16
        const V t1046 = c[0] * t1025;
        const V t1047 = c[1] * t1023;
        const V t1048 = t1047 - t1046;
        const V t1049 = c[0] * t1023;
        const V t1050 = c[1] * t1025;
        const V t1051 = t1050 + t1049;
        const V t1052 = t1029 - t1031;
        const V t1053 = t1031 + t1029;
        const V t1054 = c[2] * t1052;
        const V t1055 = c[2] * t1053;
        const V t1056 = c[1] * t1037;
        const V t1057 = c[0] * t1035;
        const V t1058 = t1057 - t1056;
        const V t1059 = c[1] * t1035;
        const V t1060 = c[0] * t1037;
        const V t1061 = t1060 + t1059;
        // complex block of 2
        const V t1062 = t1017 + t1054;
        const V t1063 = t1019 + t1055;
        const V t1064 = t1017 - t1054;
        const V t1065 = t1055 - t1019;
        // complex block of 2
        const V t1066 = t1048 + t1058;
        const V t1067 = t1051 + t1061;
        const V t1068 = t1048 - t1058;
        const V t1069 = t1061 - t1051;
        // complex block of 2
        const V t1070 = t1062 + t1066;
        const V t1071 = t1063 + t1067;
        const V t1072 = t1062 - t1066;
        const V t1073 = t1067 - t1063;
        // complex block of 2
        const V t1074 = t1064 + t1069;
        const V t1075 = t1065 - t1068;
        const V t1076 = t1064 - t1069;
        const V t1077 = t1065 + t1068;
        // skew block of 4
        const V t1078 = t1027 - t1039;
        const V t1079 = c[2] * t1078;
        const V t1080 = t1027 + t1039;
        const V t1081 = c[2] * t1080;
        const V t1082 = t1081 - t1033;
        const V t1083 = t1021 + t1079;
        const V t1084 = t1033 + t1081;
        const V t1085 = t1021 - t1079;
        // real block of 2
        const V t1086 = t29 + t269;
        const V t1087 = t29 - t269;
        // real block of 2
        const V t1088 = t221 + t77;
        const V t1089 = t221 - t77;
        // real block of 2
        const V t1090 = t1086 + t1088;
        const V t1091 = t1086 - t1088;
        // real block of 2
        const V t1092 = t61 + t237;
        const V t1093 = t61 - t237;
        // real block of 2
        const V t1094 = t93 + t205;
        const V t1095 = t93 - t205;
        // real block of 2
        const V t1096 = t1092 + t1094;
        const V t1097 = t1092 - t1094;
        // real block of 2
        const V t1098 = t157 + t141;
        const V t1099 = t157 - t141;
        // real block of 2
        const V t1100 = t253 + t45;
        const V t1101 = t253 - t45;
        // real block of 2
        const V t1102 = t1098 + t1100;
        const V t1103 = t1098 - t1100;
        // real block of 2
        const V t1104 = t173 + t125;
        const V t1105 = t173 - t125;
        // real block of 2
        const V t1106 = t189 + t109;
        const V t1107 = t189 - t109;
        // real block of 2
        const V t1108 = t1104 + t1106;
        const V t1109 = t1104 - t1106;
        // real block of 2
        const V t1110 = t1090 + t1102;
        const V t1111 = t1090 - t1102;
        // real block of 2
        const V t1112 = t1096 + t1108;
        const V t1113 = t1096 - t1108;
        // real block of 2
        const V t1114 = t1110 + t1112;
        const V t1115 = t1110 - t1112;
        // real block of 16
        const V t1116 = c[0] * t1095;
        const V t1117 = c[1] * t1093;
        const V t1118 = t1117 - t1116;
        const V t1119 = c[0] * t1093;
        const V t1120 = c[1] * t1095;
        const V t1121 = t1120 + t1119;
        const V t1122 = t1099 - t1101;
        const V t1123 = t1101 + t1099;
        const V t1124 = c[2] * t1122;
        const V t1125 = c[2] * t1123;
        const V t1126 = c[1] * t1107;
        const V t1127 = c[0] * t1105;
        const V t1128 = t1127 - t1126;
        const V t1129 = c[1] * t1105;
        const V t1130 = c[0] * t1107;
        const V t1131 = t1130 + t1129;
        // complex block of 2
        const V t1132 = t1087 + t1124;
        const V t1133 = t1089 + t1125;
        const V t1134 = t1087 - t1124;
        const V t1135 = t1125 - t1089;
        // complex block of 2
        const V t1136 = t1118 + t1128;
        const V t1137 = t1121 + t1131;
        const V t1138 = t1118 - t1128;
        const V t1139 = t1131 - t1121;
        // complex block of 2
        const V t1140 = t1132 + t1136;
        const V t1141 = t1133 + t1137;
        const V t1142 = t1132 - t1136;
        const V t1143 = t1137 - t1133;
        // complex block of 2
        const V t1144 = t1134 + t1139;
        const V t1145 = t1135 - t1138;
        const V t1146 = t1134 - t1139;
        const V t1147 = t1135 + t1138;
        // skew block of 4
        const V t1148 = t1097 - t1109;
        const V t1149 = c[2] * t1148;
        const V t1150 = t1097 + t1109;
        const V t1151 = c[2] * t1150;
        const V t1152 = t1151 - t1103;
        const V t1153 = t1091 + t1149;
        const V t1154 = t1103 + t1151;
        const V t1155 = t1091 - t1149;
        // complex block of 17, multiplier 3
        const V t1156 = t12 + t1044;
        io.re(34, t1156);
        const V t1157 = t13 + t1114;
        io.im(34, t1157);
        const V t1158 = c[19] * t1044;
        const V t1159 = t12 - t1158;
        const V t1160 = c[19] * t1114;
        const V t1161 = t13 - t1160;
        const V t1162 = c[5] * t1141;
        const V t1163 = c[6] * t1140;
        const V t1164 = t1163 - t1162;
        const V t1165 = c[5] * t1140;
        const V t1166 = c[6] * t1141;
        const V t1167 = t1166 + t1165;
        const V t1168 = c[5] * t1071;
        const V t1169 = c[6] * t1070;
        const V t1170 = t1168 - t1169;
        const V t1171 = c[5] * t1070;
        const V t1172 = c[6] * t1071;
        const V t1173 = t1172 + t1171;
        const V t1174 = c[7] * t1084;
        const V t1175 = c[8] * t1083;
        const V t1176 = t1175 - t1174;
        const V t1177 = c[7] * t1083;
        const V t1178 = c[8] * t1084;
        const V t1179 = t1178 + t1177;
        const V t1180 = c[7] * t1154;
        const V t1181 = c[8] * t1153;
        const V t1182 = t1181 - t1180;
        const V t1183 = c[7] * t1153;
        const V t1184 = c[8] * t1154;
        const V t1185 = t1184 + t1183;
        const V t1186 = c[9] * t1147;
        const V t1187 = c[10] * t1146;
        const V t1188 = t1187 - t1186;
        const V t1189 = c[9] * t1146;
        const V t1190 = c[10] * t1147;
        const V t1191 = t1190 + t1189;
        const V t1192 = c[9] * t1077;
        const V t1193 = c[10] * t1076;
        const V t1194 = t1192 - t1193;
        const V t1195 = c[9] * t1076;
        const V t1196 = c[10] * t1077;
        const V t1197 = t1196 + t1195;
        const V t1198 = c[11] * t1043;
        const V t1199 = c[12] * t1041;
        const V t1200 = t1199 - t1198;
        const V t1201 = c[11] * t1041;
        const V t1202 = c[12] * t1043;
        const V t1203 = t1202 + t1201;
        const V t1204 = c[11] * t1113;
        const V t1205 = c[12] * t1111;
        const V t1206 = t1205 - t1204;
        const V t1207 = c[11] * t1111;
        const V t1208 = c[12] * t1113;
        const V t1209 = t1208 + t1207;
        const V t1210 = c[13] * t1145;
        const V t1211 = c[14] * t1144;
        const V t1212 = t1211 - t1210;
        const V t1213 = c[13] * t1144;
        const V t1214 = c[14] * t1145;
        const V t1215 = t1214 + t1213;
        const V t1216 = c[13] * t1075;
        const V t1217 = c[14] * t1074;
        const V t1218 = t1216 - t1217;
        const V t1219 = c[13] * t1074;
        const V t1220 = c[14] * t1075;
        const V t1221 = t1220 + t1219;
        const V t1222 = c[15] * t1082;
        const V t1223 = c[16] * t1085;
        const V t1224 = t1223 - t1222;
        const V t1225 = c[15] * t1085;
        const V t1226 = c[16] * t1082;
        const V t1227 = t1226 + t1225;
        const V t1228 = c[15] * t1152;
        const V t1229 = c[16] * t1155;
        const V t1230 = t1229 - t1228;
        const V t1231 = c[15] * t1155;
        const V t1232 = c[16] * t1152;
        const V t1233 = t1232 + t1231;
        const V t1234 = c[17] * t1143;
        const V t1235 = c[18] * t1142;
        const V t1236 = t1235 - t1234;
        const V t1237 = c[17] * t1142;
        const V t1238 = c[18] * t1143;
        const V t1239 = t1238 + t1237;
        const V t1240 = c[17] * t1073;
        const V t1241 = c[18] * t1072;
        const V t1242 = t1240 - t1241;
        const V t1243 = c[17] * t1072;
        const V t1244 = c[18] * t1073;
        const V t1245 = t1244 + t1243;
        const V t1246 = c[20] * t1045;
        const V t1247 = c[20] * t1115;
        // spectrum block of 2
        const V t1248 = t1159 - t1246;
        const V t1249 = t1159 + t1246;
        // spectrum block of 2
        const V t1250 = t1248 + t1200;
        const V t1251 = t1248 - t1200;
        // spectrum block of 2
        const V t1252 = t1249 + t1203;
        const V t1253 = t1249 - t1203;
        // complex block of 2
        const V t1254 = t1239 - t1167;
        const V t1255 = t1164 + t1236;
        const V t1256 = t1167 + t1239;
        const V t1257 = t1164 - t1236;
        // complex block of 2
        const V t1258 = t1215 + t1191;
        const V t1259 = t1212 + t1188;
        const V t1260 = t1215 - t1191;
        const V t1261 = t1212 - t1188;
        // complex block of 2
        const V t1262 = t1254 + t1258;
        const V t1263 = t1255 + t1259;
        const V t1264 = t1254 - t1258;
        const V t1265 = t1255 - t1259;
        // complex block of 2
        const V t1266 = t1261 - t1256;
        const V t1267 = t1257 - t1260;
        const V t1268 = t1256 + t1261;
        const V t1269 = t1257 + t1260;
        // spectrum block of 16
        const V t1270 = c[0] * t1266;
        const V t1271 = c[1] * t1267;
        const V t1272 = t1271 - t1270;
        const V t1273 = c[0] * t1267;
        const V t1274 = c[1] * t1266;
        const V t1275 = t1274 + t1273;
        const V t1276 = t1265 + t1264;
        const V t1277 = t1264 - t1265;
        const V t1278 = c[2] * t1276;
        const V t1279 = c[2] * t1277;
        const V t1280 = c[1] * t1268;
        const V t1281 = c[0] * t1269;
        const V t1282 = t1281 + t1280;
        const V t1283 = c[1] * t1269;
        const V t1284 = c[0] * t1268;
        const V t1285 = t1283 - t1284;
        // mirrored skew block of 4
        const V t1286 = t1176 - t1224;
        const V t1287 = c[2] * t1286;
        const V t1288 = t1179 + t1227;
        const V t1289 = c[2] * t1288;
        const V t1290 = t1176 + t1224;
        const V t1291 = t1287 + t1289;
        const V t1292 = t1227 - t1179;
        const V t1293 = t1287 - t1289;
        // spectrum block of 2
        const V t1294 = t1250 + t1290;
        const V t1295 = t1250 - t1290;
        // spectrum block of 2
        const V t1296 = t1294 + t1263;
        io.re(37, t1296);
        const V t1297 = t1294 - t1263;
        io.re(31, t1297);
        // spectrum block of 2
        const V t1298 = t1295 - t1262;
        io.re(46, t1298);
        const V t1299 = t1295 + t1262;
        io.re(22, t1299);
        // spectrum block of 2
        const V t1300 = t1252 + t1291;
        const V t1301 = t1252 - t1291;
        // spectrum block of 2
        const V t1302 = t1300 + t1272;
        io.re(1, t1302);
        const V t1303 = t1300 - t1272;
        io.re(16, t1303);
        // spectrum block of 2
        const V t1304 = t1301 - t1275;
        io.re(4, t1304);
        const V t1305 = t1301 + t1275;
        io.re(13, t1305);
        // spectrum block of 2
        const V t1306 = t1251 - t1292;
        const V t1307 = t1251 + t1292;
        // spectrum block of 2
        const V t1308 = t1306 - t1279;
        io.re(40, t1308);
        const V t1309 = t1306 + t1279;
        io.re(28, t1309);
        // spectrum block of 2
        const V t1310 = t1307 - t1278;
        io.re(7, t1310);
        const V t1311 = t1307 + t1278;
        io.re(10, t1311);
        // spectrum block of 2
        const V t1312 = t1253 - t1293;
        const V t1313 = t1253 + t1293;
        // spectrum block of 2
        const V t1314 = t1312 + t1282;
        io.re(19, t1314);
        const V t1315 = t1312 - t1282;
        io.re(49, t1315);
        // spectrum block of 2
        const V t1316 = t1313 - t1285;
        io.re(25, t1316);
        const V t1317 = t1313 + t1285;
        io.re(43, t1317);
        // spectrum block of 2
        const V t1318 = t1161 - t1247;
        const V t1319 = t1161 + t1247;
        // spectrum block of 2
        const V t1320 = t1318 + t1206;
        const V t1321 = t1318 - t1206;
        // spectrum block of 2
        const V t1322 = t1319 + t1209;
        const V t1323 = t1319 - t1209;
        // complex block of 2
        const V t1324 = t1173 - t1245;
        const V t1325 = t1170 + t1242;
        const V t1326 = t1173 + t1245;
        const V t1327 = t1170 - t1242;
        // complex block of 2
        const V t1328 = t1221 + t1197;
        const V t1329 = t1218 + t1194;
        const V t1330 = t1197 - t1221;
        const V t1331 = t1218 - t1194;
        // complex block of 2
        const V t1332 = t1324 - t1328;
        const V t1333 = t1325 + t1329;
        const V t1334 = t1324 + t1328;
        const V t1335 = t1325 - t1329;
        // complex block of 2
        const V t1336 = t1326 + t1331;
        const V t1337 = t1327 - t1330;
        const V t1338 = t1326 - t1331;
        const V t1339 = t1327 + t1330;
        // spectrum block of 16
        const V t1340 = c[0] * t1336;
        const V t1341 = c[1] * t1337;
        const V t1342 = t1341 - t1340;
        const V t1343 = c[0] * t1337;
        const V t1344 = c[1] * t1336;
        const V t1345 = t1344 + t1343;
        const V t1346 = t1335 + t1334;
        const V t1347 = t1334 - t1335;
        const V t1348 = c[2] * t1346;
        const V t1349 = c[2] * t1347;
        const V t1350 = c[1] * t1338;
        const V t1351 = c[0] * t1339;
        const V t1352 = t1351 - t1350;
        const V t1353 = c[1] * t1339;
        const V t1354 = c[0] * t1338;
        const V t1355 = t1354 + t1353;
        // mirrored skew block of 4
        const V t1356 = t1182 - t1230;
        const V t1357 = c[2] * t1356;
        const V t1358 = t1185 + t1233;
        const V t1359 = c[2] * t1358;
        const V t1360 = t1182 + t1230;
        const V t1361 = t1357 + t1359;
        const V t1362 = t1233 - t1185;
        const V t1363 = t1357 - t1359;
        // spectrum block of 2
        const V t1364 = t1320 + t1360;
        const V t1365 = t1320 - t1360;
        // spectrum block of 2
        const V t1366 = t1364 + t1333;
        io.im(37, t1366);
        const V t1367 = t1364 - t1333;
        io.im(31, t1367);
        // spectrum block of 2
        const V t1368 = t1365 - t1332;
        io.im(46, t1368);
        const V t1369 = t1365 + t1332;
        io.im(22, t1369);
        // spectrum block of 2
        const V t1370 = t1322 + t1361;
        const V t1371 = t1322 - t1361;
        // spectrum block of 2
        const V t1372 = t1370 + t1342;
        io.im(1, t1372);
        const V t1373 = t1370 - t1342;
        io.im(16, t1373);
        // spectrum block of 2
        const V t1374 = t1371 - t1345;
        io.im(4, t1374);
        const V t1375 = t1371 + t1345;
        io.im(13, t1375);
        // spectrum block of 2
        const V t1376 = t1321 - t1362;
        const V t1377 = t1321 + t1362;
        // spectrum block of 2
        const V t1378 = t1376 - t1349;
        io.im(40, t1378);
        const V t1379 = t1376 + t1349;
        io.im(28, t1379);
        // spectrum block of 2
        const V t1380 = t1377 - t1348;
        io.im(7, t1380);
        const V t1381 = t1377 + t1348;
        io.im(10, t1381);
        // spectrum block of 2
        const V t1382 = t1323 - t1363;
        const V t1383 = t1323 + t1363;
        // spectrum block of 2
        const V t1384 = t1382 + t1352;
        io.im(19, t1384);
        const V t1385 = t1382 - t1352;
        io.im(49, t1385);
        // spectrum block of 2
        const V t1386 = t1383 - t1355;
        io.im(25, t1386);
        const V t1387 = t1383 + t1355;
        io.im(43, t1387);
    }
};

}  // namespace zulg
