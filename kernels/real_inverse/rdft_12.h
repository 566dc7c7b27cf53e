// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 12.
// Inverse DFT to 12 real points, prime-factor 3, 4.
// 19 additions, 19 subtractions, 16 multiplications (28 with `scale`); 4 constants; 13 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<12> {
    static constexpr int steps = 66;  // with `scale`
    static constexpr double inverseRoot = 0.2886751345948129;  // 1/sqrt(12), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        1.7320508075688772,  // c[1]: sin 2 pi 1/3 times 2
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
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
        const V x3r = io.re(3);
        const V t3 = two * x3r;
        const V x3i = io.im(3);
        const V t4 = two * x3i;
        const V x4r = io.re(4);
        const V t5 = two * x4r;
        const V x5r = io.re(5);
        const V t6 = two * x5r;
        const V x5i = io.im(5);
        const V t7 = two * x5i;
        // spectrum block of 3
        const V x0r = io.re(0);
        const V t8 = t5 + x0r;
        const V t9 = c[0] * t5;
        const V t10 = x0r - t9;
        const V x4i = io.im(4);
        const V t11 = c[1] * x4i;
        const V t12 = t10 - t11;
        const V t13 = t10 + t11;
        // complex block of 3
        const V t14 = t7 + t1;
        const V t15 = t6 + t0;
        const V t16 = t1 - t7;
        const V t17 = t6 - t0;
        const V t18 = t4 - t14;
        const V t19 = t15 + t3;
        const V t20 = c[0] * t14;
        const V t21 = t20 + t4;
        const V t22 = c[0] * t15;
        const V t23 = t3 - t22;
        const V t24 = c[2] * t16;
        const V t25 = c[2] * t17;
        const V t26 = t21 + t25;
        const V t27 = t23 - t24;
        const V t28 = t21 - t25;
        const V t29 = t23 + t24;
        // spectrum block of 3
        const V x6r = io.re(6);
        const V t30 = t2 + x6r;
        const V t31 = c[0] * t2;
        const V t32 = x6r - t31;
        const V x2i = io.im(2);
        const V t33 = c[1] * x2i;
        const V t34 = t32 + t33;
        const V t35 = t32 - t33;
        // spectrum block of 2
        const V t36 = t8 + t30;
        const V t37 = t8 - t30;
        // spectrum block of 2
        const V t38 = t36 + t19;
        io.out(0, t38);
        const V t39 = t36 - t19;
        io.out(6, t39);
        // spectrum block of 2
        const V t40 = t37 + t18;
        io.out(3, t40);
        const V t41 = t37 - t18;
        io.out(9, t41);
        // spectrum block of 2
        const V t42 = t12 + t34;
        const V t43 = t12 - t34;
        // spectrum block of 2
        const V t44 = t42 + t27;
        io.out(4, t44);
        const V t45 = t42 - t27;
        io.out(10, t45);
        // spectrum block of 2
        const V t46 = t43 + t26;
        io.out(7, t46);
        const V t47 = t43 - t26;
        io.out(1, t47);
        // spectrum block of 2
        const V t48 = t13 + t35;
        const V t49 = t13 - t35;
        // spectrum block of 2
        const V t50 = t48 + t29;
        io.out(8, t50);
        const V t51 = t48 - t29;
        io.out(2, t51);
        // spectrum block of 2
        const V t52 = t49 + t28;
        io.out(11, t52);
        const V t53 = t49 - t28;
        io.out(5, t53);
    }
};

}  // namespace zulg
