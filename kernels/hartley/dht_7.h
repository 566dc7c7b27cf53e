// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 7.
// Hartley transform of 7 points, form F.
// 15 additions, 15 subtractions, 18 multiplications (25 with `scale`); 6 constants; 13 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<7> {
    static constexpr int steps = 55;  // with `scale`
    static constexpr double inverseRoot = 0.3779644730092272;  // 1/sqrt(7), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 7
        const V x1 = io.in(1);
        const V x6 = io.in(6);
        const V t0 = x1 + x6;
        const V t1 = x1 - x6;
        const V x5 = io.in(5);
        const V x2 = io.in(2);
        const V t2 = x5 + x2;
        const V t3 = x5 - x2;
        const V x4 = io.in(4);
        const V x3 = io.in(3);
        const V t4 = x4 + x3;
        const V t5 = x4 - x3;
        const V t6 = t0 + t2;
        const V t7 = t6 + t4;
        const V x0 = io.in(0);
        const V t8 = t7 + x0;
        io.out(0, t8);
        const V t9 = c[0] * t0;
        const V t10 = c[1] * t2;
        const V t11 = t9 - t10;
        const V t12 = c[2] * t4;
        const V t13 = t11 - t12;
        const V t14 = t13 + x0;
        const V t15 = c[3] * t1;
        const V t16 = c[4] * t3;
        const V t17 = c[5] * t5;
        const V t18 = t16 + t17;
        const V t19 = t18 - t15;
        const V t20 = c[1] * t0;
        const V t21 = x0 - t20;
        const V t22 = c[2] * t2;
        const V t23 = t21 - t22;
        const V t24 = c[0] * t4;
        const V t25 = t23 + t24;
        const V t26 = c[4] * t1;
        const V t27 = c[5] * t3;
        const V t28 = c[3] * t5;
        const V t29 = t26 + t27;
        const V t30 = t29 + t28;
        const V t31 = c[2] * t0;
        const V t32 = x0 - t31;
        const V t33 = c[0] * t2;
        const V t34 = t32 + t33;
        const V t35 = c[1] * t4;
        const V t36 = t34 - t35;
        const V t37 = c[5] * t1;
        const V t38 = c[3] * t3;
        const V t39 = c[4] * t5;
        const V t40 = t39 - t37;
        const V t41 = t40 - t38;
        // output stage
        const V t42 = t14 - t19;
        io.out(1, t42);
        const V t43 = t14 + t19;
        io.out(6, t43);
        const V t44 = t25 + t30;
        io.out(2, t44);
        const V t45 = t25 - t30;
        io.out(5, t45);
        const V t46 = t36 - t41;
        io.out(3, t46);
        const V t47 = t36 + t41;
        io.out(4, t47);
    }
};

}  // namespace zulg
