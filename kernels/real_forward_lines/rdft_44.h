// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 44.
// Forward DFT of 44 real points, prime-factor 11, 4; up to four lanes to a register.
// 41 sums, 43 differences, 50 products of registers, which do the 570 steps of the graph, those with
// `scale` included; 29 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<44> {
    static constexpr int steps = 570;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.6548607339452851,  // c[0]: -cos 2 pi 4/11
        0.14231483827328514,  // c[1]: -cos 2 pi 36/11
        0.7557495743542583,  // c[2]: sin 2 pi 4/11
        0.9898214418809327,  // c[3]: sin 2 pi 36/11
        0.5406408174555976,  // c[4]: sin 2 pi 12/11
        0.9594929736144974,  // c[5]: -cos 2 pi 16/11
        0.28173255684142967,  // c[6]: sin 2 pi 16/11
        0.8412535328311812,  // c[7]: cos 2 pi 12/11
        0.41541501300188644,  // c[8]: cos 2 pi 24/11
        0.9096319953545183,  // c[9]: sin 2 pi 24/11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x12_23_34_1 = io.in(12, 23, 34, 1);
        const Q x32_43_10_21 = io.in(32, 43, 10, 21);
        // real block of 11, multiplier 4
        const Q t0 = x12_23_34_1 + x32_43_10_21;
        const Q t1 = x12_23_34_1 - x32_43_10_21;
        const Q x24_35_2_13 = io.in(24, 35, 2, 13);
        const Q x20_31_42_9 = io.in(20, 31, 42, 9);
        const Q t2 = x24_35_2_13 - x20_31_42_9;
        const Q t3 = x24_35_2_13 + x20_31_42_9;
        const Q x36_3_14_25 = io.in(36, 3, 14, 25);
        const Q x8_19_30_41 = io.in(8, 19, 30, 41);
        const Q t4 = x36_3_14_25 + x8_19_30_41;
        const Q t5 = x36_3_14_25 - x8_19_30_41;
        const Q x4_15_26_37 = io.in(4, 15, 26, 37);
        const Q x40_7_18_29 = io.in(40, 7, 18, 29);
        const Q t6 = x4_15_26_37 + x40_7_18_29;
        const Q t7 = x4_15_26_37 - x40_7_18_29;
        const Q t8 = t6 + t4;
        const Q x16_27_38_5 = io.in(16, 27, 38, 5);
        const Q x28_39_6_17 = io.in(28, 39, 6, 17);
        const Q t9 = x16_27_38_5 - x28_39_6_17;
        const Q t10 = x16_27_38_5 + x28_39_6_17;
        const Q t11 = t8 + t0;
        const Q t12 = t11 + t10;
        const Q x0_11_22_33 = io.in(0, 11, 22, 33);
        const Q t13 = c[0] * t6;
        const Q t14 = x0_11_22_33 - t13;
        const Q t15 = c[1] * t4;
        const Q t16 = t14 - t15;
        const Q t17 = c[2] * t7;
        const Q t18 = c[3] * t5;
        const Q t19 = t17 + t18;
        const Q t20 = c[4] * t1;
        const Q t21 = t19 + t20;
        const Q t22 = c[1] * t6;
        const Q t23 = x0_11_22_33 - t22;
        const Q t24 = c[5] * t4;
        const Q t25 = t23 - t24;
        const Q t26 = c[3] * t7;
        const Q t27 = c[6] * t5;
        const Q t28 = t26 + t27;
        const Q t29 = c[4] * t9;
        const Q t30 = t28 + t29;
        const Q t31 = c[7] * t6;
        const Q t32 = c[8] * t4;
        const Q t33 = t31 + t32;
        const Q t34 = c[1] * t0;
        const Q t35 = t33 - t34;
        const Q t36 = c[9] * t5;
        const Q t37 = c[6] * t2;
        const Q t38 = t36 + t37;
        const Q t39 = c[4] * t7;
        const Q t40 = t38 - t39;
        const Q t41 = c[5] * t6;
        const Q t42 = x0_11_22_33 - t41;
        const Q t43 = c[7] * t4;
        const Q t44 = t42 + t43;
        const Q t45 = c[9] * t9;
        const Q t46 = c[3] * t2;
        const Q t47 = t45 + t46;
        const Q t48 = c[6] * t7;
        const Q t49 = t47 - t48;
        const Q t50 = c[8] * t6;
        const Q t51 = c[0] * t4;
        const Q t52 = t50 - t51;
        const Q t53 = c[5] * t0;
        const Q t54 = t52 - t53;
        const Q t55 = c[9] * t7;
        const Q t56 = c[4] * t2;
        const Q t57 = t55 + t56;
        const Q t58 = c[2] * t5;
        const Q t59 = t57 - t58;
        const Q t60 = t12 + t3;
        const Q t61 = t60 + x0_11_22_33;
        const P t62 = part<0>(t61);
        const P t63 = part<1>(t61);
        // real block of 2
        const P t64 = t62 + t63;
        const V t65 = part<0>(t64);
        const V t66 = part<1>(t64);
        // real block of 2
        const V t67 = t65 + t66;
        io.re(0, t67);
        const V t68 = t65 - t66;
        io.re(22, t68);
        // real block of 2
        const P t69 = t62 - t63;
        io.pair(11, t69);
        // real block of 11, multiplier 4
        const Q t70 = c[7] * t0;
        const Q t71 = t16 + t70;
        const Q t72 = c[5] * t10;
        const Q t73 = t71 - t72;
        const Q t74 = c[8] * t3;
        const Q t75 = t73 + t74;
        const Q t76 = c[6] * t9;
        const Q t77 = t21 + t76;
        const Q t78 = c[9] * t2;
        const Q t79 = t77 + t78;
        const Q t80 = c[8] * t0;
        const Q t81 = t25 + t80;
        const Q t82 = c[7] * t10;
        const Q t83 = t81 + t82;
        const Q t84 = c[0] * t3;
        const Q t85 = t83 - t84;
        const Q t86 = c[9] * t1;
        const Q t87 = t30 - t86;
        const Q t88 = c[2] * t2;
        const Q t89 = t87 - t88;
        const Q t90 = shuffled<0, 4, 2, 6>(t75, t79);
        const Q t91 = shuffled<0, 4, 2, 6>(t85, t89);
        const Q t92 = shuffled<0, 1, 4, 5>(t90, t91);
        const Q t93 = shuffled<2, 3, 6, 7>(t90, t91);
        // complex block of 2
        const Q t94 = t92 + t93;
        const Q t95 = shuffled<1, 5, 3, 7>(t75, t79);
        const Q t96 = shuffled<1, 5, 3, 7>(t85, t89);
        const Q t97 = shuffled<0, 1, 4, 5>(t95, t96);
        const Q t98 = shuffled<2, 3, 6, 7>(t95, t96);
        // complex block of 2
        const Q t99 = t97 + t98;
        // complex block of 2
        const Q t100 = t94 + t99;
        io.pairs(4, 8, negated<0, 1, 0, 0>(t100));
        const Q t101 = flipped<0, 1, 0, 0>(t94);
        const Q t102 = flipped<0, 1, 0, 0>(t99);
        const Q t103 = t101 - t102;
        io.pairs(18, 14, negated<0, 1, 0, 1>(t103));
        const Q t104 = flipped<0, 1, 0, 0>(t92);
        const Q t105 = flipped<0, 1, 0, 0>(t93);
        // complex block of 2
        const Q t106 = t104 - t105;
        const Q t107 = flipped<0, 1, 0, 0>(t97);
        const Q t108 = flipped<0, 1, 0, 0>(t98);
        // complex block of 2
        const Q t109 = t107 - t108;
        const Q t110 = shuffled<1, 0, 3, 2>(t109);
        const Q t111 = flipped<1, 0, 1, 0>(t110);
        // complex block of 2
        const Q t112 = t106 + t111;
        io.pairs(15, 19, t112);
        const Q t113 = t106 - t111;
        io.pairs(7, 3, negated<0, 1, 0, 1>(t113));
        // real block of 11, multiplier 4
        const Q t114 = c[0] * t10;
        const Q t115 = t35 - t114;
        const Q t116 = c[5] * t3;
        const Q t117 = t115 - t116;
        const Q t118 = t117 + x0_11_22_33;
        const Q t119 = c[3] * t1;
        const Q t120 = t40 - t119;
        const Q t121 = c[2] * t9;
        const Q t122 = t120 - t121;
        const Q t123 = c[0] * t0;
        const Q t124 = t44 - t123;
        const Q t125 = c[8] * t10;
        const Q t126 = t124 + t125;
        const Q t127 = c[1] * t3;
        const Q t128 = t126 - t127;
        const Q t129 = c[4] * t5;
        const Q t130 = t49 - t129;
        const Q t131 = c[2] * t1;
        const Q t132 = t130 - t131;
        const Q t133 = shuffled<0, 4, 2, 6>(t118, t122);
        const Q t134 = shuffled<0, 4, 2, 6>(t128, t132);
        const Q t135 = shuffled<0, 1, 4, 5>(t133, t134);
        const Q t136 = shuffled<2, 3, 6, 7>(t133, t134);
        // complex block of 2
        const Q t137 = t135 + t136;
        const Q t138 = shuffled<1, 5, 3, 7>(t118, t122);
        const Q t139 = shuffled<1, 5, 3, 7>(t128, t132);
        const Q t140 = shuffled<0, 1, 4, 5>(t138, t139);
        const Q t141 = shuffled<2, 3, 6, 7>(t138, t139);
        // complex block of 2
        const Q t142 = t140 + t141;
        // complex block of 2
        const Q t143 = t137 + t142;
        io.pairs(12, 16, t143);
        const Q t144 = t137 - t142;
        io.pairs(10, 6, negated<0, 1, 0, 1>(t144));
        // complex block of 2
        const Q t145 = t135 - t136;
        // complex block of 2
        const Q t146 = t140 - t141;
        const Q t147 = shuffled<1, 0, 3, 2>(t146);
        const Q t148 = flipped<1, 0, 1, 0>(t147);
        // complex block of 2
        const Q t149 = t145 + t148;
        io.pairs(21, 17, negated<0, 1, 0, 1>(t149));
        const Q t150 = t145 - t148;
        io.pairs(1, 5, t150);
        // real block of 11, multiplier 4
        const Q t151 = c[1] * t10;
        const Q t152 = t54 - t151;
        const Q t153 = c[7] * t3;
        const Q t154 = t152 + t153;
        const Q t155 = t154 + x0_11_22_33;
        const Q t156 = c[6] * t1;
        const Q t157 = t59 - t156;
        const Q t158 = c[3] * t9;
        const Q t159 = t157 - t158;
        const Q t160 = shuffled<0, 4, 2, 6>(t155, t159);
        const Q t161 = shuffled<1, 5, 3, 7>(t155, t159);
        const Q t162 = shuffled<2, 3, 4, 5>(t160, t161);
        const Q t163 = shuffled<0, 1, 6, 7>(t160, t161);
        // complex block of 2
        const Q t164 = t162 + t163;
        const Q t165 = shuffled<0, 1, 6, 7>(t163, t162);
        const Q t166 = shuffled<0, 1, 6, 7>(t162, t163);
        const Q t167 = t165 - t166;
        const Q t168 = shuffled<0, 1, 4, 5>(t164, t167);
        const Q t169 = shuffled<1, 0, 3, 2>(t167);
        const Q t170 = shuffled<2, 3, 6, 7>(t164, t169);
        const Q t171 = flipped<0, 0, 1, 0>(t170);
        // complex block of 2
        const Q t172 = t168 + t171;
        io.pairs(20, 13, negated<0, 0, 0, 1>(t172));
        const Q t173 = t168 - t171;
        io.pairs(2, 9, negated<0, 1, 0, 0>(t173));
    }
};

}  // namespace zulg
