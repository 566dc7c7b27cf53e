// Written by `generate write`; do not edit. The rule: generator/rules/wht.cpp, wht, 8.
// Walsh-Hadamard transform of 8 points, stages in rising stride.
// 12 additions, 12 subtractions, 0 multiplications; 0 constants; 9 values alive at most.
#pragma once

#include "wht/bodies.h"

namespace zulg {

template <>
struct WhtBlock<8> {
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
        io.out(0, t16);
        const V t17 = t8 - t12;
        io.out(4, t17);
        const V t18 = t10 + t14;
        io.out(1, t18);
        const V t19 = t10 - t14;
        io.out(5, t19);
        const V t20 = t9 + t13;
        io.out(2, t20);
        const V t21 = t9 - t13;
        io.out(6, t21);
        const V t22 = t11 + t15;
        io.out(3, t22);
        const V t23 = t11 - t15;
        io.out(7, t23);
    }
};

}  // namespace zulg
