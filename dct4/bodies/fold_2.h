// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_fold, 2.
// Skew transform of 2 folded points, decimation in time.
// 0 additions, 0 subtractions, 0 multiplications; 1 outputs negated; 0 constants; 2 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Fold<2> {
    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const V x0 = io.in(0);
        const V x1 = io.in(1);
        io.re(0, x0);
        io.minusIm(0, x1);
    }
};

}  // namespace zulg
