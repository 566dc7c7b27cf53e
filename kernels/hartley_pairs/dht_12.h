// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 12.
// Hartley transform of 12 points, form I; two lanes to a register.
// 14 sums, 12 differences, 4 products of registers, which do the 68 steps of the graph, those with
// `scale` included; 14 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<12> {
    static constexpr int steps = 68;  // with `scale`
    static constexpr double inverseRoot = 0.2886751345948129;  // 1/sqrt(12), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x11_10 = io.in(11, 10);
        // input stage
        const P t0 = x1_2 + x11_10;
        const P t1 = x1_2 - x11_10;
        const P x3_4 = io.in(3, 4);
        const P x9_8 = io.in(9, 8);
        const P t2 = x3_4 + x9_8;
        const P t3 = x3_4 - x9_8;
        const V x5 = io.in(5);
        const V x7 = io.in(7);
        const V t4 = x5 + x7;
        const V t5 = x5 - x7;
        const P t6 = joined(t4, t5);
        const P t7 = shuffled<0, 2>(t0, t1);
        // complex block of 3
        const P t8 = t6 + t7;
        const P t9 = shuffled<0, 3>(t6, t7);
        const P t10 = shuffled<0, 3>(t7, t6);
        const P t11 = t9 - t10;
        const P t12 = shuffled<0, 2>(t2, t3);
        const P t13 = flipped<0, 1>(t8);
        const P t14 = t12 + t13;
        const P t15 = P(-c[0], c[0]) * t8;
        const P t16 = t15 + t12;
        const P t17 = P(c[1], -c[1]) * t11;
        const P t18 = shuffled<1, 0>(t17);
        const P t19 = t16 + t18;
        const P t20 = t16 - t18;
        const P t21 = shuffled<1, 3>(t2, t0);
        const P x0_6 = io.in(0, 6);
        // spectrum block of 3
        const P t22 = t21 + x0_6;
        const P t23 = c[0] * t21;
        const P t24 = x0_6 - t23;
        const P t25 = shuffled<1, 3>(t3, t1);
        const P t26 = P(-c[1], c[1]) * t25;
        const P t27 = t24 + t26;
        const P t28 = t24 - t26;
        const P t29 = shuffled<0, 2>(t22, t27);
        const P t30 = shuffled<1, 3>(t22, t27);
        // spectrum block of 2
        const P t31 = t29 + t30;
        const P t32 = t29 - t30;
        const P t33 = shuffled<0, 2>(t14, t19);
        // spectrum block of 2
        const P t34 = t31 + t33;
        io.out(0, 8, t34);
        const P t35 = t31 - t33;
        io.out(6, 2, t35);
        const P t36 = shuffled<1, 3>(t14, t19);
        // spectrum block of 2
        const P t37 = t32 + t36;
        io.out(9, 5, t37);
        const P t38 = t32 - t36;
        io.out(3, 11, t38);
        const V t39 = part<0>(t28);
        const V t40 = part<1>(t28);
        // spectrum block of 2
        const V t41 = t39 + t40;
        const V t42 = t39 - t40;
        const P t43 = joined(t41, t42);
        // spectrum block of 2
        const P t44 = t43 + t20;
        io.out(4, 1, t44);
        const P t45 = t43 - t20;
        io.out(10, 7, t45);
    }
};

}  // namespace zulg
