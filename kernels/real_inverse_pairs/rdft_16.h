// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 16.
// Inverse DFT to 16 real points, twiddled 4, 4; two lanes to a register.
// 18 sums, 15 differences, 14 products of registers, which do the 100 steps of the graph, those with
// `scale` included; 13 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<16> {
    static constexpr int steps = 100;  // with `scale`
    static constexpr double inverseRoot = 0.25;  // 1/sqrt(16), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.9238795325112867,  // c[1]: cos 2 pi 15/16
        0.3826834323650898,  // c[2]: -sin 2 pi 15/16
        0.7071067811865476,  // c[3]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x8r = io.re(8);
        // spectrum block of 2
        const V t0 = x0r + x8r;
        const V t1 = x0r - x8r;
        const P t2 = joined(t0, t1);
        const P x4 = io.pair(4);
        // doubled bins
        const P t3 = P(c[0], -c[0]) * x4;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x1 = io.pair(1);
        // doubled bins
        const P t6 = c[0] * x1;
        const P x7 = io.pair(7);
        const P t7 = P(c[0], -c[0]) * x7;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x5 = io.pair(5);
        // doubled bins
        const P t10 = c[0] * x5;
        const P x3 = io.pair(3);
        const P t11 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        // complex block of 2
        const P t14 = t8 + t12;
        const P t15 = t8 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<1, 0>(t16);
        // complex block of 2
        const P t18 = t9 + t17;
        const P t19 = t9 - t17;
        // spectrum block of 16
        const P t20 = c[1] * t18;
        const P t21 = shuffled<1, 0>(t18);
        const P t22 = P(-c[2], c[2]) * t21;
        const P t23 = t20 + t22;
        const P t24 = shuffled<1, 0>(t15);
        const P t25 = flipped<0, 1>(t24);
        const P t26 = t15 + t25;
        const P t27 = c[2] * t19;
        const P t28 = shuffled<1, 0>(t19);
        const P t29 = P(-c[1], c[1]) * t28;
        const P t30 = t27 + t29;
        const P x2 = io.pair(2);
        // doubled bins
        const P t31 = c[0] * x2;
        const V t32 = part<0>(t31);
        const P x6 = io.pair(6);
        const P t33 = c[0] * x6;
        const V t34 = part<0>(t33);
        // mirrored skew block of 4
        const V t35 = t32 - t34;
        const V t36 = part<1>(t31);
        const V t37 = part<1>(t33);
        const V t38 = t36 + t37;
        const V t39 = t32 + t34;
        const V t40 = c[3] * t35;
        const V t41 = c[3] * t38;
        const V t42 = t40 - t41;
        const V t43 = t36 - t37;
        const V t44 = t40 + t41;
        const P t45 = joined(t39, t42);
        // spectrum block of 2
        const P t46 = t4 + t45;
        const P t47 = t4 - t45;
        const P t48 = shuffled<0, 2>(t14, t23);
        // spectrum block of 2
        const P t49 = t46 + t48;
        io.out(0, 1, t49);
        const P t50 = t46 - t48;
        io.out(8, 9, t50);
        const P t51 = shuffled<1, 3>(t14, t23);
        // spectrum block of 2
        const P t52 = t47 - t51;
        io.out(4, 5, t52);
        const P t53 = t47 + t51;
        io.out(12, 13, t53);
        const P t54 = joined(t43, t44);
        // spectrum block of 2
        const P t55 = t5 - t54;
        const P t56 = t5 + t54;
        // spectrum block of 16
        const P t57 = P(c[3], -c[3]) * t26;
        const P t58 = shuffled<1, 2>(t57, t30);
        // spectrum block of 2
        const P t59 = t55 + t58;
        io.out(2, 3, t59);
        const P t60 = t55 - t58;
        io.out(10, 11, t60);
        const P t61 = shuffled<0, 3>(t57, t30);
        // spectrum block of 2
        const P t62 = t56 - t61;
        io.out(6, 7, t62);
        const P t63 = t56 + t61;
        io.out(14, 15, t63);
    }
};

}  // namespace zulg
