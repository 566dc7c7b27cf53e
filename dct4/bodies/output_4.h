// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_output, 4.
// Output row of radix 4, rotations by the table, then a mirrored skew transform.
// 16 additions, 16 subtractions, 28 multiplications; 3 constants; 12 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Output<4> {
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: -sin 2 pi 15/16
        0.9238795325112867,  // c[1]: cos 2 pi 15/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Output> c{};
        const V x0i = io.im(0);
        const V w1 = io.table(1);
        const V t0 = x0i * w1;
        const V x0r = io.re(0);
        const V w0 = io.table(0);
        const V t1 = x0r * w0;
        const V t2 = t1 - t0;
        const V t3 = x0i * w0;
        const V t4 = x0r * w1;
        const V t5 = t4 + t3;
        const V x3i = io.im(3);
        const V w3 = io.table(3);
        const V t6 = x3i * w3;
        const V x3r = io.re(3);
        const V w2 = io.table(2);
        const V t7 = x3r * w2;
        const V t8 = t7 - t6;
        const V t9 = x3i * w2;
        const V t10 = x3r * w3;
        const V t11 = t10 + t9;
        const V x1i = io.im(1);
        const V w5 = io.table(5);
        const V t12 = x1i * w5;
        const V x1r = io.re(1);
        const V w4 = io.table(4);
        const V t13 = x1r * w4;
        const V t14 = t13 - t12;
        const V t15 = x1i * w4;
        const V t16 = x1r * w5;
        const V t17 = t16 + t15;
        const V x2i = io.im(2);
        const V w7 = io.table(7);
        const V t18 = x2i * w7;
        const V x2r = io.re(2);
        const V w6 = io.table(6);
        const V t19 = x2r * w6;
        const V t20 = t19 - t18;
        const V t21 = x2i * w6;
        const V t22 = x2r * w7;
        const V t23 = t22 + t21;
        // complex block of 2
        const V t24 = t5 - t11;
        const V t25 = t2 + t8;
        const V t26 = t5 + t11;
        const V t27 = t2 - t8;
        // mirrored skew block of 8
        const V t28 = c[0] * t26;
        const V t29 = c[1] * t27;
        const V t30 = t29 - t28;
        const V t31 = c[0] * t27;
        const V t32 = c[1] * t26;
        const V t33 = t32 + t31;
        // complex block of 2
        const V t34 = t17 - t23;
        const V t35 = t14 + t20;
        const V t36 = t17 + t23;
        const V t37 = t14 - t20;
        // mirrored skew block of 8
        const V t38 = c[1] * t36;
        const V t39 = c[0] * t37;
        const V t40 = t39 - t38;
        const V t41 = c[1] * t37;
        const V t42 = c[0] * t36;
        const V t43 = t42 + t41;
        // mirrored skew block of 4
        const V t44 = t25 - t35;
        const V t45 = c[2] * t44;
        const V t46 = t24 + t34;
        const V t47 = c[2] * t46;
        const V t48 = t25 + t35;
        io.rising(0, t48);
        const V t49 = t45 - t47;
        io.rising(2, t49);
        const V t50 = t24 - t34;
        io.falling(0, t50);
        const V t51 = t45 + t47;
        io.falling(2, t51);
        // mirrored skew block of 4
        const V t52 = t30 - t40;
        const V t53 = c[2] * t52;
        const V t54 = t33 + t43;
        const V t55 = c[2] * t54;
        const V t56 = t30 + t40;
        io.rising(1, t56);
        const V t57 = t53 - t55;
        io.rising(3, t57);
        const V t58 = t33 - t43;
        io.falling(1, t58);
        const V t59 = t53 + t55;
        io.falling(3, t59);
    }
};

}  // namespace zulg
