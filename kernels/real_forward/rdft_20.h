// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 20.
// Forward DFT of 20 real points, prime-factor 5, 4.
// 47 additions, 39 subtractions, 32 multiplications (52 with `scale`); 5 outputs negated; 4 constants; 24 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<20> {
    static constexpr int steps = 138;  // with `scale`
    static constexpr double inverseRoot = 0.22360679774997896;  // 1/sqrt(20), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 4/5
        0.8090169943749475,  // c[1]: -cos 2 pi 12/5
        0.9510565162951535,  // c[2]: -sin 2 pi 4/5
        0.5877852522924731,  // c[3]: sin 2 pi 12/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 5, multiplier 4
        const V x4 = io.in(4);
        const V x16 = io.in(16);
        const V t0 = x4 + x16;
        const V t1 = x4 - x16;
        const V x12 = io.in(12);
        const V x8 = io.in(8);
        const V t2 = x12 + x8;
        const V t3 = x12 - x8;
        const V t4 = t0 + t2;
        const V x0 = io.in(0);
        const V t5 = t4 + x0;
        const V t6 = c[0] * t0;
        const V t7 = c[1] * t2;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0;
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t10 - t11;
        const V t13 = c[1] * t0;
        const V t14 = x0 - t13;
        const V t15 = c[0] * t2;
        const V t16 = t14 + t15;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t3;
        const V t19 = t17 + t18;
        // real block of 5, multiplier 4
        const V x9 = io.in(9);
        const V x1 = io.in(1);
        const V t20 = x9 + x1;
        const V t21 = x9 - x1;
        const V x17 = io.in(17);
        const V x13 = io.in(13);
        const V t22 = x17 + x13;
        const V t23 = x17 - x13;
        const V t24 = t20 + t22;
        const V x5 = io.in(5);
        const V t25 = t24 + x5;
        const V t26 = c[0] * t20;
        const V t27 = c[1] * t22;
        const V t28 = t26 - t27;
        const V t29 = t28 + x5;
        const V t30 = c[2] * t21;
        const V t31 = c[3] * t23;
        const V t32 = t30 - t31;
        const V t33 = c[1] * t20;
        const V t34 = x5 - t33;
        const V t35 = c[0] * t22;
        const V t36 = t34 + t35;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t23;
        const V t39 = t37 + t38;
        // real block of 5, multiplier 4
        const V x14 = io.in(14);
        const V x6 = io.in(6);
        const V t40 = x14 + x6;
        const V t41 = x14 - x6;
        const V x2 = io.in(2);
        const V x18 = io.in(18);
        const V t42 = x2 + x18;
        const V t43 = x2 - x18;
        const V t44 = t40 + t42;
        const V x10 = io.in(10);
        const V t45 = t44 + x10;
        const V t46 = c[0] * t40;
        const V t47 = c[1] * t42;
        const V t48 = t46 - t47;
        const V t49 = t48 + x10;
        const V t50 = c[2] * t41;
        const V t51 = c[3] * t43;
        const V t52 = t50 - t51;
        const V t53 = c[1] * t40;
        const V t54 = x10 - t53;
        const V t55 = c[0] * t42;
        const V t56 = t54 + t55;
        const V t57 = c[3] * t41;
        const V t58 = c[2] * t43;
        const V t59 = t57 + t58;
        // real block of 5, multiplier 4
        const V x19 = io.in(19);
        const V x11 = io.in(11);
        const V t60 = x19 + x11;
        const V t61 = x19 - x11;
        const V x7 = io.in(7);
        const V x3 = io.in(3);
        const V t62 = x7 + x3;
        const V t63 = x7 - x3;
        const V t64 = t60 + t62;
        const V x15 = io.in(15);
        const V t65 = t64 + x15;
        const V t66 = c[0] * t60;
        const V t67 = c[1] * t62;
        const V t68 = t66 - t67;
        const V t69 = t68 + x15;
        const V t70 = c[2] * t61;
        const V t71 = c[3] * t63;
        const V t72 = t70 - t71;
        const V t73 = c[1] * t60;
        const V t74 = x15 - t73;
        const V t75 = c[0] * t62;
        const V t76 = t74 + t75;
        const V t77 = c[3] * t61;
        const V t78 = c[2] * t63;
        const V t79 = t77 + t78;
        // real block of 2
        const V t80 = t5 + t45;
        const V t81 = t5 - t45;
        io.re(5, t81);
        // real block of 2
        const V t82 = t25 + t65;
        const V t83 = t25 - t65;
        io.minusIm(5, t83);
        // real block of 2
        const V t84 = t80 + t82;
        io.re(0, t84);
        const V t85 = t80 - t82;
        io.re(10, t85);
        // complex block of 2
        const V t86 = t9 + t49;
        const V t87 = t12 + t52;
        const V t88 = t9 - t49;
        const V t89 = t12 - t52;
        // complex block of 2
        const V t90 = t29 + t69;
        const V t91 = t32 + t72;
        const V t92 = t29 - t69;
        const V t93 = t32 - t72;
        // complex block of 2
        const V t94 = t86 + t90;
        io.re(4, t94);
        const V t95 = t87 + t91;
        io.im(4, t95);
        const V t96 = t86 - t90;
        io.re(6, t96);
        const V t97 = t87 - t91;
        io.minusIm(6, t97);
        // complex block of 2
        const V t98 = t88 + t93;
        io.re(9, t98);
        const V t99 = t89 - t92;
        io.im(9, t99);
        const V t100 = t88 - t93;
        io.re(1, t100);
        const V t101 = t89 + t92;
        io.minusIm(1, t101);
        // complex block of 2
        const V t102 = t16 + t56;
        const V t103 = t19 + t59;
        const V t104 = t16 - t56;
        const V t105 = t19 - t59;
        // complex block of 2
        const V t106 = t36 + t76;
        const V t107 = t39 + t79;
        const V t108 = t36 - t76;
        const V t109 = t39 - t79;
        // complex block of 2
        const V t110 = t102 + t106;
        io.re(8, t110);
        const V t111 = t103 + t107;
        io.im(8, t111);
        const V t112 = t102 - t106;
        io.re(2, t112);
        const V t113 = t103 - t107;
        io.minusIm(2, t113);
        // complex block of 2
        const V t114 = t104 + t109;
        io.re(7, t114);
        const V t115 = t105 - t108;
        io.minusIm(7, t115);
        const V t116 = t104 - t109;
        io.re(3, t116);
        const V t117 = t105 + t108;
        io.im(3, t117);
    }
};

}  // namespace zulg
