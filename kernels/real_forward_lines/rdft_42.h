// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 42.
// Forward DFT of 42 real points, prime-factor 7, 3, 2; up to four lanes to a register.
// 42 sums, 42 differences, 44 products of registers, which do the 444 steps of the graph, those with
// `scale` included; 42 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<42> {
    static constexpr int steps = 444;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 6/7
        0.2225209339563144,  // c[1]: -cos 2 pi 30/7
        0.9009688679024191,  // c[2]: -cos 2 pi 24/7
        0.7818314824680298,  // c[3]: -sin 2 pi 6/7
        0.9749279121818236,  // c[4]: sin 2 pi 30/7
        0.4338837391175581,  // c[5]: sin 2 pi 24/7
        0.5,  // c[6]: -cos 2 pi 2/3
        0.8660254037844386,  // c[7]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x6_13_20_27 = io.in(6, 13, 20, 27);
        const Q x36_1_8_15 = io.in(36, 1, 8, 15);
        // real block of 7, multiplier 6
        const Q t0 = x6_13_20_27 + x36_1_8_15;
        const Q t1 = x6_13_20_27 - x36_1_8_15;
        const Q x30_37_2_9 = io.in(30, 37, 2, 9);
        const Q x12_19_26_33 = io.in(12, 19, 26, 33);
        const Q t2 = x30_37_2_9 + x12_19_26_33;
        const Q t3 = x30_37_2_9 - x12_19_26_33;
        const Q t4 = t0 + t2;
        const Q x18_31_32_3 = io.in(18, 31, 32, 3);
        const P x24_25 = io.in(24, 25);
        const P x38_39 = io.in(38, 39);
        const Q t5 = joined(x24_25, x38_39);
        const Q t6 = x18_31_32_3 + t5;
        const Q t7 = shuffled<0, 5, 2, 7>(t5, x18_31_32_3);
        const Q t8 = shuffled<0, 5, 2, 7>(x18_31_32_3, t5);
        const Q t9 = t7 - t8;
        const Q t10 = t4 + t6;
        const Q x0_7_14_21 = io.in(0, 7, 14, 21);
        const Q t11 = t10 + x0_7_14_21;
        const Q t12 = c[0] * t0;
        const Q t13 = c[1] * t2;
        const Q t14 = t12 - t13;
        const Q t15 = c[2] * t6;
        const Q t16 = t14 - t15;
        const Q t17 = t16 + x0_7_14_21;
        const Q t18 = c[3] * t1;
        const Q t19 = c[4] * t3;
        const Q t20 = t18 - t19;
        const Q t21 = c[5] * t9;
        const Q t22 = t20 - t21;
        const Q t23 = c[1] * t0;
        const Q t24 = x0_7_14_21 - t23;
        const Q t25 = c[2] * t2;
        const Q t26 = t24 - t25;
        const Q t27 = c[0] * t6;
        const Q t28 = t26 + t27;
        const Q t29 = c[4] * t1;
        const Q t30 = c[5] * t3;
        const Q t31 = t29 + t30;
        const Q t32 = c[3] * t9;
        const Q t33 = t31 + t32;
        const Q t34 = c[2] * t0;
        const Q t35 = x0_7_14_21 - t34;
        const Q t36 = c[0] * t2;
        const Q t37 = t35 + t36;
        const Q t38 = c[1] * t6;
        const Q t39 = t37 - t38;
        const Q t40 = c[5] * t1;
        const Q t41 = c[3] * t3;
        const Q t42 = t40 + t41;
        const Q t43 = c[4] * t9;
        const Q t44 = t42 - t43;
        const P x4_17 = io.in(4, 17);
        const P x10_11 = io.in(10, 11);
        // real block of 7, multiplier 6
        const P t45 = x4_17 + x10_11;
        const P t46 = shuffled<0, 3>(x10_11, x4_17);
        const P t47 = shuffled<0, 3>(x4_17, x10_11);
        const P t48 = t46 - t47;
        const P x16_23 = io.in(16, 23);
        const P x40_5 = io.in(40, 5);
        const P t49 = x16_23 + x40_5;
        const P t50 = x16_23 - x40_5;
        const P x34_41 = io.in(34, 41);
        const P x22_29 = io.in(22, 29);
        const P t51 = x34_41 + x22_29;
        const P t52 = x34_41 - x22_29;
        const P t53 = t51 + t49;
        const P t54 = t53 + t45;
        const P x28_35 = io.in(28, 35);
        const P t55 = t54 + x28_35;
        const P t56 = c[0] * t51;
        const P t57 = c[1] * t49;
        const P t58 = t56 - t57;
        const P t59 = c[2] * t45;
        const P t60 = t58 - t59;
        const P t61 = t60 + x28_35;
        const P t62 = c[3] * t52;
        const P t63 = c[4] * t50;
        const P t64 = t62 - t63;
        const P t65 = c[5] * t48;
        const P t66 = t64 - t65;
        const P t67 = c[1] * t51;
        const P t68 = x28_35 - t67;
        const P t69 = c[2] * t49;
        const P t70 = t68 - t69;
        const P t71 = c[0] * t45;
        const P t72 = t70 + t71;
        const P t73 = c[4] * t52;
        const P t74 = c[5] * t50;
        const P t75 = t73 + t74;
        const P t76 = c[3] * t48;
        const P t77 = t75 + t76;
        const P t78 = c[2] * t51;
        const P t79 = x28_35 - t78;
        const P t80 = c[0] * t49;
        const P t81 = t79 + t80;
        const P t82 = c[1] * t45;
        const P t83 = t81 - t82;
        const P t84 = c[5] * t52;
        const P t85 = c[3] * t50;
        const P t86 = t84 + t85;
        const P t87 = c[4] * t48;
        const P t88 = t86 - t87;
        const P t89 = part<1>(t11);
        const P t90 = part<0>(t11);
        const P t91 = shuffled<0, 3>(t89, t90);
        // real block of 3, multiplier 2
        const P t92 = t55 + t91;
        const P t93 = shuffled<0, 3>(t90, t89);
        const P t94 = t92 + t93;
        const P t95 = shuffled<0, 3>(t91, t55);
        const P t96 = shuffled<0, 3>(t55, t91);
        const P t97 = t95 - t96;
        const P t98 = c[6] * t92;
        const P t99 = t93 - t98;
        const P t100 = c[7] * t97;
        const P t101 = shuffled<0, 2>(t99, t100);
        const P t102 = shuffled<1, 3>(t99, t100);
        // complex block of 2
        const P t103 = t101 + t102;
        io.pair(14, t103);
        const P t104 = t101 - t102;
        io.pair(7, negated<0, 1>(t104));
        const V t105 = part<0>(t94);
        const V t106 = part<1>(t94);
        // real block of 2
        const V t107 = t105 + t106;
        io.re(0, t107);
        const V t108 = t105 - t106;
        io.re(21, t108);
        const Q t109 = shuffled<0, 4, 2, 6>(t17, t22);
        const Q t110 = shuffled<0, 4, 2, 6>(t28, t33);
        const Q t111 = shuffled<2, 3, 6, 7>(t109, t110);
        const P t112 = shuffled<0, 2>(t61, t66);
        const P t113 = shuffled<0, 2>(t72, t77);
        const Q t114 = joined(t112, t113);
        // complex block of 3, multiplier 2
        const Q t115 = t111 + t114;
        const Q t116 = shuffled<0, 1, 4, 5>(t109, t110);
        const Q t117 = t115 + t116;
        const Q t118 = c[6] * t115;
        const Q t119 = t116 - t118;
        const Q t120 = t111 - t114;
        const P t121 = shuffled<1, 3>(t61, t66);
        const P t122 = shuffled<1, 3>(t72, t77);
        const Q t123 = joined(t121, t122);
        const Q t124 = shuffled<1, 5, 3, 7>(t17, t22);
        const Q t125 = shuffled<1, 5, 3, 7>(t28, t33);
        const Q t126 = shuffled<0, 1, 4, 5>(t124, t125);
        // complex block of 3, multiplier 2
        const Q t127 = t123 + t126;
        const Q t128 = shuffled<2, 3, 6, 7>(t124, t125);
        const Q t129 = t127 + t128;
        const Q t130 = c[6] * t127;
        const Q t131 = t128 - t130;
        const Q t132 = t123 - t126;
        // complex block of 3, multiplier 2
        const Q t133 = Q(-c[7], c[7], -c[7], c[7]) * t120;
        const Q t134 = shuffled<1, 0, 3, 2>(t133);
        const Q t135 = t119 + t134;
        // complex block of 3, multiplier 2
        const Q t136 = Q(-c[7], c[7], -c[7], c[7]) * t132;
        const Q t137 = shuffled<1, 0, 3, 2>(t136);
        const Q t138 = t131 + t137;
        // complex block of 2
        const Q t139 = t135 + t138;
        io.pairs(8, 2, negated<0, 1, 0, 1>(t139));
        const Q t140 = t135 - t138;
        io.pairs(13, 19, t140);
        // complex block of 3, multiplier 2
        const Q t141 = t119 - t134;
        // complex block of 3, multiplier 2
        const Q t142 = t131 - t137;
        // complex block of 2
        const Q t143 = t141 + t142;
        io.pairs(20, 16, negated<0, 0, 0, 1>(t143));
        const Q t144 = t141 - t142;
        io.pairs(1, 5, negated<0, 1, 0, 0>(t144));
        // complex block of 2
        const Q t145 = t117 + t129;
        io.pairs(6, 12, t145);
        const Q t146 = t117 - t129;
        io.pairs(15, 9, negated<0, 1, 0, 1>(t146));
        const P t147 = shuffled<0, 2>(t83, t88);
        const P t148 = shuffled<1, 3>(t83, t88);
        const Q t149 = joined(t147, t148);
        const Q t150 = shuffled<0, 4, 2, 6>(t39, t44);
        const Q t151 = shuffled<1, 5, 3, 7>(t39, t44);
        const Q t152 = shuffled<2, 3, 4, 5>(t150, t151);
        // complex block of 3, multiplier 2
        const Q t153 = t149 + t152;
        const Q t154 = shuffled<0, 1, 6, 7>(t150, t151);
        const Q t155 = t153 + t154;
        const Q t156 = c[6] * t153;
        const Q t157 = t154 - t156;
        const Q t158 = shuffled<0, 1, 6, 7>(t152, t149);
        const Q t159 = shuffled<0, 1, 6, 7>(t149, t152);
        const Q t160 = t158 - t159;
        const Q t161 = Q(-c[7], c[7], -c[7], c[7]) * t160;
        const Q t162 = shuffled<1, 0, 3, 2>(t161);
        const Q t163 = t157 + t162;
        const P t164 = part<0>(t163);
        const P t165 = part<1>(t163);
        // complex block of 2
        const P t166 = t164 + t165;
        io.pair(4, t166);
        const P t167 = t164 - t165;
        io.pair(17, negated<0, 1>(t167));
        // complex block of 3, multiplier 2
        const Q t168 = t157 - t162;
        const Q t169 = shuffled<0, 1, 4, 5>(t155, t168);
        const Q t170 = shuffled<2, 3, 6, 7>(t155, t168);
        // complex block of 2
        const Q t171 = t169 + t170;
        io.pairs(18, 10, negated<0, 0, 0, 1>(t171));
        const Q t172 = t169 - t170;
        io.pairs(3, 11, negated<0, 1, 0, 0>(t172));
    }
};

}  // namespace zulg
