// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 11.
// Hartley transform of 11 points, form F; two lanes to a register.
// 35 sums, 33 differences, 50 products of registers, which do the 131 steps of the graph, those with
// `scale` included; 2 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<11> {
    static constexpr int steps = 131;  // with `scale`
    static constexpr double inverseRoot = 0.30151134457776363;  // 1/sqrt(11), for `scale`
    static constexpr double constants[] = {
        0.8412535328311812,  // c[0]: cos 2 pi 10/11
        0.41541501300188644,  // c[1]: cos 2 pi 90/11
        0.14231483827328514,  // c[2]: -cos 2 pi 30/11
        0.6548607339452851,  // c[3]: -cos 2 pi 40/11
        0.9594929736144974,  // c[4]: -cos 2 pi 60/11
        0.5406408174555976,  // c[5]: -sin 2 pi 10/11
        0.9898214418809327,  // c[6]: -sin 2 pi 30/11
        0.7557495743542583,  // c[7]: -sin 2 pi 40/11
        0.9096319953545183,  // c[8]: sin 2 pi 90/11
        0.28173255684142967,  // c[9]: sin 2 pi 60/11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const V x1 = io.in(1);
        const V x10 = io.in(10);
        // real block of 11, multiplier 10
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
        io.out(0, t14);
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
        const V t25 = c[5] * t1;
        const V t26 = part<0>(t5);
        const V t27 = c[6] * t26;
        const V t28 = t25 + t27;
        const V t29 = part<1>(t5);
        const V t30 = c[7] * t29;
        const V t31 = t28 + t30;
        const V t32 = c[8] * t3;
        const V t33 = t31 - t32;
        const V t34 = c[9] * t7;
        const V t35 = t33 - t34;
        const V t36 = c[1] * t0;
        const V t37 = c[3] * t2;
        const V t38 = t36 - t37;
        const V t39 = c[4] * t9;
        const V t40 = t38 - t39;
        const V t41 = c[2] * t11;
        const V t42 = t40 - t41;
        const V t43 = c[0] * t6;
        const V t44 = t42 + t43;
        const V t45 = t44 + x0;
        const V t46 = c[8] * t1;
        const V t47 = c[5] * t7;
        const V t48 = t46 + t47;
        const V t49 = c[7] * t3;
        const V t50 = t48 - t49;
        const V t51 = c[9] * t26;
        const V t52 = t50 - t51;
        const V t53 = c[6] * t29;
        const V t54 = t52 - t53;
        const V t55 = c[2] * t0;
        const V t56 = x0 - t55;
        const V t57 = c[4] * t2;
        const V t58 = t56 - t57;
        const V t59 = c[1] * t9;
        const V t60 = t58 + t59;
        const V t61 = c[0] * t11;
        const V t62 = t60 + t61;
        const V t63 = c[3] * t6;
        const V t64 = t62 - t63;
        const V t65 = c[6] * t1;
        const V t66 = c[9] * t3;
        const V t67 = t65 + t66;
        const V t68 = c[5] * t29;
        const V t69 = t67 + t68;
        const V t70 = c[8] * t26;
        const V t71 = t69 - t70;
        const V t72 = c[7] * t7;
        const V t73 = t71 - t72;
        const V t74 = c[3] * t0;
        const V t75 = x0 - t74;
        const V t76 = c[2] * t2;
        const V t77 = t75 - t76;
        const V t78 = c[0] * t9;
        const V t79 = t77 + t78;
        const V t80 = c[4] * t11;
        const V t81 = t79 - t80;
        const V t82 = c[1] * t6;
        const V t83 = t81 + t82;
        const V t84 = c[7] * t1;
        const V t85 = c[6] * t3;
        const V t86 = t84 + t85;
        const V t87 = c[5] * t26;
        const V t88 = t86 + t87;
        const V t89 = c[9] * t29;
        const V t90 = t88 + t89;
        const V t91 = c[8] * t7;
        const V t92 = t90 + t91;
        const V t93 = c[4] * t0;
        const V t94 = x0 - t93;
        const V t95 = c[0] * t2;
        const V t96 = t94 + t95;
        const V t97 = c[3] * t9;
        const V t98 = t96 - t97;
        const V t99 = c[1] * t11;
        const V t100 = t98 + t99;
        const V t101 = c[2] * t6;
        const V t102 = t100 - t101;
        const V t103 = c[9] * t1;
        const V t104 = c[5] * t3;
        const V t105 = t103 + t104;
        const V t106 = c[7] * t26;
        const V t107 = t105 + t106;
        const V t108 = c[8] * t29;
        const V t109 = t107 - t108;
        const V t110 = c[6] * t7;
        const V t111 = t109 - t110;
        // output stage
        const V t112 = t24 + t35;
        io.out(1, t112);
        const V t113 = t24 - t35;
        io.out(10, t113);
        const V t114 = t45 + t54;
        io.out(2, t114);
        const V t115 = t45 - t54;
        io.out(9, t115);
        const V t116 = t64 + t73;
        io.out(3, t116);
        const V t117 = t64 - t73;
        io.out(8, t117);
        const V t118 = t83 + t92;
        io.out(4, t118);
        const V t119 = t83 - t92;
        io.out(7, t119);
        const V t120 = t102 + t111;
        io.out(5, t120);
        const V t121 = t102 - t111;
        io.out(6, t121);
    }
};

}  // namespace zulg
