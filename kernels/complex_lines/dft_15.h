// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 15.
// Complex DFT of 15 points, prime-factor, order 3, 5; two lines of a stage to a register.
// 27 sums, 23 differences, 22 products of registers, which do the 254 steps of the graph, those with
// `scale` included; 19 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<15> {
    static constexpr int steps = 254;  // with `scale`
    static constexpr double inverseRoot = 0.2581988897471611;  // 1/sqrt(15), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x5_11 = io.pairs(5, 11);
        const Q x10_1 = io.pairs(10, 1);
        // complex block of 3, multiplier 2
        const Q t0 = x5_11 + x10_1;
        const Q t1 = x5_11 - x10_1;
        const Q x0_6 = io.pairs(0, 6);
        const Q t2 = t0 + x0_6;
        const Q t3 = c[4] * t0;
        const Q t4 = x0_6 - t3;
        const Q t5 = Q(-c[5], c[5], -c[5], c[5]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x8_14 = io.pairs(8, 14);
        const Q x13_4 = io.pairs(13, 4);
        // complex block of 3, multiplier 2
        const Q t9 = x8_14 + x13_4;
        const Q t10 = x8_14 - x13_4;
        const Q x3_9 = io.pairs(3, 9);
        const Q t11 = t9 + x3_9;
        const Q t12 = c[4] * t9;
        const Q t13 = x3_9 - t12;
        const Q t14 = Q(-c[5], c[5], -c[5], c[5]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const P x2 = io.pair(2);
        const P x7 = io.pair(7);
        // complex block of 3, multiplier 2
        const P t18 = x2 + x7;
        const P t19 = x2 - x7;
        const P x12 = io.pair(12);
        const P t20 = t18 + x12;
        const P t21 = c[4] * t18;
        const P t22 = x12 - t21;
        const P t23 = P(-c[5], c[5]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P t27 = part<0>(t17);
        // complex block of 5, multiplier 3
        const P t28 = t27 + t26;
        const P t29 = t27 - t26;
        const P t30 = part<1>(t17);
        const P t31 = part<1>(t8);
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P t34 = t28 + t32;
        const P t35 = part<0>(t8);
        const P t36 = t34 + t35;
        io.pair(5, t36);
        const P t37 = c[0] * t28;
        const P t38 = c[1] * t32;
        const P t39 = t37 - t38;
        const P t40 = t39 + t35;
        const P t41 = c[2] * t29;
        const P t42 = c[3] * t33;
        const P t43 = t41 - t42;
        const P t44 = shuffled<1, 0>(t43);
        const P t45 = flipped<0, 1>(t44);
        const P t46 = t40 + t45;
        io.pair(11, t46);
        const P t47 = t40 - t45;
        io.pair(14, t47);
        const P t48 = c[1] * t28;
        const P t49 = t35 - t48;
        const P t50 = c[0] * t32;
        const P t51 = t49 + t50;
        const P t52 = c[3] * t29;
        const P t53 = c[2] * t33;
        const P t54 = t52 + t53;
        const P t55 = shuffled<1, 0>(t54);
        const P t56 = flipped<0, 1>(t55);
        const P t57 = t51 + t56;
        io.pair(2, t57);
        const P t58 = t51 - t56;
        io.pair(8, t58);
        const Q t59 = shuffled<0, 1, 4, 5>(t11, t16);
        const Q t60 = joined(t20, t25);
        // complex block of 5, multiplier 3
        const Q t61 = t59 + t60;
        const Q t62 = t59 - t60;
        const Q t63 = shuffled<2, 3, 6, 7>(t11, t16);
        const Q t64 = shuffled<2, 3, 6, 7>(t2, t7);
        const Q t65 = t63 + t64;
        const Q t66 = t63 - t64;
        const Q t67 = t61 + t65;
        const Q t68 = shuffled<0, 1, 4, 5>(t2, t7);
        const Q t69 = t67 + t68;
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
        const Q t80 = shuffled<0, 1, 6, 7>(t69, t79);
        io.pairs(0, 1, t80);
        const Q t81 = t73 - t78;
        const Q t82 = shuffled<0, 1, 6, 7>(t81, t69);
        io.pairs(9, 10, t82);
        const Q t83 = c[1] * t61;
        const Q t84 = t68 - t83;
        const Q t85 = c[0] * t65;
        const Q t86 = t84 + t85;
        const Q t87 = c[3] * t62;
        const Q t88 = c[2] * t66;
        const Q t89 = t87 + t88;
        const Q t90 = shuffled<1, 0, 3, 2>(t89);
        const Q t91 = flipped<0, 1, 0, 1>(t90);
        const Q t92 = t86 + t91;
        const Q t93 = shuffled<0, 1, 6, 7>(t79, t92);
        io.pairs(6, 7, t93);
        const Q t94 = t86 - t91;
        const Q t95 = shuffled<0, 1, 6, 7>(t94, t81);
        io.pairs(3, 4, t95);
        const Q t96 = shuffled<0, 1, 6, 7>(t92, t94);
        io.pairs(12, 13, t96);
    }
};

}  // namespace zulg
