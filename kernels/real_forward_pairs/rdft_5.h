// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 5.
// Forward DFT of 5 real points, direct; two lanes to a register.
// 7 sums, 5 differences, 8 products of registers, which do the 25 steps of the graph, those with
// `scale` included; 2 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<5> {
    static constexpr int steps = 25;  // with `scale`
    static constexpr double inverseRoot = 0.4472135954999579;  // 1/sqrt(5), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const V x1 = io.in(1);
        const V x4 = io.in(4);
        // real block of 5
        const V t0 = x1 + x4;
        const V t1 = x1 - x4;
        const V x3 = io.in(3);
        const V x2 = io.in(2);
        const V t2 = x3 + x2;
        const V t3 = x3 - x2;
        const V t4 = t0 + t2;
        const V x0 = io.in(0);
        const V t5 = t4 + x0;
        io.re(0, t5);
        const V t6 = c[0] * t0;
        const V t7 = c[1] * t2;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0;
        const V t10 = c[2] * t3;
        const V t11 = c[3] * t1;
        const V t12 = t10 - t11;
        const P t13 = joined(t9, t12);
        io.pair(1, t13);
        const V t14 = c[1] * t0;
        const V t15 = x0 - t14;
        const V t16 = c[0] * t2;
        const V t17 = t15 + t16;
        const V t18 = c[2] * t1;
        const V t19 = c[3] * t3;
        const V t20 = t18 + t19;
        const V t21 = flipped<1>(t20);
        const P t22 = joined(t17, t21);
        io.pair(2, t22);
    }
};

}  // namespace zulg
