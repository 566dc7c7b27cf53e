// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 15.
// Forward DFT of 15 real points, prime-factor 3, 5.
// 35 additions, 29 subtractions, 34 multiplications (49 with `scale`); 3 outputs negated; 6 constants; 17 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<15> {
    static constexpr int steps = 113;  // with `scale`
    static constexpr double inverseRoot = 0.2581988897471611;  // 1/sqrt(15), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3, multiplier 2
        const V x5 = io.in(5);
        const V x10 = io.in(10);
        const V t0 = x5 + x10;
        const V t1 = x5 - x10;
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        const V t3 = c[4] * t0;
        const V t4 = x0 - t3;
        const V t5 = c[5] * t1;
        // real block of 3, multiplier 2
        const V x8 = io.in(8);
        const V x13 = io.in(13);
        const V t6 = x8 + x13;
        const V t7 = x8 - x13;
        const V x3 = io.in(3);
        const V t8 = t6 + x3;
        const V t9 = c[4] * t6;
        const V t10 = x3 - t9;
        const V t11 = c[5] * t7;
        // real block of 3, multiplier 2
        const V x11 = io.in(11);
        const V x1 = io.in(1);
        const V t12 = x11 + x1;
        const V t13 = x11 - x1;
        const V x6 = io.in(6);
        const V t14 = t12 + x6;
        const V t15 = c[4] * t12;
        const V t16 = x6 - t15;
        const V t17 = c[5] * t13;
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x4 = io.in(4);
        const V t18 = x14 + x4;
        const V t19 = x14 - x4;
        const V x9 = io.in(9);
        const V t20 = t18 + x9;
        const V t21 = c[4] * t18;
        const V t22 = x9 - t21;
        const V t23 = c[5] * t19;
        // real block of 3, multiplier 2
        const V x2 = io.in(2);
        const V x7 = io.in(7);
        const V t24 = x2 + x7;
        const V t25 = x2 - x7;
        const V x12 = io.in(12);
        const V t26 = t24 + x12;
        const V t27 = c[4] * t24;
        const V t28 = x12 - t27;
        const V t29 = c[5] * t25;
        // real block of 5, multiplier 3
        const V t30 = t8 + t26;
        const V t31 = t8 - t26;
        const V t32 = t20 + t14;
        const V t33 = t20 - t14;
        const V t34 = t30 + t32;
        const V t35 = t34 + t2;
        io.re(0, t35);
        const V t36 = c[0] * t30;
        const V t37 = t2 - t36;
        const V t38 = c[1] * t32;
        const V t39 = t37 + t38;
        io.re(3, t39);
        const V t40 = c[2] * t31;
        const V t41 = c[3] * t33;
        const V t42 = t40 + t41;
        io.im(3, t42);
        const V t43 = c[1] * t30;
        const V t44 = c[0] * t32;
        const V t45 = t43 - t44;
        const V t46 = t45 + t2;
        io.re(6, t46);
        const V t47 = c[3] * t31;
        const V t48 = c[2] * t33;
        const V t49 = t48 - t47;
        io.im(6, t49);
        // complex block of 5, multiplier 3
        const V t50 = t10 + t28;
        const V t51 = t11 + t29;
        const V t52 = t10 - t28;
        const V t53 = t11 - t29;
        const V t54 = t22 + t16;
        const V t55 = t23 + t17;
        const V t56 = t22 - t16;
        const V t57 = t23 - t17;
        const V t58 = t50 + t54;
        const V t59 = t51 + t55;
        const V t60 = t58 + t4;
        io.re(5, t60);
        const V t61 = t59 + t5;
        io.im(5, t61);
        const V t62 = c[1] * t50;
        const V t63 = c[0] * t54;
        const V t64 = t62 - t63;
        const V t65 = t64 + t4;
        const V t66 = c[1] * t51;
        const V t67 = c[0] * t55;
        const V t68 = t66 - t67;
        const V t69 = t68 + t5;
        const V t70 = c[3] * t52;
        const V t71 = c[2] * t56;
        const V t72 = t70 - t71;
        const V t73 = c[3] * t53;
        const V t74 = c[2] * t57;
        const V t75 = t73 - t74;
        const V t76 = t65 + t75;
        io.re(4, t76);
        const V t77 = t69 - t72;
        io.minusIm(4, t77);
        const V t78 = t65 - t75;
        io.re(1, t78);
        const V t79 = t69 + t72;
        io.minusIm(1, t79);
        const V t80 = c[0] * t50;
        const V t81 = t4 - t80;
        const V t82 = c[1] * t54;
        const V t83 = t81 + t82;
        const V t84 = c[0] * t51;
        const V t85 = t5 - t84;
        const V t86 = c[1] * t55;
        const V t87 = t85 + t86;
        const V t88 = c[2] * t52;
        const V t89 = c[3] * t56;
        const V t90 = t88 + t89;
        const V t91 = c[2] * t53;
        const V t92 = c[3] * t57;
        const V t93 = t91 + t92;
        const V t94 = t83 + t93;
        io.re(2, t94);
        const V t95 = t87 - t90;
        io.im(2, t95);
        const V t96 = t83 - t93;
        io.re(7, t96);
        const V t97 = t87 + t90;
        io.minusIm(7, t97);
    }
};

}  // namespace zulg
