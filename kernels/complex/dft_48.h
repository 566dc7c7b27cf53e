// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 48.
// Complex DFT of 48 points, prime-factor, order 3, 16.
// 318 additions, 318 subtractions, 148 multiplications (244 with `scale`); 5 constants; 129 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<48> {
    static constexpr int steps = 880;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.9238795325112867,  // c[3]: sin 2 pi 3/16
        0.3826834323650898,  // c[4]: cos 2 pi 3/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3
        const V x40r = io.re(40);
        const V x8r = io.re(8);
        const V t0 = x40r + x8r;
        const V t1 = x40r - x8r;
        const V t2 = c[1] * t0;
        const V x40i = io.im(40);
        const V x8i = io.im(8);
        const V t3 = x40i + x8i;
        const V t4 = x40i - x8i;
        const V t5 = c[1] * t3;
        // complex block of 3
        const V x16r = io.re(16);
        const V x32r = io.re(32);
        const V t6 = x16r + x32r;
        const V t7 = x16r - x32r;
        const V t8 = c[1] * t6;
        const V x16i = io.im(16);
        const V x32i = io.im(32);
        const V t9 = x16i + x32i;
        const V t10 = x16i - x32i;
        const V t11 = c[1] * t9;
        const V x0r = io.re(0);
        const V t12 = t6 + x0r;
        // complex block of 3
        const V x24r = io.re(24);
        const V t13 = t0 + x24r;
        // complex block of 2
        const V t14 = t12 + t13;
        const V t15 = t12 - t13;
        // complex block of 3
        const V x0i = io.im(0);
        const V t16 = t9 + x0i;
        // complex block of 3
        const V x24i = io.im(24);
        const V t17 = t3 + x24i;
        // complex block of 2
        const V t18 = t16 + t17;
        const V t19 = t16 - t17;
        // complex block of 3
        const V t20 = x0r - t8;
        const V t21 = c[2] * t10;
        const V t22 = t20 + t21;
        const V t23 = t20 - t21;
        const V t24 = x0i - t11;
        const V t25 = c[2] * t7;
        const V t26 = t24 - t25;
        const V t27 = t24 + t25;
        // complex block of 3
        const V t28 = x24r - t2;
        const V t29 = c[2] * t4;
        const V t30 = t28 + t29;
        const V t31 = t28 - t29;
        const V t32 = x24i - t5;
        const V t33 = c[2] * t1;
        const V t34 = t32 - t33;
        const V t35 = t32 + t33;
        // complex block of 3
        const V x1r = io.re(1);
        const V x17r = io.re(17);
        const V t36 = x1r + x17r;
        const V t37 = x1r - x17r;
        const V x33r = io.re(33);
        const V t38 = t36 + x33r;
        const V t39 = c[1] * t36;
        const V t40 = x33r - t39;
        const V t41 = c[2] * t37;
        const V x1i = io.im(1);
        const V x17i = io.im(17);
        const V t42 = x1i + x17i;
        const V t43 = x1i - x17i;
        const V x33i = io.im(33);
        const V t44 = t42 + x33i;
        const V t45 = c[1] * t42;
        const V t46 = x33i - t45;
        const V t47 = c[2] * t43;
        // complex block of 3
        const V x37r = io.re(37);
        const V x5r = io.re(5);
        const V t48 = x37r + x5r;
        const V t49 = x37r - x5r;
        const V x21r = io.re(21);
        const V t50 = t48 + x21r;
        const V t51 = c[1] * t48;
        const V t52 = x21r - t51;
        const V t53 = c[2] * t49;
        const V x37i = io.im(37);
        const V x5i = io.im(5);
        const V t54 = x37i + x5i;
        const V t55 = x37i - x5i;
        const V x21i = io.im(21);
        const V t56 = t54 + x21i;
        const V t57 = c[1] * t54;
        const V t58 = x21i - t57;
        const V t59 = c[2] * t55;
        // complex block of 3
        const V x25r = io.re(25);
        const V x41r = io.re(41);
        const V t60 = x25r + x41r;
        const V t61 = x25r - x41r;
        const V x9r = io.re(9);
        const V t62 = t60 + x9r;
        const V t63 = c[1] * t60;
        const V t64 = x9r - t63;
        const V t65 = c[2] * t61;
        const V x25i = io.im(25);
        const V x41i = io.im(41);
        const V t66 = x25i + x41i;
        const V t67 = x25i - x41i;
        const V x9i = io.im(9);
        const V t68 = t66 + x9i;
        const V t69 = c[1] * t66;
        const V t70 = x9i - t69;
        const V t71 = c[2] * t67;
        // complex block of 3
        const V x13r = io.re(13);
        const V x29r = io.re(29);
        const V t72 = x13r + x29r;
        const V t73 = x13r - x29r;
        const V x45r = io.re(45);
        const V t74 = t72 + x45r;
        const V t75 = c[1] * t72;
        const V t76 = x45r - t75;
        const V t77 = c[2] * t73;
        const V x13i = io.im(13);
        const V x29i = io.im(29);
        const V t78 = x13i + x29i;
        const V t79 = x13i - x29i;
        const V x45i = io.im(45);
        const V t80 = t78 + x45i;
        const V t81 = c[1] * t78;
        const V t82 = x45i - t81;
        const V t83 = c[2] * t79;
        // complex block of 3
        const V t84 = t64 + t71;
        // complex block of 3
        const V t85 = t40 + t47;
        // complex block of 2
        const V t86 = t84 - t85;
        const V t87 = t84 + t85;
        // complex block of 16, multiplier 3
        const V t88 = c[3] * t86;
        const V t89 = c[4] * t86;
        // complex block of 3
        const V t90 = t70 - t65;
        // complex block of 3
        const V t91 = t46 - t41;
        // complex block of 2
        const V t92 = t90 - t91;
        const V t93 = t90 + t91;
        // complex block of 16, multiplier 3
        const V t94 = c[4] * t92;
        const V t95 = c[3] * t92;
        // complex block of 3
        const V t96 = t64 - t71;
        // complex block of 3
        const V t97 = t40 - t47;
        // complex block of 2
        const V t98 = t96 - t97;
        const V t99 = t96 + t97;
        // complex block of 16, multiplier 3
        const V t100 = c[3] * t98;
        const V t101 = c[4] * t98;
        // complex block of 3
        const V t102 = t70 + t65;
        // complex block of 3
        const V t103 = t46 + t41;
        // complex block of 2
        const V t104 = t102 - t103;
        const V t105 = t102 + t103;
        // complex block of 16, multiplier 3
        const V t106 = c[4] * t104;
        const V t107 = c[3] * t104;
        // complex block of 3
        const V t108 = t52 + t59;
        // complex block of 3
        const V t109 = t76 + t83;
        // complex block of 2
        const V t110 = t108 - t109;
        const V t111 = t108 + t109;
        // complex block of 16, multiplier 3
        const V t112 = c[4] * t110;
        const V t113 = c[3] * t110;
        // complex block of 3
        const V t114 = t58 - t53;
        // complex block of 3
        const V t115 = t82 - t77;
        // complex block of 2
        const V t116 = t114 - t115;
        const V t117 = t114 + t115;
        // complex block of 16, multiplier 3
        const V t118 = c[3] * t116;
        const V t119 = c[4] * t116;
        // complex block of 3
        const V t120 = t52 - t59;
        // complex block of 3
        const V t121 = t76 - t83;
        // complex block of 2
        const V t122 = t120 - t121;
        const V t123 = t120 + t121;
        // complex block of 16, multiplier 3
        const V t124 = c[4] * t122;
        const V t125 = c[3] * t122;
        // complex block of 3
        const V t126 = t58 + t53;
        // complex block of 3
        const V t127 = t82 + t77;
        // complex block of 2
        const V t128 = t126 - t127;
        const V t129 = t126 + t127;
        // complex block of 16, multiplier 3
        const V t130 = c[3] * t128;
        const V t131 = c[4] * t128;
        // complex block of 2
        const V t132 = t62 + t38;
        // complex block of 2
        const V t133 = t50 + t74;
        // complex block of 2
        const V t134 = t132 - t133;
        // complex block of 2
        const V t135 = t68 + t44;
        // complex block of 2
        const V t136 = t56 + t80;
        // complex block of 2
        const V t137 = t135 - t136;
        // complex block of 2
        const V t138 = t62 - t38;
        // complex block of 16, multiplier 3
        const V t139 = c[3] * t138;
        const V t140 = c[4] * t138;
        // complex block of 2
        const V t141 = t68 - t44;
        // complex block of 16, multiplier 3
        const V t142 = c[4] * t141;
        const V t143 = c[3] * t141;
        const V t144 = t139 + t142;
        const V t145 = t140 - t143;
        // complex block of 2
        const V t146 = t50 - t74;
        // complex block of 16, multiplier 3
        const V t147 = c[4] * t146;
        const V t148 = c[3] * t146;
        // complex block of 2
        const V t149 = t56 - t80;
        // complex block of 16, multiplier 3
        const V t150 = c[3] * t149;
        const V t151 = c[4] * t149;
        const V t152 = t150 - t147;
        const V t153 = t151 + t148;
        // complex block of 3
        const V x34r = io.re(34);
        const V x2r = io.re(2);
        const V t154 = x34r + x2r;
        const V t155 = x34r - x2r;
        const V x18r = io.re(18);
        const V t156 = t154 + x18r;
        const V t157 = c[1] * t154;
        const V t158 = c[2] * t155;
        const V x34i = io.im(34);
        const V x2i = io.im(2);
        const V t159 = x34i + x2i;
        const V t160 = x34i - x2i;
        const V x18i = io.im(18);
        const V t161 = t159 + x18i;
        const V t162 = c[1] * t159;
        const V t163 = c[2] * t160;
        // complex block of 3
        const V x10r = io.re(10);
        const V x26r = io.re(26);
        const V t164 = x10r + x26r;
        const V t165 = x10r - x26r;
        const V x42r = io.re(42);
        const V t166 = t164 + x42r;
        const V t167 = c[1] * t164;
        const V t168 = c[2] * t165;
        const V x10i = io.im(10);
        const V x26i = io.im(26);
        const V t169 = x10i + x26i;
        const V t170 = x10i - x26i;
        const V x42i = io.im(42);
        const V t171 = t169 + x42i;
        const V t172 = c[1] * t169;
        const V t173 = c[2] * t170;
        // complex block of 3
        const V t174 = x18r - t157;
        const V t175 = t174 + t163;
        const V t176 = t174 - t163;
        // complex block of 3
        const V t177 = x42r - t167;
        const V t178 = t177 + t173;
        const V t179 = t177 - t173;
        // complex block of 2
        const V t180 = t175 - t178;
        // complex block of 2
        const V t181 = t176 - t179;
        // complex block of 3
        const V t182 = x18i - t162;
        const V t183 = t182 - t158;
        const V t184 = t182 + t158;
        // complex block of 3
        const V t185 = x42i - t172;
        const V t186 = t185 - t168;
        const V t187 = t185 + t168;
        // complex block of 2
        const V t188 = t183 - t186;
        // complex block of 2
        const V t189 = t184 - t187;
        // complex block of 2
        const V t190 = t156 + t166;
        const V t191 = t161 + t171;
        const V t192 = t156 - t166;
        // complex block of 16, multiplier 3
        const V t193 = c[0] * t192;
        // complex block of 2
        const V t194 = t161 - t171;
        // complex block of 16, multiplier 3
        const V t195 = c[0] * t194;
        // complex block of 3
        const V x19r = io.re(19);
        const V x35r = io.re(35);
        const V t196 = x19r + x35r;
        const V t197 = x19r - x35r;
        const V x3r = io.re(3);
        const V t198 = t196 + x3r;
        const V t199 = c[1] * t196;
        const V t200 = x3r - t199;
        const V t201 = c[2] * t197;
        const V x19i = io.im(19);
        const V x35i = io.im(35);
        const V t202 = x19i + x35i;
        const V t203 = x19i - x35i;
        const V x3i = io.im(3);
        const V t204 = t202 + x3i;
        const V t205 = c[1] * t202;
        const V t206 = x3i - t205;
        const V t207 = c[2] * t203;
        // complex block of 3
        const V x7r = io.re(7);
        const V x23r = io.re(23);
        const V t208 = x7r + x23r;
        const V t209 = x7r - x23r;
        const V x39r = io.re(39);
        const V t210 = t208 + x39r;
        const V t211 = c[1] * t208;
        const V t212 = x39r - t211;
        const V t213 = c[2] * t209;
        const V x7i = io.im(7);
        const V x23i = io.im(23);
        const V t214 = x7i + x23i;
        const V t215 = x7i - x23i;
        const V x39i = io.im(39);
        const V t216 = t214 + x39i;
        const V t217 = c[1] * t214;
        const V t218 = x39i - t217;
        const V t219 = c[2] * t215;
        // complex block of 3
        const V x43r = io.re(43);
        const V x11r = io.re(11);
        const V t220 = x43r + x11r;
        const V t221 = x43r - x11r;
        const V x27r = io.re(27);
        const V t222 = t220 + x27r;
        const V t223 = c[1] * t220;
        const V t224 = x27r - t223;
        const V t225 = c[2] * t221;
        const V x43i = io.im(43);
        const V x11i = io.im(11);
        const V t226 = x43i + x11i;
        const V t227 = x43i - x11i;
        const V x27i = io.im(27);
        const V t228 = t226 + x27i;
        const V t229 = c[1] * t226;
        const V t230 = x27i - t229;
        const V t231 = c[2] * t227;
        // complex block of 3
        const V x31r = io.re(31);
        const V x47r = io.re(47);
        const V t232 = x31r + x47r;
        const V t233 = x31r - x47r;
        const V x15r = io.re(15);
        const V t234 = t232 + x15r;
        const V t235 = c[1] * t232;
        const V t236 = x15r - t235;
        const V t237 = c[2] * t233;
        const V x31i = io.im(31);
        const V x47i = io.im(47);
        const V t238 = x31i + x47i;
        const V t239 = x31i - x47i;
        const V x15i = io.im(15);
        const V t240 = t238 + x15i;
        const V t241 = c[1] * t238;
        const V t242 = x15i - t241;
        const V t243 = c[2] * t239;
        // complex block of 3
        const V t244 = t200 + t207;
        // complex block of 3
        const V t245 = t224 + t231;
        // complex block of 2
        const V t246 = t244 - t245;
        const V t247 = t244 + t245;
        // complex block of 16, multiplier 3
        const V t248 = c[4] * t246;
        const V t249 = c[3] * t246;
        // complex block of 3
        const V t250 = t206 - t201;
        // complex block of 3
        const V t251 = t230 - t225;
        // complex block of 2
        const V t252 = t250 - t251;
        const V t253 = t250 + t251;
        // complex block of 16, multiplier 3
        const V t254 = c[3] * t252;
        const V t255 = c[4] * t252;
        // complex block of 3
        const V t256 = t200 - t207;
        // complex block of 3
        const V t257 = t224 - t231;
        // complex block of 2
        const V t258 = t256 - t257;
        const V t259 = t256 + t257;
        // complex block of 16, multiplier 3
        const V t260 = c[4] * t258;
        const V t261 = c[3] * t258;
        // complex block of 3
        const V t262 = t206 + t201;
        // complex block of 3
        const V t263 = t230 + t225;
        // complex block of 2
        const V t264 = t262 - t263;
        const V t265 = t262 + t263;
        // complex block of 16, multiplier 3
        const V t266 = c[3] * t264;
        const V t267 = c[4] * t264;
        // complex block of 3
        const V t268 = t236 + t243;
        // complex block of 3
        const V t269 = t212 + t219;
        // complex block of 2
        const V t270 = t268 - t269;
        const V t271 = t268 + t269;
        // complex block of 16, multiplier 3
        const V t272 = c[3] * t270;
        const V t273 = c[4] * t270;
        // complex block of 3
        const V t274 = t242 - t237;
        // complex block of 3
        const V t275 = t218 - t213;
        // complex block of 2
        const V t276 = t274 - t275;
        const V t277 = t274 + t275;
        // complex block of 16, multiplier 3
        const V t278 = c[4] * t276;
        const V t279 = c[3] * t276;
        // complex block of 3
        const V t280 = t236 - t243;
        // complex block of 3
        const V t281 = t212 - t219;
        // complex block of 2
        const V t282 = t280 - t281;
        const V t283 = t280 + t281;
        // complex block of 16, multiplier 3
        const V t284 = c[3] * t282;
        const V t285 = c[4] * t282;
        // complex block of 3
        const V t286 = t242 + t237;
        // complex block of 3
        const V t287 = t218 + t213;
        // complex block of 2
        const V t288 = t286 - t287;
        const V t289 = t286 + t287;
        // complex block of 16, multiplier 3
        const V t290 = c[4] * t288;
        const V t291 = c[3] * t288;
        // complex block of 2
        const V t292 = t198 + t222;
        // complex block of 2
        const V t293 = t234 + t210;
        // complex block of 2
        const V t294 = t292 - t293;
        // complex block of 2
        const V t295 = t204 + t228;
        // complex block of 2
        const V t296 = t240 + t216;
        // complex block of 2
        const V t297 = t295 - t296;
        // complex block of 2
        const V t298 = t198 - t222;
        // complex block of 16, multiplier 3
        const V t299 = c[4] * t298;
        const V t300 = c[3] * t298;
        // complex block of 2
        const V t301 = t204 - t228;
        // complex block of 16, multiplier 3
        const V t302 = c[3] * t301;
        const V t303 = c[4] * t301;
        const V t304 = t299 + t302;
        const V t305 = t303 - t300;
        // complex block of 2
        const V t306 = t234 - t210;
        // complex block of 16, multiplier 3
        const V t307 = c[3] * t306;
        const V t308 = c[4] * t306;
        // complex block of 2
        const V t309 = t240 - t216;
        // complex block of 16, multiplier 3
        const V t310 = c[4] * t309;
        const V t311 = c[3] * t309;
        const V t312 = t307 - t310;
        const V t313 = t311 + t308;
        // complex block of 3
        const V x4r = io.re(4);
        const V x20r = io.re(20);
        const V t314 = x4r + x20r;
        const V t315 = x4r - x20r;
        const V t316 = c[1] * t314;
        const V x4i = io.im(4);
        const V x20i = io.im(20);
        const V t317 = x4i + x20i;
        const V t318 = x4i - x20i;
        const V t319 = c[1] * t317;
        // complex block of 3
        const V x28r = io.re(28);
        const V x44r = io.re(44);
        const V t320 = x28r + x44r;
        const V t321 = x28r - x44r;
        const V t322 = c[1] * t320;
        const V x28i = io.im(28);
        const V x44i = io.im(44);
        const V t323 = x28i + x44i;
        const V t324 = x28i - x44i;
        const V t325 = c[1] * t323;
        const V x12r = io.re(12);
        const V t326 = t320 + x12r;
        // complex block of 3
        const V x36r = io.re(36);
        const V t327 = t314 + x36r;
        // complex block of 2
        const V t328 = t326 + t327;
        const V t329 = t326 - t327;
        // complex block of 3
        const V x12i = io.im(12);
        const V t330 = t323 + x12i;
        // complex block of 3
        const V x36i = io.im(36);
        const V t331 = t317 + x36i;
        // complex block of 2
        const V t332 = t330 + t331;
        const V t333 = t330 - t331;
        // complex block of 3
        const V t334 = x12r - t322;
        const V t335 = c[2] * t324;
        const V t336 = t334 + t335;
        const V t337 = t334 - t335;
        const V t338 = x12i - t325;
        const V t339 = c[2] * t321;
        const V t340 = t338 - t339;
        const V t341 = t338 + t339;
        // complex block of 3
        const V t342 = x36r - t316;
        const V t343 = c[2] * t318;
        const V t344 = t342 + t343;
        const V t345 = t342 - t343;
        const V t346 = x36i - t319;
        const V t347 = c[2] * t315;
        const V t348 = t346 - t347;
        const V t349 = t346 + t347;
        // complex block of 3
        const V x22r = io.re(22);
        const V x38r = io.re(38);
        const V t350 = x22r + x38r;
        const V t351 = x22r - x38r;
        const V x6r = io.re(6);
        const V t352 = t350 + x6r;
        const V t353 = c[1] * t350;
        const V t354 = c[2] * t351;
        const V x22i = io.im(22);
        const V x38i = io.im(38);
        const V t355 = x22i + x38i;
        const V t356 = x22i - x38i;
        const V x6i = io.im(6);
        const V t357 = t355 + x6i;
        const V t358 = c[1] * t355;
        const V t359 = c[2] * t356;
        // complex block of 3
        const V x46r = io.re(46);
        const V x14r = io.re(14);
        const V t360 = x46r + x14r;
        const V t361 = x46r - x14r;
        const V x30r = io.re(30);
        const V t362 = t360 + x30r;
        const V t363 = c[1] * t360;
        const V t364 = c[2] * t361;
        const V x46i = io.im(46);
        const V x14i = io.im(14);
        const V t365 = x46i + x14i;
        const V t366 = x46i - x14i;
        const V x30i = io.im(30);
        const V t367 = t365 + x30i;
        const V t368 = c[1] * t365;
        const V t369 = c[2] * t366;
        // complex block of 3
        const V t370 = x6r - t353;
        const V t371 = t370 + t359;
        const V t372 = t370 - t359;
        // complex block of 3
        const V t373 = x30r - t363;
        const V t374 = t373 + t369;
        const V t375 = t373 - t369;
        // complex block of 2
        const V t376 = t371 - t374;
        // complex block of 2
        const V t377 = t372 - t375;
        // complex block of 3
        const V t378 = x6i - t358;
        const V t379 = t378 - t354;
        const V t380 = t378 + t354;
        // complex block of 3
        const V t381 = x30i - t368;
        const V t382 = t381 - t364;
        const V t383 = t381 + t364;
        // complex block of 2
        const V t384 = t379 - t382;
        // complex block of 2
        const V t385 = t380 - t383;
        // complex block of 2
        const V t386 = t352 + t362;
        const V t387 = t357 + t367;
        const V t388 = t352 - t362;
        // complex block of 16, multiplier 3
        const V t389 = c[0] * t388;
        // complex block of 2
        const V t390 = t357 - t367;
        // complex block of 16, multiplier 3
        const V t391 = c[0] * t390;
        // complex block of 2
        const V t392 = t14 + t328;
        // complex block of 2
        const V t393 = t386 + t190;
        // complex block of 2
        const V t394 = t392 + t393;
        const V t395 = t392 - t393;
        // complex block of 2
        const V t396 = t18 + t332;
        // complex block of 2
        const V t397 = t387 + t191;
        // complex block of 2
        const V t398 = t396 + t397;
        const V t399 = t396 - t397;
        // complex block of 2
        const V t400 = t292 + t293;
        // complex block of 2
        const V t401 = t132 + t133;
        // complex block of 2
        const V t402 = t400 + t401;
        const V t403 = t400 - t401;
        // complex block of 2
        const V t404 = t295 + t296;
        // complex block of 2
        const V t405 = t135 + t136;
        // complex block of 2
        const V t406 = t404 + t405;
        const V t407 = t404 - t405;
        // complex block of 2
        const V t408 = t394 + t402;
        io.re(0, t408);
        const V t409 = t398 + t406;
        io.im(0, t409);
        const V t410 = t394 - t402;
        io.re(24, t410);
        const V t411 = t398 - t406;
        io.im(24, t411);
        // complex block of 2
        const V t412 = t395 - t407;
        io.re(12, t412);
        const V t413 = t399 + t403;
        io.im(12, t413);
        const V t414 = t395 + t407;
        io.re(36, t414);
        const V t415 = t399 - t403;
        io.im(36, t415);
        // complex block of 2
        const V t416 = t14 - t328;
        // complex block of 2
        const V t417 = t387 - t191;
        // complex block of 2
        const V t418 = t416 - t417;
        const V t419 = t416 + t417;
        // complex block of 2
        const V t420 = t18 - t332;
        // complex block of 2
        const V t421 = t386 - t190;
        // complex block of 2
        const V t422 = t420 + t421;
        const V t423 = t420 - t421;
        // complex block of 8, multiplier 3
        const V t424 = c[0] * t294;
        const V t425 = c[0] * t297;
        const V t426 = t424 + t425;
        const V t427 = t425 - t424;
        const V t428 = c[0] * t134;
        const V t429 = c[0] * t137;
        const V t430 = t428 + t429;
        const V t431 = t429 - t428;
        // complex block of 2
        const V t432 = t427 + t430;
        // complex block of 2
        const V t433 = t418 + t432;
        io.re(6, t433);
        const V t434 = t418 - t432;
        io.re(30, t434);
        // complex block of 2
        const V t435 = t431 - t426;
        // complex block of 2
        const V t436 = t422 + t435;
        io.im(6, t436);
        const V t437 = t422 - t435;
        io.im(30, t437);
        // complex block of 2
        const V t438 = t427 - t430;
        // complex block of 2
        const V t439 = t423 + t438;
        io.im(18, t439);
        const V t440 = t423 - t438;
        io.im(42, t440);
        // complex block of 2
        const V t441 = t426 + t431;
        // complex block of 2
        const V t442 = t419 + t441;
        io.re(18, t442);
        const V t443 = t419 - t441;
        io.re(42, t443);
        // complex block of 16, multiplier 3
        const V t444 = t389 + t391;
        const V t445 = t195 - t193;
        // complex block of 2
        const V t446 = t445 - t444;
        const V t447 = t444 + t445;
        // complex block of 16, multiplier 3
        const V t448 = t391 - t389;
        const V t449 = t193 + t195;
        // complex block of 2
        const V t450 = t448 + t449;
        const V t451 = t448 - t449;
        // complex block of 2
        const V t452 = t15 - t333;
        const V t453 = t19 + t329;
        const V t454 = t15 + t333;
        const V t455 = t19 - t329;
        // complex block of 2
        const V t456 = t304 + t312;
        // complex block of 2
        const V t457 = t152 - t144;
        // complex block of 2
        const V t458 = t456 + t457;
        const V t459 = t456 - t457;
        // complex block of 2
        const V t460 = t305 + t313;
        // complex block of 2
        const V t461 = t145 - t153;
        // complex block of 2
        const V t462 = t460 + t461;
        const V t463 = t460 - t461;
        // complex block of 2
        const V t464 = t304 - t312;
        // complex block of 8, multiplier 3
        const V t465 = c[0] * t464;
        // complex block of 2
        const V t466 = t305 - t313;
        // complex block of 8, multiplier 3
        const V t467 = c[0] * t466;
        const V t468 = t465 + t467;
        const V t469 = t467 - t465;
        // complex block of 2
        const V t470 = t144 + t152;
        // complex block of 8, multiplier 3
        const V t471 = c[0] * t470;
        // complex block of 2
        const V t472 = t145 + t153;
        // complex block of 8, multiplier 3
        const V t473 = c[0] * t472;
        const V t474 = t473 - t471;
        const V t475 = t473 + t471;
        // complex block of 2
        const V t476 = t452 + t450;
        // complex block of 2
        const V t477 = t476 + t458;
        io.re(3, t477);
        const V t478 = t476 - t458;
        io.re(27, t478);
        // complex block of 2
        const V t479 = t453 + t446;
        // complex block of 2
        const V t480 = t479 + t462;
        io.im(3, t480);
        const V t481 = t479 - t462;
        io.im(27, t481);
        // complex block of 2
        const V t482 = t452 - t450;
        // complex block of 2
        const V t483 = t482 - t463;
        io.re(15, t483);
        const V t484 = t482 + t463;
        io.re(39, t484);
        // complex block of 2
        const V t485 = t453 - t446;
        // complex block of 2
        const V t486 = t485 + t459;
        io.im(15, t486);
        const V t487 = t485 - t459;
        io.im(39, t487);
        // complex block of 2
        const V t488 = t454 + t447;
        // complex block of 2
        const V t489 = t469 + t474;
        // complex block of 2
        const V t490 = t488 + t489;
        io.re(9, t490);
        const V t491 = t488 - t489;
        io.re(33, t491);
        // complex block of 2
        const V t492 = t455 + t451;
        // complex block of 2
        const V t493 = t475 - t468;
        // complex block of 2
        const V t494 = t492 + t493;
        io.im(9, t494);
        const V t495 = t492 - t493;
        io.im(33, t495);
        // complex block of 2
        const V t496 = t454 - t447;
        // complex block of 2
        const V t497 = t468 + t475;
        // complex block of 2
        const V t498 = t496 + t497;
        io.re(21, t498);
        const V t499 = t496 - t497;
        io.re(45, t499);
        // complex block of 2
        const V t500 = t455 - t451;
        // complex block of 2
        const V t501 = t469 - t474;
        // complex block of 2
        const V t502 = t500 + t501;
        io.im(21, t502);
        const V t503 = t500 - t501;
        io.im(45, t503);
        // complex block of 2
        const V t504 = t22 + t30;
        // complex block of 2
        const V t505 = t336 + t344;
        // complex block of 2
        const V t506 = t504 + t505;
        const V t507 = t504 - t505;
        // complex block of 2
        const V t508 = t26 + t34;
        // complex block of 2
        const V t509 = t340 + t348;
        // complex block of 2
        const V t510 = t508 + t509;
        const V t511 = t508 - t509;
        // complex block of 2
        const V t512 = t371 + t374;
        // complex block of 2
        const V t513 = t175 + t178;
        // complex block of 2
        const V t514 = t512 + t513;
        const V t515 = t512 - t513;
        // complex block of 2
        const V t516 = t379 + t382;
        // complex block of 2
        const V t517 = t183 + t186;
        // complex block of 2
        const V t518 = t516 + t517;
        const V t519 = t516 - t517;
        // complex block of 2
        const V t520 = t247 + t271;
        // complex block of 2
        const V t521 = t87 + t111;
        // complex block of 2
        const V t522 = t520 + t521;
        const V t523 = t520 - t521;
        // complex block of 2
        const V t524 = t253 + t277;
        // complex block of 2
        const V t525 = t93 + t117;
        // complex block of 2
        const V t526 = t524 + t525;
        const V t527 = t524 - t525;
        // complex block of 2
        const V t528 = t247 - t271;
        // complex block of 8, multiplier 3
        const V t529 = c[0] * t528;
        // complex block of 2
        const V t530 = t253 - t277;
        // complex block of 8, multiplier 3
        const V t531 = c[0] * t530;
        const V t532 = t529 + t531;
        const V t533 = t531 - t529;
        // complex block of 2
        const V t534 = t87 - t111;
        // complex block of 8, multiplier 3
        const V t535 = c[0] * t534;
        // complex block of 2
        const V t536 = t93 - t117;
        // complex block of 8, multiplier 3
        const V t537 = c[0] * t536;
        const V t538 = t535 + t537;
        const V t539 = t537 - t535;
        // complex block of 2
        const V t540 = t506 + t514;
        // complex block of 2
        const V t541 = t540 + t522;
        io.re(16, t541);
        const V t542 = t540 - t522;
        io.re(40, t542);
        // complex block of 2
        const V t543 = t510 + t518;
        // complex block of 2
        const V t544 = t543 + t526;
        io.im(16, t544);
        const V t545 = t543 - t526;
        io.im(40, t545);
        // complex block of 2
        const V t546 = t506 - t514;
        // complex block of 2
        const V t547 = t546 - t527;
        io.re(28, t547);
        const V t548 = t546 + t527;
        io.re(4, t548);
        // complex block of 2
        const V t549 = t510 - t518;
        // complex block of 2
        const V t550 = t549 + t523;
        io.im(28, t550);
        const V t551 = t549 - t523;
        io.im(4, t551);
        // complex block of 2
        const V t552 = t507 - t519;
        // complex block of 2
        const V t553 = t533 + t538;
        // complex block of 2
        const V t554 = t552 + t553;
        io.re(22, t554);
        const V t555 = t552 - t553;
        io.re(46, t555);
        // complex block of 2
        const V t556 = t511 + t515;
        // complex block of 2
        const V t557 = t539 - t532;
        // complex block of 2
        const V t558 = t556 + t557;
        io.im(22, t558);
        const V t559 = t556 - t557;
        io.im(46, t559);
        // complex block of 2
        const V t560 = t507 + t519;
        // complex block of 2
        const V t561 = t532 + t539;
        // complex block of 2
        const V t562 = t560 + t561;
        io.re(34, t562);
        const V t563 = t560 - t561;
        io.re(10, t563);
        // complex block of 2
        const V t564 = t511 - t515;
        // complex block of 2
        const V t565 = t533 - t538;
        // complex block of 2
        const V t566 = t564 + t565;
        io.im(34, t566);
        const V t567 = t564 - t565;
        io.im(10, t567);
        // complex block of 2
        const V t568 = t22 - t30;
        // complex block of 2
        const V t569 = t340 - t348;
        // complex block of 2
        const V t570 = t568 - t569;
        const V t571 = t568 + t569;
        // complex block of 2
        const V t572 = t26 - t34;
        // complex block of 2
        const V t573 = t336 - t344;
        // complex block of 2
        const V t574 = t572 + t573;
        const V t575 = t572 - t573;
        // complex block of 16, multiplier 3
        const V t576 = t248 + t254;
        const V t577 = t272 - t278;
        // complex block of 2
        const V t578 = t576 - t577;
        const V t579 = t576 + t577;
        // complex block of 8, multiplier 3
        const V t580 = c[0] * t578;
        // complex block of 16, multiplier 3
        const V t581 = t255 - t249;
        const V t582 = t279 + t273;
        // complex block of 2
        const V t583 = t581 - t582;
        const V t584 = t581 + t582;
        // complex block of 8, multiplier 3
        const V t585 = c[0] * t583;
        // complex block of 16, multiplier 3
        const V t586 = c[0] * t376;
        const V t587 = c[0] * t384;
        const V t588 = t586 + t587;
        const V t589 = t587 - t586;
        const V t590 = c[0] * t180;
        const V t591 = c[0] * t188;
        const V t592 = t590 + t591;
        const V t593 = t591 - t590;
        // complex block of 2
        const V t594 = t589 + t592;
        const V t595 = t593 - t588;
        const V t596 = t589 - t592;
        const V t597 = t588 + t593;
        // complex block of 16, multiplier 3
        const V t598 = t88 + t94;
        const V t599 = t118 - t112;
        // complex block of 2
        const V t600 = t598 + t599;
        const V t601 = t599 - t598;
        // complex block of 8, multiplier 3
        const V t602 = c[0] * t600;
        // complex block of 16, multiplier 3
        const V t603 = t89 - t95;
        const V t604 = t119 + t113;
        // complex block of 2
        const V t605 = t603 + t604;
        const V t606 = t603 - t604;
        // complex block of 8, multiplier 3
        const V t607 = c[0] * t605;
        // complex block of 2
        const V t608 = t570 + t594;
        // complex block of 2
        const V t609 = t579 + t601;
        // complex block of 2
        const V t610 = t608 + t609;
        io.re(19, t610);
        const V t611 = t608 - t609;
        io.re(43, t611);
        // complex block of 2
        const V t612 = t574 + t595;
        // complex block of 2
        const V t613 = t584 + t606;
        // complex block of 2
        const V t614 = t612 + t613;
        io.im(19, t614);
        const V t615 = t612 - t613;
        io.im(43, t615);
        // complex block of 2
        const V t616 = t570 - t594;
        // complex block of 2
        const V t617 = t584 - t606;
        // complex block of 2
        const V t618 = t616 - t617;
        io.re(31, t618);
        const V t619 = t616 + t617;
        io.re(7, t619);
        // complex block of 2
        const V t620 = t574 - t595;
        // complex block of 2
        const V t621 = t579 - t601;
        // complex block of 2
        const V t622 = t620 + t621;
        io.im(31, t622);
        const V t623 = t620 - t621;
        io.im(7, t623);
        // complex block of 8, multiplier 3
        const V t624 = t580 + t585;
        const V t625 = t607 + t602;
        // complex block of 2
        const V t626 = t625 - t624;
        const V t627 = t624 + t625;
        // complex block of 2
        const V t628 = t575 + t596;
        const V t629 = t571 - t597;
        // complex block of 2
        const V t630 = t628 + t626;
        io.im(25, t630);
        const V t631 = t628 - t626;
        io.im(1, t631);
        // complex block of 2
        const V t632 = t629 + t627;
        io.re(37, t632);
        const V t633 = t629 - t627;
        io.re(13, t633);
        // complex block of 8, multiplier 3
        const V t634 = t585 - t580;
        const V t635 = t607 - t602;
        // complex block of 2
        const V t636 = t634 + t635;
        const V t637 = t634 - t635;
        // complex block of 2
        const V t638 = t571 + t597;
        const V t639 = t575 - t596;
        // complex block of 2
        const V t640 = t638 + t636;
        io.re(25, t640);
        const V t641 = t638 - t636;
        io.re(1, t641);
        // complex block of 2
        const V t642 = t639 + t637;
        io.im(37, t642);
        const V t643 = t639 - t637;
        io.im(13, t643);
        // complex block of 2
        const V t644 = t23 + t31;
        // complex block of 2
        const V t645 = t337 + t345;
        // complex block of 2
        const V t646 = t644 + t645;
        const V t647 = t644 - t645;
        // complex block of 2
        const V t648 = t27 + t35;
        // complex block of 2
        const V t649 = t341 + t349;
        // complex block of 2
        const V t650 = t648 + t649;
        const V t651 = t648 - t649;
        // complex block of 2
        const V t652 = t372 + t375;
        // complex block of 2
        const V t653 = t176 + t179;
        // complex block of 2
        const V t654 = t652 + t653;
        const V t655 = t652 - t653;
        // complex block of 2
        const V t656 = t380 + t383;
        // complex block of 2
        const V t657 = t184 + t187;
        // complex block of 2
        const V t658 = t656 + t657;
        const V t659 = t656 - t657;
        // complex block of 2
        const V t660 = t259 + t283;
        // complex block of 2
        const V t661 = t99 + t123;
        // complex block of 2
        const V t662 = t660 + t661;
        const V t663 = t660 - t661;
        // complex block of 2
        const V t664 = t265 + t289;
        // complex block of 2
        const V t665 = t105 + t129;
        // complex block of 2
        const V t666 = t664 + t665;
        const V t667 = t664 - t665;
        // complex block of 2
        const V t668 = t259 - t283;
        // complex block of 8, multiplier 3
        const V t669 = c[0] * t668;
        // complex block of 2
        const V t670 = t265 - t289;
        // complex block of 8, multiplier 3
        const V t671 = c[0] * t670;
        const V t672 = t669 + t671;
        const V t673 = t671 - t669;
        // complex block of 2
        const V t674 = t99 - t123;
        // complex block of 8, multiplier 3
        const V t675 = c[0] * t674;
        // complex block of 2
        const V t676 = t105 - t129;
        // complex block of 8, multiplier 3
        const V t677 = c[0] * t676;
        const V t678 = t675 + t677;
        const V t679 = t677 - t675;
        // complex block of 2
        const V t680 = t646 + t654;
        // complex block of 2
        const V t681 = t680 + t662;
        io.re(32, t681);
        const V t682 = t680 - t662;
        io.re(8, t682);
        // complex block of 2
        const V t683 = t650 + t658;
        // complex block of 2
        const V t684 = t683 + t666;
        io.im(32, t684);
        const V t685 = t683 - t666;
        io.im(8, t685);
        // complex block of 2
        const V t686 = t646 - t654;
        // complex block of 2
        const V t687 = t686 - t667;
        io.re(44, t687);
        const V t688 = t686 + t667;
        io.re(20, t688);
        // complex block of 2
        const V t689 = t650 - t658;
        // complex block of 2
        const V t690 = t689 + t663;
        io.im(44, t690);
        const V t691 = t689 - t663;
        io.im(20, t691);
        // complex block of 2
        const V t692 = t647 - t659;
        // complex block of 2
        const V t693 = t673 + t678;
        // complex block of 2
        const V t694 = t692 + t693;
        io.re(38, t694);
        const V t695 = t692 - t693;
        io.re(14, t695);
        // complex block of 2
        const V t696 = t651 + t655;
        // complex block of 2
        const V t697 = t679 - t672;
        // complex block of 2
        const V t698 = t696 + t697;
        io.im(38, t698);
        const V t699 = t696 - t697;
        io.im(14, t699);
        // complex block of 2
        const V t700 = t647 + t659;
        // complex block of 2
        const V t701 = t672 + t679;
        // complex block of 2
        const V t702 = t700 + t701;
        io.re(2, t702);
        const V t703 = t700 - t701;
        io.re(26, t703);
        // complex block of 2
        const V t704 = t651 - t655;
        // complex block of 2
        const V t705 = t673 - t678;
        // complex block of 2
        const V t706 = t704 + t705;
        io.im(2, t706);
        const V t707 = t704 - t705;
        io.im(26, t707);
        // complex block of 2
        const V t708 = t23 - t31;
        // complex block of 2
        const V t709 = t341 - t349;
        // complex block of 2
        const V t710 = t708 - t709;
        const V t711 = t708 + t709;
        // complex block of 2
        const V t712 = t27 - t35;
        // complex block of 2
        const V t713 = t337 - t345;
        // complex block of 2
        const V t714 = t712 + t713;
        const V t715 = t712 - t713;
        // complex block of 16, multiplier 3
        const V t716 = t260 + t266;
        const V t717 = t284 - t290;
        // complex block of 2
        const V t718 = t716 - t717;
        const V t719 = t716 + t717;
        // complex block of 8, multiplier 3
        const V t720 = c[0] * t718;
        // complex block of 16, multiplier 3
        const V t721 = t267 - t261;
        const V t722 = t291 + t285;
        // complex block of 2
        const V t723 = t721 - t722;
        const V t724 = t721 + t722;
        // complex block of 8, multiplier 3
        const V t725 = c[0] * t723;
        // complex block of 16, multiplier 3
        const V t726 = c[0] * t377;
        const V t727 = c[0] * t385;
        const V t728 = t726 + t727;
        const V t729 = t727 - t726;
        const V t730 = c[0] * t181;
        const V t731 = c[0] * t189;
        const V t732 = t730 + t731;
        const V t733 = t731 - t730;
        // complex block of 2
        const V t734 = t729 + t732;
        const V t735 = t733 - t728;
        const V t736 = t729 - t732;
        const V t737 = t728 + t733;
        // complex block of 16, multiplier 3
        const V t738 = t100 + t106;
        const V t739 = t130 - t124;
        // complex block of 2
        const V t740 = t738 + t739;
        const V t741 = t739 - t738;
        // complex block of 8, multiplier 3
        const V t742 = c[0] * t740;
        // complex block of 16, multiplier 3
        const V t743 = t101 - t107;
        const V t744 = t131 + t125;
        // complex block of 2
        const V t745 = t743 + t744;
        const V t746 = t743 - t744;
        // complex block of 8, multiplier 3
        const V t747 = c[0] * t745;
        // complex block of 2
        const V t748 = t710 + t734;
        // complex block of 2
        const V t749 = t719 + t741;
        // complex block of 2
        const V t750 = t748 + t749;
        io.re(35, t750);
        const V t751 = t748 - t749;
        io.re(11, t751);
        // complex block of 2
        const V t752 = t714 + t735;
        // complex block of 2
        const V t753 = t724 + t746;
        // complex block of 2
        const V t754 = t752 + t753;
        io.im(35, t754);
        const V t755 = t752 - t753;
        io.im(11, t755);
        // complex block of 2
        const V t756 = t710 - t734;
        // complex block of 2
        const V t757 = t724 - t746;
        // complex block of 2
        const V t758 = t756 - t757;
        io.re(47, t758);
        const V t759 = t756 + t757;
        io.re(23, t759);
        // complex block of 2
        const V t760 = t714 - t735;
        // complex block of 2
        const V t761 = t719 - t741;
        // complex block of 2
        const V t762 = t760 + t761;
        io.im(47, t762);
        const V t763 = t760 - t761;
        io.im(23, t763);
        // complex block of 8, multiplier 3
        const V t764 = t720 + t725;
        const V t765 = t747 + t742;
        // complex block of 2
        const V t766 = t765 - t764;
        const V t767 = t764 + t765;
        // complex block of 2
        const V t768 = t715 + t736;
        const V t769 = t711 - t737;
        // complex block of 2
        const V t770 = t768 + t766;
        io.im(41, t770);
        const V t771 = t768 - t766;
        io.im(17, t771);
        // complex block of 2
        const V t772 = t769 + t767;
        io.re(5, t772);
        const V t773 = t769 - t767;
        io.re(29, t773);
        // complex block of 8, multiplier 3
        const V t774 = t725 - t720;
        const V t775 = t747 - t742;
        // complex block of 2
        const V t776 = t774 + t775;
        const V t777 = t774 - t775;
        // complex block of 2
        const V t778 = t711 + t737;
        const V t779 = t715 - t736;
        // complex block of 2
        const V t780 = t778 + t776;
        io.re(41, t780);
        const V t781 = t778 - t776;
        io.re(17, t781);
        // complex block of 2
        const V t782 = t779 + t777;
        io.im(5, t782);
        const V t783 = t779 - t777;
        io.im(29, t783);
    }
};

}  // namespace zulg
