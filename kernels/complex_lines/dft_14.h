// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 14.
// Complex DFT of 14 points, prime-factor, order 2, 7; two lines of a stage to a register.
// 19 sums, 19 differences, 18 products of registers, which do the 248 steps of the graph, those with
// `scale` included; 17 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<14> {
    static constexpr int steps = 248;  // with `scale`
    static constexpr double inverseRoot = 0.2672612419124244;  // 1/sqrt(14), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_8 = io.pairs(0, 8);
        const Q x7_1 = io.pairs(7, 1);
        // complex block of 2
        const Q t0 = x0_8 + x7_1;
        const Q t1 = x0_8 - x7_1;
        const P x6 = io.pair(6);
        const P x13 = io.pair(13);
        // complex block of 2
        const P t2 = x6 + x13;
        const P t3 = x6 - x13;
        const Q t4 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t5 = joined(t2, t3);
        // complex block of 7, multiplier 2
        const Q t6 = t4 + t5;
        const Q t7 = t4 - t5;
        const Q x2_10 = io.pairs(2, 10);
        const Q x9_3 = io.pairs(9, 3);
        // complex block of 2
        const Q t8 = x2_10 + x9_3;
        const Q t9 = x2_10 - x9_3;
        const Q x4_12 = io.pairs(4, 12);
        const Q x11_5 = io.pairs(11, 5);
        // complex block of 2
        const Q t10 = x4_12 + x11_5;
        const Q t11 = x4_12 - x11_5;
        const Q t12 = shuffled<0, 1, 4, 5>(t8, t9);
        const Q t13 = shuffled<2, 3, 6, 7>(t10, t11);
        // complex block of 7, multiplier 2
        const Q t14 = t12 + t13;
        const Q t15 = t12 - t13;
        const Q t16 = shuffled<2, 3, 6, 7>(t8, t9);
        const Q t17 = shuffled<0, 1, 4, 5>(t10, t11);
        const Q t18 = t16 + t17;
        const Q t19 = t16 - t17;
        const Q t20 = t14 + t18;
        const Q t21 = t20 + t6;
        const Q t22 = shuffled<0, 1, 4, 5>(t0, t1);
        const Q t23 = t21 + t22;
        const Q t24 = c[0] * t14;
        const Q t25 = c[1] * t18;
        const Q t26 = t24 - t25;
        const Q t27 = c[2] * t6;
        const Q t28 = t26 - t27;
        const Q t29 = c[3] * t15;
        const Q t30 = c[4] * t19;
        const Q t31 = t29 - t30;
        const Q t32 = c[5] * t7;
        const Q t33 = t31 - t32;
        const Q t34 = t28 + t22;
        const Q t35 = shuffled<1, 0, 3, 2>(t33);
        const Q t36 = flipped<0, 1, 0, 1>(t35);
        const Q t37 = t34 + t36;
        const Q t38 = shuffled<0, 1, 6, 7>(t23, t37);
        io.pairs(0, 1, t38);
        const Q t39 = t34 - t36;
        const Q t40 = shuffled<0, 1, 6, 7>(t39, t23);
        io.pairs(6, 7, t40);
        const Q t41 = c[1] * t14;
        const Q t42 = t22 - t41;
        const Q t43 = c[2] * t18;
        const Q t44 = t42 - t43;
        const Q t45 = c[4] * t15;
        const Q t46 = c[5] * t19;
        const Q t47 = t45 + t46;
        const Q t48 = c[3] * t7;
        const Q t49 = t47 + t48;
        const Q t50 = c[0] * t6;
        const Q t51 = t44 + t50;
        const Q t52 = shuffled<1, 0, 3, 2>(t49);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t51 + t53;
        const Q t55 = shuffled<0, 1, 6, 7>(t37, t54);
        io.pairs(8, 9, t55);
        const Q t56 = t51 - t53;
        const Q t57 = shuffled<0, 1, 6, 7>(t56, t39);
        io.pairs(12, 13, t57);
        const Q t58 = c[2] * t14;
        const Q t59 = t22 - t58;
        const Q t60 = c[0] * t18;
        const Q t61 = t59 + t60;
        const Q t62 = c[5] * t15;
        const Q t63 = c[3] * t19;
        const Q t64 = t62 + t63;
        const Q t65 = c[4] * t7;
        const Q t66 = t64 - t65;
        const Q t67 = c[1] * t6;
        const Q t68 = t61 - t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t66);
        const Q t70 = flipped<0, 1, 0, 1>(t69);
        const Q t71 = t68 + t70;
        const Q t72 = shuffled<0, 1, 6, 7>(t54, t71);
        io.pairs(2, 3, t72);
        const Q t73 = t68 - t70;
        const Q t74 = shuffled<0, 1, 6, 7>(t73, t56);
        io.pairs(4, 5, t74);
        const Q t75 = shuffled<0, 1, 6, 7>(t71, t73);
        io.pairs(10, 11, t75);
    }
};

}  // namespace zulg
