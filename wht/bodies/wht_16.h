// Written by `generate write`; do not edit. The rule: generator/rules/wht.cpp, wht, 16.
// Walsh-Hadamard transform of 16 points, stages in rising stride.
// 32 additions, 32 subtractions, 0 multiplications; 0 constants; 17 values alive at most.
#pragma once

#include "wht/bodies.h"

namespace zulg {

template <>
struct WhtBlock<16> {
    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // 8 points from 0, stride 1
        const V x0 = io.in(0);
        const V x1 = io.in(1);
        const V t0 = x0 + x1;
        const V t1 = x0 - x1;
        const V x2 = io.in(2);
        const V x3 = io.in(3);
        const V t2 = x2 + x3;
        const V t3 = x2 - x3;
        const V x4 = io.in(4);
        const V x5 = io.in(5);
        const V t4 = x4 + x5;
        const V t5 = x4 - x5;
        const V x6 = io.in(6);
        const V x7 = io.in(7);
        const V t6 = x6 + x7;
        const V t7 = x6 - x7;
        const V t8 = t0 + t2;
        const V t9 = t0 - t2;
        const V t10 = t1 + t3;
        const V t11 = t1 - t3;
        const V t12 = t4 + t6;
        const V t13 = t4 - t6;
        const V t14 = t5 + t7;
        const V t15 = t5 - t7;
        const V t16 = t8 + t12;
        const V t17 = t8 - t12;
        const V t18 = t10 + t14;
        const V t19 = t10 - t14;
        const V t20 = t9 + t13;
        const V t21 = t9 - t13;
        const V t22 = t11 + t15;
        const V t23 = t11 - t15;
        // 8 points from 8, stride 1
        const V x8 = io.in(8);
        const V x9 = io.in(9);
        const V t24 = x8 + x9;
        const V t25 = x8 - x9;
        const V x10 = io.in(10);
        const V x11 = io.in(11);
        const V t26 = x10 + x11;
        const V t27 = x10 - x11;
        const V x12 = io.in(12);
        const V x13 = io.in(13);
        const V t28 = x12 + x13;
        const V t29 = x12 - x13;
        const V x14 = io.in(14);
        const V x15 = io.in(15);
        const V t30 = x14 + x15;
        const V t31 = x14 - x15;
        const V t32 = t24 + t26;
        const V t33 = t24 - t26;
        const V t34 = t25 + t27;
        const V t35 = t25 - t27;
        const V t36 = t28 + t30;
        const V t37 = t28 - t30;
        const V t38 = t29 + t31;
        const V t39 = t29 - t31;
        const V t40 = t32 + t36;
        const V t41 = t32 - t36;
        const V t42 = t34 + t38;
        const V t43 = t34 - t38;
        const V t44 = t33 + t37;
        const V t45 = t33 - t37;
        const V t46 = t35 + t39;
        const V t47 = t35 - t39;
        // 2 points from 0, stride 8
        const V t48 = t16 + t40;
        io.out(0, t48);
        const V t49 = t16 - t40;
        io.out(8, t49);
        // 2 points from 1, stride 8
        const V t50 = t18 + t42;
        io.out(1, t50);
        const V t51 = t18 - t42;
        io.out(9, t51);
        // 2 points from 2, stride 8
        const V t52 = t20 + t44;
        io.out(2, t52);
        const V t53 = t20 - t44;
        io.out(10, t53);
        // 2 points from 3, stride 8
        const V t54 = t22 + t46;
        io.out(3, t54);
        const V t55 = t22 - t46;
        io.out(11, t55);
        // 2 points from 4, stride 8
        const V t56 = t17 + t41;
        io.out(4, t56);
        const V t57 = t17 - t41;
        io.out(12, t57);
        // 2 points from 5, stride 8
        const V t58 = t19 + t43;
        io.out(5, t58);
        const V t59 = t19 - t43;
        io.out(13, t59);
        // 2 points from 6, stride 8
        const V t60 = t21 + t45;
        io.out(6, t60);
        const V t61 = t21 - t45;
        io.out(14, t61);
        // 2 points from 7, stride 8
        const V t62 = t23 + t47;
        io.out(7, t62);
        const V t63 = t23 - t47;
        io.out(15, t63);
    }
};

}  // namespace zulg
