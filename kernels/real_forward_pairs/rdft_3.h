// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 3.
// Forward DFT of 3 real points, direct; two lanes to a register.
// 2 sums, 2 differences, 2 products of registers, which do the 9 steps of the graph, those with
// `scale` included; 1 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<3> {
    static constexpr int steps = 9;  // with `scale`
    static constexpr double inverseRoot = 0.5773502691896258;  // 1/sqrt(3), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const V x1 = io.in(1);
        const V x2 = io.in(2);
        // real block of 3
        const V t0 = x1 + x2;
        const V t1 = x1 - x2;
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        io.re(0, t2);
        const V t3 = c[0] * t0;
        const V t4 = x0 - t3;
        const V t5 = -c[1] * t1;
        const P t6 = joined(t4, t5);
        io.pair(1, t6);
    }
};

}  // namespace zulg
