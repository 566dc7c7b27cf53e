// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 15.
// Complex DFT of 15 points, prime-factor, order 3, 5; two lines of a stage to a register.
// 27 sums, 23 differences, 22 products of registers, which do the 254 steps of the graph, those with
// `scale` included; 14 shuffles, 4 changes of sign.
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
        const Q x5_8 = io.pairs(5, 8);
        const Q x10_13 = io.pairs(10, 13);
        // complex block of 3, multiplier 2
        const Q t0 = x5_8 + x10_13;
        const Q t1 = x5_8 - x10_13;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[4] * t0;
        const Q t4 = x0_3 - t3;
        const Q t5 = Q(-c[5], c[5], -c[5], c[5]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x11_14 = io.pairs(11, 14);
        const Q x1_4 = io.pairs(1, 4);
        // complex block of 3, multiplier 2
        const Q t9 = x11_14 + x1_4;
        const Q t10 = x11_14 - x1_4;
        const Q x6_9 = io.pairs(6, 9);
        const Q t11 = t9 + x6_9;
        const Q t12 = c[4] * t9;
        const Q t13 = x6_9 - t12;
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
        const Q t27 = shuffled<2, 3, 6, 7>(t2, t8);
        const Q t28 = joined(t20, t26);
        // complex block of 5, multiplier 3
        const Q t29 = t27 + t28;
        const Q t30 = shuffled<2, 3, 6, 7>(t11, t17);
        const Q t31 = shuffled<0, 1, 4, 5>(t11, t17);
        const Q t32 = t30 + t31;
        const Q t33 = t29 + t32;
        const Q t34 = c[0] * t29;
        const Q t35 = c[1] * t32;
        const Q t36 = t34 - t35;
        const Q t37 = shuffled<0, 1, 4, 5>(t2, t8);
        const Q t38 = c[1] * t29;
        const Q t39 = t37 - t38;
        const Q t40 = t27 - t28;
        const Q t41 = t30 - t31;
        const Q t42 = t33 + t37;
        io.pairs(0, 5, t42);
        const Q t43 = t36 + t37;
        const Q t44 = c[2] * t40;
        const Q t45 = c[3] * t41;
        const Q t46 = t44 - t45;
        const Q t47 = shuffled<1, 0, 3, 2>(t46);
        const Q t48 = flipped<0, 1, 0, 1>(t47);
        const Q t49 = t43 + t48;
        io.pairs(6, 11, t49);
        const Q t50 = t43 - t48;
        io.pairs(9, 14, t50);
        const Q t51 = c[0] * t32;
        const Q t52 = t39 + t51;
        const Q t53 = c[3] * t40;
        const Q t54 = c[2] * t41;
        const Q t55 = t53 + t54;
        const Q t56 = shuffled<1, 0, 3, 2>(t55);
        const Q t57 = flipped<0, 1, 0, 1>(t56);
        const Q t58 = t52 + t57;
        io.pairs(12, 2, t58);
        const Q t59 = t52 - t57;
        io.pairs(3, 8, t59);
        const P t60 = part<1>(t7);
        // complex block of 5, multiplier 3
        const P t61 = t60 + t25;
        const P t62 = part<1>(t16);
        const P t63 = part<0>(t16);
        const P t64 = t62 + t63;
        const P t65 = t61 + t64;
        const P t66 = c[0] * t61;
        const P t67 = c[1] * t64;
        const P t68 = t66 - t67;
        const P t69 = part<0>(t7);
        const P t70 = c[1] * t61;
        const P t71 = t69 - t70;
        const P t72 = t60 - t25;
        const P t73 = t62 - t63;
        const P t74 = t65 + t69;
        io.pair(10, t74);
        const P t75 = t68 + t69;
        const P t76 = c[2] * t72;
        const P t77 = c[3] * t73;
        const P t78 = t76 - t77;
        const P t79 = shuffled<1, 0>(t78);
        const P t80 = flipped<0, 1>(t79);
        const P t81 = t75 + t80;
        io.pair(1, t81);
        const P t82 = t75 - t80;
        io.pair(4, t82);
        const P t83 = c[0] * t64;
        const P t84 = t71 + t83;
        const P t85 = c[3] * t72;
        const P t86 = c[2] * t73;
        const P t87 = t85 + t86;
        const P t88 = shuffled<1, 0>(t87);
        const P t89 = flipped<0, 1>(t88);
        const P t90 = t84 + t89;
        io.pair(7, t90);
        const P t91 = t84 - t89;
        io.pair(13, t91);
    }
};

}  // namespace zulg
