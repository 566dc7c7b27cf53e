// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 10.
// Complex DFT of 10 points, prime-factor, order 2, 5; two lines of a stage to a register.
// 12 sums, 10 differences, 8 products of registers, which do the 136 steps of the graph, those with
// `scale` included; 12 shuffles, 2 changes of sign.
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
        const Q x0_6 = io.pairs(0, 6);
        const Q x5_1 = io.pairs(5, 1);
        // complex block of 2
        const Q t0 = x0_6 + x5_1;
        const Q t1 = x0_6 - x5_1;
        const P x4 = io.pair(4);
        const P x9 = io.pair(9);
        // complex block of 2
        const P t2 = x4 + x9;
        const P t3 = x4 - x9;
        const Q t4 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t5 = joined(t2, t3);
        // complex block of 5, multiplier 2
        const Q t6 = t4 + t5;
        const Q t7 = t4 - t5;
        const Q x2_8 = io.pairs(2, 8);
        const Q x7_3 = io.pairs(7, 3);
        // complex block of 2
        const Q t8 = x2_8 + x7_3;
        const Q t9 = x2_8 - x7_3;
        const Q t10 = shuffled<0, 1, 4, 5>(t8, t9);
        const Q t11 = shuffled<2, 3, 6, 7>(t8, t9);
        // complex block of 5, multiplier 2
        const Q t12 = t10 + t11;
        const Q t13 = t10 - t11;
        const Q t14 = t12 + t6;
        const Q t15 = shuffled<0, 1, 4, 5>(t0, t1);
        const Q t16 = t14 + t15;
        const Q t17 = c[0] * t12;
        const Q t18 = c[1] * t6;
        const Q t19 = t17 - t18;
        const Q t20 = t19 + t15;
        const Q t21 = c[2] * t13;
        const Q t22 = c[3] * t7;
        const Q t23 = t21 - t22;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = flipped<0, 1, 0, 1>(t24);
        const Q t26 = t20 + t25;
        const Q t27 = shuffled<0, 1, 6, 7>(t16, t26);
        io.pairs(0, 1, t27);
        const Q t28 = t20 - t25;
        const Q t29 = shuffled<0, 1, 6, 7>(t28, t16);
        io.pairs(4, 5, t29);
        const Q t30 = c[1] * t12;
        const Q t31 = t15 - t30;
        const Q t32 = c[0] * t6;
        const Q t33 = t31 + t32;
        const Q t34 = c[3] * t13;
        const Q t35 = c[2] * t7;
        const Q t36 = t34 + t35;
        const Q t37 = shuffled<1, 0, 3, 2>(t36);
        const Q t38 = flipped<0, 1, 0, 1>(t37);
        const Q t39 = t33 + t38;
        const Q t40 = shuffled<0, 1, 6, 7>(t26, t39);
        io.pairs(6, 7, t40);
        const Q t41 = t33 - t38;
        const Q t42 = shuffled<0, 1, 6, 7>(t39, t41);
        io.pairs(2, 3, t42);
        const Q t43 = shuffled<0, 1, 6, 7>(t41, t28);
        io.pairs(8, 9, t43);
    }
};

}  // namespace zulg
