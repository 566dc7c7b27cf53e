// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 11.
// Forward DFT of 11 real points, direct; two lanes to a register.
// 28 sums, 30 differences, 50 products of registers, which do the 121 steps of the graph, those with
// `scale` included; 7 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<11> {
    static constexpr int steps = 121;  // with `scale`
    static constexpr double inverseRoot = 0.30151134457776363;  // 1/sqrt(11), for `scale`
    static constexpr double constants[] = {
        0.8412535328311812,  // c[0]: cos 2 pi 1/11
        0.41541501300188644,  // c[1]: cos 2 pi 9/11
        0.14231483827328514,  // c[2]: -cos 2 pi 3/11
        0.6548607339452851,  // c[3]: -cos 2 pi 4/11
        0.9594929736144974,  // c[4]: -cos 2 pi 6/11
        0.9096319953545183,  // c[5]: -sin 2 pi 9/11
        0.28173255684142967,  // c[6]: -sin 2 pi 6/11
        0.5406408174555976,  // c[7]: sin 2 pi 1/11
        0.9898214418809327,  // c[8]: sin 2 pi 3/11
        0.7557495743542583,  // c[9]: sin 2 pi 4/11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const V x1 = io.in(1);
        const V x10 = io.in(10);
        // real block of 11
        const V t0 = x1 + x10;
        const V t1 = x1 - x10;
        const V x9 = io.in(9);
        const V x2 = io.in(2);
        const V t2 = x9 + x2;
        const V t3 = x9 - x2;
        const P x3_4 = io.in(3, 4);
        const P x8_7 = io.in(8, 7);
        const P t4 = x3_4 + x8_7;
        const P t5 = x3_4 - x8_7;
        const V x6 = io.in(6);
        const V x5 = io.in(5);
        const V t6 = x6 + x5;
        const V t7 = x6 - x5;
        const V t8 = t0 + t2;
        const V t9 = part<0>(t4);
        const V t10 = t8 + t9;
        const V t11 = part<1>(t4);
        const V t12 = t10 + t11;
        const V t13 = t12 + t6;
        const V x0 = io.in(0);
        const V t14 = t13 + x0;
        io.re(0, t14);
        const V t15 = c[0] * t0;
        const V t16 = c[1] * t2;
        const V t17 = t15 + t16;
        const V t18 = c[2] * t9;
        const V t19 = t17 - t18;
        const V t20 = c[3] * t11;
        const V t21 = t19 - t20;
        const V t22 = c[4] * t6;
        const V t23 = t21 - t22;
        const V t24 = t23 + x0;
        const V t25 = c[5] * t3;
        const V t26 = c[6] * t7;
        const V t27 = t25 + t26;
        const V t28 = c[7] * t1;
        const V t29 = t27 - t28;
        const V t30 = part<0>(t5);
        const V t31 = c[8] * t30;
        const V t32 = t29 - t31;
        const V t33 = part<1>(t5);
        const V t34 = c[9] * t33;
        const V t35 = t32 - t34;
        const P t36 = joined(t24, t35);
        io.pair(1, t36);
        const V t37 = c[1] * t0;
        const V t38 = c[3] * t2;
        const V t39 = t37 - t38;
        const V t40 = c[4] * t9;
        const V t41 = t39 - t40;
        const V t42 = c[2] * t11;
        const V t43 = t41 - t42;
        const V t44 = c[0] * t6;
        const V t45 = t43 + t44;
        const V t46 = t45 + x0;
        const V t47 = c[9] * t3;
        const V t48 = c[6] * t30;
        const V t49 = t47 + t48;
        const V t50 = c[8] * t33;
        const V t51 = t49 + t50;
        const V t52 = c[5] * t1;
        const V t53 = t51 - t52;
        const V t54 = c[7] * t7;
        const V t55 = t53 - t54;
        const P t56 = joined(t46, t55);
        io.pair(2, t56);
        const V t57 = c[2] * t0;
        const V t58 = x0 - t57;
        const V t59 = c[4] * t2;
        const V t60 = t58 - t59;
        const V t61 = c[1] * t9;
        const V t62 = t60 + t61;
        const V t63 = c[0] * t11;
        const V t64 = t62 + t63;
        const V t65 = c[3] * t6;
        const V t66 = t64 - t65;
        const V t67 = c[5] * t30;
        const V t68 = c[9] * t7;
        const V t69 = t67 + t68;
        const V t70 = c[8] * t1;
        const V t71 = t69 - t70;
        const V t72 = c[6] * t3;
        const V t73 = t71 - t72;
        const V t74 = c[7] * t33;
        const V t75 = t73 - t74;
        const P t76 = joined(t66, t75);
        io.pair(3, t76);
        const V t77 = c[3] * t0;
        const V t78 = x0 - t77;
        const V t79 = c[2] * t2;
        const V t80 = t78 - t79;
        const V t81 = c[0] * t9;
        const V t82 = t80 + t81;
        const V t83 = c[4] * t11;
        const V t84 = t82 - t83;
        const V t85 = c[1] * t6;
        const V t86 = t84 + t85;
        const V t87 = c[9] * t1;
        const V t88 = c[8] * t3;
        const V t89 = t87 + t88;
        const V t90 = c[7] * t30;
        const V t91 = t89 + t90;
        const V t92 = c[6] * t33;
        const V t93 = t91 + t92;
        const V t94 = c[5] * t7;
        const V t95 = t93 + t94;
        const V t96 = flipped<1>(t95);
        const P t97 = joined(t86, t96);
        io.pair(4, t97);
        const V t98 = c[4] * t0;
        const V t99 = x0 - t98;
        const V t100 = c[0] * t2;
        const V t101 = t99 + t100;
        const V t102 = c[3] * t9;
        const V t103 = t101 - t102;
        const V t104 = c[1] * t11;
        const V t105 = t103 + t104;
        const V t106 = c[2] * t6;
        const V t107 = t105 - t106;
        const V t108 = c[5] * t33;
        const V t109 = c[8] * t7;
        const V t110 = t108 + t109;
        const V t111 = c[6] * t1;
        const V t112 = t110 - t111;
        const V t113 = c[7] * t3;
        const V t114 = t112 - t113;
        const V t115 = c[9] * t30;
        const V t116 = t114 - t115;
        const P t117 = joined(t107, t116);
        io.pair(5, t117);
    }
};

}  // namespace zulg
