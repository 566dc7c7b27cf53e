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
        const Q x25_34 = io.pairs(25, 34);
        const Q x40_4 = io.pairs(40, 4);
        // complex block of 3, multiplier 2
        const Q t0 = x25_34 + x40_4;
        const Q t1 = x25_34 - x40_4;
        const Q x10_19 = io.pairs(10, 19);
        const Q t2 = t0 + x10_19;
        const Q t3 = c[0] * t0;
        const Q t4 = x10_19 - t3;
        const Q x20_29 = io.pairs(20, 29);
        const Q x35_44 = io.pairs(35, 44);
        // complex block of 3, multiplier 2
        const Q t5 = x20_29 + x35_44;
        const Q t6 = x20_29 - x35_44;
        const Q x5_14 = io.pairs(5, 14);
        const Q t7 = t5 + x5_14;
        const Q t8 = c[0] * t5;
        const Q t9 = x5_14 - t8;
        const Q x15_24 = io.pairs(15, 24);
        const Q x30_39 = io.pairs(30, 39);
        // complex block of 3, multiplier 2
        const Q t10 = x15_24 + x30_39;
        const Q t11 = x15_24 - x30_39;
        const Q x0_9 = io.pairs(0, 9);
        const Q t12 = t10 + x0_9;
        // complex block of 3, multiplier 2
        const Q t13 = t7 + t2;
        const Q t14 = t13 + t12;
        const Q t15 = c[0] * t13;
        const Q t16 = t12 - t15;
        // complex block of 3, multiplier 2
        const Q t17 = c[0] * t10;
        const Q t18 = x0_9 - t17;
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
        const P x16 = io.pair(16);
        const P x31 = io.pair(31);
        // complex block of 3, multiplier 2
        const P t54 = x16 + x31;
        const P x1 = io.pair(1);
        const P t55 = t54 + x1;
        const Q x6_11 = io.pairs(6, 11);
        const Q x21_26 = io.pairs(21, 26);
        // complex block of 3, multiplier 2
        const Q t56 = x6_11 + x21_26;
        const Q t57 = x6_11 - x21_26;
        const Q x36_41 = io.pairs(36, 41);
        const Q t58 = t56 + x36_41;
        const Q t59 = c[0] * t56;
        const Q t60 = x36_41 - t59;
        const P t61 = part<1>(t58);
        const V t62 = part<0>(t61);
        const V t63 = part<0>(t55);
        // complex block of 3, multiplier 2
        const V t64 = t62 + t63;
        const V t65 = part<1>(t61);
        const V t66 = part<1>(t55);
        const V t67 = t65 + t66;
        const Q t68 = joined(x16, t61);
        const Q t69 = joined(x31, t55);
        // complex block of 3, multiplier 2
        const Q t70 = t68 - t69;
        // complex block of 3, multiplier 2
        const Q t71 = Q(-c[1], c[1], -c[1], c[1]) * t57;
        const Q t72 = shuffled<1, 0, 3, 2>(t71);
        const Q t73 = t60 + t72;
        const Q t74 = t60 - t72;
        const P t75 = part<0>(t58);
        const Q t76 = joined(x1, t75);
        const P t77 = joined(t64, t67);
        const Q t78 = joined(t54, t77);
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
        const Q x38_2 = io.pairs(38, 2);
        const Q x8_17 = io.pairs(8, 17);
        // complex block of 3, multiplier 2
        const Q t96 = x38_2 + x8_17;
        const Q t97 = x38_2 - x8_17;
        const Q x23_32 = io.pairs(23, 32);
        const Q t98 = t96 + x23_32;
        const Q t99 = c[0] * t96;
        const Q t100 = x23_32 - t99;
        const Q x33_42 = io.pairs(33, 42);
        const Q x3_12 = io.pairs(3, 12);
        // complex block of 3, multiplier 2
        const Q t101 = x33_42 + x3_12;
        const Q t102 = x33_42 - x3_12;
        const Q x43_7 = io.pairs(43, 7);
        const Q x13_22 = io.pairs(13, 22);
        // complex block of 3, multiplier 2
        const Q t103 = x43_7 + x13_22;
        const Q t104 = x43_7 - x13_22;
        const Q x28_37 = io.pairs(28, 37);
        const Q t105 = t103 + x28_37;
        const Q t106 = c[0] * t103;
        const Q t107 = x28_37 - t106;
        const Q x18_27 = io.pairs(18, 27);
        // complex block of 3, multiplier 2
        const Q t108 = t101 + x18_27;
        // complex block of 3, multiplier 2
        const Q t109 = t98 + t105;
        const Q t110 = t109 + t108;
        const Q t111 = c[0] * t109;
        const Q t112 = t108 - t111;
        // complex block of 3, multiplier 2
        const Q t113 = c[0] * t101;
        const Q t114 = x18_27 - t113;
        const Q t115 = Q(-c[1], c[1], -c[1], c[1]) * t102;
        const Q t116 = shuffled<1, 0, 3, 2>(t115);
        const Q t117 = t114 + t116;
        const Q t118 = t114 - t116;
        // complex block of 3, multiplier 2
        const Q t119 = Q(-c[1], c[1], -c[1], c[1]) * t97;
        const Q t120 = shuffled<1, 0, 3, 2>(t119);
        const Q t121 = t100 + t120;
        // complex block of 3, multiplier 2
        const Q t122 = Q(-c[1], c[1], -c[1], c[1]) * t104;
        const Q t123 = shuffled<1, 0, 3, 2>(t122);
        const Q t124 = t107 + t123;
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
        const Q t135 = t100 - t120;
        // complex block of 3, multiplier 2
        const Q t136 = t107 - t123;
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
        const Q t149 = t98 - t105;
        // complex block of 3, multiplier 2
        const Q t150 = Q(-c[1], c[1], -c[1], c[1]) * t53;
        const Q t151 = shuffled<1, 0, 3, 2>(t150);
        const Q t152 = t16 + t151;
        const Q t153 = t16 - t151;
        // complex block of 3, multiplier 2
        const Q t154 = t50 + t22;
        const Q t155 = c[0] * t50;
        const Q t156 = t22 - t155;
        // complex block of 3, multiplier 2
        const Q t157 = t37 + t21;
        const Q t158 = c[0] * t37;
        const Q t159 = t21 - t158;
        const Q t160 = flipped<1, 0, 0, 0>(t94);
        // complex block of 3, multiplier 2
        const Q t161 = t89 + t160;
        const Q t162 = shuffled<0, 1, 4, 5>(t74, t73);
        const Q t163 = t161 + t162;
        const Q t164 = c[0] * t161;
        const Q t165 = t162 - t164;
        const Q t166 = flipped<0, 1, 0, 0>(t89);
        const Q t167 = flipped<1, 0, 1, 1>(t160);
        const Q t168 = t166 + t167;
        // complex block of 3, multiplier 2
        const Q t169 = c[1] * t52;
        const Q t170 = shuffled<1, 0, 3, 2>(t169);
        const Q t171 = t156 + t170;
        // complex block of 3, multiplier 2
        const Q t172 = Q(-c[1], c[1], -c[1], c[1]) * t38;
        const Q t173 = shuffled<1, 0, 3, 2>(t172);
        const Q t174 = t159 + t173;
        // complex block of 3, multiplier 2
        const Q t175 = Q(c[1], c[1], -c[1], c[1]) * t168;
        const Q t176 = shuffled<1, 0, 3, 2>(t175);
        const Q t177 = t165 + t176;
        const Q t178 = shuffled<2, 3, 6, 7>(t152, t171);
        const Q t179 = shuffled<2, 3, 4, 5>(t83, t177);
        // complex block of 5, multiplier 4
        const Q t180 = t178 + t179;
        const P t181 = part<1>(t174);
        const P t182 = part<1>(t177);
        // complex block of 5, multiplier 4
        const P t183 = t181 + t182;
        // complex block of 3, multiplier 2
        const Q t184 = t156 - t170;
        // complex block of 3, multiplier 2
        const Q t185 = t159 - t173;
        // complex block of 3, multiplier 2
        const Q t186 = t165 - t176;
        const Q t187 = shuffled<2, 3, 6, 7>(t184, t185);
        // complex block of 5, multiplier 4
        const Q t188 = t187 + t186;
        const Q t189 = shuffled<2, 3, 6, 7>(t14, t154);
        const P t190 = part<0>(t163);
        const Q t191 = joined(t95, t190);
        // complex block of 5, multiplier 4
        const Q t192 = t189 + t191;
        const Q t193 = t189 - t191;
        const Q t194 = shuffled<2, 3, 6, 7>(t157, t153);
        const Q t195 = shuffled<2, 3, 6, 7>(t163, t84);
        // complex block of 5, multiplier 4
        const Q t196 = t194 + t195;
        const Q t197 = t194 - t195;
        // complex block of 3, multiplier 2
        const Q t198 = Q(-c[1], c[1], -c[1], c[1]) * t149;
        const Q t199 = shuffled<1, 0, 3, 2>(t198);
        const Q t200 = t112 + t199;
        // complex block of 3, multiplier 2
        const Q t201 = c[0] * t146;
        const Q t202 = t118 - t201;
        // complex block of 3, multiplier 2
        const Q t203 = c[0] * t133;
        const Q t204 = t117 - t203;
        // complex block of 3, multiplier 2
        const Q t205 = c[1] * t148;
        const Q t206 = shuffled<1, 0, 3, 2>(t205);
        const Q t207 = t202 + t206;
        const Q t208 = shuffled<2, 3, 6, 7>(t200, t207);
        const Q t209 = shuffled<0, 1, 4, 5>(t200, t207);
        // complex block of 5, multiplier 4
        const Q t210 = t208 + t209;
        const Q t211 = t208 - t209;
        // complex block of 3, multiplier 2
        const Q t212 = t202 - t206;
        // complex block of 3, multiplier 2
        const Q t213 = Q(c[1], -c[1], c[1], -c[1]) * t134;
        const Q t214 = shuffled<1, 0, 3, 2>(t213);
        const Q t215 = t204 + t214;
        const Q t216 = shuffled<2, 3, 6, 7>(t212, t215);
        const Q t217 = shuffled<0, 1, 4, 5>(t212, t215);
        // complex block of 5, multiplier 4
        const Q t218 = t216 + t217;
        const Q t219 = t216 - t217;
        // complex block of 3, multiplier 2
        const Q t220 = t204 - t214;
        const P t221 = part<1>(t220);
        const P t222 = part<0>(t220);
        // complex block of 5, multiplier 4
        const P t223 = t221 + t222;
        const P t224 = t221 - t222;
        // complex block of 3, multiplier 2
        const Q t225 = t112 - t199;
        // complex block of 3, multiplier 2
        const Q t226 = t133 + t117;
        const Q t227 = shuffled<2, 3, 6, 7>(t226, t225);
        const Q t228 = shuffled<0, 1, 4, 5>(t226, t225);
        // complex block of 5, multiplier 4
        const Q t229 = t227 + t228;
        const Q t230 = t227 - t228;
        // complex block of 3, multiplier 2
        const Q t231 = t146 + t118;
        const Q t232 = shuffled<2, 3, 6, 7>(t110, t231);
        const Q t233 = shuffled<0, 1, 4, 5>(t110, t231);
        // complex block of 5, multiplier 4
        const Q t234 = t232 + t233;
        const Q t235 = t232 - t233;
        const Q t236 = t192 + t234;
        const Q t237 = shuffled<0, 1, 4, 5>(t14, t154);
        const Q t238 = t236 + t237;
        io.pairs(0, 5, t238);
        const Q t239 = c[2] * t192;
        const Q t240 = c[3] * t234;
        const Q t241 = t239 - t240;
        const Q t242 = t241 + t237;
        const Q t243 = c[4] * t193;
        const Q t244 = c[5] * t235;
        const Q t245 = t243 - t244;
        const Q t246 = shuffled<1, 0, 3, 2>(t245);
        const Q t247 = flipped<0, 1, 0, 1>(t246);
        const Q t248 = t242 + t247;
        io.pairs(36, 41, t248);
        const Q t249 = t242 - t247;
        io.pairs(9, 14, t249);
        const Q t250 = c[3] * t192;
        const Q t251 = t237 - t250;
        const Q t252 = c[2] * t234;
        const Q t253 = t251 + t252;
        const Q t254 = c[5] * t193;
        const Q t255 = c[4] * t235;
        const Q t256 = t254 + t255;
        const Q t257 = shuffled<1, 0, 3, 2>(t256);
        const Q t258 = flipped<0, 1, 0, 1>(t257);
        const Q t259 = t253 + t258;
        io.pairs(27, 32, t259);
        const Q t260 = t253 - t258;
        io.pairs(18, 23, t260);
        // complex block of 5, multiplier 4
        const Q t261 = t196 + t229;
        const Q t262 = shuffled<0, 1, 4, 5>(t157, t153);
        const Q t263 = t261 + t262;
        io.pairs(10, 15, t263);
        const Q t264 = c[2] * t196;
        const Q t265 = c[3] * t229;
        const Q t266 = t264 - t265;
        const Q t267 = t266 + t262;
        const Q t268 = c[4] * t197;
        const Q t269 = c[5] * t230;
        const Q t270 = t268 - t269;
        const Q t271 = shuffled<1, 0, 3, 2>(t270);
        const Q t272 = flipped<0, 1, 0, 1>(t271);
        const Q t273 = t267 + t272;
        io.pairs(1, 6, t273);
        const Q t274 = t267 - t272;
        io.pairs(19, 24, t274);
        const Q t275 = c[3] * t196;
        const Q t276 = t262 - t275;
        const Q t277 = c[2] * t229;
        const Q t278 = t276 + t277;
        const Q t279 = c[5] * t197;
        const Q t280 = c[4] * t230;
        const Q t281 = t279 + t280;
        const Q t282 = shuffled<1, 0, 3, 2>(t281);
        const Q t283 = flipped<0, 1, 0, 1>(t282);
        const Q t284 = t278 + t283;
        io.pairs(37, 42, t284);
        const Q t285 = t278 - t283;
        io.pairs(28, 33, t285);
        // complex block of 5, multiplier 4
        const Q t286 = t187 - t186;
        const Q t287 = c[2] * t188;
        const Q t288 = c[3] * t218;
        const Q t289 = t287 - t288;
        const Q t290 = shuffled<0, 1, 4, 5>(t184, t185);
        const Q t291 = c[3] * t188;
        const Q t292 = t290 - t291;
        const Q t293 = t289 + t290;
        const Q t294 = c[4] * t286;
        const Q t295 = c[5] * t219;
        const Q t296 = t294 - t295;
        const Q t297 = shuffled<1, 0, 3, 2>(t296);
        const Q t298 = flipped<0, 1, 0, 1>(t297);
        const Q t299 = t293 + t298;
        io.pairs(11, 16, t299);
        const Q t300 = t293 - t298;
        io.pairs(29, 34, t300);
        const Q t301 = c[2] * t218;
        const Q t302 = t292 + t301;
        const Q t303 = c[5] * t286;
        const Q t304 = c[4] * t219;
        const Q t305 = t303 + t304;
        const Q t306 = shuffled<1, 0, 3, 2>(t305);
        const Q t307 = flipped<0, 1, 0, 1>(t306);
        const Q t308 = t302 + t307;
        io.pairs(2, 7, t308);
        const Q t309 = t302 - t307;
        io.pairs(38, 43, t309);
        const Q t310 = t188 + t218;
        const Q t311 = t310 + t290;
        io.pairs(20, 25, t311);
        // complex block of 5, multiplier 4
        const Q t312 = t178 - t179;
        const Q t313 = c[2] * t180;
        const Q t314 = c[3] * t210;
        const Q t315 = t313 - t314;
        const Q t316 = shuffled<0, 1, 4, 5>(t152, t171);
        const Q t317 = c[3] * t180;
        const Q t318 = t316 - t317;
        const Q t319 = t315 + t316;
        const Q t320 = c[4] * t312;
        const Q t321 = c[5] * t211;
        const Q t322 = t320 - t321;
        const Q t323 = shuffled<1, 0, 3, 2>(t322);
        const Q t324 = flipped<0, 1, 0, 1>(t323);
        const Q t325 = t319 + t324;
        io.pairs(21, 26, t325);
        const Q t326 = t319 - t324;
        io.pairs(39, 44, t326);
        const Q t327 = c[2] * t210;
        const Q t328 = t318 + t327;
        const Q t329 = c[5] * t312;
        const Q t330 = c[4] * t211;
        const Q t331 = t329 + t330;
        const Q t332 = shuffled<1, 0, 3, 2>(t331);
        const Q t333 = flipped<0, 1, 0, 1>(t332);
        const Q t334 = t328 + t333;
        io.pairs(12, 17, t334);
        const Q t335 = t328 - t333;
        io.pairs(3, 8, t335);
        const Q t336 = t180 + t210;
        const Q t337 = t336 + t316;
        io.pairs(30, 35, t337);
        // complex block of 5, multiplier 4
        const P t338 = t181 - t182;
        const P t339 = c[2] * t183;
        const P t340 = c[3] * t223;
        const P t341 = t339 - t340;
        const P t342 = part<0>(t174);
        const P t343 = c[3] * t183;
        const P t344 = t342 - t343;
        const P t345 = t341 + t342;
        const P t346 = c[4] * t338;
        const P t347 = c[5] * t224;
        const P t348 = t346 - t347;
        const P t349 = shuffled<1, 0>(t348);
        const P t350 = flipped<0, 1>(t349);
        const P t351 = t345 + t350;
        io.pair(31, t351);
        const P t352 = t345 - t350;
        io.pair(4, t352);
        const P t353 = c[2] * t223;
        const P t354 = t344 + t353;
        const P t355 = c[5] * t338;
        const P t356 = c[4] * t224;
        const P t357 = t355 + t356;
        const P t358 = shuffled<1, 0>(t357);
        const P t359 = flipped<0, 1>(t358);
        const P t360 = t354 + t359;
        io.pair(22, t360);
        const P t361 = t354 - t359;
        io.pair(13, t361);
        const P t362 = t183 + t223;
        const P t363 = t362 + t342;
        io.pair(40, t363);
    }
};

}  // namespace zulg
