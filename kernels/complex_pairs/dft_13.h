// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 13.
// Complex DFT of 13 points, Rader block; one complex number to a register.
// 48 sums, 40 differences, 36 products of registers, which do the 274 steps of the graph, those with
// `scale` included; 8 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<13> {
    static constexpr int steps = 274;  // with `scale`
    static constexpr double inverseRoot = 0.2773500981126146;  // 1/sqrt(13), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.31378278210316923,  // c[2]: Q[1] of 13
        0.5124953431658732,  // c[3]: P[1] of 13
        0.5751407294740031,  // c[4]: P[3] of 13
        0.1741386011521359,  // c[5]: Q[3] of 13
        0.02319821121153658,  // c[6]: -Q[5] of 13
        0.6004772719326653,  // c[7]: -P[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.5165207806234897,  // c[9]: P[2] of 13
        0.3071113711590828,  // c[10]: Q[2] of 13
        0.15180597207438773,  // c[11]: P[4] of 13
        0.5814344829416822,  // c[12]: Q[4] of 13
        0.5035370328637666,  // c[13]: sin 2 pi 1/3 times Q[4] of 13
        0.13146782826261086,  // c[14]: sin 2 pi 1/3 times P[4] of 13
        0.3004626062886658,  // c[15]: beta of 13
        0.4473201176025111,  // c[16]: sin 2 pi 1/3 times P[2] of 13
        0.2659662492148373,  // c[17]: sin 2 pi 1/3 times Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x12 = io.pair(12);
        // real block of 2
        const P t0 = x1 + x12;
        const P t1 = x1 - x12;
        const P x8 = io.pair(8);
        const P x5 = io.pair(5);
        // real block of 2
        const P t2 = x8 + x5;
        const P t3 = x8 - x5;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x3 = io.pair(3);
        const P x10 = io.pair(10);
        // real block of 2
        const P t6 = x3 + x10;
        const P t7 = x3 - x10;
        const P x11 = io.pair(11);
        const P x2 = io.pair(2);
        // real block of 2
        const P t8 = x11 + x2;
        const P t9 = x11 - x2;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x9 = io.pair(9);
        const P x4 = io.pair(4);
        // real block of 2
        const P t12 = x9 + x4;
        const P t13 = x9 - x4;
        const P x7 = io.pair(7);
        const P x6 = io.pair(6);
        // real block of 2
        const P t14 = x7 + x6;
        const P t15 = x7 - x6;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        // real block of 3
        const P t18 = t10 + t16;
        const P t19 = t10 - t16;
        const P t20 = t18 + t4;
        const P t21 = c[0] * t18;
        const P t22 = t4 - t21;
        // complex block of 3
        const P t23 = t7 + t13;
        const P t24 = t9 + t15;
        const P t25 = t7 - t13;
        const P t26 = t9 - t15;
        const P t27 = t23 + t1;
        const P t28 = t24 + t3;
        const P t29 = c[0] * t23;
        const P t30 = t1 - t29;
        const P t31 = c[0] * t24;
        const P t32 = t3 - t31;
        const P t33 = c[1] * t26;
        const P t34 = t30 + t33;
        const P t35 = c[1] * t25;
        const P t36 = t32 - t35;
        const P t37 = t30 - t33;
        const P t38 = t32 + t35;
        // real block of 3
        const P t39 = t11 + t17;
        const P t40 = t11 - t17;
        const P t41 = t39 + t5;
        const P t42 = c[0] * t39;
        const P t43 = t5 - t42;
        const P x0 = io.pair(0);
        // complex block of 13
        const P t44 = x0 + t20;
        io.pair(0, t44);
        const P t45 = c[8] * t20;
        const P t46 = x0 - t45;
        const P t47 = shuffled<1, 0>(t37);
        const P t48 = c[2] * t47;
        const P t49 = shuffled<1, 0>(t38);
        const P t50 = c[3] * t49;
        const P t51 = t48 + t50;
        const P t52 = P(-c[2], c[2]) * t49;
        const P t53 = P(c[3], -c[3]) * t47;
        const P t54 = t52 + t53;
        const P t55 = c[9] * t43;
        // real block of 3
        const P t56 = c[1] * t40;
        // complex block of 13
        const P t57 = c[10] * t56;
        const P t58 = t55 - t57;
        const P t59 = shuffled<1, 0>(t28);
        const P t60 = P(-c[4], c[4]) * t59;
        const P t61 = shuffled<1, 0>(t27);
        const P t62 = P(c[5], -c[5]) * t61;
        const P t63 = t60 + t62;
        const P t64 = c[5] * t59;
        const P t65 = c[4] * t61;
        const P t66 = t64 + t65;
        const P t67 = c[11] * t22;
        // real block of 3
        const P t68 = c[1] * t19;
        // complex block of 13
        const P t69 = c[12] * t68;
        const P t70 = t67 + t69;
        const P t71 = shuffled<1, 0>(t34);
        const P t72 = c[6] * t71;
        const P t73 = shuffled<1, 0>(t36);
        const P t74 = c[7] * t73;
        const P t75 = t72 + t74;
        const P t76 = P(-c[7], c[7]) * t71;
        const P t77 = P(c[6], -c[6]) * t73;
        const P t78 = t76 + t77;
        // spectrum block of 3
        const P t79 = t70 + t46;
        const P t80 = c[0] * t70;
        const P t81 = t46 - t80;
        const P t82 = c[13] * t22;
        const P t83 = c[14] * t68;
        const P t84 = t82 - t83;
        const P t85 = t81 - t84;
        const P t86 = t81 + t84;
        // complex block of 3
        const P t87 = t78 + t54;
        const P t88 = shuffled<0, 3>(t51, t75);
        const P t89 = shuffled<0, 3>(t75, t51);
        const P t90 = t88 - t89;
        const P t91 = t54 - t78;
        const P t92 = t75 + t51;
        const P t93 = flipped<1, 0>(t87);
        const P t94 = t93 + t66;
        const P t95 = t90 + t63;
        const P t96 = c[0] * t87;
        const P t97 = flipped<0, 1>(t66);
        const P t98 = t96 + t97;
        const P t99 = c[0] * t90;
        const P t100 = t63 - t99;
        const P t101 = P(-c[1], c[1]) * t92;
        const P t102 = t98 + t101;
        const P t103 = c[1] * t91;
        const P t104 = t100 - t103;
        const P t105 = t98 - t101;
        const P t106 = t100 + t103;
        // complex block of 13
        const P t107 = c[15] * t41;
        // spectrum block of 3
        const P t108 = t58 + t107;
        const P t109 = c[0] * t58;
        const P t110 = t107 - t109;
        const P t111 = c[16] * t56;
        const P t112 = c[17] * t43;
        const P t113 = t111 + t112;
        const P t114 = t110 + t113;
        const P t115 = t110 - t113;
        // spectrum block of 2
        const P t116 = t79 + t108;
        const P t117 = t79 - t108;
        // spectrum block of 2
        const P t118 = t116 + t95;
        io.pair(1, t118);
        const P t119 = t116 - t95;
        io.pair(12, t119);
        const P t120 = flipped<0, 1>(t94);
        // spectrum block of 2
        const P t121 = t117 + t120;
        io.pair(5, t121);
        const P t122 = t117 - t120;
        io.pair(8, t122);
        // spectrum block of 2
        const P t123 = t85 + t114;
        const P t124 = t85 - t114;
        // spectrum block of 2
        const P t125 = t123 + t104;
        io.pair(9, t125);
        const P t126 = t123 - t104;
        io.pair(4, t126);
        // spectrum block of 2
        const P t127 = t124 + t102;
        io.pair(6, t127);
        const P t128 = t124 - t102;
        io.pair(7, t128);
        // spectrum block of 2
        const P t129 = t86 + t115;
        const P t130 = t86 - t115;
        // spectrum block of 2
        const P t131 = t129 + t106;
        io.pair(3, t131);
        const P t132 = t129 - t106;
        io.pair(10, t132);
        // spectrum block of 2
        const P t133 = t130 + t105;
        io.pair(2, t133);
        const P t134 = t130 - t105;
        io.pair(11, t134);
    }
};

}  // namespace zulg
