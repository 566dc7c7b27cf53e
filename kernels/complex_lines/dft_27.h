// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 27.
// Complex DFT of 27 points, twiddled, inner 9, outer 3; two lines of a stage to a register.
// 59 sums, 42 differences, 56 products of registers, which do the 654 steps of the graph, those with
// `scale` included; 53 shuffles, 4 changes of sign.
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
        0.05814482891047583,  // c[18]: -cos 2 pi 7/27
        0.9983081582712682,  // c[19]: sin 2 pi 7/27
        0.6862416378687336,  // c[20]: -cos 2 pi 10/27
        0.7273736415730487,  // c[21]: sin 2 pi 10/27
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
        const Q x12_13 = io.pairs(12, 13);
        const Q x21_22 = io.pairs(21, 22);
        // complex block of 3
        const Q t3 = x12_13 + x21_22;
        const Q t4 = x12_13 - x21_22;
        const Q x15_16 = io.pairs(15, 16);
        const Q x24_25 = io.pairs(24, 25);
        // complex block of 3
        const Q t5 = x15_16 + x24_25;
        const Q t6 = x15_16 - x24_25;
        const Q x3_4 = io.pairs(3, 4);
        // complex block of 3
        const Q t7 = t3 + x3_4;
        const Q x6_7 = io.pairs(6, 7);
        // complex block of 3
        const Q t8 = t5 + x6_7;
        // complex block of 3
        const Q t9 = t7 + t8;
        // complex block of 3
        const Q t10 = c[0] * t3;
        const Q t11 = x3_4 - t10;
        const Q t12 = Q(-c[1], c[1], -c[1], c[1]) * t4;
        const Q t13 = shuffled<1, 0, 3, 2>(t12);
        const Q t14 = t11 + t13;
        const Q t15 = t11 - t13;
        // complex block of 3
        const Q t16 = c[0] * t5;
        const Q t17 = x6_7 - t16;
        const Q t18 = Q(-c[1], c[1], -c[1], c[1]) * t6;
        const Q t19 = shuffled<1, 0, 3, 2>(t18);
        const Q t20 = t17 + t19;
        const Q t21 = t17 - t19;
        // complex block of 3
        const Q t22 = c[0] * t0;
        const Q t23 = x0_1 - t22;
        const Q t24 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t25 = shuffled<1, 0, 3, 2>(t24);
        const Q t26 = t23 + t25;
        const Q t27 = t23 - t25;
        // complex block of 3
        const Q t28 = t7 - t8;
        const Q t29 = c[0] * t9;
        const Q t30 = t2 - t29;
        const Q t31 = Q(-c[1], c[1], -c[1], c[1]) * t28;
        const Q t32 = shuffled<1, 0, 3, 2>(t31);
        const Q t33 = t30 + t32;
        const Q t34 = t30 - t32;
        const Q t35 = t9 + t2;
        // complex block of 9
        const Q t36 = c[4] * t14;
        const Q t37 = shuffled<1, 0, 3, 2>(t14);
        const Q t38 = Q(c[5], -c[5], c[5], -c[5]) * t37;
        const Q t39 = t36 + t38;
        const Q t40 = c[2] * t20;
        const Q t41 = shuffled<1, 0, 3, 2>(t20);
        const Q t42 = Q(c[3], -c[3], c[3], -c[3]) * t41;
        const Q t43 = t40 + t42;
        // complex block of 3
        const Q t44 = t39 + t43;
        const Q t45 = t39 - t43;
        // complex block of 9
        const Q t46 = c[2] * t15;
        const Q t47 = shuffled<1, 0, 3, 2>(t15);
        const Q t48 = Q(c[3], -c[3], c[3], -c[3]) * t47;
        const Q t49 = t46 + t48;
        const Q t50 = Q(-c[6], c[6], -c[6], c[6]) * t21;
        const Q t51 = shuffled<1, 0, 3, 2>(t21);
        const Q t52 = c[7] * t51;
        const Q t53 = t50 + t52;
        const Q t54 = flipped<0, 1, 0, 1>(t53);
        // complex block of 3
        const Q t55 = t49 + t54;
        const Q t56 = t49 - t54;
        const Q x11_14 = io.pairs(11, 14);
        const Q x20_23 = io.pairs(20, 23);
        // complex block of 3
        const Q t57 = x11_14 + x20_23;
        const Q t58 = x11_14 - x20_23;
        const Q x2_5 = io.pairs(2, 5);
        const Q t59 = t57 + x2_5;
        const P x17 = io.pair(17);
        const P x26 = io.pair(26);
        // complex block of 3
        const P t60 = x17 + x26;
        const P x8 = io.pair(8);
        const P t61 = t60 + x8;
        // complex block of 3
        const Q t62 = c[0] * t57;
        const Q t63 = x2_5 - t62;
        const P t64 = part<1>(t59);
        const V t65 = part<0>(t64);
        const V t66 = part<0>(t61);
        // complex block of 3
        const V t67 = t65 + t66;
        const V t68 = part<1>(t64);
        const V t69 = part<1>(t61);
        const V t70 = t68 + t69;
        const Q t71 = joined(x17, t64);
        const Q t72 = joined(x26, t61);
        // complex block of 3
        const Q t73 = t71 - t72;
        // complex block of 3
        const Q t74 = Q(-c[1], c[1], -c[1], c[1]) * t58;
        const Q t75 = shuffled<1, 0, 3, 2>(t74);
        const Q t76 = t63 + t75;
        const Q t77 = t63 - t75;
        const P t78 = part<0>(t59);
        const Q t79 = joined(x8, t78);
        const P t80 = joined(t67, t70);
        const Q t81 = joined(t60, t80);
        // complex block of 3
        const Q t82 = c[0] * t81;
        const Q t83 = t79 - t82;
        const Q t84 = Q(-c[1], c[1], -c[1], c[1]) * t73;
        const Q t85 = shuffled<1, 0, 3, 2>(t84);
        const Q t86 = t83 + t85;
        const Q t87 = t83 - t85;
        const Q t88 = shuffled<2, 3, 6, 7>(t76, t77);
        // complex block of 9
        const Q t89 = Q(c[4], c[4], c[2], c[2]) * t88;
        const Q t90 = shuffled<1, 0, 3, 2>(t88);
        const Q t91 = Q(c[5], -c[5], c[3], -c[3]) * t90;
        const Q t92 = t89 + t91;
        const Q t93 = shuffled<1, 0, 3, 2>(t86);
        const Q t94 = shuffled<0, 1, 4, 5>(t93, t87);
        const Q t95 = Q(c[3], -c[3], -c[6], c[6]) * t94;
        const Q t96 = shuffled<1, 0, 3, 2>(t94);
        const Q t97 = Q(c[2], c[2], c[7], c[7]) * t96;
        const Q t98 = t95 + t97;
        const Q t99 = flipped<0, 0, 0, 1>(t98);
        // complex block of 3
        const Q t100 = t92 + t99;
        // complex block of 3
        const P t101 = t80 + t78;
        // complex block of 3
        const Q t102 = t44 + t26;
        // complex block of 3
        const Q t103 = t55 + t27;
        const Q t104 = shuffled<0, 1, 4, 5>(t76, t77);
        // complex block of 3
        const Q t105 = t100 + t104;
        const Q t106 = shuffled<2, 3, 6, 7>(t102, t103);
        // complex block of 27
        const Q t107 = Q(c[14], c[14], c[8], c[8]) * t106;
        const Q t108 = shuffled<1, 0, 3, 2>(t106);
        const Q t109 = Q(c[15], -c[15], c[9], -c[9]) * t108;
        const Q t110 = t107 + t109;
        const Q t111 = Q(c[8], c[8], c[10], c[10]) * t105;
        const Q t112 = shuffled<1, 0, 3, 2>(t105);
        const Q t113 = Q(c[9], -c[9], c[11], -c[11]) * t112;
        const Q t114 = t111 + t113;
        // complex block of 3
        const Q t115 = t110 + t114;
        const Q t116 = t110 - t114;
        const Q t117 = shuffled<0, 1, 4, 5>(t102, t103);
        const Q t118 = c[0] * t115;
        const Q t119 = t117 - t118;
        const Q t120 = Q(-c[1], c[1], -c[1], c[1]) * t116;
        const Q t121 = shuffled<1, 0, 3, 2>(t120);
        const Q t122 = t119 + t121;
        io.pairs(10, 11, t122);
        const Q t123 = t119 - t121;
        io.pairs(19, 20, t123);
        const Q t124 = t115 + t117;
        io.pairs(1, 2, t124);
        // complex block of 3
        const Q t125 = c[0] * t44;
        const Q t126 = t26 - t125;
        const Q t127 = Q(-c[1], c[1], -c[1], c[1]) * t45;
        const Q t128 = shuffled<1, 0, 3, 2>(t127);
        const Q t129 = t126 + t128;
        const Q t130 = t126 - t128;
        // complex block of 3
        const Q t131 = c[0] * t55;
        const Q t132 = t27 - t131;
        const Q t133 = Q(-c[1], c[1], -c[1], c[1]) * t56;
        const Q t134 = shuffled<1, 0, 3, 2>(t133);
        const Q t135 = t132 + t134;
        const Q t136 = t132 - t134;
        const Q t137 = shuffled<2, 3, 6, 7>(t33, t129);
        // complex block of 27
        const Q t138 = Q(c[4], c[4], c[10], c[10]) * t137;
        const Q t139 = shuffled<1, 0, 3, 2>(t137);
        const Q t140 = Q(c[5], -c[5], c[11], -c[11]) * t139;
        const Q t141 = t138 + t140;
        const Q t142 = shuffled<2, 3, 6, 7>(t135, t34);
        const Q t143 = Q(c[16], c[16], c[2], c[2]) * t142;
        const Q t144 = shuffled<1, 0, 3, 2>(t142);
        const Q t145 = Q(c[17], -c[17], c[3], -c[3]) * t144;
        const Q t146 = t143 + t145;
        const Q t147 = shuffled<2, 3, 6, 7>(t130, t136);
        const Q t148 = Q(-c[18], c[18], -c[12], c[12]) * t147;
        const Q t149 = shuffled<1, 0, 3, 2>(t147);
        const Q t150 = Q(c[19], c[19], c[13], c[13]) * t149;
        const Q t151 = t148 + t150;
        // complex block of 3
        const Q t152 = t92 - t99;
        const Q t153 = c[0] * t100;
        const Q t154 = t104 - t153;
        const Q t155 = Q(-c[1], c[1], -c[1], c[1]) * t152;
        const Q t156 = shuffled<1, 0, 3, 2>(t155);
        const Q t157 = t154 + t156;
        const Q t158 = t154 - t156;
        const Q t159 = shuffled<2, 3, 4, 5>(t93, t157);
        // complex block of 27
        const Q t160 = Q(c[3], -c[3], -c[12], c[12]) * t159;
        const Q t161 = shuffled<1, 0, 3, 2>(t159);
        const Q t162 = Q(c[2], c[2], c[13], c[13]) * t161;
        const Q t163 = t160 + t162;
        const Q t164 = shuffled<2, 3, 6, 7>(t157, t87);
        const Q t165 = Q(-c[20], c[20], -c[6], c[6]) * t164;
        const Q t166 = shuffled<1, 0, 3, 2>(t164);
        const Q t167 = Q(c[21], c[21], c[7], c[7]) * t166;
        const Q t168 = t165 + t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t158);
        const Q t170 = Q(c[22], c[22], c[23], c[23]) * t169;
        const Q t171 = Q(c[24], -c[24], c[25], -c[25]) * t158;
        const Q t172 = t170 + t171;
        const Q t173 = flipped<0, 0, 0, 1>(t163);
        // complex block of 3
        const Q t174 = t141 + t173;
        const Q t175 = t141 - t173;
        const Q t176 = shuffled<0, 1, 4, 5>(t33, t129);
        const Q t177 = t174 + t176;
        io.pairs(3, 4, t177);
        const Q t178 = c[0] * t174;
        const Q t179 = t176 - t178;
        const Q t180 = Q(-c[1], c[1], -c[1], c[1]) * t175;
        const Q t181 = shuffled<1, 0, 3, 2>(t180);
        const Q t182 = t179 + t181;
        io.pairs(12, 13, t182);
        const Q t183 = t179 - t181;
        io.pairs(21, 22, t183);
        const Q t184 = flipped<0, 1, 0, 1>(t168);
        // complex block of 3
        const Q t185 = t146 + t184;
        const Q t186 = t146 - t184;
        const Q t187 = shuffled<0, 1, 4, 5>(t135, t34);
        const Q t188 = t185 + t187;
        io.pairs(5, 6, t188);
        const Q t189 = c[0] * t185;
        const Q t190 = t187 - t189;
        const Q t191 = Q(-c[1], c[1], -c[1], c[1]) * t186;
        const Q t192 = shuffled<1, 0, 3, 2>(t191);
        const Q t193 = t190 + t192;
        io.pairs(14, 15, t193);
        const Q t194 = t190 - t192;
        io.pairs(23, 24, t194);
        const Q t195 = shuffled<0, 5, 2, 7>(t151, t172);
        const Q t196 = shuffled<0, 5, 2, 7>(t172, t151);
        // complex block of 3
        const Q t197 = t195 - t196;
        const Q t198 = t151 + t172;
        const Q t199 = shuffled<0, 1, 4, 5>(t130, t136);
        const Q t200 = t197 + t199;
        io.pairs(7, 8, t200);
        const Q t201 = c[0] * t197;
        const Q t202 = t199 - t201;
        const Q t203 = c[1] * t198;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = t202 - t204;
        io.pairs(16, 17, t205);
        const Q t206 = t202 + t204;
        io.pairs(25, 26, t206);
        const P t207 = part<1>(t35);
        // complex block of 3
        const P t208 = t207 + t101;
        const P t209 = t207 - t101;
        const P t210 = part<0>(t35);
        const P t211 = t208 + t210;
        io.pair(0, t211);
        const P t212 = c[0] * t208;
        const P t213 = t210 - t212;
        const P t214 = P(-c[1], c[1]) * t209;
        const P t215 = shuffled<1, 0>(t214);
        const P t216 = t213 + t215;
        io.pair(9, t216);
        const P t217 = t213 - t215;
        io.pair(18, t217);
    }
};

}  // namespace zulg
