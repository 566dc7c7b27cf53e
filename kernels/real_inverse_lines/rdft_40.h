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
        const Q x8_12 = io.pairs(8, 12);
        // doubled bins
        const Q t0 = c[0] * x8_12;
        const P t1 = part<0>(t0);
        const P t2 = part<1>(t0);
        const P t3 = shuffled<0, 2>(t1, t2);
        const Q x16_4 = io.pairs(16, 4);
        const Q t4 = c[0] * x16_4;
        const P t5 = part<0>(t4);
        const P t6 = part<1>(t4);
        const P t7 = shuffled<0, 2>(t5, t6);
        // spectrum block of 5, multiplier 3
        const P t8 = t3 + t7;
        const V x0r = io.re(0);
        const V x20r = io.re(20);
        const P t9 = joined(x0r, x20r);
        const P t10 = t8 + t9;
        const P t11 = c[1] * t3;
        const P t12 = c[2] * t7;
        const P t13 = t11 - t12;
        const P t14 = t13 + t9;
        const P t15 = shuffled<1, 3>(t1, t2);
        const P t16 = c[3] * t15;
        const P t17 = shuffled<1, 3>(t5, t6);
        const P t18 = c[4] * t17;
        const P t19 = t16 + t18;
        const P t20 = c[2] * t3;
        const P t21 = t9 - t20;
        const P t22 = c[1] * t7;
        const P t23 = t21 + t22;
        const P t24 = P(-c[3], c[3]) * t17;
        const P t25 = P(c[4], -c[4]) * t15;
        const P t26 = t24 + t25;
        const P x1 = io.pair(1);
        // doubled bins
        const P t27 = c[0] * x1;
        const P x9 = io.pair(9);
        const P t28 = c[0] * x9;
        // complex block of 5, multiplier 3
        const P t29 = t27 + t28;
        const P t30 = shuffled<0, 3>(t27, t28);
        const P t31 = shuffled<0, 3>(t28, t27);
        const P t32 = t30 - t31;
        const P x7 = io.pair(7);
        // doubled bins
        const P t33 = c[0] * x7;
        const P x17 = io.pair(17);
        const P t34 = P(c[0], -c[0]) * x17;
        // complex block of 5, multiplier 3
        const P t35 = t33 + t34;
        const P t36 = flipped<0, 1>(t34);
        const P t37 = flipped<1, 0>(t33);
        const P t38 = t36 + t37;
        const P t39 = flipped<0, 1>(t29);
        const P t40 = t35 + t39;
        const P x15 = io.pair(15);
        // doubled bins
        const P t41 = c[0] * x15;
        // complex block of 5, multiplier 3
        const P t42 = t40 + t41;
        const P t43 = c[1] * t35;
        const P t44 = P(-c[2], c[2]) * t29;
        const P t45 = t43 + t44;
        const P t46 = t45 + t41;
        const P t47 = c[3] * t38;
        const P t48 = P(-c[4], c[4]) * t32;
        const P t49 = t47 + t48;
        const P t50 = c[2] * t35;
        const P t51 = t41 - t50;
        const P t52 = P(c[1], -c[1]) * t29;
        const P t53 = t51 + t52;
        const P t54 = c[3] * t32;
        const P t55 = P(c[4], -c[4]) * t38;
        const P t56 = t54 + t55;
        const Q x13_18 = io.pairs(13, 18);
        // doubled bins
        const Q t57 = c[0] * x13_18;
        const Q x3_2 = io.pairs(3, 2);
        const Q t58 = Q(c[0], -c[0], c[0], c[0]) * x3_2;
        // complex block of 5, multiplier 3
        const Q t59 = t57 + t58;
        const Q t60 = t57 - t58;
        const Q x11_6 = io.pairs(11, 6);
        // doubled bins
        const Q t61 = c[0] * x11_6;
        const Q x19_14 = io.pairs(19, 14);
        const Q t62 = c[0] * x19_14;
        // complex block of 5, multiplier 3
        const Q t63 = t61 + t62;
        const Q t64 = shuffled<0, 5, 2, 7>(t61, t62);
        const Q t65 = shuffled<0, 5, 2, 7>(t62, t61);
        const Q t66 = t64 - t65;
        const Q t67 = flipped<0, 1, 0, 1>(t63);
        const Q t68 = t59 + t67;
        const Q x5_10 = io.pairs(5, 10);
        // doubled bins
        const Q t69 = c[0] * x5_10;
        // complex block of 5, multiplier 3
        const Q t70 = t68 + t69;
        const Q t71 = c[1] * t59;
        const Q t72 = Q(-c[2], c[2], -c[2], c[2]) * t63;
        const Q t73 = t71 + t72;
        const Q t74 = t73 + t69;
        const Q t75 = c[3] * t60;
        const Q t76 = c[4] * t66;
        const Q t77 = t75 - t76;
        const Q t78 = c[2] * t59;
        const Q t79 = t69 - t78;
        const Q t80 = Q(c[1], -c[1], c[1], -c[1]) * t63;
        const Q t81 = t79 + t80;
        const Q t82 = c[4] * t60;
        const Q t83 = c[3] * t66;
        const Q t84 = t82 + t83;
        const Q t85 = shuffled<1, 0, 3, 2>(t77);
        const Q t86 = flipped<1, 0, 1, 0>(t85);
        const Q t87 = t74 + t86;
        const Q t88 = t74 - t86;
        const Q t89 = shuffled<1, 0, 3, 2>(t84);
        const Q t90 = flipped<0, 1, 0, 1>(t89);
        const Q t91 = t81 + t90;
        const P t92 = shuffled<1, 0>(t49);
        // complex block of 5, multiplier 3
        const P t93 = t46 + t92;
        const P t94 = t46 - t92;
        const P t95 = shuffled<1, 0>(t56);
        const P t96 = flipped<0, 1>(t95);
        const P t97 = t53 + t96;
        const P t98 = shuffled<0, 2>(t42, t97);
        const P t99 = shuffled<0, 2>(t93, t94);
        const Q t100 = joined(t98, t99);
        const Q t101 = shuffled<0, 4, 2, 6>(t70, t91);
        const Q t102 = shuffled<0, 4, 2, 6>(t87, t88);
        const Q t103 = shuffled<0, 1, 4, 5>(t101, t102);
        // mirrored skew block of 4, multiplier 5
        const Q t104 = t100 - t103;
        const P t105 = shuffled<1, 3>(t42, t97);
        const P t106 = shuffled<1, 3>(t93, t94);
        const Q t107 = joined(t105, t106);
        const Q t108 = shuffled<1, 5, 3, 7>(t70, t91);
        const Q t109 = shuffled<1, 5, 3, 7>(t87, t88);
        const Q t110 = shuffled<0, 1, 4, 5>(t108, t109);
        const Q t111 = t107 + t110;
        const Q t112 = t100 + t103;
        const Q t113 = t110 - t107;
        const P t114 = flipped<1, 0>(t19);
        // spectrum block of 5, multiplier 3
        const P t115 = t14 + t114;
        const P t116 = t14 - t114;
        const P t117 = t23 + t26;
        const P t118 = shuffled<0, 2>(t10, t117);
        const P t119 = shuffled<0, 2>(t115, t116);
        const Q t120 = joined(t118, t119);
        const P t121 = shuffled<1, 3>(t10, t117);
        const P t122 = shuffled<1, 3>(t115, t116);
        const Q t123 = joined(t121, t122);
        // spectrum block of 2
        const Q t124 = t120 + t123;
        const Q t125 = t120 - t123;
        const Q t126 = shuffled<2, 3, 6, 7>(t101, t102);
        // spectrum block of 2
        const Q t127 = t124 + t126;
        // spectrum block of 2
        const Q t128 = t127 + t112;
        io.out(0, 8, 16, 24, t128);
        const Q t129 = t127 - t112;
        io.out(20, 28, 36, 4, t129);
        // spectrum block of 2
        const Q t130 = t124 - t126;
        // spectrum block of 2
        const Q t131 = t130 - t113;
        io.out(10, 18, 26, 34, t131);
        const Q t132 = t130 + t113;
        io.out(30, 38, 6, 14, t132);
        const Q t133 = shuffled<2, 3, 6, 7>(t108, t109);
        // spectrum block of 2
        const Q t134 = t125 - t133;
        // mirrored skew block of 4, multiplier 5
        const Q t135 = c[5] * t104;
        const Q t136 = c[5] * t111;
        const Q t137 = t135 + t136;
        // spectrum block of 2
        const Q t138 = t134 + t137;
        io.out(5, 13, 21, 29, t138);
        const Q t139 = t134 - t137;
        io.out(25, 33, 1, 9, t139);
        // spectrum block of 2
        const Q t140 = t125 + t133;
        // mirrored skew block of 4, multiplier 5
        const Q t141 = t135 - t136;
        // spectrum block of 2
        const Q t142 = t140 - t141;
        io.out(15, 23, 31, 39, t142);
        const Q t143 = t140 + t141;
        io.out(35, 3, 11, 19, t143);
        // complex block of 5, multiplier 3
        const Q t144 = t81 - t90;
        // complex block of 5, multiplier 3
        const P t145 = t53 - t96;
        const V t146 = part<0>(t145);
        const P t147 = part<0>(t144);
        const V t148 = part<0>(t147);
        // mirrored skew block of 4, multiplier 5
        const V t149 = t146 - t148;
        const V t150 = part<1>(t145);
        const V t151 = part<1>(t147);
        const V t152 = t150 + t151;
        const V t153 = t146 + t148;
        const V t154 = t151 - t150;
        // spectrum block of 5, multiplier 3
        const P t155 = t23 - t26;
        const V t156 = part<0>(t155);
        const V t157 = part<1>(t155);
        // spectrum block of 2
        const V t158 = t156 + t157;
        const V t159 = t156 - t157;
        const P t160 = joined(t158, t159);
        const P t161 = part<1>(t144);
        const P t162 = flipped<0, 1>(t161);
        // spectrum block of 2
        const P t163 = t160 + t162;
        const P t164 = t160 - t162;
        // mirrored skew block of 4, multiplier 5
        const V t165 = c[5] * t149;
        const V t166 = c[5] * t152;
        const V t167 = t165 + t166;
        const V t168 = t165 - t166;
        const P t169 = joined(t153, t167);
        const Q t170 = joined(t169, t164);
        const P t171 = flipped<1, 1>(t163);
        const P t172 = joined(t154, t168);
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
