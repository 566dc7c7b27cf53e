// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 41.
// Forward DFT of 41 real points, Rader 5, 8.
// 231 additions, 213 subtractions, 242 multiplications (283 with `scale`); 9 outputs negated; 49 constants; 48 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<41> {
    static constexpr int steps = 727;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
        0.15643446504023087,  // c[5]: -sin 2 pi 39/40
        0.9876883405951378,  // c[6]: cos 2 pi 39/40
        0.4539904997395468,  // c[7]: -sin 2 pi 37/40
        0.8910065241883679,  // c[8]: cos 2 pi 37/40
        0.1838590344269595,  // c[9]: -Q[1] of 41
        0.2620989421184033,  // c[10]: -P[1] of 41
        0.11219636857220389,  // c[11]: Q[2] of 41
        0.29985325557547343,  // c[12]: P[2] of 41
        0.30823256046522535,  // c[13]: -Q[3] of 41
        0.08656031809698493,  // c[14]: -P[3] of 41
        0.04161199958857812,  // c[15]: Q[4] of 41
        0.3174404534558256,  // c[16]: P[4] of 41
        0.2933028207344136,  // c[17]: -Q[5] of 41
        0.12834895928380738,  // c[18]: -P[5] of 41
        0.017504129545828598,  // c[19]: -Q[6] of 41
        0.31967734584865853,  // c[20]: P[6] of 41
        0.31908428543576123,  // c[21]: Q[7] of 41
        0.026176684051836208,  // c[22]: -P[7] of 41
        0.3074744781243565,  // c[23]: Q[8] of 41
        0.08921572340206974,  // c[24]: P[8] of 41
        0.05419385685994486,  // c[25]: Q[9] of 41
        0.3155360928303509,  // c[26]: -P[9] of 41
        0.30210846807720454,  // c[27]: -Q[10] of 41
        0.10597392847320843,  // c[28]: -P[10] of 41
        0.0731522471449556,  // c[29]: Q[11] of 41
        0.3116869402744416,  // c[30]: P[11] of 41
        0.17046672279564715,  // c[31]: -Q[12] of 41
        0.2710001778953512,  // c[32]: -P[12] of 41
        0.27149319974882274,  // c[33]: -Q[13] of 41
        0.16968041280638677,  // c[34]: -P[13] of 41
        0.30566398933844086,  // c[35]: Q[14] of 41
        0.09523405704741086,  // c[36]: P[14] of 41
        0.024028443109264917,  // c[37]: -Q[15] of 41
        0.3192532441835867,  // c[38]: P[15] of 41
        0.03151160488130023,  // c[39]: Q[16] of 41
        0.3186016615741431,  // c[40]: P[16] of 41
        0.21192383863816136,  // c[41]: Q[17] of 41
        0.2399755958777195,  // c[42]: P[17] of 41
        0.24179459418352547,  // c[43]: -Q[18] of 41
        0.20984607269049432,  // c[44]: -P[18] of 41
        0.26991254618698857,  // c[45]: Q[19] of 41
        0.17218367347358104,  // c[46]: -P[19] of 41
        0.025,  // c[47]: 1/40
        0.16007810593582122,  // c[48]: beta of 41
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 5, multiplier 3
        const V x10 = io.in(10);
        const V x37 = io.in(37);
        const V t0 = x10 + x37;
        const V t1 = x10 - x37;
        const V x16 = io.in(16);
        const V x18 = io.in(18);
        const V t2 = x16 + x18;
        const V t3 = x16 - x18;
        const V t4 = t0 + t2;
        const V x1 = io.in(1);
        const V t5 = t4 + x1;
        const V t6 = c[0] * t0;
        const V t7 = x1 - t6;
        const V t8 = c[1] * t2;
        const V t9 = t7 + t8;
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t10 + t11;
        const V t13 = c[1] * t0;
        const V t14 = c[0] * t2;
        const V t15 = t13 - t14;
        const V t16 = t15 + x1;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t3;
        const V t19 = t18 - t17;
        // real block of 5, multiplier 3
        const V x24 = io.in(24);
        const V x15 = io.in(15);
        const V t20 = x24 + x15;
        const V t21 = x24 - x15;
        const V x22 = io.in(22);
        const V x35 = io.in(35);
        const V t22 = x22 + x35;
        const V t23 = x22 - x35;
        const V t24 = t20 + t22;
        const V x27 = io.in(27);
        const V t25 = t24 + x27;
        const V t26 = c[0] * t20;
        const V t27 = x27 - t26;
        const V t28 = c[1] * t22;
        const V t29 = t27 + t28;
        const V t30 = c[2] * t21;
        const V t31 = c[3] * t23;
        const V t32 = t30 + t31;
        const V t33 = c[1] * t20;
        const V t34 = c[0] * t22;
        const V t35 = t33 - t34;
        const V t36 = t35 + x27;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t23;
        const V t39 = t38 - t37;
        // real block of 5, multiplier 3
        const V x33 = io.in(33);
        const V x36 = io.in(36);
        const V t40 = x33 + x36;
        const V t41 = x33 - x36;
        const V x20 = io.in(20);
        const V x2 = io.in(2);
        const V t42 = x20 + x2;
        const V t43 = x20 - x2;
        const V t44 = t40 + t42;
        const V x32 = io.in(32);
        const V t45 = t44 + x32;
        const V t46 = c[0] * t40;
        const V t47 = x32 - t46;
        const V t48 = c[1] * t42;
        const V t49 = t47 + t48;
        const V t50 = c[2] * t41;
        const V t51 = c[3] * t43;
        const V t52 = t50 + t51;
        const V t53 = c[1] * t40;
        const V t54 = c[0] * t42;
        const V t55 = t53 - t54;
        const V t56 = t55 + x32;
        const V t57 = c[3] * t41;
        const V t58 = c[2] * t43;
        const V t59 = t58 - t57;
        // real block of 5, multiplier 3
        const V x30 = io.in(30);
        const V x29 = io.in(29);
        const V t60 = x30 + x29;
        const V t61 = x30 - x29;
        const V x7 = io.in(7);
        const V x13 = io.in(13);
        const V t62 = x7 + x13;
        const V t63 = x7 - x13;
        const V t64 = t60 + t62;
        const V x3 = io.in(3);
        const V t65 = t64 + x3;
        const V t66 = c[0] * t60;
        const V t67 = x3 - t66;
        const V t68 = c[1] * t62;
        const V t69 = t67 + t68;
        const V t70 = c[2] * t61;
        const V t71 = c[3] * t63;
        const V t72 = t70 + t71;
        const V t73 = c[1] * t60;
        const V t74 = c[0] * t62;
        const V t75 = t73 - t74;
        const V t76 = t75 + x3;
        const V t77 = c[3] * t61;
        const V t78 = c[2] * t63;
        const V t79 = t78 - t77;
        // real block of 5, multiplier 3
        const V x31 = io.in(31);
        const V x4 = io.in(4);
        const V t80 = x31 + x4;
        const V t81 = x31 - x4;
        const V x25 = io.in(25);
        const V x23 = io.in(23);
        const V t82 = x25 + x23;
        const V t83 = x25 - x23;
        const V t84 = t80 + t82;
        const V x40 = io.in(40);
        const V t85 = t84 + x40;
        const V t86 = c[0] * t80;
        const V t87 = x40 - t86;
        const V t88 = c[1] * t82;
        const V t89 = t87 + t88;
        const V t90 = c[2] * t81;
        const V t91 = c[3] * t83;
        const V t92 = t90 + t91;
        const V t93 = c[1] * t80;
        const V t94 = c[0] * t82;
        const V t95 = t93 - t94;
        const V t96 = t95 + x40;
        const V t97 = c[3] * t81;
        const V t98 = c[2] * t83;
        const V t99 = t98 - t97;
        // real block of 5, multiplier 3
        const V x17 = io.in(17);
        const V x26 = io.in(26);
        const V t100 = x17 + x26;
        const V t101 = x17 - x26;
        const V x19 = io.in(19);
        const V x6 = io.in(6);
        const V t102 = x19 + x6;
        const V t103 = x19 - x6;
        const V t104 = t100 + t102;
        const V x14 = io.in(14);
        const V t105 = t104 + x14;
        const V t106 = c[0] * t100;
        const V t107 = x14 - t106;
        const V t108 = c[1] * t102;
        const V t109 = t107 + t108;
        const V t110 = c[2] * t101;
        const V t111 = c[3] * t103;
        const V t112 = t110 + t111;
        const V t113 = c[1] * t100;
        const V t114 = c[0] * t102;
        const V t115 = t113 - t114;
        const V t116 = t115 + x14;
        const V t117 = c[3] * t101;
        const V t118 = c[2] * t103;
        const V t119 = t118 - t117;
        // real block of 5, multiplier 3
        const V x8 = io.in(8);
        const V x5 = io.in(5);
        const V t120 = x8 + x5;
        const V t121 = x8 - x5;
        const V x21 = io.in(21);
        const V x39 = io.in(39);
        const V t122 = x21 + x39;
        const V t123 = x21 - x39;
        const V t124 = t120 + t122;
        const V x9 = io.in(9);
        const V t125 = t124 + x9;
        const V t126 = c[0] * t120;
        const V t127 = x9 - t126;
        const V t128 = c[1] * t122;
        const V t129 = t127 + t128;
        const V t130 = c[2] * t121;
        const V t131 = c[3] * t123;
        const V t132 = t130 + t131;
        const V t133 = c[1] * t120;
        const V t134 = c[0] * t122;
        const V t135 = t133 - t134;
        const V t136 = t135 + x9;
        const V t137 = c[3] * t121;
        const V t138 = c[2] * t123;
        const V t139 = t138 - t137;
        // real block of 5, multiplier 3
        const V x11 = io.in(11);
        const V x12 = io.in(12);
        const V t140 = x11 + x12;
        const V t141 = x11 - x12;
        const V x34 = io.in(34);
        const V x28 = io.in(28);
        const V t142 = x34 + x28;
        const V t143 = x34 - x28;
        const V t144 = t140 + t142;
        const V x38 = io.in(38);
        const V t145 = t144 + x38;
        const V t146 = c[0] * t140;
        const V t147 = x38 - t146;
        const V t148 = c[1] * t142;
        const V t149 = t147 + t148;
        const V t150 = c[2] * t141;
        const V t151 = c[3] * t143;
        const V t152 = t150 + t151;
        const V t153 = c[1] * t140;
        const V t154 = c[0] * t142;
        const V t155 = t153 - t154;
        const V t156 = t155 + x38;
        const V t157 = c[3] * t141;
        const V t158 = c[2] * t143;
        const V t159 = t158 - t157;
        // real block of 2
        const V t160 = t5 + t85;
        const V t161 = t5 - t85;
        // real block of 2
        const V t162 = t25 + t105;
        const V t163 = t25 - t105;
        // real block of 2
        const V t164 = t45 + t125;
        const V t165 = t45 - t125;
        // real block of 2
        const V t166 = t65 + t145;
        const V t167 = t65 - t145;
        // real block of 2
        const V t168 = t160 + t164;
        const V t169 = t160 - t164;
        // real block of 2
        const V t170 = t162 + t166;
        const V t171 = t162 - t166;
        // real block of 2
        const V t172 = t168 + t170;
        const V t173 = t168 - t170;
        // skew block of 4, multiplier 5
        const V t174 = t163 - t167;
        const V t175 = c[4] * t174;
        const V t176 = t163 + t167;
        const V t177 = c[4] * t176;
        const V t178 = t177 - t165;
        const V t179 = t161 + t175;
        const V t180 = t165 + t177;
        const V t181 = t161 - t175;
        // complex block of 2
        const V t182 = t9 + t89;
        const V t183 = t12 + t92;
        const V t184 = t9 - t89;
        const V t185 = t12 - t92;
        // complex block of 2
        const V t186 = t29 + t109;
        const V t187 = t32 + t112;
        const V t188 = t29 - t109;
        const V t189 = t32 - t112;
        // complex block of 2
        const V t190 = t49 + t129;
        const V t191 = t52 + t132;
        const V t192 = t49 - t129;
        const V t193 = t52 - t132;
        // complex block of 2
        const V t194 = t69 + t149;
        const V t195 = t72 + t152;
        const V t196 = t69 - t149;
        const V t197 = t72 - t152;
        // complex block of 2
        const V t198 = t182 + t190;
        const V t199 = t183 + t191;
        const V t200 = t182 - t190;
        const V t201 = t183 - t191;
        // complex block of 2
        const V t202 = t186 + t194;
        const V t203 = t187 + t195;
        const V t204 = t186 - t194;
        const V t205 = t187 - t195;
        // complex block of 2
        const V t206 = t198 + t202;
        const V t207 = t199 + t203;
        const V t208 = t198 - t202;
        const V t209 = t199 - t203;
        // complex block of 2
        const V t210 = t200 + t205;
        const V t211 = t201 - t204;
        const V t212 = t200 - t205;
        const V t213 = t201 + t204;
        // complex block of 8, multiplier 5
        const V t214 = c[4] * t188;
        const V t215 = c[4] * t189;
        const V t216 = t214 + t215;
        const V t217 = t215 - t214;
        const V t218 = c[4] * t196;
        const V t219 = c[4] * t197;
        const V t220 = t218 + t219;
        const V t221 = t219 - t218;
        // complex block of 2
        const V t222 = t184 + t193;
        const V t223 = t185 - t192;
        const V t224 = t184 - t193;
        const V t225 = t185 + t192;
        // complex block of 2
        const V t226 = t216 + t221;
        const V t227 = t220 - t217;
        const V t228 = t221 - t216;
        const V t229 = t217 + t220;
        // complex block of 2
        const V t230 = t222 - t226;
        const V t231 = t223 + t227;
        const V t232 = t222 + t226;
        const V t233 = t223 - t227;
        // complex block of 2
        const V t234 = t224 - t229;
        const V t235 = t225 - t228;
        const V t236 = t224 + t229;
        const V t237 = t225 + t228;
        // complex block of 2
        const V t238 = t16 + t96;
        const V t239 = t19 + t99;
        const V t240 = t16 - t96;
        const V t241 = t19 - t99;
        // complex block of 2
        const V t242 = t36 + t116;
        const V t243 = t39 + t119;
        const V t244 = t36 - t116;
        const V t245 = t39 - t119;
        // complex block of 2
        const V t246 = t56 + t136;
        const V t247 = t59 + t139;
        const V t248 = t56 - t136;
        const V t249 = t59 - t139;
        // complex block of 2
        const V t250 = t76 + t156;
        const V t251 = t79 + t159;
        const V t252 = t76 - t156;
        const V t253 = t79 - t159;
        // complex block of 2
        const V t254 = t238 + t246;
        const V t255 = t239 + t247;
        const V t256 = t238 - t246;
        const V t257 = t239 - t247;
        // complex block of 2
        const V t258 = t242 + t250;
        const V t259 = t243 + t251;
        const V t260 = t242 - t250;
        const V t261 = t243 - t251;
        // complex block of 2
        const V t262 = t254 + t258;
        const V t263 = t255 + t259;
        const V t264 = t254 - t258;
        const V t265 = t255 - t259;
        // complex block of 2
        const V t266 = t256 + t261;
        const V t267 = t257 - t260;
        const V t268 = t256 - t261;
        const V t269 = t257 + t260;
        // complex block of 8, multiplier 5
        const V t270 = c[4] * t244;
        const V t271 = c[4] * t245;
        const V t272 = t270 + t271;
        const V t273 = t271 - t270;
        const V t274 = c[4] * t252;
        const V t275 = c[4] * t253;
        const V t276 = t274 + t275;
        const V t277 = t275 - t274;
        // complex block of 2
        const V t278 = t240 + t249;
        const V t279 = t241 - t248;
        const V t280 = t240 - t249;
        const V t281 = t241 + t248;
        // complex block of 2
        const V t282 = t272 + t277;
        const V t283 = t276 - t273;
        const V t284 = t277 - t272;
        const V t285 = t273 + t276;
        // complex block of 2
        const V t286 = t278 - t282;
        const V t287 = t279 + t283;
        const V t288 = t278 + t282;
        const V t289 = t279 - t283;
        // complex block of 2
        const V t290 = t280 - t285;
        const V t291 = t281 - t284;
        const V t292 = t280 + t285;
        const V t293 = t281 + t284;
        // real block of 41
        const V x0 = io.in(0);
        const V t294 = x0 + t172;
        io.re(0, t294);
        const V t295 = c[47] * t172;
        const V t296 = x0 - t295;
        const V t297 = c[9] * t289;
        const V t298 = c[10] * t288;
        const V t299 = t297 - t298;
        const V t300 = c[9] * t288;
        const V t301 = c[10] * t289;
        const V t302 = t301 + t300;
        const V t303 = c[11] * t213;
        const V t304 = c[12] * t212;
        const V t305 = t304 + t303;
        const V t306 = c[11] * t212;
        const V t307 = c[12] * t213;
        const V t308 = t306 - t307;
        const V t309 = c[13] * t237;
        const V t310 = c[14] * t236;
        const V t311 = t309 - t310;
        const V t312 = c[13] * t236;
        const V t313 = c[14] * t237;
        const V t314 = t313 + t312;
        const V t315 = c[15] * t265;
        const V t316 = c[16] * t264;
        const V t317 = t316 + t315;
        const V t318 = c[15] * t264;
        const V t319 = c[16] * t265;
        const V t320 = t318 - t319;
        const V t321 = c[17] * t178;
        const V t322 = c[18] * t181;
        const V t323 = t321 - t322;
        const V t324 = c[17] * t181;
        const V t325 = c[18] * t178;
        const V t326 = t325 + t324;
        const V t327 = c[19] * t269;
        const V t328 = c[20] * t268;
        const V t329 = t328 + t327;
        const V t330 = c[19] * t268;
        const V t331 = c[20] * t269;
        const V t332 = t331 - t330;
        const V t333 = c[21] * t233;
        const V t334 = c[22] * t232;
        const V t335 = t333 - t334;
        const V t336 = c[21] * t232;
        const V t337 = c[22] * t233;
        const V t338 = t337 + t336;
        const V t339 = c[23] * t207;
        const V t340 = c[24] * t206;
        const V t341 = t340 - t339;
        const V t342 = c[23] * t206;
        const V t343 = c[24] * t207;
        const V t344 = t343 + t342;
        const V t345 = c[25] * t291;
        const V t346 = c[26] * t290;
        const V t347 = t345 - t346;
        const V t348 = c[25] * t290;
        const V t349 = c[26] * t291;
        const V t350 = t349 + t348;
        const V t351 = c[27] * t171;
        const V t352 = c[28] * t169;
        const V t353 = t352 + t351;
        const V t354 = c[27] * t169;
        const V t355 = c[28] * t171;
        const V t356 = t355 - t354;
        const V t357 = c[29] * t293;
        const V t358 = c[30] * t292;
        const V t359 = t358 - t357;
        const V t360 = c[29] * t292;
        const V t361 = c[30] * t293;
        const V t362 = t361 + t360;
        const V t363 = c[31] * t209;
        const V t364 = c[32] * t208;
        const V t365 = t364 + t363;
        const V t366 = c[31] * t208;
        const V t367 = c[32] * t209;
        const V t368 = t367 - t366;
        const V t369 = c[33] * t231;
        const V t370 = c[34] * t230;
        const V t371 = t369 - t370;
        const V t372 = c[33] * t230;
        const V t373 = c[34] * t231;
        const V t374 = t373 + t372;
        const V t375 = c[35] * t267;
        const V t376 = c[36] * t266;
        const V t377 = t376 + t375;
        const V t378 = c[35] * t266;
        const V t379 = c[36] * t267;
        const V t380 = t378 - t379;
        const V t381 = c[37] * t180;
        const V t382 = c[38] * t179;
        const V t383 = t382 + t381;
        const V t384 = c[37] * t179;
        const V t385 = c[38] * t180;
        const V t386 = t385 - t384;
        const V t387 = c[39] * t263;
        const V t388 = c[40] * t262;
        const V t389 = t388 - t387;
        const V t390 = c[39] * t262;
        const V t391 = c[40] * t263;
        const V t392 = t391 + t390;
        const V t393 = c[41] * t235;
        const V t394 = c[42] * t234;
        const V t395 = t394 + t393;
        const V t396 = c[41] * t234;
        const V t397 = c[42] * t235;
        const V t398 = t396 - t397;
        const V t399 = c[43] * t211;
        const V t400 = c[44] * t210;
        const V t401 = t399 - t400;
        const V t402 = c[43] * t210;
        const V t403 = c[44] * t211;
        const V t404 = t403 + t402;
        const V t405 = c[45] * t287;
        const V t406 = c[46] * t286;
        const V t407 = t405 - t406;
        const V t408 = c[45] * t286;
        const V t409 = c[46] * t287;
        const V t410 = t409 + t408;
        const V t411 = c[48] * t173;
        // spectrum block of 5, multiplier 4
        const V t412 = t341 + t389;
        const V t413 = t412 + t296;
        const V t414 = c[1] * t341;
        const V t415 = c[0] * t389;
        const V t416 = t414 - t415;
        const V t417 = t416 + t296;
        const V t418 = c[3] * t344;
        const V t419 = c[2] * t392;
        const V t420 = t418 + t419;
        const V t421 = t417 - t420;
        const V t422 = t417 + t420;
        const V t423 = c[0] * t341;
        const V t424 = t296 - t423;
        const V t425 = c[1] * t389;
        const V t426 = t424 + t425;
        const V t427 = c[2] * t344;
        const V t428 = c[3] * t392;
        const V t429 = t427 - t428;
        const V t430 = t426 - t429;
        const V t431 = t426 + t429;
        // complex block of 5, multiplier 4
        const V t432 = t308 - t404;
        const V t433 = t401 + t305;
        const V t434 = t404 + t308;
        const V t435 = t401 - t305;
        const V t436 = t332 + t380;
        const V t437 = t329 + t377;
        const V t438 = t380 - t332;
        const V t439 = t329 - t377;
        const V t440 = t432 - t436;
        const V t441 = t433 + t437;
        const V t442 = t440 + t356;
        const V t443 = t441 - t353;
        const V t444 = c[1] * t432;
        const V t445 = c[0] * t436;
        const V t446 = t444 + t445;
        const V t447 = t446 + t356;
        const V t448 = c[1] * t433;
        const V t449 = c[0] * t437;
        const V t450 = t448 - t449;
        const V t451 = t450 - t353;
        const V t452 = c[3] * t434;
        const V t453 = c[2] * t438;
        const V t454 = t452 + t453;
        const V t455 = c[3] * t435;
        const V t456 = c[2] * t439;
        const V t457 = t455 - t456;
        const V t458 = t447 + t457;
        const V t459 = t451 + t454;
        const V t460 = t447 - t457;
        const V t461 = t451 - t454;
        const V t462 = c[0] * t432;
        const V t463 = t356 - t462;
        const V t464 = c[1] * t436;
        const V t465 = t463 - t464;
        const V t466 = c[0] * t433;
        const V t467 = t353 + t466;
        const V t468 = c[1] * t437;
        const V t469 = t468 - t467;
        const V t470 = c[2] * t434;
        const V t471 = c[3] * t438;
        const V t472 = t471 - t470;
        const V t473 = c[2] * t435;
        const V t474 = c[3] * t439;
        const V t475 = t473 + t474;
        const V t476 = t465 + t475;
        const V t477 = t469 - t472;
        const V t478 = t465 - t475;
        const V t479 = t469 + t472;
        // spectrum block of 5, multiplier 4
        const V t480 = t317 - t365;
        const V t481 = t480 + t411;
        const V t482 = c[1] * t365;
        const V t483 = t411 - t482;
        const V t484 = c[0] * t317;
        const V t485 = t483 - t484;
        const V t486 = c[3] * t368;
        const V t487 = c[2] * t320;
        const V t488 = t486 + t487;
        const V t489 = t485 + t488;
        const V t490 = t485 - t488;
        const V t491 = c[0] * t365;
        const V t492 = c[1] * t317;
        const V t493 = t491 + t492;
        const V t494 = t493 + t411;
        const V t495 = c[2] * t368;
        const V t496 = c[3] * t320;
        const V t497 = t496 - t495;
        const V t498 = t494 - t497;
        const V t499 = t494 + t497;
        // spectrum block of 2
        const V t500 = t413 + t481;
        const V t501 = t413 - t481;
        // spectrum block of 2
        const V t502 = t500 + t443;
        io.re(1, t502);
        const V t503 = t500 - t443;
        io.re(9, t503);
        // spectrum block of 2
        const V t504 = t501 - t442;
        io.re(3, t504);
        const V t505 = t501 + t442;
        io.re(14, t505);
        // spectrum block of 2
        const V t506 = t422 + t490;
        const V t507 = t422 - t490;
        // spectrum block of 2
        const V t508 = t506 + t461;
        io.re(18, t508);
        const V t509 = t506 - t461;
        io.re(2, t509);
        // spectrum block of 2
        const V t510 = t507 - t460;
        io.re(13, t510);
        const V t511 = t507 + t460;
        io.re(6, t511);
        // spectrum block of 2
        const V t512 = t431 + t499;
        const V t513 = t431 - t499;
        // spectrum block of 2
        const V t514 = t512 + t479;
        io.re(4, t514);
        const V t515 = t512 - t479;
        io.re(5, t515);
        // spectrum block of 2
        const V t516 = t513 - t478;
        io.re(12, t516);
        const V t517 = t513 + t478;
        io.re(15, t517);
        // spectrum block of 2
        const V t518 = t430 + t498;
        const V t519 = t430 - t498;
        // spectrum block of 2
        const V t520 = t518 + t477;
        io.re(10, t520);
        const V t521 = t518 - t477;
        io.re(8, t521);
        // spectrum block of 2
        const V t522 = t519 - t476;
        io.re(11, t522);
        const V t523 = t519 + t476;
        io.re(17, t523);
        // spectrum block of 2
        const V t524 = t421 + t489;
        const V t525 = t421 - t489;
        // spectrum block of 2
        const V t526 = t524 + t459;
        io.re(16, t526);
        const V t527 = t524 - t459;
        io.re(20, t527);
        // spectrum block of 2
        const V t528 = t525 - t458;
        io.re(7, t528);
        const V t529 = t525 + t458;
        io.re(19, t529);
        // complex block of 2
        const V t530 = t407 - t299;
        const V t531 = t410 - t302;
        const V t532 = t299 + t407;
        const V t533 = t302 + t410;
        // complex block of 2
        const V t534 = t347 - t359;
        const V t535 = t362 + t350;
        const V t536 = t359 + t347;
        const V t537 = t362 - t350;
        // complex block of 2
        const V t538 = t530 + t534;
        const V t539 = t531 + t535;
        const V t540 = t530 - t534;
        const V t541 = t531 - t535;
        // complex block of 2
        const V t542 = t537 - t532;
        const V t543 = t536 - t533;
        const V t544 = t532 + t537;
        const V t545 = t533 + t536;
        // mirrored skew block of 20
        const V t546 = c[5] * t542;
        const V t547 = c[6] * t543;
        const V t548 = t547 - t546;
        const V t549 = c[5] * t543;
        const V t550 = c[6] * t542;
        const V t551 = t550 + t549;
        const V t552 = c[1] * t540;
        const V t553 = c[3] * t541;
        const V t554 = t553 - t552;
        const V t555 = c[1] * t541;
        const V t556 = c[3] * t540;
        const V t557 = t556 + t555;
        const V t558 = c[7] * t544;
        const V t559 = c[8] * t545;
        const V t560 = t558 - t559;
        const V t561 = c[7] * t545;
        const V t562 = c[8] * t544;
        const V t563 = t562 + t561;
        // complex block of 2
        const V t564 = t395 - t311;
        const V t565 = t398 - t314;
        const V t566 = t311 + t395;
        const V t567 = t314 + t398;
        // complex block of 2
        const V t568 = t335 - t371;
        const V t569 = t338 - t374;
        const V t570 = t371 + t335;
        const V t571 = t374 + t338;
        // complex block of 2
        const V t572 = t564 + t568;
        const V t573 = t565 + t569;
        const V t574 = t564 - t568;
        const V t575 = t565 - t569;
        // complex block of 2
        const V t576 = t566 + t571;
        const V t577 = t570 - t567;
        const V t578 = t571 - t566;
        const V t579 = t567 + t570;
        // mirrored skew block of 20
        const V t580 = c[7] * t576;
        const V t581 = c[8] * t577;
        const V t582 = t581 + t580;
        const V t583 = c[7] * t577;
        const V t584 = c[8] * t576;
        const V t585 = t583 - t584;
        const V t586 = c[0] * t574;
        const V t587 = c[2] * t575;
        const V t588 = t587 - t586;
        const V t589 = c[0] * t575;
        const V t590 = c[2] * t574;
        const V t591 = t590 + t589;
        const V t592 = c[6] * t578;
        const V t593 = c[5] * t579;
        const V t594 = t593 + t592;
        const V t595 = c[6] * t579;
        const V t596 = c[5] * t578;
        const V t597 = t596 - t595;
        // mirrored skew block of 4
        const V t598 = t326 + t386;
        const V t599 = c[4] * t598;
        const V t600 = t323 + t383;
        const V t601 = c[4] * t600;
        const V t602 = t386 - t326;
        const V t603 = t601 - t599;
        const V t604 = t383 - t323;
        const V t605 = t599 + t601;
        // spectrum block of 5, multiplier 2
        const V t606 = t573 + t539;
        const V t607 = t606 + t602;
        io.im(1, t607);
        const V t608 = c[1] * t573;
        const V t609 = c[0] * t539;
        const V t610 = t608 - t609;
        const V t611 = t610 + t602;
        const V t612 = c[3] * t572;
        const V t613 = c[2] * t538;
        const V t614 = t612 + t613;
        const V t615 = t611 + t614;
        io.im(18, t615);
        const V t616 = t611 - t614;
        io.im(16, t616);
        const V t617 = c[0] * t573;
        const V t618 = t602 - t617;
        const V t619 = c[1] * t539;
        const V t620 = t618 + t619;
        const V t621 = c[2] * t572;
        const V t622 = c[3] * t538;
        const V t623 = t622 - t621;
        const V t624 = t620 - t623;
        io.minusIm(4, t624);
        const V t625 = t620 + t623;
        io.im(10, t625);
        // spectrum block of 5, multiplier 2
        const V t626 = t582 + t548;
        const V t627 = t626 + t603;
        io.im(7, t627);
        const V t628 = c[1] * t582;
        const V t629 = c[0] * t548;
        const V t630 = t628 - t629;
        const V t631 = t630 + t603;
        const V t632 = c[3] * t585;
        const V t633 = c[2] * t551;
        const V t634 = t632 + t633;
        const V t635 = t631 + t634;
        io.im(3, t635);
        const V t636 = t631 - t634;
        io.minusIm(11, t636);
        const V t637 = c[0] * t582;
        const V t638 = t603 - t637;
        const V t639 = c[1] * t548;
        const V t640 = t638 + t639;
        const V t641 = c[2] * t585;
        const V t642 = c[3] * t551;
        const V t643 = t642 - t641;
        const V t644 = t640 - t643;
        io.im(13, t644);
        const V t645 = t640 + t643;
        io.minusIm(12, t645);
        // spectrum block of 5, multiplier 2
        const V t646 = t588 + t554;
        const V t647 = t646 - t604;
        io.im(8, t647);
        const V t648 = c[1] * t588;
        const V t649 = c[0] * t554;
        const V t650 = t648 - t649;
        const V t651 = t650 - t604;
        const V t652 = c[3] * t591;
        const V t653 = c[2] * t557;
        const V t654 = t652 + t653;
        const V t655 = t651 + t654;
        io.minusIm(20, t655);
        const V t656 = t651 - t654;
        io.im(5, t656);
        const V t657 = c[0] * t588;
        const V t658 = t604 + t657;
        const V t659 = c[1] * t554;
        const V t660 = t659 - t658;
        const V t661 = c[2] * t591;
        const V t662 = c[3] * t557;
        const V t663 = t662 - t661;
        const V t664 = t660 - t663;
        io.im(9, t664);
        const V t665 = t660 + t663;
        io.minusIm(2, t665);
        // spectrum block of 5, multiplier 2
        const V t666 = t560 - t594;
        const V t667 = t666 + t605;
        io.im(15, t667);
        const V t668 = c[1] * t594;
        const V t669 = t605 - t668;
        const V t670 = c[0] * t560;
        const V t671 = t669 - t670;
        const V t672 = c[3] * t597;
        const V t673 = c[2] * t563;
        const V t674 = t673 - t672;
        const V t675 = t671 - t674;
        io.minusIm(17, t675);
        const V t676 = t671 + t674;
        io.minusIm(6, t676);
        const V t677 = c[0] * t594;
        const V t678 = c[1] * t560;
        const V t679 = t677 + t678;
        const V t680 = t679 + t605;
        const V t681 = c[2] * t597;
        const V t682 = c[3] * t563;
        const V t683 = t681 + t682;
        const V t684 = t680 + t683;
        io.minusIm(19, t684);
        const V t685 = t680 - t683;
        io.minusIm(14, t685);
    }
};

}  // namespace zulg
