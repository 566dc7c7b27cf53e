// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 6.
// Hartley transform of 6 points, form F; two lanes to a register.
// 5 sums, 5 differences, 2 products of registers, which do the 28 steps of the graph, those with
// `scale` included; 7 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<6> {
    static constexpr int steps = 28;  // with `scale`
    static constexpr double inverseRoot = 0.4082482904638631;  // 1/sqrt(6), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x4_5 = io.in(4, 5);
        const P x2_1 = io.in(2, 1);
        // real block of 3, multiplier 2
        const P t0 = x4_5 + x2_1;
        const P t1 = shuffled<0, 3>(x2_1, x4_5);
        const P t2 = shuffled<0, 3>(x4_5, x2_1);
        const P t3 = t1 - t2;
        const P x0_3 = io.in(0, 3);
        const P t4 = t0 + x0_3;
        const P t5 = c[0] * t0;
        const P t6 = x0_3 - t5;
        const P t7 = c[1] * t3;
        const P t8 = shuffled<0, 2>(t6, t7);
        const P t9 = shuffled<1, 3>(t6, t7);
        // complex block of 2
        const P t10 = t8 + t9;
        const P t11 = t8 - t9;
        const V t12 = part<0>(t11);
        const V t13 = part<1>(t11);
        // output stage
        const V t14 = t12 + t13;
        io.out(1, t14);
        const V t15 = t12 - t13;
        io.out(5, t15);
        const P t16 = shuffled<0, 2>(t4, t10);
        const P t17 = shuffled<1, 3>(t4, t10);
        // real block of 2
        const P t18 = t16 - t17;
        io.out(3, 2, t18);
        const P t19 = t16 + t17;
        io.out(0, 4, t19);
    }
};

}  // namespace zulg
