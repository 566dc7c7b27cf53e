// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 21.
// Forward DFT of 21 real points, prime-factor 7, 3; two lanes to a register.
// 34 sums, 36 differences, 44 products of registers, which do the 201 steps of the graph, those with
// `scale` included; 18 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<21> {
    static constexpr int steps = 201;  // with `scale`
    static constexpr double inverseRoot = 0.2182178902359924;  // 1/sqrt(21), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 3/7
        0.6234898018587335,  // c[1]: cos 2 pi 15/7
        0.2225209339563144,  // c[2]: -cos 2 pi 12/7
        0.9749279121818236,  // c[3]: -sin 2 pi 12/7
        0.4338837391175581,  // c[4]: sin 2 pi 3/7
        0.7818314824680298,  // c[5]: sin 2 pi 15/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x18_10 = io.in(18, 10);
        const P x3_4 = io.in(3, 4);
        // real block of 7, multiplier 3
        const P t0 = x18_10 + x3_4;
        const P t1 = shuffled<0, 3>(x3_4, x18_10);
        const P t2 = shuffled<0, 3>(x18_10, x3_4);
        const P t3 = t1 - t2;
        const P x15_1 = io.in(15, 1);
        const P x6_13 = io.in(6, 13);
        const P t4 = x15_1 + x6_13;
        const P t5 = x15_1 - x6_13;
        const P x12_19 = io.in(12, 19);
        const P x9_16 = io.in(9, 16);
        const P t6 = x12_19 + x9_16;
        const P t7 = x12_19 - x9_16;
        const P t8 = t0 + t4;
        const P t9 = t8 + t6;
        const P x0_7 = io.in(0, 7);
        const P t10 = t9 + x0_7;
        const P t11 = c[0] * t0;
        const P t12 = x0_7 - t11;
        const P t13 = c[1] * t4;
        const P t14 = t12 + t13;
        const P t15 = c[2] * t6;
        const P t16 = t14 - t15;
        const P t17 = c[3] * t7;
        const P t18 = c[4] * t3;
        const P t19 = t17 - t18;
        const P t20 = c[5] * t5;
        const P t21 = t19 - t20;
        const P t22 = c[1] * t0;
        const P t23 = c[2] * t4;
        const P t24 = t22 - t23;
        const P t25 = c[0] * t6;
        const P t26 = t24 - t25;
        const P t27 = t26 + x0_7;
        const P t28 = c[5] * t3;
        const P t29 = c[3] * t5;
        const P t30 = t28 - t29;
        const P t31 = c[4] * t7;
        const P t32 = t30 - t31;
        const P t33 = c[2] * t0;
        const P t34 = x0_7 - t33;
        const P t35 = c[0] * t4;
        const P t36 = t34 - t35;
        const P t37 = c[1] * t6;
        const P t38 = t36 + t37;
        const P t39 = c[3] * t3;
        const P t40 = c[4] * t5;
        const P t41 = t39 + t40;
        const P t42 = c[5] * t7;
        const P t43 = t41 + t42;
        const V x17 = io.in(17);
        const V x11 = io.in(11);
        // real block of 7, multiplier 3
        const V t44 = x17 + x11;
        const V t45 = x17 - x11;
        const V x8 = io.in(8);
        const V x20 = io.in(20);
        const V t46 = x8 + x20;
        const V t47 = x8 - x20;
        const V x5 = io.in(5);
        const V x2 = io.in(2);
        const V t48 = x5 + x2;
        const V t49 = x5 - x2;
        const V t50 = t44 + t46;
        const V t51 = t50 + t48;
        const V x14 = io.in(14);
        const V t52 = t51 + x14;
        const V t53 = c[0] * t44;
        const V t54 = x14 - t53;
        const V t55 = c[1] * t46;
        const V t56 = t54 + t55;
        const V t57 = c[2] * t48;
        const V t58 = t56 - t57;
        const V t59 = c[3] * t49;
        const V t60 = c[4] * t45;
        const V t61 = t59 - t60;
        const V t62 = c[5] * t47;
        const V t63 = t61 - t62;
        const V t64 = c[1] * t44;
        const V t65 = c[2] * t46;
        const V t66 = t64 - t65;
        const V t67 = c[0] * t48;
        const V t68 = t66 - t67;
        const V t69 = t68 + x14;
        const V t70 = c[5] * t45;
        const V t71 = c[3] * t47;
        const V t72 = t70 - t71;
        const V t73 = c[4] * t49;
        const V t74 = t72 - t73;
        const V t75 = c[2] * t44;
        const V t76 = x14 - t75;
        const V t77 = c[0] * t46;
        const V t78 = t76 - t77;
        const V t79 = c[1] * t48;
        const V t80 = t78 + t79;
        const V t81 = c[3] * t45;
        const V t82 = c[4] * t47;
        const V t83 = t81 + t82;
        const V t84 = c[5] * t49;
        const V t85 = t83 + t84;
        const V t86 = part<1>(t10);
        // real block of 3
        const V t87 = t86 + t52;
        const V t88 = t86 - t52;
        const V t89 = part<0>(t10);
        const V t90 = t87 + t89;
        io.re(0, t90);
        const V t91 = c[6] * t87;
        const V t92 = t89 - t91;
        const V t93 = -c[7] * t88;
        const P t94 = joined(t92, t93);
        io.pair(7, t94);
        const P t95 = shuffled<1, 3>(t16, t21);
        const P t96 = joined(t58, t63);
        // complex block of 3
        const P t97 = t95 + t96;
        const P t98 = t95 - t96;
        const P t99 = shuffled<0, 2>(t16, t21);
        const P t100 = t97 + t99;
        io.pair(3, t100);
        const P t101 = c[6] * t97;
        const P t102 = t99 - t101;
        const P t103 = P(-c[7], c[7]) * t98;
        const P t104 = shuffled<1, 0>(t103);
        const P t105 = t102 + t104;
        io.pair(10, t105);
        const P t106 = t102 - t104;
        io.pair(4, negated<0, 1>(t106));
        const P t107 = shuffled<1, 3>(t27, t32);
        const P t108 = joined(t69, t74);
        // complex block of 3
        const P t109 = t107 + t108;
        const P t110 = t107 - t108;
        const P t111 = shuffled<0, 2>(t27, t32);
        const P t112 = t109 + t111;
        io.pair(6, t112);
        const P t113 = c[6] * t109;
        const P t114 = t111 - t113;
        const P t115 = P(-c[7], c[7]) * t110;
        const P t116 = shuffled<1, 0>(t115);
        const P t117 = t114 + t116;
        io.pair(8, negated<0, 1>(t117));
        const P t118 = t114 - t116;
        io.pair(1, negated<0, 1>(t118));
        const P t119 = shuffled<1, 3>(t38, t43);
        const P t120 = joined(t80, t85);
        // complex block of 3
        const P t121 = t119 + t120;
        const P t122 = shuffled<0, 3>(t119, t120);
        const P t123 = shuffled<0, 3>(t120, t119);
        const P t124 = t122 - t123;
        const P t125 = shuffled<0, 2>(t38, t43);
        const P t126 = t121 + t125;
        io.pair(9, negated<0, 1>(t126));
        const P t127 = P(-c[6], c[6]) * t121;
        const P t128 = flipped<0, 1>(t125);
        const P t129 = t127 + t128;
        const P t130 = P(-c[7], c[7]) * t124;
        const P t131 = shuffled<1, 0>(t130);
        const P t132 = t129 + t131;
        io.pair(5, negated<0, 1>(t132));
        const P t133 = t129 - t131;
        io.pair(2, t133);
    }
};

}  // namespace zulg
