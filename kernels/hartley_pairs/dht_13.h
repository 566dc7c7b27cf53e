// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 13.
// Hartley transform of 13 points, form I; two lanes to a register.
// 31 sums, 18 differences, 23 products of registers, which do the 149 steps of the graph, those with
// `scale` included; 30 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<13> {
    static constexpr int steps = 149;  // with `scale`
    static constexpr double inverseRoot = 0.2773500981126146;  // 1/sqrt(13), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.31378278210316923,  // c[2]: -Q[1] of 13
        0.5124953431658732,  // c[3]: -P[1] of 13
        0.1741386011521359,  // c[4]: -Q[3] of 13
        0.5751407294740031,  // c[5]: -P[3] of 13
        0.02319821121153658,  // c[6]: Q[5] of 13
        0.6004772719326653,  // c[7]: P[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.15180597207438773,  // c[9]: P[4] of 13
        0.5165207806234897,  // c[10]: P[2] of 13
        0.5814344829416822,  // c[11]: Q[4] of 13
        0.3071113711590828,  // c[12]: Q[2] of 13
        0.3004626062886658,  // c[13]: beta of 13
        0.13146782826261086,  // c[14]: -sin 2 pi 2/3 times P[4] of 13
        0.2659662492148373,  // c[15]: -sin 2 pi 2/3 times Q[2] of 13
        0.5035370328637666,  // c[16]: -sin 2 pi 2/3 times Q[4] of 13
        0.4473201176025111,  // c[17]: -sin 2 pi 2/3 times P[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x12_11 = io.in(12, 11);
        // input stage
        const P t0 = x1_2 + x12_11;
        const P t1 = x1_2 - x12_11;
        const P x3_4 = io.in(3, 4);
        const P x10_9 = io.in(10, 9);
        const P t2 = x3_4 + x10_9;
        const P t3 = x3_4 - x10_9;
        const P x5_6 = io.in(5, 6);
        const P x8_7 = io.in(8, 7);
        const P t4 = x5_6 + x8_7;
        const P t5 = x5_6 - x8_7;
        const P t6 = shuffled<1, 3>(t2, t4);
        const P t7 = shuffled<0, 3>(t2, t0);
        // real block of 3, multiplier 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P t10 = shuffled<0, 2>(t0, t4);
        const P t11 = t8 + t10;
        const P t12 = c[0] * t8;
        const P t13 = t10 - t12;
        const V t14 = part<0>(t11);
        const V t15 = part<1>(t11);
        // real block of 2
        const V t16 = t14 + t15;
        const V t17 = t14 - t15;
        // real block of 3, multiplier 2
        const P t18 = c[1] * t9;
        const P t19 = shuffled<0, 2>(t13, t18);
        const P t20 = shuffled<1, 3>(t13, t18);
        // complex block of 2
        const P t21 = t19 + t20;
        const P t22 = t19 - t20;
        const P t23 = shuffled<1, 2>(t1, t3);
        // skew block of 6
        const P t24 = c[1] * t23;
        const P t25 = shuffled<1, 0>(t23);
        const P t26 = P(-c[0], c[0]) * t25;
        const P t27 = t24 + t26;
        const P t28 = shuffled<1, 3>(t3, t5);
        const P t29 = c[0] * t28;
        const P t30 = shuffled<1, 0>(t28);
        const P t31 = P(-c[1], c[1]) * t30;
        const P t32 = t29 + t31;
        // complex block of 3
        const P t33 = t27 + t32;
        const P t34 = shuffled<0, 3>(t27, t32);
        const P t35 = shuffled<0, 3>(t32, t27);
        const P t36 = t34 - t35;
        const P t37 = shuffled<0, 2>(t1, t5);
        const P t38 = flipped<0, 1>(t33);
        const P t39 = t37 + t38;
        const P t40 = P(-c[0], c[0]) * t33;
        const P t41 = t40 + t37;
        const P t42 = P(-c[1], c[1]) * t36;
        const P t43 = shuffled<1, 0>(t42);
        const P t44 = t41 + t43;
        const P t45 = t41 - t43;
        const V x0 = io.in(0);
        // spectrum block of 13
        const V t46 = c[8] * t16;
        const V t47 = x0 - t46;
        const P t48 = P(-c[2], c[2]) * t39;
        const P t49 = shuffled<1, 0>(t39);
        const P t50 = c[3] * t49;
        const P t51 = t48 + t50;
        const P t52 = c[4] * t45;
        const P t53 = shuffled<1, 0>(t45);
        const P t54 = P(c[5], -c[5]) * t53;
        const P t55 = t52 + t54;
        const P t56 = shuffled<0, 2>(t21, t22);
        const P t57 = P(c[9], c[10]) * t56;
        const P t58 = shuffled<1, 3>(t21, t22);
        const P t59 = P(-c[11], c[12]) * t58;
        const P t60 = t57 + t59;
        const P t61 = c[6] * t44;
        const P t62 = shuffled<1, 0>(t44);
        const P t63 = P(-c[7], c[7]) * t62;
        const P t64 = t61 + t63;
        const P t65 = flipped<0, 1>(t64);
        // complex block of 3
        const P t66 = t51 + t65;
        const P t67 = flipped<1, 0>(t51);
        const P t68 = t64 + t67;
        const P t69 = flipped<1, 0>(t55);
        const P t70 = t66 + t69;
        const P t71 = P(c[0], -c[0]) * t66;
        const P t72 = t55 + t71;
        const P t73 = c[1] * t68;
        const P t74 = shuffled<1, 3>(t73, t72);
        const P t75 = shuffled<0, 2>(t72, t73);
        const P t76 = flipped<0, 1>(t75);
        const P t77 = t74 - t76;
        const P t78 = t74 + t76;
        // spectrum block of 13
        const V t79 = c[13] * t17;
        const P t80 = joined(t47, t79);
        // spectrum block of 3
        const P t81 = t60 + t80;
        const P t82 = c[0] * t60;
        const P t83 = t80 - t82;
        const P t84 = shuffled<0, 3>(t58, t56);
        const P t85 = P(c[14], c[15]) * t84;
        const P t86 = shuffled<0, 3>(t56, t58);
        const P t87 = P(c[16], -c[17]) * t86;
        const P t88 = t85 + t87;
        const P t89 = flipped<1, 0>(t88);
        const P t90 = t83 + t89;
        const P t91 = t83 - t89;
        const P t92 = shuffled<0, 2>(t81, t90);
        const P t93 = shuffled<1, 3>(t81, t90);
        // spectrum block of 2
        const P t94 = t92 + t93;
        const P t95 = t92 - t93;
        const P t96 = shuffled<0, 2>(t70, t77);
        // spectrum block of 2
        const P t97 = t94 + t96;
        io.out(12, 4, t97);
        const P t98 = t94 - t96;
        io.out(1, 9, t98);
        const P t99 = shuffled<1, 3>(t70, t77);
        // spectrum block of 2
        const P t100 = t95 + t99;
        io.out(8, 7, t100);
        const P t101 = t95 - t99;
        io.out(5, 6, t101);
        const V t102 = part<0>(t91);
        const V t103 = part<1>(t91);
        // spectrum block of 2
        const V t104 = t102 + t103;
        const V t105 = t102 - t103;
        const P t106 = joined(t104, t105);
        const P t107 = flipped<1, 0>(t78);
        // spectrum block of 2
        const P t108 = t106 + t107;
        io.out(10, 11, t108);
        const P t109 = t106 - t107;
        io.out(3, 2, t109);
        // spectrum block of 13
        const V t110 = x0 + t16;
        io.out(0, t110);
    }
};

}  // namespace zulg
