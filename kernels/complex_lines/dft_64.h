// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 64.
// Complex DFT of 64 points, twiddled, inner 8, outer 8; two lines of a stage to a register.
// 138 sums, 94 differences, 62 products of registers, which do the 1304 steps of the graph, those with
// `scale` included; 117 shuffles, 68 changes of sign.
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
        0.8314696123025452,  // c[4]: cos 2 pi 6/64
        0.19509032201612828,  // c[5]: sin 2 pi 2/64
        0.5555702330196022,  // c[6]: sin 2 pi 6/64
        0.9951847266721969,  // c[7]: cos 2 pi 1/64
        0.9569403357322088,  // c[8]: cos 2 pi 3/64
        0.0980171403295606,  // c[9]: sin 2 pi 1/64
        0.2902846772544624,  // c[10]: sin 2 pi 3/64
        0.6343932841636455,  // c[11]: sin 2 pi 7/64
        0.773010453362737,  // c[12]: cos 2 pi 7/64
        0.881921264348355,  // c[13]: cos 2 pi 5/64
        0.47139673682599764,  // c[14]: sin 2 pi 5/64
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
        const Q x8_9 = io.pairs(8, 9);
        const Q x40_41 = io.pairs(40, 41);
        // complex block of 2
        const Q t2 = x8_9 + x40_41;
        const Q t3 = x8_9 - x40_41;
        const Q x16_17 = io.pairs(16, 17);
        const Q x48_49 = io.pairs(48, 49);
        // complex block of 2
        const Q t4 = x16_17 + x48_49;
        const Q t5 = x16_17 - x48_49;
        const Q x24_25 = io.pairs(24, 25);
        const Q x56_57 = io.pairs(56, 57);
        // complex block of 2
        const Q t6 = x24_25 + x56_57;
        const Q t7 = x24_25 - x56_57;
        // complex block of 2
        const Q t8 = t0 + t4;
        const Q t9 = t0 - t4;
        // complex block of 2
        const Q t10 = t2 + t6;
        const Q t11 = t2 - t6;
        // complex block of 2
        const Q t12 = t8 + t10;
        const Q t13 = t8 - t10;
        const Q t14 = shuffled<1, 0, 3, 2>(t11);
        const Q t15 = flipped<0, 1, 0, 1>(t14);
        // complex block of 2
        const Q t16 = t9 + t15;
        const Q t17 = t9 - t15;
        // complex block of 8
        const Q t18 = c[0] * t3;
        const Q t19 = shuffled<1, 0, 3, 2>(t18);
        const Q t20 = flipped<0, 1, 0, 1>(t19);
        const Q t21 = t18 + t20;
        const Q t22 = c[0] * t7;
        const Q t23 = shuffled<1, 0, 3, 2>(t22);
        const Q t24 = flipped<0, 1, 0, 1>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = shuffled<1, 0, 3, 2>(t5);
        const Q t27 = flipped<0, 1, 0, 1>(t26);
        // complex block of 2
        const Q t28 = t1 + t27;
        const Q t29 = t1 - t27;
        const Q t30 = shuffled<1, 0, 3, 2>(t25);
        const Q t31 = flipped<0, 1, 0, 1>(t30);
        // complex block of 2
        const Q t32 = t21 + t31;
        const Q t33 = t21 - t31;
        // complex block of 2
        const Q t34 = t28 + t32;
        const Q t35 = t28 - t32;
        const Q t36 = shuffled<1, 0, 3, 2>(t33);
        const Q t37 = flipped<0, 1, 0, 1>(t36);
        // complex block of 2
        const Q t38 = t29 + t37;
        const Q t39 = t29 - t37;
        const Q x2_3 = io.pairs(2, 3);
        const Q x34_35 = io.pairs(34, 35);
        // complex block of 2
        const Q t40 = x2_3 + x34_35;
        const Q t41 = x2_3 - x34_35;
        const Q x10_11 = io.pairs(10, 11);
        const Q x42_43 = io.pairs(42, 43);
        // complex block of 2
        const Q t42 = x10_11 + x42_43;
        const Q t43 = x10_11 - x42_43;
        const Q x18_19 = io.pairs(18, 19);
        const Q x50_51 = io.pairs(50, 51);
        // complex block of 2
        const Q t44 = x18_19 + x50_51;
        const Q t45 = x18_19 - x50_51;
        const Q x26_27 = io.pairs(26, 27);
        const Q x58_59 = io.pairs(58, 59);
        // complex block of 2
        const Q t46 = x26_27 + x58_59;
        const Q t47 = x26_27 - x58_59;
        // complex block of 2
        const Q t48 = t40 + t44;
        const Q t49 = t40 - t44;
        // complex block of 2
        const Q t50 = t42 + t46;
        const Q t51 = t42 - t46;
        // complex block of 2
        const Q t52 = t48 + t50;
        const Q t53 = t48 - t50;
        const Q t54 = shuffled<1, 0, 3, 2>(t51);
        const Q t55 = flipped<0, 1, 0, 1>(t54);
        // complex block of 2
        const Q t56 = t49 + t55;
        const Q t57 = t49 - t55;
        // complex block of 8
        const Q t58 = c[0] * t43;
        const Q t59 = shuffled<1, 0, 3, 2>(t58);
        const Q t60 = flipped<0, 1, 0, 1>(t59);
        const Q t61 = t58 + t60;
        const Q t62 = c[0] * t47;
        const Q t63 = shuffled<1, 0, 3, 2>(t62);
        const Q t64 = flipped<0, 1, 0, 1>(t63);
        const Q t65 = t62 + t64;
        const Q t66 = shuffled<1, 0, 3, 2>(t45);
        const Q t67 = flipped<0, 1, 0, 1>(t66);
        // complex block of 2
        const Q t68 = t41 + t67;
        const Q t69 = t41 - t67;
        const Q t70 = shuffled<1, 0, 3, 2>(t65);
        const Q t71 = flipped<0, 1, 0, 1>(t70);
        // complex block of 2
        const Q t72 = t61 + t71;
        const Q t73 = t61 - t71;
        // complex block of 2
        const Q t74 = t68 + t72;
        const Q t75 = t68 - t72;
        const Q t76 = shuffled<1, 0, 3, 2>(t73);
        const Q t77 = flipped<0, 1, 0, 1>(t76);
        // complex block of 2
        const Q t78 = t69 + t77;
        const Q t79 = t69 - t77;
        const Q x4_5 = io.pairs(4, 5);
        const Q x36_37 = io.pairs(36, 37);
        // complex block of 2
        const Q t80 = x4_5 + x36_37;
        const Q t81 = x4_5 - x36_37;
        const Q x12_13 = io.pairs(12, 13);
        const Q x44_45 = io.pairs(44, 45);
        // complex block of 2
        const Q t82 = x12_13 + x44_45;
        const Q t83 = x12_13 - x44_45;
        const Q x20_21 = io.pairs(20, 21);
        const Q x52_53 = io.pairs(52, 53);
        // complex block of 2
        const Q t84 = x20_21 + x52_53;
        const Q t85 = x20_21 - x52_53;
        const Q x28_29 = io.pairs(28, 29);
        const Q x60_61 = io.pairs(60, 61);
        // complex block of 2
        const Q t86 = x28_29 + x60_61;
        const Q t87 = x28_29 - x60_61;
        // complex block of 2
        const Q t88 = t80 + t84;
        const Q t89 = t80 - t84;
        // complex block of 2
        const Q t90 = t82 + t86;
        const Q t91 = t82 - t86;
        // complex block of 2
        const Q t92 = t88 + t90;
        const Q t93 = t88 - t90;
        const Q t94 = shuffled<1, 0, 3, 2>(t91);
        const Q t95 = flipped<0, 1, 0, 1>(t94);
        // complex block of 2
        const Q t96 = t89 + t95;
        const Q t97 = t89 - t95;
        // complex block of 8
        const Q t98 = c[0] * t83;
        const Q t99 = shuffled<1, 0, 3, 2>(t98);
        const Q t100 = flipped<0, 1, 0, 1>(t99);
        const Q t101 = t98 + t100;
        const Q t102 = c[0] * t87;
        const Q t103 = shuffled<1, 0, 3, 2>(t102);
        const Q t104 = flipped<0, 1, 0, 1>(t103);
        const Q t105 = t102 + t104;
        const Q t106 = shuffled<1, 0, 3, 2>(t85);
        const Q t107 = flipped<0, 1, 0, 1>(t106);
        // complex block of 2
        const Q t108 = t81 + t107;
        const Q t109 = t81 - t107;
        const Q t110 = shuffled<1, 0, 3, 2>(t105);
        const Q t111 = flipped<0, 1, 0, 1>(t110);
        // complex block of 2
        const Q t112 = t101 + t111;
        const Q t113 = t101 - t111;
        // complex block of 2
        const Q t114 = t108 + t112;
        const Q t115 = t108 - t112;
        const Q t116 = shuffled<1, 0, 3, 2>(t113);
        const Q t117 = flipped<0, 1, 0, 1>(t116);
        // complex block of 2
        const Q t118 = t109 + t117;
        const Q t119 = t109 - t117;
        const Q x6_7 = io.pairs(6, 7);
        const Q x38_39 = io.pairs(38, 39);
        // complex block of 2
        const Q t120 = x6_7 + x38_39;
        const Q t121 = x6_7 - x38_39;
        const Q x14_15 = io.pairs(14, 15);
        const Q x46_47 = io.pairs(46, 47);
        // complex block of 2
        const Q t122 = x14_15 + x46_47;
        const Q t123 = x14_15 - x46_47;
        const Q x22_23 = io.pairs(22, 23);
        const Q x54_55 = io.pairs(54, 55);
        // complex block of 2
        const Q t124 = x22_23 + x54_55;
        const Q t125 = x22_23 - x54_55;
        const Q x30_31 = io.pairs(30, 31);
        const Q x62_63 = io.pairs(62, 63);
        // complex block of 2
        const Q t126 = x30_31 + x62_63;
        const Q t127 = x30_31 - x62_63;
        // complex block of 2
        const Q t128 = t120 + t124;
        const Q t129 = t120 - t124;
        // complex block of 2
        const Q t130 = t122 + t126;
        const Q t131 = t122 - t126;
        // complex block of 2
        const Q t132 = t128 + t130;
        const Q t133 = t128 - t130;
        const Q t134 = shuffled<1, 0, 3, 2>(t131);
        const Q t135 = flipped<0, 1, 0, 1>(t134);
        // complex block of 2
        const Q t136 = t129 + t135;
        const Q t137 = t129 - t135;
        // complex block of 8
        const Q t138 = c[0] * t123;
        const Q t139 = shuffled<1, 0, 3, 2>(t138);
        const Q t140 = flipped<0, 1, 0, 1>(t139);
        const Q t141 = t138 + t140;
        const Q t142 = c[0] * t127;
        const Q t143 = shuffled<1, 0, 3, 2>(t142);
        const Q t144 = flipped<0, 1, 0, 1>(t143);
        const Q t145 = t142 + t144;
        const Q t146 = shuffled<1, 0, 3, 2>(t125);
        const Q t147 = flipped<0, 1, 0, 1>(t146);
        // complex block of 2
        const Q t148 = t121 + t147;
        const Q t149 = t121 - t147;
        const Q t150 = shuffled<1, 0, 3, 2>(t145);
        const Q t151 = flipped<0, 1, 0, 1>(t150);
        // complex block of 2
        const Q t152 = t141 + t151;
        const Q t153 = t141 - t151;
        // complex block of 2
        const Q t154 = t148 + t152;
        const Q t155 = t148 - t152;
        const Q t156 = shuffled<1, 0, 3, 2>(t153);
        const Q t157 = flipped<0, 1, 0, 1>(t156);
        // complex block of 2
        const Q t158 = t149 + t157;
        const Q t159 = t149 - t157;
        const Q t160 = shuffled<2, 3, 6, 7>(t34, t38);
        // complex block of 64
        const Q t161 = Q(c[7], c[7], c[8], c[8]) * t160;
        const Q t162 = shuffled<1, 0, 3, 2>(t160);
        const Q t163 = Q(c[9], -c[9], c[10], -c[10]) * t162;
        const Q t164 = t161 + t163;
        const Q t165 = shuffled<0, 1, 4, 5>(t74, t78);
        const Q t166 = Q(c[3], c[3], c[4], c[4]) * t165;
        const Q t167 = shuffled<1, 0, 3, 2>(t165);
        const Q t168 = Q(c[5], -c[5], c[6], -c[6]) * t167;
        const Q t169 = t166 + t168;
        const Q t170 = shuffled<2, 3, 6, 7>(t74, t78);
        const Q t171 = Q(c[8], c[8], c[11], c[11]) * t170;
        const Q t172 = shuffled<1, 0, 3, 2>(t170);
        const Q t173 = Q(c[10], -c[10], c[12], -c[12]) * t172;
        const Q t174 = t171 + t173;
        const Q t175 = shuffled<0, 1, 4, 5>(t114, t118);
        const Q t176 = Q(c[1], c[1], c[2], c[2]) * t175;
        const Q t177 = shuffled<1, 0, 3, 2>(t175);
        const Q t178 = Q(c[2], -c[2], c[1], -c[1]) * t177;
        const Q t179 = t176 + t178;
        const Q t180 = shuffled<2, 3, 6, 7>(t114, t118);
        const Q t181 = Q(c[13], c[13], c[9], c[9]) * t180;
        const Q t182 = shuffled<1, 0, 3, 2>(t180);
        const Q t183 = Q(c[14], -c[14], c[7], -c[7]) * t182;
        const Q t184 = t181 + t183;
        const P t185 = part<0>(t154);
        const P t186 = shuffled<1, 0>(t185);
        const P t187 = part<0>(t158);
        const Q t188 = joined(t186, t187);
        const Q t189 = Q(c[6], -c[6], -c[5], c[5]) * t188;
        const Q t190 = shuffled<1, 0, 3, 2>(t188);
        const Q t191 = Q(c[4], c[4], c[3], c[3]) * t190;
        const Q t192 = t189 + t191;
        const Q t193 = shuffled<2, 3, 6, 7>(t154, t158);
        const Q t194 = shuffled<1, 0, 2, 3>(t193);
        const Q t195 = Q(c[11], -c[11], -c[14], c[14]) * t194;
        const Q t196 = shuffled<1, 0, 3, 2>(t194);
        const Q t197 = Q(c[12], c[12], c[13], c[13]) * t196;
        const Q t198 = t195 + t197;
        const Q t199 = shuffled<0, 1, 4, 5>(t34, t38);
        // complex block of 2
        const Q t200 = t199 + t179;
        const Q t201 = t199 - t179;
        // complex block of 2
        const Q t202 = t164 + t184;
        const Q t203 = t164 - t184;
        const Q t204 = flipped<0, 0, 0, 1>(t192);
        // complex block of 2
        const Q t205 = t169 + t204;
        const Q t206 = t169 - t204;
        const Q t207 = flipped<0, 0, 0, 1>(t198);
        // complex block of 2
        const Q t208 = t174 + t207;
        const Q t209 = t174 - t207;
        // complex block of 2
        const Q t210 = t200 + t205;
        const Q t211 = t200 - t205;
        // complex block of 2
        const Q t212 = t202 + t208;
        const Q t213 = t202 - t208;
        // complex block of 2
        const Q t214 = t210 + t212;
        io.pairs(1, 3, t214);
        const Q t215 = t210 - t212;
        io.pairs(33, 35, t215);
        const Q t216 = shuffled<1, 0, 3, 2>(t213);
        const Q t217 = flipped<0, 1, 0, 1>(t216);
        // complex block of 2
        const Q t218 = t211 + t217;
        io.pairs(17, 19, t218);
        const Q t219 = t211 - t217;
        io.pairs(49, 51, t219);
        // complex block of 8
        const Q t220 = c[0] * t203;
        const Q t221 = shuffled<1, 0, 3, 2>(t220);
        const Q t222 = flipped<0, 1, 0, 1>(t221);
        const Q t223 = t220 + t222;
        const Q t224 = c[0] * t209;
        const Q t225 = shuffled<1, 0, 3, 2>(t224);
        const Q t226 = flipped<0, 1, 0, 1>(t225);
        const Q t227 = t224 + t226;
        const Q t228 = shuffled<1, 0, 3, 2>(t206);
        const Q t229 = flipped<0, 1, 0, 1>(t228);
        // complex block of 2
        const Q t230 = t201 + t229;
        const Q t231 = t201 - t229;
        const Q t232 = shuffled<1, 0, 3, 2>(t227);
        const Q t233 = flipped<0, 1, 0, 1>(t232);
        // complex block of 2
        const Q t234 = t223 + t233;
        const Q t235 = t223 - t233;
        // complex block of 2
        const Q t236 = t230 + t234;
        io.pairs(9, 11, t236);
        const Q t237 = t230 - t234;
        io.pairs(41, 43, t237);
        const Q t238 = shuffled<1, 0, 3, 2>(t235);
        const Q t239 = flipped<0, 1, 0, 1>(t238);
        // complex block of 2
        const Q t240 = t231 + t239;
        io.pairs(25, 27, t240);
        const Q t241 = t231 - t239;
        io.pairs(57, 59, t241);
        const Q t242 = shuffled<2, 3, 6, 7>(t13, t53);
        // complex block of 64
        const Q t243 = Q(c[1], c[1], c[2], c[2]) * t242;
        const Q t244 = shuffled<1, 0, 3, 2>(t242);
        const Q t245 = Q(c[2], -c[2], c[1], -c[1]) * t244;
        const Q t246 = t243 + t245;
        const Q t247 = shuffled<0, 1, 4, 5>(t53, t133);
        const Q t248 = c[0] * t247;
        const Q t249 = shuffled<1, 0, 3, 2>(t248);
        const Q t250 = flipped<0, 1, 0, 1>(t249);
        const Q t251 = t248 + t250;
        const Q t252 = shuffled<2, 3, 6, 7>(t93, t133);
        const Q t253 = Q(-c[2], c[2], -c[1], c[1]) * t252;
        const Q t254 = shuffled<1, 0, 3, 2>(t252);
        const Q t255 = Q(c[1], c[1], c[2], c[2]) * t254;
        const Q t256 = t253 + t255;
        const Q t257 = shuffled<0, 1, 4, 5>(t12, t13);
        const P t258 = part<0>(t92);
        const P t259 = part<0>(t93);
        const P t260 = shuffled<1, 0>(t259);
        const P t261 = flipped<0, 1>(t260);
        const Q t262 = joined(t258, t261);
        // complex block of 2
        const Q t263 = t257 + t262;
        const Q t264 = t257 - t262;
        const Q t265 = shuffled<2, 3, 4, 5>(t12, t246);
        const Q t266 = shuffled<2, 3, 4, 5>(t92, t256);
        const Q t267 = flipped<0, 0, 0, 1>(t266);
        // complex block of 2
        const Q t268 = t265 + t267;
        const Q t269 = t265 - t267;
        const Q t270 = shuffled<0, 1, 4, 5>(t52, t251);
        const Q t271 = shuffled<0, 1, 6, 7>(t132, t251);
        const Q t272 = shuffled<0, 1, 3, 2>(t271);
        const Q t273 = flipped<0, 0, 0, 1>(t272);
        // complex block of 2
        const Q t274 = t270 + t273;
        const Q t275 = t270 - t273;
        const Q t276 = shuffled<2, 3, 6, 7>(t52, t246);
        const Q t277 = shuffled<2, 3, 6, 7>(t132, t256);
        const Q t278 = flipped<0, 0, 0, 1>(t277);
        // complex block of 2
        const Q t279 = t276 + t278;
        const Q t280 = t276 - t278;
        // complex block of 2
        const Q t281 = t263 + t274;
        const Q t282 = t263 - t274;
        // complex block of 2
        const Q t283 = t268 + t279;
        const Q t284 = t268 - t279;
        // complex block of 2
        const Q t285 = t281 + t283;
        io.pairs(0, 4, t285);
        const Q t286 = t281 - t283;
        io.pairs(32, 36, t286);
        const Q t287 = shuffled<1, 0, 3, 2>(t284);
        const Q t288 = flipped<0, 1, 0, 1>(t287);
        // complex block of 2
        const Q t289 = t282 + t288;
        io.pairs(16, 20, t289);
        const Q t290 = t282 - t288;
        io.pairs(48, 52, t290);
        // complex block of 8
        const Q t291 = c[0] * t269;
        const Q t292 = shuffled<1, 0, 3, 2>(t291);
        const Q t293 = flipped<0, 1, 0, 1>(t292);
        const Q t294 = t291 + t293;
        const Q t295 = c[0] * t280;
        const Q t296 = shuffled<1, 0, 3, 2>(t295);
        const Q t297 = flipped<0, 1, 0, 1>(t296);
        const Q t298 = t295 + t297;
        const Q t299 = shuffled<1, 0, 3, 2>(t275);
        const Q t300 = flipped<0, 1, 0, 1>(t299);
        // complex block of 2
        const Q t301 = t264 + t300;
        const Q t302 = t264 - t300;
        const Q t303 = shuffled<1, 0, 3, 2>(t298);
        const Q t304 = flipped<0, 1, 0, 1>(t303);
        // complex block of 2
        const Q t305 = t294 + t304;
        const Q t306 = t294 - t304;
        // complex block of 2
        const Q t307 = t301 + t305;
        io.pairs(8, 12, t307);
        const Q t308 = t301 - t305;
        io.pairs(40, 44, t308);
        const Q t309 = shuffled<1, 0, 3, 2>(t306);
        const Q t310 = flipped<0, 1, 0, 1>(t309);
        // complex block of 2
        const Q t311 = t302 + t310;
        io.pairs(24, 28, t311);
        const Q t312 = t302 - t310;
        io.pairs(56, 60, t312);
        const Q t313 = shuffled<2, 3, 6, 7>(t16, t17);
        // complex block of 64
        const Q t314 = Q(c[3], c[3], c[4], c[4]) * t313;
        const Q t315 = shuffled<1, 0, 3, 2>(t313);
        const Q t316 = Q(c[5], -c[5], c[6], -c[6]) * t315;
        const Q t317 = t314 + t316;
        const Q t318 = shuffled<0, 1, 4, 5>(t56, t57);
        const Q t319 = Q(c[1], c[1], c[2], c[2]) * t318;
        const Q t320 = shuffled<1, 0, 3, 2>(t318);
        const Q t321 = Q(c[2], -c[2], c[1], -c[1]) * t320;
        const Q t322 = t319 + t321;
        const Q t323 = shuffled<2, 3, 6, 7>(t56, t57);
        const Q t324 = shuffled<1, 0, 2, 3>(t323);
        const Q t325 = Q(c[6], -c[6], -c[5], c[5]) * t324;
        const Q t326 = shuffled<1, 0, 3, 2>(t324);
        const Q t327 = Q(c[4], c[4], c[3], c[3]) * t326;
        const Q t328 = t325 + t327;
        const Q t329 = shuffled<0, 1, 4, 5>(t96, t97);
        const Q t330 = c[0] * t329;
        const Q t331 = shuffled<1, 0, 3, 2>(t330);
        const Q t332 = flipped<0, 1, 0, 1>(t331);
        const Q t333 = t330 + t332;
        const Q t334 = shuffled<2, 3, 6, 7>(t96, t97);
        const Q t335 = shuffled<1, 0, 2, 3>(t334);
        const Q t336 = Q(c[4], -c[4], -c[3], c[3]) * t335;
        const Q t337 = shuffled<1, 0, 3, 2>(t335);
        const Q t338 = Q(c[6], c[6], c[5], c[5]) * t337;
        const Q t339 = t336 + t338;
        const Q t340 = shuffled<0, 1, 4, 5>(t136, t137);
        const Q t341 = shuffled<1, 0, 3, 2>(t340);
        const Q t342 = Q(c[1], -c[1], c[2], c[2]) * t341;
        const Q t343 = Q(c[2], c[2], c[1], -c[1]) * t340;
        const Q t344 = t342 + t343;
        const Q t345 = shuffled<2, 3, 6, 7>(t136, t137);
        const Q t346 = shuffled<1, 0, 3, 2>(t345);
        const Q t347 = Q(c[3], -c[3], c[4], c[4]) * t346;
        const Q t348 = Q(c[5], c[5], c[6], -c[6]) * t345;
        const Q t349 = t347 + t348;
        const Q t350 = shuffled<0, 1, 4, 5>(t16, t17);
        const Q t351 = shuffled<0, 5, 3, 6>(t333, t333);
        const Q t352 = flipped<0, 0, 0, 1>(t351);
        // complex block of 2
        const Q t353 = t350 + t352;
        const Q t354 = t350 - t352;
        const Q t355 = flipped<0, 0, 0, 1>(t339);
        // complex block of 2
        const Q t356 = t317 + t355;
        const Q t357 = t317 - t355;
        const Q t358 = flipped<0, 0, 1, 0>(t344);
        // complex block of 2
        const Q t359 = t322 + t358;
        const Q t360 = t322 - t358;
        const Q t361 = flipped<0, 0, 1, 0>(t349);
        const Q t362 = flipped<0, 0, 0, 1>(t328);
        // complex block of 2
        const Q t363 = t361 + t362;
        const Q t364 = flipped<1, 1, 1, 0>(t361);
        const Q t365 = t328 + t364;
        // complex block of 2
        const Q t366 = t353 + t359;
        const Q t367 = t353 - t359;
        // complex block of 2
        const Q t368 = t356 + t363;
        const Q t369 = t356 - t363;
        // complex block of 2
        const Q t370 = t366 + t368;
        io.pairs(2, 6, t370);
        const Q t371 = t366 - t368;
        io.pairs(34, 38, t371);
        const Q t372 = shuffled<1, 0, 3, 2>(t369);
        const Q t373 = flipped<0, 1, 0, 1>(t372);
        // complex block of 2
        const Q t374 = t367 + t373;
        io.pairs(18, 22, t374);
        const Q t375 = t367 - t373;
        io.pairs(50, 54, t375);
        // complex block of 8
        const Q t376 = c[0] * t357;
        const Q t377 = shuffled<1, 0, 3, 2>(t376);
        const Q t378 = flipped<0, 1, 0, 1>(t377);
        const Q t379 = t376 + t378;
        const Q t380 = c[0] * t365;
        const Q t381 = shuffled<1, 0, 3, 2>(t380);
        const Q t382 = flipped<0, 1, 1, 0>(t381);
        const Q t383 = t380 + t382;
        const Q t384 = shuffled<1, 0, 3, 2>(t360);
        const Q t385 = flipped<0, 1, 0, 1>(t384);
        // complex block of 2
        const Q t386 = t354 + t385;
        const Q t387 = t354 - t385;
        const Q t388 = shuffled<1, 0, 3, 2>(t383);
        const Q t389 = flipped<1, 0, 0, 0>(t388);
        // complex block of 2
        const Q t390 = t379 - t389;
        const Q t391 = t379 + t389;
        // complex block of 2
        const Q t392 = t386 + t390;
        io.pairs(10, 14, t392);
        const Q t393 = t386 - t390;
        io.pairs(42, 46, t393);
        const Q t394 = shuffled<1, 0, 3, 2>(t391);
        const Q t395 = flipped<0, 1, 0, 1>(t394);
        // complex block of 2
        const Q t396 = t387 + t395;
        io.pairs(26, 30, t396);
        const Q t397 = t387 - t395;
        io.pairs(58, 62, t397);
        const Q t398 = shuffled<2, 3, 6, 7>(t35, t39);
        // complex block of 64
        const Q t399 = Q(c[13], c[13], c[12], c[12]) * t398;
        const Q t400 = shuffled<1, 0, 3, 2>(t398);
        const Q t401 = Q(c[14], -c[14], c[11], -c[11]) * t400;
        const Q t402 = t399 + t401;
        const Q t403 = shuffled<0, 1, 4, 5>(t75, t79);
        const Q t404 = Q(c[6], c[6], c[5], c[5]) * t403;
        const Q t405 = shuffled<1, 0, 3, 2>(t403);
        const Q t406 = Q(c[4], -c[4], c[3], -c[3]) * t405;
        const Q t407 = t404 + t406;
        const Q t408 = shuffled<2, 3, 6, 7>(t75, t79);
        const Q t409 = shuffled<1, 0, 2, 3>(t408);
        const Q t410 = Q(c[7], -c[7], -c[14], c[14]) * t409;
        const Q t411 = shuffled<1, 0, 3, 2>(t409);
        const Q t412 = Q(c[9], c[9], c[13], c[13]) * t411;
        const Q t413 = t410 + t412;
        const Q t414 = shuffled<0, 1, 4, 5>(t115, t119);
        const Q t415 = Q(-c[2], c[2], -c[1], c[1]) * t414;
        const Q t416 = shuffled<1, 0, 3, 2>(t414);
        const Q t417 = Q(c[1], c[1], c[2], c[2]) * t416;
        const Q t418 = t415 + t417;
        const Q t419 = shuffled<2, 3, 6, 7>(t115, t119);
        const Q t420 = shuffled<0, 1, 3, 2>(t419);
        const Q t421 = Q(-c[12], c[12], c[10], c[10]) * t420;
        const Q t422 = shuffled<1, 0, 3, 2>(t420);
        const Q t423 = Q(c[11], c[11], c[8], -c[8]) * t422;
        const Q t424 = t421 + t423;
        const P t425 = part<0>(t155);
        const P t426 = part<0>(t159);
        const P t427 = shuffled<1, 0>(t426);
        const Q t428 = joined(t425, t427);
        const Q t429 = Q(-c[3], c[3], c[4], c[4]) * t428;
        const Q t430 = shuffled<1, 0, 3, 2>(t428);
        const Q t431 = Q(c[5], c[5], c[6], -c[6]) * t430;
        const Q t432 = t429 + t431;
        const Q t433 = shuffled<2, 3, 6, 7>(t155, t159);
        const Q t434 = Q(c[8], -c[8], c[9], c[9]) * t433;
        const Q t435 = shuffled<1, 0, 3, 2>(t433);
        const Q t436 = Q(c[10], c[10], -c[7], c[7]) * t435;
        const Q t437 = t434 + t436;
        const Q t438 = shuffled<0, 1, 4, 5>(t35, t39);
        const Q t439 = flipped<0, 1, 0, 1>(t418);
        // complex block of 2
        const Q t440 = t438 + t439;
        const Q t441 = t438 - t439;
        const Q t442 = flipped<0, 1, 1, 0>(t424);
        // complex block of 2
        const Q t443 = t402 + t442;
        const Q t444 = t402 - t442;
        const Q t445 = flipped<0, 1, 1, 0>(t432);
        // complex block of 2
        const Q t446 = t407 + t445;
        const Q t447 = t407 - t445;
        const Q t448 = flipped<1, 0, 0, 0>(t437);
        const Q t449 = flipped<0, 0, 0, 1>(t413);
        // complex block of 2
        const Q t450 = t448 + t449;
        const Q t451 = flipped<1, 1, 1, 0>(t448);
        const Q t452 = t413 + t451;
        // complex block of 2
        const Q t453 = t440 + t446;
        const Q t454 = t440 - t446;
        // complex block of 2
        const Q t455 = t443 + t450;
        const Q t456 = t443 - t450;
        // complex block of 2
        const Q t457 = t453 + t455;
        io.pairs(5, 7, t457);
        const Q t458 = t453 - t455;
        io.pairs(37, 39, t458);
        const Q t459 = shuffled<1, 0, 3, 2>(t456);
        const Q t460 = flipped<0, 1, 0, 1>(t459);
        // complex block of 2
        const Q t461 = t454 + t460;
        io.pairs(21, 23, t461);
        const Q t462 = t454 - t460;
        io.pairs(53, 55, t462);
        // complex block of 8
        const Q t463 = c[0] * t444;
        const Q t464 = shuffled<1, 0, 3, 2>(t463);
        const Q t465 = flipped<0, 1, 0, 1>(t464);
        const Q t466 = t463 + t465;
        const Q t467 = c[0] * t452;
        const Q t468 = shuffled<1, 0, 3, 2>(t467);
        const Q t469 = flipped<0, 1, 1, 0>(t468);
        const Q t470 = t467 + t469;
        const Q t471 = shuffled<1, 0, 3, 2>(t447);
        const Q t472 = flipped<0, 1, 0, 1>(t471);
        // complex block of 2
        const Q t473 = t441 + t472;
        const Q t474 = t441 - t472;
        const Q t475 = shuffled<1, 0, 3, 2>(t470);
        const Q t476 = flipped<1, 0, 0, 0>(t475);
        // complex block of 2
        const Q t477 = t466 - t476;
        const Q t478 = t466 + t476;
        // complex block of 2
        const Q t479 = t473 + t477;
        io.pairs(13, 15, t479);
        const Q t480 = t473 - t477;
        io.pairs(45, 47, t480);
        const Q t481 = shuffled<1, 0, 3, 2>(t478);
        const Q t482 = flipped<0, 1, 0, 1>(t481);
        // complex block of 2
        const Q t483 = t474 + t482;
        io.pairs(29, 31, t483);
        const Q t484 = t474 - t482;
        io.pairs(61, 63, t484);
    }
};

}  // namespace zulg
