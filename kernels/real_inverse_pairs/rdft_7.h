// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 7.
// Inverse DFT to 7 real points, direct; two lanes to a register.
// 12 sums, 12 differences, 21 products of registers, which do the 55 steps of the graph, those with
// `scale` included; 3 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<7> {
    static constexpr int steps = 55;  // with `scale`
    static constexpr double inverseRoot = 0.3779644730092272;  // 1/sqrt(7), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 1/7
        0.9749279121818236,  // c[5]: sin 2 pi 2/7
        0.4338837391175581,  // c[6]: sin 2 pi 3/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x1 = io.pair(1);
        // doubled bins
        const P t0 = c[0] * x1;
        const V t1 = part<0>(t0);
        const P x2 = io.pair(2);
        const P t2 = c[0] * x2;
        const V t3 = part<0>(t2);
        // spectrum block of 7
        const V t4 = t1 + t3;
        const P x3 = io.pair(3);
        // doubled bins
        const P t5 = c[0] * x3;
        const V t6 = part<0>(t5);
        // spectrum block of 7
        const V t7 = t4 + t6;
        const V x0r = io.re(0);
        const V t8 = t7 + x0r;
        io.out(0, t8);
        const V t9 = c[1] * t1;
        const V t10 = c[2] * t3;
        const V t11 = t9 - t10;
        const V t12 = c[3] * t6;
        const V t13 = t11 - t12;
        const V t14 = t13 + x0r;
        const V t15 = part<1>(t0);
        const V t16 = c[4] * t15;
        const V t17 = part<1>(t2);
        const V t18 = c[5] * t17;
        const V t19 = t16 + t18;
        const V t20 = part<1>(t5);
        const V t21 = c[6] * t20;
        const V t22 = t19 + t21;
        const V t23 = t14 - t22;
        io.out(1, t23);
        const V t24 = t14 + t22;
        io.out(6, t24);
        const V t25 = c[2] * t1;
        const V t26 = x0r - t25;
        const V t27 = c[3] * t3;
        const V t28 = t26 - t27;
        const V t29 = c[1] * t6;
        const V t30 = t28 + t29;
        const V t31 = c[5] * t15;
        const V t32 = c[6] * t17;
        const V t33 = t31 - t32;
        const V t34 = c[4] * t20;
        const V t35 = t33 - t34;
        const V t36 = t30 - t35;
        io.out(2, t36);
        const V t37 = t30 + t35;
        io.out(5, t37);
        const V t38 = c[3] * t1;
        const V t39 = x0r - t38;
        const V t40 = c[1] * t3;
        const V t41 = t39 + t40;
        const V t42 = c[2] * t6;
        const V t43 = t41 - t42;
        const V t44 = c[6] * t15;
        const V t45 = c[4] * t17;
        const V t46 = t44 - t45;
        const V t47 = c[5] * t20;
        const V t48 = t46 + t47;
        const V t49 = t43 - t48;
        io.out(3, t49);
        const V t50 = t43 + t48;
        io.out(4, t50);
    }
};

}  // namespace zulg
