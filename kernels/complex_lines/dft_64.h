// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 64.
// Complex DFT of 64 points, twiddled, inner 8, outer 8; two lines of a stage to a register.
// 138 sums, 94 differences, 62 products of registers, which do the 1304 steps of the graph, those with
// `scale` included; 116 shuffles, 68 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<64> {
    static constexpr int steps = 1304;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 4/64
        0.9238795325112867,  // c[2]: cos 2 pi 4/64
        0.9807852804032304,  // c[3]: cos 2 pi 2/64
        0.8314696123025452,  // c[4]: cos 2 pi 6/64
        0.19509032201612828,  // c[5]: sin 2 pi 2/64
        0.5555702330196022,  // c[6]: sin 2 pi 6/64
        0.9951847266721969,  // c[7]: cos 2 pi 1/64
        0.9569403357322088,  // c[8]: cos 2 pi 3/64
        0.0980171403295606,  // c[9]: sin 2 pi 1/64
        0.2902846772544624,  // c[10]: sin 2 pi 3/64
        0.881921264348355,  // c[11]: cos 2 pi 5/64
        0.47139673682599764,  // c[12]: sin 2 pi 5/64
        0.6343932841636455,  // c[13]: sin 2 pi 7/64
        0.773010453362737,  // c[14]: cos 2 pi 7/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
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
        // complex block of 2
        const Q t98 = t14 - t58;
        // complex block of 2
        const Q t99 = t24 - t72;
        // complex block of 2
        const Q t100 = t34 - t86;
        const Q t101 = shuffled<2, 3, 6, 7>(t98, t97);
        // complex block of 64
        const Q t102 = Q(c[1], c[1], c[2], c[2]) * t101;
        const Q t103 = shuffled<1, 0, 3, 2>(t101);
        const Q t104 = Q(c[2], -c[2], c[1], -c[1]) * t103;
        const Q t105 = t102 + t104;
        const Q t106 = shuffled<2, 3, 6, 7>(t100, t99);
        const Q t107 = Q(-c[2], c[2], -c[1], c[1]) * t106;
        const Q t108 = shuffled<1, 0, 3, 2>(t106);
        const Q t109 = Q(c[1], c[1], c[2], c[2]) * t108;
        const Q t110 = t107 + t109;
        const Q t111 = shuffled<1, 0, 3, 2>(t45);
        const Q t112 = flipped<0, 1, 0, 1>(t111);
        // complex block of 2
        const Q t113 = t5 + t112;
        const Q t114 = t5 - t112;
        const Q t115 = shuffled<2, 3, 6, 7>(t113, t114);
        // complex block of 64
        const Q t116 = Q(c[3], c[3], c[4], c[4]) * t115;
        const Q t117 = shuffled<1, 0, 3, 2>(t115);
        const Q t118 = Q(c[5], -c[5], c[6], -c[6]) * t117;
        const Q t119 = t116 + t118;
        const Q t120 = shuffled<1, 0, 3, 2>(t53);
        const Q t121 = flipped<0, 1, 0, 1>(t120);
        // complex block of 2
        const Q t122 = t49 + t121;
        // complex block of 2
        const Q t123 = t8 + t122;
        const Q t124 = t8 - t122;
        // complex block of 2
        const Q t125 = t49 - t121;
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
        const Q t135 = shuffled<1, 0, 3, 2>(t133);
        const Q t136 = shuffled<2, 3, 6, 7>(t135, t134);
        // complex block of 64
        const Q t137 = Q(c[6], -c[6], -c[5], c[5]) * t136;
        const Q t138 = shuffled<1, 0, 3, 2>(t136);
        const Q t139 = Q(c[4], c[4], c[3], c[3]) * t138;
        const Q t140 = t137 + t139;
        const Q t141 = shuffled<1, 0, 3, 2>(t67);
        const Q t142 = flipped<0, 1, 0, 1>(t141);
        // complex block of 2
        const Q t143 = t63 + t142;
        // complex block of 2
        const Q t144 = t18 + t143;
        const Q t145 = t18 - t143;
        // complex block of 2
        const Q t146 = t63 - t142;
        const Q t147 = shuffled<1, 0, 3, 2>(t146);
        const Q t148 = flipped<0, 1, 0, 1>(t147);
        // complex block of 2
        const Q t149 = t19 + t148;
        const Q t150 = t19 - t148;
        // complex block of 2
        const Q t151 = t24 + t72;
        const Q t152 = shuffled<1, 0, 3, 2>(t73);
        const Q t153 = flipped<0, 1, 0, 1>(t152);
        // complex block of 2
        const Q t154 = t25 + t153;
        const Q t155 = t25 - t153;
        const Q t156 = shuffled<1, 0, 3, 2>(t154);
        const Q t157 = shuffled<2, 3, 6, 7>(t156, t155);
        // complex block of 64
        const Q t158 = Q(c[4], -c[4], -c[3], c[3]) * t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t157);
        const Q t160 = Q(c[6], c[6], c[5], c[5]) * t159;
        const Q t161 = t158 + t160;
        const Q t162 = shuffled<1, 0, 3, 2>(t81);
        const Q t163 = flipped<0, 1, 0, 1>(t162);
        // complex block of 2
        const Q t164 = t77 + t163;
        // complex block of 2
        const Q t165 = t28 + t164;
        const Q t166 = t28 - t164;
        // complex block of 2
        const Q t167 = t77 - t163;
        const Q t168 = shuffled<1, 0, 3, 2>(t167);
        const Q t169 = flipped<0, 1, 0, 1>(t168);
        // complex block of 2
        const Q t170 = t29 + t169;
        const Q t171 = t29 - t169;
        // complex block of 2
        const Q t172 = t34 + t86;
        const Q t173 = shuffled<1, 0, 3, 2>(t87);
        const Q t174 = flipped<0, 1, 0, 1>(t173);
        // complex block of 2
        const Q t175 = t35 + t174;
        const Q t176 = t35 - t174;
        const Q t177 = shuffled<2, 3, 6, 7>(t175, t176);
        const Q t178 = shuffled<1, 0, 3, 2>(t177);
        // complex block of 64
        const Q t179 = Q(c[3], -c[3], c[4], c[4]) * t178;
        const Q t180 = Q(c[5], c[5], c[6], -c[6]) * t177;
        const Q t181 = t179 + t180;
        const Q t182 = shuffled<1, 0, 3, 2>(t95);
        const Q t183 = flipped<0, 1, 0, 1>(t182);
        // complex block of 2
        const Q t184 = t91 + t183;
        // complex block of 2
        const Q t185 = t38 + t184;
        const Q t186 = t38 - t184;
        // complex block of 2
        const Q t187 = t91 - t183;
        const Q t188 = shuffled<1, 0, 3, 2>(t187);
        const Q t189 = flipped<0, 1, 0, 1>(t188);
        // complex block of 2
        const Q t190 = t39 + t189;
        const Q t191 = t39 - t189;
        const Q t192 = shuffled<2, 3, 6, 7>(t123, t128);
        // complex block of 64
        const Q t193 = Q(c[7], c[7], c[8], c[8]) * t192;
        const Q t194 = shuffled<1, 0, 3, 2>(t192);
        const Q t195 = Q(c[9], -c[9], c[10], -c[10]) * t194;
        const Q t196 = t193 + t195;
        const Q t197 = shuffled<2, 3, 6, 7>(t165, t170);
        const Q t198 = Q(c[11], c[11], c[9], c[9]) * t197;
        const Q t199 = shuffled<1, 0, 3, 2>(t197);
        const Q t200 = Q(c[12], -c[12], c[7], -c[7]) * t199;
        const Q t201 = t198 + t200;
        // complex block of 2
        const Q t202 = t196 - t201;
        const Q t203 = t196 + t201;
        const Q t204 = shuffled<0, 1, 4, 5>(t144, t149);
        // complex block of 64
        const Q t205 = Q(c[3], c[3], c[4], c[4]) * t204;
        const Q t206 = shuffled<1, 0, 3, 2>(t204);
        const Q t207 = Q(c[5], -c[5], c[6], -c[6]) * t206;
        const Q t208 = t205 + t207;
        const Q t209 = shuffled<1, 0, 3, 2>(t185);
        const Q t210 = shuffled<0, 1, 4, 5>(t209, t190);
        const Q t211 = Q(c[6], -c[6], -c[5], c[5]) * t210;
        const Q t212 = shuffled<1, 0, 3, 2>(t210);
        const Q t213 = Q(c[4], c[4], c[3], c[3]) * t212;
        const Q t214 = t211 + t213;
        const Q t215 = flipped<0, 0, 0, 1>(t214);
        // complex block of 2
        const Q t216 = t208 + t215;
        const Q t217 = t208 - t215;
        const Q t218 = shuffled<2, 3, 6, 7>(t144, t149);
        // complex block of 64
        const Q t219 = Q(c[8], c[8], c[13], c[13]) * t218;
        const Q t220 = shuffled<1, 0, 3, 2>(t218);
        const Q t221 = Q(c[10], -c[10], c[14], -c[14]) * t220;
        const Q t222 = t219 + t221;
        const Q t223 = shuffled<2, 3, 6, 7>(t209, t190);
        const Q t224 = Q(c[13], -c[13], -c[12], c[12]) * t223;
        const Q t225 = shuffled<1, 0, 3, 2>(t223);
        const Q t226 = Q(c[14], c[14], c[11], c[11]) * t225;
        const Q t227 = t224 + t226;
        const Q t228 = flipped<0, 0, 0, 1>(t227);
        // complex block of 2
        const Q t229 = t222 - t228;
        const Q t230 = t222 + t228;
        const Q t231 = shuffled<0, 1, 4, 5>(t165, t170);
        // complex block of 64
        const Q t232 = Q(c[2], c[2], c[1], c[1]) * t231;
        const Q t233 = shuffled<1, 0, 3, 2>(t231);
        const Q t234 = Q(c[1], -c[1], c[2], -c[2]) * t233;
        const Q t235 = t232 + t234;
        const Q t236 = shuffled<0, 1, 4, 5>(t123, t128);
        // complex block of 2
        const Q t237 = t236 + t235;
        const Q t238 = t236 - t235;
        // complex block of 2
        const Q t239 = t237 + t216;
        // complex block of 2
        const Q t240 = t203 + t230;
        // complex block of 2
        const Q t241 = t239 + t240;
        io.pairs(1, 3, t241);
        const Q t242 = t239 - t240;
        io.pairs(33, 35, t242);
        // complex block of 2
        const Q t243 = t237 - t216;
        // complex block of 2
        const Q t244 = t203 - t230;
        const Q t245 = shuffled<1, 0, 3, 2>(t244);
        const Q t246 = flipped<0, 1, 0, 1>(t245);
        // complex block of 2
        const Q t247 = t243 + t246;
        io.pairs(17, 19, t247);
        const Q t248 = t243 - t246;
        io.pairs(49, 51, t248);
        // complex block of 8
        const Q t249 = c[0] * t202;
        const Q t250 = shuffled<1, 0, 3, 2>(t249);
        const Q t251 = flipped<0, 1, 0, 1>(t250);
        const Q t252 = t249 + t251;
        const Q t253 = c[0] * t229;
        const Q t254 = shuffled<1, 0, 3, 2>(t253);
        const Q t255 = flipped<0, 1, 0, 1>(t254);
        const Q t256 = t253 + t255;
        const Q t257 = shuffled<1, 0, 3, 2>(t256);
        const Q t258 = flipped<0, 1, 0, 1>(t257);
        // complex block of 2
        const Q t259 = t252 + t258;
        const Q t260 = t252 - t258;
        const Q t261 = shuffled<1, 0, 3, 2>(t217);
        const Q t262 = flipped<0, 1, 0, 1>(t261);
        // complex block of 2
        const Q t263 = t238 + t262;
        const Q t264 = t238 - t262;
        // complex block of 2
        const Q t265 = t263 + t259;
        io.pairs(9, 11, t265);
        const Q t266 = t263 - t259;
        io.pairs(41, 43, t266);
        const Q t267 = shuffled<1, 0, 3, 2>(t260);
        const Q t268 = flipped<0, 1, 0, 1>(t267);
        // complex block of 2
        const Q t269 = t264 + t268;
        io.pairs(25, 27, t269);
        const Q t270 = t264 - t268;
        io.pairs(57, 59, t270);
        const Q t271 = shuffled<0, 1, 4, 5>(t100, t98);
        // complex block of 64
        const Q t272 = c[0] * t271;
        const Q t273 = shuffled<1, 0, 3, 2>(t272);
        const Q t274 = flipped<0, 1, 0, 1>(t273);
        const Q t275 = t272 + t274;
        const Q t276 = shuffled<0, 1, 6, 7>(t130, t275);
        const Q t277 = shuffled<1, 0, 3, 2>(t275);
        const Q t278 = shuffled<0, 1, 4, 5>(t172, t277);
        const Q t279 = flipped<0, 0, 0, 1>(t278);
        // complex block of 2
        const Q t280 = t276 + t279;
        const Q t281 = t276 - t279;
        const Q t282 = shuffled<0, 1, 4, 5>(t96, t97);
        const Q t283 = shuffled<1, 0, 3, 2>(t99);
        const Q t284 = shuffled<0, 1, 4, 5>(t151, t283);
        const Q t285 = flipped<0, 0, 0, 1>(t284);
        // complex block of 2
        const Q t286 = t282 + t285;
        const Q t287 = t282 - t285;
        const Q t288 = shuffled<2, 3, 6, 7>(t96, t105);
        const Q t289 = shuffled<2, 3, 6, 7>(t151, t110);
        const Q t290 = flipped<0, 0, 0, 1>(t289);
        // complex block of 2
        const Q t291 = t288 + t290;
        const Q t292 = shuffled<2, 3, 4, 5>(t130, t105);
        const Q t293 = shuffled<2, 3, 4, 5>(t172, t110);
        const Q t294 = flipped<0, 0, 0, 1>(t293);
        // complex block of 2
        const Q t295 = t292 + t294;
        // complex block of 2
        const Q t296 = t291 + t295;
        const Q t297 = t291 - t295;
        // complex block of 2
        const Q t298 = t288 - t290;
        // complex block of 8
        const Q t299 = c[0] * t298;
        const Q t300 = shuffled<1, 0, 3, 2>(t299);
        const Q t301 = flipped<0, 1, 0, 1>(t300);
        const Q t302 = t299 + t301;
        // complex block of 2
        const Q t303 = t292 - t294;
        // complex block of 8
        const Q t304 = c[0] * t303;
        const Q t305 = shuffled<1, 0, 3, 2>(t304);
        const Q t306 = flipped<0, 1, 0, 1>(t305);
        const Q t307 = t304 + t306;
        // complex block of 2
        const Q t308 = t286 + t280;
        // complex block of 2
        const Q t309 = t308 + t296;
        io.pairs(0, 4, t309);
        const Q t310 = t308 - t296;
        io.pairs(32, 36, t310);
        // complex block of 2
        const Q t311 = t286 - t280;
        const Q t312 = shuffled<1, 0, 3, 2>(t297);
        const Q t313 = flipped<0, 1, 0, 1>(t312);
        // complex block of 2
        const Q t314 = t311 + t313;
        io.pairs(16, 20, t314);
        const Q t315 = t311 - t313;
        io.pairs(48, 52, t315);
        const Q t316 = shuffled<1, 0, 3, 2>(t281);
        const Q t317 = flipped<0, 1, 0, 1>(t316);
        // complex block of 2
        const Q t318 = t287 + t317;
        const Q t319 = shuffled<1, 0, 3, 2>(t307);
        const Q t320 = flipped<0, 1, 0, 1>(t319);
        // complex block of 2
        const Q t321 = t302 + t320;
        // complex block of 2
        const Q t322 = t318 + t321;
        io.pairs(8, 12, t322);
        const Q t323 = t318 - t321;
        io.pairs(40, 44, t323);
        // complex block of 2
        const Q t324 = t287 - t317;
        // complex block of 2
        const Q t325 = t302 - t320;
        const Q t326 = shuffled<1, 0, 3, 2>(t325);
        const Q t327 = flipped<0, 1, 0, 1>(t326);
        // complex block of 2
        const Q t328 = t324 + t327;
        io.pairs(24, 28, t328);
        const Q t329 = t324 - t327;
        io.pairs(56, 60, t329);
        const Q t330 = shuffled<0, 1, 4, 5>(t133, t134);
        // complex block of 64
        const Q t331 = Q(c[2], c[2], c[1], c[1]) * t330;
        const Q t332 = shuffled<1, 0, 3, 2>(t330);
        const Q t333 = Q(c[1], -c[1], c[2], -c[2]) * t332;
        const Q t334 = t331 + t333;
        const Q t335 = shuffled<0, 1, 4, 5>(t175, t176);
        const Q t336 = shuffled<1, 0, 3, 2>(t335);
        const Q t337 = Q(c[2], -c[2], c[1], c[1]) * t336;
        const Q t338 = Q(c[1], c[1], c[2], -c[2]) * t335;
        const Q t339 = t337 + t338;
        const Q t340 = flipped<0, 0, 1, 0>(t339);
        // complex block of 2
        const Q t341 = t334 + t340;
        const Q t342 = t334 - t340;
        const Q t343 = shuffled<0, 1, 4, 5>(t154, t155);
        // complex block of 64
        const Q t344 = c[0] * t343;
        const Q t345 = shuffled<1, 0, 3, 2>(t344);
        const Q t346 = flipped<0, 1, 0, 1>(t345);
        const Q t347 = t344 + t346;
        const Q t348 = shuffled<0, 1, 4, 5>(t113, t114);
        const Q t349 = shuffled<0, 5, 3, 6>(t347, t347);
        const Q t350 = flipped<0, 0, 0, 1>(t349);
        // complex block of 2
        const Q t351 = t348 + t350;
        const Q t352 = t348 - t350;
        const Q t353 = flipped<0, 0, 0, 1>(t161);
        // complex block of 2
        const Q t354 = t119 + t353;
        const Q t355 = flipped<0, 0, 1, 0>(t181);
        const Q t356 = flipped<0, 0, 0, 1>(t140);
        // complex block of 2
        const Q t357 = t355 + t356;
        // complex block of 2
        const Q t358 = t354 + t357;
        const Q t359 = t354 - t357;
        // complex block of 2
        const Q t360 = t119 - t353;
        // complex block of 8
        const Q t361 = c[0] * t360;
        const Q t362 = shuffled<1, 0, 3, 2>(t361);
        const Q t363 = flipped<0, 1, 0, 1>(t362);
        const Q t364 = t361 + t363;
        const Q t365 = flipped<1, 1, 1, 0>(t355);
        // complex block of 2
        const Q t366 = t140 + t365;
        // complex block of 8
        const Q t367 = c[0] * t366;
        const Q t368 = shuffled<1, 0, 3, 2>(t367);
        const Q t369 = flipped<0, 1, 1, 0>(t368);
        const Q t370 = t367 + t369;
        // complex block of 2
        const Q t371 = t351 + t341;
        // complex block of 2
        const Q t372 = t371 + t358;
        io.pairs(2, 6, t372);
        const Q t373 = t371 - t358;
        io.pairs(34, 38, t373);
        // complex block of 2
        const Q t374 = t351 - t341;
        const Q t375 = shuffled<1, 0, 3, 2>(t359);
        const Q t376 = flipped<0, 1, 0, 1>(t375);
        // complex block of 2
        const Q t377 = t374 + t376;
        io.pairs(18, 22, t377);
        const Q t378 = t374 - t376;
        io.pairs(50, 54, t378);
        const Q t379 = shuffled<1, 0, 3, 2>(t342);
        const Q t380 = flipped<0, 1, 0, 1>(t379);
        // complex block of 2
        const Q t381 = t352 + t380;
        const Q t382 = shuffled<1, 0, 3, 2>(t370);
        const Q t383 = flipped<1, 0, 0, 0>(t382);
        // complex block of 2
        const Q t384 = t364 - t383;
        // complex block of 2
        const Q t385 = t381 + t384;
        io.pairs(10, 14, t385);
        const Q t386 = t381 - t384;
        io.pairs(42, 46, t386);
        // complex block of 2
        const Q t387 = t352 - t380;
        // complex block of 2
        const Q t388 = t364 + t383;
        const Q t389 = shuffled<1, 0, 3, 2>(t388);
        const Q t390 = flipped<0, 1, 0, 1>(t389);
        // complex block of 2
        const Q t391 = t387 + t390;
        io.pairs(26, 30, t391);
        const Q t392 = t387 - t390;
        io.pairs(58, 62, t392);
        const Q t393 = shuffled<2, 3, 6, 7>(t124, t129);
        // complex block of 64
        const Q t394 = Q(c[11], c[11], c[14], c[14]) * t393;
        const Q t395 = shuffled<1, 0, 3, 2>(t393);
        const Q t396 = Q(c[12], -c[12], c[13], -c[13]) * t395;
        const Q t397 = t394 + t396;
        const Q t398 = shuffled<1, 0, 3, 2>(t171);
        const Q t399 = shuffled<2, 3, 6, 7>(t166, t398);
        const Q t400 = Q(-c[14], c[14], c[10], c[10]) * t399;
        const Q t401 = shuffled<1, 0, 3, 2>(t399);
        const Q t402 = Q(c[13], c[13], c[8], -c[8]) * t401;
        const Q t403 = t400 + t402;
        const Q t404 = flipped<1, 0, 0, 1>(t403);
        // complex block of 2
        const Q t405 = t397 + t404;
        const Q t406 = t397 - t404;
        const Q t407 = shuffled<0, 1, 4, 5>(t145, t150);
        // complex block of 64
        const Q t408 = Q(c[6], c[6], c[5], c[5]) * t407;
        const Q t409 = shuffled<1, 0, 3, 2>(t407);
        const Q t410 = Q(c[4], -c[4], c[3], -c[3]) * t409;
        const Q t411 = t408 + t410;
        const Q t412 = shuffled<1, 0, 3, 2>(t191);
        const Q t413 = shuffled<0, 1, 4, 5>(t186, t412);
        const Q t414 = Q(-c[3], c[3], c[4], c[4]) * t413;
        const Q t415 = shuffled<1, 0, 3, 2>(t413);
        const Q t416 = Q(c[5], c[5], c[6], -c[6]) * t415;
        const Q t417 = t414 + t416;
        const Q t418 = flipped<0, 1, 1, 0>(t417);
        // complex block of 2
        const Q t419 = t411 + t418;
        const Q t420 = t411 - t418;
        const Q t421 = shuffled<1, 0, 3, 2>(t145);
        const Q t422 = shuffled<2, 3, 6, 7>(t421, t150);
        // complex block of 64
        const Q t423 = Q(c[7], -c[7], -c[12], c[12]) * t422;
        const Q t424 = shuffled<1, 0, 3, 2>(t422);
        const Q t425 = Q(c[9], c[9], c[11], c[11]) * t424;
        const Q t426 = t423 + t425;
        const Q t427 = shuffled<2, 3, 6, 7>(t186, t191);
        const Q t428 = Q(c[8], -c[8], c[9], c[9]) * t427;
        const Q t429 = shuffled<1, 0, 3, 2>(t427);
        const Q t430 = Q(c[10], c[10], -c[7], c[7]) * t429;
        const Q t431 = t428 + t430;
        const Q t432 = flipped<0, 1, 1, 0>(t431);
        // complex block of 2
        const Q t433 = t426 + t432;
        const Q t434 = flipped<1, 1, 1, 0>(t432);
        const Q t435 = flipped<0, 0, 0, 1>(t426);
        const Q t436 = t434 + t435;
        const Q t437 = shuffled<0, 1, 4, 5>(t166, t171);
        // complex block of 64
        const Q t438 = Q(-c[1], c[1], -c[2], c[2]) * t437;
        const Q t439 = shuffled<1, 0, 3, 2>(t437);
        const Q t440 = Q(c[2], c[2], c[1], c[1]) * t439;
        const Q t441 = t438 + t440;
        const Q t442 = shuffled<0, 1, 4, 5>(t124, t129);
        const Q t443 = flipped<0, 1, 0, 1>(t441);
        // complex block of 2
        const Q t444 = t442 + t443;
        const Q t445 = t442 - t443;
        // complex block of 2
        const Q t446 = t444 + t419;
        // complex block of 2
        const Q t447 = t406 + t436;
        // complex block of 2
        const Q t448 = t446 + t447;
        io.pairs(5, 7, t448);
        const Q t449 = t446 - t447;
        io.pairs(37, 39, t449);
        // complex block of 2
        const Q t450 = t444 - t419;
        // complex block of 2
        const Q t451 = t406 - t436;
        const Q t452 = shuffled<1, 0, 3, 2>(t451);
        const Q t453 = flipped<0, 1, 0, 1>(t452);
        // complex block of 2
        const Q t454 = t450 + t453;
        io.pairs(21, 23, t454);
        const Q t455 = t450 - t453;
        io.pairs(53, 55, t455);
        // complex block of 8
        const Q t456 = c[0] * t405;
        const Q t457 = shuffled<1, 0, 3, 2>(t456);
        const Q t458 = flipped<0, 1, 0, 1>(t457);
        const Q t459 = t456 + t458;
        const Q t460 = c[0] * t433;
        const Q t461 = shuffled<1, 0, 3, 2>(t460);
        const Q t462 = flipped<0, 1, 1, 0>(t461);
        const Q t463 = t460 + t462;
        const Q t464 = shuffled<1, 0, 3, 2>(t463);
        const Q t465 = flipped<1, 0, 0, 0>(t464);
        // complex block of 2
        const Q t466 = t459 - t465;
        const Q t467 = t459 + t465;
        const Q t468 = shuffled<1, 0, 3, 2>(t420);
        const Q t469 = flipped<0, 1, 0, 1>(t468);
        // complex block of 2
        const Q t470 = t445 + t469;
        const Q t471 = t445 - t469;
        // complex block of 2
        const Q t472 = t470 + t466;
        io.pairs(13, 15, t472);
        const Q t473 = t470 - t466;
        io.pairs(45, 47, t473);
        const Q t474 = shuffled<1, 0, 3, 2>(t467);
        const Q t475 = flipped<0, 1, 0, 1>(t474);
        // complex block of 2
        const Q t476 = t471 + t475;
        io.pairs(29, 31, t476);
        const Q t477 = t471 - t475;
        io.pairs(61, 63, t477);
    }
};

}  // namespace zulg
