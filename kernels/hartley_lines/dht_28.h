// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 28.
// Hartley transform of 28 points, form I; up to four lanes to a register.
// 26 sums, 22 differences, 18 products of registers, which do the 276 steps of the graph, those with
// `scale` included; 39 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<28> {
    static constexpr int steps = 276;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const V x0 = io.in(0);
        const V x14 = io.in(14);
        // spectrum block of 2
        const V t0 = x0 + x14;
        const V t1 = x0 - x14;
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x27_26_25_24 = io.in(27, 26, 25, 24);
        // input stage
        const Q t2 = x1_2_3_4 + x27_26_25_24;
        const Q t3 = x1_2_3_4 - x27_26_25_24;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x23_22_21_20 = io.in(23, 22, 21, 20);
        const Q t4 = x5_6_7_8 + x23_22_21_20;
        const Q t5 = x5_6_7_8 - x23_22_21_20;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x19_18_17_16 = io.in(19, 18, 17, 16);
        const Q t6 = x9_10_11_12 + x19_18_17_16;
        const Q t7 = x9_10_11_12 - x19_18_17_16;
        const V x13 = io.in(13);
        const V x15 = io.in(15);
        const V t8 = x13 + x15;
        const V t9 = x13 - x15;
        const Q t10 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t11 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t12 = shuffled<2, 3, 6, 7>(t10, t11);
        const Q t13 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t14 = shuffled<0, 1, 4, 5>(t13, t11);
        const Q t15 = flipped<0, 1, 0, 1>(t14);
        // complex block of 2
        const Q t16 = t12 + t15;
        const Q t17 = t12 - t15;
        const Q t18 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t19 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t20 = shuffled<2, 3, 4, 5>(t18, t19);
        const P t21 = part<1>(t19);
        const P t22 = flipped<0, 1>(t21);
        const V t23 = flipped<1>(t9);
        const P t24 = joined(t8, t23);
        const Q t25 = joined(t22, t24);
        // complex block of 2
        const Q t26 = t20 + t25;
        const Q t27 = flipped<1, 1, 0, 1>(t25);
        const Q t28 = flipped<0, 0, 1, 0>(t20);
        const Q t29 = t27 + t28;
        const P t30 = joined(t0, t1);
        const P t31 = part<1>(t4);
        const P t32 = part<1>(t5);
        const P t33 = shuffled<0, 2>(t31, t32);
        // spectrum block of 2
        const P t34 = t30 + t33;
        const P t35 = t30 - t33;
        // complex block of 2
        const Q t36 = t16 + t26;
        const Q t37 = t16 - t26;
        const Q t38 = shuffled<1, 0, 3, 2>(t29);
        const Q t39 = flipped<1, 0, 0, 0>(t38);
        // complex block of 2
        const Q t40 = t17 - t39;
        const Q t41 = t17 + t39;
        const Q t42 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t43 = shuffled<2, 3, 4, 5>(t13, t42);
        const Q t44 = shuffled<0, 1, 4, 5>(t10, t18);
        const Q t45 = flipped<0, 1, 0, 1>(t44);
        // complex block of 2
        const Q t46 = t43 + t45;
        const Q t47 = flipped<1, 1, 0, 1>(t45);
        const Q t48 = flipped<0, 0, 1, 0>(t43);
        const Q t49 = t47 + t48;
        const Q t50 = shuffled<0, 1, 4, 5>(t46, t49);
        const Q t51 = shuffled<1, 0, 3, 2>(t49);
        const Q t52 = shuffled<2, 3, 6, 7>(t46, t51);
        const Q t53 = flipped<0, 0, 1, 1>(t52);
        // complex block of 2
        const Q t54 = t50 + t53;
        const Q t55 = t50 - t53;
        const Q t56 = shuffled<0, 4, 2, 6>(t36, t40);
        const Q t57 = shuffled<0, 4, 2, 6>(t37, t41);
        const Q t58 = shuffled<0, 1, 4, 5>(t56, t57);
        const Q t59 = shuffled<2, 3, 6, 7>(t56, t57);
        // spectrum block of 7, multiplier 4
        const Q t60 = t58 + t59;
        const P t61 = part<0>(t54);
        const P t62 = part<1>(t54);
        const P t63 = shuffled<0, 2>(t61, t62);
        const P t64 = part<0>(t55);
        const P t65 = part<1>(t55);
        const P t66 = shuffled<0, 2>(t64, t65);
        const Q t67 = joined(t63, t66);
        const Q t68 = t60 + t67;
        const Q t69 = joined(t34, t35);
        const Q t70 = t68 + t69;
        io.out(0, 21, 14, 7, t70);
        const Q t71 = c[0] * t58;
        const Q t72 = c[1] * t59;
        const Q t73 = t71 - t72;
        const Q t74 = c[2] * t67;
        const Q t75 = t73 - t74;
        const Q t76 = shuffled<1, 5, 3, 7>(t36, t40);
        const Q t77 = shuffled<1, 5, 3, 7>(t37, t41);
        const Q t78 = shuffled<0, 1, 4, 5>(t76, t77);
        const Q t79 = c[3] * t78;
        const Q t80 = shuffled<2, 3, 6, 7>(t76, t77);
        const Q t81 = c[4] * t80;
        const Q t82 = t79 + t81;
        const Q t83 = t75 + t69;
        const P t84 = shuffled<1, 3>(t61, t62);
        const P t85 = shuffled<1, 3>(t64, t65);
        const Q t86 = joined(t84, t85);
        const Q t87 = c[5] * t86;
        const Q t88 = t82 + t87;
        const Q t89 = t83 - t88;
        io.out(20, 13, 6, 27, t89);
        const Q t90 = t83 + t88;
        io.out(8, 1, 22, 15, t90);
        const Q t91 = c[1] * t58;
        const Q t92 = t69 - t91;
        const Q t93 = c[2] * t59;
        const Q t94 = t92 - t93;
        const Q t95 = c[4] * t78;
        const Q t96 = c[5] * t80;
        const Q t97 = t95 - t96;
        const Q t98 = c[0] * t67;
        const Q t99 = t94 + t98;
        const Q t100 = c[3] * t86;
        const Q t101 = t97 - t100;
        const Q t102 = t99 - t101;
        io.out(12, 5, 26, 19, t102);
        const Q t103 = t99 + t101;
        io.out(16, 9, 2, 23, t103);
        const Q t104 = c[2] * t58;
        const Q t105 = t69 - t104;
        const Q t106 = c[0] * t59;
        const Q t107 = t105 + t106;
        const Q t108 = c[5] * t78;
        const Q t109 = c[3] * t80;
        const Q t110 = t108 - t109;
        const Q t111 = c[1] * t67;
        const Q t112 = t107 - t111;
        const Q t113 = c[4] * t86;
        const Q t114 = t110 + t113;
        const Q t115 = t112 - t114;
        io.out(4, 25, 18, 11, t115);
        const Q t116 = t112 + t114;
        io.out(24, 17, 10, 3, t116);
    }
};

}  // namespace zulg
