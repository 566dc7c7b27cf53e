// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 20.
// Forward DFT of 20 real points, prime-factor 5, 4; two lanes to a register.
// 24 sums, 20 differences, 16 products of registers, which do the 138 steps of the graph, those with
// `scale` included; 15 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<20> {
    static constexpr int steps = 138;  // with `scale`
    static constexpr double inverseRoot = 0.22360679774997896;  // 1/sqrt(20), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 4/5
        0.8090169943749475,  // c[1]: -cos 2 pi 12/5
        0.9510565162951535,  // c[2]: -sin 2 pi 4/5
        0.5877852522924731,  // c[3]: sin 2 pi 12/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x4_9 = io.in(4, 9);
        const P x16_1 = io.in(16, 1);
        // real block of 5, multiplier 4
        const P t0 = x4_9 + x16_1;
        const P t1 = x4_9 - x16_1;
        const P x8_17 = io.in(8, 17);
        const P x12_13 = io.in(12, 13);
        const P t2 = x8_17 + x12_13;
        const P t3 = shuffled<0, 3>(x12_13, x8_17);
        const P t4 = shuffled<0, 3>(x8_17, x12_13);
        const P t5 = t3 - t4;
        const P t6 = t0 + t2;
        const P x0_5 = io.in(0, 5);
        const P t7 = t6 + x0_5;
        const P t8 = c[0] * t0;
        const P t9 = c[1] * t2;
        const P t10 = t8 - t9;
        const P t11 = t10 + x0_5;
        const P t12 = c[2] * t1;
        const P t13 = c[3] * t5;
        const P t14 = t12 - t13;
        const P t15 = c[1] * t0;
        const P t16 = x0_5 - t15;
        const P t17 = c[0] * t2;
        const P t18 = t16 + t17;
        const P t19 = c[3] * t1;
        const P t20 = c[2] * t5;
        const P t21 = t19 + t20;
        const P x14_19 = io.in(14, 19);
        const P x6_11 = io.in(6, 11);
        // real block of 5, multiplier 4
        const P t22 = x14_19 + x6_11;
        const P t23 = x14_19 - x6_11;
        const P x18_7 = io.in(18, 7);
        const P x2_3 = io.in(2, 3);
        const P t24 = x18_7 + x2_3;
        const P t25 = shuffled<0, 3>(x2_3, x18_7);
        const P t26 = shuffled<0, 3>(x18_7, x2_3);
        const P t27 = t25 - t26;
        const P t28 = t22 + t24;
        const P x10_15 = io.in(10, 15);
        const P t29 = t28 + x10_15;
        const P t30 = c[0] * t22;
        const P t31 = c[1] * t24;
        const P t32 = t30 - t31;
        const P t33 = t32 + x10_15;
        const P t34 = c[2] * t23;
        const P t35 = c[3] * t27;
        const P t36 = t34 - t35;
        const P t37 = c[1] * t22;
        const P t38 = x10_15 - t37;
        const P t39 = c[0] * t24;
        const P t40 = t38 + t39;
        const P t41 = c[3] * t23;
        const P t42 = c[2] * t27;
        const P t43 = t41 + t42;
        // real block of 2
        const P t44 = t7 + t29;
        const P t45 = t7 - t29;
        io.pair(5, negated<0, 1>(t45));
        const V t46 = part<0>(t44);
        const V t47 = part<1>(t44);
        // real block of 2
        const V t48 = t46 + t47;
        io.re(0, t48);
        const V t49 = t46 - t47;
        io.re(10, t49);
        const P t50 = shuffled<0, 2>(t11, t14);
        const P t51 = shuffled<0, 2>(t33, t36);
        // complex block of 2
        const P t52 = t50 + t51;
        const P t53 = t50 - t51;
        const P t54 = shuffled<1, 3>(t11, t14);
        const P t55 = shuffled<1, 3>(t33, t36);
        // complex block of 2
        const P t56 = t54 + t55;
        const P t57 = t54 - t55;
        // complex block of 2
        const P t58 = t52 + t56;
        io.pair(4, t58);
        const P t59 = t52 - t56;
        io.pair(6, negated<0, 1>(t59));
        const P t60 = shuffled<1, 0>(t57);
        const P t61 = flipped<0, 1>(t60);
        // complex block of 2
        const P t62 = t53 + t61;
        io.pair(9, t62);
        const P t63 = t53 - t61;
        io.pair(1, negated<0, 1>(t63));
        const P t64 = shuffled<0, 2>(t18, t21);
        const P t65 = shuffled<0, 2>(t40, t43);
        // complex block of 2
        const P t66 = t64 + t65;
        const P t67 = t64 - t65;
        const P t68 = shuffled<1, 3>(t18, t21);
        const P t69 = shuffled<1, 3>(t40, t43);
        // complex block of 2
        const P t70 = t68 + t69;
        const P t71 = t68 - t69;
        // complex block of 2
        const P t72 = t66 + t70;
        io.pair(8, t72);
        const P t73 = t66 - t70;
        io.pair(2, negated<0, 1>(t73));
        const P t74 = shuffled<1, 0>(t71);
        const P t75 = flipped<0, 1>(t74);
        // complex block of 2
        const P t76 = t67 + t75;
        io.pair(7, negated<0, 1>(t76));
        const P t77 = t67 - t75;
        io.pair(3, t77);
    }
};

}  // namespace zulg
