// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 15.
// Inverse DFT to 15 real points, prime-factor 3, 5; two lanes to a register.
// 24 sums, 16 differences, 29 products of registers, which do the 126 steps of the graph, those with
// `scale` included; 12 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<15> {
    static constexpr int steps = 126;  // with `scale`
    static constexpr double inverseRoot = 0.2581988897471611;  // 1/sqrt(15), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.5,  // c[5]: -cos 2 pi 1/3
        0.8660254037844386,  // c[6]: sin 2 pi 1/3
        1.7320508075688772,  // c[7]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x5 = io.pair(5);
        const V t0 = part<0>(x5);
        // doubled bins
        const V t1 = c[0] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3, multiplier 2
        const V t2 = t1 + x0r;
        const V t3 = c[5] * t1;
        const V t4 = x0r - t3;
        const V t5 = part<1>(x5);
        const V t6 = c[7] * t5;
        const V t7 = t4 - t6;
        const V t8 = t4 + t6;
        const P x7 = io.pair(7);
        // doubled bins
        const P t9 = c[0] * x7;
        const P x2 = io.pair(2);
        const P t10 = c[0] * x2;
        // complex block of 3, multiplier 2
        const P t11 = t9 + t10;
        const P t12 = shuffled<0, 3>(t9, t10);
        const P t13 = shuffled<0, 3>(t10, t9);
        const P t14 = t12 - t13;
        const P x3 = io.pair(3);
        // doubled bins
        const P t15 = c[0] * x3;
        const P t16 = flipped<0, 1>(t11);
        // complex block of 3, multiplier 2
        const P t17 = t15 + t16;
        const P t18 = P(-c[5], c[5]) * t11;
        const P t19 = t18 + t15;
        const P t20 = P(c[6], -c[6]) * t14;
        const P t21 = shuffled<1, 0>(t20);
        const P t22 = t19 + t21;
        const P t23 = t19 - t21;
        const P x1 = io.pair(1);
        // doubled bins
        const P t24 = c[0] * x1;
        const P x4 = io.pair(4);
        const P t25 = P(c[0], -c[0]) * x4;
        // complex block of 3, multiplier 2
        const P t26 = t24 + t25;
        const P t27 = flipped<0, 1>(t25);
        const P t28 = flipped<1, 0>(t24);
        const P t29 = t27 + t28;
        const P x6 = io.pair(6);
        // doubled bins
        const P t30 = c[0] * x6;
        // complex block of 3, multiplier 2
        const P t31 = t26 + t30;
        const P t32 = c[5] * t26;
        const P t33 = t30 - t32;
        const P t34 = c[6] * t29;
        const P t35 = shuffled<1, 0>(t34);
        const P t36 = t33 + t35;
        const P t37 = t33 - t35;
        const P t38 = shuffled<0, 2>(t17, t23);
        const P t39 = shuffled<0, 2>(t31, t37);
        // spectrum block of 5, multiplier 3
        const P t40 = t38 + t39;
        const P t41 = joined(t2, t8);
        const P t42 = t40 + t41;
        io.out(0, 5, t42);
        const P t43 = c[1] * t38;
        const P t44 = c[2] * t39;
        const P t45 = t43 - t44;
        const P t46 = t45 + t41;
        const P t47 = shuffled<1, 3>(t17, t23);
        const P t48 = c[3] * t47;
        const P t49 = shuffled<1, 3>(t31, t37);
        const P t50 = c[4] * t49;
        const P t51 = t48 + t50;
        const P t52 = t46 - t51;
        io.out(6, 11, t52);
        const P t53 = t46 + t51;
        io.out(9, 14, t53);
        const P t54 = c[2] * t38;
        const P t55 = t41 - t54;
        const P t56 = c[1] * t39;
        const P t57 = t55 + t56;
        const P t58 = c[4] * t47;
        const P t59 = c[3] * t49;
        const P t60 = t58 - t59;
        const P t61 = t57 - t60;
        io.out(12, 2, t61);
        const P t62 = t57 + t60;
        io.out(3, 8, t62);
        const V t63 = part<0>(t22);
        const V t64 = part<0>(t36);
        // spectrum block of 5, multiplier 3
        const V t65 = t63 + t64;
        const V t66 = t65 + t7;
        io.out(10, t66);
        const V t67 = c[1] * t63;
        const V t68 = c[2] * t64;
        const V t69 = t67 - t68;
        const V t70 = t69 + t7;
        const V t71 = part<1>(t22);
        const V t72 = c[3] * t71;
        const V t73 = part<1>(t36);
        const V t74 = c[4] * t73;
        const V t75 = t72 + t74;
        const V t76 = t70 - t75;
        io.out(1, t76);
        const V t77 = t70 + t75;
        io.out(4, t77);
        const V t78 = c[2] * t63;
        const V t79 = t7 - t78;
        const V t80 = c[1] * t64;
        const V t81 = t79 + t80;
        const V t82 = c[4] * t71;
        const V t83 = c[3] * t73;
        const V t84 = t82 - t83;
        const V t85 = t81 - t84;
        io.out(7, t85);
        const V t86 = t81 + t84;
        io.out(13, t86);
    }
};

}  // namespace zulg
