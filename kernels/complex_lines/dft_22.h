// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 22.
// Complex DFT of 22 points, prime-factor, order 2, 11; two lines of a stage to a register.
// 53 sums, 37 differences, 50 products of registers, which do the 600 steps of the graph, those with
// `scale` included; 27 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<22> {
    static constexpr int steps = 600;  // with `scale`
    static constexpr double inverseRoot = 0.21320071635561041;  // 1/sqrt(22), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.21879791731559586,  // c[4]: -P[1] of 11
        0.6262008235209833,  // c[5]: Q[1] of 11
        0.5457579199356125,  // c[6]: P[2] of 11
        0.3770255864361907,  // c[7]: -Q[2] of 11
        0.6150936508690751,  // c[8]: Q[3] of 11
        0.24831391555962465,  // c[9]: P[3] of 11
        0.6626305969383026,  // c[10]: -Q[4] of 11
        0.030342906933726127,  // c[11]: -P[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const P x10 = io.pair(10);
        const P x21 = io.pair(21);
        // complex block of 2
        const P t0 = x10 + x21;
        const P t1 = x10 - x21;
        const Q x0_12 = io.pairs(0, 12);
        const Q x11_1 = io.pairs(11, 1);
        // complex block of 2
        const Q t2 = x0_12 + x11_1;
        const Q t3 = x0_12 - x11_1;
        const Q x2_14 = io.pairs(2, 14);
        const Q x13_3 = io.pairs(13, 3);
        // complex block of 2
        const Q t4 = x2_14 + x13_3;
        const Q t5 = x2_14 - x13_3;
        const Q x4_16 = io.pairs(4, 16);
        const Q x15_5 = io.pairs(15, 5);
        // complex block of 2
        const Q t6 = x4_16 + x15_5;
        const Q t7 = x4_16 - x15_5;
        const Q x6_18 = io.pairs(6, 18);
        const Q x17_7 = io.pairs(17, 7);
        // complex block of 2
        const Q t8 = x6_18 + x17_7;
        const Q t9 = x6_18 - x17_7;
        const Q x8_20 = io.pairs(8, 20);
        const Q x19_9 = io.pairs(19, 9);
        // complex block of 2
        const Q t10 = x8_20 + x19_9;
        const Q t11 = x8_20 - x19_9;
        const Q t12 = shuffled<0, 1, 4, 5>(t10, t11);
        const Q t13 = shuffled<0, 1, 4, 5>(t8, t9);
        // real block of 5, multiplier 2
        const Q t14 = t12 + t13;
        const Q t15 = t12 - t13;
        const Q t16 = shuffled<2, 3, 6, 7>(t8, t9);
        const Q t17 = joined(t0, t1);
        const Q t18 = t16 + t17;
        const Q t19 = t16 - t17;
        const Q t20 = t14 + t18;
        const Q t21 = shuffled<0, 1, 4, 5>(t4, t5);
        const Q t22 = t20 + t21;
        const Q t23 = c[0] * t14;
        const Q t24 = t21 - t23;
        const Q t25 = c[1] * t18;
        const Q t26 = t24 + t25;
        const Q t27 = c[2] * t15;
        const Q t28 = c[3] * t19;
        const Q t29 = t27 + t28;
        const Q t30 = c[1] * t14;
        const Q t31 = c[0] * t18;
        const Q t32 = t30 - t31;
        const Q t33 = t32 + t21;
        const Q t34 = c[3] * t15;
        const Q t35 = c[2] * t19;
        const Q t36 = t34 - t35;
        const Q t37 = shuffled<2, 3, 6, 7>(t4, t5);
        const Q t38 = shuffled<2, 3, 6, 7>(t6, t7);
        // real block of 5, multiplier 2
        const Q t39 = t37 + t38;
        const Q t40 = t37 - t38;
        const Q t41 = shuffled<0, 1, 4, 5>(t6, t7);
        const Q t42 = shuffled<2, 3, 6, 7>(t2, t3);
        const Q t43 = t41 + t42;
        const Q t44 = t41 - t42;
        const Q t45 = t39 + t43;
        const Q t46 = shuffled<2, 3, 6, 7>(t10, t11);
        const Q t47 = t45 + t46;
        const Q t48 = c[0] * t39;
        const Q t49 = t46 - t48;
        const Q t50 = c[1] * t43;
        const Q t51 = t49 + t50;
        const Q t52 = c[2] * t40;
        const Q t53 = c[3] * t44;
        const Q t54 = t52 + t53;
        const Q t55 = c[1] * t39;
        const Q t56 = c[0] * t43;
        const Q t57 = t55 - t56;
        const Q t58 = t57 + t46;
        const Q t59 = c[3] * t40;
        const Q t60 = c[2] * t44;
        const Q t61 = t59 - t60;
        // real block of 2
        const Q t62 = t22 + t47;
        const Q t63 = t22 - t47;
        // complex block of 2
        const Q t64 = t26 + t51;
        const Q t65 = t29 + t54;
        const Q t66 = t26 - t51;
        const Q t67 = t54 - t29;
        // complex block of 2
        const Q t68 = t33 + t58;
        const Q t69 = t36 + t61;
        const Q t70 = t33 - t58;
        const Q t71 = t36 - t61;
        const Q t72 = shuffled<0, 1, 4, 5>(t2, t3);
        // complex block of 11, multiplier 2
        const Q t73 = t72 + t62;
        const Q t74 = c[12] * t62;
        const Q t75 = t72 - t74;
        const Q t76 = shuffled<1, 0, 3, 2>(t71);
        const Q t77 = Q(-c[4], c[4], -c[4], c[4]) * t76;
        const Q t78 = shuffled<1, 0, 3, 2>(t70);
        const Q t79 = Q(c[5], -c[5], c[5], -c[5]) * t78;
        const Q t80 = t77 + t79;
        const Q t81 = c[5] * t76;
        const Q t82 = c[4] * t78;
        const Q t83 = t81 + t82;
        const Q t84 = c[6] * t64;
        const Q t85 = c[7] * t65;
        const Q t86 = t84 - t85;
        const Q t87 = c[6] * t65;
        const Q t88 = c[7] * t64;
        const Q t89 = t87 + t88;
        const Q t90 = shuffled<1, 0, 3, 2>(t66);
        const Q t91 = c[8] * t90;
        const Q t92 = shuffled<1, 0, 3, 2>(t67);
        const Q t93 = c[9] * t92;
        const Q t94 = t91 + t93;
        const Q t95 = Q(-c[8], c[8], -c[8], c[8]) * t92;
        const Q t96 = Q(c[9], -c[9], c[9], -c[9]) * t90;
        const Q t97 = t95 + t96;
        const Q t98 = c[10] * t69;
        const Q t99 = c[11] * t68;
        const Q t100 = t98 - t99;
        const Q t101 = c[11] * t69;
        const Q t102 = c[10] * t68;
        const Q t103 = t101 + t102;
        const Q t104 = shuffled<1, 0, 3, 2>(t63);
        const Q t105 = Q(-c[13], c[13], -c[13], c[13]) * t104;
        // spectrum block of 2
        const Q t106 = t75 + t105;
        const Q t107 = t75 - t105;
        // complex block of 2
        const Q t108 = t89 + t97;
        const Q t109 = flipped<0, 1, 0, 1>(t94);
        const Q t110 = t86 + t109;
        const Q t111 = t97 - t89;
        const Q t112 = t86 - t109;
        const Q t113 = flipped<1, 0, 1, 0>(t103);
        // complex block of 2
        const Q t114 = t113 + t83;
        const Q t115 = t100 + t80;
        const Q t116 = t83 - t113;
        const Q t117 = t100 - t80;
        // spectrum block of 5, multiplier 2
        const Q t118 = t110 + t115;
        const Q t119 = t118 + t106;
        const Q t120 = c[1] * t110;
        const Q t121 = c[0] * t115;
        const Q t122 = t120 - t121;
        const Q t123 = t122 + t106;
        const Q t124 = Q(-c[3], c[3], -c[3], c[3]) * t108;
        const Q t125 = c[2] * t114;
        const Q t126 = t124 + t125;
        const Q t127 = flipped<1, 0, 1, 0>(t126);
        const Q t128 = t123 + t127;
        const Q t129 = shuffled<0, 1, 6, 7>(t128, t73);
        io.pairs(10, 11, t129);
        const Q t130 = t123 - t127;
        const Q t131 = c[0] * t110;
        const Q t132 = t106 - t131;
        const Q t133 = c[1] * t115;
        const Q t134 = t132 + t133;
        const Q t135 = c[3] * t114;
        const Q t136 = Q(c[2], -c[2], c[2], -c[2]) * t108;
        const Q t137 = t135 + t136;
        const Q t138 = flipped<0, 1, 0, 1>(t137);
        const Q t139 = t134 + t138;
        const Q t140 = shuffled<0, 1, 6, 7>(t139, t130);
        io.pairs(6, 7, t140);
        const Q t141 = t134 - t138;
        const Q t142 = shuffled<0, 1, 6, 7>(t130, t141);
        io.pairs(18, 19, t142);
        // spectrum block of 5, multiplier 2
        const Q t143 = t112 + t117;
        const Q t144 = t143 + t107;
        const Q t145 = shuffled<0, 1, 6, 7>(t141, t144);
        io.pairs(8, 9, t145);
        const Q t146 = shuffled<0, 1, 6, 7>(t144, t128);
        io.pairs(20, 21, t146);
        const Q t147 = c[1] * t112;
        const Q t148 = c[0] * t117;
        const Q t149 = t147 - t148;
        const Q t150 = t149 + t107;
        const Q t151 = c[3] * t111;
        const Q t152 = Q(-c[2], c[2], -c[2], c[2]) * t116;
        const Q t153 = t151 + t152;
        const Q t154 = t150 - t153;
        const Q t155 = shuffled<0, 1, 6, 7>(t73, t154);
        io.pairs(0, 1, t155);
        const Q t156 = shuffled<0, 1, 6, 7>(t154, t119);
        io.pairs(12, 13, t156);
        const Q t157 = t150 + t153;
        const Q t158 = c[0] * t112;
        const Q t159 = t107 - t158;
        const Q t160 = c[1] * t117;
        const Q t161 = t159 + t160;
        const Q t162 = c[2] * t111;
        const Q t163 = Q(c[3], -c[3], c[3], -c[3]) * t116;
        const Q t164 = t162 + t163;
        const Q t165 = t161 - t164;
        const Q t166 = shuffled<0, 1, 6, 7>(t157, t165);
        io.pairs(4, 5, t166);
        const Q t167 = shuffled<0, 1, 6, 7>(t165, t139);
        io.pairs(16, 17, t167);
        const Q t168 = t161 + t164;
        const Q t169 = shuffled<0, 1, 6, 7>(t119, t168);
        io.pairs(2, 3, t169);
        const Q t170 = shuffled<0, 1, 6, 7>(t168, t157);
        io.pairs(14, 15, t170);
    }
};

}  // namespace zulg
