// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 8.
// Complex DFT of 8 points, twiddled, inner 2, outer 4; one complex number to a register.
// 14 sums, 12 differences, 2 products of registers, which do the 72 steps of the graph, those with
// `scale` included; 6 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<8> {
    static constexpr int steps = 72;  // with `scale`
    static constexpr double inverseRoot = 0.35355339059327373;  // 1/sqrt(8), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x4 = io.pair(4);
        // complex block of 2
        const P t0 = x0 + x4;
        const P t1 = x0 - x4;
        const P x1 = io.pair(1);
        const P x5 = io.pair(5);
        // complex block of 2
        const P t2 = x1 + x5;
        const P t3 = x1 - x5;
        const P x2 = io.pair(2);
        const P x6 = io.pair(6);
        // complex block of 2
        const P t4 = x2 + x6;
        const P t5 = x2 - x6;
        const P x3 = io.pair(3);
        const P x7 = io.pair(7);
        // complex block of 2
        const P t6 = x3 + x7;
        const P t7 = x3 - x7;
        // complex block of 2
        const P t8 = t0 + t4;
        const P t9 = t0 - t4;
        // complex block of 2
        const P t10 = t2 + t6;
        const P t11 = t2 - t6;
        // complex block of 2
        const P t12 = t8 + t10;
        io.pair(0, t12);
        const P t13 = t8 - t10;
        io.pair(4, t13);
        const P t14 = shuffled<1, 0>(t11);
        const P t15 = flipped<0, 1>(t14);
        // complex block of 2
        const P t16 = t9 + t15;
        io.pair(2, t16);
        const P t17 = t9 - t15;
        io.pair(6, t17);
        // complex block of 8
        const P t18 = c[0] * t3;
        const P t19 = shuffled<1, 0>(t18);
        const P t20 = flipped<0, 1>(t19);
        const P t21 = t18 + t20;
        const P t22 = c[0] * t7;
        const P t23 = shuffled<1, 0>(t22);
        const P t24 = flipped<0, 1>(t23);
        const P t25 = t22 + t24;
        const P t26 = shuffled<1, 0>(t5);
        const P t27 = flipped<0, 1>(t26);
        // complex block of 2
        const P t28 = t1 + t27;
        const P t29 = t1 - t27;
        const P t30 = shuffled<1, 0>(t25);
        const P t31 = flipped<0, 1>(t30);
        // complex block of 2
        const P t32 = t21 + t31;
        const P t33 = t21 - t31;
        // complex block of 2
        const P t34 = t28 + t32;
        io.pair(1, t34);
        const P t35 = t28 - t32;
        io.pair(5, t35);
        const P t36 = shuffled<1, 0>(t33);
        const P t37 = flipped<0, 1>(t36);
        // complex block of 2
        const P t38 = t29 + t37;
        io.pair(3, t38);
        const P t39 = t29 - t37;
        io.pair(7, t39);
    }
};

}  // namespace zulg
