// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 16.
// Complex DFT of 16 points, twiddled, inner 2, outer 8; two lines of a stage to a register.
// 21 sums, 16 differences, 7 products of registers, which do the 208 steps of the graph, those with
// `scale` included; 22 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<16> {
    static constexpr int steps = 208;  // with `scale`
    static constexpr double inverseRoot = 0.25;  // 1/sqrt(16), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.9238795325112867,  // c[2]: cos 2 pi 1/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_1 = io.pairs(0, 1);
        const Q x8_9 = io.pairs(8, 9);
        // complex block of 2
        const Q t0 = x0_1 - x8_9;
        const Q x2_3 = io.pairs(2, 3);
        const Q x10_11 = io.pairs(10, 11);
        // complex block of 2
        const Q t1 = x2_3 - x10_11;
        // complex block of 2
        const Q t2 = x0_1 + x8_9;
        // complex block of 2
        const Q t3 = x2_3 + x10_11;
        const Q x4_5 = io.pairs(4, 5);
        const Q x12_13 = io.pairs(12, 13);
        // complex block of 2
        const Q t4 = x4_5 - x12_13;
        const Q x6_7 = io.pairs(6, 7);
        const Q x14_15 = io.pairs(14, 15);
        // complex block of 2
        const Q t5 = x6_7 - x14_15;
        // complex block of 2
        const Q t6 = x4_5 + x12_13;
        // complex block of 2
        const Q t7 = x6_7 + x14_15;
        const Q t8 = shuffled<2, 3, 6, 7>(t1, t0);
        // complex block of 16
        const Q t9 = Q(c[1], c[1], c[2], c[2]) * t8;
        const Q t10 = shuffled<1, 0, 3, 2>(t8);
        const Q t11 = Q(c[2], -c[2], c[1], -c[1]) * t10;
        const Q t12 = t9 + t11;
        const Q t13 = shuffled<2, 3, 6, 7>(t5, t4);
        const Q t14 = Q(-c[2], c[2], -c[1], c[1]) * t13;
        const Q t15 = shuffled<1, 0, 3, 2>(t13);
        const Q t16 = Q(c[1], c[1], c[2], c[2]) * t15;
        const Q t17 = t14 + t16;
        const Q t18 = shuffled<2, 3, 6, 7>(t2, t12);
        const Q t19 = shuffled<2, 3, 6, 7>(t6, t17);
        const Q t20 = flipped<0, 0, 0, 1>(t19);
        // complex block of 2
        const Q t21 = t18 - t20;
        const Q t22 = shuffled<2, 3, 4, 5>(t3, t12);
        const Q t23 = shuffled<2, 3, 4, 5>(t7, t17);
        const Q t24 = flipped<0, 0, 0, 1>(t23);
        // complex block of 2
        const Q t25 = t22 - t24;
        const Q t26 = shuffled<0, 1, 4, 5>(t5, t1);
        // complex block of 16
        const Q t27 = c[0] * t26;
        const Q t28 = shuffled<1, 0, 3, 2>(t27);
        const Q t29 = flipped<0, 1, 0, 1>(t28);
        const Q t30 = t27 + t29;
        const Q t31 = shuffled<0, 1, 4, 5>(t2, t0);
        const Q t32 = shuffled<1, 0, 3, 2>(t4);
        const Q t33 = shuffled<0, 1, 4, 5>(t6, t32);
        const Q t34 = flipped<0, 0, 0, 1>(t33);
        // complex block of 2
        const Q t35 = t31 + t34;
        const Q t36 = t31 - t34;
        // complex block of 2
        const Q t37 = t18 + t20;
        // complex block of 2
        const Q t38 = t22 + t24;
        // complex block of 2
        const Q t39 = t37 + t38;
        const Q t40 = t37 - t38;
        const Q t41 = shuffled<0, 1, 6, 7>(t3, t30);
        const Q t42 = shuffled<1, 0, 3, 2>(t30);
        const Q t43 = shuffled<0, 1, 4, 5>(t7, t42);
        const Q t44 = flipped<0, 0, 0, 1>(t43);
        // complex block of 2
        const Q t45 = t41 + t44;
        // complex block of 2
        const Q t46 = t35 + t45;
        const Q t47 = t35 - t45;
        // complex block of 2
        const Q t48 = t46 + t39;
        io.pairs(0, 1, t48);
        const Q t49 = t46 - t39;
        io.pairs(8, 9, t49);
        const Q t50 = shuffled<1, 0, 3, 2>(t40);
        const Q t51 = flipped<0, 1, 0, 1>(t50);
        // complex block of 2
        const Q t52 = t47 + t51;
        io.pairs(4, 5, t52);
        const Q t53 = t47 - t51;
        io.pairs(12, 13, t53);
        // complex block of 2
        const Q t54 = t41 - t44;
        const Q t55 = shuffled<1, 0, 3, 2>(t54);
        const Q t56 = flipped<0, 1, 0, 1>(t55);
        // complex block of 2
        const Q t57 = t36 + t56;
        const Q t58 = t36 - t56;
        // complex block of 8
        const Q t59 = c[0] * t21;
        const Q t60 = shuffled<1, 0, 3, 2>(t59);
        const Q t61 = flipped<0, 1, 0, 1>(t60);
        const Q t62 = t59 + t61;
        const Q t63 = c[0] * t25;
        const Q t64 = shuffled<1, 0, 3, 2>(t63);
        const Q t65 = flipped<0, 1, 0, 1>(t64);
        const Q t66 = t63 + t65;
        const Q t67 = shuffled<1, 0, 3, 2>(t66);
        const Q t68 = flipped<0, 1, 0, 1>(t67);
        // complex block of 2
        const Q t69 = t62 + t68;
        // complex block of 2
        const Q t70 = t57 + t69;
        io.pairs(2, 3, t70);
        const Q t71 = t57 - t69;
        io.pairs(10, 11, t71);
        // complex block of 2
        const Q t72 = t62 - t68;
        const Q t73 = shuffled<1, 0, 3, 2>(t72);
        const Q t74 = flipped<0, 1, 0, 1>(t73);
        // complex block of 2
        const Q t75 = t58 + t74;
        io.pairs(6, 7, t75);
        const Q t76 = t58 - t74;
        io.pairs(14, 15, t76);
    }
};

}  // namespace zulg
