// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 10.
// Inverse DFT to 10 real points, prime-factor 2, 5; two lanes to a register.
// 10 sums, 8 differences, 12 products of registers, which do the 68 steps of the graph, those with
// `scale` included; 5 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<10> {
    static constexpr int steps = 68;  // with `scale`
    static constexpr double inverseRoot = 0.31622776601683794;  // 1/sqrt(10), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x5r = io.re(5);
        // spectrum block of 2
        const V t0 = x0r + x5r;
        const V t1 = x0r - x5r;
        const P x2 = io.pair(2);
        // doubled bins
        const P t2 = c[0] * x2;
        const P x3 = io.pair(3);
        const P t3 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x1 = io.pair(1);
        const P t7 = P(c[0], -c[0]) * x1;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P t10 = shuffled<0, 2>(t4, t5);
        const P t11 = shuffled<0, 2>(t8, t9);
        // spectrum block of 5, multiplier 2
        const P t12 = t10 + t11;
        const P t13 = joined(t0, t1);
        const P t14 = t12 + t13;
        io.out(0, 5, t14);
        const P t15 = c[1] * t10;
        const P t16 = c[2] * t11;
        const P t17 = t15 - t16;
        const P t18 = t17 + t13;
        const P t19 = shuffled<1, 3>(t4, t5);
        const P t20 = c[3] * t19;
        const P t21 = shuffled<1, 3>(t8, t9);
        const P t22 = c[4] * t21;
        const P t23 = t20 + t22;
        const P t24 = t18 - t23;
        io.out(6, 1, t24);
        const P t25 = t18 + t23;
        io.out(4, 9, t25);
        const P t26 = c[2] * t10;
        const P t27 = t13 - t26;
        const P t28 = c[1] * t11;
        const P t29 = t27 + t28;
        const P t30 = c[4] * t19;
        const P t31 = c[3] * t21;
        const P t32 = t30 - t31;
        const P t33 = t29 - t32;
        io.out(2, 7, t33);
        const P t34 = t29 + t32;
        io.out(8, 3, t34);
    }
};

}  // namespace zulg
