// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 7.
// Hartley transform of 7 points, form F; two lanes to a register.
// 14 sums, 14 differences, 18 products of registers, which do the 55 steps of the graph, those with
// `scale` included; 2 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<7> {
    static constexpr int steps = 55;  // with `scale`
    static constexpr double inverseRoot = 0.3779644730092272;  // 1/sqrt(7), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.4338837391175581,  // c[4]: -sin 2 pi 4/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const V x1 = io.in(1);
        const V x6 = io.in(6);
        // real block of 7
        const V t0 = x1 + x6;
        const V t1 = x1 - x6;
        const P x4_5 = io.in(4, 5);
        const P x3_2 = io.in(3, 2);
        const P t2 = x4_5 + x3_2;
        const P t3 = x4_5 - x3_2;
        const V t4 = part<1>(t2);
        const V t5 = t0 + t4;
        const V t6 = part<0>(t2);
        const V t7 = t5 + t6;
        const V x0 = io.in(0);
        const V t8 = t7 + x0;
        io.out(0, t8);
        const V t9 = c[0] * t0;
        const V t10 = c[1] * t4;
        const V t11 = t9 - t10;
        const V t12 = c[2] * t6;
        const V t13 = t11 - t12;
        const V t14 = t13 + x0;
        const V t15 = part<1>(t3);
        const V t16 = c[3] * t15;
        const V t17 = part<0>(t3);
        const V t18 = c[4] * t17;
        const V t19 = t16 + t18;
        const V t20 = c[5] * t1;
        const V t21 = t19 - t20;
        const V t22 = c[1] * t0;
        const V t23 = x0 - t22;
        const V t24 = c[2] * t4;
        const V t25 = t23 - t24;
        const V t26 = c[0] * t6;
        const V t27 = t25 + t26;
        const V t28 = c[3] * t1;
        const V t29 = c[4] * t15;
        const V t30 = t28 + t29;
        const V t31 = c[5] * t17;
        const V t32 = t30 + t31;
        const V t33 = c[2] * t0;
        const V t34 = x0 - t33;
        const V t35 = c[0] * t4;
        const V t36 = t34 + t35;
        const V t37 = c[1] * t6;
        const V t38 = t36 - t37;
        const V t39 = c[3] * t17;
        const V t40 = c[4] * t1;
        const V t41 = t39 - t40;
        const V t42 = c[5] * t15;
        const V t43 = t41 - t42;
        // output stage
        const V t44 = t14 - t21;
        io.out(1, t44);
        const V t45 = t14 + t21;
        io.out(6, t45);
        const V t46 = t27 + t32;
        io.out(2, t46);
        const V t47 = t27 - t32;
        io.out(5, t47);
        const V t48 = t38 - t43;
        io.out(3, t48);
        const V t49 = t38 + t43;
        io.out(4, t49);
    }
};

}  // namespace zulg
