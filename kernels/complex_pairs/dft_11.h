// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 11.
// Complex DFT of 11 points, Rader block; one complex number to a register.
// 45 sums, 33 differences, 50 products of registers, which do the 278 steps of the graph, those with
// `scale` included; 5 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<11> {
    static constexpr int steps = 278;  // with `scale`
    static constexpr double inverseRoot = 0.30151134457776363;  // 1/sqrt(11), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.635213297150478,  // c[4]: Q[1] of 11
        0.19106037559687397,  // c[5]: P[1] of 11
        0.5272211128649671,  // c[6]: P[2] of 11
        0.4025393125514894,  // c[7]: Q[2] of 11
        0.4262349587304204,  // c[8]: -Q[3] of 11
        0.5082556049431003,  // c[9]: P[3] of 11
        0.41403241996621415,  // c[10]: P[4] of 11
        0.5182443007085755,  // c[11]: Q[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x4 = io.pair(4);
        const P x3 = io.pair(3);
        // real block of 5, multiplier 2
        const P t0 = x4 + x3;
        const P t1 = x4 - x3;
        const P x9 = io.pair(9);
        const P x5 = io.pair(5);
        const P t2 = x9 + x5;
        const P t3 = x9 - x5;
        const P t4 = t0 + t2;
        const P x1 = io.pair(1);
        const P t5 = t4 + x1;
        const P t6 = c[0] * t0;
        const P t7 = x1 - t6;
        const P t8 = c[1] * t2;
        const P t9 = t7 + t8;
        const P t10 = c[2] * t1;
        const P t11 = c[3] * t3;
        const P t12 = t10 + t11;
        const P t13 = c[1] * t0;
        const P t14 = c[0] * t2;
        const P t15 = t13 - t14;
        const P t16 = t15 + x1;
        const P t17 = c[3] * t1;
        const P t18 = c[2] * t3;
        const P t19 = t17 - t18;
        const P x7 = io.pair(7);
        const P x8 = io.pair(8);
        // real block of 5, multiplier 2
        const P t20 = x7 + x8;
        const P t21 = x7 - x8;
        const P x2 = io.pair(2);
        const P x6 = io.pair(6);
        const P t22 = x2 + x6;
        const P t23 = x2 - x6;
        const P t24 = t20 + t22;
        const P x10 = io.pair(10);
        const P t25 = t24 + x10;
        const P t26 = c[0] * t20;
        const P t27 = x10 - t26;
        const P t28 = c[1] * t22;
        const P t29 = t27 + t28;
        const P t30 = c[2] * t21;
        const P t31 = c[3] * t23;
        const P t32 = t30 + t31;
        const P t33 = c[1] * t20;
        const P t34 = c[0] * t22;
        const P t35 = t33 - t34;
        const P t36 = t35 + x10;
        const P t37 = c[3] * t21;
        const P t38 = c[2] * t23;
        const P t39 = t37 - t38;
        // real block of 2
        const P t40 = t5 + t25;
        const P t41 = t5 - t25;
        // complex block of 2
        const P t42 = t9 + t29;
        const P t43 = t12 + t32;
        const P t44 = t9 - t29;
        const P t45 = t32 - t12;
        // complex block of 2
        const P t46 = t16 + t36;
        const P t47 = t19 + t39;
        const P t48 = t16 - t36;
        const P t49 = t19 - t39;
        const P x0 = io.pair(0);
        // complex block of 11
        const P t50 = x0 + t40;
        io.pair(0, t50);
        const P t51 = c[12] * t40;
        const P t52 = x0 - t51;
        const P t53 = shuffled<1, 0>(t48);
        const P t54 = c[4] * t53;
        const P t55 = shuffled<1, 0>(t49);
        const P t56 = c[5] * t55;
        const P t57 = t54 + t56;
        const P t58 = P(-c[4], c[4]) * t55;
        const P t59 = P(c[5], -c[5]) * t53;
        const P t60 = t58 + t59;
        const P t61 = c[6] * t42;
        const P t62 = c[7] * t43;
        const P t63 = t61 + t62;
        const P t64 = c[7] * t42;
        const P t65 = c[6] * t43;
        const P t66 = t64 - t65;
        const P t67 = shuffled<1, 0>(t44);
        const P t68 = P(-c[8], c[8]) * t67;
        const P t69 = shuffled<1, 0>(t45);
        const P t70 = P(c[9], -c[9]) * t69;
        const P t71 = t68 + t70;
        const P t72 = c[8] * t69;
        const P t73 = c[9] * t67;
        const P t74 = t72 + t73;
        const P t75 = c[10] * t46;
        const P t76 = c[11] * t47;
        const P t77 = t75 - t76;
        const P t78 = c[10] * t47;
        const P t79 = c[11] * t46;
        const P t80 = t78 + t79;
        const P t81 = shuffled<1, 0>(t41);
        const P t82 = P(c[13], -c[13]) * t81;
        // spectrum block of 2
        const P t83 = t52 + t82;
        const P t84 = t52 - t82;
        const P t85 = flipped<1, 0>(t74);
        // complex block of 2
        const P t86 = t66 + t85;
        const P t87 = t63 + t71;
        const P t88 = t66 - t85;
        const P t89 = t63 - t71;
        // complex block of 2
        const P t90 = t80 - t60;
        const P t91 = flipped<0, 1>(t57);
        const P t92 = t77 + t91;
        const P t93 = t80 + t60;
        const P t94 = t77 - t91;
        // spectrum block of 5, multiplier 2
        const P t95 = t87 + t92;
        const P t96 = t95 + t83;
        io.pair(1, t96);
        const P t97 = c[1] * t87;
        const P t98 = c[0] * t92;
        const P t99 = t97 - t98;
        const P t100 = t99 + t83;
        const P t101 = c[3] * t86;
        const P t102 = c[2] * t90;
        const P t103 = t101 + t102;
        const P t104 = t100 - t103;
        io.pair(5, t104);
        const P t105 = t100 + t103;
        io.pair(9, t105);
        const P t106 = c[0] * t87;
        const P t107 = t83 - t106;
        const P t108 = c[1] * t92;
        const P t109 = t107 + t108;
        const P t110 = c[2] * t86;
        const P t111 = c[3] * t90;
        const P t112 = t110 - t111;
        const P t113 = t109 - t112;
        io.pair(3, t113);
        const P t114 = t109 + t112;
        io.pair(4, t114);
        // spectrum block of 5, multiplier 2
        const P t115 = t89 + t94;
        const P t116 = t115 + t84;
        io.pair(10, t116);
        const P t117 = c[1] * t89;
        const P t118 = c[0] * t94;
        const P t119 = t117 - t118;
        const P t120 = t119 + t84;
        const P t121 = c[3] * t88;
        const P t122 = c[2] * t93;
        const P t123 = t121 + t122;
        const P t124 = t120 - t123;
        io.pair(6, t124);
        const P t125 = t120 + t123;
        io.pair(2, t125);
        const P t126 = c[0] * t89;
        const P t127 = t84 - t126;
        const P t128 = c[1] * t94;
        const P t129 = t127 + t128;
        const P t130 = c[2] * t88;
        const P t131 = c[3] * t93;
        const P t132 = t130 - t131;
        const P t133 = t129 - t132;
        io.pair(8, t133);
        const P t134 = t129 + t132;
        io.pair(7, t134);
    }
};

}  // namespace zulg
