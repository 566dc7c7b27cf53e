// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 26.
// Complex DFT of 26 points, prime-factor, order 13, 2; two lines of a stage to a register.
// 57 sums, 45 differences, 36 products of registers, which do the 600 steps of the graph, those with
// `scale` included; 21 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<26> {
    static constexpr int steps = 600;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5279915321544383,  // c[2]: Q[1] of 13
        0.2869425954512852,  // c[3]: P[1] of 13
        0.5751407294740031,  // c[4]: Q[3] of 13
        0.1741386011521359,  // c[5]: -P[3] of 13
        0.280148395734785,  // c[6]: -Q[5] of 13
        0.5316276774946329,  // c[7]: P[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.5242266395265821,  // c[9]: P[2] of 13
        0.29376443202296976,  // c[10]: -Q[2] of 13
        0.42763404682657274,  // c[11]: P[4] of 13
        0.42218506973345193,  // c[12]: -Q[4] of 13
        0.37034194807495624,  // c[13]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[14]: sin 2 pi 1/3 times -Q[4] of 13
        0.3004626062886658,  // c[15]: -beta of 13
        0.45399358717056765,  // c[16]: sin 2 pi 1/3 times P[2] of 13
        0.25440746086019866,  // c[17]: sin 2 pi 1/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x2_15 = io.pairs(2, 15);
        const Q x24_11 = io.pairs(24, 11);
        // real block of 2
        const Q t0 = x2_15 + x24_11;
        const Q t1 = x2_15 - x24_11;
        const Q x16_3 = io.pairs(16, 3);
        const Q x10_23 = io.pairs(10, 23);
        // real block of 2
        const Q t2 = x16_3 + x10_23;
        const Q t3 = x16_3 - x10_23;
        // real block of 2
        const Q t4 = t0 + t2;
        const Q t5 = t0 - t2;
        const Q x6_19 = io.pairs(6, 19);
        const Q x20_7 = io.pairs(20, 7);
        // real block of 2
        const Q t6 = x6_19 + x20_7;
        const Q t7 = x6_19 - x20_7;
        const Q x22_9 = io.pairs(22, 9);
        const Q x4_17 = io.pairs(4, 17);
        // real block of 2
        const Q t8 = x22_9 + x4_17;
        const Q t9 = x22_9 - x4_17;
        // real block of 2
        const Q t10 = t6 + t8;
        const Q t11 = t6 - t8;
        const Q x18_5 = io.pairs(18, 5);
        const Q x8_21 = io.pairs(8, 21);
        // real block of 2
        const Q t12 = x18_5 + x8_21;
        const Q t13 = x18_5 - x8_21;
        const Q x14_1 = io.pairs(14, 1);
        const Q x12_25 = io.pairs(12, 25);
        // real block of 2
        const Q t14 = x14_1 + x12_25;
        const Q t15 = x14_1 - x12_25;
        // real block of 2
        const Q t16 = t12 + t14;
        const Q t17 = t12 - t14;
        // real block of 3
        const Q t18 = t10 + t16;
        const Q t19 = t10 - t16;
        const Q t20 = t18 + t4;
        const Q t21 = c[0] * t18;
        const Q t22 = t4 - t21;
        // complex block of 3
        const Q t23 = t7 + t13;
        const Q t24 = t9 + t15;
        const Q t25 = t7 - t13;
        const Q t26 = t9 - t15;
        const Q t27 = t23 + t1;
        const Q t28 = t24 + t3;
        const Q t29 = c[0] * t23;
        const Q t30 = t1 - t29;
        const Q t31 = c[0] * t24;
        const Q t32 = t3 - t31;
        const Q t33 = c[1] * t26;
        const Q t34 = t30 + t33;
        const Q t35 = c[1] * t25;
        const Q t36 = t32 - t35;
        const Q t37 = t30 - t33;
        const Q t38 = t32 + t35;
        // real block of 3
        const Q t39 = t11 + t17;
        const Q t40 = t11 - t17;
        const Q t41 = t39 + t5;
        const Q t42 = c[0] * t39;
        const Q t43 = t5 - t42;
        const Q x0_13 = io.pairs(0, 13);
        // complex block of 13, multiplier 2
        const Q t44 = x0_13 + t20;
        const Q t45 = c[8] * t20;
        const Q t46 = x0_13 - t45;
        const Q t47 = shuffled<1, 0, 3, 2>(t37);
        const Q t48 = c[2] * t47;
        const Q t49 = shuffled<1, 0, 3, 2>(t38);
        const Q t50 = c[3] * t49;
        const Q t51 = t48 + t50;
        const Q t52 = Q(-c[2], c[2], -c[2], c[2]) * t49;
        const Q t53 = Q(c[3], -c[3], c[3], -c[3]) * t47;
        const Q t54 = t52 + t53;
        const Q t55 = c[9] * t43;
        // real block of 3
        const Q t56 = c[1] * t40;
        // complex block of 13, multiplier 2
        const Q t57 = c[10] * t56;
        const Q t58 = t55 + t57;
        const Q t59 = shuffled<1, 0, 3, 2>(t27);
        const Q t60 = c[4] * t59;
        const Q t61 = shuffled<1, 0, 3, 2>(t28);
        const Q t62 = c[5] * t61;
        const Q t63 = t60 + t62;
        const Q t64 = Q(-c[5], c[5], -c[5], c[5]) * t59;
        const Q t65 = Q(c[4], -c[4], c[4], -c[4]) * t61;
        const Q t66 = t64 + t65;
        const Q t67 = c[11] * t22;
        // real block of 3
        const Q t68 = c[1] * t19;
        // complex block of 13, multiplier 2
        const Q t69 = c[12] * t68;
        const Q t70 = t67 - t69;
        const Q t71 = shuffled<1, 0, 3, 2>(t34);
        const Q t72 = Q(-c[6], c[6], -c[6], c[6]) * t71;
        const Q t73 = shuffled<1, 0, 3, 2>(t36);
        const Q t74 = Q(c[7], -c[7], c[7], -c[7]) * t73;
        const Q t75 = t72 + t74;
        const Q t76 = c[6] * t73;
        const Q t77 = c[7] * t71;
        const Q t78 = t76 + t77;
        // spectrum block of 3
        const Q t79 = t70 + t46;
        const Q t80 = c[0] * t70;
        const Q t81 = t46 - t80;
        const Q t82 = c[13] * t68;
        const Q t83 = c[14] * t22;
        const Q t84 = t82 + t83;
        const Q t85 = t81 + t84;
        const Q t86 = t81 - t84;
        const Q t87 = flipped<0, 1, 0, 1>(t54);
        // complex block of 3
        const Q t88 = t78 + t87;
        const Q t89 = flipped<0, 1, 0, 1>(t51);
        const Q t90 = t75 + t89;
        const Q t91 = flipped<1, 0, 1, 0>(t78);
        const Q t92 = t91 + t54;
        const Q t93 = t75 - t89;
        const Q t94 = flipped<1, 0, 1, 0>(t88);
        const Q t95 = t94 + t66;
        const Q t96 = flipped<0, 1, 0, 1>(t63);
        const Q t97 = t90 + t96;
        const Q t98 = Q(c[0], -c[0], c[0], -c[0]) * t88;
        const Q t99 = t66 + t98;
        const Q t100 = Q(-c[0], c[0], -c[0], c[0]) * t90;
        const Q t101 = t63 + t100;
        const Q t102 = c[1] * t93;
        const Q t103 = t99 + t102;
        const Q t104 = Q(-c[1], c[1], -c[1], c[1]) * t92;
        const Q t105 = t101 + t104;
        const Q t106 = t99 - t102;
        const Q t107 = shuffled<0, 5, 2, 7>(t101, t104);
        const Q t108 = shuffled<0, 5, 2, 7>(t104, t101);
        const Q t109 = t107 - t108;
        // complex block of 13, multiplier 2
        const Q t110 = c[15] * t41;
        // spectrum block of 3
        const Q t111 = t58 - t110;
        const Q t112 = c[0] * t58;
        const Q t113 = t110 + t112;
        const Q t114 = c[16] * t56;
        const Q t115 = c[17] * t43;
        const Q t116 = t114 - t115;
        const Q t117 = t116 - t113;
        const Q t118 = t113 + t116;
        // spectrum block of 2
        const Q t119 = t79 + t111;
        const Q t120 = t79 - t111;
        // spectrum block of 2
        const Q t121 = t119 + t97;
        const Q t122 = t119 - t97;
        // spectrum block of 2
        const Q t123 = t120 + t95;
        const Q t124 = t120 - t95;
        // spectrum block of 2
        const Q t125 = t85 + t117;
        const Q t126 = t85 - t117;
        const Q t127 = flipped<0, 1, 0, 1>(t105);
        // spectrum block of 2
        const Q t128 = t125 + t127;
        const Q t129 = t125 - t127;
        // spectrum block of 2
        const Q t130 = t126 + t103;
        const Q t131 = t126 - t103;
        // spectrum block of 2
        const Q t132 = t86 - t118;
        const Q t133 = t86 + t118;
        // spectrum block of 2
        const Q t134 = t132 + t109;
        const Q t135 = t132 - t109;
        // spectrum block of 2
        const Q t136 = t133 + t106;
        const Q t137 = t133 - t106;
        const Q t138 = shuffled<0, 1, 4, 5>(t44, t121);
        const Q t139 = shuffled<2, 3, 6, 7>(t44, t121);
        // complex block of 2
        const Q t140 = t138 + t139;
        io.pairs(0, 2, t140);
        const Q t141 = t138 - t139;
        io.pairs(13, 15, t141);
        const Q t142 = shuffled<0, 1, 4, 5>(t136, t134);
        const Q t143 = shuffled<2, 3, 6, 7>(t136, t134);
        // complex block of 2
        const Q t144 = t142 + t143;
        io.pairs(4, 6, t144);
        const Q t145 = t142 - t143;
        io.pairs(17, 19, t145);
        const Q t146 = shuffled<0, 1, 4, 5>(t129, t123);
        const Q t147 = shuffled<2, 3, 6, 7>(t129, t123);
        // complex block of 2
        const Q t148 = t146 + t147;
        io.pairs(8, 10, t148);
        const Q t149 = t146 - t147;
        io.pairs(21, 23, t149);
        const Q t150 = shuffled<0, 1, 4, 5>(t130, t131);
        const Q t151 = shuffled<2, 3, 6, 7>(t130, t131);
        // complex block of 2
        const Q t152 = t150 + t151;
        io.pairs(12, 14, t152);
        const Q t153 = t150 - t151;
        io.pairs(25, 1, t153);
        const Q t154 = shuffled<0, 1, 4, 5>(t124, t128);
        const Q t155 = shuffled<2, 3, 6, 7>(t124, t128);
        // complex block of 2
        const Q t156 = t154 + t155;
        io.pairs(16, 18, t156);
        const Q t157 = t154 - t155;
        io.pairs(3, 5, t157);
        const Q t158 = shuffled<0, 1, 4, 5>(t135, t137);
        const Q t159 = shuffled<2, 3, 6, 7>(t135, t137);
        // complex block of 2
        const Q t160 = t158 + t159;
        io.pairs(20, 22, t160);
        const Q t161 = t158 - t159;
        io.pairs(7, 9, t161);
        const P t162 = part<0>(t122);
        const P t163 = part<1>(t122);
        // complex block of 2
        const P t164 = t162 + t163;
        io.pair(24, t164);
        const P t165 = t162 - t163;
        io.pair(11, t165);
    }
};

}  // namespace zulg
