// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 3.
// Complex DFT of 3 points, direct symmetric form; one complex number to a register.
// 3 sums, 3 differences, 2 products of registers, which do the 22 steps of the graph, those with
// `scale` included; 1 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<3> {
    static constexpr int steps = 22;  // with `scale`
    static constexpr double inverseRoot = 0.5773502691896258;  // 1/sqrt(3), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x2 = io.pair(2);
        // complex block of 3
        const P t0 = x1 + x2;
        const P t1 = x1 - x2;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        io.pair(0, t2);
        const P t3 = c[0] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[1], c[1]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        io.pair(1, t7);
        const P t8 = t4 - t6;
        io.pair(2, t8);
    }
};

}  // namespace zulg
