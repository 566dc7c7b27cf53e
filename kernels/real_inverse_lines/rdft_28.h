// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 28.
// Inverse DFT to 28 real points, prime-factor 4, 7; up to four lanes to a register.
// 22 sums, 18 differences, 25 products of registers, which do the 276 steps of the graph, those with
// `scale` included; 22 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<28> {
    static constexpr int steps = 276;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 1/7
        0.9749279121818236,  // c[5]: sin 2 pi 2/7
        0.4338837391175581,  // c[6]: sin 2 pi 3/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const V x0r = io.re(0);
        const V x14r = io.re(14);
        // spectrum block of 2
        const V t0 = x0r + x14r;
        const V t1 = x0r - x14r;
        const P t2 = joined(t0, t1);
        const P x7 = io.pair(7);
        // doubled bins
        const P t3 = c[0] * x7;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const Q x3_1 = io.pairs(3, 1);
        // doubled bins
        const Q t6 = Q(c[0], -c[0], c[0], c[0]) * x3_1;
        const Q x11_13 = io.pairs(11, 13);
        const Q t7 = Q(c[0], c[0], c[0], -c[0]) * x11_13;
        // complex block of 2
        const Q t8 = t6 + t7;
        const Q t9 = flipped<0, 0, 0, 1>(t7);
        const Q t10 = flipped<1, 1, 1, 0>(t6);
        const Q t11 = t9 + t10;
        const Q x4_8 = io.pairs(4, 8);
        // doubled bins
        const Q t12 = c[0] * x4_8;
        const Q x10_6 = io.pairs(10, 6);
        const Q t13 = Q(c[0], -c[0], c[0], -c[0]) * x10_6;
        // complex block of 2
        const Q t14 = t12 + t13;
        const Q t15 = t12 - t13;
        // complex block of 2
        const Q t16 = t14 + t8;
        const Q t17 = t14 - t8;
        const Q t18 = shuffled<1, 0, 3, 2>(t11);
        const Q t19 = flipped<1, 0, 0, 0>(t18);
        // complex block of 2
        const Q t20 = t15 - t19;
        const Q t21 = t15 + t19;
        const Q x2_5 = io.pairs(2, 5);
        // doubled bins
        const Q t22 = Q(c[0], -c[0], c[0], c[0]) * x2_5;
        const Q x12_9 = io.pairs(12, 9);
        const Q t23 = Q(c[0], c[0], c[0], -c[0]) * x12_9;
        // complex block of 2
        const Q t24 = t22 + t23;
        const Q t25 = flipped<0, 0, 0, 1>(t23);
        const Q t26 = flipped<1, 1, 1, 0>(t22);
        const Q t27 = t25 + t26;
        const Q t28 = shuffled<0, 1, 4, 5>(t24, t27);
        const Q t29 = shuffled<1, 0, 3, 2>(t27);
        const Q t30 = shuffled<2, 3, 6, 7>(t24, t29);
        const Q t31 = flipped<0, 0, 1, 1>(t30);
        // complex block of 2
        const Q t32 = t28 + t31;
        const Q t33 = t28 - t31;
        const Q t34 = shuffled<0, 4, 2, 6>(t16, t20);
        const Q t35 = shuffled<0, 4, 2, 6>(t17, t21);
        const Q t36 = shuffled<0, 1, 4, 5>(t34, t35);
        const Q t37 = shuffled<2, 3, 6, 7>(t34, t35);
        // spectrum block of 7, multiplier 4
        const Q t38 = t36 + t37;
        const P t39 = part<0>(t32);
        const P t40 = part<1>(t32);
        const P t41 = shuffled<0, 2>(t39, t40);
        const P t42 = part<0>(t33);
        const P t43 = part<1>(t33);
        const P t44 = shuffled<0, 2>(t42, t43);
        const Q t45 = joined(t41, t44);
        const Q t46 = t38 + t45;
        const Q t47 = joined(t4, t5);
        const Q t48 = t46 + t47;
        io.out(0, 7, 14, 21, t48);
        const Q t49 = c[1] * t36;
        const Q t50 = c[2] * t37;
        const Q t51 = t49 - t50;
        const Q t52 = c[3] * t45;
        const Q t53 = t51 - t52;
        const Q t54 = shuffled<1, 5, 3, 7>(t16, t20);
        const Q t55 = shuffled<1, 5, 3, 7>(t17, t21);
        const Q t56 = shuffled<0, 1, 4, 5>(t54, t55);
        const Q t57 = c[4] * t56;
        const Q t58 = shuffled<2, 3, 6, 7>(t54, t55);
        const Q t59 = c[5] * t58;
        const Q t60 = t57 + t59;
        const Q t61 = t53 + t47;
        const P t62 = shuffled<1, 3>(t39, t40);
        const P t63 = shuffled<1, 3>(t42, t43);
        const Q t64 = joined(t62, t63);
        const Q t65 = c[6] * t64;
        const Q t66 = t60 + t65;
        const Q t67 = t61 - t66;
        io.out(8, 15, 22, 1, t67);
        const Q t68 = t61 + t66;
        io.out(20, 27, 6, 13, t68);
        const Q t69 = c[2] * t36;
        const Q t70 = t47 - t69;
        const Q t71 = c[3] * t37;
        const Q t72 = t70 - t71;
        const Q t73 = c[5] * t56;
        const Q t74 = c[6] * t58;
        const Q t75 = t73 - t74;
        const Q t76 = c[1] * t45;
        const Q t77 = t72 + t76;
        const Q t78 = c[4] * t64;
        const Q t79 = t75 - t78;
        const Q t80 = t77 - t79;
        io.out(16, 23, 2, 9, t80);
        const Q t81 = t77 + t79;
        io.out(12, 19, 26, 5, t81);
        const Q t82 = c[3] * t36;
        const Q t83 = t47 - t82;
        const Q t84 = c[1] * t37;
        const Q t85 = t83 + t84;
        const Q t86 = c[6] * t56;
        const Q t87 = c[4] * t58;
        const Q t88 = t86 - t87;
        const Q t89 = c[2] * t45;
        const Q t90 = t85 - t89;
        const Q t91 = c[5] * t64;
        const Q t92 = t88 + t91;
        const Q t93 = t90 - t92;
        io.out(24, 3, 10, 17, t93);
        const Q t94 = t90 + t92;
        io.out(4, 11, 18, 25, t94);
    }
};

}  // namespace zulg
