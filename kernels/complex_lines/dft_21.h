// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 21.
// Complex DFT of 21 points, prime-factor, order 3, 7; two lines of a stage to a register.
// 42 sums, 42 differences, 44 products of registers, which do the 442 steps of the graph, those with
// `scale` included; 20 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<21> {
    static constexpr int steps = 442;  // with `scale`
    static constexpr double inverseRoot = 0.2182178902359924;  // 1/sqrt(21), for `scale`
    static constexpr double constants[] = {
        0.7818314824680298,  // c[0]: sin 2 pi 1/7
        0.9749279121818236,  // c[1]: -sin 2 pi 5/7
        0.4338837391175581,  // c[2]: -sin 2 pi 4/7
        0.6234898018587335,  // c[3]: cos 2 pi 1/7
        0.2225209339563144,  // c[4]: -cos 2 pi 5/7
        0.9009688679024191,  // c[5]: -cos 2 pi 4/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const P x4 = io.pair(4);
        const P x11 = io.pair(11);
        // complex block of 3
        const P t0 = x4 + x11;
        const P t1 = x4 - x11;
        const Q x7_10 = io.pairs(7, 10);
        const Q x14_17 = io.pairs(14, 17);
        // complex block of 3
        const Q t2 = x7_10 + x14_17;
        const Q t3 = x7_10 - x14_17;
        const Q x0_3 = io.pairs(0, 3);
        const Q t4 = t2 + x0_3;
        const Q t5 = c[6] * t2;
        const Q t6 = x0_3 - t5;
        const Q t7 = Q(-c[7], c[7], -c[7], c[7]) * t3;
        const Q t8 = shuffled<1, 0, 3, 2>(t7);
        const Q t9 = t6 + t8;
        const Q t10 = t6 - t8;
        const P x18 = io.pair(18);
        // complex block of 3
        const P t11 = t0 + x18;
        const P t12 = c[6] * t0;
        const P t13 = x18 - t12;
        const P t14 = P(-c[7], c[7]) * t1;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const Q t18 = shuffled<2, 3, 6, 7>(t4, t9);
        const Q t19 = joined(t11, t16);
        // complex block of 7, multiplier 3
        const Q t20 = t18 + t19;
        const P t21 = part<1>(t10);
        // complex block of 7, multiplier 3
        const P t22 = t21 + t17;
        const Q x19_1 = io.pairs(19, 1);
        const Q x5_8 = io.pairs(5, 8);
        // complex block of 3
        const Q t23 = x19_1 + x5_8;
        const Q t24 = x19_1 - x5_8;
        const Q x13_16 = io.pairs(13, 16);
        const Q x20_2 = io.pairs(20, 2);
        // complex block of 3
        const Q t25 = x13_16 + x20_2;
        const Q t26 = x13_16 - x20_2;
        const Q x6_9 = io.pairs(6, 9);
        const Q t27 = t25 + x6_9;
        const Q t28 = c[6] * t25;
        const Q t29 = x6_9 - t28;
        const Q t30 = Q(-c[7], c[7], -c[7], c[7]) * t26;
        const Q t31 = shuffled<1, 0, 3, 2>(t30);
        const Q t32 = t29 + t31;
        const Q t33 = t29 - t31;
        const Q x12_15 = io.pairs(12, 15);
        // complex block of 3
        const Q t34 = t23 + x12_15;
        const Q t35 = c[6] * t23;
        const Q t36 = x12_15 - t35;
        const Q t37 = Q(-c[7], c[7], -c[7], c[7]) * t24;
        const Q t38 = shuffled<1, 0, 3, 2>(t37);
        const Q t39 = t36 + t38;
        const Q t40 = t36 - t38;
        const Q t41 = shuffled<2, 3, 6, 7>(t34, t39);
        const Q t42 = shuffled<0, 1, 4, 5>(t27, t32);
        // complex block of 7, multiplier 3
        const Q t43 = t41 + t42;
        const P t44 = part<1>(t40);
        const P t45 = part<0>(t33);
        // complex block of 7, multiplier 3
        const P t46 = t44 + t45;
        // complex block of 7, multiplier 3
        const Q t47 = t18 - t19;
        const Q t48 = t41 - t42;
        const Q t49 = c[0] * t47;
        const Q t50 = c[1] * t48;
        const Q t51 = t49 - t50;
        const Q t52 = c[1] * t47;
        const Q t53 = c[2] * t48;
        const Q t54 = t52 + t53;
        const Q t55 = c[2] * t47;
        const Q t56 = c[0] * t48;
        const Q t57 = t55 + t56;
        const Q t58 = shuffled<0, 1, 4, 5>(t34, t39);
        const Q t59 = shuffled<2, 3, 6, 7>(t27, t32);
        const Q t60 = t58 + t59;
        const Q t61 = t20 + t43;
        const Q t62 = c[3] * t20;
        const Q t63 = c[4] * t43;
        const Q t64 = t62 - t63;
        const Q t65 = t61 + t60;
        const Q t66 = c[5] * t60;
        const Q t67 = t64 - t66;
        const Q t68 = t58 - t59;
        const Q t69 = shuffled<0, 1, 4, 5>(t4, t9);
        const Q t70 = c[4] * t20;
        const Q t71 = t69 - t70;
        const Q t72 = c[5] * t43;
        const Q t73 = t71 - t72;
        const Q t74 = c[5] * t20;
        const Q t75 = t69 - t74;
        const Q t76 = c[3] * t43;
        const Q t77 = t75 + t76;
        const Q t78 = t65 + t69;
        io.pairs(0, 7, t78);
        const Q t79 = t67 + t69;
        const Q t80 = c[2] * t68;
        const Q t81 = t51 - t80;
        const Q t82 = shuffled<1, 0, 3, 2>(t81);
        const Q t83 = flipped<0, 1, 0, 1>(t82);
        const Q t84 = t79 + t83;
        io.pairs(15, 1, t84);
        const Q t85 = t79 - t83;
        io.pairs(6, 13, t85);
        const Q t86 = c[3] * t60;
        const Q t87 = t73 + t86;
        const Q t88 = c[0] * t68;
        const Q t89 = t54 + t88;
        const Q t90 = shuffled<1, 0, 3, 2>(t89);
        const Q t91 = flipped<0, 1, 0, 1>(t90);
        const Q t92 = t87 + t91;
        io.pairs(9, 16, t92);
        const Q t93 = t87 - t91;
        io.pairs(12, 19, t93);
        const Q t94 = c[4] * t60;
        const Q t95 = t77 - t94;
        const Q t96 = c[1] * t68;
        const Q t97 = t57 - t96;
        const Q t98 = shuffled<1, 0, 3, 2>(t97);
        const Q t99 = flipped<0, 1, 0, 1>(t98);
        const Q t100 = t95 + t99;
        io.pairs(3, 10, t100);
        const Q t101 = t95 - t99;
        io.pairs(18, 4, t101);
        // complex block of 7, multiplier 3
        const P t102 = t21 - t17;
        const P t103 = t44 - t45;
        const P t104 = c[0] * t102;
        const P t105 = c[1] * t103;
        const P t106 = t104 - t105;
        const P t107 = c[1] * t102;
        const P t108 = c[2] * t103;
        const P t109 = t107 + t108;
        const P t110 = c[2] * t102;
        const P t111 = c[0] * t103;
        const P t112 = t110 + t111;
        const P t113 = part<0>(t40);
        const P t114 = part<1>(t33);
        const P t115 = t113 + t114;
        const P t116 = t22 + t46;
        const P t117 = c[3] * t22;
        const P t118 = c[4] * t46;
        const P t119 = t117 - t118;
        const P t120 = t116 + t115;
        const P t121 = c[5] * t115;
        const P t122 = t119 - t121;
        const P t123 = t113 - t114;
        const P t124 = part<0>(t10);
        const P t125 = c[4] * t22;
        const P t126 = t124 - t125;
        const P t127 = c[5] * t46;
        const P t128 = t126 - t127;
        const P t129 = c[5] * t22;
        const P t130 = t124 - t129;
        const P t131 = c[3] * t46;
        const P t132 = t130 + t131;
        const P t133 = t120 + t124;
        io.pair(14, t133);
        const P t134 = t122 + t124;
        const P t135 = c[2] * t123;
        const P t136 = t106 - t135;
        const P t137 = shuffled<1, 0>(t136);
        const P t138 = flipped<0, 1>(t137);
        const P t139 = t134 + t138;
        io.pair(8, t139);
        const P t140 = t134 - t138;
        io.pair(20, t140);
        const P t141 = c[3] * t115;
        const P t142 = t128 + t141;
        const P t143 = c[0] * t123;
        const P t144 = t109 + t143;
        const P t145 = shuffled<1, 0>(t144);
        const P t146 = flipped<0, 1>(t145);
        const P t147 = t142 + t146;
        io.pair(2, t147);
        const P t148 = t142 - t146;
        io.pair(5, t148);
        const P t149 = c[4] * t115;
        const P t150 = t132 - t149;
        const P t151 = c[1] * t123;
        const P t152 = t112 - t151;
        const P t153 = shuffled<1, 0>(t152);
        const P t154 = flipped<0, 1>(t153);
        const P t155 = t150 + t154;
        io.pair(17, t155);
        const P t156 = t150 - t154;
        io.pair(11, t156);
    }
};

}  // namespace zulg
