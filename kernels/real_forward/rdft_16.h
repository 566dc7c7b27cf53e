// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 16.
// Forward DFT of 16 real points, twiddled 4, 4.
// 29 additions, 29 subtractions, 12 multiplications (28 with `scale`); 6 outputs negated; 3 constants; 23 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<16> {
    static constexpr int steps = 86;  // with `scale`
    static constexpr double inverseRoot = 0.25;  // 1/sqrt(16), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x8 = io.in(8);
        const V t0 = x0 + x8;
        // real block of 2
        const V x4 = io.in(4);
        const V x12 = io.in(12);
        const V t1 = x4 + x12;
        // real block of 2
        const V t2 = x0 - x8;
        // real block of 2
        const V t3 = x4 - x12;
        // real block of 2
        const V t4 = t0 + t1;
        // real block of 2
        const V x1 = io.in(1);
        const V x9 = io.in(9);
        const V t5 = x1 + x9;
        const V t6 = x1 - x9;
        // real block of 2
        const V x5 = io.in(5);
        const V x13 = io.in(13);
        const V t7 = x5 + x13;
        const V t8 = x5 - x13;
        // real block of 2
        const V t9 = t5 + t7;
        const V t10 = t5 - t7;
        // real block of 16
        const V t11 = c[0] * t8;
        const V t12 = c[1] * t6;
        const V t13 = c[0] * t6;
        const V t14 = c[1] * t8;
        // real block of 2
        const V x2 = io.in(2);
        const V x10 = io.in(10);
        const V t15 = x2 + x10;
        const V t16 = x2 - x10;
        // real block of 2
        const V x6 = io.in(6);
        const V x14 = io.in(14);
        const V t17 = x6 + x14;
        const V t18 = x6 - x14;
        // real block of 2
        const V t19 = t15 + t17;
        // real block of 16
        const V t20 = t16 - t18;
        const V t21 = t18 + t16;
        // real block of 2
        const V x3 = io.in(3);
        const V x11 = io.in(11);
        const V t22 = x3 + x11;
        const V t23 = x3 - x11;
        // real block of 2
        const V x7 = io.in(7);
        const V x15 = io.in(15);
        const V t24 = x7 + x15;
        const V t25 = x7 - x15;
        // real block of 2
        const V t26 = t22 + t24;
        const V t27 = t22 - t24;
        // real block of 16
        const V t28 = c[1] * t25;
        const V t29 = c[0] * t23;
        const V t30 = c[1] * t23;
        const V t31 = c[0] * t25;
        // real block of 2
        const V t32 = t0 - t1;
        // skew block of 4
        const V t33 = t10 - t27;
        const V t34 = c[2] * t33;
        const V t35 = t32 + t34;
        io.re(2, t35);
        const V t36 = t32 - t34;
        io.re(6, t36);
        // real block of 2
        const V t37 = t15 - t17;
        // skew block of 4
        const V t38 = t10 + t27;
        const V t39 = c[2] * t38;
        const V t40 = t39 - t37;
        io.minusIm(6, t40);
        const V t41 = t37 + t39;
        io.minusIm(2, t41);
        // real block of 2
        const V t42 = t4 + t19;
        // real block of 2
        const V t43 = t9 + t26;
        // real block of 2
        const V t44 = t42 + t43;
        io.re(0, t44);
        const V t45 = t42 - t43;
        io.re(8, t45);
        // real block of 2
        const V t46 = t4 - t19;
        io.re(4, t46);
        // real block of 2
        const V t47 = t9 - t26;
        io.minusIm(4, t47);
        // real block of 16
        const V t48 = t12 - t11;
        const V t49 = t29 - t28;
        // complex block of 2
        const V t50 = t48 + t49;
        const V t51 = t48 - t49;
        // real block of 16
        const V t52 = t14 + t13;
        const V t53 = t31 + t30;
        // complex block of 2
        const V t54 = t52 + t53;
        const V t55 = t53 - t52;
        // real block of 16
        const V t56 = c[2] * t20;
        // complex block of 2
        const V t57 = t2 + t56;
        const V t58 = t2 - t56;
        // real block of 16
        const V t59 = c[2] * t21;
        // complex block of 2
        const V t60 = t3 + t59;
        const V t61 = t59 - t3;
        // complex block of 2
        const V t62 = t57 + t50;
        io.re(1, t62);
        const V t63 = t60 + t54;
        io.minusIm(1, t63);
        const V t64 = t57 - t50;
        io.re(7, t64);
        const V t65 = t54 - t60;
        io.minusIm(7, t65);
        // complex block of 2
        const V t66 = t58 + t55;
        io.re(5, t66);
        const V t67 = t61 - t51;
        io.im(5, t67);
        const V t68 = t58 - t55;
        io.re(3, t68);
        const V t69 = t61 + t51;
        io.minusIm(3, t69);
    }
};

}  // namespace zulg
