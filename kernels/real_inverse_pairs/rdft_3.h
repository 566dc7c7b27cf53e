// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 3.
// Inverse DFT to 3 real points, direct; two lanes to a register.
// 2 sums, 2 differences, 3 products of registers, which do the 10 steps of the graph, those with
// `scale` included; 1 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<3> {
    static constexpr int steps = 10;  // with `scale`
    static constexpr double inverseRoot = 0.5773502691896258;  // 1/sqrt(3), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        1.7320508075688772,  // c[2]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x1 = io.pair(1);
        const V t0 = part<0>(x1);
        // doubled bins
        const V t1 = c[0] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3
        const V t2 = t1 + x0r;
        io.out(0, t2);
        const V t3 = c[1] * t1;
        const V t4 = x0r - t3;
        const V t5 = part<1>(x1);
        const V t6 = c[2] * t5;
        const V t7 = t4 - t6;
        io.out(1, t7);
        const V t8 = t4 + t6;
        io.out(2, t8);
    }
};

}  // namespace zulg
