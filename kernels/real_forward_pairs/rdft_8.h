// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 8.
// Forward DFT of 8 real points, twiddled 2, 4; two lanes to a register.
// 7 sums, 7 differences, 2 products of registers, which do the 30 steps of the graph, those with
// `scale` included; 5 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<8> {
    static constexpr int steps = 30;  // with `scale`
    static constexpr double inverseRoot = 0.35355339059327373;  // 1/sqrt(8), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_1 = io.in(0, 1);
        const P x4_5 = io.in(4, 5);
        // real block of 2
        const P t0 = x0_1 + x4_5;
        const P t1 = x0_1 - x4_5;
        const P x2_3 = io.in(2, 3);
        const P x6_7 = io.in(6, 7);
        // real block of 2
        const P t2 = x2_3 + x6_7;
        const P t3 = x2_3 - x6_7;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        io.pair(2, negated<0, 1>(t5));
        const V t6 = part<0>(t4);
        const V t7 = part<1>(t4);
        // real block of 2
        const V t8 = t6 + t7;
        io.re(0, t8);
        const V t9 = t6 - t7;
        io.re(4, t9);
        const V t10 = part<1>(t1);
        const V t11 = part<1>(t3);
        // skew block of 4
        const V t12 = t10 - t11;
        const V t13 = t10 + t11;
        const V t14 = c[0] * t13;
        const V t15 = part<0>(t3);
        const V t16 = t14 - t15;
        const V t17 = part<0>(t1);
        const V t18 = c[0] * t12;
        const V t19 = t17 + t18;
        const V t20 = t15 + t14;
        const V t21 = flipped<1>(t20);
        const P t22 = joined(t19, t21);
        io.pair(1, t22);
        const V t23 = t17 - t18;
        const V t24 = flipped<1>(t16);
        const P t25 = joined(t23, t24);
        io.pair(3, t25);
    }
};

}  // namespace zulg
