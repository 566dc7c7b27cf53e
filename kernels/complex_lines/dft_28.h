// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 28.
// Complex DFT of 28 points, prime-factor, order 7, 4; two lines of a stage to a register.
// 44 sums, 44 differences, 36 products of registers, which do the 552 steps of the graph, those with
// `scale` included; 38 shuffles, 10 changes of sign.
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
        const Q x20_13 = io.pairs(20, 13);
        const Q x8_1 = io.pairs(8, 1);
        // complex block of 7, multiplier 4
        const Q t0 = x20_13 + x8_1;
        const Q t1 = x20_13 - x8_1;
        const Q x4_25 = io.pairs(4, 25);
        const Q x24_17 = io.pairs(24, 17);
        const Q t2 = x4_25 + x24_17;
        const Q t3 = x4_25 - x24_17;
        const Q x16_9 = io.pairs(16, 9);
        const Q x12_5 = io.pairs(12, 5);
        const Q t4 = x16_9 + x12_5;
        const Q t5 = x16_9 - x12_5;
        const Q t6 = t2 + t0;
        const Q t7 = t6 + t4;
        const Q t8 = c[0] * t2;
        const Q t9 = c[1] * t0;
        const Q t10 = t8 - t9;
        const Q t11 = c[2] * t4;
        const Q t12 = t10 - t11;
        const Q t13 = c[3] * t3;
        const Q t14 = c[4] * t1;
        const Q t15 = t13 - t14;
        const Q x0_21 = io.pairs(0, 21);
        const Q t16 = c[1] * t2;
        const Q t17 = x0_21 - t16;
        const Q t18 = c[2] * t0;
        const Q t19 = t17 - t18;
        const Q t20 = c[4] * t3;
        const Q t21 = c[5] * t1;
        const Q t22 = t20 + t21;
        const Q t23 = c[2] * t2;
        const Q t24 = x0_21 - t23;
        const Q t25 = c[0] * t0;
        const Q t26 = t24 + t25;
        const Q t27 = c[5] * t3;
        const Q t28 = c[3] * t1;
        const Q t29 = t27 + t28;
        const Q x2_23 = io.pairs(2, 23);
        const Q x26_19 = io.pairs(26, 19);
        // complex block of 7, multiplier 4
        const Q t30 = x2_23 + x26_19;
        const Q t31 = x2_23 - x26_19;
        const Q x18_11 = io.pairs(18, 11);
        const Q x10_3 = io.pairs(10, 3);
        const Q t32 = x18_11 + x10_3;
        const Q t33 = x18_11 - x10_3;
        const Q x6_27 = io.pairs(6, 27);
        const Q x22_15 = io.pairs(22, 15);
        const Q t34 = x6_27 + x22_15;
        const Q t35 = x6_27 - x22_15;
        const Q t36 = t32 + t34;
        const Q t37 = t36 + t30;
        const Q t38 = c[0] * t32;
        const Q t39 = c[1] * t34;
        const Q t40 = t38 - t39;
        const Q t41 = c[2] * t30;
        const Q t42 = t40 - t41;
        const Q t43 = c[3] * t33;
        const Q t44 = c[4] * t35;
        const Q t45 = t43 - t44;
        const Q x14_7 = io.pairs(14, 7);
        const Q t46 = c[1] * t32;
        const Q t47 = x14_7 - t46;
        const Q t48 = c[2] * t34;
        const Q t49 = t47 - t48;
        const Q t50 = c[4] * t33;
        const Q t51 = c[5] * t35;
        const Q t52 = t50 + t51;
        const Q t53 = c[2] * t32;
        const Q t54 = x14_7 - t53;
        const Q t55 = c[0] * t34;
        const Q t56 = t54 + t55;
        const Q t57 = c[5] * t33;
        const Q t58 = c[3] * t35;
        const Q t59 = t57 + t58;
        const Q t60 = t37 + x14_7;
        const Q t61 = t42 + x14_7;
        const Q t62 = c[5] * t31;
        const Q t63 = t45 - t62;
        const Q t64 = shuffled<1, 0, 3, 2>(t63);
        const Q t65 = flipped<0, 1, 0, 1>(t64);
        const Q t66 = t61 + t65;
        const Q t67 = t61 - t65;
        const Q t68 = c[0] * t30;
        const Q t69 = t49 + t68;
        const Q t70 = c[3] * t31;
        const Q t71 = t52 + t70;
        const Q t72 = shuffled<1, 0, 3, 2>(t71);
        const Q t73 = flipped<0, 1, 0, 1>(t72);
        const Q t74 = t69 + t73;
        const Q t75 = t69 - t73;
        const Q t76 = c[1] * t30;
        const Q t77 = t56 - t76;
        const Q t78 = c[4] * t31;
        const Q t79 = t59 - t78;
        const Q t80 = shuffled<1, 0, 3, 2>(t79);
        const Q t81 = flipped<0, 1, 0, 1>(t80);
        const Q t82 = t77 + t81;
        const Q t83 = t77 - t81;
        // complex block of 7, multiplier 4
        const Q t84 = t7 + x0_21;
        const Q t85 = t12 + x0_21;
        const Q t86 = c[5] * t5;
        const Q t87 = t15 - t86;
        const Q t88 = shuffled<1, 0, 3, 2>(t87);
        const Q t89 = flipped<0, 1, 0, 1>(t88);
        const Q t90 = t85 + t89;
        const Q t91 = t85 - t89;
        const Q t92 = c[0] * t4;
        const Q t93 = t19 + t92;
        const Q t94 = c[3] * t5;
        const Q t95 = t22 + t94;
        const Q t96 = shuffled<1, 0, 3, 2>(t95);
        const Q t97 = flipped<0, 1, 0, 1>(t96);
        const Q t98 = t93 + t97;
        const Q t99 = t93 - t97;
        const Q t100 = c[1] * t4;
        const Q t101 = t26 - t100;
        const Q t102 = c[4] * t5;
        const Q t103 = t29 - t102;
        const Q t104 = shuffled<1, 0, 3, 2>(t103);
        const Q t105 = flipped<0, 1, 0, 1>(t104);
        const Q t106 = t101 + t105;
        const Q t107 = t101 - t105;
        // complex block of 2
        const Q t108 = t83 + t107;
        const Q t109 = shuffled<0, 1, 6, 7>(t107, t83);
        const Q t110 = shuffled<0, 1, 6, 7>(t83, t107);
        const Q t111 = t109 - t110;
        const Q t112 = shuffled<0, 1, 4, 5>(t108, t111);
        const Q t113 = shuffled<1, 0, 3, 2>(t111);
        const Q t114 = shuffled<2, 3, 6, 7>(t108, t113);
        const Q t115 = flipped<0, 0, 1, 0>(t114);
        // complex block of 2
        const Q t116 = t112 + t115;
        io.pairs(4, 11, t116);
        const Q t117 = t112 - t115;
        io.pairs(18, 25, t117);
        const Q t118 = shuffled<0, 1, 4, 5>(t84, t90);
        const Q t119 = shuffled<0, 1, 4, 5>(t60, t66);
        // complex block of 2
        const Q t120 = t118 + t119;
        const Q t121 = shuffled<2, 3, 6, 7>(t60, t66);
        const Q t122 = shuffled<2, 3, 6, 7>(t84, t90);
        // complex block of 2
        const Q t123 = t121 + t122;
        // complex block of 2
        const Q t124 = t120 + t123;
        const Q t125 = t120 - t123;
        // complex block of 2
        const Q t126 = t118 - t119;
        // complex block of 2
        const Q t127 = t121 - t122;
        const Q t128 = shuffled<1, 0, 3, 2>(t127);
        const Q t129 = flipped<1, 0, 1, 0>(t128);
        // complex block of 2
        const Q t130 = t126 + t129;
        const Q t131 = shuffled<0, 1, 6, 7>(t130, t124);
        io.pairs(7, 8, t131);
        const Q t132 = shuffled<0, 1, 6, 7>(t125, t130);
        io.pairs(14, 15, t132);
        const Q t133 = t126 - t129;
        const Q t134 = shuffled<0, 1, 6, 7>(t124, t133);
        io.pairs(0, 1, t134);
        const Q t135 = shuffled<0, 1, 6, 7>(t133, t125);
        io.pairs(21, 22, t135);
        const Q t136 = shuffled<0, 1, 4, 5>(t99, t91);
        const Q t137 = shuffled<0, 1, 4, 5>(t75, t67);
        // complex block of 2
        const Q t138 = t136 + t137;
        const Q t139 = shuffled<2, 3, 6, 7>(t75, t67);
        const Q t140 = shuffled<2, 3, 6, 7>(t99, t91);
        // complex block of 2
        const Q t141 = t139 + t140;
        // complex block of 2
        const Q t142 = t138 + t141;
        const Q t143 = t138 - t141;
        // complex block of 2
        const Q t144 = t136 - t137;
        // complex block of 2
        const Q t145 = t139 - t140;
        const Q t146 = shuffled<1, 0, 3, 2>(t145);
        const Q t147 = flipped<1, 0, 1, 0>(t146);
        // complex block of 2
        const Q t148 = t144 + t147;
        const Q t149 = shuffled<0, 1, 6, 7>(t148, t142);
        io.pairs(19, 20, t149);
        const Q t150 = shuffled<0, 1, 6, 7>(t143, t148);
        io.pairs(26, 27, t150);
        const Q t151 = t144 - t147;
        const Q t152 = shuffled<0, 1, 6, 7>(t151, t143);
        io.pairs(5, 6, t152);
        const Q t153 = shuffled<0, 1, 6, 7>(t142, t151);
        io.pairs(12, 13, t153);
        const Q t154 = shuffled<0, 1, 4, 5>(t98, t106);
        const Q t155 = shuffled<0, 1, 4, 5>(t74, t82);
        // complex block of 2
        const Q t156 = t154 + t155;
        const Q t157 = shuffled<2, 3, 6, 7>(t74, t82);
        const Q t158 = shuffled<2, 3, 6, 7>(t98, t106);
        // complex block of 2
        const Q t159 = t157 + t158;
        // complex block of 2
        const Q t160 = t156 + t159;
        const Q t161 = t156 - t159;
        // complex block of 2
        const Q t162 = t154 - t155;
        // complex block of 2
        const Q t163 = t157 - t158;
        const Q t164 = shuffled<1, 0, 3, 2>(t163);
        const Q t165 = flipped<1, 0, 1, 0>(t164);
        // complex block of 2
        const Q t166 = t162 + t165;
        const Q t167 = shuffled<0, 1, 6, 7>(t161, t166);
        io.pairs(2, 3, t167);
        const Q t168 = shuffled<0, 1, 6, 7>(t166, t160);
        io.pairs(23, 24, t168);
        const Q t169 = t162 - t165;
        const Q t170 = shuffled<0, 1, 6, 7>(t169, t161);
        io.pairs(9, 10, t170);
        const Q t171 = shuffled<0, 1, 6, 7>(t160, t169);
        io.pairs(16, 17, t171);
    }
};

}  // namespace zulg
