// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 8.
// Hartley transform of 8 points, form F.
// 13 additions, 13 subtractions, 2 multiplications (10 with `scale`); 1 constants; 9 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<8> {
    static constexpr int steps = 36;  // with `scale`
    static constexpr double inverseRoot = 0.35355339059327373;  // 1/sqrt(8), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
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
        // real block of 2
        const V t10 = t2 + t6;
        const V t11 = t2 - t6;
        // real block of 2
        const V t12 = t8 + t10;
        io.out(0, t12);
        const V t13 = t8 - t10;
        io.out(4, t13);
        // skew block of 4
        const V t14 = t3 - t7;
        const V t15 = c[0] * t14;
        const V t16 = t3 + t7;
        const V t17 = c[0] * t16;
        const V t18 = t17 - t5;
        const V t19 = t1 + t15;
        const V t20 = t5 + t17;
        const V t21 = t1 - t15;
        // output stage
        const V t22 = t19 + t20;
        io.out(1, t22);
        const V t23 = t19 - t20;
        io.out(7, t23);
        const V t24 = t9 + t11;
        io.out(2, t24);
        const V t25 = t9 - t11;
        io.out(6, t25);
        const V t26 = t21 + t18;
        io.out(3, t26);
        const V t27 = t21 - t18;
        io.out(5, t27);
    }
};

}  // namespace zulg
