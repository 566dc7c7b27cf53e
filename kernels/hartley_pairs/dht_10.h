// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 10.
// Hartley transform of 10 points, form I; two lanes to a register.
// 12 sums, 10 differences, 8 products of registers, which do the 68 steps of the graph, those with
// `scale` included; 9 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<10> {
    static constexpr int steps = 68;  // with `scale`
    static constexpr double inverseRoot = 0.31622776601683794;  // 1/sqrt(10), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x9_8 = io.in(9, 8);
        // input stage
        const P t0 = x1_2 + x9_8;
        const P t1 = x1_2 - x9_8;
        const P x3_4 = io.in(3, 4);
        const P x7_6 = io.in(7, 6);
        const P t2 = x3_4 + x7_6;
        const P t3 = x3_4 - x7_6;
        const V x0 = io.in(0);
        const V x5 = io.in(5);
        // spectrum block of 2
        const V t4 = x0 + x5;
        const V t5 = x0 - x5;
        const P t6 = shuffled<1, 3>(t0, t1);
        const P t7 = shuffled<0, 2>(t2, t3);
        const P t8 = flipped<0, 1>(t7);
        // complex block of 2
        const P t9 = t6 + t8;
        const P t10 = t6 - t8;
        const P t11 = shuffled<1, 3>(t2, t3);
        const P t12 = shuffled<0, 2>(t0, t1);
        const P t13 = flipped<0, 1>(t12);
        // complex block of 2
        const P t14 = t11 + t13;
        const P t15 = t11 - t13;
        const P t16 = shuffled<0, 2>(t9, t10);
        const P t17 = shuffled<0, 2>(t14, t15);
        // spectrum block of 5, multiplier 2
        const P t18 = t16 + t17;
        const P t19 = joined(t4, t5);
        const P t20 = t18 + t19;
        io.out(0, 5, t20);
        const P t21 = c[0] * t16;
        const P t22 = c[1] * t17;
        const P t23 = t21 - t22;
        const P t24 = t23 + t19;
        const P t25 = shuffled<1, 3>(t9, t10);
        const P t26 = c[2] * t25;
        const P t27 = shuffled<1, 3>(t14, t15);
        const P t28 = c[3] * t27;
        const P t29 = t26 + t28;
        const P t30 = t24 - t29;
        io.out(4, 9, t30);
        const P t31 = t24 + t29;
        io.out(6, 1, t31);
        const P t32 = c[1] * t16;
        const P t33 = t19 - t32;
        const P t34 = c[0] * t17;
        const P t35 = t33 + t34;
        const P t36 = c[3] * t25;
        const P t37 = c[2] * t27;
        const P t38 = t36 - t37;
        const P t39 = t35 - t38;
        io.out(8, 3, t39);
        const P t40 = t35 + t38;
        io.out(2, 7, t40);
    }
};

}  // namespace zulg
