// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 30.
// Forward DFT of 30 real points, prime-factor 5, 3, 2; two lanes to a register.
// 45 sums, 35 differences, 34 products of registers, which do the 256 steps of the graph, those with
// `scale` included; 31 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<30> {
    static constexpr int steps = 256;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x6_11 = io.in(6, 11);
        const P x24_29 = io.in(24, 29);
        // real block of 5
        const P t0 = x6_11 + x24_29;
        const P t1 = x6_11 - x24_29;
        const P x18_23 = io.in(18, 23);
        const P x12_17 = io.in(12, 17);
        const P t2 = x18_23 + x12_17;
        const P t3 = x18_23 - x12_17;
        const P t4 = t0 + t2;
        const P x0_5 = io.in(0, 5);
        const P t5 = t4 + x0_5;
        const P t6 = c[0] * t0;
        const P t7 = c[1] * t2;
        const P t8 = t6 - t7;
        const P t9 = t8 + x0_5;
        const P t10 = c[2] * t3;
        const P t11 = c[3] * t1;
        const P t12 = t10 - t11;
        const P t13 = c[1] * t0;
        const P t14 = x0_5 - t13;
        const P t15 = c[0] * t2;
        const P t16 = t14 + t15;
        const P t17 = c[2] * t1;
        const P t18 = c[3] * t3;
        const P t19 = t17 + t18;
        const P x16_21 = io.in(16, 21);
        const P x4_9 = io.in(4, 9);
        // real block of 5
        const P t20 = x16_21 + x4_9;
        const P t21 = x16_21 - x4_9;
        const P x28_3 = io.in(28, 3);
        const P x22_27 = io.in(22, 27);
        const P t22 = x28_3 + x22_27;
        const P t23 = x28_3 - x22_27;
        const P t24 = t20 + t22;
        const P x10_15 = io.in(10, 15);
        const P t25 = t24 + x10_15;
        const P t26 = c[0] * t20;
        const P t27 = c[1] * t22;
        const P t28 = t26 - t27;
        const P t29 = t28 + x10_15;
        const P t30 = c[2] * t23;
        const P t31 = c[3] * t21;
        const P t32 = t30 - t31;
        const P t33 = c[1] * t20;
        const P t34 = x10_15 - t33;
        const P t35 = c[0] * t22;
        const P t36 = t34 + t35;
        const P t37 = c[2] * t21;
        const P t38 = c[3] * t23;
        const P t39 = t37 + t38;
        const P x26_1 = io.in(26, 1);
        const P x14_19 = io.in(14, 19);
        // real block of 5
        const P t40 = x26_1 + x14_19;
        const P t41 = x26_1 - x14_19;
        const P x8_13 = io.in(8, 13);
        const P x2_7 = io.in(2, 7);
        const P t42 = x8_13 + x2_7;
        const P t43 = x8_13 - x2_7;
        const P t44 = t40 + t42;
        const P x20_25 = io.in(20, 25);
        const P t45 = t44 + x20_25;
        const P t46 = c[0] * t40;
        const P t47 = c[1] * t42;
        const P t48 = t46 - t47;
        const P t49 = t48 + x20_25;
        const P t50 = c[2] * t43;
        const P t51 = c[3] * t41;
        const P t52 = t50 - t51;
        const P t53 = c[1] * t40;
        const P t54 = x20_25 - t53;
        const P t55 = c[0] * t42;
        const P t56 = t54 + t55;
        const P t57 = c[2] * t41;
        const P t58 = c[3] * t43;
        const P t59 = t57 + t58;
        const P t60 = shuffled<0, 3>(t25, t5);
        // real block of 3
        const P t61 = t45 + t60;
        const P t62 = shuffled<0, 3>(t60, t45);
        const P t63 = shuffled<0, 3>(t45, t60);
        const P t64 = t62 - t63;
        const P t65 = shuffled<0, 3>(t5, t25);
        const P t66 = t61 + t65;
        const P t67 = c[4] * t61;
        const P t68 = t65 - t67;
        const V t69 = part<0>(t66);
        const V t70 = part<1>(t66);
        // real block of 2
        const V t71 = t69 + t70;
        io.re(0, t71);
        const V t72 = t69 - t70;
        io.re(15, t72);
        // real block of 3
        const P t73 = c[5] * t64;
        const P t74 = shuffled<0, 2>(t68, t73);
        const P t75 = shuffled<1, 3>(t68, t73);
        // complex block of 2
        const P t76 = t74 + t75;
        io.pair(10, negated<0, 1>(t76));
        const P t77 = shuffled<0, 3>(t74, t75);
        const P t78 = shuffled<0, 3>(t75, t74);
        const P t79 = t77 - t78;
        io.pair(5, negated<0, 1>(t79));
        const P t80 = shuffled<0, 2>(t29, t32);
        const P t81 = shuffled<0, 2>(t49, t52);
        // complex block of 3
        const P t82 = t80 + t81;
        const P t83 = t80 - t81;
        const P t84 = shuffled<0, 2>(t9, t12);
        const P t85 = t82 + t84;
        const P t86 = c[4] * t82;
        const P t87 = t84 - t86;
        const P t88 = P(-c[5], c[5]) * t83;
        const P t89 = shuffled<1, 0>(t88);
        const P t90 = t87 + t89;
        const P t91 = t87 - t89;
        const P t92 = shuffled<1, 3>(t49, t52);
        const P t93 = shuffled<1, 3>(t9, t12);
        // complex block of 3
        const P t94 = t92 + t93;
        const P t95 = t92 - t93;
        const P t96 = shuffled<1, 3>(t29, t32);
        const P t97 = t94 + t96;
        const P t98 = c[4] * t94;
        const P t99 = t96 - t98;
        const P t100 = P(-c[5], c[5]) * t95;
        const P t101 = shuffled<1, 0>(t100);
        const P t102 = t99 + t101;
        const P t103 = t99 - t101;
        // complex block of 2
        const P t104 = t85 + t97;
        io.pair(6, t104);
        const P t105 = t85 - t97;
        io.pair(9, negated<0, 1>(t105));
        // complex block of 2
        const P t106 = t90 + t102;
        io.pair(14, negated<0, 1>(t106));
        const P t107 = t90 - t102;
        io.pair(1, t107);
        // complex block of 2
        const P t108 = t91 + t103;
        io.pair(4, negated<0, 1>(t108));
        const P t109 = t91 - t103;
        io.pair(11, t109);
        const P t110 = shuffled<0, 2>(t36, t39);
        const P t111 = shuffled<0, 2>(t56, t59);
        // complex block of 3
        const P t112 = t110 + t111;
        const P t113 = shuffled<0, 3>(t110, t111);
        const P t114 = shuffled<0, 3>(t111, t110);
        const P t115 = t113 - t114;
        const P t116 = shuffled<0, 2>(t16, t19);
        const P t117 = t112 + t116;
        const P t118 = P(-c[4], c[4]) * t112;
        const P t119 = flipped<0, 1>(t116);
        const P t120 = t118 + t119;
        const P t121 = P(-c[5], c[5]) * t115;
        const P t122 = shuffled<1, 0>(t121);
        const P t123 = t120 + t122;
        const P t124 = t120 - t122;
        const P t125 = shuffled<1, 3>(t56, t59);
        const P t126 = shuffled<1, 3>(t16, t19);
        // complex block of 3
        const P t127 = t125 + t126;
        const P t128 = shuffled<0, 3>(t125, t126);
        const P t129 = shuffled<0, 3>(t126, t125);
        const P t130 = t128 - t129;
        const P t131 = shuffled<1, 3>(t36, t39);
        const P t132 = t127 + t131;
        const P t133 = P(-c[4], c[4]) * t127;
        const P t134 = flipped<0, 1>(t131);
        const P t135 = t133 + t134;
        const P t136 = P(-c[5], c[5]) * t130;
        const P t137 = shuffled<1, 0>(t136);
        const P t138 = t135 + t137;
        const P t139 = t135 - t137;
        // complex block of 2
        const P t140 = t117 + t132;
        io.pair(12, negated<0, 1>(t140));
        const P t141 = shuffled<0, 3>(t117, t132);
        const P t142 = shuffled<0, 3>(t132, t117);
        const P t143 = t141 - t142;
        io.pair(3, negated<0, 1>(t143));
        // complex block of 2
        const P t144 = t123 + t138;
        io.pair(8, negated<0, 1>(t144));
        const P t145 = t123 - t138;
        io.pair(7, t145);
        // complex block of 2
        const P t146 = t124 + t139;
        io.pair(2, t146);
        const P t147 = t124 - t139;
        io.pair(13, negated<0, 1>(t147));
    }
};

}  // namespace zulg
