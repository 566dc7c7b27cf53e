// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 4.
// Hartley transform of 4 points, form F.
// 4 additions, 4 subtractions, 0 multiplications (4 with `scale`); 0 constants; 5 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<4> {
    static constexpr int steps = 12;  // with `scale`
    static constexpr double inverseRoot = 0.5;  // 1/sqrt(4), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // real block of 2
        const V x0 = io.in(0);
        const V x2 = io.in(2);
        const V t0 = x0 + x2;
        const V t1 = x0 - x2;
        // real block of 2
        const V x1 = io.in(1);
        const V x3 = io.in(3);
        const V t2 = x1 + x3;
        const V t3 = x1 - x3;
        // real block of 2
        const V t4 = t0 + t2;
        io.out(0, t4);
        const V t5 = t0 - t2;
        io.out(2, t5);
        // output stage
        const V t6 = t1 + t3;
        io.out(1, t6);
        const V t7 = t1 - t3;
        io.out(3, t7);
    }
};

}  // namespace zulg
