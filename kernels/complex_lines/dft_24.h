// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 24.
// Complex DFT of 24 points, prime-factor, order 8, 3; two lines of a stage to a register.
// 35 sums, 28 differences, 11 products of registers, which do the 344 steps of the graph, those with
// `scale` included; 27 shuffles, 12 changes of sign.
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
        const Q x0_8 = io.pairs(0, 8);
        const Q x12_20 = io.pairs(12, 20);
        // complex block of 2
        const Q t0 = x0_8 + x12_20;
        const Q t1 = x0_8 - x12_20;
        const Q x6_14 = io.pairs(6, 14);
        const Q x18_2 = io.pairs(18, 2);
        // complex block of 2
        const Q t2 = x6_14 + x18_2;
        const Q t3 = x6_14 - x18_2;
        const Q x3_11 = io.pairs(3, 11);
        const Q x15_23 = io.pairs(15, 23);
        // complex block of 2
        const Q t4 = x3_11 - x15_23;
        const Q t5 = x3_11 + x15_23;
        const Q x9_17 = io.pairs(9, 17);
        const Q x21_5 = io.pairs(21, 5);
        // complex block of 2
        const Q t6 = x9_17 - x21_5;
        const Q t7 = x9_17 + x21_5;
        // complex block of 2
        const Q t8 = t0 + t2;
        // complex block of 2
        const Q t9 = t5 + t7;
        // complex block of 2
        const Q t10 = t8 + t9;
        const Q t11 = t8 - t9;
        // complex block of 2
        const Q t12 = t0 - t2;
        // complex block of 2
        const Q t13 = t5 - t7;
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
        const Q t22 = c[2] * t6;
        const Q t23 = shuffled<1, 0, 3, 2>(t22);
        const Q t24 = flipped<0, 1, 0, 1>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = shuffled<1, 0, 3, 2>(t21);
        const Q t27 = flipped<0, 1, 0, 1>(t26);
        // complex block of 2
        const Q t28 = t25 + t27;
        const Q t29 = flipped<1, 0, 1, 0>(t25);
        const Q t30 = t26 + t29;
        const Q t31 = shuffled<1, 0, 3, 2>(t3);
        const Q t32 = flipped<1, 0, 1, 0>(t31);
        // complex block of 2
        const Q t33 = t1 + t32;
        const Q t34 = t1 - t32;
        const Q x22_1 = io.pairs(22, 1);
        const Q x10_13 = io.pairs(10, 13);
        // complex block of 2
        const Q t35 = x22_1 - x10_13;
        const Q x16_19 = io.pairs(16, 19);
        const Q x4_7 = io.pairs(4, 7);
        // complex block of 2
        const Q t36 = x16_19 - x4_7;
        const Q t37 = x16_19 + x4_7;
        // complex block of 2
        const Q t38 = x22_1 + x10_13;
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
        const Q t58 = t33 + t28;
        // complex block of 2
        const Q t59 = t56 + t48;
        const Q t60 = shuffled<2, 3, 6, 7>(t10, t58);
        // complex block of 3, multiplier 2
        const Q t61 = t60 + t59;
        const Q t62 = t60 - t59;
        const Q t63 = shuffled<0, 1, 4, 5>(t10, t58);
        const Q t64 = t61 + t63;
        io.pairs(0, 3, t64);
        const Q t65 = c[0] * t61;
        const Q t66 = t63 - t65;
        const Q t67 = Q(-c[1], c[1], -c[1], c[1]) * t62;
        const Q t68 = shuffled<1, 0, 3, 2>(t67);
        const Q t69 = t66 + t68;
        io.pairs(16, 19, t69);
        const Q t70 = t66 - t68;
        io.pairs(8, 11, t70);
        // complex block of 2
        const Q t71 = t33 - t28;
        // complex block of 2
        const Q t72 = t56 - t48;
        const Q t73 = shuffled<2, 3, 6, 7>(t11, t71);
        // complex block of 3, multiplier 2
        const Q t74 = t73 + t72;
        const Q t75 = t73 - t72;
        const Q t76 = shuffled<0, 1, 4, 5>(t11, t71);
        const Q t77 = t74 + t76;
        io.pairs(12, 15, t77);
        const Q t78 = c[0] * t74;
        const Q t79 = t76 - t78;
        const Q t80 = Q(-c[1], c[1], -c[1], c[1]) * t75;
        const Q t81 = shuffled<1, 0, 3, 2>(t80);
        const Q t82 = t79 + t81;
        io.pairs(4, 7, t82);
        const Q t83 = t79 - t81;
        io.pairs(20, 23, t83);
        const Q t84 = shuffled<1, 0, 3, 2>(t30);
        // complex block of 2
        const Q t85 = t34 + t84;
        const Q t86 = shuffled<1, 0, 3, 2>(t51);
        const Q t87 = flipped<1, 0, 0, 0>(t86);
        // complex block of 2
        const Q t88 = t57 + t87;
        const Q t89 = shuffled<2, 3, 6, 7>(t16, t85);
        // complex block of 3, multiplier 2
        const Q t90 = t89 + t88;
        const Q t91 = t89 - t88;
        const Q t92 = shuffled<0, 1, 4, 5>(t16, t85);
        const Q t93 = t90 + t92;
        io.pairs(6, 9, t93);
        const Q t94 = c[0] * t90;
        const Q t95 = t92 - t94;
        const Q t96 = Q(-c[1], c[1], -c[1], c[1]) * t91;
        const Q t97 = shuffled<1, 0, 3, 2>(t96);
        const Q t98 = t95 + t97;
        io.pairs(22, 1, t98);
        const Q t99 = t95 - t97;
        io.pairs(14, 17, t99);
        // complex block of 2
        const Q t100 = t34 - t84;
        // complex block of 2
        const Q t101 = t57 - t87;
        const Q t102 = shuffled<2, 3, 6, 7>(t17, t100);
        // complex block of 3, multiplier 2
        const Q t103 = t102 + t101;
        const Q t104 = t102 - t101;
        const Q t105 = shuffled<0, 1, 4, 5>(t17, t100);
        const Q t106 = t103 + t105;
        io.pairs(18, 21, t106);
        const Q t107 = c[0] * t103;
        const Q t108 = t105 - t107;
        const Q t109 = Q(-c[1], c[1], -c[1], c[1]) * t104;
        const Q t110 = shuffled<1, 0, 3, 2>(t109);
        const Q t111 = t108 + t110;
        io.pairs(10, 13, t111);
        const Q t112 = t108 - t110;
        io.pairs(2, 5, t112);
    }
};

}  // namespace zulg
