// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 52.
// Complex DFT of 52 points, prime-factor, order 4, 13; two lines of a stage to a register.
// 122 sums, 106 differences, 72 products of registers, which do the 1304 steps of the graph, those with
// `scale` included; 79 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<52> {
    static constexpr int steps = 1304;  // with `scale`
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.015496188988565054,  // c[2]: -P[1] of 13
        0.6007253775544544,  // c[3]: Q[1] of 13
        0.3203288761978803,  // c[4]: -P[5] of 13
        0.5084294662830964,  // c[5]: Q[5] of 13
        0.1741386011521359,  // c[6]: -Q[3] of 13
        0.5751407294740031,  // c[7]: -P[3] of 13
        0.007705858903092426,  // c[8]: P[2] of 13
        0.6008758031820526,  // c[9]: -Q[2] of 13
        0.3004626062886658,  // c[10]: beta of 13
        0.08333333333333333,  // c[11]: 1/12
        0.5794400189009605,  // c[12]: -P[4] of 13
        0.15924941320823024,  // c[13]: -Q[4] of 13
        0.5018097763375671,  // c[14]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[15]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[16]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[17]: sin 2 pi 1/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_40 = io.pairs(0, 40);
        const Q x26_14 = io.pairs(26, 14);
        // complex block of 2
        const Q t0 = x0_40 + x26_14;
        const Q t1 = x0_40 - x26_14;
        const Q x13_1 = io.pairs(13, 1);
        const Q x39_27 = io.pairs(39, 27);
        // complex block of 2
        const Q t2 = x13_1 + x39_27;
        const Q t3 = x13_1 - x39_27;
        const Q x28_16 = io.pairs(28, 16);
        const Q x2_42 = io.pairs(2, 42);
        // complex block of 2
        const Q t4 = x28_16 + x2_42;
        const Q t5 = x28_16 - x2_42;
        const Q x41_29 = io.pairs(41, 29);
        const Q x15_3 = io.pairs(15, 3);
        // complex block of 2
        const Q t6 = x41_29 + x15_3;
        const Q t7 = x41_29 - x15_3;
        const Q x36_49 = io.pairs(36, 49);
        const Q x10_23 = io.pairs(10, 23);
        // complex block of 2
        const Q t8 = x36_49 + x10_23;
        const Q t9 = x36_49 - x10_23;
        const Q x37_25 = io.pairs(37, 25);
        const Q x11_51 = io.pairs(11, 51);
        // complex block of 2
        const Q t10 = x37_25 + x11_51;
        const Q t11 = x37_25 - x11_51;
        const Q x24_12 = io.pairs(24, 12);
        const Q x50_38 = io.pairs(50, 38);
        // complex block of 2
        const Q t12 = x24_12 + x50_38;
        const Q t13 = x24_12 - x50_38;
        // complex block of 2
        const Q t14 = t12 + t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t11);
        const Q t16 = flipped<0, 1, 0, 1>(t15);
        // complex block of 2
        const Q t17 = t13 + t16;
        // complex block of 2
        const Q t18 = t4 + t6;
        const Q t19 = shuffled<1, 0, 3, 2>(t7);
        const Q t20 = flipped<0, 1, 0, 1>(t19);
        // complex block of 2
        const Q t21 = t5 + t20;
        const Q t22 = shuffled<0, 1, 4, 5>(t8, t9);
        const Q t23 = shuffled<1, 0, 3, 2>(t9);
        const Q t24 = shuffled<2, 3, 6, 7>(t8, t23);
        const Q t25 = flipped<0, 0, 0, 1>(t24);
        // complex block of 2
        const Q t26 = t22 + t25;
        // complex block of 2
        const Q t27 = t0 + t2;
        const Q t28 = shuffled<1, 0, 3, 2>(t3);
        const Q t29 = flipped<0, 1, 0, 1>(t28);
        // complex block of 2
        const Q t30 = t1 + t29;
        const Q t31 = shuffled<2, 3, 6, 7>(t14, t17);
        const Q t32 = shuffled<2, 3, 6, 7>(t27, t30);
        // real block of 2
        const Q t33 = t31 + t32;
        const Q t34 = t31 - t32;
        const Q t35 = shuffled<2, 3, 6, 7>(t18, t21);
        // real block of 2
        const Q t36 = t26 + t35;
        const Q t37 = t26 - t35;
        const Q t38 = shuffled<0, 1, 4, 5>(t18, t21);
        const Q t39 = shuffled<0, 1, 4, 5>(t14, t17);
        // real block of 2
        const Q t40 = t38 + t39;
        const Q t41 = t38 - t39;
        // complex block of 2
        const Q t42 = t12 - t10;
        // complex block of 2
        const Q t43 = t13 - t16;
        // complex block of 2
        const Q t44 = t4 - t6;
        // complex block of 2
        const Q t45 = t5 - t20;
        // complex block of 2
        const Q t46 = t22 - t25;
        // complex block of 2
        const Q t47 = t0 - t2;
        // complex block of 2
        const Q t48 = t1 - t29;
        const Q t49 = shuffled<2, 3, 6, 7>(t42, t43);
        const Q t50 = shuffled<2, 3, 6, 7>(t47, t48);
        // real block of 2
        const Q t51 = t49 + t50;
        const Q t52 = t49 - t50;
        const Q t53 = shuffled<2, 3, 6, 7>(t44, t45);
        // real block of 2
        const Q t54 = t46 + t53;
        const Q t55 = t46 - t53;
        const Q t56 = shuffled<0, 1, 4, 5>(t44, t45);
        const Q t57 = shuffled<0, 1, 4, 5>(t42, t43);
        // real block of 2
        const Q t58 = t56 + t57;
        const Q t59 = t56 - t57;
        const Q x4_44 = io.pairs(4, 44);
        const Q x30_18 = io.pairs(30, 18);
        // complex block of 2
        const Q t60 = x4_44 + x30_18;
        const Q t61 = x4_44 - x30_18;
        const Q x17_5 = io.pairs(17, 5);
        const Q x43_31 = io.pairs(43, 31);
        // complex block of 2
        const Q t62 = x17_5 + x43_31;
        const Q t63 = x17_5 - x43_31;
        const Q x8_48 = io.pairs(8, 48);
        const Q x34_22 = io.pairs(34, 22);
        // complex block of 2
        const Q t64 = x8_48 + x34_22;
        const Q t65 = x8_48 - x34_22;
        const Q x21_9 = io.pairs(21, 9);
        const Q x47_35 = io.pairs(47, 35);
        // complex block of 2
        const Q t66 = x21_9 + x47_35;
        const Q t67 = x21_9 - x47_35;
        // complex block of 2
        const Q t68 = t60 + t62;
        const Q t69 = shuffled<1, 0, 3, 2>(t63);
        const Q t70 = flipped<0, 1, 0, 1>(t69);
        // complex block of 2
        const Q t71 = t61 + t70;
        // complex block of 2
        const Q t72 = t64 + t66;
        const Q t73 = shuffled<1, 0, 3, 2>(t67);
        const Q t74 = flipped<0, 1, 0, 1>(t73);
        // complex block of 2
        const Q t75 = t65 + t74;
        const Q t76 = shuffled<2, 3, 6, 7>(t68, t71);
        const Q t77 = shuffled<0, 1, 4, 5>(t72, t75);
        // real block of 2
        const Q t78 = t76 + t77;
        const Q t79 = t76 - t77;
        // complex block of 2
        const Q t80 = t60 - t62;
        // complex block of 2
        const Q t81 = t61 - t70;
        // complex block of 2
        const Q t82 = t64 - t66;
        // complex block of 2
        const Q t83 = t65 - t74;
        const Q t84 = shuffled<2, 3, 6, 7>(t80, t81);
        const Q t85 = shuffled<0, 1, 4, 5>(t82, t83);
        // real block of 2
        const Q t86 = t84 + t85;
        const Q t87 = t84 - t85;
        const Q x32_20 = io.pairs(32, 20);
        const Q x6_46 = io.pairs(6, 46);
        // complex block of 2
        const Q t88 = x32_20 + x6_46;
        const Q t89 = x32_20 - x6_46;
        const Q x45_33 = io.pairs(45, 33);
        const Q x19_7 = io.pairs(19, 7);
        // complex block of 2
        const Q t90 = x45_33 + x19_7;
        const Q t91 = x45_33 - x19_7;
        // complex block of 2
        const Q t92 = t88 + t90;
        const Q t93 = t88 - t90;
        const Q t94 = shuffled<1, 0, 3, 2>(t91);
        const Q t95 = flipped<0, 1, 0, 1>(t94);
        // complex block of 2
        const Q t96 = t89 + t95;
        const Q t97 = t89 - t95;
        const Q t98 = shuffled<0, 1, 4, 5>(t68, t71);
        const Q t99 = shuffled<2, 3, 6, 7>(t72, t75);
        // real block of 2
        const Q t100 = t98 + t99;
        const Q t101 = shuffled<0, 1, 4, 5>(t92, t96);
        const Q t102 = shuffled<2, 3, 6, 7>(t92, t96);
        // real block of 2
        const Q t103 = t101 + t102;
        // real block of 2
        const Q t104 = t100 + t103;
        const Q t105 = t100 - t103;
        // real block of 2
        const Q t106 = t33 + t78;
        // real block of 2
        const Q t107 = t36 + t40;
        // real block of 3
        const Q t108 = t106 + t107;
        const Q t109 = t106 - t107;
        // real block of 2
        const Q t110 = t33 - t78;
        // real block of 2
        const Q t111 = t36 - t40;
        // real block of 3
        const Q t112 = t110 + t111;
        const Q t113 = t110 - t111;
        // real block of 3
        const Q t114 = t108 + t104;
        const Q t115 = c[0] * t108;
        const Q t116 = t104 - t115;
        // real block of 3
        const Q t117 = c[0] * t112;
        const Q t118 = t105 - t117;
        // real block of 2
        const Q t119 = t98 - t99;
        // complex block of 3
        const Q t120 = t34 + t37;
        const Q t121 = t79 - t41;
        const Q t122 = t120 + t119;
        const Q t123 = c[0] * t120;
        const Q t124 = t119 - t123;
        const Q t125 = c[1] * t121;
        const Q t126 = t124 + t125;
        const Q t127 = t124 - t125;
        // real block of 2
        const Q t128 = t101 - t102;
        // complex block of 3
        const Q t129 = t79 + t41;
        const Q t130 = t34 - t37;
        const Q t131 = t129 + t128;
        const Q t132 = c[0] * t129;
        const Q t133 = t128 - t132;
        const Q t134 = c[1] * t130;
        const Q t135 = t133 - t134;
        const Q t136 = t133 + t134;
        const Q t137 = shuffled<0, 1, 4, 5>(t80, t81);
        const Q t138 = shuffled<2, 3, 6, 7>(t82, t83);
        // real block of 2
        const Q t139 = t137 + t138;
        const Q t140 = shuffled<0, 1, 4, 5>(t93, t97);
        const Q t141 = shuffled<2, 3, 6, 7>(t93, t97);
        // real block of 2
        const Q t142 = t140 + t141;
        // real block of 2
        const Q t143 = t139 + t142;
        const Q t144 = t139 - t142;
        // real block of 2
        const Q t145 = t51 + t86;
        // real block of 2
        const Q t146 = t54 + t58;
        // real block of 3
        const Q t147 = t145 + t146;
        const Q t148 = t145 - t146;
        // real block of 2
        const Q t149 = t51 - t86;
        // real block of 2
        const Q t150 = t54 - t58;
        // real block of 3
        const Q t151 = t149 + t150;
        const Q t152 = t149 - t150;
        // real block of 3
        const Q t153 = t147 + t143;
        const Q t154 = c[0] * t147;
        const Q t155 = t143 - t154;
        // real block of 3
        const Q t156 = c[0] * t151;
        const Q t157 = t144 - t156;
        // real block of 2
        const Q t158 = t137 - t138;
        // complex block of 3
        const Q t159 = t52 + t55;
        const Q t160 = t87 - t59;
        const Q t161 = t159 + t158;
        const Q t162 = c[0] * t159;
        const Q t163 = t158 - t162;
        const Q t164 = c[1] * t160;
        const Q t165 = t163 + t164;
        const Q t166 = t163 - t164;
        // real block of 2
        const Q t167 = t140 - t141;
        // complex block of 3
        const Q t168 = t87 + t59;
        const Q t169 = t52 - t55;
        const Q t170 = t168 + t167;
        const Q t171 = c[0] * t168;
        const Q t172 = t167 - t171;
        const Q t173 = c[1] * t169;
        const Q t174 = t172 - t173;
        const Q t175 = t172 + t173;
        // real block of 3
        const Q t176 = t112 + t105;
        // complex block of 13, multiplier 4
        const Q t177 = c[8] * t118;
        // real block of 3
        const Q t178 = c[1] * t113;
        // complex block of 13, multiplier 4
        const Q t179 = c[9] * t178;
        const Q t180 = t177 + t179;
        const Q t181 = c[10] * t176;
        // spectrum block of 3
        const Q t182 = t180 + t181;
        const Q t183 = c[0] * t180;
        const Q t184 = t181 - t183;
        const Q t185 = shuffled<0, 1, 4, 5>(t27, t30);
        // complex block of 13, multiplier 4
        const Q t186 = c[11] * t114;
        const Q t187 = t185 - t186;
        const Q t188 = c[12] * t116;
        // real block of 3
        const Q t189 = c[1] * t109;
        // complex block of 13, multiplier 4
        const Q t190 = c[13] * t189;
        const Q t191 = t188 + t190;
        // spectrum block of 3
        const Q t192 = t187 - t191;
        const Q t193 = c[0] * t191;
        const Q t194 = t193 + t187;
        const Q t195 = shuffled<1, 0, 3, 2>(t136);
        // complex block of 13, multiplier 4
        const Q t196 = Q(-c[2], c[2], -c[2], c[2]) * t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t127);
        const Q t198 = Q(c[3], -c[3], c[3], -c[3]) * t197;
        const Q t199 = t196 + t198;
        const Q t200 = shuffled<1, 0, 3, 2>(t135);
        const Q t201 = Q(-c[4], c[4], -c[4], c[4]) * t200;
        const Q t202 = shuffled<1, 0, 3, 2>(t126);
        const Q t203 = Q(c[5], -c[5], c[5], -c[5]) * t202;
        const Q t204 = t201 + t203;
        // complex block of 3
        const Q t205 = t204 + t199;
        const Q t206 = t204 - t199;
        // complex block of 13, multiplier 4
        const Q t207 = c[3] * t195;
        const Q t208 = c[2] * t197;
        const Q t209 = t207 + t208;
        const Q t210 = c[5] * t200;
        const Q t211 = c[4] * t202;
        const Q t212 = t210 + t211;
        // complex block of 3
        const Q t213 = t212 + t209;
        const Q t214 = shuffled<0, 5, 2, 7>(t212, t209);
        const Q t215 = shuffled<0, 5, 2, 7>(t209, t212);
        const Q t216 = t214 - t215;
        const Q t217 = shuffled<1, 0, 3, 2>(t122);
        // complex block of 13, multiplier 4
        const Q t218 = Q(-c[6], c[6], -c[6], c[6]) * t217;
        const Q t219 = shuffled<1, 0, 3, 2>(t131);
        const Q t220 = Q(c[7], -c[7], c[7], -c[7]) * t219;
        const Q t221 = t218 + t220;
        const Q t222 = c[6] * t219;
        const Q t223 = c[7] * t217;
        const Q t224 = t222 + t223;
        // spectrum block of 3
        const Q t225 = c[14] * t189;
        const Q t226 = c[15] * t116;
        const Q t227 = t225 - t226;
        // spectrum block of 3
        const Q t228 = c[16] * t178;
        const Q t229 = c[17] * t118;
        const Q t230 = t228 - t229;
        // spectrum block of 3
        const Q t231 = t194 - t227;
        // spectrum block of 3
        const Q t232 = t184 + t230;
        // spectrum block of 2
        const Q t233 = t231 + t232;
        const Q t234 = t231 - t232;
        // spectrum block of 3
        const Q t235 = t194 + t227;
        // spectrum block of 3
        const Q t236 = t184 - t230;
        // spectrum block of 2
        const Q t237 = t235 + t236;
        const Q t238 = t235 - t236;
        // complex block of 3
        const Q t239 = c[0] * t213;
        const Q t240 = t239 + t224;
        const Q t241 = flipped<1, 0, 1, 0>(t240);
        const Q t242 = c[1] * t206;
        const Q t243 = t241 + t242;
        const Q t244 = flipped<0, 1, 0, 1>(t242);
        const Q t245 = t240 + t244;
        const Q t246 = c[0] * t205;
        const Q t247 = t221 - t246;
        const Q t248 = c[1] * t216;
        const Q t249 = t247 - t248;
        const Q t250 = t247 + t248;
        // spectrum block of 2
        const Q t251 = t233 + t249;
        const Q t252 = t233 - t249;
        // spectrum block of 2
        const Q t253 = t234 + t243;
        const Q t254 = shuffled<0, 1, 6, 7>(t251, t253);
        io.pairs(36, 37, t254);
        const Q t255 = t234 - t243;
        const Q t256 = shuffled<0, 1, 6, 7>(t255, t252);
        io.pairs(28, 29, t256);
        // spectrum block of 2
        const Q t257 = t237 + t250;
        const Q t258 = shuffled<0, 1, 6, 7>(t253, t257);
        io.pairs(24, 25, t258);
        const Q t259 = t237 - t250;
        const Q t260 = shuffled<0, 1, 6, 7>(t259, t255);
        io.pairs(40, 41, t260);
        const Q t261 = flipped<1, 0, 1, 0>(t245);
        // spectrum block of 2
        const Q t262 = t238 + t261;
        const Q t263 = t238 - t261;
        const Q t264 = shuffled<0, 5, 2, 7>(t213, t224);
        const Q t265 = shuffled<0, 5, 2, 7>(t224, t213);
        // complex block of 3
        const Q t266 = t264 - t265;
        // spectrum block of 2
        const Q t267 = t192 - t182;
        // spectrum block of 2
        const Q t268 = t267 + t266;
        const Q t269 = shuffled<0, 1, 6, 7>(t268, t262);
        io.pairs(20, 21, t269);
        const Q t270 = t267 - t266;
        const Q t271 = shuffled<0, 1, 6, 7>(t270, t268);
        io.pairs(32, 33, t271);
        const Q t272 = shuffled<0, 1, 6, 7>(t263, t270);
        io.pairs(44, 45, t272);
        // complex block of 3
        const Q t273 = t205 + t221;
        // spectrum block of 2
        const Q t274 = t192 + t182;
        // spectrum block of 2
        const Q t275 = t274 + t273;
        const Q t276 = shuffled<0, 1, 6, 7>(t275, t263);
        io.pairs(4, 5, t276);
        const Q t277 = shuffled<0, 1, 6, 7>(t252, t275);
        io.pairs(16, 17, t277);
        const Q t278 = t274 - t273;
        const Q t279 = shuffled<0, 1, 6, 7>(t262, t278);
        io.pairs(8, 9, t279);
        const Q t280 = shuffled<0, 1, 6, 7>(t278, t251);
        io.pairs(48, 49, t280);
        // complex block of 13, multiplier 4
        const Q t281 = t185 + t114;
        const Q t282 = shuffled<0, 1, 6, 7>(t281, t259);
        io.pairs(0, 1, t282);
        const Q t283 = shuffled<0, 1, 6, 7>(t257, t281);
        io.pairs(12, 13, t283);
        // real block of 3
        const Q t284 = t151 + t144;
        // complex block of 13, multiplier 4
        const Q t285 = c[8] * t157;
        // real block of 3
        const Q t286 = c[1] * t152;
        // complex block of 13, multiplier 4
        const Q t287 = c[9] * t286;
        const Q t288 = t285 + t287;
        const Q t289 = c[10] * t284;
        // spectrum block of 3
        const Q t290 = t288 + t289;
        const Q t291 = c[0] * t288;
        const Q t292 = t289 - t291;
        const Q t293 = shuffled<0, 1, 4, 5>(t47, t48);
        // complex block of 13, multiplier 4
        const Q t294 = c[11] * t153;
        const Q t295 = t293 - t294;
        const Q t296 = c[12] * t155;
        // real block of 3
        const Q t297 = c[1] * t148;
        // complex block of 13, multiplier 4
        const Q t298 = c[13] * t297;
        const Q t299 = t296 + t298;
        // spectrum block of 3
        const Q t300 = t295 - t299;
        const Q t301 = c[0] * t299;
        const Q t302 = t301 + t295;
        const Q t303 = shuffled<1, 0, 3, 2>(t175);
        // complex block of 13, multiplier 4
        const Q t304 = Q(-c[2], c[2], -c[2], c[2]) * t303;
        const Q t305 = shuffled<1, 0, 3, 2>(t166);
        const Q t306 = Q(c[3], -c[3], c[3], -c[3]) * t305;
        const Q t307 = t304 + t306;
        const Q t308 = shuffled<1, 0, 3, 2>(t174);
        const Q t309 = Q(-c[4], c[4], -c[4], c[4]) * t308;
        const Q t310 = shuffled<1, 0, 3, 2>(t165);
        const Q t311 = Q(c[5], -c[5], c[5], -c[5]) * t310;
        const Q t312 = t309 + t311;
        // complex block of 3
        const Q t313 = t312 + t307;
        const Q t314 = t312 - t307;
        // complex block of 13, multiplier 4
        const Q t315 = c[3] * t303;
        const Q t316 = c[2] * t305;
        const Q t317 = t315 + t316;
        const Q t318 = c[5] * t308;
        const Q t319 = c[4] * t310;
        const Q t320 = t318 + t319;
        // complex block of 3
        const Q t321 = t320 + t317;
        const Q t322 = shuffled<0, 5, 2, 7>(t320, t317);
        const Q t323 = shuffled<0, 5, 2, 7>(t317, t320);
        const Q t324 = t322 - t323;
        const Q t325 = shuffled<1, 0, 3, 2>(t161);
        // complex block of 13, multiplier 4
        const Q t326 = Q(-c[6], c[6], -c[6], c[6]) * t325;
        const Q t327 = shuffled<1, 0, 3, 2>(t170);
        const Q t328 = Q(c[7], -c[7], c[7], -c[7]) * t327;
        const Q t329 = t326 + t328;
        const Q t330 = c[6] * t327;
        const Q t331 = c[7] * t325;
        const Q t332 = t330 + t331;
        // spectrum block of 3
        const Q t333 = c[14] * t297;
        const Q t334 = c[15] * t155;
        const Q t335 = t333 - t334;
        // spectrum block of 3
        const Q t336 = c[16] * t286;
        const Q t337 = c[17] * t157;
        const Q t338 = t336 - t337;
        // spectrum block of 3
        const Q t339 = t302 - t335;
        // spectrum block of 3
        const Q t340 = t292 + t338;
        // spectrum block of 2
        const Q t341 = t339 + t340;
        const Q t342 = t339 - t340;
        // spectrum block of 3
        const Q t343 = t302 + t335;
        // spectrum block of 3
        const Q t344 = t292 - t338;
        // spectrum block of 2
        const Q t345 = t343 + t344;
        const Q t346 = t343 - t344;
        // complex block of 3
        const Q t347 = c[0] * t321;
        const Q t348 = t347 + t332;
        const Q t349 = flipped<1, 0, 1, 0>(t348);
        const Q t350 = c[1] * t314;
        const Q t351 = t349 + t350;
        const Q t352 = flipped<0, 1, 0, 1>(t350);
        const Q t353 = t348 + t352;
        const Q t354 = c[0] * t313;
        const Q t355 = t329 - t354;
        const Q t356 = c[1] * t324;
        const Q t357 = t355 - t356;
        const Q t358 = t355 + t356;
        // spectrum block of 2
        const Q t359 = t341 + t357;
        const Q t360 = t341 - t357;
        // spectrum block of 2
        const Q t361 = t342 + t351;
        const Q t362 = shuffled<0, 1, 6, 7>(t359, t361);
        io.pairs(10, 11, t362);
        const Q t363 = t342 - t351;
        const Q t364 = shuffled<0, 1, 6, 7>(t363, t360);
        io.pairs(2, 3, t364);
        // spectrum block of 2
        const Q t365 = t345 + t358;
        const Q t366 = shuffled<0, 1, 6, 7>(t361, t365);
        io.pairs(50, 51, t366);
        const Q t367 = t345 - t358;
        const Q t368 = shuffled<0, 1, 6, 7>(t367, t363);
        io.pairs(14, 15, t368);
        const Q t369 = flipped<1, 0, 1, 0>(t353);
        // spectrum block of 2
        const Q t370 = t346 + t369;
        const Q t371 = t346 - t369;
        const Q t372 = shuffled<0, 5, 2, 7>(t321, t332);
        const Q t373 = shuffled<0, 5, 2, 7>(t332, t321);
        // complex block of 3
        const Q t374 = t372 - t373;
        // spectrum block of 2
        const Q t375 = t300 - t290;
        // spectrum block of 2
        const Q t376 = t375 + t374;
        const Q t377 = shuffled<0, 1, 6, 7>(t376, t370);
        io.pairs(46, 47, t377);
        const Q t378 = t375 - t374;
        const Q t379 = shuffled<0, 1, 6, 7>(t378, t376);
        io.pairs(6, 7, t379);
        const Q t380 = shuffled<0, 1, 6, 7>(t371, t378);
        io.pairs(18, 19, t380);
        // complex block of 3
        const Q t381 = t313 + t329;
        // spectrum block of 2
        const Q t382 = t300 + t290;
        // spectrum block of 2
        const Q t383 = t382 + t381;
        const Q t384 = shuffled<0, 1, 6, 7>(t383, t371);
        io.pairs(30, 31, t384);
        const Q t385 = shuffled<0, 1, 6, 7>(t360, t383);
        io.pairs(42, 43, t385);
        const Q t386 = t382 - t381;
        const Q t387 = shuffled<0, 1, 6, 7>(t386, t359);
        io.pairs(22, 23, t387);
        const Q t388 = shuffled<0, 1, 6, 7>(t370, t386);
        io.pairs(34, 35, t388);
        // complex block of 13, multiplier 4
        const Q t389 = t293 + t153;
        const Q t390 = shuffled<0, 1, 6, 7>(t389, t367);
        io.pairs(26, 27, t390);
        const Q t391 = shuffled<0, 1, 6, 7>(t365, t389);
        io.pairs(38, 39, t391);
    }
};

}  // namespace zulg
