// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 14.
// Complex DFT of 14 points, prime-factor, order 2, 7; two lines of a stage to a register.
// 19 sums, 19 differences, 18 products of registers, which do the 248 steps of the graph, those with
// `scale` included; 10 shuffles, 3 changes of sign.
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
        const Q x0_2 = io.pairs(0, 2);
        const Q x7_9 = io.pairs(7, 9);
        // complex block of 2
        const Q t0 = x0_2 + x7_9;
        const Q t1 = x0_2 - x7_9;
        const P x12 = io.pair(12);
        const P x5 = io.pair(5);
        // complex block of 2
        const P t2 = x12 + x5;
        const P t3 = x12 - x5;
        const Q t4 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t5 = joined(t2, t3);
        // complex block of 7, multiplier 2
        const Q t6 = t4 + t5;
        const Q t7 = t4 - t5;
        const Q x8_10 = io.pairs(8, 10);
        const Q x1_3 = io.pairs(1, 3);
        // complex block of 2
        const Q t8 = x8_10 + x1_3;
        const Q t9 = x8_10 - x1_3;
        const Q x4_6 = io.pairs(4, 6);
        const Q x11_13 = io.pairs(11, 13);
        // complex block of 2
        const Q t10 = x4_6 + x11_13;
        const Q t11 = x4_6 - x11_13;
        const Q t12 = shuffled<2, 3, 6, 7>(t8, t9);
        const Q t13 = shuffled<0, 1, 4, 5>(t10, t11);
        // complex block of 7, multiplier 2
        const Q t14 = t12 + t13;
        const Q t15 = t12 - t13;
        const Q t16 = shuffled<0, 1, 4, 5>(t8, t9);
        const Q t17 = shuffled<2, 3, 6, 7>(t10, t11);
        const Q t18 = t16 + t17;
        const Q t19 = t16 - t17;
        const Q t20 = t6 + t14;
        const Q t21 = t20 + t18;
        const Q t22 = shuffled<0, 1, 4, 5>(t0, t1);
        const Q t23 = t21 + t22;
        io.pairs(0, 7, t23);
        const Q t24 = c[0] * t6;
        const Q t25 = c[1] * t14;
        const Q t26 = t24 - t25;
        const Q t27 = c[2] * t18;
        const Q t28 = t26 - t27;
        const Q t29 = c[3] * t7;
        const Q t30 = c[4] * t15;
        const Q t31 = t29 - t30;
        const Q t32 = c[5] * t19;
        const Q t33 = t31 - t32;
        const Q t34 = t28 + t22;
        const Q t35 = shuffled<1, 0, 3, 2>(t33);
        const Q t36 = flipped<0, 1, 0, 1>(t35);
        const Q t37 = t34 + t36;
        io.pairs(8, 1, t37);
        const Q t38 = t34 - t36;
        io.pairs(6, 13, t38);
        const Q t39 = c[1] * t6;
        const Q t40 = t22 - t39;
        const Q t41 = c[2] * t14;
        const Q t42 = t40 - t41;
        const Q t43 = c[4] * t7;
        const Q t44 = c[5] * t15;
        const Q t45 = t43 + t44;
        const Q t46 = c[3] * t19;
        const Q t47 = t45 + t46;
        const Q t48 = c[0] * t18;
        const Q t49 = t42 + t48;
        const Q t50 = shuffled<1, 0, 3, 2>(t47);
        const Q t51 = flipped<0, 1, 0, 1>(t50);
        const Q t52 = t49 + t51;
        io.pairs(2, 9, t52);
        const Q t53 = t49 - t51;
        io.pairs(12, 5, t53);
        const Q t54 = c[2] * t6;
        const Q t55 = t22 - t54;
        const Q t56 = c[0] * t14;
        const Q t57 = t55 + t56;
        const Q t58 = c[5] * t7;
        const Q t59 = c[3] * t15;
        const Q t60 = t58 + t59;
        const Q t61 = c[4] * t19;
        const Q t62 = t60 - t61;
        const Q t63 = c[1] * t18;
        const Q t64 = t57 - t63;
        const Q t65 = shuffled<1, 0, 3, 2>(t62);
        const Q t66 = flipped<0, 1, 0, 1>(t65);
        const Q t67 = t64 + t66;
        io.pairs(10, 3, t67);
        const Q t68 = t64 - t66;
        io.pairs(4, 11, t68);
    }
};

}  // namespace zulg
