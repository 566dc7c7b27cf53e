// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 19.
// Inverse DFT to 19 real points, Rader 2, 9; two lanes to a register.
// 52 sums, 32 differences, 65 products of registers, which do the 311 steps of the graph, those with
// `scale` included; 26 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<19> {
    static constexpr int steps = 311;  // with `scale`
    static constexpr double inverseRoot = 0.22941573387056174;  // 1/sqrt(19), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        2.0,  // c[2]: 2
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.984807753012208,  // c[4]: sin 2 pi 2/9
        0.6427876096865394,  // c[5]: sin 2 pi 1/9
        0.766044443118978,  // c[6]: cos 2 pi 1/9
        0.4748879284463634,  // c[7]: -Q[1] of 19
        0.09512810652215012,  // c[8]: P[1] of 19
        0.35860066823859316,  // c[9]: Q[2] of 19
        0.32553565392043055,  // c[10]: P[2] of 19
        0.04733572347201245,  // c[11]: Q[3] of 19
        0.48200335114804865,  // c[12]: -P[3] of 19
        0.3169022121664568,  // c[13]: Q[4] of 19
        0.3662524937233519,  // c[14]: P[4] of 19
        0.3712153751939134,  // c[15]: Q[5] of 19
        0.31107402086032515,  // c[16]: P[5] of 19
        0.1480904714883096,  // c[17]: -P[6] of 19
        0.46112591934192776,  // c[18]: Q[6] of 19
        0.026201587005319653,  // c[19]: -Q[7] of 19
        0.48361283902825675,  // c[20]: -P[7] of 19
        0.4576751211007174,  // c[21]: P[8] of 19
        0.1584341653811184,  // c[22]: -Q[8] of 19
        0.9396926207859084,  // c[23]: -cos 2 pi 5/9
        0.3420201433256687,  // c[24]: -sin 2 pi 5/9
        0.1503837331804353,  // c[25]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[26]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[27]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[28]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.05555555555555555,  // c[29]: 1/18
        0.2421610524189263,  // c[30]: -beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x7 = io.pair(7);
        // doubled bins
        const P t0 = c[2] * x7;
        const P x8 = io.pair(8);
        const P t1 = P(c[2], -c[2]) * x8;
        // real block of 3
        const P t2 = t0 + t1;
        const P t3 = flipped<0, 1>(t1);
        const P t4 = flipped<1, 0>(t0);
        const P t5 = t3 + t4;
        const P x1 = io.pair(1);
        // doubled bins
        const P t6 = c[2] * x1;
        // real block of 3
        const P t7 = t2 + t6;
        const P t8 = c[0] * t2;
        const P t9 = t6 - t8;
        const P x5 = io.pair(5);
        // doubled bins
        const P t10 = c[2] * x5;
        const P x3 = io.pair(3);
        const P t11 = P(c[2], -c[2]) * x3;
        // real block of 3
        const P t12 = t10 + t11;
        const P t13 = flipped<0, 1>(t11);
        const P t14 = flipped<1, 0>(t10);
        const P t15 = t13 + t14;
        const P x2 = io.pair(2);
        // doubled bins
        const P t16 = P(c[2], -c[2]) * x2;
        // real block of 3
        const P t17 = t12 + t16;
        const P t18 = flipped<0, 1>(t16);
        const P t19 = P(-c[0], c[0]) * t12;
        const P t20 = t18 + t19;
        const P x6 = io.pair(6);
        // doubled bins
        const P t21 = c[2] * x6;
        const P x9 = io.pair(9);
        const P t22 = c[2] * x9;
        // real block of 3
        const P t23 = t21 + t22;
        const P t24 = t21 - t22;
        const P x4 = io.pair(4);
        // doubled bins
        const P t25 = c[2] * x4;
        // real block of 3
        const P t26 = t23 + t25;
        const P t27 = c[0] * t23;
        const P t28 = t25 - t27;
        // real block of 3
        const P t29 = t17 + t26;
        const P t30 = t17 - t26;
        const P t31 = t29 + t7;
        const P t32 = c[0] * t29;
        const P t33 = t7 - t32;
        // real block of 3
        const P t34 = c[1] * t15;
        // real block of 9
        const P t35 = P(-c[5], c[5]) * t34;
        const P t36 = P(c[6], -c[6]) * t20;
        const P t37 = t35 + t36;
        const P t38 = c[6] * t34;
        const P t39 = c[5] * t20;
        const P t40 = t38 + t39;
        const P t41 = c[3] * t28;
        // real block of 3
        const P t42 = c[1] * t24;
        // real block of 9
        const P t43 = c[4] * t42;
        const P t44 = t41 - t43;
        const P t45 = c[3] * t42;
        const P t46 = c[4] * t28;
        const P t47 = t45 + t46;
        // complex block of 3
        const P t48 = t37 + t44;
        const P t49 = flipped<0, 1>(t47);
        const P t50 = t40 + t49;
        const P t51 = t37 - t44;
        const P t52 = flipped<1, 0>(t40);
        const P t53 = t52 + t47;
        const P t54 = t48 + t9;
        // real block of 3
        const P t55 = c[1] * t5;
        // complex block of 3
        const P t56 = t50 + t55;
        const P t57 = c[0] * t48;
        const P t58 = t9 - t57;
        const P t59 = flipped<1, 0>(t55);
        const P t60 = P(c[0], -c[0]) * t50;
        const P t61 = t59 + t60;
        const P t62 = c[1] * t53;
        const P t63 = t58 + t62;
        const P t64 = c[1] * t51;
        const P t65 = t61 - t64;
        const P t66 = t58 - t62;
        const P t67 = t61 + t64;
        const V x0r = io.re(0);
        const V t68 = part<0>(t31);
        // spectrum block of 19
        const V t69 = c[29] * t68;
        const V t70 = x0r - t69;
        const P t71 = shuffled<1, 3>(t63, t65);
        const P t72 = P(-c[7], c[7]) * t71;
        const P t73 = shuffled<1, 0>(t71);
        const P t74 = c[8] * t73;
        const P t75 = t72 + t74;
        const P t76 = shuffled<0, 2>(t56, t54);
        const P t77 = c[9] * t76;
        const P t78 = shuffled<1, 0>(t76);
        const P t79 = P(c[10], -c[10]) * t78;
        const P t80 = t77 + t79;
        // real block of 3
        const P t81 = c[1] * t30;
        const P t82 = shuffled<1, 3>(t33, t81);
        // spectrum block of 19
        const P t83 = c[11] * t82;
        const P t84 = shuffled<1, 0>(t82);
        const P t85 = P(c[12], -c[12]) * t84;
        const P t86 = t83 + t85;
        const P t87 = shuffled<0, 2>(t67, t66);
        const P t88 = c[13] * t87;
        const P t89 = shuffled<1, 0>(t87);
        const P t90 = P(c[14], -c[14]) * t89;
        const P t91 = t88 + t90;
        const P t92 = shuffled<1, 3>(t66, t67);
        const P t93 = c[15] * t92;
        const P t94 = shuffled<1, 0>(t92);
        const P t95 = P(-c[16], c[16]) * t94;
        const P t96 = t93 + t95;
        const P t97 = shuffled<0, 2>(t33, t81);
        const P t98 = P(-c[17], c[17]) * t97;
        const P t99 = shuffled<1, 0>(t97);
        const P t100 = c[18] * t99;
        const P t101 = t98 + t100;
        const P t102 = shuffled<1, 3>(t54, t56);
        const P t103 = c[19] * t102;
        const P t104 = shuffled<1, 0>(t102);
        const P t105 = P(c[20], -c[20]) * t104;
        const P t106 = t103 + t105;
        const P t107 = shuffled<0, 2>(t63, t65);
        const P t108 = c[21] * t107;
        const P t109 = shuffled<1, 0>(t107);
        const P t110 = P(c[22], -c[22]) * t109;
        const P t111 = t108 + t110;
        const V t112 = part<1>(t31);
        const V t113 = c[30] * t112;
        // spectrum block of 2
        const V t114 = t70 - t113;
        const V t115 = t70 + t113;
        // complex block of 2
        const P t116 = t80 - t106;
        const P t117 = t80 + t106;
        const P t118 = flipped<0, 1>(t96);
        // complex block of 2
        const P t119 = t91 + t118;
        const P t120 = t91 - t118;
        const P t121 = flipped<0, 1>(t86);
        // complex block of 2
        const P t122 = t101 + t121;
        const P t123 = t101 - t121;
        const P t124 = flipped<0, 1>(t75);
        // complex block of 2
        const P t125 = t111 + t124;
        const P t126 = t111 - t124;
        const P t127 = shuffled<0, 2>(t122, t123);
        const P t128 = joined(t114, t115);
        // spectrum block of 3, multiplier 2
        const P t129 = t127 + t128;
        const P t130 = c[0] * t127;
        const P t131 = t128 - t130;
        const P t132 = shuffled<1, 3>(t122, t123);
        const P t133 = c[1] * t132;
        const P t134 = t131 - t133;
        const P t135 = t131 + t133;
        const P t136 = shuffled<1, 3>(t125, t126);
        const P t137 = shuffled<1, 3>(t119, t120);
        // complex block of 3, multiplier 2
        const P t138 = t136 - t137;
        const P t139 = shuffled<0, 2>(t125, t126);
        const P t140 = shuffled<0, 2>(t119, t120);
        const P t141 = t139 + t140;
        const P t142 = t136 + t137;
        const P t143 = t139 - t140;
        const P t144 = shuffled<1, 3>(t116, t117);
        const P t145 = t138 + t144;
        const P t146 = shuffled<0, 2>(t116, t117);
        const P t147 = t141 + t146;
        const P t148 = c[0] * t138;
        const P t149 = t144 - t148;
        const P t150 = c[0] * t141;
        const P t151 = t146 - t150;
        const P t152 = c[1] * t143;
        const P t153 = t149 + t152;
        const P t154 = c[1] * t142;
        const P t155 = t151 - t154;
        const P t156 = t149 - t152;
        const P t157 = t151 + t154;
        // spectrum block of 9, multiplier 2
        const P t158 = c[3] * t157;
        const P t159 = c[4] * t156;
        const P t160 = t158 - t159;
        const P t161 = c[23] * t155;
        const P t162 = c[24] * t153;
        const P t163 = t161 + t162;
        // spectrum block of 3, multiplier 2
        const P t164 = t147 + t129;
        io.out(1, 18, t164);
        const P t165 = c[0] * t147;
        const P t166 = t129 - t165;
        const P t167 = c[1] * t145;
        const P t168 = t166 - t167;
        io.out(7, 12, t168);
        const P t169 = t166 + t167;
        io.out(11, 8, t169);
        // spectrum block of 3, multiplier 2
        const P t170 = t160 + t135;
        io.out(5, 14, t170);
        const P t171 = c[0] * t160;
        const P t172 = t135 - t171;
        const P t173 = c[25] * t156;
        const P t174 = c[26] * t157;
        const P t175 = t173 + t174;
        const P t176 = t172 - t175;
        io.out(16, 3, t176);
        const P t177 = t172 + t175;
        io.out(17, 2, t177);
        // spectrum block of 3, multiplier 2
        const P t178 = t134 - t163;
        io.out(6, 13, t178);
        const P t179 = c[0] * t163;
        const P t180 = t179 + t134;
        const P t181 = c[27] * t155;
        const P t182 = c[28] * t153;
        const P t183 = t181 - t182;
        const P t184 = t180 - t183;
        io.out(4, 15, t184);
        const P t185 = t180 + t183;
        io.out(9, 10, t185);
        // spectrum block of 19
        const V t186 = x0r + t68;
        io.out(0, t186);
    }
};

}  // namespace zulg
