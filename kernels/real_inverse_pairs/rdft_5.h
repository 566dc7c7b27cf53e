// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 5.
// Inverse DFT to 5 real points, direct; two lanes to a register.
// 7 sums, 5 differences, 10 products of registers, which do the 29 steps of the graph, those with
// `scale` included; 2 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<5> {
    static constexpr int steps = 29;  // with `scale`
    static constexpr double inverseRoot = 0.4472135954999579;  // 1/sqrt(5), for `scale`
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
        const P x1 = io.pair(1);
        // doubled bins
        const P t0 = c[0] * x1;
        const V t1 = part<0>(t0);
        const P x2 = io.pair(2);
        const P t2 = c[0] * x2;
        const V t3 = part<0>(t2);
        // spectrum block of 5
        const V t4 = t1 + t3;
        const V x0r = io.re(0);
        const V t5 = t4 + x0r;
        io.out(0, t5);
        const V t6 = c[1] * t1;
        const V t7 = c[2] * t3;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0r;
        const V t10 = part<1>(t0);
        const V t11 = c[3] * t10;
        const V t12 = part<1>(t2);
        const V t13 = c[4] * t12;
        const V t14 = t11 + t13;
        const V t15 = t9 - t14;
        io.out(1, t15);
        const V t16 = t9 + t14;
        io.out(4, t16);
        const V t17 = c[2] * t1;
        const V t18 = x0r - t17;
        const V t19 = c[1] * t3;
        const V t20 = t18 + t19;
        const V t21 = c[4] * t10;
        const V t22 = c[3] * t12;
        const V t23 = t21 - t22;
        const V t24 = t20 - t23;
        io.out(2, t24);
        const V t25 = t20 + t23;
        io.out(3, t25);
    }
};

}  // namespace zulg
