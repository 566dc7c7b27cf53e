// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 60.
// Inverse DFT to 60 real points, prime-factor 4, 3, 5; up to four lanes to a register.
// 54 sums, 42 differences, 49 products of registers, which do the 628 steps of the graph, those with
// `scale` included; 40 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<60> {
    static constexpr int steps = 628;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.5,  // c[5]: -cos 2 pi 1/3
        0.8660254037844386,  // c[6]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const V x0r = io.re(0);
        const V x30r = io.re(30);
        // spectrum block of 2
        const V t0 = x0r + x30r;
        const V t1 = x0r - x30r;
        const P t2 = joined(t0, t1);
        const P x15 = io.pair(15);
        // doubled bins
        const P t3 = c[0] * x15;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const Q x3_1 = io.pairs(3, 1);
        // doubled bins
        const Q t6 = Q(c[0], -c[0], c[0], c[0]) * x3_1;
        const Q x27_29 = io.pairs(27, 29);
        const Q t7 = Q(c[0], c[0], c[0], -c[0]) * x27_29;
        // complex block of 2
        const Q t8 = t6 + t7;
        const Q t9 = flipped<0, 0, 0, 1>(t7);
        const Q t10 = flipped<1, 1, 1, 0>(t6);
        const Q t11 = t9 + t10;
        const Q x2_13 = io.pairs(2, 13);
        // doubled bins
        const Q t12 = Q(c[0], -c[0], c[0], c[0]) * x2_13;
        const Q x28_17 = io.pairs(28, 17);
        const Q t13 = Q(c[0], c[0], c[0], -c[0]) * x28_17;
        // complex block of 2
        const Q t14 = t12 + t13;
        const Q t15 = flipped<0, 0, 0, 1>(t13);
        const Q t16 = flipped<1, 1, 1, 0>(t12);
        const Q t17 = t15 + t16;
        const Q x4_8 = io.pairs(4, 8);
        // doubled bins
        const Q t18 = c[0] * x4_8;
        const Q x26_22 = io.pairs(26, 22);
        const Q t19 = Q(c[0], -c[0], c[0], -c[0]) * x26_22;
        // complex block of 2
        const Q t20 = t18 + t19;
        const Q t21 = t18 - t19;
        const Q x19_23 = io.pairs(19, 23);
        // doubled bins
        const Q t22 = c[0] * x19_23;
        const Q x11_7 = io.pairs(11, 7);
        const Q t23 = Q(c[0], -c[0], c[0], -c[0]) * x11_7;
        // complex block of 2
        const Q t24 = t22 + t23;
        const Q t25 = t22 - t23;
        const Q x12_16 = io.pairs(12, 16);
        // doubled bins
        const Q t26 = c[0] * x12_16;
        const Q x18_14 = io.pairs(18, 14);
        const Q t27 = Q(c[0], -c[0], c[0], -c[0]) * x18_14;
        // complex block of 2
        const Q t28 = t26 + t27;
        const Q t29 = t26 - t27;
        // complex block of 2
        const Q t30 = t20 + t24;
        const Q t31 = t20 - t24;
        const Q t32 = shuffled<1, 0, 3, 2>(t25);
        const Q t33 = flipped<0, 1, 0, 1>(t32);
        // complex block of 2
        const Q t34 = t21 + t33;
        const Q t35 = t21 - t33;
        // complex block of 2
        const Q t36 = t28 + t8;
        const Q t37 = t28 - t8;
        const Q t38 = shuffled<1, 0, 3, 2>(t11);
        const Q t39 = flipped<1, 0, 0, 0>(t38);
        // complex block of 2
        const Q t40 = t29 - t39;
        const Q t41 = t29 + t39;
        const Q t42 = shuffled<0, 1, 4, 5>(t14, t17);
        const Q t43 = shuffled<1, 0, 3, 2>(t17);
        const Q t44 = shuffled<2, 3, 6, 7>(t14, t43);
        const Q t45 = flipped<0, 0, 1, 1>(t44);
        // complex block of 2
        const Q t46 = t42 + t45;
        const Q t47 = t42 - t45;
        const P t48 = part<0>(t46);
        const P t49 = part<1>(t46);
        const P t50 = shuffled<1, 3>(t48, t49);
        const P t51 = part<0>(t47);
        const P t52 = part<1>(t47);
        const P t53 = shuffled<1, 3>(t51, t52);
        const Q t54 = joined(t50, t53);
        const Q t55 = shuffled<1, 5, 3, 7>(t30, t34);
        const Q t56 = shuffled<1, 5, 3, 7>(t31, t35);
        const Q t57 = shuffled<2, 3, 6, 7>(t55, t56);
        // complex block of 3, multiplier 2
        const Q t58 = t54 + t57;
        const P t59 = shuffled<0, 2>(t48, t49);
        const P t60 = shuffled<0, 2>(t51, t52);
        const Q t61 = joined(t59, t60);
        const Q t62 = shuffled<0, 4, 2, 6>(t30, t34);
        const Q t63 = shuffled<0, 4, 2, 6>(t31, t35);
        const Q t64 = shuffled<2, 3, 6, 7>(t62, t63);
        const Q t65 = t61 + t64;
        const Q t66 = t57 - t54;
        const Q t67 = shuffled<0, 1, 4, 5>(t55, t56);
        const Q t68 = shuffled<1, 5, 3, 7>(t36, t40);
        const Q t69 = shuffled<1, 5, 3, 7>(t37, t41);
        const Q t70 = shuffled<2, 3, 6, 7>(t68, t69);
        // complex block of 3, multiplier 2
        const Q t71 = t67 - t70;
        const Q t72 = shuffled<0, 4, 2, 6>(t36, t40);
        const Q t73 = shuffled<0, 4, 2, 6>(t37, t41);
        const Q t74 = shuffled<2, 3, 6, 7>(t72, t73);
        const Q t75 = shuffled<0, 1, 4, 5>(t62, t63);
        const Q t76 = t74 + t75;
        const Q t77 = t70 + t67;
        // complex block of 3, multiplier 2
        const Q t78 = t61 - t64;
        // complex block of 3, multiplier 2
        const Q t79 = t74 - t75;
        const Q x5_9 = io.pairs(5, 9);
        // doubled bins
        const Q t80 = c[0] * x5_9;
        const Q x25_21 = io.pairs(25, 21);
        const Q t81 = Q(c[0], -c[0], c[0], -c[0]) * x25_21;
        // complex block of 2
        const Q t82 = t80 + t81;
        const Q t83 = flipped<0, 1, 0, 1>(t81);
        const Q t84 = flipped<1, 0, 1, 0>(t80);
        const Q t85 = t83 + t84;
        const Q x20_24 = io.pairs(20, 24);
        // doubled bins
        const Q t86 = c[0] * x20_24;
        const Q x10_6 = io.pairs(10, 6);
        const Q t87 = Q(c[0], -c[0], c[0], -c[0]) * x10_6;
        // complex block of 2
        const Q t88 = t86 + t87;
        const Q t89 = t86 - t87;
        // complex block of 2
        const Q t90 = t88 + t82;
        const Q t91 = t88 - t82;
        const Q t92 = shuffled<1, 0, 3, 2>(t85);
        // complex block of 2
        const Q t93 = t89 - t92;
        const Q t94 = t89 + t92;
        const Q t95 = shuffled<0, 4, 2, 6>(t90, t93);
        const Q t96 = shuffled<0, 4, 2, 6>(t91, t94);
        const Q t97 = shuffled<0, 1, 4, 5>(t95, t96);
        const Q t98 = joined(t4, t5);
        // spectrum block of 3, multiplier 2
        const Q t99 = t97 + t98;
        const Q t100 = shuffled<0, 1, 4, 5>(t72, t73);
        // complex block of 3, multiplier 2
        const Q t101 = t65 + t100;
        const Q t102 = shuffled<2, 3, 6, 7>(t95, t96);
        // complex block of 3, multiplier 2
        const Q t103 = t76 + t102;
        // spectrum block of 5, multiplier 2
        const Q t104 = t101 + t103;
        const Q t105 = c[1] * t101;
        const Q t106 = c[2] * t103;
        const Q t107 = t105 - t106;
        const Q t108 = c[2] * t101;
        const Q t109 = t99 - t108;
        const Q t110 = shuffled<0, 1, 4, 5>(t68, t69);
        // complex block of 3, multiplier 2
        const Q t111 = t110 - t58;
        const Q t112 = shuffled<1, 5, 3, 7>(t90, t93);
        const Q t113 = shuffled<1, 5, 3, 7>(t91, t94);
        const Q t114 = shuffled<2, 3, 6, 7>(t112, t113);
        // complex block of 3, multiplier 2
        const Q t115 = t71 + t114;
        // spectrum block of 5, multiplier 2
        const Q t116 = t104 + t99;
        io.out(0, 15, 30, 45, t116);
        const Q t117 = t107 + t99;
        const Q t118 = c[3] * t111;
        const Q t119 = c[4] * t115;
        const Q t120 = t118 + t119;
        const Q t121 = t117 - t120;
        io.out(36, 51, 6, 21, t121);
        const Q t122 = t117 + t120;
        io.out(24, 39, 54, 9, t122);
        const Q t123 = c[1] * t103;
        const Q t124 = t109 + t123;
        const Q t125 = c[4] * t111;
        const Q t126 = c[3] * t115;
        const Q t127 = t125 - t126;
        const Q t128 = t124 - t127;
        io.out(12, 27, 42, 57, t128);
        const Q t129 = t124 + t127;
        io.out(48, 3, 18, 33, t129);
        // spectrum block of 3, multiplier 2
        const Q t130 = c[5] * t97;
        const Q t131 = t98 - t130;
        const Q t132 = shuffled<0, 1, 4, 5>(t112, t113);
        const Q t133 = c[6] * t132;
        const Q t134 = t131 - t133;
        const Q t135 = t131 + t133;
        // complex block of 3, multiplier 2
        const Q t136 = c[5] * t58;
        const Q t137 = t136 + t110;
        const Q t138 = c[6] * t78;
        const Q t139 = t137 + t138;
        const Q t140 = t137 - t138;
        const Q t141 = c[5] * t65;
        const Q t142 = t100 - t141;
        const Q t143 = c[6] * t66;
        const Q t144 = t142 - t143;
        const Q t145 = t142 + t143;
        // complex block of 3, multiplier 2
        const Q t146 = c[5] * t71;
        const Q t147 = t114 - t146;
        const Q t148 = c[6] * t79;
        const Q t149 = t147 + t148;
        const Q t150 = t147 - t148;
        const Q t151 = c[5] * t76;
        const Q t152 = t102 - t151;
        const Q t153 = c[6] * t77;
        const Q t154 = t152 + t153;
        const Q t155 = t152 - t153;
        // spectrum block of 5, multiplier 2
        const Q t156 = t145 + t155;
        const Q t157 = t156 + t135;
        io.out(20, 35, 50, 5, t157);
        const Q t158 = c[1] * t145;
        const Q t159 = c[2] * t155;
        const Q t160 = t158 - t159;
        const Q t161 = t160 + t135;
        const Q t162 = c[3] * t140;
        const Q t163 = c[4] * t150;
        const Q t164 = t162 + t163;
        const Q t165 = t161 - t164;
        io.out(56, 11, 26, 41, t165);
        const Q t166 = t161 + t164;
        io.out(44, 59, 14, 29, t166);
        const Q t167 = c[2] * t145;
        const Q t168 = t135 - t167;
        const Q t169 = c[1] * t155;
        const Q t170 = t168 + t169;
        const Q t171 = c[4] * t140;
        const Q t172 = c[3] * t150;
        const Q t173 = t171 - t172;
        const Q t174 = t170 - t173;
        io.out(32, 47, 2, 17, t174);
        const Q t175 = t170 + t173;
        io.out(8, 23, 38, 53, t175);
        // spectrum block of 5, multiplier 2
        const Q t176 = t144 + t154;
        const Q t177 = t176 + t134;
        io.out(40, 55, 10, 25, t177);
        const Q t178 = c[1] * t144;
        const Q t179 = c[2] * t154;
        const Q t180 = t178 - t179;
        const Q t181 = t180 + t134;
        const Q t182 = c[3] * t139;
        const Q t183 = c[4] * t149;
        const Q t184 = t182 + t183;
        const Q t185 = t181 - t184;
        io.out(16, 31, 46, 1, t185);
        const Q t186 = t181 + t184;
        io.out(4, 19, 34, 49, t186);
        const Q t187 = c[2] * t144;
        const Q t188 = t134 - t187;
        const Q t189 = c[1] * t154;
        const Q t190 = t188 + t189;
        const Q t191 = c[4] * t139;
        const Q t192 = c[3] * t149;
        const Q t193 = t191 - t192;
        const Q t194 = t190 - t193;
        io.out(52, 7, 22, 37, t194);
        const Q t195 = t190 + t193;
        io.out(28, 43, 58, 13, t195);
    }
};

}  // namespace zulg
