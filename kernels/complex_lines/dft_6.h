// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 6.
// Complex DFT of 6 points, prime-factor, order 3, 2; two lines of a stage to a register.
// 5 sums, 5 differences, 2 products of registers, which do the 56 steps of the graph, those with
// `scale` included; 6 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<6> {
    static constexpr int steps = 56;  // with `scale`
    static constexpr double inverseRoot = 0.4082482904638631;  // 1/sqrt(6), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x2_5 = io.pairs(2, 5);
        const Q x4_1 = io.pairs(4, 1);
        // complex block of 3, multiplier 2
        const Q t0 = x2_5 + x4_1;
        const Q t1 = x2_5 - x4_1;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_3 - t3;
        const Q t5 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const P t9 = part<0>(t8);
        const P t10 = part<1>(t8);
        // complex block of 2
        const P t11 = t9 + t10;
        io.pair(2, t11);
        const P t12 = t9 - t10;
        io.pair(5, t12);
        const Q t13 = shuffled<0, 1, 4, 5>(t2, t7);
        const Q t14 = shuffled<2, 3, 6, 7>(t2, t7);
        // complex block of 2
        const Q t15 = t13 + t14;
        const Q t16 = t13 - t14;
        const Q t17 = shuffled<0, 1, 6, 7>(t15, t16);
        io.pairs(0, 1, t17);
        const Q t18 = shuffled<0, 1, 6, 7>(t16, t15);
        io.pairs(3, 4, t18);
    }
};

}  // namespace zulg
