// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 21.
// Complex DFT of 21 points, prime-factor, order 3, 7; two lines of a stage to a register.
// 42 sums, 42 differences, 44 products of registers, which do the 442 steps of the graph, those with
// `scale` included; 27 shuffles, 6 changes of sign.
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
        const Q x7_1 = io.pairs(7, 1);
        const Q x14_8 = io.pairs(14, 8);
        // complex block of 3
        const Q t0 = x7_1 + x14_8;
        const Q t1 = x7_1 - x14_8;
        const Q x19_13 = io.pairs(19, 13);
        const Q x5_20 = io.pairs(5, 20);
        // complex block of 3
        const Q t2 = x19_13 + x5_20;
        const Q t3 = x19_13 - x5_20;
        const Q x12_6 = io.pairs(12, 6);
        const Q t4 = t2 + x12_6;
        const Q t5 = c[6] * t2;
        const Q t6 = x12_6 - t5;
        const Q t7 = Q(-c[7], c[7], -c[7], c[7]) * t3;
        const Q t8 = shuffled<1, 0, 3, 2>(t7);
        const Q t9 = t6 + t8;
        const Q t10 = t6 - t8;
        const Q x0_15 = io.pairs(0, 15);
        // complex block of 3
        const Q t11 = t0 + x0_15;
        const Q t12 = c[6] * t0;
        const Q t13 = x0_15 - t12;
        const Q t14 = Q(-c[7], c[7], -c[7], c[7]) * t1;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q t18 = shuffled<2, 3, 6, 7>(t11, t16);
        const Q t19 = shuffled<2, 3, 6, 7>(t4, t9);
        // complex block of 7, multiplier 3
        const Q t20 = t18 + t19;
        const P t21 = part<1>(t17);
        const P t22 = part<1>(t10);
        // complex block of 7, multiplier 3
        const P t23 = t21 + t22;
        const Q x16_10 = io.pairs(16, 10);
        const Q x2_17 = io.pairs(2, 17);
        // complex block of 3
        const Q t24 = x16_10 + x2_17;
        const Q t25 = x16_10 - x2_17;
        const P x4 = io.pair(4);
        const P x11 = io.pair(11);
        // complex block of 3
        const P t26 = x4 + x11;
        const P t27 = x4 - x11;
        const Q x9_3 = io.pairs(9, 3);
        // complex block of 3
        const Q t28 = t24 + x9_3;
        const Q t29 = c[6] * t24;
        const Q t30 = x9_3 - t29;
        const Q t31 = Q(-c[7], c[7], -c[7], c[7]) * t25;
        const Q t32 = shuffled<1, 0, 3, 2>(t31);
        const Q t33 = t30 + t32;
        const Q t34 = t30 - t32;
        const P x18 = io.pair(18);
        // complex block of 3
        const P t35 = t26 + x18;
        const P t36 = c[6] * t26;
        const P t37 = x18 - t36;
        const P t38 = P(-c[7], c[7]) * t27;
        const P t39 = shuffled<1, 0>(t38);
        const P t40 = t37 + t39;
        const P t41 = t37 - t39;
        const Q t42 = shuffled<2, 3, 6, 7>(t28, t33);
        const Q t43 = joined(t35, t40);
        // complex block of 7, multiplier 3
        const Q t44 = t42 + t43;
        const P t45 = part<1>(t34);
        // complex block of 7, multiplier 3
        const P t46 = t45 + t41;
        // complex block of 7, multiplier 3
        const Q t47 = t42 - t43;
        const Q t48 = t18 - t19;
        const Q t49 = c[0] * t47;
        const Q t50 = c[1] * t48;
        const Q t51 = t49 - t50;
        const Q t52 = c[1] * t47;
        const Q t53 = c[2] * t48;
        const Q t54 = t52 + t53;
        const Q t55 = c[2] * t47;
        const Q t56 = c[0] * t48;
        const Q t57 = t55 + t56;
        const Q t58 = shuffled<0, 1, 4, 5>(t4, t9);
        const Q t59 = shuffled<0, 1, 4, 5>(t28, t33);
        const Q t60 = t58 + t59;
        const Q t61 = t44 + t20;
        const Q t62 = c[3] * t44;
        const Q t63 = c[4] * t20;
        const Q t64 = t62 - t63;
        const Q t65 = t61 + t60;
        const Q t66 = c[5] * t60;
        const Q t67 = t64 - t66;
        const Q t68 = t58 - t59;
        const Q t69 = shuffled<0, 1, 4, 5>(t11, t16);
        const Q t70 = c[4] * t44;
        const Q t71 = t69 - t70;
        const Q t72 = c[5] * t20;
        const Q t73 = t71 - t72;
        const Q t74 = c[5] * t44;
        const Q t75 = t69 - t74;
        const Q t76 = c[3] * t20;
        const Q t77 = t75 + t76;
        const Q t78 = t65 + t69;
        const Q t79 = t67 + t69;
        const Q t80 = c[2] * t68;
        const Q t81 = t51 - t80;
        const Q t82 = shuffled<1, 0, 3, 2>(t81);
        const Q t83 = flipped<0, 1, 0, 1>(t82);
        const Q t84 = t79 + t83;
        const Q t85 = shuffled<0, 1, 6, 7>(t78, t84);
        io.pairs(0, 1, t85);
        const Q t86 = t79 - t83;
        const Q t87 = shuffled<0, 1, 6, 7>(t86, t78);
        io.pairs(6, 7, t87);
        const Q t88 = c[3] * t60;
        const Q t89 = t73 + t88;
        const Q t90 = c[0] * t68;
        const Q t91 = t54 + t90;
        const Q t92 = shuffled<1, 0, 3, 2>(t91);
        const Q t93 = flipped<0, 1, 0, 1>(t92);
        const Q t94 = t89 + t93;
        const Q t95 = shuffled<0, 1, 6, 7>(t84, t94);
        io.pairs(15, 16, t95);
        const Q t96 = t89 - t93;
        const Q t97 = shuffled<0, 1, 6, 7>(t96, t86);
        io.pairs(12, 13, t97);
        const Q t98 = c[4] * t60;
        const Q t99 = t77 - t98;
        const Q t100 = c[1] * t68;
        const Q t101 = t57 - t100;
        const Q t102 = shuffled<1, 0, 3, 2>(t101);
        const Q t103 = flipped<0, 1, 0, 1>(t102);
        const Q t104 = t99 + t103;
        const Q t105 = shuffled<0, 1, 6, 7>(t94, t104);
        io.pairs(9, 10, t105);
        const Q t106 = t99 - t103;
        const Q t107 = shuffled<0, 1, 6, 7>(t104, t106);
        io.pairs(3, 4, t107);
        const Q t108 = shuffled<0, 1, 6, 7>(t106, t96);
        io.pairs(18, 19, t108);
        // complex block of 7, multiplier 3
        const P t109 = t45 - t41;
        const P t110 = t21 - t22;
        const P t111 = c[0] * t109;
        const P t112 = c[1] * t110;
        const P t113 = t111 - t112;
        const P t114 = c[1] * t109;
        const P t115 = c[2] * t110;
        const P t116 = t114 + t115;
        const P t117 = c[2] * t109;
        const P t118 = c[0] * t110;
        const P t119 = t117 + t118;
        const P t120 = part<0>(t10);
        const P t121 = part<0>(t34);
        const P t122 = t120 + t121;
        const P t123 = t46 + t23;
        const P t124 = c[3] * t46;
        const P t125 = c[4] * t23;
        const P t126 = t124 - t125;
        const P t127 = t123 + t122;
        const P t128 = c[5] * t122;
        const P t129 = t126 - t128;
        const P t130 = t120 - t121;
        const P t131 = part<0>(t17);
        const P t132 = c[4] * t46;
        const P t133 = t131 - t132;
        const P t134 = c[5] * t23;
        const P t135 = t133 - t134;
        const P t136 = c[5] * t46;
        const P t137 = t131 - t136;
        const P t138 = c[3] * t23;
        const P t139 = t137 + t138;
        const P t140 = t127 + t131;
        io.pair(14, t140);
        const P t141 = t129 + t131;
        const P t142 = c[2] * t130;
        const P t143 = t113 - t142;
        const P t144 = shuffled<1, 0>(t143);
        const P t145 = flipped<0, 1>(t144);
        const P t146 = t141 + t145;
        io.pair(8, t146);
        const P t147 = t141 - t145;
        io.pair(20, t147);
        const P t148 = c[3] * t122;
        const P t149 = t135 + t148;
        const P t150 = c[0] * t130;
        const P t151 = t116 + t150;
        const P t152 = shuffled<1, 0>(t151);
        const P t153 = flipped<0, 1>(t152);
        const P t154 = t149 + t153;
        io.pair(2, t154);
        const P t155 = t149 - t153;
        io.pair(5, t155);
        const P t156 = c[4] * t122;
        const P t157 = t139 - t156;
        const P t158 = c[1] * t130;
        const P t159 = t119 - t158;
        const P t160 = shuffled<1, 0>(t159);
        const P t161 = flipped<0, 1>(t160);
        const P t162 = t157 + t161;
        io.pair(17, t162);
        const P t163 = t157 - t161;
        io.pair(11, t163);
    }
};

}  // namespace zulg
