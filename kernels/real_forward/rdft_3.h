// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 3.
// Forward DFT of 3 real points, direct.
// 2 additions, 2 subtractions, 2 multiplications (5 with `scale`); 1 outputs negated; 2 constants; 4 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<3> {
    static constexpr int steps = 9;  // with `scale`
    static constexpr double inverseRoot = 0.5773502691896258;  // 1/sqrt(3), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3
        const V x1 = io.in(1);
        const V x2 = io.in(2);
        const V t0 = x1 + x2;
        const V t1 = x1 - x2;
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        io.re(0, t2);
        const V t3 = c[0] * t0;
        const V t4 = x0 - t3;
        io.re(1, t4);
        const V t5 = c[1] * t1;
        io.minusIm(1, t5);
    }
};

}  // namespace zulg
