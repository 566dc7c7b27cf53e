// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 13.
// Hartley transform of 13 points, form I.
// 46 additions, 46 subtractions, 44 multiplications (57 with `scale`); 18 constants; 18 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<13> {
    static constexpr int steps = 149;  // with `scale`
    static constexpr double inverseRoot = 0.2773500981126146;  // 1/sqrt(13), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.5124953431658732,  // c[2]: -P[1] of 13
        0.31378278210316923,  // c[3]: -Q[1] of 13
        0.5751407294740031,  // c[4]: -P[3] of 13
        0.1741386011521359,  // c[5]: -Q[3] of 13
        0.6004772719326653,  // c[6]: P[5] of 13
        0.02319821121153658,  // c[7]: Q[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.3071113711590828,  // c[9]: Q[2] of 13
        0.5165207806234897,  // c[10]: P[2] of 13
        0.5814344829416822,  // c[11]: Q[4] of 13
        0.15180597207438773,  // c[12]: P[4] of 13
        0.3004626062886658,  // c[13]: beta of 13
        0.13146782826261086,  // c[14]: -sin 2 pi 2/3 times P[4] of 13
        0.5035370328637666,  // c[15]: -sin 2 pi 2/3 times Q[4] of 13
        0.2659662492148373,  // c[16]: -sin 2 pi 2/3 times Q[2] of 13
        0.4473201176025111,  // c[17]: -sin 2 pi 2/3 times P[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x12 = io.in(12);
        const V t0 = x1 + x12;
        const V t1 = x1 - x12;
        const V x2 = io.in(2);
        const V x11 = io.in(11);
        const V t2 = x2 + x11;
        const V t3 = x2 - x11;
        const V x3 = io.in(3);
        const V x10 = io.in(10);
        const V t4 = x3 + x10;
        const V t5 = x3 - x10;
        const V x4 = io.in(4);
        const V x9 = io.in(9);
        const V t6 = x4 + x9;
        const V t7 = x4 - x9;
        const V x5 = io.in(5);
        const V x8 = io.in(8);
        const V t8 = x5 + x8;
        const V t9 = x5 - x8;
        const V x6 = io.in(6);
        const V x7 = io.in(7);
        const V t10 = x6 + x7;
        const V t11 = x6 - x7;
        // real block of 3, multiplier 2
        const V t12 = t6 + t4;
        const V t13 = t6 - t4;
        const V t14 = t12 + t0;
        const V t15 = c[0] * t12;
        const V t16 = t0 - t15;
        const V t17 = c[1] * t13;
        // real block of 3, multiplier 2
        const V t18 = t10 + t2;
        const V t19 = t10 - t2;
        const V t20 = t18 + t8;
        const V t21 = c[0] * t18;
        const V t22 = t8 - t21;
        const V t23 = c[1] * t19;
        // real block of 2
        const V t24 = t14 + t20;
        const V t25 = t14 - t20;
        // complex block of 2
        const V t26 = t16 + t22;
        const V t27 = t17 + t23;
        const V t28 = t16 - t22;
        const V t29 = t17 - t23;
        // skew block of 6
        const V t30 = c[0] * t5;
        const V t31 = c[1] * t3;
        const V t32 = t31 - t30;
        const V t33 = c[0] * t3;
        const V t34 = c[1] * t5;
        const V t35 = t34 + t33;
        const V t36 = c[1] * t11;
        const V t37 = c[0] * t7;
        const V t38 = t37 - t36;
        const V t39 = c[1] * t7;
        const V t40 = c[0] * t11;
        const V t41 = t40 + t39;
        // complex block of 3
        const V t42 = t32 + t38;
        const V t43 = t35 + t41;
        const V t44 = t32 - t38;
        const V t45 = t41 - t35;
        const V t46 = t42 + t1;
        const V t47 = t9 - t43;
        const V t48 = c[0] * t42;
        const V t49 = t1 - t48;
        const V t50 = c[0] * t43;
        const V t51 = t50 + t9;
        const V t52 = c[1] * t44;
        const V t53 = c[1] * t45;
        const V t54 = t49 + t53;
        const V t55 = t51 - t52;
        const V t56 = t49 - t53;
        const V t57 = t51 + t52;
        // spectrum block of 13
        const V t58 = c[8] * t24;
        const V x0 = io.in(0);
        const V t59 = x0 - t58;
        const V t60 = c[2] * t47;
        const V t61 = c[3] * t46;
        const V t62 = t60 - t61;
        const V t63 = c[2] * t46;
        const V t64 = c[3] * t47;
        const V t65 = t64 + t63;
        const V t66 = c[9] * t29;
        const V t67 = c[10] * t28;
        const V t68 = t67 + t66;
        const V t69 = c[4] * t57;
        const V t70 = c[5] * t56;
        const V t71 = t70 + t69;
        const V t72 = c[4] * t56;
        const V t73 = c[5] * t57;
        const V t74 = t73 - t72;
        const V t75 = c[11] * t27;
        const V t76 = c[12] * t26;
        const V t77 = t76 - t75;
        const V t78 = c[6] * t55;
        const V t79 = c[7] * t54;
        const V t80 = t79 - t78;
        const V t81 = c[6] * t54;
        const V t82 = c[7] * t55;
        const V t83 = t82 + t81;
        const V t84 = c[13] * t25;
        // spectrum block of 3
        const V t85 = t77 + t59;
        const V t86 = c[0] * t77;
        const V t87 = t59 - t86;
        const V t88 = c[14] * t27;
        const V t89 = c[15] * t26;
        const V t90 = t88 + t89;
        const V t91 = t87 - t90;
        const V t92 = t87 + t90;
        // complex block of 3
        const V t93 = t65 - t83;
        const V t94 = t80 + t62;
        const V t95 = t83 + t65;
        const V t96 = t80 - t62;
        const V t97 = t93 + t74;
        const V t98 = t94 - t71;
        const V t99 = c[0] * t93;
        const V t100 = t74 - t99;
        const V t101 = c[0] * t94;
        const V t102 = t71 + t101;
        const V t103 = c[1] * t95;
        const V t104 = c[1] * t96;
        const V t105 = t100 + t104;
        const V t106 = t103 - t102;
        const V t107 = t100 - t104;
        const V t108 = t102 + t103;
        // spectrum block of 3
        const V t109 = t68 + t84;
        const V t110 = c[0] * t68;
        const V t111 = t84 - t110;
        const V t112 = c[16] * t28;
        const V t113 = c[17] * t29;
        const V t114 = t112 - t113;
        const V t115 = t111 + t114;
        const V t116 = t111 - t114;
        // spectrum block of 2
        const V t117 = t85 + t109;
        const V t118 = t85 - t109;
        // spectrum block of 2
        const V t119 = t117 + t98;
        io.out(12, t119);
        const V t120 = t117 - t98;
        io.out(1, t120);
        // spectrum block of 2
        const V t121 = t118 + t97;
        io.out(8, t121);
        const V t122 = t118 - t97;
        io.out(5, t122);
        // spectrum block of 2
        const V t123 = t91 + t115;
        const V t124 = t91 - t115;
        // spectrum block of 2
        const V t125 = t123 + t106;
        io.out(4, t125);
        const V t126 = t123 - t106;
        io.out(9, t126);
        // spectrum block of 2
        const V t127 = t124 + t105;
        io.out(7, t127);
        const V t128 = t124 - t105;
        io.out(6, t128);
        // spectrum block of 2
        const V t129 = t92 + t116;
        const V t130 = t92 - t116;
        // spectrum block of 2
        const V t131 = t129 - t108;
        io.out(10, t131);
        const V t132 = t129 + t108;
        io.out(3, t132);
        // spectrum block of 2
        const V t133 = t130 + t107;
        io.out(11, t133);
        const V t134 = t130 - t107;
        io.out(2, t134);
        // spectrum block of 13
        const V t135 = x0 + t24;
        io.out(0, t135);
    }
};

}  // namespace zulg
