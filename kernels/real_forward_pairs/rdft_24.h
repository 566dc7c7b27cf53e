// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 24.
// Forward DFT of 24 real points, prime-factor 3, 8; two lanes to a register.
// 30 sums, 26 differences, 12 products of registers, which do the 150 steps of the graph, those with
// `scale` included; 19 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<24> {
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
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x8_11 = io.in(8, 11);
        const P x16_19 = io.in(16, 19);
        // real block of 3, multiplier 2
        const P t0 = x8_11 + x16_19;
        const P t1 = x8_11 - x16_19;
        const P x0_3 = io.in(0, 3);
        const P t2 = t0 + x0_3;
        const P t3 = c[0] * t0;
        const P t4 = x0_3 - t3;
        const P x14_17 = io.in(14, 17);
        const P x22_1 = io.in(22, 1);
        // real block of 3, multiplier 2
        const P t5 = x14_17 + x22_1;
        const P t6 = x14_17 - x22_1;
        const P x6_9 = io.in(6, 9);
        const P t7 = t5 + x6_9;
        const P t8 = c[0] * t5;
        const P t9 = x6_9 - t8;
        const P x20_23 = io.in(20, 23);
        const P x4_7 = io.in(4, 7);
        // real block of 3, multiplier 2
        const P t10 = x20_23 + x4_7;
        const P t11 = x20_23 - x4_7;
        const P x12_15 = io.in(12, 15);
        const P t12 = t10 + x12_15;
        const P t13 = c[0] * t10;
        const P t14 = x12_15 - t13;
        const P x2_5 = io.in(2, 5);
        const P x10_13 = io.in(10, 13);
        // real block of 3, multiplier 2
        const P t15 = x2_5 + x10_13;
        const P t16 = x2_5 - x10_13;
        const P x18_21 = io.in(18, 21);
        const P t17 = t15 + x18_21;
        const P t18 = c[0] * t15;
        const P t19 = x18_21 - t18;
        // real block of 2
        const P t20 = t2 + t12;
        const P t21 = t2 - t12;
        // real block of 2
        const P t22 = t7 + t17;
        const P t23 = t7 - t17;
        // real block of 2
        const P t24 = t20 + t22;
        const P t25 = t20 - t22;
        io.pair(6, t25);
        const V t26 = part<0>(t24);
        const V t27 = part<1>(t24);
        // real block of 2
        const V t28 = t26 + t27;
        io.re(0, t28);
        const V t29 = t26 - t27;
        io.re(12, t29);
        const V t30 = part<1>(t21);
        const V t31 = part<1>(t23);
        // skew block of 4, multiplier 3
        const V t32 = t30 - t31;
        const V t33 = t30 + t31;
        const V t34 = part<0>(t23);
        const V t35 = c[2] * t33;
        const V t36 = t34 - t35;
        const V t37 = part<0>(t21);
        const V t38 = c[2] * t32;
        const V t39 = t37 + t38;
        const V t40 = t34 + t35;
        const V t41 = flipped<1>(t40);
        const P t42 = joined(t39, t41);
        io.pair(9, t42);
        const V t43 = t37 - t38;
        const P t44 = joined(t43, t36);
        io.pair(3, t44);
        // real block of 3, multiplier 2
        const P t45 = c[1] * t1;
        const P t46 = shuffled<0, 2>(t4, t45);
        // real block of 3, multiplier 2
        const P t47 = c[1] * t11;
        const P t48 = shuffled<0, 2>(t14, t47);
        // complex block of 2
        const P t49 = t46 + t48;
        const P t50 = t46 - t48;
        const P t51 = shuffled<1, 3>(t4, t45);
        const P t52 = shuffled<1, 3>(t14, t47);
        // complex block of 2
        const P t53 = t51 + t52;
        const P t54 = t51 - t52;
        // real block of 3, multiplier 2
        const P t55 = c[1] * t6;
        const P t56 = shuffled<0, 2>(t9, t55);
        // real block of 3, multiplier 2
        const P t57 = c[1] * t16;
        const P t58 = shuffled<0, 2>(t19, t57);
        // complex block of 2
        const P t59 = t56 + t58;
        const P t60 = t56 - t58;
        const P t61 = shuffled<1, 3>(t9, t55);
        const P t62 = shuffled<1, 3>(t19, t57);
        // complex block of 2
        const P t63 = t61 + t62;
        const P t64 = t61 - t62;
        // complex block of 2
        const P t65 = t49 + t59;
        const P t66 = t49 - t59;
        // complex block of 2
        const P t67 = t53 + t63;
        const P t68 = t53 - t63;
        // complex block of 2
        const P t69 = t65 + t67;
        io.pair(8, t69);
        const P t70 = t65 - t67;
        io.pair(4, negated<0, 1>(t70));
        const P t71 = shuffled<1, 0>(t68);
        const P t72 = flipped<1, 0>(t71);
        // complex block of 2
        const P t73 = t66 + t72;
        io.pair(10, negated<0, 1>(t73));
        const P t74 = t66 - t72;
        io.pair(2, t74);
        // complex block of 8, multiplier 3
        const P t75 = c[2] * t54;
        const P t76 = shuffled<1, 0>(t75);
        const P t77 = flipped<0, 1>(t76);
        const P t78 = t75 + t77;
        const P t79 = c[2] * t64;
        const P t80 = shuffled<1, 0>(t79);
        const P t81 = flipped<0, 1>(t80);
        const P t82 = t79 + t81;
        const P t83 = shuffled<1, 0>(t60);
        const P t84 = flipped<1, 0>(t83);
        // complex block of 2
        const P t85 = t50 + t84;
        const P t86 = t50 - t84;
        const P t87 = shuffled<1, 0>(t78);
        const P t88 = flipped<0, 1>(t87);
        // complex block of 2
        const P t89 = t82 + t88;
        const P t90 = flipped<1, 0>(t82);
        const P t91 = t87 + t90;
        // complex block of 2
        const P t92 = t85 + t89;
        io.pair(11, t92);
        const P t93 = t85 - t89;
        io.pair(1, negated<0, 1>(t93));
        const P t94 = shuffled<1, 0>(t91);
        // complex block of 2
        const P t95 = t86 + t94;
        io.pair(7, negated<0, 1>(t95));
        const P t96 = t86 - t94;
        io.pair(5, t96);
    }
};

}  // namespace zulg
