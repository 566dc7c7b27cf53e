// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 12.
// Forward DFT of 12 real points, prime-factor 4, 3; two lanes to a register.
// 10 sums, 10 differences, 4 products of registers, which do the 58 steps of the graph, those with
// `scale` included; 10 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<12> {
    static constexpr int steps = 58;  // with `scale`
    static constexpr double inverseRoot = 0.2886751345948129;  // 1/sqrt(12), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_4 = io.in(0, 4);
        const P x6_10 = io.in(6, 10);
        // real block of 2
        const P t0 = x0_4 + x6_10;
        const P t1 = x0_4 - x6_10;
        const P x3_7 = io.in(3, 7);
        const P x9_1 = io.in(9, 1);
        // real block of 2
        const P t2 = x3_7 + x9_1;
        const P t3 = x3_7 - x9_1;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x8_11 = io.in(8, 11);
        const P x2_5 = io.in(2, 5);
        // real block of 2
        const P t6 = x8_11 + x2_5;
        const P t7 = x8_11 - x2_5;
        const V t8 = part<0>(t6);
        const V t9 = part<1>(t6);
        // real block of 2
        const V t10 = t8 + t9;
        const V t11 = t8 - t9;
        const P t12 = shuffled<1, 3>(t1, t3);
        // complex block of 3
        const P t13 = t12 + t7;
        const P t14 = t12 - t7;
        const P t15 = shuffled<0, 2>(t1, t3);
        const P t16 = t13 + t15;
        io.pair(3, t16);
        const P t17 = c[0] * t13;
        const P t18 = t15 - t17;
        const P t19 = P(-c[1], c[1]) * t14;
        const P t20 = shuffled<1, 0>(t19);
        const P t21 = t18 + t20;
        io.pair(5, negated<0, 1>(t21));
        const P t22 = t18 - t20;
        io.pair(1, negated<0, 1>(t22));
        const P t23 = shuffled<1, 3>(t4, t5);
        const P t24 = joined(t10, t11);
        // real block of 3
        const P t25 = t23 + t24;
        const P t26 = t23 - t24;
        const P t27 = shuffled<0, 2>(t4, t5);
        const P t28 = t25 + t27;
        const V t29 = part<0>(t28);
        io.re(0, t29);
        const V t30 = part<1>(t28);
        io.re(6, t30);
        const P t31 = c[0] * t25;
        const P t32 = t27 - t31;
        const P t33 = c[1] * t26;
        const P t34 = shuffled<1, 3>(t32, t33);
        io.pair(2, t34);
        const P t35 = shuffled<0, 2>(t32, t33);
        io.pair(4, negated<0, 1>(t35));
    }
};

}  // namespace zulg
