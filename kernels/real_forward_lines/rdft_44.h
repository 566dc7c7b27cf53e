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
        0.8412535328311812,  // c[2]: cos 2 pi 12/11
        0.9594929736144974,  // c[3]: -cos 2 pi 16/11
        0.41541501300188644,  // c[4]: cos 2 pi 24/11
        0.7557495743542583,  // c[5]: sin 2 pi 4/11
        0.9898214418809327,  // c[6]: sin 2 pi 36/11
        0.5406408174555976,  // c[7]: sin 2 pi 12/11
        0.28173255684142967,  // c[8]: sin 2 pi 16/11
        0.9096319953545183,  // c[9]: sin 2 pi 24/11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x4_15_26_37 = io.in(4, 15, 26, 37);
        const Q x40_7_18_29 = io.in(40, 7, 18, 29);
        // real block of 11, multiplier 4
        const Q t0 = x4_15_26_37 + x40_7_18_29;
        const Q t1 = x4_15_26_37 - x40_7_18_29;
        const Q x36_3_14_25 = io.in(36, 3, 14, 25);
        const Q x8_19_30_41 = io.in(8, 19, 30, 41);
        const Q t2 = x36_3_14_25 + x8_19_30_41;
        const Q t3 = x36_3_14_25 - x8_19_30_41;
        const Q x12_23_34_1 = io.in(12, 23, 34, 1);
        const Q x32_43_10_21 = io.in(32, 43, 10, 21);
        const Q t4 = x12_23_34_1 + x32_43_10_21;
        const Q t5 = x12_23_34_1 - x32_43_10_21;
        const Q x16_27_38_5 = io.in(16, 27, 38, 5);
        const Q x28_39_6_17 = io.in(28, 39, 6, 17);
        const Q t6 = x16_27_38_5 + x28_39_6_17;
        const Q t7 = x16_27_38_5 - x28_39_6_17;
        const Q x24_35_2_13 = io.in(24, 35, 2, 13);
        const Q x20_31_42_9 = io.in(20, 31, 42, 9);
        const Q t8 = x24_35_2_13 + x20_31_42_9;
        const Q t9 = x24_35_2_13 - x20_31_42_9;
        const Q t10 = t0 + t2;
        const Q t11 = t10 + t4;
        const Q t12 = t11 + t6;
        const Q t13 = t12 + t8;
        const Q x0_11_22_33 = io.in(0, 11, 22, 33);
        const Q t14 = t13 + x0_11_22_33;
        const Q t15 = c[0] * t0;
        const Q t16 = x0_11_22_33 - t15;
        const Q t17 = c[1] * t2;
        const Q t18 = t16 - t17;
        const Q t19 = c[2] * t4;
        const Q t20 = t18 + t19;
        const Q t21 = c[3] * t6;
        const Q t22 = t20 - t21;
        const Q t23 = c[4] * t8;
        const Q t24 = t22 + t23;
        const Q t25 = c[5] * t1;
        const Q t26 = c[6] * t3;
        const Q t27 = t25 + t26;
        const Q t28 = c[7] * t5;
        const Q t29 = t27 + t28;
        const Q t30 = c[8] * t7;
        const Q t31 = t29 + t30;
        const Q t32 = c[9] * t9;
        const Q t33 = t31 + t32;
        const Q t34 = c[1] * t0;
        const Q t35 = x0_11_22_33 - t34;
        const Q t36 = c[3] * t2;
        const Q t37 = t35 - t36;
        const Q t38 = c[4] * t4;
        const Q t39 = t37 + t38;
        const Q t40 = c[2] * t6;
        const Q t41 = t39 + t40;
        const Q t42 = c[0] * t8;
        const Q t43 = t41 - t42;
        const Q t44 = c[6] * t1;
        const Q t45 = c[8] * t3;
        const Q t46 = t44 + t45;
        const Q t47 = c[7] * t7;
        const Q t48 = t46 + t47;
        const Q t49 = c[9] * t5;
        const Q t50 = t48 - t49;
        const Q t51 = c[5] * t9;
        const Q t52 = t50 - t51;
        const Q t53 = c[2] * t0;
        const Q t54 = c[4] * t2;
        const Q t55 = t53 + t54;
        const Q t56 = c[1] * t4;
        const Q t57 = t55 - t56;
        const Q t58 = c[0] * t6;
        const Q t59 = t57 - t58;
        const Q t60 = c[3] * t8;
        const Q t61 = t59 - t60;
        const Q t62 = t61 + x0_11_22_33;
        const Q t63 = c[9] * t3;
        const Q t64 = c[8] * t9;
        const Q t65 = t63 + t64;
        const Q t66 = c[7] * t1;
        const Q t67 = t65 - t66;
        const Q t68 = c[6] * t5;
        const Q t69 = t67 - t68;
        const Q t70 = c[5] * t7;
        const Q t71 = t69 - t70;
        const Q t72 = c[3] * t0;
        const Q t73 = x0_11_22_33 - t72;
        const Q t74 = c[2] * t2;
        const Q t75 = t73 + t74;
        const Q t76 = c[0] * t4;
        const Q t77 = t75 - t76;
        const Q t78 = c[4] * t6;
        const Q t79 = t77 + t78;
        const Q t80 = c[1] * t8;
        const Q t81 = t79 - t80;
        const Q t82 = c[9] * t7;
        const Q t83 = c[6] * t9;
        const Q t84 = t82 + t83;
        const Q t85 = c[8] * t1;
        const Q t86 = t84 - t85;
        const Q t87 = c[7] * t3;
        const Q t88 = t86 - t87;
        const Q t89 = c[5] * t5;
        const Q t90 = t88 - t89;
        const Q t91 = c[4] * t0;
        const Q t92 = c[0] * t2;
        const Q t93 = t91 - t92;
        const Q t94 = c[3] * t4;
        const Q t95 = t93 - t94;
        const Q t96 = c[1] * t6;
        const Q t97 = t95 - t96;
        const Q t98 = c[2] * t8;
        const Q t99 = t97 + t98;
        const Q t100 = t99 + x0_11_22_33;
        const Q t101 = c[9] * t1;
        const Q t102 = c[7] * t9;
        const Q t103 = t101 + t102;
        const Q t104 = c[5] * t3;
        const Q t105 = t103 - t104;
        const Q t106 = c[8] * t5;
        const Q t107 = t105 - t106;
        const Q t108 = c[6] * t7;
        const Q t109 = t107 - t108;
        const P t110 = part<0>(t14);
        const P t111 = part<1>(t14);
        // real block of 2
        const P t112 = t110 + t111;
        const P t113 = t110 - t111;
        io.pair(11, t113);
        const V t114 = part<0>(t112);
        const V t115 = part<1>(t112);
        // real block of 2
        const V t116 = t114 + t115;
        io.re(0, t116);
        const V t117 = t114 - t115;
        io.re(22, t117);
        const Q t118 = shuffled<0, 4, 2, 6>(t24, t33);
        const Q t119 = shuffled<0, 4, 2, 6>(t43, t52);
        const Q t120 = shuffled<0, 1, 4, 5>(t118, t119);
        const Q t121 = shuffled<2, 3, 6, 7>(t118, t119);
        // complex block of 2
        const Q t122 = t120 + t121;
        const Q t123 = flipped<0, 1, 0, 0>(t120);
        const Q t124 = flipped<0, 1, 0, 0>(t121);
        const Q t125 = t123 - t124;
        const Q t126 = shuffled<1, 5, 3, 7>(t24, t33);
        const Q t127 = shuffled<1, 5, 3, 7>(t43, t52);
        const Q t128 = shuffled<0, 1, 4, 5>(t126, t127);
        const Q t129 = shuffled<2, 3, 6, 7>(t126, t127);
        // complex block of 2
        const Q t130 = t128 + t129;
        const Q t131 = flipped<0, 1, 0, 0>(t128);
        const Q t132 = flipped<0, 1, 0, 0>(t129);
        const Q t133 = t131 - t132;
        // complex block of 2
        const Q t134 = t122 + t130;
        io.pairs(4, 8, negated<0, 1, 0, 0>(t134));
        const Q t135 = flipped<0, 1, 0, 0>(t122);
        const Q t136 = flipped<0, 1, 0, 0>(t130);
        const Q t137 = t135 - t136;
        io.pairs(18, 14, negated<0, 1, 0, 1>(t137));
        const Q t138 = shuffled<1, 0, 3, 2>(t133);
        const Q t139 = flipped<1, 0, 1, 0>(t138);
        // complex block of 2
        const Q t140 = t125 + t139;
        io.pairs(15, 19, t140);
        const Q t141 = t125 - t139;
        io.pairs(7, 3, negated<0, 1, 0, 1>(t141));
        const Q t142 = shuffled<0, 4, 2, 6>(t62, t71);
        const Q t143 = shuffled<0, 4, 2, 6>(t81, t90);
        const Q t144 = shuffled<0, 1, 4, 5>(t142, t143);
        const Q t145 = shuffled<2, 3, 6, 7>(t142, t143);
        // complex block of 2
        const Q t146 = t144 + t145;
        const Q t147 = t144 - t145;
        const Q t148 = shuffled<1, 5, 3, 7>(t62, t71);
        const Q t149 = shuffled<1, 5, 3, 7>(t81, t90);
        const Q t150 = shuffled<0, 1, 4, 5>(t148, t149);
        const Q t151 = shuffled<2, 3, 6, 7>(t148, t149);
        // complex block of 2
        const Q t152 = t150 + t151;
        const Q t153 = t150 - t151;
        // complex block of 2
        const Q t154 = t146 + t152;
        io.pairs(12, 16, t154);
        const Q t155 = t146 - t152;
        io.pairs(10, 6, negated<0, 1, 0, 1>(t155));
        const Q t156 = shuffled<1, 0, 3, 2>(t153);
        const Q t157 = flipped<1, 0, 1, 0>(t156);
        // complex block of 2
        const Q t158 = t147 + t157;
        io.pairs(21, 17, negated<0, 1, 0, 1>(t158));
        const Q t159 = t147 - t157;
        io.pairs(1, 5, t159);
        const Q t160 = shuffled<0, 4, 2, 6>(t100, t109);
        const Q t161 = shuffled<1, 5, 3, 7>(t100, t109);
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
