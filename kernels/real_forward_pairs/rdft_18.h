// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 18.
// Forward DFT of 18 real points, prime-factor 2, 9; two lanes to a register.
// 21 sums, 21 differences, 20 products of registers, which do the 140 steps of the graph, those with
// `scale` included; 18 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<18> {
    static constexpr int steps = 140;  // with `scale`
    static constexpr double inverseRoot = 0.23570226039551587;  // 1/sqrt(18), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_2 = io.in(0, 2);
        const P x9_11 = io.in(9, 11);
        // real block of 2
        const P t0 = x0_2 + x9_11;
        const P t1 = x0_2 - x9_11;
        const P x4_6 = io.in(4, 6);
        const P x13_15 = io.in(13, 15);
        // real block of 2
        const P t2 = x4_6 + x13_15;
        const P t3 = x4_6 - x13_15;
        const P x8_10 = io.in(8, 10);
        const P x17_1 = io.in(17, 1);
        // real block of 2
        const P t4 = x8_10 + x17_1;
        const P t5 = x8_10 - x17_1;
        const P x12_14 = io.in(12, 14);
        const P x3_5 = io.in(3, 5);
        // real block of 2
        const P t6 = x12_14 + x3_5;
        const P t7 = x12_14 - x3_5;
        const V x16 = io.in(16);
        const V x7 = io.in(7);
        // real block of 2
        const V t8 = x16 + x7;
        const V t9 = x16 - x7;
        const P t10 = shuffled<1, 3>(t2, t3);
        const P t11 = shuffled<0, 2>(t6, t7);
        // real block of 3, multiplier 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        const P t14 = shuffled<0, 2>(t0, t1);
        const P t15 = t12 + t14;
        const P t16 = c[0] * t12;
        const P t17 = t14 - t16;
        const P t18 = shuffled<0, 2>(t4, t5);
        const P t19 = shuffled<1, 3>(t6, t7);
        // real block of 3, multiplier 2
        const P t20 = t18 + t19;
        const P t21 = t18 - t19;
        const P t22 = shuffled<1, 3>(t0, t1);
        const P t23 = t20 + t22;
        const P t24 = c[0] * t20;
        const P t25 = t22 - t24;
        const P t26 = shuffled<1, 3>(t4, t5);
        const P t27 = joined(t8, t9);
        // real block of 3, multiplier 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P t30 = shuffled<0, 2>(t2, t3);
        const P t31 = t28 + t30;
        const P t32 = c[0] * t28;
        const P t33 = t30 - t32;
        // real block of 3, multiplier 2
        const P t34 = t23 + t31;
        const P t35 = t23 - t31;
        const P t36 = t34 + t15;
        const V t37 = part<0>(t36);
        io.re(0, t37);
        const V t38 = part<1>(t36);
        io.re(9, t38);
        const P t39 = c[0] * t34;
        const P t40 = t15 - t39;
        const P t41 = P(c[1], -c[1]) * t35;
        const P t42 = shuffled<1, 3>(t40, t41);
        io.pair(3, t42);
        const P t43 = shuffled<0, 2>(t40, t41);
        io.pair(6, t43);
        // real block of 9, multiplier 2
        const P t44 = c[2] * t25;
        // real block of 3, multiplier 2
        const P t45 = c[1] * t21;
        // real block of 9, multiplier 2
        const P t46 = c[3] * t45;
        const P t47 = t44 + t46;
        const P t48 = c[2] * t45;
        const P t49 = c[3] * t25;
        const P t50 = t48 - t49;
        // real block of 3, multiplier 2
        const P t51 = c[1] * t29;
        // real block of 9, multiplier 2
        const P t52 = c[4] * t51;
        const P t53 = c[5] * t33;
        const P t54 = t52 - t53;
        const P t55 = c[5] * t51;
        const P t56 = c[4] * t33;
        const P t57 = t55 + t56;
        // complex block of 3, multiplier 2
        const P t58 = t47 + t54;
        const P t59 = t50 - t57;
        const P t60 = t47 - t54;
        const P t61 = t50 + t57;
        const P t62 = t58 + t17;
        // real block of 3, multiplier 2
        const P t63 = c[1] * t13;
        // complex block of 3, multiplier 2
        const P t64 = t59 + t63;
        const P t65 = shuffled<0, 2>(t62, t64);
        io.pair(2, t65);
        const P t66 = shuffled<1, 3>(t62, t64);
        io.pair(7, negated<0, 1>(t66));
        const P t67 = c[0] * t58;
        const P t68 = t17 - t67;
        const P t69 = c[0] * t59;
        const P t70 = t63 - t69;
        const P t71 = c[1] * t61;
        const P t72 = t68 + t71;
        const P t73 = c[1] * t60;
        const P t74 = t70 - t73;
        const P t75 = shuffled<0, 2>(t72, t74);
        io.pair(4, negated<0, 1>(t75));
        const P t76 = shuffled<1, 3>(t72, t74);
        io.pair(5, t76);
        const P t77 = t68 - t71;
        const P t78 = t70 + t73;
        const P t79 = shuffled<1, 3>(t77, t78);
        io.pair(1, negated<0, 1>(t79));
        const P t80 = shuffled<0, 2>(t77, t78);
        io.pair(8, t80);
    }
};

}  // namespace zulg
