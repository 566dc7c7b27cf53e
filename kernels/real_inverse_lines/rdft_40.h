// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 40.
// Inverse DFT to 40 real points, prime-factor 5, 8; up to four lanes to a register.
// 46 sums, 30 differences, 40 products of registers, which do the 372 steps of the graph, those with
// `scale` included; 44 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<40> {
    static constexpr int steps = 372;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.7071067811865476,  // c[5]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const Q x13_18 = io.pairs(13, 18);
        // doubled bins
        const Q t0 = c[0] * x13_18;
        const Q x3_2 = io.pairs(3, 2);
        const Q t1 = Q(c[0], -c[0], c[0], c[0]) * x3_2;
        // complex block of 5, multiplier 3
        const Q t2 = t0 + t1;
        const Q t3 = t0 - t1;
        const Q x11_6 = io.pairs(11, 6);
        // doubled bins
        const Q t4 = c[0] * x11_6;
        const Q x19_14 = io.pairs(19, 14);
        const Q t5 = c[0] * x19_14;
        // complex block of 5, multiplier 3
        const Q t6 = t4 + t5;
        const Q t7 = shuffled<0, 5, 2, 7>(t4, t5);
        const Q t8 = shuffled<0, 5, 2, 7>(t5, t4);
        const Q t9 = t7 - t8;
        const Q t10 = flipped<0, 1, 0, 1>(t6);
        const Q t11 = t2 + t10;
        const Q x5_10 = io.pairs(5, 10);
        // doubled bins
        const Q t12 = c[0] * x5_10;
        // complex block of 5, multiplier 3
        const Q t13 = t11 + t12;
        const Q t14 = c[1] * t2;
        const Q t15 = Q(-c[2], c[2], -c[2], c[2]) * t6;
        const Q t16 = t14 + t15;
        const Q t17 = t16 + t12;
        const Q t18 = c[3] * t3;
        const Q t19 = c[4] * t9;
        const Q t20 = t18 - t19;
        const Q t21 = shuffled<1, 0, 3, 2>(t20);
        const Q t22 = flipped<1, 0, 1, 0>(t21);
        const Q t23 = t17 + t22;
        const Q t24 = t17 - t22;
        const Q t25 = c[2] * t2;
        const Q t26 = t12 - t25;
        const Q t27 = Q(c[1], -c[1], c[1], -c[1]) * t6;
        const Q t28 = t26 + t27;
        const Q t29 = c[4] * t3;
        const Q t30 = c[3] * t9;
        const Q t31 = t29 + t30;
        const Q t32 = shuffled<1, 0, 3, 2>(t31);
        const Q t33 = flipped<1, 0, 1, 0>(t32);
        const Q t34 = t28 + t33;
        const Q t35 = t28 - t33;
        const P x7 = io.pair(7);
        // doubled bins
        const P t36 = c[0] * x7;
        const P x17 = io.pair(17);
        const P t37 = P(c[0], -c[0]) * x17;
        // complex block of 5, multiplier 3
        const P t38 = t36 + t37;
        const P t39 = flipped<0, 1>(t37);
        const P t40 = flipped<1, 0>(t36);
        const P t41 = t39 + t40;
        const P x1 = io.pair(1);
        // doubled bins
        const P t42 = c[0] * x1;
        const P x9 = io.pair(9);
        const P t43 = c[0] * x9;
        // complex block of 5, multiplier 3
        const P t44 = t42 + t43;
        const P t45 = shuffled<0, 3>(t42, t43);
        const P t46 = shuffled<0, 3>(t43, t42);
        const P t47 = t45 - t46;
        const P t48 = flipped<0, 1>(t44);
        const P t49 = t38 + t48;
        const P x15 = io.pair(15);
        // doubled bins
        const P t50 = c[0] * x15;
        // complex block of 5, multiplier 3
        const P t51 = t49 + t50;
        const P t52 = c[1] * t38;
        const P t53 = P(-c[2], c[2]) * t44;
        const P t54 = t52 + t53;
        const P t55 = t54 + t50;
        const P t56 = c[3] * t41;
        const P t57 = P(-c[4], c[4]) * t47;
        const P t58 = t56 + t57;
        const P t59 = shuffled<1, 0>(t58);
        const P t60 = t55 + t59;
        const P t61 = t55 - t59;
        const P t62 = c[2] * t38;
        const P t63 = t50 - t62;
        const P t64 = P(c[1], -c[1]) * t44;
        const P t65 = t63 + t64;
        const P t66 = c[3] * t47;
        const P t67 = P(c[4], -c[4]) * t41;
        const P t68 = t66 + t67;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = flipped<1, 0>(t69);
        const P t71 = t65 + t70;
        const P t72 = t65 - t70;
        const Q x8_12 = io.pairs(8, 12);
        // doubled bins
        const Q t73 = c[0] * x8_12;
        const P t74 = part<0>(t73);
        const P t75 = part<1>(t73);
        const P t76 = shuffled<0, 2>(t74, t75);
        const Q x16_4 = io.pairs(16, 4);
        const Q t77 = c[0] * x16_4;
        const P t78 = part<0>(t77);
        const P t79 = part<1>(t77);
        const P t80 = shuffled<0, 2>(t78, t79);
        // spectrum block of 5, multiplier 3
        const P t81 = t76 + t80;
        const V x0r = io.re(0);
        const V x20r = io.re(20);
        const P t82 = joined(x0r, x20r);
        const P t83 = t81 + t82;
        const P t84 = c[1] * t76;
        const P t85 = c[2] * t80;
        const P t86 = t84 - t85;
        const P t87 = t86 + t82;
        const P t88 = shuffled<1, 3>(t74, t75);
        const P t89 = c[3] * t88;
        const P t90 = shuffled<1, 3>(t78, t79);
        const P t91 = c[4] * t90;
        const P t92 = t89 + t91;
        const P t93 = flipped<1, 0>(t92);
        const P t94 = t87 + t93;
        const P t95 = t87 - t93;
        const P t96 = c[2] * t76;
        const P t97 = t82 - t96;
        const P t98 = c[1] * t80;
        const P t99 = t97 + t98;
        const P t100 = P(-c[3], c[3]) * t90;
        const P t101 = P(c[4], -c[4]) * t88;
        const P t102 = t100 + t101;
        const P t103 = t99 - t102;
        const P t104 = t99 + t102;
        const P t105 = shuffled<0, 2>(t83, t104);
        const P t106 = shuffled<0, 2>(t94, t95);
        const Q t107 = joined(t105, t106);
        const P t108 = shuffled<1, 3>(t83, t104);
        const P t109 = shuffled<1, 3>(t94, t95);
        const Q t110 = joined(t108, t109);
        // spectrum block of 2
        const Q t111 = t107 + t110;
        const Q t112 = t107 - t110;
        const Q t113 = shuffled<0, 4, 2, 6>(t13, t35);
        const Q t114 = shuffled<0, 4, 2, 6>(t23, t24);
        const Q t115 = shuffled<2, 3, 6, 7>(t113, t114);
        // spectrum block of 2
        const Q t116 = t111 + t115;
        const Q t117 = t111 - t115;
        const Q t118 = shuffled<1, 5, 3, 7>(t13, t35);
        const Q t119 = shuffled<1, 5, 3, 7>(t23, t24);
        const Q t120 = shuffled<2, 3, 6, 7>(t118, t119);
        // spectrum block of 2
        const Q t121 = t112 - t120;
        const Q t122 = t112 + t120;
        const P t123 = shuffled<0, 2>(t51, t72);
        const P t124 = shuffled<0, 2>(t60, t61);
        const Q t125 = joined(t123, t124);
        const Q t126 = shuffled<0, 1, 4, 5>(t113, t114);
        // mirrored skew block of 4, multiplier 5
        const Q t127 = t125 - t126;
        const P t128 = shuffled<1, 3>(t51, t72);
        const P t129 = shuffled<1, 3>(t60, t61);
        const Q t130 = joined(t128, t129);
        const Q t131 = shuffled<0, 1, 4, 5>(t118, t119);
        const Q t132 = t130 + t131;
        const Q t133 = t125 + t126;
        const Q t134 = c[5] * t127;
        const Q t135 = c[5] * t132;
        const Q t136 = t134 + t135;
        const Q t137 = t131 - t130;
        const Q t138 = t134 - t135;
        // spectrum block of 2
        const Q t139 = t116 + t133;
        io.out(0, 8, 16, 24, t139);
        const Q t140 = t116 - t133;
        io.out(20, 28, 36, 4, t140);
        // spectrum block of 2
        const Q t141 = t121 + t136;
        io.out(5, 13, 21, 29, t141);
        const Q t142 = t121 - t136;
        io.out(25, 33, 1, 9, t142);
        // spectrum block of 2
        const Q t143 = t117 - t137;
        io.out(10, 18, 26, 34, t143);
        const Q t144 = t117 + t137;
        io.out(30, 38, 6, 14, t144);
        // spectrum block of 2
        const Q t145 = t122 - t138;
        io.out(15, 23, 31, 39, t145);
        const Q t146 = t122 + t138;
        io.out(35, 3, 11, 19, t146);
        const V t147 = part<0>(t103);
        const V t148 = part<1>(t103);
        // spectrum block of 2
        const V t149 = t147 + t148;
        const V t150 = t147 - t148;
        const P t151 = joined(t149, t150);
        const P t152 = part<1>(t34);
        const P t153 = flipped<0, 1>(t152);
        // spectrum block of 2
        const P t154 = t151 + t153;
        const P t155 = t151 - t153;
        const V t156 = part<0>(t71);
        const P t157 = part<0>(t34);
        const V t158 = part<0>(t157);
        // mirrored skew block of 4, multiplier 5
        const V t159 = t156 - t158;
        const V t160 = part<1>(t71);
        const V t161 = part<1>(t157);
        const V t162 = t160 + t161;
        const V t163 = t156 + t158;
        const V t164 = c[5] * t159;
        const V t165 = c[5] * t162;
        const V t166 = t164 + t165;
        const V t167 = t161 - t160;
        const V t168 = t164 - t165;
        const P t169 = joined(t163, t166);
        const Q t170 = joined(t169, t155);
        const P t171 = flipped<1, 1>(t154);
        const P t172 = joined(t167, t168);
        const Q t173 = joined(t171, t172);
        // spectrum block of 2
        const Q t174 = t170 - t173;
        io.out(32, 37, 2, 7, t174);
        const Q t175 = flipped<1, 1, 0, 0>(t170);
        const Q t176 = flipped<1, 1, 0, 0>(t173);
        const Q t177 = t175 + t176;
        io.out(12, 17, 22, 27, t177);
    }
};

}  // namespace zulg
