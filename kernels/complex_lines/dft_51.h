// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 51.
// Complex DFT of 51 points, prime-factor, order 3, 17; two lines of a stage to a register.
// 144 sums, 119 differences, 104 products of registers, which do the 1490 steps of the graph, those with
// `scale` included; 115 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<51> {
    static constexpr int steps = 1490;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.3826834323650898,  // c[2]: sin 2 pi 1/16
        0.5,  // c[3]: -cos 2 pi 1/3
        0.8660254037844386,  // c[4]: sin 2 pi 1/3
        0.40623178445333147,  // c[5]: P[4] of 17
        0.31717619283272513,  // c[6]: -Q[4] of 17
        0.281986371024157,  // c[7]: Q[1] of 17
        0.26714294104925057,  // c[8]: Q[3] of 17
        0.4314031601143256,  // c[9]: -P[1] of 17
        0.4407489637509731,  // c[10]: -P[3] of 17
        0.2616150950075063,  // c[11]: Q[7] of 17
        0.08441888427414843,  // c[12]: Q[5] of 17
        0.4440524091413236,  // c[13]: -P[7] of 17
        0.508427430394848,  // c[14]: P[5] of 17
        0.023972509657154296,  // c[15]: P[2] of 17
        0.51483037864984,  // c[16]: -Q[2] of 17
        0.33572816326715627,  // c[17]: P[6] of 17
        0.39103912897466114,  // c[18]: -Q[6] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: -beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x17_35 = io.pairs(17, 35);
        const Q x34_1 = io.pairs(34, 1);
        // complex block of 3, multiplier 2
        const Q t0 = x17_35 + x34_1;
        const Q t1 = x17_35 - x34_1;
        const Q x0_18 = io.pairs(0, 18);
        const Q t2 = t0 + x0_18;
        const Q t3 = c[3] * t0;
        const Q t4 = x0_18 - t3;
        const Q t5 = Q(-c[4], c[4], -c[4], c[4]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x2_20 = io.pairs(2, 20);
        const Q x19_37 = io.pairs(19, 37);
        // complex block of 3, multiplier 2
        const Q t9 = x2_20 + x19_37;
        const Q t10 = x2_20 - x19_37;
        const Q x36_3 = io.pairs(36, 3);
        const Q t11 = t9 + x36_3;
        const Q t12 = c[3] * t9;
        const Q t13 = x36_3 - t12;
        const Q t14 = Q(-c[4], c[4], -c[4], c[4]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x38_5 = io.pairs(38, 5);
        const Q x4_22 = io.pairs(4, 22);
        // complex block of 3, multiplier 2
        const Q t18 = x38_5 + x4_22;
        const Q t19 = x38_5 - x4_22;
        const Q x21_39 = io.pairs(21, 39);
        const Q t20 = t18 + x21_39;
        const Q t21 = c[3] * t18;
        const Q t22 = x21_39 - t21;
        const Q t23 = Q(-c[4], c[4], -c[4], c[4]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        const Q x23_41 = io.pairs(23, 41);
        const Q x40_7 = io.pairs(40, 7);
        // complex block of 3, multiplier 2
        const Q t27 = x23_41 + x40_7;
        const Q t28 = x23_41 - x40_7;
        const Q x6_24 = io.pairs(6, 24);
        const Q t29 = t27 + x6_24;
        const Q t30 = c[3] * t27;
        const Q t31 = x6_24 - t30;
        const Q t32 = Q(-c[4], c[4], -c[4], c[4]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        const Q x8_26 = io.pairs(8, 26);
        const Q x25_43 = io.pairs(25, 43);
        // complex block of 3, multiplier 2
        const Q t36 = x8_26 + x25_43;
        const Q t37 = x8_26 - x25_43;
        const Q x42_9 = io.pairs(42, 9);
        const Q t38 = t36 + x42_9;
        const Q t39 = c[3] * t36;
        const Q t40 = x42_9 - t39;
        const Q t41 = Q(-c[4], c[4], -c[4], c[4]) * t37;
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        const Q t43 = t40 + t42;
        const Q t44 = t40 - t42;
        const Q x44_11 = io.pairs(44, 11);
        const Q x10_28 = io.pairs(10, 28);
        // complex block of 3, multiplier 2
        const Q t45 = x44_11 + x10_28;
        const Q t46 = x44_11 - x10_28;
        const Q x27_45 = io.pairs(27, 45);
        const Q t47 = t45 + x27_45;
        const Q t48 = c[3] * t45;
        const Q t49 = x27_45 - t48;
        const Q t50 = Q(-c[4], c[4], -c[4], c[4]) * t46;
        const Q t51 = shuffled<1, 0, 3, 2>(t50);
        const Q t52 = t49 + t51;
        const Q t53 = t49 - t51;
        const P x29 = io.pair(29);
        const P x46 = io.pair(46);
        // complex block of 3, multiplier 2
        const P t54 = x29 + x46;
        const P t55 = x29 - x46;
        const P x12 = io.pair(12);
        const P t56 = t54 + x12;
        const P t57 = c[3] * t54;
        const P t58 = x12 - t57;
        const P t59 = P(c[4], -c[4]) * t55;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const Q x47_14 = io.pairs(47, 14);
        const Q x13_31 = io.pairs(13, 31);
        // complex block of 3, multiplier 2
        const Q t62 = x47_14 + x13_31;
        const Q t63 = x47_14 - x13_31;
        const Q x30_48 = io.pairs(30, 48);
        const Q t64 = t62 + x30_48;
        const Q t65 = c[3] * t62;
        const Q t66 = x30_48 - t65;
        const Q t67 = Q(-c[4], c[4], -c[4], c[4]) * t63;
        const Q t68 = shuffled<1, 0, 3, 2>(t67);
        const Q t69 = t66 + t68;
        const Q t70 = t66 - t68;
        const Q x32_50 = io.pairs(32, 50);
        const Q x49_16 = io.pairs(49, 16);
        // complex block of 3, multiplier 2
        const Q t71 = x32_50 + x49_16;
        const Q t72 = x32_50 - x49_16;
        const Q x15_33 = io.pairs(15, 33);
        const Q t73 = t71 + x15_33;
        const Q t74 = c[3] * t71;
        const Q t75 = x15_33 - t74;
        const Q t76 = Q(-c[4], c[4], -c[4], c[4]) * t72;
        const Q t77 = shuffled<1, 0, 3, 2>(t76);
        const Q t78 = t75 + t77;
        const Q t79 = t75 - t77;
        // complex block of 3, multiplier 2
        const P t80 = t58 - t60;
        const Q t81 = shuffled<2, 3, 6, 7>(t20, t25);
        const Q t82 = joined(t56, t80);
        // real block of 2
        const Q t83 = t81 + t82;
        const Q t84 = t81 - t82;
        const Q t85 = shuffled<2, 3, 6, 7>(t11, t16);
        const Q t86 = shuffled<2, 3, 6, 7>(t64, t69);
        // real block of 2
        const Q t87 = t85 + t86;
        const Q t88 = t85 - t86;
        const Q t89 = shuffled<0, 1, 4, 5>(t47, t52);
        const Q t90 = shuffled<2, 3, 6, 7>(t29, t34);
        // real block of 2
        const Q t91 = t89 + t90;
        const Q t92 = shuffled<2, 3, 6, 7>(t47, t52);
        const Q t93 = shuffled<0, 1, 4, 5>(t29, t34);
        // real block of 2
        const Q t94 = t92 + t93;
        // real block of 2
        const Q t95 = t91 + t94;
        // real block of 2
        const Q t96 = t89 - t90;
        // real block of 2
        const Q t97 = t92 - t93;
        // real block of 16
        const Q t98 = t96 - t97;
        const Q t99 = t97 + t96;
        // real block of 2
        const Q t100 = t87 + t83;
        // real block of 2
        const Q t101 = t100 + t95;
        // real block of 2
        const Q t102 = t87 - t83;
        // real block of 2
        const Q t103 = t91 - t94;
        // real block of 16
        const Q t104 = c[0] * t98;
        // complex block of 2
        const Q t105 = t88 + t104;
        const Q t106 = t88 - t104;
        // real block of 16
        const Q t107 = c[0] * t99;
        // complex block of 2
        const Q t108 = t84 + t107;
        const Q t109 = t107 - t84;
        const Q t110 = shuffled<2, 3, 6, 7>(t17, t44);
        const Q t111 = shuffled<2, 3, 4, 5>(t70, t44);
        // real block of 2
        const Q t112 = t110 + t111;
        const Q t113 = shuffled<2, 3, 4, 5>(t26, t79);
        const P t114 = part<0>(t17);
        const Q t115 = joined(t61, t114);
        // real block of 2
        const Q t116 = t113 + t115;
        // real block of 2
        const Q t117 = t112 + t116;
        const Q t118 = t112 - t116;
        const Q t119 = shuffled<0, 1, 4, 5>(t53, t70);
        const Q t120 = shuffled<2, 3, 4, 5>(t35, t26);
        // real block of 2
        const Q t121 = t119 + t120;
        const Q t122 = shuffled<2, 3, 6, 7>(t53, t79);
        const Q t123 = shuffled<0, 1, 6, 7>(t35, t8);
        // real block of 2
        const Q t124 = t122 + t123;
        // real block of 2
        const Q t125 = t121 + t124;
        const Q t126 = t121 - t124;
        // real block of 2
        const Q t127 = t117 + t125;
        const P t128 = part<1>(t118);
        const P t129 = part<1>(t126);
        // skew block of 4
        const P t130 = t128 - t129;
        const P t131 = t128 + t129;
        // real block of 2
        const Q t132 = t110 - t111;
        // real block of 2
        const Q t133 = t113 - t115;
        // real block of 2
        const Q t134 = t119 - t120;
        // real block of 2
        const Q t135 = t122 - t123;
        const P t136 = part<0>(t134);
        const P t137 = part<0>(t135);
        // real block of 16
        const P t138 = t136 - t137;
        const P t139 = t137 + t136;
        const Q t140 = shuffled<2, 3, 6, 7>(t133, t132);
        const Q t141 = c[1] * t140;
        const Q t142 = shuffled<2, 3, 0, 1>(t140);
        const Q t143 = Q(c[2], c[2], -c[2], -c[2]) * t142;
        const Q t144 = t141 + t143;
        const Q t145 = shuffled<2, 3, 6, 7>(t135, t134);
        const Q t146 = c[2] * t145;
        const Q t147 = shuffled<2, 3, 0, 1>(t145);
        const Q t148 = Q(c[1], c[1], -c[1], -c[1]) * t147;
        const Q t149 = t146 + t148;
        const Q t150 = shuffled<0, 1, 6, 7>(t132, t144);
        const P t151 = c[0] * t138;
        const P t152 = part<1>(t149);
        const Q t153 = joined(t151, t152);
        // complex block of 2
        const Q t154 = t150 + t153;
        const Q t155 = shuffled<0, 1, 4, 5>(t133, t144);
        // real block of 16
        const P t156 = c[0] * t139;
        const P t157 = part<0>(t149);
        const Q t158 = joined(t156, t157);
        // complex block of 2
        const Q t159 = t155 + t158;
        const Q t160 = t150 - t153;
        const Q t161 = t158 - t155;
        const Q t162 = shuffled<2, 3, 6, 7>(t38, t43);
        const Q t163 = shuffled<0, 1, 4, 5>(t38, t43);
        // real block of 2
        const Q t164 = t162 + t163;
        const Q t165 = shuffled<0, 1, 4, 5>(t73, t78);
        const Q t166 = shuffled<0, 1, 4, 5>(t11, t16);
        // real block of 2
        const Q t167 = t165 + t166;
        // real block of 2
        const Q t168 = t164 + t167;
        const Q t169 = t164 - t167;
        const Q t170 = shuffled<0, 1, 4, 5>(t64, t69);
        const Q t171 = shuffled<0, 1, 4, 5>(t20, t25);
        // real block of 2
        const Q t172 = t170 + t171;
        const Q t173 = shuffled<2, 3, 6, 7>(t73, t78);
        const Q t174 = shuffled<2, 3, 6, 7>(t2, t7);
        // real block of 2
        const Q t175 = t173 + t174;
        // real block of 2
        const Q t176 = t172 + t175;
        const Q t177 = t172 - t175;
        // real block of 2
        const Q t178 = t168 + t176;
        // skew block of 4
        const Q t179 = t169 - t177;
        const Q t180 = t169 + t177;
        // real block of 2
        const Q t181 = t162 - t163;
        // real block of 2
        const Q t182 = t165 - t166;
        // real block of 2
        const Q t183 = t170 - t171;
        // real block of 2
        const Q t184 = t173 - t174;
        // real block of 16
        const Q t185 = c[1] * t181;
        const Q t186 = c[2] * t182;
        const Q t187 = t185 - t186;
        const Q t188 = c[2] * t183;
        const Q t189 = c[1] * t184;
        const Q t190 = t188 - t189;
        // complex block of 2
        const Q t191 = t187 + t190;
        const Q t192 = t187 - t190;
        // real block of 16
        const Q t193 = c[1] * t182;
        const Q t194 = c[2] * t181;
        const Q t195 = t193 + t194;
        const Q t196 = c[2] * t184;
        const Q t197 = c[1] * t183;
        const Q t198 = t196 + t197;
        // complex block of 2
        const Q t199 = t195 + t198;
        const Q t200 = t198 - t195;
        // real block of 2
        const Q t201 = t117 - t125;
        // complex block of 17, multiplier 3
        const Q t202 = c[5] * t201;
        const Q t203 = shuffled<2, 3, 0, 1>(t201);
        const Q t204 = Q(-c[6], -c[6], c[6], c[6]) * t203;
        const Q t205 = t202 + t204;
        const P t206 = part<0>(t127);
        const P t207 = part<1>(t127);
        // real block of 2
        const P t208 = t206 + t207;
        const P t209 = t206 - t207;
        const P t210 = part<0>(t8);
        // complex block of 17, multiplier 3
        const P t211 = c[19] * t208;
        const P t212 = t210 - t211;
        const P t213 = c[20] * t209;
        // spectrum block of 2
        const P t214 = t212 - t213;
        const P t215 = t212 + t213;
        const Q t216 = shuffled<0, 1, 4, 5>(t154, t160);
        const Q t217 = shuffled<2, 3, 6, 7>(t154, t161);
        // complex block of 2
        const Q t218 = t216 + t217;
        const Q t219 = t216 - t217;
        const Q t220 = shuffled<0, 1, 4, 5>(t159, t161);
        const Q t221 = shuffled<2, 3, 6, 7>(t159, t160);
        const Q t222 = flipped<0, 0, 1, 1>(t221);
        const Q t223 = t220 + t222;
        const Q t224 = flipped<1, 1, 0, 0>(t220);
        const Q t225 = t224 + t221;
        const Q t226 = shuffled<0, 1, 6, 7>(t223, t225);
        const Q t227 = shuffled<1, 0, 3, 2>(t226);
        // complex block of 17, multiplier 3
        const Q t228 = Q(c[7], c[7], c[8], c[8]) * t227;
        const Q t229 = shuffled<0, 1, 6, 7>(t218, t219);
        const Q t230 = shuffled<1, 0, 3, 2>(t229);
        const Q t231 = Q(c[9], c[9], c[10], c[10]) * t230;
        const Q t232 = t228 + t231;
        const Q t233 = shuffled<0, 1, 6, 7>(t225, t223);
        const Q t234 = shuffled<1, 0, 3, 2>(t233);
        const Q t235 = Q(c[11], c[11], c[12], c[12]) * t234;
        const Q t236 = shuffled<0, 1, 6, 7>(t219, t218);
        const Q t237 = shuffled<1, 0, 3, 2>(t236);
        const Q t238 = Q(c[13], c[13], c[14], c[14]) * t237;
        const Q t239 = t235 + t238;
        const Q t240 = flipped<0, 1, 0, 0>(t239);
        const Q t241 = flipped<1, 0, 0, 0>(t232);
        // complex block of 2
        const Q t242 = t240 + t241;
        const Q t243 = shuffled<0, 5, 2, 7>(t240, t241);
        const Q t244 = shuffled<0, 5, 2, 7>(t241, t240);
        const Q t245 = t243 - t244;
        const Q t246 = shuffled<1, 0, 3, 2>(t223);
        // complex block of 17, multiplier 3
        const Q t247 = Q(-c[9], c[9], -c[14], c[14]) * t246;
        const Q t248 = shuffled<1, 0, 3, 2>(t218);
        const Q t249 = Q(c[7], -c[7], c[12], -c[12]) * t248;
        const Q t250 = t247 + t249;
        const Q t251 = shuffled<1, 0, 3, 2>(t225);
        const Q t252 = Q(-c[13], c[13], -c[10], c[10]) * t251;
        const Q t253 = shuffled<1, 0, 3, 2>(t219);
        const Q t254 = Q(c[11], -c[11], c[8], -c[8]) * t253;
        const Q t255 = t252 + t254;
        // complex block of 2
        const Q t256 = t250 + t255;
        const Q t257 = t250 - t255;
        // skew block of 4
        const P t258 = c[0] * t131;
        const P t259 = part<0>(t126);
        const P t260 = t258 - t259;
        const P t261 = part<0>(t118);
        const P t262 = c[0] * t130;
        const P t263 = t261 - t262;
        const P t264 = t261 + t262;
        const P t265 = t259 + t258;
        const Q t266 = joined(t265, t264);
        // complex block of 17, multiplier 3
        const Q t267 = c[15] * t266;
        const Q t268 = shuffled<2, 3, 0, 1>(t266);
        const Q t269 = Q(c[16], c[16], -c[16], -c[16]) * t268;
        const Q t270 = t267 + t269;
        const Q t271 = joined(t260, t263);
        const Q t272 = c[17] * t271;
        const Q t273 = shuffled<2, 3, 0, 1>(t271);
        const Q t274 = Q(c[18], c[18], -c[18], -c[18]) * t273;
        const Q t275 = t272 + t274;
        const P t276 = part<1>(t270);
        const P t277 = part<1>(t275);
        // mirrored skew block of 4
        const P t278 = t276 - t277;
        const P t279 = part<0>(t270);
        const P t280 = part<0>(t275);
        const P t281 = t279 + t280;
        // complex block of 17, multiplier 3
        const P t282 = t210 + t208;
        io.pair(17, t282);
        const Q t283 = joined(t214, t215);
        // spectrum block of 2
        const Q t284 = t283 + t205;
        const Q t285 = t283 - t205;
        // mirrored skew block of 4
        const P t286 = t276 + t277;
        const P t287 = t280 - t279;
        const Q t288 = shuffled<0, 1, 4, 5>(t284, t285);
        const P t289 = flipped<1, 1>(t287);
        const Q t290 = joined(t286, t289);
        // spectrum block of 2
        const Q t291 = t288 + t290;
        const Q t292 = t288 - t290;
        const Q t293 = shuffled<2, 3, 4, 5>(t242, t245);
        const Q t294 = flipped<0, 1, 1, 0>(t293);
        const Q t295 = shuffled<0, 1, 6, 7>(t242, t257);
        // complex block of 2
        const Q t296 = t294 + t295;
        const Q t297 = shuffled<0, 1, 4, 5>(t256, t257);
        const Q t298 = shuffled<2, 3, 6, 7>(t256, t245);
        const Q t299 = flipped<0, 0, 1, 1>(t298);
        const Q t300 = t297 + t299;
        const Q t301 = flipped<1, 1, 1, 0>(t294);
        const Q t302 = flipped<0, 0, 0, 1>(t295);
        const Q t303 = t301 + t302;
        const Q t304 = t297 - t299;
        const P t305 = part<0>(t304);
        const P t306 = part<0>(t303);
        // spectrum block of 16
        const P t307 = t305 + t306;
        const P t308 = t306 - t305;
        // mirrored skew block of 4
        const P t309 = c[0] * t278;
        const P t310 = c[0] * t281;
        const P t311 = t309 + t310;
        const P t312 = t309 - t310;
        const P t313 = part<0>(t296);
        // spectrum block of 16
        const P t314 = c[0] * t307;
        const Q t315 = joined(t313, t314);
        // spectrum block of 2
        const Q t316 = t292 - t315;
        io.pairs(29, 41, t316);
        const Q t317 = t292 + t315;
        io.pairs(5, 44, t317);
        const P t318 = part<0>(t300);
        // spectrum block of 16
        const P t319 = -c[0] * t308;
        const Q t320 = joined(t318, t319);
        // spectrum block of 2
        const Q t321 = t291 + t320;
        io.pairs(20, 23, t321);
        const Q t322 = t291 - t320;
        io.pairs(14, 11, t322);
        const Q t323 = shuffled<2, 3, 6, 7>(t300, t304);
        // spectrum block of 16
        const Q t324 = Q(c[1], c[1], c[2], c[2]) * t323;
        const Q t325 = shuffled<2, 3, 6, 7>(t296, t303);
        const Q t326 = Q(c[2], c[2], -c[1], c[1]) * t325;
        const Q t327 = t324 - t326;
        const Q t328 = shuffled<2, 3, 6, 7>(t284, t285);
        const P t329 = flipped<1, 1>(t312);
        const Q t330 = joined(t311, t329);
        // spectrum block of 2
        const Q t331 = t328 + t330;
        // spectrum block of 2
        const Q t332 = t331 + t327;
        io.pairs(35, 2, t332);
        const Q t333 = t331 - t327;
        io.pairs(50, 32, t333);
        const Q t334 = shuffled<0, 1, 6, 7>(t323, t325);
        // spectrum block of 16
        const Q t335 = Q(c[2], c[2], -c[2], c[2]) * t334;
        const Q t336 = shuffled<0, 1, 6, 7>(t325, t323);
        const Q t337 = c[1] * t336;
        const Q t338 = t335 + t337;
        // spectrum block of 2
        const Q t339 = t328 - t330;
        // spectrum block of 2
        const Q t340 = t339 - t338;
        io.pairs(38, 8, t340);
        const Q t341 = t339 + t338;
        io.pairs(47, 26, t341);
        // real block of 2
        const Q t342 = t100 - t95;
        // real block of 2
        const Q t343 = t168 - t176;
        // complex block of 17, multiplier 3
        const Q t344 = c[5] * t342;
        const Q t345 = c[6] * t343;
        const Q t346 = t344 - t345;
        const Q t347 = c[5] * t343;
        const Q t348 = c[6] * t342;
        const Q t349 = t347 + t348;
        // real block of 2
        const Q t350 = t101 + t178;
        const Q t351 = t101 - t178;
        const Q t352 = shuffled<0, 1, 4, 5>(t2, t7);
        // complex block of 17, multiplier 3
        const Q t353 = c[19] * t350;
        const Q t354 = t352 - t353;
        const Q t355 = c[20] * t351;
        // spectrum block of 2
        const Q t356 = t354 - t355;
        const Q t357 = t354 + t355;
        // complex block of 2
        const Q t358 = t105 + t191;
        const Q t359 = t108 + t199;
        const Q t360 = t105 - t191;
        const Q t361 = t199 - t108;
        const Q t362 = shuffled<1, 0, 3, 2>(t359);
        // complex block of 17, multiplier 3
        const Q t363 = Q(-c[9], c[9], -c[9], c[9]) * t362;
        const Q t364 = shuffled<1, 0, 3, 2>(t358);
        const Q t365 = Q(c[7], -c[7], c[7], -c[7]) * t364;
        const Q t366 = t363 + t365;
        const Q t367 = shuffled<1, 0, 3, 2>(t361);
        const Q t368 = Q(-c[13], c[13], -c[13], c[13]) * t367;
        const Q t369 = shuffled<1, 0, 3, 2>(t360);
        const Q t370 = Q(c[11], -c[11], c[11], -c[11]) * t369;
        const Q t371 = t368 + t370;
        // complex block of 2
        const Q t372 = t366 + t371;
        const Q t373 = t366 - t371;
        // complex block of 17, multiplier 3
        const Q t374 = c[7] * t362;
        const Q t375 = c[9] * t364;
        const Q t376 = t374 + t375;
        const Q t377 = c[11] * t367;
        const Q t378 = c[13] * t369;
        const Q t379 = t377 + t378;
        const Q t380 = shuffled<0, 5, 2, 7>(t379, t376);
        const Q t381 = shuffled<0, 5, 2, 7>(t376, t379);
        // complex block of 2
        const Q t382 = t380 - t381;
        const Q t383 = t376 + t379;
        // complex block of 2
        const Q t384 = t106 + t200;
        const Q t385 = t109 - t192;
        const Q t386 = t106 - t200;
        const Q t387 = t109 + t192;
        const Q t388 = shuffled<1, 0, 3, 2>(t387);
        // complex block of 17, multiplier 3
        const Q t389 = Q(-c[10], c[10], -c[10], c[10]) * t388;
        const Q t390 = shuffled<1, 0, 3, 2>(t386);
        const Q t391 = Q(c[8], -c[8], c[8], -c[8]) * t390;
        const Q t392 = t389 + t391;
        const Q t393 = shuffled<1, 0, 3, 2>(t385);
        const Q t394 = Q(-c[14], c[14], -c[14], c[14]) * t393;
        const Q t395 = shuffled<1, 0, 3, 2>(t384);
        const Q t396 = Q(c[12], -c[12], c[12], -c[12]) * t395;
        const Q t397 = t394 + t396;
        // complex block of 2
        const Q t398 = t397 + t392;
        const Q t399 = t397 - t392;
        // complex block of 17, multiplier 3
        const Q t400 = c[8] * t388;
        const Q t401 = c[10] * t390;
        const Q t402 = t400 + t401;
        const Q t403 = c[12] * t393;
        const Q t404 = c[14] * t395;
        const Q t405 = t403 + t404;
        // complex block of 2
        const Q t406 = t405 + t402;
        const Q t407 = shuffled<0, 5, 2, 7>(t405, t402);
        const Q t408 = shuffled<0, 5, 2, 7>(t402, t405);
        const Q t409 = t407 - t408;
        // skew block of 4
        const Q t410 = c[0] * t180;
        const Q t411 = t410 - t103;
        const Q t412 = c[0] * t179;
        const Q t413 = t102 + t412;
        const Q t414 = t103 + t410;
        const Q t415 = t102 - t412;
        // complex block of 17, multiplier 3
        const Q t416 = c[15] * t413;
        const Q t417 = c[16] * t414;
        const Q t418 = t416 - t417;
        const Q t419 = c[17] * t415;
        const Q t420 = c[18] * t411;
        const Q t421 = t419 - t420;
        // mirrored skew block of 4
        const Q t422 = t418 - t421;
        // complex block of 17, multiplier 3
        const Q t423 = c[15] * t414;
        const Q t424 = c[16] * t413;
        const Q t425 = t423 + t424;
        const Q t426 = c[17] * t411;
        const Q t427 = c[18] * t415;
        const Q t428 = t426 + t427;
        // mirrored skew block of 4
        const Q t429 = t425 + t428;
        // complex block of 17, multiplier 3
        const Q t430 = t352 + t350;
        // spectrum block of 2
        const Q t431 = t356 + t346;
        // mirrored skew block of 4
        const Q t432 = t418 + t421;
        // spectrum block of 2
        const Q t433 = t431 + t432;
        const Q t434 = t431 - t432;
        const Q t435 = flipped<0, 1, 0, 1>(t406);
        // complex block of 2
        const Q t436 = t382 + t435;
        const Q t437 = t372 + t398;
        // spectrum block of 2
        const Q t438 = t433 + t437;
        const Q t439 = t433 - t437;
        // spectrum block of 2
        const Q t440 = t434 - t436;
        const Q t441 = t434 + t436;
        // spectrum block of 2
        const Q t442 = t356 - t346;
        // mirrored skew block of 4
        const Q t443 = t428 - t425;
        // spectrum block of 2
        const Q t444 = t442 - t443;
        const Q t445 = t442 + t443;
        // complex block of 2
        const Q t446 = t382 - t435;
        const Q t447 = t372 - t398;
        // spectrum block of 16
        const Q t448 = t447 + t446;
        const Q t449 = t446 - t447;
        const Q t450 = c[0] * t448;
        // spectrum block of 2
        const Q t451 = t445 - t450;
        const Q t452 = t445 + t450;
        // spectrum block of 16
        const Q t453 = c[0] * t449;
        // spectrum block of 2
        const Q t454 = t444 - t453;
        const Q t455 = shuffled<0, 1, 6, 7>(t454, t451);
        io.pairs(6, 7, t455);
        const Q t456 = shuffled<0, 1, 6, 7>(t441, t454);
        io.pairs(39, 40, t456);
        const Q t457 = t444 + t453;
        const Q t458 = shuffled<0, 1, 6, 7>(t452, t457);
        io.pairs(27, 28, t458);
        const Q t459 = shuffled<0, 1, 6, 7>(t457, t440);
        io.pairs(45, 46, t459);
        // spectrum block of 2
        const Q t460 = t357 + t349;
        const Q t461 = t357 - t349;
        const Q t462 = flipped<1, 0, 1, 0>(t383);
        // complex block of 2
        const Q t463 = t462 + t399;
        const Q t464 = t373 - t409;
        const Q t465 = flipped<0, 1, 0, 1>(t399);
        const Q t466 = t383 + t465;
        const Q t467 = t373 + t409;
        // mirrored skew block of 4
        const Q t468 = c[0] * t422;
        const Q t469 = c[0] * t429;
        const Q t470 = t468 + t469;
        const Q t471 = t468 - t469;
        // spectrum block of 16
        const Q t472 = c[1] * t464;
        const Q t473 = c[2] * t463;
        const Q t474 = t472 - t473;
        // spectrum block of 2
        const Q t475 = t460 + t470;
        // spectrum block of 2
        const Q t476 = t475 + t474;
        const Q t477 = shuffled<0, 1, 6, 7>(t430, t476);
        io.pairs(0, 1, t477);
        const Q t478 = t475 - t474;
        const Q t479 = shuffled<0, 1, 6, 7>(t478, t430);
        io.pairs(33, 34, t479);
        // spectrum block of 16
        const Q t480 = c[1] * t463;
        const Q t481 = c[2] * t464;
        const Q t482 = t480 + t481;
        // spectrum block of 2
        const Q t483 = t460 - t470;
        // spectrum block of 2
        const Q t484 = t483 - t482;
        const Q t485 = shuffled<0, 1, 6, 7>(t438, t484);
        io.pairs(3, 4, t485);
        const Q t486 = shuffled<0, 1, 6, 7>(t484, t441);
        io.pairs(21, 22, t486);
        const Q t487 = t483 + t482;
        const Q t488 = shuffled<0, 1, 6, 7>(t440, t487);
        io.pairs(12, 13, t488);
        const Q t489 = shuffled<0, 1, 6, 7>(t487, t439);
        io.pairs(30, 31, t489);
        // spectrum block of 16
        const Q t490 = c[2] * t467;
        const Q t491 = Q(c[1], -c[1], c[1], -c[1]) * t466;
        const Q t492 = t490 + t491;
        // spectrum block of 2
        const Q t493 = t461 - t471;
        // spectrum block of 2
        const Q t494 = t493 + t492;
        const Q t495 = shuffled<0, 1, 6, 7>(t476, t494);
        io.pairs(18, 19, t495);
        const Q t496 = shuffled<0, 1, 6, 7>(t494, t438);
        io.pairs(36, 37, t496);
        const Q t497 = t493 - t492;
        const Q t498 = shuffled<0, 1, 6, 7>(t497, t478);
        io.pairs(15, 16, t498);
        const Q t499 = shuffled<0, 1, 6, 7>(t439, t497);
        io.pairs(48, 49, t499);
        // spectrum block of 16
        const Q t500 = Q(-c[2], c[2], -c[2], c[2]) * t466;
        const Q t501 = c[1] * t467;
        const Q t502 = t500 + t501;
        // spectrum block of 2
        const Q t503 = t461 + t471;
        // spectrum block of 2
        const Q t504 = t503 - t502;
        const Q t505 = shuffled<0, 1, 6, 7>(t451, t504);
        io.pairs(24, 25, t505);
        const Q t506 = t503 + t502;
        const Q t507 = shuffled<0, 1, 6, 7>(t506, t452);
        io.pairs(9, 10, t507);
        const Q t508 = shuffled<0, 1, 6, 7>(t504, t506);
        io.pairs(42, 43, t508);
    }
};

}  // namespace zulg
