// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 24.
// Forward DFT of 24 real points, prime-factor 3, 8.
// 52 additions, 52 subtractions, 22 multiplications (46 with `scale`); 5 outputs negated; 3 constants; 25 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<24> {
    static constexpr int steps = 150;  // with `scale`
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3, multiplier 2
        const V x8 = io.in(8);
        const V x16 = io.in(16);
        const V t0 = x8 + x16;
        const V t1 = x8 - x16;
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        const V t3 = c[0] * t0;
        const V t4 = x0 - t3;
        const V t5 = c[1] * t1;
        // real block of 3, multiplier 2
        const V x11 = io.in(11);
        const V x19 = io.in(19);
        const V t6 = x11 + x19;
        const V t7 = x11 - x19;
        const V x3 = io.in(3);
        const V t8 = t6 + x3;
        const V t9 = c[0] * t6;
        const V t10 = x3 - t9;
        const V t11 = c[1] * t7;
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x22 = io.in(22);
        const V t12 = x14 + x22;
        const V t13 = x14 - x22;
        const V x6 = io.in(6);
        const V t14 = t12 + x6;
        const V t15 = c[0] * t12;
        const V t16 = x6 - t15;
        const V t17 = c[1] * t13;
        // real block of 3, multiplier 2
        const V x17 = io.in(17);
        const V x1 = io.in(1);
        const V t18 = x17 + x1;
        const V t19 = x17 - x1;
        const V x9 = io.in(9);
        const V t20 = t18 + x9;
        const V t21 = c[0] * t18;
        const V t22 = x9 - t21;
        const V t23 = c[1] * t19;
        // real block of 3, multiplier 2
        const V x20 = io.in(20);
        const V x4 = io.in(4);
        const V t24 = x20 + x4;
        const V t25 = x20 - x4;
        const V x12 = io.in(12);
        const V t26 = t24 + x12;
        const V t27 = c[0] * t24;
        const V t28 = x12 - t27;
        const V t29 = c[1] * t25;
        // real block of 3, multiplier 2
        const V x23 = io.in(23);
        const V x7 = io.in(7);
        const V t30 = x23 + x7;
        const V t31 = x23 - x7;
        const V x15 = io.in(15);
        const V t32 = t30 + x15;
        const V t33 = c[0] * t30;
        const V t34 = x15 - t33;
        const V t35 = c[1] * t31;
        // real block of 3, multiplier 2
        const V x2 = io.in(2);
        const V x10 = io.in(10);
        const V t36 = x2 + x10;
        const V t37 = x2 - x10;
        const V x18 = io.in(18);
        const V t38 = t36 + x18;
        const V t39 = c[0] * t36;
        const V t40 = x18 - t39;
        const V t41 = c[1] * t37;
        // real block of 3, multiplier 2
        const V x5 = io.in(5);
        const V x13 = io.in(13);
        const V t42 = x5 + x13;
        const V t43 = x5 - x13;
        const V x21 = io.in(21);
        const V t44 = t42 + x21;
        const V t45 = c[0] * t42;
        const V t46 = x21 - t45;
        const V t47 = c[1] * t43;
        // real block of 2
        const V t48 = t2 + t26;
        const V t49 = t2 - t26;
        // real block of 2
        const V t50 = t8 + t32;
        const V t51 = t8 - t32;
        // real block of 2
        const V t52 = t14 + t38;
        const V t53 = t14 - t38;
        // real block of 2
        const V t54 = t20 + t44;
        const V t55 = t20 - t44;
        // real block of 2
        const V t56 = t48 + t52;
        const V t57 = t48 - t52;
        io.re(6, t57);
        // real block of 2
        const V t58 = t50 + t54;
        const V t59 = t50 - t54;
        io.im(6, t59);
        // real block of 2
        const V t60 = t56 + t58;
        io.re(0, t60);
        const V t61 = t56 - t58;
        io.re(12, t61);
        // skew block of 4, multiplier 3
        const V t62 = t51 - t55;
        const V t63 = c[2] * t62;
        const V t64 = t51 + t55;
        const V t65 = c[2] * t64;
        const V t66 = t53 - t65;
        io.im(3, t66);
        const V t67 = t49 + t63;
        io.re(9, t67);
        const V t68 = t53 + t65;
        io.minusIm(9, t68);
        const V t69 = t49 - t63;
        io.re(3, t69);
        // complex block of 2
        const V t70 = t4 + t28;
        const V t71 = t5 + t29;
        const V t72 = t4 - t28;
        const V t73 = t5 - t29;
        // complex block of 2
        const V t74 = t10 + t34;
        const V t75 = t11 + t35;
        const V t76 = t10 - t34;
        const V t77 = t11 - t35;
        // complex block of 2
        const V t78 = t16 + t40;
        const V t79 = t17 + t41;
        const V t80 = t16 - t40;
        const V t81 = t17 - t41;
        // complex block of 2
        const V t82 = t22 + t46;
        const V t83 = t23 + t47;
        const V t84 = t22 - t46;
        const V t85 = t23 - t47;
        // complex block of 2
        const V t86 = t70 + t78;
        const V t87 = t71 + t79;
        const V t88 = t70 - t78;
        const V t89 = t71 - t79;
        // complex block of 2
        const V t90 = t74 + t82;
        const V t91 = t75 + t83;
        const V t92 = t74 - t82;
        const V t93 = t75 - t83;
        // complex block of 2
        const V t94 = t86 + t90;
        io.re(8, t94);
        const V t95 = t87 + t91;
        io.im(8, t95);
        const V t96 = t86 - t90;
        io.re(4, t96);
        const V t97 = t87 - t91;
        io.minusIm(4, t97);
        // complex block of 2
        const V t98 = t88 - t93;
        io.re(10, t98);
        const V t99 = t89 + t92;
        io.minusIm(10, t99);
        const V t100 = t88 + t93;
        io.re(2, t100);
        const V t101 = t89 - t92;
        io.im(2, t101);
        // complex block of 8, multiplier 3
        const V t102 = c[2] * t76;
        const V t103 = c[2] * t77;
        const V t104 = t102 + t103;
        const V t105 = t103 - t102;
        const V t106 = c[2] * t84;
        const V t107 = c[2] * t85;
        const V t108 = t106 + t107;
        const V t109 = t107 - t106;
        // complex block of 2
        const V t110 = t72 - t81;
        const V t111 = t73 + t80;
        const V t112 = t72 + t81;
        const V t113 = t73 - t80;
        // complex block of 2
        const V t114 = t105 + t108;
        const V t115 = t109 - t104;
        const V t116 = t105 - t108;
        const V t117 = t104 + t109;
        // complex block of 2
        const V t118 = t110 + t114;
        io.re(11, t118);
        const V t119 = t111 + t115;
        io.im(11, t119);
        const V t120 = t110 - t114;
        io.re(1, t120);
        const V t121 = t111 - t115;
        io.minusIm(1, t121);
        // complex block of 2
        const V t122 = t112 + t117;
        io.re(7, t122);
        const V t123 = t113 + t116;
        io.minusIm(7, t123);
        const V t124 = t112 - t117;
        io.re(5, t124);
        const V t125 = t113 - t116;
        io.im(5, t125);
    }
};

}  // namespace zulg
