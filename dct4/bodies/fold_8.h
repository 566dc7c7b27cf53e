// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_fold, 8.
// Skew transform of 8 folded points, decimation in time.
// 12 additions, 12 subtractions, 12 multiplications; 3 constants; 10 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Fold<8> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: -sin 2 pi 15/16
        0.9238795325112867,  // c[2]: cos 2 pi 15/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Fold> c{};
        // part 0 of 8
        const V x2 = io.in(2);
        const V x6 = io.in(6);
        const V t0 = x2 + x6;
        const V t1 = c[0] * t0;
        const V t2 = x2 - x6;
        const V t3 = c[0] * t2;
        const V x0 = io.in(0);
        const V t4 = x0 + t1;
        const V x4 = io.in(4);
        const V t5 = t3 - x4;
        const V t6 = x0 - t1;
        const V t7 = t3 + x4;
        // part 1 of 8
        const V x3 = io.in(3);
        const V x7 = io.in(7);
        const V t8 = x3 + x7;
        const V t9 = c[0] * t8;
        const V t10 = x3 - x7;
        const V t11 = c[0] * t10;
        const V x1 = io.in(1);
        const V t12 = x1 + t9;
        const V x5 = io.in(5);
        const V t13 = t11 - x5;
        const V t14 = x1 - t9;
        const V t15 = t11 + x5;
        // row 0 of 8
        const V t16 = c[1] * t13;
        const V t17 = c[2] * t12;
        const V t18 = t17 - t16;
        const V t19 = c[1] * t12;
        const V t20 = c[2] * t13;
        const V t21 = t20 + t19;
        // complex block of 2
        const V t22 = t5 + t21;
        io.im(0, t22);
        const V t23 = t4 + t18;
        io.re(0, t23);
        const V t24 = t4 - t18;
        io.re(3, t24);
        // row 1 of 8
        const V t25 = c[2] * t15;
        const V t26 = c[1] * t14;
        const V t27 = t26 - t25;
        const V t28 = c[2] * t14;
        const V t29 = c[1] * t15;
        const V t30 = t29 + t28;
        // complex block of 2
        const V t31 = t7 + t30;
        io.im(1, t31);
        const V t32 = t6 + t27;
        io.re(1, t32);
        const V t33 = t6 - t27;
        io.re(2, t33);
        const V t34 = t30 - t7;
        io.im(2, t34);
        const V t35 = t21 - t5;
        io.im(3, t35);
    }
};

}  // namespace zulg
