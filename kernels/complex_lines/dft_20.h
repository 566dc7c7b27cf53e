// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 20.
// Complex DFT of 20 points, prime-factor, order 4, 5; two lines of a stage to a register.
// 28 sums, 24 differences, 16 products of registers, which do the 312 steps of the graph, those with
// `scale` included; 27 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<20> {
    static constexpr int steps = 312;  // with `scale`
    static constexpr double inverseRoot = 0.22360679774997896;  // 1/sqrt(20), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_16 = io.pairs(0, 16);
        const Q x10_6 = io.pairs(10, 6);
        // complex block of 2
        const Q t0 = x0_16 + x10_6;
        const Q t1 = x0_16 - x10_6;
        const Q x5_1 = io.pairs(5, 1);
        const Q x15_11 = io.pairs(15, 11);
        // complex block of 2
        const Q t2 = x5_1 + x15_11;
        const Q t3 = x5_1 - x15_11;
        const Q x12_17 = io.pairs(12, 17);
        const Q x2_7 = io.pairs(2, 7);
        // complex block of 2
        const Q t4 = x12_17 + x2_7;
        const Q t5 = x12_17 - x2_7;
        const Q x13_9 = io.pairs(13, 9);
        const Q x3_19 = io.pairs(3, 19);
        // complex block of 2
        const Q t6 = x13_9 + x3_19;
        const Q t7 = x13_9 - x3_19;
        const Q x8_4 = io.pairs(8, 4);
        const Q x18_14 = io.pairs(18, 14);
        // complex block of 2
        const Q t8 = x8_4 + x18_14;
        const Q t9 = x8_4 - x18_14;
        // complex block of 2
        const Q t10 = t8 + t6;
        const Q t11 = shuffled<1, 0, 3, 2>(t7);
        const Q t12 = flipped<0, 1, 0, 1>(t11);
        // complex block of 2
        const Q t13 = t9 + t12;
        const Q t14 = shuffled<0, 1, 4, 5>(t4, t5);
        const Q t15 = shuffled<1, 0, 3, 2>(t5);
        const Q t16 = shuffled<2, 3, 6, 7>(t4, t15);
        const Q t17 = flipped<0, 0, 0, 1>(t16);
        // complex block of 2
        const Q t18 = t14 + t17;
        // complex block of 2
        const Q t19 = t0 + t2;
        const Q t20 = shuffled<1, 0, 3, 2>(t3);
        const Q t21 = flipped<0, 1, 0, 1>(t20);
        // complex block of 2
        const Q t22 = t1 + t21;
        const Q t23 = shuffled<2, 3, 6, 7>(t10, t13);
        const Q t24 = shuffled<2, 3, 6, 7>(t19, t22);
        // complex block of 5, multiplier 4
        const Q t25 = t23 + t24;
        const Q t26 = t23 - t24;
        const Q t27 = shuffled<0, 1, 4, 5>(t10, t13);
        const Q t28 = t18 + t27;
        const Q t29 = t18 - t27;
        // complex block of 2
        const Q t30 = t8 - t6;
        // complex block of 2
        const Q t31 = t9 - t12;
        // complex block of 2
        const Q t32 = t14 - t17;
        // complex block of 2
        const Q t33 = t0 - t2;
        // complex block of 2
        const Q t34 = t1 - t21;
        const Q t35 = shuffled<2, 3, 6, 7>(t30, t31);
        const Q t36 = shuffled<2, 3, 6, 7>(t33, t34);
        // complex block of 5, multiplier 4
        const Q t37 = t35 + t36;
        const Q t38 = t35 - t36;
        const Q t39 = shuffled<0, 1, 4, 5>(t30, t31);
        const Q t40 = t32 + t39;
        const Q t41 = t32 - t39;
        // complex block of 5, multiplier 4
        const Q t42 = t25 + t28;
        const Q t43 = shuffled<0, 1, 4, 5>(t19, t22);
        const Q t44 = t42 + t43;
        const Q t45 = c[0] * t25;
        const Q t46 = c[1] * t28;
        const Q t47 = t45 - t46;
        const Q t48 = c[2] * t26;
        const Q t49 = c[3] * t29;
        const Q t50 = t48 - t49;
        const Q t51 = t47 + t43;
        const Q t52 = shuffled<1, 0, 3, 2>(t50);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t51 + t53;
        const Q t55 = shuffled<0, 1, 6, 7>(t44, t54);
        io.pairs(0, 1, t55);
        const Q t56 = t51 - t53;
        const Q t57 = shuffled<0, 1, 6, 7>(t56, t44);
        io.pairs(4, 5, t57);
        const Q t58 = c[1] * t25;
        const Q t59 = t43 - t58;
        const Q t60 = c[3] * t26;
        const Q t61 = c[2] * t29;
        const Q t62 = t60 + t61;
        const Q t63 = c[0] * t28;
        const Q t64 = t59 + t63;
        const Q t65 = shuffled<1, 0, 3, 2>(t62);
        const Q t66 = flipped<0, 1, 0, 1>(t65);
        const Q t67 = t64 + t66;
        const Q t68 = shuffled<0, 1, 6, 7>(t54, t67);
        io.pairs(16, 17, t68);
        const Q t69 = t64 - t66;
        const Q t70 = shuffled<0, 1, 6, 7>(t69, t56);
        io.pairs(8, 9, t70);
        const Q t71 = shuffled<0, 1, 6, 7>(t67, t69);
        io.pairs(12, 13, t71);
        // complex block of 5, multiplier 4
        const Q t72 = t37 + t40;
        const Q t73 = shuffled<0, 1, 4, 5>(t33, t34);
        const Q t74 = t72 + t73;
        const Q t75 = c[0] * t37;
        const Q t76 = c[1] * t40;
        const Q t77 = t75 - t76;
        const Q t78 = c[2] * t38;
        const Q t79 = c[3] * t41;
        const Q t80 = t78 - t79;
        const Q t81 = t77 + t73;
        const Q t82 = shuffled<1, 0, 3, 2>(t80);
        const Q t83 = flipped<0, 1, 0, 1>(t82);
        const Q t84 = t81 + t83;
        const Q t85 = shuffled<0, 1, 6, 7>(t74, t84);
        io.pairs(10, 11, t85);
        const Q t86 = t81 - t83;
        const Q t87 = shuffled<0, 1, 6, 7>(t86, t74);
        io.pairs(14, 15, t87);
        const Q t88 = c[1] * t37;
        const Q t89 = t73 - t88;
        const Q t90 = c[3] * t38;
        const Q t91 = c[2] * t41;
        const Q t92 = t90 + t91;
        const Q t93 = c[0] * t40;
        const Q t94 = t89 + t93;
        const Q t95 = shuffled<1, 0, 3, 2>(t92);
        const Q t96 = flipped<0, 1, 0, 1>(t95);
        const Q t97 = t94 + t96;
        const Q t98 = shuffled<0, 1, 6, 7>(t84, t97);
        io.pairs(6, 7, t98);
        const Q t99 = t94 - t96;
        const Q t100 = shuffled<0, 1, 6, 7>(t97, t99);
        io.pairs(2, 3, t100);
        const Q t101 = shuffled<0, 1, 6, 7>(t99, t86);
        io.pairs(18, 19, t101);
    }
};

}  // namespace zulg
