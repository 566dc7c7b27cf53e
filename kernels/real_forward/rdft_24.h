// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 24.
// Forward DFT of 24 real points, prime-factor 3, 8.
// 52 additions, 52 subtractions, 22 multiplications (46 with `scale`); 5 outputs negated; 3 constants; 33 values alive at most.
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
        const V x17 = io.in(17);
        const V x1 = io.in(1);
        const V t6 = x17 + x1;
        const V t7 = x17 - x1;
        const V t8 = c[0] * t6;
        // real block of 3, multiplier 2
        const V x5 = io.in(5);
        const V x13 = io.in(13);
        const V t9 = x5 + x13;
        const V t10 = x5 - x13;
        const V t11 = c[0] * t9;
        // real block of 3, multiplier 2
        const V x9 = io.in(9);
        const V t12 = t6 + x9;
        // real block of 3, multiplier 2
        const V x21 = io.in(21);
        const V t13 = t9 + x21;
        // real block of 2
        const V t14 = t12 - t13;
        // real block of 3, multiplier 2
        const V t15 = x9 - t8;
        // real block of 3, multiplier 2
        const V t16 = x21 - t11;
        // complex block of 2
        const V t17 = t15 - t16;
        // real block of 3, multiplier 2
        const V t18 = c[1] * t7;
        // real block of 3, multiplier 2
        const V t19 = c[1] * t10;
        // complex block of 2
        const V t20 = t18 - t19;
        // real block of 3, multiplier 2
        const V x2 = io.in(2);
        const V x10 = io.in(10);
        const V t21 = x2 + x10;
        const V t22 = x2 - x10;
        const V x18 = io.in(18);
        const V t23 = t21 + x18;
        const V t24 = c[0] * t21;
        const V t25 = x18 - t24;
        const V t26 = c[1] * t22;
        // real block of 3, multiplier 2
        const V x23 = io.in(23);
        const V x7 = io.in(7);
        const V t27 = x23 + x7;
        const V t28 = x23 - x7;
        const V t29 = c[0] * t27;
        // real block of 3, multiplier 2
        const V x11 = io.in(11);
        const V x19 = io.in(19);
        const V t30 = x11 + x19;
        const V t31 = x11 - x19;
        const V t32 = c[0] * t30;
        const V x3 = io.in(3);
        const V t33 = t30 + x3;
        // real block of 3, multiplier 2
        const V x15 = io.in(15);
        const V t34 = t27 + x15;
        // real block of 2
        const V t35 = t33 - t34;
        // real block of 3, multiplier 2
        const V t36 = x3 - t32;
        // real block of 3, multiplier 2
        const V t37 = x15 - t29;
        // complex block of 2
        const V t38 = t36 - t37;
        // real block of 3, multiplier 2
        const V t39 = c[1] * t31;
        // real block of 3, multiplier 2
        const V t40 = c[1] * t28;
        // complex block of 2
        const V t41 = t39 - t40;
        // real block of 3, multiplier 2
        const V x20 = io.in(20);
        const V x4 = io.in(4);
        const V t42 = x20 + x4;
        const V t43 = x20 - x4;
        const V x12 = io.in(12);
        const V t44 = t42 + x12;
        const V t45 = c[0] * t42;
        const V t46 = x12 - t45;
        const V t47 = c[1] * t43;
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x22 = io.in(22);
        const V t48 = x14 + x22;
        const V t49 = x14 - x22;
        const V x6 = io.in(6);
        const V t50 = t48 + x6;
        const V t51 = c[0] * t48;
        const V t52 = x6 - t51;
        const V t53 = c[1] * t49;
        // real block of 2
        const V t54 = t2 + t44;
        // real block of 2
        const V t55 = t50 + t23;
        // real block of 2
        const V t56 = t54 + t55;
        // real block of 2
        const V t57 = t33 + t34;
        // real block of 2
        const V t58 = t12 + t13;
        // real block of 2
        const V t59 = t57 + t58;
        // real block of 2
        const V t60 = t54 - t55;
        io.re(6, t60);
        // real block of 2
        const V t61 = t57 - t58;
        io.im(6, t61);
        // real block of 2
        const V t62 = t56 + t59;
        io.re(0, t62);
        const V t63 = t56 - t59;
        io.re(12, t63);
        // real block of 2
        const V t64 = t2 - t44;
        // skew block of 4, multiplier 3
        const V t65 = t35 - t14;
        const V t66 = c[2] * t65;
        const V t67 = t64 + t66;
        io.re(9, t67);
        const V t68 = t64 - t66;
        io.re(3, t68);
        // real block of 2
        const V t69 = t50 - t23;
        // skew block of 4, multiplier 3
        const V t70 = t35 + t14;
        const V t71 = c[2] * t70;
        const V t72 = t69 - t71;
        io.im(3, t72);
        const V t73 = t69 + t71;
        io.minusIm(9, t73);
        // complex block of 2
        const V t74 = t4 + t46;
        // complex block of 2
        const V t75 = t52 + t25;
        // complex block of 2
        const V t76 = t74 + t75;
        const V t77 = t74 - t75;
        // complex block of 2
        const V t78 = t5 + t47;
        // complex block of 2
        const V t79 = t53 + t26;
        // complex block of 2
        const V t80 = t78 + t79;
        const V t81 = t78 - t79;
        // complex block of 2
        const V t82 = t36 + t37;
        // complex block of 2
        const V t83 = t15 + t16;
        // complex block of 2
        const V t84 = t82 + t83;
        const V t85 = t82 - t83;
        // complex block of 2
        const V t86 = t39 + t40;
        // complex block of 2
        const V t87 = t18 + t19;
        // complex block of 2
        const V t88 = t86 + t87;
        const V t89 = t86 - t87;
        // complex block of 2
        const V t90 = t76 + t84;
        io.re(8, t90);
        const V t91 = t80 + t88;
        io.im(8, t91);
        const V t92 = t76 - t84;
        io.re(4, t92);
        const V t93 = t80 - t88;
        io.minusIm(4, t93);
        // complex block of 2
        const V t94 = t77 - t89;
        io.re(10, t94);
        const V t95 = t81 + t85;
        io.minusIm(10, t95);
        const V t96 = t77 + t89;
        io.re(2, t96);
        const V t97 = t81 - t85;
        io.im(2, t97);
        // complex block of 2
        const V t98 = t4 - t46;
        // complex block of 2
        const V t99 = t53 - t26;
        // complex block of 2
        const V t100 = t98 - t99;
        const V t101 = t98 + t99;
        // complex block of 2
        const V t102 = t5 - t47;
        // complex block of 2
        const V t103 = t52 - t25;
        // complex block of 2
        const V t104 = t102 + t103;
        const V t105 = t102 - t103;
        // complex block of 8, multiplier 3
        const V t106 = c[2] * t38;
        const V t107 = c[2] * t41;
        const V t108 = t106 + t107;
        const V t109 = t107 - t106;
        const V t110 = c[2] * t17;
        const V t111 = c[2] * t20;
        const V t112 = t110 + t111;
        const V t113 = t111 - t110;
        // complex block of 2
        const V t114 = t109 + t112;
        // complex block of 2
        const V t115 = t100 + t114;
        io.re(11, t115);
        const V t116 = t100 - t114;
        io.re(1, t116);
        // complex block of 2
        const V t117 = t113 - t108;
        // complex block of 2
        const V t118 = t104 + t117;
        io.im(11, t118);
        const V t119 = t104 - t117;
        io.minusIm(1, t119);
        // complex block of 2
        const V t120 = t109 - t112;
        // complex block of 2
        const V t121 = t105 + t120;
        io.minusIm(7, t121);
        const V t122 = t105 - t120;
        io.im(5, t122);
        // complex block of 2
        const V t123 = t108 + t113;
        // complex block of 2
        const V t124 = t101 + t123;
        io.re(7, t124);
        const V t125 = t101 - t123;
        io.re(5, t125);
    }
};

}  // namespace zulg
