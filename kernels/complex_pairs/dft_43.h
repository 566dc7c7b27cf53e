// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 43.
// Complex DFT of 43 points, Rader block; one complex number to a register.
// 299 sums, 275 differences, 354 products of registers, which do the 1942 steps of the graph, those with
// `scale` included; 21 shuffles, 14 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<43> {
    static constexpr int steps = 1942;  // with `scale`
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
        0.08222826754004824,  // c[8]: -Q[1] of 43
        0.3012377482182514,  // c[9]: -P[1] of 43
        0.02153059463206762,  // c[10]: P[2] of 43
        0.3115158140914036,  // c[11]: Q[2] of 43
        0.20124858610393936,  // c[12]: -P[3] of 43
        0.23875651933592446,  // c[13]: Q[3] of 43
        0.23076057628931884,  // c[14]: P[4] of 43
        0.2103692595529628,  // c[15]: Q[4] of 43
        0.16498076041582113,  // c[16]: -Q[5] of 43
        0.26511698856704335,  // c[17]: P[5] of 43
        0.24532144471548137,  // c[18]: P[6] of 43
        0.19319176405051375,  // c[19]: -Q[6] of 43
        0.026892691663313772,  // c[20]: Q[7] of 43
        0.31109878185126716,  // c[21]: P[7] of 43
        0.04915127741599876,  // c[22]: P[8] of 43
        0.3083663744032671,  // c[23]: Q[8] of 43
        0.10490468278634746,  // c[24]: -Q[9] of 43
        0.29410997341765915,  // c[25]: P[9] of 43
        0.03700283253527918,  // c[26]: P[10] of 43
        0.3100587997761174,  // c[27]: Q[10] of 43
        0.15718049159887415,  // c[28]: -Q[11] of 43
        0.2698146808366376,  // c[29]: P[11] of 43
        0.30868217300913287,  // c[30]: P[12] of 43
        0.04712732753509521,  // c[31]: Q[12] of 43
        0.30825588409410104,  // c[32]: Q[13] of 43
        0.049839531053216354,  // c[33]: -P[13] of 43
        0.2301120958697675,  // c[34]: P[14] of 43
        0.21107840313178253,  // c[35]: Q[14] of 43
        0.26976291906470395,  // c[36]: -Q[15] of 43
        0.15726931179327497,  // c[37]: -P[15] of 43
        0.3042741226030731,  // c[38]: -P[16] of 43
        0.07016357494006686,  // c[39]: -Q[16] of 43
        0.3044528520057486,  // c[40]: Q[17] of 43
        0.06938393070305333,  // c[41]: P[17] of 43
        0.18645814945888683,  // c[42]: P[18] of 43
        0.25047759866823976,  // c[43]: -Q[18] of 43
        0.10982914663214519,  // c[44]: -Q[19] of 43
        0.29230673527015266,  // c[45]: -P[19] of 43
        0.008407870561774193,  // c[46]: P[20] of 43
        0.31214576185951465,  // c[47]: -Q[20] of 43
        0.023809523809523808,  // c[48]: 1/42
        0.15612948867385715,  // c[49]: beta of 43
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x41 = io.pair(41);
        const P x21 = io.pair(21);
        // real block of 7, multiplier 6
        const P t0 = x41 + x21;
        const P t1 = x41 - x21;
        const P x11 = io.pair(11);
        const P x4 = io.pair(4);
        const P t2 = x11 + x4;
        const P t3 = x11 - x4;
        const P x16 = io.pair(16);
        const P x35 = io.pair(35);
        const P t4 = x16 + x35;
        const P t5 = x16 - x35;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x1 = io.pair(1);
        const P t8 = t7 + x1;
        const P t9 = c[0] * t0;
        const P t10 = c[1] * t2;
        const P t11 = t9 - t10;
        const P t12 = c[2] * t4;
        const P t13 = t11 - t12;
        const P t14 = t13 + x1;
        const P t15 = c[3] * t1;
        const P t16 = c[4] * t3;
        const P t17 = t15 - t16;
        const P t18 = c[5] * t5;
        const P t19 = t17 - t18;
        const P t20 = c[1] * t0;
        const P t21 = x1 - t20;
        const P t22 = c[2] * t2;
        const P t23 = t21 - t22;
        const P t24 = c[0] * t4;
        const P t25 = t23 + t24;
        const P t26 = c[4] * t1;
        const P t27 = c[5] * t3;
        const P t28 = t26 + t27;
        const P t29 = c[3] * t5;
        const P t30 = t28 + t29;
        const P t31 = c[2] * t0;
        const P t32 = x1 - t31;
        const P t33 = c[0] * t2;
        const P t34 = t32 + t33;
        const P t35 = c[1] * t4;
        const P t36 = t34 - t35;
        const P t37 = c[5] * t1;
        const P t38 = c[3] * t3;
        const P t39 = t37 + t38;
        const P t40 = c[4] * t5;
        const P t41 = t39 - t40;
        const P x12 = io.pair(12);
        const P x3 = io.pair(3);
        // real block of 7, multiplier 6
        const P t42 = x12 + x3;
        const P t43 = x12 - x3;
        const P x20 = io.pair(20);
        const P x19 = io.pair(19);
        const P t44 = x20 + x19;
        const P t45 = x20 - x19;
        const P x33 = io.pair(33);
        const P x5 = io.pair(5);
        const P t46 = x33 + x5;
        const P t47 = x33 - x5;
        const P t48 = t42 + t44;
        const P t49 = t48 + t46;
        const P x37 = io.pair(37);
        const P t50 = t49 + x37;
        const P t51 = c[0] * t42;
        const P t52 = c[1] * t44;
        const P t53 = t51 - t52;
        const P t54 = c[2] * t46;
        const P t55 = t53 - t54;
        const P t56 = t55 + x37;
        const P t57 = c[3] * t43;
        const P t58 = c[4] * t45;
        const P t59 = t57 - t58;
        const P t60 = c[5] * t47;
        const P t61 = t59 - t60;
        const P t62 = c[1] * t42;
        const P t63 = x37 - t62;
        const P t64 = c[2] * t44;
        const P t65 = t63 - t64;
        const P t66 = c[0] * t46;
        const P t67 = t65 + t66;
        const P t68 = c[4] * t43;
        const P t69 = c[5] * t45;
        const P t70 = t68 + t69;
        const P t71 = c[3] * t47;
        const P t72 = t70 + t71;
        const P t73 = c[2] * t42;
        const P t74 = x37 - t73;
        const P t75 = c[0] * t44;
        const P t76 = t74 + t75;
        const P t77 = c[1] * t46;
        const P t78 = t76 - t77;
        const P t79 = c[5] * t43;
        const P t80 = c[3] * t45;
        const P t81 = t79 + t80;
        const P t82 = c[4] * t47;
        const P t83 = t81 - t82;
        const P x14 = io.pair(14);
        const P x25 = io.pair(25);
        // real block of 7, multiplier 6
        const P t84 = x14 + x25;
        const P t85 = x14 - x25;
        const P x9 = io.pair(9);
        const P x15 = io.pair(15);
        const P t86 = x9 + x15;
        const P t87 = x9 - x15;
        const P x17 = io.pair(17);
        const P x13 = io.pair(13);
        const P t88 = x17 + x13;
        const P t89 = x17 - x13;
        const P t90 = t84 + t86;
        const P t91 = t90 + t88;
        const P x36 = io.pair(36);
        const P t92 = t91 + x36;
        const P t93 = c[0] * t84;
        const P t94 = c[1] * t86;
        const P t95 = t93 - t94;
        const P t96 = c[2] * t88;
        const P t97 = t95 - t96;
        const P t98 = t97 + x36;
        const P t99 = c[3] * t85;
        const P t100 = c[4] * t87;
        const P t101 = t99 - t100;
        const P t102 = c[5] * t89;
        const P t103 = t101 - t102;
        const P t104 = c[1] * t84;
        const P t105 = x36 - t104;
        const P t106 = c[2] * t86;
        const P t107 = t105 - t106;
        const P t108 = c[0] * t88;
        const P t109 = t107 + t108;
        const P t110 = c[4] * t85;
        const P t111 = c[5] * t87;
        const P t112 = t110 + t111;
        const P t113 = c[3] * t89;
        const P t114 = t112 + t113;
        const P t115 = c[2] * t84;
        const P t116 = x36 - t115;
        const P t117 = c[0] * t86;
        const P t118 = t116 + t117;
        const P t119 = c[1] * t88;
        const P t120 = t118 - t119;
        const P t121 = c[5] * t85;
        const P t122 = c[3] * t87;
        const P t123 = t121 + t122;
        const P t124 = c[4] * t89;
        const P t125 = t123 - t124;
        const P x2 = io.pair(2);
        const P x22 = io.pair(22);
        // real block of 7, multiplier 6
        const P t126 = x2 + x22;
        const P t127 = x2 - x22;
        const P x32 = io.pair(32);
        const P x39 = io.pair(39);
        const P t128 = x32 + x39;
        const P t129 = x32 - x39;
        const P x27 = io.pair(27);
        const P x8 = io.pair(8);
        const P t130 = x27 + x8;
        const P t131 = x27 - x8;
        const P t132 = t126 + t128;
        const P t133 = t132 + t130;
        const P x42 = io.pair(42);
        const P t134 = t133 + x42;
        const P t135 = c[0] * t126;
        const P t136 = c[1] * t128;
        const P t137 = t135 - t136;
        const P t138 = c[2] * t130;
        const P t139 = t137 - t138;
        const P t140 = t139 + x42;
        const P t141 = c[3] * t127;
        const P t142 = c[4] * t129;
        const P t143 = t141 - t142;
        const P t144 = c[5] * t131;
        const P t145 = t143 - t144;
        const P t146 = c[1] * t126;
        const P t147 = x42 - t146;
        const P t148 = c[2] * t128;
        const P t149 = t147 - t148;
        const P t150 = c[0] * t130;
        const P t151 = t149 + t150;
        const P t152 = c[4] * t127;
        const P t153 = c[5] * t129;
        const P t154 = t152 + t153;
        const P t155 = c[3] * t131;
        const P t156 = t154 + t155;
        const P t157 = c[2] * t126;
        const P t158 = x42 - t157;
        const P t159 = c[0] * t128;
        const P t160 = t158 + t159;
        const P t161 = c[1] * t130;
        const P t162 = t160 - t161;
        const P t163 = c[5] * t127;
        const P t164 = c[3] * t129;
        const P t165 = t163 + t164;
        const P t166 = c[4] * t131;
        const P t167 = t165 - t166;
        const P x31 = io.pair(31);
        const P x40 = io.pair(40);
        // real block of 7, multiplier 6
        const P t168 = x31 + x40;
        const P t169 = x31 - x40;
        const P x23 = io.pair(23);
        const P x24 = io.pair(24);
        const P t170 = x23 + x24;
        const P t171 = x23 - x24;
        const P x10 = io.pair(10);
        const P x38 = io.pair(38);
        const P t172 = x10 + x38;
        const P t173 = x10 - x38;
        const P t174 = t168 + t170;
        const P t175 = t174 + t172;
        const P x6 = io.pair(6);
        const P t176 = t175 + x6;
        const P t177 = c[0] * t168;
        const P t178 = c[1] * t170;
        const P t179 = t177 - t178;
        const P t180 = c[2] * t172;
        const P t181 = t179 - t180;
        const P t182 = t181 + x6;
        const P t183 = c[3] * t169;
        const P t184 = c[4] * t171;
        const P t185 = t183 - t184;
        const P t186 = c[5] * t173;
        const P t187 = t185 - t186;
        const P t188 = c[1] * t168;
        const P t189 = x6 - t188;
        const P t190 = c[2] * t170;
        const P t191 = t189 - t190;
        const P t192 = c[0] * t172;
        const P t193 = t191 + t192;
        const P t194 = c[4] * t169;
        const P t195 = c[5] * t171;
        const P t196 = t194 + t195;
        const P t197 = c[3] * t173;
        const P t198 = t196 + t197;
        const P t199 = c[2] * t168;
        const P t200 = x6 - t199;
        const P t201 = c[0] * t170;
        const P t202 = t200 + t201;
        const P t203 = c[1] * t172;
        const P t204 = t202 - t203;
        const P t205 = c[5] * t169;
        const P t206 = c[3] * t171;
        const P t207 = t205 + t206;
        const P t208 = c[4] * t173;
        const P t209 = t207 - t208;
        const P x29 = io.pair(29);
        const P x18 = io.pair(18);
        // real block of 7, multiplier 6
        const P t210 = x29 + x18;
        const P t211 = x29 - x18;
        const P x34 = io.pair(34);
        const P x28 = io.pair(28);
        const P t212 = x34 + x28;
        const P t213 = x34 - x28;
        const P x26 = io.pair(26);
        const P x30 = io.pair(30);
        const P t214 = x26 + x30;
        const P t215 = x26 - x30;
        const P t216 = t210 + t212;
        const P t217 = t216 + t214;
        const P x7 = io.pair(7);
        const P t218 = t217 + x7;
        const P t219 = c[0] * t210;
        const P t220 = c[1] * t212;
        const P t221 = t219 - t220;
        const P t222 = c[2] * t214;
        const P t223 = t221 - t222;
        const P t224 = t223 + x7;
        const P t225 = c[3] * t211;
        const P t226 = c[4] * t213;
        const P t227 = t225 - t226;
        const P t228 = c[5] * t215;
        const P t229 = t227 - t228;
        const P t230 = c[1] * t210;
        const P t231 = x7 - t230;
        const P t232 = c[2] * t212;
        const P t233 = t231 - t232;
        const P t234 = c[0] * t214;
        const P t235 = t233 + t234;
        const P t236 = c[4] * t211;
        const P t237 = c[5] * t213;
        const P t238 = t236 + t237;
        const P t239 = c[3] * t215;
        const P t240 = t238 + t239;
        const P t241 = c[2] * t210;
        const P t242 = x7 - t241;
        const P t243 = c[0] * t212;
        const P t244 = t242 + t243;
        const P t245 = c[1] * t214;
        const P t246 = t244 - t245;
        const P t247 = c[5] * t211;
        const P t248 = c[3] * t213;
        const P t249 = t247 + t248;
        const P t250 = c[4] * t215;
        const P t251 = t249 - t250;
        // real block of 3, multiplier 2
        const P t252 = t92 + t176;
        const P t253 = t92 - t176;
        const P t254 = t252 + t8;
        const P t255 = c[6] * t252;
        const P t256 = t8 - t255;
        // real block of 3, multiplier 2
        const P t257 = t218 + t50;
        const P t258 = t218 - t50;
        const P t259 = t257 + t134;
        const P t260 = c[6] * t257;
        const P t261 = t134 - t260;
        // real block of 2
        const P t262 = t254 + t259;
        const P t263 = t254 - t259;
        // complex block of 2
        const P t264 = t256 + t261;
        // real block of 3, multiplier 2
        const P t265 = c[7] * t253;
        // real block of 3, multiplier 2
        const P t266 = c[7] * t258;
        // complex block of 2
        const P t267 = t265 + t266;
        const P t268 = t256 - t261;
        const P t269 = t265 - t266;
        // complex block of 3, multiplier 2
        const P t270 = t98 + t182;
        const P t271 = t103 + t187;
        const P t272 = t98 - t182;
        const P t273 = t103 - t187;
        const P t274 = t270 + t14;
        const P t275 = t271 + t19;
        const P t276 = c[6] * t270;
        const P t277 = t14 - t276;
        const P t278 = c[6] * t271;
        const P t279 = t19 - t278;
        const P t280 = c[7] * t273;
        const P t281 = t277 + t280;
        const P t282 = c[7] * t272;
        const P t283 = t279 - t282;
        const P t284 = t277 - t280;
        const P t285 = t279 + t282;
        // complex block of 3, multiplier 2
        const P t286 = t224 + t56;
        const P t287 = t229 + t61;
        const P t288 = t224 - t56;
        const P t289 = t229 - t61;
        const P t290 = t286 + t140;
        const P t291 = t287 + t145;
        const P t292 = c[6] * t286;
        const P t293 = t140 - t292;
        const P t294 = c[6] * t287;
        const P t295 = t145 - t294;
        const P t296 = c[7] * t289;
        const P t297 = t293 + t296;
        const P t298 = c[7] * t288;
        const P t299 = t295 - t298;
        const P t300 = t293 - t296;
        const P t301 = t295 + t298;
        // complex block of 2
        const P t302 = t274 + t290;
        const P t303 = t275 + t291;
        const P t304 = t274 - t290;
        const P t305 = t275 - t291;
        // complex block of 2
        const P t306 = t284 + t300;
        const P t307 = t285 + t301;
        const P t308 = t284 - t300;
        const P t309 = t285 - t301;
        // complex block of 2
        const P t310 = t281 + t297;
        const P t311 = t283 + t299;
        const P t312 = t281 - t297;
        const P t313 = t283 - t299;
        // complex block of 3, multiplier 2
        const P t314 = t109 + t193;
        const P t315 = t114 + t198;
        const P t316 = t109 - t193;
        const P t317 = t114 - t198;
        const P t318 = t314 + t25;
        const P t319 = t315 + t30;
        const P t320 = c[6] * t314;
        const P t321 = t25 - t320;
        const P t322 = c[6] * t315;
        const P t323 = t30 - t322;
        const P t324 = c[7] * t317;
        const P t325 = t321 + t324;
        const P t326 = c[7] * t316;
        const P t327 = t323 - t326;
        const P t328 = t321 - t324;
        const P t329 = t323 + t326;
        // complex block of 3, multiplier 2
        const P t330 = t235 + t67;
        const P t331 = t240 + t72;
        const P t332 = t235 - t67;
        const P t333 = t240 - t72;
        const P t334 = t330 + t151;
        const P t335 = t331 + t156;
        const P t336 = c[6] * t330;
        const P t337 = t151 - t336;
        const P t338 = c[6] * t331;
        const P t339 = t156 - t338;
        const P t340 = c[7] * t333;
        const P t341 = t337 + t340;
        const P t342 = c[7] * t332;
        const P t343 = t339 - t342;
        const P t344 = t337 - t340;
        const P t345 = t339 + t342;
        // complex block of 2
        const P t346 = t318 + t334;
        const P t347 = t319 + t335;
        const P t348 = t318 - t334;
        const P t349 = t319 - t335;
        // complex block of 2
        const P t350 = t328 + t344;
        const P t351 = t329 + t345;
        const P t352 = t328 - t344;
        const P t353 = t329 - t345;
        // complex block of 2
        const P t354 = t325 + t341;
        const P t355 = t327 + t343;
        const P t356 = t325 - t341;
        const P t357 = t327 - t343;
        // complex block of 3, multiplier 2
        const P t358 = t120 + t204;
        const P t359 = t125 + t209;
        const P t360 = t120 - t204;
        const P t361 = t125 - t209;
        const P t362 = t358 + t36;
        const P t363 = t359 + t41;
        const P t364 = c[6] * t358;
        const P t365 = t36 - t364;
        const P t366 = c[6] * t359;
        const P t367 = t41 - t366;
        const P t368 = c[7] * t361;
        const P t369 = t365 + t368;
        const P t370 = c[7] * t360;
        const P t371 = t367 - t370;
        const P t372 = t365 - t368;
        const P t373 = t367 + t370;
        // complex block of 3, multiplier 2
        const P t374 = t246 + t78;
        const P t375 = t251 + t83;
        const P t376 = t246 - t78;
        const P t377 = t251 - t83;
        const P t378 = t374 + t162;
        const P t379 = t375 + t167;
        const P t380 = c[6] * t374;
        const P t381 = t162 - t380;
        const P t382 = c[6] * t375;
        const P t383 = t167 - t382;
        const P t384 = c[7] * t377;
        const P t385 = t381 + t384;
        const P t386 = c[7] * t376;
        const P t387 = t383 - t386;
        const P t388 = t381 - t384;
        const P t389 = t383 + t386;
        // complex block of 2
        const P t390 = t362 + t378;
        const P t391 = t363 + t379;
        const P t392 = t362 - t378;
        const P t393 = t363 - t379;
        // complex block of 2
        const P t394 = t372 + t388;
        const P t395 = t373 + t389;
        const P t396 = t372 - t388;
        const P t397 = t373 - t389;
        // complex block of 2
        const P t398 = t369 + t385;
        const P t399 = t371 + t387;
        const P t400 = t369 - t385;
        const P t401 = t371 - t387;
        const P x0 = io.pair(0);
        // complex block of 43
        const P t402 = x0 + t262;
        io.pair(0, t402);
        const P t403 = c[48] * t262;
        const P t404 = x0 - t403;
        const P t405 = shuffled<1, 0>(t308);
        const P t406 = c[8] * t405;
        const P t407 = shuffled<1, 0>(t309);
        const P t408 = c[9] * t407;
        const P t409 = t406 + t408;
        const P t410 = P(-c[9], c[9]) * t405;
        const P t411 = P(c[8], -c[8]) * t407;
        const P t412 = t410 + t411;
        const P t413 = c[10] * t354;
        const P t414 = c[11] * t355;
        const P t415 = t413 + t414;
        const P t416 = c[11] * t354;
        const P t417 = c[10] * t355;
        const P t418 = t416 - t417;
        const P t419 = shuffled<1, 0>(t393);
        const P t420 = P(-c[12], c[12]) * t419;
        const P t421 = shuffled<1, 0>(t392);
        const P t422 = P(c[13], -c[13]) * t421;
        const P t423 = t420 + t422;
        const P t424 = c[13] * t419;
        const P t425 = c[12] * t421;
        const P t426 = t424 + t425;
        const P t427 = c[14] * t398;
        const P t428 = c[15] * t399;
        const P t429 = t427 - t428;
        const P t430 = c[14] * t399;
        const P t431 = c[15] * t398;
        const P t432 = t430 + t431;
        const P t433 = shuffled<1, 0>(t352);
        const P t434 = c[16] * t433;
        const P t435 = shuffled<1, 0>(t353);
        const P t436 = c[17] * t435;
        const P t437 = t434 + t436;
        const P t438 = P(-c[16], c[16]) * t435;
        const P t439 = P(c[17], -c[17]) * t433;
        const P t440 = t438 + t439;
        const P t441 = c[18] * t302;
        const P t442 = c[19] * t303;
        const P t443 = t441 + t442;
        const P t444 = c[18] * t303;
        const P t445 = c[19] * t302;
        const P t446 = t444 - t445;
        const P t447 = shuffled<1, 0>(t268);
        const P t448 = c[20] * t447;
        const P t449 = shuffled<1, 0>(t269);
        const P t450 = c[21] * t449;
        const P t451 = t448 + t450;
        const P t452 = P(-c[20], c[20]) * t449;
        const P t453 = P(c[21], -c[21]) * t447;
        const P t454 = t452 + t453;
        const P t455 = c[22] * t310;
        const P t456 = c[23] * t311;
        const P t457 = t455 + t456;
        const P t458 = c[23] * t310;
        const P t459 = c[22] * t311;
        const P t460 = t458 - t459;
        const P t461 = shuffled<1, 0>(t348);
        const P t462 = P(-c[24], c[24]) * t461;
        const P t463 = shuffled<1, 0>(t349);
        const P t464 = P(c[25], -c[25]) * t463;
        const P t465 = t462 + t464;
        const P t466 = c[24] * t463;
        const P t467 = c[25] * t461;
        const P t468 = t466 + t467;
        const P t469 = c[26] * t394;
        const P t470 = c[27] * t395;
        const P t471 = t469 + t470;
        const P t472 = c[27] * t394;
        const P t473 = c[26] * t395;
        const P t474 = t472 - t473;
        const P t475 = shuffled<1, 0>(t396);
        const P t476 = c[28] * t475;
        const P t477 = shuffled<1, 0>(t397);
        const P t478 = c[29] * t477;
        const P t479 = t476 + t478;
        const P t480 = P(-c[28], c[28]) * t477;
        const P t481 = P(c[29], -c[29]) * t475;
        const P t482 = t480 + t481;
        const P t483 = c[30] * t346;
        const P t484 = c[31] * t347;
        const P t485 = t483 - t484;
        const P t486 = c[30] * t347;
        const P t487 = c[31] * t346;
        const P t488 = t486 + t487;
        const P t489 = shuffled<1, 0>(t312);
        const P t490 = c[32] * t489;
        const P t491 = shuffled<1, 0>(t313);
        const P t492 = c[33] * t491;
        const P t493 = t490 + t492;
        const P t494 = P(-c[33], c[33]) * t489;
        const P t495 = P(c[32], -c[32]) * t491;
        const P t496 = t494 + t495;
        const P t497 = c[34] * t264;
        const P t498 = c[35] * t267;
        const P t499 = t497 - t498;
        const P t500 = c[34] * t267;
        const P t501 = c[35] * t264;
        const P t502 = t500 + t501;
        const P t503 = shuffled<1, 0>(t304);
        const P t504 = c[36] * t503;
        const P t505 = shuffled<1, 0>(t305);
        const P t506 = c[37] * t505;
        const P t507 = t504 + t506;
        const P t508 = P(-c[37], c[37]) * t503;
        const P t509 = P(c[36], -c[36]) * t505;
        const P t510 = t508 + t509;
        const P t511 = c[38] * t350;
        const P t512 = c[39] * t351;
        const P t513 = t511 + t512;
        const P t514 = c[38] * t351;
        const P t515 = c[39] * t350;
        const P t516 = t514 - t515;
        const P t517 = shuffled<1, 0>(t400);
        const P t518 = c[40] * t517;
        const P t519 = shuffled<1, 0>(t401);
        const P t520 = c[41] * t519;
        const P t521 = t518 + t520;
        const P t522 = P(-c[40], c[40]) * t519;
        const P t523 = P(c[41], -c[41]) * t517;
        const P t524 = t522 + t523;
        const P t525 = c[42] * t390;
        const P t526 = c[43] * t391;
        const P t527 = t525 + t526;
        const P t528 = c[42] * t391;
        const P t529 = c[43] * t390;
        const P t530 = t528 - t529;
        const P t531 = shuffled<1, 0>(t356);
        const P t532 = P(-c[44], c[44]) * t531;
        const P t533 = shuffled<1, 0>(t357);
        const P t534 = P(c[45], -c[45]) * t533;
        const P t535 = t532 + t534;
        const P t536 = c[44] * t533;
        const P t537 = c[45] * t531;
        const P t538 = t536 + t537;
        const P t539 = c[46] * t306;
        const P t540 = c[47] * t307;
        const P t541 = t539 + t540;
        const P t542 = c[46] * t307;
        const P t543 = c[47] * t306;
        const P t544 = t542 - t543;
        const P t545 = shuffled<1, 0>(t263);
        const P t546 = P(c[49], -c[49]) * t545;
        // spectrum block of 2
        const P t547 = t404 + t546;
        const P t548 = t404 - t546;
        const P t549 = flipped<0, 1>(t538);
        // complex block of 2
        const P t550 = t418 + t549;
        const P t551 = t415 + t535;
        const P t552 = t418 - t549;
        const P t553 = t415 - t535;
        // complex block of 2
        const P t554 = t432 - t524;
        const P t555 = flipped<0, 1>(t521);
        const P t556 = t429 + t555;
        const P t557 = t432 + t524;
        const P t558 = t429 - t555;
        // complex block of 2
        const P t559 = t446 - t510;
        const P t560 = flipped<1, 0>(t507);
        const P t561 = t443 + t560;
        const P t562 = t446 + t510;
        const P t563 = t443 - t560;
        // complex block of 2
        const P t564 = t460 - t496;
        const P t565 = flipped<0, 1>(t493);
        const P t566 = t457 + t565;
        const P t567 = t460 + t496;
        const P t568 = t457 - t565;
        // complex block of 2
        const P t569 = t474 - t482;
        const P t570 = flipped<1, 0>(t479);
        const P t571 = t471 + t570;
        const P t572 = t474 + t482;
        const P t573 = t471 - t570;
        const P t574 = flipped<1, 0>(t468);
        // complex block of 2
        const P t575 = t488 + t574;
        const P t576 = t485 + t465;
        const P t577 = t488 - t574;
        const P t578 = t485 - t465;
        // complex block of 2
        const P t579 = t502 - t454;
        const P t580 = flipped<0, 1>(t451);
        const P t581 = t499 + t580;
        const P t582 = t502 + t454;
        const P t583 = t499 - t580;
        // complex block of 2
        const P t584 = t516 - t440;
        const P t585 = flipped<0, 1>(t513);
        const P t586 = t437 + t585;
        const P t587 = t516 + t440;
        const P t588 = t437 - t585;
        const P t589 = flipped<0, 1>(t426);
        // complex block of 2
        const P t590 = t530 + t589;
        const P t591 = t527 + t423;
        const P t592 = t530 - t589;
        const P t593 = t527 - t423;
        // complex block of 2
        const P t594 = t544 - t412;
        const P t595 = flipped<1, 0>(t409);
        const P t596 = t541 + t595;
        const P t597 = t544 + t412;
        const P t598 = t541 - t595;
        // spectrum block of 3, multiplier 2
        const P t599 = t581 + t547;
        const P t600 = c[6] * t581;
        const P t601 = t547 - t600;
        const P t602 = c[7] * t579;
        const P t603 = t601 - t602;
        const P t604 = t601 + t602;
        // complex block of 3, multiplier 2
        const P t605 = t594 - t564;
        const P t606 = t596 + t566;
        const P t607 = t594 + t564;
        const P t608 = t596 - t566;
        const P t609 = t605 + t559;
        const P t610 = t606 + t561;
        const P t611 = c[6] * t605;
        const P t612 = t559 - t611;
        const P t613 = c[6] * t606;
        const P t614 = t561 - t613;
        const P t615 = c[7] * t608;
        const P t616 = t612 + t615;
        const P t617 = c[7] * t607;
        const P t618 = t614 - t617;
        const P t619 = t612 - t615;
        const P t620 = t614 + t617;
        // complex block of 3, multiplier 2
        const P t621 = t584 + t550;
        const P t622 = flipped<1, 0>(t586);
        const P t623 = t622 + t551;
        const P t624 = t550 - t584;
        const P t625 = flipped<0, 1>(t551);
        const P t626 = t586 + t625;
        const P t627 = t575 - t621;
        const P t628 = t623 + t576;
        const P t629 = c[6] * t621;
        const P t630 = t629 + t575;
        const P t631 = c[6] * t623;
        const P t632 = t576 - t631;
        const P t633 = P(-c[7], c[7]) * t626;
        const P t634 = t630 + t633;
        const P t635 = c[7] * t624;
        const P t636 = t632 - t635;
        const P t637 = t630 - t633;
        const P t638 = t632 + t635;
        // complex block of 3, multiplier 2
        const P t639 = t554 - t569;
        const P t640 = t571 + t556;
        const P t641 = t569 + t554;
        const P t642 = t571 - t556;
        const P t643 = t639 + t590;
        const P t644 = t640 + t591;
        const P t645 = c[6] * t639;
        const P t646 = t590 - t645;
        const P t647 = c[6] * t640;
        const P t648 = t591 - t647;
        const P t649 = c[7] * t642;
        const P t650 = t646 + t649;
        const P t651 = c[7] * t641;
        const P t652 = t648 + t651;
        const P t653 = t646 - t649;
        const P t654 = t648 - t651;
        // spectrum block of 7, multiplier 6
        const P t655 = t610 + t628;
        const P t656 = t655 + t644;
        const P t657 = t656 + t599;
        io.pair(1, t657);
        const P t658 = c[0] * t610;
        const P t659 = c[1] * t628;
        const P t660 = t658 - t659;
        const P t661 = c[2] * t644;
        const P t662 = t660 - t661;
        const P t663 = t662 + t599;
        const P t664 = c[3] * t609;
        const P t665 = c[4] * t627;
        const P t666 = t664 + t665;
        const P t667 = c[5] * t643;
        const P t668 = t666 + t667;
        const P t669 = t663 - t668;
        io.pair(41, t669);
        const P t670 = t663 + t668;
        io.pair(21, t670);
        const P t671 = c[1] * t610;
        const P t672 = t599 - t671;
        const P t673 = c[2] * t628;
        const P t674 = t672 - t673;
        const P t675 = c[0] * t644;
        const P t676 = t674 + t675;
        const P t677 = c[4] * t609;
        const P t678 = c[5] * t627;
        const P t679 = t677 - t678;
        const P t680 = c[3] * t643;
        const P t681 = t679 - t680;
        const P t682 = t676 - t681;
        io.pair(4, t682);
        const P t683 = t676 + t681;
        io.pair(11, t683);
        const P t684 = c[2] * t610;
        const P t685 = t599 - t684;
        const P t686 = c[0] * t628;
        const P t687 = t685 + t686;
        const P t688 = c[1] * t644;
        const P t689 = t687 - t688;
        const P t690 = c[5] * t609;
        const P t691 = c[3] * t627;
        const P t692 = t690 - t691;
        const P t693 = c[4] * t643;
        const P t694 = t692 + t693;
        const P t695 = t689 - t694;
        io.pair(35, t695);
        const P t696 = t689 + t694;
        io.pair(16, t696);
        // spectrum block of 7, multiplier 6
        const P t697 = t620 + t638;
        const P t698 = t697 + t654;
        const P t699 = t698 + t604;
        io.pair(6, t699);
        const P t700 = c[0] * t620;
        const P t701 = c[1] * t638;
        const P t702 = t700 - t701;
        const P t703 = c[2] * t654;
        const P t704 = t702 - t703;
        const P t705 = t704 + t604;
        const P t706 = c[3] * t619;
        const P t707 = c[4] * t637;
        const P t708 = t706 + t707;
        const P t709 = c[5] * t653;
        const P t710 = t708 + t709;
        const P t711 = t705 - t710;
        io.pair(31, t711);
        const P t712 = t705 + t710;
        io.pair(40, t712);
        const P t713 = c[1] * t620;
        const P t714 = t604 - t713;
        const P t715 = c[2] * t638;
        const P t716 = t714 - t715;
        const P t717 = c[0] * t654;
        const P t718 = t716 + t717;
        const P t719 = c[4] * t619;
        const P t720 = c[5] * t637;
        const P t721 = t719 - t720;
        const P t722 = c[3] * t653;
        const P t723 = t721 - t722;
        const P t724 = t718 - t723;
        io.pair(24, t724);
        const P t725 = t718 + t723;
        io.pair(23, t725);
        const P t726 = c[2] * t620;
        const P t727 = t604 - t726;
        const P t728 = c[0] * t638;
        const P t729 = t727 + t728;
        const P t730 = c[1] * t654;
        const P t731 = t729 - t730;
        const P t732 = c[5] * t619;
        const P t733 = c[3] * t637;
        const P t734 = t732 - t733;
        const P t735 = c[4] * t653;
        const P t736 = t734 + t735;
        const P t737 = t731 - t736;
        io.pair(38, t737);
        const P t738 = t731 + t736;
        io.pair(10, t738);
        // spectrum block of 7, multiplier 6
        const P t739 = t618 + t636;
        const P t740 = t739 + t652;
        const P t741 = t740 + t603;
        io.pair(36, t741);
        const P t742 = c[0] * t618;
        const P t743 = c[1] * t636;
        const P t744 = t742 - t743;
        const P t745 = c[2] * t652;
        const P t746 = t744 - t745;
        const P t747 = t746 + t603;
        const P t748 = c[3] * t616;
        const P t749 = c[4] * t634;
        const P t750 = t748 + t749;
        const P t751 = c[5] * t650;
        const P t752 = t750 + t751;
        const P t753 = t747 - t752;
        io.pair(14, t753);
        const P t754 = t747 + t752;
        io.pair(25, t754);
        const P t755 = c[1] * t618;
        const P t756 = t603 - t755;
        const P t757 = c[2] * t636;
        const P t758 = t756 - t757;
        const P t759 = c[0] * t652;
        const P t760 = t758 + t759;
        const P t761 = c[4] * t616;
        const P t762 = c[5] * t634;
        const P t763 = t761 - t762;
        const P t764 = c[3] * t650;
        const P t765 = t763 - t764;
        const P t766 = t760 - t765;
        io.pair(15, t766);
        const P t767 = t760 + t765;
        io.pair(9, t767);
        const P t768 = c[2] * t618;
        const P t769 = t603 - t768;
        const P t770 = c[0] * t636;
        const P t771 = t769 + t770;
        const P t772 = c[1] * t652;
        const P t773 = t771 - t772;
        const P t774 = c[5] * t616;
        const P t775 = c[3] * t634;
        const P t776 = t774 - t775;
        const P t777 = c[4] * t650;
        const P t778 = t776 + t777;
        const P t779 = t773 - t778;
        io.pair(13, t779);
        const P t780 = t773 + t778;
        io.pair(17, t780);
        // spectrum block of 3, multiplier 2
        const P t781 = t583 + t548;
        const P t782 = c[6] * t583;
        const P t783 = t548 - t782;
        const P t784 = c[7] * t582;
        const P t785 = t783 - t784;
        const P t786 = t783 + t784;
        // complex block of 3, multiplier 2
        const P t787 = t597 - t567;
        const P t788 = t598 + t568;
        const P t789 = t597 + t567;
        const P t790 = t598 - t568;
        const P t791 = t787 + t562;
        const P t792 = t788 + t563;
        const P t793 = c[6] * t787;
        const P t794 = t562 - t793;
        const P t795 = c[6] * t788;
        const P t796 = t563 - t795;
        const P t797 = c[7] * t790;
        const P t798 = t794 + t797;
        const P t799 = c[7] * t789;
        const P t800 = t796 - t799;
        const P t801 = t794 - t797;
        const P t802 = t796 + t799;
        // complex block of 3, multiplier 2
        const P t803 = t587 + t552;
        const P t804 = flipped<0, 1>(t588);
        const P t805 = t553 + t804;
        const P t806 = t552 - t587;
        const P t807 = flipped<1, 0>(t553);
        const P t808 = t588 + t807;
        const P t809 = t577 - t803;
        const P t810 = t805 + t578;
        const P t811 = c[6] * t803;
        const P t812 = t811 + t577;
        const P t813 = c[6] * t805;
        const P t814 = t578 - t813;
        const P t815 = P(c[7], -c[7]) * t808;
        const P t816 = t812 + t815;
        const P t817 = c[7] * t806;
        const P t818 = t814 - t817;
        const P t819 = t812 - t815;
        const P t820 = t814 + t817;
        // complex block of 3, multiplier 2
        const P t821 = t557 - t572;
        const P t822 = t573 + t558;
        const P t823 = t572 + t557;
        const P t824 = t573 - t558;
        const P t825 = t821 + t592;
        const P t826 = t822 + t593;
        const P t827 = c[6] * t821;
        const P t828 = t592 - t827;
        const P t829 = c[6] * t822;
        const P t830 = t593 - t829;
        const P t831 = c[7] * t824;
        const P t832 = t828 + t831;
        const P t833 = c[7] * t823;
        const P t834 = t830 + t833;
        const P t835 = t828 - t831;
        const P t836 = t830 - t833;
        // spectrum block of 7, multiplier 6
        const P t837 = t792 + t810;
        const P t838 = t837 + t826;
        const P t839 = t838 + t781;
        io.pair(42, t839);
        const P t840 = c[0] * t792;
        const P t841 = c[1] * t810;
        const P t842 = t840 - t841;
        const P t843 = c[2] * t826;
        const P t844 = t842 - t843;
        const P t845 = t844 + t781;
        const P t846 = c[3] * t791;
        const P t847 = c[4] * t809;
        const P t848 = t846 + t847;
        const P t849 = c[5] * t825;
        const P t850 = t848 + t849;
        const P t851 = t845 - t850;
        io.pair(2, t851);
        const P t852 = t845 + t850;
        io.pair(22, t852);
        const P t853 = c[1] * t792;
        const P t854 = t781 - t853;
        const P t855 = c[2] * t810;
        const P t856 = t854 - t855;
        const P t857 = c[0] * t826;
        const P t858 = t856 + t857;
        const P t859 = c[4] * t791;
        const P t860 = c[5] * t809;
        const P t861 = t859 - t860;
        const P t862 = c[3] * t825;
        const P t863 = t861 - t862;
        const P t864 = t858 - t863;
        io.pair(39, t864);
        const P t865 = t858 + t863;
        io.pair(32, t865);
        const P t866 = c[2] * t792;
        const P t867 = t781 - t866;
        const P t868 = c[0] * t810;
        const P t869 = t867 + t868;
        const P t870 = c[1] * t826;
        const P t871 = t869 - t870;
        const P t872 = c[5] * t791;
        const P t873 = c[3] * t809;
        const P t874 = t872 - t873;
        const P t875 = c[4] * t825;
        const P t876 = t874 + t875;
        const P t877 = t871 - t876;
        io.pair(8, t877);
        const P t878 = t871 + t876;
        io.pair(27, t878);
        // spectrum block of 7, multiplier 6
        const P t879 = t802 + t820;
        const P t880 = t879 + t836;
        const P t881 = t880 + t786;
        io.pair(37, t881);
        const P t882 = c[0] * t802;
        const P t883 = c[1] * t820;
        const P t884 = t882 - t883;
        const P t885 = c[2] * t836;
        const P t886 = t884 - t885;
        const P t887 = t886 + t786;
        const P t888 = c[3] * t801;
        const P t889 = c[4] * t819;
        const P t890 = t888 + t889;
        const P t891 = c[5] * t835;
        const P t892 = t890 + t891;
        const P t893 = t887 - t892;
        io.pair(12, t893);
        const P t894 = t887 + t892;
        io.pair(3, t894);
        const P t895 = c[1] * t802;
        const P t896 = t786 - t895;
        const P t897 = c[2] * t820;
        const P t898 = t896 - t897;
        const P t899 = c[0] * t836;
        const P t900 = t898 + t899;
        const P t901 = c[4] * t801;
        const P t902 = c[5] * t819;
        const P t903 = t901 - t902;
        const P t904 = c[3] * t835;
        const P t905 = t903 - t904;
        const P t906 = t900 - t905;
        io.pair(19, t906);
        const P t907 = t900 + t905;
        io.pair(20, t907);
        const P t908 = c[2] * t802;
        const P t909 = t786 - t908;
        const P t910 = c[0] * t820;
        const P t911 = t909 + t910;
        const P t912 = c[1] * t836;
        const P t913 = t911 - t912;
        const P t914 = c[5] * t801;
        const P t915 = c[3] * t819;
        const P t916 = t914 - t915;
        const P t917 = c[4] * t835;
        const P t918 = t916 + t917;
        const P t919 = t913 - t918;
        io.pair(5, t919);
        const P t920 = t913 + t918;
        io.pair(33, t920);
        // spectrum block of 7, multiplier 6
        const P t921 = t800 + t818;
        const P t922 = t921 + t834;
        const P t923 = t922 + t785;
        io.pair(7, t923);
        const P t924 = c[0] * t800;
        const P t925 = c[1] * t818;
        const P t926 = t924 - t925;
        const P t927 = c[2] * t834;
        const P t928 = t926 - t927;
        const P t929 = t928 + t785;
        const P t930 = c[3] * t798;
        const P t931 = c[4] * t816;
        const P t932 = t930 + t931;
        const P t933 = c[5] * t832;
        const P t934 = t932 + t933;
        const P t935 = t929 - t934;
        io.pair(29, t935);
        const P t936 = t929 + t934;
        io.pair(18, t936);
        const P t937 = c[1] * t800;
        const P t938 = t785 - t937;
        const P t939 = c[2] * t818;
        const P t940 = t938 - t939;
        const P t941 = c[0] * t834;
        const P t942 = t940 + t941;
        const P t943 = c[4] * t798;
        const P t944 = c[5] * t816;
        const P t945 = t943 - t944;
        const P t946 = c[3] * t832;
        const P t947 = t945 - t946;
        const P t948 = t942 - t947;
        io.pair(28, t948);
        const P t949 = t942 + t947;
        io.pair(34, t949);
        const P t950 = c[2] * t800;
        const P t951 = t785 - t950;
        const P t952 = c[0] * t818;
        const P t953 = t951 + t952;
        const P t954 = c[1] * t834;
        const P t955 = t953 - t954;
        const P t956 = c[5] * t798;
        const P t957 = c[3] * t816;
        const P t958 = t956 - t957;
        const P t959 = c[4] * t832;
        const P t960 = t958 + t959;
        const P t961 = t955 - t960;
        io.pair(30, t961);
        const P t962 = t955 + t960;
        io.pair(26, t962);
    }
};

}  // namespace zulg
