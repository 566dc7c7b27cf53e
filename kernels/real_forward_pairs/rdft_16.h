// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 16.
// Forward DFT of 16 real points, twiddled 4, 4; two lanes to a register.
// 18 sums, 15 differences, 7 products of registers, which do the 86 steps of the graph, those with
// `scale` included; 19 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<16> {
    static constexpr int steps = 86;  // with `scale`
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
        const ConstantsOf<Ports, RealForwardPairs> c{};
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
        io.pair(4, negated<0, 1>(t13));
        const V t14 = part<0>(t12);
        const V t15 = part<1>(t12);
        // real block of 2
        const V t16 = t14 + t15;
        io.re(0, t16);
        const V t17 = t14 - t15;
        io.re(8, t17);
        const P t18 = shuffled<1, 3>(t1, t3);
        // real block of 16
        const P t19 = c[0] * t18;
        const P t20 = shuffled<1, 0>(t18);
        const P t21 = P(-c[1], c[1]) * t20;
        const P t22 = t19 + t21;
        const P t23 = shuffled<0, 2>(t7, t9);
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = flipped<1, 0>(t24);
        const P t26 = t23 + t25;
        const P t27 = shuffled<1, 3>(t7, t9);
        const P t28 = c[1] * t27;
        const P t29 = shuffled<1, 0>(t27);
        const P t30 = P(-c[0], c[0]) * t29;
        const P t31 = t28 + t30;
        const P t32 = shuffled<0, 2>(t1, t3);
        const P t33 = c[2] * t26;
        // complex block of 2
        const P t34 = t32 + t33;
        const P t35 = shuffled<0, 3>(t32, t33);
        const P t36 = shuffled<0, 3>(t33, t32);
        const P t37 = t35 - t36;
        // complex block of 2
        const P t38 = t22 + t31;
        const P t39 = shuffled<0, 3>(t22, t31);
        const P t40 = shuffled<0, 3>(t31, t22);
        const P t41 = t39 - t40;
        // complex block of 2
        const P t42 = t34 + t38;
        io.pair(1, negated<0, 1>(t42));
        const P t43 = shuffled<0, 3>(t34, t38);
        const P t44 = shuffled<0, 3>(t38, t34);
        const P t45 = t43 - t44;
        io.pair(7, negated<0, 1>(t45));
        const P t46 = shuffled<1, 0>(t41);
        const P t47 = flipped<0, 1>(t46);
        // complex block of 2
        const P t48 = t37 + t47;
        io.pair(5, t48);
        const P t49 = t37 - t47;
        io.pair(3, negated<0, 1>(t49));
        const V t50 = part<1>(t5);
        const V t51 = part<1>(t11);
        // skew block of 4
        const V t52 = t50 - t51;
        const V t53 = t50 + t51;
        const V t54 = c[2] * t53;
        const V t55 = part<0>(t11);
        const V t56 = t54 - t55;
        const V t57 = part<0>(t5);
        const V t58 = c[2] * t52;
        const V t59 = t57 + t58;
        const V t60 = t55 + t54;
        const V t61 = flipped<1>(t60);
        const P t62 = joined(t59, t61);
        io.pair(2, t62);
        const V t63 = t57 - t58;
        const V t64 = flipped<1>(t56);
        const P t65 = joined(t63, t64);
        io.pair(6, t65);
    }
};

}  // namespace zulg
