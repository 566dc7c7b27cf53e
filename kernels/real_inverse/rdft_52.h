// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 52.
// Inverse DFT to 52 real points, prime-factor 13, 4.
// 207 additions, 207 subtractions, 210 multiplications (262 with `scale`); 19 constants; 86 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<52> {
    static constexpr int steps = 676;  // with `scale`
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.1741386011521359,  // c[2]: Q[3] of 13
        0.5751407294740031,  // c[3]: P[3] of 13
        0.5084294662830964,  // c[4]: -Q[5] of 13
        0.3203288761978803,  // c[5]: P[5] of 13
        0.6007253775544544,  // c[6]: -Q[1] of 13
        0.015496188988565054,  // c[7]: P[1] of 13
        0.15924941320823024,  // c[8]: -Q[4] of 13
        0.6008758031820526,  // c[9]: -Q[2] of 13
        0.007705858903092426,  // c[10]: P[2] of 13
        0.5794400189009605,  // c[11]: -P[4] of 13
        0.5018097763375671,  // c[12]: -sin 2 pi 2/3 times -P[4] of 13
        0.1379140373760925,  // c[13]: -sin 2 pi 2/3 times -Q[4] of 13
        0.00667346956805653,  // c[14]: -sin 2 pi 2/3 times P[2] of 13
        0.520373710075036,  // c[15]: -sin 2 pi 2/3 times -Q[2] of 13
        0.08333333333333333,  // c[16]: 1/12
        0.3004626062886658,  // c[17]: beta of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x4r = io.re(4);
        const V t0 = two * x4r;
        const V x12r = io.re(12);
        const V t1 = two * x12r;
        const V x16r = io.re(16);
        const V t2 = two * x16r;
        // real block of 3, multiplier 2
        const V t3 = t2 + t1;
        const V t4 = t3 + t0;
        const V t5 = c[0] * t3;
        const V t6 = t2 - t1;
        const V t7 = c[1] * t6;
        // doubled bins
        const V x8r = io.re(8);
        const V t8 = two * x8r;
        const V x20r = io.re(20);
        const V t9 = two * x20r;
        const V x24r = io.re(24);
        const V t10 = two * x24r;
        // real block of 3, multiplier 2
        const V t11 = t10 + t8;
        const V t12 = t11 + t9;
        const V t13 = c[0] * t11;
        const V t14 = t10 - t8;
        const V t15 = c[1] * t14;
        // real block of 3, multiplier 2
        const V t16 = t0 - t5;
        // real block of 3, multiplier 2
        const V t17 = t9 - t13;
        // complex block of 2
        const V t18 = t16 + t17;
        const V t19 = t16 - t17;
        const V t20 = t7 + t15;
        // spectrum block of 13, multiplier 4
        const V t21 = c[8] * t20;
        // complex block of 2
        const V t22 = t7 - t15;
        // spectrum block of 13, multiplier 4
        const V t23 = c[9] * t22;
        const V t24 = c[10] * t19;
        const V t25 = t24 - t23;
        const V t26 = c[11] * t18;
        const V t27 = t21 - t26;
        // spectrum block of 3
        const V t28 = c[12] * t20;
        const V t29 = c[13] * t18;
        // spectrum block of 3
        const V t30 = c[14] * t22;
        const V t31 = c[15] * t19;
        // real block of 2
        const V t32 = t4 + t12;
        // spectrum block of 13, multiplier 4
        const V t33 = c[16] * t32;
        const V x0r = io.re(0);
        const V t34 = x0r - t33;
        // real block of 2
        const V t35 = t4 - t12;
        // spectrum block of 13, multiplier 4
        const V t36 = c[17] * t35;
        // doubled bins
        const V x1r = io.re(1);
        const V t37 = two * x1r;
        const V x3r = io.re(3);
        const V t38 = two * x3r;
        const V x5r = io.re(5);
        const V t39 = two * x5r;
        const V x11r = io.re(11);
        const V t40 = two * x11r;
        const V x15r = io.re(15);
        const V t41 = two * x15r;
        const V x21r = io.re(21);
        const V t42 = two * x21r;
        const V x23r = io.re(23);
        const V t43 = two * x23r;
        const V x25r = io.re(25);
        const V t44 = two * x25r;
        // real block of 2
        const V t45 = t44 + t37;
        // real block of 2
        const V t46 = t39 + t42;
        // real block of 2
        const V t47 = t45 + t46;
        const V t48 = t45 - t46;
        // real block of 2
        const V t49 = t44 - t37;
        // real block of 2
        const V t50 = t38 - t43;
        // complex block of 3
        const V t51 = t49 + t50;
        const V t52 = t49 - t50;
        // real block of 2
        const V t53 = t39 - t42;
        // real block of 2
        const V t54 = t40 - t41;
        // complex block of 3
        const V t55 = t53 + t54;
        const V t56 = t53 - t54;
        // real block of 2
        const V t57 = t38 + t43;
        // real block of 2
        const V t58 = t40 + t41;
        // real block of 2
        const V t59 = t57 + t58;
        const V t60 = t57 - t58;
        // doubled bins
        const V x7r = io.re(7);
        const V t61 = two * x7r;
        const V x19r = io.re(19);
        const V t62 = two * x19r;
        // real block of 2
        const V t63 = t61 + t62;
        const V t64 = t61 - t62;
        // doubled bins
        const V x9r = io.re(9);
        const V t65 = two * x9r;
        const V x17r = io.re(17);
        const V t66 = two * x17r;
        // real block of 2
        const V t67 = t66 + t65;
        const V t68 = t66 - t65;
        // real block of 2
        const V t69 = t67 + t63;
        // real block of 3
        const V t70 = t47 + t59;
        const V t71 = t70 + t69;
        const V t72 = c[0] * t70;
        const V t73 = t69 - t72;
        // complex block of 13, multiplier 4
        const V t74 = c[11] * t73;
        const V t75 = c[16] * t71;
        // real block of 2
        const V t76 = t67 - t63;
        // real block of 3
        const V t77 = t48 + t60;
        const V t78 = c[0] * t77;
        const V t79 = t77 + t76;
        const V t80 = t76 - t78;
        // complex block of 13, multiplier 4
        const V t81 = c[10] * t80;
        // real block of 3
        const V t82 = t47 - t59;
        const V t83 = c[1] * t82;
        // complex block of 13, multiplier 4
        const V t84 = c[8] * t83;
        // complex block of 3
        const V t85 = t51 + t68;
        // complex block of 13, multiplier 4
        const V t86 = c[2] * t85;
        const V t87 = c[3] * t85;
        // complex block of 3
        const V t88 = t55 + t64;
        // complex block of 13, multiplier 4
        const V t89 = c[3] * t88;
        const V t90 = c[2] * t88;
        // complex block of 3
        const V t91 = c[0] * t51;
        const V t92 = t68 - t91;
        const V t93 = c[1] * t56;
        const V t94 = t92 + t93;
        // complex block of 13, multiplier 4
        const V t95 = c[4] * t94;
        const V t96 = c[5] * t94;
        // complex block of 3
        const V t97 = t92 - t93;
        // complex block of 13, multiplier 4
        const V t98 = c[6] * t97;
        const V t99 = c[7] * t97;
        // complex block of 3
        const V t100 = c[0] * t55;
        const V t101 = t64 - t100;
        const V t102 = c[1] * t52;
        const V t103 = t101 - t102;
        // complex block of 13, multiplier 4
        const V t104 = c[5] * t103;
        const V t105 = c[4] * t103;
        // complex block of 3
        const V t106 = t101 + t102;
        // complex block of 13, multiplier 4
        const V t107 = c[7] * t106;
        const V t108 = c[6] * t106;
        // real block of 3
        const V t109 = t48 - t60;
        const V t110 = c[1] * t109;
        // complex block of 13, multiplier 4
        const V t111 = c[9] * t110;
        // doubled bins
        const V x1i = io.im(1);
        const V t112 = two * x1i;
        const V x3i = io.im(3);
        const V t113 = two * x3i;
        const V x5i = io.im(5);
        const V t114 = two * x5i;
        const V x11i = io.im(11);
        const V t115 = two * x11i;
        const V x15i = io.im(15);
        const V t116 = two * x15i;
        const V x21i = io.im(21);
        const V t117 = two * x21i;
        const V x23i = io.im(23);
        const V t118 = two * x23i;
        const V x25i = io.im(25);
        const V t119 = two * x25i;
        // real block of 2
        const V t120 = t119 + t112;
        // real block of 2
        const V t121 = t114 + t117;
        // real block of 2
        const V t122 = t120 + t121;
        const V t123 = t120 - t121;
        // real block of 2
        const V t124 = t119 - t112;
        // real block of 2
        const V t125 = t118 - t113;
        // complex block of 3
        const V t126 = t124 + t125;
        const V t127 = t124 - t125;
        // real block of 2
        const V t128 = t114 - t117;
        // real block of 2
        const V t129 = t116 - t115;
        // complex block of 3
        const V t130 = t128 + t129;
        const V t131 = t128 - t129;
        // real block of 2
        const V t132 = t113 + t118;
        // real block of 2
        const V t133 = t115 + t116;
        // real block of 2
        const V t134 = t132 + t133;
        const V t135 = t133 - t132;
        // doubled bins
        const V x7i = io.im(7);
        const V t136 = two * x7i;
        const V x19i = io.im(19);
        const V t137 = two * x19i;
        // real block of 2
        const V t138 = t136 + t137;
        const V t139 = t137 - t136;
        // doubled bins
        const V x9i = io.im(9);
        const V t140 = two * x9i;
        const V x17i = io.im(17);
        const V t141 = two * x17i;
        // real block of 2
        const V t142 = t141 + t140;
        const V t143 = t141 - t140;
        // real block of 2
        const V t144 = t142 - t138;
        // real block of 3
        const V t145 = t122 - t134;
        const V t146 = t145 + t144;
        const V t147 = c[0] * t145;
        const V t148 = t144 - t147;
        // complex block of 13, multiplier 4
        const V t149 = c[11] * t148;
        const V t150 = c[16] * t146;
        // real block of 2
        const V t151 = t142 + t138;
        // real block of 3
        const V t152 = t123 + t135;
        const V t153 = c[0] * t152;
        const V t154 = t152 + t151;
        const V t155 = t151 - t153;
        // complex block of 13, multiplier 4
        const V t156 = c[10] * t155;
        // real block of 3
        const V t157 = t122 + t134;
        const V t158 = c[1] * t157;
        // complex block of 13, multiplier 4
        const V t159 = c[8] * t158;
        // complex block of 3
        const V t160 = t126 + t143;
        // complex block of 13, multiplier 4
        const V t161 = c[2] * t160;
        const V t162 = c[3] * t160;
        // complex block of 3
        const V t163 = t130 + t139;
        // complex block of 13, multiplier 4
        const V t164 = c[3] * t163;
        const V t165 = c[2] * t163;
        // complex block of 3
        const V t166 = c[0] * t126;
        const V t167 = t143 - t166;
        const V t168 = c[1] * t131;
        const V t169 = t167 + t168;
        // complex block of 13, multiplier 4
        const V t170 = c[4] * t169;
        const V t171 = c[5] * t169;
        // complex block of 3
        const V t172 = t167 - t168;
        // complex block of 13, multiplier 4
        const V t173 = c[6] * t172;
        const V t174 = c[7] * t172;
        // complex block of 3
        const V t175 = c[0] * t130;
        const V t176 = t139 - t175;
        const V t177 = c[1] * t127;
        const V t178 = t176 - t177;
        // complex block of 13, multiplier 4
        const V t179 = c[5] * t178;
        const V t180 = c[4] * t178;
        // complex block of 3
        const V t181 = t176 + t177;
        // complex block of 13, multiplier 4
        const V t182 = c[7] * t181;
        const V t183 = c[6] * t181;
        // real block of 3
        const V t184 = t123 - t135;
        const V t185 = c[1] * t184;
        // complex block of 13, multiplier 4
        const V t186 = c[9] * t185;
        // doubled bins
        const V x2r = io.re(2);
        const V t187 = two * x2r;
        const V x6r = io.re(6);
        const V t188 = two * x6r;
        const V x18r = io.re(18);
        const V t189 = two * x18r;
        // real block of 3, multiplier 2
        const V t190 = t187 + t189;
        const V t191 = t190 + t188;
        const V t192 = c[0] * t190;
        const V t193 = t187 - t189;
        const V t194 = c[1] * t193;
        // doubled bins
        const V x10r = io.re(10);
        const V t195 = two * x10r;
        const V x14r = io.re(14);
        const V t196 = two * x14r;
        const V x22r = io.re(22);
        const V t197 = two * x22r;
        // real block of 3, multiplier 2
        const V t198 = t195 + t196;
        const V t199 = t198 + t197;
        const V t200 = c[0] * t198;
        const V t201 = t195 - t196;
        const V t202 = c[1] * t201;
        const V t203 = t197 - t200;
        // real block of 3, multiplier 2
        const V t204 = t188 - t192;
        // complex block of 2
        const V t205 = t203 + t204;
        const V t206 = t203 - t204;
        const V t207 = t202 + t194;
        // spectrum block of 13, multiplier 4
        const V t208 = c[8] * t207;
        // complex block of 2
        const V t209 = t202 - t194;
        // spectrum block of 13, multiplier 4
        const V t210 = c[9] * t209;
        const V t211 = c[10] * t206;
        const V t212 = t211 - t210;
        const V t213 = c[11] * t205;
        const V t214 = t208 - t213;
        // spectrum block of 3
        const V t215 = c[12] * t207;
        const V t216 = c[13] * t205;
        // spectrum block of 3
        const V t217 = c[14] * t209;
        const V t218 = c[15] * t206;
        // real block of 2
        const V t219 = t199 + t191;
        // spectrum block of 13, multiplier 4
        const V t220 = c[16] * t219;
        const V x26r = io.re(26);
        const V t221 = x26r - t220;
        // real block of 2
        const V t222 = t199 - t191;
        // spectrum block of 13, multiplier 4
        const V t223 = c[17] * t222;
        // doubled bins
        const V x2i = io.im(2);
        const V t224 = two * x2i;
        // skew block of 6
        const V t225 = c[1] * t224;
        const V t226 = c[0] * t224;
        // doubled bins
        const V x10i = io.im(10);
        const V t227 = two * x10i;
        // skew block of 6
        const V t228 = c[0] * t227;
        const V t229 = c[1] * t227;
        // doubled bins
        const V x14i = io.im(14);
        const V t230 = two * x14i;
        // skew block of 6
        const V t231 = c[0] * t230;
        const V t232 = c[1] * t230;
        // doubled bins
        const V x18i = io.im(18);
        const V t233 = two * x18i;
        // skew block of 6
        const V t234 = c[1] * t233;
        const V t235 = c[0] * t233;
        const V t236 = t231 - t234;
        const V t237 = t225 - t228;
        // complex block of 3
        const V t238 = t236 + t237;
        // skew block of 6
        const V t239 = t232 + t235;
        const V t240 = t226 + t229;
        // complex block of 3
        const V t241 = t239 + t240;
        // doubled bins
        const V x6i = io.im(6);
        const V t242 = two * x6i;
        const V x22i = io.im(22);
        const V t243 = two * x22i;
        // complex block of 3
        const V t244 = t236 - t237;
        const V t245 = c[1] * t244;
        const V t246 = c[0] * t241;
        const V t247 = t242 + t246;
        const V t248 = t247 + t245;
        // spectrum block of 13, multiplier 4
        const V t249 = c[5] * t248;
        const V t250 = c[4] * t248;
        // complex block of 3
        const V t251 = t245 - t247;
        const V t252 = t239 - t240;
        const V t253 = c[1] * t252;
        const V t254 = c[0] * t238;
        const V t255 = t243 + t254;
        const V t256 = t253 - t255;
        // spectrum block of 13, multiplier 4
        const V t257 = c[4] * t256;
        const V t258 = c[5] * t256;
        // complex block of 3
        const V t259 = t255 + t253;
        const V t260 = t238 - t243;
        // spectrum block of 13, multiplier 4
        const V t261 = c[6] * t260;
        const V t262 = c[7] * t260;
        // complex block of 3
        const V t263 = t241 - t242;
        // spectrum block of 13, multiplier 4
        const V t264 = c[7] * t263;
        const V t265 = c[6] * t263;
        const V t266 = t261 + t264;
        const V t267 = t262 - t265;
        // doubled bins
        const V x4i = io.im(4);
        const V t268 = two * x4i;
        const V x8i = io.im(8);
        const V t269 = two * x8i;
        // skew block of 6
        const V t270 = c[1] * t269;
        const V t271 = c[0] * t269;
        // doubled bins
        const V x12i = io.im(12);
        const V t272 = two * x12i;
        // skew block of 6
        const V t273 = c[0] * t272;
        const V t274 = c[1] * t272;
        // doubled bins
        const V x16i = io.im(16);
        const V t275 = two * x16i;
        // skew block of 6
        const V t276 = c[0] * t275;
        const V t277 = c[1] * t275;
        // doubled bins
        const V x24i = io.im(24);
        const V t278 = two * x24i;
        // skew block of 6
        const V t279 = c[1] * t278;
        const V t280 = c[0] * t278;
        const V t281 = t270 - t273;
        const V t282 = t276 - t279;
        // complex block of 3
        const V t283 = t281 + t282;
        // skew block of 6
        const V t284 = t274 + t271;
        const V t285 = t280 + t277;
        // complex block of 3
        const V t286 = t284 + t285;
        // doubled bins
        const V x20i = io.im(20);
        const V t287 = two * x20i;
        // complex block of 3
        const V t288 = t281 - t282;
        const V t289 = c[1] * t288;
        const V t290 = c[0] * t286;
        const V t291 = t290 + t287;
        const V t292 = t291 - t289;
        // spectrum block of 13, multiplier 4
        const V t293 = c[5] * t292;
        const V t294 = c[4] * t292;
        // complex block of 3
        const V t295 = t291 + t289;
        const V t296 = t285 - t284;
        const V t297 = c[1] * t296;
        const V t298 = c[0] * t283;
        const V t299 = t268 - t298;
        const V t300 = t299 + t297;
        // spectrum block of 13, multiplier 4
        const V t301 = c[4] * t300;
        const V t302 = c[5] * t300;
        // complex block of 3
        const V t303 = t299 - t297;
        const V t304 = t283 + t268;
        // spectrum block of 13, multiplier 4
        const V t305 = c[6] * t304;
        const V t306 = c[7] * t304;
        // complex block of 3
        const V t307 = t287 - t286;
        // spectrum block of 13, multiplier 4
        const V t308 = c[7] * t307;
        const V t309 = c[6] * t307;
        const V t310 = t305 + t308;
        const V t311 = t306 - t309;
        // doubled bins
        const V x13r = io.re(13);
        const V t312 = two * x13r;
        const V x13i = io.im(13);
        const V t313 = two * x13i;
        // spectrum block of 13, multiplier 4
        const V t314 = c[3] * t295;
        const V t315 = c[2] * t303;
        const V t316 = t315 + t314;
        const V t317 = t301 + t293;
        // complex block of 3
        const V t318 = t317 + t310;
        const V t319 = t310 - t317;
        const V t320 = t316 - t318;
        const V t321 = c[0] * t318;
        const V t322 = t321 + t316;
        const V t323 = c[1] * t319;
        // spectrum block of 13, multiplier 4
        const V t324 = c[3] * t303;
        const V t325 = c[2] * t295;
        const V t326 = t324 - t325;
        const V t327 = t302 - t294;
        // complex block of 3
        const V t328 = t327 + t311;
        const V t329 = t311 - t327;
        const V t330 = t326 - t328;
        const V t331 = c[0] * t328;
        const V t332 = t331 + t326;
        const V t333 = c[1] * t329;
        // spectrum block of 3
        const V t334 = t27 + t34;
        // spectrum block of 3
        const V t335 = t25 + t36;
        // spectrum block of 2
        const V t336 = t334 + t335;
        const V t337 = t334 - t335;
        // spectrum block of 3
        const V t338 = c[0] * t27;
        const V t339 = t34 - t338;
        const V t340 = t28 + t29;
        // spectrum block of 3
        const V t341 = c[0] * t25;
        const V t342 = t36 - t341;
        const V t343 = t30 + t31;
        // spectrum block of 3
        const V t344 = t339 + t340;
        // spectrum block of 3
        const V t345 = t342 - t343;
        // spectrum block of 2
        const V t346 = t344 + t345;
        const V t347 = t344 - t345;
        // spectrum block of 3
        const V t348 = t339 - t340;
        // spectrum block of 3
        const V t349 = t342 + t343;
        // spectrum block of 2
        const V t350 = t348 + t349;
        const V t351 = t348 - t349;
        // complex block of 13, multiplier 4
        const V t352 = t313 - t150;
        const V t353 = t149 + t159;
        // spectrum block of 3
        const V t354 = t352 - t353;
        const V t355 = c[0] * t353;
        // complex block of 13, multiplier 4
        const V t356 = t156 + t186;
        const V t357 = c[17] * t154;
        // spectrum block of 3
        const V t358 = t356 + t357;
        const V t359 = c[0] * t356;
        // spectrum block of 3
        const V t360 = c[12] * t158;
        const V t361 = c[13] * t148;
        const V t362 = t360 - t361;
        // spectrum block of 3
        const V t363 = c[14] * t185;
        const V t364 = c[15] * t155;
        const V t365 = t363 - t364;
        // spectrum block of 3
        const V t366 = t355 + t352;
        const V t367 = t366 - t362;
        const V t368 = t366 + t362;
        // spectrum block of 3
        const V t369 = t357 - t359;
        const V t370 = t369 + t365;
        const V t371 = t369 - t365;
        // spectrum block of 2
        const V t372 = t354 + t358;
        const V t373 = t354 - t358;
        // complex block of 13, multiplier 4
        const V t374 = t312 - t75;
        const V t375 = t74 + t84;
        // spectrum block of 3
        const V t376 = t374 - t375;
        const V t377 = c[0] * t375;
        // complex block of 13, multiplier 4
        const V t378 = t81 + t111;
        const V t379 = c[17] * t79;
        // spectrum block of 3
        const V t380 = t378 + t379;
        const V t381 = c[0] * t378;
        // spectrum block of 3
        const V t382 = c[12] * t83;
        const V t383 = c[13] * t73;
        const V t384 = t382 - t383;
        // spectrum block of 3
        const V t385 = c[14] * t110;
        const V t386 = c[15] * t80;
        const V t387 = t385 - t386;
        // spectrum block of 3
        const V t388 = t377 + t374;
        const V t389 = t388 - t384;
        const V t390 = t388 + t384;
        // spectrum block of 3
        const V t391 = t379 - t381;
        const V t392 = t391 + t387;
        const V t393 = t391 - t387;
        // spectrum block of 2
        const V t394 = t376 + t380;
        const V t395 = t376 - t380;
        // complex block of 13, multiplier 4
        const V t396 = t98 - t107;
        const V t397 = t95 - t104;
        // complex block of 3
        const V t398 = t397 + t396;
        const V t399 = t397 - t396;
        // complex block of 13, multiplier 4
        const V t400 = t89 - t86;
        // complex block of 3
        const V t401 = t398 + t400;
        const V t402 = c[0] * t398;
        const V t403 = t400 - t402;
        const V t404 = c[1] * t399;
        // complex block of 13, multiplier 4
        const V t405 = t108 + t99;
        const V t406 = t105 + t96;
        // complex block of 3
        const V t407 = t406 + t405;
        const V t408 = t406 - t405;
        // complex block of 13, multiplier 4
        const V t409 = t90 + t87;
        // complex block of 3
        const V t410 = t407 - t409;
        const V t411 = c[0] * t407;
        const V t412 = t409 + t411;
        const V t413 = c[1] * t408;
        // complex block of 13, multiplier 4
        const V t414 = t182 - t173;
        const V t415 = t179 - t170;
        // complex block of 3
        const V t416 = t415 + t414;
        const V t417 = t415 - t414;
        // complex block of 13, multiplier 4
        const V t418 = t161 - t164;
        // complex block of 3
        const V t419 = t416 + t418;
        const V t420 = c[0] * t416;
        const V t421 = t418 - t420;
        const V t422 = c[1] * t417;
        // complex block of 13, multiplier 4
        const V t423 = t183 + t174;
        const V t424 = t180 + t171;
        // complex block of 3
        const V t425 = t424 + t423;
        const V t426 = t423 - t424;
        // complex block of 13, multiplier 4
        const V t427 = t165 + t162;
        // complex block of 3
        const V t428 = t427 - t425;
        const V t429 = c[0] * t425;
        const V t430 = t429 + t427;
        const V t431 = c[1] * t426;
        // spectrum block of 13, multiplier 4
        const V t432 = c[3] * t251;
        const V t433 = c[2] * t259;
        const V t434 = t432 - t433;
        const V t435 = t249 - t257;
        // complex block of 3
        const V t436 = t435 - t266;
        const V t437 = t435 + t266;
        const V t438 = t436 + t434;
        const V t439 = c[0] * t436;
        const V t440 = t434 - t439;
        const V t441 = c[1] * t437;
        // spectrum block of 13, multiplier 4
        const V t442 = c[3] * t259;
        const V t443 = c[2] * t251;
        const V t444 = t443 + t442;
        const V t445 = t250 + t258;
        // complex block of 3
        const V t446 = t445 + t267;
        const V t447 = t267 - t445;
        const V t448 = t446 + t444;
        const V t449 = c[0] * t446;
        const V t450 = t449 - t444;
        const V t451 = c[1] * t447;
        // spectrum block of 3
        const V t452 = t214 + t221;
        // spectrum block of 3
        const V t453 = t212 + t223;
        // spectrum block of 2
        const V t454 = t452 + t453;
        const V t455 = t452 - t453;
        // spectrum block of 3
        const V t456 = c[0] * t214;
        const V t457 = t221 - t456;
        const V t458 = t215 + t216;
        // spectrum block of 3
        const V t459 = c[0] * t212;
        const V t460 = t223 - t459;
        const V t461 = t217 + t218;
        // spectrum block of 3
        const V t462 = t457 + t458;
        // spectrum block of 3
        const V t463 = t460 - t461;
        // spectrum block of 2
        const V t464 = t462 + t463;
        const V t465 = t462 - t463;
        // spectrum block of 3
        const V t466 = t457 - t458;
        // spectrum block of 3
        const V t467 = t460 + t461;
        // spectrum block of 2
        const V t468 = t466 + t467;
        const V t469 = t466 - t467;
        // complex block of 3
        const V t470 = t332 + t323;
        // spectrum block of 2
        const V t471 = t347 + t470;
        const V t472 = t347 - t470;
        // complex block of 3
        const V t473 = t404 - t412;
        // spectrum block of 2
        const V t474 = t367 - t370;
        // spectrum block of 2
        const V t475 = t474 + t473;
        const V t476 = t474 - t473;
        // complex block of 3
        const V t477 = t430 + t422;
        // spectrum block of 2
        const V t478 = t389 - t392;
        // spectrum block of 2
        const V t479 = t478 + t477;
        const V t480 = t478 - t477;
        // complex block of 3
        const V t481 = t450 + t441;
        // spectrum block of 2
        const V t482 = t465 + t481;
        const V t483 = t465 - t481;
        // spectrum block of 2
        const V t484 = t471 + t482;
        // spectrum block of 2
        const V t485 = t484 + t479;
        io.out(24, t485);
        const V t486 = t484 - t479;
        io.out(50, t486);
        // spectrum block of 2
        const V t487 = t471 - t482;
        // spectrum block of 2
        const V t488 = t487 - t475;
        io.out(37, t488);
        const V t489 = t487 + t475;
        io.out(11, t489);
        // spectrum block of 2
        const V t490 = t472 + t483;
        // spectrum block of 2
        const V t491 = t490 + t480;
        io.out(28, t491);
        const V t492 = t490 - t480;
        io.out(2, t492);
        // spectrum block of 2
        const V t493 = t472 - t483;
        // spectrum block of 2
        const V t494 = t493 - t476;
        io.out(41, t494);
        const V t495 = t493 + t476;
        io.out(15, t495);
        // complex block of 3
        const V t496 = t322 - t333;
        // spectrum block of 2
        const V t497 = t346 + t496;
        const V t498 = t346 - t496;
        // complex block of 3
        const V t499 = t403 - t413;
        // spectrum block of 2
        const V t500 = t367 + t370;
        // spectrum block of 2
        const V t501 = t500 + t499;
        const V t502 = t500 - t499;
        // complex block of 3
        const V t503 = t421 - t431;
        // spectrum block of 2
        const V t504 = t389 + t392;
        // spectrum block of 2
        const V t505 = t504 + t503;
        const V t506 = t504 - t503;
        // complex block of 3
        const V t507 = t440 - t451;
        // spectrum block of 2
        const V t508 = t464 + t507;
        const V t509 = t464 - t507;
        // spectrum block of 2
        const V t510 = t498 + t509;
        // spectrum block of 2
        const V t511 = t510 + t506;
        io.out(16, t511);
        const V t512 = t510 - t506;
        io.out(42, t512);
        // spectrum block of 2
        const V t513 = t498 - t509;
        // spectrum block of 2
        const V t514 = t513 - t502;
        io.out(29, t514);
        const V t515 = t513 + t502;
        io.out(3, t515);
        // spectrum block of 2
        const V t516 = t497 + t508;
        // spectrum block of 2
        const V t517 = t516 + t505;
        io.out(36, t517);
        const V t518 = t516 - t505;
        io.out(10, t518);
        // spectrum block of 2
        const V t519 = t497 - t508;
        // spectrum block of 2
        const V t520 = t519 - t501;
        io.out(49, t520);
        const V t521 = t519 + t501;
        io.out(23, t521);
        // complex block of 3
        const V t522 = t332 - t323;
        // spectrum block of 2
        const V t523 = t351 + t522;
        const V t524 = t351 - t522;
        // complex block of 3
        const V t525 = t412 + t404;
        // spectrum block of 2
        const V t526 = t368 - t371;
        // spectrum block of 2
        const V t527 = t526 - t525;
        const V t528 = t526 + t525;
        // complex block of 3
        const V t529 = t430 - t422;
        // spectrum block of 2
        const V t530 = t390 - t393;
        // spectrum block of 2
        const V t531 = t530 + t529;
        const V t532 = t530 - t529;
        // complex block of 3
        const V t533 = t450 - t441;
        // spectrum block of 2
        const V t534 = t469 + t533;
        const V t535 = t469 - t533;
        // spectrum block of 2
        const V t536 = t523 + t534;
        // spectrum block of 2
        const V t537 = t536 + t531;
        io.out(8, t537);
        const V t538 = t536 - t531;
        io.out(34, t538);
        // spectrum block of 2
        const V t539 = t523 - t534;
        // spectrum block of 2
        const V t540 = t539 - t527;
        io.out(21, t540);
        const V t541 = t539 + t527;
        io.out(47, t541);
        // spectrum block of 2
        const V t542 = t524 + t535;
        // spectrum block of 2
        const V t543 = t542 + t532;
        io.out(44, t543);
        const V t544 = t542 - t532;
        io.out(18, t544);
        // spectrum block of 2
        const V t545 = t524 - t535;
        // spectrum block of 2
        const V t546 = t545 - t528;
        io.out(5, t546);
        const V t547 = t545 + t528;
        io.out(31, t547);
        // complex block of 3
        const V t548 = t322 + t333;
        // spectrum block of 2
        const V t549 = t350 + t548;
        const V t550 = t350 - t548;
        // complex block of 3
        const V t551 = t403 + t413;
        // spectrum block of 2
        const V t552 = t368 + t371;
        // spectrum block of 2
        const V t553 = t552 + t551;
        const V t554 = t552 - t551;
        // complex block of 3
        const V t555 = t421 + t431;
        // spectrum block of 2
        const V t556 = t390 + t393;
        // spectrum block of 2
        const V t557 = t556 + t555;
        const V t558 = t556 - t555;
        // complex block of 3
        const V t559 = t440 + t451;
        // spectrum block of 2
        const V t560 = t468 + t559;
        const V t561 = t468 - t559;
        // spectrum block of 2
        const V t562 = t549 + t560;
        // spectrum block of 2
        const V t563 = t562 + t557;
        io.out(12, t563);
        const V t564 = t562 - t557;
        io.out(38, t564);
        // spectrum block of 2
        const V t565 = t549 - t560;
        // spectrum block of 2
        const V t566 = t565 - t553;
        io.out(25, t566);
        const V t567 = t565 + t553;
        io.out(51, t567);
        // spectrum block of 2
        const V t568 = t550 + t561;
        // spectrum block of 2
        const V t569 = t568 + t558;
        io.out(40, t569);
        const V t570 = t568 - t558;
        io.out(14, t570);
        // spectrum block of 2
        const V t571 = t550 - t561;
        // spectrum block of 2
        const V t572 = t571 - t554;
        io.out(1, t572);
        const V t573 = t571 + t554;
        io.out(27, t573);
        // spectrum block of 2
        const V t574 = t336 + t320;
        // spectrum block of 2
        const V t575 = t454 + t438;
        // spectrum block of 2
        const V t576 = t574 + t575;
        const V t577 = t574 - t575;
        // spectrum block of 2
        const V t578 = t372 + t401;
        // spectrum block of 2
        const V t579 = t394 + t419;
        // spectrum block of 2
        const V t580 = t576 + t579;
        io.out(4, t580);
        const V t581 = t576 - t579;
        io.out(30, t581);
        // spectrum block of 2
        const V t582 = t577 - t578;
        io.out(17, t582);
        const V t583 = t577 + t578;
        io.out(43, t583);
        // spectrum block of 2
        const V t584 = t336 - t320;
        // spectrum block of 2
        const V t585 = t454 - t438;
        // spectrum block of 2
        const V t586 = t584 + t585;
        const V t587 = t584 - t585;
        // spectrum block of 2
        const V t588 = t372 - t401;
        // spectrum block of 2
        const V t589 = t394 - t419;
        // spectrum block of 2
        const V t590 = t586 + t589;
        io.out(48, t590);
        const V t591 = t586 - t589;
        io.out(22, t591);
        // spectrum block of 2
        const V t592 = t587 - t588;
        io.out(9, t592);
        const V t593 = t587 + t588;
        io.out(35, t593);
        // spectrum block of 2
        const V t594 = t337 + t330;
        // spectrum block of 2
        const V t595 = t455 - t448;
        // spectrum block of 2
        const V t596 = t594 + t595;
        const V t597 = t594 - t595;
        // spectrum block of 2
        const V t598 = t373 + t410;
        // spectrum block of 2
        const V t599 = t395 + t428;
        // spectrum block of 2
        const V t600 = t596 + t599;
        io.out(20, t600);
        const V t601 = t596 - t599;
        io.out(46, t601);
        // spectrum block of 2
        const V t602 = t597 - t598;
        io.out(33, t602);
        const V t603 = t597 + t598;
        io.out(7, t603);
        // spectrum block of 2
        const V t604 = t337 - t330;
        // spectrum block of 2
        const V t605 = t455 + t448;
        // spectrum block of 2
        const V t606 = t604 + t605;
        const V t607 = t604 - t605;
        // spectrum block of 2
        const V t608 = t373 - t410;
        // spectrum block of 2
        const V t609 = t395 - t428;
        // spectrum block of 2
        const V t610 = t606 + t609;
        io.out(32, t610);
        const V t611 = t606 - t609;
        io.out(6, t611);
        // spectrum block of 2
        const V t612 = t607 - t608;
        io.out(45, t612);
        const V t613 = t607 + t608;
        io.out(19, t613);
        // spectrum block of 13, multiplier 4
        const V t614 = x0r + t32;
        // spectrum block of 13, multiplier 4
        const V t615 = x26r + t219;
        // spectrum block of 2
        const V t616 = t614 + t615;
        const V t617 = t614 - t615;
        // complex block of 13, multiplier 4
        const V t618 = t313 + t146;
        const V t619 = t312 + t71;
        // spectrum block of 2
        const V t620 = t616 + t619;
        io.out(0, t620);
        const V t621 = t616 - t619;
        io.out(26, t621);
        // spectrum block of 2
        const V t622 = t617 - t618;
        io.out(13, t622);
        const V t623 = t617 + t618;
        io.out(39, t623);
    }
};

}  // namespace zulg
