// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 39.
// Complex DFT of 39 points, prime-factor, order 3, 13; two lines of a stage to a register.
// 105 sums, 84 differences, 73 products of registers, which do the 1030 steps of the graph, those with
// `scale` included; 77 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<39> {
    static constexpr int steps = 1030;  // with `scale`
    static constexpr double inverseRoot = 0.16012815380508713;  // 1/sqrt(39), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5751407294740031,  // c[2]: P[3] of 13
        0.1741386011521359,  // c[3]: Q[3] of 13
        0.5279915321544383,  // c[4]: -P[1] of 13
        0.2869425954512852,  // c[5]: Q[1] of 13
        0.5316276774946329,  // c[6]: Q[5] of 13
        0.280148395734785,  // c[7]: P[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.42763404682657274,  // c[9]: P[4] of 13
        0.42218506973345193,  // c[10]: -Q[4] of 13
        0.37034194807495624,  // c[11]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[12]: sin 2 pi 1/3 times -Q[4] of 13
        0.5242266395265821,  // c[13]: -P[2] of 13
        0.29376443202296976,  // c[14]: Q[2] of 13
        0.25440746086019866,  // c[15]: sin 2 pi 1/3 times Q[2] of 13
        0.45399358717056765,  // c[16]: sin 2 pi 1/3 times -P[2] of 13
        0.3004626062886658,  // c[17]: beta of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x13_1 = io.pairs(13, 1);
        const Q x26_14 = io.pairs(26, 14);
        // complex block of 3
        const Q t0 = x13_1 + x26_14;
        const Q t1 = x13_1 - x26_14;
        const Q x0_27 = io.pairs(0, 27);
        const Q t2 = t0 + x0_27;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_27 - t3;
        const Q t5 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x28_16 = io.pairs(28, 16);
        const Q x2_29 = io.pairs(2, 29);
        // complex block of 3
        const Q t9 = x28_16 + x2_29;
        const Q t10 = x28_16 - x2_29;
        const Q x15_3 = io.pairs(15, 3);
        const Q t11 = t9 + x15_3;
        const Q t12 = c[0] * t9;
        const Q t13 = x15_3 - t12;
        const Q t14 = Q(c[1], -c[1], c[1], -c[1]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q x4_31 = io.pairs(4, 31);
        const Q x17_5 = io.pairs(17, 5);
        // complex block of 3
        const Q t17 = x4_31 + x17_5;
        const Q t18 = x4_31 - x17_5;
        const Q x30_18 = io.pairs(30, 18);
        const Q t19 = t17 + x30_18;
        const Q t20 = c[0] * t17;
        const Q t21 = x30_18 - t20;
        const Q t22 = Q(-c[1], c[1], -c[1], c[1]) * t18;
        const Q t23 = shuffled<1, 0, 3, 2>(t22);
        const Q t24 = t21 + t23;
        const Q t25 = t21 - t23;
        const Q x19_7 = io.pairs(19, 7);
        const Q x32_20 = io.pairs(32, 20);
        // complex block of 3
        const Q t26 = x19_7 + x32_20;
        const Q t27 = x19_7 - x32_20;
        const Q x6_33 = io.pairs(6, 33);
        const Q t28 = t26 + x6_33;
        const Q t29 = c[0] * t26;
        const Q t30 = x6_33 - t29;
        const Q t31 = Q(-c[1], c[1], -c[1], c[1]) * t27;
        const Q t32 = shuffled<1, 0, 3, 2>(t31);
        const Q t33 = t30 + t32;
        const Q t34 = t30 - t32;
        const P x34 = io.pair(34);
        const P x8 = io.pair(8);
        // complex block of 3
        const P t35 = x34 + x8;
        const P t36 = x34 - x8;
        const P x21 = io.pair(21);
        const P t37 = t35 + x21;
        const P t38 = c[0] * t35;
        const P t39 = x21 - t38;
        const P t40 = P(-c[1], c[1]) * t36;
        const P t41 = shuffled<1, 0>(t40);
        const P t42 = t39 + t41;
        const P t43 = t39 - t41;
        const Q x22_10 = io.pairs(22, 10);
        const Q x35_23 = io.pairs(35, 23);
        // complex block of 3
        const Q t44 = x22_10 + x35_23;
        const Q t45 = x22_10 - x35_23;
        const Q x9_36 = io.pairs(9, 36);
        const Q t46 = t44 + x9_36;
        const Q t47 = c[0] * t44;
        const Q t48 = x9_36 - t47;
        const Q t49 = Q(-c[1], c[1], -c[1], c[1]) * t45;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = t48 + t50;
        const Q t52 = t48 - t50;
        const Q x37_25 = io.pairs(37, 25);
        const Q x11_38 = io.pairs(11, 38);
        // complex block of 3
        const Q t53 = x37_25 + x11_38;
        const Q t54 = x37_25 - x11_38;
        const Q x24_12 = io.pairs(24, 12);
        const Q t55 = t53 + x24_12;
        const Q t56 = c[0] * t53;
        const Q t57 = x24_12 - t56;
        const Q t58 = Q(-c[1], c[1], -c[1], c[1]) * t54;
        const Q t59 = shuffled<1, 0, 3, 2>(t58);
        const Q t60 = t57 + t59;
        const Q t61 = t57 - t59;
        // complex block of 3
        const Q t62 = t13 - t15;
        const Q t63 = shuffled<2, 3, 6, 7>(t11, t62);
        const Q t64 = shuffled<2, 3, 6, 7>(t46, t51);
        // real block of 2
        const Q t65 = t63 + t64;
        const Q t66 = t63 - t64;
        const Q t67 = shuffled<0, 1, 4, 5>(t55, t60);
        const Q t68 = shuffled<0, 1, 4, 5>(t11, t62);
        // real block of 2
        const Q t69 = t67 + t68;
        const Q t70 = t67 - t68;
        const Q t71 = shuffled<0, 1, 4, 5>(t46, t51);
        const Q t72 = shuffled<0, 1, 4, 5>(t19, t24);
        // real block of 2
        const Q t73 = t71 - t72;
        const Q t74 = shuffled<2, 3, 6, 7>(t2, t7);
        const Q t75 = shuffled<2, 3, 6, 7>(t55, t60);
        // real block of 2
        const Q t76 = t74 - t75;
        // complex block of 3
        const Q t77 = t73 + t76;
        const Q t78 = t73 - t76;
        const Q t79 = shuffled<2, 3, 6, 7>(t28, t33);
        const Q t80 = shuffled<0, 1, 4, 5>(t28, t33);
        // real block of 2
        const Q t81 = t79 - t80;
        const Q t82 = joined(t37, t42);
        const Q t83 = shuffled<2, 3, 6, 7>(t19, t24);
        // real block of 2
        const Q t84 = t82 - t83;
        // complex block of 3
        const Q t85 = t81 + t84;
        const Q t86 = t81 - t84;
        // real block of 2
        const Q t87 = t65 + t69;
        const Q t88 = t65 - t69;
        // complex block of 3
        const Q t89 = c[0] * t77;
        const Q t90 = t66 - t89;
        const Q t91 = c[0] * t85;
        const Q t92 = t70 - t91;
        // real block of 2
        const Q t93 = t71 + t72;
        // real block of 2
        const Q t94 = t79 + t80;
        // real block of 2
        const Q t95 = t93 + t94;
        const Q t96 = t93 - t94;
        // real block of 2
        const Q t97 = t74 + t75;
        // real block of 2
        const Q t98 = t82 + t83;
        // real block of 2
        const Q t99 = t97 + t98;
        const Q t100 = t97 - t98;
        // real block of 3
        const Q t101 = t95 + t99;
        const Q t102 = t95 - t99;
        // real block of 3
        const Q t103 = t96 + t100;
        const Q t104 = t96 - t100;
        const Q t105 = shuffled<2, 3, 4, 5>(t16, t52);
        const Q t106 = shuffled<2, 3, 4, 5>(t52, t25);
        // real block of 2
        const Q t107 = t105 + t106;
        const Q t108 = shuffled<0, 1, 6, 7>(t61, t34);
        const Q t109 = shuffled<0, 1, 4, 5>(t16, t34);
        // real block of 2
        const Q t110 = t108 + t109;
        // real block of 2
        const Q t111 = t107 + t110;
        const Q t112 = t107 - t110;
        const P t113 = part<1>(t8);
        const Q t114 = joined(t113, t43);
        const Q t115 = shuffled<2, 3, 6, 7>(t61, t25);
        // real block of 2
        const Q t116 = t114 + t115;
        const P t117 = part<0>(t116);
        const P t118 = part<1>(t116);
        // real block of 2
        const P t119 = t117 + t118;
        const P t120 = t117 - t118;
        const Q t121 = shuffled<2, 3, 6, 7>(t111, t112);
        const Q t122 = joined(t119, t120);
        // real block of 3
        const Q t123 = t121 + t122;
        const Q t124 = t121 - t122;
        // real block of 2
        const Q t125 = t105 - t106;
        // real block of 2
        const Q t126 = t108 - t109;
        // real block of 2
        const Q t127 = t114 - t115;
        const P t128 = part<1>(t125);
        const P t129 = part<0>(t127);
        // complex block of 3
        const P t130 = t128 + t129;
        const P t131 = part<1>(t126);
        const P t132 = part<1>(t127);
        const P t133 = t131 + t132;
        const P t134 = t128 - t129;
        const P t135 = t131 - t132;
        const P t136 = part<0>(t125);
        const P t137 = c[0] * t130;
        const P t138 = t136 - t137;
        const P t139 = part<0>(t126);
        const P t140 = c[0] * t133;
        const P t141 = t139 - t140;
        // real block of 3
        const Q t142 = t101 + t87;
        const Q t143 = shuffled<0, 1, 4, 5>(t2, t7);
        // complex block of 13, multiplier 3
        const Q t144 = c[8] * t142;
        const Q t145 = t143 - t144;
        // real block of 3
        const Q t146 = c[0] * t101;
        const Q t147 = t87 - t146;
        // complex block of 13, multiplier 3
        const Q t148 = c[9] * t147;
        // real block of 3
        const Q t149 = c[1] * t102;
        // complex block of 13, multiplier 3
        const Q t150 = c[10] * t149;
        const Q t151 = t148 - t150;
        // spectrum block of 3
        const Q t152 = c[11] * t149;
        const Q t153 = c[12] * t147;
        const Q t154 = t152 + t153;
        // complex block of 3
        const Q t155 = t77 + t66;
        const Q t156 = t85 + t70;
        const Q t157 = shuffled<1, 0, 3, 2>(t156);
        // complex block of 13, multiplier 3
        const Q t158 = Q(-c[2], c[2], -c[2], c[2]) * t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t155);
        const Q t160 = Q(c[3], -c[3], c[3], -c[3]) * t159;
        const Q t161 = t158 + t160;
        const Q t162 = c[3] * t157;
        const Q t163 = c[2] * t159;
        const Q t164 = t162 + t163;
        // complex block of 3
        const Q t165 = c[1] * t86;
        const Q t166 = t90 + t165;
        const Q t167 = c[1] * t78;
        const Q t168 = t92 - t167;
        const Q t169 = t90 - t165;
        const Q t170 = t92 + t167;
        const Q t171 = shuffled<1, 0, 3, 2>(t170);
        // complex block of 13, multiplier 3
        const Q t172 = Q(-c[4], c[4], -c[4], c[4]) * t171;
        const Q t173 = shuffled<1, 0, 3, 2>(t169);
        const Q t174 = Q(c[5], -c[5], c[5], -c[5]) * t173;
        const Q t175 = t172 + t174;
        const Q t176 = shuffled<1, 0, 3, 2>(t166);
        const Q t177 = c[6] * t176;
        const Q t178 = shuffled<1, 0, 3, 2>(t168);
        const Q t179 = c[7] * t178;
        const Q t180 = t177 + t179;
        const Q t181 = flipped<0, 1, 0, 1>(t180);
        // complex block of 3
        const Q t182 = t175 + t181;
        const Q t183 = flipped<1, 0, 1, 0>(t175);
        const Q t184 = t180 + t183;
        // complex block of 13, multiplier 3
        const Q t185 = c[5] * t171;
        const Q t186 = c[4] * t173;
        const Q t187 = t185 + t186;
        const Q t188 = Q(-c[6], c[6], -c[6], c[6]) * t178;
        const Q t189 = Q(c[7], -c[7], c[7], -c[7]) * t176;
        const Q t190 = t188 + t189;
        const Q t191 = flipped<1, 0, 1, 0>(t190);
        // complex block of 3
        const Q t192 = t191 + t187;
        const Q t193 = t187 - t191;
        // real block of 3
        const Q t194 = t103 + t88;
        const Q t195 = c[0] * t103;
        const Q t196 = t88 - t195;
        // complex block of 13, multiplier 3
        const Q t197 = c[13] * t196;
        // real block of 3
        const Q t198 = c[1] * t104;
        // complex block of 13, multiplier 3
        const Q t199 = c[14] * t198;
        const Q t200 = t197 + t199;
        // spectrum block of 3
        const Q t201 = c[15] * t196;
        const Q t202 = c[16] * t198;
        const Q t203 = t201 - t202;
        // complex block of 13, multiplier 3
        const Q t204 = t143 + t142;
        // spectrum block of 3
        const Q t205 = t151 + t145;
        // complex block of 13, multiplier 3
        const Q t206 = c[17] * t194;
        // spectrum block of 3
        const Q t207 = t206 - t200;
        // spectrum block of 2
        const Q t208 = t205 + t207;
        const Q t209 = t205 - t207;
        // complex block of 3
        const Q t210 = t192 + t164;
        const Q t211 = t182 + t161;
        // spectrum block of 2
        const Q t212 = t208 + t211;
        const Q t213 = t208 - t211;
        const Q t214 = flipped<0, 1, 0, 1>(t210);
        // spectrum block of 2
        const Q t215 = t209 + t214;
        const Q t216 = shuffled<0, 1, 6, 7>(t215, t212);
        io.pairs(15, 16, t216);
        const Q t217 = t209 - t214;
        const Q t218 = shuffled<0, 1, 6, 7>(t213, t217);
        io.pairs(36, 37, t218);
        // spectrum block of 3
        const Q t219 = c[0] * t151;
        const Q t220 = t145 - t219;
        const Q t221 = t220 + t154;
        const Q t222 = t220 - t154;
        // complex block of 3
        const Q t223 = Q(-c[0], c[0], -c[0], c[0]) * t192;
        const Q t224 = flipped<0, 1, 0, 1>(t164);
        const Q t225 = t223 + t224;
        const Q t226 = c[0] * t182;
        const Q t227 = t161 - t226;
        // spectrum block of 3
        const Q t228 = c[0] * t200;
        const Q t229 = t228 + t206;
        const Q t230 = t229 + t203;
        const Q t231 = t229 - t203;
        // complex block of 3
        const Q t232 = Q(c[1], -c[1], c[1], -c[1]) * t184;
        const Q t233 = t225 + t232;
        // spectrum block of 2
        const Q t234 = t221 - t230;
        // spectrum block of 2
        const Q t235 = t234 + t233;
        const Q t236 = t234 - t233;
        // complex block of 3
        const Q t237 = Q(c[1], -c[1], c[1], -c[1]) * t193;
        const Q t238 = t227 + t237;
        // spectrum block of 2
        const Q t239 = t221 + t230;
        // spectrum block of 2
        const Q t240 = t239 + t238;
        const Q t241 = shuffled<0, 1, 6, 7>(t204, t240);
        io.pairs(0, 1, t241);
        const Q t242 = shuffled<0, 1, 6, 7>(t240, t215);
        io.pairs(27, 28, t242);
        const Q t243 = t239 - t238;
        const Q t244 = shuffled<0, 1, 6, 7>(t243, t204);
        io.pairs(12, 13, t244);
        const Q t245 = shuffled<0, 1, 6, 7>(t217, t243);
        io.pairs(24, 25, t245);
        // complex block of 3
        const Q t246 = t225 - t232;
        // spectrum block of 2
        const Q t247 = t222 - t231;
        // spectrum block of 2
        const Q t248 = t247 + t246;
        const Q t249 = shuffled<0, 1, 6, 7>(t235, t248);
        io.pairs(18, 19, t249);
        const Q t250 = t247 - t246;
        const Q t251 = shuffled<0, 1, 6, 7>(t248, t250);
        io.pairs(6, 7, t251);
        const Q t252 = shuffled<0, 1, 6, 7>(t250, t236);
        io.pairs(33, 34, t252);
        // complex block of 3
        const Q t253 = t227 - t237;
        // spectrum block of 2
        const Q t254 = t222 + t231;
        // spectrum block of 2
        const Q t255 = t254 + t253;
        const Q t256 = shuffled<0, 1, 6, 7>(t255, t213);
        io.pairs(9, 10, t256);
        const Q t257 = shuffled<0, 1, 6, 7>(t236, t255);
        io.pairs(21, 22, t257);
        const Q t258 = t254 - t253;
        const Q t259 = shuffled<0, 1, 6, 7>(t212, t258);
        io.pairs(3, 4, t259);
        const Q t260 = shuffled<0, 1, 6, 7>(t258, t235);
        io.pairs(30, 31, t260);
        // complex block of 3
        const P t261 = t130 + t136;
        const P t262 = t133 + t139;
        const Q t263 = joined(t261, t262);
        const Q t264 = shuffled<1, 0, 3, 2>(t263);
        // complex block of 13, multiplier 3
        const Q t265 = Q(c[2], c[2], -c[2], c[2]) * t264;
        const Q t266 = shuffled<2, 3, 0, 1>(t264);
        const Q t267 = Q(c[3], c[3], c[3], -c[3]) * t266;
        const Q t268 = t265 + t267;
        // complex block of 3
        const P t269 = c[1] * t135;
        const P t270 = t138 + t269;
        const P t271 = c[1] * t134;
        const P t272 = t141 - t271;
        const P t273 = t138 - t269;
        const P t274 = t141 + t271;
        const Q t275 = joined(t273, t274);
        const Q t276 = shuffled<1, 0, 3, 2>(t275);
        // complex block of 13, multiplier 3
        const Q t277 = Q(c[4], c[4], -c[4], c[4]) * t276;
        const Q t278 = shuffled<2, 3, 0, 1>(t276);
        const Q t279 = Q(c[5], c[5], c[5], -c[5]) * t278;
        const Q t280 = t277 + t279;
        const Q t281 = joined(t270, t270);
        const Q t282 = shuffled<1, 0, 3, 2>(t281);
        const Q t283 = Q(c[7], -c[7], c[6], c[6]) * t282;
        const Q t284 = joined(t272, t272);
        const Q t285 = shuffled<1, 0, 3, 2>(t284);
        const Q t286 = Q(-c[6], c[6], c[7], c[7]) * t285;
        const Q t287 = t283 + t286;
        const P t288 = part<0>(t287);
        const P t289 = flipped<1, 0>(t288);
        const P t290 = part<0>(t280);
        // complex block of 3
        const P t291 = t289 + t290;
        const P t292 = part<1>(t280);
        const P t293 = part<1>(t287);
        const P t294 = flipped<0, 1>(t293);
        const P t295 = t292 + t294;
        const P t296 = t290 - t289;
        const P t297 = flipped<1, 0>(t292);
        const P t298 = t293 + t297;
        const Q t299 = shuffled<0, 1, 4, 5>(t111, t112);
        // real block of 3
        const Q t300 = t123 + t299;
        const P t301 = part<0>(t8);
        const P t302 = part<0>(t300);
        // complex block of 13, multiplier 3
        const P t303 = c[8] * t302;
        const P t304 = t301 - t303;
        // real block of 3
        const Q t305 = c[0] * t123;
        const Q t306 = t299 - t305;
        // complex block of 13, multiplier 3
        const Q t307 = Q(c[9], c[9], c[13], c[13]) * t306;
        // real block of 3
        const Q t308 = c[1] * t124;
        // complex block of 13, multiplier 3
        const Q t309 = Q(-c[10], -c[10], c[14], c[14]) * t308;
        const Q t310 = t307 + t309;
        const Q t311 = shuffled<0, 1, 6, 7>(t308, t306);
        // spectrum block of 3
        const Q t312 = Q(c[11], c[11], c[15], c[15]) * t311;
        const Q t313 = shuffled<0, 1, 6, 7>(t306, t308);
        const Q t314 = Q(c[12], c[12], -c[16], -c[16]) * t313;
        const Q t315 = t312 + t314;
        // complex block of 13, multiplier 3
        const P t316 = t301 + t302;
        io.pair(26, t316);
        const P t317 = part<0>(t268);
        // complex block of 3
        const P t318 = t291 + t317;
        const P t319 = part<1>(t268);
        const P t320 = t295 + t319;
        const P t321 = P(-c[0], c[0]) * t291;
        const P t322 = flipped<0, 1>(t317);
        const P t323 = t321 + t322;
        const P t324 = c[0] * t295;
        const P t325 = t319 - t324;
        const P t326 = part<1>(t300);
        // complex block of 13, multiplier 3
        const P t327 = c[17] * t326;
        const Q t328 = joined(t304, t327);
        const Q t329 = flipped<0, 0, 1, 1>(t310);
        // spectrum block of 3
        const Q t330 = t328 + t329;
        const Q t331 = Q(-c[0], -c[0], c[0], c[0]) * t310;
        const Q t332 = t331 + t328;
        const Q t333 = t332 + t315;
        const Q t334 = t332 - t315;
        // complex block of 3
        const P t335 = P(c[1], -c[1]) * t298;
        const P t336 = t323 + t335;
        const Q t337 = shuffled<0, 1, 4, 5>(t330, t333);
        const Q t338 = shuffled<2, 3, 6, 7>(t330, t333);
        // spectrum block of 2
        const Q t339 = t337 - t338;
        const P t340 = flipped<0, 1>(t318);
        const Q t341 = joined(t340, t336);
        // spectrum block of 2
        const Q t342 = t339 + t341;
        io.pairs(2, 5, t342);
        const Q t343 = t339 - t341;
        io.pairs(11, 8, t343);
        // complex block of 3
        const P t344 = P(c[1], -c[1]) * t296;
        const P t345 = t325 + t344;
        // spectrum block of 2
        const Q t346 = t337 + t338;
        const Q t347 = joined(t320, t345);
        // spectrum block of 2
        const Q t348 = t346 + t347;
        io.pairs(29, 14, t348);
        const Q t349 = t346 - t347;
        io.pairs(23, 38, t349);
        // complex block of 3
        const P t350 = t323 - t335;
        const P t351 = t325 - t344;
        const P t352 = part<0>(t334);
        const P t353 = part<1>(t334);
        // spectrum block of 2
        const P t354 = t352 + t353;
        const P t355 = t352 - t353;
        const Q t356 = joined(t354, t355);
        const Q t357 = joined(t351, t350);
        // spectrum block of 2
        const Q t358 = t356 + t357;
        io.pairs(35, 32, t358);
        const Q t359 = t356 - t357;
        io.pairs(17, 20, t359);
    }
};

}  // namespace zulg
