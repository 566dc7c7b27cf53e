// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 64.
// Complex DFT of 64 points, twiddled, inner 8, outer 8; two lines of a stage to a register.
// 136 sums, 96 differences, 64 products of registers, which do the 1304 steps of the graph, those with
// `scale` included; 123 shuffles, 61 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<64> {
    static constexpr int steps = 1304;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 4/64
        0.3826834323650898,  // c[2]: sin 2 pi 4/64
        0.9807852804032304,  // c[3]: cos 2 pi 2/64
        0.19509032201612828,  // c[4]: sin 2 pi 2/64
        0.8314696123025452,  // c[5]: cos 2 pi 6/64
        0.5555702330196022,  // c[6]: sin 2 pi 6/64
        0.9951847266721969,  // c[7]: cos 2 pi 1/64
        0.0980171403295606,  // c[8]: sin 2 pi 1/64
        0.881921264348355,  // c[9]: cos 2 pi 5/64
        0.47139673682599764,  // c[10]: sin 2 pi 5/64
        0.9569403357322088,  // c[11]: cos 2 pi 3/64
        0.2902846772544624,  // c[12]: sin 2 pi 3/64
        0.773010453362737,  // c[13]: cos 2 pi 7/64
        0.6343932841636455,  // c[14]: sin 2 pi 7/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_1 = io.pairs(0, 1);
        const Q x32_33 = io.pairs(32, 33);
        // complex block of 2
        const Q t0 = x0_1 + x32_33;
        const Q t1 = x0_1 - x32_33;
        const Q x16_17 = io.pairs(16, 17);
        const Q x48_49 = io.pairs(48, 49);
        // complex block of 2
        const Q t2 = x16_17 + x48_49;
        const Q t3 = x16_17 - x48_49;
        // complex block of 2
        const Q t4 = t0 + t2;
        const Q t5 = t0 - t2;
        const Q t6 = shuffled<1, 0, 3, 2>(t3);
        const Q t7 = flipped<0, 1, 0, 1>(t6);
        // complex block of 2
        const Q t8 = t1 + t7;
        const Q t9 = t1 - t7;
        const Q x2_3 = io.pairs(2, 3);
        const Q x34_35 = io.pairs(34, 35);
        // complex block of 2
        const Q t10 = x2_3 + x34_35;
        const Q t11 = x2_3 - x34_35;
        const Q x18_19 = io.pairs(18, 19);
        const Q x50_51 = io.pairs(50, 51);
        // complex block of 2
        const Q t12 = x18_19 + x50_51;
        const Q t13 = x18_19 - x50_51;
        // complex block of 2
        const Q t14 = t10 + t12;
        const Q t15 = t10 - t12;
        const Q t16 = shuffled<1, 0, 3, 2>(t13);
        const Q t17 = flipped<0, 1, 0, 1>(t16);
        // complex block of 2
        const Q t18 = t11 + t17;
        const Q t19 = t11 - t17;
        const Q x4_5 = io.pairs(4, 5);
        const Q x36_37 = io.pairs(36, 37);
        // complex block of 2
        const Q t20 = x4_5 + x36_37;
        const Q t21 = x4_5 - x36_37;
        const Q x20_21 = io.pairs(20, 21);
        const Q x52_53 = io.pairs(52, 53);
        // complex block of 2
        const Q t22 = x20_21 + x52_53;
        const Q t23 = x20_21 - x52_53;
        // complex block of 2
        const Q t24 = t20 + t22;
        const Q t25 = t20 - t22;
        const Q t26 = shuffled<1, 0, 3, 2>(t23);
        const Q t27 = flipped<0, 1, 0, 1>(t26);
        // complex block of 2
        const Q t28 = t21 + t27;
        const Q t29 = t21 - t27;
        const Q x6_7 = io.pairs(6, 7);
        const Q x38_39 = io.pairs(38, 39);
        // complex block of 2
        const Q t30 = x6_7 + x38_39;
        const Q t31 = x6_7 - x38_39;
        const Q x22_23 = io.pairs(22, 23);
        const Q x54_55 = io.pairs(54, 55);
        // complex block of 2
        const Q t32 = x22_23 + x54_55;
        const Q t33 = x22_23 - x54_55;
        // complex block of 2
        const Q t34 = t30 + t32;
        const Q t35 = t30 - t32;
        const Q t36 = shuffled<1, 0, 3, 2>(t33);
        const Q t37 = flipped<0, 1, 0, 1>(t36);
        // complex block of 2
        const Q t38 = t31 + t37;
        const Q t39 = t31 - t37;
        const Q x8_9 = io.pairs(8, 9);
        const Q x40_41 = io.pairs(40, 41);
        // complex block of 2
        const Q t40 = x8_9 + x40_41;
        const Q t41 = x8_9 - x40_41;
        const Q x24_25 = io.pairs(24, 25);
        const Q x56_57 = io.pairs(56, 57);
        // complex block of 2
        const Q t42 = x24_25 + x56_57;
        const Q t43 = x24_25 - x56_57;
        // complex block of 2
        const Q t44 = t40 + t42;
        const Q t45 = t40 - t42;
        // complex block of 8
        const Q t46 = c[0] * t41;
        const Q t47 = shuffled<1, 0, 3, 2>(t46);
        const Q t48 = flipped<0, 1, 0, 1>(t47);
        const Q t49 = t46 + t48;
        const Q t50 = c[0] * t43;
        const Q t51 = shuffled<1, 0, 3, 2>(t50);
        const Q t52 = flipped<0, 1, 0, 1>(t51);
        const Q t53 = t50 + t52;
        const Q x10_11 = io.pairs(10, 11);
        const Q x42_43 = io.pairs(42, 43);
        // complex block of 2
        const Q t54 = x10_11 + x42_43;
        const Q t55 = x10_11 - x42_43;
        const Q x26_27 = io.pairs(26, 27);
        const Q x58_59 = io.pairs(58, 59);
        // complex block of 2
        const Q t56 = x26_27 + x58_59;
        const Q t57 = x26_27 - x58_59;
        // complex block of 2
        const Q t58 = t54 + t56;
        const Q t59 = t54 - t56;
        // complex block of 8
        const Q t60 = c[0] * t55;
        const Q t61 = shuffled<1, 0, 3, 2>(t60);
        const Q t62 = flipped<0, 1, 0, 1>(t61);
        const Q t63 = t60 + t62;
        const Q t64 = c[0] * t57;
        const Q t65 = shuffled<1, 0, 3, 2>(t64);
        const Q t66 = flipped<0, 1, 0, 1>(t65);
        const Q t67 = t64 + t66;
        const Q x12_13 = io.pairs(12, 13);
        const Q x44_45 = io.pairs(44, 45);
        // complex block of 2
        const Q t68 = x12_13 + x44_45;
        const Q t69 = x12_13 - x44_45;
        const Q x28_29 = io.pairs(28, 29);
        const Q x60_61 = io.pairs(60, 61);
        // complex block of 2
        const Q t70 = x28_29 + x60_61;
        const Q t71 = x28_29 - x60_61;
        // complex block of 2
        const Q t72 = t68 + t70;
        const Q t73 = t68 - t70;
        // complex block of 8
        const Q t74 = c[0] * t69;
        const Q t75 = shuffled<1, 0, 3, 2>(t74);
        const Q t76 = flipped<0, 1, 0, 1>(t75);
        const Q t77 = t74 + t76;
        const Q t78 = c[0] * t71;
        const Q t79 = shuffled<1, 0, 3, 2>(t78);
        const Q t80 = flipped<0, 1, 0, 1>(t79);
        const Q t81 = t78 + t80;
        const Q x14_15 = io.pairs(14, 15);
        const Q x46_47 = io.pairs(46, 47);
        // complex block of 2
        const Q t82 = x14_15 + x46_47;
        const Q t83 = x14_15 - x46_47;
        const Q x30_31 = io.pairs(30, 31);
        const Q x62_63 = io.pairs(62, 63);
        // complex block of 2
        const Q t84 = x30_31 + x62_63;
        const Q t85 = x30_31 - x62_63;
        // complex block of 2
        const Q t86 = t82 + t84;
        const Q t87 = t82 - t84;
        // complex block of 8
        const Q t88 = c[0] * t83;
        const Q t89 = shuffled<1, 0, 3, 2>(t88);
        const Q t90 = flipped<0, 1, 0, 1>(t89);
        const Q t91 = t88 + t90;
        const Q t92 = c[0] * t85;
        const Q t93 = shuffled<1, 0, 3, 2>(t92);
        const Q t94 = flipped<0, 1, 0, 1>(t93);
        const Q t95 = t92 + t94;
        // complex block of 2
        const Q t96 = t4 + t44;
        const Q t97 = t4 - t44;
        const Q t98 = shuffled<1, 0, 3, 2>(t53);
        const Q t99 = flipped<0, 1, 0, 1>(t98);
        // complex block of 2
        const Q t100 = t49 + t99;
        // complex block of 2
        const Q t101 = t8 + t100;
        const Q t102 = t8 - t100;
        // complex block of 2
        const Q t103 = t14 - t58;
        const Q t104 = shuffled<1, 0, 3, 2>(t67);
        const Q t105 = flipped<0, 1, 0, 1>(t104);
        // complex block of 2
        const Q t106 = t63 + t105;
        // complex block of 2
        const Q t107 = t18 + t106;
        const Q t108 = t18 - t106;
        // complex block of 2
        const Q t109 = t24 - t72;
        const Q t110 = shuffled<1, 0, 3, 2>(t81);
        const Q t111 = flipped<0, 1, 0, 1>(t110);
        // complex block of 2
        const Q t112 = t77 + t111;
        // complex block of 2
        const Q t113 = t28 + t112;
        const Q t114 = t28 - t112;
        // complex block of 2
        const Q t115 = t34 - t86;
        const Q t116 = shuffled<1, 0, 3, 2>(t95);
        const Q t117 = flipped<0, 1, 0, 1>(t116);
        // complex block of 2
        const Q t118 = t91 + t117;
        // complex block of 2
        const Q t119 = t38 + t118;
        const Q t120 = t38 - t118;
        const Q t121 = shuffled<1, 0, 3, 2>(t45);
        const Q t122 = flipped<0, 1, 0, 1>(t121);
        // complex block of 2
        const Q t123 = t5 + t122;
        const Q t124 = t5 - t122;
        // complex block of 2
        const Q t125 = t49 - t99;
        const Q t126 = shuffled<1, 0, 3, 2>(t125);
        const Q t127 = flipped<0, 1, 0, 1>(t126);
        // complex block of 2
        const Q t128 = t9 + t127;
        const Q t129 = t9 - t127;
        // complex block of 2
        const Q t130 = t14 + t58;
        const Q t131 = shuffled<1, 0, 3, 2>(t59);
        const Q t132 = flipped<0, 1, 0, 1>(t131);
        // complex block of 2
        const Q t133 = t15 + t132;
        const Q t134 = t15 - t132;
        // complex block of 2
        const Q t135 = t63 - t105;
        const Q t136 = shuffled<1, 0, 3, 2>(t135);
        const Q t137 = flipped<0, 1, 0, 1>(t136);
        // complex block of 2
        const Q t138 = t19 + t137;
        const Q t139 = t19 - t137;
        // complex block of 2
        const Q t140 = t24 + t72;
        const Q t141 = shuffled<1, 0, 3, 2>(t73);
        const Q t142 = flipped<0, 1, 0, 1>(t141);
        // complex block of 2
        const Q t143 = t25 + t142;
        const Q t144 = t25 - t142;
        // complex block of 2
        const Q t145 = t77 - t111;
        const Q t146 = shuffled<1, 0, 3, 2>(t145);
        const Q t147 = flipped<0, 1, 0, 1>(t146);
        // complex block of 2
        const Q t148 = t29 + t147;
        const Q t149 = t29 - t147;
        // complex block of 2
        const Q t150 = t34 + t86;
        const Q t151 = shuffled<1, 0, 3, 2>(t87);
        const Q t152 = flipped<0, 1, 0, 1>(t151);
        // complex block of 2
        const Q t153 = t35 + t152;
        const Q t154 = t35 - t152;
        // complex block of 2
        const Q t155 = t91 - t117;
        const Q t156 = shuffled<1, 0, 3, 2>(t155);
        const Q t157 = flipped<0, 1, 0, 1>(t156);
        // complex block of 2
        const Q t158 = t39 + t157;
        const Q t159 = t39 - t157;
        const Q t160 = shuffled<0, 1, 6, 7>(t107, t101);
        // complex block of 64
        const Q t161 = Q(c[3], c[3], c[7], c[7]) * t160;
        const Q t162 = shuffled<1, 0, 3, 2>(t160);
        const Q t163 = Q(c[4], -c[4], c[8], -c[8]) * t162;
        const Q t164 = t161 + t163;
        const Q t165 = shuffled<0, 1, 6, 7>(t119, t113);
        const Q t166 = Q(c[5], c[5], c[9], c[9]) * t165;
        const Q t167 = shuffled<1, 0, 3, 2>(t165);
        const Q t168 = Q(c[6], -c[6], c[10], -c[10]) * t167;
        const Q t169 = t166 + t168;
        const Q t170 = shuffled<2, 3, 6, 7>(t96, t164);
        const Q t171 = shuffled<2, 3, 6, 7>(t140, t169);
        // complex block of 2
        const Q t172 = t170 - t171;
        const Q t173 = t170 + t171;
        const Q t174 = shuffled<0, 1, 4, 5>(t130, t164);
        const Q t175 = shuffled<0, 1, 4, 5>(t150, t169);
        // complex block of 2
        const Q t176 = t174 + t175;
        const Q t177 = t174 - t175;
        const Q t178 = shuffled<0, 1, 6, 7>(t113, t107);
        // complex block of 64
        const Q t179 = Q(c[1], c[1], c[11], c[11]) * t178;
        const Q t180 = shuffled<1, 0, 3, 2>(t178);
        const Q t181 = Q(c[2], -c[2], c[12], -c[12]) * t180;
        const Q t182 = t179 + t181;
        const Q t183 = shuffled<1, 0, 3, 2>(t114);
        const Q t184 = shuffled<0, 1, 6, 7>(t183, t119);
        const Q t185 = Q(c[1], c[1], c[13], c[13]) * t184;
        const Q t186 = shuffled<1, 0, 3, 2>(t184);
        const Q t187 = Q(-c[2], c[2], c[14], -c[14]) * t186;
        const Q t188 = t185 + t187;
        const Q t189 = shuffled<2, 3, 6, 7>(t130, t182);
        const Q t190 = shuffled<2, 3, 6, 7>(t150, t188);
        // complex block of 2
        const Q t191 = t189 - t190;
        const Q t192 = shuffled<0, 1, 4, 5>(t96, t101);
        const Q t193 = shuffled<0, 1, 4, 5>(t140, t182);
        // complex block of 2
        const Q t194 = t192 + t193;
        const Q t195 = t192 - t193;
        // complex block of 2
        const Q t196 = t189 + t190;
        const Q t197 = shuffled<0, 1, 4, 5>(t97, t102);
        const Q t198 = shuffled<1, 0, 3, 2>(t109);
        const Q t199 = shuffled<0, 1, 4, 5>(t198, t188);
        const Q t200 = flipped<0, 1, 0, 1>(t199);
        // complex block of 2
        const Q t201 = t197 + t200;
        const Q t202 = t197 - t200;
        const Q t203 = shuffled<2, 3, 6, 7>(t97, t102);
        // complex block of 64
        const Q t204 = Q(c[1], c[1], c[9], c[9]) * t203;
        const Q t205 = shuffled<1, 0, 3, 2>(t203);
        const Q t206 = Q(c[2], -c[2], c[10], -c[10]) * t205;
        const Q t207 = t204 + t206;
        const Q t208 = shuffled<2, 3, 6, 7>(t109, t114);
        const Q t209 = Q(-c[2], c[2], -c[13], c[13]) * t208;
        const Q t210 = shuffled<1, 0, 3, 2>(t208);
        const Q t211 = Q(c[1], c[1], c[14], c[14]) * t210;
        const Q t212 = t209 + t211;
        const Q t213 = flipped<1, 0, 1, 0>(t212);
        // complex block of 2
        const Q t214 = t207 + t213;
        const Q t215 = t207 - t213;
        const Q t216 = shuffled<0, 1, 4, 5>(t103, t108);
        // complex block of 64
        const Q t217 = Q(c[0], c[0], c[6], c[6]) * t216;
        const P t218 = part<0>(t217);
        const P t219 = shuffled<1, 0>(t218);
        const P t220 = flipped<0, 1>(t219);
        const P t221 = part<0>(t108);
        const P t222 = shuffled<1, 0>(t221);
        const P t223 = P(c[5], -c[5]) * t222;
        const Q t224 = joined(t220, t223);
        const Q t225 = t217 + t224;
        const Q t226 = shuffled<1, 0, 3, 2>(t120);
        const Q t227 = shuffled<0, 1, 4, 5>(t115, t226);
        const Q t228 = Q(c[0], c[0], c[4], c[4]) * t227;
        const P t229 = part<0>(t228);
        const P t230 = part<0>(t120);
        const P t231 = P(-c[3], c[3]) * t230;
        const Q t232 = joined(t229, t231);
        const Q t233 = shuffled<1, 4, 2, 7>(t228, t228);
        const Q t234 = flipped<0, 1, 0, 0>(t233);
        const Q t235 = t232 + t234;
        const Q t236 = shuffled<1, 4, 2, 7>(t235, t235);
        const Q t237 = flipped<0, 1, 0, 1>(t236);
        // complex block of 2
        const Q t238 = t225 + t237;
        const Q t239 = t225 - t237;
        const Q t240 = shuffled<2, 3, 6, 7>(t103, t108);
        // complex block of 64
        const Q t241 = Q(c[2], c[2], c[8], c[8]) * t240;
        const Q t242 = shuffled<1, 0, 3, 2>(t240);
        const Q t243 = Q(c[1], -c[1], c[7], -c[7]) * t242;
        const Q t244 = t241 + t243;
        const Q t245 = shuffled<2, 3, 6, 7>(t115, t226);
        const Q t246 = Q(-c[1], c[1], c[12], c[12]) * t245;
        const Q t247 = shuffled<1, 0, 3, 2>(t245);
        const Q t248 = Q(c[2], c[2], c[11], -c[11]) * t247;
        const Q t249 = t246 + t248;
        const Q t250 = flipped<1, 0, 0, 1>(t249);
        // complex block of 2
        const Q t251 = t244 + t250;
        const Q t252 = t244 - t250;
        // complex block of 2
        const Q t253 = t194 + t176;
        // complex block of 2
        const Q t254 = t173 + t196;
        // complex block of 2
        const Q t255 = t253 + t254;
        io.pairs(0, 1, t255);
        const Q t256 = t253 - t254;
        io.pairs(32, 33, t256);
        // complex block of 2
        const Q t257 = t194 - t176;
        // complex block of 2
        const Q t258 = t173 - t196;
        const Q t259 = shuffled<1, 0, 3, 2>(t258);
        const Q t260 = flipped<0, 1, 0, 1>(t259);
        // complex block of 2
        const Q t261 = t257 + t260;
        io.pairs(16, 17, t261);
        const Q t262 = t257 - t260;
        io.pairs(48, 49, t262);
        // complex block of 8
        const Q t263 = c[0] * t172;
        const Q t264 = shuffled<1, 0, 3, 2>(t263);
        const Q t265 = flipped<0, 1, 0, 1>(t264);
        const Q t266 = t263 + t265;
        const Q t267 = c[0] * t191;
        const Q t268 = shuffled<1, 0, 3, 2>(t267);
        const Q t269 = flipped<0, 1, 0, 1>(t268);
        const Q t270 = t267 + t269;
        const Q t271 = shuffled<1, 0, 3, 2>(t270);
        const Q t272 = flipped<0, 1, 0, 1>(t271);
        // complex block of 2
        const Q t273 = t266 + t272;
        const Q t274 = t266 - t272;
        const Q t275 = shuffled<1, 0, 3, 2>(t177);
        const Q t276 = flipped<0, 1, 0, 1>(t275);
        // complex block of 2
        const Q t277 = t195 + t276;
        const Q t278 = t195 - t276;
        // complex block of 2
        const Q t279 = t277 + t273;
        io.pairs(8, 9, t279);
        const Q t280 = t277 - t273;
        io.pairs(40, 41, t280);
        const Q t281 = shuffled<1, 0, 3, 2>(t274);
        const Q t282 = flipped<0, 1, 0, 1>(t281);
        // complex block of 2
        const Q t283 = t278 + t282;
        io.pairs(24, 25, t283);
        const Q t284 = t278 - t282;
        io.pairs(56, 57, t284);
        // complex block of 2
        const Q t285 = t201 + t238;
        // complex block of 2
        const Q t286 = t215 + t252;
        // complex block of 2
        const Q t287 = t285 + t286;
        io.pairs(4, 5, t287);
        const Q t288 = t285 - t286;
        io.pairs(36, 37, t288);
        // complex block of 2
        const Q t289 = t201 - t238;
        // complex block of 2
        const Q t290 = t215 - t252;
        const Q t291 = shuffled<1, 0, 3, 2>(t290);
        const Q t292 = flipped<0, 1, 0, 1>(t291);
        // complex block of 2
        const Q t293 = t289 + t292;
        io.pairs(20, 21, t293);
        const Q t294 = t289 - t292;
        io.pairs(52, 53, t294);
        // complex block of 8
        const Q t295 = c[0] * t214;
        const Q t296 = shuffled<1, 0, 3, 2>(t295);
        const Q t297 = flipped<0, 1, 0, 1>(t296);
        const Q t298 = t295 + t297;
        const Q t299 = c[0] * t251;
        const Q t300 = shuffled<1, 0, 3, 2>(t299);
        const Q t301 = flipped<0, 1, 0, 1>(t300);
        const Q t302 = t299 + t301;
        const Q t303 = shuffled<1, 0, 3, 2>(t302);
        const Q t304 = flipped<0, 1, 0, 1>(t303);
        // complex block of 2
        const Q t305 = t298 + t304;
        const Q t306 = t298 - t304;
        const Q t307 = shuffled<1, 0, 3, 2>(t239);
        const Q t308 = flipped<0, 1, 0, 1>(t307);
        // complex block of 2
        const Q t309 = t202 + t308;
        const Q t310 = t202 - t308;
        // complex block of 2
        const Q t311 = t309 + t305;
        io.pairs(12, 13, t311);
        const Q t312 = t309 - t305;
        io.pairs(44, 45, t312);
        const Q t313 = shuffled<1, 0, 3, 2>(t306);
        const Q t314 = flipped<0, 1, 0, 1>(t313);
        // complex block of 2
        const Q t315 = t310 + t314;
        io.pairs(28, 29, t315);
        const Q t316 = t310 - t314;
        io.pairs(60, 61, t316);
        const Q t317 = shuffled<2, 3, 6, 7>(t123, t128);
        // complex block of 64
        const Q t318 = Q(c[3], c[3], c[11], c[11]) * t317;
        const Q t319 = shuffled<1, 0, 3, 2>(t317);
        const Q t320 = Q(c[4], -c[4], c[12], -c[12]) * t319;
        const Q t321 = t318 + t320;
        const Q t322 = shuffled<2, 3, 6, 7>(t143, t148);
        const Q t323 = Q(c[6], c[6], c[8], c[8]) * t322;
        const Q t324 = shuffled<1, 0, 3, 2>(t322);
        const Q t325 = Q(c[5], -c[5], c[7], -c[7]) * t324;
        const Q t326 = t323 + t325;
        // complex block of 2
        const Q t327 = t321 - t326;
        const Q t328 = t321 + t326;
        const Q t329 = shuffled<0, 1, 4, 5>(t133, t138);
        // complex block of 64
        const Q t330 = Q(c[1], c[1], c[5], c[5]) * t329;
        const Q t331 = shuffled<1, 0, 3, 2>(t329);
        const Q t332 = Q(c[2], -c[2], c[6], -c[6]) * t331;
        const Q t333 = t330 + t332;
        const Q t334 = shuffled<1, 0, 3, 2>(t153);
        const Q t335 = shuffled<0, 1, 4, 5>(t334, t158);
        const Q t336 = Q(c[1], -c[1], -c[4], c[4]) * t335;
        const Q t337 = shuffled<1, 0, 3, 2>(t335);
        const Q t338 = Q(c[2], c[2], c[3], c[3]) * t337;
        const Q t339 = t336 + t338;
        const Q t340 = flipped<0, 0, 0, 1>(t339);
        // complex block of 2
        const Q t341 = t333 + t340;
        const Q t342 = t333 - t340;
        const Q t343 = shuffled<2, 3, 6, 7>(t133, t138);
        // complex block of 64
        const Q t344 = Q(c[5], c[5], c[14], c[14]) * t343;
        const Q t345 = shuffled<1, 0, 3, 2>(t343);
        const Q t346 = Q(c[6], -c[6], c[13], -c[13]) * t345;
        const Q t347 = t344 + t346;
        const Q t348 = shuffled<2, 3, 6, 7>(t334, t158);
        const Q t349 = Q(c[3], -c[3], -c[10], c[10]) * t348;
        const Q t350 = shuffled<1, 0, 3, 2>(t348);
        const Q t351 = Q(c[4], c[4], c[9], c[9]) * t350;
        const Q t352 = t349 + t351;
        const Q t353 = flipped<0, 0, 0, 1>(t352);
        // complex block of 2
        const Q t354 = t347 - t353;
        const Q t355 = t347 + t353;
        const Q t356 = shuffled<0, 1, 4, 5>(t143, t148);
        // complex block of 64
        const Q t357 = Q(c[0], c[0], c[2], c[2]) * t356;
        const P t358 = part<0>(t357);
        const P t359 = shuffled<1, 0>(t358);
        const P t360 = flipped<0, 1>(t359);
        const P t361 = part<0>(t148);
        const P t362 = shuffled<1, 0>(t361);
        const P t363 = P(c[1], -c[1]) * t362;
        const Q t364 = joined(t360, t363);
        const Q t365 = t357 + t364;
        const Q t366 = shuffled<0, 1, 4, 5>(t123, t128);
        // complex block of 2
        const Q t367 = t366 + t365;
        const Q t368 = t366 - t365;
        // complex block of 2
        const Q t369 = t367 + t341;
        // complex block of 2
        const Q t370 = t328 + t355;
        // complex block of 2
        const Q t371 = t369 + t370;
        io.pairs(2, 3, t371);
        const Q t372 = t369 - t370;
        io.pairs(34, 35, t372);
        // complex block of 2
        const Q t373 = t367 - t341;
        // complex block of 2
        const Q t374 = t328 - t355;
        const Q t375 = shuffled<1, 0, 3, 2>(t374);
        const Q t376 = flipped<0, 1, 0, 1>(t375);
        // complex block of 2
        const Q t377 = t373 + t376;
        io.pairs(18, 19, t377);
        const Q t378 = t373 - t376;
        io.pairs(50, 51, t378);
        // complex block of 8
        const Q t379 = c[0] * t327;
        const Q t380 = shuffled<1, 0, 3, 2>(t379);
        const Q t381 = flipped<0, 1, 0, 1>(t380);
        const Q t382 = t379 + t381;
        const Q t383 = c[0] * t354;
        const Q t384 = shuffled<1, 0, 3, 2>(t383);
        const Q t385 = flipped<0, 1, 0, 1>(t384);
        const Q t386 = t383 + t385;
        const Q t387 = shuffled<1, 0, 3, 2>(t386);
        const Q t388 = flipped<0, 1, 0, 1>(t387);
        // complex block of 2
        const Q t389 = t382 + t388;
        const Q t390 = t382 - t388;
        const Q t391 = shuffled<1, 0, 3, 2>(t342);
        const Q t392 = flipped<0, 1, 0, 1>(t391);
        // complex block of 2
        const Q t393 = t368 + t392;
        const Q t394 = t368 - t392;
        // complex block of 2
        const Q t395 = t393 + t389;
        io.pairs(10, 11, t395);
        const Q t396 = t393 - t389;
        io.pairs(42, 43, t396);
        const Q t397 = shuffled<1, 0, 3, 2>(t390);
        const Q t398 = flipped<0, 1, 0, 1>(t397);
        // complex block of 2
        const Q t399 = t394 + t398;
        io.pairs(26, 27, t399);
        const Q t400 = t394 - t398;
        io.pairs(58, 59, t400);
        const Q t401 = shuffled<2, 3, 6, 7>(t124, t129);
        // complex block of 64
        const Q t402 = Q(c[5], c[5], c[13], c[13]) * t401;
        const Q t403 = shuffled<1, 0, 3, 2>(t401);
        const Q t404 = Q(c[6], -c[6], c[14], -c[14]) * t403;
        const Q t405 = t402 + t404;
        const Q t406 = shuffled<1, 0, 3, 2>(t149);
        const Q t407 = shuffled<2, 3, 6, 7>(t144, t406);
        const Q t408 = Q(-c[3], c[3], c[12], c[12]) * t407;
        const Q t409 = shuffled<1, 0, 3, 2>(t407);
        const Q t410 = Q(c[4], c[4], c[11], -c[11]) * t409;
        const Q t411 = t408 + t410;
        const Q t412 = flipped<1, 0, 0, 1>(t411);
        // complex block of 2
        const Q t413 = t405 + t412;
        const Q t414 = t405 - t412;
        const Q t415 = shuffled<0, 1, 4, 5>(t134, t139);
        // complex block of 64
        const Q t416 = Q(c[2], c[2], c[4], c[4]) * t415;
        const Q t417 = shuffled<1, 0, 3, 2>(t415);
        const Q t418 = Q(c[1], -c[1], c[3], -c[3]) * t417;
        const Q t419 = t416 + t418;
        const Q t420 = shuffled<0, 1, 4, 5>(t154, t159);
        const Q t421 = shuffled<1, 0, 3, 2>(t420);
        const Q t422 = Q(c[2], c[2], c[5], c[5]) * t421;
        const Q t423 = Q(c[1], -c[1], c[6], -c[6]) * t420;
        const Q t424 = t422 + t423;
        const Q t425 = flipped<1, 0, 1, 0>(t424);
        // complex block of 2
        const Q t426 = t419 + t425;
        const Q t427 = t419 - t425;
        const Q t428 = shuffled<2, 3, 6, 7>(t134, t139);
        // complex block of 64
        const Q t429 = Q(-c[4], c[4], -c[10], c[10]) * t428;
        const Q t430 = shuffled<1, 0, 3, 2>(t428);
        const Q t431 = Q(c[3], c[3], c[9], c[9]) * t430;
        const Q t432 = t429 + t431;
        const Q t433 = shuffled<2, 3, 6, 7>(t154, t159);
        const Q t434 = Q(c[6], -c[6], c[8], c[8]) * t433;
        const Q t435 = shuffled<1, 0, 3, 2>(t433);
        const Q t436 = Q(c[5], c[5], -c[7], c[7]) * t435;
        const Q t437 = t434 + t436;
        const Q t438 = flipped<0, 0, 1, 0>(t437);
        // complex block of 2
        const Q t439 = t432 + t438;
        const Q t440 = shuffled<0, 5, 2, 7>(t432, t438);
        const Q t441 = shuffled<0, 5, 2, 7>(t438, t432);
        const Q t442 = t440 - t441;
        const Q t443 = shuffled<0, 1, 4, 5>(t144, t406);
        // complex block of 64
        const Q t444 = Q(c[0], c[0], c[2], c[2]) * t443;
        const P t445 = part<0>(t444);
        const P t446 = part<0>(t149);
        const P t447 = P(-c[1], c[1]) * t446;
        const Q t448 = joined(t445, t447);
        const Q t449 = shuffled<1, 4, 2, 7>(t444, t444);
        const Q t450 = flipped<0, 1, 0, 0>(t449);
        const Q t451 = t448 + t450;
        const Q t452 = shuffled<0, 1, 4, 5>(t124, t129);
        const Q t453 = shuffled<1, 4, 2, 7>(t451, t451);
        const Q t454 = flipped<0, 1, 0, 1>(t453);
        // complex block of 2
        const Q t455 = t452 + t454;
        const Q t456 = t452 - t454;
        // complex block of 2
        const Q t457 = t455 + t426;
        // complex block of 2
        const Q t458 = t414 + t442;
        // complex block of 2
        const Q t459 = t457 + t458;
        io.pairs(6, 7, t459);
        const Q t460 = t457 - t458;
        io.pairs(38, 39, t460);
        // complex block of 2
        const Q t461 = t455 - t426;
        // complex block of 2
        const Q t462 = t414 - t442;
        const Q t463 = shuffled<1, 0, 3, 2>(t462);
        const Q t464 = flipped<0, 1, 0, 1>(t463);
        // complex block of 2
        const Q t465 = t461 + t464;
        io.pairs(22, 23, t465);
        const Q t466 = t461 - t464;
        io.pairs(54, 55, t466);
        // complex block of 8
        const Q t467 = c[0] * t413;
        const Q t468 = shuffled<1, 0, 3, 2>(t467);
        const Q t469 = flipped<0, 1, 0, 1>(t468);
        const Q t470 = t467 + t469;
        const Q t471 = c[0] * t439;
        const Q t472 = shuffled<1, 0, 3, 2>(t471);
        const Q t473 = flipped<1, 0, 1, 0>(t472);
        const Q t474 = t471 + t473;
        const Q t475 = shuffled<1, 0, 3, 2>(t474);
        // complex block of 2
        const Q t476 = t470 - t475;
        const Q t477 = t470 + t475;
        const Q t478 = shuffled<1, 0, 3, 2>(t427);
        const Q t479 = flipped<0, 1, 0, 1>(t478);
        // complex block of 2
        const Q t480 = t456 + t479;
        const Q t481 = t456 - t479;
        // complex block of 2
        const Q t482 = t480 + t476;
        io.pairs(14, 15, t482);
        const Q t483 = t480 - t476;
        io.pairs(46, 47, t483);
        const Q t484 = shuffled<1, 0, 3, 2>(t477);
        const Q t485 = flipped<0, 1, 0, 1>(t484);
        // complex block of 2
        const Q t486 = t481 + t485;
        io.pairs(30, 31, t486);
        const Q t487 = t481 - t485;
        io.pairs(62, 63, t487);
    }
};

}  // namespace zulg
