// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 30.
// Inverse DFT to 30 real points, prime-factor 3, 5, 2; up to four lanes to a register.
// 30 sums, 20 differences, 29 products of registers, which do the 282 steps of the graph, those with
// `scale` included; 36 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<30> {
    static constexpr int steps = 282;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.5,  // c[5]: -cos 2 pi 1/3
        0.8660254037844386,  // c[6]: sin 2 pi 1/3
        1.7320508075688772,  // c[7]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const P x10 = io.pair(10);
        const P x5 = io.pair(5);
        const P t0 = shuffled<0, 2>(x10, x5);
        // doubled bins
        const P t1 = c[0] * t0;
        const V x0r = io.re(0);
        const V x15r = io.re(15);
        const P t2 = joined(x0r, x15r);
        // spectrum block of 3
        const P t3 = t1 + t2;
        const P t4 = c[5] * t1;
        const P t5 = t2 - t4;
        const P t6 = shuffled<1, 3>(x10, x5);
        const P t7 = P(-c[7], c[7]) * t6;
        const P t8 = t5 + t7;
        const P t9 = t5 - t7;
        const Q x1_2 = io.pairs(1, 2);
        // doubled bins
        const Q t10 = c[0] * x1_2;
        const Q x11_8 = io.pairs(11, 8);
        const Q t11 = Q(c[0], c[0], c[0], -c[0]) * x11_8;
        // complex block of 3
        const Q t12 = t10 + t11;
        const Q t13 = shuffled<0, 5, 2, 7>(t11, t10);
        const Q t14 = shuffled<0, 5, 2, 7>(t10, t11);
        const Q t15 = t13 - t14;
        const Q t16 = flipped<0, 1, 0, 0>(t12);
        const Q x9_12 = io.pairs(9, 12);
        // doubled bins
        const Q t17 = c[0] * x9_12;
        // complex block of 3
        const Q t18 = t16 + t17;
        const Q t19 = Q(c[5], -c[5], c[5], c[5]) * t12;
        const Q t20 = t17 - t19;
        const Q t21 = Q(c[6], -c[6], c[6], c[6]) * t15;
        const Q t22 = shuffled<1, 0, 3, 2>(t21);
        const Q t23 = t20 + t22;
        const Q t24 = t20 - t22;
        const Q x13_14 = io.pairs(13, 14);
        // doubled bins
        const Q t25 = c[0] * x13_14;
        const Q x7_4 = io.pairs(7, 4);
        const Q t26 = Q(c[0], -c[0], c[0], c[0]) * x7_4;
        // complex block of 3
        const Q t27 = t25 + t26;
        const Q t28 = flipped<1, 1, 1, 0>(t26);
        const Q t29 = flipped<0, 0, 0, 1>(t25);
        const Q t30 = t28 + t29;
        const Q x3_6 = io.pairs(3, 6);
        // doubled bins
        const Q t31 = c[0] * x3_6;
        const Q t32 = flipped<0, 0, 0, 1>(t27);
        // complex block of 3
        const Q t33 = t31 + t32;
        const Q t34 = Q(c[5], c[5], c[5], -c[5]) * t27;
        const Q t35 = t31 - t34;
        const Q t36 = Q(c[6], -c[6], c[6], -c[6]) * t30;
        const Q t37 = shuffled<1, 0, 3, 2>(t36);
        const Q t38 = t35 + t37;
        const Q t39 = t35 - t37;
        const Q t40 = shuffled<0, 4, 2, 6>(t33, t38);
        const Q t41 = shuffled<0, 4, 2, 6>(t18, t23);
        const Q t42 = shuffled<2, 3, 4, 5>(t40, t41);
        const Q t43 = shuffled<2, 3, 4, 5>(t41, t40);
        // spectrum block of 5
        const Q t44 = t42 + t43;
        const P t45 = shuffled<0, 2>(t3, t8);
        const P t46 = shuffled<1, 3>(t3, t8);
        const Q t47 = joined(t45, t46);
        const Q t48 = t44 + t47;
        const Q t49 = c[1] * t42;
        const Q t50 = c[2] * t43;
        const Q t51 = t49 - t50;
        const Q t52 = t51 + t47;
        const Q t53 = shuffled<1, 5, 3, 7>(t33, t38);
        const Q t54 = shuffled<1, 5, 3, 7>(t18, t23);
        const Q t55 = shuffled<2, 3, 4, 5>(t53, t54);
        const Q t56 = c[3] * t55;
        const Q t57 = shuffled<2, 3, 4, 5>(t54, t53);
        const Q t58 = c[4] * t57;
        const Q t59 = t56 + t58;
        const Q t60 = flipped<1, 1, 0, 0>(t59);
        const Q t61 = t52 + t60;
        const Q t62 = shuffled<0, 1, 4, 5>(t48, t61);
        const Q t63 = shuffled<2, 3, 6, 7>(t48, t61);
        // spectrum block of 2
        const Q t64 = t62 + t63;
        io.out(0, 10, 6, 16, t64);
        const Q t65 = t62 - t63;
        io.out(15, 25, 21, 1, t65);
        // spectrum block of 5
        const Q t66 = t52 - t60;
        const P t67 = part<0>(t66);
        const P t68 = part<1>(t66);
        // spectrum block of 2
        const P t69 = t67 + t68;
        io.out(24, 4, t69);
        const P t70 = t67 - t68;
        io.out(9, 19, t70);
        // spectrum block of 5
        const Q t71 = c[2] * t42;
        const Q t72 = t47 - t71;
        const Q t73 = c[1] * t43;
        const Q t74 = t72 + t73;
        const Q t75 = Q(-c[3], -c[3], c[3], c[3]) * t57;
        const Q t76 = Q(c[4], c[4], -c[4], -c[4]) * t55;
        const Q t77 = t75 + t76;
        const Q t78 = t74 - t77;
        const Q t79 = t74 + t77;
        const Q t80 = shuffled<0, 1, 4, 5>(t78, t79);
        const Q t81 = shuffled<2, 3, 6, 7>(t78, t79);
        // spectrum block of 2
        const Q t82 = t80 + t81;
        io.out(12, 22, 18, 28, t82);
        const Q t83 = t80 - t81;
        io.out(27, 7, 3, 13, t83);
        const P t84 = part<1>(t39);
        const P t85 = part<0>(t24);
        const P t86 = shuffled<0, 2>(t84, t85);
        const P t87 = part<1>(t24);
        const P t88 = part<0>(t39);
        const P t89 = shuffled<0, 2>(t87, t88);
        // spectrum block of 5
        const P t90 = t86 + t89;
        const P t91 = t90 + t9;
        const P t92 = c[1] * t86;
        const P t93 = c[2] * t89;
        const P t94 = t92 - t93;
        const P t95 = t94 + t9;
        const P t96 = shuffled<1, 3>(t84, t85);
        const P t97 = c[3] * t96;
        const P t98 = shuffled<1, 3>(t87, t88);
        const P t99 = c[4] * t98;
        const P t100 = t97 + t99;
        const P t101 = c[2] * t86;
        const P t102 = t9 - t101;
        const P t103 = c[1] * t89;
        const P t104 = t102 + t103;
        const P t105 = P(-c[3], c[3]) * t98;
        const P t106 = P(c[4], -c[4]) * t96;
        const P t107 = t105 + t106;
        const P t108 = flipped<1, 0>(t100);
        const P t109 = t95 + t108;
        const P t110 = t104 - t107;
        const P t111 = t104 + t107;
        const P t112 = shuffled<0, 2>(t91, t109);
        const P t113 = shuffled<0, 2>(t110, t111);
        const Q t114 = joined(t112, t113);
        const P t115 = shuffled<1, 3>(t91, t109);
        const P t116 = shuffled<1, 3>(t110, t111);
        const Q t117 = joined(t115, t116);
        // spectrum block of 2
        const Q t118 = t114 + t117;
        io.out(20, 26, 2, 8, t118);
        const Q t119 = t114 - t117;
        io.out(5, 11, 17, 23, t119);
        // spectrum block of 5
        const P t120 = t95 - t108;
        const V t121 = part<0>(t120);
        const V t122 = part<1>(t120);
        // spectrum block of 2
        const V t123 = t121 + t122;
        io.out(14, t123);
        const V t124 = t121 - t122;
        io.out(29, t124);
    }
};

}  // namespace zulg
