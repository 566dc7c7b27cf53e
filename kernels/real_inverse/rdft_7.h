// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 7.
// Inverse DFT to 7 real points, direct.
// 12 additions, 12 subtractions, 24 multiplications (31 with `scale`); 7 constants; 10 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<7> {
    static constexpr int steps = 55;  // with `scale`
    static constexpr double inverseRoot = 0.3779644730092272;  // 1/sqrt(7), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
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
        // spectrum block of 7
        const V t6 = t0 + t2;
        const V t7 = t6 + t4;
        const V x0r = io.re(0);
        const V t8 = t7 + x0r;
        io.out(0, t8);
        const V t9 = c[0] * t0;
        const V t10 = c[1] * t2;
        const V t11 = t9 - t10;
        const V t12 = c[2] * t4;
        const V t13 = t11 - t12;
        const V t14 = t13 + x0r;
        const V t15 = c[3] * t1;
        const V t16 = c[4] * t3;
        const V t17 = t15 + t16;
        const V t18 = c[5] * t5;
        const V t19 = t17 + t18;
        const V t20 = t14 - t19;
        io.out(1, t20);
        const V t21 = t14 + t19;
        io.out(6, t21);
        const V t22 = c[1] * t0;
        const V t23 = x0r - t22;
        const V t24 = c[2] * t2;
        const V t25 = t23 - t24;
        const V t26 = c[0] * t4;
        const V t27 = t25 + t26;
        const V t28 = c[4] * t1;
        const V t29 = c[5] * t3;
        const V t30 = t28 - t29;
        const V t31 = c[3] * t5;
        const V t32 = t30 - t31;
        const V t33 = t27 - t32;
        io.out(2, t33);
        const V t34 = t27 + t32;
        io.out(5, t34);
        const V t35 = c[2] * t0;
        const V t36 = x0r - t35;
        const V t37 = c[0] * t2;
        const V t38 = t36 + t37;
        const V t39 = c[1] * t4;
        const V t40 = t38 - t39;
        const V t41 = c[5] * t1;
        const V t42 = c[3] * t3;
        const V t43 = t41 - t42;
        const V t44 = c[4] * t5;
        const V t45 = t43 + t44;
        const V t46 = t40 - t45;
        io.out(3, t46);
        const V t47 = t40 + t45;
        io.out(4, t47);
    }
};

}  // namespace zulg
