// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 27.
// Forward DFT of 27 real points, twiddled 9, 3; up to four lanes to a register.
// 38 sums, 16 differences, 30 products of registers, which do the 301 steps of the graph, those with
// `scale` included; 58 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<27> {
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
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const P x9_10 = io.in(9, 10);
        const P x12_13 = io.in(12, 13);
        const Q t0 = joined(x9_10, x12_13);
        const P x18_19 = io.in(18, 19);
        const P x21_22 = io.in(21, 22);
        const Q t1 = joined(x18_19, x21_22);
        // real block of 3
        const Q t2 = t0 + t1;
        const P x0_1 = io.in(0, 1);
        const P x3_4 = io.in(3, 4);
        const Q t3 = joined(x0_1, x3_4);
        const Q t4 = t2 + t3;
        const Q t5 = t0 - t1;
        const P x15_16 = io.in(15, 16);
        const P x24_25 = io.in(24, 25);
        // real block of 3
        const P t6 = x15_16 + x24_25;
        const P x6_7 = io.in(6, 7);
        const P t7 = t6 + x6_7;
        const P t8 = part<1>(t4);
        const V t9 = part<0>(t8);
        const V t10 = part<0>(t7);
        // real block of 3
        const V t11 = t9 + t10;
        const V t12 = part<1>(t8);
        const V t13 = part<1>(t7);
        // real block of 3
        const V t14 = t12 + t13;
        // real block of 3
        const Q t15 = c[0] * t2;
        const Q t16 = t3 - t15;
        const Q t17 = joined(x15_16, t8);
        const Q t18 = joined(x24_25, t7);
        // real block of 3
        const Q t19 = t17 - t18;
        const P t20 = part<0>(t4);
        const Q t21 = joined(x6_7, t20);
        const P t22 = joined(t11, t14);
        const Q t23 = joined(t6, t22);
        const Q t24 = c[0] * t23;
        const Q t25 = t21 - t24;
        // real block of 3
        const Q t26 = c[1] * t5;
        const Q t27 = shuffled<0, 4, 2, 6>(t16, t26);
        const Q t28 = shuffled<1, 5, 3, 7>(t16, t26);
        const Q t29 = shuffled<2, 3, 6, 7>(t27, t28);
        // real block of 9
        const Q t30 = c[2] * t29;
        const Q t31 = shuffled<1, 0, 3, 2>(t29);
        const Q t32 = Q(-c[3], c[3], -c[3], c[3]) * t31;
        const Q t33 = t30 + t32;
        // real block of 3
        const Q t34 = c[1] * t19;
        const Q t35 = shuffled<0, 4, 2, 6>(t25, t34);
        const Q t36 = shuffled<1, 5, 3, 7>(t25, t34);
        const Q t37 = shuffled<0, 1, 4, 5>(t35, t36);
        // real block of 9
        const Q t38 = c[4] * t37;
        const Q t39 = shuffled<1, 0, 3, 2>(t37);
        const Q t40 = Q(-c[5], c[5], -c[5], c[5]) * t39;
        const Q t41 = t38 + t40;
        // complex block of 3
        const Q t42 = t33 + t41;
        const Q t43 = shuffled<0, 5, 2, 7>(t33, t41);
        const Q t44 = shuffled<0, 5, 2, 7>(t41, t33);
        const Q t45 = t43 - t44;
        const P x11_14 = io.in(11, 14);
        const P x20_23 = io.in(20, 23);
        // real block of 3
        const P t46 = x11_14 + x20_23;
        const P x2_5 = io.in(2, 5);
        const P t47 = t46 + x2_5;
        const V x17 = io.in(17);
        const V x26 = io.in(26);
        // real block of 3
        const V t48 = x17 + x26;
        const V x8 = io.in(8);
        const V t49 = t48 + x8;
        const V t50 = part<1>(t47);
        // real block of 3
        const V t51 = t50 + t49;
        const P t52 = joined(x17, t50);
        const Q t53 = joined(x11_14, t52);
        const P t54 = joined(x26, t49);
        const Q t55 = joined(x20_23, t54);
        // real block of 3
        const Q t56 = t53 - t55;
        const V t57 = part<0>(t47);
        const P t58 = joined(x8, t57);
        const Q t59 = joined(x2_5, t58);
        const P t60 = joined(t48, t51);
        const Q t61 = joined(t46, t60);
        const Q t62 = c[0] * t61;
        const Q t63 = t59 - t62;
        const Q t64 = c[1] * t56;
        const Q t65 = shuffled<0, 4, 2, 6>(t63, t64);
        const Q t66 = shuffled<1, 5, 3, 7>(t63, t64);
        const Q t67 = shuffled<2, 3, 4, 5>(t65, t66);
        // real block of 9
        const Q t68 = Q(c[4], c[4], c[2], c[2]) * t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t67);
        const Q t70 = Q(-c[5], c[5], -c[3], c[3]) * t69;
        const Q t71 = t68 + t70;
        const P t72 = part<1>(t71);
        const P t73 = part<0>(t71);
        // complex block of 3
        const P t74 = t72 + t73;
        const P t75 = shuffled<0, 3>(t72, t73);
        const P t76 = shuffled<0, 3>(t73, t72);
        const P t77 = t75 - t76;
        // real block of 3
        const P t78 = t22 + t20;
        // real block of 3
        const V t79 = t51 + t57;
        const V t80 = part<1>(t78);
        // real block of 3
        const V t81 = t80 + t79;
        const V t82 = t80 - t79;
        const V t83 = part<0>(t78);
        const V t84 = t81 + t83;
        io.re(0, t84);
        const V t85 = c[0] * t81;
        const V t86 = t83 - t85;
        const V t87 = -c[1] * t82;
        const P t88 = joined(t86, t87);
        io.pair(9, t88);
        const Q t89 = shuffled<0, 1, 4, 5>(t27, t28);
        // complex block of 3
        const Q t90 = t42 + t89;
        const Q t91 = Q(-c[0], c[0], -c[0], c[0]) * t42;
        const Q t92 = flipped<0, 1, 0, 1>(t89);
        const Q t93 = t91 + t92;
        const Q t94 = Q(-c[1], c[1], -c[1], c[1]) * t45;
        const Q t95 = shuffled<1, 0, 3, 2>(t94);
        const Q t96 = t93 + t95;
        const Q t97 = t93 - t95;
        const Q t98 = shuffled<2, 3, 6, 7>(t90, t97);
        // real block of 27
        const Q t99 = Q(c[10], c[10], c[6], c[6]) * t98;
        const Q t100 = shuffled<1, 0, 3, 2>(t98);
        const Q t101 = Q(-c[11], c[11], -c[7], c[7]) * t100;
        const Q t102 = t99 + t101;
        const Q t103 = shuffled<2, 3, 6, 7>(t36, t96);
        const Q t104 = Q(c[2], c[2], c[8], c[8]) * t103;
        const Q t105 = shuffled<1, 0, 3, 2>(t103);
        const Q t106 = Q(-c[3], c[3], c[9], -c[9]) * t105;
        const Q t107 = t104 + t106;
        const P t108 = part<0>(t65);
        // complex block of 3
        const P t109 = t74 + t108;
        const P t110 = P(-c[0], c[0]) * t74;
        const P t111 = flipped<0, 1>(t108);
        const P t112 = t110 + t111;
        const P t113 = P(-c[1], c[1]) * t77;
        const P t114 = shuffled<1, 0>(t113);
        const P t115 = t112 + t114;
        const P t116 = t112 - t114;
        const Q t117 = joined(t109, t116);
        // real block of 27
        const Q t118 = Q(c[6], c[6], c[8], c[8]) * t117;
        const Q t119 = shuffled<1, 0, 3, 2>(t117);
        const Q t120 = Q(-c[7], c[7], -c[9], c[9]) * t119;
        const Q t121 = t118 + t120;
        const P t122 = part<1>(t66);
        const P t123 = shuffled<1, 0>(t122);
        const Q t124 = joined(t123, t115);
        const Q t125 = Q(-c[5], c[5], -c[12], c[12]) * t124;
        const Q t126 = shuffled<1, 0, 3, 2>(t124);
        const Q t127 = Q(c[4], c[4], c[13], c[13]) * t126;
        const Q t128 = t125 + t127;
        // complex block of 3
        const Q t129 = t102 + t121;
        const Q t130 = shuffled<0, 5, 2, 7>(t102, t121);
        const Q t131 = shuffled<0, 5, 2, 7>(t121, t102);
        const Q t132 = t130 - t131;
        const Q t133 = shuffled<0, 1, 4, 5>(t90, t97);
        const Q t134 = t129 + t133;
        io.pairs(1, 2, negated<0, 1, 0, 1>(t134));
        const Q t135 = Q(-c[0], c[0], -c[0], c[0]) * t129;
        const Q t136 = flipped<0, 1, 0, 1>(t133);
        const Q t137 = t135 + t136;
        const Q t138 = Q(-c[1], c[1], -c[1], c[1]) * t132;
        const Q t139 = shuffled<1, 0, 3, 2>(t138);
        const Q t140 = t137 + t139;
        io.pairs(10, 11, t140);
        const Q t141 = t137 - t139;
        io.pairs(8, 7, negated<0, 1, 0, 1>(t141));
        const Q t142 = flipped<0, 0, 0, 1>(t128);
        // complex block of 3
        const Q t143 = t107 + t142;
        const Q t144 = flipped<0, 1, 0, 0>(t107);
        const Q t145 = flipped<1, 0, 1, 1>(t142);
        const Q t146 = t144 + t145;
        const Q t147 = shuffled<2, 3, 4, 5>(t35, t96);
        const Q t148 = t143 + t147;
        io.pairs(3, 4, negated<0, 1, 0, 0>(t148));
        const Q t149 = flipped<0, 1, 0, 0>(t147);
        const Q t150 = Q(c[0], -c[0], c[0], c[0]) * t143;
        const Q t151 = t149 - t150;
        const Q t152 = Q(-c[1], c[1], -c[1], c[1]) * t146;
        const Q t153 = shuffled<1, 0, 3, 2>(t152);
        const Q t154 = t151 + t153;
        io.pairs(12, 13, t154);
        const Q t155 = t151 - t153;
        io.pairs(6, 5, negated<0, 1, 0, 1>(t155));
    }
};

}  // namespace zulg
