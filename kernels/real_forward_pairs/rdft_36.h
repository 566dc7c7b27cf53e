// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 36.
// Forward DFT of 36 real points, prime-factor 9, 4; two lanes to a register.
// 50 sums, 50 differences, 40 products of registers, which do the 314 steps of the graph, those with
// `scale` included; 27 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<36> {
    static constexpr int steps = 314;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 4/9
        0.3420201433256687,  // c[3]: sin 2 pi 4/9
        0.766044443118978,  // c[4]: cos 2 pi 8/9
        0.6427876096865394,  // c[5]: -sin 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x12_21 = io.in(12, 21);
        const P x24_33 = io.in(24, 33);
        // real block of 3
        const P t0 = x12_21 + x24_33;
        const P t1 = x12_21 - x24_33;
        const P x0_9 = io.in(0, 9);
        const P t2 = t0 + x0_9;
        const P t3 = c[0] * t0;
        const P t4 = x0_9 - t3;
        const P x16_25 = io.in(16, 25);
        const P x28_1 = io.in(28, 1);
        // real block of 3
        const P t5 = x16_25 + x28_1;
        const P t6 = x16_25 - x28_1;
        const P x4_13 = io.in(4, 13);
        const P t7 = t5 + x4_13;
        const P t8 = c[0] * t5;
        const P t9 = x4_13 - t8;
        const P x20_29 = io.in(20, 29);
        const P x32_5 = io.in(32, 5);
        // real block of 3
        const P t10 = x20_29 + x32_5;
        const P t11 = x20_29 - x32_5;
        const P x8_17 = io.in(8, 17);
        const P t12 = t10 + x8_17;
        const P t13 = c[0] * t10;
        const P t14 = x8_17 - t13;
        // real block of 3
        const P t15 = t7 + t12;
        const P t16 = t7 - t12;
        const P t17 = t15 + t2;
        const P t18 = c[0] * t15;
        const P t19 = t2 - t18;
        // real block of 9, multiplier 4
        const P t20 = c[2] * t9;
        // real block of 3
        const P t21 = c[1] * t6;
        // real block of 9, multiplier 4
        const P t22 = c[3] * t21;
        const P t23 = t20 + t22;
        const P t24 = c[2] * t21;
        const P t25 = c[3] * t9;
        const P t26 = t24 - t25;
        const P t27 = c[4] * t14;
        // real block of 3
        const P t28 = c[1] * t11;
        // real block of 9, multiplier 4
        const P t29 = c[5] * t28;
        const P t30 = t27 + t29;
        const P t31 = c[5] * t14;
        const P t32 = c[4] * t28;
        const P t33 = t31 - t32;
        // complex block of 3
        const P t34 = t30 - t23;
        const P t35 = t26 + t33;
        const P t36 = t23 + t30;
        const P t37 = t26 - t33;
        const P t38 = t34 + t4;
        // real block of 3
        const P t39 = c[1] * t1;
        // complex block of 3
        const P t40 = t35 - t39;
        const P t41 = c[0] * t34;
        const P t42 = t4 - t41;
        const P t43 = c[0] * t35;
        const P t44 = t39 + t43;
        const P t45 = c[1] * t37;
        const P t46 = t42 + t45;
        const P t47 = c[1] * t36;
        const P t48 = t47 - t44;
        const P t49 = t42 - t45;
        const P t50 = t44 + t47;
        const P x30_3 = io.in(30, 3);
        const P x6_15 = io.in(6, 15);
        // real block of 3
        const P t51 = x30_3 + x6_15;
        const P t52 = x30_3 - x6_15;
        const P x18_27 = io.in(18, 27);
        const P t53 = t51 + x18_27;
        const P t54 = c[0] * t51;
        const P t55 = x18_27 - t54;
        const P x34_7 = io.in(34, 7);
        const P x10_19 = io.in(10, 19);
        // real block of 3
        const P t56 = x34_7 + x10_19;
        const P t57 = x34_7 - x10_19;
        const P x22_31 = io.in(22, 31);
        const P t58 = t56 + x22_31;
        const P t59 = c[0] * t56;
        const P t60 = x22_31 - t59;
        const P x2_11 = io.in(2, 11);
        const P x14_23 = io.in(14, 23);
        // real block of 3
        const P t61 = x2_11 + x14_23;
        const P t62 = x2_11 - x14_23;
        const P x26_35 = io.in(26, 35);
        const P t63 = t61 + x26_35;
        const P t64 = c[0] * t61;
        const P t65 = x26_35 - t64;
        // real block of 3
        const P t66 = t58 + t63;
        const P t67 = t58 - t63;
        const P t68 = t66 + t53;
        const P t69 = c[0] * t66;
        const P t70 = t53 - t69;
        // real block of 9, multiplier 4
        const P t71 = c[2] * t60;
        // real block of 3
        const P t72 = c[1] * t57;
        // real block of 9, multiplier 4
        const P t73 = c[3] * t72;
        const P t74 = t71 + t73;
        const P t75 = c[2] * t72;
        const P t76 = c[3] * t60;
        const P t77 = t75 - t76;
        const P t78 = c[4] * t65;
        // real block of 3
        const P t79 = c[1] * t62;
        // real block of 9, multiplier 4
        const P t80 = c[5] * t79;
        const P t81 = t78 + t80;
        const P t82 = c[5] * t65;
        const P t83 = c[4] * t79;
        const P t84 = t82 - t83;
        // complex block of 3
        const P t85 = t81 - t74;
        const P t86 = t77 + t84;
        const P t87 = t74 + t81;
        const P t88 = t77 - t84;
        const P t89 = t85 + t55;
        // real block of 3
        const P t90 = c[1] * t52;
        // complex block of 3
        const P t91 = t86 - t90;
        const P t92 = c[0] * t85;
        const P t93 = t55 - t92;
        const P t94 = c[0] * t86;
        const P t95 = t90 + t94;
        const P t96 = c[1] * t88;
        const P t97 = t93 + t96;
        const P t98 = c[1] * t87;
        const P t99 = t98 - t95;
        const P t100 = t93 - t96;
        const P t101 = t95 + t98;
        // real block of 2
        const P t102 = t17 + t68;
        const P t103 = t17 - t68;
        io.pair(9, negated<0, 1>(t103));
        const V t104 = part<0>(t102);
        const V t105 = part<1>(t102);
        // real block of 2
        const V t106 = t104 + t105;
        io.re(0, t106);
        const V t107 = t104 - t105;
        io.re(18, t107);
        const P t108 = shuffled<0, 2>(t38, t40);
        const P t109 = shuffled<0, 2>(t89, t91);
        // complex block of 2
        const P t110 = t108 + t109;
        const P t111 = t108 - t109;
        const P t112 = shuffled<1, 3>(t38, t40);
        const P t113 = shuffled<1, 3>(t89, t91);
        // complex block of 2
        const P t114 = t112 + t113;
        const P t115 = t112 - t113;
        // complex block of 2
        const P t116 = t110 + t114;
        io.pair(4, t116);
        const P t117 = t110 - t114;
        io.pair(14, negated<0, 1>(t117));
        const P t118 = shuffled<1, 0>(t115);
        const P t119 = flipped<0, 1>(t118);
        // complex block of 2
        const P t120 = t111 + t119;
        io.pair(13, t120);
        const P t121 = t111 - t119;
        io.pair(5, negated<0, 1>(t121));
        const P t122 = shuffled<0, 2>(t49, t50);
        const P t123 = shuffled<0, 2>(t100, t101);
        // complex block of 2
        const P t124 = t122 + t123;
        const P t125 = t122 - t123;
        const P t126 = shuffled<1, 3>(t49, t50);
        const P t127 = shuffled<1, 3>(t100, t101);
        // complex block of 2
        const P t128 = t126 + t127;
        const P t129 = t126 - t127;
        // complex block of 2
        const P t130 = t124 + t128;
        io.pair(8, t130);
        const P t131 = t124 - t128;
        io.pair(10, negated<0, 1>(t131));
        const P t132 = shuffled<1, 0>(t129);
        const P t133 = flipped<0, 1>(t132);
        // complex block of 2
        const P t134 = t125 + t133;
        io.pair(17, t134);
        const P t135 = t125 - t133;
        io.pair(1, negated<0, 1>(t135));
        // real block of 3
        const P t136 = c[1] * t16;
        const P t137 = shuffled<0, 2>(t19, t136);
        // real block of 3
        const P t138 = c[1] * t67;
        const P t139 = shuffled<0, 2>(t70, t138);
        // complex block of 2
        const P t140 = t137 + t139;
        const P t141 = shuffled<0, 3>(t137, t139);
        const P t142 = shuffled<0, 3>(t139, t137);
        const P t143 = t141 - t142;
        const P t144 = shuffled<1, 3>(t19, t136);
        const P t145 = shuffled<1, 3>(t70, t138);
        // complex block of 2
        const P t146 = t144 + t145;
        const P t147 = shuffled<0, 3>(t144, t145);
        const P t148 = shuffled<0, 3>(t145, t144);
        const P t149 = t147 - t148;
        // complex block of 2
        const P t150 = t140 + t146;
        io.pair(12, negated<0, 1>(t150));
        const P t151 = shuffled<0, 3>(t140, t146);
        const P t152 = shuffled<0, 3>(t146, t140);
        const P t153 = t151 - t152;
        io.pair(6, negated<0, 1>(t153));
        const P t154 = shuffled<1, 0>(t149);
        const P t155 = flipped<0, 1>(t154);
        // complex block of 2
        const P t156 = t143 + t155;
        io.pair(15, negated<0, 1>(t156));
        const P t157 = t143 - t155;
        io.pair(3, t157);
        const P t158 = shuffled<0, 2>(t46, t48);
        const P t159 = shuffled<0, 2>(t97, t99);
        // complex block of 2
        const P t160 = t158 + t159;
        const P t161 = t158 - t159;
        const P t162 = shuffled<1, 3>(t46, t48);
        const P t163 = shuffled<1, 3>(t97, t99);
        // complex block of 2
        const P t164 = t162 + t163;
        const P t165 = t162 - t163;
        // complex block of 2
        const P t166 = t160 + t164;
        io.pair(16, t166);
        const P t167 = t160 - t164;
        io.pair(2, negated<0, 1>(t167));
        const P t168 = shuffled<1, 0>(t165);
        const P t169 = flipped<0, 1>(t168);
        // complex block of 2
        const P t170 = t161 + t169;
        io.pair(11, negated<0, 1>(t170));
        const P t171 = t161 - t169;
        io.pair(7, t171);
    }
};

}  // namespace zulg
