// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 16.
// Complex DFT of 16 points, twiddled, inner 2, outer 8; one complex number to a register.
// 42 sums, 32 differences, 14 products of registers, which do the 208 steps of the graph, those with
// `scale` included; 20 shuffles, 18 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<16> {
    static constexpr int steps = 208;  // with `scale`
    static constexpr double inverseRoot = 0.25;  // 1/sqrt(16), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.3826834323650898,  // c[2]: sin 2 pi 1/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x8 = io.pair(8);
        // complex block of 2
        const P t0 = x0 + x8;
        const P t1 = x0 - x8;
        const P x1 = io.pair(1);
        const P x9 = io.pair(9);
        // complex block of 2
        const P t2 = x1 + x9;
        const P t3 = x1 - x9;
        const P x2 = io.pair(2);
        const P x10 = io.pair(10);
        // complex block of 2
        const P t4 = x2 + x10;
        const P t5 = x2 - x10;
        const P x3 = io.pair(3);
        const P x11 = io.pair(11);
        // complex block of 2
        const P t6 = x3 + x11;
        const P t7 = x3 - x11;
        const P x4 = io.pair(4);
        const P x12 = io.pair(12);
        // complex block of 2
        const P t8 = x4 + x12;
        const P t9 = x4 - x12;
        const P x5 = io.pair(5);
        const P x13 = io.pair(13);
        // complex block of 2
        const P t10 = x5 + x13;
        const P t11 = x5 - x13;
        const P x6 = io.pair(6);
        const P x14 = io.pair(14);
        // complex block of 2
        const P t12 = x6 + x14;
        const P t13 = x6 - x14;
        const P x7 = io.pair(7);
        const P x15 = io.pair(15);
        // complex block of 2
        const P t14 = x7 + x15;
        const P t15 = x7 - x15;
        // complex block of 2
        const P t16 = t0 + t8;
        const P t17 = t0 - t8;
        // complex block of 2
        const P t18 = t2 + t10;
        const P t19 = t2 - t10;
        // complex block of 2
        const P t20 = t4 + t12;
        const P t21 = t4 - t12;
        // complex block of 2
        const P t22 = t6 + t14;
        const P t23 = t6 - t14;
        // complex block of 2
        const P t24 = t16 + t20;
        const P t25 = t16 - t20;
        // complex block of 2
        const P t26 = t18 + t22;
        const P t27 = t18 - t22;
        // complex block of 2
        const P t28 = t24 + t26;
        io.pair(0, t28);
        const P t29 = t24 - t26;
        io.pair(8, t29);
        const P t30 = shuffled<1, 0>(t27);
        const P t31 = flipped<0, 1>(t30);
        // complex block of 2
        const P t32 = t25 + t31;
        io.pair(4, t32);
        const P t33 = t25 - t31;
        io.pair(12, t33);
        // complex block of 8
        const P t34 = c[0] * t19;
        const P t35 = shuffled<1, 0>(t34);
        const P t36 = flipped<0, 1>(t35);
        const P t37 = t34 + t36;
        const P t38 = c[0] * t23;
        const P t39 = shuffled<1, 0>(t38);
        const P t40 = flipped<0, 1>(t39);
        const P t41 = t38 + t40;
        const P t42 = shuffled<1, 0>(t21);
        const P t43 = flipped<0, 1>(t42);
        // complex block of 2
        const P t44 = t17 + t43;
        const P t45 = t17 - t43;
        const P t46 = shuffled<1, 0>(t41);
        const P t47 = flipped<0, 1>(t46);
        // complex block of 2
        const P t48 = t37 + t47;
        const P t49 = t37 - t47;
        // complex block of 2
        const P t50 = t44 + t48;
        io.pair(2, t50);
        const P t51 = t44 - t48;
        io.pair(10, t51);
        const P t52 = shuffled<1, 0>(t49);
        const P t53 = flipped<0, 1>(t52);
        // complex block of 2
        const P t54 = t45 + t53;
        io.pair(6, t54);
        const P t55 = t45 - t53;
        io.pair(14, t55);
        // complex block of 16
        const P t56 = c[1] * t3;
        const P t57 = shuffled<1, 0>(t3);
        const P t58 = P(c[2], -c[2]) * t57;
        const P t59 = t56 + t58;
        const P t60 = c[0] * t5;
        const P t61 = shuffled<1, 0>(t60);
        const P t62 = flipped<0, 1>(t61);
        const P t63 = t60 + t62;
        const P t64 = c[2] * t7;
        const P t65 = shuffled<1, 0>(t7);
        const P t66 = P(c[1], -c[1]) * t65;
        const P t67 = t64 + t66;
        const P t68 = P(-c[2], c[2]) * t11;
        const P t69 = shuffled<1, 0>(t11);
        const P t70 = c[1] * t69;
        const P t71 = t68 + t70;
        const P t72 = c[0] * t13;
        const P t73 = shuffled<1, 0>(t72);
        const P t74 = flipped<0, 1>(t73);
        const P t75 = t72 + t74;
        const P t76 = P(-c[1], c[1]) * t15;
        const P t77 = shuffled<1, 0>(t15);
        const P t78 = c[2] * t77;
        const P t79 = t76 + t78;
        const P t80 = shuffled<1, 0>(t9);
        const P t81 = flipped<0, 1>(t80);
        // complex block of 2
        const P t82 = t1 + t81;
        const P t83 = t1 - t81;
        const P t84 = flipped<0, 1>(t71);
        // complex block of 2
        const P t85 = t59 + t84;
        const P t86 = t59 - t84;
        const P t87 = shuffled<1, 0>(t75);
        const P t88 = flipped<0, 1>(t87);
        // complex block of 2
        const P t89 = t63 + t88;
        const P t90 = t63 - t88;
        const P t91 = flipped<0, 1>(t79);
        // complex block of 2
        const P t92 = t67 + t91;
        const P t93 = t67 - t91;
        // complex block of 2
        const P t94 = t82 + t89;
        const P t95 = t82 - t89;
        // complex block of 2
        const P t96 = t85 + t92;
        const P t97 = t85 - t92;
        // complex block of 2
        const P t98 = t94 + t96;
        io.pair(1, t98);
        const P t99 = t94 - t96;
        io.pair(9, t99);
        const P t100 = shuffled<1, 0>(t97);
        const P t101 = flipped<0, 1>(t100);
        // complex block of 2
        const P t102 = t95 + t101;
        io.pair(5, t102);
        const P t103 = t95 - t101;
        io.pair(13, t103);
        // complex block of 8
        const P t104 = c[0] * t86;
        const P t105 = shuffled<1, 0>(t104);
        const P t106 = flipped<0, 1>(t105);
        const P t107 = t104 + t106;
        const P t108 = c[0] * t93;
        const P t109 = shuffled<1, 0>(t108);
        const P t110 = flipped<0, 1>(t109);
        const P t111 = t108 + t110;
        const P t112 = shuffled<1, 0>(t90);
        const P t113 = flipped<0, 1>(t112);
        // complex block of 2
        const P t114 = t83 + t113;
        const P t115 = t83 - t113;
        const P t116 = shuffled<1, 0>(t111);
        const P t117 = flipped<0, 1>(t116);
        // complex block of 2
        const P t118 = t107 + t117;
        const P t119 = t107 - t117;
        // complex block of 2
        const P t120 = t114 + t118;
        io.pair(3, t120);
        const P t121 = t114 - t118;
        io.pair(11, t121);
        const P t122 = shuffled<1, 0>(t119);
        const P t123 = flipped<0, 1>(t122);
        // complex block of 2
        const P t124 = t115 + t123;
        io.pair(7, t124);
        const P t125 = t115 - t123;
        io.pair(15, t125);
    }
};

}  // namespace zulg
