// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 12.
// Hartley transform of 12 points, form I.
// 24 additions, 24 subtractions, 8 multiplications (20 with `scale`); 2 constants; 13 values alive at most.
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
        const V x1 = io.in(1);
        const V x11 = io.in(11);
        const V t0 = x1 + x11;
        const V t1 = x1 - x11;
        const V x2 = io.in(2);
        const V x10 = io.in(10);
        const V t2 = x2 + x10;
        const V t3 = x2 - x10;
        const V x3 = io.in(3);
        const V x9 = io.in(9);
        const V t4 = x3 + x9;
        const V t5 = x3 - x9;
        const V x4 = io.in(4);
        const V x8 = io.in(8);
        const V t6 = x4 + x8;
        const V t7 = x4 - x8;
        const V x5 = io.in(5);
        const V x7 = io.in(7);
        const V t8 = x5 + x7;
        const V t9 = x5 - x7;
        // spectrum block of 3
        const V x0 = io.in(0);
        const V t10 = t6 + x0;
        const V t11 = c[0] * t6;
        const V t12 = x0 - t11;
        const V t13 = c[1] * t7;
        const V t14 = t12 - t13;
        const V t15 = t12 + t13;
        // complex block of 3
        const V t16 = t9 + t1;
        const V t17 = t8 + t0;
        const V t18 = t1 - t9;
        const V t19 = t8 - t0;
        const V t20 = t5 - t16;
        const V t21 = t17 + t4;
        const V t22 = c[0] * t16;
        const V t23 = t22 + t5;
        const V t24 = c[0] * t17;
        const V t25 = t4 - t24;
        const V t26 = c[1] * t18;
        const V t27 = c[1] * t19;
        const V t28 = t23 + t27;
        const V t29 = t25 - t26;
        const V t30 = t23 - t27;
        const V t31 = t25 + t26;
        // spectrum block of 3
        const V x6 = io.in(6);
        const V t32 = t2 + x6;
        const V t33 = c[0] * t2;
        const V t34 = x6 - t33;
        const V t35 = c[1] * t3;
        const V t36 = t34 + t35;
        const V t37 = t34 - t35;
        // spectrum block of 2
        const V t38 = t10 + t32;
        const V t39 = t10 - t32;
        // spectrum block of 2
        const V t40 = t38 + t21;
        io.out(0, t40);
        const V t41 = t38 - t21;
        io.out(6, t41);
        // spectrum block of 2
        const V t42 = t39 + t20;
        io.out(9, t42);
        const V t43 = t39 - t20;
        io.out(3, t43);
        // spectrum block of 2
        const V t44 = t14 + t36;
        const V t45 = t14 - t36;
        // spectrum block of 2
        const V t46 = t44 + t29;
        io.out(8, t46);
        const V t47 = t44 - t29;
        io.out(2, t47);
        // spectrum block of 2
        const V t48 = t45 + t28;
        io.out(5, t48);
        const V t49 = t45 - t28;
        io.out(11, t49);
        // spectrum block of 2
        const V t50 = t15 + t37;
        const V t51 = t15 - t37;
        // spectrum block of 2
        const V t52 = t50 + t31;
        io.out(4, t52);
        const V t53 = t50 - t31;
        io.out(10, t53);
        // spectrum block of 2
        const V t54 = t51 + t30;
        io.out(1, t54);
        const V t55 = t51 - t30;
        io.out(7, t55);
    }
};

}  // namespace zulg
