// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 16.
// Hartley transform of 16 points, form F; two lanes to a register.
// 22 sums, 19 differences, 7 products of registers, which do the 100 steps of the graph, those with
// `scale` included; 22 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<16> {
    static constexpr int steps = 100;  // with `scale`
    static constexpr double inverseRoot = 0.25;  // 1/sqrt(16), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x0_1 = io.in(0, 1);
        const P x8_9 = io.in(8, 9);
        // real block of 2
        const P t0 = x0_1 + x8_9;
        const P t1 = x0_1 - x8_9;
        const P x4_5 = io.in(4, 5);
        const P x12_13 = io.in(12, 13);
        // real block of 2
        const P t2 = x4_5 + x12_13;
        const P t3 = x4_5 - x12_13;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x2_3 = io.in(2, 3);
        const P x10_11 = io.in(10, 11);
        // real block of 2
        const P t6 = x2_3 + x10_11;
        const P t7 = x2_3 - x10_11;
        const P x6_7 = io.in(6, 7);
        const P x14_15 = io.in(14, 15);
        // real block of 2
        const P t8 = x6_7 + x14_15;
        const P t9 = x6_7 - x14_15;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        // real block of 2
        const P t12 = t4 + t10;
        const P t13 = t4 - t10;
        const P t14 = shuffled<1, 3>(t1, t3);
        // real block of 16
        const P t15 = c[0] * t14;
        const P t16 = shuffled<1, 0>(t14);
        const P t17 = P(-c[1], c[1]) * t16;
        const P t18 = t15 + t17;
        const P t19 = shuffled<0, 2>(t7, t9);
        const P t20 = shuffled<1, 0>(t19);
        const P t21 = flipped<1, 0>(t20);
        const P t22 = t19 + t21;
        const P t23 = shuffled<1, 3>(t7, t9);
        const P t24 = c[1] * t23;
        const P t25 = shuffled<1, 0>(t23);
        const P t26 = P(-c[0], c[0]) * t25;
        const P t27 = t24 + t26;
        const P t28 = shuffled<0, 2>(t1, t3);
        const P t29 = c[2] * t22;
        // complex block of 2
        const P t30 = t28 + t29;
        const P t31 = shuffled<0, 3>(t28, t29);
        const P t32 = shuffled<0, 3>(t29, t28);
        const P t33 = t31 - t32;
        // complex block of 2
        const P t34 = t18 + t27;
        const P t35 = shuffled<0, 3>(t18, t27);
        const P t36 = shuffled<0, 3>(t27, t18);
        const P t37 = t35 - t36;
        // complex block of 2
        const P t38 = t30 + t34;
        const P t39 = shuffled<0, 3>(t30, t34);
        const P t40 = shuffled<0, 3>(t34, t30);
        const P t41 = t39 - t40;
        const P t42 = shuffled<1, 0>(t37);
        const P t43 = flipped<0, 1>(t42);
        // complex block of 2
        const P t44 = t33 + t43;
        const P t45 = t33 - t43;
        const V t46 = part<1>(t5);
        const V t47 = part<1>(t11);
        // skew block of 4
        const V t48 = t46 - t47;
        const V t49 = t46 + t47;
        const V t50 = c[2] * t49;
        const V t51 = part<0>(t11);
        const V t52 = t50 - t51;
        const V t53 = part<0>(t5);
        const V t54 = c[2] * t48;
        const V t55 = t53 + t54;
        const V t56 = t51 + t50;
        const V t57 = t53 - t54;
        // output stage
        const V t58 = t55 + t56;
        io.out(2, t58);
        const V t59 = t55 - t56;
        io.out(14, t59);
        const P t60 = shuffled<0, 2>(t12, t13);
        const P t61 = shuffled<1, 3>(t12, t13);
        // real block of 2
        const P t62 = t60 + t61;
        io.out(0, 4, t62);
        const P t63 = t60 - t61;
        io.out(8, 12, t63);
        const P t64 = shuffled<0, 2>(t44, t45);
        const P t65 = shuffled<1, 3>(t44, t45);
        // output stage
        const P t66 = t64 - t65;
        io.out(5, 13, t66);
        const P t67 = t64 + t65;
        io.out(11, 3, t67);
        const V t68 = t57 + t52;
        io.out(6, t68);
        const V t69 = t57 - t52;
        io.out(10, t69);
        const P t70 = shuffled<0, 2>(t38, t41);
        const P t71 = shuffled<1, 3>(t38, t41);
        const P t72 = t70 + t71;
        io.out(1, 7, t72);
        const P t73 = t70 - t71;
        io.out(15, 9, t73);
    }
};

}  // namespace zulg
