// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 2.
// Hartley transform of 2 points, form F; two lanes to a register.
// 1 sums, 1 differences, 0 products of registers, which do the 4 steps of the graph, those with
// `scale` included; 0 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<2> {
    static constexpr int steps = 4;  // with `scale`
    static constexpr double inverseRoot = 0.7071067811865475;  // 1/sqrt(2), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const V x0 = io.in(0);
        const V x1 = io.in(1);
        // real block of 2
        const V t0 = x0 + x1;
        io.out(0, t0);
        const V t1 = x0 - x1;
        io.out(1, t1);
    }
};

}  // namespace zulg
