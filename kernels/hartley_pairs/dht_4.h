// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 4.
// Hartley transform of 4 points, form F; two lanes to a register.
// 2 sums, 2 differences, 0 products of registers, which do the 12 steps of the graph, those with
// `scale` included; 2 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<4> {
    static constexpr int steps = 12;  // with `scale`
    static constexpr double inverseRoot = 0.5;  // 1/sqrt(4), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const P x0_1 = io.in(0, 1);
        const P x2_3 = io.in(2, 3);
        // real block of 2
        const P t0 = x0_1 + x2_3;
        const P t1 = x0_1 - x2_3;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P t3 = shuffled<1, 3>(t0, t1);
        // real block of 2
        const P t4 = t2 + t3;
        io.out(0, 1, t4);
        const P t5 = t2 - t3;
        io.out(2, 3, t5);
    }
};

}  // namespace zulg
