// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 64.
// Complex DFT of 64 points, twiddled, inner 8, outer 8.
// 464 additions, 464 subtractions, 248 multiplications (376 with `scale`); 15 constants; 130 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<64> {
    static constexpr int steps = 1304;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 4/64
        0.9238795325112867,  // c[2]: cos 2 pi 4/64
        0.19509032201612828,  // c[3]: sin 2 pi 2/64
        0.9807852804032304,  // c[4]: cos 2 pi 2/64
        0.5555702330196022,  // c[5]: sin 2 pi 6/64
        0.8314696123025452,  // c[6]: cos 2 pi 6/64
        0.0980171403295606,  // c[7]: sin 2 pi 1/64
        0.9951847266721969,  // c[8]: cos 2 pi 1/64
        0.2902846772544624,  // c[9]: sin 2 pi 3/64
        0.9569403357322088,  // c[10]: cos 2 pi 3/64
        0.47139673682599764,  // c[11]: sin 2 pi 5/64
        0.881921264348355,  // c[12]: cos 2 pi 5/64
        0.6343932841636455,  // c[13]: sin 2 pi 7/64
        0.773010453362737,  // c[14]: cos 2 pi 7/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x32r = io.re(32);
        const V t0 = x0r + x32r;
        const V x0i = io.im(0);
        const V x32i = io.im(32);
        const V t1 = x0i + x32i;
        const V t2 = x0r - x32r;
        const V t3 = x0i - x32i;
        // complex block of 2
        const V x8r = io.re(8);
        const V x40r = io.re(40);
        const V t4 = x8r + x40r;
        const V x8i = io.im(8);
        const V x40i = io.im(40);
        const V t5 = x8i + x40i;
        const V t6 = x8r - x40r;
        const V t7 = x8i - x40i;
        // complex block of 2
        const V x16r = io.re(16);
        const V x48r = io.re(48);
        const V t8 = x16r + x48r;
        const V x16i = io.im(16);
        const V x48i = io.im(48);
        const V t9 = x16i + x48i;
        const V t10 = x16r - x48r;
        const V t11 = x16i - x48i;
        // complex block of 2
        const V x24r = io.re(24);
        const V x56r = io.re(56);
        const V t12 = x24r + x56r;
        const V x24i = io.im(24);
        const V x56i = io.im(56);
        const V t13 = x24i + x56i;
        const V t14 = x24r - x56r;
        const V t15 = x24i - x56i;
        // complex block of 2
        const V t16 = t0 + t8;
        const V t17 = t1 + t9;
        const V t18 = t0 - t8;
        const V t19 = t1 - t9;
        // complex block of 2
        const V t20 = t4 + t12;
        const V t21 = t5 + t13;
        const V t22 = t4 - t12;
        const V t23 = t5 - t13;
        // complex block of 2
        const V t24 = t16 + t20;
        const V t25 = t17 + t21;
        const V t26 = t16 - t20;
        const V t27 = t17 - t21;
        // complex block of 2
        const V t28 = t18 + t23;
        const V t29 = t19 - t22;
        const V t30 = t18 - t23;
        const V t31 = t19 + t22;
        // complex block of 8
        const V t32 = c[0] * t6;
        const V t33 = c[0] * t7;
        const V t34 = t32 + t33;
        const V t35 = t33 - t32;
        const V t36 = c[0] * t14;
        const V t37 = c[0] * t15;
        const V t38 = t36 + t37;
        const V t39 = t37 - t36;
        // complex block of 2
        const V t40 = t2 + t11;
        const V t41 = t3 - t10;
        const V t42 = t2 - t11;
        const V t43 = t3 + t10;
        // complex block of 2
        const V t44 = t34 + t39;
        const V t45 = t35 - t38;
        const V t46 = t34 - t39;
        const V t47 = t35 + t38;
        // complex block of 2
        const V t48 = t40 + t44;
        const V t49 = t41 + t45;
        const V t50 = t40 - t44;
        const V t51 = t41 - t45;
        // complex block of 2
        const V t52 = t42 + t47;
        const V t53 = t43 - t46;
        const V t54 = t42 - t47;
        const V t55 = t43 + t46;
        // complex block of 2
        const V x1r = io.re(1);
        const V x33r = io.re(33);
        const V t56 = x1r + x33r;
        const V x1i = io.im(1);
        const V x33i = io.im(33);
        const V t57 = x1i + x33i;
        const V t58 = x1r - x33r;
        const V t59 = x1i - x33i;
        // complex block of 2
        const V x9r = io.re(9);
        const V x41r = io.re(41);
        const V t60 = x9r + x41r;
        const V x9i = io.im(9);
        const V x41i = io.im(41);
        const V t61 = x9i + x41i;
        const V t62 = x9r - x41r;
        const V t63 = x9i - x41i;
        // complex block of 2
        const V x17r = io.re(17);
        const V x49r = io.re(49);
        const V t64 = x17r + x49r;
        const V x17i = io.im(17);
        const V x49i = io.im(49);
        const V t65 = x17i + x49i;
        const V t66 = x17r - x49r;
        const V t67 = x17i - x49i;
        // complex block of 2
        const V x25r = io.re(25);
        const V x57r = io.re(57);
        const V t68 = x25r + x57r;
        const V x25i = io.im(25);
        const V x57i = io.im(57);
        const V t69 = x25i + x57i;
        const V t70 = x25r - x57r;
        const V t71 = x25i - x57i;
        // complex block of 2
        const V t72 = t56 + t64;
        const V t73 = t57 + t65;
        const V t74 = t56 - t64;
        const V t75 = t57 - t65;
        // complex block of 2
        const V t76 = t60 + t68;
        const V t77 = t61 + t69;
        const V t78 = t60 - t68;
        const V t79 = t61 - t69;
        // complex block of 2
        const V t80 = t72 + t76;
        const V t81 = t73 + t77;
        const V t82 = t72 - t76;
        const V t83 = t73 - t77;
        // complex block of 2
        const V t84 = t74 + t79;
        const V t85 = t75 - t78;
        const V t86 = t74 - t79;
        const V t87 = t75 + t78;
        // complex block of 8
        const V t88 = c[0] * t62;
        const V t89 = c[0] * t63;
        const V t90 = t88 + t89;
        const V t91 = t89 - t88;
        const V t92 = c[0] * t70;
        const V t93 = c[0] * t71;
        const V t94 = t92 + t93;
        const V t95 = t93 - t92;
        // complex block of 2
        const V t96 = t58 + t67;
        const V t97 = t59 - t66;
        const V t98 = t58 - t67;
        const V t99 = t59 + t66;
        // complex block of 2
        const V t100 = t90 + t95;
        const V t101 = t91 - t94;
        const V t102 = t90 - t95;
        const V t103 = t91 + t94;
        // complex block of 2
        const V t104 = t96 + t100;
        const V t105 = t97 + t101;
        const V t106 = t96 - t100;
        const V t107 = t97 - t101;
        // complex block of 2
        const V t108 = t98 + t103;
        const V t109 = t99 - t102;
        const V t110 = t98 - t103;
        const V t111 = t99 + t102;
        // complex block of 2
        const V x2r = io.re(2);
        const V x34r = io.re(34);
        const V t112 = x2r + x34r;
        const V x2i = io.im(2);
        const V x34i = io.im(34);
        const V t113 = x2i + x34i;
        const V t114 = x2r - x34r;
        const V t115 = x2i - x34i;
        // complex block of 2
        const V x10r = io.re(10);
        const V x42r = io.re(42);
        const V t116 = x10r + x42r;
        const V x10i = io.im(10);
        const V x42i = io.im(42);
        const V t117 = x10i + x42i;
        const V t118 = x10r - x42r;
        const V t119 = x10i - x42i;
        // complex block of 2
        const V x18r = io.re(18);
        const V x50r = io.re(50);
        const V t120 = x18r + x50r;
        const V x18i = io.im(18);
        const V x50i = io.im(50);
        const V t121 = x18i + x50i;
        const V t122 = x18r - x50r;
        const V t123 = x18i - x50i;
        // complex block of 2
        const V x26r = io.re(26);
        const V x58r = io.re(58);
        const V t124 = x26r + x58r;
        const V x26i = io.im(26);
        const V x58i = io.im(58);
        const V t125 = x26i + x58i;
        const V t126 = x26r - x58r;
        const V t127 = x26i - x58i;
        // complex block of 2
        const V t128 = t112 + t120;
        const V t129 = t113 + t121;
        const V t130 = t112 - t120;
        const V t131 = t113 - t121;
        // complex block of 2
        const V t132 = t116 + t124;
        const V t133 = t117 + t125;
        const V t134 = t116 - t124;
        const V t135 = t117 - t125;
        // complex block of 2
        const V t136 = t128 + t132;
        const V t137 = t129 + t133;
        const V t138 = t128 - t132;
        const V t139 = t129 - t133;
        // complex block of 2
        const V t140 = t130 + t135;
        const V t141 = t131 - t134;
        const V t142 = t130 - t135;
        const V t143 = t131 + t134;
        // complex block of 8
        const V t144 = c[0] * t118;
        const V t145 = c[0] * t119;
        const V t146 = t144 + t145;
        const V t147 = t145 - t144;
        const V t148 = c[0] * t126;
        const V t149 = c[0] * t127;
        const V t150 = t148 + t149;
        const V t151 = t149 - t148;
        // complex block of 2
        const V t152 = t114 + t123;
        const V t153 = t115 - t122;
        const V t154 = t114 - t123;
        const V t155 = t115 + t122;
        // complex block of 2
        const V t156 = t146 + t151;
        const V t157 = t147 - t150;
        const V t158 = t146 - t151;
        const V t159 = t147 + t150;
        // complex block of 2
        const V t160 = t152 + t156;
        const V t161 = t153 + t157;
        const V t162 = t152 - t156;
        const V t163 = t153 - t157;
        // complex block of 2
        const V t164 = t154 + t159;
        const V t165 = t155 - t158;
        const V t166 = t154 - t159;
        const V t167 = t155 + t158;
        // complex block of 2
        const V x3r = io.re(3);
        const V x35r = io.re(35);
        const V t168 = x3r + x35r;
        const V x3i = io.im(3);
        const V x35i = io.im(35);
        const V t169 = x3i + x35i;
        const V t170 = x3r - x35r;
        const V t171 = x3i - x35i;
        // complex block of 2
        const V x11r = io.re(11);
        const V x43r = io.re(43);
        const V t172 = x11r + x43r;
        const V x11i = io.im(11);
        const V x43i = io.im(43);
        const V t173 = x11i + x43i;
        const V t174 = x11r - x43r;
        const V t175 = x11i - x43i;
        // complex block of 2
        const V x19r = io.re(19);
        const V x51r = io.re(51);
        const V t176 = x19r + x51r;
        const V x19i = io.im(19);
        const V x51i = io.im(51);
        const V t177 = x19i + x51i;
        const V t178 = x19r - x51r;
        const V t179 = x19i - x51i;
        // complex block of 2
        const V x27r = io.re(27);
        const V x59r = io.re(59);
        const V t180 = x27r + x59r;
        const V x27i = io.im(27);
        const V x59i = io.im(59);
        const V t181 = x27i + x59i;
        const V t182 = x27r - x59r;
        const V t183 = x27i - x59i;
        // complex block of 2
        const V t184 = t168 + t176;
        const V t185 = t169 + t177;
        const V t186 = t168 - t176;
        const V t187 = t169 - t177;
        // complex block of 2
        const V t188 = t172 + t180;
        const V t189 = t173 + t181;
        const V t190 = t172 - t180;
        const V t191 = t173 - t181;
        // complex block of 2
        const V t192 = t184 + t188;
        const V t193 = t185 + t189;
        const V t194 = t184 - t188;
        const V t195 = t185 - t189;
        // complex block of 2
        const V t196 = t186 + t191;
        const V t197 = t187 - t190;
        const V t198 = t186 - t191;
        const V t199 = t187 + t190;
        // complex block of 8
        const V t200 = c[0] * t174;
        const V t201 = c[0] * t175;
        const V t202 = t200 + t201;
        const V t203 = t201 - t200;
        const V t204 = c[0] * t182;
        const V t205 = c[0] * t183;
        const V t206 = t204 + t205;
        const V t207 = t205 - t204;
        // complex block of 2
        const V t208 = t170 + t179;
        const V t209 = t171 - t178;
        const V t210 = t170 - t179;
        const V t211 = t171 + t178;
        // complex block of 2
        const V t212 = t202 + t207;
        const V t213 = t203 - t206;
        const V t214 = t202 - t207;
        const V t215 = t203 + t206;
        // complex block of 2
        const V t216 = t208 + t212;
        const V t217 = t209 + t213;
        const V t218 = t208 - t212;
        const V t219 = t209 - t213;
        // complex block of 2
        const V t220 = t210 + t215;
        const V t221 = t211 - t214;
        const V t222 = t210 - t215;
        const V t223 = t211 + t214;
        // complex block of 2
        const V x4r = io.re(4);
        const V x36r = io.re(36);
        const V t224 = x4r + x36r;
        const V x4i = io.im(4);
        const V x36i = io.im(36);
        const V t225 = x4i + x36i;
        const V t226 = x4r - x36r;
        const V t227 = x4i - x36i;
        // complex block of 2
        const V x12r = io.re(12);
        const V x44r = io.re(44);
        const V t228 = x12r + x44r;
        const V x12i = io.im(12);
        const V x44i = io.im(44);
        const V t229 = x12i + x44i;
        const V t230 = x12r - x44r;
        const V t231 = x12i - x44i;
        // complex block of 2
        const V x20r = io.re(20);
        const V x52r = io.re(52);
        const V t232 = x20r + x52r;
        const V x20i = io.im(20);
        const V x52i = io.im(52);
        const V t233 = x20i + x52i;
        const V t234 = x20r - x52r;
        const V t235 = x20i - x52i;
        // complex block of 2
        const V x28r = io.re(28);
        const V x60r = io.re(60);
        const V t236 = x28r + x60r;
        const V x28i = io.im(28);
        const V x60i = io.im(60);
        const V t237 = x28i + x60i;
        const V t238 = x28r - x60r;
        const V t239 = x28i - x60i;
        // complex block of 2
        const V t240 = t224 + t232;
        const V t241 = t225 + t233;
        const V t242 = t224 - t232;
        const V t243 = t225 - t233;
        // complex block of 2
        const V t244 = t228 + t236;
        const V t245 = t229 + t237;
        const V t246 = t228 - t236;
        const V t247 = t229 - t237;
        // complex block of 2
        const V t248 = t240 + t244;
        const V t249 = t241 + t245;
        const V t250 = t240 - t244;
        const V t251 = t241 - t245;
        // complex block of 2
        const V t252 = t242 + t247;
        const V t253 = t243 - t246;
        const V t254 = t242 - t247;
        const V t255 = t243 + t246;
        // complex block of 8
        const V t256 = c[0] * t230;
        const V t257 = c[0] * t231;
        const V t258 = t256 + t257;
        const V t259 = t257 - t256;
        const V t260 = c[0] * t238;
        const V t261 = c[0] * t239;
        const V t262 = t260 + t261;
        const V t263 = t261 - t260;
        // complex block of 2
        const V t264 = t226 + t235;
        const V t265 = t227 - t234;
        const V t266 = t226 - t235;
        const V t267 = t227 + t234;
        // complex block of 2
        const V t268 = t258 + t263;
        const V t269 = t259 - t262;
        const V t270 = t258 - t263;
        const V t271 = t259 + t262;
        // complex block of 2
        const V t272 = t264 + t268;
        const V t273 = t265 + t269;
        const V t274 = t264 - t268;
        const V t275 = t265 - t269;
        // complex block of 2
        const V t276 = t266 + t271;
        const V t277 = t267 - t270;
        const V t278 = t266 - t271;
        const V t279 = t267 + t270;
        // complex block of 2
        const V x5r = io.re(5);
        const V x37r = io.re(37);
        const V t280 = x5r + x37r;
        const V x5i = io.im(5);
        const V x37i = io.im(37);
        const V t281 = x5i + x37i;
        const V t282 = x5r - x37r;
        const V t283 = x5i - x37i;
        // complex block of 2
        const V x13r = io.re(13);
        const V x45r = io.re(45);
        const V t284 = x13r + x45r;
        const V x13i = io.im(13);
        const V x45i = io.im(45);
        const V t285 = x13i + x45i;
        const V t286 = x13r - x45r;
        const V t287 = x13i - x45i;
        // complex block of 2
        const V x21r = io.re(21);
        const V x53r = io.re(53);
        const V t288 = x21r + x53r;
        const V x21i = io.im(21);
        const V x53i = io.im(53);
        const V t289 = x21i + x53i;
        const V t290 = x21r - x53r;
        const V t291 = x21i - x53i;
        // complex block of 2
        const V x29r = io.re(29);
        const V x61r = io.re(61);
        const V t292 = x29r + x61r;
        const V x29i = io.im(29);
        const V x61i = io.im(61);
        const V t293 = x29i + x61i;
        const V t294 = x29r - x61r;
        const V t295 = x29i - x61i;
        // complex block of 2
        const V t296 = t280 + t288;
        const V t297 = t281 + t289;
        const V t298 = t280 - t288;
        const V t299 = t281 - t289;
        // complex block of 2
        const V t300 = t284 + t292;
        const V t301 = t285 + t293;
        const V t302 = t284 - t292;
        const V t303 = t285 - t293;
        // complex block of 2
        const V t304 = t296 + t300;
        const V t305 = t297 + t301;
        const V t306 = t296 - t300;
        const V t307 = t297 - t301;
        // complex block of 2
        const V t308 = t298 + t303;
        const V t309 = t299 - t302;
        const V t310 = t298 - t303;
        const V t311 = t299 + t302;
        // complex block of 8
        const V t312 = c[0] * t286;
        const V t313 = c[0] * t287;
        const V t314 = t312 + t313;
        const V t315 = t313 - t312;
        const V t316 = c[0] * t294;
        const V t317 = c[0] * t295;
        const V t318 = t316 + t317;
        const V t319 = t317 - t316;
        // complex block of 2
        const V t320 = t282 + t291;
        const V t321 = t283 - t290;
        const V t322 = t282 - t291;
        const V t323 = t283 + t290;
        // complex block of 2
        const V t324 = t314 + t319;
        const V t325 = t315 - t318;
        const V t326 = t314 - t319;
        const V t327 = t315 + t318;
        // complex block of 2
        const V t328 = t320 + t324;
        const V t329 = t321 + t325;
        const V t330 = t320 - t324;
        const V t331 = t321 - t325;
        // complex block of 2
        const V t332 = t322 + t327;
        const V t333 = t323 - t326;
        const V t334 = t322 - t327;
        const V t335 = t323 + t326;
        // complex block of 2
        const V x6r = io.re(6);
        const V x38r = io.re(38);
        const V t336 = x6r + x38r;
        const V x6i = io.im(6);
        const V x38i = io.im(38);
        const V t337 = x6i + x38i;
        const V t338 = x6r - x38r;
        const V t339 = x6i - x38i;
        // complex block of 2
        const V x14r = io.re(14);
        const V x46r = io.re(46);
        const V t340 = x14r + x46r;
        const V x14i = io.im(14);
        const V x46i = io.im(46);
        const V t341 = x14i + x46i;
        const V t342 = x14r - x46r;
        const V t343 = x14i - x46i;
        // complex block of 2
        const V x22r = io.re(22);
        const V x54r = io.re(54);
        const V t344 = x22r + x54r;
        const V x22i = io.im(22);
        const V x54i = io.im(54);
        const V t345 = x22i + x54i;
        const V t346 = x22r - x54r;
        const V t347 = x22i - x54i;
        // complex block of 2
        const V x30r = io.re(30);
        const V x62r = io.re(62);
        const V t348 = x30r + x62r;
        const V x30i = io.im(30);
        const V x62i = io.im(62);
        const V t349 = x30i + x62i;
        const V t350 = x30r - x62r;
        const V t351 = x30i - x62i;
        // complex block of 2
        const V t352 = t336 + t344;
        const V t353 = t337 + t345;
        const V t354 = t336 - t344;
        const V t355 = t337 - t345;
        // complex block of 2
        const V t356 = t340 + t348;
        const V t357 = t341 + t349;
        const V t358 = t340 - t348;
        const V t359 = t341 - t349;
        // complex block of 2
        const V t360 = t352 + t356;
        const V t361 = t353 + t357;
        const V t362 = t352 - t356;
        const V t363 = t353 - t357;
        // complex block of 2
        const V t364 = t354 + t359;
        const V t365 = t355 - t358;
        const V t366 = t354 - t359;
        const V t367 = t355 + t358;
        // complex block of 8
        const V t368 = c[0] * t342;
        const V t369 = c[0] * t343;
        const V t370 = t368 + t369;
        const V t371 = t369 - t368;
        const V t372 = c[0] * t350;
        const V t373 = c[0] * t351;
        const V t374 = t372 + t373;
        const V t375 = t373 - t372;
        // complex block of 2
        const V t376 = t338 + t347;
        const V t377 = t339 - t346;
        const V t378 = t338 - t347;
        const V t379 = t339 + t346;
        // complex block of 2
        const V t380 = t370 + t375;
        const V t381 = t371 - t374;
        const V t382 = t370 - t375;
        const V t383 = t371 + t374;
        // complex block of 2
        const V t384 = t376 + t380;
        const V t385 = t377 + t381;
        const V t386 = t376 - t380;
        const V t387 = t377 - t381;
        // complex block of 2
        const V t388 = t378 + t383;
        const V t389 = t379 - t382;
        const V t390 = t378 - t383;
        const V t391 = t379 + t382;
        // complex block of 2
        const V x7r = io.re(7);
        const V x39r = io.re(39);
        const V t392 = x7r + x39r;
        const V x7i = io.im(7);
        const V x39i = io.im(39);
        const V t393 = x7i + x39i;
        const V t394 = x7r - x39r;
        const V t395 = x7i - x39i;
        // complex block of 2
        const V x15r = io.re(15);
        const V x47r = io.re(47);
        const V t396 = x15r + x47r;
        const V x15i = io.im(15);
        const V x47i = io.im(47);
        const V t397 = x15i + x47i;
        const V t398 = x15r - x47r;
        const V t399 = x15i - x47i;
        // complex block of 2
        const V x23r = io.re(23);
        const V x55r = io.re(55);
        const V t400 = x23r + x55r;
        const V x23i = io.im(23);
        const V x55i = io.im(55);
        const V t401 = x23i + x55i;
        const V t402 = x23r - x55r;
        const V t403 = x23i - x55i;
        // complex block of 2
        const V x31r = io.re(31);
        const V x63r = io.re(63);
        const V t404 = x31r + x63r;
        const V x31i = io.im(31);
        const V x63i = io.im(63);
        const V t405 = x31i + x63i;
        const V t406 = x31r - x63r;
        const V t407 = x31i - x63i;
        // complex block of 2
        const V t408 = t392 + t400;
        const V t409 = t393 + t401;
        const V t410 = t392 - t400;
        const V t411 = t393 - t401;
        // complex block of 2
        const V t412 = t396 + t404;
        const V t413 = t397 + t405;
        const V t414 = t396 - t404;
        const V t415 = t397 - t405;
        // complex block of 2
        const V t416 = t408 + t412;
        const V t417 = t409 + t413;
        const V t418 = t408 - t412;
        const V t419 = t409 - t413;
        // complex block of 2
        const V t420 = t410 + t415;
        const V t421 = t411 - t414;
        const V t422 = t410 - t415;
        const V t423 = t411 + t414;
        // complex block of 8
        const V t424 = c[0] * t398;
        const V t425 = c[0] * t399;
        const V t426 = t424 + t425;
        const V t427 = t425 - t424;
        const V t428 = c[0] * t406;
        const V t429 = c[0] * t407;
        const V t430 = t428 + t429;
        const V t431 = t429 - t428;
        // complex block of 2
        const V t432 = t394 + t403;
        const V t433 = t395 - t402;
        const V t434 = t394 - t403;
        const V t435 = t395 + t402;
        // complex block of 2
        const V t436 = t426 + t431;
        const V t437 = t427 - t430;
        const V t438 = t426 - t431;
        const V t439 = t427 + t430;
        // complex block of 2
        const V t440 = t432 + t436;
        const V t441 = t433 + t437;
        const V t442 = t432 - t436;
        const V t443 = t433 - t437;
        // complex block of 2
        const V t444 = t434 + t439;
        const V t445 = t435 - t438;
        const V t446 = t434 - t439;
        const V t447 = t435 + t438;
        // complex block of 2
        const V t448 = t24 + t248;
        const V t449 = t25 + t249;
        const V t450 = t24 - t248;
        const V t451 = t25 - t249;
        // complex block of 2
        const V t452 = t80 + t304;
        const V t453 = t81 + t305;
        const V t454 = t80 - t304;
        const V t455 = t81 - t305;
        // complex block of 2
        const V t456 = t136 + t360;
        const V t457 = t137 + t361;
        const V t458 = t136 - t360;
        const V t459 = t137 - t361;
        // complex block of 2
        const V t460 = t192 + t416;
        const V t461 = t193 + t417;
        const V t462 = t192 - t416;
        const V t463 = t193 - t417;
        // complex block of 2
        const V t464 = t448 + t456;
        const V t465 = t449 + t457;
        const V t466 = t448 - t456;
        const V t467 = t449 - t457;
        // complex block of 2
        const V t468 = t452 + t460;
        const V t469 = t453 + t461;
        const V t470 = t452 - t460;
        const V t471 = t453 - t461;
        // complex block of 2
        const V t472 = t464 + t468;
        io.re(0, t472);
        const V t473 = t465 + t469;
        io.im(0, t473);
        const V t474 = t464 - t468;
        io.re(32, t474);
        const V t475 = t465 - t469;
        io.im(32, t475);
        // complex block of 2
        const V t476 = t466 + t471;
        io.re(16, t476);
        const V t477 = t467 - t470;
        io.im(16, t477);
        const V t478 = t466 - t471;
        io.re(48, t478);
        const V t479 = t467 + t470;
        io.im(48, t479);
        // complex block of 8
        const V t480 = c[0] * t454;
        const V t481 = c[0] * t455;
        const V t482 = t480 + t481;
        const V t483 = t481 - t480;
        const V t484 = c[0] * t462;
        const V t485 = c[0] * t463;
        const V t486 = t484 + t485;
        const V t487 = t485 - t484;
        // complex block of 2
        const V t488 = t450 + t459;
        const V t489 = t451 - t458;
        const V t490 = t450 - t459;
        const V t491 = t451 + t458;
        // complex block of 2
        const V t492 = t482 + t487;
        const V t493 = t483 - t486;
        const V t494 = t482 - t487;
        const V t495 = t483 + t486;
        // complex block of 2
        const V t496 = t488 + t492;
        io.re(8, t496);
        const V t497 = t489 + t493;
        io.im(8, t497);
        const V t498 = t488 - t492;
        io.re(40, t498);
        const V t499 = t489 - t493;
        io.im(40, t499);
        // complex block of 2
        const V t500 = t490 + t495;
        io.re(24, t500);
        const V t501 = t491 - t494;
        io.im(24, t501);
        const V t502 = t490 - t495;
        io.re(56, t502);
        const V t503 = t491 + t494;
        io.im(56, t503);
        // complex block of 64
        const V t504 = c[7] * t105;
        const V t505 = c[8] * t104;
        const V t506 = t505 + t504;
        const V t507 = c[7] * t104;
        const V t508 = c[8] * t105;
        const V t509 = t508 - t507;
        const V t510 = c[3] * t161;
        const V t511 = c[4] * t160;
        const V t512 = t511 + t510;
        const V t513 = c[3] * t160;
        const V t514 = c[4] * t161;
        const V t515 = t514 - t513;
        const V t516 = c[9] * t217;
        const V t517 = c[10] * t216;
        const V t518 = t517 + t516;
        const V t519 = c[9] * t216;
        const V t520 = c[10] * t217;
        const V t521 = t520 - t519;
        const V t522 = c[1] * t273;
        const V t523 = c[2] * t272;
        const V t524 = t523 + t522;
        const V t525 = c[1] * t272;
        const V t526 = c[2] * t273;
        const V t527 = t526 - t525;
        const V t528 = c[11] * t329;
        const V t529 = c[12] * t328;
        const V t530 = t529 + t528;
        const V t531 = c[11] * t328;
        const V t532 = c[12] * t329;
        const V t533 = t532 - t531;
        const V t534 = c[5] * t385;
        const V t535 = c[6] * t384;
        const V t536 = t535 + t534;
        const V t537 = c[5] * t384;
        const V t538 = c[6] * t385;
        const V t539 = t538 - t537;
        const V t540 = c[13] * t441;
        const V t541 = c[14] * t440;
        const V t542 = t541 + t540;
        const V t543 = c[13] * t440;
        const V t544 = c[14] * t441;
        const V t545 = t544 - t543;
        // complex block of 2
        const V t546 = t48 + t524;
        const V t547 = t49 + t527;
        const V t548 = t48 - t524;
        const V t549 = t49 - t527;
        // complex block of 2
        const V t550 = t506 + t530;
        const V t551 = t509 + t533;
        const V t552 = t506 - t530;
        const V t553 = t509 - t533;
        // complex block of 2
        const V t554 = t512 + t536;
        const V t555 = t515 + t539;
        const V t556 = t512 - t536;
        const V t557 = t515 - t539;
        // complex block of 2
        const V t558 = t518 + t542;
        const V t559 = t521 + t545;
        const V t560 = t518 - t542;
        const V t561 = t521 - t545;
        // complex block of 2
        const V t562 = t546 + t554;
        const V t563 = t547 + t555;
        const V t564 = t546 - t554;
        const V t565 = t547 - t555;
        // complex block of 2
        const V t566 = t550 + t558;
        const V t567 = t551 + t559;
        const V t568 = t550 - t558;
        const V t569 = t551 - t559;
        // complex block of 2
        const V t570 = t562 + t566;
        io.re(1, t570);
        const V t571 = t563 + t567;
        io.im(1, t571);
        const V t572 = t562 - t566;
        io.re(33, t572);
        const V t573 = t563 - t567;
        io.im(33, t573);
        // complex block of 2
        const V t574 = t564 + t569;
        io.re(17, t574);
        const V t575 = t565 - t568;
        io.im(17, t575);
        const V t576 = t564 - t569;
        io.re(49, t576);
        const V t577 = t565 + t568;
        io.im(49, t577);
        // complex block of 8
        const V t578 = c[0] * t552;
        const V t579 = c[0] * t553;
        const V t580 = t578 + t579;
        const V t581 = t579 - t578;
        const V t582 = c[0] * t560;
        const V t583 = c[0] * t561;
        const V t584 = t582 + t583;
        const V t585 = t583 - t582;
        // complex block of 2
        const V t586 = t548 + t557;
        const V t587 = t549 - t556;
        const V t588 = t548 - t557;
        const V t589 = t549 + t556;
        // complex block of 2
        const V t590 = t580 + t585;
        const V t591 = t581 - t584;
        const V t592 = t580 - t585;
        const V t593 = t581 + t584;
        // complex block of 2
        const V t594 = t586 + t590;
        io.re(9, t594);
        const V t595 = t587 + t591;
        io.im(9, t595);
        const V t596 = t586 - t590;
        io.re(41, t596);
        const V t597 = t587 - t591;
        io.im(41, t597);
        // complex block of 2
        const V t598 = t588 + t593;
        io.re(25, t598);
        const V t599 = t589 - t592;
        io.im(25, t599);
        const V t600 = t588 - t593;
        io.re(57, t600);
        const V t601 = t589 + t592;
        io.im(57, t601);
        // complex block of 64
        const V t602 = c[3] * t85;
        const V t603 = c[4] * t84;
        const V t604 = t603 + t602;
        const V t605 = c[3] * t84;
        const V t606 = c[4] * t85;
        const V t607 = t606 - t605;
        const V t608 = c[1] * t141;
        const V t609 = c[2] * t140;
        const V t610 = t609 + t608;
        const V t611 = c[1] * t140;
        const V t612 = c[2] * t141;
        const V t613 = t612 - t611;
        const V t614 = c[5] * t197;
        const V t615 = c[6] * t196;
        const V t616 = t615 + t614;
        const V t617 = c[5] * t196;
        const V t618 = c[6] * t197;
        const V t619 = t618 - t617;
        const V t620 = c[0] * t252;
        const V t621 = c[0] * t253;
        const V t622 = t620 + t621;
        const V t623 = t621 - t620;
        const V t624 = c[6] * t309;
        const V t625 = c[5] * t308;
        const V t626 = t625 + t624;
        const V t627 = c[6] * t308;
        const V t628 = c[5] * t309;
        const V t629 = t628 - t627;
        const V t630 = c[2] * t365;
        const V t631 = c[1] * t364;
        const V t632 = t631 + t630;
        const V t633 = c[2] * t364;
        const V t634 = c[1] * t365;
        const V t635 = t634 - t633;
        const V t636 = c[4] * t421;
        const V t637 = c[3] * t420;
        const V t638 = t637 + t636;
        const V t639 = c[4] * t420;
        const V t640 = c[3] * t421;
        const V t641 = t640 - t639;
        // complex block of 2
        const V t642 = t28 + t622;
        const V t643 = t29 + t623;
        const V t644 = t28 - t622;
        const V t645 = t29 - t623;
        // complex block of 2
        const V t646 = t604 + t626;
        const V t647 = t607 + t629;
        const V t648 = t604 - t626;
        const V t649 = t607 - t629;
        // complex block of 2
        const V t650 = t610 + t632;
        const V t651 = t613 + t635;
        const V t652 = t610 - t632;
        const V t653 = t613 - t635;
        // complex block of 2
        const V t654 = t616 + t638;
        const V t655 = t619 + t641;
        const V t656 = t616 - t638;
        const V t657 = t619 - t641;
        // complex block of 2
        const V t658 = t642 + t650;
        const V t659 = t643 + t651;
        const V t660 = t642 - t650;
        const V t661 = t643 - t651;
        // complex block of 2
        const V t662 = t646 + t654;
        const V t663 = t647 + t655;
        const V t664 = t646 - t654;
        const V t665 = t647 - t655;
        // complex block of 2
        const V t666 = t658 + t662;
        io.re(2, t666);
        const V t667 = t659 + t663;
        io.im(2, t667);
        const V t668 = t658 - t662;
        io.re(34, t668);
        const V t669 = t659 - t663;
        io.im(34, t669);
        // complex block of 2
        const V t670 = t660 + t665;
        io.re(18, t670);
        const V t671 = t661 - t664;
        io.im(18, t671);
        const V t672 = t660 - t665;
        io.re(50, t672);
        const V t673 = t661 + t664;
        io.im(50, t673);
        // complex block of 8
        const V t674 = c[0] * t648;
        const V t675 = c[0] * t649;
        const V t676 = t674 + t675;
        const V t677 = t675 - t674;
        const V t678 = c[0] * t656;
        const V t679 = c[0] * t657;
        const V t680 = t678 + t679;
        const V t681 = t679 - t678;
        // complex block of 2
        const V t682 = t644 + t653;
        const V t683 = t645 - t652;
        const V t684 = t644 - t653;
        const V t685 = t645 + t652;
        // complex block of 2
        const V t686 = t676 + t681;
        const V t687 = t677 - t680;
        const V t688 = t676 - t681;
        const V t689 = t677 + t680;
        // complex block of 2
        const V t690 = t682 + t686;
        io.re(10, t690);
        const V t691 = t683 + t687;
        io.im(10, t691);
        const V t692 = t682 - t686;
        io.re(42, t692);
        const V t693 = t683 - t687;
        io.im(42, t693);
        // complex block of 2
        const V t694 = t684 + t689;
        io.re(26, t694);
        const V t695 = t685 - t688;
        io.im(26, t695);
        const V t696 = t684 - t689;
        io.re(58, t696);
        const V t697 = t685 + t688;
        io.im(58, t697);
        // complex block of 64
        const V t698 = c[9] * t109;
        const V t699 = c[10] * t108;
        const V t700 = t699 + t698;
        const V t701 = c[9] * t108;
        const V t702 = c[10] * t109;
        const V t703 = t702 - t701;
        const V t704 = c[5] * t165;
        const V t705 = c[6] * t164;
        const V t706 = t705 + t704;
        const V t707 = c[5] * t164;
        const V t708 = c[6] * t165;
        const V t709 = t708 - t707;
        const V t710 = c[14] * t221;
        const V t711 = c[13] * t220;
        const V t712 = t711 + t710;
        const V t713 = c[14] * t220;
        const V t714 = c[13] * t221;
        const V t715 = t714 - t713;
        const V t716 = c[2] * t277;
        const V t717 = c[1] * t276;
        const V t718 = t717 + t716;
        const V t719 = c[2] * t276;
        const V t720 = c[1] * t277;
        const V t721 = t720 - t719;
        const V t722 = c[8] * t333;
        const V t723 = c[7] * t332;
        const V t724 = t723 + t722;
        const V t725 = c[8] * t332;
        const V t726 = c[7] * t333;
        const V t727 = t726 - t725;
        const V t728 = c[4] * t389;
        const V t729 = c[3] * t388;
        const V t730 = t728 - t729;
        const V t731 = c[4] * t388;
        const V t732 = c[3] * t389;
        const V t733 = t732 + t731;
        const V t734 = c[12] * t445;
        const V t735 = c[11] * t444;
        const V t736 = t734 - t735;
        const V t737 = c[12] * t444;
        const V t738 = c[11] * t445;
        const V t739 = t738 + t737;
        // complex block of 2
        const V t740 = t52 + t718;
        const V t741 = t53 + t721;
        const V t742 = t52 - t718;
        const V t743 = t53 - t721;
        // complex block of 2
        const V t744 = t700 + t724;
        const V t745 = t703 + t727;
        const V t746 = t700 - t724;
        const V t747 = t703 - t727;
        // complex block of 2
        const V t748 = t706 + t730;
        const V t749 = t709 - t733;
        const V t750 = t706 - t730;
        const V t751 = t709 + t733;
        // complex block of 2
        const V t752 = t712 + t736;
        const V t753 = t715 - t739;
        const V t754 = t712 - t736;
        const V t755 = t715 + t739;
        // complex block of 2
        const V t756 = t740 + t748;
        const V t757 = t741 + t749;
        const V t758 = t740 - t748;
        const V t759 = t741 - t749;
        // complex block of 2
        const V t760 = t744 + t752;
        const V t761 = t745 + t753;
        const V t762 = t744 - t752;
        const V t763 = t745 - t753;
        // complex block of 2
        const V t764 = t756 + t760;
        io.re(3, t764);
        const V t765 = t757 + t761;
        io.im(3, t765);
        const V t766 = t756 - t760;
        io.re(35, t766);
        const V t767 = t757 - t761;
        io.im(35, t767);
        // complex block of 2
        const V t768 = t758 + t763;
        io.re(19, t768);
        const V t769 = t759 - t762;
        io.im(19, t769);
        const V t770 = t758 - t763;
        io.re(51, t770);
        const V t771 = t759 + t762;
        io.im(51, t771);
        // complex block of 8
        const V t772 = c[0] * t746;
        const V t773 = c[0] * t747;
        const V t774 = t772 + t773;
        const V t775 = t773 - t772;
        const V t776 = c[0] * t754;
        const V t777 = c[0] * t755;
        const V t778 = t776 + t777;
        const V t779 = t777 - t776;
        // complex block of 2
        const V t780 = t742 + t751;
        const V t781 = t743 - t750;
        const V t782 = t742 - t751;
        const V t783 = t743 + t750;
        // complex block of 2
        const V t784 = t774 + t779;
        const V t785 = t775 - t778;
        const V t786 = t774 - t779;
        const V t787 = t775 + t778;
        // complex block of 2
        const V t788 = t780 + t784;
        io.re(11, t788);
        const V t789 = t781 + t785;
        io.im(11, t789);
        const V t790 = t780 - t784;
        io.re(43, t790);
        const V t791 = t781 - t785;
        io.im(43, t791);
        // complex block of 2
        const V t792 = t782 + t787;
        io.re(27, t792);
        const V t793 = t783 - t786;
        io.im(27, t793);
        const V t794 = t782 - t787;
        io.re(59, t794);
        const V t795 = t783 + t786;
        io.im(59, t795);
        // complex block of 64
        const V t796 = c[1] * t83;
        const V t797 = c[2] * t82;
        const V t798 = t797 + t796;
        const V t799 = c[1] * t82;
        const V t800 = c[2] * t83;
        const V t801 = t800 - t799;
        const V t802 = c[0] * t138;
        const V t803 = c[0] * t139;
        const V t804 = t802 + t803;
        const V t805 = t803 - t802;
        const V t806 = c[2] * t195;
        const V t807 = c[1] * t194;
        const V t808 = t807 + t806;
        const V t809 = c[2] * t194;
        const V t810 = c[1] * t195;
        const V t811 = t810 - t809;
        const V t812 = c[2] * t307;
        const V t813 = c[1] * t306;
        const V t814 = t812 - t813;
        const V t815 = c[2] * t306;
        const V t816 = c[1] * t307;
        const V t817 = t816 + t815;
        const V t818 = c[0] * t362;
        const V t819 = c[0] * t363;
        const V t820 = t818 + t819;
        const V t821 = t819 - t818;
        const V t822 = c[1] * t419;
        const V t823 = c[2] * t418;
        const V t824 = t822 - t823;
        const V t825 = c[1] * t418;
        const V t826 = c[2] * t419;
        const V t827 = t826 + t825;
        // complex block of 2
        const V t828 = t26 + t251;
        const V t829 = t27 - t250;
        const V t830 = t26 - t251;
        const V t831 = t27 + t250;
        // complex block of 2
        const V t832 = t798 + t814;
        const V t833 = t801 - t817;
        const V t834 = t798 - t814;
        const V t835 = t801 + t817;
        // complex block of 2
        const V t836 = t804 + t821;
        const V t837 = t805 - t820;
        const V t838 = t804 - t821;
        const V t839 = t805 + t820;
        // complex block of 2
        const V t840 = t808 + t824;
        const V t841 = t811 - t827;
        const V t842 = t808 - t824;
        const V t843 = t811 + t827;
        // complex block of 2
        const V t844 = t828 + t836;
        const V t845 = t829 + t837;
        const V t846 = t828 - t836;
        const V t847 = t829 - t837;
        // complex block of 2
        const V t848 = t832 + t840;
        const V t849 = t833 + t841;
        const V t850 = t832 - t840;
        const V t851 = t833 - t841;
        // complex block of 2
        const V t852 = t844 + t848;
        io.re(4, t852);
        const V t853 = t845 + t849;
        io.im(4, t853);
        const V t854 = t844 - t848;
        io.re(36, t854);
        const V t855 = t845 - t849;
        io.im(36, t855);
        // complex block of 2
        const V t856 = t846 + t851;
        io.re(20, t856);
        const V t857 = t847 - t850;
        io.im(20, t857);
        const V t858 = t846 - t851;
        io.re(52, t858);
        const V t859 = t847 + t850;
        io.im(52, t859);
        // complex block of 8
        const V t860 = c[0] * t834;
        const V t861 = c[0] * t835;
        const V t862 = t860 + t861;
        const V t863 = t861 - t860;
        const V t864 = c[0] * t842;
        const V t865 = c[0] * t843;
        const V t866 = t864 + t865;
        const V t867 = t865 - t864;
        // complex block of 2
        const V t868 = t830 + t839;
        const V t869 = t831 - t838;
        const V t870 = t830 - t839;
        const V t871 = t831 + t838;
        // complex block of 2
        const V t872 = t862 + t867;
        const V t873 = t863 - t866;
        const V t874 = t862 - t867;
        const V t875 = t863 + t866;
        // complex block of 2
        const V t876 = t868 + t872;
        io.re(12, t876);
        const V t877 = t869 + t873;
        io.im(12, t877);
        const V t878 = t868 - t872;
        io.re(44, t878);
        const V t879 = t869 - t873;
        io.im(44, t879);
        // complex block of 2
        const V t880 = t870 + t875;
        io.re(28, t880);
        const V t881 = t871 - t874;
        io.im(28, t881);
        const V t882 = t870 - t875;
        io.re(60, t882);
        const V t883 = t871 + t874;
        io.im(60, t883);
        // complex block of 64
        const V t884 = c[11] * t107;
        const V t885 = c[12] * t106;
        const V t886 = t885 + t884;
        const V t887 = c[11] * t106;
        const V t888 = c[12] * t107;
        const V t889 = t888 - t887;
        const V t890 = c[6] * t163;
        const V t891 = c[5] * t162;
        const V t892 = t891 + t890;
        const V t893 = c[6] * t162;
        const V t894 = c[5] * t163;
        const V t895 = t894 - t893;
        const V t896 = c[8] * t219;
        const V t897 = c[7] * t218;
        const V t898 = t897 + t896;
        const V t899 = c[8] * t218;
        const V t900 = c[7] * t219;
        const V t901 = t900 - t899;
        const V t902 = c[2] * t275;
        const V t903 = c[1] * t274;
        const V t904 = t902 - t903;
        const V t905 = c[2] * t274;
        const V t906 = c[1] * t275;
        const V t907 = t906 + t905;
        const V t908 = c[13] * t331;
        const V t909 = c[14] * t330;
        const V t910 = t908 - t909;
        const V t911 = c[13] * t330;
        const V t912 = c[14] * t331;
        const V t913 = t912 + t911;
        const V t914 = c[3] * t387;
        const V t915 = c[4] * t386;
        const V t916 = t914 - t915;
        const V t917 = c[3] * t386;
        const V t918 = c[4] * t387;
        const V t919 = t918 + t917;
        const V t920 = c[9] * t443;
        const V t921 = c[10] * t442;
        const V t922 = t921 + t920;
        const V t923 = c[9] * t442;
        const V t924 = c[10] * t443;
        const V t925 = t923 - t924;
        // complex block of 2
        const V t926 = t50 + t904;
        const V t927 = t51 - t907;
        const V t928 = t50 - t904;
        const V t929 = t51 + t907;
        // complex block of 2
        const V t930 = t886 + t910;
        const V t931 = t889 - t913;
        const V t932 = t886 - t910;
        const V t933 = t889 + t913;
        // complex block of 2
        const V t934 = t892 + t916;
        const V t935 = t895 - t919;
        const V t936 = t892 - t916;
        const V t937 = t895 + t919;
        // complex block of 2
        const V t938 = t898 - t922;
        const V t939 = t901 + t925;
        const V t940 = t898 + t922;
        const V t941 = t901 - t925;
        // complex block of 2
        const V t942 = t926 + t934;
        const V t943 = t927 + t935;
        const V t944 = t926 - t934;
        const V t945 = t927 - t935;
        // complex block of 2
        const V t946 = t930 + t938;
        const V t947 = t931 + t939;
        const V t948 = t930 - t938;
        const V t949 = t931 - t939;
        // complex block of 2
        const V t950 = t942 + t946;
        io.re(5, t950);
        const V t951 = t943 + t947;
        io.im(5, t951);
        const V t952 = t942 - t946;
        io.re(37, t952);
        const V t953 = t943 - t947;
        io.im(37, t953);
        // complex block of 2
        const V t954 = t944 + t949;
        io.re(21, t954);
        const V t955 = t945 - t948;
        io.im(21, t955);
        const V t956 = t944 - t949;
        io.re(53, t956);
        const V t957 = t945 + t948;
        io.im(53, t957);
        // complex block of 8
        const V t958 = c[0] * t932;
        const V t959 = c[0] * t933;
        const V t960 = t958 + t959;
        const V t961 = t959 - t958;
        const V t962 = c[0] * t940;
        const V t963 = c[0] * t941;
        const V t964 = t962 + t963;
        const V t965 = t963 - t962;
        // complex block of 2
        const V t966 = t928 + t937;
        const V t967 = t929 - t936;
        const V t968 = t928 - t937;
        const V t969 = t929 + t936;
        // complex block of 2
        const V t970 = t960 + t965;
        const V t971 = t961 - t964;
        const V t972 = t960 - t965;
        const V t973 = t961 + t964;
        // complex block of 2
        const V t974 = t966 + t970;
        io.re(13, t974);
        const V t975 = t967 + t971;
        io.im(13, t975);
        const V t976 = t966 - t970;
        io.re(45, t976);
        const V t977 = t967 - t971;
        io.im(45, t977);
        // complex block of 2
        const V t978 = t968 + t973;
        io.re(29, t978);
        const V t979 = t969 - t972;
        io.im(29, t979);
        const V t980 = t968 - t973;
        io.re(61, t980);
        const V t981 = t969 + t972;
        io.im(61, t981);
        // complex block of 64
        const V t982 = c[5] * t87;
        const V t983 = c[6] * t86;
        const V t984 = t983 + t982;
        const V t985 = c[5] * t86;
        const V t986 = c[6] * t87;
        const V t987 = t986 - t985;
        const V t988 = c[2] * t143;
        const V t989 = c[1] * t142;
        const V t990 = t989 + t988;
        const V t991 = c[2] * t142;
        const V t992 = c[1] * t143;
        const V t993 = t992 - t991;
        const V t994 = c[4] * t199;
        const V t995 = c[3] * t198;
        const V t996 = t994 - t995;
        const V t997 = c[4] * t198;
        const V t998 = c[3] * t199;
        const V t999 = t998 + t997;
        const V t1000 = c[0] * t254;
        const V t1001 = c[0] * t255;
        const V t1002 = t1000 + t1001;
        const V t1003 = t1001 - t1000;
        const V t1004 = c[3] * t311;
        const V t1005 = c[4] * t310;
        const V t1006 = t1004 - t1005;
        const V t1007 = c[3] * t310;
        const V t1008 = c[4] * t311;
        const V t1009 = t1008 + t1007;
        const V t1010 = c[1] * t367;
        const V t1011 = c[2] * t366;
        const V t1012 = t1011 + t1010;
        const V t1013 = c[1] * t366;
        const V t1014 = c[2] * t367;
        const V t1015 = t1013 - t1014;
        const V t1016 = c[6] * t423;
        const V t1017 = c[5] * t422;
        const V t1018 = t1017 + t1016;
        const V t1019 = c[6] * t422;
        const V t1020 = c[5] * t423;
        const V t1021 = t1019 - t1020;
        // complex block of 2
        const V t1022 = t30 + t1003;
        const V t1023 = t31 - t1002;
        const V t1024 = t30 - t1003;
        const V t1025 = t31 + t1002;
        // complex block of 2
        const V t1026 = t984 + t1006;
        const V t1027 = t987 - t1009;
        const V t1028 = t984 - t1006;
        const V t1029 = t987 + t1009;
        // complex block of 2
        const V t1030 = t990 - t1012;
        const V t1031 = t993 + t1015;
        const V t1032 = t990 + t1012;
        const V t1033 = t993 - t1015;
        // complex block of 2
        const V t1034 = t996 - t1018;
        const V t1035 = t1021 - t999;
        const V t1036 = t996 + t1018;
        const V t1037 = t999 + t1021;
        // complex block of 2
        const V t1038 = t1022 + t1030;
        const V t1039 = t1023 + t1031;
        const V t1040 = t1022 - t1030;
        const V t1041 = t1023 - t1031;
        // complex block of 2
        const V t1042 = t1026 + t1034;
        const V t1043 = t1027 + t1035;
        const V t1044 = t1026 - t1034;
        const V t1045 = t1027 - t1035;
        // complex block of 2
        const V t1046 = t1038 + t1042;
        io.re(6, t1046);
        const V t1047 = t1039 + t1043;
        io.im(6, t1047);
        const V t1048 = t1038 - t1042;
        io.re(38, t1048);
        const V t1049 = t1039 - t1043;
        io.im(38, t1049);
        // complex block of 2
        const V t1050 = t1040 + t1045;
        io.re(22, t1050);
        const V t1051 = t1041 - t1044;
        io.im(22, t1051);
        const V t1052 = t1040 - t1045;
        io.re(54, t1052);
        const V t1053 = t1041 + t1044;
        io.im(54, t1053);
        // complex block of 8
        const V t1054 = c[0] * t1028;
        const V t1055 = c[0] * t1029;
        const V t1056 = t1054 + t1055;
        const V t1057 = t1055 - t1054;
        const V t1058 = c[0] * t1036;
        const V t1059 = c[0] * t1037;
        const V t1060 = t1058 - t1059;
        const V t1061 = t1059 + t1058;
        // complex block of 2
        const V t1062 = t1024 + t1033;
        const V t1063 = t1025 - t1032;
        const V t1064 = t1024 - t1033;
        const V t1065 = t1025 + t1032;
        // complex block of 2
        const V t1066 = t1056 - t1061;
        const V t1067 = t1057 - t1060;
        const V t1068 = t1056 + t1061;
        const V t1069 = t1057 + t1060;
        // complex block of 2
        const V t1070 = t1062 + t1066;
        io.re(14, t1070);
        const V t1071 = t1063 + t1067;
        io.im(14, t1071);
        const V t1072 = t1062 - t1066;
        io.re(46, t1072);
        const V t1073 = t1063 - t1067;
        io.im(46, t1073);
        // complex block of 2
        const V t1074 = t1064 + t1069;
        io.re(30, t1074);
        const V t1075 = t1065 - t1068;
        io.im(30, t1075);
        const V t1076 = t1064 - t1069;
        io.re(62, t1076);
        const V t1077 = t1065 + t1068;
        io.im(62, t1077);
        // complex block of 64
        const V t1078 = c[13] * t111;
        const V t1079 = c[14] * t110;
        const V t1080 = t1079 + t1078;
        const V t1081 = c[13] * t110;
        const V t1082 = c[14] * t111;
        const V t1083 = t1082 - t1081;
        const V t1084 = c[4] * t167;
        const V t1085 = c[3] * t166;
        const V t1086 = t1085 + t1084;
        const V t1087 = c[4] * t166;
        const V t1088 = c[3] * t167;
        const V t1089 = t1088 - t1087;
        const V t1090 = c[12] * t223;
        const V t1091 = c[11] * t222;
        const V t1092 = t1090 - t1091;
        const V t1093 = c[12] * t222;
        const V t1094 = c[11] * t223;
        const V t1095 = t1094 + t1093;
        const V t1096 = c[1] * t279;
        const V t1097 = c[2] * t278;
        const V t1098 = t1096 - t1097;
        const V t1099 = c[1] * t278;
        const V t1100 = c[2] * t279;
        const V t1101 = t1100 + t1099;
        const V t1102 = c[9] * t335;
        const V t1103 = c[10] * t334;
        const V t1104 = t1103 + t1102;
        const V t1105 = c[9] * t334;
        const V t1106 = c[10] * t335;
        const V t1107 = t1105 - t1106;
        const V t1108 = c[6] * t391;
        const V t1109 = c[5] * t390;
        const V t1110 = t1109 + t1108;
        const V t1111 = c[6] * t390;
        const V t1112 = c[5] * t391;
        const V t1113 = t1111 - t1112;
        const V t1114 = c[8] * t447;
        const V t1115 = c[7] * t446;
        const V t1116 = t1115 - t1114;
        const V t1117 = c[8] * t446;
        const V t1118 = c[7] * t447;
        const V t1119 = t1118 + t1117;
        // complex block of 2
        const V t1120 = t54 + t1098;
        const V t1121 = t55 - t1101;
        const V t1122 = t54 - t1098;
        const V t1123 = t55 + t1101;
        // complex block of 2
        const V t1124 = t1080 - t1104;
        const V t1125 = t1083 + t1107;
        const V t1126 = t1080 + t1104;
        const V t1127 = t1083 - t1107;
        // complex block of 2
        const V t1128 = t1086 - t1110;
        const V t1129 = t1089 + t1113;
        const V t1130 = t1086 + t1110;
        const V t1131 = t1089 - t1113;
        // complex block of 2
        const V t1132 = t1092 + t1116;
        const V t1133 = t1119 - t1095;
        const V t1134 = t1092 - t1116;
        const V t1135 = t1095 + t1119;
        // complex block of 2
        const V t1136 = t1120 + t1128;
        const V t1137 = t1121 + t1129;
        const V t1138 = t1120 - t1128;
        const V t1139 = t1121 - t1129;
        // complex block of 2
        const V t1140 = t1124 + t1132;
        const V t1141 = t1125 + t1133;
        const V t1142 = t1124 - t1132;
        const V t1143 = t1125 - t1133;
        // complex block of 2
        const V t1144 = t1136 + t1140;
        io.re(7, t1144);
        const V t1145 = t1137 + t1141;
        io.im(7, t1145);
        const V t1146 = t1136 - t1140;
        io.re(39, t1146);
        const V t1147 = t1137 - t1141;
        io.im(39, t1147);
        // complex block of 2
        const V t1148 = t1138 + t1143;
        io.re(23, t1148);
        const V t1149 = t1139 - t1142;
        io.im(23, t1149);
        const V t1150 = t1138 - t1143;
        io.re(55, t1150);
        const V t1151 = t1139 + t1142;
        io.im(55, t1151);
        // complex block of 8
        const V t1152 = c[0] * t1126;
        const V t1153 = c[0] * t1127;
        const V t1154 = t1152 + t1153;
        const V t1155 = t1153 - t1152;
        const V t1156 = c[0] * t1134;
        const V t1157 = c[0] * t1135;
        const V t1158 = t1156 - t1157;
        const V t1159 = t1157 + t1156;
        // complex block of 2
        const V t1160 = t1122 + t1131;
        const V t1161 = t1123 - t1130;
        const V t1162 = t1122 - t1131;
        const V t1163 = t1123 + t1130;
        // complex block of 2
        const V t1164 = t1154 - t1159;
        const V t1165 = t1155 - t1158;
        const V t1166 = t1154 + t1159;
        const V t1167 = t1155 + t1158;
        // complex block of 2
        const V t1168 = t1160 + t1164;
        io.re(15, t1168);
        const V t1169 = t1161 + t1165;
        io.im(15, t1169);
        const V t1170 = t1160 - t1164;
        io.re(47, t1170);
        const V t1171 = t1161 - t1165;
        io.im(47, t1171);
        // complex block of 2
        const V t1172 = t1162 + t1167;
        io.re(31, t1172);
        const V t1173 = t1163 - t1166;
        io.im(31, t1173);
        const V t1174 = t1162 - t1167;
        io.re(63, t1174);
        const V t1175 = t1163 + t1166;
        io.im(63, t1175);
    }
};

}  // namespace zulg
