// Written by `generate write`; do not edit. The rule: generator/rules/wht.cpp, wht, 4.
// Walsh-Hadamard transform of 4 points, stages in rising stride.
// 4 additions, 4 subtractions, 0 multiplications; 0 constants; 5 values alive at most.
#pragma once

#include "wht/bodies.h"

namespace zulg {

template <>
struct WhtBlock<4> {
    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // 4 points from 0, stride 1
        const V x0 = io.in(0);
        const V x1 = io.in(1);
        const V t0 = x0 + x1;
        const V t1 = x0 - x1;
        const V x2 = io.in(2);
        const V x3 = io.in(3);
        const V t2 = x2 + x3;
        const V t3 = x2 - x3;
        const V t4 = t0 + t2;
        io.out(0, t4);
        const V t5 = t0 - t2;
        io.out(2, t5);
        const V t6 = t1 + t3;
        io.out(1, t6);
        const V t7 = t1 - t3;
        io.out(3, t7);
    }
};

}  // namespace zulg
