// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 17.
// Hartley transform of 17 points, form F.
// 66 additions, 66 subtractions, 54 multiplications (71 with `scale`); 19 constants; 32 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<17> {
    static constexpr int steps = 203;  // with `scale`
    static constexpr double inverseRoot = 0.24253562503633297;  // 1/sqrt(17), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.9238795325112867,  // c[2]: cos 2 pi 1/16
        0.31717619283272513,  // c[3]: P[4] of 17
        0.40623178445333147,  // c[4]: Q[4] of 17
        0.2906530375466148,  // c[5]: -P[1] of 17
        0.425612278682049,  // c[6]: -Q[1] of 17
        0.5103666946839882,  // c[7]: P[7] of 17
        0.07176933159324189,  // c[8]: Q[7] of 17
        0.07814056923069293,  // c[9]: P[3] of 17
        0.5094301241979152,  // c[10]: -Q[3] of 17
        0.1165738748337385,  // c[11]: -P[5] of 17
        0.5020314050995693,  // c[12]: Q[5] of 17
        0.3809911760447736,  // c[13]: P[2] of 17
        0.347088927763506,  // c[14]: -Q[2] of 17
        0.039110758925753275,  // c[15]: P[6] of 17
        0.5139020806887744,  // c[16]: Q[6] of 17
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
        // real block of 2
        const V x13 = io.in(13);
        const V x4 = io.in(4);
        const V t1 = x13 + x4;
        // real block of 2
        const V t2 = x1 - x16;
        // real block of 2
        const V t3 = x13 - x4;
        // real block of 2
        const V t4 = t0 + t1;
        const V t5 = t0 - t1;
        // real block of 2
        const V x15 = io.in(15);
        const V x2 = io.in(2);
        const V t6 = x15 + x2;
        const V t7 = x15 - x2;
        // real block of 2
        const V x9 = io.in(9);
        const V x8 = io.in(8);
        const V t8 = x9 + x8;
        const V t9 = x9 - x8;
        // real block of 2
        const V t10 = t8 + t6;
        const V t11 = t8 - t6;
        // real block of 16
        const V t12 = t9 - t7;
        const V t13 = c[0] * t12;
        const V t14 = t7 + t9;
        const V t15 = c[0] * t14;
        // real block of 2
        const V x3 = io.in(3);
        const V x14 = io.in(14);
        const V t16 = x3 + x14;
        const V t17 = x3 - x14;
        // real block of 2
        const V x5 = io.in(5);
        const V x12 = io.in(12);
        const V t18 = x5 + x12;
        const V t19 = x5 - x12;
        // real block of 2
        const V x11 = io.in(11);
        const V x6 = io.in(6);
        const V t20 = x11 + x6;
        const V t21 = x11 - x6;
        // real block of 2
        const V x10 = io.in(10);
        const V x7 = io.in(7);
        const V t22 = x10 + x7;
        const V t23 = x10 - x7;
        // real block of 2
        const V t24 = t16 + t18;
        const V t25 = t16 - t18;
        // real block of 2
        const V t26 = t22 - t20;
        // skew block of 4
        const V t27 = t25 - t26;
        const V t28 = t25 + t26;
        // real block of 2
        const V t29 = t22 + t20;
        // real block of 16
        const V t30 = c[1] * t19;
        const V t31 = c[2] * t17;
        const V t32 = t31 - t30;
        const V t33 = c[1] * t17;
        const V t34 = c[2] * t19;
        const V t35 = t34 + t33;
        const V t36 = c[2] * t21;
        const V t37 = c[1] * t23;
        const V t38 = t37 - t36;
        const V t39 = c[2] * t23;
        const V t40 = c[1] * t21;
        const V t41 = t40 + t39;
        // real block of 2
        const V t42 = t4 + t10;
        // real block of 2
        const V t43 = t24 + t29;
        // real block of 2
        const V t44 = t42 + t43;
        const V t45 = t42 - t43;
        // real block of 17
        const V t46 = c[17] * t44;
        // real block of 2
        const V t47 = t4 - t10;
        // real block of 17
        const V t48 = c[3] * t47;
        const V t49 = c[4] * t47;
        // real block of 2
        const V t50 = t24 - t29;
        // real block of 17
        const V t51 = c[4] * t50;
        const V t52 = c[3] * t50;
        // complex block of 2
        const V t53 = t2 + t13;
        // complex block of 2
        const V t54 = t32 + t38;
        // complex block of 2
        const V t55 = t53 + t54;
        const V t56 = t53 - t54;
        // real block of 17
        const V t57 = c[5] * t55;
        const V t58 = c[6] * t55;
        const V t59 = c[7] * t56;
        const V t60 = c[8] * t56;
        // complex block of 2
        const V t61 = t3 + t15;
        // complex block of 2
        const V t62 = t35 + t41;
        // complex block of 2
        const V t63 = t61 + t62;
        const V t64 = t62 - t61;
        // real block of 17
        const V t65 = c[6] * t63;
        const V t66 = c[5] * t63;
        const V t67 = c[8] * t64;
        const V t68 = c[7] * t64;
        // complex block of 2
        const V t69 = t2 - t13;
        // complex block of 2
        const V t70 = t41 - t35;
        // complex block of 2
        const V t71 = t69 + t70;
        const V t72 = t69 - t70;
        // real block of 17
        const V t73 = c[9] * t72;
        const V t74 = c[10] * t72;
        const V t75 = c[11] * t71;
        const V t76 = c[12] * t71;
        // complex block of 2
        const V t77 = t15 - t3;
        // complex block of 2
        const V t78 = t32 - t38;
        // complex block of 2
        const V t79 = t77 - t78;
        const V t80 = t77 + t78;
        // real block of 17
        const V t81 = c[10] * t80;
        const V t82 = c[9] * t80;
        const V t83 = c[12] * t79;
        const V t84 = c[11] * t79;
        // skew block of 4
        const V t85 = c[0] * t27;
        const V t86 = t5 + t85;
        const V t87 = t5 - t85;
        // real block of 17
        const V t88 = c[13] * t86;
        const V t89 = c[14] * t86;
        const V t90 = c[15] * t87;
        const V t91 = c[16] * t87;
        // skew block of 4
        const V t92 = c[0] * t28;
        const V t93 = t92 - t11;
        const V t94 = t11 + t92;
        // real block of 17
        const V t95 = c[14] * t94;
        const V t96 = c[13] * t94;
        const V t97 = c[16] * t93;
        const V t98 = c[15] * t93;
        const V x0 = io.in(0);
        const V t99 = x0 + t44;
        io.out(0, t99);
        const V t100 = x0 - t46;
        const V t101 = c[18] * t45;
        // spectrum block of 2
        const V t102 = t100 + t101;
        const V t103 = t100 - t101;
        // real block of 17
        const V t104 = t48 + t51;
        const V t105 = t49 - t52;
        // spectrum block of 2
        const V t106 = t102 + t104;
        const V t107 = t102 - t104;
        // spectrum block of 2
        const V t108 = t103 - t105;
        const V t109 = t103 + t105;
        // real block of 17
        const V t110 = t57 + t65;
        const V t111 = t59 + t67;
        // complex block of 2
        const V t112 = t110 + t111;
        const V t113 = t110 - t111;
        // real block of 17
        const V t114 = t66 - t58;
        const V t115 = t60 - t68;
        // complex block of 2
        const V t116 = t114 + t115;
        const V t117 = t114 - t115;
        // real block of 17
        const V t118 = t73 - t81;
        const V t119 = t75 + t83;
        // complex block of 2
        const V t120 = t119 + t118;
        const V t121 = t119 - t118;
        // real block of 17
        const V t122 = t82 + t74;
        const V t123 = t76 - t84;
        // complex block of 2
        const V t124 = t123 - t122;
        const V t125 = t123 + t122;
        // complex block of 2
        const V t126 = t112 - t120;
        const V t127 = t116 - t124;
        // complex block of 2
        const V t128 = t113 + t125;
        const V t129 = t117 - t121;
        const V t130 = t113 - t125;
        const V t131 = t117 + t121;
        // real block of 17
        const V t132 = t88 - t95;
        const V t133 = t90 + t97;
        // mirrored skew block of 4
        const V t134 = t132 - t133;
        const V t135 = c[0] * t134;
        const V t136 = t132 + t133;
        // real block of 17
        const V t137 = t96 + t89;
        const V t138 = t91 - t98;
        // mirrored skew block of 4
        const V t139 = t138 - t137;
        const V t140 = c[0] * t139;
        const V t141 = t137 + t138;
        const V t142 = t135 - t140;
        // spectrum block of 2
        const V t143 = t108 + t142;
        const V t144 = t108 - t142;
        // mirrored skew block of 8
        const V t145 = c[1] * t128;
        const V t146 = c[2] * t129;
        const V t147 = t146 - t145;
        const V t148 = c[1] * t129;
        const V t149 = c[2] * t128;
        const V t150 = t149 + t148;
        // output stage
        const V t151 = t143 - t147;
        io.out(6, t151);
        const V t152 = t143 + t147;
        io.out(11, t152);
        const V t153 = t144 + t150;
        io.out(7, t153);
        const V t154 = t144 - t150;
        io.out(10, t154);
        // mirrored skew block of 4
        const V t155 = t135 + t140;
        // spectrum block of 2
        const V t156 = t109 - t155;
        const V t157 = t109 + t155;
        // mirrored skew block of 8
        const V t158 = c[2] * t130;
        const V t159 = c[1] * t131;
        const V t160 = t159 - t158;
        const V t161 = c[2] * t131;
        const V t162 = c[1] * t130;
        const V t163 = t162 + t161;
        // output stage
        const V t164 = t157 - t163;
        io.out(3, t164);
        const V t165 = t157 + t163;
        io.out(14, t165);
        const V t166 = t156 + t160;
        io.out(5, t166);
        const V t167 = t156 - t160;
        io.out(12, t167);
        // spectrum block of 2
        const V t168 = t106 + t136;
        // complex block of 2
        const V t169 = t116 + t124;
        // output stage
        const V t170 = t168 - t169;
        io.out(1, t170);
        const V t171 = t168 + t169;
        io.out(16, t171);
        // spectrum block of 2
        const V t172 = t106 - t136;
        // complex block of 2
        const V t173 = t112 + t120;
        // output stage
        const V t174 = t172 + t173;
        io.out(4, t174);
        const V t175 = t172 - t173;
        io.out(13, t175);
        // spectrum block of 2
        const V t176 = t107 + t141;
        const V t177 = t107 - t141;
        // mirrored skew block of 8
        const V t178 = c[0] * t127;
        const V t179 = c[0] * t126;
        const V t180 = t178 + t179;
        const V t181 = t179 - t178;
        // output stage
        const V t182 = t176 + t181;
        io.out(2, t182);
        const V t183 = t176 - t181;
        io.out(15, t183);
        const V t184 = t177 + t180;
        io.out(8, t184);
        const V t185 = t177 - t180;
        io.out(9, t185);
    }
};

}  // namespace zulg
