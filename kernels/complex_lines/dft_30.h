// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 30.
// Complex DFT of 30 points, prime-factor, order 5, 3, 2; two lines of a stage to a register.
// 50 sums, 44 differences, 34 products of registers, which do the 568 steps of the graph, those with
// `scale` included; 26 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<30> {
    static constexpr int steps = 568;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x18_3 = io.pairs(18, 3);
        const Q x12_27 = io.pairs(12, 27);
        // complex block of 5
        const Q t0 = x18_3 + x12_27;
        const Q t1 = x18_3 - x12_27;
        const Q x6_21 = io.pairs(6, 21);
        const Q x24_9 = io.pairs(24, 9);
        const Q t2 = x6_21 + x24_9;
        const Q t3 = x6_21 - x24_9;
        const Q t4 = t2 + t0;
        const Q x0_15 = io.pairs(0, 15);
        const Q t5 = t4 + x0_15;
        const Q t6 = c[0] * t2;
        const Q t7 = c[1] * t0;
        const Q t8 = t6 - t7;
        const Q t9 = t8 + x0_15;
        const Q t10 = c[2] * t3;
        const Q t11 = c[3] * t1;
        const Q t12 = t10 - t11;
        const Q t13 = c[1] * t2;
        const Q t14 = x0_15 - t13;
        const Q t15 = c[0] * t0;
        const Q t16 = t14 + t15;
        const Q t17 = c[3] * t3;
        const Q t18 = c[2] * t1;
        const Q t19 = t17 + t18;
        const Q x16_1 = io.pairs(16, 1);
        const Q x4_19 = io.pairs(4, 19);
        // complex block of 5
        const Q t20 = x16_1 + x4_19;
        const Q t21 = x16_1 - x4_19;
        const Q x28_13 = io.pairs(28, 13);
        const Q x22_7 = io.pairs(22, 7);
        const Q t22 = x28_13 + x22_7;
        const Q t23 = x28_13 - x22_7;
        const Q t24 = t20 + t22;
        const Q x8_23 = io.pairs(8, 23);
        const Q x2_17 = io.pairs(2, 17);
        // complex block of 5
        const Q t25 = x8_23 + x2_17;
        const Q t26 = x8_23 - x2_17;
        const Q x26_11 = io.pairs(26, 11);
        const Q x14_29 = io.pairs(14, 29);
        const Q t27 = x26_11 + x14_29;
        const Q t28 = x26_11 - x14_29;
        const Q t29 = t27 + t25;
        const Q x10_25 = io.pairs(10, 25);
        // complex block of 5
        const Q t30 = t24 + x10_25;
        const Q x20_5 = io.pairs(20, 5);
        // complex block of 5
        const Q t31 = t29 + x20_5;
        // complex block of 3
        const Q t32 = t30 + t31;
        // complex block of 5
        const Q t33 = c[0] * t20;
        const Q t34 = c[1] * t22;
        const Q t35 = t33 - t34;
        const Q t36 = t35 + x10_25;
        const Q t37 = c[2] * t21;
        const Q t38 = c[3] * t23;
        const Q t39 = t37 - t38;
        const Q t40 = shuffled<1, 0, 3, 2>(t39);
        const Q t41 = flipped<0, 1, 0, 1>(t40);
        const Q t42 = t36 + t41;
        const Q t43 = t36 - t41;
        const Q t44 = c[1] * t20;
        const Q t45 = x10_25 - t44;
        const Q t46 = c[0] * t22;
        const Q t47 = t45 + t46;
        const Q t48 = c[3] * t21;
        const Q t49 = c[2] * t23;
        const Q t50 = t48 + t49;
        const Q t51 = shuffled<1, 0, 3, 2>(t50);
        const Q t52 = flipped<0, 1, 0, 1>(t51);
        const Q t53 = t47 + t52;
        const Q t54 = t47 - t52;
        // complex block of 5
        const Q t55 = c[0] * t27;
        const Q t56 = c[1] * t25;
        const Q t57 = t55 - t56;
        const Q t58 = t57 + x20_5;
        const Q t59 = c[2] * t28;
        const Q t60 = c[3] * t26;
        const Q t61 = t59 - t60;
        const Q t62 = shuffled<1, 0, 3, 2>(t61);
        const Q t63 = flipped<0, 1, 0, 1>(t62);
        const Q t64 = t58 + t63;
        const Q t65 = t58 - t63;
        const Q t66 = c[1] * t27;
        const Q t67 = x20_5 - t66;
        const Q t68 = c[0] * t25;
        const Q t69 = t67 + t68;
        const Q t70 = c[3] * t28;
        const Q t71 = c[2] * t26;
        const Q t72 = t70 + t71;
        const Q t73 = shuffled<1, 0, 3, 2>(t72);
        const Q t74 = flipped<0, 1, 0, 1>(t73);
        const Q t75 = t69 + t74;
        const Q t76 = t69 - t74;
        const Q t77 = shuffled<1, 0, 3, 2>(t12);
        const Q t78 = flipped<0, 1, 0, 1>(t77);
        // complex block of 5
        const Q t79 = t9 + t78;
        // complex block of 3
        const Q t80 = t42 + t64;
        const Q t81 = t80 + t79;
        const Q t82 = c[4] * t80;
        const Q t83 = t79 - t82;
        // complex block of 3
        const Q t84 = t30 - t31;
        const Q t85 = t32 + t5;
        const Q t86 = c[4] * t32;
        const Q t87 = t5 - t86;
        // complex block of 3
        const Q t88 = t42 - t64;
        // complex block of 3
        const Q t89 = Q(-c[5], c[5], -c[5], c[5]) * t84;
        const Q t90 = shuffled<1, 0, 3, 2>(t89);
        const Q t91 = t87 + t90;
        const Q t92 = shuffled<0, 1, 4, 5>(t85, t91);
        const Q t93 = shuffled<2, 3, 6, 7>(t85, t91);
        // complex block of 2
        const Q t94 = t92 + t93;
        io.pairs(0, 10, t94);
        const Q t95 = t92 - t93;
        io.pairs(15, 25, t95);
        // complex block of 3
        const Q t96 = t87 - t90;
        const Q t97 = shuffled<0, 1, 4, 5>(t96, t81);
        const Q t98 = shuffled<2, 3, 6, 7>(t96, t81);
        // complex block of 2
        const Q t99 = t97 + t98;
        io.pairs(20, 6, t99);
        const Q t100 = t97 - t98;
        io.pairs(5, 21, t100);
        // complex block of 3
        const Q t101 = Q(-c[5], c[5], -c[5], c[5]) * t88;
        const Q t102 = shuffled<1, 0, 3, 2>(t101);
        const Q t103 = t83 + t102;
        const Q t104 = t83 - t102;
        const Q t105 = shuffled<0, 1, 4, 5>(t103, t104);
        const Q t106 = shuffled<2, 3, 6, 7>(t103, t104);
        // complex block of 2
        const Q t107 = t105 + t106;
        io.pairs(16, 26, t107);
        const Q t108 = t105 - t106;
        io.pairs(1, 11, t108);
        // complex block of 5
        const Q t109 = t9 - t78;
        // complex block of 3
        const Q t110 = t43 + t65;
        const Q t111 = t110 + t109;
        const Q t112 = c[4] * t110;
        const Q t113 = t109 - t112;
        const Q t114 = t43 - t65;
        const Q t115 = Q(-c[5], c[5], -c[5], c[5]) * t114;
        const Q t116 = shuffled<1, 0, 3, 2>(t115);
        const Q t117 = t113 + t116;
        const Q t118 = shuffled<0, 1, 4, 5>(t111, t117);
        const Q t119 = shuffled<2, 3, 6, 7>(t111, t117);
        // complex block of 2
        const Q t120 = t118 + t119;
        io.pairs(24, 4, t120);
        const Q t121 = t118 - t119;
        io.pairs(9, 19, t121);
        // complex block of 3
        const Q t122 = t113 - t116;
        const P t123 = part<0>(t122);
        const P t124 = part<1>(t122);
        // complex block of 2
        const P t125 = t123 + t124;
        io.pair(14, t125);
        const P t126 = t123 - t124;
        io.pair(29, t126);
        const Q t127 = shuffled<1, 0, 3, 2>(t19);
        const Q t128 = flipped<0, 1, 0, 1>(t127);
        // complex block of 5
        const Q t129 = t16 + t128;
        // complex block of 3
        const Q t130 = t53 + t75;
        const Q t131 = t130 + t129;
        const Q t132 = c[4] * t130;
        const Q t133 = t129 - t132;
        // complex block of 5
        const Q t134 = t16 - t128;
        // complex block of 3
        const Q t135 = t54 + t76;
        const Q t136 = t135 + t134;
        const Q t137 = c[4] * t135;
        const Q t138 = t134 - t137;
        // complex block of 3
        const Q t139 = t53 - t75;
        // complex block of 3
        const Q t140 = t54 - t76;
        // complex block of 3
        const Q t141 = Q(-c[5], c[5], -c[5], c[5]) * t139;
        const Q t142 = shuffled<1, 0, 3, 2>(t141);
        const Q t143 = t133 + t142;
        const Q t144 = shuffled<0, 1, 4, 5>(t131, t143);
        const Q t145 = shuffled<2, 3, 6, 7>(t131, t143);
        // complex block of 2
        const Q t146 = t144 + t145;
        io.pairs(12, 22, t146);
        const Q t147 = t144 - t145;
        io.pairs(27, 7, t147);
        // complex block of 3
        const Q t148 = t133 - t142;
        const Q t149 = shuffled<0, 1, 4, 5>(t148, t136);
        const Q t150 = shuffled<2, 3, 6, 7>(t148, t136);
        // complex block of 2
        const Q t151 = t149 + t150;
        io.pairs(2, 18, t151);
        const Q t152 = t149 - t150;
        io.pairs(17, 3, t152);
        // complex block of 3
        const Q t153 = Q(-c[5], c[5], -c[5], c[5]) * t140;
        const Q t154 = shuffled<1, 0, 3, 2>(t153);
        const Q t155 = t138 + t154;
        const Q t156 = t138 - t154;
        const Q t157 = shuffled<0, 1, 4, 5>(t155, t156);
        const Q t158 = shuffled<2, 3, 6, 7>(t155, t156);
        // complex block of 2
        const Q t159 = t157 + t158;
        io.pairs(28, 8, t159);
        const Q t160 = t157 - t158;
        io.pairs(13, 23, t160);
    }
};

}  // namespace zulg
