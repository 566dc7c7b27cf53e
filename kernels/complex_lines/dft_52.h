// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 52.
// Complex DFT of 52 points, prime-factor, order 4, 13; two lines of a stage to a register.
// 122 sums, 106 differences, 72 products of registers, which do the 1304 steps of the graph, those with
// `scale` included; 53 shuffles, 13 changes of sign.
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
        const Q x0_4 = io.pairs(0, 4);
        const Q x26_30 = io.pairs(26, 30);
        // complex block of 2
        const Q t0 = x0_4 + x26_30;
        const Q t1 = x0_4 - x26_30;
        const Q x13_17 = io.pairs(13, 17);
        const Q x39_43 = io.pairs(39, 43);
        // complex block of 2
        const Q t2 = x13_17 + x39_43;
        const Q t3 = x13_17 - x39_43;
        // complex block of 2
        const Q t4 = t0 + t2;
        const Q t5 = t0 - t2;
        const Q t6 = shuffled<1, 0, 3, 2>(t3);
        const Q t7 = flipped<0, 1, 0, 1>(t6);
        // complex block of 2
        const Q t8 = t1 + t7;
        const Q t9 = t1 - t7;
        const Q x1_5 = io.pairs(1, 5);
        const Q x27_31 = io.pairs(27, 31);
        // complex block of 2
        const Q t10 = x1_5 + x27_31;
        const Q t11 = x1_5 - x27_31;
        const Q x8_12 = io.pairs(8, 12);
        const Q x34_38 = io.pairs(34, 38);
        // complex block of 2
        const Q t12 = x8_12 + x34_38;
        const Q t13 = x8_12 - x34_38;
        const Q x40_44 = io.pairs(40, 44);
        const Q x14_18 = io.pairs(14, 18);
        // complex block of 2
        const Q t14 = x40_44 + x14_18;
        const Q t15 = x40_44 - x14_18;
        const Q x21_25 = io.pairs(21, 25);
        const Q x47_51 = io.pairs(47, 51);
        // complex block of 2
        const Q t16 = x21_25 + x47_51;
        const Q t17 = x21_25 - x47_51;
        // complex block of 2
        const Q t18 = t12 + t16;
        const Q t19 = shuffled<1, 0, 3, 2>(t17);
        const Q t20 = flipped<0, 1, 0, 1>(t19);
        // complex block of 2
        const Q t21 = t13 + t20;
        // complex block of 2
        const Q t22 = t14 + t10;
        const Q t23 = shuffled<1, 0, 3, 2>(t11);
        const Q t24 = flipped<0, 1, 0, 1>(t23);
        // complex block of 2
        const Q t25 = t15 + t24;
        const Q t26 = shuffled<2, 3, 6, 7>(t18, t21);
        const Q t27 = shuffled<0, 1, 4, 5>(t22, t25);
        // real block of 2
        const Q t28 = t26 + t27;
        const Q t29 = t26 - t27;
        const Q t30 = shuffled<2, 3, 6, 7>(t22, t25);
        const Q t31 = shuffled<0, 1, 4, 5>(t18, t21);
        // real block of 2
        const Q t32 = t30 + t31;
        const Q t33 = t30 - t31;
        // complex block of 2
        const Q t34 = t12 - t16;
        // complex block of 2
        const Q t35 = t13 - t20;
        // complex block of 2
        const Q t36 = t14 - t10;
        // complex block of 2
        const Q t37 = t15 - t24;
        const Q t38 = shuffled<2, 3, 6, 7>(t34, t35);
        const Q t39 = shuffled<0, 1, 4, 5>(t36, t37);
        // real block of 2
        const Q t40 = t38 + t39;
        const Q t41 = t38 - t39;
        const Q t42 = shuffled<2, 3, 6, 7>(t36, t37);
        const Q t43 = shuffled<0, 1, 4, 5>(t34, t35);
        // real block of 2
        const Q t44 = t42 + t43;
        const Q t45 = t42 - t43;
        const Q x24_28 = io.pairs(24, 28);
        const Q x50_2 = io.pairs(50, 2);
        // complex block of 2
        const Q t46 = x24_28 + x50_2;
        const Q t47 = x24_28 - x50_2;
        const Q x37_41 = io.pairs(37, 41);
        const Q x11_15 = io.pairs(11, 15);
        // complex block of 2
        const Q t48 = x37_41 + x11_15;
        const Q t49 = x37_41 - x11_15;
        // complex block of 2
        const Q t50 = t46 + t48;
        const Q t51 = shuffled<1, 0, 3, 2>(t49);
        const Q t52 = flipped<0, 1, 0, 1>(t51);
        // complex block of 2
        const Q t53 = t47 + t52;
        const Q t54 = shuffled<2, 3, 6, 7>(t50, t53);
        const Q t55 = shuffled<0, 1, 4, 5>(t50, t53);
        // real block of 2
        const Q t56 = t54 + t55;
        const Q t57 = t54 - t55;
        // complex block of 2
        const Q t58 = t46 - t48;
        // complex block of 2
        const Q t59 = t47 - t52;
        const Q t60 = shuffled<2, 3, 6, 7>(t58, t59);
        const Q t61 = shuffled<0, 1, 4, 5>(t58, t59);
        // real block of 2
        const Q t62 = t60 + t61;
        const Q t63 = t60 - t61;
        const Q x29_33 = io.pairs(29, 33);
        const Q x3_7 = io.pairs(3, 7);
        // complex block of 2
        const Q t64 = x29_33 + x3_7;
        const Q t65 = x29_33 - x3_7;
        const Q x32_36 = io.pairs(32, 36);
        const Q x6_10 = io.pairs(6, 10);
        // complex block of 2
        const Q t66 = x32_36 + x6_10;
        const Q t67 = x32_36 - x6_10;
        const Q x16_20 = io.pairs(16, 20);
        const Q x42_46 = io.pairs(42, 46);
        // complex block of 2
        const Q t68 = x16_20 + x42_46;
        const Q t69 = x16_20 - x42_46;
        const Q x45_49 = io.pairs(45, 49);
        const Q x19_23 = io.pairs(19, 23);
        // complex block of 2
        const Q t70 = x45_49 + x19_23;
        const Q t71 = x45_49 - x19_23;
        // complex block of 2
        const Q t72 = t68 + t64;
        const Q t73 = shuffled<1, 0, 3, 2>(t65);
        const Q t74 = flipped<0, 1, 0, 1>(t73);
        // complex block of 2
        const Q t75 = t69 + t74;
        // complex block of 2
        const Q t76 = t66 + t70;
        const Q t77 = shuffled<1, 0, 3, 2>(t71);
        const Q t78 = flipped<0, 1, 0, 1>(t77);
        // complex block of 2
        const Q t79 = t67 + t78;
        const Q t80 = shuffled<2, 3, 6, 7>(t76, t79);
        const Q t81 = shuffled<0, 1, 4, 5>(t72, t75);
        // real block of 2
        const Q t82 = t80 + t81;
        const Q t83 = t80 - t81;
        // complex block of 2
        const Q t84 = t68 - t64;
        // complex block of 2
        const Q t85 = t69 - t74;
        // complex block of 2
        const Q t86 = t66 - t70;
        // complex block of 2
        const Q t87 = t67 - t78;
        const Q t88 = shuffled<2, 3, 6, 7>(t86, t87);
        const Q t89 = shuffled<0, 1, 4, 5>(t84, t85);
        // real block of 2
        const Q t90 = t88 + t89;
        const Q t91 = t88 - t89;
        const Q x48_9 = io.pairs(48, 9);
        const Q x22_35 = io.pairs(22, 35);
        // complex block of 2
        const Q t92 = x48_9 + x22_35;
        const Q t93 = x48_9 - x22_35;
        const Q t94 = shuffled<0, 1, 4, 5>(t92, t93);
        const Q t95 = shuffled<1, 0, 3, 2>(t93);
        const Q t96 = shuffled<2, 3, 6, 7>(t92, t95);
        const Q t97 = flipped<0, 0, 0, 1>(t96);
        // complex block of 2
        const Q t98 = t94 + t97;
        const Q t99 = t94 - t97;
        const Q t100 = shuffled<2, 3, 6, 7>(t4, t8);
        // real block of 2
        const Q t101 = t100 + t98;
        const Q t102 = shuffled<0, 1, 4, 5>(t76, t79);
        const Q t103 = shuffled<2, 3, 6, 7>(t72, t75);
        // real block of 2
        const Q t104 = t102 + t103;
        // real block of 2
        const Q t105 = t101 + t104;
        const Q t106 = t101 - t104;
        // real block of 2
        const Q t107 = t28 + t32;
        // real block of 2
        const Q t108 = t82 + t56;
        // real block of 3
        const Q t109 = t107 + t108;
        const Q t110 = t107 - t108;
        // real block of 2
        const Q t111 = t28 - t32;
        // real block of 2
        const Q t112 = t82 - t56;
        // real block of 3
        const Q t113 = t111 + t112;
        const Q t114 = t111 - t112;
        // real block of 3
        const Q t115 = t109 + t105;
        const Q t116 = c[0] * t109;
        const Q t117 = t105 - t116;
        // real block of 3
        const Q t118 = c[0] * t113;
        const Q t119 = t106 - t118;
        // real block of 2
        const Q t120 = t100 - t98;
        // complex block of 3
        const Q t121 = t29 + t83;
        const Q t122 = t33 - t57;
        const Q t123 = t121 + t120;
        const Q t124 = c[0] * t121;
        const Q t125 = t120 - t124;
        const Q t126 = c[1] * t122;
        const Q t127 = t125 + t126;
        const Q t128 = t125 - t126;
        // real block of 2
        const Q t129 = t102 - t103;
        // complex block of 3
        const Q t130 = t33 + t57;
        const Q t131 = t29 - t83;
        const Q t132 = t130 + t129;
        const Q t133 = c[0] * t130;
        const Q t134 = t129 - t133;
        const Q t135 = c[1] * t131;
        const Q t136 = t134 - t135;
        const Q t137 = t134 + t135;
        const Q t138 = shuffled<2, 3, 6, 7>(t5, t9);
        // real block of 2
        const Q t139 = t138 + t99;
        const Q t140 = shuffled<0, 1, 4, 5>(t86, t87);
        const Q t141 = shuffled<2, 3, 6, 7>(t84, t85);
        // real block of 2
        const Q t142 = t140 + t141;
        // real block of 2
        const Q t143 = t139 + t142;
        const Q t144 = t139 - t142;
        // real block of 2
        const Q t145 = t40 + t44;
        // real block of 2
        const Q t146 = t90 + t62;
        // real block of 3
        const Q t147 = t145 + t146;
        const Q t148 = t145 - t146;
        // real block of 2
        const Q t149 = t40 - t44;
        // real block of 2
        const Q t150 = t90 - t62;
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
        const Q t158 = t138 - t99;
        // complex block of 3
        const Q t159 = t41 + t91;
        const Q t160 = t45 - t63;
        const Q t161 = t159 + t158;
        const Q t162 = c[0] * t159;
        const Q t163 = t158 - t162;
        const Q t164 = c[1] * t160;
        const Q t165 = t163 + t164;
        const Q t166 = t163 - t164;
        // real block of 2
        const Q t167 = t140 - t141;
        // complex block of 3
        const Q t168 = t45 + t63;
        const Q t169 = t41 - t91;
        const Q t170 = t168 + t167;
        const Q t171 = c[0] * t168;
        const Q t172 = t167 - t171;
        const Q t173 = c[1] * t169;
        const Q t174 = t172 - t173;
        const Q t175 = t172 + t173;
        // real block of 3
        const Q t176 = t113 + t106;
        // complex block of 13, multiplier 4
        const Q t177 = c[8] * t119;
        // real block of 3
        const Q t178 = c[1] * t114;
        // complex block of 13, multiplier 4
        const Q t179 = c[9] * t178;
        const Q t180 = t177 + t179;
        const Q t181 = c[10] * t176;
        // spectrum block of 3
        const Q t182 = t180 + t181;
        const Q t183 = c[0] * t180;
        const Q t184 = t181 - t183;
        const Q t185 = shuffled<0, 1, 4, 5>(t4, t8);
        // complex block of 13, multiplier 4
        const Q t186 = c[11] * t115;
        const Q t187 = t185 - t186;
        const Q t188 = c[12] * t117;
        // real block of 3
        const Q t189 = c[1] * t110;
        // complex block of 13, multiplier 4
        const Q t190 = c[13] * t189;
        const Q t191 = t188 + t190;
        // spectrum block of 3
        const Q t192 = t187 - t191;
        const Q t193 = c[0] * t191;
        const Q t194 = t193 + t187;
        const Q t195 = shuffled<1, 0, 3, 2>(t137);
        // complex block of 13, multiplier 4
        const Q t196 = Q(-c[2], c[2], -c[2], c[2]) * t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t128);
        const Q t198 = Q(c[3], -c[3], c[3], -c[3]) * t197;
        const Q t199 = t196 + t198;
        const Q t200 = shuffled<1, 0, 3, 2>(t136);
        const Q t201 = Q(-c[4], c[4], -c[4], c[4]) * t200;
        const Q t202 = shuffled<1, 0, 3, 2>(t127);
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
        const Q t217 = shuffled<1, 0, 3, 2>(t123);
        // complex block of 13, multiplier 4
        const Q t218 = Q(-c[6], c[6], -c[6], c[6]) * t217;
        const Q t219 = shuffled<1, 0, 3, 2>(t132);
        const Q t220 = Q(c[7], -c[7], c[7], -c[7]) * t219;
        const Q t221 = t218 + t220;
        const Q t222 = c[6] * t219;
        const Q t223 = c[7] * t217;
        const Q t224 = t222 + t223;
        // spectrum block of 3
        const Q t225 = c[14] * t189;
        const Q t226 = c[15] * t117;
        const Q t227 = t225 - t226;
        // spectrum block of 3
        const Q t228 = c[16] * t178;
        const Q t229 = c[17] * t119;
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
        io.pairs(36, 49, t251);
        const Q t252 = t233 - t249;
        io.pairs(16, 29, t252);
        // spectrum block of 2
        const Q t253 = t234 + t243;
        io.pairs(24, 37, t253);
        const Q t254 = t234 - t243;
        io.pairs(28, 41, t254);
        // spectrum block of 2
        const Q t255 = t237 + t250;
        io.pairs(12, 25, t255);
        const Q t256 = t237 - t250;
        io.pairs(40, 1, t256);
        const Q t257 = flipped<1, 0, 1, 0>(t245);
        // spectrum block of 2
        const Q t258 = t238 + t257;
        io.pairs(8, 21, t258);
        const Q t259 = t238 - t257;
        io.pairs(44, 5, t259);
        const Q t260 = shuffled<0, 5, 2, 7>(t213, t224);
        const Q t261 = shuffled<0, 5, 2, 7>(t224, t213);
        // complex block of 3
        const Q t262 = t260 - t261;
        // spectrum block of 2
        const Q t263 = t192 - t182;
        // spectrum block of 2
        const Q t264 = t263 + t262;
        io.pairs(20, 33, t264);
        const Q t265 = t263 - t262;
        io.pairs(32, 45, t265);
        // complex block of 3
        const Q t266 = t205 + t221;
        // spectrum block of 2
        const Q t267 = t192 + t182;
        // spectrum block of 2
        const Q t268 = t267 + t266;
        io.pairs(4, 17, t268);
        const Q t269 = t267 - t266;
        io.pairs(48, 9, t269);
        // complex block of 13, multiplier 4
        const Q t270 = t185 + t115;
        io.pairs(0, 13, t270);
        // real block of 3
        const Q t271 = t151 + t144;
        // complex block of 13, multiplier 4
        const Q t272 = c[8] * t157;
        // real block of 3
        const Q t273 = c[1] * t152;
        // complex block of 13, multiplier 4
        const Q t274 = c[9] * t273;
        const Q t275 = t272 + t274;
        const Q t276 = c[10] * t271;
        // spectrum block of 3
        const Q t277 = t275 + t276;
        const Q t278 = c[0] * t275;
        const Q t279 = t276 - t278;
        const Q t280 = shuffled<0, 1, 4, 5>(t5, t9);
        // complex block of 13, multiplier 4
        const Q t281 = c[11] * t153;
        const Q t282 = t280 - t281;
        const Q t283 = c[12] * t155;
        // real block of 3
        const Q t284 = c[1] * t148;
        // complex block of 13, multiplier 4
        const Q t285 = c[13] * t284;
        const Q t286 = t283 + t285;
        // spectrum block of 3
        const Q t287 = t282 - t286;
        const Q t288 = c[0] * t286;
        const Q t289 = t288 + t282;
        const Q t290 = shuffled<1, 0, 3, 2>(t175);
        // complex block of 13, multiplier 4
        const Q t291 = Q(-c[2], c[2], -c[2], c[2]) * t290;
        const Q t292 = shuffled<1, 0, 3, 2>(t166);
        const Q t293 = Q(c[3], -c[3], c[3], -c[3]) * t292;
        const Q t294 = t291 + t293;
        const Q t295 = shuffled<1, 0, 3, 2>(t174);
        const Q t296 = Q(-c[4], c[4], -c[4], c[4]) * t295;
        const Q t297 = shuffled<1, 0, 3, 2>(t165);
        const Q t298 = Q(c[5], -c[5], c[5], -c[5]) * t297;
        const Q t299 = t296 + t298;
        // complex block of 3
        const Q t300 = t299 + t294;
        const Q t301 = t299 - t294;
        // complex block of 13, multiplier 4
        const Q t302 = c[3] * t290;
        const Q t303 = c[2] * t292;
        const Q t304 = t302 + t303;
        const Q t305 = c[5] * t295;
        const Q t306 = c[4] * t297;
        const Q t307 = t305 + t306;
        // complex block of 3
        const Q t308 = t307 + t304;
        const Q t309 = shuffled<0, 5, 2, 7>(t307, t304);
        const Q t310 = shuffled<0, 5, 2, 7>(t304, t307);
        const Q t311 = t309 - t310;
        const Q t312 = shuffled<1, 0, 3, 2>(t161);
        // complex block of 13, multiplier 4
        const Q t313 = Q(-c[6], c[6], -c[6], c[6]) * t312;
        const Q t314 = shuffled<1, 0, 3, 2>(t170);
        const Q t315 = Q(c[7], -c[7], c[7], -c[7]) * t314;
        const Q t316 = t313 + t315;
        const Q t317 = c[6] * t314;
        const Q t318 = c[7] * t312;
        const Q t319 = t317 + t318;
        // spectrum block of 3
        const Q t320 = c[14] * t284;
        const Q t321 = c[15] * t155;
        const Q t322 = t320 - t321;
        // spectrum block of 3
        const Q t323 = c[16] * t273;
        const Q t324 = c[17] * t157;
        const Q t325 = t323 - t324;
        // spectrum block of 3
        const Q t326 = t289 - t322;
        // spectrum block of 3
        const Q t327 = t279 + t325;
        // spectrum block of 2
        const Q t328 = t326 + t327;
        const Q t329 = t326 - t327;
        // spectrum block of 3
        const Q t330 = t289 + t322;
        // spectrum block of 3
        const Q t331 = t279 - t325;
        // spectrum block of 2
        const Q t332 = t330 + t331;
        const Q t333 = t330 - t331;
        // complex block of 3
        const Q t334 = c[0] * t308;
        const Q t335 = t334 + t319;
        const Q t336 = flipped<1, 0, 1, 0>(t335);
        const Q t337 = c[1] * t301;
        const Q t338 = t336 + t337;
        const Q t339 = flipped<0, 1, 0, 1>(t337);
        const Q t340 = t335 + t339;
        const Q t341 = c[0] * t300;
        const Q t342 = t316 - t341;
        const Q t343 = c[1] * t311;
        const Q t344 = t342 - t343;
        const Q t345 = t342 + t343;
        // spectrum block of 2
        const Q t346 = t328 + t344;
        io.pairs(10, 23, t346);
        const Q t347 = t328 - t344;
        io.pairs(42, 3, t347);
        // spectrum block of 2
        const Q t348 = t329 + t338;
        io.pairs(50, 11, t348);
        const Q t349 = t329 - t338;
        io.pairs(2, 15, t349);
        // spectrum block of 2
        const Q t350 = t332 + t345;
        io.pairs(38, 51, t350);
        const Q t351 = t332 - t345;
        io.pairs(14, 27, t351);
        const Q t352 = flipped<1, 0, 1, 0>(t340);
        // spectrum block of 2
        const Q t353 = t333 + t352;
        io.pairs(34, 47, t353);
        const Q t354 = t333 - t352;
        io.pairs(18, 31, t354);
        const Q t355 = shuffled<0, 5, 2, 7>(t308, t319);
        const Q t356 = shuffled<0, 5, 2, 7>(t319, t308);
        // complex block of 3
        const Q t357 = t355 - t356;
        // spectrum block of 2
        const Q t358 = t287 - t277;
        // spectrum block of 2
        const Q t359 = t358 + t357;
        io.pairs(46, 7, t359);
        const Q t360 = t358 - t357;
        io.pairs(6, 19, t360);
        // complex block of 3
        const Q t361 = t300 + t316;
        // spectrum block of 2
        const Q t362 = t287 + t277;
        // spectrum block of 2
        const Q t363 = t362 + t361;
        io.pairs(30, 43, t363);
        const Q t364 = t362 - t361;
        io.pairs(22, 35, t364);
        // complex block of 13, multiplier 4
        const Q t365 = t280 + t153;
        io.pairs(26, 39, t365);
    }
};

}  // namespace zulg
