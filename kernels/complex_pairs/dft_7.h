// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 7.
// Complex DFT of 7 points, direct symmetric form; one complex number to a register.
// 15 sums, 15 differences, 18 products of registers, which do the 110 steps of the graph, those with
// `scale` included; 3 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<7> {
    static constexpr int steps = 110;  // with `scale`
    static constexpr double inverseRoot = 0.3779644730092272;  // 1/sqrt(7), for `scale`
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
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x6 = io.pair(6);
        // complex block of 7
        const P t0 = x1 + x6;
        const P t1 = x1 - x6;
        const P x5 = io.pair(5);
        const P x2 = io.pair(2);
        const P t2 = x5 + x2;
        const P t3 = x5 - x2;
        const P x4 = io.pair(4);
        const P x3 = io.pair(3);
        const P t4 = x4 + x3;
        const P t5 = x4 - x3;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x0 = io.pair(0);
        const P t8 = t7 + x0;
        io.pair(0, t8);
        const P t9 = c[0] * t0;
        const P t10 = c[1] * t2;
        const P t11 = t9 - t10;
        const P t12 = c[2] * t4;
        const P t13 = t11 - t12;
        const P t14 = t13 + x0;
        const P t15 = c[3] * t1;
        const P t16 = c[4] * t3;
        const P t17 = t15 - t16;
        const P t18 = c[5] * t5;
        const P t19 = t17 - t18;
        const P t20 = shuffled<1, 0>(t19);
        const P t21 = flipped<0, 1>(t20);
        const P t22 = t14 + t21;
        io.pair(1, t22);
        const P t23 = t14 - t21;
        io.pair(6, t23);
        const P t24 = c[1] * t0;
        const P t25 = x0 - t24;
        const P t26 = c[2] * t2;
        const P t27 = t25 - t26;
        const P t28 = c[0] * t4;
        const P t29 = t27 + t28;
        const P t30 = c[4] * t1;
        const P t31 = c[5] * t3;
        const P t32 = t30 + t31;
        const P t33 = c[3] * t5;
        const P t34 = t32 + t33;
        const P t35 = shuffled<1, 0>(t34);
        const P t36 = flipped<0, 1>(t35);
        const P t37 = t29 + t36;
        io.pair(2, t37);
        const P t38 = t29 - t36;
        io.pair(5, t38);
        const P t39 = c[2] * t0;
        const P t40 = x0 - t39;
        const P t41 = c[0] * t2;
        const P t42 = t40 + t41;
        const P t43 = c[1] * t4;
        const P t44 = t42 - t43;
        const P t45 = c[5] * t1;
        const P t46 = c[3] * t3;
        const P t47 = t45 + t46;
        const P t48 = c[4] * t5;
        const P t49 = t47 - t48;
        const P t50 = shuffled<1, 0>(t49);
        const P t51 = flipped<0, 1>(t50);
        const P t52 = t44 + t51;
        io.pair(3, t52);
        const P t53 = t44 - t51;
        io.pair(4, t53);
    }
};

}  // namespace zulg
