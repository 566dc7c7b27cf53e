// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 42.
// Complex DFT of 42 points, prime-factor, order 7, 3, 2; two lines of a stage to a register.
// 77 sums, 77 differences, 68 products of registers, which do the 968 steps of the graph, those with
// `scale` included; 37 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<42> {
    static constexpr int steps = 968;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x24_3 = io.pairs(24, 3);
        const Q x18_39 = io.pairs(18, 39);
        // complex block of 7, multiplier 6
        const Q t0 = x24_3 + x18_39;
        const Q t1 = x24_3 - x18_39;
        const Q x6_27 = io.pairs(6, 27);
        const Q x36_15 = io.pairs(36, 15);
        const Q t2 = x6_27 + x36_15;
        const Q t3 = x6_27 - x36_15;
        const Q x30_9 = io.pairs(30, 9);
        const Q x12_33 = io.pairs(12, 33);
        const Q t4 = x30_9 + x12_33;
        const Q t5 = x30_9 - x12_33;
        const Q t6 = t2 + t4;
        const Q t7 = t6 + t0;
        const Q t8 = c[0] * t2;
        const Q t9 = c[1] * t4;
        const Q t10 = t8 - t9;
        const Q t11 = c[2] * t0;
        const Q t12 = t10 - t11;
        const Q t13 = c[3] * t3;
        const Q t14 = c[4] * t5;
        const Q t15 = t13 - t14;
        const Q t16 = c[5] * t1;
        const Q t17 = t15 - t16;
        const Q x0_21 = io.pairs(0, 21);
        const Q t18 = c[1] * t2;
        const Q t19 = x0_21 - t18;
        const Q t20 = c[2] * t4;
        const Q t21 = t19 - t20;
        const Q t22 = c[4] * t3;
        const Q t23 = c[5] * t5;
        const Q t24 = t22 + t23;
        const Q t25 = c[3] * t1;
        const Q t26 = t24 + t25;
        const Q t27 = c[2] * t2;
        const Q t28 = x0_21 - t27;
        const Q t29 = c[0] * t4;
        const Q t30 = t28 + t29;
        const Q t31 = c[5] * t3;
        const Q t32 = c[3] * t5;
        const Q t33 = t31 + t32;
        const Q t34 = c[4] * t1;
        const Q t35 = t33 - t34;
        const Q x34_13 = io.pairs(34, 13);
        const Q x22_1 = io.pairs(22, 1);
        // complex block of 7, multiplier 6
        const Q t36 = x34_13 + x22_1;
        const Q t37 = x34_13 - x22_1;
        const Q x16_37 = io.pairs(16, 37);
        const Q x40_19 = io.pairs(40, 19);
        const Q t38 = x16_37 + x40_19;
        const Q t39 = x16_37 - x40_19;
        const Q t40 = t36 + t38;
        const Q x10_31 = io.pairs(10, 31);
        const Q x4_25 = io.pairs(4, 25);
        const Q t41 = x10_31 + x4_25;
        const Q t42 = x10_31 - x4_25;
        const Q t43 = t40 + t41;
        const Q x28_7 = io.pairs(28, 7);
        const Q t44 = t43 + x28_7;
        const Q t45 = c[0] * t36;
        const Q t46 = c[1] * t38;
        const Q t47 = t45 - t46;
        const Q t48 = c[2] * t41;
        const Q t49 = t47 - t48;
        const Q t50 = t49 + x28_7;
        const Q t51 = c[3] * t37;
        const Q t52 = c[4] * t39;
        const Q t53 = t51 - t52;
        const Q t54 = c[5] * t42;
        const Q t55 = t53 - t54;
        const Q t56 = c[1] * t36;
        const Q t57 = x28_7 - t56;
        const Q t58 = c[2] * t38;
        const Q t59 = t57 - t58;
        const Q t60 = c[0] * t41;
        const Q t61 = t59 + t60;
        const Q t62 = c[4] * t37;
        const Q t63 = c[5] * t39;
        const Q t64 = t62 + t63;
        const Q t65 = c[3] * t42;
        const Q t66 = t64 + t65;
        const Q t67 = c[2] * t36;
        const Q t68 = x28_7 - t67;
        const Q t69 = c[0] * t38;
        const Q t70 = t68 + t69;
        const Q t71 = c[1] * t41;
        const Q t72 = t70 - t71;
        const Q t73 = c[5] * t37;
        const Q t74 = c[3] * t39;
        const Q t75 = t73 + t74;
        const Q t76 = c[4] * t42;
        const Q t77 = t75 - t76;
        const Q x2_23 = io.pairs(2, 23);
        const Q x26_5 = io.pairs(26, 5);
        // complex block of 7, multiplier 6
        const Q t78 = x2_23 + x26_5;
        const Q t79 = x2_23 - x26_5;
        const Q x20_41 = io.pairs(20, 41);
        const Q x8_29 = io.pairs(8, 29);
        const Q t80 = x20_41 + x8_29;
        const Q t81 = x20_41 - x8_29;
        const Q t82 = t80 + t78;
        const Q x38_17 = io.pairs(38, 17);
        const Q x32_11 = io.pairs(32, 11);
        const Q t83 = x38_17 + x32_11;
        const Q t84 = x38_17 - x32_11;
        const Q t85 = t82 + t83;
        const Q x14_35 = io.pairs(14, 35);
        const Q t86 = t85 + x14_35;
        const Q t87 = c[0] * t80;
        const Q t88 = c[1] * t78;
        const Q t89 = t87 - t88;
        const Q t90 = c[2] * t83;
        const Q t91 = t89 - t90;
        const Q t92 = t91 + x14_35;
        const Q t93 = c[3] * t81;
        const Q t94 = c[4] * t79;
        const Q t95 = t93 - t94;
        const Q t96 = c[5] * t84;
        const Q t97 = t95 - t96;
        const Q t98 = c[1] * t80;
        const Q t99 = x14_35 - t98;
        const Q t100 = c[2] * t78;
        const Q t101 = t99 - t100;
        const Q t102 = c[0] * t83;
        const Q t103 = t101 + t102;
        const Q t104 = c[4] * t81;
        const Q t105 = c[5] * t79;
        const Q t106 = t104 + t105;
        const Q t107 = c[3] * t84;
        const Q t108 = t106 + t107;
        const Q t109 = c[2] * t80;
        const Q t110 = x14_35 - t109;
        const Q t111 = c[0] * t78;
        const Q t112 = t110 + t111;
        const Q t113 = c[1] * t83;
        const Q t114 = t112 - t113;
        const Q t115 = c[5] * t81;
        const Q t116 = c[3] * t79;
        const Q t117 = t115 + t116;
        const Q t118 = c[4] * t84;
        const Q t119 = t117 - t118;
        // complex block of 7, multiplier 6
        const Q t120 = t7 + x0_21;
        // complex block of 3, multiplier 2
        const Q t121 = t86 + t44;
        const Q t122 = t121 + t120;
        const Q t123 = c[6] * t121;
        const Q t124 = t120 - t123;
        // complex block of 7, multiplier 6
        const Q t125 = t12 + x0_21;
        const Q t126 = shuffled<1, 0, 3, 2>(t17);
        const Q t127 = flipped<0, 1, 0, 1>(t126);
        const Q t128 = t125 + t127;
        const Q t129 = t125 - t127;
        const Q t130 = shuffled<1, 0, 3, 2>(t97);
        const Q t131 = flipped<0, 1, 0, 1>(t130);
        // complex block of 7, multiplier 6
        const Q t132 = t92 + t131;
        const Q t133 = shuffled<1, 0, 3, 2>(t55);
        const Q t134 = flipped<0, 1, 0, 1>(t133);
        // complex block of 7, multiplier 6
        const Q t135 = t50 + t134;
        // complex block of 3, multiplier 2
        const Q t136 = t132 + t135;
        const Q t137 = t132 - t135;
        // complex block of 7, multiplier 6
        const Q t138 = t92 - t131;
        // complex block of 7, multiplier 6
        const Q t139 = t50 - t134;
        // complex block of 3, multiplier 2
        const Q t140 = t138 + t139;
        const Q t141 = t138 - t139;
        // complex block of 3, multiplier 2
        const Q t142 = t86 - t44;
        const Q t143 = Q(-c[7], c[7], -c[7], c[7]) * t142;
        const Q t144 = shuffled<1, 0, 3, 2>(t143);
        const Q t145 = t124 + t144;
        // complex block of 3, multiplier 2
        const Q t146 = t140 + t129;
        const Q t147 = shuffled<0, 1, 4, 5>(t145, t146);
        const Q t148 = shuffled<2, 3, 6, 7>(t145, t146);
        // complex block of 2
        const Q t149 = t147 + t148;
        io.pairs(28, 6, t149);
        const Q t150 = t147 - t148;
        io.pairs(7, 27, t150);
        // complex block of 3, multiplier 2
        const Q t151 = t124 - t144;
        const Q t152 = shuffled<0, 1, 4, 5>(t122, t151);
        const Q t153 = shuffled<2, 3, 6, 7>(t122, t151);
        // complex block of 2
        const Q t154 = t152 + t153;
        io.pairs(0, 14, t154);
        const Q t155 = t152 - t153;
        io.pairs(21, 35, t155);
        // complex block of 3, multiplier 2
        const Q t156 = c[6] * t140;
        const Q t157 = t129 - t156;
        const Q t158 = Q(-c[7], c[7], -c[7], c[7]) * t141;
        const Q t159 = shuffled<1, 0, 3, 2>(t158);
        const Q t160 = t157 + t159;
        const Q t161 = t157 - t159;
        const Q t162 = shuffled<0, 1, 4, 5>(t161, t160);
        const Q t163 = shuffled<2, 3, 6, 7>(t161, t160);
        // complex block of 2
        const Q t164 = t162 + t163;
        io.pairs(20, 34, t164);
        const Q t165 = t162 - t163;
        io.pairs(41, 13, t165);
        // complex block of 3, multiplier 2
        const Q t166 = t136 + t128;
        const Q t167 = c[6] * t136;
        const Q t168 = t128 - t167;
        const Q t169 = Q(-c[7], c[7], -c[7], c[7]) * t137;
        const Q t170 = shuffled<1, 0, 3, 2>(t169);
        const Q t171 = t168 + t170;
        const Q t172 = t168 - t170;
        const Q t173 = shuffled<0, 1, 4, 5>(t166, t172);
        const Q t174 = shuffled<2, 3, 6, 7>(t166, t172);
        // complex block of 2
        const Q t175 = t173 + t174;
        io.pairs(36, 8, t175);
        const Q t176 = t173 - t174;
        io.pairs(15, 29, t176);
        const P t177 = part<0>(t171);
        const P t178 = part<1>(t171);
        // complex block of 2
        const P t179 = t177 + t178;
        io.pair(22, t179);
        const P t180 = t177 - t178;
        io.pair(1, t180);
        // complex block of 7, multiplier 6
        const Q t181 = c[0] * t0;
        const Q t182 = t21 + t181;
        const Q t183 = shuffled<1, 0, 3, 2>(t26);
        const Q t184 = flipped<0, 1, 0, 1>(t183);
        const Q t185 = t182 + t184;
        const Q t186 = t182 - t184;
        const Q t187 = c[1] * t0;
        const Q t188 = t30 - t187;
        const Q t189 = shuffled<1, 0, 3, 2>(t35);
        const Q t190 = flipped<0, 1, 0, 1>(t189);
        const Q t191 = t188 + t190;
        const Q t192 = t188 - t190;
        const Q t193 = shuffled<1, 0, 3, 2>(t108);
        const Q t194 = flipped<0, 1, 0, 1>(t193);
        // complex block of 7, multiplier 6
        const Q t195 = t103 + t194;
        const Q t196 = shuffled<1, 0, 3, 2>(t66);
        const Q t197 = flipped<0, 1, 0, 1>(t196);
        // complex block of 7, multiplier 6
        const Q t198 = t61 + t197;
        // complex block of 3, multiplier 2
        const Q t199 = t195 + t198;
        const Q t200 = t195 - t198;
        // complex block of 7, multiplier 6
        const Q t201 = t103 - t194;
        // complex block of 7, multiplier 6
        const Q t202 = t61 - t197;
        // complex block of 3, multiplier 2
        const Q t203 = t201 + t202;
        const Q t204 = t201 - t202;
        const Q t205 = shuffled<1, 0, 3, 2>(t119);
        const Q t206 = flipped<0, 1, 0, 1>(t205);
        // complex block of 7, multiplier 6
        const Q t207 = t114 + t206;
        const Q t208 = shuffled<1, 0, 3, 2>(t77);
        const Q t209 = flipped<0, 1, 0, 1>(t208);
        // complex block of 7, multiplier 6
        const Q t210 = t72 + t209;
        // complex block of 3, multiplier 2
        const Q t211 = t207 + t210;
        const Q t212 = t207 - t210;
        // complex block of 7, multiplier 6
        const Q t213 = t114 - t206;
        // complex block of 7, multiplier 6
        const Q t214 = t72 - t209;
        // complex block of 3, multiplier 2
        const Q t215 = t213 + t214;
        const Q t216 = t213 - t214;
        // complex block of 3, multiplier 2
        const Q t217 = t203 + t186;
        const Q t218 = c[6] * t203;
        const Q t219 = t186 - t218;
        const Q t220 = Q(-c[7], c[7], -c[7], c[7]) * t204;
        const Q t221 = shuffled<1, 0, 3, 2>(t220);
        const Q t222 = t219 + t221;
        const Q t223 = t219 - t221;
        // complex block of 3, multiplier 2
        const Q t224 = t215 + t192;
        const Q t225 = shuffled<0, 1, 4, 5>(t217, t223);
        const Q t226 = shuffled<2, 3, 6, 7>(t217, t223);
        // complex block of 2
        const Q t227 = t225 + t226;
        io.pairs(12, 26, t227);
        const Q t228 = t225 - t226;
        io.pairs(33, 5, t228);
        const Q t229 = shuffled<0, 1, 4, 5>(t222, t224);
        const Q t230 = shuffled<2, 3, 6, 7>(t222, t224);
        // complex block of 2
        const Q t231 = t229 + t230;
        io.pairs(40, 18, t231);
        const Q t232 = t229 - t230;
        io.pairs(19, 39, t232);
        // complex block of 3, multiplier 2
        const Q t233 = c[6] * t215;
        const Q t234 = t192 - t233;
        const Q t235 = Q(-c[7], c[7], -c[7], c[7]) * t216;
        const Q t236 = shuffled<1, 0, 3, 2>(t235);
        const Q t237 = t234 + t236;
        const Q t238 = t234 - t236;
        const Q t239 = shuffled<0, 1, 4, 5>(t238, t237);
        const Q t240 = shuffled<2, 3, 6, 7>(t238, t237);
        // complex block of 2
        const Q t241 = t239 + t240;
        io.pairs(32, 4, t241);
        const Q t242 = t239 - t240;
        io.pairs(11, 25, t242);
        // complex block of 3, multiplier 2
        const Q t243 = t211 + t191;
        const Q t244 = c[6] * t211;
        const Q t245 = t191 - t244;
        const Q t246 = Q(-c[7], c[7], -c[7], c[7]) * t212;
        const Q t247 = shuffled<1, 0, 3, 2>(t246);
        const Q t248 = t245 + t247;
        const Q t249 = t245 - t247;
        // complex block of 3, multiplier 2
        const Q t250 = t199 + t185;
        const Q t251 = shuffled<0, 1, 4, 5>(t243, t249);
        const Q t252 = shuffled<2, 3, 6, 7>(t243, t249);
        // complex block of 2
        const Q t253 = t251 + t252;
        io.pairs(24, 38, t253);
        const Q t254 = t251 - t252;
        io.pairs(3, 17, t254);
        const Q t255 = shuffled<0, 1, 4, 5>(t248, t250);
        const Q t256 = shuffled<2, 3, 6, 7>(t248, t250);
        // complex block of 2
        const Q t257 = t255 + t256;
        io.pairs(10, 30, t257);
        const Q t258 = t255 - t256;
        io.pairs(31, 9, t258);
        // complex block of 3, multiplier 2
        const Q t259 = c[6] * t199;
        const Q t260 = t185 - t259;
        const Q t261 = Q(-c[7], c[7], -c[7], c[7]) * t200;
        const Q t262 = shuffled<1, 0, 3, 2>(t261);
        const Q t263 = t260 + t262;
        const Q t264 = t260 - t262;
        const Q t265 = shuffled<0, 1, 4, 5>(t264, t263);
        const Q t266 = shuffled<2, 3, 6, 7>(t264, t263);
        // complex block of 2
        const Q t267 = t265 + t266;
        io.pairs(2, 16, t267);
        const Q t268 = t265 - t266;
        io.pairs(23, 37, t268);
    }
};

}  // namespace zulg
