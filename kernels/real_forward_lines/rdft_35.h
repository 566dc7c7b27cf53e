// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 35.
// Forward DFT of 35 real points, prime-factor 7, 5; up to four lanes to a register.
// 49 sums, 43 differences, 60 products of registers, which do the 409 steps of the graph, those with
// `scale` included; 27 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<35> {
    static constexpr int steps = 409;  // with `scale`
    static constexpr double inverseRoot = 0.1690308509457033;  // 1/sqrt(35), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 5/7
        0.9009688679024191,  // c[1]: -cos 2 pi 25/7
        0.6234898018587335,  // c[2]: cos 2 pi 20/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.4338837391175581,  // c[4]: -sin 2 pi 25/7
        0.7818314824680298,  // c[5]: -sin 2 pi 20/7
        0.8090169943749475,  // c[6]: -cos 2 pi 2/5
        0.30901699437494745,  // c[7]: cos 2 pi 6/5
        0.5877852522924731,  // c[8]: sin 2 pi 2/5
        0.9510565162951535,  // c[9]: sin 2 pi 6/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x20_27_34_6 = io.in(20, 27, 34, 6);
        const Q x15_22_29_1 = io.in(15, 22, 29, 1);
        // real block of 7, multiplier 5
        const Q t0 = x20_27_34_6 + x15_22_29_1;
        const Q t1 = x20_27_34_6 - x15_22_29_1;
        const Q x5_12_19_26 = io.in(5, 12, 19, 26);
        const Q x30_2_9_16 = io.in(30, 2, 9, 16);
        const Q t2 = x5_12_19_26 + x30_2_9_16;
        const Q t3 = x5_12_19_26 - x30_2_9_16;
        const Q x25_32_4_11 = io.in(25, 32, 4, 11);
        const Q x10_17_24_31 = io.in(10, 17, 24, 31);
        const Q t4 = x25_32_4_11 + x10_17_24_31;
        const Q t5 = x25_32_4_11 - x10_17_24_31;
        const Q t6 = t2 + t4;
        const Q t7 = t6 + t0;
        const Q x0_7_14_21 = io.in(0, 7, 14, 21);
        const Q t8 = t7 + x0_7_14_21;
        const Q t9 = c[0] * t2;
        const Q t10 = x0_7_14_21 - t9;
        const Q t11 = c[1] * t4;
        const Q t12 = t10 - t11;
        const Q t13 = c[2] * t0;
        const Q t14 = t12 + t13;
        const Q t15 = c[3] * t3;
        const Q t16 = c[4] * t5;
        const Q t17 = t15 + t16;
        const Q t18 = c[5] * t1;
        const Q t19 = t17 + t18;
        const Q t20 = c[1] * t2;
        const Q t21 = x0_7_14_21 - t20;
        const Q t22 = c[2] * t4;
        const Q t23 = t21 + t22;
        const Q t24 = c[0] * t0;
        const Q t25 = t23 - t24;
        const Q t26 = c[3] * t1;
        const Q t27 = c[4] * t3;
        const Q t28 = t26 - t27;
        const Q t29 = c[5] * t5;
        const Q t30 = t28 - t29;
        const Q t31 = c[2] * t2;
        const Q t32 = c[0] * t4;
        const Q t33 = t31 - t32;
        const Q t34 = c[1] * t0;
        const Q t35 = t33 - t34;
        const Q t36 = t35 + x0_7_14_21;
        const Q t37 = c[3] * t5;
        const Q t38 = c[4] * t1;
        const Q t39 = t37 + t38;
        const Q t40 = c[5] * t3;
        const Q t41 = t39 - t40;
        const V x18 = io.in(18);
        const V x3 = io.in(3);
        // real block of 7, multiplier 5
        const V t42 = x18 + x3;
        const V t43 = x18 - x3;
        const V x33 = io.in(33);
        const V x23 = io.in(23);
        const V t44 = x33 + x23;
        const V t45 = x33 - x23;
        const V t46 = t44 + t42;
        const V x13 = io.in(13);
        const V x8 = io.in(8);
        const V t47 = x13 + x8;
        const V t48 = x13 - x8;
        const V t49 = t46 + t47;
        const V x28 = io.in(28);
        const V t50 = t49 + x28;
        const V t51 = c[0] * t44;
        const V t52 = x28 - t51;
        const V t53 = c[1] * t42;
        const V t54 = t52 - t53;
        const V t55 = c[2] * t47;
        const V t56 = t54 + t55;
        const V t57 = c[3] * t45;
        const V t58 = c[4] * t43;
        const V t59 = t57 + t58;
        const V t60 = c[5] * t48;
        const V t61 = t59 + t60;
        const V t62 = c[1] * t44;
        const V t63 = x28 - t62;
        const V t64 = c[2] * t42;
        const V t65 = t63 + t64;
        const V t66 = c[0] * t47;
        const V t67 = t65 - t66;
        const V t68 = c[3] * t48;
        const V t69 = c[4] * t45;
        const V t70 = t68 - t69;
        const V t71 = c[5] * t43;
        const V t72 = t70 - t71;
        const V t73 = c[2] * t44;
        const V t74 = c[0] * t42;
        const V t75 = t73 - t74;
        const V t76 = c[1] * t47;
        const V t77 = t75 - t76;
        const V t78 = t77 + x28;
        const V t79 = c[3] * t43;
        const V t80 = c[4] * t48;
        const V t81 = t79 + t80;
        const V t82 = c[5] * t45;
        const V t83 = t81 - t82;
        const P t84 = part<0>(t8);
        const V t85 = part<1>(t84);
        // real block of 5, multiplier 2
        const V t86 = t85 + t50;
        const P t87 = part<1>(t8);
        const V t88 = part<1>(t87);
        const V t89 = part<0>(t87);
        const V t90 = t88 + t89;
        const V t91 = t86 + t90;
        const V t92 = part<0>(t84);
        const V t93 = t91 + t92;
        io.re(0, t93);
        const V t94 = c[6] * t86;
        const V t95 = t92 - t94;
        const V t96 = c[7] * t90;
        const V t97 = t95 + t96;
        const V t98 = c[7] * t86;
        const V t99 = c[6] * t90;
        const V t100 = t98 - t99;
        const V t101 = t100 + t92;
        const V t102 = t85 - t50;
        const V t103 = t88 - t89;
        const V t104 = c[8] * t102;
        const V t105 = c[9] * t103;
        const V t106 = t104 + t105;
        const V t107 = flipped<1>(t106);
        const P t108 = joined(t97, t107);
        io.pair(7, t108);
        const V t109 = c[9] * t102;
        const V t110 = c[8] * t103;
        const V t111 = t109 - t110;
        const P t112 = joined(t101, t111);
        io.pair(14, t112);
        const Q t113 = shuffled<1, 5, 3, 7>(t14, t19);
        const Q t114 = shuffled<1, 5, 3, 7>(t25, t30);
        const Q t115 = shuffled<0, 1, 4, 5>(t113, t114);
        const P t116 = joined(t56, t61);
        const P t117 = joined(t67, t72);
        const Q t118 = joined(t116, t117);
        // complex block of 5, multiplier 2
        const Q t119 = t115 + t118;
        const Q t120 = shuffled<2, 3, 6, 7>(t113, t114);
        const Q t121 = shuffled<0, 4, 2, 6>(t14, t19);
        const Q t122 = shuffled<0, 4, 2, 6>(t25, t30);
        const Q t123 = shuffled<2, 3, 6, 7>(t121, t122);
        const Q t124 = t120 + t123;
        const Q t125 = t119 + t124;
        const Q t126 = c[7] * t119;
        const Q t127 = c[6] * t124;
        const Q t128 = t126 - t127;
        const Q t129 = shuffled<0, 1, 4, 5>(t121, t122);
        const Q t130 = c[6] * t119;
        const Q t131 = t129 - t130;
        const Q t132 = t115 - t118;
        const Q t133 = t120 - t123;
        const Q t134 = t125 + t129;
        io.pairs(5, 10, t134);
        const Q t135 = t128 + t129;
        const Q t136 = c[9] * t132;
        const Q t137 = c[8] * t133;
        const Q t138 = t136 - t137;
        const Q t139 = shuffled<1, 0, 3, 2>(t138);
        const Q t140 = flipped<0, 1, 0, 1>(t139);
        const Q t141 = t135 + t140;
        io.pairs(9, 4, negated<0, 1, 0, 1>(t141));
        const Q t142 = t135 - t140;
        io.pairs(16, 11, negated<0, 1, 0, 1>(t142));
        const Q t143 = c[7] * t124;
        const Q t144 = t131 + t143;
        const Q t145 = c[8] * t132;
        const Q t146 = c[9] * t133;
        const Q t147 = t145 + t146;
        const Q t148 = shuffled<1, 0, 3, 2>(t147);
        const Q t149 = flipped<0, 1, 0, 1>(t148);
        const Q t150 = t144 + t149;
        io.pairs(12, 17, t150);
        const Q t151 = t144 - t149;
        io.pairs(2, 3, negated<0, 1, 0, 0>(t151));
        const P t152 = part<0>(t36);
        const P t153 = part<0>(t41);
        const P t154 = shuffled<1, 3>(t152, t153);
        const P t155 = joined(t78, t83);
        // complex block of 5, multiplier 2
        const P t156 = t154 + t155;
        const P t157 = part<1>(t36);
        const P t158 = part<1>(t41);
        const P t159 = shuffled<1, 3>(t157, t158);
        const P t160 = shuffled<0, 2>(t157, t158);
        const P t161 = t159 + t160;
        const P t162 = t156 + t161;
        const P t163 = c[7] * t156;
        const P t164 = c[6] * t161;
        const P t165 = t163 - t164;
        const P t166 = shuffled<0, 2>(t152, t153);
        const P t167 = c[6] * t156;
        const P t168 = t166 - t167;
        const P t169 = t154 - t155;
        const P t170 = t159 - t160;
        const P t171 = t162 + t166;
        io.pair(15, t171);
        const P t172 = t165 + t166;
        const P t173 = c[9] * t169;
        const P t174 = c[8] * t170;
        const P t175 = t173 - t174;
        const P t176 = shuffled<1, 0>(t175);
        const P t177 = flipped<0, 1>(t176);
        const P t178 = t172 + t177;
        io.pair(1, t178);
        const P t179 = t172 - t177;
        io.pair(6, negated<0, 1>(t179));
        const P t180 = c[7] * t161;
        const P t181 = t168 + t180;
        const P t182 = c[8] * t169;
        const P t183 = c[9] * t170;
        const P t184 = t182 + t183;
        const P t185 = shuffled<1, 0>(t184);
        const P t186 = flipped<0, 1>(t185);
        const P t187 = t181 + t186;
        io.pair(13, negated<0, 1>(t187));
        const P t188 = t181 - t186;
        io.pair(8, t188);
    }
};

}  // namespace zulg
