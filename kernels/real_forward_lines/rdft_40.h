// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 40.
// Forward DFT of 40 real points, prime-factor 8, 5; up to four lanes to a register.
// 42 sums, 36 differences, 28 products of registers, which do the 334 steps of the graph, those with
// `scale` included; 49 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<40> {
    static constexpr int steps = 334;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 9/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: -sin 2 pi 9/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x0_8_16_24 = io.in(0, 8, 16, 24);
        const Q x20_28_36_4 = io.in(20, 28, 36, 4);
        // real block of 2
        const Q t0 = x0_8_16_24 + x20_28_36_4;
        const Q t1 = x0_8_16_24 - x20_28_36_4;
        const Q x5_13_21_29 = io.in(5, 13, 21, 29);
        const Q x25_33_1_9 = io.in(25, 33, 1, 9);
        // real block of 2
        const Q t2 = x5_13_21_29 - x25_33_1_9;
        const Q x15_23_31_39 = io.in(15, 23, 31, 39);
        const Q x35_3_11_19 = io.in(35, 3, 11, 19);
        // real block of 2
        const Q t3 = x15_23_31_39 - x35_3_11_19;
        // real block of 2
        const Q t4 = x5_13_21_29 + x25_33_1_9;
        // real block of 2
        const Q t5 = x15_23_31_39 + x35_3_11_19;
        // skew block of 4, multiplier 5
        const Q t6 = t2 - t3;
        const Q t7 = t2 + t3;
        const Q x32_37_2_7 = io.in(32, 37, 2, 7);
        const Q x12_17_22_27 = io.in(12, 17, 22, 27);
        // real block of 2
        const Q t8 = x32_37_2_7 - x12_17_22_27;
        const Q t9 = x32_37_2_7 + x12_17_22_27;
        const P t10 = part<0>(t8);
        const V t11 = part<1>(t10);
        const P t12 = part<1>(t8);
        const V t13 = part<1>(t12);
        // skew block of 4, multiplier 5
        const V t14 = t11 - t13;
        const V t15 = t11 + t13;
        const Q x10_18_26_34 = io.in(10, 18, 26, 34);
        const Q x30_38_6_14 = io.in(30, 38, 6, 14);
        // real block of 2
        const Q t16 = x10_18_26_34 + x30_38_6_14;
        const Q t17 = x10_18_26_34 - x30_38_6_14;
        // real block of 2
        const Q t18 = t0 + t16;
        // real block of 2
        const Q t19 = t4 + t5;
        // real block of 2
        const Q t20 = t18 + t19;
        const Q t21 = t18 - t19;
        // real block of 2
        const Q t22 = t0 - t16;
        // real block of 2
        const Q t23 = t4 - t5;
        const P t24 = part<0>(t9);
        const P t25 = part<1>(t9);
        // real block of 2
        const P t26 = t24 - t25;
        const P t27 = part<0>(t22);
        const P t28 = part<0>(t23);
        const P t29 = shuffled<1, 3>(t27, t28);
        // complex block of 5, multiplier 3
        const P t30 = t29 + t26;
        const P t31 = shuffled<0, 3>(t29, t26);
        const P t32 = shuffled<0, 3>(t26, t29);
        const P t33 = t31 - t32;
        const P t34 = part<1>(t22);
        const P t35 = part<1>(t23);
        const P t36 = shuffled<1, 3>(t34, t35);
        const P t37 = shuffled<0, 2>(t34, t35);
        const P t38 = t36 + t37;
        const P t39 = shuffled<0, 3>(t36, t37);
        const P t40 = shuffled<0, 3>(t37, t36);
        const P t41 = t39 - t40;
        // skew block of 4, multiplier 5
        const Q t42 = c[4] * t6;
        const Q t43 = t1 + t42;
        const Q t44 = t1 - t42;
        const Q t45 = c[4] * t7;
        const Q t46 = t45 - t17;
        const Q t47 = t17 + t45;
        // real block of 2
        const P t48 = t24 + t25;
        const V t49 = part<0>(t48);
        const V t50 = part<1>(t48);
        // real block of 2
        const V t51 = t49 + t50;
        const V t52 = t49 - t50;
        const V t53 = part<0>(t10);
        // skew block of 4, multiplier 5
        const V t54 = c[4] * t14;
        const V t55 = t53 + t54;
        const V t56 = t53 - t54;
        const V t57 = c[4] * t15;
        const V t58 = part<0>(t12);
        const V t59 = t57 - t58;
        const V t60 = t58 + t57;
        // complex block of 5, multiplier 3
        const P t61 = t30 + t38;
        const P t62 = shuffled<0, 2>(t27, t28);
        const P t63 = t61 + t62;
        io.pair(10, negated<0, 1>(t63));
        const P t64 = c[0] * t30;
        const V t65 = part<0>(t64);
        const P t66 = c[1] * t38;
        const V t67 = part<0>(t66);
        const V t68 = t65 - t67;
        const V t69 = part<0>(t28);
        const V t70 = part<1>(t64);
        const V t71 = t69 + t70;
        const P t72 = c[2] * t33;
        const P t73 = c[3] * t41;
        const P t74 = t72 - t73;
        const P t75 = shuffled<0, 3>(t62, t66);
        const V t76 = flipped<1>(t71);
        const P t77 = joined(t68, t76);
        const P t78 = t75 + t77;
        const P t79 = shuffled<1, 0>(t74);
        const P t80 = flipped<0, 1>(t79);
        const P t81 = t78 + t80;
        io.pair(14, negated<0, 1>(t81));
        const P t82 = t78 - t80;
        io.pair(6, negated<0, 1>(t82));
        const V t83 = part<0>(t75);
        const P t84 = c[1] * t30;
        const V t85 = part<0>(t84);
        const V t86 = t83 - t85;
        const V t87 = part<1>(t84);
        const P t88 = c[0] * t38;
        const V t89 = part<1>(t88);
        const V t90 = t87 - t89;
        const P t91 = c[3] * t33;
        const P t92 = c[2] * t41;
        const P t93 = t91 + t92;
        const P t94 = joined(t86, t90);
        const P t95 = shuffled<0, 3>(t88, t62);
        const P t96 = flipped<0, 1>(t95);
        const P t97 = t94 + t96;
        const P t98 = shuffled<1, 0>(t93);
        const P t99 = flipped<0, 1>(t98);
        const P t100 = t97 + t99;
        io.pair(2, t100);
        const P t101 = t97 - t99;
        io.pair(18, t101);
        const Q t102 = shuffled<1, 5, 3, 7>(t44, t46);
        const Q t103 = shuffled<1, 5, 3, 7>(t43, t47);
        const Q t104 = shuffled<0, 1, 4, 5>(t102, t103);
        const P t105 = joined(t56, t59);
        const P t106 = joined(t55, t60);
        const Q t107 = joined(t105, t106);
        // complex block of 5, multiplier 3
        const Q t108 = t104 + t107;
        const Q t109 = shuffled<2, 3, 6, 7>(t102, t103);
        const Q t110 = shuffled<0, 4, 2, 6>(t44, t46);
        const Q t111 = shuffled<0, 4, 2, 6>(t43, t47);
        const Q t112 = shuffled<2, 3, 6, 7>(t110, t111);
        const Q t113 = t109 + t112;
        const Q t114 = t108 + t113;
        const Q t115 = c[0] * t108;
        const Q t116 = c[1] * t113;
        const Q t117 = t115 - t116;
        const Q t118 = shuffled<0, 1, 4, 5>(t110, t111);
        const Q t119 = c[1] * t108;
        const Q t120 = t118 - t119;
        const Q t121 = t104 - t107;
        const Q t122 = t109 - t112;
        const Q t123 = t114 + t118;
        io.pairs(5, 15, t123);
        const Q t124 = t117 + t118;
        const Q t125 = c[2] * t121;
        const Q t126 = c[3] * t122;
        const Q t127 = t125 - t126;
        const Q t128 = shuffled<1, 0, 3, 2>(t127);
        const Q t129 = flipped<0, 1, 0, 1>(t128);
        const Q t130 = t124 + t129;
        io.pairs(19, 9, negated<0, 1, 0, 1>(t130));
        const Q t131 = t124 - t129;
        io.pairs(11, 1, negated<0, 1, 0, 1>(t131));
        const Q t132 = c[0] * t113;
        const Q t133 = t120 + t132;
        const Q t134 = c[3] * t121;
        const Q t135 = c[2] * t122;
        const Q t136 = t134 + t135;
        const Q t137 = shuffled<1, 0, 3, 2>(t136);
        const Q t138 = flipped<0, 1, 0, 1>(t137);
        const Q t139 = t133 + t138;
        io.pairs(3, 7, negated<0, 1, 0, 0>(t139));
        const Q t140 = t133 - t138;
        io.pairs(13, 17, negated<0, 0, 0, 1>(t140));
        const P t141 = part<0>(t20);
        const P t142 = part<0>(t21);
        const P t143 = shuffled<1, 3>(t141, t142);
        const P t144 = joined(t51, t52);
        // real block of 5, multiplier 3
        const P t145 = t143 + t144;
        const P t146 = part<1>(t20);
        const P t147 = part<1>(t21);
        const P t148 = shuffled<1, 3>(t146, t147);
        const P t149 = shuffled<0, 2>(t146, t147);
        const P t150 = t148 + t149;
        const P t151 = t145 + t150;
        const P t152 = shuffled<0, 2>(t141, t142);
        const P t153 = t151 + t152;
        const V t154 = part<0>(t153);
        io.re(0, t154);
        const V t155 = part<1>(t153);
        io.re(20, t155);
        const P t156 = c[1] * t145;
        const P t157 = t152 - t156;
        const P t158 = c[0] * t150;
        const P t159 = t157 + t158;
        const P t160 = c[0] * t145;
        const P t161 = c[1] * t150;
        const P t162 = t160 - t161;
        const P t163 = t162 + t152;
        const P t164 = t143 - t144;
        const P t165 = t148 - t149;
        const P t166 = c[3] * t164;
        const P t167 = c[2] * t165;
        const P t168 = t166 + t167;
        const P t169 = shuffled<0, 2>(t159, t168);
        io.pair(8, t169);
        const P t170 = shuffled<1, 3>(t159, t168);
        io.pair(12, negated<0, 1>(t170));
        const P t171 = c[3] * t165;
        const P t172 = c[2] * t164;
        const P t173 = t171 - t172;
        const P t174 = shuffled<1, 3>(t163, t173);
        io.pair(4, negated<0, 1>(t174));
        const P t175 = shuffled<0, 2>(t163, t173);
        io.pair(16, t175);
    }
};

}  // namespace zulg
