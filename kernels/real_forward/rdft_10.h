// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 10.
// Forward DFT of 10 real points, prime-factor 5, 2.
// 19 additions, 15 subtractions, 16 multiplications (26 with `scale`); 3 outputs negated; 4 constants; 14 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<10> {
    static constexpr int steps = 60;  // with `scale`
    static constexpr double inverseRoot = 0.31622776601683794;  // 1/sqrt(10), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 5, multiplier 2
        const V x2 = io.in(2);
        const V x8 = io.in(8);
        const V t0 = x2 + x8;
        const V t1 = x2 - x8;
        const V x6 = io.in(6);
        const V x4 = io.in(4);
        const V t2 = x6 + x4;
        const V t3 = x6 - x4;
        const V t4 = t0 + t2;
        const V x0 = io.in(0);
        const V t5 = t4 + x0;
        const V t6 = c[0] * t0;
        const V t7 = x0 - t6;
        const V t8 = c[1] * t2;
        const V t9 = t7 + t8;
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t10 + t11;
        const V t13 = c[1] * t0;
        const V t14 = c[0] * t2;
        const V t15 = t13 - t14;
        const V t16 = t15 + x0;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t3;
        const V t19 = t17 - t18;
        // real block of 5, multiplier 2
        const V x7 = io.in(7);
        const V x3 = io.in(3);
        const V t20 = x7 + x3;
        const V t21 = x7 - x3;
        const V x1 = io.in(1);
        const V x9 = io.in(9);
        const V t22 = x1 + x9;
        const V t23 = x1 - x9;
        const V t24 = t20 + t22;
        const V x5 = io.in(5);
        const V t25 = t24 + x5;
        const V t26 = c[0] * t20;
        const V t27 = x5 - t26;
        const V t28 = c[1] * t22;
        const V t29 = t27 + t28;
        const V t30 = c[2] * t21;
        const V t31 = c[3] * t23;
        const V t32 = t30 + t31;
        const V t33 = c[1] * t20;
        const V t34 = c[0] * t22;
        const V t35 = t33 - t34;
        const V t36 = t35 + x5;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t23;
        const V t39 = t37 - t38;
        // real block of 2
        const V t40 = t5 + t25;
        io.re(0, t40);
        const V t41 = t5 - t25;
        io.re(5, t41);
        // complex block of 2
        const V t42 = t9 + t29;
        io.re(2, t42);
        const V t43 = t12 + t32;
        io.minusIm(2, t43);
        const V t44 = t9 - t29;
        io.re(3, t44);
        const V t45 = t32 - t12;
        io.minusIm(3, t45);
        // complex block of 2
        const V t46 = t16 + t36;
        io.re(4, t46);
        const V t47 = t19 + t39;
        io.im(4, t47);
        const V t48 = t16 - t36;
        io.re(1, t48);
        const V t49 = t19 - t39;
        io.minusIm(1, t49);
    }
};

}  // namespace zulg
