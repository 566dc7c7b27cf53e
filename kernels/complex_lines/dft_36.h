// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 36.
// Complex DFT of 36 points, prime-factor, order 9, 4; two lines of a stage to a register.
// 64 sums, 52 differences, 40 products of registers, which do the 696 steps of the graph, those with
// `scale` included; 59 shuffles, 9 changes of sign.
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
        const Q x20_29 = io.pairs(20, 29);
        const Q x32_5 = io.pairs(32, 5);
        // complex block of 3
        const Q t14 = x20_29 + x32_5;
        const Q t15 = x20_29 - x32_5;
        const Q x8_17 = io.pairs(8, 17);
        const Q t16 = t14 + x8_17;
        const Q t17 = c[0] * t14;
        const Q t18 = x8_17 - t17;
        // complex block of 3
        const Q t19 = Q(-c[1], c[1], -c[1], c[1]) * t10;
        const Q t20 = shuffled<1, 0, 3, 2>(t19);
        const Q t21 = t13 + t20;
        // complex block of 9, multiplier 4
        const Q t22 = Q(-c[4], c[4], -c[4], c[4]) * t21;
        const Q t23 = shuffled<1, 0, 3, 2>(t21);
        const Q t24 = c[5] * t23;
        const Q t25 = t22 + t24;
        // complex block of 3
        const Q t26 = t13 - t20;
        // complex block of 9, multiplier 4
        const Q t27 = c[2] * t26;
        const Q t28 = shuffled<1, 0, 3, 2>(t26);
        const Q t29 = Q(-c[3], c[3], -c[3], c[3]) * t28;
        const Q t30 = t27 + t29;
        // complex block of 3
        const Q t31 = Q(-c[1], c[1], -c[1], c[1]) * t15;
        const Q t32 = shuffled<1, 0, 3, 2>(t31);
        const Q t33 = t18 + t32;
        // complex block of 9, multiplier 4
        const Q t34 = c[2] * t33;
        const Q t35 = shuffled<1, 0, 3, 2>(t33);
        const Q t36 = Q(-c[3], c[3], -c[3], c[3]) * t35;
        const Q t37 = t34 + t36;
        // complex block of 3
        const Q t38 = t18 - t32;
        // complex block of 9, multiplier 4
        const Q t39 = c[6] * t38;
        const Q t40 = shuffled<1, 0, 3, 2>(t38);
        const Q t41 = Q(-c[7], c[7], -c[7], c[7]) * t40;
        const Q t42 = t39 + t41;
        // complex block of 3
        const Q t43 = t11 + t16;
        const Q t44 = t11 - t16;
        const Q x2_11 = io.pairs(2, 11);
        const Q x14_23 = io.pairs(14, 23);
        // complex block of 3
        const Q t45 = x2_11 + x14_23;
        const Q t46 = x2_11 - x14_23;
        const Q x26_35 = io.pairs(26, 35);
        const Q t47 = t45 + x26_35;
        const Q t48 = c[0] * t45;
        const Q t49 = x26_35 - t48;
        const Q x34_7 = io.pairs(34, 7);
        const Q x10_19 = io.pairs(10, 19);
        // complex block of 3
        const Q t50 = x34_7 + x10_19;
        const Q t51 = x34_7 - x10_19;
        const Q x22_31 = io.pairs(22, 31);
        const Q t52 = t50 + x22_31;
        const Q t53 = c[0] * t50;
        const Q t54 = x22_31 - t53;
        const Q t55 = Q(-c[1], c[1], -c[1], c[1]) * t51;
        const Q t56 = shuffled<1, 0, 3, 2>(t55);
        const Q t57 = t54 + t56;
        // complex block of 9, multiplier 4
        const Q t58 = Q(-c[4], c[4], -c[4], c[4]) * t57;
        const Q t59 = shuffled<1, 0, 3, 2>(t57);
        const Q t60 = c[5] * t59;
        const Q t61 = t58 + t60;
        // complex block of 3
        const Q t62 = t54 - t56;
        // complex block of 9, multiplier 4
        const Q t63 = c[2] * t62;
        const Q t64 = shuffled<1, 0, 3, 2>(t62);
        const Q t65 = Q(-c[3], c[3], -c[3], c[3]) * t64;
        const Q t66 = t63 + t65;
        // complex block of 3
        const Q t67 = Q(-c[1], c[1], -c[1], c[1]) * t46;
        const Q t68 = shuffled<1, 0, 3, 2>(t67);
        const Q t69 = t49 + t68;
        // complex block of 9, multiplier 4
        const Q t70 = c[2] * t69;
        const Q t71 = shuffled<1, 0, 3, 2>(t69);
        const Q t72 = Q(-c[3], c[3], -c[3], c[3]) * t71;
        const Q t73 = t70 + t72;
        // complex block of 3
        const Q t74 = t49 - t68;
        // complex block of 9, multiplier 4
        const Q t75 = c[6] * t74;
        const Q t76 = shuffled<1, 0, 3, 2>(t74);
        const Q t77 = Q(-c[7], c[7], -c[7], c[7]) * t76;
        const Q t78 = t75 + t77;
        // complex block of 3
        const Q t79 = t52 + t47;
        const Q t80 = t52 - t47;
        const Q x30_3 = io.pairs(30, 3);
        const Q x6_15 = io.pairs(6, 15);
        // complex block of 3
        const Q t81 = x30_3 + x6_15;
        const Q t82 = x30_3 - x6_15;
        const Q x18_27 = io.pairs(18, 27);
        const Q t83 = t81 + x18_27;
        const Q t84 = c[0] * t81;
        const Q t85 = x18_27 - t84;
        const Q t86 = Q(-c[1], c[1], -c[1], c[1]) * t82;
        const Q t87 = shuffled<1, 0, 3, 2>(t86);
        const Q t88 = t85 + t87;
        const Q t89 = t85 - t87;
        // complex block of 3
        const Q t90 = t43 + t2;
        const Q t91 = c[0] * t43;
        const Q t92 = t2 - t91;
        const Q t93 = Q(-c[1], c[1], -c[1], c[1]) * t44;
        const Q t94 = shuffled<1, 0, 3, 2>(t93);
        const Q t95 = t92 + t94;
        const Q t96 = t92 - t94;
        const Q t97 = flipped<0, 1, 0, 1>(t25);
        // complex block of 3
        const Q t98 = t37 + t97;
        const Q t99 = t98 + t7;
        const Q t100 = c[0] * t98;
        const Q t101 = t7 - t100;
        const Q t102 = flipped<1, 0, 1, 0>(t37);
        const Q t103 = t25 + t102;
        // complex block of 3
        const Q t104 = t30 + t42;
        const Q t105 = t104 + t8;
        const Q t106 = c[0] * t104;
        const Q t107 = t8 - t106;
        const Q t108 = t30 - t42;
        // complex block of 3
        const Q t109 = t79 + t83;
        const Q t110 = c[0] * t79;
        const Q t111 = t83 - t110;
        const Q t112 = Q(-c[1], c[1], -c[1], c[1]) * t80;
        const Q t113 = shuffled<1, 0, 3, 2>(t112);
        const Q t114 = t111 + t113;
        const Q t115 = t111 - t113;
        const Q t116 = flipped<0, 1, 0, 1>(t61);
        // complex block of 3
        const Q t117 = t73 + t116;
        const Q t118 = t117 + t88;
        const Q t119 = c[0] * t117;
        const Q t120 = t88 - t119;
        const Q t121 = flipped<1, 0, 1, 0>(t73);
        const Q t122 = t61 + t121;
        // complex block of 3
        const Q t123 = t66 + t78;
        const Q t124 = t123 + t89;
        const Q t125 = c[0] * t123;
        const Q t126 = t89 - t125;
        const Q t127 = t66 - t78;
        // complex block of 3
        const Q t128 = c[1] * t103;
        const Q t129 = shuffled<1, 0, 3, 2>(t128);
        const Q t130 = t101 - t129;
        // complex block of 3
        const Q t131 = c[1] * t122;
        const Q t132 = shuffled<1, 0, 3, 2>(t131);
        const Q t133 = t120 - t132;
        const Q t134 = shuffled<0, 1, 4, 5>(t130, t105);
        const Q t135 = shuffled<0, 1, 4, 5>(t133, t124);
        // complex block of 2
        const Q t136 = t134 + t135;
        const Q t137 = t134 - t135;
        const Q t138 = shuffled<2, 3, 6, 7>(t130, t105);
        const Q t139 = shuffled<2, 3, 6, 7>(t133, t124);
        // complex block of 2
        const Q t140 = t138 + t139;
        const Q t141 = t138 - t139;
        // complex block of 2
        const Q t142 = t136 + t140;
        const Q t143 = t136 - t140;
        const Q t144 = shuffled<1, 0, 3, 2>(t141);
        const Q t145 = flipped<0, 1, 0, 1>(t144);
        // complex block of 2
        const Q t146 = t137 + t145;
        const Q t147 = shuffled<0, 1, 6, 7>(t142, t146);
        io.pairs(16, 17, t147);
        const Q t148 = shuffled<0, 1, 6, 7>(t146, t143);
        io.pairs(25, 26, t148);
        const Q t149 = t137 - t145;
        const Q t150 = shuffled<0, 1, 6, 7>(t149, t142);
        io.pairs(7, 8, t150);
        const Q t151 = shuffled<0, 1, 6, 7>(t143, t149);
        io.pairs(34, 35, t151);
        // complex block of 3
        const Q t152 = t101 + t129;
        // complex block of 3
        const Q t153 = t120 + t132;
        const Q t154 = shuffled<0, 1, 4, 5>(t90, t152);
        const Q t155 = shuffled<0, 1, 4, 5>(t109, t153);
        // complex block of 2
        const Q t156 = t154 + t155;
        const Q t157 = t154 - t155;
        const Q t158 = shuffled<2, 3, 6, 7>(t90, t152);
        const Q t159 = shuffled<2, 3, 6, 7>(t109, t153);
        // complex block of 2
        const Q t160 = t158 + t159;
        const Q t161 = t158 - t159;
        // complex block of 2
        const Q t162 = t156 + t160;
        const Q t163 = t156 - t160;
        const Q t164 = shuffled<1, 0, 3, 2>(t161);
        const Q t165 = flipped<0, 1, 0, 1>(t164);
        // complex block of 2
        const Q t166 = t157 + t165;
        const Q t167 = shuffled<0, 1, 6, 7>(t162, t166);
        io.pairs(0, 1, t167);
        const Q t168 = shuffled<0, 1, 6, 7>(t166, t163);
        io.pairs(9, 10, t168);
        const Q t169 = t157 - t165;
        const Q t170 = shuffled<0, 1, 6, 7>(t163, t169);
        io.pairs(18, 19, t170);
        const Q t171 = shuffled<0, 1, 6, 7>(t169, t162);
        io.pairs(27, 28, t171);
        // complex block of 3
        const Q t172 = Q(-c[1], c[1], -c[1], c[1]) * t108;
        const Q t173 = shuffled<1, 0, 3, 2>(t172);
        const Q t174 = t107 + t173;
        // complex block of 3
        const Q t175 = Q(-c[1], c[1], -c[1], c[1]) * t127;
        const Q t176 = shuffled<1, 0, 3, 2>(t175);
        const Q t177 = t126 + t176;
        const Q t178 = shuffled<0, 1, 4, 5>(t174, t95);
        const Q t179 = shuffled<0, 1, 4, 5>(t177, t114);
        // complex block of 2
        const Q t180 = t178 + t179;
        const Q t181 = t178 - t179;
        const Q t182 = shuffled<2, 3, 6, 7>(t174, t95);
        const Q t183 = shuffled<2, 3, 6, 7>(t177, t114);
        // complex block of 2
        const Q t184 = t182 + t183;
        const Q t185 = t182 - t183;
        // complex block of 2
        const Q t186 = t180 + t184;
        const Q t187 = t180 - t184;
        const Q t188 = shuffled<1, 0, 3, 2>(t185);
        const Q t189 = flipped<0, 1, 0, 1>(t188);
        // complex block of 2
        const Q t190 = t181 + t189;
        const Q t191 = shuffled<0, 1, 6, 7>(t186, t190);
        io.pairs(20, 21, t191);
        const Q t192 = shuffled<0, 1, 6, 7>(t190, t187);
        io.pairs(29, 30, t192);
        const Q t193 = t181 - t189;
        const Q t194 = shuffled<0, 1, 6, 7>(t187, t193);
        io.pairs(2, 3, t194);
        const Q t195 = shuffled<0, 1, 6, 7>(t193, t186);
        io.pairs(11, 12, t195);
        // complex block of 3
        const Q t196 = t107 - t173;
        // complex block of 3
        const Q t197 = t126 - t176;
        const Q t198 = shuffled<0, 1, 4, 5>(t99, t196);
        const Q t199 = shuffled<0, 1, 4, 5>(t118, t197);
        // complex block of 2
        const Q t200 = t198 + t199;
        const Q t201 = t198 - t199;
        const Q t202 = shuffled<2, 3, 6, 7>(t99, t196);
        const Q t203 = shuffled<2, 3, 6, 7>(t118, t197);
        // complex block of 2
        const Q t204 = t202 + t203;
        const Q t205 = t202 - t203;
        // complex block of 2
        const Q t206 = t200 + t204;
        const Q t207 = t200 - t204;
        const Q t208 = shuffled<1, 0, 3, 2>(t205);
        const Q t209 = flipped<0, 1, 0, 1>(t208);
        // complex block of 2
        const Q t210 = t201 + t209;
        const Q t211 = shuffled<0, 1, 6, 7>(t206, t210);
        io.pairs(4, 5, t211);
        const Q t212 = shuffled<0, 1, 6, 7>(t210, t207);
        io.pairs(13, 14, t212);
        const Q t213 = t201 - t209;
        const Q t214 = shuffled<0, 1, 6, 7>(t207, t213);
        io.pairs(22, 23, t214);
        const Q t215 = shuffled<0, 1, 6, 7>(t213, t206);
        io.pairs(31, 32, t215);
        // complex block of 2
        const Q t216 = t96 + t115;
        const Q t217 = t96 - t115;
        const Q t218 = shuffled<0, 1, 4, 5>(t216, t217);
        const Q t219 = shuffled<1, 0, 3, 2>(t217);
        const Q t220 = shuffled<2, 3, 6, 7>(t216, t219);
        const Q t221 = flipped<0, 0, 0, 1>(t220);
        // complex block of 2
        const Q t222 = t218 + t221;
        io.pairs(24, 33, t222);
        const Q t223 = t218 - t221;
        io.pairs(6, 15, t223);
    }
};

}  // namespace zulg
