// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 64.
// Inverse DFT to 64 real points, twiddled 16, 4.
// 200 additions, 200 subtractions, 196 multiplications (260 with `scale`); 16 constants; 81 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<64> {
    static constexpr int steps = 660;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: -sin 2 pi 15/16
        0.9238795325112867,  // c[1]: cos 2 pi 15/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.19509032201612828,  // c[3]: -sin 2 pi 62/64
        0.9807852804032304,  // c[4]: cos 2 pi 62/64
        0.5555702330196022,  // c[5]: -sin 2 pi 58/64
        0.8314696123025452,  // c[6]: cos 2 pi 58/64
        0.0980171403295606,  // c[7]: -sin 2 pi 63/64
        0.9951847266721969,  // c[8]: cos 2 pi 63/64
        0.773010453362737,  // c[9]: cos 2 pi 57/64
        0.6343932841636455,  // c[10]: -sin 2 pi 57/64
        0.47139673682599764,  // c[11]: -sin 2 pi 59/64
        0.881921264348355,  // c[12]: cos 2 pi 59/64
        0.9569403357322088,  // c[13]: cos 2 pi 61/64
        0.2902846772544624,  // c[14]: -sin 2 pi 61/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x32r = io.re(32);
        const V t0 = x0r + x32r;
        const V t1 = x0r - x32r;
        // doubled bins
        const V x8r = io.re(8);
        const V t2 = two * x8r;
        const V x24r = io.re(24);
        const V t3 = two * x24r;
        // mirrored skew block of 4
        const V t4 = t2 - t3;
        // doubled bins
        const V x8i = io.im(8);
        const V t5 = two * x8i;
        const V x24i = io.im(24);
        const V t6 = two * x24i;
        // mirrored skew block of 4
        const V t7 = t5 + t6;
        // doubled bins
        const V x16r = io.re(16);
        const V t8 = two * x16r;
        const V x16i = io.im(16);
        const V t9 = two * x16i;
        // spectrum block of 2
        const V t10 = t0 + t8;
        // mirrored skew block of 4
        const V t11 = t2 + t3;
        // spectrum block of 2
        const V t12 = t10 + t11;
        const V t13 = t10 - t11;
        // spectrum block of 2
        const V t14 = t0 - t8;
        // mirrored skew block of 4
        const V t15 = t5 - t6;
        // spectrum block of 2
        const V t16 = t14 - t15;
        const V t17 = t14 + t15;
        // spectrum block of 2
        const V t18 = t1 - t9;
        const V t19 = t1 + t9;
        // mirrored skew block of 4
        const V t20 = c[2] * t4;
        const V t21 = c[2] * t7;
        const V t22 = t20 - t21;
        const V t23 = t20 + t21;
        // doubled bins
        const V x1r = io.re(1);
        const V t24 = two * x1r;
        const V x31r = io.re(31);
        const V t25 = two * x31r;
        // complex block of 2
        const V t26 = t24 + t25;
        // doubled bins
        const V x1i = io.im(1);
        const V t27 = two * x1i;
        const V x31i = io.im(31);
        const V t28 = two * x31i;
        // complex block of 2
        const V t29 = t27 - t28;
        // doubled bins
        const V x7r = io.re(7);
        const V t30 = two * x7r;
        const V x25r = io.re(25);
        const V t31 = two * x25r;
        // complex block of 2
        const V t32 = t31 + t30;
        const V t33 = t31 - t30;
        // doubled bins
        const V x7i = io.im(7);
        const V t34 = two * x7i;
        const V x25i = io.im(25);
        const V t35 = two * x25i;
        // complex block of 2
        const V t36 = t35 - t34;
        const V t37 = t35 + t34;
        // doubled bins
        const V x9r = io.re(9);
        const V t38 = two * x9r;
        const V x23r = io.re(23);
        const V t39 = two * x23r;
        // complex block of 2
        const V t40 = t38 + t39;
        const V t41 = t38 - t39;
        // doubled bins
        const V x9i = io.im(9);
        const V t42 = two * x9i;
        const V x23i = io.im(23);
        const V t43 = two * x23i;
        // complex block of 2
        const V t44 = t42 - t43;
        const V t45 = t42 + t43;
        // doubled bins
        const V x15r = io.re(15);
        const V t46 = two * x15r;
        const V x17r = io.re(17);
        const V t47 = two * x17r;
        // complex block of 2
        const V t48 = t47 + t46;
        // doubled bins
        const V x15i = io.im(15);
        const V t49 = two * x15i;
        const V x17i = io.im(17);
        const V t50 = two * x17i;
        // complex block of 2
        const V t51 = t50 - t49;
        // complex block of 2
        const V t52 = t27 + t28;
        // complex block of 2
        const V t53 = t47 - t46;
        // complex block of 2
        const V t54 = t52 + t53;
        const V t55 = t52 - t53;
        // complex block of 2
        const V t56 = t24 - t25;
        // complex block of 2
        const V t57 = t50 + t49;
        // complex block of 2
        const V t58 = t56 - t57;
        const V t59 = t56 + t57;
        // complex block of 2
        const V t60 = t29 + t51;
        // complex block of 2
        const V t61 = t44 + t36;
        // complex block of 2
        const V t62 = t60 + t61;
        const V t63 = t60 - t61;
        // complex block of 2
        const V t64 = t26 + t48;
        // complex block of 2
        const V t65 = t40 + t32;
        // complex block of 2
        const V t66 = t64 + t65;
        const V t67 = t64 - t65;
        // complex block of 2
        const V t68 = t29 - t51;
        // complex block of 2
        const V t69 = t40 - t32;
        // complex block of 2
        const V t70 = t68 + t69;
        const V t71 = t68 - t69;
        // complex block of 2
        const V t72 = t26 - t48;
        // complex block of 2
        const V t73 = t44 - t36;
        // complex block of 2
        const V t74 = t72 - t73;
        const V t75 = t72 + t73;
        // complex block of 16
        const V t76 = c[2] * t45;
        const V t77 = c[2] * t41;
        const V t78 = t76 + t77;
        const V t79 = t77 - t76;
        const V t80 = c[2] * t37;
        const V t81 = c[2] * t33;
        const V t82 = t80 + t81;
        const V t83 = t81 - t80;
        // complex block of 2
        const V t84 = t78 + t83;
        const V t85 = t79 - t82;
        const V t86 = t78 - t83;
        const V t87 = t79 + t82;
        // doubled bins
        const V x2r = io.re(2);
        const V t88 = two * x2r;
        const V x30r = io.re(30);
        const V t89 = two * x30r;
        // complex block of 2
        const V t90 = t88 + t89;
        const V t91 = t88 - t89;
        // doubled bins
        const V x2i = io.im(2);
        const V t92 = two * x2i;
        const V x30i = io.im(30);
        const V t93 = two * x30i;
        // complex block of 2
        const V t94 = t92 - t93;
        const V t95 = t92 + t93;
        // doubled bins
        const V x6r = io.re(6);
        const V t96 = two * x6r;
        const V x26r = io.re(26);
        const V t97 = two * x26r;
        // complex block of 2
        const V t98 = t96 + t97;
        const V t99 = t96 - t97;
        // doubled bins
        const V x6i = io.im(6);
        const V t100 = two * x6i;
        const V x26i = io.im(26);
        const V t101 = two * x26i;
        // complex block of 2
        const V t102 = t100 - t101;
        const V t103 = t100 + t101;
        // doubled bins
        const V x10r = io.re(10);
        const V t104 = two * x10r;
        const V x22r = io.re(22);
        const V t105 = two * x22r;
        // complex block of 2
        const V t106 = t104 + t105;
        const V t107 = t104 - t105;
        // doubled bins
        const V x10i = io.im(10);
        const V t108 = two * x10i;
        const V x22i = io.im(22);
        const V t109 = two * x22i;
        // complex block of 2
        const V t110 = t108 - t109;
        const V t111 = t108 + t109;
        // doubled bins
        const V x14r = io.re(14);
        const V t112 = two * x14r;
        const V x18r = io.re(18);
        const V t113 = two * x18r;
        // complex block of 2
        const V t114 = t112 + t113;
        const V t115 = t112 - t113;
        // doubled bins
        const V x14i = io.im(14);
        const V t116 = two * x14i;
        const V x18i = io.im(18);
        const V t117 = two * x18i;
        // complex block of 2
        const V t118 = t116 - t117;
        const V t119 = t116 + t117;
        // mirrored skew block of 16
        const V t120 = c[3] * t95;
        const V t121 = c[4] * t91;
        const V t122 = t121 - t120;
        const V t123 = c[4] * t119;
        const V t124 = c[3] * t115;
        const V t125 = t124 - t123;
        // complex block of 2
        const V t126 = t122 + t125;
        const V t127 = t122 - t125;
        // mirrored skew block of 16
        const V t128 = c[3] * t91;
        const V t129 = c[4] * t95;
        const V t130 = t129 + t128;
        const V t131 = c[4] * t115;
        const V t132 = c[3] * t119;
        const V t133 = t132 + t131;
        // complex block of 2
        const V t134 = t130 - t133;
        const V t135 = t130 + t133;
        // mirrored skew block of 16
        const V t136 = c[5] * t103;
        const V t137 = c[6] * t99;
        const V t138 = t137 - t136;
        const V t139 = c[6] * t111;
        const V t140 = c[5] * t107;
        const V t141 = t140 - t139;
        // complex block of 2
        const V t142 = t141 + t138;
        const V t143 = t141 - t138;
        // mirrored skew block of 16
        const V t144 = c[5] * t99;
        const V t145 = c[6] * t103;
        const V t146 = t145 + t144;
        const V t147 = c[6] * t107;
        const V t148 = c[5] * t111;
        const V t149 = t148 + t147;
        // complex block of 2
        const V t150 = t149 - t146;
        const V t151 = t149 + t146;
        // complex block of 2
        const V t152 = t94 - t118;
        // complex block of 2
        const V t153 = t110 - t102;
        // complex block of 2
        const V t154 = t152 - t153;
        // complex block of 2
        const V t155 = t90 + t114;
        // complex block of 2
        const V t156 = t106 + t98;
        // complex block of 2
        const V t157 = t155 - t156;
        // complex block of 2
        const V t158 = t94 + t118;
        // complex block of 2
        const V t159 = t106 - t98;
        // complex block of 2
        const V t160 = t158 + t159;
        const V t161 = t158 - t159;
        // complex block of 2
        const V t162 = t90 - t114;
        // complex block of 2
        const V t163 = t110 + t102;
        // complex block of 2
        const V t164 = t162 - t163;
        const V t165 = t162 + t163;
        // doubled bins
        const V x3r = io.re(3);
        const V t166 = two * x3r;
        const V x29r = io.re(29);
        const V t167 = two * x29r;
        // complex block of 2
        const V t168 = t167 + t166;
        const V t169 = t167 - t166;
        // complex block of 16
        const V t170 = c[0] * t169;
        const V t171 = c[1] * t169;
        // doubled bins
        const V x3i = io.im(3);
        const V t172 = two * x3i;
        const V x29i = io.im(29);
        const V t173 = two * x29i;
        // complex block of 2
        const V t174 = t173 - t172;
        const V t175 = t173 + t172;
        // complex block of 16
        const V t176 = c[1] * t175;
        const V t177 = c[0] * t175;
        // doubled bins
        const V x5r = io.re(5);
        const V t178 = two * x5r;
        const V x27r = io.re(27);
        const V t179 = two * x27r;
        // complex block of 2
        const V t180 = t178 + t179;
        const V t181 = t178 - t179;
        // complex block of 16
        const V t182 = c[0] * t181;
        const V t183 = c[1] * t181;
        // doubled bins
        const V x5i = io.im(5);
        const V t184 = two * x5i;
        const V x27i = io.im(27);
        const V t185 = two * x27i;
        // complex block of 2
        const V t186 = t184 - t185;
        const V t187 = t184 + t185;
        // complex block of 16
        const V t188 = c[1] * t187;
        const V t189 = c[0] * t187;
        // doubled bins
        const V x11r = io.re(11);
        const V t190 = two * x11r;
        const V x21r = io.re(21);
        const V t191 = two * x21r;
        // complex block of 2
        const V t192 = t191 + t190;
        const V t193 = t191 - t190;
        // complex block of 16
        const V t194 = c[1] * t193;
        const V t195 = c[0] * t193;
        // doubled bins
        const V x11i = io.im(11);
        const V t196 = two * x11i;
        const V x21i = io.im(21);
        const V t197 = two * x21i;
        // complex block of 2
        const V t198 = t197 - t196;
        const V t199 = t197 + t196;
        // complex block of 16
        const V t200 = c[0] * t199;
        const V t201 = c[1] * t199;
        // doubled bins
        const V x13r = io.re(13);
        const V t202 = two * x13r;
        const V x19r = io.re(19);
        const V t203 = two * x19r;
        // complex block of 2
        const V t204 = t202 + t203;
        const V t205 = t202 - t203;
        // complex block of 16
        const V t206 = c[1] * t205;
        const V t207 = c[0] * t205;
        // doubled bins
        const V x13i = io.im(13);
        const V t208 = two * x13i;
        const V x19i = io.im(19);
        const V t209 = two * x19i;
        // complex block of 2
        const V t210 = t208 - t209;
        const V t211 = t208 + t209;
        // complex block of 16
        const V t212 = c[0] * t211;
        const V t213 = c[1] * t211;
        // complex block of 2
        const V t214 = t186 + t198;
        // complex block of 2
        const V t215 = t210 + t174;
        // complex block of 2
        const V t216 = t214 + t215;
        const V t217 = t214 - t215;
        // complex block of 2
        const V t218 = t180 + t192;
        // complex block of 2
        const V t219 = t204 + t168;
        // complex block of 2
        const V t220 = t218 + t219;
        const V t221 = t218 - t219;
        // complex block of 2
        const V t222 = t186 - t198;
        // complex block of 8
        const V t223 = c[2] * t222;
        // complex block of 2
        const V t224 = t180 - t192;
        // complex block of 8
        const V t225 = c[2] * t224;
        const V t226 = t223 + t225;
        const V t227 = t225 - t223;
        // complex block of 2
        const V t228 = t210 - t174;
        // complex block of 8
        const V t229 = c[2] * t228;
        // complex block of 2
        const V t230 = t204 - t168;
        // complex block of 8
        const V t231 = c[2] * t230;
        const V t232 = t229 + t231;
        const V t233 = t231 - t229;
        // complex block of 16
        const V t234 = t188 + t182;
        const V t235 = t194 - t200;
        // complex block of 2
        const V t236 = t234 - t235;
        const V t237 = t234 + t235;
        // complex block of 8
        const V t238 = c[2] * t236;
        // complex block of 16
        const V t239 = t183 - t189;
        const V t240 = t195 + t201;
        // complex block of 2
        const V t241 = t239 + t240;
        const V t242 = t239 - t240;
        // complex block of 8
        const V t243 = c[2] * t241;
        // complex block of 16
        const V t244 = t212 + t206;
        const V t245 = t170 - t176;
        // complex block of 2
        const V t246 = t244 - t245;
        const V t247 = t244 + t245;
        // complex block of 8
        const V t248 = c[2] * t246;
        // complex block of 16
        const V t249 = t207 - t213;
        const V t250 = t171 + t177;
        // complex block of 2
        const V t251 = t249 + t250;
        const V t252 = t249 - t250;
        // complex block of 8
        const V t253 = c[2] * t251;
        // doubled bins
        const V x4r = io.re(4);
        const V t254 = two * x4r;
        const V x28r = io.re(28);
        const V t255 = two * x28r;
        // complex block of 2
        const V t256 = t254 + t255;
        const V t257 = t254 - t255;
        // doubled bins
        const V x4i = io.im(4);
        const V t258 = two * x4i;
        const V x28i = io.im(28);
        const V t259 = two * x28i;
        // complex block of 2
        const V t260 = t258 - t259;
        const V t261 = t258 + t259;
        // doubled bins
        const V x12r = io.re(12);
        const V t262 = two * x12r;
        const V x20r = io.re(20);
        const V t263 = two * x20r;
        // complex block of 2
        const V t264 = t263 + t262;
        const V t265 = t263 - t262;
        // doubled bins
        const V x12i = io.im(12);
        const V t266 = two * x12i;
        const V x20i = io.im(20);
        const V t267 = two * x20i;
        // complex block of 2
        const V t268 = t267 - t266;
        const V t269 = t267 + t266;
        // complex block of 2
        const V t270 = t260 + t268;
        const V t271 = t256 + t264;
        const V t272 = t260 - t268;
        const V t273 = t256 - t264;
        // spectrum block of 16
        const V t274 = t273 + t272;
        const V t275 = t272 - t273;
        // complex block of 2
        const V t276 = t261 + t265;
        // spectrum block of 16
        const V t277 = c[0] * t276;
        const V t278 = c[1] * t276;
        // complex block of 2
        const V t279 = t257 - t269;
        // spectrum block of 16
        const V t280 = c[1] * t279;
        const V t281 = c[0] * t279;
        // complex block of 2
        const V t282 = t261 - t265;
        // spectrum block of 16
        const V t283 = c[1] * t282;
        const V t284 = c[0] * t282;
        // complex block of 2
        const V t285 = t257 + t269;
        // spectrum block of 16
        const V t286 = c[0] * t285;
        const V t287 = c[1] * t285;
        const V t288 = t280 - t277;
        // spectrum block of 2
        const V t289 = t18 + t22;
        // spectrum block of 2
        const V t290 = t289 + t288;
        const V t291 = t289 - t288;
        // complex block of 2
        const V t292 = t54 + t84;
        // complex block of 2
        const V t293 = t237 + t247;
        // complex block of 2
        const V t294 = t292 + t293;
        const V t295 = t292 - t293;
        // spectrum block of 64
        const V t296 = c[7] * t294;
        const V t297 = c[8] * t294;
        const V t298 = c[9] * t295;
        const V t299 = c[10] * t295;
        // complex block of 2
        const V t300 = t58 + t85;
        // complex block of 2
        const V t301 = t242 + t252;
        // complex block of 2
        const V t302 = t300 + t301;
        const V t303 = t300 - t301;
        // spectrum block of 64
        const V t304 = c[8] * t302;
        const V t305 = c[7] * t302;
        const V t306 = c[10] * t303;
        const V t307 = c[9] * t303;
        // complex block of 2
        const V t308 = t134 + t150;
        const V t309 = t126 + t142;
        // spectrum block of 64
        const V t310 = t304 - t296;
        // spectrum block of 2
        const V t311 = t290 + t309;
        // spectrum block of 2
        const V t312 = t311 + t310;
        io.out(1, t312);
        const V t313 = t311 - t310;
        io.out(33, t313);
        // spectrum block of 64
        const V t314 = t297 + t305;
        // spectrum block of 2
        const V t315 = t290 - t309;
        // spectrum block of 2
        const V t316 = t315 - t314;
        io.out(17, t316);
        const V t317 = t315 + t314;
        io.out(49, t317);
        // spectrum block of 64
        const V t318 = t306 - t298;
        // spectrum block of 2
        const V t319 = t291 - t308;
        // spectrum block of 2
        const V t320 = t319 + t318;
        io.out(9, t320);
        const V t321 = t319 - t318;
        io.out(41, t321);
        // spectrum block of 64
        const V t322 = t299 + t307;
        // spectrum block of 2
        const V t323 = t291 + t308;
        // spectrum block of 2
        const V t324 = t323 - t322;
        io.out(25, t324);
        const V t325 = t323 + t322;
        io.out(57, t325);
        // spectrum block of 16
        const V t326 = t278 + t281;
        // spectrum block of 2
        const V t327 = t18 - t22;
        // spectrum block of 2
        const V t328 = t327 - t326;
        const V t329 = t327 + t326;
        // complex block of 2
        const V t330 = t54 - t84;
        // complex block of 2
        const V t331 = t242 - t252;
        // complex block of 2
        const V t332 = t330 + t331;
        const V t333 = t330 - t331;
        // spectrum block of 64
        const V t334 = c[11] * t332;
        const V t335 = c[12] * t332;
        const V t336 = c[13] * t333;
        const V t337 = c[14] * t333;
        // complex block of 2
        const V t338 = t58 - t85;
        // complex block of 2
        const V t339 = t237 - t247;
        // complex block of 2
        const V t340 = t338 - t339;
        const V t341 = t338 + t339;
        // spectrum block of 64
        const V t342 = c[12] * t340;
        const V t343 = c[11] * t340;
        const V t344 = c[14] * t341;
        const V t345 = c[13] * t341;
        // complex block of 2
        const V t346 = t134 - t150;
        // mirrored skew block of 8
        const V t347 = c[2] * t346;
        // complex block of 2
        const V t348 = t126 - t142;
        // mirrored skew block of 8
        const V t349 = c[2] * t348;
        const V t350 = t349 + t347;
        const V t351 = t347 - t349;
        // spectrum block of 64
        const V t352 = t342 - t334;
        // spectrum block of 2
        const V t353 = t328 - t351;
        // spectrum block of 2
        const V t354 = t353 + t352;
        io.out(5, t354);
        const V t355 = t353 - t352;
        io.out(37, t355);
        // spectrum block of 64
        const V t356 = t335 + t343;
        // spectrum block of 2
        const V t357 = t328 + t351;
        // spectrum block of 2
        const V t358 = t357 - t356;
        io.out(21, t358);
        const V t359 = t357 + t356;
        io.out(53, t359);
        // spectrum block of 64
        const V t360 = t344 - t336;
        // spectrum block of 2
        const V t361 = t329 - t350;
        // spectrum block of 2
        const V t362 = t361 + t360;
        io.out(13, t362);
        const V t363 = t361 - t360;
        io.out(45, t363);
        // spectrum block of 64
        const V t364 = t337 + t345;
        // spectrum block of 2
        const V t365 = t329 + t350;
        // spectrum block of 2
        const V t366 = t365 - t364;
        io.out(29, t366);
        const V t367 = t365 + t364;
        io.out(61, t367);
        // spectrum block of 16
        const V t368 = c[2] * t274;
        // spectrum block of 2
        const V t369 = t17 - t368;
        const V t370 = t17 + t368;
        // complex block of 2
        const V t371 = t226 - t233;
        // complex block of 2
        const V t372 = t75 - t371;
        const V t373 = t75 + t371;
        // spectrum block of 64
        const V t374 = c[6] * t372;
        const V t375 = c[5] * t372;
        const V t376 = c[3] * t373;
        const V t377 = c[4] * t373;
        // complex block of 2
        const V t378 = t227 + t232;
        // complex block of 2
        const V t379 = t71 + t378;
        const V t380 = t71 - t378;
        // spectrum block of 64
        const V t381 = c[5] * t379;
        const V t382 = c[6] * t379;
        const V t383 = c[4] * t380;
        const V t384 = c[3] * t380;
        // mirrored skew block of 8
        const V t385 = c[1] * t161;
        const V t386 = c[0] * t165;
        const V t387 = t386 - t385;
        const V t388 = c[1] * t165;
        const V t389 = c[0] * t161;
        const V t390 = t389 + t388;
        // spectrum block of 64
        const V t391 = t374 - t381;
        // spectrum block of 2
        const V t392 = t369 + t387;
        // spectrum block of 2
        const V t393 = t392 + t391;
        io.out(6, t393);
        const V t394 = t392 - t391;
        io.out(38, t394);
        // spectrum block of 64
        const V t395 = t382 + t375;
        // spectrum block of 2
        const V t396 = t369 - t387;
        // spectrum block of 2
        const V t397 = t396 - t395;
        io.out(22, t397);
        const V t398 = t396 + t395;
        io.out(54, t398);
        // spectrum block of 64
        const V t399 = t376 - t383;
        // spectrum block of 2
        const V t400 = t370 - t390;
        // spectrum block of 2
        const V t401 = t400 + t399;
        io.out(14, t401);
        const V t402 = t400 - t399;
        io.out(46, t402);
        // spectrum block of 64
        const V t403 = t384 + t377;
        // spectrum block of 2
        const V t404 = t370 + t390;
        // spectrum block of 2
        const V t405 = t404 - t403;
        io.out(30, t405);
        const V t406 = t404 + t403;
        io.out(62, t406);
        // spectrum block of 16
        const V t407 = c[2] * t275;
        // spectrum block of 2
        const V t408 = t16 - t407;
        const V t409 = t16 + t407;
        // complex block of 2
        const V t410 = t226 + t233;
        // complex block of 2
        const V t411 = t70 + t410;
        const V t412 = t70 - t410;
        // spectrum block of 64
        const V t413 = c[3] * t411;
        const V t414 = c[4] * t411;
        const V t415 = c[6] * t412;
        const V t416 = c[5] * t412;
        // complex block of 2
        const V t417 = t227 - t232;
        // complex block of 2
        const V t418 = t74 + t417;
        const V t419 = t74 - t417;
        // spectrum block of 64
        const V t420 = c[4] * t418;
        const V t421 = c[3] * t418;
        const V t422 = c[5] * t419;
        const V t423 = c[6] * t419;
        // mirrored skew block of 8
        const V t424 = c[0] * t160;
        const V t425 = c[1] * t164;
        const V t426 = t425 - t424;
        const V t427 = c[0] * t164;
        const V t428 = c[1] * t160;
        const V t429 = t428 + t427;
        // spectrum block of 64
        const V t430 = t420 - t413;
        // spectrum block of 2
        const V t431 = t408 + t426;
        // spectrum block of 2
        const V t432 = t431 + t430;
        io.out(2, t432);
        const V t433 = t431 - t430;
        io.out(34, t433);
        // spectrum block of 64
        const V t434 = t414 + t421;
        // spectrum block of 2
        const V t435 = t408 - t426;
        // spectrum block of 2
        const V t436 = t435 - t434;
        io.out(18, t436);
        const V t437 = t435 + t434;
        io.out(50, t437);
        // spectrum block of 64
        const V t438 = t422 - t415;
        // spectrum block of 2
        const V t439 = t409 - t429;
        // spectrum block of 2
        const V t440 = t439 + t438;
        io.out(10, t440);
        const V t441 = t439 - t438;
        io.out(42, t441);
        // spectrum block of 64
        const V t442 = t416 + t423;
        // spectrum block of 2
        const V t443 = t409 + t429;
        // spectrum block of 2
        const V t444 = t443 - t442;
        io.out(26, t444);
        const V t445 = t443 + t442;
        io.out(58, t445);
        // spectrum block of 16
        const V t446 = t286 - t283;
        // spectrum block of 2
        const V t447 = t19 - t23;
        // spectrum block of 2
        const V t448 = t447 + t446;
        const V t449 = t447 - t446;
        // spectrum block of 16
        const V t450 = t284 + t287;
        // spectrum block of 2
        const V t451 = t19 + t23;
        // spectrum block of 2
        const V t452 = t451 - t450;
        const V t453 = t451 + t450;
        // complex block of 8
        const V t454 = t238 + t243;
        const V t455 = t253 - t248;
        // complex block of 2
        const V t456 = t454 + t455;
        const V t457 = t454 - t455;
        // complex block of 2
        const V t458 = t55 + t87;
        const V t459 = t59 + t86;
        // complex block of 2
        const V t460 = t458 + t456;
        const V t461 = t458 - t456;
        // complex block of 2
        const V t462 = t459 - t457;
        const V t463 = t459 + t457;
        // complex block of 8
        const V t464 = t243 - t238;
        const V t465 = t248 + t253;
        // complex block of 2
        const V t466 = t464 - t465;
        const V t467 = t464 + t465;
        // complex block of 2
        const V t468 = t59 - t86;
        const V t469 = t55 - t87;
        // complex block of 2
        const V t470 = t468 + t466;
        const V t471 = t468 - t466;
        // complex block of 2
        const V t472 = t469 + t467;
        const V t473 = t469 - t467;
        // complex block of 2
        const V t474 = t135 + t143;
        // mirrored skew block of 8
        const V t475 = c[0] * t474;
        const V t476 = c[1] * t474;
        // complex block of 2
        const V t477 = t127 - t151;
        // mirrored skew block of 8
        const V t478 = c[1] * t477;
        const V t479 = c[0] * t477;
        const V t480 = t478 - t475;
        const V t481 = t476 + t479;
        // complex block of 2
        const V t482 = t135 - t143;
        // mirrored skew block of 8
        const V t483 = c[1] * t482;
        const V t484 = c[0] * t482;
        // complex block of 2
        const V t485 = t127 + t151;
        // mirrored skew block of 8
        const V t486 = c[0] * t485;
        const V t487 = c[1] * t485;
        const V t488 = t486 - t483;
        const V t489 = t484 + t487;
        // spectrum block of 64
        const V t490 = c[14] * t460;
        const V t491 = c[13] * t470;
        const V t492 = t491 - t490;
        // spectrum block of 2
        const V t493 = t448 + t480;
        // spectrum block of 2
        const V t494 = t493 + t492;
        io.out(3, t494);
        const V t495 = t493 - t492;
        io.out(35, t495);
        // spectrum block of 64
        const V t496 = c[14] * t470;
        const V t497 = c[13] * t460;
        const V t498 = t497 + t496;
        // spectrum block of 2
        const V t499 = t448 - t480;
        // spectrum block of 2
        const V t500 = t499 - t498;
        io.out(19, t500);
        const V t501 = t499 + t498;
        io.out(51, t501);
        // spectrum block of 64
        const V t502 = c[10] * t472;
        const V t503 = c[9] * t462;
        const V t504 = t503 - t502;
        // spectrum block of 2
        const V t505 = t452 + t488;
        // spectrum block of 2
        const V t506 = t505 + t504;
        io.out(7, t506);
        const V t507 = t505 - t504;
        io.out(39, t507);
        // spectrum block of 64
        const V t508 = c[10] * t462;
        const V t509 = c[9] * t472;
        const V t510 = t509 + t508;
        // spectrum block of 2
        const V t511 = t452 - t488;
        // spectrum block of 2
        const V t512 = t511 - t510;
        io.out(23, t512);
        const V t513 = t511 + t510;
        io.out(55, t513);
        // spectrum block of 64
        const V t514 = c[12] * t461;
        const V t515 = c[11] * t471;
        const V t516 = t515 - t514;
        // spectrum block of 2
        const V t517 = t449 - t481;
        // spectrum block of 2
        const V t518 = t517 + t516;
        io.out(11, t518);
        const V t519 = t517 - t516;
        io.out(43, t519);
        // spectrum block of 64
        const V t520 = c[12] * t471;
        const V t521 = c[11] * t461;
        const V t522 = t521 + t520;
        // spectrum block of 2
        const V t523 = t449 + t481;
        // spectrum block of 2
        const V t524 = t523 - t522;
        io.out(27, t524);
        const V t525 = t523 + t522;
        io.out(59, t525);
        // spectrum block of 64
        const V t526 = c[8] * t473;
        const V t527 = c[7] * t463;
        const V t528 = t527 - t526;
        // spectrum block of 2
        const V t529 = t453 - t489;
        // spectrum block of 2
        const V t530 = t529 + t528;
        io.out(15, t530);
        const V t531 = t529 - t528;
        io.out(47, t531);
        // spectrum block of 64
        const V t532 = c[8] * t463;
        const V t533 = c[7] * t473;
        const V t534 = t533 + t532;
        // spectrum block of 2
        const V t535 = t453 + t489;
        // spectrum block of 2
        const V t536 = t535 - t534;
        io.out(31, t536);
        const V t537 = t535 + t534;
        io.out(63, t537);
        // spectrum block of 2
        const V t538 = t12 + t271;
        // complex block of 2
        const V t539 = t155 + t156;
        // spectrum block of 2
        const V t540 = t538 + t539;
        const V t541 = t538 - t539;
        // complex block of 2
        const V t542 = t62 + t216;
        const V t543 = t66 + t220;
        // spectrum block of 2
        const V t544 = t540 + t543;
        io.out(0, t544);
        const V t545 = t540 - t543;
        io.out(32, t545);
        // spectrum block of 2
        const V t546 = t541 - t542;
        io.out(16, t546);
        const V t547 = t541 + t542;
        io.out(48, t547);
        // spectrum block of 2
        const V t548 = t12 - t271;
        // complex block of 2
        const V t549 = t152 + t153;
        // spectrum block of 2
        const V t550 = t548 - t549;
        const V t551 = t548 + t549;
        // complex block of 2
        const V t552 = t62 - t216;
        const V t553 = t66 - t220;
        // spectrum block of 64
        const V t554 = t553 + t552;
        const V t555 = t552 - t553;
        const V t556 = c[2] * t554;
        // spectrum block of 2
        const V t557 = t551 - t556;
        io.out(24, t557);
        const V t558 = t551 + t556;
        io.out(56, t558);
        // spectrum block of 64
        const V t559 = c[2] * t555;
        // spectrum block of 2
        const V t560 = t550 - t559;
        io.out(8, t560);
        const V t561 = t550 + t559;
        io.out(40, t561);
        // spectrum block of 2
        const V t562 = t13 - t270;
        const V t563 = t13 + t270;
        // complex block of 2
        const V t564 = t63 + t221;
        // spectrum block of 64
        const V t565 = c[0] * t564;
        const V t566 = c[1] * t564;
        // complex block of 2
        const V t567 = t67 - t217;
        // spectrum block of 64
        const V t568 = c[1] * t567;
        const V t569 = c[0] * t567;
        // complex block of 2
        const V t570 = t63 - t221;
        // spectrum block of 64
        const V t571 = c[1] * t570;
        const V t572 = c[0] * t570;
        // complex block of 2
        const V t573 = t67 + t217;
        // spectrum block of 64
        const V t574 = c[0] * t573;
        const V t575 = c[1] * t573;
        // mirrored skew block of 8
        const V t576 = c[2] * t157;
        const V t577 = c[2] * t154;
        const V t578 = t576 + t577;
        const V t579 = t577 - t576;
        // spectrum block of 64
        const V t580 = t568 - t565;
        // spectrum block of 2
        const V t581 = t562 - t579;
        // spectrum block of 2
        const V t582 = t581 + t580;
        io.out(4, t582);
        const V t583 = t581 - t580;
        io.out(36, t583);
        // spectrum block of 64
        const V t584 = t566 + t569;
        // spectrum block of 2
        const V t585 = t562 + t579;
        // spectrum block of 2
        const V t586 = t585 - t584;
        io.out(20, t586);
        const V t587 = t585 + t584;
        io.out(52, t587);
        // spectrum block of 64
        const V t588 = t574 - t571;
        // spectrum block of 2
        const V t589 = t563 - t578;
        // spectrum block of 2
        const V t590 = t589 + t588;
        io.out(12, t590);
        const V t591 = t589 - t588;
        io.out(44, t591);
        // spectrum block of 64
        const V t592 = t572 + t575;
        // spectrum block of 2
        const V t593 = t563 + t578;
        // spectrum block of 2
        const V t594 = t593 - t592;
        io.out(28, t594);
        const V t595 = t593 + t592;
        io.out(60, t595);
    }
};

}  // namespace zulg
