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
        const Q x6_21 = io.pairs(6, 21);
        const Q x24_9 = io.pairs(24, 9);
        // complex block of 5
        const Q t0 = x6_21 + x24_9;
        const Q t1 = x6_21 - x24_9;
        const Q x18_3 = io.pairs(18, 3);
        const Q x12_27 = io.pairs(12, 27);
        const Q t2 = x18_3 + x12_27;
        const Q t3 = x18_3 - x12_27;
        const Q t4 = t0 + t2;
        const Q x0_15 = io.pairs(0, 15);
        const Q t5 = t4 + x0_15;
        const Q t6 = c[0] * t0;
        const Q t7 = c[1] * t2;
        const Q t8 = t6 - t7;
        const Q t9 = t8 + x0_15;
        const Q t10 = c[2] * t1;
        const Q t11 = c[3] * t3;
        const Q t12 = t10 - t11;
        const Q t13 = shuffled<1, 0, 3, 2>(t12);
        const Q t14 = flipped<0, 1, 0, 1>(t13);
        const Q t15 = t9 + t14;
        const Q t16 = t9 - t14;
        const Q t17 = c[1] * t0;
        const Q t18 = x0_15 - t17;
        const Q t19 = c[0] * t2;
        const Q t20 = t18 + t19;
        const Q t21 = c[3] * t1;
        const Q t22 = c[2] * t3;
        const Q t23 = t21 + t22;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = flipped<0, 1, 0, 1>(t24);
        const Q t26 = t20 + t25;
        const Q t27 = t20 - t25;
        const Q x16_1 = io.pairs(16, 1);
        const Q x4_19 = io.pairs(4, 19);
        // complex block of 5
        const Q t28 = x16_1 + x4_19;
        const Q t29 = x16_1 - x4_19;
        const Q x28_13 = io.pairs(28, 13);
        const Q x22_7 = io.pairs(22, 7);
        const Q t30 = x28_13 + x22_7;
        const Q t31 = x28_13 - x22_7;
        const Q t32 = t28 + t30;
        const Q x10_25 = io.pairs(10, 25);
        const Q t33 = t32 + x10_25;
        const Q t34 = c[0] * t28;
        const Q t35 = c[1] * t30;
        const Q t36 = t34 - t35;
        const Q t37 = t36 + x10_25;
        const Q t38 = c[2] * t29;
        const Q t39 = c[3] * t31;
        const Q t40 = t38 - t39;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = flipped<0, 1, 0, 1>(t41);
        const Q t43 = t37 + t42;
        const Q t44 = t37 - t42;
        const Q t45 = c[1] * t28;
        const Q t46 = x10_25 - t45;
        const Q t47 = c[0] * t30;
        const Q t48 = t46 + t47;
        const Q t49 = c[3] * t29;
        const Q t50 = c[2] * t31;
        const Q t51 = t49 + t50;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t48 + t53;
        const Q t55 = t48 - t53;
        const Q x26_11 = io.pairs(26, 11);
        const Q x14_29 = io.pairs(14, 29);
        // complex block of 5
        const Q t56 = x26_11 + x14_29;
        const Q t57 = x26_11 - x14_29;
        const Q x8_23 = io.pairs(8, 23);
        const Q x2_17 = io.pairs(2, 17);
        const Q t58 = x8_23 + x2_17;
        const Q t59 = x8_23 - x2_17;
        const Q t60 = t56 + t58;
        const Q x20_5 = io.pairs(20, 5);
        const Q t61 = t60 + x20_5;
        const Q t62 = c[0] * t56;
        const Q t63 = c[1] * t58;
        const Q t64 = t62 - t63;
        const Q t65 = t64 + x20_5;
        const Q t66 = c[2] * t57;
        const Q t67 = c[3] * t59;
        const Q t68 = t66 - t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        const Q t70 = flipped<0, 1, 0, 1>(t69);
        const Q t71 = t65 + t70;
        const Q t72 = t65 - t70;
        const Q t73 = c[1] * t56;
        const Q t74 = x20_5 - t73;
        const Q t75 = c[0] * t58;
        const Q t76 = t74 + t75;
        const Q t77 = c[3] * t57;
        const Q t78 = c[2] * t59;
        const Q t79 = t77 + t78;
        const Q t80 = shuffled<1, 0, 3, 2>(t79);
        const Q t81 = flipped<0, 1, 0, 1>(t80);
        const Q t82 = t76 + t81;
        const Q t83 = t76 - t81;
        // complex block of 3
        const Q t84 = t33 + t61;
        const Q t85 = t33 - t61;
        const Q t86 = t84 + t5;
        const Q t87 = c[4] * t84;
        const Q t88 = t5 - t87;
        const Q t89 = Q(-c[5], c[5], -c[5], c[5]) * t85;
        const Q t90 = shuffled<1, 0, 3, 2>(t89);
        const Q t91 = t88 + t90;
        const Q t92 = t88 - t90;
        // complex block of 3
        const Q t93 = t43 + t71;
        const Q t94 = t43 - t71;
        const Q t95 = t93 + t15;
        const Q t96 = c[4] * t93;
        const Q t97 = t15 - t96;
        const Q t98 = Q(-c[5], c[5], -c[5], c[5]) * t94;
        const Q t99 = shuffled<1, 0, 3, 2>(t98);
        const Q t100 = t97 + t99;
        const Q t101 = t97 - t99;
        // complex block of 3
        const Q t102 = t54 + t82;
        const Q t103 = t54 - t82;
        const Q t104 = t102 + t26;
        const Q t105 = c[4] * t102;
        const Q t106 = t26 - t105;
        const Q t107 = Q(-c[5], c[5], -c[5], c[5]) * t103;
        const Q t108 = shuffled<1, 0, 3, 2>(t107);
        const Q t109 = t106 + t108;
        const Q t110 = t106 - t108;
        // complex block of 3
        const Q t111 = t55 + t83;
        const Q t112 = t55 - t83;
        const Q t113 = t111 + t27;
        const Q t114 = c[4] * t111;
        const Q t115 = t27 - t114;
        const Q t116 = Q(-c[5], c[5], -c[5], c[5]) * t112;
        const Q t117 = shuffled<1, 0, 3, 2>(t116);
        const Q t118 = t115 + t117;
        const Q t119 = t115 - t117;
        // complex block of 3
        const Q t120 = t44 + t72;
        const Q t121 = t44 - t72;
        const Q t122 = t120 + t16;
        const Q t123 = c[4] * t120;
        const Q t124 = t16 - t123;
        const Q t125 = Q(-c[5], c[5], -c[5], c[5]) * t121;
        const Q t126 = shuffled<1, 0, 3, 2>(t125);
        const Q t127 = t124 + t126;
        const Q t128 = t124 - t126;
        const Q t129 = shuffled<0, 1, 4, 5>(t86, t91);
        const Q t130 = shuffled<2, 3, 6, 7>(t86, t91);
        // complex block of 2
        const Q t131 = t129 + t130;
        io.pairs(0, 10, t131);
        const Q t132 = t129 - t130;
        io.pairs(15, 25, t132);
        const Q t133 = shuffled<0, 1, 4, 5>(t92, t95);
        const Q t134 = shuffled<2, 3, 6, 7>(t92, t95);
        // complex block of 2
        const Q t135 = t133 + t134;
        io.pairs(20, 6, t135);
        const Q t136 = t133 - t134;
        io.pairs(5, 21, t136);
        const Q t137 = shuffled<0, 1, 4, 5>(t100, t101);
        const Q t138 = shuffled<2, 3, 6, 7>(t100, t101);
        // complex block of 2
        const Q t139 = t137 + t138;
        io.pairs(16, 26, t139);
        const Q t140 = t137 - t138;
        io.pairs(1, 11, t140);
        const Q t141 = shuffled<0, 1, 4, 5>(t104, t109);
        const Q t142 = shuffled<2, 3, 6, 7>(t104, t109);
        // complex block of 2
        const Q t143 = t141 + t142;
        io.pairs(12, 22, t143);
        const Q t144 = t141 - t142;
        io.pairs(27, 7, t144);
        const Q t145 = shuffled<0, 1, 4, 5>(t110, t113);
        const Q t146 = shuffled<2, 3, 6, 7>(t110, t113);
        // complex block of 2
        const Q t147 = t145 + t146;
        io.pairs(2, 18, t147);
        const Q t148 = t145 - t146;
        io.pairs(17, 3, t148);
        const Q t149 = shuffled<0, 1, 4, 5>(t118, t119);
        const Q t150 = shuffled<2, 3, 6, 7>(t118, t119);
        // complex block of 2
        const Q t151 = t149 + t150;
        io.pairs(28, 8, t151);
        const Q t152 = t149 - t150;
        io.pairs(13, 23, t152);
        const Q t153 = shuffled<0, 1, 4, 5>(t122, t127);
        const Q t154 = shuffled<2, 3, 6, 7>(t122, t127);
        // complex block of 2
        const Q t155 = t153 + t154;
        io.pairs(24, 4, t155);
        const Q t156 = t153 - t154;
        io.pairs(9, 19, t156);
        const P t157 = part<0>(t128);
        const P t158 = part<1>(t128);
        // complex block of 2
        const P t159 = t157 + t158;
        io.pair(14, t159);
        const P t160 = t157 - t158;
        io.pair(29, t160);
    }
};

}  // namespace zulg
