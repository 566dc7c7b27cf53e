// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 36.
// Inverse DFT to 36 real points, prime-factor 4, 9; two lanes to a register.
// 52 sums, 48 differences, 53 products of registers, which do the 340 steps of the graph, those with
// `scale` included; 21 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<36> {
    static constexpr int steps = 340;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.9396926207859084,  // c[3]: -cos 2 pi 5/9
        0.3420201433256687,  // c[4]: -sin 2 pi 5/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.6427876096865394,  // c[6]: sin 2 pi 1/9
        0.29619813272602386,  // c[7]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[8]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.6634139481689384,  // c[9]: sin 2 pi 1/3 times cos 2 pi 1/9
        0.5566703992264194,  // c[10]: sin 2 pi 1/3 times sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x18r = io.re(18);
        // spectrum block of 2
        const V t0 = x0r + x18r;
        const V t1 = x0r - x18r;
        const P t2 = joined(t0, t1);
        const P x9 = io.pair(9);
        // doubled bins
        const P t3 = P(c[0], -c[0]) * x9;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x14 = io.pair(14);
        const P t7 = P(c[0], -c[0]) * x14;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x13 = io.pair(13);
        // doubled bins
        const P t10 = c[0] * x13;
        const P x5 = io.pair(5);
        const P t11 = P(c[0], -c[0]) * x5;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        // complex block of 2
        const P t14 = t8 + t12;
        const P t15 = t8 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<1, 0>(t16);
        // complex block of 2
        const P t18 = t9 + t17;
        const P t19 = t9 - t17;
        const P x8 = io.pair(8);
        // doubled bins
        const P t20 = c[0] * x8;
        const P x10 = io.pair(10);
        const P t21 = P(c[0], -c[0]) * x10;
        // complex block of 2
        const P t22 = t20 + t21;
        const P t23 = t20 - t21;
        const P x17 = io.pair(17);
        // doubled bins
        const P t24 = c[0] * x17;
        const P x1 = io.pair(1);
        const P t25 = P(c[0], -c[0]) * x1;
        // complex block of 2
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        // complex block of 2
        const P t28 = t22 + t26;
        const P t29 = t22 - t26;
        const P t30 = shuffled<1, 0>(t27);
        const P t31 = flipped<1, 0>(t30);
        // complex block of 2
        const P t32 = t23 + t31;
        const P t33 = t23 - t31;
        const P x12 = io.pair(12);
        // doubled bins
        const P t34 = c[0] * x12;
        const P x6 = io.pair(6);
        const P t35 = P(c[0], -c[0]) * x6;
        // complex block of 2
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P x3 = io.pair(3);
        // doubled bins
        const P t38 = c[0] * x3;
        const P x15 = io.pair(15);
        const P t39 = P(c[0], -c[0]) * x15;
        // complex block of 2
        const P t40 = t38 + t39;
        const P t41 = flipped<0, 1>(t39);
        const P t42 = flipped<1, 0>(t38);
        const P t43 = t41 + t42;
        // complex block of 2
        const P t44 = t36 + t40;
        const P t45 = t36 - t40;
        const P t46 = shuffled<1, 0>(t43);
        // complex block of 2
        const P t47 = t37 + t46;
        const P t48 = t37 - t46;
        const P x16 = io.pair(16);
        // doubled bins
        const P t49 = c[0] * x16;
        const P x2 = io.pair(2);
        const P t50 = P(c[0], -c[0]) * x2;
        // complex block of 2
        const P t51 = t49 + t50;
        const P t52 = t49 - t50;
        const P x7 = io.pair(7);
        // doubled bins
        const P t53 = c[0] * x7;
        const P x11 = io.pair(11);
        const P t54 = P(c[0], -c[0]) * x11;
        // complex block of 2
        const P t55 = t53 + t54;
        const P t56 = flipped<0, 1>(t54);
        const P t57 = flipped<1, 0>(t53);
        const P t58 = t56 + t57;
        // complex block of 2
        const P t59 = t51 + t55;
        const P t60 = t51 - t55;
        const P t61 = shuffled<1, 0>(t58);
        // complex block of 2
        const P t62 = t52 + t61;
        const P t63 = t52 - t61;
        const P t64 = shuffled<0, 2>(t44, t47);
        // spectrum block of 3
        const P t65 = t64 + t4;
        const P t66 = c[1] * t64;
        const P t67 = t4 - t66;
        const P t68 = shuffled<1, 3>(t44, t47);
        const P t69 = c[2] * t68;
        const P t70 = t67 - t69;
        const P t71 = t67 + t69;
        const P t72 = shuffled<1, 3>(t59, t62);
        const P t73 = shuffled<1, 3>(t28, t32);
        // complex block of 3
        const P t74 = t72 - t73;
        const P t75 = shuffled<0, 2>(t59, t62);
        const P t76 = shuffled<0, 2>(t28, t32);
        const P t77 = t75 + t76;
        const P t78 = t72 + t73;
        const P t79 = t75 - t76;
        const P t80 = shuffled<1, 3>(t14, t18);
        const P t81 = t74 + t80;
        const P t82 = shuffled<0, 2>(t14, t18);
        const P t83 = t77 + t82;
        const P t84 = c[1] * t74;
        const P t85 = t80 - t84;
        const P t86 = c[1] * t77;
        const P t87 = t82 - t86;
        const P t88 = c[2] * t79;
        const P t89 = t85 + t88;
        const P t90 = c[2] * t78;
        const P t91 = t87 - t90;
        const P t92 = t85 - t88;
        const P t93 = t87 + t90;
        // spectrum block of 9, multiplier 4
        const P t94 = c[3] * t91;
        const P t95 = c[4] * t89;
        const P t96 = t94 + t95;
        const P t97 = c[5] * t93;
        const P t98 = c[6] * t92;
        const P t99 = t97 + t98;
        // spectrum block of 3
        const P t100 = t83 + t65;
        io.out(0, 9, t100);
        const P t101 = c[1] * t83;
        const P t102 = t65 - t101;
        const P t103 = c[2] * t81;
        const P t104 = t102 - t103;
        io.out(12, 21, t104);
        const P t105 = t102 + t103;
        io.out(24, 33, t105);
        // spectrum block of 3
        const P t106 = t70 - t96;
        io.out(4, 13, t106);
        const P t107 = c[1] * t96;
        const P t108 = t107 + t70;
        const P t109 = c[7] * t91;
        const P t110 = c[8] * t89;
        const P t111 = t109 - t110;
        const P t112 = t108 - t111;
        io.out(16, 25, t112);
        const P t113 = t108 + t111;
        io.out(28, 1, t113);
        // spectrum block of 3
        const P t114 = t99 + t71;
        io.out(8, 17, t114);
        const P t115 = c[1] * t99;
        const P t116 = t71 - t115;
        const P t117 = c[9] * t92;
        const P t118 = c[10] * t93;
        const P t119 = t117 - t118;
        const P t120 = t116 - t119;
        io.out(20, 29, t120);
        const P t121 = t116 + t119;
        io.out(32, 5, t121);
        const P t122 = shuffled<0, 2>(t45, t48);
        // spectrum block of 3
        const P t123 = t122 + t5;
        const P t124 = c[1] * t122;
        const P t125 = t5 - t124;
        const P t126 = shuffled<1, 3>(t45, t48);
        const P t127 = c[2] * t126;
        const P t128 = t125 - t127;
        const P t129 = t125 + t127;
        const P t130 = shuffled<1, 3>(t60, t63);
        const P t131 = shuffled<1, 3>(t29, t33);
        // complex block of 3
        const P t132 = t130 - t131;
        const P t133 = shuffled<0, 2>(t60, t63);
        const P t134 = shuffled<0, 2>(t29, t33);
        const P t135 = t133 + t134;
        const P t136 = t130 + t131;
        const P t137 = t133 - t134;
        const P t138 = shuffled<1, 3>(t15, t19);
        const P t139 = t132 + t138;
        const P t140 = shuffled<0, 2>(t15, t19);
        const P t141 = t135 + t140;
        const P t142 = c[1] * t132;
        const P t143 = t138 - t142;
        const P t144 = c[1] * t135;
        const P t145 = t140 - t144;
        const P t146 = c[2] * t137;
        const P t147 = t143 + t146;
        const P t148 = c[2] * t136;
        const P t149 = t145 - t148;
        const P t150 = t143 - t146;
        const P t151 = t145 + t148;
        // spectrum block of 9, multiplier 4
        const P t152 = c[3] * t149;
        const P t153 = c[4] * t147;
        const P t154 = t152 + t153;
        const P t155 = c[5] * t151;
        const P t156 = c[6] * t150;
        const P t157 = t155 + t156;
        // spectrum block of 3
        const P t158 = t141 + t123;
        io.out(18, 27, t158);
        const P t159 = c[1] * t141;
        const P t160 = t123 - t159;
        const P t161 = c[2] * t139;
        const P t162 = t160 - t161;
        io.out(30, 3, t162);
        const P t163 = t160 + t161;
        io.out(6, 15, t163);
        // spectrum block of 3
        const P t164 = t128 - t154;
        io.out(22, 31, t164);
        const P t165 = c[1] * t154;
        const P t166 = t165 + t128;
        const P t167 = c[7] * t149;
        const P t168 = c[8] * t147;
        const P t169 = t167 - t168;
        const P t170 = t166 - t169;
        io.out(34, 7, t170);
        const P t171 = t166 + t169;
        io.out(10, 19, t171);
        // spectrum block of 3
        const P t172 = t157 + t129;
        io.out(26, 35, t172);
        const P t173 = c[1] * t157;
        const P t174 = t129 - t173;
        const P t175 = c[9] * t150;
        const P t176 = c[10] * t151;
        const P t177 = t175 - t176;
        const P t178 = t174 - t177;
        io.out(2, 11, t178);
        const P t179 = t174 + t177;
        io.out(14, 23, t179);
    }
};

}  // namespace zulg
