// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 60.
// Hartley transform of 60 points, form I; up to four lanes to a register.
// 62 sums, 50 differences, 34 products of registers, which do the 628 steps of the graph, those with
// `scale` included; 71 shuffles, 16 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<60> {
    static constexpr int steps = 628;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const V x0 = io.in(0);
        const V x30 = io.in(30);
        // spectrum block of 2
        const V t0 = x0 + x30;
        const V t1 = x0 - x30;
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x59_58_57_56 = io.in(59, 58, 57, 56);
        // input stage
        const Q t2 = x1_2_3_4 + x59_58_57_56;
        const Q t3 = x1_2_3_4 - x59_58_57_56;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x55_54_53_52 = io.in(55, 54, 53, 52);
        const Q t4 = x5_6_7_8 + x55_54_53_52;
        const Q t5 = x5_6_7_8 - x55_54_53_52;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x51_50_49_48 = io.in(51, 50, 49, 48);
        const Q t6 = x9_10_11_12 + x51_50_49_48;
        const Q t7 = x9_10_11_12 - x51_50_49_48;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x47_46_45_44 = io.in(47, 46, 45, 44);
        const Q t8 = x13_14_15_16 + x47_46_45_44;
        const Q t9 = x13_14_15_16 - x47_46_45_44;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x43_42_41_40 = io.in(43, 42, 41, 40);
        const Q t10 = x17_18_19_20 + x43_42_41_40;
        const Q t11 = x17_18_19_20 - x43_42_41_40;
        const Q x21_22_23_24 = io.in(21, 22, 23, 24);
        const Q x39_38_37_36 = io.in(39, 38, 37, 36);
        const Q t12 = x21_22_23_24 + x39_38_37_36;
        const Q t13 = x21_22_23_24 - x39_38_37_36;
        const Q x25_26_27_28 = io.in(25, 26, 27, 28);
        const Q x35_34_33_32 = io.in(35, 34, 33, 32);
        const Q t14 = x25_26_27_28 + x35_34_33_32;
        const Q t15 = x25_26_27_28 - x35_34_33_32;
        const V x29 = io.in(29);
        const V x31 = io.in(31);
        const V t16 = x29 + x31;
        const V t17 = x29 - x31;
        const Q t18 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t19 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t20 = shuffled<2, 3, 6, 7>(t18, t19);
        const Q t21 = shuffled<1, 5, 3, 7>(t14, t15);
        const Q t22 = shuffled<1, 5, 3, 7>(t12, t13);
        const Q t23 = shuffled<0, 1, 4, 5>(t21, t22);
        const Q t24 = flipped<0, 1, 0, 1>(t23);
        // complex block of 2
        const Q t25 = t20 + t24;
        const Q t26 = t20 - t24;
        const Q t27 = shuffled<0, 4, 2, 6>(t10, t11);
        const Q t28 = shuffled<0, 4, 2, 6>(t12, t13);
        const Q t29 = shuffled<2, 3, 6, 7>(t27, t28);
        const Q t30 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t31 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t32 = shuffled<2, 3, 6, 7>(t30, t31);
        const Q t33 = flipped<0, 1, 0, 1>(t32);
        // complex block of 2
        const Q t34 = t29 + t33;
        const Q t35 = t29 - t33;
        const Q t36 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t37 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t38 = shuffled<2, 3, 6, 7>(t36, t37);
        const Q t39 = shuffled<1, 5, 3, 7>(t10, t11);
        const Q t40 = shuffled<0, 1, 4, 5>(t39, t37);
        const Q t41 = flipped<0, 1, 0, 1>(t40);
        // complex block of 2
        const Q t42 = t38 + t41;
        const Q t43 = t38 - t41;
        const Q t44 = shuffled<0, 4, 2, 6>(t14, t15);
        const Q t45 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t46 = shuffled<2, 3, 4, 5>(t44, t45);
        const P t47 = part<1>(t45);
        const P t48 = flipped<0, 1>(t47);
        const V t49 = flipped<1>(t17);
        const P t50 = joined(t16, t49);
        const Q t51 = joined(t48, t50);
        // complex block of 2
        const Q t52 = t46 + t51;
        const Q t53 = flipped<1, 1, 0, 1>(t51);
        const Q t54 = flipped<0, 0, 1, 0>(t46);
        const Q t55 = t53 + t54;
        const Q t56 = shuffled<2, 3, 6, 7>(t39, t22);
        const Q t57 = shuffled<0, 1, 4, 5>(t36, t19);
        const Q t58 = flipped<0, 1, 0, 1>(t57);
        // complex block of 2
        const Q t59 = t56 + t58;
        const Q t60 = t56 - t58;
        const Q t61 = shuffled<0, 1, 4, 5>(t31, t30);
        const Q t62 = shuffled<0, 1, 4, 5>(t44, t28);
        const Q t63 = flipped<0, 1, 0, 1>(t62);
        // complex block of 2
        const Q t64 = t61 + t63;
        const Q t65 = flipped<1, 0, 1, 0>(t61);
        const Q t66 = t62 + t65;
        const Q t67 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t68 = shuffled<2, 3, 4, 5>(t21, t67);
        const Q t69 = shuffled<0, 1, 4, 5>(t18, t27);
        const Q t70 = flipped<0, 1, 0, 1>(t69);
        // complex block of 2
        const Q t71 = t68 + t70;
        const Q t72 = flipped<1, 1, 0, 1>(t70);
        const Q t73 = flipped<0, 0, 1, 0>(t68);
        const Q t74 = t72 + t73;
        const P t75 = joined(t0, t1);
        const P t76 = part<1>(t67);
        // spectrum block of 2
        const P t77 = t75 + t76;
        const P t78 = t75 - t76;
        // complex block of 2
        const Q t79 = t25 + t34;
        const Q t80 = t25 - t34;
        const Q t81 = shuffled<1, 0, 3, 2>(t35);
        const Q t82 = flipped<0, 1, 0, 1>(t81);
        // complex block of 2
        const Q t83 = t26 + t82;
        const Q t84 = t26 - t82;
        // complex block of 2
        const Q t85 = t42 + t52;
        const Q t86 = t42 - t52;
        const Q t87 = shuffled<1, 0, 3, 2>(t55);
        const Q t88 = flipped<1, 0, 0, 0>(t87);
        // complex block of 2
        const Q t89 = t43 - t88;
        const Q t90 = t43 + t88;
        const Q t91 = shuffled<0, 1, 4, 5>(t71, t74);
        const Q t92 = shuffled<1, 0, 3, 2>(t74);
        const Q t93 = shuffled<2, 3, 6, 7>(t71, t92);
        const Q t94 = flipped<0, 0, 1, 1>(t93);
        // complex block of 2
        const Q t95 = t91 + t94;
        const Q t96 = t91 - t94;
        const P t97 = part<0>(t95);
        const P t98 = part<1>(t95);
        const P t99 = shuffled<1, 3>(t97, t98);
        const P t100 = part<0>(t96);
        const P t101 = part<1>(t96);
        const P t102 = shuffled<1, 3>(t100, t101);
        const Q t103 = joined(t99, t102);
        const Q t104 = shuffled<1, 5, 3, 7>(t79, t83);
        const Q t105 = shuffled<1, 5, 3, 7>(t80, t84);
        const Q t106 = shuffled<2, 3, 6, 7>(t104, t105);
        // complex block of 3, multiplier 2
        const Q t107 = t103 + t106;
        const P t108 = shuffled<0, 2>(t97, t98);
        const P t109 = shuffled<0, 2>(t100, t101);
        const Q t110 = joined(t108, t109);
        const Q t111 = shuffled<0, 4, 2, 6>(t79, t83);
        const Q t112 = shuffled<0, 4, 2, 6>(t80, t84);
        const Q t113 = shuffled<2, 3, 6, 7>(t111, t112);
        const Q t114 = t110 + t113;
        const Q t115 = t106 - t103;
        const Q t116 = shuffled<0, 1, 4, 5>(t104, t105);
        const Q t117 = shuffled<1, 5, 3, 7>(t85, t89);
        const Q t118 = shuffled<1, 5, 3, 7>(t86, t90);
        const Q t119 = shuffled<2, 3, 6, 7>(t117, t118);
        // complex block of 3, multiplier 2
        const Q t120 = t116 - t119;
        const Q t121 = shuffled<0, 4, 2, 6>(t85, t89);
        const Q t122 = shuffled<0, 4, 2, 6>(t86, t90);
        const Q t123 = shuffled<2, 3, 6, 7>(t121, t122);
        const Q t124 = shuffled<0, 1, 4, 5>(t111, t112);
        const Q t125 = t123 + t124;
        const Q t126 = t119 + t116;
        // complex block of 3, multiplier 2
        const Q t127 = t110 - t113;
        // complex block of 3, multiplier 2
        const Q t128 = t123 - t124;
        // complex block of 2
        const Q t129 = t59 + t64;
        const Q t130 = t59 - t64;
        const Q t131 = shuffled<1, 0, 3, 2>(t66);
        // complex block of 2
        const Q t132 = t60 - t131;
        const Q t133 = t60 + t131;
        const Q t134 = shuffled<0, 4, 2, 6>(t129, t132);
        const Q t135 = shuffled<0, 4, 2, 6>(t130, t133);
        const Q t136 = shuffled<0, 1, 4, 5>(t134, t135);
        const Q t137 = joined(t77, t78);
        // spectrum block of 3, multiplier 2
        const Q t138 = t136 + t137;
        const Q t139 = shuffled<0, 1, 4, 5>(t121, t122);
        // complex block of 3, multiplier 2
        const Q t140 = t114 + t139;
        const Q t141 = shuffled<2, 3, 6, 7>(t134, t135);
        // complex block of 3, multiplier 2
        const Q t142 = t125 + t141;
        // spectrum block of 5, multiplier 2
        const Q t143 = t140 + t142;
        const Q t144 = c[0] * t140;
        const Q t145 = c[1] * t142;
        const Q t146 = t144 - t145;
        const Q t147 = c[1] * t140;
        const Q t148 = t138 - t147;
        const Q t149 = shuffled<0, 1, 4, 5>(t117, t118);
        // complex block of 3, multiplier 2
        const Q t150 = t149 - t107;
        const Q t151 = shuffled<1, 5, 3, 7>(t129, t132);
        const Q t152 = shuffled<1, 5, 3, 7>(t130, t133);
        const Q t153 = shuffled<2, 3, 6, 7>(t151, t152);
        // complex block of 3, multiplier 2
        const Q t154 = t120 + t153;
        // spectrum block of 5, multiplier 2
        const Q t155 = t143 + t138;
        io.out(0, 45, 30, 15, t155);
        const Q t156 = t146 + t138;
        const Q t157 = c[2] * t150;
        const Q t158 = c[3] * t154;
        const Q t159 = t157 + t158;
        const Q t160 = t156 - t159;
        io.out(24, 9, 54, 39, t160);
        const Q t161 = t156 + t159;
        io.out(36, 21, 6, 51, t161);
        const Q t162 = c[0] * t142;
        const Q t163 = t148 + t162;
        const Q t164 = c[3] * t150;
        const Q t165 = c[2] * t154;
        const Q t166 = t164 - t165;
        const Q t167 = t163 - t166;
        io.out(48, 33, 18, 3, t167);
        const Q t168 = t163 + t166;
        io.out(12, 57, 42, 27, t168);
        // spectrum block of 3, multiplier 2
        const Q t169 = c[4] * t136;
        const Q t170 = t137 - t169;
        const Q t171 = shuffled<0, 1, 4, 5>(t151, t152);
        const Q t172 = c[5] * t171;
        const Q t173 = t170 - t172;
        const Q t174 = t170 + t172;
        // complex block of 3, multiplier 2
        const Q t175 = c[4] * t107;
        const Q t176 = t175 + t149;
        const Q t177 = c[5] * t127;
        const Q t178 = t176 + t177;
        const Q t179 = t176 - t177;
        const Q t180 = c[4] * t114;
        const Q t181 = t139 - t180;
        const Q t182 = c[5] * t115;
        const Q t183 = t181 - t182;
        const Q t184 = t181 + t182;
        // complex block of 3, multiplier 2
        const Q t185 = c[4] * t120;
        const Q t186 = t153 - t185;
        const Q t187 = c[5] * t128;
        const Q t188 = t186 + t187;
        const Q t189 = t186 - t187;
        const Q t190 = c[4] * t125;
        const Q t191 = t141 - t190;
        const Q t192 = c[5] * t126;
        const Q t193 = t191 + t192;
        const Q t194 = t191 - t192;
        // spectrum block of 5, multiplier 2
        const Q t195 = t184 + t194;
        const Q t196 = t195 + t174;
        io.out(40, 25, 10, 55, t196);
        const Q t197 = c[0] * t184;
        const Q t198 = c[1] * t194;
        const Q t199 = t197 - t198;
        const Q t200 = t199 + t174;
        const Q t201 = c[2] * t179;
        const Q t202 = c[3] * t189;
        const Q t203 = t201 + t202;
        const Q t204 = t200 - t203;
        io.out(4, 49, 34, 19, t204);
        const Q t205 = t200 + t203;
        io.out(16, 1, 46, 31, t205);
        const Q t206 = c[1] * t184;
        const Q t207 = t174 - t206;
        const Q t208 = c[0] * t194;
        const Q t209 = t207 + t208;
        const Q t210 = c[3] * t179;
        const Q t211 = c[2] * t189;
        const Q t212 = t210 - t211;
        const Q t213 = t209 - t212;
        io.out(28, 13, 58, 43, t213);
        const Q t214 = t209 + t212;
        io.out(52, 37, 22, 7, t214);
        // spectrum block of 5, multiplier 2
        const Q t215 = t183 + t193;
        const Q t216 = t215 + t173;
        io.out(20, 5, 50, 35, t216);
        const Q t217 = c[0] * t183;
        const Q t218 = c[1] * t193;
        const Q t219 = t217 - t218;
        const Q t220 = t219 + t173;
        const Q t221 = c[2] * t178;
        const Q t222 = c[3] * t188;
        const Q t223 = t221 + t222;
        const Q t224 = t220 - t223;
        io.out(44, 29, 14, 59, t224);
        const Q t225 = t220 + t223;
        io.out(56, 41, 26, 11, t225);
        const Q t226 = c[1] * t183;
        const Q t227 = t173 - t226;
        const Q t228 = c[0] * t193;
        const Q t229 = t227 + t228;
        const Q t230 = c[3] * t178;
        const Q t231 = c[2] * t188;
        const Q t232 = t230 - t231;
        const Q t233 = t229 - t232;
        io.out(8, 53, 38, 23, t233);
        const Q t234 = t229 + t232;
        io.out(32, 17, 2, 47, t234);
    }
};

}  // namespace zulg
