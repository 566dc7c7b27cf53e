// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 51.
// Inverse DFT to 51 real points, prime-factor 3, 17.
// 224 additions, 224 subtractions, 245 multiplications (296 with `scale`); 23 constants; 63 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<51> {
    static constexpr int steps = 744;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.5,  // c[3]: -cos 2 pi 1/3
        0.8660254037844386,  // c[4]: sin 2 pi 1/3
        0.4314031601143256,  // c[5]: P[1] of 17
        0.281986371024157,  // c[6]: -Q[1] of 17
        0.4407489637509731,  // c[7]: P[3] of 17
        0.26714294104925057,  // c[8]: -Q[3] of 17
        0.508427430394848,  // c[9]: -P[5] of 17
        0.08441888427414843,  // c[10]: -Q[5] of 17
        0.4440524091413236,  // c[11]: P[7] of 17
        0.2616150950075063,  // c[12]: -Q[7] of 17
        0.51483037864984,  // c[13]: -Q[2] of 17
        0.023972509657154296,  // c[14]: P[2] of 17
        0.39103912897466114,  // c[15]: -Q[6] of 17
        0.33572816326715627,  // c[16]: P[6] of 17
        0.31717619283272513,  // c[17]: -Q[4] of 17
        0.40623178445333147,  // c[18]: P[4] of 17
        0.2576941016011038,  // c[19]: -beta of 17
        0.0625,  // c[20]: 1/16
        1.7320508075688772,  // c[21]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x17r = io.re(17);
        const V t0 = two * x17r;
        // spectrum block of 3, multiplier 2
        const V t1 = c[3] * t0;
        const V x17i = io.im(17);
        const V t2 = c[21] * x17i;
        const V x0r = io.re(0);
        const V t3 = t0 + x0r;
        const V t4 = x0r - t1;
        const V t5 = t4 - t2;
        const V t6 = t4 + t2;
        // doubled bins
        const V x1r = io.re(1);
        const V t7 = two * x1r;
        const V x16r = io.re(16);
        const V t8 = two * x16r;
        // complex block of 3, multiplier 2
        const V t9 = t8 + t7;
        // doubled bins
        const V x18r = io.re(18);
        const V t10 = two * x18r;
        // complex block of 3, multiplier 2
        const V t11 = t8 - t7;
        const V t12 = c[4] * t11;
        const V t13 = t9 + t10;
        const V t14 = c[3] * t9;
        const V t15 = t10 - t14;
        // doubled bins
        const V x1i = io.im(1);
        const V t16 = two * x1i;
        const V x16i = io.im(16);
        const V t17 = two * x16i;
        // complex block of 3, multiplier 2
        const V t18 = t16 - t17;
        // doubled bins
        const V x18i = io.im(18);
        const V t19 = two * x18i;
        // complex block of 3, multiplier 2
        const V t20 = t17 + t16;
        const V t21 = c[4] * t20;
        const V t22 = t18 + t19;
        const V t23 = c[3] * t18;
        const V t24 = t19 - t23;
        // doubled bins
        const V x2r = io.re(2);
        const V t25 = two * x2r;
        const V x19r = io.re(19);
        const V t26 = two * x19r;
        // complex block of 3, multiplier 2
        const V t27 = t26 + t25;
        // doubled bins
        const V x15r = io.re(15);
        const V t28 = two * x15r;
        // complex block of 3, multiplier 2
        const V t29 = t26 - t25;
        const V t30 = c[4] * t29;
        const V t31 = t27 + t28;
        const V t32 = c[3] * t27;
        const V t33 = t28 - t32;
        // doubled bins
        const V x2i = io.im(2);
        const V t34 = two * x2i;
        const V x19i = io.im(19);
        const V t35 = two * x19i;
        // complex block of 3, multiplier 2
        const V t36 = t35 + t34;
        // doubled bins
        const V x15i = io.im(15);
        const V t37 = two * x15i;
        // complex block of 3, multiplier 2
        const V t38 = t34 - t35;
        const V t39 = c[4] * t38;
        const V t40 = t37 - t36;
        const V t41 = c[3] * t36;
        const V t42 = t41 + t37;
        // doubled bins
        const V x3r = io.re(3);
        const V t43 = two * x3r;
        const V x14r = io.re(14);
        const V t44 = two * x14r;
        const V x20r = io.re(20);
        const V t45 = two * x20r;
        // complex block of 3, multiplier 2
        const V t46 = t45 + t44;
        const V t47 = t46 + t43;
        const V t48 = c[3] * t46;
        const V t49 = t45 - t44;
        // doubled bins
        const V x3i = io.im(3);
        const V t50 = two * x3i;
        const V x4r = io.re(4);
        const V t51 = two * x4r;
        const V x13r = io.re(13);
        const V t52 = two * x13r;
        // complex block of 3, multiplier 2
        const V t53 = t52 + t51;
        // doubled bins
        const V x21r = io.re(21);
        const V t54 = two * x21r;
        // complex block of 3, multiplier 2
        const V t55 = t52 - t51;
        const V t56 = c[4] * t55;
        const V t57 = t53 + t54;
        const V t58 = c[3] * t53;
        const V t59 = t54 - t58;
        // doubled bins
        const V x4i = io.im(4);
        const V t60 = two * x4i;
        const V x13i = io.im(13);
        const V t61 = two * x13i;
        // complex block of 3, multiplier 2
        const V t62 = t60 - t61;
        // doubled bins
        const V x21i = io.im(21);
        const V t63 = two * x21i;
        // complex block of 3, multiplier 2
        const V t64 = t61 + t60;
        const V t65 = c[4] * t64;
        const V t66 = t62 + t63;
        const V t67 = c[3] * t62;
        const V t68 = t63 - t67;
        // doubled bins
        const V x5r = io.re(5);
        const V t69 = two * x5r;
        const V x12r = io.re(12);
        const V t70 = two * x12r;
        const V x22r = io.re(22);
        const V t71 = two * x22r;
        // complex block of 3, multiplier 2
        const V t72 = t71 + t69;
        const V t73 = t72 + t70;
        const V t74 = c[3] * t72;
        const V t75 = t71 - t69;
        // doubled bins
        const V x5i = io.im(5);
        const V t76 = two * x5i;
        const V x22i = io.im(22);
        const V t77 = two * x22i;
        // complex block of 3, multiplier 2
        const V t78 = t77 + t76;
        const V t79 = c[3] * t78;
        const V t80 = t76 - t77;
        const V t81 = c[4] * t80;
        // doubled bins
        const V x6r = io.re(6);
        const V t82 = two * x6r;
        const V x11r = io.re(11);
        const V t83 = two * x11r;
        const V x23r = io.re(23);
        const V t84 = two * x23r;
        // complex block of 3, multiplier 2
        const V t85 = t84 + t83;
        const V t86 = t85 + t82;
        const V t87 = c[3] * t85;
        const V t88 = t84 - t83;
        const V t89 = c[4] * t88;
        // doubled bins
        const V x6i = io.im(6);
        const V t90 = two * x6i;
        const V x11i = io.im(11);
        const V t91 = two * x11i;
        const V x23i = io.im(23);
        const V t92 = two * x23i;
        // complex block of 3, multiplier 2
        const V t93 = t92 - t91;
        const V t94 = t92 + t91;
        const V t95 = c[4] * t94;
        const V t96 = t93 + t90;
        const V t97 = c[3] * t93;
        const V t98 = t90 - t97;
        // doubled bins
        const V x7r = io.re(7);
        const V t99 = two * x7r;
        const V x10r = io.re(10);
        const V t100 = two * x10r;
        const V x24r = io.re(24);
        const V t101 = two * x24r;
        // complex block of 3, multiplier 2
        const V t102 = t100 + t99;
        const V t103 = t102 + t101;
        const V t104 = c[3] * t102;
        const V t105 = t100 - t99;
        const V t106 = c[4] * t105;
        // doubled bins
        const V x7i = io.im(7);
        const V t107 = two * x7i;
        const V x10i = io.im(10);
        const V t108 = two * x10i;
        // complex block of 3, multiplier 2
        const V t109 = t107 - t108;
        // doubled bins
        const V x24i = io.im(24);
        const V t110 = two * x24i;
        // complex block of 3, multiplier 2
        const V t111 = t108 + t107;
        const V t112 = c[4] * t111;
        const V t113 = t109 + t110;
        const V t114 = c[3] * t109;
        const V t115 = t110 - t114;
        // doubled bins
        const V x8r = io.re(8);
        const V t116 = two * x8r;
        const V x25r = io.re(25);
        const V t117 = two * x25r;
        // complex block of 3, multiplier 2
        const V t118 = t117 + t116;
        // doubled bins
        const V x9r = io.re(9);
        const V t119 = two * x9r;
        // complex block of 3, multiplier 2
        const V t120 = t117 - t116;
        const V t121 = c[4] * t120;
        const V t122 = t118 + t119;
        const V t123 = c[3] * t118;
        const V t124 = t119 - t123;
        // doubled bins
        const V x8i = io.im(8);
        const V t125 = two * x8i;
        const V x25i = io.im(25);
        const V t126 = two * x25i;
        // complex block of 3, multiplier 2
        const V t127 = t126 + t125;
        // doubled bins
        const V x9i = io.im(9);
        const V t128 = two * x9i;
        // complex block of 3, multiplier 2
        const V t129 = t125 - t126;
        const V t130 = c[4] * t129;
        const V t131 = t128 - t127;
        const V t132 = c[3] * t127;
        const V t133 = t132 + t128;
        // doubled bins
        const V x12i = io.im(12);
        const V t134 = two * x12i;
        const V x14i = io.im(14);
        const V t135 = two * x14i;
        const V x20i = io.im(20);
        const V t136 = two * x20i;
        // complex block of 3, multiplier 2
        const V t137 = t136 - t135;
        const V t138 = c[3] * t137;
        const V t139 = t136 + t135;
        const V t140 = c[4] * t139;
        const V t141 = t137 + t50;
        // complex block of 3, multiplier 2
        const V t142 = t134 - t78;
        // skew block of 8
        const V t143 = c[0] * t40;
        const V t144 = c[1] * t131;
        const V t145 = t144 - t143;
        const V t146 = c[0] * t131;
        const V t147 = c[1] * t40;
        const V t148 = t147 + t146;
        const V t149 = c[2] * t113;
        const V t150 = c[2] * t96;
        const V t151 = t150 - t149;
        const V t152 = t150 + t149;
        const V t153 = c[1] * t22;
        const V t154 = c[0] * t66;
        const V t155 = t153 - t154;
        const V t156 = c[1] * t66;
        const V t157 = c[0] * t22;
        const V t158 = t157 + t156;
        // complex block of 2
        const V t159 = t141 + t151;
        // complex block of 2
        const V t160 = t145 + t155;
        // complex block of 2
        const V t161 = t159 + t160;
        const V t162 = t159 - t160;
        // complex block of 2
        const V t163 = t142 + t152;
        // complex block of 2
        const V t164 = t158 - t148;
        // complex block of 2
        const V t165 = t163 + t164;
        const V t166 = t163 - t164;
        // complex block of 2
        const V t167 = t141 - t151;
        // complex block of 2
        const V t168 = t148 + t158;
        // complex block of 2
        const V t169 = t167 - t168;
        const V t170 = t167 + t168;
        // complex block of 2
        const V t171 = t142 - t152;
        // complex block of 2
        const V t172 = t145 - t155;
        // complex block of 2
        const V t173 = t171 - t172;
        const V t174 = t171 + t172;
        // complex block of 3, multiplier 2
        const V t175 = t50 - t138;
        const V t176 = c[4] * t49;
        const V t177 = t175 + t176;
        const V t178 = t175 - t176;
        // complex block of 3, multiplier 2
        const V t179 = t98 + t89;
        // skew block of 8
        const V t180 = c[2] * t179;
        // complex block of 3, multiplier 2
        const V t181 = t98 - t89;
        // skew block of 8
        const V t182 = c[2] * t181;
        // complex block of 3, multiplier 2
        const V t183 = t79 + t134;
        const V t184 = c[4] * t75;
        const V t185 = t183 + t184;
        const V t186 = t183 - t184;
        // complex block of 3, multiplier 2
        const V t187 = t115 + t106;
        // skew block of 8
        const V t188 = c[2] * t187;
        // complex block of 3, multiplier 2
        const V t189 = t115 - t106;
        // skew block of 8
        const V t190 = c[2] * t189;
        const V t191 = t182 - t190;
        // complex block of 2
        const V t192 = t178 + t191;
        const V t193 = t178 - t191;
        // skew block of 8
        const V t194 = t182 + t190;
        // complex block of 2
        const V t195 = t186 + t194;
        const V t196 = t186 - t194;
        // skew block of 8
        const V t197 = t180 - t188;
        // complex block of 2
        const V t198 = t177 + t197;
        const V t199 = t177 - t197;
        // skew block of 8
        const V t200 = t180 + t188;
        // complex block of 2
        const V t201 = t185 + t200;
        const V t202 = t185 - t200;
        // complex block of 3, multiplier 2
        const V t203 = t43 - t48;
        const V t204 = t203 - t140;
        const V t205 = t203 + t140;
        // complex block of 3, multiplier 2
        const V t206 = t82 - t87;
        const V t207 = t206 - t95;
        const V t208 = t206 + t95;
        // complex block of 3, multiplier 2
        const V t209 = t70 - t74;
        const V t210 = t209 - t81;
        const V t211 = t209 + t81;
        // complex block of 3, multiplier 2
        const V t212 = t101 - t104;
        const V t213 = t212 + t112;
        const V t214 = t212 - t112;
        // real block of 2
        const V t215 = t205 + t211;
        // real block of 2
        const V t216 = t214 + t208;
        // real block of 2
        const V t217 = t215 + t216;
        // real block of 2
        const V t218 = t205 - t211;
        // real block of 2
        const V t219 = t214 - t208;
        // real block of 2
        const V t220 = t204 + t210;
        // real block of 2
        const V t221 = t213 + t207;
        // real block of 2
        const V t222 = t220 + t221;
        // real block of 2
        const V t223 = t204 - t210;
        // real block of 2
        const V t224 = t213 - t207;
        // complex block of 3, multiplier 2
        const V t225 = t133 + t121;
        // skew block of 8
        const V t226 = c[1] * t225;
        const V t227 = c[0] * t225;
        // complex block of 3, multiplier 2
        const V t228 = t42 + t30;
        // skew block of 8
        const V t229 = c[0] * t228;
        const V t230 = c[1] * t228;
        // complex block of 3, multiplier 2
        const V t231 = t24 + t12;
        // skew block of 8
        const V t232 = c[1] * t231;
        const V t233 = c[0] * t231;
        // complex block of 3, multiplier 2
        const V t234 = t68 + t56;
        // skew block of 8
        const V t235 = c[0] * t234;
        const V t236 = c[1] * t234;
        const V t237 = t226 - t229;
        const V t238 = t232 - t235;
        // complex block of 2
        const V t239 = t237 + t238;
        const V t240 = t237 - t238;
        // skew block of 8
        const V t241 = t230 + t227;
        const V t242 = t233 + t236;
        // complex block of 2
        const V t243 = t242 - t241;
        const V t244 = t241 + t242;
        // complex block of 3, multiplier 2
        const V t245 = t124 - t130;
        // complex block of 3, multiplier 2
        const V t246 = t33 - t39;
        // real block of 2
        const V t247 = t245 + t246;
        const V t248 = t245 - t246;
        // complex block of 3, multiplier 2
        const V t249 = t15 + t21;
        // complex block of 3, multiplier 2
        const V t250 = t59 + t65;
        // real block of 2
        const V t251 = t250 + t249;
        const V t252 = t250 - t249;
        // real block of 2
        const V t253 = t247 + t251;
        // skew block of 4
        const V t254 = t248 - t252;
        const V t255 = c[2] * t254;
        const V t256 = t248 + t252;
        const V t257 = c[2] * t256;
        // complex block of 3, multiplier 2
        const V t258 = t133 - t121;
        // skew block of 8
        const V t259 = c[1] * t258;
        const V t260 = c[0] * t258;
        // complex block of 3, multiplier 2
        const V t261 = t42 - t30;
        // skew block of 8
        const V t262 = c[0] * t261;
        const V t263 = c[1] * t261;
        // complex block of 3, multiplier 2
        const V t264 = t24 - t12;
        // skew block of 8
        const V t265 = c[1] * t264;
        const V t266 = c[0] * t264;
        // complex block of 3, multiplier 2
        const V t267 = t68 - t56;
        // skew block of 8
        const V t268 = c[0] * t267;
        const V t269 = c[1] * t267;
        const V t270 = t259 - t262;
        const V t271 = t265 - t268;
        // complex block of 2
        const V t272 = t270 + t271;
        const V t273 = t270 - t271;
        // skew block of 8
        const V t274 = t263 + t260;
        const V t275 = t266 + t269;
        // complex block of 2
        const V t276 = t275 - t274;
        const V t277 = t274 + t275;
        // complex block of 3, multiplier 2
        const V t278 = t124 + t130;
        // complex block of 3, multiplier 2
        const V t279 = t33 + t39;
        // real block of 2
        const V t280 = t278 + t279;
        const V t281 = t278 - t279;
        // complex block of 3, multiplier 2
        const V t282 = t15 - t21;
        // complex block of 3, multiplier 2
        const V t283 = t59 - t65;
        // real block of 2
        const V t284 = t283 + t282;
        const V t285 = t283 - t282;
        // real block of 2
        const V t286 = t280 + t284;
        // skew block of 4
        const V t287 = t281 - t285;
        const V t288 = c[2] * t287;
        const V t289 = t281 + t285;
        const V t290 = c[2] * t289;
        // real block of 2
        const V t291 = t47 + t73;
        // real block of 2
        const V t292 = t103 + t86;
        // real block of 2
        const V t293 = t291 + t292;
        // real block of 2
        const V t294 = t122 + t31;
        // real block of 2
        const V t295 = t57 + t13;
        // real block of 2
        const V t296 = t294 + t295;
        // real block of 2
        const V t297 = t291 - t292;
        // real block of 2
        const V t298 = t294 - t295;
        // real block of 2
        const V t299 = t293 + t296;
        // real block of 2
        const V t300 = t47 - t73;
        // real block of 2
        const V t301 = t122 - t31;
        // real block of 2
        const V t302 = t57 - t13;
        // skew block of 4
        const V t303 = t301 - t302;
        const V t304 = t301 + t302;
        // real block of 2
        const V t305 = t103 - t86;
        // skew block of 4
        const V t306 = c[2] * t303;
        const V t307 = t300 + t306;
        const V t308 = t300 - t306;
        const V t309 = c[2] * t304;
        const V t310 = t309 - t305;
        const V t311 = t305 + t309;
        // real block of 2
        const V t312 = t293 - t296;
        // spectrum block of 17, multiplier 3
        const V t313 = c[19] * t312;
        const V t314 = c[20] * t299;
        const V t315 = t3 - t314;
        // spectrum block of 2
        const V t316 = t315 - t313;
        const V t317 = t315 + t313;
        // spectrum block of 17, multiplier 3
        const V t318 = c[5] * t165;
        const V t319 = c[6] * t161;
        const V t320 = t319 + t318;
        const V t321 = c[5] * t161;
        const V t322 = c[6] * t165;
        const V t323 = t321 - t322;
        const V t324 = c[7] * t174;
        const V t325 = c[8] * t170;
        const V t326 = t324 - t325;
        const V t327 = c[7] * t170;
        const V t328 = c[8] * t174;
        const V t329 = t328 + t327;
        const V t330 = c[9] * t173;
        const V t331 = c[10] * t169;
        const V t332 = t330 - t331;
        const V t333 = c[9] * t169;
        const V t334 = c[10] * t173;
        const V t335 = t334 + t333;
        const V t336 = c[11] * t166;
        const V t337 = c[12] * t162;
        const V t338 = t336 - t337;
        const V t339 = c[11] * t162;
        const V t340 = c[12] * t166;
        const V t341 = t340 + t339;
        // complex block of 2
        const V t342 = t323 - t341;
        // complex block of 2
        const V t343 = t335 + t329;
        // complex block of 2
        const V t344 = t342 + t343;
        // complex block of 2
        const V t345 = t338 - t320;
        // complex block of 2
        const V t346 = t332 + t326;
        // complex block of 2
        const V t347 = t345 - t346;
        // complex block of 2
        const V t348 = t323 + t341;
        // complex block of 2
        const V t349 = t332 - t326;
        // complex block of 2
        const V t350 = t348 + t349;
        const V t351 = t348 - t349;
        // complex block of 2
        const V t352 = t320 + t338;
        // complex block of 2
        const V t353 = t329 - t335;
        // complex block of 2
        const V t354 = t352 + t353;
        const V t355 = t353 - t352;
        // spectrum block of 17, multiplier 3
        const V t356 = c[13] * t311;
        const V t357 = c[14] * t307;
        const V t358 = t357 - t356;
        const V t359 = c[15] * t310;
        const V t360 = c[16] * t308;
        const V t361 = t360 - t359;
        // mirrored skew block of 4
        const V t362 = t358 - t361;
        const V t363 = c[2] * t362;
        const V t364 = t358 + t361;
        // spectrum block of 17, multiplier 3
        const V t365 = c[13] * t307;
        const V t366 = c[14] * t311;
        const V t367 = t366 + t365;
        const V t368 = c[15] * t308;
        const V t369 = c[16] * t310;
        const V t370 = t369 + t368;
        // mirrored skew block of 4
        const V t371 = t367 + t370;
        const V t372 = c[2] * t371;
        const V t373 = t370 - t367;
        // spectrum block of 17, multiplier 3
        const V t374 = c[17] * t298;
        const V t375 = c[18] * t297;
        const V t376 = t375 - t374;
        const V t377 = c[17] * t297;
        const V t378 = c[18] * t298;
        const V t379 = t378 + t377;
        // spectrum block of 2
        const V t380 = t316 + t376;
        // spectrum block of 2
        const V t381 = t380 + t364;
        const V t382 = t380 - t364;
        // complex block of 2
        const V t383 = t342 - t343;
        const V t384 = t345 + t346;
        // spectrum block of 2
        const V t385 = t381 + t384;
        io.out(3, t385);
        const V t386 = t381 - t384;
        io.out(48, t386);
        // spectrum block of 2
        const V t387 = t382 - t383;
        io.out(12, t387);
        const V t388 = t382 + t383;
        io.out(39, t388);
        // spectrum block of 2
        const V t389 = t316 - t376;
        // spectrum block of 2
        const V t390 = t389 - t373;
        const V t391 = t389 + t373;
        // spectrum block of 16
        const V t392 = t347 + t344;
        const V t393 = c[2] * t392;
        const V t394 = t344 - t347;
        const V t395 = c[2] * t394;
        // spectrum block of 2
        const V t396 = t390 - t395;
        io.out(6, t396);
        const V t397 = t390 + t395;
        io.out(45, t397);
        // spectrum block of 2
        const V t398 = t391 - t393;
        io.out(24, t398);
        const V t399 = t391 + t393;
        io.out(27, t399);
        // spectrum block of 2
        const V t400 = t317 + t379;
        // mirrored skew block of 4
        const V t401 = t363 + t372;
        // spectrum block of 2
        const V t402 = t400 + t401;
        const V t403 = t400 - t401;
        // spectrum block of 16
        const V t404 = c[0] * t350;
        const V t405 = c[1] * t354;
        const V t406 = t405 + t404;
        const V t407 = c[0] * t354;
        const V t408 = c[1] * t350;
        const V t409 = t408 - t407;
        // spectrum block of 2
        const V t410 = t402 - t406;
        io.out(18, t410);
        const V t411 = t402 + t406;
        io.out(33, t411);
        // spectrum block of 2
        const V t412 = t403 - t409;
        io.out(21, t412);
        const V t413 = t403 + t409;
        io.out(30, t413);
        // spectrum block of 2
        const V t414 = t317 - t379;
        // mirrored skew block of 4
        const V t415 = t363 - t372;
        // spectrum block of 2
        const V t416 = t414 - t415;
        const V t417 = t414 + t415;
        // spectrum block of 16
        const V t418 = c[1] * t351;
        const V t419 = c[0] * t355;
        const V t420 = t419 - t418;
        const V t421 = c[1] * t355;
        const V t422 = c[0] * t351;
        const V t423 = t422 + t421;
        // spectrum block of 2
        const V t424 = t416 + t420;
        io.out(36, t424);
        const V t425 = t416 - t420;
        io.out(15, t425);
        // spectrum block of 2
        const V t426 = t417 - t423;
        io.out(42, t426);
        const V t427 = t417 + t423;
        io.out(9, t427);
        // spectrum block of 17, multiplier 3
        const V t428 = t3 + t299;
        io.out(0, t428);
        // real block of 2
        const V t429 = t215 - t216;
        // spectrum block of 17, multiplier 3
        const V t430 = c[18] * t429;
        const V t431 = c[17] * t429;
        // real block of 2
        const V t432 = t280 - t284;
        // spectrum block of 17, multiplier 3
        const V t433 = c[17] * t432;
        const V t434 = c[18] * t432;
        const V t435 = t430 - t433;
        const V t436 = t434 + t431;
        // real block of 2
        const V t437 = t217 + t286;
        // spectrum block of 17, multiplier 3
        const V t438 = c[20] * t437;
        // real block of 2
        const V t439 = t217 - t286;
        // spectrum block of 17, multiplier 3
        const V t440 = c[19] * t439;
        const V t441 = t6 - t438;
        // spectrum block of 2
        const V t442 = t441 - t440;
        const V t443 = t441 + t440;
        // skew block of 4
        const V t444 = t290 - t219;
        // spectrum block of 17, multiplier 3
        const V t445 = c[15] * t444;
        const V t446 = c[16] * t444;
        // skew block of 4
        const V t447 = t218 + t288;
        // spectrum block of 17, multiplier 3
        const V t448 = c[14] * t447;
        const V t449 = c[13] * t447;
        // skew block of 4
        const V t450 = t219 + t290;
        // spectrum block of 17, multiplier 3
        const V t451 = c[13] * t450;
        const V t452 = c[14] * t450;
        // skew block of 4
        const V t453 = t218 - t288;
        // spectrum block of 17, multiplier 3
        const V t454 = c[16] * t453;
        const V t455 = c[15] * t453;
        const V t456 = t448 - t451;
        const V t457 = t454 - t445;
        // mirrored skew block of 4
        const V t458 = t456 - t457;
        // spectrum block of 17, multiplier 3
        const V t459 = t452 + t449;
        const V t460 = t446 + t455;
        // mirrored skew block of 4
        const V t461 = t459 + t460;
        // complex block of 2
        const V t462 = t192 + t272;
        // spectrum block of 17, multiplier 3
        const V t463 = c[6] * t462;
        const V t464 = c[5] * t462;
        // complex block of 2
        const V t465 = t195 + t276;
        // spectrum block of 17, multiplier 3
        const V t466 = c[5] * t465;
        const V t467 = c[6] * t465;
        // complex block of 2
        const V t468 = t192 - t272;
        // spectrum block of 17, multiplier 3
        const V t469 = c[12] * t468;
        const V t470 = c[11] * t468;
        // complex block of 2
        const V t471 = t195 - t276;
        // spectrum block of 17, multiplier 3
        const V t472 = c[11] * t471;
        const V t473 = c[12] * t471;
        const V t474 = t463 + t466;
        const V t475 = t472 - t469;
        // complex block of 2
        const V t476 = t475 - t474;
        const V t477 = t474 + t475;
        // spectrum block of 17, multiplier 3
        const V t478 = t464 - t467;
        const V t479 = t473 + t470;
        // complex block of 2
        const V t480 = t478 - t479;
        const V t481 = t478 + t479;
        // complex block of 2
        const V t482 = t193 - t277;
        // spectrum block of 17, multiplier 3
        const V t483 = c[10] * t482;
        const V t484 = c[9] * t482;
        // complex block of 2
        const V t485 = t196 - t273;
        // spectrum block of 17, multiplier 3
        const V t486 = c[9] * t485;
        const V t487 = c[10] * t485;
        // complex block of 2
        const V t488 = t193 + t277;
        // spectrum block of 17, multiplier 3
        const V t489 = c[8] * t488;
        const V t490 = c[7] * t488;
        // complex block of 2
        const V t491 = t196 + t273;
        // spectrum block of 17, multiplier 3
        const V t492 = c[7] * t491;
        const V t493 = c[8] * t491;
        const V t494 = t492 - t489;
        const V t495 = t486 - t483;
        // complex block of 2
        const V t496 = t495 + t494;
        const V t497 = t495 - t494;
        // spectrum block of 17, multiplier 3
        const V t498 = t493 + t490;
        const V t499 = t487 + t484;
        // complex block of 2
        const V t500 = t499 + t498;
        const V t501 = t498 - t499;
        // spectrum block of 2
        const V t502 = t442 + t435;
        // mirrored skew block of 4
        const V t503 = t456 + t457;
        // spectrum block of 2
        const V t504 = t502 + t503;
        const V t505 = t502 - t503;
        // complex block of 2
        const V t506 = t480 - t500;
        const V t507 = t476 + t496;
        // spectrum block of 2
        const V t508 = t504 + t507;
        io.out(20, t508);
        const V t509 = t504 - t507;
        io.out(14, t509);
        // spectrum block of 2
        const V t510 = t505 - t506;
        io.out(29, t510);
        const V t511 = t505 + t506;
        io.out(5, t511);
        // spectrum block of 2
        const V t512 = t442 - t435;
        // mirrored skew block of 4
        const V t513 = t460 - t459;
        // spectrum block of 2
        const V t514 = t512 - t513;
        const V t515 = t512 + t513;
        // complex block of 2
        const V t516 = t480 + t500;
        const V t517 = t476 - t496;
        // spectrum block of 16
        const V t518 = t517 + t516;
        const V t519 = t516 - t517;
        const V t520 = c[2] * t518;
        // spectrum block of 2
        const V t521 = t515 - t520;
        io.out(41, t521);
        const V t522 = t515 + t520;
        io.out(44, t522);
        // spectrum block of 16
        const V t523 = c[2] * t519;
        // spectrum block of 2
        const V t524 = t514 - t523;
        io.out(23, t524);
        const V t525 = t514 + t523;
        io.out(11, t525);
        // spectrum block of 2
        const V t526 = t443 + t436;
        const V t527 = t443 - t436;
        // complex block of 2
        const V t528 = t481 + t497;
        // spectrum block of 16
        const V t529 = c[0] * t528;
        const V t530 = c[1] * t528;
        // complex block of 2
        const V t531 = t477 + t501;
        // spectrum block of 16
        const V t532 = c[1] * t531;
        const V t533 = c[0] * t531;
        // complex block of 2
        const V t534 = t481 - t497;
        // spectrum block of 16
        const V t535 = c[1] * t534;
        const V t536 = c[0] * t534;
        // complex block of 2
        const V t537 = t501 - t477;
        // spectrum block of 16
        const V t538 = c[0] * t537;
        const V t539 = c[1] * t537;
        // mirrored skew block of 4
        const V t540 = c[2] * t458;
        const V t541 = c[2] * t461;
        const V t542 = t540 + t541;
        const V t543 = t540 - t541;
        // spectrum block of 16
        const V t544 = t532 + t529;
        // spectrum block of 2
        const V t545 = t526 + t542;
        // spectrum block of 2
        const V t546 = t545 - t544;
        io.out(35, t546);
        const V t547 = t545 + t544;
        io.out(50, t547);
        // spectrum block of 16
        const V t548 = t530 - t533;
        // spectrum block of 2
        const V t549 = t526 - t542;
        // spectrum block of 2
        const V t550 = t549 - t548;
        io.out(38, t550);
        const V t551 = t549 + t548;
        io.out(47, t551);
        // spectrum block of 16
        const V t552 = t538 - t535;
        // spectrum block of 2
        const V t553 = t527 - t543;
        // spectrum block of 2
        const V t554 = t553 + t552;
        io.out(2, t554);
        const V t555 = t553 - t552;
        io.out(32, t555);
        // spectrum block of 16
        const V t556 = t536 + t539;
        // spectrum block of 2
        const V t557 = t527 + t543;
        // spectrum block of 2
        const V t558 = t557 - t556;
        io.out(8, t558);
        const V t559 = t557 + t556;
        io.out(26, t559);
        // spectrum block of 17, multiplier 3
        const V t560 = t6 + t437;
        io.out(17, t560);
        // real block of 2
        const V t561 = t220 - t221;
        // spectrum block of 17, multiplier 3
        const V t562 = c[18] * t561;
        const V t563 = c[17] * t561;
        // real block of 2
        const V t564 = t247 - t251;
        // spectrum block of 17, multiplier 3
        const V t565 = c[17] * t564;
        const V t566 = c[18] * t564;
        const V t567 = t562 - t565;
        const V t568 = t566 + t563;
        // real block of 2
        const V t569 = t222 + t253;
        // spectrum block of 17, multiplier 3
        const V t570 = c[20] * t569;
        // real block of 2
        const V t571 = t222 - t253;
        // spectrum block of 17, multiplier 3
        const V t572 = c[19] * t571;
        const V t573 = t5 - t570;
        // spectrum block of 2
        const V t574 = t573 - t572;
        const V t575 = t573 + t572;
        // skew block of 4
        const V t576 = t257 - t224;
        // spectrum block of 17, multiplier 3
        const V t577 = c[15] * t576;
        const V t578 = c[16] * t576;
        // skew block of 4
        const V t579 = t223 + t255;
        // spectrum block of 17, multiplier 3
        const V t580 = c[14] * t579;
        const V t581 = c[13] * t579;
        // skew block of 4
        const V t582 = t224 + t257;
        // spectrum block of 17, multiplier 3
        const V t583 = c[13] * t582;
        const V t584 = c[14] * t582;
        // skew block of 4
        const V t585 = t223 - t255;
        // spectrum block of 17, multiplier 3
        const V t586 = c[16] * t585;
        const V t587 = c[15] * t585;
        const V t588 = t580 - t583;
        const V t589 = t586 - t577;
        // mirrored skew block of 4
        const V t590 = t588 - t589;
        // spectrum block of 17, multiplier 3
        const V t591 = t584 + t581;
        const V t592 = t578 + t587;
        // mirrored skew block of 4
        const V t593 = t591 + t592;
        // complex block of 2
        const V t594 = t198 + t239;
        // spectrum block of 17, multiplier 3
        const V t595 = c[6] * t594;
        const V t596 = c[5] * t594;
        // complex block of 2
        const V t597 = t201 + t243;
        // spectrum block of 17, multiplier 3
        const V t598 = c[5] * t597;
        const V t599 = c[6] * t597;
        // complex block of 2
        const V t600 = t198 - t239;
        // spectrum block of 17, multiplier 3
        const V t601 = c[12] * t600;
        const V t602 = c[11] * t600;
        // complex block of 2
        const V t603 = t201 - t243;
        // spectrum block of 17, multiplier 3
        const V t604 = c[11] * t603;
        const V t605 = c[12] * t603;
        const V t606 = t595 + t598;
        const V t607 = t604 - t601;
        // complex block of 2
        const V t608 = t607 - t606;
        const V t609 = t606 + t607;
        // spectrum block of 17, multiplier 3
        const V t610 = t596 - t599;
        const V t611 = t605 + t602;
        // complex block of 2
        const V t612 = t610 - t611;
        const V t613 = t610 + t611;
        // complex block of 2
        const V t614 = t199 - t244;
        // spectrum block of 17, multiplier 3
        const V t615 = c[10] * t614;
        const V t616 = c[9] * t614;
        // complex block of 2
        const V t617 = t202 - t240;
        // spectrum block of 17, multiplier 3
        const V t618 = c[9] * t617;
        const V t619 = c[10] * t617;
        // complex block of 2
        const V t620 = t199 + t244;
        // spectrum block of 17, multiplier 3
        const V t621 = c[8] * t620;
        const V t622 = c[7] * t620;
        // complex block of 2
        const V t623 = t202 + t240;
        // spectrum block of 17, multiplier 3
        const V t624 = c[7] * t623;
        const V t625 = c[8] * t623;
        const V t626 = t624 - t621;
        const V t627 = t618 - t615;
        // complex block of 2
        const V t628 = t627 + t626;
        const V t629 = t627 - t626;
        // spectrum block of 17, multiplier 3
        const V t630 = t625 + t622;
        const V t631 = t619 + t616;
        // complex block of 2
        const V t632 = t631 + t630;
        const V t633 = t630 - t631;
        // spectrum block of 2
        const V t634 = t574 + t567;
        // mirrored skew block of 4
        const V t635 = t588 + t589;
        // spectrum block of 2
        const V t636 = t634 + t635;
        const V t637 = t634 - t635;
        // complex block of 2
        const V t638 = t612 - t632;
        const V t639 = t608 + t628;
        // spectrum block of 2
        const V t640 = t636 + t639;
        io.out(37, t640);
        const V t641 = t636 - t639;
        io.out(31, t641);
        // spectrum block of 2
        const V t642 = t637 - t638;
        io.out(46, t642);
        const V t643 = t637 + t638;
        io.out(22, t643);
        // spectrum block of 2
        const V t644 = t574 - t567;
        // mirrored skew block of 4
        const V t645 = t592 - t591;
        // spectrum block of 2
        const V t646 = t644 - t645;
        const V t647 = t644 + t645;
        // complex block of 2
        const V t648 = t612 + t632;
        const V t649 = t608 - t628;
        // spectrum block of 16
        const V t650 = t649 + t648;
        const V t651 = t648 - t649;
        const V t652 = c[2] * t650;
        // spectrum block of 2
        const V t653 = t647 - t652;
        io.out(7, t653);
        const V t654 = t647 + t652;
        io.out(10, t654);
        // spectrum block of 16
        const V t655 = c[2] * t651;
        // spectrum block of 2
        const V t656 = t646 - t655;
        io.out(40, t656);
        const V t657 = t646 + t655;
        io.out(28, t657);
        // spectrum block of 2
        const V t658 = t575 + t568;
        const V t659 = t575 - t568;
        // complex block of 2
        const V t660 = t613 + t629;
        // spectrum block of 16
        const V t661 = c[0] * t660;
        const V t662 = c[1] * t660;
        // complex block of 2
        const V t663 = t609 + t633;
        // spectrum block of 16
        const V t664 = c[1] * t663;
        const V t665 = c[0] * t663;
        // complex block of 2
        const V t666 = t613 - t629;
        // spectrum block of 16
        const V t667 = c[1] * t666;
        const V t668 = c[0] * t666;
        // complex block of 2
        const V t669 = t633 - t609;
        // spectrum block of 16
        const V t670 = c[0] * t669;
        const V t671 = c[1] * t669;
        // mirrored skew block of 4
        const V t672 = c[2] * t590;
        const V t673 = c[2] * t593;
        const V t674 = t672 + t673;
        const V t675 = t672 - t673;
        // spectrum block of 16
        const V t676 = t664 + t661;
        // spectrum block of 2
        const V t677 = t658 + t674;
        // spectrum block of 2
        const V t678 = t677 - t676;
        io.out(1, t678);
        const V t679 = t677 + t676;
        io.out(16, t679);
        // spectrum block of 16
        const V t680 = t662 - t665;
        // spectrum block of 2
        const V t681 = t658 - t674;
        // spectrum block of 2
        const V t682 = t681 - t680;
        io.out(4, t682);
        const V t683 = t681 + t680;
        io.out(13, t683);
        // spectrum block of 16
        const V t684 = t670 - t667;
        // spectrum block of 2
        const V t685 = t659 - t675;
        // spectrum block of 2
        const V t686 = t685 + t684;
        io.out(19, t686);
        const V t687 = t685 - t684;
        io.out(49, t687);
        // spectrum block of 16
        const V t688 = t668 + t671;
        // spectrum block of 2
        const V t689 = t659 + t675;
        // spectrum block of 2
        const V t690 = t689 - t688;
        io.out(25, t690);
        const V t691 = t689 + t688;
        io.out(43, t691);
        // spectrum block of 17, multiplier 3
        const V t692 = t5 + t569;
        io.out(34, t692);
    }
};

}  // namespace zulg
