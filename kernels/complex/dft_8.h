// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 8.
// Complex DFT of 8 points, twiddled, inner 2, outer 4.
// 26 additions, 26 subtractions, 4 multiplications (20 with `scale`); 1 constants; 19 values alive at most.
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
        const V t1 = x0r - x4r;
        const V x0i = io.im(0);
        const V x4i = io.im(4);
        const V t2 = x0i + x4i;
        const V t3 = x0i - x4i;
        // complex block of 2
        const V x1r = io.re(1);
        const V x5r = io.re(5);
        const V t4 = x1r - x5r;
        const V t5 = x1r + x5r;
        // complex block of 8
        const V t6 = c[0] * t4;
        // complex block of 2
        const V x1i = io.im(1);
        const V x5i = io.im(5);
        const V t7 = x1i - x5i;
        const V t8 = x1i + x5i;
        // complex block of 8
        const V t9 = c[0] * t7;
        // complex block of 2
        const V x2r = io.re(2);
        const V x6r = io.re(6);
        const V t10 = x2r + x6r;
        const V t11 = x2r - x6r;
        const V x2i = io.im(2);
        const V x6i = io.im(6);
        const V t12 = x2i + x6i;
        const V t13 = x2i - x6i;
        // complex block of 2
        const V x3r = io.re(3);
        const V x7r = io.re(7);
        const V t14 = x3r - x7r;
        const V t15 = x3r + x7r;
        // complex block of 8
        const V t16 = c[0] * t14;
        // complex block of 2
        const V x3i = io.im(3);
        const V x7i = io.im(7);
        const V t17 = x3i - x7i;
        const V t18 = x3i + x7i;
        // complex block of 8
        const V t19 = c[0] * t17;
        // complex block of 2
        const V t20 = t0 + t10;
        // complex block of 2
        const V t21 = t5 + t15;
        // complex block of 2
        const V t22 = t20 + t21;
        io.re(0, t22);
        const V t23 = t20 - t21;
        io.re(4, t23);
        // complex block of 2
        const V t24 = t2 + t12;
        // complex block of 2
        const V t25 = t8 + t18;
        // complex block of 2
        const V t26 = t24 + t25;
        io.im(0, t26);
        const V t27 = t24 - t25;
        io.im(4, t27);
        // complex block of 2
        const V t28 = t0 - t10;
        // complex block of 2
        const V t29 = t8 - t18;
        // complex block of 2
        const V t30 = t28 + t29;
        io.re(2, t30);
        const V t31 = t28 - t29;
        io.re(6, t31);
        // complex block of 2
        const V t32 = t2 - t12;
        // complex block of 2
        const V t33 = t5 - t15;
        // complex block of 2
        const V t34 = t32 - t33;
        io.im(2, t34);
        const V t35 = t32 + t33;
        io.im(6, t35);
        // complex block of 8
        const V t36 = t6 + t9;
        const V t37 = t19 - t16;
        // complex block of 2
        const V t38 = t36 + t37;
        const V t39 = t36 - t37;
        // complex block of 2
        const V t40 = t1 + t13;
        const V t41 = t3 + t11;
        // complex block of 2
        const V t42 = t40 + t38;
        io.re(1, t42);
        const V t43 = t40 - t38;
        io.re(5, t43);
        // complex block of 2
        const V t44 = t41 - t39;
        io.im(3, t44);
        const V t45 = t41 + t39;
        io.im(7, t45);
        // complex block of 8
        const V t46 = t9 - t6;
        const V t47 = t16 + t19;
        // complex block of 2
        const V t48 = t46 - t47;
        const V t49 = t46 + t47;
        // complex block of 2
        const V t50 = t3 - t11;
        const V t51 = t1 - t13;
        // complex block of 2
        const V t52 = t50 + t48;
        io.im(1, t52);
        const V t53 = t50 - t48;
        io.im(5, t53);
        // complex block of 2
        const V t54 = t51 + t49;
        io.re(3, t54);
        const V t55 = t51 - t49;
        io.re(7, t55);
    }
};

}  // namespace zulg
