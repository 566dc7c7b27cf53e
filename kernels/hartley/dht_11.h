// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 11.
// Hartley transform of 11 points, form F.
// 36 additions, 34 subtractions, 50 multiplications (61 with `scale`); 10 constants; 42 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<11> {
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
        0.9096319953545183,  // c[7]: sin 2 pi 90/11
        0.28173255684142967,  // c[8]: sin 2 pi 60/11
        0.7557495743542583,  // c[9]: -sin 2 pi 40/11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 11, multiplier 10
        const V x1 = io.in(1);
        const V x10 = io.in(10);
        const V t0 = x1 + x10;
        const V t1 = x1 - x10;
        const V t2 = c[0] * t0;
        const V t3 = c[1] * t0;
        const V t4 = c[2] * t0;
        const V t5 = c[3] * t0;
        const V t6 = c[4] * t0;
        const V x9 = io.in(9);
        const V x2 = io.in(2);
        const V t7 = x9 + x2;
        const V t8 = x9 - x2;
        const V t9 = c[1] * t7;
        const V t10 = c[3] * t7;
        const V x3 = io.in(3);
        const V x8 = io.in(8);
        const V t11 = x3 + x8;
        const V t12 = x3 - x8;
        const V x6 = io.in(6);
        const V x5 = io.in(5);
        const V t13 = x6 + x5;
        const V t14 = x6 - x5;
        const V t15 = t0 + t7;
        const V t16 = t15 + t11;
        const V t17 = t2 + t9;
        const V t18 = c[2] * t11;
        const V t19 = t17 - t18;
        const V t20 = c[4] * t13;
        const V t21 = c[5] * t1;
        const V t22 = c[6] * t12;
        const V t23 = t21 + t22;
        const V t24 = c[7] * t8;
        const V t25 = c[8] * t14;
        const V t26 = t3 - t10;
        const V t27 = c[4] * t11;
        const V t28 = t26 - t27;
        const V t29 = c[0] * t13;
        const V t30 = c[7] * t1;
        const V t31 = c[5] * t14;
        const V t32 = t30 + t31;
        const V t33 = c[9] * t8;
        const V t34 = c[8] * t12;
        const V x0 = io.in(0);
        const V t35 = x0 - t4;
        const V t36 = c[4] * t7;
        const V t37 = t35 - t36;
        const V t38 = c[1] * t11;
        const V t39 = c[3] * t13;
        const V t40 = c[6] * t1;
        const V t41 = c[8] * t8;
        const V t42 = t40 + t41;
        const V t43 = c[7] * t12;
        const V t44 = c[9] * t14;
        const V t45 = x0 - t5;
        const V t46 = c[2] * t7;
        const V t47 = t45 - t46;
        const V t48 = c[0] * t11;
        const V t49 = c[1] * t13;
        const V t50 = c[9] * t1;
        const V t51 = c[6] * t8;
        const V t52 = t50 + t51;
        const V t53 = c[5] * t12;
        const V t54 = c[7] * t14;
        const V t55 = x0 - t6;
        const V t56 = c[0] * t7;
        const V t57 = t55 + t56;
        const V t58 = c[3] * t11;
        const V t59 = c[2] * t13;
        const V t60 = c[8] * t1;
        const V t61 = c[5] * t8;
        const V t62 = t60 + t61;
        const V t63 = c[9] * t12;
        const V t64 = c[6] * t14;
        const V x4 = io.in(4);
        const V x7 = io.in(7);
        const V t65 = x4 + x7;
        const V t66 = x4 - x7;
        const V t67 = c[3] * t65;
        const V t68 = c[9] * t66;
        const V t69 = c[2] * t65;
        const V t70 = c[6] * t66;
        const V t71 = c[0] * t65;
        const V t72 = c[5] * t66;
        const V t73 = c[4] * t65;
        const V t74 = c[8] * t66;
        const V t75 = c[1] * t65;
        const V t76 = c[7] * t66;
        const V t77 = t16 + t65;
        const V t78 = t77 + t13;
        const V t79 = t78 + x0;
        io.out(0, t79);
        const V t80 = t19 - t67;
        const V t81 = t80 - t20;
        const V t82 = t23 + t68;
        const V t83 = t82 - t24;
        const V t84 = t81 + x0;
        const V t85 = t83 - t25;
        // output stage
        const V t86 = t84 + t85;
        io.out(1, t86);
        const V t87 = t84 - t85;
        io.out(10, t87);
        // real block of 11, multiplier 10
        const V t88 = t28 - t69;
        const V t89 = t88 + t29;
        const V t90 = t32 - t33;
        const V t91 = t90 - t34;
        const V t92 = t89 + x0;
        const V t93 = t91 - t70;
        // output stage
        const V t94 = t92 + t93;
        io.out(2, t94);
        const V t95 = t92 - t93;
        io.out(9, t95);
        // real block of 11, multiplier 10
        const V t96 = t37 + t38;
        const V t97 = t96 + t71;
        const V t98 = t42 + t72;
        const V t99 = t98 - t43;
        const V t100 = t97 - t39;
        const V t101 = t99 - t44;
        // output stage
        const V t102 = t100 + t101;
        io.out(3, t102);
        const V t103 = t100 - t101;
        io.out(8, t103);
        // real block of 11, multiplier 10
        const V t104 = t47 + t48;
        const V t105 = t104 - t73;
        const V t106 = t52 + t53;
        const V t107 = t106 + t74;
        const V t108 = t105 + t49;
        const V t109 = t107 + t54;
        // output stage
        const V t110 = t108 + t109;
        io.out(4, t110);
        const V t111 = t108 - t109;
        io.out(7, t111);
        // real block of 11, multiplier 10
        const V t112 = t57 - t58;
        const V t113 = t112 + t75;
        const V t114 = t62 + t63;
        const V t115 = t114 - t76;
        const V t116 = t113 - t59;
        const V t117 = t115 - t64;
        // output stage
        const V t118 = t116 + t117;
        io.out(5, t118);
        const V t119 = t116 - t117;
        io.out(6, t119);
    }
};

}  // namespace zulg
