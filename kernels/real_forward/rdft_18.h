// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 18.
// Forward DFT of 18 real points, prime-factor 2, 9.
// 41 additions, 41 subtractions, 40 multiplications (58 with `scale`); 4 outputs negated; 6 constants; 19 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<18> {
    static constexpr int steps = 140;  // with `scale`
    static constexpr double inverseRoot = 0.23570226039551587;  // 1/sqrt(18), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x9 = io.in(9);
        const V t0 = x0 + x9;
        const V t1 = x0 - x9;
        // real block of 2
        const V x2 = io.in(2);
        const V x11 = io.in(11);
        const V t2 = x2 + x11;
        const V t3 = x2 - x11;
        // real block of 2
        const V x4 = io.in(4);
        const V x13 = io.in(13);
        const V t4 = x4 + x13;
        const V t5 = x4 - x13;
        // real block of 2
        const V x6 = io.in(6);
        const V x15 = io.in(15);
        const V t6 = x6 + x15;
        const V t7 = x6 - x15;
        // real block of 2
        const V x8 = io.in(8);
        const V x17 = io.in(17);
        const V t8 = x8 + x17;
        const V t9 = x8 - x17;
        // real block of 2
        const V x10 = io.in(10);
        const V x1 = io.in(1);
        const V t10 = x10 + x1;
        const V t11 = x10 - x1;
        // real block of 2
        const V x12 = io.in(12);
        const V x3 = io.in(3);
        const V t12 = x12 + x3;
        const V t13 = x12 - x3;
        // real block of 2
        const V x14 = io.in(14);
        const V x5 = io.in(5);
        const V t14 = x14 + x5;
        const V t15 = x14 - x5;
        // real block of 2
        const V x16 = io.in(16);
        const V x7 = io.in(7);
        const V t16 = x16 + x7;
        const V t17 = x16 - x7;
        // real block of 3, multiplier 2
        const V t18 = t6 + t12;
        const V t19 = t6 - t12;
        const V t20 = t18 + t0;
        const V t21 = c[0] * t18;
        const V t22 = t0 - t21;
        const V t23 = c[1] * t19;
        // real block of 3, multiplier 2
        const V t24 = t8 + t14;
        const V t25 = t8 - t14;
        const V t26 = t24 + t2;
        const V t27 = c[0] * t24;
        const V t28 = t2 - t27;
        const V t29 = c[1] * t25;
        // real block of 3, multiplier 2
        const V t30 = t10 + t16;
        const V t31 = t10 - t16;
        const V t32 = t30 + t4;
        const V t33 = c[0] * t30;
        const V t34 = t4 - t33;
        const V t35 = c[1] * t31;
        // real block of 3, multiplier 2
        const V t36 = t26 + t32;
        const V t37 = t26 - t32;
        const V t38 = t36 + t20;
        io.re(0, t38);
        const V t39 = c[0] * t36;
        const V t40 = t20 - t39;
        io.re(6, t40);
        const V t41 = c[1] * t37;
        io.im(6, t41);
        // real block of 9, multiplier 2
        const V t42 = c[2] * t29;
        const V t43 = c[3] * t28;
        const V t44 = t43 + t42;
        const V t45 = c[2] * t28;
        const V t46 = c[3] * t29;
        const V t47 = t46 - t45;
        const V t48 = c[4] * t35;
        const V t49 = c[5] * t34;
        const V t50 = t48 - t49;
        const V t51 = c[4] * t34;
        const V t52 = c[5] * t35;
        const V t53 = t52 + t51;
        // complex block of 3, multiplier 2
        const V t54 = t44 + t50;
        const V t55 = t47 - t53;
        const V t56 = t44 - t50;
        const V t57 = t47 + t53;
        const V t58 = t54 + t22;
        io.re(2, t58);
        const V t59 = t55 + t23;
        io.im(2, t59);
        const V t60 = c[0] * t54;
        const V t61 = t22 - t60;
        const V t62 = c[0] * t55;
        const V t63 = t23 - t62;
        const V t64 = c[1] * t56;
        const V t65 = c[1] * t57;
        const V t66 = t61 + t65;
        io.re(4, t66);
        const V t67 = t63 - t64;
        io.minusIm(4, t67);
        const V t68 = t61 - t65;
        io.re(8, t68);
        const V t69 = t63 + t64;
        io.im(8, t69);
        // real block of 3, multiplier 2
        const V t70 = t7 + t13;
        const V t71 = t7 - t13;
        const V t72 = t70 + t1;
        const V t73 = c[0] * t70;
        const V t74 = t1 - t73;
        const V t75 = c[1] * t71;
        // real block of 3, multiplier 2
        const V t76 = t9 + t15;
        const V t77 = t9 - t15;
        const V t78 = t76 + t3;
        const V t79 = c[0] * t76;
        const V t80 = t3 - t79;
        const V t81 = c[1] * t77;
        // real block of 3, multiplier 2
        const V t82 = t11 + t17;
        const V t83 = t11 - t17;
        const V t84 = t82 + t5;
        const V t85 = c[0] * t82;
        const V t86 = t5 - t85;
        const V t87 = c[1] * t83;
        // real block of 3, multiplier 2
        const V t88 = t78 + t84;
        const V t89 = t78 - t84;
        const V t90 = t88 + t72;
        io.re(9, t90);
        const V t91 = c[0] * t88;
        const V t92 = t72 - t91;
        io.re(3, t92);
        const V t93 = c[1] * t89;
        io.minusIm(3, t93);
        // real block of 9, multiplier 2
        const V t94 = c[2] * t81;
        const V t95 = c[3] * t80;
        const V t96 = t95 + t94;
        const V t97 = c[2] * t80;
        const V t98 = c[3] * t81;
        const V t99 = t98 - t97;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t86;
        const V t102 = t100 - t101;
        const V t103 = c[4] * t86;
        const V t104 = c[5] * t87;
        const V t105 = t104 + t103;
        // complex block of 3, multiplier 2
        const V t106 = t96 + t102;
        const V t107 = t99 - t105;
        const V t108 = t96 - t102;
        const V t109 = t99 + t105;
        const V t110 = t106 + t74;
        io.re(7, t110);
        const V t111 = t107 + t75;
        io.minusIm(7, t111);
        const V t112 = c[0] * t106;
        const V t113 = t74 - t112;
        const V t114 = c[0] * t107;
        const V t115 = t75 - t114;
        const V t116 = c[1] * t108;
        const V t117 = c[1] * t109;
        const V t118 = t113 + t117;
        io.re(5, t118);
        const V t119 = t115 - t116;
        io.im(5, t119);
        const V t120 = t113 - t117;
        io.re(1, t120);
        const V t121 = t115 + t116;
        io.minusIm(1, t121);
    }
};

}  // namespace zulg
