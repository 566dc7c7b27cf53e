// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 64.
// Complex DFT of 64 points, twiddled, inner 8, outer 8.
// 464 additions, 464 subtractions, 248 multiplications (376 with `scale`); 15 constants; 177 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<64> {
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
        0.881921264348355,  // c[9]: cos 2 pi 5/64
        0.47139673682599764,  // c[10]: sin 2 pi 5/64
        0.2902846772544624,  // c[11]: sin 2 pi 3/64
        0.9569403357322088,  // c[12]: cos 2 pi 3/64
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
        const V t1 = x0r - x32r;
        const V x0i = io.im(0);
        const V x32i = io.im(32);
        const V t2 = x0i + x32i;
        const V t3 = x0i - x32i;
        // complex block of 2
        const V x8r = io.re(8);
        const V x40r = io.re(40);
        const V t4 = x8r - x40r;
        const V t5 = x8r + x40r;
        // complex block of 8
        const V t6 = c[0] * t4;
        // complex block of 2
        const V x8i = io.im(8);
        const V x40i = io.im(40);
        const V t7 = x8i - x40i;
        const V t8 = x8i + x40i;
        // complex block of 8
        const V t9 = c[0] * t7;
        // complex block of 2
        const V x16r = io.re(16);
        const V x48r = io.re(48);
        const V t10 = x16r + x48r;
        const V t11 = x16r - x48r;
        const V x16i = io.im(16);
        const V x48i = io.im(48);
        const V t12 = x16i + x48i;
        const V t13 = x16i - x48i;
        // complex block of 2
        const V x24r = io.re(24);
        const V x56r = io.re(56);
        const V t14 = x24r - x56r;
        const V t15 = x24r + x56r;
        // complex block of 8
        const V t16 = c[0] * t14;
        // complex block of 2
        const V x24i = io.im(24);
        const V x56i = io.im(56);
        const V t17 = x24i - x56i;
        const V t18 = x24i + x56i;
        // complex block of 8
        const V t19 = c[0] * t17;
        // complex block of 2
        const V t20 = t0 + t10;
        // complex block of 2
        const V t21 = t5 + t15;
        // complex block of 2
        const V t22 = t20 + t21;
        const V t23 = t20 - t21;
        // complex block of 2
        const V t24 = t2 + t12;
        // complex block of 2
        const V t25 = t8 + t18;
        // complex block of 2
        const V t26 = t24 + t25;
        const V t27 = t24 - t25;
        // complex block of 2
        const V t28 = t0 - t10;
        // complex block of 2
        const V t29 = t8 - t18;
        // complex block of 2
        const V t30 = t28 + t29;
        const V t31 = t28 - t29;
        // complex block of 2
        const V t32 = t2 - t12;
        // complex block of 2
        const V t33 = t5 - t15;
        // complex block of 2
        const V t34 = t32 - t33;
        const V t35 = t32 + t33;
        // complex block of 8
        const V t36 = t6 + t9;
        const V t37 = t19 - t16;
        // complex block of 2
        const V t38 = t36 + t37;
        const V t39 = t36 - t37;
        // complex block of 8
        const V t40 = t9 - t6;
        const V t41 = t16 + t19;
        // complex block of 2
        const V t42 = t40 - t41;
        const V t43 = t40 + t41;
        // complex block of 2
        const V t44 = t1 + t13;
        const V t45 = t3 - t11;
        const V t46 = t1 - t13;
        const V t47 = t3 + t11;
        // complex block of 2
        const V x1r = io.re(1);
        const V x33r = io.re(33);
        const V t48 = x1r + x33r;
        const V t49 = x1r - x33r;
        const V x1i = io.im(1);
        const V x33i = io.im(33);
        const V t50 = x1i + x33i;
        const V t51 = x1i - x33i;
        // complex block of 2
        const V x17r = io.re(17);
        const V x49r = io.re(49);
        const V t52 = x17r + x49r;
        const V t53 = x17r - x49r;
        const V x17i = io.im(17);
        const V x49i = io.im(49);
        const V t54 = x17i + x49i;
        const V t55 = x17i - x49i;
        // complex block of 2
        const V t56 = t48 + t52;
        const V t57 = t50 + t54;
        const V t58 = t48 - t52;
        const V t59 = t50 - t54;
        // complex block of 2
        const V t60 = t49 + t55;
        const V t61 = t51 - t53;
        const V t62 = t49 - t55;
        const V t63 = t51 + t53;
        // complex block of 2
        const V x5r = io.re(5);
        const V x37r = io.re(37);
        const V t64 = x5r + x37r;
        const V t65 = x5r - x37r;
        const V x5i = io.im(5);
        const V x37i = io.im(37);
        const V t66 = x5i + x37i;
        const V t67 = x5i - x37i;
        // complex block of 2
        const V x21r = io.re(21);
        const V x53r = io.re(53);
        const V t68 = x21r + x53r;
        const V t69 = x21r - x53r;
        const V x21i = io.im(21);
        const V x53i = io.im(53);
        const V t70 = x21i + x53i;
        const V t71 = x21i - x53i;
        // complex block of 2
        const V t72 = t64 + t68;
        const V t73 = t66 + t70;
        const V t74 = t64 - t68;
        const V t75 = t66 - t70;
        // complex block of 2
        const V t76 = t65 + t71;
        const V t77 = t67 - t69;
        const V t78 = t65 - t71;
        const V t79 = t67 + t69;
        // complex block of 2
        const V x9r = io.re(9);
        const V x41r = io.re(41);
        const V t80 = x9r + x41r;
        const V t81 = x9r - x41r;
        const V x9i = io.im(9);
        const V x41i = io.im(41);
        const V t82 = x9i + x41i;
        const V t83 = x9i - x41i;
        // complex block of 2
        const V x25r = io.re(25);
        const V x57r = io.re(57);
        const V t84 = x25r + x57r;
        const V t85 = x25r - x57r;
        const V x25i = io.im(25);
        const V x57i = io.im(57);
        const V t86 = x25i + x57i;
        const V t87 = x25i - x57i;
        // complex block of 2
        const V t88 = t80 + t84;
        const V t89 = t82 + t86;
        const V t90 = t80 - t84;
        const V t91 = t82 - t86;
        // complex block of 8
        const V t92 = c[0] * t81;
        const V t93 = c[0] * t83;
        const V t94 = t92 + t93;
        const V t95 = t93 - t92;
        const V t96 = c[0] * t85;
        const V t97 = c[0] * t87;
        const V t98 = t96 + t97;
        const V t99 = t97 - t96;
        // complex block of 2
        const V x13r = io.re(13);
        const V x45r = io.re(45);
        const V t100 = x13r + x45r;
        const V t101 = x13r - x45r;
        const V x13i = io.im(13);
        const V x45i = io.im(45);
        const V t102 = x13i + x45i;
        const V t103 = x13i - x45i;
        // complex block of 2
        const V x29r = io.re(29);
        const V x61r = io.re(61);
        const V t104 = x29r + x61r;
        const V t105 = x29r - x61r;
        const V x29i = io.im(29);
        const V x61i = io.im(61);
        const V t106 = x29i + x61i;
        const V t107 = x29i - x61i;
        // complex block of 2
        const V t108 = t100 + t104;
        const V t109 = t102 + t106;
        const V t110 = t100 - t104;
        const V t111 = t102 - t106;
        // complex block of 8
        const V t112 = c[0] * t101;
        const V t113 = c[0] * t103;
        const V t114 = t112 + t113;
        const V t115 = t113 - t112;
        const V t116 = c[0] * t105;
        const V t117 = c[0] * t107;
        const V t118 = t116 + t117;
        const V t119 = t117 - t116;
        // complex block of 2
        const V t120 = t56 + t88;
        // complex block of 2
        const V t121 = t72 + t108;
        // complex block of 2
        const V t122 = t120 - t121;
        // complex block of 2
        const V t123 = t57 + t89;
        // complex block of 2
        const V t124 = t73 + t109;
        // complex block of 2
        const V t125 = t123 - t124;
        // complex block of 2
        const V t126 = t56 - t88;
        // complex block of 64
        const V t127 = c[1] * t126;
        const V t128 = c[2] * t126;
        // complex block of 2
        const V t129 = t57 - t89;
        // complex block of 64
        const V t130 = c[2] * t129;
        const V t131 = c[1] * t129;
        const V t132 = t127 + t130;
        const V t133 = t131 - t128;
        // complex block of 2
        const V t134 = t58 + t91;
        // complex block of 64
        const V t135 = c[3] * t134;
        const V t136 = c[4] * t134;
        // complex block of 2
        const V t137 = t59 - t90;
        // complex block of 64
        const V t138 = c[4] * t137;
        const V t139 = c[3] * t137;
        const V t140 = t135 + t138;
        const V t141 = t139 - t136;
        // complex block of 2
        const V t142 = t58 - t91;
        // complex block of 64
        const V t143 = c[5] * t142;
        const V t144 = c[6] * t142;
        // complex block of 2
        const V t145 = t59 + t90;
        // complex block of 64
        const V t146 = c[6] * t145;
        const V t147 = c[5] * t145;
        const V t148 = t143 + t146;
        const V t149 = t147 - t144;
        // complex block of 2
        const V t150 = t94 + t99;
        // complex block of 2
        const V t151 = t60 + t150;
        const V t152 = t60 - t150;
        // complex block of 64
        const V t153 = c[7] * t151;
        const V t154 = c[8] * t151;
        const V t155 = c[9] * t152;
        const V t156 = c[10] * t152;
        // complex block of 2
        const V t157 = t95 - t98;
        // complex block of 2
        const V t158 = t61 + t157;
        const V t159 = t61 - t157;
        // complex block of 64
        const V t160 = c[8] * t158;
        const V t161 = c[7] * t158;
        const V t162 = c[10] * t159;
        const V t163 = c[9] * t159;
        // complex block of 2
        const V t164 = t94 - t99;
        // complex block of 2
        const V t165 = t63 - t164;
        const V t166 = t63 + t164;
        // complex block of 64
        const V t167 = c[11] * t165;
        const V t168 = c[12] * t165;
        const V t169 = c[13] * t166;
        const V t170 = c[14] * t166;
        // complex block of 2
        const V t171 = t95 + t98;
        // complex block of 2
        const V t172 = t62 + t171;
        const V t173 = t62 - t171;
        // complex block of 64
        const V t174 = c[12] * t172;
        const V t175 = c[11] * t172;
        const V t176 = c[14] * t173;
        const V t177 = c[13] * t173;
        // complex block of 2
        const V t178 = t72 - t108;
        // complex block of 64
        const V t179 = c[2] * t178;
        const V t180 = c[1] * t178;
        // complex block of 2
        const V t181 = t73 - t109;
        // complex block of 64
        const V t182 = c[1] * t181;
        const V t183 = c[2] * t181;
        const V t184 = t182 - t179;
        const V t185 = t183 + t180;
        // complex block of 2
        const V t186 = t74 + t111;
        // complex block of 64
        const V t187 = c[6] * t186;
        const V t188 = c[5] * t186;
        // complex block of 2
        const V t189 = t75 - t110;
        // complex block of 64
        const V t190 = c[5] * t189;
        const V t191 = c[6] * t189;
        const V t192 = t187 + t190;
        const V t193 = t191 - t188;
        // complex block of 2
        const V t194 = t74 - t111;
        // complex block of 64
        const V t195 = c[3] * t194;
        const V t196 = c[4] * t194;
        // complex block of 2
        const V t197 = t75 + t110;
        // complex block of 64
        const V t198 = c[4] * t197;
        const V t199 = c[3] * t197;
        const V t200 = t198 - t195;
        const V t201 = t199 + t196;
        // complex block of 2
        const V t202 = t114 + t119;
        // complex block of 2
        const V t203 = t76 + t202;
        const V t204 = t76 - t202;
        // complex block of 64
        const V t205 = c[9] * t203;
        const V t206 = c[10] * t203;
        const V t207 = c[14] * t204;
        const V t208 = c[13] * t204;
        // complex block of 2
        const V t209 = t115 - t118;
        // complex block of 2
        const V t210 = t77 + t209;
        const V t211 = t77 - t209;
        // complex block of 64
        const V t212 = c[10] * t210;
        const V t213 = c[9] * t210;
        const V t214 = c[13] * t211;
        const V t215 = c[14] * t211;
        // complex block of 2
        const V t216 = t114 - t119;
        // complex block of 2
        const V t217 = t79 - t216;
        const V t218 = t79 + t216;
        // complex block of 64
        const V t219 = c[7] * t217;
        const V t220 = c[8] * t217;
        const V t221 = c[11] * t218;
        const V t222 = c[12] * t218;
        // complex block of 2
        const V t223 = t115 + t118;
        // complex block of 2
        const V t224 = t78 + t223;
        const V t225 = t78 - t223;
        // complex block of 64
        const V t226 = c[8] * t224;
        const V t227 = c[7] * t224;
        const V t228 = c[12] * t225;
        const V t229 = c[11] * t225;
        // complex block of 2
        const V x2r = io.re(2);
        const V x34r = io.re(34);
        const V t230 = x2r + x34r;
        // complex block of 2
        const V x18r = io.re(18);
        const V x50r = io.re(50);
        const V t231 = x18r + x50r;
        // complex block of 2
        const V t232 = x2r - x34r;
        // complex block of 2
        const V t233 = x18r - x50r;
        // complex block of 2
        const V t234 = t230 + t231;
        const V t235 = t230 - t231;
        // complex block of 2
        const V x2i = io.im(2);
        const V x34i = io.im(34);
        const V t236 = x2i + x34i;
        // complex block of 2
        const V x18i = io.im(18);
        const V x50i = io.im(50);
        const V t237 = x18i + x50i;
        // complex block of 2
        const V t238 = x2i - x34i;
        // complex block of 2
        const V t239 = x18i - x50i;
        // complex block of 2
        const V t240 = t236 + t237;
        const V t241 = t236 - t237;
        // complex block of 2
        const V x10r = io.re(10);
        const V x42r = io.re(42);
        const V t242 = x10r + x42r;
        const V t243 = x10r - x42r;
        // complex block of 2
        const V x26r = io.re(26);
        const V x58r = io.re(58);
        const V t244 = x26r + x58r;
        const V t245 = x26r - x58r;
        // complex block of 2
        const V t246 = t242 + t244;
        const V t247 = t242 - t244;
        // complex block of 8
        const V t248 = c[0] * t243;
        const V t249 = c[0] * t245;
        // complex block of 2
        const V x10i = io.im(10);
        const V x42i = io.im(42);
        const V t250 = x10i + x42i;
        const V t251 = x10i - x42i;
        // complex block of 2
        const V x26i = io.im(26);
        const V x58i = io.im(58);
        const V t252 = x26i + x58i;
        const V t253 = x26i - x58i;
        // complex block of 2
        const V t254 = t250 + t252;
        const V t255 = t250 - t252;
        // complex block of 8
        const V t256 = c[0] * t251;
        const V t257 = c[0] * t253;
        // complex block of 2
        const V t258 = t234 + t246;
        const V t259 = t240 + t254;
        const V t260 = t234 - t246;
        // complex block of 64
        const V t261 = c[0] * t260;
        // complex block of 2
        const V t262 = t240 - t254;
        // complex block of 64
        const V t263 = c[0] * t262;
        // complex block of 2
        const V t264 = t235 + t255;
        // complex block of 64
        const V t265 = c[1] * t264;
        const V t266 = c[2] * t264;
        // complex block of 2
        const V t267 = t241 - t247;
        // complex block of 64
        const V t268 = c[2] * t267;
        const V t269 = c[1] * t267;
        // complex block of 2
        const V t270 = t235 - t255;
        // complex block of 64
        const V t271 = c[2] * t270;
        const V t272 = c[1] * t270;
        // complex block of 2
        const V t273 = t241 + t247;
        // complex block of 64
        const V t274 = c[1] * t273;
        const V t275 = c[2] * t273;
        // complex block of 8
        const V t276 = t248 + t256;
        const V t277 = t257 - t249;
        // complex block of 2
        const V t278 = t276 + t277;
        const V t279 = t276 - t277;
        // complex block of 2
        const V t280 = t232 + t239;
        const V t281 = t238 + t233;
        // complex block of 2
        const V t282 = t280 + t278;
        const V t283 = t280 - t278;
        // complex block of 2
        const V t284 = t281 - t279;
        const V t285 = t281 + t279;
        // complex block of 8
        const V t286 = t256 - t248;
        const V t287 = t249 + t257;
        // complex block of 2
        const V t288 = t286 - t287;
        const V t289 = t286 + t287;
        // complex block of 2
        const V t290 = t238 - t233;
        const V t291 = t232 - t239;
        // complex block of 2
        const V t292 = t290 + t288;
        const V t293 = t290 - t288;
        // complex block of 2
        const V t294 = t291 + t289;
        const V t295 = t291 - t289;
        // complex block of 2
        const V x3r = io.re(3);
        const V x35r = io.re(35);
        const V t296 = x3r + x35r;
        const V t297 = x3r - x35r;
        const V x3i = io.im(3);
        const V x35i = io.im(35);
        const V t298 = x3i + x35i;
        const V t299 = x3i - x35i;
        // complex block of 2
        const V x19r = io.re(19);
        const V x51r = io.re(51);
        const V t300 = x19r + x51r;
        const V t301 = x19r - x51r;
        const V x19i = io.im(19);
        const V x51i = io.im(51);
        const V t302 = x19i + x51i;
        const V t303 = x19i - x51i;
        // complex block of 2
        const V t304 = t296 + t300;
        const V t305 = t298 + t302;
        const V t306 = t296 - t300;
        const V t307 = t298 - t302;
        // complex block of 2
        const V t308 = t297 + t303;
        const V t309 = t299 - t301;
        const V t310 = t297 - t303;
        const V t311 = t299 + t301;
        // complex block of 2
        const V x7r = io.re(7);
        const V x39r = io.re(39);
        const V t312 = x7r + x39r;
        const V t313 = x7r - x39r;
        const V x7i = io.im(7);
        const V x39i = io.im(39);
        const V t314 = x7i + x39i;
        const V t315 = x7i - x39i;
        // complex block of 2
        const V x23r = io.re(23);
        const V x55r = io.re(55);
        const V t316 = x23r + x55r;
        const V t317 = x23r - x55r;
        const V x23i = io.im(23);
        const V x55i = io.im(55);
        const V t318 = x23i + x55i;
        const V t319 = x23i - x55i;
        // complex block of 2
        const V t320 = t312 + t316;
        const V t321 = t314 + t318;
        const V t322 = t312 - t316;
        const V t323 = t314 - t318;
        // complex block of 2
        const V t324 = t313 + t319;
        const V t325 = t315 - t317;
        const V t326 = t313 - t319;
        const V t327 = t315 + t317;
        // complex block of 2
        const V x11r = io.re(11);
        const V x43r = io.re(43);
        const V t328 = x11r + x43r;
        const V t329 = x11r - x43r;
        const V x11i = io.im(11);
        const V x43i = io.im(43);
        const V t330 = x11i + x43i;
        const V t331 = x11i - x43i;
        // complex block of 2
        const V x27r = io.re(27);
        const V x59r = io.re(59);
        const V t332 = x27r + x59r;
        const V t333 = x27r - x59r;
        const V x27i = io.im(27);
        const V x59i = io.im(59);
        const V t334 = x27i + x59i;
        const V t335 = x27i - x59i;
        // complex block of 2
        const V t336 = t328 + t332;
        const V t337 = t330 + t334;
        const V t338 = t328 - t332;
        const V t339 = t330 - t334;
        // complex block of 8
        const V t340 = c[0] * t329;
        const V t341 = c[0] * t331;
        const V t342 = t340 + t341;
        const V t343 = t341 - t340;
        const V t344 = c[0] * t333;
        const V t345 = c[0] * t335;
        const V t346 = t344 + t345;
        const V t347 = t345 - t344;
        // complex block of 2
        const V x15r = io.re(15);
        const V x47r = io.re(47);
        const V t348 = x15r + x47r;
        const V t349 = x15r - x47r;
        const V x15i = io.im(15);
        const V x47i = io.im(47);
        const V t350 = x15i + x47i;
        const V t351 = x15i - x47i;
        // complex block of 2
        const V x31r = io.re(31);
        const V x63r = io.re(63);
        const V t352 = x31r + x63r;
        const V t353 = x31r - x63r;
        const V x31i = io.im(31);
        const V x63i = io.im(63);
        const V t354 = x31i + x63i;
        const V t355 = x31i - x63i;
        // complex block of 2
        const V t356 = t348 + t352;
        const V t357 = t350 + t354;
        const V t358 = t348 - t352;
        const V t359 = t350 - t354;
        // complex block of 8
        const V t360 = c[0] * t349;
        const V t361 = c[0] * t351;
        const V t362 = t360 + t361;
        const V t363 = t361 - t360;
        const V t364 = c[0] * t353;
        const V t365 = c[0] * t355;
        const V t366 = t364 + t365;
        const V t367 = t365 - t364;
        // complex block of 2
        const V t368 = t304 + t336;
        // complex block of 2
        const V t369 = t320 + t356;
        // complex block of 2
        const V t370 = t368 - t369;
        // complex block of 2
        const V t371 = t305 + t337;
        // complex block of 2
        const V t372 = t321 + t357;
        // complex block of 2
        const V t373 = t371 - t372;
        // complex block of 2
        const V t374 = t304 - t336;
        // complex block of 64
        const V t375 = c[2] * t374;
        const V t376 = c[1] * t374;
        // complex block of 2
        const V t377 = t305 - t337;
        // complex block of 64
        const V t378 = c[1] * t377;
        const V t379 = c[2] * t377;
        const V t380 = t375 + t378;
        const V t381 = t379 - t376;
        // complex block of 2
        const V t382 = t306 + t339;
        // complex block of 64
        const V t383 = c[5] * t382;
        const V t384 = c[6] * t382;
        // complex block of 2
        const V t385 = t307 - t338;
        // complex block of 64
        const V t386 = c[6] * t385;
        const V t387 = c[5] * t385;
        const V t388 = t383 + t386;
        const V t389 = t387 - t384;
        // complex block of 2
        const V t390 = t306 - t339;
        // complex block of 64
        const V t391 = c[4] * t390;
        const V t392 = c[3] * t390;
        // complex block of 2
        const V t393 = t307 + t338;
        // complex block of 64
        const V t394 = c[3] * t393;
        const V t395 = c[4] * t393;
        const V t396 = t394 - t391;
        const V t397 = t395 + t392;
        // complex block of 2
        const V t398 = t342 + t347;
        // complex block of 2
        const V t399 = t308 + t398;
        const V t400 = t308 - t398;
        // complex block of 64
        const V t401 = c[12] * t399;
        const V t402 = c[11] * t399;
        const V t403 = c[8] * t400;
        const V t404 = c[7] * t400;
        // complex block of 2
        const V t405 = t343 - t346;
        // complex block of 2
        const V t406 = t309 + t405;
        const V t407 = t309 - t405;
        // complex block of 64
        const V t408 = c[11] * t406;
        const V t409 = c[12] * t406;
        const V t410 = c[7] * t407;
        const V t411 = c[8] * t407;
        // complex block of 2
        const V t412 = t342 - t347;
        // complex block of 2
        const V t413 = t311 - t412;
        const V t414 = t311 + t412;
        // complex block of 64
        const V t415 = c[14] * t413;
        const V t416 = c[13] * t413;
        const V t417 = c[9] * t414;
        const V t418 = c[10] * t414;
        // complex block of 2
        const V t419 = t343 + t346;
        // complex block of 2
        const V t420 = t310 + t419;
        const V t421 = t310 - t419;
        // complex block of 64
        const V t422 = c[13] * t420;
        const V t423 = c[14] * t420;
        const V t424 = c[10] * t421;
        const V t425 = c[9] * t421;
        // complex block of 2
        const V t426 = t320 - t356;
        // complex block of 64
        const V t427 = c[1] * t426;
        const V t428 = c[2] * t426;
        // complex block of 2
        const V t429 = t321 - t357;
        // complex block of 64
        const V t430 = c[2] * t429;
        const V t431 = c[1] * t429;
        const V t432 = t430 - t427;
        const V t433 = t431 + t428;
        // complex block of 2
        const V t434 = t322 + t359;
        // complex block of 64
        const V t435 = c[4] * t434;
        const V t436 = c[3] * t434;
        // complex block of 2
        const V t437 = t323 - t358;
        // complex block of 64
        const V t438 = c[3] * t437;
        const V t439 = c[4] * t437;
        const V t440 = t435 + t438;
        const V t441 = t439 - t436;
        // complex block of 2
        const V t442 = t322 - t359;
        // complex block of 64
        const V t443 = c[6] * t442;
        const V t444 = c[5] * t442;
        // complex block of 2
        const V t445 = t323 + t358;
        // complex block of 64
        const V t446 = c[5] * t445;
        const V t447 = c[6] * t445;
        const V t448 = t443 + t446;
        const V t449 = t444 - t447;
        // complex block of 2
        const V t450 = t362 + t367;
        // complex block of 2
        const V t451 = t324 + t450;
        const V t452 = t324 - t450;
        // complex block of 64
        const V t453 = c[14] * t451;
        const V t454 = c[13] * t451;
        const V t455 = c[12] * t452;
        const V t456 = c[11] * t452;
        // complex block of 2
        const V t457 = t363 - t366;
        // complex block of 2
        const V t458 = t325 + t457;
        const V t459 = t325 - t457;
        // complex block of 64
        const V t460 = c[13] * t458;
        const V t461 = c[14] * t458;
        const V t462 = c[11] * t459;
        const V t463 = c[12] * t459;
        // complex block of 2
        const V t464 = t362 - t367;
        // complex block of 2
        const V t465 = t327 - t464;
        const V t466 = t327 + t464;
        // complex block of 64
        const V t467 = c[9] * t465;
        const V t468 = c[10] * t465;
        const V t469 = c[7] * t466;
        const V t470 = c[8] * t466;
        // complex block of 2
        const V t471 = t363 + t366;
        // complex block of 2
        const V t472 = t326 + t471;
        const V t473 = t326 - t471;
        // complex block of 64
        const V t474 = c[10] * t472;
        const V t475 = c[9] * t472;
        const V t476 = c[8] * t473;
        const V t477 = c[7] * t473;
        // complex block of 2
        const V x4r = io.re(4);
        const V x36r = io.re(36);
        const V t478 = x4r + x36r;
        // complex block of 2
        const V x20r = io.re(20);
        const V x52r = io.re(52);
        const V t479 = x20r + x52r;
        // complex block of 2
        const V t480 = x4r - x36r;
        // complex block of 2
        const V t481 = x20r - x52r;
        // complex block of 2
        const V t482 = t478 - t479;
        // complex block of 2
        const V x4i = io.im(4);
        const V x36i = io.im(36);
        const V t483 = x4i + x36i;
        // complex block of 2
        const V x20i = io.im(20);
        const V x52i = io.im(52);
        const V t484 = x20i + x52i;
        // complex block of 2
        const V t485 = x4i - x36i;
        // complex block of 2
        const V t486 = x20i - x52i;
        // complex block of 2
        const V t487 = t483 - t484;
        // complex block of 2
        const V x12r = io.re(12);
        const V x44r = io.re(44);
        const V t488 = x12r + x44r;
        const V t489 = x12r - x44r;
        // complex block of 2
        const V x28r = io.re(28);
        const V x60r = io.re(60);
        const V t490 = x28r + x60r;
        const V t491 = x28r - x60r;
        // complex block of 2
        const V t492 = t488 - t490;
        // complex block of 8
        const V t493 = c[0] * t489;
        const V t494 = c[0] * t491;
        // complex block of 2
        const V x12i = io.im(12);
        const V x44i = io.im(44);
        const V t495 = x12i + x44i;
        const V t496 = x12i - x44i;
        // complex block of 2
        const V x28i = io.im(28);
        const V x60i = io.im(60);
        const V t497 = x28i + x60i;
        const V t498 = x28i - x60i;
        // complex block of 2
        const V t499 = t495 - t497;
        // complex block of 8
        const V t500 = c[0] * t496;
        const V t501 = c[0] * t498;
        // complex block of 2
        const V t502 = t478 + t479;
        // complex block of 2
        const V t503 = t488 + t490;
        // complex block of 2
        const V t504 = t502 + t503;
        const V t505 = t502 - t503;
        // complex block of 2
        const V t506 = t483 + t484;
        // complex block of 2
        const V t507 = t495 + t497;
        // complex block of 2
        const V t508 = t506 + t507;
        const V t509 = t506 - t507;
        // complex block of 2
        const V t510 = t482 + t499;
        // complex block of 64
        const V t511 = c[0] * t510;
        // complex block of 2
        const V t512 = t487 - t492;
        // complex block of 64
        const V t513 = c[0] * t512;
        // complex block of 2
        const V t514 = t482 - t499;
        // complex block of 64
        const V t515 = c[0] * t514;
        // complex block of 2
        const V t516 = t487 + t492;
        // complex block of 64
        const V t517 = c[0] * t516;
        // complex block of 8
        const V t518 = t493 + t500;
        const V t519 = t501 - t494;
        // complex block of 2
        const V t520 = t518 + t519;
        const V t521 = t518 - t519;
        // complex block of 2
        const V t522 = t480 + t486;
        const V t523 = t485 + t481;
        // complex block of 2
        const V t524 = t522 + t520;
        const V t525 = t522 - t520;
        // complex block of 2
        const V t526 = t523 - t521;
        const V t527 = t523 + t521;
        // complex block of 8
        const V t528 = t500 - t493;
        const V t529 = t494 + t501;
        // complex block of 2
        const V t530 = t528 - t529;
        const V t531 = t528 + t529;
        // complex block of 2
        const V t532 = t485 - t481;
        const V t533 = t480 - t486;
        // complex block of 2
        const V t534 = t532 + t530;
        const V t535 = t532 - t530;
        // complex block of 2
        const V t536 = t533 + t531;
        const V t537 = t533 - t531;
        // complex block of 2
        const V x6r = io.re(6);
        const V x38r = io.re(38);
        const V t538 = x6r + x38r;
        // complex block of 2
        const V x22r = io.re(22);
        const V x54r = io.re(54);
        const V t539 = x22r + x54r;
        // complex block of 2
        const V t540 = x6r - x38r;
        // complex block of 2
        const V t541 = x22r - x54r;
        // complex block of 2
        const V t542 = t538 + t539;
        const V t543 = t538 - t539;
        // complex block of 2
        const V x6i = io.im(6);
        const V x38i = io.im(38);
        const V t544 = x6i + x38i;
        // complex block of 2
        const V x22i = io.im(22);
        const V x54i = io.im(54);
        const V t545 = x22i + x54i;
        // complex block of 2
        const V t546 = x6i - x38i;
        // complex block of 2
        const V t547 = x22i - x54i;
        // complex block of 2
        const V t548 = t544 + t545;
        const V t549 = t544 - t545;
        // complex block of 2
        const V x14r = io.re(14);
        const V x46r = io.re(46);
        const V t550 = x14r + x46r;
        const V t551 = x14r - x46r;
        // complex block of 2
        const V x30r = io.re(30);
        const V x62r = io.re(62);
        const V t552 = x30r + x62r;
        const V t553 = x30r - x62r;
        // complex block of 2
        const V t554 = t550 + t552;
        const V t555 = t550 - t552;
        // complex block of 8
        const V t556 = c[0] * t551;
        const V t557 = c[0] * t553;
        // complex block of 2
        const V x14i = io.im(14);
        const V x46i = io.im(46);
        const V t558 = x14i + x46i;
        const V t559 = x14i - x46i;
        // complex block of 2
        const V x30i = io.im(30);
        const V x62i = io.im(62);
        const V t560 = x30i + x62i;
        const V t561 = x30i - x62i;
        // complex block of 2
        const V t562 = t558 + t560;
        const V t563 = t558 - t560;
        // complex block of 8
        const V t564 = c[0] * t559;
        const V t565 = c[0] * t561;
        // complex block of 2
        const V t566 = t542 + t554;
        const V t567 = t548 + t562;
        const V t568 = t542 - t554;
        // complex block of 64
        const V t569 = c[0] * t568;
        // complex block of 2
        const V t570 = t548 - t562;
        // complex block of 64
        const V t571 = c[0] * t570;
        // complex block of 2
        const V t572 = t543 + t563;
        // complex block of 64
        const V t573 = c[2] * t572;
        const V t574 = c[1] * t572;
        // complex block of 2
        const V t575 = t549 - t555;
        // complex block of 64
        const V t576 = c[1] * t575;
        const V t577 = c[2] * t575;
        // complex block of 2
        const V t578 = t543 - t563;
        // complex block of 64
        const V t579 = c[1] * t578;
        const V t580 = c[2] * t578;
        // complex block of 2
        const V t581 = t549 + t555;
        // complex block of 64
        const V t582 = c[2] * t581;
        const V t583 = c[1] * t581;
        // complex block of 8
        const V t584 = t556 + t564;
        const V t585 = t565 - t557;
        // complex block of 2
        const V t586 = t584 + t585;
        const V t587 = t584 - t585;
        // complex block of 2
        const V t588 = t540 + t547;
        const V t589 = t546 + t541;
        // complex block of 2
        const V t590 = t588 + t586;
        const V t591 = t588 - t586;
        // complex block of 2
        const V t592 = t589 - t587;
        const V t593 = t589 + t587;
        // complex block of 8
        const V t594 = t564 - t556;
        const V t595 = t557 + t565;
        // complex block of 2
        const V t596 = t594 - t595;
        const V t597 = t594 + t595;
        // complex block of 2
        const V t598 = t546 - t541;
        const V t599 = t540 - t547;
        // complex block of 2
        const V t600 = t598 + t596;
        const V t601 = t598 - t596;
        // complex block of 2
        const V t602 = t599 + t597;
        const V t603 = t599 - t597;
        // complex block of 2
        const V t604 = t44 + t38;
        // complex block of 64
        const V t605 = c[2] * t534;
        const V t606 = c[1] * t524;
        const V t607 = t606 + t605;
        // complex block of 2
        const V t608 = t604 + t607;
        const V t609 = t604 - t607;
        // complex block of 2
        const V t610 = t45 + t42;
        // complex block of 64
        const V t611 = c[2] * t524;
        const V t612 = c[1] * t534;
        const V t613 = t612 - t611;
        // complex block of 2
        const V t614 = t610 + t613;
        const V t615 = t610 - t613;
        // complex block of 64
        const V t616 = t153 + t160;
        const V t617 = t205 + t212;
        // complex block of 2
        const V t618 = t616 - t617;
        const V t619 = t616 + t617;
        // complex block of 8
        const V t620 = c[0] * t618;
        // complex block of 64
        const V t621 = t161 - t154;
        const V t622 = t213 - t206;
        // complex block of 2
        const V t623 = t621 - t622;
        const V t624 = t621 + t622;
        // complex block of 8
        const V t625 = c[0] * t623;
        // complex block of 64
        const V t626 = c[4] * t292;
        const V t627 = c[3] * t282;
        const V t628 = t627 + t626;
        const V t629 = c[6] * t600;
        const V t630 = c[5] * t590;
        const V t631 = t630 + t629;
        // complex block of 2
        const V t632 = t628 + t631;
        const V t633 = t628 - t631;
        // complex block of 64
        const V t634 = c[4] * t282;
        const V t635 = c[3] * t292;
        const V t636 = t635 - t634;
        const V t637 = c[6] * t590;
        const V t638 = c[5] * t600;
        const V t639 = t638 - t637;
        // complex block of 2
        const V t640 = t636 + t639;
        const V t641 = t636 - t639;
        // complex block of 64
        const V t642 = t401 + t408;
        const V t643 = t453 + t460;
        // complex block of 2
        const V t644 = t642 - t643;
        const V t645 = t642 + t643;
        // complex block of 8
        const V t646 = c[0] * t644;
        // complex block of 64
        const V t647 = t409 - t402;
        const V t648 = t461 - t454;
        // complex block of 2
        const V t649 = t647 - t648;
        const V t650 = t647 + t648;
        // complex block of 8
        const V t651 = c[0] * t649;
        // complex block of 2
        const V t652 = t608 + t632;
        // complex block of 2
        const V t653 = t619 + t645;
        // complex block of 2
        const V t654 = t652 + t653;
        io.re(1, t654);
        const V t655 = t652 - t653;
        io.re(33, t655);
        // complex block of 2
        const V t656 = t614 + t640;
        // complex block of 2
        const V t657 = t624 + t650;
        // complex block of 2
        const V t658 = t656 + t657;
        io.im(1, t658);
        const V t659 = t656 - t657;
        io.im(33, t659);
        // complex block of 2
        const V t660 = t608 - t632;
        // complex block of 2
        const V t661 = t624 - t650;
        // complex block of 2
        const V t662 = t660 + t661;
        io.re(17, t662);
        const V t663 = t660 - t661;
        io.re(49, t663);
        // complex block of 2
        const V t664 = t614 - t640;
        // complex block of 2
        const V t665 = t619 - t645;
        // complex block of 2
        const V t666 = t664 - t665;
        io.im(17, t666);
        const V t667 = t664 + t665;
        io.im(49, t667);
        // complex block of 8
        const V t668 = t620 + t625;
        const V t669 = t651 - t646;
        // complex block of 2
        const V t670 = t668 + t669;
        const V t671 = t668 - t669;
        // complex block of 2
        const V t672 = t609 + t641;
        const V t673 = t615 + t633;
        // complex block of 2
        const V t674 = t672 + t670;
        io.re(9, t674);
        const V t675 = t672 - t670;
        io.re(41, t675);
        // complex block of 2
        const V t676 = t673 - t671;
        io.im(25, t676);
        const V t677 = t673 + t671;
        io.im(57, t677);
        // complex block of 8
        const V t678 = t625 - t620;
        const V t679 = t646 + t651;
        // complex block of 2
        const V t680 = t678 - t679;
        const V t681 = t678 + t679;
        // complex block of 2
        const V t682 = t615 - t633;
        const V t683 = t609 - t641;
        // complex block of 2
        const V t684 = t682 + t680;
        io.im(9, t684);
        const V t685 = t682 - t680;
        io.im(41, t685);
        // complex block of 2
        const V t686 = t683 + t681;
        io.re(25, t686);
        const V t687 = t683 - t681;
        io.re(57, t687);
        // complex block of 2
        const V t688 = t44 - t38;
        // complex block of 64
        const V t689 = c[1] * t535;
        const V t690 = c[2] * t525;
        const V t691 = t689 - t690;
        // complex block of 2
        const V t692 = t688 + t691;
        const V t693 = t688 - t691;
        // complex block of 2
        const V t694 = t45 - t42;
        // complex block of 64
        const V t695 = c[1] * t525;
        const V t696 = c[2] * t535;
        const V t697 = t696 + t695;
        // complex block of 2
        const V t698 = t694 - t697;
        const V t699 = t694 + t697;
        // complex block of 64
        const V t700 = t155 + t162;
        const V t701 = t214 - t207;
        // complex block of 2
        const V t702 = t700 - t701;
        const V t703 = t700 + t701;
        // complex block of 8
        const V t704 = c[0] * t702;
        // complex block of 64
        const V t705 = t163 - t156;
        const V t706 = t215 + t208;
        // complex block of 2
        const V t707 = t705 + t706;
        const V t708 = t705 - t706;
        // complex block of 8
        const V t709 = c[0] * t707;
        // complex block of 64
        const V t710 = c[5] * t293;
        const V t711 = c[6] * t283;
        const V t712 = t711 + t710;
        const V t713 = c[4] * t601;
        const V t714 = c[3] * t591;
        const V t715 = t713 - t714;
        // complex block of 2
        const V t716 = t712 + t715;
        const V t717 = t712 - t715;
        // complex block of 64
        const V t718 = c[5] * t283;
        const V t719 = c[6] * t293;
        const V t720 = t719 - t718;
        const V t721 = c[4] * t591;
        const V t722 = c[3] * t601;
        const V t723 = t722 + t721;
        // complex block of 2
        const V t724 = t720 - t723;
        const V t725 = t720 + t723;
        // complex block of 64
        const V t726 = t403 + t410;
        const V t727 = t455 + t462;
        // complex block of 2
        const V t728 = t726 + t727;
        const V t729 = t726 - t727;
        // complex block of 8
        const V t730 = c[0] * t728;
        // complex block of 64
        const V t731 = t411 - t404;
        const V t732 = t456 - t463;
        // complex block of 2
        const V t733 = t731 - t732;
        const V t734 = t731 + t732;
        // complex block of 8
        const V t735 = c[0] * t733;
        // complex block of 2
        const V t736 = t692 + t716;
        // complex block of 2
        const V t737 = t703 + t729;
        // complex block of 2
        const V t738 = t736 + t737;
        io.re(5, t738);
        const V t739 = t736 - t737;
        io.re(37, t739);
        // complex block of 2
        const V t740 = t698 + t724;
        // complex block of 2
        const V t741 = t708 + t734;
        // complex block of 2
        const V t742 = t740 + t741;
        io.im(5, t742);
        const V t743 = t740 - t741;
        io.im(37, t743);
        // complex block of 2
        const V t744 = t692 - t716;
        // complex block of 2
        const V t745 = t708 - t734;
        // complex block of 2
        const V t746 = t744 + t745;
        io.re(21, t746);
        const V t747 = t744 - t745;
        io.re(53, t747);
        // complex block of 2
        const V t748 = t698 - t724;
        // complex block of 2
        const V t749 = t703 - t729;
        // complex block of 2
        const V t750 = t748 - t749;
        io.im(21, t750);
        const V t751 = t748 + t749;
        io.im(53, t751);
        // complex block of 8
        const V t752 = t704 + t709;
        const V t753 = t735 - t730;
        // complex block of 2
        const V t754 = t752 + t753;
        const V t755 = t752 - t753;
        // complex block of 2
        const V t756 = t693 + t725;
        const V t757 = t699 + t717;
        // complex block of 2
        const V t758 = t756 + t754;
        io.re(13, t758);
        const V t759 = t756 - t754;
        io.re(45, t759);
        // complex block of 2
        const V t760 = t757 - t755;
        io.im(29, t760);
        const V t761 = t757 + t755;
        io.im(61, t761);
        // complex block of 8
        const V t762 = t709 - t704;
        const V t763 = t730 + t735;
        // complex block of 2
        const V t764 = t762 - t763;
        const V t765 = t762 + t763;
        // complex block of 2
        const V t766 = t699 - t717;
        const V t767 = t693 - t725;
        // complex block of 2
        const V t768 = t766 + t764;
        io.im(13, t768);
        const V t769 = t766 - t764;
        io.im(45, t769);
        // complex block of 2
        const V t770 = t767 + t765;
        io.re(29, t770);
        const V t771 = t767 - t765;
        io.re(61, t771);
        // complex block of 2
        const V t772 = t46 + t43;
        // complex block of 64
        const V t773 = c[1] * t526;
        const V t774 = c[2] * t536;
        const V t775 = t774 + t773;
        // complex block of 2
        const V t776 = t772 + t775;
        const V t777 = t772 - t775;
        // complex block of 2
        const V t778 = t47 - t39;
        // complex block of 64
        const V t779 = c[1] * t536;
        const V t780 = c[2] * t526;
        const V t781 = t780 - t779;
        // complex block of 2
        const V t782 = t778 + t781;
        const V t783 = t778 - t781;
        // complex block of 64
        const V t784 = t174 + t167;
        const V t785 = t226 + t219;
        // complex block of 2
        const V t786 = t784 - t785;
        const V t787 = t784 + t785;
        // complex block of 8
        const V t788 = c[0] * t786;
        // complex block of 64
        const V t789 = t168 - t175;
        const V t790 = t220 - t227;
        // complex block of 2
        const V t791 = t789 - t790;
        const V t792 = t789 + t790;
        // complex block of 8
        const V t793 = c[0] * t791;
        // complex block of 64
        const V t794 = c[6] * t284;
        const V t795 = c[5] * t294;
        const V t796 = t795 + t794;
        const V t797 = c[3] * t592;
        const V t798 = c[4] * t602;
        const V t799 = t797 - t798;
        // complex block of 2
        const V t800 = t796 + t799;
        const V t801 = t796 - t799;
        // complex block of 64
        const V t802 = c[6] * t294;
        const V t803 = c[5] * t284;
        const V t804 = t803 - t802;
        const V t805 = c[3] * t602;
        const V t806 = c[4] * t592;
        const V t807 = t806 + t805;
        // complex block of 2
        const V t808 = t804 - t807;
        const V t809 = t804 + t807;
        // complex block of 64
        const V t810 = t422 + t415;
        const V t811 = t467 - t474;
        // complex block of 2
        const V t812 = t810 - t811;
        const V t813 = t810 + t811;
        // complex block of 8
        const V t814 = c[0] * t812;
        // complex block of 64
        const V t815 = t416 - t423;
        const V t816 = t468 + t475;
        // complex block of 2
        const V t817 = t815 + t816;
        const V t818 = t815 - t816;
        // complex block of 8
        const V t819 = c[0] * t817;
        // complex block of 2
        const V t820 = t776 + t800;
        // complex block of 2
        const V t821 = t787 + t813;
        // complex block of 2
        const V t822 = t820 + t821;
        io.re(3, t822);
        const V t823 = t820 - t821;
        io.re(35, t823);
        // complex block of 2
        const V t824 = t782 + t808;
        // complex block of 2
        const V t825 = t792 + t818;
        // complex block of 2
        const V t826 = t824 + t825;
        io.im(3, t826);
        const V t827 = t824 - t825;
        io.im(35, t827);
        // complex block of 2
        const V t828 = t776 - t800;
        // complex block of 2
        const V t829 = t792 - t818;
        // complex block of 2
        const V t830 = t828 + t829;
        io.re(19, t830);
        const V t831 = t828 - t829;
        io.re(51, t831);
        // complex block of 2
        const V t832 = t782 - t808;
        // complex block of 2
        const V t833 = t787 - t813;
        // complex block of 2
        const V t834 = t832 - t833;
        io.im(19, t834);
        const V t835 = t832 + t833;
        io.im(51, t835);
        // complex block of 8
        const V t836 = t788 + t793;
        const V t837 = t819 - t814;
        // complex block of 2
        const V t838 = t836 + t837;
        const V t839 = t836 - t837;
        // complex block of 2
        const V t840 = t777 + t809;
        const V t841 = t783 + t801;
        // complex block of 2
        const V t842 = t840 + t838;
        io.re(11, t842);
        const V t843 = t840 - t838;
        io.re(43, t843);
        // complex block of 2
        const V t844 = t841 - t839;
        io.im(27, t844);
        const V t845 = t841 + t839;
        io.im(59, t845);
        // complex block of 8
        const V t846 = t793 - t788;
        const V t847 = t814 + t819;
        // complex block of 2
        const V t848 = t846 - t847;
        const V t849 = t846 + t847;
        // complex block of 2
        const V t850 = t783 - t801;
        const V t851 = t777 - t809;
        // complex block of 2
        const V t852 = t850 + t848;
        io.im(11, t852);
        const V t853 = t850 - t848;
        io.im(43, t853);
        // complex block of 2
        const V t854 = t851 + t849;
        io.re(27, t854);
        const V t855 = t851 - t849;
        io.re(59, t855);
        // complex block of 2
        const V t856 = t46 - t43;
        // complex block of 64
        const V t857 = c[2] * t527;
        const V t858 = c[1] * t537;
        const V t859 = t857 - t858;
        // complex block of 2
        const V t860 = t856 + t859;
        const V t861 = t856 - t859;
        // complex block of 2
        const V t862 = t47 + t39;
        // complex block of 64
        const V t863 = c[2] * t537;
        const V t864 = c[1] * t527;
        const V t865 = t864 + t863;
        // complex block of 2
        const V t866 = t862 - t865;
        const V t867 = t862 + t865;
        // complex block of 64
        const V t868 = t176 + t169;
        const V t869 = t228 + t221;
        // complex block of 2
        const V t870 = t868 + t869;
        const V t871 = t868 - t869;
        // complex block of 8
        const V t872 = c[0] * t870;
        // complex block of 64
        const V t873 = t170 - t177;
        const V t874 = t229 - t222;
        // complex block of 2
        const V t875 = t873 - t874;
        const V t876 = t873 + t874;
        // complex block of 8
        const V t877 = c[0] * t875;
        // complex block of 64
        const V t878 = c[3] * t285;
        const V t879 = c[4] * t295;
        const V t880 = t879 + t878;
        const V t881 = c[5] * t593;
        const V t882 = c[6] * t603;
        const V t883 = t882 + t881;
        // complex block of 2
        const V t884 = t880 - t883;
        const V t885 = t880 + t883;
        // complex block of 64
        const V t886 = c[3] * t295;
        const V t887 = c[4] * t285;
        const V t888 = t887 - t886;
        const V t889 = c[5] * t603;
        const V t890 = c[6] * t593;
        const V t891 = t889 - t890;
        // complex block of 2
        const V t892 = t888 + t891;
        const V t893 = t888 - t891;
        // complex block of 64
        const V t894 = t417 - t424;
        const V t895 = t476 - t469;
        // complex block of 2
        const V t896 = t894 - t895;
        const V t897 = t894 + t895;
        // complex block of 8
        const V t898 = c[0] * t896;
        // complex block of 64
        const V t899 = t418 + t425;
        const V t900 = t470 + t477;
        // complex block of 2
        const V t901 = t899 + t900;
        const V t902 = t900 - t899;
        // complex block of 8
        const V t903 = c[0] * t901;
        // complex block of 2
        const V t904 = t860 + t884;
        // complex block of 2
        const V t905 = t871 + t897;
        // complex block of 2
        const V t906 = t904 + t905;
        io.re(7, t906);
        const V t907 = t904 - t905;
        io.re(39, t907);
        // complex block of 2
        const V t908 = t866 + t892;
        // complex block of 2
        const V t909 = t876 + t902;
        // complex block of 2
        const V t910 = t908 + t909;
        io.im(7, t910);
        const V t911 = t908 - t909;
        io.im(39, t911);
        // complex block of 2
        const V t912 = t860 - t884;
        // complex block of 2
        const V t913 = t876 - t902;
        // complex block of 2
        const V t914 = t912 + t913;
        io.re(23, t914);
        const V t915 = t912 - t913;
        io.re(55, t915);
        // complex block of 2
        const V t916 = t866 - t892;
        // complex block of 2
        const V t917 = t871 - t897;
        // complex block of 2
        const V t918 = t916 - t917;
        io.im(23, t918);
        const V t919 = t916 + t917;
        io.im(55, t919);
        // complex block of 8
        const V t920 = t872 + t877;
        const V t921 = t903 + t898;
        // complex block of 2
        const V t922 = t920 - t921;
        const V t923 = t920 + t921;
        // complex block of 2
        const V t924 = t861 + t893;
        const V t925 = t867 + t885;
        // complex block of 2
        const V t926 = t924 + t922;
        io.re(15, t926);
        const V t927 = t924 - t922;
        io.re(47, t927);
        // complex block of 2
        const V t928 = t925 - t923;
        io.im(31, t928);
        const V t929 = t925 + t923;
        io.im(63, t929);
        // complex block of 8
        const V t930 = t877 - t872;
        const V t931 = t898 - t903;
        // complex block of 2
        const V t932 = t930 - t931;
        const V t933 = t930 + t931;
        // complex block of 2
        const V t934 = t867 - t885;
        const V t935 = t861 - t893;
        // complex block of 2
        const V t936 = t934 + t932;
        io.im(15, t936);
        const V t937 = t934 - t932;
        io.im(47, t937);
        // complex block of 2
        const V t938 = t935 + t933;
        io.re(31, t938);
        const V t939 = t935 - t933;
        io.re(63, t939);
        // complex block of 2
        const V t940 = t22 + t504;
        // complex block of 2
        const V t941 = t258 + t566;
        // complex block of 2
        const V t942 = t940 + t941;
        const V t943 = t940 - t941;
        // complex block of 2
        const V t944 = t26 + t508;
        // complex block of 2
        const V t945 = t259 + t567;
        // complex block of 2
        const V t946 = t944 + t945;
        const V t947 = t944 - t945;
        // complex block of 2
        const V t948 = t120 + t121;
        // complex block of 2
        const V t949 = t368 + t369;
        // complex block of 2
        const V t950 = t948 + t949;
        const V t951 = t948 - t949;
        // complex block of 2
        const V t952 = t123 + t124;
        // complex block of 2
        const V t953 = t371 + t372;
        // complex block of 2
        const V t954 = t952 + t953;
        const V t955 = t952 - t953;
        // complex block of 2
        const V t956 = t942 + t950;
        io.re(0, t956);
        const V t957 = t946 + t954;
        io.im(0, t957);
        const V t958 = t942 - t950;
        io.re(32, t958);
        const V t959 = t946 - t954;
        io.im(32, t959);
        // complex block of 2
        const V t960 = t943 + t955;
        io.re(16, t960);
        const V t961 = t947 - t951;
        io.im(16, t961);
        const V t962 = t943 - t955;
        io.re(48, t962);
        const V t963 = t947 + t951;
        io.im(48, t963);
        // complex block of 2
        const V t964 = t22 - t504;
        // complex block of 2
        const V t965 = t259 - t567;
        // complex block of 2
        const V t966 = t964 + t965;
        const V t967 = t964 - t965;
        // complex block of 2
        const V t968 = t26 - t508;
        // complex block of 2
        const V t969 = t258 - t566;
        // complex block of 2
        const V t970 = t968 - t969;
        const V t971 = t968 + t969;
        // complex block of 8
        const V t972 = c[0] * t122;
        const V t973 = c[0] * t125;
        const V t974 = t972 + t973;
        const V t975 = t973 - t972;
        const V t976 = c[0] * t370;
        const V t977 = c[0] * t373;
        const V t978 = t976 + t977;
        const V t979 = t977 - t976;
        // complex block of 2
        const V t980 = t974 + t979;
        // complex block of 2
        const V t981 = t966 + t980;
        io.re(8, t981);
        const V t982 = t966 - t980;
        io.re(40, t982);
        // complex block of 2
        const V t983 = t975 - t978;
        // complex block of 2
        const V t984 = t970 + t983;
        io.im(8, t984);
        const V t985 = t970 - t983;
        io.im(40, t985);
        // complex block of 2
        const V t986 = t974 - t979;
        // complex block of 2
        const V t987 = t971 - t986;
        io.im(24, t987);
        const V t988 = t971 + t986;
        io.im(56, t988);
        // complex block of 2
        const V t989 = t975 + t978;
        // complex block of 2
        const V t990 = t967 + t989;
        io.re(24, t990);
        const V t991 = t967 - t989;
        io.re(56, t991);
        // complex block of 64
        const V t992 = t265 + t268;
        const V t993 = t573 + t576;
        // complex block of 2
        const V t994 = t992 + t993;
        const V t995 = t992 - t993;
        // complex block of 64
        const V t996 = t269 - t266;
        const V t997 = t577 - t574;
        // complex block of 2
        const V t998 = t996 + t997;
        const V t999 = t996 - t997;
        // complex block of 64
        const V t1000 = t511 + t513;
        // complex block of 2
        const V t1001 = t30 + t1000;
        const V t1002 = t30 - t1000;
        // complex block of 64
        const V t1003 = t513 - t511;
        // complex block of 2
        const V t1004 = t34 + t1003;
        const V t1005 = t34 - t1003;
        // complex block of 2
        const V t1006 = t140 + t192;
        // complex block of 2
        const V t1007 = t388 + t440;
        // complex block of 2
        const V t1008 = t1006 + t1007;
        const V t1009 = t1006 - t1007;
        // complex block of 2
        const V t1010 = t141 + t193;
        // complex block of 2
        const V t1011 = t389 + t441;
        // complex block of 2
        const V t1012 = t1010 + t1011;
        const V t1013 = t1010 - t1011;
        // complex block of 2
        const V t1014 = t140 - t192;
        // complex block of 8
        const V t1015 = c[0] * t1014;
        // complex block of 2
        const V t1016 = t141 - t193;
        // complex block of 8
        const V t1017 = c[0] * t1016;
        const V t1018 = t1015 + t1017;
        const V t1019 = t1017 - t1015;
        // complex block of 2
        const V t1020 = t388 - t440;
        // complex block of 8
        const V t1021 = c[0] * t1020;
        // complex block of 2
        const V t1022 = t389 - t441;
        // complex block of 8
        const V t1023 = c[0] * t1022;
        const V t1024 = t1021 + t1023;
        const V t1025 = t1023 - t1021;
        // complex block of 2
        const V t1026 = t1001 + t994;
        // complex block of 2
        const V t1027 = t1026 + t1008;
        io.re(2, t1027);
        const V t1028 = t1026 - t1008;
        io.re(34, t1028);
        // complex block of 2
        const V t1029 = t1004 + t998;
        // complex block of 2
        const V t1030 = t1029 + t1012;
        io.im(2, t1030);
        const V t1031 = t1029 - t1012;
        io.im(34, t1031);
        // complex block of 2
        const V t1032 = t1001 - t994;
        // complex block of 2
        const V t1033 = t1032 + t1013;
        io.re(18, t1033);
        const V t1034 = t1032 - t1013;
        io.re(50, t1034);
        // complex block of 2
        const V t1035 = t1004 - t998;
        // complex block of 2
        const V t1036 = t1035 - t1009;
        io.im(18, t1036);
        const V t1037 = t1035 + t1009;
        io.im(50, t1037);
        // complex block of 2
        const V t1038 = t1002 + t999;
        // complex block of 2
        const V t1039 = t1018 + t1025;
        // complex block of 2
        const V t1040 = t1038 + t1039;
        io.re(10, t1040);
        const V t1041 = t1038 - t1039;
        io.re(42, t1041);
        // complex block of 2
        const V t1042 = t1005 - t995;
        // complex block of 2
        const V t1043 = t1019 - t1024;
        // complex block of 2
        const V t1044 = t1042 + t1043;
        io.im(10, t1044);
        const V t1045 = t1042 - t1043;
        io.im(42, t1045);
        // complex block of 2
        const V t1046 = t1002 - t999;
        // complex block of 2
        const V t1047 = t1019 + t1024;
        // complex block of 2
        const V t1048 = t1046 + t1047;
        io.re(26, t1048);
        const V t1049 = t1046 - t1047;
        io.re(58, t1049);
        // complex block of 2
        const V t1050 = t1005 + t995;
        // complex block of 2
        const V t1051 = t1018 - t1025;
        // complex block of 2
        const V t1052 = t1050 - t1051;
        io.im(26, t1052);
        const V t1053 = t1050 + t1051;
        io.im(58, t1053);
        // complex block of 64
        const V t1054 = t261 + t263;
        const V t1055 = t571 - t569;
        // complex block of 2
        const V t1056 = t1054 + t1055;
        const V t1057 = t1054 - t1055;
        // complex block of 64
        const V t1058 = t263 - t261;
        const V t1059 = t569 + t571;
        // complex block of 2
        const V t1060 = t1058 - t1059;
        const V t1061 = t1058 + t1059;
        // complex block of 2
        const V t1062 = t23 + t509;
        const V t1063 = t27 - t505;
        const V t1064 = t23 - t509;
        const V t1065 = t27 + t505;
        // complex block of 2
        const V t1066 = t132 + t184;
        // complex block of 2
        const V t1067 = t380 + t432;
        // complex block of 2
        const V t1068 = t1066 + t1067;
        const V t1069 = t1066 - t1067;
        // complex block of 2
        const V t1070 = t133 - t185;
        // complex block of 2
        const V t1071 = t381 - t433;
        // complex block of 2
        const V t1072 = t1070 + t1071;
        const V t1073 = t1070 - t1071;
        // complex block of 2
        const V t1074 = t132 - t184;
        // complex block of 8
        const V t1075 = c[0] * t1074;
        // complex block of 2
        const V t1076 = t133 + t185;
        // complex block of 8
        const V t1077 = c[0] * t1076;
        const V t1078 = t1075 + t1077;
        const V t1079 = t1077 - t1075;
        // complex block of 2
        const V t1080 = t380 - t432;
        // complex block of 8
        const V t1081 = c[0] * t1080;
        // complex block of 2
        const V t1082 = t381 + t433;
        // complex block of 8
        const V t1083 = c[0] * t1082;
        const V t1084 = t1081 + t1083;
        const V t1085 = t1083 - t1081;
        // complex block of 2
        const V t1086 = t1062 + t1056;
        // complex block of 2
        const V t1087 = t1086 + t1068;
        io.re(4, t1087);
        const V t1088 = t1086 - t1068;
        io.re(36, t1088);
        // complex block of 2
        const V t1089 = t1063 + t1060;
        // complex block of 2
        const V t1090 = t1089 + t1072;
        io.im(4, t1090);
        const V t1091 = t1089 - t1072;
        io.im(36, t1091);
        // complex block of 2
        const V t1092 = t1062 - t1056;
        // complex block of 2
        const V t1093 = t1092 + t1073;
        io.re(20, t1093);
        const V t1094 = t1092 - t1073;
        io.re(52, t1094);
        // complex block of 2
        const V t1095 = t1063 - t1060;
        // complex block of 2
        const V t1096 = t1095 - t1069;
        io.im(20, t1096);
        const V t1097 = t1095 + t1069;
        io.im(52, t1097);
        // complex block of 2
        const V t1098 = t1064 + t1061;
        // complex block of 2
        const V t1099 = t1078 + t1085;
        // complex block of 2
        const V t1100 = t1098 + t1099;
        io.re(12, t1100);
        const V t1101 = t1098 - t1099;
        io.re(44, t1101);
        // complex block of 2
        const V t1102 = t1065 - t1057;
        // complex block of 2
        const V t1103 = t1079 - t1084;
        // complex block of 2
        const V t1104 = t1102 + t1103;
        io.im(12, t1104);
        const V t1105 = t1102 - t1103;
        io.im(44, t1105);
        // complex block of 2
        const V t1106 = t1064 - t1061;
        // complex block of 2
        const V t1107 = t1079 + t1084;
        // complex block of 2
        const V t1108 = t1106 + t1107;
        io.re(28, t1108);
        const V t1109 = t1106 - t1107;
        io.re(60, t1109);
        // complex block of 2
        const V t1110 = t1065 + t1057;
        // complex block of 2
        const V t1111 = t1078 - t1085;
        // complex block of 2
        const V t1112 = t1110 - t1111;
        io.im(28, t1112);
        const V t1113 = t1110 + t1111;
        io.im(60, t1113);
        // complex block of 64
        const V t1114 = t271 + t274;
        const V t1115 = t579 + t582;
        // complex block of 2
        const V t1116 = t1114 - t1115;
        const V t1117 = t1114 + t1115;
        // complex block of 64
        const V t1118 = t275 - t272;
        const V t1119 = t580 - t583;
        // complex block of 2
        const V t1120 = t1118 + t1119;
        const V t1121 = t1118 - t1119;
        // complex block of 64
        const V t1122 = t515 + t517;
        // complex block of 2
        const V t1123 = t35 - t1122;
        const V t1124 = t35 + t1122;
        // complex block of 64
        const V t1125 = t517 - t515;
        // complex block of 2
        const V t1126 = t31 + t1125;
        const V t1127 = t31 - t1125;
        // complex block of 2
        const V t1128 = t148 + t200;
        // complex block of 2
        const V t1129 = t396 - t448;
        // complex block of 2
        const V t1130 = t1128 + t1129;
        const V t1131 = t1128 - t1129;
        // complex block of 2
        const V t1132 = t149 - t201;
        // complex block of 2
        const V t1133 = t449 - t397;
        // complex block of 2
        const V t1134 = t1132 + t1133;
        const V t1135 = t1132 - t1133;
        // complex block of 2
        const V t1136 = t148 - t200;
        // complex block of 8
        const V t1137 = c[0] * t1136;
        // complex block of 2
        const V t1138 = t149 + t201;
        // complex block of 8
        const V t1139 = c[0] * t1138;
        const V t1140 = t1137 + t1139;
        const V t1141 = t1139 - t1137;
        // complex block of 2
        const V t1142 = t396 + t448;
        // complex block of 8
        const V t1143 = c[0] * t1142;
        // complex block of 2
        const V t1144 = t397 + t449;
        // complex block of 8
        const V t1145 = c[0] * t1144;
        const V t1146 = t1143 - t1145;
        const V t1147 = t1145 + t1143;
        // complex block of 2
        const V t1148 = t1126 + t1116;
        // complex block of 2
        const V t1149 = t1148 + t1130;
        io.re(6, t1149);
        const V t1150 = t1148 - t1130;
        io.re(38, t1150);
        // complex block of 2
        const V t1151 = t1123 + t1120;
        // complex block of 2
        const V t1152 = t1151 + t1134;
        io.im(6, t1152);
        const V t1153 = t1151 - t1134;
        io.im(38, t1153);
        // complex block of 2
        const V t1154 = t1126 - t1116;
        // complex block of 2
        const V t1155 = t1154 + t1135;
        io.re(22, t1155);
        const V t1156 = t1154 - t1135;
        io.re(54, t1156);
        // complex block of 2
        const V t1157 = t1123 - t1120;
        // complex block of 2
        const V t1158 = t1157 - t1131;
        io.im(22, t1158);
        const V t1159 = t1157 + t1131;
        io.im(54, t1159);
        // complex block of 2
        const V t1160 = t1127 + t1121;
        // complex block of 2
        const V t1161 = t1140 - t1147;
        // complex block of 2
        const V t1162 = t1160 + t1161;
        io.re(14, t1162);
        const V t1163 = t1160 - t1161;
        io.re(46, t1163);
        // complex block of 2
        const V t1164 = t1124 - t1117;
        // complex block of 2
        const V t1165 = t1141 - t1146;
        // complex block of 2
        const V t1166 = t1164 + t1165;
        io.im(14, t1166);
        const V t1167 = t1164 - t1165;
        io.im(46, t1167);
        // complex block of 2
        const V t1168 = t1127 - t1121;
        // complex block of 2
        const V t1169 = t1141 + t1146;
        // complex block of 2
        const V t1170 = t1168 + t1169;
        io.re(30, t1170);
        const V t1171 = t1168 - t1169;
        io.re(62, t1171);
        // complex block of 2
        const V t1172 = t1124 + t1117;
        // complex block of 2
        const V t1173 = t1140 + t1147;
        // complex block of 2
        const V t1174 = t1172 - t1173;
        io.im(30, t1174);
        const V t1175 = t1172 + t1173;
        io.im(62, t1175);
    }
};

}  // namespace zulg
