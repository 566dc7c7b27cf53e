// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 22.
// Hartley transform of 22 points, form F; two lanes to a register.
// 48 sums, 44 differences, 50 products of registers, which do the 284 steps of the graph, those with
// `scale` included; 21 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<22> {
    static constexpr int steps = 284;  // with `scale`
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
        const ConstantsOf<Ports, HartleyPairs> c{};
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
        io.out(0, 11, t37);
        const P t38 = c[0] * t14;
        const P t39 = c[1] * t18;
        const P t40 = t38 - t39;
        const P t41 = c[2] * t22;
        const P t42 = t40 - t41;
        const P t43 = c[3] * t26;
        const P t44 = t42 - t43;
        const P t45 = c[4] * t30;
        const P t46 = t44 + t45;
        const P t47 = t46 + t36;
        const P t48 = c[5] * t19;
        const P t49 = c[6] * t23;
        const P t50 = t48 + t49;
        const P t51 = c[7] * t27;
        const P t52 = t50 + t51;
        const P t53 = c[8] * t15;
        const P t54 = t52 - t53;
        const P t55 = c[9] * t31;
        const P t56 = t54 - t55;
        const P t57 = c[1] * t14;
        const P t58 = t36 - t57;
        const P t59 = c[3] * t18;
        const P t60 = t58 - t59;
        const P t61 = c[4] * t22;
        const P t62 = t60 + t61;
        const P t63 = c[2] * t26;
        const P t64 = t62 - t63;
        const P t65 = c[0] * t30;
        const P t66 = t64 + t65;
        const P t67 = c[5] * t15;
        const P t68 = c[7] * t19;
        const P t69 = t67 + t68;
        const P t70 = c[9] * t23;
        const P t71 = t69 + t70;
        const P t72 = c[6] * t27;
        const P t73 = t71 + t72;
        const P t74 = c[8] * t31;
        const P t75 = t73 + t74;
        const P t76 = c[2] * t14;
        const P t77 = t36 - t76;
        const P t78 = c[4] * t18;
        const P t79 = t77 + t78;
        const P t80 = c[1] * t22;
        const P t81 = t79 - t80;
        const P t82 = c[0] * t26;
        const P t83 = t81 + t82;
        const P t84 = c[3] * t30;
        const P t85 = t83 - t84;
        const P t86 = c[6] * t15;
        const P t87 = c[9] * t19;
        const P t88 = t86 + t87;
        const P t89 = c[5] * t23;
        const P t90 = t88 + t89;
        const P t91 = c[8] * t27;
        const P t92 = t90 - t91;
        const P t93 = c[7] * t31;
        const P t94 = t92 - t93;
        const P t95 = c[3] * t14;
        const P t96 = t36 - t95;
        const P t97 = c[2] * t18;
        const P t98 = t96 - t97;
        const P t99 = c[0] * t22;
        const P t100 = t98 + t99;
        const P t101 = c[4] * t26;
        const P t102 = t100 + t101;
        const P t103 = c[1] * t30;
        const P t104 = t102 - t103;
        const P t105 = c[7] * t15;
        const P t106 = c[6] * t19;
        const P t107 = t105 + t106;
        const P t108 = c[9] * t27;
        const P t109 = t107 + t108;
        const P t110 = c[8] * t23;
        const P t111 = t109 - t110;
        const P t112 = c[5] * t31;
        const P t113 = t111 - t112;
        const P t114 = c[4] * t14;
        const P t115 = c[0] * t18;
        const P t116 = t114 + t115;
        const P t117 = c[3] * t22;
        const P t118 = t116 - t117;
        const P t119 = c[1] * t26;
        const P t120 = t118 - t119;
        const P t121 = c[2] * t30;
        const P t122 = t120 - t121;
        const P t123 = t122 + t36;
        const P t124 = c[9] * t15;
        const P t125 = c[7] * t23;
        const P t126 = t124 + t125;
        const P t127 = c[5] * t27;
        const P t128 = t126 + t127;
        const P t129 = c[8] * t19;
        const P t130 = t128 - t129;
        const P t131 = c[6] * t31;
        const P t132 = t130 - t131;
        const V t133 = part<1>(t123);
        const V t134 = part<1>(t132);
        // output stage
        const V t135 = t133 + t134;
        io.out(1, t135);
        const V t136 = t133 - t134;
        io.out(21, t136);
        const V t137 = part<0>(t47);
        const V t138 = part<0>(t56);
        const V t139 = t137 - t138;
        io.out(2, t139);
        const V t140 = t137 + t138;
        io.out(20, t140);
        const V t141 = part<1>(t104);
        const V t142 = part<1>(t113);
        const V t143 = t141 + t142;
        io.out(3, t143);
        const V t144 = t141 - t142;
        io.out(19, t144);
        const V t145 = part<0>(t66);
        const V t146 = part<0>(t75);
        const V t147 = t145 + t146;
        io.out(4, t147);
        const V t148 = t145 - t146;
        io.out(18, t148);
        const V t149 = part<1>(t85);
        const V t150 = part<1>(t94);
        const V t151 = t149 + t150;
        io.out(5, t151);
        const V t152 = t149 - t150;
        io.out(17, t152);
        const V t153 = part<0>(t85);
        const V t154 = part<0>(t94);
        const V t155 = t153 - t154;
        io.out(6, t155);
        const V t156 = t153 + t154;
        io.out(16, t156);
        const V t157 = part<1>(t66);
        const V t158 = part<1>(t75);
        const V t159 = t157 - t158;
        io.out(7, t159);
        const V t160 = t157 + t158;
        io.out(15, t160);
        const V t161 = part<0>(t104);
        const V t162 = part<0>(t113);
        const V t163 = t161 - t162;
        io.out(8, t163);
        const V t164 = t161 + t162;
        io.out(14, t164);
        const V t165 = part<1>(t47);
        const V t166 = part<1>(t56);
        const V t167 = t165 + t166;
        io.out(9, t167);
        const V t168 = t165 - t166;
        io.out(13, t168);
        const V t169 = part<0>(t123);
        const V t170 = part<0>(t132);
        const V t171 = t169 - t170;
        io.out(10, t171);
        const V t172 = t169 + t170;
        io.out(12, t172);
    }
};

}  // namespace zulg
