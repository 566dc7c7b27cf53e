// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 27.
// Complex DFT of 27 points, twiddled, inner 9, outer 3; one complex number to a register.
// 109 sums, 81 differences, 110 products of registers, which do the 654 steps of the graph, those with
// `scale` included; 59 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<27> {
    static constexpr int steps = 654;  // with `scale`
    static constexpr double inverseRoot = 0.19245008972987526;  // 1/sqrt(27), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.766044443118978,  // c[4]: cos 2 pi 1/9
        0.6427876096865394,  // c[5]: sin 2 pi 1/9
        0.9396926207859084,  // c[6]: -cos 2 pi 4/9
        0.3420201433256687,  // c[7]: sin 2 pi 4/9
        0.8936326403234123,  // c[8]: cos 2 pi 2/27
        0.44879918020046217,  // c[9]: sin 2 pi 2/27
        0.5971585917027862,  // c[10]: cos 2 pi 4/27
        0.8021231927550437,  // c[11]: sin 2 pi 4/27
        0.28680323271109026,  // c[12]: -cos 2 pi 8/27
        0.9579895123154889,  // c[13]: sin 2 pi 8/27
        0.9730448705798238,  // c[14]: cos 2 pi 1/27
        0.23061587074244017,  // c[15]: sin 2 pi 1/27
        0.39607976603915684,  // c[16]: cos 2 pi 5/27
        0.918216106880274,  // c[17]: sin 2 pi 5/27
        0.6862416378687336,  // c[18]: -cos 2 pi 10/27
        0.7273736415730487,  // c[19]: sin 2 pi 10/27
        0.05814482891047583,  // c[20]: -cos 2 pi 7/27
        0.9983081582712682,  // c[21]: sin 2 pi 7/27
        0.11609291412523023,  // c[22]: -sin 2 pi 14/27
        0.993238357741943,  // c[23]: -cos 2 pi 14/27
        0.549508978070806,  // c[24]: -sin 2 pi 16/27
        0.8354878114129364,  // c[25]: -cos 2 pi 16/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x9 = io.pair(9);
        const P x18 = io.pair(18);
        // complex block of 3
        const P t0 = x9 + x18;
        const P t1 = x9 - x18;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[0] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[1], c[1]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x12 = io.pair(12);
        const P x21 = io.pair(21);
        // complex block of 3
        const P t9 = x12 + x21;
        const P t10 = x12 - x21;
        const P x3 = io.pair(3);
        const P t11 = t9 + x3;
        const P t12 = c[0] * t9;
        const P t13 = x3 - t12;
        const P t14 = P(-c[1], c[1]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x15 = io.pair(15);
        const P x24 = io.pair(24);
        // complex block of 3
        const P t18 = x15 + x24;
        const P t19 = x15 - x24;
        const P x6 = io.pair(6);
        const P t20 = t18 + x6;
        const P t21 = c[0] * t18;
        const P t22 = x6 - t21;
        const P t23 = P(-c[1], c[1]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        // complex block of 3
        const P t27 = t11 + t20;
        const P t28 = t11 - t20;
        const P t29 = t27 + t2;
        const P t30 = c[0] * t27;
        const P t31 = t2 - t30;
        const P t32 = P(-c[1], c[1]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        // complex block of 9
        const P t36 = c[4] * t16;
        const P t37 = shuffled<1, 0>(t16);
        const P t38 = P(c[5], -c[5]) * t37;
        const P t39 = t36 + t38;
        const P t40 = c[2] * t25;
        const P t41 = shuffled<1, 0>(t25);
        const P t42 = P(c[3], -c[3]) * t41;
        const P t43 = t40 + t42;
        // complex block of 3
        const P t44 = t39 + t43;
        const P t45 = t39 - t43;
        const P t46 = t44 + t7;
        const P t47 = c[0] * t44;
        const P t48 = t7 - t47;
        const P t49 = P(-c[1], c[1]) * t45;
        const P t50 = shuffled<1, 0>(t49);
        const P t51 = t48 + t50;
        const P t52 = t48 - t50;
        // complex block of 9
        const P t53 = c[2] * t17;
        const P t54 = shuffled<1, 0>(t17);
        const P t55 = P(c[3], -c[3]) * t54;
        const P t56 = t53 + t55;
        const P t57 = P(-c[6], c[6]) * t26;
        const P t58 = shuffled<1, 0>(t26);
        const P t59 = c[7] * t58;
        const P t60 = t57 + t59;
        const P t61 = flipped<0, 1>(t60);
        // complex block of 3
        const P t62 = t56 + t61;
        const P t63 = t56 - t61;
        const P t64 = t62 + t8;
        const P t65 = c[0] * t62;
        const P t66 = t8 - t65;
        const P t67 = P(-c[1], c[1]) * t63;
        const P t68 = shuffled<1, 0>(t67);
        const P t69 = t66 + t68;
        const P t70 = t66 - t68;
        const P x10 = io.pair(10);
        const P x19 = io.pair(19);
        // complex block of 3
        const P t71 = x10 + x19;
        const P t72 = x10 - x19;
        const P x1 = io.pair(1);
        const P t73 = t71 + x1;
        const P t74 = c[0] * t71;
        const P t75 = x1 - t74;
        const P t76 = P(-c[1], c[1]) * t72;
        const P t77 = shuffled<1, 0>(t76);
        const P t78 = t75 + t77;
        const P t79 = t75 - t77;
        const P x13 = io.pair(13);
        const P x22 = io.pair(22);
        // complex block of 3
        const P t80 = x13 + x22;
        const P t81 = x13 - x22;
        const P x4 = io.pair(4);
        const P t82 = t80 + x4;
        const P t83 = c[0] * t80;
        const P t84 = x4 - t83;
        const P t85 = P(-c[1], c[1]) * t81;
        const P t86 = shuffled<1, 0>(t85);
        const P t87 = t84 + t86;
        const P t88 = t84 - t86;
        const P x16 = io.pair(16);
        const P x25 = io.pair(25);
        // complex block of 3
        const P t89 = x16 + x25;
        const P t90 = x16 - x25;
        const P x7 = io.pair(7);
        const P t91 = t89 + x7;
        const P t92 = c[0] * t89;
        const P t93 = x7 - t92;
        const P t94 = P(-c[1], c[1]) * t90;
        const P t95 = shuffled<1, 0>(t94);
        const P t96 = t93 + t95;
        const P t97 = t93 - t95;
        // complex block of 3
        const P t98 = t82 + t91;
        const P t99 = t82 - t91;
        const P t100 = t98 + t73;
        const P t101 = c[0] * t98;
        const P t102 = t73 - t101;
        const P t103 = P(-c[1], c[1]) * t99;
        const P t104 = shuffled<1, 0>(t103);
        const P t105 = t102 + t104;
        const P t106 = t102 - t104;
        // complex block of 9
        const P t107 = c[4] * t87;
        const P t108 = shuffled<1, 0>(t87);
        const P t109 = P(c[5], -c[5]) * t108;
        const P t110 = t107 + t109;
        const P t111 = c[2] * t96;
        const P t112 = shuffled<1, 0>(t96);
        const P t113 = P(c[3], -c[3]) * t112;
        const P t114 = t111 + t113;
        // complex block of 3
        const P t115 = t110 + t114;
        const P t116 = t110 - t114;
        const P t117 = t115 + t78;
        const P t118 = c[0] * t115;
        const P t119 = t78 - t118;
        const P t120 = P(-c[1], c[1]) * t116;
        const P t121 = shuffled<1, 0>(t120);
        const P t122 = t119 + t121;
        const P t123 = t119 - t121;
        // complex block of 9
        const P t124 = c[2] * t88;
        const P t125 = shuffled<1, 0>(t88);
        const P t126 = P(c[3], -c[3]) * t125;
        const P t127 = t124 + t126;
        const P t128 = P(-c[6], c[6]) * t97;
        const P t129 = shuffled<1, 0>(t97);
        const P t130 = c[7] * t129;
        const P t131 = t128 + t130;
        const P t132 = flipped<0, 1>(t131);
        // complex block of 3
        const P t133 = t127 + t132;
        const P t134 = t127 - t132;
        const P t135 = t133 + t79;
        const P t136 = c[0] * t133;
        const P t137 = t79 - t136;
        const P t138 = P(-c[1], c[1]) * t134;
        const P t139 = shuffled<1, 0>(t138);
        const P t140 = t137 + t139;
        const P t141 = t137 - t139;
        const P x11 = io.pair(11);
        const P x20 = io.pair(20);
        // complex block of 3
        const P t142 = x11 + x20;
        const P t143 = x11 - x20;
        const P x2 = io.pair(2);
        const P t144 = t142 + x2;
        const P t145 = c[0] * t142;
        const P t146 = x2 - t145;
        const P t147 = P(-c[1], c[1]) * t143;
        const P t148 = shuffled<1, 0>(t147);
        const P t149 = t146 + t148;
        const P t150 = t146 - t148;
        const P x14 = io.pair(14);
        const P x23 = io.pair(23);
        // complex block of 3
        const P t151 = x14 + x23;
        const P t152 = x14 - x23;
        const P x5 = io.pair(5);
        const P t153 = t151 + x5;
        const P t154 = c[0] * t151;
        const P t155 = x5 - t154;
        const P t156 = P(-c[1], c[1]) * t152;
        const P t157 = shuffled<1, 0>(t156);
        const P t158 = t155 + t157;
        const P t159 = t155 - t157;
        const P x17 = io.pair(17);
        const P x26 = io.pair(26);
        // complex block of 3
        const P t160 = x17 + x26;
        const P t161 = x17 - x26;
        const P x8 = io.pair(8);
        const P t162 = t160 + x8;
        const P t163 = c[0] * t160;
        const P t164 = x8 - t163;
        const P t165 = P(-c[1], c[1]) * t161;
        const P t166 = shuffled<1, 0>(t165);
        const P t167 = t164 + t166;
        const P t168 = t164 - t166;
        // complex block of 3
        const P t169 = t153 + t162;
        const P t170 = t153 - t162;
        const P t171 = t169 + t144;
        const P t172 = c[0] * t169;
        const P t173 = t144 - t172;
        const P t174 = P(-c[1], c[1]) * t170;
        const P t175 = shuffled<1, 0>(t174);
        const P t176 = t173 + t175;
        const P t177 = t173 - t175;
        // complex block of 9
        const P t178 = c[4] * t158;
        const P t179 = shuffled<1, 0>(t158);
        const P t180 = P(c[5], -c[5]) * t179;
        const P t181 = t178 + t180;
        const P t182 = c[2] * t167;
        const P t183 = shuffled<1, 0>(t167);
        const P t184 = P(c[3], -c[3]) * t183;
        const P t185 = t182 + t184;
        // complex block of 3
        const P t186 = t181 + t185;
        const P t187 = t181 - t185;
        const P t188 = t186 + t149;
        const P t189 = c[0] * t186;
        const P t190 = t149 - t189;
        const P t191 = P(-c[1], c[1]) * t187;
        const P t192 = shuffled<1, 0>(t191);
        const P t193 = t190 + t192;
        const P t194 = t190 - t192;
        // complex block of 9
        const P t195 = c[2] * t159;
        const P t196 = shuffled<1, 0>(t159);
        const P t197 = P(c[3], -c[3]) * t196;
        const P t198 = t195 + t197;
        const P t199 = P(-c[6], c[6]) * t168;
        const P t200 = shuffled<1, 0>(t168);
        const P t201 = c[7] * t200;
        const P t202 = t199 + t201;
        const P t203 = flipped<0, 1>(t202);
        // complex block of 3
        const P t204 = t198 + t203;
        const P t205 = t198 - t203;
        const P t206 = t204 + t150;
        const P t207 = c[0] * t204;
        const P t208 = t150 - t207;
        const P t209 = P(-c[1], c[1]) * t205;
        const P t210 = shuffled<1, 0>(t209);
        const P t211 = t208 + t210;
        const P t212 = t208 - t210;
        // complex block of 3
        const P t213 = t100 + t171;
        const P t214 = t100 - t171;
        const P t215 = t213 + t29;
        io.pair(0, t215);
        const P t216 = c[0] * t213;
        const P t217 = t29 - t216;
        const P t218 = P(-c[1], c[1]) * t214;
        const P t219 = shuffled<1, 0>(t218);
        const P t220 = t217 + t219;
        io.pair(9, t220);
        const P t221 = t217 - t219;
        io.pair(18, t221);
        // complex block of 27
        const P t222 = c[14] * t117;
        const P t223 = shuffled<1, 0>(t117);
        const P t224 = P(c[15], -c[15]) * t223;
        const P t225 = t222 + t224;
        const P t226 = c[8] * t188;
        const P t227 = shuffled<1, 0>(t188);
        const P t228 = P(c[9], -c[9]) * t227;
        const P t229 = t226 + t228;
        // complex block of 3
        const P t230 = t225 + t229;
        const P t231 = t225 - t229;
        const P t232 = t230 + t46;
        io.pair(1, t232);
        const P t233 = c[0] * t230;
        const P t234 = t46 - t233;
        const P t235 = P(-c[1], c[1]) * t231;
        const P t236 = shuffled<1, 0>(t235);
        const P t237 = t234 + t236;
        io.pair(10, t237);
        const P t238 = t234 - t236;
        io.pair(19, t238);
        // complex block of 27
        const P t239 = c[8] * t135;
        const P t240 = shuffled<1, 0>(t135);
        const P t241 = P(c[9], -c[9]) * t240;
        const P t242 = t239 + t241;
        const P t243 = c[10] * t206;
        const P t244 = shuffled<1, 0>(t206);
        const P t245 = P(c[11], -c[11]) * t244;
        const P t246 = t243 + t245;
        // complex block of 3
        const P t247 = t242 + t246;
        const P t248 = t242 - t246;
        const P t249 = t247 + t64;
        io.pair(2, t249);
        const P t250 = c[0] * t247;
        const P t251 = t64 - t250;
        const P t252 = P(-c[1], c[1]) * t248;
        const P t253 = shuffled<1, 0>(t252);
        const P t254 = t251 + t253;
        io.pair(11, t254);
        const P t255 = t251 - t253;
        io.pair(20, t255);
        // complex block of 27
        const P t256 = c[4] * t105;
        const P t257 = shuffled<1, 0>(t105);
        const P t258 = P(c[5], -c[5]) * t257;
        const P t259 = t256 + t258;
        const P t260 = c[2] * t176;
        const P t261 = shuffled<1, 0>(t176);
        const P t262 = P(c[3], -c[3]) * t261;
        const P t263 = t260 + t262;
        // complex block of 3
        const P t264 = t259 + t263;
        const P t265 = t259 - t263;
        const P t266 = t264 + t34;
        io.pair(3, t266);
        const P t267 = c[0] * t264;
        const P t268 = t34 - t267;
        const P t269 = P(-c[1], c[1]) * t265;
        const P t270 = shuffled<1, 0>(t269);
        const P t271 = t268 + t270;
        io.pair(12, t271);
        const P t272 = t268 - t270;
        io.pair(21, t272);
        // complex block of 27
        const P t273 = c[10] * t122;
        const P t274 = shuffled<1, 0>(t122);
        const P t275 = P(c[11], -c[11]) * t274;
        const P t276 = t273 + t275;
        const P t277 = P(-c[12], c[12]) * t193;
        const P t278 = shuffled<1, 0>(t193);
        const P t279 = c[13] * t278;
        const P t280 = t277 + t279;
        const P t281 = flipped<0, 1>(t280);
        // complex block of 3
        const P t282 = t276 + t281;
        const P t283 = t276 - t281;
        const P t284 = t282 + t51;
        io.pair(4, t284);
        const P t285 = c[0] * t282;
        const P t286 = t51 - t285;
        const P t287 = P(-c[1], c[1]) * t283;
        const P t288 = shuffled<1, 0>(t287);
        const P t289 = t286 + t288;
        io.pair(13, t289);
        const P t290 = t286 - t288;
        io.pair(22, t290);
        // complex block of 27
        const P t291 = c[16] * t140;
        const P t292 = shuffled<1, 0>(t140);
        const P t293 = P(c[17], -c[17]) * t292;
        const P t294 = t291 + t293;
        const P t295 = P(-c[18], c[18]) * t211;
        const P t296 = shuffled<1, 0>(t211);
        const P t297 = c[19] * t296;
        const P t298 = t295 + t297;
        const P t299 = flipped<0, 1>(t298);
        // complex block of 3
        const P t300 = t294 + t299;
        const P t301 = t294 - t299;
        const P t302 = t300 + t69;
        io.pair(5, t302);
        const P t303 = c[0] * t300;
        const P t304 = t69 - t303;
        const P t305 = P(-c[1], c[1]) * t301;
        const P t306 = shuffled<1, 0>(t305);
        const P t307 = t304 + t306;
        io.pair(14, t307);
        const P t308 = t304 - t306;
        io.pair(23, t308);
        // complex block of 27
        const P t309 = c[2] * t106;
        const P t310 = shuffled<1, 0>(t106);
        const P t311 = P(c[3], -c[3]) * t310;
        const P t312 = t309 + t311;
        const P t313 = P(-c[6], c[6]) * t177;
        const P t314 = shuffled<1, 0>(t177);
        const P t315 = c[7] * t314;
        const P t316 = t313 + t315;
        const P t317 = flipped<0, 1>(t316);
        // complex block of 3
        const P t318 = t312 + t317;
        const P t319 = t312 - t317;
        const P t320 = t318 + t35;
        io.pair(6, t320);
        const P t321 = c[0] * t318;
        const P t322 = t35 - t321;
        const P t323 = P(-c[1], c[1]) * t319;
        const P t324 = shuffled<1, 0>(t323);
        const P t325 = t322 + t324;
        io.pair(15, t325);
        const P t326 = t322 - t324;
        io.pair(24, t326);
        // complex block of 27
        const P t327 = P(-c[20], c[20]) * t123;
        const P t328 = shuffled<1, 0>(t123);
        const P t329 = c[21] * t328;
        const P t330 = t327 + t329;
        const P t331 = shuffled<1, 0>(t194);
        const P t332 = c[22] * t331;
        const P t333 = P(c[23], -c[23]) * t194;
        const P t334 = t332 + t333;
        const P t335 = shuffled<0, 3>(t330, t334);
        const P t336 = shuffled<0, 3>(t334, t330);
        // complex block of 3
        const P t337 = t335 - t336;
        const P t338 = t330 + t334;
        const P t339 = t337 + t52;
        io.pair(7, t339);
        const P t340 = c[0] * t337;
        const P t341 = t52 - t340;
        const P t342 = c[1] * t338;
        const P t343 = shuffled<1, 0>(t342);
        const P t344 = t341 - t343;
        io.pair(16, t344);
        const P t345 = t341 + t343;
        io.pair(25, t345);
        // complex block of 27
        const P t346 = P(-c[12], c[12]) * t141;
        const P t347 = shuffled<1, 0>(t141);
        const P t348 = c[13] * t347;
        const P t349 = t346 + t348;
        const P t350 = shuffled<1, 0>(t212);
        const P t351 = c[24] * t350;
        const P t352 = P(c[25], -c[25]) * t212;
        const P t353 = t351 + t352;
        const P t354 = shuffled<0, 3>(t349, t353);
        const P t355 = shuffled<0, 3>(t353, t349);
        // complex block of 3
        const P t356 = t354 - t355;
        const P t357 = t349 + t353;
        const P t358 = t356 + t70;
        io.pair(8, t358);
        const P t359 = c[0] * t356;
        const P t360 = t70 - t359;
        const P t361 = c[1] * t357;
        const P t362 = shuffled<1, 0>(t361);
        const P t363 = t360 - t362;
        io.pair(17, t363);
        const P t364 = t360 + t362;
        io.pair(26, t364);
    }
};

}  // namespace zulg
