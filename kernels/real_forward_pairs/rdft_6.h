// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 6.
// Forward DFT of 6 real points, prime-factor 3, 2; two lanes to a register.
// 4 sums, 4 differences, 2 products of registers, which do the 24 steps of the graph, those with
// `scale` included; 5 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<6> {
    static constexpr int steps = 24;  // with `scale`
    static constexpr double inverseRoot = 0.4082482904638631;  // 1/sqrt(6), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
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
        const V t7 = part<0>(t4);
        const V t8 = part<1>(t4);
        // real block of 2
        const V t9 = t7 + t8;
        io.re(0, t9);
        const V t10 = t7 - t8;
        io.re(3, t10);
        // real block of 3, multiplier 2
        const P t11 = c[1] * t3;
        const P t12 = shuffled<0, 2>(t6, t11);
        const P t13 = shuffled<1, 3>(t6, t11);
        // complex block of 2
        const P t14 = t12 + t13;
        io.pair(2, t14);
        const P t15 = t12 - t13;
        io.pair(1, negated<0, 1>(t15));
    }
};

}  // namespace zulg
