// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 12.
// Hartley transform of 12 points, form I.
// 24 additions, 24 subtractions, 8 multiplications (20 with `scale`); 2 constants; 17 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<12> {
    static constexpr int steps = 68;  // with `scale`
    static constexpr double inverseRoot = 0.2886751345948129;  // 1/sqrt(12), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x4 = io.in(4);
        const V x8 = io.in(8);
        const V t0 = x4 + x8;
        const V t1 = x4 - x8;
        // spectrum block of 3
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        const V t3 = c[0] * t0;
        const V t4 = x0 - t3;
        const V t5 = c[1] * t1;
        // input stage
        const V x1 = io.in(1);
        const V x11 = io.in(11);
        const V t6 = x1 + x11;
        const V t7 = x1 - x11;
        const V x5 = io.in(5);
        const V x7 = io.in(7);
        const V t8 = x5 + x7;
        const V t9 = x5 - x7;
        // complex block of 3
        const V t10 = t9 + t7;
        const V t11 = c[0] * t10;
        const V t12 = t8 + t6;
        const V t13 = c[0] * t12;
        const V t14 = t7 - t9;
        const V t15 = t8 - t6;
        // input stage
        const V x2 = io.in(2);
        const V x10 = io.in(10);
        const V t16 = x2 + x10;
        const V t17 = x2 - x10;
        // spectrum block of 3
        const V x6 = io.in(6);
        const V t18 = t16 + x6;
        const V t19 = c[0] * t16;
        const V t20 = x6 - t19;
        const V t21 = c[1] * t17;
        // input stage
        const V x3 = io.in(3);
        const V x9 = io.in(9);
        const V t22 = x3 + x9;
        const V t23 = x3 - x9;
        // spectrum block of 3
        const V t24 = t4 - t5;
        // spectrum block of 3
        const V t25 = t20 + t21;
        // spectrum block of 2
        const V t26 = t24 + t25;
        const V t27 = t24 - t25;
        // spectrum block of 3
        const V t28 = t4 + t5;
        // spectrum block of 3
        const V t29 = t20 - t21;
        // spectrum block of 2
        const V t30 = t28 + t29;
        const V t31 = t28 - t29;
        // complex block of 3
        const V t32 = t11 + t23;
        const V t33 = c[1] * t15;
        const V t34 = t32 + t33;
        const V t35 = t32 - t33;
        const V t36 = t22 - t13;
        const V t37 = c[1] * t14;
        const V t38 = t36 - t37;
        const V t39 = t36 + t37;
        // spectrum block of 2
        const V t40 = t26 + t38;
        io.out(8, t40);
        const V t41 = t26 - t38;
        io.out(2, t41);
        // spectrum block of 2
        const V t42 = t27 + t34;
        io.out(5, t42);
        const V t43 = t27 - t34;
        io.out(11, t43);
        // spectrum block of 2
        const V t44 = t30 + t39;
        io.out(4, t44);
        const V t45 = t30 - t39;
        io.out(10, t45);
        // spectrum block of 2
        const V t46 = t31 + t35;
        io.out(1, t46);
        const V t47 = t31 - t35;
        io.out(7, t47);
        // complex block of 3
        const V t48 = t23 - t10;
        // spectrum block of 2
        const V t49 = t2 - t18;
        // spectrum block of 2
        const V t50 = t49 + t48;
        io.out(9, t50);
        const V t51 = t49 - t48;
        io.out(3, t51);
        // complex block of 3
        const V t52 = t12 + t22;
        // spectrum block of 2
        const V t53 = t2 + t18;
        // spectrum block of 2
        const V t54 = t53 + t52;
        io.out(0, t54);
        const V t55 = t53 - t52;
        io.out(6, t55);
    }
};

}  // namespace zulg
