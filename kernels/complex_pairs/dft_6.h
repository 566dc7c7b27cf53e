// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 6.
// Complex DFT of 6 points, prime-factor, order 3, 2; one complex number to a register.
// 9 sums, 9 differences, 4 products of registers, which do the 56 steps of the graph, those with
// `scale` included; 2 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<6> {
    static constexpr int steps = 56;  // with `scale`
    static constexpr double inverseRoot = 0.4082482904638631;  // 1/sqrt(6), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x2 = io.pair(2);
        const P x4 = io.pair(4);
        // complex block of 3, multiplier 2
        const P t0 = x2 + x4;
        const P t1 = x2 - x4;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[0] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[1], c[1]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x5 = io.pair(5);
        const P x1 = io.pair(1);
        // complex block of 3, multiplier 2
        const P t9 = x5 + x1;
        const P t10 = x5 - x1;
        const P x3 = io.pair(3);
        const P t11 = t9 + x3;
        const P t12 = c[0] * t9;
        const P t13 = x3 - t12;
        const P t14 = P(-c[1], c[1]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        // complex block of 2
        const P t18 = t2 + t11;
        io.pair(0, t18);
        const P t19 = t2 - t11;
        io.pair(3, t19);
        // complex block of 2
        const P t20 = t8 + t17;
        io.pair(2, t20);
        const P t21 = t8 - t17;
        io.pair(5, t21);
        // complex block of 2
        const P t22 = t7 + t16;
        io.pair(4, t22);
        const P t23 = t7 - t16;
        io.pair(1, t23);
    }
};

}  // namespace zulg
