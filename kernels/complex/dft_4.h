// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 4.
// Complex DFT of 4 points, twiddled, inner 2, outer 2.
// 8 additions, 8 subtractions, 0 multiplications (8 with `scale`); 0 constants; 10 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<4> {
    static constexpr int steps = 24;  // with `scale`
    static constexpr double inverseRoot = 0.5;  // 1/sqrt(4), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // complex block of 2
        const V x0r = io.re(0);
        const V x2r = io.re(2);
        const V t0 = x0r + x2r;
        const V x0i = io.im(0);
        const V x2i = io.im(2);
        const V t1 = x0i + x2i;
        const V t2 = x0r - x2r;
        const V t3 = x0i - x2i;
        // complex block of 2
        const V x1r = io.re(1);
        const V x3r = io.re(3);
        const V t4 = x1r + x3r;
        const V x1i = io.im(1);
        const V x3i = io.im(3);
        const V t5 = x1i + x3i;
        const V t6 = x1r - x3r;
        const V t7 = x1i - x3i;
        // complex block of 2
        const V t8 = t0 + t4;
        io.re(0, t8);
        const V t9 = t1 + t5;
        io.im(0, t9);
        const V t10 = t0 - t4;
        io.re(2, t10);
        const V t11 = t1 - t5;
        io.im(2, t11);
        // complex block of 2
        const V t12 = t2 + t7;
        io.re(1, t12);
        const V t13 = t3 - t6;
        io.im(1, t13);
        const V t14 = t2 - t7;
        io.re(3, t14);
        const V t15 = t3 + t6;
        io.im(3, t15);
    }
};

}  // namespace zulg
