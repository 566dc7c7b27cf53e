// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 15.
// Inverse DFT to 15 real points, prime-factor 3, 5.
// 35 additions, 29 subtractions, 47 multiplications (62 with `scale`); 8 constants; 18 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<15> {
    static constexpr int steps = 126;  // with `scale`
    static constexpr double inverseRoot = 0.2581988897471611;  // 1/sqrt(15), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        1.7320508075688772,  // c[6]: sin 2 pi 1/3 times 2
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
        const V x6r = io.re(6);
        const V t9 = two * x6r;
        const V x6i = io.im(6);
        const V t10 = two * x6i;
        const V x7r = io.re(7);
        const V t11 = two * x7r;
        const V x7i = io.im(7);
        const V t12 = two * x7i;
        // spectrum block of 3, multiplier 2
        const V x0r = io.re(0);
        const V t13 = t8 + x0r;
        const V t14 = c[4] * t8;
        const V t15 = x0r - t14;
        const V x5i = io.im(5);
        const V t16 = c[6] * x5i;
        const V t17 = t15 - t16;
        const V t18 = t15 + t16;
        // complex block of 3, multiplier 2
        const V t19 = t12 + t3;
        const V t20 = t11 + t2;
        const V t21 = t3 - t12;
        const V t22 = t11 - t2;
        const V t23 = t5 - t19;
        const V t24 = t20 + t4;
        const V t25 = c[4] * t19;
        const V t26 = t25 + t5;
        const V t27 = c[4] * t20;
        const V t28 = t4 - t27;
        const V t29 = c[5] * t21;
        const V t30 = c[5] * t22;
        const V t31 = t26 + t30;
        const V t32 = t28 - t29;
        const V t33 = t26 - t30;
        const V t34 = t28 + t29;
        // complex block of 3, multiplier 2
        const V t35 = t1 - t7;
        const V t36 = t6 + t0;
        const V t37 = t7 + t1;
        const V t38 = t6 - t0;
        const V t39 = t35 + t10;
        const V t40 = t36 + t9;
        const V t41 = c[4] * t35;
        const V t42 = t10 - t41;
        const V t43 = c[4] * t36;
        const V t44 = t9 - t43;
        const V t45 = c[5] * t37;
        const V t46 = c[5] * t38;
        const V t47 = t42 + t46;
        const V t48 = t44 + t45;
        const V t49 = t42 - t46;
        const V t50 = t44 - t45;
        // spectrum block of 5, multiplier 3
        const V t51 = t24 + t40;
        const V t52 = t51 + t13;
        io.out(0, t52);
        const V t53 = c[0] * t24;
        const V t54 = c[1] * t40;
        const V t55 = t53 - t54;
        const V t56 = t55 + t13;
        const V t57 = c[2] * t23;
        const V t58 = c[3] * t39;
        const V t59 = t57 + t58;
        const V t60 = t56 - t59;
        io.out(6, t60);
        const V t61 = t56 + t59;
        io.out(9, t61);
        const V t62 = c[1] * t24;
        const V t63 = t13 - t62;
        const V t64 = c[0] * t40;
        const V t65 = t63 + t64;
        const V t66 = c[3] * t23;
        const V t67 = c[2] * t39;
        const V t68 = t66 - t67;
        const V t69 = t65 - t68;
        io.out(12, t69);
        const V t70 = t65 + t68;
        io.out(3, t70);
        // spectrum block of 5, multiplier 3
        const V t71 = t34 + t50;
        const V t72 = t71 + t18;
        io.out(5, t72);
        const V t73 = c[0] * t34;
        const V t74 = c[1] * t50;
        const V t75 = t73 - t74;
        const V t76 = t75 + t18;
        const V t77 = c[2] * t33;
        const V t78 = c[3] * t49;
        const V t79 = t77 + t78;
        const V t80 = t76 - t79;
        io.out(11, t80);
        const V t81 = t76 + t79;
        io.out(14, t81);
        const V t82 = c[1] * t34;
        const V t83 = t18 - t82;
        const V t84 = c[0] * t50;
        const V t85 = t83 + t84;
        const V t86 = c[3] * t33;
        const V t87 = c[2] * t49;
        const V t88 = t86 - t87;
        const V t89 = t85 - t88;
        io.out(2, t89);
        const V t90 = t85 + t88;
        io.out(8, t90);
        // spectrum block of 5, multiplier 3
        const V t91 = t32 + t48;
        const V t92 = t91 + t17;
        io.out(10, t92);
        const V t93 = c[0] * t32;
        const V t94 = c[1] * t48;
        const V t95 = t93 - t94;
        const V t96 = t95 + t17;
        const V t97 = c[2] * t31;
        const V t98 = c[3] * t47;
        const V t99 = t97 + t98;
        const V t100 = t96 - t99;
        io.out(1, t100);
        const V t101 = t96 + t99;
        io.out(4, t101);
        const V t102 = c[1] * t32;
        const V t103 = t17 - t102;
        const V t104 = c[0] * t48;
        const V t105 = t103 + t104;
        const V t106 = c[3] * t31;
        const V t107 = c[2] * t47;
        const V t108 = t106 - t107;
        const V t109 = t105 - t108;
        io.out(7, t109);
        const V t110 = t105 + t108;
        io.out(13, t110);
    }
};

}  // namespace zulg
