// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 20.
// Forward DFT of 20 real points, prime-factor 5, 4; up to four lanes to a register.
// 13 sums, 11 differences, 8 products of registers, which do the 138 steps of the graph, those with
// `scale` included; 14 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<20> {
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
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x4_9_14_19 = io.in(4, 9, 14, 19);
        const Q x16_1_6_11 = io.in(16, 1, 6, 11);
        // real block of 5, multiplier 4
        const Q t0 = x4_9_14_19 + x16_1_6_11;
        const Q t1 = x4_9_14_19 - x16_1_6_11;
        const Q x8_17_18_7 = io.in(8, 17, 18, 7);
        const P x12_13 = io.in(12, 13);
        const P x2_3 = io.in(2, 3);
        const Q t2 = joined(x12_13, x2_3);
        const Q t3 = x8_17_18_7 + t2;
        const Q t4 = shuffled<0, 5, 2, 7>(t2, x8_17_18_7);
        const Q t5 = shuffled<0, 5, 2, 7>(x8_17_18_7, t2);
        const Q t6 = t4 - t5;
        const Q t7 = t0 + t3;
        const Q t8 = c[0] * t0;
        const Q t9 = c[1] * t3;
        const Q t10 = t8 - t9;
        const Q x0_5_10_15 = io.in(0, 5, 10, 15);
        const Q t11 = c[1] * t0;
        const Q t12 = x0_5_10_15 - t11;
        const Q t13 = t7 + x0_5_10_15;
        const P t14 = part<0>(t13);
        const P t15 = part<1>(t13);
        // real block of 2
        const P t16 = t14 + t15;
        const P t17 = t14 - t15;
        io.pair(5, negated<0, 1>(t17));
        const V t18 = part<0>(t16);
        const V t19 = part<1>(t16);
        // real block of 2
        const V t20 = t18 + t19;
        io.re(0, t20);
        const V t21 = t18 - t19;
        io.re(10, t21);
        // real block of 5, multiplier 4
        const Q t22 = t10 + x0_5_10_15;
        const Q t23 = c[2] * t1;
        const Q t24 = c[3] * t6;
        const Q t25 = t23 - t24;
        const Q t26 = c[0] * t3;
        const Q t27 = t12 + t26;
        const Q t28 = c[3] * t1;
        const Q t29 = c[2] * t6;
        const Q t30 = t28 + t29;
        const Q t31 = shuffled<0, 4, 2, 6>(t22, t25);
        const Q t32 = shuffled<0, 4, 2, 6>(t27, t30);
        const Q t33 = shuffled<0, 1, 4, 5>(t31, t32);
        const Q t34 = shuffled<2, 3, 6, 7>(t31, t32);
        // complex block of 2
        const Q t35 = t33 + t34;
        const Q t36 = t33 - t34;
        const Q t37 = shuffled<1, 5, 3, 7>(t22, t25);
        const Q t38 = shuffled<1, 5, 3, 7>(t27, t30);
        const Q t39 = shuffled<0, 1, 4, 5>(t37, t38);
        const Q t40 = shuffled<2, 3, 6, 7>(t37, t38);
        // complex block of 2
        const Q t41 = t39 + t40;
        const Q t42 = t39 - t40;
        // complex block of 2
        const Q t43 = t35 + t41;
        io.pairs(4, 8, t43);
        const Q t44 = t35 - t41;
        io.pairs(6, 2, negated<0, 1, 0, 1>(t44));
        const Q t45 = shuffled<1, 0, 3, 2>(t42);
        const Q t46 = flipped<0, 1, 0, 1>(t45);
        // complex block of 2
        const Q t47 = t36 + t46;
        io.pairs(9, 7, negated<0, 0, 0, 1>(t47));
        const Q t48 = t36 - t46;
        io.pairs(1, 3, negated<0, 1, 0, 0>(t48));
    }
};

}  // namespace zulg
