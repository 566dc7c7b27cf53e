// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 22.
// Forward DFT of 22 real points, prime-factor 2, 11; two lanes to a register.
// 38 sums, 34 differences, 50 products of registers, which do the 264 steps of the graph, those with
// `scale` included; 22 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<22> {
    static constexpr int steps = 264;  // with `scale`
    static constexpr double inverseRoot = 0.21320071635561041;  // 1/sqrt(22), for `scale`
    static constexpr double constants[] = {
        0.41541501300188644,  // c[0]: cos 2 pi 2/11
        0.6548607339452851,  // c[1]: -cos 2 pi 18/11
        0.9594929736144974,  // c[2]: -cos 2 pi 6/11
        0.14231483827328514,  // c[3]: -cos 2 pi 8/11
        0.8412535328311812,  // c[4]: cos 2 pi 12/11
        0.7557495743542583,  // c[5]: -sin 2 pi 18/11
        0.28173255684142967,  // c[6]: -sin 2 pi 6/11
        0.9898214418809327,  // c[7]: -sin 2 pi 8/11
        0.9096319953545183,  // c[8]: sin 2 pi 2/11
        0.5406408174555976,  // c[9]: sin 2 pi 12/11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_2 = io.in(0, 2);
        const P x11_13 = io.in(11, 13);
        // real block of 2
        const P t0 = x0_2 + x11_13;
        const P t1 = x0_2 - x11_13;
        const P x4_6 = io.in(4, 6);
        const P x15_17 = io.in(15, 17);
        // real block of 2
        const P t2 = x4_6 + x15_17;
        const P t3 = x4_6 - x15_17;
        const P x8_10 = io.in(8, 10);
        const P x19_21 = io.in(19, 21);
        // real block of 2
        const P t4 = x8_10 + x19_21;
        const P t5 = x8_10 - x19_21;
        const P x12_14 = io.in(12, 14);
        const P x1_3 = io.in(1, 3);
        // real block of 2
        const P t6 = x12_14 + x1_3;
        const P t7 = x12_14 - x1_3;
        const P x16_18 = io.in(16, 18);
        const P x5_7 = io.in(5, 7);
        // real block of 2
        const P t8 = x16_18 + x5_7;
        const P t9 = x16_18 - x5_7;
        const V x20 = io.in(20);
        const V x9 = io.in(9);
        // real block of 2
        const V t10 = x20 + x9;
        const V t11 = x20 - x9;
        const P t12 = shuffled<1, 3>(t0, t1);
        const P t13 = joined(t10, t11);
        // real block of 11, multiplier 2
        const P t14 = t12 + t13;
        const P t15 = t12 - t13;
        const P t16 = shuffled<1, 3>(t8, t9);
        const P t17 = shuffled<0, 2>(t2, t3);
        const P t18 = t16 + t17;
        const P t19 = t16 - t17;
        const P t20 = shuffled<1, 3>(t2, t3);
        const P t21 = shuffled<0, 2>(t8, t9);
        const P t22 = t20 + t21;
        const P t23 = t20 - t21;
        const P t24 = shuffled<0, 2>(t4, t5);
        const P t25 = shuffled<1, 3>(t6, t7);
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        const P t28 = shuffled<0, 2>(t6, t7);
        const P t29 = shuffled<1, 3>(t4, t5);
        const P t30 = t28 + t29;
        const P t31 = t28 - t29;
        const P t32 = t14 + t18;
        const P t33 = t32 + t22;
        const P t34 = t33 + t26;
        const P t35 = t34 + t30;
        const P t36 = shuffled<0, 2>(t0, t1);
        const P t37 = t35 + t36;
        const V t38 = part<0>(t37);
        io.re(0, t38);
        const V t39 = part<1>(t37);
        io.re(11, t39);
        const P t40 = c[0] * t14;
        const P t41 = c[1] * t18;
        const P t42 = t40 - t41;
        const P t43 = c[2] * t22;
        const P t44 = t42 - t43;
        const P t45 = c[3] * t26;
        const P t46 = t44 - t45;
        const P t47 = c[4] * t30;
        const P t48 = t46 + t47;
        const P t49 = t48 + t36;
        const P t50 = c[5] * t19;
        const P t51 = c[6] * t23;
        const P t52 = t50 + t51;
        const P t53 = c[7] * t27;
        const P t54 = t52 + t53;
        const P t55 = c[8] * t15;
        const P t56 = t54 - t55;
        const P t57 = c[9] * t31;
        const P t58 = t56 - t57;
        const P t59 = shuffled<0, 2>(t49, t58);
        io.pair(2, t59);
        const P t60 = shuffled<1, 3>(t49, t58);
        io.pair(9, negated<0, 1>(t60));
        const P t61 = c[1] * t14;
        const P t62 = t36 - t61;
        const P t63 = c[3] * t18;
        const P t64 = t62 - t63;
        const P t65 = c[4] * t22;
        const P t66 = t64 + t65;
        const P t67 = c[2] * t26;
        const P t68 = t66 - t67;
        const P t69 = c[0] * t30;
        const P t70 = t68 + t69;
        const P t71 = c[5] * t15;
        const P t72 = c[7] * t19;
        const P t73 = t71 + t72;
        const P t74 = c[9] * t23;
        const P t75 = t73 + t74;
        const P t76 = c[6] * t27;
        const P t77 = t75 + t76;
        const P t78 = c[8] * t31;
        const P t79 = t77 + t78;
        const P t80 = shuffled<0, 2>(t70, t79);
        io.pair(4, negated<0, 1>(t80));
        const P t81 = shuffled<1, 3>(t70, t79);
        io.pair(7, t81);
        const P t82 = c[2] * t14;
        const P t83 = t36 - t82;
        const P t84 = c[4] * t18;
        const P t85 = t83 + t84;
        const P t86 = c[1] * t22;
        const P t87 = t85 - t86;
        const P t88 = c[0] * t26;
        const P t89 = t87 + t88;
        const P t90 = c[3] * t30;
        const P t91 = t89 - t90;
        const P t92 = c[6] * t15;
        const P t93 = c[9] * t19;
        const P t94 = t92 + t93;
        const P t95 = c[5] * t23;
        const P t96 = t94 + t95;
        const P t97 = c[8] * t27;
        const P t98 = t96 - t97;
        const P t99 = c[7] * t31;
        const P t100 = t98 - t99;
        const P t101 = shuffled<1, 3>(t91, t100);
        io.pair(5, negated<0, 1>(t101));
        const P t102 = shuffled<0, 2>(t91, t100);
        io.pair(6, t102);
        const P t103 = c[3] * t14;
        const P t104 = t36 - t103;
        const P t105 = c[2] * t18;
        const P t106 = t104 - t105;
        const P t107 = c[0] * t22;
        const P t108 = t106 + t107;
        const P t109 = c[4] * t26;
        const P t110 = t108 + t109;
        const P t111 = c[1] * t30;
        const P t112 = t110 - t111;
        const P t113 = c[7] * t15;
        const P t114 = c[6] * t19;
        const P t115 = t113 + t114;
        const P t116 = c[9] * t27;
        const P t117 = t115 + t116;
        const P t118 = c[8] * t23;
        const P t119 = t117 - t118;
        const P t120 = c[5] * t31;
        const P t121 = t119 - t120;
        const P t122 = shuffled<1, 3>(t112, t121);
        io.pair(3, negated<0, 1>(t122));
        const P t123 = shuffled<0, 2>(t112, t121);
        io.pair(8, t123);
        const P t124 = c[4] * t14;
        const P t125 = c[0] * t18;
        const P t126 = t124 + t125;
        const P t127 = c[3] * t22;
        const P t128 = t126 - t127;
        const P t129 = c[1] * t26;
        const P t130 = t128 - t129;
        const P t131 = c[2] * t30;
        const P t132 = t130 - t131;
        const P t133 = t132 + t36;
        const P t134 = c[9] * t15;
        const P t135 = c[7] * t23;
        const P t136 = t134 + t135;
        const P t137 = c[5] * t27;
        const P t138 = t136 + t137;
        const P t139 = c[8] * t19;
        const P t140 = t138 - t139;
        const P t141 = c[6] * t31;
        const P t142 = t140 - t141;
        const P t143 = shuffled<1, 3>(t133, t142);
        io.pair(1, negated<0, 1>(t143));
        const P t144 = shuffled<0, 2>(t133, t142);
        io.pair(10, t144);
    }
};

}  // namespace zulg
