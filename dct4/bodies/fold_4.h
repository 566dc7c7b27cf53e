// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_fold, 4.
// Skew transform of 4 folded points, decimation in time.
// 3 additions, 3 subtractions, 2 multiplications; 1 constants; 5 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Fold<4> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Fold> c{};
        // fold 4
        const V x1 = io.in(1);
        const V x3 = io.in(3);
        const V t0 = x1 + x3;
        const V t1 = c[0] * t0;
        const V t2 = x1 - x3;
        const V t3 = c[0] * t2;
        const V x0 = io.in(0);
        const V t4 = x0 + t1;
        const V x2 = io.in(2);
        io.re(0, t4);
        const V t5 = t3 - x2;
        io.im(0, t5);
        const V t6 = x0 - t1;
        io.re(1, t6);
        const V t7 = t3 + x2;
        io.im(1, t7);
    }
};

}  // namespace zulg
