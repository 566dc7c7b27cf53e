// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 8.
// Inverse DFT to 8 real points, twiddled 4, 2; two lanes to a register.
// 7 sums, 7 differences, 5 products of registers, which do the 36 steps of the graph, those with
// `scale` included; 5 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<8> {
    static constexpr int steps = 36;  // with `scale`
    static constexpr double inverseRoot = 0.35355339059327373;  // 1/sqrt(8), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.7071067811865476,  // c[1]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x4r = io.re(4);
        // spectrum block of 2
        const V t0 = x0r + x4r;
        const V t1 = x0r - x4r;
        const P t2 = joined(t0, t1);
        const P x2 = io.pair(2);
        // doubled bins
        const P t3 = P(c[0], -c[0]) * x2;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x1 = io.pair(1);
        // doubled bins
        const P t6 = c[0] * x1;
        const V t7 = part<0>(t6);
        const P x3 = io.pair(3);
        const P t8 = c[0] * x3;
        const V t9 = part<0>(t8);
        // mirrored skew block of 4
        const V t10 = t7 - t9;
        const V t11 = part<1>(t6);
        const V t12 = part<1>(t8);
        const V t13 = t11 + t12;
        const V t14 = t7 + t9;
        const V t15 = c[1] * t10;
        const V t16 = c[1] * t13;
        const V t17 = t15 - t16;
        const V t18 = t11 - t12;
        const V t19 = t15 + t16;
        const P t20 = joined(t14, t17);
        // spectrum block of 2
        const P t21 = t4 + t20;
        io.out(0, 1, t21);
        const P t22 = t4 - t20;
        io.out(4, 5, t22);
        const P t23 = joined(t18, t19);
        // spectrum block of 2
        const P t24 = t5 - t23;
        io.out(2, 3, t24);
        const P t25 = t5 + t23;
        io.out(6, 7, t25);
    }
};

}  // namespace zulg
