// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 39.
// Inverse DFT to 39 real points, prime-factor 13, 3.
// 154 additions, 154 subtractions, 180 multiplications (219 with `scale`); 19 constants; 60 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<39> {
    static constexpr int steps = 527;  // with `scale`
    static constexpr double inverseRoot = 0.16012815380508713;  // 1/sqrt(39), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.1741386011521359,  // c[2]: -Q[3] of 13
        0.5751407294740031,  // c[3]: -P[3] of 13
        0.5316276774946329,  // c[4]: -Q[5] of 13
        0.280148395734785,  // c[5]: -P[5] of 13
        0.2869425954512852,  // c[6]: -Q[1] of 13
        0.5279915321544383,  // c[7]: P[1] of 13
        0.42218506973345193,  // c[8]: -Q[4] of 13
        0.29376443202296976,  // c[9]: Q[2] of 13
        0.5242266395265821,  // c[10]: -P[2] of 13
        0.42763404682657274,  // c[11]: P[4] of 13
        0.37034194807495624,  // c[12]: -sin 2 pi 2/3 times P[4] of 13
        0.36562299548767413,  // c[13]: -sin 2 pi 2/3 times -Q[4] of 13
        0.45399358717056765,  // c[14]: -sin 2 pi 2/3 times -P[2] of 13
        0.25440746086019866,  // c[15]: -sin 2 pi 2/3 times Q[2] of 13
        0.08333333333333333,  // c[16]: 1/12
        0.3004626062886658,  // c[17]: beta of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x3r = io.re(3);
        const V t0 = two * x3r;
        const V x9r = io.re(9);
        const V t1 = two * x9r;
        const V x12r = io.re(12);
        const V t2 = two * x12r;
        // real block of 3, multiplier 2
        const V t3 = t2 + t1;
        const V t4 = t3 + t0;
        const V t5 = c[0] * t3;
        const V t6 = t2 - t1;
        const V t7 = c[1] * t6;
        // doubled bins
        const V x6r = io.re(6);
        const V t8 = two * x6r;
        const V x15r = io.re(15);
        const V t9 = two * x15r;
        const V x18r = io.re(18);
        const V t10 = two * x18r;
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
        // spectrum block of 13, multiplier 3
        const V t21 = c[8] * t20;
        // complex block of 2
        const V t22 = t7 - t15;
        // spectrum block of 13, multiplier 3
        const V t23 = c[9] * t22;
        const V t24 = c[10] * t19;
        const V t25 = t23 - t24;
        const V t26 = c[11] * t18;
        const V t27 = t26 + t21;
        // spectrum block of 3
        const V t28 = c[12] * t20;
        const V t29 = c[13] * t18;
        // spectrum block of 3
        const V t30 = c[14] * t22;
        const V t31 = c[15] * t19;
        // real block of 2
        const V t32 = t4 + t12;
        // spectrum block of 13, multiplier 3
        const V t33 = c[16] * t32;
        const V x0r = io.re(0);
        const V t34 = x0r - t33;
        // real block of 2
        const V t35 = t4 - t12;
        // spectrum block of 13, multiplier 3
        const V t36 = c[17] * t35;
        // doubled bins
        const V x1r = io.re(1);
        const V t37 = two * x1r;
        const V x14r = io.re(14);
        const V t38 = two * x14r;
        // real block of 2
        const V t39 = t37 + t38;
        // doubled bins
        const V x4r = io.re(4);
        const V t40 = two * x4r;
        const V x17r = io.re(17);
        const V t41 = two * x17r;
        // real block of 2
        const V t42 = t41 + t40;
        // doubled bins
        const V x5r = io.re(5);
        const V t43 = two * x5r;
        const V x8r = io.re(8);
        const V t44 = two * x8r;
        // real block of 2
        const V t45 = t43 + t44;
        // doubled bins
        const V x7r = io.re(7);
        const V t46 = two * x7r;
        const V x19r = io.re(19);
        const V t47 = two * x19r;
        // real block of 2
        const V t48 = t46 + t47;
        // real block of 2
        const V t49 = t41 - t40;
        // real block of 2
        const V t50 = t37 - t38;
        // complex block of 3
        const V t51 = t49 + t50;
        const V t52 = t49 - t50;
        // real block of 2
        const V t53 = t46 - t47;
        // real block of 2
        const V t54 = t43 - t44;
        // complex block of 3
        const V t55 = t53 + t54;
        const V t56 = t53 - t54;
        // real block of 2
        const V t57 = t42 + t48;
        // real block of 2
        const V t58 = t39 + t45;
        // real block of 3
        const V t59 = t57 + t58;
        // real block of 2
        const V t60 = t42 - t48;
        // real block of 2
        const V t61 = t39 - t45;
        // real block of 3
        const V t62 = t60 + t61;
        // doubled bins
        const V x2r = io.re(2);
        const V t63 = two * x2r;
        const V x10r = io.re(10);
        const V t64 = two * x10r;
        const V x11r = io.re(11);
        const V t65 = two * x11r;
        const V x16r = io.re(16);
        const V t66 = two * x16r;
        // real block of 2
        const V t67 = t66 + t64;
        // real block of 2
        const V t68 = t63 + t65;
        // real block of 2
        const V t69 = t67 + t68;
        const V t70 = t67 - t68;
        // real block of 2
        const V t71 = t66 - t64;
        // real block of 2
        const V t72 = t63 - t65;
        // doubled bins
        const V x13r = io.re(13);
        const V t73 = two * x13r;
        // real block of 3
        const V t74 = t57 - t58;
        const V t75 = c[1] * t74;
        const V t76 = c[0] * t59;
        const V t77 = t69 - t76;
        // complex block of 13, multiplier 3
        const V t78 = c[8] * t75;
        const V t79 = c[11] * t77;
        const V t80 = t79 - t78;
        // spectrum block of 3
        const V t81 = c[12] * t75;
        const V t82 = c[13] * t77;
        // real block of 3
        const V t83 = t59 + t69;
        // complex block of 13, multiplier 3
        const V t84 = c[16] * t83;
        const V t85 = t73 - t84;
        // complex block of 3
        const V t86 = t51 + t71;
        // complex block of 13, multiplier 3
        const V t87 = c[2] * t86;
        const V t88 = c[3] * t86;
        // complex block of 3
        const V t89 = t55 + t72;
        // complex block of 13, multiplier 3
        const V t90 = c[3] * t89;
        const V t91 = c[2] * t89;
        // complex block of 3
        const V t92 = c[0] * t51;
        const V t93 = t71 - t92;
        const V t94 = c[1] * t56;
        const V t95 = t93 + t94;
        // complex block of 13, multiplier 3
        const V t96 = c[4] * t95;
        const V t97 = c[5] * t95;
        // complex block of 3
        const V t98 = t93 - t94;
        // complex block of 13, multiplier 3
        const V t99 = c[6] * t98;
        const V t100 = c[7] * t98;
        // complex block of 3
        const V t101 = c[0] * t55;
        const V t102 = t72 - t101;
        const V t103 = c[1] * t52;
        const V t104 = t102 - t103;
        // complex block of 13, multiplier 3
        const V t105 = c[5] * t104;
        const V t106 = c[4] * t104;
        // complex block of 3
        const V t107 = t102 + t103;
        // complex block of 13, multiplier 3
        const V t108 = c[7] * t107;
        const V t109 = c[6] * t107;
        // real block of 3
        const V t110 = t60 - t61;
        const V t111 = c[1] * t110;
        const V t112 = c[0] * t62;
        const V t113 = t70 - t112;
        // complex block of 13, multiplier 3
        const V t114 = c[9] * t111;
        const V t115 = c[10] * t113;
        const V t116 = t115 + t114;
        // spectrum block of 3
        const V t117 = c[15] * t113;
        const V t118 = c[14] * t111;
        // real block of 3
        const V t119 = t62 + t70;
        // complex block of 13, multiplier 3
        const V t120 = c[17] * t119;
        // doubled bins
        const V x1i = io.im(1);
        const V t121 = two * x1i;
        const V x14i = io.im(14);
        const V t122 = two * x14i;
        // real block of 2
        const V t123 = t121 + t122;
        // doubled bins
        const V x4i = io.im(4);
        const V t124 = two * x4i;
        const V x17i = io.im(17);
        const V t125 = two * x17i;
        // real block of 2
        const V t126 = t125 + t124;
        // doubled bins
        const V x5i = io.im(5);
        const V t127 = two * x5i;
        const V x8i = io.im(8);
        const V t128 = two * x8i;
        // real block of 2
        const V t129 = t128 - t127;
        // doubled bins
        const V x7i = io.im(7);
        const V t130 = two * x7i;
        const V x19i = io.im(19);
        const V t131 = two * x19i;
        // real block of 2
        const V t132 = t130 - t131;
        // real block of 2
        const V t133 = t124 - t125;
        // real block of 2
        const V t134 = t130 + t131;
        // real block of 2
        const V t135 = t133 + t134;
        const V t136 = t133 - t134;
        // real block of 2
        const V t137 = t121 - t122;
        // real block of 2
        const V t138 = t127 + t128;
        // real block of 2
        const V t139 = t137 - t138;
        const V t140 = t137 + t138;
        // complex block of 3
        const V t141 = t123 - t126;
        const V t142 = c[0] * t141;
        const V t143 = t132 + t129;
        const V t144 = c[0] * t143;
        const V t145 = t126 + t123;
        const V t146 = t132 - t129;
        // doubled bins
        const V x2i = io.im(2);
        const V t147 = two * x2i;
        const V x11i = io.im(11);
        const V t148 = two * x11i;
        // real block of 2
        const V t149 = t147 + t148;
        const V t150 = t148 - t147;
        // doubled bins
        const V x10i = io.im(10);
        const V t151 = two * x10i;
        const V x16i = io.im(16);
        const V t152 = two * x16i;
        // real block of 2
        const V t153 = t152 + t151;
        const V t154 = t152 - t151;
        // real block of 2
        const V t155 = t153 - t149;
        // real block of 3
        const V t156 = t135 + t139;
        const V t157 = t156 + t155;
        const V t158 = c[0] * t156;
        const V t159 = t155 - t158;
        // complex block of 13, multiplier 3
        const V t160 = c[11] * t159;
        const V t161 = c[16] * t157;
        // real block of 2
        const V t162 = t153 + t149;
        // real block of 3
        const V t163 = t136 + t140;
        const V t164 = t163 + t162;
        const V t165 = c[0] * t163;
        const V t166 = t162 - t165;
        // complex block of 13, multiplier 3
        const V t167 = c[10] * t166;
        const V t168 = c[17] * t164;
        // real block of 3
        const V t169 = t135 - t139;
        const V t170 = c[1] * t169;
        // complex block of 13, multiplier 3
        const V t171 = c[8] * t170;
        // spectrum block of 3
        const V t172 = c[12] * t170;
        // complex block of 3
        const V t173 = t141 + t154;
        // complex block of 13, multiplier 3
        const V t174 = c[2] * t173;
        const V t175 = c[3] * t173;
        // complex block of 3
        const V t176 = t143 + t150;
        // complex block of 13, multiplier 3
        const V t177 = c[3] * t176;
        const V t178 = c[2] * t176;
        const V t179 = t177 - t174;
        const V t180 = t178 + t175;
        // complex block of 3
        const V t181 = t154 - t142;
        const V t182 = c[1] * t146;
        const V t183 = t181 + t182;
        const V t184 = t181 - t182;
        const V t185 = t150 - t144;
        const V t186 = c[1] * t145;
        const V t187 = t185 + t186;
        const V t188 = t185 - t186;
        // complex block of 13, multiplier 3
        const V t189 = c[7] * t188;
        const V t190 = c[6] * t184;
        const V t191 = t189 - t190;
        const V t192 = c[7] * t184;
        const V t193 = c[6] * t188;
        const V t194 = t193 + t192;
        const V t195 = c[5] * t187;
        const V t196 = c[4] * t183;
        const V t197 = t196 + t195;
        const V t198 = c[5] * t183;
        const V t199 = c[4] * t187;
        const V t200 = t199 - t198;
        // real block of 3
        const V t201 = t136 - t140;
        const V t202 = c[1] * t201;
        // complex block of 13, multiplier 3
        const V t203 = c[9] * t202;
        // spectrum block of 3
        const V t204 = c[14] * t202;
        // doubled bins
        const V x3i = io.im(3);
        const V t205 = two * x3i;
        const V x6i = io.im(6);
        const V t206 = two * x6i;
        // skew block of 6
        const V t207 = c[1] * t206;
        const V t208 = c[0] * t206;
        // doubled bins
        const V x9i = io.im(9);
        const V t209 = two * x9i;
        // skew block of 6
        const V t210 = c[0] * t209;
        const V t211 = c[1] * t209;
        // doubled bins
        const V x12i = io.im(12);
        const V t212 = two * x12i;
        // skew block of 6
        const V t213 = c[0] * t212;
        const V t214 = c[1] * t212;
        // doubled bins
        const V x18i = io.im(18);
        const V t215 = two * x18i;
        // skew block of 6
        const V t216 = c[1] * t215;
        const V t217 = c[0] * t215;
        const V t218 = t207 - t210;
        const V t219 = t213 - t216;
        // complex block of 3
        const V t220 = t218 + t219;
        // skew block of 6
        const V t221 = t211 + t208;
        const V t222 = t217 + t214;
        // complex block of 3
        const V t223 = t221 + t222;
        // doubled bins
        const V x15i = io.im(15);
        const V t224 = two * x15i;
        // complex block of 3
        const V t225 = t218 - t219;
        const V t226 = c[1] * t225;
        const V t227 = c[0] * t223;
        const V t228 = t227 + t224;
        const V t229 = t228 - t226;
        // spectrum block of 13, multiplier 3
        const V t230 = c[5] * t229;
        const V t231 = c[4] * t229;
        // complex block of 3
        const V t232 = t228 + t226;
        const V t233 = t222 - t221;
        const V t234 = c[1] * t233;
        const V t235 = c[0] * t220;
        const V t236 = t205 - t235;
        const V t237 = t236 + t234;
        // spectrum block of 13, multiplier 3
        const V t238 = c[4] * t237;
        const V t239 = c[5] * t237;
        // complex block of 3
        const V t240 = t236 - t234;
        const V t241 = t220 + t205;
        // spectrum block of 13, multiplier 3
        const V t242 = c[6] * t241;
        const V t243 = c[7] * t241;
        // complex block of 3
        const V t244 = t224 - t223;
        // spectrum block of 13, multiplier 3
        const V t245 = c[7] * t244;
        const V t246 = c[6] * t244;
        const V t247 = t242 + t245;
        const V t248 = t243 - t246;
        // doubled bins
        const V x13i = io.im(13);
        const V t249 = two * x13i;
        // spectrum block of 13, multiplier 3
        const V t250 = c[3] * t232;
        const V t251 = c[2] * t240;
        const V t252 = t251 + t250;
        const V t253 = t230 - t238;
        // complex block of 3
        const V t254 = t253 - t247;
        const V t255 = t253 + t247;
        const V t256 = t254 - t252;
        const V t257 = c[0] * t254;
        const V t258 = t252 + t257;
        const V t259 = c[1] * t255;
        // spectrum block of 13, multiplier 3
        const V t260 = c[3] * t240;
        const V t261 = c[2] * t232;
        const V t262 = t261 - t260;
        const V t263 = t231 + t239;
        // complex block of 3
        const V t264 = t263 - t248;
        const V t265 = t263 + t248;
        const V t266 = t264 + t262;
        const V t267 = c[0] * t264;
        const V t268 = t262 - t267;
        const V t269 = c[1] * t265;
        // spectrum block of 3
        const V t270 = t27 + t34;
        // spectrum block of 3
        const V t271 = t25 + t36;
        // spectrum block of 2
        const V t272 = t270 + t271;
        const V t273 = t270 - t271;
        // spectrum block of 3
        const V t274 = c[0] * t27;
        const V t275 = t34 - t274;
        const V t276 = t28 - t29;
        // spectrum block of 3
        const V t277 = c[0] * t25;
        const V t278 = t36 - t277;
        const V t279 = t30 + t31;
        // spectrum block of 3
        const V t280 = t275 - t276;
        // spectrum block of 3
        const V t281 = t278 + t279;
        // spectrum block of 2
        const V t282 = t280 + t281;
        const V t283 = t280 - t281;
        // spectrum block of 3
        const V t284 = t275 + t276;
        // spectrum block of 3
        const V t285 = t278 - t279;
        // spectrum block of 2
        const V t286 = t284 + t285;
        const V t287 = t284 - t285;
        // complex block of 13, multiplier 3
        const V t288 = t249 - t161;
        const V t289 = t160 - t171;
        // spectrum block of 3
        const V t290 = t289 + t288;
        const V t291 = c[0] * t289;
        // complex block of 13, multiplier 3
        const V t292 = t167 + t203;
        // spectrum block of 3
        const V t293 = t168 - t292;
        const V t294 = c[0] * t292;
        // spectrum block of 3
        const V t295 = c[13] * t159;
        const V t296 = t172 + t295;
        // spectrum block of 3
        const V t297 = c[15] * t166;
        const V t298 = t297 - t204;
        // spectrum block of 3
        const V t299 = t288 - t291;
        const V t300 = t299 + t296;
        const V t301 = t299 - t296;
        // spectrum block of 3
        const V t302 = t294 + t168;
        const V t303 = t302 + t298;
        const V t304 = t302 - t298;
        // spectrum block of 2
        const V t305 = t290 + t293;
        const V t306 = t290 - t293;
        // complex block of 13, multiplier 3
        const V t307 = t99 - t108;
        const V t308 = t96 + t105;
        // complex block of 3
        const V t309 = t308 + t307;
        const V t310 = t308 - t307;
        // complex block of 13, multiplier 3
        const V t311 = t87 - t90;
        // complex block of 3
        const V t312 = t309 + t311;
        const V t313 = c[0] * t309;
        const V t314 = t311 - t313;
        const V t315 = c[1] * t310;
        // complex block of 13, multiplier 3
        const V t316 = t109 + t100;
        const V t317 = t97 - t106;
        // complex block of 3
        const V t318 = t316 - t317;
        const V t319 = t317 + t316;
        // complex block of 13, multiplier 3
        const V t320 = t91 + t88;
        // complex block of 3
        const V t321 = t318 + t320;
        const V t322 = c[0] * t318;
        const V t323 = t320 - t322;
        const V t324 = c[1] * t319;
        // spectrum block of 3
        const V t325 = t80 + t85;
        // spectrum block of 3
        const V t326 = t120 - t116;
        // spectrum block of 2
        const V t327 = t325 + t326;
        const V t328 = t325 - t326;
        // complex block of 3
        const V t329 = t200 + t194;
        const V t330 = t329 + t180;
        const V t331 = c[0] * t329;
        const V t332 = t191 - t197;
        const V t333 = t332 + t179;
        const V t334 = c[0] * t332;
        const V t335 = t194 - t200;
        const V t336 = c[1] * t335;
        const V t337 = t197 + t191;
        const V t338 = c[1] * t337;
        const V t339 = t331 - t180;
        const V t340 = t339 - t338;
        const V t341 = t339 + t338;
        const V t342 = t179 - t334;
        const V t343 = t342 - t336;
        const V t344 = t342 + t336;
        // spectrum block of 2
        const V t345 = t327 + t333;
        const V t346 = t327 - t333;
        // spectrum block of 2
        const V t347 = t328 - t330;
        const V t348 = t328 + t330;
        // spectrum block of 3
        const V t349 = c[0] * t80;
        const V t350 = t85 - t349;
        const V t351 = t81 + t82;
        // spectrum block of 3
        const V t352 = c[0] * t116;
        const V t353 = t352 + t120;
        const V t354 = t117 - t118;
        // spectrum block of 3
        const V t355 = t350 + t351;
        // spectrum block of 3
        const V t356 = t353 + t354;
        // spectrum block of 2
        const V t357 = t355 + t356;
        const V t358 = t355 - t356;
        // spectrum block of 3
        const V t359 = t350 - t351;
        // spectrum block of 3
        const V t360 = t353 - t354;
        // spectrum block of 2
        const V t361 = t359 + t360;
        const V t362 = t359 - t360;
        // complex block of 3
        const V t363 = t268 + t259;
        // spectrum block of 2
        const V t364 = t283 + t363;
        const V t365 = t283 - t363;
        // complex block of 3
        const V t366 = t323 + t315;
        // spectrum block of 2
        const V t367 = t300 - t303;
        // spectrum block of 2
        const V t368 = t367 + t366;
        const V t369 = t367 - t366;
        // spectrum block of 2
        const V t370 = t358 + t340;
        // spectrum block of 3
        const V t371 = c[0] * t370;
        // spectrum block of 2
        const V t372 = t358 - t340;
        // spectrum block of 3
        const V t373 = c[0] * t372;
        // spectrum block of 3
        const V t374 = t370 + t364;
        io.out(18, t374);
        const V t375 = t364 - t371;
        const V t376 = c[1] * t368;
        const V t377 = t375 - t376;
        io.out(31, t377);
        const V t378 = t375 + t376;
        io.out(5, t378);
        // spectrum block of 3
        const V t379 = t372 + t365;
        io.out(21, t379);
        const V t380 = t365 - t373;
        const V t381 = c[1] * t369;
        const V t382 = t380 - t381;
        io.out(34, t382);
        const V t383 = t380 + t381;
        io.out(8, t383);
        // complex block of 3
        const V t384 = t258 + t269;
        // spectrum block of 2
        const V t385 = t282 - t384;
        const V t386 = t282 + t384;
        // complex block of 3
        const V t387 = t314 + t324;
        // spectrum block of 2
        const V t388 = t300 + t303;
        // spectrum block of 2
        const V t389 = t388 + t387;
        const V t390 = t388 - t387;
        // spectrum block of 2
        const V t391 = t357 + t343;
        // spectrum block of 3
        const V t392 = c[0] * t391;
        // spectrum block of 2
        const V t393 = t357 - t343;
        // spectrum block of 3
        const V t394 = c[0] * t393;
        const V t395 = t393 + t386;
        io.out(12, t395);
        const V t396 = t386 - t394;
        const V t397 = c[1] * t390;
        const V t398 = t396 - t397;
        io.out(25, t398);
        const V t399 = t396 + t397;
        io.out(38, t399);
        // spectrum block of 3
        const V t400 = t391 + t385;
        io.out(27, t400);
        const V t401 = t385 - t392;
        const V t402 = c[1] * t389;
        const V t403 = t401 - t402;
        io.out(1, t403);
        const V t404 = t401 + t402;
        io.out(14, t404);
        // complex block of 3
        const V t405 = t268 - t259;
        // spectrum block of 2
        const V t406 = t287 + t405;
        const V t407 = t287 - t405;
        // complex block of 3
        const V t408 = t323 - t315;
        // spectrum block of 2
        const V t409 = t301 - t304;
        // spectrum block of 2
        const V t410 = t409 + t408;
        const V t411 = t409 - t408;
        // spectrum block of 2
        const V t412 = t362 + t341;
        // spectrum block of 3
        const V t413 = c[0] * t412;
        // spectrum block of 2
        const V t414 = t362 - t341;
        // spectrum block of 3
        const V t415 = c[0] * t414;
        // spectrum block of 3
        const V t416 = t412 + t406;
        io.out(6, t416);
        const V t417 = t406 - t413;
        const V t418 = c[1] * t410;
        const V t419 = t417 - t418;
        io.out(19, t419);
        const V t420 = t417 + t418;
        io.out(32, t420);
        // spectrum block of 3
        const V t421 = t414 + t407;
        io.out(33, t421);
        const V t422 = t407 - t415;
        const V t423 = c[1] * t411;
        const V t424 = t422 - t423;
        io.out(7, t424);
        const V t425 = t422 + t423;
        io.out(20, t425);
        // complex block of 3
        const V t426 = t269 - t258;
        // spectrum block of 2
        const V t427 = t286 + t426;
        const V t428 = t286 - t426;
        // complex block of 3
        const V t429 = t314 - t324;
        // spectrum block of 2
        const V t430 = t301 + t304;
        // spectrum block of 2
        const V t431 = t430 + t429;
        const V t432 = t430 - t429;
        // spectrum block of 2
        const V t433 = t361 + t344;
        // spectrum block of 3
        const V t434 = c[0] * t433;
        // spectrum block of 2
        const V t435 = t361 - t344;
        // spectrum block of 3
        const V t436 = c[0] * t435;
        // spectrum block of 3
        const V t437 = t433 + t427;
        io.out(9, t437);
        const V t438 = t427 - t434;
        const V t439 = c[1] * t431;
        const V t440 = t438 - t439;
        io.out(22, t440);
        const V t441 = t438 + t439;
        io.out(35, t441);
        // spectrum block of 3
        const V t442 = t435 + t428;
        io.out(30, t442);
        const V t443 = t428 - t436;
        const V t444 = c[1] * t432;
        const V t445 = t443 - t444;
        io.out(4, t445);
        const V t446 = t443 + t444;
        io.out(17, t446);
        // spectrum block of 2
        const V t447 = t272 + t256;
        // spectrum block of 3
        const V t448 = c[0] * t345;
        const V t449 = t447 - t448;
        // spectrum block of 2
        const V t450 = t305 + t312;
        // spectrum block of 3
        const V t451 = c[1] * t450;
        const V t452 = t345 + t447;
        io.out(3, t452);
        const V t453 = t449 - t451;
        io.out(16, t453);
        const V t454 = t449 + t451;
        io.out(29, t454);
        // spectrum block of 2
        const V t455 = t272 - t256;
        // spectrum block of 3
        const V t456 = c[0] * t346;
        const V t457 = t455 - t456;
        // spectrum block of 2
        const V t458 = t305 - t312;
        // spectrum block of 3
        const V t459 = c[1] * t458;
        const V t460 = t346 + t455;
        io.out(36, t460);
        const V t461 = t457 - t459;
        io.out(10, t461);
        const V t462 = t457 + t459;
        io.out(23, t462);
        // spectrum block of 2
        const V t463 = t273 + t266;
        // spectrum block of 3
        const V t464 = c[0] * t347;
        const V t465 = t463 - t464;
        // spectrum block of 2
        const V t466 = t306 + t321;
        // spectrum block of 3
        const V t467 = c[1] * t466;
        const V t468 = t347 + t463;
        io.out(15, t468);
        const V t469 = t465 - t467;
        io.out(28, t469);
        const V t470 = t465 + t467;
        io.out(2, t470);
        // spectrum block of 2
        const V t471 = t273 - t266;
        // spectrum block of 3
        const V t472 = c[0] * t348;
        const V t473 = t471 - t472;
        // spectrum block of 2
        const V t474 = t306 - t321;
        // spectrum block of 3
        const V t475 = c[1] * t474;
        const V t476 = t348 + t471;
        io.out(24, t476);
        const V t477 = t473 - t475;
        io.out(37, t477);
        const V t478 = t473 + t475;
        io.out(11, t478);
        // spectrum block of 13, multiplier 3
        const V t479 = x0r + t32;
        // complex block of 13, multiplier 3
        const V t480 = t249 + t157;
        // spectrum block of 3
        const V t481 = c[1] * t480;
        // complex block of 13, multiplier 3
        const V t482 = t73 + t83;
        // spectrum block of 3
        const V t483 = c[0] * t482;
        const V t484 = t482 + t479;
        io.out(0, t484);
        const V t485 = t479 - t483;
        const V t486 = t485 - t481;
        io.out(13, t486);
        const V t487 = t485 + t481;
        io.out(26, t487);
    }
};

}  // namespace zulg
