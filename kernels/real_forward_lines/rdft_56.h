// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 56.
// Forward DFT of 56 real points, prime-factor 7, 8; up to four lanes to a register.
// 53 sums, 46 differences, 41 products of registers, which do the 582 steps of the graph, those with
// `scale` included; 46 shuffles, 30 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<56> {
    static constexpr int steps = 582;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.4338837391175581,  // c[4]: -sin 2 pi 4/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.7071067811865476,  // c[6]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x40_47_54_5 = io.in(40, 47, 54, 5);
        const Q x16_23_30_37 = io.in(16, 23, 30, 37);
        // real block of 7
        const Q t0 = x40_47_54_5 + x16_23_30_37;
        const Q t1 = x40_47_54_5 - x16_23_30_37;
        const Q x8_15_22_29 = io.in(8, 15, 22, 29);
        const Q x48_55_6_13 = io.in(48, 55, 6, 13);
        const Q t2 = x8_15_22_29 + x48_55_6_13;
        const Q t3 = x8_15_22_29 - x48_55_6_13;
        const Q t4 = t2 + t0;
        const Q x32_39_46_53 = io.in(32, 39, 46, 53);
        const Q x24_31_38_45 = io.in(24, 31, 38, 45);
        const Q t5 = x32_39_46_53 + x24_31_38_45;
        const Q t6 = x32_39_46_53 - x24_31_38_45;
        const Q t7 = t4 + t5;
        const Q x0_7_14_21 = io.in(0, 7, 14, 21);
        const Q t8 = t7 + x0_7_14_21;
        const Q t9 = c[0] * t2;
        const Q t10 = c[1] * t0;
        const Q t11 = t9 - t10;
        const Q t12 = c[2] * t5;
        const Q t13 = t11 - t12;
        const Q t14 = t13 + x0_7_14_21;
        const Q t15 = c[3] * t1;
        const Q t16 = c[4] * t6;
        const Q t17 = t15 + t16;
        const Q t18 = c[5] * t3;
        const Q t19 = t17 - t18;
        const Q t20 = c[1] * t2;
        const Q t21 = x0_7_14_21 - t20;
        const Q t22 = c[2] * t0;
        const Q t23 = t21 - t22;
        const Q t24 = c[0] * t5;
        const Q t25 = t23 + t24;
        const Q t26 = c[3] * t3;
        const Q t27 = c[4] * t1;
        const Q t28 = t26 + t27;
        const Q t29 = c[5] * t6;
        const Q t30 = t28 + t29;
        const Q t31 = c[2] * t2;
        const Q t32 = x0_7_14_21 - t31;
        const Q t33 = c[0] * t0;
        const Q t34 = t32 + t33;
        const Q t35 = c[1] * t5;
        const Q t36 = t34 - t35;
        const Q t37 = c[3] * t6;
        const Q t38 = c[4] * t3;
        const Q t39 = t37 - t38;
        const Q t40 = c[5] * t1;
        const Q t41 = t39 - t40;
        const Q x36_43_50_1 = io.in(36, 43, 50, 1);
        const Q x20_27_34_41 = io.in(20, 27, 34, 41);
        // real block of 7
        const Q t42 = x36_43_50_1 + x20_27_34_41;
        const Q t43 = x36_43_50_1 - x20_27_34_41;
        const Q x12_19_26_33 = io.in(12, 19, 26, 33);
        const Q x44_51_2_9 = io.in(44, 51, 2, 9);
        const Q t44 = x12_19_26_33 + x44_51_2_9;
        const Q t45 = x12_19_26_33 - x44_51_2_9;
        const Q t46 = t42 + t44;
        const Q x4_11_18_25 = io.in(4, 11, 18, 25);
        const Q x52_3_10_17 = io.in(52, 3, 10, 17);
        const Q t47 = x4_11_18_25 + x52_3_10_17;
        const Q t48 = x4_11_18_25 - x52_3_10_17;
        const Q t49 = t46 + t47;
        const Q x28_35_42_49 = io.in(28, 35, 42, 49);
        const Q t50 = t49 + x28_35_42_49;
        const Q t51 = c[0] * t42;
        const Q t52 = c[1] * t44;
        const Q t53 = t51 - t52;
        const Q t54 = c[2] * t47;
        const Q t55 = t53 - t54;
        const Q t56 = t55 + x28_35_42_49;
        const Q t57 = c[3] * t45;
        const Q t58 = c[4] * t48;
        const Q t59 = t57 + t58;
        const Q t60 = c[5] * t43;
        const Q t61 = t59 - t60;
        const Q t62 = c[1] * t42;
        const Q t63 = x28_35_42_49 - t62;
        const Q t64 = c[2] * t44;
        const Q t65 = t63 - t64;
        const Q t66 = c[0] * t47;
        const Q t67 = t65 + t66;
        const Q t68 = c[3] * t43;
        const Q t69 = c[4] * t45;
        const Q t70 = t68 + t69;
        const Q t71 = c[5] * t48;
        const Q t72 = t70 + t71;
        const Q t73 = c[2] * t42;
        const Q t74 = x28_35_42_49 - t73;
        const Q t75 = c[0] * t44;
        const Q t76 = t74 + t75;
        const Q t77 = c[1] * t47;
        const Q t78 = t76 - t77;
        const Q t79 = c[3] * t48;
        const Q t80 = c[4] * t43;
        const Q t81 = t79 - t80;
        const Q t82 = c[5] * t45;
        const Q t83 = t81 - t82;
        // real block of 2
        const Q t84 = t8 + t50;
        const P t85 = part<0>(t84);
        const P t86 = part<1>(t84);
        // real block of 2
        const P t87 = t85 + t86;
        const P t88 = t85 - t86;
        io.pair(14, t88);
        const V t89 = part<0>(t87);
        const V t90 = part<1>(t87);
        // real block of 2
        const V t91 = t89 + t90;
        io.re(0, t91);
        const V t92 = t89 - t90;
        io.re(28, t92);
        // real block of 2
        const Q t93 = t8 - t50;
        const P t94 = part<0>(t93);
        const V t95 = part<1>(t94);
        const P t96 = part<1>(t93);
        const V t97 = part<1>(t96);
        // skew block of 4, multiplier 7
        const V t98 = t95 - t97;
        const V t99 = t95 + t97;
        const V t100 = part<0>(t94);
        const V t101 = c[6] * t98;
        const V t102 = t100 + t101;
        const V t103 = t100 - t101;
        const V t104 = part<0>(t96);
        const V t105 = c[6] * t99;
        const V t106 = t104 - t105;
        const V t107 = flipped<1>(t106);
        const P t108 = joined(t103, t107);
        io.pair(21, t108);
        const V t109 = t104 + t105;
        const P t110 = joined(t102, t109);
        io.pair(7, t110);
        const Q t111 = shuffled<0, 4, 2, 6>(t14, t19);
        const Q t112 = shuffled<0, 4, 2, 6>(t25, t30);
        const Q t113 = shuffled<0, 1, 4, 5>(t111, t112);
        const Q t114 = shuffled<0, 4, 2, 6>(t56, t61);
        const Q t115 = shuffled<0, 4, 2, 6>(t67, t72);
        const Q t116 = shuffled<0, 1, 4, 5>(t114, t115);
        // complex block of 2
        const Q t117 = t113 + t116;
        const Q t118 = shuffled<2, 3, 6, 7>(t111, t112);
        const Q t119 = shuffled<2, 3, 6, 7>(t114, t115);
        // complex block of 2
        const Q t120 = t118 + t119;
        // complex block of 2
        const Q t121 = t117 + t120;
        const Q t122 = flipped<0, 0, 0, 1>(t117);
        const Q t123 = flipped<0, 0, 0, 1>(t120);
        const Q t124 = t122 - t123;
        const Q t125 = shuffled<1, 5, 3, 7>(t14, t19);
        const Q t126 = shuffled<1, 5, 3, 7>(t25, t30);
        const Q t127 = shuffled<0, 1, 4, 5>(t125, t126);
        const Q t128 = shuffled<1, 5, 3, 7>(t56, t61);
        const Q t129 = shuffled<1, 5, 3, 7>(t67, t72);
        const Q t130 = shuffled<0, 1, 4, 5>(t128, t129);
        // complex block of 2
        const Q t131 = t127 + t130;
        const Q t132 = shuffled<2, 3, 6, 7>(t125, t126);
        const Q t133 = shuffled<2, 3, 6, 7>(t128, t129);
        // complex block of 2
        const Q t134 = t132 + t133;
        // complex block of 2
        const Q t135 = t131 + t134;
        const Q t136 = flipped<0, 0, 0, 1>(t131);
        const Q t137 = flipped<0, 0, 0, 1>(t134);
        const Q t138 = t136 - t137;
        // complex block of 2
        const Q t139 = t121 + t135;
        io.pairs(8, 16, negated<0, 0, 0, 1>(t139));
        const Q t140 = flipped<0, 0, 0, 1>(t121);
        const Q t141 = flipped<0, 0, 0, 1>(t135);
        const Q t142 = t140 - t141;
        io.pairs(20, 12, negated<0, 1, 0, 1>(t142));
        const Q t143 = shuffled<1, 0, 3, 2>(t138);
        const Q t144 = flipped<1, 0, 1, 0>(t143);
        // complex block of 2
        const Q t145 = t124 + t144;
        io.pairs(22, 26, negated<0, 0, 0, 1>(t145));
        const Q t146 = t124 - t144;
        io.pairs(6, 2, negated<0, 1, 0, 0>(t146));
        const Q t147 = flipped<0, 0, 0, 1>(t113);
        const Q t148 = flipped<0, 0, 0, 1>(t116);
        // complex block of 2
        const Q t149 = t147 - t148;
        const Q t150 = flipped<0, 0, 0, 1>(t118);
        const Q t151 = flipped<0, 0, 0, 1>(t119);
        // complex block of 2
        const Q t152 = t150 - t151;
        const Q t153 = shuffled<1, 0, 3, 2>(t152);
        const Q t154 = flipped<1, 0, 1, 0>(t153);
        // complex block of 2
        const Q t155 = t149 + t154;
        const Q t156 = t149 - t154;
        const Q t157 = flipped<0, 0, 0, 1>(t127);
        const Q t158 = flipped<0, 0, 0, 1>(t130);
        // complex block of 2
        const Q t159 = t157 - t158;
        // complex block of 8, multiplier 7
        const Q t160 = c[6] * t159;
        const Q t161 = shuffled<1, 0, 3, 2>(t160);
        const Q t162 = flipped<0, 1, 0, 1>(t161);
        const Q t163 = t160 + t162;
        const Q t164 = flipped<0, 0, 0, 1>(t132);
        const Q t165 = flipped<0, 0, 0, 1>(t133);
        // complex block of 2
        const Q t166 = t164 - t165;
        // complex block of 8, multiplier 7
        const Q t167 = c[6] * t166;
        const Q t168 = shuffled<1, 0, 3, 2>(t167);
        const Q t169 = flipped<0, 1, 0, 1>(t168);
        const Q t170 = t167 + t169;
        const Q t171 = shuffled<1, 0, 3, 2>(t163);
        const Q t172 = flipped<0, 1, 0, 1>(t170);
        // complex block of 2
        const Q t173 = t171 + t172;
        const Q t174 = flipped<1, 0, 1, 0>(t173);
        // complex block of 2
        const Q t175 = t155 + t174;
        io.pairs(15, 23, t175);
        const Q t176 = t155 - t174;
        io.pairs(13, 5, negated<0, 1, 0, 1>(t176));
        const Q t177 = flipped<1, 0, 1, 0>(t171);
        // complex block of 2
        const Q t178 = t177 + t170;
        const Q t179 = shuffled<1, 0, 3, 2>(t178);
        const Q t180 = flipped<1, 0, 1, 0>(t179);
        // complex block of 2
        const Q t181 = t156 + t180;
        io.pairs(27, 19, negated<0, 1, 0, 1>(t181));
        const Q t182 = t156 - t180;
        io.pairs(1, 9, t182);
        const Q t183 = shuffled<0, 4, 2, 6>(t36, t41);
        const Q t184 = shuffled<1, 5, 3, 7>(t36, t41);
        const Q t185 = shuffled<0, 1, 4, 5>(t183, t184);
        const Q t186 = shuffled<0, 4, 2, 6>(t78, t83);
        const Q t187 = shuffled<1, 5, 3, 7>(t78, t83);
        const Q t188 = shuffled<0, 1, 4, 5>(t186, t187);
        // complex block of 2
        const Q t189 = t185 + t188;
        const Q t190 = t185 - t188;
        const Q t191 = shuffled<2, 3, 6, 7>(t183, t184);
        const Q t192 = shuffled<2, 3, 6, 7>(t186, t187);
        // complex block of 2
        const Q t193 = t191 - t192;
        const Q t194 = t191 + t192;
        const Q t195 = shuffled<2, 3, 6, 7>(t193, t190);
        // complex block of 8, multiplier 7
        const Q t196 = c[6] * t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t196);
        const Q t198 = flipped<0, 1, 0, 1>(t197);
        const Q t199 = t196 + t198;
        const Q t200 = shuffled<0, 1, 4, 5>(t189, t190);
        const Q t201 = shuffled<1, 0, 3, 2>(t193);
        const Q t202 = shuffled<0, 1, 4, 5>(t194, t201);
        const Q t203 = flipped<0, 0, 1, 0>(t202);
        // complex block of 2
        const Q t204 = t200 + t203;
        const Q t205 = t200 - t203;
        const Q t206 = shuffled<1, 0, 3, 2>(t199);
        const Q t207 = shuffled<2, 3, 6, 7>(t189, t206);
        const Q t208 = shuffled<2, 3, 4, 5>(t194, t199);
        const Q t209 = flipped<0, 0, 0, 1>(t208);
        // complex block of 2
        const Q t210 = t207 + t209;
        const Q t211 = flipped<0, 0, 1, 0>(t210);
        // complex block of 2
        const Q t212 = t204 + t211;
        io.pairs(24, 25, negated<0, 0, 0, 1>(t212));
        const Q t213 = t204 - t211;
        io.pairs(4, 3, negated<0, 1, 0, 0>(t213));
        const Q t214 = flipped<0, 0, 1, 0>(t207);
        const Q t215 = flipped<1, 1, 0, 1>(t209);
        // complex block of 2
        const Q t216 = t214 + t215;
        const Q t217 = shuffled<1, 0, 3, 2>(t216);
        const Q t218 = flipped<1, 0, 1, 0>(t217);
        // complex block of 2
        const Q t219 = t205 + t218;
        io.pairs(18, 11, negated<0, 1, 0, 1>(t219));
        const Q t220 = t205 - t218;
        io.pairs(10, 17, t220);
    }
};

}  // namespace zulg
