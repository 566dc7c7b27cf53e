// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 24.
// Inverse DFT to 24 real points, prime-factor 8, 3.
// 52 additions, 52 subtractions, 44 multiplications (68 with `scale`); 4 constants; 29 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<24> {
    static constexpr int steps = 172;  // with `scale`
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x12r = io.re(12);
        const V t0 = x0r + x12r;
        const V t1 = x0r - x12r;
        // doubled bins
        const V x6r = io.re(6);
        const V t2 = two * x6r;
        const V x6i = io.im(6);
        const V t3 = two * x6i;
        // spectrum block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // spectrum block of 2
        const V t6 = t1 + t3;
        const V t7 = t1 - t3;
        // doubled bins
        const V x1r = io.re(1);
        const V t8 = two * x1r;
        const V x11r = io.re(11);
        const V t9 = two * x11r;
        // complex block of 2
        const V t10 = t9 - t8;
        // doubled bins
        const V x1i = io.im(1);
        const V t11 = two * x1i;
        const V x11i = io.im(11);
        const V t12 = two * x11i;
        // complex block of 2
        const V t13 = t12 + t11;
        // doubled bins
        const V x5r = io.re(5);
        const V t14 = two * x5r;
        const V x7r = io.re(7);
        const V t15 = two * x7r;
        // complex block of 2
        const V t16 = t15 - t14;
        // doubled bins
        const V x5i = io.im(5);
        const V t17 = two * x5i;
        const V x7i = io.im(7);
        const V t18 = two * x7i;
        // complex block of 2
        const V t19 = t18 + t17;
        // complex block of 2
        const V t20 = t12 - t11;
        // complex block of 2
        const V t21 = t17 - t18;
        // complex block of 2
        const V t22 = t20 + t21;
        const V t23 = t20 - t21;
        // complex block of 2
        const V t24 = t9 + t8;
        // complex block of 2
        const V t25 = t15 + t14;
        // complex block of 2
        const V t26 = t24 + t25;
        const V t27 = t24 - t25;
        // complex block of 8, multiplier 3
        const V t28 = c[2] * t13;
        const V t29 = c[2] * t10;
        const V t30 = t28 + t29;
        const V t31 = t29 - t28;
        const V t32 = c[2] * t19;
        const V t33 = c[2] * t16;
        const V t34 = t33 - t32;
        const V t35 = t33 + t32;
        // doubled bins
        const V x2r = io.re(2);
        const V t36 = two * x2r;
        const V x2i = io.im(2);
        const V t37 = two * x2i;
        const V x4r = io.re(4);
        const V t38 = two * x4r;
        const V x4i = io.im(4);
        const V t39 = two * x4i;
        const V x8r = io.re(8);
        const V t40 = two * x8r;
        const V x8i = io.im(8);
        const V t41 = two * x8i;
        const V x10r = io.re(10);
        const V t42 = two * x10r;
        const V x10i = io.im(10);
        const V t43 = two * x10i;
        // complex block of 2
        const V t44 = t41 - t39;
        // complex block of 2
        const V t45 = t37 - t43;
        // complex block of 2
        const V t46 = t44 + t45;
        const V t47 = t44 - t45;
        // complex block of 2
        const V t48 = t40 + t38;
        // complex block of 2
        const V t49 = t42 + t36;
        // complex block of 2
        const V t50 = t48 + t49;
        const V t51 = t48 - t49;
        // complex block of 2
        const V t52 = t41 + t39;
        // complex block of 2
        const V t53 = t42 - t36;
        // complex block of 2
        const V t54 = t52 - t53;
        const V t55 = t52 + t53;
        // complex block of 2
        const V t56 = t40 - t38;
        // complex block of 2
        const V t57 = t43 + t37;
        // complex block of 2
        const V t58 = t56 - t57;
        const V t59 = t56 + t57;
        // doubled bins
        const V x3r = io.re(3);
        const V t60 = two * x3r;
        const V x9r = io.re(9);
        const V t61 = two * x9r;
        // mirrored skew block of 4, multiplier 3
        const V t62 = t61 - t60;
        const V t63 = c[2] * t62;
        const V t64 = t61 + t60;
        // doubled bins
        const V x3i = io.im(3);
        const V t65 = two * x3i;
        const V x9i = io.im(9);
        const V t66 = two * x9i;
        // mirrored skew block of 4, multiplier 3
        const V t67 = t66 + t65;
        const V t68 = c[2] * t67;
        const V t69 = t66 - t65;
        const V t70 = t63 - t68;
        // spectrum block of 2
        const V t71 = t6 + t70;
        const V t72 = t6 - t70;
        // complex block of 2
        const V t73 = t31 + t34;
        // complex block of 2
        const V t74 = t54 + t73;
        const V t75 = t54 - t73;
        // complex block of 2
        const V t76 = t35 - t30;
        // complex block of 2
        const V t77 = t58 + t76;
        const V t78 = t58 - t76;
        // spectrum block of 3, multiplier 2
        const V t79 = c[0] * t77;
        // spectrum block of 3, multiplier 2
        const V t80 = c[0] * t78;
        // spectrum block of 3, multiplier 2
        const V t81 = t77 + t71;
        io.out(3, t81);
        const V t82 = t71 - t79;
        const V t83 = c[1] * t74;
        const V t84 = t82 - t83;
        io.out(19, t84);
        const V t85 = t82 + t83;
        io.out(11, t85);
        // spectrum block of 3, multiplier 2
        const V t86 = t78 + t72;
        io.out(15, t86);
        const V t87 = t72 - t80;
        const V t88 = c[1] * t75;
        const V t89 = t87 - t88;
        io.out(7, t89);
        const V t90 = t87 + t88;
        io.out(23, t90);
        // mirrored skew block of 4, multiplier 3
        const V t91 = t63 + t68;
        // spectrum block of 2
        const V t92 = t7 - t91;
        const V t93 = t7 + t91;
        // complex block of 2
        const V t94 = t31 - t34;
        // complex block of 2
        const V t95 = t59 + t94;
        const V t96 = t59 - t94;
        // spectrum block of 3, multiplier 2
        const V t97 = c[0] * t95;
        // spectrum block of 3, multiplier 2
        const V t98 = c[0] * t96;
        // complex block of 2
        const V t99 = t30 + t35;
        // complex block of 2
        const V t100 = t55 + t99;
        const V t101 = t55 - t99;
        // spectrum block of 3, multiplier 2
        const V t102 = t95 + t92;
        io.out(9, t102);
        const V t103 = t92 - t97;
        const V t104 = c[1] * t100;
        const V t105 = t103 - t104;
        io.out(1, t105);
        const V t106 = t103 + t104;
        io.out(17, t106);
        // spectrum block of 3, multiplier 2
        const V t107 = t96 + t93;
        io.out(21, t107);
        const V t108 = t93 - t98;
        const V t109 = c[1] * t101;
        const V t110 = t108 - t109;
        io.out(13, t110);
        const V t111 = t108 + t109;
        io.out(5, t111);
        // spectrum block of 2
        const V t112 = t4 + t64;
        // complex block of 2
        const V t113 = t46 + t22;
        // spectrum block of 3, multiplier 2
        const V t114 = c[1] * t113;
        // complex block of 2
        const V t115 = t50 + t26;
        // spectrum block of 3, multiplier 2
        const V t116 = c[0] * t115;
        const V t117 = t115 + t112;
        io.out(0, t117);
        const V t118 = t112 - t116;
        const V t119 = t118 - t114;
        io.out(16, t119);
        const V t120 = t118 + t114;
        io.out(8, t120);
        // spectrum block of 2
        const V t121 = t4 - t64;
        // complex block of 2
        const V t122 = t46 - t22;
        // spectrum block of 3, multiplier 2
        const V t123 = c[1] * t122;
        // complex block of 2
        const V t124 = t50 - t26;
        // spectrum block of 3, multiplier 2
        const V t125 = c[0] * t124;
        const V t126 = t124 + t121;
        io.out(12, t126);
        const V t127 = t121 - t125;
        const V t128 = t127 - t123;
        io.out(4, t128);
        const V t129 = t127 + t123;
        io.out(20, t129);
        // spectrum block of 2
        const V t130 = t5 - t69;
        // complex block of 2
        const V t131 = t47 - t27;
        // spectrum block of 3, multiplier 2
        const V t132 = c[1] * t131;
        // complex block of 2
        const V t133 = t51 + t23;
        // spectrum block of 3, multiplier 2
        const V t134 = c[0] * t133;
        const V t135 = t133 + t130;
        io.out(6, t135);
        const V t136 = t130 - t134;
        const V t137 = t136 - t132;
        io.out(22, t137);
        const V t138 = t136 + t132;
        io.out(14, t138);
        // spectrum block of 2
        const V t139 = t5 + t69;
        // complex block of 2
        const V t140 = t47 + t27;
        // spectrum block of 3, multiplier 2
        const V t141 = c[1] * t140;
        // complex block of 2
        const V t142 = t51 - t23;
        // spectrum block of 3, multiplier 2
        const V t143 = c[0] * t142;
        const V t144 = t142 + t139;
        io.out(18, t144);
        const V t145 = t139 - t143;
        const V t146 = t145 - t141;
        io.out(10, t146);
        const V t147 = t145 + t141;
        io.out(2, t147);
    }
};

}  // namespace zulg
