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
        0.7818314824680298,  // c[2]: sin 2 pi 1/7
        0.9749279121818236,  // c[3]: sin 2 pi 2/7
        0.4338837391175581,  // c[4]: sin 2 pi 3/7
        0.9009688679024191,  // c[5]: -cos 2 pi 3/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const V x0 = io.in(0);
        const V x21 = io.in(21);
        // spectrum block of 2
        const V t0 = x0 + x21;
        const V t1 = x0 - x21;
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x41_40_39_38 = io.in(41, 40, 39, 38);
        // input stage
        const Q t2 = x1_2_3_4 + x41_40_39_38;
        const Q t3 = x1_2_3_4 - x41_40_39_38;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x25_24_23_22 = io.in(25, 24, 23, 22);
        const Q t4 = x17_18_19_20 + x25_24_23_22;
        const Q t5 = x17_18_19_20 - x25_24_23_22;
        const Q t6 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t7 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t8 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t9 = shuffled<2, 3, 4, 5>(t7, t8);
        const Q t10 = flipped<0, 1, 0, 1>(t9);
        // complex block of 2
        const Q t11 = t6 + t10;
        const Q t12 = t6 - t10;
        const Q t13 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t14 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t15 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t16 = shuffled<2, 3, 4, 5>(t14, t15);
        const Q t17 = flipped<0, 1, 0, 1>(t16);
        // complex block of 2
        const Q t18 = t13 + t17;
        const Q t19 = t13 - t17;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x37_36_35_34 = io.in(37, 36, 35, 34);
        // input stage
        const Q t20 = x5_6_7_8 + x37_36_35_34;
        const Q t21 = x5_6_7_8 - x37_36_35_34;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x29_28_27_26 = io.in(29, 28, 27, 26);
        const Q t22 = x13_14_15_16 + x29_28_27_26;
        const Q t23 = x13_14_15_16 - x29_28_27_26;
        const Q t24 = shuffled<1, 5, 3, 7>(t20, t21);
        const Q t25 = shuffled<0, 4, 2, 6>(t22, t23);
        const Q t26 = shuffled<0, 4, 2, 6>(t22, t23);
        const Q t27 = shuffled<2, 3, 4, 5>(t25, t26);
        const Q t28 = flipped<0, 1, 0, 1>(t27);
        // complex block of 2
        const Q t29 = t24 + t28;
        const Q t30 = t24 - t28;
        const Q t31 = shuffled<1, 5, 3, 7>(t22, t23);
        const Q t32 = shuffled<0, 4, 2, 6>(t20, t21);
        const Q t33 = shuffled<0, 4, 2, 6>(t20, t21);
        const Q t34 = shuffled<2, 3, 4, 5>(t32, t33);
        const Q t35 = flipped<0, 1, 0, 1>(t34);
        // complex block of 2
        const Q t36 = t31 + t35;
        const Q t37 = t31 - t35;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x33_32_31_30 = io.in(33, 32, 31, 30);
        // input stage
        const Q t38 = x9_10_11_12 + x33_32_31_30;
        const Q t39 = x9_10_11_12 - x33_32_31_30;
        const Q t40 = shuffled<1, 5, 3, 7>(t38, t39);
        const Q t41 = shuffled<0, 4, 2, 6>(t38, t39);
        const Q t42 = shuffled<0, 4, 2, 6>(t38, t39);
        const Q t43 = shuffled<2, 3, 4, 5>(t41, t42);
        const Q t44 = flipped<0, 1, 0, 1>(t43);
        // complex block of 2
        const Q t45 = t40 + t44;
        const Q t46 = t40 - t44;
        const P t47 = part<0>(t36);
        const P t48 = part<0>(t37);
        const P t49 = shuffled<0, 2>(t47, t48);
        const P t50 = joined(t0, t1);
        // spectrum block of 3, multiplier 2
        const P t51 = t49 + t50;
        const P t52 = c[6] * t49;
        const P t53 = t50 - t52;
        const Q t54 = shuffled<2, 3, 6, 7>(t18, t19);
        const Q t55 = shuffled<2, 3, 6, 7>(t29, t30);
        const Q t56 = flipped<0, 1, 0, 1>(t55);
        // complex block of 3, multiplier 2
        const Q t57 = t54 + t56;
        const Q t58 = shuffled<0, 1, 4, 5>(t29, t30);
        const Q t59 = t57 + t58;
        const Q t60 = c[6] * t57;
        const Q t61 = t58 - t60;
        const Q t62 = t54 - t56;
        const Q t63 = shuffled<2, 3, 6, 7>(t36, t37);
        const Q t64 = shuffled<0, 1, 4, 5>(t11, t12);
        // complex block of 3, multiplier 2
        const Q t65 = t63 + t64;
        const Q t66 = shuffled<2, 3, 6, 7>(t45, t46);
        const Q t67 = flipped<0, 1, 0, 1>(t65);
        const Q t68 = t66 + t67;
        const Q t69 = Q(-c[6], c[6], -c[6], c[6]) * t65;
        const Q t70 = t69 + t66;
        const Q t71 = shuffled<0, 5, 2, 7>(t63, t64);
        const Q t72 = shuffled<0, 5, 2, 7>(t64, t63);
        const Q t73 = t71 - t72;
        const Q t74 = shuffled<2, 3, 6, 7>(t11, t12);
        const Q t75 = shuffled<0, 1, 4, 5>(t45, t46);
        const Q t76 = flipped<0, 1, 0, 1>(t75);
        // complex block of 3, multiplier 2
        const Q t77 = t74 + t76;
        const Q t78 = shuffled<0, 1, 4, 5>(t18, t19);
        const Q t79 = t77 + t78;
        const Q t80 = c[6] * t77;
        const Q t81 = t78 - t80;
        const Q t82 = flipped<1, 0, 1, 0>(t74);
        const Q t83 = t75 + t82;
        const P t84 = shuffled<1, 3>(t47, t48);
        // spectrum block of 3, multiplier 2
        const P t85 = c[7] * t84;
        const P t86 = t53 - t85;
        // complex block of 3, multiplier 2
        const Q t87 = Q(c[7], -c[7], c[7], -c[7]) * t62;
        const Q t88 = shuffled<1, 0, 3, 2>(t87);
        const Q t89 = t61 + t88;
        // complex block of 3, multiplier 2
        const Q t90 = Q(c[7], -c[7], c[7], -c[7]) * t73;
        const Q t91 = shuffled<1, 0, 3, 2>(t90);
        const Q t92 = t70 + t91;
        const P t93 = part<0>(t89);
        const P t94 = part<1>(t89);
        const P t95 = shuffled<0, 2>(t93, t94);
        const P t96 = part<0>(t92);
        const P t97 = part<1>(t92);
        const P t98 = shuffled<0, 2>(t96, t97);
        // spectrum block of 7, multiplier 6
        const P t99 = t95 + t98;
        const P t100 = c[0] * t95;
        const P t101 = c[1] * t98;
        const P t102 = t100 - t101;
        const P t103 = shuffled<1, 3>(t93, t94);
        const P t104 = c[2] * t103;
        const P t105 = shuffled<1, 3>(t96, t97);
        const P t106 = c[3] * t105;
        const P t107 = t104 + t106;
        const P t108 = c[1] * t95;
        const P t109 = t86 - t108;
        const P t110 = c[3] * t103;
        const P t111 = c[4] * t105;
        const P t112 = t110 - t111;
        const P t113 = c[5] * t95;
        const P t114 = t86 - t113;
        const P t115 = c[4] * t103;
        const P t116 = c[2] * t105;
        const P t117 = t115 - t116;
        // complex block of 3, multiplier 2
        const Q t118 = c[7] * t83;
        const Q t119 = shuffled<1, 0, 3, 2>(t118);
        const Q t120 = t81 + t119;
        const P t121 = part<0>(t120);
        const P t122 = part<1>(t120);
        const P t123 = shuffled<0, 2>(t121, t122);
        // spectrum block of 7, multiplier 6
        const P t124 = t99 + t123;
        const P t125 = t124 + t86;
        io.out(14, 35, t125);
        const P t126 = c[5] * t123;
        const P t127 = t102 - t126;
        const P t128 = t127 + t86;
        const P t129 = shuffled<1, 3>(t121, t122);
        const P t130 = c[4] * t129;
        const P t131 = t107 + t130;
        const P t132 = t128 - t131;
        io.out(20, 41, t132);
        const P t133 = t128 + t131;
        io.out(8, 29, t133);
        const P t134 = c[5] * t98;
        const P t135 = t109 - t134;
        const P t136 = c[0] * t123;
        const P t137 = t135 + t136;
        const P t138 = c[2] * t129;
        const P t139 = t112 - t138;
        const P t140 = t137 - t139;
        io.out(26, 5, t140);
        const P t141 = t137 + t139;
        io.out(2, 23, t141);
        const P t142 = c[0] * t98;
        const P t143 = t114 + t142;
        const P t144 = c[1] * t123;
        const P t145 = t143 - t144;
        const P t146 = c[3] * t129;
        const P t147 = t117 + t146;
        const P t148 = t145 - t147;
        io.out(32, 11, t148);
        const P t149 = t145 + t147;
        io.out(38, 17, t149);
        // spectrum block of 3, multiplier 2
        const P t150 = t53 + t85;
        // complex block of 3, multiplier 2
        const Q t151 = t61 - t88;
        // complex block of 3, multiplier 2
        const Q t152 = t70 - t91;
        const P t153 = part<0>(t59);
        const P t154 = part<1>(t59);
        const P t155 = shuffled<0, 2>(t153, t154);
        const P t156 = part<0>(t151);
        const P t157 = part<1>(t151);
        const P t158 = shuffled<0, 2>(t156, t157);
        const Q t159 = joined(t155, t158);
        const P t160 = part<0>(t68);
        const P t161 = part<1>(t68);
        const P t162 = shuffled<0, 2>(t160, t161);
        const P t163 = part<0>(t152);
        const P t164 = part<1>(t152);
        const P t165 = shuffled<0, 2>(t163, t164);
        const Q t166 = joined(t162, t165);
        // spectrum block of 7, multiplier 6
        const Q t167 = t159 + t166;
        const Q t168 = c[0] * t159;
        const Q t169 = c[1] * t166;
        const Q t170 = t168 - t169;
        const P t171 = shuffled<1, 3>(t153, t154);
        const P t172 = shuffled<1, 3>(t156, t157);
        const Q t173 = joined(t171, t172);
        const Q t174 = c[2] * t173;
        const P t175 = shuffled<1, 3>(t160, t161);
        const P t176 = shuffled<1, 3>(t163, t164);
        const Q t177 = joined(t175, t176);
        const Q t178 = c[3] * t177;
        const Q t179 = t174 + t178;
        const Q t180 = joined(t51, t150);
        const Q t181 = c[1] * t159;
        const Q t182 = t180 - t181;
        const Q t183 = c[3] * t173;
        const Q t184 = c[4] * t177;
        const Q t185 = t183 - t184;
        const Q t186 = c[5] * t159;
        const Q t187 = t180 - t186;
        const Q t188 = c[4] * t173;
        const Q t189 = c[2] * t177;
        const Q t190 = t188 - t189;
        // complex block of 3, multiplier 2
        const Q t191 = t81 - t119;
        const P t192 = part<0>(t79);
        const P t193 = part<1>(t79);
        const P t194 = shuffled<0, 2>(t192, t193);
        const P t195 = part<0>(t191);
        const P t196 = part<1>(t191);
        const P t197 = shuffled<0, 2>(t195, t196);
        const Q t198 = joined(t194, t197);
        // spectrum block of 7, multiplier 6
        const Q t199 = t167 + t198;
        const Q t200 = t199 + t180;
        io.out(0, 21, 28, 7, t200);
        const Q t201 = c[5] * t198;
        const Q t202 = t170 - t201;
        const Q t203 = t202 + t180;
        const P t204 = shuffled<1, 3>(t192, t193);
        const P t205 = shuffled<1, 3>(t195, t196);
        const Q t206 = joined(t204, t205);
        const Q t207 = c[4] * t206;
        const Q t208 = t179 + t207;
        const Q t209 = t203 - t208;
        io.out(6, 27, 34, 13, t209);
        const Q t210 = t203 + t208;
        io.out(36, 15, 22, 1, t210);
        const Q t211 = c[5] * t166;
        const Q t212 = t182 - t211;
        const Q t213 = c[0] * t198;
        const Q t214 = t212 + t213;
        const Q t215 = c[2] * t206;
        const Q t216 = t185 - t215;
        const Q t217 = t214 - t216;
        io.out(12, 33, 40, 19, t217);
        const Q t218 = t214 + t216;
        io.out(30, 9, 16, 37, t218);
        const Q t219 = c[0] * t166;
        const Q t220 = t187 + t219;
        const Q t221 = c[1] * t198;
        const Q t222 = t220 - t221;
        const Q t223 = c[3] * t206;
        const Q t224 = t190 + t223;
        const Q t225 = t222 - t224;
        io.out(18, 39, 4, 25, t225);
        const Q t226 = t222 + t224;
        io.out(24, 3, 10, 31, t226);
    }
};

}  // namespace zulg
