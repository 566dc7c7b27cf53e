// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 13.
// Hartley transform of 13 points, form I.
// 46 additions, 46 subtractions, 44 multiplications (57 with `scale`); 18 constants; 21 values alive at most.
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
        0.31378278210316923,  // c[2]: -Q[1] of 13
        0.5124953431658732,  // c[3]: -P[1] of 13
        0.1741386011521359,  // c[4]: -Q[3] of 13
        0.5751407294740031,  // c[5]: -P[3] of 13
        0.6004772719326653,  // c[6]: P[5] of 13
        0.02319821121153658,  // c[7]: Q[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.5165207806234897,  // c[9]: P[2] of 13
        0.15180597207438773,  // c[10]: P[4] of 13
        0.3071113711590828,  // c[11]: Q[2] of 13
        0.5814344829416822,  // c[12]: Q[4] of 13
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
        const V x6 = io.in(6);
        const V x7 = io.in(7);
        const V t8 = x6 + x7;
        const V t9 = x6 - x7;
        // real block of 3, multiplier 2
        const V t10 = t6 + t4;
        const V t11 = c[0] * t10;
        const V t12 = t6 - t4;
        // real block of 3, multiplier 2
        const V t13 = t8 + t2;
        const V t14 = c[0] * t13;
        const V t15 = t8 - t2;
        // skew block of 6
        const V t16 = c[0] * t5;
        const V t17 = c[1] * t3;
        const V t18 = t17 - t16;
        const V t19 = c[0] * t3;
        const V t20 = c[1] * t5;
        const V t21 = t20 + t19;
        const V t22 = c[1] * t9;
        const V t23 = c[0] * t7;
        const V t24 = t23 - t22;
        const V t25 = c[1] * t7;
        const V t26 = c[0] * t9;
        const V t27 = t26 + t25;
        // input stage
        const V x5 = io.in(5);
        const V x8 = io.in(8);
        const V t28 = x5 + x8;
        const V t29 = x5 - x8;
        // real block of 3, multiplier 2
        const V t30 = t10 + t0;
        // real block of 3, multiplier 2
        const V t31 = t13 + t28;
        // real block of 2
        const V t32 = t30 + t31;
        const V t33 = t30 - t31;
        // spectrum block of 13
        const V t34 = c[8] * t32;
        // real block of 3, multiplier 2
        const V t35 = t0 - t11;
        // real block of 3, multiplier 2
        const V t36 = t28 - t14;
        // complex block of 2
        const V t37 = t35 + t36;
        const V t38 = t35 - t36;
        // spectrum block of 13
        const V t39 = c[9] * t38;
        const V t40 = c[10] * t37;
        // real block of 3, multiplier 2
        const V t41 = c[1] * t12;
        // real block of 3, multiplier 2
        const V t42 = c[1] * t15;
        // complex block of 2
        const V t43 = t41 + t42;
        const V t44 = t41 - t42;
        // spectrum block of 13
        const V t45 = c[11] * t44;
        const V t46 = c[12] * t43;
        // complex block of 3
        const V t47 = t18 + t24;
        const V t48 = t47 + t1;
        const V t49 = c[0] * t47;
        const V t50 = t27 - t21;
        const V t51 = c[1] * t50;
        const V t52 = t1 - t49;
        const V t53 = t52 + t51;
        // spectrum block of 13
        const V t54 = c[2] * t48;
        const V t55 = c[3] * t48;
        // complex block of 3
        const V t56 = t21 + t27;
        const V t57 = t29 - t56;
        const V t58 = c[0] * t56;
        const V t59 = t18 - t24;
        const V t60 = c[1] * t59;
        const V t61 = t58 + t29;
        const V t62 = t61 - t60;
        // spectrum block of 13
        const V t63 = c[3] * t57;
        const V t64 = c[2] * t57;
        // complex block of 3
        const V t65 = t52 - t51;
        // spectrum block of 13
        const V t66 = c[4] * t65;
        const V t67 = c[5] * t65;
        // complex block of 3
        const V t68 = t61 + t60;
        // spectrum block of 13
        const V t69 = c[5] * t68;
        const V t70 = c[4] * t68;
        const V t71 = t66 + t69;
        const V t72 = t70 - t67;
        const V x0 = io.in(0);
        const V t73 = x0 - t34;
        const V t74 = t40 - t46;
        // spectrum block of 3
        const V t75 = c[0] * t74;
        const V t76 = t74 + t73;
        const V t77 = t73 - t75;
        // spectrum block of 13
        const V t78 = t63 - t54;
        const V t79 = c[6] * t62;
        const V t80 = c[7] * t53;
        const V t81 = t80 - t79;
        // complex block of 3
        const V t82 = t81 + t78;
        const V t83 = c[0] * t82;
        const V t84 = t81 - t78;
        // spectrum block of 13
        const V t85 = t64 + t55;
        const V t86 = c[6] * t53;
        const V t87 = c[7] * t62;
        const V t88 = t87 + t86;
        // complex block of 3
        const V t89 = t85 - t88;
        const V t90 = c[0] * t89;
        const V t91 = t88 + t85;
        // spectrum block of 13
        const V t92 = t39 + t45;
        // spectrum block of 3
        const V t93 = c[0] * t92;
        // spectrum block of 13
        const V t94 = c[13] * t33;
        // spectrum block of 3
        const V t95 = t92 + t94;
        const V t96 = t94 - t93;
        // spectrum block of 3
        const V t97 = c[14] * t43;
        const V t98 = c[15] * t37;
        const V t99 = t97 + t98;
        // spectrum block of 3
        const V t100 = c[16] * t38;
        const V t101 = c[17] * t44;
        const V t102 = t100 - t101;
        // spectrum block of 3
        const V t103 = t77 - t99;
        // spectrum block of 3
        const V t104 = t96 + t102;
        // spectrum block of 2
        const V t105 = t103 + t104;
        const V t106 = t103 - t104;
        // spectrum block of 3
        const V t107 = t77 + t99;
        // spectrum block of 3
        const V t108 = t96 - t102;
        // spectrum block of 2
        const V t109 = t107 + t108;
        const V t110 = t107 - t108;
        // complex block of 3
        const V t111 = t72 - t90;
        const V t112 = c[1] * t84;
        const V t113 = t111 + t112;
        const V t114 = t111 - t112;
        const V t115 = t71 + t83;
        const V t116 = c[1] * t91;
        const V t117 = t116 - t115;
        const V t118 = t115 + t116;
        // spectrum block of 2
        const V t119 = t105 + t117;
        io.out(4, t119);
        const V t120 = t105 - t117;
        io.out(9, t120);
        // spectrum block of 2
        const V t121 = t106 + t113;
        io.out(7, t121);
        const V t122 = t106 - t113;
        io.out(6, t122);
        // spectrum block of 2
        const V t123 = t109 - t118;
        io.out(10, t123);
        const V t124 = t109 + t118;
        io.out(3, t124);
        // spectrum block of 2
        const V t125 = t110 + t114;
        io.out(11, t125);
        const V t126 = t110 - t114;
        io.out(2, t126);
        // complex block of 3
        const V t127 = t89 + t72;
        // spectrum block of 2
        const V t128 = t76 - t95;
        // spectrum block of 2
        const V t129 = t128 + t127;
        io.out(8, t129);
        const V t130 = t128 - t127;
        io.out(5, t130);
        // complex block of 3
        const V t131 = t82 - t71;
        // spectrum block of 2
        const V t132 = t76 + t95;
        // spectrum block of 2
        const V t133 = t132 + t131;
        io.out(12, t133);
        const V t134 = t132 - t131;
        io.out(1, t134);
        // spectrum block of 13
        const V t135 = x0 + t32;
        io.out(0, t135);
    }
};

}  // namespace zulg
