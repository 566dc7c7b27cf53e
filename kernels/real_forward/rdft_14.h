// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 14.
// Forward DFT of 14 real points, prime-factor 2, 7.
// 31 additions, 31 subtractions, 36 multiplications (50 with `scale`); 3 outputs negated; 6 constants; 17 values alive at most.
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
        const V x2 = io.in(2);
        const V x9 = io.in(9);
        const V t2 = x2 + x9;
        const V t3 = x2 - x9;
        // real block of 2
        const V x4 = io.in(4);
        const V x11 = io.in(11);
        const V t4 = x4 + x11;
        const V t5 = x4 - x11;
        // real block of 2
        const V x6 = io.in(6);
        const V x13 = io.in(13);
        const V t6 = x6 + x13;
        const V t7 = x6 - x13;
        // real block of 2
        const V x8 = io.in(8);
        const V x1 = io.in(1);
        const V t8 = x8 + x1;
        const V t9 = x8 - x1;
        // real block of 2
        const V x10 = io.in(10);
        const V x3 = io.in(3);
        const V t10 = x10 + x3;
        const V t11 = x10 - x3;
        // real block of 2
        const V x12 = io.in(12);
        const V x5 = io.in(5);
        const V t12 = x12 + x5;
        const V t13 = x12 - x5;
        // real block of 7, multiplier 2
        const V t14 = t2 + t12;
        const V t15 = t2 - t12;
        const V t16 = t10 + t4;
        const V t17 = t10 - t4;
        const V t18 = t8 + t6;
        const V t19 = t8 - t6;
        const V t20 = t14 + t16;
        const V t21 = t20 + t18;
        const V t22 = t21 + t0;
        io.re(0, t22);
        const V t23 = c[0] * t14;
        const V t24 = t0 - t23;
        const V t25 = c[1] * t16;
        const V t26 = t24 - t25;
        const V t27 = c[2] * t18;
        const V t28 = t26 + t27;
        io.re(2, t28);
        const V t29 = c[3] * t15;
        const V t30 = c[4] * t17;
        const V t31 = c[5] * t19;
        const V t32 = t29 + t30;
        const V t33 = t32 + t31;
        io.minusIm(2, t33);
        const V t34 = c[1] * t14;
        const V t35 = t0 - t34;
        const V t36 = c[2] * t16;
        const V t37 = t35 + t36;
        const V t38 = c[0] * t18;
        const V t39 = t37 - t38;
        io.re(4, t39);
        const V t40 = c[4] * t15;
        const V t41 = c[5] * t17;
        const V t42 = c[3] * t19;
        const V t43 = t40 + t41;
        const V t44 = t43 - t42;
        io.im(4, t44);
        const V t45 = c[2] * t14;
        const V t46 = c[0] * t16;
        const V t47 = t45 - t46;
        const V t48 = c[1] * t18;
        const V t49 = t47 - t48;
        const V t50 = t49 + t0;
        io.re(6, t50);
        const V t51 = c[5] * t15;
        const V t52 = c[3] * t17;
        const V t53 = c[4] * t19;
        const V t54 = t51 - t52;
        const V t55 = t54 - t53;
        io.im(6, t55);
        // real block of 7, multiplier 2
        const V t56 = t3 + t13;
        const V t57 = t3 - t13;
        const V t58 = t11 + t5;
        const V t59 = t11 - t5;
        const V t60 = t9 + t7;
        const V t61 = t9 - t7;
        const V t62 = t56 + t58;
        const V t63 = t62 + t60;
        const V t64 = t63 + t1;
        io.re(7, t64);
        const V t65 = c[0] * t56;
        const V t66 = t1 - t65;
        const V t67 = c[1] * t58;
        const V t68 = t66 - t67;
        const V t69 = c[2] * t60;
        const V t70 = t68 + t69;
        io.re(5, t70);
        const V t71 = c[3] * t57;
        const V t72 = c[4] * t59;
        const V t73 = c[5] * t61;
        const V t74 = t71 + t72;
        const V t75 = t74 + t73;
        io.im(5, t75);
        const V t76 = c[1] * t56;
        const V t77 = t1 - t76;
        const V t78 = c[2] * t58;
        const V t79 = t77 + t78;
        const V t80 = c[0] * t60;
        const V t81 = t79 - t80;
        io.re(3, t81);
        const V t82 = c[4] * t57;
        const V t83 = c[5] * t59;
        const V t84 = c[3] * t61;
        const V t85 = t82 + t83;
        const V t86 = t85 - t84;
        io.minusIm(3, t86);
        const V t87 = c[2] * t56;
        const V t88 = c[0] * t58;
        const V t89 = t87 - t88;
        const V t90 = c[1] * t60;
        const V t91 = t89 - t90;
        const V t92 = t91 + t1;
        io.re(1, t92);
        const V t93 = c[5] * t57;
        const V t94 = c[3] * t59;
        const V t95 = c[4] * t61;
        const V t96 = t93 - t94;
        const V t97 = t96 - t95;
        io.minusIm(1, t97);
    }
};

}  // namespace zulg
