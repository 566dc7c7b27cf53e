// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 43.
// Forward DFT of 43 real points, Rader 2, 7, 3.
// 264 additions, 268 subtractions, 352 multiplications (395 with `scale`); 9 outputs negated; 54 constants; 49 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<43> {
    static constexpr int steps = 927;  // with `scale`
    static constexpr double inverseRoot = 0.15249857033260467;  // 1/sqrt(43), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 6/7
        0.2225209339563144,  // c[1]: -cos 2 pi 30/7
        0.9009688679024191,  // c[2]: -cos 2 pi 24/7
        0.7818314824680298,  // c[3]: -sin 2 pi 6/7
        0.9749279121818236,  // c[4]: sin 2 pi 30/7
        0.4338837391175581,  // c[5]: sin 2 pi 24/7
        0.5,  // c[6]: -cos 2 pi 2/3
        0.8660254037844386,  // c[7]: -sin 2 pi 2/3
        0.08222826754004824,  // c[8]: Q[1] of 43
        0.3012377482182514,  // c[9]: -P[1] of 43
        0.3115158140914036,  // c[10]: Q[2] of 43
        0.02153059463206762,  // c[11]: P[2] of 43
        0.23875651933592446,  // c[12]: -Q[3] of 43
        0.20124858610393936,  // c[13]: -P[3] of 43
        0.2103692595529628,  // c[14]: Q[4] of 43
        0.23076057628931884,  // c[15]: P[4] of 43
        0.16498076041582113,  // c[16]: Q[5] of 43
        0.26511698856704335,  // c[17]: P[5] of 43
        0.19319176405051375,  // c[18]: -Q[6] of 43
        0.24532144471548137,  // c[19]: P[6] of 43
        0.3083663744032671,  // c[20]: Q[8] of 43
        0.04915127741599876,  // c[21]: P[8] of 43
        0.10490468278634746,  // c[22]: Q[9] of 43
        0.29410997341765915,  // c[23]: P[9] of 43
        0.3100587997761174,  // c[24]: Q[10] of 43
        0.03700283253527918,  // c[25]: P[10] of 43
        0.15718049159887415,  // c[26]: Q[11] of 43
        0.2698146808366376,  // c[27]: P[11] of 43
        0.04712732753509521,  // c[28]: Q[12] of 43
        0.30868217300913287,  // c[29]: P[12] of 43
        0.30825588409410104,  // c[30]: -Q[13] of 43
        0.049839531053216354,  // c[31]: -P[13] of 43
        0.26976291906470395,  // c[32]: Q[15] of 43
        0.15726931179327497,  // c[33]: -P[15] of 43
        0.07016357494006686,  // c[34]: -Q[16] of 43
        0.3042741226030731,  // c[35]: -P[16] of 43
        0.3044528520057486,  // c[36]: -Q[17] of 43
        0.06938393070305333,  // c[37]: P[17] of 43
        0.25047759866823976,  // c[38]: -Q[18] of 43
        0.18645814945888683,  // c[39]: P[18] of 43
        0.10982914663214519,  // c[40]: Q[19] of 43
        0.29230673527015266,  // c[41]: -P[19] of 43
        0.31214576185951465,  // c[42]: -Q[20] of 43
        0.008407870561774193,  // c[43]: P[20] of 43
        0.023809523809523808,  // c[44]: 1/42
        0.026892691663313772,  // c[45]: -Q[7] of 43
        0.31109878185126716,  // c[46]: P[7] of 43
        0.21107840313178253,  // c[47]: Q[14] of 43
        0.2301120958697675,  // c[48]: P[14] of 43
        0.15612948867385715,  // c[49]: -beta of 43
        0.19928292074129883,  // c[50]: -sin 2 pi 2/3 times P[14] of 43
        0.18279925930237648,  // c[51]: -sin 2 pi 2/3 times Q[14] of 43
        0.2694194481695906,  // c[52]: -sin 2 pi 2/3 times P[7] of 43
        0.023289754156571717,  // c[53]: -sin 2 pi 2/3 times -Q[7] of 43
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x1 = io.in(1);
        const V x42 = io.in(42);
        const V t0 = x1 + x42;
        const V t1 = x1 - x42;
        // real block of 2
        const V x9 = io.in(9);
        const V x34 = io.in(34);
        const V t2 = x9 + x34;
        const V t3 = x9 - x34;
        // real block of 2
        const V x38 = io.in(38);
        const V x5 = io.in(5);
        const V t4 = x38 + x5;
        const V t5 = x38 - x5;
        // real block of 2
        const V x41 = io.in(41);
        const V x2 = io.in(2);
        const V t6 = x41 + x2;
        const V t7 = x41 - x2;
        // real block of 2
        const V x25 = io.in(25);
        const V x18 = io.in(18);
        const V t8 = x25 + x18;
        const V t9 = x25 - x18;
        // real block of 2
        const V x10 = io.in(10);
        const V x33 = io.in(33);
        const V t10 = x10 + x33;
        const V t11 = x10 - x33;
        // real block of 2
        const V x4 = io.in(4);
        const V x39 = io.in(39);
        const V t12 = x4 + x39;
        const V t13 = x4 - x39;
        // real block of 2
        const V x36 = io.in(36);
        const V x7 = io.in(7);
        const V t14 = x36 + x7;
        const V t15 = x36 - x7;
        // real block of 2
        const V x23 = io.in(23);
        const V x20 = io.in(20);
        const V t16 = x23 + x20;
        const V t17 = x23 - x20;
        // real block of 2
        const V x35 = io.in(35);
        const V x8 = io.in(8);
        const V t18 = x35 + x8;
        const V t19 = x35 - x8;
        // real block of 2
        const V x14 = io.in(14);
        const V x29 = io.in(29);
        const V t20 = x14 + x29;
        const V t21 = x14 - x29;
        // real block of 2
        const V x40 = io.in(40);
        const V x3 = io.in(3);
        const V t22 = x40 + x3;
        const V t23 = x40 - x3;
        // real block of 2
        const V x16 = io.in(16);
        const V x27 = io.in(27);
        const V t24 = x16 + x27;
        const V t25 = x16 - x27;
        // real block of 2
        const V x15 = io.in(15);
        const V x28 = io.in(28);
        const V t26 = x15 + x28;
        const V t27 = x15 - x28;
        // real block of 2
        const V x6 = io.in(6);
        const V x37 = io.in(37);
        const V t28 = x6 + x37;
        const V t29 = x6 - x37;
        // real block of 2
        const V x11 = io.in(11);
        const V x32 = io.in(32);
        const V t30 = x11 + x32;
        const V t31 = x11 - x32;
        // real block of 2
        const V x13 = io.in(13);
        const V x30 = io.in(30);
        const V t32 = x13 + x30;
        const V t33 = x13 - x30;
        // real block of 2
        const V x31 = io.in(31);
        const V x12 = io.in(12);
        const V t34 = x31 + x12;
        const V t35 = x31 - x12;
        // real block of 2
        const V x21 = io.in(21);
        const V x22 = io.in(22);
        const V t36 = x21 + x22;
        const V t37 = x21 - x22;
        // real block of 2
        const V x17 = io.in(17);
        const V x26 = io.in(26);
        const V t38 = x17 + x26;
        const V t39 = x17 - x26;
        // real block of 2
        const V x24 = io.in(24);
        const V x19 = io.in(19);
        const V t40 = x24 + x19;
        const V t41 = x24 - x19;
        // real block of 7, multiplier 6
        const V t42 = t6 + t36;
        const V t43 = t6 - t36;
        const V t44 = t30 + t12;
        const V t45 = t30 - t12;
        const V t46 = t24 + t18;
        const V t47 = t24 - t18;
        const V t48 = t42 + t44;
        const V t49 = t48 + t46;
        const V t50 = t49 + t0;
        const V t51 = c[0] * t42;
        const V t52 = c[1] * t44;
        const V t53 = t51 - t52;
        const V t54 = c[2] * t46;
        const V t55 = t53 - t54;
        const V t56 = t55 + t0;
        const V t57 = c[3] * t43;
        const V t58 = c[4] * t45;
        const V t59 = c[5] * t47;
        const V t60 = t57 - t58;
        const V t61 = t60 - t59;
        const V t62 = c[1] * t42;
        const V t63 = t0 - t62;
        const V t64 = c[2] * t44;
        const V t65 = t63 - t64;
        const V t66 = c[0] * t46;
        const V t67 = t65 + t66;
        const V t68 = c[4] * t43;
        const V t69 = c[5] * t45;
        const V t70 = c[3] * t47;
        const V t71 = t68 + t69;
        const V t72 = t71 + t70;
        const V t73 = c[2] * t42;
        const V t74 = t0 - t73;
        const V t75 = c[0] * t44;
        const V t76 = t74 + t75;
        const V t77 = c[1] * t46;
        const V t78 = t76 - t77;
        const V t79 = c[5] * t43;
        const V t80 = c[3] * t45;
        const V t81 = c[4] * t47;
        const V t82 = t79 + t80;
        const V t83 = t82 - t81;
        // real block of 7, multiplier 6
        const V t84 = t20 + t8;
        const V t85 = t20 - t8;
        const V t86 = t2 + t26;
        const V t87 = t2 - t26;
        const V t88 = t38 + t32;
        const V t89 = t38 - t32;
        const V t90 = t84 + t86;
        const V t91 = t90 + t88;
        const V t92 = t91 + t14;
        const V t93 = c[0] * t84;
        const V t94 = c[1] * t86;
        const V t95 = t93 - t94;
        const V t96 = c[2] * t88;
        const V t97 = t95 - t96;
        const V t98 = t97 + t14;
        const V t99 = c[3] * t85;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t89;
        const V t102 = t99 - t100;
        const V t103 = t102 - t101;
        const V t104 = c[1] * t84;
        const V t105 = t14 - t104;
        const V t106 = c[2] * t86;
        const V t107 = t105 - t106;
        const V t108 = c[0] * t88;
        const V t109 = t107 + t108;
        const V t110 = c[4] * t85;
        const V t111 = c[5] * t87;
        const V t112 = c[3] * t89;
        const V t113 = t110 + t111;
        const V t114 = t113 + t112;
        const V t115 = c[2] * t84;
        const V t116 = t14 - t115;
        const V t117 = c[0] * t86;
        const V t118 = t116 + t117;
        const V t119 = c[1] * t88;
        const V t120 = t118 - t119;
        const V t121 = c[5] * t85;
        const V t122 = c[3] * t87;
        const V t123 = c[4] * t89;
        const V t124 = t121 + t122;
        const V t125 = t124 - t123;
        // real block of 7, multiplier 6
        const V t126 = t34 + t22;
        const V t127 = t34 - t22;
        const V t128 = t16 + t40;
        const V t129 = t16 - t40;
        const V t130 = t10 + t4;
        const V t131 = t10 - t4;
        const V t132 = t126 + t128;
        const V t133 = t132 + t130;
        const V t134 = t133 + t28;
        const V t135 = c[0] * t126;
        const V t136 = c[1] * t128;
        const V t137 = t135 - t136;
        const V t138 = c[2] * t130;
        const V t139 = t137 - t138;
        const V t140 = t139 + t28;
        const V t141 = c[3] * t127;
        const V t142 = c[4] * t129;
        const V t143 = c[5] * t131;
        const V t144 = t141 - t142;
        const V t145 = t144 - t143;
        const V t146 = c[1] * t126;
        const V t147 = t28 - t146;
        const V t148 = c[2] * t128;
        const V t149 = t147 - t148;
        const V t150 = c[0] * t130;
        const V t151 = t149 + t150;
        const V t152 = c[4] * t127;
        const V t153 = c[5] * t129;
        const V t154 = c[3] * t131;
        const V t155 = t152 + t153;
        const V t156 = t155 + t154;
        const V t157 = c[2] * t126;
        const V t158 = t28 - t157;
        const V t159 = c[0] * t128;
        const V t160 = t158 + t159;
        const V t161 = c[1] * t130;
        const V t162 = t160 - t161;
        const V t163 = c[5] * t127;
        const V t164 = c[3] * t129;
        const V t165 = c[4] * t131;
        const V t166 = t163 + t164;
        const V t167 = t166 - t165;
        // real block of 3, multiplier 2
        const V t168 = t92 + t134;
        const V t169 = t92 - t134;
        const V t170 = t168 + t50;
        const V t171 = c[6] * t168;
        const V t172 = t50 - t171;
        const V t173 = c[7] * t169;
        // complex block of 3, multiplier 2
        const V t174 = t98 + t140;
        const V t175 = t103 + t145;
        const V t176 = t98 - t140;
        const V t177 = t103 - t145;
        const V t178 = t174 + t56;
        const V t179 = t175 + t61;
        const V t180 = c[6] * t174;
        const V t181 = t56 - t180;
        const V t182 = c[6] * t175;
        const V t183 = t61 - t182;
        const V t184 = c[7] * t176;
        const V t185 = c[7] * t177;
        const V t186 = t181 + t185;
        const V t187 = t183 - t184;
        const V t188 = t181 - t185;
        const V t189 = t183 + t184;
        // complex block of 3, multiplier 2
        const V t190 = t109 + t151;
        const V t191 = t114 + t156;
        const V t192 = t109 - t151;
        const V t193 = t114 - t156;
        const V t194 = t190 + t67;
        const V t195 = t191 + t72;
        const V t196 = c[6] * t190;
        const V t197 = t67 - t196;
        const V t198 = c[6] * t191;
        const V t199 = t72 - t198;
        const V t200 = c[7] * t192;
        const V t201 = c[7] * t193;
        const V t202 = t197 + t201;
        const V t203 = t199 - t200;
        const V t204 = t197 - t201;
        const V t205 = t199 + t200;
        // complex block of 3, multiplier 2
        const V t206 = t120 + t162;
        const V t207 = t125 + t167;
        const V t208 = t120 - t162;
        const V t209 = t125 - t167;
        const V t210 = t206 + t78;
        const V t211 = t207 + t83;
        const V t212 = c[6] * t206;
        const V t213 = t78 - t212;
        const V t214 = c[6] * t207;
        const V t215 = t83 - t214;
        const V t216 = c[7] * t208;
        const V t217 = c[7] * t209;
        const V t218 = t213 + t217;
        const V t219 = t215 - t216;
        const V t220 = t213 - t217;
        const V t221 = t215 + t216;
        // real block of 7, multiplier 6
        const V t222 = t7 + t37;
        const V t223 = t7 - t37;
        const V t224 = t31 + t13;
        const V t225 = t31 - t13;
        const V t226 = t25 + t19;
        const V t227 = t25 - t19;
        const V t228 = t222 + t224;
        const V t229 = t228 + t226;
        const V t230 = t229 + t1;
        const V t231 = c[0] * t222;
        const V t232 = c[1] * t224;
        const V t233 = t231 - t232;
        const V t234 = c[2] * t226;
        const V t235 = t233 - t234;
        const V t236 = t235 + t1;
        const V t237 = c[3] * t223;
        const V t238 = c[4] * t225;
        const V t239 = c[5] * t227;
        const V t240 = t237 - t238;
        const V t241 = t240 - t239;
        const V t242 = c[1] * t222;
        const V t243 = t1 - t242;
        const V t244 = c[2] * t224;
        const V t245 = t243 - t244;
        const V t246 = c[0] * t226;
        const V t247 = t245 + t246;
        const V t248 = c[4] * t223;
        const V t249 = c[5] * t225;
        const V t250 = c[3] * t227;
        const V t251 = t248 + t249;
        const V t252 = t251 + t250;
        const V t253 = c[2] * t222;
        const V t254 = t1 - t253;
        const V t255 = c[0] * t224;
        const V t256 = t254 + t255;
        const V t257 = c[1] * t226;
        const V t258 = t256 - t257;
        const V t259 = c[5] * t223;
        const V t260 = c[3] * t225;
        const V t261 = c[4] * t227;
        const V t262 = t259 + t260;
        const V t263 = t262 - t261;
        // real block of 7, multiplier 6
        const V t264 = t21 + t9;
        const V t265 = t21 - t9;
        const V t266 = t3 + t27;
        const V t267 = t3 - t27;
        const V t268 = t39 + t33;
        const V t269 = t39 - t33;
        const V t270 = t264 + t266;
        const V t271 = t270 + t268;
        const V t272 = t271 + t15;
        const V t273 = c[0] * t264;
        const V t274 = c[1] * t266;
        const V t275 = t273 - t274;
        const V t276 = c[2] * t268;
        const V t277 = t275 - t276;
        const V t278 = t277 + t15;
        const V t279 = c[3] * t265;
        const V t280 = c[4] * t267;
        const V t281 = c[5] * t269;
        const V t282 = t279 - t280;
        const V t283 = t282 - t281;
        const V t284 = c[1] * t264;
        const V t285 = t15 - t284;
        const V t286 = c[2] * t266;
        const V t287 = t285 - t286;
        const V t288 = c[0] * t268;
        const V t289 = t287 + t288;
        const V t290 = c[4] * t265;
        const V t291 = c[5] * t267;
        const V t292 = c[3] * t269;
        const V t293 = t290 + t291;
        const V t294 = t293 + t292;
        const V t295 = c[2] * t264;
        const V t296 = t15 - t295;
        const V t297 = c[0] * t266;
        const V t298 = t296 + t297;
        const V t299 = c[1] * t268;
        const V t300 = t298 - t299;
        const V t301 = c[5] * t265;
        const V t302 = c[3] * t267;
        const V t303 = c[4] * t269;
        const V t304 = t301 + t302;
        const V t305 = t304 - t303;
        // real block of 7, multiplier 6
        const V t306 = t35 + t23;
        const V t307 = t35 - t23;
        const V t308 = t17 + t41;
        const V t309 = t17 - t41;
        const V t310 = t11 + t5;
        const V t311 = t11 - t5;
        const V t312 = t306 + t308;
        const V t313 = t312 + t310;
        const V t314 = t313 + t29;
        const V t315 = c[0] * t306;
        const V t316 = c[1] * t308;
        const V t317 = t315 - t316;
        const V t318 = c[2] * t310;
        const V t319 = t317 - t318;
        const V t320 = t319 + t29;
        const V t321 = c[3] * t307;
        const V t322 = c[4] * t309;
        const V t323 = c[5] * t311;
        const V t324 = t321 - t322;
        const V t325 = t324 - t323;
        const V t326 = c[1] * t306;
        const V t327 = t29 - t326;
        const V t328 = c[2] * t308;
        const V t329 = t327 - t328;
        const V t330 = c[0] * t310;
        const V t331 = t329 + t330;
        const V t332 = c[4] * t307;
        const V t333 = c[5] * t309;
        const V t334 = c[3] * t311;
        const V t335 = t332 + t333;
        const V t336 = t335 + t334;
        const V t337 = c[2] * t306;
        const V t338 = t29 - t337;
        const V t339 = c[0] * t308;
        const V t340 = t338 + t339;
        const V t341 = c[1] * t310;
        const V t342 = t340 - t341;
        const V t343 = c[5] * t307;
        const V t344 = c[3] * t309;
        const V t345 = c[4] * t311;
        const V t346 = t343 + t344;
        const V t347 = t346 - t345;
        // real block of 3, multiplier 2
        const V t348 = t272 + t314;
        const V t349 = t272 - t314;
        const V t350 = t348 + t230;
        const V t351 = c[6] * t348;
        const V t352 = t230 - t351;
        const V t353 = c[7] * t349;
        // complex block of 3, multiplier 2
        const V t354 = t278 + t320;
        const V t355 = t283 + t325;
        const V t356 = t278 - t320;
        const V t357 = t283 - t325;
        const V t358 = t354 + t236;
        const V t359 = t355 + t241;
        const V t360 = c[6] * t354;
        const V t361 = t236 - t360;
        const V t362 = c[6] * t355;
        const V t363 = t241 - t362;
        const V t364 = c[7] * t356;
        const V t365 = c[7] * t357;
        const V t366 = t361 + t365;
        const V t367 = t363 - t364;
        const V t368 = t361 - t365;
        const V t369 = t363 + t364;
        // complex block of 3, multiplier 2
        const V t370 = t289 + t331;
        const V t371 = t294 + t336;
        const V t372 = t289 - t331;
        const V t373 = t294 - t336;
        const V t374 = t370 + t247;
        const V t375 = t371 + t252;
        const V t376 = c[6] * t370;
        const V t377 = t247 - t376;
        const V t378 = c[6] * t371;
        const V t379 = t252 - t378;
        const V t380 = c[7] * t372;
        const V t381 = c[7] * t373;
        const V t382 = t377 + t381;
        const V t383 = t379 - t380;
        const V t384 = t377 - t381;
        const V t385 = t379 + t380;
        // complex block of 3, multiplier 2
        const V t386 = t300 + t342;
        const V t387 = t305 + t347;
        const V t388 = t300 - t342;
        const V t389 = t305 - t347;
        const V t390 = t386 + t258;
        const V t391 = t387 + t263;
        const V t392 = c[6] * t386;
        const V t393 = t258 - t392;
        const V t394 = c[6] * t387;
        const V t395 = t263 - t394;
        const V t396 = c[7] * t388;
        const V t397 = c[7] * t389;
        const V t398 = t393 + t397;
        const V t399 = t395 - t396;
        const V t400 = t393 - t397;
        const V t401 = t395 + t396;
        // real block of 43
        const V x0 = io.in(0);
        const V t402 = x0 + t170;
        io.re(0, t402);
        const V t403 = c[44] * t170;
        const V t404 = x0 - t403;
        const V t405 = c[8] * t369;
        const V t406 = c[9] * t368;
        const V t407 = t405 - t406;
        const V t408 = c[8] * t368;
        const V t409 = c[9] * t369;
        const V t410 = t409 + t408;
        const V t411 = c[10] * t203;
        const V t412 = c[11] * t202;
        const V t413 = t412 + t411;
        const V t414 = c[10] * t202;
        const V t415 = c[11] * t203;
        const V t416 = t414 - t415;
        const V t417 = c[12] * t391;
        const V t418 = c[13] * t390;
        const V t419 = t418 + t417;
        const V t420 = c[12] * t390;
        const V t421 = c[13] * t391;
        const V t422 = t421 - t420;
        const V t423 = c[14] * t219;
        const V t424 = c[15] * t218;
        const V t425 = t424 - t423;
        const V t426 = c[14] * t218;
        const V t427 = c[15] * t219;
        const V t428 = t427 + t426;
        const V t429 = c[16] * t385;
        const V t430 = c[17] * t384;
        const V t431 = t430 - t429;
        const V t432 = c[16] * t384;
        const V t433 = c[17] * t385;
        const V t434 = t433 + t432;
        const V t435 = c[18] * t179;
        const V t436 = c[19] * t178;
        const V t437 = t436 + t435;
        const V t438 = c[18] * t178;
        const V t439 = c[19] * t179;
        const V t440 = t439 - t438;
        const V t441 = c[45] * t352;
        const V t442 = c[46] * t353;
        const V t443 = t442 + t441;
        const V t444 = c[20] * t187;
        const V t445 = c[21] * t186;
        const V t446 = t445 + t444;
        const V t447 = c[20] * t186;
        const V t448 = c[21] * t187;
        const V t449 = t447 - t448;
        const V t450 = c[22] * t375;
        const V t451 = c[23] * t374;
        const V t452 = t451 + t450;
        const V t453 = c[22] * t374;
        const V t454 = c[23] * t375;
        const V t455 = t453 - t454;
        const V t456 = c[24] * t221;
        const V t457 = c[25] * t220;
        const V t458 = t457 + t456;
        const V t459 = c[24] * t220;
        const V t460 = c[25] * t221;
        const V t461 = t459 - t460;
        const V t462 = c[26] * t401;
        const V t463 = c[27] * t400;
        const V t464 = t463 - t462;
        const V t465 = c[26] * t400;
        const V t466 = c[27] * t401;
        const V t467 = t466 + t465;
        const V t468 = c[28] * t195;
        const V t469 = c[29] * t194;
        const V t470 = t469 - t468;
        const V t471 = c[28] * t194;
        const V t472 = c[29] * t195;
        const V t473 = t472 + t471;
        const V t474 = c[30] * t367;
        const V t475 = c[31] * t366;
        const V t476 = t474 - t475;
        const V t477 = c[30] * t366;
        const V t478 = c[31] * t367;
        const V t479 = t478 + t477;
        const V t480 = c[47] * t173;
        const V t481 = c[48] * t172;
        const V t482 = t481 - t480;
        const V t483 = c[32] * t359;
        const V t484 = c[33] * t358;
        const V t485 = t483 - t484;
        const V t486 = c[32] * t358;
        const V t487 = c[33] * t359;
        const V t488 = t487 + t486;
        const V t489 = c[34] * t205;
        const V t490 = c[35] * t204;
        const V t491 = t490 + t489;
        const V t492 = c[34] * t204;
        const V t493 = c[35] * t205;
        const V t494 = t493 - t492;
        const V t495 = c[36] * t399;
        const V t496 = c[37] * t398;
        const V t497 = t496 - t495;
        const V t498 = c[36] * t398;
        const V t499 = c[37] * t399;
        const V t500 = t499 + t498;
        const V t501 = c[38] * t211;
        const V t502 = c[39] * t210;
        const V t503 = t502 + t501;
        const V t504 = c[38] * t210;
        const V t505 = c[39] * t211;
        const V t506 = t505 - t504;
        const V t507 = c[40] * t383;
        const V t508 = c[41] * t382;
        const V t509 = t508 + t507;
        const V t510 = c[40] * t382;
        const V t511 = c[41] * t383;
        const V t512 = t510 - t511;
        const V t513 = c[42] * t189;
        const V t514 = c[43] * t188;
        const V t515 = t514 + t513;
        const V t516 = c[42] * t188;
        const V t517 = c[43] * t189;
        const V t518 = t517 - t516;
        const V t519 = c[49] * t350;
        // spectrum block of 3
        const V t520 = t482 + t404;
        const V t521 = c[6] * t482;
        const V t522 = t404 - t521;
        const V t523 = c[50] * t173;
        const V t524 = c[51] * t172;
        const V t525 = t523 + t524;
        const V t526 = t522 - t525;
        const V t527 = t522 + t525;
        // complex block of 3
        const V t528 = t518 - t449;
        const V t529 = t515 + t446;
        const V t530 = t518 + t449;
        const V t531 = t515 - t446;
        const V t532 = t528 + t440;
        const V t533 = t529 + t437;
        const V t534 = c[6] * t528;
        const V t535 = t440 - t534;
        const V t536 = c[6] * t529;
        const V t537 = t437 - t536;
        const V t538 = c[7] * t530;
        const V t539 = c[7] * t531;
        const V t540 = t535 + t539;
        const V t541 = t537 - t538;
        const V t542 = t535 - t539;
        const V t543 = t537 + t538;
        // complex block of 3
        const V t544 = t494 + t416;
        const V t545 = t413 - t491;
        const V t546 = t416 - t494;
        const V t547 = t491 + t413;
        const V t548 = t473 - t544;
        const V t549 = t545 + t470;
        const V t550 = c[6] * t544;
        const V t551 = t550 + t473;
        const V t552 = c[6] * t545;
        const V t553 = t470 - t552;
        const V t554 = c[7] * t546;
        const V t555 = c[7] * t547;
        const V t556 = t551 - t555;
        const V t557 = t553 - t554;
        const V t558 = t551 + t555;
        const V t559 = t553 + t554;
        // complex block of 3
        const V t560 = t428 - t461;
        const V t561 = t458 + t425;
        const V t562 = t461 + t428;
        const V t563 = t458 - t425;
        const V t564 = t560 + t506;
        const V t565 = t561 + t503;
        const V t566 = c[6] * t560;
        const V t567 = t506 - t566;
        const V t568 = c[6] * t561;
        const V t569 = t503 - t568;
        const V t570 = c[7] * t562;
        const V t571 = c[7] * t563;
        const V t572 = t567 + t571;
        const V t573 = t569 + t570;
        const V t574 = t567 - t571;
        const V t575 = t569 - t570;
        // spectrum block of 7, multiplier 3
        const V t576 = t533 + t549;
        const V t577 = t576 + t565;
        const V t578 = t577 + t520;
        io.re(1, t578);
        const V t579 = c[0] * t533;
        const V t580 = c[1] * t549;
        const V t581 = t579 - t580;
        const V t582 = c[2] * t565;
        const V t583 = t581 - t582;
        const V t584 = t583 + t520;
        const V t585 = c[3] * t532;
        const V t586 = c[4] * t548;
        const V t587 = t585 + t586;
        const V t588 = c[5] * t564;
        const V t589 = t587 + t588;
        const V t590 = t584 - t589;
        io.re(2, t590);
        const V t591 = t584 + t589;
        io.re(21, t591);
        const V t592 = c[1] * t533;
        const V t593 = t520 - t592;
        const V t594 = c[2] * t549;
        const V t595 = t593 - t594;
        const V t596 = c[0] * t565;
        const V t597 = t595 + t596;
        const V t598 = c[4] * t532;
        const V t599 = c[5] * t548;
        const V t600 = t598 - t599;
        const V t601 = c[3] * t564;
        const V t602 = t600 - t601;
        const V t603 = t597 - t602;
        io.re(4, t603);
        const V t604 = t597 + t602;
        io.re(11, t604);
        const V t605 = c[2] * t533;
        const V t606 = t520 - t605;
        const V t607 = c[0] * t549;
        const V t608 = t606 + t607;
        const V t609 = c[1] * t565;
        const V t610 = t608 - t609;
        const V t611 = c[5] * t532;
        const V t612 = c[3] * t548;
        const V t613 = t611 - t612;
        const V t614 = c[4] * t564;
        const V t615 = t613 + t614;
        const V t616 = t610 - t615;
        io.re(8, t616);
        const V t617 = t610 + t615;
        io.re(16, t617);
        // spectrum block of 7, multiplier 3
        const V t618 = t541 + t557;
        const V t619 = t618 + t573;
        const V t620 = t619 + t526;
        io.re(7, t620);
        const V t621 = c[0] * t541;
        const V t622 = c[1] * t557;
        const V t623 = t621 - t622;
        const V t624 = c[2] * t573;
        const V t625 = t623 - t624;
        const V t626 = t625 + t526;
        const V t627 = c[3] * t540;
        const V t628 = c[4] * t556;
        const V t629 = t627 + t628;
        const V t630 = c[5] * t572;
        const V t631 = t629 + t630;
        const V t632 = t626 - t631;
        io.re(14, t632);
        const V t633 = t626 + t631;
        io.re(18, t633);
        const V t634 = c[1] * t541;
        const V t635 = t526 - t634;
        const V t636 = c[2] * t557;
        const V t637 = t635 - t636;
        const V t638 = c[0] * t573;
        const V t639 = t637 + t638;
        const V t640 = c[4] * t540;
        const V t641 = c[5] * t556;
        const V t642 = t640 - t641;
        const V t643 = c[3] * t572;
        const V t644 = t642 - t643;
        const V t645 = t639 - t644;
        io.re(15, t645);
        const V t646 = t639 + t644;
        io.re(9, t646);
        const V t647 = c[2] * t541;
        const V t648 = t526 - t647;
        const V t649 = c[0] * t557;
        const V t650 = t648 + t649;
        const V t651 = c[1] * t573;
        const V t652 = t650 - t651;
        const V t653 = c[5] * t540;
        const V t654 = c[3] * t556;
        const V t655 = t653 - t654;
        const V t656 = c[4] * t572;
        const V t657 = t655 + t656;
        const V t658 = t652 - t657;
        io.re(13, t658);
        const V t659 = t652 + t657;
        io.re(17, t659);
        // spectrum block of 7, multiplier 3
        const V t660 = t543 + t559;
        const V t661 = t660 + t575;
        const V t662 = t661 + t527;
        io.re(6, t662);
        const V t663 = c[0] * t543;
        const V t664 = c[1] * t559;
        const V t665 = t663 - t664;
        const V t666 = c[2] * t575;
        const V t667 = t665 - t666;
        const V t668 = t667 + t527;
        const V t669 = c[3] * t542;
        const V t670 = c[4] * t558;
        const V t671 = t669 + t670;
        const V t672 = c[5] * t574;
        const V t673 = t671 + t672;
        const V t674 = t668 - t673;
        io.re(12, t674);
        const V t675 = t668 + t673;
        io.re(3, t675);
        const V t676 = c[1] * t543;
        const V t677 = t527 - t676;
        const V t678 = c[2] * t559;
        const V t679 = t677 - t678;
        const V t680 = c[0] * t575;
        const V t681 = t679 + t680;
        const V t682 = c[4] * t542;
        const V t683 = c[5] * t558;
        const V t684 = t682 - t683;
        const V t685 = c[3] * t574;
        const V t686 = t684 - t685;
        const V t687 = t681 - t686;
        io.re(19, t687);
        const V t688 = t681 + t686;
        io.re(20, t688);
        const V t689 = c[2] * t543;
        const V t690 = t527 - t689;
        const V t691 = c[0] * t559;
        const V t692 = t690 + t691;
        const V t693 = c[1] * t575;
        const V t694 = t692 - t693;
        const V t695 = c[5] * t542;
        const V t696 = c[3] * t558;
        const V t697 = t695 - t696;
        const V t698 = c[4] * t574;
        const V t699 = t697 + t698;
        const V t700 = t694 - t699;
        io.re(5, t700);
        const V t701 = t694 + t699;
        io.re(10, t701);
        // spectrum block of 3, multiplier 2
        const V t702 = t443 + t519;
        const V t703 = c[6] * t443;
        const V t704 = t703 - t519;
        const V t705 = c[52] * t352;
        const V t706 = c[53] * t353;
        const V t707 = t705 - t706;
        const V t708 = t704 - t707;
        const V t709 = t704 + t707;
        // complex block of 3, multiplier 2
        const V t710 = t407 - t476;
        const V t711 = t410 - t479;
        const V t712 = t407 + t476;
        const V t713 = t410 + t479;
        const V t714 = t710 + t485;
        const V t715 = t711 + t488;
        const V t716 = c[6] * t710;
        const V t717 = t485 - t716;
        const V t718 = c[6] * t711;
        const V t719 = t488 - t718;
        const V t720 = c[7] * t712;
        const V t721 = c[7] * t713;
        const V t722 = t717 + t721;
        const V t723 = t719 - t720;
        const V t724 = t717 - t721;
        const V t725 = t719 + t720;
        // complex block of 3, multiplier 2
        const V t726 = t509 - t431;
        const V t727 = t434 + t512;
        const V t728 = t431 + t509;
        const V t729 = t434 - t512;
        const V t730 = t726 + t452;
        const V t731 = t727 + t455;
        const V t732 = c[6] * t726;
        const V t733 = t452 - t732;
        const V t734 = c[6] * t727;
        const V t735 = t455 - t734;
        const V t736 = c[7] * t728;
        const V t737 = c[7] * t729;
        const V t738 = t733 + t737;
        const V t739 = t735 + t736;
        const V t740 = t733 - t737;
        const V t741 = t735 - t736;
        // complex block of 3, multiplier 2
        const V t742 = t497 - t464;
        const V t743 = t467 - t500;
        const V t744 = t464 + t497;
        const V t745 = t467 + t500;
        const V t746 = t742 - t419;
        const V t747 = t743 + t422;
        const V t748 = c[6] * t742;
        const V t749 = t419 + t748;
        const V t750 = c[6] * t743;
        const V t751 = t422 - t750;
        const V t752 = c[7] * t744;
        const V t753 = c[7] * t745;
        const V t754 = t753 - t749;
        const V t755 = t751 + t752;
        const V t756 = t749 + t753;
        const V t757 = t751 - t752;
        // spectrum block of 7, multiplier 6
        const V t758 = t715 + t731;
        const V t759 = t758 + t747;
        const V t760 = t759 - t702;
        io.im(1, t760);
        const V t761 = c[0] * t715;
        const V t762 = c[1] * t731;
        const V t763 = t761 - t762;
        const V t764 = c[2] * t747;
        const V t765 = t763 - t764;
        const V t766 = t765 - t702;
        const V t767 = c[3] * t714;
        const V t768 = c[4] * t730;
        const V t769 = t767 + t768;
        const V t770 = c[5] * t746;
        const V t771 = t769 + t770;
        const V t772 = t766 - t771;
        io.minusIm(2, t772);
        const V t773 = t766 + t771;
        io.im(21, t773);
        const V t774 = c[1] * t715;
        const V t775 = t702 + t774;
        const V t776 = c[2] * t731;
        const V t777 = t775 + t776;
        const V t778 = c[0] * t747;
        const V t779 = t778 - t777;
        const V t780 = c[4] * t714;
        const V t781 = c[5] * t730;
        const V t782 = t780 - t781;
        const V t783 = c[3] * t746;
        const V t784 = t782 - t783;
        const V t785 = t779 - t784;
        io.im(4, t785);
        const V t786 = t779 + t784;
        io.im(11, t786);
        const V t787 = c[2] * t715;
        const V t788 = t702 + t787;
        const V t789 = c[0] * t731;
        const V t790 = t789 - t788;
        const V t791 = c[1] * t747;
        const V t792 = t790 - t791;
        const V t793 = c[5] * t714;
        const V t794 = c[3] * t730;
        const V t795 = t793 - t794;
        const V t796 = c[4] * t746;
        const V t797 = t795 + t796;
        const V t798 = t792 - t797;
        io.minusIm(8, t798);
        const V t799 = t792 + t797;
        io.im(16, t799);
        // spectrum block of 7, multiplier 6
        const V t800 = t725 + t741;
        const V t801 = t800 + t757;
        const V t802 = t801 + t709;
        io.im(6, t802);
        const V t803 = c[0] * t725;
        const V t804 = c[1] * t741;
        const V t805 = t803 - t804;
        const V t806 = c[2] * t757;
        const V t807 = t805 - t806;
        const V t808 = t807 + t709;
        const V t809 = c[3] * t724;
        const V t810 = c[4] * t740;
        const V t811 = t809 + t810;
        const V t812 = c[5] * t756;
        const V t813 = t811 - t812;
        const V t814 = t808 - t813;
        io.minusIm(12, t814);
        const V t815 = t808 + t813;
        io.minusIm(3, t815);
        const V t816 = c[1] * t725;
        const V t817 = t709 - t816;
        const V t818 = c[2] * t741;
        const V t819 = t817 - t818;
        const V t820 = c[0] * t757;
        const V t821 = t819 + t820;
        const V t822 = c[4] * t724;
        const V t823 = c[5] * t740;
        const V t824 = t822 - t823;
        const V t825 = c[3] * t756;
        const V t826 = t824 + t825;
        const V t827 = t821 - t826;
        io.minusIm(19, t827);
        const V t828 = t821 + t826;
        io.minusIm(20, t828);
        const V t829 = c[2] * t725;
        const V t830 = t709 - t829;
        const V t831 = c[0] * t741;
        const V t832 = t830 + t831;
        const V t833 = c[1] * t757;
        const V t834 = t832 - t833;
        const V t835 = c[5] * t724;
        const V t836 = c[3] * t740;
        const V t837 = t835 - t836;
        const V t838 = c[4] * t756;
        const V t839 = t837 - t838;
        const V t840 = t834 - t839;
        io.minusIm(5, t840);
        const V t841 = t834 + t839;
        io.im(10, t841);
        // spectrum block of 7, multiplier 6
        const V t842 = t723 + t739;
        const V t843 = t842 + t755;
        const V t844 = t843 + t708;
        io.minusIm(7, t844);
        const V t845 = c[0] * t723;
        const V t846 = c[1] * t739;
        const V t847 = t845 - t846;
        const V t848 = c[2] * t755;
        const V t849 = t847 - t848;
        const V t850 = t849 + t708;
        const V t851 = c[3] * t722;
        const V t852 = c[4] * t738;
        const V t853 = t851 + t852;
        const V t854 = c[5] * t754;
        const V t855 = t853 + t854;
        const V t856 = t850 - t855;
        io.im(14, t856);
        const V t857 = t850 + t855;
        io.minusIm(18, t857);
        const V t858 = c[1] * t723;
        const V t859 = t708 - t858;
        const V t860 = c[2] * t739;
        const V t861 = t859 - t860;
        const V t862 = c[0] * t755;
        const V t863 = t861 + t862;
        const V t864 = c[4] * t722;
        const V t865 = c[5] * t738;
        const V t866 = t864 - t865;
        const V t867 = c[3] * t754;
        const V t868 = t866 - t867;
        const V t869 = t863 - t868;
        io.im(15, t869);
        const V t870 = t863 + t868;
        io.im(9, t870);
        const V t871 = c[2] * t723;
        const V t872 = t708 - t871;
        const V t873 = c[0] * t739;
        const V t874 = t872 + t873;
        const V t875 = c[1] * t755;
        const V t876 = t874 - t875;
        const V t877 = c[5] * t722;
        const V t878 = c[3] * t738;
        const V t879 = t877 - t878;
        const V t880 = c[4] * t754;
        const V t881 = t879 + t880;
        const V t882 = t876 - t881;
        io.im(13, t882);
        const V t883 = t876 + t881;
        io.im(17, t883);
    }
};

}  // namespace zulg
