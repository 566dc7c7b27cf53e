// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 48.
// Inverse DFT to 48 real points, prime-factor 16, 3.
// 135 additions, 135 subtractions, 118 multiplications (166 with `scale`); 6 constants; 57 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<48> {
    static constexpr int steps = 436;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.3826834323650898,  // c[3]: cos 2 pi 13/16
        0.9238795325112867,  // c[4]: -sin 2 pi 13/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x24r = io.re(24);
        const V t0 = x0r + x24r;
        const V t1 = x0r - x24r;
        // doubled bins
        const V x6r = io.re(6);
        const V t2 = two * x6r;
        const V x18r = io.re(18);
        const V t3 = two * x18r;
        // mirrored skew block of 4, multiplier 3
        const V t4 = t3 - t2;
        // doubled bins
        const V x6i = io.im(6);
        const V t5 = two * x6i;
        const V x18i = io.im(18);
        const V t6 = two * x18i;
        // mirrored skew block of 4, multiplier 3
        const V t7 = t6 + t5;
        // doubled bins
        const V x12r = io.re(12);
        const V t8 = two * x12r;
        const V x12i = io.im(12);
        const V t9 = two * x12i;
        // spectrum block of 2
        const V t10 = t0 + t8;
        // mirrored skew block of 4, multiplier 3
        const V t11 = t3 + t2;
        // spectrum block of 2
        const V t12 = t10 + t11;
        const V t13 = t10 - t11;
        // spectrum block of 2
        const V t14 = t0 - t8;
        // mirrored skew block of 4, multiplier 3
        const V t15 = t6 - t5;
        // spectrum block of 2
        const V t16 = t14 - t15;
        const V t17 = t14 + t15;
        // spectrum block of 2
        const V t18 = t1 + t9;
        const V t19 = t1 - t9;
        // mirrored skew block of 4, multiplier 3
        const V t20 = c[0] * t4;
        const V t21 = c[0] * t7;
        const V t22 = t20 - t21;
        const V t23 = t20 + t21;
        // doubled bins
        const V x1r = io.re(1);
        const V t24 = two * x1r;
        const V x23r = io.re(23);
        const V t25 = two * x23r;
        // complex block of 2
        const V t26 = t25 + t24;
        const V t27 = t25 - t24;
        // complex block of 16, multiplier 3
        const V t28 = c[3] * t27;
        const V t29 = c[4] * t27;
        // doubled bins
        const V x1i = io.im(1);
        const V t30 = two * x1i;
        const V x23i = io.im(23);
        const V t31 = two * x23i;
        // complex block of 2
        const V t32 = t30 - t31;
        const V t33 = t31 + t30;
        // complex block of 16, multiplier 3
        const V t34 = c[4] * t33;
        const V t35 = c[3] * t33;
        // doubled bins
        const V x5r = io.re(5);
        const V t36 = two * x5r;
        const V x19r = io.re(19);
        const V t37 = two * x19r;
        // complex block of 2
        const V t38 = t37 + t36;
        const V t39 = t37 - t36;
        // complex block of 16, multiplier 3
        const V t40 = c[4] * t39;
        const V t41 = c[3] * t39;
        // doubled bins
        const V x5i = io.im(5);
        const V t42 = two * x5i;
        const V x19i = io.im(19);
        const V t43 = two * x19i;
        // complex block of 2
        const V t44 = t43 - t42;
        const V t45 = t43 + t42;
        // complex block of 16, multiplier 3
        const V t46 = c[3] * t45;
        const V t47 = c[4] * t45;
        // doubled bins
        const V x7r = io.re(7);
        const V t48 = two * x7r;
        const V x17r = io.re(17);
        const V t49 = two * x17r;
        // complex block of 2
        const V t50 = t49 + t48;
        const V t51 = t49 - t48;
        // complex block of 16, multiplier 3
        const V t52 = c[3] * t51;
        const V t53 = c[4] * t51;
        // doubled bins
        const V x7i = io.im(7);
        const V t54 = two * x7i;
        const V x17i = io.im(17);
        const V t55 = two * x17i;
        // complex block of 2
        const V t56 = t54 - t55;
        const V t57 = t55 + t54;
        // complex block of 16, multiplier 3
        const V t58 = c[4] * t57;
        const V t59 = c[3] * t57;
        // doubled bins
        const V x11r = io.re(11);
        const V t60 = two * x11r;
        const V x13r = io.re(13);
        const V t61 = two * x13r;
        // complex block of 2
        const V t62 = t60 + t61;
        const V t63 = t60 - t61;
        // complex block of 16, multiplier 3
        const V t64 = c[4] * t63;
        const V t65 = c[3] * t63;
        // doubled bins
        const V x11i = io.im(11);
        const V t66 = two * x11i;
        const V x13i = io.im(13);
        const V t67 = two * x13i;
        // complex block of 2
        const V t68 = t67 - t66;
        const V t69 = t66 + t67;
        // complex block of 16, multiplier 3
        const V t70 = c[3] * t69;
        const V t71 = c[4] * t69;
        // complex block of 2
        const V t72 = t44 + t56;
        // complex block of 2
        const V t73 = t32 + t68;
        // complex block of 2
        const V t74 = t72 - t73;
        // complex block of 2
        const V t75 = t38 + t50;
        // complex block of 2
        const V t76 = t26 + t62;
        // complex block of 2
        const V t77 = t75 + t76;
        // complex block of 2
        const V t78 = t44 - t56;
        // complex block of 8, multiplier 3
        const V t79 = c[0] * t78;
        // complex block of 2
        const V t80 = t38 - t50;
        // complex block of 8, multiplier 3
        const V t81 = c[0] * t80;
        const V t82 = t79 + t81;
        const V t83 = t81 - t79;
        // complex block of 2
        const V t84 = t32 - t68;
        // complex block of 8, multiplier 3
        const V t85 = c[0] * t84;
        // complex block of 2
        const V t86 = t26 - t62;
        // complex block of 8, multiplier 3
        const V t87 = c[0] * t86;
        const V t88 = t85 + t87;
        const V t89 = t87 - t85;
        // complex block of 16, multiplier 3
        const V t90 = t46 + t40;
        const V t91 = t58 + t52;
        // complex block of 2
        const V t92 = t90 + t91;
        const V t93 = t90 - t91;
        // complex block of 8, multiplier 3
        const V t94 = c[0] * t92;
        // complex block of 16, multiplier 3
        const V t95 = t41 - t47;
        const V t96 = t53 - t59;
        // complex block of 2
        const V t97 = t95 - t96;
        const V t98 = t95 + t96;
        // complex block of 8, multiplier 3
        const V t99 = c[0] * t97;
        // complex block of 16, multiplier 3
        const V t100 = t34 - t28;
        const V t101 = t70 + t64;
        // complex block of 2
        const V t102 = t100 - t101;
        const V t103 = t100 + t101;
        // complex block of 8, multiplier 3
        const V t104 = c[0] * t102;
        // complex block of 16, multiplier 3
        const V t105 = t29 + t35;
        const V t106 = t71 - t65;
        // complex block of 2
        const V t107 = t105 + t106;
        const V t108 = t106 - t105;
        // complex block of 8, multiplier 3
        const V t109 = c[0] * t107;
        // doubled bins
        const V x2r = io.re(2);
        const V t110 = two * x2r;
        const V x22r = io.re(22);
        const V t111 = two * x22r;
        // complex block of 2
        const V t112 = t111 + t110;
        const V t113 = t111 - t110;
        // doubled bins
        const V x2i = io.im(2);
        const V t114 = two * x2i;
        const V x22i = io.im(22);
        const V t115 = two * x22i;
        // complex block of 2
        const V t116 = t115 - t114;
        const V t117 = t115 + t114;
        // doubled bins
        const V x4r = io.re(4);
        const V t118 = two * x4r;
        const V x20r = io.re(20);
        const V t119 = two * x20r;
        // complex block of 2
        const V t120 = t119 + t118;
        // doubled bins
        const V x4i = io.im(4);
        const V t121 = two * x4i;
        const V x8r = io.re(8);
        const V t122 = two * x8r;
        const V x16r = io.re(16);
        const V t123 = two * x16r;
        // complex block of 2
        const V t124 = t123 + t122;
        // doubled bins
        const V x8i = io.im(8);
        const V t125 = two * x8i;
        const V x10r = io.re(10);
        const V t126 = two * x10r;
        const V x14r = io.re(14);
        const V t127 = two * x14r;
        // complex block of 2
        const V t128 = t127 + t126;
        const V t129 = t127 - t126;
        // doubled bins
        const V x10i = io.im(10);
        const V t130 = two * x10i;
        const V x14i = io.im(14);
        const V t131 = two * x14i;
        // complex block of 2
        const V t132 = t130 - t131;
        const V t133 = t131 + t130;
        // doubled bins
        const V x16i = io.im(16);
        const V t134 = two * x16i;
        const V x20i = io.im(20);
        const V t135 = two * x20i;
        // complex block of 2
        const V t136 = t134 - t125;
        // complex block of 2
        const V t137 = t121 - t135;
        // complex block of 2
        const V t138 = t136 + t137;
        const V t139 = t136 - t137;
        // complex block of 2
        const V t140 = t134 + t125;
        // complex block of 2
        const V t141 = t119 - t118;
        // complex block of 2
        const V t142 = t140 - t141;
        const V t143 = t140 + t141;
        // complex block of 2
        const V t144 = t123 - t122;
        // complex block of 2
        const V t145 = t135 + t121;
        // complex block of 2
        const V t146 = t144 - t145;
        const V t147 = t144 + t145;
        // complex block of 2
        const V t148 = t124 + t120;
        // complex block of 2
        const V t149 = t112 + t128;
        // complex block of 2
        const V t150 = t148 + t149;
        const V t151 = t148 - t149;
        // complex block of 2
        const V t152 = t124 - t120;
        // complex block of 2
        const V t153 = t116 - t132;
        // complex block of 2
        const V t154 = t152 + t153;
        const V t155 = t152 - t153;
        // complex block of 2
        const V t156 = t116 + t132;
        const V t157 = t112 - t128;
        // complex block of 16, multiplier 3
        const V t158 = c[0] * t117;
        const V t159 = c[0] * t113;
        const V t160 = t158 + t159;
        const V t161 = t159 - t158;
        const V t162 = c[0] * t133;
        const V t163 = c[0] * t129;
        const V t164 = t163 - t162;
        const V t165 = t163 + t162;
        // complex block of 2
        const V t166 = t165 - t160;
        const V t167 = t161 - t164;
        // doubled bins
        const V x3r = io.re(3);
        const V t168 = two * x3r;
        const V x21r = io.re(21);
        const V t169 = two * x21r;
        // complex block of 2
        const V t170 = t168 + t169;
        const V t171 = t168 - t169;
        // doubled bins
        const V x3i = io.im(3);
        const V t172 = two * x3i;
        const V x21i = io.im(21);
        const V t173 = two * x21i;
        // complex block of 2
        const V t174 = t172 - t173;
        const V t175 = t172 + t173;
        // doubled bins
        const V x9r = io.re(9);
        const V t176 = two * x9r;
        const V x15r = io.re(15);
        const V t177 = two * x15r;
        // complex block of 2
        const V t178 = t177 + t176;
        const V t179 = t177 - t176;
        // doubled bins
        const V x9i = io.im(9);
        const V t180 = two * x9i;
        const V x15i = io.im(15);
        const V t181 = two * x15i;
        // complex block of 2
        const V t182 = t181 - t180;
        const V t183 = t181 + t180;
        // complex block of 2
        const V t184 = t174 + t182;
        const V t185 = t170 + t178;
        const V t186 = t174 - t182;
        const V t187 = t170 - t178;
        // spectrum block of 16, multiplier 3
        const V t188 = t187 + t186;
        const V t189 = t186 - t187;
        // complex block of 2
        const V t190 = t175 - t179;
        // spectrum block of 16, multiplier 3
        const V t191 = c[4] * t190;
        const V t192 = c[3] * t190;
        // complex block of 2
        const V t193 = t171 + t183;
        // spectrum block of 16, multiplier 3
        const V t194 = c[3] * t193;
        const V t195 = c[4] * t193;
        // complex block of 2
        const V t196 = t175 + t179;
        // spectrum block of 16, multiplier 3
        const V t197 = c[3] * t196;
        const V t198 = c[4] * t196;
        // complex block of 2
        const V t199 = t171 - t183;
        // spectrum block of 16, multiplier 3
        const V t200 = c[4] * t199;
        const V t201 = c[3] * t199;
        const V t202 = t194 - t191;
        // spectrum block of 2
        const V t203 = t18 + t22;
        // spectrum block of 2
        const V t204 = t203 + t202;
        const V t205 = t203 - t202;
        // spectrum block of 16, multiplier 3
        const V t206 = t192 + t195;
        // spectrum block of 2
        const V t207 = t18 - t22;
        // spectrum block of 2
        const V t208 = t207 + t206;
        const V t209 = t207 - t206;
        // complex block of 2
        const V t210 = t161 + t164;
        // complex block of 2
        const V t211 = t142 + t210;
        const V t212 = t142 - t210;
        // complex block of 2
        const V t213 = t93 + t103;
        const V t214 = t98 - t108;
        // complex block of 2
        const V t215 = t211 + t213;
        const V t216 = t211 - t213;
        // complex block of 2
        const V t217 = t212 - t214;
        const V t218 = t212 + t214;
        // complex block of 2
        const V t219 = t146 + t166;
        // complex block of 2
        const V t220 = t98 + t108;
        // complex block of 2
        const V t221 = t219 + t220;
        const V t222 = t219 - t220;
        // spectrum block of 3
        const V t223 = c[1] * t221;
        // spectrum block of 3
        const V t224 = c[1] * t222;
        // complex block of 2
        const V t225 = t146 - t166;
        // complex block of 2
        const V t226 = t93 - t103;
        // complex block of 2
        const V t227 = t225 + t226;
        const V t228 = t225 - t226;
        // spectrum block of 3
        const V t229 = c[1] * t227;
        // spectrum block of 3
        const V t230 = c[1] * t228;
        // spectrum block of 3
        const V t231 = t221 + t204;
        io.out(3, t231);
        const V t232 = t204 - t223;
        const V t233 = c[2] * t215;
        const V t234 = t232 - t233;
        io.out(19, t234);
        const V t235 = t232 + t233;
        io.out(35, t235);
        // spectrum block of 3
        const V t236 = t227 + t208;
        io.out(15, t236);
        const V t237 = t208 - t229;
        const V t238 = c[2] * t217;
        const V t239 = t237 - t238;
        io.out(31, t239);
        const V t240 = t237 + t238;
        io.out(47, t240);
        // spectrum block of 3
        const V t241 = t222 + t205;
        io.out(27, t241);
        const V t242 = t205 - t224;
        const V t243 = c[2] * t216;
        const V t244 = t242 - t243;
        io.out(43, t244);
        const V t245 = t242 + t243;
        io.out(11, t245);
        // spectrum block of 3
        const V t246 = t228 + t209;
        io.out(39, t246);
        const V t247 = t209 - t230;
        const V t248 = c[2] * t218;
        const V t249 = t247 - t248;
        io.out(7, t249);
        const V t250 = t247 + t248;
        io.out(23, t250);
        // spectrum block of 16, multiplier 3
        const V t251 = c[0] * t188;
        // spectrum block of 2
        const V t252 = t16 - t251;
        const V t253 = t16 + t251;
        // complex block of 2
        const V t254 = t139 - t157;
        // complex block of 2
        const V t255 = t83 + t88;
        // complex block of 2
        const V t256 = t254 + t255;
        const V t257 = t254 - t255;
        // complex block of 2
        const V t258 = t89 - t82;
        // complex block of 2
        const V t259 = t154 + t258;
        const V t260 = t154 - t258;
        // spectrum block of 3
        const V t261 = c[1] * t259;
        // spectrum block of 3
        const V t262 = c[1] * t260;
        // spectrum block of 3
        const V t263 = t259 + t252;
        io.out(6, t263);
        const V t264 = t252 - t261;
        const V t265 = c[2] * t256;
        const V t266 = t264 - t265;
        io.out(22, t266);
        const V t267 = t264 + t265;
        io.out(38, t267);
        // spectrum block of 3
        const V t268 = t260 + t253;
        io.out(30, t268);
        const V t269 = t253 - t262;
        const V t270 = c[2] * t257;
        const V t271 = t269 - t270;
        io.out(46, t271);
        const V t272 = t269 + t270;
        io.out(14, t272);
        // spectrum block of 16, multiplier 3
        const V t273 = c[0] * t189;
        // spectrum block of 2
        const V t274 = t17 - t273;
        const V t275 = t17 + t273;
        // complex block of 2
        const V t276 = t139 + t157;
        // complex block of 2
        const V t277 = t82 + t89;
        // complex block of 2
        const V t278 = t276 + t277;
        const V t279 = t276 - t277;
        // complex block of 2
        const V t280 = t83 - t88;
        // complex block of 2
        const V t281 = t155 + t280;
        const V t282 = t155 - t280;
        // spectrum block of 3
        const V t283 = c[1] * t281;
        // spectrum block of 3
        const V t284 = c[1] * t282;
        // spectrum block of 3
        const V t285 = t281 + t274;
        io.out(18, t285);
        const V t286 = t274 - t283;
        const V t287 = c[2] * t278;
        const V t288 = t286 - t287;
        io.out(34, t288);
        const V t289 = t286 + t287;
        io.out(2, t289);
        // spectrum block of 3
        const V t290 = t282 + t275;
        io.out(42, t290);
        const V t291 = t275 - t284;
        const V t292 = c[2] * t279;
        const V t293 = t291 - t292;
        io.out(10, t293);
        const V t294 = t291 + t292;
        io.out(26, t294);
        // spectrum block of 16, multiplier 3
        const V t295 = t197 - t200;
        // spectrum block of 2
        const V t296 = t19 - t23;
        // spectrum block of 2
        const V t297 = t296 + t295;
        const V t298 = t296 - t295;
        // spectrum block of 16, multiplier 3
        const V t299 = t198 + t201;
        // spectrum block of 2
        const V t300 = t19 + t23;
        // spectrum block of 2
        const V t301 = t300 - t299;
        const V t302 = t300 + t299;
        // complex block of 2
        const V t303 = t160 + t165;
        // complex block of 2
        const V t304 = t143 + t303;
        const V t305 = t143 - t303;
        // complex block of 8, multiplier 3
        const V t306 = t94 + t99;
        const V t307 = t109 + t104;
        // complex block of 2
        const V t308 = t306 + t307;
        const V t309 = t307 - t306;
        // complex block of 8, multiplier 3
        const V t310 = t99 - t94;
        const V t311 = t104 - t109;
        // complex block of 2
        const V t312 = t310 + t311;
        const V t313 = t310 - t311;
        // complex block of 2
        const V t314 = t147 + t167;
        const V t315 = t147 - t167;
        // complex block of 2
        const V t316 = t304 + t312;
        const V t317 = t314 - t308;
        const V t318 = t304 - t312;
        const V t319 = t314 + t308;
        // complex block of 2
        const V t320 = t305 - t309;
        const V t321 = t315 + t313;
        const V t322 = t305 + t309;
        const V t323 = t315 - t313;
        // spectrum block of 3
        const V t324 = t317 + t297;
        io.out(9, t324);
        const V t325 = c[1] * t317;
        const V t326 = t297 - t325;
        const V t327 = c[2] * t316;
        const V t328 = t326 - t327;
        io.out(25, t328);
        const V t329 = t326 + t327;
        io.out(41, t329);
        // spectrum block of 3
        const V t330 = t321 + t301;
        io.out(21, t330);
        const V t331 = c[1] * t321;
        const V t332 = t301 - t331;
        const V t333 = c[2] * t320;
        const V t334 = t332 - t333;
        io.out(37, t334);
        const V t335 = t332 + t333;
        io.out(5, t335);
        // spectrum block of 3
        const V t336 = t319 + t298;
        io.out(33, t336);
        const V t337 = c[1] * t319;
        const V t338 = t298 - t337;
        const V t339 = c[2] * t318;
        const V t340 = t338 - t339;
        io.out(1, t340);
        const V t341 = t338 + t339;
        io.out(17, t341);
        // spectrum block of 3
        const V t342 = t323 + t302;
        io.out(45, t342);
        const V t343 = c[1] * t323;
        const V t344 = t302 - t343;
        const V t345 = c[2] * t322;
        const V t346 = t344 - t345;
        io.out(13, t346);
        const V t347 = t344 + t345;
        io.out(29, t347);
        // spectrum block of 2
        const V t348 = t12 + t185;
        const V t349 = t12 - t185;
        // complex block of 2
        const V t350 = t138 + t156;
        // complex block of 2
        const V t351 = t72 + t73;
        // complex block of 2
        const V t352 = t350 + t351;
        const V t353 = t350 - t351;
        const V t354 = t150 + t77;
        // spectrum block of 3
        const V t355 = c[1] * t354;
        // complex block of 2
        const V t356 = t150 - t77;
        // spectrum block of 3
        const V t357 = c[1] * t356;
        // spectrum block of 3
        const V t358 = t354 + t348;
        io.out(0, t358);
        const V t359 = t348 - t355;
        const V t360 = c[2] * t352;
        const V t361 = t359 - t360;
        io.out(16, t361);
        const V t362 = t359 + t360;
        io.out(32, t362);
        // spectrum block of 3
        const V t363 = t356 + t349;
        io.out(24, t363);
        const V t364 = t349 - t357;
        const V t365 = c[2] * t353;
        const V t366 = t364 - t365;
        io.out(40, t366);
        const V t367 = t364 + t365;
        io.out(8, t367);
        // spectrum block of 2
        const V t368 = t13 + t184;
        const V t369 = t13 - t184;
        // complex block of 2
        const V t370 = t138 - t156;
        // complex block of 2
        const V t371 = t75 - t76;
        // complex block of 2
        const V t372 = t370 - t371;
        const V t373 = t370 + t371;
        const V t374 = t151 + t74;
        // spectrum block of 3
        const V t375 = c[1] * t374;
        // complex block of 2
        const V t376 = t151 - t74;
        // spectrum block of 3
        const V t377 = c[1] * t376;
        // spectrum block of 3
        const V t378 = t374 + t368;
        io.out(12, t378);
        const V t379 = t368 - t375;
        const V t380 = c[2] * t372;
        const V t381 = t379 - t380;
        io.out(28, t381);
        const V t382 = t379 + t380;
        io.out(44, t382);
        // spectrum block of 3
        const V t383 = t376 + t369;
        io.out(36, t383);
        const V t384 = t369 - t377;
        const V t385 = c[2] * t373;
        const V t386 = t384 - t385;
        io.out(4, t386);
        const V t387 = t384 + t385;
        io.out(20, t387);
    }
};

}  // namespace zulg
