// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 6.
// Hartley transform of 6 points, form F.
// 9 additions, 9 subtractions, 4 multiplications (10 with `scale`); 2 constants; 7 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<6> {
    static constexpr int steps = 28;  // with `scale`
    static constexpr double inverseRoot = 0.4082482904638631;  // 1/sqrt(6), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 3, multiplier 2
        const V x2 = io.in(2);
        const V x4 = io.in(4);
        const V t0 = x2 + x4;
        const V t1 = x2 - x4;
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        const V t3 = c[0] * t0;
        const V t4 = x0 - t3;
        const V t5 = c[1] * t1;
        // real block of 3, multiplier 2
        const V x5 = io.in(5);
        const V x1 = io.in(1);
        const V t6 = x5 + x1;
        const V t7 = x5 - x1;
        const V x3 = io.in(3);
        const V t8 = t6 + x3;
        const V t9 = c[0] * t6;
        const V t10 = x3 - t9;
        const V t11 = c[1] * t7;
        // real block of 2
        const V t12 = t2 + t8;
        io.out(0, t12);
        const V t13 = t2 - t8;
        io.out(3, t13);
        // complex block of 2
        const V t14 = t4 + t10;
        const V t15 = t5 + t11;
        const V t16 = t4 - t10;
        const V t17 = t5 - t11;
        // output stage
        const V t18 = t16 + t17;
        io.out(1, t18);
        const V t19 = t16 - t17;
        io.out(5, t19);
        const V t20 = t14 - t15;
        io.out(2, t20);
        const V t21 = t14 + t15;
        io.out(4, t21);
    }
};

}  // namespace zulg
