// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 12.
// Forward DFT of 12 real points, prime-factor 4, 3.
// 19 additions, 19 subtractions, 8 multiplications (20 with `scale`); 3 outputs negated; 2 constants; 13 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<12> {
    static constexpr int steps = 58;  // with `scale`
    static constexpr double inverseRoot = 0.2886751345948129;  // 1/sqrt(12), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x6 = io.in(6);
        const V t0 = x0 + x6;
        const V t1 = x0 - x6;
        // real block of 2
        const V x3 = io.in(3);
        const V x9 = io.in(9);
        const V t2 = x3 + x9;
        const V t3 = x3 - x9;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x4 = io.in(4);
        const V x10 = io.in(10);
        const V t6 = x4 + x10;
        const V t7 = x4 - x10;
        // real block of 2
        const V x7 = io.in(7);
        const V x1 = io.in(1);
        const V t8 = x7 + x1;
        const V t9 = x7 - x1;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x8 = io.in(8);
        const V x2 = io.in(2);
        const V t12 = x8 + x2;
        const V t13 = x8 - x2;
        // real block of 2
        const V x11 = io.in(11);
        const V x5 = io.in(5);
        const V t14 = x11 + x5;
        const V t15 = x11 - x5;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 3
        const V t18 = t10 + t16;
        const V t19 = t10 - t16;
        const V t20 = t18 + t4;
        io.re(0, t20);
        const V t21 = c[0] * t18;
        const V t22 = t4 - t21;
        io.re(4, t22);
        const V t23 = c[1] * t19;
        io.minusIm(4, t23);
        // complex block of 3
        const V t24 = t7 + t13;
        const V t25 = t9 + t15;
        const V t26 = t7 - t13;
        const V t27 = t9 - t15;
        const V t28 = t24 + t1;
        io.re(3, t28);
        const V t29 = t25 + t3;
        io.im(3, t29);
        const V t30 = c[0] * t24;
        const V t31 = t1 - t30;
        const V t32 = c[0] * t25;
        const V t33 = t3 - t32;
        const V t34 = c[1] * t26;
        const V t35 = c[1] * t27;
        const V t36 = t31 + t35;
        io.re(5, t36);
        const V t37 = t33 - t34;
        io.minusIm(5, t37);
        const V t38 = t31 - t35;
        io.re(1, t38);
        const V t39 = t33 + t34;
        io.minusIm(1, t39);
        // real block of 3
        const V t40 = t11 + t17;
        const V t41 = t11 - t17;
        const V t42 = t40 + t5;
        io.re(6, t42);
        const V t43 = c[0] * t40;
        const V t44 = t5 - t43;
        io.re(2, t44);
        const V t45 = c[1] * t41;
        io.im(2, t45);
    }
};

}  // namespace zulg
