// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 25.
// Inverse DFT to 25 real points, twiddled 5, 5; up to four lanes to a register.
// 30 sums, 15 differences, 39 products of registers, which do the 313 steps of the graph, those with
// `scale` included; 40 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<25> {
    static constexpr int steps = 313;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.8763066800438636,  // c[5]: cos 2 pi 23/25
        0.48175367410171527,  // c[6]: -sin 2 pi 23/25
        0.5358267949789967,  // c[7]: cos 2 pi 21/25
        0.8443279255020151,  // c[8]: -sin 2 pi 21/25
        0.9685831611286311,  // c[9]: cos 2 pi 24/25
        0.2486898871648548,  // c[10]: -sin 2 pi 24/25
        0.7289686274214116,  // c[11]: cos 2 pi 22/25
        0.6845471059286887,  // c[12]: -sin 2 pi 22/25
        0.9980267284282716,  // c[13]: -sin 2 pi 19/25
        0.9048270524660196,  // c[14]: -sin 2 pi 17/25
        0.06279051952931337,  // c[15]: cos 2 pi 19/25
        0.42577929156507266,  // c[16]: -cos 2 pi 17/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const Q x6_7 = io.pairs(6, 7);
        // doubled bins
        const Q t0 = c[0] * x6_7;
        const Q x4_3 = io.pairs(4, 3);
        const Q t1 = Q(c[0], -c[0], c[0], -c[0]) * x4_3;
        // complex block of 5
        const Q t2 = t0 + t1;
        const Q x11_12 = io.pairs(11, 12);
        // doubled bins
        const Q t3 = c[0] * x11_12;
        const Q x9_8 = io.pairs(9, 8);
        const Q t4 = Q(c[0], -c[0], c[0], -c[0]) * x9_8;
        // complex block of 5
        const Q t5 = t3 + t4;
        const Q t6 = t2 + t5;
        const Q t7 = t0 - t1;
        const Q t8 = flipped<0, 1, 0, 1>(t4);
        const Q t9 = flipped<1, 0, 1, 0>(t3);
        const Q t10 = t8 + t9;
        const Q x1_2 = io.pairs(1, 2);
        // doubled bins
        const Q t11 = c[0] * x1_2;
        // complex block of 5
        const Q t12 = t6 + t11;
        const P x5 = io.pair(5);
        // doubled bins
        const P t13 = c[0] * x5;
        const P t14 = part<0>(t12);
        const P t15 = shuffled<0, 2>(t13, t14);
        const P x10 = io.pair(10);
        const P t16 = c[0] * x10;
        const P t17 = part<1>(t12);
        const P t18 = shuffled<0, 2>(t16, t17);
        // spectrum block of 5
        const P t19 = t15 + t18;
        const V t20 = part<0>(t19);
        const V x0r = io.re(0);
        const V t21 = t20 + x0r;
        // complex block of 5
        const Q t22 = c[1] * t2;
        const Q t23 = c[2] * t5;
        const Q t24 = t22 - t23;
        const Q t25 = t24 + t11;
        const Q t26 = c[3] * t7;
        const Q t27 = Q(-c[4], c[4], -c[4], c[4]) * t10;
        const Q t28 = t26 + t27;
        const Q t29 = shuffled<1, 0, 3, 2>(t28);
        const Q t30 = flipped<1, 0, 1, 0>(t29);
        const Q t31 = t25 + t30;
        const Q t32 = t25 - t30;
        const Q t33 = c[2] * t2;
        const Q t34 = t11 - t33;
        const Q t35 = c[1] * t5;
        const Q t36 = t34 + t35;
        const Q t37 = c[4] * t7;
        const Q t38 = Q(c[3], -c[3], c[3], -c[3]) * t10;
        const Q t39 = t37 + t38;
        const Q t40 = shuffled<1, 0, 3, 2>(t39);
        const Q t41 = flipped<1, 0, 1, 0>(t40);
        const Q t42 = t36 + t41;
        const Q t43 = t36 - t41;
        const Q t44 = shuffled<0, 1, 4, 5>(t31, t42);
        // spectrum block of 25
        const Q t45 = Q(c[9], c[9], c[5], c[5]) * t44;
        const Q t46 = shuffled<1, 0, 3, 2>(t44);
        const Q t47 = Q(-c[10], c[10], -c[6], c[6]) * t46;
        const Q t48 = t45 + t47;
        const Q t49 = shuffled<0, 1, 4, 5>(t43, t32);
        const Q t50 = Q(c[11], c[11], c[7], c[7]) * t49;
        const Q t51 = shuffled<1, 0, 3, 2>(t49);
        const Q t52 = Q(-c[12], c[12], -c[8], c[8]) * t51;
        const Q t53 = t50 + t52;
        const Q t54 = shuffled<2, 3, 6, 7>(t31, t42);
        const Q t55 = Q(c[5], c[5], c[7], c[7]) * t54;
        const Q t56 = shuffled<1, 0, 3, 2>(t54);
        const Q t57 = Q(-c[6], c[6], -c[8], c[8]) * t56;
        const Q t58 = t55 + t57;
        const Q t59 = shuffled<2, 3, 6, 7>(t43, t32);
        const Q t60 = shuffled<1, 0, 3, 2>(t59);
        const Q t61 = Q(-c[13], c[13], c[14], c[14]) * t60;
        const Q t62 = Q(c[15], c[15], c[16], -c[16]) * t59;
        const Q t63 = t61 + t62;
        // spectrum block of 5
        const P t64 = c[1] * t15;
        const P t65 = c[2] * t18;
        const P t66 = t64 - t65;
        const P t67 = joined(x0r, t21);
        const P t68 = t66 + t67;
        const P t69 = shuffled<1, 3>(t13, t14);
        const P t70 = c[3] * t69;
        const P t71 = shuffled<1, 3>(t16, t17);
        const P t72 = c[4] * t71;
        const P t73 = t70 + t72;
        const P t74 = t68 - t73;
        const V t75 = part<1>(t74);
        io.out(5, t75);
        const P t76 = t68 + t73;
        const V t77 = part<1>(t76);
        io.out(20, t77);
        const P t78 = c[2] * t15;
        const P t79 = t67 - t78;
        const P t80 = c[1] * t18;
        const P t81 = t79 + t80;
        const P t82 = c[4] * t69;
        const P t83 = c[3] * t71;
        const P t84 = t82 - t83;
        const P t85 = t81 - t84;
        const V t86 = part<1>(t85);
        io.out(10, t86);
        const P t87 = t81 + t84;
        const V t88 = part<1>(t87);
        io.out(15, t88);
        const P t89 = part<0>(t48);
        const P t90 = part<1>(t48);
        const P t91 = shuffled<0, 2>(t89, t90);
        const P t92 = part<0>(t53);
        const P t93 = part<1>(t53);
        const P t94 = shuffled<0, 2>(t92, t93);
        const Q t95 = joined(t91, t94);
        const P t96 = part<0>(t58);
        const P t97 = part<1>(t58);
        const P t98 = shuffled<0, 2>(t96, t97);
        const P t99 = part<0>(t63);
        const P t100 = part<1>(t63);
        const P t101 = shuffled<0, 2>(t99, t100);
        const P t102 = flipped<0, 1>(t101);
        const Q t103 = joined(t98, t102);
        // spectrum block of 5
        const Q t104 = t95 + t103;
        const P t105 = shuffled<0, 2>(t74, t85);
        const P t106 = shuffled<0, 2>(t87, t76);
        const Q t107 = joined(t105, t106);
        const Q t108 = t104 + t107;
        io.out(1, 2, 3, 4, t108);
        const Q t109 = c[1] * t95;
        const Q t110 = c[2] * t103;
        const Q t111 = t109 - t110;
        const Q t112 = t111 + t107;
        const P t113 = shuffled<1, 3>(t89, t90);
        const P t114 = shuffled<1, 3>(t92, t93);
        const Q t115 = joined(t113, t114);
        const Q t116 = c[3] * t115;
        const P t117 = shuffled<1, 3>(t96, t97);
        const P t118 = shuffled<1, 3>(t99, t100);
        const Q t119 = joined(t117, t118);
        const Q t120 = c[4] * t119;
        const Q t121 = t116 + t120;
        const Q t122 = t112 - t121;
        io.out(6, 7, 8, 9, t122);
        const Q t123 = t112 + t121;
        io.out(21, 22, 23, 24, t123);
        const Q t124 = c[2] * t95;
        const Q t125 = t107 - t124;
        const Q t126 = c[1] * t103;
        const Q t127 = t125 + t126;
        const Q t128 = c[4] * t115;
        const Q t129 = c[3] * t119;
        const Q t130 = t128 - t129;
        const Q t131 = t127 - t130;
        io.out(11, 12, 13, 14, t131);
        const Q t132 = t127 + t130;
        io.out(16, 17, 18, 19, t132);
        const V t133 = part<1>(t19);
        // spectrum block of 5
        const V t134 = t133 + t21;
        io.out(0, t134);
    }
};

}  // namespace zulg
