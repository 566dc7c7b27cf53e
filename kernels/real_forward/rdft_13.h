// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 13.
// Forward DFT of 13 real points, Rader 3, 4.
// 39 additions, 39 subtractions, 41 multiplications (54 with `scale`); 2 outputs negated; 16 constants; 14 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<13> {
    static constexpr int steps = 132;  // with `scale`
    static constexpr double inverseRoot = 0.2773500981126146;  // 1/sqrt(13), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.31378278210316923,  // c[2]: -Q[1] of 13
        0.5124953431658732,  // c[3]: P[1] of 13
        0.3071113711590828,  // c[4]: Q[2] of 13
        0.5165207806234897,  // c[5]: P[2] of 13
        0.1741386011521359,  // c[6]: -Q[3] of 13
        0.5751407294740031,  // c[7]: P[3] of 13
        0.5814344829416822,  // c[8]: Q[4] of 13
        0.15180597207438773,  // c[9]: P[4] of 13
        0.02319821121153658,  // c[10]: Q[5] of 13
        0.6004772719326653,  // c[11]: -P[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.4330127018922193,  // c[14]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.75,  // c[15]: sin 2 pi 1/3 times sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3
        const V x3 = io.in(3);
        const V x9 = io.in(9);
        const V t0 = x3 + x9;
        const V t1 = x3 - x9;
        const V x1 = io.in(1);
        const V t2 = t0 + x1;
        const V t3 = c[0] * t0;
        const V t4 = x1 - t3;
        const V t5 = c[1] * t1;
        // real block of 3
        const V x11 = io.in(11);
        const V x7 = io.in(7);
        const V t6 = x11 + x7;
        const V t7 = x11 - x7;
        const V x8 = io.in(8);
        const V t8 = t6 + x8;
        const V t9 = c[0] * t6;
        const V t10 = x8 - t9;
        const V t11 = c[1] * t7;
        // real block of 3
        const V x10 = io.in(10);
        const V x4 = io.in(4);
        const V t12 = x10 + x4;
        const V t13 = x10 - x4;
        const V x12 = io.in(12);
        const V t14 = t12 + x12;
        const V t15 = c[0] * t12;
        const V t16 = x12 - t15;
        const V t17 = c[1] * t13;
        // real block of 3
        const V x2 = io.in(2);
        const V x6 = io.in(6);
        const V t18 = x2 + x6;
        const V t19 = x2 - x6;
        const V x5 = io.in(5);
        const V t20 = t18 + x5;
        const V t21 = c[0] * t18;
        const V t22 = x5 - t21;
        const V t23 = c[1] * t19;
        // real block of 2
        const V t24 = t2 + t14;
        const V t25 = t2 - t14;
        // real block of 2
        const V t26 = t8 + t20;
        const V t27 = t20 - t8;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // complex block of 2
        const V t30 = t4 + t16;
        const V t31 = t5 + t17;
        const V t32 = t4 - t16;
        const V t33 = t17 - t5;
        // complex block of 2
        const V t34 = t10 + t22;
        const V t35 = t11 + t23;
        const V t36 = t10 - t22;
        const V t37 = t23 - t11;
        // complex block of 2
        const V t38 = t30 + t34;
        const V t39 = t31 + t35;
        const V t40 = t30 - t34;
        const V t41 = t35 - t31;
        // complex block of 2
        const V t42 = t32 - t37;
        const V t43 = t33 + t36;
        const V t44 = t32 + t37;
        const V t45 = t33 - t36;
        // real block of 13
        const V x0 = io.in(0);
        const V t46 = x0 + t28;
        io.re(0, t46);
        const V t47 = c[12] * t28;
        const V t48 = x0 - t47;
        const V t49 = c[2] * t45;
        const V t50 = c[3] * t44;
        const V t51 = t50 + t49;
        const V t52 = c[2] * t44;
        const V t53 = c[3] * t45;
        const V t54 = t53 - t52;
        const V t55 = c[4] * t41;
        const V t56 = c[5] * t40;
        const V t57 = t56 + t55;
        const V t58 = c[4] * t40;
        const V t59 = c[5] * t41;
        const V t60 = t58 - t59;
        const V t61 = c[6] * t27;
        const V t62 = c[7] * t25;
        const V t63 = t62 - t61;
        const V t64 = c[6] * t25;
        const V t65 = c[7] * t27;
        const V t66 = t65 + t64;
        const V t67 = c[8] * t39;
        const V t68 = c[9] * t38;
        const V t69 = t68 + t67;
        const V t70 = c[8] * t38;
        const V t71 = c[9] * t39;
        const V t72 = t70 - t71;
        const V t73 = c[10] * t43;
        const V t74 = c[11] * t42;
        const V t75 = t73 - t74;
        const V t76 = c[10] * t42;
        const V t77 = c[11] * t43;
        const V t78 = t77 + t76;
        const V t79 = c[13] * t29;
        // spectrum block of 2
        const V t80 = t48 + t79;
        const V t81 = t48 - t79;
        // complex block of 2
        const V t82 = t72 - t60;
        const V t83 = t69 + t57;
        const V t84 = t72 + t60;
        const V t85 = t69 - t57;
        // spectrum block of 3, multiplier 2
        const V t86 = t83 + t80;
        io.re(1, t86);
        const V t87 = c[0] * t83;
        const V t88 = t80 - t87;
        const V t89 = c[1] * t82;
        const V t90 = t88 - t89;
        io.re(4, t90);
        const V t91 = t88 + t89;
        io.re(3, t91);
        // spectrum block of 3, multiplier 2
        const V t92 = t85 + t81;
        io.re(5, t92);
        const V t93 = c[0] * t85;
        const V t94 = t81 - t93;
        const V t95 = c[1] * t84;
        const V t96 = t94 - t95;
        io.re(6, t96);
        const V t97 = t94 + t95;
        io.re(2, t97);
        // complex block of 2
        const V t98 = t75 - t51;
        const V t99 = t54 + t78;
        const V t100 = t51 + t75;
        const V t101 = t54 - t78;
        // mirrored skew block of 6
        const V t102 = c[0] * t100;
        const V t103 = c[1] * t101;
        const V t104 = t103 + t102;
        // spectrum block of 3, multiplier 2
        const V t105 = t99 - t66;
        io.im(1, t105);
        const V t106 = c[0] * t99;
        const V t107 = t66 + t106;
        const V t108 = c[1] * t98;
        const V t109 = t108 - t107;
        io.im(3, t109);
        const V t110 = t107 + t108;
        io.im(4, t110);
        // spectrum block of 3, multiplier 2
        const V t111 = t104 + t63;
        io.minusIm(6, t111);
        const V t112 = c[0] * t104;
        const V t113 = t112 - t63;
        const V t114 = c[14] * t101;
        const V t115 = c[15] * t100;
        const V t116 = t114 - t115;
        const V t117 = t116 - t113;
        io.minusIm(5, t117);
        const V t118 = t113 + t116;
        io.im(2, t118);
    }
};

}  // namespace zulg
