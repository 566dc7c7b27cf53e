// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 32.
// Complex DFT of 32 points, twiddled, inner 8, outer 4; two lines of a stage to a register.
// 54 sums, 40 differences, 22 products of registers, which do the 528 steps of the graph, those with
// `scale` included; 48 shuffles, 25 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<32> {
    static constexpr int steps = 528;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 2/32
        0.3826834323650898,  // c[2]: sin 2 pi 2/32
        0.9807852804032304,  // c[3]: cos 2 pi 1/32
        0.8314696123025452,  // c[4]: cos 2 pi 3/32
        0.19509032201612828,  // c[5]: sin 2 pi 1/32
        0.5555702330196022,  // c[6]: sin 2 pi 3/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_1 = io.pairs(0, 1);
        const Q x16_17 = io.pairs(16, 17);
        // complex block of 2
        const Q t0 = x0_1 + x16_17;
        const Q t1 = x0_1 - x16_17;
        const Q x4_5 = io.pairs(4, 5);
        const Q x20_21 = io.pairs(20, 21);
        // complex block of 2
        const Q t2 = x4_5 + x20_21;
        const Q t3 = x4_5 - x20_21;
        const Q x8_9 = io.pairs(8, 9);
        const Q x24_25 = io.pairs(24, 25);
        // complex block of 2
        const Q t4 = x8_9 + x24_25;
        const Q t5 = x8_9 - x24_25;
        const Q x12_13 = io.pairs(12, 13);
        const Q x28_29 = io.pairs(28, 29);
        // complex block of 2
        const Q t6 = x12_13 + x28_29;
        const Q t7 = x12_13 - x28_29;
        // complex block of 2
        const Q t8 = t0 + t4;
        const Q t9 = t0 - t4;
        // complex block of 2
        const Q t10 = t2 + t6;
        const Q t11 = t2 - t6;
        // complex block of 2
        const Q t12 = t8 + t10;
        const Q t13 = t8 - t10;
        const Q t14 = shuffled<1, 0, 3, 2>(t11);
        const Q t15 = flipped<0, 1, 0, 1>(t14);
        // complex block of 2
        const Q t16 = t9 + t15;
        const Q t17 = t9 - t15;
        // complex block of 8
        const Q t18 = c[0] * t3;
        const Q t19 = shuffled<1, 0, 3, 2>(t18);
        const Q t20 = flipped<0, 1, 0, 1>(t19);
        const Q t21 = t18 + t20;
        const Q t22 = c[0] * t7;
        const Q t23 = shuffled<1, 0, 3, 2>(t22);
        const Q t24 = flipped<0, 1, 0, 1>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = shuffled<1, 0, 3, 2>(t5);
        const Q t27 = flipped<0, 1, 0, 1>(t26);
        // complex block of 2
        const Q t28 = t1 + t27;
        const Q t29 = t1 - t27;
        const Q t30 = shuffled<1, 0, 3, 2>(t25);
        const Q t31 = flipped<0, 1, 0, 1>(t30);
        // complex block of 2
        const Q t32 = t21 + t31;
        const Q t33 = t21 - t31;
        // complex block of 2
        const Q t34 = t28 + t32;
        const Q t35 = t28 - t32;
        const Q t36 = shuffled<1, 0, 3, 2>(t33);
        const Q t37 = flipped<0, 1, 0, 1>(t36);
        // complex block of 2
        const Q t38 = t29 + t37;
        const Q t39 = t29 - t37;
        const Q x2_3 = io.pairs(2, 3);
        const Q x18_19 = io.pairs(18, 19);
        // complex block of 2
        const Q t40 = x2_3 + x18_19;
        const Q t41 = x2_3 - x18_19;
        const Q x6_7 = io.pairs(6, 7);
        const Q x22_23 = io.pairs(22, 23);
        // complex block of 2
        const Q t42 = x6_7 + x22_23;
        const Q t43 = x6_7 - x22_23;
        const Q x10_11 = io.pairs(10, 11);
        const Q x26_27 = io.pairs(26, 27);
        // complex block of 2
        const Q t44 = x10_11 + x26_27;
        const Q t45 = x10_11 - x26_27;
        const Q x14_15 = io.pairs(14, 15);
        const Q x30_31 = io.pairs(30, 31);
        // complex block of 2
        const Q t46 = x14_15 + x30_31;
        const Q t47 = x14_15 - x30_31;
        // complex block of 2
        const Q t48 = t40 + t44;
        const Q t49 = t40 - t44;
        // complex block of 2
        const Q t50 = t42 + t46;
        const Q t51 = t42 - t46;
        // complex block of 2
        const Q t52 = t48 + t50;
        const Q t53 = t48 - t50;
        const Q t54 = shuffled<1, 0, 3, 2>(t51);
        const Q t55 = flipped<0, 1, 0, 1>(t54);
        // complex block of 2
        const Q t56 = t49 + t55;
        const Q t57 = t49 - t55;
        // complex block of 8
        const Q t58 = c[0] * t43;
        const Q t59 = shuffled<1, 0, 3, 2>(t58);
        const Q t60 = flipped<0, 1, 0, 1>(t59);
        const Q t61 = t58 + t60;
        const Q t62 = c[0] * t47;
        const Q t63 = shuffled<1, 0, 3, 2>(t62);
        const Q t64 = flipped<0, 1, 0, 1>(t63);
        const Q t65 = t62 + t64;
        const Q t66 = shuffled<1, 0, 3, 2>(t45);
        const Q t67 = flipped<0, 1, 0, 1>(t66);
        // complex block of 2
        const Q t68 = t41 + t67;
        const Q t69 = t41 - t67;
        const Q t70 = shuffled<1, 0, 3, 2>(t65);
        const Q t71 = flipped<0, 1, 0, 1>(t70);
        // complex block of 2
        const Q t72 = t61 + t71;
        const Q t73 = t61 - t71;
        // complex block of 2
        const Q t74 = t68 + t72;
        const Q t75 = t68 - t72;
        const Q t76 = shuffled<1, 0, 3, 2>(t73);
        const Q t77 = flipped<0, 1, 0, 1>(t76);
        // complex block of 2
        const Q t78 = t69 + t77;
        const Q t79 = t69 - t77;
        const Q t80 = shuffled<2, 3, 6, 7>(t34, t38);
        // complex block of 32
        const Q t81 = Q(c[3], c[3], c[4], c[4]) * t80;
        const Q t82 = shuffled<1, 0, 3, 2>(t80);
        const Q t83 = Q(c[5], -c[5], c[6], -c[6]) * t82;
        const Q t84 = t81 + t83;
        const Q t85 = shuffled<0, 1, 4, 5>(t74, t78);
        const Q t86 = Q(c[1], c[1], c[2], c[2]) * t85;
        const Q t87 = shuffled<1, 0, 3, 2>(t85);
        const Q t88 = Q(c[2], -c[2], c[1], -c[1]) * t87;
        const Q t89 = t86 + t88;
        const Q t90 = shuffled<2, 3, 6, 7>(t74, t78);
        const Q t91 = shuffled<1, 0, 2, 3>(t90);
        const Q t92 = Q(c[6], -c[6], -c[5], c[5]) * t91;
        const Q t93 = shuffled<1, 0, 3, 2>(t91);
        const Q t94 = Q(c[4], c[4], c[3], c[3]) * t93;
        const Q t95 = t92 + t94;
        const Q t96 = shuffled<0, 1, 4, 5>(t34, t38);
        // complex block of 2
        const Q t97 = t96 + t89;
        const Q t98 = t96 - t89;
        const Q t99 = flipped<0, 0, 0, 1>(t95);
        // complex block of 2
        const Q t100 = t84 + t99;
        const Q t101 = t84 - t99;
        // complex block of 2
        const Q t102 = t97 + t100;
        io.pairs(1, 3, t102);
        const Q t103 = t97 - t100;
        io.pairs(17, 19, t103);
        const Q t104 = shuffled<1, 0, 3, 2>(t101);
        const Q t105 = flipped<0, 1, 0, 1>(t104);
        // complex block of 2
        const Q t106 = t98 + t105;
        io.pairs(9, 11, t106);
        const Q t107 = t98 - t105;
        io.pairs(25, 27, t107);
        const Q t108 = shuffled<2, 3, 6, 7>(t13, t53);
        // complex block of 32
        const Q t109 = c[0] * t108;
        const Q t110 = shuffled<1, 0, 3, 2>(t109);
        const Q t111 = flipped<0, 1, 0, 1>(t110);
        const Q t112 = t109 + t111;
        const Q t113 = shuffled<0, 1, 4, 5>(t12, t13);
        const P t114 = part<0>(t52);
        const P t115 = part<0>(t53);
        const P t116 = shuffled<1, 0>(t115);
        const P t117 = flipped<0, 1>(t116);
        const Q t118 = joined(t114, t117);
        // complex block of 2
        const Q t119 = t113 + t118;
        const Q t120 = t113 - t118;
        const Q t121 = shuffled<2, 3, 4, 5>(t12, t112);
        const Q t122 = shuffled<2, 3, 6, 7>(t52, t112);
        const Q t123 = shuffled<0, 1, 3, 2>(t122);
        const Q t124 = flipped<0, 0, 0, 1>(t123);
        // complex block of 2
        const Q t125 = t121 + t124;
        const Q t126 = t121 - t124;
        // complex block of 2
        const Q t127 = t119 + t125;
        io.pairs(0, 4, t127);
        const Q t128 = t119 - t125;
        io.pairs(16, 20, t128);
        const Q t129 = shuffled<1, 0, 3, 2>(t126);
        const Q t130 = flipped<0, 1, 0, 1>(t129);
        // complex block of 2
        const Q t131 = t120 + t130;
        io.pairs(8, 12, t131);
        const Q t132 = t120 - t130;
        io.pairs(24, 28, t132);
        const Q t133 = shuffled<2, 3, 6, 7>(t16, t17);
        // complex block of 32
        const Q t134 = Q(c[1], c[1], c[2], c[2]) * t133;
        const Q t135 = shuffled<1, 0, 3, 2>(t133);
        const Q t136 = Q(c[2], -c[2], c[1], -c[1]) * t135;
        const Q t137 = t134 + t136;
        const Q t138 = shuffled<0, 1, 4, 5>(t56, t57);
        const Q t139 = c[0] * t138;
        const Q t140 = shuffled<1, 0, 3, 2>(t139);
        const Q t141 = flipped<0, 1, 0, 1>(t140);
        const Q t142 = t139 + t141;
        const Q t143 = shuffled<2, 3, 6, 7>(t56, t57);
        const Q t144 = shuffled<1, 0, 3, 2>(t143);
        const Q t145 = Q(c[1], -c[1], c[2], c[2]) * t144;
        const Q t146 = Q(c[2], c[2], c[1], -c[1]) * t143;
        const Q t147 = t145 + t146;
        const Q t148 = shuffled<0, 1, 4, 5>(t16, t17);
        const Q t149 = shuffled<0, 5, 3, 6>(t142, t142);
        const Q t150 = flipped<0, 0, 0, 1>(t149);
        // complex block of 2
        const Q t151 = t148 + t150;
        const Q t152 = t148 - t150;
        const Q t153 = flipped<0, 0, 1, 0>(t147);
        // complex block of 2
        const Q t154 = t137 + t153;
        const Q t155 = t137 - t153;
        // complex block of 2
        const Q t156 = t151 + t154;
        io.pairs(2, 6, t156);
        const Q t157 = t151 - t154;
        io.pairs(18, 22, t157);
        const Q t158 = shuffled<1, 0, 3, 2>(t155);
        const Q t159 = flipped<0, 1, 0, 1>(t158);
        // complex block of 2
        const Q t160 = t152 + t159;
        io.pairs(10, 14, t160);
        const Q t161 = t152 - t159;
        io.pairs(26, 30, t161);
        const Q t162 = shuffled<2, 3, 6, 7>(t35, t39);
        // complex block of 32
        const Q t163 = Q(c[6], c[6], c[5], c[5]) * t162;
        const Q t164 = shuffled<1, 0, 3, 2>(t162);
        const Q t165 = Q(c[4], -c[4], c[3], -c[3]) * t164;
        const Q t166 = t163 + t165;
        const Q t167 = shuffled<0, 1, 4, 5>(t75, t79);
        const Q t168 = Q(-c[2], c[2], -c[1], c[1]) * t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t167);
        const Q t170 = Q(c[1], c[1], c[2], c[2]) * t169;
        const Q t171 = t168 + t170;
        const Q t172 = shuffled<2, 3, 6, 7>(t75, t79);
        const Q t173 = shuffled<0, 1, 3, 2>(t172);
        const Q t174 = Q(-c[3], c[3], c[4], c[4]) * t173;
        const Q t175 = shuffled<1, 0, 3, 2>(t173);
        const Q t176 = Q(c[5], c[5], c[6], -c[6]) * t175;
        const Q t177 = t174 + t176;
        const Q t178 = shuffled<0, 1, 4, 5>(t35, t39);
        const Q t179 = flipped<0, 1, 0, 1>(t171);
        // complex block of 2
        const Q t180 = t178 + t179;
        const Q t181 = t178 - t179;
        const Q t182 = flipped<0, 1, 1, 0>(t177);
        // complex block of 2
        const Q t183 = t166 + t182;
        const Q t184 = t166 - t182;
        // complex block of 2
        const Q t185 = t180 + t183;
        io.pairs(5, 7, t185);
        const Q t186 = t180 - t183;
        io.pairs(21, 23, t186);
        const Q t187 = shuffled<1, 0, 3, 2>(t184);
        const Q t188 = flipped<0, 1, 0, 1>(t187);
        // complex block of 2
        const Q t189 = t181 + t188;
        io.pairs(13, 15, t189);
        const Q t190 = t181 - t188;
        io.pairs(29, 31, t190);
    }
};

}  // namespace zulg
