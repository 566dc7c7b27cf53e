// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 18.
// Inverse DFT to 18 real points, prime-factor 2, 9.
// 41 additions, 41 subtractions, 52 multiplications (70 with `scale`); 11 constants; 25 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<18> {
    static constexpr int steps = 152;  // with `scale`
    static constexpr double inverseRoot = 0.23570226039551587;  // 1/sqrt(18), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.3420201433256687,  // c[2]: -sin 2 pi 5/9
        0.9396926207859084,  // c[3]: -cos 2 pi 5/9
        0.29619813272602386,  // c[4]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[5]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.984807753012208,  // c[6]: -sin 2 pi 7/9
        0.17364817766693036,  // c[7]: cos 2 pi 7/9
        0.1503837331804353,  // c[8]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 7/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x9r = io.re(9);
        const V t0 = x0r + x9r;
        const V t1 = x0r - x9r;
        // doubled bins
        const V x1r = io.re(1);
        const V t2 = two * x1r;
        const V x8r = io.re(8);
        const V t3 = two * x8r;
        // complex block of 2
        const V t4 = t3 + t2;
        const V t5 = t3 - t2;
        // doubled bins
        const V x2r = io.re(2);
        const V t6 = two * x2r;
        const V x4r = io.re(4);
        const V t7 = two * x4r;
        const V x5r = io.re(5);
        const V t8 = two * x5r;
        // complex block of 2
        const V t9 = t7 + t8;
        const V t10 = t7 - t8;
        // doubled bins
        const V x7r = io.re(7);
        const V t11 = two * x7r;
        // complex block of 2
        const V t12 = t6 + t11;
        // complex block of 3, multiplier 2
        const V t13 = t4 + t9;
        const V t14 = c[0] * t13;
        const V t15 = t12 - t14;
        // complex block of 2
        const V t16 = t6 - t11;
        // complex block of 3, multiplier 2
        const V t17 = t5 + t10;
        const V t18 = c[0] * t17;
        const V t19 = t16 - t18;
        // complex block of 3, multiplier 2
        const V t20 = t4 - t9;
        const V t21 = c[1] * t20;
        // complex block of 3, multiplier 2
        const V t22 = t5 - t10;
        const V t23 = c[1] * t22;
        // doubled bins
        const V x1i = io.im(1);
        const V t24 = two * x1i;
        const V x8i = io.im(8);
        const V t25 = two * x8i;
        // complex block of 2
        const V t26 = t25 - t24;
        const V t27 = t25 + t24;
        // doubled bins
        const V x2i = io.im(2);
        const V t28 = two * x2i;
        const V x4i = io.im(4);
        const V t29 = two * x4i;
        const V x5i = io.im(5);
        const V t30 = two * x5i;
        // complex block of 2
        const V t31 = t29 - t30;
        const V t32 = t29 + t30;
        // doubled bins
        const V x7i = io.im(7);
        const V t33 = two * x7i;
        // complex block of 2
        const V t34 = t28 - t33;
        // complex block of 3, multiplier 2
        const V t35 = t26 - t31;
        const V t36 = c[0] * t35;
        const V t37 = t34 - t36;
        // complex block of 2
        const V t38 = t28 + t33;
        // complex block of 3, multiplier 2
        const V t39 = t27 - t32;
        const V t40 = c[0] * t39;
        const V t41 = t38 - t40;
        // complex block of 3, multiplier 2
        const V t42 = t26 + t31;
        const V t43 = c[1] * t42;
        // complex block of 3, multiplier 2
        const V t44 = t27 + t32;
        const V t45 = c[1] * t44;
        // doubled bins
        const V x3r = io.re(3);
        const V t46 = two * x3r;
        const V x6r = io.re(6);
        const V t47 = two * x6r;
        // complex block of 2
        const V t48 = t47 + t46;
        // spectrum block of 3, multiplier 2
        const V t49 = c[0] * t48;
        // complex block of 2
        const V t50 = t47 - t46;
        // spectrum block of 3, multiplier 2
        const V t51 = c[0] * t50;
        // doubled bins
        const V x3i = io.im(3);
        const V t52 = two * x3i;
        const V x6i = io.im(6);
        const V t53 = two * x6i;
        // complex block of 2
        const V t54 = t53 - t52;
        // spectrum block of 3, multiplier 2
        const V t55 = c[1] * t54;
        // complex block of 2
        const V t56 = t53 + t52;
        // spectrum block of 3, multiplier 2
        const V t57 = c[1] * t56;
        // spectrum block of 3, multiplier 2
        const V t58 = t48 + t0;
        // complex block of 3, multiplier 2
        const V t59 = t35 + t34;
        // spectrum block of 3, multiplier 2
        const V t60 = c[1] * t59;
        // complex block of 3, multiplier 2
        const V t61 = t13 + t12;
        // spectrum block of 3, multiplier 2
        const V t62 = c[0] * t61;
        const V t63 = t61 + t58;
        io.out(0, t63);
        const V t64 = t58 - t62;
        const V t65 = t64 - t60;
        io.out(12, t65);
        const V t66 = t64 + t60;
        io.out(6, t66);
        // spectrum block of 3, multiplier 2
        const V t67 = t0 - t49;
        const V t68 = t67 - t55;
        const V t69 = t67 + t55;
        // complex block of 3, multiplier 2
        const V t70 = t37 + t21;
        // spectrum block of 9, multiplier 2
        const V t71 = c[2] * t70;
        // complex block of 3, multiplier 2
        const V t72 = t15 - t43;
        // spectrum block of 9, multiplier 2
        const V t73 = c[3] * t72;
        const V t74 = t73 + t71;
        // spectrum block of 3, multiplier 2
        const V t75 = c[4] * t72;
        const V t76 = c[5] * t70;
        // complex block of 3, multiplier 2
        const V t77 = t37 - t21;
        // spectrum block of 9, multiplier 2
        const V t78 = c[6] * t77;
        // complex block of 3, multiplier 2
        const V t79 = t15 + t43;
        // spectrum block of 9, multiplier 2
        const V t80 = c[7] * t79;
        const V t81 = t80 - t78;
        // spectrum block of 3, multiplier 2
        const V t82 = c[8] * t77;
        const V t83 = c[9] * t79;
        const V t84 = t81 + t69;
        io.out(2, t84);
        const V t85 = c[0] * t81;
        const V t86 = t69 - t85;
        const V t87 = t82 + t83;
        const V t88 = t86 - t87;
        io.out(14, t88);
        const V t89 = t86 + t87;
        io.out(8, t89);
        // spectrum block of 3, multiplier 2
        const V t90 = t68 - t74;
        io.out(4, t90);
        const V t91 = c[0] * t74;
        const V t92 = t91 + t68;
        const V t93 = t75 - t76;
        const V t94 = t92 - t93;
        io.out(16, t94);
        const V t95 = t92 + t93;
        io.out(10, t95);
        // spectrum block of 3, multiplier 2
        const V t96 = t50 + t1;
        // complex block of 3, multiplier 2
        const V t97 = t39 + t38;
        // spectrum block of 3, multiplier 2
        const V t98 = c[1] * t97;
        // complex block of 3, multiplier 2
        const V t99 = t17 + t16;
        // spectrum block of 3, multiplier 2
        const V t100 = c[0] * t99;
        const V t101 = t99 + t96;
        io.out(9, t101);
        const V t102 = t96 - t100;
        const V t103 = t102 - t98;
        io.out(3, t103);
        const V t104 = t102 + t98;
        io.out(15, t104);
        // spectrum block of 3, multiplier 2
        const V t105 = t1 - t51;
        const V t106 = t105 - t57;
        const V t107 = t105 + t57;
        // complex block of 3, multiplier 2
        const V t108 = t41 + t23;
        // spectrum block of 9, multiplier 2
        const V t109 = c[2] * t108;
        // complex block of 3, multiplier 2
        const V t110 = t19 - t45;
        // spectrum block of 9, multiplier 2
        const V t111 = c[3] * t110;
        const V t112 = t111 + t109;
        // spectrum block of 3, multiplier 2
        const V t113 = c[4] * t110;
        const V t114 = c[5] * t108;
        // complex block of 3, multiplier 2
        const V t115 = t41 - t23;
        // spectrum block of 9, multiplier 2
        const V t116 = c[6] * t115;
        // complex block of 3, multiplier 2
        const V t117 = t19 + t45;
        // spectrum block of 9, multiplier 2
        const V t118 = c[7] * t117;
        const V t119 = t118 - t116;
        // spectrum block of 3, multiplier 2
        const V t120 = c[8] * t115;
        const V t121 = c[9] * t117;
        const V t122 = t119 + t107;
        io.out(11, t122);
        const V t123 = c[0] * t119;
        const V t124 = t107 - t123;
        const V t125 = t120 + t121;
        const V t126 = t124 - t125;
        io.out(5, t126);
        const V t127 = t124 + t125;
        io.out(17, t127);
        // spectrum block of 3, multiplier 2
        const V t128 = t106 - t112;
        io.out(13, t128);
        const V t129 = c[0] * t112;
        const V t130 = t129 + t106;
        const V t131 = t113 - t114;
        const V t132 = t130 - t131;
        io.out(7, t132);
        const V t133 = t130 + t131;
        io.out(1, t133);
    }
};

}  // namespace zulg
