// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 19.
// Forward DFT of 19 real points, Rader 9, 2; two lanes to a register.
// 51 sums, 33 differences, 56 products of registers, which do the 291 steps of the graph, those with
// `scale` included; 50 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<19> {
    static constexpr int steps = 291;  // with `scale`
    static constexpr double inverseRoot = 0.22941573387056174;  // 1/sqrt(19), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.09512810652215012,  // c[6]: -P[1] of 19
        0.4748879284463634,  // c[7]: -Q[1] of 19
        0.32553565392043055,  // c[8]: P[2] of 19
        0.35860066823859316,  // c[9]: Q[2] of 19
        0.3169022121664568,  // c[10]: Q[4] of 19
        0.3662524937233519,  // c[11]: P[4] of 19
        0.31107402086032515,  // c[12]: -P[5] of 19
        0.3712153751939134,  // c[13]: Q[5] of 19
        0.48361283902825675,  // c[14]: P[7] of 19
        0.026201587005319653,  // c[15]: -Q[7] of 19
        0.4576751211007174,  // c[16]: P[8] of 19
        0.1584341653811184,  // c[17]: -Q[8] of 19
        0.1503837331804353,  // c[18]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[19]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.04733572347201245,  // c[20]: Q[3] of 19
        0.05555555555555555,  // c[21]: 1/18
        0.48200335114804865,  // c[22]: P[3] of 19
        0.1480904714883096,  // c[23]: -P[6] of 19
        0.46112591934192776,  // c[24]: Q[6] of 19
        0.2421610524189263,  // c[25]: -beta of 19
        0.3993467604935635,  // c[26]: -sin 2 pi 2/3 times Q[6] of 19
        0.4174271468034414,  // c[27]: -sin 2 pi 2/3 times P[3] of 19
        0.12825011036729123,  // c[28]: -sin 2 pi 2/3 times -P[6] of 19
        0.040993939033278116,  // c[29]: -sin 2 pi 2/3 times Q[3] of 19
        0.766044443118978,  // c[30]: cos 2 pi 8/9
        0.6427876096865394,  // c[31]: -sin 2 pi 8/9
        0.6634139481689384,  // c[32]: -sin 2 pi 2/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[33]: -sin 2 pi 2/3 times -sin 2 pi 8/9
        0.8137976813493737,  // c[34]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[35]: -sin 2 pi 2/3 times sin 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x11_12 = io.in(11, 12);
        const P x7_8 = io.in(7, 8);
        // real block of 3, multiplier 2
        const P t0 = x11_12 + x7_8;
        const P t1 = shuffled<0, 3>(x7_8, x11_12);
        const P t2 = shuffled<0, 3>(x11_12, x7_8);
        const P t3 = t1 - t2;
        const P x1_18 = io.in(1, 18);
        const P t4 = t0 + x1_18;
        const P t5 = c[0] * t0;
        const P t6 = x1_18 - t5;
        const P x9_10 = io.in(9, 10);
        const P x6_13 = io.in(6, 13);
        // real block of 3, multiplier 2
        const P t7 = x9_10 + x6_13;
        const P t8 = x9_10 - x6_13;
        const P x4_15 = io.in(4, 15);
        const P t9 = t7 + x4_15;
        const P t10 = c[0] * t7;
        const P t11 = x4_15 - t10;
        const P x17_2 = io.in(17, 2);
        const P x5_14 = io.in(5, 14);
        // real block of 3, multiplier 2
        const P t12 = x17_2 + x5_14;
        const P t13 = x17_2 - x5_14;
        const P x16_3 = io.in(16, 3);
        const P t14 = t12 + x16_3;
        const P t15 = c[0] * t12;
        const P t16 = x16_3 - t15;
        // real block of 3, multiplier 2
        const P t17 = t9 + t14;
        const P t18 = t9 - t14;
        const P t19 = t17 + t4;
        const P t20 = c[0] * t17;
        const P t21 = t4 - t20;
        // real block of 9, multiplier 2
        const P t22 = c[2] * t11;
        // real block of 3, multiplier 2
        const P t23 = c[1] * t8;
        // real block of 9, multiplier 2
        const P t24 = c[3] * t23;
        const P t25 = t22 + t24;
        const P t26 = c[2] * t23;
        const P t27 = c[3] * t11;
        const P t28 = t26 - t27;
        // real block of 3, multiplier 2
        const P t29 = c[1] * t13;
        // real block of 9, multiplier 2
        const P t30 = c[4] * t29;
        const P t31 = c[5] * t16;
        const P t32 = t30 - t31;
        const P t33 = c[5] * t29;
        const P t34 = c[4] * t16;
        const P t35 = t33 + t34;
        // complex block of 3, multiplier 2
        const P t36 = t25 + t32;
        const P t37 = t28 - t35;
        const P t38 = t25 - t32;
        const P t39 = t28 + t35;
        const P t40 = t36 + t6;
        // real block of 3, multiplier 2
        const P t41 = c[1] * t3;
        // complex block of 3, multiplier 2
        const P t42 = t37 + t41;
        const P t43 = c[0] * t36;
        const P t44 = t6 - t43;
        const P t45 = c[0] * t37;
        const P t46 = t41 - t45;
        const P t47 = c[1] * t39;
        const P t48 = t44 + t47;
        const P t49 = c[1] * t38;
        const P t50 = t46 - t49;
        const P t51 = t44 - t47;
        const P t52 = t46 + t49;
        const V t53 = part<0>(t19);
        const V t54 = part<1>(t19);
        // real block of 2
        const V t55 = t53 + t54;
        const V t56 = t53 - t54;
        const P t57 = shuffled<0, 2>(t40, t42);
        const P t58 = shuffled<1, 3>(t40, t42);
        // complex block of 2
        const P t59 = t57 + t58;
        const P t60 = t57 - t58;
        const P t61 = shuffled<0, 2>(t48, t50);
        const P t62 = shuffled<1, 3>(t48, t50);
        // complex block of 2
        const P t63 = t61 + t62;
        const P t64 = shuffled<0, 3>(t61, t62);
        const P t65 = shuffled<0, 3>(t62, t61);
        const P t66 = t64 - t65;
        // real block of 3, multiplier 2
        const P t67 = c[1] * t18;
        const P t68 = shuffled<0, 2>(t21, t67);
        const P t69 = shuffled<1, 3>(t21, t67);
        // complex block of 2
        const P t70 = t68 + t69;
        const P t71 = t68 - t69;
        const P t72 = shuffled<0, 2>(t51, t52);
        const P t73 = shuffled<1, 3>(t51, t52);
        // complex block of 2
        const P t74 = t72 + t73;
        const P t75 = t72 - t73;
        const V x0 = io.in(0);
        // real block of 19
        const V t76 = x0 + t55;
        io.re(0, t76);
        const P t77 = c[6] * t75;
        const P t78 = shuffled<1, 0>(t75);
        const P t79 = P(c[7], -c[7]) * t78;
        const P t80 = t77 + t79;
        const P t81 = c[8] * t59;
        const P t82 = shuffled<1, 0>(t59);
        const P t83 = P(-c[9], c[9]) * t82;
        const P t84 = t81 + t83;
        const V t85 = part<0>(t71);
        const V t86 = c[20] * t85;
        const P t87 = joined(x0, t86);
        const V t88 = part<1>(t71);
        const P t89 = joined(t55, t88);
        const P t90 = P(c[21], c[22]) * t89;
        const P t91 = t87 - t90;
        const P t92 = shuffled<1, 0>(t63);
        const P t93 = c[10] * t92;
        const P t94 = P(c[11], -c[11]) * t63;
        const P t95 = t93 + t94;
        const P t96 = P(-c[12], c[12]) * t66;
        const P t97 = shuffled<1, 0>(t66);
        const P t98 = c[13] * t97;
        const P t99 = t96 + t98;
        const V t100 = part<0>(t70);
        const V t101 = c[23] * t100;
        const V t102 = part<1>(t70);
        const V t103 = c[24] * t102;
        const V t104 = t101 + t103;
        const P t105 = c[14] * t60;
        const P t106 = shuffled<1, 0>(t60);
        const P t107 = P(-c[15], c[15]) * t106;
        const P t108 = t105 + t107;
        const P t109 = c[16] * t74;
        const P t110 = shuffled<1, 0>(t74);
        const P t111 = P(c[17], -c[17]) * t110;
        const P t112 = t109 + t111;
        const V t113 = c[25] * t56;
        const P t114 = joined(t104, t113);
        // spectrum block of 3
        const P t115 = t91 - t114;
        const P t116 = shuffled<0, 3>(t91, t114);
        const P t117 = shuffled<0, 3>(t114, t91);
        const P t118 = c[0] * t117;
        const P t119 = t116 + t118;
        const P t120 = shuffled<0, 2>(t70, t71);
        const P t121 = P(c[26], c[27]) * t120;
        const P t122 = shuffled<1, 3>(t70, t89);
        const P t123 = P(-c[28], c[29]) * t122;
        const P t124 = t121 + t123;
        const P t125 = flipped<1, 0>(t124);
        const P t126 = t119 + t125;
        const P t127 = flipped<0, 1>(t119);
        const P t128 = t124 + t127;
        const P t129 = shuffled<1, 2>(t112, t80);
        const P t130 = shuffled<1, 2>(t95, t99);
        const P t131 = flipped<1, 0>(t130);
        // complex block of 3
        const P t132 = t129 + t131;
        const P t133 = shuffled<0, 3>(t112, t80);
        const P t134 = shuffled<0, 3>(t95, t99);
        const P t135 = t133 + t134;
        const P t136 = flipped<0, 1>(t129);
        const P t137 = t130 + t136;
        const P t138 = t133 - t134;
        const P t139 = shuffled<1, 2>(t84, t108);
        const P t140 = flipped<0, 1>(t132);
        const P t141 = t139 + t140;
        const P t142 = shuffled<0, 3>(t84, t108);
        const P t143 = flipped<0, 1>(t142);
        const P t144 = t135 + t143;
        const P t145 = P(-c[0], c[0]) * t132;
        const P t146 = t145 + t139;
        const P t147 = P(-c[0], c[0]) * t135;
        const P t148 = t142 + t147;
        const P t149 = c[1] * t138;
        const P t150 = t146 + t149;
        const P t151 = P(-c[1], c[1]) * t137;
        const P t152 = t148 + t151;
        const P t153 = t146 - t149;
        const P t154 = shuffled<0, 3>(t148, t151);
        const P t155 = shuffled<0, 3>(t151, t148);
        const P t156 = t154 - t155;
        const P t157 = shuffled<0, 3>(t152, t156);
        // spectrum block of 9
        const P t158 = P(c[30], c[2]) * t157;
        const P t159 = shuffled<0, 3>(t150, t153);
        const P t160 = P(c[31], c[3]) * t159;
        const P t161 = t158 - t160;
        const P t162 = shuffled<0, 3>(t156, t152);
        const P t163 = P(c[2], c[5]) * t162;
        const P t164 = shuffled<0, 3>(t153, t150);
        const P t165 = P(c[3], c[4]) * t164;
        const P t166 = t163 - t165;
        // spectrum block of 3
        const P t167 = t144 + t115;
        io.pair(1, t167);
        const P t168 = c[0] * t144;
        const P t169 = t115 - t168;
        const P t170 = c[1] * t141;
        const P t171 = t169 - t170;
        io.pair(7, t171);
        const P t172 = t169 + t170;
        io.pair(8, negated<0, 1>(t172));
        const P t173 = shuffled<0, 3>(t126, t128);
        // spectrum block of 3
        const P t174 = t161 + t173;
        const P t175 = c[0] * t161;
        const P t176 = t173 - t175;
        const P t177 = P(c[32], c[18]) * t159;
        const P t178 = P(c[33], c[19]) * t157;
        const P t179 = t177 + t178;
        const P t180 = t176 - t179;
        const P t181 = t176 + t179;
        const P t182 = shuffled<0, 3>(t128, t126);
        const P t183 = flipped<0, 1>(t182);
        // spectrum block of 3
        const P t184 = t166 + t183;
        const P t185 = shuffled<0, 3>(t184, t174);
        io.pair(5, t185);
        const P t186 = shuffled<0, 3>(t180, t184);
        io.pair(6, t186);
        const P t187 = P(-c[0], c[0]) * t166;
        const P t188 = t182 + t187;
        const P t189 = P(c[18], c[34]) * t164;
        const P t190 = P(c[19], c[35]) * t162;
        const P t191 = t189 + t190;
        const P t192 = shuffled<0, 3>(t188, t191);
        const P t193 = shuffled<0, 3>(t191, t188);
        const P t194 = t192 - t193;
        const P t195 = shuffled<0, 3>(t194, t180);
        io.pair(3, negated<0, 1>(t195));
        const P t196 = shuffled<0, 3>(t181, t194);
        io.pair(4, t196);
        const P t197 = t188 + t191;
        const P t198 = shuffled<0, 3>(t197, t181);
        io.pair(2, negated<0, 1>(t198));
        const P t199 = shuffled<0, 3>(t174, t197);
        io.pair(9, negated<0, 1>(t199));
    }
};

}  // namespace zulg
