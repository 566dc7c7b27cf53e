// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 9.
// Inverse DFT to 9 real points, twiddled 3, 3.
// 16 additions, 16 subtractions, 25 multiplications (34 with `scale`); 12 constants; 12 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<9> {
    static constexpr int steps = 66;  // with `scale`
    static constexpr double inverseRoot = 0.3333333333333333;  // 1/sqrt(9), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        1.7320508075688772,  // c[2]: sin 2 pi 1/3 times 2
        0.6427876096865394,  // c[3]: -sin 2 pi 8/9
        0.766044443118978,  // c[4]: cos 2 pi 8/9
        0.984807753012208,  // c[5]: -sin 2 pi 7/9
        0.17364817766693036,  // c[6]: cos 2 pi 7/9
        0.6634139481689384,  // c[7]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[8]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.1503837331804353,  // c[9]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[10]: sin 2 pi 1/3 times -sin 2 pi 7/9
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
        const V x4r = io.re(4);
        const V t5 = two * x4r;
        const V x4i = io.im(4);
        const V t6 = two * x4i;
        // spectrum block of 3
        const V x0r = io.re(0);
        const V t7 = t4 + x0r;
        const V t8 = c[0] * t4;
        const V t9 = x0r - t8;
        const V x3i = io.im(3);
        const V t10 = c[2] * x3i;
        const V t11 = t9 - t10;
        const V t12 = t9 + t10;
        // complex block of 3
        const V t13 = t6 - t3;
        const V t14 = t5 + t2;
        const V t15 = t6 + t3;
        const V t16 = t5 - t2;
        const V t17 = t13 + t1;
        const V t18 = t14 + t0;
        const V t19 = c[0] * t13;
        const V t20 = t1 - t19;
        const V t21 = c[0] * t14;
        const V t22 = t0 - t21;
        const V t23 = c[1] * t15;
        const V t24 = c[1] * t16;
        const V t25 = t20 + t24;
        const V t26 = t22 - t23;
        const V t27 = t20 - t24;
        const V t28 = t22 + t23;
        // spectrum block of 9
        const V t29 = c[3] * t25;
        const V t30 = c[4] * t26;
        const V t31 = t30 - t29;
        const V t32 = c[5] * t27;
        const V t33 = c[6] * t28;
        const V t34 = t33 - t32;
        // spectrum block of 3
        const V t35 = t18 + t7;
        io.out(0, t35);
        const V t36 = c[0] * t18;
        const V t37 = t7 - t36;
        const V t38 = c[1] * t17;
        const V t39 = t37 - t38;
        io.out(3, t39);
        const V t40 = t37 + t38;
        io.out(6, t40);
        // spectrum block of 3
        const V t41 = t31 + t11;
        io.out(1, t41);
        const V t42 = c[0] * t31;
        const V t43 = t11 - t42;
        const V t44 = c[7] * t25;
        const V t45 = c[8] * t26;
        const V t46 = t44 + t45;
        const V t47 = t43 - t46;
        io.out(4, t47);
        const V t48 = t43 + t46;
        io.out(7, t48);
        // spectrum block of 3
        const V t49 = t34 + t12;
        io.out(2, t49);
        const V t50 = c[0] * t34;
        const V t51 = t12 - t50;
        const V t52 = c[9] * t27;
        const V t53 = c[10] * t28;
        const V t54 = t52 + t53;
        const V t55 = t51 - t54;
        io.out(5, t55);
        const V t56 = t51 + t54;
        io.out(8, t56);
    }
};

}  // namespace zulg
