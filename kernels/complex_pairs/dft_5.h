// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 5.
// Complex DFT of 5 points, direct symmetric form; one complex number to a register.
// 9 sums, 7 differences, 8 products of registers, which do the 58 steps of the graph, those with
// `scale` included; 2 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<5> {
    static constexpr int steps = 58;  // with `scale`
    static constexpr double inverseRoot = 0.4472135954999579;  // 1/sqrt(5), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x4 = io.pair(4);
        // complex block of 5
        const P t0 = x1 + x4;
        const P t1 = x1 - x4;
        const P x3 = io.pair(3);
        const P x2 = io.pair(2);
        const P t2 = x3 + x2;
        const P t3 = x3 - x2;
        const P t4 = t0 + t2;
        const P x0 = io.pair(0);
        const P t5 = t4 + x0;
        io.pair(0, t5);
        const P t6 = c[0] * t0;
        const P t7 = c[1] * t2;
        const P t8 = t6 - t7;
        const P t9 = t8 + x0;
        const P t10 = c[2] * t1;
        const P t11 = c[3] * t3;
        const P t12 = t10 - t11;
        const P t13 = shuffled<1, 0>(t12);
        const P t14 = flipped<0, 1>(t13);
        const P t15 = t9 + t14;
        io.pair(1, t15);
        const P t16 = t9 - t14;
        io.pair(4, t16);
        const P t17 = c[1] * t0;
        const P t18 = x0 - t17;
        const P t19 = c[0] * t2;
        const P t20 = t18 + t19;
        const P t21 = c[3] * t1;
        const P t22 = c[2] * t3;
        const P t23 = t21 + t22;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = flipped<0, 1>(t24);
        const P t26 = t20 + t25;
        io.pair(2, t26);
        const P t27 = t20 - t25;
        io.pair(3, t27);
    }
};

}  // namespace zulg
