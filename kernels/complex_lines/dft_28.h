// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 28.
// Complex DFT of 28 points, prime-factor, order 7, 4; two lines of a stage to a register.
// 44 sums, 44 differences, 36 products of registers, which do the 552 steps of the graph, those with
// `scale` included; 24 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<28> {
    static constexpr int steps = 552;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x4_11 = io.pairs(4, 11);
        const Q x24_3 = io.pairs(24, 3);
        // complex block of 7, multiplier 4
        const Q t0 = x4_11 + x24_3;
        const Q t1 = x4_11 - x24_3;
        const Q x20_27 = io.pairs(20, 27);
        const Q x8_15 = io.pairs(8, 15);
        const Q t2 = x20_27 + x8_15;
        const Q t3 = x20_27 - x8_15;
        const Q x16_23 = io.pairs(16, 23);
        const Q x12_19 = io.pairs(12, 19);
        const Q t4 = x16_23 + x12_19;
        const Q t5 = x16_23 - x12_19;
        const Q t6 = t0 + t2;
        const Q t7 = t6 + t4;
        const Q t8 = c[0] * t0;
        const Q t9 = c[1] * t2;
        const Q t10 = t8 - t9;
        const Q t11 = c[2] * t4;
        const Q t12 = t10 - t11;
        const Q t13 = c[3] * t1;
        const Q t14 = c[4] * t3;
        const Q t15 = t13 - t14;
        const Q x0_7 = io.pairs(0, 7);
        const Q t16 = c[1] * t0;
        const Q t17 = x0_7 - t16;
        const Q t18 = c[2] * t2;
        const Q t19 = t17 - t18;
        const Q t20 = c[4] * t1;
        const Q t21 = c[5] * t3;
        const Q t22 = t20 + t21;
        const Q t23 = c[2] * t0;
        const Q t24 = x0_7 - t23;
        const Q t25 = c[0] * t2;
        const Q t26 = t24 + t25;
        const Q t27 = c[5] * t1;
        const Q t28 = c[3] * t3;
        const Q t29 = t27 + t28;
        const Q x6_13 = io.pairs(6, 13);
        const Q x22_1 = io.pairs(22, 1);
        // complex block of 7, multiplier 4
        const Q t30 = x6_13 + x22_1;
        const Q t31 = x6_13 - x22_1;
        const Q x2_9 = io.pairs(2, 9);
        const Q x26_5 = io.pairs(26, 5);
        const Q t32 = x2_9 + x26_5;
        const Q t33 = x2_9 - x26_5;
        const Q x18_25 = io.pairs(18, 25);
        const Q x10_17 = io.pairs(10, 17);
        const Q t34 = x18_25 + x10_17;
        const Q t35 = x18_25 - x10_17;
        const Q t36 = t34 + t30;
        const Q t37 = t36 + t32;
        const Q t38 = c[0] * t34;
        const Q t39 = c[1] * t30;
        const Q t40 = t38 - t39;
        const Q t41 = c[2] * t32;
        const Q t42 = t40 - t41;
        const Q t43 = c[3] * t35;
        const Q t44 = c[4] * t31;
        const Q t45 = t43 - t44;
        const Q x14_21 = io.pairs(14, 21);
        const Q t46 = c[1] * t34;
        const Q t47 = x14_21 - t46;
        const Q t48 = c[2] * t30;
        const Q t49 = t47 - t48;
        const Q t50 = c[4] * t35;
        const Q t51 = c[5] * t31;
        const Q t52 = t50 + t51;
        const Q t53 = c[2] * t34;
        const Q t54 = x14_21 - t53;
        const Q t55 = c[0] * t30;
        const Q t56 = t54 + t55;
        const Q t57 = c[5] * t35;
        const Q t58 = c[3] * t31;
        const Q t59 = t57 + t58;
        // complex block of 7, multiplier 4
        const Q t60 = t7 + x0_7;
        const Q t61 = c[1] * t4;
        const Q t62 = t26 - t61;
        const Q t63 = c[4] * t5;
        const Q t64 = t29 - t63;
        const Q t65 = shuffled<1, 0, 3, 2>(t64);
        const Q t66 = flipped<0, 1, 0, 1>(t65);
        const Q t67 = t62 + t66;
        const Q t68 = t62 - t66;
        // complex block of 7, multiplier 4
        const Q t69 = t37 + x14_21;
        const Q t70 = c[1] * t32;
        const Q t71 = t56 - t70;
        const Q t72 = c[4] * t33;
        const Q t73 = t59 - t72;
        const Q t74 = shuffled<1, 0, 3, 2>(t73);
        const Q t75 = flipped<0, 1, 0, 1>(t74);
        const Q t76 = t71 + t75;
        const Q t77 = t71 - t75;
        const Q t78 = shuffled<0, 1, 4, 5>(t60, t68);
        const Q t79 = shuffled<0, 1, 4, 5>(t69, t77);
        // complex block of 2
        const Q t80 = t78 + t79;
        const Q t81 = shuffled<2, 3, 6, 7>(t60, t68);
        const Q t82 = shuffled<2, 3, 6, 7>(t69, t77);
        // complex block of 2
        const Q t83 = t81 + t82;
        // complex block of 2
        const Q t84 = t80 + t83;
        io.pairs(0, 4, t84);
        const Q t85 = t80 - t83;
        io.pairs(14, 18, t85);
        // complex block of 2
        const Q t86 = t78 - t79;
        // complex block of 2
        const Q t87 = t81 - t82;
        const Q t88 = shuffled<1, 0, 3, 2>(t87);
        const Q t89 = flipped<1, 0, 1, 0>(t88);
        // complex block of 2
        const Q t90 = t86 + t89;
        io.pairs(7, 11, t90);
        const Q t91 = t86 - t89;
        io.pairs(21, 25, t91);
        // complex block of 2
        const Q t92 = t67 + t76;
        const Q t93 = t67 - t76;
        const Q t94 = shuffled<0, 1, 4, 5>(t92, t93);
        const Q t95 = shuffled<1, 0, 3, 2>(t93);
        const Q t96 = shuffled<2, 3, 6, 7>(t92, t95);
        const Q t97 = flipped<0, 0, 1, 0>(t96);
        // complex block of 2
        const Q t98 = t94 + t97;
        io.pairs(24, 3, t98);
        const Q t99 = t94 - t97;
        io.pairs(10, 17, t99);
        // complex block of 7, multiplier 4
        const Q t100 = t12 + x0_7;
        const Q t101 = c[5] * t5;
        const Q t102 = t15 - t101;
        const Q t103 = shuffled<1, 0, 3, 2>(t102);
        const Q t104 = flipped<0, 1, 0, 1>(t103);
        const Q t105 = t100 + t104;
        const Q t106 = t100 - t104;
        const Q t107 = c[0] * t4;
        const Q t108 = t19 + t107;
        const Q t109 = c[3] * t5;
        const Q t110 = t22 + t109;
        const Q t111 = shuffled<1, 0, 3, 2>(t110);
        const Q t112 = flipped<0, 1, 0, 1>(t111);
        const Q t113 = t108 + t112;
        const Q t114 = t108 - t112;
        // complex block of 7, multiplier 4
        const Q t115 = t42 + x14_21;
        const Q t116 = c[5] * t33;
        const Q t117 = t45 - t116;
        const Q t118 = shuffled<1, 0, 3, 2>(t117);
        const Q t119 = flipped<0, 1, 0, 1>(t118);
        const Q t120 = t115 + t119;
        const Q t121 = t115 - t119;
        const Q t122 = c[0] * t32;
        const Q t123 = t49 + t122;
        const Q t124 = c[3] * t33;
        const Q t125 = t52 + t124;
        const Q t126 = shuffled<1, 0, 3, 2>(t125);
        const Q t127 = flipped<0, 1, 0, 1>(t126);
        const Q t128 = t123 + t127;
        const Q t129 = t123 - t127;
        const Q t130 = shuffled<0, 1, 4, 5>(t105, t114);
        const Q t131 = shuffled<0, 1, 4, 5>(t120, t129);
        // complex block of 2
        const Q t132 = t130 + t131;
        const Q t133 = shuffled<2, 3, 6, 7>(t105, t114);
        const Q t134 = shuffled<2, 3, 6, 7>(t120, t129);
        // complex block of 2
        const Q t135 = t133 + t134;
        // complex block of 2
        const Q t136 = t132 + t135;
        io.pairs(8, 12, t136);
        const Q t137 = t132 - t135;
        io.pairs(22, 26, t137);
        // complex block of 2
        const Q t138 = t130 - t131;
        // complex block of 2
        const Q t139 = t133 - t134;
        const Q t140 = shuffled<1, 0, 3, 2>(t139);
        const Q t141 = flipped<1, 0, 1, 0>(t140);
        // complex block of 2
        const Q t142 = t138 + t141;
        io.pairs(15, 19, t142);
        const Q t143 = t138 - t141;
        io.pairs(1, 5, t143);
        const Q t144 = shuffled<0, 1, 4, 5>(t113, t106);
        const Q t145 = shuffled<0, 1, 4, 5>(t128, t121);
        // complex block of 2
        const Q t146 = t144 + t145;
        const Q t147 = shuffled<2, 3, 6, 7>(t113, t106);
        const Q t148 = shuffled<2, 3, 6, 7>(t128, t121);
        // complex block of 2
        const Q t149 = t147 + t148;
        // complex block of 2
        const Q t150 = t146 + t149;
        io.pairs(16, 20, t150);
        const Q t151 = t146 - t149;
        io.pairs(2, 6, t151);
        // complex block of 2
        const Q t152 = t144 - t145;
        // complex block of 2
        const Q t153 = t147 - t148;
        const Q t154 = shuffled<1, 0, 3, 2>(t153);
        const Q t155 = flipped<1, 0, 1, 0>(t154);
        // complex block of 2
        const Q t156 = t152 + t155;
        io.pairs(23, 27, t156);
        const Q t157 = t152 - t155;
        io.pairs(9, 13, t157);
    }
};

}  // namespace zulg
