// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 12.
// Complex DFT of 12 points, prime-factor, order 4, 3.
// 48 additions, 48 subtractions, 16 multiplications (40 with `scale`); 2 constants; 26 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<12> {
    static constexpr int steps = 136;  // with `scale`
    static constexpr double inverseRoot = 0.2886751345948129;  // 1/sqrt(12), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x6r = io.re(6);
        const V t0 = x0r + x6r;
        const V x0i = io.im(0);
        const V x6i = io.im(6);
        const V t1 = x0i + x6i;
        const V t2 = x0r - x6r;
        const V t3 = x0i - x6i;
        // complex block of 2
        const V x3r = io.re(3);
        const V x9r = io.re(9);
        const V t4 = x3r + x9r;
        const V x3i = io.im(3);
        const V x9i = io.im(9);
        const V t5 = x3i + x9i;
        const V t6 = x3r - x9r;
        const V t7 = x3i - x9i;
        // complex block of 2
        const V t8 = t0 + t4;
        const V t9 = t1 + t5;
        const V t10 = t0 - t4;
        const V t11 = t1 - t5;
        // complex block of 2
        const V t12 = t2 - t7;
        const V t13 = t3 + t6;
        const V t14 = t2 + t7;
        const V t15 = t3 - t6;
        // complex block of 2
        const V x4r = io.re(4);
        const V x10r = io.re(10);
        const V t16 = x4r + x10r;
        const V x4i = io.im(4);
        const V x10i = io.im(10);
        const V t17 = x4i + x10i;
        const V t18 = x4r - x10r;
        const V t19 = x4i - x10i;
        // complex block of 2
        const V x7r = io.re(7);
        const V x1r = io.re(1);
        const V t20 = x7r + x1r;
        const V x7i = io.im(7);
        const V x1i = io.im(1);
        const V t21 = x7i + x1i;
        const V t22 = x7r - x1r;
        const V t23 = x7i - x1i;
        // complex block of 2
        const V t24 = t16 + t20;
        const V t25 = t17 + t21;
        const V t26 = t16 - t20;
        const V t27 = t17 - t21;
        // complex block of 2
        const V t28 = t18 - t23;
        const V t29 = t19 + t22;
        const V t30 = t18 + t23;
        const V t31 = t19 - t22;
        // complex block of 2
        const V x8r = io.re(8);
        const V x2r = io.re(2);
        const V t32 = x8r + x2r;
        const V x8i = io.im(8);
        const V x2i = io.im(2);
        const V t33 = x8i + x2i;
        const V t34 = x8r - x2r;
        const V t35 = x8i - x2i;
        // complex block of 2
        const V x11r = io.re(11);
        const V x5r = io.re(5);
        const V t36 = x11r + x5r;
        const V x11i = io.im(11);
        const V x5i = io.im(5);
        const V t37 = x11i + x5i;
        const V t38 = x11r - x5r;
        const V t39 = x11i - x5i;
        // complex block of 2
        const V t40 = t32 + t36;
        const V t41 = t33 + t37;
        const V t42 = t32 - t36;
        const V t43 = t33 - t37;
        // complex block of 2
        const V t44 = t34 - t39;
        const V t45 = t35 + t38;
        const V t46 = t34 + t39;
        const V t47 = t35 - t38;
        // complex block of 3
        const V t48 = t24 + t40;
        const V t49 = t25 + t41;
        const V t50 = t24 - t40;
        const V t51 = t25 - t41;
        const V t52 = t48 + t8;
        io.re(0, t52);
        const V t53 = t49 + t9;
        io.im(0, t53);
        const V t54 = c[0] * t48;
        const V t55 = t8 - t54;
        const V t56 = c[0] * t49;
        const V t57 = t9 - t56;
        const V t58 = c[1] * t50;
        const V t59 = c[1] * t51;
        const V t60 = t55 + t59;
        io.re(4, t60);
        const V t61 = t57 - t58;
        io.im(4, t61);
        const V t62 = t55 - t59;
        io.re(8, t62);
        const V t63 = t57 + t58;
        io.im(8, t63);
        // complex block of 3
        const V t64 = t28 + t44;
        const V t65 = t29 + t45;
        const V t66 = t28 - t44;
        const V t67 = t29 - t45;
        const V t68 = t64 + t12;
        io.re(3, t68);
        const V t69 = t65 + t13;
        io.im(3, t69);
        const V t70 = c[0] * t64;
        const V t71 = t12 - t70;
        const V t72 = c[0] * t65;
        const V t73 = t13 - t72;
        const V t74 = c[1] * t66;
        const V t75 = c[1] * t67;
        const V t76 = t71 + t75;
        io.re(7, t76);
        const V t77 = t73 - t74;
        io.im(7, t77);
        const V t78 = t71 - t75;
        io.re(11, t78);
        const V t79 = t73 + t74;
        io.im(11, t79);
        // complex block of 3
        const V t80 = t26 + t42;
        const V t81 = t27 + t43;
        const V t82 = t26 - t42;
        const V t83 = t27 - t43;
        const V t84 = t80 + t10;
        io.re(6, t84);
        const V t85 = t81 + t11;
        io.im(6, t85);
        const V t86 = c[0] * t80;
        const V t87 = t10 - t86;
        const V t88 = c[0] * t81;
        const V t89 = t11 - t88;
        const V t90 = c[1] * t82;
        const V t91 = c[1] * t83;
        const V t92 = t87 + t91;
        io.re(10, t92);
        const V t93 = t89 - t90;
        io.im(10, t93);
        const V t94 = t87 - t91;
        io.re(2, t94);
        const V t95 = t89 + t90;
        io.im(2, t95);
        // complex block of 3
        const V t96 = t30 + t46;
        const V t97 = t31 + t47;
        const V t98 = t30 - t46;
        const V t99 = t31 - t47;
        const V t100 = t96 + t14;
        io.re(9, t100);
        const V t101 = t97 + t15;
        io.im(9, t101);
        const V t102 = c[0] * t96;
        const V t103 = t14 - t102;
        const V t104 = c[0] * t97;
        const V t105 = t15 - t104;
        const V t106 = c[1] * t98;
        const V t107 = c[1] * t99;
        const V t108 = t103 + t107;
        io.re(1, t108);
        const V t109 = t105 - t106;
        io.im(1, t109);
        const V t110 = t103 - t107;
        io.re(5, t110);
        const V t111 = t105 + t106;
        io.im(5, t111);
    }
};

}  // namespace zulg
