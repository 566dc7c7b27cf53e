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
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.3826834323650898,  // c[2]: sin 2 pi 1/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_1 = io.pairs(0, 1);
        const Q x8_9 = io.pairs(8, 9);
        // complex block of 2
        const Q t0 = x0_1 + x8_9;
        const Q t1 = x0_1 - x8_9;
        const Q x2_3 = io.pairs(2, 3);
        const Q x10_11 = io.pairs(10, 11);
        // complex block of 2
        const Q t2 = x2_3 + x10_11;
        const Q t3 = x2_3 - x10_11;
        const Q x4_5 = io.pairs(4, 5);
        const Q x12_13 = io.pairs(12, 13);
        // complex block of 2
        const Q t4 = x4_5 + x12_13;
        const Q t5 = x4_5 - x12_13;
        const Q x6_7 = io.pairs(6, 7);
        const Q x14_15 = io.pairs(14, 15);
        // complex block of 2
        const Q t6 = x6_7 + x14_15;
        const Q t7 = x6_7 - x14_15;
        const Q t8 = shuffled<2, 3, 6, 7>(t1, t3);
        // complex block of 16
        const Q t9 = Q(c[1], c[1], c[2], c[2]) * t8;
        const Q t10 = shuffled<1, 0, 3, 2>(t8);
        const Q t11 = Q(c[2], -c[2], c[1], -c[1]) * t10;
        const Q t12 = t9 + t11;
        const Q t13 = shuffled<0, 1, 4, 5>(t3, t7);
        const Q t14 = c[0] * t13;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = flipped<0, 1, 0, 1>(t15);
        const Q t17 = t14 + t16;
        const Q t18 = shuffled<2, 3, 6, 7>(t5, t7);
        const Q t19 = Q(-c[2], c[2], -c[1], c[1]) * t18;
        const Q t20 = shuffled<1, 0, 3, 2>(t18);
        const Q t21 = Q(c[1], c[1], c[2], c[2]) * t20;
        const Q t22 = t19 + t21;
        const Q t23 = shuffled<0, 1, 4, 5>(t0, t1);
        const P t24 = part<0>(t4);
        const P t25 = part<0>(t5);
        const P t26 = shuffled<1, 0>(t25);
        const P t27 = flipped<0, 1>(t26);
        const Q t28 = joined(t24, t27);
        // complex block of 2
        const Q t29 = t23 + t28;
        const Q t30 = t23 - t28;
        const Q t31 = shuffled<2, 3, 4, 5>(t0, t12);
        const Q t32 = shuffled<2, 3, 4, 5>(t4, t22);
        const Q t33 = flipped<0, 0, 0, 1>(t32);
        // complex block of 2
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        const Q t36 = shuffled<0, 1, 4, 5>(t2, t17);
        const Q t37 = shuffled<0, 1, 6, 7>(t6, t17);
        const Q t38 = shuffled<0, 1, 3, 2>(t37);
        const Q t39 = flipped<0, 0, 0, 1>(t38);
        // complex block of 2
        const Q t40 = t36 + t39;
        const Q t41 = t36 - t39;
        const Q t42 = shuffled<2, 3, 6, 7>(t2, t12);
        const Q t43 = shuffled<2, 3, 6, 7>(t6, t22);
        const Q t44 = flipped<0, 0, 0, 1>(t43);
        // complex block of 2
        const Q t45 = t42 + t44;
        const Q t46 = t42 - t44;
        // complex block of 2
        const Q t47 = t29 + t40;
        const Q t48 = t29 - t40;
        // complex block of 2
        const Q t49 = t34 + t45;
        const Q t50 = t34 - t45;
        // complex block of 2
        const Q t51 = t47 + t49;
        io.pairs(0, 1, t51);
        const Q t52 = t47 - t49;
        io.pairs(8, 9, t52);
        const Q t53 = shuffled<1, 0, 3, 2>(t50);
        const Q t54 = flipped<0, 1, 0, 1>(t53);
        // complex block of 2
        const Q t55 = t48 + t54;
        io.pairs(4, 5, t55);
        const Q t56 = t48 - t54;
        io.pairs(12, 13, t56);
        // complex block of 8
        const Q t57 = c[0] * t35;
        const Q t58 = shuffled<1, 0, 3, 2>(t57);
        const Q t59 = flipped<0, 1, 0, 1>(t58);
        const Q t60 = t57 + t59;
        const Q t61 = c[0] * t46;
        const Q t62 = shuffled<1, 0, 3, 2>(t61);
        const Q t63 = flipped<0, 1, 0, 1>(t62);
        const Q t64 = t61 + t63;
        const Q t65 = shuffled<1, 0, 3, 2>(t41);
        const Q t66 = flipped<0, 1, 0, 1>(t65);
        // complex block of 2
        const Q t67 = t30 + t66;
        const Q t68 = t30 - t66;
        const Q t69 = shuffled<1, 0, 3, 2>(t64);
        const Q t70 = flipped<0, 1, 0, 1>(t69);
        // complex block of 2
        const Q t71 = t60 + t70;
        const Q t72 = t60 - t70;
        // complex block of 2
        const Q t73 = t67 + t71;
        io.pairs(2, 3, t73);
        const Q t74 = t67 - t71;
        io.pairs(10, 11, t74);
        const Q t75 = shuffled<1, 0, 3, 2>(t72);
        const Q t76 = flipped<0, 1, 0, 1>(t75);
        // complex block of 2
        const Q t77 = t68 + t76;
        io.pairs(6, 7, t77);
        const Q t78 = t68 - t76;
        io.pairs(14, 15, t78);
    }
};

}  // namespace zulg
