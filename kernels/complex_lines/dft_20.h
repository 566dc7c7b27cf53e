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
        const Q x5_9 = io.pairs(5, 9);
        const Q x15_19 = io.pairs(15, 19);
        // complex block of 2
        const Q t2 = x5_9 + x15_19;
        const Q t3 = x5_9 - x15_19;
        // complex block of 2
        const Q t4 = t0 + t2;
        const Q t5 = t0 - t2;
        const Q t6 = shuffled<1, 0, 3, 2>(t3);
        const Q t7 = flipped<0, 1, 0, 1>(t6);
        // complex block of 2
        const Q t8 = t1 + t7;
        const Q t9 = t1 - t7;
        const Q x8_12 = io.pairs(8, 12);
        const Q x18_2 = io.pairs(18, 2);
        // complex block of 2
        const Q t10 = x8_12 + x18_2;
        const Q t11 = x8_12 - x18_2;
        const Q x13_17 = io.pairs(13, 17);
        const Q x3_7 = io.pairs(3, 7);
        // complex block of 2
        const Q t12 = x13_17 + x3_7;
        const Q t13 = x13_17 - x3_7;
        // complex block of 2
        const Q t14 = t10 + t12;
        const Q t15 = t10 - t12;
        const Q t16 = shuffled<1, 0, 3, 2>(t13);
        const Q t17 = flipped<0, 1, 0, 1>(t16);
        // complex block of 2
        const Q t18 = t11 + t17;
        const Q t19 = t11 - t17;
        const Q x16_1 = io.pairs(16, 1);
        const Q x6_11 = io.pairs(6, 11);
        // complex block of 2
        const Q t20 = x16_1 + x6_11;
        const Q t21 = x16_1 - x6_11;
        const Q t22 = shuffled<0, 1, 4, 5>(t20, t21);
        const Q t23 = shuffled<2, 3, 6, 7>(t20, t21);
        const Q t24 = shuffled<0, 1, 3, 2>(t23);
        const Q t25 = flipped<0, 0, 0, 1>(t24);
        // complex block of 2
        const Q t26 = t22 + t25;
        const Q t27 = t22 - t25;
        const Q t28 = shuffled<2, 3, 6, 7>(t4, t8);
        // complex block of 5, multiplier 4
        const Q t29 = t28 + t26;
        const Q t30 = t28 - t26;
        const Q t31 = shuffled<2, 3, 6, 7>(t14, t18);
        const Q t32 = shuffled<0, 1, 4, 5>(t14, t18);
        const Q t33 = t31 + t32;
        const Q t34 = t31 - t32;
        const Q t35 = t29 + t33;
        const Q t36 = shuffled<0, 1, 4, 5>(t4, t8);
        const Q t37 = t35 + t36;
        io.pairs(0, 5, t37);
        const Q t38 = c[0] * t29;
        const Q t39 = c[1] * t33;
        const Q t40 = t38 - t39;
        const Q t41 = t40 + t36;
        const Q t42 = c[2] * t30;
        const Q t43 = c[3] * t34;
        const Q t44 = t42 - t43;
        const Q t45 = shuffled<1, 0, 3, 2>(t44);
        const Q t46 = flipped<0, 1, 0, 1>(t45);
        const Q t47 = t41 + t46;
        io.pairs(16, 1, t47);
        const Q t48 = t41 - t46;
        io.pairs(4, 9, t48);
        const Q t49 = c[1] * t29;
        const Q t50 = t36 - t49;
        const Q t51 = c[0] * t33;
        const Q t52 = t50 + t51;
        const Q t53 = c[3] * t30;
        const Q t54 = c[2] * t34;
        const Q t55 = t53 + t54;
        const Q t56 = shuffled<1, 0, 3, 2>(t55);
        const Q t57 = flipped<0, 1, 0, 1>(t56);
        const Q t58 = t52 + t57;
        io.pairs(12, 17, t58);
        const Q t59 = t52 - t57;
        io.pairs(8, 13, t59);
        const Q t60 = shuffled<2, 3, 6, 7>(t5, t9);
        // complex block of 5, multiplier 4
        const Q t61 = t60 + t27;
        const Q t62 = t60 - t27;
        const Q t63 = shuffled<2, 3, 6, 7>(t15, t19);
        const Q t64 = shuffled<0, 1, 4, 5>(t15, t19);
        const Q t65 = t63 + t64;
        const Q t66 = t63 - t64;
        const Q t67 = t61 + t65;
        const Q t68 = shuffled<0, 1, 4, 5>(t5, t9);
        const Q t69 = t67 + t68;
        io.pairs(10, 15, t69);
        const Q t70 = c[0] * t61;
        const Q t71 = c[1] * t65;
        const Q t72 = t70 - t71;
        const Q t73 = t72 + t68;
        const Q t74 = c[2] * t62;
        const Q t75 = c[3] * t66;
        const Q t76 = t74 - t75;
        const Q t77 = shuffled<1, 0, 3, 2>(t76);
        const Q t78 = flipped<0, 1, 0, 1>(t77);
        const Q t79 = t73 + t78;
        io.pairs(6, 11, t79);
        const Q t80 = t73 - t78;
        io.pairs(14, 19, t80);
        const Q t81 = c[1] * t61;
        const Q t82 = t68 - t81;
        const Q t83 = c[0] * t65;
        const Q t84 = t82 + t83;
        const Q t85 = c[3] * t62;
        const Q t86 = c[2] * t66;
        const Q t87 = t85 + t86;
        const Q t88 = shuffled<1, 0, 3, 2>(t87);
        const Q t89 = flipped<0, 1, 0, 1>(t88);
        const Q t90 = t84 + t89;
        io.pairs(2, 7, t90);
        const Q t91 = t84 - t89;
        io.pairs(18, 3, t91);
    }
};

}  // namespace zulg
