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
        const Q x17_22 = io.pairs(17, 22);
        const Q x3_8 = io.pairs(3, 8);
        // complex block of 5, multiplier 2
        const Q t28 = x17_22 + x3_8;
        const Q t29 = x17_22 - x3_8;
        const Q x31_1 = io.pairs(31, 1);
        const Q x24_29 = io.pairs(24, 29);
        const Q t30 = x31_1 + x24_29;
        const Q t31 = x31_1 - x24_29;
        const Q t32 = t28 + t30;
        const Q x10_15 = io.pairs(10, 15);
        const Q t33 = t32 + x10_15;
        const Q t34 = c[6] * t28;
        const Q t35 = c[7] * t30;
        const Q t36 = t34 - t35;
        const Q t37 = t36 + x10_15;
        const Q t38 = c[8] * t29;
        const Q t39 = c[9] * t31;
        const Q t40 = t38 - t39;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = flipped<0, 1, 0, 1>(t41);
        const Q t43 = t37 + t42;
        const Q t44 = t37 - t42;
        const Q t45 = c[7] * t28;
        const Q t46 = x10_15 - t45;
        const Q t47 = c[6] * t30;
        const Q t48 = t46 + t47;
        const Q t49 = c[9] * t29;
        const Q t50 = c[8] * t31;
        const Q t51 = t49 + t50;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t48 + t53;
        const Q t55 = t48 - t53;
        const Q x27_32 = io.pairs(27, 32);
        const Q x13_18 = io.pairs(13, 18);
        // complex block of 5, multiplier 2
        const Q t56 = x27_32 + x13_18;
        const Q t57 = x27_32 - x13_18;
        const Q x6_11 = io.pairs(6, 11);
        const Q x34_4 = io.pairs(34, 4);
        const Q t58 = x6_11 + x34_4;
        const Q t59 = x6_11 - x34_4;
        const Q t60 = t56 + t58;
        const Q x20_25 = io.pairs(20, 25);
        const Q t61 = t60 + x20_25;
        const Q t62 = c[6] * t56;
        const Q t63 = c[7] * t58;
        const Q t64 = t62 - t63;
        const Q t65 = t64 + x20_25;
        const Q t66 = c[8] * t57;
        const Q t67 = c[9] * t59;
        const Q t68 = t66 - t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        const Q t70 = flipped<0, 1, 0, 1>(t69);
        const Q t71 = t65 + t70;
        const Q t72 = t65 - t70;
        const Q t73 = c[7] * t56;
        const Q t74 = x20_25 - t73;
        const Q t75 = c[6] * t58;
        const Q t76 = t74 + t75;
        const Q t77 = c[9] * t57;
        const Q t78 = c[8] * t59;
        const Q t79 = t77 + t78;
        const Q t80 = shuffled<1, 0, 3, 2>(t79);
        const Q t81 = flipped<0, 1, 0, 1>(t80);
        const Q t82 = t76 + t81;
        const Q t83 = t76 - t81;
        const P x2 = io.pair(2);
        const P x23 = io.pair(23);
        // complex block of 5, multiplier 2
        const P t84 = x2 + x23;
        const P t85 = x2 - x23;
        const P x16 = io.pair(16);
        const P x9 = io.pair(9);
        const P t86 = x16 + x9;
        const P t87 = x16 - x9;
        const P t88 = t84 + t86;
        const P x30 = io.pair(30);
        const P t89 = t88 + x30;
        const P t90 = c[6] * t84;
        const P t91 = c[7] * t86;
        const P t92 = t90 - t91;
        const P t93 = t92 + x30;
        const P t94 = c[8] * t85;
        const P t95 = c[9] * t87;
        const P t96 = t94 - t95;
        const P t97 = shuffled<1, 0>(t96);
        const P t98 = flipped<0, 1>(t97);
        const P t99 = t93 + t98;
        const P t100 = t93 - t98;
        const P t101 = c[7] * t84;
        const P t102 = x30 - t101;
        const P t103 = c[6] * t86;
        const P t104 = t102 + t103;
        const P t105 = c[9] * t85;
        const P t106 = c[8] * t87;
        const P t107 = t105 + t106;
        const P t108 = shuffled<1, 0>(t107);
        const P t109 = flipped<0, 1>(t108);
        const P t110 = t104 + t109;
        const P t111 = t104 - t109;
        const Q t112 = shuffled<2, 3, 6, 7>(t5, t26);
        const Q t113 = joined(t89, t110);
        // complex block of 7, multiplier 5
        const Q t114 = t112 + t113;
        const Q t115 = t112 - t113;
        const Q t116 = shuffled<2, 3, 6, 7>(t61, t82);
        const Q t117 = shuffled<0, 1, 4, 5>(t33, t54);
        const Q t118 = t116 + t117;
        const Q t119 = t116 - t117;
        const Q t120 = shuffled<0, 1, 4, 5>(t61, t82);
        const Q t121 = shuffled<2, 3, 6, 7>(t33, t54);
        const Q t122 = t120 + t121;
        const Q t123 = t120 - t121;
        const Q t124 = t114 + t118;
        const Q t125 = t124 + t122;
        const Q t126 = shuffled<0, 1, 4, 5>(t5, t26);
        const Q t127 = t125 + t126;
        io.pairs(0, 7, t127);
        const Q t128 = c[0] * t114;
        const Q t129 = c[1] * t118;
        const Q t130 = t128 - t129;
        const Q t131 = c[2] * t122;
        const Q t132 = t130 - t131;
        const Q t133 = t132 + t126;
        const Q t134 = c[3] * t115;
        const Q t135 = c[4] * t119;
        const Q t136 = t134 - t135;
        const Q t137 = c[5] * t123;
        const Q t138 = t136 - t137;
        const Q t139 = shuffled<1, 0, 3, 2>(t138);
        const Q t140 = flipped<0, 1, 0, 1>(t139);
        const Q t141 = t133 + t140;
        io.pairs(15, 22, t141);
        const Q t142 = t133 - t140;
        io.pairs(20, 27, t142);
        const Q t143 = c[1] * t114;
        const Q t144 = t126 - t143;
        const Q t145 = c[2] * t118;
        const Q t146 = t144 - t145;
        const Q t147 = c[0] * t122;
        const Q t148 = t146 + t147;
        const Q t149 = c[4] * t115;
        const Q t150 = c[5] * t119;
        const Q t151 = t149 + t150;
        const Q t152 = c[3] * t123;
        const Q t153 = t151 + t152;
        const Q t154 = shuffled<1, 0, 3, 2>(t153);
        const Q t155 = flipped<0, 1, 0, 1>(t154);
        const Q t156 = t148 + t155;
        io.pairs(30, 2, t156);
        const Q t157 = t148 - t155;
        io.pairs(5, 12, t157);
        const Q t158 = c[2] * t114;
        const Q t159 = t126 - t158;
        const Q t160 = c[0] * t118;
        const Q t161 = t159 + t160;
        const Q t162 = c[1] * t122;
        const Q t163 = t161 - t162;
        const Q t164 = c[5] * t115;
        const Q t165 = c[3] * t119;
        const Q t166 = t164 + t165;
        const Q t167 = c[4] * t123;
        const Q t168 = t166 - t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t168);
        const Q t170 = flipped<0, 1, 0, 1>(t169);
        const Q t171 = t163 + t170;
        io.pairs(10, 17, t171);
        const Q t172 = t163 - t170;
        io.pairs(25, 32, t172);
        const Q t173 = shuffled<2, 3, 6, 7>(t16, t15);
        const Q t174 = joined(t100, t99);
        // complex block of 7, multiplier 5
        const Q t175 = t173 + t174;
        const Q t176 = t173 - t174;
        const Q t177 = shuffled<2, 3, 6, 7>(t72, t71);
        const Q t178 = shuffled<0, 1, 4, 5>(t44, t43);
        const Q t179 = t177 + t178;
        const Q t180 = t177 - t178;
        const Q t181 = shuffled<0, 1, 4, 5>(t72, t71);
        const Q t182 = shuffled<2, 3, 6, 7>(t44, t43);
        const Q t183 = t181 + t182;
        const Q t184 = t181 - t182;
        const Q t185 = t175 + t179;
        const Q t186 = t185 + t183;
        const Q t187 = shuffled<0, 1, 4, 5>(t16, t15);
        const Q t188 = t186 + t187;
        io.pairs(14, 21, t188);
        const Q t189 = c[0] * t175;
        const Q t190 = c[1] * t179;
        const Q t191 = t189 - t190;
        const Q t192 = c[2] * t183;
        const Q t193 = t191 - t192;
        const Q t194 = t193 + t187;
        const Q t195 = c[3] * t176;
        const Q t196 = c[4] * t180;
        const Q t197 = t195 - t196;
        const Q t198 = c[5] * t184;
        const Q t199 = t197 - t198;
        const Q t200 = shuffled<1, 0, 3, 2>(t199);
        const Q t201 = flipped<0, 1, 0, 1>(t200);
        const Q t202 = t194 + t201;
        io.pairs(29, 1, t202);
        const Q t203 = t194 - t201;
        io.pairs(34, 6, t203);
        const Q t204 = c[1] * t175;
        const Q t205 = t187 - t204;
        const Q t206 = c[2] * t179;
        const Q t207 = t205 - t206;
        const Q t208 = c[0] * t183;
        const Q t209 = t207 + t208;
        const Q t210 = c[4] * t176;
        const Q t211 = c[5] * t180;
        const Q t212 = t210 + t211;
        const Q t213 = c[3] * t184;
        const Q t214 = t212 + t213;
        const Q t215 = shuffled<1, 0, 3, 2>(t214);
        const Q t216 = flipped<0, 1, 0, 1>(t215);
        const Q t217 = t209 + t216;
        io.pairs(9, 16, t217);
        const Q t218 = t209 - t216;
        io.pairs(19, 26, t218);
        const Q t219 = c[2] * t175;
        const Q t220 = t187 - t219;
        const Q t221 = c[0] * t179;
        const Q t222 = t220 + t221;
        const Q t223 = c[1] * t183;
        const Q t224 = t222 - t223;
        const Q t225 = c[5] * t176;
        const Q t226 = c[3] * t180;
        const Q t227 = t225 + t226;
        const Q t228 = c[4] * t184;
        const Q t229 = t227 - t228;
        const Q t230 = shuffled<1, 0, 3, 2>(t229);
        const Q t231 = flipped<0, 1, 0, 1>(t230);
        const Q t232 = t224 + t231;
        io.pairs(24, 31, t232);
        const Q t233 = t224 - t231;
        io.pairs(4, 11, t233);
        const P t234 = part<1>(t27);
        // complex block of 7, multiplier 5
        const P t235 = t234 + t111;
        const P t236 = t234 - t111;
        const P t237 = part<1>(t83);
        const P t238 = part<0>(t55);
        const P t239 = t237 + t238;
        const P t240 = t237 - t238;
        const P t241 = part<0>(t83);
        const P t242 = part<1>(t55);
        const P t243 = t241 + t242;
        const P t244 = t241 - t242;
        const P t245 = t235 + t239;
        const P t246 = t245 + t243;
        const P t247 = part<0>(t27);
        const P t248 = t246 + t247;
        io.pair(28, t248);
        const P t249 = c[0] * t235;
        const P t250 = c[1] * t239;
        const P t251 = t249 - t250;
        const P t252 = c[2] * t243;
        const P t253 = t251 - t252;
        const P t254 = t253 + t247;
        const P t255 = c[3] * t236;
        const P t256 = c[4] * t240;
        const P t257 = t255 - t256;
        const P t258 = c[5] * t244;
        const P t259 = t257 - t258;
        const P t260 = shuffled<1, 0>(t259);
        const P t261 = flipped<0, 1>(t260);
        const P t262 = t254 + t261;
        io.pair(8, t262);
        const P t263 = t254 - t261;
        io.pair(13, t263);
        const P t264 = c[1] * t235;
        const P t265 = t247 - t264;
        const P t266 = c[2] * t239;
        const P t267 = t265 - t266;
        const P t268 = c[0] * t243;
        const P t269 = t267 + t268;
        const P t270 = c[4] * t236;
        const P t271 = c[5] * t240;
        const P t272 = t270 + t271;
        const P t273 = c[3] * t244;
        const P t274 = t272 + t273;
        const P t275 = shuffled<1, 0>(t274);
        const P t276 = flipped<0, 1>(t275);
        const P t277 = t269 + t276;
        io.pair(23, t277);
        const P t278 = t269 - t276;
        io.pair(33, t278);
        const P t279 = c[2] * t235;
        const P t280 = t247 - t279;
        const P t281 = c[0] * t239;
        const P t282 = t280 + t281;
        const P t283 = c[1] * t243;
        const P t284 = t282 - t283;
        const P t285 = c[5] * t236;
        const P t286 = c[3] * t240;
        const P t287 = t285 + t286;
        const P t288 = c[4] * t244;
        const P t289 = t287 - t288;
        const P t290 = shuffled<1, 0>(t289);
        const P t291 = flipped<0, 1>(t290);
        const P t292 = t284 + t291;
        io.pair(3, t292);
        const P t293 = t284 - t291;
        io.pair(18, t293);
    }
};

}  // namespace zulg
