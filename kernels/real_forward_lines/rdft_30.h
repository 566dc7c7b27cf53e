// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 30.
// Forward DFT of 30 real points, prime-factor 5, 3, 2; up to four lanes to a register.
// 27 sums, 23 differences, 22 products of registers, which do the 256 steps of the graph, those with
// `scale` included; 26 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<30> {
    static constexpr int steps = 256;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x18_23_28_3 = io.in(18, 23, 28, 3);
        const Q x12_17_22_27 = io.in(12, 17, 22, 27);
        // real block of 5
        const Q t0 = x18_23_28_3 + x12_17_22_27;
        const Q t1 = x18_23_28_3 - x12_17_22_27;
        const Q x6_11_16_21 = io.in(6, 11, 16, 21);
        const Q x24_29_4_9 = io.in(24, 29, 4, 9);
        const Q t2 = x6_11_16_21 + x24_29_4_9;
        const Q t3 = x6_11_16_21 - x24_29_4_9;
        const Q t4 = t2 + t0;
        const Q x0_5_10_15 = io.in(0, 5, 10, 15);
        const Q t5 = t4 + x0_5_10_15;
        const Q t6 = c[0] * t2;
        const Q t7 = c[1] * t0;
        const Q t8 = t6 - t7;
        const Q t9 = t8 + x0_5_10_15;
        const Q t10 = c[2] * t1;
        const Q t11 = c[3] * t3;
        const Q t12 = t10 - t11;
        const Q t13 = c[1] * t2;
        const Q t14 = x0_5_10_15 - t13;
        const Q t15 = c[0] * t0;
        const Q t16 = t14 + t15;
        const Q t17 = c[2] * t3;
        const Q t18 = c[3] * t1;
        const Q t19 = t17 + t18;
        const P x26_1 = io.in(26, 1);
        const P x14_19 = io.in(14, 19);
        // real block of 5
        const P t20 = x26_1 + x14_19;
        const P t21 = x26_1 - x14_19;
        const P x8_13 = io.in(8, 13);
        const P x2_7 = io.in(2, 7);
        const P t22 = x8_13 + x2_7;
        const P t23 = x8_13 - x2_7;
        const P t24 = t20 + t22;
        const P x20_25 = io.in(20, 25);
        const P t25 = t24 + x20_25;
        const P t26 = c[0] * t20;
        const P t27 = c[1] * t22;
        const P t28 = t26 - t27;
        const P t29 = t28 + x20_25;
        const P t30 = c[2] * t23;
        const P t31 = c[3] * t21;
        const P t32 = t30 - t31;
        const P t33 = c[1] * t20;
        const P t34 = x20_25 - t33;
        const P t35 = c[0] * t22;
        const P t36 = t34 + t35;
        const P t37 = c[2] * t21;
        const P t38 = c[3] * t23;
        const P t39 = t37 + t38;
        const P t40 = part<1>(t5);
        const P t41 = part<0>(t5);
        const P t42 = shuffled<0, 3>(t40, t41);
        // real block of 3
        const P t43 = t25 + t42;
        const P t44 = shuffled<0, 3>(t41, t40);
        const P t45 = t43 + t44;
        const P t46 = shuffled<0, 3>(t42, t25);
        const P t47 = shuffled<0, 3>(t25, t42);
        const P t48 = t46 - t47;
        const P t49 = c[4] * t43;
        const P t50 = t44 - t49;
        const P t51 = c[5] * t48;
        const P t52 = shuffled<0, 2>(t50, t51);
        const P t53 = shuffled<1, 3>(t50, t51);
        // complex block of 2
        const P t54 = t52 + t53;
        io.pair(10, negated<0, 1>(t54));
        const P t55 = shuffled<0, 3>(t52, t53);
        const P t56 = shuffled<0, 3>(t53, t52);
        const P t57 = t55 - t56;
        io.pair(5, negated<0, 1>(t57));
        const V t58 = part<0>(t45);
        const V t59 = part<1>(t45);
        // real block of 2
        const V t60 = t58 + t59;
        io.re(0, t60);
        const V t61 = t58 - t59;
        io.re(15, t61);
        const Q t62 = shuffled<0, 4, 2, 6>(t9, t12);
        const Q t63 = shuffled<0, 4, 2, 6>(t16, t19);
        const Q t64 = shuffled<2, 3, 6, 7>(t62, t63);
        const P t65 = shuffled<0, 2>(t29, t32);
        const P t66 = shuffled<0, 2>(t36, t39);
        const Q t67 = joined(t65, t66);
        // complex block of 3
        const Q t68 = t64 + t67;
        const Q t69 = shuffled<0, 1, 4, 5>(t62, t63);
        const Q t70 = t68 + t69;
        const Q t71 = flipped<0, 0, 0, 1>(t69);
        const Q t72 = Q(c[4], c[4], c[4], -c[4]) * t68;
        const Q t73 = t71 - t72;
        const Q t74 = flipped<0, 0, 0, 1>(t64);
        const Q t75 = flipped<0, 0, 0, 1>(t67);
        const Q t76 = t74 - t75;
        const P t77 = shuffled<1, 3>(t29, t32);
        const P t78 = shuffled<1, 3>(t36, t39);
        const Q t79 = joined(t77, t78);
        const Q t80 = shuffled<1, 5, 3, 7>(t9, t12);
        const Q t81 = shuffled<1, 5, 3, 7>(t16, t19);
        const Q t82 = shuffled<0, 1, 4, 5>(t80, t81);
        // complex block of 3
        const Q t83 = t79 + t82;
        const Q t84 = shuffled<2, 3, 6, 7>(t80, t81);
        const Q t85 = t83 + t84;
        const Q t86 = flipped<0, 0, 0, 1>(t84);
        const Q t87 = Q(c[4], c[4], c[4], -c[4]) * t83;
        const Q t88 = t86 - t87;
        const Q t89 = flipped<0, 0, 0, 1>(t79);
        const Q t90 = flipped<0, 0, 0, 1>(t82);
        const Q t91 = t89 - t90;
        // complex block of 3
        const Q t92 = Q(-c[5], c[5], -c[5], c[5]) * t76;
        const Q t93 = shuffled<1, 0, 3, 2>(t92);
        const Q t94 = t73 + t93;
        // complex block of 3
        const Q t95 = Q(-c[5], c[5], -c[5], c[5]) * t91;
        const Q t96 = shuffled<1, 0, 3, 2>(t95);
        const Q t97 = t88 + t96;
        // complex block of 2
        const Q t98 = t94 + t97;
        io.pairs(14, 8, negated<0, 1, 0, 1>(t98));
        const Q t99 = t94 - t97;
        io.pairs(1, 7, t99);
        // complex block of 3
        const Q t100 = t73 - t93;
        // complex block of 3
        const Q t101 = t88 - t96;
        // complex block of 2
        const Q t102 = t100 + t101;
        io.pairs(4, 2, negated<0, 1, 0, 0>(t102));
        const Q t103 = t100 - t101;
        io.pairs(11, 13, negated<0, 0, 0, 1>(t103));
        // complex block of 2
        const Q t104 = t70 + t85;
        io.pairs(6, 12, negated<0, 0, 0, 1>(t104));
        const Q t105 = flipped<0, 0, 0, 1>(t70);
        const Q t106 = flipped<0, 0, 0, 1>(t85);
        const Q t107 = t105 - t106;
        io.pairs(9, 3, negated<0, 1, 0, 1>(t107));
    }
};

}  // namespace zulg
