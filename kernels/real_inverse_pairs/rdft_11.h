// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 11.
// Inverse DFT to 11 real points, Rader 2, 5; two lanes to a register.
// 24 sums, 12 differences, 31 products of registers, which do the 139 steps of the graph, those with
// `scale` included; 14 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<11> {
    static constexpr int steps = 139;  // with `scale`
    static constexpr double inverseRoot = 0.30151134457776363;  // 1/sqrt(11), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: -sin 2 pi 3/5
        0.635213297150478,  // c[5]: -Q[1] of 11
        0.19106037559687397,  // c[6]: -P[1] of 11
        0.5272211128649671,  // c[7]: P[2] of 11
        0.4025393125514894,  // c[8]: Q[2] of 11
        0.4262349587304204,  // c[9]: Q[3] of 11
        0.5082556049431003,  // c[10]: -P[3] of 11
        0.5182443007085755,  // c[11]: Q[4] of 11
        0.41403241996621415,  // c[12]: P[4] of 11
        0.1,  // c[13]: 1/10
        0.33166247903553997,  // c[14]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x5 = io.pair(5);
        // doubled bins
        const P t0 = c[0] * x5;
        const P x2 = io.pair(2);
        const P t1 = P(c[0], -c[0]) * x2;
        // real block of 5
        const P t2 = t0 + t1;
        const P t3 = flipped<0, 1>(t1);
        const P t4 = flipped<1, 0>(t0);
        const P t5 = t3 + t4;
        const P x3 = io.pair(3);
        // doubled bins
        const P t6 = c[0] * x3;
        const P x4 = io.pair(4);
        const P t7 = c[0] * x4;
        // real block of 5
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P t10 = t2 + t8;
        const P x1 = io.pair(1);
        // doubled bins
        const P t11 = c[0] * x1;
        // real block of 5
        const P t12 = t10 + t11;
        const P t13 = c[1] * t2;
        const P t14 = c[2] * t8;
        const P t15 = t13 - t14;
        const P t16 = t15 + t11;
        const P t17 = P(-c[3], c[3]) * t5;
        const P t18 = c[4] * t9;
        const P t19 = t17 + t18;
        const P t20 = c[2] * t2;
        const P t21 = t11 - t20;
        const P t22 = c[1] * t8;
        const P t23 = t21 + t22;
        const P t24 = c[4] * t5;
        const P t25 = P(c[3], -c[3]) * t9;
        const P t26 = t24 + t25;
        const V x0r = io.re(0);
        const V t27 = part<0>(t12);
        // spectrum block of 11
        const V t28 = c[13] * t27;
        const V t29 = x0r - t28;
        const P t30 = shuffled<1, 3>(t23, t26);
        const P t31 = c[5] * t30;
        const P t32 = shuffled<1, 0>(t30);
        const P t33 = P(c[6], -c[6]) * t32;
        const P t34 = t31 + t33;
        const P t35 = shuffled<0, 2>(t16, t19);
        const P t36 = c[7] * t35;
        const P t37 = shuffled<1, 0>(t35);
        const P t38 = P(-c[8], c[8]) * t37;
        const P t39 = t36 + t38;
        const P t40 = shuffled<1, 3>(t16, t19);
        const P t41 = c[9] * t40;
        const P t42 = shuffled<1, 0>(t40);
        const P t43 = P(-c[10], c[10]) * t42;
        const P t44 = t41 + t43;
        const P t45 = shuffled<0, 2>(t26, t23);
        const P t46 = c[11] * t45;
        const P t47 = shuffled<1, 0>(t45);
        const P t48 = P(c[12], -c[12]) * t47;
        const P t49 = t46 + t48;
        const V t50 = part<1>(t12);
        const V t51 = c[14] * t50;
        // spectrum block of 2
        const V t52 = t29 - t51;
        const V t53 = t29 + t51;
        // complex block of 2
        const P t54 = t39 + t44;
        const P t55 = t39 - t44;
        // complex block of 2
        const P t56 = t49 - t34;
        const P t57 = t49 + t34;
        const P t58 = shuffled<0, 2>(t54, t55);
        const P t59 = shuffled<0, 2>(t56, t57);
        // spectrum block of 5, multiplier 2
        const P t60 = t58 + t59;
        const P t61 = joined(t52, t53);
        const P t62 = t60 + t61;
        io.out(1, 10, t62);
        const P t63 = c[1] * t58;
        const P t64 = c[2] * t59;
        const P t65 = t63 - t64;
        const P t66 = t65 + t61;
        const P t67 = shuffled<1, 3>(t54, t55);
        const P t68 = c[3] * t67;
        const P t69 = shuffled<1, 3>(t56, t57);
        const P t70 = c[4] * t69;
        const P t71 = t68 + t70;
        const P t72 = t66 - t71;
        io.out(5, 6, t72);
        const P t73 = t66 + t71;
        io.out(9, 2, t73);
        const P t74 = c[2] * t58;
        const P t75 = t61 - t74;
        const P t76 = c[1] * t59;
        const P t77 = t75 + t76;
        const P t78 = c[4] * t67;
        const P t79 = c[3] * t69;
        const P t80 = t78 - t79;
        const P t81 = t77 - t80;
        io.out(3, 8, t81);
        const P t82 = t77 + t80;
        io.out(4, 7, t82);
        // spectrum block of 11
        const V t83 = x0r + t27;
        io.out(0, t83);
    }
};

}  // namespace zulg
