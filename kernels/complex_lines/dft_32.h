// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 32.
// Complex DFT of 32 points, twiddled, inner 8, outer 4; two lines of a stage to a register.
// 54 sums, 40 differences, 24 products of registers, which do the 528 steps of the graph, those with
// `scale` included; 59 shuffles, 25 changes of sign.
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
        0.19509032201612828,  // c[4]: sin 2 pi 1/32
        0.8314696123025452,  // c[5]: cos 2 pi 3/32
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
        const Q t67 = t31 + t27;
        // complex block of 2
        const Q t68 = t64 + t60;
        const Q t69 = t64 - t60;
        const Q t70 = shuffled<0, 1, 6, 7>(t68, t67);
        // complex block of 32
        const Q t71 = Q(c[1], c[1], c[3], c[3]) * t70;
        const Q t72 = shuffled<1, 0, 3, 2>(t70);
        const Q t73 = Q(c[2], -c[2], c[4], -c[4]) * t72;
        const Q t74 = t71 + t73;
        const Q t75 = shuffled<1, 0, 3, 2>(t69);
        const Q t76 = shuffled<0, 1, 6, 7>(t75, t68);
        const Q t77 = Q(c[1], c[1], c[5], c[5]) * t76;
        const Q t78 = shuffled<1, 0, 3, 2>(t76);
        const Q t79 = Q(-c[2], c[2], c[6], -c[6]) * t78;
        const Q t80 = t77 + t79;
        const Q t81 = shuffled<2, 3, 6, 7>(t43, t75);
        const Q t82 = Q(c[0], c[0], c[4], c[4]) * t81;
        const P t83 = part<0>(t82);
        const P t84 = part<1>(t69);
        const P t85 = P(-c[3], c[3]) * t84;
        const Q t86 = joined(t83, t85);
        const Q t87 = shuffled<1, 4, 2, 7>(t82, t82);
        const Q t88 = flipped<0, 1, 0, 0>(t87);
        const Q t89 = t86 + t88;
        // complex block of 2
        const Q t90 = t31 - t27;
        const Q t91 = shuffled<2, 3, 6, 7>(t10, t90);
        // complex block of 32
        const Q t92 = Q(c[0], c[0], c[6], c[6]) * t91;
        const P t93 = part<0>(t92);
        const P t94 = shuffled<1, 0>(t93);
        const P t95 = flipped<0, 1>(t94);
        const P t96 = part<1>(t91);
        const P t97 = shuffled<1, 0>(t96);
        const P t98 = P(c[5], -c[5]) * t97;
        const Q t99 = joined(t95, t98);
        const Q t100 = t92 + t99;
        // complex block of 2
        const Q t101 = t41 + t42;
        const Q t102 = shuffled<0, 1, 4, 5>(t66, t67);
        const Q t103 = shuffled<0, 1, 4, 5>(t101, t74);
        // complex block of 2
        const Q t104 = t102 + t103;
        const Q t105 = shuffled<2, 3, 6, 7>(t66, t74);
        const Q t106 = shuffled<2, 3, 6, 7>(t101, t80);
        // complex block of 2
        const Q t107 = t105 + t106;
        // complex block of 2
        const Q t108 = t104 + t107;
        io.pairs(0, 1, t108);
        const Q t109 = t104 - t107;
        io.pairs(16, 17, t109);
        // complex block of 2
        const Q t110 = t102 - t103;
        // complex block of 2
        const Q t111 = t105 - t106;
        const Q t112 = shuffled<1, 0, 3, 2>(t111);
        const Q t113 = flipped<0, 1, 0, 1>(t112);
        // complex block of 2
        const Q t114 = t110 + t113;
        io.pairs(8, 9, t114);
        const Q t115 = t110 - t113;
        io.pairs(24, 25, t115);
        const Q t116 = shuffled<0, 1, 4, 5>(t10, t90);
        const Q t117 = shuffled<1, 0, 3, 2>(t43);
        const Q t118 = shuffled<0, 1, 4, 5>(t117, t80);
        const Q t119 = flipped<0, 1, 0, 1>(t118);
        // complex block of 2
        const Q t120 = t116 + t119;
        const Q t121 = shuffled<1, 4, 2, 7>(t89, t89);
        const Q t122 = flipped<0, 1, 0, 1>(t121);
        // complex block of 2
        const Q t123 = t100 + t122;
        // complex block of 2
        const Q t124 = t120 + t123;
        io.pairs(4, 5, t124);
        const Q t125 = t120 - t123;
        io.pairs(20, 21, t125);
        // complex block of 2
        const Q t126 = t116 - t119;
        // complex block of 2
        const Q t127 = t100 - t122;
        const Q t128 = shuffled<1, 0, 3, 2>(t127);
        const Q t129 = flipped<0, 1, 0, 1>(t128);
        // complex block of 2
        const Q t130 = t126 + t129;
        io.pairs(12, 13, t130);
        const Q t131 = t126 - t129;
        io.pairs(28, 29, t131);
        const Q t132 = shuffled<1, 0, 3, 2>(t28);
        const Q t133 = flipped<0, 1, 0, 1>(t132);
        // complex block of 2
        const Q t134 = t32 + t133;
        const Q t135 = shuffled<2, 3, 6, 7>(t15, t134);
        // complex block of 32
        const Q t136 = Q(c[1], c[1], c[5], c[5]) * t135;
        const Q t137 = shuffled<1, 0, 3, 2>(t135);
        const Q t138 = Q(c[2], -c[2], c[6], -c[6]) * t137;
        const Q t139 = t136 + t138;
        const Q t140 = shuffled<1, 0, 3, 2>(t61);
        const Q t141 = flipped<0, 1, 0, 1>(t140);
        // complex block of 2
        const Q t142 = t65 + t141;
        const Q t143 = shuffled<0, 1, 4, 5>(t48, t142);
        // complex block of 32
        const Q t144 = Q(c[0], c[0], c[2], c[2]) * t143;
        const P t145 = part<0>(t144);
        const P t146 = shuffled<1, 0>(t145);
        const P t147 = flipped<0, 1>(t146);
        const P t148 = part<0>(t142);
        const P t149 = shuffled<1, 0>(t148);
        const P t150 = P(c[1], -c[1]) * t149;
        const Q t151 = joined(t147, t150);
        const Q t152 = t144 + t151;
        const Q t153 = shuffled<1, 0, 3, 2>(t48);
        const Q t154 = shuffled<2, 3, 6, 7>(t153, t142);
        const Q t155 = Q(c[1], -c[1], -c[4], c[4]) * t154;
        const Q t156 = shuffled<1, 0, 3, 2>(t154);
        const Q t157 = Q(c[2], c[2], c[3], c[3]) * t156;
        const Q t158 = t155 + t157;
        const Q t159 = shuffled<0, 1, 4, 5>(t15, t134);
        // complex block of 2
        const Q t160 = t159 + t152;
        const Q t161 = flipped<0, 0, 0, 1>(t158);
        // complex block of 2
        const Q t162 = t139 + t161;
        // complex block of 2
        const Q t163 = t160 + t162;
        io.pairs(2, 3, t163);
        const Q t164 = t160 - t162;
        io.pairs(18, 19, t164);
        // complex block of 2
        const Q t165 = t159 - t152;
        // complex block of 2
        const Q t166 = t139 - t161;
        const Q t167 = shuffled<1, 0, 3, 2>(t166);
        const Q t168 = flipped<0, 1, 0, 1>(t167);
        // complex block of 2
        const Q t169 = t165 + t168;
        io.pairs(10, 11, t169);
        const Q t170 = t165 - t168;
        io.pairs(26, 27, t170);
        // complex block of 2
        const Q t171 = t32 - t133;
        const Q t172 = shuffled<2, 3, 6, 7>(t16, t171);
        // complex block of 32
        const Q t173 = Q(c[2], c[2], c[4], c[4]) * t172;
        const Q t174 = shuffled<1, 0, 3, 2>(t172);
        const Q t175 = Q(c[1], -c[1], c[3], -c[3]) * t174;
        const Q t176 = t173 + t175;
        // complex block of 2
        const Q t177 = t65 - t141;
        const Q t178 = shuffled<1, 0, 3, 2>(t177);
        const Q t179 = shuffled<0, 1, 4, 5>(t49, t178);
        // complex block of 32
        const Q t180 = Q(c[0], c[0], c[2], c[2]) * t179;
        const P t181 = part<0>(t180);
        const P t182 = part<0>(t177);
        const P t183 = P(-c[1], c[1]) * t182;
        const Q t184 = joined(t181, t183);
        const Q t185 = shuffled<1, 4, 2, 7>(t180, t180);
        const Q t186 = flipped<0, 1, 0, 0>(t185);
        const Q t187 = t184 + t186;
        const Q t188 = shuffled<1, 0, 3, 2>(t49);
        const Q t189 = shuffled<2, 3, 6, 7>(t188, t178);
        const Q t190 = Q(c[2], c[2], c[5], c[5]) * t189;
        const Q t191 = shuffled<1, 0, 3, 2>(t189);
        const Q t192 = Q(c[1], -c[1], c[6], -c[6]) * t191;
        const Q t193 = t190 + t192;
        const Q t194 = shuffled<0, 1, 4, 5>(t16, t171);
        const Q t195 = shuffled<1, 4, 2, 7>(t187, t187);
        const Q t196 = flipped<0, 1, 0, 1>(t195);
        // complex block of 2
        const Q t197 = t194 + t196;
        const Q t198 = flipped<1, 0, 1, 0>(t193);
        // complex block of 2
        const Q t199 = t176 + t198;
        // complex block of 2
        const Q t200 = t197 + t199;
        io.pairs(6, 7, t200);
        const Q t201 = t197 - t199;
        io.pairs(22, 23, t201);
        // complex block of 2
        const Q t202 = t194 - t196;
        // complex block of 2
        const Q t203 = t176 - t198;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = flipped<0, 1, 0, 1>(t204);
        // complex block of 2
        const Q t206 = t202 + t205;
        io.pairs(14, 15, t206);
        const Q t207 = t202 - t205;
        io.pairs(30, 31, t207);
    }
};

}  // namespace zulg
