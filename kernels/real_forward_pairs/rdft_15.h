// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 15.
// Forward DFT of 15 real points, prime-factor 3, 5; two lanes to a register.
// 22 sums, 18 differences, 22 products of registers, which do the 113 steps of the graph, those with
// `scale` included; 11 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<15> {
    static constexpr int steps = 113;  // with `scale`
    static constexpr double inverseRoot = 0.2581988897471611;  // 1/sqrt(15), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x5_8 = io.in(5, 8);
        const P x10_13 = io.in(10, 13);
        // real block of 3, multiplier 2
        const P t0 = x5_8 + x10_13;
        const P t1 = x5_8 - x10_13;
        const P x0_3 = io.in(0, 3);
        const P t2 = t0 + x0_3;
        const P t3 = c[4] * t0;
        const P t4 = x0_3 - t3;
        const P x11_14 = io.in(11, 14);
        const P x1_4 = io.in(1, 4);
        // real block of 3, multiplier 2
        const P t5 = x11_14 + x1_4;
        const P t6 = x11_14 - x1_4;
        const P x6_9 = io.in(6, 9);
        const P t7 = t5 + x6_9;
        const P t8 = c[4] * t5;
        const P t9 = x6_9 - t8;
        const V x2 = io.in(2);
        const V x7 = io.in(7);
        // real block of 3, multiplier 2
        const V t10 = x2 + x7;
        const V t11 = x2 - x7;
        const V x12 = io.in(12);
        const V t12 = t10 + x12;
        const V t13 = c[4] * t10;
        const V t14 = x12 - t13;
        const V t15 = part<1>(t2);
        // real block of 5, multiplier 3
        const V t16 = t15 + t12;
        const V t17 = t15 - t12;
        const V t18 = part<1>(t7);
        const V t19 = part<0>(t7);
        const V t20 = t18 + t19;
        const V t21 = t18 - t19;
        const V t22 = t16 + t20;
        const V t23 = part<0>(t2);
        const V t24 = t22 + t23;
        io.re(0, t24);
        const V t25 = c[0] * t16;
        const V t26 = t23 - t25;
        const V t27 = c[1] * t20;
        const V t28 = t26 + t27;
        const V t29 = c[2] * t17;
        const V t30 = c[3] * t21;
        const V t31 = t29 + t30;
        const P t32 = joined(t28, t31);
        io.pair(3, t32);
        const V t33 = c[1] * t16;
        const V t34 = c[0] * t20;
        const V t35 = t33 - t34;
        const V t36 = t35 + t23;
        const V t37 = c[2] * t21;
        const V t38 = c[3] * t17;
        const V t39 = t37 - t38;
        const P t40 = joined(t36, t39);
        io.pair(6, t40);
        // real block of 3, multiplier 2
        const P t41 = c[5] * t1;
        const P t42 = shuffled<1, 3>(t4, t41);
        // real block of 3, multiplier 2
        const V t43 = c[5] * t11;
        const P t44 = joined(t14, t43);
        // complex block of 5, multiplier 3
        const P t45 = t42 + t44;
        const P t46 = t42 - t44;
        // real block of 3, multiplier 2
        const P t47 = c[5] * t6;
        const P t48 = shuffled<1, 3>(t9, t47);
        const P t49 = shuffled<0, 2>(t9, t47);
        // complex block of 5, multiplier 3
        const P t50 = t48 + t49;
        const P t51 = t48 - t49;
        const P t52 = t45 + t50;
        const P t53 = shuffled<0, 2>(t4, t41);
        const P t54 = t52 + t53;
        io.pair(5, t54);
        const P t55 = c[1] * t45;
        const P t56 = c[0] * t50;
        const P t57 = t55 - t56;
        const P t58 = t57 + t53;
        const P t59 = c[3] * t46;
        const P t60 = c[2] * t51;
        const P t61 = t59 - t60;
        const P t62 = shuffled<1, 0>(t61);
        const P t63 = flipped<0, 1>(t62);
        const P t64 = t58 + t63;
        io.pair(4, negated<0, 1>(t64));
        const P t65 = t58 - t63;
        io.pair(1, negated<0, 1>(t65));
        const P t66 = c[0] * t45;
        const P t67 = t53 - t66;
        const P t68 = c[1] * t50;
        const P t69 = t67 + t68;
        const P t70 = c[2] * t46;
        const P t71 = c[3] * t51;
        const P t72 = t70 + t71;
        const P t73 = shuffled<1, 0>(t72);
        const P t74 = flipped<0, 1>(t73);
        const P t75 = t69 + t74;
        io.pair(2, t75);
        const P t76 = t69 - t74;
        io.pair(7, negated<0, 1>(t76));
    }
};

}  // namespace zulg
