// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 60.
// Inverse DFT to 60 real points, prime-factor 4, 3, 5.
// 199 additions, 175 subtractions, 194 multiplications (254 with `scale`); 7 constants; 85 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<60> {
    static constexpr int steps = 628;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x30r = io.re(30);
        const V t0 = x0r + x30r;
        const V t1 = x0r - x30r;
        // doubled bins
        const V x15r = io.re(15);
        const V t2 = two * x15r;
        const V x15i = io.im(15);
        const V t3 = two * x15i;
        // spectrum block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // spectrum block of 2
        const V t6 = t1 + t3;
        const V t7 = t1 - t3;
        // doubled bins
        const V x1r = io.re(1);
        const V t8 = two * x1r;
        const V x29r = io.re(29);
        const V t9 = two * x29r;
        // complex block of 2
        const V t10 = t9 + t8;
        const V t11 = t9 - t8;
        // doubled bins
        const V x1i = io.im(1);
        const V t12 = two * x1i;
        const V x29i = io.im(29);
        const V t13 = two * x29i;
        // complex block of 2
        const V t14 = t12 - t13;
        const V t15 = t13 + t12;
        // doubled bins
        const V x4r = io.re(4);
        const V t16 = two * x4r;
        const V x26r = io.re(26);
        const V t17 = two * x26r;
        // complex block of 2
        const V t18 = t16 + t17;
        const V t19 = t16 - t17;
        // doubled bins
        const V x4i = io.im(4);
        const V t20 = two * x4i;
        const V x26i = io.im(26);
        const V t21 = two * x26i;
        // complex block of 2
        const V t22 = t20 - t21;
        const V t23 = t20 + t21;
        // doubled bins
        const V x11r = io.re(11);
        const V t24 = two * x11r;
        const V x19r = io.re(19);
        const V t25 = two * x19r;
        // complex block of 2
        const V t26 = t25 + t24;
        const V t27 = t25 - t24;
        // doubled bins
        const V x11i = io.im(11);
        const V t28 = two * x11i;
        const V x19i = io.im(19);
        const V t29 = two * x19i;
        // complex block of 2
        const V t30 = t29 - t28;
        const V t31 = t29 + t28;
        // doubled bins
        const V x14r = io.re(14);
        const V t32 = two * x14r;
        const V x16r = io.re(16);
        const V t33 = two * x16r;
        // complex block of 2
        const V t34 = t33 + t32;
        const V t35 = t33 - t32;
        // doubled bins
        const V x14i = io.im(14);
        const V t36 = two * x14i;
        const V x16i = io.im(16);
        const V t37 = two * x16i;
        // complex block of 2
        const V t38 = t37 - t36;
        const V t39 = t37 + t36;
        // complex block of 2
        const V t40 = t22 + t30;
        // complex block of 2
        const V t41 = t38 + t14;
        // complex block of 3, multiplier 2
        const V t42 = t40 - t41;
        const V t43 = t41 + t40;
        const V t44 = c[4] * t42;
        const V t45 = c[5] * t43;
        // complex block of 2
        const V t46 = t18 + t26;
        // complex block of 2
        const V t47 = t34 + t10;
        // complex block of 3, multiplier 2
        const V t48 = t47 + t46;
        const V t49 = t47 - t46;
        const V t50 = c[4] * t48;
        // complex block of 2
        const V t51 = t22 - t30;
        // complex block of 2
        const V t52 = t38 - t14;
        // complex block of 3, multiplier 2
        const V t53 = t51 - t52;
        const V t54 = t52 + t51;
        const V t55 = c[4] * t53;
        const V t56 = c[5] * t54;
        // complex block of 2
        const V t57 = t18 - t26;
        // complex block of 2
        const V t58 = t34 - t10;
        // complex block of 3, multiplier 2
        const V t59 = t58 + t57;
        const V t60 = t58 - t57;
        const V t61 = c[4] * t59;
        // complex block of 2
        const V t62 = t23 - t27;
        // complex block of 2
        const V t63 = t39 - t11;
        // complex block of 3, multiplier 2
        const V t64 = t62 - t63;
        const V t65 = t63 + t62;
        const V t66 = c[4] * t64;
        const V t67 = c[5] * t65;
        // complex block of 2
        const V t68 = t19 + t31;
        // complex block of 2
        const V t69 = t35 - t15;
        // complex block of 3, multiplier 2
        const V t70 = t69 + t68;
        const V t71 = t69 - t68;
        const V t72 = c[4] * t70;
        // complex block of 2
        const V t73 = t23 + t27;
        // complex block of 2
        const V t74 = t39 + t11;
        // complex block of 3, multiplier 2
        const V t75 = t73 - t74;
        const V t76 = t74 + t73;
        const V t77 = c[4] * t75;
        const V t78 = c[5] * t76;
        // complex block of 2
        const V t79 = t19 - t31;
        // complex block of 2
        const V t80 = t35 + t15;
        // complex block of 3, multiplier 2
        const V t81 = t80 + t79;
        const V t82 = t80 - t79;
        const V t83 = c[4] * t81;
        // doubled bins
        const V x2r = io.re(2);
        const V t84 = two * x2r;
        const V x28r = io.re(28);
        const V t85 = two * x28r;
        // complex block of 2
        const V t86 = t85 + t84;
        const V t87 = t85 - t84;
        // doubled bins
        const V x2i = io.im(2);
        const V t88 = two * x2i;
        const V x28i = io.im(28);
        const V t89 = two * x28i;
        // complex block of 2
        const V t90 = t89 - t88;
        const V t91 = t89 + t88;
        // doubled bins
        const V x7r = io.re(7);
        const V t92 = two * x7r;
        const V x23r = io.re(23);
        const V t93 = two * x23r;
        // complex block of 2
        const V t94 = t93 + t92;
        const V t95 = t93 - t92;
        // doubled bins
        const V x7i = io.im(7);
        const V t96 = two * x7i;
        const V x23i = io.im(23);
        const V t97 = two * x23i;
        // complex block of 2
        const V t98 = t97 - t96;
        const V t99 = t97 + t96;
        // doubled bins
        const V x8r = io.re(8);
        const V t100 = two * x8r;
        const V x22r = io.re(22);
        const V t101 = two * x22r;
        // complex block of 2
        const V t102 = t100 + t101;
        const V t103 = t100 - t101;
        // doubled bins
        const V x8i = io.im(8);
        const V t104 = two * x8i;
        const V x22i = io.im(22);
        const V t105 = two * x22i;
        // complex block of 2
        const V t106 = t104 - t105;
        const V t107 = t104 + t105;
        // doubled bins
        const V x13r = io.re(13);
        const V t108 = two * x13r;
        const V x17r = io.re(17);
        const V t109 = two * x17r;
        // complex block of 2
        const V t110 = t109 + t108;
        const V t111 = t109 - t108;
        // doubled bins
        const V x13i = io.im(13);
        const V t112 = two * x13i;
        const V x17i = io.im(17);
        const V t113 = two * x17i;
        // complex block of 2
        const V t114 = t112 - t113;
        const V t115 = t113 + t112;
        // complex block of 2
        const V t116 = t106 + t98;
        // complex block of 2
        const V t117 = t90 + t114;
        // complex block of 3, multiplier 2
        const V t118 = t117 + t116;
        const V t119 = t116 - t117;
        const V t120 = c[4] * t118;
        const V t121 = c[5] * t119;
        // complex block of 2
        const V t122 = t102 + t94;
        // complex block of 2
        const V t123 = t86 + t110;
        // complex block of 3, multiplier 2
        const V t124 = t123 + t122;
        const V t125 = t123 - t122;
        const V t126 = c[4] * t124;
        // complex block of 2
        const V t127 = t106 - t98;
        // complex block of 2
        const V t128 = t90 - t114;
        // complex block of 3, multiplier 2
        const V t129 = t128 + t127;
        const V t130 = t127 - t128;
        const V t131 = c[4] * t129;
        const V t132 = c[5] * t130;
        // complex block of 2
        const V t133 = t102 - t94;
        // complex block of 2
        const V t134 = t86 - t110;
        // complex block of 3, multiplier 2
        const V t135 = t134 + t133;
        const V t136 = t134 - t133;
        const V t137 = c[4] * t135;
        // complex block of 2
        const V t138 = t107 - t95;
        // complex block of 2
        const V t139 = t91 - t111;
        // complex block of 3, multiplier 2
        const V t140 = t139 + t138;
        const V t141 = t138 - t139;
        const V t142 = c[4] * t140;
        const V t143 = c[5] * t141;
        // complex block of 2
        const V t144 = t103 + t99;
        // complex block of 2
        const V t145 = t87 - t115;
        // complex block of 3, multiplier 2
        const V t146 = t145 + t144;
        const V t147 = t145 - t144;
        const V t148 = c[4] * t146;
        // complex block of 2
        const V t149 = t107 + t95;
        // complex block of 2
        const V t150 = t91 + t111;
        // complex block of 3, multiplier 2
        const V t151 = t150 + t149;
        const V t152 = t149 - t150;
        const V t153 = c[4] * t151;
        const V t154 = c[5] * t152;
        // complex block of 2
        const V t155 = t103 - t99;
        // complex block of 2
        const V t156 = t87 + t115;
        // complex block of 3, multiplier 2
        const V t157 = t156 + t155;
        const V t158 = t156 - t155;
        const V t159 = c[4] * t157;
        // doubled bins
        const V x3r = io.re(3);
        const V t160 = two * x3r;
        const V x3i = io.im(3);
        const V t161 = two * x3i;
        const V x12r = io.re(12);
        const V t162 = two * x12r;
        const V x12i = io.im(12);
        const V t163 = two * x12i;
        const V x18r = io.re(18);
        const V t164 = two * x18r;
        const V x18i = io.im(18);
        const V t165 = two * x18i;
        const V x27r = io.re(27);
        const V t166 = two * x27r;
        const V x27i = io.im(27);
        const V t167 = two * x27i;
        // complex block of 2
        const V t168 = t163 - t165;
        // complex block of 2
        const V t169 = t167 - t161;
        // complex block of 2
        const V t170 = t168 + t169;
        const V t171 = t168 - t169;
        // complex block of 2
        const V t172 = t162 + t164;
        // complex block of 2
        const V t173 = t166 + t160;
        // complex block of 2
        const V t174 = t172 + t173;
        const V t175 = t172 - t173;
        // complex block of 2
        const V t176 = t163 + t165;
        // complex block of 2
        const V t177 = t166 - t160;
        // complex block of 2
        const V t178 = t176 - t177;
        const V t179 = t176 + t177;
        // complex block of 2
        const V t180 = t162 - t164;
        // complex block of 2
        const V t181 = t167 + t161;
        // complex block of 2
        const V t182 = t180 + t181;
        const V t183 = t180 - t181;
        // doubled bins
        const V x5r = io.re(5);
        const V t184 = two * x5r;
        const V x25r = io.re(25);
        const V t185 = two * x25r;
        // complex block of 2
        const V t186 = t185 + t184;
        const V t187 = t185 - t184;
        // doubled bins
        const V x5i = io.im(5);
        const V t188 = two * x5i;
        const V x25i = io.im(25);
        const V t189 = two * x25i;
        // complex block of 2
        const V t190 = t188 - t189;
        const V t191 = t189 + t188;
        // doubled bins
        const V x10r = io.re(10);
        const V t192 = two * x10r;
        const V x20r = io.re(20);
        const V t193 = two * x20r;
        // complex block of 2
        const V t194 = t193 + t192;
        const V t195 = t193 - t192;
        // doubled bins
        const V x10i = io.im(10);
        const V t196 = two * x10i;
        const V x20i = io.im(20);
        const V t197 = two * x20i;
        // complex block of 2
        const V t198 = t197 - t196;
        const V t199 = t197 + t196;
        // complex block of 2
        const V t200 = t198 + t190;
        // spectrum block of 3, multiplier 2
        const V t201 = c[5] * t200;
        // complex block of 2
        const V t202 = t194 + t186;
        // spectrum block of 3, multiplier 2
        const V t203 = c[4] * t202;
        // complex block of 2
        const V t204 = t198 - t190;
        // spectrum block of 3, multiplier 2
        const V t205 = c[5] * t204;
        // complex block of 2
        const V t206 = t194 - t186;
        // spectrum block of 3, multiplier 2
        const V t207 = c[4] * t206;
        // complex block of 2
        const V t208 = t199 - t187;
        // spectrum block of 3, multiplier 2
        const V t209 = c[5] * t208;
        // complex block of 2
        const V t210 = t195 - t191;
        // spectrum block of 3, multiplier 2
        const V t211 = c[4] * t210;
        // complex block of 2
        const V t212 = t199 + t187;
        // spectrum block of 3, multiplier 2
        const V t213 = c[5] * t212;
        // complex block of 2
        const V t214 = t195 + t191;
        // spectrum block of 3, multiplier 2
        const V t215 = c[4] * t214;
        // doubled bins
        const V x6r = io.re(6);
        const V t216 = two * x6r;
        const V x6i = io.im(6);
        const V t217 = two * x6i;
        const V x9r = io.re(9);
        const V t218 = two * x9r;
        const V x9i = io.im(9);
        const V t219 = two * x9i;
        const V x21r = io.re(21);
        const V t220 = two * x21r;
        const V x21i = io.im(21);
        const V t221 = two * x21i;
        const V x24r = io.re(24);
        const V t222 = two * x24r;
        const V x24i = io.im(24);
        const V t223 = two * x24i;
        // complex block of 2
        const V t224 = t223 - t217;
        // complex block of 2
        const V t225 = t219 - t221;
        // complex block of 2
        const V t226 = t224 + t225;
        const V t227 = t224 - t225;
        // complex block of 2
        const V t228 = t222 + t216;
        // complex block of 2
        const V t229 = t220 + t218;
        // complex block of 2
        const V t230 = t228 + t229;
        const V t231 = t228 - t229;
        // complex block of 2
        const V t232 = t223 + t217;
        // complex block of 2
        const V t233 = t220 - t218;
        // complex block of 2
        const V t234 = t232 - t233;
        const V t235 = t232 + t233;
        // complex block of 2
        const V t236 = t222 - t216;
        // complex block of 2
        const V t237 = t221 + t219;
        // complex block of 2
        const V t238 = t236 - t237;
        const V t239 = t236 + t237;
        // spectrum block of 3, multiplier 2
        const V t240 = t202 + t4;
        // complex block of 3, multiplier 2
        const V t241 = t124 + t174;
        // spectrum block of 5, multiplier 2
        const V t242 = c[0] * t241;
        const V t243 = c[1] * t241;
        // complex block of 3, multiplier 2
        const V t244 = t48 + t230;
        // spectrum block of 5, multiplier 2
        const V t245 = c[1] * t244;
        const V t246 = t241 + t244;
        const V t247 = t242 - t245;
        const V t248 = t240 - t243;
        const V t249 = c[0] * t244;
        // complex block of 3, multiplier 2
        const V t250 = t170 - t118;
        // spectrum block of 5, multiplier 2
        const V t251 = c[2] * t250;
        const V t252 = c[3] * t250;
        // complex block of 3, multiplier 2
        const V t253 = t42 + t226;
        // spectrum block of 5, multiplier 2
        const V t254 = c[3] * t253;
        const V t255 = c[2] * t253;
        const V t256 = t246 + t240;
        io.out(0, t256);
        const V t257 = t247 + t240;
        const V t258 = t251 + t254;
        const V t259 = t257 - t258;
        io.out(36, t259);
        const V t260 = t257 + t258;
        io.out(24, t260);
        const V t261 = t248 + t249;
        const V t262 = t252 - t255;
        const V t263 = t261 - t262;
        io.out(12, t263);
        const V t264 = t261 + t262;
        io.out(48, t264);
        // spectrum block of 3, multiplier 2
        const V t265 = t4 - t203;
        const V t266 = t265 - t201;
        const V t267 = t265 + t201;
        // complex block of 3, multiplier 2
        const V t268 = t120 + t170;
        const V t269 = c[5] * t125;
        const V t270 = t268 + t269;
        const V t271 = t268 - t269;
        // spectrum block of 5, multiplier 2
        const V t272 = c[2] * t271;
        const V t273 = c[3] * t271;
        // spectrum block of 5, multiplier 2
        const V t274 = c[2] * t270;
        const V t275 = c[3] * t270;
        // complex block of 3, multiplier 2
        const V t276 = t174 - t126;
        const V t277 = t276 - t121;
        const V t278 = t276 + t121;
        // spectrum block of 5, multiplier 2
        const V t279 = c[0] * t278;
        const V t280 = c[1] * t278;
        // spectrum block of 5, multiplier 2
        const V t281 = c[0] * t277;
        const V t282 = c[1] * t277;
        // complex block of 3, multiplier 2
        const V t283 = t226 - t44;
        const V t284 = c[5] * t49;
        const V t285 = t283 + t284;
        const V t286 = t283 - t284;
        // spectrum block of 5, multiplier 2
        const V t287 = c[3] * t286;
        const V t288 = c[2] * t286;
        // spectrum block of 5, multiplier 2
        const V t289 = c[3] * t285;
        const V t290 = c[2] * t285;
        // complex block of 3, multiplier 2
        const V t291 = t230 - t50;
        const V t292 = t291 + t45;
        const V t293 = t291 - t45;
        // spectrum block of 5, multiplier 2
        const V t294 = c[1] * t293;
        const V t295 = c[0] * t293;
        // spectrum block of 5, multiplier 2
        const V t296 = c[1] * t292;
        const V t297 = c[0] * t292;
        // spectrum block of 5, multiplier 2
        const V t298 = t278 + t293;
        const V t299 = t298 + t267;
        io.out(20, t299);
        const V t300 = t279 - t294;
        const V t301 = t300 + t267;
        const V t302 = t272 + t287;
        const V t303 = t301 - t302;
        io.out(56, t303);
        const V t304 = t301 + t302;
        io.out(44, t304);
        const V t305 = t267 - t280;
        const V t306 = t305 + t295;
        const V t307 = t273 - t288;
        const V t308 = t306 - t307;
        io.out(32, t308);
        const V t309 = t306 + t307;
        io.out(8, t309);
        // spectrum block of 5, multiplier 2
        const V t310 = t277 + t292;
        const V t311 = t310 + t266;
        io.out(40, t311);
        const V t312 = t281 - t296;
        const V t313 = t312 + t266;
        const V t314 = t274 + t289;
        const V t315 = t313 - t314;
        io.out(16, t315);
        const V t316 = t313 + t314;
        io.out(4, t316);
        const V t317 = t266 - t282;
        const V t318 = t317 + t297;
        const V t319 = t275 - t290;
        const V t320 = t318 - t319;
        io.out(52, t320);
        const V t321 = t318 + t319;
        io.out(28, t321);
        // spectrum block of 3, multiplier 2
        const V t322 = t210 + t6;
        // complex block of 3, multiplier 2
        const V t323 = t146 + t182;
        // spectrum block of 5, multiplier 2
        const V t324 = c[0] * t323;
        const V t325 = c[1] * t323;
        // complex block of 3, multiplier 2
        const V t326 = t70 + t238;
        // spectrum block of 5, multiplier 2
        const V t327 = c[1] * t326;
        const V t328 = t323 + t326;
        const V t329 = t324 - t327;
        const V t330 = t322 - t325;
        const V t331 = c[0] * t326;
        // complex block of 3, multiplier 2
        const V t332 = t178 - t140;
        // spectrum block of 5, multiplier 2
        const V t333 = c[2] * t332;
        const V t334 = c[3] * t332;
        // complex block of 3, multiplier 2
        const V t335 = t64 + t234;
        // spectrum block of 5, multiplier 2
        const V t336 = c[3] * t335;
        const V t337 = c[2] * t335;
        const V t338 = t328 + t322;
        io.out(15, t338);
        const V t339 = t329 + t322;
        const V t340 = t333 + t336;
        const V t341 = t339 - t340;
        io.out(51, t341);
        const V t342 = t339 + t340;
        io.out(39, t342);
        const V t343 = t330 + t331;
        const V t344 = t334 - t337;
        const V t345 = t343 - t344;
        io.out(27, t345);
        const V t346 = t343 + t344;
        io.out(3, t346);
        // spectrum block of 3, multiplier 2
        const V t347 = t6 - t211;
        const V t348 = t347 - t209;
        const V t349 = t347 + t209;
        // complex block of 3, multiplier 2
        const V t350 = t142 + t178;
        const V t351 = c[5] * t147;
        const V t352 = t350 + t351;
        const V t353 = t350 - t351;
        // spectrum block of 5, multiplier 2
        const V t354 = c[2] * t353;
        const V t355 = c[3] * t353;
        // spectrum block of 5, multiplier 2
        const V t356 = c[2] * t352;
        const V t357 = c[3] * t352;
        // complex block of 3, multiplier 2
        const V t358 = t182 - t148;
        const V t359 = t358 - t143;
        const V t360 = t358 + t143;
        // spectrum block of 5, multiplier 2
        const V t361 = c[0] * t360;
        const V t362 = c[1] * t360;
        // spectrum block of 5, multiplier 2
        const V t363 = c[0] * t359;
        const V t364 = c[1] * t359;
        // complex block of 3, multiplier 2
        const V t365 = t234 - t66;
        const V t366 = c[5] * t71;
        const V t367 = t365 + t366;
        const V t368 = t365 - t366;
        // spectrum block of 5, multiplier 2
        const V t369 = c[3] * t368;
        const V t370 = c[2] * t368;
        // spectrum block of 5, multiplier 2
        const V t371 = c[3] * t367;
        const V t372 = c[2] * t367;
        // complex block of 3, multiplier 2
        const V t373 = t238 - t72;
        const V t374 = t373 + t67;
        const V t375 = t373 - t67;
        // spectrum block of 5, multiplier 2
        const V t376 = c[1] * t375;
        const V t377 = c[0] * t375;
        // spectrum block of 5, multiplier 2
        const V t378 = c[1] * t374;
        const V t379 = c[0] * t374;
        // spectrum block of 5, multiplier 2
        const V t380 = t360 + t375;
        const V t381 = t380 + t349;
        io.out(35, t381);
        const V t382 = t361 - t376;
        const V t383 = t382 + t349;
        const V t384 = t354 + t369;
        const V t385 = t383 - t384;
        io.out(11, t385);
        const V t386 = t383 + t384;
        io.out(59, t386);
        const V t387 = t349 - t362;
        const V t388 = t387 + t377;
        const V t389 = t355 - t370;
        const V t390 = t388 - t389;
        io.out(47, t390);
        const V t391 = t388 + t389;
        io.out(23, t391);
        // spectrum block of 5, multiplier 2
        const V t392 = t359 + t374;
        const V t393 = t392 + t348;
        io.out(55, t393);
        const V t394 = t363 - t378;
        const V t395 = t394 + t348;
        const V t396 = t356 + t371;
        const V t397 = t395 - t396;
        io.out(31, t397);
        const V t398 = t395 + t396;
        io.out(19, t398);
        const V t399 = t348 - t364;
        const V t400 = t399 + t379;
        const V t401 = t357 - t372;
        const V t402 = t400 - t401;
        io.out(7, t402);
        const V t403 = t400 + t401;
        io.out(43, t403);
        // spectrum block of 3, multiplier 2
        const V t404 = t206 + t5;
        // complex block of 3, multiplier 2
        const V t405 = t135 + t175;
        // spectrum block of 5, multiplier 2
        const V t406 = c[0] * t405;
        const V t407 = c[1] * t405;
        // complex block of 3, multiplier 2
        const V t408 = t59 + t231;
        // spectrum block of 5, multiplier 2
        const V t409 = c[1] * t408;
        const V t410 = t405 + t408;
        const V t411 = t406 - t409;
        const V t412 = t404 - t407;
        const V t413 = c[0] * t408;
        // complex block of 3, multiplier 2
        const V t414 = t171 - t129;
        // spectrum block of 5, multiplier 2
        const V t415 = c[2] * t414;
        const V t416 = c[3] * t414;
        // complex block of 3, multiplier 2
        const V t417 = t53 + t227;
        // spectrum block of 5, multiplier 2
        const V t418 = c[3] * t417;
        const V t419 = c[2] * t417;
        const V t420 = t410 + t404;
        io.out(30, t420);
        const V t421 = t411 + t404;
        const V t422 = t415 + t418;
        const V t423 = t421 - t422;
        io.out(6, t423);
        const V t424 = t421 + t422;
        io.out(54, t424);
        const V t425 = t412 + t413;
        const V t426 = t416 - t419;
        const V t427 = t425 - t426;
        io.out(42, t427);
        const V t428 = t425 + t426;
        io.out(18, t428);
        // spectrum block of 3, multiplier 2
        const V t429 = t5 - t207;
        const V t430 = t429 - t205;
        const V t431 = t429 + t205;
        // complex block of 3, multiplier 2
        const V t432 = t131 + t171;
        const V t433 = c[5] * t136;
        const V t434 = t432 + t433;
        const V t435 = t432 - t433;
        // spectrum block of 5, multiplier 2
        const V t436 = c[2] * t435;
        const V t437 = c[3] * t435;
        // spectrum block of 5, multiplier 2
        const V t438 = c[2] * t434;
        const V t439 = c[3] * t434;
        // complex block of 3, multiplier 2
        const V t440 = t175 - t137;
        const V t441 = t440 - t132;
        const V t442 = t440 + t132;
        // spectrum block of 5, multiplier 2
        const V t443 = c[0] * t442;
        const V t444 = c[1] * t442;
        // spectrum block of 5, multiplier 2
        const V t445 = c[0] * t441;
        const V t446 = c[1] * t441;
        // complex block of 3, multiplier 2
        const V t447 = t227 - t55;
        const V t448 = c[5] * t60;
        const V t449 = t447 + t448;
        const V t450 = t447 - t448;
        // spectrum block of 5, multiplier 2
        const V t451 = c[3] * t450;
        const V t452 = c[2] * t450;
        // spectrum block of 5, multiplier 2
        const V t453 = c[3] * t449;
        const V t454 = c[2] * t449;
        // complex block of 3, multiplier 2
        const V t455 = t231 - t61;
        const V t456 = t455 + t56;
        const V t457 = t455 - t56;
        // spectrum block of 5, multiplier 2
        const V t458 = c[1] * t457;
        const V t459 = c[0] * t457;
        // spectrum block of 5, multiplier 2
        const V t460 = c[1] * t456;
        const V t461 = c[0] * t456;
        // spectrum block of 5, multiplier 2
        const V t462 = t442 + t457;
        const V t463 = t462 + t431;
        io.out(50, t463);
        const V t464 = t443 - t458;
        const V t465 = t464 + t431;
        const V t466 = t436 + t451;
        const V t467 = t465 - t466;
        io.out(26, t467);
        const V t468 = t465 + t466;
        io.out(14, t468);
        const V t469 = t431 - t444;
        const V t470 = t469 + t459;
        const V t471 = t437 - t452;
        const V t472 = t470 - t471;
        io.out(2, t472);
        const V t473 = t470 + t471;
        io.out(38, t473);
        // spectrum block of 5, multiplier 2
        const V t474 = t441 + t456;
        const V t475 = t474 + t430;
        io.out(10, t475);
        const V t476 = t445 - t460;
        const V t477 = t476 + t430;
        const V t478 = t438 + t453;
        const V t479 = t477 - t478;
        io.out(46, t479);
        const V t480 = t477 + t478;
        io.out(34, t480);
        const V t481 = t430 - t446;
        const V t482 = t481 + t461;
        const V t483 = t439 - t454;
        const V t484 = t482 - t483;
        io.out(22, t484);
        const V t485 = t482 + t483;
        io.out(58, t485);
        // spectrum block of 3, multiplier 2
        const V t486 = t214 + t7;
        // complex block of 3, multiplier 2
        const V t487 = t157 + t183;
        // spectrum block of 5, multiplier 2
        const V t488 = c[0] * t487;
        const V t489 = c[1] * t487;
        // complex block of 3, multiplier 2
        const V t490 = t81 + t239;
        // spectrum block of 5, multiplier 2
        const V t491 = c[1] * t490;
        const V t492 = t487 + t490;
        const V t493 = t488 - t491;
        const V t494 = t486 - t489;
        const V t495 = c[0] * t490;
        // complex block of 3, multiplier 2
        const V t496 = t179 - t151;
        // spectrum block of 5, multiplier 2
        const V t497 = c[2] * t496;
        const V t498 = c[3] * t496;
        // complex block of 3, multiplier 2
        const V t499 = t75 + t235;
        // spectrum block of 5, multiplier 2
        const V t500 = c[3] * t499;
        const V t501 = c[2] * t499;
        const V t502 = t492 + t486;
        io.out(45, t502);
        const V t503 = t493 + t486;
        const V t504 = t497 + t500;
        const V t505 = t503 - t504;
        io.out(21, t505);
        const V t506 = t503 + t504;
        io.out(9, t506);
        const V t507 = t494 + t495;
        const V t508 = t498 - t501;
        const V t509 = t507 - t508;
        io.out(57, t509);
        const V t510 = t507 + t508;
        io.out(33, t510);
        // spectrum block of 3, multiplier 2
        const V t511 = t7 - t215;
        const V t512 = t511 - t213;
        const V t513 = t511 + t213;
        // complex block of 3, multiplier 2
        const V t514 = t153 + t179;
        const V t515 = c[5] * t158;
        const V t516 = t514 + t515;
        const V t517 = t514 - t515;
        // spectrum block of 5, multiplier 2
        const V t518 = c[2] * t517;
        const V t519 = c[3] * t517;
        // spectrum block of 5, multiplier 2
        const V t520 = c[2] * t516;
        const V t521 = c[3] * t516;
        // complex block of 3, multiplier 2
        const V t522 = t183 - t159;
        const V t523 = t522 - t154;
        const V t524 = t522 + t154;
        // spectrum block of 5, multiplier 2
        const V t525 = c[0] * t524;
        const V t526 = c[1] * t524;
        // spectrum block of 5, multiplier 2
        const V t527 = c[0] * t523;
        const V t528 = c[1] * t523;
        // complex block of 3, multiplier 2
        const V t529 = t235 - t77;
        const V t530 = c[5] * t82;
        const V t531 = t529 + t530;
        const V t532 = t529 - t530;
        // spectrum block of 5, multiplier 2
        const V t533 = c[3] * t532;
        const V t534 = c[2] * t532;
        // spectrum block of 5, multiplier 2
        const V t535 = c[3] * t531;
        const V t536 = c[2] * t531;
        // complex block of 3, multiplier 2
        const V t537 = t239 - t83;
        const V t538 = t537 + t78;
        const V t539 = t537 - t78;
        // spectrum block of 5, multiplier 2
        const V t540 = c[1] * t539;
        const V t541 = c[0] * t539;
        // spectrum block of 5, multiplier 2
        const V t542 = c[1] * t538;
        const V t543 = c[0] * t538;
        // spectrum block of 5, multiplier 2
        const V t544 = t524 + t539;
        const V t545 = t544 + t513;
        io.out(5, t545);
        const V t546 = t525 - t540;
        const V t547 = t546 + t513;
        const V t548 = t518 + t533;
        const V t549 = t547 - t548;
        io.out(41, t549);
        const V t550 = t547 + t548;
        io.out(29, t550);
        const V t551 = t513 - t526;
        const V t552 = t551 + t541;
        const V t553 = t519 - t534;
        const V t554 = t552 - t553;
        io.out(17, t554);
        const V t555 = t552 + t553;
        io.out(53, t555);
        // spectrum block of 5, multiplier 2
        const V t556 = t523 + t538;
        const V t557 = t556 + t512;
        io.out(25, t557);
        const V t558 = t527 - t542;
        const V t559 = t558 + t512;
        const V t560 = t520 + t535;
        const V t561 = t559 - t560;
        io.out(1, t561);
        const V t562 = t559 + t560;
        io.out(49, t562);
        const V t563 = t512 - t528;
        const V t564 = t563 + t543;
        const V t565 = t521 - t536;
        const V t566 = t564 - t565;
        io.out(37, t566);
        const V t567 = t564 + t565;
        io.out(13, t567);
    }
};

}  // namespace zulg
