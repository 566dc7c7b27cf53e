// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 10.
// Complex DFT of 10 points, prime-factor, order 2, 5; two lines of a stage to a register.
// 12 sums, 10 differences, 8 products of registers, which do the 136 steps of the graph, those with
// `scale` included; 7 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<10> {
    static constexpr int steps = 136;  // with `scale`
    static constexpr double inverseRoot = 0.31622776601683794;  // 1/sqrt(10), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_2 = io.pairs(0, 2);
        const Q x5_7 = io.pairs(5, 7);
        // complex block of 2
        const Q t0 = x0_2 + x5_7;
        const Q t1 = x0_2 - x5_7;
        const P x8 = io.pair(8);
        const P x3 = io.pair(3);
        // complex block of 2
        const P t2 = x8 + x3;
        const P t3 = x8 - x3;
        const Q t4 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t5 = joined(t2, t3);
        // complex block of 5, multiplier 2
        const Q t6 = t4 + t5;
        const Q t7 = t4 - t5;
        const Q x4_6 = io.pairs(4, 6);
        const Q x9_1 = io.pairs(9, 1);
        // complex block of 2
        const Q t8 = x4_6 + x9_1;
        const Q t9 = x4_6 - x9_1;
        const Q t10 = shuffled<2, 3, 6, 7>(t8, t9);
        const Q t11 = shuffled<0, 1, 4, 5>(t8, t9);
        // complex block of 5, multiplier 2
        const Q t12 = t10 + t11;
        const Q t13 = t10 - t11;
        const Q t14 = t6 + t12;
        const Q t15 = shuffled<0, 1, 4, 5>(t0, t1);
        const Q t16 = t14 + t15;
        io.pairs(0, 5, t16);
        const Q t17 = c[0] * t6;
        const Q t18 = c[1] * t12;
        const Q t19 = t17 - t18;
        const Q t20 = t19 + t15;
        const Q t21 = c[2] * t7;
        const Q t22 = c[3] * t13;
        const Q t23 = t21 - t22;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = flipped<0, 1, 0, 1>(t24);
        const Q t26 = t20 + t25;
        io.pairs(6, 1, t26);
        const Q t27 = t20 - t25;
        io.pairs(4, 9, t27);
        const Q t28 = c[1] * t6;
        const Q t29 = t15 - t28;
        const Q t30 = c[0] * t12;
        const Q t31 = t29 + t30;
        const Q t32 = c[3] * t7;
        const Q t33 = c[2] * t13;
        const Q t34 = t32 + t33;
        const Q t35 = shuffled<1, 0, 3, 2>(t34);
        const Q t36 = flipped<0, 1, 0, 1>(t35);
        const Q t37 = t31 + t36;
        io.pairs(2, 7, t37);
        const Q t38 = t31 - t36;
        io.pairs(8, 3, t38);
    }
};

}  // namespace zulg
