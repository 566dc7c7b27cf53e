// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 22.
// Inverse DFT to 22 real points, prime-factor 11, 2; two lanes to a register.
// 47 sums, 33 differences, 60 products of registers, which do the 300 steps of the graph, those with
// `scale` included; 24 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<22> {
    static constexpr int steps = 300;  // with `scale`
    static constexpr double inverseRoot = 0.21320071635561041;  // 1/sqrt(22), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 3/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.6262008235209833,  // c[5]: -Q[1] of 11
        0.21879791731559586,  // c[6]: P[1] of 11
        0.5457579199356125,  // c[7]: P[2] of 11
        0.3770255864361907,  // c[8]: -Q[2] of 11
        0.6150936508690751,  // c[9]: -Q[3] of 11
        0.24831391555962465,  // c[10]: -P[3] of 11
        0.030342906933726127,  // c[11]: -P[4] of 11
        0.6626305969383026,  // c[12]: -Q[4] of 11
        0.1,  // c[13]: 1/10
        0.33166247903553997,  // c[14]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x4 = io.pair(4);
        // doubled bins
        const P t0 = c[0] * x4;
        const P x7 = io.pair(7);
        const P t1 = c[0] * x7;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x10 = io.pair(10);
        const P t3 = c[0] * x10;
        const P x1 = io.pair(1);
        const P t4 = c[0] * x1;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 5
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x6 = io.pair(6);
        // doubled bins
        const P t8 = c[0] * x6;
        const P x5 = io.pair(5);
        const P t9 = c[0] * x5;
        const P t10 = shuffled<0, 2>(t8, t9);
        const P x8 = io.pair(8);
        const P t11 = c[0] * x8;
        const P x3 = io.pair(3);
        const P t12 = c[0] * x3;
        const P t13 = shuffled<0, 2>(t11, t12);
        // real block of 5
        const P t14 = t10 + t13;
        const P t15 = t10 - t13;
        const P t16 = t6 + t14;
        const P x2 = io.pair(2);
        // doubled bins
        const P t17 = c[0] * x2;
        const P x9 = io.pair(9);
        const P t18 = c[0] * x9;
        const P t19 = shuffled<0, 2>(t17, t18);
        // real block of 5
        const P t20 = t16 + t19;
        const P t21 = c[1] * t6;
        const P t22 = c[2] * t14;
        const P t23 = t21 - t22;
        const P t24 = t23 + t19;
        const P t25 = c[3] * t15;
        const P t26 = c[4] * t7;
        const P t27 = t25 - t26;
        const P t28 = c[2] * t6;
        const P t29 = t19 - t28;
        const P t30 = c[1] * t14;
        const P t31 = t29 + t30;
        const P t32 = c[3] * t7;
        const P t33 = c[4] * t15;
        const P t34 = t32 + t33;
        const P t35 = shuffled<1, 3>(t3, t1);
        const P t36 = shuffled<1, 3>(t0, t4);
        // real block of 5
        const P t37 = t35 - t36;
        const P t38 = t35 + t36;
        const P t39 = shuffled<1, 3>(t8, t9);
        const P t40 = shuffled<1, 3>(t11, t12);
        const P t41 = t39 + t40;
        const P t42 = shuffled<0, 3>(t39, t40);
        const P t43 = shuffled<0, 3>(t40, t39);
        const P t44 = t42 - t43;
        const P t45 = flipped<0, 1>(t41);
        const P t46 = t37 + t45;
        const P t47 = shuffled<1, 3>(t17, t18);
        const P t48 = flipped<0, 1>(t47);
        const P t49 = t46 + t48;
        const P t50 = c[1] * t37;
        const P t51 = P(-c[2], c[2]) * t41;
        const P t52 = t50 + t51;
        const P t53 = t52 + t48;
        const P t54 = c[3] * t44;
        const P t55 = P(c[4], -c[4]) * t38;
        const P t56 = t54 + t55;
        const P t57 = P(-c[2], c[2]) * t37;
        const P t58 = t47 + t57;
        const P t59 = c[1] * t41;
        const P t60 = t58 + t59;
        const P t61 = c[3] * t38;
        const P t62 = P(-c[4], c[4]) * t44;
        const P t63 = t61 + t62;
        const V x0r = io.re(0);
        const V x11r = io.re(11);
        const P t64 = joined(x0r, x11r);
        // spectrum block of 11, multiplier 2
        const P t65 = c[13] * t20;
        const P t66 = t64 - t65;
        const P t67 = P(-c[5], c[5]) * t60;
        const P t68 = P(c[6], -c[6]) * t63;
        const P t69 = t67 + t68;
        const P t70 = c[5] * t63;
        const P t71 = c[6] * t60;
        const P t72 = t70 + t71;
        const P t73 = c[7] * t24;
        const P t74 = c[8] * t27;
        const P t75 = t73 + t74;
        const P t76 = c[7] * t27;
        const P t77 = c[8] * t24;
        const P t78 = t76 - t77;
        const P t79 = c[9] * t53;
        const P t80 = c[10] * t56;
        const P t81 = t79 + t80;
        const P t82 = c[9] * t56;
        const P t83 = c[10] * t53;
        const P t84 = t82 - t83;
        const P t85 = c[11] * t31;
        const P t86 = c[12] * t34;
        const P t87 = t85 + t86;
        const P t88 = c[11] * t34;
        const P t89 = c[12] * t31;
        const P t90 = t88 - t89;
        const P t91 = c[14] * t49;
        // spectrum block of 2
        const P t92 = t66 + t91;
        const P t93 = t66 - t91;
        // complex block of 2
        const P t94 = t78 - t84;
        const P t95 = t75 - t81;
        const P t96 = t78 + t84;
        const P t97 = t75 + t81;
        const P t98 = flipped<1, 0>(t72);
        // complex block of 2
        const P t99 = t90 + t98;
        const P t100 = t69 - t87;
        const P t101 = t90 - t98;
        const P t102 = t87 + t69;
        // spectrum block of 5, multiplier 2
        const P t103 = t95 + t100;
        const P t104 = t103 + t92;
        const P t105 = c[1] * t95;
        const P t106 = c[2] * t100;
        const P t107 = t105 - t106;
        const P t108 = t107 + t92;
        const P t109 = c[4] * t94;
        const P t110 = c[3] * t99;
        const P t111 = t109 + t110;
        const P t112 = t108 - t111;
        const P t113 = t108 + t111;
        const P t114 = c[2] * t95;
        const P t115 = t92 - t114;
        const P t116 = c[1] * t100;
        const P t117 = t115 + t116;
        const P t118 = c[3] * t94;
        const P t119 = c[4] * t99;
        const P t120 = t118 - t119;
        const P t121 = t117 - t120;
        const P t122 = t117 + t120;
        // spectrum block of 5, multiplier 2
        const P t123 = t97 - t102;
        const P t124 = t123 + t93;
        const P t125 = c[1] * t97;
        const P t126 = c[2] * t102;
        const P t127 = t125 + t126;
        const P t128 = t127 + t93;
        const P t129 = c[4] * t96;
        const P t130 = c[3] * t101;
        const P t131 = t129 + t130;
        const P t132 = t128 - t131;
        const P t133 = t128 + t131;
        const P t134 = c[2] * t97;
        const P t135 = t93 - t134;
        const P t136 = c[1] * t102;
        const P t137 = t135 - t136;
        const P t138 = c[3] * t96;
        const P t139 = c[4] * t101;
        const P t140 = t138 - t139;
        const P t141 = t137 - t140;
        const P t142 = t137 + t140;
        // spectrum block of 11, multiplier 2
        const P t143 = t64 + t20;
        const P t144 = shuffled<0, 2>(t143, t104);
        const P t145 = shuffled<1, 3>(t143, t104);
        // spectrum block of 2
        const P t146 = t144 + t145;
        io.out(0, 2, t146);
        const P t147 = t144 - t145;
        io.out(11, 13, t147);
        const P t148 = shuffled<0, 2>(t133, t121);
        const P t149 = shuffled<1, 3>(t133, t121);
        // spectrum block of 2
        const P t150 = t148 + t149;
        io.out(4, 6, t150);
        const P t151 = t148 - t149;
        io.out(15, 17, t151);
        const P t152 = shuffled<0, 2>(t122, t112);
        const P t153 = shuffled<1, 3>(t122, t112);
        // spectrum block of 2
        const P t154 = t152 + t153;
        io.out(8, 10, t154);
        const P t155 = t152 - t153;
        io.out(19, 21, t155);
        const P t156 = shuffled<0, 2>(t132, t142);
        const P t157 = shuffled<1, 3>(t132, t142);
        // spectrum block of 2
        const P t158 = t156 + t157;
        io.out(12, 14, t158);
        const P t159 = t156 - t157;
        io.out(1, 3, t159);
        const P t160 = shuffled<0, 2>(t141, t113);
        const P t161 = shuffled<1, 3>(t141, t113);
        // spectrum block of 2
        const P t162 = t160 + t161;
        io.out(16, 18, t162);
        const P t163 = t160 - t161;
        io.out(5, 7, t163);
        const V t164 = part<0>(t124);
        const V t165 = part<1>(t124);
        // spectrum block of 2
        const V t166 = t164 + t165;
        io.out(20, t166);
        const V t167 = t164 - t165;
        io.out(9, t167);
    }
};

}  // namespace zulg
