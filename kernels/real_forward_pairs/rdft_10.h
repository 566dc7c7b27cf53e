// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 10.
// Forward DFT of 10 real points, prime-factor 5, 2; two lanes to a register.
// 10 sums, 8 differences, 8 products of registers, which do the 60 steps of the graph, those with
// `scale` included; 9 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<10> {
    static constexpr int steps = 60;  // with `scale`
    static constexpr double inverseRoot = 0.31622776601683794;  // 1/sqrt(10), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x8_7 = io.in(8, 7);
        const P x2_3 = io.in(2, 3);
        // real block of 5, multiplier 2
        const P t0 = x8_7 + x2_3;
        const P t1 = shuffled<0, 3>(x2_3, x8_7);
        const P t2 = shuffled<0, 3>(x8_7, x2_3);
        const P t3 = t1 - t2;
        const P x6_1 = io.in(6, 1);
        const P x4_9 = io.in(4, 9);
        const P t4 = x6_1 + x4_9;
        const P t5 = x6_1 - x4_9;
        const P t6 = t0 + t4;
        const P x0_5 = io.in(0, 5);
        const P t7 = t6 + x0_5;
        const P t8 = c[0] * t0;
        const P t9 = x0_5 - t8;
        const P t10 = c[1] * t4;
        const P t11 = t9 + t10;
        const P t12 = c[2] * t3;
        const P t13 = c[3] * t5;
        const P t14 = t12 + t13;
        const P t15 = c[1] * t0;
        const P t16 = c[0] * t4;
        const P t17 = t15 - t16;
        const P t18 = t17 + x0_5;
        const P t19 = c[3] * t3;
        const P t20 = c[2] * t5;
        const P t21 = t19 - t20;
        const V t22 = part<0>(t7);
        const V t23 = part<1>(t7);
        // real block of 2
        const V t24 = t22 + t23;
        io.re(0, t24);
        const V t25 = t22 - t23;
        io.re(5, t25);
        const P t26 = shuffled<0, 2>(t11, t14);
        const P t27 = shuffled<1, 3>(t11, t14);
        // complex block of 2
        const P t28 = t26 + t27;
        io.pair(2, negated<0, 1>(t28));
        const P t29 = shuffled<0, 3>(t26, t27);
        const P t30 = shuffled<0, 3>(t27, t26);
        const P t31 = t29 - t30;
        io.pair(3, negated<0, 1>(t31));
        const P t32 = shuffled<0, 2>(t18, t21);
        const P t33 = shuffled<1, 3>(t18, t21);
        // complex block of 2
        const P t34 = t32 + t33;
        io.pair(4, t34);
        const P t35 = t32 - t33;
        io.pair(1, negated<0, 1>(t35));
    }
};

}  // namespace zulg
