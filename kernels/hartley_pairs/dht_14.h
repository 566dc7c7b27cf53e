// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 14.
// Hartley transform of 14 points, form I; two lanes to a register.
// 19 sums, 19 differences, 18 products of registers, which do the 124 steps of the graph, those with
// `scale` included; 13 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<14> {
    static constexpr int steps = 124;  // with `scale`
    static constexpr double inverseRoot = 0.2672612419124244;  // 1/sqrt(14), for `scale`
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
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x13_12 = io.in(13, 12);
        // input stage
        const P t0 = x1_2 + x13_12;
        const P t1 = x1_2 - x13_12;
        const P x3_4 = io.in(3, 4);
        const P x11_10 = io.in(11, 10);
        const P t2 = x3_4 + x11_10;
        const P t3 = x3_4 - x11_10;
        const P x5_6 = io.in(5, 6);
        const P x9_8 = io.in(9, 8);
        const P t4 = x5_6 + x9_8;
        const P t5 = x5_6 - x9_8;
        const V x0 = io.in(0);
        const V x7 = io.in(7);
        // spectrum block of 2
        const V t6 = x0 + x7;
        const V t7 = x0 - x7;
        const P t8 = shuffled<1, 3>(t0, t1);
        const P t9 = shuffled<0, 2>(t4, t5);
        const P t10 = flipped<0, 1>(t9);
        // complex block of 2
        const P t11 = t8 + t10;
        const P t12 = t8 - t10;
        const P t13 = shuffled<1, 3>(t2, t3);
        const P t14 = shuffled<0, 2>(t2, t3);
        const P t15 = flipped<0, 1>(t14);
        // complex block of 2
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P t18 = shuffled<1, 3>(t4, t5);
        const P t19 = shuffled<0, 2>(t0, t1);
        const P t20 = flipped<0, 1>(t19);
        // complex block of 2
        const P t21 = t18 + t20;
        const P t22 = t18 - t20;
        const P t23 = shuffled<0, 2>(t11, t12);
        const P t24 = shuffled<0, 2>(t16, t17);
        // spectrum block of 7, multiplier 2
        const P t25 = t23 + t24;
        const P t26 = shuffled<0, 2>(t21, t22);
        const P t27 = t25 + t26;
        const P t28 = joined(t6, t7);
        const P t29 = t27 + t28;
        io.out(0, 7, t29);
        const P t30 = c[0] * t23;
        const P t31 = c[1] * t24;
        const P t32 = t30 - t31;
        const P t33 = c[2] * t26;
        const P t34 = t32 - t33;
        const P t35 = t34 + t28;
        const P t36 = shuffled<1, 3>(t11, t12);
        const P t37 = c[3] * t36;
        const P t38 = shuffled<1, 3>(t16, t17);
        const P t39 = c[4] * t38;
        const P t40 = t37 + t39;
        const P t41 = shuffled<1, 3>(t21, t22);
        const P t42 = c[5] * t41;
        const P t43 = t40 + t42;
        const P t44 = t35 - t43;
        io.out(6, 13, t44);
        const P t45 = t35 + t43;
        io.out(8, 1, t45);
        const P t46 = c[1] * t23;
        const P t47 = t28 - t46;
        const P t48 = c[2] * t24;
        const P t49 = t47 - t48;
        const P t50 = c[0] * t26;
        const P t51 = t49 + t50;
        const P t52 = c[4] * t36;
        const P t53 = c[5] * t38;
        const P t54 = t52 - t53;
        const P t55 = c[3] * t41;
        const P t56 = t54 - t55;
        const P t57 = t51 - t56;
        io.out(12, 5, t57);
        const P t58 = t51 + t56;
        io.out(2, 9, t58);
        const P t59 = c[2] * t23;
        const P t60 = t28 - t59;
        const P t61 = c[0] * t24;
        const P t62 = t60 + t61;
        const P t63 = c[1] * t26;
        const P t64 = t62 - t63;
        const P t65 = c[5] * t36;
        const P t66 = c[3] * t38;
        const P t67 = t65 - t66;
        const P t68 = c[4] * t41;
        const P t69 = t67 + t68;
        const P t70 = t64 - t69;
        io.out(4, 11, t70);
        const P t71 = t64 + t69;
        io.out(10, 3, t71);
    }
};

}  // namespace zulg
