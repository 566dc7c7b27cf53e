// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 14.
// Forward DFT of 14 real points, prime-factor 2, 7; two lanes to a register.
// 16 sums, 16 differences, 18 products of registers, which do the 112 steps of the graph, those with
// `scale` included; 14 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<14> {
    static constexpr int steps = 112;  // with `scale`
    static constexpr double inverseRoot = 0.2672612419124244;  // 1/sqrt(14), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 2/7
        0.9009688679024191,  // c[1]: -cos 2 pi 10/7
        0.6234898018587335,  // c[2]: cos 2 pi 8/7
        0.9749279121818236,  // c[3]: sin 2 pi 2/7
        0.4338837391175581,  // c[4]: sin 2 pi 10/7
        0.7818314824680298,  // c[5]: sin 2 pi 8/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_2 = io.in(0, 2);
        const P x7_9 = io.in(7, 9);
        // real block of 2
        const P t0 = x0_2 + x7_9;
        const P t1 = x0_2 - x7_9;
        const P x4_6 = io.in(4, 6);
        const P x11_13 = io.in(11, 13);
        // real block of 2
        const P t2 = x4_6 + x11_13;
        const P t3 = x4_6 - x11_13;
        const P x8_10 = io.in(8, 10);
        const P x1_3 = io.in(1, 3);
        // real block of 2
        const P t4 = x8_10 + x1_3;
        const P t5 = x8_10 - x1_3;
        const V x12 = io.in(12);
        const V x5 = io.in(5);
        // real block of 2
        const V t6 = x12 + x5;
        const V t7 = x12 - x5;
        const P t8 = shuffled<1, 3>(t0, t1);
        const P t9 = joined(t6, t7);
        // real block of 7, multiplier 2
        const P t10 = t8 + t9;
        const P t11 = t8 - t9;
        const P t12 = shuffled<1, 3>(t4, t5);
        const P t13 = shuffled<0, 2>(t2, t3);
        const P t14 = t12 + t13;
        const P t15 = t12 - t13;
        const P t16 = shuffled<0, 2>(t4, t5);
        const P t17 = shuffled<1, 3>(t2, t3);
        const P t18 = t16 + t17;
        const P t19 = t16 - t17;
        const P t20 = t10 + t14;
        const P t21 = t20 + t18;
        const P t22 = shuffled<0, 2>(t0, t1);
        const P t23 = t21 + t22;
        const V t24 = part<0>(t23);
        io.re(0, t24);
        const V t25 = part<1>(t23);
        io.re(7, t25);
        const P t26 = c[0] * t10;
        const P t27 = t22 - t26;
        const P t28 = c[1] * t14;
        const P t29 = t27 - t28;
        const P t30 = c[2] * t18;
        const P t31 = t29 + t30;
        const P t32 = c[3] * t11;
        const P t33 = c[4] * t15;
        const P t34 = t32 + t33;
        const P t35 = c[5] * t19;
        const P t36 = t34 + t35;
        const P t37 = shuffled<0, 2>(t31, t36);
        io.pair(2, negated<0, 1>(t37));
        const P t38 = shuffled<1, 3>(t31, t36);
        io.pair(5, t38);
        const P t39 = c[1] * t10;
        const P t40 = t22 - t39;
        const P t41 = c[2] * t14;
        const P t42 = t40 + t41;
        const P t43 = c[0] * t18;
        const P t44 = t42 - t43;
        const P t45 = c[4] * t11;
        const P t46 = c[5] * t15;
        const P t47 = t45 + t46;
        const P t48 = c[3] * t19;
        const P t49 = t47 - t48;
        const P t50 = shuffled<1, 3>(t44, t49);
        io.pair(3, negated<0, 1>(t50));
        const P t51 = shuffled<0, 2>(t44, t49);
        io.pair(4, t51);
        const P t52 = c[2] * t10;
        const P t53 = c[0] * t14;
        const P t54 = t52 - t53;
        const P t55 = c[1] * t18;
        const P t56 = t54 - t55;
        const P t57 = t56 + t22;
        const P t58 = c[5] * t11;
        const P t59 = c[3] * t15;
        const P t60 = t58 - t59;
        const P t61 = c[4] * t19;
        const P t62 = t60 - t61;
        const P t63 = shuffled<1, 3>(t57, t62);
        io.pair(1, negated<0, 1>(t63));
        const P t64 = shuffled<0, 2>(t57, t62);
        io.pair(6, t64);
    }
};

}  // namespace zulg
