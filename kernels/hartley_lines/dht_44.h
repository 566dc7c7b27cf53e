// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 44.
// Hartley transform of 44 points, form I; up to four lanes to a register.
// 58 sums, 46 differences, 50 products of registers, which do the 644 steps of the graph, those with
// `scale` included; 53 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<44> {
    static constexpr int steps = 644;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5450828424811972,  // c[4]: P[1] of 11
        0.3780009190896476,  // c[5]: -Q[1] of 11
        0.5539145271232301,  // c[6]: Q[4] of 11
        0.3649365652299704,  // c[7]: -P[4] of 11
        0.6355539395974166,  // c[8]: -Q[2] of 11
        0.18992416871531467,  // c[9]: -P[2] of 11
        0.6617220446385197,  // c[10]: P[3] of 11
        0.046086176229070706,  // c[11]: -Q[3] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const V x0 = io.in(0);
        const V x22 = io.in(22);
        // spectrum block of 2
        const V t0 = x0 + x22;
        const V t1 = x0 - x22;
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x43_42_41_40 = io.in(43, 42, 41, 40);
        // input stage
        const Q t2 = x1_2_3_4 + x43_42_41_40;
        const Q t3 = x1_2_3_4 - x43_42_41_40;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x39_38_37_36 = io.in(39, 38, 37, 36);
        const Q t4 = x5_6_7_8 + x39_38_37_36;
        const Q t5 = x5_6_7_8 - x39_38_37_36;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x35_34_33_32 = io.in(35, 34, 33, 32);
        const Q t6 = x9_10_11_12 + x35_34_33_32;
        const Q t7 = x9_10_11_12 - x35_34_33_32;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x31_30_29_28 = io.in(31, 30, 29, 28);
        const Q t8 = x13_14_15_16 + x31_30_29_28;
        const Q t9 = x13_14_15_16 - x31_30_29_28;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x27_26_25_24 = io.in(27, 26, 25, 24);
        const Q t10 = x17_18_19_20 + x27_26_25_24;
        const Q t11 = x17_18_19_20 - x27_26_25_24;
        const V x21 = io.in(21);
        const V x23 = io.in(23);
        const V t12 = x21 + x23;
        const V t13 = x21 - x23;
        const Q t14 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t15 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t16 = shuffled<2, 3, 6, 7>(t14, t15);
        const Q t17 = shuffled<1, 5, 3, 7>(t10, t11);
        const Q t18 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t19 = shuffled<0, 1, 4, 5>(t17, t18);
        const Q t20 = flipped<0, 1, 0, 1>(t19);
        // complex block of 2
        const Q t21 = t16 + t20;
        const Q t22 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t23 = shuffled<0, 4, 2, 6>(t10, t11);
        const Q t24 = shuffled<2, 3, 6, 7>(t22, t23);
        const Q t25 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t26 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t27 = shuffled<2, 3, 6, 7>(t25, t26);
        const Q t28 = flipped<0, 1, 0, 1>(t27);
        // complex block of 2
        const Q t29 = t24 + t28;
        // complex block of 2
        const Q t30 = t21 + t29;
        const Q t31 = t21 - t29;
        // complex block of 2
        const Q t32 = t16 - t20;
        // complex block of 2
        const Q t33 = t24 - t28;
        const Q t34 = shuffled<1, 0, 3, 2>(t33);
        const Q t35 = flipped<0, 1, 0, 1>(t34);
        // complex block of 2
        const Q t36 = t32 + t35;
        const Q t37 = t32 - t35;
        const Q t38 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t39 = shuffled<2, 3, 6, 7>(t38, t18);
        const Q t40 = shuffled<0, 1, 4, 5>(t38, t15);
        const Q t41 = flipped<0, 1, 0, 1>(t40);
        // complex block of 2
        const Q t42 = t39 + t41;
        const Q t43 = shuffled<0, 1, 4, 5>(t26, t25);
        const V t44 = flipped<1>(t13);
        const P t45 = joined(t12, t44);
        const P t46 = part<0>(t23);
        const P t47 = flipped<0, 1>(t46);
        const Q t48 = joined(t45, t47);
        // complex block of 2
        const Q t49 = t43 + t48;
        // complex block of 2
        const Q t50 = t42 + t49;
        const Q t51 = t42 - t49;
        // complex block of 2
        const Q t52 = t39 - t41;
        const Q t53 = flipped<0, 1, 0, 1>(t48);
        const Q t54 = flipped<1, 0, 1, 0>(t43);
        // complex block of 2
        const Q t55 = t53 + t54;
        const Q t56 = shuffled<1, 0, 3, 2>(t55);
        // complex block of 2
        const Q t57 = t52 - t56;
        const Q t58 = t52 + t56;
        const Q t59 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t60 = shuffled<2, 3, 4, 5>(t17, t59);
        const Q t61 = shuffled<0, 1, 4, 5>(t14, t22);
        const Q t62 = flipped<0, 1, 0, 1>(t61);
        // complex block of 2
        const Q t63 = t60 + t62;
        const Q t64 = flipped<1, 1, 0, 1>(t62);
        const Q t65 = flipped<0, 0, 1, 0>(t60);
        const Q t66 = t64 + t65;
        const Q t67 = shuffled<0, 1, 4, 5>(t63, t66);
        const Q t68 = shuffled<1, 0, 3, 2>(t66);
        const Q t69 = shuffled<2, 3, 6, 7>(t63, t68);
        const Q t70 = flipped<0, 0, 1, 1>(t69);
        // complex block of 2
        const Q t71 = t67 + t70;
        const Q t72 = t67 - t70;
        const P t73 = joined(t0, t1);
        const P t74 = part<1>(t59);
        // spectrum block of 2
        const P t75 = t73 + t74;
        const P t76 = t73 - t74;
        const Q t77 = shuffled<0, 4, 2, 6>(t30, t36);
        const Q t78 = shuffled<0, 4, 2, 6>(t31, t37);
        const Q t79 = shuffled<2, 3, 6, 7>(t77, t78);
        const P t80 = part<0>(t71);
        const P t81 = part<1>(t71);
        const P t82 = shuffled<0, 2>(t80, t81);
        const P t83 = part<0>(t72);
        const P t84 = part<1>(t72);
        const P t85 = shuffled<0, 2>(t83, t84);
        const Q t86 = joined(t82, t85);
        // real block of 5
        const Q t87 = t79 + t86;
        const Q t88 = shuffled<0, 4, 2, 6>(t50, t57);
        const Q t89 = shuffled<0, 4, 2, 6>(t51, t58);
        const Q t90 = shuffled<0, 1, 4, 5>(t88, t89);
        const Q t91 = shuffled<2, 3, 6, 7>(t88, t89);
        const Q t92 = t90 + t91;
        const Q t93 = t87 + t92;
        const Q t94 = shuffled<0, 1, 4, 5>(t77, t78);
        const Q t95 = t93 + t94;
        const Q t96 = c[0] * t87;
        const Q t97 = c[1] * t92;
        const Q t98 = t96 - t97;
        const Q t99 = t98 + t94;
        const Q t100 = c[1] * t87;
        const Q t101 = t94 - t100;
        const Q t102 = c[0] * t92;
        const Q t103 = t101 + t102;
        const Q t104 = t79 - t86;
        const Q t105 = t90 - t91;
        const Q t106 = c[2] * t105;
        const Q t107 = c[3] * t104;
        const Q t108 = t106 - t107;
        const Q t109 = c[2] * t104;
        const Q t110 = c[3] * t105;
        const Q t111 = t109 + t110;
        const P t112 = shuffled<1, 3>(t80, t81);
        const P t113 = shuffled<1, 3>(t83, t84);
        const Q t114 = joined(t112, t113);
        const Q t115 = shuffled<1, 5, 3, 7>(t30, t36);
        const Q t116 = shuffled<1, 5, 3, 7>(t31, t37);
        const Q t117 = shuffled<2, 3, 6, 7>(t115, t116);
        // real block of 5
        const Q t118 = t114 - t117;
        const Q t119 = shuffled<1, 5, 3, 7>(t50, t57);
        const Q t120 = shuffled<1, 5, 3, 7>(t51, t58);
        const Q t121 = shuffled<0, 1, 4, 5>(t119, t120);
        const Q t122 = shuffled<2, 3, 6, 7>(t119, t120);
        const Q t123 = t121 + t122;
        const Q t124 = t118 + t123;
        const Q t125 = c[0] * t118;
        const Q t126 = c[1] * t123;
        const Q t127 = t125 - t126;
        const Q t128 = shuffled<0, 1, 4, 5>(t115, t116);
        const Q t129 = t127 + t128;
        const Q t130 = c[1] * t118;
        const Q t131 = t128 - t130;
        const Q t132 = c[0] * t123;
        const Q t133 = t131 + t132;
        const Q t134 = t117 + t114;
        const Q t135 = t121 - t122;
        const Q t136 = c[3] * t134;
        const Q t137 = c[2] * t135;
        const Q t138 = t136 + t137;
        const Q t139 = c[2] * t134;
        const Q t140 = c[3] * t135;
        const Q t141 = t139 - t140;
        const Q t142 = t124 + t128;
        const Q t143 = joined(t75, t76);
        // spectrum block of 11, multiplier 4
        const Q t144 = c[12] * t95;
        const Q t145 = t143 - t144;
        const Q t146 = c[13] * t142;
        // spectrum block of 2
        const Q t147 = t145 - t146;
        const Q t148 = t145 + t146;
        // spectrum block of 11, multiplier 4
        const Q t149 = c[4] * t141;
        const Q t150 = c[5] * t133;
        const Q t151 = t149 - t150;
        const Q t152 = c[6] * t111;
        const Q t153 = c[7] * t103;
        const Q t154 = t152 - t153;
        // complex block of 2
        const Q t155 = t154 + t151;
        const Q t156 = t154 - t151;
        // spectrum block of 11, multiplier 4
        const Q t157 = c[5] * t141;
        const Q t158 = c[4] * t133;
        const Q t159 = t157 + t158;
        const Q t160 = c[7] * t111;
        const Q t161 = c[6] * t103;
        const Q t162 = t160 + t161;
        // complex block of 2
        const Q t163 = t162 - t159;
        const Q t164 = t162 + t159;
        // spectrum block of 11, multiplier 4
        const Q t165 = c[8] * t108;
        const Q t166 = c[9] * t99;
        const Q t167 = t165 - t166;
        const Q t168 = c[10] * t138;
        const Q t169 = c[11] * t129;
        const Q t170 = t168 - t169;
        // complex block of 2
        const Q t171 = t167 + t170;
        const Q t172 = t167 - t170;
        // spectrum block of 11, multiplier 4
        const Q t173 = c[9] * t108;
        const Q t174 = c[8] * t99;
        const Q t175 = t173 + t174;
        const Q t176 = c[11] * t138;
        const Q t177 = c[10] * t129;
        const Q t178 = t176 + t177;
        // complex block of 2
        const Q t179 = t175 + t178;
        const Q t180 = t178 - t175;
        // spectrum block of 5, multiplier 2
        const Q t181 = t171 + t155;
        const Q t182 = t181 + t147;
        io.out(40, 29, 18, 7, t182);
        const Q t183 = c[0] * t171;
        const Q t184 = c[1] * t155;
        const Q t185 = t183 - t184;
        const Q t186 = t185 + t147;
        const Q t187 = c[2] * t163;
        const Q t188 = c[3] * t179;
        const Q t189 = t187 - t188;
        const Q t190 = t186 - t189;
        io.out(24, 13, 2, 35, t190);
        const Q t191 = t186 + t189;
        io.out(8, 41, 30, 19, t191);
        const Q t192 = c[1] * t171;
        const Q t193 = t147 - t192;
        const Q t194 = c[0] * t155;
        const Q t195 = t193 + t194;
        const Q t196 = c[2] * t179;
        const Q t197 = c[3] * t163;
        const Q t198 = t196 + t197;
        const Q t199 = t195 + t198;
        io.out(32, 21, 10, 43, t199);
        const Q t200 = t195 - t198;
        io.out(28, 17, 6, 39, t200);
        // spectrum block of 5, multiplier 2
        const Q t201 = t172 + t156;
        const Q t202 = t201 + t148;
        io.out(4, 37, 26, 15, t202);
        const Q t203 = c[0] * t172;
        const Q t204 = c[1] * t156;
        const Q t205 = t203 - t204;
        const Q t206 = t205 + t148;
        const Q t207 = c[3] * t180;
        const Q t208 = c[2] * t164;
        const Q t209 = t207 + t208;
        const Q t210 = t206 - t209;
        io.out(20, 9, 42, 31, t210);
        const Q t211 = t206 + t209;
        io.out(36, 25, 14, 3, t211);
        const Q t212 = c[1] * t172;
        const Q t213 = t148 - t212;
        const Q t214 = c[0] * t156;
        const Q t215 = t213 + t214;
        const Q t216 = c[2] * t180;
        const Q t217 = c[3] * t164;
        const Q t218 = t216 - t217;
        const Q t219 = t215 - t218;
        io.out(12, 1, 34, 23, t219);
        const Q t220 = t215 + t218;
        io.out(16, 5, 38, 27, t220);
        // spectrum block of 11, multiplier 4
        const Q t221 = t143 + t95;
        io.out(0, 33, 22, 11, t221);
    }
};

}  // namespace zulg
