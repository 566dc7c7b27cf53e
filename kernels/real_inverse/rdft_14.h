// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 14.
// Inverse DFT to 14 real points, prime-factor 2, 7.
// 31 additions, 31 subtractions, 48 multiplications (62 with `scale`); 7 constants; 17 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<14> {
    static constexpr int steps = 124;  // with `scale`
    static constexpr double inverseRoot = 0.2672612419124244;  // 1/sqrt(14), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x1i = io.im(1);
        const V t1 = two * x1i;
        const V x2r = io.re(2);
        const V t2 = two * x2r;
        const V x2i = io.im(2);
        const V t3 = two * x2i;
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x3i = io.im(3);
        const V t5 = two * x3i;
        const V x4r = io.re(4);
        const V t6 = two * x4r;
        const V x4i = io.im(4);
        const V t7 = two * x4i;
        const V x5r = io.re(5);
        const V t8 = two * x5r;
        const V x5i = io.im(5);
        const V t9 = two * x5i;
        const V x6r = io.re(6);
        const V t10 = two * x6r;
        const V x6i = io.im(6);
        const V t11 = two * x6i;
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x7r = io.re(7);
        const V t12 = x0r + x7r;
        const V t13 = x0r - x7r;
        // complex block of 2
        const V t14 = t3 - t9;
        const V t15 = t2 + t8;
        const V t16 = t3 + t9;
        const V t17 = t2 - t8;
        // complex block of 2
        const V t18 = t7 - t5;
        const V t19 = t6 + t4;
        const V t20 = t7 + t5;
        const V t21 = t6 - t4;
        // complex block of 2
        const V t22 = t11 - t1;
        const V t23 = t10 + t0;
        const V t24 = t11 + t1;
        const V t25 = t10 - t0;
        // spectrum block of 7, multiplier 2
        const V t26 = t15 + t19;
        const V t27 = t26 + t23;
        const V t28 = t27 + t12;
        io.out(0, t28);
        const V t29 = c[0] * t15;
        const V t30 = c[1] * t19;
        const V t31 = t29 - t30;
        const V t32 = c[2] * t23;
        const V t33 = t31 - t32;
        const V t34 = t33 + t12;
        const V t35 = c[3] * t14;
        const V t36 = c[4] * t18;
        const V t37 = t35 + t36;
        const V t38 = c[5] * t22;
        const V t39 = t37 + t38;
        const V t40 = t34 - t39;
        io.out(8, t40);
        const V t41 = t34 + t39;
        io.out(6, t41);
        const V t42 = c[1] * t15;
        const V t43 = t12 - t42;
        const V t44 = c[2] * t19;
        const V t45 = t43 - t44;
        const V t46 = c[0] * t23;
        const V t47 = t45 + t46;
        const V t48 = c[4] * t14;
        const V t49 = c[5] * t18;
        const V t50 = t48 - t49;
        const V t51 = c[3] * t22;
        const V t52 = t50 - t51;
        const V t53 = t47 - t52;
        io.out(2, t53);
        const V t54 = t47 + t52;
        io.out(12, t54);
        const V t55 = c[2] * t15;
        const V t56 = t12 - t55;
        const V t57 = c[0] * t19;
        const V t58 = t56 + t57;
        const V t59 = c[1] * t23;
        const V t60 = t58 - t59;
        const V t61 = c[5] * t14;
        const V t62 = c[3] * t18;
        const V t63 = t61 - t62;
        const V t64 = c[4] * t22;
        const V t65 = t63 + t64;
        const V t66 = t60 - t65;
        io.out(10, t66);
        const V t67 = t60 + t65;
        io.out(4, t67);
        // spectrum block of 7, multiplier 2
        const V t68 = t17 + t21;
        const V t69 = t68 + t25;
        const V t70 = t69 + t13;
        io.out(7, t70);
        const V t71 = c[0] * t17;
        const V t72 = c[1] * t21;
        const V t73 = t71 - t72;
        const V t74 = c[2] * t25;
        const V t75 = t73 - t74;
        const V t76 = t75 + t13;
        const V t77 = c[3] * t16;
        const V t78 = c[4] * t20;
        const V t79 = t77 + t78;
        const V t80 = c[5] * t24;
        const V t81 = t79 + t80;
        const V t82 = t76 - t81;
        io.out(1, t82);
        const V t83 = t76 + t81;
        io.out(13, t83);
        const V t84 = c[1] * t17;
        const V t85 = t13 - t84;
        const V t86 = c[2] * t21;
        const V t87 = t85 - t86;
        const V t88 = c[0] * t25;
        const V t89 = t87 + t88;
        const V t90 = c[4] * t16;
        const V t91 = c[5] * t20;
        const V t92 = t90 - t91;
        const V t93 = c[3] * t24;
        const V t94 = t92 - t93;
        const V t95 = t89 - t94;
        io.out(9, t95);
        const V t96 = t89 + t94;
        io.out(5, t96);
        const V t97 = c[2] * t17;
        const V t98 = t13 - t97;
        const V t99 = c[0] * t21;
        const V t100 = t98 + t99;
        const V t101 = c[1] * t25;
        const V t102 = t100 - t101;
        const V t103 = c[5] * t16;
        const V t104 = c[3] * t20;
        const V t105 = t103 - t104;
        const V t106 = c[4] * t24;
        const V t107 = t105 + t106;
        const V t108 = t102 - t107;
        io.out(3, t108);
        const V t109 = t102 + t107;
        io.out(11, t109);
    }
};

}  // namespace zulg
