// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 8.
// Complex DFT of 8 points, twiddled, inner 2, outer 4.
// 26 additions, 26 subtractions, 4 multiplications (20 with `scale`); 1 constants; 18 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<8> {
    static constexpr int steps = 72;  // with `scale`
    static constexpr double inverseRoot = 0.35355339059327373;  // 1/sqrt(8), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x4r = io.re(4);
        const V t0 = x0r + x4r;
        const V x0i = io.im(0);
        const V x4i = io.im(4);
        const V t1 = x0i + x4i;
        const V t2 = x0r - x4r;
        const V t3 = x0i - x4i;
        // complex block of 2
        const V x1r = io.re(1);
        const V x5r = io.re(5);
        const V t4 = x1r + x5r;
        const V x1i = io.im(1);
        const V x5i = io.im(5);
        const V t5 = x1i + x5i;
        const V t6 = x1r - x5r;
        const V t7 = x1i - x5i;
        // complex block of 2
        const V x2r = io.re(2);
        const V x6r = io.re(6);
        const V t8 = x2r + x6r;
        const V x2i = io.im(2);
        const V x6i = io.im(6);
        const V t9 = x2i + x6i;
        const V t10 = x2r - x6r;
        const V t11 = x2i - x6i;
        // complex block of 2
        const V x3r = io.re(3);
        const V x7r = io.re(7);
        const V t12 = x3r + x7r;
        const V x3i = io.im(3);
        const V x7i = io.im(7);
        const V t13 = x3i + x7i;
        const V t14 = x3r - x7r;
        const V t15 = x3i - x7i;
        // complex block of 2
        const V t16 = t0 + t8;
        const V t17 = t1 + t9;
        const V t18 = t0 - t8;
        const V t19 = t1 - t9;
        // complex block of 2
        const V t20 = t4 + t12;
        const V t21 = t5 + t13;
        const V t22 = t4 - t12;
        const V t23 = t5 - t13;
        // complex block of 2
        const V t24 = t16 + t20;
        io.re(0, t24);
        const V t25 = t17 + t21;
        io.im(0, t25);
        const V t26 = t16 - t20;
        io.re(4, t26);
        const V t27 = t17 - t21;
        io.im(4, t27);
        // complex block of 2
        const V t28 = t18 + t23;
        io.re(2, t28);
        const V t29 = t19 - t22;
        io.im(2, t29);
        const V t30 = t18 - t23;
        io.re(6, t30);
        const V t31 = t19 + t22;
        io.im(6, t31);
        // complex block of 8
        const V t32 = c[0] * t6;
        const V t33 = c[0] * t7;
        const V t34 = t32 + t33;
        const V t35 = t33 - t32;
        const V t36 = c[0] * t14;
        const V t37 = c[0] * t15;
        const V t38 = t36 + t37;
        const V t39 = t37 - t36;
        // complex block of 2
        const V t40 = t2 + t11;
        const V t41 = t3 - t10;
        const V t42 = t2 - t11;
        const V t43 = t3 + t10;
        // complex block of 2
        const V t44 = t34 + t39;
        const V t45 = t35 - t38;
        const V t46 = t34 - t39;
        const V t47 = t35 + t38;
        // complex block of 2
        const V t48 = t40 + t44;
        io.re(1, t48);
        const V t49 = t41 + t45;
        io.im(1, t49);
        const V t50 = t40 - t44;
        io.re(5, t50);
        const V t51 = t41 - t45;
        io.im(5, t51);
        // complex block of 2
        const V t52 = t42 + t47;
        io.re(3, t52);
        const V t53 = t43 - t46;
        io.im(3, t53);
        const V t54 = t42 - t47;
        io.re(7, t54);
        const V t55 = t43 + t46;
        io.im(7, t55);
    }
};

}  // namespace zulg
