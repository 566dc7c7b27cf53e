// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 8.
// Forward DFT of 8 real points, twiddled 2, 4.
// 10 additions, 10 subtractions, 2 multiplications (10 with `scale`); 3 outputs negated; 1 constants; 9 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<8> {
    static constexpr int steps = 30;  // with `scale`
    static constexpr double inverseRoot = 0.35355339059327373;  // 1/sqrt(8), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x4 = io.in(4);
        const V t0 = x0 + x4;
        const V t1 = x0 - x4;
        // real block of 2
        const V x1 = io.in(1);
        const V x5 = io.in(5);
        const V t2 = x1 + x5;
        const V t3 = x1 - x5;
        // real block of 2
        const V x2 = io.in(2);
        const V x6 = io.in(6);
        const V t4 = x2 + x6;
        const V t5 = x2 - x6;
        // real block of 2
        const V x3 = io.in(3);
        const V x7 = io.in(7);
        const V t6 = x3 + x7;
        const V t7 = x3 - x7;
        // real block of 2
        const V t8 = t0 + t4;
        const V t9 = t0 - t4;
        io.re(2, t9);
        // real block of 2
        const V t10 = t2 + t6;
        const V t11 = t2 - t6;
        io.minusIm(2, t11);
        // real block of 2
        const V t12 = t8 + t10;
        io.re(0, t12);
        const V t13 = t8 - t10;
        io.re(4, t13);
        // skew block of 4
        const V t14 = t3 - t7;
        const V t15 = c[0] * t14;
        const V t16 = t3 + t7;
        const V t17 = c[0] * t16;
        const V t18 = t17 - t5;
        io.minusIm(3, t18);
        const V t19 = t1 + t15;
        io.re(1, t19);
        const V t20 = t5 + t17;
        io.minusIm(1, t20);
        const V t21 = t1 - t15;
        io.re(3, t21);
    }
};

}  // namespace zulg
