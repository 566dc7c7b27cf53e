// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 32.
// Forward DFT of 32 real points, twiddled 8, 4; two lanes to a register.
// 47 sums, 36 differences, 23 products of registers, which do the 234 steps of the graph, those with
// `scale` included; 45 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<32> {
    static constexpr int steps = 234;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 2/32
        0.3826834323650898,  // c[2]: sin 2 pi 2/32
        0.9807852804032304,  // c[3]: cos 2 pi 1/32
        0.19509032201612828,  // c[4]: sin 2 pi 1/32
        0.8314696123025452,  // c[5]: cos 2 pi 3/32
        0.5555702330196022,  // c[6]: sin 2 pi 3/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_1 = io.in(0, 1);
        const P x16_17 = io.in(16, 17);
        // real block of 2
        const P t0 = x0_1 + x16_17;
        const P t1 = x0_1 - x16_17;
        const P x4_5 = io.in(4, 5);
        const P x20_21 = io.in(20, 21);
        // real block of 2
        const P t2 = x4_5 + x20_21;
        const P t3 = x4_5 - x20_21;
        const P x8_9 = io.in(8, 9);
        const P x24_25 = io.in(24, 25);
        // real block of 2
        const P t4 = x8_9 + x24_25;
        const P t5 = x8_9 - x24_25;
        const P x12_13 = io.in(12, 13);
        const P x28_29 = io.in(28, 29);
        // real block of 2
        const P t6 = x12_13 + x28_29;
        const P t7 = x12_13 - x28_29;
        // real block of 2
        const P t8 = t0 + t4;
        const P t9 = t0 - t4;
        // real block of 2
        const P t10 = t2 + t6;
        const P t11 = t2 - t6;
        // real block of 2
        const P t12 = t8 + t10;
        const P t13 = t8 - t10;
        // skew block of 4
        const P t14 = t3 - t7;
        const P t15 = t3 + t7;
        const P t16 = c[0] * t15;
        const P t17 = t16 - t5;
        const P t18 = c[0] * t14;
        const P t19 = t1 + t18;
        const P t20 = t5 + t16;
        const P t21 = t1 - t18;
        const P x2_3 = io.in(2, 3);
        const P x18_19 = io.in(18, 19);
        // real block of 2
        const P t22 = x2_3 + x18_19;
        const P t23 = x2_3 - x18_19;
        const P x6_7 = io.in(6, 7);
        const P x22_23 = io.in(22, 23);
        // real block of 2
        const P t24 = x6_7 + x22_23;
        const P t25 = x6_7 - x22_23;
        const P x10_11 = io.in(10, 11);
        const P x26_27 = io.in(26, 27);
        // real block of 2
        const P t26 = x10_11 + x26_27;
        const P t27 = x10_11 - x26_27;
        const P x14_15 = io.in(14, 15);
        const P x30_31 = io.in(30, 31);
        // real block of 2
        const P t28 = x14_15 + x30_31;
        const P t29 = x14_15 - x30_31;
        // real block of 2
        const P t30 = t22 + t26;
        const P t31 = t22 - t26;
        // real block of 2
        const P t32 = t24 + t28;
        const P t33 = t24 - t28;
        // real block of 2
        const P t34 = t30 + t32;
        const P t35 = t30 - t32;
        // skew block of 4
        const P t36 = t25 - t29;
        const P t37 = t25 + t29;
        const P t38 = c[0] * t37;
        const P t39 = t38 - t27;
        const P t40 = c[0] * t36;
        const P t41 = t23 + t40;
        const P t42 = t27 + t38;
        const P t43 = t23 - t40;
        // real block of 2
        const P t44 = t12 + t34;
        const P t45 = t12 - t34;
        io.pair(8, negated<0, 1>(t45));
        const V t46 = part<0>(t44);
        const V t47 = part<1>(t44);
        // real block of 2
        const V t48 = t46 + t47;
        io.re(0, t48);
        const V t49 = t46 - t47;
        io.re(16, t49);
        const P t50 = shuffled<1, 3>(t19, t20);
        // real block of 32
        const P t51 = c[3] * t50;
        const P t52 = shuffled<1, 0>(t50);
        const P t53 = P(-c[4], c[4]) * t52;
        const P t54 = t51 + t53;
        const P t55 = shuffled<0, 2>(t41, t42);
        const P t56 = c[1] * t55;
        const P t57 = shuffled<1, 0>(t55);
        const P t58 = P(-c[2], c[2]) * t57;
        const P t59 = t56 + t58;
        const P t60 = shuffled<1, 3>(t41, t42);
        const P t61 = c[5] * t60;
        const P t62 = shuffled<1, 0>(t60);
        const P t63 = P(-c[6], c[6]) * t62;
        const P t64 = t61 + t63;
        const P t65 = shuffled<0, 2>(t19, t20);
        // complex block of 2
        const P t66 = t65 + t59;
        const P t67 = shuffled<0, 3>(t65, t59);
        const P t68 = shuffled<0, 3>(t59, t65);
        const P t69 = t67 - t68;
        // complex block of 2
        const P t70 = t54 + t64;
        const P t71 = shuffled<0, 3>(t54, t64);
        const P t72 = shuffled<0, 3>(t64, t54);
        const P t73 = t71 - t72;
        // complex block of 2
        const P t74 = t66 + t70;
        io.pair(1, negated<0, 1>(t74));
        const P t75 = shuffled<0, 3>(t66, t70);
        const P t76 = shuffled<0, 3>(t70, t66);
        const P t77 = t75 - t76;
        io.pair(15, negated<0, 1>(t77));
        const P t78 = shuffled<1, 0>(t73);
        const P t79 = flipped<0, 1>(t78);
        // complex block of 2
        const P t80 = t69 + t79;
        io.pair(9, t80);
        const P t81 = t69 - t79;
        io.pair(7, negated<0, 1>(t81));
        const P t82 = shuffled<1, 3>(t9, t11);
        // real block of 32
        const P t83 = c[1] * t82;
        const P t84 = shuffled<1, 0>(t82);
        const P t85 = P(-c[2], c[2]) * t84;
        const P t86 = t83 + t85;
        const P t87 = shuffled<0, 2>(t31, t33);
        const P t88 = shuffled<1, 0>(t87);
        const P t89 = flipped<1, 0>(t88);
        const P t90 = t87 + t89;
        const P t91 = shuffled<1, 3>(t31, t33);
        const P t92 = c[2] * t91;
        const P t93 = shuffled<1, 0>(t91);
        const P t94 = P(-c[1], c[1]) * t93;
        const P t95 = t92 + t94;
        const P t96 = shuffled<0, 2>(t9, t11);
        const P t97 = c[0] * t90;
        // complex block of 2
        const P t98 = t96 + t97;
        const P t99 = shuffled<0, 3>(t96, t97);
        const P t100 = shuffled<0, 3>(t97, t96);
        const P t101 = t99 - t100;
        // complex block of 2
        const P t102 = t86 + t95;
        const P t103 = shuffled<0, 3>(t86, t95);
        const P t104 = shuffled<0, 3>(t95, t86);
        const P t105 = t103 - t104;
        // complex block of 2
        const P t106 = t98 + t102;
        io.pair(2, negated<0, 1>(t106));
        const P t107 = shuffled<0, 3>(t98, t102);
        const P t108 = shuffled<0, 3>(t102, t98);
        const P t109 = t107 - t108;
        io.pair(14, negated<0, 1>(t109));
        const P t110 = shuffled<1, 0>(t105);
        const P t111 = flipped<0, 1>(t110);
        // complex block of 2
        const P t112 = t101 + t111;
        io.pair(10, t112);
        const P t113 = t101 - t111;
        io.pair(6, negated<0, 1>(t113));
        const P t114 = shuffled<1, 3>(t21, t17);
        // real block of 32
        const P t115 = c[5] * t114;
        const P t116 = shuffled<1, 0>(t114);
        const P t117 = P(-c[6], c[6]) * t116;
        const P t118 = t115 + t117;
        const P t119 = shuffled<0, 2>(t43, t39);
        const P t120 = c[2] * t119;
        const P t121 = shuffled<1, 0>(t119);
        const P t122 = P(-c[1], c[1]) * t121;
        const P t123 = t120 + t122;
        const P t124 = shuffled<1, 3>(t43, t39);
        const P t125 = c[4] * t124;
        const P t126 = shuffled<1, 0>(t124);
        const P t127 = P(c[3], -c[3]) * t126;
        const P t128 = t125 + t127;
        const P t129 = shuffled<0, 2>(t21, t17);
        // complex block of 2
        const P t130 = t129 + t123;
        const P t131 = shuffled<0, 3>(t129, t123);
        const P t132 = shuffled<0, 3>(t123, t129);
        const P t133 = t131 - t132;
        const P t134 = shuffled<0, 3>(t118, t128);
        const P t135 = shuffled<0, 3>(t128, t118);
        // complex block of 2
        const P t136 = t134 - t135;
        const P t137 = t118 + t128;
        const P t138 = flipped<0, 1>(t130);
        // complex block of 2
        const P t139 = t136 + t138;
        io.pair(3, t139);
        const P t140 = flipped<1, 0>(t136);
        const P t141 = t130 + t140;
        io.pair(13, t141);
        const P t142 = shuffled<1, 0>(t137);
        // complex block of 2
        const P t143 = t133 - t142;
        io.pair(11, t143);
        const P t144 = t133 + t142;
        io.pair(5, negated<0, 1>(t144));
        const V t145 = part<1>(t13);
        const V t146 = part<1>(t35);
        // skew block of 4
        const V t147 = t145 - t146;
        const V t148 = t145 + t146;
        const V t149 = c[0] * t148;
        const V t150 = part<0>(t35);
        const V t151 = t149 - t150;
        const V t152 = part<0>(t13);
        const V t153 = c[0] * t147;
        const V t154 = t152 + t153;
        const V t155 = t150 + t149;
        const V t156 = flipped<1>(t155);
        const P t157 = joined(t154, t156);
        io.pair(4, t157);
        const V t158 = t152 - t153;
        const V t159 = flipped<1>(t151);
        const P t160 = joined(t158, t159);
        io.pair(12, t160);
    }
};

}  // namespace zulg
