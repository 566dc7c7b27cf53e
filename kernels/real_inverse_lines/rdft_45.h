// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 45.
// Inverse DFT to 45 real points, prime-factor 5, 9; up to four lanes to a register.
// 54 sums, 39 differences, 63 products of registers, which do the 551 steps of the graph, those with
// `scale` included; 40 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<45> {
    static constexpr int steps = 551;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.30901699437494745,  // c[3]: cos 2 pi 1/5
        0.8090169943749475,  // c[4]: -cos 2 pi 2/5
        0.9510565162951535,  // c[5]: sin 2 pi 1/5
        0.5877852522924731,  // c[6]: sin 2 pi 2/5
        0.3420201433256687,  // c[7]: sin 2 pi 4/9
        0.9396926207859084,  // c[8]: -cos 2 pi 4/9
        0.8137976813493737,  // c[9]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[10]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.766044443118978,  // c[11]: cos 2 pi 8/9
        0.6427876096865394,  // c[12]: -sin 2 pi 8/9
        0.6634139481689384,  // c[13]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[14]: sin 2 pi 1/3 times -sin 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const P x9 = io.pair(9);
        // doubled bins
        const P t0 = c[0] * x9;
        const V t1 = part<0>(t0);
        const P x18 = io.pair(18);
        const P t2 = c[0] * x18;
        const V t3 = part<0>(t2);
        // spectrum block of 5, multiplier 4
        const V t4 = t1 + t3;
        const V x0r = io.re(0);
        const V t5 = t4 + x0r;
        const V t6 = c[3] * t1;
        const V t7 = c[4] * t3;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0r;
        const V t10 = part<1>(t0);
        const V t11 = c[5] * t10;
        const V t12 = part<1>(t2);
        const V t13 = c[6] * t12;
        const V t14 = t11 + t13;
        const V t15 = t9 - t14;
        const V t16 = c[4] * t1;
        const V t17 = x0r - t16;
        const V t18 = c[3] * t3;
        const V t19 = t17 + t18;
        const V t20 = c[6] * t10;
        const V t21 = c[5] * t12;
        const V t22 = t20 - t21;
        const Q x14_19 = io.pairs(14, 19);
        // doubled bins
        const Q t23 = c[0] * x14_19;
        const Q x4_1 = io.pairs(4, 1);
        const Q t24 = Q(c[0], -c[0], c[0], c[0]) * x4_1;
        // complex block of 5, multiplier 4
        const Q t25 = t23 + t24;
        const Q t26 = t23 - t24;
        const Q x3_2 = io.pairs(3, 2);
        // doubled bins
        const Q t27 = c[0] * x3_2;
        const Q x12_7 = io.pairs(12, 7);
        const Q t28 = Q(c[0], c[0], c[0], -c[0]) * x12_7;
        // complex block of 5, multiplier 4
        const Q t29 = t27 + t28;
        const Q t30 = flipped<0, 1, 0, 0>(t27);
        const Q t31 = flipped<1, 0, 1, 1>(t28);
        const Q t32 = t30 + t31;
        const Q x6_11 = io.pairs(6, 11);
        // doubled bins
        const Q t33 = c[0] * x6_11;
        const Q x21_16 = io.pairs(21, 16);
        const Q t34 = Q(c[0], -c[0], c[0], -c[0]) * x21_16;
        // complex block of 5, multiplier 4
        const Q t35 = t33 + t34;
        const Q t36 = flipped<0, 1, 0, 1>(t34);
        const Q t37 = flipped<1, 0, 1, 0>(t33);
        const Q t38 = t36 + t37;
        const Q x13_8 = io.pairs(13, 8);
        // doubled bins
        const Q t39 = c[0] * x13_8;
        const Q x22_17 = io.pairs(22, 17);
        const Q t40 = c[0] * x22_17;
        // complex block of 5, multiplier 4
        const Q t41 = t39 + t40;
        const Q t42 = shuffled<0, 5, 2, 7>(t39, t40);
        const Q t43 = shuffled<0, 5, 2, 7>(t40, t39);
        const Q t44 = t42 - t43;
        const Q t45 = flipped<0, 1, 0, 1>(t41);
        const Q t46 = t25 + t45;
        const Q x5_10 = io.pairs(5, 10);
        // doubled bins
        const Q t47 = c[0] * x5_10;
        // complex block of 5, multiplier 4
        const Q t48 = t46 + t47;
        const Q t49 = c[3] * t25;
        const Q t50 = Q(-c[4], c[4], -c[4], c[4]) * t41;
        const Q t51 = t49 + t50;
        const Q t52 = t51 + t47;
        const Q t53 = c[5] * t26;
        const Q t54 = c[6] * t44;
        const Q t55 = t53 - t54;
        const Q t56 = c[4] * t25;
        const Q t57 = t47 - t56;
        const Q t58 = Q(c[3], -c[3], c[3], -c[3]) * t41;
        const Q t59 = t57 + t58;
        const Q t60 = c[6] * t26;
        const Q t61 = c[5] * t44;
        const Q t62 = t60 + t61;
        const Q t63 = flipped<0, 1, 0, 0>(t29);
        // complex block of 5, multiplier 4
        const Q t64 = t35 + t63;
        const Q x15_20 = io.pairs(15, 20);
        // doubled bins
        const Q t65 = c[0] * x15_20;
        // complex block of 5, multiplier 4
        const Q t66 = t64 + t65;
        const Q t67 = c[3] * t35;
        const Q t68 = Q(c[4], -c[4], c[4], c[4]) * t29;
        const Q t69 = t67 - t68;
        const Q t70 = t69 + t65;
        const Q t71 = c[5] * t38;
        const Q t72 = Q(-c[6], c[6], -c[6], c[6]) * t32;
        const Q t73 = t71 + t72;
        const Q t74 = c[4] * t35;
        const Q t75 = t65 - t74;
        const Q t76 = Q(c[3], -c[3], c[3], c[3]) * t29;
        const Q t77 = t75 + t76;
        const Q t78 = c[5] * t32;
        const Q t79 = Q(c[6], -c[6], c[6], -c[6]) * t38;
        const Q t80 = t78 + t79;
        const Q t81 = shuffled<1, 0, 3, 2>(t55);
        const Q t82 = flipped<1, 0, 1, 0>(t81);
        // complex block of 5, multiplier 4
        const Q t83 = t52 + t82;
        const Q t84 = shuffled<1, 0, 3, 2>(t73);
        // complex block of 5, multiplier 4
        const Q t85 = t70 + t84;
        const P t86 = part<1>(t85);
        const P t87 = part<1>(t83);
        const P t88 = flipped<0, 1>(t87);
        // complex block of 3, multiplier 2
        const P t89 = t86 + t88;
        const P t90 = t86 - t88;
        // complex block of 5, multiplier 4
        const Q t91 = t52 - t82;
        const Q t92 = shuffled<1, 0, 3, 2>(t62);
        const Q t93 = flipped<1, 0, 1, 0>(t92);
        const Q t94 = t59 + t93;
        const Q t95 = t59 - t93;
        // complex block of 5, multiplier 4
        const Q t96 = t70 - t84;
        const Q t97 = shuffled<1, 0, 3, 2>(t80);
        const Q t98 = flipped<1, 0, 1, 0>(t97);
        const Q t99 = t77 + t98;
        const Q t100 = t77 - t98;
        const Q t101 = shuffled<1, 5, 3, 7>(t66, t96);
        const Q t102 = shuffled<1, 5, 3, 7>(t100, t99);
        const Q t103 = shuffled<2, 3, 6, 7>(t101, t102);
        const Q t104 = shuffled<1, 5, 3, 7>(t48, t91);
        const Q t105 = shuffled<1, 5, 3, 7>(t95, t94);
        const Q t106 = shuffled<2, 3, 6, 7>(t104, t105);
        // complex block of 3, multiplier 2
        const Q t107 = t103 - t106;
        const Q t108 = shuffled<0, 4, 2, 6>(t66, t96);
        const Q t109 = shuffled<0, 4, 2, 6>(t100, t99);
        const Q t110 = shuffled<2, 3, 6, 7>(t108, t109);
        const Q t111 = shuffled<0, 4, 2, 6>(t48, t91);
        const Q t112 = shuffled<0, 4, 2, 6>(t95, t94);
        const Q t113 = shuffled<2, 3, 6, 7>(t111, t112);
        const Q t114 = t110 + t113;
        const Q t115 = t103 + t106;
        const Q t116 = t110 - t113;
        // spectrum block of 5, multiplier 4
        const V t117 = t9 + t14;
        const V t118 = t19 - t22;
        const V t119 = t19 + t22;
        const P t120 = joined(t5, t117);
        const P t121 = joined(t119, t118);
        const Q t122 = joined(t120, t121);
        const Q t123 = shuffled<0, 1, 4, 5>(t108, t109);
        // spectrum block of 3, multiplier 2
        const Q t124 = c[1] * t123;
        const Q t125 = t122 - t124;
        const Q t126 = t123 + t122;
        const Q t127 = shuffled<0, 1, 4, 5>(t101, t102);
        const Q t128 = c[2] * t127;
        const Q t129 = t125 - t128;
        const Q t130 = t125 + t128;
        const Q t131 = shuffled<0, 1, 4, 5>(t104, t105);
        // complex block of 3, multiplier 2
        const Q t132 = t107 + t131;
        const Q t133 = shuffled<0, 1, 4, 5>(t111, t112);
        const Q t134 = t114 + t133;
        const Q t135 = c[1] * t107;
        const Q t136 = t131 - t135;
        const Q t137 = c[2] * t116;
        const Q t138 = t136 + t137;
        const Q t139 = t136 - t137;
        const Q t140 = c[1] * t114;
        const Q t141 = t133 - t140;
        const Q t142 = c[2] * t115;
        const Q t143 = t141 - t142;
        const Q t144 = t141 + t142;
        // spectrum block of 9, multiplier 5
        const Q t145 = c[7] * t139;
        const Q t146 = c[8] * t144;
        const Q t147 = t145 - t146;
        // spectrum block of 3, multiplier 2
        const Q t148 = c[9] * t139;
        const Q t149 = c[10] * t144;
        const Q t150 = t148 + t149;
        const Q t151 = t147 + t130;
        io.out(5, 14, 23, 32, t151);
        const Q t152 = c[1] * t147;
        const Q t153 = t130 - t152;
        const Q t154 = t153 + t150;
        io.out(35, 44, 8, 17, t154);
        const Q t155 = t153 - t150;
        io.out(20, 29, 38, 2, t155);
        // spectrum block of 9, multiplier 5
        const Q t156 = c[11] * t143;
        const Q t157 = c[12] * t138;
        const Q t158 = t156 - t157;
        // spectrum block of 3, multiplier 2
        const Q t159 = c[13] * t138;
        const Q t160 = c[14] * t143;
        const Q t161 = t159 + t160;
        const Q t162 = t158 + t129;
        io.out(10, 19, 28, 37, t162);
        const Q t163 = c[1] * t158;
        const Q t164 = t129 - t163;
        const Q t165 = t164 - t161;
        io.out(40, 4, 13, 22, t165);
        const Q t166 = t164 + t161;
        io.out(25, 34, 43, 7, t166);
        // spectrum block of 3, multiplier 2
        const Q t167 = t134 + t126;
        io.out(0, 9, 18, 27, t167);
        const Q t168 = c[1] * t134;
        const Q t169 = t126 - t168;
        const Q t170 = c[2] * t132;
        const Q t171 = t169 - t170;
        io.out(30, 39, 3, 12, t171);
        const Q t172 = t169 + t170;
        io.out(15, 24, 33, 42, t172);
        const P t173 = part<0>(t85);
        const V t174 = part<0>(t173);
        // spectrum block of 3, multiplier 2
        const V t175 = t174 + t15;
        const P t176 = part<0>(t83);
        // complex block of 3, multiplier 2
        const P t177 = t89 + t176;
        const P t178 = joined(t15, t175);
        const P t179 = shuffled<0, 2>(t173, t177);
        // spectrum block of 3, multiplier 2
        const P t180 = c[1] * t179;
        const P t181 = t178 - t180;
        // complex block of 3, multiplier 2
        const P t182 = c[1] * t89;
        const P t183 = t176 - t182;
        const P t184 = P(c[2], -c[2]) * t90;
        const P t185 = shuffled<1, 0>(t184);
        const P t186 = t183 + t185;
        const P t187 = t183 - t185;
        const P t188 = shuffled<1, 2>(t187, t186);
        // spectrum block of 9, multiplier 5
        const P t189 = P(c[7], c[11]) * t188;
        const P t190 = shuffled<0, 3>(t187, t186);
        const P t191 = P(c[8], c[12]) * t190;
        const P t192 = t189 - t191;
        const P t193 = shuffled<1, 3>(t173, t177);
        // spectrum block of 3, multiplier 2
        const P t194 = c[2] * t193;
        const P t195 = t181 - t194;
        const V t196 = part<1>(t195);
        io.out(21, t196);
        const P t197 = t181 + t194;
        const V t198 = part<1>(t197);
        io.out(6, t198);
        const P t199 = shuffled<0, 3>(t188, t190);
        // spectrum block of 3, multiplier 2
        const P t200 = P(c[9], c[13]) * t199;
        const P t201 = shuffled<0, 3>(t190, t188);
        const P t202 = P(c[10], c[14]) * t201;
        const P t203 = t200 + t202;
        const P t204 = shuffled<0, 2>(t197, t195);
        const P t205 = t192 + t204;
        io.out(41, 1, t205);
        const P t206 = c[1] * t192;
        const P t207 = t204 - t206;
        const P t208 = flipped<0, 1>(t203);
        const P t209 = t207 + t208;
        io.out(26, 31, t209);
        const P t210 = t207 - t208;
        io.out(11, 16, t210);
        const V t211 = part<0>(t177);
        // spectrum block of 3, multiplier 2
        const V t212 = t211 + t175;
        io.out(36, t212);
    }
};

}  // namespace zulg
