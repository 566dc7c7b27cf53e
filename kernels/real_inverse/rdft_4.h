// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 4.
// Inverse DFT to 4 real points, twiddled 2, 2.
// 3 additions, 3 subtractions, 2 multiplications (6 with `scale`); 1 constants; 5 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<4> {
    static constexpr int steps = 12;  // with `scale`
    static constexpr double inverseRoot = 0.5;  // 1/sqrt(4), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x2r = io.re(2);
        const V t0 = x0r + x2r;
        const V t1 = x0r - x2r;
        // doubled bins
        const V x1r = io.re(1);
        const V t2 = two * x1r;
        const V x1i = io.im(1);
        const V t3 = two * x1i;
        // spectrum block of 2
        const V t4 = t0 + t2;
        io.out(0, t4);
        const V t5 = t0 - t2;
        io.out(2, t5);
        // spectrum block of 2
        const V t6 = t1 - t3;
        io.out(1, t6);
        const V t7 = t1 + t3;
        io.out(3, t7);
    }
};

}  // namespace zulg
