// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 39.
// Complex DFT of 39 points, prime-factor, order 3, 13; two lines of a stage to a register.
// 116 sums, 98 differences, 78 products of registers, which do the 1030 steps of the graph, those with
// `scale` included; 49 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<39> {
    static constexpr int steps = 1030;  // with `scale`
    static constexpr double inverseRoot = 0.16012815380508713;  // 1/sqrt(39), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5279915321544383,  // c[2]: -P[1] of 13
        0.2869425954512852,  // c[3]: Q[1] of 13
        0.5751407294740031,  // c[4]: P[3] of 13
        0.1741386011521359,  // c[5]: Q[3] of 13
        0.5316276774946329,  // c[6]: Q[5] of 13
        0.280148395734785,  // c[7]: P[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.5242266395265821,  // c[9]: -P[2] of 13
        0.29376443202296976,  // c[10]: Q[2] of 13
        0.42763404682657274,  // c[11]: P[4] of 13
        0.42218506973345193,  // c[12]: -Q[4] of 13
        0.37034194807495624,  // c[13]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[14]: sin 2 pi 1/3 times -Q[4] of 13
        0.3004626062886658,  // c[15]: beta of 13
        0.25440746086019866,  // c[16]: sin 2 pi 1/3 times Q[2] of 13
        0.45399358717056765,  // c[17]: sin 2 pi 1/3 times -P[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x13_16 = io.pairs(13, 16);
        const Q x26_29 = io.pairs(26, 29);
        // complex block of 3
        const Q t0 = x13_16 + x26_29;
        const Q t1 = x13_16 - x26_29;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_3 - t3;
        const Q t5 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x19_22 = io.pairs(19, 22);
        const Q x32_35 = io.pairs(32, 35);
        // complex block of 3
        const Q t9 = x19_22 + x32_35;
        const Q t10 = x19_22 - x32_35;
        const Q x6_9 = io.pairs(6, 9);
        const Q t11 = t9 + x6_9;
        const Q t12 = c[0] * t9;
        const Q t13 = x6_9 - t12;
        const Q t14 = Q(-c[1], c[1], -c[1], c[1]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x25_28 = io.pairs(25, 28);
        const Q x38_2 = io.pairs(38, 2);
        // complex block of 3
        const Q t18 = x25_28 + x38_2;
        const Q t19 = x25_28 - x38_2;
        const Q x12_15 = io.pairs(12, 15);
        const Q t20 = t18 + x12_15;
        const Q t21 = c[0] * t18;
        const Q t22 = x12_15 - t21;
        const Q t23 = Q(-c[1], c[1], -c[1], c[1]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        const Q x31_34 = io.pairs(31, 34);
        const Q x5_8 = io.pairs(5, 8);
        // complex block of 3
        const Q t27 = x31_34 + x5_8;
        const Q t28 = x31_34 - x5_8;
        const Q x18_21 = io.pairs(18, 21);
        const Q t29 = t27 + x18_21;
        const Q t30 = c[0] * t27;
        const Q t31 = x18_21 - t30;
        const Q t32 = Q(-c[1], c[1], -c[1], c[1]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        const Q x37_1 = io.pairs(37, 1);
        const Q x11_14 = io.pairs(11, 14);
        // complex block of 3
        const Q t36 = x37_1 + x11_14;
        const Q t37 = x37_1 - x11_14;
        const Q x24_27 = io.pairs(24, 27);
        const Q t38 = t36 + x24_27;
        const Q t39 = c[0] * t36;
        const Q t40 = x24_27 - t39;
        const Q t41 = Q(-c[1], c[1], -c[1], c[1]) * t37;
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        const Q t43 = t40 + t42;
        const Q t44 = t40 - t42;
        const Q x4_7 = io.pairs(4, 7);
        const Q x17_20 = io.pairs(17, 20);
        // complex block of 3
        const Q t45 = x4_7 + x17_20;
        const Q t46 = x4_7 - x17_20;
        const Q x30_33 = io.pairs(30, 33);
        const Q t47 = t45 + x30_33;
        const Q t48 = c[0] * t45;
        const Q t49 = x30_33 - t48;
        const Q t50 = Q(-c[1], c[1], -c[1], c[1]) * t46;
        const Q t51 = shuffled<1, 0, 3, 2>(t50);
        const Q t52 = t49 + t51;
        const Q t53 = t49 - t51;
        const P x10 = io.pair(10);
        const P x23 = io.pair(23);
        // complex block of 3
        const P t54 = x10 + x23;
        const P t55 = x10 - x23;
        const P x36 = io.pair(36);
        const P t56 = t54 + x36;
        const P t57 = c[0] * t54;
        const P t58 = x36 - t57;
        const P t59 = P(-c[1], c[1]) * t55;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        const Q t63 = shuffled<2, 3, 6, 7>(t2, t7);
        const Q t64 = joined(t56, t61);
        // real block of 2
        const Q t65 = t63 + t64;
        const Q t66 = t63 - t64;
        const Q t67 = shuffled<0, 1, 4, 5>(t38, t43);
        const Q t68 = shuffled<2, 3, 6, 7>(t20, t25);
        // real block of 2
        const Q t69 = t67 + t68;
        const Q t70 = t67 - t68;
        // real block of 2
        const Q t71 = t65 + t69;
        const Q t72 = t65 - t69;
        const Q t73 = shuffled<2, 3, 6, 7>(t11, t16);
        const Q t74 = shuffled<0, 1, 4, 5>(t47, t52);
        // real block of 2
        const Q t75 = t73 + t74;
        const Q t76 = t73 - t74;
        const Q t77 = shuffled<2, 3, 6, 7>(t47, t52);
        const Q t78 = shuffled<0, 1, 4, 5>(t11, t16);
        // real block of 2
        const Q t79 = t77 + t78;
        const Q t80 = t77 - t78;
        // real block of 2
        const Q t81 = t75 + t79;
        const Q t82 = t75 - t79;
        const Q t83 = shuffled<2, 3, 6, 7>(t38, t43);
        const Q t84 = shuffled<0, 1, 4, 5>(t20, t25);
        // real block of 2
        const Q t85 = t83 + t84;
        const Q t86 = t83 - t84;
        const Q t87 = shuffled<2, 3, 6, 7>(t29, t34);
        const Q t88 = shuffled<0, 1, 4, 5>(t29, t34);
        // real block of 2
        const Q t89 = t87 + t88;
        const Q t90 = t87 - t88;
        // real block of 2
        const Q t91 = t85 + t89;
        const Q t92 = t85 - t89;
        // real block of 3
        const Q t93 = t81 + t91;
        const Q t94 = t81 - t91;
        const Q t95 = t93 + t71;
        const Q t96 = c[0] * t93;
        const Q t97 = t71 - t96;
        // complex block of 3
        const Q t98 = t76 + t86;
        const Q t99 = t80 + t90;
        const Q t100 = t76 - t86;
        const Q t101 = t80 - t90;
        const Q t102 = t98 + t66;
        const Q t103 = t99 + t70;
        const Q t104 = c[0] * t98;
        const Q t105 = t66 - t104;
        const Q t106 = c[0] * t99;
        const Q t107 = t70 - t106;
        const Q t108 = c[1] * t101;
        const Q t109 = t105 + t108;
        const Q t110 = c[1] * t100;
        const Q t111 = t107 - t110;
        const Q t112 = t105 - t108;
        const Q t113 = t107 + t110;
        // real block of 3
        const Q t114 = t82 + t92;
        const Q t115 = t82 - t92;
        const Q t116 = t114 + t72;
        const Q t117 = c[0] * t114;
        const Q t118 = t72 - t117;
        const Q t119 = shuffled<0, 1, 4, 5>(t2, t7);
        // complex block of 13, multiplier 3
        const Q t120 = t119 + t95;
        io.pairs(0, 13, t120);
        const Q t121 = c[8] * t95;
        const Q t122 = t119 - t121;
        const Q t123 = shuffled<1, 0, 3, 2>(t113);
        const Q t124 = Q(-c[2], c[2], -c[2], c[2]) * t123;
        const Q t125 = shuffled<1, 0, 3, 2>(t112);
        const Q t126 = Q(c[3], -c[3], c[3], -c[3]) * t125;
        const Q t127 = t124 + t126;
        const Q t128 = c[3] * t123;
        const Q t129 = c[2] * t125;
        const Q t130 = t128 + t129;
        const Q t131 = c[9] * t118;
        // real block of 3
        const Q t132 = c[1] * t115;
        // complex block of 13, multiplier 3
        const Q t133 = c[10] * t132;
        const Q t134 = t131 + t133;
        const Q t135 = shuffled<1, 0, 3, 2>(t103);
        const Q t136 = Q(-c[4], c[4], -c[4], c[4]) * t135;
        const Q t137 = shuffled<1, 0, 3, 2>(t102);
        const Q t138 = Q(c[5], -c[5], c[5], -c[5]) * t137;
        const Q t139 = t136 + t138;
        const Q t140 = c[5] * t135;
        const Q t141 = c[4] * t137;
        const Q t142 = t140 + t141;
        const Q t143 = c[11] * t97;
        // real block of 3
        const Q t144 = c[1] * t94;
        // complex block of 13, multiplier 3
        const Q t145 = c[12] * t144;
        const Q t146 = t143 - t145;
        const Q t147 = shuffled<1, 0, 3, 2>(t109);
        const Q t148 = c[6] * t147;
        const Q t149 = shuffled<1, 0, 3, 2>(t111);
        const Q t150 = c[7] * t149;
        const Q t151 = t148 + t150;
        const Q t152 = Q(-c[6], c[6], -c[6], c[6]) * t149;
        const Q t153 = Q(c[7], -c[7], c[7], -c[7]) * t147;
        const Q t154 = t152 + t153;
        // spectrum block of 3
        const Q t155 = t146 + t122;
        const Q t156 = c[0] * t146;
        const Q t157 = t122 - t156;
        const Q t158 = c[13] * t144;
        const Q t159 = c[14] * t97;
        const Q t160 = t158 + t159;
        const Q t161 = t157 + t160;
        const Q t162 = t157 - t160;
        const Q t163 = flipped<1, 0, 1, 0>(t154);
        // complex block of 3
        const Q t164 = t163 + t130;
        const Q t165 = flipped<0, 1, 0, 1>(t151);
        const Q t166 = t127 + t165;
        const Q t167 = t130 - t163;
        const Q t168 = flipped<1, 0, 1, 0>(t127);
        const Q t169 = t151 + t168;
        const Q t170 = t164 + t142;
        const Q t171 = t166 + t139;
        const Q t172 = Q(-c[0], c[0], -c[0], c[0]) * t164;
        const Q t173 = flipped<0, 1, 0, 1>(t142);
        const Q t174 = t172 + t173;
        const Q t175 = c[0] * t166;
        const Q t176 = t139 - t175;
        const Q t177 = Q(c[1], -c[1], c[1], -c[1]) * t169;
        const Q t178 = t174 + t177;
        const Q t179 = Q(c[1], -c[1], c[1], -c[1]) * t167;
        const Q t180 = t176 + t179;
        const Q t181 = t174 - t177;
        const Q t182 = t176 - t179;
        // complex block of 13, multiplier 3
        const Q t183 = c[15] * t116;
        // spectrum block of 3
        const Q t184 = t183 - t134;
        const Q t185 = c[0] * t134;
        const Q t186 = t185 + t183;
        const Q t187 = c[16] * t118;
        const Q t188 = c[17] * t132;
        const Q t189 = t187 - t188;
        const Q t190 = t186 + t189;
        const Q t191 = t186 - t189;
        // spectrum block of 2
        const Q t192 = t155 + t184;
        const Q t193 = t155 - t184;
        // spectrum block of 2
        const Q t194 = t192 + t171;
        io.pairs(3, 16, t194);
        const Q t195 = t192 - t171;
        io.pairs(36, 10, t195);
        const Q t196 = flipped<0, 1, 0, 1>(t170);
        // spectrum block of 2
        const Q t197 = t193 + t196;
        io.pairs(15, 28, t197);
        const Q t198 = t193 - t196;
        io.pairs(24, 37, t198);
        // spectrum block of 2
        const Q t199 = t161 + t190;
        const Q t200 = t161 - t190;
        // spectrum block of 2
        const Q t201 = t199 + t180;
        io.pairs(27, 1, t201);
        const Q t202 = t199 - t180;
        io.pairs(12, 25, t202);
        // spectrum block of 2
        const Q t203 = t200 + t178;
        io.pairs(18, 31, t203);
        const Q t204 = t200 - t178;
        io.pairs(21, 34, t204);
        // spectrum block of 2
        const Q t205 = t162 + t191;
        const Q t206 = t162 - t191;
        // spectrum block of 2
        const Q t207 = t205 + t182;
        io.pairs(9, 22, t207);
        const Q t208 = t205 - t182;
        io.pairs(30, 4, t208);
        // spectrum block of 2
        const Q t209 = t206 + t181;
        io.pairs(6, 19, t209);
        const Q t210 = t206 - t181;
        io.pairs(33, 7, t210);
        const P t211 = part<1>(t8);
        // real block of 2
        const P t212 = t211 + t62;
        const P t213 = t211 - t62;
        const P t214 = part<0>(t44);
        const P t215 = part<1>(t26);
        // real block of 2
        const P t216 = t214 + t215;
        const P t217 = t214 - t215;
        // real block of 2
        const P t218 = t212 + t216;
        const P t219 = t212 - t216;
        const P t220 = part<1>(t17);
        const P t221 = part<0>(t53);
        // real block of 2
        const P t222 = t220 + t221;
        const P t223 = t220 - t221;
        const P t224 = part<1>(t53);
        const P t225 = part<0>(t17);
        // real block of 2
        const P t226 = t224 + t225;
        const P t227 = t224 - t225;
        // real block of 2
        const P t228 = t222 + t226;
        const P t229 = t222 - t226;
        const P t230 = part<1>(t44);
        const P t231 = part<0>(t26);
        // real block of 2
        const P t232 = t230 + t231;
        const P t233 = t230 - t231;
        const P t234 = part<1>(t35);
        const P t235 = part<0>(t35);
        // real block of 2
        const P t236 = t234 + t235;
        const P t237 = t234 - t235;
        // real block of 2
        const P t238 = t232 + t236;
        const P t239 = t232 - t236;
        // real block of 3
        const P t240 = t228 + t238;
        const P t241 = t228 - t238;
        const P t242 = t240 + t218;
        const P t243 = c[0] * t240;
        const P t244 = t218 - t243;
        // complex block of 3
        const P t245 = t223 + t233;
        const P t246 = t227 + t237;
        const P t247 = t223 - t233;
        const P t248 = t227 - t237;
        const P t249 = t245 + t213;
        const P t250 = t246 + t217;
        const P t251 = c[0] * t245;
        const P t252 = t213 - t251;
        const P t253 = c[0] * t246;
        const P t254 = t217 - t253;
        const P t255 = c[1] * t248;
        const P t256 = t252 + t255;
        const P t257 = c[1] * t247;
        const P t258 = t254 - t257;
        const P t259 = t252 - t255;
        const P t260 = t254 + t257;
        // real block of 3
        const P t261 = t229 + t239;
        const P t262 = t229 - t239;
        const P t263 = t261 + t219;
        const P t264 = c[0] * t261;
        const P t265 = t219 - t264;
        const P t266 = part<0>(t8);
        // complex block of 13, multiplier 3
        const P t267 = t266 + t242;
        io.pair(26, t267);
        const P t268 = c[8] * t242;
        const P t269 = t266 - t268;
        const Q t270 = joined(t259, t260);
        const Q t271 = shuffled<1, 0, 3, 2>(t270);
        const Q t272 = Q(c[3], -c[3], c[3], c[3]) * t271;
        const Q t273 = shuffled<2, 3, 0, 1>(t271);
        const Q t274 = Q(-c[2], c[2], c[2], c[2]) * t273;
        const Q t275 = t272 + t274;
        // real block of 3
        const P t276 = c[1] * t262;
        const P t277 = shuffled<1, 0>(t250);
        const Q t278 = joined(t276, t277);
        // complex block of 13, multiplier 3
        const Q t279 = Q(c[10], c[10], -c[4], c[4]) * t278;
        const P t280 = shuffled<1, 0>(t249);
        const Q t281 = joined(t265, t280);
        const Q t282 = Q(c[9], c[9], c[5], -c[5]) * t281;
        const Q t283 = t279 + t282;
        const Q t284 = joined(t277, t244);
        const Q t285 = Q(c[5], c[5], c[11], c[11]) * t284;
        // real block of 3
        const P t286 = c[1] * t241;
        const Q t287 = joined(t280, t286);
        // complex block of 13, multiplier 3
        const Q t288 = Q(c[4], c[4], -c[12], -c[12]) * t287;
        const Q t289 = t285 + t288;
        const Q t290 = joined(t258, t258);
        const Q t291 = shuffled<1, 0, 3, 2>(t290);
        const Q t292 = Q(c[7], c[7], -c[6], c[6]) * t291;
        const Q t293 = joined(t256, t256);
        const Q t294 = shuffled<1, 0, 3, 2>(t293);
        const Q t295 = Q(c[6], c[6], c[7], -c[7]) * t294;
        const Q t296 = t292 + t295;
        const P t297 = part<1>(t289);
        // spectrum block of 3
        const P t298 = t297 + t269;
        const P t299 = c[0] * t297;
        const P t300 = t269 - t299;
        const P t301 = c[13] * t286;
        const P t302 = c[14] * t244;
        const P t303 = t301 + t302;
        const P t304 = t300 + t303;
        const P t305 = t300 - t303;
        const P t306 = part<1>(t296);
        const P t307 = flipped<1, 0>(t306);
        const P t308 = part<1>(t275);
        // complex block of 3
        const P t309 = t307 + t308;
        const P t310 = part<0>(t275);
        const P t311 = part<0>(t296);
        const P t312 = flipped<0, 1>(t311);
        const P t313 = t310 + t312;
        const P t314 = t308 - t307;
        const P t315 = flipped<1, 0>(t310);
        const P t316 = t311 + t315;
        const P t317 = part<0>(t289);
        const P t318 = t309 + t317;
        const P t319 = part<1>(t283);
        const P t320 = t313 + t319;
        const P t321 = P(-c[0], c[0]) * t309;
        const P t322 = flipped<0, 1>(t317);
        const P t323 = t321 + t322;
        const P t324 = c[0] * t313;
        const P t325 = t319 - t324;
        const P t326 = P(c[1], -c[1]) * t316;
        const P t327 = t323 + t326;
        const P t328 = P(c[1], -c[1]) * t314;
        const P t329 = t325 + t328;
        const P t330 = t323 - t326;
        const P t331 = t325 - t328;
        // complex block of 13, multiplier 3
        const P t332 = c[15] * t263;
        const P t333 = part<0>(t283);
        // spectrum block of 3
        const P t334 = t332 - t333;
        const P t335 = c[0] * t333;
        const P t336 = t335 + t332;
        const P t337 = c[16] * t265;
        const P t338 = c[17] * t276;
        const P t339 = t337 - t338;
        const P t340 = t336 + t339;
        const P t341 = t336 - t339;
        // spectrum block of 2
        const P t342 = t298 + t334;
        const P t343 = t298 - t334;
        // spectrum block of 2
        const P t344 = t342 + t320;
        io.pair(29, t344);
        const P t345 = t342 - t320;
        io.pair(23, t345);
        const P t346 = flipped<0, 1>(t318);
        // spectrum block of 2
        const P t347 = t343 + t346;
        io.pair(2, t347);
        const P t348 = t343 - t346;
        io.pair(11, t348);
        // spectrum block of 2
        const P t349 = t304 + t340;
        const P t350 = t304 - t340;
        // spectrum block of 2
        const P t351 = t349 + t329;
        io.pair(14, t351);
        const P t352 = t349 - t329;
        io.pair(38, t352);
        // spectrum block of 2
        const P t353 = t350 + t327;
        io.pair(5, t353);
        const P t354 = t350 - t327;
        io.pair(8, t354);
        // spectrum block of 2
        const P t355 = t305 + t341;
        const P t356 = t305 - t341;
        // spectrum block of 2
        const P t357 = t355 + t331;
        io.pair(35, t357);
        const P t358 = t355 - t331;
        io.pair(17, t358);
        // spectrum block of 2
        const P t359 = t356 + t330;
        io.pair(32, t359);
        const P t360 = t356 - t330;
        io.pair(20, t360);
    }
};

}  // namespace zulg
