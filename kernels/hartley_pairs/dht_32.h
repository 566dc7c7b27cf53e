// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 32.
// Hartley transform of 32 points, form I; two lanes to a register.
// 55 sums, 43 differences, 22 products of registers, which do the 260 steps of the graph, those with
// `scale` included; 49 shuffles, 17 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<32> {
    static constexpr int steps = 260;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 30/32
        0.3826834323650898,  // c[2]: -sin 2 pi 30/32
        0.9807852804032304,  // c[3]: cos 2 pi 31/32
        0.19509032201612828,  // c[4]: -sin 2 pi 31/32
        0.8314696123025452,  // c[5]: cos 2 pi 29/32
        0.5555702330196022,  // c[6]: -sin 2 pi 29/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x31_30 = io.in(31, 30);
        // input stage
        const P t0 = x1_2 + x31_30;
        const P t1 = x1_2 - x31_30;
        const P x3_4 = io.in(3, 4);
        const P x29_28 = io.in(29, 28);
        const P t2 = x3_4 + x29_28;
        const P t3 = x3_4 - x29_28;
        const P x5_6 = io.in(5, 6);
        const P x27_26 = io.in(27, 26);
        const P t4 = x5_6 + x27_26;
        const P t5 = x5_6 - x27_26;
        const P x7_8 = io.in(7, 8);
        const P x25_24 = io.in(25, 24);
        const P t6 = x7_8 + x25_24;
        const P t7 = x7_8 - x25_24;
        const P x9_10 = io.in(9, 10);
        const P x23_22 = io.in(23, 22);
        const P t8 = x9_10 + x23_22;
        const P t9 = x9_10 - x23_22;
        const P x11_12 = io.in(11, 12);
        const P x21_20 = io.in(21, 20);
        const P t10 = x11_12 + x21_20;
        const P t11 = x11_12 - x21_20;
        const P x13_14 = io.in(13, 14);
        const P x19_18 = io.in(19, 18);
        const P t12 = x13_14 + x19_18;
        const P t13 = x13_14 - x19_18;
        const V x15 = io.in(15);
        const V x17 = io.in(17);
        const V t14 = x15 + x17;
        const V t15 = x15 - x17;
        const V x0 = io.in(0);
        const V x16 = io.in(16);
        // spectrum block of 2
        const V t16 = x0 + x16;
        const V t17 = x0 - x16;
        const P t18 = joined(t16, t17);
        const P t19 = shuffled<1, 3>(t6, t7);
        const P t20 = flipped<0, 1>(t19);
        // spectrum block of 2
        const P t21 = t18 + t20;
        const P t22 = t18 - t20;
        const V t23 = part<1>(t2);
        const V t24 = part<1>(t10);
        // mirrored skew block of 4
        const V t25 = t23 - t24;
        const V t26 = part<1>(t3);
        const V t27 = part<1>(t11);
        const V t28 = t26 + t27;
        const V t29 = t23 + t24;
        const V t30 = c[0] * t25;
        const V t31 = c[0] * t28;
        const V t32 = t30 - t31;
        const V t33 = t26 - t27;
        const V t34 = t30 + t31;
        const P t35 = joined(t29, t32);
        // spectrum block of 2
        const P t36 = t21 + t35;
        const P t37 = t21 - t35;
        const P t38 = joined(t33, t34);
        // spectrum block of 2
        const P t39 = t22 - t38;
        const P t40 = t22 + t38;
        const P t41 = shuffled<0, 2>(t0, t1);
        const V t42 = flipped<1>(t15);
        const P t43 = joined(t14, t42);
        // complex block of 2
        const P t44 = t41 + t43;
        const P t45 = t41 - t43;
        const P t46 = shuffled<0, 2>(t4, t5);
        const P t47 = shuffled<0, 2>(t10, t11);
        const P t48 = flipped<0, 1>(t47);
        // complex block of 2
        const P t49 = t46 + t48;
        const P t50 = t46 - t48;
        const P t51 = shuffled<0, 2>(t8, t9);
        const P t52 = shuffled<0, 2>(t6, t7);
        const P t53 = flipped<0, 1>(t52);
        // complex block of 2
        const P t54 = t51 + t53;
        const P t55 = t51 - t53;
        const P t56 = shuffled<0, 2>(t12, t13);
        const P t57 = shuffled<0, 2>(t2, t3);
        const P t58 = flipped<0, 1>(t57);
        // complex block of 2
        const P t59 = t56 + t58;
        const P t60 = t56 - t58;
        // complex block of 2
        const P t61 = t44 + t54;
        const P t62 = t44 - t54;
        // complex block of 2
        const P t63 = t49 + t59;
        const P t64 = t49 - t59;
        // complex block of 2
        const P t65 = t61 + t63;
        const P t66 = t61 - t63;
        const P t67 = shuffled<1, 0>(t64);
        const P t68 = flipped<1, 0>(t67);
        // complex block of 2
        const P t69 = t62 + t68;
        const P t70 = t62 - t68;
        // complex block of 8
        const P t71 = c[0] * t50;
        const P t72 = shuffled<1, 0>(t71);
        const P t73 = flipped<1, 0>(t72);
        const P t74 = t71 + t73;
        const P t75 = c[0] * t60;
        const P t76 = shuffled<1, 0>(t75);
        const P t77 = flipped<1, 0>(t76);
        const P t78 = t75 + t77;
        const P t79 = shuffled<1, 0>(t55);
        const P t80 = flipped<1, 0>(t79);
        // complex block of 2
        const P t81 = t45 + t80;
        const P t82 = t45 - t80;
        const P t83 = shuffled<1, 0>(t78);
        const P t84 = flipped<1, 0>(t83);
        // complex block of 2
        const P t85 = t74 + t84;
        const P t86 = t74 - t84;
        // complex block of 2
        const P t87 = t81 + t85;
        const P t88 = t81 - t85;
        const P t89 = shuffled<1, 0>(t86);
        const P t90 = flipped<1, 0>(t89);
        // complex block of 2
        const P t91 = t82 + t90;
        const P t92 = t82 - t90;
        // spectrum block of 32
        const P t93 = c[3] * t87;
        const P t94 = shuffled<1, 0>(t87);
        const P t95 = P(-c[4], c[4]) * t94;
        const P t96 = t93 + t95;
        const P t97 = c[1] * t69;
        const P t98 = shuffled<1, 0>(t69);
        const P t99 = P(-c[2], c[2]) * t98;
        const P t100 = t97 + t99;
        const P t101 = c[5] * t91;
        const P t102 = shuffled<1, 0>(t91);
        const P t103 = P(-c[6], c[6]) * t102;
        const P t104 = t101 + t103;
        const P t105 = shuffled<1, 0>(t66);
        const P t106 = flipped<0, 1>(t105);
        const P t107 = t66 + t106;
        const P t108 = c[6] * t88;
        const P t109 = shuffled<1, 0>(t88);
        const P t110 = P(-c[5], c[5]) * t109;
        const P t111 = t108 + t110;
        const P t112 = c[2] * t70;
        const P t113 = shuffled<1, 0>(t70);
        const P t114 = P(-c[1], c[1]) * t113;
        const P t115 = t112 + t114;
        const P t116 = c[4] * t92;
        const P t117 = shuffled<1, 0>(t92);
        const P t118 = P(-c[3], c[3]) * t117;
        const P t119 = t116 + t118;
        const P t120 = shuffled<1, 3>(t0, t1);
        const P t121 = shuffled<1, 3>(t12, t13);
        const P t122 = flipped<0, 1>(t121);
        // complex block of 2
        const P t123 = t120 + t122;
        const P t124 = t120 - t122;
        const P t125 = shuffled<1, 3>(t8, t9);
        const P t126 = shuffled<1, 3>(t4, t5);
        const P t127 = flipped<0, 1>(t126);
        // complex block of 2
        const P t128 = t125 + t127;
        const P t129 = t125 - t127;
        // complex block of 2
        const P t130 = t123 + t128;
        const P t131 = t123 - t128;
        const P t132 = shuffled<1, 0>(t129);
        const P t133 = flipped<1, 0>(t132);
        // complex block of 2
        const P t134 = t124 + t133;
        const P t135 = t124 - t133;
        // mirrored skew block of 8
        const P t136 = c[1] * t134;
        const P t137 = shuffled<1, 0>(t134);
        const P t138 = P(-c[2], c[2]) * t137;
        const P t139 = t136 + t138;
        const P t140 = c[0] * t131;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = flipped<0, 1>(t141);
        const P t143 = t140 + t142;
        const P t144 = c[2] * t135;
        const P t145 = shuffled<1, 0>(t135);
        const P t146 = P(-c[1], c[1]) * t145;
        const P t147 = t144 + t146;
        const P t148 = shuffled<0, 2>(t130, t139);
        // spectrum block of 2
        const P t149 = t36 + t148;
        const P t150 = t36 - t148;
        const P t151 = shuffled<0, 2>(t65, t96);
        // spectrum block of 2
        const P t152 = t149 + t151;
        io.out(0, 31, t152);
        const P t153 = t149 - t151;
        io.out(16, 15, t153);
        const P t154 = shuffled<1, 3>(t65, t96);
        // spectrum block of 2
        const P t155 = t150 - t154;
        io.out(24, 23, t155);
        const P t156 = t150 + t154;
        io.out(8, 7, t156);
        const P t157 = shuffled<1, 2>(t143, t147);
        const P t158 = flipped<1, 0>(t157);
        // spectrum block of 2
        const P t159 = t39 + t158;
        const P t160 = t39 - t158;
        const P t161 = shuffled<0, 2>(t100, t104);
        // spectrum block of 2
        const P t162 = t159 + t161;
        io.out(30, 29, t162);
        const P t163 = t159 - t161;
        io.out(14, 13, t163);
        const P t164 = shuffled<1, 3>(t100, t104);
        // spectrum block of 2
        const P t165 = t160 - t164;
        io.out(22, 21, t165);
        const P t166 = t160 + t164;
        io.out(6, 5, t166);
        const P t167 = shuffled<1, 3>(t130, t139);
        // spectrum block of 2
        const P t168 = t37 - t167;
        const P t169 = t37 + t167;
        // spectrum block of 32
        const P t170 = P(c[0], -c[0]) * t107;
        const P t171 = shuffled<1, 2>(t170, t111);
        // spectrum block of 2
        const P t172 = t168 + t171;
        io.out(28, 27, t172);
        const P t173 = t168 - t171;
        io.out(12, 11, t173);
        const P t174 = shuffled<0, 3>(t170, t111);
        // spectrum block of 2
        const P t175 = t169 - t174;
        io.out(20, 19, t175);
        const P t176 = t169 + t174;
        io.out(4, 3, t176);
        const P t177 = shuffled<0, 3>(t143, t147);
        // spectrum block of 2
        const P t178 = t40 - t177;
        const P t179 = t40 + t177;
        const P t180 = shuffled<0, 2>(t115, t119);
        // spectrum block of 2
        const P t181 = t178 + t180;
        io.out(26, 25, t181);
        const P t182 = t178 - t180;
        io.out(10, 9, t182);
        const P t183 = shuffled<1, 3>(t115, t119);
        // spectrum block of 2
        const P t184 = t179 - t183;
        io.out(18, 17, t184);
        const P t185 = t179 + t183;
        io.out(2, 1, t185);
    }
};

}  // namespace zulg
