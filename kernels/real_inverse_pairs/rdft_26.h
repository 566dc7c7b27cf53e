// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 26.
// Inverse DFT to 26 real points, prime-factor 2, 13; two lanes to a register.
// 47 sums, 47 differences, 56 products of registers, which do the 324 steps of the graph, those with
// `scale` included; 13 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<26> {
    static constexpr int steps = 324;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 2/3
        0.8660254037844386,  // c[2]: -sin 2 pi 2/3
        0.2869425954512852,  // c[3]: -P[1] of 13
        0.5279915321544383,  // c[4]: -Q[1] of 13
        0.1741386011521359,  // c[5]: P[3] of 13
        0.5751407294740031,  // c[6]: -Q[3] of 13
        0.280148395734785,  // c[7]: Q[5] of 13
        0.5316276774946329,  // c[8]: -P[5] of 13
        0.08333333333333333,  // c[9]: 1/12
        0.5242266395265821,  // c[10]: P[2] of 13
        0.29376443202296976,  // c[11]: -Q[2] of 13
        0.42763404682657274,  // c[12]: P[4] of 13
        0.42218506973345193,  // c[13]: -Q[4] of 13
        0.37034194807495624,  // c[14]: -sin 2 pi 2/3 times P[4] of 13
        0.36562299548767413,  // c[15]: -sin 2 pi 2/3 times -Q[4] of 13
        0.3004626062886658,  // c[16]: -beta of 13
        0.45399358717056765,  // c[17]: -sin 2 pi 2/3 times P[2] of 13
        0.25440746086019866,  // c[18]: -sin 2 pi 2/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x13r = io.re(13);
        // spectrum block of 2
        const V t0 = x0r + x13r;
        const V t1 = x0r - x13r;
        const P x2 = io.pair(2);
        // doubled bins
        const P t2 = c[0] * x2;
        const P x11 = io.pair(11);
        const P t3 = P(c[0], -c[0]) * x11;
        // complex block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x9 = io.pair(9);
        const P t7 = P(c[0], -c[0]) * x9;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x6 = io.pair(6);
        // doubled bins
        const P t10 = c[0] * x6;
        const P x7 = io.pair(7);
        const P t11 = P(c[0], -c[0]) * x7;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        const P x8 = io.pair(8);
        // doubled bins
        const P t14 = c[0] * x8;
        const P x5 = io.pair(5);
        const P t15 = P(c[0], -c[0]) * x5;
        // complex block of 2
        const P t16 = t14 + t15;
        const P t17 = t14 - t15;
        const P x10 = io.pair(10);
        // doubled bins
        const P t18 = c[0] * x10;
        const P x3 = io.pair(3);
        const P t19 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t20 = t18 + t19;
        const P t21 = t18 - t19;
        const P x12 = io.pair(12);
        // doubled bins
        const P t22 = c[0] * x12;
        const P x1 = io.pair(1);
        const P t23 = P(c[0], -c[0]) * x1;
        // complex block of 2
        const P t24 = t22 + t23;
        const P t25 = t22 - t23;
        const P t26 = shuffled<0, 2>(t16, t17);
        const P t27 = shuffled<0, 2>(t12, t13);
        // real block of 3, multiplier 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P t30 = shuffled<0, 2>(t4, t5);
        const P t31 = t28 + t30;
        const P t32 = c[1] * t28;
        const P t33 = t30 - t32;
        const P t34 = shuffled<0, 2>(t24, t25);
        const P t35 = shuffled<0, 2>(t8, t9);
        // real block of 3, multiplier 2
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P t38 = shuffled<0, 2>(t20, t21);
        const P t39 = t36 + t38;
        const P t40 = c[1] * t36;
        const P t41 = t38 - t40;
        // real block of 2
        const P t42 = t31 + t39;
        const P t43 = t31 - t39;
        // complex block of 2
        const P t44 = t33 + t41;
        // real block of 3, multiplier 2
        const P t45 = c[2] * t29;
        // real block of 3, multiplier 2
        const P t46 = c[2] * t37;
        // complex block of 2
        const P t47 = t45 + t46;
        const P t48 = t33 - t41;
        const P t49 = t45 - t46;
        const P t50 = shuffled<1, 3>(t8, t9);
        // skew block of 6
        const P t51 = c[2] * t50;
        const P t52 = shuffled<1, 3>(t12, t13);
        const P t53 = c[1] * t52;
        const P t54 = t51 - t53;
        const P t55 = c[2] * t52;
        const P t56 = c[1] * t50;
        const P t57 = t55 + t56;
        const P t58 = shuffled<1, 3>(t16, t17);
        const P t59 = c[1] * t58;
        const P t60 = shuffled<1, 3>(t24, t25);
        const P t61 = c[2] * t60;
        const P t62 = t59 - t61;
        const P t63 = c[1] * t60;
        const P t64 = c[2] * t58;
        const P t65 = t63 + t64;
        // complex block of 3
        const P t66 = t54 + t62;
        const P t67 = t57 + t65;
        const P t68 = t54 - t62;
        const P t69 = t65 - t57;
        const P t70 = shuffled<1, 3>(t4, t5);
        const P t71 = t66 + t70;
        const P t72 = shuffled<1, 3>(t20, t21);
        const P t73 = t72 - t67;
        const P t74 = c[1] * t66;
        const P t75 = t70 - t74;
        const P t76 = c[1] * t67;
        const P t77 = t76 + t72;
        const P t78 = c[2] * t69;
        const P t79 = t75 + t78;
        const P t80 = c[2] * t68;
        const P t81 = t77 - t80;
        const P t82 = t75 - t78;
        const P t83 = t77 + t80;
        const P t84 = joined(t0, t1);
        // spectrum block of 13, multiplier 2
        const P t85 = c[9] * t42;
        const P t86 = t84 - t85;
        const P t87 = c[3] * t73;
        const P t88 = c[4] * t71;
        const P t89 = t87 - t88;
        const P t90 = c[4] * t73;
        const P t91 = c[3] * t71;
        const P t92 = t90 + t91;
        const P t93 = c[10] * t48;
        const P t94 = c[11] * t49;
        const P t95 = t93 - t94;
        const P t96 = c[5] * t83;
        const P t97 = c[6] * t82;
        const P t98 = t96 - t97;
        const P t99 = c[6] * t83;
        const P t100 = c[5] * t82;
        const P t101 = t99 + t100;
        const P t102 = c[12] * t44;
        const P t103 = c[13] * t47;
        const P t104 = t102 + t103;
        const P t105 = c[7] * t79;
        const P t106 = c[8] * t81;
        const P t107 = t105 + t106;
        const P t108 = c[7] * t81;
        const P t109 = c[8] * t79;
        const P t110 = t108 - t109;
        // spectrum block of 3
        const P t111 = t104 + t86;
        const P t112 = c[1] * t104;
        const P t113 = t86 - t112;
        const P t114 = c[14] * t47;
        const P t115 = c[15] * t44;
        const P t116 = t114 - t115;
        const P t117 = t113 - t116;
        const P t118 = t113 + t116;
        // complex block of 3
        const P t119 = t92 - t110;
        const P t120 = t107 + t89;
        const P t121 = t110 + t92;
        const P t122 = t107 - t89;
        const P t123 = t119 + t101;
        const P t124 = t120 + t98;
        const P t125 = c[1] * t119;
        const P t126 = t101 - t125;
        const P t127 = c[1] * t120;
        const P t128 = t98 - t127;
        const P t129 = c[2] * t122;
        const P t130 = t126 + t129;
        const P t131 = c[2] * t121;
        const P t132 = t128 + t131;
        const P t133 = t126 - t129;
        const P t134 = t128 - t131;
        // spectrum block of 13, multiplier 2
        const P t135 = c[16] * t43;
        // spectrum block of 3
        const P t136 = t95 - t135;
        const P t137 = c[1] * t95;
        const P t138 = t135 + t137;
        const P t139 = c[17] * t49;
        const P t140 = c[18] * t48;
        const P t141 = t139 + t140;
        const P t142 = t138 + t141;
        const P t143 = t141 - t138;
        // spectrum block of 2
        const P t144 = t111 + t136;
        const P t145 = t111 - t136;
        // spectrum block of 2
        const P t146 = t144 + t124;
        io.out(2, 15, t146);
        const P t147 = t144 - t124;
        io.out(24, 11, t147);
        // spectrum block of 2
        const P t148 = t145 + t123;
        io.out(10, 23, t148);
        const P t149 = t145 - t123;
        io.out(16, 3, t149);
        // spectrum block of 2
        const P t150 = t117 - t142;
        const P t151 = t117 + t142;
        // spectrum block of 2
        const P t152 = t150 + t132;
        io.out(18, 5, t152);
        const P t153 = t150 - t132;
        io.out(8, 21, t153);
        // spectrum block of 2
        const P t154 = t151 + t130;
        io.out(12, 25, t154);
        const P t155 = t151 - t130;
        io.out(14, 1, t155);
        // spectrum block of 2
        const P t156 = t118 + t143;
        const P t157 = t118 - t143;
        // spectrum block of 2
        const P t158 = t156 + t134;
        io.out(6, 19, t158);
        const P t159 = t156 - t134;
        io.out(20, 7, t159);
        // spectrum block of 2
        const P t160 = t157 + t133;
        io.out(4, 17, t160);
        const P t161 = t157 - t133;
        io.out(22, 9, t161);
        // spectrum block of 13, multiplier 2
        const P t162 = t84 + t42;
        io.out(0, 13, t162);
    }
};

}  // namespace zulg
