// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 4.
// Inverse DFT to 4 real points, twiddled 2, 2; two lanes to a register.
// 2 sums, 2 differences, 1 products of registers, which do the 12 steps of the graph, those with
// `scale` included; 1 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<4> {
    static constexpr int steps = 12;  // with `scale`
    static constexpr double inverseRoot = 0.5;  // 1/sqrt(4), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x2r = io.re(2);
        // spectrum block of 2
        const V t0 = x0r + x2r;
        const V t1 = x0r - x2r;
        const P t2 = joined(t0, t1);
        const P x1 = io.pair(1);
        // doubled bins
        const P t3 = P(c[0], -c[0]) * x1;
        // spectrum block of 2
        const P t4 = t2 + t3;
        io.out(0, 1, t4);
        const P t5 = t2 - t3;
        io.out(2, 3, t5);
    }
};

}  // namespace zulg
