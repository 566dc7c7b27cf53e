// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 62.
// Complex DFT of 62 points, prime-factor, order 31, 2.
// 796 additions, 712 subtractions, 768 multiplications (892 with `scale`); 40 constants; 240 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<62> {
    static constexpr int steps = 2400;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.27566627690567064,  // c[6]: Q[14] of 31
        0.2485676599132395,  // c[7]: P[14] of 31
        0.15196895108646355,  // c[8]: -P[1] of 31
        0.3386491040641593,  // c[9]: Q[1] of 31
        0.05839901633481273,  // c[10]: Q[4] of 31
        0.3665614991633792,  // c[11]: P[4] of 31
        0.06530829340975558,  // c[12]: P[11] of 31
        0.36539376648991023,  // c[13]: -Q[11] of 31
        0.2970284107916672,  // c[14]: P[6] of 31
        0.2226025627892778,  // c[15]: Q[6] of 31
        0.008505491359144196,  // c[16]: Q[9] of 31
        0.37108682864596165,  // c[17]: P[9] of 31
        0.1073724670043011,  // c[18]: -Q[8] of 31
        0.35531525594489755,  // c[19]: P[8] of 31
        0.24280988331200667,  // c[20]: -P[7] of 31
        0.28075102554360776,  // c[21]: Q[7] of 31
        0.21884316352804659,  // c[22]: Q[2] of 31
        0.29980901846811486,  // c[23]: -P[2] of 31
        0.1674782402040115,  // c[24]: -P[13] of 31
        0.3312534027537607,  // c[25]: -Q[13] of 31
        0.019498333867134416,  // c[26]: Q[3] of 31
        0.37067181273221134,  // c[27]: -P[3] of 31
        0.35709323166839874,  // c[28]: -P[12] of 31
        0.10130252550848418,  // c[29]: Q[12] of 31
        0.1449304326594425,  // c[30]: Q[10] of 31
        0.2959386939894704,  // c[31]: sin 2 pi 1/3 times P[10] of 31
        0.26685240283098827,  // c[32]: P[5] of 31
        0.2234405506187928,  // c[33]: sin 2 pi 1/3 times Q[5] of 31
        0.03333333333333333,  // c[34]: 1/30
        0.1855921454276674,  // c[35]: beta of 31
        0.3417205692768941,  // c[36]: P[10] of 31
        0.2580069240952765,  // c[37]: Q[5] of 31
        0.1255134364645471,  // c[38]: sin 2 pi 1/3 times Q[10] of 31
        0.23110095991255428,  // c[39]: sin 2 pi 1/3 times P[5] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 5
        const V x1r = io.re(1);
        const V x35r = io.re(35);
        const V t0 = x1r + x35r;
        const V t1 = x1r - x35r;
        const V t2 = c[0] * t0;
        const V t3 = c[1] * t0;
        const V x39r = io.re(39);
        const V x47r = io.re(47);
        const V t4 = x39r + x47r;
        const V t5 = x39r - x47r;
        const V t6 = c[1] * t4;
        const V t7 = t0 + t4;
        const V x33r = io.re(33);
        const V t8 = t7 + x33r;
        const V t9 = t2 - t6;
        const V t10 = t9 + x33r;
        const V t11 = c[2] * t1;
        const V t12 = c[3] * t5;
        const V t13 = t12 - t11;
        const V t14 = x33r - t3;
        const V t15 = c[0] * t4;
        const V t16 = t14 + t15;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t5;
        const V t19 = t17 + t18;
        // real block of 5
        const V x17r = io.re(17);
        const V x3r = io.re(3);
        const V t20 = x17r + x3r;
        const V t21 = x17r - x3r;
        const V x37r = io.re(37);
        const V x55r = io.re(55);
        const V t22 = x37r + x55r;
        const V t23 = x37r - x55r;
        const V t24 = t22 + t20;
        const V t25 = c[0] * t22;
        const V t26 = c[1] * t20;
        const V t27 = c[2] * t23;
        const V t28 = c[3] * t21;
        const V t29 = c[1] * t22;
        const V t30 = c[0] * t20;
        const V t31 = c[3] * t23;
        const V t32 = c[2] * t21;
        // real block of 5
        const V x57r = io.re(57);
        const V x11r = io.re(11);
        const V t33 = x57r + x11r;
        const V t34 = x57r - x11r;
        const V x53r = io.re(53);
        const V x13r = io.re(13);
        const V t35 = x53r + x13r;
        const V t36 = x53r - x13r;
        const V t37 = t33 + t35;
        const V t38 = c[0] * t33;
        const V t39 = c[1] * t35;
        const V t40 = c[2] * t34;
        const V t41 = c[3] * t36;
        const V t42 = c[1] * t33;
        const V t43 = c[0] * t35;
        const V t44 = c[3] * t34;
        const V t45 = c[2] * t36;
        const V x21r = io.re(21);
        const V t46 = t37 + x21r;
        // real block of 5
        const V x43r = io.re(43);
        const V t47 = t24 + x43r;
        // real block of 3
        const V t48 = t47 + t46;
        // real block of 5
        const V t49 = t38 - t39;
        const V t50 = t49 + x21r;
        // real block of 5
        const V t51 = t25 - t26;
        const V t52 = t51 + x43r;
        // complex block of 3
        const V t53 = t52 + t50;
        // real block of 5
        const V t54 = t41 - t40;
        // real block of 5
        const V t55 = t28 - t27;
        // complex block of 3
        const V t56 = t55 + t54;
        const V t57 = t55 - t54;
        // real block of 5
        const V t58 = x21r - t42;
        const V t59 = t58 + t43;
        // real block of 5
        const V t60 = x43r - t29;
        const V t61 = t60 + t30;
        // complex block of 3
        const V t62 = t61 + t59;
        // real block of 5
        const V t63 = t44 + t45;
        // real block of 5
        const V t64 = t31 + t32;
        // complex block of 3
        const V t65 = t64 + t63;
        const V t66 = t63 - t64;
        // real block of 5
        const V x5r = io.re(5);
        const V x51r = io.re(51);
        const V t67 = x5r + x51r;
        const V t68 = x5r - x51r;
        const V x9r = io.re(9);
        const V x49r = io.re(49);
        const V t69 = x9r + x49r;
        const V t70 = x9r - x49r;
        const V t71 = t67 + t69;
        const V t72 = c[0] * t67;
        const V t73 = c[1] * t69;
        const V t74 = c[2] * t68;
        const V t75 = c[3] * t70;
        const V t76 = c[1] * t67;
        const V t77 = c[0] * t69;
        const V t78 = c[3] * t68;
        const V t79 = c[2] * t70;
        // real block of 5
        const V x25r = io.re(25);
        const V x7r = io.re(7);
        const V t80 = x25r + x7r;
        const V t81 = x25r - x7r;
        const V x45r = io.re(45);
        const V x59r = io.re(59);
        const V t82 = x45r + x59r;
        const V t83 = x45r - x59r;
        const V t84 = t80 + t82;
        const V t85 = c[0] * t80;
        const V t86 = c[1] * t82;
        const V t87 = c[2] * t81;
        const V t88 = c[3] * t83;
        const V t89 = c[1] * t80;
        const V t90 = c[0] * t82;
        const V t91 = c[3] * t81;
        const V t92 = c[2] * t83;
        const V x19r = io.re(19);
        const V t93 = t84 + x19r;
        // real block of 5
        const V x41r = io.re(41);
        const V t94 = t71 + x41r;
        // real block of 3
        const V t95 = t93 + t94;
        // real block of 5
        const V t96 = t85 - t86;
        const V t97 = t96 + x19r;
        // real block of 5
        const V t98 = t72 - t73;
        const V t99 = t98 + x41r;
        // complex block of 3
        const V t100 = t97 + t99;
        // real block of 5
        const V t101 = t88 - t87;
        // real block of 5
        const V t102 = t75 - t74;
        // complex block of 3
        const V t103 = t101 + t102;
        const V t104 = t101 - t102;
        // real block of 5
        const V t105 = x19r - t89;
        const V t106 = t105 + t90;
        // real block of 5
        const V t107 = x41r - t76;
        const V t108 = t107 + t77;
        // complex block of 3
        const V t109 = t106 + t108;
        // real block of 5
        const V t110 = t91 + t92;
        // real block of 5
        const V t111 = t78 + t79;
        // complex block of 3
        const V t112 = t110 + t111;
        const V t113 = t111 - t110;
        // real block of 5
        const V x23r = io.re(23);
        const V x15r = io.re(15);
        const V t114 = x23r + x15r;
        const V t115 = x23r - x15r;
        const V t116 = c[1] * t114;
        const V x61r = io.re(61);
        const V x27r = io.re(27);
        const V t117 = x61r + x27r;
        const V t118 = x61r - x27r;
        const V t119 = c[0] * t117;
        const V t120 = c[1] * t117;
        const V t121 = t117 + t114;
        const V x29r = io.re(29);
        const V t122 = t121 + x29r;
        const V t123 = t119 - t116;
        const V t124 = t123 + x29r;
        const V t125 = c[2] * t118;
        const V t126 = c[3] * t115;
        const V t127 = t126 - t125;
        const V t128 = x29r - t120;
        const V t129 = c[0] * t114;
        const V t130 = t128 + t129;
        const V t131 = c[3] * t118;
        const V t132 = c[2] * t115;
        const V t133 = t131 + t132;
        // real block of 3
        const V t134 = t93 - t94;
        const V t135 = c[5] * t134;
        // real block of 3
        const V t136 = t47 - t46;
        const V t137 = c[5] * t136;
        // complex block of 2
        const V t138 = t135 + t137;
        // complex block of 31, multiplier 2
        const V t139 = c[30] * t138;
        // spectrum block of 3
        const V t140 = c[31] * t138;
        // complex block of 2
        const V t141 = t137 - t135;
        // complex block of 31, multiplier 2
        const V t142 = c[32] * t141;
        // spectrum block of 3
        const V t143 = c[33] * t141;
        // real block of 3
        const V t144 = t95 + t8;
        // real block of 3
        const V t145 = t48 + t122;
        // real block of 2
        const V t146 = t144 + t145;
        const V t147 = t144 - t145;
        // complex block of 31, multiplier 2
        const V t148 = c[34] * t146;
        const V t149 = c[35] * t147;
        // real block of 3
        const V t150 = c[4] * t95;
        const V t151 = t8 - t150;
        // real block of 3
        const V t152 = c[4] * t48;
        const V t153 = t122 - t152;
        // complex block of 2
        const V t154 = t151 + t153;
        // complex block of 31, multiplier 2
        const V t155 = c[36] * t154;
        // complex block of 2
        const V t156 = t151 - t153;
        // complex block of 31, multiplier 2
        const V t157 = c[37] * t156;
        // complex block of 3
        const V t158 = t97 - t99;
        const V t159 = c[5] * t158;
        const V t160 = c[4] * t103;
        const V t161 = t13 - t160;
        const V t162 = t161 - t159;
        const V t163 = t161 + t159;
        // complex block of 3
        const V t164 = t52 - t50;
        const V t165 = c[5] * t164;
        const V t166 = c[4] * t56;
        const V t167 = t127 - t166;
        const V t168 = t167 - t165;
        const V t169 = t167 + t165;
        // complex block of 2
        const V t170 = t162 + t168;
        // complex block of 31, multiplier 2
        const V t171 = c[6] * t170;
        const V t172 = c[7] * t170;
        // complex block of 2
        const V t173 = t162 - t168;
        // complex block of 31, multiplier 2
        const V t174 = c[8] * t173;
        const V t175 = c[9] * t173;
        // complex block of 2
        const V t176 = t163 + t169;
        // complex block of 31, multiplier 2
        const V t177 = c[10] * t176;
        const V t178 = c[11] * t176;
        // complex block of 2
        const V t179 = t163 - t169;
        // complex block of 31, multiplier 2
        const V t180 = c[12] * t179;
        const V t181 = c[13] * t179;
        // complex block of 3
        const V t182 = t100 + t10;
        // complex block of 3
        const V t183 = t53 + t124;
        // complex block of 2
        const V t184 = t182 + t183;
        const V t185 = t182 - t183;
        // complex block of 31, multiplier 2
        const V t186 = c[14] * t184;
        const V t187 = c[15] * t184;
        const V t188 = c[16] * t185;
        const V t189 = c[17] * t185;
        // complex block of 3
        const V t190 = t103 + t13;
        // complex block of 3
        const V t191 = t56 + t127;
        // complex block of 2
        const V t192 = t190 + t191;
        const V t193 = t190 - t191;
        // complex block of 31, multiplier 2
        const V t194 = c[15] * t192;
        const V t195 = c[14] * t192;
        const V t196 = c[17] * t193;
        const V t197 = c[16] * t193;
        // complex block of 3
        const V t198 = c[4] * t100;
        const V t199 = t10 - t198;
        const V t200 = c[5] * t104;
        const V t201 = t199 + t200;
        const V t202 = t199 - t200;
        // complex block of 3
        const V t203 = c[4] * t53;
        const V t204 = t124 - t203;
        const V t205 = c[5] * t57;
        const V t206 = t204 + t205;
        const V t207 = t204 - t205;
        // complex block of 2
        const V t208 = t201 + t206;
        // complex block of 31, multiplier 2
        const V t209 = c[7] * t208;
        const V t210 = c[6] * t208;
        // complex block of 2
        const V t211 = t201 - t206;
        // complex block of 31, multiplier 2
        const V t212 = c[9] * t211;
        const V t213 = c[8] * t211;
        // complex block of 2
        const V t214 = t202 + t207;
        // complex block of 31, multiplier 2
        const V t215 = c[11] * t214;
        const V t216 = c[10] * t214;
        // complex block of 2
        const V t217 = t202 - t207;
        // complex block of 31, multiplier 2
        const V t218 = c[13] * t217;
        const V t219 = c[12] * t217;
        // complex block of 3
        const V t220 = t106 - t108;
        const V t221 = c[5] * t220;
        const V t222 = c[4] * t112;
        const V t223 = t222 - t19;
        const V t224 = t223 - t221;
        const V t225 = t223 + t221;
        // complex block of 3
        const V t226 = t61 - t59;
        const V t227 = c[5] * t226;
        const V t228 = c[4] * t65;
        const V t229 = t228 - t133;
        const V t230 = t229 - t227;
        const V t231 = t229 + t227;
        // complex block of 2
        const V t232 = t224 + t230;
        // complex block of 31, multiplier 2
        const V t233 = c[18] * t232;
        const V t234 = c[19] * t232;
        // complex block of 2
        const V t235 = t224 - t230;
        // complex block of 31, multiplier 2
        const V t236 = c[20] * t235;
        const V t237 = c[21] * t235;
        // complex block of 2
        const V t238 = t225 + t231;
        // complex block of 31, multiplier 2
        const V t239 = c[22] * t238;
        const V t240 = c[23] * t238;
        // complex block of 2
        const V t241 = t225 - t231;
        // complex block of 31, multiplier 2
        const V t242 = c[24] * t241;
        const V t243 = c[25] * t241;
        // complex block of 3
        const V t244 = t109 + t16;
        // complex block of 3
        const V t245 = t62 + t130;
        // complex block of 2
        const V t246 = t244 + t245;
        const V t247 = t244 - t245;
        // complex block of 31, multiplier 2
        const V t248 = c[26] * t247;
        const V t249 = c[27] * t247;
        const V t250 = c[28] * t246;
        const V t251 = c[29] * t246;
        // complex block of 3
        const V t252 = t112 + t19;
        // complex block of 3
        const V t253 = t65 + t133;
        // complex block of 2
        const V t254 = t252 + t253;
        const V t255 = t253 - t252;
        // complex block of 31, multiplier 2
        const V t256 = c[27] * t255;
        const V t257 = c[26] * t255;
        const V t258 = c[29] * t254;
        const V t259 = c[28] * t254;
        // complex block of 3
        const V t260 = c[4] * t109;
        const V t261 = t16 - t260;
        const V t262 = c[5] * t113;
        const V t263 = t261 + t262;
        const V t264 = t261 - t262;
        // complex block of 3
        const V t265 = c[4] * t62;
        const V t266 = t130 - t265;
        const V t267 = c[5] * t66;
        const V t268 = t266 + t267;
        const V t269 = t266 - t267;
        // complex block of 2
        const V t270 = t263 + t268;
        // complex block of 31, multiplier 2
        const V t271 = c[19] * t270;
        const V t272 = c[18] * t270;
        // complex block of 2
        const V t273 = t263 - t268;
        // complex block of 31, multiplier 2
        const V t274 = c[21] * t273;
        const V t275 = c[20] * t273;
        // complex block of 2
        const V t276 = t264 + t269;
        // complex block of 31, multiplier 2
        const V t277 = c[23] * t276;
        const V t278 = c[22] * t276;
        // complex block of 2
        const V t279 = t264 - t269;
        // complex block of 31, multiplier 2
        const V t280 = c[25] * t279;
        const V t281 = c[24] * t279;
        // real block of 5
        const V x1i = io.im(1);
        const V x35i = io.im(35);
        const V t282 = x1i + x35i;
        const V t283 = x1i - x35i;
        const V t284 = c[0] * t282;
        const V t285 = c[1] * t282;
        const V x39i = io.im(39);
        const V x47i = io.im(47);
        const V t286 = x39i + x47i;
        const V t287 = x39i - x47i;
        const V t288 = c[1] * t286;
        const V t289 = t282 + t286;
        const V x33i = io.im(33);
        const V t290 = t289 + x33i;
        const V t291 = t284 - t288;
        const V t292 = t291 + x33i;
        const V t293 = c[2] * t283;
        const V t294 = c[3] * t287;
        const V t295 = t294 - t293;
        const V t296 = x33i - t285;
        const V t297 = c[0] * t286;
        const V t298 = t296 + t297;
        const V t299 = c[3] * t283;
        const V t300 = c[2] * t287;
        const V t301 = t299 + t300;
        // real block of 5
        const V x17i = io.im(17);
        const V x3i = io.im(3);
        const V t302 = x17i + x3i;
        const V t303 = x17i - x3i;
        const V x37i = io.im(37);
        const V x55i = io.im(55);
        const V t304 = x37i + x55i;
        const V t305 = x37i - x55i;
        const V t306 = t304 + t302;
        const V t307 = c[0] * t304;
        const V t308 = c[1] * t302;
        const V t309 = c[2] * t305;
        const V t310 = c[3] * t303;
        const V t311 = c[1] * t304;
        const V t312 = c[0] * t302;
        const V t313 = c[3] * t305;
        const V t314 = c[2] * t303;
        // real block of 5
        const V x57i = io.im(57);
        const V x11i = io.im(11);
        const V t315 = x57i + x11i;
        const V t316 = x57i - x11i;
        const V x53i = io.im(53);
        const V x13i = io.im(13);
        const V t317 = x53i + x13i;
        const V t318 = x53i - x13i;
        const V t319 = t315 + t317;
        const V t320 = c[0] * t315;
        const V t321 = c[1] * t317;
        const V t322 = c[2] * t316;
        const V t323 = c[3] * t318;
        const V t324 = c[1] * t315;
        const V t325 = c[0] * t317;
        const V t326 = c[3] * t316;
        const V t327 = c[2] * t318;
        const V x21i = io.im(21);
        const V t328 = t319 + x21i;
        // real block of 5
        const V x43i = io.im(43);
        const V t329 = t306 + x43i;
        // real block of 3
        const V t330 = t329 + t328;
        // real block of 5
        const V t331 = t320 - t321;
        const V t332 = t331 + x21i;
        // real block of 5
        const V t333 = t307 - t308;
        const V t334 = t333 + x43i;
        // complex block of 3
        const V t335 = t334 + t332;
        // real block of 5
        const V t336 = t323 - t322;
        // real block of 5
        const V t337 = t310 - t309;
        // complex block of 3
        const V t338 = t337 + t336;
        const V t339 = t337 - t336;
        // real block of 5
        const V t340 = x21i - t324;
        const V t341 = t340 + t325;
        // real block of 5
        const V t342 = x43i - t311;
        const V t343 = t342 + t312;
        // complex block of 3
        const V t344 = t343 + t341;
        // real block of 5
        const V t345 = t326 + t327;
        // real block of 5
        const V t346 = t313 + t314;
        // complex block of 3
        const V t347 = t346 + t345;
        const V t348 = t345 - t346;
        // real block of 5
        const V x5i = io.im(5);
        const V x51i = io.im(51);
        const V t349 = x5i + x51i;
        const V t350 = x5i - x51i;
        const V x9i = io.im(9);
        const V x49i = io.im(49);
        const V t351 = x9i + x49i;
        const V t352 = x9i - x49i;
        const V t353 = t349 + t351;
        const V t354 = c[0] * t349;
        const V t355 = c[1] * t351;
        const V t356 = c[2] * t350;
        const V t357 = c[3] * t352;
        const V t358 = c[1] * t349;
        const V t359 = c[0] * t351;
        const V t360 = c[3] * t350;
        const V t361 = c[2] * t352;
        // real block of 5
        const V x25i = io.im(25);
        const V x7i = io.im(7);
        const V t362 = x25i + x7i;
        const V t363 = x25i - x7i;
        const V x45i = io.im(45);
        const V x59i = io.im(59);
        const V t364 = x45i + x59i;
        const V t365 = x45i - x59i;
        const V t366 = t362 + t364;
        const V t367 = c[0] * t362;
        const V t368 = c[1] * t364;
        const V t369 = c[2] * t363;
        const V t370 = c[3] * t365;
        const V t371 = c[1] * t362;
        const V t372 = c[0] * t364;
        const V t373 = c[3] * t363;
        const V t374 = c[2] * t365;
        const V x19i = io.im(19);
        const V t375 = t366 + x19i;
        // real block of 5
        const V x41i = io.im(41);
        const V t376 = t353 + x41i;
        // real block of 3
        const V t377 = t375 + t376;
        // real block of 5
        const V t378 = t367 - t368;
        const V t379 = t378 + x19i;
        // real block of 5
        const V t380 = t354 - t355;
        const V t381 = t380 + x41i;
        // complex block of 3
        const V t382 = t379 + t381;
        // real block of 5
        const V t383 = t370 - t369;
        // real block of 5
        const V t384 = t357 - t356;
        // complex block of 3
        const V t385 = t383 + t384;
        const V t386 = t383 - t384;
        // real block of 5
        const V t387 = x19i - t371;
        const V t388 = t387 + t372;
        // real block of 5
        const V t389 = x41i - t358;
        const V t390 = t389 + t359;
        // complex block of 3
        const V t391 = t388 + t390;
        // real block of 5
        const V t392 = t373 + t374;
        // real block of 5
        const V t393 = t360 + t361;
        // complex block of 3
        const V t394 = t392 + t393;
        const V t395 = t393 - t392;
        // real block of 5
        const V x23i = io.im(23);
        const V x15i = io.im(15);
        const V t396 = x23i + x15i;
        const V t397 = x23i - x15i;
        const V t398 = c[1] * t396;
        const V x61i = io.im(61);
        const V x27i = io.im(27);
        const V t399 = x61i + x27i;
        const V t400 = x61i - x27i;
        const V t401 = c[0] * t399;
        const V t402 = c[1] * t399;
        const V t403 = t399 + t396;
        const V x29i = io.im(29);
        const V t404 = t403 + x29i;
        const V t405 = t401 - t398;
        const V t406 = t405 + x29i;
        const V t407 = c[2] * t400;
        const V t408 = c[3] * t397;
        const V t409 = t408 - t407;
        const V t410 = x29i - t402;
        const V t411 = c[0] * t396;
        const V t412 = t410 + t411;
        const V t413 = c[3] * t400;
        const V t414 = c[2] * t397;
        const V t415 = t413 + t414;
        // real block of 3
        const V t416 = t375 - t376;
        const V t417 = c[5] * t416;
        // real block of 3
        const V t418 = t329 - t328;
        const V t419 = c[5] * t418;
        // complex block of 2
        const V t420 = t417 + t419;
        // complex block of 31, multiplier 2
        const V t421 = c[30] * t420;
        // spectrum block of 3
        const V t422 = c[31] * t420;
        // complex block of 2
        const V t423 = t419 - t417;
        // complex block of 31, multiplier 2
        const V t424 = c[32] * t423;
        // spectrum block of 3
        const V t425 = c[33] * t423;
        // real block of 3
        const V t426 = t377 + t290;
        // real block of 3
        const V t427 = t330 + t404;
        // real block of 2
        const V t428 = t426 + t427;
        const V t429 = t426 - t427;
        // complex block of 31, multiplier 2
        const V t430 = c[34] * t428;
        const V t431 = c[35] * t429;
        // real block of 3
        const V t432 = c[4] * t377;
        const V t433 = t290 - t432;
        // real block of 3
        const V t434 = c[4] * t330;
        const V t435 = t404 - t434;
        // complex block of 2
        const V t436 = t433 + t435;
        // complex block of 31, multiplier 2
        const V t437 = c[36] * t436;
        // complex block of 2
        const V t438 = t433 - t435;
        // complex block of 31, multiplier 2
        const V t439 = c[37] * t438;
        // complex block of 3
        const V t440 = t379 - t381;
        const V t441 = c[5] * t440;
        const V t442 = c[4] * t385;
        const V t443 = t295 - t442;
        const V t444 = t443 - t441;
        const V t445 = t443 + t441;
        // complex block of 3
        const V t446 = t334 - t332;
        const V t447 = c[5] * t446;
        const V t448 = c[4] * t338;
        const V t449 = t409 - t448;
        const V t450 = t449 - t447;
        const V t451 = t449 + t447;
        // complex block of 2
        const V t452 = t444 + t450;
        // complex block of 31, multiplier 2
        const V t453 = c[6] * t452;
        const V t454 = c[7] * t452;
        // complex block of 2
        const V t455 = t444 - t450;
        // complex block of 31, multiplier 2
        const V t456 = c[8] * t455;
        const V t457 = c[9] * t455;
        // complex block of 2
        const V t458 = t445 + t451;
        // complex block of 31, multiplier 2
        const V t459 = c[10] * t458;
        const V t460 = c[11] * t458;
        // complex block of 2
        const V t461 = t445 - t451;
        // complex block of 31, multiplier 2
        const V t462 = c[12] * t461;
        const V t463 = c[13] * t461;
        // complex block of 3
        const V t464 = t382 + t292;
        // complex block of 3
        const V t465 = t335 + t406;
        // complex block of 2
        const V t466 = t464 + t465;
        const V t467 = t464 - t465;
        // complex block of 31, multiplier 2
        const V t468 = c[14] * t466;
        const V t469 = c[15] * t466;
        const V t470 = c[16] * t467;
        const V t471 = c[17] * t467;
        // complex block of 3
        const V t472 = t385 + t295;
        // complex block of 3
        const V t473 = t338 + t409;
        // complex block of 2
        const V t474 = t472 + t473;
        const V t475 = t472 - t473;
        // complex block of 31, multiplier 2
        const V t476 = c[15] * t474;
        const V t477 = c[14] * t474;
        const V t478 = c[17] * t475;
        const V t479 = c[16] * t475;
        // complex block of 3
        const V t480 = c[4] * t382;
        const V t481 = t292 - t480;
        const V t482 = c[5] * t386;
        const V t483 = t481 + t482;
        const V t484 = t481 - t482;
        // complex block of 3
        const V t485 = c[4] * t335;
        const V t486 = t406 - t485;
        const V t487 = c[5] * t339;
        const V t488 = t486 + t487;
        const V t489 = t486 - t487;
        // complex block of 2
        const V t490 = t483 + t488;
        // complex block of 31, multiplier 2
        const V t491 = c[7] * t490;
        const V t492 = c[6] * t490;
        // complex block of 2
        const V t493 = t483 - t488;
        // complex block of 31, multiplier 2
        const V t494 = c[9] * t493;
        const V t495 = c[8] * t493;
        // complex block of 2
        const V t496 = t484 + t489;
        // complex block of 31, multiplier 2
        const V t497 = c[11] * t496;
        const V t498 = c[10] * t496;
        // complex block of 2
        const V t499 = t484 - t489;
        // complex block of 31, multiplier 2
        const V t500 = c[13] * t499;
        const V t501 = c[12] * t499;
        // complex block of 3
        const V t502 = t388 - t390;
        const V t503 = c[5] * t502;
        const V t504 = c[4] * t394;
        const V t505 = t504 - t301;
        const V t506 = t505 - t503;
        const V t507 = t505 + t503;
        // complex block of 3
        const V t508 = t343 - t341;
        const V t509 = c[5] * t508;
        const V t510 = c[4] * t347;
        const V t511 = t510 - t415;
        const V t512 = t511 - t509;
        const V t513 = t511 + t509;
        // complex block of 2
        const V t514 = t506 + t512;
        // complex block of 31, multiplier 2
        const V t515 = c[18] * t514;
        const V t516 = c[19] * t514;
        // complex block of 2
        const V t517 = t506 - t512;
        // complex block of 31, multiplier 2
        const V t518 = c[20] * t517;
        const V t519 = c[21] * t517;
        // complex block of 2
        const V t520 = t507 + t513;
        // complex block of 31, multiplier 2
        const V t521 = c[22] * t520;
        const V t522 = c[23] * t520;
        // complex block of 2
        const V t523 = t507 - t513;
        // complex block of 31, multiplier 2
        const V t524 = c[24] * t523;
        const V t525 = c[25] * t523;
        // complex block of 3
        const V t526 = t391 + t298;
        // complex block of 3
        const V t527 = t344 + t412;
        // complex block of 2
        const V t528 = t526 + t527;
        const V t529 = t526 - t527;
        // complex block of 31, multiplier 2
        const V t530 = c[26] * t529;
        const V t531 = c[27] * t529;
        const V t532 = c[28] * t528;
        const V t533 = c[29] * t528;
        // complex block of 3
        const V t534 = t394 + t301;
        // complex block of 3
        const V t535 = t347 + t415;
        // complex block of 2
        const V t536 = t534 + t535;
        const V t537 = t535 - t534;
        // complex block of 31, multiplier 2
        const V t538 = c[27] * t537;
        const V t539 = c[26] * t537;
        const V t540 = c[29] * t536;
        const V t541 = c[28] * t536;
        // complex block of 3
        const V t542 = c[4] * t391;
        const V t543 = t298 - t542;
        const V t544 = c[5] * t395;
        const V t545 = t543 + t544;
        const V t546 = t543 - t544;
        // complex block of 3
        const V t547 = c[4] * t344;
        const V t548 = t412 - t547;
        const V t549 = c[5] * t348;
        const V t550 = t548 + t549;
        const V t551 = t548 - t549;
        // complex block of 2
        const V t552 = t545 + t550;
        // complex block of 31, multiplier 2
        const V t553 = c[19] * t552;
        const V t554 = c[18] * t552;
        // complex block of 2
        const V t555 = t545 - t550;
        // complex block of 31, multiplier 2
        const V t556 = c[21] * t555;
        const V t557 = c[20] * t555;
        // complex block of 2
        const V t558 = t546 + t551;
        // complex block of 31, multiplier 2
        const V t559 = c[23] * t558;
        const V t560 = c[22] * t558;
        // complex block of 2
        const V t561 = t546 - t551;
        // complex block of 31, multiplier 2
        const V t562 = c[25] * t561;
        const V t563 = c[24] * t561;
        // real block of 5
        const V x32r = io.re(32);
        const V x4r = io.re(4);
        const V t564 = x32r + x4r;
        const V t565 = x32r - x4r;
        const V t566 = c[0] * t564;
        const V t567 = c[1] * t564;
        const V x8r = io.re(8);
        const V x16r = io.re(16);
        const V t568 = x8r + x16r;
        const V t569 = x8r - x16r;
        const V t570 = c[1] * t568;
        const V t571 = t564 + t568;
        const V x2r = io.re(2);
        const V t572 = t571 + x2r;
        const V t573 = t566 - t570;
        const V t574 = t573 + x2r;
        const V t575 = c[2] * t565;
        const V t576 = c[3] * t569;
        const V t577 = t576 - t575;
        const V t578 = x2r - t567;
        const V t579 = c[0] * t568;
        const V t580 = t578 + t579;
        const V t581 = c[3] * t565;
        const V t582 = c[2] * t569;
        const V t583 = t581 + t582;
        // real block of 5
        const V x6r = io.re(6);
        const V x24r = io.re(24);
        const V t584 = x6r + x24r;
        const V t585 = x6r - x24r;
        const V x48r = io.re(48);
        const V x34r = io.re(34);
        const V t586 = x48r + x34r;
        const V t587 = x48r - x34r;
        const V t588 = t584 + t586;
        const V t589 = c[0] * t584;
        const V t590 = c[1] * t586;
        const V t591 = c[2] * t585;
        const V t592 = c[3] * t587;
        const V t593 = c[1] * t584;
        const V t594 = c[0] * t586;
        const V t595 = c[3] * t585;
        const V t596 = c[2] * t587;
        // real block of 5
        const V x22r = io.re(22);
        const V x44r = io.re(44);
        const V t597 = x22r + x44r;
        const V t598 = x22r - x44r;
        const V x26r = io.re(26);
        const V x42r = io.re(42);
        const V t599 = x26r + x42r;
        const V t600 = x26r - x42r;
        const V t601 = t599 + t597;
        const V t602 = c[0] * t599;
        const V t603 = c[1] * t597;
        const V t604 = c[2] * t600;
        const V t605 = c[3] * t598;
        const V t606 = c[1] * t599;
        const V t607 = c[0] * t597;
        const V t608 = c[3] * t600;
        const V t609 = c[2] * t598;
        const V x52r = io.re(52);
        const V t610 = t601 + x52r;
        // real block of 5
        const V x12r = io.re(12);
        const V t611 = t588 + x12r;
        // real block of 3
        const V t612 = t611 + t610;
        // real block of 5
        const V t613 = t602 - t603;
        const V t614 = t613 + x52r;
        // real block of 5
        const V t615 = t589 - t590;
        const V t616 = t615 + x12r;
        // complex block of 3
        const V t617 = t616 + t614;
        // real block of 5
        const V t618 = t605 - t604;
        // real block of 5
        const V t619 = t592 - t591;
        // complex block of 3
        const V t620 = t619 + t618;
        const V t621 = t619 - t618;
        // real block of 5
        const V t622 = x52r - t606;
        const V t623 = t622 + t607;
        // real block of 5
        const V t624 = x12r - t593;
        const V t625 = t624 + t594;
        // complex block of 3
        const V t626 = t625 + t623;
        // real block of 5
        const V t627 = t608 + t609;
        // real block of 5
        const V t628 = t595 + t596;
        // complex block of 3
        const V t629 = t628 + t627;
        const V t630 = t627 - t628;
        // real block of 5
        const V x14r = io.re(14);
        const V x28r = io.re(28);
        const V t631 = x14r + x28r;
        const V t632 = x14r - x28r;
        const V x56r = io.re(56);
        const V x38r = io.re(38);
        const V t633 = x56r + x38r;
        const V t634 = x56r - x38r;
        const V t635 = t633 + t631;
        const V t636 = c[0] * t633;
        const V t637 = c[1] * t631;
        const V t638 = c[2] * t634;
        const V t639 = c[3] * t632;
        const V t640 = c[1] * t633;
        const V t641 = c[0] * t631;
        const V t642 = c[3] * t634;
        const V t643 = c[2] * t632;
        // real block of 5
        const V x40r = io.re(40);
        const V x18r = io.re(18);
        const V t644 = x40r + x18r;
        const V t645 = x40r - x18r;
        const V x36r = io.re(36);
        const V x20r = io.re(20);
        const V t646 = x36r + x20r;
        const V t647 = x36r - x20r;
        const V t648 = t646 + t644;
        const V t649 = c[0] * t646;
        const V t650 = c[1] * t644;
        const V t651 = c[2] * t647;
        const V t652 = c[3] * t645;
        const V t653 = c[1] * t646;
        const V t654 = c[0] * t644;
        const V t655 = c[3] * t647;
        const V t656 = c[2] * t645;
        // real block of 5
        const V x50r = io.re(50);
        const V t657 = t635 + x50r;
        // real block of 5
        const V x10r = io.re(10);
        const V t658 = t648 + x10r;
        // real block of 3
        const V t659 = t657 + t658;
        // real block of 5
        const V t660 = t636 - t637;
        const V t661 = t660 + x50r;
        // real block of 5
        const V t662 = t649 - t650;
        const V t663 = t662 + x10r;
        // complex block of 3
        const V t664 = t661 + t663;
        // real block of 5
        const V t665 = t639 - t638;
        // real block of 5
        const V t666 = t652 - t651;
        // complex block of 3
        const V t667 = t665 + t666;
        const V t668 = t665 - t666;
        // real block of 5
        const V t669 = x50r - t640;
        const V t670 = t669 + t641;
        // real block of 5
        const V t671 = x10r - t653;
        const V t672 = t671 + t654;
        // complex block of 3
        const V t673 = t670 + t672;
        // real block of 5
        const V t674 = t642 + t643;
        // real block of 5
        const V t675 = t655 + t656;
        // complex block of 3
        const V t676 = t674 + t675;
        const V t677 = t675 - t674;
        // real block of 5
        const V x30r = io.re(30);
        const V x58r = io.re(58);
        const V t678 = x30r + x58r;
        const V t679 = x30r - x58r;
        const V t680 = c[0] * t678;
        const V t681 = c[1] * t678;
        const V x54r = io.re(54);
        const V x46r = io.re(46);
        const V t682 = x54r + x46r;
        const V t683 = x54r - x46r;
        const V t684 = c[1] * t682;
        const V t685 = t678 + t682;
        const V x60r = io.re(60);
        const V t686 = t685 + x60r;
        const V t687 = t680 - t684;
        const V t688 = t687 + x60r;
        const V t689 = c[2] * t679;
        const V t690 = c[3] * t683;
        const V t691 = t690 - t689;
        const V t692 = x60r - t681;
        const V t693 = c[0] * t682;
        const V t694 = t692 + t693;
        const V t695 = c[3] * t679;
        const V t696 = c[2] * t683;
        const V t697 = t695 + t696;
        // real block of 3
        const V t698 = t657 - t658;
        const V t699 = c[5] * t698;
        // real block of 3
        const V t700 = t611 - t610;
        const V t701 = c[5] * t700;
        // complex block of 2
        const V t702 = t699 + t701;
        // complex block of 31, multiplier 2
        const V t703 = c[30] * t702;
        // spectrum block of 3
        const V t704 = c[31] * t702;
        // complex block of 2
        const V t705 = t701 - t699;
        // complex block of 31, multiplier 2
        const V t706 = c[32] * t705;
        // spectrum block of 3
        const V t707 = c[33] * t705;
        // real block of 3
        const V t708 = t659 + t572;
        // real block of 3
        const V t709 = t612 + t686;
        // real block of 2
        const V t710 = t708 + t709;
        const V t711 = t708 - t709;
        // complex block of 31, multiplier 2
        const V t712 = c[34] * t710;
        const V t713 = c[35] * t711;
        // real block of 3
        const V t714 = c[4] * t659;
        const V t715 = t572 - t714;
        // real block of 3
        const V t716 = c[4] * t612;
        const V t717 = t686 - t716;
        // complex block of 2
        const V t718 = t715 + t717;
        // complex block of 31, multiplier 2
        const V t719 = c[36] * t718;
        // complex block of 2
        const V t720 = t715 - t717;
        // complex block of 31, multiplier 2
        const V t721 = c[37] * t720;
        // complex block of 3
        const V t722 = t661 - t663;
        const V t723 = c[5] * t722;
        const V t724 = c[4] * t667;
        const V t725 = t577 - t724;
        const V t726 = t725 - t723;
        const V t727 = t725 + t723;
        // complex block of 3
        const V t728 = t616 - t614;
        const V t729 = c[5] * t728;
        const V t730 = c[4] * t620;
        const V t731 = t691 - t730;
        const V t732 = t731 - t729;
        const V t733 = t731 + t729;
        // complex block of 2
        const V t734 = t726 + t732;
        // complex block of 31, multiplier 2
        const V t735 = c[6] * t734;
        const V t736 = c[7] * t734;
        // complex block of 2
        const V t737 = t726 - t732;
        // complex block of 31, multiplier 2
        const V t738 = c[8] * t737;
        const V t739 = c[9] * t737;
        // complex block of 2
        const V t740 = t727 + t733;
        // complex block of 31, multiplier 2
        const V t741 = c[10] * t740;
        const V t742 = c[11] * t740;
        // complex block of 2
        const V t743 = t727 - t733;
        // complex block of 31, multiplier 2
        const V t744 = c[12] * t743;
        const V t745 = c[13] * t743;
        // complex block of 3
        const V t746 = t664 + t574;
        // complex block of 3
        const V t747 = t617 + t688;
        // complex block of 2
        const V t748 = t746 + t747;
        const V t749 = t746 - t747;
        // complex block of 31, multiplier 2
        const V t750 = c[14] * t748;
        const V t751 = c[15] * t748;
        const V t752 = c[16] * t749;
        const V t753 = c[17] * t749;
        // complex block of 3
        const V t754 = t667 + t577;
        // complex block of 3
        const V t755 = t620 + t691;
        // complex block of 2
        const V t756 = t754 + t755;
        const V t757 = t754 - t755;
        // complex block of 31, multiplier 2
        const V t758 = c[15] * t756;
        const V t759 = c[14] * t756;
        const V t760 = c[17] * t757;
        const V t761 = c[16] * t757;
        // complex block of 3
        const V t762 = c[4] * t664;
        const V t763 = t574 - t762;
        const V t764 = c[5] * t668;
        const V t765 = t763 + t764;
        const V t766 = t763 - t764;
        // complex block of 3
        const V t767 = c[4] * t617;
        const V t768 = t688 - t767;
        const V t769 = c[5] * t621;
        const V t770 = t768 + t769;
        const V t771 = t768 - t769;
        // complex block of 2
        const V t772 = t765 + t770;
        // complex block of 31, multiplier 2
        const V t773 = c[7] * t772;
        const V t774 = c[6] * t772;
        // complex block of 2
        const V t775 = t765 - t770;
        // complex block of 31, multiplier 2
        const V t776 = c[9] * t775;
        const V t777 = c[8] * t775;
        // complex block of 2
        const V t778 = t766 + t771;
        // complex block of 31, multiplier 2
        const V t779 = c[11] * t778;
        const V t780 = c[10] * t778;
        // complex block of 2
        const V t781 = t766 - t771;
        // complex block of 31, multiplier 2
        const V t782 = c[13] * t781;
        const V t783 = c[12] * t781;
        // complex block of 3
        const V t784 = t670 - t672;
        const V t785 = c[5] * t784;
        const V t786 = c[4] * t676;
        const V t787 = t786 - t583;
        const V t788 = t787 - t785;
        const V t789 = t787 + t785;
        // complex block of 3
        const V t790 = t625 - t623;
        const V t791 = c[5] * t790;
        const V t792 = c[4] * t629;
        const V t793 = t792 - t697;
        const V t794 = t793 - t791;
        const V t795 = t793 + t791;
        // complex block of 2
        const V t796 = t788 + t794;
        // complex block of 31, multiplier 2
        const V t797 = c[18] * t796;
        const V t798 = c[19] * t796;
        // complex block of 2
        const V t799 = t788 - t794;
        // complex block of 31, multiplier 2
        const V t800 = c[20] * t799;
        const V t801 = c[21] * t799;
        // complex block of 2
        const V t802 = t789 + t795;
        // complex block of 31, multiplier 2
        const V t803 = c[22] * t802;
        const V t804 = c[23] * t802;
        // complex block of 2
        const V t805 = t789 - t795;
        // complex block of 31, multiplier 2
        const V t806 = c[24] * t805;
        const V t807 = c[25] * t805;
        // complex block of 3
        const V t808 = t673 + t580;
        // complex block of 3
        const V t809 = t626 + t694;
        // complex block of 2
        const V t810 = t808 + t809;
        const V t811 = t808 - t809;
        // complex block of 31, multiplier 2
        const V t812 = c[26] * t811;
        const V t813 = c[27] * t811;
        const V t814 = c[28] * t810;
        const V t815 = c[29] * t810;
        // complex block of 3
        const V t816 = t676 + t583;
        // complex block of 3
        const V t817 = t629 + t697;
        // complex block of 2
        const V t818 = t816 + t817;
        const V t819 = t817 - t816;
        // complex block of 31, multiplier 2
        const V t820 = c[27] * t819;
        const V t821 = c[26] * t819;
        const V t822 = c[29] * t818;
        const V t823 = c[28] * t818;
        // complex block of 3
        const V t824 = c[4] * t673;
        const V t825 = t580 - t824;
        const V t826 = c[5] * t677;
        const V t827 = t825 + t826;
        const V t828 = t825 - t826;
        // complex block of 3
        const V t829 = c[4] * t626;
        const V t830 = t694 - t829;
        const V t831 = c[5] * t630;
        const V t832 = t830 + t831;
        const V t833 = t830 - t831;
        // complex block of 2
        const V t834 = t827 + t832;
        // complex block of 31, multiplier 2
        const V t835 = c[19] * t834;
        const V t836 = c[18] * t834;
        // complex block of 2
        const V t837 = t827 - t832;
        // complex block of 31, multiplier 2
        const V t838 = c[21] * t837;
        const V t839 = c[20] * t837;
        // complex block of 2
        const V t840 = t828 + t833;
        // complex block of 31, multiplier 2
        const V t841 = c[23] * t840;
        const V t842 = c[22] * t840;
        // complex block of 2
        const V t843 = t828 - t833;
        // complex block of 31, multiplier 2
        const V t844 = c[25] * t843;
        const V t845 = c[24] * t843;
        // real block of 5
        const V x32i = io.im(32);
        const V x4i = io.im(4);
        const V t846 = x32i + x4i;
        const V t847 = x32i - x4i;
        const V t848 = c[0] * t846;
        const V t849 = c[1] * t846;
        const V x8i = io.im(8);
        const V x16i = io.im(16);
        const V t850 = x8i + x16i;
        const V t851 = x8i - x16i;
        const V t852 = c[1] * t850;
        const V t853 = t846 + t850;
        const V x2i = io.im(2);
        const V t854 = t853 + x2i;
        const V t855 = t848 - t852;
        const V t856 = t855 + x2i;
        const V t857 = c[2] * t847;
        const V t858 = c[3] * t851;
        const V t859 = t858 - t857;
        const V t860 = x2i - t849;
        const V t861 = c[0] * t850;
        const V t862 = t860 + t861;
        const V t863 = c[3] * t847;
        const V t864 = c[2] * t851;
        const V t865 = t863 + t864;
        // real block of 5
        const V x6i = io.im(6);
        const V x24i = io.im(24);
        const V t866 = x6i + x24i;
        const V t867 = x6i - x24i;
        const V x48i = io.im(48);
        const V x34i = io.im(34);
        const V t868 = x48i + x34i;
        const V t869 = x48i - x34i;
        const V t870 = t866 + t868;
        const V t871 = c[0] * t866;
        const V t872 = c[1] * t868;
        const V t873 = c[2] * t867;
        const V t874 = c[3] * t869;
        const V t875 = c[1] * t866;
        const V t876 = c[0] * t868;
        const V t877 = c[3] * t867;
        const V t878 = c[2] * t869;
        // real block of 5
        const V x22i = io.im(22);
        const V x44i = io.im(44);
        const V t879 = x22i + x44i;
        const V t880 = x22i - x44i;
        const V x26i = io.im(26);
        const V x42i = io.im(42);
        const V t881 = x26i + x42i;
        const V t882 = x26i - x42i;
        const V t883 = t881 + t879;
        const V t884 = c[0] * t881;
        const V t885 = c[1] * t879;
        const V t886 = c[2] * t882;
        const V t887 = c[3] * t880;
        const V t888 = c[1] * t881;
        const V t889 = c[0] * t879;
        const V t890 = c[3] * t882;
        const V t891 = c[2] * t880;
        const V x52i = io.im(52);
        const V t892 = t883 + x52i;
        // real block of 5
        const V x12i = io.im(12);
        const V t893 = t870 + x12i;
        // real block of 3
        const V t894 = t893 + t892;
        // real block of 5
        const V t895 = t884 - t885;
        const V t896 = t895 + x52i;
        // real block of 5
        const V t897 = t871 - t872;
        const V t898 = t897 + x12i;
        // complex block of 3
        const V t899 = t898 + t896;
        // real block of 5
        const V t900 = t887 - t886;
        // real block of 5
        const V t901 = t874 - t873;
        // complex block of 3
        const V t902 = t901 + t900;
        const V t903 = t901 - t900;
        // real block of 5
        const V t904 = x52i - t888;
        const V t905 = t904 + t889;
        // real block of 5
        const V t906 = x12i - t875;
        const V t907 = t906 + t876;
        // complex block of 3
        const V t908 = t907 + t905;
        // real block of 5
        const V t909 = t890 + t891;
        // real block of 5
        const V t910 = t877 + t878;
        // complex block of 3
        const V t911 = t910 + t909;
        const V t912 = t909 - t910;
        // real block of 5
        const V x14i = io.im(14);
        const V x28i = io.im(28);
        const V t913 = x14i + x28i;
        const V t914 = x14i - x28i;
        const V x56i = io.im(56);
        const V x38i = io.im(38);
        const V t915 = x56i + x38i;
        const V t916 = x56i - x38i;
        const V t917 = t915 + t913;
        const V t918 = c[0] * t915;
        const V t919 = c[1] * t913;
        const V t920 = c[2] * t916;
        const V t921 = c[3] * t914;
        const V t922 = c[1] * t915;
        const V t923 = c[0] * t913;
        const V t924 = c[3] * t916;
        const V t925 = c[2] * t914;
        // real block of 5
        const V x40i = io.im(40);
        const V x18i = io.im(18);
        const V t926 = x40i + x18i;
        const V t927 = x40i - x18i;
        const V x36i = io.im(36);
        const V x20i = io.im(20);
        const V t928 = x36i + x20i;
        const V t929 = x36i - x20i;
        const V t930 = t928 + t926;
        const V t931 = c[0] * t928;
        const V t932 = c[1] * t926;
        const V t933 = c[2] * t929;
        const V t934 = c[3] * t927;
        const V t935 = c[1] * t928;
        const V t936 = c[0] * t926;
        const V t937 = c[3] * t929;
        const V t938 = c[2] * t927;
        // real block of 5
        const V x50i = io.im(50);
        const V t939 = t917 + x50i;
        // real block of 5
        const V x10i = io.im(10);
        const V t940 = t930 + x10i;
        // real block of 3
        const V t941 = t939 + t940;
        // real block of 5
        const V t942 = t918 - t919;
        const V t943 = t942 + x50i;
        // real block of 5
        const V t944 = t931 - t932;
        const V t945 = t944 + x10i;
        // complex block of 3
        const V t946 = t943 + t945;
        // real block of 5
        const V t947 = t921 - t920;
        // real block of 5
        const V t948 = t934 - t933;
        // complex block of 3
        const V t949 = t947 + t948;
        const V t950 = t947 - t948;
        // real block of 5
        const V t951 = x50i - t922;
        const V t952 = t951 + t923;
        // real block of 5
        const V t953 = x10i - t935;
        const V t954 = t953 + t936;
        // complex block of 3
        const V t955 = t952 + t954;
        // real block of 5
        const V t956 = t924 + t925;
        // real block of 5
        const V t957 = t937 + t938;
        // complex block of 3
        const V t958 = t956 + t957;
        const V t959 = t957 - t956;
        // real block of 5
        const V x30i = io.im(30);
        const V x58i = io.im(58);
        const V t960 = x30i + x58i;
        const V t961 = x30i - x58i;
        const V t962 = c[0] * t960;
        const V t963 = c[1] * t960;
        const V x54i = io.im(54);
        const V x46i = io.im(46);
        const V t964 = x54i + x46i;
        const V t965 = x54i - x46i;
        const V t966 = c[1] * t964;
        const V t967 = t960 + t964;
        const V x60i = io.im(60);
        const V t968 = t967 + x60i;
        const V t969 = t962 - t966;
        const V t970 = t969 + x60i;
        const V t971 = c[2] * t961;
        const V t972 = c[3] * t965;
        const V t973 = t972 - t971;
        const V t974 = x60i - t963;
        const V t975 = c[0] * t964;
        const V t976 = t974 + t975;
        const V t977 = c[3] * t961;
        const V t978 = c[2] * t965;
        const V t979 = t977 + t978;
        // real block of 3
        const V t980 = t939 - t940;
        const V t981 = c[5] * t980;
        // real block of 3
        const V t982 = t893 - t892;
        const V t983 = c[5] * t982;
        // complex block of 2
        const V t984 = t981 + t983;
        // complex block of 31, multiplier 2
        const V t985 = c[30] * t984;
        // spectrum block of 3
        const V t986 = c[31] * t984;
        // complex block of 2
        const V t987 = t983 - t981;
        // complex block of 31, multiplier 2
        const V t988 = c[32] * t987;
        // spectrum block of 3
        const V t989 = c[33] * t987;
        // real block of 3
        const V t990 = t941 + t854;
        // real block of 3
        const V t991 = t894 + t968;
        // real block of 2
        const V t992 = t990 + t991;
        const V t993 = t990 - t991;
        // complex block of 31, multiplier 2
        const V t994 = c[34] * t992;
        const V t995 = c[35] * t993;
        // real block of 3
        const V t996 = c[4] * t941;
        const V t997 = t854 - t996;
        // real block of 3
        const V t998 = c[4] * t894;
        const V t999 = t968 - t998;
        // complex block of 2
        const V t1000 = t997 + t999;
        // complex block of 31, multiplier 2
        const V t1001 = c[36] * t1000;
        // complex block of 2
        const V t1002 = t997 - t999;
        // complex block of 31, multiplier 2
        const V t1003 = c[37] * t1002;
        // complex block of 3
        const V t1004 = t943 - t945;
        const V t1005 = c[5] * t1004;
        const V t1006 = c[4] * t949;
        const V t1007 = t859 - t1006;
        const V t1008 = t1007 - t1005;
        const V t1009 = t1007 + t1005;
        // complex block of 3
        const V t1010 = t898 - t896;
        const V t1011 = c[5] * t1010;
        const V t1012 = c[4] * t902;
        const V t1013 = t973 - t1012;
        const V t1014 = t1013 - t1011;
        const V t1015 = t1013 + t1011;
        // complex block of 2
        const V t1016 = t1008 + t1014;
        // complex block of 31, multiplier 2
        const V t1017 = c[6] * t1016;
        const V t1018 = c[7] * t1016;
        // complex block of 2
        const V t1019 = t1008 - t1014;
        // complex block of 31, multiplier 2
        const V t1020 = c[8] * t1019;
        const V t1021 = c[9] * t1019;
        // complex block of 2
        const V t1022 = t1009 + t1015;
        // complex block of 31, multiplier 2
        const V t1023 = c[10] * t1022;
        const V t1024 = c[11] * t1022;
        // complex block of 2
        const V t1025 = t1009 - t1015;
        // complex block of 31, multiplier 2
        const V t1026 = c[12] * t1025;
        const V t1027 = c[13] * t1025;
        // complex block of 3
        const V t1028 = t946 + t856;
        // complex block of 3
        const V t1029 = t899 + t970;
        // complex block of 2
        const V t1030 = t1028 + t1029;
        const V t1031 = t1028 - t1029;
        // complex block of 31, multiplier 2
        const V t1032 = c[14] * t1030;
        const V t1033 = c[15] * t1030;
        const V t1034 = c[16] * t1031;
        const V t1035 = c[17] * t1031;
        // complex block of 3
        const V t1036 = t949 + t859;
        // complex block of 3
        const V t1037 = t902 + t973;
        // complex block of 2
        const V t1038 = t1036 + t1037;
        const V t1039 = t1036 - t1037;
        // complex block of 31, multiplier 2
        const V t1040 = c[15] * t1038;
        const V t1041 = c[14] * t1038;
        const V t1042 = c[17] * t1039;
        const V t1043 = c[16] * t1039;
        // complex block of 3
        const V t1044 = c[4] * t946;
        const V t1045 = t856 - t1044;
        const V t1046 = c[5] * t950;
        const V t1047 = t1045 + t1046;
        const V t1048 = t1045 - t1046;
        // complex block of 3
        const V t1049 = c[4] * t899;
        const V t1050 = t970 - t1049;
        const V t1051 = c[5] * t903;
        const V t1052 = t1050 + t1051;
        const V t1053 = t1050 - t1051;
        // complex block of 2
        const V t1054 = t1047 + t1052;
        // complex block of 31, multiplier 2
        const V t1055 = c[7] * t1054;
        const V t1056 = c[6] * t1054;
        // complex block of 2
        const V t1057 = t1047 - t1052;
        // complex block of 31, multiplier 2
        const V t1058 = c[9] * t1057;
        const V t1059 = c[8] * t1057;
        // complex block of 2
        const V t1060 = t1048 + t1053;
        // complex block of 31, multiplier 2
        const V t1061 = c[11] * t1060;
        const V t1062 = c[10] * t1060;
        // complex block of 2
        const V t1063 = t1048 - t1053;
        // complex block of 31, multiplier 2
        const V t1064 = c[13] * t1063;
        const V t1065 = c[12] * t1063;
        // complex block of 3
        const V t1066 = t952 - t954;
        const V t1067 = c[5] * t1066;
        const V t1068 = c[4] * t958;
        const V t1069 = t1068 - t865;
        const V t1070 = t1069 - t1067;
        const V t1071 = t1069 + t1067;
        // complex block of 3
        const V t1072 = t907 - t905;
        const V t1073 = c[5] * t1072;
        const V t1074 = c[4] * t911;
        const V t1075 = t1074 - t979;
        const V t1076 = t1075 - t1073;
        const V t1077 = t1075 + t1073;
        // complex block of 2
        const V t1078 = t1070 + t1076;
        // complex block of 31, multiplier 2
        const V t1079 = c[18] * t1078;
        const V t1080 = c[19] * t1078;
        // complex block of 2
        const V t1081 = t1070 - t1076;
        // complex block of 31, multiplier 2
        const V t1082 = c[20] * t1081;
        const V t1083 = c[21] * t1081;
        // complex block of 2
        const V t1084 = t1071 + t1077;
        // complex block of 31, multiplier 2
        const V t1085 = c[22] * t1084;
        const V t1086 = c[23] * t1084;
        // complex block of 2
        const V t1087 = t1071 - t1077;
        // complex block of 31, multiplier 2
        const V t1088 = c[24] * t1087;
        const V t1089 = c[25] * t1087;
        // complex block of 3
        const V t1090 = t955 + t862;
        // complex block of 3
        const V t1091 = t908 + t976;
        // complex block of 2
        const V t1092 = t1090 + t1091;
        const V t1093 = t1090 - t1091;
        // complex block of 31, multiplier 2
        const V t1094 = c[26] * t1093;
        const V t1095 = c[27] * t1093;
        const V t1096 = c[28] * t1092;
        const V t1097 = c[29] * t1092;
        // complex block of 3
        const V t1098 = t958 + t865;
        // complex block of 3
        const V t1099 = t911 + t979;
        // complex block of 2
        const V t1100 = t1098 + t1099;
        const V t1101 = t1099 - t1098;
        // complex block of 31, multiplier 2
        const V t1102 = c[27] * t1101;
        const V t1103 = c[26] * t1101;
        const V t1104 = c[29] * t1100;
        const V t1105 = c[28] * t1100;
        // complex block of 3
        const V t1106 = c[4] * t955;
        const V t1107 = t862 - t1106;
        const V t1108 = c[5] * t959;
        const V t1109 = t1107 + t1108;
        const V t1110 = t1107 - t1108;
        // complex block of 3
        const V t1111 = c[4] * t908;
        const V t1112 = t976 - t1111;
        const V t1113 = c[5] * t912;
        const V t1114 = t1112 + t1113;
        const V t1115 = t1112 - t1113;
        // complex block of 2
        const V t1116 = t1109 + t1114;
        // complex block of 31, multiplier 2
        const V t1117 = c[19] * t1116;
        const V t1118 = c[18] * t1116;
        // complex block of 2
        const V t1119 = t1109 - t1114;
        // complex block of 31, multiplier 2
        const V t1120 = c[21] * t1119;
        const V t1121 = c[20] * t1119;
        // complex block of 2
        const V t1122 = t1110 + t1115;
        // complex block of 31, multiplier 2
        const V t1123 = c[23] * t1122;
        const V t1124 = c[22] * t1122;
        // complex block of 2
        const V t1125 = t1110 - t1115;
        // complex block of 31, multiplier 2
        const V t1126 = c[25] * t1125;
        const V t1127 = c[24] * t1125;
        const V x0r = io.re(0);
        const V t1128 = x0r + t710;
        // complex block of 31, multiplier 2
        const V x31r = io.re(31);
        const V t1129 = x31r + t146;
        // complex block of 2
        const V t1130 = t1128 + t1129;
        const V t1131 = t1128 - t1129;
        // complex block of 31, multiplier 2
        const V x0i = io.im(0);
        const V t1132 = x0i + t992;
        const V x31i = io.im(31);
        io.re(0, t1130);
        io.re(31, t1131);
        // complex block of 31, multiplier 2
        const V t1133 = x31i + t428;
        // complex block of 2
        const V t1134 = t1132 + t1133;
        io.im(0, t1134);
        const V t1135 = t1132 - t1133;
        io.im(31, t1135);
        // complex block of 31, multiplier 2
        const V t1136 = x0r - t712;
        const V t1137 = t719 + t703;
        // spectrum block of 3
        const V t1138 = t1137 + t1136;
        const V t1139 = c[4] * t1137;
        // complex block of 31, multiplier 2
        const V t1140 = t841 + t803;
        const V t1141 = t835 - t797;
        // complex block of 3
        const V t1142 = t1141 - t1140;
        // complex block of 31, multiplier 2
        const V t1143 = t822 - t814;
        // complex block of 3
        const V t1144 = t1141 + t1140;
        const V t1145 = t1142 + t1143;
        const V t1146 = c[4] * t1142;
        // complex block of 31, multiplier 2
        const V t1147 = t842 - t804;
        const V t1148 = t798 + t836;
        // complex block of 3
        const V t1149 = t1148 + t1147;
        const V t1150 = t1148 - t1147;
        const V t1151 = c[4] * t1149;
        const V t1152 = c[5] * t1150;
        // complex block of 31, multiplier 2
        const V t1153 = t779 + t741;
        const V t1154 = t773 + t735;
        // complex block of 3
        const V t1155 = t1154 + t1153;
        // complex block of 31, multiplier 2
        const V t1156 = t750 - t758;
        // complex block of 3
        const V t1157 = t1154 - t1153;
        const V t1158 = t1155 + t1156;
        const V t1159 = c[4] * t1155;
        // complex block of 31, multiplier 2
        const V t1160 = t780 - t742;
        const V t1161 = t774 - t736;
        // complex block of 3
        const V t1162 = t1161 + t1160;
        const V t1163 = t1160 - t1161;
        const V t1164 = c[4] * t1162;
        const V t1165 = c[5] * t1163;
        // complex block of 31, multiplier 2
        const V t1166 = t759 + t751;
        const V t1167 = t823 + t815;
        // spectrum block of 3
        const V t1168 = c[38] * t718;
        const V t1169 = t1168 - t704;
        const V t1170 = t1136 - t1139;
        const V t1171 = t1170 - t1169;
        const V t1172 = t1170 + t1169;
        // complex block of 3
        const V t1173 = t1166 - t1162;
        // spectrum block of 5
        const V t1174 = c[2] * t1173;
        const V t1175 = c[3] * t1173;
        // complex block of 3
        const V t1176 = t1164 + t1166;
        const V t1177 = c[5] * t1157;
        const V t1178 = t1176 + t1177;
        const V t1179 = t1176 - t1177;
        const V t1180 = t1156 - t1159;
        const V t1181 = t1180 - t1165;
        const V t1182 = t1180 + t1165;
        // spectrum block of 5
        const V t1183 = c[0] * t1181;
        const V t1184 = c[1] * t1181;
        // spectrum block of 5
        const V t1185 = c[0] * t1182;
        const V t1186 = c[1] * t1182;
        // complex block of 3
        const V t1187 = t1149 + t1167;
        // spectrum block of 5
        const V t1188 = c[3] * t1187;
        const V t1189 = c[2] * t1187;
        // complex block of 3
        const V t1190 = t1167 - t1151;
        const V t1191 = c[5] * t1144;
        const V t1192 = t1190 + t1191;
        const V t1193 = t1190 - t1191;
        const V t1194 = t1143 - t1146;
        const V t1195 = t1194 - t1152;
        const V t1196 = t1194 + t1152;
        // spectrum block of 5
        const V t1197 = c[1] * t1195;
        // spectrum block of 5
        const V t1198 = c[1] * t1196;
        // spectrum block of 5
        const V t1199 = t1158 + t1145;
        const V t1200 = c[0] * t1158;
        const V t1201 = c[1] * t1145;
        const V t1202 = t1200 - t1201;
        const V t1203 = c[1] * t1158;
        const V t1204 = t1138 - t1203;
        const V t1205 = c[0] * t1145;
        // complex block of 31, multiplier 2
        const V t1206 = t1058 + t1020;
        const V t1207 = t1064 + t1026;
        // complex block of 3
        const V t1208 = t1206 - t1207;
        // complex block of 31, multiplier 2
        const V t1209 = t1034 + t1042;
        // complex block of 3
        const V t1210 = t1207 + t1206;
        const V t1211 = t1208 + t1209;
        const V t1212 = c[4] * t1208;
        // complex block of 31, multiplier 2
        const V t1213 = t1021 - t1059;
        const V t1214 = t1065 - t1027;
        // complex block of 3
        const V t1215 = t1214 + t1213;
        const V t1216 = t1213 - t1214;
        const V t1217 = c[4] * t1215;
        const V t1218 = c[5] * t1216;
        // complex block of 31, multiplier 2
        const V t1219 = t1094 - t1102;
        const V t1220 = t1120 + t1082;
        const V t1221 = t1126 + t1088;
        // complex block of 3
        const V t1222 = t1220 - t1221;
        const V t1223 = t1221 + t1220;
        const V t1224 = t1222 + t1219;
        const V t1225 = c[4] * t1222;
        // complex block of 31, multiplier 2
        const V t1226 = t1103 + t1095;
        const V t1227 = t1003 + t988;
        // spectrum block of 3
        const V t1228 = t1227 + t995;
        const V t1229 = c[4] * t1227;
        // complex block of 31, multiplier 2
        const V t1230 = t1083 - t1121;
        const V t1231 = t1089 - t1127;
        // complex block of 3
        const V t1232 = t1231 - t1230;
        const V t1233 = t1231 + t1230;
        const V t1234 = c[4] * t1232;
        const V t1235 = c[5] * t1233;
        // complex block of 31, multiplier 2
        const V t1236 = t1035 - t1043;
        // spectrum block of 3
        const V t1237 = c[39] * t1002;
        const V t1238 = t1237 - t989;
        // complex block of 3
        const V t1239 = t1232 - t1226;
        // spectrum block of 5
        const V t1240 = c[3] * t1239;
        const V t1241 = c[2] * t1239;
        // complex block of 3
        const V t1242 = t1226 + t1234;
        const V t1243 = c[5] * t1223;
        const V t1244 = t1242 + t1243;
        const V t1245 = t1243 - t1242;
        const V t1246 = t1219 - t1225;
        const V t1247 = t1246 - t1235;
        const V t1248 = t1246 + t1235;
        // spectrum block of 5
        const V t1249 = c[1] * t1247;
        // spectrum block of 5
        const V t1250 = c[1] * t1248;
        // complex block of 3
        const V t1251 = t1236 - t1215;
        // spectrum block of 5
        const V t1252 = c[2] * t1251;
        const V t1253 = c[3] * t1251;
        // complex block of 3
        const V t1254 = t1217 + t1236;
        const V t1255 = c[5] * t1210;
        const V t1256 = t1254 - t1255;
        const V t1257 = t1254 + t1255;
        const V t1258 = t1209 - t1212;
        const V t1259 = t1258 - t1218;
        const V t1260 = t1258 + t1218;
        // spectrum block of 5
        const V t1261 = c[0] * t1259;
        const V t1262 = c[1] * t1259;
        // spectrum block of 5
        const V t1263 = c[0] * t1260;
        const V t1264 = c[1] * t1260;
        // spectrum block of 3
        const V t1265 = t995 - t1229;
        const V t1266 = t1265 + t1238;
        const V t1267 = t1265 - t1238;
        // spectrum block of 5
        const V t1268 = t1211 + t1224;
        const V t1269 = c[0] * t1211;
        const V t1270 = c[1] * t1224;
        const V t1271 = t1269 - t1270;
        const V t1272 = c[1] * t1211;
        const V t1273 = t1228 - t1272;
        const V t1274 = c[0] * t1224;
        // complex block of 31, multiplier 2
        const V t1275 = x31r - t148;
        const V t1276 = t155 + t139;
        // spectrum block of 3
        const V t1277 = t1276 + t1275;
        const V t1278 = c[4] * t1276;
        // complex block of 31, multiplier 2
        const V t1279 = t277 + t239;
        const V t1280 = t271 - t233;
        // complex block of 3
        const V t1281 = t1280 - t1279;
        // complex block of 31, multiplier 2
        const V t1282 = t258 - t250;
        // complex block of 3
        const V t1283 = t1280 + t1279;
        const V t1284 = t1281 + t1282;
        const V t1285 = c[4] * t1281;
        // complex block of 31, multiplier 2
        const V t1286 = t278 - t240;
        const V t1287 = t234 + t272;
        // complex block of 3
        const V t1288 = t1287 + t1286;
        const V t1289 = t1287 - t1286;
        const V t1290 = c[4] * t1288;
        const V t1291 = c[5] * t1289;
        // complex block of 31, multiplier 2
        const V t1292 = t215 + t177;
        const V t1293 = t209 + t171;
        // complex block of 3
        const V t1294 = t1293 + t1292;
        // complex block of 31, multiplier 2
        const V t1295 = t186 - t194;
        // complex block of 3
        const V t1296 = t1293 - t1292;
        const V t1297 = t1294 + t1295;
        const V t1298 = c[4] * t1294;
        // complex block of 31, multiplier 2
        const V t1299 = t216 - t178;
        const V t1300 = t210 - t172;
        // complex block of 3
        const V t1301 = t1300 + t1299;
        const V t1302 = t1299 - t1300;
        const V t1303 = c[4] * t1301;
        const V t1304 = c[5] * t1302;
        // complex block of 31, multiplier 2
        const V t1305 = t195 + t187;
        const V t1306 = t259 + t251;
        // spectrum block of 3
        const V t1307 = c[38] * t154;
        const V t1308 = t1307 - t140;
        const V t1309 = t1275 - t1278;
        const V t1310 = t1309 - t1308;
        const V t1311 = t1309 + t1308;
        // complex block of 3
        const V t1312 = t1305 - t1301;
        // spectrum block of 5
        const V t1313 = c[2] * t1312;
        const V t1314 = c[3] * t1312;
        // complex block of 3
        const V t1315 = t1303 + t1305;
        const V t1316 = c[5] * t1296;
        const V t1317 = t1315 + t1316;
        const V t1318 = t1315 - t1316;
        const V t1319 = t1295 - t1298;
        const V t1320 = t1319 - t1304;
        const V t1321 = t1319 + t1304;
        // spectrum block of 5
        const V t1322 = c[0] * t1320;
        const V t1323 = c[1] * t1320;
        // spectrum block of 5
        const V t1324 = c[0] * t1321;
        const V t1325 = c[1] * t1321;
        // complex block of 3
        const V t1326 = t1288 + t1306;
        // spectrum block of 5
        const V t1327 = c[3] * t1326;
        const V t1328 = c[2] * t1326;
        // complex block of 3
        const V t1329 = t1306 - t1290;
        const V t1330 = c[5] * t1283;
        const V t1331 = t1329 + t1330;
        const V t1332 = t1329 - t1330;
        const V t1333 = t1282 - t1285;
        const V t1334 = t1333 - t1291;
        const V t1335 = t1333 + t1291;
        // spectrum block of 5
        const V t1336 = c[1] * t1334;
        // spectrum block of 5
        const V t1337 = c[1] * t1335;
        // spectrum block of 5
        const V t1338 = t1297 + t1284;
        const V t1339 = c[0] * t1297;
        const V t1340 = c[1] * t1284;
        const V t1341 = t1339 - t1340;
        const V t1342 = c[1] * t1297;
        const V t1343 = t1277 - t1342;
        const V t1344 = c[0] * t1284;
        // complex block of 31, multiplier 2
        const V t1345 = t494 + t456;
        const V t1346 = t500 + t462;
        // complex block of 3
        const V t1347 = t1345 - t1346;
        // complex block of 31, multiplier 2
        const V t1348 = t470 + t478;
        // complex block of 3
        const V t1349 = t1346 + t1345;
        const V t1350 = t1347 + t1348;
        const V t1351 = c[4] * t1347;
        // complex block of 31, multiplier 2
        const V t1352 = t457 - t495;
        const V t1353 = t501 - t463;
        // complex block of 3
        const V t1354 = t1353 + t1352;
        const V t1355 = t1352 - t1353;
        const V t1356 = c[4] * t1354;
        const V t1357 = c[5] * t1355;
        // complex block of 31, multiplier 2
        const V t1358 = t530 - t538;
        const V t1359 = t556 + t518;
        const V t1360 = t562 + t524;
        // complex block of 3
        const V t1361 = t1359 - t1360;
        const V t1362 = t1360 + t1359;
        const V t1363 = t1361 + t1358;
        const V t1364 = c[4] * t1361;
        // complex block of 31, multiplier 2
        const V t1365 = t539 + t531;
        const V t1366 = t439 + t424;
        // spectrum block of 3
        const V t1367 = t1366 + t431;
        const V t1368 = c[4] * t1366;
        // complex block of 31, multiplier 2
        const V t1369 = t519 - t557;
        const V t1370 = t525 - t563;
        // complex block of 3
        const V t1371 = t1370 - t1369;
        const V t1372 = t1370 + t1369;
        const V t1373 = c[4] * t1371;
        const V t1374 = c[5] * t1372;
        // complex block of 31, multiplier 2
        const V t1375 = t471 - t479;
        // spectrum block of 3
        const V t1376 = c[39] * t438;
        const V t1377 = t1376 - t425;
        // complex block of 3
        const V t1378 = t1371 - t1365;
        // spectrum block of 5
        const V t1379 = c[3] * t1378;
        const V t1380 = c[2] * t1378;
        // complex block of 3
        const V t1381 = t1365 + t1373;
        const V t1382 = c[5] * t1362;
        const V t1383 = t1381 + t1382;
        const V t1384 = t1382 - t1381;
        const V t1385 = t1358 - t1364;
        const V t1386 = t1385 - t1374;
        const V t1387 = t1385 + t1374;
        // spectrum block of 5
        const V t1388 = c[1] * t1386;
        // spectrum block of 5
        const V t1389 = c[1] * t1387;
        // complex block of 3
        const V t1390 = t1375 - t1354;
        // spectrum block of 5
        const V t1391 = c[2] * t1390;
        const V t1392 = c[3] * t1390;
        // complex block of 3
        const V t1393 = t1356 + t1375;
        const V t1394 = c[5] * t1349;
        const V t1395 = t1393 - t1394;
        const V t1396 = t1393 + t1394;
        const V t1397 = t1348 - t1351;
        const V t1398 = t1397 - t1357;
        const V t1399 = t1397 + t1357;
        // spectrum block of 5
        const V t1400 = c[0] * t1398;
        const V t1401 = c[1] * t1398;
        // spectrum block of 5
        const V t1402 = c[0] * t1399;
        const V t1403 = c[1] * t1399;
        // spectrum block of 3
        const V t1404 = t431 - t1368;
        const V t1405 = t1404 + t1377;
        const V t1406 = t1404 - t1377;
        // spectrum block of 5
        const V t1407 = t1350 + t1363;
        const V t1408 = c[0] * t1350;
        const V t1409 = c[1] * t1363;
        const V t1410 = t1408 - t1409;
        const V t1411 = c[1] * t1350;
        const V t1412 = t1367 - t1411;
        const V t1413 = c[0] * t1363;
        // spectrum block of 5
        const V t1414 = t1199 + t1138;
        // spectrum block of 5
        const V t1415 = t1268 + t1228;
        // spectrum block of 2
        const V t1416 = t1414 + t1415;
        const V t1417 = t1414 - t1415;
        // spectrum block of 5
        const V t1418 = t1338 + t1277;
        // spectrum block of 5
        const V t1419 = t1407 + t1367;
        // spectrum block of 2
        const V t1420 = t1418 + t1419;
        const V t1421 = t1418 - t1419;
        // complex block of 2
        const V t1422 = t1416 + t1420;
        io.re(2, t1422);
        const V t1423 = t1416 - t1420;
        io.re(33, t1423);
        // complex block of 2
        const V t1424 = t1417 + t1421;
        io.re(60, t1424);
        const V t1425 = t1417 - t1421;
        io.re(29, t1425);
        // spectrum block of 5
        const V t1426 = t1202 + t1138;
        const V t1427 = t1174 + t1188;
        const V t1428 = t1426 - t1427;
        const V t1429 = t1426 + t1427;
        // spectrum block of 5
        const V t1430 = t1271 + t1228;
        const V t1431 = t1252 + t1240;
        const V t1432 = t1430 + t1431;
        const V t1433 = t1430 - t1431;
        // spectrum block of 5
        const V t1434 = t1341 + t1277;
        const V t1435 = t1313 + t1327;
        const V t1436 = t1434 - t1435;
        const V t1437 = t1434 + t1435;
        // spectrum block of 5
        const V t1438 = t1410 + t1367;
        const V t1439 = t1391 + t1379;
        const V t1440 = t1438 + t1439;
        const V t1441 = t1438 - t1439;
        // spectrum block of 2
        const V t1442 = t1428 + t1432;
        // spectrum block of 2
        const V t1443 = t1436 + t1440;
        // complex block of 2
        const V t1444 = t1442 + t1443;
        io.re(4, t1444);
        const V t1445 = t1442 - t1443;
        io.re(35, t1445);
        // spectrum block of 2
        const V t1446 = t1428 - t1432;
        // spectrum block of 2
        const V t1447 = t1436 - t1440;
        // complex block of 2
        const V t1448 = t1446 + t1447;
        io.re(58, t1448);
        const V t1449 = t1446 - t1447;
        io.re(27, t1449);
        // spectrum block of 2
        const V t1450 = t1429 + t1433;
        // spectrum block of 2
        const V t1451 = t1437 + t1441;
        // complex block of 2
        const V t1452 = t1450 + t1451;
        io.re(32, t1452);
        const V t1453 = t1450 - t1451;
        io.re(1, t1453);
        // spectrum block of 2
        const V t1454 = t1429 - t1433;
        // spectrum block of 2
        const V t1455 = t1437 - t1441;
        // complex block of 2
        const V t1456 = t1454 + t1455;
        io.re(30, t1456);
        const V t1457 = t1454 - t1455;
        io.re(61, t1457);
        // spectrum block of 5
        const V t1458 = t1204 + t1205;
        const V t1459 = t1175 - t1189;
        const V t1460 = t1458 - t1459;
        const V t1461 = t1458 + t1459;
        // spectrum block of 5
        const V t1462 = t1273 + t1274;
        const V t1463 = t1241 - t1253;
        const V t1464 = t1462 - t1463;
        const V t1465 = t1462 + t1463;
        // spectrum block of 5
        const V t1466 = t1343 + t1344;
        const V t1467 = t1314 - t1328;
        const V t1468 = t1466 - t1467;
        const V t1469 = t1466 + t1467;
        // spectrum block of 5
        const V t1470 = t1412 + t1413;
        const V t1471 = t1380 - t1392;
        const V t1472 = t1470 - t1471;
        const V t1473 = t1470 + t1471;
        // spectrum block of 2
        const V t1474 = t1460 + t1464;
        // spectrum block of 2
        const V t1475 = t1468 + t1472;
        // complex block of 2
        const V t1476 = t1474 + t1475;
        io.re(8, t1476);
        const V t1477 = t1474 - t1475;
        io.re(39, t1477);
        // spectrum block of 2
        const V t1478 = t1460 - t1464;
        // spectrum block of 2
        const V t1479 = t1468 - t1472;
        // complex block of 2
        const V t1480 = t1478 + t1479;
        io.re(54, t1480);
        const V t1481 = t1478 - t1479;
        io.re(23, t1481);
        // spectrum block of 2
        const V t1482 = t1461 + t1465;
        // spectrum block of 2
        const V t1483 = t1469 + t1473;
        // complex block of 2
        const V t1484 = t1482 + t1483;
        io.re(16, t1484);
        const V t1485 = t1482 - t1483;
        io.re(47, t1485);
        // spectrum block of 2
        const V t1486 = t1461 - t1465;
        // spectrum block of 2
        const V t1487 = t1469 - t1473;
        // complex block of 2
        const V t1488 = t1486 + t1487;
        io.re(46, t1488);
        const V t1489 = t1486 - t1487;
        io.re(15, t1489);
        // spectrum block of 5
        const V t1490 = t1181 + t1195;
        const V t1491 = t1490 + t1171;
        // spectrum block of 5
        const V t1492 = t1259 + t1247;
        const V t1493 = t1492 + t1266;
        // spectrum block of 5
        const V t1494 = t1320 + t1334;
        const V t1495 = t1494 + t1310;
        // spectrum block of 5
        const V t1496 = t1398 + t1386;
        const V t1497 = t1496 + t1405;
        // spectrum block of 2
        const V t1498 = t1491 + t1493;
        // spectrum block of 2
        const V t1499 = t1495 + t1497;
        // complex block of 2
        const V t1500 = t1498 + t1499;
        io.re(10, t1500);
        const V t1501 = t1498 - t1499;
        io.re(41, t1501);
        // spectrum block of 2
        const V t1502 = t1491 - t1493;
        // spectrum block of 2
        const V t1503 = t1495 - t1497;
        // complex block of 2
        const V t1504 = t1502 + t1503;
        io.re(52, t1504);
        const V t1505 = t1502 - t1503;
        io.re(21, t1505);
        // spectrum block of 5
        const V t1506 = t1183 - t1197;
        const V t1507 = t1506 + t1171;
        const V t1508 = c[2] * t1178;
        const V t1509 = c[3] * t1192;
        const V t1510 = t1508 + t1509;
        const V t1511 = t1507 - t1510;
        const V t1512 = t1507 + t1510;
        // spectrum block of 5
        const V t1513 = t1261 - t1249;
        const V t1514 = t1513 + t1266;
        const V t1515 = c[2] * t1256;
        const V t1516 = c[3] * t1244;
        const V t1517 = t1516 - t1515;
        const V t1518 = t1514 - t1517;
        const V t1519 = t1514 + t1517;
        // spectrum block of 5
        const V t1520 = t1322 - t1336;
        const V t1521 = t1520 + t1310;
        const V t1522 = c[2] * t1317;
        const V t1523 = c[3] * t1331;
        const V t1524 = t1522 + t1523;
        const V t1525 = t1521 - t1524;
        const V t1526 = t1521 + t1524;
        // spectrum block of 5
        const V t1527 = t1400 - t1388;
        const V t1528 = t1527 + t1405;
        const V t1529 = c[2] * t1395;
        const V t1530 = c[3] * t1383;
        const V t1531 = t1530 - t1529;
        const V t1532 = t1528 - t1531;
        const V t1533 = t1528 + t1531;
        // spectrum block of 2
        const V t1534 = t1511 + t1518;
        // spectrum block of 2
        const V t1535 = t1525 + t1532;
        // complex block of 2
        const V t1536 = t1534 + t1535;
        io.re(20, t1536);
        const V t1537 = t1534 - t1535;
        io.re(51, t1537);
        // spectrum block of 2
        const V t1538 = t1511 - t1518;
        // spectrum block of 2
        const V t1539 = t1525 - t1532;
        // complex block of 2
        const V t1540 = t1538 + t1539;
        io.re(42, t1540);
        const V t1541 = t1538 - t1539;
        io.re(11, t1541);
        // spectrum block of 2
        const V t1542 = t1512 + t1519;
        // spectrum block of 2
        const V t1543 = t1526 + t1533;
        // complex block of 2
        const V t1544 = t1542 + t1543;
        io.re(36, t1544);
        const V t1545 = t1542 - t1543;
        io.re(5, t1545);
        // spectrum block of 2
        const V t1546 = t1512 - t1519;
        // spectrum block of 2
        const V t1547 = t1526 - t1533;
        // complex block of 2
        const V t1548 = t1546 + t1547;
        io.re(26, t1548);
        const V t1549 = t1546 - t1547;
        io.re(57, t1549);
        // spectrum block of 5
        const V t1550 = t1171 - t1184;
        const V t1551 = c[0] * t1195;
        const V t1552 = t1550 + t1551;
        const V t1553 = c[3] * t1178;
        const V t1554 = c[2] * t1192;
        const V t1555 = t1553 - t1554;
        const V t1556 = t1552 - t1555;
        const V t1557 = t1552 + t1555;
        // spectrum block of 5
        const V t1558 = t1266 - t1262;
        const V t1559 = c[0] * t1247;
        const V t1560 = t1558 + t1559;
        const V t1561 = c[3] * t1256;
        const V t1562 = c[2] * t1244;
        const V t1563 = t1561 + t1562;
        const V t1564 = t1560 + t1563;
        const V t1565 = t1560 - t1563;
        // spectrum block of 5
        const V t1566 = t1310 - t1323;
        const V t1567 = c[0] * t1334;
        const V t1568 = t1566 + t1567;
        const V t1569 = c[3] * t1317;
        const V t1570 = c[2] * t1331;
        const V t1571 = t1569 - t1570;
        const V t1572 = t1568 - t1571;
        const V t1573 = t1568 + t1571;
        // spectrum block of 5
        const V t1574 = t1405 - t1401;
        const V t1575 = c[0] * t1386;
        const V t1576 = t1574 + t1575;
        const V t1577 = c[3] * t1395;
        const V t1578 = c[2] * t1383;
        const V t1579 = t1577 + t1578;
        const V t1580 = t1576 + t1579;
        const V t1581 = t1576 - t1579;
        // spectrum block of 2
        const V t1582 = t1556 + t1564;
        // spectrum block of 2
        const V t1583 = t1572 + t1580;
        // complex block of 2
        const V t1584 = t1582 + t1583;
        io.re(40, t1584);
        const V t1585 = t1582 - t1583;
        io.re(9, t1585);
        // spectrum block of 2
        const V t1586 = t1556 - t1564;
        // spectrum block of 2
        const V t1587 = t1572 - t1580;
        // complex block of 2
        const V t1588 = t1586 + t1587;
        io.re(22, t1588);
        const V t1589 = t1586 - t1587;
        io.re(53, t1589);
        // spectrum block of 2
        const V t1590 = t1557 + t1565;
        // spectrum block of 2
        const V t1591 = t1573 + t1581;
        // complex block of 2
        const V t1592 = t1590 + t1591;
        io.re(18, t1592);
        const V t1593 = t1590 - t1591;
        io.re(49, t1593);
        // spectrum block of 2
        const V t1594 = t1557 - t1565;
        // spectrum block of 2
        const V t1595 = t1573 - t1581;
        // complex block of 2
        const V t1596 = t1594 + t1595;
        io.re(44, t1596);
        const V t1597 = t1594 - t1595;
        io.re(13, t1597);
        // spectrum block of 5
        const V t1598 = t1182 + t1196;
        const V t1599 = t1598 + t1172;
        // spectrum block of 5
        const V t1600 = t1260 + t1248;
        const V t1601 = t1600 + t1267;
        // spectrum block of 5
        const V t1602 = t1321 + t1335;
        const V t1603 = t1602 + t1311;
        // spectrum block of 5
        const V t1604 = t1399 + t1387;
        const V t1605 = t1604 + t1406;
        // spectrum block of 2
        const V t1606 = t1599 + t1601;
        // spectrum block of 2
        const V t1607 = t1603 + t1605;
        // complex block of 2
        const V t1608 = t1606 + t1607;
        io.re(50, t1608);
        const V t1609 = t1606 - t1607;
        io.re(19, t1609);
        // spectrum block of 2
        const V t1610 = t1599 - t1601;
        // spectrum block of 2
        const V t1611 = t1603 - t1605;
        // complex block of 2
        const V t1612 = t1610 + t1611;
        io.re(12, t1612);
        const V t1613 = t1610 - t1611;
        io.re(43, t1613);
        // spectrum block of 5
        const V t1614 = t1185 - t1198;
        const V t1615 = t1614 + t1172;
        const V t1616 = c[2] * t1179;
        const V t1617 = c[3] * t1193;
        const V t1618 = t1616 + t1617;
        const V t1619 = t1615 - t1618;
        const V t1620 = t1615 + t1618;
        // spectrum block of 5
        const V t1621 = t1263 - t1250;
        const V t1622 = t1621 + t1267;
        const V t1623 = c[2] * t1257;
        const V t1624 = c[3] * t1245;
        const V t1625 = t1623 + t1624;
        const V t1626 = t1622 + t1625;
        const V t1627 = t1622 - t1625;
        // spectrum block of 5
        const V t1628 = t1324 - t1337;
        const V t1629 = t1628 + t1311;
        const V t1630 = c[2] * t1318;
        const V t1631 = c[3] * t1332;
        const V t1632 = t1630 + t1631;
        const V t1633 = t1629 - t1632;
        const V t1634 = t1629 + t1632;
        // spectrum block of 5
        const V t1635 = t1402 - t1389;
        const V t1636 = t1635 + t1406;
        const V t1637 = c[2] * t1396;
        const V t1638 = c[3] * t1384;
        const V t1639 = t1637 + t1638;
        const V t1640 = t1636 + t1639;
        const V t1641 = t1636 - t1639;
        // spectrum block of 2
        const V t1642 = t1619 + t1626;
        // spectrum block of 2
        const V t1643 = t1633 + t1640;
        // complex block of 2
        const V t1644 = t1642 + t1643;
        io.re(38, t1644);
        const V t1645 = t1642 - t1643;
        io.re(7, t1645);
        // spectrum block of 2
        const V t1646 = t1619 - t1626;
        // spectrum block of 2
        const V t1647 = t1633 - t1640;
        // complex block of 2
        const V t1648 = t1646 + t1647;
        io.re(24, t1648);
        const V t1649 = t1646 - t1647;
        io.re(55, t1649);
        // spectrum block of 2
        const V t1650 = t1620 + t1627;
        // spectrum block of 2
        const V t1651 = t1634 + t1641;
        // complex block of 2
        const V t1652 = t1650 + t1651;
        io.re(56, t1652);
        const V t1653 = t1650 - t1651;
        io.re(25, t1653);
        // spectrum block of 2
        const V t1654 = t1620 - t1627;
        // spectrum block of 2
        const V t1655 = t1634 - t1641;
        // complex block of 2
        const V t1656 = t1654 + t1655;
        io.re(6, t1656);
        const V t1657 = t1654 - t1655;
        io.re(37, t1657);
        // spectrum block of 5
        const V t1658 = t1172 - t1186;
        const V t1659 = c[0] * t1196;
        const V t1660 = t1658 + t1659;
        const V t1661 = c[3] * t1179;
        const V t1662 = c[2] * t1193;
        const V t1663 = t1661 - t1662;
        const V t1664 = t1660 - t1663;
        const V t1665 = t1660 + t1663;
        // spectrum block of 5
        const V t1666 = t1267 - t1264;
        const V t1667 = c[0] * t1248;
        const V t1668 = t1666 + t1667;
        const V t1669 = c[3] * t1257;
        const V t1670 = c[2] * t1245;
        const V t1671 = t1670 - t1669;
        const V t1672 = t1668 - t1671;
        const V t1673 = t1668 + t1671;
        // spectrum block of 5
        const V t1674 = t1311 - t1325;
        const V t1675 = c[0] * t1335;
        const V t1676 = t1674 + t1675;
        const V t1677 = c[3] * t1318;
        const V t1678 = c[2] * t1332;
        const V t1679 = t1677 - t1678;
        const V t1680 = t1676 - t1679;
        const V t1681 = t1676 + t1679;
        // spectrum block of 5
        const V t1682 = t1406 - t1403;
        const V t1683 = c[0] * t1387;
        const V t1684 = t1682 + t1683;
        const V t1685 = c[3] * t1396;
        const V t1686 = c[2] * t1384;
        const V t1687 = t1686 - t1685;
        const V t1688 = t1684 - t1687;
        const V t1689 = t1684 + t1687;
        // spectrum block of 2
        const V t1690 = t1664 + t1672;
        // spectrum block of 2
        const V t1691 = t1680 + t1688;
        // complex block of 2
        const V t1692 = t1690 + t1691;
        io.re(14, t1692);
        const V t1693 = t1690 - t1691;
        io.re(45, t1693);
        // spectrum block of 2
        const V t1694 = t1664 - t1672;
        // spectrum block of 2
        const V t1695 = t1680 - t1688;
        // complex block of 2
        const V t1696 = t1694 + t1695;
        io.re(48, t1696);
        const V t1697 = t1694 - t1695;
        io.re(17, t1697);
        // spectrum block of 2
        const V t1698 = t1665 + t1673;
        // spectrum block of 2
        const V t1699 = t1681 + t1689;
        // complex block of 2
        const V t1700 = t1698 + t1699;
        io.re(28, t1700);
        const V t1701 = t1698 - t1699;
        io.re(59, t1701);
        // spectrum block of 2
        const V t1702 = t1665 - t1673;
        // spectrum block of 2
        const V t1703 = t1681 - t1689;
        // complex block of 2
        const V t1704 = t1702 + t1703;
        io.re(34, t1704);
        const V t1705 = t1702 - t1703;
        io.re(3, t1705);
        // complex block of 31, multiplier 2
        const V t1706 = x0i - t994;
        const V t1707 = t1001 + t985;
        // spectrum block of 3
        const V t1708 = t1707 + t1706;
        const V t1709 = c[4] * t1707;
        // complex block of 31, multiplier 2
        const V t1710 = t1123 + t1085;
        const V t1711 = t1117 - t1079;
        // complex block of 3
        const V t1712 = t1711 - t1710;
        // complex block of 31, multiplier 2
        const V t1713 = t1104 - t1096;
        // complex block of 3
        const V t1714 = t1711 + t1710;
        const V t1715 = t1712 + t1713;
        const V t1716 = c[4] * t1712;
        // complex block of 31, multiplier 2
        const V t1717 = t1124 - t1086;
        const V t1718 = t1080 + t1118;
        // complex block of 3
        const V t1719 = t1718 + t1717;
        const V t1720 = t1718 - t1717;
        const V t1721 = c[4] * t1719;
        const V t1722 = c[5] * t1720;
        // complex block of 31, multiplier 2
        const V t1723 = t1061 + t1023;
        const V t1724 = t1055 + t1017;
        // complex block of 3
        const V t1725 = t1724 + t1723;
        // complex block of 31, multiplier 2
        const V t1726 = t1032 - t1040;
        // complex block of 3
        const V t1727 = t1724 - t1723;
        const V t1728 = t1725 + t1726;
        const V t1729 = c[4] * t1725;
        // complex block of 31, multiplier 2
        const V t1730 = t1062 - t1024;
        const V t1731 = t1056 - t1018;
        // complex block of 3
        const V t1732 = t1731 + t1730;
        const V t1733 = t1730 - t1731;
        const V t1734 = c[4] * t1732;
        const V t1735 = c[5] * t1733;
        // complex block of 31, multiplier 2
        const V t1736 = t1041 + t1033;
        const V t1737 = t1105 + t1097;
        // spectrum block of 3
        const V t1738 = c[38] * t1000;
        const V t1739 = t1738 - t986;
        const V t1740 = t1706 - t1709;
        const V t1741 = t1740 - t1739;
        const V t1742 = t1740 + t1739;
        // complex block of 3
        const V t1743 = t1736 - t1732;
        // spectrum block of 5
        const V t1744 = c[2] * t1743;
        const V t1745 = c[3] * t1743;
        // complex block of 3
        const V t1746 = t1734 + t1736;
        const V t1747 = c[5] * t1727;
        const V t1748 = t1746 + t1747;
        const V t1749 = t1746 - t1747;
        const V t1750 = t1726 - t1729;
        const V t1751 = t1750 - t1735;
        const V t1752 = t1750 + t1735;
        // spectrum block of 5
        const V t1753 = c[0] * t1751;
        const V t1754 = c[1] * t1751;
        // spectrum block of 5
        const V t1755 = c[0] * t1752;
        const V t1756 = c[1] * t1752;
        // complex block of 3
        const V t1757 = t1719 + t1737;
        // spectrum block of 5
        const V t1758 = c[3] * t1757;
        const V t1759 = c[2] * t1757;
        // complex block of 3
        const V t1760 = t1737 - t1721;
        const V t1761 = c[5] * t1714;
        const V t1762 = t1760 + t1761;
        const V t1763 = t1760 - t1761;
        const V t1764 = t1713 - t1716;
        const V t1765 = t1764 - t1722;
        const V t1766 = t1764 + t1722;
        // spectrum block of 5
        const V t1767 = c[1] * t1765;
        // spectrum block of 5
        const V t1768 = c[1] * t1766;
        // spectrum block of 5
        const V t1769 = t1728 + t1715;
        const V t1770 = c[0] * t1728;
        const V t1771 = c[1] * t1715;
        const V t1772 = t1770 - t1771;
        const V t1773 = c[1] * t1728;
        const V t1774 = t1708 - t1773;
        const V t1775 = c[0] * t1715;
        // complex block of 31, multiplier 2
        const V t1776 = t776 + t738;
        const V t1777 = t782 + t744;
        // complex block of 3
        const V t1778 = t1777 - t1776;
        // complex block of 31, multiplier 2
        const V t1779 = t752 + t760;
        // complex block of 3
        const V t1780 = t1777 + t1776;
        const V t1781 = t1778 - t1779;
        const V t1782 = c[4] * t1778;
        // complex block of 31, multiplier 2
        const V t1783 = t777 - t739;
        const V t1784 = t745 - t783;
        // complex block of 3
        const V t1785 = t1784 + t1783;
        const V t1786 = t1783 - t1784;
        const V t1787 = c[4] * t1785;
        const V t1788 = c[5] * t1786;
        // complex block of 31, multiplier 2
        const V t1789 = t820 - t812;
        const V t1790 = t838 + t800;
        const V t1791 = t844 + t806;
        // complex block of 3
        const V t1792 = t1791 - t1790;
        const V t1793 = t1791 + t1790;
        const V t1794 = t1792 + t1789;
        const V t1795 = c[4] * t1792;
        // complex block of 31, multiplier 2
        const V t1796 = t821 + t813;
        const V t1797 = t721 + t706;
        // spectrum block of 3
        const V t1798 = t1797 + t713;
        const V t1799 = c[4] * t1797;
        // complex block of 31, multiplier 2
        const V t1800 = t839 - t801;
        const V t1801 = t845 - t807;
        // complex block of 3
        const V t1802 = t1801 - t1800;
        const V t1803 = t1801 + t1800;
        const V t1804 = c[4] * t1802;
        const V t1805 = c[5] * t1803;
        // complex block of 31, multiplier 2
        const V t1806 = t761 - t753;
        // spectrum block of 3
        const V t1807 = c[39] * t720;
        const V t1808 = t707 - t1807;
        // complex block of 3
        const V t1809 = t1802 + t1796;
        // spectrum block of 5
        const V t1810 = c[3] * t1809;
        const V t1811 = c[2] * t1809;
        // complex block of 3
        const V t1812 = t1796 - t1804;
        const V t1813 = c[5] * t1793;
        const V t1814 = t1812 + t1813;
        const V t1815 = t1812 - t1813;
        const V t1816 = t1789 - t1795;
        const V t1817 = t1816 - t1805;
        const V t1818 = t1816 + t1805;
        // spectrum block of 5
        const V t1819 = c[0] * t1817;
        // spectrum block of 5
        const V t1820 = c[1] * t1818;
        // complex block of 3
        const V t1821 = t1806 - t1785;
        // spectrum block of 5
        const V t1822 = c[2] * t1821;
        const V t1823 = c[3] * t1821;
        // complex block of 3
        const V t1824 = t1787 + t1806;
        const V t1825 = c[5] * t1780;
        const V t1826 = t1824 + t1825;
        const V t1827 = t1824 - t1825;
        const V t1828 = t1779 + t1782;
        const V t1829 = t1828 + t1788;
        const V t1830 = t1788 - t1828;
        // spectrum block of 5
        const V t1831 = c[0] * t1829;
        const V t1832 = c[1] * t1829;
        // spectrum block of 5
        const V t1833 = c[0] * t1830;
        const V t1834 = c[1] * t1830;
        // spectrum block of 3
        const V t1835 = t1799 - t713;
        const V t1836 = t1835 + t1808;
        const V t1837 = t1835 - t1808;
        // spectrum block of 5
        const V t1838 = t1781 + t1794;
        const V t1839 = c[0] * t1781;
        const V t1840 = c[1] * t1794;
        const V t1841 = t1839 - t1840;
        const V t1842 = c[1] * t1781;
        const V t1843 = t1798 + t1842;
        const V t1844 = c[0] * t1794;
        // complex block of 31, multiplier 2
        const V t1845 = x31i - t430;
        const V t1846 = t437 + t421;
        // spectrum block of 3
        const V t1847 = t1846 + t1845;
        const V t1848 = c[4] * t1846;
        // complex block of 31, multiplier 2
        const V t1849 = t559 + t521;
        const V t1850 = t553 - t515;
        // complex block of 3
        const V t1851 = t1850 - t1849;
        // complex block of 31, multiplier 2
        const V t1852 = t540 - t532;
        // complex block of 3
        const V t1853 = t1850 + t1849;
        const V t1854 = t1851 + t1852;
        const V t1855 = c[4] * t1851;
        // complex block of 31, multiplier 2
        const V t1856 = t560 - t522;
        const V t1857 = t516 + t554;
        // complex block of 3
        const V t1858 = t1857 + t1856;
        const V t1859 = t1857 - t1856;
        const V t1860 = c[4] * t1858;
        const V t1861 = c[5] * t1859;
        // complex block of 31, multiplier 2
        const V t1862 = t497 + t459;
        const V t1863 = t491 + t453;
        // complex block of 3
        const V t1864 = t1863 + t1862;
        // complex block of 31, multiplier 2
        const V t1865 = t468 - t476;
        // complex block of 3
        const V t1866 = t1863 - t1862;
        const V t1867 = t1864 + t1865;
        const V t1868 = c[4] * t1864;
        // complex block of 31, multiplier 2
        const V t1869 = t498 - t460;
        const V t1870 = t492 - t454;
        // complex block of 3
        const V t1871 = t1870 + t1869;
        const V t1872 = t1869 - t1870;
        const V t1873 = c[4] * t1871;
        const V t1874 = c[5] * t1872;
        // complex block of 31, multiplier 2
        const V t1875 = t477 + t469;
        const V t1876 = t541 + t533;
        // spectrum block of 3
        const V t1877 = c[38] * t436;
        const V t1878 = t1877 - t422;
        const V t1879 = t1845 - t1848;
        const V t1880 = t1879 - t1878;
        const V t1881 = t1879 + t1878;
        // complex block of 3
        const V t1882 = t1875 - t1871;
        // spectrum block of 5
        const V t1883 = c[2] * t1882;
        const V t1884 = c[3] * t1882;
        // complex block of 3
        const V t1885 = t1873 + t1875;
        const V t1886 = c[5] * t1866;
        const V t1887 = t1885 + t1886;
        const V t1888 = t1885 - t1886;
        const V t1889 = t1865 - t1868;
        const V t1890 = t1889 - t1874;
        const V t1891 = t1889 + t1874;
        // spectrum block of 5
        const V t1892 = c[0] * t1890;
        const V t1893 = c[1] * t1890;
        // spectrum block of 5
        const V t1894 = c[0] * t1891;
        const V t1895 = c[1] * t1891;
        // complex block of 3
        const V t1896 = t1858 + t1876;
        // spectrum block of 5
        const V t1897 = c[3] * t1896;
        const V t1898 = c[2] * t1896;
        // complex block of 3
        const V t1899 = t1876 - t1860;
        const V t1900 = c[5] * t1853;
        const V t1901 = t1899 + t1900;
        const V t1902 = t1899 - t1900;
        const V t1903 = t1852 - t1855;
        const V t1904 = t1903 - t1861;
        const V t1905 = t1903 + t1861;
        // spectrum block of 5
        const V t1906 = c[1] * t1904;
        // spectrum block of 5
        const V t1907 = c[1] * t1905;
        // spectrum block of 5
        const V t1908 = t1867 + t1854;
        const V t1909 = c[0] * t1867;
        const V t1910 = c[1] * t1854;
        const V t1911 = t1909 - t1910;
        const V t1912 = c[1] * t1867;
        const V t1913 = t1847 - t1912;
        const V t1914 = c[0] * t1854;
        // complex block of 31, multiplier 2
        const V t1915 = t212 + t174;
        const V t1916 = t218 + t180;
        // complex block of 3
        const V t1917 = t1916 - t1915;
        // complex block of 31, multiplier 2
        const V t1918 = t188 + t196;
        // complex block of 3
        const V t1919 = t1916 + t1915;
        const V t1920 = t1917 - t1918;
        const V t1921 = c[4] * t1917;
        // complex block of 31, multiplier 2
        const V t1922 = t213 - t175;
        const V t1923 = t181 - t219;
        // complex block of 3
        const V t1924 = t1923 + t1922;
        const V t1925 = t1922 - t1923;
        const V t1926 = c[4] * t1924;
        const V t1927 = c[5] * t1925;
        // complex block of 31, multiplier 2
        const V t1928 = t256 - t248;
        const V t1929 = t274 + t236;
        const V t1930 = t280 + t242;
        // complex block of 3
        const V t1931 = t1930 - t1929;
        const V t1932 = t1930 + t1929;
        const V t1933 = t1931 + t1928;
        const V t1934 = c[4] * t1931;
        // complex block of 31, multiplier 2
        const V t1935 = t257 + t249;
        const V t1936 = t157 + t142;
        // spectrum block of 3
        const V t1937 = t1936 + t149;
        const V t1938 = c[4] * t1936;
        // complex block of 31, multiplier 2
        const V t1939 = t275 - t237;
        const V t1940 = t281 - t243;
        // complex block of 3
        const V t1941 = t1940 - t1939;
        const V t1942 = t1940 + t1939;
        const V t1943 = c[4] * t1941;
        const V t1944 = c[5] * t1942;
        // complex block of 31, multiplier 2
        const V t1945 = t197 - t189;
        // spectrum block of 3
        const V t1946 = c[39] * t156;
        const V t1947 = t143 - t1946;
        // complex block of 3
        const V t1948 = t1941 + t1935;
        // spectrum block of 5
        const V t1949 = c[3] * t1948;
        const V t1950 = c[2] * t1948;
        // complex block of 3
        const V t1951 = t1935 - t1943;
        const V t1952 = c[5] * t1932;
        const V t1953 = t1951 + t1952;
        const V t1954 = t1951 - t1952;
        const V t1955 = t1928 - t1934;
        const V t1956 = t1955 - t1944;
        const V t1957 = t1955 + t1944;
        // spectrum block of 5
        const V t1958 = c[0] * t1956;
        // spectrum block of 5
        const V t1959 = c[1] * t1957;
        // complex block of 3
        const V t1960 = t1945 - t1924;
        // spectrum block of 5
        const V t1961 = c[2] * t1960;
        const V t1962 = c[3] * t1960;
        // complex block of 3
        const V t1963 = t1926 + t1945;
        const V t1964 = c[5] * t1919;
        const V t1965 = t1963 + t1964;
        const V t1966 = t1963 - t1964;
        const V t1967 = t1918 + t1921;
        const V t1968 = t1967 + t1927;
        const V t1969 = t1927 - t1967;
        // spectrum block of 5
        const V t1970 = c[0] * t1968;
        const V t1971 = c[1] * t1968;
        // spectrum block of 5
        const V t1972 = c[0] * t1969;
        const V t1973 = c[1] * t1969;
        // spectrum block of 3
        const V t1974 = t1938 - t149;
        const V t1975 = t1974 + t1947;
        const V t1976 = t1974 - t1947;
        // spectrum block of 5
        const V t1977 = t1920 + t1933;
        const V t1978 = c[0] * t1920;
        const V t1979 = c[1] * t1933;
        const V t1980 = t1978 - t1979;
        const V t1981 = c[1] * t1920;
        const V t1982 = t1937 + t1981;
        const V t1983 = c[0] * t1933;
        // spectrum block of 5
        const V t1984 = t1769 + t1708;
        // spectrum block of 5
        const V t1985 = t1838 - t1798;
        // spectrum block of 2
        const V t1986 = t1984 + t1985;
        const V t1987 = t1984 - t1985;
        // spectrum block of 5
        const V t1988 = t1908 + t1847;
        // spectrum block of 5
        const V t1989 = t1977 - t1937;
        // spectrum block of 2
        const V t1990 = t1988 + t1989;
        const V t1991 = t1988 - t1989;
        // complex block of 2
        const V t1992 = t1986 + t1990;
        io.im(2, t1992);
        const V t1993 = t1986 - t1990;
        io.im(33, t1993);
        // complex block of 2
        const V t1994 = t1987 + t1991;
        io.im(60, t1994);
        const V t1995 = t1987 - t1991;
        io.im(29, t1995);
        // spectrum block of 5
        const V t1996 = t1772 + t1708;
        const V t1997 = t1744 + t1758;
        const V t1998 = t1996 - t1997;
        const V t1999 = t1996 + t1997;
        // spectrum block of 5
        const V t2000 = t1841 - t1798;
        const V t2001 = t1822 + t1810;
        const V t2002 = t2000 + t2001;
        const V t2003 = t2000 - t2001;
        // spectrum block of 5
        const V t2004 = t1911 + t1847;
        const V t2005 = t1883 + t1897;
        const V t2006 = t2004 - t2005;
        const V t2007 = t2004 + t2005;
        // spectrum block of 5
        const V t2008 = t1980 - t1937;
        const V t2009 = t1961 + t1949;
        const V t2010 = t2008 + t2009;
        const V t2011 = t2008 - t2009;
        // spectrum block of 2
        const V t2012 = t1998 + t2002;
        // spectrum block of 2
        const V t2013 = t2006 + t2010;
        // complex block of 2
        const V t2014 = t2012 + t2013;
        io.im(4, t2014);
        const V t2015 = t2012 - t2013;
        io.im(35, t2015);
        // spectrum block of 2
        const V t2016 = t1998 - t2002;
        // spectrum block of 2
        const V t2017 = t2006 - t2010;
        // complex block of 2
        const V t2018 = t2016 + t2017;
        io.im(58, t2018);
        const V t2019 = t2016 - t2017;
        io.im(27, t2019);
        // spectrum block of 2
        const V t2020 = t1999 + t2003;
        // spectrum block of 2
        const V t2021 = t2007 + t2011;
        // complex block of 2
        const V t2022 = t2020 + t2021;
        io.im(32, t2022);
        const V t2023 = t2020 - t2021;
        io.im(1, t2023);
        // spectrum block of 2
        const V t2024 = t1999 - t2003;
        // spectrum block of 2
        const V t2025 = t2007 - t2011;
        // complex block of 2
        const V t2026 = t2024 + t2025;
        io.im(30, t2026);
        const V t2027 = t2024 - t2025;
        io.im(61, t2027);
        // spectrum block of 5
        const V t2028 = t1774 + t1775;
        const V t2029 = t1745 - t1759;
        const V t2030 = t2028 - t2029;
        const V t2031 = t2028 + t2029;
        // spectrum block of 5
        const V t2032 = t1844 - t1843;
        const V t2033 = t1811 - t1823;
        const V t2034 = t2032 - t2033;
        const V t2035 = t2032 + t2033;
        // spectrum block of 5
        const V t2036 = t1913 + t1914;
        const V t2037 = t1884 - t1898;
        const V t2038 = t2036 - t2037;
        const V t2039 = t2036 + t2037;
        // spectrum block of 5
        const V t2040 = t1983 - t1982;
        const V t2041 = t1950 - t1962;
        const V t2042 = t2040 - t2041;
        const V t2043 = t2040 + t2041;
        // spectrum block of 2
        const V t2044 = t2030 + t2034;
        // spectrum block of 2
        const V t2045 = t2038 + t2042;
        // complex block of 2
        const V t2046 = t2044 + t2045;
        io.im(8, t2046);
        const V t2047 = t2044 - t2045;
        io.im(39, t2047);
        // spectrum block of 2
        const V t2048 = t2030 - t2034;
        // spectrum block of 2
        const V t2049 = t2038 - t2042;
        // complex block of 2
        const V t2050 = t2048 + t2049;
        io.im(54, t2050);
        const V t2051 = t2048 - t2049;
        io.im(23, t2051);
        // spectrum block of 2
        const V t2052 = t2031 + t2035;
        // spectrum block of 2
        const V t2053 = t2039 + t2043;
        // complex block of 2
        const V t2054 = t2052 + t2053;
        io.im(16, t2054);
        const V t2055 = t2052 - t2053;
        io.im(47, t2055);
        // spectrum block of 2
        const V t2056 = t2031 - t2035;
        // spectrum block of 2
        const V t2057 = t2039 - t2043;
        // complex block of 2
        const V t2058 = t2056 + t2057;
        io.im(46, t2058);
        const V t2059 = t2056 - t2057;
        io.im(15, t2059);
        // spectrum block of 5
        const V t2060 = t1751 + t1765;
        const V t2061 = t2060 + t1741;
        // spectrum block of 5
        const V t2062 = t1817 - t1829;
        const V t2063 = t2062 + t1836;
        // spectrum block of 5
        const V t2064 = t1890 + t1904;
        const V t2065 = t2064 + t1880;
        // spectrum block of 5
        const V t2066 = t1956 - t1968;
        const V t2067 = t2066 + t1975;
        // spectrum block of 2
        const V t2068 = t2061 + t2063;
        // spectrum block of 2
        const V t2069 = t2065 + t2067;
        // complex block of 2
        const V t2070 = t2068 + t2069;
        io.im(10, t2070);
        const V t2071 = t2068 - t2069;
        io.im(41, t2071);
        // spectrum block of 2
        const V t2072 = t2061 - t2063;
        // spectrum block of 2
        const V t2073 = t2065 - t2067;
        // complex block of 2
        const V t2074 = t2072 + t2073;
        io.im(52, t2074);
        const V t2075 = t2072 - t2073;
        io.im(21, t2075);
        // spectrum block of 5
        const V t2076 = t1753 - t1767;
        const V t2077 = t2076 + t1741;
        const V t2078 = c[2] * t1748;
        const V t2079 = c[3] * t1762;
        const V t2080 = t2078 + t2079;
        const V t2081 = t2077 - t2080;
        const V t2082 = t2077 + t2080;
        // spectrum block of 5
        const V t2083 = t1836 - t1831;
        const V t2084 = c[1] * t1817;
        const V t2085 = t2083 - t2084;
        const V t2086 = c[2] * t1826;
        const V t2087 = c[3] * t1814;
        const V t2088 = t2086 + t2087;
        const V t2089 = t2085 + t2088;
        const V t2090 = t2085 - t2088;
        // spectrum block of 5
        const V t2091 = t1892 - t1906;
        const V t2092 = t2091 + t1880;
        const V t2093 = c[2] * t1887;
        const V t2094 = c[3] * t1901;
        const V t2095 = t2093 + t2094;
        const V t2096 = t2092 - t2095;
        const V t2097 = t2092 + t2095;
        // spectrum block of 5
        const V t2098 = t1975 - t1970;
        const V t2099 = c[1] * t1956;
        const V t2100 = t2098 - t2099;
        const V t2101 = c[2] * t1965;
        const V t2102 = c[3] * t1953;
        const V t2103 = t2101 + t2102;
        const V t2104 = t2100 + t2103;
        const V t2105 = t2100 - t2103;
        // spectrum block of 2
        const V t2106 = t2081 + t2089;
        // spectrum block of 2
        const V t2107 = t2096 + t2104;
        // complex block of 2
        const V t2108 = t2106 + t2107;
        io.im(20, t2108);
        const V t2109 = t2106 - t2107;
        io.im(51, t2109);
        // spectrum block of 2
        const V t2110 = t2081 - t2089;
        // spectrum block of 2
        const V t2111 = t2096 - t2104;
        // complex block of 2
        const V t2112 = t2110 + t2111;
        io.im(42, t2112);
        const V t2113 = t2110 - t2111;
        io.im(11, t2113);
        // spectrum block of 2
        const V t2114 = t2082 + t2090;
        // spectrum block of 2
        const V t2115 = t2097 + t2105;
        // complex block of 2
        const V t2116 = t2114 + t2115;
        io.im(36, t2116);
        const V t2117 = t2114 - t2115;
        io.im(5, t2117);
        // spectrum block of 2
        const V t2118 = t2082 - t2090;
        // spectrum block of 2
        const V t2119 = t2097 - t2105;
        // complex block of 2
        const V t2120 = t2118 + t2119;
        io.im(26, t2120);
        const V t2121 = t2118 - t2119;
        io.im(57, t2121);
        // spectrum block of 5
        const V t2122 = t1741 - t1754;
        const V t2123 = c[0] * t1765;
        const V t2124 = t2122 + t2123;
        const V t2125 = c[3] * t1748;
        const V t2126 = c[2] * t1762;
        const V t2127 = t2125 - t2126;
        const V t2128 = t2124 - t2127;
        const V t2129 = t2124 + t2127;
        // spectrum block of 5
        const V t2130 = t1832 + t1819;
        const V t2131 = t2130 + t1836;
        const V t2132 = c[3] * t1826;
        const V t2133 = c[2] * t1814;
        const V t2134 = t2133 - t2132;
        const V t2135 = t2131 - t2134;
        const V t2136 = t2131 + t2134;
        // spectrum block of 5
        const V t2137 = t1880 - t1893;
        const V t2138 = c[0] * t1904;
        const V t2139 = t2137 + t2138;
        const V t2140 = c[3] * t1887;
        const V t2141 = c[2] * t1901;
        const V t2142 = t2140 - t2141;
        const V t2143 = t2139 - t2142;
        const V t2144 = t2139 + t2142;
        // spectrum block of 5
        const V t2145 = t1971 + t1958;
        const V t2146 = t2145 + t1975;
        const V t2147 = c[3] * t1965;
        const V t2148 = c[2] * t1953;
        const V t2149 = t2148 - t2147;
        const V t2150 = t2146 - t2149;
        const V t2151 = t2146 + t2149;
        // spectrum block of 2
        const V t2152 = t2128 + t2135;
        // spectrum block of 2
        const V t2153 = t2143 + t2150;
        // complex block of 2
        const V t2154 = t2152 + t2153;
        io.im(40, t2154);
        const V t2155 = t2152 - t2153;
        io.im(9, t2155);
        // spectrum block of 2
        const V t2156 = t2128 - t2135;
        // spectrum block of 2
        const V t2157 = t2143 - t2150;
        // complex block of 2
        const V t2158 = t2156 + t2157;
        io.im(22, t2158);
        const V t2159 = t2156 - t2157;
        io.im(53, t2159);
        // spectrum block of 2
        const V t2160 = t2129 + t2136;
        // spectrum block of 2
        const V t2161 = t2144 + t2151;
        // complex block of 2
        const V t2162 = t2160 + t2161;
        io.im(18, t2162);
        const V t2163 = t2160 - t2161;
        io.im(49, t2163);
        // spectrum block of 2
        const V t2164 = t2129 - t2136;
        // spectrum block of 2
        const V t2165 = t2144 - t2151;
        // complex block of 2
        const V t2166 = t2164 + t2165;
        io.im(44, t2166);
        const V t2167 = t2164 - t2165;
        io.im(13, t2167);
        // spectrum block of 5
        const V t2168 = t1752 + t1766;
        const V t2169 = t2168 + t1742;
        // spectrum block of 5
        const V t2170 = t1830 + t1818;
        const V t2171 = t2170 + t1837;
        // spectrum block of 5
        const V t2172 = t1891 + t1905;
        const V t2173 = t2172 + t1881;
        // spectrum block of 5
        const V t2174 = t1969 + t1957;
        const V t2175 = t2174 + t1976;
        // spectrum block of 2
        const V t2176 = t2169 + t2171;
        // spectrum block of 2
        const V t2177 = t2173 + t2175;
        // complex block of 2
        const V t2178 = t2176 + t2177;
        io.im(50, t2178);
        const V t2179 = t2176 - t2177;
        io.im(19, t2179);
        // spectrum block of 2
        const V t2180 = t2169 - t2171;
        // spectrum block of 2
        const V t2181 = t2173 - t2175;
        // complex block of 2
        const V t2182 = t2180 + t2181;
        io.im(12, t2182);
        const V t2183 = t2180 - t2181;
        io.im(43, t2183);
        // spectrum block of 5
        const V t2184 = t1755 - t1768;
        const V t2185 = t2184 + t1742;
        const V t2186 = c[2] * t1749;
        const V t2187 = c[3] * t1763;
        const V t2188 = t2186 + t2187;
        const V t2189 = t2185 - t2188;
        const V t2190 = t2185 + t2188;
        // spectrum block of 5
        const V t2191 = t1833 - t1820;
        const V t2192 = t2191 + t1837;
        const V t2193 = c[2] * t1827;
        const V t2194 = c[3] * t1815;
        const V t2195 = t2193 + t2194;
        const V t2196 = t2192 + t2195;
        const V t2197 = t2192 - t2195;
        // spectrum block of 5
        const V t2198 = t1894 - t1907;
        const V t2199 = t2198 + t1881;
        const V t2200 = c[2] * t1888;
        const V t2201 = c[3] * t1902;
        const V t2202 = t2200 + t2201;
        const V t2203 = t2199 - t2202;
        const V t2204 = t2199 + t2202;
        // spectrum block of 5
        const V t2205 = t1972 - t1959;
        const V t2206 = t2205 + t1976;
        const V t2207 = c[2] * t1966;
        const V t2208 = c[3] * t1954;
        const V t2209 = t2207 + t2208;
        const V t2210 = t2206 + t2209;
        const V t2211 = t2206 - t2209;
        // spectrum block of 2
        const V t2212 = t2189 + t2196;
        // spectrum block of 2
        const V t2213 = t2203 + t2210;
        // complex block of 2
        const V t2214 = t2212 + t2213;
        io.im(38, t2214);
        const V t2215 = t2212 - t2213;
        io.im(7, t2215);
        // spectrum block of 2
        const V t2216 = t2189 - t2196;
        // spectrum block of 2
        const V t2217 = t2203 - t2210;
        // complex block of 2
        const V t2218 = t2216 + t2217;
        io.im(24, t2218);
        const V t2219 = t2216 - t2217;
        io.im(55, t2219);
        // spectrum block of 2
        const V t2220 = t2190 + t2197;
        // spectrum block of 2
        const V t2221 = t2204 + t2211;
        // complex block of 2
        const V t2222 = t2220 + t2221;
        io.im(56, t2222);
        const V t2223 = t2220 - t2221;
        io.im(25, t2223);
        // spectrum block of 2
        const V t2224 = t2190 - t2197;
        // spectrum block of 2
        const V t2225 = t2204 - t2211;
        // complex block of 2
        const V t2226 = t2224 + t2225;
        io.im(6, t2226);
        const V t2227 = t2224 - t2225;
        io.im(37, t2227);
        // spectrum block of 5
        const V t2228 = t1742 - t1756;
        const V t2229 = c[0] * t1766;
        const V t2230 = t2228 + t2229;
        const V t2231 = c[3] * t1749;
        const V t2232 = c[2] * t1763;
        const V t2233 = t2231 - t2232;
        const V t2234 = t2230 - t2233;
        const V t2235 = t2230 + t2233;
        // spectrum block of 5
        const V t2236 = t1837 - t1834;
        const V t2237 = c[0] * t1818;
        const V t2238 = t2236 + t2237;
        const V t2239 = c[3] * t1827;
        const V t2240 = c[2] * t1815;
        const V t2241 = t2240 - t2239;
        const V t2242 = t2238 - t2241;
        const V t2243 = t2238 + t2241;
        // spectrum block of 5
        const V t2244 = t1881 - t1895;
        const V t2245 = c[0] * t1905;
        const V t2246 = t2244 + t2245;
        const V t2247 = c[3] * t1888;
        const V t2248 = c[2] * t1902;
        const V t2249 = t2247 - t2248;
        const V t2250 = t2246 - t2249;
        const V t2251 = t2246 + t2249;
        // spectrum block of 5
        const V t2252 = t1976 - t1973;
        const V t2253 = c[0] * t1957;
        const V t2254 = t2252 + t2253;
        const V t2255 = c[3] * t1966;
        const V t2256 = c[2] * t1954;
        const V t2257 = t2256 - t2255;
        const V t2258 = t2254 - t2257;
        const V t2259 = t2254 + t2257;
        // spectrum block of 2
        const V t2260 = t2234 + t2242;
        // spectrum block of 2
        const V t2261 = t2250 + t2258;
        // complex block of 2
        const V t2262 = t2260 + t2261;
        io.im(14, t2262);
        const V t2263 = t2260 - t2261;
        io.im(45, t2263);
        // spectrum block of 2
        const V t2264 = t2234 - t2242;
        // spectrum block of 2
        const V t2265 = t2250 - t2258;
        // complex block of 2
        const V t2266 = t2264 + t2265;
        io.im(48, t2266);
        const V t2267 = t2264 - t2265;
        io.im(17, t2267);
        // spectrum block of 2
        const V t2268 = t2235 + t2243;
        // spectrum block of 2
        const V t2269 = t2251 + t2259;
        // complex block of 2
        const V t2270 = t2268 + t2269;
        io.im(28, t2270);
        const V t2271 = t2268 - t2269;
        io.im(59, t2271);
        // spectrum block of 2
        const V t2272 = t2235 - t2243;
        // spectrum block of 2
        const V t2273 = t2251 - t2259;
        // complex block of 2
        const V t2274 = t2272 + t2273;
        io.im(34, t2274);
        const V t2275 = t2272 - t2273;
        io.im(3, t2275);
    }
};

}  // namespace zulg
