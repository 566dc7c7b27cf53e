// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 24.
// Complex DFT of 24 points, prime-factor, order 8, 3; two lines of a stage to a register.
// 35 sums, 28 differences, 11 products of registers, which do the 344 steps of the graph, those with
// `scale` included; 43 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<24> {
    static constexpr int steps = 344;  // with `scale`
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x8_11 = io.pairs(8, 11);
        const Q x20_23 = io.pairs(20, 23);
        // complex block of 2
        const Q t0 = x8_11 + x20_23;
        const Q t1 = x8_11 - x20_23;
        const Q x14_17 = io.pairs(14, 17);
        const Q x2_5 = io.pairs(2, 5);
        // complex block of 2
        const Q t2 = x14_17 + x2_5;
        const Q t3 = x14_17 - x2_5;
        const Q t4 = shuffled<2, 3, 6, 7>(t3, t1);
        // complex block of 8, multiplier 3
        const Q t5 = c[2] * t4;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = flipped<0, 1, 0, 1>(t6);
        const Q t8 = t5 + t7;
        const Q t9 = shuffled<0, 1, 4, 5>(t0, t1);
        const Q t10 = shuffled<1, 0, 3, 2>(t3);
        const Q t11 = shuffled<0, 1, 4, 5>(t2, t10);
        const Q t12 = flipped<0, 0, 1, 0>(t11);
        // complex block of 2
        const Q t13 = t9 + t12;
        const Q t14 = t9 - t12;
        const Q t15 = shuffled<2, 3, 4, 5>(t0, t8);
        const Q t16 = shuffled<1, 0, 3, 2>(t8);
        const Q t17 = shuffled<2, 3, 6, 7>(t2, t16);
        const Q t18 = flipped<0, 0, 0, 1>(t17);
        // complex block of 2
        const Q t19 = t15 + t18;
        const Q t20 = flipped<1, 1, 0, 1>(t18);
        const Q t21 = flipped<0, 0, 1, 0>(t15);
        const Q t22 = t20 + t21;
        // complex block of 2
        const Q t23 = t13 + t19;
        const Q t24 = t13 - t19;
        const Q t25 = shuffled<1, 0, 3, 2>(t22);
        const Q t26 = flipped<1, 0, 0, 0>(t25);
        // complex block of 2
        const Q t27 = t14 + t26;
        const Q t28 = t14 - t26;
        const Q x0_16 = io.pairs(0, 16);
        const Q x12_4 = io.pairs(12, 4);
        // complex block of 2
        const Q t29 = x0_16 + x12_4;
        const Q t30 = x0_16 - x12_4;
        const Q x3_19 = io.pairs(3, 19);
        const Q x15_7 = io.pairs(15, 7);
        // complex block of 2
        const Q t31 = x3_19 + x15_7;
        const Q t32 = x3_19 - x15_7;
        const Q x6_22 = io.pairs(6, 22);
        const Q x18_10 = io.pairs(18, 10);
        // complex block of 2
        const Q t33 = x6_22 + x18_10;
        const Q t34 = x6_22 - x18_10;
        const Q x9_1 = io.pairs(9, 1);
        const Q x21_13 = io.pairs(21, 13);
        // complex block of 2
        const Q t35 = x9_1 + x21_13;
        const Q t36 = x9_1 - x21_13;
        // complex block of 2
        const Q t37 = t29 + t33;
        const Q t38 = t29 - t33;
        // complex block of 2
        const Q t39 = t31 + t35;
        const Q t40 = t31 - t35;
        // complex block of 2
        const Q t41 = t37 + t39;
        const Q t42 = t37 - t39;
        const Q t43 = shuffled<1, 0, 3, 2>(t40);
        const Q t44 = flipped<1, 0, 1, 0>(t43);
        // complex block of 2
        const Q t45 = t38 + t44;
        const Q t46 = t38 - t44;
        // complex block of 8, multiplier 3
        const Q t47 = c[2] * t32;
        const Q t48 = shuffled<1, 0, 3, 2>(t47);
        const Q t49 = flipped<0, 1, 0, 1>(t48);
        const Q t50 = t47 + t49;
        const Q t51 = c[2] * t36;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t51 + t53;
        const Q t55 = shuffled<1, 0, 3, 2>(t34);
        const Q t56 = flipped<1, 0, 1, 0>(t55);
        // complex block of 2
        const Q t57 = t30 + t56;
        const Q t58 = t30 - t56;
        const Q t59 = shuffled<1, 0, 3, 2>(t50);
        const Q t60 = flipped<0, 1, 0, 1>(t59);
        // complex block of 2
        const Q t61 = t54 + t60;
        const Q t62 = flipped<1, 0, 1, 0>(t54);
        const Q t63 = t59 + t62;
        // complex block of 2
        const Q t64 = t57 + t61;
        const Q t65 = t57 - t61;
        const Q t66 = shuffled<1, 0, 3, 2>(t63);
        // complex block of 2
        const Q t67 = t58 + t66;
        const Q t68 = t58 - t66;
        const Q t69 = shuffled<0, 1, 6, 7>(t23, t27);
        const Q t70 = shuffled<2, 3, 6, 7>(t41, t67);
        // complex block of 3, multiplier 2
        const Q t71 = t69 + t70;
        const Q t72 = t69 - t70;
        const Q t73 = shuffled<0, 1, 4, 5>(t41, t67);
        const Q t74 = t71 + t73;
        const Q t75 = c[0] * t71;
        const Q t76 = t73 - t75;
        const Q t77 = Q(-c[1], c[1], -c[1], c[1]) * t72;
        const Q t78 = shuffled<1, 0, 3, 2>(t77);
        const Q t79 = t76 + t78;
        const Q t80 = shuffled<0, 1, 6, 7>(t74, t79);
        io.pairs(0, 1, t80);
        const Q t81 = t76 - t78;
        const Q t82 = shuffled<0, 1, 6, 7>(t81, t74);
        io.pairs(8, 9, t82);
        const Q t83 = shuffled<0, 1, 6, 7>(t79, t81);
        io.pairs(16, 17, t83);
        const Q t84 = shuffled<0, 1, 6, 7>(t27, t24);
        const Q t85 = shuffled<2, 3, 6, 7>(t45, t65);
        // complex block of 3, multiplier 2
        const Q t86 = t84 + t85;
        const Q t87 = t84 - t85;
        const Q t88 = shuffled<0, 1, 4, 5>(t45, t65);
        const Q t89 = t86 + t88;
        const Q t90 = c[0] * t86;
        const Q t91 = t88 - t90;
        const Q t92 = Q(-c[1], c[1], -c[1], c[1]) * t87;
        const Q t93 = shuffled<1, 0, 3, 2>(t92);
        const Q t94 = t91 + t93;
        const Q t95 = shuffled<0, 1, 6, 7>(t89, t94);
        io.pairs(6, 7, t95);
        const Q t96 = t91 - t93;
        const Q t97 = shuffled<0, 1, 6, 7>(t96, t89);
        io.pairs(14, 15, t97);
        const Q t98 = shuffled<0, 1, 6, 7>(t94, t96);
        io.pairs(22, 23, t98);
        const Q t99 = shuffled<0, 1, 6, 7>(t28, t23);
        const Q t100 = shuffled<2, 3, 6, 7>(t46, t64);
        // complex block of 3, multiplier 2
        const Q t101 = t99 + t100;
        const Q t102 = t99 - t100;
        const Q t103 = shuffled<0, 1, 4, 5>(t46, t64);
        const Q t104 = t101 + t103;
        const Q t105 = c[0] * t101;
        const Q t106 = t103 - t105;
        const Q t107 = Q(-c[1], c[1], -c[1], c[1]) * t102;
        const Q t108 = shuffled<1, 0, 3, 2>(t107);
        const Q t109 = t106 + t108;
        const Q t110 = shuffled<0, 1, 6, 7>(t104, t109);
        io.pairs(18, 19, t110);
        const Q t111 = t106 - t108;
        const Q t112 = shuffled<0, 1, 6, 7>(t111, t104);
        io.pairs(2, 3, t112);
        const Q t113 = shuffled<0, 1, 6, 7>(t109, t111);
        io.pairs(10, 11, t113);
        const Q t114 = shuffled<0, 1, 6, 7>(t24, t28);
        const Q t115 = shuffled<2, 3, 6, 7>(t42, t68);
        // complex block of 3, multiplier 2
        const Q t116 = t114 + t115;
        const Q t117 = t114 - t115;
        const Q t118 = shuffled<0, 1, 4, 5>(t42, t68);
        const Q t119 = t116 + t118;
        const Q t120 = c[0] * t116;
        const Q t121 = t118 - t120;
        const Q t122 = Q(-c[1], c[1], -c[1], c[1]) * t117;
        const Q t123 = shuffled<1, 0, 3, 2>(t122);
        const Q t124 = t121 + t123;
        const Q t125 = shuffled<0, 1, 6, 7>(t119, t124);
        io.pairs(12, 13, t125);
        const Q t126 = t121 - t123;
        const Q t127 = shuffled<0, 1, 6, 7>(t124, t126);
        io.pairs(4, 5, t127);
        const Q t128 = shuffled<0, 1, 6, 7>(t126, t119);
        io.pairs(20, 21, t128);
    }
};

}  // namespace zulg
