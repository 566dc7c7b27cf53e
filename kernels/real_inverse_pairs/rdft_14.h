// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 14.
// Inverse DFT to 14 real points, prime-factor 2, 7; two lanes to a register.
// 16 sums, 16 differences, 24 products of registers, which do the 124 steps of the graph, those with
// `scale` included; 7 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<14> {
    static constexpr int steps = 124;  // with `scale`
    static constexpr double inverseRoot = 0.2672612419124244;  // 1/sqrt(14), for `scale`
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
        const V x0r = io.re(0);
        const V x7r = io.re(7);
        // spectrum block of 2
        const V t0 = x0r + x7r;
        const V t1 = x0r - x7r;
        const P x2 = io.pair(2);
        // doubled bins
        const P t2 = c[0] * x2;
        const P x5 = io.pair(5);
        const P t3 = P(c[0], -c[0]) * x5;
        // complex block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x3 = io.pair(3);
        const P t7 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x6 = io.pair(6);
        // doubled bins
        const P t10 = c[0] * x6;
        const P x1 = io.pair(1);
        const P t11 = P(c[0], -c[0]) * x1;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        const P t14 = shuffled<0, 2>(t4, t5);
        const P t15 = shuffled<0, 2>(t8, t9);
        // spectrum block of 7, multiplier 2
        const P t16 = t14 + t15;
        const P t17 = shuffled<0, 2>(t12, t13);
        const P t18 = t16 + t17;
        const P t19 = joined(t0, t1);
        const P t20 = t18 + t19;
        io.out(0, 7, t20);
        const P t21 = c[1] * t14;
        const P t22 = c[2] * t15;
        const P t23 = t21 - t22;
        const P t24 = c[3] * t17;
        const P t25 = t23 - t24;
        const P t26 = t25 + t19;
        const P t27 = shuffled<1, 3>(t4, t5);
        const P t28 = c[4] * t27;
        const P t29 = shuffled<1, 3>(t8, t9);
        const P t30 = c[5] * t29;
        const P t31 = t28 + t30;
        const P t32 = shuffled<1, 3>(t12, t13);
        const P t33 = c[6] * t32;
        const P t34 = t31 + t33;
        const P t35 = t26 - t34;
        io.out(8, 1, t35);
        const P t36 = t26 + t34;
        io.out(6, 13, t36);
        const P t37 = c[2] * t14;
        const P t38 = t19 - t37;
        const P t39 = c[3] * t15;
        const P t40 = t38 - t39;
        const P t41 = c[1] * t17;
        const P t42 = t40 + t41;
        const P t43 = c[5] * t27;
        const P t44 = c[6] * t29;
        const P t45 = t43 - t44;
        const P t46 = c[4] * t32;
        const P t47 = t45 - t46;
        const P t48 = t42 - t47;
        io.out(2, 9, t48);
        const P t49 = t42 + t47;
        io.out(12, 5, t49);
        const P t50 = c[3] * t14;
        const P t51 = t19 - t50;
        const P t52 = c[1] * t15;
        const P t53 = t51 + t52;
        const P t54 = c[2] * t17;
        const P t55 = t53 - t54;
        const P t56 = c[6] * t27;
        const P t57 = c[4] * t29;
        const P t58 = t56 - t57;
        const P t59 = c[5] * t32;
        const P t60 = t58 + t59;
        const P t61 = t55 - t60;
        io.out(10, 3, t61);
        const P t62 = t55 + t60;
        io.out(4, 11, t62);
    }
};

}  // namespace zulg
