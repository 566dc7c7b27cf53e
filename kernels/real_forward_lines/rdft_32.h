// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 32.
// Forward DFT of 32 real points, twiddled 8, 4; up to four lanes to a register.
// 28 sums, 19 differences, 13 products of registers, which do the 234 steps of the graph, those with
// `scale` included; 39 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<32> {
    static constexpr int steps = 234;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 2/32
        0.9238795325112867,  // c[2]: cos 2 pi 2/32
        0.9807852804032304,  // c[3]: cos 2 pi 1/32
        0.8314696123025452,  // c[4]: cos 2 pi 3/32
        0.19509032201612828,  // c[5]: sin 2 pi 1/32
        0.5555702330196022,  // c[6]: sin 2 pi 3/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x0_1_2_3 = io.in(0, 1, 2, 3);
        const Q x16_17_18_19 = io.in(16, 17, 18, 19);
        // real block of 2
        const Q t0 = x0_1_2_3 + x16_17_18_19;
        const Q t1 = x0_1_2_3 - x16_17_18_19;
        const Q x4_5_6_7 = io.in(4, 5, 6, 7);
        const Q x20_21_22_23 = io.in(20, 21, 22, 23);
        // real block of 2
        const Q t2 = x4_5_6_7 - x20_21_22_23;
        const Q x12_13_14_15 = io.in(12, 13, 14, 15);
        const Q x28_29_30_31 = io.in(28, 29, 30, 31);
        // real block of 2
        const Q t3 = x12_13_14_15 - x28_29_30_31;
        // real block of 2
        const Q t4 = x4_5_6_7 + x20_21_22_23;
        // real block of 2
        const Q t5 = x12_13_14_15 + x28_29_30_31;
        // skew block of 4
        const Q t6 = t2 - t3;
        const Q t7 = t2 + t3;
        const Q x8_9_10_11 = io.in(8, 9, 10, 11);
        const Q x24_25_26_27 = io.in(24, 25, 26, 27);
        // real block of 2
        const Q t8 = x8_9_10_11 + x24_25_26_27;
        const Q t9 = x8_9_10_11 - x24_25_26_27;
        // real block of 2
        const Q t10 = t0 + t8;
        // real block of 2
        const Q t11 = t4 + t5;
        // real block of 2
        const Q t12 = t10 - t11;
        // real block of 2
        const Q t13 = t0 - t8;
        // real block of 2
        const Q t14 = t4 - t5;
        const P t15 = part<1>(t14);
        const P t16 = shuffled<0, 0>(t15);
        const P t17 = flipped<1, 0>(t16);
        const P t18 = part<1>(t13);
        const P t19 = shuffled<0, 0>(t18);
        // real block of 32
        const P t20 = t17 + t19;
        // skew block of 4
        const Q t21 = c[0] * t6;
        const Q t22 = t1 + t21;
        const Q t23 = t1 - t21;
        const Q t24 = c[0] * t7;
        const Q t25 = t24 - t9;
        const Q t26 = t9 + t24;
        // real block of 2
        const Q t27 = t10 + t11;
        const P t28 = part<0>(t27);
        const P t29 = part<1>(t27);
        // real block of 2
        const P t30 = t28 + t29;
        const P t31 = t28 - t29;
        io.pair(8, negated<0, 1>(t31));
        const V t32 = part<0>(t30);
        const V t33 = part<1>(t30);
        // real block of 2
        const V t34 = t32 + t33;
        io.re(0, t34);
        const V t35 = t32 - t33;
        io.re(16, t35);
        const Q t36 = shuffled<1, 5, 3, 7>(t13, t14);
        const Q t37 = shuffled<1, 5, 3, 7>(t13, t14);
        const Q t38 = shuffled<2, 3, 4, 5>(t36, t37);
        // real block of 32
        const Q t39 = Q(c[1], c[1], c[2], c[2]) * t38;
        const Q t40 = shuffled<1, 0, 3, 2>(t38);
        const Q t41 = Q(-c[2], c[2], -c[1], c[1]) * t40;
        const Q t42 = t39 + t41;
        const Q t43 = shuffled<0, 4, 2, 6>(t13, t14);
        const Q t44 = shuffled<0, 1, 6, 7>(t43, t42);
        const P t45 = c[0] * t20;
        const P t46 = part<0>(t42);
        const Q t47 = joined(t45, t46);
        // complex block of 2
        const Q t48 = t44 + t47;
        const Q t49 = shuffled<0, 5, 2, 7>(t44, t47);
        const Q t50 = shuffled<0, 5, 2, 7>(t47, t44);
        const Q t51 = t49 - t50;
        const Q t52 = shuffled<0, 1, 4, 5>(t48, t51);
        const Q t53 = shuffled<1, 0, 3, 2>(t51);
        const Q t54 = shuffled<2, 3, 6, 7>(t48, t53);
        const Q t55 = flipped<0, 0, 0, 1>(t54);
        // complex block of 2
        const Q t56 = t52 + t55;
        io.pairs(2, 10, negated<0, 1, 0, 0>(t56));
        const Q t57 = flipped<0, 1, 0, 0>(t52);
        const Q t58 = flipped<1, 0, 1, 1>(t55);
        const Q t59 = t57 + t58;
        io.pairs(14, 6, negated<0, 1, 0, 1>(t59));
        const Q t60 = shuffled<1, 5, 3, 7>(t22, t26);
        const Q t61 = shuffled<1, 5, 3, 7>(t23, t25);
        const Q t62 = shuffled<0, 1, 4, 5>(t60, t61);
        // real block of 32
        const Q t63 = Q(c[3], c[3], c[4], c[4]) * t62;
        const Q t64 = shuffled<1, 0, 3, 2>(t62);
        const Q t65 = Q(-c[5], c[5], -c[6], c[6]) * t64;
        const Q t66 = t63 + t65;
        const Q t67 = shuffled<0, 4, 2, 6>(t22, t26);
        const Q t68 = shuffled<0, 4, 2, 6>(t23, t25);
        const Q t69 = shuffled<2, 3, 6, 7>(t67, t68);
        const Q t70 = Q(c[2], c[2], c[1], c[1]) * t69;
        const Q t71 = shuffled<1, 0, 3, 2>(t69);
        const Q t72 = Q(-c[1], c[1], -c[2], c[2]) * t71;
        const Q t73 = t70 + t72;
        const Q t74 = shuffled<2, 3, 6, 7>(t60, t61);
        const Q t75 = Q(c[4], c[4], c[5], c[5]) * t74;
        const Q t76 = shuffled<1, 0, 3, 2>(t74);
        const Q t77 = Q(-c[6], c[6], c[3], -c[3]) * t76;
        const Q t78 = t75 + t77;
        const Q t79 = shuffled<0, 1, 4, 5>(t67, t68);
        // complex block of 2
        const Q t80 = t79 + t73;
        const Q t81 = flipped<0, 0, 1, 0>(t78);
        const Q t82 = flipped<0, 0, 0, 1>(t66);
        // complex block of 2
        const Q t83 = t81 + t82;
        const Q t84 = flipped<0, 0, 0, 1>(t80);
        // complex block of 2
        const Q t85 = t83 + t84;
        io.pairs(1, 3, negated<0, 1, 0, 0>(t85));
        const Q t86 = shuffled<0, 5, 2, 7>(t84, t83);
        const Q t87 = shuffled<0, 5, 2, 7>(t83, t84);
        const Q t88 = t86 - t87;
        io.pairs(15, 13, negated<0, 1, 0, 0>(t88));
        const Q t89 = shuffled<0, 5, 2, 7>(t79, t73);
        const Q t90 = shuffled<0, 5, 2, 7>(t73, t79);
        // complex block of 2
        const Q t91 = t89 - t90;
        const Q t92 = flipped<0, 1, 0, 1>(t82);
        const Q t93 = flipped<1, 0, 1, 0>(t81);
        // complex block of 2
        const Q t94 = t92 + t93;
        const Q t95 = shuffled<1, 0, 3, 2>(t94);
        const Q t96 = flipped<1, 0, 0, 0>(t95);
        // complex block of 2
        const Q t97 = t91 - t96;
        io.pairs(9, 11, t97);
        const Q t98 = t91 + t96;
        io.pairs(7, 5, negated<0, 1, 0, 1>(t98));
        const P t99 = part<0>(t12);
        const V t100 = part<1>(t99);
        const P t101 = part<1>(t12);
        const V t102 = part<1>(t101);
        // skew block of 4
        const V t103 = t100 - t102;
        const V t104 = part<0>(t99);
        const V t105 = c[0] * t103;
        const V t106 = t104 + t105;
        const V t107 = t104 - t105;
        const V t108 = t100 + t102;
        const V t109 = c[0] * t108;
        const V t110 = part<0>(t101);
        const V t111 = t109 - t110;
        const V t112 = flipped<1>(t111);
        const P t113 = joined(t107, t112);
        io.pair(12, t113);
        const V t114 = t110 + t109;
        const V t115 = flipped<1>(t114);
        const P t116 = joined(t106, t115);
        io.pair(4, t116);
    }
};

}  // namespace zulg
