// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 25.
// Forward DFT of 25 real points, twiddled 5, 5; up to four lanes to a register.
// 32 sums, 15 differences, 32 products of registers, which do the 289 steps of the graph, those with
// `scale` included; 29 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<25> {
    static constexpr int steps = 289;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.8763066800438636,  // c[4]: cos 2 pi 2/25
        0.48175367410171527,  // c[5]: sin 2 pi 2/25
        0.5358267949789967,  // c[6]: cos 2 pi 4/25
        0.8443279255020151,  // c[7]: sin 2 pi 4/25
        0.9685831611286311,  // c[8]: cos 2 pi 1/25
        0.2486898871648548,  // c[9]: sin 2 pi 1/25
        0.42577929156507266,  // c[10]: -cos 2 pi 8/25
        0.9048270524660196,  // c[11]: sin 2 pi 8/25
        0.7289686274214116,  // c[12]: cos 2 pi 3/25
        0.06279051952931337,  // c[13]: cos 2 pi 6/25
        0.6845471059286887,  // c[14]: sin 2 pi 3/25
        0.9980267284282716,  // c[15]: sin 2 pi 6/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x20_21_22_23 = io.in(20, 21, 22, 23);
        // real block of 5
        const Q t0 = x5_6_7_8 + x20_21_22_23;
        const Q x15_16_17_18 = io.in(15, 16, 17, 18);
        const Q x10_11_12_13 = io.in(10, 11, 12, 13);
        const Q t1 = x15_16_17_18 + x10_11_12_13;
        const Q t2 = x5_6_7_8 - x20_21_22_23;
        const Q t3 = x15_16_17_18 - x10_11_12_13;
        const Q t4 = t0 + t1;
        const Q x0_1_2_3 = io.in(0, 1, 2, 3);
        const Q t5 = t4 + x0_1_2_3;
        const V x19 = io.in(19);
        const P t6 = part<1>(t5);
        const V t7 = part<1>(t6);
        const P t8 = joined(x19, t7);
        const V x14 = io.in(14);
        const V t9 = part<0>(t6);
        const P t10 = joined(x14, t9);
        // real block of 5
        const P t11 = t8 + t10;
        const V x9 = io.in(9);
        const V x24 = io.in(24);
        const V t12 = x9 + x24;
        // real block of 5
        const Q t13 = c[0] * t0;
        const Q t14 = c[1] * t1;
        const Q t15 = t13 - t14;
        const Q t16 = t15 + x0_1_2_3;
        const Q t17 = c[2] * t3;
        const Q t18 = c[3] * t2;
        const Q t19 = t17 - t18;
        const Q t20 = c[1] * t0;
        const Q t21 = x0_1_2_3 - t20;
        const Q t22 = c[0] * t1;
        const Q t23 = t21 + t22;
        const Q t24 = c[2] * t2;
        const Q t25 = c[3] * t3;
        const Q t26 = t24 + t25;
        const V t27 = part<0>(t11);
        // real block of 5
        const V t28 = t12 + t27;
        const V x4 = io.in(4);
        const V t29 = t28 + x4;
        const P t30 = part<0>(t5);
        const V t31 = part<1>(t30);
        // real block of 5
        const V t32 = t31 + t29;
        const P t33 = joined(x9, t31);
        const P t34 = joined(x24, t29);
        // real block of 5
        const P t35 = t33 - t34;
        const P t36 = t8 - t10;
        const V t37 = part<1>(t11);
        // real block of 5
        const V t38 = t32 + t37;
        const V t39 = part<0>(t30);
        const V t40 = t38 + t39;
        io.re(0, t40);
        const P t41 = joined(t12, t32);
        // real block of 5
        const P t42 = c[0] * t41;
        const P t43 = c[1] * t11;
        const P t44 = t42 - t43;
        const P t45 = joined(x4, t39);
        const P t46 = t44 + t45;
        const P t47 = c[2] * t36;
        const P t48 = c[3] * t35;
        const P t49 = t47 - t48;
        const P t50 = shuffled<1, 3>(t46, t49);
        io.pair(5, t50);
        const P t51 = c[1] * t41;
        const P t52 = t45 - t51;
        const P t53 = c[0] * t11;
        const P t54 = t52 + t53;
        const P t55 = c[2] * t35;
        const P t56 = c[3] * t36;
        const P t57 = t55 + t56;
        const P t58 = shuffled<1, 3>(t54, t57);
        io.pair(10, negated<0, 1>(t58));
        const Q t59 = shuffled<1, 5, 3, 7>(t16, t19);
        const Q t60 = shuffled<1, 5, 3, 7>(t23, t26);
        const Q t61 = shuffled<0, 1, 4, 5>(t59, t60);
        // real block of 25
        const Q t62 = Q(c[8], c[8], c[4], c[4]) * t61;
        const Q t63 = shuffled<1, 0, 3, 2>(t61);
        const Q t64 = Q(c[9], -c[9], -c[5], c[5]) * t63;
        const Q t65 = t62 + t64;
        const P t66 = shuffled<0, 2>(t46, t49);
        const P t67 = shuffled<0, 2>(t54, t57);
        const Q t68 = joined(t66, t67);
        const Q t69 = Q(c[6], c[6], c[10], c[10]) * t68;
        const Q t70 = shuffled<1, 0, 3, 2>(t68);
        const Q t71 = Q(c[7], -c[7], c[11], -c[11]) * t70;
        const Q t72 = t69 + t71;
        const Q t73 = flipped<0, 0, 1, 0>(t72);
        const Q t74 = flipped<0, 0, 0, 1>(t65);
        // complex block of 5
        const Q t75 = t73 + t74;
        const Q t76 = shuffled<0, 4, 2, 6>(t16, t19);
        const Q t77 = shuffled<0, 4, 2, 6>(t23, t26);
        const Q t78 = shuffled<2, 3, 6, 7>(t76, t77);
        // real block of 25
        const Q t79 = Q(c[4], c[4], c[6], c[6]) * t78;
        const Q t80 = shuffled<1, 0, 3, 2>(t78);
        const Q t81 = Q(c[5], -c[5], -c[7], c[7]) * t80;
        const Q t82 = t79 + t81;
        const Q t83 = shuffled<2, 3, 6, 7>(t59, t60);
        const Q t84 = Q(c[12], c[12], c[13], c[13]) * t83;
        const Q t85 = shuffled<1, 0, 3, 2>(t83);
        const Q t86 = Q(c[14], -c[14], -c[15], c[15]) * t85;
        const Q t87 = t84 + t86;
        // complex block of 5
        const Q t88 = t87 + t82;
        const Q t89 = flipped<0, 0, 0, 1>(t87);
        const Q t90 = flipped<0, 0, 0, 1>(t82);
        const Q t91 = t89 - t90;
        const Q t92 = flipped<1, 1, 1, 0>(t73);
        const Q t93 = t65 + t92;
        const Q t94 = c[0] * t75;
        const Q t95 = Q(c[1], c[1], c[1], -c[1]) * t88;
        const Q t96 = t94 - t95;
        const Q t97 = shuffled<0, 1, 4, 5>(t76, t77);
        const Q t98 = Q(c[1], c[1], c[1], -c[1]) * t75;
        const Q t99 = t97 - t98;
        const Q t100 = flipped<0, 0, 0, 1>(t97);
        const Q t101 = t96 + t100;
        const Q t102 = c[3] * t93;
        const Q t103 = Q(c[2], c[2], c[2], -c[2]) * t91;
        const Q t104 = t102 - t103;
        const Q t105 = shuffled<1, 0, 3, 2>(t104);
        const Q t106 = flipped<1, 0, 0, 0>(t105);
        const Q t107 = t101 - t106;
        io.pairs(6, 7, t107);
        const Q t108 = t101 + t106;
        io.pairs(4, 3, negated<0, 1, 0, 1>(t108));
        const Q t109 = c[0] * t88;
        const Q t110 = t99 + t109;
        const Q t111 = c[3] * t91;
        const Q t112 = Q(c[2], c[2], c[2], -c[2]) * t93;
        const Q t113 = t111 + t112;
        const Q t114 = shuffled<1, 0, 3, 2>(t113);
        const Q t115 = flipped<0, 1, 0, 0>(t114);
        const Q t116 = t110 + t115;
        io.pairs(11, 12, negated<0, 0, 0, 1>(t116));
        const Q t117 = flipped<1, 1, 1, 0>(t115);
        const Q t118 = flipped<0, 0, 0, 1>(t110);
        const Q t119 = t117 + t118;
        io.pairs(9, 8, negated<0, 1, 0, 1>(t119));
        const Q t120 = flipped<0, 0, 0, 1>(t88);
        const Q t121 = t75 + t120;
        const Q t122 = t121 + t100;
        io.pairs(1, 2, t122);
    }
};

}  // namespace zulg
