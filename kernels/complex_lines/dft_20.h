// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 20.
// Complex DFT of 20 points, prime-factor, order 4, 5; two lines of a stage to a register.
// 28 sums, 24 differences, 16 products of registers, which do the 312 steps of the graph, those with
// `scale` included; 17 shuffles, 7 changes of sign.
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
        const Q x0_4 = io.pairs(0, 4);
        const Q x10_14 = io.pairs(10, 14);
        // complex block of 2
        const Q t0 = x0_4 + x10_14;
        const Q t1 = x0_4 - x10_14;
        const Q x16_1 = io.pairs(16, 1);
        const Q x6_11 = io.pairs(6, 11);
        // complex block of 2
        const Q t2 = x16_1 + x6_11;
        const Q t3 = x16_1 - x6_11;
        const Q x5_9 = io.pairs(5, 9);
        const Q x15_19 = io.pairs(15, 19);
        // complex block of 2
        const Q t4 = x5_9 + x15_19;
        const Q t5 = x5_9 - x15_19;
        // complex block of 2
        const Q t6 = t0 + t4;
        const Q t7 = shuffled<1, 0, 3, 2>(t5);
        const Q t8 = flipped<0, 1, 0, 1>(t7);
        // complex block of 2
        const Q t9 = t1 + t8;
        const Q t10 = shuffled<0, 1, 4, 5>(t2, t3);
        const Q t11 = shuffled<1, 0, 3, 2>(t3);
        const Q t12 = shuffled<2, 3, 6, 7>(t2, t11);
        const Q t13 = flipped<0, 0, 0, 1>(t12);
        // complex block of 2
        const Q t14 = t10 + t13;
        const Q t15 = shuffled<2, 3, 6, 7>(t6, t9);
        // complex block of 5, multiplier 4
        const Q t16 = t15 + t14;
        const Q t17 = t15 - t14;
        // complex block of 2
        const Q t18 = t0 - t4;
        // complex block of 2
        const Q t19 = t1 - t8;
        // complex block of 2
        const Q t20 = t10 - t13;
        const Q t21 = shuffled<2, 3, 6, 7>(t18, t19);
        // complex block of 5, multiplier 4
        const Q t22 = t21 + t20;
        const Q t23 = t21 - t20;
        const Q x8_12 = io.pairs(8, 12);
        const Q x18_2 = io.pairs(18, 2);
        // complex block of 2
        const Q t24 = x8_12 + x18_2;
        const Q t25 = x8_12 - x18_2;
        const Q x13_17 = io.pairs(13, 17);
        const Q x3_7 = io.pairs(3, 7);
        // complex block of 2
        const Q t26 = x13_17 + x3_7;
        const Q t27 = x13_17 - x3_7;
        // complex block of 2
        const Q t28 = t24 + t26;
        const Q t29 = shuffled<1, 0, 3, 2>(t27);
        const Q t30 = flipped<0, 1, 0, 1>(t29);
        // complex block of 2
        const Q t31 = t25 + t30;
        const Q t32 = shuffled<2, 3, 6, 7>(t28, t31);
        const Q t33 = shuffled<0, 1, 4, 5>(t28, t31);
        // complex block of 5, multiplier 4
        const Q t34 = t32 + t33;
        const Q t35 = t32 - t33;
        // complex block of 2
        const Q t36 = t24 - t26;
        // complex block of 2
        const Q t37 = t25 - t30;
        const Q t38 = shuffled<2, 3, 6, 7>(t36, t37);
        const Q t39 = shuffled<0, 1, 4, 5>(t36, t37);
        // complex block of 5, multiplier 4
        const Q t40 = t38 + t39;
        const Q t41 = t38 - t39;
        // complex block of 5, multiplier 4
        const Q t42 = t16 + t34;
        const Q t43 = shuffled<0, 1, 4, 5>(t6, t9);
        const Q t44 = t42 + t43;
        io.pairs(0, 5, t44);
        const Q t45 = c[0] * t16;
        const Q t46 = c[1] * t34;
        const Q t47 = t45 - t46;
        const Q t48 = c[2] * t17;
        const Q t49 = c[3] * t35;
        const Q t50 = t48 - t49;
        const Q t51 = t47 + t43;
        const Q t52 = shuffled<1, 0, 3, 2>(t50);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t51 + t53;
        io.pairs(16, 1, t54);
        const Q t55 = t51 - t53;
        io.pairs(4, 9, t55);
        const Q t56 = c[1] * t16;
        const Q t57 = t43 - t56;
        const Q t58 = c[3] * t17;
        const Q t59 = c[2] * t35;
        const Q t60 = t58 + t59;
        const Q t61 = c[0] * t34;
        const Q t62 = t57 + t61;
        const Q t63 = shuffled<1, 0, 3, 2>(t60);
        const Q t64 = flipped<0, 1, 0, 1>(t63);
        const Q t65 = t62 + t64;
        io.pairs(12, 17, t65);
        const Q t66 = t62 - t64;
        io.pairs(8, 13, t66);
        // complex block of 5, multiplier 4
        const Q t67 = t22 + t40;
        const Q t68 = shuffled<0, 1, 4, 5>(t18, t19);
        const Q t69 = t67 + t68;
        io.pairs(10, 15, t69);
        const Q t70 = c[0] * t22;
        const Q t71 = c[1] * t40;
        const Q t72 = t70 - t71;
        const Q t73 = c[2] * t23;
        const Q t74 = c[3] * t41;
        const Q t75 = t73 - t74;
        const Q t76 = t72 + t68;
        const Q t77 = shuffled<1, 0, 3, 2>(t75);
        const Q t78 = flipped<0, 1, 0, 1>(t77);
        const Q t79 = t76 + t78;
        io.pairs(6, 11, t79);
        const Q t80 = t76 - t78;
        io.pairs(14, 19, t80);
        const Q t81 = c[1] * t22;
        const Q t82 = t68 - t81;
        const Q t83 = c[3] * t23;
        const Q t84 = c[2] * t41;
        const Q t85 = t83 + t84;
        const Q t86 = c[0] * t40;
        const Q t87 = t82 + t86;
        const Q t88 = shuffled<1, 0, 3, 2>(t85);
        const Q t89 = flipped<0, 1, 0, 1>(t88);
        const Q t90 = t87 + t89;
        io.pairs(2, 7, t90);
        const Q t91 = t87 - t89;
        io.pairs(18, 3, t91);
    }
};

}  // namespace zulg
