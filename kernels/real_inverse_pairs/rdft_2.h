// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 2.
// Inverse DFT to 2 real points, base; two lanes to a register.
// 1 sums, 1 differences, 0 products of registers, which do the 4 steps of the graph, those with
// `scale` included; 0 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<2> {
    static constexpr int steps = 4;  // with `scale`
    static constexpr double inverseRoot = 0.7071067811865475;  // 1/sqrt(2), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const V x0r = io.re(0);
        const V x1r = io.re(1);
        // spectrum block of 2
        const V t0 = x0r + x1r;
        io.out(0, t0);
        const V t1 = x0r - x1r;
        io.out(1, t1);
    }
};

}  // namespace zulg
