// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 63.
// Inverse DFT to 63 real points, prime-factor 9, 7; two lanes to a register.
// 150 sums, 107 differences, 190 products of registers, which do the 912 steps of the graph, those with
// `scale` included; 77 shuffles, 30 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<63> {
    static constexpr int steps = 912;  // with `scale`
    static constexpr double inverseRoot = 0.1259881576697424;  // 1/sqrt(63), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.6234898018587335,  // c[3]: cos 2 pi 1/7
        0.2225209339563144,  // c[4]: -cos 2 pi 2/7
        0.9009688679024191,  // c[5]: -cos 2 pi 3/7
        0.7818314824680298,  // c[6]: sin 2 pi 1/7
        0.9749279121818236,  // c[7]: sin 2 pi 2/7
        0.4338837391175581,  // c[8]: sin 2 pi 3/7
        0.3420201433256687,  // c[9]: sin 2 pi 4/9
        0.9396926207859084,  // c[10]: -cos 2 pi 4/9
        0.17364817766693036,  // c[11]: cos 2 pi 2/9
        0.984807753012208,  // c[12]: sin 2 pi 2/9
        0.766044443118978,  // c[13]: cos 2 pi 1/9
        0.6427876096865394,  // c[14]: sin 2 pi 1/9
        1.7320508075688772,  // c[15]: sin 2 pi 1/3 times 2
        0.1503837331804353,  // c[16]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8137976813493737,  // c[17]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.8528685319524432,  // c[18]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[19]: sin 2 pi 1/3 times sin 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x21 = io.pair(21);
        const V t0 = part<0>(x21);
        // doubled bins
        const V t1 = c[0] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3
        const V t2 = t1 + x0r;
        const P x28 = io.pair(28);
        // doubled bins
        const P t3 = c[0] * x28;
        const P x14 = io.pair(14);
        const P t4 = P(c[0], -c[0]) * x14;
        // complex block of 3
        const P t5 = t3 + t4;
        const P t6 = t3 - t4;
        const P x7 = io.pair(7);
        // doubled bins
        const P t7 = c[0] * x7;
        // complex block of 3
        const P t8 = t5 + t7;
        const P t9 = c[1] * t5;
        const P t10 = t7 - t9;
        const P t11 = P(c[2], -c[2]) * t6;
        const P t12 = shuffled<1, 0>(t11);
        const P t13 = t10 + t12;
        const P t14 = t10 - t12;
        const P t15 = shuffled<0, 3>(t13, t14);
        // spectrum block of 9, multiplier 7
        const P t16 = P(c[11], c[9]) * t15;
        const P t17 = shuffled<1, 2>(t13, t14);
        const P t18 = P(c[12], -c[10]) * t17;
        const P t19 = t16 + t18;
        const V t20 = part<0>(t8);
        // spectrum block of 3
        const V t21 = t20 + t2;
        const P t22 = joined(x0r, t2);
        const P t23 = joined(t1, t20);
        // spectrum block of 3
        const P t24 = c[1] * t23;
        const P t25 = t22 - t24;
        const P t26 = shuffled<1, 3>(x21, t8);
        const P t27 = P(c[15], c[2]) * t26;
        const P t28 = t25 - t27;
        const P t29 = t25 + t27;
        const P t30 = shuffled<0, 2>(t28, t29);
        // spectrum block of 3
        const P t31 = t19 + t30;
        const P t32 = c[1] * t19;
        const P t33 = t30 - t32;
        const P t34 = shuffled<0, 3>(t17, t15);
        const P t35 = P(c[16], c[17]) * t34;
        const P t36 = shuffled<0, 3>(t15, t17);
        const P t37 = P(-c[18], c[19]) * t36;
        const P t38 = t35 + t37;
        const P t39 = flipped<1, 0>(t38);
        const P t40 = t33 + t39;
        const P t41 = t33 - t39;
        const P x30 = io.pair(30);
        // doubled bins
        const P t42 = c[0] * x30;
        const P x12 = io.pair(12);
        const P t43 = P(c[0], -c[0]) * x12;
        // complex block of 3
        const P t44 = t42 + t43;
        const P t45 = t42 - t43;
        const P x9 = io.pair(9);
        // doubled bins
        const P t46 = c[0] * x9;
        // complex block of 3
        const P t47 = t44 + t46;
        const P t48 = c[1] * t44;
        const P t49 = t46 - t48;
        const P t50 = P(c[2], -c[2]) * t45;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        const P x26 = io.pair(26);
        // doubled bins
        const P t54 = c[0] * x26;
        const P x5 = io.pair(5);
        const P t55 = c[0] * x5;
        // complex block of 3
        const P t56 = t54 + t55;
        const P t57 = shuffled<0, 3>(t54, t55);
        const P t58 = shuffled<0, 3>(t55, t54);
        const P t59 = t57 - t58;
        const P x16 = io.pair(16);
        // doubled bins
        const P t60 = c[0] * x16;
        const P t61 = flipped<0, 1>(t56);
        // complex block of 3
        const P t62 = t60 + t61;
        const P t63 = P(-c[1], c[1]) * t56;
        const P t64 = t63 + t60;
        const P t65 = P(c[2], -c[2]) * t59;
        const P t66 = shuffled<1, 0>(t65);
        const P t67 = t64 + t66;
        const P t68 = t64 - t66;
        const P x2 = io.pair(2);
        // doubled bins
        const P t69 = c[0] * x2;
        const P x19 = io.pair(19);
        const P t70 = P(c[0], -c[0]) * x19;
        // complex block of 3
        const P t71 = t69 + t70;
        const P t72 = flipped<0, 1>(t70);
        const P t73 = flipped<1, 0>(t69);
        const P t74 = t72 + t73;
        const P x23 = io.pair(23);
        // doubled bins
        const P t75 = c[0] * x23;
        // complex block of 3
        const P t76 = t71 + t75;
        const P t77 = c[1] * t71;
        const P t78 = t75 - t77;
        const P t79 = c[2] * t74;
        const P t80 = shuffled<1, 0>(t79);
        const P t81 = t78 + t80;
        const P t82 = t78 - t80;
        // complex block of 3
        const P t83 = t62 + t76;
        const P t84 = t62 - t76;
        const P t85 = t83 + t47;
        const P t86 = c[1] * t83;
        const P t87 = t47 - t86;
        const P t88 = P(c[2], -c[2]) * t84;
        const P t89 = shuffled<1, 0>(t88);
        const P t90 = t87 + t89;
        const P t91 = t87 - t89;
        // complex block of 9, multiplier 7
        const P t92 = c[11] * t67;
        const P t93 = shuffled<1, 0>(t67);
        const P t94 = P(c[12], -c[12]) * t93;
        const P t95 = t92 + t94;
        const P t96 = P(-c[10], c[10]) * t81;
        const P t97 = shuffled<1, 0>(t81);
        const P t98 = c[9] * t97;
        const P t99 = t96 + t98;
        const P t100 = flipped<0, 1>(t99);
        // complex block of 3
        const P t101 = t95 + t100;
        const P t102 = t95 - t100;
        const P t103 = t101 + t52;
        const P t104 = c[1] * t101;
        const P t105 = t52 - t104;
        const P t106 = P(c[2], -c[2]) * t102;
        const P t107 = shuffled<1, 0>(t106);
        const P t108 = t105 + t107;
        const P t109 = t105 - t107;
        // complex block of 9, multiplier 7
        const P t110 = P(-c[10], c[10]) * t68;
        const P t111 = shuffled<1, 0>(t68);
        const P t112 = c[9] * t111;
        const P t113 = t110 + t112;
        const P t114 = c[13] * t82;
        const P t115 = shuffled<1, 0>(t82);
        const P t116 = P(-c[14], c[14]) * t115;
        const P t117 = t114 + t116;
        const P t118 = flipped<0, 1>(t113);
        // complex block of 3
        const P t119 = t117 + t118;
        const P t120 = flipped<1, 0>(t117);
        const P t121 = t113 + t120;
        const P t122 = t119 + t53;
        const P t123 = c[1] * t119;
        const P t124 = t53 - t123;
        const P t125 = c[2] * t121;
        const P t126 = shuffled<1, 0>(t125);
        const P t127 = t124 + t126;
        const P t128 = t124 - t126;
        const P x24 = io.pair(24);
        // doubled bins
        const P t129 = c[0] * x24;
        const P x3 = io.pair(3);
        const P t130 = c[0] * x3;
        // complex block of 3
        const P t131 = t129 + t130;
        const P t132 = shuffled<0, 3>(t129, t130);
        const P t133 = shuffled<0, 3>(t130, t129);
        const P t134 = t132 - t133;
        const P x18 = io.pair(18);
        // doubled bins
        const P t135 = c[0] * x18;
        const P t136 = flipped<0, 1>(t131);
        // complex block of 3
        const P t137 = t135 + t136;
        const P t138 = P(-c[1], c[1]) * t131;
        const P t139 = t138 + t135;
        const P t140 = P(c[2], -c[2]) * t134;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = t139 + t141;
        const P t143 = t139 - t141;
        const P x4 = io.pair(4);
        // doubled bins
        const P t144 = c[0] * x4;
        const P x17 = io.pair(17);
        const P t145 = P(c[0], -c[0]) * x17;
        // complex block of 3
        const P t146 = t144 + t145;
        const P t147 = flipped<0, 1>(t145);
        const P t148 = flipped<1, 0>(t144);
        const P t149 = t147 + t148;
        const P x25 = io.pair(25);
        // doubled bins
        const P t150 = c[0] * x25;
        // complex block of 3
        const P t151 = t146 + t150;
        const P t152 = c[1] * t146;
        const P t153 = t150 - t152;
        const P t154 = c[2] * t149;
        const P t155 = shuffled<1, 0>(t154);
        const P t156 = t153 + t155;
        const P t157 = t153 - t155;
        const P x11 = io.pair(11);
        // doubled bins
        const P t158 = c[0] * x11;
        const P x10 = io.pair(10);
        const P t159 = P(c[0], -c[0]) * x10;
        // complex block of 3
        const P t160 = t158 + t159;
        const P t161 = flipped<0, 1>(t159);
        const P t162 = flipped<1, 0>(t158);
        const P t163 = t161 + t162;
        const P x31 = io.pair(31);
        // doubled bins
        const P t164 = P(c[0], -c[0]) * x31;
        // complex block of 3
        const P t165 = t160 + t164;
        const P t166 = flipped<0, 1>(t164);
        const P t167 = P(-c[1], c[1]) * t160;
        const P t168 = t166 + t167;
        const P t169 = c[2] * t163;
        const P t170 = shuffled<0, 2>(t168, t169);
        const P t171 = shuffled<1, 3>(t169, t168);
        const P t172 = flipped<1, 0>(t171);
        const P t173 = t170 - t172;
        const P t174 = t172 + t170;
        // complex block of 3
        const P t175 = t151 + t165;
        const P t176 = t151 - t165;
        const P t177 = t175 + t137;
        const P t178 = c[1] * t175;
        const P t179 = t137 - t178;
        const P t180 = P(c[2], -c[2]) * t176;
        const P t181 = shuffled<1, 0>(t180);
        const P t182 = t179 + t181;
        const P t183 = t179 - t181;
        // complex block of 9, multiplier 7
        const P t184 = c[11] * t156;
        const P t185 = shuffled<1, 0>(t156);
        const P t186 = P(c[12], -c[12]) * t185;
        const P t187 = t184 + t186;
        const P t188 = P(-c[10], c[10]) * t173;
        const P t189 = shuffled<1, 0>(t173);
        const P t190 = c[9] * t189;
        const P t191 = t188 + t190;
        const P t192 = flipped<0, 1>(t191);
        // complex block of 3
        const P t193 = t187 + t192;
        const P t194 = t187 - t192;
        const P t195 = t193 + t142;
        const P t196 = c[1] * t193;
        const P t197 = t142 - t196;
        const P t198 = P(c[2], -c[2]) * t194;
        const P t199 = shuffled<1, 0>(t198);
        const P t200 = t197 + t199;
        const P t201 = t197 - t199;
        // complex block of 9, multiplier 7
        const P t202 = P(-c[10], c[10]) * t157;
        const P t203 = shuffled<1, 0>(t157);
        const P t204 = c[9] * t203;
        const P t205 = t202 + t204;
        const P t206 = shuffled<1, 0>(t174);
        const P t207 = c[14] * t206;
        const P t208 = P(c[13], -c[13]) * t174;
        const P t209 = t207 + t208;
        const P t210 = flipped<0, 1>(t205);
        // complex block of 3
        const P t211 = t209 + t210;
        const P t212 = flipped<1, 0>(t209);
        const P t213 = t205 + t212;
        const P t214 = t211 + t143;
        const P t215 = c[1] * t211;
        const P t216 = t143 - t215;
        const P t217 = c[2] * t213;
        const P t218 = shuffled<1, 0>(t217);
        const P t219 = t216 + t218;
        const P t220 = t216 - t218;
        const P x6 = io.pair(6);
        // doubled bins
        const P t221 = c[0] * x6;
        const P x15 = io.pair(15);
        const P t222 = P(c[0], -c[0]) * x15;
        // complex block of 3
        const P t223 = t221 + t222;
        const P t224 = flipped<0, 1>(t222);
        const P t225 = flipped<1, 0>(t221);
        const P t226 = t224 + t225;
        const P x27 = io.pair(27);
        // doubled bins
        const P t227 = c[0] * x27;
        // complex block of 3
        const P t228 = t223 + t227;
        const P t229 = c[1] * t223;
        const P t230 = t227 - t229;
        const P t231 = c[2] * t226;
        const P t232 = shuffled<1, 0>(t231);
        const P t233 = t230 + t232;
        const P t234 = t230 - t232;
        const P x13 = io.pair(13);
        // doubled bins
        const P t235 = c[0] * x13;
        const P x8 = io.pair(8);
        const P t236 = P(c[0], -c[0]) * x8;
        // complex block of 3
        const P t237 = t235 + t236;
        const P t238 = flipped<0, 1>(t236);
        const P t239 = flipped<1, 0>(t235);
        const P t240 = t238 + t239;
        const P x29 = io.pair(29);
        // doubled bins
        const P t241 = P(c[0], -c[0]) * x29;
        // complex block of 3
        const P t242 = t237 + t241;
        const P t243 = flipped<0, 1>(t241);
        const P t244 = P(-c[1], c[1]) * t237;
        const P t245 = t243 + t244;
        const P t246 = c[2] * t240;
        const P t247 = shuffled<0, 2>(t245, t246);
        const P t248 = shuffled<1, 3>(t246, t245);
        const P t249 = flipped<1, 0>(t248);
        const P t250 = t247 - t249;
        const P t251 = t249 + t247;
        const P x20 = io.pair(20);
        // doubled bins
        const P t252 = c[0] * x20;
        const P x1 = io.pair(1);
        const P t253 = P(c[0], -c[0]) * x1;
        // complex block of 3
        const P t254 = t252 + t253;
        const P t255 = flipped<0, 1>(t253);
        const P t256 = flipped<1, 0>(t252);
        const P t257 = t255 + t256;
        const P x22 = io.pair(22);
        // doubled bins
        const P t258 = P(c[0], -c[0]) * x22;
        // complex block of 3
        const P t259 = t254 + t258;
        const P t260 = flipped<0, 1>(t258);
        const P t261 = P(-c[1], c[1]) * t254;
        const P t262 = t260 + t261;
        const P t263 = c[2] * t257;
        const P t264 = shuffled<0, 2>(t262, t263);
        const P t265 = shuffled<1, 3>(t263, t262);
        const P t266 = flipped<1, 0>(t265);
        const P t267 = t264 - t266;
        const P t268 = t266 + t264;
        // complex block of 3
        const P t269 = t242 + t259;
        const P t270 = t242 - t259;
        const P t271 = t269 + t228;
        const P t272 = c[1] * t269;
        const P t273 = t228 - t272;
        const P t274 = P(c[2], -c[2]) * t270;
        const P t275 = shuffled<1, 0>(t274);
        const P t276 = t273 + t275;
        const P t277 = t273 - t275;
        // complex block of 9, multiplier 7
        const P t278 = c[11] * t250;
        const P t279 = shuffled<1, 0>(t250);
        const P t280 = P(c[12], -c[12]) * t279;
        const P t281 = t278 + t280;
        const P t282 = P(-c[10], c[10]) * t267;
        const P t283 = shuffled<1, 0>(t267);
        const P t284 = c[9] * t283;
        const P t285 = t282 + t284;
        const P t286 = flipped<0, 1>(t285);
        // complex block of 3
        const P t287 = t281 + t286;
        const P t288 = t281 - t286;
        const P t289 = t287 + t233;
        const P t290 = c[1] * t287;
        const P t291 = t233 - t290;
        const P t292 = P(c[2], -c[2]) * t288;
        const P t293 = shuffled<1, 0>(t292);
        const P t294 = t291 + t293;
        const P t295 = t291 - t293;
        // complex block of 9, multiplier 7
        const P t296 = c[10] * t251;
        const P t297 = shuffled<1, 0>(t251);
        const P t298 = P(c[9], -c[9]) * t297;
        const P t299 = t296 + t298;
        const P t300 = shuffled<1, 0>(t268);
        const P t301 = c[14] * t300;
        const P t302 = P(c[13], -c[13]) * t268;
        const P t303 = t301 + t302;
        const P t304 = flipped<1, 0>(t299);
        // complex block of 3
        const P t305 = t304 + t303;
        const P t306 = flipped<0, 1>(t303);
        const P t307 = t299 + t306;
        const P t308 = t305 + t234;
        const P t309 = c[1] * t305;
        const P t310 = t234 - t309;
        const P t311 = c[2] * t307;
        const P t312 = shuffled<1, 0>(t311);
        const P t313 = t310 - t312;
        const P t314 = t310 + t312;
        const P t315 = shuffled<0, 2>(t85, t103);
        const P t316 = shuffled<0, 2>(t177, t195);
        // spectrum block of 7, multiplier 2
        const P t317 = t315 + t316;
        const P t318 = shuffled<0, 2>(t271, t289);
        const P t319 = t317 + t318;
        const V t320 = part<0>(t31);
        const P t321 = joined(t21, t320);
        const P t322 = t319 + t321;
        io.out(0, 7, t322);
        const P t323 = c[3] * t315;
        const P t324 = c[4] * t316;
        const P t325 = t323 - t324;
        const P t326 = c[5] * t318;
        const P t327 = t325 - t326;
        const P t328 = t327 + t321;
        const P t329 = shuffled<1, 3>(t85, t103);
        const P t330 = c[6] * t329;
        const P t331 = shuffled<1, 3>(t177, t195);
        const P t332 = c[7] * t331;
        const P t333 = t330 + t332;
        const P t334 = shuffled<1, 3>(t271, t289);
        const P t335 = c[8] * t334;
        const P t336 = t333 + t335;
        const P t337 = t328 - t336;
        io.out(36, 43, t337);
        const P t338 = t328 + t336;
        io.out(27, 34, t338);
        const P t339 = c[4] * t315;
        const P t340 = t321 - t339;
        const P t341 = c[5] * t316;
        const P t342 = t340 - t341;
        const P t343 = c[3] * t318;
        const P t344 = t342 + t343;
        const P t345 = c[7] * t329;
        const P t346 = c[8] * t331;
        const P t347 = t345 - t346;
        const P t348 = c[6] * t334;
        const P t349 = t347 - t348;
        const P t350 = t344 - t349;
        io.out(9, 16, t350);
        const P t351 = t344 + t349;
        io.out(54, 61, t351);
        const P t352 = c[5] * t315;
        const P t353 = t321 - t352;
        const P t354 = c[3] * t316;
        const P t355 = t353 + t354;
        const P t356 = c[4] * t318;
        const P t357 = t355 - t356;
        const P t358 = c[8] * t329;
        const P t359 = c[6] * t331;
        const P t360 = t358 - t359;
        const P t361 = c[7] * t334;
        const P t362 = t360 + t361;
        const P t363 = t357 - t362;
        io.out(45, 52, t363);
        const P t364 = t357 + t362;
        io.out(18, 25, t364);
        const P t365 = shuffled<0, 2>(t122, t90);
        const P t366 = shuffled<0, 2>(t214, t182);
        // spectrum block of 7, multiplier 2
        const P t367 = t365 + t366;
        const P t368 = shuffled<0, 2>(t308, t276);
        const P t369 = t367 + t368;
        const P t370 = shuffled<1, 3>(t31, t28);
        const P t371 = t369 + t370;
        io.out(14, 21, t371);
        const P t372 = c[3] * t365;
        const P t373 = c[4] * t366;
        const P t374 = t372 - t373;
        const P t375 = c[5] * t368;
        const P t376 = t374 - t375;
        const P t377 = t376 + t370;
        const P t378 = shuffled<1, 3>(t122, t90);
        const P t379 = c[6] * t378;
        const P t380 = shuffled<1, 3>(t214, t182);
        const P t381 = c[7] * t380;
        const P t382 = t379 + t381;
        const P t383 = shuffled<1, 3>(t308, t276);
        const P t384 = c[8] * t383;
        const P t385 = t382 + t384;
        const P t386 = t377 - t385;
        io.out(50, 57, t386);
        const P t387 = t377 + t385;
        io.out(41, 48, t387);
        const P t388 = c[4] * t365;
        const P t389 = t370 - t388;
        const P t390 = c[5] * t366;
        const P t391 = t389 - t390;
        const P t392 = c[3] * t368;
        const P t393 = t391 + t392;
        const P t394 = c[7] * t378;
        const P t395 = c[8] * t380;
        const P t396 = t394 - t395;
        const P t397 = c[6] * t383;
        const P t398 = t396 - t397;
        const P t399 = t393 - t398;
        io.out(23, 30, t399);
        const P t400 = t393 + t398;
        io.out(5, 12, t400);
        const P t401 = c[5] * t365;
        const P t402 = t370 - t401;
        const P t403 = c[3] * t366;
        const P t404 = t402 + t403;
        const P t405 = c[4] * t368;
        const P t406 = t404 - t405;
        const P t407 = c[8] * t378;
        const P t408 = c[6] * t380;
        const P t409 = t407 - t408;
        const P t410 = c[7] * t383;
        const P t411 = t409 + t410;
        const P t412 = t406 - t411;
        io.out(59, 3, t412);
        const P t413 = t406 + t411;
        io.out(32, 39, t413);
        const P t414 = shuffled<0, 2>(t108, t127);
        const P t415 = shuffled<0, 2>(t200, t219);
        // spectrum block of 7, multiplier 2
        const P t416 = t414 + t415;
        const P t417 = shuffled<0, 2>(t294, t313);
        const P t418 = t416 + t417;
        const P t419 = t418 + t40;
        io.out(28, 35, t419);
        const P t420 = c[3] * t414;
        const P t421 = c[4] * t415;
        const P t422 = t420 - t421;
        const P t423 = c[5] * t417;
        const P t424 = t422 - t423;
        const P t425 = t424 + t40;
        const P t426 = shuffled<1, 3>(t108, t127);
        const P t427 = c[6] * t426;
        const P t428 = shuffled<1, 3>(t200, t219);
        const P t429 = c[7] * t428;
        const P t430 = t427 + t429;
        const P t431 = shuffled<1, 3>(t294, t313);
        const P t432 = c[8] * t431;
        const P t433 = t430 + t432;
        const P t434 = t425 - t433;
        io.out(1, 8, t434);
        const P t435 = t425 + t433;
        io.out(55, 62, t435);
        const P t436 = c[4] * t414;
        const P t437 = t40 - t436;
        const P t438 = c[5] * t415;
        const P t439 = t437 - t438;
        const P t440 = c[3] * t417;
        const P t441 = t439 + t440;
        const P t442 = c[7] * t426;
        const P t443 = c[8] * t428;
        const P t444 = t442 - t443;
        const P t445 = c[6] * t431;
        const P t446 = t444 - t445;
        const P t447 = t441 - t446;
        io.out(37, 44, t447);
        const P t448 = t441 + t446;
        io.out(19, 26, t448);
        const P t449 = c[5] * t414;
        const P t450 = t40 - t449;
        const P t451 = c[3] * t415;
        const P t452 = t450 + t451;
        const P t453 = c[4] * t417;
        const P t454 = t452 - t453;
        const P t455 = c[8] * t426;
        const P t456 = c[6] * t428;
        const P t457 = t455 - t456;
        const P t458 = c[7] * t431;
        const P t459 = t457 + t458;
        const P t460 = t454 - t459;
        io.out(10, 17, t460);
        const P t461 = t454 + t459;
        io.out(46, 53, t461);
        const P t462 = shuffled<0, 2>(t91, t109);
        const P t463 = shuffled<0, 2>(t183, t201);
        // spectrum block of 7, multiplier 2
        const P t464 = t462 + t463;
        const P t465 = shuffled<0, 2>(t277, t295);
        const P t466 = t464 + t465;
        const P t467 = shuffled<1, 2>(t29, t41);
        const P t468 = t466 + t467;
        io.out(42, 49, t468);
        const P t469 = c[3] * t462;
        const P t470 = c[4] * t463;
        const P t471 = t469 - t470;
        const P t472 = c[5] * t465;
        const P t473 = t471 - t472;
        const P t474 = t473 + t467;
        const P t475 = shuffled<1, 3>(t91, t109);
        const P t476 = c[6] * t475;
        const P t477 = shuffled<1, 3>(t183, t201);
        const P t478 = c[7] * t477;
        const P t479 = t476 + t478;
        const P t480 = shuffled<1, 3>(t277, t295);
        const P t481 = c[8] * t480;
        const P t482 = t479 + t481;
        const P t483 = t474 - t482;
        io.out(15, 22, t483);
        const P t484 = t474 + t482;
        io.out(6, 13, t484);
        const P t485 = c[4] * t462;
        const P t486 = t467 - t485;
        const P t487 = c[5] * t463;
        const P t488 = t486 - t487;
        const P t489 = c[3] * t465;
        const P t490 = t488 + t489;
        const P t491 = c[7] * t475;
        const P t492 = c[8] * t477;
        const P t493 = t491 - t492;
        const P t494 = c[6] * t480;
        const P t495 = t493 - t494;
        const P t496 = t490 - t495;
        io.out(51, 58, t496);
        const P t497 = t490 + t495;
        io.out(33, 40, t497);
        const P t498 = c[5] * t462;
        const P t499 = t467 - t498;
        const P t500 = c[3] * t463;
        const P t501 = t499 + t500;
        const P t502 = c[4] * t465;
        const P t503 = t501 - t502;
        const P t504 = c[8] * t475;
        const P t505 = c[6] * t477;
        const P t506 = t504 - t505;
        const P t507 = c[7] * t480;
        const P t508 = t506 + t507;
        const P t509 = t503 - t508;
        io.out(24, 31, t509);
        const P t510 = t503 + t508;
        io.out(60, 4, t510);
        const V t511 = part<0>(t128);
        const V t512 = part<0>(t220);
        // spectrum block of 7, multiplier 2
        const V t513 = t511 + t512;
        const V t514 = part<0>(t314);
        const V t515 = t513 + t514;
        const V t516 = part<1>(t41);
        const V t517 = t515 + t516;
        io.out(56, t517);
        const V t518 = c[3] * t511;
        const V t519 = c[4] * t512;
        const V t520 = t518 - t519;
        const V t521 = c[5] * t514;
        const V t522 = t520 - t521;
        const V t523 = t522 + t516;
        const V t524 = part<1>(t128);
        const V t525 = c[6] * t524;
        const V t526 = part<1>(t220);
        const V t527 = c[7] * t526;
        const V t528 = t525 + t527;
        const V t529 = part<1>(t314);
        const V t530 = c[8] * t529;
        const V t531 = t528 + t530;
        const V t532 = t523 - t531;
        io.out(29, t532);
        const V t533 = t523 + t531;
        io.out(20, t533);
        const V t534 = c[4] * t511;
        const V t535 = t516 - t534;
        const V t536 = c[5] * t512;
        const V t537 = t535 - t536;
        const V t538 = c[3] * t514;
        const V t539 = t537 + t538;
        const V t540 = c[7] * t524;
        const V t541 = c[8] * t526;
        const V t542 = t540 - t541;
        const V t543 = c[6] * t529;
        const V t544 = t542 - t543;
        const V t545 = t539 - t544;
        io.out(2, t545);
        const V t546 = t539 + t544;
        io.out(47, t546);
        const V t547 = c[5] * t511;
        const V t548 = t516 - t547;
        const V t549 = c[3] * t512;
        const V t550 = t548 + t549;
        const V t551 = c[4] * t514;
        const V t552 = t550 - t551;
        const V t553 = c[8] * t524;
        const V t554 = c[6] * t526;
        const V t555 = t553 - t554;
        const V t556 = c[7] * t529;
        const V t557 = t555 + t556;
        const V t558 = t552 - t557;
        io.out(38, t558);
        const V t559 = t552 + t557;
        io.out(11, t559);
    }
};

}  // namespace zulg
