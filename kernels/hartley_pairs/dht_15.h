// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 15.
// Hartley transform of 15 points, form I; two lanes to a register.
// 27 sums, 21 differences, 22 products of registers, which do the 127 steps of the graph, those with
// `scale` included; 17 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<15> {
    static constexpr int steps = 127;  // with `scale`
    static constexpr double inverseRoot = 0.2581988897471611;  // 1/sqrt(15), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x14_13 = io.in(14, 13);
        // input stage
        const P t0 = x1_2 + x14_13;
        const P t1 = x1_2 - x14_13;
        const P x3_4 = io.in(3, 4);
        const P x12_11 = io.in(12, 11);
        const P t2 = x3_4 + x12_11;
        const P t3 = x3_4 - x12_11;
        const P x5_6 = io.in(5, 6);
        const P x10_9 = io.in(10, 9);
        const P t4 = x5_6 + x10_9;
        const P t5 = x5_6 - x10_9;
        const V x7 = io.in(7);
        const V x8 = io.in(8);
        const V t6 = x7 + x8;
        const V t7 = x7 - x8;
        const V t8 = part<0>(t4);
        const V x0 = io.in(0);
        // spectrum block of 3, multiplier 2
        const V t9 = t8 + x0;
        const V t10 = c[4] * t8;
        const V t11 = x0 - t10;
        const V t12 = part<0>(t5);
        const V t13 = c[5] * t12;
        const V t14 = t11 - t13;
        const V t15 = t11 + t13;
        const P t16 = joined(t6, t7);
        const P t17 = shuffled<1, 3>(t0, t1);
        // complex block of 3, multiplier 2
        const P t18 = t16 + t17;
        const P t19 = shuffled<0, 3>(t16, t17);
        const P t20 = shuffled<0, 3>(t17, t16);
        const P t21 = t19 - t20;
        const P t22 = shuffled<0, 2>(t2, t3);
        const P t23 = flipped<0, 1>(t18);
        const P t24 = t22 + t23;
        const P t25 = P(-c[4], c[4]) * t18;
        const P t26 = t25 + t22;
        const P t27 = P(c[5], -c[5]) * t21;
        const P t28 = shuffled<1, 0>(t27);
        const P t29 = t26 + t28;
        const P t30 = t26 - t28;
        const P t31 = shuffled<1, 2>(t2, t1);
        const P t32 = shuffled<0, 3>(t0, t3);
        const P t33 = flipped<0, 1>(t32);
        // complex block of 3, multiplier 2
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P t36 = shuffled<1, 3>(t4, t5);
        const P t37 = t34 + t36;
        const P t38 = c[4] * t34;
        const P t39 = t36 - t38;
        const P t40 = c[5] * t35;
        const P t41 = shuffled<1, 0>(t40);
        const P t42 = t39 + t41;
        const P t43 = t39 - t41;
        const P t44 = shuffled<0, 2>(t24, t30);
        const P t45 = shuffled<0, 2>(t37, t43);
        // spectrum block of 5, multiplier 3
        const P t46 = t44 + t45;
        const P t47 = joined(t9, t15);
        const P t48 = t46 + t47;
        io.out(0, 10, t48);
        const P t49 = c[0] * t44;
        const P t50 = c[1] * t45;
        const P t51 = t49 - t50;
        const P t52 = t51 + t47;
        const P t53 = shuffled<1, 3>(t24, t30);
        const P t54 = c[2] * t53;
        const P t55 = shuffled<1, 3>(t37, t43);
        const P t56 = c[3] * t55;
        const P t57 = t54 + t56;
        const P t58 = t52 - t57;
        io.out(9, 4, t58);
        const P t59 = t52 + t57;
        io.out(6, 1, t59);
        const P t60 = c[1] * t44;
        const P t61 = t47 - t60;
        const P t62 = c[0] * t45;
        const P t63 = t61 + t62;
        const P t64 = c[3] * t53;
        const P t65 = c[2] * t55;
        const P t66 = t64 - t65;
        const P t67 = t63 - t66;
        io.out(3, 13, t67);
        const P t68 = t63 + t66;
        io.out(12, 7, t68);
        const V t69 = part<0>(t29);
        const V t70 = part<0>(t42);
        // spectrum block of 5, multiplier 3
        const V t71 = t69 + t70;
        const V t72 = t71 + t14;
        io.out(5, t72);
        const V t73 = c[0] * t69;
        const V t74 = c[1] * t70;
        const V t75 = t73 - t74;
        const V t76 = t75 + t14;
        const V t77 = part<1>(t29);
        const V t78 = c[2] * t77;
        const V t79 = part<1>(t42);
        const V t80 = c[3] * t79;
        const V t81 = t78 + t80;
        const V t82 = t76 - t81;
        io.out(14, t82);
        const V t83 = t76 + t81;
        io.out(11, t83);
        const V t84 = c[1] * t69;
        const V t85 = t14 - t84;
        const V t86 = c[0] * t70;
        const V t87 = t85 + t86;
        const V t88 = c[3] * t77;
        const V t89 = c[2] * t79;
        const V t90 = t88 - t89;
        const V t91 = t87 - t90;
        io.out(8, t91);
        const V t92 = t87 + t90;
        io.out(2, t92);
    }
};

}  // namespace zulg
