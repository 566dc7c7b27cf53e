// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 45.
// Complex DFT of 45 points, prime-factor, order 9, 5; two lines of a stage to a register.
// 106 sums, 77 differences, 90 products of registers, which do the 1122 steps of the graph, those with
// `scale` included; 91 shuffles, 17 changes of sign.
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
        0.17364817766693036,  // c[8]: cos 2 pi 2/9
        0.984807753012208,  // c[9]: sin 2 pi 2/9
        0.3420201433256687,  // c[10]: -sin 2 pi 5/9
        0.9396926207859084,  // c[11]: -cos 2 pi 5/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x25_16 = io.pairs(25, 16);
        const Q x40_31 = io.pairs(40, 31);
        // complex block of 3, multiplier 2
        const Q t0 = x25_16 + x40_31;
        const Q t1 = x25_16 - x40_31;
        const Q x10_1 = io.pairs(10, 1);
        const Q t2 = t0 + x10_1;
        const Q t3 = c[0] * t0;
        const Q t4 = x10_1 - t3;
        const Q x20_11 = io.pairs(20, 11);
        const Q x35_26 = io.pairs(35, 26);
        // complex block of 3, multiplier 2
        const Q t5 = x20_11 + x35_26;
        const Q t6 = x20_11 - x35_26;
        const Q x5_41 = io.pairs(5, 41);
        const Q t7 = t5 + x5_41;
        const Q t8 = c[0] * t5;
        const Q t9 = x5_41 - t8;
        const Q x15_6 = io.pairs(15, 6);
        const Q x30_21 = io.pairs(30, 21);
        // complex block of 3, multiplier 2
        const Q t10 = x15_6 + x30_21;
        const Q t11 = x15_6 - x30_21;
        const Q x0_36 = io.pairs(0, 36);
        const Q t12 = t10 + x0_36;
        // complex block of 3, multiplier 2
        const Q t13 = t7 + t2;
        const Q t14 = t13 + t12;
        const Q t15 = c[0] * t13;
        const Q t16 = t12 - t15;
        // complex block of 3, multiplier 2
        const Q t17 = c[0] * t10;
        const Q t18 = x0_36 - t17;
        const Q t19 = Q(-c[1], c[1], -c[1], c[1]) * t11;
        const Q t20 = shuffled<1, 0, 3, 2>(t19);
        const Q t21 = t18 + t20;
        const Q t22 = t18 - t20;
        // complex block of 3, multiplier 2
        const Q t23 = Q(-c[1], c[1], -c[1], c[1]) * t6;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t9 + t24;
        // complex block of 3, multiplier 2
        const Q t26 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t27 = shuffled<1, 0, 3, 2>(t26);
        const Q t28 = t4 + t27;
        // complex block of 9, multiplier 5
        const Q t29 = c[6] * t25;
        const Q t30 = shuffled<1, 0, 3, 2>(t25);
        const Q t31 = Q(c[7], -c[7], c[7], -c[7]) * t30;
        const Q t32 = t29 + t31;
        const Q t33 = c[8] * t28;
        const Q t34 = shuffled<1, 0, 3, 2>(t28);
        const Q t35 = Q(c[9], -c[9], c[9], -c[9]) * t34;
        const Q t36 = t33 + t35;
        // complex block of 3, multiplier 2
        const Q t37 = t32 + t36;
        const Q t38 = t32 - t36;
        // complex block of 3, multiplier 2
        const Q t39 = t9 - t24;
        // complex block of 3, multiplier 2
        const Q t40 = t4 - t27;
        const Q t41 = shuffled<1, 0, 3, 2>(t39);
        // complex block of 9, multiplier 5
        const Q t42 = c[10] * t41;
        const Q t43 = Q(c[11], -c[11], c[11], -c[11]) * t39;
        const Q t44 = t42 + t43;
        const Q t45 = c[6] * t40;
        const Q t46 = shuffled<1, 0, 3, 2>(t40);
        const Q t47 = Q(c[7], -c[7], c[7], -c[7]) * t46;
        const Q t48 = t45 + t47;
        const Q t49 = flipped<1, 0, 1, 0>(t44);
        // complex block of 3, multiplier 2
        const Q t50 = t49 + t48;
        const Q t51 = flipped<0, 1, 0, 1>(t48);
        const Q t52 = t44 + t51;
        // complex block of 3, multiplier 2
        const Q t53 = t7 - t2;
        const Q x42_2 = io.pairs(42, 2);
        const Q x12_17 = io.pairs(12, 17);
        // complex block of 3, multiplier 2
        const Q t54 = x42_2 + x12_17;
        const Q t55 = x42_2 - x12_17;
        const Q x27_32 = io.pairs(27, 32);
        const Q t56 = t54 + x27_32;
        const P x7 = io.pair(7);
        const P x22 = io.pair(22);
        // complex block of 3, multiplier 2
        const P t57 = x7 + x22;
        const P x37 = io.pair(37);
        const P t58 = t57 + x37;
        // complex block of 3, multiplier 2
        const Q t59 = c[0] * t54;
        const Q t60 = x27_32 - t59;
        const P t61 = part<1>(t56);
        const V t62 = part<0>(t61);
        const V t63 = part<0>(t58);
        // complex block of 3, multiplier 2
        const V t64 = t62 + t63;
        const V t65 = part<1>(t61);
        const V t66 = part<1>(t58);
        const V t67 = t65 + t66;
        const Q t68 = joined(x7, t61);
        const Q t69 = joined(x22, t58);
        // complex block of 3, multiplier 2
        const Q t70 = t68 - t69;
        // complex block of 3, multiplier 2
        const Q t71 = Q(-c[1], c[1], -c[1], c[1]) * t55;
        const Q t72 = shuffled<1, 0, 3, 2>(t71);
        const Q t73 = t60 + t72;
        const Q t74 = t60 - t72;
        const P t75 = part<0>(t56);
        const Q t76 = joined(x37, t75);
        const P t77 = joined(t64, t67);
        const Q t78 = joined(t57, t77);
        // complex block of 3, multiplier 2
        const Q t79 = c[0] * t78;
        const Q t80 = t76 - t79;
        const Q t81 = Q(-c[1], c[1], -c[1], c[1]) * t70;
        const Q t82 = shuffled<1, 0, 3, 2>(t81);
        const Q t83 = t80 + t82;
        const Q t84 = t80 - t82;
        const Q t85 = shuffled<0, 1, 6, 7>(t84, t73);
        // complex block of 9, multiplier 5
        const Q t86 = c[6] * t85;
        const Q t87 = shuffled<1, 0, 3, 2>(t85);
        const Q t88 = Q(c[7], -c[7], c[7], -c[7]) * t87;
        const Q t89 = t86 + t88;
        const Q t90 = shuffled<2, 3, 4, 5>(t74, t83);
        const Q t91 = Q(c[11], -c[11], c[8], c[8]) * t90;
        const Q t92 = shuffled<1, 0, 3, 2>(t90);
        const Q t93 = Q(c[10], c[10], c[9], -c[9]) * t92;
        const Q t94 = t91 + t93;
        // complex block of 3, multiplier 2
        const P t95 = t77 + t75;
        const Q x33_24 = io.pairs(33, 24);
        const Q x3_39 = io.pairs(3, 39);
        // complex block of 3, multiplier 2
        const Q t96 = x33_24 + x3_39;
        const Q t97 = x33_24 - x3_39;
        const Q x43_34 = io.pairs(43, 34);
        const Q x13_4 = io.pairs(13, 4);
        // complex block of 3, multiplier 2
        const Q t98 = x43_34 + x13_4;
        const Q t99 = x43_34 - x13_4;
        const Q x28_19 = io.pairs(28, 19);
        const Q t100 = t98 + x28_19;
        const Q t101 = c[0] * t98;
        const Q t102 = x28_19 - t101;
        const Q x38_29 = io.pairs(38, 29);
        const Q x8_44 = io.pairs(8, 44);
        // complex block of 3, multiplier 2
        const Q t103 = x38_29 + x8_44;
        const Q t104 = x38_29 - x8_44;
        const Q x23_14 = io.pairs(23, 14);
        const Q t105 = t103 + x23_14;
        const Q t106 = c[0] * t103;
        const Q t107 = x23_14 - t106;
        const Q x18_9 = io.pairs(18, 9);
        // complex block of 3, multiplier 2
        const Q t108 = t96 + x18_9;
        // complex block of 3, multiplier 2
        const Q t109 = t105 + t100;
        const Q t110 = t109 + t108;
        const Q t111 = c[0] * t109;
        const Q t112 = t108 - t111;
        // complex block of 3, multiplier 2
        const Q t113 = c[0] * t96;
        const Q t114 = x18_9 - t113;
        const Q t115 = Q(-c[1], c[1], -c[1], c[1]) * t97;
        const Q t116 = shuffled<1, 0, 3, 2>(t115);
        const Q t117 = t114 + t116;
        const Q t118 = t114 - t116;
        // complex block of 3, multiplier 2
        const Q t119 = Q(-c[1], c[1], -c[1], c[1]) * t104;
        const Q t120 = shuffled<1, 0, 3, 2>(t119);
        const Q t121 = t107 + t120;
        // complex block of 3, multiplier 2
        const Q t122 = Q(-c[1], c[1], -c[1], c[1]) * t99;
        const Q t123 = shuffled<1, 0, 3, 2>(t122);
        const Q t124 = t102 + t123;
        // complex block of 9, multiplier 5
        const Q t125 = c[6] * t121;
        const Q t126 = shuffled<1, 0, 3, 2>(t121);
        const Q t127 = Q(c[7], -c[7], c[7], -c[7]) * t126;
        const Q t128 = t125 + t127;
        const Q t129 = c[8] * t124;
        const Q t130 = shuffled<1, 0, 3, 2>(t124);
        const Q t131 = Q(c[9], -c[9], c[9], -c[9]) * t130;
        const Q t132 = t129 + t131;
        // complex block of 3, multiplier 2
        const Q t133 = t128 + t132;
        const Q t134 = t128 - t132;
        // complex block of 3, multiplier 2
        const Q t135 = t107 - t120;
        // complex block of 3, multiplier 2
        const Q t136 = t102 - t123;
        const Q t137 = shuffled<1, 0, 3, 2>(t135);
        // complex block of 9, multiplier 5
        const Q t138 = c[10] * t137;
        const Q t139 = Q(c[11], -c[11], c[11], -c[11]) * t135;
        const Q t140 = t138 + t139;
        const Q t141 = c[6] * t136;
        const Q t142 = shuffled<1, 0, 3, 2>(t136);
        const Q t143 = Q(c[7], -c[7], c[7], -c[7]) * t142;
        const Q t144 = t141 + t143;
        const Q t145 = flipped<1, 0, 1, 0>(t140);
        // complex block of 3, multiplier 2
        const Q t146 = t145 + t144;
        const Q t147 = flipped<0, 1, 0, 1>(t144);
        const Q t148 = t140 + t147;
        // complex block of 3, multiplier 2
        const Q t149 = t105 - t100;
        const Q t150 = Q(-c[1], c[1], -c[1], c[1]) * t149;
        const Q t151 = shuffled<1, 0, 3, 2>(t150);
        const Q t152 = t112 + t151;
        const Q t153 = t112 - t151;
        // complex block of 3, multiplier 2
        const Q t154 = t146 + t118;
        // complex block of 3, multiplier 2
        const Q t155 = Q(c[1], -c[1], c[1], -c[1]) * t53;
        const Q t156 = shuffled<1, 0, 3, 2>(t155);
        const Q t157 = t16 + t156;
        // complex block of 3, multiplier 2
        const Q t158 = t50 + t22;
        const Q t159 = shuffled<2, 3, 6, 7>(t154, t153);
        const Q t160 = shuffled<2, 3, 6, 7>(t158, t157);
        // complex block of 5, multiplier 4
        const Q t161 = t159 + t160;
        const Q t162 = t159 - t160;
        // complex block of 3, multiplier 2
        const Q t163 = c[0] * t146;
        const Q t164 = t118 - t163;
        // complex block of 3, multiplier 2
        const Q t165 = t133 + t117;
        // complex block of 3, multiplier 2
        const Q t166 = t37 + t21;
        const Q t167 = shuffled<2, 3, 6, 7>(t110, t165);
        const Q t168 = shuffled<2, 3, 6, 7>(t14, t166);
        // complex block of 5, multiplier 4
        const Q t169 = t167 + t168;
        const Q t170 = t167 - t168;
        // complex block of 3, multiplier 2
        const Q t171 = c[0] * t133;
        const Q t172 = t117 - t171;
        const Q t173 = flipped<1, 0, 0, 0>(t94);
        // complex block of 3, multiplier 2
        const Q t174 = t89 + t173;
        const Q t175 = shuffled<0, 1, 4, 5>(t74, t73);
        const Q t176 = t174 + t175;
        const Q t177 = c[0] * t174;
        const Q t178 = t175 - t177;
        const Q t179 = flipped<0, 1, 0, 0>(t89);
        const Q t180 = flipped<1, 0, 1, 1>(t173);
        const Q t181 = t179 + t180;
        // complex block of 3, multiplier 2
        const Q t182 = t16 - t156;
        // complex block of 3, multiplier 2
        const Q t183 = c[0] * t50;
        const Q t184 = t22 - t183;
        // complex block of 3, multiplier 2
        const Q t185 = c[0] * t37;
        const Q t186 = t21 - t185;
        // complex block of 3, multiplier 2
        const Q t187 = c[1] * t148;
        const Q t188 = shuffled<1, 0, 3, 2>(t187);
        const Q t189 = t164 + t188;
        const Q t190 = t164 - t188;
        // complex block of 3, multiplier 2
        const Q t191 = Q(-c[1], c[1], -c[1], c[1]) * t134;
        const Q t192 = shuffled<1, 0, 3, 2>(t191);
        const Q t193 = t172 + t192;
        const Q t194 = t172 - t192;
        // complex block of 3, multiplier 2
        const Q t195 = Q(c[1], c[1], -c[1], c[1]) * t181;
        const Q t196 = shuffled<1, 0, 3, 2>(t195);
        const Q t197 = t178 + t196;
        const Q t198 = t178 - t196;
        // complex block of 3, multiplier 2
        const Q t199 = c[1] * t52;
        const Q t200 = shuffled<1, 0, 3, 2>(t199);
        const Q t201 = t184 + t200;
        const Q t202 = t184 - t200;
        // complex block of 3, multiplier 2
        const Q t203 = Q(-c[1], c[1], -c[1], c[1]) * t38;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = t186 + t204;
        const Q t206 = t186 - t204;
        const Q t207 = shuffled<2, 3, 6, 7>(t190, t152);
        const Q t208 = shuffled<2, 3, 6, 7>(t202, t182);
        // complex block of 5, multiplier 4
        const Q t209 = t207 + t208;
        const Q t210 = t207 - t208;
        const Q t211 = shuffled<0, 1, 6, 7>(t198, t83);
        const Q t212 = shuffled<0, 1, 4, 5>(t190, t152);
        const Q t213 = t211 + t212;
        const Q t214 = shuffled<2, 3, 6, 7>(t194, t189);
        const Q t215 = shuffled<2, 3, 6, 7>(t206, t201);
        // complex block of 5, multiplier 4
        const Q t216 = t214 + t215;
        const Q t217 = t214 - t215;
        const Q t218 = shuffled<2, 3, 4, 5>(t198, t197);
        const Q t219 = shuffled<0, 1, 4, 5>(t194, t189);
        const Q t220 = t218 + t219;
        const P t221 = part<1>(t193);
        const P t222 = part<1>(t205);
        // complex block of 5, multiplier 4
        const P t223 = t221 + t222;
        const P t224 = t221 - t222;
        const P t225 = part<1>(t197);
        const P t226 = part<0>(t193);
        const P t227 = t225 + t226;
        const Q t228 = shuffled<0, 1, 6, 7>(t110, t176);
        const P t229 = part<0>(t165);
        const Q t230 = joined(t95, t229);
        // complex block of 5, multiplier 4
        const Q t231 = t228 + t230;
        const Q t232 = shuffled<0, 1, 6, 7>(t230, t228);
        const Q t233 = shuffled<0, 1, 6, 7>(t228, t230);
        const Q t234 = t232 - t233;
        const Q t235 = shuffled<0, 1, 6, 7>(t176, t84);
        const Q t236 = shuffled<0, 1, 4, 5>(t154, t153);
        // complex block of 5, multiplier 4
        const Q t237 = t235 + t236;
        const Q t238 = t235 - t236;
        // complex block of 5, multiplier 4
        const Q t239 = t169 + t231;
        const Q t240 = shuffled<0, 1, 4, 5>(t14, t166);
        const Q t241 = t239 + t240;
        const Q t242 = c[2] * t169;
        const Q t243 = c[3] * t231;
        const Q t244 = t242 - t243;
        const Q t245 = t244 + t240;
        const Q t246 = c[4] * t170;
        const Q t247 = c[5] * t234;
        const Q t248 = t246 - t247;
        const Q t249 = shuffled<1, 0, 3, 2>(t248);
        const Q t250 = flipped<0, 1, 0, 1>(t249);
        const Q t251 = t245 + t250;
        const Q t252 = shuffled<0, 1, 6, 7>(t241, t251);
        io.pairs(0, 1, t252);
        const Q t253 = t245 - t250;
        const Q t254 = shuffled<0, 1, 6, 7>(t253, t241);
        io.pairs(9, 10, t254);
        const Q t255 = c[3] * t169;
        const Q t256 = t240 - t255;
        const Q t257 = c[2] * t231;
        const Q t258 = t256 + t257;
        const Q t259 = c[5] * t170;
        const Q t260 = c[4] * t234;
        const Q t261 = t259 + t260;
        const Q t262 = shuffled<1, 0, 3, 2>(t261);
        const Q t263 = flipped<0, 1, 0, 1>(t262);
        const Q t264 = t258 + t263;
        const Q t265 = shuffled<0, 1, 6, 7>(t251, t264);
        io.pairs(36, 37, t265);
        const Q t266 = t258 - t263;
        const Q t267 = shuffled<0, 1, 6, 7>(t266, t253);
        io.pairs(18, 19, t267);
        const Q t268 = shuffled<0, 1, 6, 7>(t264, t266);
        io.pairs(27, 28, t268);
        // complex block of 5, multiplier 4
        const Q t269 = t161 + t237;
        const Q t270 = shuffled<0, 1, 4, 5>(t158, t157);
        const Q t271 = t269 + t270;
        const Q t272 = c[2] * t161;
        const Q t273 = c[3] * t237;
        const Q t274 = t272 - t273;
        const Q t275 = t274 + t270;
        const Q t276 = c[4] * t162;
        const Q t277 = c[5] * t238;
        const Q t278 = t276 - t277;
        const Q t279 = shuffled<1, 0, 3, 2>(t278);
        const Q t280 = flipped<0, 1, 0, 1>(t279);
        const Q t281 = t275 + t280;
        const Q t282 = shuffled<0, 1, 6, 7>(t271, t281);
        io.pairs(5, 6, t282);
        const Q t283 = t275 - t280;
        const Q t284 = shuffled<0, 1, 6, 7>(t283, t271);
        io.pairs(14, 15, t284);
        const Q t285 = c[3] * t161;
        const Q t286 = t270 - t285;
        const Q t287 = c[2] * t237;
        const Q t288 = t286 + t287;
        const Q t289 = c[5] * t162;
        const Q t290 = c[4] * t238;
        const Q t291 = t289 + t290;
        const Q t292 = shuffled<1, 0, 3, 2>(t291);
        const Q t293 = flipped<0, 1, 0, 1>(t292);
        const Q t294 = t288 + t293;
        const Q t295 = shuffled<0, 1, 6, 7>(t281, t294);
        io.pairs(41, 42, t295);
        const Q t296 = t288 - t293;
        const Q t297 = shuffled<0, 1, 6, 7>(t296, t283);
        io.pairs(23, 24, t297);
        const Q t298 = shuffled<0, 1, 6, 7>(t294, t296);
        io.pairs(32, 33, t298);
        // complex block of 5, multiplier 4
        const Q t299 = t211 - t212;
        const Q t300 = c[2] * t209;
        const Q t301 = c[3] * t213;
        const Q t302 = t300 - t301;
        const Q t303 = shuffled<0, 1, 4, 5>(t202, t182);
        const Q t304 = c[3] * t209;
        const Q t305 = t303 - t304;
        const Q t306 = t302 + t303;
        const Q t307 = c[4] * t210;
        const Q t308 = c[5] * t299;
        const Q t309 = t307 - t308;
        const Q t310 = shuffled<1, 0, 3, 2>(t309);
        const Q t311 = flipped<0, 1, 0, 1>(t310);
        const Q t312 = t306 + t311;
        const Q t313 = t306 - t311;
        const Q t314 = c[2] * t213;
        const Q t315 = t305 + t314;
        const Q t316 = c[5] * t210;
        const Q t317 = c[4] * t299;
        const Q t318 = t316 + t317;
        const Q t319 = shuffled<1, 0, 3, 2>(t318);
        const Q t320 = flipped<0, 1, 0, 1>(t319);
        const Q t321 = t315 + t320;
        const Q t322 = shuffled<0, 1, 6, 7>(t312, t321);
        io.pairs(11, 12, t322);
        const Q t323 = t315 - t320;
        const Q t324 = shuffled<0, 1, 6, 7>(t321, t323);
        io.pairs(2, 3, t324);
        const Q t325 = shuffled<0, 1, 6, 7>(t323, t313);
        io.pairs(38, 39, t325);
        const Q t326 = t209 + t213;
        const Q t327 = t326 + t303;
        const Q t328 = shuffled<0, 1, 6, 7>(t327, t312);
        io.pairs(20, 21, t328);
        const Q t329 = shuffled<0, 1, 6, 7>(t313, t327);
        io.pairs(29, 30, t329);
        // complex block of 5, multiplier 4
        const Q t330 = t218 - t219;
        const Q t331 = c[2] * t216;
        const Q t332 = c[3] * t220;
        const Q t333 = t331 - t332;
        const Q t334 = shuffled<0, 1, 4, 5>(t206, t201);
        const Q t335 = c[3] * t216;
        const Q t336 = t334 - t335;
        const Q t337 = t333 + t334;
        const Q t338 = c[4] * t217;
        const Q t339 = c[5] * t330;
        const Q t340 = t338 - t339;
        const Q t341 = shuffled<1, 0, 3, 2>(t340);
        const Q t342 = flipped<0, 1, 0, 1>(t341);
        const Q t343 = t337 + t342;
        const Q t344 = t337 - t342;
        const Q t345 = c[2] * t220;
        const Q t346 = t336 + t345;
        const Q t347 = c[5] * t217;
        const Q t348 = c[4] * t330;
        const Q t349 = t347 + t348;
        const Q t350 = shuffled<1, 0, 3, 2>(t349);
        const Q t351 = flipped<0, 1, 0, 1>(t350);
        const Q t352 = t346 + t351;
        const Q t353 = shuffled<0, 1, 6, 7>(t343, t352);
        io.pairs(16, 17, t353);
        const Q t354 = t346 - t351;
        const Q t355 = shuffled<0, 1, 6, 7>(t352, t354);
        io.pairs(7, 8, t355);
        const Q t356 = shuffled<0, 1, 6, 7>(t354, t344);
        io.pairs(43, 44, t356);
        const Q t357 = t216 + t220;
        const Q t358 = t357 + t334;
        const Q t359 = shuffled<0, 1, 6, 7>(t358, t343);
        io.pairs(25, 26, t359);
        const Q t360 = shuffled<0, 1, 6, 7>(t344, t358);
        io.pairs(34, 35, t360);
        // complex block of 5, multiplier 4
        const P t361 = t225 - t226;
        const P t362 = c[2] * t223;
        const P t363 = c[3] * t227;
        const P t364 = t362 - t363;
        const P t365 = part<0>(t205);
        const P t366 = c[3] * t223;
        const P t367 = t365 - t366;
        const P t368 = t364 + t365;
        const P t369 = c[4] * t224;
        const P t370 = c[5] * t361;
        const P t371 = t369 - t370;
        const P t372 = shuffled<1, 0>(t371);
        const P t373 = flipped<0, 1>(t372);
        const P t374 = t368 + t373;
        io.pair(31, t374);
        const P t375 = t368 - t373;
        io.pair(4, t375);
        const P t376 = c[2] * t227;
        const P t377 = t367 + t376;
        const P t378 = c[5] * t224;
        const P t379 = c[4] * t361;
        const P t380 = t378 + t379;
        const P t381 = shuffled<1, 0>(t380);
        const P t382 = flipped<0, 1>(t381);
        const P t383 = t377 + t382;
        io.pair(22, t383);
        const P t384 = t377 - t382;
        io.pair(13, t384);
        const P t385 = t223 + t227;
        const P t386 = t385 + t365;
        io.pair(40, t386);
    }
};

}  // namespace zulg
