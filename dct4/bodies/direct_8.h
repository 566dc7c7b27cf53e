// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_direct, 8.
// DCT-IV of 8 points, two passes.
// 16 additions, 16 subtractions, 24 multiplications; 7 constants; 10 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Direct<8> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.2902846772544624,  // c[1]: -sin 2 pi 61/64
        0.9569403357322088,  // c[2]: cos 2 pi 61/64
        0.0980171403295606,  // c[3]: -sin 2 pi 63/64
        0.9951847266721969,  // c[4]: cos 2 pi 63/64
        0.773010453362737,  // c[5]: -sin 2 pi 55/64
        0.6343932841636455,  // c[6]: cos 2 pi 55/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Direct> c{};
        // fold 4
        const V x4 = io.in(4);
        const V x3 = io.in(3);
        const V t0 = x4 + x3;
        const V t1 = c[0] * t0;
        const V t2 = x4 - x3;
        const V t3 = c[0] * t2;
        const V x0 = io.in(0);
        const V t4 = x0 + t1;
        const V x7 = io.in(7);
        const V t5 = t3 - x7;
        const V t6 = x0 - t1;
        const V t7 = t3 + x7;
        // fold 4
        const V x5 = io.in(5);
        const V x2 = io.in(2);
        const V t8 = x5 + x2;
        const V t9 = c[0] * t8;
        const V t10 = x5 - x2;
        const V t11 = c[0] * t10;
        const V x1 = io.in(1);
        const V t12 = x1 + t9;
        const V x6 = io.in(6);
        const V t13 = t11 - x6;
        const V t14 = x1 - t9;
        const V t15 = t11 + x6;
        // row 0
        const V t16 = c[3] * t5;
        const V t17 = c[4] * t4;
        const V t18 = t17 - t16;
        const V t19 = c[3] * t4;
        const V t20 = c[4] * t5;
        const V t21 = t20 + t19;
        const V t22 = c[1] * t13;
        const V t23 = c[2] * t12;
        const V t24 = t23 - t22;
        const V t25 = c[1] * t12;
        const V t26 = c[2] * t13;
        const V t27 = t26 + t25;
        // mirrored skew block of 4
        const V t28 = t18 - t24;
        const V t29 = c[0] * t28;
        const V t30 = t21 + t27;
        const V t31 = c[0] * t30;
        const V t32 = t18 + t24;
        io.out(0, t32);
        const V t33 = t29 - t31;
        io.out(4, t33);
        const V t34 = t21 - t27;
        io.out(7, t34);
        const V t35 = t29 + t31;
        io.out(3, t35);
        // row 1
        const V t36 = c[1] * t7;
        const V t37 = c[2] * t6;
        const V t38 = t37 - t36;
        const V t39 = c[1] * t6;
        const V t40 = c[2] * t7;
        const V t41 = t40 + t39;
        const V t42 = c[5] * t15;
        const V t43 = c[6] * t14;
        const V t44 = t43 - t42;
        const V t45 = c[5] * t14;
        const V t46 = c[6] * t15;
        const V t47 = t46 + t45;
        // mirrored skew block of 4
        const V t48 = t38 - t44;
        const V t49 = c[0] * t48;
        const V t50 = t41 + t47;
        const V t51 = c[0] * t50;
        const V t52 = t38 + t44;
        io.out(1, t52);
        const V t53 = t49 - t51;
        io.out(5, t53);
        const V t54 = t41 - t47;
        io.out(6, t54);
        const V t55 = t49 + t51;
        io.out(2, t55);
    }
};

}  // namespace zulg
