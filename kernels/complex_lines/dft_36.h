// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 36.
// Complex DFT of 36 points, prime-factor, order 9, 4; two lines of a stage to a register.
// 64 sums, 52 differences, 40 products of registers, which do the 696 steps of the graph, those with
// `scale` included; 43 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<36> {
    static constexpr int steps = 696;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.766044443118978,  // c[2]: cos 2 pi 8/9
        0.6427876096865394,  // c[3]: -sin 2 pi 8/9
        0.9396926207859084,  // c[4]: -cos 2 pi 4/9
        0.3420201433256687,  // c[5]: sin 2 pi 4/9
        0.17364817766693036,  // c[6]: cos 2 pi 7/9
        0.984807753012208,  // c[7]: -sin 2 pi 7/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x12_21 = io.pairs(12, 21);
        const Q x24_33 = io.pairs(24, 33);
        // complex block of 3
        const Q t0 = x12_21 + x24_33;
        const Q t1 = x12_21 - x24_33;
        const Q x0_9 = io.pairs(0, 9);
        const Q t2 = t0 + x0_9;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_9 - t3;
        const Q t5 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x16_25 = io.pairs(16, 25);
        const Q x28_1 = io.pairs(28, 1);
        // complex block of 3
        const Q t9 = x16_25 + x28_1;
        const Q t10 = x16_25 - x28_1;
        const Q x4_13 = io.pairs(4, 13);
        const Q t11 = t9 + x4_13;
        const Q t12 = c[0] * t9;
        const Q t13 = x4_13 - t12;
        const Q t14 = Q(-c[1], c[1], -c[1], c[1]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x20_29 = io.pairs(20, 29);
        const Q x32_5 = io.pairs(32, 5);
        // complex block of 3
        const Q t18 = x20_29 + x32_5;
        const Q t19 = x20_29 - x32_5;
        const Q x8_17 = io.pairs(8, 17);
        const Q t20 = t18 + x8_17;
        const Q t21 = c[0] * t18;
        const Q t22 = x8_17 - t21;
        const Q t23 = Q(-c[1], c[1], -c[1], c[1]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        // complex block of 3
        const Q t27 = t11 + t20;
        const Q t28 = t11 - t20;
        const Q t29 = t27 + t2;
        const Q t30 = c[0] * t27;
        const Q t31 = t2 - t30;
        const Q t32 = Q(-c[1], c[1], -c[1], c[1]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        // complex block of 9, multiplier 4
        const Q t36 = Q(-c[4], c[4], -c[4], c[4]) * t16;
        const Q t37 = shuffled<1, 0, 3, 2>(t16);
        const Q t38 = c[5] * t37;
        const Q t39 = t36 + t38;
        const Q t40 = c[2] * t25;
        const Q t41 = shuffled<1, 0, 3, 2>(t25);
        const Q t42 = Q(-c[3], c[3], -c[3], c[3]) * t41;
        const Q t43 = t40 + t42;
        const Q t44 = flipped<0, 1, 0, 1>(t39);
        // complex block of 3
        const Q t45 = t43 + t44;
        const Q t46 = flipped<1, 0, 1, 0>(t43);
        const Q t47 = t39 + t46;
        const Q t48 = t45 + t7;
        const Q t49 = c[0] * t45;
        const Q t50 = t7 - t49;
        const Q t51 = c[1] * t47;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = t50 - t52;
        const Q t54 = t50 + t52;
        // complex block of 9, multiplier 4
        const Q t55 = c[2] * t17;
        const Q t56 = shuffled<1, 0, 3, 2>(t17);
        const Q t57 = Q(-c[3], c[3], -c[3], c[3]) * t56;
        const Q t58 = t55 + t57;
        const Q t59 = c[6] * t26;
        const Q t60 = shuffled<1, 0, 3, 2>(t26);
        const Q t61 = Q(-c[7], c[7], -c[7], c[7]) * t60;
        const Q t62 = t59 + t61;
        // complex block of 3
        const Q t63 = t58 + t62;
        const Q t64 = t58 - t62;
        const Q t65 = t63 + t8;
        const Q t66 = c[0] * t63;
        const Q t67 = t8 - t66;
        const Q t68 = Q(-c[1], c[1], -c[1], c[1]) * t64;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        const Q t70 = t67 + t69;
        const Q t71 = t67 - t69;
        const Q x30_3 = io.pairs(30, 3);
        const Q x6_15 = io.pairs(6, 15);
        // complex block of 3
        const Q t72 = x30_3 + x6_15;
        const Q t73 = x30_3 - x6_15;
        const Q x18_27 = io.pairs(18, 27);
        const Q t74 = t72 + x18_27;
        const Q t75 = c[0] * t72;
        const Q t76 = x18_27 - t75;
        const Q t77 = Q(-c[1], c[1], -c[1], c[1]) * t73;
        const Q t78 = shuffled<1, 0, 3, 2>(t77);
        const Q t79 = t76 + t78;
        const Q t80 = t76 - t78;
        const Q x34_7 = io.pairs(34, 7);
        const Q x10_19 = io.pairs(10, 19);
        // complex block of 3
        const Q t81 = x34_7 + x10_19;
        const Q t82 = x34_7 - x10_19;
        const Q x22_31 = io.pairs(22, 31);
        const Q t83 = t81 + x22_31;
        const Q t84 = c[0] * t81;
        const Q t85 = x22_31 - t84;
        const Q t86 = Q(-c[1], c[1], -c[1], c[1]) * t82;
        const Q t87 = shuffled<1, 0, 3, 2>(t86);
        const Q t88 = t85 + t87;
        const Q t89 = t85 - t87;
        const Q x2_11 = io.pairs(2, 11);
        const Q x14_23 = io.pairs(14, 23);
        // complex block of 3
        const Q t90 = x2_11 + x14_23;
        const Q t91 = x2_11 - x14_23;
        const Q x26_35 = io.pairs(26, 35);
        const Q t92 = t90 + x26_35;
        const Q t93 = c[0] * t90;
        const Q t94 = x26_35 - t93;
        const Q t95 = Q(-c[1], c[1], -c[1], c[1]) * t91;
        const Q t96 = shuffled<1, 0, 3, 2>(t95);
        const Q t97 = t94 + t96;
        const Q t98 = t94 - t96;
        // complex block of 3
        const Q t99 = t83 + t92;
        const Q t100 = t83 - t92;
        const Q t101 = t99 + t74;
        const Q t102 = c[0] * t99;
        const Q t103 = t74 - t102;
        const Q t104 = Q(-c[1], c[1], -c[1], c[1]) * t100;
        const Q t105 = shuffled<1, 0, 3, 2>(t104);
        const Q t106 = t103 + t105;
        const Q t107 = t103 - t105;
        // complex block of 9, multiplier 4
        const Q t108 = Q(-c[4], c[4], -c[4], c[4]) * t88;
        const Q t109 = shuffled<1, 0, 3, 2>(t88);
        const Q t110 = c[5] * t109;
        const Q t111 = t108 + t110;
        const Q t112 = c[2] * t97;
        const Q t113 = shuffled<1, 0, 3, 2>(t97);
        const Q t114 = Q(-c[3], c[3], -c[3], c[3]) * t113;
        const Q t115 = t112 + t114;
        const Q t116 = flipped<0, 1, 0, 1>(t111);
        // complex block of 3
        const Q t117 = t115 + t116;
        const Q t118 = flipped<1, 0, 1, 0>(t115);
        const Q t119 = t111 + t118;
        const Q t120 = t117 + t79;
        const Q t121 = c[0] * t117;
        const Q t122 = t79 - t121;
        const Q t123 = c[1] * t119;
        const Q t124 = shuffled<1, 0, 3, 2>(t123);
        const Q t125 = t122 - t124;
        const Q t126 = t122 + t124;
        // complex block of 9, multiplier 4
        const Q t127 = c[2] * t89;
        const Q t128 = shuffled<1, 0, 3, 2>(t89);
        const Q t129 = Q(-c[3], c[3], -c[3], c[3]) * t128;
        const Q t130 = t127 + t129;
        const Q t131 = c[6] * t98;
        const Q t132 = shuffled<1, 0, 3, 2>(t98);
        const Q t133 = Q(-c[7], c[7], -c[7], c[7]) * t132;
        const Q t134 = t131 + t133;
        // complex block of 3
        const Q t135 = t130 + t134;
        const Q t136 = t130 - t134;
        const Q t137 = t135 + t80;
        const Q t138 = c[0] * t135;
        const Q t139 = t80 - t138;
        const Q t140 = Q(-c[1], c[1], -c[1], c[1]) * t136;
        const Q t141 = shuffled<1, 0, 3, 2>(t140);
        const Q t142 = t139 + t141;
        const Q t143 = t139 - t141;
        const Q t144 = shuffled<0, 1, 4, 5>(t29, t48);
        const Q t145 = shuffled<0, 1, 4, 5>(t101, t120);
        // complex block of 2
        const Q t146 = t144 + t145;
        const Q t147 = t144 - t145;
        const Q t148 = shuffled<2, 3, 6, 7>(t29, t48);
        const Q t149 = shuffled<2, 3, 6, 7>(t101, t120);
        // complex block of 2
        const Q t150 = t148 + t149;
        const Q t151 = t148 - t149;
        // complex block of 2
        const Q t152 = t146 + t150;
        io.pairs(0, 4, t152);
        const Q t153 = t146 - t150;
        io.pairs(18, 22, t153);
        const Q t154 = shuffled<1, 0, 3, 2>(t151);
        const Q t155 = flipped<0, 1, 0, 1>(t154);
        // complex block of 2
        const Q t156 = t147 + t155;
        io.pairs(9, 13, t156);
        const Q t157 = t147 - t155;
        io.pairs(27, 31, t157);
        const Q t158 = shuffled<0, 1, 4, 5>(t65, t34);
        const Q t159 = shuffled<0, 1, 4, 5>(t137, t106);
        // complex block of 2
        const Q t160 = t158 + t159;
        const Q t161 = t158 - t159;
        const Q t162 = shuffled<2, 3, 6, 7>(t65, t34);
        const Q t163 = shuffled<2, 3, 6, 7>(t137, t106);
        // complex block of 2
        const Q t164 = t162 + t163;
        const Q t165 = t162 - t163;
        // complex block of 2
        const Q t166 = t160 + t164;
        io.pairs(8, 12, t166);
        const Q t167 = t160 - t164;
        io.pairs(26, 30, t167);
        const Q t168 = shuffled<1, 0, 3, 2>(t165);
        const Q t169 = flipped<0, 1, 0, 1>(t168);
        // complex block of 2
        const Q t170 = t161 + t169;
        io.pairs(17, 21, t170);
        const Q t171 = t161 - t169;
        io.pairs(35, 3, t171);
        const Q t172 = shuffled<0, 1, 4, 5>(t53, t70);
        const Q t173 = shuffled<0, 1, 4, 5>(t125, t142);
        // complex block of 2
        const Q t174 = t172 + t173;
        const Q t175 = t172 - t173;
        const Q t176 = shuffled<2, 3, 6, 7>(t53, t70);
        const Q t177 = shuffled<2, 3, 6, 7>(t125, t142);
        // complex block of 2
        const Q t178 = t176 + t177;
        const Q t179 = t176 - t177;
        // complex block of 2
        const Q t180 = t174 + t178;
        io.pairs(16, 20, t180);
        const Q t181 = t174 - t178;
        io.pairs(34, 2, t181);
        const Q t182 = shuffled<1, 0, 3, 2>(t179);
        const Q t183 = flipped<0, 1, 0, 1>(t182);
        // complex block of 2
        const Q t184 = t175 + t183;
        io.pairs(25, 29, t184);
        const Q t185 = t175 - t183;
        io.pairs(7, 11, t185);
        const Q t186 = shuffled<0, 1, 4, 5>(t35, t54);
        const Q t187 = shuffled<0, 1, 4, 5>(t107, t126);
        // complex block of 2
        const Q t188 = t186 + t187;
        const Q t189 = t186 - t187;
        const Q t190 = shuffled<2, 3, 6, 7>(t35, t54);
        const Q t191 = shuffled<2, 3, 6, 7>(t107, t126);
        // complex block of 2
        const Q t192 = t190 + t191;
        const Q t193 = t190 - t191;
        // complex block of 2
        const Q t194 = t188 + t192;
        io.pairs(24, 28, t194);
        const Q t195 = t188 - t192;
        io.pairs(6, 10, t195);
        const Q t196 = shuffled<1, 0, 3, 2>(t193);
        const Q t197 = flipped<0, 1, 0, 1>(t196);
        // complex block of 2
        const Q t198 = t189 + t197;
        io.pairs(33, 1, t198);
        const Q t199 = t189 - t197;
        io.pairs(15, 19, t199);
        // complex block of 2
        const Q t200 = t71 + t143;
        const Q t201 = t71 - t143;
        const Q t202 = shuffled<0, 1, 4, 5>(t200, t201);
        const Q t203 = shuffled<2, 3, 6, 7>(t200, t201);
        const Q t204 = shuffled<0, 1, 3, 2>(t203);
        const Q t205 = flipped<0, 0, 0, 1>(t204);
        // complex block of 2
        const Q t206 = t202 + t205;
        io.pairs(32, 5, t206);
        const Q t207 = t202 - t205;
        io.pairs(14, 23, t207);
    }
};

}  // namespace zulg
