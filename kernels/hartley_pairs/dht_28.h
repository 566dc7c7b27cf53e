// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 28.
// Hartley transform of 28 points, form I; two lanes to a register.
// 45 sums, 45 differences, 36 products of registers, which do the 276 steps of the graph, those with
// `scale` included; 29 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<28> {
    static constexpr int steps = 276;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x27_26 = io.in(27, 26);
        // input stage
        const P t0 = x1_2 + x27_26;
        const P t1 = x1_2 - x27_26;
        const P x3_4 = io.in(3, 4);
        const P x25_24 = io.in(25, 24);
        const P t2 = x3_4 + x25_24;
        const P t3 = x3_4 - x25_24;
        const P x5_6 = io.in(5, 6);
        const P x23_22 = io.in(23, 22);
        const P t4 = x5_6 + x23_22;
        const P t5 = x5_6 - x23_22;
        const P x7_8 = io.in(7, 8);
        const P x21_20 = io.in(21, 20);
        const P t6 = x7_8 + x21_20;
        const P t7 = x7_8 - x21_20;
        const P x9_10 = io.in(9, 10);
        const P x19_18 = io.in(19, 18);
        const P t8 = x9_10 + x19_18;
        const P t9 = x9_10 - x19_18;
        const P x11_12 = io.in(11, 12);
        const P x17_16 = io.in(17, 16);
        const P t10 = x11_12 + x17_16;
        const P t11 = x11_12 - x17_16;
        const V x13 = io.in(13);
        const V x15 = io.in(15);
        const V t12 = x13 + x15;
        const V t13 = x13 - x15;
        const V x0 = io.in(0);
        const V x14 = io.in(14);
        // spectrum block of 2
        const V t14 = x0 + x14;
        const V t15 = x0 - x14;
        const P t16 = joined(t14, t15);
        const P t17 = shuffled<0, 2>(t6, t7);
        // spectrum block of 2
        const P t18 = t16 + t17;
        const P t19 = t16 - t17;
        const P t20 = shuffled<1, 3>(t2, t3);
        const P t21 = shuffled<1, 3>(t8, t9);
        const P t22 = flipped<0, 1>(t21);
        // complex block of 2
        const P t23 = t20 + t22;
        const P t24 = t20 - t22;
        const P t25 = shuffled<0, 2>(t10, t11);
        const P t26 = shuffled<0, 2>(t2, t3);
        const P t27 = flipped<0, 1>(t26);
        // complex block of 2
        const P t28 = t25 + t27;
        const P t29 = t25 - t27;
        // complex block of 2
        const P t30 = t23 + t28;
        const P t31 = t23 - t28;
        const P t32 = shuffled<1, 0>(t29);
        const P t33 = flipped<0, 1>(t32);
        // complex block of 2
        const P t34 = t24 + t33;
        const P t35 = t24 - t33;
        const P t36 = shuffled<1, 3>(t6, t7);
        const P t37 = shuffled<1, 3>(t4, t5);
        const P t38 = flipped<0, 1>(t37);
        // complex block of 2
        const P t39 = t36 + t38;
        const P t40 = t36 - t38;
        const V t41 = part<0>(t1);
        const P t42 = joined(t12, t41);
        const V t43 = part<0>(t0);
        const V t44 = flipped<1>(t13);
        const P t45 = joined(t43, t44);
        // complex block of 2
        const P t46 = t42 + t45;
        const P t47 = t42 - t45;
        // complex block of 2
        const P t48 = t39 + t46;
        const P t49 = t39 - t46;
        const P t50 = shuffled<1, 0>(t47);
        // complex block of 2
        const P t51 = t40 - t50;
        const P t52 = t40 + t50;
        const P t53 = shuffled<1, 3>(t10, t11);
        const P t54 = shuffled<1, 3>(t0, t1);
        const P t55 = flipped<0, 1>(t54);
        // complex block of 2
        const P t56 = t53 + t55;
        const P t57 = t53 - t55;
        const P t58 = shuffled<0, 2>(t8, t5);
        const P t59 = shuffled<0, 2>(t4, t9);
        const P t60 = flipped<0, 1>(t59);
        // complex block of 2
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        // complex block of 2
        const P t63 = t56 + t61;
        const P t64 = t56 - t61;
        const P t65 = shuffled<1, 0>(t62);
        // complex block of 2
        const P t66 = t57 - t65;
        const P t67 = t57 + t65;
        const P t68 = shuffled<0, 2>(t30, t34);
        const P t69 = shuffled<0, 2>(t48, t51);
        // spectrum block of 7, multiplier 4
        const P t70 = t68 + t69;
        const P t71 = shuffled<0, 2>(t63, t66);
        const P t72 = t70 + t71;
        const P t73 = t72 + t18;
        io.out(0, 21, t73);
        const P t74 = c[0] * t68;
        const P t75 = c[1] * t69;
        const P t76 = t74 - t75;
        const P t77 = c[2] * t71;
        const P t78 = t76 - t77;
        const P t79 = t78 + t18;
        const P t80 = shuffled<1, 3>(t30, t34);
        const P t81 = c[3] * t80;
        const P t82 = shuffled<1, 3>(t48, t51);
        const P t83 = c[4] * t82;
        const P t84 = t81 + t83;
        const P t85 = shuffled<1, 3>(t63, t66);
        const P t86 = c[5] * t85;
        const P t87 = t84 + t86;
        const P t88 = t79 - t87;
        io.out(20, 13, t88);
        const P t89 = t79 + t87;
        io.out(8, 1, t89);
        const P t90 = c[1] * t68;
        const P t91 = t18 - t90;
        const P t92 = c[2] * t69;
        const P t93 = t91 - t92;
        const P t94 = c[0] * t71;
        const P t95 = t93 + t94;
        const P t96 = c[4] * t80;
        const P t97 = c[5] * t82;
        const P t98 = t96 - t97;
        const P t99 = c[3] * t85;
        const P t100 = t98 - t99;
        const P t101 = t95 - t100;
        io.out(12, 5, t101);
        const P t102 = t95 + t100;
        io.out(16, 9, t102);
        const P t103 = c[2] * t68;
        const P t104 = t18 - t103;
        const P t105 = c[0] * t69;
        const P t106 = t104 + t105;
        const P t107 = c[1] * t71;
        const P t108 = t106 - t107;
        const P t109 = c[5] * t80;
        const P t110 = c[3] * t82;
        const P t111 = t109 - t110;
        const P t112 = c[4] * t85;
        const P t113 = t111 + t112;
        const P t114 = t108 - t113;
        io.out(4, 25, t114);
        const P t115 = t108 + t113;
        io.out(24, 17, t115);
        const P t116 = shuffled<0, 2>(t31, t35);
        const P t117 = shuffled<0, 2>(t49, t52);
        // spectrum block of 7, multiplier 4
        const P t118 = t116 + t117;
        const P t119 = shuffled<0, 2>(t64, t67);
        const P t120 = t118 + t119;
        const P t121 = t120 + t19;
        io.out(14, 7, t121);
        const P t122 = c[0] * t116;
        const P t123 = c[1] * t117;
        const P t124 = t122 - t123;
        const P t125 = c[2] * t119;
        const P t126 = t124 - t125;
        const P t127 = t126 + t19;
        const P t128 = shuffled<1, 3>(t31, t35);
        const P t129 = c[3] * t128;
        const P t130 = shuffled<1, 3>(t49, t52);
        const P t131 = c[4] * t130;
        const P t132 = t129 + t131;
        const P t133 = shuffled<1, 3>(t64, t67);
        const P t134 = c[5] * t133;
        const P t135 = t132 + t134;
        const P t136 = t127 - t135;
        io.out(6, 27, t136);
        const P t137 = t127 + t135;
        io.out(22, 15, t137);
        const P t138 = c[1] * t116;
        const P t139 = t19 - t138;
        const P t140 = c[2] * t117;
        const P t141 = t139 - t140;
        const P t142 = c[0] * t119;
        const P t143 = t141 + t142;
        const P t144 = c[4] * t128;
        const P t145 = c[5] * t130;
        const P t146 = t144 - t145;
        const P t147 = c[3] * t133;
        const P t148 = t146 - t147;
        const P t149 = t143 - t148;
        io.out(26, 19, t149);
        const P t150 = t143 + t148;
        io.out(2, 23, t150);
        const P t151 = c[2] * t116;
        const P t152 = t19 - t151;
        const P t153 = c[0] * t117;
        const P t154 = t152 + t153;
        const P t155 = c[1] * t119;
        const P t156 = t154 - t155;
        const P t157 = c[5] * t128;
        const P t158 = c[3] * t130;
        const P t159 = t157 - t158;
        const P t160 = c[4] * t133;
        const P t161 = t159 + t160;
        const P t162 = t156 - t161;
        io.out(18, 11, t162);
        const P t163 = t156 + t161;
        io.out(10, 3, t163);
    }
};

}  // namespace zulg
