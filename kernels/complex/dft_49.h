// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 49.
// Complex DFT of 49 points, twiddled, inner 7, outer 7.
// 453 additions, 459 subtractions, 648 multiplications (746 with `scale`); 40 constants; 176 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<49> {
    static constexpr int steps = 1658;  // with `scale`
    static constexpr double inverseRoot = 0.14285714285714285;  // 1/sqrt(49), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.7818314824680298,  // c[2]: sin 2 pi 1/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.9009688679024191,  // c[4]: -cos 2 pi 4/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.7183493500977276,  // c[6]: cos 2 pi 6/49
        0.6956825506034864,  // c[7]: sin 2 pi 6/49
        0.03205157757165517,  // c[8]: cos 2 pi 12/49
        0.9994862162006879,  // c[9]: sin 2 pi 12/49
        0.8713187041233893,  // c[10]: cos 2 pi 4/49
        0.4907175520039379,  // c[11]: sin 2 pi 4/49
        0.9979453927503363,  // c[12]: -cos 2 pi 24/49
        0.06407021998071293,  // c[13]: sin 2 pi 24/49
        0.9672948630390295,  // c[14]: cos 2 pi 2/49
        0.2536545839095074,  // c[15]: sin 2 pi 2/49
        0.8014136218679566,  // c[16]: cos 2 pi 5/49
        0.598110530491216,  // c[17]: sin 2 pi 5/49
        0.9269167573460217,  // c[18]: cos 2 pi 3/49
        0.37526700487937414,  // c[19]: sin 2 pi 3/49
        0.7614459583691344,  // c[20]: -cos 2 pi 30/49
        0.6482283953077884,  // c[21]: -sin 2 pi 30/49
        0.6723008902613168,  // c[22]: -cos 2 pi 18/49
        0.7402779970753155,  // c[23]: sin 2 pi 18/49
        0.28452758663103245,  // c[24]: cos 2 pi 10/49
        0.9586678530366606,  // c[25]: sin 2 pi 10/49
        0.518392568310525,  // c[26]: cos 2 pi 8/49
        0.8551427630053462,  // c[27]: sin 2 pi 8/49
        0.3453650544213076,  // c[28]: -cos 2 pi 15/49
        0.9384684220497604,  // c[29]: sin 2 pi 15/49
        0.8380881048918407,  // c[30]: -cos 2 pi 20/49
        0.5455349012105487,  // c[31]: sin 2 pi 20/49
        0.9917900138232462,  // c[32]: cos 2 pi 1/49
        0.12787716168450602,  // c[33]: sin 2 pi 1/49
        0.09602302590768176,  // c[34]: -cos 2 pi 36/49
        0.9953791129491982,  // c[35]: -sin 2 pi 36/49
        0.9144126230158125,  // c[36]: sin 2 pi 9/49
        0.40478334312239383,  // c[37]: cos 2 pi 9/49
        0.8865993063730001,  // c[38]: sin 2 pi 16/49
        0.46253829024083526,  // c[39]: -cos 2 pi 16/49
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 7
        const V x7r = io.re(7);
        const V x42r = io.re(42);
        const V t0 = x7r + x42r;
        const V t1 = x7r - x42r;
        const V x35r = io.re(35);
        const V x14r = io.re(14);
        const V t2 = x35r + x14r;
        const V t3 = x35r - x14r;
        const V t4 = t0 + t2;
        const V t5 = c[0] * t0;
        const V t6 = c[1] * t2;
        const V t7 = c[2] * t1;
        const V t8 = c[3] * t3;
        const V t9 = c[1] * t0;
        const V t10 = c[4] * t2;
        const V t11 = c[3] * t1;
        const V t12 = c[5] * t3;
        const V t13 = c[4] * t0;
        const V t14 = c[0] * t2;
        const V t15 = c[5] * t1;
        const V t16 = c[2] * t3;
        const V x28r = io.re(28);
        const V x21r = io.re(21);
        const V t17 = x28r + x21r;
        const V t18 = x28r - x21r;
        const V t19 = c[4] * t17;
        const V t20 = t4 + t17;
        const V x0r = io.re(0);
        const V t21 = t20 + x0r;
        const V t22 = t5 - t6;
        const V t23 = t22 - t19;
        const V t24 = t23 + x0r;
        const V t25 = t7 - t8;
        const V t26 = c[5] * t18;
        const V t27 = t25 - t26;
        const V t28 = x0r - t9;
        const V t29 = t28 - t10;
        const V t30 = c[0] * t17;
        const V t31 = t29 + t30;
        const V t32 = t11 + t12;
        const V t33 = c[2] * t18;
        const V t34 = t32 + t33;
        const V t35 = x0r - t13;
        const V t36 = t35 + t14;
        const V t37 = c[1] * t17;
        const V t38 = t36 - t37;
        const V t39 = t15 + t16;
        const V t40 = c[3] * t18;
        const V t41 = t39 - t40;
        const V x7i = io.im(7);
        const V x42i = io.im(42);
        const V t42 = x7i + x42i;
        const V t43 = x7i - x42i;
        const V x35i = io.im(35);
        const V x14i = io.im(14);
        const V t44 = x35i + x14i;
        const V t45 = x35i - x14i;
        const V t46 = t42 + t44;
        const V t47 = c[0] * t42;
        const V t48 = c[1] * t44;
        const V t49 = c[2] * t43;
        const V t50 = c[3] * t45;
        const V t51 = c[1] * t42;
        const V t52 = c[4] * t44;
        const V t53 = c[3] * t43;
        const V t54 = c[5] * t45;
        const V t55 = c[4] * t42;
        const V t56 = c[0] * t44;
        const V t57 = c[5] * t43;
        const V t58 = c[2] * t45;
        const V x28i = io.im(28);
        const V x21i = io.im(21);
        const V t59 = x28i + x21i;
        const V t60 = x28i - x21i;
        const V t61 = c[4] * t59;
        const V t62 = t46 + t59;
        const V x0i = io.im(0);
        const V t63 = t62 + x0i;
        const V t64 = t47 - t48;
        const V t65 = t64 - t61;
        const V t66 = t65 + x0i;
        const V t67 = t49 - t50;
        const V t68 = c[5] * t60;
        const V t69 = t67 - t68;
        const V t70 = x0i - t51;
        const V t71 = t70 - t52;
        const V t72 = c[0] * t59;
        const V t73 = t71 + t72;
        const V t74 = t53 + t54;
        const V t75 = c[2] * t60;
        const V t76 = t74 + t75;
        const V t77 = x0i - t55;
        const V t78 = t77 + t56;
        const V t79 = c[1] * t59;
        const V t80 = t78 - t79;
        const V t81 = t57 + t58;
        const V t82 = c[3] * t60;
        const V t83 = t81 - t82;
        // complex block of 7
        const V x8r = io.re(8);
        const V x43r = io.re(43);
        const V t84 = x8r + x43r;
        const V t85 = x8r - x43r;
        const V x36r = io.re(36);
        const V x15r = io.re(15);
        const V t86 = x36r + x15r;
        const V t87 = x36r - x15r;
        const V t88 = t84 + t86;
        const V t89 = c[0] * t84;
        const V t90 = c[1] * t86;
        const V t91 = t89 - t90;
        const V t92 = c[2] * t85;
        const V t93 = c[3] * t87;
        const V t94 = t92 - t93;
        const V t95 = c[1] * t84;
        const V x1r = io.re(1);
        const V t96 = x1r - t95;
        const V t97 = c[4] * t86;
        const V t98 = c[3] * t85;
        const V t99 = c[5] * t87;
        const V t100 = t98 + t99;
        const V t101 = c[4] * t84;
        const V t102 = x1r - t101;
        const V t103 = c[0] * t86;
        const V t104 = c[5] * t85;
        const V t105 = c[2] * t87;
        const V t106 = t104 + t105;
        const V x8i = io.im(8);
        const V x43i = io.im(43);
        const V t107 = x8i + x43i;
        const V t108 = x8i - x43i;
        const V x36i = io.im(36);
        const V x15i = io.im(15);
        const V t109 = x36i + x15i;
        const V t110 = x36i - x15i;
        const V t111 = t107 + t109;
        const V t112 = c[0] * t107;
        const V t113 = c[1] * t109;
        const V t114 = t112 - t113;
        const V t115 = c[2] * t108;
        const V t116 = c[3] * t110;
        const V t117 = t115 - t116;
        const V t118 = c[1] * t107;
        const V x1i = io.im(1);
        const V t119 = x1i - t118;
        const V t120 = c[4] * t109;
        const V t121 = c[3] * t108;
        const V t122 = c[5] * t110;
        const V t123 = t121 + t122;
        const V t124 = c[4] * t107;
        const V t125 = x1i - t124;
        const V t126 = c[0] * t109;
        const V t127 = c[5] * t108;
        const V t128 = c[2] * t110;
        const V t129 = t127 + t128;
        // complex block of 7
        const V x13r = io.re(13);
        const V x48r = io.re(48);
        const V t130 = x13r + x48r;
        const V t131 = x13r - x48r;
        const V x41r = io.re(41);
        const V x20r = io.re(20);
        const V t132 = x41r + x20r;
        const V t133 = x41r - x20r;
        const V t134 = t130 + t132;
        const V t135 = c[0] * t130;
        const V t136 = c[1] * t132;
        const V t137 = t135 - t136;
        const V t138 = c[2] * t131;
        const V t139 = c[3] * t133;
        const V t140 = t138 - t139;
        const V t141 = c[1] * t130;
        const V x6r = io.re(6);
        const V t142 = x6r - t141;
        const V t143 = c[4] * t132;
        const V t144 = c[3] * t131;
        const V t145 = c[5] * t133;
        const V t146 = t144 + t145;
        const V t147 = c[4] * t130;
        const V t148 = x6r - t147;
        const V t149 = c[0] * t132;
        const V t150 = c[5] * t131;
        const V t151 = c[2] * t133;
        const V t152 = t150 + t151;
        const V x13i = io.im(13);
        const V x48i = io.im(48);
        const V t153 = x13i + x48i;
        const V t154 = x13i - x48i;
        const V x41i = io.im(41);
        const V x20i = io.im(20);
        const V t155 = x41i + x20i;
        const V t156 = x41i - x20i;
        const V t157 = t153 + t155;
        const V t158 = c[0] * t153;
        const V t159 = c[1] * t155;
        const V t160 = t158 - t159;
        const V t161 = c[2] * t154;
        const V t162 = c[3] * t156;
        const V t163 = t161 - t162;
        const V t164 = c[1] * t153;
        const V x6i = io.im(6);
        const V t165 = x6i - t164;
        const V t166 = c[4] * t155;
        const V t167 = c[3] * t154;
        const V t168 = c[5] * t156;
        const V t169 = t167 + t168;
        const V t170 = c[4] * t153;
        const V t171 = x6i - t170;
        const V t172 = c[0] * t155;
        const V t173 = c[5] * t154;
        const V t174 = c[2] * t156;
        const V t175 = t173 + t174;
        // complex block of 7
        const V x29r = io.re(29);
        const V x22r = io.re(22);
        const V t176 = x29r + x22r;
        const V t177 = x29r - x22r;
        const V t178 = c[4] * t176;
        const V t179 = c[5] * t177;
        const V t180 = c[0] * t176;
        const V t181 = c[2] * t177;
        const V t182 = c[1] * t176;
        const V t183 = c[3] * t177;
        const V x29i = io.im(29);
        const V x22i = io.im(22);
        const V t184 = x29i + x22i;
        const V t185 = x29i - x22i;
        const V t186 = c[4] * t184;
        const V t187 = c[5] * t185;
        const V t188 = c[0] * t184;
        const V t189 = c[2] * t185;
        const V t190 = c[1] * t184;
        const V t191 = c[3] * t185;
        // complex block of 7
        const V x34r = io.re(34);
        const V x27r = io.re(27);
        const V t192 = x34r + x27r;
        const V t193 = x34r - x27r;
        const V t194 = c[4] * t192;
        const V t195 = c[5] * t193;
        const V t196 = c[0] * t192;
        const V t197 = c[2] * t193;
        const V t198 = c[1] * t192;
        const V t199 = c[3] * t193;
        const V x34i = io.im(34);
        const V x27i = io.im(27);
        const V t200 = x34i + x27i;
        const V t201 = x34i - x27i;
        const V t202 = c[4] * t200;
        const V t203 = c[5] * t201;
        const V t204 = c[0] * t200;
        const V t205 = c[2] * t201;
        const V t206 = c[1] * t200;
        const V t207 = c[3] * t201;
        // complex block of 7
        const V t208 = t88 + t176;
        const V t209 = t208 + x1r;
        // complex block of 7
        const V t210 = t134 + t192;
        const V t211 = t210 + x6r;
        // complex block of 7
        const V t212 = t209 + t211;
        // complex block of 7
        const V t213 = t111 + t184;
        const V t214 = t213 + x1i;
        // complex block of 7
        const V t215 = t157 + t200;
        const V t216 = t215 + x6i;
        // complex block of 7
        const V t217 = t214 + t216;
        // complex block of 7
        const V t218 = t91 - t178;
        const V t219 = t218 + x1r;
        const V t220 = t117 - t187;
        const V t221 = t219 + t220;
        // complex block of 49
        const V t222 = c[32] * t221;
        const V t223 = c[33] * t221;
        // complex block of 7
        const V t224 = t219 - t220;
        // complex block of 49
        const V t225 = c[6] * t224;
        const V t226 = c[7] * t224;
        // complex block of 7
        const V t227 = t114 - t186;
        const V t228 = t227 + x1i;
        const V t229 = t94 - t179;
        const V t230 = t228 - t229;
        // complex block of 49
        const V t231 = c[33] * t230;
        const V t232 = c[32] * t230;
        // complex block of 7
        const V t233 = t228 + t229;
        // complex block of 49
        const V t234 = c[7] * t233;
        const V t235 = c[6] * t233;
        // complex block of 7
        const V t236 = t96 - t97;
        const V t237 = t236 + t180;
        const V t238 = t123 + t189;
        const V t239 = t237 + t238;
        // complex block of 49
        const V t240 = c[14] * t239;
        const V t241 = c[15] * t239;
        // complex block of 7
        const V t242 = t237 - t238;
        // complex block of 49
        const V t243 = c[16] * t242;
        const V t244 = c[17] * t242;
        // complex block of 7
        const V t245 = t119 - t120;
        const V t246 = t245 + t188;
        const V t247 = t100 + t181;
        const V t248 = t246 - t247;
        // complex block of 49
        const V t249 = c[15] * t248;
        const V t250 = c[14] * t248;
        // complex block of 7
        const V t251 = t246 + t247;
        // complex block of 49
        const V t252 = c[17] * t251;
        const V t253 = c[16] * t251;
        // complex block of 7
        const V t254 = t102 + t103;
        const V t255 = t254 - t182;
        const V t256 = t129 - t191;
        const V t257 = t255 + t256;
        // complex block of 49
        const V t258 = c[18] * t257;
        const V t259 = c[19] * t257;
        // complex block of 7
        const V t260 = t255 - t256;
        // complex block of 49
        const V t261 = c[10] * t260;
        const V t262 = c[11] * t260;
        // complex block of 7
        const V t263 = t125 + t126;
        const V t264 = t263 - t190;
        const V t265 = t106 - t183;
        const V t266 = t264 - t265;
        // complex block of 49
        const V t267 = c[19] * t266;
        const V t268 = c[18] * t266;
        // complex block of 7
        const V t269 = t264 + t265;
        // complex block of 49
        const V t270 = c[11] * t269;
        const V t271 = c[10] * t269;
        // complex block of 7
        const V t272 = t137 - t194;
        const V t273 = t272 + x6r;
        const V t274 = t163 - t203;
        const V t275 = t273 + t274;
        // complex block of 49
        const V t276 = c[6] * t275;
        const V t277 = c[7] * t275;
        // complex block of 7
        const V t278 = t273 - t274;
        // complex block of 49
        const V t279 = c[34] * t278;
        const V t280 = c[35] * t278;
        // complex block of 7
        const V t281 = t160 - t202;
        const V t282 = t281 + x6i;
        const V t283 = t140 - t195;
        const V t284 = t282 - t283;
        // complex block of 49
        const V t285 = c[7] * t284;
        const V t286 = c[6] * t284;
        // complex block of 7
        const V t287 = t282 + t283;
        // complex block of 49
        const V t288 = c[35] * t287;
        const V t289 = c[34] * t287;
        // complex block of 7
        const V t290 = t142 - t143;
        const V t291 = t290 + t196;
        const V t292 = t169 + t205;
        const V t293 = t291 + t292;
        // complex block of 49
        const V t294 = c[8] * t293;
        const V t295 = c[9] * t293;
        // complex block of 7
        const V t296 = t291 - t292;
        // complex block of 49
        const V t297 = c[20] * t296;
        const V t298 = c[21] * t296;
        // complex block of 7
        const V t299 = t165 - t166;
        const V t300 = t299 + t204;
        const V t301 = t146 + t197;
        const V t302 = t300 - t301;
        // complex block of 49
        const V t303 = c[9] * t302;
        const V t304 = c[8] * t302;
        // complex block of 7
        const V t305 = t300 + t301;
        // complex block of 49
        const V t306 = c[21] * t305;
        const V t307 = c[20] * t305;
        // complex block of 7
        const V t308 = t148 + t149;
        const V t309 = t308 - t198;
        const V t310 = t175 - t207;
        const V t311 = t309 + t310;
        // complex block of 49
        const V t312 = c[22] * t311;
        const V t313 = c[23] * t311;
        // complex block of 7
        const V t314 = t309 - t310;
        // complex block of 49
        const V t315 = c[12] * t314;
        const V t316 = c[13] * t314;
        // complex block of 7
        const V t317 = t171 + t172;
        const V t318 = t317 - t206;
        const V t319 = t152 - t199;
        const V t320 = t318 - t319;
        // complex block of 49
        const V t321 = c[23] * t320;
        const V t322 = c[22] * t320;
        // complex block of 7
        const V t323 = t318 + t319;
        // complex block of 49
        const V t324 = c[13] * t323;
        const V t325 = c[12] * t323;
        // complex block of 7
        const V x9r = io.re(9);
        const V x44r = io.re(44);
        const V t326 = x9r + x44r;
        const V t327 = x9r - x44r;
        const V x37r = io.re(37);
        const V x16r = io.re(16);
        const V t328 = x37r + x16r;
        const V t329 = x37r - x16r;
        const V t330 = t326 + t328;
        const V t331 = c[0] * t326;
        const V t332 = c[1] * t328;
        const V t333 = t331 - t332;
        const V t334 = c[2] * t327;
        const V t335 = c[3] * t329;
        const V t336 = t334 - t335;
        const V t337 = c[1] * t326;
        const V x2r = io.re(2);
        const V t338 = x2r - t337;
        const V t339 = c[4] * t328;
        const V t340 = c[3] * t327;
        const V t341 = c[5] * t329;
        const V t342 = t340 + t341;
        const V t343 = c[4] * t326;
        const V t344 = x2r - t343;
        const V t345 = c[0] * t328;
        const V t346 = c[5] * t327;
        const V t347 = c[2] * t329;
        const V t348 = t346 + t347;
        const V x9i = io.im(9);
        const V x44i = io.im(44);
        const V t349 = x9i + x44i;
        const V t350 = x9i - x44i;
        const V x37i = io.im(37);
        const V x16i = io.im(16);
        const V t351 = x37i + x16i;
        const V t352 = x37i - x16i;
        const V t353 = t349 + t351;
        const V t354 = c[0] * t349;
        const V t355 = c[1] * t351;
        const V t356 = t354 - t355;
        const V t357 = c[2] * t350;
        const V t358 = c[3] * t352;
        const V t359 = t357 - t358;
        const V t360 = c[1] * t349;
        const V x2i = io.im(2);
        const V t361 = x2i - t360;
        const V t362 = c[4] * t351;
        const V t363 = c[3] * t350;
        const V t364 = c[5] * t352;
        const V t365 = t363 + t364;
        const V t366 = c[4] * t349;
        const V t367 = x2i - t366;
        const V t368 = c[0] * t351;
        const V t369 = c[5] * t350;
        const V t370 = c[2] * t352;
        const V t371 = t369 + t370;
        // complex block of 7
        const V x12r = io.re(12);
        const V x47r = io.re(47);
        const V t372 = x12r + x47r;
        const V t373 = x12r - x47r;
        const V x40r = io.re(40);
        const V x19r = io.re(19);
        const V t374 = x40r + x19r;
        const V t375 = x40r - x19r;
        const V t376 = t372 + t374;
        const V t377 = c[0] * t372;
        const V t378 = c[1] * t374;
        const V t379 = t377 - t378;
        const V t380 = c[2] * t373;
        const V t381 = c[3] * t375;
        const V t382 = t380 - t381;
        const V t383 = c[1] * t372;
        const V x5r = io.re(5);
        const V t384 = x5r - t383;
        const V t385 = c[4] * t374;
        const V t386 = c[3] * t373;
        const V t387 = c[5] * t375;
        const V t388 = t386 + t387;
        const V t389 = c[4] * t372;
        const V t390 = x5r - t389;
        const V t391 = c[0] * t374;
        const V t392 = c[5] * t373;
        const V t393 = c[2] * t375;
        const V t394 = t392 + t393;
        const V x12i = io.im(12);
        const V x47i = io.im(47);
        const V t395 = x12i + x47i;
        const V t396 = x12i - x47i;
        const V x40i = io.im(40);
        const V x19i = io.im(19);
        const V t397 = x40i + x19i;
        const V t398 = x40i - x19i;
        const V t399 = t395 + t397;
        const V t400 = c[0] * t395;
        const V t401 = c[1] * t397;
        const V t402 = t400 - t401;
        const V t403 = c[2] * t396;
        const V t404 = c[3] * t398;
        const V t405 = t403 - t404;
        const V t406 = c[1] * t395;
        const V x5i = io.im(5);
        const V t407 = x5i - t406;
        const V t408 = c[4] * t397;
        const V t409 = c[3] * t396;
        const V t410 = c[5] * t398;
        const V t411 = t409 + t410;
        const V t412 = c[4] * t395;
        const V t413 = x5i - t412;
        const V t414 = c[0] * t397;
        const V t415 = c[5] * t396;
        const V t416 = c[2] * t398;
        const V t417 = t415 + t416;
        // complex block of 7
        const V x30r = io.re(30);
        const V x23r = io.re(23);
        const V t418 = x30r + x23r;
        const V t419 = x30r - x23r;
        const V t420 = c[4] * t418;
        const V t421 = c[5] * t419;
        const V t422 = c[0] * t418;
        const V t423 = c[2] * t419;
        const V t424 = c[1] * t418;
        const V t425 = c[3] * t419;
        const V x30i = io.im(30);
        const V x23i = io.im(23);
        const V t426 = x30i + x23i;
        const V t427 = x30i - x23i;
        const V t428 = c[4] * t426;
        const V t429 = c[5] * t427;
        const V t430 = c[0] * t426;
        const V t431 = c[2] * t427;
        const V t432 = c[1] * t426;
        const V t433 = c[3] * t427;
        // complex block of 7
        const V x33r = io.re(33);
        const V x26r = io.re(26);
        const V t434 = x33r + x26r;
        const V t435 = x33r - x26r;
        const V t436 = c[4] * t434;
        const V t437 = c[5] * t435;
        const V t438 = c[0] * t434;
        const V t439 = c[2] * t435;
        const V t440 = c[1] * t434;
        const V t441 = c[3] * t435;
        const V x33i = io.im(33);
        const V x26i = io.im(26);
        const V t442 = x33i + x26i;
        const V t443 = x33i - x26i;
        const V t444 = c[4] * t442;
        const V t445 = c[5] * t443;
        const V t446 = c[0] * t442;
        const V t447 = c[2] * t443;
        const V t448 = c[1] * t442;
        const V t449 = c[3] * t443;
        // complex block of 7
        const V t450 = t330 + t418;
        const V t451 = t450 + x2r;
        // complex block of 7
        const V t452 = t376 + t434;
        const V t453 = t452 + x5r;
        // complex block of 7
        const V t454 = t453 + t451;
        // complex block of 7
        const V t455 = t353 + t426;
        const V t456 = t455 + x2i;
        // complex block of 7
        const V t457 = t399 + t442;
        const V t458 = t457 + x5i;
        // complex block of 7
        const V t459 = t458 + t456;
        // complex block of 7
        const V t460 = t333 - t420;
        const V t461 = t460 + x2r;
        const V t462 = t359 - t429;
        const V t463 = t461 + t462;
        // complex block of 49
        const V t464 = c[14] * t463;
        const V t465 = c[15] * t463;
        // complex block of 7
        const V t466 = t461 - t462;
        // complex block of 49
        const V t467 = c[8] * t466;
        const V t468 = c[9] * t466;
        // complex block of 7
        const V t469 = t356 - t428;
        const V t470 = t469 + x2i;
        const V t471 = t336 - t421;
        const V t472 = t470 - t471;
        // complex block of 49
        const V t473 = c[15] * t472;
        const V t474 = c[14] * t472;
        // complex block of 7
        const V t475 = t470 + t471;
        // complex block of 49
        const V t476 = c[9] * t475;
        const V t477 = c[8] * t475;
        // complex block of 7
        const V t478 = t338 - t339;
        const V t479 = t478 + t422;
        const V t480 = t365 + t431;
        const V t481 = t479 + t480;
        // complex block of 49
        const V t482 = c[10] * t481;
        const V t483 = c[11] * t481;
        // complex block of 7
        const V t484 = t479 - t480;
        // complex block of 49
        const V t485 = c[24] * t484;
        const V t486 = c[25] * t484;
        // complex block of 7
        const V t487 = t361 - t362;
        const V t488 = t487 + t430;
        const V t489 = t342 + t423;
        const V t490 = t488 - t489;
        // complex block of 49
        const V t491 = c[11] * t490;
        const V t492 = c[10] * t490;
        // complex block of 7
        const V t493 = t488 + t489;
        // complex block of 49
        const V t494 = c[25] * t493;
        const V t495 = c[24] * t493;
        // complex block of 7
        const V t496 = t344 + t345;
        const V t497 = t496 - t424;
        const V t498 = t371 - t433;
        const V t499 = t497 + t498;
        // complex block of 49
        const V t500 = c[6] * t499;
        const V t501 = c[7] * t499;
        // complex block of 7
        const V t502 = t497 - t498;
        // complex block of 49
        const V t503 = c[26] * t502;
        const V t504 = c[27] * t502;
        // complex block of 7
        const V t505 = t367 + t368;
        const V t506 = t505 - t432;
        const V t507 = t348 - t425;
        const V t508 = t506 - t507;
        // complex block of 49
        const V t509 = c[7] * t508;
        const V t510 = c[6] * t508;
        // complex block of 7
        const V t511 = t506 + t507;
        // complex block of 49
        const V t512 = c[27] * t511;
        const V t513 = c[26] * t511;
        // complex block of 7
        const V t514 = t379 - t436;
        const V t515 = t514 + x5r;
        const V t516 = t405 - t445;
        const V t517 = t515 + t516;
        // complex block of 49
        const V t518 = c[16] * t517;
        const V t519 = c[17] * t517;
        // complex block of 7
        const V t520 = t515 - t516;
        // complex block of 49
        const V t521 = c[20] * t520;
        const V t522 = c[21] * t520;
        // complex block of 7
        const V t523 = t402 - t444;
        const V t524 = t523 + x5i;
        const V t525 = t382 - t437;
        const V t526 = t524 - t525;
        // complex block of 49
        const V t527 = c[17] * t526;
        const V t528 = c[16] * t526;
        // complex block of 7
        const V t529 = t524 + t525;
        // complex block of 49
        const V t530 = c[21] * t529;
        const V t531 = c[20] * t529;
        // complex block of 7
        const V t532 = t384 - t385;
        const V t533 = t532 + t438;
        const V t534 = t411 + t447;
        const V t535 = t533 + t534;
        // complex block of 49
        const V t536 = c[24] * t535;
        const V t537 = c[25] * t535;
        // complex block of 7
        const V t538 = t533 - t534;
        // complex block of 49
        const V t539 = c[12] * t538;
        const V t540 = c[13] * t538;
        // complex block of 7
        const V t541 = t407 - t408;
        const V t542 = t541 + t446;
        const V t543 = t388 + t439;
        const V t544 = t542 - t543;
        // complex block of 49
        const V t545 = c[25] * t544;
        const V t546 = c[24] * t544;
        // complex block of 7
        const V t547 = t542 + t543;
        // complex block of 49
        const V t548 = c[13] * t547;
        const V t549 = c[12] * t547;
        // complex block of 7
        const V t550 = t390 + t391;
        const V t551 = t550 - t440;
        const V t552 = t417 - t449;
        const V t553 = t551 + t552;
        // complex block of 49
        const V t554 = c[28] * t553;
        const V t555 = c[29] * t553;
        // complex block of 7
        const V t556 = t551 - t552;
        // complex block of 49
        const V t557 = c[30] * t556;
        const V t558 = c[31] * t556;
        // complex block of 7
        const V t559 = t413 + t414;
        const V t560 = t559 - t448;
        const V t561 = t394 - t441;
        const V t562 = t560 - t561;
        // complex block of 49
        const V t563 = c[29] * t562;
        const V t564 = c[28] * t562;
        // complex block of 7
        const V t565 = t560 + t561;
        // complex block of 49
        const V t566 = c[31] * t565;
        const V t567 = c[30] * t565;
        // complex block of 7
        const V x10r = io.re(10);
        const V x45r = io.re(45);
        const V t568 = x10r + x45r;
        const V t569 = x10r - x45r;
        const V x38r = io.re(38);
        const V x17r = io.re(17);
        const V t570 = x38r + x17r;
        const V t571 = x38r - x17r;
        const V t572 = t568 + t570;
        const V t573 = c[0] * t568;
        const V t574 = c[1] * t570;
        const V t575 = t573 - t574;
        const V t576 = c[2] * t569;
        const V t577 = c[3] * t571;
        const V t578 = c[1] * t568;
        const V x3r = io.re(3);
        const V t579 = x3r - t578;
        const V t580 = c[4] * t570;
        const V t581 = c[3] * t569;
        const V t582 = c[5] * t571;
        const V t583 = c[4] * t568;
        const V t584 = x3r - t583;
        const V t585 = c[0] * t570;
        const V t586 = c[5] * t569;
        const V t587 = c[2] * t571;
        const V x10i = io.im(10);
        const V x45i = io.im(45);
        const V t588 = x10i + x45i;
        const V t589 = x10i - x45i;
        const V x38i = io.im(38);
        const V x17i = io.im(17);
        const V t590 = x38i + x17i;
        const V t591 = x38i - x17i;
        const V t592 = t588 + t590;
        const V t593 = c[0] * t588;
        const V t594 = c[1] * t590;
        const V t595 = t593 - t594;
        const V t596 = c[2] * t589;
        const V t597 = c[3] * t591;
        const V t598 = c[1] * t588;
        const V x3i = io.im(3);
        const V t599 = x3i - t598;
        const V t600 = c[4] * t590;
        const V t601 = c[3] * t589;
        const V t602 = c[5] * t591;
        const V t603 = c[4] * t588;
        const V t604 = x3i - t603;
        const V t605 = c[0] * t590;
        const V t606 = c[5] * t589;
        const V t607 = c[2] * t591;
        const V x31r = io.re(31);
        const V x24r = io.re(24);
        const V t608 = x31r + x24r;
        const V t609 = x31r - x24r;
        const V t610 = c[4] * t608;
        const V t611 = c[5] * t609;
        const V t612 = c[0] * t608;
        const V t613 = c[2] * t609;
        const V t614 = c[1] * t608;
        const V t615 = c[3] * t609;
        const V x31i = io.im(31);
        const V x24i = io.im(24);
        const V t616 = x31i + x24i;
        const V t617 = x31i - x24i;
        const V t618 = c[4] * t616;
        const V t619 = c[5] * t617;
        const V t620 = c[0] * t616;
        const V t621 = c[2] * t617;
        const V t622 = c[1] * t616;
        const V t623 = c[3] * t617;
        const V t624 = t572 + t608;
        const V t625 = t624 + x3r;
        const V t626 = t592 + t616;
        const V t627 = t626 + x3i;
        const V t628 = t575 - t610;
        const V t629 = t628 + x3r;
        const V t630 = t596 - t597;
        const V t631 = t630 - t619;
        const V t632 = t629 + t631;
        const V t633 = t629 - t631;
        const V t634 = t595 - t618;
        const V t635 = t634 + x3i;
        const V t636 = t576 - t577;
        const V t637 = t636 - t611;
        const V t638 = t635 - t637;
        const V t639 = t635 + t637;
        const V t640 = t579 - t580;
        const V t641 = t640 + t612;
        const V t642 = t601 + t602;
        const V t643 = t642 + t621;
        const V t644 = t641 + t643;
        const V t645 = t641 - t643;
        const V t646 = t599 - t600;
        const V t647 = t646 + t620;
        const V t648 = t581 + t582;
        const V t649 = t648 + t613;
        const V t650 = t647 - t649;
        const V t651 = t647 + t649;
        const V t652 = t584 + t585;
        const V t653 = t652 - t614;
        const V t654 = t606 + t607;
        const V t655 = t654 - t623;
        const V t656 = t653 + t655;
        const V t657 = t653 - t655;
        const V t658 = t604 + t605;
        const V t659 = t658 - t622;
        const V t660 = t586 + t587;
        const V t661 = t660 - t615;
        const V t662 = t659 - t661;
        const V t663 = t659 + t661;
        // complex block of 7
        const V x11r = io.re(11);
        const V x46r = io.re(46);
        const V t664 = x11r + x46r;
        const V t665 = x11r - x46r;
        const V x39r = io.re(39);
        const V x18r = io.re(18);
        const V t666 = x39r + x18r;
        const V t667 = x39r - x18r;
        const V t668 = t664 + t666;
        const V t669 = c[0] * t664;
        const V t670 = c[1] * t666;
        const V t671 = t669 - t670;
        const V t672 = c[2] * t665;
        const V t673 = c[3] * t667;
        const V t674 = c[1] * t664;
        const V x4r = io.re(4);
        const V t675 = x4r - t674;
        const V t676 = c[4] * t666;
        const V t677 = c[3] * t665;
        const V t678 = c[5] * t667;
        const V t679 = c[4] * t664;
        const V t680 = x4r - t679;
        const V t681 = c[0] * t666;
        const V t682 = c[5] * t665;
        const V t683 = c[2] * t667;
        const V x11i = io.im(11);
        const V x46i = io.im(46);
        const V t684 = x11i + x46i;
        const V t685 = x11i - x46i;
        const V x39i = io.im(39);
        const V x18i = io.im(18);
        const V t686 = x39i + x18i;
        const V t687 = x39i - x18i;
        const V t688 = t684 + t686;
        const V t689 = c[0] * t684;
        const V t690 = c[1] * t686;
        const V t691 = t689 - t690;
        const V t692 = c[2] * t685;
        const V t693 = c[3] * t687;
        const V t694 = c[1] * t684;
        const V x4i = io.im(4);
        const V t695 = x4i - t694;
        const V t696 = c[4] * t686;
        const V t697 = c[3] * t685;
        const V t698 = c[5] * t687;
        const V t699 = c[4] * t684;
        const V t700 = x4i - t699;
        const V t701 = c[0] * t686;
        const V t702 = c[5] * t685;
        const V t703 = c[2] * t687;
        const V x32r = io.re(32);
        const V x25r = io.re(25);
        const V t704 = x32r + x25r;
        const V t705 = x32r - x25r;
        const V t706 = c[4] * t704;
        const V t707 = c[5] * t705;
        const V t708 = c[0] * t704;
        const V t709 = c[2] * t705;
        const V t710 = c[1] * t704;
        const V t711 = c[3] * t705;
        const V x32i = io.im(32);
        const V x25i = io.im(25);
        const V t712 = x32i + x25i;
        const V t713 = x32i - x25i;
        const V t714 = c[4] * t712;
        const V t715 = c[5] * t713;
        const V t716 = c[0] * t712;
        const V t717 = c[2] * t713;
        const V t718 = c[1] * t712;
        const V t719 = c[3] * t713;
        const V t720 = t668 + t704;
        const V t721 = t720 + x4r;
        const V t722 = t688 + t712;
        const V t723 = t722 + x4i;
        const V t724 = t671 - t706;
        const V t725 = t724 + x4r;
        const V t726 = t692 - t693;
        const V t727 = t726 - t715;
        const V t728 = t725 + t727;
        const V t729 = t725 - t727;
        const V t730 = t691 - t714;
        const V t731 = t730 + x4i;
        const V t732 = t672 - t673;
        const V t733 = t732 - t707;
        const V t734 = t731 - t733;
        const V t735 = t731 + t733;
        const V t736 = t675 - t676;
        const V t737 = t736 + t708;
        const V t738 = t697 + t698;
        const V t739 = t738 + t717;
        const V t740 = t737 + t739;
        const V t741 = t737 - t739;
        const V t742 = t695 - t696;
        const V t743 = t742 + t716;
        const V t744 = t677 + t678;
        const V t745 = t744 + t709;
        const V t746 = t743 - t745;
        const V t747 = t743 + t745;
        const V t748 = t680 + t681;
        const V t749 = t748 - t710;
        const V t750 = t702 + t703;
        const V t751 = t750 - t719;
        const V t752 = t749 + t751;
        const V t753 = t749 - t751;
        const V t754 = t700 + t701;
        const V t755 = t754 - t718;
        const V t756 = t682 + t683;
        const V t757 = t756 - t711;
        const V t758 = t755 - t757;
        const V t759 = t755 + t757;
        // complex block of 7
        const V t760 = t24 + t69;
        // complex block of 49
        const V t761 = t222 + t231;
        const V t762 = t276 + t285;
        // complex block of 7
        const V t763 = t761 + t762;
        const V t764 = t761 - t762;
        // complex block of 49
        const V t765 = t464 + t473;
        const V t766 = t518 + t527;
        // complex block of 7
        const V t767 = t766 + t765;
        const V t768 = t766 - t765;
        const V t769 = t763 + t767;
        const V t770 = c[0] * t763;
        const V t771 = c[1] * t767;
        const V t772 = t770 - t771;
        const V t773 = c[2] * t764;
        const V t774 = c[3] * t768;
        const V t775 = c[1] * t763;
        const V t776 = t760 - t775;
        const V t777 = c[4] * t767;
        const V t778 = c[3] * t764;
        const V t779 = c[5] * t768;
        const V t780 = c[4] * t763;
        const V t781 = t760 - t780;
        const V t782 = c[0] * t767;
        const V t783 = c[5] * t764;
        const V t784 = c[2] * t768;
        // complex block of 7
        const V t785 = t66 - t27;
        // complex block of 49
        const V t786 = t232 - t223;
        const V t787 = t286 - t277;
        // complex block of 7
        const V t788 = t786 + t787;
        const V t789 = t786 - t787;
        // complex block of 49
        const V t790 = t474 - t465;
        const V t791 = t528 - t519;
        // complex block of 7
        const V t792 = t791 + t790;
        const V t793 = t791 - t790;
        const V t794 = t788 + t792;
        const V t795 = c[0] * t788;
        const V t796 = c[1] * t792;
        const V t797 = t795 - t796;
        const V t798 = c[2] * t789;
        const V t799 = c[3] * t793;
        const V t800 = c[1] * t788;
        const V t801 = t785 - t800;
        const V t802 = c[4] * t792;
        const V t803 = c[3] * t789;
        const V t804 = c[5] * t793;
        const V t805 = c[4] * t788;
        const V t806 = t785 - t805;
        const V t807 = c[0] * t792;
        const V t808 = c[5] * t789;
        const V t809 = c[2] * t793;
        // complex block of 49
        const V t810 = c[19] * t638;
        const V t811 = c[18] * t632;
        const V t812 = t811 + t810;
        const V t813 = c[11] * t734;
        const V t814 = c[10] * t728;
        const V t815 = t814 + t813;
        // complex block of 7
        const V t816 = t815 + t812;
        const V t817 = c[4] * t816;
        const V t818 = t815 - t812;
        // complex block of 49
        const V t819 = c[19] * t632;
        const V t820 = c[18] * t638;
        const V t821 = t820 - t819;
        const V t822 = c[11] * t728;
        const V t823 = c[10] * t734;
        const V t824 = t823 - t822;
        // complex block of 7
        const V t825 = t824 + t821;
        const V t826 = c[4] * t825;
        const V t827 = t824 - t821;
        const V t828 = t769 + t816;
        const V t829 = t828 + t760;
        io.re(1, t829);
        const V t830 = t794 + t825;
        const V t831 = t830 + t785;
        io.im(1, t831);
        const V t832 = t772 - t817;
        const V t833 = t832 + t760;
        const V t834 = t798 - t799;
        const V t835 = c[5] * t827;
        const V t836 = t834 - t835;
        const V t837 = t833 + t836;
        io.re(8, t837);
        const V t838 = t833 - t836;
        io.re(43, t838);
        const V t839 = t797 - t826;
        const V t840 = t839 + t785;
        const V t841 = t773 - t774;
        const V t842 = c[5] * t818;
        const V t843 = t841 - t842;
        const V t844 = t840 - t843;
        io.im(8, t844);
        const V t845 = t840 + t843;
        io.im(43, t845);
        const V t846 = t776 - t777;
        const V t847 = c[0] * t816;
        const V t848 = t846 + t847;
        const V t849 = t803 + t804;
        const V t850 = c[2] * t827;
        const V t851 = t849 + t850;
        const V t852 = t848 + t851;
        io.re(15, t852);
        const V t853 = t848 - t851;
        io.re(36, t853);
        const V t854 = t801 - t802;
        const V t855 = c[0] * t825;
        const V t856 = t854 + t855;
        const V t857 = t778 + t779;
        const V t858 = c[2] * t818;
        const V t859 = t857 + t858;
        const V t860 = t856 - t859;
        io.im(15, t860);
        const V t861 = t856 + t859;
        io.im(36, t861);
        const V t862 = t781 + t782;
        const V t863 = c[1] * t816;
        const V t864 = t862 - t863;
        const V t865 = t808 + t809;
        const V t866 = c[3] * t827;
        const V t867 = t865 - t866;
        const V t868 = t864 + t867;
        io.re(22, t868);
        const V t869 = t864 - t867;
        io.re(29, t869);
        const V t870 = t806 + t807;
        const V t871 = c[1] * t825;
        const V t872 = t870 - t871;
        const V t873 = t783 + t784;
        const V t874 = c[3] * t818;
        const V t875 = t873 - t874;
        const V t876 = t872 - t875;
        io.im(22, t876);
        const V t877 = t872 + t875;
        io.im(29, t877);
        // complex block of 7
        const V t878 = t24 - t69;
        // complex block of 49
        const V t879 = t225 + t234;
        const V t880 = t279 + t288;
        // complex block of 7
        const V t881 = t879 - t880;
        const V t882 = t879 + t880;
        // complex block of 49
        const V t883 = t467 + t476;
        const V t884 = t521 + t530;
        // complex block of 7
        const V t885 = t883 - t884;
        const V t886 = t884 + t883;
        const V t887 = t881 + t885;
        const V t888 = c[0] * t881;
        const V t889 = c[1] * t885;
        const V t890 = t888 - t889;
        const V t891 = c[2] * t882;
        const V t892 = c[3] * t886;
        const V t893 = c[1] * t881;
        const V t894 = t878 - t893;
        const V t895 = c[4] * t885;
        const V t896 = c[3] * t882;
        const V t897 = c[5] * t886;
        const V t898 = c[4] * t881;
        const V t899 = t878 - t898;
        const V t900 = c[0] * t885;
        const V t901 = c[5] * t882;
        const V t902 = c[2] * t886;
        // complex block of 7
        const V t903 = t66 + t27;
        // complex block of 49
        const V t904 = t235 - t226;
        const V t905 = t280 - t289;
        // complex block of 7
        const V t906 = t904 + t905;
        const V t907 = t904 - t905;
        // complex block of 49
        const V t908 = t477 - t468;
        const V t909 = t522 - t531;
        // complex block of 7
        const V t910 = t909 + t908;
        const V t911 = t909 - t908;
        const V t912 = t906 + t910;
        const V t913 = c[0] * t906;
        const V t914 = c[1] * t910;
        const V t915 = t913 - t914;
        const V t916 = c[2] * t907;
        const V t917 = c[3] * t911;
        const V t918 = c[1] * t906;
        const V t919 = t903 - t918;
        const V t920 = c[4] * t910;
        const V t921 = c[3] * t907;
        const V t922 = c[5] * t911;
        const V t923 = c[4] * t906;
        const V t924 = t903 - t923;
        const V t925 = c[0] * t910;
        const V t926 = c[5] * t907;
        const V t927 = c[2] * t911;
        // complex block of 49
        const V t928 = c[23] * t639;
        const V t929 = c[22] * t633;
        const V t930 = t928 - t929;
        const V t931 = c[13] * t735;
        const V t932 = c[12] * t729;
        const V t933 = t931 - t932;
        // complex block of 7
        const V t934 = t933 + t930;
        const V t935 = c[4] * t934;
        const V t936 = t933 - t930;
        // complex block of 49
        const V t937 = c[23] * t633;
        const V t938 = c[22] * t639;
        const V t939 = t938 + t937;
        const V t940 = c[13] * t729;
        const V t941 = c[12] * t735;
        const V t942 = t941 + t940;
        // complex block of 7
        const V t943 = t942 + t939;
        const V t944 = c[4] * t943;
        const V t945 = t939 - t942;
        const V t946 = t887 + t934;
        const V t947 = t946 + t878;
        io.re(6, t947);
        const V t948 = t912 - t943;
        const V t949 = t948 + t903;
        io.im(6, t949);
        const V t950 = t890 - t935;
        const V t951 = t950 + t878;
        const V t952 = t916 - t917;
        const V t953 = c[5] * t945;
        const V t954 = t952 - t953;
        const V t955 = t951 + t954;
        io.re(13, t955);
        const V t956 = t951 - t954;
        io.re(48, t956);
        const V t957 = t915 + t944;
        const V t958 = t957 + t903;
        const V t959 = t891 + t892;
        const V t960 = c[5] * t936;
        const V t961 = t959 - t960;
        const V t962 = t958 - t961;
        io.im(13, t962);
        const V t963 = t958 + t961;
        io.im(48, t963);
        const V t964 = t894 - t895;
        const V t965 = c[0] * t934;
        const V t966 = t964 + t965;
        const V t967 = t921 + t922;
        const V t968 = c[2] * t945;
        const V t969 = t967 + t968;
        const V t970 = t966 + t969;
        io.re(20, t970);
        const V t971 = t966 - t969;
        io.re(41, t971);
        const V t972 = t919 - t920;
        const V t973 = c[0] * t943;
        const V t974 = t972 - t973;
        const V t975 = t896 - t897;
        const V t976 = c[2] * t936;
        const V t977 = t975 + t976;
        const V t978 = t974 - t977;
        io.im(20, t978);
        const V t979 = t974 + t977;
        io.im(41, t979);
        const V t980 = t899 + t900;
        const V t981 = c[1] * t934;
        const V t982 = t980 - t981;
        const V t983 = t926 + t927;
        const V t984 = c[3] * t945;
        const V t985 = t983 - t984;
        const V t986 = t982 + t985;
        io.re(27, t986);
        const V t987 = t982 - t985;
        io.re(34, t987);
        const V t988 = t924 + t925;
        const V t989 = c[1] * t943;
        const V t990 = t988 + t989;
        const V t991 = t901 - t902;
        const V t992 = c[3] * t936;
        const V t993 = t991 - t992;
        const V t994 = t990 - t993;
        io.im(27, t994);
        const V t995 = t990 + t993;
        io.im(34, t995);
        // complex block of 7
        const V t996 = t31 + t76;
        // complex block of 49
        const V t997 = t240 + t249;
        const V t998 = t294 + t303;
        // complex block of 7
        const V t999 = t997 + t998;
        const V t1000 = t997 - t998;
        // complex block of 49
        const V t1001 = t482 + t491;
        const V t1002 = t536 + t545;
        // complex block of 7
        const V t1003 = t1002 + t1001;
        const V t1004 = t1002 - t1001;
        const V t1005 = t999 + t1003;
        const V t1006 = c[0] * t999;
        const V t1007 = c[1] * t1003;
        const V t1008 = t1006 - t1007;
        const V t1009 = c[2] * t1000;
        const V t1010 = c[3] * t1004;
        const V t1011 = c[1] * t999;
        const V t1012 = t996 - t1011;
        const V t1013 = c[4] * t1003;
        const V t1014 = c[3] * t1000;
        const V t1015 = c[5] * t1004;
        const V t1016 = c[4] * t999;
        const V t1017 = t996 - t1016;
        const V t1018 = c[0] * t1003;
        const V t1019 = c[5] * t1000;
        const V t1020 = c[2] * t1004;
        // complex block of 7
        const V t1021 = t73 - t34;
        // complex block of 49
        const V t1022 = t250 - t241;
        const V t1023 = t304 - t295;
        // complex block of 7
        const V t1024 = t1022 + t1023;
        const V t1025 = t1022 - t1023;
        // complex block of 49
        const V t1026 = t492 - t483;
        const V t1027 = t546 - t537;
        // complex block of 7
        const V t1028 = t1027 + t1026;
        const V t1029 = t1027 - t1026;
        const V t1030 = t1024 + t1028;
        const V t1031 = c[0] * t1024;
        const V t1032 = c[1] * t1028;
        const V t1033 = t1031 - t1032;
        const V t1034 = c[2] * t1025;
        const V t1035 = c[3] * t1029;
        const V t1036 = c[1] * t1024;
        const V t1037 = t1021 - t1036;
        const V t1038 = c[4] * t1028;
        const V t1039 = c[3] * t1025;
        const V t1040 = c[5] * t1029;
        const V t1041 = c[4] * t1024;
        const V t1042 = t1021 - t1041;
        const V t1043 = c[0] * t1028;
        const V t1044 = c[5] * t1025;
        const V t1045 = c[2] * t1029;
        // complex block of 49
        const V t1046 = c[7] * t650;
        const V t1047 = c[6] * t644;
        const V t1048 = t1047 + t1046;
        const V t1049 = c[27] * t746;
        const V t1050 = c[26] * t740;
        const V t1051 = t1050 + t1049;
        // complex block of 7
        const V t1052 = t1051 + t1048;
        const V t1053 = c[4] * t1052;
        const V t1054 = t1051 - t1048;
        // complex block of 49
        const V t1055 = c[7] * t644;
        const V t1056 = c[6] * t650;
        const V t1057 = t1056 - t1055;
        const V t1058 = c[27] * t740;
        const V t1059 = c[26] * t746;
        const V t1060 = t1059 - t1058;
        // complex block of 7
        const V t1061 = t1060 + t1057;
        const V t1062 = c[4] * t1061;
        const V t1063 = t1060 - t1057;
        const V t1064 = t1005 + t1052;
        const V t1065 = t1064 + t996;
        io.re(2, t1065);
        const V t1066 = t1030 + t1061;
        const V t1067 = t1066 + t1021;
        io.im(2, t1067);
        const V t1068 = t1008 - t1053;
        const V t1069 = t1068 + t996;
        const V t1070 = t1034 - t1035;
        const V t1071 = c[5] * t1063;
        const V t1072 = t1070 - t1071;
        const V t1073 = t1069 + t1072;
        io.re(9, t1073);
        const V t1074 = t1069 - t1072;
        io.re(44, t1074);
        const V t1075 = t1033 - t1062;
        const V t1076 = t1075 + t1021;
        const V t1077 = t1009 - t1010;
        const V t1078 = c[5] * t1054;
        const V t1079 = t1077 - t1078;
        const V t1080 = t1076 - t1079;
        io.im(9, t1080);
        const V t1081 = t1076 + t1079;
        io.im(44, t1081);
        const V t1082 = t1012 - t1013;
        const V t1083 = c[0] * t1052;
        const V t1084 = t1082 + t1083;
        const V t1085 = t1039 + t1040;
        const V t1086 = c[2] * t1063;
        const V t1087 = t1085 + t1086;
        const V t1088 = t1084 + t1087;
        io.re(16, t1088);
        const V t1089 = t1084 - t1087;
        io.re(37, t1089);
        const V t1090 = t1037 - t1038;
        const V t1091 = c[0] * t1061;
        const V t1092 = t1090 + t1091;
        const V t1093 = t1014 + t1015;
        const V t1094 = c[2] * t1054;
        const V t1095 = t1093 + t1094;
        const V t1096 = t1092 - t1095;
        io.im(16, t1096);
        const V t1097 = t1092 + t1095;
        io.im(37, t1097);
        const V t1098 = t1017 + t1018;
        const V t1099 = c[1] * t1052;
        const V t1100 = t1098 - t1099;
        const V t1101 = t1044 + t1045;
        const V t1102 = c[3] * t1063;
        const V t1103 = t1101 - t1102;
        const V t1104 = t1100 + t1103;
        io.re(23, t1104);
        const V t1105 = t1100 - t1103;
        io.re(30, t1105);
        const V t1106 = t1042 + t1043;
        const V t1107 = c[1] * t1061;
        const V t1108 = t1106 - t1107;
        const V t1109 = t1019 + t1020;
        const V t1110 = c[3] * t1054;
        const V t1111 = t1109 - t1110;
        const V t1112 = t1108 - t1111;
        io.im(23, t1112);
        const V t1113 = t1108 + t1111;
        io.im(30, t1113);
        // complex block of 7
        const V t1114 = t31 - t76;
        // complex block of 49
        const V t1115 = t243 + t252;
        const V t1116 = t297 + t306;
        // complex block of 7
        const V t1117 = t1115 - t1116;
        const V t1118 = t1115 + t1116;
        // complex block of 49
        const V t1119 = t485 + t494;
        const V t1120 = t539 + t548;
        // complex block of 7
        const V t1121 = t1119 - t1120;
        const V t1122 = t1120 + t1119;
        const V t1123 = t1117 + t1121;
        const V t1124 = c[0] * t1117;
        const V t1125 = c[1] * t1121;
        const V t1126 = t1124 - t1125;
        const V t1127 = c[2] * t1118;
        const V t1128 = c[3] * t1122;
        const V t1129 = c[1] * t1117;
        const V t1130 = t1114 - t1129;
        const V t1131 = c[4] * t1121;
        const V t1132 = c[3] * t1118;
        const V t1133 = c[5] * t1122;
        const V t1134 = c[4] * t1117;
        const V t1135 = t1114 - t1134;
        const V t1136 = c[0] * t1121;
        const V t1137 = c[5] * t1118;
        const V t1138 = c[2] * t1122;
        // complex block of 7
        const V t1139 = t73 + t34;
        // complex block of 49
        const V t1140 = t253 - t244;
        const V t1141 = t298 - t307;
        // complex block of 7
        const V t1142 = t1140 + t1141;
        const V t1143 = t1140 - t1141;
        // complex block of 49
        const V t1144 = t495 - t486;
        const V t1145 = t540 - t549;
        // complex block of 7
        const V t1146 = t1145 + t1144;
        const V t1147 = t1145 - t1144;
        const V t1148 = t1142 + t1146;
        const V t1149 = c[0] * t1142;
        const V t1150 = c[1] * t1146;
        const V t1151 = t1149 - t1150;
        const V t1152 = c[2] * t1143;
        const V t1153 = c[3] * t1147;
        const V t1154 = c[1] * t1142;
        const V t1155 = t1139 - t1154;
        const V t1156 = c[4] * t1146;
        const V t1157 = c[3] * t1143;
        const V t1158 = c[5] * t1147;
        const V t1159 = c[4] * t1142;
        const V t1160 = t1139 - t1159;
        const V t1161 = c[0] * t1146;
        const V t1162 = c[5] * t1143;
        const V t1163 = c[2] * t1147;
        // complex block of 49
        const V t1164 = c[29] * t651;
        const V t1165 = c[28] * t645;
        const V t1166 = t1164 - t1165;
        const V t1167 = c[31] * t747;
        const V t1168 = c[30] * t741;
        const V t1169 = t1167 - t1168;
        // complex block of 7
        const V t1170 = t1169 + t1166;
        const V t1171 = c[4] * t1170;
        const V t1172 = t1169 - t1166;
        // complex block of 49
        const V t1173 = c[29] * t645;
        const V t1174 = c[28] * t651;
        const V t1175 = t1174 + t1173;
        const V t1176 = c[31] * t741;
        const V t1177 = c[30] * t747;
        const V t1178 = t1177 + t1176;
        // complex block of 7
        const V t1179 = t1178 + t1175;
        const V t1180 = c[4] * t1179;
        const V t1181 = t1175 - t1178;
        const V t1182 = t1123 + t1170;
        const V t1183 = t1182 + t1114;
        io.re(5, t1183);
        const V t1184 = t1148 - t1179;
        const V t1185 = t1184 + t1139;
        io.im(5, t1185);
        const V t1186 = t1126 - t1171;
        const V t1187 = t1186 + t1114;
        const V t1188 = t1152 - t1153;
        const V t1189 = c[5] * t1181;
        const V t1190 = t1188 - t1189;
        const V t1191 = t1187 + t1190;
        io.re(12, t1191);
        const V t1192 = t1187 - t1190;
        io.re(47, t1192);
        const V t1193 = t1151 + t1180;
        const V t1194 = t1193 + t1139;
        const V t1195 = t1127 + t1128;
        const V t1196 = c[5] * t1172;
        const V t1197 = t1195 - t1196;
        const V t1198 = t1194 - t1197;
        io.im(12, t1198);
        const V t1199 = t1194 + t1197;
        io.im(47, t1199);
        const V t1200 = t1130 - t1131;
        const V t1201 = c[0] * t1170;
        const V t1202 = t1200 + t1201;
        const V t1203 = t1157 + t1158;
        const V t1204 = c[2] * t1181;
        const V t1205 = t1203 + t1204;
        const V t1206 = t1202 + t1205;
        io.re(19, t1206);
        const V t1207 = t1202 - t1205;
        io.re(40, t1207);
        const V t1208 = t1155 - t1156;
        const V t1209 = c[0] * t1179;
        const V t1210 = t1208 - t1209;
        const V t1211 = t1132 - t1133;
        const V t1212 = c[2] * t1172;
        const V t1213 = t1211 + t1212;
        const V t1214 = t1210 - t1213;
        io.im(19, t1214);
        const V t1215 = t1210 + t1213;
        io.im(40, t1215);
        const V t1216 = t1135 + t1136;
        const V t1217 = c[1] * t1170;
        const V t1218 = t1216 - t1217;
        const V t1219 = t1162 + t1163;
        const V t1220 = c[3] * t1181;
        const V t1221 = t1219 - t1220;
        const V t1222 = t1218 + t1221;
        io.re(26, t1222);
        const V t1223 = t1218 - t1221;
        io.re(33, t1223);
        const V t1224 = t1160 + t1161;
        const V t1225 = c[1] * t1179;
        const V t1226 = t1224 + t1225;
        const V t1227 = t1137 - t1138;
        const V t1228 = c[3] * t1172;
        const V t1229 = t1227 - t1228;
        const V t1230 = t1226 - t1229;
        io.im(26, t1230);
        const V t1231 = t1226 + t1229;
        io.im(33, t1231);
        // complex block of 7
        const V t1232 = t38 + t83;
        // complex block of 49
        const V t1233 = t258 + t267;
        const V t1234 = t321 - t312;
        // complex block of 7
        const V t1235 = t1233 + t1234;
        const V t1236 = t1233 - t1234;
        // complex block of 49
        const V t1237 = t500 + t509;
        const V t1238 = t563 - t554;
        // complex block of 7
        const V t1239 = t1238 + t1237;
        const V t1240 = t1238 - t1237;
        const V t1241 = t1235 + t1239;
        const V t1242 = c[0] * t1235;
        const V t1243 = c[1] * t1239;
        const V t1244 = t1242 - t1243;
        const V t1245 = c[2] * t1236;
        const V t1246 = c[3] * t1240;
        const V t1247 = c[1] * t1235;
        const V t1248 = t1232 - t1247;
        const V t1249 = c[4] * t1239;
        const V t1250 = c[3] * t1236;
        const V t1251 = c[5] * t1240;
        const V t1252 = c[4] * t1235;
        const V t1253 = t1232 - t1252;
        const V t1254 = c[0] * t1239;
        const V t1255 = c[5] * t1236;
        const V t1256 = c[2] * t1240;
        // complex block of 7
        const V t1257 = t80 - t41;
        // complex block of 49
        const V t1258 = t268 - t259;
        const V t1259 = t322 + t313;
        // complex block of 7
        const V t1260 = t1258 - t1259;
        const V t1261 = t1258 + t1259;
        // complex block of 49
        const V t1262 = t510 - t501;
        const V t1263 = t564 + t555;
        // complex block of 7
        const V t1264 = t1262 - t1263;
        const V t1265 = t1263 + t1262;
        const V t1266 = t1260 + t1264;
        const V t1267 = c[0] * t1260;
        const V t1268 = c[1] * t1264;
        const V t1269 = t1267 - t1268;
        const V t1270 = c[2] * t1261;
        const V t1271 = c[3] * t1265;
        const V t1272 = c[1] * t1260;
        const V t1273 = t1257 - t1272;
        const V t1274 = c[4] * t1264;
        const V t1275 = c[3] * t1261;
        const V t1276 = c[5] * t1265;
        const V t1277 = c[4] * t1260;
        const V t1278 = t1257 - t1277;
        const V t1279 = c[0] * t1264;
        const V t1280 = c[5] * t1261;
        const V t1281 = c[2] * t1265;
        // complex block of 49
        const V t1282 = c[36] * t662;
        const V t1283 = c[37] * t656;
        const V t1284 = t1283 + t1282;
        const V t1285 = c[9] * t758;
        const V t1286 = c[8] * t752;
        const V t1287 = t1286 + t1285;
        // complex block of 7
        const V t1288 = t1287 + t1284;
        const V t1289 = c[4] * t1288;
        const V t1290 = t1287 - t1284;
        // complex block of 49
        const V t1291 = c[36] * t656;
        const V t1292 = c[37] * t662;
        const V t1293 = t1292 - t1291;
        const V t1294 = c[9] * t752;
        const V t1295 = c[8] * t758;
        const V t1296 = t1295 - t1294;
        // complex block of 7
        const V t1297 = t1296 + t1293;
        const V t1298 = c[4] * t1297;
        const V t1299 = t1296 - t1293;
        const V t1300 = t1241 + t1288;
        const V t1301 = t1300 + t1232;
        io.re(3, t1301);
        const V t1302 = t1266 + t1297;
        const V t1303 = t1302 + t1257;
        io.im(3, t1303);
        const V t1304 = t1244 - t1289;
        const V t1305 = t1304 + t1232;
        const V t1306 = t1270 + t1271;
        const V t1307 = c[5] * t1299;
        const V t1308 = t1306 - t1307;
        const V t1309 = t1305 + t1308;
        io.re(10, t1309);
        const V t1310 = t1305 - t1308;
        io.re(45, t1310);
        const V t1311 = t1269 - t1298;
        const V t1312 = t1311 + t1257;
        const V t1313 = t1245 - t1246;
        const V t1314 = c[5] * t1290;
        const V t1315 = t1313 - t1314;
        const V t1316 = t1312 - t1315;
        io.im(10, t1316);
        const V t1317 = t1312 + t1315;
        io.im(45, t1317);
        const V t1318 = t1248 - t1249;
        const V t1319 = c[0] * t1288;
        const V t1320 = t1318 + t1319;
        const V t1321 = t1275 - t1276;
        const V t1322 = c[2] * t1299;
        const V t1323 = t1321 + t1322;
        const V t1324 = t1320 + t1323;
        io.re(17, t1324);
        const V t1325 = t1320 - t1323;
        io.re(38, t1325);
        const V t1326 = t1273 - t1274;
        const V t1327 = c[0] * t1297;
        const V t1328 = t1326 + t1327;
        const V t1329 = t1250 + t1251;
        const V t1330 = c[2] * t1290;
        const V t1331 = t1329 + t1330;
        const V t1332 = t1328 - t1331;
        io.im(17, t1332);
        const V t1333 = t1328 + t1331;
        io.im(38, t1333);
        const V t1334 = t1253 + t1254;
        const V t1335 = c[1] * t1288;
        const V t1336 = t1334 - t1335;
        const V t1337 = t1280 - t1281;
        const V t1338 = c[3] * t1299;
        const V t1339 = t1337 - t1338;
        const V t1340 = t1336 + t1339;
        io.re(24, t1340);
        const V t1341 = t1336 - t1339;
        io.re(31, t1341);
        const V t1342 = t1278 + t1279;
        const V t1343 = c[1] * t1297;
        const V t1344 = t1342 - t1343;
        const V t1345 = t1255 + t1256;
        const V t1346 = c[3] * t1290;
        const V t1347 = t1345 - t1346;
        const V t1348 = t1344 - t1347;
        io.im(24, t1348);
        const V t1349 = t1344 + t1347;
        io.im(31, t1349);
        // complex block of 7
        const V t1350 = t38 - t83;
        // complex block of 49
        const V t1351 = t261 + t270;
        const V t1352 = t324 - t315;
        // complex block of 7
        const V t1353 = t1351 + t1352;
        const V t1354 = t1351 - t1352;
        // complex block of 49
        const V t1355 = t503 + t512;
        const V t1356 = t566 - t557;
        // complex block of 7
        const V t1357 = t1356 + t1355;
        const V t1358 = t1356 - t1355;
        const V t1359 = t1353 + t1357;
        const V t1360 = c[0] * t1353;
        const V t1361 = c[1] * t1357;
        const V t1362 = t1360 - t1361;
        const V t1363 = c[2] * t1354;
        const V t1364 = c[3] * t1358;
        const V t1365 = c[1] * t1353;
        const V t1366 = t1350 - t1365;
        const V t1367 = c[4] * t1357;
        const V t1368 = c[3] * t1354;
        const V t1369 = c[5] * t1358;
        const V t1370 = c[4] * t1353;
        const V t1371 = t1350 - t1370;
        const V t1372 = c[0] * t1357;
        const V t1373 = c[5] * t1354;
        const V t1374 = c[2] * t1358;
        // complex block of 7
        const V t1375 = t80 + t41;
        // complex block of 49
        const V t1376 = t271 - t262;
        const V t1377 = t325 + t316;
        // complex block of 7
        const V t1378 = t1376 - t1377;
        const V t1379 = t1376 + t1377;
        // complex block of 49
        const V t1380 = t513 - t504;
        const V t1381 = t567 + t558;
        // complex block of 7
        const V t1382 = t1380 - t1381;
        const V t1383 = t1381 + t1380;
        const V t1384 = t1378 + t1382;
        const V t1385 = c[0] * t1378;
        const V t1386 = c[1] * t1382;
        const V t1387 = t1385 - t1386;
        const V t1388 = c[2] * t1379;
        const V t1389 = c[3] * t1383;
        const V t1390 = c[1] * t1378;
        const V t1391 = t1375 - t1390;
        const V t1392 = c[4] * t1382;
        const V t1393 = c[3] * t1379;
        const V t1394 = c[5] * t1383;
        const V t1395 = c[4] * t1378;
        const V t1396 = t1375 - t1395;
        const V t1397 = c[0] * t1382;
        const V t1398 = c[5] * t1379;
        const V t1399 = c[2] * t1383;
        // complex block of 49
        const V t1400 = c[9] * t663;
        const V t1401 = c[8] * t657;
        const V t1402 = t1401 + t1400;
        const V t1403 = c[38] * t759;
        const V t1404 = c[39] * t753;
        const V t1405 = t1403 - t1404;
        // complex block of 7
        const V t1406 = t1405 + t1402;
        const V t1407 = c[4] * t1406;
        const V t1408 = t1405 - t1402;
        // complex block of 49
        const V t1409 = c[9] * t657;
        const V t1410 = c[8] * t663;
        const V t1411 = t1410 - t1409;
        const V t1412 = c[38] * t753;
        const V t1413 = c[39] * t759;
        const V t1414 = t1413 + t1412;
        // complex block of 7
        const V t1415 = t1411 - t1414;
        const V t1416 = c[4] * t1415;
        const V t1417 = t1414 + t1411;
        const V t1418 = t1359 + t1406;
        const V t1419 = t1418 + t1350;
        io.re(4, t1419);
        const V t1420 = t1384 + t1415;
        const V t1421 = t1420 + t1375;
        io.im(4, t1421);
        const V t1422 = t1362 - t1407;
        const V t1423 = t1422 + t1350;
        const V t1424 = t1388 + t1389;
        const V t1425 = c[5] * t1417;
        const V t1426 = t1424 + t1425;
        const V t1427 = t1423 + t1426;
        io.re(11, t1427);
        const V t1428 = t1423 - t1426;
        io.re(46, t1428);
        const V t1429 = t1387 - t1416;
        const V t1430 = t1429 + t1375;
        const V t1431 = t1363 - t1364;
        const V t1432 = c[5] * t1408;
        const V t1433 = t1431 - t1432;
        const V t1434 = t1430 - t1433;
        io.im(11, t1434);
        const V t1435 = t1430 + t1433;
        io.im(46, t1435);
        const V t1436 = t1366 - t1367;
        const V t1437 = c[0] * t1406;
        const V t1438 = t1436 + t1437;
        const V t1439 = t1393 - t1394;
        const V t1440 = c[2] * t1417;
        const V t1441 = t1439 - t1440;
        const V t1442 = t1438 + t1441;
        io.re(18, t1442);
        const V t1443 = t1438 - t1441;
        io.re(39, t1443);
        const V t1444 = t1391 - t1392;
        const V t1445 = c[0] * t1415;
        const V t1446 = t1444 + t1445;
        const V t1447 = t1368 + t1369;
        const V t1448 = c[2] * t1408;
        const V t1449 = t1447 + t1448;
        const V t1450 = t1446 - t1449;
        io.im(18, t1450);
        const V t1451 = t1446 + t1449;
        io.im(39, t1451);
        const V t1452 = t1371 + t1372;
        const V t1453 = c[1] * t1406;
        const V t1454 = t1452 - t1453;
        const V t1455 = t1398 - t1399;
        const V t1456 = c[3] * t1417;
        const V t1457 = t1455 + t1456;
        const V t1458 = t1454 + t1457;
        io.re(25, t1458);
        const V t1459 = t1454 - t1457;
        io.re(32, t1459);
        const V t1460 = t1396 + t1397;
        const V t1461 = c[1] * t1415;
        const V t1462 = t1460 - t1461;
        const V t1463 = t1373 + t1374;
        const V t1464 = c[3] * t1408;
        const V t1465 = t1463 - t1464;
        const V t1466 = t1462 - t1465;
        io.im(25, t1466);
        const V t1467 = t1462 + t1465;
        io.im(32, t1467);
        // complex block of 7
        const V t1468 = t209 - t211;
        const V t1469 = c[2] * t1468;
        const V t1470 = c[3] * t1468;
        const V t1471 = c[5] * t1468;
        const V t1472 = t453 - t451;
        const V t1473 = c[3] * t1472;
        const V t1474 = c[5] * t1472;
        const V t1475 = c[2] * t1472;
        const V t1476 = t1469 - t1473;
        const V t1477 = t1470 + t1474;
        const V t1478 = t1471 + t1475;
        const V t1479 = t723 + t627;
        const V t1480 = c[4] * t1479;
        const V t1481 = t217 + t459;
        const V t1482 = c[0] * t217;
        const V t1483 = c[1] * t459;
        const V t1484 = t1482 - t1483;
        const V t1485 = t1481 + t1479;
        const V t1486 = t1484 - t1480;
        const V t1487 = c[0] * t1479;
        const V t1488 = c[1] * t1479;
        const V t1489 = t721 - t625;
        const V t1490 = c[5] * t1489;
        const V t1491 = c[2] * t1489;
        const V t1492 = c[3] * t1489;
        const V t1493 = c[1] * t217;
        const V t1494 = t63 - t1493;
        const V t1495 = c[4] * t459;
        const V t1496 = t1494 - t1495;
        const V t1497 = c[4] * t217;
        const V t1498 = t63 - t1497;
        const V t1499 = c[0] * t459;
        const V t1500 = t1498 + t1499;
        const V t1501 = t1485 + t63;
        io.im(0, t1501);
        const V t1502 = t1486 + t63;
        const V t1503 = t1476 - t1490;
        const V t1504 = t1502 - t1503;
        io.im(7, t1504);
        const V t1505 = t1502 + t1503;
        io.im(42, t1505);
        const V t1506 = t1496 + t1487;
        const V t1507 = t1477 + t1491;
        const V t1508 = t1506 - t1507;
        io.im(14, t1508);
        const V t1509 = t1506 + t1507;
        io.im(35, t1509);
        const V t1510 = t1500 - t1488;
        const V t1511 = t1478 - t1492;
        const V t1512 = t1510 - t1511;
        io.im(21, t1512);
        const V t1513 = t1510 + t1511;
        io.im(28, t1513);
        const V t1514 = t214 - t216;
        const V t1515 = c[2] * t1514;
        const V t1516 = c[3] * t1514;
        const V t1517 = c[5] * t1514;
        const V t1518 = t458 - t456;
        const V t1519 = c[3] * t1518;
        const V t1520 = c[5] * t1518;
        const V t1521 = c[2] * t1518;
        const V t1522 = t1515 - t1519;
        const V t1523 = t1516 + t1520;
        const V t1524 = t1517 + t1521;
        const V t1525 = t721 + t625;
        const V t1526 = c[4] * t1525;
        const V t1527 = t212 + t454;
        const V t1528 = c[0] * t212;
        const V t1529 = c[1] * t454;
        const V t1530 = t1528 - t1529;
        const V t1531 = t1527 + t1525;
        const V t1532 = t1530 - t1526;
        const V t1533 = c[0] * t1525;
        const V t1534 = c[1] * t1525;
        const V t1535 = t723 - t627;
        const V t1536 = c[5] * t1535;
        const V t1537 = c[2] * t1535;
        const V t1538 = c[3] * t1535;
        const V t1539 = c[1] * t212;
        const V t1540 = t21 - t1539;
        const V t1541 = c[4] * t454;
        const V t1542 = t1540 - t1541;
        const V t1543 = c[4] * t212;
        const V t1544 = t21 - t1543;
        const V t1545 = c[0] * t454;
        const V t1546 = t1544 + t1545;
        const V t1547 = t1531 + t21;
        io.re(0, t1547);
        const V t1548 = t1532 + t21;
        const V t1549 = t1522 - t1536;
        const V t1550 = t1548 + t1549;
        io.re(7, t1550);
        const V t1551 = t1548 - t1549;
        io.re(42, t1551);
        const V t1552 = t1542 + t1533;
        const V t1553 = t1523 + t1537;
        const V t1554 = t1552 + t1553;
        io.re(14, t1554);
        const V t1555 = t1552 - t1553;
        io.re(35, t1555);
        const V t1556 = t1546 - t1534;
        const V t1557 = t1524 - t1538;
        const V t1558 = t1556 + t1557;
        io.re(21, t1558);
        const V t1559 = t1556 - t1557;
        io.re(28, t1559);
    }
};

}  // namespace zulg
