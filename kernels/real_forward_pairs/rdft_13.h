// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 13.
// Forward DFT of 13 real points, Rader 3, 4; two lanes to a register.
// 26 sums, 21 differences, 25 products of registers, which do the 132 steps of the graph, those with
// `scale` included; 36 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<13> {
    static constexpr int steps = 132;  // with `scale`
    static constexpr double inverseRoot = 0.2773500981126146;  // 1/sqrt(13), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5124953431658732,  // c[2]: P[1] of 13
        0.31378278210316923,  // c[3]: -Q[1] of 13
        0.3071113711590828,  // c[4]: Q[2] of 13
        0.5165207806234897,  // c[5]: P[2] of 13
        0.5751407294740031,  // c[6]: P[3] of 13
        0.1741386011521359,  // c[7]: -Q[3] of 13
        0.5814344829416822,  // c[8]: Q[4] of 13
        0.15180597207438773,  // c[9]: P[4] of 13
        0.6004772719326653,  // c[10]: -P[5] of 13
        0.02319821121153658,  // c[11]: Q[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.4330127018922193,  // c[14]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.75,  // c[15]: sin 2 pi 1/3 times sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x3_11 = io.in(3, 11);
        const P x9_7 = io.in(9, 7);
        // real block of 3
        const P t0 = x3_11 + x9_7;
        const P t1 = x3_11 - x9_7;
        const P x1_8 = io.in(1, 8);
        const P t2 = t0 + x1_8;
        const P t3 = c[0] * t0;
        const P t4 = x1_8 - t3;
        const P x10_2 = io.in(10, 2);
        const P x4_6 = io.in(4, 6);
        // real block of 3
        const P t5 = x10_2 + x4_6;
        const P t6 = x10_2 - x4_6;
        const P x12_5 = io.in(12, 5);
        const P t7 = t5 + x12_5;
        const P t8 = c[0] * t5;
        const P t9 = x12_5 - t8;
        // real block of 2
        const P t10 = t2 + t7;
        const P t11 = shuffled<0, 3>(t2, t7);
        const P t12 = shuffled<0, 3>(t7, t2);
        const P t13 = t11 - t12;
        const V t14 = part<0>(t10);
        const V t15 = part<1>(t10);
        // real block of 2
        const V t16 = t14 + t15;
        const V t17 = t14 - t15;
        // real block of 3
        const P t18 = c[1] * t1;
        const P t19 = shuffled<0, 2>(t4, t18);
        // real block of 3
        const P t20 = c[1] * t6;
        const P t21 = shuffled<0, 2>(t9, t20);
        // complex block of 2
        const P t22 = t19 + t21;
        const P t23 = shuffled<0, 3>(t19, t21);
        const P t24 = shuffled<0, 3>(t21, t19);
        const P t25 = t23 - t24;
        const P t26 = shuffled<1, 3>(t4, t18);
        const P t27 = shuffled<1, 3>(t9, t20);
        // complex block of 2
        const P t28 = t26 + t27;
        const P t29 = shuffled<0, 3>(t26, t27);
        const P t30 = shuffled<0, 3>(t27, t26);
        const P t31 = t29 - t30;
        // complex block of 2
        const P t32 = t22 + t28;
        const P t33 = shuffled<0, 3>(t22, t28);
        const P t34 = shuffled<0, 3>(t28, t22);
        const P t35 = t33 - t34;
        const P t36 = shuffled<1, 0>(t31);
        const P t37 = flipped<1, 0>(t36);
        // complex block of 2
        const P t38 = t25 + t37;
        const P t39 = t25 - t37;
        const V x0 = io.in(0);
        // real block of 13
        const V t40 = x0 + t16;
        io.re(0, t40);
        const V t41 = c[12] * t16;
        const V t42 = x0 - t41;
        const P t43 = c[2] * t39;
        const P t44 = shuffled<1, 0>(t39);
        const P t45 = P(c[3], -c[3]) * t44;
        const P t46 = t43 + t45;
        const P t47 = shuffled<1, 0>(t35);
        const P t48 = c[4] * t47;
        const P t49 = P(c[5], -c[5]) * t35;
        const P t50 = t48 + t49;
        const P t51 = c[6] * t13;
        const P t52 = shuffled<1, 0>(t13);
        const P t53 = P(-c[7], c[7]) * t52;
        const P t54 = t51 + t53;
        const P t55 = shuffled<1, 0>(t32);
        const P t56 = c[8] * t55;
        const P t57 = P(c[9], -c[9]) * t32;
        const P t58 = t56 + t57;
        const P t59 = P(-c[10], c[10]) * t38;
        const P t60 = shuffled<1, 0>(t38);
        const P t61 = c[11] * t60;
        const P t62 = t59 + t61;
        const V t63 = c[13] * t17;
        // spectrum block of 2
        const V t64 = t42 + t63;
        const V t65 = t42 - t63;
        const P t66 = flipped<0, 1>(t50);
        // complex block of 2
        const P t67 = t58 + t66;
        const P t68 = t58 - t66;
        const P t69 = shuffled<0, 2>(t67, t68);
        const P t70 = joined(t64, t65);
        // spectrum block of 3, multiplier 2
        const P t71 = t69 + t70;
        const P t72 = c[0] * t69;
        const P t73 = t70 - t72;
        const P t74 = shuffled<1, 3>(t67, t68);
        const P t75 = c[1] * t74;
        const P t76 = t73 - t75;
        const P t77 = t73 + t75;
        const P t78 = shuffled<1, 2>(t46, t62);
        const P t79 = shuffled<1, 2>(t62, t46);
        const P t80 = flipped<0, 1>(t79);
        // complex block of 2
        const P t81 = t78 + t80;
        const P t82 = t78 - t80;
        const V t83 = part<0>(t82);
        // mirrored skew block of 6
        const V t84 = c[1] * t83;
        const V t85 = part<1>(t82);
        const V t86 = c[0] * t85;
        const V t87 = t84 + t86;
        const V t88 = part<0>(t81);
        const V t89 = part<1>(t54);
        // spectrum block of 3, multiplier 2
        const V t90 = t88 - t89;
        const V t91 = part<0>(t71);
        const P t92 = joined(t91, t90);
        io.pair(1, t92);
        const V t93 = c[0] * t88;
        const V t94 = t89 + t93;
        const V t95 = part<1>(t81);
        const V t96 = c[1] * t95;
        const V t97 = t96 - t94;
        const V t98 = part<0>(t77);
        const P t99 = joined(t98, t97);
        io.pair(3, t99);
        const V t100 = t94 + t96;
        const V t101 = part<0>(t76);
        const P t102 = joined(t101, t100);
        io.pair(4, t102);
        const V t103 = part<0>(t54);
        // spectrum block of 3, multiplier 2
        const V t104 = t87 + t103;
        const V t105 = part<1>(t76);
        const V t106 = flipped<1>(t104);
        const P t107 = joined(t105, t106);
        io.pair(6, t107);
        const V t108 = c[0] * t87;
        const V t109 = t108 - t103;
        const V t110 = c[14] * t83;
        const V t111 = c[15] * t85;
        const V t112 = t110 - t111;
        const V t113 = t112 - t109;
        const V t114 = part<1>(t71);
        const V t115 = flipped<1>(t113);
        const P t116 = joined(t114, t115);
        io.pair(5, t116);
        const V t117 = t109 + t112;
        const V t118 = part<1>(t77);
        const P t119 = joined(t118, t117);
        io.pair(2, t119);
    }
};

}  // namespace zulg
