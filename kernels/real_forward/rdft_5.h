// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 5.
// Forward DFT of 5 real points, direct.
// 7 additions, 5 subtractions, 8 multiplications (13 with `scale`); 1 outputs negated; 4 constants; 7 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<5> {
    static constexpr int steps = 25;  // with `scale`
    static constexpr double inverseRoot = 0.4472135954999579;  // 1/sqrt(5), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 5
        const V x1 = io.in(1);
        const V x4 = io.in(4);
        const V t0 = x1 + x4;
        const V t1 = x1 - x4;
        const V x3 = io.in(3);
        const V x2 = io.in(2);
        const V t2 = x3 + x2;
        const V t3 = x3 - x2;
        const V t4 = t0 + t2;
        const V x0 = io.in(0);
        const V t5 = t4 + x0;
        io.re(0, t5);
        const V t6 = c[0] * t0;
        const V t7 = c[1] * t2;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0;
        io.re(1, t9);
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t11 - t10;
        io.im(1, t12);
        const V t13 = c[1] * t0;
        const V t14 = x0 - t13;
        const V t15 = c[0] * t2;
        const V t16 = t14 + t15;
        io.re(2, t16);
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t3;
        const V t19 = t17 + t18;
        io.minusIm(2, t19);
    }
};

}  // namespace zulg
