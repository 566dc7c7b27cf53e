// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 2.
// Complex DFT of 2 points, base.
// 2 additions, 2 subtractions, 0 multiplications (4 with `scale`); 0 constants; 5 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<2> {
    static constexpr int steps = 8;  // with `scale`
    static constexpr double inverseRoot = 0.7071067811865475;  // 1/sqrt(2), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // complex block of 2
        const V x0r = io.re(0);
        const V x1r = io.re(1);
        const V t0 = x0r + x1r;
        const V x0i = io.im(0);
        const V x1i = io.im(1);
        io.re(0, t0);
        const V t1 = x0i + x1i;
        io.im(0, t1);
        const V t2 = x0r - x1r;
        io.re(1, t2);
        const V t3 = x0i - x1i;
        io.im(1, t3);
    }
};

}  // namespace zulg
