// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 36.
// Forward DFT of 36 real points, prime-factor 9, 4; up to four lanes to a register.
// 26 sums, 26 differences, 20 products of registers, which do the 314 steps of the graph, those with
// `scale` included; 20 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<36> {
    static constexpr int steps = 314;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 4/9
        0.3420201433256687,  // c[3]: sin 2 pi 4/9
        0.766044443118978,  // c[4]: cos 2 pi 8/9
        0.6427876096865394,  // c[5]: -sin 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x12_21_30_3 = io.in(12, 21, 30, 3);
        const Q x24_33_6_15 = io.in(24, 33, 6, 15);
        // real block of 3
        const Q t0 = x12_21_30_3 + x24_33_6_15;
        const Q t1 = x12_21_30_3 - x24_33_6_15;
        const Q x0_9_18_27 = io.in(0, 9, 18, 27);
        const Q t2 = t0 + x0_9_18_27;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_9_18_27 - t3;
        const Q x16_25_34_7 = io.in(16, 25, 34, 7);
        const Q x28_1_10_19 = io.in(28, 1, 10, 19);
        // real block of 3
        const Q t5 = x16_25_34_7 + x28_1_10_19;
        const Q t6 = x16_25_34_7 - x28_1_10_19;
        const Q x20_29_2_11 = io.in(20, 29, 2, 11);
        const Q x32_5_14_23 = io.in(32, 5, 14, 23);
        // real block of 3
        const Q t7 = x20_29_2_11 + x32_5_14_23;
        const Q t8 = x20_29_2_11 - x32_5_14_23;
        const Q x4_13_22_31 = io.in(4, 13, 22, 31);
        // real block of 3
        const Q t9 = t5 + x4_13_22_31;
        const Q x8_17_26_35 = io.in(8, 17, 26, 35);
        // real block of 3
        const Q t10 = t7 + x8_17_26_35;
        // real block of 3
        const Q t11 = t9 + t10;
        const Q t12 = t9 - t10;
        // real block of 3
        const Q t13 = c[0] * t5;
        const Q t14 = x4_13_22_31 - t13;
        // real block of 9, multiplier 4
        const Q t15 = c[2] * t14;
        // real block of 3
        const Q t16 = c[1] * t6;
        // real block of 9, multiplier 4
        const Q t17 = c[3] * t16;
        const Q t18 = t15 + t17;
        const Q t19 = c[2] * t16;
        const Q t20 = c[3] * t14;
        const Q t21 = t19 - t20;
        // real block of 3
        const Q t22 = c[0] * t7;
        const Q t23 = x8_17_26_35 - t22;
        // real block of 9, multiplier 4
        const Q t24 = c[4] * t23;
        // real block of 3
        const Q t25 = c[1] * t8;
        // real block of 9, multiplier 4
        const Q t26 = c[5] * t25;
        const Q t27 = t24 + t26;
        const Q t28 = c[5] * t23;
        const Q t29 = c[4] * t25;
        const Q t30 = t28 - t29;
        // real block of 3
        const Q t31 = t11 + t2;
        const P t32 = part<0>(t31);
        const P t33 = part<1>(t31);
        // real block of 2
        const P t34 = t32 + t33;
        const P t35 = t32 - t33;
        io.pair(9, negated<0, 1>(t35));
        const V t36 = part<0>(t34);
        const V t37 = part<1>(t34);
        // real block of 2
        const V t38 = t36 + t37;
        io.re(0, t38);
        const V t39 = t36 - t37;
        io.re(18, t39);
        // real block of 3
        const Q t40 = c[0] * t11;
        const Q t41 = t2 - t40;
        // complex block of 3
        const Q t42 = t27 - t18;
        const Q t43 = t42 + t4;
        const Q t44 = c[0] * t42;
        const Q t45 = t4 - t44;
        const Q t46 = t21 + t30;
        // real block of 3
        const Q t47 = c[1] * t1;
        // complex block of 3
        const Q t48 = t46 - t47;
        const Q t49 = c[0] * t46;
        const Q t50 = t47 + t49;
        const Q t51 = t18 + t27;
        const Q t52 = t21 - t30;
        const Q t53 = c[1] * t52;
        const Q t54 = t45 + t53;
        const Q t55 = c[1] * t51;
        const Q t56 = t55 - t50;
        // real block of 3
        const Q t57 = c[1] * t12;
        const Q t58 = shuffled<0, 4, 2, 6>(t41, t57);
        const Q t59 = shuffled<0, 4, 2, 6>(t54, t56);
        const Q t60 = shuffled<0, 1, 4, 5>(t58, t59);
        const Q t61 = shuffled<2, 3, 6, 7>(t58, t59);
        // complex block of 2
        const Q t62 = t60 + t61;
        const Q t63 = flipped<0, 1, 0, 0>(t60);
        const Q t64 = flipped<0, 1, 0, 0>(t61);
        const Q t65 = t63 - t64;
        const Q t66 = shuffled<1, 5, 3, 7>(t41, t57);
        const Q t67 = shuffled<1, 5, 3, 7>(t54, t56);
        const Q t68 = shuffled<0, 1, 4, 5>(t66, t67);
        const Q t69 = shuffled<2, 3, 6, 7>(t66, t67);
        // complex block of 2
        const Q t70 = t68 + t69;
        const Q t71 = flipped<0, 1, 0, 0>(t68);
        const Q t72 = flipped<0, 1, 0, 0>(t69);
        const Q t73 = t71 - t72;
        // complex block of 2
        const Q t74 = t62 + t70;
        io.pairs(12, 16, negated<0, 1, 0, 0>(t74));
        const Q t75 = flipped<0, 1, 0, 0>(t62);
        const Q t76 = flipped<0, 1, 0, 0>(t70);
        const Q t77 = t75 - t76;
        io.pairs(6, 2, negated<0, 1, 0, 1>(t77));
        const Q t78 = shuffled<1, 0, 3, 2>(t73);
        const Q t79 = flipped<0, 1, 0, 1>(t78);
        // complex block of 2
        const Q t80 = t65 + t79;
        io.pairs(15, 11, negated<0, 1, 0, 1>(t80));
        const Q t81 = t65 - t79;
        io.pairs(3, 7, t81);
        // complex block of 3
        const Q t82 = t45 - t53;
        const Q t83 = t50 + t55;
        const Q t84 = shuffled<0, 4, 2, 6>(t43, t48);
        const Q t85 = shuffled<0, 4, 2, 6>(t82, t83);
        const Q t86 = shuffled<0, 1, 4, 5>(t84, t85);
        const Q t87 = shuffled<2, 3, 6, 7>(t84, t85);
        // complex block of 2
        const Q t88 = t86 + t87;
        const Q t89 = t86 - t87;
        const Q t90 = shuffled<1, 5, 3, 7>(t43, t48);
        const Q t91 = shuffled<1, 5, 3, 7>(t82, t83);
        const Q t92 = shuffled<0, 1, 4, 5>(t90, t91);
        const Q t93 = shuffled<2, 3, 6, 7>(t90, t91);
        // complex block of 2
        const Q t94 = t92 + t93;
        const Q t95 = t92 - t93;
        // complex block of 2
        const Q t96 = t88 + t94;
        io.pairs(4, 8, t96);
        const Q t97 = t88 - t94;
        io.pairs(14, 10, negated<0, 1, 0, 1>(t97));
        const Q t98 = shuffled<1, 0, 3, 2>(t95);
        const Q t99 = flipped<0, 1, 0, 1>(t98);
        // complex block of 2
        const Q t100 = t89 + t99;
        io.pairs(13, 17, t100);
        const Q t101 = t89 - t99;
        io.pairs(5, 1, negated<0, 1, 0, 1>(t101));
    }
};

}  // namespace zulg
