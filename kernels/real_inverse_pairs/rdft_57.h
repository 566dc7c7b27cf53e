// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 57.
// Inverse DFT to 57 real points, prime-factor 3, 19; two lanes to a register.
// 174 sums, 132 differences, 214 products of registers, which do the 1084 steps of the graph, those with
// `scale` included; 65 shuffles, 24 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<57> {
    static constexpr int steps = 1084;  // with `scale`
    static constexpr double inverseRoot = 0.13245323570650439;  // 1/sqrt(57), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        2.0,  // c[2]: 2
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.984807753012208,  // c[4]: sin 2 pi 2/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.6427876096865394,  // c[6]: sin 2 pi 1/9
        0.011219473461650014,  // c[7]: -Q[1] of 19
        0.48419213608836237,  // c[8]: -P[1] of 19
        0.18325479984409965,  // c[9]: -P[2] of 19
        0.4483141527641826,  // c[10]: -Q[2] of 19
        0.28199561460730244,  // c[11]: -P[3] of 19
        0.3937592850674352,  // c[12]: -Q[3] of 19
        0.0768648721323888,  // c[13]: P[4] of 19
        0.4781837436243932,  // c[14]: Q[4] of 19
        0.48432200167201295,  // c[15]: -Q[5] of 19
        0.0003161186210583505,  // c[16]: P[5] of 19
        0.47339199623771827,  // c[17]: P[6] of 19
        0.10231284930367265,  // c[18]: -Q[6] of 19
        0.19002677048035677,  // c[19]: -Q[7] of 19
        0.4454859456092568,  // c[20]: -P[7] of 19
        0.235501645151975,  // c[21]: P[8] of 19
        0.4232102035221754,  // c[22]: Q[8] of 19
        0.9396926207859084,  // c[23]: -cos 2 pi 5/9
        0.3420201433256687,  // c[24]: -sin 2 pi 5/9
        0.1503837331804353,  // c[25]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[26]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.8137976813493737,  // c[27]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.29619813272602386,  // c[28]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.05555555555555555,  // c[29]: 1/18
        0.2421610524189263,  // c[30]: beta of 19
        1.7320508075688772,  // c[31]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x19 = io.pair(19);
        const V t0 = part<0>(x19);
        // doubled bins
        const V t1 = c[2] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3
        const V t2 = t1 + x0r;
        const V t3 = c[0] * t1;
        const V t4 = x0r - t3;
        const V t5 = part<1>(x19);
        const V t6 = c[31] * t5;
        const V t7 = t4 - t6;
        const V t8 = t4 + t6;
        const P x22 = io.pair(22);
        // doubled bins
        const P t9 = c[2] * x22;
        const P x16 = io.pair(16);
        const P t10 = P(c[2], -c[2]) * x16;
        // complex block of 3
        const P t11 = t9 + t10;
        const P t12 = t9 - t10;
        const P x3 = io.pair(3);
        // doubled bins
        const P t13 = c[2] * x3;
        // complex block of 3
        const P t14 = t11 + t13;
        const P t15 = c[0] * t11;
        const P t16 = t13 - t15;
        const P t17 = P(c[1], -c[1]) * t12;
        const P t18 = shuffled<1, 0>(t17);
        const P t19 = t16 + t18;
        const P t20 = t16 - t18;
        const P x25 = io.pair(25);
        // doubled bins
        const P t21 = c[2] * x25;
        const P x13 = io.pair(13);
        const P t22 = P(c[2], -c[2]) * x13;
        // complex block of 3
        const P t23 = t21 + t22;
        const P t24 = t21 - t22;
        const P x6 = io.pair(6);
        // doubled bins
        const P t25 = c[2] * x6;
        // complex block of 3
        const P t26 = t23 + t25;
        const P t27 = c[0] * t23;
        const P t28 = t25 - t27;
        const P t29 = P(c[1], -c[1]) * t24;
        const P t30 = shuffled<1, 0>(t29);
        const P t31 = t28 + t30;
        const P t32 = t28 - t30;
        const P x28 = io.pair(28);
        // doubled bins
        const P t33 = c[2] * x28;
        const P x10 = io.pair(10);
        const P t34 = P(c[2], -c[2]) * x10;
        // complex block of 3
        const P t35 = t33 + t34;
        const P t36 = t33 - t34;
        const P x9 = io.pair(9);
        // doubled bins
        const P t37 = c[2] * x9;
        // complex block of 3
        const P t38 = t35 + t37;
        const P t39 = c[0] * t35;
        const P t40 = t37 - t39;
        const P t41 = P(c[1], -c[1]) * t36;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        const P x26 = io.pair(26);
        // doubled bins
        const P t45 = c[2] * x26;
        const P x7 = io.pair(7);
        const P t46 = c[2] * x7;
        // complex block of 3
        const P t47 = t45 + t46;
        const P t48 = shuffled<0, 3>(t45, t46);
        const P t49 = shuffled<0, 3>(t46, t45);
        const P t50 = t48 - t49;
        const P x12 = io.pair(12);
        // doubled bins
        const P t51 = c[2] * x12;
        const P t52 = flipped<0, 1>(t47);
        // complex block of 3
        const P t53 = t51 + t52;
        const P t54 = P(-c[0], c[0]) * t47;
        const P t55 = t54 + t51;
        const P t56 = P(c[1], -c[1]) * t50;
        const P t57 = shuffled<1, 0>(t56);
        const P t58 = t55 + t57;
        const P t59 = t55 - t57;
        const P x23 = io.pair(23);
        // doubled bins
        const P t60 = c[2] * x23;
        const P x4 = io.pair(4);
        const P t61 = c[2] * x4;
        // complex block of 3
        const P t62 = t60 + t61;
        const P t63 = shuffled<0, 3>(t60, t61);
        const P t64 = shuffled<0, 3>(t61, t60);
        const P t65 = t63 - t64;
        const P x15 = io.pair(15);
        // doubled bins
        const P t66 = c[2] * x15;
        const P t67 = flipped<0, 1>(t62);
        // complex block of 3
        const P t68 = t66 + t67;
        const P t69 = P(-c[0], c[0]) * t62;
        const P t70 = t69 + t66;
        const P t71 = P(c[1], -c[1]) * t65;
        const P t72 = shuffled<1, 0>(t71);
        const P t73 = t70 + t72;
        const P t74 = t70 - t72;
        const P x20 = io.pair(20);
        // doubled bins
        const P t75 = c[2] * x20;
        const P x1 = io.pair(1);
        const P t76 = c[2] * x1;
        // complex block of 3
        const P t77 = t75 + t76;
        const P t78 = shuffled<0, 3>(t75, t76);
        const P t79 = shuffled<0, 3>(t76, t75);
        const P t80 = t78 - t79;
        const P x18 = io.pair(18);
        // doubled bins
        const P t81 = c[2] * x18;
        const P t82 = flipped<0, 1>(t77);
        // complex block of 3
        const P t83 = t81 + t82;
        const P t84 = P(-c[0], c[0]) * t77;
        const P t85 = t84 + t81;
        const P t86 = P(c[1], -c[1]) * t80;
        const P t87 = shuffled<1, 0>(t86);
        const P t88 = t85 + t87;
        const P t89 = t85 - t87;
        const P x2 = io.pair(2);
        // doubled bins
        const P t90 = c[2] * x2;
        const P x17 = io.pair(17);
        const P t91 = P(c[2], -c[2]) * x17;
        // complex block of 3
        const P t92 = t90 + t91;
        const P t93 = flipped<0, 1>(t91);
        const P t94 = flipped<1, 0>(t90);
        const P t95 = t93 + t94;
        const P x21 = io.pair(21);
        // doubled bins
        const P t96 = c[2] * x21;
        // complex block of 3
        const P t97 = t92 + t96;
        const P t98 = c[0] * t92;
        const P t99 = t96 - t98;
        const P t100 = c[1] * t95;
        const P t101 = shuffled<1, 0>(t100);
        const P t102 = t99 + t101;
        const P t103 = t99 - t101;
        const P x5 = io.pair(5);
        // doubled bins
        const P t104 = c[2] * x5;
        const P x14 = io.pair(14);
        const P t105 = P(c[2], -c[2]) * x14;
        // complex block of 3
        const P t106 = t104 + t105;
        const P t107 = flipped<0, 1>(t105);
        const P t108 = flipped<1, 0>(t104);
        const P t109 = t107 + t108;
        const P x24 = io.pair(24);
        // doubled bins
        const P t110 = c[2] * x24;
        // complex block of 3
        const P t111 = t106 + t110;
        const P t112 = c[0] * t106;
        const P t113 = t110 - t112;
        const P t114 = c[1] * t109;
        const P t115 = shuffled<1, 0>(t114);
        const P t116 = t113 + t115;
        const P t117 = t113 - t115;
        const P x8 = io.pair(8);
        // doubled bins
        const P t118 = c[2] * x8;
        const P x11 = io.pair(11);
        const P t119 = P(c[2], -c[2]) * x11;
        // complex block of 3
        const P t120 = t118 + t119;
        const P t121 = flipped<0, 1>(t119);
        const P t122 = flipped<1, 0>(t118);
        const P t123 = t121 + t122;
        const P x27 = io.pair(27);
        // doubled bins
        const P t124 = c[2] * x27;
        // complex block of 3
        const P t125 = t120 + t124;
        const P t126 = c[0] * t120;
        const P t127 = t124 - t126;
        const P t128 = c[1] * t123;
        const P t129 = shuffled<1, 0>(t128);
        const P t130 = t127 + t129;
        const P t131 = t127 - t129;
        const P t132 = shuffled<0, 2>(t111, t116);
        const P t133 = shuffled<0, 2>(t97, t102);
        // real block of 3
        const P t134 = t132 + t133;
        const P t135 = t132 - t133;
        const P t136 = shuffled<0, 2>(t14, t19);
        const P t137 = t134 + t136;
        const P t138 = c[0] * t134;
        const P t139 = t136 - t138;
        const P t140 = shuffled<0, 2>(t38, t43);
        const P t141 = shuffled<0, 2>(t68, t73);
        // real block of 3
        const P t142 = t140 + t141;
        const P t143 = t140 - t141;
        const P t144 = shuffled<0, 2>(t26, t31);
        const P t145 = t142 + t144;
        const P t146 = c[0] * t142;
        const P t147 = t144 - t146;
        const P t148 = shuffled<0, 2>(t83, t88);
        const P t149 = shuffled<0, 2>(t125, t130);
        // real block of 3
        const P t150 = t148 + t149;
        const P t151 = t148 - t149;
        const P t152 = shuffled<0, 2>(t53, t58);
        const P t153 = t150 + t152;
        const P t154 = c[0] * t150;
        const P t155 = t152 - t154;
        // real block of 3
        const P t156 = t145 + t153;
        const P t157 = t145 - t153;
        const P t158 = t156 + t137;
        const P t159 = c[0] * t156;
        const P t160 = t137 - t159;
        // real block of 9
        const P t161 = c[5] * t147;
        // real block of 3
        const P t162 = c[1] * t143;
        // real block of 9
        const P t163 = c[6] * t162;
        const P t164 = t161 - t163;
        const P t165 = c[5] * t162;
        const P t166 = c[6] * t147;
        const P t167 = t165 + t166;
        const P t168 = c[3] * t155;
        // real block of 3
        const P t169 = c[1] * t151;
        // real block of 9
        const P t170 = c[4] * t169;
        const P t171 = t168 - t170;
        const P t172 = c[3] * t169;
        const P t173 = c[4] * t155;
        const P t174 = t172 + t173;
        // complex block of 3
        const P t175 = t164 + t171;
        const P t176 = t167 + t174;
        const P t177 = t164 - t171;
        const P t178 = t174 - t167;
        const P t179 = t175 + t139;
        // real block of 3
        const P t180 = c[1] * t135;
        // complex block of 3
        const P t181 = t176 + t180;
        const P t182 = c[0] * t175;
        const P t183 = t139 - t182;
        const P t184 = c[0] * t176;
        const P t185 = t184 - t180;
        const P t186 = c[1] * t178;
        const P t187 = t183 + t186;
        const P t188 = c[1] * t177;
        const P t189 = t185 - t188;
        const P t190 = t183 - t186;
        const P t191 = t185 + t188;
        const P t192 = shuffled<1, 3>(t97, t102);
        const P t193 = shuffled<1, 3>(t111, t116);
        // real block of 3
        const P t194 = t192 - t193;
        const P t195 = t193 + t192;
        const P t196 = shuffled<1, 3>(t14, t19);
        const P t197 = t194 + t196;
        const P t198 = c[0] * t194;
        const P t199 = t196 - t198;
        const P t200 = shuffled<1, 3>(t68, t73);
        const P t201 = shuffled<1, 3>(t38, t43);
        // real block of 3
        const P t202 = t200 - t201;
        const P t203 = t201 + t200;
        const P t204 = shuffled<1, 3>(t26, t31);
        const P t205 = t202 - t204;
        const P t206 = c[0] * t202;
        const P t207 = t204 + t206;
        const P t208 = shuffled<1, 3>(t83, t88);
        const P t209 = shuffled<1, 3>(t125, t130);
        // real block of 3
        const P t210 = t208 + t209;
        const P t211 = t208 - t209;
        const P t212 = shuffled<1, 3>(t53, t58);
        const P t213 = t210 + t212;
        const P t214 = c[0] * t210;
        const P t215 = t212 - t214;
        // real block of 3
        const P t216 = t205 + t213;
        const P t217 = t205 - t213;
        const P t218 = t216 + t197;
        const P t219 = c[0] * t216;
        const P t220 = t197 - t219;
        // real block of 3
        const P t221 = c[1] * t203;
        // real block of 9
        const P t222 = c[6] * t221;
        const P t223 = c[5] * t207;
        const P t224 = t222 - t223;
        const P t225 = c[5] * t221;
        const P t226 = c[6] * t207;
        const P t227 = t225 + t226;
        const P t228 = c[3] * t215;
        // real block of 3
        const P t229 = c[1] * t211;
        // real block of 9
        const P t230 = c[4] * t229;
        const P t231 = t228 - t230;
        const P t232 = c[3] * t229;
        const P t233 = c[4] * t215;
        const P t234 = t232 + t233;
        // complex block of 3
        const P t235 = t224 + t231;
        const P t236 = t227 - t234;
        const P t237 = t224 - t231;
        const P t238 = t227 + t234;
        const P t239 = t235 + t199;
        // real block of 3
        const P t240 = c[1] * t195;
        // complex block of 3
        const P t241 = t236 + t240;
        const P t242 = c[0] * t235;
        const P t243 = t199 - t242;
        const P t244 = c[0] * t236;
        const P t245 = t240 - t244;
        const P t246 = c[1] * t238;
        const P t247 = t243 + t246;
        const P t248 = c[1] * t237;
        const P t249 = t245 - t248;
        const P t250 = t243 - t246;
        const P t251 = t245 + t248;
        const P t252 = joined(t2, t7);
        // spectrum block of 19, multiplier 3
        const P t253 = c[29] * t158;
        const P t254 = t252 - t253;
        const P t255 = c[7] * t247;
        const P t256 = c[8] * t249;
        const P t257 = t255 + t256;
        const P t258 = c[7] * t249;
        const P t259 = c[8] * t247;
        const P t260 = t258 - t259;
        const P t261 = c[9] * t179;
        const P t262 = c[10] * t181;
        const P t263 = t261 + t262;
        const P t264 = c[9] * t181;
        const P t265 = c[10] * t179;
        const P t266 = t264 - t265;
        // real block of 3
        const P t267 = c[1] * t217;
        // spectrum block of 19, multiplier 3
        const P t268 = c[11] * t267;
        const P t269 = c[12] * t220;
        const P t270 = t268 - t269;
        const P t271 = c[12] * t267;
        const P t272 = c[11] * t220;
        const P t273 = t271 + t272;
        const P t274 = c[13] * t190;
        const P t275 = c[14] * t191;
        const P t276 = t274 + t275;
        const P t277 = c[14] * t190;
        const P t278 = c[13] * t191;
        const P t279 = t277 - t278;
        const P t280 = c[15] * t250;
        const P t281 = c[16] * t251;
        const P t282 = t280 + t281;
        const P t283 = c[16] * t250;
        const P t284 = c[15] * t251;
        const P t285 = t283 - t284;
        const P t286 = c[17] * t160;
        // real block of 3
        const P t287 = c[1] * t157;
        // spectrum block of 19, multiplier 3
        const P t288 = c[18] * t287;
        const P t289 = t286 - t288;
        const P t290 = c[17] * t287;
        const P t291 = c[18] * t160;
        const P t292 = t290 + t291;
        const P t293 = c[19] * t239;
        const P t294 = c[20] * t241;
        const P t295 = t293 + t294;
        const P t296 = c[19] * t241;
        const P t297 = c[20] * t239;
        const P t298 = t296 - t297;
        const P t299 = c[21] * t187;
        const P t300 = c[22] * t189;
        const P t301 = t299 - t300;
        const P t302 = c[21] * t189;
        const P t303 = c[22] * t187;
        const P t304 = t302 + t303;
        const P t305 = c[30] * t218;
        // spectrum block of 2
        const P t306 = t254 + t305;
        const P t307 = t254 - t305;
        // complex block of 2
        const P t308 = t266 - t298;
        const P t309 = t263 + t295;
        const P t310 = t266 + t298;
        const P t311 = t295 - t263;
        // complex block of 2
        const P t312 = t279 - t285;
        const P t313 = t276 - t282;
        const P t314 = t279 + t285;
        const P t315 = t276 + t282;
        // complex block of 2
        const P t316 = t273 - t292;
        const P t317 = t289 + t270;
        const P t318 = t292 + t273;
        const P t319 = t289 - t270;
        // complex block of 2
        const P t320 = t304 - t260;
        const P t321 = t301 - t257;
        const P t322 = t304 + t260;
        const P t323 = t301 + t257;
        // spectrum block of 3, multiplier 2
        const P t324 = t317 + t306;
        const P t325 = c[0] * t317;
        const P t326 = t306 - t325;
        const P t327 = c[1] * t316;
        const P t328 = t326 - t327;
        const P t329 = t326 + t327;
        // complex block of 3, multiplier 2
        const P t330 = t320 - t312;
        const P t331 = t321 + t313;
        const P t332 = t320 + t312;
        const P t333 = t321 - t313;
        const P t334 = t330 + t308;
        const P t335 = t331 - t309;
        const P t336 = c[0] * t330;
        const P t337 = t308 - t336;
        const P t338 = c[0] * t331;
        const P t339 = t309 + t338;
        const P t340 = c[1] * t333;
        const P t341 = t337 + t340;
        const P t342 = c[1] * t332;
        const P t343 = t339 + t342;
        const P t344 = t337 - t340;
        const P t345 = t342 - t339;
        // spectrum block of 9, multiplier 2
        const P t346 = c[3] * t345;
        const P t347 = c[4] * t344;
        const P t348 = t346 - t347;
        const P t349 = c[23] * t343;
        const P t350 = c[24] * t341;
        const P t351 = t349 - t350;
        // spectrum block of 3, multiplier 2
        const P t352 = t335 + t324;
        io.out(3, 22, t352);
        const P t353 = c[0] * t335;
        const P t354 = t324 - t353;
        const P t355 = c[1] * t334;
        const P t356 = t354 - t355;
        io.out(21, 40, t356);
        const P t357 = t354 + t355;
        io.out(33, 52, t357);
        // spectrum block of 3, multiplier 2
        const P t358 = t348 + t329;
        io.out(15, 34, t358);
        const P t359 = c[0] * t348;
        const P t360 = t329 - t359;
        const P t361 = c[25] * t344;
        const P t362 = c[26] * t345;
        const P t363 = t361 + t362;
        const P t364 = t360 - t363;
        io.out(48, 10, t364);
        const P t365 = t360 + t363;
        io.out(51, 13, t365);
        // spectrum block of 3, multiplier 2
        const P t366 = t351 + t328;
        io.out(18, 37, t366);
        const P t367 = c[0] * t351;
        const P t368 = t328 - t367;
        const P t369 = c[27] * t341;
        const P t370 = c[28] * t343;
        const P t371 = t369 + t370;
        const P t372 = t368 + t371;
        io.out(12, 31, t372);
        const P t373 = t368 - t371;
        io.out(27, 46, t373);
        // spectrum block of 3, multiplier 2
        const P t374 = t319 + t307;
        const P t375 = c[0] * t319;
        const P t376 = t307 - t375;
        const P t377 = c[1] * t318;
        const P t378 = t376 + t377;
        const P t379 = t376 - t377;
        // complex block of 3, multiplier 2
        const P t380 = t322 - t314;
        const P t381 = t323 + t315;
        const P t382 = t322 + t314;
        const P t383 = t323 - t315;
        const P t384 = t380 + t310;
        const P t385 = t381 + t311;
        const P t386 = c[0] * t380;
        const P t387 = t310 - t386;
        const P t388 = c[0] * t381;
        const P t389 = t311 - t388;
        const P t390 = c[1] * t383;
        const P t391 = t387 + t390;
        const P t392 = c[1] * t382;
        const P t393 = t389 - t392;
        const P t394 = t387 - t390;
        const P t395 = t389 + t392;
        // spectrum block of 9, multiplier 2
        const P t396 = c[3] * t395;
        const P t397 = c[4] * t394;
        const P t398 = t396 - t397;
        const P t399 = c[23] * t393;
        const P t400 = c[24] * t391;
        const P t401 = t399 + t400;
        // spectrum block of 3, multiplier 2
        const P t402 = t385 + t374;
        io.out(54, 16, t402);
        const P t403 = c[0] * t385;
        const P t404 = t374 - t403;
        const P t405 = c[1] * t384;
        const P t406 = t404 - t405;
        io.out(36, 55, t406);
        const P t407 = t404 + t405;
        io.out(24, 43, t407);
        // spectrum block of 3, multiplier 2
        const P t408 = t398 + t379;
        io.out(42, 4, t408);
        const P t409 = c[0] * t398;
        const P t410 = t379 - t409;
        const P t411 = c[25] * t394;
        const P t412 = c[26] * t395;
        const P t413 = t411 + t412;
        const P t414 = t410 - t413;
        io.out(9, 28, t414);
        const P t415 = t410 + t413;
        io.out(6, 25, t415);
        // spectrum block of 3, multiplier 2
        const P t416 = t378 - t401;
        io.out(39, 1, t416);
        const P t417 = c[0] * t401;
        const P t418 = t417 + t378;
        const P t419 = c[28] * t393;
        const P t420 = c[27] * t391;
        const P t421 = t419 - t420;
        const P t422 = t418 - t421;
        io.out(45, 7, t422);
        const P t423 = t418 + t421;
        io.out(30, 49, t423);
        // spectrum block of 19, multiplier 3
        const P t424 = t252 + t158;
        io.out(0, 19, t424);
        const P t425 = flipped<0, 1>(t117);
        // real block of 3
        const P t426 = t103 + t425;
        const P t427 = flipped<1, 0>(t103);
        const P t428 = t117 + t427;
        const P t429 = t426 + t20;
        const P t430 = c[0] * t426;
        const P t431 = t20 - t430;
        const P t432 = flipped<0, 1>(t44);
        // real block of 3
        const P t433 = t74 + t432;
        const P t434 = flipped<1, 0>(t74);
        const P t435 = t44 + t434;
        const P t436 = flipped<0, 1>(t32);
        const P t437 = t433 + t436;
        const P t438 = P(-c[0], c[0]) * t433;
        const P t439 = t32 + t438;
        // real block of 3
        const P t440 = t89 + t131;
        const P t441 = t89 - t131;
        const P t442 = t440 + t59;
        const P t443 = c[0] * t440;
        const P t444 = t59 - t443;
        // real block of 3
        const P t445 = t437 + t442;
        const P t446 = t437 - t442;
        const P t447 = t445 + t429;
        const P t448 = c[0] * t445;
        const P t449 = t429 - t448;
        // real block of 3
        const P t450 = c[1] * t435;
        // real block of 9
        const P t451 = P(-c[6], c[6]) * t450;
        const P t452 = P(c[5], -c[5]) * t439;
        const P t453 = t451 + t452;
        const P t454 = c[5] * t450;
        const P t455 = c[6] * t439;
        const P t456 = t454 + t455;
        const P t457 = c[3] * t444;
        // real block of 3
        const P t458 = c[1] * t441;
        // real block of 9
        const P t459 = c[4] * t458;
        const P t460 = t457 - t459;
        const P t461 = c[3] * t458;
        const P t462 = c[4] * t444;
        const P t463 = t461 + t462;
        // complex block of 3
        const P t464 = t453 + t460;
        const P t465 = flipped<0, 1>(t463);
        const P t466 = t456 + t465;
        const P t467 = t453 - t460;
        const P t468 = flipped<1, 0>(t456);
        const P t469 = t468 + t463;
        const P t470 = t464 + t431;
        // real block of 3
        const P t471 = c[1] * t428;
        // complex block of 3
        const P t472 = t466 + t471;
        const P t473 = c[0] * t464;
        const P t474 = t431 - t473;
        const P t475 = flipped<1, 0>(t471);
        const P t476 = P(c[0], -c[0]) * t466;
        const P t477 = t475 + t476;
        const P t478 = c[1] * t469;
        const P t479 = t474 + t478;
        const P t480 = c[1] * t467;
        const P t481 = t477 - t480;
        const P t482 = t474 - t478;
        const P t483 = t477 + t480;
        const V t484 = part<0>(t447);
        // spectrum block of 19, multiplier 3
        const V t485 = c[29] * t484;
        const V t486 = t8 - t485;
        const P t487 = shuffled<1, 3>(t479, t481);
        const P t488 = c[7] * t487;
        const P t489 = shuffled<1, 0>(t487);
        const P t490 = P(c[8], -c[8]) * t489;
        const P t491 = t488 + t490;
        const P t492 = shuffled<0, 2>(t470, t472);
        const P t493 = c[9] * t492;
        const P t494 = shuffled<1, 0>(t492);
        const P t495 = P(c[10], -c[10]) * t494;
        const P t496 = t493 + t495;
        // real block of 3
        const P t497 = c[1] * t446;
        const P t498 = shuffled<1, 3>(t449, t497);
        // spectrum block of 19, multiplier 3
        const P t499 = P(-c[12], c[12]) * t498;
        const P t500 = shuffled<1, 0>(t498);
        const P t501 = c[11] * t500;
        const P t502 = t499 + t501;
        const P t503 = shuffled<0, 2>(t483, t482);
        const P t504 = c[14] * t503;
        const P t505 = shuffled<1, 0>(t503);
        const P t506 = P(c[13], -c[13]) * t505;
        const P t507 = t504 + t506;
        const P t508 = shuffled<1, 3>(t483, t482);
        const P t509 = c[16] * t508;
        const P t510 = shuffled<1, 0>(t508);
        const P t511 = P(c[15], -c[15]) * t510;
        const P t512 = t509 + t511;
        const P t513 = shuffled<0, 2>(t449, t497);
        const P t514 = c[17] * t513;
        const P t515 = shuffled<1, 0>(t513);
        const P t516 = P(-c[18], c[18]) * t515;
        const P t517 = t514 + t516;
        const P t518 = shuffled<1, 3>(t470, t472);
        const P t519 = c[19] * t518;
        const P t520 = shuffled<1, 0>(t518);
        const P t521 = P(c[20], -c[20]) * t520;
        const P t522 = t519 + t521;
        const P t523 = shuffled<0, 2>(t479, t481);
        const P t524 = c[21] * t523;
        const P t525 = shuffled<1, 0>(t523);
        const P t526 = P(-c[22], c[22]) * t525;
        const P t527 = t524 + t526;
        const V t528 = part<1>(t447);
        const V t529 = c[30] * t528;
        // spectrum block of 2
        const V t530 = t486 + t529;
        const V t531 = t486 - t529;
        const P t532 = flipped<0, 1>(t522);
        // complex block of 2
        const P t533 = t496 + t532;
        const P t534 = flipped<1, 0>(t496);
        const P t535 = t534 + t522;
        // complex block of 2
        const P t536 = t507 - t512;
        const P t537 = t507 + t512;
        const P t538 = flipped<0, 1>(t517);
        // complex block of 2
        const P t539 = t502 + t538;
        const P t540 = flipped<1, 0>(t502);
        const P t541 = t517 + t540;
        // complex block of 2
        const P t542 = t527 - t491;
        const P t543 = t527 + t491;
        const P t544 = shuffled<0, 2>(t539, t541);
        const P t545 = joined(t530, t531);
        // spectrum block of 3, multiplier 2
        const P t546 = t544 + t545;
        const P t547 = c[0] * t544;
        const P t548 = t545 - t547;
        const P t549 = shuffled<1, 3>(t539, t541);
        const P t550 = P(-c[1], c[1]) * t549;
        const P t551 = t548 + t550;
        const P t552 = t548 - t550;
        const P t553 = shuffled<1, 3>(t542, t543);
        const P t554 = shuffled<1, 3>(t536, t537);
        // complex block of 3, multiplier 2
        const P t555 = t553 - t554;
        const P t556 = shuffled<0, 2>(t542, t543);
        const P t557 = shuffled<0, 2>(t536, t537);
        const P t558 = t556 + t557;
        const P t559 = t553 + t554;
        const P t560 = t556 - t557;
        const P t561 = shuffled<1, 3>(t533, t535);
        const P t562 = t555 + t561;
        const P t563 = shuffled<0, 2>(t533, t535);
        const P t564 = flipped<1, 0>(t563);
        const P t565 = t558 + t564;
        const P t566 = c[0] * t555;
        const P t567 = t561 - t566;
        const P t568 = P(c[0], -c[0]) * t558;
        const P t569 = t563 + t568;
        const P t570 = c[1] * t560;
        const P t571 = t567 + t570;
        const P t572 = P(c[1], -c[1]) * t559;
        const P t573 = t569 + t572;
        const P t574 = t567 - t570;
        const P t575 = shuffled<0, 3>(t572, t569);
        const P t576 = shuffled<0, 3>(t569, t572);
        const P t577 = t575 - t576;
        // spectrum block of 9, multiplier 2
        const P t578 = c[3] * t577;
        const P t579 = c[4] * t574;
        const P t580 = t578 - t579;
        const P t581 = c[23] * t573;
        const P t582 = P(-c[24], c[24]) * t571;
        const P t583 = t581 + t582;
        // spectrum block of 3, multiplier 2
        const P t584 = t565 + t546;
        io.out(41, 35, t584);
        const P t585 = c[0] * t565;
        const P t586 = t546 - t585;
        const P t587 = c[1] * t562;
        const P t588 = t586 - t587;
        io.out(2, 17, t588);
        const P t589 = t586 + t587;
        io.out(14, 5, t589);
        // spectrum block of 3, multiplier 2
        const P t590 = t580 + t552;
        io.out(53, 23, t590);
        const P t591 = c[0] * t580;
        const P t592 = t552 - t591;
        const P t593 = c[25] * t574;
        const P t594 = c[26] * t577;
        const P t595 = t593 + t594;
        const P t596 = t592 - t595;
        io.out(29, 47, t596);
        const P t597 = t592 + t595;
        io.out(32, 44, t597);
        const P t598 = flipped<0, 1>(t583);
        // spectrum block of 3, multiplier 2
        const P t599 = t551 + t598;
        io.out(56, 20, t599);
        const P t600 = P(-c[0], c[0]) * t583;
        const P t601 = t600 + t551;
        const P t602 = shuffled<0, 3>(t571, t573);
        const P t603 = P(c[27], c[28]) * t602;
        const P t604 = shuffled<0, 3>(t573, t571);
        const P t605 = P(c[28], -c[27]) * t604;
        const P t606 = t603 + t605;
        const P t607 = flipped<0, 1>(t606);
        const P t608 = t601 + t607;
        io.out(50, 26, t608);
        const P t609 = t601 - t607;
        io.out(8, 11, t609);
        // spectrum block of 19, multiplier 3
        const V t610 = t8 + t484;
        io.out(38, t610);
    }
};

}  // namespace zulg
