// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 9.
// Inverse DFT to 9 real points, twiddled 3, 3; two lanes to a register.
// 9 sums, 8 differences, 13 products of registers, which do the 66 steps of the graph, those with
// `scale` included; 9 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<9> {
    static constexpr int steps = 66;  // with `scale`
    static constexpr double inverseRoot = 0.3333333333333333;  // 1/sqrt(9), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.766044443118978,  // c[3]: cos 2 pi 8/9
        0.17364817766693036,  // c[4]: cos 2 pi 7/9
        0.6427876096865394,  // c[5]: -sin 2 pi 8/9
        0.984807753012208,  // c[6]: -sin 2 pi 7/9
        1.7320508075688772,  // c[7]: sin 2 pi 1/3 times 2
        0.6634139481689384,  // c[8]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.1503837331804353,  // c[9]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.5566703992264194,  // c[10]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.8528685319524432,  // c[11]: sin 2 pi 1/3 times -sin 2 pi 7/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x3 = io.pair(3);
        const V t0 = part<0>(x3);
        // doubled bins
        const V t1 = c[0] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3
        const V t2 = t1 + x0r;
        const P x4 = io.pair(4);
        // doubled bins
        const P t3 = c[0] * x4;
        const P x2 = io.pair(2);
        const P t4 = P(c[0], -c[0]) * x2;
        // complex block of 3
        const P t5 = t3 + t4;
        const P t6 = t3 - t4;
        const P x1 = io.pair(1);
        // doubled bins
        const P t7 = c[0] * x1;
        // complex block of 3
        const P t8 = t5 + t7;
        const P t9 = c[1] * t5;
        const P t10 = t7 - t9;
        const P t11 = P(c[2], -c[2]) * t6;
        const P t12 = shuffled<1, 0>(t11);
        const P t13 = t10 + t12;
        const P t14 = t10 - t12;
        const P t15 = shuffled<0, 2>(t13, t14);
        // spectrum block of 9
        const P t16 = P(c[3], c[4]) * t15;
        const P t17 = shuffled<1, 3>(t13, t14);
        const P t18 = P(c[5], c[6]) * t17;
        const P t19 = t16 - t18;
        const V t20 = part<0>(t8);
        // spectrum block of 3
        const V t21 = t20 + t2;
        io.out(0, t21);
        const P t22 = joined(x0r, t2);
        const P t23 = joined(t1, t20);
        // spectrum block of 3
        const P t24 = c[1] * t23;
        const P t25 = t22 - t24;
        const P t26 = shuffled<1, 3>(x3, t8);
        const P t27 = P(c[7], c[2]) * t26;
        const P t28 = t25 - t27;
        const V t29 = part<1>(t28);
        io.out(3, t29);
        const P t30 = t25 + t27;
        const V t31 = part<1>(t30);
        io.out(6, t31);
        const P t32 = shuffled<0, 2>(t28, t30);
        // spectrum block of 3
        const P t33 = t19 + t32;
        io.out(1, 2, t33);
        const P t34 = c[1] * t19;
        const P t35 = t32 - t34;
        const P t36 = P(c[8], c[9]) * t17;
        const P t37 = P(c[10], c[11]) * t15;
        const P t38 = t36 + t37;
        const P t39 = t35 - t38;
        io.out(4, 5, t39);
        const P t40 = t35 + t38;
        io.out(7, 8, t40);
    }
};

}  // namespace zulg
