// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 3.
// Inverse DFT to 3 real points, direct.
// 2 additions, 2 subtractions, 3 multiplications (6 with `scale`); 3 constants; 3 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<3> {
    static constexpr int steps = 10;  // with `scale`
    static constexpr double inverseRoot = 0.5773502691896258;  // 1/sqrt(3), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        1.7320508075688772,  // c[1]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        // spectrum block of 3
        const V x0r = io.re(0);
        const V t1 = t0 + x0r;
        const V t2 = c[0] * t0;
        const V t3 = x0r - t2;
        const V x1i = io.im(1);
        io.out(0, t1);
        const V t4 = c[1] * x1i;
        const V t5 = t3 - t4;
        io.out(1, t5);
        const V t6 = t3 + t4;
        io.out(2, t6);
    }
};

}  // namespace zulg
