// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 27.
// Forward DFT of 27 real points, twiddled 9, 3; two lanes to a register.
// 53 sums, 33 differences, 56 products of registers, which do the 301 steps of the graph, those with
// `scale` included; 42 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<27> {
    static constexpr int steps = 301;  // with `scale`
    static constexpr double inverseRoot = 0.19245008972987526;  // 1/sqrt(27), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.766044443118978,  // c[2]: cos 2 pi 1/9
        0.6427876096865394,  // c[3]: sin 2 pi 1/9
        0.17364817766693036,  // c[4]: cos 2 pi 2/9
        0.984807753012208,  // c[5]: sin 2 pi 2/9
        0.8936326403234123,  // c[6]: cos 2 pi 2/27
        0.44879918020046217,  // c[7]: sin 2 pi 2/27
        0.5971585917027862,  // c[8]: cos 2 pi 4/27
        0.8021231927550437,  // c[9]: sin 2 pi 4/27
        0.9730448705798238,  // c[10]: cos 2 pi 1/27
        0.23061587074244017,  // c[11]: sin 2 pi 1/27
        0.28680323271109026,  // c[12]: -cos 2 pi 8/27
        0.9579895123154889,  // c[13]: sin 2 pi 8/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x9_10 = io.in(9, 10);
        const P x18_19 = io.in(18, 19);
        // real block of 3
        const P t0 = x9_10 + x18_19;
        const P t1 = x9_10 - x18_19;
        const P x0_1 = io.in(0, 1);
        const P t2 = t0 + x0_1;
        const P t3 = c[0] * t0;
        const P t4 = x0_1 - t3;
        const P x12_13 = io.in(12, 13);
        const P x21_22 = io.in(21, 22);
        // real block of 3
        const P t5 = x12_13 + x21_22;
        const P t6 = x12_13 - x21_22;
        const P x3_4 = io.in(3, 4);
        const P t7 = t5 + x3_4;
        const P t8 = c[0] * t5;
        const P t9 = x3_4 - t8;
        const P x15_16 = io.in(15, 16);
        const P x24_25 = io.in(24, 25);
        // real block of 3
        const P t10 = x15_16 + x24_25;
        const P t11 = x15_16 - x24_25;
        const P x6_7 = io.in(6, 7);
        const P t12 = t10 + x6_7;
        const P t13 = c[0] * t10;
        const P t14 = x6_7 - t13;
        // real block of 3
        const P t15 = t7 + t12;
        const P t16 = t7 - t12;
        const P t17 = t15 + t2;
        const P t18 = c[0] * t15;
        const P t19 = t2 - t18;
        // real block of 9
        const P t20 = c[2] * t9;
        // real block of 3
        const P t21 = c[1] * t6;
        // real block of 9
        const P t22 = c[3] * t21;
        const P t23 = t20 - t22;
        const P t24 = c[2] * t21;
        const P t25 = c[3] * t9;
        const P t26 = t24 + t25;
        const P t27 = c[4] * t14;
        // real block of 3
        const P t28 = c[1] * t11;
        // real block of 9
        const P t29 = c[5] * t28;
        const P t30 = t27 - t29;
        const P t31 = c[4] * t28;
        const P t32 = c[5] * t14;
        const P t33 = t31 + t32;
        // complex block of 3
        const P t34 = t23 + t30;
        const P t35 = t26 + t33;
        const P t36 = t23 - t30;
        const P t37 = t33 - t26;
        const P t38 = t34 + t4;
        // real block of 3
        const P t39 = c[1] * t1;
        // complex block of 3
        const P t40 = t35 + t39;
        const P t41 = c[0] * t34;
        const P t42 = t4 - t41;
        const P t43 = c[0] * t35;
        const P t44 = t43 - t39;
        const P t45 = c[1] * t37;
        const P t46 = t42 + t45;
        const P t47 = c[1] * t36;
        const P t48 = t44 - t47;
        const P t49 = t42 - t45;
        const P t50 = t44 + t47;
        const P x11_14 = io.in(11, 14);
        const P x20_23 = io.in(20, 23);
        // real block of 3
        const P t51 = x11_14 + x20_23;
        const P t52 = x11_14 - x20_23;
        const P x2_5 = io.in(2, 5);
        const P t53 = t51 + x2_5;
        const P t54 = c[0] * t51;
        const P t55 = x2_5 - t54;
        const V x17 = io.in(17);
        const V x26 = io.in(26);
        // real block of 3
        const V t56 = x17 + x26;
        const V x8 = io.in(8);
        const V t57 = t56 + x8;
        const V t58 = part<1>(t53);
        // real block of 3
        const V t59 = t58 + t57;
        const P t60 = joined(x17, t58);
        const P t61 = joined(x26, t57);
        // real block of 3
        const P t62 = t60 - t61;
        const V t63 = part<0>(t53);
        // real block of 3
        const V t64 = t59 + t63;
        const P t65 = joined(x8, t63);
        const P t66 = joined(t56, t59);
        // real block of 3
        const P t67 = c[0] * t66;
        const P t68 = t65 - t67;
        // real block of 3
        const P t69 = c[1] * t52;
        const P t70 = shuffled<1, 3>(t55, t69);
        // real block of 9
        const P t71 = c[2] * t70;
        const P t72 = shuffled<1, 0>(t70);
        const P t73 = P(-c[3], c[3]) * t72;
        const P t74 = t71 + t73;
        // real block of 3
        const P t75 = c[1] * t62;
        const P t76 = shuffled<0, 2>(t68, t75);
        // real block of 9
        const P t77 = c[4] * t76;
        const P t78 = shuffled<1, 0>(t76);
        const P t79 = P(-c[5], c[5]) * t78;
        const P t80 = t77 + t79;
        // complex block of 3
        const P t81 = t74 + t80;
        const P t82 = shuffled<0, 3>(t74, t80);
        const P t83 = shuffled<0, 3>(t80, t74);
        const P t84 = t82 - t83;
        const P t85 = shuffled<0, 2>(t55, t69);
        const P t86 = t81 + t85;
        const P t87 = P(-c[0], c[0]) * t81;
        const P t88 = flipped<0, 1>(t85);
        const P t89 = t87 + t88;
        const P t90 = P(-c[1], c[1]) * t84;
        const P t91 = shuffled<1, 0>(t90);
        const P t92 = t89 + t91;
        const P t93 = t89 - t91;
        const V t94 = part<1>(t17);
        // real block of 3
        const V t95 = t94 + t64;
        const V t96 = t94 - t64;
        const V t97 = part<0>(t17);
        const V t98 = t95 + t97;
        io.re(0, t98);
        const V t99 = c[0] * t95;
        const V t100 = t97 - t99;
        const V t101 = -c[1] * t96;
        const P t102 = joined(t100, t101);
        io.pair(9, t102);
        const P t103 = shuffled<1, 3>(t38, t40);
        // real block of 27
        const P t104 = c[10] * t103;
        const P t105 = shuffled<1, 0>(t103);
        const P t106 = P(-c[11], c[11]) * t105;
        const P t107 = t104 + t106;
        const P t108 = c[6] * t86;
        const P t109 = shuffled<1, 0>(t86);
        const P t110 = P(-c[7], c[7]) * t109;
        const P t111 = t108 + t110;
        // complex block of 3
        const P t112 = t107 + t111;
        const P t113 = shuffled<0, 3>(t107, t111);
        const P t114 = shuffled<0, 3>(t111, t107);
        const P t115 = t113 - t114;
        const P t116 = shuffled<0, 2>(t38, t40);
        const P t117 = t112 + t116;
        io.pair(1, negated<0, 1>(t117));
        const P t118 = P(-c[0], c[0]) * t112;
        const P t119 = flipped<0, 1>(t116);
        const P t120 = t118 + t119;
        const P t121 = P(-c[1], c[1]) * t115;
        const P t122 = shuffled<1, 0>(t121);
        const P t123 = t120 + t122;
        io.pair(10, t123);
        const P t124 = t120 - t122;
        io.pair(8, negated<0, 1>(t124));
        const P t125 = shuffled<1, 3>(t49, t50);
        // real block of 27
        const P t126 = c[6] * t125;
        const P t127 = shuffled<1, 0>(t125);
        const P t128 = P(-c[7], c[7]) * t127;
        const P t129 = t126 + t128;
        const P t130 = c[8] * t93;
        const P t131 = shuffled<1, 0>(t93);
        const P t132 = P(-c[9], c[9]) * t131;
        const P t133 = t130 + t132;
        // complex block of 3
        const P t134 = t129 + t133;
        const P t135 = shuffled<0, 3>(t129, t133);
        const P t136 = shuffled<0, 3>(t133, t129);
        const P t137 = t135 - t136;
        const P t138 = shuffled<0, 2>(t49, t50);
        const P t139 = t134 + t138;
        io.pair(2, negated<0, 1>(t139));
        const P t140 = P(-c[0], c[0]) * t134;
        const P t141 = flipped<0, 1>(t138);
        const P t142 = t140 + t141;
        const P t143 = P(-c[1], c[1]) * t137;
        const P t144 = shuffled<1, 0>(t143);
        const P t145 = t142 + t144;
        io.pair(11, t145);
        const P t146 = t142 - t144;
        io.pair(7, negated<0, 1>(t146));
        // real block of 3
        const P t147 = c[1] * t16;
        const P t148 = shuffled<1, 3>(t19, t147);
        // real block of 27
        const P t149 = c[2] * t148;
        const P t150 = shuffled<1, 0>(t148);
        const P t151 = P(-c[3], c[3]) * t150;
        const P t152 = t149 + t151;
        const P t153 = shuffled<1, 3>(t68, t75);
        const P t154 = c[4] * t153;
        const P t155 = shuffled<1, 0>(t153);
        const P t156 = P(-c[5], c[5]) * t155;
        const P t157 = t154 + t156;
        // complex block of 3
        const P t158 = t152 + t157;
        const P t159 = shuffled<0, 3>(t152, t157);
        const P t160 = shuffled<0, 3>(t157, t152);
        const P t161 = t159 - t160;
        const P t162 = shuffled<0, 2>(t19, t147);
        const P t163 = t158 + t162;
        io.pair(3, negated<0, 1>(t163));
        const P t164 = P(-c[0], c[0]) * t158;
        const P t165 = flipped<0, 1>(t162);
        const P t166 = t164 + t165;
        const P t167 = P(-c[1], c[1]) * t161;
        const P t168 = shuffled<1, 0>(t167);
        const P t169 = t166 + t168;
        io.pair(12, t169);
        const P t170 = t166 - t168;
        io.pair(6, negated<0, 1>(t170));
        const P t171 = shuffled<1, 3>(t46, t48);
        // real block of 27
        const P t172 = c[8] * t171;
        const P t173 = shuffled<1, 0>(t171);
        const P t174 = P(c[9], -c[9]) * t173;
        const P t175 = t172 + t174;
        const P t176 = P(-c[12], c[12]) * t92;
        const P t177 = shuffled<1, 0>(t92);
        const P t178 = c[13] * t177;
        const P t179 = t176 + t178;
        const P t180 = flipped<0, 1>(t179);
        // complex block of 3
        const P t181 = t175 + t180;
        const P t182 = t175 - t180;
        const P t183 = shuffled<0, 2>(t46, t48);
        const P t184 = t181 + t183;
        io.pair(4, t184);
        const P t185 = c[0] * t181;
        const P t186 = t183 - t185;
        const P t187 = P(-c[1], c[1]) * t182;
        const P t188 = shuffled<1, 0>(t187);
        const P t189 = t186 + t188;
        io.pair(13, t189);
        const P t190 = t186 - t188;
        io.pair(5, negated<0, 1>(t190));
    }
};

}  // namespace zulg
