// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_combine, 2.
// Combine row of radix 2, rotations by the table, then a DFT.
// 3 additions, 3 subtractions, 4 multiplications; 0 constants; 6 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Combine<2> {
    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const V x1i = io.im(1);
        const V w1 = io.table(1);
        const V t0 = x1i * w1;
        const V x1r = io.re(1);
        const V w0 = io.table(0);
        const V t1 = x1r * w0;
        const V t2 = t1 - t0;
        const V t3 = x1i * w0;
        const V t4 = x1r * w1;
        const V t5 = t4 + t3;
        // complex block of 2
        const V x0i = io.im(0);
        const V t6 = x0i + t5;
        const V x0r = io.re(0);
        io.im(0, t6);
        const V t7 = x0r + t2;
        io.re(0, t7);
        const V t8 = x0r - t2;
        io.re(1, t8);
        const V t9 = t5 - x0i;
        io.im(1, t9);
    }
};

}  // namespace zulg
