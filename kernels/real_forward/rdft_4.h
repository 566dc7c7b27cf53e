// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 4.
// Forward DFT of 4 real points, twiddled 2, 2.
// 3 additions, 3 subtractions, 0 multiplications (4 with `scale`); 1 outputs negated; 0 constants; 4 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<4> {
    static constexpr int steps = 10;  // with `scale`
    static constexpr double inverseRoot = 0.5;  // 1/sqrt(4), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // real block of 2
        const V x0 = io.in(0);
        const V x2 = io.in(2);
        const V t0 = x0 + x2;
        const V t1 = x0 - x2;
        const V x1 = io.in(1);
        const V x3 = io.in(3);
        io.re(1, t1);
        // real block of 2
        const V t2 = x1 + x3;
        const V t3 = x1 - x3;
        io.minusIm(1, t3);
        // real block of 2
        const V t4 = t0 + t2;
        io.re(0, t4);
        const V t5 = t0 - t2;
        io.re(2, t5);
    }
};

}  // namespace zulg
