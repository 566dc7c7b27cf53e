// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 43.
// Complex DFT of 43 points, Rader block.
// 574 additions, 574 subtractions, 708 multiplications (794 with `scale`); 50 constants; 156 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<43> {
    static constexpr int steps = 1942;  // with `scale`
    static constexpr double inverseRoot = 0.15249857033260467;  // 1/sqrt(43), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 30/7
        0.9749279121818236,  // c[1]: sin 2 pi 30/7
        0.4338837391175581,  // c[2]: sin 2 pi 24/7
        0.7818314824680298,  // c[3]: -sin 2 pi 6/7
        0.6234898018587335,  // c[4]: cos 2 pi 6/7
        0.9009688679024191,  // c[5]: -cos 2 pi 24/7
        0.5,  // c[6]: -cos 2 pi 2/3
        0.8660254037844386,  // c[7]: -sin 2 pi 2/3
        0.2301120958697675,  // c[8]: P[14] of 43
        0.026892691663313772,  // c[9]: Q[7] of 43
        0.04915127741599876,  // c[10]: P[8] of 43
        0.30825588409410104,  // c[11]: Q[13] of 43
        0.08222826754004824,  // c[12]: -Q[1] of 43
        0.008407870561774193,  // c[13]: P[20] of 43
        0.24532144471548137,  // c[14]: P[6] of 43
        0.26976291906470395,  // c[15]: -Q[15] of 43
        0.02153059463206762,  // c[16]: P[2] of 43
        0.10982914663214519,  // c[17]: -Q[19] of 43
        0.16498076041582113,  // c[18]: -Q[5] of 43
        0.3042741226030731,  // c[19]: -P[16] of 43
        0.30868217300913287,  // c[20]: P[12] of 43
        0.10490468278634746,  // c[21]: -Q[9] of 43
        0.21107840313178253,  // c[22]: Q[14] of 43
        0.31109878185126716,  // c[23]: P[7] of 43
        0.31214576185951465,  // c[24]: -Q[20] of 43
        0.3012377482182514,  // c[25]: -P[1] of 43
        0.3083663744032671,  // c[26]: Q[8] of 43
        0.049839531053216354,  // c[27]: -P[13] of 43
        0.19319176405051375,  // c[28]: -Q[6] of 43
        0.15726931179327497,  // c[29]: -P[15] of 43
        0.07016357494006686,  // c[30]: -Q[16] of 43
        0.26511698856704335,  // c[31]: P[5] of 43
        0.3115158140914036,  // c[32]: Q[2] of 43
        0.29230673527015266,  // c[33]: -P[19] of 43
        0.29410997341765915,  // c[34]: P[9] of 43
        0.04712732753509521,  // c[35]: Q[12] of 43
        0.3100587997761174,  // c[36]: Q[10] of 43
        0.2698146808366376,  // c[37]: P[11] of 43
        0.2103692595529628,  // c[38]: Q[4] of 43
        0.06938393070305333,  // c[39]: P[17] of 43
        0.20124858610393936,  // c[40]: -P[3] of 43
        0.25047759866823976,  // c[41]: -Q[18] of 43
        0.23875651933592446,  // c[42]: Q[3] of 43
        0.23076057628931884,  // c[43]: P[4] of 43
        0.3044528520057486,  // c[44]: Q[17] of 43
        0.03700283253527918,  // c[45]: P[10] of 43
        0.15718049159887415,  // c[46]: -Q[11] of 43
        0.18645814945888683,  // c[47]: P[18] of 43
        0.023809523809523808,  // c[48]: 1/42
        0.15612948867385715,  // c[49]: beta of 43
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 7, multiplier 6
        const V x11r = io.re(11);
        const V x4r = io.re(4);
        const V t0 = x11r + x4r;
        const V t1 = x11r - x4r;
        const V t2 = c[0] * t0;
        const V t3 = c[1] * t1;
        const V t4 = c[2] * t1;
        const V t5 = c[3] * t1;
        const V x16r = io.re(16);
        const V x35r = io.re(35);
        const V t6 = x16r + x35r;
        const V t7 = x16r - x35r;
        const V x41r = io.re(41);
        const V x21r = io.re(21);
        const V t8 = x41r + x21r;
        const V t9 = x41r - x21r;
        const V t10 = c[4] * t8;
        const V t11 = c[3] * t9;
        const V t12 = c[0] * t8;
        const V t13 = c[1] * t9;
        const V t14 = c[5] * t8;
        const V t15 = c[2] * t9;
        const V t16 = t8 + t0;
        const V t17 = t16 + t6;
        const V t18 = t10 - t2;
        const V t19 = c[5] * t6;
        const V t20 = t18 - t19;
        const V t21 = c[2] * t7;
        const V t22 = t11 - t3;
        const V t23 = t22 - t21;
        const V x1r = io.re(1);
        const V t24 = x1r - t12;
        const V t25 = c[5] * t0;
        const V t26 = t24 - t25;
        const V t27 = c[4] * t6;
        const V t28 = c[3] * t7;
        const V t29 = t13 + t4;
        const V t30 = t29 + t28;
        const V t31 = x1r - t14;
        const V t32 = c[4] * t0;
        const V t33 = t31 + t32;
        const V t34 = c[0] * t6;
        const V t35 = c[1] * t7;
        const V t36 = t15 + t5;
        const V t37 = t36 - t35;
        // real block of 7, multiplier 6
        const V x2r = io.re(2);
        const V x22r = io.re(22);
        const V t38 = x2r + x22r;
        const V t39 = x2r - x22r;
        const V t40 = c[4] * t38;
        const V t41 = c[3] * t39;
        const V t42 = c[0] * t38;
        const V t43 = c[1] * t39;
        const V t44 = c[5] * t38;
        const V t45 = c[2] * t39;
        const V x27r = io.re(27);
        const V x8r = io.re(8);
        const V t46 = x27r + x8r;
        const V t47 = x27r - x8r;
        const V x32r = io.re(32);
        const V x39r = io.re(39);
        const V t48 = x32r + x39r;
        const V t49 = x32r - x39r;
        const V t50 = c[0] * t48;
        const V t51 = c[1] * t49;
        const V t52 = c[2] * t49;
        const V t53 = c[3] * t49;
        const V t54 = t38 + t48;
        const V t55 = t54 + t46;
        const V t56 = t40 - t50;
        const V t57 = c[5] * t46;
        const V t58 = t56 - t57;
        const V t59 = c[2] * t47;
        const V t60 = t41 - t51;
        const V t61 = t60 - t59;
        const V x42r = io.re(42);
        const V t62 = x42r - t42;
        const V t63 = c[5] * t48;
        const V t64 = t62 - t63;
        const V t65 = c[4] * t46;
        const V t66 = c[3] * t47;
        const V t67 = t43 + t52;
        const V t68 = t67 + t66;
        const V t69 = x42r - t44;
        const V t70 = c[4] * t48;
        const V t71 = t69 + t70;
        const V t72 = c[0] * t46;
        const V t73 = c[1] * t47;
        const V t74 = t45 + t53;
        const V t75 = t74 - t73;
        // real block of 7, multiplier 6
        const V x12r = io.re(12);
        const V x3r = io.re(3);
        const V t76 = x12r + x3r;
        const V t77 = x12r - x3r;
        const V x20r = io.re(20);
        const V x19r = io.re(19);
        const V t78 = x20r + x19r;
        const V t79 = x20r - x19r;
        const V t80 = t76 + t78;
        const V t81 = c[4] * t76;
        const V t82 = c[0] * t78;
        const V t83 = c[3] * t77;
        const V t84 = c[1] * t79;
        const V t85 = c[0] * t76;
        const V t86 = c[5] * t78;
        const V t87 = c[1] * t77;
        const V t88 = c[2] * t79;
        const V t89 = c[5] * t76;
        const V t90 = c[4] * t78;
        const V t91 = c[2] * t77;
        const V t92 = c[3] * t79;
        const V x33r = io.re(33);
        const V x5r = io.re(5);
        const V t93 = x33r + x5r;
        const V t94 = x33r - x5r;
        const V t95 = c[5] * t93;
        const V t96 = c[2] * t94;
        const V t97 = c[3] * t94;
        const V t98 = c[1] * t94;
        // real block of 7, multiplier 6
        const V x29r = io.re(29);
        const V x18r = io.re(18);
        const V t99 = x29r + x18r;
        const V t100 = x29r - x18r;
        const V x34r = io.re(34);
        const V x28r = io.re(28);
        const V t101 = x34r + x28r;
        const V t102 = x34r - x28r;
        const V t103 = t99 + t101;
        const V t104 = c[4] * t99;
        const V t105 = c[0] * t101;
        const V t106 = c[3] * t100;
        const V t107 = c[1] * t102;
        const V t108 = c[0] * t99;
        const V t109 = c[5] * t101;
        const V t110 = c[1] * t100;
        const V t111 = c[2] * t102;
        const V t112 = c[5] * t99;
        const V t113 = c[4] * t101;
        const V t114 = c[2] * t100;
        const V t115 = c[3] * t102;
        const V x26r = io.re(26);
        const V x30r = io.re(30);
        const V t116 = x26r + x30r;
        const V t117 = x26r - x30r;
        const V t118 = c[5] * t116;
        const V t119 = c[2] * t117;
        const V t120 = c[3] * t117;
        const V t121 = c[1] * t117;
        // real block of 7, multiplier 6
        const V t122 = t80 + t93;
        const V x37r = io.re(37);
        const V t123 = t122 + x37r;
        const V t124 = t81 - t82;
        const V t125 = t124 - t95;
        const V t126 = t125 + x37r;
        const V t127 = t83 - t84;
        const V t128 = t127 - t96;
        // real block of 7, multiplier 6
        const V t129 = t106 - t107;
        const V t130 = t129 - t119;
        // complex block of 3, multiplier 2
        const V t131 = t130 + t128;
        // real block of 7, multiplier 6
        const V t132 = x37r - t85;
        const V t133 = t132 - t86;
        const V t134 = c[4] * t93;
        const V t135 = t133 + t134;
        const V t136 = t87 + t88;
        const V t137 = t136 + t97;
        // real block of 7, multiplier 6
        const V t138 = t110 + t111;
        const V t139 = t138 + t120;
        // complex block of 3, multiplier 2
        const V t140 = t139 + t137;
        // real block of 7, multiplier 6
        const V t141 = x37r - t89;
        const V t142 = t141 + t90;
        const V t143 = c[0] * t93;
        const V t144 = t142 - t143;
        const V t145 = t91 + t92;
        const V t146 = t145 - t98;
        // real block of 7, multiplier 6
        const V t147 = t114 + t115;
        const V t148 = t147 - t121;
        // complex block of 3, multiplier 2
        const V t149 = t148 + t146;
        // real block of 7, multiplier 6
        const V t150 = t103 + t116;
        const V x7r = io.re(7);
        const V t151 = t150 + x7r;
        const V t152 = t104 - t105;
        const V t153 = t152 - t118;
        const V t154 = t153 + x7r;
        const V t155 = x7r - t108;
        const V t156 = t155 - t109;
        const V t157 = c[4] * t116;
        const V t158 = t156 + t157;
        const V t159 = x7r - t112;
        const V t160 = t159 + t113;
        const V t161 = c[0] * t116;
        const V t162 = t160 - t161;
        // real block of 7, multiplier 6
        const V x9r = io.re(9);
        const V x15r = io.re(15);
        const V t163 = x9r + x15r;
        const V t164 = x9r - x15r;
        const V x14r = io.re(14);
        const V x25r = io.re(25);
        const V t165 = x14r + x25r;
        const V t166 = x14r - x25r;
        const V t167 = t165 + t163;
        const V t168 = c[4] * t165;
        const V t169 = c[0] * t163;
        const V t170 = c[3] * t166;
        const V t171 = c[1] * t164;
        const V t172 = c[0] * t165;
        const V t173 = c[5] * t163;
        const V t174 = c[1] * t166;
        const V t175 = c[2] * t164;
        const V t176 = c[5] * t165;
        const V t177 = c[4] * t163;
        const V t178 = c[2] * t166;
        const V t179 = c[3] * t164;
        // real block of 7, multiplier 6
        const V x10r = io.re(10);
        const V x38r = io.re(38);
        const V t180 = x10r + x38r;
        const V t181 = x10r - x38r;
        const V t182 = c[5] * t180;
        const V t183 = c[2] * t181;
        const V t184 = c[3] * t181;
        const V t185 = c[1] * t181;
        // real block of 7, multiplier 6
        const V x17r = io.re(17);
        const V x13r = io.re(13);
        const V t186 = x17r + x13r;
        const V t187 = x17r - x13r;
        const V t188 = c[5] * t186;
        const V t189 = c[2] * t187;
        const V t190 = c[3] * t187;
        const V t191 = c[1] * t187;
        // real block of 7, multiplier 6
        const V x23r = io.re(23);
        const V x24r = io.re(24);
        const V t192 = x23r + x24r;
        const V t193 = x23r - x24r;
        const V x31r = io.re(31);
        const V x40r = io.re(40);
        const V t194 = x31r + x40r;
        const V t195 = x31r - x40r;
        const V t196 = t194 + t192;
        const V t197 = c[4] * t194;
        const V t198 = c[0] * t192;
        const V t199 = c[3] * t195;
        const V t200 = c[1] * t193;
        const V t201 = c[0] * t194;
        const V t202 = c[5] * t192;
        const V t203 = c[1] * t195;
        const V t204 = c[2] * t193;
        const V t205 = c[5] * t194;
        const V t206 = c[4] * t192;
        const V t207 = c[2] * t195;
        const V t208 = c[3] * t193;
        // real block of 7, multiplier 6
        const V t209 = t167 + t186;
        const V x36r = io.re(36);
        const V t210 = t209 + x36r;
        const V t211 = t168 - t169;
        const V t212 = t211 - t188;
        const V t213 = t212 + x36r;
        const V t214 = t170 - t171;
        const V t215 = t214 - t189;
        // real block of 7, multiplier 6
        const V t216 = t199 - t200;
        const V t217 = t216 - t183;
        // complex block of 3, multiplier 2
        const V t218 = t215 + t217;
        // real block of 7, multiplier 6
        const V t219 = x36r - t172;
        const V t220 = t219 - t173;
        const V t221 = c[4] * t186;
        const V t222 = t220 + t221;
        const V t223 = t174 + t175;
        const V t224 = t223 + t190;
        // real block of 7, multiplier 6
        const V t225 = t203 + t204;
        const V t226 = t225 + t184;
        // complex block of 3, multiplier 2
        const V t227 = t224 + t226;
        // real block of 7, multiplier 6
        const V t228 = x36r - t176;
        const V t229 = t228 + t177;
        const V t230 = c[0] * t186;
        const V t231 = t229 - t230;
        const V t232 = t178 + t179;
        const V t233 = t232 - t191;
        // real block of 7, multiplier 6
        const V t234 = t207 + t208;
        const V t235 = t234 - t185;
        // complex block of 3, multiplier 2
        const V t236 = t233 + t235;
        // real block of 7, multiplier 6
        const V t237 = t196 + t180;
        const V x6r = io.re(6);
        const V t238 = t237 + x6r;
        const V t239 = t197 - t198;
        const V t240 = t239 - t182;
        const V t241 = t240 + x6r;
        const V t242 = x6r - t201;
        const V t243 = t242 - t202;
        const V t244 = c[4] * t180;
        const V t245 = t243 + t244;
        const V t246 = x6r - t205;
        const V t247 = t246 + t206;
        const V t248 = c[0] * t180;
        const V t249 = t247 - t248;
        // real block of 7, multiplier 6
        const V t250 = t17 + x1r;
        // real block of 3, multiplier 2
        const V t251 = t210 + t238;
        const V t252 = c[6] * t251;
        const V t253 = t251 + t250;
        const V t254 = t250 - t252;
        // real block of 7, multiplier 6
        const V t255 = t55 + x42r;
        // real block of 3, multiplier 2
        const V t256 = t151 + t123;
        const V t257 = c[6] * t256;
        const V t258 = t256 + t255;
        const V t259 = t255 - t257;
        // real block of 2
        const V t260 = t253 + t258;
        // complex block of 43
        const V t261 = c[48] * t260;
        // real block of 2
        const V t262 = t253 - t258;
        // complex block of 2
        const V t263 = t254 + t259;
        // complex block of 43
        const V t264 = c[8] * t263;
        // complex block of 2
        const V t265 = t254 - t259;
        // complex block of 43
        const V t266 = c[9] * t265;
        // real block of 7, multiplier 6
        const V t267 = t20 + x1r;
        // complex block of 3, multiplier 2
        const V t268 = t213 + t241;
        const V t269 = c[6] * t268;
        const V t270 = t268 + t267;
        const V t271 = t267 - t269;
        // real block of 7, multiplier 6
        const V t272 = t58 + x42r;
        // complex block of 3, multiplier 2
        const V t273 = t154 + t126;
        const V t274 = c[6] * t273;
        const V t275 = t273 + t272;
        const V t276 = t272 - t274;
        // complex block of 3, multiplier 2
        const V t277 = t215 - t217;
        const V t278 = c[7] * t277;
        // complex block of 3, multiplier 2
        const V t279 = t130 - t128;
        const V t280 = c[7] * t279;
        // complex block of 3, multiplier 2
        const V t281 = t271 + t278;
        // complex block of 3, multiplier 2
        const V t282 = t276 + t280;
        // complex block of 2
        const V t283 = t281 + t282;
        const V t284 = t281 - t282;
        // complex block of 43
        const V t285 = c[10] * t283;
        const V t286 = c[11] * t284;
        // complex block of 3, multiplier 2
        const V t287 = t271 - t278;
        // complex block of 3, multiplier 2
        const V t288 = t276 - t280;
        // complex block of 2
        const V t289 = t287 + t288;
        const V t290 = t287 - t288;
        // complex block of 43
        const V t291 = c[12] * t290;
        const V t292 = c[13] * t289;
        // complex block of 2
        const V t293 = t270 + t275;
        // complex block of 43
        const V t294 = c[14] * t293;
        // complex block of 2
        const V t295 = t270 - t275;
        // complex block of 43
        const V t296 = c[15] * t295;
        // real block of 7, multiplier 6
        const V t297 = t26 + t27;
        // complex block of 3, multiplier 2
        const V t298 = t222 + t245;
        const V t299 = c[6] * t298;
        const V t300 = t298 + t297;
        const V t301 = t297 - t299;
        // real block of 7, multiplier 6
        const V t302 = t64 + t65;
        // complex block of 3, multiplier 2
        const V t303 = t158 + t135;
        const V t304 = c[6] * t303;
        const V t305 = t303 + t302;
        const V t306 = t302 - t304;
        // complex block of 3, multiplier 2
        const V t307 = t224 - t226;
        const V t308 = c[7] * t307;
        // complex block of 3, multiplier 2
        const V t309 = t139 - t137;
        const V t310 = c[7] * t309;
        // complex block of 3, multiplier 2
        const V t311 = t301 + t308;
        // complex block of 3, multiplier 2
        const V t312 = t306 + t310;
        // complex block of 2
        const V t313 = t311 + t312;
        const V t314 = t311 - t312;
        // complex block of 43
        const V t315 = c[16] * t313;
        const V t316 = c[17] * t314;
        // complex block of 3, multiplier 2
        const V t317 = t301 - t308;
        // complex block of 3, multiplier 2
        const V t318 = t306 - t310;
        // complex block of 2
        const V t319 = t317 + t318;
        const V t320 = t317 - t318;
        // complex block of 43
        const V t321 = c[18] * t320;
        const V t322 = c[19] * t319;
        // complex block of 2
        const V t323 = t300 + t305;
        // complex block of 43
        const V t324 = c[20] * t323;
        // complex block of 2
        const V t325 = t300 - t305;
        // complex block of 43
        const V t326 = c[21] * t325;
        // real block of 7, multiplier 6
        const V t327 = t33 - t34;
        // complex block of 3, multiplier 2
        const V t328 = t231 + t249;
        const V t329 = c[6] * t328;
        const V t330 = t328 + t327;
        const V t331 = t327 - t329;
        // real block of 7, multiplier 6
        const V t332 = t71 - t72;
        // complex block of 3, multiplier 2
        const V t333 = t162 + t144;
        const V t334 = c[6] * t333;
        const V t335 = t333 + t332;
        const V t336 = t332 - t334;
        // complex block of 3, multiplier 2
        const V t337 = t233 - t235;
        const V t338 = c[7] * t337;
        // complex block of 3, multiplier 2
        const V t339 = t148 - t146;
        const V t340 = c[7] * t339;
        // complex block of 3, multiplier 2
        const V t341 = t331 + t338;
        // complex block of 3, multiplier 2
        const V t342 = t336 + t340;
        // complex block of 2
        const V t343 = t341 + t342;
        const V t344 = t341 - t342;
        // complex block of 3, multiplier 2
        const V t345 = t331 - t338;
        // complex block of 3, multiplier 2
        const V t346 = t336 - t340;
        // complex block of 2
        const V t347 = t345 + t346;
        const V t348 = t345 - t346;
        // complex block of 2
        const V t349 = t330 + t335;
        const V t350 = t330 - t335;
        // real block of 3, multiplier 2
        const V t351 = t210 - t238;
        const V t352 = c[7] * t351;
        // real block of 3, multiplier 2
        const V t353 = t151 - t123;
        const V t354 = c[7] * t353;
        // complex block of 2
        const V t355 = t352 + t354;
        // complex block of 43
        const V t356 = c[22] * t355;
        const V t357 = c[8] * t355;
        // complex block of 2
        const V t358 = t352 - t354;
        // complex block of 43
        const V t359 = c[23] * t358;
        const V t360 = c[9] * t358;
        // complex block of 3, multiplier 2
        const V t361 = t213 - t241;
        const V t362 = c[7] * t361;
        const V t363 = c[6] * t218;
        const V t364 = t23 - t363;
        const V t365 = t364 - t362;
        const V t366 = t364 + t362;
        // complex block of 3, multiplier 2
        const V t367 = t154 - t126;
        const V t368 = c[7] * t367;
        const V t369 = c[6] * t131;
        const V t370 = t61 - t369;
        const V t371 = t370 - t368;
        const V t372 = t370 + t368;
        // complex block of 2
        const V t373 = t366 + t372;
        // complex block of 43
        const V t374 = c[24] * t373;
        const V t375 = c[13] * t373;
        // complex block of 2
        const V t376 = t366 - t372;
        // complex block of 43
        const V t377 = c[25] * t376;
        const V t378 = c[12] * t376;
        // complex block of 2
        const V t379 = t365 + t371;
        // complex block of 43
        const V t380 = c[26] * t379;
        const V t381 = c[10] * t379;
        // complex block of 2
        const V t382 = t365 - t371;
        // complex block of 43
        const V t383 = c[27] * t382;
        const V t384 = c[11] * t382;
        // complex block of 3, multiplier 2
        const V t385 = t218 + t23;
        // complex block of 3, multiplier 2
        const V t386 = t131 + t61;
        // complex block of 2
        const V t387 = t385 + t386;
        const V t388 = t385 - t386;
        // complex block of 43
        const V t389 = c[28] * t387;
        const V t390 = c[14] * t387;
        const V t391 = c[29] * t388;
        const V t392 = c[15] * t388;
        // complex block of 3, multiplier 2
        const V t393 = t222 - t245;
        const V t394 = c[7] * t393;
        const V t395 = c[6] * t227;
        const V t396 = t30 - t395;
        const V t397 = t396 - t394;
        const V t398 = t396 + t394;
        // complex block of 3, multiplier 2
        const V t399 = t158 - t135;
        const V t400 = c[7] * t399;
        const V t401 = c[6] * t140;
        const V t402 = t68 - t401;
        const V t403 = t402 - t400;
        const V t404 = t402 + t400;
        // complex block of 2
        const V t405 = t398 + t404;
        // complex block of 43
        const V t406 = c[30] * t405;
        const V t407 = c[19] * t405;
        // complex block of 2
        const V t408 = t398 - t404;
        // complex block of 43
        const V t409 = c[31] * t408;
        const V t410 = c[18] * t408;
        // complex block of 2
        const V t411 = t397 + t403;
        // complex block of 43
        const V t412 = c[32] * t411;
        const V t413 = c[16] * t411;
        // complex block of 2
        const V t414 = t397 - t403;
        // complex block of 43
        const V t415 = c[33] * t414;
        const V t416 = c[17] * t414;
        // complex block of 3, multiplier 2
        const V t417 = t227 + t30;
        // complex block of 3, multiplier 2
        const V t418 = t140 + t68;
        // complex block of 2
        const V t419 = t417 + t418;
        const V t420 = t417 - t418;
        // complex block of 43
        const V t421 = c[34] * t420;
        const V t422 = c[21] * t420;
        const V t423 = c[35] * t419;
        const V t424 = c[20] * t419;
        // complex block of 3, multiplier 2
        const V t425 = t231 - t249;
        const V t426 = c[7] * t425;
        const V t427 = c[6] * t236;
        const V t428 = t37 - t427;
        const V t429 = t428 - t426;
        const V t430 = t428 + t426;
        // complex block of 3, multiplier 2
        const V t431 = t162 - t144;
        const V t432 = c[7] * t431;
        const V t433 = c[6] * t149;
        const V t434 = t75 - t433;
        const V t435 = t434 - t432;
        const V t436 = t434 + t432;
        // complex block of 2
        const V t437 = t430 + t436;
        // complex block of 43
        const V t438 = c[36] * t437;
        // complex block of 2
        const V t439 = t430 - t436;
        // complex block of 43
        const V t440 = c[37] * t439;
        // complex block of 2
        const V t441 = t429 + t435;
        // complex block of 43
        const V t442 = c[38] * t441;
        // complex block of 2
        const V t443 = t429 - t435;
        // complex block of 43
        const V t444 = c[39] * t443;
        // complex block of 3, multiplier 2
        const V t445 = t236 + t37;
        // complex block of 3, multiplier 2
        const V t446 = t149 + t75;
        // complex block of 2
        const V t447 = t445 + t446;
        const V t448 = t445 - t446;
        // complex block of 43
        const V t449 = c[40] * t448;
        const V t450 = c[41] * t447;
        // real block of 7, multiplier 6
        const V x11i = io.im(11);
        const V x4i = io.im(4);
        const V t451 = x11i + x4i;
        const V t452 = x11i - x4i;
        const V t453 = c[0] * t451;
        const V t454 = c[1] * t452;
        const V t455 = c[2] * t452;
        const V t456 = c[3] * t452;
        const V x16i = io.im(16);
        const V x35i = io.im(35);
        const V t457 = x16i + x35i;
        const V t458 = x16i - x35i;
        const V x41i = io.im(41);
        const V x21i = io.im(21);
        const V t459 = x41i + x21i;
        const V t460 = x41i - x21i;
        const V t461 = c[4] * t459;
        const V t462 = c[3] * t460;
        const V t463 = c[0] * t459;
        const V t464 = c[1] * t460;
        const V t465 = c[5] * t459;
        const V t466 = c[2] * t460;
        const V t467 = t459 + t451;
        const V t468 = t467 + t457;
        const V t469 = t461 - t453;
        const V t470 = c[5] * t457;
        const V t471 = t469 - t470;
        const V t472 = c[2] * t458;
        const V t473 = t462 - t454;
        const V t474 = t473 - t472;
        const V x1i = io.im(1);
        const V t475 = x1i - t463;
        const V t476 = c[5] * t451;
        const V t477 = t475 - t476;
        const V t478 = c[4] * t457;
        const V t479 = c[3] * t458;
        const V t480 = t464 + t455;
        const V t481 = t480 + t479;
        const V t482 = x1i - t465;
        const V t483 = c[4] * t451;
        const V t484 = t482 + t483;
        const V t485 = c[0] * t457;
        const V t486 = c[1] * t458;
        const V t487 = t466 + t456;
        const V t488 = t487 - t486;
        // real block of 7, multiplier 6
        const V x2i = io.im(2);
        const V x22i = io.im(22);
        const V t489 = x2i + x22i;
        const V t490 = x2i - x22i;
        const V t491 = c[4] * t489;
        const V t492 = c[3] * t490;
        const V t493 = c[0] * t489;
        const V t494 = c[1] * t490;
        const V t495 = c[5] * t489;
        const V t496 = c[2] * t490;
        const V x27i = io.im(27);
        const V x8i = io.im(8);
        const V t497 = x27i + x8i;
        const V t498 = x27i - x8i;
        const V x32i = io.im(32);
        const V x39i = io.im(39);
        const V t499 = x32i + x39i;
        const V t500 = x32i - x39i;
        const V t501 = c[0] * t499;
        const V t502 = c[1] * t500;
        const V t503 = c[2] * t500;
        const V t504 = c[3] * t500;
        const V t505 = t489 + t499;
        const V t506 = t505 + t497;
        const V t507 = t491 - t501;
        const V t508 = c[5] * t497;
        const V t509 = t507 - t508;
        const V t510 = c[2] * t498;
        const V t511 = t492 - t502;
        const V t512 = t511 - t510;
        const V x42i = io.im(42);
        const V t513 = x42i - t493;
        const V t514 = c[5] * t499;
        const V t515 = t513 - t514;
        const V t516 = c[4] * t497;
        const V t517 = c[3] * t498;
        const V t518 = t494 + t503;
        const V t519 = t518 + t517;
        const V t520 = x42i - t495;
        const V t521 = c[4] * t499;
        const V t522 = t520 + t521;
        const V t523 = c[0] * t497;
        const V t524 = c[1] * t498;
        const V t525 = t496 + t504;
        const V t526 = t525 - t524;
        // real block of 7, multiplier 6
        const V x12i = io.im(12);
        const V x3i = io.im(3);
        const V t527 = x12i + x3i;
        const V t528 = x12i - x3i;
        const V x20i = io.im(20);
        const V x19i = io.im(19);
        const V t529 = x20i + x19i;
        const V t530 = x20i - x19i;
        const V t531 = t527 + t529;
        const V t532 = c[4] * t527;
        const V t533 = c[0] * t529;
        const V t534 = c[3] * t528;
        const V t535 = c[1] * t530;
        const V t536 = c[0] * t527;
        const V t537 = c[5] * t529;
        const V t538 = c[1] * t528;
        const V t539 = c[2] * t530;
        const V t540 = c[5] * t527;
        const V t541 = c[4] * t529;
        const V t542 = c[2] * t528;
        const V t543 = c[3] * t530;
        const V x33i = io.im(33);
        const V x5i = io.im(5);
        const V t544 = x33i + x5i;
        const V t545 = x33i - x5i;
        const V t546 = c[5] * t544;
        const V t547 = c[2] * t545;
        const V t548 = c[3] * t545;
        const V t549 = c[1] * t545;
        // real block of 7, multiplier 6
        const V x29i = io.im(29);
        const V x18i = io.im(18);
        const V t550 = x29i + x18i;
        const V t551 = x29i - x18i;
        const V x34i = io.im(34);
        const V x28i = io.im(28);
        const V t552 = x34i + x28i;
        const V t553 = x34i - x28i;
        const V t554 = t550 + t552;
        const V t555 = c[4] * t550;
        const V t556 = c[0] * t552;
        const V t557 = c[3] * t551;
        const V t558 = c[1] * t553;
        const V t559 = c[0] * t550;
        const V t560 = c[5] * t552;
        const V t561 = c[1] * t551;
        const V t562 = c[2] * t553;
        const V t563 = c[5] * t550;
        const V t564 = c[4] * t552;
        const V t565 = c[2] * t551;
        const V t566 = c[3] * t553;
        const V x26i = io.im(26);
        const V x30i = io.im(30);
        const V t567 = x26i + x30i;
        const V t568 = x26i - x30i;
        const V t569 = c[5] * t567;
        const V t570 = c[2] * t568;
        const V t571 = c[3] * t568;
        const V t572 = c[1] * t568;
        // real block of 7, multiplier 6
        const V t573 = t531 + t544;
        const V x37i = io.im(37);
        const V t574 = t573 + x37i;
        const V t575 = t532 - t533;
        const V t576 = t575 - t546;
        const V t577 = t576 + x37i;
        const V t578 = t534 - t535;
        const V t579 = t578 - t547;
        // real block of 7, multiplier 6
        const V t580 = t557 - t558;
        const V t581 = t580 - t570;
        // complex block of 3, multiplier 2
        const V t582 = t581 + t579;
        // real block of 7, multiplier 6
        const V t583 = x37i - t536;
        const V t584 = t583 - t537;
        const V t585 = c[4] * t544;
        const V t586 = t584 + t585;
        const V t587 = t538 + t539;
        const V t588 = t587 + t548;
        // real block of 7, multiplier 6
        const V t589 = t561 + t562;
        const V t590 = t589 + t571;
        // complex block of 3, multiplier 2
        const V t591 = t590 + t588;
        // real block of 7, multiplier 6
        const V t592 = x37i - t540;
        const V t593 = t592 + t541;
        const V t594 = c[0] * t544;
        const V t595 = t593 - t594;
        const V t596 = t542 + t543;
        const V t597 = t596 - t549;
        // real block of 7, multiplier 6
        const V t598 = t565 + t566;
        const V t599 = t598 - t572;
        // complex block of 3, multiplier 2
        const V t600 = t599 + t597;
        // real block of 7, multiplier 6
        const V t601 = t554 + t567;
        const V x7i = io.im(7);
        const V t602 = t601 + x7i;
        const V t603 = t555 - t556;
        const V t604 = t603 - t569;
        const V t605 = t604 + x7i;
        const V t606 = x7i - t559;
        const V t607 = t606 - t560;
        const V t608 = c[4] * t567;
        const V t609 = t607 + t608;
        const V t610 = x7i - t563;
        const V t611 = t610 + t564;
        const V t612 = c[0] * t567;
        const V t613 = t611 - t612;
        // real block of 7, multiplier 6
        const V x9i = io.im(9);
        const V x15i = io.im(15);
        const V t614 = x9i + x15i;
        const V t615 = x9i - x15i;
        const V x14i = io.im(14);
        const V x25i = io.im(25);
        const V t616 = x14i + x25i;
        const V t617 = x14i - x25i;
        const V t618 = t616 + t614;
        const V t619 = c[4] * t616;
        const V t620 = c[0] * t614;
        const V t621 = c[3] * t617;
        const V t622 = c[1] * t615;
        const V t623 = c[0] * t616;
        const V t624 = c[5] * t614;
        const V t625 = c[1] * t617;
        const V t626 = c[2] * t615;
        const V t627 = c[5] * t616;
        const V t628 = c[4] * t614;
        const V t629 = c[2] * t617;
        const V t630 = c[3] * t615;
        // real block of 7, multiplier 6
        const V x10i = io.im(10);
        const V x38i = io.im(38);
        const V t631 = x10i + x38i;
        const V t632 = x10i - x38i;
        const V t633 = c[5] * t631;
        const V t634 = c[2] * t632;
        const V t635 = c[3] * t632;
        const V t636 = c[1] * t632;
        // real block of 7, multiplier 6
        const V x17i = io.im(17);
        const V x13i = io.im(13);
        const V t637 = x17i + x13i;
        const V t638 = x17i - x13i;
        const V t639 = c[5] * t637;
        const V t640 = c[2] * t638;
        const V t641 = c[3] * t638;
        const V t642 = c[1] * t638;
        // real block of 7, multiplier 6
        const V x23i = io.im(23);
        const V x24i = io.im(24);
        const V t643 = x23i + x24i;
        const V t644 = x23i - x24i;
        const V x31i = io.im(31);
        const V x40i = io.im(40);
        const V t645 = x31i + x40i;
        const V t646 = x31i - x40i;
        const V t647 = t645 + t643;
        const V t648 = c[4] * t645;
        const V t649 = c[0] * t643;
        const V t650 = c[3] * t646;
        const V t651 = c[1] * t644;
        const V t652 = c[0] * t645;
        const V t653 = c[5] * t643;
        const V t654 = c[1] * t646;
        const V t655 = c[2] * t644;
        const V t656 = c[5] * t645;
        const V t657 = c[4] * t643;
        const V t658 = c[2] * t646;
        const V t659 = c[3] * t644;
        // real block of 7, multiplier 6
        const V t660 = t618 + t637;
        const V x36i = io.im(36);
        const V t661 = t660 + x36i;
        const V t662 = t619 - t620;
        const V t663 = t662 - t639;
        const V t664 = t663 + x36i;
        const V t665 = t621 - t622;
        const V t666 = t665 - t640;
        // real block of 7, multiplier 6
        const V t667 = t650 - t651;
        const V t668 = t667 - t634;
        // complex block of 3, multiplier 2
        const V t669 = t666 + t668;
        // real block of 7, multiplier 6
        const V t670 = x36i - t623;
        const V t671 = t670 - t624;
        const V t672 = c[4] * t637;
        const V t673 = t671 + t672;
        const V t674 = t625 + t626;
        const V t675 = t674 + t641;
        // real block of 7, multiplier 6
        const V t676 = t654 + t655;
        const V t677 = t676 + t635;
        // complex block of 3, multiplier 2
        const V t678 = t675 + t677;
        // real block of 7, multiplier 6
        const V t679 = x36i - t627;
        const V t680 = t679 + t628;
        const V t681 = c[0] * t637;
        const V t682 = t680 - t681;
        const V t683 = t629 + t630;
        const V t684 = t683 - t642;
        // real block of 7, multiplier 6
        const V t685 = t658 + t659;
        const V t686 = t685 - t636;
        // complex block of 3, multiplier 2
        const V t687 = t684 + t686;
        // real block of 7, multiplier 6
        const V t688 = t647 + t631;
        const V x6i = io.im(6);
        const V t689 = t688 + x6i;
        const V t690 = t648 - t649;
        const V t691 = t690 - t633;
        const V t692 = t691 + x6i;
        const V t693 = x6i - t652;
        const V t694 = t693 - t653;
        const V t695 = c[4] * t631;
        const V t696 = t694 + t695;
        const V t697 = x6i - t656;
        const V t698 = t697 + t657;
        const V t699 = c[0] * t631;
        const V t700 = t698 - t699;
        // real block of 7, multiplier 6
        const V t701 = t468 + x1i;
        // real block of 3, multiplier 2
        const V t702 = t661 + t689;
        const V t703 = c[6] * t702;
        const V t704 = t702 + t701;
        const V t705 = t701 - t703;
        // real block of 7, multiplier 6
        const V t706 = t506 + x42i;
        // real block of 3, multiplier 2
        const V t707 = t602 + t574;
        const V t708 = c[6] * t707;
        const V t709 = t707 + t706;
        const V t710 = t706 - t708;
        // real block of 2
        const V t711 = t704 + t709;
        // complex block of 43
        const V t712 = c[48] * t711;
        // real block of 2
        const V t713 = t704 - t709;
        // complex block of 2
        const V t714 = t705 + t710;
        // complex block of 43
        const V t715 = c[8] * t714;
        // complex block of 2
        const V t716 = t705 - t710;
        // complex block of 43
        const V t717 = c[9] * t716;
        // real block of 7, multiplier 6
        const V t718 = t471 + x1i;
        // complex block of 3, multiplier 2
        const V t719 = t664 + t692;
        const V t720 = c[6] * t719;
        const V t721 = t719 + t718;
        const V t722 = t718 - t720;
        // real block of 7, multiplier 6
        const V t723 = t509 + x42i;
        // complex block of 3, multiplier 2
        const V t724 = t605 + t577;
        const V t725 = c[6] * t724;
        const V t726 = t724 + t723;
        const V t727 = t723 - t725;
        // complex block of 3, multiplier 2
        const V t728 = t666 - t668;
        const V t729 = c[7] * t728;
        // complex block of 3, multiplier 2
        const V t730 = t581 - t579;
        const V t731 = c[7] * t730;
        // complex block of 3, multiplier 2
        const V t732 = t722 + t729;
        // complex block of 3, multiplier 2
        const V t733 = t727 + t731;
        // complex block of 2
        const V t734 = t732 + t733;
        const V t735 = t732 - t733;
        // complex block of 43
        const V t736 = c[10] * t734;
        const V t737 = c[11] * t735;
        // complex block of 3, multiplier 2
        const V t738 = t722 - t729;
        // complex block of 3, multiplier 2
        const V t739 = t727 - t731;
        // complex block of 2
        const V t740 = t738 + t739;
        const V t741 = t738 - t739;
        // complex block of 43
        const V t742 = c[12] * t741;
        const V t743 = c[13] * t740;
        // complex block of 2
        const V t744 = t721 + t726;
        // complex block of 43
        const V t745 = c[14] * t744;
        // complex block of 2
        const V t746 = t721 - t726;
        // complex block of 43
        const V t747 = c[15] * t746;
        // real block of 7, multiplier 6
        const V t748 = t477 + t478;
        // complex block of 3, multiplier 2
        const V t749 = t673 + t696;
        const V t750 = c[6] * t749;
        const V t751 = t749 + t748;
        const V t752 = t748 - t750;
        // real block of 7, multiplier 6
        const V t753 = t515 + t516;
        // complex block of 3, multiplier 2
        const V t754 = t609 + t586;
        const V t755 = c[6] * t754;
        const V t756 = t754 + t753;
        const V t757 = t753 - t755;
        // complex block of 3, multiplier 2
        const V t758 = t675 - t677;
        const V t759 = c[7] * t758;
        // complex block of 3, multiplier 2
        const V t760 = t590 - t588;
        const V t761 = c[7] * t760;
        // complex block of 3, multiplier 2
        const V t762 = t752 + t759;
        // complex block of 3, multiplier 2
        const V t763 = t757 + t761;
        // complex block of 2
        const V t764 = t762 + t763;
        const V t765 = t762 - t763;
        // complex block of 43
        const V t766 = c[16] * t764;
        const V t767 = c[17] * t765;
        // complex block of 3, multiplier 2
        const V t768 = t752 - t759;
        // complex block of 3, multiplier 2
        const V t769 = t757 - t761;
        // complex block of 2
        const V t770 = t768 + t769;
        const V t771 = t768 - t769;
        // complex block of 43
        const V t772 = c[18] * t771;
        const V t773 = c[19] * t770;
        // complex block of 2
        const V t774 = t751 + t756;
        // complex block of 43
        const V t775 = c[20] * t774;
        // complex block of 2
        const V t776 = t751 - t756;
        // complex block of 43
        const V t777 = c[21] * t776;
        // real block of 7, multiplier 6
        const V t778 = t484 - t485;
        // complex block of 3, multiplier 2
        const V t779 = t682 + t700;
        const V t780 = c[6] * t779;
        const V t781 = t779 + t778;
        const V t782 = t778 - t780;
        // real block of 7, multiplier 6
        const V t783 = t522 - t523;
        // complex block of 3, multiplier 2
        const V t784 = t613 + t595;
        const V t785 = c[6] * t784;
        const V t786 = t784 + t783;
        const V t787 = t783 - t785;
        // complex block of 3, multiplier 2
        const V t788 = t684 - t686;
        const V t789 = c[7] * t788;
        // complex block of 3, multiplier 2
        const V t790 = t599 - t597;
        const V t791 = c[7] * t790;
        // complex block of 3, multiplier 2
        const V t792 = t782 + t789;
        // complex block of 3, multiplier 2
        const V t793 = t787 + t791;
        // complex block of 2
        const V t794 = t792 + t793;
        const V t795 = t792 - t793;
        // complex block of 3, multiplier 2
        const V t796 = t782 - t789;
        // complex block of 3, multiplier 2
        const V t797 = t787 - t791;
        // complex block of 2
        const V t798 = t796 + t797;
        const V t799 = t796 - t797;
        // complex block of 2
        const V t800 = t781 + t786;
        const V t801 = t781 - t786;
        // real block of 3, multiplier 2
        const V t802 = t661 - t689;
        const V t803 = c[7] * t802;
        // real block of 3, multiplier 2
        const V t804 = t602 - t574;
        const V t805 = c[7] * t804;
        // complex block of 2
        const V t806 = t803 + t805;
        // complex block of 43
        const V t807 = c[22] * t806;
        const V t808 = c[8] * t806;
        // complex block of 2
        const V t809 = t803 - t805;
        // complex block of 43
        const V t810 = c[23] * t809;
        const V t811 = c[9] * t809;
        // complex block of 3, multiplier 2
        const V t812 = t664 - t692;
        const V t813 = c[7] * t812;
        const V t814 = c[6] * t669;
        const V t815 = t474 - t814;
        const V t816 = t815 - t813;
        const V t817 = t815 + t813;
        // complex block of 3, multiplier 2
        const V t818 = t605 - t577;
        const V t819 = c[7] * t818;
        const V t820 = c[6] * t582;
        const V t821 = t512 - t820;
        const V t822 = t821 - t819;
        const V t823 = t821 + t819;
        // complex block of 2
        const V t824 = t817 + t823;
        // complex block of 43
        const V t825 = c[24] * t824;
        const V t826 = c[13] * t824;
        // complex block of 2
        const V t827 = t817 - t823;
        // complex block of 43
        const V t828 = c[25] * t827;
        const V t829 = c[12] * t827;
        // complex block of 2
        const V t830 = t816 + t822;
        // complex block of 43
        const V t831 = c[26] * t830;
        const V t832 = c[10] * t830;
        // complex block of 2
        const V t833 = t816 - t822;
        // complex block of 43
        const V t834 = c[27] * t833;
        const V t835 = c[11] * t833;
        // complex block of 3, multiplier 2
        const V t836 = t669 + t474;
        // complex block of 3, multiplier 2
        const V t837 = t582 + t512;
        // complex block of 2
        const V t838 = t836 + t837;
        const V t839 = t836 - t837;
        // complex block of 43
        const V t840 = c[28] * t838;
        const V t841 = c[14] * t838;
        const V t842 = c[29] * t839;
        const V t843 = c[15] * t839;
        // complex block of 3, multiplier 2
        const V t844 = t673 - t696;
        const V t845 = c[7] * t844;
        const V t846 = c[6] * t678;
        const V t847 = t481 - t846;
        const V t848 = t847 - t845;
        const V t849 = t847 + t845;
        // complex block of 3, multiplier 2
        const V t850 = t609 - t586;
        const V t851 = c[7] * t850;
        const V t852 = c[6] * t591;
        const V t853 = t519 - t852;
        const V t854 = t853 - t851;
        const V t855 = t853 + t851;
        // complex block of 2
        const V t856 = t849 + t855;
        // complex block of 43
        const V t857 = c[30] * t856;
        const V t858 = c[19] * t856;
        // complex block of 2
        const V t859 = t849 - t855;
        // complex block of 43
        const V t860 = c[31] * t859;
        const V t861 = c[18] * t859;
        // complex block of 2
        const V t862 = t848 + t854;
        // complex block of 43
        const V t863 = c[32] * t862;
        const V t864 = c[16] * t862;
        // complex block of 2
        const V t865 = t848 - t854;
        // complex block of 43
        const V t866 = c[33] * t865;
        const V t867 = c[17] * t865;
        // complex block of 3, multiplier 2
        const V t868 = t678 + t481;
        // complex block of 3, multiplier 2
        const V t869 = t591 + t519;
        // complex block of 2
        const V t870 = t868 + t869;
        const V t871 = t868 - t869;
        // complex block of 43
        const V t872 = c[34] * t871;
        const V t873 = c[21] * t871;
        const V t874 = c[35] * t870;
        const V t875 = c[20] * t870;
        // complex block of 3, multiplier 2
        const V t876 = t682 - t700;
        const V t877 = c[7] * t876;
        const V t878 = c[6] * t687;
        const V t879 = t488 - t878;
        const V t880 = t879 - t877;
        const V t881 = t879 + t877;
        // complex block of 3, multiplier 2
        const V t882 = t613 - t595;
        const V t883 = c[7] * t882;
        const V t884 = c[6] * t600;
        const V t885 = t526 - t884;
        const V t886 = t885 - t883;
        const V t887 = t885 + t883;
        // complex block of 2
        const V t888 = t881 + t887;
        // complex block of 43
        const V t889 = c[36] * t888;
        // complex block of 2
        const V t890 = t881 - t887;
        // complex block of 43
        const V t891 = c[37] * t890;
        // complex block of 2
        const V t892 = t880 + t886;
        // complex block of 43
        const V t893 = c[38] * t892;
        // complex block of 2
        const V t894 = t880 - t886;
        // complex block of 43
        const V t895 = c[39] * t894;
        // complex block of 3, multiplier 2
        const V t896 = t687 + t488;
        // complex block of 3, multiplier 2
        const V t897 = t600 + t526;
        // complex block of 2
        const V t898 = t896 + t897;
        const V t899 = t896 - t897;
        // complex block of 43
        const V t900 = c[40] * t899;
        const V t901 = c[41] * t898;
        const V x0r = io.re(0);
        const V t902 = x0r + t260;
        const V x0i = io.im(0);
        io.re(0, t902);
        const V t903 = x0i + t711;
        io.im(0, t903);
        const V t904 = x0r - t261;
        const V t905 = c[49] * t713;
        // spectrum block of 2
        const V t906 = t904 + t905;
        const V t907 = t904 - t905;
        // complex block of 43
        const V t908 = t717 + t810;
        const V t909 = t264 - t356;
        // complex block of 2
        const V t910 = t909 + t908;
        const V t911 = t909 - t908;
        // spectrum block of 3, multiplier 2
        const V t912 = c[6] * t910;
        // spectrum block of 3, multiplier 2
        const V t913 = c[6] * t911;
        // complex block of 43
        const V t914 = c[23] * t716;
        const V t915 = t914 - t811;
        const V t916 = c[22] * t263;
        const V t917 = t357 + t916;
        // complex block of 2
        const V t918 = t917 - t915;
        const V t919 = t917 + t915;
        // spectrum block of 3, multiplier 2
        const V t920 = t910 + t906;
        const V t921 = t906 - t912;
        const V t922 = c[7] * t918;
        const V t923 = t921 - t922;
        const V t924 = t921 + t922;
        // spectrum block of 3, multiplier 2
        const V t925 = t911 + t907;
        const V t926 = t907 - t913;
        const V t927 = c[7] * t919;
        const V t928 = t926 - t927;
        const V t929 = t926 + t927;
        // complex block of 43
        const V t930 = t742 + t828;
        const V t931 = t292 + t374;
        // complex block of 2
        const V t932 = t931 - t930;
        const V t933 = t931 + t930;
        // complex block of 43
        const V t934 = t285 + t380;
        const V t935 = t737 + t834;
        // complex block of 2
        const V t936 = t934 + t935;
        const V t937 = t934 - t935;
        // complex block of 3, multiplier 2
        const V t938 = t932 + t936;
        // complex block of 3, multiplier 2
        const V t939 = t933 + t937;
        // complex block of 43
        const V t940 = c[25] * t741;
        const V t941 = t829 - t940;
        const V t942 = c[24] * t289;
        const V t943 = t375 - t942;
        // complex block of 2
        const V t944 = t943 - t941;
        const V t945 = t943 + t941;
        // complex block of 43
        const V t946 = t294 + t389;
        const V t947 = t747 + t842;
        // complex block of 2
        const V t948 = t946 - t947;
        const V t949 = t946 + t947;
        // complex block of 43
        const V t950 = c[28] * t293;
        const V t951 = t390 - t950;
        const V t952 = c[26] * t283;
        const V t953 = t952 - t381;
        const V t954 = c[27] * t735;
        const V t955 = t835 - t954;
        // complex block of 2
        const V t956 = t953 - t955;
        const V t957 = t953 + t955;
        // complex block of 43
        const V t958 = c[29] * t746;
        const V t959 = t843 - t958;
        // complex block of 2
        const V t960 = t951 - t959;
        // complex block of 3, multiplier 2
        const V t961 = t944 - t956;
        const V t962 = c[6] * t961;
        const V t963 = t961 + t960;
        const V t964 = t960 - t962;
        // complex block of 2
        const V t965 = t951 + t959;
        // complex block of 3, multiplier 2
        const V t966 = t945 - t957;
        const V t967 = c[6] * t966;
        const V t968 = t966 + t965;
        const V t969 = t965 - t967;
        // complex block of 3, multiplier 2
        const V t970 = t944 + t956;
        const V t971 = c[7] * t970;
        const V t972 = c[6] * t938;
        const V t973 = t948 - t972;
        const V t974 = t973 - t971;
        const V t975 = t973 + t971;
        const V t976 = t932 - t936;
        const V t977 = c[7] * t976;
        const V t978 = t938 + t948;
        // spectrum block of 7, multiplier 6
        const V t979 = c[4] * t978;
        const V t980 = c[0] * t978;
        const V t981 = c[5] * t978;
        // complex block of 3, multiplier 2
        const V t982 = t945 + t957;
        const V t983 = c[7] * t982;
        const V t984 = c[6] * t939;
        const V t985 = t949 - t984;
        const V t986 = t985 - t983;
        const V t987 = t985 + t983;
        const V t988 = t933 - t937;
        const V t989 = c[7] * t988;
        const V t990 = t939 + t949;
        // spectrum block of 7, multiplier 6
        const V t991 = c[4] * t990;
        const V t992 = c[0] * t990;
        const V t993 = c[5] * t990;
        // complex block of 43
        const V t994 = t315 + t412;
        const V t995 = t866 - t767;
        // complex block of 2
        const V t996 = t994 + t995;
        const V t997 = t994 - t995;
        // complex block of 43
        const V t998 = t772 + t860;
        const V t999 = t322 + t406;
        // complex block of 2
        const V t1000 = t999 + t998;
        const V t1001 = t998 - t999;
        // complex block of 3, multiplier 2
        const V t1002 = t996 - t1000;
        // complex block of 3, multiplier 2
        const V t1003 = t1001 + t997;
        // complex block of 43
        const V t1004 = c[32] * t313;
        const V t1005 = t1004 - t413;
        const V t1006 = c[33] * t765;
        const V t1007 = t867 + t1006;
        // complex block of 2
        const V t1008 = t1005 + t1007;
        const V t1009 = t1005 - t1007;
        // complex block of 43
        const V t1010 = c[31] * t771;
        const V t1011 = t1010 - t861;
        const V t1012 = c[30] * t319;
        const V t1013 = t407 - t1012;
        // complex block of 2
        const V t1014 = t1013 - t1011;
        const V t1015 = t1013 + t1011;
        // complex block of 43
        const V t1016 = t872 - t777;
        const V t1017 = t324 - t423;
        // complex block of 2
        const V t1018 = t1017 + t1016;
        const V t1019 = t1017 - t1016;
        // complex block of 43
        const V t1020 = c[34] * t776;
        const V t1021 = t873 + t1020;
        const V t1022 = c[35] * t323;
        const V t1023 = t424 + t1022;
        // complex block of 2
        const V t1024 = t1023 - t1021;
        // complex block of 3, multiplier 2
        const V t1025 = t1014 + t1008;
        const V t1026 = c[6] * t1025;
        const V t1027 = t1024 - t1025;
        const V t1028 = t1026 + t1024;
        // complex block of 2
        const V t1029 = t1023 + t1021;
        // complex block of 3, multiplier 2
        const V t1030 = t1015 + t1009;
        const V t1031 = c[6] * t1030;
        const V t1032 = t1029 - t1030;
        const V t1033 = t1031 + t1029;
        // complex block of 3, multiplier 2
        const V t1034 = t1008 - t1014;
        const V t1035 = c[7] * t1034;
        const V t1036 = c[6] * t1002;
        const V t1037 = t1018 - t1036;
        const V t1038 = t1037 - t1035;
        const V t1039 = t1037 + t1035;
        const V t1040 = t1000 + t996;
        const V t1041 = c[7] * t1040;
        const V t1042 = t1002 + t1018;
        // spectrum block of 7, multiplier 6
        const V t1043 = c[0] * t1042;
        // complex block of 3, multiplier 2
        const V t1044 = t1009 - t1015;
        const V t1045 = c[7] * t1044;
        const V t1046 = c[6] * t1003;
        const V t1047 = t1019 - t1046;
        const V t1048 = t1047 - t1045;
        const V t1049 = t1047 + t1045;
        const V t1050 = t1001 - t997;
        const V t1051 = c[7] * t1050;
        const V t1052 = t1003 + t1019;
        // spectrum block of 7, multiplier 6
        const V t1053 = c[0] * t1052;
        // complex block of 43
        const V t1054 = c[42] * t801;
        const V t1055 = t1054 - t900;
        const V t1056 = c[43] * t343;
        const V t1057 = t1056 - t442;
        const V t1058 = c[44] * t795;
        const V t1059 = t1058 + t895;
        // complex block of 2
        const V t1060 = t1057 + t1059;
        const V t1061 = t1057 - t1059;
        // complex block of 43
        const V t1062 = c[45] * t347;
        const V t1063 = t1062 + t438;
        const V t1064 = c[46] * t799;
        const V t1065 = t1064 + t891;
        // complex block of 2
        const V t1066 = t1063 - t1065;
        const V t1067 = t1063 + t1065;
        // complex block of 43
        const V t1068 = c[47] * t349;
        const V t1069 = t1068 + t450;
        // complex block of 2
        const V t1070 = t1069 + t1055;
        // complex block of 3, multiplier 2
        const V t1071 = t1066 + t1060;
        const V t1072 = c[6] * t1071;
        const V t1073 = t1071 + t1070;
        const V t1074 = t1070 - t1072;
        // complex block of 2
        const V t1075 = t1069 - t1055;
        // complex block of 3, multiplier 2
        const V t1076 = t1067 + t1061;
        const V t1077 = c[6] * t1076;
        const V t1078 = t1076 + t1075;
        const V t1079 = t1075 - t1077;
        // complex block of 3, multiplier 2
        const V t1080 = t1066 - t1060;
        const V t1081 = c[7] * t1080;
        // complex block of 3, multiplier 2
        const V t1082 = t1067 - t1061;
        const V t1083 = c[7] * t1082;
        // complex block of 43
        const V t1084 = c[40] * t801;
        const V t1085 = c[42] * t899;
        const V t1086 = t1085 + t1084;
        const V t1087 = c[41] * t349;
        const V t1088 = c[47] * t447;
        const V t1089 = t1088 - t1087;
        // complex block of 2
        const V t1090 = t1089 + t1086;
        const V t1091 = t1089 - t1086;
        // complex block of 43
        const V t1092 = c[38] * t343;
        const V t1093 = c[43] * t441;
        const V t1094 = t1093 + t1092;
        const V t1095 = c[39] * t795;
        const V t1096 = c[44] * t894;
        const V t1097 = t1095 - t1096;
        // complex block of 2
        const V t1098 = t1094 - t1097;
        const V t1099 = t1094 + t1097;
        // complex block of 43
        const V t1100 = c[36] * t347;
        const V t1101 = c[45] * t437;
        const V t1102 = t1100 - t1101;
        const V t1103 = c[37] * t799;
        const V t1104 = c[46] * t890;
        const V t1105 = t1103 - t1104;
        // complex block of 2
        const V t1106 = t1102 - t1105;
        const V t1107 = t1102 + t1105;
        // complex block of 3, multiplier 2
        const V t1108 = t1098 - t1106;
        const V t1109 = c[6] * t1108;
        const V t1110 = t1106 + t1098;
        const V t1111 = c[7] * t1110;
        // complex block of 3, multiplier 2
        const V t1112 = t1099 - t1107;
        const V t1113 = c[6] * t1112;
        const V t1114 = t1107 + t1099;
        const V t1115 = c[7] * t1114;
        // complex block of 3, multiplier 2
        const V t1116 = t964 + t977;
        // spectrum block of 7, multiplier 6
        const V t1117 = c[3] * t1116;
        const V t1118 = c[1] * t1116;
        const V t1119 = c[2] * t1116;
        // complex block of 3, multiplier 2
        const V t1120 = t1028 - t1041;
        // spectrum block of 7, multiplier 6
        const V t1121 = c[1] * t1120;
        const V t1122 = c[2] * t1120;
        const V t1123 = c[3] * t1120;
        const V t1124 = t1117 + t1121;
        const V t1125 = t1118 - t1122;
        const V t1126 = t1119 - t1123;
        // complex block of 3, multiplier 2
        const V t1127 = t964 - t977;
        // spectrum block of 7, multiplier 6
        const V t1128 = c[3] * t1127;
        const V t1129 = c[1] * t1127;
        const V t1130 = c[2] * t1127;
        // complex block of 3, multiplier 2
        const V t1131 = t1028 + t1041;
        // spectrum block of 7, multiplier 6
        const V t1132 = c[1] * t1131;
        const V t1133 = c[2] * t1131;
        const V t1134 = c[3] * t1131;
        const V t1135 = t1128 + t1132;
        const V t1136 = t1129 - t1133;
        const V t1137 = t1130 - t1134;
        // complex block of 3, multiplier 2
        const V t1138 = t1090 - t1109;
        const V t1139 = t1138 + t1081;
        const V t1140 = t1138 - t1081;
        // spectrum block of 7, multiplier 6
        const V t1141 = c[2] * t1140;
        const V t1142 = c[3] * t1140;
        const V t1143 = c[1] * t1140;
        // spectrum block of 7, multiplier 6
        const V t1144 = c[2] * t1139;
        const V t1145 = c[3] * t1139;
        const V t1146 = c[1] * t1139;
        // complex block of 3, multiplier 2
        const V t1147 = t1074 + t1111;
        // spectrum block of 7, multiplier 6
        const V t1148 = c[5] * t1147;
        const V t1149 = t974 + t1038;
        const V t1150 = c[4] * t974;
        const V t1151 = c[0] * t1038;
        const V t1152 = t1150 - t1151;
        const V t1153 = t1149 + t1147;
        const V t1154 = t1152 - t1148;
        const V t1155 = c[4] * t1147;
        const V t1156 = c[0] * t1147;
        // complex block of 3, multiplier 2
        const V t1157 = t1074 - t1111;
        // spectrum block of 7, multiplier 6
        const V t1158 = c[5] * t1157;
        const V t1159 = t975 + t1039;
        const V t1160 = c[4] * t975;
        const V t1161 = c[0] * t1039;
        const V t1162 = t1160 - t1161;
        const V t1163 = t1159 + t1157;
        const V t1164 = t1162 - t1158;
        const V t1165 = c[4] * t1157;
        const V t1166 = c[0] * t1157;
        const V t1167 = c[0] * t975;
        const V t1168 = t924 - t1167;
        const V t1169 = c[5] * t1039;
        const V t1170 = t1168 - t1169;
        const V t1171 = c[5] * t975;
        const V t1172 = t924 - t1171;
        const V t1173 = c[4] * t1039;
        const V t1174 = t1172 + t1173;
        // spectrum block of 7, multiplier 6
        const V t1175 = c[0] * t974;
        const V t1176 = t923 - t1175;
        const V t1177 = c[5] * t1038;
        const V t1178 = t1176 - t1177;
        const V t1179 = c[5] * t974;
        const V t1180 = t923 - t1179;
        const V t1181 = c[4] * t1038;
        const V t1182 = t1180 + t1181;
        // spectrum block of 7, multiplier 6
        const V t1183 = t1163 + t924;
        io.re(6, t1183);
        const V t1184 = t1164 + t924;
        const V t1185 = t1135 + t1141;
        const V t1186 = t1184 - t1185;
        io.re(31, t1186);
        const V t1187 = t1184 + t1185;
        io.re(40, t1187);
        const V t1188 = t1170 + t1165;
        const V t1189 = t1136 - t1142;
        const V t1190 = t1188 - t1189;
        io.re(24, t1190);
        const V t1191 = t1188 + t1189;
        io.re(23, t1191);
        const V t1192 = t1174 - t1166;
        const V t1193 = t1137 + t1143;
        const V t1194 = t1192 - t1193;
        io.re(38, t1194);
        const V t1195 = t1192 + t1193;
        io.re(10, t1195);
        // spectrum block of 7, multiplier 6
        const V t1196 = t1153 + t923;
        io.re(36, t1196);
        const V t1197 = t1154 + t923;
        const V t1198 = t1124 + t1144;
        const V t1199 = t1197 - t1198;
        io.re(14, t1199);
        const V t1200 = t1197 + t1198;
        io.re(25, t1200);
        const V t1201 = t1178 + t1155;
        const V t1202 = t1125 - t1145;
        const V t1203 = t1201 - t1202;
        io.re(15, t1203);
        const V t1204 = t1201 + t1202;
        io.re(9, t1204);
        const V t1205 = t1182 - t1156;
        const V t1206 = t1126 + t1146;
        const V t1207 = t1205 - t1206;
        io.re(13, t1207);
        const V t1208 = t1205 + t1206;
        io.re(17, t1208);
        // complex block of 3, multiplier 2
        const V t1209 = t1108 + t1090;
        // spectrum block of 7, multiplier 6
        const V t1210 = c[2] * t1209;
        const V t1211 = c[3] * t1209;
        const V t1212 = c[1] * t1209;
        const V t1213 = t979 - t1043;
        const V t1214 = c[5] * t1073;
        const V t1215 = t1213 - t1214;
        const V t1216 = c[3] * t963;
        const V t1217 = c[1] * t1027;
        const V t1218 = t1216 + t1217;
        const V t1219 = t920 - t980;
        const V t1220 = c[5] * t1042;
        const V t1221 = t1219 - t1220;
        const V t1222 = c[4] * t1073;
        const V t1223 = c[1] * t963;
        const V t1224 = c[2] * t1027;
        const V t1225 = t1223 - t1224;
        const V t1226 = t920 - t981;
        const V t1227 = c[4] * t1042;
        const V t1228 = t1226 + t1227;
        const V t1229 = c[0] * t1073;
        const V t1230 = c[2] * t963;
        const V t1231 = c[3] * t1027;
        const V t1232 = t1230 - t1231;
        const V t1233 = t1215 + t920;
        const V t1234 = t1218 + t1210;
        const V t1235 = t1233 - t1234;
        io.re(41, t1235);
        const V t1236 = t1233 + t1234;
        io.re(21, t1236);
        const V t1237 = t1221 + t1222;
        const V t1238 = t1225 - t1211;
        const V t1239 = t1237 - t1238;
        io.re(4, t1239);
        const V t1240 = t1237 + t1238;
        io.re(11, t1240);
        const V t1241 = t1228 - t1229;
        const V t1242 = t1232 + t1212;
        const V t1243 = t1241 - t1242;
        io.re(35, t1243);
        const V t1244 = t1241 + t1242;
        io.re(16, t1244);
        const V t1245 = t978 + t1042;
        const V t1246 = t1245 + t1073;
        const V t1247 = t1246 + t920;
        io.re(1, t1247);
        // complex block of 3, multiplier 2
        const V t1248 = t969 + t989;
        // spectrum block of 7, multiplier 6
        const V t1249 = c[3] * t1248;
        const V t1250 = c[1] * t1248;
        const V t1251 = c[2] * t1248;
        // complex block of 3, multiplier 2
        const V t1252 = t1033 + t1051;
        // spectrum block of 7, multiplier 6
        const V t1253 = c[1] * t1252;
        const V t1254 = c[2] * t1252;
        const V t1255 = c[3] * t1252;
        const V t1256 = t1249 + t1253;
        const V t1257 = t1250 - t1254;
        const V t1258 = t1251 - t1255;
        // complex block of 3, multiplier 2
        const V t1259 = t969 - t989;
        // spectrum block of 7, multiplier 6
        const V t1260 = c[3] * t1259;
        const V t1261 = c[1] * t1259;
        const V t1262 = c[2] * t1259;
        // complex block of 3, multiplier 2
        const V t1263 = t1033 - t1051;
        // spectrum block of 7, multiplier 6
        const V t1264 = c[1] * t1263;
        const V t1265 = c[2] * t1263;
        const V t1266 = c[3] * t1263;
        const V t1267 = t1260 + t1264;
        const V t1268 = t1261 - t1265;
        const V t1269 = t1262 - t1266;
        // complex block of 3, multiplier 2
        const V t1270 = t1091 - t1113;
        const V t1271 = t1270 + t1083;
        const V t1272 = t1270 - t1083;
        // spectrum block of 7, multiplier 6
        const V t1273 = c[2] * t1272;
        const V t1274 = c[3] * t1272;
        const V t1275 = c[1] * t1272;
        // spectrum block of 7, multiplier 6
        const V t1276 = c[2] * t1271;
        const V t1277 = c[3] * t1271;
        const V t1278 = c[1] * t1271;
        // complex block of 3, multiplier 2
        const V t1279 = t1079 + t1115;
        // spectrum block of 7, multiplier 6
        const V t1280 = c[5] * t1279;
        const V t1281 = t986 + t1048;
        const V t1282 = c[4] * t986;
        const V t1283 = c[0] * t1048;
        const V t1284 = t1282 - t1283;
        const V t1285 = t1281 + t1279;
        const V t1286 = t1284 - t1280;
        const V t1287 = c[4] * t1279;
        const V t1288 = c[0] * t1279;
        // complex block of 3, multiplier 2
        const V t1289 = t1079 - t1115;
        // spectrum block of 7, multiplier 6
        const V t1290 = c[5] * t1289;
        const V t1291 = t987 + t1049;
        const V t1292 = c[4] * t987;
        const V t1293 = c[0] * t1049;
        const V t1294 = t1292 - t1293;
        const V t1295 = t1291 + t1289;
        const V t1296 = t1294 - t1290;
        const V t1297 = c[4] * t1289;
        const V t1298 = c[0] * t1289;
        const V t1299 = c[0] * t987;
        const V t1300 = t929 - t1299;
        const V t1301 = c[5] * t1049;
        const V t1302 = t1300 - t1301;
        const V t1303 = c[5] * t987;
        const V t1304 = t929 - t1303;
        const V t1305 = c[4] * t1049;
        const V t1306 = t1304 + t1305;
        // spectrum block of 7, multiplier 6
        const V t1307 = c[0] * t986;
        const V t1308 = t928 - t1307;
        const V t1309 = c[5] * t1048;
        const V t1310 = t1308 - t1309;
        const V t1311 = c[5] * t986;
        const V t1312 = t928 - t1311;
        const V t1313 = c[4] * t1048;
        const V t1314 = t1312 + t1313;
        // spectrum block of 7, multiplier 6
        const V t1315 = t1295 + t929;
        io.re(37, t1315);
        const V t1316 = t1296 + t929;
        const V t1317 = t1267 + t1273;
        const V t1318 = t1316 - t1317;
        io.re(12, t1318);
        const V t1319 = t1316 + t1317;
        io.re(3, t1319);
        const V t1320 = t1302 + t1297;
        const V t1321 = t1268 - t1274;
        const V t1322 = t1320 - t1321;
        io.re(19, t1322);
        const V t1323 = t1320 + t1321;
        io.re(20, t1323);
        const V t1324 = t1306 - t1298;
        const V t1325 = t1269 + t1275;
        const V t1326 = t1324 - t1325;
        io.re(5, t1326);
        const V t1327 = t1324 + t1325;
        io.re(33, t1327);
        // spectrum block of 7, multiplier 6
        const V t1328 = t1285 + t928;
        io.re(7, t1328);
        const V t1329 = t1286 + t928;
        const V t1330 = t1256 + t1276;
        const V t1331 = t1329 - t1330;
        io.re(29, t1331);
        const V t1332 = t1329 + t1330;
        io.re(18, t1332);
        const V t1333 = t1310 + t1287;
        const V t1334 = t1257 - t1277;
        const V t1335 = t1333 - t1334;
        io.re(28, t1335);
        const V t1336 = t1333 + t1334;
        io.re(34, t1336);
        const V t1337 = t1314 - t1288;
        const V t1338 = t1258 + t1278;
        const V t1339 = t1337 - t1338;
        io.re(30, t1339);
        const V t1340 = t1337 + t1338;
        io.re(26, t1340);
        // complex block of 3, multiplier 2
        const V t1341 = t1112 + t1091;
        // spectrum block of 7, multiplier 6
        const V t1342 = c[2] * t1341;
        const V t1343 = c[3] * t1341;
        const V t1344 = c[1] * t1341;
        const V t1345 = t991 - t1053;
        const V t1346 = c[5] * t1078;
        const V t1347 = t1345 - t1346;
        const V t1348 = c[3] * t968;
        const V t1349 = c[1] * t1032;
        const V t1350 = t1348 + t1349;
        const V t1351 = t925 - t992;
        const V t1352 = c[5] * t1052;
        const V t1353 = t1351 - t1352;
        const V t1354 = c[4] * t1078;
        const V t1355 = c[1] * t968;
        const V t1356 = c[2] * t1032;
        const V t1357 = t1355 - t1356;
        const V t1358 = t925 - t993;
        const V t1359 = c[4] * t1052;
        const V t1360 = t1358 + t1359;
        const V t1361 = c[0] * t1078;
        const V t1362 = c[2] * t968;
        const V t1363 = c[3] * t1032;
        const V t1364 = t1362 - t1363;
        const V t1365 = t1347 + t925;
        const V t1366 = t1350 + t1342;
        const V t1367 = t1365 - t1366;
        io.re(2, t1367);
        const V t1368 = t1365 + t1366;
        io.re(22, t1368);
        const V t1369 = t1353 + t1354;
        const V t1370 = t1357 - t1343;
        const V t1371 = t1369 - t1370;
        io.re(39, t1371);
        const V t1372 = t1369 + t1370;
        io.re(32, t1372);
        const V t1373 = t1360 - t1361;
        const V t1374 = t1364 + t1344;
        const V t1375 = t1373 - t1374;
        io.re(8, t1375);
        const V t1376 = t1373 + t1374;
        io.re(27, t1376);
        const V t1377 = t990 + t1052;
        const V t1378 = t1377 + t1078;
        const V t1379 = t1378 + t925;
        io.re(42, t1379);
        // complex block of 43
        const V t1380 = x0i - t712;
        const V t1381 = c[49] * t262;
        // spectrum block of 2
        const V t1382 = t1380 - t1381;
        const V t1383 = t1380 + t1381;
        // complex block of 43
        const V t1384 = t266 + t359;
        const V t1385 = t715 - t807;
        // complex block of 2
        const V t1386 = t1385 - t1384;
        const V t1387 = t1385 + t1384;
        // spectrum block of 3, multiplier 2
        const V t1388 = c[6] * t1386;
        // spectrum block of 3, multiplier 2
        const V t1389 = c[6] * t1387;
        // complex block of 43
        const V t1390 = c[23] * t265;
        const V t1391 = t360 - t1390;
        const V t1392 = c[22] * t714;
        const V t1393 = t808 + t1392;
        // complex block of 2
        const V t1394 = t1393 - t1391;
        const V t1395 = t1393 + t1391;
        // spectrum block of 3, multiplier 2
        const V t1396 = t1386 + t1382;
        const V t1397 = t1382 - t1388;
        const V t1398 = c[7] * t1394;
        const V t1399 = t1397 - t1398;
        const V t1400 = t1397 + t1398;
        // spectrum block of 3, multiplier 2
        const V t1401 = t1387 + t1383;
        const V t1402 = t1383 - t1389;
        const V t1403 = c[7] * t1395;
        const V t1404 = t1402 - t1403;
        const V t1405 = t1402 + t1403;
        // complex block of 43
        const V t1406 = t291 + t377;
        const V t1407 = t743 + t825;
        // complex block of 2
        const V t1408 = t1407 + t1406;
        const V t1409 = t1407 - t1406;
        // complex block of 43
        const V t1410 = t736 + t831;
        const V t1411 = t286 + t383;
        // complex block of 2
        const V t1412 = t1410 - t1411;
        const V t1413 = t1410 + t1411;
        // complex block of 3, multiplier 2
        const V t1414 = t1408 + t1412;
        // complex block of 3, multiplier 2
        const V t1415 = t1409 + t1413;
        // complex block of 43
        const V t1416 = c[25] * t290;
        const V t1417 = t1416 - t378;
        const V t1418 = c[24] * t740;
        const V t1419 = t826 - t1418;
        // complex block of 2
        const V t1420 = t1419 - t1417;
        const V t1421 = t1419 + t1417;
        // complex block of 43
        const V t1422 = t745 + t840;
        const V t1423 = t296 + t391;
        // complex block of 2
        const V t1424 = t1422 + t1423;
        const V t1425 = t1422 - t1423;
        // complex block of 43
        const V t1426 = c[28] * t744;
        const V t1427 = t841 - t1426;
        const V t1428 = c[26] * t734;
        const V t1429 = t1428 - t832;
        const V t1430 = c[27] * t284;
        const V t1431 = t1430 - t384;
        // complex block of 2
        const V t1432 = t1429 - t1431;
        const V t1433 = t1429 + t1431;
        // complex block of 43
        const V t1434 = c[29] * t295;
        const V t1435 = t1434 - t392;
        // complex block of 2
        const V t1436 = t1427 - t1435;
        // complex block of 3, multiplier 2
        const V t1437 = t1420 - t1432;
        const V t1438 = c[6] * t1437;
        const V t1439 = t1437 + t1436;
        const V t1440 = t1436 - t1438;
        // complex block of 2
        const V t1441 = t1427 + t1435;
        // complex block of 3, multiplier 2
        const V t1442 = t1421 - t1433;
        const V t1443 = c[6] * t1442;
        const V t1444 = t1442 + t1441;
        const V t1445 = t1441 - t1443;
        // complex block of 3, multiplier 2
        const V t1446 = t1420 + t1432;
        const V t1447 = c[7] * t1446;
        const V t1448 = c[6] * t1414;
        const V t1449 = t1424 - t1448;
        const V t1450 = t1449 - t1447;
        const V t1451 = t1449 + t1447;
        const V t1452 = t1408 - t1412;
        const V t1453 = c[7] * t1452;
        const V t1454 = t1414 + t1424;
        // spectrum block of 7, multiplier 6
        const V t1455 = c[4] * t1454;
        const V t1456 = c[0] * t1454;
        const V t1457 = c[5] * t1454;
        // complex block of 3, multiplier 2
        const V t1458 = t1421 + t1433;
        const V t1459 = c[7] * t1458;
        const V t1460 = c[6] * t1415;
        const V t1461 = t1425 - t1460;
        const V t1462 = t1461 - t1459;
        const V t1463 = t1461 + t1459;
        const V t1464 = t1409 - t1413;
        const V t1465 = c[7] * t1464;
        const V t1466 = t1415 + t1425;
        // spectrum block of 7, multiplier 6
        const V t1467 = c[4] * t1466;
        const V t1468 = c[0] * t1466;
        const V t1469 = c[5] * t1466;
        // complex block of 43
        const V t1470 = t766 + t863;
        const V t1471 = t316 - t415;
        // complex block of 2
        const V t1472 = t1470 + t1471;
        const V t1473 = t1470 - t1471;
        // complex block of 43
        const V t1474 = t321 + t409;
        const V t1475 = t773 + t857;
        // complex block of 2
        const V t1476 = t1474 - t1475;
        const V t1477 = t1475 + t1474;
        // complex block of 3, multiplier 2
        const V t1478 = t1476 + t1472;
        // complex block of 3, multiplier 2
        const V t1479 = t1473 - t1477;
        // complex block of 43
        const V t1480 = c[32] * t764;
        const V t1481 = t1480 - t864;
        const V t1482 = c[33] * t314;
        const V t1483 = t416 + t1482;
        // complex block of 2
        const V t1484 = t1481 - t1483;
        const V t1485 = t1481 + t1483;
        // complex block of 43
        const V t1486 = c[31] * t320;
        const V t1487 = t410 - t1486;
        const V t1488 = c[30] * t770;
        const V t1489 = t858 - t1488;
        // complex block of 2
        const V t1490 = t1489 - t1487;
        const V t1491 = t1489 + t1487;
        // complex block of 43
        const V t1492 = t326 - t421;
        const V t1493 = t775 - t874;
        // complex block of 2
        const V t1494 = t1493 + t1492;
        const V t1495 = t1493 - t1492;
        // complex block of 43
        const V t1496 = c[34] * t325;
        const V t1497 = t422 + t1496;
        const V t1498 = c[35] * t774;
        const V t1499 = t875 + t1498;
        // complex block of 2
        const V t1500 = t1499 + t1497;
        // complex block of 3, multiplier 2
        const V t1501 = t1490 + t1484;
        const V t1502 = c[6] * t1501;
        const V t1503 = t1500 - t1501;
        const V t1504 = t1502 + t1500;
        // complex block of 2
        const V t1505 = t1499 - t1497;
        // complex block of 3, multiplier 2
        const V t1506 = t1491 + t1485;
        const V t1507 = c[6] * t1506;
        const V t1508 = t1505 - t1506;
        const V t1509 = t1507 + t1505;
        // complex block of 3, multiplier 2
        const V t1510 = t1484 - t1490;
        const V t1511 = c[7] * t1510;
        const V t1512 = c[6] * t1478;
        const V t1513 = t1494 - t1512;
        const V t1514 = t1513 - t1511;
        const V t1515 = t1513 + t1511;
        const V t1516 = t1476 - t1472;
        const V t1517 = c[7] * t1516;
        const V t1518 = t1478 + t1494;
        // spectrum block of 7, multiplier 6
        const V t1519 = c[0] * t1518;
        // complex block of 3, multiplier 2
        const V t1520 = t1485 - t1491;
        const V t1521 = c[7] * t1520;
        const V t1522 = c[6] * t1479;
        const V t1523 = t1495 - t1522;
        const V t1524 = t1523 - t1521;
        const V t1525 = t1523 + t1521;
        const V t1526 = t1477 + t1473;
        const V t1527 = c[7] * t1526;
        const V t1528 = t1479 + t1495;
        // spectrum block of 7, multiplier 6
        const V t1529 = c[0] * t1528;
        // complex block of 43
        const V t1530 = c[42] * t350;
        const V t1531 = t449 - t1530;
        const V t1532 = c[43] * t794;
        const V t1533 = t1532 - t893;
        const V t1534 = c[44] * t344;
        const V t1535 = t1534 + t444;
        // complex block of 2
        const V t1536 = t1533 - t1535;
        const V t1537 = t1533 + t1535;
        // complex block of 43
        const V t1538 = c[45] * t798;
        const V t1539 = t1538 + t889;
        const V t1540 = c[46] * t348;
        const V t1541 = t1540 + t440;
        // complex block of 2
        const V t1542 = t1539 + t1541;
        const V t1543 = t1539 - t1541;
        // complex block of 43
        const V t1544 = c[47] * t800;
        const V t1545 = t1544 + t901;
        // complex block of 2
        const V t1546 = t1545 + t1531;
        // complex block of 3, multiplier 2
        const V t1547 = t1542 + t1536;
        const V t1548 = c[6] * t1547;
        const V t1549 = t1547 + t1546;
        const V t1550 = t1546 - t1548;
        // complex block of 2
        const V t1551 = t1545 - t1531;
        // complex block of 3, multiplier 2
        const V t1552 = t1543 + t1537;
        const V t1553 = c[6] * t1552;
        const V t1554 = t1552 + t1551;
        const V t1555 = t1551 - t1553;
        // complex block of 3, multiplier 2
        const V t1556 = t1542 - t1536;
        const V t1557 = c[7] * t1556;
        // complex block of 3, multiplier 2
        const V t1558 = t1543 - t1537;
        const V t1559 = c[7] * t1558;
        // complex block of 43
        const V t1560 = c[40] * t350;
        const V t1561 = c[42] * t448;
        const V t1562 = t1561 + t1560;
        const V t1563 = c[41] * t800;
        const V t1564 = c[47] * t898;
        const V t1565 = t1564 - t1563;
        // complex block of 2
        const V t1566 = t1565 - t1562;
        const V t1567 = t1565 + t1562;
        // complex block of 43
        const V t1568 = c[38] * t794;
        const V t1569 = c[43] * t892;
        const V t1570 = t1569 + t1568;
        const V t1571 = c[39] * t344;
        const V t1572 = c[44] * t443;
        const V t1573 = t1572 - t1571;
        // complex block of 2
        const V t1574 = t1570 - t1573;
        const V t1575 = t1570 + t1573;
        // complex block of 43
        const V t1576 = c[36] * t798;
        const V t1577 = c[45] * t888;
        const V t1578 = t1576 - t1577;
        const V t1579 = c[37] * t348;
        const V t1580 = c[46] * t439;
        const V t1581 = t1580 - t1579;
        // complex block of 2
        const V t1582 = t1578 - t1581;
        const V t1583 = t1578 + t1581;
        // complex block of 3, multiplier 2
        const V t1584 = t1574 - t1582;
        const V t1585 = c[6] * t1584;
        const V t1586 = t1582 + t1574;
        const V t1587 = c[7] * t1586;
        // complex block of 3, multiplier 2
        const V t1588 = t1575 - t1583;
        const V t1589 = c[6] * t1588;
        const V t1590 = t1583 + t1575;
        const V t1591 = c[7] * t1590;
        // complex block of 3, multiplier 2
        const V t1592 = t1440 + t1453;
        // spectrum block of 7, multiplier 6
        const V t1593 = c[3] * t1592;
        const V t1594 = c[1] * t1592;
        const V t1595 = c[2] * t1592;
        // complex block of 3, multiplier 2
        const V t1596 = t1504 + t1517;
        // spectrum block of 7, multiplier 6
        const V t1597 = c[1] * t1596;
        const V t1598 = c[2] * t1596;
        const V t1599 = c[3] * t1596;
        const V t1600 = t1593 + t1597;
        const V t1601 = t1594 - t1598;
        const V t1602 = t1595 - t1599;
        // complex block of 3, multiplier 2
        const V t1603 = t1440 - t1453;
        // spectrum block of 7, multiplier 6
        const V t1604 = c[3] * t1603;
        const V t1605 = c[1] * t1603;
        const V t1606 = c[2] * t1603;
        // complex block of 3, multiplier 2
        const V t1607 = t1504 - t1517;
        // spectrum block of 7, multiplier 6
        const V t1608 = c[1] * t1607;
        const V t1609 = c[2] * t1607;
        const V t1610 = c[3] * t1607;
        const V t1611 = t1604 + t1608;
        const V t1612 = t1605 - t1609;
        const V t1613 = t1606 - t1610;
        // complex block of 3, multiplier 2
        const V t1614 = t1566 - t1585;
        const V t1615 = t1614 + t1557;
        const V t1616 = t1614 - t1557;
        // spectrum block of 7, multiplier 6
        const V t1617 = c[2] * t1616;
        const V t1618 = c[3] * t1616;
        const V t1619 = c[1] * t1616;
        // spectrum block of 7, multiplier 6
        const V t1620 = c[2] * t1615;
        const V t1621 = c[3] * t1615;
        const V t1622 = c[1] * t1615;
        // complex block of 3, multiplier 2
        const V t1623 = t1550 + t1587;
        // spectrum block of 7, multiplier 6
        const V t1624 = c[5] * t1623;
        const V t1625 = t1450 + t1514;
        const V t1626 = c[4] * t1450;
        const V t1627 = c[0] * t1514;
        const V t1628 = t1626 - t1627;
        const V t1629 = t1625 + t1623;
        const V t1630 = t1628 - t1624;
        const V t1631 = c[4] * t1623;
        const V t1632 = c[0] * t1623;
        // complex block of 3, multiplier 2
        const V t1633 = t1550 - t1587;
        // spectrum block of 7, multiplier 6
        const V t1634 = c[5] * t1633;
        const V t1635 = t1451 + t1515;
        const V t1636 = c[4] * t1451;
        const V t1637 = c[0] * t1515;
        const V t1638 = t1636 - t1637;
        const V t1639 = t1635 + t1633;
        const V t1640 = t1638 - t1634;
        const V t1641 = c[4] * t1633;
        const V t1642 = c[0] * t1633;
        const V t1643 = c[0] * t1451;
        const V t1644 = t1400 - t1643;
        const V t1645 = c[5] * t1515;
        const V t1646 = t1644 - t1645;
        const V t1647 = c[5] * t1451;
        const V t1648 = t1400 - t1647;
        const V t1649 = c[4] * t1515;
        const V t1650 = t1648 + t1649;
        // spectrum block of 7, multiplier 6
        const V t1651 = c[0] * t1450;
        const V t1652 = t1399 - t1651;
        const V t1653 = c[5] * t1514;
        const V t1654 = t1652 - t1653;
        const V t1655 = c[5] * t1450;
        const V t1656 = t1399 - t1655;
        const V t1657 = c[4] * t1514;
        const V t1658 = t1656 + t1657;
        // spectrum block of 7, multiplier 6
        const V t1659 = t1639 + t1400;
        io.im(6, t1659);
        const V t1660 = t1640 + t1400;
        const V t1661 = t1611 + t1617;
        const V t1662 = t1660 - t1661;
        io.im(31, t1662);
        const V t1663 = t1660 + t1661;
        io.im(40, t1663);
        const V t1664 = t1646 + t1641;
        const V t1665 = t1612 - t1618;
        const V t1666 = t1664 - t1665;
        io.im(24, t1666);
        const V t1667 = t1664 + t1665;
        io.im(23, t1667);
        const V t1668 = t1650 - t1642;
        const V t1669 = t1613 + t1619;
        const V t1670 = t1668 - t1669;
        io.im(38, t1670);
        const V t1671 = t1668 + t1669;
        io.im(10, t1671);
        // spectrum block of 7, multiplier 6
        const V t1672 = t1629 + t1399;
        io.im(36, t1672);
        const V t1673 = t1630 + t1399;
        const V t1674 = t1600 + t1620;
        const V t1675 = t1673 - t1674;
        io.im(14, t1675);
        const V t1676 = t1673 + t1674;
        io.im(25, t1676);
        const V t1677 = t1654 + t1631;
        const V t1678 = t1601 - t1621;
        const V t1679 = t1677 - t1678;
        io.im(15, t1679);
        const V t1680 = t1677 + t1678;
        io.im(9, t1680);
        const V t1681 = t1658 - t1632;
        const V t1682 = t1602 + t1622;
        const V t1683 = t1681 - t1682;
        io.im(13, t1683);
        const V t1684 = t1681 + t1682;
        io.im(17, t1684);
        // complex block of 3, multiplier 2
        const V t1685 = t1584 + t1566;
        // spectrum block of 7, multiplier 6
        const V t1686 = c[2] * t1685;
        const V t1687 = c[3] * t1685;
        const V t1688 = c[1] * t1685;
        const V t1689 = t1455 - t1519;
        const V t1690 = c[5] * t1549;
        const V t1691 = t1689 - t1690;
        const V t1692 = c[3] * t1439;
        const V t1693 = c[1] * t1503;
        const V t1694 = t1692 + t1693;
        const V t1695 = t1396 - t1456;
        const V t1696 = c[5] * t1518;
        const V t1697 = t1695 - t1696;
        const V t1698 = c[4] * t1549;
        const V t1699 = c[1] * t1439;
        const V t1700 = c[2] * t1503;
        const V t1701 = t1699 - t1700;
        const V t1702 = t1396 - t1457;
        const V t1703 = c[4] * t1518;
        const V t1704 = t1702 + t1703;
        const V t1705 = c[0] * t1549;
        const V t1706 = c[2] * t1439;
        const V t1707 = c[3] * t1503;
        const V t1708 = t1706 - t1707;
        const V t1709 = t1691 + t1396;
        const V t1710 = t1694 + t1686;
        const V t1711 = t1709 - t1710;
        io.im(41, t1711);
        const V t1712 = t1709 + t1710;
        io.im(21, t1712);
        const V t1713 = t1697 + t1698;
        const V t1714 = t1701 - t1687;
        const V t1715 = t1713 - t1714;
        io.im(4, t1715);
        const V t1716 = t1713 + t1714;
        io.im(11, t1716);
        const V t1717 = t1704 - t1705;
        const V t1718 = t1708 + t1688;
        const V t1719 = t1717 - t1718;
        io.im(35, t1719);
        const V t1720 = t1717 + t1718;
        io.im(16, t1720);
        const V t1721 = t1454 + t1518;
        const V t1722 = t1721 + t1549;
        const V t1723 = t1722 + t1396;
        io.im(1, t1723);
        // complex block of 3, multiplier 2
        const V t1724 = t1445 + t1465;
        // spectrum block of 7, multiplier 6
        const V t1725 = c[3] * t1724;
        const V t1726 = c[1] * t1724;
        const V t1727 = c[2] * t1724;
        // complex block of 3, multiplier 2
        const V t1728 = t1509 - t1527;
        // spectrum block of 7, multiplier 6
        const V t1729 = c[1] * t1728;
        const V t1730 = c[2] * t1728;
        const V t1731 = c[3] * t1728;
        const V t1732 = t1725 + t1729;
        const V t1733 = t1726 - t1730;
        const V t1734 = t1727 - t1731;
        // complex block of 3, multiplier 2
        const V t1735 = t1445 - t1465;
        // spectrum block of 7, multiplier 6
        const V t1736 = c[3] * t1735;
        const V t1737 = c[1] * t1735;
        const V t1738 = c[2] * t1735;
        // complex block of 3, multiplier 2
        const V t1739 = t1509 + t1527;
        // spectrum block of 7, multiplier 6
        const V t1740 = c[1] * t1739;
        const V t1741 = c[2] * t1739;
        const V t1742 = c[3] * t1739;
        const V t1743 = t1736 + t1740;
        const V t1744 = t1737 - t1741;
        const V t1745 = t1738 - t1742;
        // complex block of 3, multiplier 2
        const V t1746 = t1567 - t1589;
        const V t1747 = t1746 + t1559;
        const V t1748 = t1746 - t1559;
        // spectrum block of 7, multiplier 6
        const V t1749 = c[2] * t1748;
        const V t1750 = c[3] * t1748;
        const V t1751 = c[1] * t1748;
        // spectrum block of 7, multiplier 6
        const V t1752 = c[2] * t1747;
        const V t1753 = c[3] * t1747;
        const V t1754 = c[1] * t1747;
        // complex block of 3, multiplier 2
        const V t1755 = t1555 + t1591;
        // spectrum block of 7, multiplier 6
        const V t1756 = c[5] * t1755;
        const V t1757 = t1462 + t1524;
        const V t1758 = c[4] * t1462;
        const V t1759 = c[0] * t1524;
        const V t1760 = t1758 - t1759;
        const V t1761 = t1757 + t1755;
        const V t1762 = t1760 - t1756;
        const V t1763 = c[4] * t1755;
        const V t1764 = c[0] * t1755;
        // complex block of 3, multiplier 2
        const V t1765 = t1555 - t1591;
        // spectrum block of 7, multiplier 6
        const V t1766 = c[5] * t1765;
        const V t1767 = t1463 + t1525;
        const V t1768 = c[4] * t1463;
        const V t1769 = c[0] * t1525;
        const V t1770 = t1768 - t1769;
        const V t1771 = t1767 + t1765;
        const V t1772 = t1770 - t1766;
        const V t1773 = c[4] * t1765;
        const V t1774 = c[0] * t1765;
        const V t1775 = c[0] * t1463;
        const V t1776 = t1405 - t1775;
        const V t1777 = c[5] * t1525;
        const V t1778 = t1776 - t1777;
        const V t1779 = c[5] * t1463;
        const V t1780 = t1405 - t1779;
        const V t1781 = c[4] * t1525;
        const V t1782 = t1780 + t1781;
        // spectrum block of 7, multiplier 6
        const V t1783 = c[0] * t1462;
        const V t1784 = t1404 - t1783;
        const V t1785 = c[5] * t1524;
        const V t1786 = t1784 - t1785;
        const V t1787 = c[5] * t1462;
        const V t1788 = t1404 - t1787;
        const V t1789 = c[4] * t1524;
        const V t1790 = t1788 + t1789;
        // spectrum block of 7, multiplier 6
        const V t1791 = t1771 + t1405;
        io.im(37, t1791);
        const V t1792 = t1772 + t1405;
        const V t1793 = t1743 + t1749;
        const V t1794 = t1792 - t1793;
        io.im(12, t1794);
        const V t1795 = t1792 + t1793;
        io.im(3, t1795);
        const V t1796 = t1778 + t1773;
        const V t1797 = t1744 - t1750;
        const V t1798 = t1796 - t1797;
        io.im(19, t1798);
        const V t1799 = t1796 + t1797;
        io.im(20, t1799);
        const V t1800 = t1782 - t1774;
        const V t1801 = t1745 + t1751;
        const V t1802 = t1800 - t1801;
        io.im(5, t1802);
        const V t1803 = t1800 + t1801;
        io.im(33, t1803);
        // spectrum block of 7, multiplier 6
        const V t1804 = t1761 + t1404;
        io.im(7, t1804);
        const V t1805 = t1762 + t1404;
        const V t1806 = t1732 + t1752;
        const V t1807 = t1805 - t1806;
        io.im(29, t1807);
        const V t1808 = t1805 + t1806;
        io.im(18, t1808);
        const V t1809 = t1786 + t1763;
        const V t1810 = t1733 - t1753;
        const V t1811 = t1809 - t1810;
        io.im(28, t1811);
        const V t1812 = t1809 + t1810;
        io.im(34, t1812);
        const V t1813 = t1790 - t1764;
        const V t1814 = t1734 + t1754;
        const V t1815 = t1813 - t1814;
        io.im(30, t1815);
        const V t1816 = t1813 + t1814;
        io.im(26, t1816);
        // complex block of 3, multiplier 2
        const V t1817 = t1588 + t1567;
        // spectrum block of 7, multiplier 6
        const V t1818 = c[2] * t1817;
        const V t1819 = c[3] * t1817;
        const V t1820 = c[1] * t1817;
        const V t1821 = t1467 - t1529;
        const V t1822 = c[5] * t1554;
        const V t1823 = t1821 - t1822;
        const V t1824 = c[3] * t1444;
        const V t1825 = c[1] * t1508;
        const V t1826 = t1824 + t1825;
        const V t1827 = t1401 - t1468;
        const V t1828 = c[5] * t1528;
        const V t1829 = t1827 - t1828;
        const V t1830 = c[4] * t1554;
        const V t1831 = c[1] * t1444;
        const V t1832 = c[2] * t1508;
        const V t1833 = t1831 - t1832;
        const V t1834 = t1401 - t1469;
        const V t1835 = c[4] * t1528;
        const V t1836 = t1834 + t1835;
        const V t1837 = c[0] * t1554;
        const V t1838 = c[2] * t1444;
        const V t1839 = c[3] * t1508;
        const V t1840 = t1838 - t1839;
        const V t1841 = t1823 + t1401;
        const V t1842 = t1826 + t1818;
        const V t1843 = t1841 - t1842;
        io.im(2, t1843);
        const V t1844 = t1841 + t1842;
        io.im(22, t1844);
        const V t1845 = t1829 + t1830;
        const V t1846 = t1833 - t1819;
        const V t1847 = t1845 - t1846;
        io.im(39, t1847);
        const V t1848 = t1845 + t1846;
        io.im(32, t1848);
        const V t1849 = t1836 - t1837;
        const V t1850 = t1840 + t1820;
        const V t1851 = t1849 - t1850;
        io.im(8, t1851);
        const V t1852 = t1849 + t1850;
        io.im(27, t1852);
        const V t1853 = t1466 + t1528;
        const V t1854 = t1853 + t1554;
        const V t1855 = t1854 + t1401;
        io.im(42, t1855);
    }
};

}  // namespace zulg
