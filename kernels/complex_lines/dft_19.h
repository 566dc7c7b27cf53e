// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 19.
// Complex DFT of 19 points, Rader block; two lines of a stage to a register.
// 51 sums, 43 differences, 56 products of registers, which do the 622 steps of the graph, those with
// `scale` included; 40 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<19> {
    static constexpr int steps = 622;  // with `scale`
    static constexpr double inverseRoot = 0.22941573387056174;  // 1/sqrt(19), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.04733572347201245,  // c[6]: -Q[3] of 19
        0.4748879284463634,  // c[7]: Q[1] of 19
        0.48200335114804865,  // c[8]: P[3] of 19
        0.09512810652215012,  // c[9]: -P[1] of 19
        0.46112591934192776,  // c[10]: Q[6] of 19
        0.4576751211007174,  // c[11]: P[8] of 19
        0.1480904714883096,  // c[12]: -P[6] of 19
        0.1584341653811184,  // c[13]: -Q[8] of 19
        0.32553565392043055,  // c[14]: P[2] of 19
        0.3169022121664568,  // c[15]: Q[4] of 19
        0.35860066823859316,  // c[16]: Q[2] of 19
        0.3662524937233519,  // c[17]: P[4] of 19
        0.48361283902825675,  // c[18]: P[7] of 19
        0.3712153751939134,  // c[19]: -Q[5] of 19
        0.026201587005319653,  // c[20]: Q[7] of 19
        0.31107402086032515,  // c[21]: -P[5] of 19
        0.29619813272602386,  // c[22]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[23]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.1503837331804353,  // c[24]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[25]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x1_4 = io.pairs(1, 4);
        const Q x18_15 = io.pairs(18, 15);
        // real block of 2
        const Q t0 = x1_4 + x18_15;
        const Q t1 = x1_4 - x18_15;
        const Q x9_17 = io.pairs(9, 17);
        const Q x10_2 = io.pairs(10, 2);
        // real block of 2
        const Q t2 = x9_17 + x10_2;
        const Q t3 = x9_17 - x10_2;
        const P x5 = io.pair(5);
        const P x14 = io.pair(14);
        // real block of 2
        const P t4 = x5 + x14;
        const P t5 = x5 - x14;
        const Q x11_6 = io.pairs(11, 6);
        const Q x8_13 = io.pairs(8, 13);
        // real block of 2
        const Q t6 = x11_6 + x8_13;
        const Q t7 = x11_6 - x8_13;
        const Q t8 = shuffled<0, 1, 4, 5>(t2, t3);
        const Q t9 = shuffled<2, 3, 6, 7>(t6, t7);
        // real block of 3, multiplier 2
        const Q t10 = t8 + t9;
        const Q t11 = t8 - t9;
        const Q t12 = shuffled<2, 3, 6, 7>(t2, t3);
        const Q t13 = joined(t4, t5);
        // real block of 3, multiplier 2
        const Q t14 = t12 + t13;
        const Q t15 = t12 - t13;
        const Q x16_7 = io.pairs(16, 7);
        const Q x3_12 = io.pairs(3, 12);
        // real block of 2
        const Q t16 = x16_7 + x3_12;
        const Q t17 = x16_7 - x3_12;
        const Q t18 = shuffled<2, 3, 6, 7>(t16, t17);
        const Q t19 = shuffled<0, 1, 4, 5>(t6, t7);
        // real block of 3, multiplier 2
        const Q t20 = t18 + t19;
        const Q t21 = t18 - t19;
        const Q t22 = shuffled<2, 3, 6, 7>(t0, t1);
        // real block of 3, multiplier 2
        const Q t23 = t10 + t22;
        const Q t24 = c[0] * t10;
        const Q t25 = t22 - t24;
        const Q t26 = shuffled<0, 1, 4, 5>(t16, t17);
        // real block of 3, multiplier 2
        const Q t27 = t14 + t26;
        const Q t28 = c[0] * t14;
        const Q t29 = t26 - t28;
        const Q t30 = shuffled<0, 1, 4, 5>(t0, t1);
        // real block of 3, multiplier 2
        const Q t31 = t20 + t30;
        // real block of 3, multiplier 2
        const Q t32 = t23 + t27;
        const Q t33 = t32 + t31;
        // real block of 3, multiplier 2
        const Q t34 = c[0] * t20;
        const Q t35 = t30 - t34;
        // real block of 3, multiplier 2
        const Q t36 = t23 - t27;
        // real block of 9, multiplier 2
        const Q t37 = c[2] * t25;
        // real block of 3, multiplier 2
        const Q t38 = c[1] * t11;
        // real block of 9, multiplier 2
        const Q t39 = c[3] * t38;
        const Q t40 = t37 + t39;
        // real block of 3, multiplier 2
        const Q t41 = c[1] * t15;
        // real block of 9, multiplier 2
        const Q t42 = c[4] * t41;
        const Q t43 = c[5] * t29;
        const Q t44 = t42 - t43;
        // complex block of 3, multiplier 2
        const Q t45 = t40 + t44;
        const Q t46 = t40 - t44;
        // real block of 9, multiplier 2
        const Q t47 = c[2] * t38;
        const Q t48 = c[3] * t25;
        const Q t49 = t47 - t48;
        const Q t50 = c[5] * t41;
        const Q t51 = c[4] * t29;
        const Q t52 = t50 + t51;
        // complex block of 3, multiplier 2
        const Q t53 = t49 - t52;
        const Q t54 = t49 + t52;
        // real block of 3, multiplier 2
        const Q t55 = c[0] * t32;
        const Q t56 = t31 - t55;
        // complex block of 3, multiplier 2
        const Q t57 = t45 + t35;
        // real block of 3, multiplier 2
        const Q t58 = c[1] * t21;
        // complex block of 3, multiplier 2
        const Q t59 = t53 + t58;
        const Q t60 = c[0] * t45;
        const Q t61 = t35 - t60;
        const Q t62 = c[1] * t54;
        const Q t63 = t61 + t62;
        const Q t64 = t61 - t62;
        const Q t65 = c[0] * t53;
        const Q t66 = t58 - t65;
        const Q t67 = c[1] * t46;
        const Q t68 = t66 - t67;
        const Q t69 = t66 + t67;
        const P x0 = io.pair(0);
        const P t70 = part<0>(t33);
        // complex block of 19
        const P t71 = x0 + t70;
        io.pair(0, t71);
        const P t72 = c[26] * t70;
        const P t73 = x0 - t72;
        const P t74 = part<1>(t33);
        const P t75 = shuffled<1, 0>(t74);
        const P t76 = P(c[27], -c[27]) * t75;
        // spectrum block of 2
        const P t77 = t73 + t76;
        const P t78 = t73 - t76;
        // real block of 3, multiplier 2
        const Q t79 = c[1] * t36;
        const Q t80 = shuffled<2, 3, 6, 7>(t79, t69);
        const Q t81 = shuffled<1, 0, 3, 2>(t80);
        // complex block of 19
        const Q t82 = Q(c[6], c[6], c[7], c[7]) * t81;
        const Q t83 = shuffled<2, 3, 6, 7>(t56, t64);
        const Q t84 = shuffled<1, 0, 3, 2>(t83);
        const Q t85 = Q(c[8], c[8], c[9], c[9]) * t84;
        const Q t86 = t82 + t85;
        const Q t87 = shuffled<0, 1, 4, 5>(t56, t69);
        const Q t88 = Q(c[10], c[10], c[11], c[11]) * t87;
        const Q t89 = shuffled<0, 1, 4, 5>(t79, t64);
        const Q t90 = Q(c[12], c[12], c[13], c[13]) * t89;
        const Q t91 = t88 - t90;
        const Q t92 = flipped<1, 0, 0, 1>(t86);
        // complex block of 2
        const Q t93 = t91 + t92;
        const Q t94 = t91 - t92;
        const Q t95 = shuffled<0, 1, 4, 5>(t59, t63);
        // complex block of 19
        const Q t96 = Q(c[14], c[14], c[15], c[15]) * t95;
        const Q t97 = shuffled<0, 1, 4, 5>(t57, t68);
        const Q t98 = Q(c[16], c[16], -c[17], -c[17]) * t97;
        const Q t99 = t96 + t98;
        const Q t100 = shuffled<2, 3, 6, 7>(t57, t68);
        const Q t101 = shuffled<1, 0, 3, 2>(t100);
        const Q t102 = Q(c[18], -c[18], c[19], c[19]) * t101;
        const Q t103 = shuffled<2, 3, 6, 7>(t59, t63);
        const Q t104 = shuffled<1, 0, 3, 2>(t103);
        const Q t105 = Q(-c[20], c[20], c[21], c[21]) * t104;
        const Q t106 = t102 + t105;
        const Q t107 = flipped<0, 0, 1, 0>(t106);
        // complex block of 2
        const Q t108 = t99 - t107;
        const Q t109 = t99 + t107;
        const Q t110 = shuffled<2, 3, 6, 7>(t93, t94);
        const Q t111 = shuffled<2, 3, 6, 7>(t108, t109);
        // complex block of 3, multiplier 2
        const Q t112 = t110 - t111;
        const Q t113 = t110 + t111;
        const Q t114 = shuffled<0, 1, 6, 7>(t97, t95);
        // complex block of 19
        const Q t115 = Q(c[14], c[14], c[17], c[17]) * t114;
        const Q t116 = shuffled<0, 1, 6, 7>(t95, t97);
        const Q t117 = Q(-c[16], -c[16], c[15], c[15]) * t116;
        const Q t118 = t115 + t117;
        const Q t119 = Q(c[18], c[18], -c[19], c[19]) * t104;
        const Q t120 = Q(c[20], c[20], c[21], -c[21]) * t101;
        const Q t121 = t119 + t120;
        const Q t122 = flipped<0, 1, 0, 0>(t121);
        // complex block of 2
        const Q t123 = t118 + t122;
        const Q t124 = t118 - t122;
        const Q t125 = shuffled<0, 1, 6, 7>(t89, t81);
        // complex block of 19
        const Q t126 = Q(c[10], c[10], -c[9], c[9]) * t125;
        const Q t127 = shuffled<0, 1, 6, 7>(t87, t84);
        const Q t128 = Q(c[12], c[12], c[7], -c[7]) * t127;
        const Q t129 = t126 + t128;
        const Q t130 = shuffled<0, 1, 6, 7>(t81, t89);
        const Q t131 = Q(c[8], -c[8], c[11], c[11]) * t130;
        const Q t132 = shuffled<0, 1, 6, 7>(t84, t87);
        const Q t133 = Q(-c[6], c[6], c[13], c[13]) * t132;
        const Q t134 = t131 + t133;
        const Q t135 = flipped<1, 1, 0, 0>(t129);
        // complex block of 2
        const Q t136 = t134 + t135;
        const Q t137 = t134 - t135;
        const Q t138 = shuffled<2, 3, 6, 7>(t136, t137);
        const Q t139 = shuffled<2, 3, 6, 7>(t123, t124);
        // complex block of 3, multiplier 2
        const Q t140 = t138 + t139;
        const Q t141 = t138 - t139;
        const P t142 = part<0>(t136);
        const Q t143 = joined(t142, t78);
        const P t144 = part<0>(t137);
        const P t145 = flipped<1, 1>(t144);
        const Q t146 = joined(t77, t145);
        // spectrum block of 3, multiplier 2
        const Q t147 = t143 + t146;
        const Q t148 = shuffled<0, 1, 6, 7>(t143, t146);
        const Q t149 = -c[0] * t148;
        const Q t150 = shuffled<0, 1, 6, 7>(t146, t143);
        const Q t151 = t149 + t150;
        const Q t152 = shuffled<0, 1, 4, 5>(t123, t124);
        // complex block of 3, multiplier 2
        const Q t153 = t140 + t152;
        const Q t154 = shuffled<0, 1, 4, 5>(t108, t109);
        const Q t155 = c[0] * t112;
        const Q t156 = t154 - t155;
        const Q t157 = c[1] * t141;
        const Q t158 = t156 + t157;
        const Q t159 = t156 - t157;
        const Q t160 = c[0] * t140;
        const Q t161 = t152 - t160;
        const Q t162 = c[1] * t113;
        const Q t163 = t161 - t162;
        const Q t164 = t161 + t162;
        const Q t165 = shuffled<0, 1, 4, 5>(t93, t94);
        // spectrum block of 3, multiplier 2
        const Q t166 = c[1] * t165;
        const Q t167 = t151 - t166;
        // spectrum block of 9, multiplier 2
        const Q t168 = c[5] * t163;
        const Q t169 = c[4] * t158;
        const Q t170 = t168 + t169;
        // spectrum block of 3, multiplier 2
        const Q t171 = c[22] * t163;
        const Q t172 = c[23] * t158;
        const Q t173 = t171 - t172;
        const Q t174 = t167 - t170;
        io.pairs(6, 13, t174);
        const Q t175 = c[0] * t170;
        const Q t176 = t175 + t167;
        const Q t177 = t176 - t173;
        io.pairs(4, 15, t177);
        const Q t178 = t176 + t173;
        io.pairs(9, 10, t178);
        // spectrum block of 3, multiplier 2
        const Q t179 = t151 + t166;
        // spectrum block of 9, multiplier 2
        const Q t180 = c[2] * t164;
        const Q t181 = c[3] * t159;
        const Q t182 = t180 - t181;
        // spectrum block of 3, multiplier 2
        const Q t183 = c[24] * t159;
        const Q t184 = c[25] * t164;
        const Q t185 = t183 + t184;
        const Q t186 = t182 + t179;
        io.pairs(5, 14, t186);
        const Q t187 = c[0] * t182;
        const Q t188 = t179 - t187;
        const Q t189 = t188 - t185;
        io.pairs(16, 3, t189);
        const Q t190 = t188 + t185;
        io.pairs(17, 2, t190);
        // complex block of 3, multiplier 2
        const Q t191 = t112 + t154;
        // spectrum block of 3, multiplier 2
        const Q t192 = c[0] * t153;
        const Q t193 = t147 - t192;
        const Q t194 = c[1] * t191;
        const Q t195 = t193 - t194;
        io.pairs(7, 12, t195);
        const Q t196 = t193 + t194;
        io.pairs(11, 8, t196);
        const Q t197 = t153 + t147;
        io.pairs(1, 18, t197);
    }
};

}  // namespace zulg
