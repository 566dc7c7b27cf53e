// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 8.
// Hartley transform of 8 points, form F; two lanes to a register.
// 9 sums, 9 differences, 2 products of registers, which do the 36 steps of the graph, those with
// `scale` included; 4 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<8> {
    static constexpr int steps = 36;  // with `scale`
    static constexpr double inverseRoot = 0.35355339059327373;  // 1/sqrt(8), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
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
        const V t6 = part<1>(t1);
        const V t7 = part<1>(t3);
        // skew block of 4
        const V t8 = t6 - t7;
        const V t9 = t6 + t7;
        const V t10 = c[0] * t9;
        const V t11 = part<0>(t3);
        const V t12 = t10 - t11;
        const V t13 = part<0>(t1);
        const V t14 = c[0] * t8;
        const V t15 = t13 + t14;
        const V t16 = t11 + t10;
        const V t17 = t13 - t14;
        // output stage
        const V t18 = t15 + t16;
        io.out(1, t18);
        const V t19 = t15 - t16;
        io.out(7, t19);
        const P t20 = shuffled<0, 2>(t4, t5);
        const P t21 = shuffled<1, 3>(t4, t5);
        // real block of 2
        const P t22 = t20 + t21;
        io.out(0, 2, t22);
        const P t23 = t20 - t21;
        io.out(4, 6, t23);
        // output stage
        const V t24 = t17 + t12;
        io.out(3, t24);
        const V t25 = t17 - t12;
        io.out(5, t25);
    }
};

}  // namespace zulg
