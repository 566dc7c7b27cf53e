// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 62.
// Complex DFT of 62 points, prime-factor, order 31, 2; one complex number to a register.
// 398 sums, 356 differences, 384 products of registers, which do the 2400 steps of the graph, those with
// `scale` included; 124 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<62> {
    static constexpr int steps = 2400;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.3386491040641593,  // c[6]: Q[1] of 31
        0.15196895108646355,  // c[7]: -P[1] of 31
        0.29980901846811486,  // c[8]: -P[2] of 31
        0.21884316352804659,  // c[9]: Q[2] of 31
        0.019498333867134416,  // c[10]: Q[3] of 31
        0.37067181273221134,  // c[11]: -P[3] of 31
        0.3665614991633792,  // c[12]: P[4] of 31
        0.05839901633481273,  // c[13]: Q[4] of 31
        0.2970284107916672,  // c[14]: P[6] of 31
        0.2226025627892778,  // c[15]: Q[6] of 31
        0.28075102554360776,  // c[16]: Q[7] of 31
        0.24280988331200667,  // c[17]: -P[7] of 31
        0.35531525594489755,  // c[18]: P[8] of 31
        0.1073724670043011,  // c[19]: -Q[8] of 31
        0.008505491359144196,  // c[20]: Q[9] of 31
        0.37108682864596165,  // c[21]: P[9] of 31
        0.36539376648991023,  // c[22]: -Q[11] of 31
        0.06530829340975558,  // c[23]: P[11] of 31
        0.10130252550848418,  // c[24]: Q[12] of 31
        0.35709323166839874,  // c[25]: -P[12] of 31
        0.3312534027537607,  // c[26]: -Q[13] of 31
        0.1674782402040115,  // c[27]: -P[13] of 31
        0.2485676599132395,  // c[28]: P[14] of 31
        0.27566627690567064,  // c[29]: Q[14] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.2580069240952765,  // c[31]: Q[5] of 31
        0.26685240283098827,  // c[32]: P[5] of 31
        0.3417205692768941,  // c[33]: P[10] of 31
        0.1449304326594425,  // c[34]: Q[10] of 31
        0.1255134364645471,  // c[35]: sin 2 pi 1/3 times Q[10] of 31
        0.2959386939894704,  // c[36]: sin 2 pi 1/3 times P[10] of 31
        0.1855921454276674,  // c[37]: beta of 31
        0.23110095991255428,  // c[38]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[39]: sin 2 pi 1/3 times Q[5] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x32 = io.pair(32);
        const P x1 = io.pair(1);
        const P t0 = shuffled<0, 2>(x32, x1);
        const P x4 = io.pair(4);
        const P x35 = io.pair(35);
        const P t1 = shuffled<0, 2>(x4, x35);
        // real block of 5
        const P t2 = t0 + t1;
        const P t3 = t0 - t1;
        const P x8 = io.pair(8);
        const P x39 = io.pair(39);
        const P t4 = shuffled<0, 2>(x8, x39);
        const P x16 = io.pair(16);
        const P x47 = io.pair(47);
        const P t5 = shuffled<0, 2>(x16, x47);
        const P t6 = t4 + t5;
        const P t7 = t4 - t5;
        const P t8 = t2 + t6;
        const P x2 = io.pair(2);
        const P x33 = io.pair(33);
        const P t9 = shuffled<0, 2>(x2, x33);
        const P t10 = t8 + t9;
        const P t11 = c[0] * t2;
        const P t12 = c[1] * t6;
        const P t13 = t11 - t12;
        const P t14 = t13 + t9;
        const P t15 = c[2] * t7;
        const P t16 = c[3] * t3;
        const P t17 = t15 - t16;
        const P t18 = c[1] * t2;
        const P t19 = t9 - t18;
        const P t20 = c[0] * t6;
        const P t21 = t19 + t20;
        const P t22 = c[2] * t3;
        const P t23 = c[3] * t7;
        const P t24 = t22 + t23;
        const P x26 = io.pair(26);
        const P x57 = io.pair(57);
        const P t25 = shuffled<0, 2>(x26, x57);
        const P x42 = io.pair(42);
        const P x11 = io.pair(11);
        const P t26 = shuffled<0, 2>(x42, x11);
        // real block of 5
        const P t27 = t25 + t26;
        const P t28 = t25 - t26;
        const P x22 = io.pair(22);
        const P x53 = io.pair(53);
        const P t29 = shuffled<0, 2>(x22, x53);
        const P x44 = io.pair(44);
        const P x13 = io.pair(13);
        const P t30 = shuffled<0, 2>(x44, x13);
        const P t31 = t29 + t30;
        const P t32 = t29 - t30;
        const P t33 = t27 + t31;
        const P x52 = io.pair(52);
        const P x21 = io.pair(21);
        const P t34 = shuffled<0, 2>(x52, x21);
        const P t35 = t33 + t34;
        const P t36 = c[0] * t27;
        const P t37 = c[1] * t31;
        const P t38 = t36 - t37;
        const P t39 = t38 + t34;
        const P t40 = c[2] * t32;
        const P t41 = c[3] * t28;
        const P t42 = t40 - t41;
        const P t43 = c[1] * t27;
        const P t44 = t34 - t43;
        const P t45 = c[0] * t31;
        const P t46 = t44 + t45;
        const P t47 = c[2] * t28;
        const P t48 = c[3] * t32;
        const P t49 = t47 + t48;
        const P x56 = io.pair(56);
        const P x25 = io.pair(25);
        const P t50 = shuffled<0, 2>(x56, x25);
        const P x38 = io.pair(38);
        const P x7 = io.pair(7);
        const P t51 = shuffled<0, 2>(x38, x7);
        // real block of 5
        const P t52 = t50 + t51;
        const P t53 = t50 - t51;
        const P x14 = io.pair(14);
        const P x45 = io.pair(45);
        const P t54 = shuffled<0, 2>(x14, x45);
        const P x28 = io.pair(28);
        const P x59 = io.pair(59);
        const P t55 = shuffled<0, 2>(x28, x59);
        const P t56 = t54 + t55;
        const P t57 = t54 - t55;
        const P t58 = t52 + t56;
        const P x50 = io.pair(50);
        const P x19 = io.pair(19);
        const P t59 = shuffled<0, 2>(x50, x19);
        const P t60 = t58 + t59;
        const P t61 = c[0] * t52;
        const P t62 = c[1] * t56;
        const P t63 = t61 - t62;
        const P t64 = t63 + t59;
        const P t65 = c[2] * t57;
        const P t66 = c[3] * t53;
        const P t67 = t65 - t66;
        const P t68 = c[1] * t52;
        const P t69 = t59 - t68;
        const P t70 = c[0] * t56;
        const P t71 = t69 + t70;
        const P t72 = c[2] * t53;
        const P t73 = c[3] * t57;
        const P t74 = t72 + t73;
        const P x30 = io.pair(30);
        const P x61 = io.pair(61);
        const P t75 = shuffled<0, 2>(x30, x61);
        const P x58 = io.pair(58);
        const P x27 = io.pair(27);
        const P t76 = shuffled<0, 2>(x58, x27);
        // real block of 5
        const P t77 = t75 + t76;
        const P t78 = t75 - t76;
        const P x54 = io.pair(54);
        const P x23 = io.pair(23);
        const P t79 = shuffled<0, 2>(x54, x23);
        const P x46 = io.pair(46);
        const P x15 = io.pair(15);
        const P t80 = shuffled<0, 2>(x46, x15);
        const P t81 = t79 + t80;
        const P t82 = t79 - t80;
        const P t83 = t77 + t81;
        const P x60 = io.pair(60);
        const P x29 = io.pair(29);
        const P t84 = shuffled<0, 2>(x60, x29);
        const P t85 = t83 + t84;
        const P t86 = c[0] * t77;
        const P t87 = c[1] * t81;
        const P t88 = t86 - t87;
        const P t89 = t88 + t84;
        const P t90 = c[2] * t82;
        const P t91 = c[3] * t78;
        const P t92 = t90 - t91;
        const P t93 = c[1] * t77;
        const P t94 = t84 - t93;
        const P t95 = c[0] * t81;
        const P t96 = t94 + t95;
        const P t97 = c[2] * t78;
        const P t98 = c[3] * t82;
        const P t99 = t97 + t98;
        const P x36 = io.pair(36);
        const P x5 = io.pair(5);
        const P t100 = shuffled<0, 2>(x36, x5);
        const P x20 = io.pair(20);
        const P x51 = io.pair(51);
        const P t101 = shuffled<0, 2>(x20, x51);
        // real block of 5
        const P t102 = t100 + t101;
        const P t103 = t100 - t101;
        const P x40 = io.pair(40);
        const P x9 = io.pair(9);
        const P t104 = shuffled<0, 2>(x40, x9);
        const P x18 = io.pair(18);
        const P x49 = io.pair(49);
        const P t105 = shuffled<0, 2>(x18, x49);
        const P t106 = t104 + t105;
        const P t107 = t104 - t105;
        const P t108 = t102 + t106;
        const P x10 = io.pair(10);
        const P x41 = io.pair(41);
        const P t109 = shuffled<0, 2>(x10, x41);
        const P t110 = t108 + t109;
        const P t111 = c[0] * t102;
        const P t112 = c[1] * t106;
        const P t113 = t111 - t112;
        const P t114 = t113 + t109;
        const P t115 = c[2] * t107;
        const P t116 = c[3] * t103;
        const P t117 = t115 - t116;
        const P t118 = c[1] * t102;
        const P t119 = t109 - t118;
        const P t120 = c[0] * t106;
        const P t121 = t119 + t120;
        const P t122 = c[2] * t103;
        const P t123 = c[3] * t107;
        const P t124 = t122 + t123;
        const P x6 = io.pair(6);
        const P x37 = io.pair(37);
        const P t125 = shuffled<0, 2>(x6, x37);
        const P x24 = io.pair(24);
        const P x55 = io.pair(55);
        const P t126 = shuffled<0, 2>(x24, x55);
        // real block of 5
        const P t127 = t125 + t126;
        const P t128 = t125 - t126;
        const P x48 = io.pair(48);
        const P x17 = io.pair(17);
        const P t129 = shuffled<0, 2>(x48, x17);
        const P x34 = io.pair(34);
        const P x3 = io.pair(3);
        const P t130 = shuffled<0, 2>(x34, x3);
        const P t131 = t129 + t130;
        const P t132 = t129 - t130;
        const P t133 = t127 + t131;
        const P x12 = io.pair(12);
        const P x43 = io.pair(43);
        const P t134 = shuffled<0, 2>(x12, x43);
        const P t135 = t133 + t134;
        const P t136 = c[0] * t127;
        const P t137 = c[1] * t131;
        const P t138 = t136 - t137;
        const P t139 = t138 + t134;
        const P t140 = c[2] * t132;
        const P t141 = c[3] * t128;
        const P t142 = t140 - t141;
        const P t143 = c[1] * t127;
        const P t144 = t134 - t143;
        const P t145 = c[0] * t131;
        const P t146 = t144 + t145;
        const P t147 = c[2] * t128;
        const P t148 = c[3] * t132;
        const P t149 = t147 + t148;
        // real block of 3
        const P t150 = t60 + t110;
        const P t151 = t60 - t110;
        const P t152 = t150 + t10;
        const P t153 = c[4] * t150;
        const P t154 = t10 - t153;
        // real block of 3
        const P t155 = t135 + t35;
        const P t156 = t135 - t35;
        const P t157 = t155 + t85;
        const P t158 = c[4] * t155;
        const P t159 = t85 - t158;
        // real block of 2
        const P t160 = t152 + t157;
        const P t161 = t152 - t157;
        // complex block of 2
        const P t162 = t154 + t159;
        // real block of 3
        const P t163 = c[5] * t151;
        // real block of 3
        const P t164 = c[5] * t156;
        // complex block of 2
        const P t165 = t163 + t164;
        const P t166 = t154 - t159;
        const P t167 = t164 - t163;
        // complex block of 3
        const P t168 = t64 + t114;
        const P t169 = t67 + t117;
        const P t170 = t64 - t114;
        const P t171 = t67 - t117;
        const P t172 = t168 + t14;
        const P t173 = t169 + t17;
        const P t174 = c[4] * t168;
        const P t175 = t14 - t174;
        const P t176 = c[4] * t169;
        const P t177 = t17 - t176;
        const P t178 = c[5] * t171;
        const P t179 = t175 + t178;
        const P t180 = c[5] * t170;
        const P t181 = t177 - t180;
        const P t182 = t175 - t178;
        const P t183 = t177 + t180;
        // complex block of 3
        const P t184 = t139 + t39;
        const P t185 = t142 + t42;
        const P t186 = t139 - t39;
        const P t187 = t142 - t42;
        const P t188 = t184 + t89;
        const P t189 = t185 + t92;
        const P t190 = c[4] * t184;
        const P t191 = t89 - t190;
        const P t192 = c[4] * t185;
        const P t193 = t92 - t192;
        const P t194 = c[5] * t187;
        const P t195 = t191 + t194;
        const P t196 = c[5] * t186;
        const P t197 = t193 - t196;
        const P t198 = t191 - t194;
        const P t199 = t193 + t196;
        // complex block of 2
        const P t200 = t172 + t188;
        const P t201 = t173 + t189;
        const P t202 = t172 - t188;
        const P t203 = t173 - t189;
        // complex block of 2
        const P t204 = t179 + t195;
        const P t205 = t181 + t197;
        const P t206 = t179 - t195;
        const P t207 = t181 - t197;
        // complex block of 2
        const P t208 = t182 + t198;
        const P t209 = t183 + t199;
        const P t210 = t182 - t198;
        const P t211 = t183 - t199;
        // complex block of 3
        const P t212 = t71 + t121;
        const P t213 = t74 + t124;
        const P t214 = t71 - t121;
        const P t215 = t124 - t74;
        const P t216 = t212 + t21;
        const P t217 = t213 + t24;
        const P t218 = c[4] * t212;
        const P t219 = t21 - t218;
        const P t220 = c[4] * t213;
        const P t221 = t220 - t24;
        const P t222 = c[5] * t215;
        const P t223 = t219 + t222;
        const P t224 = c[5] * t214;
        const P t225 = t221 - t224;
        const P t226 = t219 - t222;
        const P t227 = t221 + t224;
        // complex block of 3
        const P t228 = t146 + t46;
        const P t229 = t149 + t49;
        const P t230 = t146 - t46;
        const P t231 = t49 - t149;
        const P t232 = t228 + t96;
        const P t233 = t229 + t99;
        const P t234 = c[4] * t228;
        const P t235 = t96 - t234;
        const P t236 = c[4] * t229;
        const P t237 = t236 - t99;
        const P t238 = c[5] * t231;
        const P t239 = t235 + t238;
        const P t240 = c[5] * t230;
        const P t241 = t237 - t240;
        const P t242 = t235 - t238;
        const P t243 = t237 + t240;
        // complex block of 2
        const P t244 = t216 + t232;
        const P t245 = t217 + t233;
        const P t246 = t216 - t232;
        const P t247 = t233 - t217;
        // complex block of 2
        const P t248 = t223 + t239;
        const P t249 = t225 + t241;
        const P t250 = t223 - t239;
        const P t251 = t225 - t241;
        // complex block of 2
        const P t252 = t226 + t242;
        const P t253 = t227 + t243;
        const P t254 = t226 - t242;
        const P t255 = t227 - t243;
        const P t256 = shuffled<1, 3>(x32, x1);
        const P t257 = shuffled<1, 3>(x4, x35);
        // real block of 5
        const P t258 = t256 + t257;
        const P t259 = t256 - t257;
        const P t260 = shuffled<1, 3>(x8, x39);
        const P t261 = shuffled<1, 3>(x16, x47);
        const P t262 = t260 + t261;
        const P t263 = t260 - t261;
        const P t264 = t258 + t262;
        const P t265 = shuffled<1, 3>(x2, x33);
        const P t266 = t264 + t265;
        const P t267 = c[0] * t258;
        const P t268 = c[1] * t262;
        const P t269 = t267 - t268;
        const P t270 = t269 + t265;
        const P t271 = c[2] * t263;
        const P t272 = c[3] * t259;
        const P t273 = t271 - t272;
        const P t274 = c[1] * t258;
        const P t275 = t265 - t274;
        const P t276 = c[0] * t262;
        const P t277 = t275 + t276;
        const P t278 = c[2] * t259;
        const P t279 = c[3] * t263;
        const P t280 = t278 + t279;
        const P t281 = shuffled<1, 3>(x26, x57);
        const P t282 = shuffled<1, 3>(x42, x11);
        // real block of 5
        const P t283 = t281 + t282;
        const P t284 = t281 - t282;
        const P t285 = shuffled<1, 3>(x22, x53);
        const P t286 = shuffled<1, 3>(x44, x13);
        const P t287 = t285 + t286;
        const P t288 = t285 - t286;
        const P t289 = t283 + t287;
        const P t290 = shuffled<1, 3>(x52, x21);
        const P t291 = t289 + t290;
        const P t292 = c[0] * t283;
        const P t293 = c[1] * t287;
        const P t294 = t292 - t293;
        const P t295 = t294 + t290;
        const P t296 = c[2] * t288;
        const P t297 = c[3] * t284;
        const P t298 = t296 - t297;
        const P t299 = c[1] * t283;
        const P t300 = t290 - t299;
        const P t301 = c[0] * t287;
        const P t302 = t300 + t301;
        const P t303 = c[2] * t284;
        const P t304 = c[3] * t288;
        const P t305 = t303 + t304;
        const P t306 = shuffled<1, 3>(x56, x25);
        const P t307 = shuffled<1, 3>(x38, x7);
        // real block of 5
        const P t308 = t306 + t307;
        const P t309 = t306 - t307;
        const P t310 = shuffled<1, 3>(x14, x45);
        const P t311 = shuffled<1, 3>(x28, x59);
        const P t312 = t310 + t311;
        const P t313 = t310 - t311;
        const P t314 = t308 + t312;
        const P t315 = shuffled<1, 3>(x50, x19);
        const P t316 = t314 + t315;
        const P t317 = c[0] * t308;
        const P t318 = c[1] * t312;
        const P t319 = t317 - t318;
        const P t320 = t319 + t315;
        const P t321 = c[2] * t313;
        const P t322 = c[3] * t309;
        const P t323 = t321 - t322;
        const P t324 = c[1] * t308;
        const P t325 = t315 - t324;
        const P t326 = c[0] * t312;
        const P t327 = t325 + t326;
        const P t328 = c[2] * t309;
        const P t329 = c[3] * t313;
        const P t330 = t328 + t329;
        const P t331 = shuffled<1, 3>(x30, x61);
        const P t332 = shuffled<1, 3>(x58, x27);
        // real block of 5
        const P t333 = t331 + t332;
        const P t334 = t331 - t332;
        const P t335 = shuffled<1, 3>(x54, x23);
        const P t336 = shuffled<1, 3>(x46, x15);
        const P t337 = t335 + t336;
        const P t338 = t335 - t336;
        const P t339 = t333 + t337;
        const P t340 = shuffled<1, 3>(x60, x29);
        const P t341 = t339 + t340;
        const P t342 = c[0] * t333;
        const P t343 = c[1] * t337;
        const P t344 = t342 - t343;
        const P t345 = t344 + t340;
        const P t346 = c[2] * t338;
        const P t347 = c[3] * t334;
        const P t348 = t346 - t347;
        const P t349 = c[1] * t333;
        const P t350 = t340 - t349;
        const P t351 = c[0] * t337;
        const P t352 = t350 + t351;
        const P t353 = c[2] * t334;
        const P t354 = c[3] * t338;
        const P t355 = t353 + t354;
        const P t356 = shuffled<1, 3>(x36, x5);
        const P t357 = shuffled<1, 3>(x20, x51);
        // real block of 5
        const P t358 = t356 + t357;
        const P t359 = t356 - t357;
        const P t360 = shuffled<1, 3>(x40, x9);
        const P t361 = shuffled<1, 3>(x18, x49);
        const P t362 = t360 + t361;
        const P t363 = t360 - t361;
        const P t364 = t358 + t362;
        const P t365 = shuffled<1, 3>(x10, x41);
        const P t366 = t364 + t365;
        const P t367 = c[0] * t358;
        const P t368 = c[1] * t362;
        const P t369 = t367 - t368;
        const P t370 = t369 + t365;
        const P t371 = c[2] * t363;
        const P t372 = c[3] * t359;
        const P t373 = t371 - t372;
        const P t374 = c[1] * t358;
        const P t375 = t365 - t374;
        const P t376 = c[0] * t362;
        const P t377 = t375 + t376;
        const P t378 = c[2] * t359;
        const P t379 = c[3] * t363;
        const P t380 = t378 + t379;
        const P t381 = shuffled<1, 3>(x6, x37);
        const P t382 = shuffled<1, 3>(x24, x55);
        // real block of 5
        const P t383 = t381 + t382;
        const P t384 = t381 - t382;
        const P t385 = shuffled<1, 3>(x48, x17);
        const P t386 = shuffled<1, 3>(x34, x3);
        const P t387 = t385 + t386;
        const P t388 = t385 - t386;
        const P t389 = t383 + t387;
        const P t390 = shuffled<1, 3>(x12, x43);
        const P t391 = t389 + t390;
        const P t392 = c[0] * t383;
        const P t393 = c[1] * t387;
        const P t394 = t392 - t393;
        const P t395 = t394 + t390;
        const P t396 = c[2] * t388;
        const P t397 = c[3] * t384;
        const P t398 = t396 - t397;
        const P t399 = c[1] * t383;
        const P t400 = t390 - t399;
        const P t401 = c[0] * t387;
        const P t402 = t400 + t401;
        const P t403 = c[2] * t384;
        const P t404 = c[3] * t388;
        const P t405 = t403 + t404;
        // real block of 3
        const P t406 = t316 + t366;
        const P t407 = t316 - t366;
        const P t408 = t406 + t266;
        const P t409 = c[4] * t406;
        const P t410 = t266 - t409;
        // real block of 3
        const P t411 = t391 + t291;
        const P t412 = t391 - t291;
        const P t413 = t411 + t341;
        const P t414 = c[4] * t411;
        const P t415 = t341 - t414;
        // real block of 2
        const P t416 = t408 + t413;
        const P t417 = t408 - t413;
        // complex block of 2
        const P t418 = t410 + t415;
        // real block of 3
        const P t419 = c[5] * t407;
        // real block of 3
        const P t420 = c[5] * t412;
        // complex block of 2
        const P t421 = t419 + t420;
        const P t422 = t410 - t415;
        const P t423 = t420 - t419;
        // complex block of 3
        const P t424 = t320 + t370;
        const P t425 = t323 + t373;
        const P t426 = t320 - t370;
        const P t427 = t323 - t373;
        const P t428 = t424 + t270;
        const P t429 = t425 + t273;
        const P t430 = c[4] * t424;
        const P t431 = t270 - t430;
        const P t432 = c[4] * t425;
        const P t433 = t273 - t432;
        const P t434 = c[5] * t427;
        const P t435 = t431 + t434;
        const P t436 = c[5] * t426;
        const P t437 = t433 - t436;
        const P t438 = t431 - t434;
        const P t439 = t433 + t436;
        // complex block of 3
        const P t440 = t395 + t295;
        const P t441 = t398 + t298;
        const P t442 = t395 - t295;
        const P t443 = t398 - t298;
        const P t444 = t440 + t345;
        const P t445 = t441 + t348;
        const P t446 = c[4] * t440;
        const P t447 = t345 - t446;
        const P t448 = c[4] * t441;
        const P t449 = t348 - t448;
        const P t450 = c[5] * t443;
        const P t451 = t447 + t450;
        const P t452 = c[5] * t442;
        const P t453 = t449 - t452;
        const P t454 = t447 - t450;
        const P t455 = t449 + t452;
        // complex block of 2
        const P t456 = t428 + t444;
        const P t457 = t429 + t445;
        const P t458 = t428 - t444;
        const P t459 = t429 - t445;
        // complex block of 2
        const P t460 = t435 + t451;
        const P t461 = t437 + t453;
        const P t462 = t435 - t451;
        const P t463 = t437 - t453;
        // complex block of 2
        const P t464 = t438 + t454;
        const P t465 = t439 + t455;
        const P t466 = t438 - t454;
        const P t467 = t439 - t455;
        // complex block of 3
        const P t468 = t327 + t377;
        const P t469 = t330 + t380;
        const P t470 = t327 - t377;
        const P t471 = t380 - t330;
        const P t472 = t468 + t277;
        const P t473 = t469 + t280;
        const P t474 = c[4] * t468;
        const P t475 = t277 - t474;
        const P t476 = c[4] * t469;
        const P t477 = t476 - t280;
        const P t478 = c[5] * t471;
        const P t479 = t475 + t478;
        const P t480 = c[5] * t470;
        const P t481 = t477 - t480;
        const P t482 = t475 - t478;
        const P t483 = t477 + t480;
        // complex block of 3
        const P t484 = t402 + t302;
        const P t485 = t405 + t305;
        const P t486 = t402 - t302;
        const P t487 = t305 - t405;
        const P t488 = t484 + t352;
        const P t489 = t485 + t355;
        const P t490 = c[4] * t484;
        const P t491 = t352 - t490;
        const P t492 = c[4] * t485;
        const P t493 = t492 - t355;
        const P t494 = c[5] * t487;
        const P t495 = t491 + t494;
        const P t496 = c[5] * t486;
        const P t497 = t493 - t496;
        const P t498 = t491 - t494;
        const P t499 = t493 + t496;
        // complex block of 2
        const P t500 = t472 + t488;
        const P t501 = t473 + t489;
        const P t502 = t472 - t488;
        const P t503 = t489 - t473;
        // complex block of 2
        const P t504 = t479 + t495;
        const P t505 = t481 + t497;
        const P t506 = t479 - t495;
        const P t507 = t481 - t497;
        // complex block of 2
        const P t508 = t482 + t498;
        const P t509 = t483 + t499;
        const P t510 = t482 - t498;
        const P t511 = t483 - t499;
        const P x0 = io.pair(0);
        const P x31 = io.pair(31);
        const P t512 = shuffled<0, 2>(x0, x31);
        // complex block of 31, multiplier 2
        const P t513 = t512 + t160;
        const P t514 = shuffled<1, 3>(x0, x31);
        const P t515 = t514 + t416;
        const P t516 = c[30] * t160;
        const P t517 = t512 - t516;
        const P t518 = c[30] * t416;
        const P t519 = t514 - t518;
        const P t520 = c[6] * t462;
        const P t521 = c[7] * t463;
        const P t522 = t520 + t521;
        const P t523 = c[6] * t463;
        const P t524 = c[7] * t462;
        const P t525 = t523 - t524;
        const P t526 = c[6] * t206;
        const P t527 = c[7] * t207;
        const P t528 = t526 + t527;
        const P t529 = c[7] * t206;
        const P t530 = c[6] * t207;
        const P t531 = t529 - t530;
        const P t532 = c[8] * t252;
        const P t533 = c[9] * t253;
        const P t534 = t532 + t533;
        const P t535 = c[9] * t252;
        const P t536 = c[8] * t253;
        const P t537 = t535 - t536;
        const P t538 = c[8] * t508;
        const P t539 = c[9] * t509;
        const P t540 = t538 + t539;
        const P t541 = c[9] * t508;
        const P t542 = c[8] * t509;
        const P t543 = t541 - t542;
        const P t544 = c[10] * t502;
        const P t545 = c[11] * t503;
        const P t546 = t544 - t545;
        const P t547 = c[10] * t503;
        const P t548 = c[11] * t502;
        const P t549 = t547 + t548;
        const P t550 = c[11] * t247;
        const P t551 = c[10] * t246;
        const P t552 = t550 - t551;
        const P t553 = c[10] * t247;
        const P t554 = c[11] * t246;
        const P t555 = t553 + t554;
        const P t556 = c[12] * t208;
        const P t557 = c[13] * t209;
        const P t558 = t556 + t557;
        const P t559 = c[13] * t208;
        const P t560 = c[12] * t209;
        const P t561 = t559 - t560;
        const P t562 = c[12] * t464;
        const P t563 = c[13] * t465;
        const P t564 = t562 + t563;
        const P t565 = c[13] * t464;
        const P t566 = c[12] * t465;
        const P t567 = t565 - t566;
        const P t568 = c[31] * t422;
        const P t569 = c[32] * t423;
        const P t570 = t568 + t569;
        const P t571 = c[31] * t166;
        const P t572 = c[32] * t167;
        const P t573 = t571 + t572;
        const P t574 = c[14] * t200;
        const P t575 = c[15] * t201;
        const P t576 = t574 - t575;
        const P t577 = c[14] * t201;
        const P t578 = c[15] * t200;
        const P t579 = t577 + t578;
        const P t580 = c[14] * t456;
        const P t581 = c[15] * t457;
        const P t582 = t580 - t581;
        const P t583 = c[14] * t457;
        const P t584 = c[15] * t456;
        const P t585 = t583 + t584;
        const P t586 = c[16] * t506;
        const P t587 = c[17] * t507;
        const P t588 = t586 + t587;
        const P t589 = c[16] * t507;
        const P t590 = c[17] * t506;
        const P t591 = t589 - t590;
        const P t592 = c[16] * t250;
        const P t593 = c[17] * t251;
        const P t594 = t592 + t593;
        const P t595 = c[17] * t250;
        const P t596 = c[16] * t251;
        const P t597 = t595 - t596;
        const P t598 = c[18] * t248;
        const P t599 = c[19] * t249;
        const P t600 = t598 - t599;
        const P t601 = c[18] * t249;
        const P t602 = c[19] * t248;
        const P t603 = t601 + t602;
        const P t604 = c[18] * t504;
        const P t605 = c[19] * t505;
        const P t606 = t604 - t605;
        const P t607 = c[18] * t505;
        const P t608 = c[19] * t504;
        const P t609 = t607 + t608;
        const P t610 = c[20] * t458;
        const P t611 = c[21] * t459;
        const P t612 = t610 + t611;
        const P t613 = c[21] * t458;
        const P t614 = c[20] * t459;
        const P t615 = t613 - t614;
        const P t616 = c[20] * t202;
        const P t617 = c[21] * t203;
        const P t618 = t616 + t617;
        const P t619 = c[20] * t203;
        const P t620 = c[21] * t202;
        const P t621 = t619 - t620;
        const P t622 = c[33] * t162;
        const P t623 = c[34] * t165;
        const P t624 = t622 + t623;
        const P t625 = c[33] * t418;
        const P t626 = c[34] * t421;
        const P t627 = t625 + t626;
        const P t628 = c[22] * t466;
        const P t629 = c[23] * t467;
        const P t630 = t628 + t629;
        const P t631 = c[23] * t466;
        const P t632 = c[22] * t467;
        const P t633 = t631 - t632;
        const P t634 = c[22] * t210;
        const P t635 = c[23] * t211;
        const P t636 = t634 + t635;
        const P t637 = c[22] * t211;
        const P t638 = c[23] * t210;
        const P t639 = t637 - t638;
        const P t640 = c[24] * t245;
        const P t641 = c[25] * t244;
        const P t642 = t640 - t641;
        const P t643 = c[25] * t245;
        const P t644 = c[24] * t244;
        const P t645 = t643 + t644;
        const P t646 = c[24] * t501;
        const P t647 = c[25] * t500;
        const P t648 = t646 - t647;
        const P t649 = c[25] * t501;
        const P t650 = c[24] * t500;
        const P t651 = t649 + t650;
        const P t652 = c[26] * t510;
        const P t653 = c[27] * t511;
        const P t654 = t652 + t653;
        const P t655 = c[26] * t511;
        const P t656 = c[27] * t510;
        const P t657 = t655 - t656;
        const P t658 = c[26] * t254;
        const P t659 = c[27] * t255;
        const P t660 = t658 + t659;
        const P t661 = c[27] * t254;
        const P t662 = c[26] * t255;
        const P t663 = t661 - t662;
        const P t664 = c[28] * t204;
        const P t665 = c[29] * t205;
        const P t666 = t664 + t665;
        const P t667 = c[29] * t204;
        const P t668 = c[28] * t205;
        const P t669 = t667 - t668;
        const P t670 = c[28] * t460;
        const P t671 = c[29] * t461;
        const P t672 = t670 + t671;
        const P t673 = c[29] * t460;
        const P t674 = c[28] * t461;
        const P t675 = t673 - t674;
        // spectrum block of 3
        const P t676 = t624 + t517;
        const P t677 = c[4] * t624;
        const P t678 = t517 - t677;
        const P t679 = c[35] * t162;
        const P t680 = c[36] * t165;
        const P t681 = t679 - t680;
        const P t682 = t678 - t681;
        const P t683 = t678 + t681;
        // complex block of 3
        const P t684 = t657 - t591;
        const P t685 = t588 - t654;
        const P t686 = t657 + t591;
        const P t687 = t654 + t588;
        const P t688 = t684 - t549;
        const P t689 = t685 + t546;
        const P t690 = c[4] * t684;
        const P t691 = t549 + t690;
        const P t692 = c[4] * t685;
        const P t693 = t546 - t692;
        const P t694 = c[5] * t687;
        const P t695 = t691 + t694;
        const P t696 = c[5] * t686;
        const P t697 = t693 - t696;
        const P t698 = t694 - t691;
        const P t699 = t693 + t696;
        // complex block of 3
        const P t700 = t669 + t561;
        const P t701 = t666 + t558;
        const P t702 = t561 - t669;
        const P t703 = t666 - t558;
        const P t704 = t579 - t700;
        const P t705 = t701 + t576;
        const P t706 = c[4] * t700;
        const P t707 = t706 + t579;
        const P t708 = c[4] * t701;
        const P t709 = t576 - t708;
        const P t710 = c[5] * t703;
        const P t711 = t707 + t710;
        const P t712 = c[5] * t702;
        const P t713 = t709 - t712;
        const P t714 = t707 - t710;
        const P t715 = t709 + t712;
        // complex block of 3
        const P t716 = t633 + t525;
        const P t717 = t522 - t630;
        const P t718 = t525 - t633;
        const P t719 = t630 + t522;
        const P t720 = t615 - t716;
        const P t721 = t717 + t612;
        const P t722 = c[4] * t716;
        const P t723 = t722 + t615;
        const P t724 = c[4] * t717;
        const P t725 = t612 - t724;
        const P t726 = c[5] * t719;
        const P t727 = t723 - t726;
        const P t728 = c[5] * t718;
        const P t729 = t725 - t728;
        const P t730 = t723 + t726;
        const P t731 = t725 + t728;
        // complex block of 3
        const P t732 = t603 + t537;
        const P t733 = t600 - t534;
        const P t734 = t603 - t537;
        const P t735 = t600 + t534;
        const P t736 = t732 + t645;
        const P t737 = t733 + t642;
        const P t738 = c[4] * t732;
        const P t739 = t645 - t738;
        const P t740 = c[4] * t733;
        const P t741 = t642 - t740;
        const P t742 = c[5] * t735;
        const P t743 = t739 + t742;
        const P t744 = c[5] * t734;
        const P t745 = t741 - t744;
        const P t746 = t739 - t742;
        const P t747 = t741 + t744;
        // complex block of 31, multiplier 2
        const P t748 = c[37] * t417;
        // spectrum block of 3
        const P t749 = t570 + t748;
        const P t750 = c[4] * t570;
        const P t751 = t748 - t750;
        const P t752 = c[38] * t422;
        const P t753 = c[39] * t423;
        const P t754 = t752 - t753;
        const P t755 = t751 + t754;
        const P t756 = t751 - t754;
        // spectrum block of 5
        const P t757 = t705 + t737;
        const P t758 = t757 + t676;
        const P t759 = c[0] * t705;
        const P t760 = c[1] * t737;
        const P t761 = t759 - t760;
        const P t762 = t761 + t676;
        const P t763 = c[3] * t704;
        const P t764 = c[2] * t736;
        const P t765 = t763 + t764;
        const P t766 = t762 - t765;
        const P t767 = t762 + t765;
        const P t768 = c[1] * t705;
        const P t769 = t676 - t768;
        const P t770 = c[0] * t737;
        const P t771 = t769 + t770;
        const P t772 = c[2] * t704;
        const P t773 = c[3] * t736;
        const P t774 = t772 - t773;
        const P t775 = t771 - t774;
        const P t776 = t771 + t774;
        // spectrum block of 5
        const P t777 = t721 + t689;
        const P t778 = t777 + t749;
        const P t779 = c[0] * t721;
        const P t780 = c[1] * t689;
        const P t781 = t779 - t780;
        const P t782 = t781 + t749;
        const P t783 = c[3] * t720;
        const P t784 = c[2] * t688;
        const P t785 = t783 + t784;
        const P t786 = t782 + t785;
        const P t787 = t782 - t785;
        const P t788 = c[1] * t721;
        const P t789 = t749 - t788;
        const P t790 = c[0] * t689;
        const P t791 = t789 + t790;
        const P t792 = c[3] * t688;
        const P t793 = c[2] * t720;
        const P t794 = t792 - t793;
        const P t795 = t791 - t794;
        const P t796 = t791 + t794;
        // spectrum block of 2
        const P t797 = t758 + t778;
        const P t798 = t758 - t778;
        // spectrum block of 2
        const P t799 = t766 + t786;
        const P t800 = t766 - t786;
        // spectrum block of 2
        const P t801 = t775 + t795;
        const P t802 = t775 - t795;
        // spectrum block of 2
        const P t803 = t776 + t796;
        const P t804 = t776 - t796;
        // spectrum block of 2
        const P t805 = t767 + t787;
        const P t806 = t767 - t787;
        // spectrum block of 5
        const P t807 = t713 + t745;
        const P t808 = t807 + t682;
        const P t809 = c[0] * t713;
        const P t810 = c[1] * t745;
        const P t811 = t809 - t810;
        const P t812 = t811 + t682;
        const P t813 = c[3] * t711;
        const P t814 = c[2] * t743;
        const P t815 = t813 + t814;
        const P t816 = t812 - t815;
        const P t817 = t812 + t815;
        const P t818 = c[1] * t713;
        const P t819 = t682 - t818;
        const P t820 = c[0] * t745;
        const P t821 = t819 + t820;
        const P t822 = c[2] * t711;
        const P t823 = c[3] * t743;
        const P t824 = t822 - t823;
        const P t825 = t821 - t824;
        const P t826 = t821 + t824;
        // spectrum block of 5
        const P t827 = t729 + t697;
        const P t828 = t827 + t755;
        const P t829 = c[0] * t729;
        const P t830 = c[1] * t697;
        const P t831 = t829 - t830;
        const P t832 = t831 + t755;
        const P t833 = c[2] * t695;
        const P t834 = c[3] * t727;
        const P t835 = t833 - t834;
        const P t836 = t832 - t835;
        const P t837 = t832 + t835;
        const P t838 = c[1] * t729;
        const P t839 = t755 - t838;
        const P t840 = c[0] * t697;
        const P t841 = t839 + t840;
        const P t842 = c[2] * t727;
        const P t843 = c[3] * t695;
        const P t844 = t842 + t843;
        const P t845 = t841 + t844;
        const P t846 = t841 - t844;
        // spectrum block of 2
        const P t847 = t808 + t828;
        const P t848 = t808 - t828;
        // spectrum block of 2
        const P t849 = t816 + t836;
        const P t850 = t816 - t836;
        // spectrum block of 2
        const P t851 = t825 + t845;
        const P t852 = t825 - t845;
        // spectrum block of 2
        const P t853 = t826 + t846;
        const P t854 = t826 - t846;
        // spectrum block of 2
        const P t855 = t817 + t837;
        const P t856 = t817 - t837;
        // spectrum block of 5
        const P t857 = t715 + t747;
        const P t858 = t857 + t683;
        const P t859 = c[0] * t715;
        const P t860 = c[1] * t747;
        const P t861 = t859 - t860;
        const P t862 = t861 + t683;
        const P t863 = c[3] * t714;
        const P t864 = c[2] * t746;
        const P t865 = t863 + t864;
        const P t866 = t862 - t865;
        const P t867 = t862 + t865;
        const P t868 = c[1] * t715;
        const P t869 = t683 - t868;
        const P t870 = c[0] * t747;
        const P t871 = t869 + t870;
        const P t872 = c[2] * t714;
        const P t873 = c[3] * t746;
        const P t874 = t872 - t873;
        const P t875 = t871 - t874;
        const P t876 = t871 + t874;
        // spectrum block of 5
        const P t877 = t731 + t699;
        const P t878 = t877 + t756;
        const P t879 = c[0] * t731;
        const P t880 = c[1] * t699;
        const P t881 = t879 - t880;
        const P t882 = t881 + t756;
        const P t883 = c[3] * t730;
        const P t884 = c[2] * t698;
        const P t885 = t883 + t884;
        const P t886 = t882 + t885;
        const P t887 = t882 - t885;
        const P t888 = c[1] * t731;
        const P t889 = t756 - t888;
        const P t890 = c[0] * t699;
        const P t891 = t889 + t890;
        const P t892 = c[3] * t698;
        const P t893 = c[2] * t730;
        const P t894 = t892 - t893;
        const P t895 = t891 - t894;
        const P t896 = t891 + t894;
        // spectrum block of 2
        const P t897 = t858 + t878;
        const P t898 = t858 - t878;
        // spectrum block of 2
        const P t899 = t866 + t886;
        const P t900 = t866 - t886;
        // spectrum block of 2
        const P t901 = t875 + t895;
        const P t902 = t875 - t895;
        // spectrum block of 2
        const P t903 = t876 + t896;
        const P t904 = t876 - t896;
        // spectrum block of 2
        const P t905 = t867 + t887;
        const P t906 = t867 - t887;
        // spectrum block of 3
        const P t907 = t627 + t519;
        const P t908 = c[4] * t627;
        const P t909 = t519 - t908;
        const P t910 = c[35] * t418;
        const P t911 = c[36] * t421;
        const P t912 = t910 - t911;
        const P t913 = t909 - t912;
        const P t914 = t909 + t912;
        // complex block of 3
        const P t915 = t663 - t597;
        const P t916 = t660 - t594;
        const P t917 = t663 + t597;
        const P t918 = t660 + t594;
        const P t919 = t915 + t555;
        const P t920 = t916 + t552;
        const P t921 = c[4] * t915;
        const P t922 = t555 - t921;
        const P t923 = c[4] * t916;
        const P t924 = t552 - t923;
        const P t925 = c[5] * t918;
        const P t926 = t922 + t925;
        const P t927 = c[5] * t917;
        const P t928 = t924 - t927;
        const P t929 = t922 - t925;
        const P t930 = t924 + t927;
        // complex block of 3
        const P t931 = t675 + t567;
        const P t932 = t672 + t564;
        const P t933 = t567 - t675;
        const P t934 = t672 - t564;
        const P t935 = t585 - t931;
        const P t936 = t932 + t582;
        const P t937 = c[4] * t931;
        const P t938 = t937 + t585;
        const P t939 = c[4] * t932;
        const P t940 = t582 - t939;
        const P t941 = c[5] * t934;
        const P t942 = t938 + t941;
        const P t943 = c[5] * t933;
        const P t944 = t940 - t943;
        const P t945 = t938 - t941;
        const P t946 = t940 + t943;
        // complex block of 3
        const P t947 = t639 + t531;
        const P t948 = t636 - t528;
        const P t949 = t531 - t639;
        const P t950 = t636 + t528;
        const P t951 = t621 - t947;
        const P t952 = t948 - t618;
        const P t953 = c[4] * t947;
        const P t954 = t953 + t621;
        const P t955 = c[4] * t948;
        const P t956 = t618 + t955;
        const P t957 = c[5] * t950;
        const P t958 = t954 + t957;
        const P t959 = c[5] * t949;
        const P t960 = t956 + t959;
        const P t961 = t954 - t957;
        const P t962 = t959 - t956;
        // complex block of 3
        const P t963 = t609 + t543;
        const P t964 = t606 - t540;
        const P t965 = t609 - t543;
        const P t966 = t606 + t540;
        const P t967 = t963 + t651;
        const P t968 = t964 + t648;
        const P t969 = c[4] * t963;
        const P t970 = t651 - t969;
        const P t971 = c[4] * t964;
        const P t972 = t648 - t971;
        const P t973 = c[5] * t966;
        const P t974 = t970 + t973;
        const P t975 = c[5] * t965;
        const P t976 = t972 - t975;
        const P t977 = t970 - t973;
        const P t978 = t972 + t975;
        // complex block of 31, multiplier 2
        const P t979 = c[37] * t161;
        // spectrum block of 3
        const P t980 = t573 + t979;
        const P t981 = c[4] * t573;
        const P t982 = t981 - t979;
        const P t983 = c[39] * t167;
        const P t984 = c[38] * t166;
        const P t985 = t983 - t984;
        const P t986 = t982 + t985;
        const P t987 = t982 - t985;
        // spectrum block of 5
        const P t988 = t936 + t968;
        const P t989 = t988 + t907;
        const P t990 = c[0] * t936;
        const P t991 = c[1] * t968;
        const P t992 = t990 - t991;
        const P t993 = t992 + t907;
        const P t994 = c[3] * t935;
        const P t995 = c[2] * t967;
        const P t996 = t994 + t995;
        const P t997 = t993 - t996;
        const P t998 = t993 + t996;
        const P t999 = c[1] * t936;
        const P t1000 = t907 - t999;
        const P t1001 = c[0] * t968;
        const P t1002 = t1000 + t1001;
        const P t1003 = c[2] * t935;
        const P t1004 = c[3] * t967;
        const P t1005 = t1003 - t1004;
        const P t1006 = t1002 - t1005;
        const P t1007 = t1002 + t1005;
        // spectrum block of 5
        const P t1008 = t952 + t920;
        const P t1009 = t1008 - t980;
        const P t1010 = c[0] * t952;
        const P t1011 = c[1] * t920;
        const P t1012 = t1010 - t1011;
        const P t1013 = t1012 - t980;
        const P t1014 = c[3] * t951;
        const P t1015 = c[2] * t919;
        const P t1016 = t1014 + t1015;
        const P t1017 = t1013 + t1016;
        const P t1018 = t1013 - t1016;
        const P t1019 = c[1] * t952;
        const P t1020 = t980 + t1019;
        const P t1021 = c[0] * t920;
        const P t1022 = t1021 - t1020;
        const P t1023 = c[3] * t919;
        const P t1024 = c[2] * t951;
        const P t1025 = t1023 - t1024;
        const P t1026 = t1022 - t1025;
        const P t1027 = t1022 + t1025;
        // spectrum block of 2
        const P t1028 = t989 + t1009;
        const P t1029 = t989 - t1009;
        // spectrum block of 2
        const P t1030 = t997 + t1017;
        const P t1031 = t997 - t1017;
        // spectrum block of 2
        const P t1032 = t1006 + t1026;
        const P t1033 = t1006 - t1026;
        // spectrum block of 2
        const P t1034 = t1007 + t1027;
        const P t1035 = t1007 - t1027;
        // spectrum block of 2
        const P t1036 = t998 + t1018;
        const P t1037 = t998 - t1018;
        // spectrum block of 5
        const P t1038 = t944 + t976;
        const P t1039 = t1038 + t913;
        const P t1040 = c[0] * t944;
        const P t1041 = c[1] * t976;
        const P t1042 = t1040 - t1041;
        const P t1043 = t1042 + t913;
        const P t1044 = c[3] * t942;
        const P t1045 = c[2] * t974;
        const P t1046 = t1044 + t1045;
        const P t1047 = t1043 - t1046;
        const P t1048 = t1043 + t1046;
        const P t1049 = c[1] * t944;
        const P t1050 = t913 - t1049;
        const P t1051 = c[0] * t976;
        const P t1052 = t1050 + t1051;
        const P t1053 = c[2] * t942;
        const P t1054 = c[3] * t974;
        const P t1055 = t1053 - t1054;
        const P t1056 = t1052 - t1055;
        const P t1057 = t1052 + t1055;
        // spectrum block of 5
        const P t1058 = t928 - t960;
        const P t1059 = t1058 + t986;
        const P t1060 = c[0] * t960;
        const P t1061 = t986 - t1060;
        const P t1062 = c[1] * t928;
        const P t1063 = t1061 - t1062;
        const P t1064 = c[3] * t958;
        const P t1065 = c[2] * t926;
        const P t1066 = t1064 + t1065;
        const P t1067 = t1063 + t1066;
        const P t1068 = t1063 - t1066;
        const P t1069 = c[1] * t960;
        const P t1070 = c[0] * t928;
        const P t1071 = t1069 + t1070;
        const P t1072 = t1071 + t986;
        const P t1073 = c[3] * t926;
        const P t1074 = c[2] * t958;
        const P t1075 = t1073 - t1074;
        const P t1076 = t1072 - t1075;
        const P t1077 = t1072 + t1075;
        // spectrum block of 2
        const P t1078 = t1039 + t1059;
        const P t1079 = t1039 - t1059;
        // spectrum block of 2
        const P t1080 = t1047 + t1067;
        const P t1081 = t1047 - t1067;
        // spectrum block of 2
        const P t1082 = t1056 + t1076;
        const P t1083 = t1056 - t1076;
        // spectrum block of 2
        const P t1084 = t1057 + t1077;
        const P t1085 = t1057 - t1077;
        // spectrum block of 2
        const P t1086 = t1048 + t1068;
        const P t1087 = t1048 - t1068;
        // spectrum block of 5
        const P t1088 = t946 + t978;
        const P t1089 = t1088 + t914;
        const P t1090 = c[0] * t946;
        const P t1091 = c[1] * t978;
        const P t1092 = t1090 - t1091;
        const P t1093 = t1092 + t914;
        const P t1094 = c[3] * t945;
        const P t1095 = c[2] * t977;
        const P t1096 = t1094 + t1095;
        const P t1097 = t1093 - t1096;
        const P t1098 = t1093 + t1096;
        const P t1099 = c[1] * t946;
        const P t1100 = t914 - t1099;
        const P t1101 = c[0] * t978;
        const P t1102 = t1100 + t1101;
        const P t1103 = c[2] * t945;
        const P t1104 = c[3] * t977;
        const P t1105 = t1103 - t1104;
        const P t1106 = t1102 - t1105;
        const P t1107 = t1102 + t1105;
        // spectrum block of 5
        const P t1108 = t962 + t930;
        const P t1109 = t1108 + t987;
        const P t1110 = c[0] * t962;
        const P t1111 = c[1] * t930;
        const P t1112 = t1110 - t1111;
        const P t1113 = t1112 + t987;
        const P t1114 = c[3] * t961;
        const P t1115 = c[2] * t929;
        const P t1116 = t1114 + t1115;
        const P t1117 = t1113 + t1116;
        const P t1118 = t1113 - t1116;
        const P t1119 = c[1] * t962;
        const P t1120 = t987 - t1119;
        const P t1121 = c[0] * t930;
        const P t1122 = t1120 + t1121;
        const P t1123 = c[3] * t929;
        const P t1124 = c[2] * t961;
        const P t1125 = t1123 - t1124;
        const P t1126 = t1122 - t1125;
        const P t1127 = t1122 + t1125;
        // spectrum block of 2
        const P t1128 = t1089 + t1109;
        const P t1129 = t1089 - t1109;
        // spectrum block of 2
        const P t1130 = t1097 + t1117;
        const P t1131 = t1097 - t1117;
        // spectrum block of 2
        const P t1132 = t1106 + t1126;
        const P t1133 = t1106 - t1126;
        // spectrum block of 2
        const P t1134 = t1107 + t1127;
        const P t1135 = t1107 - t1127;
        // spectrum block of 2
        const P t1136 = t1098 + t1118;
        const P t1137 = t1098 - t1118;
        const P t1138 = shuffled<0, 2>(t513, t515);
        const P t1139 = shuffled<1, 3>(t513, t515);
        // complex block of 2
        const P t1140 = t1138 + t1139;
        io.pair(0, t1140);
        const P t1141 = t1138 - t1139;
        io.pair(31, t1141);
        const P t1142 = shuffled<0, 2>(t797, t1028);
        const P t1143 = shuffled<1, 3>(t797, t1028);
        // complex block of 2
        const P t1144 = t1142 + t1143;
        io.pair(2, t1144);
        const P t1145 = t1142 - t1143;
        io.pair(33, t1145);
        const P t1146 = shuffled<0, 2>(t799, t1030);
        const P t1147 = shuffled<1, 3>(t799, t1030);
        // complex block of 2
        const P t1148 = t1146 + t1147;
        io.pair(4, t1148);
        const P t1149 = t1146 - t1147;
        io.pair(35, t1149);
        const P t1150 = shuffled<0, 2>(t906, t1137);
        const P t1151 = shuffled<1, 3>(t906, t1137);
        // complex block of 2
        const P t1152 = t1150 + t1151;
        io.pair(6, t1152);
        const P t1153 = t1150 - t1151;
        io.pair(37, t1153);
        const P t1154 = shuffled<0, 2>(t801, t1032);
        const P t1155 = shuffled<1, 3>(t801, t1032);
        // complex block of 2
        const P t1156 = t1154 + t1155;
        io.pair(8, t1156);
        const P t1157 = t1154 - t1155;
        io.pair(39, t1157);
        const P t1158 = shuffled<0, 2>(t847, t1078);
        const P t1159 = shuffled<1, 3>(t847, t1078);
        // complex block of 2
        const P t1160 = t1158 + t1159;
        io.pair(10, t1160);
        const P t1161 = t1158 - t1159;
        io.pair(41, t1161);
        const P t1162 = shuffled<0, 2>(t898, t1129);
        const P t1163 = shuffled<1, 3>(t898, t1129);
        // complex block of 2
        const P t1164 = t1162 + t1163;
        io.pair(12, t1164);
        const P t1165 = t1162 - t1163;
        io.pair(43, t1165);
        const P t1166 = shuffled<0, 2>(t901, t1132);
        const P t1167 = shuffled<1, 3>(t901, t1132);
        // complex block of 2
        const P t1168 = t1166 + t1167;
        io.pair(14, t1168);
        const P t1169 = t1166 - t1167;
        io.pair(45, t1169);
        const P t1170 = shuffled<0, 2>(t803, t1034);
        const P t1171 = shuffled<1, 3>(t803, t1034);
        // complex block of 2
        const P t1172 = t1170 + t1171;
        io.pair(16, t1172);
        const P t1173 = t1170 - t1171;
        io.pair(47, t1173);
        const P t1174 = shuffled<0, 2>(t853, t1084);
        const P t1175 = shuffled<1, 3>(t853, t1084);
        // complex block of 2
        const P t1176 = t1174 + t1175;
        io.pair(18, t1176);
        const P t1177 = t1174 - t1175;
        io.pair(49, t1177);
        const P t1178 = shuffled<0, 2>(t849, t1080);
        const P t1179 = shuffled<1, 3>(t849, t1080);
        // complex block of 2
        const P t1180 = t1178 + t1179;
        io.pair(20, t1180);
        const P t1181 = t1178 - t1179;
        io.pair(51, t1181);
        const P t1182 = shuffled<0, 2>(t852, t1083);
        const P t1183 = shuffled<1, 3>(t852, t1083);
        // complex block of 2
        const P t1184 = t1182 + t1183;
        io.pair(22, t1184);
        const P t1185 = t1182 - t1183;
        io.pair(53, t1185);
        const P t1186 = shuffled<0, 2>(t900, t1131);
        const P t1187 = shuffled<1, 3>(t900, t1131);
        // complex block of 2
        const P t1188 = t1186 + t1187;
        io.pair(24, t1188);
        const P t1189 = t1186 - t1187;
        io.pair(55, t1189);
        const P t1190 = shuffled<0, 2>(t856, t1087);
        const P t1191 = shuffled<1, 3>(t856, t1087);
        // complex block of 2
        const P t1192 = t1190 + t1191;
        io.pair(26, t1192);
        const P t1193 = t1190 - t1191;
        io.pair(57, t1193);
        const P t1194 = shuffled<0, 2>(t903, t1134);
        const P t1195 = shuffled<1, 3>(t903, t1134);
        // complex block of 2
        const P t1196 = t1194 + t1195;
        io.pair(28, t1196);
        const P t1197 = t1194 - t1195;
        io.pair(59, t1197);
        const P t1198 = shuffled<0, 2>(t806, t1037);
        const P t1199 = shuffled<1, 3>(t806, t1037);
        // complex block of 2
        const P t1200 = t1198 + t1199;
        io.pair(30, t1200);
        const P t1201 = t1198 - t1199;
        io.pair(61, t1201);
        const P t1202 = shuffled<0, 2>(t805, t1036);
        const P t1203 = shuffled<1, 3>(t805, t1036);
        // complex block of 2
        const P t1204 = t1202 + t1203;
        io.pair(32, t1204);
        const P t1205 = t1202 - t1203;
        io.pair(1, t1205);
        const P t1206 = shuffled<0, 2>(t904, t1135);
        const P t1207 = shuffled<1, 3>(t904, t1135);
        // complex block of 2
        const P t1208 = t1206 + t1207;
        io.pair(34, t1208);
        const P t1209 = t1206 - t1207;
        io.pair(3, t1209);
        const P t1210 = shuffled<0, 2>(t855, t1086);
        const P t1211 = shuffled<1, 3>(t855, t1086);
        // complex block of 2
        const P t1212 = t1210 + t1211;
        io.pair(36, t1212);
        const P t1213 = t1210 - t1211;
        io.pair(5, t1213);
        const P t1214 = shuffled<0, 2>(t899, t1130);
        const P t1215 = shuffled<1, 3>(t899, t1130);
        // complex block of 2
        const P t1216 = t1214 + t1215;
        io.pair(38, t1216);
        const P t1217 = t1214 - t1215;
        io.pair(7, t1217);
        const P t1218 = shuffled<0, 2>(t851, t1082);
        const P t1219 = shuffled<1, 3>(t851, t1082);
        // complex block of 2
        const P t1220 = t1218 + t1219;
        io.pair(40, t1220);
        const P t1221 = t1218 - t1219;
        io.pair(9, t1221);
        const P t1222 = shuffled<0, 2>(t850, t1081);
        const P t1223 = shuffled<1, 3>(t850, t1081);
        // complex block of 2
        const P t1224 = t1222 + t1223;
        io.pair(42, t1224);
        const P t1225 = t1222 - t1223;
        io.pair(11, t1225);
        const P t1226 = shuffled<0, 2>(t854, t1085);
        const P t1227 = shuffled<1, 3>(t854, t1085);
        // complex block of 2
        const P t1228 = t1226 + t1227;
        io.pair(44, t1228);
        const P t1229 = t1226 - t1227;
        io.pair(13, t1229);
        const P t1230 = shuffled<0, 2>(t804, t1035);
        const P t1231 = shuffled<1, 3>(t804, t1035);
        // complex block of 2
        const P t1232 = t1230 + t1231;
        io.pair(46, t1232);
        const P t1233 = t1230 - t1231;
        io.pair(15, t1233);
        const P t1234 = shuffled<0, 2>(t902, t1133);
        const P t1235 = shuffled<1, 3>(t902, t1133);
        // complex block of 2
        const P t1236 = t1234 + t1235;
        io.pair(48, t1236);
        const P t1237 = t1234 - t1235;
        io.pair(17, t1237);
        const P t1238 = shuffled<0, 2>(t897, t1128);
        const P t1239 = shuffled<1, 3>(t897, t1128);
        // complex block of 2
        const P t1240 = t1238 + t1239;
        io.pair(50, t1240);
        const P t1241 = t1238 - t1239;
        io.pair(19, t1241);
        const P t1242 = shuffled<0, 2>(t848, t1079);
        const P t1243 = shuffled<1, 3>(t848, t1079);
        // complex block of 2
        const P t1244 = t1242 + t1243;
        io.pair(52, t1244);
        const P t1245 = t1242 - t1243;
        io.pair(21, t1245);
        const P t1246 = shuffled<0, 2>(t802, t1033);
        const P t1247 = shuffled<1, 3>(t802, t1033);
        // complex block of 2
        const P t1248 = t1246 + t1247;
        io.pair(54, t1248);
        const P t1249 = t1246 - t1247;
        io.pair(23, t1249);
        const P t1250 = shuffled<0, 2>(t905, t1136);
        const P t1251 = shuffled<1, 3>(t905, t1136);
        // complex block of 2
        const P t1252 = t1250 + t1251;
        io.pair(56, t1252);
        const P t1253 = t1250 - t1251;
        io.pair(25, t1253);
        const P t1254 = shuffled<0, 2>(t800, t1031);
        const P t1255 = shuffled<1, 3>(t800, t1031);
        // complex block of 2
        const P t1256 = t1254 + t1255;
        io.pair(58, t1256);
        const P t1257 = t1254 - t1255;
        io.pair(27, t1257);
        const P t1258 = shuffled<0, 2>(t798, t1029);
        const P t1259 = shuffled<1, 3>(t798, t1029);
        // complex block of 2
        const P t1260 = t1258 + t1259;
        io.pair(60, t1260);
        const P t1261 = t1258 - t1259;
        io.pair(29, t1261);
    }
};

}  // namespace zulg
