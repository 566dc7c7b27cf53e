// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 12.
// Complex DFT of 12 points, prime-factor, order 4, 3; one complex number to a register.
// 24 sums, 24 differences, 8 products of registers, which do the 136 steps of the graph, those with
// `scale` included; 7 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<12> {
    static constexpr int steps = 136;  // with `scale`
    static constexpr double inverseRoot = 0.2886751345948129;  // 1/sqrt(12), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x6 = io.pair(6);
        // complex block of 2
        const P t0 = x0 + x6;
        const P t1 = x0 - x6;
        const P x3 = io.pair(3);
        const P x9 = io.pair(9);
        // complex block of 2
        const P t2 = x3 + x9;
        const P t3 = x3 - x9;
        // complex block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P t6 = shuffled<1, 0>(t3);
        const P t7 = flipped<1, 0>(t6);
        // complex block of 2
        const P t8 = t1 + t7;
        const P t9 = t1 - t7;
        const P x4 = io.pair(4);
        const P x10 = io.pair(10);
        // complex block of 2
        const P t10 = x4 + x10;
        const P t11 = x4 - x10;
        const P x7 = io.pair(7);
        const P x1 = io.pair(1);
        // complex block of 2
        const P t12 = x7 + x1;
        const P t13 = x7 - x1;
        // complex block of 2
        const P t14 = t10 + t12;
        const P t15 = t10 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<1, 0>(t16);
        // complex block of 2
        const P t18 = t11 + t17;
        const P t19 = t11 - t17;
        const P x8 = io.pair(8);
        const P x2 = io.pair(2);
        // complex block of 2
        const P t20 = x8 + x2;
        const P t21 = x8 - x2;
        const P x11 = io.pair(11);
        const P x5 = io.pair(5);
        // complex block of 2
        const P t22 = x11 + x5;
        const P t23 = x11 - x5;
        // complex block of 2
        const P t24 = t20 + t22;
        const P t25 = t20 - t22;
        const P t26 = shuffled<1, 0>(t23);
        const P t27 = flipped<1, 0>(t26);
        // complex block of 2
        const P t28 = t21 + t27;
        const P t29 = t21 - t27;
        // complex block of 3
        const P t30 = t14 + t24;
        const P t31 = t14 - t24;
        const P t32 = t30 + t4;
        io.pair(0, t32);
        const P t33 = c[0] * t30;
        const P t34 = t4 - t33;
        const P t35 = P(-c[1], c[1]) * t31;
        const P t36 = shuffled<1, 0>(t35);
        const P t37 = t34 + t36;
        io.pair(4, t37);
        const P t38 = t34 - t36;
        io.pair(8, t38);
        // complex block of 3
        const P t39 = t18 + t28;
        const P t40 = t18 - t28;
        const P t41 = t39 + t8;
        io.pair(3, t41);
        const P t42 = c[0] * t39;
        const P t43 = t8 - t42;
        const P t44 = P(-c[1], c[1]) * t40;
        const P t45 = shuffled<1, 0>(t44);
        const P t46 = t43 + t45;
        io.pair(7, t46);
        const P t47 = t43 - t45;
        io.pair(11, t47);
        // complex block of 3
        const P t48 = t15 + t25;
        const P t49 = t15 - t25;
        const P t50 = t48 + t5;
        io.pair(6, t50);
        const P t51 = c[0] * t48;
        const P t52 = t5 - t51;
        const P t53 = P(-c[1], c[1]) * t49;
        const P t54 = shuffled<1, 0>(t53);
        const P t55 = t52 + t54;
        io.pair(10, t55);
        const P t56 = t52 - t54;
        io.pair(2, t56);
        // complex block of 3
        const P t57 = t19 + t29;
        const P t58 = t19 - t29;
        const P t59 = t57 + t9;
        io.pair(9, t59);
        const P t60 = c[0] * t57;
        const P t61 = t9 - t60;
        const P t62 = P(-c[1], c[1]) * t58;
        const P t63 = shuffled<1, 0>(t62);
        const P t64 = t61 + t63;
        io.pair(1, t64);
        const P t65 = t61 - t63;
        io.pair(5, t65);
    }
};

}  // namespace zulg
