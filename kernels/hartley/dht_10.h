// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 10.
// Hartley transform of 10 points, form I.
// 23 additions, 19 subtractions, 16 multiplications (26 with `scale`); 4 constants; 13 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<10> {
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
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x9 = io.in(9);
        const V t0 = x1 + x9;
        const V t1 = x1 - x9;
        const V x2 = io.in(2);
        const V x8 = io.in(8);
        const V t2 = x2 + x8;
        const V t3 = x2 - x8;
        const V x3 = io.in(3);
        const V x7 = io.in(7);
        const V t4 = x3 + x7;
        const V t5 = x3 - x7;
        const V x4 = io.in(4);
        const V x6 = io.in(6);
        const V t6 = x4 + x6;
        const V t7 = x4 - x6;
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x5 = io.in(5);
        const V t8 = x0 + x5;
        const V t9 = x0 - x5;
        // complex block of 2
        const V t10 = t3 - t5;
        const V t11 = t2 + t4;
        const V t12 = t3 + t5;
        const V t13 = t2 - t4;
        // complex block of 2
        const V t14 = t7 - t1;
        const V t15 = t6 + t0;
        const V t16 = t7 + t1;
        const V t17 = t6 - t0;
        // spectrum block of 5, multiplier 2
        const V t18 = t11 + t15;
        const V t19 = t18 + t8;
        io.out(0, t19);
        const V t20 = c[0] * t11;
        const V t21 = c[1] * t15;
        const V t22 = t20 - t21;
        const V t23 = t22 + t8;
        const V t24 = c[2] * t10;
        const V t25 = c[3] * t14;
        const V t26 = t24 + t25;
        const V t27 = t23 - t26;
        io.out(4, t27);
        const V t28 = t23 + t26;
        io.out(6, t28);
        const V t29 = c[1] * t11;
        const V t30 = t8 - t29;
        const V t31 = c[0] * t15;
        const V t32 = t30 + t31;
        const V t33 = c[3] * t10;
        const V t34 = c[2] * t14;
        const V t35 = t33 - t34;
        const V t36 = t32 - t35;
        io.out(8, t36);
        const V t37 = t32 + t35;
        io.out(2, t37);
        // spectrum block of 5, multiplier 2
        const V t38 = t13 + t17;
        const V t39 = t38 + t9;
        io.out(5, t39);
        const V t40 = c[0] * t13;
        const V t41 = c[1] * t17;
        const V t42 = t40 - t41;
        const V t43 = t42 + t9;
        const V t44 = c[2] * t12;
        const V t45 = c[3] * t16;
        const V t46 = t44 + t45;
        const V t47 = t43 - t46;
        io.out(9, t47);
        const V t48 = t43 + t46;
        io.out(1, t48);
        const V t49 = c[1] * t13;
        const V t50 = t9 - t49;
        const V t51 = c[0] * t17;
        const V t52 = t50 + t51;
        const V t53 = c[3] * t12;
        const V t54 = c[2] * t16;
        const V t55 = t53 - t54;
        const V t56 = t52 - t55;
        io.out(3, t56);
        const V t57 = t52 + t55;
        io.out(7, t57);
    }
};

}  // namespace zulg
