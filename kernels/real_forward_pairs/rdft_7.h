// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 7.
// Forward DFT of 7 real points, direct; two lanes to a register.
// 11 sums, 11 differences, 18 products of registers, which do the 49 steps of the graph, those with
// `scale` included; 5 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<7> {
    static constexpr int steps = 49;  // with `scale`
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
        const ConstantsOf<Ports, RealForwardPairs> c{};
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
        io.re(0, t8);
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
        const P t22 = joined(t14, t21);
        io.pair(1, t22);
        const V t23 = c[1] * t0;
        const V t24 = x0 - t23;
        const V t25 = c[2] * t4;
        const V t26 = t24 - t25;
        const V t27 = c[0] * t6;
        const V t28 = t26 + t27;
        const V t29 = c[3] * t1;
        const V t30 = c[4] * t15;
        const V t31 = t29 + t30;
        const V t32 = c[5] * t17;
        const V t33 = t31 + t32;
        const V t34 = flipped<1>(t33);
        const P t35 = joined(t28, t34);
        io.pair(2, t35);
        const V t36 = c[2] * t0;
        const V t37 = x0 - t36;
        const V t38 = c[0] * t4;
        const V t39 = t37 + t38;
        const V t40 = c[1] * t6;
        const V t41 = t39 - t40;
        const V t42 = c[3] * t17;
        const V t43 = c[4] * t1;
        const V t44 = t42 - t43;
        const V t45 = c[5] * t15;
        const V t46 = t44 - t45;
        const P t47 = joined(t41, t46);
        io.pair(3, t47);
    }
};

}  // namespace zulg
