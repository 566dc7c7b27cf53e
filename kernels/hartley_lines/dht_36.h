// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 36.
// Hartley transform of 36 points, form I; up to four lanes to a register.
// 32 sums, 30 differences, 18 products of registers, which do the 340 steps of the graph, those with
// `scale` included; 38 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<36> {
    static constexpr int steps = 340;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 5/9
        0.3420201433256687,  // c[3]: -sin 2 pi 5/9
        0.766044443118978,  // c[4]: cos 2 pi 1/9
        0.6427876096865394,  // c[5]: sin 2 pi 1/9
        0.29619813272602386,  // c[6]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[7]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.6634139481689384,  // c[8]: sin 2 pi 1/3 times cos 2 pi 1/9
        0.5566703992264194,  // c[9]: sin 2 pi 1/3 times sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const V x0 = io.in(0);
        const V x18 = io.in(18);
        // spectrum block of 2
        const V t0 = x0 + x18;
        const V t1 = x0 - x18;
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x35_34_33_32 = io.in(35, 34, 33, 32);
        // input stage
        const Q t2 = x1_2_3_4 + x35_34_33_32;
        const Q t3 = x1_2_3_4 - x35_34_33_32;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x31_30_29_28 = io.in(31, 30, 29, 28);
        const Q t4 = x5_6_7_8 + x31_30_29_28;
        const Q t5 = x5_6_7_8 - x31_30_29_28;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x27_26_25_24 = io.in(27, 26, 25, 24);
        const Q t6 = x9_10_11_12 + x27_26_25_24;
        const Q t7 = x9_10_11_12 - x27_26_25_24;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x23_22_21_20 = io.in(23, 22, 21, 20);
        const Q t8 = x13_14_15_16 + x23_22_21_20;
        const Q t9 = x13_14_15_16 - x23_22_21_20;
        const V x17 = io.in(17);
        const V x19 = io.in(19);
        const V t10 = x17 + x19;
        const V t11 = x17 - x19;
        const Q t12 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t13 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t14 = shuffled<2, 3, 6, 7>(t12, t13);
        const Q t15 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t16 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t17 = shuffled<0, 1, 4, 5>(t15, t16);
        const Q t18 = flipped<0, 1, 0, 1>(t17);
        // complex block of 2
        const Q t19 = t14 + t18;
        const P t20 = part<0>(t8);
        const P t21 = part<0>(t9);
        const P t22 = shuffled<0, 2>(t20, t21);
        const P t23 = joined(t10, t11);
        const Q t24 = joined(t22, t23);
        const Q t25 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t26 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t27 = shuffled<0, 1, 4, 5>(t25, t26);
        const Q t28 = flipped<0, 1, 0, 1>(t27);
        // complex block of 2
        const Q t29 = t24 + t28;
        // complex block of 2
        const Q t30 = t19 + t29;
        const Q t31 = t19 - t29;
        // complex block of 2
        const Q t32 = t14 - t18;
        // complex block of 2
        const Q t33 = t24 - t28;
        const Q t34 = shuffled<1, 0, 3, 2>(t33);
        const Q t35 = flipped<1, 0, 1, 0>(t34);
        // complex block of 2
        const Q t36 = t32 + t35;
        const Q t37 = t32 - t35;
        const Q t38 = shuffled<2, 3, 6, 7>(t16, t15);
        const Q t39 = shuffled<0, 1, 4, 5>(t13, t12);
        const Q t40 = flipped<0, 1, 0, 1>(t39);
        // complex block of 2
        const Q t41 = t38 + t40;
        const Q t42 = shuffled<2, 3, 6, 7>(t26, t25);
        const Q t43 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t44 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t45 = shuffled<2, 3, 6, 7>(t43, t44);
        const Q t46 = flipped<0, 1, 0, 1>(t45);
        // complex block of 2
        const Q t47 = t42 + t46;
        // complex block of 2
        const Q t48 = t41 + t47;
        const Q t49 = t41 - t47;
        // complex block of 2
        const Q t50 = t38 - t40;
        const Q t51 = flipped<1, 0, 1, 0>(t42);
        // complex block of 2
        const Q t52 = t45 + t51;
        const Q t53 = shuffled<1, 0, 3, 2>(t52);
        // complex block of 2
        const Q t54 = t50 + t53;
        const Q t55 = t50 - t53;
        const P t56 = joined(t0, t1);
        const P t57 = part<0>(t44);
        const P t58 = flipped<0, 1>(t57);
        // spectrum block of 2
        const P t59 = t56 + t58;
        const P t60 = t56 - t58;
        const Q t61 = shuffled<1, 5, 3, 7>(t48, t54);
        const Q t62 = shuffled<1, 5, 3, 7>(t49, t55);
        const Q t63 = shuffled<2, 3, 6, 7>(t61, t62);
        const Q t64 = shuffled<1, 5, 3, 7>(t30, t36);
        const Q t65 = shuffled<1, 5, 3, 7>(t31, t37);
        const Q t66 = shuffled<2, 3, 6, 7>(t64, t65);
        // complex block of 3
        const Q t67 = t63 - t66;
        const Q t68 = shuffled<0, 1, 4, 5>(t64, t65);
        const Q t69 = c[0] * t67;
        const Q t70 = t68 - t69;
        const Q t71 = shuffled<0, 4, 2, 6>(t48, t54);
        const Q t72 = shuffled<0, 4, 2, 6>(t49, t55);
        const Q t73 = shuffled<2, 3, 6, 7>(t71, t72);
        const Q t74 = shuffled<0, 4, 2, 6>(t30, t36);
        const Q t75 = shuffled<0, 4, 2, 6>(t31, t37);
        const Q t76 = shuffled<2, 3, 6, 7>(t74, t75);
        const Q t77 = t73 + t76;
        const Q t78 = shuffled<0, 1, 4, 5>(t74, t75);
        const Q t79 = c[0] * t77;
        const Q t80 = t78 - t79;
        const Q t81 = t63 + t66;
        const Q t82 = t73 - t76;
        const Q t83 = shuffled<0, 1, 4, 5>(t71, t72);
        const Q t84 = joined(t59, t60);
        // spectrum block of 3
        const Q t85 = t83 + t84;
        // complex block of 3
        const Q t86 = t67 + t68;
        const Q t87 = t77 + t78;
        // spectrum block of 3
        const Q t88 = t87 + t85;
        io.out(0, 27, 18, 9, t88);
        const Q t89 = c[0] * t87;
        const Q t90 = t85 - t89;
        const Q t91 = c[1] * t86;
        const Q t92 = t90 - t91;
        io.out(24, 15, 6, 33, t92);
        const Q t93 = t90 + t91;
        io.out(12, 3, 30, 21, t93);
        // spectrum block of 3
        const Q t94 = c[0] * t83;
        const Q t95 = t84 - t94;
        const Q t96 = shuffled<0, 1, 4, 5>(t61, t62);
        const Q t97 = c[1] * t96;
        const Q t98 = t95 - t97;
        const Q t99 = t95 + t97;
        // complex block of 3
        const Q t100 = c[1] * t82;
        const Q t101 = t70 + t100;
        const Q t102 = c[1] * t81;
        const Q t103 = t80 - t102;
        // spectrum block of 9, multiplier 4
        const Q t104 = c[2] * t103;
        const Q t105 = c[3] * t101;
        const Q t106 = t104 + t105;
        // complex block of 3
        const Q t107 = t70 - t100;
        const Q t108 = t80 + t102;
        // spectrum block of 9, multiplier 4
        const Q t109 = c[4] * t108;
        const Q t110 = c[5] * t107;
        const Q t111 = t109 + t110;
        // spectrum block of 3
        const Q t112 = t98 - t106;
        io.out(32, 23, 14, 5, t112);
        const Q t113 = c[0] * t106;
        const Q t114 = t113 + t98;
        const Q t115 = c[6] * t103;
        const Q t116 = c[7] * t101;
        const Q t117 = t115 - t116;
        const Q t118 = t114 - t117;
        io.out(20, 11, 2, 29, t118);
        const Q t119 = t114 + t117;
        io.out(8, 35, 26, 17, t119);
        // spectrum block of 3
        const Q t120 = t111 + t99;
        io.out(28, 19, 10, 1, t120);
        const Q t121 = c[0] * t111;
        const Q t122 = t99 - t121;
        const Q t123 = c[8] * t107;
        const Q t124 = c[9] * t108;
        const Q t125 = t123 - t124;
        const Q t126 = t122 - t125;
        io.out(16, 7, 34, 25, t126);
        const Q t127 = t122 + t125;
        io.out(4, 31, 22, 13, t127);
    }
};

}  // namespace zulg
