// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 7.
// Complex DFT of 7 points, direct symmetric form.
// 30 additions, 30 subtractions, 36 multiplications (50 with `scale`); 6 constants; 19 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<7> {
    static constexpr int steps = 110;  // with `scale`
    static constexpr double inverseRoot = 0.3779644730092272;  // 1/sqrt(7), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 7
        const V x1r = io.re(1);
        const V x6r = io.re(6);
        const V t0 = x1r + x6r;
        const V x1i = io.im(1);
        const V x6i = io.im(6);
        const V t1 = x1i + x6i;
        const V t2 = x1r - x6r;
        const V t3 = x1i - x6i;
        const V x5r = io.re(5);
        const V x2r = io.re(2);
        const V t4 = x5r + x2r;
        const V x5i = io.im(5);
        const V x2i = io.im(2);
        const V t5 = x5i + x2i;
        const V t6 = x5r - x2r;
        const V t7 = x5i - x2i;
        const V x4r = io.re(4);
        const V x3r = io.re(3);
        const V t8 = x4r + x3r;
        const V x4i = io.im(4);
        const V x3i = io.im(3);
        const V t9 = x4i + x3i;
        const V t10 = x4r - x3r;
        const V t11 = x4i - x3i;
        const V t12 = t0 + t4;
        const V t13 = t12 + t8;
        const V t14 = t1 + t5;
        const V t15 = t14 + t9;
        const V x0r = io.re(0);
        const V t16 = t13 + x0r;
        const V x0i = io.im(0);
        io.re(0, t16);
        const V t17 = t15 + x0i;
        io.im(0, t17);
        const V t18 = c[0] * t0;
        const V t19 = c[1] * t4;
        const V t20 = t18 - t19;
        const V t21 = c[2] * t8;
        const V t22 = t20 - t21;
        const V t23 = t22 + x0r;
        const V t24 = c[0] * t1;
        const V t25 = c[1] * t5;
        const V t26 = t24 - t25;
        const V t27 = c[2] * t9;
        const V t28 = t26 - t27;
        const V t29 = t28 + x0i;
        const V t30 = c[3] * t2;
        const V t31 = c[4] * t6;
        const V t32 = t30 - t31;
        const V t33 = c[5] * t10;
        const V t34 = t32 - t33;
        const V t35 = c[3] * t3;
        const V t36 = c[4] * t7;
        const V t37 = t35 - t36;
        const V t38 = c[5] * t11;
        const V t39 = t37 - t38;
        const V t40 = t23 + t39;
        io.re(1, t40);
        const V t41 = t29 - t34;
        io.im(1, t41);
        const V t42 = t23 - t39;
        io.re(6, t42);
        const V t43 = t29 + t34;
        io.im(6, t43);
        const V t44 = c[1] * t0;
        const V t45 = x0r - t44;
        const V t46 = c[2] * t4;
        const V t47 = t45 - t46;
        const V t48 = c[0] * t8;
        const V t49 = t47 + t48;
        const V t50 = c[1] * t1;
        const V t51 = x0i - t50;
        const V t52 = c[2] * t5;
        const V t53 = t51 - t52;
        const V t54 = c[0] * t9;
        const V t55 = t53 + t54;
        const V t56 = c[4] * t2;
        const V t57 = c[5] * t6;
        const V t58 = t56 + t57;
        const V t59 = c[3] * t10;
        const V t60 = t58 + t59;
        const V t61 = c[4] * t3;
        const V t62 = c[5] * t7;
        const V t63 = t61 + t62;
        const V t64 = c[3] * t11;
        const V t65 = t63 + t64;
        const V t66 = t49 + t65;
        io.re(2, t66);
        const V t67 = t55 - t60;
        io.im(2, t67);
        const V t68 = t49 - t65;
        io.re(5, t68);
        const V t69 = t55 + t60;
        io.im(5, t69);
        const V t70 = c[2] * t0;
        const V t71 = x0r - t70;
        const V t72 = c[0] * t4;
        const V t73 = t71 + t72;
        const V t74 = c[1] * t8;
        const V t75 = t73 - t74;
        const V t76 = c[2] * t1;
        const V t77 = x0i - t76;
        const V t78 = c[0] * t5;
        const V t79 = t77 + t78;
        const V t80 = c[1] * t9;
        const V t81 = t79 - t80;
        const V t82 = c[5] * t2;
        const V t83 = c[3] * t6;
        const V t84 = t82 + t83;
        const V t85 = c[4] * t10;
        const V t86 = t84 - t85;
        const V t87 = c[5] * t3;
        const V t88 = c[3] * t7;
        const V t89 = t87 + t88;
        const V t90 = c[4] * t11;
        const V t91 = t89 - t90;
        const V t92 = t75 + t91;
        io.re(3, t92);
        const V t93 = t81 - t86;
        io.im(3, t93);
        const V t94 = t75 - t91;
        io.re(4, t94);
        const V t95 = t81 + t86;
        io.im(4, t95);
    }
};

}  // namespace zulg
