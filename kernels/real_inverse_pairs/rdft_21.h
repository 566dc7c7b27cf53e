// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 21.
// Inverse DFT to 21 real points, prime-factor 3, 7; two lanes to a register.
// 37 sums, 33 differences, 54 products of registers, which do the 220 steps of the graph, those with
// `scale` included; 16 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<21> {
    static constexpr int steps = 220;  // with `scale`
    static constexpr double inverseRoot = 0.2182178902359924;  // 1/sqrt(21), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 1/7
        0.9749279121818236,  // c[5]: sin 2 pi 2/7
        0.4338837391175581,  // c[6]: sin 2 pi 3/7
        0.5,  // c[7]: -cos 2 pi 1/3
        0.8660254037844386,  // c[8]: sin 2 pi 1/3
        1.7320508075688772,  // c[9]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x7 = io.pair(7);
        const V t0 = part<0>(x7);
        // doubled bins
        const V t1 = c[0] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3
        const V t2 = t1 + x0r;
        const V t3 = c[7] * t1;
        const V t4 = x0r - t3;
        const V t5 = part<1>(x7);
        const V t6 = c[9] * t5;
        const V t7 = t4 - t6;
        const V t8 = t4 + t6;
        const P x10 = io.pair(10);
        // doubled bins
        const P t9 = c[0] * x10;
        const P x4 = io.pair(4);
        const P t10 = P(c[0], -c[0]) * x4;
        // complex block of 3
        const P t11 = t9 + t10;
        const P t12 = t9 - t10;
        const P x3 = io.pair(3);
        // doubled bins
        const P t13 = c[0] * x3;
        // complex block of 3
        const P t14 = t11 + t13;
        const P t15 = c[7] * t11;
        const P t16 = t13 - t15;
        const P t17 = P(c[8], -c[8]) * t12;
        const P t18 = shuffled<1, 0>(t17);
        const P t19 = t16 + t18;
        const P t20 = t16 - t18;
        const P x8 = io.pair(8);
        // doubled bins
        const P t21 = c[0] * x8;
        const P x1 = io.pair(1);
        const P t22 = c[0] * x1;
        // complex block of 3
        const P t23 = t21 + t22;
        const P t24 = shuffled<0, 3>(t21, t22);
        const P t25 = shuffled<0, 3>(t22, t21);
        const P t26 = t24 - t25;
        const P x6 = io.pair(6);
        // doubled bins
        const P t27 = c[0] * x6;
        const P t28 = flipped<0, 1>(t23);
        // complex block of 3
        const P t29 = t27 + t28;
        const P t30 = P(-c[7], c[7]) * t23;
        const P t31 = t30 + t27;
        const P t32 = P(c[8], -c[8]) * t26;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P x2 = io.pair(2);
        // doubled bins
        const P t36 = c[0] * x2;
        const P x5 = io.pair(5);
        const P t37 = P(c[0], -c[0]) * x5;
        // complex block of 3
        const P t38 = t36 + t37;
        const P t39 = flipped<0, 1>(t37);
        const P t40 = flipped<1, 0>(t36);
        const P t41 = t39 + t40;
        const P x9 = io.pair(9);
        // doubled bins
        const P t42 = c[0] * x9;
        // complex block of 3
        const P t43 = t38 + t42;
        const P t44 = c[7] * t38;
        const P t45 = t42 - t44;
        const P t46 = c[8] * t41;
        const P t47 = shuffled<1, 0>(t46);
        const P t48 = t45 + t47;
        const P t49 = t45 - t47;
        const P t50 = shuffled<0, 2>(t14, t19);
        const P t51 = shuffled<0, 2>(t29, t34);
        // spectrum block of 7, multiplier 3
        const P t52 = t50 + t51;
        const P t53 = shuffled<0, 2>(t43, t48);
        const P t54 = t52 + t53;
        const P t55 = joined(t2, t7);
        const P t56 = t54 + t55;
        io.out(0, 7, t56);
        const P t57 = c[1] * t50;
        const P t58 = c[2] * t51;
        const P t59 = t57 - t58;
        const P t60 = c[3] * t53;
        const P t61 = t59 - t60;
        const P t62 = t61 + t55;
        const P t63 = shuffled<1, 3>(t14, t19);
        const P t64 = c[4] * t63;
        const P t65 = shuffled<1, 3>(t29, t34);
        const P t66 = c[5] * t65;
        const P t67 = t64 + t66;
        const P t68 = shuffled<1, 3>(t43, t48);
        const P t69 = c[6] * t68;
        const P t70 = t67 + t69;
        const P t71 = t62 - t70;
        io.out(15, 1, t71);
        const P t72 = t62 + t70;
        io.out(6, 13, t72);
        const P t73 = c[2] * t50;
        const P t74 = t55 - t73;
        const P t75 = c[3] * t51;
        const P t76 = t74 - t75;
        const P t77 = c[1] * t53;
        const P t78 = t76 + t77;
        const P t79 = c[5] * t63;
        const P t80 = c[6] * t65;
        const P t81 = t79 - t80;
        const P t82 = c[4] * t68;
        const P t83 = t81 - t82;
        const P t84 = t78 - t83;
        io.out(9, 16, t84);
        const P t85 = t78 + t83;
        io.out(12, 19, t85);
        const P t86 = c[3] * t50;
        const P t87 = t55 - t86;
        const P t88 = c[1] * t51;
        const P t89 = t87 + t88;
        const P t90 = c[2] * t53;
        const P t91 = t89 - t90;
        const P t92 = c[6] * t63;
        const P t93 = c[4] * t65;
        const P t94 = t92 - t93;
        const P t95 = c[5] * t68;
        const P t96 = t94 + t95;
        const P t97 = t91 - t96;
        io.out(3, 10, t97);
        const P t98 = t91 + t96;
        io.out(18, 4, t98);
        const V t99 = part<0>(t20);
        const V t100 = part<0>(t35);
        // spectrum block of 7, multiplier 3
        const V t101 = t99 + t100;
        const V t102 = part<0>(t49);
        const V t103 = t101 + t102;
        const V t104 = t103 + t8;
        io.out(14, t104);
        const V t105 = c[1] * t99;
        const V t106 = c[2] * t100;
        const V t107 = t105 - t106;
        const V t108 = c[3] * t102;
        const V t109 = t107 - t108;
        const V t110 = t109 + t8;
        const V t111 = part<1>(t20);
        const V t112 = c[4] * t111;
        const V t113 = part<1>(t35);
        const V t114 = c[5] * t113;
        const V t115 = t112 + t114;
        const V t116 = part<1>(t49);
        const V t117 = c[6] * t116;
        const V t118 = t115 + t117;
        const V t119 = t110 - t118;
        io.out(8, t119);
        const V t120 = t110 + t118;
        io.out(20, t120);
        const V t121 = c[2] * t99;
        const V t122 = t8 - t121;
        const V t123 = c[3] * t100;
        const V t124 = t122 - t123;
        const V t125 = c[1] * t102;
        const V t126 = t124 + t125;
        const V t127 = c[5] * t111;
        const V t128 = c[6] * t113;
        const V t129 = t127 - t128;
        const V t130 = c[4] * t116;
        const V t131 = t129 - t130;
        const V t132 = t126 - t131;
        io.out(2, t132);
        const V t133 = t126 + t131;
        io.out(5, t133);
        const V t134 = c[3] * t99;
        const V t135 = t8 - t134;
        const V t136 = c[1] * t100;
        const V t137 = t135 + t136;
        const V t138 = c[2] * t102;
        const V t139 = t137 - t138;
        const V t140 = c[6] * t111;
        const V t141 = c[4] * t113;
        const V t142 = t140 - t141;
        const V t143 = c[5] * t116;
        const V t144 = t142 + t143;
        const V t145 = t139 - t144;
        io.out(17, t145);
        const V t146 = t139 + t144;
        io.out(11, t146);
    }
};

}  // namespace zulg
