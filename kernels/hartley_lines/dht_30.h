// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 30.
// Hartley transform of 30 points, form I; up to four lanes to a register.
// 35 sums, 23 differences, 22 products of registers, which do the 284 steps of the graph, those with
// `scale` included; 46 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<30> {
    static constexpr int steps = 284;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x29_28_27_26 = io.in(29, 28, 27, 26);
        // input stage
        const Q t0 = x1_2_3_4 + x29_28_27_26;
        const Q t1 = x1_2_3_4 - x29_28_27_26;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x25_24_23_22 = io.in(25, 24, 23, 22);
        const Q t2 = x5_6_7_8 + x25_24_23_22;
        const Q t3 = x5_6_7_8 - x25_24_23_22;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x21_20_19_18 = io.in(21, 20, 19, 18);
        const Q t4 = x9_10_11_12 + x21_20_19_18;
        const Q t5 = x9_10_11_12 - x21_20_19_18;
        const P x13_14 = io.in(13, 14);
        const P x17_16 = io.in(17, 16);
        const P t6 = x13_14 + x17_16;
        const P t7 = x13_14 - x17_16;
        const P t8 = shuffled<0, 2>(t6, t7);
        const P t9 = shuffled<1, 3>(t6, t7);
        const Q t10 = joined(t8, t9);
        const Q t11 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t12 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t13 = shuffled<2, 3, 6, 7>(t11, t12);
        const Q t14 = flipped<0, 1, 0, 0>(t13);
        // complex block of 3
        const Q t15 = t10 + t14;
        const Q t16 = flipped<1, 1, 1, 0>(t14);
        const Q t17 = flipped<0, 0, 0, 1>(t10);
        const Q t18 = t16 + t17;
        const Q t19 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t20 = shuffled<2, 3, 4, 5>(t19, t12);
        const Q t21 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t22 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t23 = shuffled<0, 1, 6, 7>(t21, t22);
        const Q t24 = flipped<0, 0, 0, 1>(t23);
        // complex block of 3
        const Q t25 = t20 + t24;
        const Q t26 = flipped<1, 0, 0, 1>(t24);
        const Q t27 = flipped<0, 1, 1, 0>(t20);
        const Q t28 = t26 + t27;
        const Q t29 = shuffled<2, 3, 4, 5>(t21, t22);
        const Q t30 = flipped<0, 0, 0, 1>(t15);
        // complex block of 3
        const Q t31 = t29 + t30;
        const Q t32 = Q(c[4], c[4], c[4], -c[4]) * t15;
        const Q t33 = t29 - t32;
        const Q t34 = Q(c[5], -c[5], c[5], -c[5]) * t18;
        const Q t35 = shuffled<1, 0, 3, 2>(t34);
        const Q t36 = t33 + t35;
        const Q t37 = t33 - t35;
        const Q t38 = flipped<0, 1, 0, 0>(t25);
        const Q t39 = shuffled<0, 4, 3, 7>(t4, t5);
        // complex block of 3
        const Q t40 = t38 + t39;
        const Q t41 = Q(c[4], -c[4], c[4], c[4]) * t25;
        const Q t42 = t39 - t41;
        const Q t43 = Q(c[5], -c[5], c[5], c[5]) * t28;
        const Q t44 = shuffled<1, 0, 3, 2>(t43);
        const Q t45 = t42 + t44;
        const Q t46 = t42 - t44;
        const P t47 = part<0>(t4);
        const P t48 = part<0>(t11);
        const P t49 = shuffled<1, 2>(t47, t48);
        const P x0_15 = io.in(0, 15);
        // spectrum block of 3
        const P t50 = t49 + x0_15;
        const P t51 = c[4] * t49;
        const P t52 = x0_15 - t51;
        const P t53 = part<0>(t5);
        const P t54 = shuffled<1, 3>(t53, t48);
        const P t55 = P(-c[5], c[5]) * t54;
        const P t56 = t52 + t55;
        const P t57 = t52 - t55;
        const Q t58 = shuffled<0, 4, 2, 6>(t31, t36);
        const Q t59 = shuffled<0, 4, 2, 6>(t40, t45);
        const Q t60 = shuffled<2, 3, 4, 5>(t58, t59);
        const Q t61 = shuffled<2, 3, 4, 5>(t59, t58);
        // spectrum block of 5
        const Q t62 = t60 + t61;
        const P t63 = shuffled<0, 2>(t50, t56);
        const P t64 = shuffled<1, 3>(t50, t56);
        const Q t65 = joined(t63, t64);
        const Q t66 = t62 + t65;
        const Q t67 = c[0] * t60;
        const Q t68 = c[1] * t61;
        const Q t69 = t67 - t68;
        const Q t70 = t69 + t65;
        const Q t71 = shuffled<1, 5, 3, 7>(t31, t36);
        const Q t72 = shuffled<1, 5, 3, 7>(t40, t45);
        const Q t73 = shuffled<2, 3, 4, 5>(t71, t72);
        const Q t74 = c[2] * t73;
        const Q t75 = shuffled<2, 3, 4, 5>(t72, t71);
        const Q t76 = c[3] * t75;
        const Q t77 = t74 + t76;
        const Q t78 = flipped<1, 1, 0, 0>(t77);
        const Q t79 = t70 + t78;
        const Q t80 = shuffled<0, 1, 4, 5>(t66, t79);
        const Q t81 = shuffled<2, 3, 6, 7>(t66, t79);
        // spectrum block of 2
        const Q t82 = t80 + t81;
        io.out(0, 20, 24, 14, t82);
        const Q t83 = t80 - t81;
        io.out(15, 5, 9, 29, t83);
        // spectrum block of 5
        const Q t84 = t70 - t78;
        const P t85 = part<0>(t84);
        const P t86 = part<1>(t84);
        // spectrum block of 2
        const P t87 = t85 + t86;
        io.out(6, 26, t87);
        const P t88 = t85 - t86;
        io.out(21, 11, t88);
        // spectrum block of 5
        const Q t89 = c[1] * t60;
        const Q t90 = t65 - t89;
        const Q t91 = c[0] * t61;
        const Q t92 = t90 + t91;
        const Q t93 = Q(-c[2], -c[2], c[2], c[2]) * t75;
        const Q t94 = Q(c[3], c[3], -c[3], -c[3]) * t73;
        const Q t95 = t93 + t94;
        const Q t96 = t92 - t95;
        const Q t97 = t92 + t95;
        const Q t98 = shuffled<0, 1, 4, 5>(t96, t97);
        const Q t99 = shuffled<2, 3, 6, 7>(t96, t97);
        // spectrum block of 2
        const Q t100 = t98 + t99;
        io.out(18, 8, 12, 2, t100);
        const Q t101 = t98 - t99;
        io.out(3, 23, 27, 17, t101);
        const P t102 = part<1>(t37);
        const P t103 = part<0>(t46);
        const P t104 = shuffled<0, 2>(t102, t103);
        const P t105 = part<1>(t46);
        const P t106 = part<0>(t37);
        const P t107 = shuffled<0, 2>(t105, t106);
        // spectrum block of 5
        const P t108 = t104 + t107;
        const P t109 = t108 + t57;
        const P t110 = c[0] * t104;
        const P t111 = c[1] * t107;
        const P t112 = t110 - t111;
        const P t113 = t112 + t57;
        const P t114 = shuffled<1, 3>(t102, t103);
        const P t115 = c[2] * t114;
        const P t116 = shuffled<1, 3>(t105, t106);
        const P t117 = c[3] * t116;
        const P t118 = t115 + t117;
        const P t119 = c[1] * t104;
        const P t120 = t57 - t119;
        const P t121 = c[0] * t107;
        const P t122 = t120 + t121;
        const P t123 = P(-c[2], c[2]) * t116;
        const P t124 = P(c[3], -c[3]) * t114;
        const P t125 = t123 + t124;
        const P t126 = flipped<1, 0>(t118);
        const P t127 = t113 + t126;
        const P t128 = t122 - t125;
        const P t129 = t122 + t125;
        const P t130 = shuffled<0, 2>(t109, t127);
        const P t131 = shuffled<0, 2>(t128, t129);
        const Q t132 = joined(t130, t131);
        const P t133 = shuffled<1, 3>(t109, t127);
        const P t134 = shuffled<1, 3>(t128, t129);
        const Q t135 = joined(t133, t134);
        // spectrum block of 2
        const Q t136 = t132 + t135;
        io.out(10, 4, 28, 22, t136);
        const Q t137 = t132 - t135;
        io.out(25, 19, 13, 7, t137);
        // spectrum block of 5
        const P t138 = t113 - t126;
        const V t139 = part<0>(t138);
        const V t140 = part<1>(t138);
        // spectrum block of 2
        const V t141 = t139 + t140;
        io.out(16, t141);
        const V t142 = t139 - t140;
        io.out(1, t142);
    }
};

}  // namespace zulg
