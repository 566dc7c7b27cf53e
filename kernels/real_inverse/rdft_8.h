// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 8.
// Inverse DFT to 8 real points, twiddled 4, 2.
// 10 additions, 10 subtractions, 8 multiplications (16 with `scale`); 2 constants; 10 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<8> {
    static constexpr int steps = 36;  // with `scale`
    static constexpr double inverseRoot = 0.35355339059327373;  // 1/sqrt(8), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x1i = io.im(1);
        const V t1 = two * x1i;
        const V x2r = io.re(2);
        const V t2 = two * x2r;
        const V x2i = io.im(2);
        const V t3 = two * x2i;
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x3i = io.im(3);
        const V t5 = two * x3i;
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x4r = io.re(4);
        const V t6 = x0r + x4r;
        const V t7 = x0r - x4r;
        // spectrum block of 2
        const V t8 = t6 + t2;
        const V t9 = t6 - t2;
        // spectrum block of 2
        const V t10 = t7 - t3;
        const V t11 = t7 + t3;
        // mirrored skew block of 4
        const V t12 = t0 - t4;
        const V t13 = c[0] * t12;
        const V t14 = t1 + t5;
        const V t15 = c[0] * t14;
        const V t16 = t0 + t4;
        const V t17 = t13 - t15;
        const V t18 = t1 - t5;
        const V t19 = t13 + t15;
        // spectrum block of 2
        const V t20 = t8 + t16;
        io.out(0, t20);
        const V t21 = t8 - t16;
        io.out(4, t21);
        // spectrum block of 2
        const V t22 = t10 + t17;
        io.out(1, t22);
        const V t23 = t10 - t17;
        io.out(5, t23);
        // spectrum block of 2
        const V t24 = t9 - t18;
        io.out(2, t24);
        const V t25 = t9 + t18;
        io.out(6, t25);
        // spectrum block of 2
        const V t26 = t11 - t19;
        io.out(3, t26);
        const V t27 = t11 + t19;
        io.out(7, t27);
    }
};

}  // namespace zulg
