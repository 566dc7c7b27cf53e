// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 4.
// Forward DFT of 4 real points, twiddled 2, 2; two lanes to a register.
// 2 sums, 2 differences, 0 products of registers, which do the 10 steps of the graph, those with
// `scale` included; 1 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<4> {
    static constexpr int steps = 10;  // with `scale`
    static constexpr double inverseRoot = 0.5;  // 1/sqrt(4), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const P x0_1 = io.in(0, 1);
        const P x2_3 = io.in(2, 3);
        // real block of 2
        const P t0 = x0_1 + x2_3;
        const P t1 = x0_1 - x2_3;
        io.pair(1, negated<0, 1>(t1));
        const V t2 = part<0>(t0);
        const V t3 = part<1>(t0);
        // real block of 2
        const V t4 = t2 + t3;
        io.re(0, t4);
        const V t5 = t2 - t3;
        io.re(2, t5);
    }
};

}  // namespace zulg
