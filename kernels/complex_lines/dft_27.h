// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 27.
// Complex DFT of 27 points, twiddled, inner 9, outer 3; two lines of a stage to a register.
// 59 sums, 42 differences, 56 products of registers, which do the 654 steps of the graph, those with
// `scale` included; 54 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<27> {
    static constexpr int steps = 654;  // with `scale`
    static constexpr double inverseRoot = 0.19245008972987526;  // 1/sqrt(27), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.766044443118978,  // c[4]: cos 2 pi 1/9
        0.6427876096865394,  // c[5]: sin 2 pi 1/9
        0.9396926207859084,  // c[6]: -cos 2 pi 4/9
        0.3420201433256687,  // c[7]: sin 2 pi 4/9
        0.8936326403234123,  // c[8]: cos 2 pi 2/27
        0.44879918020046217,  // c[9]: sin 2 pi 2/27
        0.5971585917027862,  // c[10]: cos 2 pi 4/27
        0.8021231927550437,  // c[11]: sin 2 pi 4/27
        0.28680323271109026,  // c[12]: -cos 2 pi 8/27
        0.9579895123154889,  // c[13]: sin 2 pi 8/27
        0.9730448705798238,  // c[14]: cos 2 pi 1/27
        0.23061587074244017,  // c[15]: sin 2 pi 1/27
        0.39607976603915684,  // c[16]: cos 2 pi 5/27
        0.918216106880274,  // c[17]: sin 2 pi 5/27
        0.6862416378687336,  // c[18]: -cos 2 pi 10/27
        0.7273736415730487,  // c[19]: sin 2 pi 10/27
        0.05814482891047583,  // c[20]: -cos 2 pi 7/27
        0.9983081582712682,  // c[21]: sin 2 pi 7/27
        0.11609291412523023,  // c[22]: -sin 2 pi 14/27
        0.549508978070806,  // c[23]: -sin 2 pi 16/27
        0.993238357741943,  // c[24]: -cos 2 pi 14/27
        0.8354878114129364,  // c[25]: -cos 2 pi 16/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x9_10 = io.pairs(9, 10);
        const Q x18_19 = io.pairs(18, 19);
        // complex block of 3
        const Q t0 = x9_10 + x18_19;
        const Q t1 = x9_10 - x18_19;
        const Q x0_1 = io.pairs(0, 1);
        const Q t2 = t0 + x0_1;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_1 - t3;
        const Q t5 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x12_13 = io.pairs(12, 13);
        const Q x21_22 = io.pairs(21, 22);
        // complex block of 3
        const Q t9 = x12_13 + x21_22;
        const Q t10 = x12_13 - x21_22;
        const Q x3_4 = io.pairs(3, 4);
        const Q t11 = t9 + x3_4;
        const Q t12 = c[0] * t9;
        const Q t13 = x3_4 - t12;
        const Q t14 = Q(-c[1], c[1], -c[1], c[1]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x15_16 = io.pairs(15, 16);
        const Q x24_25 = io.pairs(24, 25);
        // complex block of 3
        const Q t18 = x15_16 + x24_25;
        const Q t19 = x15_16 - x24_25;
        const Q x6_7 = io.pairs(6, 7);
        const Q t20 = t18 + x6_7;
        const Q t21 = c[0] * t18;
        const Q t22 = x6_7 - t21;
        const Q t23 = Q(-c[1], c[1], -c[1], c[1]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        // complex block of 3
        const Q t27 = t11 + t20;
        const Q t28 = t11 - t20;
        const Q t29 = t27 + t2;
        const Q t30 = c[0] * t27;
        const Q t31 = t2 - t30;
        const Q t32 = Q(-c[1], c[1], -c[1], c[1]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        // complex block of 9
        const Q t36 = c[4] * t16;
        const Q t37 = shuffled<1, 0, 3, 2>(t16);
        const Q t38 = Q(c[5], -c[5], c[5], -c[5]) * t37;
        const Q t39 = t36 + t38;
        const Q t40 = c[2] * t25;
        const Q t41 = shuffled<1, 0, 3, 2>(t25);
        const Q t42 = Q(c[3], -c[3], c[3], -c[3]) * t41;
        const Q t43 = t40 + t42;
        // complex block of 3
        const Q t44 = t39 + t43;
        const Q t45 = t39 - t43;
        const Q t46 = t44 + t7;
        const Q t47 = c[0] * t44;
        const Q t48 = t7 - t47;
        const Q t49 = Q(-c[1], c[1], -c[1], c[1]) * t45;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = t48 + t50;
        const Q t52 = t48 - t50;
        // complex block of 9
        const Q t53 = c[2] * t17;
        const Q t54 = shuffled<1, 0, 3, 2>(t17);
        const Q t55 = Q(c[3], -c[3], c[3], -c[3]) * t54;
        const Q t56 = t53 + t55;
        const Q t57 = Q(-c[6], c[6], -c[6], c[6]) * t26;
        const Q t58 = shuffled<1, 0, 3, 2>(t26);
        const Q t59 = c[7] * t58;
        const Q t60 = t57 + t59;
        const Q t61 = flipped<0, 1, 0, 1>(t60);
        // complex block of 3
        const Q t62 = t56 + t61;
        const Q t63 = t56 - t61;
        const Q t64 = t62 + t8;
        const Q t65 = c[0] * t62;
        const Q t66 = t8 - t65;
        const Q t67 = Q(-c[1], c[1], -c[1], c[1]) * t63;
        const Q t68 = shuffled<1, 0, 3, 2>(t67);
        const Q t69 = t66 + t68;
        const Q t70 = t66 - t68;
        const Q x11_14 = io.pairs(11, 14);
        const Q x20_23 = io.pairs(20, 23);
        // complex block of 3
        const Q t71 = x11_14 + x20_23;
        const Q t72 = x11_14 - x20_23;
        const Q x2_5 = io.pairs(2, 5);
        const Q t73 = t71 + x2_5;
        const Q t74 = c[0] * t71;
        const Q t75 = x2_5 - t74;
        const Q t76 = Q(-c[1], c[1], -c[1], c[1]) * t72;
        const Q t77 = shuffled<1, 0, 3, 2>(t76);
        const Q t78 = t75 + t77;
        const Q t79 = t75 - t77;
        const P x17 = io.pair(17);
        const P x26 = io.pair(26);
        // complex block of 3
        const P t80 = x17 + x26;
        const P x8 = io.pair(8);
        const P t81 = t80 + x8;
        const P t82 = part<1>(t73);
        const V t83 = part<0>(t82);
        const V t84 = part<0>(t81);
        // complex block of 3
        const V t85 = t83 + t84;
        const V t86 = part<1>(t82);
        const V t87 = part<1>(t81);
        const V t88 = t86 + t87;
        const Q t89 = joined(x17, t82);
        const Q t90 = joined(x26, t81);
        // complex block of 3
        const Q t91 = t89 - t90;
        const P t92 = joined(t85, t88);
        const P t93 = part<0>(t73);
        // complex block of 3
        const P t94 = t92 + t93;
        const Q t95 = joined(x8, t93);
        const Q t96 = joined(t80, t92);
        // complex block of 3
        const Q t97 = c[0] * t96;
        const Q t98 = t95 - t97;
        const Q t99 = Q(-c[1], c[1], -c[1], c[1]) * t91;
        const Q t100 = shuffled<1, 0, 3, 2>(t99);
        const Q t101 = t98 + t100;
        const Q t102 = t98 - t100;
        const Q t103 = shuffled<2, 3, 6, 7>(t78, t79);
        // complex block of 9
        const Q t104 = Q(c[4], c[4], c[2], c[2]) * t103;
        const Q t105 = shuffled<1, 0, 3, 2>(t103);
        const Q t106 = Q(c[5], -c[5], c[3], -c[3]) * t105;
        const Q t107 = t104 + t106;
        const P t108 = part<0>(t101);
        const P t109 = shuffled<1, 0>(t108);
        const P t110 = part<0>(t102);
        const Q t111 = joined(t109, t110);
        const Q t112 = Q(c[3], -c[3], -c[6], c[6]) * t111;
        const Q t113 = shuffled<1, 0, 3, 2>(t111);
        const Q t114 = Q(c[2], c[2], c[7], c[7]) * t113;
        const Q t115 = t112 + t114;
        const Q t116 = flipped<0, 0, 0, 1>(t115);
        // complex block of 3
        const Q t117 = t107 + t116;
        const Q t118 = t107 - t116;
        const Q t119 = shuffled<0, 1, 4, 5>(t78, t79);
        const Q t120 = t117 + t119;
        const Q t121 = c[0] * t117;
        const Q t122 = t119 - t121;
        const Q t123 = Q(-c[1], c[1], -c[1], c[1]) * t118;
        const Q t124 = shuffled<1, 0, 3, 2>(t123);
        const Q t125 = t122 + t124;
        const Q t126 = t122 - t124;
        const P t127 = part<1>(t29);
        // complex block of 3
        const P t128 = t127 + t94;
        const P t129 = t127 - t94;
        const P t130 = part<0>(t29);
        const P t131 = t128 + t130;
        io.pair(0, t131);
        const P t132 = c[0] * t128;
        const P t133 = t130 - t132;
        const P t134 = P(-c[1], c[1]) * t129;
        const P t135 = shuffled<1, 0>(t134);
        const P t136 = t133 + t135;
        io.pair(9, t136);
        const P t137 = t133 - t135;
        io.pair(18, t137);
        const Q t138 = shuffled<2, 3, 6, 7>(t46, t64);
        // complex block of 27
        const Q t139 = Q(c[14], c[14], c[8], c[8]) * t138;
        const Q t140 = shuffled<1, 0, 3, 2>(t138);
        const Q t141 = Q(c[15], -c[15], c[9], -c[9]) * t140;
        const Q t142 = t139 + t141;
        const Q t143 = Q(c[8], c[8], c[10], c[10]) * t120;
        const Q t144 = shuffled<1, 0, 3, 2>(t120);
        const Q t145 = Q(c[9], -c[9], c[11], -c[11]) * t144;
        const Q t146 = t143 + t145;
        // complex block of 3
        const Q t147 = t142 + t146;
        const Q t148 = t142 - t146;
        const Q t149 = shuffled<0, 1, 4, 5>(t46, t64);
        const Q t150 = t147 + t149;
        io.pairs(1, 2, t150);
        const Q t151 = c[0] * t147;
        const Q t152 = t149 - t151;
        const Q t153 = Q(-c[1], c[1], -c[1], c[1]) * t148;
        const Q t154 = shuffled<1, 0, 3, 2>(t153);
        const Q t155 = t152 + t154;
        io.pairs(10, 11, t155);
        const Q t156 = t152 - t154;
        io.pairs(19, 20, t156);
        const Q t157 = shuffled<2, 3, 6, 7>(t34, t51);
        // complex block of 27
        const Q t158 = Q(c[4], c[4], c[10], c[10]) * t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t157);
        const Q t160 = Q(c[5], -c[5], c[11], -c[11]) * t159;
        const Q t161 = t158 + t160;
        const Q t162 = shuffled<2, 3, 4, 5>(t101, t125);
        const Q t163 = shuffled<1, 0, 2, 3>(t162);
        const Q t164 = Q(c[3], -c[3], -c[12], c[12]) * t163;
        const Q t165 = shuffled<1, 0, 3, 2>(t163);
        const Q t166 = Q(c[2], c[2], c[13], c[13]) * t165;
        const Q t167 = t164 + t166;
        const Q t168 = flipped<0, 0, 0, 1>(t167);
        // complex block of 3
        const Q t169 = t161 + t168;
        const Q t170 = t161 - t168;
        const Q t171 = shuffled<0, 1, 4, 5>(t34, t51);
        const Q t172 = t169 + t171;
        io.pairs(3, 4, t172);
        const Q t173 = c[0] * t169;
        const Q t174 = t171 - t173;
        const Q t175 = Q(-c[1], c[1], -c[1], c[1]) * t170;
        const Q t176 = shuffled<1, 0, 3, 2>(t175);
        const Q t177 = t174 + t176;
        io.pairs(12, 13, t177);
        const Q t178 = t174 - t176;
        io.pairs(21, 22, t178);
        const Q t179 = shuffled<2, 3, 6, 7>(t69, t35);
        // complex block of 27
        const Q t180 = Q(c[16], c[16], c[2], c[2]) * t179;
        const Q t181 = shuffled<1, 0, 3, 2>(t179);
        const Q t182 = Q(c[17], -c[17], c[3], -c[3]) * t181;
        const Q t183 = t180 + t182;
        const Q t184 = shuffled<2, 3, 6, 7>(t125, t102);
        const Q t185 = Q(-c[18], c[18], -c[6], c[6]) * t184;
        const Q t186 = shuffled<1, 0, 3, 2>(t184);
        const Q t187 = Q(c[19], c[19], c[7], c[7]) * t186;
        const Q t188 = t185 + t187;
        const Q t189 = flipped<0, 1, 0, 1>(t188);
        // complex block of 3
        const Q t190 = t183 + t189;
        const Q t191 = t183 - t189;
        const Q t192 = shuffled<0, 1, 4, 5>(t69, t35);
        const Q t193 = t190 + t192;
        io.pairs(5, 6, t193);
        const Q t194 = c[0] * t190;
        const Q t195 = t192 - t194;
        const Q t196 = Q(-c[1], c[1], -c[1], c[1]) * t191;
        const Q t197 = shuffled<1, 0, 3, 2>(t196);
        const Q t198 = t195 + t197;
        io.pairs(14, 15, t198);
        const Q t199 = t195 - t197;
        io.pairs(23, 24, t199);
        const Q t200 = shuffled<2, 3, 6, 7>(t52, t70);
        // complex block of 27
        const Q t201 = Q(-c[20], c[20], -c[12], c[12]) * t200;
        const Q t202 = shuffled<1, 0, 3, 2>(t200);
        const Q t203 = Q(c[21], c[21], c[13], c[13]) * t202;
        const Q t204 = t201 + t203;
        const Q t205 = shuffled<1, 0, 3, 2>(t126);
        const Q t206 = Q(c[22], c[22], c[23], c[23]) * t205;
        const Q t207 = Q(c[24], -c[24], c[25], -c[25]) * t126;
        const Q t208 = t206 + t207;
        const Q t209 = shuffled<0, 5, 2, 7>(t204, t208);
        const Q t210 = shuffled<0, 5, 2, 7>(t208, t204);
        // complex block of 3
        const Q t211 = t209 - t210;
        const Q t212 = t204 + t208;
        const Q t213 = shuffled<0, 1, 4, 5>(t52, t70);
        const Q t214 = t211 + t213;
        io.pairs(7, 8, t214);
        const Q t215 = c[0] * t211;
        const Q t216 = t213 - t215;
        const Q t217 = c[1] * t212;
        const Q t218 = shuffled<1, 0, 3, 2>(t217);
        const Q t219 = t216 - t218;
        io.pairs(16, 17, t219);
        const Q t220 = t216 + t218;
        io.pairs(25, 26, t220);
    }
};

}  // namespace zulg
