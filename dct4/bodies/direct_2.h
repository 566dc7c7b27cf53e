// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_direct, 2.
// DCT-IV of 2 points, one rotation.
// 1 additions, 1 subtractions, 4 multiplications; 2 constants; 4 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Direct<2> {
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Direct> c{};
        const V x1 = io.in(1);
        const V t0 = c[0] * x1;
        const V x0 = io.in(0);
        const V t1 = c[1] * x0;
        const V t2 = t1 + t0;
        io.out(0, t2);
        const V t3 = c[1] * x1;
        const V t4 = c[0] * x0;
        const V t5 = t4 - t3;
        io.out(1, t5);
    }
};

}  // namespace zulg
