// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 9.
// Complex DFT of 9 points, twiddled, inner 3, outer 3.
// 40 additions, 40 subtractions, 40 multiplications (58 with `scale`); 8 constants; 20 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<9> {
    static constexpr int steps = 138;  // with `scale`
    static constexpr double inverseRoot = 0.3333333333333333;  // 1/sqrt(9), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.6427876096865394,  // c[4]: sin 2 pi 1/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.3420201433256687,  // c[6]: sin 2 pi 4/9
        0.9396926207859084,  // c[7]: -cos 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3
        const V x3r = io.re(3);
        const V x6r = io.re(6);
        const V t0 = x3r + x6r;
        const V x3i = io.im(3);
        const V x6i = io.im(6);
        const V t1 = x3i + x6i;
        const V t2 = x3r - x6r;
        const V t3 = x3i - x6i;
        const V x0r = io.re(0);
        const V t4 = t0 + x0r;
        const V x0i = io.im(0);
        const V t5 = t1 + x0i;
        const V t6 = c[0] * t0;
        const V t7 = x0r - t6;
        const V t8 = c[0] * t1;
        const V t9 = x0i - t8;
        const V t10 = c[1] * t2;
        const V t11 = c[1] * t3;
        const V t12 = t7 + t11;
        const V t13 = t9 - t10;
        const V t14 = t7 - t11;
        const V t15 = t9 + t10;
        // complex block of 3
        const V x4r = io.re(4);
        const V x7r = io.re(7);
        const V t16 = x4r + x7r;
        const V x4i = io.im(4);
        const V x7i = io.im(7);
        const V t17 = x4i + x7i;
        const V t18 = x4r - x7r;
        const V t19 = x4i - x7i;
        const V x1r = io.re(1);
        const V t20 = t16 + x1r;
        const V x1i = io.im(1);
        const V t21 = t17 + x1i;
        const V t22 = c[0] * t16;
        const V t23 = x1r - t22;
        const V t24 = c[0] * t17;
        const V t25 = x1i - t24;
        const V t26 = c[1] * t18;
        const V t27 = c[1] * t19;
        const V t28 = t23 + t27;
        const V t29 = t25 - t26;
        const V t30 = t23 - t27;
        const V t31 = t25 + t26;
        // complex block of 3
        const V x5r = io.re(5);
        const V x8r = io.re(8);
        const V t32 = x5r + x8r;
        const V x5i = io.im(5);
        const V x8i = io.im(8);
        const V t33 = x5i + x8i;
        const V t34 = x5r - x8r;
        const V t35 = x5i - x8i;
        const V x2r = io.re(2);
        const V t36 = t32 + x2r;
        const V x2i = io.im(2);
        const V t37 = t33 + x2i;
        const V t38 = c[0] * t32;
        const V t39 = x2r - t38;
        const V t40 = c[0] * t33;
        const V t41 = x2i - t40;
        const V t42 = c[1] * t34;
        const V t43 = c[1] * t35;
        const V t44 = t39 + t43;
        const V t45 = t41 - t42;
        const V t46 = t39 - t43;
        const V t47 = t41 + t42;
        // complex block of 3
        const V t48 = t20 + t36;
        const V t49 = t21 + t37;
        const V t50 = t20 - t36;
        const V t51 = t21 - t37;
        const V t52 = t48 + t4;
        io.re(0, t52);
        const V t53 = t49 + t5;
        io.im(0, t53);
        const V t54 = c[0] * t48;
        const V t55 = t4 - t54;
        const V t56 = c[0] * t49;
        const V t57 = t5 - t56;
        const V t58 = c[1] * t50;
        const V t59 = c[1] * t51;
        const V t60 = t55 + t59;
        io.re(3, t60);
        const V t61 = t57 - t58;
        io.im(3, t61);
        const V t62 = t55 - t59;
        io.re(6, t62);
        const V t63 = t57 + t58;
        io.im(6, t63);
        // complex block of 9
        const V t64 = c[4] * t29;
        const V t65 = c[5] * t28;
        const V t66 = t65 + t64;
        const V t67 = c[4] * t28;
        const V t68 = c[5] * t29;
        const V t69 = t68 - t67;
        const V t70 = c[2] * t45;
        const V t71 = c[3] * t44;
        const V t72 = t71 + t70;
        const V t73 = c[2] * t44;
        const V t74 = c[3] * t45;
        const V t75 = t74 - t73;
        // complex block of 3
        const V t76 = t66 + t72;
        const V t77 = t69 + t75;
        const V t78 = t66 - t72;
        const V t79 = t69 - t75;
        const V t80 = t76 + t12;
        io.re(1, t80);
        const V t81 = t77 + t13;
        io.im(1, t81);
        const V t82 = c[0] * t76;
        const V t83 = t12 - t82;
        const V t84 = c[0] * t77;
        const V t85 = t13 - t84;
        const V t86 = c[1] * t78;
        const V t87 = c[1] * t79;
        const V t88 = t83 + t87;
        io.re(4, t88);
        const V t89 = t85 - t86;
        io.im(4, t89);
        const V t90 = t83 - t87;
        io.re(7, t90);
        const V t91 = t85 + t86;
        io.im(7, t91);
        // complex block of 9
        const V t92 = c[2] * t31;
        const V t93 = c[3] * t30;
        const V t94 = t93 + t92;
        const V t95 = c[2] * t30;
        const V t96 = c[3] * t31;
        const V t97 = t96 - t95;
        const V t98 = c[6] * t47;
        const V t99 = c[7] * t46;
        const V t100 = t98 - t99;
        const V t101 = c[6] * t46;
        const V t102 = c[7] * t47;
        const V t103 = t102 + t101;
        // complex block of 3
        const V t104 = t94 + t100;
        const V t105 = t97 - t103;
        const V t106 = t94 - t100;
        const V t107 = t97 + t103;
        const V t108 = t104 + t14;
        io.re(2, t108);
        const V t109 = t105 + t15;
        io.im(2, t109);
        const V t110 = c[0] * t104;
        const V t111 = t14 - t110;
        const V t112 = c[0] * t105;
        const V t113 = t15 - t112;
        const V t114 = c[1] * t106;
        const V t115 = c[1] * t107;
        const V t116 = t111 + t115;
        io.re(5, t116);
        const V t117 = t113 - t114;
        io.im(5, t117);
        const V t118 = t111 - t115;
        io.re(8, t118);
        const V t119 = t113 + t114;
        io.im(8, t119);
    }
};

}  // namespace zulg
