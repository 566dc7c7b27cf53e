// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 20.
// Hartley transform of 20 points, form I; two lanes to a register.
// 31 sums, 23 differences, 16 products of registers, which do the 156 steps of the graph, those with
// `scale` included; 23 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<20> {
    static constexpr int steps = 156;  // with `scale`
    static constexpr double inverseRoot = 0.22360679774997896;  // 1/sqrt(20), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x19_18 = io.in(19, 18);
        // input stage
        const P t0 = x1_2 + x19_18;
        const P t1 = x1_2 - x19_18;
        const P x3_4 = io.in(3, 4);
        const P x17_16 = io.in(17, 16);
        const P t2 = x3_4 + x17_16;
        const P t3 = x3_4 - x17_16;
        const P x5_6 = io.in(5, 6);
        const P x15_14 = io.in(15, 14);
        const P t4 = x5_6 + x15_14;
        const P t5 = x5_6 - x15_14;
        const P x7_8 = io.in(7, 8);
        const P x13_12 = io.in(13, 12);
        const P t6 = x7_8 + x13_12;
        const P t7 = x7_8 - x13_12;
        const V x9 = io.in(9);
        const V x11 = io.in(11);
        const V t8 = x9 + x11;
        const V t9 = x9 - x11;
        const P t10 = joined(t8, t9);
        const P t11 = shuffled<0, 2>(t0, t1);
        // complex block of 5, multiplier 4
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        const P t14 = shuffled<0, 2>(t2, t3);
        const P t15 = shuffled<0, 2>(t6, t7);
        const P t16 = t14 + t15;
        const P t17 = shuffled<0, 3>(t14, t15);
        const P t18 = shuffled<0, 3>(t15, t14);
        const P t19 = t17 - t18;
        const P t20 = flipped<0, 1>(t16);
        const P t21 = t12 + t20;
        const P t22 = shuffled<0, 2>(t4, t5);
        const P t23 = t21 + t22;
        const P t24 = c[0] * t12;
        const P t25 = P(-c[1], c[1]) * t16;
        const P t26 = t24 + t25;
        const P t27 = t26 + t22;
        const P t28 = c[2] * t13;
        const P t29 = c[3] * t19;
        const P t30 = t28 - t29;
        const P t31 = shuffled<1, 0>(t30);
        const P t32 = flipped<1, 0>(t31);
        const P t33 = t27 + t32;
        const P t34 = t27 - t32;
        const P t35 = c[1] * t12;
        const P t36 = t22 - t35;
        const P t37 = P(c[0], -c[0]) * t16;
        const P t38 = t36 + t37;
        const P t39 = c[3] * t13;
        const P t40 = c[2] * t19;
        const P t41 = t39 + t40;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = flipped<1, 0>(t42);
        const P t44 = t38 + t43;
        const P t45 = t38 - t43;
        const P t46 = shuffled<1, 3>(t2, t4);
        const P t47 = shuffled<1, 3>(t6, t0);
        // spectrum block of 5, multiplier 4
        const P t48 = t46 + t47;
        const P x0_10 = io.in(0, 10);
        const P t49 = t48 + x0_10;
        const P t50 = c[0] * t46;
        const P t51 = c[1] * t47;
        const P t52 = t50 - t51;
        const P t53 = t52 + x0_10;
        const P t54 = shuffled<1, 3>(t3, t5);
        const P t55 = c[2] * t54;
        const P t56 = shuffled<1, 3>(t7, t1);
        const P t57 = c[3] * t56;
        const P t58 = t55 + t57;
        const P t59 = flipped<1, 0>(t58);
        const P t60 = t53 + t59;
        const P t61 = t53 - t59;
        const P t62 = c[1] * t46;
        const P t63 = x0_10 - t62;
        const P t64 = c[0] * t47;
        const P t65 = t63 + t64;
        const P t66 = P(-c[2], c[2]) * t56;
        const P t67 = P(c[3], -c[3]) * t54;
        const P t68 = t66 + t67;
        const P t69 = t65 - t68;
        const P t70 = t65 + t68;
        const P t71 = shuffled<0, 2>(t49, t61);
        const P t72 = shuffled<1, 3>(t49, t61);
        // spectrum block of 2
        const P t73 = t71 + t72;
        const P t74 = t71 - t72;
        const P t75 = shuffled<0, 2>(t23, t34);
        // spectrum block of 2
        const P t76 = t73 + t75;
        io.out(0, 16, t76);
        const P t77 = t73 - t75;
        io.out(10, 6, t77);
        const P t78 = shuffled<1, 3>(t23, t34);
        // spectrum block of 2
        const P t79 = t74 - t78;
        io.out(15, 11, t79);
        const P t80 = t74 + t78;
        io.out(5, 1, t80);
        const P t81 = shuffled<0, 2>(t70, t69);
        const P t82 = shuffled<1, 3>(t70, t69);
        // spectrum block of 2
        const P t83 = t81 + t82;
        const P t84 = t81 - t82;
        const P t85 = shuffled<0, 2>(t45, t44);
        // spectrum block of 2
        const P t86 = t83 + t85;
        io.out(12, 8, t86);
        const P t87 = t83 - t85;
        io.out(2, 18, t87);
        const P t88 = shuffled<1, 3>(t45, t44);
        // spectrum block of 2
        const P t89 = t84 - t88;
        io.out(7, 3, t89);
        const P t90 = t84 + t88;
        io.out(17, 13, t90);
        const V t91 = part<0>(t60);
        const V t92 = part<1>(t60);
        // spectrum block of 2
        const V t93 = t91 + t92;
        const V t94 = t91 - t92;
        const P t95 = joined(t93, t94);
        const P t96 = flipped<0, 1>(t33);
        // spectrum block of 2
        const P t97 = t95 + t96;
        io.out(4, 19, t97);
        const P t98 = t95 - t96;
        io.out(14, 9, t98);
    }
};

}  // namespace zulg
