// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 42.
// Hartley transform of 42 points, form I; up to four lanes to a register.
// 48 sums, 44 differences, 44 products of registers, which do the 484 steps of the graph, those with
// `scale` included; 71 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<42> {
    static constexpr int steps = 484;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x41_40_39_38 = io.in(41, 40, 39, 38);
        // input stage
        const Q t0 = x1_2_3_4 + x41_40_39_38;
        const Q t1 = x1_2_3_4 - x41_40_39_38;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x37_36_35_34 = io.in(37, 36, 35, 34);
        const Q t2 = x5_6_7_8 + x37_36_35_34;
        const Q t3 = x5_6_7_8 - x37_36_35_34;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x33_32_31_30 = io.in(33, 32, 31, 30);
        const Q t4 = x9_10_11_12 + x33_32_31_30;
        const Q t5 = x9_10_11_12 - x33_32_31_30;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x29_28_27_26 = io.in(29, 28, 27, 26);
        const Q t6 = x13_14_15_16 + x29_28_27_26;
        const Q t7 = x13_14_15_16 - x29_28_27_26;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x25_24_23_22 = io.in(25, 24, 23, 22);
        const Q t8 = x17_18_19_20 + x25_24_23_22;
        const Q t9 = x17_18_19_20 - x25_24_23_22;
        const V x0 = io.in(0);
        const V x21 = io.in(21);
        // spectrum block of 2
        const V t10 = x0 + x21;
        const V t11 = x0 - x21;
        const Q t12 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t13 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t14 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t15 = shuffled<2, 3, 4, 5>(t13, t14);
        const Q t16 = flipped<0, 1, 0, 1>(t15);
        // complex block of 2
        const Q t17 = t12 + t16;
        const Q t18 = t12 - t16;
        const Q t19 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t20 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t21 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t22 = shuffled<2, 3, 4, 5>(t20, t21);
        const Q t23 = flipped<0, 1, 0, 1>(t22);
        // complex block of 2
        const Q t24 = t19 + t23;
        const Q t25 = t19 - t23;
        const Q t26 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t27 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t28 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t29 = shuffled<2, 3, 4, 5>(t27, t28);
        const Q t30 = flipped<0, 1, 0, 1>(t29);
        // complex block of 2
        const Q t31 = t26 + t30;
        const Q t32 = t26 - t30;
        const Q t33 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t34 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t35 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t36 = shuffled<2, 3, 4, 5>(t34, t35);
        const Q t37 = flipped<0, 1, 0, 1>(t36);
        // complex block of 2
        const Q t38 = t33 + t37;
        const Q t39 = t33 - t37;
        const Q t40 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t41 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t42 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t43 = shuffled<2, 3, 4, 5>(t41, t42);
        const Q t44 = flipped<0, 1, 0, 1>(t43);
        // complex block of 2
        const Q t45 = t40 + t44;
        const Q t46 = t40 - t44;
        const P t47 = part<0>(t38);
        const P t48 = part<0>(t39);
        const P t49 = shuffled<0, 2>(t47, t48);
        const P t50 = joined(t10, t11);
        // spectrum block of 3, multiplier 2
        const P t51 = t49 + t50;
        const P t52 = c[6] * t49;
        const P t53 = t50 - t52;
        const P t54 = shuffled<1, 3>(t47, t48);
        const P t55 = c[7] * t54;
        const P t56 = t53 - t55;
        const P t57 = t53 + t55;
        const Q t58 = shuffled<2, 3, 6, 7>(t45, t46);
        const Q t59 = shuffled<2, 3, 6, 7>(t24, t25);
        const Q t60 = flipped<0, 1, 0, 1>(t59);
        // complex block of 3, multiplier 2
        const Q t61 = t58 + t60;
        const Q t62 = t58 - t60;
        const Q t63 = shuffled<0, 1, 4, 5>(t24, t25);
        const Q t64 = t61 + t63;
        const Q t65 = c[6] * t61;
        const Q t66 = t63 - t65;
        const Q t67 = Q(c[7], -c[7], c[7], -c[7]) * t62;
        const Q t68 = shuffled<1, 0, 3, 2>(t67);
        const Q t69 = t66 + t68;
        const Q t70 = t66 - t68;
        const Q t71 = shuffled<2, 3, 6, 7>(t38, t39);
        const Q t72 = shuffled<0, 1, 4, 5>(t17, t18);
        // complex block of 3, multiplier 2
        const Q t73 = t71 + t72;
        const Q t74 = shuffled<0, 5, 2, 7>(t71, t72);
        const Q t75 = shuffled<0, 5, 2, 7>(t72, t71);
        const Q t76 = t74 - t75;
        const Q t77 = shuffled<2, 3, 6, 7>(t31, t32);
        const Q t78 = flipped<0, 1, 0, 1>(t73);
        const Q t79 = t77 + t78;
        const Q t80 = Q(-c[6], c[6], -c[6], c[6]) * t73;
        const Q t81 = t80 + t77;
        const Q t82 = Q(c[7], -c[7], c[7], -c[7]) * t76;
        const Q t83 = shuffled<1, 0, 3, 2>(t82);
        const Q t84 = t81 + t83;
        const Q t85 = t81 - t83;
        const Q t86 = shuffled<2, 3, 6, 7>(t17, t18);
        const Q t87 = shuffled<0, 1, 4, 5>(t31, t32);
        const Q t88 = flipped<0, 1, 0, 1>(t87);
        // complex block of 3, multiplier 2
        const Q t89 = t86 + t88;
        const Q t90 = flipped<1, 0, 1, 0>(t86);
        const Q t91 = t87 + t90;
        const Q t92 = shuffled<0, 1, 4, 5>(t45, t46);
        const Q t93 = t89 + t92;
        const Q t94 = c[6] * t89;
        const Q t95 = t92 - t94;
        const Q t96 = c[7] * t91;
        const Q t97 = shuffled<1, 0, 3, 2>(t96);
        const Q t98 = t95 + t97;
        const Q t99 = t95 - t97;
        const P t100 = part<0>(t64);
        const P t101 = part<1>(t64);
        const P t102 = shuffled<0, 2>(t100, t101);
        const P t103 = part<0>(t70);
        const P t104 = part<1>(t70);
        const P t105 = shuffled<0, 2>(t103, t104);
        const Q t106 = joined(t102, t105);
        const P t107 = part<0>(t79);
        const P t108 = part<1>(t79);
        const P t109 = shuffled<0, 2>(t107, t108);
        const P t110 = part<0>(t85);
        const P t111 = part<1>(t85);
        const P t112 = shuffled<0, 2>(t110, t111);
        const Q t113 = joined(t109, t112);
        // spectrum block of 7, multiplier 6
        const Q t114 = t106 + t113;
        const P t115 = part<0>(t93);
        const P t116 = part<1>(t93);
        const P t117 = shuffled<0, 2>(t115, t116);
        const P t118 = part<0>(t99);
        const P t119 = part<1>(t99);
        const P t120 = shuffled<0, 2>(t118, t119);
        const Q t121 = joined(t117, t120);
        const Q t122 = t114 + t121;
        const Q t123 = joined(t51, t57);
        const Q t124 = t122 + t123;
        io.out(0, 21, 28, 7, t124);
        const Q t125 = c[0] * t106;
        const Q t126 = c[1] * t113;
        const Q t127 = t125 - t126;
        const Q t128 = c[2] * t121;
        const Q t129 = t127 - t128;
        const Q t130 = t129 + t123;
        const P t131 = shuffled<1, 3>(t100, t101);
        const P t132 = shuffled<1, 3>(t103, t104);
        const Q t133 = joined(t131, t132);
        const Q t134 = c[3] * t133;
        const P t135 = shuffled<1, 3>(t107, t108);
        const P t136 = shuffled<1, 3>(t110, t111);
        const Q t137 = joined(t135, t136);
        const Q t138 = c[4] * t137;
        const Q t139 = t134 + t138;
        const P t140 = shuffled<1, 3>(t115, t116);
        const P t141 = shuffled<1, 3>(t118, t119);
        const Q t142 = joined(t140, t141);
        const Q t143 = c[5] * t142;
        const Q t144 = t139 + t143;
        const Q t145 = t130 - t144;
        io.out(6, 27, 34, 13, t145);
        const Q t146 = t130 + t144;
        io.out(36, 15, 22, 1, t146);
        const Q t147 = c[1] * t106;
        const Q t148 = t123 - t147;
        const Q t149 = c[2] * t113;
        const Q t150 = t148 - t149;
        const Q t151 = c[0] * t121;
        const Q t152 = t150 + t151;
        const Q t153 = c[4] * t133;
        const Q t154 = c[5] * t137;
        const Q t155 = t153 - t154;
        const Q t156 = c[3] * t142;
        const Q t157 = t155 - t156;
        const Q t158 = t152 - t157;
        io.out(12, 33, 40, 19, t158);
        const Q t159 = t152 + t157;
        io.out(30, 9, 16, 37, t159);
        const Q t160 = c[2] * t106;
        const Q t161 = t123 - t160;
        const Q t162 = c[0] * t113;
        const Q t163 = t161 + t162;
        const Q t164 = c[1] * t121;
        const Q t165 = t163 - t164;
        const Q t166 = c[5] * t133;
        const Q t167 = c[3] * t137;
        const Q t168 = t166 - t167;
        const Q t169 = c[4] * t142;
        const Q t170 = t168 + t169;
        const Q t171 = t165 - t170;
        io.out(18, 39, 4, 25, t171);
        const Q t172 = t165 + t170;
        io.out(24, 3, 10, 31, t172);
        const P t173 = part<0>(t69);
        const P t174 = part<1>(t69);
        const P t175 = shuffled<0, 2>(t173, t174);
        const P t176 = part<0>(t84);
        const P t177 = part<1>(t84);
        const P t178 = shuffled<0, 2>(t176, t177);
        // spectrum block of 7, multiplier 6
        const P t179 = t175 + t178;
        const P t180 = part<0>(t98);
        const P t181 = part<1>(t98);
        const P t182 = shuffled<0, 2>(t180, t181);
        const P t183 = t179 + t182;
        const P t184 = t183 + t56;
        io.out(14, 35, t184);
        const P t185 = c[0] * t175;
        const P t186 = c[1] * t178;
        const P t187 = t185 - t186;
        const P t188 = c[2] * t182;
        const P t189 = t187 - t188;
        const P t190 = t189 + t56;
        const P t191 = shuffled<1, 3>(t173, t174);
        const P t192 = c[3] * t191;
        const P t193 = shuffled<1, 3>(t176, t177);
        const P t194 = c[4] * t193;
        const P t195 = t192 + t194;
        const P t196 = shuffled<1, 3>(t180, t181);
        const P t197 = c[5] * t196;
        const P t198 = t195 + t197;
        const P t199 = t190 - t198;
        io.out(20, 41, t199);
        const P t200 = t190 + t198;
        io.out(8, 29, t200);
        const P t201 = c[1] * t175;
        const P t202 = t56 - t201;
        const P t203 = c[2] * t178;
        const P t204 = t202 - t203;
        const P t205 = c[0] * t182;
        const P t206 = t204 + t205;
        const P t207 = c[4] * t191;
        const P t208 = c[5] * t193;
        const P t209 = t207 - t208;
        const P t210 = c[3] * t196;
        const P t211 = t209 - t210;
        const P t212 = t206 - t211;
        io.out(26, 5, t212);
        const P t213 = t206 + t211;
        io.out(2, 23, t213);
        const P t214 = c[2] * t175;
        const P t215 = t56 - t214;
        const P t216 = c[0] * t178;
        const P t217 = t215 + t216;
        const P t218 = c[1] * t182;
        const P t219 = t217 - t218;
        const P t220 = c[5] * t191;
        const P t221 = c[3] * t193;
        const P t222 = t220 - t221;
        const P t223 = c[4] * t196;
        const P t224 = t222 + t223;
        const P t225 = t219 - t224;
        io.out(32, 11, t225);
        const P t226 = t219 + t224;
        io.out(38, 17, t226);
    }
};

}  // namespace zulg
