// Written by `generate write`; do not edit. The rule: generator/rules/wht.cpp, wht, 2.
// Walsh-Hadamard transform of 2 points, stages in rising stride.
// 1 additions, 1 subtractions, 0 multiplications; 0 constants; 3 values alive at most.
#pragma once

#include "wht/bodies.h"

namespace zulg {

template <>
struct WhtBlock<2> {
    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // 2 points from 0, stride 1
        const V x0 = io.in(0);
        const V x1 = io.in(1);
        const V t0 = x0 + x1;
        io.out(0, t0);
        const V t1 = x0 - x1;
        io.out(1, t1);
    }
};

}  // namespace zulg
