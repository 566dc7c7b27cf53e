// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 5.
// Inverse DFT to 5 real points, direct.
// 7 additions, 5 subtractions, 12 multiplications (17 with `scale`); 5 constants; 8 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<5> {
    static constexpr int steps = 29;  // with `scale`
    static constexpr double inverseRoot = 0.4472135954999579;  // 1/sqrt(5), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
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
        // spectrum block of 5
        const V t4 = t0 + t2;
        const V x0r = io.re(0);
        const V t5 = t4 + x0r;
        io.out(0, t5);
        const V t6 = c[0] * t0;
        const V t7 = c[1] * t2;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0r;
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t10 + t11;
        const V t13 = t9 - t12;
        io.out(1, t13);
        const V t14 = t9 + t12;
        io.out(4, t14);
        const V t15 = c[1] * t0;
        const V t16 = x0r - t15;
        const V t17 = c[0] * t2;
        const V t18 = t16 + t17;
        const V t19 = c[3] * t1;
        const V t20 = c[2] * t3;
        const V t21 = t19 - t20;
        const V t22 = t18 - t21;
        io.out(2, t22);
        const V t23 = t18 + t21;
        io.out(3, t23);
    }
};

}  // namespace zulg
