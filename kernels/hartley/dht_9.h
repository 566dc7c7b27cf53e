// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 9.
// Hartley transform of 9 points, form F.
// 20 additions, 20 subtractions, 20 multiplications (29 with `scale`); 6 constants; 10 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<9> {
    static constexpr int steps = 69;  // with `scale`
    static constexpr double inverseRoot = 0.3333333333333333;  // 1/sqrt(9), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6427876096865394,  // c[2]: sin 2 pi 1/9
        0.766044443118978,  // c[3]: cos 2 pi 1/9
        0.984807753012208,  // c[4]: sin 2 pi 2/9
        0.17364817766693036,  // c[5]: cos 2 pi 2/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 3
        const V x3 = io.in(3);
        const V x6 = io.in(6);
        const V t0 = x3 + x6;
        const V t1 = x3 - x6;
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        const V t3 = c[0] * t0;
        const V t4 = x0 - t3;
        const V t5 = c[1] * t1;
        // real block of 3
        const V x4 = io.in(4);
        const V x7 = io.in(7);
        const V t6 = x4 + x7;
        const V t7 = x4 - x7;
        const V x1 = io.in(1);
        const V t8 = t6 + x1;
        const V t9 = c[0] * t6;
        const V t10 = x1 - t9;
        const V t11 = c[1] * t7;
        // real block of 3
        const V x5 = io.in(5);
        const V x8 = io.in(8);
        const V t12 = x5 + x8;
        const V t13 = x5 - x8;
        const V x2 = io.in(2);
        const V t14 = t12 + x2;
        const V t15 = c[0] * t12;
        const V t16 = x2 - t15;
        const V t17 = c[1] * t13;
        // real block of 3
        const V t18 = t8 + t14;
        const V t19 = t8 - t14;
        const V t20 = t18 + t2;
        io.out(0, t20);
        const V t21 = c[0] * t18;
        const V t22 = t2 - t21;
        const V t23 = c[1] * t19;
        // real block of 9
        const V t24 = c[2] * t11;
        const V t25 = c[3] * t10;
        const V t26 = t25 - t24;
        const V t27 = c[2] * t10;
        const V t28 = c[3] * t11;
        const V t29 = t28 + t27;
        const V t30 = c[4] * t17;
        const V t31 = c[5] * t16;
        const V t32 = t31 - t30;
        const V t33 = c[4] * t16;
        const V t34 = c[5] * t17;
        const V t35 = t34 + t33;
        // complex block of 3
        const V t36 = t26 + t32;
        const V t37 = t29 + t35;
        const V t38 = t26 - t32;
        const V t39 = t35 - t29;
        const V t40 = t36 + t4;
        const V t41 = t37 + t5;
        const V t42 = c[0] * t36;
        const V t43 = t4 - t42;
        const V t44 = c[0] * t37;
        const V t45 = t44 - t5;
        const V t46 = c[1] * t38;
        const V t47 = c[1] * t39;
        const V t48 = t43 + t47;
        const V t49 = t45 - t46;
        const V t50 = t43 - t47;
        const V t51 = t45 + t46;
        // output stage
        const V t52 = t40 + t41;
        io.out(1, t52);
        const V t53 = t40 - t41;
        io.out(8, t53);
        const V t54 = t50 + t51;
        io.out(2, t54);
        const V t55 = t50 - t51;
        io.out(7, t55);
        const V t56 = t22 + t23;
        io.out(3, t56);
        const V t57 = t22 - t23;
        io.out(6, t57);
        const V t58 = t48 - t49;
        io.out(4, t58);
        const V t59 = t48 + t49;
        io.out(5, t59);
    }
};

}  // namespace zulg
