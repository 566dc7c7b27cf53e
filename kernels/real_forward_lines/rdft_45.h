// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 45.
// Forward DFT of 45 real points, prime-factor 5, 9; up to four lanes to a register.
// 55 sums, 36 differences, 50 products of registers, which do the 517 steps of the graph, those with
// `scale` included; 52 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<45> {
    static constexpr int steps = 517;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.30901699437494745,  // c[2]: cos 2 pi 4/5
        0.8090169943749475,  // c[3]: -cos 2 pi 12/5
        0.9510565162951535,  // c[4]: -sin 2 pi 4/5
        0.5877852522924731,  // c[5]: sin 2 pi 12/5
        0.6427876096865394,  // c[6]: sin 2 pi 1/9
        0.766044443118978,  // c[7]: cos 2 pi 1/9
        0.3420201433256687,  // c[8]: -sin 2 pi 5/9
        0.9396926207859084,  // c[9]: -cos 2 pi 5/9
        0.17364817766693036,  // c[10]: cos 2 pi 2/9
        0.984807753012208,  // c[11]: sin 2 pi 2/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x9_14_19_24 = io.in(9, 14, 19, 24);
        const Q x36_41_1_6 = io.in(36, 41, 1, 6);
        // real block of 5, multiplier 4
        const Q t0 = x9_14_19_24 + x36_41_1_6;
        const Q t1 = x9_14_19_24 - x36_41_1_6;
        const Q x27_32_37_42 = io.in(27, 32, 37, 42);
        const Q x18_23_28_33 = io.in(18, 23, 28, 33);
        const Q t2 = x27_32_37_42 + x18_23_28_33;
        const Q t3 = x27_32_37_42 - x18_23_28_33;
        const Q t4 = t0 + t2;
        const Q x0_5_10_15 = io.in(0, 5, 10, 15);
        const Q t5 = t4 + x0_5_10_15;
        const Q x2_7_12_17 = io.in(2, 7, 12, 17);
        const Q x38_43_3_8 = io.in(38, 43, 3, 8);
        // real block of 5, multiplier 4
        const Q t6 = x2_7_12_17 + x38_43_3_8;
        const Q t7 = x2_7_12_17 - x38_43_3_8;
        const Q x29_34_39_44 = io.in(29, 34, 39, 44);
        const Q x11_16_21_26 = io.in(11, 16, 21, 26);
        const Q t8 = x29_34_39_44 + x11_16_21_26;
        const Q t9 = x29_34_39_44 - x11_16_21_26;
        const Q t10 = t8 + t6;
        const Q x20_25_30_35 = io.in(20, 25, 30, 35);
        const Q t11 = t10 + x20_25_30_35;
        const Q t12 = c[2] * t8;
        const Q t13 = c[3] * t6;
        const Q t14 = t12 - t13;
        const Q t15 = c[4] * t9;
        const Q t16 = c[5] * t7;
        const Q t17 = t15 - t16;
        const Q t18 = c[3] * t8;
        const Q t19 = x20_25_30_35 - t18;
        const Q t20 = c[5] * t9;
        const Q t21 = c[4] * t7;
        const Q t22 = t20 + t21;
        const V x4 = io.in(4);
        const V x31 = io.in(31);
        // real block of 5, multiplier 4
        const V t23 = x4 + x31;
        const V t24 = x4 - x31;
        const V x22 = io.in(22);
        const V x13 = io.in(13);
        const V t25 = x22 + x13;
        const V t26 = x22 - x13;
        const V t27 = t23 + t25;
        const V x40 = io.in(40);
        const V t28 = t27 + x40;
        const V t29 = c[2] * t23;
        const V t30 = c[3] * t25;
        const V t31 = t29 - t30;
        const V t32 = c[4] * t24;
        const V t33 = c[5] * t26;
        const V t34 = t32 - t33;
        const V t35 = c[3] * t23;
        const V t36 = x40 - t35;
        const V t37 = c[5] * t24;
        const V t38 = c[4] * t26;
        const V t39 = t37 + t38;
        // real block of 5, multiplier 4
        const Q t40 = c[2] * t0;
        const Q t41 = c[3] * t2;
        const Q t42 = t40 - t41;
        const Q t43 = t42 + x0_5_10_15;
        const Q t44 = c[4] * t1;
        const Q t45 = c[5] * t3;
        const Q t46 = t44 - t45;
        const Q t47 = c[3] * t0;
        const Q t48 = x0_5_10_15 - t47;
        const Q t49 = c[2] * t2;
        const Q t50 = t48 + t49;
        const Q t51 = c[5] * t1;
        const Q t52 = c[4] * t3;
        const Q t53 = t51 + t52;
        // real block of 5, multiplier 4
        const Q t54 = t14 + x20_25_30_35;
        const Q t55 = c[2] * t6;
        const Q t56 = t19 + t55;
        // real block of 5, multiplier 4
        const V t57 = t31 + x40;
        const V t58 = c[2] * t25;
        const V t59 = t36 + t58;
        const Q t60 = shuffled<0, 4, 2, 6>(t54, t17);
        const Q t61 = shuffled<0, 4, 2, 6>(t56, t22);
        const Q t62 = shuffled<0, 1, 4, 5>(t60, t61);
        const Q t63 = shuffled<1, 5, 3, 7>(t54, t17);
        const Q t64 = shuffled<1, 5, 3, 7>(t56, t22);
        const Q t65 = shuffled<2, 3, 6, 7>(t63, t64);
        // complex block of 3, multiplier 2
        const Q t66 = t62 + t65;
        const Q t67 = t62 - t65;
        const Q t68 = shuffled<0, 1, 4, 5>(t63, t64);
        const P t69 = joined(t57, t34);
        const P t70 = joined(t59, t39);
        const Q t71 = joined(t69, t70);
        // complex block of 3, multiplier 2
        const Q t72 = t68 + t71;
        const Q t73 = t68 - t71;
        const Q t74 = shuffled<1, 5, 3, 7>(t43, t46);
        const Q t75 = shuffled<1, 5, 3, 7>(t50, t53);
        const Q t76 = shuffled<2, 3, 6, 7>(t74, t75);
        const Q t77 = shuffled<2, 3, 6, 7>(t60, t61);
        // complex block of 3, multiplier 2
        const Q t78 = t76 + t77;
        const Q t79 = shuffled<0, 1, 4, 5>(t74, t75);
        // complex block of 3, multiplier 2
        const Q t80 = c[0] * t66;
        const Q t81 = t79 - t80;
        const Q t82 = shuffled<0, 4, 2, 6>(t43, t46);
        const Q t83 = shuffled<0, 4, 2, 6>(t50, t53);
        const Q t84 = shuffled<2, 3, 6, 7>(t82, t83);
        // complex block of 3, multiplier 2
        const Q t85 = c[0] * t72;
        const Q t86 = t84 - t85;
        const P t87 = part<1>(t5);
        const P t88 = part<0>(t11);
        const P t89 = shuffled<1, 2>(t87, t88);
        const P t90 = part<1>(t11);
        // real block of 3, multiplier 2
        const P t91 = t89 + t90;
        const P t92 = part<0>(t5);
        const P t93 = t91 + t92;
        const V t94 = part<1>(t88);
        // real block of 3, multiplier 2
        const V t95 = t94 + t28;
        const V t96 = part<0>(t87);
        const V t97 = t95 + t96;
        const V t98 = part<1>(t93);
        // real block of 3, multiplier 2
        const V t99 = t98 + t97;
        const P t100 = shuffled<1, 3>(t88, t93);
        const Q t101 = joined(t89, t100);
        const P t102 = joined(t28, t97);
        const Q t103 = joined(t90, t102);
        // real block of 3, multiplier 2
        const Q t104 = t101 - t103;
        const V t105 = part<0>(t93);
        // real block of 3, multiplier 2
        const V t106 = t99 + t105;
        io.re(0, t106);
        const P t107 = shuffled<0, 2>(t87, t93);
        const Q t108 = joined(t92, t107);
        const P t109 = joined(t95, t99);
        const Q t110 = joined(t91, t109);
        // real block of 3, multiplier 2
        const Q t111 = c[0] * t110;
        const Q t112 = t108 - t111;
        const P t113 = part<1>(t112);
        const Q t114 = c[1] * t104;
        const P t115 = part<1>(t114);
        const P t116 = shuffled<1, 3>(t113, t115);
        io.pair(15, t116);
        const Q t117 = shuffled<0, 4, 2, 6>(t114, t112);
        const Q t118 = shuffled<1, 5, 3, 7>(t114, t112);
        const Q t119 = shuffled<2, 3, 4, 5>(t117, t118);
        // real block of 9, multiplier 5
        const Q t120 = Q(c[6], -c[6], c[8], c[8]) * t119;
        const Q t121 = shuffled<1, 0, 3, 2>(t119);
        const Q t122 = Q(c[7], c[7], c[9], -c[9]) * t121;
        const Q t123 = t120 + t122;
        const P t124 = part<1>(t123);
        const P t125 = flipped<1, 0>(t124);
        const P t126 = part<0>(t123);
        // complex block of 3, multiplier 2
        const P t127 = t125 + t126;
        const P t128 = flipped<0, 1>(t126);
        const P t129 = t124 + t128;
        const P t130 = part<0>(t117);
        const P t131 = shuffled<1, 0>(t130);
        const P t132 = c[0] * t127;
        const P t133 = t131 - t132;
        const P t134 = c[1] * t129;
        const P t135 = shuffled<1, 0>(t134);
        const P t136 = t133 + t135;
        io.pair(10, negated<0, 1>(t136));
        const P t137 = t133 - t135;
        io.pair(20, t137);
        const P t138 = t127 + t131;
        io.pair(5, t138);
        // complex block of 3, multiplier 2
        const Q t139 = t76 - t77;
        const Q t140 = shuffled<0, 1, 4, 5>(t82, t83);
        const Q t141 = c[0] * t78;
        const Q t142 = t140 - t141;
        const Q t143 = Q(-c[1], c[1], -c[1], c[1]) * t139;
        const Q t144 = shuffled<1, 0, 3, 2>(t143);
        const Q t145 = t142 + t144;
        const Q t146 = t142 - t144;
        // complex block of 3, multiplier 2
        const Q t147 = Q(-c[1], c[1], -c[1], c[1]) * t67;
        const Q t148 = shuffled<1, 0, 3, 2>(t147);
        const Q t149 = t81 + t148;
        // complex block of 3, multiplier 2
        const Q t150 = Q(-c[1], c[1], -c[1], c[1]) * t73;
        const Q t151 = shuffled<1, 0, 3, 2>(t150);
        const Q t152 = t86 + t151;
        // complex block of 9, multiplier 5
        const Q t153 = c[7] * t149;
        const Q t154 = shuffled<1, 0, 3, 2>(t149);
        const Q t155 = Q(c[6], -c[6], c[6], -c[6]) * t154;
        const Q t156 = t153 + t155;
        const Q t157 = c[10] * t152;
        const Q t158 = shuffled<1, 0, 3, 2>(t152);
        const Q t159 = Q(c[11], -c[11], c[11], -c[11]) * t158;
        const Q t160 = t157 + t159;
        // complex block of 3, multiplier 2
        const Q t161 = t156 + t160;
        // complex block of 3, multiplier 2
        const Q t162 = t81 - t148;
        // complex block of 3, multiplier 2
        const Q t163 = t86 - t151;
        const Q t164 = shuffled<1, 0, 3, 2>(t162);
        // complex block of 9, multiplier 5
        const Q t165 = c[8] * t164;
        const Q t166 = Q(c[9], -c[9], c[9], -c[9]) * t162;
        const Q t167 = t165 + t166;
        const Q t168 = c[7] * t163;
        const Q t169 = shuffled<1, 0, 3, 2>(t163);
        const Q t170 = Q(c[6], -c[6], c[6], -c[6]) * t169;
        const Q t171 = t168 + t170;
        const Q t172 = flipped<1, 0, 1, 0>(t167);
        // complex block of 3, multiplier 2
        const Q t173 = t172 + t171;
        const Q t174 = flipped<0, 1, 0, 1>(t171);
        const Q t175 = t167 + t174;
        const Q t176 = c[0] * t173;
        const Q t177 = t146 - t176;
        const Q t178 = c[1] * t175;
        const Q t179 = shuffled<1, 0, 3, 2>(t178);
        const Q t180 = t177 + t179;
        io.pairs(1, 8, negated<0, 1, 0, 0>(t180));
        const Q t181 = t177 - t179;
        io.pairs(16, 7, negated<0, 1, 0, 1>(t181));
        const Q t182 = t173 + t146;
        io.pairs(14, 22, negated<0, 0, 0, 1>(t182));
        // complex block of 3, multiplier 2
        const Q t183 = t156 - t160;
        const Q t184 = c[0] * t161;
        const Q t185 = t145 - t184;
        const Q t186 = Q(-c[1], c[1], -c[1], c[1]) * t183;
        const Q t187 = shuffled<1, 0, 3, 2>(t186);
        const Q t188 = t185 + t187;
        io.pairs(4, 13, t188);
        const Q t189 = t185 - t187;
        io.pairs(11, 2, negated<0, 1, 0, 1>(t189));
        const Q t190 = t161 + t145;
        io.pairs(19, 17, negated<0, 0, 0, 1>(t190));
        // complex block of 3, multiplier 2
        const Q t191 = t78 + t140;
        // complex block of 3, multiplier 2
        const Q t192 = t66 + t79;
        // complex block of 3, multiplier 2
        const Q t193 = t72 + t84;
        // complex block of 3, multiplier 2
        const Q t194 = t192 + t193;
        const Q t195 = t192 - t193;
        const Q t196 = t194 + t191;
        io.pairs(9, 18, t196);
        const Q t197 = c[0] * t194;
        const Q t198 = t191 - t197;
        const Q t199 = Q(-c[1], c[1], -c[1], c[1]) * t195;
        const Q t200 = shuffled<1, 0, 3, 2>(t199);
        const Q t201 = t198 + t200;
        io.pairs(6, 3, negated<0, 1, 0, 0>(t201));
        const Q t202 = t198 - t200;
        io.pairs(21, 12, negated<0, 1, 0, 1>(t202));
    }
};

}  // namespace zulg
