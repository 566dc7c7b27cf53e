// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 20.
// Inverse DFT to 20 real points, prime-factor 5, 4.
// 46 additions, 40 subtractions, 50 multiplications (70 with `scale`); 5 constants; 37 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<20> {
    static constexpr int steps = 156;  // with `scale`
    static constexpr double inverseRoot = 0.22360679774997896;  // 1/sqrt(20), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x4r = io.re(4);
        const V t0 = two * x4r;
        const V x8r = io.re(8);
        const V t1 = two * x8r;
        // spectrum block of 5, multiplier 4
        const V t2 = t0 + t1;
        const V t3 = c[0] * t0;
        const V t4 = c[1] * t1;
        const V t5 = t3 - t4;
        const V t6 = c[1] * t0;
        const V x0r = io.re(0);
        const V t7 = x0r - t6;
        const V t8 = c[0] * t1;
        // doubled bins
        const V x1r = io.re(1);
        const V t9 = two * x1r;
        const V x9r = io.re(9);
        const V t10 = two * x9r;
        // complex block of 5, multiplier 4
        const V t11 = t10 + t9;
        const V t12 = c[0] * t11;
        const V t13 = c[1] * t11;
        const V t14 = t10 - t9;
        const V t15 = c[2] * t14;
        const V t16 = c[3] * t14;
        // doubled bins
        const V x1i = io.im(1);
        const V t17 = two * x1i;
        const V x9i = io.im(9);
        const V t18 = two * x9i;
        // complex block of 5, multiplier 4
        const V t19 = t18 + t17;
        const V t20 = c[0] * t19;
        const V t21 = c[1] * t19;
        const V t22 = t18 - t17;
        const V t23 = c[2] * t22;
        const V t24 = c[3] * t22;
        // doubled bins
        const V x2r = io.re(2);
        const V t25 = two * x2r;
        const V x6r = io.re(6);
        const V t26 = two * x6r;
        // spectrum block of 5, multiplier 4
        const V t27 = t26 + t25;
        const V t28 = c[0] * t26;
        const V t29 = c[1] * t25;
        const V t30 = t28 - t29;
        const V t31 = c[1] * t26;
        const V x10r = io.re(10);
        const V t32 = x10r - t31;
        const V t33 = c[0] * t25;
        // doubled bins
        const V x2i = io.im(2);
        const V t34 = two * x2i;
        const V x6i = io.im(6);
        const V t35 = two * x6i;
        // spectrum block of 5, multiplier 4
        const V t36 = c[2] * t35;
        const V t37 = c[3] * t34;
        const V t38 = t36 + t37;
        const V t39 = c[3] * t35;
        const V t40 = c[2] * t34;
        const V t41 = t40 - t39;
        // doubled bins
        const V x3r = io.re(3);
        const V t42 = two * x3r;
        const V x7r = io.re(7);
        const V t43 = two * x7r;
        // complex block of 5, multiplier 4
        const V t44 = t42 + t43;
        const V t45 = c[1] * t44;
        const V t46 = c[0] * t44;
        const V t47 = t42 - t43;
        const V t48 = c[3] * t47;
        const V t49 = c[2] * t47;
        // doubled bins
        const V x3i = io.im(3);
        const V t50 = two * x3i;
        const V x7i = io.im(7);
        const V t51 = two * x7i;
        // complex block of 5, multiplier 4
        const V t52 = t50 + t51;
        const V t53 = c[1] * t52;
        const V t54 = c[0] * t52;
        const V t55 = t51 - t50;
        const V t56 = c[3] * t55;
        const V t57 = c[2] * t55;
        // doubled bins
        const V x4i = io.im(4);
        const V t58 = two * x4i;
        const V x8i = io.im(8);
        const V t59 = two * x8i;
        // spectrum block of 5, multiplier 4
        const V t60 = c[2] * t58;
        const V t61 = c[3] * t59;
        const V t62 = t60 + t61;
        const V t63 = c[3] * t58;
        const V t64 = c[2] * t59;
        const V t65 = t63 - t64;
        // doubled bins
        const V x5r = io.re(5);
        const V t66 = two * x5r;
        const V x5i = io.im(5);
        const V t67 = two * x5i;
        // spectrum block of 5, multiplier 4
        const V t68 = t2 + x0r;
        // spectrum block of 5, multiplier 4
        const V t69 = t27 + x10r;
        // spectrum block of 2
        const V t70 = t68 + t69;
        const V t71 = t68 - t69;
        // complex block of 5, multiplier 4
        const V t72 = t19 - t52;
        const V t73 = t72 + t67;
        const V t74 = t11 + t44;
        const V t75 = t74 + t66;
        // spectrum block of 2
        const V t76 = t70 + t75;
        io.out(0, t76);
        const V t77 = t70 - t75;
        io.out(10, t77);
        // spectrum block of 2
        const V t78 = t71 - t73;
        io.out(5, t78);
        const V t79 = t71 + t73;
        io.out(15, t79);
        // spectrum block of 5, multiplier 4
        const V t80 = t5 + x0r;
        const V t81 = t80 - t62;
        const V t82 = t80 + t62;
        // complex block of 5, multiplier 4
        const V t83 = t20 + t53;
        const V t84 = t83 + t67;
        const V t85 = t12 - t45;
        const V t86 = t85 + t66;
        const V t87 = t23 - t56;
        const V t88 = t15 - t48;
        // spectrum block of 5, multiplier 4
        const V t89 = t30 + x10r;
        const V t90 = t89 + t38;
        const V t91 = t89 - t38;
        // complex block of 5, multiplier 4
        const V t92 = t84 + t88;
        // spectrum block of 2
        const V t93 = t81 - t90;
        // spectrum block of 2
        const V t94 = t93 - t92;
        io.out(1, t94);
        const V t95 = t93 + t92;
        io.out(11, t95);
        // complex block of 5, multiplier 4
        const V t96 = t86 - t87;
        // spectrum block of 2
        const V t97 = t81 + t90;
        // spectrum block of 2
        const V t98 = t97 + t96;
        io.out(16, t98);
        const V t99 = t97 - t96;
        io.out(6, t99);
        // complex block of 5, multiplier 4
        const V t100 = t84 - t88;
        // spectrum block of 2
        const V t101 = t82 - t91;
        // spectrum block of 2
        const V t102 = t101 - t100;
        io.out(9, t102);
        const V t103 = t101 + t100;
        io.out(19, t103);
        // complex block of 5, multiplier 4
        const V t104 = t86 + t87;
        // spectrum block of 2
        const V t105 = t82 + t91;
        // spectrum block of 2
        const V t106 = t105 + t104;
        io.out(4, t106);
        const V t107 = t105 - t104;
        io.out(14, t107);
        // spectrum block of 5, multiplier 4
        const V t108 = t7 + t8;
        const V t109 = t108 - t65;
        const V t110 = t108 + t65;
        // complex block of 5, multiplier 4
        const V t111 = t67 - t21;
        const V t112 = t111 - t54;
        const V t113 = t66 - t13;
        const V t114 = t113 + t46;
        const V t115 = t24 + t57;
        const V t116 = t16 + t49;
        // spectrum block of 5, multiplier 4
        const V t117 = t32 + t33;
        const V t118 = t117 - t41;
        const V t119 = t117 + t41;
        // complex block of 5, multiplier 4
        const V t120 = t112 + t116;
        // spectrum block of 2
        const V t121 = t109 - t118;
        // spectrum block of 2
        const V t122 = t121 - t120;
        io.out(17, t122);
        const V t123 = t121 + t120;
        io.out(7, t123);
        // complex block of 5, multiplier 4
        const V t124 = t114 - t115;
        // spectrum block of 2
        const V t125 = t109 + t118;
        // spectrum block of 2
        const V t126 = t125 + t124;
        io.out(12, t126);
        const V t127 = t125 - t124;
        io.out(2, t127);
        // complex block of 5, multiplier 4
        const V t128 = t112 - t116;
        // spectrum block of 2
        const V t129 = t110 - t119;
        // spectrum block of 2
        const V t130 = t129 - t128;
        io.out(13, t130);
        const V t131 = t129 + t128;
        io.out(3, t131);
        // complex block of 5, multiplier 4
        const V t132 = t114 + t115;
        // spectrum block of 2
        const V t133 = t110 + t119;
        // spectrum block of 2
        const V t134 = t133 + t132;
        io.out(8, t134);
        const V t135 = t133 - t132;
        io.out(18, t135);
    }
};

}  // namespace zulg
