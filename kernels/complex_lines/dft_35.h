// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 35.
// Complex DFT of 35 points, prime-factor, order 5, 7; two lines of a stage to a register.
// 81 sums, 73 differences, 86 products of registers, which do the 886 steps of the graph, those with
// `scale` included; 34 shuffles, 17 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<35> {
    static constexpr int steps = 886;  // with `scale`
    static constexpr double inverseRoot = 0.1690308509457033;  // 1/sqrt(35), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.30901699437494745,  // c[6]: cos 2 pi 1/5
        0.8090169943749475,  // c[7]: -cos 2 pi 3/5
        0.9510565162951535,  // c[8]: sin 2 pi 1/5
        0.5877852522924731,  // c[9]: -sin 2 pi 3/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x7_12 = io.pairs(7, 12);
        const Q x28_33 = io.pairs(28, 33);
        // complex block of 5, multiplier 2
        const Q t0 = x7_12 + x28_33;
        const Q t1 = x7_12 - x28_33;
        const Q x21_26 = io.pairs(21, 26);
        const Q x14_19 = io.pairs(14, 19);
        const Q t2 = x21_26 + x14_19;
        const Q t3 = x21_26 - x14_19;
        const Q t4 = t0 + t2;
        const Q x0_5 = io.pairs(0, 5);
        const Q t5 = t4 + x0_5;
        const Q t6 = c[6] * t0;
        const Q t7 = c[7] * t2;
        const Q t8 = t6 - t7;
        const Q t9 = t8 + x0_5;
        const Q t10 = c[8] * t1;
        const Q t11 = c[9] * t3;
        const Q t12 = t10 - t11;
        const Q t13 = shuffled<1, 0, 3, 2>(t12);
        const Q t14 = flipped<0, 1, 0, 1>(t13);
        const Q t15 = t9 + t14;
        const Q t16 = t9 - t14;
        const Q t17 = c[7] * t0;
        const Q t18 = x0_5 - t17;
        const Q t19 = c[6] * t2;
        const Q t20 = t18 + t19;
        const Q t21 = c[9] * t1;
        const Q t22 = c[8] * t3;
        const Q t23 = t21 + t22;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = flipped<0, 1, 0, 1>(t24);
        const Q t26 = t20 + t25;
        const Q t27 = t20 - t25;
        const Q x31_1 = io.pairs(31, 1);
        const Q x24_29 = io.pairs(24, 29);
        // complex block of 5, multiplier 2
        const Q t28 = x31_1 + x24_29;
        const Q t29 = x31_1 - x24_29;
        const Q x17_22 = io.pairs(17, 22);
        const Q x3_8 = io.pairs(3, 8);
        const Q t30 = x17_22 + x3_8;
        const Q t31 = x17_22 - x3_8;
        const Q t32 = t30 + t28;
        const Q x10_15 = io.pairs(10, 15);
        const Q t33 = t32 + x10_15;
        const Q t34 = c[6] * t30;
        const Q t35 = c[7] * t28;
        const Q t36 = t34 - t35;
        const Q t37 = t36 + x10_15;
        const Q t38 = c[8] * t31;
        const Q t39 = c[9] * t29;
        const Q t40 = t38 - t39;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = flipped<0, 1, 0, 1>(t41);
        const Q t43 = t37 + t42;
        const Q t44 = t37 - t42;
        const Q t45 = c[7] * t30;
        const Q t46 = x10_15 - t45;
        const Q t47 = c[6] * t28;
        const Q t48 = t46 + t47;
        const Q t49 = c[9] * t31;
        const Q t50 = c[8] * t29;
        const Q t51 = t49 + t50;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t48 + t53;
        const Q t55 = t48 - t53;
        const P x2 = io.pair(2);
        const P x23 = io.pair(23);
        // complex block of 5, multiplier 2
        const P t56 = x2 + x23;
        const P t57 = x2 - x23;
        const P x16 = io.pair(16);
        const P x9 = io.pair(9);
        const P t58 = x16 + x9;
        const P t59 = x16 - x9;
        const P t60 = t56 + t58;
        const P x30 = io.pair(30);
        const P t61 = t60 + x30;
        const P t62 = c[6] * t56;
        const P t63 = c[7] * t58;
        const P t64 = t62 - t63;
        const P t65 = t64 + x30;
        const P t66 = c[8] * t57;
        const P t67 = c[9] * t59;
        const P t68 = t66 - t67;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = flipped<0, 1>(t69);
        const P t71 = t65 + t70;
        const P t72 = t65 - t70;
        const P t73 = c[7] * t56;
        const P t74 = x30 - t73;
        const P t75 = c[6] * t58;
        const P t76 = t74 + t75;
        const P t77 = c[9] * t57;
        const P t78 = c[8] * t59;
        const P t79 = t77 + t78;
        const P t80 = shuffled<1, 0>(t79);
        const P t81 = flipped<0, 1>(t80);
        const P t82 = t76 + t81;
        const P t83 = t76 - t81;
        const Q x6_11 = io.pairs(6, 11);
        const Q x34_4 = io.pairs(34, 4);
        // complex block of 5, multiplier 2
        const Q t84 = x6_11 + x34_4;
        const Q t85 = x6_11 - x34_4;
        const Q x27_32 = io.pairs(27, 32);
        const Q x13_18 = io.pairs(13, 18);
        const Q t86 = x27_32 + x13_18;
        const Q t87 = x27_32 - x13_18;
        const Q t88 = t86 + t84;
        const Q x20_25 = io.pairs(20, 25);
        const Q t89 = t88 + x20_25;
        const Q t90 = c[6] * t86;
        const Q t91 = c[7] * t84;
        const Q t92 = t90 - t91;
        const Q t93 = t92 + x20_25;
        const Q t94 = c[8] * t87;
        const Q t95 = c[9] * t85;
        const Q t96 = t94 - t95;
        const Q t97 = shuffled<1, 0, 3, 2>(t96);
        const Q t98 = flipped<0, 1, 0, 1>(t97);
        const Q t99 = t93 + t98;
        const Q t100 = t93 - t98;
        const Q t101 = c[7] * t86;
        const Q t102 = x20_25 - t101;
        const Q t103 = c[6] * t84;
        const Q t104 = t102 + t103;
        const Q t105 = c[9] * t87;
        const Q t106 = c[8] * t85;
        const Q t107 = t105 + t106;
        const Q t108 = shuffled<1, 0, 3, 2>(t107);
        const Q t109 = flipped<0, 1, 0, 1>(t108);
        const Q t110 = t104 + t109;
        const Q t111 = t104 - t109;
        const Q t112 = shuffled<2, 3, 6, 7>(t5, t26);
        const Q t113 = joined(t61, t82);
        // complex block of 7, multiplier 5
        const Q t114 = t112 + t113;
        const Q t115 = shuffled<2, 3, 6, 7>(t89, t110);
        const Q t116 = shuffled<0, 1, 4, 5>(t33, t54);
        const Q t117 = t115 + t116;
        const Q t118 = t114 + t117;
        const Q t119 = c[0] * t114;
        const Q t120 = c[1] * t117;
        const Q t121 = t119 - t120;
        const Q t122 = shuffled<0, 1, 4, 5>(t5, t26);
        const Q t123 = c[1] * t114;
        const Q t124 = t122 - t123;
        const Q t125 = c[2] * t114;
        const Q t126 = t122 - t125;
        const Q t127 = t112 - t113;
        const Q t128 = t115 - t116;
        const Q t129 = c[3] * t127;
        const Q t130 = c[4] * t128;
        const Q t131 = t129 - t130;
        const Q t132 = c[4] * t127;
        const Q t133 = c[5] * t128;
        const Q t134 = t132 + t133;
        const Q t135 = c[5] * t127;
        const Q t136 = c[3] * t128;
        const Q t137 = t135 + t136;
        const Q t138 = shuffled<0, 1, 4, 5>(t89, t110);
        const Q t139 = shuffled<2, 3, 6, 7>(t33, t54);
        const Q t140 = t138 + t139;
        const Q t141 = t138 - t139;
        const Q t142 = t118 + t140;
        const Q t143 = t142 + t122;
        io.pairs(0, 7, t143);
        const Q t144 = c[2] * t140;
        const Q t145 = t121 - t144;
        const Q t146 = t145 + t122;
        const Q t147 = c[5] * t141;
        const Q t148 = t131 - t147;
        const Q t149 = shuffled<1, 0, 3, 2>(t148);
        const Q t150 = flipped<0, 1, 0, 1>(t149);
        const Q t151 = t146 + t150;
        io.pairs(15, 22, t151);
        const Q t152 = t146 - t150;
        io.pairs(20, 27, t152);
        const Q t153 = c[2] * t117;
        const Q t154 = t124 - t153;
        const Q t155 = c[0] * t140;
        const Q t156 = t154 + t155;
        const Q t157 = c[3] * t141;
        const Q t158 = t134 + t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t158);
        const Q t160 = flipped<0, 1, 0, 1>(t159);
        const Q t161 = t156 + t160;
        io.pairs(30, 2, t161);
        const Q t162 = t156 - t160;
        io.pairs(5, 12, t162);
        const Q t163 = c[0] * t117;
        const Q t164 = t126 + t163;
        const Q t165 = c[1] * t140;
        const Q t166 = t164 - t165;
        const Q t167 = c[4] * t141;
        const Q t168 = t137 - t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t168);
        const Q t170 = flipped<0, 1, 0, 1>(t169);
        const Q t171 = t166 + t170;
        io.pairs(10, 17, t171);
        const Q t172 = t166 - t170;
        io.pairs(25, 32, t172);
        const Q t173 = shuffled<2, 3, 6, 7>(t16, t15);
        const Q t174 = joined(t72, t71);
        // complex block of 7, multiplier 5
        const Q t175 = t173 + t174;
        const Q t176 = shuffled<2, 3, 6, 7>(t100, t99);
        const Q t177 = shuffled<0, 1, 4, 5>(t44, t43);
        const Q t178 = t176 + t177;
        const Q t179 = t175 + t178;
        const Q t180 = c[0] * t175;
        const Q t181 = c[1] * t178;
        const Q t182 = t180 - t181;
        const Q t183 = shuffled<0, 1, 4, 5>(t16, t15);
        const Q t184 = c[1] * t175;
        const Q t185 = t183 - t184;
        const Q t186 = c[2] * t175;
        const Q t187 = t183 - t186;
        const Q t188 = t173 - t174;
        const Q t189 = t176 - t177;
        const Q t190 = c[3] * t188;
        const Q t191 = c[4] * t189;
        const Q t192 = t190 - t191;
        const Q t193 = c[4] * t188;
        const Q t194 = c[5] * t189;
        const Q t195 = t193 + t194;
        const Q t196 = c[5] * t188;
        const Q t197 = c[3] * t189;
        const Q t198 = t196 + t197;
        const Q t199 = shuffled<0, 1, 4, 5>(t100, t99);
        const Q t200 = shuffled<2, 3, 6, 7>(t44, t43);
        const Q t201 = t199 + t200;
        const Q t202 = t199 - t200;
        const Q t203 = t179 + t201;
        const Q t204 = t203 + t183;
        io.pairs(14, 21, t204);
        const Q t205 = c[2] * t201;
        const Q t206 = t182 - t205;
        const Q t207 = t206 + t183;
        const Q t208 = c[5] * t202;
        const Q t209 = t192 - t208;
        const Q t210 = shuffled<1, 0, 3, 2>(t209);
        const Q t211 = flipped<0, 1, 0, 1>(t210);
        const Q t212 = t207 + t211;
        io.pairs(29, 1, t212);
        const Q t213 = t207 - t211;
        io.pairs(34, 6, t213);
        const Q t214 = c[2] * t178;
        const Q t215 = t185 - t214;
        const Q t216 = c[0] * t201;
        const Q t217 = t215 + t216;
        const Q t218 = c[3] * t202;
        const Q t219 = t195 + t218;
        const Q t220 = shuffled<1, 0, 3, 2>(t219);
        const Q t221 = flipped<0, 1, 0, 1>(t220);
        const Q t222 = t217 + t221;
        io.pairs(9, 16, t222);
        const Q t223 = t217 - t221;
        io.pairs(19, 26, t223);
        const Q t224 = c[0] * t178;
        const Q t225 = t187 + t224;
        const Q t226 = c[1] * t201;
        const Q t227 = t225 - t226;
        const Q t228 = c[4] * t202;
        const Q t229 = t198 - t228;
        const Q t230 = shuffled<1, 0, 3, 2>(t229);
        const Q t231 = flipped<0, 1, 0, 1>(t230);
        const Q t232 = t227 + t231;
        io.pairs(24, 31, t232);
        const Q t233 = t227 - t231;
        io.pairs(4, 11, t233);
        const P t234 = part<1>(t27);
        // complex block of 7, multiplier 5
        const P t235 = t234 + t83;
        const P t236 = part<1>(t111);
        const P t237 = part<0>(t55);
        const P t238 = t236 + t237;
        const P t239 = t235 + t238;
        const P t240 = c[0] * t235;
        const P t241 = c[1] * t238;
        const P t242 = t240 - t241;
        const P t243 = part<0>(t27);
        const P t244 = c[1] * t235;
        const P t245 = t243 - t244;
        const P t246 = c[2] * t235;
        const P t247 = t243 - t246;
        const P t248 = t234 - t83;
        const P t249 = t236 - t237;
        const P t250 = c[3] * t248;
        const P t251 = c[4] * t249;
        const P t252 = t250 - t251;
        const P t253 = c[4] * t248;
        const P t254 = c[5] * t249;
        const P t255 = t253 + t254;
        const P t256 = c[5] * t248;
        const P t257 = c[3] * t249;
        const P t258 = t256 + t257;
        const P t259 = part<0>(t111);
        const P t260 = part<1>(t55);
        const P t261 = t259 + t260;
        const P t262 = t259 - t260;
        const P t263 = t239 + t261;
        const P t264 = t263 + t243;
        io.pair(28, t264);
        const P t265 = c[2] * t261;
        const P t266 = t242 - t265;
        const P t267 = t266 + t243;
        const P t268 = c[5] * t262;
        const P t269 = t252 - t268;
        const P t270 = shuffled<1, 0>(t269);
        const P t271 = flipped<0, 1>(t270);
        const P t272 = t267 + t271;
        io.pair(8, t272);
        const P t273 = t267 - t271;
        io.pair(13, t273);
        const P t274 = c[2] * t238;
        const P t275 = t245 - t274;
        const P t276 = c[0] * t261;
        const P t277 = t275 + t276;
        const P t278 = c[3] * t262;
        const P t279 = t255 + t278;
        const P t280 = shuffled<1, 0>(t279);
        const P t281 = flipped<0, 1>(t280);
        const P t282 = t277 + t281;
        io.pair(23, t282);
        const P t283 = t277 - t281;
        io.pair(33, t283);
        const P t284 = c[0] * t238;
        const P t285 = t247 + t284;
        const P t286 = c[1] * t261;
        const P t287 = t285 - t286;
        const P t288 = c[4] * t262;
        const P t289 = t258 - t288;
        const P t290 = shuffled<1, 0>(t289);
        const P t291 = flipped<0, 1>(t290);
        const P t292 = t287 + t291;
        io.pair(3, t292);
        const P t293 = t287 - t291;
        io.pair(18, t293);
    }
};

}  // namespace zulg
