// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 17.
// Complex DFT of 17 points, Rader block; one complex number to a register.
// 71 sums, 61 differences, 54 products of registers, which do the 406 steps of the graph, those with
// `scale` included; 12 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<17> {
    static constexpr int steps = 406;  // with `scale`
    static constexpr double inverseRoot = 0.24253562503633297;  // 1/sqrt(17), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.2906530375466148,  // c[3]: -P[1] of 17
        0.425612278682049,  // c[4]: Q[1] of 17
        0.3809911760447736,  // c[5]: P[2] of 17
        0.347088927763506,  // c[6]: -Q[2] of 17
        0.5094301241979152,  // c[7]: Q[3] of 17
        0.07814056923069293,  // c[8]: P[3] of 17
        0.31717619283272513,  // c[9]: P[4] of 17
        0.40623178445333147,  // c[10]: Q[4] of 17
        0.5020314050995693,  // c[11]: -Q[5] of 17
        0.1165738748337385,  // c[12]: -P[5] of 17
        0.039110758925753275,  // c[13]: P[6] of 17
        0.5139020806887744,  // c[14]: Q[6] of 17
        0.07176933159324189,  // c[15]: -Q[7] of 17
        0.5103666946839882,  // c[16]: P[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x16 = io.pair(16);
        // real block of 2
        const P t0 = x1 + x16;
        const P t1 = x1 - x16;
        const P x13 = io.pair(13);
        const P x4 = io.pair(4);
        // real block of 2
        const P t2 = x13 + x4;
        const P t3 = x13 - x4;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x3 = io.pair(3);
        const P x14 = io.pair(14);
        // real block of 2
        const P t6 = x3 + x14;
        const P t7 = x3 - x14;
        const P x5 = io.pair(5);
        const P x12 = io.pair(12);
        // real block of 2
        const P t8 = x5 + x12;
        const P t9 = x5 - x12;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x9 = io.pair(9);
        const P x8 = io.pair(8);
        // real block of 2
        const P t12 = x9 + x8;
        const P t13 = x9 - x8;
        const P x15 = io.pair(15);
        const P x2 = io.pair(2);
        // real block of 2
        const P t14 = x15 + x2;
        const P t15 = x15 - x2;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        const P x10 = io.pair(10);
        const P x7 = io.pair(7);
        // real block of 2
        const P t18 = x10 + x7;
        const P t19 = x10 - x7;
        const P x11 = io.pair(11);
        const P x6 = io.pair(6);
        // real block of 2
        const P t20 = x11 + x6;
        const P t21 = x11 - x6;
        // real block of 2
        const P t22 = t18 + t20;
        const P t23 = t18 - t20;
        // real block of 2
        const P t24 = t4 + t16;
        const P t25 = t4 - t16;
        // real block of 2
        const P t26 = t10 + t22;
        const P t27 = t10 - t22;
        // real block of 2
        const P t28 = t24 + t26;
        const P t29 = t24 - t26;
        // real block of 16
        const P t30 = c[0] * t7;
        const P t31 = c[1] * t9;
        const P t32 = t30 - t31;
        const P t33 = c[0] * t9;
        const P t34 = c[1] * t7;
        const P t35 = t33 + t34;
        const P t36 = t13 - t15;
        const P t37 = t15 + t13;
        const P t38 = c[1] * t19;
        const P t39 = c[0] * t21;
        const P t40 = t38 - t39;
        const P t41 = c[1] * t21;
        const P t42 = c[0] * t19;
        const P t43 = t41 + t42;
        const P t44 = c[2] * t36;
        // complex block of 2
        const P t45 = t1 + t44;
        // real block of 16
        const P t46 = c[2] * t37;
        // complex block of 2
        const P t47 = t3 + t46;
        const P t48 = t1 - t44;
        const P t49 = t46 - t3;
        // complex block of 2
        const P t50 = t32 + t40;
        const P t51 = t35 + t43;
        const P t52 = t32 - t40;
        const P t53 = t43 - t35;
        // complex block of 2
        const P t54 = t45 + t50;
        const P t55 = t47 + t51;
        const P t56 = t45 - t50;
        const P t57 = t51 - t47;
        // complex block of 2
        const P t58 = t48 + t53;
        const P t59 = t49 - t52;
        const P t60 = t48 - t53;
        const P t61 = t49 + t52;
        // skew block of 4
        const P t62 = t11 - t23;
        const P t63 = t11 + t23;
        const P t64 = c[2] * t63;
        const P t65 = t64 - t17;
        const P t66 = c[2] * t62;
        const P t67 = t5 + t66;
        const P t68 = t17 + t64;
        const P t69 = t5 - t66;
        const P x0 = io.pair(0);
        // complex block of 17
        const P t70 = x0 + t28;
        io.pair(0, t70);
        const P t71 = c[17] * t28;
        const P t72 = x0 - t71;
        const P t73 = shuffled<1, 0>(t55);
        const P t74 = P(-c[3], c[3]) * t73;
        const P t75 = shuffled<1, 0>(t54);
        const P t76 = P(c[4], -c[4]) * t75;
        const P t77 = t74 + t76;
        const P t78 = c[4] * t73;
        const P t79 = c[3] * t75;
        const P t80 = t78 + t79;
        const P t81 = c[5] * t67;
        const P t82 = c[6] * t68;
        const P t83 = t81 - t82;
        const P t84 = c[5] * t68;
        const P t85 = c[6] * t67;
        const P t86 = t84 + t85;
        const P t87 = shuffled<1, 0>(t60);
        const P t88 = c[7] * t87;
        const P t89 = shuffled<1, 0>(t61);
        const P t90 = c[8] * t89;
        const P t91 = t88 + t90;
        const P t92 = P(-c[7], c[7]) * t89;
        const P t93 = P(c[8], -c[8]) * t87;
        const P t94 = t92 + t93;
        const P t95 = c[9] * t25;
        const P t96 = c[10] * t27;
        const P t97 = t95 + t96;
        const P t98 = c[10] * t25;
        const P t99 = c[9] * t27;
        const P t100 = t98 - t99;
        const P t101 = shuffled<1, 0>(t58);
        const P t102 = P(-c[11], c[11]) * t101;
        const P t103 = shuffled<1, 0>(t59);
        const P t104 = P(c[12], -c[12]) * t103;
        const P t105 = t102 + t104;
        const P t106 = c[11] * t103;
        const P t107 = c[12] * t101;
        const P t108 = t106 + t107;
        const P t109 = c[13] * t69;
        const P t110 = c[14] * t65;
        const P t111 = t109 + t110;
        const P t112 = c[14] * t69;
        const P t113 = c[13] * t65;
        const P t114 = t112 - t113;
        const P t115 = shuffled<1, 0>(t56);
        const P t116 = P(-c[15], c[15]) * t115;
        const P t117 = shuffled<1, 0>(t57);
        const P t118 = P(c[16], -c[16]) * t117;
        const P t119 = t116 + t118;
        const P t120 = c[15] * t117;
        const P t121 = c[16] * t115;
        const P t122 = t120 + t121;
        const P t123 = c[18] * t29;
        // spectrum block of 2
        const P t124 = t72 + t123;
        const P t125 = t72 - t123;
        // spectrum block of 2
        const P t126 = t124 + t97;
        const P t127 = t124 - t97;
        // spectrum block of 2
        const P t128 = t125 - t100;
        const P t129 = t125 + t100;
        // complex block of 2
        const P t130 = t80 + t122;
        const P t131 = t77 + t119;
        const P t132 = shuffled<0, 3>(t122, t80);
        const P t133 = shuffled<0, 3>(t80, t122);
        const P t134 = t132 - t133;
        const P t135 = t77 - t119;
        const P t136 = flipped<0, 1>(t94);
        // complex block of 2
        const P t137 = t108 + t136;
        const P t138 = flipped<0, 1>(t91);
        const P t139 = t105 + t138;
        const P t140 = flipped<1, 0>(t108);
        const P t141 = t140 + t94;
        const P t142 = t105 - t138;
        // complex block of 2
        const P t143 = t130 + t137;
        const P t144 = t131 + t139;
        const P t145 = shuffled<0, 3>(t137, t130);
        const P t146 = shuffled<0, 3>(t130, t137);
        const P t147 = t145 - t146;
        const P t148 = t131 - t139;
        // complex block of 2
        const P t149 = t134 + t142;
        const P t150 = t135 - t141;
        const P t151 = t134 - t142;
        const P t152 = t135 + t141;
        // spectrum block of 16
        const P t153 = c[0] * t150;
        const P t154 = c[1] * t149;
        const P t155 = t153 - t154;
        const P t156 = c[0] * t149;
        const P t157 = c[1] * t150;
        const P t158 = t156 + t157;
        const P t159 = t148 + t147;
        const P t160 = t147 - t148;
        const P t161 = c[1] * t152;
        const P t162 = c[0] * t151;
        const P t163 = t161 - t162;
        const P t164 = c[1] * t151;
        const P t165 = c[0] * t152;
        const P t166 = t164 + t165;
        // mirrored skew block of 4
        const P t167 = t83 - t111;
        const P t168 = t114 - t86;
        const P t169 = t83 + t111;
        const P t170 = c[2] * t167;
        const P t171 = c[2] * t168;
        const P t172 = t170 - t171;
        const P t173 = t86 + t114;
        const P t174 = t170 + t171;
        // spectrum block of 2
        const P t175 = t126 + t169;
        const P t176 = t126 - t169;
        // spectrum block of 2
        const P t177 = t175 + t144;
        io.pair(1, t177);
        const P t178 = t175 - t144;
        io.pair(16, t178);
        const P t179 = flipped<0, 1>(t143);
        // spectrum block of 2
        const P t180 = t176 + t179;
        io.pair(4, t180);
        const P t181 = t176 - t179;
        io.pair(13, t181);
        // spectrum block of 2
        const P t182 = t128 + t172;
        const P t183 = t128 - t172;
        // spectrum block of 2
        const P t184 = t182 + t155;
        io.pair(6, t184);
        const P t185 = t182 - t155;
        io.pair(11, t185);
        // spectrum block of 2
        const P t186 = t183 - t158;
        io.pair(7, t186);
        const P t187 = t183 + t158;
        io.pair(10, t187);
        // spectrum block of 2
        const P t188 = t127 + t173;
        const P t189 = t127 - t173;
        // spectrum block of 16
        const P t190 = c[2] * t160;
        // spectrum block of 2
        const P t191 = t188 - t190;
        io.pair(2, t191);
        const P t192 = t188 + t190;
        io.pair(15, t192);
        // spectrum block of 16
        const P t193 = c[2] * t159;
        // spectrum block of 2
        const P t194 = t189 - t193;
        io.pair(8, t194);
        const P t195 = t189 + t193;
        io.pair(9, t195);
        // spectrum block of 2
        const P t196 = t129 - t174;
        const P t197 = t129 + t174;
        // spectrum block of 2
        const P t198 = t196 + t163;
        io.pair(12, t198);
        const P t199 = t196 - t163;
        io.pair(5, t199);
        // spectrum block of 2
        const P t200 = t197 - t166;
        io.pair(14, t200);
        const P t201 = t197 + t166;
        io.pair(3, t201);
    }
};

}  // namespace zulg
