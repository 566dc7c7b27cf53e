// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 30.
// Hartley transform of 30 points, form I; two lanes to a register.
// 53 sums, 41 differences, 34 products of registers, which do the 284 steps of the graph, those with
// `scale` included; 41 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<30> {
    static constexpr int steps = 284;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x29_28 = io.in(29, 28);
        // input stage
        const P t0 = x1_2 + x29_28;
        const P t1 = x1_2 - x29_28;
        const P x3_4 = io.in(3, 4);
        const P x27_26 = io.in(27, 26);
        const P t2 = x3_4 + x27_26;
        const P t3 = x3_4 - x27_26;
        const P x5_6 = io.in(5, 6);
        const P x25_24 = io.in(25, 24);
        const P t4 = x5_6 + x25_24;
        const P t5 = x5_6 - x25_24;
        const P x7_8 = io.in(7, 8);
        const P x23_22 = io.in(23, 22);
        const P t6 = x7_8 + x23_22;
        const P t7 = x7_8 - x23_22;
        const P x9_10 = io.in(9, 10);
        const P x21_20 = io.in(21, 20);
        const P t8 = x9_10 + x21_20;
        const P t9 = x9_10 - x21_20;
        const P x11_12 = io.in(11, 12);
        const P x19_18 = io.in(19, 18);
        const P t10 = x11_12 + x19_18;
        const P t11 = x11_12 - x19_18;
        const P x13_14 = io.in(13, 14);
        const P x17_16 = io.in(17, 16);
        const P t12 = x13_14 + x17_16;
        const P t13 = x13_14 - x17_16;
        const P t14 = shuffled<0, 2>(t12, t13);
        const P t15 = shuffled<0, 2>(t6, t7);
        const P t16 = flipped<0, 1>(t15);
        // complex block of 3
        const P t17 = t14 + t16;
        const P t18 = t14 - t16;
        const P t19 = shuffled<0, 2>(t2, t3);
        const P t20 = t17 + t19;
        const P t21 = c[4] * t17;
        const P t22 = t19 - t21;
        const P t23 = P(c[5], -c[5]) * t18;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P t27 = shuffled<1, 3>(t12, t13);
        const P t28 = shuffled<1, 3>(t2, t3);
        // complex block of 3
        const P t29 = t27 + t28;
        const P t30 = shuffled<0, 3>(t27, t28);
        const P t31 = shuffled<0, 3>(t28, t27);
        const P t32 = t30 - t31;
        const P t33 = shuffled<1, 3>(t4, t5);
        const P t34 = flipped<0, 1>(t29);
        const P t35 = t33 + t34;
        const P t36 = P(-c[4], c[4]) * t29;
        const P t37 = t36 + t33;
        const P t38 = P(c[5], -c[5]) * t32;
        const P t39 = shuffled<1, 0>(t38);
        const P t40 = t37 + t39;
        const P t41 = t37 - t39;
        const P t42 = shuffled<0, 2>(t10, t11);
        const P t43 = shuffled<0, 2>(t0, t1);
        // complex block of 3
        const P t44 = t42 + t43;
        const P t45 = shuffled<0, 3>(t42, t43);
        const P t46 = shuffled<0, 3>(t43, t42);
        const P t47 = t45 - t46;
        const P t48 = shuffled<0, 2>(t8, t9);
        const P t49 = flipped<0, 1>(t44);
        const P t50 = t48 + t49;
        const P t51 = P(-c[4], c[4]) * t44;
        const P t52 = t51 + t48;
        const P t53 = P(c[5], -c[5]) * t47;
        const P t54 = shuffled<1, 0>(t53);
        const P t55 = t52 + t54;
        const P t56 = t52 - t54;
        const P t57 = shuffled<1, 3>(t6, t1);
        const P t58 = shuffled<1, 3>(t0, t7);
        const P t59 = flipped<0, 1>(t58);
        // complex block of 3
        const P t60 = t57 + t59;
        const P t61 = t57 - t59;
        const P t62 = shuffled<1, 3>(t10, t11);
        const P t63 = t60 + t62;
        const P t64 = c[4] * t60;
        const P t65 = t62 - t64;
        const P t66 = c[5] * t61;
        const P t67 = shuffled<1, 0>(t66);
        const P t68 = t65 + t67;
        const P t69 = t65 - t67;
        const P t70 = shuffled<1, 2>(t8, t4);
        const P x0_15 = io.in(0, 15);
        // spectrum block of 3
        const P t71 = t70 + x0_15;
        const P t72 = c[4] * t70;
        const P t73 = x0_15 - t72;
        const P t74 = shuffled<1, 2>(t9, t5);
        const P t75 = P(-c[5], c[5]) * t74;
        const P t76 = t73 + t75;
        const P t77 = t73 - t75;
        const P t78 = shuffled<0, 2>(t35, t40);
        const P t79 = shuffled<0, 2>(t63, t68);
        // spectrum block of 5
        const P t80 = t78 + t79;
        const P t81 = shuffled<0, 2>(t71, t76);
        const P t82 = t80 + t81;
        const P t83 = c[0] * t78;
        const P t84 = c[1] * t79;
        const P t85 = t83 - t84;
        const P t86 = t85 + t81;
        const P t87 = shuffled<1, 3>(t35, t40);
        const P t88 = c[2] * t87;
        const P t89 = shuffled<1, 3>(t63, t68);
        const P t90 = c[3] * t89;
        const P t91 = t88 + t90;
        const P t92 = t86 - t91;
        const P t93 = t86 + t91;
        const P t94 = c[1] * t78;
        const P t95 = t81 - t94;
        const P t96 = c[0] * t79;
        const P t97 = t95 + t96;
        const P t98 = c[3] * t87;
        const P t99 = c[2] * t89;
        const P t100 = t98 - t99;
        const P t101 = t97 - t100;
        const P t102 = t97 + t100;
        const P t103 = shuffled<0, 2>(t50, t55);
        const P t104 = shuffled<0, 2>(t20, t25);
        // spectrum block of 5
        const P t105 = t103 + t104;
        const P t106 = shuffled<1, 3>(t71, t76);
        const P t107 = t105 + t106;
        const P t108 = c[0] * t103;
        const P t109 = c[1] * t104;
        const P t110 = t108 - t109;
        const P t111 = t110 + t106;
        const P t112 = shuffled<1, 3>(t50, t55);
        const P t113 = c[2] * t112;
        const P t114 = shuffled<1, 3>(t20, t25);
        const P t115 = c[3] * t114;
        const P t116 = t113 + t115;
        const P t117 = t111 + t116;
        const P t118 = t111 - t116;
        const P t119 = c[1] * t103;
        const P t120 = t106 - t119;
        const P t121 = c[0] * t104;
        const P t122 = t120 + t121;
        const P t123 = c[2] * t114;
        const P t124 = c[3] * t112;
        const P t125 = t123 - t124;
        const P t126 = t122 - t125;
        const P t127 = t122 + t125;
        // spectrum block of 2
        const P t128 = t82 + t107;
        io.out(0, 20, t128);
        const P t129 = t82 - t107;
        io.out(15, 5, t129);
        // spectrum block of 2
        const P t130 = t92 + t117;
        io.out(24, 14, t130);
        const P t131 = t92 - t117;
        io.out(9, 29, t131);
        // spectrum block of 2
        const P t132 = t101 + t126;
        io.out(18, 8, t132);
        const P t133 = t101 - t126;
        io.out(3, 23, t133);
        // spectrum block of 2
        const P t134 = t102 + t127;
        io.out(12, 2, t134);
        const P t135 = t102 - t127;
        io.out(27, 17, t135);
        // spectrum block of 2
        const P t136 = t93 + t118;
        io.out(6, 26, t136);
        const P t137 = t93 - t118;
        io.out(21, 11, t137);
        const P t138 = shuffled<0, 2>(t41, t56);
        const P t139 = shuffled<0, 2>(t69, t26);
        // spectrum block of 5
        const P t140 = t138 + t139;
        const P t141 = t140 + t77;
        const P t142 = c[0] * t138;
        const P t143 = c[1] * t139;
        const P t144 = t142 - t143;
        const P t145 = t144 + t77;
        const P t146 = shuffled<1, 3>(t41, t56);
        const P t147 = c[2] * t146;
        const P t148 = shuffled<1, 3>(t69, t26);
        const P t149 = c[3] * t148;
        const P t150 = t147 + t149;
        const P t151 = flipped<1, 0>(t150);
        const P t152 = t145 + t151;
        const P t153 = t145 - t151;
        const P t154 = c[1] * t138;
        const P t155 = t77 - t154;
        const P t156 = c[0] * t139;
        const P t157 = t155 + t156;
        const P t158 = P(-c[2], c[2]) * t148;
        const P t159 = P(c[3], -c[3]) * t146;
        const P t160 = t158 + t159;
        const P t161 = t157 - t160;
        const P t162 = t157 + t160;
        const P t163 = shuffled<0, 2>(t141, t152);
        const P t164 = shuffled<1, 3>(t141, t152);
        // spectrum block of 2
        const P t165 = t163 + t164;
        io.out(10, 4, t165);
        const P t166 = t163 - t164;
        io.out(25, 19, t166);
        const P t167 = shuffled<0, 2>(t161, t162);
        const P t168 = shuffled<1, 3>(t161, t162);
        // spectrum block of 2
        const P t169 = t167 + t168;
        io.out(28, 22, t169);
        const P t170 = t167 - t168;
        io.out(13, 7, t170);
        const V t171 = part<0>(t153);
        const V t172 = part<1>(t153);
        // spectrum block of 2
        const V t173 = t171 + t172;
        io.out(16, t173);
        const V t174 = t171 - t172;
        io.out(1, t174);
    }
};

}  // namespace zulg
