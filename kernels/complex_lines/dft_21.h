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
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x7_10 = io.pairs(7, 10);
        const Q x14_17 = io.pairs(14, 17);
        // complex block of 3
        const Q t0 = x7_10 + x14_17;
        const Q t1 = x7_10 - x14_17;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[6] * t0;
        const Q t4 = x0_3 - t3;
        const Q t5 = Q(-c[7], c[7], -c[7], c[7]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x13_16 = io.pairs(13, 16);
        const Q x20_2 = io.pairs(20, 2);
        // complex block of 3
        const Q t9 = x13_16 + x20_2;
        const Q t10 = x13_16 - x20_2;
        const Q x6_9 = io.pairs(6, 9);
        const Q t11 = t9 + x6_9;
        const Q t12 = c[6] * t9;
        const Q t13 = x6_9 - t12;
        const Q t14 = Q(-c[7], c[7], -c[7], c[7]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x19_1 = io.pairs(19, 1);
        const Q x5_8 = io.pairs(5, 8);
        // complex block of 3
        const Q t18 = x19_1 + x5_8;
        const Q t19 = x19_1 - x5_8;
        const Q x12_15 = io.pairs(12, 15);
        const Q t20 = t18 + x12_15;
        const Q t21 = c[6] * t18;
        const Q t22 = x12_15 - t21;
        const Q t23 = Q(-c[7], c[7], -c[7], c[7]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        const P x4 = io.pair(4);
        const P x11 = io.pair(11);
        // complex block of 3
        const P t27 = x4 + x11;
        const P t28 = x4 - x11;
        const P x18 = io.pair(18);
        const P t29 = t27 + x18;
        const P t30 = c[6] * t27;
        const P t31 = x18 - t30;
        const P t32 = P(-c[7], c[7]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const Q t36 = shuffled<2, 3, 6, 7>(t2, t7);
        const Q t37 = joined(t29, t34);
        // complex block of 7, multiplier 3
        const Q t38 = t36 + t37;
        const Q t39 = t36 - t37;
        const Q t40 = shuffled<2, 3, 6, 7>(t20, t25);
        const Q t41 = shuffled<0, 1, 4, 5>(t11, t16);
        const Q t42 = t40 + t41;
        const Q t43 = t40 - t41;
        const Q t44 = shuffled<0, 1, 4, 5>(t20, t25);
        const Q t45 = shuffled<2, 3, 6, 7>(t11, t16);
        const Q t46 = t44 + t45;
        const Q t47 = t44 - t45;
        const Q t48 = t38 + t42;
        const Q t49 = t48 + t46;
        const Q t50 = shuffled<0, 1, 4, 5>(t2, t7);
        const Q t51 = t49 + t50;
        io.pairs(0, 7, t51);
        const Q t52 = c[0] * t38;
        const Q t53 = c[1] * t42;
        const Q t54 = t52 - t53;
        const Q t55 = c[2] * t46;
        const Q t56 = t54 - t55;
        const Q t57 = t56 + t50;
        const Q t58 = c[3] * t39;
        const Q t59 = c[4] * t43;
        const Q t60 = t58 - t59;
        const Q t61 = c[5] * t47;
        const Q t62 = t60 - t61;
        const Q t63 = shuffled<1, 0, 3, 2>(t62);
        const Q t64 = flipped<0, 1, 0, 1>(t63);
        const Q t65 = t57 + t64;
        io.pairs(15, 1, t65);
        const Q t66 = t57 - t64;
        io.pairs(6, 13, t66);
        const Q t67 = c[1] * t38;
        const Q t68 = t50 - t67;
        const Q t69 = c[2] * t42;
        const Q t70 = t68 - t69;
        const Q t71 = c[0] * t46;
        const Q t72 = t70 + t71;
        const Q t73 = c[4] * t39;
        const Q t74 = c[5] * t43;
        const Q t75 = t73 + t74;
        const Q t76 = c[3] * t47;
        const Q t77 = t75 + t76;
        const Q t78 = shuffled<1, 0, 3, 2>(t77);
        const Q t79 = flipped<0, 1, 0, 1>(t78);
        const Q t80 = t72 + t79;
        io.pairs(9, 16, t80);
        const Q t81 = t72 - t79;
        io.pairs(12, 19, t81);
        const Q t82 = c[2] * t38;
        const Q t83 = t50 - t82;
        const Q t84 = c[0] * t42;
        const Q t85 = t83 + t84;
        const Q t86 = c[1] * t46;
        const Q t87 = t85 - t86;
        const Q t88 = c[5] * t39;
        const Q t89 = c[3] * t43;
        const Q t90 = t88 + t89;
        const Q t91 = c[4] * t47;
        const Q t92 = t90 - t91;
        const Q t93 = shuffled<1, 0, 3, 2>(t92);
        const Q t94 = flipped<0, 1, 0, 1>(t93);
        const Q t95 = t87 + t94;
        io.pairs(3, 10, t95);
        const Q t96 = t87 - t94;
        io.pairs(18, 4, t96);
        const P t97 = part<1>(t8);
        // complex block of 7, multiplier 3
        const P t98 = t97 + t35;
        const P t99 = t97 - t35;
        const P t100 = part<1>(t26);
        const P t101 = part<0>(t17);
        const P t102 = t100 + t101;
        const P t103 = t100 - t101;
        const P t104 = part<0>(t26);
        const P t105 = part<1>(t17);
        const P t106 = t104 + t105;
        const P t107 = t104 - t105;
        const P t108 = t98 + t102;
        const P t109 = t108 + t106;
        const P t110 = part<0>(t8);
        const P t111 = t109 + t110;
        io.pair(14, t111);
        const P t112 = c[0] * t98;
        const P t113 = c[1] * t102;
        const P t114 = t112 - t113;
        const P t115 = c[2] * t106;
        const P t116 = t114 - t115;
        const P t117 = t116 + t110;
        const P t118 = c[3] * t99;
        const P t119 = c[4] * t103;
        const P t120 = t118 - t119;
        const P t121 = c[5] * t107;
        const P t122 = t120 - t121;
        const P t123 = shuffled<1, 0>(t122);
        const P t124 = flipped<0, 1>(t123);
        const P t125 = t117 + t124;
        io.pair(8, t125);
        const P t126 = t117 - t124;
        io.pair(20, t126);
        const P t127 = c[1] * t98;
        const P t128 = t110 - t127;
        const P t129 = c[2] * t102;
        const P t130 = t128 - t129;
        const P t131 = c[0] * t106;
        const P t132 = t130 + t131;
        const P t133 = c[4] * t99;
        const P t134 = c[5] * t103;
        const P t135 = t133 + t134;
        const P t136 = c[3] * t107;
        const P t137 = t135 + t136;
        const P t138 = shuffled<1, 0>(t137);
        const P t139 = flipped<0, 1>(t138);
        const P t140 = t132 + t139;
        io.pair(2, t140);
        const P t141 = t132 - t139;
        io.pair(5, t141);
        const P t142 = c[2] * t98;
        const P t143 = t110 - t142;
        const P t144 = c[0] * t102;
        const P t145 = t143 + t144;
        const P t146 = c[1] * t106;
        const P t147 = t145 - t146;
        const P t148 = c[5] * t99;
        const P t149 = c[3] * t103;
        const P t150 = t148 + t149;
        const P t151 = c[4] * t107;
        const P t152 = t150 - t151;
        const P t153 = shuffled<1, 0>(t152);
        const P t154 = flipped<0, 1>(t153);
        const P t155 = t147 + t154;
        io.pair(17, t155);
        const P t156 = t147 - t154;
        io.pair(11, t156);
    }
};

}  // namespace zulg
