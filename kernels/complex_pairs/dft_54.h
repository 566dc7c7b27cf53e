// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 54.
// Complex DFT of 54 points, prime-factor, order 27, 2; one complex number to a register.
// 257 sums, 177 differences, 220 products of registers, which do the 1416 steps of the graph, those with
// `scale` included; 118 shuffles, 34 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<54> {
    static constexpr int steps = 1416;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 4/9
        0.3420201433256687,  // c[3]: sin 2 pi 4/9
        0.17364817766693036,  // c[4]: cos 2 pi 2/9
        0.984807753012208,  // c[5]: sin 2 pi 2/9
        0.766044443118978,  // c[6]: cos 2 pi 8/9
        0.6427876096865394,  // c[7]: -sin 2 pi 8/9
        0.5971585917027862,  // c[8]: cos 2 pi 4/27
        0.8021231927550437,  // c[9]: sin 2 pi 4/27
        0.28680323271109026,  // c[10]: -cos 2 pi 8/27
        0.9579895123154889,  // c[11]: sin 2 pi 8/27
        0.549508978070806,  // c[12]: -sin 2 pi 16/27
        0.8354878114129364,  // c[13]: -cos 2 pi 16/27
        0.8936326403234123,  // c[14]: cos 2 pi 2/27
        0.44879918020046217,  // c[15]: sin 2 pi 2/27
        0.6862416378687336,  // c[16]: -cos 2 pi 10/27
        0.7273736415730487,  // c[17]: sin 2 pi 10/27
        0.9983081582712682,  // c[18]: -sin 2 pi 20/27
        0.05814482891047583,  // c[19]: -cos 2 pi 20/27
        0.11609291412523023,  // c[20]: -sin 2 pi 14/27
        0.993238357741943,  // c[21]: -cos 2 pi 14/27
        0.9730448705798238,  // c[22]: cos 2 pi 1/27
        0.23061587074244017,  // c[23]: sin 2 pi 1/27
        0.39607976603915684,  // c[24]: cos 2 pi 5/27
        0.918216106880274,  // c[25]: sin 2 pi 5/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x18 = io.pair(18);
        const P x36 = io.pair(36);
        // complex block of 3, multiplier 2
        const P t0 = x18 + x36;
        const P t1 = x18 - x36;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[0] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[1], c[1]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x24 = io.pair(24);
        const P x42 = io.pair(42);
        // complex block of 3, multiplier 2
        const P t9 = x24 + x42;
        const P t10 = x24 - x42;
        const P x6 = io.pair(6);
        const P t11 = t9 + x6;
        const P t12 = c[0] * t9;
        const P t13 = x6 - t12;
        const P t14 = P(-c[1], c[1]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x30 = io.pair(30);
        const P x48 = io.pair(48);
        // complex block of 3, multiplier 2
        const P t18 = x30 + x48;
        const P t19 = x30 - x48;
        const P x12 = io.pair(12);
        const P t20 = t18 + x12;
        const P t21 = c[0] * t18;
        const P t22 = x12 - t21;
        const P t23 = P(-c[1], c[1]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        // complex block of 3, multiplier 2
        const P t27 = t11 + t20;
        const P t28 = t11 - t20;
        const P t29 = t27 + t2;
        const P t30 = c[0] * t27;
        const P t31 = t2 - t30;
        const P t32 = P(-c[1], c[1]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        // complex block of 9, multiplier 2
        const P t36 = c[4] * t17;
        const P t37 = shuffled<1, 0>(t17);
        const P t38 = P(c[5], -c[5]) * t37;
        const P t39 = t36 + t38;
        const P t40 = P(-c[2], c[2]) * t26;
        const P t41 = shuffled<1, 0>(t26);
        const P t42 = c[3] * t41;
        const P t43 = t40 + t42;
        const P t44 = flipped<0, 1>(t43);
        // complex block of 3, multiplier 2
        const P t45 = t39 + t44;
        const P t46 = t39 - t44;
        const P t47 = t45 + t8;
        const P t48 = c[0] * t45;
        const P t49 = t8 - t48;
        const P t50 = P(-c[1], c[1]) * t46;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        // complex block of 9, multiplier 2
        const P t54 = P(-c[2], c[2]) * t16;
        const P t55 = shuffled<1, 0>(t16);
        const P t56 = c[3] * t55;
        const P t57 = t54 + t56;
        const P t58 = c[6] * t25;
        const P t59 = shuffled<1, 0>(t25);
        const P t60 = P(-c[7], c[7]) * t59;
        const P t61 = t58 + t60;
        const P t62 = flipped<0, 1>(t57);
        // complex block of 3, multiplier 2
        const P t63 = t61 + t62;
        const P t64 = flipped<1, 0>(t61);
        const P t65 = t57 + t64;
        const P t66 = t63 + t7;
        const P t67 = c[0] * t63;
        const P t68 = t7 - t67;
        const P t69 = c[1] * t65;
        const P t70 = shuffled<1, 0>(t69);
        const P t71 = t68 - t70;
        const P t72 = t68 + t70;
        const P x20 = io.pair(20);
        const P x38 = io.pair(38);
        // complex block of 3, multiplier 2
        const P t73 = x20 + x38;
        const P t74 = x20 - x38;
        const P x2 = io.pair(2);
        const P t75 = t73 + x2;
        const P t76 = c[0] * t73;
        const P t77 = x2 - t76;
        const P t78 = P(-c[1], c[1]) * t74;
        const P t79 = shuffled<1, 0>(t78);
        const P t80 = t77 + t79;
        const P t81 = t77 - t79;
        const P x26 = io.pair(26);
        const P x44 = io.pair(44);
        // complex block of 3, multiplier 2
        const P t82 = x26 + x44;
        const P t83 = x26 - x44;
        const P x8 = io.pair(8);
        const P t84 = t82 + x8;
        const P t85 = c[0] * t82;
        const P t86 = x8 - t85;
        const P t87 = P(-c[1], c[1]) * t83;
        const P t88 = shuffled<1, 0>(t87);
        const P t89 = t86 + t88;
        const P t90 = t86 - t88;
        const P x32 = io.pair(32);
        const P x50 = io.pair(50);
        // complex block of 3, multiplier 2
        const P t91 = x32 + x50;
        const P t92 = x32 - x50;
        const P x14 = io.pair(14);
        const P t93 = t91 + x14;
        const P t94 = c[0] * t91;
        const P t95 = x14 - t94;
        const P t96 = P(-c[1], c[1]) * t92;
        const P t97 = shuffled<1, 0>(t96);
        const P t98 = t95 + t97;
        const P t99 = t95 - t97;
        // complex block of 3, multiplier 2
        const P t100 = t84 + t93;
        const P t101 = t84 - t93;
        const P t102 = t100 + t75;
        const P t103 = c[0] * t100;
        const P t104 = t75 - t103;
        const P t105 = P(-c[1], c[1]) * t101;
        const P t106 = shuffled<1, 0>(t105);
        const P t107 = t104 + t106;
        const P t108 = t104 - t106;
        // complex block of 9, multiplier 2
        const P t109 = c[4] * t90;
        const P t110 = shuffled<1, 0>(t90);
        const P t111 = P(c[5], -c[5]) * t110;
        const P t112 = t109 + t111;
        const P t113 = P(-c[2], c[2]) * t99;
        const P t114 = shuffled<1, 0>(t99);
        const P t115 = c[3] * t114;
        const P t116 = t113 + t115;
        const P t117 = flipped<0, 1>(t116);
        // complex block of 3, multiplier 2
        const P t118 = t112 + t117;
        const P t119 = t112 - t117;
        const P t120 = t118 + t81;
        const P t121 = c[0] * t118;
        const P t122 = t81 - t121;
        const P t123 = P(-c[1], c[1]) * t119;
        const P t124 = shuffled<1, 0>(t123);
        const P t125 = t122 + t124;
        const P t126 = t122 - t124;
        // complex block of 9, multiplier 2
        const P t127 = P(-c[2], c[2]) * t89;
        const P t128 = shuffled<1, 0>(t89);
        const P t129 = c[3] * t128;
        const P t130 = t127 + t129;
        const P t131 = c[6] * t98;
        const P t132 = shuffled<1, 0>(t98);
        const P t133 = P(-c[7], c[7]) * t132;
        const P t134 = t131 + t133;
        const P t135 = flipped<0, 1>(t130);
        // complex block of 3, multiplier 2
        const P t136 = t134 + t135;
        const P t137 = flipped<1, 0>(t134);
        const P t138 = t130 + t137;
        const P t139 = t136 + t80;
        const P t140 = c[0] * t136;
        const P t141 = t80 - t140;
        const P t142 = c[1] * t138;
        const P t143 = shuffled<1, 0>(t142);
        const P t144 = t141 - t143;
        const P t145 = t141 + t143;
        const P x22 = io.pair(22);
        const P x40 = io.pair(40);
        // complex block of 3, multiplier 2
        const P t146 = x22 + x40;
        const P t147 = x22 - x40;
        const P x4 = io.pair(4);
        const P t148 = t146 + x4;
        const P t149 = c[0] * t146;
        const P t150 = x4 - t149;
        const P t151 = P(-c[1], c[1]) * t147;
        const P t152 = shuffled<1, 0>(t151);
        const P t153 = t150 + t152;
        const P t154 = t150 - t152;
        const P x28 = io.pair(28);
        const P x46 = io.pair(46);
        // complex block of 3, multiplier 2
        const P t155 = x28 + x46;
        const P t156 = x28 - x46;
        const P x10 = io.pair(10);
        const P t157 = t155 + x10;
        const P t158 = c[0] * t155;
        const P t159 = x10 - t158;
        const P t160 = P(-c[1], c[1]) * t156;
        const P t161 = shuffled<1, 0>(t160);
        const P t162 = t159 + t161;
        const P t163 = t159 - t161;
        const P x34 = io.pair(34);
        const P x52 = io.pair(52);
        // complex block of 3, multiplier 2
        const P t164 = x34 + x52;
        const P t165 = x34 - x52;
        const P x16 = io.pair(16);
        const P t166 = t164 + x16;
        const P t167 = c[0] * t164;
        const P t168 = x16 - t167;
        const P t169 = P(-c[1], c[1]) * t165;
        const P t170 = shuffled<1, 0>(t169);
        const P t171 = t168 + t170;
        const P t172 = t168 - t170;
        // complex block of 3, multiplier 2
        const P t173 = t157 + t166;
        const P t174 = t157 - t166;
        const P t175 = t173 + t148;
        const P t176 = c[0] * t173;
        const P t177 = t148 - t176;
        const P t178 = P(-c[1], c[1]) * t174;
        const P t179 = shuffled<1, 0>(t178);
        const P t180 = t177 + t179;
        const P t181 = t177 - t179;
        // complex block of 9, multiplier 2
        const P t182 = c[4] * t163;
        const P t183 = shuffled<1, 0>(t163);
        const P t184 = P(c[5], -c[5]) * t183;
        const P t185 = t182 + t184;
        const P t186 = P(-c[2], c[2]) * t172;
        const P t187 = shuffled<1, 0>(t172);
        const P t188 = c[3] * t187;
        const P t189 = t186 + t188;
        const P t190 = flipped<0, 1>(t189);
        // complex block of 3, multiplier 2
        const P t191 = t185 + t190;
        const P t192 = t185 - t190;
        const P t193 = t191 + t154;
        const P t194 = c[0] * t191;
        const P t195 = t154 - t194;
        const P t196 = P(-c[1], c[1]) * t192;
        const P t197 = shuffled<1, 0>(t196);
        const P t198 = t195 + t197;
        const P t199 = t195 - t197;
        // complex block of 9, multiplier 2
        const P t200 = P(-c[2], c[2]) * t162;
        const P t201 = shuffled<1, 0>(t162);
        const P t202 = c[3] * t201;
        const P t203 = t200 + t202;
        const P t204 = c[6] * t171;
        const P t205 = shuffled<1, 0>(t171);
        const P t206 = P(-c[7], c[7]) * t205;
        const P t207 = t204 + t206;
        const P t208 = flipped<0, 1>(t203);
        // complex block of 3, multiplier 2
        const P t209 = t207 + t208;
        const P t210 = flipped<1, 0>(t207);
        const P t211 = t203 + t210;
        const P t212 = t209 + t153;
        const P t213 = c[0] * t209;
        const P t214 = t153 - t213;
        const P t215 = c[1] * t211;
        const P t216 = shuffled<1, 0>(t215);
        const P t217 = t214 - t216;
        const P t218 = t214 + t216;
        // complex block of 3, multiplier 2
        const P t219 = t102 + t175;
        const P t220 = t102 - t175;
        const P t221 = t219 + t29;
        const P t222 = c[0] * t219;
        const P t223 = t29 - t222;
        const P t224 = P(-c[1], c[1]) * t220;
        const P t225 = shuffled<1, 0>(t224);
        const P t226 = t223 + t225;
        const P t227 = t223 - t225;
        // complex block of 27, multiplier 2
        const P t228 = c[14] * t120;
        const P t229 = shuffled<1, 0>(t120);
        const P t230 = P(c[15], -c[15]) * t229;
        const P t231 = t228 + t230;
        const P t232 = c[8] * t193;
        const P t233 = shuffled<1, 0>(t193);
        const P t234 = P(c[9], -c[9]) * t233;
        const P t235 = t232 + t234;
        // complex block of 3, multiplier 2
        const P t236 = t231 + t235;
        const P t237 = t231 - t235;
        const P t238 = t236 + t47;
        const P t239 = c[0] * t236;
        const P t240 = t47 - t239;
        const P t241 = P(-c[1], c[1]) * t237;
        const P t242 = shuffled<1, 0>(t241);
        const P t243 = t240 + t242;
        const P t244 = t240 - t242;
        // complex block of 27, multiplier 2
        const P t245 = c[8] * t139;
        const P t246 = shuffled<1, 0>(t139);
        const P t247 = P(c[9], -c[9]) * t246;
        const P t248 = t245 + t247;
        const P t249 = P(-c[10], c[10]) * t212;
        const P t250 = shuffled<1, 0>(t212);
        const P t251 = c[11] * t250;
        const P t252 = t249 + t251;
        const P t253 = flipped<0, 1>(t252);
        // complex block of 3, multiplier 2
        const P t254 = t248 + t253;
        const P t255 = t248 - t253;
        const P t256 = t254 + t66;
        const P t257 = c[0] * t254;
        const P t258 = t66 - t257;
        const P t259 = P(-c[1], c[1]) * t255;
        const P t260 = shuffled<1, 0>(t259);
        const P t261 = t258 + t260;
        const P t262 = t258 - t260;
        // complex block of 27, multiplier 2
        const P t263 = c[4] * t108;
        const P t264 = shuffled<1, 0>(t108);
        const P t265 = P(c[5], -c[5]) * t264;
        const P t266 = t263 + t265;
        const P t267 = P(-c[2], c[2]) * t181;
        const P t268 = shuffled<1, 0>(t181);
        const P t269 = c[3] * t268;
        const P t270 = t267 + t269;
        const P t271 = flipped<0, 1>(t270);
        // complex block of 3, multiplier 2
        const P t272 = t266 + t271;
        const P t273 = t266 - t271;
        const P t274 = t272 + t35;
        const P t275 = c[0] * t272;
        const P t276 = t35 - t275;
        const P t277 = P(-c[1], c[1]) * t273;
        const P t278 = shuffled<1, 0>(t277);
        const P t279 = t276 + t278;
        const P t280 = t276 - t278;
        // complex block of 27, multiplier 2
        const P t281 = P(-c[10], c[10]) * t126;
        const P t282 = shuffled<1, 0>(t126);
        const P t283 = c[11] * t282;
        const P t284 = t281 + t283;
        const P t285 = shuffled<1, 0>(t199);
        const P t286 = c[12] * t285;
        const P t287 = P(c[13], -c[13]) * t199;
        const P t288 = t286 + t287;
        const P t289 = shuffled<0, 3>(t284, t288);
        const P t290 = shuffled<0, 3>(t288, t284);
        // complex block of 3, multiplier 2
        const P t291 = t289 - t290;
        const P t292 = t284 + t288;
        const P t293 = t291 + t53;
        const P t294 = c[0] * t291;
        const P t295 = t53 - t294;
        const P t296 = c[1] * t292;
        const P t297 = shuffled<1, 0>(t296);
        const P t298 = t295 - t297;
        const P t299 = t295 + t297;
        // complex block of 27, multiplier 2
        const P t300 = P(-c[16], c[16]) * t145;
        const P t301 = shuffled<1, 0>(t145);
        const P t302 = c[17] * t301;
        const P t303 = t300 + t302;
        const P t304 = shuffled<1, 0>(t218);
        const P t305 = c[18] * t304;
        const P t306 = P(c[19], -c[19]) * t218;
        const P t307 = t305 + t306;
        const P t308 = shuffled<0, 3>(t303, t307);
        const P t309 = shuffled<0, 3>(t307, t303);
        // complex block of 3, multiplier 2
        const P t310 = t308 - t309;
        const P t311 = t303 + t307;
        const P t312 = t310 + t72;
        const P t313 = c[0] * t310;
        const P t314 = t72 - t313;
        const P t315 = c[1] * t311;
        const P t316 = shuffled<1, 0>(t315);
        const P t317 = t314 - t316;
        const P t318 = t314 + t316;
        // complex block of 27, multiplier 2
        const P t319 = P(-c[2], c[2]) * t107;
        const P t320 = shuffled<1, 0>(t107);
        const P t321 = c[3] * t320;
        const P t322 = t319 + t321;
        const P t323 = c[6] * t180;
        const P t324 = shuffled<1, 0>(t180);
        const P t325 = P(-c[7], c[7]) * t324;
        const P t326 = t323 + t325;
        const P t327 = flipped<0, 1>(t322);
        // complex block of 3, multiplier 2
        const P t328 = t326 + t327;
        const P t329 = flipped<1, 0>(t326);
        const P t330 = t322 + t329;
        const P t331 = t328 + t34;
        const P t332 = c[0] * t328;
        const P t333 = t34 - t332;
        const P t334 = c[1] * t330;
        const P t335 = shuffled<1, 0>(t334);
        const P t336 = t333 - t335;
        const P t337 = t333 + t335;
        const P t338 = shuffled<1, 0>(t125);
        // complex block of 27, multiplier 2
        const P t339 = c[20] * t338;
        const P t340 = P(c[21], -c[21]) * t125;
        const P t341 = t339 + t340;
        const P t342 = c[22] * t198;
        const P t343 = shuffled<1, 0>(t198);
        const P t344 = P(c[23], -c[23]) * t343;
        const P t345 = t342 + t344;
        const P t346 = flipped<1, 0>(t341);
        // complex block of 3, multiplier 2
        const P t347 = t346 + t345;
        const P t348 = flipped<0, 1>(t345);
        const P t349 = t341 + t348;
        const P t350 = t347 + t52;
        const P t351 = c[0] * t347;
        const P t352 = t52 - t351;
        const P t353 = c[1] * t349;
        const P t354 = shuffled<1, 0>(t353);
        const P t355 = t352 + t354;
        const P t356 = t352 - t354;
        const P t357 = shuffled<1, 0>(t144);
        // complex block of 27, multiplier 2
        const P t358 = c[12] * t357;
        const P t359 = P(c[13], -c[13]) * t144;
        const P t360 = t358 + t359;
        const P t361 = c[24] * t217;
        const P t362 = shuffled<1, 0>(t217);
        const P t363 = P(c[25], -c[25]) * t362;
        const P t364 = t361 + t363;
        const P t365 = flipped<1, 0>(t360);
        // complex block of 3, multiplier 2
        const P t366 = t365 + t364;
        const P t367 = flipped<0, 1>(t364);
        const P t368 = t360 + t367;
        const P t369 = t366 + t71;
        const P t370 = c[0] * t366;
        const P t371 = t71 - t370;
        const P t372 = c[1] * t368;
        const P t373 = shuffled<1, 0>(t372);
        const P t374 = t371 + t373;
        const P t375 = t371 - t373;
        const P x45 = io.pair(45);
        const P x9 = io.pair(9);
        // complex block of 3, multiplier 2
        const P t376 = x45 + x9;
        const P t377 = x45 - x9;
        const P x27 = io.pair(27);
        const P t378 = t376 + x27;
        const P t379 = c[0] * t376;
        const P t380 = x27 - t379;
        const P t381 = P(-c[1], c[1]) * t377;
        const P t382 = shuffled<1, 0>(t381);
        const P t383 = t380 + t382;
        const P t384 = t380 - t382;
        const P x51 = io.pair(51);
        const P x15 = io.pair(15);
        // complex block of 3, multiplier 2
        const P t385 = x51 + x15;
        const P t386 = x51 - x15;
        const P x33 = io.pair(33);
        const P t387 = t385 + x33;
        const P t388 = c[0] * t385;
        const P t389 = x33 - t388;
        const P t390 = P(-c[1], c[1]) * t386;
        const P t391 = shuffled<1, 0>(t390);
        const P t392 = t389 + t391;
        const P t393 = t389 - t391;
        const P x3 = io.pair(3);
        const P x21 = io.pair(21);
        // complex block of 3, multiplier 2
        const P t394 = x3 + x21;
        const P t395 = x3 - x21;
        const P x39 = io.pair(39);
        const P t396 = t394 + x39;
        const P t397 = c[0] * t394;
        const P t398 = x39 - t397;
        const P t399 = P(-c[1], c[1]) * t395;
        const P t400 = shuffled<1, 0>(t399);
        const P t401 = t398 + t400;
        const P t402 = t398 - t400;
        // complex block of 3, multiplier 2
        const P t403 = t387 + t396;
        const P t404 = t387 - t396;
        const P t405 = t403 + t378;
        const P t406 = c[0] * t403;
        const P t407 = t378 - t406;
        const P t408 = P(-c[1], c[1]) * t404;
        const P t409 = shuffled<1, 0>(t408);
        const P t410 = t407 + t409;
        const P t411 = t407 - t409;
        // complex block of 9, multiplier 2
        const P t412 = c[4] * t393;
        const P t413 = shuffled<1, 0>(t393);
        const P t414 = P(c[5], -c[5]) * t413;
        const P t415 = t412 + t414;
        const P t416 = P(-c[2], c[2]) * t402;
        const P t417 = shuffled<1, 0>(t402);
        const P t418 = c[3] * t417;
        const P t419 = t416 + t418;
        const P t420 = flipped<0, 1>(t419);
        // complex block of 3, multiplier 2
        const P t421 = t415 + t420;
        const P t422 = t415 - t420;
        const P t423 = t421 + t384;
        const P t424 = c[0] * t421;
        const P t425 = t384 - t424;
        const P t426 = P(-c[1], c[1]) * t422;
        const P t427 = shuffled<1, 0>(t426);
        const P t428 = t425 + t427;
        const P t429 = t425 - t427;
        // complex block of 9, multiplier 2
        const P t430 = P(-c[2], c[2]) * t392;
        const P t431 = shuffled<1, 0>(t392);
        const P t432 = c[3] * t431;
        const P t433 = t430 + t432;
        const P t434 = c[6] * t401;
        const P t435 = shuffled<1, 0>(t401);
        const P t436 = P(-c[7], c[7]) * t435;
        const P t437 = t434 + t436;
        const P t438 = flipped<0, 1>(t433);
        // complex block of 3, multiplier 2
        const P t439 = t437 + t438;
        const P t440 = flipped<1, 0>(t437);
        const P t441 = t433 + t440;
        const P t442 = t439 + t383;
        const P t443 = c[0] * t439;
        const P t444 = t383 - t443;
        const P t445 = c[1] * t441;
        const P t446 = shuffled<1, 0>(t445);
        const P t447 = t444 - t446;
        const P t448 = t444 + t446;
        const P x47 = io.pair(47);
        const P x11 = io.pair(11);
        // complex block of 3, multiplier 2
        const P t449 = x47 + x11;
        const P t450 = x47 - x11;
        const P x29 = io.pair(29);
        const P t451 = t449 + x29;
        const P t452 = c[0] * t449;
        const P t453 = x29 - t452;
        const P t454 = P(-c[1], c[1]) * t450;
        const P t455 = shuffled<1, 0>(t454);
        const P t456 = t453 + t455;
        const P t457 = t453 - t455;
        const P x53 = io.pair(53);
        const P x17 = io.pair(17);
        // complex block of 3, multiplier 2
        const P t458 = x53 + x17;
        const P t459 = x53 - x17;
        const P x35 = io.pair(35);
        const P t460 = t458 + x35;
        const P t461 = c[0] * t458;
        const P t462 = x35 - t461;
        const P t463 = P(-c[1], c[1]) * t459;
        const P t464 = shuffled<1, 0>(t463);
        const P t465 = t462 + t464;
        const P t466 = t462 - t464;
        const P x5 = io.pair(5);
        const P x23 = io.pair(23);
        // complex block of 3, multiplier 2
        const P t467 = x5 + x23;
        const P t468 = x5 - x23;
        const P x41 = io.pair(41);
        const P t469 = t467 + x41;
        const P t470 = c[0] * t467;
        const P t471 = x41 - t470;
        const P t472 = P(-c[1], c[1]) * t468;
        const P t473 = shuffled<1, 0>(t472);
        const P t474 = t471 + t473;
        const P t475 = t471 - t473;
        // complex block of 3, multiplier 2
        const P t476 = t460 + t469;
        const P t477 = t460 - t469;
        const P t478 = t476 + t451;
        const P t479 = c[0] * t476;
        const P t480 = t451 - t479;
        const P t481 = P(-c[1], c[1]) * t477;
        const P t482 = shuffled<1, 0>(t481);
        const P t483 = t480 + t482;
        const P t484 = t480 - t482;
        // complex block of 9, multiplier 2
        const P t485 = c[4] * t466;
        const P t486 = shuffled<1, 0>(t466);
        const P t487 = P(c[5], -c[5]) * t486;
        const P t488 = t485 + t487;
        const P t489 = P(-c[2], c[2]) * t475;
        const P t490 = shuffled<1, 0>(t475);
        const P t491 = c[3] * t490;
        const P t492 = t489 + t491;
        const P t493 = flipped<0, 1>(t492);
        // complex block of 3, multiplier 2
        const P t494 = t488 + t493;
        const P t495 = t488 - t493;
        const P t496 = t494 + t457;
        const P t497 = c[0] * t494;
        const P t498 = t457 - t497;
        const P t499 = P(-c[1], c[1]) * t495;
        const P t500 = shuffled<1, 0>(t499);
        const P t501 = t498 + t500;
        const P t502 = t498 - t500;
        // complex block of 9, multiplier 2
        const P t503 = P(-c[2], c[2]) * t465;
        const P t504 = shuffled<1, 0>(t465);
        const P t505 = c[3] * t504;
        const P t506 = t503 + t505;
        const P t507 = c[6] * t474;
        const P t508 = shuffled<1, 0>(t474);
        const P t509 = P(-c[7], c[7]) * t508;
        const P t510 = t507 + t509;
        const P t511 = flipped<0, 1>(t506);
        // complex block of 3, multiplier 2
        const P t512 = t510 + t511;
        const P t513 = flipped<1, 0>(t510);
        const P t514 = t506 + t513;
        const P t515 = t512 + t456;
        const P t516 = c[0] * t512;
        const P t517 = t456 - t516;
        const P t518 = c[1] * t514;
        const P t519 = shuffled<1, 0>(t518);
        const P t520 = t517 - t519;
        const P t521 = t517 + t519;
        const P x49 = io.pair(49);
        const P x13 = io.pair(13);
        // complex block of 3, multiplier 2
        const P t522 = x49 + x13;
        const P t523 = x49 - x13;
        const P x31 = io.pair(31);
        const P t524 = t522 + x31;
        const P t525 = c[0] * t522;
        const P t526 = x31 - t525;
        const P t527 = P(-c[1], c[1]) * t523;
        const P t528 = shuffled<1, 0>(t527);
        const P t529 = t526 + t528;
        const P t530 = t526 - t528;
        const P x1 = io.pair(1);
        const P x19 = io.pair(19);
        // complex block of 3, multiplier 2
        const P t531 = x1 + x19;
        const P t532 = x1 - x19;
        const P x37 = io.pair(37);
        const P t533 = t531 + x37;
        const P t534 = c[0] * t531;
        const P t535 = x37 - t534;
        const P t536 = P(-c[1], c[1]) * t532;
        const P t537 = shuffled<1, 0>(t536);
        const P t538 = t535 + t537;
        const P t539 = t535 - t537;
        const P x7 = io.pair(7);
        const P x25 = io.pair(25);
        // complex block of 3, multiplier 2
        const P t540 = x7 + x25;
        const P t541 = x7 - x25;
        const P x43 = io.pair(43);
        const P t542 = t540 + x43;
        const P t543 = c[0] * t540;
        const P t544 = x43 - t543;
        const P t545 = P(-c[1], c[1]) * t541;
        const P t546 = shuffled<1, 0>(t545);
        const P t547 = t544 + t546;
        const P t548 = t544 - t546;
        // complex block of 3, multiplier 2
        const P t549 = t533 + t542;
        const P t550 = t533 - t542;
        const P t551 = t549 + t524;
        const P t552 = c[0] * t549;
        const P t553 = t524 - t552;
        const P t554 = P(-c[1], c[1]) * t550;
        const P t555 = shuffled<1, 0>(t554);
        const P t556 = t553 + t555;
        const P t557 = t553 - t555;
        // complex block of 9, multiplier 2
        const P t558 = c[4] * t539;
        const P t559 = shuffled<1, 0>(t539);
        const P t560 = P(c[5], -c[5]) * t559;
        const P t561 = t558 + t560;
        const P t562 = P(-c[2], c[2]) * t548;
        const P t563 = shuffled<1, 0>(t548);
        const P t564 = c[3] * t563;
        const P t565 = t562 + t564;
        const P t566 = flipped<0, 1>(t565);
        // complex block of 3, multiplier 2
        const P t567 = t561 + t566;
        const P t568 = t561 - t566;
        const P t569 = t567 + t530;
        const P t570 = c[0] * t567;
        const P t571 = t530 - t570;
        const P t572 = P(-c[1], c[1]) * t568;
        const P t573 = shuffled<1, 0>(t572);
        const P t574 = t571 + t573;
        const P t575 = t571 - t573;
        // complex block of 9, multiplier 2
        const P t576 = P(-c[2], c[2]) * t538;
        const P t577 = shuffled<1, 0>(t538);
        const P t578 = c[3] * t577;
        const P t579 = t576 + t578;
        const P t580 = c[6] * t547;
        const P t581 = shuffled<1, 0>(t547);
        const P t582 = P(-c[7], c[7]) * t581;
        const P t583 = t580 + t582;
        const P t584 = flipped<0, 1>(t579);
        // complex block of 3, multiplier 2
        const P t585 = t583 + t584;
        const P t586 = flipped<1, 0>(t583);
        const P t587 = t579 + t586;
        const P t588 = t585 + t529;
        const P t589 = c[0] * t585;
        const P t590 = t529 - t589;
        const P t591 = c[1] * t587;
        const P t592 = shuffled<1, 0>(t591);
        const P t593 = t590 - t592;
        const P t594 = t590 + t592;
        // complex block of 3, multiplier 2
        const P t595 = t478 + t551;
        const P t596 = t478 - t551;
        const P t597 = t595 + t405;
        const P t598 = c[0] * t595;
        const P t599 = t405 - t598;
        const P t600 = P(-c[1], c[1]) * t596;
        const P t601 = shuffled<1, 0>(t600);
        const P t602 = t599 + t601;
        const P t603 = t599 - t601;
        // complex block of 27, multiplier 2
        const P t604 = c[14] * t496;
        const P t605 = shuffled<1, 0>(t496);
        const P t606 = P(c[15], -c[15]) * t605;
        const P t607 = t604 + t606;
        const P t608 = c[8] * t569;
        const P t609 = shuffled<1, 0>(t569);
        const P t610 = P(c[9], -c[9]) * t609;
        const P t611 = t608 + t610;
        // complex block of 3, multiplier 2
        const P t612 = t607 + t611;
        const P t613 = t607 - t611;
        const P t614 = t612 + t423;
        const P t615 = c[0] * t612;
        const P t616 = t423 - t615;
        const P t617 = P(-c[1], c[1]) * t613;
        const P t618 = shuffled<1, 0>(t617);
        const P t619 = t616 + t618;
        const P t620 = t616 - t618;
        // complex block of 27, multiplier 2
        const P t621 = c[8] * t515;
        const P t622 = shuffled<1, 0>(t515);
        const P t623 = P(c[9], -c[9]) * t622;
        const P t624 = t621 + t623;
        const P t625 = P(-c[10], c[10]) * t588;
        const P t626 = shuffled<1, 0>(t588);
        const P t627 = c[11] * t626;
        const P t628 = t625 + t627;
        const P t629 = flipped<0, 1>(t628);
        // complex block of 3, multiplier 2
        const P t630 = t624 + t629;
        const P t631 = t624 - t629;
        const P t632 = t630 + t442;
        const P t633 = c[0] * t630;
        const P t634 = t442 - t633;
        const P t635 = P(-c[1], c[1]) * t631;
        const P t636 = shuffled<1, 0>(t635);
        const P t637 = t634 + t636;
        const P t638 = t634 - t636;
        // complex block of 27, multiplier 2
        const P t639 = c[4] * t484;
        const P t640 = shuffled<1, 0>(t484);
        const P t641 = P(c[5], -c[5]) * t640;
        const P t642 = t639 + t641;
        const P t643 = P(-c[2], c[2]) * t557;
        const P t644 = shuffled<1, 0>(t557);
        const P t645 = c[3] * t644;
        const P t646 = t643 + t645;
        const P t647 = flipped<0, 1>(t646);
        // complex block of 3, multiplier 2
        const P t648 = t642 + t647;
        const P t649 = t642 - t647;
        const P t650 = t648 + t411;
        const P t651 = c[0] * t648;
        const P t652 = t411 - t651;
        const P t653 = P(-c[1], c[1]) * t649;
        const P t654 = shuffled<1, 0>(t653);
        const P t655 = t652 + t654;
        const P t656 = t652 - t654;
        // complex block of 27, multiplier 2
        const P t657 = P(-c[10], c[10]) * t502;
        const P t658 = shuffled<1, 0>(t502);
        const P t659 = c[11] * t658;
        const P t660 = t657 + t659;
        const P t661 = shuffled<1, 0>(t575);
        const P t662 = c[12] * t661;
        const P t663 = P(c[13], -c[13]) * t575;
        const P t664 = t662 + t663;
        const P t665 = shuffled<0, 3>(t660, t664);
        const P t666 = shuffled<0, 3>(t664, t660);
        // complex block of 3, multiplier 2
        const P t667 = t665 - t666;
        const P t668 = t660 + t664;
        const P t669 = t667 + t429;
        const P t670 = c[0] * t667;
        const P t671 = t429 - t670;
        const P t672 = c[1] * t668;
        const P t673 = shuffled<1, 0>(t672);
        const P t674 = t671 - t673;
        const P t675 = t671 + t673;
        // complex block of 27, multiplier 2
        const P t676 = P(-c[16], c[16]) * t521;
        const P t677 = shuffled<1, 0>(t521);
        const P t678 = c[17] * t677;
        const P t679 = t676 + t678;
        const P t680 = shuffled<1, 0>(t594);
        const P t681 = c[18] * t680;
        const P t682 = P(c[19], -c[19]) * t594;
        const P t683 = t681 + t682;
        const P t684 = shuffled<0, 3>(t679, t683);
        const P t685 = shuffled<0, 3>(t683, t679);
        // complex block of 3, multiplier 2
        const P t686 = t684 - t685;
        const P t687 = t679 + t683;
        const P t688 = t686 + t448;
        const P t689 = c[0] * t686;
        const P t690 = t448 - t689;
        const P t691 = c[1] * t687;
        const P t692 = shuffled<1, 0>(t691);
        const P t693 = t690 - t692;
        const P t694 = t690 + t692;
        // complex block of 27, multiplier 2
        const P t695 = P(-c[2], c[2]) * t483;
        const P t696 = shuffled<1, 0>(t483);
        const P t697 = c[3] * t696;
        const P t698 = t695 + t697;
        const P t699 = c[6] * t556;
        const P t700 = shuffled<1, 0>(t556);
        const P t701 = P(-c[7], c[7]) * t700;
        const P t702 = t699 + t701;
        const P t703 = flipped<0, 1>(t698);
        // complex block of 3, multiplier 2
        const P t704 = t702 + t703;
        const P t705 = flipped<1, 0>(t702);
        const P t706 = t698 + t705;
        const P t707 = t704 + t410;
        const P t708 = c[0] * t704;
        const P t709 = t410 - t708;
        const P t710 = c[1] * t706;
        const P t711 = shuffled<1, 0>(t710);
        const P t712 = t709 - t711;
        const P t713 = t709 + t711;
        const P t714 = shuffled<1, 0>(t501);
        // complex block of 27, multiplier 2
        const P t715 = c[20] * t714;
        const P t716 = P(c[21], -c[21]) * t501;
        const P t717 = t715 + t716;
        const P t718 = c[22] * t574;
        const P t719 = shuffled<1, 0>(t574);
        const P t720 = P(c[23], -c[23]) * t719;
        const P t721 = t718 + t720;
        const P t722 = flipped<1, 0>(t717);
        // complex block of 3, multiplier 2
        const P t723 = t722 + t721;
        const P t724 = flipped<0, 1>(t721);
        const P t725 = t717 + t724;
        const P t726 = t723 + t428;
        const P t727 = c[0] * t723;
        const P t728 = t428 - t727;
        const P t729 = c[1] * t725;
        const P t730 = shuffled<1, 0>(t729);
        const P t731 = t728 + t730;
        const P t732 = t728 - t730;
        const P t733 = shuffled<1, 0>(t520);
        // complex block of 27, multiplier 2
        const P t734 = c[12] * t733;
        const P t735 = P(c[13], -c[13]) * t520;
        const P t736 = t734 + t735;
        const P t737 = c[24] * t593;
        const P t738 = shuffled<1, 0>(t593);
        const P t739 = P(c[25], -c[25]) * t738;
        const P t740 = t737 + t739;
        const P t741 = flipped<1, 0>(t736);
        // complex block of 3, multiplier 2
        const P t742 = t741 + t740;
        const P t743 = flipped<0, 1>(t740);
        const P t744 = t736 + t743;
        const P t745 = t742 + t447;
        const P t746 = c[0] * t742;
        const P t747 = t447 - t746;
        const P t748 = c[1] * t744;
        const P t749 = shuffled<1, 0>(t748);
        const P t750 = t747 + t749;
        const P t751 = t747 - t749;
        // complex block of 2
        const P t752 = t221 + t597;
        io.pair(0, t752);
        const P t753 = t221 - t597;
        io.pair(27, t753);
        // complex block of 2
        const P t754 = t238 + t614;
        io.pair(2, t754);
        const P t755 = t238 - t614;
        io.pair(29, t755);
        // complex block of 2
        const P t756 = t256 + t632;
        io.pair(4, t756);
        const P t757 = t256 - t632;
        io.pair(31, t757);
        // complex block of 2
        const P t758 = t274 + t650;
        io.pair(6, t758);
        const P t759 = t274 - t650;
        io.pair(33, t759);
        // complex block of 2
        const P t760 = t293 + t669;
        io.pair(8, t760);
        const P t761 = t293 - t669;
        io.pair(35, t761);
        // complex block of 2
        const P t762 = t312 + t688;
        io.pair(10, t762);
        const P t763 = t312 - t688;
        io.pair(37, t763);
        // complex block of 2
        const P t764 = t331 + t707;
        io.pair(12, t764);
        const P t765 = t331 - t707;
        io.pair(39, t765);
        // complex block of 2
        const P t766 = t350 + t726;
        io.pair(14, t766);
        const P t767 = t350 - t726;
        io.pair(41, t767);
        // complex block of 2
        const P t768 = t369 + t745;
        io.pair(16, t768);
        const P t769 = t369 - t745;
        io.pair(43, t769);
        // complex block of 2
        const P t770 = t227 + t603;
        io.pair(18, t770);
        const P t771 = t227 - t603;
        io.pair(45, t771);
        // complex block of 2
        const P t772 = t244 + t620;
        io.pair(20, t772);
        const P t773 = t244 - t620;
        io.pair(47, t773);
        // complex block of 2
        const P t774 = t262 + t638;
        io.pair(22, t774);
        const P t775 = t262 - t638;
        io.pair(49, t775);
        // complex block of 2
        const P t776 = t280 + t656;
        io.pair(24, t776);
        const P t777 = t280 - t656;
        io.pair(51, t777);
        // complex block of 2
        const P t778 = t299 + t675;
        io.pair(26, t778);
        const P t779 = t299 - t675;
        io.pair(53, t779);
        // complex block of 2
        const P t780 = t318 + t694;
        io.pair(28, t780);
        const P t781 = t318 - t694;
        io.pair(1, t781);
        // complex block of 2
        const P t782 = t337 + t713;
        io.pair(30, t782);
        const P t783 = t337 - t713;
        io.pair(3, t783);
        // complex block of 2
        const P t784 = t356 + t732;
        io.pair(32, t784);
        const P t785 = t356 - t732;
        io.pair(5, t785);
        // complex block of 2
        const P t786 = t375 + t751;
        io.pair(34, t786);
        const P t787 = t375 - t751;
        io.pair(7, t787);
        // complex block of 2
        const P t788 = t226 + t602;
        io.pair(36, t788);
        const P t789 = t226 - t602;
        io.pair(9, t789);
        // complex block of 2
        const P t790 = t243 + t619;
        io.pair(38, t790);
        const P t791 = t243 - t619;
        io.pair(11, t791);
        // complex block of 2
        const P t792 = t261 + t637;
        io.pair(40, t792);
        const P t793 = t261 - t637;
        io.pair(13, t793);
        // complex block of 2
        const P t794 = t279 + t655;
        io.pair(42, t794);
        const P t795 = t279 - t655;
        io.pair(15, t795);
        // complex block of 2
        const P t796 = t298 + t674;
        io.pair(44, t796);
        const P t797 = t298 - t674;
        io.pair(17, t797);
        // complex block of 2
        const P t798 = t317 + t693;
        io.pair(46, t798);
        const P t799 = t317 - t693;
        io.pair(19, t799);
        // complex block of 2
        const P t800 = t336 + t712;
        io.pair(48, t800);
        const P t801 = t336 - t712;
        io.pair(21, t801);
        // complex block of 2
        const P t802 = t355 + t731;
        io.pair(50, t802);
        const P t803 = t355 - t731;
        io.pair(23, t803);
        // complex block of 2
        const P t804 = t374 + t750;
        io.pair(52, t804);
        const P t805 = t374 - t750;
        io.pair(25, t805);
    }
};

}  // namespace zulg
