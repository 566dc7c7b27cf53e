// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 20.
// Inverse DFT to 20 real points, prime-factor 5, 4; two lanes to a register.
// 26 sums, 18 differences, 25 products of registers, which do the 156 steps of the graph, those with
// `scale` included; 19 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<20> {
    static constexpr int steps = 156;  // with `scale`
    static constexpr double inverseRoot = 0.22360679774997896;  // 1/sqrt(20), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x9 = io.pair(9);
        // doubled bins
        const P t0 = c[0] * x9;
        const P x1 = io.pair(1);
        const P t1 = c[0] * x1;
        // complex block of 5, multiplier 4
        const P t2 = t0 + t1;
        const P t3 = t0 - t1;
        const P x3 = io.pair(3);
        // doubled bins
        const P t4 = c[0] * x3;
        const P x7 = io.pair(7);
        const P t5 = c[0] * x7;
        // complex block of 5, multiplier 4
        const P t6 = t4 + t5;
        const P t7 = shuffled<0, 3>(t4, t5);
        const P t8 = shuffled<0, 3>(t5, t4);
        const P t9 = t7 - t8;
        const P t10 = flipped<0, 1>(t6);
        const P t11 = t2 + t10;
        const P x5 = io.pair(5);
        // doubled bins
        const P t12 = c[0] * x5;
        // complex block of 5, multiplier 4
        const P t13 = t11 + t12;
        const P t14 = c[1] * t2;
        const P t15 = P(-c[2], c[2]) * t6;
        const P t16 = t14 + t15;
        const P t17 = t16 + t12;
        const P t18 = c[3] * t3;
        const P t19 = c[4] * t9;
        const P t20 = t18 - t19;
        const P t21 = shuffled<1, 0>(t20);
        const P t22 = flipped<1, 0>(t21);
        const P t23 = t17 + t22;
        const P t24 = t17 - t22;
        const P t25 = c[2] * t2;
        const P t26 = t12 - t25;
        const P t27 = P(c[1], -c[1]) * t6;
        const P t28 = t26 + t27;
        const P t29 = c[4] * t3;
        const P t30 = c[3] * t9;
        const P t31 = t29 + t30;
        const P t32 = shuffled<1, 0>(t31);
        const P t33 = flipped<1, 0>(t32);
        const P t34 = t28 + t33;
        const P t35 = t28 - t33;
        const P x4 = io.pair(4);
        // doubled bins
        const P t36 = c[0] * x4;
        const P x6 = io.pair(6);
        const P t37 = c[0] * x6;
        const P t38 = shuffled<0, 2>(t36, t37);
        const P x8 = io.pair(8);
        const P t39 = c[0] * x8;
        const P x2 = io.pair(2);
        const P t40 = c[0] * x2;
        const P t41 = shuffled<0, 2>(t39, t40);
        // spectrum block of 5, multiplier 4
        const P t42 = t38 + t41;
        const V x0r = io.re(0);
        const V x10r = io.re(10);
        const P t43 = joined(x0r, x10r);
        const P t44 = t42 + t43;
        const P t45 = c[1] * t38;
        const P t46 = c[2] * t41;
        const P t47 = t45 - t46;
        const P t48 = t47 + t43;
        const P t49 = shuffled<1, 3>(t36, t37);
        const P t50 = c[3] * t49;
        const P t51 = shuffled<1, 3>(t39, t40);
        const P t52 = c[4] * t51;
        const P t53 = t50 + t52;
        const P t54 = flipped<1, 0>(t53);
        const P t55 = t48 + t54;
        const P t56 = t48 - t54;
        const P t57 = c[2] * t38;
        const P t58 = t43 - t57;
        const P t59 = c[1] * t41;
        const P t60 = t58 + t59;
        const P t61 = P(-c[3], c[3]) * t51;
        const P t62 = P(c[4], -c[4]) * t49;
        const P t63 = t61 + t62;
        const P t64 = t60 - t63;
        const P t65 = t60 + t63;
        const P t66 = shuffled<0, 2>(t44, t56);
        const P t67 = shuffled<1, 3>(t44, t56);
        // spectrum block of 2
        const P t68 = t66 + t67;
        const P t69 = t66 - t67;
        const P t70 = shuffled<0, 2>(t13, t24);
        // spectrum block of 2
        const P t71 = t68 + t70;
        io.out(0, 4, t71);
        const P t72 = t68 - t70;
        io.out(10, 14, t72);
        const P t73 = shuffled<1, 3>(t13, t24);
        // spectrum block of 2
        const P t74 = t69 - t73;
        io.out(5, 9, t74);
        const P t75 = t69 + t73;
        io.out(15, 19, t75);
        const P t76 = shuffled<0, 2>(t65, t64);
        const P t77 = shuffled<1, 3>(t65, t64);
        // spectrum block of 2
        const P t78 = t76 + t77;
        const P t79 = t76 - t77;
        const P t80 = shuffled<0, 2>(t35, t34);
        // spectrum block of 2
        const P t81 = t78 + t80;
        io.out(8, 12, t81);
        const P t82 = t78 - t80;
        io.out(18, 2, t82);
        const P t83 = shuffled<1, 3>(t35, t34);
        // spectrum block of 2
        const P t84 = t79 - t83;
        io.out(13, 17, t84);
        const P t85 = t79 + t83;
        io.out(3, 7, t85);
        const V t86 = part<0>(t55);
        const V t87 = part<1>(t55);
        // spectrum block of 2
        const V t88 = t86 + t87;
        const V t89 = t86 - t87;
        const P t90 = joined(t88, t89);
        const P t91 = flipped<0, 1>(t23);
        // spectrum block of 2
        const P t92 = t90 + t91;
        io.out(16, 1, t92);
        const P t93 = t90 - t91;
        io.out(6, 11, t93);
    }
};

}  // namespace zulg
