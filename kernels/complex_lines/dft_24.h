// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 24.
// Complex DFT of 24 points, prime-factor, order 8, 3; two lines of a stage to a register.
// 35 sums, 28 differences, 11 products of registers, which do the 344 steps of the graph, those with
// `scale` included; 43 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<24> {
    static constexpr int steps = 344;  // with `scale`
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_16 = io.pairs(0, 16);
        const Q x12_4 = io.pairs(12, 4);
        // complex block of 2
        const Q t0 = x0_16 + x12_4;
        const Q t1 = x0_16 - x12_4;
        const Q x9_1 = io.pairs(9, 1);
        const Q x21_13 = io.pairs(21, 13);
        // complex block of 2
        const Q t2 = x9_1 - x21_13;
        const Q t3 = x9_1 + x21_13;
        const Q x3_19 = io.pairs(3, 19);
        const Q x15_7 = io.pairs(15, 7);
        // complex block of 2
        const Q t4 = x3_19 - x15_7;
        const Q t5 = x3_19 + x15_7;
        const Q x6_22 = io.pairs(6, 22);
        const Q x18_10 = io.pairs(18, 10);
        // complex block of 2
        const Q t6 = x6_22 + x18_10;
        const Q t7 = x6_22 - x18_10;
        // complex block of 2
        const Q t8 = t0 + t6;
        // complex block of 2
        const Q t9 = t5 + t3;
        // complex block of 2
        const Q t10 = t8 + t9;
        const Q t11 = t8 - t9;
        // complex block of 2
        const Q t12 = t0 - t6;
        // complex block of 2
        const Q t13 = t5 - t3;
        const Q t14 = shuffled<1, 0, 3, 2>(t13);
        const Q t15 = flipped<1, 0, 1, 0>(t14);
        // complex block of 2
        const Q t16 = t12 + t15;
        const Q t17 = t12 - t15;
        // complex block of 8, multiplier 3
        const Q t18 = c[2] * t4;
        const Q t19 = shuffled<1, 0, 3, 2>(t18);
        const Q t20 = flipped<0, 1, 0, 1>(t19);
        const Q t21 = t18 + t20;
        const Q t22 = c[2] * t2;
        const Q t23 = shuffled<1, 0, 3, 2>(t22);
        const Q t24 = flipped<0, 1, 0, 1>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = shuffled<1, 0, 3, 2>(t21);
        const Q t27 = flipped<0, 1, 0, 1>(t26);
        // complex block of 2
        const Q t28 = t25 + t27;
        const Q t29 = flipped<1, 0, 1, 0>(t25);
        const Q t30 = t26 + t29;
        const Q t31 = shuffled<1, 0, 3, 2>(t7);
        const Q t32 = flipped<1, 0, 1, 0>(t31);
        // complex block of 2
        const Q t33 = t1 + t32;
        const Q t34 = t1 - t32;
        const Q x14_17 = io.pairs(14, 17);
        const Q x2_5 = io.pairs(2, 5);
        // complex block of 2
        const Q t35 = x14_17 - x2_5;
        const Q x8_11 = io.pairs(8, 11);
        const Q x20_23 = io.pairs(20, 23);
        // complex block of 2
        const Q t36 = x8_11 - x20_23;
        const Q t37 = x8_11 + x20_23;
        // complex block of 2
        const Q t38 = x14_17 + x2_5;
        const Q t39 = shuffled<2, 3, 6, 7>(t35, t36);
        // complex block of 8, multiplier 3
        const Q t40 = c[2] * t39;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = flipped<0, 1, 0, 1>(t41);
        const Q t43 = t40 + t42;
        const Q t44 = shuffled<2, 3, 4, 5>(t37, t43);
        const Q t45 = shuffled<1, 0, 3, 2>(t43);
        const Q t46 = shuffled<2, 3, 6, 7>(t38, t45);
        const Q t47 = flipped<0, 0, 0, 1>(t46);
        // complex block of 2
        const Q t48 = t44 + t47;
        const Q t49 = flipped<1, 1, 0, 1>(t47);
        const Q t50 = flipped<0, 0, 1, 0>(t44);
        const Q t51 = t49 + t50;
        const Q t52 = shuffled<0, 1, 4, 5>(t37, t36);
        const Q t53 = shuffled<1, 0, 3, 2>(t35);
        const Q t54 = shuffled<0, 1, 4, 5>(t38, t53);
        const Q t55 = flipped<0, 0, 1, 0>(t54);
        // complex block of 2
        const Q t56 = t52 + t55;
        const Q t57 = t52 - t55;
        // complex block of 2
        const Q t58 = t56 + t48;
        const Q t59 = t56 - t48;
        const Q t60 = shuffled<1, 0, 3, 2>(t51);
        const Q t61 = flipped<1, 0, 0, 0>(t60);
        // complex block of 2
        const Q t62 = t57 + t61;
        const Q t63 = t57 - t61;
        // complex block of 2
        const Q t64 = t33 + t28;
        const Q t65 = t33 - t28;
        const Q t66 = shuffled<1, 0, 3, 2>(t30);
        // complex block of 2
        const Q t67 = t34 + t66;
        const Q t68 = t34 - t66;
        const Q t69 = shuffled<0, 1, 6, 7>(t58, t62);
        const Q t70 = shuffled<2, 3, 6, 7>(t10, t67);
        // complex block of 3, multiplier 2
        const Q t71 = t69 + t70;
        const Q t72 = shuffled<0, 1, 6, 7>(t62, t59);
        const Q t73 = shuffled<2, 3, 6, 7>(t16, t65);
        // complex block of 3, multiplier 2
        const Q t74 = t72 + t73;
        const Q t75 = shuffled<0, 1, 6, 7>(t63, t58);
        const Q t76 = shuffled<2, 3, 6, 7>(t17, t64);
        // complex block of 3, multiplier 2
        const Q t77 = t75 + t76;
        const Q t78 = shuffled<0, 1, 6, 7>(t59, t63);
        const Q t79 = shuffled<2, 3, 6, 7>(t11, t68);
        // complex block of 3, multiplier 2
        const Q t80 = t78 + t79;
        // complex block of 3, multiplier 2
        const Q t81 = t69 - t70;
        // complex block of 3, multiplier 2
        const Q t82 = t72 - t73;
        // complex block of 3, multiplier 2
        const Q t83 = t75 - t76;
        // complex block of 3, multiplier 2
        const Q t84 = t78 - t79;
        const Q t85 = shuffled<0, 1, 4, 5>(t10, t67);
        // complex block of 3, multiplier 2
        const Q t86 = t71 + t85;
        const Q t87 = c[0] * t71;
        const Q t88 = t85 - t87;
        const Q t89 = Q(-c[1], c[1], -c[1], c[1]) * t81;
        const Q t90 = shuffled<1, 0, 3, 2>(t89);
        const Q t91 = t88 + t90;
        const Q t92 = shuffled<0, 1, 6, 7>(t86, t91);
        io.pairs(0, 1, t92);
        const Q t93 = t88 - t90;
        const Q t94 = shuffled<0, 1, 6, 7>(t93, t86);
        io.pairs(8, 9, t94);
        const Q t95 = shuffled<0, 1, 6, 7>(t91, t93);
        io.pairs(16, 17, t95);
        const Q t96 = shuffled<0, 1, 4, 5>(t16, t65);
        // complex block of 3, multiplier 2
        const Q t97 = t74 + t96;
        const Q t98 = c[0] * t74;
        const Q t99 = t96 - t98;
        const Q t100 = Q(-c[1], c[1], -c[1], c[1]) * t82;
        const Q t101 = shuffled<1, 0, 3, 2>(t100);
        const Q t102 = t99 + t101;
        const Q t103 = shuffled<0, 1, 6, 7>(t97, t102);
        io.pairs(6, 7, t103);
        const Q t104 = t99 - t101;
        const Q t105 = shuffled<0, 1, 6, 7>(t104, t97);
        io.pairs(14, 15, t105);
        const Q t106 = shuffled<0, 1, 6, 7>(t102, t104);
        io.pairs(22, 23, t106);
        const Q t107 = shuffled<0, 1, 4, 5>(t17, t64);
        // complex block of 3, multiplier 2
        const Q t108 = t77 + t107;
        const Q t109 = c[0] * t77;
        const Q t110 = t107 - t109;
        const Q t111 = Q(-c[1], c[1], -c[1], c[1]) * t83;
        const Q t112 = shuffled<1, 0, 3, 2>(t111);
        const Q t113 = t110 + t112;
        const Q t114 = shuffled<0, 1, 6, 7>(t108, t113);
        io.pairs(18, 19, t114);
        const Q t115 = t110 - t112;
        const Q t116 = shuffled<0, 1, 6, 7>(t115, t108);
        io.pairs(2, 3, t116);
        const Q t117 = shuffled<0, 1, 6, 7>(t113, t115);
        io.pairs(10, 11, t117);
        const Q t118 = shuffled<0, 1, 4, 5>(t11, t68);
        // complex block of 3, multiplier 2
        const Q t119 = t80 + t118;
        const Q t120 = c[0] * t80;
        const Q t121 = t118 - t120;
        const Q t122 = Q(-c[1], c[1], -c[1], c[1]) * t84;
        const Q t123 = shuffled<1, 0, 3, 2>(t122);
        const Q t124 = t121 + t123;
        const Q t125 = shuffled<0, 1, 6, 7>(t119, t124);
        io.pairs(12, 13, t125);
        const Q t126 = t121 - t123;
        const Q t127 = shuffled<0, 1, 6, 7>(t124, t126);
        io.pairs(4, 5, t127);
        const Q t128 = shuffled<0, 1, 6, 7>(t126, t119);
        io.pairs(20, 21, t128);
    }
};

}  // namespace zulg
