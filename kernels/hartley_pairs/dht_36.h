// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 36.
// Hartley transform of 36 points, form I; two lanes to a register.
// 59 sums, 59 differences, 36 products of registers, which do the 340 steps of the graph, those with
// `scale` included; 38 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<36> {
    static constexpr int steps = 340;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 5/9
        0.3420201433256687,  // c[3]: -sin 2 pi 5/9
        0.766044443118978,  // c[4]: cos 2 pi 1/9
        0.6427876096865394,  // c[5]: sin 2 pi 1/9
        0.29619813272602386,  // c[6]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[7]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.6634139481689384,  // c[8]: sin 2 pi 1/3 times cos 2 pi 1/9
        0.5566703992264194,  // c[9]: sin 2 pi 1/3 times sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x35_34 = io.in(35, 34);
        // input stage
        const P t0 = x1_2 + x35_34;
        const P t1 = x1_2 - x35_34;
        const P x3_4 = io.in(3, 4);
        const P x33_32 = io.in(33, 32);
        const P t2 = x3_4 + x33_32;
        const P t3 = x3_4 - x33_32;
        const P x5_6 = io.in(5, 6);
        const P x31_30 = io.in(31, 30);
        const P t4 = x5_6 + x31_30;
        const P t5 = x5_6 - x31_30;
        const P x7_8 = io.in(7, 8);
        const P x29_28 = io.in(29, 28);
        const P t6 = x7_8 + x29_28;
        const P t7 = x7_8 - x29_28;
        const P x9_10 = io.in(9, 10);
        const P x27_26 = io.in(27, 26);
        const P t8 = x9_10 + x27_26;
        const P t9 = x9_10 - x27_26;
        const P x11_12 = io.in(11, 12);
        const P x25_24 = io.in(25, 24);
        const P t10 = x11_12 + x25_24;
        const P t11 = x11_12 - x25_24;
        const P x13_14 = io.in(13, 14);
        const P x23_22 = io.in(23, 22);
        const P t12 = x13_14 + x23_22;
        const P t13 = x13_14 - x23_22;
        const P x15_16 = io.in(15, 16);
        const P x21_20 = io.in(21, 20);
        const P t14 = x15_16 + x21_20;
        const P t15 = x15_16 - x21_20;
        const V x17 = io.in(17);
        const V x19 = io.in(19);
        const V t16 = x17 + x19;
        const V t17 = x17 - x19;
        const V x0 = io.in(0);
        const V x18 = io.in(18);
        // spectrum block of 2
        const V t18 = x0 + x18;
        const V t19 = x0 - x18;
        const P t20 = joined(t18, t19);
        const P t21 = shuffled<0, 2>(t8, t9);
        const P t22 = flipped<0, 1>(t21);
        // spectrum block of 2
        const P t23 = t20 + t22;
        const P t24 = t20 - t22;
        const P t25 = shuffled<1, 3>(t2, t3);
        const P t26 = shuffled<1, 3>(t12, t13);
        const P t27 = flipped<0, 1>(t26);
        // complex block of 2
        const P t28 = t25 + t27;
        const P t29 = t25 - t27;
        const P t30 = shuffled<0, 2>(t12, t13);
        const P t31 = shuffled<0, 2>(t4, t5);
        const P t32 = flipped<0, 1>(t31);
        // complex block of 2
        const P t33 = t30 + t32;
        const P t34 = t30 - t32;
        // complex block of 2
        const P t35 = t28 + t33;
        const P t36 = t28 - t33;
        const P t37 = shuffled<1, 0>(t34);
        const P t38 = flipped<1, 0>(t37);
        // complex block of 2
        const P t39 = t29 + t38;
        const P t40 = t29 - t38;
        const P t41 = shuffled<1, 3>(t6, t7);
        const P t42 = shuffled<1, 3>(t8, t9);
        const P t43 = flipped<0, 1>(t42);
        // complex block of 2
        const P t44 = t41 + t43;
        const P t45 = t41 - t43;
        const P t46 = joined(t16, t17);
        const P t47 = shuffled<0, 2>(t0, t1);
        const P t48 = flipped<0, 1>(t47);
        // complex block of 2
        const P t49 = t46 + t48;
        const P t50 = t46 - t48;
        // complex block of 2
        const P t51 = t44 + t49;
        const P t52 = t44 - t49;
        const P t53 = shuffled<1, 0>(t50);
        const P t54 = flipped<1, 0>(t53);
        // complex block of 2
        const P t55 = t45 + t54;
        const P t56 = t45 - t54;
        const P t57 = shuffled<1, 3>(t10, t11);
        const P t58 = shuffled<1, 3>(t4, t5);
        const P t59 = flipped<0, 1>(t58);
        // complex block of 2
        const P t60 = t57 + t59;
        const P t61 = t57 - t59;
        const P t62 = shuffled<0, 2>(t14, t3);
        const P t63 = shuffled<0, 2>(t2, t15);
        const P t64 = flipped<0, 1>(t63);
        // complex block of 2
        const P t65 = t62 + t64;
        const P t66 = t62 - t64;
        // complex block of 2
        const P t67 = t60 + t65;
        const P t68 = t60 - t65;
        const P t69 = shuffled<1, 0>(t66);
        // complex block of 2
        const P t70 = t61 + t69;
        const P t71 = t61 - t69;
        const P t72 = shuffled<1, 3>(t14, t15);
        const P t73 = shuffled<1, 3>(t0, t1);
        const P t74 = flipped<0, 1>(t73);
        // complex block of 2
        const P t75 = t72 + t74;
        const P t76 = t72 - t74;
        const P t77 = shuffled<0, 2>(t10, t7);
        const P t78 = shuffled<0, 2>(t6, t11);
        const P t79 = flipped<0, 1>(t78);
        // complex block of 2
        const P t80 = t77 + t79;
        const P t81 = t77 - t79;
        // complex block of 2
        const P t82 = t75 + t80;
        const P t83 = t75 - t80;
        const P t84 = shuffled<1, 0>(t81);
        // complex block of 2
        const P t85 = t76 + t84;
        const P t86 = t76 - t84;
        const P t87 = shuffled<0, 2>(t67, t70);
        // spectrum block of 3
        const P t88 = t87 + t23;
        const P t89 = c[0] * t87;
        const P t90 = t23 - t89;
        const P t91 = shuffled<1, 3>(t67, t70);
        const P t92 = c[1] * t91;
        const P t93 = t90 - t92;
        const P t94 = t90 + t92;
        const P t95 = shuffled<1, 3>(t82, t85);
        const P t96 = shuffled<1, 3>(t51, t55);
        // complex block of 3
        const P t97 = t95 - t96;
        const P t98 = shuffled<0, 2>(t82, t85);
        const P t99 = shuffled<0, 2>(t51, t55);
        const P t100 = t98 + t99;
        const P t101 = t95 + t96;
        const P t102 = t98 - t99;
        const P t103 = shuffled<1, 3>(t35, t39);
        const P t104 = t97 + t103;
        const P t105 = shuffled<0, 2>(t35, t39);
        const P t106 = t100 + t105;
        const P t107 = c[0] * t97;
        const P t108 = t103 - t107;
        const P t109 = c[0] * t100;
        const P t110 = t105 - t109;
        const P t111 = c[1] * t102;
        const P t112 = t108 + t111;
        const P t113 = c[1] * t101;
        const P t114 = t110 - t113;
        const P t115 = t108 - t111;
        const P t116 = t110 + t113;
        // spectrum block of 9, multiplier 4
        const P t117 = c[2] * t114;
        const P t118 = c[3] * t112;
        const P t119 = t117 + t118;
        const P t120 = c[4] * t116;
        const P t121 = c[5] * t115;
        const P t122 = t120 + t121;
        // spectrum block of 3
        const P t123 = t106 + t88;
        io.out(0, 27, t123);
        const P t124 = c[0] * t106;
        const P t125 = t88 - t124;
        const P t126 = c[1] * t104;
        const P t127 = t125 - t126;
        io.out(24, 15, t127);
        const P t128 = t125 + t126;
        io.out(12, 3, t128);
        // spectrum block of 3
        const P t129 = t93 - t119;
        io.out(32, 23, t129);
        const P t130 = c[0] * t119;
        const P t131 = t130 + t93;
        const P t132 = c[6] * t114;
        const P t133 = c[7] * t112;
        const P t134 = t132 - t133;
        const P t135 = t131 - t134;
        io.out(20, 11, t135);
        const P t136 = t131 + t134;
        io.out(8, 35, t136);
        // spectrum block of 3
        const P t137 = t122 + t94;
        io.out(28, 19, t137);
        const P t138 = c[0] * t122;
        const P t139 = t94 - t138;
        const P t140 = c[8] * t115;
        const P t141 = c[9] * t116;
        const P t142 = t140 - t141;
        const P t143 = t139 - t142;
        io.out(16, 7, t143);
        const P t144 = t139 + t142;
        io.out(4, 31, t144);
        const P t145 = shuffled<0, 2>(t68, t71);
        // spectrum block of 3
        const P t146 = t145 + t24;
        const P t147 = c[0] * t145;
        const P t148 = t24 - t147;
        const P t149 = shuffled<1, 3>(t68, t71);
        const P t150 = c[1] * t149;
        const P t151 = t148 - t150;
        const P t152 = t148 + t150;
        const P t153 = shuffled<1, 3>(t83, t86);
        const P t154 = shuffled<1, 3>(t52, t56);
        // complex block of 3
        const P t155 = t153 - t154;
        const P t156 = shuffled<0, 2>(t83, t86);
        const P t157 = shuffled<0, 2>(t52, t56);
        const P t158 = t156 + t157;
        const P t159 = t153 + t154;
        const P t160 = t156 - t157;
        const P t161 = shuffled<1, 3>(t36, t40);
        const P t162 = t155 + t161;
        const P t163 = shuffled<0, 2>(t36, t40);
        const P t164 = t158 + t163;
        const P t165 = c[0] * t155;
        const P t166 = t161 - t165;
        const P t167 = c[0] * t158;
        const P t168 = t163 - t167;
        const P t169 = c[1] * t160;
        const P t170 = t166 + t169;
        const P t171 = c[1] * t159;
        const P t172 = t168 - t171;
        const P t173 = t166 - t169;
        const P t174 = t168 + t171;
        // spectrum block of 9, multiplier 4
        const P t175 = c[2] * t172;
        const P t176 = c[3] * t170;
        const P t177 = t175 + t176;
        const P t178 = c[4] * t174;
        const P t179 = c[5] * t173;
        const P t180 = t178 + t179;
        // spectrum block of 3
        const P t181 = t164 + t146;
        io.out(18, 9, t181);
        const P t182 = c[0] * t164;
        const P t183 = t146 - t182;
        const P t184 = c[1] * t162;
        const P t185 = t183 - t184;
        io.out(6, 33, t185);
        const P t186 = t183 + t184;
        io.out(30, 21, t186);
        // spectrum block of 3
        const P t187 = t151 - t177;
        io.out(14, 5, t187);
        const P t188 = c[0] * t177;
        const P t189 = t188 + t151;
        const P t190 = c[6] * t172;
        const P t191 = c[7] * t170;
        const P t192 = t190 - t191;
        const P t193 = t189 - t192;
        io.out(2, 29, t193);
        const P t194 = t189 + t192;
        io.out(26, 17, t194);
        // spectrum block of 3
        const P t195 = t180 + t152;
        io.out(10, 1, t195);
        const P t196 = c[0] * t180;
        const P t197 = t152 - t196;
        const P t198 = c[8] * t173;
        const P t199 = c[9] * t174;
        const P t200 = t198 - t199;
        const P t201 = t197 - t200;
        io.out(34, 25, t201);
        const P t202 = t197 + t200;
        io.out(22, 13, t202);
    }
};

}  // namespace zulg
