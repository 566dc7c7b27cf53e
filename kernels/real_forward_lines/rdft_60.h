// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 60.
// Forward DFT of 60 real points, prime-factor 3, 5, 4; up to four lanes to a register.
// 53 sums, 43 differences, 34 products of registers, which do the 570 steps of the graph, those with
// `scale` included; 42 shuffles, 14 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<60> {
    static constexpr int steps = 570;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x20_35_50_5 = io.in(20, 35, 50, 5);
        const Q x40_55_10_25 = io.in(40, 55, 10, 25);
        // real block of 3, multiplier 2
        const Q t0 = x20_35_50_5 + x40_55_10_25;
        const Q t1 = x20_35_50_5 - x40_55_10_25;
        const Q x0_15_30_45 = io.in(0, 15, 30, 45);
        const Q t2 = t0 + x0_15_30_45;
        const Q t3 = c[4] * t0;
        const Q t4 = x0_15_30_45 - t3;
        const Q x56_11_26_41 = io.in(56, 11, 26, 41);
        const Q x16_31_46_1 = io.in(16, 31, 46, 1);
        // real block of 3, multiplier 2
        const Q t5 = x56_11_26_41 + x16_31_46_1;
        const Q t6 = x56_11_26_41 - x16_31_46_1;
        const Q x36_51_6_21 = io.in(36, 51, 6, 21);
        const Q t7 = t5 + x36_51_6_21;
        const Q x44_59_14_29 = io.in(44, 59, 14, 29);
        const Q x4_19_34_49 = io.in(4, 19, 34, 49);
        // real block of 3, multiplier 2
        const Q t8 = x44_59_14_29 + x4_19_34_49;
        const Q t9 = x44_59_14_29 - x4_19_34_49;
        const Q x24_39_54_9 = io.in(24, 39, 54, 9);
        const Q t10 = t8 + x24_39_54_9;
        const Q t11 = c[4] * t8;
        const Q t12 = x24_39_54_9 - t11;
        // real block of 3, multiplier 2
        const Q t13 = c[4] * t5;
        const Q t14 = x36_51_6_21 - t13;
        // complex block of 5, multiplier 2
        const Q t15 = t14 + t12;
        const Q t16 = t14 - t12;
        // real block of 5, multiplier 2
        const Q t17 = t7 + t10;
        const Q t18 = t7 - t10;
        // real block of 3, multiplier 2
        const Q t19 = c[5] * t6;
        // real block of 3, multiplier 2
        const Q t20 = c[5] * t9;
        // complex block of 5, multiplier 2
        const Q t21 = t19 + t20;
        const Q t22 = t19 - t20;
        const Q x32_47_2_17 = io.in(32, 47, 2, 17);
        const Q x52_7_22_37 = io.in(52, 7, 22, 37);
        // real block of 3, multiplier 2
        const Q t23 = x32_47_2_17 + x52_7_22_37;
        const Q t24 = x32_47_2_17 - x52_7_22_37;
        const Q x12_27_42_57 = io.in(12, 27, 42, 57);
        const Q t25 = t23 + x12_27_42_57;
        const Q x8_23_38_53 = io.in(8, 23, 38, 53);
        const Q x28_43_58_13 = io.in(28, 43, 58, 13);
        // real block of 3, multiplier 2
        const Q t26 = x8_23_38_53 + x28_43_58_13;
        const Q t27 = x8_23_38_53 - x28_43_58_13;
        const Q x48_3_18_33 = io.in(48, 3, 18, 33);
        const Q t28 = t26 + x48_3_18_33;
        // real block of 3, multiplier 2
        const Q t29 = c[4] * t23;
        const Q t30 = x12_27_42_57 - t29;
        // real block of 3, multiplier 2
        const Q t31 = c[4] * t26;
        const Q t32 = x48_3_18_33 - t31;
        // complex block of 5, multiplier 2
        const Q t33 = t30 + t32;
        const Q t34 = t30 - t32;
        // real block of 5, multiplier 2
        const Q t35 = t25 + t28;
        const Q t36 = t25 - t28;
        // real block of 3, multiplier 2
        const Q t37 = c[5] * t24;
        // real block of 3, multiplier 2
        const Q t38 = c[5] * t27;
        // complex block of 5, multiplier 2
        const Q t39 = t37 + t38;
        const Q t40 = t37 - t38;
        // real block of 5, multiplier 2
        const Q t41 = t35 + t17;
        const Q t42 = t41 + t2;
        const P t43 = part<0>(t42);
        const P t44 = part<1>(t42);
        // real block of 2
        const P t45 = t43 + t44;
        const V t46 = part<0>(t45);
        const V t47 = part<1>(t45);
        // real block of 2
        const V t48 = t46 + t47;
        io.re(0, t48);
        const V t49 = t46 - t47;
        io.re(30, t49);
        // real block of 2
        const P t50 = t43 - t44;
        io.pair(15, t50);
        // real block of 5, multiplier 2
        const Q t51 = c[0] * t35;
        const Q t52 = t2 - t51;
        const Q t53 = c[1] * t17;
        const Q t54 = t52 + t53;
        const Q t55 = c[2] * t36;
        const Q t56 = c[3] * t18;
        const Q t57 = t55 + t56;
        // complex block of 5, multiplier 2
        const Q t58 = c[1] * t33;
        const Q t59 = c[0] * t15;
        const Q t60 = t58 - t59;
        const Q t61 = t60 + t4;
        const Q t62 = c[3] * t40;
        const Q t63 = c[2] * t22;
        const Q t64 = t62 - t63;
        const Q t65 = t61 + t64;
        const Q t66 = t61 - t64;
        const Q t67 = c[1] * t39;
        const Q t68 = c[0] * t21;
        const Q t69 = t67 - t68;
        // real block of 3, multiplier 2
        const Q t70 = c[5] * t1;
        // complex block of 5, multiplier 2
        const Q t71 = t69 + t70;
        const Q t72 = c[3] * t34;
        const Q t73 = c[2] * t16;
        const Q t74 = t72 - t73;
        const Q t75 = t71 - t74;
        const Q t76 = t71 + t74;
        const Q t77 = c[0] * t33;
        const Q t78 = t4 - t77;
        const Q t79 = c[1] * t15;
        const Q t80 = t78 + t79;
        const Q t81 = c[2] * t40;
        const Q t82 = c[3] * t22;
        const Q t83 = t81 + t82;
        const Q t84 = t80 + t83;
        const Q t85 = t80 - t83;
        const Q t86 = c[0] * t39;
        const Q t87 = t70 - t86;
        const Q t88 = c[1] * t21;
        const Q t89 = t87 + t88;
        const Q t90 = c[2] * t34;
        const Q t91 = c[3] * t16;
        const Q t92 = t90 + t91;
        const Q t93 = t89 - t92;
        const Q t94 = t89 + t92;
        const Q t95 = shuffled<0, 4, 2, 6>(t65, t75);
        const Q t96 = shuffled<0, 4, 2, 6>(t85, t94);
        const Q t97 = shuffled<0, 1, 4, 5>(t95, t96);
        const Q t98 = shuffled<2, 3, 6, 7>(t95, t96);
        // complex block of 2
        const Q t99 = t97 + t98;
        const Q t100 = shuffled<1, 5, 3, 7>(t65, t75);
        const Q t101 = shuffled<1, 5, 3, 7>(t85, t94);
        const Q t102 = shuffled<0, 1, 4, 5>(t100, t101);
        const Q t103 = shuffled<2, 3, 6, 7>(t100, t101);
        // complex block of 2
        const Q t104 = t102 + t103;
        // complex block of 2
        const Q t105 = t99 + t104;
        io.pairs(4, 8, negated<0, 1, 0, 0>(t105));
        const Q t106 = flipped<0, 1, 0, 0>(t99);
        const Q t107 = flipped<0, 1, 0, 0>(t104);
        const Q t108 = t106 - t107;
        io.pairs(26, 22, negated<0, 1, 0, 1>(t108));
        const Q t109 = flipped<0, 1, 0, 0>(t97);
        const Q t110 = flipped<0, 1, 0, 0>(t98);
        // complex block of 2
        const Q t111 = t109 - t110;
        const Q t112 = flipped<0, 1, 0, 0>(t102);
        const Q t113 = flipped<0, 1, 0, 0>(t103);
        // complex block of 2
        const Q t114 = t112 - t113;
        const Q t115 = shuffled<1, 0, 3, 2>(t114);
        const Q t116 = flipped<1, 0, 1, 0>(t115);
        // complex block of 2
        const Q t117 = t111 + t116;
        io.pairs(19, 23, t117);
        const Q t118 = t111 - t116;
        io.pairs(11, 7, negated<0, 1, 0, 1>(t118));
        const Q t119 = shuffled<0, 4, 2, 6>(t54, t57);
        const Q t120 = shuffled<0, 4, 2, 6>(t66, t76);
        const Q t121 = shuffled<0, 1, 4, 5>(t119, t120);
        const Q t122 = shuffled<2, 3, 6, 7>(t119, t120);
        // complex block of 2
        const Q t123 = t121 + t122;
        const Q t124 = shuffled<1, 5, 3, 7>(t54, t57);
        const Q t125 = shuffled<1, 5, 3, 7>(t66, t76);
        const Q t126 = shuffled<0, 1, 4, 5>(t124, t125);
        const Q t127 = shuffled<2, 3, 6, 7>(t124, t125);
        // complex block of 2
        const Q t128 = t126 + t127;
        // complex block of 2
        const Q t129 = t123 + t128;
        io.pairs(12, 16, negated<0, 1, 0, 1>(t129));
        const Q t130 = shuffled<0, 5, 2, 7>(t123, t128);
        const Q t131 = shuffled<0, 5, 2, 7>(t128, t123);
        const Q t132 = t130 - t131;
        io.pairs(18, 14, negated<0, 1, 0, 1>(t132));
        const Q t133 = shuffled<0, 5, 2, 7>(t121, t122);
        const Q t134 = shuffled<0, 5, 2, 7>(t122, t121);
        // complex block of 2
        const Q t135 = t133 - t134;
        const Q t136 = shuffled<0, 5, 2, 7>(t126, t127);
        const Q t137 = shuffled<0, 5, 2, 7>(t127, t126);
        // complex block of 2
        const Q t138 = t136 - t137;
        const Q t139 = shuffled<1, 0, 3, 2>(t138);
        const Q t140 = flipped<1, 0, 1, 0>(t139);
        // complex block of 2
        const Q t141 = t135 + t140;
        io.pairs(27, 29, negated<0, 0, 0, 1>(t141));
        const Q t142 = t135 - t140;
        io.pairs(3, 1, negated<0, 1, 0, 0>(t142));
        const Q t143 = shuffled<0, 4, 2, 6>(t84, t93);
        const Q t144 = shuffled<1, 5, 3, 7>(t84, t93);
        const Q t145 = shuffled<2, 3, 4, 5>(t143, t144);
        const Q t146 = shuffled<0, 1, 6, 7>(t143, t144);
        // complex block of 2
        const Q t147 = t145 + t146;
        const Q t148 = flipped<0, 1, 1, 0>(t146);
        const Q t149 = flipped<1, 0, 0, 1>(t145);
        const Q t150 = t148 + t149;
        const Q t151 = shuffled<0, 1, 4, 5>(t147, t150);
        const Q t152 = shuffled<1, 0, 3, 2>(t150);
        const Q t153 = shuffled<2, 3, 6, 7>(t147, t152);
        const Q t154 = flipped<0, 0, 1, 0>(t153);
        // complex block of 2
        const Q t155 = t151 + t154;
        io.pairs(28, 17, negated<0, 1, 0, 1>(t155));
        const Q t156 = flipped<0, 1, 0, 0>(t151);
        const Q t157 = flipped<1, 0, 1, 1>(t154);
        const Q t158 = t156 + t157;
        io.pairs(2, 13, negated<0, 1, 0, 0>(t158));
        // real block of 5, multiplier 2
        const Q t159 = c[1] * t35;
        const Q t160 = c[0] * t17;
        const Q t161 = t159 - t160;
        const Q t162 = t161 + t2;
        const Q t163 = c[3] * t36;
        const Q t164 = c[2] * t18;
        const Q t165 = t163 - t164;
        // complex block of 5, multiplier 2
        const Q t166 = t33 + t15;
        const Q t167 = t166 + t4;
        const Q t168 = t39 + t21;
        const Q t169 = t168 + t70;
        const Q t170 = shuffled<0, 4, 2, 6>(t167, t169);
        const Q t171 = shuffled<0, 4, 2, 6>(t162, t165);
        const Q t172 = shuffled<0, 1, 4, 5>(t170, t171);
        const Q t173 = shuffled<2, 3, 6, 7>(t170, t171);
        // complex block of 2
        const Q t174 = t172 + t173;
        const Q t175 = shuffled<1, 5, 3, 7>(t167, t169);
        const Q t176 = shuffled<1, 5, 3, 7>(t162, t165);
        const Q t177 = shuffled<0, 1, 4, 5>(t175, t176);
        const Q t178 = shuffled<2, 3, 6, 7>(t175, t176);
        // complex block of 2
        const Q t179 = t177 + t178;
        // complex block of 2
        const Q t180 = t174 + t179;
        io.pairs(20, 24, t180);
        const Q t181 = t174 - t179;
        io.pairs(10, 6, negated<0, 1, 0, 1>(t181));
        // complex block of 2
        const Q t182 = t172 - t173;
        // complex block of 2
        const Q t183 = t177 - t178;
        const Q t184 = shuffled<1, 0, 3, 2>(t183);
        const Q t185 = flipped<1, 0, 1, 0>(t184);
        // complex block of 2
        const Q t186 = t182 + t185;
        io.pairs(25, 21, negated<0, 1, 0, 1>(t186));
        const Q t187 = t182 - t185;
        io.pairs(5, 9, t187);
    }
};

}  // namespace zulg
