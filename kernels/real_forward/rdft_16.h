// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 16.
// Forward DFT of 16 real points, twiddled 4, 4.
// 29 additions, 29 subtractions, 12 multiplications (28 with `scale`); 6 outputs negated; 3 constants; 17 values alive at most.
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
        const V t1 = x0 - x8;
        // real block of 2
        const V x4 = io.in(4);
        const V x12 = io.in(12);
        const V t2 = x4 + x12;
        const V t3 = x4 - x12;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x1 = io.in(1);
        const V x9 = io.in(9);
        const V t6 = x1 + x9;
        const V t7 = x1 - x9;
        // real block of 2
        const V x5 = io.in(5);
        const V x13 = io.in(13);
        const V t8 = x5 + x13;
        const V t9 = x5 - x13;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x2 = io.in(2);
        const V x10 = io.in(10);
        const V t12 = x2 + x10;
        const V t13 = x2 - x10;
        // real block of 2
        const V x6 = io.in(6);
        const V x14 = io.in(14);
        const V t14 = x6 + x14;
        const V t15 = x6 - x14;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x3 = io.in(3);
        const V x11 = io.in(11);
        const V t18 = x3 + x11;
        const V t19 = x3 - x11;
        // real block of 2
        const V x7 = io.in(7);
        const V x15 = io.in(15);
        const V t20 = x7 + x15;
        const V t21 = x7 - x15;
        // real block of 2
        const V t22 = t18 + t20;
        const V t23 = t18 - t20;
        // real block of 2
        const V t24 = t4 + t16;
        const V t25 = t4 - t16;
        io.re(4, t25);
        // real block of 2
        const V t26 = t10 + t22;
        const V t27 = t10 - t22;
        io.minusIm(4, t27);
        // real block of 2
        const V t28 = t24 + t26;
        io.re(0, t28);
        const V t29 = t24 - t26;
        io.re(8, t29);
        // real block of 16
        const V t30 = c[0] * t9;
        const V t31 = c[1] * t7;
        const V t32 = t31 - t30;
        const V t33 = c[0] * t7;
        const V t34 = c[1] * t9;
        const V t35 = t34 + t33;
        const V t36 = t13 - t15;
        const V t37 = t15 + t13;
        const V t38 = c[2] * t36;
        const V t39 = c[2] * t37;
        const V t40 = c[1] * t21;
        const V t41 = c[0] * t19;
        const V t42 = t41 - t40;
        const V t43 = c[1] * t19;
        const V t44 = c[0] * t21;
        const V t45 = t44 + t43;
        // complex block of 2
        const V t46 = t1 + t38;
        const V t47 = t3 + t39;
        const V t48 = t1 - t38;
        const V t49 = t39 - t3;
        // complex block of 2
        const V t50 = t32 + t42;
        const V t51 = t35 + t45;
        const V t52 = t32 - t42;
        const V t53 = t45 - t35;
        // complex block of 2
        const V t54 = t46 + t50;
        io.re(1, t54);
        const V t55 = t47 + t51;
        io.minusIm(1, t55);
        const V t56 = t46 - t50;
        io.re(7, t56);
        const V t57 = t51 - t47;
        io.minusIm(7, t57);
        // complex block of 2
        const V t58 = t48 + t53;
        io.re(5, t58);
        const V t59 = t49 - t52;
        io.im(5, t59);
        const V t60 = t48 - t53;
        io.re(3, t60);
        const V t61 = t49 + t52;
        io.minusIm(3, t61);
        // skew block of 4
        const V t62 = t11 - t23;
        const V t63 = c[2] * t62;
        const V t64 = t11 + t23;
        const V t65 = c[2] * t64;
        const V t66 = t65 - t17;
        io.minusIm(6, t66);
        const V t67 = t5 + t63;
        io.re(2, t67);
        const V t68 = t17 + t65;
        io.minusIm(2, t68);
        const V t69 = t5 - t63;
        io.re(6, t69);
    }
};

}  // namespace zulg
