// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 14.
// Forward DFT of 14 real points, prime-factor 2, 7.
// 31 additions, 31 subtractions, 36 multiplications (50 with `scale`); 3 outputs negated; 6 constants; 23 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<14> {
    static constexpr int steps = 112;  // with `scale`
    static constexpr double inverseRoot = 0.2672612419124244;  // 1/sqrt(14), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 2/7
        0.9009688679024191,  // c[1]: -cos 2 pi 10/7
        0.6234898018587335,  // c[2]: cos 2 pi 8/7
        0.9749279121818236,  // c[3]: sin 2 pi 2/7
        0.4338837391175581,  // c[4]: sin 2 pi 10/7
        0.7818314824680298,  // c[5]: sin 2 pi 8/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x7 = io.in(7);
        const V t0 = x0 + x7;
        const V t1 = x0 - x7;
        // real block of 2
        const V x8 = io.in(8);
        const V x1 = io.in(1);
        const V t2 = x8 + x1;
        const V t3 = x8 - x1;
        // real block of 2
        const V x6 = io.in(6);
        const V x13 = io.in(13);
        const V t4 = x6 + x13;
        const V t5 = x6 - x13;
        // real block of 7, multiplier 2
        const V t6 = t2 + t4;
        const V t7 = t2 - t4;
        // real block of 7, multiplier 2
        const V t8 = t3 + t5;
        const V t9 = t3 - t5;
        // real block of 2
        const V x2 = io.in(2);
        const V x9 = io.in(9);
        const V t10 = x2 + x9;
        const V t11 = x2 - x9;
        // real block of 2
        const V x12 = io.in(12);
        const V x5 = io.in(5);
        const V t12 = x12 + x5;
        const V t13 = x12 - x5;
        // real block of 7, multiplier 2
        const V t14 = t10 + t12;
        const V t15 = c[0] * t14;
        const V t16 = c[1] * t14;
        const V t17 = c[2] * t14;
        const V t18 = t10 - t12;
        // real block of 7, multiplier 2
        const V t19 = t11 + t13;
        const V t20 = c[0] * t19;
        const V t21 = c[1] * t19;
        const V t22 = c[2] * t19;
        const V t23 = t11 - t13;
        // real block of 2
        const V x10 = io.in(10);
        const V x3 = io.in(3);
        const V t24 = x10 + x3;
        const V t25 = x10 - x3;
        // real block of 2
        const V x4 = io.in(4);
        const V x11 = io.in(11);
        const V t26 = x4 + x11;
        const V t27 = x4 - x11;
        // real block of 7, multiplier 2
        const V t28 = t24 + t26;
        const V t29 = c[0] * t28;
        const V t30 = t24 - t26;
        // real block of 7, multiplier 2
        const V t31 = t25 + t27;
        const V t32 = c[0] * t31;
        const V t33 = t25 - t27;
        // real block of 7, multiplier 2
        const V t34 = t14 + t28;
        const V t35 = t34 + t6;
        const V t36 = t35 + t0;
        io.re(0, t36);
        const V t37 = t0 - t15;
        const V t38 = c[1] * t28;
        const V t39 = t37 - t38;
        const V t40 = c[2] * t6;
        const V t41 = t39 + t40;
        io.re(2, t41);
        const V t42 = c[3] * t18;
        const V t43 = c[4] * t30;
        const V t44 = t42 + t43;
        const V t45 = c[5] * t7;
        const V t46 = t44 + t45;
        io.minusIm(2, t46);
        const V t47 = t0 - t16;
        const V t48 = c[2] * t28;
        const V t49 = t47 + t48;
        const V t50 = c[0] * t6;
        const V t51 = t49 - t50;
        io.re(4, t51);
        const V t52 = c[4] * t18;
        const V t53 = c[5] * t30;
        const V t54 = t52 + t53;
        const V t55 = c[3] * t7;
        const V t56 = t54 - t55;
        io.im(4, t56);
        const V t57 = t17 - t29;
        const V t58 = c[1] * t6;
        const V t59 = t57 - t58;
        const V t60 = t59 + t0;
        io.re(6, t60);
        const V t61 = c[5] * t18;
        const V t62 = c[3] * t30;
        const V t63 = t61 - t62;
        const V t64 = c[4] * t7;
        const V t65 = t63 - t64;
        io.im(6, t65);
        // real block of 7, multiplier 2
        const V t66 = t19 + t31;
        const V t67 = t66 + t8;
        const V t68 = t67 + t1;
        io.re(7, t68);
        const V t69 = t1 - t20;
        const V t70 = c[1] * t31;
        const V t71 = t69 - t70;
        const V t72 = c[2] * t8;
        const V t73 = t71 + t72;
        io.re(5, t73);
        const V t74 = c[3] * t23;
        const V t75 = c[4] * t33;
        const V t76 = t74 + t75;
        const V t77 = c[5] * t9;
        const V t78 = t76 + t77;
        io.im(5, t78);
        const V t79 = t1 - t21;
        const V t80 = c[2] * t31;
        const V t81 = t79 + t80;
        const V t82 = c[0] * t8;
        const V t83 = t81 - t82;
        io.re(3, t83);
        const V t84 = c[4] * t23;
        const V t85 = c[5] * t33;
        const V t86 = t84 + t85;
        const V t87 = c[3] * t9;
        const V t88 = t86 - t87;
        io.minusIm(3, t88);
        const V t89 = t22 - t32;
        const V t90 = c[1] * t8;
        const V t91 = t89 - t90;
        const V t92 = t91 + t1;
        io.re(1, t92);
        const V t93 = c[5] * t23;
        const V t94 = c[3] * t33;
        const V t95 = t93 - t94;
        const V t96 = c[4] * t9;
        const V t97 = t95 - t96;
        io.minusIm(1, t97);
    }
};

}  // namespace zulg
