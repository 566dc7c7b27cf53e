// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 45.
// Complex DFT of 45 points, prime-factor, order 9, 5; two lines of a stage to a register.
// 106 sums, 77 differences, 90 products of registers, which do the 1122 steps of the graph, those with
// `scale` included; 68 shuffles, 17 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<45> {
    static constexpr int steps = 1122;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.30901699437494745,  // c[2]: cos 2 pi 1/5
        0.8090169943749475,  // c[3]: -cos 2 pi 3/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5877852522924731,  // c[5]: -sin 2 pi 3/5
        0.766044443118978,  // c[6]: cos 2 pi 1/9
        0.6427876096865394,  // c[7]: sin 2 pi 1/9
        0.3420201433256687,  // c[8]: -sin 2 pi 5/9
        0.9396926207859084,  // c[9]: -cos 2 pi 5/9
        0.17364817766693036,  // c[10]: cos 2 pi 2/9
        0.984807753012208,  // c[11]: sin 2 pi 2/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x15_24 = io.pairs(15, 24);
        const Q x30_39 = io.pairs(30, 39);
        // complex block of 3, multiplier 2
        const Q t0 = x15_24 + x30_39;
        const Q t1 = x15_24 - x30_39;
        const Q x0_9 = io.pairs(0, 9);
        const Q t2 = t0 + x0_9;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_9 - t3;
        const Q t5 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x20_29 = io.pairs(20, 29);
        const Q x35_44 = io.pairs(35, 44);
        // complex block of 3, multiplier 2
        const Q t9 = x20_29 + x35_44;
        const Q t10 = x20_29 - x35_44;
        const Q x5_14 = io.pairs(5, 14);
        const Q t11 = t9 + x5_14;
        const Q t12 = c[0] * t9;
        const Q t13 = x5_14 - t12;
        const Q t14 = Q(-c[1], c[1], -c[1], c[1]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x25_34 = io.pairs(25, 34);
        const Q x40_4 = io.pairs(40, 4);
        // complex block of 3, multiplier 2
        const Q t18 = x25_34 + x40_4;
        const Q t19 = x25_34 - x40_4;
        const Q x10_19 = io.pairs(10, 19);
        const Q t20 = t18 + x10_19;
        const Q t21 = c[0] * t18;
        const Q t22 = x10_19 - t21;
        const Q t23 = Q(-c[1], c[1], -c[1], c[1]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        // complex block of 3, multiplier 2
        const Q t27 = t11 + t20;
        const Q t28 = t11 - t20;
        const Q t29 = t27 + t2;
        const Q t30 = c[0] * t27;
        const Q t31 = t2 - t30;
        const Q t32 = Q(-c[1], c[1], -c[1], c[1]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        const Q t36 = shuffled<1, 0, 3, 2>(t17);
        // complex block of 9, multiplier 5
        const Q t37 = c[8] * t36;
        const Q t38 = Q(c[9], -c[9], c[9], -c[9]) * t17;
        const Q t39 = t37 + t38;
        const Q t40 = c[6] * t26;
        const Q t41 = shuffled<1, 0, 3, 2>(t26);
        const Q t42 = Q(c[7], -c[7], c[7], -c[7]) * t41;
        const Q t43 = t40 + t42;
        const Q t44 = flipped<1, 0, 1, 0>(t39);
        // complex block of 3, multiplier 2
        const Q t45 = t44 + t43;
        const Q t46 = flipped<0, 1, 0, 1>(t43);
        const Q t47 = t39 + t46;
        const Q t48 = t45 + t8;
        const Q t49 = c[0] * t45;
        const Q t50 = t8 - t49;
        const Q t51 = c[1] * t47;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = t50 + t52;
        const Q t54 = t50 - t52;
        // complex block of 9, multiplier 5
        const Q t55 = c[6] * t16;
        const Q t56 = shuffled<1, 0, 3, 2>(t16);
        const Q t57 = Q(c[7], -c[7], c[7], -c[7]) * t56;
        const Q t58 = t55 + t57;
        const Q t59 = c[10] * t25;
        const Q t60 = shuffled<1, 0, 3, 2>(t25);
        const Q t61 = Q(c[11], -c[11], c[11], -c[11]) * t60;
        const Q t62 = t59 + t61;
        // complex block of 3, multiplier 2
        const Q t63 = t58 + t62;
        const Q t64 = t58 - t62;
        const Q t65 = t63 + t7;
        const Q t66 = c[0] * t63;
        const Q t67 = t7 - t66;
        const Q t68 = Q(-c[1], c[1], -c[1], c[1]) * t64;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        const Q t70 = t67 + t69;
        const Q t71 = t67 - t69;
        const Q x33_42 = io.pairs(33, 42);
        const Q x3_12 = io.pairs(3, 12);
        // complex block of 3, multiplier 2
        const Q t72 = x33_42 + x3_12;
        const Q t73 = x33_42 - x3_12;
        const Q x18_27 = io.pairs(18, 27);
        const Q t74 = t72 + x18_27;
        const Q t75 = c[0] * t72;
        const Q t76 = x18_27 - t75;
        const Q t77 = Q(-c[1], c[1], -c[1], c[1]) * t73;
        const Q t78 = shuffled<1, 0, 3, 2>(t77);
        const Q t79 = t76 + t78;
        const Q t80 = t76 - t78;
        const Q x38_2 = io.pairs(38, 2);
        const Q x8_17 = io.pairs(8, 17);
        // complex block of 3, multiplier 2
        const Q t81 = x38_2 + x8_17;
        const Q t82 = x38_2 - x8_17;
        const Q x23_32 = io.pairs(23, 32);
        const Q t83 = t81 + x23_32;
        const Q t84 = c[0] * t81;
        const Q t85 = x23_32 - t84;
        const Q t86 = Q(-c[1], c[1], -c[1], c[1]) * t82;
        const Q t87 = shuffled<1, 0, 3, 2>(t86);
        const Q t88 = t85 + t87;
        const Q t89 = t85 - t87;
        const Q x43_7 = io.pairs(43, 7);
        const Q x13_22 = io.pairs(13, 22);
        // complex block of 3, multiplier 2
        const Q t90 = x43_7 + x13_22;
        const Q t91 = x43_7 - x13_22;
        const Q x28_37 = io.pairs(28, 37);
        const Q t92 = t90 + x28_37;
        const Q t93 = c[0] * t90;
        const Q t94 = x28_37 - t93;
        const Q t95 = Q(-c[1], c[1], -c[1], c[1]) * t91;
        const Q t96 = shuffled<1, 0, 3, 2>(t95);
        const Q t97 = t94 + t96;
        const Q t98 = t94 - t96;
        // complex block of 3, multiplier 2
        const Q t99 = t83 + t92;
        const Q t100 = t83 - t92;
        const Q t101 = t99 + t74;
        const Q t102 = c[0] * t99;
        const Q t103 = t74 - t102;
        const Q t104 = Q(-c[1], c[1], -c[1], c[1]) * t100;
        const Q t105 = shuffled<1, 0, 3, 2>(t104);
        const Q t106 = t103 + t105;
        const Q t107 = t103 - t105;
        const Q t108 = shuffled<1, 0, 3, 2>(t89);
        // complex block of 9, multiplier 5
        const Q t109 = c[8] * t108;
        const Q t110 = Q(c[9], -c[9], c[9], -c[9]) * t89;
        const Q t111 = t109 + t110;
        const Q t112 = c[6] * t98;
        const Q t113 = shuffled<1, 0, 3, 2>(t98);
        const Q t114 = Q(c[7], -c[7], c[7], -c[7]) * t113;
        const Q t115 = t112 + t114;
        const Q t116 = flipped<1, 0, 1, 0>(t111);
        // complex block of 3, multiplier 2
        const Q t117 = t116 + t115;
        const Q t118 = flipped<0, 1, 0, 1>(t115);
        const Q t119 = t111 + t118;
        const Q t120 = t117 + t80;
        const Q t121 = c[0] * t117;
        const Q t122 = t80 - t121;
        const Q t123 = c[1] * t119;
        const Q t124 = shuffled<1, 0, 3, 2>(t123);
        const Q t125 = t122 + t124;
        const Q t126 = t122 - t124;
        // complex block of 9, multiplier 5
        const Q t127 = c[6] * t88;
        const Q t128 = shuffled<1, 0, 3, 2>(t88);
        const Q t129 = Q(c[7], -c[7], c[7], -c[7]) * t128;
        const Q t130 = t127 + t129;
        const Q t131 = c[10] * t97;
        const Q t132 = shuffled<1, 0, 3, 2>(t97);
        const Q t133 = Q(c[11], -c[11], c[11], -c[11]) * t132;
        const Q t134 = t131 + t133;
        // complex block of 3, multiplier 2
        const Q t135 = t130 + t134;
        const Q t136 = t130 - t134;
        const Q t137 = t135 + t79;
        const Q t138 = c[0] * t135;
        const Q t139 = t79 - t138;
        const Q t140 = Q(-c[1], c[1], -c[1], c[1]) * t136;
        const Q t141 = shuffled<1, 0, 3, 2>(t140);
        const Q t142 = t139 + t141;
        const Q t143 = t139 - t141;
        const Q x6_11 = io.pairs(6, 11);
        const Q x21_26 = io.pairs(21, 26);
        // complex block of 3, multiplier 2
        const Q t144 = x6_11 + x21_26;
        const Q t145 = x6_11 - x21_26;
        const Q x36_41 = io.pairs(36, 41);
        const Q t146 = t144 + x36_41;
        const Q t147 = c[0] * t144;
        const Q t148 = x36_41 - t147;
        const Q t149 = Q(-c[1], c[1], -c[1], c[1]) * t145;
        const Q t150 = shuffled<1, 0, 3, 2>(t149);
        const Q t151 = t148 + t150;
        const Q t152 = t148 - t150;
        const P x16 = io.pair(16);
        const P x31 = io.pair(31);
        // complex block of 3, multiplier 2
        const P t153 = x16 + x31;
        const P x1 = io.pair(1);
        const P t154 = t153 + x1;
        const P t155 = part<1>(t146);
        const V t156 = part<0>(t155);
        const V t157 = part<0>(t154);
        // complex block of 3, multiplier 2
        const V t158 = t156 + t157;
        const V t159 = part<1>(t155);
        const V t160 = part<1>(t154);
        const V t161 = t159 + t160;
        const Q t162 = joined(x16, t155);
        const Q t163 = joined(x31, t154);
        // complex block of 3, multiplier 2
        const Q t164 = t162 - t163;
        const P t165 = joined(t158, t161);
        const P t166 = part<0>(t146);
        // complex block of 3, multiplier 2
        const P t167 = t165 + t166;
        const Q t168 = joined(x1, t166);
        const Q t169 = joined(t153, t165);
        // complex block of 3, multiplier 2
        const Q t170 = c[0] * t169;
        const Q t171 = t168 - t170;
        const Q t172 = Q(-c[1], c[1], -c[1], c[1]) * t164;
        const Q t173 = shuffled<1, 0, 3, 2>(t172);
        const Q t174 = t171 + t173;
        const Q t175 = t171 - t173;
        const Q t176 = shuffled<0, 1, 6, 7>(t175, t151);
        // complex block of 9, multiplier 5
        const Q t177 = c[6] * t176;
        const Q t178 = shuffled<1, 0, 3, 2>(t176);
        const Q t179 = Q(c[7], -c[7], c[7], -c[7]) * t178;
        const Q t180 = t177 + t179;
        const Q t181 = shuffled<2, 3, 4, 5>(t152, t174);
        const Q t182 = Q(c[9], -c[9], c[10], c[10]) * t181;
        const Q t183 = shuffled<1, 0, 3, 2>(t181);
        const Q t184 = Q(c[8], c[8], c[11], -c[11]) * t183;
        const Q t185 = t182 + t184;
        const Q t186 = flipped<1, 0, 0, 0>(t185);
        // complex block of 3, multiplier 2
        const Q t187 = t180 + t186;
        const Q t188 = flipped<0, 1, 0, 0>(t180);
        const Q t189 = flipped<1, 0, 1, 1>(t186);
        const Q t190 = t188 + t189;
        const Q t191 = shuffled<0, 1, 4, 5>(t152, t151);
        const Q t192 = t187 + t191;
        const Q t193 = c[0] * t187;
        const Q t194 = t191 - t193;
        const Q t195 = Q(c[1], c[1], -c[1], c[1]) * t190;
        const Q t196 = shuffled<1, 0, 3, 2>(t195);
        const Q t197 = t194 + t196;
        const Q t198 = t194 - t196;
        const Q t199 = shuffled<2, 3, 6, 7>(t29, t48);
        const P t200 = part<0>(t192);
        const Q t201 = joined(t167, t200);
        // complex block of 5, multiplier 4
        const Q t202 = t199 + t201;
        const Q t203 = t199 - t201;
        const Q t204 = shuffled<2, 3, 6, 7>(t101, t120);
        const Q t205 = shuffled<0, 1, 4, 5>(t101, t120);
        const Q t206 = t204 + t205;
        const Q t207 = t204 - t205;
        const Q t208 = t202 + t206;
        const Q t209 = shuffled<0, 1, 4, 5>(t29, t48);
        const Q t210 = t208 + t209;
        io.pairs(0, 5, t210);
        const Q t211 = c[2] * t202;
        const Q t212 = c[3] * t206;
        const Q t213 = t211 - t212;
        const Q t214 = t213 + t209;
        const Q t215 = c[4] * t203;
        const Q t216 = c[5] * t207;
        const Q t217 = t215 - t216;
        const Q t218 = shuffled<1, 0, 3, 2>(t217);
        const Q t219 = flipped<0, 1, 0, 1>(t218);
        const Q t220 = t214 + t219;
        io.pairs(36, 41, t220);
        const Q t221 = t214 - t219;
        io.pairs(9, 14, t221);
        const Q t222 = c[3] * t202;
        const Q t223 = t209 - t222;
        const Q t224 = c[2] * t206;
        const Q t225 = t223 + t224;
        const Q t226 = c[5] * t203;
        const Q t227 = c[4] * t207;
        const Q t228 = t226 + t227;
        const Q t229 = shuffled<1, 0, 3, 2>(t228);
        const Q t230 = flipped<0, 1, 0, 1>(t229);
        const Q t231 = t225 + t230;
        io.pairs(27, 32, t231);
        const Q t232 = t225 - t230;
        io.pairs(18, 23, t232);
        const Q t233 = shuffled<2, 3, 6, 7>(t65, t35);
        const Q t234 = shuffled<2, 3, 6, 7>(t192, t175);
        // complex block of 5, multiplier 4
        const Q t235 = t233 + t234;
        const Q t236 = t233 - t234;
        const Q t237 = shuffled<2, 3, 6, 7>(t137, t107);
        const Q t238 = shuffled<0, 1, 4, 5>(t137, t107);
        const Q t239 = t237 + t238;
        const Q t240 = t237 - t238;
        const Q t241 = t235 + t239;
        const Q t242 = shuffled<0, 1, 4, 5>(t65, t35);
        const Q t243 = t241 + t242;
        io.pairs(10, 15, t243);
        const Q t244 = c[2] * t235;
        const Q t245 = c[3] * t239;
        const Q t246 = t244 - t245;
        const Q t247 = t246 + t242;
        const Q t248 = c[4] * t236;
        const Q t249 = c[5] * t240;
        const Q t250 = t248 - t249;
        const Q t251 = shuffled<1, 0, 3, 2>(t250);
        const Q t252 = flipped<0, 1, 0, 1>(t251);
        const Q t253 = t247 + t252;
        io.pairs(1, 6, t253);
        const Q t254 = t247 - t252;
        io.pairs(19, 24, t254);
        const Q t255 = c[3] * t235;
        const Q t256 = t242 - t255;
        const Q t257 = c[2] * t239;
        const Q t258 = t256 + t257;
        const Q t259 = c[5] * t236;
        const Q t260 = c[4] * t240;
        const Q t261 = t259 + t260;
        const Q t262 = shuffled<1, 0, 3, 2>(t261);
        const Q t263 = flipped<0, 1, 0, 1>(t262);
        const Q t264 = t258 + t263;
        io.pairs(37, 42, t264);
        const Q t265 = t258 - t263;
        io.pairs(28, 33, t265);
        const Q t266 = shuffled<2, 3, 6, 7>(t54, t71);
        // complex block of 5, multiplier 4
        const Q t267 = t266 + t198;
        const Q t268 = t266 - t198;
        const Q t269 = shuffled<2, 3, 6, 7>(t126, t143);
        const Q t270 = shuffled<0, 1, 4, 5>(t126, t143);
        const Q t271 = t269 + t270;
        const Q t272 = t269 - t270;
        const Q t273 = t267 + t271;
        const Q t274 = shuffled<0, 1, 4, 5>(t54, t71);
        const Q t275 = t273 + t274;
        io.pairs(20, 25, t275);
        const Q t276 = c[2] * t267;
        const Q t277 = c[3] * t271;
        const Q t278 = t276 - t277;
        const Q t279 = t278 + t274;
        const Q t280 = c[4] * t268;
        const Q t281 = c[5] * t272;
        const Q t282 = t280 - t281;
        const Q t283 = shuffled<1, 0, 3, 2>(t282);
        const Q t284 = flipped<0, 1, 0, 1>(t283);
        const Q t285 = t279 + t284;
        io.pairs(11, 16, t285);
        const Q t286 = t279 - t284;
        io.pairs(29, 34, t286);
        const Q t287 = c[3] * t267;
        const Q t288 = t274 - t287;
        const Q t289 = c[2] * t271;
        const Q t290 = t288 + t289;
        const Q t291 = c[5] * t268;
        const Q t292 = c[4] * t272;
        const Q t293 = t291 + t292;
        const Q t294 = shuffled<1, 0, 3, 2>(t293);
        const Q t295 = flipped<0, 1, 0, 1>(t294);
        const Q t296 = t290 + t295;
        io.pairs(2, 7, t296);
        const Q t297 = t290 - t295;
        io.pairs(38, 43, t297);
        const Q t298 = shuffled<2, 3, 6, 7>(t34, t53);
        const Q t299 = shuffled<2, 3, 4, 5>(t174, t197);
        // complex block of 5, multiplier 4
        const Q t300 = t298 + t299;
        const Q t301 = t298 - t299;
        const Q t302 = shuffled<2, 3, 6, 7>(t106, t125);
        const Q t303 = shuffled<0, 1, 4, 5>(t106, t125);
        const Q t304 = t302 + t303;
        const Q t305 = t302 - t303;
        const Q t306 = t300 + t304;
        const Q t307 = shuffled<0, 1, 4, 5>(t34, t53);
        const Q t308 = t306 + t307;
        io.pairs(30, 35, t308);
        const Q t309 = c[2] * t300;
        const Q t310 = c[3] * t304;
        const Q t311 = t309 - t310;
        const Q t312 = t311 + t307;
        const Q t313 = c[4] * t301;
        const Q t314 = c[5] * t305;
        const Q t315 = t313 - t314;
        const Q t316 = shuffled<1, 0, 3, 2>(t315);
        const Q t317 = flipped<0, 1, 0, 1>(t316);
        const Q t318 = t312 + t317;
        io.pairs(21, 26, t318);
        const Q t319 = t312 - t317;
        io.pairs(39, 44, t319);
        const Q t320 = c[3] * t300;
        const Q t321 = t307 - t320;
        const Q t322 = c[2] * t304;
        const Q t323 = t321 + t322;
        const Q t324 = c[5] * t301;
        const Q t325 = c[4] * t305;
        const Q t326 = t324 + t325;
        const Q t327 = shuffled<1, 0, 3, 2>(t326);
        const Q t328 = flipped<0, 1, 0, 1>(t327);
        const Q t329 = t323 + t328;
        io.pairs(12, 17, t329);
        const Q t330 = t323 - t328;
        io.pairs(3, 8, t330);
        const P t331 = part<1>(t70);
        const P t332 = part<1>(t197);
        // complex block of 5, multiplier 4
        const P t333 = t331 + t332;
        const P t334 = t331 - t332;
        const P t335 = part<1>(t142);
        const P t336 = part<0>(t142);
        const P t337 = t335 + t336;
        const P t338 = t335 - t336;
        const P t339 = t333 + t337;
        const P t340 = part<0>(t70);
        const P t341 = t339 + t340;
        io.pair(40, t341);
        const P t342 = c[2] * t333;
        const P t343 = c[3] * t337;
        const P t344 = t342 - t343;
        const P t345 = t344 + t340;
        const P t346 = c[4] * t334;
        const P t347 = c[5] * t338;
        const P t348 = t346 - t347;
        const P t349 = shuffled<1, 0>(t348);
        const P t350 = flipped<0, 1>(t349);
        const P t351 = t345 + t350;
        io.pair(31, t351);
        const P t352 = t345 - t350;
        io.pair(4, t352);
        const P t353 = c[3] * t333;
        const P t354 = t340 - t353;
        const P t355 = c[2] * t337;
        const P t356 = t354 + t355;
        const P t357 = c[5] * t334;
        const P t358 = c[4] * t338;
        const P t359 = t357 + t358;
        const P t360 = shuffled<1, 0>(t359);
        const P t361 = flipped<0, 1>(t360);
        const P t362 = t356 + t361;
        io.pair(22, t362);
        const P t363 = t356 - t361;
        io.pair(13, t363);
    }
};

}  // namespace zulg
