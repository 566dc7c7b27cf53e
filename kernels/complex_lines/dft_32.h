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
        const Q t2 = x4_5 - x20_21;
        const Q t3 = x4_5 + x20_21;
        const Q x8_9 = io.pairs(8, 9);
        const Q x24_25 = io.pairs(24, 25);
        // complex block of 2
        const Q t4 = x8_9 + x24_25;
        const Q t5 = x8_9 - x24_25;
        const Q x12_13 = io.pairs(12, 13);
        const Q x28_29 = io.pairs(28, 29);
        // complex block of 2
        const Q t6 = x12_13 - x28_29;
        const Q t7 = x12_13 + x28_29;
        // complex block of 2
        const Q t8 = t0 + t4;
        // complex block of 2
        const Q t9 = t3 + t7;
        // complex block of 2
        const Q t10 = t8 - t9;
        // complex block of 2
        const Q t11 = t0 - t4;
        // complex block of 2
        const Q t12 = t3 - t7;
        const Q t13 = shuffled<1, 0, 3, 2>(t12);
        const Q t14 = flipped<0, 1, 0, 1>(t13);
        // complex block of 2
        const Q t15 = t11 + t14;
        const Q t16 = t11 - t14;
        // complex block of 8
        const Q t17 = c[0] * t2;
        const Q t18 = shuffled<1, 0, 3, 2>(t17);
        const Q t19 = flipped<0, 1, 0, 1>(t18);
        const Q t20 = t17 + t19;
        const Q t21 = c[0] * t6;
        const Q t22 = shuffled<1, 0, 3, 2>(t21);
        const Q t23 = flipped<0, 1, 0, 1>(t22);
        const Q t24 = t21 + t23;
        const Q t25 = shuffled<1, 0, 3, 2>(t24);
        const Q t26 = flipped<0, 1, 0, 1>(t25);
        // complex block of 2
        const Q t27 = t20 + t26;
        const Q t28 = t20 - t26;
        const Q t29 = shuffled<1, 0, 3, 2>(t5);
        const Q t30 = flipped<0, 1, 0, 1>(t29);
        // complex block of 2
        const Q t31 = t1 + t30;
        const Q t32 = t1 - t30;
        const Q x2_3 = io.pairs(2, 3);
        const Q x18_19 = io.pairs(18, 19);
        // complex block of 2
        const Q t33 = x2_3 + x18_19;
        const Q t34 = x2_3 - x18_19;
        const Q x6_7 = io.pairs(6, 7);
        const Q x22_23 = io.pairs(22, 23);
        // complex block of 2
        const Q t35 = x6_7 - x22_23;
        const Q t36 = x6_7 + x22_23;
        const Q x10_11 = io.pairs(10, 11);
        const Q x26_27 = io.pairs(26, 27);
        // complex block of 2
        const Q t37 = x10_11 + x26_27;
        const Q t38 = x10_11 - x26_27;
        const Q x14_15 = io.pairs(14, 15);
        const Q x30_31 = io.pairs(30, 31);
        // complex block of 2
        const Q t39 = x14_15 - x30_31;
        const Q t40 = x14_15 + x30_31;
        // complex block of 2
        const Q t41 = t33 + t37;
        // complex block of 2
        const Q t42 = t36 + t40;
        // complex block of 2
        const Q t43 = t41 - t42;
        // complex block of 2
        const Q t44 = t33 - t37;
        // complex block of 2
        const Q t45 = t36 - t40;
        const Q t46 = shuffled<1, 0, 3, 2>(t45);
        const Q t47 = flipped<0, 1, 0, 1>(t46);
        // complex block of 2
        const Q t48 = t44 + t47;
        const Q t49 = t44 - t47;
        // complex block of 8
        const Q t50 = c[0] * t35;
        const Q t51 = shuffled<1, 0, 3, 2>(t50);
        const Q t52 = flipped<0, 1, 0, 1>(t51);
        const Q t53 = t50 + t52;
        const Q t54 = c[0] * t39;
        const Q t55 = shuffled<1, 0, 3, 2>(t54);
        const Q t56 = flipped<0, 1, 0, 1>(t55);
        const Q t57 = t54 + t56;
        const Q t58 = shuffled<1, 0, 3, 2>(t57);
        const Q t59 = flipped<0, 1, 0, 1>(t58);
        // complex block of 2
        const Q t60 = t53 + t59;
        const Q t61 = t53 - t59;
        const Q t62 = shuffled<1, 0, 3, 2>(t38);
        const Q t63 = flipped<0, 1, 0, 1>(t62);
        // complex block of 2
        const Q t64 = t34 + t63;
        const Q t65 = t34 - t63;
        // complex block of 2
        const Q t66 = t8 + t9;
        // complex block of 2
        const Q t67 = t41 + t42;
        const Q t68 = shuffled<0, 1, 4, 5>(t66, t10);
        const Q t69 = shuffled<1, 0, 3, 2>(t43);
        const Q t70 = shuffled<0, 1, 4, 5>(t67, t69);
        const Q t71 = flipped<0, 0, 0, 1>(t70);
        // complex block of 2
        const Q t72 = t68 + t71;
        const Q t73 = t68 - t71;
        const Q t74 = shuffled<2, 3, 6, 7>(t43, t10);
        // complex block of 32
        const Q t75 = c[0] * t74;
        const Q t76 = shuffled<1, 0, 3, 2>(t75);
        const Q t77 = flipped<0, 1, 0, 1>(t76);
        const Q t78 = t75 + t77;
        const Q t79 = shuffled<2, 3, 6, 7>(t66, t78);
        const Q t80 = shuffled<1, 0, 3, 2>(t78);
        const Q t81 = shuffled<2, 3, 4, 5>(t67, t80);
        const Q t82 = flipped<0, 0, 0, 1>(t81);
        // complex block of 2
        const Q t83 = t79 + t82;
        // complex block of 2
        const Q t84 = t72 + t83;
        io.pairs(0, 4, t84);
        const Q t85 = t72 - t83;
        io.pairs(16, 20, t85);
        // complex block of 2
        const Q t86 = t79 - t82;
        const Q t87 = shuffled<1, 0, 3, 2>(t86);
        const Q t88 = flipped<0, 1, 0, 1>(t87);
        // complex block of 2
        const Q t89 = t73 + t88;
        io.pairs(8, 12, t89);
        const Q t90 = t73 - t88;
        io.pairs(24, 28, t90);
        // complex block of 2
        const Q t91 = t31 + t27;
        const Q t92 = shuffled<1, 0, 3, 2>(t28);
        const Q t93 = flipped<0, 1, 0, 1>(t92);
        // complex block of 2
        const Q t94 = t32 + t93;
        const Q t95 = shuffled<2, 3, 6, 7>(t91, t94);
        // complex block of 32
        const Q t96 = Q(c[3], c[3], c[4], c[4]) * t95;
        const Q t97 = shuffled<1, 0, 3, 2>(t95);
        const Q t98 = Q(c[5], -c[5], c[6], -c[6]) * t97;
        const Q t99 = t96 + t98;
        // complex block of 2
        const Q t100 = t64 + t60;
        const Q t101 = shuffled<1, 0, 3, 2>(t61);
        const Q t102 = flipped<0, 1, 0, 1>(t101);
        // complex block of 2
        const Q t103 = t65 + t102;
        const Q t104 = shuffled<0, 1, 4, 5>(t100, t103);
        // complex block of 32
        const Q t105 = Q(c[1], c[1], c[2], c[2]) * t104;
        const Q t106 = shuffled<1, 0, 3, 2>(t104);
        const Q t107 = Q(c[2], -c[2], c[1], -c[1]) * t106;
        const Q t108 = t105 + t107;
        const Q t109 = shuffled<1, 0, 3, 2>(t100);
        const Q t110 = shuffled<2, 3, 6, 7>(t109, t103);
        const Q t111 = Q(c[6], -c[6], -c[5], c[5]) * t110;
        const Q t112 = shuffled<1, 0, 3, 2>(t110);
        const Q t113 = Q(c[4], c[4], c[3], c[3]) * t112;
        const Q t114 = t111 + t113;
        const Q t115 = shuffled<0, 1, 4, 5>(t91, t94);
        // complex block of 2
        const Q t116 = t115 + t108;
        const Q t117 = flipped<0, 0, 0, 1>(t114);
        // complex block of 2
        const Q t118 = t99 + t117;
        // complex block of 2
        const Q t119 = t116 + t118;
        io.pairs(1, 3, t119);
        const Q t120 = t116 - t118;
        io.pairs(17, 19, t120);
        // complex block of 2
        const Q t121 = t115 - t108;
        // complex block of 2
        const Q t122 = t99 - t117;
        const Q t123 = shuffled<1, 0, 3, 2>(t122);
        const Q t124 = flipped<0, 1, 0, 1>(t123);
        // complex block of 2
        const Q t125 = t121 + t124;
        io.pairs(9, 11, t125);
        const Q t126 = t121 - t124;
        io.pairs(25, 27, t126);
        // complex block of 2
        const Q t127 = t31 - t27;
        // complex block of 2
        const Q t128 = t32 - t93;
        const Q t129 = shuffled<2, 3, 6, 7>(t127, t128);
        // complex block of 32
        const Q t130 = Q(c[6], c[6], c[5], c[5]) * t129;
        const Q t131 = shuffled<1, 0, 3, 2>(t129);
        const Q t132 = Q(c[4], -c[4], c[3], -c[3]) * t131;
        const Q t133 = t130 + t132;
        // complex block of 2
        const Q t134 = t64 - t60;
        // complex block of 2
        const Q t135 = t65 - t102;
        const Q t136 = shuffled<0, 1, 4, 5>(t134, t135);
        // complex block of 32
        const Q t137 = Q(-c[2], c[2], -c[1], c[1]) * t136;
        const Q t138 = shuffled<1, 0, 3, 2>(t136);
        const Q t139 = Q(c[1], c[1], c[2], c[2]) * t138;
        const Q t140 = t137 + t139;
        const Q t141 = shuffled<1, 0, 3, 2>(t135);
        const Q t142 = shuffled<2, 3, 6, 7>(t134, t141);
        const Q t143 = Q(-c[3], c[3], c[4], c[4]) * t142;
        const Q t144 = shuffled<1, 0, 3, 2>(t142);
        const Q t145 = Q(c[5], c[5], c[6], -c[6]) * t144;
        const Q t146 = t143 + t145;
        const Q t147 = shuffled<0, 1, 4, 5>(t127, t128);
        const Q t148 = flipped<0, 1, 0, 1>(t140);
        // complex block of 2
        const Q t149 = t147 + t148;
        const Q t150 = flipped<0, 1, 1, 0>(t146);
        // complex block of 2
        const Q t151 = t133 + t150;
        // complex block of 2
        const Q t152 = t149 + t151;
        io.pairs(5, 7, t152);
        const Q t153 = t149 - t151;
        io.pairs(21, 23, t153);
        // complex block of 2
        const Q t154 = t147 - t148;
        // complex block of 2
        const Q t155 = t133 - t150;
        const Q t156 = shuffled<1, 0, 3, 2>(t155);
        const Q t157 = flipped<0, 1, 0, 1>(t156);
        // complex block of 2
        const Q t158 = t154 + t157;
        io.pairs(13, 15, t158);
        const Q t159 = t154 - t157;
        io.pairs(29, 31, t159);
        const Q t160 = shuffled<2, 3, 6, 7>(t15, t16);
        // complex block of 32
        const Q t161 = Q(c[1], c[1], c[2], c[2]) * t160;
        const Q t162 = shuffled<1, 0, 3, 2>(t160);
        const Q t163 = Q(c[2], -c[2], c[1], -c[1]) * t162;
        const Q t164 = t161 + t163;
        const Q t165 = shuffled<0, 1, 4, 5>(t48, t49);
        const Q t166 = c[0] * t165;
        const Q t167 = shuffled<1, 0, 3, 2>(t166);
        const Q t168 = flipped<0, 1, 0, 1>(t167);
        const Q t169 = t166 + t168;
        const Q t170 = shuffled<2, 3, 6, 7>(t48, t49);
        const Q t171 = shuffled<1, 0, 3, 2>(t170);
        const Q t172 = Q(c[1], -c[1], c[2], c[2]) * t171;
        const Q t173 = Q(c[2], c[2], c[1], -c[1]) * t170;
        const Q t174 = t172 + t173;
        const Q t175 = shuffled<0, 1, 4, 5>(t15, t16);
        const Q t176 = shuffled<0, 5, 3, 6>(t169, t169);
        const Q t177 = flipped<0, 0, 0, 1>(t176);
        // complex block of 2
        const Q t178 = t175 + t177;
        const Q t179 = flipped<0, 0, 1, 0>(t174);
        // complex block of 2
        const Q t180 = t164 + t179;
        // complex block of 2
        const Q t181 = t178 + t180;
        io.pairs(2, 6, t181);
        const Q t182 = t178 - t180;
        io.pairs(18, 22, t182);
        // complex block of 2
        const Q t183 = t175 - t177;
        // complex block of 2
        const Q t184 = t164 - t179;
        const Q t185 = shuffled<1, 0, 3, 2>(t184);
        const Q t186 = flipped<0, 1, 0, 1>(t185);
        // complex block of 2
        const Q t187 = t183 + t186;
        io.pairs(10, 14, t187);
        const Q t188 = t183 - t186;
        io.pairs(26, 30, t188);
    }
};

}  // namespace zulg
