// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_output, 2.
// Output row of radix 2, rotations by the table, then a mirrored skew transform.
// 5 additions, 5 subtractions, 10 multiplications; 1 constants; 8 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Output<2> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Output> c{};
        const V x0i = io.im(0);
        const V w1 = io.table(1);
        const V t0 = x0i * w1;
        const V x0r = io.re(0);
        const V w0 = io.table(0);
        const V t1 = x0r * w0;
        const V t2 = t1 - t0;
        const V t3 = x0i * w0;
        const V t4 = x0r * w1;
        const V t5 = t4 + t3;
        const V x1i = io.im(1);
        const V w3 = io.table(3);
        const V t6 = x1i * w3;
        const V x1r = io.re(1);
        const V w2 = io.table(2);
        const V t7 = x1r * w2;
        const V t8 = t7 - t6;
        const V t9 = x1i * w2;
        const V t10 = x1r * w3;
        const V t11 = t10 + t9;
        // mirrored skew block of 4
        const V t12 = t2 - t8;
        const V t13 = c[0] * t12;
        const V t14 = t5 + t11;
        const V t15 = c[0] * t14;
        const V t16 = t2 + t8;
        io.rising(0, t16);
        const V t17 = t13 - t15;
        io.rising(1, t17);
        const V t18 = t5 - t11;
        io.falling(0, t18);
        const V t19 = t13 + t15;
        io.falling(1, t19);
    }
};

}  // namespace zulg
