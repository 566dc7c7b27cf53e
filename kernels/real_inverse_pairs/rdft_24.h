// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 24.
// Inverse DFT to 24 real points, prime-factor 8, 3; two lanes to a register.
// 32 sums, 24 differences, 23 products of registers, which do the 172 steps of the graph, those with
// `scale` included; 19 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<24> {
    static constexpr int steps = 172;  // with `scale`
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.7071067811865476,  // c[3]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x12r = io.re(12);
        // spectrum block of 2
        const V t0 = x0r + x12r;
        const V t1 = x0r - x12r;
        const P t2 = joined(t0, t1);
        const P x6 = io.pair(6);
        // doubled bins
        const P t3 = c[0] * x6;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x9 = io.pair(9);
        // doubled bins
        const P t6 = c[0] * x9;
        const V t7 = part<0>(t6);
        const P x3 = io.pair(3);
        const P t8 = c[0] * x3;
        const V t9 = part<0>(t8);
        // mirrored skew block of 4, multiplier 3
        const V t10 = t7 - t9;
        const V t11 = part<1>(t6);
        const V t12 = part<1>(t8);
        const V t13 = t11 + t12;
        const V t14 = t7 + t9;
        const V t15 = c[3] * t10;
        const V t16 = c[3] * t13;
        const V t17 = t15 - t16;
        const V t18 = t11 - t12;
        const V t19 = t15 + t16;
        const P t20 = joined(t14, t17);
        // spectrum block of 2
        const P t21 = t4 + t20;
        const P t22 = t4 - t20;
        const P t23 = joined(t18, t19);
        // spectrum block of 2
        const P t24 = t5 - t23;
        const P t25 = t5 + t23;
        const P x8 = io.pair(8);
        // doubled bins
        const P t26 = c[0] * x8;
        const P x4 = io.pair(4);
        const P t27 = P(c[0], -c[0]) * x4;
        // complex block of 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P x11 = io.pair(11);
        // doubled bins
        const P t30 = c[0] * x11;
        const P x1 = io.pair(1);
        const P t31 = P(c[0], -c[0]) * x1;
        // complex block of 2
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P x2 = io.pair(2);
        // doubled bins
        const P t34 = c[0] * x2;
        const P x10 = io.pair(10);
        const P t35 = P(c[0], -c[0]) * x10;
        // complex block of 2
        const P t36 = t34 + t35;
        const P t37 = flipped<0, 1>(t35);
        const P t38 = flipped<1, 0>(t34);
        const P t39 = t37 + t38;
        const P x5 = io.pair(5);
        // doubled bins
        const P t40 = c[0] * x5;
        const P x7 = io.pair(7);
        const P t41 = P(c[0], -c[0]) * x7;
        // complex block of 2
        const P t42 = t40 + t41;
        const P t43 = flipped<0, 1>(t41);
        const P t44 = flipped<1, 0>(t40);
        const P t45 = t43 + t44;
        // complex block of 2
        const P t46 = t28 + t36;
        const P t47 = t28 - t36;
        // complex block of 2
        const P t48 = t32 + t42;
        const P t49 = t32 - t42;
        // complex block of 2
        const P t50 = t46 + t48;
        const P t51 = t46 - t48;
        const P t52 = shuffled<1, 0>(t49);
        const P t53 = flipped<0, 1>(t52);
        // complex block of 2
        const P t54 = t47 + t53;
        const P t55 = t47 - t53;
        // complex block of 8, multiplier 3
        const P t56 = c[3] * t33;
        const P t57 = shuffled<1, 0>(t56);
        const P t58 = flipped<1, 0>(t57);
        const P t59 = t56 + t58;
        const P t60 = c[3] * t45;
        const P t61 = shuffled<1, 0>(t60);
        const P t62 = flipped<0, 1>(t60);
        const P t63 = t61 + t62;
        const P t64 = shuffled<1, 0>(t39);
        // complex block of 2
        const P t65 = t29 - t64;
        const P t66 = t29 + t64;
        const P t67 = shuffled<1, 0>(t59);
        const P t68 = flipped<1, 0>(t67);
        // complex block of 2
        const P t69 = t68 + t63;
        const P t70 = flipped<0, 1>(t63);
        const P t71 = t67 + t70;
        // complex block of 2
        const P t72 = t65 + t69;
        const P t73 = t65 - t69;
        const P t74 = shuffled<1, 0>(t71);
        // complex block of 2
        const P t75 = t66 + t74;
        const P t76 = t66 - t74;
        const P t77 = shuffled<0, 2>(t50, t72);
        // spectrum block of 3, multiplier 2
        const P t78 = t77 + t21;
        io.out(0, 3, t78);
        const P t79 = c[1] * t77;
        const P t80 = t21 - t79;
        const P t81 = shuffled<1, 3>(t50, t72);
        const P t82 = c[2] * t81;
        const P t83 = t80 - t82;
        io.out(16, 19, t83);
        const P t84 = t80 + t82;
        io.out(8, 11, t84);
        const P t85 = shuffled<0, 2>(t54, t75);
        // spectrum block of 3, multiplier 2
        const P t86 = t85 + t24;
        io.out(6, 9, t86);
        const P t87 = c[1] * t85;
        const P t88 = t24 - t87;
        const P t89 = shuffled<1, 3>(t54, t75);
        const P t90 = c[2] * t89;
        const P t91 = t88 - t90;
        io.out(22, 1, t91);
        const P t92 = t88 + t90;
        io.out(14, 17, t92);
        const P t93 = shuffled<0, 2>(t51, t73);
        // spectrum block of 3, multiplier 2
        const P t94 = t93 + t22;
        io.out(12, 15, t94);
        const P t95 = c[1] * t93;
        const P t96 = t22 - t95;
        const P t97 = shuffled<1, 3>(t51, t73);
        const P t98 = c[2] * t97;
        const P t99 = t96 - t98;
        io.out(4, 7, t99);
        const P t100 = t96 + t98;
        io.out(20, 23, t100);
        const P t101 = shuffled<0, 2>(t55, t76);
        // spectrum block of 3, multiplier 2
        const P t102 = t101 + t25;
        io.out(18, 21, t102);
        const P t103 = c[1] * t101;
        const P t104 = t25 - t103;
        const P t105 = shuffled<1, 3>(t55, t76);
        const P t106 = c[2] * t105;
        const P t107 = t104 - t106;
        io.out(10, 13, t107);
        const P t108 = t104 + t106;
        io.out(2, 5, t108);
    }
};

}  // namespace zulg
