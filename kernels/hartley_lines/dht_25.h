// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 25.
// Hartley transform of 25 points, form I; up to four lanes to a register.
// 33 sums, 18 differences, 32 products of registers, which do the 313 steps of the graph, those with
// `scale` included; 49 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<25> {
    static constexpr int steps = 313;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.8763066800438636,  // c[4]: cos 2 pi 23/25
        0.48175367410171527,  // c[5]: -sin 2 pi 23/25
        0.5358267949789967,  // c[6]: cos 2 pi 21/25
        0.8443279255020151,  // c[7]: -sin 2 pi 21/25
        0.9685831611286311,  // c[8]: cos 2 pi 24/25
        0.2486898871648548,  // c[9]: -sin 2 pi 24/25
        0.7289686274214116,  // c[10]: cos 2 pi 22/25
        0.6845471059286887,  // c[11]: -sin 2 pi 22/25
        0.9980267284282716,  // c[12]: -sin 2 pi 19/25
        0.9048270524660196,  // c[13]: -sin 2 pi 17/25
        0.06279051952931337,  // c[14]: cos 2 pi 19/25
        0.42577929156507266,  // c[15]: -cos 2 pi 17/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x24_23_22_21 = io.in(24, 23, 22, 21);
        // input stage
        const Q t0 = x1_2_3_4 + x24_23_22_21;
        const Q t1 = x1_2_3_4 - x24_23_22_21;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x20_19_18_17 = io.in(20, 19, 18, 17);
        const Q t2 = x5_6_7_8 + x20_19_18_17;
        const Q t3 = x5_6_7_8 - x20_19_18_17;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x16_15_14_13 = io.in(16, 15, 14, 13);
        const Q t4 = x9_10_11_12 + x16_15_14_13;
        const Q t5 = x9_10_11_12 - x16_15_14_13;
        const Q t6 = shuffled<1, 5, 2, 6>(t2, t3);
        const Q t7 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t8 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t9 = shuffled<2, 3, 6, 7>(t7, t8);
        const Q t10 = flipped<0, 1, 0, 1>(t9);
        // complex block of 5
        const Q t11 = t6 + t10;
        const Q t12 = shuffled<0, 4, 3, 7>(t4, t5);
        const Q t13 = flipped<0, 1, 0, 0>(t12);
        const Q t14 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t15 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t16 = shuffled<2, 3, 6, 7>(t14, t15);
        const Q t17 = flipped<0, 0, 0, 1>(t16);
        const Q t18 = t13 + t17;
        const Q t19 = t11 + t18;
        const Q t20 = t6 - t10;
        const Q t21 = flipped<1, 0, 0, 1>(t17);
        const Q t22 = flipped<0, 1, 1, 0>(t13);
        const Q t23 = t21 + t22;
        const Q t24 = shuffled<0, 1, 4, 5>(t8, t7);
        const Q t25 = t19 + t24;
        const P t26 = part<0>(t2);
        const P t27 = part<0>(t25);
        const P t28 = shuffled<0, 2>(t26, t27);
        const P t29 = part<0>(t4);
        const P t30 = part<1>(t25);
        const P t31 = shuffled<1, 2>(t29, t30);
        // spectrum block of 5
        const P t32 = t28 + t31;
        const V t33 = part<0>(t32);
        const V x0 = io.in(0);
        const V t34 = t33 + x0;
        // complex block of 5
        const Q t35 = c[0] * t11;
        const Q t36 = c[1] * t18;
        const Q t37 = t35 - t36;
        const Q t38 = t37 + t24;
        const Q t39 = c[2] * t20;
        const Q t40 = Q(-c[3], c[3], -c[3], c[3]) * t23;
        const Q t41 = t39 + t40;
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        const Q t43 = flipped<1, 0, 1, 0>(t42);
        const Q t44 = t38 + t43;
        const Q t45 = t38 - t43;
        const Q t46 = c[1] * t11;
        const Q t47 = t24 - t46;
        const Q t48 = c[0] * t18;
        const Q t49 = t47 + t48;
        const Q t50 = c[3] * t20;
        const Q t51 = Q(c[2], -c[2], c[2], -c[2]) * t23;
        const Q t52 = t50 + t51;
        const Q t53 = shuffled<1, 0, 3, 2>(t52);
        const Q t54 = flipped<1, 0, 1, 0>(t53);
        const Q t55 = t49 + t54;
        const Q t56 = t49 - t54;
        const Q t57 = shuffled<0, 1, 4, 5>(t44, t55);
        // spectrum block of 25
        const Q t58 = Q(c[8], c[8], c[4], c[4]) * t57;
        const Q t59 = shuffled<1, 0, 3, 2>(t57);
        const Q t60 = Q(-c[9], c[9], -c[5], c[5]) * t59;
        const Q t61 = t58 + t60;
        const Q t62 = shuffled<0, 1, 4, 5>(t56, t45);
        const Q t63 = Q(c[10], c[10], c[6], c[6]) * t62;
        const Q t64 = shuffled<1, 0, 3, 2>(t62);
        const Q t65 = Q(-c[11], c[11], -c[7], c[7]) * t64;
        const Q t66 = t63 + t65;
        const Q t67 = shuffled<2, 3, 6, 7>(t44, t55);
        const Q t68 = Q(c[4], c[4], c[6], c[6]) * t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t67);
        const Q t70 = Q(-c[5], c[5], -c[7], c[7]) * t69;
        const Q t71 = t68 + t70;
        const Q t72 = shuffled<2, 3, 6, 7>(t56, t45);
        const Q t73 = shuffled<1, 0, 3, 2>(t72);
        const Q t74 = Q(-c[12], c[12], c[13], c[13]) * t73;
        const Q t75 = Q(c[14], c[14], c[15], -c[15]) * t72;
        const Q t76 = t74 + t75;
        // spectrum block of 5
        const P t77 = c[0] * t28;
        const P t78 = c[1] * t31;
        const P t79 = t77 - t78;
        const P t80 = joined(x0, t34);
        const P t81 = t79 + t80;
        const P t82 = part<0>(t3);
        const P t83 = shuffled<0, 3>(t82, t27);
        const P t84 = c[2] * t83;
        const P t85 = part<0>(t5);
        const P t86 = shuffled<1, 3>(t85, t30);
        const P t87 = c[3] * t86;
        const P t88 = t84 + t87;
        const P t89 = t81 - t88;
        const V t90 = part<1>(t89);
        io.out(20, t90);
        const P t91 = t81 + t88;
        const V t92 = part<1>(t91);
        io.out(5, t92);
        const P t93 = c[1] * t28;
        const P t94 = t80 - t93;
        const P t95 = c[0] * t31;
        const P t96 = t94 + t95;
        const P t97 = c[3] * t83;
        const P t98 = c[2] * t86;
        const P t99 = t97 - t98;
        const P t100 = t96 - t99;
        const V t101 = part<1>(t100);
        io.out(15, t101);
        const P t102 = t96 + t99;
        const V t103 = part<1>(t102);
        io.out(10, t103);
        const P t104 = part<0>(t61);
        const P t105 = part<1>(t61);
        const P t106 = shuffled<0, 2>(t104, t105);
        const P t107 = part<0>(t66);
        const P t108 = part<1>(t66);
        const P t109 = shuffled<0, 2>(t107, t108);
        const Q t110 = joined(t106, t109);
        const P t111 = part<0>(t71);
        const P t112 = part<1>(t71);
        const P t113 = shuffled<0, 2>(t111, t112);
        const P t114 = part<0>(t76);
        const P t115 = part<1>(t76);
        const P t116 = shuffled<0, 2>(t114, t115);
        const P t117 = flipped<0, 1>(t116);
        const Q t118 = joined(t113, t117);
        // spectrum block of 5
        const Q t119 = t110 + t118;
        const P t120 = shuffled<0, 2>(t89, t100);
        const P t121 = shuffled<0, 2>(t102, t91);
        const Q t122 = joined(t120, t121);
        const Q t123 = t119 + t122;
        io.out(24, 23, 22, 21, t123);
        const Q t124 = c[0] * t110;
        const Q t125 = c[1] * t118;
        const Q t126 = t124 - t125;
        const Q t127 = t126 + t122;
        const P t128 = shuffled<1, 3>(t104, t105);
        const P t129 = shuffled<1, 3>(t107, t108);
        const Q t130 = joined(t128, t129);
        const Q t131 = c[2] * t130;
        const P t132 = shuffled<1, 3>(t111, t112);
        const P t133 = shuffled<1, 3>(t114, t115);
        const Q t134 = joined(t132, t133);
        const Q t135 = c[3] * t134;
        const Q t136 = t131 + t135;
        const Q t137 = t127 - t136;
        io.out(19, 18, 17, 16, t137);
        const Q t138 = t127 + t136;
        io.out(4, 3, 2, 1, t138);
        const Q t139 = c[1] * t110;
        const Q t140 = t122 - t139;
        const Q t141 = c[0] * t118;
        const Q t142 = t140 + t141;
        const Q t143 = c[3] * t130;
        const Q t144 = c[2] * t134;
        const Q t145 = t143 - t144;
        const Q t146 = t142 - t145;
        io.out(14, 13, 12, 11, t146);
        const Q t147 = t142 + t145;
        io.out(9, 8, 7, 6, t147);
        const V t148 = part<1>(t32);
        // spectrum block of 5
        const V t149 = t148 + t34;
        io.out(0, t149);
    }
};

}  // namespace zulg
