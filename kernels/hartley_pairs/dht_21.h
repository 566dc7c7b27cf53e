// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 21.
// Hartley transform of 21 points, form F; two lanes to a register.
// 43 sums, 39 differences, 44 products of registers, which do the 221 steps of the graph, those with
// `scale` included; 24 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<21> {
    static constexpr int steps = 221;  // with `scale`
    static constexpr double inverseRoot = 0.2182178902359924;  // 1/sqrt(21), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.5,  // c[6]: -cos 2 pi 2/3
        0.8660254037844386,  // c[7]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x18_10 = io.in(18, 10);
        const P x3_4 = io.in(3, 4);
        // real block of 7, multiplier 4
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
        const P t17 = c[3] * t3;
        const P t18 = c[4] * t5;
        const P t19 = t17 + t18;
        const P t20 = c[5] * t7;
        const P t21 = t19 - t20;
        const P t22 = c[1] * t0;
        const P t23 = c[2] * t4;
        const P t24 = t22 - t23;
        const P t25 = c[0] * t6;
        const P t26 = t24 - t25;
        const P t27 = t26 + x0_7;
        const P t28 = c[5] * t5;
        const P t29 = c[3] * t7;
        const P t30 = t28 + t29;
        const P t31 = c[4] * t3;
        const P t32 = t30 - t31;
        const P t33 = c[2] * t0;
        const P t34 = x0_7 - t33;
        const P t35 = c[0] * t4;
        const P t36 = t34 - t35;
        const P t37 = c[1] * t6;
        const P t38 = t36 + t37;
        const P t39 = c[5] * t3;
        const P t40 = c[3] * t5;
        const P t41 = t39 + t40;
        const P t42 = c[4] * t7;
        const P t43 = t41 + t42;
        const V x17 = io.in(17);
        const V x11 = io.in(11);
        // real block of 7, multiplier 4
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
        const V t59 = c[3] * t45;
        const V t60 = c[4] * t47;
        const V t61 = t59 + t60;
        const V t62 = c[5] * t49;
        const V t63 = t61 - t62;
        const V t64 = c[1] * t44;
        const V t65 = c[2] * t46;
        const V t66 = t64 - t65;
        const V t67 = c[0] * t48;
        const V t68 = t66 - t67;
        const V t69 = t68 + x14;
        const V t70 = c[5] * t47;
        const V t71 = c[3] * t49;
        const V t72 = t70 + t71;
        const V t73 = c[4] * t45;
        const V t74 = t72 - t73;
        const V t75 = c[2] * t44;
        const V t76 = x14 - t75;
        const V t77 = c[0] * t46;
        const V t78 = t76 - t77;
        const V t79 = c[1] * t48;
        const V t80 = t78 + t79;
        const V t81 = c[5] * t45;
        const V t82 = c[3] * t47;
        const V t83 = t81 + t82;
        const V t84 = c[4] * t49;
        const V t85 = t83 + t84;
        const V t86 = part<1>(t10);
        // real block of 3, multiplier 2
        const V t87 = t86 + t52;
        const V t88 = t86 - t52;
        const V t89 = part<0>(t10);
        const V t90 = t87 + t89;
        io.out(0, t90);
        const V t91 = c[6] * t87;
        const V t92 = t89 - t91;
        const P t93 = shuffled<1, 3>(t16, t21);
        const P t94 = joined(t58, t63);
        // complex block of 3, multiplier 2
        const P t95 = t93 + t94;
        const P t96 = t93 - t94;
        const P t97 = shuffled<0, 2>(t16, t21);
        const P t98 = t95 + t97;
        const P t99 = c[6] * t95;
        const P t100 = t97 - t99;
        const P t101 = P(-c[7], c[7]) * t96;
        const P t102 = shuffled<1, 0>(t101);
        const P t103 = t100 + t102;
        const P t104 = t100 - t102;
        const P t105 = shuffled<1, 3>(t27, t32);
        const P t106 = joined(t69, t74);
        // complex block of 3, multiplier 2
        const P t107 = t105 + t106;
        const P t108 = t105 - t106;
        const P t109 = shuffled<0, 2>(t27, t32);
        const P t110 = t107 + t109;
        const P t111 = c[6] * t107;
        const P t112 = t109 - t111;
        const P t113 = P(-c[7], c[7]) * t108;
        const P t114 = shuffled<1, 0>(t113);
        const P t115 = t112 + t114;
        const P t116 = t112 - t114;
        const P t117 = shuffled<1, 3>(t38, t43);
        const P t118 = joined(t80, t85);
        // complex block of 3, multiplier 2
        const P t119 = t117 + t118;
        const P t120 = t117 - t118;
        const P t121 = shuffled<0, 2>(t38, t43);
        const P t122 = t119 + t121;
        const P t123 = c[6] * t119;
        const P t124 = t121 - t123;
        const P t125 = P(-c[7], c[7]) * t120;
        const P t126 = shuffled<1, 0>(t125);
        const P t127 = t124 + t126;
        const P t128 = t124 - t126;
        const P t129 = shuffled<0, 2>(t98, t103);
        const P t130 = shuffled<1, 3>(t98, t103);
        // output stage
        const P t131 = t129 - t130;
        io.out(18, 4, t131);
        const P t132 = t129 + t130;
        io.out(3, 17, t132);
        const V t133 = part<0>(t128);
        const V t134 = part<1>(t128);
        const V t135 = t133 - t134;
        io.out(5, t135);
        const V t136 = t133 + t134;
        io.out(16, t136);
        // real block of 3, multiplier 2
        const V t137 = c[7] * t88;
        // output stage
        const V t138 = t92 + t137;
        io.out(7, t138);
        const V t139 = t92 - t137;
        io.out(14, t139);
        const P t140 = shuffled<0, 2>(t115, t116);
        const P t141 = shuffled<1, 3>(t115, t116);
        const P t142 = t140 - t141;
        io.out(1, 8, t142);
        const P t143 = t140 + t141;
        io.out(20, 13, t143);
        const P t144 = shuffled<0, 2>(t122, t127);
        const P t145 = shuffled<1, 3>(t122, t127);
        const P t146 = t144 + t145;
        io.out(9, 2, t146);
        const P t147 = t144 - t145;
        io.out(12, 19, t147);
        const P t148 = shuffled<0, 2>(t104, t110);
        const P t149 = shuffled<1, 3>(t104, t110);
        const P t150 = t148 + t149;
        io.out(10, 6, t150);
        const P t151 = t148 - t149;
        io.out(11, 15, t151);
    }
};

}  // namespace zulg
