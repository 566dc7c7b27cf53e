// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 10.
// Complex DFT of 10 points, prime-factor, order 2, 5; one complex number to a register.
// 23 sums, 19 differences, 16 products of registers, which do the 136 steps of the graph, those with
// `scale` included; 4 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<10> {
    static constexpr int steps = 136;  // with `scale`
    static constexpr double inverseRoot = 0.31622776601683794;  // 1/sqrt(10), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x5 = io.pair(5);
        // complex block of 2
        const P t0 = x0 + x5;
        const P t1 = x0 - x5;
        const P x2 = io.pair(2);
        const P x7 = io.pair(7);
        // complex block of 2
        const P t2 = x2 + x7;
        const P t3 = x2 - x7;
        const P x4 = io.pair(4);
        const P x9 = io.pair(9);
        // complex block of 2
        const P t4 = x4 + x9;
        const P t5 = x4 - x9;
        const P x6 = io.pair(6);
        const P x1 = io.pair(1);
        // complex block of 2
        const P t6 = x6 + x1;
        const P t7 = x6 - x1;
        const P x8 = io.pair(8);
        const P x3 = io.pair(3);
        // complex block of 2
        const P t8 = x8 + x3;
        const P t9 = x8 - x3;
        // complex block of 5, multiplier 2
        const P t10 = t2 + t8;
        const P t11 = t2 - t8;
        const P t12 = t6 + t4;
        const P t13 = t6 - t4;
        const P t14 = t10 + t12;
        const P t15 = t14 + t0;
        io.pair(0, t15);
        const P t16 = c[0] * t10;
        const P t17 = c[1] * t12;
        const P t18 = t16 - t17;
        const P t19 = t18 + t0;
        const P t20 = c[2] * t11;
        const P t21 = c[3] * t13;
        const P t22 = t20 - t21;
        const P t23 = shuffled<1, 0>(t22);
        const P t24 = flipped<0, 1>(t23);
        const P t25 = t19 + t24;
        io.pair(6, t25);
        const P t26 = t19 - t24;
        io.pair(4, t26);
        const P t27 = c[1] * t10;
        const P t28 = t0 - t27;
        const P t29 = c[0] * t12;
        const P t30 = t28 + t29;
        const P t31 = c[3] * t11;
        const P t32 = c[2] * t13;
        const P t33 = t31 + t32;
        const P t34 = shuffled<1, 0>(t33);
        const P t35 = flipped<0, 1>(t34);
        const P t36 = t30 + t35;
        io.pair(2, t36);
        const P t37 = t30 - t35;
        io.pair(8, t37);
        // complex block of 5, multiplier 2
        const P t38 = t3 + t9;
        const P t39 = t3 - t9;
        const P t40 = t7 + t5;
        const P t41 = t7 - t5;
        const P t42 = t38 + t40;
        const P t43 = t42 + t1;
        io.pair(5, t43);
        const P t44 = c[0] * t38;
        const P t45 = c[1] * t40;
        const P t46 = t44 - t45;
        const P t47 = t46 + t1;
        const P t48 = c[2] * t39;
        const P t49 = c[3] * t41;
        const P t50 = t48 - t49;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = flipped<0, 1>(t51);
        const P t53 = t47 + t52;
        io.pair(1, t53);
        const P t54 = t47 - t52;
        io.pair(9, t54);
        const P t55 = c[1] * t38;
        const P t56 = t1 - t55;
        const P t57 = c[0] * t40;
        const P t58 = t56 + t57;
        const P t59 = c[3] * t39;
        const P t60 = c[2] * t41;
        const P t61 = t59 + t60;
        const P t62 = shuffled<1, 0>(t61);
        const P t63 = flipped<0, 1>(t62);
        const P t64 = t58 + t63;
        io.pair(7, t64);
        const P t65 = t58 - t63;
        io.pair(3, t65);
    }
};

}  // namespace zulg
