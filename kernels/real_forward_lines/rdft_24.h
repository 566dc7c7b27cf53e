// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 24.
// Forward DFT of 24 real points, prime-factor 3, 8; up to four lanes to a register.
// 18 sums, 15 differences, 7 products of registers, which do the 150 steps of the graph, those with
// `scale` included; 24 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<24> {
    static constexpr int steps = 150;  // with `scale`
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x8_11_14_17 = io.in(8, 11, 14, 17);
        const Q x16_19_22_1 = io.in(16, 19, 22, 1);
        // real block of 3, multiplier 2
        const Q t0 = x8_11_14_17 + x16_19_22_1;
        const Q t1 = x8_11_14_17 - x16_19_22_1;
        const Q x20_23_2_5 = io.in(20, 23, 2, 5);
        const Q x4_7_10_13 = io.in(4, 7, 10, 13);
        // real block of 3, multiplier 2
        const Q t2 = x20_23_2_5 + x4_7_10_13;
        const Q t3 = x20_23_2_5 - x4_7_10_13;
        const Q x0_3_6_9 = io.in(0, 3, 6, 9);
        // real block of 3, multiplier 2
        const Q t4 = t0 + x0_3_6_9;
        const Q x12_15_18_21 = io.in(12, 15, 18, 21);
        // real block of 3, multiplier 2
        const Q t5 = t2 + x12_15_18_21;
        // real block of 2
        const Q t6 = t4 - t5;
        // real block of 3, multiplier 2
        const Q t7 = c[0] * t0;
        const Q t8 = x0_3_6_9 - t7;
        // real block of 3, multiplier 2
        const Q t9 = c[0] * t2;
        const Q t10 = x12_15_18_21 - t9;
        // real block of 3, multiplier 2
        const Q t11 = c[1] * t1;
        const Q t12 = shuffled<0, 4, 2, 6>(t8, t11);
        const Q t13 = shuffled<1, 5, 3, 7>(t8, t11);
        const Q t14 = shuffled<0, 1, 4, 5>(t12, t13);
        // real block of 3, multiplier 2
        const Q t15 = c[1] * t3;
        const Q t16 = shuffled<0, 4, 2, 6>(t10, t15);
        const Q t17 = shuffled<1, 5, 3, 7>(t10, t15);
        const Q t18 = shuffled<0, 1, 4, 5>(t16, t17);
        // complex block of 2
        const Q t19 = t14 - t18;
        const Q t20 = shuffled<2, 3, 6, 7>(t12, t13);
        const Q t21 = shuffled<2, 3, 6, 7>(t16, t17);
        // complex block of 2
        const Q t22 = t20 - t21;
        // real block of 2
        const Q t23 = t4 + t5;
        const P t24 = part<0>(t23);
        const P t25 = part<1>(t23);
        // real block of 2
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        io.pair(6, t27);
        const V t28 = part<0>(t26);
        const V t29 = part<1>(t26);
        // real block of 2
        const V t30 = t28 + t29;
        io.re(0, t30);
        const V t31 = t28 - t29;
        io.re(12, t31);
        const P t32 = part<0>(t6);
        const V t33 = part<1>(t32);
        const P t34 = part<1>(t6);
        const V t35 = part<1>(t34);
        // skew block of 4, multiplier 3
        const V t36 = t33 - t35;
        const V t37 = part<0>(t32);
        const V t38 = c[2] * t36;
        const V t39 = t37 + t38;
        const V t40 = t37 - t38;
        const V t41 = t33 + t35;
        const V t42 = part<0>(t34);
        const V t43 = c[2] * t41;
        const V t44 = t42 - t43;
        const P t45 = joined(t40, t44);
        io.pair(3, t45);
        const V t46 = t42 + t43;
        const V t47 = flipped<1>(t46);
        const P t48 = joined(t39, t47);
        io.pair(9, t48);
        // complex block of 2
        const Q t49 = t14 + t18;
        // complex block of 2
        const Q t50 = t20 + t21;
        const Q t51 = shuffled<0, 1, 4, 5>(t49, t19);
        const Q t52 = shuffled<1, 0, 3, 2>(t22);
        const Q t53 = shuffled<0, 1, 4, 5>(t50, t52);
        const Q t54 = flipped<0, 0, 1, 0>(t53);
        // complex block of 2
        const Q t55 = t51 + t54;
        const Q t56 = t51 - t54;
        const Q t57 = shuffled<2, 3, 6, 7>(t22, t19);
        // complex block of 8, multiplier 3
        const Q t58 = c[2] * t57;
        const Q t59 = shuffled<1, 0, 3, 2>(t58);
        const Q t60 = flipped<0, 1, 0, 1>(t59);
        const Q t61 = t58 + t60;
        const Q t62 = shuffled<2, 3, 4, 5>(t49, t61);
        const Q t63 = shuffled<1, 0, 3, 2>(t61);
        const Q t64 = shuffled<2, 3, 6, 7>(t50, t63);
        const Q t65 = flipped<0, 0, 0, 1>(t64);
        // complex block of 2
        const Q t66 = t62 + t65;
        // complex block of 2
        const Q t67 = t55 + t66;
        io.pairs(8, 11, t67);
        const Q t68 = t55 - t66;
        io.pairs(4, 1, negated<0, 1, 0, 1>(t68));
        const Q t69 = flipped<1, 1, 0, 1>(t65);
        const Q t70 = flipped<0, 0, 1, 0>(t62);
        // complex block of 2
        const Q t71 = t69 + t70;
        const Q t72 = shuffled<1, 0, 3, 2>(t71);
        const Q t73 = flipped<1, 0, 0, 0>(t72);
        // complex block of 2
        const Q t74 = t56 + t73;
        io.pairs(10, 7, negated<0, 1, 0, 1>(t74));
        const Q t75 = t56 - t73;
        io.pairs(2, 5, t75);
    }
};

}  // namespace zulg
