// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 41.
// Complex DFT of 41 points, Rader block.
// 499 additions, 461 subtractions, 452 multiplications (534 with `scale`); 45 constants; 88 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<41> {
    static constexpr int steps = 1494;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
        0.2620989421184033,  // c[5]: -P[1] of 41
        0.1838590344269595,  // c[6]: Q[1] of 41
        0.11219636857220389,  // c[7]: Q[2] of 41
        0.29985325557547343,  // c[8]: P[2] of 41
        0.08656031809698493,  // c[9]: -P[3] of 41
        0.30823256046522535,  // c[10]: Q[3] of 41
        0.04161199958857812,  // c[11]: Q[4] of 41
        0.3174404534558256,  // c[12]: P[4] of 41
        0.12834895928380738,  // c[13]: -P[5] of 41
        0.2933028207344136,  // c[14]: Q[5] of 41
        0.017504129545828598,  // c[15]: -Q[6] of 41
        0.31967734584865853,  // c[16]: P[6] of 41
        0.026176684051836208,  // c[17]: -P[7] of 41
        0.31908428543576123,  // c[18]: -Q[7] of 41
        0.3074744781243565,  // c[19]: Q[8] of 41
        0.08921572340206974,  // c[20]: P[8] of 41
        0.3155360928303509,  // c[21]: -P[9] of 41
        0.05419385685994486,  // c[22]: -Q[9] of 41
        0.30210846807720454,  // c[23]: -Q[10] of 41
        0.10597392847320843,  // c[24]: -P[10] of 41
        0.3116869402744416,  // c[25]: P[11] of 41
        0.0731522471449556,  // c[26]: -Q[11] of 41
        0.17046672279564715,  // c[27]: -Q[12] of 41
        0.2710001778953512,  // c[28]: -P[12] of 41
        0.16968041280638677,  // c[29]: -P[13] of 41
        0.27149319974882274,  // c[30]: Q[13] of 41
        0.30566398933844086,  // c[31]: Q[14] of 41
        0.09523405704741086,  // c[32]: P[14] of 41
        0.3192532441835867,  // c[33]: P[15] of 41
        0.024028443109264917,  // c[34]: Q[15] of 41
        0.03151160488130023,  // c[35]: Q[16] of 41
        0.3186016615741431,  // c[36]: P[16] of 41
        0.2399755958777195,  // c[37]: P[17] of 41
        0.21192383863816136,  // c[38]: -Q[17] of 41
        0.24179459418352547,  // c[39]: -Q[18] of 41
        0.20984607269049432,  // c[40]: -P[18] of 41
        0.17218367347358104,  // c[41]: -P[19] of 41
        0.26991254618698857,  // c[42]: -Q[19] of 41
        0.025,  // c[43]: 1/40
        0.16007810593582122,  // c[44]: beta of 41
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x40r = io.re(40);
        const V t0 = x1r + x40r;
        const V t1 = x1r - x40r;
        // real block of 2
        const V x27r = io.re(27);
        const V x14r = io.re(14);
        const V t2 = x27r + x14r;
        const V t3 = x27r - x14r;
        // real block of 2
        const V x32r = io.re(32);
        const V x9r = io.re(9);
        const V t4 = x32r + x9r;
        const V t5 = x32r - x9r;
        // real block of 2
        const V x3r = io.re(3);
        const V x38r = io.re(38);
        const V t6 = x3r + x38r;
        const V t7 = x3r - x38r;
        // real block of 2
        const V t8 = t0 + t4;
        const V t9 = t0 - t4;
        // real block of 2
        const V t10 = t2 + t6;
        const V t11 = t2 - t6;
        // real block of 2
        const V t12 = t8 + t10;
        const V t13 = t8 - t10;
        // skew block of 4, multiplier 5
        const V t14 = t3 - t7;
        const V t15 = c[4] * t14;
        const V t16 = t3 + t7;
        const V t17 = c[4] * t16;
        const V t18 = t17 - t5;
        const V t19 = t1 + t15;
        const V t20 = t5 + t17;
        const V t21 = t1 - t15;
        // real block of 2
        const V x10r = io.re(10);
        const V x31r = io.re(31);
        const V t22 = x10r + x31r;
        const V t23 = x10r - x31r;
        // real block of 2
        const V x24r = io.re(24);
        const V x17r = io.re(17);
        const V t24 = x24r + x17r;
        const V t25 = x24r - x17r;
        // real block of 2
        const V x33r = io.re(33);
        const V x8r = io.re(8);
        const V t26 = x33r + x8r;
        const V t27 = x33r - x8r;
        // real block of 2
        const V x30r = io.re(30);
        const V x11r = io.re(11);
        const V t28 = x30r + x11r;
        const V t29 = x30r - x11r;
        // real block of 2
        const V t30 = t22 + t26;
        const V t31 = t22 - t26;
        // real block of 2
        const V t32 = t24 + t28;
        const V t33 = t24 - t28;
        // real block of 2
        const V t34 = t30 + t32;
        const V t35 = t30 - t32;
        // skew block of 4, multiplier 5
        const V t36 = t25 - t29;
        const V t37 = c[4] * t36;
        const V t38 = t25 + t29;
        const V t39 = c[4] * t38;
        const V t40 = t39 - t27;
        const V t41 = t23 + t37;
        const V t42 = t27 + t39;
        const V t43 = t23 - t37;
        // real block of 2
        const V x18r = io.re(18);
        const V x23r = io.re(23);
        const V t44 = x18r + x23r;
        const V t45 = x18r - x23r;
        // real block of 2
        const V x35r = io.re(35);
        const V x6r = io.re(6);
        const V t46 = x35r + x6r;
        const V t47 = x35r - x6r;
        // real block of 2
        const V x2r = io.re(2);
        const V x39r = io.re(39);
        const V t48 = x2r + x39r;
        const V t49 = x2r - x39r;
        // real block of 2
        const V x13r = io.re(13);
        const V x28r = io.re(28);
        const V t50 = x13r + x28r;
        const V t51 = x13r - x28r;
        // real block of 2
        const V t52 = t44 + t48;
        const V t53 = t44 - t48;
        // real block of 2
        const V t54 = t46 + t50;
        const V t55 = t46 - t50;
        // real block of 2
        const V t56 = t52 + t54;
        const V t57 = t52 - t54;
        // skew block of 4, multiplier 5
        const V t58 = t47 - t51;
        const V t59 = c[4] * t58;
        const V t60 = t47 + t51;
        const V t61 = c[4] * t60;
        const V t62 = t61 - t49;
        const V t63 = t45 + t59;
        const V t64 = t49 + t61;
        const V t65 = t45 - t59;
        // real block of 2
        const V x16r = io.re(16);
        const V x25r = io.re(25);
        const V t66 = x16r + x25r;
        const V t67 = x16r - x25r;
        // real block of 2
        const V x22r = io.re(22);
        const V x19r = io.re(19);
        const V t68 = x22r + x19r;
        const V t69 = x22r - x19r;
        // real block of 2
        const V x20r = io.re(20);
        const V x21r = io.re(21);
        const V t70 = x20r + x21r;
        const V t71 = x20r - x21r;
        // real block of 2
        const V x7r = io.re(7);
        const V x34r = io.re(34);
        const V t72 = x7r + x34r;
        const V t73 = x7r - x34r;
        // real block of 2
        const V t74 = t66 + t70;
        const V t75 = t66 - t70;
        // real block of 2
        const V t76 = t68 + t72;
        const V t77 = t68 - t72;
        // real block of 2
        const V t78 = t74 + t76;
        const V t79 = t74 - t76;
        // skew block of 4, multiplier 5
        const V t80 = t69 - t73;
        const V t81 = c[4] * t80;
        const V t82 = t69 + t73;
        const V t83 = c[4] * t82;
        const V t84 = t83 - t71;
        const V t85 = t67 + t81;
        const V t86 = t71 + t83;
        const V t87 = t67 - t81;
        // real block of 2
        const V x37r = io.re(37);
        const V x4r = io.re(4);
        const V t88 = x37r + x4r;
        const V t89 = x37r - x4r;
        // real block of 2
        const V x15r = io.re(15);
        const V x26r = io.re(26);
        const V t90 = x15r + x26r;
        const V t91 = x15r - x26r;
        // real block of 2
        const V x36r = io.re(36);
        const V x5r = io.re(5);
        const V t92 = x36r + x5r;
        const V t93 = x36r - x5r;
        // real block of 2
        const V x29r = io.re(29);
        const V x12r = io.re(12);
        const V t94 = x29r + x12r;
        const V t95 = x29r - x12r;
        // real block of 2
        const V t96 = t88 + t92;
        const V t97 = t88 - t92;
        // real block of 2
        const V t98 = t90 + t94;
        const V t99 = t90 - t94;
        // real block of 2
        const V t100 = t96 + t98;
        const V t101 = t96 - t98;
        // skew block of 4, multiplier 5
        const V t102 = t91 - t95;
        const V t103 = c[4] * t102;
        const V t104 = t91 + t95;
        const V t105 = c[4] * t104;
        const V t106 = t105 - t93;
        const V t107 = t89 + t103;
        const V t108 = t93 + t105;
        const V t109 = t89 - t103;
        // real block of 5, multiplier 3
        const V t110 = t34 + t100;
        const V t111 = t34 - t100;
        const V t112 = t78 + t56;
        const V t113 = t78 - t56;
        const V t114 = t110 + t112;
        const V t115 = t114 + t12;
        const V t116 = c[0] * t110;
        const V t117 = t12 - t116;
        const V t118 = c[1] * t112;
        const V t119 = t117 + t118;
        const V t120 = c[2] * t111;
        const V t121 = c[3] * t113;
        const V t122 = t120 + t121;
        const V t123 = c[1] * t110;
        const V t124 = c[0] * t112;
        const V t125 = t123 - t124;
        const V t126 = t125 + t12;
        const V t127 = c[3] * t111;
        const V t128 = c[2] * t113;
        const V t129 = t128 - t127;
        // complex block of 5, multiplier 3
        const V t130 = t43 + t109;
        const V t131 = t40 + t106;
        const V t132 = t43 - t109;
        const V t133 = t40 - t106;
        const V t134 = t87 + t65;
        const V t135 = t84 + t62;
        const V t136 = t87 - t65;
        const V t137 = t84 - t62;
        const V t138 = t130 + t134;
        const V t139 = t131 + t135;
        const V t140 = t138 + t21;
        const V t141 = t139 + t18;
        const V t142 = c[1] * t130;
        const V t143 = c[0] * t134;
        const V t144 = t142 - t143;
        const V t145 = t144 + t21;
        const V t146 = c[1] * t131;
        const V t147 = c[0] * t135;
        const V t148 = t146 - t147;
        const V t149 = t148 + t18;
        const V t150 = c[3] * t132;
        const V t151 = c[2] * t136;
        const V t152 = t150 - t151;
        const V t153 = c[3] * t133;
        const V t154 = c[2] * t137;
        const V t155 = t153 - t154;
        const V t156 = t145 + t155;
        const V t157 = t149 - t152;
        const V t158 = t145 - t155;
        const V t159 = t149 + t152;
        const V t160 = c[0] * t130;
        const V t161 = t21 - t160;
        const V t162 = c[1] * t134;
        const V t163 = t161 + t162;
        const V t164 = c[0] * t131;
        const V t165 = t18 - t164;
        const V t166 = c[1] * t135;
        const V t167 = t165 + t166;
        const V t168 = c[2] * t132;
        const V t169 = c[3] * t136;
        const V t170 = t168 + t169;
        const V t171 = c[2] * t133;
        const V t172 = c[3] * t137;
        const V t173 = t171 + t172;
        const V t174 = t163 + t173;
        const V t175 = t167 - t170;
        const V t176 = t163 - t173;
        const V t177 = t167 + t170;
        // complex block of 5, multiplier 3
        const V t178 = t31 + t97;
        const V t179 = t33 + t99;
        const V t180 = t31 - t97;
        const V t181 = t99 - t33;
        const V t182 = t75 + t53;
        const V t183 = t77 + t55;
        const V t184 = t75 - t53;
        const V t185 = t55 - t77;
        const V t186 = t178 + t182;
        const V t187 = t179 + t183;
        const V t188 = t186 + t9;
        const V t189 = t187 + t11;
        const V t190 = c[1] * t178;
        const V t191 = c[0] * t182;
        const V t192 = t190 - t191;
        const V t193 = t192 + t9;
        const V t194 = c[1] * t179;
        const V t195 = t11 + t194;
        const V t196 = c[0] * t183;
        const V t197 = t196 - t195;
        const V t198 = c[3] * t180;
        const V t199 = c[2] * t184;
        const V t200 = t198 - t199;
        const V t201 = c[3] * t181;
        const V t202 = c[2] * t185;
        const V t203 = t201 - t202;
        const V t204 = t193 + t203;
        const V t205 = t197 - t200;
        const V t206 = t193 - t203;
        const V t207 = t197 + t200;
        const V t208 = c[0] * t178;
        const V t209 = t9 - t208;
        const V t210 = c[1] * t182;
        const V t211 = t209 + t210;
        const V t212 = c[0] * t179;
        const V t213 = c[1] * t183;
        const V t214 = t212 - t213;
        const V t215 = t214 - t11;
        const V t216 = c[2] * t180;
        const V t217 = c[3] * t184;
        const V t218 = t216 + t217;
        const V t219 = c[2] * t181;
        const V t220 = c[3] * t185;
        const V t221 = t219 + t220;
        const V t222 = t211 + t221;
        const V t223 = t215 - t218;
        const V t224 = t211 - t221;
        const V t225 = t215 + t218;
        // complex block of 5, multiplier 3
        const V t226 = t41 + t107;
        const V t227 = t42 + t108;
        const V t228 = t41 - t107;
        const V t229 = t42 - t108;
        const V t230 = t85 + t63;
        const V t231 = t86 + t64;
        const V t232 = t85 - t63;
        const V t233 = t86 - t64;
        const V t234 = t226 + t230;
        const V t235 = t227 + t231;
        const V t236 = t234 + t19;
        const V t237 = t235 + t20;
        const V t238 = c[1] * t226;
        const V t239 = c[0] * t230;
        const V t240 = t238 - t239;
        const V t241 = t240 + t19;
        const V t242 = c[1] * t227;
        const V t243 = c[0] * t231;
        const V t244 = t242 - t243;
        const V t245 = t244 + t20;
        const V t246 = c[3] * t228;
        const V t247 = c[2] * t232;
        const V t248 = t246 - t247;
        const V t249 = c[3] * t229;
        const V t250 = c[2] * t233;
        const V t251 = t249 - t250;
        const V t252 = t241 + t251;
        const V t253 = t245 - t248;
        const V t254 = t241 - t251;
        const V t255 = t245 + t248;
        const V t256 = c[0] * t226;
        const V t257 = t19 - t256;
        const V t258 = c[1] * t230;
        const V t259 = t257 + t258;
        const V t260 = c[0] * t227;
        const V t261 = t20 - t260;
        const V t262 = c[1] * t231;
        const V t263 = t261 + t262;
        const V t264 = c[2] * t228;
        const V t265 = c[3] * t232;
        const V t266 = t264 + t265;
        const V t267 = c[2] * t229;
        const V t268 = c[3] * t233;
        const V t269 = t267 + t268;
        const V t270 = t259 + t269;
        const V t271 = t263 - t266;
        const V t272 = t259 - t269;
        const V t273 = t263 + t266;
        // real block of 5, multiplier 3
        const V t274 = t35 + t101;
        const V t275 = t35 - t101;
        const V t276 = t79 + t57;
        const V t277 = t79 - t57;
        const V t278 = t274 + t276;
        const V t279 = t278 + t13;
        const V t280 = c[0] * t274;
        const V t281 = t13 - t280;
        const V t282 = c[1] * t276;
        const V t283 = t281 + t282;
        const V t284 = c[2] * t275;
        const V t285 = c[3] * t277;
        const V t286 = t284 + t285;
        const V t287 = c[1] * t274;
        const V t288 = c[0] * t276;
        const V t289 = t287 - t288;
        const V t290 = t289 + t13;
        const V t291 = c[3] * t275;
        const V t292 = c[2] * t277;
        const V t293 = t292 - t291;
        // real block of 2
        const V x1i = io.im(1);
        const V x40i = io.im(40);
        const V t294 = x1i + x40i;
        const V t295 = x1i - x40i;
        // real block of 2
        const V x27i = io.im(27);
        const V x14i = io.im(14);
        const V t296 = x27i + x14i;
        const V t297 = x27i - x14i;
        // real block of 2
        const V x32i = io.im(32);
        const V x9i = io.im(9);
        const V t298 = x32i + x9i;
        const V t299 = x32i - x9i;
        // real block of 2
        const V x3i = io.im(3);
        const V x38i = io.im(38);
        const V t300 = x3i + x38i;
        const V t301 = x3i - x38i;
        // real block of 2
        const V t302 = t294 + t298;
        const V t303 = t294 - t298;
        // real block of 2
        const V t304 = t296 + t300;
        const V t305 = t296 - t300;
        // real block of 2
        const V t306 = t302 + t304;
        const V t307 = t302 - t304;
        // skew block of 4, multiplier 5
        const V t308 = t297 - t301;
        const V t309 = c[4] * t308;
        const V t310 = t297 + t301;
        const V t311 = c[4] * t310;
        const V t312 = t311 - t299;
        const V t313 = t295 + t309;
        const V t314 = t299 + t311;
        const V t315 = t295 - t309;
        // real block of 2
        const V x10i = io.im(10);
        const V x31i = io.im(31);
        const V t316 = x10i + x31i;
        const V t317 = x10i - x31i;
        // real block of 2
        const V x24i = io.im(24);
        const V x17i = io.im(17);
        const V t318 = x24i + x17i;
        const V t319 = x24i - x17i;
        // real block of 2
        const V x33i = io.im(33);
        const V x8i = io.im(8);
        const V t320 = x33i + x8i;
        const V t321 = x33i - x8i;
        // real block of 2
        const V x30i = io.im(30);
        const V x11i = io.im(11);
        const V t322 = x30i + x11i;
        const V t323 = x30i - x11i;
        // real block of 2
        const V t324 = t316 + t320;
        const V t325 = t316 - t320;
        // real block of 2
        const V t326 = t318 + t322;
        const V t327 = t318 - t322;
        // real block of 2
        const V t328 = t324 + t326;
        const V t329 = t324 - t326;
        // skew block of 4, multiplier 5
        const V t330 = t319 - t323;
        const V t331 = c[4] * t330;
        const V t332 = t319 + t323;
        const V t333 = c[4] * t332;
        const V t334 = t333 - t321;
        const V t335 = t317 + t331;
        const V t336 = t321 + t333;
        const V t337 = t317 - t331;
        // real block of 2
        const V x18i = io.im(18);
        const V x23i = io.im(23);
        const V t338 = x18i + x23i;
        const V t339 = x18i - x23i;
        // real block of 2
        const V x35i = io.im(35);
        const V x6i = io.im(6);
        const V t340 = x35i + x6i;
        const V t341 = x35i - x6i;
        // real block of 2
        const V x2i = io.im(2);
        const V x39i = io.im(39);
        const V t342 = x2i + x39i;
        const V t343 = x2i - x39i;
        // real block of 2
        const V x13i = io.im(13);
        const V x28i = io.im(28);
        const V t344 = x13i + x28i;
        const V t345 = x13i - x28i;
        // real block of 2
        const V t346 = t338 + t342;
        const V t347 = t338 - t342;
        // real block of 2
        const V t348 = t340 + t344;
        const V t349 = t340 - t344;
        // real block of 2
        const V t350 = t346 + t348;
        const V t351 = t346 - t348;
        // skew block of 4, multiplier 5
        const V t352 = t341 - t345;
        const V t353 = c[4] * t352;
        const V t354 = t341 + t345;
        const V t355 = c[4] * t354;
        const V t356 = t355 - t343;
        const V t357 = t339 + t353;
        const V t358 = t343 + t355;
        const V t359 = t339 - t353;
        // real block of 2
        const V x16i = io.im(16);
        const V x25i = io.im(25);
        const V t360 = x16i + x25i;
        const V t361 = x16i - x25i;
        // real block of 2
        const V x22i = io.im(22);
        const V x19i = io.im(19);
        const V t362 = x22i + x19i;
        const V t363 = x22i - x19i;
        // real block of 2
        const V x20i = io.im(20);
        const V x21i = io.im(21);
        const V t364 = x20i + x21i;
        const V t365 = x20i - x21i;
        // real block of 2
        const V x7i = io.im(7);
        const V x34i = io.im(34);
        const V t366 = x7i + x34i;
        const V t367 = x7i - x34i;
        // real block of 2
        const V t368 = t360 + t364;
        const V t369 = t360 - t364;
        // real block of 2
        const V t370 = t362 + t366;
        const V t371 = t362 - t366;
        // real block of 2
        const V t372 = t368 + t370;
        const V t373 = t368 - t370;
        // skew block of 4, multiplier 5
        const V t374 = t363 - t367;
        const V t375 = c[4] * t374;
        const V t376 = t363 + t367;
        const V t377 = c[4] * t376;
        const V t378 = t377 - t365;
        const V t379 = t361 + t375;
        const V t380 = t365 + t377;
        const V t381 = t361 - t375;
        // real block of 2
        const V x37i = io.im(37);
        const V x4i = io.im(4);
        const V t382 = x37i + x4i;
        const V t383 = x37i - x4i;
        // real block of 2
        const V x15i = io.im(15);
        const V x26i = io.im(26);
        const V t384 = x15i + x26i;
        const V t385 = x15i - x26i;
        // real block of 2
        const V x36i = io.im(36);
        const V x5i = io.im(5);
        const V t386 = x36i + x5i;
        const V t387 = x36i - x5i;
        // real block of 2
        const V x29i = io.im(29);
        const V x12i = io.im(12);
        const V t388 = x29i + x12i;
        const V t389 = x29i - x12i;
        // real block of 2
        const V t390 = t382 + t386;
        const V t391 = t382 - t386;
        // real block of 2
        const V t392 = t384 + t388;
        const V t393 = t384 - t388;
        // real block of 2
        const V t394 = t390 + t392;
        const V t395 = t390 - t392;
        // skew block of 4, multiplier 5
        const V t396 = t385 - t389;
        const V t397 = c[4] * t396;
        const V t398 = t385 + t389;
        const V t399 = c[4] * t398;
        const V t400 = t399 - t387;
        const V t401 = t383 + t397;
        const V t402 = t387 + t399;
        const V t403 = t383 - t397;
        // real block of 5, multiplier 3
        const V t404 = t328 + t394;
        const V t405 = t328 - t394;
        const V t406 = t372 + t350;
        const V t407 = t372 - t350;
        const V t408 = t404 + t406;
        const V t409 = t408 + t306;
        const V t410 = c[0] * t404;
        const V t411 = t306 - t410;
        const V t412 = c[1] * t406;
        const V t413 = t411 + t412;
        const V t414 = c[2] * t405;
        const V t415 = c[3] * t407;
        const V t416 = t414 + t415;
        const V t417 = c[1] * t404;
        const V t418 = c[0] * t406;
        const V t419 = t417 - t418;
        const V t420 = t419 + t306;
        const V t421 = c[3] * t405;
        const V t422 = c[2] * t407;
        const V t423 = t422 - t421;
        // complex block of 5, multiplier 3
        const V t424 = t337 + t403;
        const V t425 = t334 + t400;
        const V t426 = t337 - t403;
        const V t427 = t334 - t400;
        const V t428 = t381 + t359;
        const V t429 = t378 + t356;
        const V t430 = t381 - t359;
        const V t431 = t378 - t356;
        const V t432 = t424 + t428;
        const V t433 = t425 + t429;
        const V t434 = t432 + t315;
        const V t435 = t433 + t312;
        const V t436 = c[1] * t424;
        const V t437 = c[0] * t428;
        const V t438 = t436 - t437;
        const V t439 = t438 + t315;
        const V t440 = c[1] * t425;
        const V t441 = c[0] * t429;
        const V t442 = t440 - t441;
        const V t443 = t442 + t312;
        const V t444 = c[3] * t426;
        const V t445 = c[2] * t430;
        const V t446 = t444 - t445;
        const V t447 = c[3] * t427;
        const V t448 = c[2] * t431;
        const V t449 = t447 - t448;
        const V t450 = t439 + t449;
        const V t451 = t443 - t446;
        const V t452 = t439 - t449;
        const V t453 = t443 + t446;
        const V t454 = c[0] * t424;
        const V t455 = t315 - t454;
        const V t456 = c[1] * t428;
        const V t457 = t455 + t456;
        const V t458 = c[0] * t425;
        const V t459 = t312 - t458;
        const V t460 = c[1] * t429;
        const V t461 = t459 + t460;
        const V t462 = c[2] * t426;
        const V t463 = c[3] * t430;
        const V t464 = t462 + t463;
        const V t465 = c[2] * t427;
        const V t466 = c[3] * t431;
        const V t467 = t465 + t466;
        const V t468 = t457 + t467;
        const V t469 = t461 - t464;
        const V t470 = t457 - t467;
        const V t471 = t461 + t464;
        // complex block of 5, multiplier 3
        const V t472 = t325 + t391;
        const V t473 = t327 + t393;
        const V t474 = t325 - t391;
        const V t475 = t393 - t327;
        const V t476 = t369 + t347;
        const V t477 = t371 + t349;
        const V t478 = t369 - t347;
        const V t479 = t349 - t371;
        const V t480 = t472 + t476;
        const V t481 = t473 + t477;
        const V t482 = t480 + t303;
        const V t483 = t481 + t305;
        const V t484 = c[1] * t472;
        const V t485 = c[0] * t476;
        const V t486 = t484 - t485;
        const V t487 = t486 + t303;
        const V t488 = c[1] * t473;
        const V t489 = t305 + t488;
        const V t490 = c[0] * t477;
        const V t491 = t490 - t489;
        const V t492 = c[3] * t474;
        const V t493 = c[2] * t478;
        const V t494 = t492 - t493;
        const V t495 = c[3] * t475;
        const V t496 = c[2] * t479;
        const V t497 = t495 - t496;
        const V t498 = t487 + t497;
        const V t499 = t491 - t494;
        const V t500 = t487 - t497;
        const V t501 = t491 + t494;
        const V t502 = c[0] * t472;
        const V t503 = t303 - t502;
        const V t504 = c[1] * t476;
        const V t505 = t503 + t504;
        const V t506 = c[0] * t473;
        const V t507 = c[1] * t477;
        const V t508 = t506 - t507;
        const V t509 = t508 - t305;
        const V t510 = c[2] * t474;
        const V t511 = c[3] * t478;
        const V t512 = t510 + t511;
        const V t513 = c[2] * t475;
        const V t514 = c[3] * t479;
        const V t515 = t513 + t514;
        const V t516 = t505 + t515;
        const V t517 = t509 - t512;
        const V t518 = t505 - t515;
        const V t519 = t509 + t512;
        // complex block of 5, multiplier 3
        const V t520 = t335 + t401;
        const V t521 = t336 + t402;
        const V t522 = t335 - t401;
        const V t523 = t336 - t402;
        const V t524 = t379 + t357;
        const V t525 = t380 + t358;
        const V t526 = t379 - t357;
        const V t527 = t380 - t358;
        const V t528 = t520 + t524;
        const V t529 = t521 + t525;
        const V t530 = t528 + t313;
        const V t531 = t529 + t314;
        const V t532 = c[1] * t520;
        const V t533 = c[0] * t524;
        const V t534 = t532 - t533;
        const V t535 = t534 + t313;
        const V t536 = c[1] * t521;
        const V t537 = c[0] * t525;
        const V t538 = t536 - t537;
        const V t539 = t538 + t314;
        const V t540 = c[3] * t522;
        const V t541 = c[2] * t526;
        const V t542 = t540 - t541;
        const V t543 = c[3] * t523;
        const V t544 = c[2] * t527;
        const V t545 = t543 - t544;
        const V t546 = t535 + t545;
        const V t547 = t539 - t542;
        const V t548 = t535 - t545;
        const V t549 = t539 + t542;
        const V t550 = c[0] * t520;
        const V t551 = t313 - t550;
        const V t552 = c[1] * t524;
        const V t553 = t551 + t552;
        const V t554 = c[0] * t521;
        const V t555 = t314 - t554;
        const V t556 = c[1] * t525;
        const V t557 = t555 + t556;
        const V t558 = c[2] * t522;
        const V t559 = c[3] * t526;
        const V t560 = t558 + t559;
        const V t561 = c[2] * t523;
        const V t562 = c[3] * t527;
        const V t563 = t561 + t562;
        const V t564 = t553 + t563;
        const V t565 = t557 - t560;
        const V t566 = t553 - t563;
        const V t567 = t557 + t560;
        // real block of 5, multiplier 3
        const V t568 = t329 + t395;
        const V t569 = t329 - t395;
        const V t570 = t373 + t351;
        const V t571 = t373 - t351;
        const V t572 = t568 + t570;
        const V t573 = t572 + t307;
        const V t574 = c[0] * t568;
        const V t575 = t307 - t574;
        const V t576 = c[1] * t570;
        const V t577 = t575 + t576;
        const V t578 = c[2] * t569;
        const V t579 = c[3] * t571;
        const V t580 = t578 + t579;
        const V t581 = c[1] * t568;
        const V t582 = c[0] * t570;
        const V t583 = t581 - t582;
        const V t584 = t583 + t307;
        const V t585 = c[3] * t569;
        const V t586 = c[2] * t571;
        const V t587 = t586 - t585;
        // complex block of 41
        const V x0r = io.re(0);
        const V t588 = x0r + t115;
        const V x0i = io.im(0);
        io.re(0, t588);
        const V t589 = x0i + t409;
        io.im(0, t589);
        const V t590 = c[43] * t115;
        const V t591 = x0r - t590;
        const V t592 = c[43] * t409;
        const V t593 = x0i - t592;
        const V t594 = c[5] * t549;
        const V t595 = c[6] * t548;
        const V t596 = t595 - t594;
        const V t597 = c[5] * t548;
        const V t598 = c[6] * t549;
        const V t599 = t598 + t597;
        const V t600 = c[5] * t255;
        const V t601 = c[6] * t254;
        const V t602 = t600 - t601;
        const V t603 = c[5] * t254;
        const V t604 = c[6] * t255;
        const V t605 = t604 + t603;
        const V t606 = c[7] * t223;
        const V t607 = c[8] * t222;
        const V t608 = t607 - t606;
        const V t609 = c[7] * t222;
        const V t610 = c[8] * t223;
        const V t611 = t610 + t609;
        const V t612 = c[7] * t517;
        const V t613 = c[8] * t516;
        const V t614 = t613 - t612;
        const V t615 = c[7] * t516;
        const V t616 = c[8] * t517;
        const V t617 = t616 + t615;
        const V t618 = c[9] * t469;
        const V t619 = c[10] * t468;
        const V t620 = t619 - t618;
        const V t621 = c[9] * t468;
        const V t622 = c[10] * t469;
        const V t623 = t622 + t621;
        const V t624 = c[9] * t175;
        const V t625 = c[10] * t174;
        const V t626 = t624 - t625;
        const V t627 = c[9] * t174;
        const V t628 = c[10] * t175;
        const V t629 = t628 + t627;
        const V t630 = c[11] * t293;
        const V t631 = c[12] * t290;
        const V t632 = t631 + t630;
        const V t633 = c[11] * t290;
        const V t634 = c[12] * t293;
        const V t635 = t633 - t634;
        const V t636 = c[11] * t587;
        const V t637 = c[12] * t584;
        const V t638 = t637 + t636;
        const V t639 = c[11] * t584;
        const V t640 = c[12] * t587;
        const V t641 = t639 - t640;
        const V t642 = c[13] * t435;
        const V t643 = c[14] * t434;
        const V t644 = t643 + t642;
        const V t645 = c[13] * t434;
        const V t646 = c[14] * t435;
        const V t647 = t646 - t645;
        const V t648 = c[13] * t141;
        const V t649 = c[14] * t140;
        const V t650 = t649 + t648;
        const V t651 = c[13] * t140;
        const V t652 = c[14] * t141;
        const V t653 = t651 - t652;
        const V t654 = c[15] * t207;
        const V t655 = c[16] * t206;
        const V t656 = t655 - t654;
        const V t657 = c[15] * t206;
        const V t658 = c[16] * t207;
        const V t659 = t658 + t657;
        const V t660 = c[15] * t501;
        const V t661 = c[16] * t500;
        const V t662 = t661 - t660;
        const V t663 = c[15] * t500;
        const V t664 = c[16] * t501;
        const V t665 = t664 + t663;
        const V t666 = c[17] * t565;
        const V t667 = c[18] * t564;
        const V t668 = t666 - t667;
        const V t669 = c[17] * t564;
        const V t670 = c[18] * t565;
        const V t671 = t670 + t669;
        const V t672 = c[17] * t271;
        const V t673 = c[18] * t270;
        const V t674 = t673 - t672;
        const V t675 = c[17] * t270;
        const V t676 = c[18] * t271;
        const V t677 = t676 + t675;
        const V t678 = c[19] * t122;
        const V t679 = c[20] * t119;
        const V t680 = t679 - t678;
        const V t681 = c[19] * t119;
        const V t682 = c[20] * t122;
        const V t683 = t682 + t681;
        const V t684 = c[19] * t416;
        const V t685 = c[20] * t413;
        const V t686 = t685 - t684;
        const V t687 = c[19] * t413;
        const V t688 = c[20] * t416;
        const V t689 = t688 + t687;
        const V t690 = c[21] * t547;
        const V t691 = c[22] * t546;
        const V t692 = t691 + t690;
        const V t693 = c[21] * t546;
        const V t694 = c[22] * t547;
        const V t695 = t694 - t693;
        const V t696 = c[21] * t253;
        const V t697 = c[22] * t252;
        const V t698 = t697 + t696;
        const V t699 = c[21] * t252;
        const V t700 = c[22] * t253;
        const V t701 = t699 - t700;
        const V t702 = c[23] * t189;
        const V t703 = c[24] * t188;
        const V t704 = t703 + t702;
        const V t705 = c[23] * t188;
        const V t706 = c[24] * t189;
        const V t707 = t706 - t705;
        const V t708 = c[23] * t483;
        const V t709 = c[24] * t482;
        const V t710 = t709 + t708;
        const V t711 = c[23] * t482;
        const V t712 = c[24] * t483;
        const V t713 = t712 - t711;
        const V t714 = c[25] * t453;
        const V t715 = c[26] * t452;
        const V t716 = t714 - t715;
        const V t717 = c[25] * t452;
        const V t718 = c[26] * t453;
        const V t719 = t718 + t717;
        const V t720 = c[25] * t159;
        const V t721 = c[26] * t158;
        const V t722 = t721 - t720;
        const V t723 = c[25] * t158;
        const V t724 = c[26] * t159;
        const V t725 = t724 + t723;
        const V t726 = c[27] * t286;
        const V t727 = c[28] * t283;
        const V t728 = t727 + t726;
        const V t729 = c[27] * t283;
        const V t730 = c[28] * t286;
        const V t731 = t730 - t729;
        const V t732 = c[27] * t580;
        const V t733 = c[28] * t577;
        const V t734 = t733 + t732;
        const V t735 = c[27] * t577;
        const V t736 = c[28] * t580;
        const V t737 = t736 - t735;
        const V t738 = c[29] * t471;
        const V t739 = c[30] * t470;
        const V t740 = t739 + t738;
        const V t741 = c[29] * t470;
        const V t742 = c[30] * t471;
        const V t743 = t742 - t741;
        const V t744 = c[29] * t177;
        const V t745 = c[30] * t176;
        const V t746 = t745 + t744;
        const V t747 = c[29] * t176;
        const V t748 = c[30] * t177;
        const V t749 = t747 - t748;
        const V t750 = c[31] * t205;
        const V t751 = c[32] * t204;
        const V t752 = t751 + t750;
        const V t753 = c[31] * t204;
        const V t754 = c[32] * t205;
        const V t755 = t753 - t754;
        const V t756 = c[31] * t499;
        const V t757 = c[32] * t498;
        const V t758 = t757 + t756;
        const V t759 = c[31] * t498;
        const V t760 = c[32] * t499;
        const V t761 = t759 - t760;
        const V t762 = c[33] * t531;
        const V t763 = c[34] * t530;
        const V t764 = t763 - t762;
        const V t765 = c[33] * t530;
        const V t766 = c[34] * t531;
        const V t767 = t766 + t765;
        const V t768 = c[33] * t237;
        const V t769 = c[34] * t236;
        const V t770 = t768 - t769;
        const V t771 = c[33] * t236;
        const V t772 = c[34] * t237;
        const V t773 = t772 + t771;
        const V t774 = c[35] * t129;
        const V t775 = c[36] * t126;
        const V t776 = t775 - t774;
        const V t777 = c[35] * t126;
        const V t778 = c[36] * t129;
        const V t779 = t778 + t777;
        const V t780 = c[35] * t423;
        const V t781 = c[36] * t420;
        const V t782 = t781 - t780;
        const V t783 = c[35] * t420;
        const V t784 = c[36] * t423;
        const V t785 = t784 + t783;
        const V t786 = c[37] * t567;
        const V t787 = c[38] * t566;
        const V t788 = t786 - t787;
        const V t789 = c[37] * t566;
        const V t790 = c[38] * t567;
        const V t791 = t790 + t789;
        const V t792 = c[37] * t273;
        const V t793 = c[38] * t272;
        const V t794 = t793 - t792;
        const V t795 = c[37] * t272;
        const V t796 = c[38] * t273;
        const V t797 = t796 + t795;
        const V t798 = c[39] * t225;
        const V t799 = c[40] * t224;
        const V t800 = t798 - t799;
        const V t801 = c[39] * t224;
        const V t802 = c[40] * t225;
        const V t803 = t802 + t801;
        const V t804 = c[39] * t519;
        const V t805 = c[40] * t518;
        const V t806 = t804 - t805;
        const V t807 = c[39] * t518;
        const V t808 = c[40] * t519;
        const V t809 = t808 + t807;
        const V t810 = c[41] * t451;
        const V t811 = c[42] * t450;
        const V t812 = t811 + t810;
        const V t813 = c[41] * t450;
        const V t814 = c[42] * t451;
        const V t815 = t814 - t813;
        const V t816 = c[41] * t157;
        const V t817 = c[42] * t156;
        const V t818 = t817 + t816;
        const V t819 = c[41] * t156;
        const V t820 = c[42] * t157;
        const V t821 = t819 - t820;
        const V t822 = c[44] * t279;
        const V t823 = c[44] * t573;
        // spectrum block of 5, multiplier 3
        const V t824 = t680 + t776;
        const V t825 = t824 + t591;
        const V t826 = c[1] * t680;
        const V t827 = c[0] * t776;
        const V t828 = t826 - t827;
        const V t829 = t828 + t591;
        const V t830 = c[3] * t683;
        const V t831 = c[2] * t779;
        const V t832 = t830 + t831;
        const V t833 = t829 - t832;
        const V t834 = t829 + t832;
        const V t835 = c[0] * t680;
        const V t836 = t591 - t835;
        const V t837 = c[1] * t776;
        const V t838 = t836 + t837;
        const V t839 = c[2] * t683;
        const V t840 = c[3] * t779;
        const V t841 = t839 - t840;
        const V t842 = t838 - t841;
        const V t843 = t838 + t841;
        // complex block of 5, multiplier 3
        const V t844 = t743 + t623;
        const V t845 = t740 + t620;
        const V t846 = t743 - t623;
        const V t847 = t740 - t620;
        const V t848 = t719 + t815;
        const V t849 = t716 - t812;
        const V t850 = t815 - t719;
        const V t851 = t716 + t812;
        const V t852 = t844 - t848;
        const V t853 = t845 + t849;
        const V t854 = t852 + t647;
        const V t855 = t853 + t644;
        const V t856 = c[1] * t844;
        const V t857 = c[0] * t848;
        const V t858 = t856 + t857;
        const V t859 = t858 + t647;
        const V t860 = c[1] * t845;
        const V t861 = c[0] * t849;
        const V t862 = t860 - t861;
        const V t863 = t862 + t644;
        const V t864 = c[3] * t846;
        const V t865 = c[2] * t850;
        const V t866 = t864 - t865;
        const V t867 = c[3] * t847;
        const V t868 = c[2] * t851;
        const V t869 = t867 - t868;
        const V t870 = t859 + t869;
        const V t871 = t863 - t866;
        const V t872 = t859 - t869;
        const V t873 = t863 + t866;
        const V t874 = c[0] * t844;
        const V t875 = t647 - t874;
        const V t876 = c[1] * t848;
        const V t877 = t875 - t876;
        const V t878 = c[0] * t845;
        const V t879 = t644 - t878;
        const V t880 = c[1] * t849;
        const V t881 = t879 + t880;
        const V t882 = c[2] * t846;
        const V t883 = c[3] * t850;
        const V t884 = t882 + t883;
        const V t885 = c[2] * t847;
        const V t886 = c[3] * t851;
        const V t887 = t885 + t886;
        const V t888 = t877 + t887;
        const V t889 = t881 - t884;
        const V t890 = t877 - t887;
        const V t891 = t881 + t884;
        // complex block of 5, multiplier 3
        const V t892 = t611 - t803;
        const V t893 = t800 + t608;
        const V t894 = t803 + t611;
        const V t895 = t800 - t608;
        const V t896 = t659 - t755;
        const V t897 = t656 + t752;
        const V t898 = t659 + t755;
        const V t899 = t656 - t752;
        const V t900 = t892 + t896;
        const V t901 = t893 + t897;
        const V t902 = t900 + t707;
        const V t903 = t901 - t704;
        const V t904 = c[1] * t892;
        const V t905 = c[0] * t896;
        const V t906 = t904 - t905;
        const V t907 = t906 + t707;
        const V t908 = c[1] * t893;
        const V t909 = c[0] * t897;
        const V t910 = t908 - t909;
        const V t911 = t910 - t704;
        const V t912 = c[3] * t894;
        const V t913 = c[2] * t898;
        const V t914 = t912 + t913;
        const V t915 = c[3] * t895;
        const V t916 = c[2] * t899;
        const V t917 = t915 - t916;
        const V t918 = t907 + t917;
        const V t919 = t911 + t914;
        const V t920 = t907 - t917;
        const V t921 = t911 - t914;
        const V t922 = c[0] * t892;
        const V t923 = t707 - t922;
        const V t924 = c[1] * t896;
        const V t925 = t923 + t924;
        const V t926 = c[0] * t893;
        const V t927 = t704 + t926;
        const V t928 = c[1] * t897;
        const V t929 = t928 - t927;
        const V t930 = c[2] * t894;
        const V t931 = c[3] * t898;
        const V t932 = t931 - t930;
        const V t933 = c[2] * t895;
        const V t934 = c[3] * t899;
        const V t935 = t933 + t934;
        const V t936 = t925 + t935;
        const V t937 = t929 - t932;
        const V t938 = t925 - t935;
        const V t939 = t929 + t932;
        // complex block of 5, multiplier 3
        const V t940 = t791 + t671;
        const V t941 = t788 + t668;
        const V t942 = t671 - t791;
        const V t943 = t788 - t668;
        const V t944 = t599 - t695;
        const V t945 = t596 - t692;
        const V t946 = t599 + t695;
        const V t947 = t596 + t692;
        const V t948 = t944 - t940;
        const V t949 = t941 + t945;
        const V t950 = t948 + t767;
        const V t951 = t949 + t764;
        const V t952 = c[1] * t940;
        const V t953 = t767 - t952;
        const V t954 = c[0] * t944;
        const V t955 = t953 - t954;
        const V t956 = c[1] * t941;
        const V t957 = c[0] * t945;
        const V t958 = t956 - t957;
        const V t959 = t958 + t764;
        const V t960 = c[3] * t942;
        const V t961 = c[2] * t946;
        const V t962 = t960 - t961;
        const V t963 = c[3] * t943;
        const V t964 = c[2] * t947;
        const V t965 = t963 - t964;
        const V t966 = t955 + t965;
        const V t967 = t959 - t962;
        const V t968 = t955 - t965;
        const V t969 = t959 + t962;
        const V t970 = c[0] * t940;
        const V t971 = c[1] * t944;
        const V t972 = t970 + t971;
        const V t973 = t972 + t767;
        const V t974 = c[0] * t941;
        const V t975 = t764 - t974;
        const V t976 = c[1] * t945;
        const V t977 = t975 + t976;
        const V t978 = c[2] * t942;
        const V t979 = c[3] * t946;
        const V t980 = t978 + t979;
        const V t981 = c[2] * t943;
        const V t982 = c[3] * t947;
        const V t983 = t981 + t982;
        const V t984 = t973 + t983;
        const V t985 = t977 - t980;
        const V t986 = t973 - t983;
        const V t987 = t977 + t980;
        // spectrum block of 5, multiplier 3
        const V t988 = t632 - t728;
        const V t989 = t988 + t822;
        const V t990 = c[1] * t728;
        const V t991 = t822 - t990;
        const V t992 = c[0] * t632;
        const V t993 = t991 - t992;
        const V t994 = c[3] * t731;
        const V t995 = c[2] * t635;
        const V t996 = t994 + t995;
        const V t997 = t993 + t996;
        const V t998 = t993 - t996;
        const V t999 = c[0] * t728;
        const V t1000 = c[1] * t632;
        const V t1001 = t999 + t1000;
        const V t1002 = t1001 + t822;
        const V t1003 = c[2] * t731;
        const V t1004 = c[3] * t635;
        const V t1005 = t1004 - t1003;
        const V t1006 = t1002 - t1005;
        const V t1007 = t1002 + t1005;
        // spectrum block of 2
        const V t1008 = t825 + t989;
        const V t1009 = t825 - t989;
        // spectrum block of 2
        const V t1010 = t1008 + t903;
        const V t1011 = t1008 - t903;
        // spectrum block of 2
        const V t1012 = t1009 - t902;
        const V t1013 = t1009 + t902;
        // mirrored skew block of 4, multiplier 5
        const V t1014 = t951 - t855;
        const V t1015 = c[4] * t1014;
        const V t1016 = t950 + t854;
        const V t1017 = c[4] * t1016;
        const V t1018 = t951 + t855;
        const V t1019 = t1015 + t1017;
        const V t1020 = t854 - t950;
        const V t1021 = t1015 - t1017;
        // spectrum block of 2
        const V t1022 = t1010 + t1018;
        io.re(1, t1022);
        const V t1023 = t1010 - t1018;
        io.re(40, t1023);
        // spectrum block of 2
        const V t1024 = t1012 + t1019;
        io.re(38, t1024);
        const V t1025 = t1012 - t1019;
        io.re(3, t1025);
        // spectrum block of 2
        const V t1026 = t1011 - t1020;
        io.re(9, t1026);
        const V t1027 = t1011 + t1020;
        io.re(32, t1027);
        // spectrum block of 2
        const V t1028 = t1013 - t1021;
        io.re(14, t1028);
        const V t1029 = t1013 + t1021;
        io.re(27, t1029);
        // spectrum block of 2
        const V t1030 = t843 + t1007;
        const V t1031 = t843 - t1007;
        // spectrum block of 2
        const V t1032 = t1030 + t939;
        const V t1033 = t1030 - t939;
        // spectrum block of 2
        const V t1034 = t1031 - t938;
        const V t1035 = t1031 + t938;
        // mirrored skew block of 4, multiplier 5
        const V t1036 = t987 - t891;
        const V t1037 = c[4] * t1036;
        const V t1038 = t986 + t890;
        const V t1039 = c[4] * t1038;
        const V t1040 = t987 + t891;
        const V t1041 = t1037 + t1039;
        const V t1042 = t890 - t986;
        const V t1043 = t1037 - t1039;
        // spectrum block of 2
        const V t1044 = t1032 + t1040;
        io.re(37, t1044);
        const V t1045 = t1032 - t1040;
        io.re(4, t1045);
        // spectrum block of 2
        const V t1046 = t1034 + t1041;
        io.re(12, t1046);
        const V t1047 = t1034 - t1041;
        io.re(29, t1047);
        // spectrum block of 2
        const V t1048 = t1033 - t1042;
        io.re(5, t1048);
        const V t1049 = t1033 + t1042;
        io.re(36, t1049);
        // spectrum block of 2
        const V t1050 = t1035 - t1043;
        io.re(26, t1050);
        const V t1051 = t1035 + t1043;
        io.re(15, t1051);
        // spectrum block of 2
        const V t1052 = t833 + t997;
        const V t1053 = t833 - t997;
        // spectrum block of 2
        const V t1054 = t1052 + t919;
        const V t1055 = t1052 - t919;
        // spectrum block of 2
        const V t1056 = t1053 - t918;
        const V t1057 = t1053 + t918;
        // mirrored skew block of 4, multiplier 5
        const V t1058 = t967 - t871;
        const V t1059 = c[4] * t1058;
        const V t1060 = t966 + t870;
        const V t1061 = c[4] * t1060;
        const V t1062 = t967 + t871;
        const V t1063 = t1059 + t1061;
        const V t1064 = t870 - t966;
        const V t1065 = t1059 - t1061;
        // spectrum block of 2
        const V t1066 = t1054 + t1062;
        io.re(16, t1066);
        const V t1067 = t1054 - t1062;
        io.re(25, t1067);
        // spectrum block of 2
        const V t1068 = t1056 + t1063;
        io.re(34, t1068);
        const V t1069 = t1056 - t1063;
        io.re(7, t1069);
        // spectrum block of 2
        const V t1070 = t1055 - t1064;
        io.re(21, t1070);
        const V t1071 = t1055 + t1064;
        io.re(20, t1071);
        // spectrum block of 2
        const V t1072 = t1057 - t1065;
        io.re(19, t1072);
        const V t1073 = t1057 + t1065;
        io.re(22, t1073);
        // spectrum block of 2
        const V t1074 = t834 + t998;
        const V t1075 = t834 - t998;
        // spectrum block of 2
        const V t1076 = t1074 + t921;
        const V t1077 = t1074 - t921;
        // spectrum block of 2
        const V t1078 = t1075 - t920;
        const V t1079 = t1075 + t920;
        // mirrored skew block of 4, multiplier 5
        const V t1080 = t969 - t873;
        const V t1081 = c[4] * t1080;
        const V t1082 = t968 + t872;
        const V t1083 = c[4] * t1082;
        const V t1084 = t969 + t873;
        const V t1085 = t1081 + t1083;
        const V t1086 = t872 - t968;
        const V t1087 = t1081 - t1083;
        // spectrum block of 2
        const V t1088 = t1076 + t1084;
        io.re(18, t1088);
        const V t1089 = t1076 - t1084;
        io.re(23, t1089);
        // spectrum block of 2
        const V t1090 = t1078 + t1085;
        io.re(28, t1090);
        const V t1091 = t1078 - t1085;
        io.re(13, t1091);
        // spectrum block of 2
        const V t1092 = t1077 - t1086;
        io.re(39, t1092);
        const V t1093 = t1077 + t1086;
        io.re(2, t1093);
        // spectrum block of 2
        const V t1094 = t1079 - t1087;
        io.re(6, t1094);
        const V t1095 = t1079 + t1087;
        io.re(35, t1095);
        // spectrum block of 2
        const V t1096 = t842 + t1006;
        const V t1097 = t842 - t1006;
        // spectrum block of 2
        const V t1098 = t1096 + t937;
        const V t1099 = t1096 - t937;
        // spectrum block of 2
        const V t1100 = t1097 - t936;
        const V t1101 = t1097 + t936;
        // mirrored skew block of 4, multiplier 5
        const V t1102 = t985 - t889;
        const V t1103 = c[4] * t1102;
        const V t1104 = t984 + t888;
        const V t1105 = c[4] * t1104;
        const V t1106 = t985 + t889;
        const V t1107 = t1103 + t1105;
        const V t1108 = t888 - t984;
        const V t1109 = t1103 - t1105;
        // spectrum block of 2
        const V t1110 = t1098 + t1106;
        io.re(10, t1110);
        const V t1111 = t1098 - t1106;
        io.re(31, t1111);
        // spectrum block of 2
        const V t1112 = t1100 + t1107;
        io.re(11, t1112);
        const V t1113 = t1100 - t1107;
        io.re(30, t1113);
        // spectrum block of 2
        const V t1114 = t1099 - t1108;
        io.re(8, t1114);
        const V t1115 = t1099 + t1108;
        io.re(33, t1115);
        // spectrum block of 2
        const V t1116 = t1101 - t1109;
        io.re(17, t1116);
        const V t1117 = t1101 + t1109;
        io.re(24, t1117);
        // spectrum block of 5, multiplier 3
        const V t1118 = t686 + t782;
        const V t1119 = t1118 + t593;
        const V t1120 = c[1] * t686;
        const V t1121 = c[0] * t782;
        const V t1122 = t1120 - t1121;
        const V t1123 = t1122 + t593;
        const V t1124 = c[3] * t689;
        const V t1125 = c[2] * t785;
        const V t1126 = t1124 + t1125;
        const V t1127 = t1123 - t1126;
        const V t1128 = t1123 + t1126;
        const V t1129 = c[0] * t686;
        const V t1130 = t593 - t1129;
        const V t1131 = c[1] * t782;
        const V t1132 = t1130 + t1131;
        const V t1133 = c[2] * t689;
        const V t1134 = c[3] * t785;
        const V t1135 = t1133 - t1134;
        const V t1136 = t1132 - t1135;
        const V t1137 = t1132 + t1135;
        // complex block of 5, multiplier 3
        const V t1138 = t749 - t629;
        const V t1139 = t626 - t746;
        const V t1140 = t749 + t629;
        const V t1141 = t746 + t626;
        const V t1142 = t725 - t821;
        const V t1143 = t722 + t818;
        const V t1144 = t725 + t821;
        const V t1145 = t722 - t818;
        const V t1146 = t1138 + t1142;
        const V t1147 = t1139 + t1143;
        const V t1148 = t1146 + t653;
        const V t1149 = t1147 - t650;
        const V t1150 = c[1] * t1138;
        const V t1151 = c[0] * t1142;
        const V t1152 = t1150 - t1151;
        const V t1153 = t1152 + t653;
        const V t1154 = c[1] * t1139;
        const V t1155 = c[0] * t1143;
        const V t1156 = t1154 - t1155;
        const V t1157 = t1156 - t650;
        const V t1158 = c[3] * t1140;
        const V t1159 = c[2] * t1144;
        const V t1160 = t1158 - t1159;
        const V t1161 = c[3] * t1141;
        const V t1162 = c[2] * t1145;
        const V t1163 = t1161 + t1162;
        const V t1164 = t1153 - t1163;
        const V t1165 = t1157 - t1160;
        const V t1166 = t1153 + t1163;
        const V t1167 = t1157 + t1160;
        const V t1168 = c[0] * t1138;
        const V t1169 = t653 - t1168;
        const V t1170 = c[1] * t1142;
        const V t1171 = t1169 + t1170;
        const V t1172 = c[0] * t1139;
        const V t1173 = t650 + t1172;
        const V t1174 = c[1] * t1143;
        const V t1175 = t1174 - t1173;
        const V t1176 = c[2] * t1140;
        const V t1177 = c[3] * t1144;
        const V t1178 = t1176 + t1177;
        const V t1179 = c[2] * t1141;
        const V t1180 = c[3] * t1145;
        const V t1181 = t1180 - t1179;
        const V t1182 = t1171 + t1181;
        const V t1183 = t1175 - t1178;
        const V t1184 = t1171 - t1181;
        const V t1185 = t1175 + t1178;
        // complex block of 5, multiplier 3
        const V t1186 = t617 - t809;
        const V t1187 = t806 + t614;
        const V t1188 = t809 + t617;
        const V t1189 = t806 - t614;
        const V t1190 = t665 - t761;
        const V t1191 = t662 + t758;
        const V t1192 = t665 + t761;
        const V t1193 = t662 - t758;
        const V t1194 = t1186 + t1190;
        const V t1195 = t1187 + t1191;
        const V t1196 = t1194 + t713;
        const V t1197 = t1195 - t710;
        const V t1198 = c[1] * t1186;
        const V t1199 = c[0] * t1190;
        const V t1200 = t1198 - t1199;
        const V t1201 = t1200 + t713;
        const V t1202 = c[1] * t1187;
        const V t1203 = c[0] * t1191;
        const V t1204 = t1202 - t1203;
        const V t1205 = t1204 - t710;
        const V t1206 = c[3] * t1188;
        const V t1207 = c[2] * t1192;
        const V t1208 = t1206 + t1207;
        const V t1209 = c[3] * t1189;
        const V t1210 = c[2] * t1193;
        const V t1211 = t1209 - t1210;
        const V t1212 = t1201 + t1211;
        const V t1213 = t1205 + t1208;
        const V t1214 = t1201 - t1211;
        const V t1215 = t1205 - t1208;
        const V t1216 = c[0] * t1186;
        const V t1217 = t713 - t1216;
        const V t1218 = c[1] * t1190;
        const V t1219 = t1217 + t1218;
        const V t1220 = c[0] * t1187;
        const V t1221 = t710 + t1220;
        const V t1222 = c[1] * t1191;
        const V t1223 = t1222 - t1221;
        const V t1224 = c[2] * t1188;
        const V t1225 = c[3] * t1192;
        const V t1226 = t1225 - t1224;
        const V t1227 = c[2] * t1189;
        const V t1228 = c[3] * t1193;
        const V t1229 = t1227 + t1228;
        const V t1230 = t1219 + t1229;
        const V t1231 = t1223 - t1226;
        const V t1232 = t1219 - t1229;
        const V t1233 = t1223 + t1226;
        // complex block of 5, multiplier 3
        const V t1234 = t797 + t677;
        const V t1235 = t794 + t674;
        const V t1236 = t797 - t677;
        const V t1237 = t794 - t674;
        const V t1238 = t605 + t701;
        const V t1239 = t602 + t698;
        const V t1240 = t701 - t605;
        const V t1241 = t602 - t698;
        const V t1242 = t1234 - t1238;
        const V t1243 = t1235 + t1239;
        const V t1244 = t1242 - t773;
        const V t1245 = t1243 + t770;
        const V t1246 = c[1] * t1234;
        const V t1247 = c[0] * t1238;
        const V t1248 = t1246 + t1247;
        const V t1249 = t1248 - t773;
        const V t1250 = c[1] * t1235;
        const V t1251 = c[0] * t1239;
        const V t1252 = t1250 - t1251;
        const V t1253 = t1252 + t770;
        const V t1254 = c[3] * t1236;
        const V t1255 = c[2] * t1240;
        const V t1256 = t1254 - t1255;
        const V t1257 = c[3] * t1237;
        const V t1258 = c[2] * t1241;
        const V t1259 = t1257 - t1258;
        const V t1260 = t1249 + t1259;
        const V t1261 = t1253 - t1256;
        const V t1262 = t1249 - t1259;
        const V t1263 = t1253 + t1256;
        const V t1264 = c[0] * t1234;
        const V t1265 = t773 + t1264;
        const V t1266 = c[1] * t1238;
        const V t1267 = t1265 + t1266;
        const V t1268 = c[0] * t1235;
        const V t1269 = t770 - t1268;
        const V t1270 = c[1] * t1239;
        const V t1271 = t1269 + t1270;
        const V t1272 = c[2] * t1236;
        const V t1273 = c[3] * t1240;
        const V t1274 = t1272 + t1273;
        const V t1275 = c[2] * t1237;
        const V t1276 = c[3] * t1241;
        const V t1277 = t1275 + t1276;
        const V t1278 = t1277 - t1267;
        const V t1279 = t1271 - t1274;
        const V t1280 = t1267 + t1277;
        const V t1281 = t1271 + t1274;
        // spectrum block of 5, multiplier 3
        const V t1282 = t638 - t734;
        const V t1283 = t1282 + t823;
        const V t1284 = c[1] * t734;
        const V t1285 = t823 - t1284;
        const V t1286 = c[0] * t638;
        const V t1287 = t1285 - t1286;
        const V t1288 = c[3] * t737;
        const V t1289 = c[2] * t641;
        const V t1290 = t1288 + t1289;
        const V t1291 = t1287 + t1290;
        const V t1292 = t1287 - t1290;
        const V t1293 = c[0] * t734;
        const V t1294 = c[1] * t638;
        const V t1295 = t1293 + t1294;
        const V t1296 = t1295 + t823;
        const V t1297 = c[2] * t737;
        const V t1298 = c[3] * t641;
        const V t1299 = t1298 - t1297;
        const V t1300 = t1296 - t1299;
        const V t1301 = t1296 + t1299;
        // spectrum block of 2
        const V t1302 = t1119 + t1283;
        const V t1303 = t1119 - t1283;
        // spectrum block of 2
        const V t1304 = t1302 + t1197;
        const V t1305 = t1302 - t1197;
        // spectrum block of 2
        const V t1306 = t1303 - t1196;
        const V t1307 = t1303 + t1196;
        // mirrored skew block of 4, multiplier 5
        const V t1308 = t1245 - t1149;
        const V t1309 = c[4] * t1308;
        const V t1310 = t1244 + t1148;
        const V t1311 = c[4] * t1310;
        const V t1312 = t1245 + t1149;
        const V t1313 = t1309 + t1311;
        const V t1314 = t1148 - t1244;
        const V t1315 = t1309 - t1311;
        // spectrum block of 2
        const V t1316 = t1304 + t1312;
        io.im(1, t1316);
        const V t1317 = t1304 - t1312;
        io.im(40, t1317);
        // spectrum block of 2
        const V t1318 = t1306 + t1313;
        io.im(38, t1318);
        const V t1319 = t1306 - t1313;
        io.im(3, t1319);
        // spectrum block of 2
        const V t1320 = t1305 - t1314;
        io.im(9, t1320);
        const V t1321 = t1305 + t1314;
        io.im(32, t1321);
        // spectrum block of 2
        const V t1322 = t1307 - t1315;
        io.im(14, t1322);
        const V t1323 = t1307 + t1315;
        io.im(27, t1323);
        // spectrum block of 2
        const V t1324 = t1137 + t1301;
        const V t1325 = t1137 - t1301;
        // spectrum block of 2
        const V t1326 = t1324 + t1233;
        const V t1327 = t1324 - t1233;
        // spectrum block of 2
        const V t1328 = t1325 - t1232;
        const V t1329 = t1325 + t1232;
        // mirrored skew block of 4, multiplier 5
        const V t1330 = t1281 - t1185;
        const V t1331 = c[4] * t1330;
        const V t1332 = t1280 - t1184;
        const V t1333 = c[4] * t1332;
        const V t1334 = t1281 + t1185;
        const V t1335 = t1331 - t1333;
        const V t1336 = t1280 + t1184;
        const V t1337 = t1331 + t1333;
        // spectrum block of 2
        const V t1338 = t1326 + t1334;
        io.im(37, t1338);
        const V t1339 = t1326 - t1334;
        io.im(4, t1339);
        // spectrum block of 2
        const V t1340 = t1328 + t1335;
        io.im(12, t1340);
        const V t1341 = t1328 - t1335;
        io.im(29, t1341);
        // spectrum block of 2
        const V t1342 = t1327 - t1336;
        io.im(5, t1342);
        const V t1343 = t1327 + t1336;
        io.im(36, t1343);
        // spectrum block of 2
        const V t1344 = t1329 - t1337;
        io.im(26, t1344);
        const V t1345 = t1329 + t1337;
        io.im(15, t1345);
        // spectrum block of 2
        const V t1346 = t1127 + t1291;
        const V t1347 = t1127 - t1291;
        // spectrum block of 2
        const V t1348 = t1346 + t1213;
        const V t1349 = t1346 - t1213;
        // spectrum block of 2
        const V t1350 = t1347 - t1212;
        const V t1351 = t1347 + t1212;
        // mirrored skew block of 4, multiplier 5
        const V t1352 = t1261 - t1165;
        const V t1353 = c[4] * t1352;
        const V t1354 = t1260 + t1164;
        const V t1355 = c[4] * t1354;
        const V t1356 = t1261 + t1165;
        const V t1357 = t1353 + t1355;
        const V t1358 = t1164 - t1260;
        const V t1359 = t1353 - t1355;
        // spectrum block of 2
        const V t1360 = t1348 + t1356;
        io.im(16, t1360);
        const V t1361 = t1348 - t1356;
        io.im(25, t1361);
        // spectrum block of 2
        const V t1362 = t1350 + t1357;
        io.im(34, t1362);
        const V t1363 = t1350 - t1357;
        io.im(7, t1363);
        // spectrum block of 2
        const V t1364 = t1349 - t1358;
        io.im(21, t1364);
        const V t1365 = t1349 + t1358;
        io.im(20, t1365);
        // spectrum block of 2
        const V t1366 = t1351 - t1359;
        io.im(19, t1366);
        const V t1367 = t1351 + t1359;
        io.im(22, t1367);
        // spectrum block of 2
        const V t1368 = t1128 + t1292;
        const V t1369 = t1128 - t1292;
        // spectrum block of 2
        const V t1370 = t1368 + t1215;
        const V t1371 = t1368 - t1215;
        // spectrum block of 2
        const V t1372 = t1369 - t1214;
        const V t1373 = t1369 + t1214;
        // mirrored skew block of 4, multiplier 5
        const V t1374 = t1263 - t1167;
        const V t1375 = c[4] * t1374;
        const V t1376 = t1262 + t1166;
        const V t1377 = c[4] * t1376;
        const V t1378 = t1263 + t1167;
        const V t1379 = t1375 + t1377;
        const V t1380 = t1166 - t1262;
        const V t1381 = t1375 - t1377;
        // spectrum block of 2
        const V t1382 = t1370 + t1378;
        io.im(18, t1382);
        const V t1383 = t1370 - t1378;
        io.im(23, t1383);
        // spectrum block of 2
        const V t1384 = t1372 + t1379;
        io.im(28, t1384);
        const V t1385 = t1372 - t1379;
        io.im(13, t1385);
        // spectrum block of 2
        const V t1386 = t1371 - t1380;
        io.im(39, t1386);
        const V t1387 = t1371 + t1380;
        io.im(2, t1387);
        // spectrum block of 2
        const V t1388 = t1373 - t1381;
        io.im(6, t1388);
        const V t1389 = t1373 + t1381;
        io.im(35, t1389);
        // spectrum block of 2
        const V t1390 = t1136 + t1300;
        const V t1391 = t1136 - t1300;
        // spectrum block of 2
        const V t1392 = t1390 + t1231;
        const V t1393 = t1390 - t1231;
        // spectrum block of 2
        const V t1394 = t1391 - t1230;
        const V t1395 = t1391 + t1230;
        // mirrored skew block of 4, multiplier 5
        const V t1396 = t1279 - t1183;
        const V t1397 = c[4] * t1396;
        const V t1398 = t1278 + t1182;
        const V t1399 = c[4] * t1398;
        const V t1400 = t1279 + t1183;
        const V t1401 = t1397 + t1399;
        const V t1402 = t1182 - t1278;
        const V t1403 = t1397 - t1399;
        // spectrum block of 2
        const V t1404 = t1392 + t1400;
        io.im(10, t1404);
        const V t1405 = t1392 - t1400;
        io.im(31, t1405);
        // spectrum block of 2
        const V t1406 = t1394 + t1401;
        io.im(11, t1406);
        const V t1407 = t1394 - t1401;
        io.im(30, t1407);
        // spectrum block of 2
        const V t1408 = t1393 - t1402;
        io.im(8, t1408);
        const V t1409 = t1393 + t1402;
        io.im(33, t1409);
        // spectrum block of 2
        const V t1410 = t1395 - t1403;
        io.im(17, t1410);
        const V t1411 = t1395 + t1403;
        io.im(24, t1411);
    }
};

}  // namespace zulg
