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
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_8 = io.pairs(0, 8);
        const Q x12_20 = io.pairs(12, 20);
        // complex block of 2
        const Q t0 = x0_8 + x12_20;
        const Q t1 = x0_8 - x12_20;
        const Q x3_11 = io.pairs(3, 11);
        const Q x15_23 = io.pairs(15, 23);
        // complex block of 2
        const Q t2 = x3_11 + x15_23;
        const Q t3 = x3_11 - x15_23;
        const Q x6_14 = io.pairs(6, 14);
        const Q x18_2 = io.pairs(18, 2);
        // complex block of 2
        const Q t4 = x6_14 + x18_2;
        const Q t5 = x6_14 - x18_2;
        const Q x9_17 = io.pairs(9, 17);
        const Q x21_5 = io.pairs(21, 5);
        // complex block of 2
        const Q t6 = x9_17 + x21_5;
        const Q t7 = x9_17 - x21_5;
        // complex block of 2
        const Q t8 = t0 + t4;
        const Q t9 = t0 - t4;
        // complex block of 2
        const Q t10 = t2 + t6;
        const Q t11 = t2 - t6;
        // complex block of 2
        const Q t12 = t8 + t10;
        const Q t13 = t8 - t10;
        const Q t14 = shuffled<1, 0, 3, 2>(t11);
        const Q t15 = flipped<1, 0, 1, 0>(t14);
        // complex block of 2
        const Q t16 = t9 + t15;
        const Q t17 = t9 - t15;
        // complex block of 8, multiplier 3
        const Q t18 = c[2] * t3;
        const Q t19 = shuffled<1, 0, 3, 2>(t18);
        const Q t20 = flipped<0, 1, 0, 1>(t19);
        const Q t21 = t18 + t20;
        const Q t22 = c[2] * t7;
        const Q t23 = shuffled<1, 0, 3, 2>(t22);
        const Q t24 = flipped<0, 1, 0, 1>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = shuffled<1, 0, 3, 2>(t5);
        const Q t27 = flipped<1, 0, 1, 0>(t26);
        // complex block of 2
        const Q t28 = t1 + t27;
        const Q t29 = t1 - t27;
        const Q t30 = shuffled<1, 0, 3, 2>(t21);
        const Q t31 = flipped<0, 1, 0, 1>(t30);
        // complex block of 2
        const Q t32 = t25 + t31;
        const Q t33 = flipped<1, 0, 1, 0>(t25);
        const Q t34 = t30 + t33;
        // complex block of 2
        const Q t35 = t28 + t32;
        const Q t36 = t28 - t32;
        const Q t37 = shuffled<1, 0, 3, 2>(t34);
        // complex block of 2
        const Q t38 = t29 + t37;
        const Q t39 = t29 - t37;
        const Q x16_19 = io.pairs(16, 19);
        const Q x4_7 = io.pairs(4, 7);
        // complex block of 2
        const Q t40 = x16_19 + x4_7;
        const Q t41 = x16_19 - x4_7;
        const Q x22_1 = io.pairs(22, 1);
        const Q x10_13 = io.pairs(10, 13);
        // complex block of 2
        const Q t42 = x22_1 + x10_13;
        const Q t43 = x22_1 - x10_13;
        const Q t44 = shuffled<2, 3, 6, 7>(t41, t43);
        // complex block of 8, multiplier 3
        const Q t45 = c[2] * t44;
        const Q t46 = shuffled<1, 0, 3, 2>(t45);
        const Q t47 = flipped<0, 1, 0, 1>(t46);
        const Q t48 = t45 + t47;
        const Q t49 = shuffled<0, 1, 4, 5>(t40, t41);
        const P t50 = part<0>(t42);
        const P t51 = part<0>(t43);
        const P t52 = shuffled<1, 0>(t51);
        const P t53 = flipped<1, 0>(t52);
        const Q t54 = joined(t50, t53);
        // complex block of 2
        const Q t55 = t49 + t54;
        const Q t56 = t49 - t54;
        const Q t57 = shuffled<2, 3, 6, 7>(t40, t48);
        const Q t58 = shuffled<2, 3, 4, 5>(t42, t48);
        const Q t59 = shuffled<0, 1, 3, 2>(t58);
        const Q t60 = flipped<0, 0, 0, 1>(t59);
        // complex block of 2
        const Q t61 = t57 + t60;
        const Q t62 = flipped<1, 1, 0, 1>(t60);
        const Q t63 = flipped<0, 0, 1, 0>(t57);
        const Q t64 = t62 + t63;
        // complex block of 2
        const Q t65 = t55 + t61;
        const Q t66 = t55 - t61;
        const Q t67 = shuffled<1, 0, 3, 2>(t64);
        const Q t68 = flipped<1, 0, 0, 0>(t67);
        // complex block of 2
        const Q t69 = t56 + t68;
        const Q t70 = t56 - t68;
        const Q t71 = shuffled<2, 3, 6, 7>(t12, t35);
        // complex block of 3, multiplier 2
        const Q t72 = t71 + t65;
        const Q t73 = t71 - t65;
        const Q t74 = shuffled<0, 1, 4, 5>(t12, t35);
        const Q t75 = t72 + t74;
        io.pairs(0, 3, t75);
        const Q t76 = c[0] * t72;
        const Q t77 = t74 - t76;
        const Q t78 = Q(-c[1], c[1], -c[1], c[1]) * t73;
        const Q t79 = shuffled<1, 0, 3, 2>(t78);
        const Q t80 = t77 + t79;
        io.pairs(16, 19, t80);
        const Q t81 = t77 - t79;
        io.pairs(8, 11, t81);
        const Q t82 = shuffled<2, 3, 6, 7>(t16, t38);
        // complex block of 3, multiplier 2
        const Q t83 = t82 + t69;
        const Q t84 = t82 - t69;
        const Q t85 = shuffled<0, 1, 4, 5>(t16, t38);
        const Q t86 = t83 + t85;
        io.pairs(6, 9, t86);
        const Q t87 = c[0] * t83;
        const Q t88 = t85 - t87;
        const Q t89 = Q(-c[1], c[1], -c[1], c[1]) * t84;
        const Q t90 = shuffled<1, 0, 3, 2>(t89);
        const Q t91 = t88 + t90;
        io.pairs(22, 1, t91);
        const Q t92 = t88 - t90;
        io.pairs(14, 17, t92);
        const Q t93 = shuffled<2, 3, 6, 7>(t13, t36);
        // complex block of 3, multiplier 2
        const Q t94 = t93 + t66;
        const Q t95 = t93 - t66;
        const Q t96 = shuffled<0, 1, 4, 5>(t13, t36);
        const Q t97 = t94 + t96;
        io.pairs(12, 15, t97);
        const Q t98 = c[0] * t94;
        const Q t99 = t96 - t98;
        const Q t100 = Q(-c[1], c[1], -c[1], c[1]) * t95;
        const Q t101 = shuffled<1, 0, 3, 2>(t100);
        const Q t102 = t99 + t101;
        io.pairs(4, 7, t102);
        const Q t103 = t99 - t101;
        io.pairs(20, 23, t103);
        const Q t104 = shuffled<2, 3, 6, 7>(t17, t39);
        // complex block of 3, multiplier 2
        const Q t105 = t104 + t70;
        const Q t106 = t104 - t70;
        const Q t107 = shuffled<0, 1, 4, 5>(t17, t39);
        const Q t108 = t105 + t107;
        io.pairs(18, 21, t108);
        const Q t109 = c[0] * t105;
        const Q t110 = t107 - t109;
        const Q t111 = Q(-c[1], c[1], -c[1], c[1]) * t106;
        const Q t112 = shuffled<1, 0, 3, 2>(t111);
        const Q t113 = t110 + t112;
        io.pairs(10, 13, t113);
        const Q t114 = t110 - t112;
        io.pairs(2, 5, t114);
    }
};

}  // namespace zulg
