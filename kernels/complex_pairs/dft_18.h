// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 18.
// Complex DFT of 18 points, prime-factor, order 2, 9; one complex number to a register.
// 55 sums, 43 differences, 40 products of registers, which do the 312 steps of the graph, those with
// `scale` included; 20 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<18> {
    static constexpr int steps = 312;  // with `scale`
    static constexpr double inverseRoot = 0.23570226039551587;  // 1/sqrt(18), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 4/9
        0.3420201433256687,  // c[3]: sin 2 pi 4/9
        0.17364817766693036,  // c[4]: cos 2 pi 2/9
        0.984807753012208,  // c[5]: sin 2 pi 2/9
        0.766044443118978,  // c[6]: cos 2 pi 8/9
        0.6427876096865394,  // c[7]: -sin 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x9 = io.pair(9);
        // complex block of 2
        const P t0 = x0 + x9;
        const P t1 = x0 - x9;
        const P x2 = io.pair(2);
        const P x11 = io.pair(11);
        // complex block of 2
        const P t2 = x2 + x11;
        const P t3 = x2 - x11;
        const P x4 = io.pair(4);
        const P x13 = io.pair(13);
        // complex block of 2
        const P t4 = x4 + x13;
        const P t5 = x4 - x13;
        const P x6 = io.pair(6);
        const P x15 = io.pair(15);
        // complex block of 2
        const P t6 = x6 + x15;
        const P t7 = x6 - x15;
        const P x8 = io.pair(8);
        const P x17 = io.pair(17);
        // complex block of 2
        const P t8 = x8 + x17;
        const P t9 = x8 - x17;
        const P x10 = io.pair(10);
        const P x1 = io.pair(1);
        // complex block of 2
        const P t10 = x10 + x1;
        const P t11 = x10 - x1;
        const P x12 = io.pair(12);
        const P x3 = io.pair(3);
        // complex block of 2
        const P t12 = x12 + x3;
        const P t13 = x12 - x3;
        const P x14 = io.pair(14);
        const P x5 = io.pair(5);
        // complex block of 2
        const P t14 = x14 + x5;
        const P t15 = x14 - x5;
        const P x16 = io.pair(16);
        const P x7 = io.pair(7);
        // complex block of 2
        const P t16 = x16 + x7;
        const P t17 = x16 - x7;
        // complex block of 3, multiplier 2
        const P t18 = t6 + t12;
        const P t19 = t6 - t12;
        const P t20 = t18 + t0;
        const P t21 = c[0] * t18;
        const P t22 = t0 - t21;
        const P t23 = P(-c[1], c[1]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        // complex block of 3, multiplier 2
        const P t27 = t8 + t14;
        const P t28 = t8 - t14;
        const P t29 = t27 + t2;
        const P t30 = c[0] * t27;
        const P t31 = t2 - t30;
        const P t32 = P(-c[1], c[1]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        // complex block of 3, multiplier 2
        const P t36 = t10 + t16;
        const P t37 = t10 - t16;
        const P t38 = t36 + t4;
        const P t39 = c[0] * t36;
        const P t40 = t4 - t39;
        const P t41 = P(-c[1], c[1]) * t37;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        // complex block of 3, multiplier 2
        const P t45 = t29 + t38;
        const P t46 = t29 - t38;
        const P t47 = t45 + t20;
        io.pair(0, t47);
        const P t48 = c[0] * t45;
        const P t49 = t20 - t48;
        const P t50 = P(-c[1], c[1]) * t46;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        io.pair(12, t52);
        const P t53 = t49 - t51;
        io.pair(6, t53);
        // complex block of 9, multiplier 2
        const P t54 = c[4] * t35;
        const P t55 = shuffled<1, 0>(t35);
        const P t56 = P(c[5], -c[5]) * t55;
        const P t57 = t54 + t56;
        const P t58 = P(-c[2], c[2]) * t44;
        const P t59 = shuffled<1, 0>(t44);
        const P t60 = c[3] * t59;
        const P t61 = t58 + t60;
        const P t62 = flipped<0, 1>(t61);
        // complex block of 3, multiplier 2
        const P t63 = t57 + t62;
        const P t64 = t57 - t62;
        const P t65 = t63 + t26;
        io.pair(2, t65);
        const P t66 = c[0] * t63;
        const P t67 = t26 - t66;
        const P t68 = P(-c[1], c[1]) * t64;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = t67 + t69;
        io.pair(14, t70);
        const P t71 = t67 - t69;
        io.pair(8, t71);
        // complex block of 9, multiplier 2
        const P t72 = P(-c[2], c[2]) * t34;
        const P t73 = shuffled<1, 0>(t34);
        const P t74 = c[3] * t73;
        const P t75 = t72 + t74;
        const P t76 = c[6] * t43;
        const P t77 = shuffled<1, 0>(t43);
        const P t78 = P(-c[7], c[7]) * t77;
        const P t79 = t76 + t78;
        const P t80 = flipped<0, 1>(t75);
        // complex block of 3, multiplier 2
        const P t81 = t79 + t80;
        const P t82 = flipped<1, 0>(t79);
        const P t83 = t75 + t82;
        const P t84 = t81 + t25;
        io.pair(4, t84);
        const P t85 = c[0] * t81;
        const P t86 = t25 - t85;
        const P t87 = c[1] * t83;
        const P t88 = shuffled<1, 0>(t87);
        const P t89 = t86 - t88;
        io.pair(16, t89);
        const P t90 = t86 + t88;
        io.pair(10, t90);
        // complex block of 3, multiplier 2
        const P t91 = t7 + t13;
        const P t92 = t7 - t13;
        const P t93 = t91 + t1;
        const P t94 = c[0] * t91;
        const P t95 = t1 - t94;
        const P t96 = P(-c[1], c[1]) * t92;
        const P t97 = shuffled<1, 0>(t96);
        const P t98 = t95 + t97;
        const P t99 = t95 - t97;
        // complex block of 3, multiplier 2
        const P t100 = t9 + t15;
        const P t101 = t9 - t15;
        const P t102 = t100 + t3;
        const P t103 = c[0] * t100;
        const P t104 = t3 - t103;
        const P t105 = P(-c[1], c[1]) * t101;
        const P t106 = shuffled<1, 0>(t105);
        const P t107 = t104 + t106;
        const P t108 = t104 - t106;
        // complex block of 3, multiplier 2
        const P t109 = t11 + t17;
        const P t110 = t11 - t17;
        const P t111 = t109 + t5;
        const P t112 = c[0] * t109;
        const P t113 = t5 - t112;
        const P t114 = P(-c[1], c[1]) * t110;
        const P t115 = shuffled<1, 0>(t114);
        const P t116 = t113 + t115;
        const P t117 = t113 - t115;
        // complex block of 3, multiplier 2
        const P t118 = t102 + t111;
        const P t119 = t102 - t111;
        const P t120 = t118 + t93;
        io.pair(9, t120);
        const P t121 = c[0] * t118;
        const P t122 = t93 - t121;
        const P t123 = P(-c[1], c[1]) * t119;
        const P t124 = shuffled<1, 0>(t123);
        const P t125 = t122 + t124;
        io.pair(3, t125);
        const P t126 = t122 - t124;
        io.pair(15, t126);
        // complex block of 9, multiplier 2
        const P t127 = c[4] * t108;
        const P t128 = shuffled<1, 0>(t108);
        const P t129 = P(c[5], -c[5]) * t128;
        const P t130 = t127 + t129;
        const P t131 = P(-c[2], c[2]) * t117;
        const P t132 = shuffled<1, 0>(t117);
        const P t133 = c[3] * t132;
        const P t134 = t131 + t133;
        const P t135 = flipped<0, 1>(t134);
        // complex block of 3, multiplier 2
        const P t136 = t130 + t135;
        const P t137 = t130 - t135;
        const P t138 = t136 + t99;
        io.pair(11, t138);
        const P t139 = c[0] * t136;
        const P t140 = t99 - t139;
        const P t141 = P(-c[1], c[1]) * t137;
        const P t142 = shuffled<1, 0>(t141);
        const P t143 = t140 + t142;
        io.pair(5, t143);
        const P t144 = t140 - t142;
        io.pair(17, t144);
        // complex block of 9, multiplier 2
        const P t145 = P(-c[2], c[2]) * t107;
        const P t146 = shuffled<1, 0>(t107);
        const P t147 = c[3] * t146;
        const P t148 = t145 + t147;
        const P t149 = c[6] * t116;
        const P t150 = shuffled<1, 0>(t116);
        const P t151 = P(-c[7], c[7]) * t150;
        const P t152 = t149 + t151;
        const P t153 = flipped<0, 1>(t148);
        // complex block of 3, multiplier 2
        const P t154 = t152 + t153;
        const P t155 = flipped<1, 0>(t152);
        const P t156 = t148 + t155;
        const P t157 = t154 + t98;
        io.pair(13, t157);
        const P t158 = c[0] * t154;
        const P t159 = t98 - t158;
        const P t160 = c[1] * t156;
        const P t161 = shuffled<1, 0>(t160);
        const P t162 = t159 - t161;
        io.pair(7, t162);
        const P t163 = t159 + t161;
        io.pair(1, t163);
    }
};

}  // namespace zulg
