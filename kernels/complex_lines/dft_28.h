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
        const Q x0_7 = io.pairs(0, 7);
        const Q t8 = t7 + x0_7;
        const Q t9 = c[0] * t0;
        const Q t10 = c[1] * t2;
        const Q t11 = t9 - t10;
        const Q t12 = c[2] * t4;
        const Q t13 = t11 - t12;
        const Q t14 = t13 + x0_7;
        const Q t15 = c[3] * t1;
        const Q t16 = c[4] * t3;
        const Q t17 = t15 - t16;
        const Q t18 = c[5] * t5;
        const Q t19 = t17 - t18;
        const Q t20 = shuffled<1, 0, 3, 2>(t19);
        const Q t21 = flipped<0, 1, 0, 1>(t20);
        const Q t22 = t14 + t21;
        const Q t23 = t14 - t21;
        const Q t24 = c[1] * t0;
        const Q t25 = x0_7 - t24;
        const Q t26 = c[2] * t2;
        const Q t27 = t25 - t26;
        const Q t28 = c[0] * t4;
        const Q t29 = t27 + t28;
        const Q t30 = c[4] * t1;
        const Q t31 = c[5] * t3;
        const Q t32 = t30 + t31;
        const Q t33 = c[3] * t5;
        const Q t34 = t32 + t33;
        const Q t35 = shuffled<1, 0, 3, 2>(t34);
        const Q t36 = flipped<0, 1, 0, 1>(t35);
        const Q t37 = t29 + t36;
        const Q t38 = t29 - t36;
        const Q t39 = c[2] * t0;
        const Q t40 = x0_7 - t39;
        const Q t41 = c[0] * t2;
        const Q t42 = t40 + t41;
        const Q t43 = c[1] * t4;
        const Q t44 = t42 - t43;
        const Q t45 = c[5] * t1;
        const Q t46 = c[3] * t3;
        const Q t47 = t45 + t46;
        const Q t48 = c[4] * t5;
        const Q t49 = t47 - t48;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = flipped<0, 1, 0, 1>(t50);
        const Q t52 = t44 + t51;
        const Q t53 = t44 - t51;
        const Q x18_25 = io.pairs(18, 25);
        const Q x10_17 = io.pairs(10, 17);
        // complex block of 7, multiplier 4
        const Q t54 = x18_25 + x10_17;
        const Q t55 = x18_25 - x10_17;
        const Q x6_13 = io.pairs(6, 13);
        const Q x22_1 = io.pairs(22, 1);
        const Q t56 = x6_13 + x22_1;
        const Q t57 = x6_13 - x22_1;
        const Q x2_9 = io.pairs(2, 9);
        const Q x26_5 = io.pairs(26, 5);
        const Q t58 = x2_9 + x26_5;
        const Q t59 = x2_9 - x26_5;
        const Q t60 = t54 + t56;
        const Q t61 = t60 + t58;
        const Q x14_21 = io.pairs(14, 21);
        const Q t62 = t61 + x14_21;
        const Q t63 = c[0] * t54;
        const Q t64 = c[1] * t56;
        const Q t65 = t63 - t64;
        const Q t66 = c[2] * t58;
        const Q t67 = t65 - t66;
        const Q t68 = t67 + x14_21;
        const Q t69 = c[3] * t55;
        const Q t70 = c[4] * t57;
        const Q t71 = t69 - t70;
        const Q t72 = c[5] * t59;
        const Q t73 = t71 - t72;
        const Q t74 = shuffled<1, 0, 3, 2>(t73);
        const Q t75 = flipped<0, 1, 0, 1>(t74);
        const Q t76 = t68 + t75;
        const Q t77 = t68 - t75;
        const Q t78 = c[1] * t54;
        const Q t79 = x14_21 - t78;
        const Q t80 = c[2] * t56;
        const Q t81 = t79 - t80;
        const Q t82 = c[0] * t58;
        const Q t83 = t81 + t82;
        const Q t84 = c[4] * t55;
        const Q t85 = c[5] * t57;
        const Q t86 = t84 + t85;
        const Q t87 = c[3] * t59;
        const Q t88 = t86 + t87;
        const Q t89 = shuffled<1, 0, 3, 2>(t88);
        const Q t90 = flipped<0, 1, 0, 1>(t89);
        const Q t91 = t83 + t90;
        const Q t92 = t83 - t90;
        const Q t93 = c[2] * t54;
        const Q t94 = x14_21 - t93;
        const Q t95 = c[0] * t56;
        const Q t96 = t94 + t95;
        const Q t97 = c[1] * t58;
        const Q t98 = t96 - t97;
        const Q t99 = c[5] * t55;
        const Q t100 = c[3] * t57;
        const Q t101 = t99 + t100;
        const Q t102 = c[4] * t59;
        const Q t103 = t101 - t102;
        const Q t104 = shuffled<1, 0, 3, 2>(t103);
        const Q t105 = flipped<0, 1, 0, 1>(t104);
        const Q t106 = t98 + t105;
        const Q t107 = t98 - t105;
        const Q t108 = shuffled<0, 1, 4, 5>(t8, t53);
        const Q t109 = shuffled<0, 1, 4, 5>(t62, t107);
        // complex block of 2
        const Q t110 = t108 + t109;
        const Q t111 = t108 - t109;
        const Q t112 = shuffled<2, 3, 6, 7>(t8, t53);
        const Q t113 = shuffled<2, 3, 6, 7>(t62, t107);
        // complex block of 2
        const Q t114 = t112 + t113;
        const Q t115 = t112 - t113;
        // complex block of 2
        const Q t116 = t110 + t114;
        io.pairs(0, 4, t116);
        const Q t117 = t110 - t114;
        io.pairs(14, 18, t117);
        const Q t118 = shuffled<1, 0, 3, 2>(t115);
        const Q t119 = flipped<1, 0, 1, 0>(t118);
        // complex block of 2
        const Q t120 = t111 + t119;
        io.pairs(7, 11, t120);
        const Q t121 = t111 - t119;
        io.pairs(21, 25, t121);
        const Q t122 = shuffled<0, 1, 4, 5>(t22, t38);
        const Q t123 = shuffled<0, 1, 4, 5>(t76, t92);
        // complex block of 2
        const Q t124 = t122 + t123;
        const Q t125 = t122 - t123;
        const Q t126 = shuffled<2, 3, 6, 7>(t22, t38);
        const Q t127 = shuffled<2, 3, 6, 7>(t76, t92);
        // complex block of 2
        const Q t128 = t126 + t127;
        const Q t129 = t126 - t127;
        // complex block of 2
        const Q t130 = t124 + t128;
        io.pairs(8, 12, t130);
        const Q t131 = t124 - t128;
        io.pairs(22, 26, t131);
        const Q t132 = shuffled<1, 0, 3, 2>(t129);
        const Q t133 = flipped<1, 0, 1, 0>(t132);
        // complex block of 2
        const Q t134 = t125 + t133;
        io.pairs(15, 19, t134);
        const Q t135 = t125 - t133;
        io.pairs(1, 5, t135);
        const Q t136 = shuffled<0, 1, 4, 5>(t37, t23);
        const Q t137 = shuffled<0, 1, 4, 5>(t91, t77);
        // complex block of 2
        const Q t138 = t136 + t137;
        const Q t139 = t136 - t137;
        const Q t140 = shuffled<2, 3, 6, 7>(t37, t23);
        const Q t141 = shuffled<2, 3, 6, 7>(t91, t77);
        // complex block of 2
        const Q t142 = t140 + t141;
        const Q t143 = t140 - t141;
        // complex block of 2
        const Q t144 = t138 + t142;
        io.pairs(16, 20, t144);
        const Q t145 = t138 - t142;
        io.pairs(2, 6, t145);
        const Q t146 = shuffled<1, 0, 3, 2>(t143);
        const Q t147 = flipped<1, 0, 1, 0>(t146);
        // complex block of 2
        const Q t148 = t139 + t147;
        io.pairs(23, 27, t148);
        const Q t149 = t139 - t147;
        io.pairs(9, 13, t149);
        // complex block of 2
        const Q t150 = t52 + t106;
        const Q t151 = t52 - t106;
        const Q t152 = shuffled<0, 1, 4, 5>(t150, t151);
        const Q t153 = shuffled<2, 3, 6, 7>(t150, t151);
        const Q t154 = shuffled<0, 1, 3, 2>(t153);
        const Q t155 = flipped<0, 0, 1, 0>(t154);
        // complex block of 2
        const Q t156 = t152 + t155;
        io.pairs(24, 3, t156);
        const Q t157 = t152 - t155;
        io.pairs(10, 17, t157);
    }
};

}  // namespace zulg
