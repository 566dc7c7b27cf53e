// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 39.
// Complex DFT of 39 points, prime-factor, order 3, 13; two lines of a stage to a register.
// 105 sums, 84 differences, 73 products of registers, which do the 1030 steps of the graph, those with
// `scale` included; 63 shuffles, 11 changes of sign.
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
        const Q x13_16 = io.pairs(13, 16);
        const Q x26_29 = io.pairs(26, 29);
        // complex block of 3
        const Q t0 = x13_16 + x26_29;
        const Q t1 = x13_16 - x26_29;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_3 - t3;
        const Q t5 = Q(c[1], -c[1], c[1], -c[1]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q x37_1 = io.pairs(37, 1);
        const Q x11_14 = io.pairs(11, 14);
        // complex block of 3
        const Q t8 = x37_1 + x11_14;
        const Q t9 = x37_1 - x11_14;
        const Q x24_27 = io.pairs(24, 27);
        const Q t10 = t8 + x24_27;
        const Q t11 = c[0] * t8;
        const Q t12 = x24_27 - t11;
        const Q t13 = Q(-c[1], c[1], -c[1], c[1]) * t9;
        const Q t14 = shuffled<1, 0, 3, 2>(t13);
        const Q t15 = t12 + t14;
        const Q t16 = t12 - t14;
        const Q x25_28 = io.pairs(25, 28);
        const Q x38_2 = io.pairs(38, 2);
        // complex block of 3
        const Q t17 = x25_28 + x38_2;
        const Q t18 = x25_28 - x38_2;
        const Q x12_15 = io.pairs(12, 15);
        const Q t19 = t17 + x12_15;
        const Q t20 = c[0] * t17;
        const Q t21 = x12_15 - t20;
        const Q t22 = Q(-c[1], c[1], -c[1], c[1]) * t18;
        const Q t23 = shuffled<1, 0, 3, 2>(t22);
        const Q t24 = t21 + t23;
        const Q t25 = t21 - t23;
        const Q x4_7 = io.pairs(4, 7);
        const Q x17_20 = io.pairs(17, 20);
        // complex block of 3
        const Q t26 = x4_7 + x17_20;
        const Q t27 = x4_7 - x17_20;
        const Q x30_33 = io.pairs(30, 33);
        const Q t28 = t26 + x30_33;
        const Q t29 = c[0] * t26;
        const Q t30 = x30_33 - t29;
        const Q t31 = Q(-c[1], c[1], -c[1], c[1]) * t27;
        const Q t32 = shuffled<1, 0, 3, 2>(t31);
        const Q t33 = t30 + t32;
        const Q t34 = t30 - t32;
        const Q x31_34 = io.pairs(31, 34);
        const Q x5_8 = io.pairs(5, 8);
        // complex block of 3
        const Q t35 = x31_34 + x5_8;
        const Q t36 = x31_34 - x5_8;
        const Q x18_21 = io.pairs(18, 21);
        const Q t37 = t35 + x18_21;
        const Q t38 = c[0] * t35;
        const Q t39 = x18_21 - t38;
        const Q t40 = Q(-c[1], c[1], -c[1], c[1]) * t36;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = t39 + t41;
        const Q t43 = t39 - t41;
        const Q x19_22 = io.pairs(19, 22);
        const Q x32_35 = io.pairs(32, 35);
        // complex block of 3
        const Q t44 = x19_22 + x32_35;
        const Q t45 = x19_22 - x32_35;
        const Q x6_9 = io.pairs(6, 9);
        const Q t46 = t44 + x6_9;
        const Q t47 = c[0] * t44;
        const Q t48 = x6_9 - t47;
        const Q t49 = Q(-c[1], c[1], -c[1], c[1]) * t45;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = t48 + t50;
        const Q t52 = t48 - t50;
        const P x10 = io.pair(10);
        const P x23 = io.pair(23);
        // complex block of 3
        const P t53 = x10 + x23;
        const P t54 = x10 - x23;
        const P x36 = io.pair(36);
        const P t55 = t53 + x36;
        const P t56 = c[0] * t53;
        const P t57 = x36 - t56;
        const P t58 = P(c[1], -c[1]) * t54;
        const P t59 = shuffled<1, 0>(t58);
        const P t60 = t57 + t59;
        // complex block of 3
        const Q t61 = t4 - t6;
        // complex block of 3
        const P t62 = t57 - t59;
        const Q t63 = shuffled<2, 3, 6, 7>(t2, t61);
        const Q t64 = joined(t55, t62);
        // real block of 2
        const Q t65 = t63 + t64;
        const Q t66 = t63 - t64;
        const Q t67 = shuffled<0, 1, 4, 5>(t10, t15);
        const Q t68 = shuffled<2, 3, 6, 7>(t19, t24);
        // real block of 2
        const Q t69 = t67 + t68;
        const Q t70 = shuffled<2, 3, 6, 7>(t46, t51);
        const Q t71 = shuffled<0, 1, 4, 5>(t28, t33);
        // real block of 2
        const Q t72 = t70 - t71;
        const Q t73 = shuffled<2, 3, 6, 7>(t10, t15);
        const Q t74 = shuffled<0, 1, 4, 5>(t19, t24);
        // real block of 2
        const Q t75 = t73 - t74;
        // complex block of 3
        const Q t76 = t72 + t75;
        const Q t77 = t72 - t75;
        // real block of 2
        const Q t78 = t65 + t69;
        const Q t79 = t65 - t69;
        // complex block of 3
        const Q t80 = c[0] * t76;
        const Q t81 = t66 - t80;
        // real block of 2
        const Q t82 = t67 - t68;
        const Q t83 = shuffled<2, 3, 6, 7>(t28, t33);
        const Q t84 = shuffled<0, 1, 4, 5>(t46, t51);
        // real block of 2
        const Q t85 = t83 - t84;
        const Q t86 = shuffled<2, 3, 6, 7>(t37, t42);
        const Q t87 = shuffled<0, 1, 4, 5>(t37, t42);
        // real block of 2
        const Q t88 = t86 - t87;
        // complex block of 3
        const Q t89 = t85 + t88;
        const Q t90 = t85 - t88;
        const Q t91 = c[0] * t89;
        const Q t92 = t82 - t91;
        // real block of 2
        const Q t93 = t70 + t71;
        // real block of 2
        const Q t94 = t83 + t84;
        // real block of 2
        const Q t95 = t93 + t94;
        const Q t96 = t93 - t94;
        // real block of 2
        const Q t97 = t73 + t74;
        // real block of 2
        const Q t98 = t86 + t87;
        // real block of 2
        const Q t99 = t97 + t98;
        const Q t100 = t97 - t98;
        // real block of 3
        const Q t101 = t95 + t99;
        const Q t102 = t95 - t99;
        // real block of 3
        const Q t103 = t96 + t100;
        const Q t104 = t96 - t100;
        const Q t105 = shuffled<2, 3, 6, 7>(t7, t52);
        const P t106 = part<0>(t34);
        const Q t107 = joined(t60, t106);
        // real block of 2
        const Q t108 = t105 + t107;
        const Q t109 = shuffled<0, 1, 6, 7>(t16, t34);
        const Q t110 = shuffled<2, 3, 4, 5>(t25, t52);
        // real block of 2
        const Q t111 = t109 + t110;
        // real block of 2
        const Q t112 = t108 + t111;
        const Q t113 = t108 - t111;
        const Q t114 = shuffled<2, 3, 6, 7>(t16, t43);
        const Q t115 = shuffled<0, 1, 4, 5>(t25, t43);
        // real block of 2
        const Q t116 = t114 + t115;
        const P t117 = part<0>(t116);
        const P t118 = part<1>(t116);
        // real block of 2
        const P t119 = t117 + t118;
        const P t120 = t117 - t118;
        const Q t121 = shuffled<2, 3, 6, 7>(t112, t113);
        const Q t122 = joined(t119, t120);
        // real block of 3
        const Q t123 = t121 + t122;
        const Q t124 = t121 - t122;
        // real block of 2
        const Q t125 = t105 - t107;
        // real block of 2
        const Q t126 = t109 - t110;
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
        const Q t142 = t101 + t78;
        const Q t143 = shuffled<0, 1, 4, 5>(t2, t61);
        // complex block of 13, multiplier 3
        const Q t144 = c[8] * t142;
        const Q t145 = t143 - t144;
        // real block of 3
        const Q t146 = c[0] * t101;
        const Q t147 = t78 - t146;
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
        const Q t155 = t76 + t66;
        const Q t156 = t89 + t82;
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
        const Q t165 = c[1] * t90;
        const Q t166 = t81 + t165;
        const Q t167 = c[1] * t77;
        const Q t168 = t92 - t167;
        const Q t169 = t81 - t165;
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
        const Q t194 = t103 + t79;
        const Q t195 = c[0] * t103;
        const Q t196 = t79 - t195;
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
        io.pairs(0, 13, t204);
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
        io.pairs(3, 16, t212);
        const Q t213 = t208 - t211;
        io.pairs(36, 10, t213);
        const Q t214 = flipped<0, 1, 0, 1>(t210);
        // spectrum block of 2
        const Q t215 = t209 + t214;
        io.pairs(15, 28, t215);
        const Q t216 = t209 - t214;
        io.pairs(24, 37, t216);
        // spectrum block of 3
        const Q t217 = c[0] * t151;
        const Q t218 = t145 - t217;
        const Q t219 = t218 + t154;
        const Q t220 = t218 - t154;
        // complex block of 3
        const Q t221 = Q(-c[0], c[0], -c[0], c[0]) * t192;
        const Q t222 = flipped<0, 1, 0, 1>(t164);
        const Q t223 = t221 + t222;
        const Q t224 = c[0] * t182;
        const Q t225 = t161 - t224;
        // spectrum block of 3
        const Q t226 = c[0] * t200;
        const Q t227 = t226 + t206;
        const Q t228 = t227 + t203;
        const Q t229 = t227 - t203;
        // complex block of 3
        const Q t230 = Q(c[1], -c[1], c[1], -c[1]) * t184;
        const Q t231 = t223 + t230;
        // spectrum block of 2
        const Q t232 = t219 - t228;
        // spectrum block of 2
        const Q t233 = t232 + t231;
        io.pairs(18, 31, t233);
        const Q t234 = t232 - t231;
        io.pairs(21, 34, t234);
        // complex block of 3
        const Q t235 = Q(c[1], -c[1], c[1], -c[1]) * t193;
        const Q t236 = t225 + t235;
        // spectrum block of 2
        const Q t237 = t219 + t228;
        // spectrum block of 2
        const Q t238 = t237 + t236;
        io.pairs(27, 1, t238);
        const Q t239 = t237 - t236;
        io.pairs(12, 25, t239);
        // complex block of 3
        const Q t240 = t223 - t230;
        // spectrum block of 2
        const Q t241 = t220 - t229;
        // spectrum block of 2
        const Q t242 = t241 + t240;
        io.pairs(6, 19, t242);
        const Q t243 = t241 - t240;
        io.pairs(33, 7, t243);
        // complex block of 3
        const Q t244 = t225 - t235;
        // spectrum block of 2
        const Q t245 = t220 + t229;
        // spectrum block of 2
        const Q t246 = t245 + t244;
        io.pairs(9, 22, t246);
        const Q t247 = t245 - t244;
        io.pairs(30, 4, t247);
        // complex block of 3
        const P t248 = t130 + t136;
        const P t249 = t133 + t139;
        const Q t250 = joined(t248, t249);
        const Q t251 = shuffled<1, 0, 3, 2>(t250);
        // complex block of 13, multiplier 3
        const Q t252 = Q(c[2], c[2], -c[2], c[2]) * t251;
        const Q t253 = shuffled<2, 3, 0, 1>(t251);
        const Q t254 = Q(c[3], c[3], c[3], -c[3]) * t253;
        const Q t255 = t252 + t254;
        // complex block of 3
        const P t256 = c[1] * t135;
        const P t257 = t138 + t256;
        const P t258 = c[1] * t134;
        const P t259 = t141 - t258;
        const P t260 = t138 - t256;
        const P t261 = t141 + t258;
        const Q t262 = joined(t260, t261);
        const Q t263 = shuffled<1, 0, 3, 2>(t262);
        // complex block of 13, multiplier 3
        const Q t264 = Q(c[4], c[4], -c[4], c[4]) * t263;
        const Q t265 = shuffled<2, 3, 0, 1>(t263);
        const Q t266 = Q(c[5], c[5], c[5], -c[5]) * t265;
        const Q t267 = t264 + t266;
        const Q t268 = joined(t257, t257);
        const Q t269 = shuffled<1, 0, 3, 2>(t268);
        const Q t270 = Q(c[7], -c[7], c[6], c[6]) * t269;
        const Q t271 = joined(t259, t259);
        const Q t272 = shuffled<1, 0, 3, 2>(t271);
        const Q t273 = Q(-c[6], c[6], c[7], c[7]) * t272;
        const Q t274 = t270 + t273;
        const P t275 = part<0>(t274);
        const P t276 = flipped<1, 0>(t275);
        const P t277 = part<0>(t267);
        // complex block of 3
        const P t278 = t276 + t277;
        const P t279 = part<1>(t267);
        const P t280 = part<1>(t274);
        const P t281 = flipped<0, 1>(t280);
        const P t282 = t279 + t281;
        const P t283 = t277 - t276;
        const P t284 = flipped<1, 0>(t279);
        const P t285 = t280 + t284;
        const Q t286 = shuffled<0, 1, 4, 5>(t112, t113);
        // real block of 3
        const Q t287 = t123 + t286;
        const P t288 = part<0>(t7);
        const P t289 = part<0>(t287);
        // complex block of 13, multiplier 3
        const P t290 = c[8] * t289;
        const P t291 = t288 - t290;
        // real block of 3
        const Q t292 = c[0] * t123;
        const Q t293 = t286 - t292;
        // complex block of 13, multiplier 3
        const Q t294 = Q(c[9], c[9], c[13], c[13]) * t293;
        // real block of 3
        const Q t295 = c[1] * t124;
        // complex block of 13, multiplier 3
        const Q t296 = Q(-c[10], -c[10], c[14], c[14]) * t295;
        const Q t297 = t294 + t296;
        const Q t298 = shuffled<0, 1, 6, 7>(t295, t293);
        // spectrum block of 3
        const Q t299 = Q(c[11], c[11], c[15], c[15]) * t298;
        const Q t300 = shuffled<0, 1, 6, 7>(t293, t295);
        const Q t301 = Q(c[12], c[12], -c[16], -c[16]) * t300;
        const Q t302 = t299 + t301;
        // complex block of 13, multiplier 3
        const P t303 = t288 + t289;
        io.pair(26, t303);
        const P t304 = part<0>(t255);
        // complex block of 3
        const P t305 = t278 + t304;
        const P t306 = part<1>(t255);
        const P t307 = t282 + t306;
        const P t308 = P(-c[0], c[0]) * t278;
        const P t309 = flipped<0, 1>(t304);
        const P t310 = t308 + t309;
        const P t311 = c[0] * t282;
        const P t312 = t306 - t311;
        const P t313 = part<1>(t287);
        // complex block of 13, multiplier 3
        const P t314 = c[17] * t313;
        const Q t315 = joined(t291, t314);
        const Q t316 = flipped<0, 0, 1, 1>(t297);
        // spectrum block of 3
        const Q t317 = t315 + t316;
        const Q t318 = Q(-c[0], -c[0], c[0], c[0]) * t297;
        const Q t319 = t318 + t315;
        const Q t320 = t319 + t302;
        const Q t321 = t319 - t302;
        // complex block of 3
        const P t322 = P(c[1], -c[1]) * t285;
        const P t323 = t310 + t322;
        const Q t324 = shuffled<0, 1, 4, 5>(t317, t320);
        const Q t325 = shuffled<2, 3, 6, 7>(t317, t320);
        // spectrum block of 2
        const Q t326 = t324 - t325;
        const P t327 = flipped<0, 1>(t305);
        const Q t328 = joined(t327, t323);
        // spectrum block of 2
        const Q t329 = t326 + t328;
        io.pairs(2, 5, t329);
        const Q t330 = t326 - t328;
        io.pairs(11, 8, t330);
        // complex block of 3
        const P t331 = P(c[1], -c[1]) * t283;
        const P t332 = t312 + t331;
        // spectrum block of 2
        const Q t333 = t324 + t325;
        const Q t334 = joined(t307, t332);
        // spectrum block of 2
        const Q t335 = t333 + t334;
        io.pairs(29, 14, t335);
        const Q t336 = t333 - t334;
        io.pairs(23, 38, t336);
        // complex block of 3
        const P t337 = t310 - t322;
        const P t338 = t312 - t331;
        const P t339 = part<0>(t321);
        const P t340 = part<1>(t321);
        // spectrum block of 2
        const P t341 = t339 + t340;
        const P t342 = t339 - t340;
        const Q t343 = joined(t341, t342);
        const Q t344 = joined(t338, t337);
        // spectrum block of 2
        const Q t345 = t343 + t344;
        io.pairs(35, 32, t345);
        const Q t346 = t343 - t344;
        io.pairs(17, 20, t346);
    }
};

}  // namespace zulg
