// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 40.
// Complex DFT of 40 points, prime-factor, order 5, 8; two lines of a stage to a register.
// 71 sums, 58 differences, 37 products of registers, which do the 744 steps of the graph, those with
// `scale` included; 45 shuffles, 25 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<40> {
    static constexpr int steps = 744;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x8_13 = io.pairs(8, 13);
        const Q x32_37 = io.pairs(32, 37);
        // complex block of 5, multiplier 3
        const Q t0 = x8_13 + x32_37;
        const Q t1 = x8_13 - x32_37;
        const Q x24_29 = io.pairs(24, 29);
        const Q x16_21 = io.pairs(16, 21);
        const Q t2 = x24_29 + x16_21;
        const Q t3 = x24_29 - x16_21;
        const Q t4 = t0 + t2;
        const Q x0_5 = io.pairs(0, 5);
        const Q t5 = t4 + x0_5;
        const Q t6 = c[0] * t0;
        const Q t7 = c[1] * t2;
        const Q t8 = t6 - t7;
        const Q t9 = t8 + x0_5;
        const Q t10 = c[2] * t1;
        const Q t11 = c[3] * t3;
        const Q t12 = t10 - t11;
        const Q t13 = shuffled<1, 0, 3, 2>(t12);
        const Q t14 = flipped<0, 1, 0, 1>(t13);
        const Q t15 = t9 + t14;
        const Q t16 = t9 - t14;
        const Q t17 = c[1] * t0;
        const Q t18 = x0_5 - t17;
        const Q t19 = c[0] * t2;
        const Q t20 = t18 + t19;
        const Q t21 = c[3] * t1;
        const Q t22 = c[2] * t3;
        const Q t23 = t21 + t22;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = flipped<0, 1, 0, 1>(t24);
        const Q t26 = t20 + t25;
        const Q t27 = t20 - t25;
        const Q x4_9 = io.pairs(4, 9);
        const Q x36_1 = io.pairs(36, 1);
        // complex block of 5, multiplier 3
        const Q t28 = x4_9 + x36_1;
        const Q t29 = x4_9 - x36_1;
        const Q x28_33 = io.pairs(28, 33);
        const Q x12_17 = io.pairs(12, 17);
        const Q t30 = x28_33 + x12_17;
        const Q t31 = x28_33 - x12_17;
        const Q t32 = t30 + t28;
        const Q x20_25 = io.pairs(20, 25);
        const Q t33 = t32 + x20_25;
        const Q t34 = c[0] * t30;
        const Q t35 = c[1] * t28;
        const Q t36 = t34 - t35;
        const Q t37 = t36 + x20_25;
        const Q t38 = c[2] * t31;
        const Q t39 = c[3] * t29;
        const Q t40 = t38 - t39;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = flipped<0, 1, 0, 1>(t41);
        const Q t43 = t37 + t42;
        const Q t44 = t37 - t42;
        const Q t45 = c[1] * t30;
        const Q t46 = x20_25 - t45;
        const Q t47 = c[0] * t28;
        const Q t48 = t46 + t47;
        const Q t49 = c[3] * t31;
        const Q t50 = c[2] * t29;
        const Q t51 = t49 + t50;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t48 + t53;
        const Q t55 = t48 - t53;
        const Q x18_23 = io.pairs(18, 23);
        const Q x2_7 = io.pairs(2, 7);
        // complex block of 5, multiplier 3
        const Q t56 = x18_23 + x2_7;
        const Q t57 = x18_23 - x2_7;
        const Q x34_39 = io.pairs(34, 39);
        const Q x26_31 = io.pairs(26, 31);
        const Q t58 = x34_39 + x26_31;
        const Q t59 = x34_39 - x26_31;
        const Q t60 = t56 + t58;
        const Q x10_15 = io.pairs(10, 15);
        const Q t61 = t60 + x10_15;
        const Q t62 = c[0] * t56;
        const Q t63 = c[1] * t58;
        const Q t64 = t62 - t63;
        const Q t65 = t64 + x10_15;
        const Q t66 = c[2] * t57;
        const Q t67 = c[3] * t59;
        const Q t68 = t66 - t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        const Q t70 = flipped<0, 1, 0, 1>(t69);
        const Q t71 = t65 + t70;
        const Q t72 = t65 - t70;
        const Q t73 = c[1] * t56;
        const Q t74 = x10_15 - t73;
        const Q t75 = c[0] * t58;
        const Q t76 = t74 + t75;
        const Q t77 = c[3] * t57;
        const Q t78 = c[2] * t59;
        const Q t79 = t77 + t78;
        const Q t80 = shuffled<1, 0, 3, 2>(t79);
        const Q t81 = flipped<0, 1, 0, 1>(t80);
        const Q t82 = t76 + t81;
        const Q t83 = t76 - t81;
        const Q x38_3 = io.pairs(38, 3);
        const Q x22_27 = io.pairs(22, 27);
        // complex block of 5, multiplier 3
        const Q t84 = x38_3 + x22_27;
        const Q t85 = x38_3 - x22_27;
        const Q x14_19 = io.pairs(14, 19);
        const Q x6_11 = io.pairs(6, 11);
        const Q t86 = x14_19 + x6_11;
        const Q t87 = x14_19 - x6_11;
        const Q t88 = t84 + t86;
        const Q x30_35 = io.pairs(30, 35);
        const Q t89 = t88 + x30_35;
        const Q t90 = c[0] * t84;
        const Q t91 = c[1] * t86;
        const Q t92 = t90 - t91;
        const Q t93 = t92 + x30_35;
        const Q t94 = c[2] * t85;
        const Q t95 = c[3] * t87;
        const Q t96 = t94 - t95;
        const Q t97 = shuffled<1, 0, 3, 2>(t96);
        const Q t98 = flipped<0, 1, 0, 1>(t97);
        const Q t99 = t93 + t98;
        const Q t100 = t93 - t98;
        const Q t101 = c[1] * t84;
        const Q t102 = x30_35 - t101;
        const Q t103 = c[0] * t86;
        const Q t104 = t102 + t103;
        const Q t105 = c[3] * t85;
        const Q t106 = c[2] * t87;
        const Q t107 = t105 + t106;
        const Q t108 = shuffled<1, 0, 3, 2>(t107);
        const Q t109 = flipped<0, 1, 0, 1>(t108);
        const Q t110 = t104 + t109;
        const Q t111 = t104 - t109;
        const Q t112 = shuffled<0, 1, 4, 5>(t5, t27);
        const Q t113 = shuffled<0, 1, 4, 5>(t33, t55);
        // complex block of 2
        const Q t114 = t112 + t113;
        const Q t115 = shuffled<0, 1, 4, 5>(t61, t83);
        const Q t116 = shuffled<0, 1, 4, 5>(t89, t111);
        // complex block of 2
        const Q t117 = t115 + t116;
        // complex block of 2
        const Q t118 = t114 + t117;
        const Q t119 = t114 - t117;
        const Q t120 = shuffled<2, 3, 6, 7>(t5, t27);
        const Q t121 = shuffled<2, 3, 6, 7>(t33, t55);
        // complex block of 2
        const Q t122 = t120 + t121;
        const Q t123 = shuffled<2, 3, 6, 7>(t61, t83);
        const Q t124 = shuffled<2, 3, 6, 7>(t89, t111);
        // complex block of 2
        const Q t125 = t123 + t124;
        // complex block of 2
        const Q t126 = t122 + t125;
        const Q t127 = t122 - t125;
        // complex block of 2
        const Q t128 = t118 + t126;
        io.pairs(0, 8, t128);
        const Q t129 = t118 - t126;
        io.pairs(20, 28, t129);
        const Q t130 = shuffled<1, 0, 3, 2>(t127);
        const Q t131 = flipped<0, 1, 0, 1>(t130);
        // complex block of 2
        const Q t132 = t119 + t131;
        io.pairs(10, 18, t132);
        const Q t133 = t119 - t131;
        io.pairs(30, 38, t133);
        // complex block of 2
        const Q t134 = t112 - t113;
        // complex block of 2
        const Q t135 = t115 - t116;
        const Q t136 = shuffled<1, 0, 3, 2>(t135);
        const Q t137 = flipped<0, 1, 0, 1>(t136);
        // complex block of 2
        const Q t138 = t134 + t137;
        const Q t139 = t134 - t137;
        // complex block of 2
        const Q t140 = t120 - t121;
        // complex block of 8, multiplier 5
        const Q t141 = c[4] * t140;
        const Q t142 = shuffled<1, 0, 3, 2>(t141);
        const Q t143 = flipped<0, 1, 0, 1>(t142);
        const Q t144 = t141 + t143;
        // complex block of 2
        const Q t145 = t123 - t124;
        // complex block of 8, multiplier 5
        const Q t146 = c[4] * t145;
        const Q t147 = shuffled<1, 0, 3, 2>(t146);
        const Q t148 = flipped<0, 1, 0, 1>(t147);
        const Q t149 = t146 + t148;
        const Q t150 = shuffled<1, 0, 3, 2>(t149);
        const Q t151 = flipped<0, 1, 0, 1>(t144);
        // complex block of 2
        const Q t152 = t150 + t151;
        const Q t153 = flipped<1, 0, 1, 0>(t152);
        // complex block of 2
        const Q t154 = t138 + t153;
        io.pairs(5, 13, t154);
        const Q t155 = t138 - t153;
        io.pairs(25, 33, t155);
        // complex block of 2
        const Q t156 = t150 - t151;
        const Q t157 = shuffled<1, 0, 3, 2>(t156);
        // complex block of 2
        const Q t158 = t139 - t157;
        io.pairs(15, 23, t158);
        const Q t159 = t139 + t157;
        io.pairs(35, 3, t159);
        const Q t160 = shuffled<0, 1, 4, 5>(t15, t16);
        const Q t161 = shuffled<0, 1, 4, 5>(t43, t44);
        // complex block of 2
        const Q t162 = t160 + t161;
        const Q t163 = shuffled<0, 1, 4, 5>(t71, t72);
        const Q t164 = shuffled<0, 1, 4, 5>(t99, t100);
        // complex block of 2
        const Q t165 = t163 + t164;
        // complex block of 2
        const Q t166 = t162 + t165;
        const Q t167 = t162 - t165;
        const Q t168 = shuffled<2, 3, 6, 7>(t15, t16);
        const Q t169 = shuffled<2, 3, 6, 7>(t43, t44);
        // complex block of 2
        const Q t170 = t168 + t169;
        const Q t171 = shuffled<2, 3, 6, 7>(t71, t72);
        const Q t172 = shuffled<2, 3, 6, 7>(t99, t100);
        // complex block of 2
        const Q t173 = t171 + t172;
        // complex block of 2
        const Q t174 = t170 + t173;
        const Q t175 = t170 - t173;
        // complex block of 2
        const Q t176 = t166 + t174;
        io.pairs(16, 24, t176);
        const Q t177 = t166 - t174;
        io.pairs(36, 4, t177);
        const Q t178 = shuffled<1, 0, 3, 2>(t175);
        const Q t179 = flipped<0, 1, 0, 1>(t178);
        // complex block of 2
        const Q t180 = t167 + t179;
        io.pairs(26, 34, t180);
        const Q t181 = t167 - t179;
        io.pairs(6, 14, t181);
        // complex block of 2
        const Q t182 = t160 - t161;
        // complex block of 2
        const Q t183 = t163 - t164;
        const Q t184 = shuffled<1, 0, 3, 2>(t183);
        const Q t185 = flipped<0, 1, 0, 1>(t184);
        // complex block of 2
        const Q t186 = t182 + t185;
        const Q t187 = t182 - t185;
        // complex block of 2
        const Q t188 = t168 - t169;
        // complex block of 8, multiplier 5
        const Q t189 = c[4] * t188;
        const Q t190 = shuffled<1, 0, 3, 2>(t189);
        const Q t191 = flipped<0, 1, 0, 1>(t190);
        const Q t192 = t189 + t191;
        // complex block of 2
        const Q t193 = t171 - t172;
        // complex block of 8, multiplier 5
        const Q t194 = c[4] * t193;
        const Q t195 = shuffled<1, 0, 3, 2>(t194);
        const Q t196 = flipped<0, 1, 0, 1>(t195);
        const Q t197 = t194 + t196;
        const Q t198 = shuffled<1, 0, 3, 2>(t197);
        const Q t199 = flipped<0, 1, 0, 1>(t192);
        // complex block of 2
        const Q t200 = t198 + t199;
        const Q t201 = flipped<1, 0, 1, 0>(t200);
        // complex block of 2
        const Q t202 = t186 + t201;
        io.pairs(21, 29, t202);
        const Q t203 = t186 - t201;
        io.pairs(1, 9, t203);
        // complex block of 2
        const Q t204 = t198 - t199;
        const Q t205 = shuffled<1, 0, 3, 2>(t204);
        // complex block of 2
        const Q t206 = t187 - t205;
        io.pairs(31, 39, t206);
        const Q t207 = t187 + t205;
        io.pairs(11, 19, t207);
        // complex block of 2
        const Q t208 = t26 + t54;
        const Q t209 = t26 - t54;
        // complex block of 2
        const Q t210 = t82 - t110;
        const Q t211 = t82 + t110;
        const Q t212 = shuffled<2, 3, 6, 7>(t210, t209);
        // complex block of 8, multiplier 5
        const Q t213 = c[4] * t212;
        const Q t214 = shuffled<1, 0, 3, 2>(t213);
        const Q t215 = flipped<0, 1, 0, 1>(t214);
        const Q t216 = t213 + t215;
        const Q t217 = shuffled<0, 1, 4, 5>(t208, t209);
        const Q t218 = shuffled<1, 0, 3, 2>(t210);
        const Q t219 = shuffled<0, 1, 4, 5>(t211, t218);
        const Q t220 = flipped<0, 0, 0, 1>(t219);
        // complex block of 2
        const Q t221 = t217 + t220;
        const Q t222 = t217 - t220;
        const Q t223 = shuffled<1, 0, 3, 2>(t216);
        const Q t224 = shuffled<2, 3, 4, 5>(t208, t223);
        const Q t225 = shuffled<2, 3, 6, 7>(t211, t216);
        const Q t226 = flipped<0, 0, 0, 1>(t225);
        // complex block of 2
        const Q t227 = t224 + t226;
        const Q t228 = flipped<0, 0, 1, 0>(t227);
        // complex block of 2
        const Q t229 = t221 + t228;
        io.pairs(32, 37, t229);
        const Q t230 = t221 - t228;
        io.pairs(12, 17, t230);
        // complex block of 2
        const Q t231 = t224 - t226;
        const Q t232 = shuffled<1, 0, 3, 2>(t231);
        const Q t233 = flipped<1, 0, 0, 0>(t232);
        // complex block of 2
        const Q t234 = t222 - t233;
        io.pairs(2, 7, t234);
        const Q t235 = t222 + t233;
        io.pairs(22, 27, t235);
    }
};

}  // namespace zulg
