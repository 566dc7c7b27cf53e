// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 6.
// Complex DFT of 6 points, prime-factor, order 3, 2.
// 18 additions, 18 subtractions, 8 multiplications (20 with `scale`); 2 constants; 14 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<6> {
    static constexpr int steps = 56;  // with `scale`
    static constexpr double inverseRoot = 0.4082482904638631;  // 1/sqrt(6), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3, multiplier 2
        const V x2r = io.re(2);
        const V x4r = io.re(4);
        const V t0 = x2r + x4r;
        const V x2i = io.im(2);
        const V x4i = io.im(4);
        const V t1 = x2i + x4i;
        const V t2 = x2r - x4r;
        const V t3 = x2i - x4i;
        const V x0r = io.re(0);
        const V t4 = t0 + x0r;
        const V x0i = io.im(0);
        const V t5 = t1 + x0i;
        const V t6 = c[0] * t0;
        const V t7 = x0r - t6;
        const V t8 = c[0] * t1;
        const V t9 = x0i - t8;
        const V t10 = c[1] * t2;
        const V t11 = c[1] * t3;
        const V t12 = t7 + t11;
        const V t13 = t9 - t10;
        const V t14 = t7 - t11;
        const V t15 = t9 + t10;
        // complex block of 3, multiplier 2
        const V x5r = io.re(5);
        const V x1r = io.re(1);
        const V t16 = x5r + x1r;
        const V x5i = io.im(5);
        const V x1i = io.im(1);
        const V t17 = x5i + x1i;
        const V t18 = x5r - x1r;
        const V t19 = x5i - x1i;
        const V x3r = io.re(3);
        const V t20 = t16 + x3r;
        const V x3i = io.im(3);
        const V t21 = t17 + x3i;
        const V t22 = c[0] * t16;
        const V t23 = x3r - t22;
        const V t24 = c[0] * t17;
        const V t25 = x3i - t24;
        const V t26 = c[1] * t18;
        const V t27 = c[1] * t19;
        const V t28 = t23 + t27;
        const V t29 = t25 - t26;
        const V t30 = t23 - t27;
        const V t31 = t25 + t26;
        // complex block of 2
        const V t32 = t4 + t20;
        io.re(0, t32);
        const V t33 = t5 + t21;
        io.im(0, t33);
        const V t34 = t4 - t20;
        io.re(3, t34);
        const V t35 = t5 - t21;
        io.im(3, t35);
        // complex block of 2
        const V t36 = t14 + t30;
        io.re(2, t36);
        const V t37 = t15 + t31;
        io.im(2, t37);
        const V t38 = t14 - t30;
        io.re(5, t38);
        const V t39 = t15 - t31;
        io.im(5, t39);
        // complex block of 2
        const V t40 = t12 + t28;
        io.re(4, t40);
        const V t41 = t13 + t29;
        io.im(4, t41);
        const V t42 = t12 - t28;
        io.re(1, t42);
        const V t43 = t13 - t29;
        io.im(1, t43);
    }
};

}  // namespace zulg
