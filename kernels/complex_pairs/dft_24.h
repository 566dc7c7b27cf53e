// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 24.
// Complex DFT of 24 points, prime-factor, order 8, 3; one complex number to a register.
// 69 sums, 57 differences, 22 products of registers, which do the 344 steps of the graph, those with
// `scale` included; 26 shuffles, 18 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<24> {
    static constexpr int steps = 344;  // with `scale`
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x12 = io.pair(12);
        // complex block of 2
        const P t0 = x0 + x12;
        const P t1 = x0 - x12;
        const P x3 = io.pair(3);
        const P x15 = io.pair(15);
        // complex block of 2
        const P t2 = x3 + x15;
        const P t3 = x3 - x15;
        const P x6 = io.pair(6);
        const P x18 = io.pair(18);
        // complex block of 2
        const P t4 = x6 + x18;
        const P t5 = x6 - x18;
        const P x9 = io.pair(9);
        const P x21 = io.pair(21);
        // complex block of 2
        const P t6 = x9 + x21;
        const P t7 = x9 - x21;
        // complex block of 2
        const P t8 = t0 + t4;
        const P t9 = t0 - t4;
        // complex block of 2
        const P t10 = t2 + t6;
        const P t11 = t2 - t6;
        // complex block of 2
        const P t12 = t8 + t10;
        const P t13 = t8 - t10;
        const P t14 = shuffled<1, 0>(t11);
        const P t15 = flipped<1, 0>(t14);
        // complex block of 2
        const P t16 = t9 + t15;
        const P t17 = t9 - t15;
        // complex block of 8, multiplier 3
        const P t18 = c[2] * t3;
        const P t19 = shuffled<1, 0>(t18);
        const P t20 = flipped<0, 1>(t19);
        const P t21 = t18 + t20;
        const P t22 = c[2] * t7;
        const P t23 = shuffled<1, 0>(t22);
        const P t24 = flipped<0, 1>(t23);
        const P t25 = t22 + t24;
        const P t26 = shuffled<1, 0>(t5);
        const P t27 = flipped<1, 0>(t26);
        // complex block of 2
        const P t28 = t1 + t27;
        const P t29 = t1 - t27;
        const P t30 = shuffled<1, 0>(t21);
        const P t31 = flipped<0, 1>(t30);
        // complex block of 2
        const P t32 = t25 + t31;
        const P t33 = flipped<1, 0>(t25);
        const P t34 = t30 + t33;
        // complex block of 2
        const P t35 = t28 + t32;
        const P t36 = t28 - t32;
        const P t37 = shuffled<1, 0>(t34);
        // complex block of 2
        const P t38 = t29 + t37;
        const P t39 = t29 - t37;
        const P x8 = io.pair(8);
        const P x20 = io.pair(20);
        // complex block of 2
        const P t40 = x8 + x20;
        const P t41 = x8 - x20;
        const P x11 = io.pair(11);
        const P x23 = io.pair(23);
        // complex block of 2
        const P t42 = x11 + x23;
        const P t43 = x11 - x23;
        const P x14 = io.pair(14);
        const P x2 = io.pair(2);
        // complex block of 2
        const P t44 = x14 + x2;
        const P t45 = x14 - x2;
        const P x17 = io.pair(17);
        const P x5 = io.pair(5);
        // complex block of 2
        const P t46 = x17 + x5;
        const P t47 = x17 - x5;
        // complex block of 2
        const P t48 = t40 + t44;
        const P t49 = t40 - t44;
        // complex block of 2
        const P t50 = t42 + t46;
        const P t51 = t42 - t46;
        // complex block of 2
        const P t52 = t48 + t50;
        const P t53 = t48 - t50;
        const P t54 = shuffled<1, 0>(t51);
        const P t55 = flipped<1, 0>(t54);
        // complex block of 2
        const P t56 = t49 + t55;
        const P t57 = t49 - t55;
        // complex block of 8, multiplier 3
        const P t58 = c[2] * t43;
        const P t59 = shuffled<1, 0>(t58);
        const P t60 = flipped<0, 1>(t59);
        const P t61 = t58 + t60;
        const P t62 = c[2] * t47;
        const P t63 = shuffled<1, 0>(t62);
        const P t64 = flipped<0, 1>(t63);
        const P t65 = t62 + t64;
        const P t66 = shuffled<1, 0>(t45);
        const P t67 = flipped<1, 0>(t66);
        // complex block of 2
        const P t68 = t41 + t67;
        const P t69 = t41 - t67;
        const P t70 = shuffled<1, 0>(t61);
        const P t71 = flipped<0, 1>(t70);
        // complex block of 2
        const P t72 = t65 + t71;
        const P t73 = flipped<1, 0>(t65);
        const P t74 = t70 + t73;
        // complex block of 2
        const P t75 = t68 + t72;
        const P t76 = t68 - t72;
        const P t77 = shuffled<1, 0>(t74);
        // complex block of 2
        const P t78 = t69 + t77;
        const P t79 = t69 - t77;
        const P x16 = io.pair(16);
        const P x4 = io.pair(4);
        // complex block of 2
        const P t80 = x16 + x4;
        const P t81 = x16 - x4;
        const P x19 = io.pair(19);
        const P x7 = io.pair(7);
        // complex block of 2
        const P t82 = x19 + x7;
        const P t83 = x19 - x7;
        const P x22 = io.pair(22);
        const P x10 = io.pair(10);
        // complex block of 2
        const P t84 = x22 + x10;
        const P t85 = x22 - x10;
        const P x1 = io.pair(1);
        const P x13 = io.pair(13);
        // complex block of 2
        const P t86 = x1 + x13;
        const P t87 = x1 - x13;
        // complex block of 2
        const P t88 = t80 + t84;
        const P t89 = t80 - t84;
        // complex block of 2
        const P t90 = t82 + t86;
        const P t91 = t82 - t86;
        // complex block of 2
        const P t92 = t88 + t90;
        const P t93 = t88 - t90;
        const P t94 = shuffled<1, 0>(t91);
        const P t95 = flipped<1, 0>(t94);
        // complex block of 2
        const P t96 = t89 + t95;
        const P t97 = t89 - t95;
        // complex block of 8, multiplier 3
        const P t98 = c[2] * t83;
        const P t99 = shuffled<1, 0>(t98);
        const P t100 = flipped<0, 1>(t99);
        const P t101 = t98 + t100;
        const P t102 = c[2] * t87;
        const P t103 = shuffled<1, 0>(t102);
        const P t104 = flipped<0, 1>(t103);
        const P t105 = t102 + t104;
        const P t106 = shuffled<1, 0>(t85);
        const P t107 = flipped<1, 0>(t106);
        // complex block of 2
        const P t108 = t81 + t107;
        const P t109 = t81 - t107;
        const P t110 = shuffled<1, 0>(t101);
        const P t111 = flipped<0, 1>(t110);
        // complex block of 2
        const P t112 = t105 + t111;
        const P t113 = flipped<1, 0>(t105);
        const P t114 = t110 + t113;
        // complex block of 2
        const P t115 = t108 + t112;
        const P t116 = t108 - t112;
        const P t117 = shuffled<1, 0>(t114);
        // complex block of 2
        const P t118 = t109 + t117;
        const P t119 = t109 - t117;
        // complex block of 3, multiplier 2
        const P t120 = t52 + t92;
        const P t121 = t52 - t92;
        const P t122 = t120 + t12;
        io.pair(0, t122);
        const P t123 = c[0] * t120;
        const P t124 = t12 - t123;
        const P t125 = P(-c[1], c[1]) * t121;
        const P t126 = shuffled<1, 0>(t125);
        const P t127 = t124 + t126;
        io.pair(16, t127);
        const P t128 = t124 - t126;
        io.pair(8, t128);
        // complex block of 3, multiplier 2
        const P t129 = t75 + t115;
        const P t130 = t75 - t115;
        const P t131 = t129 + t35;
        io.pair(3, t131);
        const P t132 = c[0] * t129;
        const P t133 = t35 - t132;
        const P t134 = P(-c[1], c[1]) * t130;
        const P t135 = shuffled<1, 0>(t134);
        const P t136 = t133 + t135;
        io.pair(19, t136);
        const P t137 = t133 - t135;
        io.pair(11, t137);
        // complex block of 3, multiplier 2
        const P t138 = t56 + t96;
        const P t139 = t56 - t96;
        const P t140 = t138 + t16;
        io.pair(6, t140);
        const P t141 = c[0] * t138;
        const P t142 = t16 - t141;
        const P t143 = P(-c[1], c[1]) * t139;
        const P t144 = shuffled<1, 0>(t143);
        const P t145 = t142 + t144;
        io.pair(22, t145);
        const P t146 = t142 - t144;
        io.pair(14, t146);
        // complex block of 3, multiplier 2
        const P t147 = t78 + t118;
        const P t148 = t78 - t118;
        const P t149 = t147 + t38;
        io.pair(9, t149);
        const P t150 = c[0] * t147;
        const P t151 = t38 - t150;
        const P t152 = P(-c[1], c[1]) * t148;
        const P t153 = shuffled<1, 0>(t152);
        const P t154 = t151 + t153;
        io.pair(1, t154);
        const P t155 = t151 - t153;
        io.pair(17, t155);
        // complex block of 3, multiplier 2
        const P t156 = t53 + t93;
        const P t157 = t53 - t93;
        const P t158 = t156 + t13;
        io.pair(12, t158);
        const P t159 = c[0] * t156;
        const P t160 = t13 - t159;
        const P t161 = P(-c[1], c[1]) * t157;
        const P t162 = shuffled<1, 0>(t161);
        const P t163 = t160 + t162;
        io.pair(4, t163);
        const P t164 = t160 - t162;
        io.pair(20, t164);
        // complex block of 3, multiplier 2
        const P t165 = t76 + t116;
        const P t166 = t76 - t116;
        const P t167 = t165 + t36;
        io.pair(15, t167);
        const P t168 = c[0] * t165;
        const P t169 = t36 - t168;
        const P t170 = P(-c[1], c[1]) * t166;
        const P t171 = shuffled<1, 0>(t170);
        const P t172 = t169 + t171;
        io.pair(7, t172);
        const P t173 = t169 - t171;
        io.pair(23, t173);
        // complex block of 3, multiplier 2
        const P t174 = t57 + t97;
        const P t175 = t57 - t97;
        const P t176 = t174 + t17;
        io.pair(18, t176);
        const P t177 = c[0] * t174;
        const P t178 = t17 - t177;
        const P t179 = P(-c[1], c[1]) * t175;
        const P t180 = shuffled<1, 0>(t179);
        const P t181 = t178 + t180;
        io.pair(10, t181);
        const P t182 = t178 - t180;
        io.pair(2, t182);
        // complex block of 3, multiplier 2
        const P t183 = t79 + t119;
        const P t184 = t79 - t119;
        const P t185 = t183 + t39;
        io.pair(21, t185);
        const P t186 = c[0] * t183;
        const P t187 = t39 - t186;
        const P t188 = P(-c[1], c[1]) * t184;
        const P t189 = shuffled<1, 0>(t188);
        const P t190 = t187 + t189;
        io.pair(13, t190);
        const P t191 = t187 - t189;
        io.pair(5, t191);
    }
};

}  // namespace zulg
