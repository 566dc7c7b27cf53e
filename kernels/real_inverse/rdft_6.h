// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 6.
// Inverse DFT to 6 real points, prime-factor 2, 3.
// 7 additions, 7 subtractions, 8 multiplications (14 with `scale`); 3 constants; 8 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<6> {
    static constexpr int steps = 28;  // with `scale`
    static constexpr double inverseRoot = 0.4082482904638631;  // 1/sqrt(6), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
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
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x3r = io.re(3);
        const V t4 = x0r + x3r;
        const V t5 = x0r - x3r;
        // complex block of 2
        const V t6 = t3 - t1;
        const V t7 = t2 + t0;
        const V t8 = t3 + t1;
        const V t9 = t2 - t0;
        // spectrum block of 3, multiplier 2
        const V t10 = t7 + t4;
        io.out(0, t10);
        const V t11 = c[0] * t7;
        const V t12 = t4 - t11;
        const V t13 = c[1] * t6;
        const V t14 = t12 - t13;
        io.out(4, t14);
        const V t15 = t12 + t13;
        io.out(2, t15);
        // spectrum block of 3, multiplier 2
        const V t16 = t9 + t5;
        io.out(3, t16);
        const V t17 = c[0] * t9;
        const V t18 = t5 - t17;
        const V t19 = c[1] * t8;
        const V t20 = t18 - t19;
        io.out(1, t20);
        const V t21 = t18 + t19;
        io.out(5, t21);
    }
};

}  // namespace zulg
