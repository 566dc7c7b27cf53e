// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 18.
// Inverse DFT to 18 real points, prime-factor 2, 9; two lanes to a register.
// 21 sums, 21 differences, 26 products of registers, which do the 152 steps of the graph, those with
// `scale` included; 9 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<18> {
    static constexpr int steps = 152;  // with `scale`
    static constexpr double inverseRoot = 0.23570226039551587;  // 1/sqrt(18), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.17364817766693036,  // c[3]: cos 2 pi 7/9
        0.984807753012208,  // c[4]: -sin 2 pi 7/9
        0.9396926207859084,  // c[5]: -cos 2 pi 5/9
        0.3420201433256687,  // c[6]: -sin 2 pi 5/9
        0.1503837331804353,  // c[7]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[8]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.29619813272602386,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[10]: sin 2 pi 1/3 times -cos 2 pi 5/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x9r = io.re(9);
        // spectrum block of 2
        const V t0 = x0r + x9r;
        const V t1 = x0r - x9r;
        const P x2 = io.pair(2);
        // doubled bins
        const P t2 = c[0] * x2;
        const P x7 = io.pair(7);
        const P t3 = P(c[0], -c[0]) * x7;
        // complex block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x5 = io.pair(5);
        const P t7 = P(c[0], -c[0]) * x5;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x6 = io.pair(6);
        // doubled bins
        const P t10 = c[0] * x6;
        const P x3 = io.pair(3);
        const P t11 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        const P x8 = io.pair(8);
        // doubled bins
        const P t14 = c[0] * x8;
        const P x1 = io.pair(1);
        const P t15 = P(c[0], -c[0]) * x1;
        // complex block of 2
        const P t16 = t14 + t15;
        const P t17 = t14 - t15;
        const P t18 = shuffled<0, 2>(t12, t13);
        const P t19 = joined(t0, t1);
        // spectrum block of 3, multiplier 2
        const P t20 = t18 + t19;
        const P t21 = c[1] * t18;
        const P t22 = t19 - t21;
        const P t23 = shuffled<1, 3>(t12, t13);
        const P t24 = c[2] * t23;
        const P t25 = t22 - t24;
        const P t26 = t22 + t24;
        const P t27 = shuffled<1, 3>(t16, t17);
        const P t28 = shuffled<1, 3>(t8, t9);
        // complex block of 3, multiplier 2
        const P t29 = t27 - t28;
        const P t30 = shuffled<0, 2>(t16, t17);
        const P t31 = shuffled<0, 2>(t8, t9);
        const P t32 = t30 + t31;
        const P t33 = t27 + t28;
        const P t34 = t30 - t31;
        const P t35 = shuffled<1, 3>(t4, t5);
        const P t36 = t29 + t35;
        const P t37 = shuffled<0, 2>(t4, t5);
        const P t38 = t32 + t37;
        const P t39 = c[1] * t29;
        const P t40 = t35 - t39;
        const P t41 = c[1] * t32;
        const P t42 = t37 - t41;
        const P t43 = c[2] * t34;
        const P t44 = t40 + t43;
        const P t45 = c[2] * t33;
        const P t46 = t42 - t45;
        const P t47 = t40 - t43;
        const P t48 = t42 + t45;
        // spectrum block of 9, multiplier 2
        const P t49 = c[3] * t48;
        const P t50 = c[4] * t47;
        const P t51 = t49 - t50;
        const P t52 = c[5] * t46;
        const P t53 = c[6] * t44;
        const P t54 = t52 + t53;
        // spectrum block of 3, multiplier 2
        const P t55 = t38 + t20;
        io.out(0, 9, t55);
        const P t56 = c[1] * t38;
        const P t57 = t20 - t56;
        const P t58 = c[2] * t36;
        const P t59 = t57 - t58;
        io.out(12, 3, t59);
        const P t60 = t57 + t58;
        io.out(6, 15, t60);
        // spectrum block of 3, multiplier 2
        const P t61 = t51 + t26;
        io.out(2, 11, t61);
        const P t62 = c[1] * t51;
        const P t63 = t26 - t62;
        const P t64 = c[7] * t47;
        const P t65 = c[8] * t48;
        const P t66 = t64 + t65;
        const P t67 = t63 - t66;
        io.out(14, 5, t67);
        const P t68 = t63 + t66;
        io.out(8, 17, t68);
        // spectrum block of 3, multiplier 2
        const P t69 = t25 - t54;
        io.out(4, 13, t69);
        const P t70 = c[1] * t54;
        const P t71 = t70 + t25;
        const P t72 = c[9] * t46;
        const P t73 = c[10] * t44;
        const P t74 = t72 - t73;
        const P t75 = t71 - t74;
        io.out(16, 7, t75);
        const P t76 = t71 + t74;
        io.out(10, 1, t76);
    }
};

}  // namespace zulg
