// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 30.
// Inverse DFT to 30 real points, prime-factor 3, 5, 2; two lanes to a register.
// 47 sums, 33 differences, 47 products of registers, which do the 282 steps of the graph, those with
// `scale` included; 30 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<30> {
    static constexpr int steps = 282;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.5,  // c[5]: -cos 2 pi 1/3
        0.8660254037844386,  // c[6]: sin 2 pi 1/3
        1.7320508075688772,  // c[7]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x13 = io.pair(13);
        // doubled bins
        const P t0 = c[0] * x13;
        const P x7 = io.pair(7);
        const P t1 = P(c[0], -c[0]) * x7;
        // complex block of 3
        const P t2 = t0 + t1;
        const P t3 = t0 - t1;
        const P x3 = io.pair(3);
        // doubled bins
        const P t4 = c[0] * x3;
        // complex block of 3
        const P t5 = t2 + t4;
        const P t6 = c[5] * t2;
        const P t7 = t4 - t6;
        const P t8 = P(c[6], -c[6]) * t3;
        const P t9 = shuffled<1, 0>(t8);
        const P t10 = t7 + t9;
        const P t11 = t7 - t9;
        const P x14 = io.pair(14);
        // doubled bins
        const P t12 = c[0] * x14;
        const P x4 = io.pair(4);
        const P t13 = c[0] * x4;
        // complex block of 3
        const P t14 = t12 + t13;
        const P t15 = shuffled<0, 3>(t12, t13);
        const P t16 = shuffled<0, 3>(t13, t12);
        const P t17 = t15 - t16;
        const P x6 = io.pair(6);
        // doubled bins
        const P t18 = c[0] * x6;
        const P t19 = flipped<0, 1>(t14);
        // complex block of 3
        const P t20 = t18 + t19;
        const P t21 = P(-c[5], c[5]) * t14;
        const P t22 = t21 + t18;
        const P t23 = P(c[6], -c[6]) * t17;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P x11 = io.pair(11);
        // doubled bins
        const P t27 = c[0] * x11;
        const P x1 = io.pair(1);
        const P t28 = c[0] * x1;
        // complex block of 3
        const P t29 = t27 + t28;
        const P t30 = shuffled<0, 3>(t27, t28);
        const P t31 = shuffled<0, 3>(t28, t27);
        const P t32 = t30 - t31;
        const P x9 = io.pair(9);
        // doubled bins
        const P t33 = c[0] * x9;
        const P t34 = flipped<0, 1>(t29);
        // complex block of 3
        const P t35 = t33 + t34;
        const P t36 = P(-c[5], c[5]) * t29;
        const P t37 = t36 + t33;
        const P t38 = P(c[6], -c[6]) * t32;
        const P t39 = shuffled<1, 0>(t38);
        const P t40 = t37 + t39;
        const P t41 = t37 - t39;
        const P x2 = io.pair(2);
        // doubled bins
        const P t42 = c[0] * x2;
        const P x8 = io.pair(8);
        const P t43 = P(c[0], -c[0]) * x8;
        // complex block of 3
        const P t44 = t42 + t43;
        const P t45 = flipped<0, 1>(t43);
        const P t46 = flipped<1, 0>(t42);
        const P t47 = t45 + t46;
        const P x12 = io.pair(12);
        // doubled bins
        const P t48 = c[0] * x12;
        // complex block of 3
        const P t49 = t44 + t48;
        const P t50 = c[5] * t44;
        const P t51 = t48 - t50;
        const P t52 = c[6] * t47;
        const P t53 = shuffled<1, 0>(t52);
        const P t54 = t51 + t53;
        const P t55 = t51 - t53;
        const P x10 = io.pair(10);
        const P x5 = io.pair(5);
        const P t56 = shuffled<0, 2>(x10, x5);
        // doubled bins
        const P t57 = c[0] * t56;
        const V x0r = io.re(0);
        const V x15r = io.re(15);
        const P t58 = joined(x0r, x15r);
        // spectrum block of 3
        const P t59 = t57 + t58;
        const P t60 = c[5] * t57;
        const P t61 = t58 - t60;
        const P t62 = shuffled<1, 3>(x10, x5);
        const P t63 = P(-c[7], c[7]) * t62;
        const P t64 = t61 + t63;
        const P t65 = t61 - t63;
        const P t66 = shuffled<0, 2>(t20, t25);
        const P t67 = shuffled<0, 2>(t49, t54);
        // spectrum block of 5
        const P t68 = t66 + t67;
        const P t69 = shuffled<0, 2>(t59, t64);
        const P t70 = t68 + t69;
        const P t71 = c[1] * t66;
        const P t72 = c[2] * t67;
        const P t73 = t71 - t72;
        const P t74 = t73 + t69;
        const P t75 = shuffled<1, 3>(t20, t25);
        const P t76 = c[3] * t75;
        const P t77 = shuffled<1, 3>(t49, t54);
        const P t78 = c[4] * t77;
        const P t79 = t76 + t78;
        const P t80 = t74 - t79;
        const P t81 = t74 + t79;
        const P t82 = c[2] * t66;
        const P t83 = t69 - t82;
        const P t84 = c[1] * t67;
        const P t85 = t83 + t84;
        const P t86 = c[4] * t75;
        const P t87 = c[3] * t77;
        const P t88 = t86 - t87;
        const P t89 = t85 - t88;
        const P t90 = t85 + t88;
        const P t91 = shuffled<0, 2>(t35, t40);
        const P t92 = shuffled<0, 2>(t5, t10);
        // spectrum block of 5
        const P t93 = t91 + t92;
        const P t94 = shuffled<1, 3>(t59, t64);
        const P t95 = t93 + t94;
        const P t96 = c[1] * t91;
        const P t97 = c[2] * t92;
        const P t98 = t96 - t97;
        const P t99 = t98 + t94;
        const P t100 = shuffled<1, 3>(t35, t40);
        const P t101 = c[3] * t100;
        const P t102 = shuffled<1, 3>(t5, t10);
        const P t103 = c[4] * t102;
        const P t104 = t101 + t103;
        const P t105 = t99 + t104;
        const P t106 = t99 - t104;
        const P t107 = c[2] * t91;
        const P t108 = t94 - t107;
        const P t109 = c[1] * t92;
        const P t110 = t108 + t109;
        const P t111 = c[3] * t102;
        const P t112 = c[4] * t100;
        const P t113 = t111 - t112;
        const P t114 = t110 - t113;
        const P t115 = t110 + t113;
        // spectrum block of 2
        const P t116 = t70 + t95;
        io.out(0, 10, t116);
        const P t117 = t70 - t95;
        io.out(15, 25, t117);
        // spectrum block of 2
        const P t118 = t80 + t105;
        io.out(6, 16, t118);
        const P t119 = t80 - t105;
        io.out(21, 1, t119);
        // spectrum block of 2
        const P t120 = t89 + t114;
        io.out(12, 22, t120);
        const P t121 = t89 - t114;
        io.out(27, 7, t121);
        // spectrum block of 2
        const P t122 = t90 + t115;
        io.out(18, 28, t122);
        const P t123 = t90 - t115;
        io.out(3, 13, t123);
        // spectrum block of 2
        const P t124 = t81 + t106;
        io.out(24, 4, t124);
        const P t125 = t81 - t106;
        io.out(9, 19, t125);
        const P t126 = shuffled<0, 2>(t26, t41);
        const P t127 = shuffled<0, 2>(t55, t11);
        // spectrum block of 5
        const P t128 = t126 + t127;
        const P t129 = t128 + t65;
        const P t130 = c[1] * t126;
        const P t131 = c[2] * t127;
        const P t132 = t130 - t131;
        const P t133 = t132 + t65;
        const P t134 = shuffled<1, 3>(t26, t41);
        const P t135 = c[3] * t134;
        const P t136 = shuffled<1, 3>(t55, t11);
        const P t137 = c[4] * t136;
        const P t138 = t135 + t137;
        const P t139 = flipped<1, 0>(t138);
        const P t140 = t133 + t139;
        const P t141 = t133 - t139;
        const P t142 = c[2] * t126;
        const P t143 = t65 - t142;
        const P t144 = c[1] * t127;
        const P t145 = t143 + t144;
        const P t146 = P(-c[3], c[3]) * t136;
        const P t147 = P(c[4], -c[4]) * t134;
        const P t148 = t146 + t147;
        const P t149 = t145 - t148;
        const P t150 = t145 + t148;
        const P t151 = shuffled<0, 2>(t129, t140);
        const P t152 = shuffled<1, 3>(t129, t140);
        // spectrum block of 2
        const P t153 = t151 + t152;
        io.out(20, 26, t153);
        const P t154 = t151 - t152;
        io.out(5, 11, t154);
        const P t155 = shuffled<0, 2>(t149, t150);
        const P t156 = shuffled<1, 3>(t149, t150);
        // spectrum block of 2
        const P t157 = t155 + t156;
        io.out(2, 8, t157);
        const P t158 = t155 - t156;
        io.out(17, 23, t158);
        const V t159 = part<0>(t141);
        const V t160 = part<1>(t141);
        // spectrum block of 2
        const V t161 = t159 + t160;
        io.out(14, t161);
        const V t162 = t159 - t160;
        io.out(29, t162);
    }
};

}  // namespace zulg
