// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_combine, 4.
// Combine row of radix 4, rotations by the table, then a DFT.
// 11 additions, 11 subtractions, 12 multiplications; 0 constants; 10 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Combine<4> {
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
        const V x2i = io.im(2);
        const V w3 = io.table(3);
        const V t6 = x2i * w3;
        const V x2r = io.re(2);
        const V w2 = io.table(2);
        const V t7 = x2r * w2;
        const V t8 = t7 - t6;
        const V t9 = x2i * w2;
        const V t10 = x2r * w3;
        const V t11 = t10 + t9;
        const V x3i = io.im(3);
        const V w5 = io.table(5);
        const V t12 = x3i * w5;
        const V x3r = io.re(3);
        const V w4 = io.table(4);
        const V t13 = x3r * w4;
        const V t14 = t13 - t12;
        const V t15 = x3i * w4;
        const V t16 = x3r * w5;
        const V t17 = t16 + t15;
        // complex block of 2
        const V x0i = io.im(0);
        const V t18 = x0i + t11;
        const V x0r = io.re(0);
        const V t19 = x0r + t8;
        const V t20 = x0i - t11;
        const V t21 = x0r - t8;
        // complex block of 2
        const V t22 = t5 + t17;
        const V t23 = t2 + t14;
        const V t24 = t5 - t17;
        const V t25 = t2 - t14;
        // complex block of 2
        const V t26 = t18 + t22;
        io.im(0, t26);
        const V t27 = t19 + t23;
        io.re(0, t27);
        const V t28 = t19 - t23;
        io.re(2, t28);
        // complex block of 2
        const V t29 = t20 + t25;
        io.im(1, t29);
        const V t30 = t21 - t24;
        io.re(1, t30);
        const V t31 = t21 + t24;
        io.re(3, t31);
        const V t32 = t22 - t18;
        io.im(2, t32);
        const V t33 = t25 - t20;
        io.im(3, t33);
    }
};

}  // namespace zulg
