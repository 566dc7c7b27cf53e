// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 9.
// Hartley transform of 9 points, form F; two lanes to a register.
// 15 sums, 9 differences, 10 products of registers, which do the 69 steps of the graph, those with
// `scale` included; 18 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<9> {
    static constexpr int steps = 69;  // with `scale`
    static constexpr double inverseRoot = 0.3333333333333333;  // 1/sqrt(9), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.766044443118978,  // c[2]: cos 2 pi 1/9
        0.6427876096865394,  // c[3]: sin 2 pi 1/9
        0.17364817766693036,  // c[4]: cos 2 pi 2/9
        0.984807753012208,  // c[5]: sin 2 pi 2/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x3_4 = io.in(3, 4);
        const P x6_7 = io.in(6, 7);
        // real block of 3
        const P t0 = x3_4 + x6_7;
        const P t1 = x3_4 - x6_7;
        const P x0_1 = io.in(0, 1);
        const P t2 = t0 + x0_1;
        const P t3 = c[0] * t0;
        const P t4 = x0_1 - t3;
        const V x5 = io.in(5);
        const V x8 = io.in(8);
        // real block of 3
        const V t5 = x5 + x8;
        const V x2 = io.in(2);
        const V t6 = t5 + x2;
        const V t7 = part<1>(t2);
        // real block of 3
        const V t8 = t7 + t6;
        const P t9 = joined(x5, t7);
        const P t10 = joined(x8, t6);
        // real block of 3
        const P t11 = t9 - t10;
        const V t12 = part<0>(t2);
        // real block of 3
        const V t13 = t8 + t12;
        io.out(0, t13);
        const P t14 = joined(x2, t12);
        const P t15 = joined(t5, t8);
        // real block of 3
        const P t16 = c[0] * t15;
        const P t17 = t14 - t16;
        // real block of 3
        const P t18 = c[1] * t1;
        const P t19 = shuffled<1, 3>(t4, t18);
        // real block of 9
        const P t20 = c[2] * t19;
        const P t21 = shuffled<1, 0>(t19);
        const P t22 = P(-c[3], c[3]) * t21;
        const P t23 = t20 + t22;
        // real block of 3
        const P t24 = c[1] * t11;
        const P t25 = shuffled<0, 2>(t17, t24);
        // real block of 9
        const P t26 = c[4] * t25;
        const P t27 = shuffled<1, 0>(t25);
        const P t28 = P(-c[5], c[5]) * t27;
        const P t29 = t26 + t28;
        // complex block of 3
        const P t30 = t23 + t29;
        const P t31 = shuffled<0, 3>(t23, t29);
        const P t32 = shuffled<0, 3>(t29, t23);
        const P t33 = t31 - t32;
        const P t34 = shuffled<0, 2>(t4, t18);
        const P t35 = t30 + t34;
        const P t36 = P(-c[0], c[0]) * t30;
        const P t37 = flipped<0, 1>(t34);
        const P t38 = t36 + t37;
        const P t39 = P(-c[1], c[1]) * t33;
        const P t40 = shuffled<1, 0>(t39);
        const P t41 = t38 + t40;
        const P t42 = t38 - t40;
        const V t43 = part<0>(t42);
        const V t44 = part<1>(t42);
        // output stage
        const V t45 = t43 + t44;
        io.out(2, t45);
        const V t46 = t43 - t44;
        io.out(7, t46);
        const V t47 = part<1>(t17);
        const V t48 = part<1>(t24);
        const V t49 = t47 + t48;
        io.out(3, t49);
        const V t50 = t47 - t48;
        io.out(6, t50);
        const P t51 = shuffled<0, 2>(t35, t41);
        const P t52 = shuffled<1, 3>(t35, t41);
        const P t53 = t51 - t52;
        io.out(8, 4, t53);
        const P t54 = t51 + t52;
        io.out(1, 5, t54);
    }
};

}  // namespace zulg
