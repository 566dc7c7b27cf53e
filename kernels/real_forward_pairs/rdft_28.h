// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 28.
// Forward DFT of 28 real points, prime-factor 4, 7; two lanes to a register.
// 39 sums, 37 differences, 36 products of registers, which do the 250 steps of the graph, those with
// `scale` included; 24 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<28> {
    static constexpr int steps = 250;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 20/7
        0.2225209339563144,  // c[1]: -cos 2 pi 16/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: -sin 2 pi 20/7
        0.9749279121818236,  // c[4]: sin 2 pi 16/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_4 = io.in(0, 4);
        const P x14_18 = io.in(14, 18);
        // real block of 2
        const P t0 = x0_4 + x14_18;
        const P t1 = x0_4 - x14_18;
        const P x7_11 = io.in(7, 11);
        const P x21_25 = io.in(21, 25);
        // real block of 2
        const P t2 = x7_11 + x21_25;
        const P t3 = x7_11 - x21_25;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x8_12 = io.in(8, 12);
        const P x22_26 = io.in(22, 26);
        // real block of 2
        const P t6 = x8_12 + x22_26;
        const P t7 = x8_12 - x22_26;
        const P x15_19 = io.in(15, 19);
        const P x1_5 = io.in(1, 5);
        // real block of 2
        const P t8 = x15_19 + x1_5;
        const P t9 = x15_19 - x1_5;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x16_20 = io.in(16, 20);
        const P x2_6 = io.in(2, 6);
        // real block of 2
        const P t12 = x16_20 + x2_6;
        const P t13 = x16_20 - x2_6;
        const P x23_27 = io.in(23, 27);
        const P x9_13 = io.in(9, 13);
        // real block of 2
        const P t14 = x23_27 + x9_13;
        const P t15 = x23_27 - x9_13;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        const P x24_3 = io.in(24, 3);
        const P x10_17 = io.in(10, 17);
        // real block of 2
        const P t18 = x24_3 + x10_17;
        const P t19 = x24_3 - x10_17;
        const V t20 = part<0>(t18);
        const V t21 = part<1>(t18);
        // real block of 2
        const V t22 = t20 + t21;
        const V t23 = t20 - t21;
        const P t24 = shuffled<1, 3>(t1, t3);
        // complex block of 7, multiplier 4
        const P t25 = t24 + t19;
        const P t26 = t24 - t19;
        const P t27 = shuffled<1, 3>(t13, t15);
        const P t28 = shuffled<0, 2>(t7, t9);
        const P t29 = t27 + t28;
        const P t30 = t27 - t28;
        const P t31 = shuffled<0, 2>(t13, t15);
        const P t32 = shuffled<1, 3>(t7, t9);
        const P t33 = t31 + t32;
        const P t34 = t31 - t32;
        const P t35 = t25 + t29;
        const P t36 = t35 + t33;
        const P t37 = shuffled<0, 2>(t1, t3);
        const P t38 = t36 + t37;
        io.pair(7, t38);
        const P t39 = c[0] * t25;
        const P t40 = c[1] * t29;
        const P t41 = t39 - t40;
        const P t42 = c[2] * t33;
        const P t43 = t41 - t42;
        const P t44 = t43 + t37;
        const P t45 = c[3] * t26;
        const P t46 = c[4] * t30;
        const P t47 = t45 - t46;
        const P t48 = c[5] * t34;
        const P t49 = t47 - t48;
        const P t50 = shuffled<1, 0>(t49);
        const P t51 = flipped<0, 1>(t50);
        const P t52 = t44 + t51;
        io.pair(13, negated<0, 1>(t52));
        const P t53 = t44 - t51;
        io.pair(1, negated<0, 1>(t53));
        const P t54 = c[1] * t25;
        const P t55 = t37 - t54;
        const P t56 = c[2] * t29;
        const P t57 = t55 - t56;
        const P t58 = c[0] * t33;
        const P t59 = t57 + t58;
        const P t60 = c[4] * t26;
        const P t61 = c[5] * t30;
        const P t62 = t60 + t61;
        const P t63 = c[3] * t34;
        const P t64 = t62 + t63;
        const P t65 = shuffled<1, 0>(t64);
        const P t66 = flipped<0, 1>(t65);
        const P t67 = t59 + t66;
        io.pair(5, negated<0, 1>(t67));
        const P t68 = t59 - t66;
        io.pair(9, negated<0, 1>(t68));
        const P t69 = c[2] * t25;
        const P t70 = t37 - t69;
        const P t71 = c[0] * t29;
        const P t72 = t70 + t71;
        const P t73 = c[1] * t33;
        const P t74 = t72 - t73;
        const P t75 = c[5] * t26;
        const P t76 = c[3] * t30;
        const P t77 = t75 + t76;
        const P t78 = c[4] * t34;
        const P t79 = t77 - t78;
        const P t80 = shuffled<1, 0>(t79);
        const P t81 = flipped<0, 1>(t80);
        const P t82 = t74 + t81;
        io.pair(3, t82);
        const P t83 = t74 - t81;
        io.pair(11, t83);
        const P t84 = shuffled<1, 3>(t4, t5);
        const P t85 = joined(t22, t23);
        // real block of 7, multiplier 4
        const P t86 = t84 + t85;
        const P t87 = t84 - t85;
        const P t88 = shuffled<1, 3>(t16, t17);
        const P t89 = shuffled<0, 2>(t10, t11);
        const P t90 = t88 + t89;
        const P t91 = t88 - t89;
        const P t92 = shuffled<0, 2>(t16, t17);
        const P t93 = shuffled<1, 3>(t10, t11);
        const P t94 = t92 + t93;
        const P t95 = t92 - t93;
        const P t96 = t86 + t90;
        const P t97 = t96 + t94;
        const P t98 = shuffled<0, 2>(t4, t5);
        const P t99 = t97 + t98;
        const V t100 = part<0>(t99);
        io.re(0, t100);
        const V t101 = part<1>(t99);
        io.re(14, t101);
        const P t102 = c[2] * t86;
        const P t103 = t98 - t102;
        const P t104 = c[0] * t90;
        const P t105 = t103 + t104;
        const P t106 = c[1] * t94;
        const P t107 = t105 - t106;
        const P t108 = c[5] * t87;
        const P t109 = c[3] * t91;
        const P t110 = t108 + t109;
        const P t111 = c[4] * t95;
        const P t112 = t110 - t111;
        const P t113 = shuffled<0, 2>(t107, t112);
        io.pair(4, t113);
        const P t114 = shuffled<1, 3>(t107, t112);
        io.pair(10, negated<0, 1>(t114));
        const P t115 = c[0] * t86;
        const P t116 = c[1] * t90;
        const P t117 = t115 - t116;
        const P t118 = c[2] * t94;
        const P t119 = t117 - t118;
        const P t120 = t119 + t98;
        const P t121 = c[4] * t91;
        const P t122 = c[5] * t95;
        const P t123 = t121 + t122;
        const P t124 = c[3] * t87;
        const P t125 = t123 - t124;
        const P t126 = shuffled<1, 3>(t120, t125);
        io.pair(6, negated<0, 1>(t126));
        const P t127 = shuffled<0, 2>(t120, t125);
        io.pair(8, t127);
        const P t128 = c[1] * t86;
        const P t129 = t98 - t128;
        const P t130 = c[2] * t90;
        const P t131 = t129 - t130;
        const P t132 = c[0] * t94;
        const P t133 = t131 + t132;
        const P t134 = c[4] * t87;
        const P t135 = c[5] * t91;
        const P t136 = t134 + t135;
        const P t137 = c[3] * t95;
        const P t138 = t136 + t137;
        const P t139 = shuffled<1, 3>(t133, t138);
        io.pair(2, negated<0, 1>(t139));
        const P t140 = shuffled<0, 2>(t133, t138);
        io.pair(12, t140);
    }
};

}  // namespace zulg
