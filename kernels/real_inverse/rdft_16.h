// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 16.
// Inverse DFT to 16 real points, twiddled 4, 4.
// 29 additions, 29 subtractions, 26 multiplications (42 with `scale`); 4 constants; 19 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<16> {
    static constexpr int steps = 100;  // with `scale`
    static constexpr double inverseRoot = 0.25;  // 1/sqrt(16), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: -sin 2 pi 15/16
        0.9238795325112867,  // c[2]: cos 2 pi 15/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x8r = io.re(8);
        const V t0 = x0r + x8r;
        const V t1 = x0r - x8r;
        // doubled bins
        const V x4r = io.re(4);
        const V t2 = two * x4r;
        const V x4i = io.im(4);
        const V t3 = two * x4i;
        // spectrum block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // spectrum block of 2
        const V t6 = t1 - t3;
        const V t7 = t1 + t3;
        // doubled bins
        const V x1r = io.re(1);
        const V t8 = two * x1r;
        const V x1i = io.im(1);
        const V t9 = two * x1i;
        const V x3r = io.re(3);
        const V t10 = two * x3r;
        const V x3i = io.im(3);
        const V t11 = two * x3i;
        const V x5r = io.re(5);
        const V t12 = two * x5r;
        const V x5i = io.im(5);
        const V t13 = two * x5i;
        const V x7r = io.re(7);
        const V t14 = two * x7r;
        const V x7i = io.im(7);
        const V t15 = two * x7i;
        // complex block of 2
        const V t16 = t9 - t15;
        // complex block of 2
        const V t17 = t13 - t11;
        // complex block of 2
        const V t18 = t16 - t17;
        // complex block of 2
        const V t19 = t8 + t14;
        // complex block of 2
        const V t20 = t12 + t10;
        // complex block of 2
        const V t21 = t19 - t20;
        // complex block of 2
        const V t22 = t9 + t15;
        // complex block of 2
        const V t23 = t12 - t10;
        // complex block of 2
        const V t24 = t22 + t23;
        const V t25 = t22 - t23;
        // complex block of 2
        const V t26 = t8 - t14;
        // complex block of 2
        const V t27 = t13 + t11;
        // complex block of 2
        const V t28 = t26 - t27;
        const V t29 = t26 + t27;
        // doubled bins
        const V x2r = io.re(2);
        const V t30 = two * x2r;
        const V x6r = io.re(6);
        const V t31 = two * x6r;
        // mirrored skew block of 4
        const V t32 = t30 - t31;
        const V t33 = c[0] * t32;
        const V t34 = t30 + t31;
        // doubled bins
        const V x2i = io.im(2);
        const V t35 = two * x2i;
        const V x6i = io.im(6);
        const V t36 = two * x6i;
        // mirrored skew block of 4
        const V t37 = t35 + t36;
        const V t38 = c[0] * t37;
        const V t39 = t35 - t36;
        // complex block of 2
        const V t40 = t16 + t17;
        // spectrum block of 2
        const V t41 = t4 - t34;
        // spectrum block of 2
        const V t42 = t41 - t40;
        io.out(4, t42);
        const V t43 = t41 + t40;
        io.out(12, t43);
        // complex block of 2
        const V t44 = t19 + t20;
        // spectrum block of 2
        const V t45 = t4 + t34;
        // spectrum block of 2
        const V t46 = t45 + t44;
        io.out(0, t46);
        const V t47 = t45 - t44;
        io.out(8, t47);
        // spectrum block of 16
        const V t48 = c[1] * t24;
        const V t49 = c[2] * t28;
        const V t50 = t49 - t48;
        const V t51 = c[1] * t28;
        const V t52 = c[2] * t24;
        const V t53 = t52 + t51;
        // mirrored skew block of 4
        const V t54 = t33 - t38;
        // spectrum block of 2
        const V t55 = t6 + t54;
        const V t56 = t6 - t54;
        // spectrum block of 2
        const V t57 = t55 + t50;
        io.out(1, t57);
        const V t58 = t55 - t50;
        io.out(9, t58);
        // spectrum block of 2
        const V t59 = t56 - t53;
        io.out(5, t59);
        const V t60 = t56 + t53;
        io.out(13, t60);
        // spectrum block of 16
        const V t61 = t21 + t18;
        const V t62 = c[0] * t61;
        // spectrum block of 2
        const V t63 = t5 + t39;
        // spectrum block of 2
        const V t64 = t63 - t62;
        io.out(6, t64);
        const V t65 = t63 + t62;
        io.out(14, t65);
        // spectrum block of 16
        const V t66 = t18 - t21;
        const V t67 = c[0] * t66;
        // spectrum block of 2
        const V t68 = t5 - t39;
        // spectrum block of 2
        const V t69 = t68 - t67;
        io.out(2, t69);
        const V t70 = t68 + t67;
        io.out(10, t70);
        // spectrum block of 16
        const V t71 = c[2] * t25;
        const V t72 = c[1] * t29;
        const V t73 = t72 - t71;
        const V t74 = c[2] * t29;
        const V t75 = c[1] * t25;
        const V t76 = t75 + t74;
        // mirrored skew block of 4
        const V t77 = t33 + t38;
        // spectrum block of 2
        const V t78 = t7 - t77;
        const V t79 = t7 + t77;
        // spectrum block of 2
        const V t80 = t78 + t73;
        io.out(3, t80);
        const V t81 = t78 - t73;
        io.out(11, t81);
        // spectrum block of 2
        const V t82 = t79 - t76;
        io.out(7, t82);
        const V t83 = t79 + t76;
        io.out(15, t83);
    }
};

}  // namespace zulg
