// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 6.
// Inverse DFT to 6 real points, prime-factor 2, 3; two lanes to a register.
// 4 sums, 4 differences, 4 products of registers, which do the 28 steps of the graph, those with
// `scale` included; 3 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<6> {
    static constexpr int steps = 28;  // with `scale`
    static constexpr double inverseRoot = 0.4082482904638631;  // 1/sqrt(6), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x3r = io.re(3);
        // spectrum block of 2
        const V t0 = x0r + x3r;
        const V t1 = x0r - x3r;
        const P x2 = io.pair(2);
        // doubled bins
        const P t2 = c[0] * x2;
        const P x1 = io.pair(1);
        const P t3 = P(c[0], -c[0]) * x1;
        // complex block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P t6 = shuffled<0, 2>(t4, t5);
        const P t7 = joined(t0, t1);
        // spectrum block of 3, multiplier 2
        const P t8 = t6 + t7;
        io.out(0, 3, t8);
        const P t9 = c[1] * t6;
        const P t10 = t7 - t9;
        const P t11 = shuffled<1, 3>(t4, t5);
        const P t12 = c[2] * t11;
        const P t13 = t10 - t12;
        io.out(4, 1, t13);
        const P t14 = t10 + t12;
        io.out(2, 5, t14);
    }
};

}  // namespace zulg
