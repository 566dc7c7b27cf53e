// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 17.
// Hartley transform of 17 points, form F.
// 66 additions, 66 subtractions, 54 multiplications (71 with `scale`); 19 constants; 18 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<17> {
    static constexpr int steps = 203;  // with `scale`
    static constexpr double inverseRoot = 0.24253562503633297;  // 1/sqrt(17), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.425612278682049,  // c[3]: -Q[1] of 17
        0.2906530375466148,  // c[4]: -P[1] of 17
        0.347088927763506,  // c[5]: -Q[2] of 17
        0.3809911760447736,  // c[6]: P[2] of 17
        0.5094301241979152,  // c[7]: -Q[3] of 17
        0.07814056923069293,  // c[8]: P[3] of 17
        0.40623178445333147,  // c[9]: Q[4] of 17
        0.31717619283272513,  // c[10]: P[4] of 17
        0.5020314050995693,  // c[11]: Q[5] of 17
        0.1165738748337385,  // c[12]: -P[5] of 17
        0.5139020806887744,  // c[13]: Q[6] of 17
        0.039110758925753275,  // c[14]: P[6] of 17
        0.07176933159324189,  // c[15]: Q[7] of 17
        0.5103666946839882,  // c[16]: P[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 2
        const V x1 = io.in(1);
        const V x16 = io.in(16);
        const V t0 = x1 + x16;
        const V t1 = x1 - x16;
        // real block of 2
        const V x13 = io.in(13);
        const V x4 = io.in(4);
        const V t2 = x13 + x4;
        const V t3 = x13 - x4;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x3 = io.in(3);
        const V x14 = io.in(14);
        const V t6 = x3 + x14;
        const V t7 = x3 - x14;
        // real block of 2
        const V x5 = io.in(5);
        const V x12 = io.in(12);
        const V t8 = x5 + x12;
        const V t9 = x5 - x12;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x9 = io.in(9);
        const V x8 = io.in(8);
        const V t12 = x9 + x8;
        const V t13 = x9 - x8;
        // real block of 2
        const V x15 = io.in(15);
        const V x2 = io.in(2);
        const V t14 = x15 + x2;
        const V t15 = x15 - x2;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x10 = io.in(10);
        const V x7 = io.in(7);
        const V t18 = x10 + x7;
        const V t19 = x10 - x7;
        // real block of 2
        const V x11 = io.in(11);
        const V x6 = io.in(6);
        const V t20 = x11 + x6;
        const V t21 = x11 - x6;
        // real block of 2
        const V t22 = t18 + t20;
        const V t23 = t18 - t20;
        // real block of 2
        const V t24 = t4 + t16;
        const V t25 = t4 - t16;
        // real block of 2
        const V t26 = t10 + t22;
        const V t27 = t10 - t22;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // real block of 16
        const V t30 = c[0] * t9;
        const V t31 = c[1] * t7;
        const V t32 = t31 - t30;
        const V t33 = c[0] * t7;
        const V t34 = c[1] * t9;
        const V t35 = t34 + t33;
        const V t36 = t13 - t15;
        const V t37 = t15 + t13;
        const V t38 = c[2] * t36;
        const V t39 = c[2] * t37;
        const V t40 = c[1] * t21;
        const V t41 = c[0] * t19;
        const V t42 = t41 - t40;
        const V t43 = c[1] * t19;
        const V t44 = c[0] * t21;
        const V t45 = t44 + t43;
        // complex block of 2
        const V t46 = t1 + t38;
        const V t47 = t3 + t39;
        const V t48 = t1 - t38;
        const V t49 = t39 - t3;
        // complex block of 2
        const V t50 = t32 + t42;
        const V t51 = t35 + t45;
        const V t52 = t32 - t42;
        const V t53 = t45 - t35;
        // complex block of 2
        const V t54 = t46 + t50;
        const V t55 = t47 + t51;
        const V t56 = t46 - t50;
        const V t57 = t51 - t47;
        // complex block of 2
        const V t58 = t48 + t53;
        const V t59 = t49 - t52;
        const V t60 = t48 - t53;
        const V t61 = t49 + t52;
        // skew block of 4
        const V t62 = t11 - t23;
        const V t63 = c[2] * t62;
        const V t64 = t11 + t23;
        const V t65 = c[2] * t64;
        const V t66 = t65 - t17;
        const V t67 = t5 + t63;
        const V t68 = t17 + t65;
        const V t69 = t5 - t63;
        // real block of 17
        const V x0 = io.in(0);
        const V t70 = x0 + t28;
        io.out(0, t70);
        const V t71 = c[17] * t28;
        const V t72 = x0 - t71;
        const V t73 = c[3] * t55;
        const V t74 = c[4] * t54;
        const V t75 = t74 + t73;
        const V t76 = c[3] * t54;
        const V t77 = c[4] * t55;
        const V t78 = t77 - t76;
        const V t79 = c[5] * t68;
        const V t80 = c[6] * t67;
        const V t81 = t80 - t79;
        const V t82 = c[5] * t67;
        const V t83 = c[6] * t68;
        const V t84 = t83 + t82;
        const V t85 = c[7] * t61;
        const V t86 = c[8] * t60;
        const V t87 = t86 - t85;
        const V t88 = c[7] * t60;
        const V t89 = c[8] * t61;
        const V t90 = t89 + t88;
        const V t91 = c[9] * t27;
        const V t92 = c[10] * t25;
        const V t93 = t92 + t91;
        const V t94 = c[9] * t25;
        const V t95 = c[10] * t27;
        const V t96 = t94 - t95;
        const V t97 = c[11] * t59;
        const V t98 = c[12] * t58;
        const V t99 = t98 + t97;
        const V t100 = c[11] * t58;
        const V t101 = c[12] * t59;
        const V t102 = t100 - t101;
        const V t103 = c[13] * t66;
        const V t104 = c[14] * t69;
        const V t105 = t104 + t103;
        const V t106 = c[13] * t69;
        const V t107 = c[14] * t66;
        const V t108 = t106 - t107;
        const V t109 = c[15] * t57;
        const V t110 = c[16] * t56;
        const V t111 = t110 + t109;
        const V t112 = c[15] * t56;
        const V t113 = c[16] * t57;
        const V t114 = t112 - t113;
        const V t115 = c[18] * t29;
        // spectrum block of 2
        const V t116 = t72 + t115;
        const V t117 = t72 - t115;
        // spectrum block of 2
        const V t118 = t116 + t93;
        const V t119 = t116 - t93;
        // spectrum block of 2
        const V t120 = t117 - t96;
        const V t121 = t117 + t96;
        // mirrored skew block of 4
        const V t122 = t81 - t105;
        const V t123 = c[2] * t122;
        const V t124 = t108 - t84;
        const V t125 = c[2] * t124;
        const V t126 = t81 + t105;
        const V t127 = t123 - t125;
        const V t128 = t84 + t108;
        const V t129 = t123 + t125;
        // spectrum block of 2
        const V t130 = t118 + t126;
        const V t131 = t118 - t126;
        // spectrum block of 2
        const V t132 = t120 + t127;
        const V t133 = t120 - t127;
        // spectrum block of 2
        const V t134 = t119 + t128;
        const V t135 = t119 - t128;
        // spectrum block of 2
        const V t136 = t121 - t129;
        const V t137 = t121 + t129;
        // complex block of 2
        const V t138 = t75 + t111;
        const V t139 = t78 + t114;
        const V t140 = t75 - t111;
        const V t141 = t78 - t114;
        // complex block of 2
        const V t142 = t99 + t87;
        const V t143 = t102 - t90;
        const V t144 = t99 - t87;
        const V t145 = t102 + t90;
        // complex block of 2
        const V t146 = t138 + t142;
        const V t147 = t139 + t143;
        const V t148 = t138 - t142;
        const V t149 = t139 - t143;
        // complex block of 2
        const V t150 = t140 + t145;
        const V t151 = t141 - t144;
        const V t152 = t140 - t145;
        const V t153 = t141 + t144;
        // mirrored skew block of 8
        const V t154 = c[0] * t150;
        const V t155 = c[1] * t151;
        const V t156 = t155 - t154;
        const V t157 = c[0] * t151;
        const V t158 = c[1] * t150;
        const V t159 = t158 + t157;
        const V t160 = c[2] * t149;
        const V t161 = c[2] * t148;
        const V t162 = t160 + t161;
        const V t163 = t161 - t160;
        const V t164 = c[1] * t152;
        const V t165 = c[0] * t153;
        const V t166 = t165 - t164;
        const V t167 = c[1] * t153;
        const V t168 = c[0] * t152;
        const V t169 = t168 + t167;
        // output stage
        const V t170 = t130 - t147;
        io.out(1, t170);
        const V t171 = t130 + t147;
        io.out(16, t171);
        const V t172 = t134 + t163;
        io.out(2, t172);
        const V t173 = t134 - t163;
        io.out(15, t173);
        const V t174 = t137 - t169;
        io.out(3, t174);
        const V t175 = t137 + t169;
        io.out(14, t175);
        const V t176 = t131 + t146;
        io.out(4, t176);
        const V t177 = t131 - t146;
        io.out(13, t177);
        const V t178 = t136 + t166;
        io.out(5, t178);
        const V t179 = t136 - t166;
        io.out(12, t179);
        const V t180 = t132 - t156;
        io.out(6, t180);
        const V t181 = t132 + t156;
        io.out(11, t181);
        const V t182 = t133 + t159;
        io.out(7, t182);
        const V t183 = t133 - t159;
        io.out(10, t183);
        const V t184 = t135 + t162;
        io.out(8, t184);
        const V t185 = t135 - t162;
        io.out(9, t185);
    }
};

}  // namespace zulg
