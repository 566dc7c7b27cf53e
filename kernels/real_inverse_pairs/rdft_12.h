// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 12.
// Inverse DFT to 12 real points, prime-factor 3, 4; two lanes to a register.
// 11 sums, 9 differences, 8 products of registers, which do the 66 steps of the graph, those with
// `scale` included; 12 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<12> {
    static constexpr int steps = 66;  // with `scale`
    static constexpr double inverseRoot = 0.2886751345948129;  // 1/sqrt(12), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        1.7320508075688772,  // c[3]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x5 = io.pair(5);
        // doubled bins
        const P t0 = c[0] * x5;
        const P x1 = io.pair(1);
        const P t1 = c[0] * x1;
        // complex block of 3
        const P t2 = t0 + t1;
        const P t3 = shuffled<0, 3>(t0, t1);
        const P t4 = shuffled<0, 3>(t1, t0);
        const P t5 = t3 - t4;
        const P x3 = io.pair(3);
        // doubled bins
        const P t6 = c[0] * x3;
        const P t7 = flipped<0, 1>(t2);
        // complex block of 3
        const P t8 = t6 + t7;
        const P t9 = P(-c[1], c[1]) * t2;
        const P t10 = t9 + t6;
        const P t11 = P(c[2], -c[2]) * t5;
        const P t12 = shuffled<1, 0>(t11);
        const P t13 = t10 + t12;
        const P t14 = t10 - t12;
        const P x4 = io.pair(4);
        const P x2 = io.pair(2);
        const P t15 = shuffled<0, 2>(x4, x2);
        // doubled bins
        const P t16 = c[0] * t15;
        const V x0r = io.re(0);
        const V x6r = io.re(6);
        const P t17 = joined(x0r, x6r);
        // spectrum block of 3
        const P t18 = t16 + t17;
        const P t19 = c[1] * t16;
        const P t20 = t17 - t19;
        const P t21 = shuffled<1, 3>(x4, x2);
        const P t22 = P(-c[3], c[3]) * t21;
        const P t23 = t20 + t22;
        const P t24 = t20 - t22;
        const P t25 = shuffled<0, 2>(t18, t23);
        const P t26 = shuffled<1, 3>(t18, t23);
        // spectrum block of 2
        const P t27 = t25 + t26;
        const P t28 = t25 - t26;
        const P t29 = shuffled<0, 2>(t8, t13);
        // spectrum block of 2
        const P t30 = t27 + t29;
        io.out(0, 4, t30);
        const P t31 = t27 - t29;
        io.out(6, 10, t31);
        const P t32 = shuffled<1, 3>(t8, t13);
        // spectrum block of 2
        const P t33 = t28 + t32;
        io.out(3, 7, t33);
        const P t34 = t28 - t32;
        io.out(9, 1, t34);
        const V t35 = part<0>(t24);
        const V t36 = part<1>(t24);
        // spectrum block of 2
        const V t37 = t35 + t36;
        const V t38 = t35 - t36;
        const P t39 = joined(t37, t38);
        // spectrum block of 2
        const P t40 = t39 + t14;
        io.out(8, 11, t40);
        const P t41 = t39 - t14;
        io.out(2, 5, t41);
    }
};

}  // namespace zulg
