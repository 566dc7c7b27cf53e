// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 9.
// Hartley transform of 9 points, form F.
// 20 additions, 20 subtractions, 20 multiplications (29 with `scale`); 6 constants; 13 values alive at most.
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
        0.766044443118978,  // c[2]: cos 2 pi 1/9
        0.6427876096865394,  // c[3]: sin 2 pi 1/9
        0.17364817766693036,  // c[4]: cos 2 pi 2/9
        0.984807753012208,  // c[5]: sin 2 pi 2/9
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
        const V t8 = c[0] * t6;
        const V t9 = c[1] * t7;
        // real block of 3
        const V x5 = io.in(5);
        const V x8 = io.in(8);
        const V t10 = x5 + x8;
        const V t11 = x5 - x8;
        const V t12 = c[0] * t10;
        const V t13 = c[1] * t11;
        // real block of 3
        const V x1 = io.in(1);
        const V t14 = t6 + x1;
        // real block of 3
        const V x2 = io.in(2);
        const V t15 = t10 + x2;
        // real block of 3
        const V t16 = t14 + t15;
        // real block of 3
        const V t17 = x1 - t8;
        // real block of 9
        const V t18 = c[2] * t17;
        const V t19 = c[3] * t17;
        const V t20 = c[3] * t9;
        const V t21 = c[2] * t9;
        const V t22 = t18 - t20;
        const V t23 = t21 + t19;
        // real block of 3
        const V t24 = x2 - t12;
        // real block of 9
        const V t25 = c[4] * t24;
        const V t26 = c[5] * t24;
        const V t27 = c[5] * t13;
        const V t28 = c[4] * t13;
        const V t29 = t25 - t27;
        const V t30 = t28 + t26;
        // real block of 3
        const V t31 = t14 - t15;
        const V t32 = c[1] * t31;
        const V t33 = c[0] * t16;
        const V t34 = t2 - t33;
        // output stage
        const V t35 = t34 + t32;
        io.out(3, t35);
        const V t36 = t34 - t32;
        io.out(6, t36);
        // real block of 3
        const V t37 = t16 + t2;
        io.out(0, t37);
        // complex block of 3
        const V t38 = t22 + t29;
        const V t39 = c[0] * t38;
        const V t40 = t38 + t4;
        const V t41 = t4 - t39;
        const V t42 = t23 + t30;
        const V t43 = c[0] * t42;
        const V t44 = t42 + t5;
        const V t45 = t43 - t5;
        const V t46 = t22 - t29;
        const V t47 = c[1] * t46;
        const V t48 = t30 - t23;
        const V t49 = c[1] * t48;
        const V t50 = t41 + t49;
        const V t51 = t45 - t47;
        // output stage
        const V t52 = t50 - t51;
        io.out(4, t52);
        const V t53 = t50 + t51;
        io.out(5, t53);
        // complex block of 3
        const V t54 = t41 - t49;
        const V t55 = t45 + t47;
        // output stage
        const V t56 = t54 + t55;
        io.out(2, t56);
        const V t57 = t54 - t55;
        io.out(7, t57);
        const V t58 = t40 + t44;
        io.out(1, t58);
        const V t59 = t40 - t44;
        io.out(8, t59);
    }
};

}  // namespace zulg
